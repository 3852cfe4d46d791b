#pragma once

#include "math/AnalyticKernel.h"
#include "math/Primitives.h"
#include "primitives/RequireChecks.h"

#include <gp_Ax22d.hxx>
#include <gp_Circ2d.hxx>
#include <gp_Dir2d.hxx>
#include <gp_Lin2d.hxx>
#include <gp_Pnt2d.hxx>

/// From our records to those of the analytic kernel, and back. Records that make no line or circle raise
/// Standard_ConstructionError.
namespace math::detail
{

/// The unbounded line through two points, which must not be one.
inline gp_Lin2d LineThrough(const DPOINT2& first, const DPOINT2& second)
{
    return {gp_Pnt2d(first.x, first.y), gp_Dir2d(second.x - first.x, second.y - first.y)};
}

/// The circle in the world's axes. A radius of 0 is a circle, a negative one is not.
inline gp_Circ2d CircleAbout(const DPOINT2& centre, double radius)
{
    gp_Circ2d circle;
    circle.SetAxis(gp_Ax22d(gp_Pnt2d(centre.x, centre.y), gp_Dir2d(1.0, 0.0), gp_Dir2d(0.0, 1.0)));
    circle.SetRadius(radius);
    return circle;
}

/// One of the points of a finished intersection, counted from 1.
inline DPOINT2 PointOf(const IntAna2d_AnaIntersection& meeting, int number)
{
    const IntAna2d_IntPoint& point = meeting.Point(number);
    return {point.X(), point.Y()};
}

} // namespace math::detail
