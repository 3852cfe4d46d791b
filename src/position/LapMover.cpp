#include "position/LapMover.h"

#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

LapMover::LapMover(const PosRangeD& range, int segmentCount)
    : m_segmentCount(segmentCount),
      m_lowEnd(range.start),
      m_highEnd(range.end)
{
    if (segmentCount == 0)
    {
        return;
    }
    if (m_lowEnd > m_highEnd || AreEqual(m_lowEnd, m_highEnd))
    {
        m_highEnd += segmentCount;
    }
    const double firstLap = static_cast<double>(WholeLaps(m_lowEnd, segmentCount));
    double lastLap = static_cast<double>(WholeLaps(m_highEnd, segmentCount));
    if (AreEqual(m_highEnd, lastLap * segmentCount))
    {
        // An end at a seam belongs to the lap that it closes.
        lastLap -= 1.0;
    }
    m_shift = firstLap * segmentCount;
    m_coversSeam = firstLap != lastLap;
}

double LapMover::operator()(double position) const
{
    if (m_segmentCount == 0)
    {
        return NoPosition;
    }
    if (AreEqual(position, m_lowEnd) || AreEqual(position, m_highEnd))
    {
        return position;
    }
    const bool isAtSeam = IsZero(position) || AreEqual(position, m_segmentCount);
    const double wrapped = PosRangeD::NormalizePos(position, m_segmentCount);
    if (std::isinf(position) || (m_segmentCount < 0 && !isAtSeam))
    {
        return wrapped;
    }
    const double moved = wrapped + m_shift;
    return m_coversSeam && m_lowEnd > moved ? moved + m_segmentCount : moved;
}

} // namespace math::detail
