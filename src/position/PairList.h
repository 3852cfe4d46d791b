#pragma once

#include <cstdint>
#include <utility>
#include <vector>

namespace math::detail
{

/// A joint of a map: a source position and the destination position that answers to it.
using Joint = std::pair<double, double>;
using JointList = std::vector<Joint>;

enum Side : int
{
    SourceSide = 1,
    DestinationSide = 2,
    BothSides = 3
};

/// The failure value of functions that answer with positions.
inline constexpr double NoPosition = -1.0;

/// The value of a joint in the column of a side; every side but 1 means the destination column.
inline double& ColumnValue(Joint& joint, int side)
{
    return side == SourceSide ? joint.first : joint.second;
}

inline double ColumnValue(const Joint& joint, int side)
{
    return side == SourceSide ? joint.first : joint.second;
}

inline int OtherSide(int side)
{
    return side == SourceSide ? DestinationSide : SourceSide;
}

/// Adds a number to the column of a side.
void ShiftColumn(JointList& joints, int side, double delta);

/// The nearest `int`.
int SaturateToInt(std::int64_t value);

/// Number of whole laps of `segmentCount` in a position at or above 0, negative below; the count must not be 0.
std::int64_t WholeLaps(double position, int segmentCount);

/// Index of the last joint at or before `position` in walking order, or -1; every joint is looked at, so that the
/// answer holds on a list in neither order too.
int FindLeftIndex(const JointList& joints, double position, int side);

/// Index of the first joint at or after `position` in walking order, or -1.
int FindRightIndex(const JointList& joints, double position, int side);

/// Images of a raw source position: those of all joints near it, else one by interpolation, else none. An empty list
/// hands the position through.
std::vector<double> Evaluate(const JointList& joints, double position);

/// Gives the joint at a raw position of a side, adding it if there is none. The list is left alone and the answer is
/// (-1.0, -1.0) for an unknown side or an empty list.
Joint InsertJoint(JointList& joints, double position, int side);

/// Drops every joint near the one kept before it.
void RemoveRepeated(JointList& joints);

/// Drops the joints that lie on a straight line between their neighbours, as a function of the column of `runSide`.
void RemoveStraight(JointList& joints, int runSide);

/// RemoveRepeated, then RemoveStraight along the source and along the destination.
void Tidy(JointList& joints);

/// Sorts a list of positions upward or downward. NaN goes last, so that the order is always well defined.
void SortPositions(std::vector<double>& positions, bool ascending);

} // namespace math::detail
