#include "math/CSegment.h"

#include "polyline/ArcForm.h"
#include "primitives/Constants.h"
#include "primitives/Distance.h"
#include "primitives/PlaneVectors.h"
#include "primitives/Sector.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace math
{

using detail::ArcForm;
using detail::Cross;
using detail::Difference;
using detail::Distance;
using detail::IsZero;
using detail::Reach;
using detail::SquareOfDistance;
using detail::TwoPi;
using detail::Verdict;

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

/// A tie goes to the end.
PlaceOnSegment NearerEnd(const DPOINT2& start, const DPOINT2& end, double distanceToStart, double distanceToEnd)
{
    return distanceToEnd <= distanceToStart ? PlaceOnSegment{end, 1.0} : PlaceOnSegment{start, 0.0};
}

PlaceOnSegment NearestOnLine(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end)
{
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double fromStart = (p.x - start.x) * dx + (p.y - start.y) * dy;
    const double fromEnd = (p.x - end.x) * dx + (p.y - end.y) * dy;
    // As IsPointProjInLine: a NaN lies beyond neither end.
    if (fromStart < 0.0 || fromEnd > 0.0)
    {
        return NearerEnd(start, end, SquareOfDistance(p, start), SquareOfDistance(p, end));
    }
    const double ratio = ClampToSegment(fromStart / (dx * dx + dy * dy));
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
double SnapOutOfGap(double direction, const EndDirections& ends, const DPOINT2& p, const DPOINT2& start,
                    const DPOINT2& end)
{
    if (!ends.IsInGap(direction))
    {
        return direction;
    }
    const bool toStart = ends.Wraps() ? !(std::abs(direction - ends.end) < std::abs(direction - ends.start))
                                      : Distance(p, start) < Distance(p, end);
    return toStart ? ends.start : ends.end;
}

/// The foot of the radial line through `p`, which must lie in the arc's sector, seen from the centre in `direction`.
PlaceOnSegment NearestInsideArc(const DPOINT2& p, double direction, const DPOINT2& start, const DPOINT2& end,
                                const ArcForm& arc, bool counterClockwise)
{
    const EndDirections ends = {DirectionFrom(arc.centre, start), DirectionFrom(arc.centre, end), counterClockwise};
    // The point stays on the radial line where the ratio is snapped to an end.
    return {GetPointInCircle(arc.centre, arc.radius, direction),
            ClampToSegment(ends.RatioOf(SnapOutOfGap(direction, ends, p, start, end)))};
}

/// The computed centre is off by rounding, so no more than a few rounding units of the radius count as the centre.
bool IsAtCentre(const DPOINT2& p, const ArcForm& arc)
{
    const double roundingUnit = std::nextafter(arc.radius, std::numeric_limits<double>::infinity()) - arc.radius;
    return Distance(p, arc.centre) <= 4.0 * roundingUnit;
}

bool IsInSectorOf(const ArcForm& arc, const DPOINT2& p, double direction)
{
    return !IsAtCentre(p, arc) && IsAngleInSector(direction, arc.StartRadian(), std::abs(arc.sweep), arc.sweep > 0.0);
}

/// A first look, without angles, at whether a point lies in the sector of an arc. It is sure only where the point is so
/// far from the rays through the ends that neither tolerance nor rounding counts.
Verdict LookInArc(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const DPOINT2 chord = Difference(end, start);
    const double fromChord = (1.0 - bulge * bulge) / (4.0 * bulge);
    const DPOINT2 centre((start.x + end.x) * 0.5 - fromChord * chord.y, (start.y + end.y) * 0.5 + fromChord * chord.x);
    const DPOINT2 toStart = Difference(start, centre);
    const DPOINT2 toPoint = Difference(p, centre);
    const double reach = Reach(toStart) + Reach(toPoint);
    const double margin = 1e-6 * Reach(toStart) * Reach(toPoint) + 1e-12 * reach * (reach + Reach(centre));
    const double pastStart = Cross(toStart, toPoint);
    const double pastEnd = Cross(Difference(end, centre), toPoint);
    // Ends that nearly coincide make no arc, and squares of great numbers overflow.
    if (!(std::abs(pastStart) > margin && std::abs(pastEnd) > margin && Reach(chord) > 1e-6 && reach < 1e100))
    {
        return Verdict::Unsure;
    }
    const bool isPastStart = (pastStart > 0.0) == (bulge > 0.0);
    const bool isPastEnd = (pastEnd > 0.0) == (bulge > 0.0);
    // Up to a half circle both count, beyond it one is enough.
    const bool isInside = std::abs(bulge) < 1.0 ? isPastStart && !isPastEnd : isPastStart || !isPastEnd;
    return isInside ? Verdict::Inside : Verdict::Outside;
}

PlaceOnSegment NearestOnArc(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const Verdict verdict = LookInArc(p, start, end, bulge);
    if (verdict != Verdict::Outside)
    {
        const ArcForm arc(start, end, bulge);
        const double direction = DirectionFrom(arc.centre, p);
        if (verdict == Verdict::Inside || IsInSectorOf(arc, p, direction))
        {
            return NearestInsideArc(p, direction, start, end, arc, bulge >= 0.0);
        }
    }
    return NearerEnd(start, end, Distance(p, start), Distance(p, end));
}

} // namespace

DPOINT2 CSegment::GetNearestPoint(const DPOINT2& p, double& t) const
{
    const PlaceOnSegment nearest = IsZero(bulge) ? NearestOnLine(p, start, end) : NearestOnArc(p, start, end, bulge);
    t = nearest.ratio;
    return nearest.point;
}

} // namespace math
