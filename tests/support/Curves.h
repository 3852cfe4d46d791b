#pragma once

#include "math/Intersect.h"
#include "math/Primitives.h"
#include "support/Support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// What the tests of intersections share: curves as records, both forms of a member run together in every way in which
// a caller can run them, and a second way to find and to place common points.

namespace math::test
{

struct Beeline
{
    DPOINT2 point;
    double angle;
};

struct Stretch
{
    DPOINT2 first;
    DPOINT2 second;
};

struct Circle
{
    DPOINT2 centre;
    double radius;
};

struct Arc
{
    DPOINT2 centre;
    double radius;
    double start;
    double sweep;
};

/// The meanings of the last argument of a vector form.
enum class TrailingInt
{
    Ignored,
    WantPoints,
    MaxPoints
};

/// Both forms of one member, with its curves already given.
struct BothForms
{
    std::function<int(DPOINT2*, DPOINT2*)> pointerForm; ///< a member with one output never sees the second
    std::function<int(std::vector<DPOINT2>&, int)> vectorForm;
    TrailingInt trailing;
    bool hasSecondOutput = true;
    bool tangentFillsBothOutputs = false;
    bool firstOutputIsOptional = true;
};

// The members

inline BothForms Meeting(const Beeline& a, const Beeline& b)
{
    return {[=](DPOINT2* point, DPOINT2*) {
                return Intersect_BeelineWithBeeline(a.point, a.angle, b.point, b.angle, point);
            },
            [=](std::vector<DPOINT2>& points, int ignored) {
                return Intersect_BeelineWithBeeline(a.point, a.angle, b.point, b.angle, points, ignored);
            },
            TrailingInt::Ignored, false};
}

inline BothForms Meeting(const Beeline& a, const Stretch& b)
{
    return {
        [=](DPOINT2* point, DPOINT2*) { return Intersect_BeelineWithLine(a.point, a.angle, b.first, b.second, point); },
        [=](std::vector<DPOINT2>& points, int ignored) {
            return Intersect_BeelineWithLine(a.point, a.angle, b.first, b.second, points, ignored);
        },
        TrailingInt::Ignored, false};
}

inline BothForms Meeting(const Stretch& a, const Stretch& b)
{
    return {
        [=](DPOINT2* point, DPOINT2*) { return Intersect_LineWithLine(a.first, a.second, b.first, b.second, point); },
        [=](std::vector<DPOINT2>& points, int wantPoints) {
            return Intersect_LineWithLine(a.first, a.second, b.first, b.second, points, wantPoints);
        },
        TrailingInt::WantPoints, false};
}

inline BothForms Meeting(const Beeline& a, const Circle& b)
{
    BothForms forms{[=](DPOINT2* first, DPOINT2* second) {
                        return Intersect_BeelineWithCircle(a.point, a.angle, b.centre, b.radius, first, second);
                    },
                    [=](std::vector<DPOINT2>& points, int wantPoints) {
                        return Intersect_BeelineWithCircle(a.point, a.angle, b.centre, b.radius, points, wantPoints);
                    },
                    TrailingInt::WantPoints};
    forms.tangentFillsBothOutputs = true;
    return forms;
}

inline BothForms Meeting(const Beeline& a, const Arc& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_BeelineWithArc(a.point, a.angle, b.centre, b.radius, b.start, b.sweep, first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_BeelineWithArc(a.point, a.angle, b.centre, b.radius, b.start, b.sweep, points,
                                                maxPoints);
            },
            TrailingInt::MaxPoints};
}

inline BothForms Meeting(const Stretch& a, const Circle& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_LineWithCircle(a.first, a.second, b.centre, b.radius, first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_LineWithCircle(a.first, a.second, b.centre, b.radius, points, maxPoints);
            },
            TrailingInt::MaxPoints};
}

inline BothForms Meeting(const Stretch& a, const Arc& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_LineWithArc(a.first, a.second, b.centre, b.radius, b.start, b.sweep, first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_LineWithArc(a.first, a.second, b.centre, b.radius, b.start, b.sweep, points,
                                             maxPoints);
            },
            TrailingInt::MaxPoints};
}

inline BothForms Meeting(const Circle& a, const Circle& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_CircleWithCircle(a.centre, a.radius, b.centre, b.radius, first, second);
            },
            [=](std::vector<DPOINT2>& points, int wantPoints) {
                return Intersect_CircleWithCircle(a.centre, a.radius, b.centre, b.radius, points, wantPoints);
            },
            TrailingInt::WantPoints};
}

