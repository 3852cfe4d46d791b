#include "intersect/EllipseCut.h"

#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <cmath>

#include <gp.hxx>

namespace math::detail
{

EllipseCut::EllipseCut(double angle, const OwnFrame& frame, const OwnFrame& foldedFrame, double a, double b,
                       double rotation)
    : m_chords(angle, frame, a, b, rotation)
{
    const double foldedAngle = Fold(angle, Pi);
    m_isUpright = AreEqual(foldedAngle, HalfPi);
    m_worldSlope = m_isUpright ? InvalidDouble : std::tan(foldedAngle);

    const double foldedRotation = Fold(rotation, Pi);
    const auto [ownFirst, ownSecond] = OwnTangentPoints(a, b, Fold(foldedAngle - foldedRotation, Pi));
    m_firstTangency = foldedFrame.OutOf(ownFirst);
    m_secondTangency = foldedFrame.OutOf(ownSecond);
}

TwoPoints EllipseCut::Through(const DPOINT2& point) const
{
    TwoPoints found;
    if (FindTangency(point, found.first))
    {
        found.count = 1;
        return found;
    }
    return m_chords.Through(point);
}

/// The point of the ellipse in which the beeline touches it, if it does.
bool EllipseCut::FindTangency(const DPOINT2& point, DPOINT2& tangency) const
{
    const Direction direction = DirectionThrough(point);
    for (const DPOINT2& candidate : {m_firstTangency, m_secondTangency})
    {
        if (IsZero((candidate.x - point.x) * direction.y - (candidate.y - point.y) * direction.x))
        {
            tangency = candidate;
            return true;
        }
    }
    return false;
}

/// The direction from a point to the beeline's second point, with the rounding of that second point. NaN if they
/// coincide.
EllipseCut::Direction EllipseCut::DirectionThrough(const DPOINT2& point) const
{
    if (m_isUpright && point.y == 0.0 && std::isfinite(point.x))
    {
        return {0.0, 1.0};
    }
    const double dx = m_isUpright ? point.x - point.x : point.x + 1.0 - point.x;
    const double dy = point.y + (m_isUpright ? 1.0 : m_worldSlope) - point.y;
    const double length = std::sqrt(dx * dx + dy * dy);
    return length <= gp::Resolution() ? Direction{InvalidDouble, InvalidDouble} : Direction{dx / length, dy / length};
}

} // namespace math::detail
