#pragma once

#include "intersect/EllipseCut.h"
#include "intersect/EllipseSector.h"
#include "intersect/PointOutputs.h"
#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

#include <array>
#include <cstddef>

/// How two ellipses meet: each is cut at its extreme points into four quarter arcs. Over a quarter arc y is a function
/// of x, so a vertical meets it once, and two of them are compared by height and slope at the ends of their shared
/// range.
namespace math::detail
{

/// The two ends of the range of x over which an arc is looked at.
struct ArcSpan
{
    DPOINT2 left;
    DPOINT2 right;
};

class QuarteredEllipse;

/// A stretch of an ellipse, counter-clockwise between two of its extreme points. It belongs to a QuarteredEllipse.
class EllipseQuarterArc
{
public:
    /// @param startRadian  polar angle of the first end from the own x axis, in [0, 2π)
    /// @param sweep        polar extent, in [0, 2π)
    EllipseQuarterArc(const QuarteredEllipse& ellipse, double startRadian, double sweep);

    const ArcSpan& Span() const
    {
        return m_span;
    }

    /// Where the vertical through x meets the arc. A vertical that misses leaves the point as it was.
    int MeetVertical(double x, DPOINT2& point) const;

    /// The same by way of the whole ellipse: of two points on the arc the first counts.
    void MeetVerticalOfEllipse(double x, DPOINT2& point) const;

    /// The direction of the ellipse at a point of it, in [0, π).
    double TangentAngleAt(const DPOINT2& point) const;

private:
    const QuarteredEllipse* m_ellipse;
    EllipseSector m_sector;
    double m_startRadian;
    double m_sweep;
    ArcSpan m_span;
};

/// An ellipse cut at the four points with a horizontal or vertical tangent into arcs in the order of their polar
/// angles, with all that its verticals and tangents have in common.
class QuarteredEllipse
{
public:
    /// @param rotation  direction of the own x axis, as given, not folded
    QuarteredEllipse(const DPOINT2& centre, double a, double b, double rotation);
    QuarteredEllipse(const QuarteredEllipse&) = delete;
    QuarteredEllipse& operator=(const QuarteredEllipse&) = delete;

    EllipseQuarterArc Arc(std::size_t index) const
    {
        return {*this, m_angles[index], m_sweeps[index]};
    }

private:
    friend class EllipseQuarterArc;

    DPOINT2 m_centre;
    double m_a;
    double m_b;
    double m_rotation;
    double m_foldedRotation; ///< in [0, π)
    OwnFrame m_foldedFrame;
    EllipseCut m_verticals;
    std::array<double, 4> m_angles;
    std::array<double, 4> m_sweeps;
};

/// The points that two quarter arcs share, found by height, slope and bisection: 0, 1 or 2.
TwoPoints IntersectQuarterArcs(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB);

} // namespace math::detail
