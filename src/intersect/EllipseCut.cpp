#include "intersect/EllipseCut.h"

#include "intersect/QuadraticRoots.h"
#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <cmath>

#include <gp.hxx>

namespace math::detail
{

EllipseCut::EllipseCut(double angle, const DPOINT2& centre, double a, double b, double rotation)
    : m_frame(centre, rotation)
{
    const double foldedAngle = Fold(angle, Pi);
    m_isUpright = AreEqual(foldedAngle, HalfPi);
    m_worldSlope = m_isUpright ? InvalidDouble : std::tan(foldedAngle);

    const double foldedRotation = Fold(rotation, Pi);
    const auto [ownFirst, ownSecond] = OwnTangentPoints(a, b, Fold(foldedAngle - foldedRotation, Pi));
    const OwnFrame foldedFrame = foldedRotation == rotation ? m_frame : OwnFrame(centre, foldedRotation);
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
    const DPOINT2 own = m_frame.Into(point);
    const double offset = m_isFlat ? own.y - own.x * m_slope : own.x - own.y * m_slope;
    const QuadraticRoots roots = RootsOfQuadratic(m_leading, 2.0 * m_slope * offset, offset * offset - m_acrossSquare);
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

/// The point of the beeline where the coordinate that it runs along has a value, in the own frame.
DPOINT2 EllipseCut::PointAt(double coordinate, double offset) const
{
    const double other = coordinate * m_slope + offset;
    return m_isFlat ? DPOINT2(coordinate, other) : DPOINT2(other, coordinate);
}

} // namespace math::detail
