#include "math/CSegment.h"

#include "polyline/ArcForm.h"
#include "polyline/CubicForm.h"
#include "polyline/CubicSamples.h"
#include "primitives/Box.h"
#include "primitives/Constants.h"
#include "primitives/Direction.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace math
{

using detail::ArcForm;
using detail::AreEqual;
using detail::CoincideByCoordinates;
using detail::CubicForm;
using detail::DirectionBetween;
using detail::HalfPi;
using detail::IsZero;
using detail::TwoPi;

namespace
{

/// The tangent of an arc. One turn at most is corrected before and after the quarter turn.
double DirectionOfArc(const ArcForm& arc, double bulge, double t)
{
    double radial = arc.sweep * t + arc.StartRadian();
    if (radial >= TwoPi)
    {
        radial -= TwoPi;
    }
    else if (radial <= -TwoPi)
    {
        radial += TwoPi;
    }
    const double direction = bulge <= 0.0 ? radial - HalfPi : radial + HalfPi;
    if (direction >= TwoPi)
    {
        return direction - TwoPi;
    }
    return direction >= 0.0 ? direction : direction + TwoPi;
}

double DirectionOfCubic(const CubicForm& curve, double t)
{
    const DPOINT2 derivative = curve.DerivativeAt(t);
    const double norm = std::sqrt(derivative.x * derivative.x + derivative.y * derivative.y);
    const double included = std::acos(derivative.x / norm);
    return derivative.y >= 0.0 ? included : TwoPi - included;
}

DRECT BoxOfPoint(const DPOINT2& point)
{
    return {point.x, point.y, 0.0, 0.0};
}

/// For each axis point of a circle, counted from the right one counter-clockwise, whether an arc reaches it.
using ReachedAxisPoints = std::array<bool, 4>;

/// An arc may run on past 2π or below 0, by less than a turn.
ReachedAxisPoints ReachedByAngle(const ArcForm& arc)
{
    const double arcStart = arc.StartRadian();
    const double arcEnd = arcStart + arc.sweep;
    const double least = std::min(arcStart, arcEnd) - DoubleTolerance;
    const double greatest = std::max(arcStart, arcEnd) + DoubleTolerance;
    const auto isBetween = [&](double angle) { return least <= angle && angle <= greatest; };
    const auto isReached = [&](double direction) {
        return isBetween(direction) || isBetween(direction + TwoPi) || isBetween(direction - TwoPi);
    };
    return {isReached(0.0), isReached(HalfPi), isReached(2 * HalfPi), isReached(3 * HalfPi)};
}

/// The quarter of the plane in which a vector lies, counted as the axis points that come before it.
int QuarterOf(double x, double y)
{
    if (y > 0.0)
    {
        return x > 0.0 ? 0 : 1;
    }
    return x < 0.0 ? 2 : 3;
}

/// Away from the axes the quarters of its ends tell what an arc reaches, and no angle need be measured.
///
/// @return false if an end is so near to an axis that tolerance or rounding might count
bool LookAtQuarters(const DPOINT2& start, const DPOINT2& end, double bulge, const ArcForm& arc,
                    ReachedAxisPoints& reached)
{
    const DPOINT2 toStart(start.x - arc.centre.x, start.y - arc.centre.y);
    const DPOINT2 toEnd(end.x - arc.centre.x, end.y - arc.centre.y);
    const double coordinates = std::abs(arc.centre.x) + std::abs(arc.centre.y) + arc.radius;
    const double margin = 1e-6 * arc.radius + 1e-12 * coordinates;
    const double nearest =
        std::min(std::min(std::abs(toStart.x), std::abs(toStart.y)), std::min(std::abs(toEnd.x), std::abs(toEnd.y)));
    if (!(nearest > margin))
    {
        return false;
    }
    const int startQuarter = QuarterOf(toStart.x, toStart.y);
    const int endQuarter = QuarterOf(toEnd.x, toEnd.y);
    const int from = bulge > 0.0 ? startQuarter : endQuarter;
    const int to = bulge > 0.0 ? endQuarter : startQuarter;
    const int whole = std::abs(bulge) < 1.0 ? 0 : 4;
    const int count = from == to ? whole : (to - from + 4) % 4;
    for (int quarter = 0; quarter < 4; ++quarter)
    {
        reached[static_cast<std::size_t>(quarter)] = (quarter - from + 3) % 4 < count;
    }
    return true;
}

/// Places a hair from an end are taken for the end.
double SnapToEnds(double t)
{
    if (IsZero(t))
    {
        return 0.0;
    }
    return AreEqual(t, 1.0) ? 1.0 : t;
}

/// The bulge of a piece of an arc: the tangent of a quarter of its extent, with the arc's orientation.
double BulgeOfPiece(double ratio, double sweep, double bulge)
{
    const double ofExtent = std::tan(std::abs(ratio * sweep) * 0.25);
    return bulge < 0.0 ? -ofExtent : ofExtent;
}

} // namespace

double CSegment::GetAngle(double t) const
{
    switch (type)
    {
    case SegmentLine:
        return CoincideByCoordinates(start, end) ? InvalidDouble : DirectionBetween(start, end);
    case SegmentArc:
        if (CoincideByCoordinates(start, end))
        {
            return InvalidDouble;
        }
        return IsZero(bulge) ? DirectionBetween(start, end) : DirectionOfArc(ArcForm(start, end, bulge), bulge, t);
    case SegmentBezier:
        return DirectionOfCubic(CubicForm(start, ctrl1, ctrl2, end), t);
    default:
        return InvalidDouble;
    }
}

DRECT CSegment::GetBoundRect() const
{
    switch (type)
    {
    case SegmentLine:
        return GetBoundRectOfLine(start, end);
    case SegmentArc:
        return GetBoundRectOfArc(start, end, bulge);
    case SegmentBezier:
        return GetBoundRectOfBezier(start, ctrl1, ctrl2, end);
    default:
        return {};
    }
}

DRECT CSegment::GetBoundRectOfLine(const DPOINT2& startPoint, const DPOINT2& endPoint)
{
    return detail::BoxOfEnds(startPoint, endPoint);
}

DRECT CSegment::GetBoundRectOfArc(const DPOINT2& startPoint, const DPOINT2& endPoint, double arcBulge)
{
    DRECT box = detail::BoxOfEnds(startPoint, endPoint);
    if (CoincideByCoordinates(startPoint, endPoint) || IsZero(arcBulge))
    {
        return box;
    }
    const ArcForm arc(startPoint, endPoint, arcBulge);
    const DPOINT2& centre = arc.centre;
    const std::array axisPoints = {DPOINT2(centre.x + arc.radius, centre.y), DPOINT2(centre.x, centre.y + arc.radius),
                                   DPOINT2(centre.x - arc.radius, centre.y), DPOINT2(centre.x, centre.y - arc.radius)};
    ReachedAxisPoints reached{};
    if (!LookAtQuarters(startPoint, endPoint, arcBulge, arc, reached))
    {
        reached = ReachedByAngle(arc);
    }
    for (std::size_t i = 0; i < axisPoints.size(); ++i)
    {
        if (reached[i])
        {
            box = detail::UnionOf(box, BoxOfPoint(axisPoints[i]));
        }
    }
    return box;
}

DRECT CSegment::GetBoundRectOfBezier(const DPOINT2& startPoint, const DPOINT2& firstControl,
                                     const DPOINT2& secondControl, const DPOINT2& endPoint)
{
    // Just above 1: the steps add up with rounding, and the sample at 1 is not to be lost.
    constexpr std::size_t sampleCount = detail::FirstSampleFrom(1.0000000001);
    const CubicForm curve(startPoint, firstControl, secondControl, endPoint);
    detail::GrowingBox box(BoxOfPoint(startPoint));
    for (std::size_t i = 1; i < sampleCount; ++i)
    {
        box.UnitePoint(curve.CoordinatesAt(detail::SampleParameters[i]));
    }
    return box.Box();
}

CSegment CSegment::GetSplitSegment(double t, bool first)
{
    const double cut = SnapToEnds(t);
    const DPOINT2 point = GetPoint(cut);
    if (IsZero(bulge))
    {
        return first ? CSegment(start, point) : CSegment(point, end);
    }
    const double sweep = ArcForm(start, end, bulge).sweep;
    return first ? CSegment(start, point, BulgeOfPiece(cut, sweep, bulge))
                 : CSegment(point, end, BulgeOfPiece(1.0 - cut, sweep, bulge));
}

CSegment CSegment::GetSplitSegment(double from, double to)
{
    const double pieceStart = SnapToEnds(from);
    const double pieceEnd = SnapToEnds(to);
    const DPOINT2 startPoint = GetPoint(pieceStart);
    const DPOINT2 endPoint = GetPoint(pieceEnd);
    if (IsZero(bulge))
    {
        return {startPoint, endPoint};
    }
    const double sweep = ArcForm(start, end, bulge).sweep;
    const double along = BulgeOfPiece(pieceStart - pieceEnd, sweep, bulge);
    return {startPoint, endPoint, pieceStart > pieceEnd ? -along : along};
}

} // namespace math
