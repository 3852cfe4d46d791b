#pragma once

#include "math/CSegment.h"
#include "math/Primitives.h"
#include "support/Support.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <cmath>

// A second implementation of arcs and of what is nearest on lines and arcs, with every angle measured, for comparison
// bit by bit.

namespace math::test::reference
{

/// All zero where the ends and the bulge make no arc.
struct SolvedArc
{
    DPOINT2 centre;
    double radius = 0;
    double startRadian = 0;
    double sweep = 0;
};

inline SolvedArc Solved(const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const double chord = D2GetDistance(start, end);
    if (std::abs(chord) < 1e-9 || std::abs(bulge) < 1e-9)
    {
        return {};
    }
    SolvedArc arc;
    arc.sweep = 4.0 * std::atan(bulge);
    arc.radius = std::abs((chord * 0.5) / std::sin(arc.sweep * 0.5));
    const double fromChord = std::abs(std::cos(arc.sweep * 0.5) * arc.radius);
    gp_Vec2d left(-(end.y - start.y), end.x - start.x);
    left.Normalize();
    const double side = (0 < bulge && bulge <= 1) || bulge <= -1 ? 1 : -1;
    arc.centre = {(start.x + end.x) * 0.5 + side * (fromChord * left.X()),
                  (start.y + end.y) * 0.5 + side * (fromChord * left.Y())};
    const double direction = std::atan2(start.y - arc.centre.y, start.x - arc.centre.x) + TwoPi;
    arc.startRadian = direction >= TwoPi ? direction - TwoPi : direction;
    return arc;
}

inline DRECT BoxOfArc(const DPOINT2& start, const DPOINT2& end, double bulge)
{
    DRECT box = CSegment::GetBoundRectOfLine(start, end);
    if ((std::abs(start.x - end.x) < 1e-9 && std::abs(start.y - end.y) < 1e-9) || std::abs(bulge) < 1e-9)
    {
        return box;
    }
    const SolvedArc arc = Solved(start, end, bulge);
    const double arcEnd = arc.startRadian + arc.sweep;
    const double least = std::min(arc.startRadian, arcEnd) - 1e-9;
    const double greatest = std::max(arc.startRadian, arcEnd) + 1e-9;
    const DPOINT2 axisPoints[] = {{arc.centre.x + arc.radius, arc.centre.y},
                                  {arc.centre.x, arc.centre.y + arc.radius},
                                  {arc.centre.x - arc.radius, arc.centre.y},
                                  {arc.centre.x, arc.centre.y - arc.radius}};
    for (int quarter = 0; quarter < 4; ++quarter)
    {
        for (const double turn : {0.0, TwoPi, -TwoPi})
        {
            const double direction = quarter * HalfPi + turn;
            if (least <= direction && direction <= greatest)
            {
                box.Union(box, {axisPoints[quarter].x, axisPoints[quarter].y, 0, 0});
                break;
            }
        }
    }
    return box;
}

/// A point of a segment with its parameter.
struct Nearest
{
    DPOINT2 point;
    double t;
};

inline double Clamped(double t)
{
    const double below = t < 1 ? t : 1;
    return below > 0 ? below : 0;
}

inline Nearest NearerEnd(const DPOINT2& start, const DPOINT2& end, double toStart, double toEnd)
{
    return toEnd <= toStart ? Nearest{end, 1} : Nearest{start, 0};
}

inline Nearest NearestOnLine(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end)
{
    const auto square = [](double x, double y) { return x * x + y * y; };
    if (!IsPointProjInLine(p, start, end))
    {
        return NearerEnd(start, end, square(p.x - start.x, p.y - start.y), square(p.x - end.x, p.y - end.y));
    }
    const double dx = end.x - start.x;
    const double dy = end.y - start.y;
    const double t = Clamped(((p.x - start.x) * dx + (p.y - start.y) * dy) / (dx * dx + dy * dy));
    return {{start.x + dx * t, start.y + dy * t}, t};
}

/// The part of the way along an arc at which a direction lies; one that lies beyond the ends, as far as the sector's
/// tolerance reaches, is taken for an end.
inline double RatioOnArc(double direction, double start, double end, bool counterClockwise, bool isNearerToStart)
{
    const bool wraps = counterClockwise ? end - start <= 0 : !(end - start <= 0);
    if (!wraps)
    {
        if (direction < std::min(start, end) || direction > std::max(start, end))
        {
            direction = isNearerToStart ? start : end;
        }
        return std::abs(direction - start) / std::abs(end - start);
    }
    if (direction > std::min(start, end) && direction < std::max(start, end))
    {
        direction = std::abs(direction - end) < std::abs(direction - start) ? end : start;
    }
    if (counterClockwise)
    {
        return std::abs((direction <= end ? direction + TwoPi : direction) - start) / std::abs((end - start) + TwoPi);
    }
    return std::abs(start - (direction < end ? direction : direction - TwoPi)) / std::abs((start - end) + TwoPi);
}

inline Nearest NearestOnArc(const DPOINT2& p, const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const SolvedArc arc = Solved(start, end, bulge);
    const auto directionOf = [&](const DPOINT2& point) {
        return ComputeAngle(point.x - arc.centre.x, point.y - arc.centre.y);
    };
    const double toStart = D2GetDistance(p, start);
    const double toEnd = D2GetDistance(p, end);
    const bool isAtCentre = D2GetDistance(p, arc.centre) <= 4.0 * (std::nextafter(arc.radius, Infinity) - arc.radius);
    const double direction = directionOf(p);
    if (isAtCentre || !IsAngleInSector(direction, arc.startRadian, std::abs(arc.sweep), arc.sweep > 0))
    {
        return NearerEnd(start, end, toStart, toEnd);
    }
    const double ratio = RatioOnArc(direction, directionOf(start), directionOf(end), bulge >= 0, toStart < toEnd);
    return {GetPointInCircle(arc.centre, arc.radius, direction), Clamped(ratio)};
}

inline Nearest NearestOn(const CSegment& segment, const DPOINT2& p)
{
    return std::abs(segment.bulge) < 1e-9 ? NearestOnLine(p, segment.start, segment.end)
                                          : NearestOnArc(p, segment.start, segment.end, segment.bulge);
}

} // namespace math::test::reference
