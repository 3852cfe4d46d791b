#include "intersect/ArcCrossings.h"

#include "intersect/Iteration.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

CrossingSearch::CrossingSearch(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double lowX, double highX)
    : m_arcA(&arcA),
      m_arcB(&arcB),
      m_margin(HeightMargin(arcA, arcB))
{
    arcA.MeetVertical(lowX, m_points.lowOnA);
    arcB.MeetVertical(lowX, m_points.lowOnB);
    arcA.MeetVertical(highX, m_points.highOnA);
    m_differenceAtLow = m_points.lowOnA.y - m_points.lowOnB.y;
    m_range.ends = {m_points.lowOnA.x, m_points.highOnA.x};
}

/// The same decision by the points on both arcs.
MovingEnd CrossingSearch::ChooseEndByPoints(double middle)
{
    MeetBothAt(middle);
    const double difference = m_points.onA.y - m_points.onB.y;
    return IsZero(difference) ? MovingEnd::Neither : ChooseEnd(difference, m_differenceAtLow);
}

void CrossingSearch::MeetBothAt(double x)
{
    m_points.onA = m_arcA->MeetingAt(x);
    m_points.onB = m_arcB->MeetingAt(x);
}

DPOINT2 CrossingSearch::Finish()
{
    if (!m_range.isFound && m_range.HasBegun())
    {
        MeetBothAt(m_range.xOfLast);
    }
    if (!m_range.isFound && m_range.IsWide())
    {
        TakeOverEnds();
        HalveByVerticals();
    }
    return {(m_points.onA.x + m_points.onB.x) * 0.5, (m_points.onA.y + m_points.onB.y) * 0.5};
}

/// Finds the points in the ends of the range that has been reached.
void CrossingSearch::TakeOverEnds()
{
    if (m_range.HasMoved(MovingEnd::Low))
    {
        m_points.lowOnA = m_arcA->MeetingAt(m_range.XOf(MovingEnd::Low));
        m_points.lowOnB = m_arcB->MeetingAt(m_range.XOf(MovingEnd::Low));
    }
    if (m_range.HasMoved(MovingEnd::High))
    {
        m_points.highOnA = m_arcA->MeetingAt(m_range.XOf(MovingEnd::High));
    }
}

void CrossingSearch::HalveByVerticals()
{
    RunUntilItRepeats(m_points, [&](Points& state) {
        const double middle = (state.highOnA.x + state.lowOnA.x) * 0.5;
        m_arcA->MeetVerticalOfEllipse(middle, state.onA);
        m_arcB->MeetVerticalOfEllipse(middle, state.onB);
        const double difference = state.onA.y - state.onB.y;
        if (IsZero(difference))
        {
            return false;
        }
        if (ChooseEnd(difference, state.lowOnA.y - state.lowOnB.y) == MovingEnd::Low)
        {
            state.lowOnA = state.onA;
            state.lowOnB = state.onB;
        }
        else
        {
            state.highOnA = state.onA;
        }
        return state.IsWide();
    });
}

void ArcMeetings::AddCrossing(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double lowX, double highX)
{
    if (m_pendingCount == m_pending.size())
    {
        FindPending();
    }
    m_pending[m_pendingCount++] = {CrossingSearch(arcA, arcB, lowX, highX), m_count++};
}

const std::array<DPOINT2, 32>& ArcMeetings::Points()
{
    FindPending();
    return m_points;
}

/// The searches take their steps in turn: a step is a chain of quotients and a root, and the processor works on one
/// search while the other one waits for them.
void ArcMeetings::FindPending()
{
    bool goesOn = m_pendingCount > 0;
    while (goesOn)
    {
        goesOn = false;
        for (std::size_t i = 0; i < m_pendingCount; ++i)
        {
            goesOn |= m_pending[i].search.HalveOnce();
        }
    }
    for (std::size_t i = 0; i < m_pendingCount; ++i)
    {
        m_points[m_pending[i].place] = m_pending[i].search.Finish();
    }
    m_pendingCount = 0;
}

} // namespace math::detail
