#include "position/PairList.h"

#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <iterator>
#include <vector>

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

bool AreNear(const Joint& a, const Joint& b)
{
    return AreEqual(a.first, b.first) && AreEqual(a.second, b.second);
}

/// Walks along a list and tells of each joint whether it lies on a straight line between the joint kept before it and
/// the one after it.
class StraightTest
{
public:
    explicit StraightTest(int runSide) : m_runSide(runSide)
    {
    }

    /// The equality of positions is exact here, the tolerance belongs to the slopes alone.
    bool operator()(const Joint& before, const Joint& joint, const Joint& after)
    {
        const bool keptTheLast = m_knowsSlope;
        m_knowsSlope = false;
        const double position = ColumnValue(joint, m_runSide);
        if (position == ColumnValue(before, m_runSide) || position == ColumnValue(after, m_runSide))
        {
            return false;
        }
        // The slope behind a joint that stays is the slope before the next one.
        const double slopeBefore = keptTheLast ? m_slopeBehind : Slope(before, joint, m_runSide);
        m_slopeBehind = Slope(joint, after, m_runSide);
        const bool isStraight = AreEqual(slopeBefore, m_slopeBehind);
        m_knowsSlope = !isStraight;
        return isStraight;
    }

private:
    int m_runSide;
    bool m_knowsSlope = false;
    double m_slopeBehind = 0.0;
};

} // namespace

void ShiftColumn(JointList& joints, int side, double delta)
{
    for (Joint& joint : joints)
    {
        ColumnValue(joint, side) += delta;
    }
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

double InterpolateBetween(const Joint& from, const Joint& to, double position, int side)
{
    const int otherSide = OtherSide(side);
    return Interpolate(position, ColumnValue(from, side), ColumnValue(from, otherSide), ColumnValue(to, side),
                       ColumnValue(to, otherSide));
}

void AppendImages(const JointList& joints, double position, int side, std::vector<double>& images)
{
    bool isAtJoint = false;
    for (const Joint& joint : joints)
    {
        if (AreEqual(ColumnValue(joint, side), position))
        {
            images.push_back(ColumnValue(joint, OtherSide(side)));
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
        images.push_back(InterpolateBetween(joints[static_cast<std::size_t>(left)],
                                            joints[static_cast<std::size_t>(right)], position, side));
    }
}

Joint InsertJoint(JointList& joints, double position, int side)
{
    if (joints.empty())
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
        ColumnValue(added, otherSide) = InterpolateBetween(joints[static_cast<std::size_t>(left)],
                                                           joints[static_cast<std::size_t>(right)], position, side);
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
        if (!AreNear(joints[lastKept], joints[i]))
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
    StraightTest isStraight(runSide);
    std::size_t lastKept = 0;
    for (std::size_t i = 1; i + 1 < joints.size(); ++i)
    {
        if (!isStraight(joints[lastKept], joints[i], joints[i + 1]))
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

bool IsIdentityList(const JointList& joints, int srcSegmentCount, int dstSegmentCount)
{
    if (joints.empty())
    {
        return true;
    }
    return srcSegmentCount == dstSegmentCount && std::all_of(joints.begin(), joints.end(), [](const Joint& joint) {
               return AreEqual(joint.first, joint.second);
           });
}

} // namespace math::detail
