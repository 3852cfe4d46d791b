#pragma once

#include "math/Primitives.h"

#include <algorithm>
#include <cmath>

#include <gp.hxx>

/// Straight lines as the arithmetic needs them: a place and a direction of length 1.
namespace math::detail
{

struct UnitVector
{
    double x;
    double y;
};

/// Brings a vector to length 1, with the toolkit's arithmetic and its limit, but without an exception.
///
/// @return false for a vector no longer than gp::Resolution(), which has no direction
inline bool Normalize(double x, double y, UnitVector& direction)
{
    const double length = std::sqrt(x * x + y * y);
    if (length <= gp::Resolution())
    {
        return false;
    }
    direction = {x / length, y / length};
    return true;
}

/// An unbounded line.
struct StraightLine
{
    DPOINT2 location;
    UnitVector direction;
};

/// The unbounded line through two points.
///
/// @return false if the points are one
inline bool MakeLineThrough(const DPOINT2& first, const DPOINT2& second, StraightLine& line)
{
    line.location = first;
    return Normalize(second.x - first.x, second.y - first.y, line.direction);
}

inline double DistanceToLine(const DPOINT2& point, const StraightLine& line)
{
    return std::abs((point.x - line.location.x) * line.direction.y - (point.y - line.location.y) * line.direction.x);
}

/// Tells whether a point lies on the stretch of a line from its location to `end`.
inline bool IsOnStretch(const DPOINT2& point, const StraightLine& line, const DPOINT2& end, double tolerance)
{
    if (DistanceToLine(point, line) > tolerance)
    {
        return false;
    }
    const DPOINT2& start = line.location;
    const auto isBetween = [&](double value, double oneEnd, double otherEnd) {
        return value >= std::min(oneEnd, otherEnd) - tolerance && value <= std::max(oneEnd, otherEnd) + tolerance;
    };
    return std::abs(start.x - end.x) > std::abs(start.y - end.y) ? isBetween(point.x, start.x, end.x)
                                                                 : isBetween(point.y, start.y, end.y);
}

} // namespace math::detail
