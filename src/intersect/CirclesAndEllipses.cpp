#include "math/Intersect.h"

#include "intersect/FourPoints.h"
#include "math/Primitives.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <vector>

namespace math
{

using detail::CurvesCoincide;
using detail::FourOutputs;
using detail::FourPoints;

namespace
{

/// Clips the points of a circle and an ellipse and writes them. Other than those two, it sets every output.
template <typename Predicate>
int ClipAndWrite(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre, double a, double b,
                 double rotation, const FourOutputs& outputs, const Predicate& isKept)
{
    FourPoints points;
    const int found = Intersect_CircleWithEllipse(circleCentre, radius, ellipseCentre, a, b, rotation, &points[0],
                                                  &points[1], &points[2], &points[3]);
    const int kept = detail::KeepFirst(points, found, isKept);
    detail::WriteFour(points, kept, outputs);
    return found == CurvesCoincide ? CurvesCoincide : kept;
}

} // namespace

int Intersect_CircleWithEllipse(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre, double a,
                                double b, double rotation, DPOINT2* first, DPOINT2* second, DPOINT2* third,
                                DPOINT2* fourth)
{
    if (detail::IsZero(radius) || (detail::IsZero(a) && detail::IsZero(b)))
    {
        return 0;
    }
    if (detail::AreEqual(a, b))
    {
        return Intersect_CircleWithCircle(circleCentre, radius, ellipseCentre, a, first, second);
    }
    if (detail::IsZero(b))
    {
        // A flat ellipse is the stretch between its vertices.
        const double alongX = std::cos(rotation) * a;
        const double alongY = std::sin(rotation) * a;
        const DPOINT2 vertex(ellipseCentre.x + alongX, ellipseCentre.y + alongY);
        const DPOINT2 oppositeVertex(ellipseCentre.x - alongX, ellipseCentre.y - alongY);
        return Intersect_LineWithCircle(vertex, oppositeVertex, circleCentre, radius, first, second);
    }
    return Intersect_EllipseWithEllipse(ellipseCentre, a, b, rotation, circleCentre, radius, radius, 0.0, first, second,
                                        third, fourth);
}

int Intersect_CircleWithEllipse(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre, double a,
                                double b, double rotation, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_CircleWithEllipse(circleCentre, radius, ellipseCentre, a, b, rotation, p1, p2, p3, p4);
    });
}

int Intersect_CircleWithEllipseArc(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre, double a,
                                   double b, double rotation, double start, double sweep, DPOINT2* first,
                                   DPOINT2* second, DPOINT2* third, DPOINT2* fourth)
{
    if (detail::IsZero(sweep))
    {
        return 0;
    }
    const DPOINT2 centre = ellipseCentre;
    const FourOutputs outputs = {first, second, third, fourth};
    const auto isOnArc = [&](const DPOINT2& point) {
        return IsPointInEllipseArc(point, centre, a, b, rotation, start, std::abs(sweep), sweep > 0);
    };
    return ClipAndWrite(circleCentre, radius, centre, a, b, rotation, outputs, isOnArc);
}

int Intersect_CircleWithEllipseArc(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre, double a,
                                   double b, double rotation, double start, double sweep, std::vector<DPOINT2>& points,
                                   int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_CircleWithEllipseArc(circleCentre, radius, ellipseCentre, a, b, rotation, start, sweep, p1, p2,
                                              p3, p4);
    });
}

int Intersect_ArcWithEllipse(const DPOINT2& arcCentre, double radius, double start, double sweep,
                             const DPOINT2& ellipseCentre, double a, double b, double rotation, DPOINT2* first,
                             DPOINT2* second, DPOINT2* third, DPOINT2* fourth)
{
    if (detail::IsZero(sweep))
    {
        return 0;
    }
    const FourOutputs outputs = {first, second, third, fourth};
    const auto isOnArc = [&](const DPOINT2& point) {
        // The point's own distance: only the angle is tested here.
        const double ownDistance = D2GetDistance(point, arcCentre);
        return IsPointInArc(point, arcCentre, ownDistance, start, std::abs(sweep), sweep > 0, DoubleTolerance);
    };
    return ClipAndWrite(arcCentre, radius, ellipseCentre, a, b, rotation, outputs, isOnArc);
}

int Intersect_ArcWithEllipse(const DPOINT2& arcCentre, double radius, double start, double sweep,
                             const DPOINT2& ellipseCentre, double a, double b, double rotation,
                             std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_ArcWithEllipse(arcCentre, radius, start, sweep, ellipseCentre, a, b, rotation, p1, p2, p3, p4);
    });
}

int Intersect_ArcWithEllipseArc(const DPOINT2& arcCentre, double radius, double arcStart, double arcSweep,
                                const DPOINT2& ellipseCentre, double a, double b, double rotation, double ellipseStart,
                                double ellipseSweep, DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth)
{
    if (detail::IsZero(arcSweep) || detail::IsZero(ellipseSweep))
    {
        return 0;
    }
    const FourOutputs outputs = {first, second, third, fourth};
    const auto isOnBoth = [&](const DPOINT2& point) {
        return IsPointInArc(point, arcCentre, radius, arcStart, std::abs(arcSweep), arcSweep > 0, DoubleTolerance) &&
               IsPointInEllipseArc(point, ellipseCentre, a, b, rotation, ellipseStart, std::abs(ellipseSweep),
                                   ellipseSweep > 0);
    };
    return ClipAndWrite(arcCentre, radius, ellipseCentre, a, b, rotation, outputs, isOnBoth);
}

int Intersect_ArcWithEllipseArc(const DPOINT2& arcCentre, double radius, double arcStart, double arcSweep,
                                const DPOINT2& ellipseCentre, double a, double b, double rotation, double ellipseStart,
                                double ellipseSweep, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::ReplaceByAtMost(points, maxPoints, [&](DPOINT2* p1, DPOINT2* p2, DPOINT2* p3, DPOINT2* p4) {
        return Intersect_ArcWithEllipseArc(arcCentre, radius, arcStart, arcSweep, ellipseCentre, a, b, rotation,
                                           ellipseStart, ellipseSweep, p1, p2, p3, p4);
    });
}

} // namespace math
