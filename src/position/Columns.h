#pragma once

#include "math/PosRangeD.h"
#include "position/PairList.h"

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
    bool isIllFormed; ///< a column turns back by more than the tolerance, or spans more than a lap
    ColumnOrder source;
    ColumnOrder destination;
};

ListShape ShapeOf(const JointList& joints, int srcSegmentCount, int dstSegmentCount);

/// The stretch that a column covers, lower end first; the list must have a joint.
PosRangeD SpanOf(const JointList& joints, int side);

/// Tells whether both columns run the same way. Those of an ill-formed list do, by convention.
bool KeepsDirection(const JointList& joints, const ListShape& shape);

} // namespace math::detail
