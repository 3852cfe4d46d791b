#pragma once

#include "math/Primitives.h"
#include "primitives/Direction.h"
#include "primitives/PlaneVectors.h"
#include "primitives/Straight.h"

#include <algorithm>
#include <cmath>

namespace math::detail
{

/// Tells whether a stretch stays clear of the circle of a radius about the origin, inside it or outside, by more than
/// `margin`. The squares of all coordinates have to be within the range of numbers. False for NaN.
inline bool IsClearOfCircle(const DPOINT2& start, const DPOINT2& end, double radius, double margin)
{
    const double inside = radius - margin;
    const double outside = radius + margin;
    const double startSquare = Dot(start, start);
    const double endSquare = Dot(end, end);
    if (inside > 0.0 && std::max(startSquare, endSquare) < inside * inside)
    {
        return true;
    }
    const double square = outside * outside;
    const DPOINT2 along = Difference(end, start);
    const double offset = Cross(along, start);
    const bool isBeside = offset * offset > square * Dot(along, along);
    const bool isBeyondStart = startSquare > square && Dot(along, start) > 0.0;
    const bool isBeyondEnd = endSquare > square && Dot(along, end) < 0.0;
    return isBeside || isBeyondStart || isBeyondEnd;
}

/// Tells whether a stretch stays clear of a circle by far more than tolerance and rounding. Nothing is clear of NaN, and of
/// lengths whose squares leave the range of numbers.
inline bool IsClearOfCircle(const DPOINT2& start, const DPOINT2& end, const DPOINT2& centre, double radius)
{
    const DPOINT2 fromStart = Difference(start, centre);
    const DPOINT2 fromEnd = Difference(end, centre);
    const double reach = Reach(centre) + Reach(fromStart) + Reach(fromEnd) + radius;
    return Reach(Difference(end, start)) > 1e-50 && reach < 1e50 &&
           IsClearOfCircle(fromStart, fromEnd, radius, 1e-8 + 1e-12 * reach);
}

/// A stretch of a straight line against curves: the angle of the beeline that carries it, and the test whether the
/// beeline's points lie on it. One root serves both.
class BoundedLine
{
public:
    BoundedLine(const DPOINT2& start, const DPOINT2& end) : m_hasLength(MakeLineThrough(start, end, m_line)), m_end(end)
    {
    }

    /// What has no length has neither angle nor points.
    bool HasLength() const
    {
        return m_hasLength;
    }

    /// As D2GetNormalAngle of the way from start to end.
    double Angle() const
    {
        return NormalAngle(Difference(m_end, m_line.location), m_line.direction);
    }

    /// As IsPointInLine with DoubleTolerance, for a stretch with a length.
    bool Holds(const DPOINT2& point) const
    {
        return IsOnStretch(point, m_line, m_end, DoubleTolerance);
    }

private:
    StraightLine m_line{};
    bool m_hasLength;
    DPOINT2 m_end;
};

} // namespace math::detail
