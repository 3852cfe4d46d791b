#include "position/Positions.h"

#include "math/PosRangeD.h"
#include "position/SortStably.h"

#include <algorithm>
#include <limits>

namespace math::detail
{

int SaturateToInt(std::int64_t value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

std::int64_t WholeLaps(double position, int segmentCount)
{
    if (position >= 0 && position < segmentCount)
    {
        return 0;
    }
    // Wide enough for the least int divided by -1.
    return static_cast<std::int64_t>(PosRangeD::GetSegmentIndex(position)) / segmentCount;
}

void SortPositions(std::vector<double>::iterator begin, std::vector<double>::iterator end, bool ascending)
{
    SortStably(begin, end, [ascending](double a, double b) { return LiesBefore(a, b, ascending); });
}

} // namespace math::detail
