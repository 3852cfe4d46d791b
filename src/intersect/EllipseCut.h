#pragma once

#include "intersect/PointOutputs.h"
#include "intersect/QuadraticRoots.h"
#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

namespace math::detail
{

/// Beelines of one direction against one ellipse. What depends on neither point is found once: the tangents of that
/// direction, the slope in the ellipse's own frame, the leading coefficient.
class EllipseCut
{
public:
    EllipseCut(double angle, const DPOINT2& centre, double a, double b, double rotation);

    /// @param frame        the own frame of the ellipse
    /// @param foldedFrame  the same with the rotation folded into [0, π)
    EllipseCut(double angle, const OwnFrame& frame, const OwnFrame& foldedFrame, double a, double b, double rotation);

    const DPOINT2& FirstTangency() const
    {
        return m_firstTangency;
    }

    const DPOINT2& SecondTangency() const
    {
        return m_secondTangency;
    }

    /// Where the beeline through a point meets the ellipse. A beeline that touches it within DoubleTolerance meets it in
    /// the point with a tangent of its direction.
    TwoPoints Through(const DPOINT2& point) const;

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
    struct Direction
    {
        double x;
        double y;
    };

    bool FindTangency(const DPOINT2& point, DPOINT2& tangency) const;
    Direction DirectionThrough(const DPOINT2& point) const;

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
    bool m_isUpright;    ///< the beelines are vertical in the world
    double m_worldSlope; ///< of beelines that are not
    DPOINT2 m_firstTangency;
    DPOINT2 m_secondTangency;
    bool m_isFlat; ///< in the own frame: y is given by x, otherwise x by y, so that the slope is never above 1
    double m_slope;
    double m_acrossSquare; ///< of the semi-axis of the coordinate that is given
    double m_leading;
};

} // namespace math::detail
