#include "position/PairList.h"

#include "math/CPolyPosMap.h"
#include "math/PosRangeD.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <limits>

namespace math::detail
{

namespace
{

/// The straight line through (fromX, fromY) and (toX, toY) at x. The order of the operations is part of the contract:
/// equal input gives equal bits wherever a map is interpolated.
double Interpolate(double x, double fromX, double fromY, double toX, double toY)
{
    return ((x - fromX) / (toX - fromX)) * (toY - fromY) + fromY;
}

bool RunsUp(const JointList& joints, int side)
{
    return ColumnValue(joints.back(), side) > ColumnValue(joints.front(), side);
}

int IndexFromFront(const JointList& joints, JointList::const_iterator found)
{
    return found == joints.end() ? -1 : static_cast<int>(found - joints.begin());
}

int IndexFromBack(const JointList& joints, JointList::const_reverse_iterator found)
{
    return found == joints.rend() ? -1 : static_cast<int>(std::distance(found, joints.rend())) - 1;
}

double Slope(const Joint& from, const Joint& to, int runSide)
{
    const int riseSide = OtherSide(runSide);
    return (ColumnValue(to, riseSide) - ColumnValue(from, riseSide)) /
           (ColumnValue(to, runSide) - ColumnValue(from, runSide));
}

/// The equality of positions is exact here, the tolerance belongs to the slopes alone.
bool IsStraight(const Joint& before, const Joint& joint, const Joint& after, int runSide)
{
    const double position = ColumnValue(joint, runSide);
    if (position == ColumnValue(before, runSide) || position == ColumnValue(after, runSide))
    {
        return false;
    }
    return AreEqual(Slope(before, joint, runSide), Slope(joint, after, runSide));
}

} // namespace

void ShiftColumn(JointList& joints, int side, double delta)
{
    for (Joint& joint : joints)
    {
        ColumnValue(joint, side) += delta;
    }
}

int SaturateToInt(std::int64_t value)
{
    return static_cast<int>(
        std::clamp<std::int64_t>(value, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()));
}

std::int64_t WholeLaps(double position, int segmentCount)
{
    // Wide enough for the least int divided by -1.
    return static_cast<std::int64_t>(PosRangeD::GetSegmentIndex(position)) / segmentCount;
}

int FindLeftIndex(const JointList& joints, double position, int side)
{
    if (joints.empty())
    {
        return -1;
    }
    const auto isNear = [&](const Joint& joint) { return AreEqual(ColumnValue(joint, side), position); };
    const auto lastNear = std::find_if(joints.rbegin(), joints.rend(), isNear);
    if (lastNear != joints.rend())
    {
        return IndexFromBack(joints, lastNear);
    }
    const bool up = RunsUp(joints, side);
    const auto isBefore = [&](const Joint& joint) {
        const double value = ColumnValue(joint, side);
        return up ? value < position : value > position;
    };
    return IndexFromBack(joints, std::find_if(joints.rbegin(), joints.rend(), isBefore));
}

int FindRightIndex(const JointList& joints, double position, int side)
{
    if (joints.empty())
    {
        return -1;
    }
    const auto isNear = [&](const Joint& joint) { return AreEqual(ColumnValue(joint, side), position); };
    const auto firstNear = std::find_if(joints.begin(), joints.end(), isNear);
    if (firstNear != joints.end())
    {
        return IndexFromFront(joints, firstNear);
    }
    const bool up = RunsUp(joints, side);
    const auto isAfter = [&](const Joint& joint) {
        const double value = ColumnValue(joint, side);
        return up ? value > position : value < position;
    };
    return IndexFromFront(joints, std::find_if(joints.begin(), joints.end(), isAfter));
}

std::vector<double> Evaluate(const JointList& joints, double position)
{
    if (joints.empty())
    {
        return {position};
    }
    std::vector<double> images;
    for (const Joint& joint : joints)
    {
        if (AreEqual(joint.first, position))
        {
            images.push_back(joint.second);
        }
    }
    if (!images.empty())
    {
        return images;
    }
    const int left = FindLeftIndex(joints, position, SourceSide);
    const int right = FindRightIndex(joints, position, SourceSide);
    if (left == -1 || right == -1)
    {
        return images;
    }
    const Joint& from = joints[static_cast<std::size_t>(left)];
    const Joint& to = joints[static_cast<std::size_t>(right)];
    images.push_back(Interpolate(position, from.first, from.second, to.first, to.second));
    return images;
}

Joint InsertJoint(JointList& joints, double position, int side)
{
    if ((side != SourceSide && side != DestinationSide) || joints.empty())
    {
        return {NoPosition, NoPosition};
    }
    const auto isNear = [&](const Joint& joint) { return AreEqual(ColumnValue(joint, side), position); };
    const auto known = std::find_if(joints.begin(), joints.end(), isNear);
    if (known != joints.end())
    {
        return *known;
    }

    const int left = FindLeftIndex(joints, position, side);
    const int right = FindRightIndex(joints, position, side);
    const int otherSide = OtherSide(side);
    Joint added;
    ColumnValue(added, side) = position;
    if (left == -1)
    {
        ColumnValue(added, otherSide) = ColumnValue(joints.front(), otherSide);
        joints.insert(joints.begin(), added);
    }
    else if (right == -1)
    {
        ColumnValue(added, otherSide) = ColumnValue(joints.back(), otherSide);
        joints.push_back(added);
    }
    else
    {
        const Joint& from = joints[static_cast<std::size_t>(left)];
        const Joint& to = joints[static_cast<std::size_t>(right)];
        ColumnValue(added, otherSide) = Interpolate(position, ColumnValue(from, side), ColumnValue(from, otherSide),
                                                    ColumnValue(to, side), ColumnValue(to, otherSide));
        joints.insert(joints.begin() + right, added);
    }
    return added;
}

void RemoveRepeated(JointList& joints)
{
    if (joints.empty())
    {
        return;
    }
    std::size_t lastKept = 0;
    for (std::size_t i = 1; i < joints.size(); ++i)
    {
        if (!CPolyPosMap::IsPosPairEqual(joints[lastKept], joints[i]))
        {
            joints[++lastKept] = joints[i];
        }
    }
    joints.resize(lastKept + 1);
}

void RemoveStraight(JointList& joints, int runSide)
{
    if (joints.size() < 3)
    {
        return;
    }
    std::size_t lastKept = 0;
    for (std::size_t i = 1; i + 1 < joints.size(); ++i)
    {
        if (!IsStraight(joints[lastKept], joints[i], joints[i + 1], runSide))
        {
            joints[++lastKept] = joints[i];
        }
    }
    joints[++lastKept] = joints.back();
    joints.resize(lastKept + 1);
}

void Tidy(JointList& joints)
{
    RemoveRepeated(joints);
    RemoveStraight(joints, SourceSide);
    RemoveStraight(joints, DestinationSide);
}

void SortPositions(std::vector<double>& positions, bool ascending)
{
    const auto comesBefore = [ascending](double a, double b) {
        if (std::isnan(a) || std::isnan(b))
        {
            return std::isnan(b) && !std::isnan(a);
        }
        return ascending ? a < b : a > b;
    };
    // Stable, so that zeros of either sign keep their places whatever the standard library.
    std::stable_sort(positions.begin(), positions.end(), comesBefore);
}

} // namespace math::detail
