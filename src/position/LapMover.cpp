#include "position/LapMover.h"

#include "math/PosRangeD.h"

#include <cmath>

namespace math::detail
{

void LapMover::FindLaps()
{
    if (m_segmentCount == 0)
    {
        return;
    }
    if (m_lowEnd > m_highEnd || AreEqual(m_lowEnd, m_highEnd))
    {
        m_highEnd += m_segmentCount;
    }
    const double firstLap = static_cast<double>(WholeLaps(m_lowEnd, m_segmentCount));
    double lastLap = static_cast<double>(WholeLaps(m_highEnd, m_segmentCount));
    if (AreEqual(m_highEnd, lastLap * m_segmentCount))
    {
        // An end at a seam belongs to the lap that it closes.
        lastLap -= 1.0;
    }
    m_shift = firstLap * m_segmentCount;
    m_coversSeam = firstLap != lastLap;
}

double LapMover::MoveFromAfar(double position) const
{
    const bool isAtSeam = IsZero(position) || AreEqual(position, m_segmentCount);
    const double wrapped = PosRangeD::NormalizePos(position, m_segmentCount);
    if (std::isinf(position) || (m_segmentCount < 0 && !isAtSeam))
    {
        return wrapped;
    }
    return LiftIntoRange(wrapped);
}

} // namespace math::detail
