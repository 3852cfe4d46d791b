#include "math/Intersect.h"

#include "intersect/BoundedLine.h"
#include "intersect/PointOutputs.h"
#include "primitives/Beeline.h"
#include "primitives/Distance.h"
#include "primitives/Meetings.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <vector>

namespace math
{

using detail::AppendAll;
using detail::AppendAtMost;
using detail::AreEqual;
using detail::CurvesCoincide;
using detail::IsZero;
using detail::KeepAndWrite;
using detail::TwoPoints;
using detail::Write;
using detail::WriteBoth;

namespace
{

/// Has a tolerance that the full form lacks.
int CountBeelineWithCircleQuickly(const DPOINT2& point, double angle, const DPOINT2& centre, double radius)
{
    const double distance = D2GetPointToBeelineDistance(centre, point, angle);
    if (AreEqual(distance, radius))
    {
        return 1;
    }
    return distance > radius ? 0 : 2;
}

/// Tells whether the analytic kernel finds the parameters of a crossing; without them it has no result. Beside a much
/// larger circle rounding can make half the chord so much longer than the second radius that no angle answers to it.
bool HasParameters(const detail::CircleMeeting& meeting, double secondRadius)
{
    if (!(meeting.halfChord > secondRadius))
    {
        return true;
    }
    try
    {
        detail::AngleBesideLeg(meeting.toChord - meeting.distance, meeting.halfChord, secondRadius);
        return true;
    }
    catch (...)
    {
        return false;
    }
}

/// Compares the distance with each radius by itself, not with their difference.
int CountCirclesQuickly(double distance, double firstRadius, double secondRadius)
{
    if (IsZero(distance) && AreEqual(firstRadius, secondRadius))
    {
        return CurvesCoincide;
    }
    if (AreEqual(distance, firstRadius) || AreEqual(distance, secondRadius) ||
        AreEqual(distance, firstRadius + secondRadius))
    {
        return 1;
    }
    if (distance > firstRadius + secondRadius || std::abs(firstRadius - secondRadius) > distance)
    {
        return 0;
    }
    return 2;
}

} // namespace

int Intersect_BeelineWithCircle(const DPOINT2& point, double angle, const DPOINT2& centre, double radius,
                                DPOINT2* first, DPOINT2* second)
{
    detail::StraightLine line{};
    // A radius of NaN is not negative.
    if (radius < 0.0 || !detail::MakeLineOfBeeline(point, angle, line))
    {
        return 0;
    }
    const detail::LineCircleMeeting meeting = detail::MeetLineWithCircle(detail::EquationOf(line), centre, radius);
    if (meeting.count > 0)
    {
        WriteBoth({meeting.count, meeting.points[0], meeting.points[meeting.count == 1 ? 0 : 1]}, first, second);
    }
    return meeting.count;
}

int Intersect_BeelineWithCircle(const DPOINT2& point, double angle, const DPOINT2& centre, double radius,
                                std::vector<DPOINT2>& points, int wantPoints)
{
    if (wantPoints == 0)
    {
        return CountBeelineWithCircleQuickly(point, angle, centre, radius);
    }
    return AppendAll(points, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_BeelineWithCircle(point, angle, centre, radius, first, second);
    });
}

int Intersect_LineWithCircle(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double radius,
                             DPOINT2* first, DPOINT2* second)
{
    if (detail::IsClearOfCircle(firstEnd, secondEnd, centre, radius))
    {
        return 0;
    }
    const detail::BoundedLine stretch(firstEnd, secondEnd);
    if (!stretch.HasLength())
    {
        return 0;
    }
    TwoPoints onCircle;
    onCircle.count =
        Intersect_BeelineWithCircle(firstEnd, stretch.Angle(), centre, radius, &onCircle.first, &onCircle.second);
    return KeepAndWrite(onCircle, first, second, [&](const DPOINT2& candidate) { return stretch.Holds(candidate); });
}

int Intersect_LineWithCircle(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double radius,
                             std::vector<DPOINT2>& points, int maxPoints)
{
    return AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_LineWithCircle(firstEnd, secondEnd, centre, radius, first, second);
    });
}

int Intersect_CircleWithCircle(const DPOINT2& firstCentre, double firstRadius, const DPOINT2& secondCentre,
                               double secondRadius, DPOINT2* first, DPOINT2* second)
{
    if (firstRadius < 0.0 || secondRadius < 0.0)
    {
        return 0;
    }
    const detail::CircleMeeting meeting = detail::MeetCircles(firstCentre, firstRadius, secondCentre, secondRadius);
    const int count = meeting.PointCount();
    if (count == 2 && !HasParameters(meeting, secondRadius))
    {
        return 0;
    }
    if (count == 0)
    {
        return meeting.placement == detail::CirclePlacement::Identical ? CurvesCoincide : 0;
    }
    // Unlike a tangent line, circles that touch leave the second output alone.
    Write(meeting.points[0], first);
    if (count == 2)
    {
        Write(meeting.points[1], second);
    }
    return count;
}

int Intersect_CircleWithCircle(const DPOINT2& firstCentre, double firstRadius, const DPOINT2& secondCentre,
                               double secondRadius, std::vector<DPOINT2>& points, int wantPoints)
{
    if (wantPoints == 0)
    {
        return CountCirclesQuickly(detail::Distance(firstCentre, secondCentre), firstRadius, secondRadius);
    }
    return AppendAll(points, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_CircleWithCircle(firstCentre, firstRadius, secondCentre, secondRadius, first, second);
    });
}

} // namespace math
