#include "math/CPolyPosMap.h"

#include "position/Columns.h"
#include "position/PairList.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>

namespace math
{

using detail::BothSides;
using detail::ColumnValue;
using detail::DestinationSide;
using detail::Joint;
using detail::JointList;
using detail::SourceSide;

namespace
{

/// Laps to take off so that `position` comes into the first lap. At a negative multiple of the count it is one lap more
/// than needed, which brings the position to the count instead of 0.
std::int64_t LapsToTakeOff(double position, int segmentCount)
{
    if (segmentCount == 0)
    {
        return 0;
    }
    if (position >= 0)
    {
        return detail::WholeLaps(position, segmentCount);
    }
    // A NaN lies in no lap.
    return position < 0 ? -1 - detail::WholeLaps(-position, segmentCount) : 0;
}

void TakeOffLaps(JointList& joints, int side, std::int64_t laps, int segmentCount)
{
    if (laps != 0)
    {
        detail::ShiftColumn(joints, side, -static_cast<double>(laps * segmentCount));
    }
}

/// The first whole position at or past a position above 0.
std::int64_t NodeAtOrPast(double position)
{
    const std::int64_t node = PosRangeD::GetSegmentIndex(position);
    return detail::IsZero(PosRangeD::GetRadio(position)) ? node : node + 1;
}

/// The whole positions of one lap.
struct Nodes
{
    std::int64_t first;
    std::int64_t last;
};

/// Gives a rising column a joint at every node in one sweep. A node is interpolated between the joint before it, which
/// may be the node before, and the joint after it, as if the nodes were inserted one by one.
///
/// @param isMirrored  the list was turned round for the sweep: it is interpolated the way it really runs
JointList FillRising(const JointList& joints, int side, const Nodes& nodes, bool isMirrored)
{
    const int otherSide = detail::OtherSide(side);
    JointList filled;
    filled.reserve(joints.size() + static_cast<std::size_t>(nodes.last - nodes.first + 1));
    auto next = joints.begin();
    for (std::int64_t node = nodes.first; node <= nodes.last; ++node)
    {
        const double position = static_cast<double>(node);
        const auto ahead = [&](const Joint& joint) { return ColumnValue(joint, side) - position; };
        while (next != joints.end() && ahead(*next) <= -DoubleTolerance)
        {
            filled.push_back(*next++);
        }
        if (next != joints.end() && ahead(*next) < DoubleTolerance)
        {
            continue;
        }
        double image = ColumnValue(filled.empty() ? joints.front() : filled.back(), otherSide);
        if (!filled.empty() && next != joints.end())
        {
            image = isMirrored ? detail::InterpolateBetween(*next, filled.back(), position, side)
                               : detail::InterpolateBetween(filled.back(), *next, position, side);
        }
        filled.push_back(side == SourceSide ? Joint(position, image) : Joint(image, position));
    }
    filled.insert(filled.end(), next, joints.end());
    return filled;
}

/// Gives a column a joint at every node.
void FillNodes(JointList& joints, int side, const Nodes& nodes)
{
    const detail::ColumnOrder order = detail::OrderOf(joints, side);
    const bool standsStill = ColumnValue(joints.front(), side) == ColumnValue(joints.back(), side);
    if (order == detail::ColumnOrder::Irregular || standsStill)
    {
        for (std::int64_t node = nodes.first; node <= nodes.last; ++node)
        {
            detail::InsertJoint(joints, static_cast<double>(node), side);
        }
        return;
    }
    const bool isMirrored = order == detail::ColumnOrder::Falling;
    if (isMirrored)
    {
        std::reverse(joints.begin(), joints.end());
    }
    joints = FillRising(joints, side, nodes, isMirrored);
    if (isMirrored)
    {
        std::reverse(joints.begin(), joints.end());
    }
}

/// Gives one column a joint at every whole position of a lap. On a map over the seam the lap begins with what the upper
/// end leaves past the count.
void FillColumn(JointList& joints, int side, int segmentCount)
{
    const std::int64_t lastNode = NodeAtOrPast(ColumnValue(joints.back(), side));
    if (segmentCount == 0 && lastNode > 0)
    {
        return;
    }
    const std::int64_t firstNode = lastNode > segmentCount ? lastNode % segmentCount : 0;
    FillNodes(joints, side, {firstNode, firstNode + segmentCount});
    const double span = std::abs(ColumnValue(joints.back(), side) - ColumnValue(joints.front(), side));
    if (span > segmentCount && !detail::AreEqual(span, segmentCount))
    {
        joints.pop_back();
    }
}

/// The work of CPolyPosMap::FillAllSegmentNode.
void Fill(CPolyPosMap& map, int side)
{
    if (map.IsInvalid() || map.IsEmpty())
    {
        return;
    }
    const bool wasUp = detail::RunsUpward(map.PosPairs(), SourceSide);
    bool isUp = wasUp;
    if (!detail::StartsInFirstLap(map.PosPairs(), map.SrcSegmentCount(), map.DstSegmentCount()))
    {
        map.Normalize();
        isUp = map.IsIncrease(SourceSide);
    }
    if (!isUp)
    {
        map.Invert();
    }
    switch (side)
    {
    case SourceSide:
        FillColumn(map.PosPairs(), SourceSide, map.SrcSegmentCount());
        break;
    case DestinationSide:
        FillColumn(map.PosPairs(), DestinationSide, map.DstSegmentCount());
        break;
    case BothSides:
        Fill(map, SourceSide);
        Fill(map, DestinationSide);
        break;
    default:
        break;
    }
    if (map.IsIncrease(SourceSide) != wasUp)
    {
        map.Invert();
    }
}

} // namespace

void CPolyPosMap::Unique(const bool& mergeStraight)
{
    if (mergeStraight)
    {
        detail::Tidy(m_posPairs);
    }
    else
    {
        detail::RemoveRepeated(m_posPairs);
    }
}

void CPolyPosMap::Normalize()
{
    if (IsInvalid() || detail::StartsInFirstLap(m_posPairs, m_srcSegmentCount, m_dstSegmentCount))
    {
        return;
    }
    // The destination is read where the source is lowest, also on a map whose columns run opposite ways.
    const Joint lowest = detail::RunsUpward(m_posPairs, SourceSide) ? m_posPairs.front() : m_posPairs.back();
    const std::int64_t sourceLaps = LapsToTakeOff(lowest.first, m_srcSegmentCount);
    const std::int64_t destinationLaps = LapsToTakeOff(lowest.second, m_dstSegmentCount);
    TakeOffLaps(m_posPairs, SourceSide, sourceLaps, m_srcSegmentCount);
    TakeOffLaps(m_posPairs, DestinationSide, destinationLaps, m_dstSegmentCount);
}

void CPolyPosMap::FillAllSegmentNode(const int& side)
{
    // A copy is filled, so that the map is as before if memory runs out on the way.
    CPolyPosMap filled(*this);
    Fill(filled, side);
    m_posPairs.swap(filled.m_posPairs);
    m_srcSegmentCount = filled.m_srcSegmentCount;
    m_dstSegmentCount = filled.m_dstSegmentCount;
}

} // namespace math
