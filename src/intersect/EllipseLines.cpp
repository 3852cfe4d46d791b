#include "math/Intersect.h"

#include "intersect/BoundedLine.h"
#include "intersect/EllipseCut.h"
#include "intersect/EllipseSector.h"
#include "intersect/PointOutputs.h"
#include "math/Primitives.h"
#include "primitives/Straight.h"

#include <cmath>
#include <vector>

namespace math
{

using detail::TwoPoints;

namespace
{

TwoPoints CutEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b, double rotation)
{
    return detail::EllipseCut(angle, centre, a, b, rotation).Through(point);
}

} // namespace

int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                 double rotation, DPOINT2* first, DPOINT2* second)
{
    const TwoPoints found = CutEllipse(point, angle, centre, a, b, rotation);
    *first = found.first;
    *second = found.second;
    return found.count;
}

int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                 double rotation, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_BeelineWithEllipse(point, angle, centre, a, b, rotation, first, second);
    });
}

int Intersect_BeelineWithEllipseArc(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                    double rotation, double start, double sweep, DPOINT2* first, DPOINT2* second)
{
    const TwoPoints found = CutEllipse(point, angle, centre, a, b, rotation);
    return detail::KeepAndWrite(found, first, second, [&](const DPOINT2& candidate) {
        return detail::IsPointInEllipseSector(candidate, centre, rotation, start, std::abs(sweep), sweep > 0);
    });
}

int Intersect_BeelineWithEllipseArc(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                    double rotation, double start, double sweep, std::vector<DPOINT2>& points,
                                    int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_BeelineWithEllipseArc(point, angle, centre, a, b, rotation, start, sweep, first, second);
    });
}

int Intersect_LineWithEllipse(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                              double b, double rotation, DPOINT2* first, DPOINT2* second)
{
    const detail::BoundedLine stretch(firstEnd, secondEnd);
    const TwoPoints found = CutEllipse(firstEnd, stretch.Angle(), centre, a, b, rotation);
    return detail::KeepAndWrite(found, first, second,
                                [&](const DPOINT2& candidate) { return stretch.Holds(candidate); });
}

int Intersect_LineWithEllipse(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                              double b, double rotation, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_LineWithEllipse(firstEnd, secondEnd, centre, a, b, rotation, first, second);
    });
}

int Intersect_LineWithEllipseArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                                 double b, double rotation, double start, double sweep, DPOINT2* first, DPOINT2* second)
{
    const detail::BoundedLine stretch(firstEnd, secondEnd);
    const TwoPoints found = CutEllipse(firstEnd, stretch.Angle(), centre, a, b, rotation);
    return detail::KeepAndWrite(found, first, second, [&](const DPOINT2& candidate) {
        return stretch.Holds(candidate) &&
               detail::IsPointInEllipseSector(candidate, centre, rotation, start, std::abs(sweep), sweep > 0);
    });
}

int Intersect_LineWithEllipseArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                                 double b, double rotation, double start, double sweep, std::vector<DPOINT2>& points,
                                 int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_LineWithEllipseArc(firstEnd, secondEnd, centre, a, b, rotation, start, sweep, first, second);
    });
}

} // namespace math
