#include "math/Intersect.h"

#include "intersect/ArcCrossings.h"
#include "intersect/ArcPairs.h"
#include "intersect/FourPoints.h"
#include "intersect/QuarterArcs.h"
#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace math
{

using detail::AreEqual;
using detail::CurvesCoincide;
using detail::FourPoints;
using detail::Pi;
using detail::TwoPi;

namespace
{

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

    DPOINT2 StartPoint() const
    {
        return GetPointInEllipse(whole.centre, whole.a, whole.b, whole.rotation, start);
    }

    DPOINT2 EndPoint() const
    {
        return GetPointInEllipse(whole.centre, whole.a, whole.b, whole.rotation, detail::Fold(start + sweep, TwoPi));
    }

    bool Holds(const DPOINT2& point) const
    {
        return IsPointInEllipseArc(point, whole.centre, whole.a, whole.b, whole.rotation, start, sweep);
    }
};

bool IsSameCurve(const Ellipse& first, const Ellipse& second)
{
    if (!detail::CoincideByCoordinates(first.centre, second.centre))
    {
        return false;
    }
    // Half a turn leaves an ellipse as it is. Rotations are compared as given.
    const bool sameRotation = AreEqual(first.rotation, second.rotation) ||
                              AreEqual(first.rotation + Pi, second.rotation) ||
                              AreEqual(first.rotation, second.rotation + Pi);
    if (AreEqual(first.a, second.a) && AreEqual(first.b, second.b) && sameRotation)
    {
        return true;
    }
    return AreEqual(first.a, first.b) && AreEqual(second.a, second.b) && AreEqual(first.a, second.a);
}

/// A quick rejection that reads `a` as the greater semi-axis and `b` as the lesser one, exactly and without symmetry.
bool IsTooFarOrInside(const Ellipse& first, const Ellipse& second)
{
    const double distance = D2GetDistance(first.centre, second.centre);
    return distance > first.a + second.a || second.b > first.a + distance || first.b > distance + second.a;
}

/// The points of sixteen pairs of quarter arcs, each of which has two at most.
struct PointsOfPairs
{
    std::array<DPOINT2, 32> points;
    std::size_t count = 0;

    /// Adds a point unless it coincides with an earlier one.
    void Add(const DPOINT2& point)
    {
        const auto end = points.begin() + static_cast<std::ptrdiff_t>(count);
        const auto coincides = [&](const DPOINT2& earlier) { return detail::CoincideByCoordinates(earlier, point); };
        if (std::none_of(points.begin(), end, coincides))
        {
            points[count++] = point;
        }
    }
};

std::array<detail::EllipseQuarterArc, 4> ArcsOf(const detail::QuarteredEllipse& ellipse)
{
    return {ellipse.Arc(0), ellipse.Arc(1), ellipse.Arc(2), ellipse.Arc(3)};
}

PointsOfPairs MeetQuarterArcs(const Ellipse& first, const Ellipse& second)
{
    const detail::QuarteredEllipse quarteredFirst(first.centre, first.a, first.b, first.rotation);
    const detail::QuarteredEllipse quarteredSecond(second.centre, second.a, second.b, second.rotation);
    const auto arcsOfFirst = ArcsOf(quarteredFirst);
    const auto arcsOfSecond = ArcsOf(quarteredSecond);
    detail::ArcMeetings meetings;
    for (const detail::EllipseQuarterArc& arcOfFirst : arcsOfFirst)
    {
        for (const detail::EllipseQuarterArc& arcOfSecond : arcsOfSecond)
        {
            detail::IntersectQuarterArcs(arcOfFirst, arcOfSecond, meetings);
        }
    }
    PointsOfPairs shared;
    const auto& points = meetings.Points();
    for (std::size_t i = 0; i < meetings.Count(); ++i)
    {
        shared.Add(points[i]);
    }
    return shared;
}

/// The result of two ellipses and the first four of their points.
int MeetEllipses(const Ellipse& first, const Ellipse& second, FourPoints& firstFour)
{
    firstFour.fill(detail::NoPoint());
    if (IsSameCurve(first, second))
    {
        return CurvesCoincide;
    }
    if (IsTooFarOrInside(first, second))
    {
        return 0;
    }
    const PointsOfPairs shared = MeetQuarterArcs(first, second);
    std::copy_n(shared.points.begin(), std::min(shared.count, firstFour.size()), firstFour.begin());
    return static_cast<int>(shared.count);
}

/// Two arcs of one ellipse: they miss, share one end or both, or overlap along a length.
int MeetOnOneEllipse(const EllipseArc& first, const EllipseArc& second, FourPoints& points)
{
    const DPOINT2 start = first.StartPoint();
    const DPOINT2 end = first.EndPoint();
    const DPOINT2 otherStart = second.StartPoint();
    const DPOINT2 otherEnd = second.EndPoint();
    if (!first.Holds(otherStart) && !first.Holds(otherEnd) && !second.Holds(start) && !second.Holds(end))
    {
        return 0;
    }
    const bool meetAtStart = detail::CoincideByDistance(start, otherEnd);
    const bool meetAtEnd = detail::CoincideByDistance(end, otherStart);
    if (meetAtStart && meetAtEnd)
    {
        points[0] = start;
        points[1] = end;
        return 2;
    }
    if (meetAtStart && !second.Holds(end))
    {
        points[0] = start;
        return 1;
    }
    if (meetAtEnd && !second.Holds(start))
    {
        points[0] = end;
        return 1;
    }
    return CurvesCoincide;
}

/// The direction of a point counts by itself here, exactly, and a sweep below 0 holds no direction.
bool IsKeptByArc(const DPOINT2& point, const EllipseArc& arc, const DPOINT2& arcStart, const DPOINT2& arcEnd)
{
    const DPOINT2& centre = arc.whole.centre;
    const double direction = std::atan2(point.y - centre.y, point.x - centre.x);
    const double fromStart = detail::Fold(direction - arc.whole.rotation - arc.start, TwoPi);
    return (fromStart >= 0.0 && fromStart <= arc.sweep) || detail::CoincideByDistance(point, arcStart) ||
           detail::CoincideByDistance(point, arcEnd);
}

} // namespace

