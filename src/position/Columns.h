#pragma once

#include "position/PairList.h"
#include "position/Positions.h"

namespace math::detail
{

/// How the values of one column follow one another, compared exactly and without tolerance.
enum class ColumnOrder
{
    Rising,   ///< no value below the one before it; a column that stands still rises
    Falling,  ///< no value above the one before it
    Irregular ///< neither, or a NaN or infinity among the values
};

/// Quick on the orderly columns that nearly all maps have; the list must have a joint.
ColumnOrder OrderOf(const JointList& joints, int side);

/// Tells whether the first value of a column is at most its last. Fewer than two joints run upward.
inline bool RunsUpward(const JointList& joints, int side)
{
    return joints.size() < 2 || ColumnValue(joints.front(), side) <= ColumnValue(joints.back(), side);
}

/// What a list of joints is like, found in one go.
struct ListShape
{
    ListShape(const JointList& joints, int srcSegmentCount, int dstSegmentCount);

    ColumnOrder source = ColumnOrder::Rising;
    ColumnOrder destination = ColumnOrder::Rising;
    bool isIllFormed = false; ///< a column turns back by more than the tolerance, or spans more than a lap
};

/// The stretch that a column covers, lower end first; the list must have a joint.
inline Span SpanOf(const JointList& joints, int side)
{
    const double front = ColumnValue(joints.front(), side);
    const double back = ColumnValue(joints.back(), side);
    return front <= back ? Span{front, back} : Span{back, front};
}

/// Tells whether either column, by its lower end, starts in the first lap; an empty list does, and a count of 0 has no
/// laps.
bool StartsInFirstLap(const JointList& joints, int srcSegmentCount, int dstSegmentCount);

/// Tells whether both columns run the same way. Those of an ill-formed list do, by convention.
bool KeepsDirection(const JointList& joints, const ListShape& shape);

} // namespace math::detail
