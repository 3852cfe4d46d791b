#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Distance.h"
#include "primitives/EllipseClassification.h"
#include "primitives/OwnFrame.h"
#include "primitives/Sector.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"
#include "primitives/Vectors.h"

#include <cmath>

namespace math
{

namespace
{

/// A first look at whether a point of the circle lies on an arc of it: sure away from the ends, in direction and in
/// distance, with what the coordinates have in rounding.
detail::Verdict LookAtArc(const DPOINT2& fromCentre, const DPOINT2& centre, double radius, double startRadian,
                          double extent, double sign, double tolerance)
{
    const double coordinates = std::abs(centre.x) + std::abs(centre.y) + radius;
    const double margin = 1e-6 + (1e-8 + 1e-12 * coordinates) / radius;
    const double limit = extent + tolerance;
    // Where the tolerance takes away from the extent, an end of the arc lies beyond the limit.
    if (!(tolerance >= 0.0 && extent >= 0.0 && limit < detail::TwoPi))
    {
        return detail::Verdict::Unsure;
    }
    return detail::LookInSector(fromCentre.x, fromCentre.y, startRadian, limit, sign, margin);
}

} // namespace

namespace detail
{

PlaceOnEllipse ClassifyPointToEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation)
{
    const DPOINT2 own = OwnFrame(centre, rotation).Into(point);
    const double value = own.y * own.y / b / b + own.x * own.x / a / a;
    // The order of the tests leads a NaN to the inside.
    if (AreEqual(value, 1.0))
    {
        return PlaceOnEllipse::OnCurve;
    }
    return value > 1.0 ? PlaceOnEllipse::Outside : PlaceOnEllipse::Inside;
}

} // namespace detail

bool IsPointInLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b)
{
    return IsPointInLine(point, a, b, DoubleTolerance);
}

bool IsPointInLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b, const double& tolerance)
{
    detail::StraightLine line{};
    return detail::MakeLineThrough(a, b, line) && detail::IsOnStretch(point, line, b, tolerance);
}

bool IsPointProjInLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b)
{
    const double fromStart = D2DotMultiply(detail::VectorBetween(a, b), detail::VectorBetween(a, point));
    const double fromEnd = D2DotMultiply(detail::VectorBetween(b, a), detail::VectorBetween(b, point));
    // Written so that a NaN, which lies on neither side, passes.
    return !(fromStart < 0.0) && !(fromEnd < 0.0);
}

bool IsPointInArc(const DPOINT2& point, const DPOINT2& centre, double radius, double startRadian, double extent,
                  bool ccw)
{
    return IsPointInArc(point, centre, radius, startRadian, extent, ccw, DoubleTolerance);
}

bool IsPointInArc(const DPOINT2& point, const DPOINT2& centre, double radius, double startRadian, double extent,
                  bool ccw, const double& tolerance)
{
    if (radius <= 0.0)
    {
        return false;
    }
    // The caller's tolerance is an angle and has no say in the distance.
    if (!detail::AreEqual(detail::Distance(point, centre), radius))
    {
        return false;
    }
    const double sign = detail::SignOf(ccw);
    switch (LookAtArc({point.x - centre.x, point.y - centre.y}, centre, radius, startRadian, extent, sign, tolerance))
    {
    case detail::Verdict::Inside:
        return true;
    case detail::Verdict::Outside:
        return false;
    case detail::Verdict::Unsure:
        break;
    }
    const double endRadian = startRadian + sign * extent;
    if (detail::CoincideByDistance(point, GetPointInCircle(centre, radius, startRadian)) ||
        detail::CoincideByDistance(point, GetPointInCircle(centre, radius, endRadian)))
    {
        return true;
    }
    const double direction = D2GetNormalAngle(point.x - centre.x, point.y - centre.y);
    return RegularizeRadian((direction - startRadian) * sign) <= extent + tolerance;
}

bool IsPointInArc(const DPOINT2& point, const DPOINT2& centre, const DPOINT2& arcStart, const DPOINT2& arcEnd, bool ccw)
{
    const gp_Vec2d toStart = detail::VectorBetween(centre, arcStart);
    const gp_Vec2d toEnd = detail::VectorBetween(centre, arcEnd);
    if (std::isnan(D2RotateAngle(toStart, toEnd)) || !detail::AreEqual(toStart.Magnitude(), toEnd.Magnitude()))
    {
        return false;
    }
    if (detail::CoincideByDistance(point, arcStart) || detail::CoincideByDistance(point, arcEnd))
    {
        return true;
    }
    const double startRadian = D2GetNormalAngle(toStart.X(), toStart.Y());
    const double endRadian = D2GetNormalAngle(toEnd.X(), toEnd.Y());
    const double extent = RegularizeRadian((endRadian - startRadian) * detail::SignOf(ccw));
    return IsPointInArc(point, centre, toStart.Magnitude(), startRadian, extent, ccw, DoubleTolerance);
}

bool IsAngleInSector(double angle, double startRadian, double extent)
{
    return RegularizeRadian(angle - startRadian) <= extent;
}

bool IsAngleInSector(double angle, double startRadian, double extent, bool ccw)
{
    const double fromStart = RegularizeRadian(detail::SignOf(ccw) * (angle - startRadian));
    // An extent of NaN makes no sector, around its start either.
    return !std::isnan(extent) && detail::IsInSector(fromStart, extent);
}

bool IsPointInEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation)
{
    return detail::ClassifyPointToEllipse(point, centre, a, b, rotation) == detail::PlaceOnEllipse::OnCurve;
}

bool IsPointInsideEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation)
{
    return detail::ClassifyPointToEllipse(point, centre, a, b, rotation) == detail::PlaceOnEllipse::Inside;
}

bool IsPointOutsideEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation)
{
    return detail::ClassifyPointToEllipse(point, centre, a, b, rotation) == detail::PlaceOnEllipse::Outside;
}

bool IsPointInEllipseArc(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation,
                         double startRadian, double extent)
{
    const double start = RegularizeRadian(startRadian);
    const double end = RegularizeRadian(startRadian + extent);
    if (detail::CoincideByDistance(point, GetPointInEllipse(centre, a, b, rotation, start)) ||
        detail::CoincideByDistance(point, GetPointInEllipse(centre, a, b, rotation, end)))
    {
        return true;
    }
    const double direction = D2GetNormalAngle(point.x - centre.x, point.y - centre.y);
    if (!IsPointInEllipse(point, centre, a, b, rotation))
    {
        return false;
    }
    const double base = RegularizeRadian(rotation + startRadian);
    return RegularizeRadian(direction - base) <= extent;
}

bool IsPointInEllipseArc(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation,
                         double startRadian, double extent, bool ccw)
{
    if (!IsPointInEllipse(point, centre, a, b, rotation))
    {
        return false;
    }
    const double direction = D2GetNormalAngle(point.x - centre.x, point.y - centre.y);
    return IsAngleInSector(direction, rotation + startRadian, extent, ccw);
}

} // namespace math
