#pragma once

#include "support/Curves.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <string>
#include <vector>

// What the tests of ellipses share: ellipses and elliptical arcs as records, the members with four outputs run in every
// way in which a caller can run them, and common points found by a second method.

namespace math::test
{

/// Those points that have the given indices.
inline std::vector<DPOINT2> Pick(const std::vector<DPOINT2>& points, const std::vector<std::size_t>& indices)
{
    std::vector<DPOINT2> picked;
    for (const std::size_t index : indices)
    {
        picked.push_back(points[index]);
    }
    return picked;
}

struct Ellipse
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
};

struct EllipseArc
{
    Ellipse whole;
    double start;
    double sweep;
};

inline DPOINT2 NoPoint()
{
    return {InvalidDouble, InvalidDouble};
}

inline Ellipse AsEllipse(const Circle& circle)
{
    return {circle.centre, circle.radius, circle.radius, 0.0};
}

// Points on ellipses, from their equation in long double

/// A point given in the frame of an ellipse.
inline DPOINT2 OutOfFrame(const Ellipse& ellipse, long double u, long double v)
{
    const long double cosine = std::cos(static_cast<long double>(ellipse.rotation));
    const long double sine = std::sin(static_cast<long double>(ellipse.rotation));
    return {static_cast<double>(ellipse.centre.x + cosine * u - sine * v),
            static_cast<double>(ellipse.centre.y + sine * u + cosine * v)};
}

inline DPOINT2 AtEccentric(const Ellipse& ellipse, double parameter)
{
    return OutOfFrame(ellipse, ellipse.a * std::cos(static_cast<long double>(parameter)),
                      ellipse.b * std::sin(static_cast<long double>(parameter)));
}

/// The point in a direction from the centre, counted from the ellipse's own x axis.
inline DPOINT2 AtPolar(const Ellipse& ellipse, double radian)
{
    const long double cosine = std::cos(static_cast<long double>(radian));
    const long double sine = std::sin(static_cast<long double>(radian));
    const long double distance = 1 / std::hypot(cosine / ellipse.a, sine / ellipse.b);
    return OutOfFrame(ellipse, distance * cosine, distance * sine);
}

/// The left side of the equation (u/a)² + (v/b)² - 1 = 0 and half its gradient in the frame.
struct Residual
{
    long double value;
    long double gradientU;
    long double gradientV;
};

inline Residual ResidualOf(const Ellipse& ellipse, long double x, long double y)
{
    const long double cosine = std::cos(static_cast<long double>(ellipse.rotation));
    const long double sine = std::sin(static_cast<long double>(ellipse.rotation));
    const long double dx = x - ellipse.centre.x;
    const long double dy = y - ellipse.centre.y;
    const long double u = (dx * cosine + dy * sine) / ellipse.a;
    const long double v = (dy * cosine - dx * sine) / ellipse.b;
    return {u * u + v * v - 1, u / ellipse.a, v / ellipse.b};
}

/// The distance from a point near an ellipse to it, to first order.
inline double DistanceFromEllipse(const Ellipse& ellipse, const DPOINT2& point)
{
    const Residual residual = ResidualOf(ellipse, point.x, point.y);
    return static_cast<double>(std::abs(residual.value) / (2 * std::hypot(residual.gradientU, residual.gradientV)));
}

/// The direction of the tangent at a point of an ellipse, not folded.
inline double TangentAt(const Ellipse& ellipse, const DPOINT2& point)
{
    const Residual residual = ResidualOf(ellipse, point.x, point.y);
    return ellipse.rotation + static_cast<double>(std::atan2(residual.gradientU, -residual.gradientV));
}

/// How far a point lies along an elliptical arc, as an angle at the centre in [0, 2π).
inline double AngleOnArc(const DPOINT2& point, const EllipseArc& arc)
{
    const double direction = std::atan2(point.y - arc.whole.centre.y, point.x - arc.whole.centre.x);
    const double fromStart = direction - arc.whole.rotation - arc.start;
    const double along = std::fmod(arc.sweep > 0 ? fromStart : -fromStart, TwoPi);
    return along < 0 ? along + TwoPi : along;
}

/// The points whose direction lies in an elliptical arc, in their order; clear when none lies near an end.
inline std::vector<DPOINT2> KeepOnArc(const std::vector<DPOINT2>& points, const EllipseArc& arc, bool& clear)
{
    std::vector<DPOINT2> kept;
    for (const DPOINT2& point : points)
    {
        const double along = AngleOnArc(point, arc);
        const double extent = std::abs(arc.sweep);
        clear = clear && along > 1e-5 && along < TwoPi - 1e-5 && std::abs(along - extent) > 1e-5;
        if (along <= extent)
        {
            kept.push_back(point);
        }
    }
    return kept;
}