inline BothForms Meeting(const Circle& a, const Arc& b)
{
    BothForms forms{
        [=](DPOINT2* first, DPOINT2* second) {
            return Intersect_CircleWithArc(a.centre, a.radius, b.centre, b.radius, b.start, b.sweep, first, second);
        },
        [=](std::vector<DPOINT2>& points, int ignored) {
            return Intersect_CircleWithArc(a.centre, a.radius, b.centre, b.radius, b.start, b.sweep, points, ignored);
        },
        TrailingInt::Ignored};
    forms.firstOutputIsOptional = false;
    return forms;
}

inline BothForms Meeting(const Arc& a, const Arc& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_ArcWithArc(a.centre, a.radius, a.start, a.sweep, b.centre, b.radius, b.start, b.sweep,
                                            first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_ArcWithArc(a.centre, a.radius, a.start, a.sweep, b.centre, b.radius, b.start, b.sweep,
                                            points, maxPoints);
            },
            TrailingInt::MaxPoints};
}

// Running them

namespace inner
{

/// A result and what stands in outputs or a vector after it, against what should stand there.
inline ::testing::AssertionResult SameResult(const std::string& how, int code, int expectedCode,
                                             const std::vector<DPOINT2>& points, const std::vector<DPOINT2>& expected,
                                             double tolerance)
{
    bool same = code == expectedCode && points.size() == expected.size();
    for (std::size_t i = 0; same && i < points.size(); ++i)
    {
        same = points[i] == expected[i] || Near(points[i], expected[i], tolerance);
    }
    if (same)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << how << ": result " << code << " instead of " << expectedCode << ", points "
                                         << ::testing::PrintToString(points) << " instead of "
                                         << ::testing::PrintToString(expected);
}

} // namespace inner

/// Runs the pointer form with both outputs: it tells so many points and writes these alone, bit for bit.
inline ::testing::AssertionResult WritesBitsOf(const BothForms& forms, int count, const DPOINT2 (&expected)[2])
{
    DPOINT2 first = Untouched();
    DPOINT2 second = Untouched();
    const int code = forms.pointerForm(&first, &second);
    if (code == count && SameBits(first, count > 0 ? expected[0] : Untouched()) &&
        SameBits(second, count > 1 ? expected[1] : Untouched()))
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "result " << code << " instead of " << count << ", points "
                                         << ::testing::PrintToString(first) << ::testing::PrintToString(second);
}

/// Runs the pointer form with each choice of outputs: written ones hold `points`, the others what stood there before.
inline ::testing::AssertionResult PointerFormGives(const BothForms& forms, int code, std::vector<DPOINT2> points,
                                                   double tolerance)
{
    if (points.size() == 1 && forms.tangentFillsBothOutputs)
    {
        points.push_back(points.front());
    }
    points.resize(forms.hasSecondOutput ? 2 : 1, Untouched());
    for (const bool givesFirst : {true, false})
    {
        for (const bool givesSecond : {true, false})
        {
            if (!givesFirst && !forms.firstOutputIsOptional)
            {
                continue;
            }
            std::vector<DPOINT2> outputs(points.size(), Untouched());
            std::vector<DPOINT2> expected = points;
            DPOINT2* const first = givesFirst ? &outputs[0] : nullptr;
            DPOINT2* const second = givesSecond && forms.hasSecondOutput ? &outputs[1] : nullptr;
            expected[0] = first != nullptr ? expected[0] : Untouched();
            if (forms.hasSecondOutput)
            {
                expected[1] = second != nullptr ? expected[1] : Untouched();
            }
            const int result = forms.pointerForm(first, second);
            const std::string how = std::string("pointer form, first ") + (first != nullptr ? "given" : "null") +
                                    ", second " + (second != nullptr ? "given" : "null");
            const auto same = inner::SameResult(how, result, code, outputs, expected, tolerance);
            if (!same)
            {
                return same;
            }
        }
    }
    return ::testing::AssertionSuccess();
}

