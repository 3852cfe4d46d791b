#include "math/CPolyPosMapUtilies.h"

#include "position/PairList.h"
#include "primitives/Tolerance.h"

#include <vector>

namespace math
{

using detail::AreEqual;
using detail::Joint;
using detail::JointList;

namespace
{

/// The joint where the walk stands at the end that grows; a map without joints stands at 0.
Joint GrowingEnd(const CPolyPosMap& map, bool atFront)
{
    if (map.IsEmpty())
    {
        return {0.0, 0.0};
    }
    return atFront ? map.Front() : map.Back();
}

/// A polyline of added segments collapsed to one position of another.
CPolyPosMap CollapseAdded(int addedCount, double position, int otherCount)
{
    const PosRangeD added(0.0, static_cast<double>(addedCount));
    return CPolyPosMapUtilies::GeneratePosMapFromPosRange2Pos(added, position, addedCount, otherCount);
}

/// From what is left of `outer` after `removed` has gone to the polyline, with a jump over what has gone; an empty map
/// if it was taken out of the middle.
CPolyPosMap GeneratePosMapWithoutRange(const PosRangeD& outer, const PosRangeD& removed, int segmentCount)
{
    const std::vector<PosRangeD> rest = outer - removed;
    if (rest.empty())
    {
        return CPolyPosMap({{0.0, outer.start}, {0.0, outer.end}}, 0, segmentCount);
    }
    if (rest.size() > 1)
    {
        return CPolyPosMap();
    }
    CPolyPosMap map = CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(rest.front(), segmentCount);
    JointList& joints = map.PosPairs();
    if (joints.empty())
    {
        return map;
    }
    if (AreEqual(rest.front().end, removed.start))
    {
        joints.emplace_back(joints.back().first, outer.end);
    }
    else if (AreEqual(rest.front().start, removed.end))
    {
        joints.insert(joints.begin(), Joint(0.0, outer.start));
    }
    return map;
}

} // namespace

CPolyPosMap CPolyPosMapUtilies::ExtendMap(const CPolyPosMap& map, const int& addedCount, const bool& atFront,
                                          const bool& extendSrc, const bool& extendDst)
{
    if (!extendSrc && !extendDst)
    {
        return map;
    }
    if (extendSrc && extendDst)
    {
        const CPolyPosMap added = GenerateWholeMap(addedCount, false);
        return atFront ? CombineTwoMapStandalone(added, map) : CombineTwoMapStandalone(map, added);
    }
    const Joint end = GrowingEnd(map, atFront);
    if (extendSrc)
    {
        const CPolyPosMap added = CollapseAdded(addedCount, end.second, map.DstSegmentCount());
        return atFront ? CombineTwonMapWithSameDst(added, map) : CombineTwonMapWithSameDst(map, added);
    }
    const CPolyPosMap added = !CollapseAdded(addedCount, end.first, map.SrcSegmentCount());
    return atFront ? CombineTwonMapWithSameSrc(added, map) : CombineTwonMapWithSameSrc(map, added);
}

CPolyPosMap CPolyPosMapUtilies::ExtendMap(const CPolyPosMap& map, const int& addedSrcCount, const int& addedDstCount,
                                          const bool& atFront)
{
    if (addedSrcCount == 0 && addedDstCount == 0)
    {
        return map;
    }
    const Joint addedEnd(addedSrcCount, addedDstCount);
    const CPolyPosMap added({{0.0, 0.0}, addedEnd}, addedSrcCount, addedDstCount);
    return atFront ? CombineTwoMapStandalone(added, map) : CombineTwoMapStandalone(map, added);
}

CPolyPosMap CPolyPosMapUtilies::RemoveOpenRangeFromMap(const CPolyPosMap& map, const PosRangeD& range,
                                                       const bool& onSrc)
{
    if (map.IsEmpty() || range.start > range.end)
    {
        return CPolyPosMap();
    }
    const int segmentCount = onSrc ? map.SrcSegmentCount() : map.DstSegmentCount();
    const PosRangeD outer(0.0, static_cast<double>(segmentCount));
    const CPolyPosMap kept = GeneratePosMapWithoutRange(outer, range, segmentCount);
    return onSrc ? kept * map : map * !kept;
}

} // namespace math