// A second way to common points

/// Zeros of a function of period 2π by sampling and halving; clear when no sample lies near zero where the function
/// turns.
inline std::vector<long double> ZerosOfTurn(const std::function<long double(long double)>& function, bool& clear)
{
    constexpr int samples = 720;
    constexpr long double turn = 6.283185307179586476925L;
    std::array<long double, samples + 1> values{};
    long double greatest = 0;
    for (std::size_t i = 0; i <= samples; ++i)
    {
        values[i] = function(turn * static_cast<long double>(i) / samples);
        greatest = std::max(greatest, std::abs(values[i]));
    }
    std::vector<long double> zeros;
    for (std::size_t i = 0; i < samples; ++i)
    {
        const long double before = values[(i + samples - 1) % samples];
        const bool turns = std::abs(values[i]) <= std::abs(before) && std::abs(values[i]) <= std::abs(values[i + 1]) &&
                           before * values[i] > 0 && values[i] * values[i + 1] > 0;
        clear = clear && !(turns && std::abs(values[i]) < 2e-3L * greatest);
        if ((values[i] > 0) == (values[i + 1] > 0))
        {
            continue;
        }
        long double low = turn * static_cast<long double>(i) / samples;
        long double high = turn * static_cast<long double>(i + 1) / samples;
        for (int step = 0; step < 70; ++step)
        {
            const long double middle = (low + high) / 2;
            ((function(middle) > 0) == (values[i] > 0) ? low : high) = middle;
        }
        zeros.push_back(low);
    }
    return zeros;
}

/// The common points of two ellipses, by the eccentric parameter of the first.
inline std::vector<DPOINT2> EllipseMeetsEllipse(const Ellipse& first, const Ellipse& second, bool& clear)
{
    const long double cosine = std::cos(static_cast<long double>(first.rotation));
    const long double sine = std::sin(static_cast<long double>(first.rotation));
    const auto residual = [&](long double parameter) {
        const long double u = first.a * std::cos(parameter);
        const long double v = first.b * std::sin(parameter);
        return ResidualOf(second, first.centre.x + cosine * u - sine * v, first.centre.y + sine * u + cosine * v).value;
    };
    std::vector<DPOINT2> points;
    for (const long double zero : ZerosOfTurn(residual, clear))
    {
        points.push_back(OutOfFrame(first, first.a * std::cos(zero), first.b * std::sin(zero)));
    }
    return points;
}

/// Which quarter of an ellipse, between its extreme points, a point of it lies on.
inline int QuarterAt(const Ellipse& ellipse, const DPOINT2& point)
{
    const double tangent = TangentAt(ellipse, point);
    return (std::cos(tangent) > 0 ? 1 : 0) + (std::sin(tangent) > 0 ? 2 : 0);
}

/// Whether two crossings lie on one pair of quarter arcs. Such a pair tells all of them only if it can tell them by the
/// heights and slopes at its ends.
inline bool SharesQuarterArcs(const Ellipse& first, const Ellipse& second, const std::vector<DPOINT2>& crossings)
{
    for (std::size_t i = 0; i < crossings.size(); ++i)
    {
        for (std::size_t j = 0; j < i; ++j)
        {
            if (QuarterAt(first, crossings[i]) == QuarterAt(first, crossings[j]) &&
                QuarterAt(second, crossings[i]) == QuarterAt(second, crossings[j]))
            {
                return true;
            }
        }
    }
    return false;
}

/// The common points of a beeline and an ellipse, by the parameter along the beeline, in no set order.
inline std::vector<DPOINT2> BeelineMeetsEllipse(const Beeline& beeline, const Ellipse& ellipse, bool& clear)
{
    const long double turned = static_cast<long double>(beeline.angle) - ellipse.rotation;
    const long double cosine = std::cos(static_cast<long double>(ellipse.rotation));
    const long double sine = std::sin(static_cast<long double>(ellipse.rotation));
    const long double dx = static_cast<long double>(beeline.point.x) - ellipse.centre.x;
    const long double dy = static_cast<long double>(beeline.point.y) - ellipse.centre.y;
    const long double u = (dx * cosine + dy * sine) / ellipse.a;
    const long double v = (dy * cosine - dx * sine) / ellipse.b;
    const long double du = std::cos(turned) / ellipse.a;
    const long double dv = std::sin(turned) / ellipse.b;
    const long double square = du * du + dv * dv;
    const long double half = u * du + v * dv;
    const long double discriminant = half * half - square * (u * u + v * v - 1);
    clear = clear && std::abs(discriminant) > 1e-4L * square;
    if (discriminant < 0)
    {
        return {};
    }
    std::vector<DPOINT2> points;
    for (const long double sign : {1.0L, -1.0L})
    {
        const long double along = (-half + sign * std::sqrt(discriminant)) / square;
        points.push_back(
            {static_cast<double>(beeline.point.x + along * std::cos(static_cast<long double>(beeline.angle))),
             static_cast<double>(beeline.point.y + along * std::sin(static_cast<long double>(beeline.angle)))});
    }
    return points;
}

