#pragma once

#include "primitives/Tolerance.h"

#include <cstddef>
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

/// The straight line through (fromX, fromY) and (toX, toY) at x. The order of the operations is part of the contract:
/// equal input gives equal bits wherever a map is interpolated.
inline double Interpolate(double x, double fromX, double fromY, double toX, double toY)
{
    return ((x - fromX) / (toX - fromX)) * (toY - fromY) + fromY;
}

/// The value of the other column at a position of a side between two joints.
inline double InterpolateBetween(const Joint& from, const Joint& to, double position, int side)
{
    const int otherSide = OtherSide(side);
    return Interpolate(position, ColumnValue(from, side), ColumnValue(from, otherSide), ColumnValue(to, side),
                       ColumnValue(to, otherSide));
}

/// Hands out the positions of the other column that answer to a raw position of a side, in the order of the list: those
/// of all joints near it, else one by interpolation, else none. Every joint is looked at; see JointLookup for many
/// positions.
template <typename Visit>
void ForEachImage(const JointList& joints, double position, int side, const Visit& visit)
{
    bool isAtJoint = false;
    for (const Joint& joint : joints)
    {
        if (AreEqual(ColumnValue(joint, side), position))
        {
            visit(ColumnValue(joint, OtherSide(side)));
            isAtJoint = true;
        }
    }
    if (isAtJoint)
    {
        return;
    }
    const int left = FindLeftIndex(joints, position, side);
    const int right = FindRightIndex(joints, position, side);
    if (left != -1 && right != -1)
    {
        visit(InterpolateBetween(joints[static_cast<std::size_t>(left)], joints[static_cast<std::size_t>(right)],
                                 position, side));
    }
}

/// Gives the joint at a raw position of a side, adding it if there is none. An empty list is left alone, with the answer
/// (-1.0, -1.0).
Joint InsertJoint(JointList& joints, double position, int side);

/// Drops every joint near the one kept before it.
void RemoveRepeated(JointList& joints);

/// Drops every joint near the one kept before it; then those that lie on a straight line between their neighbours, as a
/// function of the source and, of what is left, as a function of the destination.
void Tidy(JointList& joints);

/// Tells whether a map with these joints changes nothing.
bool IsIdentityList(const JointList& joints, int srcSegmentCount, int dstSegmentCount);

} // namespace math::detail
