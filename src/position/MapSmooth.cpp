#include "math/CPolyPosMap.h"

#include "position/PairList.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <cstddef>

namespace math
{

using detail::AreEqual;
using detail::DestinationSide;
using detail::Joint;
using detail::JointList;
using detail::SourceSide;

namespace
{

/// The same place exactly, if need be across one lap.
bool StandsStill(double a, double b, int segmentCount)
{
    return a == b || a == b + segmentCount || a + segmentCount == b;
}

bool IsShortEnough(double length, double limit)
{
    return AreEqual(length, limit) || !(length >= limit);
}

/// Three joints in a row. On a closed map the last joint and the first are one place, and the corner between them is
/// the first.
struct Corner
{
    Joint before;
    Joint middle;
    Joint after;
    bool atSeam;
};

/// The lengths of the two steps that meet in a corner.
struct Legs
{
    double before;
    double after;
};

/// What is left of a step that ends at the first joint of a closed map, where the column drops by a lap.
double WithoutLap(double length, int segmentCount, bool atSeam)
{
    return atSeam ? std::abs(length - segmentCount) : length;
}

/// Tells whether a corner is one of a staircase, and if so how long its steps are.
bool FindLegs(const Corner& corner, int srcSegmentCount, int dstSegmentCount, Legs& legs)
{
    const auto& [before, middle, after, atSeam] = corner;
    if (StandsStill(middle.first, before.first, srcSegmentCount) &&
        StandsStill(after.second, middle.second, dstSegmentCount))
    {
        legs.before = WithoutLap(std::abs(middle.second - before.second), dstSegmentCount, atSeam);
        legs.after = std::abs(after.first - middle.first);
        return true;
    }
    // The source column is held against the destination count here.
    if (StandsStill(middle.second, before.second, dstSegmentCount) &&
        StandsStill(after.first, middle.first, dstSegmentCount))
    {
        legs.before = WithoutLap(std::abs(middle.first - before.first), srcSegmentCount, atSeam);
        legs.after = std::abs(after.second - middle.second);
        return true;
    }
    return false;
}

/// Takes the place where a closed map begins, a corner, out of it: the map, of three joints at least, then begins and
/// ends at its second joint.
void RemoveSeamCorner(CPolyPosMap& map)
{
    JointList& joints = map.PosPairs();
    joints.erase(joints.begin());
    joints.pop_back();
    const Joint& front = joints.front();
    // The directions are those of the list without its ends.
    const double sourceLap = map.IsIncrease(SourceSide) ? map.SrcSegmentCount() : -map.SrcSegmentCount();
    const double destinationLap = map.IsIncrease(DestinationSide) ? map.DstSegmentCount() : -map.DstSegmentCount();
    joints.push_back({front.first + sourceLap, front.second + destinationLap});
}

} // namespace

void CPolyPosMap::Smooth(const double& maxStep, const double& maxStepDifference)
{
    const double longestStep = maxStep;
    const double greatestDifference = maxStepDifference;
    FillAllSegmentNode(detail::BothSides);
    JointList& joints = m_posPairs;
    if (joints.size() <= 2)
    {
        return;
    }
    const bool closed = AreEqual(std::abs(joints.back().first - joints.front().first), m_srcSegmentCount) &&
                        AreEqual(std::abs(joints.back().second - joints.front().second), m_dstSegmentCount);
    const auto goes = [&](const Corner& corner) {
        Legs legs{};
        return FindLegs(corner, m_srcSegmentCount, m_dstSegmentCount, legs) &&
               IsShortEnough(legs.before, longestStep) && IsShortEnough(legs.after, longestStep) &&
               IsShortEnough(std::abs(legs.before - legs.after), greatestDifference);
    };

    // Kept joints move up behind `before`; `middle` is the next one that has not been looked at.
    std::size_t before = 0;
    std::size_t middle = 1;
    while (middle + 1 < joints.size())
    {
        const bool isKept = !goes({joints[before], joints[middle], joints[middle + 1], false});
        // The joint after a corner that went is where the next triple begins.
        middle += isKept ? 0 : 1;
        joints[++before] = joints[middle++];
    }
    const Joint last = joints.back();
    if (middle < joints.size())
    {
        joints[before + 1] = last;
        joints.resize(before + 2);
        if (closed && goes({joints[before], joints[0], joints[1], true}))
        {
            RemoveSeamCorner(*this);
        }
    }
    else
    {
        joints.resize(before + 1);
    }
    Unique(true);
}

} // namespace math
