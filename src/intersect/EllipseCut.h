#pragma once

#include "intersect/PointOutputs.h"
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

    /// Where the beeline through a point meets the ellipse. A beeline that touches it within DoubleTolerance meets it in
    /// the point with a tangent of its direction.
    TwoPoints Through(const DPOINT2& point) const;

private:
    struct Direction
    {
        double x;
        double y;
    };

    bool FindTangency(const DPOINT2& point, DPOINT2& tangency) const;
    Direction DirectionThrough(const DPOINT2& point) const;
    DPOINT2 PointAt(double coordinate, double offset) const;

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
