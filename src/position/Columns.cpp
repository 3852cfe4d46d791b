#include "position/Columns.h"

#include "primitives/Tolerance.h"

#include <cmath>
#include <cstddef>

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

/// Which ways the values seen so far may be said to run.
struct Runs
{
    explicit Runs(double first) : earlier(first)
    {
    }

    void Pass(double later)
    {
        rises &= earlier <= later;
        falls &= earlier >= later;
        earlier = later;
    }

    /// What lies in order between finite ends is finite, and a NaN is in no order.
    ColumnOrder Order(double first) const
    {
        if (!std::isfinite(first) || !std::isfinite(earlier))
        {
            return ColumnOrder::Irregular;
        }
        if (rises)
        {
            return ColumnOrder::Rising;
        }
        return falls ? ColumnOrder::Falling : ColumnOrder::Irregular;
    }

    double earlier;
    bool rises = true;
    bool falls = true;
};

} // namespace

ColumnOrder OrderOf(const JointList& joints, int side)
{
    Runs column(ColumnValue(joints.front(), side));
    for (const Joint& joint : joints)
    {
        column.Pass(ColumnValue(joint, side));
    }
    return column.Order(ColumnValue(joints.front(), side));
}

ListShape ShapeOf(const JointList& joints, int srcSegmentCount, int dstSegmentCount)
{
    if (joints.empty())
    {
        return {false, ColumnOrder::Rising, ColumnOrder::Rising};
    }
    const Joint& first = joints.front();
    Runs source(first.first);
    Runs destination(first.second);
    for (const Joint& joint : joints)
    {
        source.Pass(joint.first);
        destination.Pass(joint.second);
    }
    ListShape shape{false, source.Order(first.first), destination.Order(first.second)};
    if (joints.size() > 1)
    {
        shape.isIllFormed =
            TurnsBack(joints, SourceSide, shape.source) || TurnsBack(joints, DestinationSide, shape.destination) ||
            ExceedsLap(joints, SourceSide, srcSegmentCount) || ExceedsLap(joints, DestinationSide, dstSegmentCount);
    }
    return shape;
}

PosRangeD SpanOf(const JointList& joints, int side)
{
    const double front = ColumnValue(joints.front(), side);
    const double back = ColumnValue(joints.back(), side);
    return RunsUpward(joints, side) ? PosRangeD(front, back) : PosRangeD(back, front);
}

bool KeepsDirection(const JointList& joints, const ListShape& shape)
{
    return shape.isIllFormed || joints.size() < 2 ||
           RunsUpward(joints, SourceSide) == RunsUpward(joints, DestinationSide);
}

} // namespace math::detail
