#pragma once

#include "intersect/QuarterArcs.h"
#include "intersect/SureHalving.h"
#include "math/Primitives.h"
#include "primitives/Tolerance.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace math::detail
{

/// The search for the point of two arcs where their height difference changes its sign.
class CrossingSearch
{
public:
    CrossingSearch() = default;

    /// @param lowX, highX  the range of x
    CrossingSearch(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double lowX, double highX);

    /// Takes a step as long as both arcs are surely met. Their estimated heights decide where they are clear of each
    /// other, the points themselves elsewhere.
    ///
    /// @return whether such a step may follow
    bool HalveOnce()
    {
        // Products with a difference that counts as none may be rounded to zero.
        return !IsZero(m_differenceAtLow) && m_range.HalveOnce(*m_arcA, *m_arcB, [&](double middle) {
            const double estimate = m_arcA->HeightAt(middle) - m_arcB->HeightAt(middle);
            return std::abs(estimate) > m_margin ? ChooseEnd(estimate, m_differenceAtLow) : ChooseEndByPoints(middle);
        });
    }

    /// Takes all other steps. A range no wider than the tolerance leaves the origin.
    DPOINT2 Finish();

private:
    struct Points
    {
        DPOINT2 lowOnA;
        DPOINT2 lowOnB;
        DPOINT2 highOnA;
        DPOINT2 onA;
        DPOINT2 onB;

        bool IsWide() const
        {
            return lowOnA.x + DoubleTolerance < highOnA.x;
        }
    };

    MovingEnd ChooseEndByPoints(double middle);
    void MeetBothAt(double x);
    void TakeOverEnds();
    void HalveByVerticals();

    const EllipseQuarterArc* m_arcA = nullptr;
    const EllipseQuarterArc* m_arcB = nullptr;
    Points m_points;
    SureHalving m_range{};
    double m_differenceAtLow = 0.0;
    double m_margin = 0.0;
};

/// The points of sixteen pairs of quarter arcs, each of which has two at most, in the order in which they are added.
class ArcMeetings
{
public:
    void AddPoint(const DPOINT2& point)
    {
        m_points[m_count++] = point;
    }

    /// Adds the point that a search will find. The arcs have to live until the points are asked for.
    void AddCrossing(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double lowX, double highX);

    std::size_t Count() const
    {
        return m_count;
    }

    /// The points, of which the first Count() hold one.
    const std::array<DPOINT2, 32>& Points();

private:
    struct Pending
    {
        CrossingSearch search;
        std::size_t place = 0;
    };

    void FindPending();

    std::array<DPOINT2, 32> m_points;
    std::size_t m_count = 0;
    std::array<Pending, 4> m_pending;
    std::size_t m_pendingCount = 0;
};

} // namespace math::detail
