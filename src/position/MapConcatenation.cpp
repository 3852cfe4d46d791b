#include "math/CPolyPosMap.h"

#include "position/Columns.h"
#include "position/PairList.h"

namespace math
{

using detail::ColumnValue;
using detail::DestinationSide;
using detail::JointList;
using detail::SourceSide;

namespace
{

/// Lifts the walk with the higher values past the seam where the column would run backwards: the later one upward, the
/// earlier one downward.
void RunOnPastSeam(JointList& earlier, JointList& later, int side, bool upward, int segmentCount)
{
    if (upward)
    {
        if (ColumnValue(earlier.back(), side) > ColumnValue(later.back(), side))
        {
            detail::ShiftColumn(later, side, segmentCount);
        }
    }
    else if (ColumnValue(later.front(), side) > ColumnValue(earlier.front(), side))
    {
        detail::ShiftColumn(earlier, side, segmentCount);
    }
}

} // namespace

CPolyPosMap CPolyPosMap::operator+(const CPolyPosMap& other) const
{
    if (IsInvalid() || other.IsInvalid() || m_srcSegmentCount != other.m_srcSegmentCount ||
        m_dstSegmentCount != other.m_dstSegmentCount)
    {
        return CPolyPosMap();
    }
    if (IsEmpty())
    {
        return other;
    }
    if (other.IsEmpty())
    {
        return *this;
    }
    JointList earlier;
    earlier.reserve(m_posPairs.size() + other.m_posPairs.size());
    earlier = m_posPairs;
    JointList later = other.m_posPairs;
    for (const int side : {DestinationSide, SourceSide})
    {
        const int segmentCount = side == SourceSide ? m_srcSegmentCount : m_dstSegmentCount;
        RunOnPastSeam(earlier, later, side, detail::RunsUpward(m_posPairs, side), segmentCount);
    }
    earlier.insert(earlier.end(), later.begin(), later.end());

    CPolyPosMap joined;
    joined.m_posPairs.swap(earlier);
    joined.m_srcSegmentCount = m_srcSegmentCount;
    joined.m_dstSegmentCount = m_dstSegmentCount;
    return joined;
}

CPolyPosMap& CPolyPosMap::operator+=(const CPolyPosMap& other)
{
    if (!IsInvalid())
    {
        *this = *this + other;
    }
    return *this;
}

} // namespace math
