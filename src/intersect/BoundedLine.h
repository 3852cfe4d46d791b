#pragma once

#include "math/Primitives.h"
#include "primitives/Direction.h"
#include "primitives/PlaneVectors.h"
#include "primitives/Straight.h"

#include <cmath>

namespace math::detail
{

/// A stretch of a straight line against curves: the angle of the beeline that carries it, and the test whether the
/// beeline's points lie on it. One root serves both.
class BoundedLine
{
public:
    BoundedLine(const DPOINT2& start, const DPOINT2& end)
        : m_hasDirection(MakeLineThrough(start, end, m_line)),
          m_end(end)
    {
    }

    /// As D2GetNormalAngle of the way from start to end.
    double Angle() const
    {
        return NormalAngle(Difference(m_end, m_line.location), m_line.direction);
    }

    /// As IsPointInLine with DoubleTolerance.
    bool Holds(const DPOINT2& point) const
    {
        return m_hasDirection && IsOnStretch(point, m_line, m_end, DoubleTolerance);
    }

    /// Tells whether the stretch stays clear of a ring between two circles about one centre, by far more than tolerance
    /// and rounding: inside both or outside both. Nothing is clear of NaN, and of lengths whose squares leave the range of
    /// numbers.
    bool IsClearOfRing(const DPOINT2& centre, double innerRadius, double outerRadius) const
    {
        const DPOINT2 along = Difference(m_end, m_line.location);
        const DPOINT2 toStart = Difference(m_line.location, centre);
        const DPOINT2 toEnd = Difference(m_end, centre);
        const double reach = Reach(centre) + Reach(toStart) + Reach(toEnd) + outerRadius;
        if (!(Reach(along) > 1e-50 && reach < 1e50))
        {
            return false;
        }
        const double margin = 1e-8 + 1e-12 * reach;
        const double inside = innerRadius - margin;
        const double outside = outerRadius + margin;
        const double startSquare = Dot(toStart, toStart);
        const double endSquare = Dot(toEnd, toEnd);
        if (inside > 0.0 && std::max(startSquare, endSquare) < inside * inside)
        {
            return true;
        }
        const double square = outside * outside;
        const double offset = Cross(along, toStart);
        const bool isBeside = offset * offset > square * Dot(along, along);
        const bool isBeyondStart = startSquare > square && Dot(along, toStart) > 0.0;
        const bool isBeyondEnd = endSquare > square && Dot(along, toEnd) < 0.0;
        return isBeside || isBeyondStart || isBeyondEnd;
    }

private:
    StraightLine m_line{};
    bool m_hasDirection;
    DPOINT2 m_end;
};

} // namespace math::detail
