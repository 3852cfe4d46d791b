#include "intersect/EllipseCut.h"

#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <cmath>

#include <gp.hxx>

namespace math::detail
{

EllipseCut::EllipseCut(double angle, const DPOINT2& centre, double a, double b, double rotation)
    : EllipseCut(angle, OwnFrame(centre, rotation), OwnFrame(centre, Fold(rotation, Pi)), a, b, rotation)
{
}

EllipseCut::EllipseCut(double angle, const OwnFrame& frame, const OwnFrame& foldedFrame, double a, double b,
                       double rotation)
    : m_frame(frame)
{
    const double foldedAngle = Fold(angle, Pi);
    m_isUpright = AreEqual(foldedAngle, HalfPi);
    m_worldSlope = m_isUpright ? InvalidDouble : std::tan(foldedAngle);

    const double foldedRotation = Fold(rotation, Pi);
    const auto [ownFirst, ownSecond] = OwnTangentPoints(a, b, Fold(foldedAngle - foldedRotation, Pi));
    m_firstTangency = foldedFrame.OutOf(ownFirst);
    m_secondTangency = foldedFrame.OutOf(ownSecond);

    const double frameAngle = Fold(angle - rotation, Pi);
    m_isFlat = frameAngle <= QuarterPi || frameAngle >= ThreeQuartersPi;
    m_slope = std::tan(m_isFlat ? frameAngle : HalfPi - frameAngle);
    const double alongSquare = m_isFlat ? a * a : b * b;
    m_acrossSquare = m_isFlat ? b * b : a * a;
    m_leading = m_slope * m_slope + m_acrossSquare / alongSquare;
}

TwoPoints EllipseCut::Through(const DPOINT2& point) const
{
    TwoPoints found;
    if (FindTangency(point, found.first))
    {
        found.count = 1;
        return found;
    }
    const double offset = OffsetOf(point);
    const QuadraticRoots roots = RootsThrough(offset);
    const auto take = [&](double root, DPOINT2& output) {
        const DPOINT2 onLine = PointAt(root, offset);
        if (!std::isnan(onLine.x) && !std::isnan(onLine.y))
        {
            output = m_frame.OutOf(onLine);
            ++found.count;
        }
    };
    if (roots.count > 0)
    {
        take(roots.first, found.first);
    }
    if (roots.count > 1)
    {
        take(roots.second, found.second);
    }
    return found;
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
