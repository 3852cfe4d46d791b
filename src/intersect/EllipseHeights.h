#pragma once

#include "intersect/OrdinaryEllipse.h"
#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

#include <algorithm>
#include <cmath>

namespace math::detail
{

/// The upper and the lower half of an ellipse as functions of x, y = centre.y + tilt * dx ± rise * √(halfWidth² - dx²).
///
/// They cost one square root, and differ from the points that EllipseCut finds by rounding alone. How far is bounded for
/// ellipses of ordinary size and shape, away from their leftmost and rightmost points, where the root amplifies errors:
/// there they tell beforehand what a comparison of such points would tell.
class EllipseHeights
{
public:
    /// @param frame     the own frame of the ellipse
    /// @param rotation  of that frame
    EllipseHeights(const OwnFrame& frame, const DPOINT2& centre, double a, double b, double rotation)
        : m_centre(centre),
          m_isOrdinary(IsOrdinaryEllipse(centre, a, b, rotation))
    {
        if (!m_isOrdinary)
        {
            return;
        }
        const double cosine = frame.Cosine();
        const double sine = frame.Sine();
        m_halfWidthSquare = a * a * cosine * cosine + b * b * sine * sine;
        m_halfWidth = std::sqrt(m_halfWidthSquare);
        m_tilt = (a - b) * (a + b) * sine * cosine / m_halfWidthSquare;
        m_rise = a * b / m_halfWidthSquare;
        const double flatness = std::max(a / b, b / a);
        const double reach = std::abs(centre.x) + std::abs(centre.y) + a + b;
        m_heightMargin = 1e-12 * flatness * flatness * reach;
        m_missReach = std::sqrt(std::max(0.5e9 / (flatness * flatness) - std::max(a * a, b * b), 0.0) * 0.5);
        m_angleMargin = (m_heightMargin + 2.0 * DoubleTolerance) * flatness / std::min(a, b);
    }

    /// Whether there is any x at which heights and slopes are within their margins.
    bool IsOrdinary() const
    {
        return m_isOrdinary;
    }

    /// How far from the centre, to the left and to the right, heights and slopes are within their margins.
    double SureReach() const
    {
        return 0.9995 * m_halfWidth;
    }

    /// How far from the centre a vertical beside the ellipse surely counts as one that misses it. The quadratic of one
    /// farther out may be taken for a linear equation, which always has a root.
    double MissReach() const
    {
        return m_missReach;
    }

    /// Whether a direction from the centre leads to the upper half.
    bool IsUpward(double dx, double dy) const
    {
        return dy > m_tilt * dx;
    }

    /// @param side  1 for the upper half, -1 for the lower one
    double HeightAt(double x, double side) const
    {
        const double dx = x - m_centre.x;
        return m_centre.y + m_tilt * dx + side * m_rise * std::sqrt(m_halfWidthSquare - dx * dx);
    }

    double SlopeAt(double x, double side) const
    {
        const double dx = x - m_centre.x;
        return m_tilt - side * m_rise * dx / std::sqrt(m_halfWidthSquare - dx * dx);
    }

    /// How far a height may be from that of the point that a vertical meets.
    double HeightMargin() const
    {
        return m_heightMargin;
    }

    /// How far the angle of a slope may be from that of the tangent in that point.
    double AngleMargin() const
    {
        return m_angleMargin;
    }

private:
    DPOINT2 m_centre;
    bool m_isOrdinary;
    double m_halfWidthSquare = 0.0;
    double m_halfWidth = 0.0;
    double m_tilt = 0.0;
    double m_rise = 0.0;
    double m_heightMargin = 0.0;
    double m_angleMargin = 0.0;
    double m_missReach = 0.0;
};

} // namespace math::detail
