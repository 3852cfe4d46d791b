#include "math/CSegment.h"

#include "polyline/ArcForm.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace math
{

using detail::ArcForm;
using detail::IsZero;
using detail::TwoPi;

namespace
{

/// A point of a segment with its parameter.
struct PlaceOnSegment
{
    DPOINT2 point;
    double ratio;
};

/// NaN becomes 1.
double ClampToSegment(double ratio)
{
    if (!(ratio < 1.0))
    {
        ratio = 1.0;
    }
    if (!(ratio > 0.0))
    {
        ratio = 0.0;
    }
    return ratio;
}

double SquaredDistance(const DPOINT2& a, const DPOINT2& b)
{
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy;
}

/// A tie goes to the end.
PlaceOnSegment NearerEnd(const DPOINT2& start, const DPOINT2& end, double distanceToStart, double distanceToEnd)
{
    return distanceToEnd <= distanceToStart ? PlaceOnSegment{end, 1.0} : PlaceOnSegment{start, 0.0};
}

PlaceOnSegment NearestOnLine(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end)
{
    if (!IsPointProjInLine(p, start, end))
    {
        return NearerEnd(start, end, SquaredDistance(p, start), SquaredDistance(p, end));
    }
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double ratio = ClampToSegment(((p.x - start.x) * dx + (p.y - start.y) * dy) / (dx * dx + dy * dy));
    return {{start.x + dx * ratio, start.y + dy * ratio}, ratio};
}

double DirectionFrom(const DPOINT2& centre, const DPOINT2& point)
{
    return ComputeAngle(point.x - centre.x, point.y - centre.y);
}

/// The directions from the centre of an arc to its ends, all in [0, 2π].
struct EndDirections
{
    double start;
    double end;
    bool counterClockwise;

    /// Passes over the direction 0.
    bool Wraps() const
    {
        return (end - start <= 0.0) == counterClockwise;
    }

    /// Lies beyond the ends. That happens only as far as the sector's tolerance reaches.
    bool IsInGap(double direction) const
    {
        const double least = std::min(start, end);
        const double greatest = std::max(start, end);
        return Wraps() ? least < direction && direction < greatest : direction < least || greatest < direction;
    }

    /// The part of the way from the start end, by angle.
    double RatioOf(double direction) const
    {
        if (!Wraps())
        {
            return std::abs(direction - start) / std::abs(end - start);
        }
        if (counterClockwise)
        {
            const double unrolled = direction <= end ? direction + TwoPi : direction;
            return std::abs(unrolled - start) / std::abs((end - start) + TwoPi);
        }
        const double unrolled = direction < end ? direction : direction - TwoPi;
        return std::abs(start - unrolled) / std::abs((start - end) + TwoPi);
    }
};

/// Moves a direction from the gap to the nearer end: by distance in the plane on an arc that does not wrap, by
/// difference of directions on one that does.
double SnapOutOfGap(double direction, const EndDirections& ends, bool isNearerToStart)
{
    if (!ends.IsInGap(direction))
    {
        return direction;
    }
    const bool toStart =
        ends.Wraps() ? !(std::abs(direction - ends.end) < std::abs(direction - ends.start)) : isNearerToStart;
    return toStart ? ends.start : ends.end;
}

/// The foot of the radial line through `p`, which must lie in the arc's sector.
PlaceOnSegment NearestInsideArc(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end, const ArcForm& arc,
                                bool counterClockwise)
{
    const EndDirections ends = {DirectionFrom(arc.centre, start), DirectionFrom(arc.centre, end), counterClockwise};
    const double direction = DirectionFrom(arc.centre, p);
    const bool isNearerToStart = D2GetDistance(p, start) < D2GetDistance(p, end);
    // The point stays on the radial line where the ratio is snapped to an end.
    return {GetPointInCircle(arc.centre, arc.radius, direction),
            ClampToSegment(ends.RatioOf(SnapOutOfGap(direction, ends, isNearerToStart)))};
}

/// The computed centre is off by rounding, so no more than a few rounding units of the radius count as the centre.
bool IsAtCentre(const DPOINT2& p, const ArcForm& arc)
{
    const double roundingUnit = std::nextafter(arc.radius, std::numeric_limits<double>::infinity()) - arc.radius;
    return D2GetDistance(p, arc.centre) <= 4.0 * roundingUnit;
}

PlaceOnSegment NearestOnArc(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const ArcForm arc(start, end, bulge);
    const double direction = DirectionFrom(arc.centre, p);
    if (!IsAtCentre(p, arc) && IsAngleInSector(direction, arc.startRadian, std::abs(arc.sweep), arc.sweep > 0.0))
    {
        return NearestInsideArc(p, start, end, arc, bulge >= 0.0);
    }
    return NearerEnd(start, end, D2GetDistance(p, start), D2GetDistance(p, end));
}

} // namespace

DPOINT2 CSegment::GetNearestPoint(const DPOINT2& p, double& t) const
{
    const PlaceOnSegment nearest = IsZero(bulge) ? NearestOnLine(p, start, end) : NearestOnArc(p, start, end, bulge);
    t = nearest.ratio;
    return nearest.point;
}

} // namespace math