/// The same points in whatever order, each within a tolerance.
inline ::testing::AssertionResult SameSet(const std::vector<DPOINT2>& found, std::vector<DPOINT2> expected,
                                          double tolerance)
{
    const std::vector<DPOINT2> all = expected;
    bool same = found.size() == expected.size();
    for (std::size_t i = 0; same && i < found.size(); ++i)
    {
        const auto match = std::find_if(expected.begin(), expected.end(), [&](const DPOINT2& candidate) {
            return found[i] == candidate || DistanceOf(found[i], candidate) <= tolerance;
        });
        same = match != expected.end();
        if (same)
        {
            expected.erase(match);
        }
    }
    if (same)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << ::testing::PrintToString(found) << " instead of "
                                         << ::testing::PrintToString(all);
}

// Members with two outputs

inline BothForms Meeting(const Beeline& a, const EllipseArc& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_BeelineWithEllipseArc(a.point, a.angle, b.whole.centre, b.whole.a, b.whole.b,
                                                       b.whole.rotation, b.start, b.sweep, first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_BeelineWithEllipseArc(a.point, a.angle, b.whole.centre, b.whole.a, b.whole.b,
                                                       b.whole.rotation, b.start, b.sweep, points, maxPoints);
            },
            TrailingInt::MaxPoints};
}

inline BothForms Meeting(const Stretch& a, const Ellipse& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_LineWithEllipse(a.first, a.second, b.centre, b.a, b.b, b.rotation, first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_LineWithEllipse(a.first, a.second, b.centre, b.a, b.b, b.rotation, points, maxPoints);
            },
            TrailingInt::MaxPoints};
}

inline BothForms Meeting(const Stretch& a, const EllipseArc& b)
{
    return {[=](DPOINT2* first, DPOINT2* second) {
                return Intersect_LineWithEllipseArc(a.first, a.second, b.whole.centre, b.whole.a, b.whole.b,
                                                    b.whole.rotation, b.start, b.sweep, first, second);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_LineWithEllipseArc(a.first, a.second, b.whole.centre, b.whole.a, b.whole.b,
                                                    b.whole.rotation, b.start, b.sweep, points, maxPoints);
            },
            TrailingInt::MaxPoints};
}

// Members with four outputs

struct FourForms
{
    std::function<int(DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)> pointerForm;
    std::function<int(std::vector<DPOINT2>&, int)> vectorForm;
};

inline FourForms Meeting(const Ellipse& a, const Ellipse& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_EllipseWithEllipse(a.centre, a.a, a.b, a.rotation, b.centre, b.a, b.b, b.rotation, p1,
                                                    p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_EllipseWithEllipse(a.centre, a.a, a.b, a.rotation, b.centre, b.a, b.b, b.rotation,
                                                    points, maxPoints);
            }};
}

inline FourForms Meeting(const Ellipse& a, const EllipseArc& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_EllipseWithEllipseArc(a.centre, a.a, a.b, a.rotation, b.whole.centre, b.whole.a,
                                                       b.whole.b, b.whole.rotation, b.start, b.sweep, p1, p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_EllipseWithEllipseArc(a.centre, a.a, a.b, a.rotation, b.whole.centre, b.whole.a,
                                                       b.whole.b, b.whole.rotation, b.start, b.sweep, points,
                                                       maxPoints);
            }};
}

inline FourForms Meeting(const EllipseArc& a, const EllipseArc& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_EllipseArcWithEllipseArc(a.whole.centre, a.whole.a, a.whole.b, a.whole.rotation,
                                                          a.start, a.sweep, b.whole.centre, b.whole.a, b.whole.b,
                                                          b.whole.rotation, b.start, b.sweep, p1, p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_EllipseArcWithEllipseArc(a.whole.centre, a.whole.a, a.whole.b, a.whole.rotation,
                                                          a.start, a.sweep, b.whole.centre, b.whole.a, b.whole.b,
                                                          b.whole.rotation, b.start, b.sweep, points, maxPoints);
            }};
}

