#pragma once

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

/// Index of the last joint at or before `position` in walking order, or -1; every joint is looked at, so that the
/// answer holds on a list in neither order too.
int FindLeftIndex(const JointList& joints, double position, int side);

/// Index of the first joint at or after `position` in walking order, or -1.
int FindRightIndex(const JointList& joints, double position, int side);

/// Appends the positions of the other column that answer to a raw position of a side: those of all joints near it, else
/// one by interpolation, else none. Every joint is looked at; see JointLookup for many positions.
void AppendImages(const JointList& joints, double position, int side, std::vector<double>& images);

/// The value of the other column at a position of a side between two joints.
double InterpolateBetween(const Joint& from, const Joint& to, double position, int side);

/// Gives the joint at a raw position of a side, adding it if there is none. An empty list is left alone, with the answer
/// (-1.0, -1.0).
Joint InsertJoint(JointList& joints, double position, int side);

/// Drops every joint near the one kept before it.
void RemoveRepeated(JointList& joints);

/// Drops the joints that lie on a straight line between their neighbours, as a function of the column of `runSide`.
void RemoveStraight(JointList& joints, int runSide);

/// RemoveRepeated, then RemoveStraight along the source and along the destination.
void Tidy(JointList& joints);

/// Tells whether a map with these joints changes nothing.
bool IsIdentityList(const JointList& joints, int srcSegmentCount, int dstSegmentCount);

} // namespace math::detail