/// Runs the vector form with each meaning of its last argument, on a vector that already holds a point.
inline ::testing::AssertionResult VectorFormGives(const BothForms& forms, int code, const std::vector<DPOINT2>& points,
                                                  double tolerance)
{
    for (const int last : {-1, 0, 1, 2, 3, -100})
    {
        if (last == 0 && forms.trailing == TrailingInt::WantPoints)
        {
            continue; // a quick test of its own, see QuickTestGives
        }
        std::size_t appended = points.size();
        if (last >= 0 && forms.trailing == TrailingInt::MaxPoints)
        {
            appended = std::min(appended, static_cast<std::size_t>(last));
        }
        std::vector<DPOINT2> expected = {Untouched()};
        expected.insert(expected.end(), points.begin(), points.begin() + static_cast<std::ptrdiff_t>(appended));
        std::vector<DPOINT2> found = {Untouched()};
        const int result = forms.vectorForm(found, last);
        const auto same =
            inner::SameResult("vector form with " + std::to_string(last), result, code, found, expected, tolerance);
        if (!same)
        {
            return same;
        }
    }
    return ::testing::AssertionSuccess();
}

/// Both forms give this result and these points. A tolerance of 0 demands equal coordinates.
inline ::testing::AssertionResult Gives(const BothForms& forms, int code, const std::vector<DPOINT2>& points,
                                        double tolerance = 1e-12)
{
    const auto same = PointerFormGives(forms, code, points, tolerance);
    return same ? VectorFormGives(forms, code, points, tolerance) : same;
}

/// The vector form without points wanted: a count alone, the vector stays as it is.
inline ::testing::AssertionResult QuickTestGives(const BothForms& forms, int code)
{
    std::vector<DPOINT2> found = {Untouched()};
    const int result = forms.vectorForm(found, 0);
    return inner::SameResult("quick test", result, code, found, {Untouched()}, 0.0);
}

// A second way to the same answers

inline double CrossOf(const DPOINT2& a, const DPOINT2& b)
{
    return a.x * b.y - a.y * b.x;
}

inline double DotOf(const DPOINT2& a, const DPOINT2& b)
{
    return a.x * b.x + a.y * b.y;
}

inline DPOINT2 Minus(const DPOINT2& a, const DPOINT2& b)
{
    return {a.x - b.x, a.y - b.y};
}

