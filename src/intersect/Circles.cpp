#include "math/Intersect.h"

#include "intersect/Beeline.h"
#include "intersect/KernelRecords.h"
#include "intersect/PointOutputs.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math
{

using detail::AppendAll;
using detail::AppendAtMost;
using detail::AreEqual;
using detail::CircleAbout;
using detail::CurvesCoincide;
using detail::IsZero;
using detail::KeepAndWrite;
using detail::LineOfBeeline;
using detail::PointOf;
using detail::TwoPoints;
using detail::Write;
using detail::WriteBoth;

namespace
{

TwoPoints PointsOf(const IntAna2d_AnaIntersection& meeting)
{
    TwoPoints found;
    if (!meeting.IsDone())
    {
        return found;
    }
    found.count = meeting.PointCount();
    if (found.count > 0)
    {
        found.first = PointOf(meeting, 1);
    }
    if (found.count > 1)
    {
        found.second = PointOf(meeting, 2);
    }
    return found;
}

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
    try
    {
        TwoPoints found = PointsOf(IntAna2d_AnaIntersection(LineOfBeeline(point, angle), CircleAbout(centre, radius)));
        if (found.count == 1)
        {
            found.second = found.first;
        }
        if (found.count > 0)
        {
            WriteBoth(found, first, second);
        }
        return found.count;
    }
    catch (...)
    {
        return 0;
    }
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
    const double angle = D2GetNormalAngle(secondEnd.x - firstEnd.x, secondEnd.y - firstEnd.y);
    TwoPoints onCircle;
    onCircle.count = Intersect_BeelineWithCircle(firstEnd, angle, centre, radius, &onCircle.first, &onCircle.second);
    return KeepAndWrite(onCircle, first, second, [&](const DPOINT2& candidate) {
        return IsPointInLine(candidate, firstEnd, secondEnd, DoubleTolerance);
    });
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
    try
    {
        const IntAna2d_AnaIntersection meeting(CircleAbout(firstCentre, firstRadius),
                                               CircleAbout(secondCentre, secondRadius));
        const TwoPoints found = PointsOf(meeting);
        if (found.count == 0)
        {
            return meeting.IsDone() && meeting.IsIdentical() ? CurvesCoincide : 0;
        }
        // Unlike a tangent line, circles that touch leave the second output alone.
        Write(found.first, first);
        if (found.count == 2)
        {
            Write(found.second, second);
        }
        return found.count;
    }
    catch (...)
    {
        return 0;
    }
}

int Intersect_CircleWithCircle(const DPOINT2& firstCentre, double firstRadius, const DPOINT2& secondCentre,
                               double secondRadius, std::vector<DPOINT2>& points, int wantPoints)
{
    if (wantPoints == 0)
    {
        return CountCirclesQuickly(D2GetDistance(firstCentre, secondCentre), firstRadius, secondRadius);
    }
    return AppendAll(points, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_CircleWithCircle(firstCentre, firstRadius, secondCentre, secondRadius, first, second);
    });
}

} // namespace math