inline FourForms Meeting(const Circle& a, const Ellipse& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_CircleWithEllipse(a.centre, a.radius, b.centre, b.a, b.b, b.rotation, p1, p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_CircleWithEllipse(a.centre, a.radius, b.centre, b.a, b.b, b.rotation, points,
                                                   maxPoints);
            }};
}

inline FourForms Meeting(const Circle& a, const EllipseArc& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_CircleWithEllipseArc(a.centre, a.radius, b.whole.centre, b.whole.a, b.whole.b,
                                                      b.whole.rotation, b.start, b.sweep, p1, p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_CircleWithEllipseArc(a.centre, a.radius, b.whole.centre, b.whole.a, b.whole.b,
                                                      b.whole.rotation, b.start, b.sweep, points, maxPoints);
            }};
}

inline FourForms Meeting(const Arc& a, const Ellipse& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_ArcWithEllipse(a.centre, a.radius, a.start, a.sweep, b.centre, b.a, b.b, b.rotation,
                                                p1, p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_ArcWithEllipse(a.centre, a.radius, a.start, a.sweep, b.centre, b.a, b.b, b.rotation,
                                                points, maxPoints);
            }};
}

inline FourForms Meeting(const Arc& a, const EllipseArc& b)
{
    return {[=](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
                return Intersect_ArcWithEllipseArc(a.centre, a.radius, a.start, a.sweep, b.whole.centre, b.whole.a,
                                                   b.whole.b, b.whole.rotation, b.start, b.sweep, p1, p2, p3, p4);
            },
            [=](std::vector<DPOINT2>& points, int maxPoints) {
                return Intersect_ArcWithEllipseArc(a.centre, a.radius, a.start, a.sweep, b.whole.centre, b.whole.a,
                                                   b.whole.b, b.whole.rotation, b.start, b.sweep, points, maxPoints);
            }};
}

/// A result and all four outputs.
struct FourResult
{
    int code;
    std::vector<DPOINT2> outputs;

    /// The points among the outputs.
    std::vector<DPOINT2> Points() const
    {
        const auto count = std::clamp(code, 0, static_cast<int>(outputs.size()));
        return {outputs.begin(), outputs.begin() + count};
    }
};

inline FourResult OutputsOf(const FourForms& forms)
{
    FourResult result{0, std::vector<DPOINT2>(4, Untouched())};
    std::vector<DPOINT2>& outputs = result.outputs;
    result.code = forms.pointerForm(&outputs[0], &outputs[1], &outputs[2], &outputs[3]);
    return result;
}

/// Runs the pointer form with each choice of outputs: they hold `points`, then nothing up to `setOutputs`, the others
/// what stood there before.
inline ::testing::AssertionResult FourPointersGive(const FourForms& forms, int code, const std::vector<DPOINT2>& points,
                                                   double tolerance, std::size_t setOutputs)
{
    for (unsigned choice = 0; choice < 16; ++choice)
    {
        std::vector<DPOINT2> outputs(4, Untouched());
        std::vector<DPOINT2> expected(4, Untouched());
        std::array<DPOINT2*, 4> pointers{};
        for (std::size_t i = 0; i < outputs.size(); ++i)
        {
            if ((choice >> i & 1U) != 0)
            {
                pointers[i] = &outputs[i];
                expected[i] = i < points.size() ? points[i] : i < setOutputs ? NoPoint() : Untouched();
            }
        }
        const int result = forms.pointerForm(pointers[0], pointers[1], pointers[2], pointers[3]);
        const auto same = inner::SameResult("pointer form, outputs " + std::to_string(choice), result, code, outputs,
                                            expected, tolerance);
        if (!same)
        {
            return same;
        }
    }
    return ::testing::AssertionSuccess();
}

/// Runs the vector form with each limit, on a vector that holds points of its own: they are gone afterwards.
inline ::testing::AssertionResult FourVectorGives(const FourForms& forms, int code, const std::vector<DPOINT2>& points,
                                                  double tolerance)
{
    for (const int maxPoints : {-1, 0, 1, 2, 3, 4, 5, 100, -100})
    {
        const std::size_t limit = maxPoints >= 0 && maxPoints <= 3 ? static_cast<std::size_t>(maxPoints) : 4;
        const std::vector<DPOINT2> expected(
            points.begin(), points.begin() + static_cast<std::ptrdiff_t>(std::min(limit, points.size())));
        for (const std::size_t before : {0U, 1U, 6U})
        {
            std::vector<DPOINT2> found(before, Untouched());
            const int result = forms.vectorForm(found, maxPoints);
            const auto same = inner::SameResult("vector form with " + std::to_string(maxPoints), result, code, found,
                                                expected, tolerance);
            if (!same)
            {
                return same;
            }
        }
    }
    return ::testing::AssertionSuccess();
}

