#include "Curves.h"
#include "Load.h"

#include <cmath>

namespace math::hashes
{

namespace
{

/// A tolerance as callers give it.
double Tolerance(Source& source)
{
    constexpr double tolerances[] = {1e-9, 1e-9, 0.0, 1e-6, 1e-3, 1e-12, 0.5, -1e-9};
    return tolerances[source.Below(8)];
}

/// An ellipse whose rotation is 0 half of the time: then PointBy places points on it.
EllipseArc OftenUpright(Source& source)
{
    EllipseArc ellipse = RandomEllipseArc(source);
    if (source.Coin())
    {
        ellipse.rotation = 0.0;
    }
    return ellipse;
}

/// A point on the arc or at an end of it by the library's own construction, or beside it.
DPOINT2 PointByArc(Source& source, const Arc& arc)
{
    if (source.Coin())
    {
        return PointBy(source, arc);
    }
    const double radian = arc.start + (source.Coin() ? source.Near(arc.sweep) : 0.0);
    return source.Near(GetPointInCircle(arc.centre, arc.radius, radian));
}

DPOINT2 PointByEllipseArc(Source& source, const EllipseArc& ellipse)
{
    if (source.Coin())
    {
        return PointBy(source, ellipse);
    }
    const double radian = RegularizeRadian(ellipse.start + (source.Coin() ? source.Near(ellipse.sweep) : 0.0));
    return source.Near(GetPointInEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, radian));
}

template <bool Test(const DPOINT2&, const DPOINT2&, double, double, double)>
void OfEllipse(Source& source, ResultHash& hash)
{
    const EllipseArc ellipse = OftenUpright(source);
    const DPOINT2 point = PointByEllipseArc(source, ellipse);
    hash << Test(point, ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation);
}

void RunArcByEnds(Source& source, ResultHash& hash)
{
    const DPOINT2 centre = source.Point();
    const double radius = source.Length();
    const DPOINT2 start = source.Around(centre, radius);
    const DPOINT2 end = source.OneIn(6) ? source.Near(start) : source.Around(centre, source.Near(radius));
    const DPOINT2 point = source.OneIn(4) ? source.Near(source.Coin() ? start : end) : source.Around(centre, radius);
    hash << IsPointInArc(point, centre, start, end, source.Coin());
}

/// An angle at an end of the sector, in it or out of it.
double AngleBySector(Source& source, double start, double extent)
{
    switch (source.Below(4))
    {
    case 0:
        return source.Near(start);
    case 1:
        return source.Near(start + extent);
    case 2:
        return source.Near(start - extent);
    default:
        return source.Angle();
    }
}

} // namespace

const std::vector<Load> PredicateLoads = {
    {"IsPointInLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch stretch = RandomStretch(source);
         hash << IsPointInLine(PointBy(source, stretch), stretch.a, stretch.b);
     }},
    {"IsPointInLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch stretch = RandomStretch(source);
         const DPOINT2 point = PointBy(source, stretch);
         hash << IsPointInLine(point, stretch.a, stretch.b, Tolerance(source));
     }},
    {"IsPointProjInLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch stretch = RandomStretch(source);
         hash << IsPointProjInLine(PointBy(source, stretch), stretch.a, stretch.b);
     }},
    {"IsPointInArc(DPOINT2 const&, DPOINT2 const&, double, double, double, bool)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Arc arc = RandomArc(source);
         const DPOINT2 point = PointByArc(source, arc);
         hash << IsPointInArc(point, arc.centre, arc.radius, arc.start, std::abs(arc.sweep), source.Coin());
     }},
    {"IsPointInArc(DPOINT2 const&, DPOINT2 const&, double, double, double, bool, double const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Arc arc = RandomArc(source);
         const DPOINT2 point = PointByArc(source, arc);
         const double tolerance = Tolerance(source);
         hash << IsPointInArc(point, arc.centre, arc.radius, arc.start, arc.sweep, source.Coin(), tolerance);
     }},
    {"IsPointInArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, bool)", Cheap, RunArcByEnds},
    {"IsAngleInSector(double, double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const double start = source.Angle();
         const double extent = source.Sweep();
         hash << IsAngleInSector(AngleBySector(source, start, extent), start, extent);
     }},
    {"IsAngleInSector(double, double, double, bool)", Cheap,
     [](Source& source, ResultHash& hash) {
         const double start = source.Angle();
         const double extent = source.Sweep();
         const double angle = AngleBySector(source, start, extent);
         hash << IsAngleInSector(angle, start, extent, source.Coin());
     }},
    {"IsPointInEllipse(DPOINT2 const&, DPOINT2 const&, double, double, double)", Cheap, OfEllipse<IsPointInEllipse>},
    {"IsPointInsideEllipse(DPOINT2 const&, DPOINT2 const&, double, double, double)", Cheap,
     OfEllipse<IsPointInsideEllipse>},
    {"IsPointOutsideEllipse(DPOINT2 const&, DPOINT2 const&, double, double, double)", Cheap,
     OfEllipse<IsPointOutsideEllipse>},
    {"IsPointInEllipseArc(DPOINT2 const&, DPOINT2 const&, double, double, double, double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const EllipseArc arc = OftenUpright(source);
         const DPOINT2 point = PointByEllipseArc(source, arc);
         hash << IsPointInEllipseArc(point, arc.centre, arc.a, arc.b, arc.rotation, arc.start, arc.sweep);
     }},
    {"IsPointInEllipseArc(DPOINT2 const&, DPOINT2 const&, double, double, double, double, double, bool)", Cheap,
     [](Source& source, ResultHash& hash) {
         const EllipseArc arc = OftenUpright(source);
         const DPOINT2 point = PointByEllipseArc(source, arc);
         hash << IsPointInEllipseArc(point, arc.centre, arc.a, arc.b, arc.rotation, arc.start, std::abs(arc.sweep),
                                     source.Coin());
     }},
};

} // namespace math::hashes
