#pragma once

#include "math/PosRangeD.h"

namespace math::detail
{

/// Moves positions to the lap in which a range lies, as PosRangeD::NormalizePos with a range does: what depends on the
/// range alone is found once.
class LapMover
{
public:
    LapMover(const PosRangeD& range, int segmentCount);

    double operator()(double position) const;

private:
    int m_segmentCount;
    double m_lowEnd;
    double m_highEnd;
    double m_shift = 0.0;      ///< start of the first lap that the range touches
    bool m_coversSeam = false; ///< the range goes on in another lap
};

} // namespace math::detail
