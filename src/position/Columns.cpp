#include "position/Columns.h"

#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>

namespace math::detail
{

namespace
{

/// Steps between near neighbours may go either way.
bool TurnsBack(const JointList& joints, int side, ColumnOrder order)
{
    // A column in order cannot turn back; only one that is not is looked at with the tolerance.
    if (order != ColumnOrder::Irregular)
    {
        return false;
    }
    const bool up = RunsUpward(joints, side);
    for (std::size_t i = 0; i + 1 < joints.size(); ++i)
    {
        const double earlier = ColumnValue(joints[i], side);
        const double later = ColumnValue(joints[i + 1], side);
        if (!AreEqual(earlier, later) && (up ? later < earlier : later > earlier))
        {
            return true;
        }
    }
    return false;
}

bool ExceedsLap(const JointList& joints, int side, int segmentCount)
{
    const double span = std::abs(ColumnValue(joints.front(), side) - ColumnValue(joints.back(), side));
    return span > segmentCount + DoubleTolerance;
}

/// What lies in order between finite ends is finite, and a NaN is in no order.
bool HasFiniteEnds(const JointList& joints, int side)
{
    return std::isfinite(ColumnValue(joints.front(), side)) && std::isfinite(ColumnValue(joints.back(), side));
}

constexpr std::less_equal<double> Rises;
constexpr std::greater_equal<double> Falls;

/// Tells whether every joint is in order with the one before it, in the source and in the destination.
template <typename SourceOrder, typename DestinationOrder>
bool AreInOrder(const JointList& joints, SourceOrder isSourceInOrder, DestinationOrder isDestinationInOrder)
{
    Joint earlier = joints.front();
    for (const Joint& joint : joints)
    {
        if (!isSourceInOrder(earlier.first, joint.first) || !isDestinationInOrder(earlier.second, joint.second))
        {
            return false;
        }
        earlier = joint;
    }
    return true;
}

/// Tells whether both columns are in the order that their ends suggest, by one comparison for each value.
bool AreBothInOrder(const JointList& joints, bool sourceUp, bool destinationUp)
{
    if (sourceUp)
    {
        return destinationUp ? AreInOrder(joints, Rises, Rises) : AreInOrder(joints, Rises, Falls);
    }
    return destinationUp ? AreInOrder(joints, Falls, Rises) : AreInOrder(joints, Falls, Falls);
}

template <typename Order>
bool IsInOrder(const JointList& joints, int side, Order isInOrder)
{
    const auto stepsBack = [=](const Joint& joint, const Joint& next) {
        return !isInOrder(ColumnValue(joint, side), ColumnValue(next, side));
    };
    return std::adjacent_find(joints.begin(), joints.end(), stepsBack) == joints.end();
}

bool StartsInFirstLap(double lowEnd, int segmentCount)
{
    return segmentCount == 0 || (lowEnd >= 0 && lowEnd < segmentCount);
}

ColumnOrder OrderGoing(bool up)
{
    return up ? ColumnOrder::Rising : ColumnOrder::Falling;
}

} // namespace

ColumnOrder OrderOf(const JointList& joints, int side)
{
    const bool up = RunsUpward(joints, side);
    const bool isInOrder = up ? IsInOrder(joints, side, Rises) : IsInOrder(joints, side, Falls);
    return isInOrder && HasFiniteEnds(joints, side) ? OrderGoing(up) : ColumnOrder::Irregular;
}

ListShape::ListShape(const JointList& joints, int srcSegmentCount, int dstSegmentCount)
{
    if (joints.empty())
    {
        return;
    }
    const bool sourceUp = RunsUpward(joints, SourceSide);
    const bool destinationUp = RunsUpward(joints, DestinationSide);
    source = OrderGoing(sourceUp);
    destination = OrderGoing(destinationUp);
    if (!AreBothInOrder(joints, sourceUp, destinationUp) || !HasFiniteEnds(joints, SourceSide) ||
        !HasFiniteEnds(joints, DestinationSide))
    {
        source = OrderOf(joints, SourceSide);
        destination = OrderOf(joints, DestinationSide);
    }
    if (joints.size() > 1)
    {
        isIllFormed = TurnsBack(joints, SourceSide, source) || TurnsBack(joints, DestinationSide, destination) ||
                      ExceedsLap(joints, SourceSide, srcSegmentCount) ||
                      ExceedsLap(joints, DestinationSide, dstSegmentCount);
    }
}

bool StartsInFirstLap(const JointList& joints, int srcSegmentCount, int dstSegmentCount)
{
    return joints.empty() || (StartsInFirstLap(SpanOf(joints, SourceSide).start, srcSegmentCount) &&
                              StartsInFirstLap(SpanOf(joints, DestinationSide).start, dstSegmentCount));
}

bool KeepsDirection(const JointList& joints, const ListShape& shape)
{
    return shape.isIllFormed || joints.size() < 2 ||
           RunsUpward(joints, SourceSide) == RunsUpward(joints, DestinationSide);
}

} // namespace math::detail
