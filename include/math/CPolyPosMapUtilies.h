#pragma once

#include "math/CPolyPosMap.h"
#include "math/Export.h"
#include "math/PosRangeD.h"

#include <utility>
#include <vector>

namespace math
{

/// Makes position maps from simpler things, and lists of segment numbers from maps. Static functions only.
///
/// In the names, `Cad` is one polyline as a whole, told by its segment count alone; `OriginCad` is the polyline from
/// which another was cut. Positions, ranges and maps are those of PosRangeD and CPolyPosMap; pairs are written (source,
/// destination).
///
/// **Segment map.** A `std::vector<int>` with one entry for each source segment: the destination segment that it
/// became, or -1 if it has none.
///
/// **Range list.** A `std::vector<PosRangeD>` with one range for each source segment: the stretch of the destination
/// that it became. A `start` of exactly -1.0 means that it has none.
///
/// Nothing here tests its arguments beyond what each function says, normalises or checks its result; each function says
/// whether repeated and straight joints are dropped (CPolyPosMap::Unique(true)). Integer parts beyond `int` count as
/// the nearest `int`. Only the allocator throws. All functions may run on several threads at once.
class QORMATH_EXPORT CPolyPosMapUtilies
{
public:
    CPolyPosMapUtilies() = delete;

    /// A whole polyline onto itself: (0, 0), (n, n), or turned round: (0, n), (n, 0).
    ///
    /// @return the map with both counts `segmentCount`; an empty map with both counts 0 for a count of 0, and one
    ///         without joints for a negative count
    static CPolyPosMap GenerateWholeMap(const int& segmentCount, const bool& reverse);

    /// From a closed polyline whose zero was moved to `pos` to the polyline with its old zero.
    ///
    /// The destination walks from `pos` one lap on, past `segmentCount`. If `pos` lies inside a segment, that segment
    /// becomes the last and the first of the new polyline, and the source count is `segmentCount` + 1. If `pos` is near
    /// 0 or near `segmentCount`, nothing moves: GenerateWholeMap(segmentCount, false). Joints are not merged.
    static CPolyPosMap ResetZero(const double& pos, const int& segmentCount);

    /// From a segment map.
    ///
    /// A segment without an image collapses onto the place where the walk stands, which is position 0 before the first
    /// image. A segment number that comes again right away shares the destination segment with its predecessor. Numbers
    /// that run backwards or round the seam give a map that IsInvalid() rejects. Ends with Unique(true).
    ///
    /// @return the map from segmentMap.size() segments to `dstSegmentCount`
    static CPolyPosMap GeneratePosMapFromSegmentMap(const std::vector<int>& segmentMap, const int& dstSegmentCount);

    /// The segment map of a position map.
    ///
    /// Entry i is the segment of the first image of position i, modulo DstSegmentCount, and -1 if position i or i + 1
    /// has no image or DstSegmentCount is 0. Of a run of one number every second entry then becomes -1: 3, 3, 3 gives
    /// 3, -1, 3.
    static std::vector<int> GetSegmentMapFronPosMap(const CPolyPosMap& map);

    /// From a range list.
    ///
    /// Neighbouring segments with equal ranges (PosRangeD::operator==) share one stretch evenly. Segments without an
    /// image collapse onto the start of what follows, at the very end onto the end of what came before. The destination
    /// goes on past `dstSegmentCount` at the seam; a walk of two laps is not served. Ends with Unique(true), except
    /// where all ranges are equal.
    ///
    /// @return the map from ranges.size() segments to `dstSegmentCount`; an empty map with both counts 0 for an empty
    /// list
    static CPolyPosMap GeneratePosMapFromPosRangeVec(const std::vector<PosRangeD>& ranges, const int& dstSegmentCount);

