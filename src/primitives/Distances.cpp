#include "math/Primitives.h"
#include "primitives/Beeline.h"
#include "primitives/Constants.h"
#include "primitives/Distance.h"
#include "primitives/OwnFrame.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"
#include "primitives/Vectors.h"

#include <algorithm>
#include <cmath>

namespace math
{

namespace
{

// The sweep decides alone and exactly; the ends do not matter here, since a point beyond one is nearest to it.
bool IsWithinSweep(double radianFromStart, double sweep)
{
    return sweep > 0.0 ? radianFromStart < sweep : radianFromStart - detail::TwoPi > sweep;
}

double DistanceToNearerEnd(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b)
{
    return std::min(D2GetDistance(point, a), D2GetDistance(point, b));
}

} // namespace

double D2GetDistance(const DPOINT2& a, const DPOINT2& b)
{
    return detail::Distance(a, b);
}

double D2GetPointToLineDistance(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b)
{
    detail::StraightLine line{};
    return detail::MakeLineThrough(a, b, line) ? detail::DistanceToLine(point, line) : InvalidDouble;
}

double D2GetPointToBeelineDistance(const DPOINT2& point, const DPOINT2& origin, double radian)
{
    return D2GetPointToLineDistance(point, origin, detail::SecondPointOfBeeline(origin, radian));
}

double MinDistanceToLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b)
{
    DPOINT2 foot;
    D2GetProjectionPoint(point, {a.x, a.y, b.x, b.y}, &foot);
    if (IsPointInLine(foot, a, b))
    {
        return D2GetDistance(point, foot);
    }
    return DistanceToNearerEnd(point, a, b);
}

double MinDistanceToArc(const DPOINT2& point, const DPOINT2& centre, const DPOINT2& arcStart, const DPOINT2& arcEnd,
                        double radius, double sweep)
{
    if (!detail::AreEqual(D2GetDistance(centre, arcStart), radius) ||
        !detail::AreEqual(D2GetDistance(centre, arcEnd), radius))
    {
        return InvalidDouble;
    }
    if (detail::CoincideByCoordinates(point, centre))
    {
        return radius;
    }
    const double turn = D2RotateAngle(detail::VectorBetween(centre, arcStart), detail::VectorBetween(centre, point));
    if (std::isnan(turn))
    {
        return InvalidDouble;
    }
    if (IsWithinSweep(RegularizeRadian(turn), sweep))
    {
        return std::abs(D2GetDistance(point, centre) - radius);
    }
    return DistanceToNearerEnd(point, arcStart, arcEnd);
}

double D2GetProjectionDistance(const gp_Vec2d& a, const gp_Vec2d& b)
{
    const double norm = b.Magnitude();
    // Exactly zero: any shorter vector than the tolerance still has a direction.
    if (norm == 0.0)
    {
        return 0.0;
    }
    return D2DotMultiply(a, b) / norm;
}

double D2GetProjectionDistance(double ax, double ay, double bx, double by)
{
    return D2GetProjectionDistance(gp_Vec2d(ax, ay), gp_Vec2d(bx, by));
}

void D2GetProjectionPoint(const DPOINT2& point, const LineD2D& line, DPOINT2* out)
{
    const double dx = line.x2 - line.x1;
    const double dy = line.y2 - line.y1;
    const double norm = std::sqrt(dx * dx + dy * dy);
    if (norm == 0.0)
    {
        return;
    }
    const double along = ((point.y - line.y1) * dy + dx * (point.x - line.x1)) / norm;
    *out = {line.x1 + (dx / norm) * along, line.y1 + (dy / norm) * along};
}

double D2CrossMultiply(const gp_Vec2d& a, const gp_Vec2d& b)
{
    return a.X() * b.Y() - a.Y() * b.X();
}

double D2DotMultiply(const gp_Vec2d& a, const gp_Vec2d& b)
{
    return a.X() * b.X() + a.Y() * b.Y();
}

DPOINT2 CoorTransXYToUV(const DPOINT2& point, const DPOINT2& origin, double radian)
{
    return detail::OwnFrame(origin, radian).Into(point);
}

DPOINT2 CoorTransUVToXY(const DPOINT2& point, const DPOINT2& origin, double radian)
{
    return detail::OwnFrame(origin, radian).OutOf(point);
}

} // namespace math