/// Both forms give this result and these points, and every output without one holds no point.
inline ::testing::AssertionResult GivesFour(const FourForms& forms, int code, const std::vector<DPOINT2>& points,
                                            double tolerance = 1e-9)
{
    const auto same = FourPointersGive(forms, code, points, tolerance, 4);
    return same ? FourVectorGives(forms, code, points, tolerance) : same;
}

/// The same where the outputs without a point stay as they were.
inline ::testing::AssertionResult GivesAndLeavesOthers(const FourForms& forms, int code,
                                                       const std::vector<DPOINT2>& points, double tolerance = 1e-12)
{
    const auto same = FourPointersGive(forms, code, points, tolerance, 0);
    return same ? FourVectorGives(forms, code, points, tolerance) : same;
}

/// All four outputs: exactly these points and nothing behind them.
inline ::testing::AssertionResult IsExactly(const FourResult& found, int code, std::vector<DPOINT2> points)
{
    points.resize(4, NoPoint());
    return inner::SameResult("outputs", found.code, code, found.outputs, points, 0);
}

// Random ellipses

/// Semi-axes of one size, in any order, the centre within `spread` sizes of the origin.
inline Ellipse RandomEllipse(Random& random, double size = 1.0, double spread = 1.0)
{
    const DPOINT2 centre = random.Point(spread * size);
    const double a = size * random.Number(0.4, 1.6);
    const double b = size * random.Number(0.4, 1.6);
    return {centre, a, b, random.Number(-7.0, 7.0)};
}

/// Of any size from 0.02 to 1e5, at times thin, turned by a multiple of an eighth turn, or far from the origin.
inline Ellipse RandomEllipseOfAnyShape(Random& random)
{
    Ellipse ellipse = RandomEllipse(random, random.Coin() ? 3.0 : random.Size(0.02, 1e5));
    switch (random.Integer(0, 5))
    {
    case 0: // from round to very thin
        ellipse.b = ellipse.a * random.Size(0.01, 1.0);
        break;
    case 1:
        ellipse.rotation = random.Integer(-8, 8) * QuarterPi;
        break;
    case 2:
        ellipse.centre = random.Point(random.Size(1.0, 1e6));
        break;
    default:
        break;
    }
    return ellipse;
}

/// A stretch near an ellipse: any, with an end on the curve, along a tangent, each of them off by a hair at times, or of
/// hardly any length.
inline Stretch RandomStretchBy(Random& random, const Ellipse& ellipse)
{
    const double size = std::max(ellipse.a, ellipse.b);
    const auto moved = [](const DPOINT2& point, double radian, double distance) {
        return At(point.x + std::cos(radian) * distance, point.y + std::sin(radian) * distance);
    };
    const auto hair = [&] { return random.Coin() ? 0.0 : random.Size(1e-10, 1e-4) * (random.Coin() ? 1 : -1); };
    const DPOINT2 on = AtEccentric(ellipse, random.Radian());
    DPOINT2 from = moved(ellipse.centre, random.Radian(), size * random.Number(0.0, 1.5));
    DPOINT2 to = moved(ellipse.centre, random.Radian(), size * random.Number(0.0, 1.5));
    switch (random.Integer(0, 4))
    {
    case 0:
        from = moved(on, random.Radian(), hair());
        break;
    case 1: {
        const double tangent = TangentAt(ellipse, on);
        const double aside = hair();
        from = moved(moved(on, tangent + HalfPi, aside), tangent, size * random.Number(-1.0, 1.0));
        to = moved(moved(on, tangent + HalfPi, aside), tangent, size * random.Number(-1.0, 1.0));
        break;
    }
    case 2:
        to = moved(from, random.Radian(), random.Coin() ? 0.0 : random.Size(1e-10, 1e-8));
        break;
    default:
        break;
    }
    return {from, to};
}

/// The ellipse with its greater semi-axis as `a`.
inline Ellipse LongAxisFirst(const Ellipse& ellipse)
{
    if (ellipse.a >= ellipse.b)
    {
        return ellipse;
    }
    return {ellipse.centre, ellipse.b, ellipse.a, ellipse.rotation + HalfPi};
}

} // namespace math::test
