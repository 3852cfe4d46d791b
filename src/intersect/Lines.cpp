#include "math/Intersect.h"

#include "intersect/Beeline.h"
#include "intersect/KernelRecords.h"
#include "intersect/PointOutputs.h"
#include "primitives/Tolerance.h"

#include <algorithm>

namespace math
{

using detail::AppendOne;
using detail::AreEqual;
using detail::CoincideByCoordinates;
using detail::CurvesCoincide;
using detail::LineOfBeeline;
using detail::LineThrough;
using detail::NoPoint;
using detail::PointOf;
using detail::Write;

namespace
{

/// Two unbounded lines. The point is set on a result of 1 only.
int MeetLines(const gp_Lin2d& a, const gp_Lin2d& b, DPOINT2& point)
{
    const IntAna2d_AnaIntersection meeting(a, b);
    if (!meeting.IsDone())
    {
        return 0;
    }
    if (meeting.PointCount() == 0)
    {
        return meeting.IsIdentical() ? CurvesCoincide : 0;
    }
    point = PointOf(meeting, 1);
    return 1;
}

/// A bounded stretch between two ends.
struct Stretch
{
    DPOINT2 first;
    DPOINT2 second;

    double Least(double DPOINT2::*axis) const
    {
        return std::min(first.*axis, second.*axis);
    }

    double Greatest(double DPOINT2::*axis) const
    {
        return std::max(first.*axis, second.*axis);
    }

    bool Holds(const DPOINT2& point) const
    {
        return IsPointInLine(point, first, second, DoubleTolerance);
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

int MeetStretches(const Stretch& a, const Stretch& b, DPOINT2& point)
{
    const int code = Intersect({a.first.x, a.first.y, a.second.x, a.second.y},
                               {b.first.x, b.first.y, b.second.x, b.second.y}, &point);
    if (code == CurvesCoincide)
    {
        return MeetOnOneLine(a, b, point);
    }
    return code == 1 && a.Holds(point) && b.Holds(point) ? 1 : 0;
}

bool BoxesAreApart(const Stretch& a, const Stretch& b, double DPOINT2::*axis)
{
    return std::max(a.Least(axis), b.Least(axis)) > std::min(a.Greatest(axis), b.Greatest(axis));
}

/// Tells whether both ends of `tested` lie strictly on one side of the line through `base`.
bool LiesOnOneSide(const Stretch& tested, const Stretch& base)
{
    const DPOINT2 along(base.second.x - base.first.x, base.second.y - base.first.y);
    const auto side = [&](const DPOINT2& end) {
        return along.x * (end.y - base.first.y) - along.y * (end.x - base.first.x);
    };
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
    try
    {
        DPOINT2 meeting;
        const int code =
            MeetLines(LineThrough({a.x1, a.y1}, {a.x2, a.y2}), LineThrough({b.x1, b.y1}, {b.x2, b.y2}), meeting);
        if (code == 1)
        {
            Write(meeting, point);
        }
        return code;
    }
    catch (...)
    {
        return 0;
    }
}

int Intersect_BeelineWithBeeline(const DPOINT2& p, double angleOfP, const DPOINT2& q, double angleOfQ, DPOINT2* point)
{
    try
    {
        DPOINT2 meeting;
        const int code = MeetLines(LineOfBeeline(p, angleOfP), LineOfBeeline(q, angleOfQ), meeting);
        if (code == 1)
        {
            Write(meeting, point);
        }
        return code;
    }
    catch (...)
    {
        return 0;
    }
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
    try
    {
        DPOINT2 meeting;
        const int code = MeetLines(LineOfBeeline(p, angleOfP), LineThrough(firstEnd, secondEnd), meeting);
        if (code != 1)
        {
            return code;
        }
        if (!IsPointInLine(meeting, firstEnd, secondEnd, DoubleTolerance))
        {
            return 0;
        }
        Write(meeting, point);
        return 1;
    }
    catch (...)
    {
        return 0;
    }
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
