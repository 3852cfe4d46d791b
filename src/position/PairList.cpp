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

/// Index of the last joint before `position` in walking order, by however little, or -1.
int LastIndexBefore(const JointList& joints, double position, int side)
{
    if (joints.empty())
    {
        return -1;
    }
    const bool up = RunsUp(joints, side);
    const auto isBefore = [&](const Joint& joint) {
        const double value = ColumnValue(joint, side);
        return up ? value < position : value > position;
    };
    return IndexFromBack(joints, std::find_if(joints.rbegin(), joints.rend(), isBefore));
}

/// Index of the first joint after `position` in walking order, or -1.
int FirstIndexAfter(const JointList& joints, double position, int side)
{
    if (joints.empty())
    {
        return -1;
    }
    const bool up = RunsUp(joints, side);
    const auto isAfter = [&](const Joint& joint) {
        const double value = ColumnValue(joint, side);
        return up ? value > position : value < position;
    };
    return IndexFromFront(joints, std::find_if(joints.begin(), joints.end(), isAfter));
}

bool AreNear(const Joint& a, const Joint& b)
{
    return AreEqual(a.first, b.first) && AreEqual(a.second, b.second);
}

/// Walks along a list and tells of each joint whether it lies on a straight line between the joint kept before it and
/// the one after it, as a function of the column `Run`.
template <double Joint::*Run, double Joint::*Rise>
class StraightTest
{
public:
    /// The equality of positions is exact here, the tolerance belongs to the slopes alone.
    bool operator()(const Joint& before, const Joint& joint, const Joint& after)
    {
        const bool keptTheLast = m_knowsSlope;
        m_knowsSlope = false;
        if (joint.*Run == before.*Run || joint.*Run == after.*Run)
        {
            return false;
        }
        // The slope behind a joint that stays is the slope before the next one.
        const double slopeBefore = keptTheLast ? m_slopeBehind : Slope(before, joint);
        m_slopeBehind = Slope(joint, after);
        const bool isStraight = AreEqual(slopeBefore, m_slopeBehind);
        m_knowsSlope = !isStraight;
        return isStraight;
    }

private:
    static double Slope(const Joint& from, const Joint& to)
    {
        return (to.*Rise - from.*Rise) / (to.*Run - from.*Run);
    }

    bool m_knowsSlope = false;
    double m_slopeBehind = 0.0;
};

/// Drops the joints that lie on a straight line between their neighbours, as a function of the column `Run`.
template <double Joint::*Run, double Joint::*Rise>
void RemoveStraight(JointList& joints)
{
    if (joints.size() < 3)
    {
        return;
    }
    StraightTest<Run, Rise> isStraight;
    auto kept = joints.begin();
    for (auto joint = kept + 1; joint + 1 != joints.end(); ++joint)
    {
        if (!isStraight(*kept, *joint, *(joint + 1)))
        {
            *++kept = *joint;
        }
    }
    *++kept = joints.back();
    joints.erase(kept + 1, joints.end());
}

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
    const auto isNear = [&](const Joint& joint) { return AreEqual(ColumnValue(joint, side), position); };
    const auto lastNear = std::find_if(joints.rbegin(), joints.rend(), isNear);
    return lastNear != joints.rend() ? IndexFromBack(joints, lastNear) : LastIndexBefore(joints, position, side);
}

int FindRightIndex(const JointList& joints, double position, int side)
{
    const auto isNear = [&](const Joint& joint) { return AreEqual(ColumnValue(joint, side), position); };
    const auto firstNear = std::find_if(joints.begin(), joints.end(), isNear);
    return firstNear != joints.end() ? IndexFromFront(joints, firstNear) : FirstIndexAfter(joints, position, side);
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

    const int left = LastIndexBefore(joints, position, side);
    const int right = FirstIndexAfter(joints, position, side);
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

void Tidy(JointList& joints)
{
    RemoveRepeated(joints);
    RemoveStraight<&Joint::first, &Joint::second>(joints);
    RemoveStraight<&Joint::second, &Joint::first>(joints);
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
