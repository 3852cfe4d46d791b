#pragma once

#include "intersect/PointOutputs.h"
#include "intersect/QuadraticRoots.h"
#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

#include <cmath>

namespace math::detail
{

/// Beelines of one direction that cross an ellipse, found in its own frame. What depends on no point is found once. Of
/// those that touch it nothing is known here.
class EllipseChords
{
public:
    /// @param frame     the own frame of the ellipse
    /// @param rotation  of that frame
    EllipseChords(double angle, const OwnFrame& frame, double a, double b, double rotation);

    /// The points of the ellipse on the beeline through a point.
    TwoPoints Through(const DPOINT2& point) const;

    /// Whether the beeline through a point stays clear of both tangents of its direction, by more than a thousandth. False
    /// for NaN.
    bool IsClearOfTangents(const DPOINT2& point) const
    {
        const double offset = OffsetOf(point);
        const double square = offset * offset;
        const double squareOfTangents = m_leading * m_alongSquare;
        return std::abs(square - squareOfTangents) > 2e-3 * (square + squareOfTangents);
    }

    /// One of both points of a beeline that is known to cross the ellipse, clear of its tangents.
    ///
    /// @param isFarther  whether it is the point farther along the own axis that the beeline runs along
    DPOINT2 CrossingThrough(const DPOINT2& point, bool isFarther) const
    {
        const double offset = OffsetOf(point);
        const QuadraticRoots roots = RootsThrough(offset);
        // The first root is the one of larger magnitude.
        const bool isFirst = (roots.first > 0.0) == isFarther;
        return m_frame.OutOf(PointAt(isFirst ? roots.first : roots.second, offset));
    }

    /// Whether the beelines rise, seen from the world, where they run along the own axis.
    bool RisesAlongOwnAxis() const
    {
        return m_frame.OutOf(PointAt(1.0, 0.0)).y > m_frame.OutOf(PointAt(-1.0, 0.0)).y;
    }

private:
    /// Where the beeline through a point crosses the own axis that it does not run along.
    double OffsetOf(const DPOINT2& point) const
    {
        const DPOINT2 own = m_frame.Into(point);
        return m_isFlat ? own.y - own.x * m_slope : own.x - own.y * m_slope;
    }

    /// The coordinates along the beeline of its points on the ellipse.
    QuadraticRoots RootsThrough(double offset) const
    {
        return RootsOfQuadratic(m_leading, 2.0 * m_slope * offset, offset * offset - m_acrossSquare);
    }

    /// The point of the beeline where the coordinate that it runs along has a value, in the own frame.
    DPOINT2 PointAt(double coordinate, double offset) const
    {
        const double other = coordinate * m_slope + offset;
        return m_isFlat ? DPOINT2(coordinate, other) : DPOINT2(other, coordinate);
    }

    OwnFrame m_frame;
    bool m_isFlat; ///< in the own frame: y is given by x, otherwise x by y, so that the slope is never above 1
    double m_slope;
    double m_alongSquare;  ///< of the semi-axis of the coordinate that the beeline runs along
    double m_acrossSquare; ///< of the other one
    double m_leading;
};

} // namespace math::detail