int Intersect_EllipseWithEllipse(const DPOINT2& firstCentre, double firstA, double firstB, double firstRotation,
                                 const DPOINT2& secondCentre, double secondA, double secondB, double secondRotation,
                                 DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth)
{
    FourPoints points;
    const int count = MeetEllipses({firstCentre, firstA, firstB, firstRotation},
                                   {secondCentre, secondA, secondB, secondRotation}, points);
    detail::WriteFour(points, count, {first, second, third, fourth});
    return count;
}

int Intersect_EllipseWithEllipse(const DPOINT2& firstCentre, double firstA, double firstB, double firstRotation,
                                 const DPOINT2& secondCentre, double secondA, double secondB, double secondRotation,
                                 std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_EllipseWithEllipse(firstCentre, firstA, firstB, firstRotation, secondCentre, secondA, secondB,
                                            secondRotation, p1, p2, p3, p4);
    });
}

int Intersect_EllipseWithEllipseArc(const DPOINT2& ellipseCentre, double ellipseA, double ellipseB,
                                    double ellipseRotation, const DPOINT2& arcCentre, double arcA, double arcB,
                                    double arcRotation, double start, double sweep, DPOINT2* first, DPOINT2* second,
                                    DPOINT2* third, DPOINT2* fourth)
{
    const EllipseArc arc{{arcCentre, arcA, arcB, arcRotation}, start, sweep};
    FourPoints points;
    const int found = MeetEllipses({ellipseCentre, ellipseA, ellipseB, ellipseRotation}, arc.whole, points);
    const DPOINT2 arcStart = arc.StartPoint();
    const DPOINT2 arcEnd = arc.EndPoint();
    const int kept = detail::KeepFirst(
        points, found, [&](const DPOINT2& candidate) { return IsKeptByArc(candidate, arc, arcStart, arcEnd); });
    detail::WriteFour(points, kept, {first, second, third, fourth});
    return kept;
}

int Intersect_EllipseWithEllipseArc(const DPOINT2& ellipseCentre, double ellipseA, double ellipseB,
                                    double ellipseRotation, const DPOINT2& arcCentre, double arcA, double arcB,
                                    double arcRotation, double start, double sweep, std::vector<DPOINT2>& points,
                                    int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_EllipseWithEllipseArc(ellipseCentre, ellipseA, ellipseB, ellipseRotation, arcCentre, arcA,
                                               arcB, arcRotation, start, sweep, p1, p2, p3, p4);
    });
}

int Intersect_EllipseArcWithEllipseArc(const DPOINT2& firstCentre, double firstA, double firstB, double firstRotation,
                                       double firstStart, double firstSweep, const DPOINT2& secondCentre,
                                       double secondA, double secondB, double secondRotation, double secondStart,
                                       double secondSweep, DPOINT2* first, DPOINT2* second, DPOINT2* third,
                                       DPOINT2* fourth)
{
    const EllipseArc firstArc{{firstCentre, firstA, firstB, firstRotation}, firstStart, firstSweep};
    const EllipseArc secondArc{{secondCentre, secondA, secondB, secondRotation}, secondStart, secondSweep};
    FourPoints points;
    int result = MeetEllipses(firstArc.whole, secondArc.whole, points);
    if (result == CurvesCoincide)
    {
        result = MeetOnOneEllipse(firstArc, secondArc, points);
    }
    else
    {
        result = detail::KeepFirst(points, result, [&](const DPOINT2& candidate) {
            return firstArc.Holds(candidate) && secondArc.Holds(candidate);
        });
    }
    detail::WriteFour(points, result, {first, second, third, fourth});
    return result;
}

int Intersect_EllipseArcWithEllipseArc(const DPOINT2& firstCentre, double firstA, double firstB, double firstRotation,
                                       double firstStart, double firstSweep, const DPOINT2& secondCentre,
                                       double secondA, double secondB, double secondRotation, double secondStart,
                                       double secondSweep, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_EllipseArcWithEllipseArc(firstCentre, firstA, firstB, firstRotation, firstStart, firstSweep,
                                                  secondCentre, secondA, secondB, secondRotation, secondStart,
                                                  secondSweep, p1, p2, p3, p4);
    });
}

} // namespace math
