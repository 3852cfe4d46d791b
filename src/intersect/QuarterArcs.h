#pragma once

#include "intersect/EllipseCut.h"
#include "intersect/EllipseHeights.h"
#include "intersect/EllipseSector.h"
#include "intersect/PointOutputs.h"
#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

#include <array>
#include <cstddef>
#include <limits>

/// An ellipse is cut at its extreme points into four quarter arcs. Over a quarter arc y is a function of x, so a vertical
/// meets it once.
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
    /// @param index  of the arc, in the order of the polar angles
    EllipseQuarterArc(const QuarteredEllipse& ellipse, std::size_t index);

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

    /// Whether the vertical through x meets the arc, as far as that is beyond doubt: it never is for an ellipse of
    /// extraordinary size or shape. Where the vertical surely meets the arc, the three below are in force.
    Verdict IsMetAt(double x) const
    {
        if (m_sureLeft < x && x < m_sureRight)
        {
            return Verdict::Inside;
        }
        const bool isBeside = (m_missLeft < x && x < m_span.left.x - m_clearance) ||
                              (m_span.right.x + m_clearance < x && x < m_missRight);
        return isBeside ? Verdict::Outside : Verdict::Unsure;
    }

    /// The point in which MeetVertical meets the arc. Its x is that of the vertical but for the last bits.
    DPOINT2 MeetingAt(double x) const;

    /// Height and slope in that point, each within a margin.
    double HeightAt(double x) const;
    double SlopeAt(double x) const;

    const EllipseHeights& Heights() const;

private:
    const QuarteredEllipse* m_ellipse;
    EllipseSector m_sector;
    double m_startRadian;
    double m_sweep;
    ArcSpan m_span;
    double m_side = 1.0;      ///< 1 on the upper half of the ellipse, -1 on the lower one
    bool m_isFarther = false; ///< of the two points of a vertical
    double m_clearance = 0.0;
    double m_sureLeft = std::numeric_limits<double>::infinity();
    double m_sureRight = -std::numeric_limits<double>::infinity();
    double m_missLeft = std::numeric_limits<double>::infinity();
    double m_missRight = -std::numeric_limits<double>::infinity();
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
        return {*this, index};
    }

private:
    friend class EllipseQuarterArc;

    DPOINT2 EndOfArc(std::size_t index) const;

    DPOINT2 m_centre;
    double m_a;
    double m_b;
    double m_rotation;
    double m_foldedRotation; ///< in [0, π)
    OwnFrame m_frame;
    OwnFrame m_foldedFrame;
    EllipseCut m_verticals;
    EllipseHeights m_heights;
    std::array<double, 4> m_angles;
    std::array<double, 4> m_sweeps;
    std::array<DPOINT2, 4> m_corners; ///< the points at the angles
    std::array<DPOINT2, 4> m_rays;    ///< unit vectors towards them
};

inline DPOINT2 EllipseQuarterArc::MeetingAt(double x) const
{
    return m_ellipse->m_verticals.Chords().CrossingThrough({x, 0.0}, m_isFarther);
}

inline double EllipseQuarterArc::HeightAt(double x) const
{
    return m_ellipse->m_heights.HeightAt(x, m_side);
}

inline double EllipseQuarterArc::SlopeAt(double x) const
{
    return m_ellipse->m_heights.SlopeAt(x, m_side);
}

inline const EllipseHeights& EllipseQuarterArc::Heights() const
{
    return m_ellipse->m_heights;
}

/// Whether the vertical through x surely meets both arcs.
inline bool AreSurelyMetAt(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double x)
{
    return arcA.IsMetAt(x) == Verdict::Inside && arcB.IsMetAt(x) == Verdict::Inside;
}

/// The estimated height difference beyond which both arcs are clear of each other.
inline double HeightMargin(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB)
{
    return DoubleTolerance + arcA.Heights().HeightMargin() + arcB.Heights().HeightMargin();
}

} // namespace math::detail
