#include "math/Intersect.h"

#include "intersect/PointOutputs.h"
#include "primitives/Beeline.h"
#include "primitives/Meetings.h"
#include "primitives/PlaneVectors.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"
#include "primitives/Verdict.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace math
{

using detail::AppendOne;
using detail::AreEqual;
using detail::CoincideByCoordinates;
using detail::Cross;
using detail::CurvesCoincide;
using detail::Difference;
using detail::MakeLineOfBeeline;
using detail::NoPoint;
using detail::Reach;
using detail::StraightLine;
using detail::Verdict;
using detail::Write;

namespace
{

/// Two unbounded lines. The point is set on a result of 1 only.
int MeetLines(const StraightLine& a, const StraightLine& b, DPOINT2& point)
{
    const detail::LineMeeting meeting = detail::MeetLines(detail::EquationOf(a), detail::EquationOf(b));
    if (meeting.isParallel)
    {
        return meeting.isIdentical ? CurvesCoincide : 0;
    }
    point = meeting.point;
    return 1;
}

/// A bounded stretch between two ends.
struct Stretch
{
    const DPOINT2& first;
    const DPOINT2& second;

    DPOINT2 Along() const
    {
        return Difference(second, first);
    }

    double Least(double DPOINT2::*axis) const
    {
        return std::min(first.*axis, second.*axis);
    }

    double Greatest(double DPOINT2::*axis) const
    {
        return std::max(first.*axis, second.*axis);
    }
};

/// Two stretches of one straight line, compared along one axis.
int MeetOnOneLine(const Stretch& a, const Stretch& b, DPOINT2& point)
{
    double DPOINT2::*const axis = AreEqual(a.first.x, a.second.x) ? &DPOINT2::y : &DPOINT2::x;
    const bool touch = AreEqual(a.Least(axis), b.Greatest(axis)) || AreEqual(a.Greatest(axis), b.Least(axis));
    if (touch)
    {
        const bool inFirstEnd = CoincideByCoordinates(a.first, b.first) || CoincideByCoordinates(a.first, b.second);
        point = inFirstEnd ? a.first : a.second;
        return 1;
    }
    const bool apart = a.Least(axis) > b.Greatest(axis) || b.Least(axis) > a.Greatest(axis);
    return apart ? 0 : CurvesCoincide;
}

/// A first look at where the lines of two stretches cross: inside both stretches or beyond an end of one of them, by far
/// more than tolerance and rounding. Nothing is sure of lines nearly parallel, of lengths whose squares leave the range
/// of numbers, far from the origin, and of NaN.
Verdict LookAtCrossing(const Stretch& a, const Stretch& b)
{
    const DPOINT2 alongA = a.Along();
    const DPOINT2 alongB = b.Along();
    const double lengthOfA = Reach(alongA);
    const double lengthOfB = Reach(alongB);
    const double cross = Cross(alongA, alongB);
    const double size = std::abs(cross);
    const auto isModerate = [](double length) { return 1e-100 < length && length < 1e100; };
    if (!(isModerate(lengthOfA) && isModerate(lengthOfB) && size > 1e-6 * lengthOfA * lengthOfB))
    {
        return Verdict::Unsure;
    }
    // The place of the crossing on each stretch, counted from its middle, in units in which its ends are at ±size.
    const DPOINT2 between = Difference(b.first, a.first);
    const double placeOnA = std::abs(2.0 * Cross(between, alongB) - cross);
    const double placeOnB = std::abs(2.0 * Cross(between, alongA) - cross);
    const double margin = 2e-8 + 2e-12 * (lengthOfA + lengthOfB + Reach(between));
    // One comparison for both stretches: which of them is missed cannot be foretold.
    if (std::max(placeOnA - margin * lengthOfB, placeOnB - margin * lengthOfA) > size)
    {
        return Verdict::Outside;
    }
    // Inside counts up to a fifth of the tolerance beyond the ends, where the error of the point is far below: that grows
    // with the coordinates and as the lines become parallel.
    const double beyondEnds = std::max((placeOnA - size) * lengthOfA, (placeOnB - size) * lengthOfB);
    const bool isInside = beyondEnds < 0.4 * DoubleTolerance * size;
    const double reach = Reach(a.first) + Reach(b.first) + lengthOfA + lengthOfB;
    const bool isPointSure = reach * lengthOfA * lengthOfB < 1e4 * size;
    return isInside && isPointSure ? Verdict::Inside : Verdict::Unsure;
}

/// The full steps, out of line: what they need of the stack is not to burden the first look.
[[gnu::noinline]] int MeetByNormalForm(const Stretch& a, const Stretch& b, Verdict verdict, DPOINT2& point)
{
    StraightLine lineOfA{};
    StraightLine lineOfB{};
    if (!detail::MakeLineThrough(a.first, a.second, lineOfA) || !detail::MakeLineThrough(b.first, b.second, lineOfB))
    {
        return 0;
    }
    const int code = MeetLines(lineOfA, lineOfB, point);
    if (code == CurvesCoincide)
    {
        return MeetOnOneLine(a, b, point);
    }
    const bool isOnBoth =
        code == 1 && (verdict == Verdict::Inside || (detail::IsOnStretch(point, lineOfA, a.second, DoubleTolerance) &&
                                                     detail::IsOnStretch(point, lineOfB, b.second, DoubleTolerance)));
    return isOnBoth ? 1 : 0;
}

int MeetStretches(const Stretch& a, const Stretch& b, DPOINT2& point)
{
    // Most pairs miss, and need no normal form for that.
    const Verdict verdict = LookAtCrossing(a, b);
    return verdict == Verdict::Outside ? 0 : MeetByNormalForm(a, b, verdict, point);
}

bool BoxesAreApart(const Stretch& a, const Stretch& b, double DPOINT2::*axis)
{
    return std::max(a.Least(axis), b.Least(axis)) > std::min(a.Greatest(axis), b.Greatest(axis));
}

/// Tells whether both ends of `tested` lie strictly on one side of the line through `base`.
bool LiesOnOneSide(const Stretch& tested, const Stretch& base)
{
    const DPOINT2 along = base.Along();
    const auto side = [&](const DPOINT2& end) { return Cross(along, Difference(end, base.first)); };
    return side(tested.second) * -side(tested.first) < 0.0;
}

/// Exact and without tolerance, unlike the full test: an overlap along a length counts as 1, a stretch of no length
/// as any other.
int CountQuickly(const Stretch& a, const Stretch& b)
{
    if (BoxesAreApart(a, b, &DPOINT2::x) || BoxesAreApart(a, b, &DPOINT2::y))
    {
        return 0;
    }
    return LiesOnOneSide(a, b) || LiesOnOneSide(b, a) ? 0 : 1;
}

} // namespace

int Intersect(const LineD2D& a, const LineD2D& b, DPOINT2* point)
{
    StraightLine lineOfA{};
    StraightLine lineOfB{};
    if (!detail::MakeLineThrough({a.x1, a.y1}, {a.x2, a.y2}, lineOfA) ||
        !detail::MakeLineThrough({b.x1, b.y1}, {b.x2, b.y2}, lineOfB))
    {
        return 0;
    }
    DPOINT2 meeting;
    const int code = MeetLines(lineOfA, lineOfB, meeting);
    if (code == 1)
    {
        Write(meeting, point);
    }
    return code;
}

int Intersect_BeelineWithBeeline(const DPOINT2& p, double angleOfP, const DPOINT2& q, double angleOfQ, DPOINT2* point)
{
    StraightLine lineOfP{};
    StraightLine lineOfQ{};
    if (!MakeLineOfBeeline(p, angleOfP, lineOfP) || !MakeLineOfBeeline(q, angleOfQ, lineOfQ))
    {
        return 0;
    }
    DPOINT2 meeting;
    const int code = MeetLines(lineOfP, lineOfQ, meeting);
    if (code == 1)
    {
        Write(meeting, point);
    }
    return code;
}

int Intersect_BeelineWithBeeline(const DPOINT2& p, double angleOfP, const DPOINT2& q, double angleOfQ,
                                 std::vector<DPOINT2>& points, int /*ignored*/)
{
    return AppendOne(points,
                     [&](DPOINT2* point) { return Intersect_BeelineWithBeeline(p, angleOfP, q, angleOfQ, point); });
}

int Intersect_BeelineWithLine(const DPOINT2& p, double angleOfP, const DPOINT2& firstEnd, const DPOINT2& secondEnd,
                              DPOINT2* point)
{
    StraightLine beeline{};
    StraightLine line{};
    if (!MakeLineOfBeeline(p, angleOfP, beeline) || !detail::MakeLineThrough(firstEnd, secondEnd, line))
    {
        return 0;
    }
    DPOINT2 meeting;
    const int code = MeetLines(beeline, line, meeting);
    if (code != 1)
    {
        return code;
    }
    if (!detail::IsOnStretch(meeting, line, secondEnd, DoubleTolerance))
    {
        return 0;
    }
    Write(meeting, point);
    return 1;
}

int Intersect_BeelineWithLine(const DPOINT2& p, double angleOfP, const DPOINT2& firstEnd, const DPOINT2& secondEnd,
                              std::vector<DPOINT2>& points, int /*ignored*/)
{
    return AppendOne(
        points, [&](DPOINT2* point) { return Intersect_BeelineWithLine(p, angleOfP, firstEnd, secondEnd, point); });
}

int Intersect_LineWithLine(const DPOINT2& firstEndOfA, const DPOINT2& secondEndOfA, const DPOINT2& firstEndOfB,
                           const DPOINT2& secondEndOfB, DPOINT2* point)
{
    DPOINT2 meeting = NoPoint();
    const int code = MeetStretches({firstEndOfA, secondEndOfA}, {firstEndOfB, secondEndOfB}, meeting);
    if (code == 1)
    {
        Write(meeting, point);
    }
    return code;
}

int Intersect_LineWithLine(const DPOINT2& firstEndOfA, const DPOINT2& secondEndOfA, const DPOINT2& firstEndOfB,
                           const DPOINT2& secondEndOfB, std::vector<DPOINT2>& points, int wantPoints)
{
    if (wantPoints == 0)
    {
        return CountQuickly({firstEndOfA, secondEndOfA}, {firstEndOfB, secondEndOfB});
    }
    return AppendOne(points, [&](DPOINT2* point) {
        return Intersect_LineWithLine(firstEndOfA, secondEndOfA, firstEndOfB, secondEndOfB, point);
    });
}

} // namespace math
