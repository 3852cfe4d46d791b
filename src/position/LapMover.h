#pragma once

#include "math/Primitives.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

namespace math::detail
{

/// Moves positions to the lap in which a range lies, as PosRangeD::NormalizePos with a range does: what depends on the
/// range alone is found once.
class LapMover
{
public:
    LapMover(const Span& range, int segmentCount)
        : m_segmentCount(segmentCount),
          m_lowEnd(range.start),
          m_highEnd(range.end)
    {
        // What begins and ends in the first lap stays there.
        if (!(m_lowEnd >= 0 && m_highEnd - m_lowEnd >= DoubleTolerance && m_highEnd <= segmentCount))
        {
            FindLaps();
        }
    }

    double operator()(double position) const
    {
        if (m_segmentCount == 0)
        {
            return NoPosition;
        }
        if (AreEqual(position, m_lowEnd) || AreEqual(position, m_highEnd))
        {
            return position;
        }
        return LiesWithinFirstLap(position, m_segmentCount) ? LiftIntoRange(position) : MoveFromAfar(position);
    }

private:
    /// Finds the laps in which the range begins and ends.
    void FindLaps();

    /// Moves a position that does not lie between the seams of the first lap.
    double MoveFromAfar(double position) const;

    /// Moves a position from the first lap to that of the range.
    double LiftIntoRange(double wrapped) const
    {
        const double moved = wrapped + m_shift;
        return m_coversSeam && m_lowEnd > moved ? moved + m_segmentCount : moved;
    }

    int m_segmentCount;
    double m_lowEnd;
    double m_highEnd;
    double m_shift = 0.0;      ///< start of the first lap that the range touches
    bool m_coversSeam = false; ///< the range goes on in another lap
};

} // namespace math::detail
