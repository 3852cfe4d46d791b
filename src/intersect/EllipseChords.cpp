#include "intersect/EllipseChords.h"

#include "primitives/Constants.h"
#include "primitives/Fold.h"

#include <cmath>

namespace math::detail
{

EllipseChords::EllipseChords(double angle, const OwnFrame& frame, double a, double b, double rotation) : m_frame(frame)
{
    const double frameAngle = Fold(angle - rotation, Pi);
    m_isFlat = frameAngle <= QuarterPi || frameAngle >= ThreeQuartersPi;
    m_slope = std::tan(m_isFlat ? frameAngle : HalfPi - frameAngle);
    m_alongSquare = m_isFlat ? a * a : b * b;
    m_acrossSquare = m_isFlat ? b * b : a * a;
    m_leading = m_slope * m_slope + m_acrossSquare / m_alongSquare;
}

TwoPoints EllipseChords::Through(const DPOINT2& point) const
{
    TwoPoints found;
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

} // namespace math::detail