inline double DistanceOf(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

inline DPOINT2 OnCircleAt(const DPOINT2& centre, double radius, double radian)
{
    return {centre.x + radius * std::cos(radian), centre.y + radius * std::sin(radian)};
}

/// How far `point` lies along a stretch: 0 at its first end, 1 at its second.
inline double RatioOnStretch(const DPOINT2& point, const Stretch& stretch)
{
    const DPOINT2 along = Minus(stretch.second, stretch.first);
    return DotOf(Minus(point, stretch.first), along) / DotOf(along, along);
}

/// How far the direction to `point` lies along an arc: from 0 at its start to its extent at the end, below 2π.
inline double AngleOnArc(const DPOINT2& point, const Arc& arc)
{
    const double direction = std::atan2(point.y - arc.centre.y, point.x - arc.centre.x);
    const double along = std::fmod(arc.sweep > 0 ? direction - arc.start : arc.start - direction, TwoPi);
    return along < 0 ? along + TwoPi : along;
}

/// Common points of the unbounded line through `point` along `direction` and a circle, by the quadratic equation of
/// the parameter. Near a tangency nothing is certain: then the result of `clear` is false.
inline std::vector<DPOINT2> LineMeetsCircle(const DPOINT2& point, const DPOINT2& direction, const Circle& circle,
                                            bool& clear)
{
    const DPOINT2 offset = Minus(point, circle.centre);
    const double a = DotOf(direction, direction);
    const double halfB = DotOf(direction, offset);
    const double discriminant = halfB * halfB - a * (DotOf(offset, offset) - circle.radius * circle.radius);
    clear = clear && std::abs(discriminant) > 1e-4 * a;
    if (discriminant < 0)
    {
        return {};
    }
    std::vector<DPOINT2> points;
    for (const double root : {(-halfB + std::sqrt(discriminant)) / a, (-halfB - std::sqrt(discriminant)) / a})
    {
        points.push_back({point.x + root * direction.x, point.y + root * direction.y});
    }
    const bool inOrder = points[0].x > points[1].x || (points[0].x == points[1].x && points[0].y > points[1].y);
    if (!inOrder)
    {
        std::swap(points[0], points[1]);
    }
    return points;
}

/// Common points of two circles by the law of cosines, the one on the left of the way between the centres first.
inline std::vector<DPOINT2> CircleMeetsCircle(const Circle& a, const Circle& b, bool& clear)
{
    const double distance = DistanceOf(a.centre, b.centre);
    const double cosine = (a.radius * a.radius + distance * distance - b.radius * b.radius) / (2 * a.radius * distance);
    clear = clear && std::abs(std::abs(cosine) - 1) > 1e-4 && distance > 1e-3;
    if (std::abs(cosine) > 1)
    {
        return {};
    }
    const double direction = std::atan2(b.centre.y - a.centre.y, b.centre.x - a.centre.x);
    return {OnCircleAt(a.centre, a.radius, direction + std::acos(cosine)),
            OnCircleAt(a.centre, a.radius, direction - std::acos(cosine))};
}

/// The points that lie on a stretch, in their order; clear when none lies near an end.
inline std::vector<DPOINT2> KeepOnStretch(const std::vector<DPOINT2>& points, const Stretch& stretch, bool& clear)
{
    std::vector<DPOINT2> kept;
    for (const DPOINT2& point : points)
    {
        const double ratio = RatioOnStretch(point, stretch);
        clear = clear && std::abs(ratio) > 1e-6 && std::abs(ratio - 1) > 1e-6;
        if (ratio >= 0 && ratio <= 1)
        {
            kept.push_back(point);
        }
    }
    return kept;
}

/// The points whose direction lies in an arc, in their order; clear when none lies near an end.
inline std::vector<DPOINT2> KeepOnArc(const std::vector<DPOINT2>& points, const Arc& arc, bool& clear)
{
    std::vector<DPOINT2> kept;
    for (const DPOINT2& point : points)
    {
        const double along = AngleOnArc(point, arc);
        const double extent = std::abs(arc.sweep);
        clear = clear && along > 1e-6 && along < TwoPi - 1e-6 && std::abs(along - extent) > 1e-6;
        if (along <= extent)
        {
            kept.push_back(point);
        }
    }
    return kept;
}

// Random curves

inline Arc RandomArc(Random& random)
{
    const DPOINT2 centre = random.Point(2.0);
    const double radius = random.Number(0.5, 3.0);
    const double start = random.Radian();
    return {centre, radius, start, random.Number(-6.2, 6.2)};
}

inline Stretch RandomStretch(Random& random)
{
    const DPOINT2 first = random.Point(4.0);
    return {first, random.Point(4.0)};
}

inline Circle CircleOf(const Arc& arc)
{
    return {arc.centre, arc.radius};
}

// Random curves

/// A circle and a stretch near it that begins in a direction from the centre.
struct CircleAndStretch
{
    Circle circle;
    double radian;
    Stretch stretch;
};

/// Any stretch, with an end on the circle, along a tangent, each of them off by a hair at times, of hardly any length, or
/// with a coordinate that is no finite number.
inline CircleAndStretch RandomStretchByCircle(Random& random)
{
    const double size = random.Coin() ? 10.0 : random.Size(1e-8, 1e8);
    const DPOINT2 centre = random.Coin() ? At(0.0, 0.0) : random.Point(random.Size(1e-3, 1e9));
    const double radius = random.Integer(0, 9) == 0 ? random.Size(1e-12, 1e-7) : size * random.Number(0.1, 1.0);
    const auto ahead = [&](const DPOINT2& point, double radian, double distance) {
        return At(point.x + std::cos(radian) * distance, point.y + std::sin(radian) * distance);
    };
    const auto hair = [&] { return random.Coin() ? 0.0 : random.Size(1e-10, 1e-7) * (random.Coin() ? 1 : -1); };
    const double radian = random.Radian();
    DPOINT2 from = ahead(centre, radian, size * random.Number(0.0, 1.5));
    DPOINT2 to = ahead(centre, random.Radian(), size * random.Number(0.0, 1.5));
    switch (random.Integer(0, 5))
    {
    case 0: // an end on the circle, or a hair beside it
        from = ahead(centre, radian, radius + hair());
        break;
    case 1: // a tangent, or nearly one
        to = ahead(ahead(centre, radian, radius + hair()), radian + HalfPi, size * random.Number(-1.0, 1.0));
        from = ahead(ahead(centre, radian, radius + hair()), radian + HalfPi, size * random.Number(-1.0, 1.0));
        break;
    case 2: // of hardly any length
        to = ahead(from, random.Radian(), random.Coin() ? 0.0 : random.Size(1e-10, 1e-8));
        break;
    case 3:
        (random.Coin() ? from.x : to.y) = random.Coin() ? InvalidDouble : Infinity;
        break;
    default:
        break;
    }
    return {{centre, radius}, radian, {from, to}};
}

} // namespace math::test
