#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Sector.h"

#include <cmath>

namespace math::detail
{

/// Tells whether a point of an ellipse lies on an arc of it, by its direction alone. Both ends of the arc are in,
/// within DoubleTolerance of angle.
inline bool IsPointInEllipseSector(const DPOINT2& point, const DPOINT2& centre, double rotation, double startRadian,
                                   double extent, bool ccw)
{
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    const double sign = SignOf(ccw);
    constexpr double margin = 1e-6;
    const Verdict verdict = LookInSector(dx, dy, rotation + startRadian, extent, sign, margin);
    if (verdict != Verdict::Unsure)
    {
        return verdict == Verdict::Inside;
    }
    const double direction = D2GetNormalAngle(dx, dy);
    const double fromStart = Fold((direction - (rotation + startRadian)) * sign, TwoPi);
    return IsInSector(fromStart, extent);
}

/// The same for many points and one counter-clockwise arc of less than half a turn.
///
/// A point that lies clearly on one side of each of the two rays that bound the sector is judged by cross products; one
/// within a millionth of a radian of a ray, where rounding or the tolerance might count, is measured as above.
class EllipseSector
{
public:
    /// @param start  the unit vector of the ray to the start
    /// @param end    the same to the end
    EllipseSector(const DPOINT2& centre, double rotation, double startRadian, double extent, const DPOINT2& start,
                  const DPOINT2& end)
        : m_centre(centre),
          m_rotation(rotation),
          m_startRadian(startRadian),
          m_extent(extent),
          m_start(start),
          m_end(end),
          m_isPlain(IsOfFewTurns(rotation) && extent > 4.0 * Margin && extent < Pi - 4.0 * Margin)
    {
    }

    bool Holds(const DPOINT2& point) const
    {
        const double dx = point.x - m_centre.x;
        const double dy = point.y - m_centre.y;
        const double reach = std::abs(dx) + std::abs(dy);
        if (m_isPlain && HasSureDirection(reach))
        {
            const double margin = Margin * reach;
            const double pastStart = m_start.x * dy - m_start.y * dx;
            const double beforeEnd = dx * m_end.y - dy * m_end.x;
            if (pastStart > margin && beforeEnd > margin)
            {
                return true;
            }
            if (pastStart < -margin || beforeEnd < -margin)
            {
                return false;
            }
        }
        return IsPointInEllipseSector(point, m_centre, m_rotation, m_startRadian, m_extent, true);
    }

    /// A vector that points into the middle of an arc of less than half a turn.
    DPOINT2 Middle() const
    {
        return {m_start.x + m_end.x, m_start.y + m_end.y};
    }

private:
    static constexpr double Margin = 1e-6;

    DPOINT2 m_centre;
    double m_rotation;
    double m_startRadian;
    double m_extent;
    DPOINT2 m_start;
    DPOINT2 m_end;
    bool m_isPlain;
};

} // namespace math::detail
