#include "math/CPolyPosMapUtilies.h"

#include "position/MapEvaluator.h"
#include "position/PairList.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <vector>

namespace math
{

using detail::AreEqual;
using detail::Joint;
using detail::JointList;
using detail::NoPosition;

namespace
{

/// Some neighbours of a range list that share one stretch of the destination.
struct RangeGroup
{
    detail::Span range;
    int segmentCount;

    bool HasImage() const
    {
        return range.start != NoPosition;
    }
};

std::vector<RangeGroup> GroupEqualNeighbours(const std::vector<PosRangeD>& ranges)
{
    std::vector<RangeGroup> groups;
    groups.reserve(ranges.size());
    for (std::size_t i = 0; i < ranges.size(); ++i)
    {
        if (i > 0 && ranges[i] == ranges[i - 1])
        {
            ++groups.back().segmentCount;
        }
        else
        {
            groups.push_back({{ranges[i].start, ranges[i].end}, 1});
        }
    }
    return groups;
}

/// The joints of a source whose segments all became one stretch.
JointList JointsOfOneGroup(const RangeGroup& group, int dstSegmentCount)
{
    const double sourceEnd = group.segmentCount;
    if (!group.HasImage())
    {
        return {{0.0, 0.0}, {sourceEnd, 0.0}};
    }
    const detail::Span& range = group.range;
    const double destinationEnd = range.end < range.start ? range.end + dstSegmentCount : range.end;
    return {{0.0, range.start}, {sourceEnd, destinationEnd}};
}

/// Where the segments without an image collapse to: the start of what follows, at the very end the end of what came
/// before.
double CollapsedPosition(const std::vector<RangeGroup>& groups, std::size_t index)
{
    return index + 1 == groups.size() ? groups[index - 1].range.end : groups[index + 1].range.start;
}

JointList JointsOfGroups(const std::vector<RangeGroup>& groups)
{
    JointList joints;
    joints.reserve(2 * groups.size());
    double source = 0.0;
    for (std::size_t i = 0; i < groups.size(); ++i)
    {
        detail::Span image = groups[i].range;
        if (!groups[i].HasImage())
        {
            const double collapsed = CollapsedPosition(groups, i);
            image = {collapsed, collapsed};
        }
        joints.emplace_back(source, image.start);
        source += groups[i].segmentCount;
        joints.emplace_back(source, image.end);
    }
    return joints;
}

/// Lets the destination go on past the seam instead of turning back there.
void LiftOverSeam(JointList& joints, int dstSegmentCount)
{
    for (std::size_t i = 1; i < joints.size(); ++i)
    {
        if (joints[i].second < joints[i - 1].second)
        {
            joints[i].second += dstSegmentCount;
        }
    }
}

bool HasIntegerPart(double position)
{
    return std::abs(position) < static_cast<double>(std::numeric_limits<int>::max());
}

/// Joints of a stretch between two positions, the second above the first: its ends, and the first and the last node in
/// it. Those in between lie on the line of slope 1 through the two and would be dropped again.
JointList JointsOfStretch(double start, double end)
{
    const std::int64_t startSegment = PosRangeD::GetSegmentIndex(start);
    const std::int64_t endSegment = PosRangeD::GetSegmentIndex(end);
    JointList joints{{0.0, start}};
    if (endSegment > startSegment)
    {
        joints.emplace_back(1.0, static_cast<double>(startSegment + 1));
    }
    if (endSegment > startSegment + 1)
    {
        joints.emplace_back(static_cast<double>(endSegment - startSegment), static_cast<double>(endSegment));
    }
    const double lastNode = static_cast<double>(endSegment);
    if (!AreEqual(end, lastNode) && lastNode < end)
    {
        joints.emplace_back(static_cast<double>(endSegment - startSegment + 1), end);
    }
    return joints;
}

/// Finds the first image of a source position, if it has any.
bool FindFirstImage(detail::MapEvaluator& evaluator, double position, double& first)
{
    bool isFound = false;
    evaluator.ForEachImage(position, [&](double image) {
        first = isFound ? first : image;
        isFound = true;
    });
    return isFound;
}

/// The segment of a closed polyline at a position on any lap.
int SegmentAt(double position, int segmentCount)
{
    const int segment = PosRangeD::GetSegmentIndex(position);
    if (segment >= 0 && segment < segmentCount)
    {
        return segment;
    }
    // Wide enough for the least int divided by -1.
    return segmentCount == 0 ? -1 : static_cast<int>(std::int64_t{segment} % segmentCount);
}

} // namespace

CPolyPosMap CPolyPosMapUtilies::GenerateWholeMap(const int& segmentCount, const bool& reverse)
{
    // A joint at every node would lie on one straight line, of which the two ends stay.
    JointList joints;
    if (segmentCount > 0)
    {
        const double count = segmentCount;
        joints = reverse ? JointList{{0.0, count}, {count, 0.0}} : JointList{{0.0, 0.0}, {count, count}};
    }
    return CPolyPosMap(joints, segmentCount, segmentCount);
}

CPolyPosMap CPolyPosMapUtilies::ResetZero(const double& pos, const int& segmentCount)
{
    if (detail::IsZero(pos) || AreEqual(pos, segmentCount))
    {
        return GenerateWholeMap(segmentCount, false);
    }
    const double count = segmentCount;
    if (detail::IsZero(PosRangeD::GetRadio(pos)))
    {
        return CPolyPosMap({{0.0, pos}, {count, count + pos}}, segmentCount, segmentCount);
    }
    const double segment = PosRangeD::GetSegmentIndex(pos);
    const JointList joints{{0.0, pos}, {1.0, segment + 1.0}, {count, segment + count}, {count + 1.0, count + pos}};
    const int sourceCount = detail::SaturateToInt(std::int64_t{segmentCount} + 1);
    return CPolyPosMap(joints, sourceCount, segmentCount);
}

CPolyPosMap CPolyPosMapUtilies::GeneratePosMapFromSegmentMap(const std::vector<int>& segmentMap,
                                                             const int& dstSegmentCount)
{
    JointList joints;
    joints.reserve(2 * segmentMap.size());
    double source = 0.0;
    double reached = 0.0; // the destination of the last joint
    for (const int segment : segmentMap)
    {
        const double nextSource = source + 1.0;
        const double segmentEnd = segment + 1.0;
        if (segment == -1)
        {
            if (joints.empty())
            {
                joints.emplace_back(source, reached);
            }
            joints.emplace_back(nextSource, reached);
        }
        else if (!joints.empty() && reached == segmentEnd)
        {
            joints.back().first = nextSource;
        }
        else
        {
            if (joints.empty() || reached != segment)
            {
                joints.push_back({source, static_cast<double>(segment)});
            }
            joints.push_back({nextSource, segmentEnd});
            reached = segmentEnd;
        }
        source = nextSource;
    }
    detail::Tidy(joints);
    return CPolyPosMap(joints, static_cast<int>(segmentMap.size()), dstSegmentCount);
}

std::vector<int> CPolyPosMapUtilies::GetSegmentMapFronPosMap(const CPolyPosMap& map)
{
    detail::MapEvaluator evaluator(map.PosPairs(), map.SrcSegmentCount(), map.DstSegmentCount());
    std::vector<int> segments;
    segments.reserve(static_cast<std::size_t>(std::max(map.SrcSegmentCount(), 0)));
    double start = 0.0;
    double end = 0.0;
    bool hasStart = FindFirstImage(evaluator, 0.0, start);
    for (int i = 0; i < map.SrcSegmentCount(); ++i)
    {
        const bool hasEnd = FindFirstImage(evaluator, static_cast<double>(i) + 1.0, end);
        segments.push_back(hasStart && hasEnd ? SegmentAt(start, map.DstSegmentCount()) : -1);
        start = end;
        hasStart = hasEnd;
    }
    for (std::size_t i = 1; i < segments.size(); ++i)
    {
        if (segments[i] == segments[i - 1])
        {
            segments[i] = -1;
        }
    }
    return segments;
}

CPolyPosMap CPolyPosMapUtilies::GeneratePosMapFromPosRangeVec(const std::vector<PosRangeD>& ranges,
                                                              const int& dstSegmentCount)
{
    if (ranges.empty())
    {
        return CPolyPosMap();
    }
    const std::vector<RangeGroup> groups = GroupEqualNeighbours(ranges);
    const int srcSegmentCount = static_cast<int>(ranges.size());
    if (groups.size() == 1)
    {
        return CPolyPosMap(JointsOfOneGroup(groups.front(), dstSegmentCount), srcSegmentCount, dstSegmentCount);
    }
    JointList joints = JointsOfGroups(groups);
    LiftOverSeam(joints, dstSegmentCount);
    detail::Tidy(joints);
    return CPolyPosMap(joints, srcSegmentCount, dstSegmentCount);
}

CPolyPosMap CPolyPosMapUtilies::GeneratePosMapFromPosRange2Pos(const PosRangeD& range, const double& pos,
                                                               const int& srcSegmentCount, const int& dstSegmentCount)
{
    if (AreEqual(range.start, range.end))
    {
        return CPolyPosMap({{0.0, pos}}, 0, dstSegmentCount);
    }
    JointList joints{{range.start, pos}, {range.end, pos}};
    detail::Tidy(joints);
    return CPolyPosMap(joints, srcSegmentCount, dstSegmentCount);
}

CPolyPosMap CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(const PosRangeD& range,
                                                                          const int& segmentCount)
{
    if (AreEqual(range.start, range.end))
    {
        return CPolyPosMap({{0.0, range.end}}, 0, segmentCount);
    }
    const double end = range.end > range.start ? range.end : range.end + segmentCount;
    if (!HasIntegerPart(range.start) || !HasIntegerPart(end))
    {
        return CPolyPosMap();
    }
    JointList joints = JointsOfStretch(range.start, end);
    // Counted before straight joints go: every stretch of a segment is one segment of the piece.
    const int pieceCount = PosRangeD::GetSegmentIndex(joints.back().first);
    detail::Tidy(joints);
    return CPolyPosMap(joints, pieceCount, segmentCount);
}

} // namespace math
