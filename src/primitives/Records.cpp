#include "primitives/RequireChecks.h"

#include "math/Primitives.h"
#include "primitives/Box.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include <gp_Pnt2d.hxx>
#include <gp_XY.hxx>

namespace math
{

namespace
{

static_assert(std::is_standard_layout_v<DPOINT2> && std::is_trivially_copyable_v<DPOINT2>,
              "a point crosses the library's boundary as its two doubles");
static_assert(offsetof(DPOINT2, x) == 0 && offsetof(DPOINT2, y) == sizeof(double));
static_assert(sizeof(DPOINT2) == sizeof(gp_XY) && alignof(DPOINT2) == alignof(gp_XY));
static_assert(sizeof(DPOINT2) == sizeof(gp_Pnt2d) && alignof(DPOINT2) == alignof(gp_Pnt2d));
static_assert(std::is_standard_layout_v<gp_XY> && std::is_standard_layout_v<gp_Pnt2d>);
static_assert(std::is_trivially_copyable_v<DRECT> && std::is_trivially_copyable_v<LineD2D> &&
              std::is_trivially_copyable_v<ArcD> && std::is_trivially_copyable_v<RealRectD>);

// The new value comes first in each choice, so that a bound of NaN gives way to it: the box of a circle does not hang
// on its start angle.
void Extend(RealRectD& box, double x, double y)
{
    box.minX = std::min(x, box.minX);
    box.maxX = std::max(x, box.maxX);
    box.minY = std::min(y, box.minY);
    box.maxY = std::max(y, box.maxY);
}

} // namespace

bool DRECT::Union(const DRECT& a, const DRECT& b)
{
    *this = detail::UnionOf(a, b);
    return width > 0.0 && height > 0.0;
}

RealRectD RealRectD::CreateRealRectD(const LineD2D* line)
{
    return {std::min(line->x1, line->x2), std::max(line->x1, line->x2), std::min(line->y1, line->y2),
            std::max(line->y1, line->y2)};
}

RealRectD RealRectD::CreateRealRectD(const ArcD* arc)
{
    const double startX = arc->cx + std::cos(arc->startRadian) * arc->radius;
    const double startY = arc->cy + std::sin(arc->startRadian) * arc->radius;
    RealRectD box{startX, startX, startY, startY};
    Extend(box, startX, startY);
    Extend(box, arc->cx + arc->radius, arc->cy);
    Extend(box, arc->cx, arc->cy + arc->radius);
    Extend(box, arc->cx - arc->radius, arc->cy);
    Extend(box, arc->cx, arc->cy - arc->radius);
    return box;
}

} // namespace math
