#pragma once

#include "intersect/EllipseChords.h"
#include "intersect/PointOutputs.h"
#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

namespace math::detail
{

/// Beelines of one direction against one ellipse, those that touch it among them: the tangents of that direction are
/// found once.
class EllipseCut
{
public:
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

    /// The same beelines, for points from which none of them can touch.
    const EllipseChords& Chords() const
    {
        return m_chords;
    }

private:
    struct Direction
    {
        double x;
        double y;
    };

    bool FindTangency(const DPOINT2& point, DPOINT2& tangency) const;
    Direction DirectionThrough(const DPOINT2& point) const;

    EllipseChords m_chords;
    bool m_isUpright;    ///< the beelines are vertical in the world
    double m_worldSlope; ///< of beelines that are not
    DPOINT2 m_firstTangency;
    DPOINT2 m_secondTangency;
};

} // namespace math::detail
