#include "math/CPolyPosMapUtilies.h"

#include "position/PairList.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <cstdint>
#include <utility>

namespace math
{

using detail::AreEqual;
using detail::DestinationSide;
using detail::Joint;
using detail::SourceSide;

namespace
{

int JoinedCount(int firstCount, int secondCount)
{
    return detail::SaturateToInt(std::int64_t{firstCount} + secondCount);
}

/// The map from the segments `from` to `to` of a polyline to that polyline.
CPolyPosMap Piece(int from, int to, int segmentCount)
{
    return CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(
        PosRangeD(static_cast<double>(from), static_cast<double>(to)), segmentCount);
}

/// Puts two maps from one joined source behind one another. Composition walks along its left operand, so the source of
/// `first` normally runs up whatever `originalFirst` does; only the first choice asks the maps as they were given.
CPolyPosMap ConcatenateSources(const CPolyPosMap& first, CPolyPosMap second, const CPolyPosMap& originalFirst,
                               const CPolyPosMap& originalSecond)
{
    const bool secondUp = originalSecond.IsIncrease(SourceSide);
    if (originalFirst.IsIncrease(SourceSide) && secondUp)
    {
        return first + second;
    }
    const bool firstUp = first.IsIncrease(SourceSide);
    if (!firstUp && !secondUp)
    {
        return second + first;
    }
    second.Reverse();
    return firstUp ? first + second : second + first;
}

bool Meet(const Joint& end, const Joint& beginning)
{
    return AreEqual(end.second, beginning.second) || AreEqual(end.first, beginning.first);
}

} // namespace

std::pair<CPolyPosMap, CPolyPosMap> CPolyPosMapUtilies::CombineTwoCad(const int& firstCount, const int& secondCount)
{
    const int joined = JoinedCount(firstCount, secondCount);
    return {Piece(0, firstCount, joined), Piece(firstCount, joined, joined)};
}

CPolyPosMap CPolyPosMapUtilies::CombineTwonMapWithSameDst(const CPolyPosMap& first, const CPolyPosMap& second)
{
    const int firstCount = first.SrcSegmentCount();
    const int joined = JoinedCount(firstCount, second.SrcSegmentCount());
    const CPolyPosMap restatedFirst = !Piece(0, firstCount, joined) * first;
    const CPolyPosMap restatedSecond = !Piece(firstCount, joined, joined) * second;
    CPolyPosMap result = ConcatenateSources(restatedFirst, restatedSecond, first, second);
    result.Unique(true);
    return result.IsInvalid() ? CPolyPosMap() : result;
}

CPolyPosMap CPolyPosMapUtilies::CombineTwonMapWithSameSrc(const CPolyPosMap& first, const CPolyPosMap& second)
{
    return !CombineTwonMapWithSameDst(!first, !second);
}

CPolyPosMap CPolyPosMapUtilies::CombineTwoMapStandalone(const CPolyPosMap& first, const CPolyPosMap& second)
{
    if (first.IsEmpty())
    {
        return second;
    }
    if (second.IsEmpty())
    {
        return first;
    }
    const int srcCount = first.SrcSegmentCount();
    const int dstCount = first.DstSegmentCount();
    const int joinedSrc = JoinedCount(srcCount, second.SrcSegmentCount());
    const int joinedDst = JoinedCount(dstCount, second.DstSegmentCount());
    const CPolyPosMap restatedFirst = !Piece(0, srcCount, joinedSrc) * first * Piece(0, dstCount, joinedDst);
    const CPolyPosMap restatedSecond =
        !Piece(srcCount, joinedSrc, joinedSrc) * second * Piece(dstCount, joinedDst, joinedDst);

    if (restatedFirst.IsEmpty() || restatedSecond.IsEmpty() ||
        restatedFirst.IsIncrease(DestinationSide) != restatedSecond.IsIncrease(DestinationSide) ||
        !Meet(restatedFirst.Back(), restatedSecond.Front()))
    {
        return CPolyPosMap();
    }
    CPolyPosMap result = restatedFirst + restatedSecond;
    result.Unique(true);
    return result;
}

} // namespace math