    /// A stretch of source collapsed to one destination position: (range.start, pos), (range.end, pos).
    ///
    /// A whole range gives the single pair (0, pos) with a source count of 0. A wrapping range is not unrolled: its
    /// source column runs down. Ends with Unique(true).
    static CPolyPosMap GeneratePosMapFromPosRange2Pos(const PosRangeD& range, const double& pos,
                                                      const int& srcSegmentCount, const int& dstSegmentCount);

    /// From the polyline that `range` cuts out to the polyline of `segmentCount` segments from which it was cut.
    ///
    /// The piece begins with position 0 at the start of the stretch, and every stretch of a segment inside the range is
    /// one whole segment of the piece. A wrapping range counts on past `segmentCount`. A whole range gives the single
    /// pair (0, range.end) with a source count of 0. Ends with Unique(true); the source count is that of the pieces
    /// before. A range with an end of NaN or whose integer part is beyond `int` gives an empty map with both counts 0.
    static CPolyPosMap GeneratePosMapFromCadByPosrange2OriginCad(const PosRangeD& range, const int& segmentCount);

    /// @name Joining polylines
    ///
    /// A polyline joined from two keeps the positions of the first and raises those of the second by the segment count
    /// of the first. Each combiner restates the maps of the parts on the whole by composition and concatenates them.
    /// Whatever fails shows as an empty map with both counts 0: counts that do not fit, maps that do not meet,
    /// directions that differ, a result that IsInvalid() rejects.
    /// @{

    /// The maps of two polylines into the one joined from them. A part without segments gives a single joint with the
    /// source count 0.
    static std::pair<CPolyPosMap, CPolyPosMap> CombineTwoCad(const int& firstCount, const int& secondCount);

    /// Joins the sources of two maps onto one destination. Source stretches that neither map covers stand still. Serves
    /// maps whose sources run upward.
    static CPolyPosMap CombineTwonMapWithSameDst(const CPolyPosMap& first, const CPolyPosMap& second);

    /// Joins the destinations of two maps from one source: the mirror image of CombineTwonMapWithSameDst().
    static CPolyPosMap CombineTwonMapWithSameSrc(const CPolyPosMap& first, const CPolyPosMap& second);

    /// Joins the sources and the destinations of two maps. The end of the first and the beginning of the second must
    /// meet on one side at least. If one has no joints the other is the result, unchanged.
    static CPolyPosMap CombineTwoMapStandalone(const CPolyPosMap& first, const CPolyPosMap& second);

    /// @}
    /// @name Following edits of a polyline
    /// @{

    /// Restates a map after `addedCount` segments were added at the front or back of its source, its destination or
    /// both.
    ///
    /// Added source segments collapse onto the destination position where the map begins or ends; added destination
    /// segments are jumped over there; on both sides they answer to one another one by one, which needs a map that
    /// reaches the ends.
    /// @return the map; a copy of `map` if neither side grows; an empty map with both counts 0 where the parts do not
    /// meet
    static CPolyPosMap ExtendMap(const CPolyPosMap& map, const int& addedCount, const bool& atFront,
                                 const bool& extendSrc, const bool& extendDst);

    /// Restates a map after stretches of `addedSrcCount` and `addedDstCount` segments, which answer to one another
    /// linearly, were added at the front or back of both polylines. A copy of `map` if both counts are 0.
    static CPolyPosMap ExtendMap(const CPolyPosMap& map, const int& addedSrcCount, const int& addedDstCount,
                                 const bool& atFront);

    /// Restates a map after a stretch at one end of its source (or destination) was taken away.
    ///
    /// The map jumps over the lost stretch, or collapses it. A stretch from the middle changes nothing, apart from
    /// bringing the map to normal form. Equal ends are a whole range: it takes the whole side away.
    /// @return the map; an empty map with both counts 0 if `map` has no joints or is invalid, if `range` starts above
    ///         its end, or if nothing is left
    static CPolyPosMap RemoveOpenRangeFromMap(const CPolyPosMap& map, const PosRangeD& range, const bool& onSrc);

    /// @}
};

} // namespace math
