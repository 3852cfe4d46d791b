#include "Load.h"
#include "Positions.h"

namespace math::hashes
{

namespace
{

using Builder = CPolyPosMapUtilies;

/// A segment map: mostly numbers that go on, with gaps, repetitions and a seam.
std::vector<int> SegmentMap(Source& source, int dstCount)
{
    std::vector<int> segments;
    const int size = source.Below(source.OneIn(40) ? 400 : 12);
    int next = source.Between(0, dstCount);
    for (int i = 0; i < size; ++i)
    {
        switch (source.Below(12))
        {
        case 0:
        case 1:
            segments.push_back(-1);
            break;
        case 2:
            segments.push_back(source.Between(-2, dstCount + 1));
            break;
        case 3:
        case 4:
            segments.push_back(next);
            break;
        default:
            next = source.OneIn(6) ? 0 : next + 1;
            segments.push_back(next);
            break;
        }
    }
    return segments;
}

/// A range list: stretches that follow one another, with gaps, groups and a seam.
std::vector<PosRangeD> RangeList(Source& source, int dstCount)
{
    std::vector<PosRangeD> ranges;
    const int size = source.Below(source.OneIn(40) ? 300 : 10);
    double from = RandomPosition(source, dstCount);
    for (int i = 0; i < size; ++i)
    {
        switch (source.Below(10))
        {
        case 0:
        case 1:
            ranges.emplace_back();
            break;
        case 2:
        case 3:
            ranges.push_back(ranges.empty() ? PosRangeD() : ranges.back());
            break;
        case 4:
            ranges.push_back(RandomRange(source, dstCount));
            break;
        default:
            double to = from + (source.Coin() ? 1.0 : source.Ratio());
            if (to > dstCount && dstCount > 0)
            {
                to -= dstCount;
            }
            ranges.emplace_back(source.Near(from), to);
            from = to;
            break;
        }
    }
    return ranges;
}

/// A range whose ends lie within some laps, or beyond all integers: nothing in between, which would give as many joints.
PosRangeD CutRange(Source& source, int count)
{
    constexpr double beyond[] = {3e9, -3e9, 1e300, -1e18};
    PosRangeD range = RandomRange(source, count);
    for (double* end : {&range.start, &range.end})
    {
        const bool isNear = *end > -200.0 && *end < 200.0;
        if (!isNear && *end == *end)
        {
            *end = beyond[source.Below(4)];
        }
    }
    return range;
}

struct TwoMaps
{
    CPolyPosMap first;
    CPolyPosMap second;
};

CPolyPosMap MaybeLarge(Source& source, int srcCount, int dstCount)
{
    return source.Round() % 500 == 499 ? LargeMap(source, 200, srcCount, dstCount)
                                       : RandomMap(source, srcCount, dstCount);
}

/// Maps to join: they share the count of one side, or both, more often than not, and often meet at the end of the first.
TwoMaps MapsToCombine(Source& source, bool shareSource, bool shareDestination)
{
    const int srcCount = RandomCount(source);
    const int dstCount = RandomCount(source);
    const int otherSrc = shareSource && !source.OneIn(12) ? srcCount : RandomCount(source);
    const int otherDst = shareDestination && !source.OneIn(12) ? dstCount : RandomCount(source);
    switch (source.Below(4))
    {
    case 0:
        return {Builder::GenerateWholeMap(srcCount, source.OneIn(4)),
                Builder::GenerateWholeMap(otherSrc, source.OneIn(4))};
    case 1: // halves of one destination
    {
        const double middle = 0.5 * source.Between(0, 2 * (dstCount > 0 ? dstCount : 1));
        const double end = dstCount;
        return {CPolyPosMap({{0.0, 0.0}, {static_cast<double>(srcCount), middle}}, srcCount, dstCount),
                CPolyPosMap({{0.0, source.Near(middle)}, {static_cast<double>(otherSrc), end}}, otherSrc, dstCount)};
    }
    default:
        const CPolyPosMap first = MaybeLarge(source, srcCount, dstCount);
        return {first, MaybeLarge(source, otherSrc, otherDst)};
    }
}

int AddedCount(Source& source)
{
    return source.OneIn(10) ? source.Between(-2, 30) : source.Between(0, 4);
}

} // namespace

const std::vector<Load> MapBuilderLoads = {
    {"CPolyPosMapUtilies::GenerateWholeMap(int const&, bool const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const int count = source.OneIn(10) ? source.Between(-1000000, 1000000) : source.Between(-3, 30);
         hash << Builder::GenerateWholeMap(count, source.Coin());
     }},
    {"CPolyPosMapUtilies::ResetZero(double const&, int const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const int count = RandomCount(source);
         hash << Builder::ResetZero(RandomPosition(source, count), count);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromSegmentMap(std::vector<int> const&, int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const int dstCount = source.Between(1, 9);
         hash << Builder::GeneratePosMapFromSegmentMap(SegmentMap(source, dstCount), dstCount);
     }},
    {"CPolyPosMapUtilies::GetSegmentMapFronPosMap(CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = SeldomLargeMap(source, 250, 300);
         if (source.OneIn(4))
         {
             const int dstCount = source.Between(1, 9);
             map = Builder::GeneratePosMapFromSegmentMap(SegmentMap(source, dstCount), dstCount);
         }
         hash << Builder::GetSegmentMapFronPosMap(map);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromPosRangeVec(std::vector<PosRangeD> const&, int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const int dstCount = source.OneIn(20) ? RandomCount(source) : source.Between(1, 6);
         hash << Builder::GeneratePosMapFromPosRangeVec(RangeList(source, dstCount), dstCount);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromPosRange2Pos(PosRangeD const&, double const&, int const&, int const&)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         const int srcCount = RandomCount(source);
         const int dstCount = RandomCount(source);
         const PosRangeD range = RandomRange(source, srcCount);
         hash << Builder::GeneratePosMapFromPosRange2Pos(range, RandomPosition(source, dstCount), srcCount, dstCount);
     }},
    {"CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(PosRangeD const&, int const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const int count = source.OneIn(30) ? source.Between(50, 200) : RandomCount(source);
         hash << Builder::GeneratePosMapFromCadByPosrange2OriginCad(CutRange(source, count), count);
     }},
    {"CPolyPosMapUtilies::CombineTwoCad(int const&, int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const int first = source.Between(-2, source.OneIn(20) ? 300 : 9);
         hash << Builder::CombineTwoCad(first, source.Between(-2, 9));
     }},
    {"CPolyPosMapUtilies::CombineTwonMapWithSameDst(CPolyPosMap const&, CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const TwoMaps maps = MapsToCombine(source, false, true);
         hash << Builder::CombineTwonMapWithSameDst(maps.first, maps.second);
     }},
    {"CPolyPosMapUtilies::CombineTwonMapWithSameSrc(CPolyPosMap const&, CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         TwoMaps maps = MapsToCombine(source, true, false);
         if (source.Coin())
         {
             maps = {!maps.first, !maps.second};
         }
         hash << Builder::CombineTwonMapWithSameSrc(maps.first, maps.second);
     }},
    {"CPolyPosMapUtilies::CombineTwoMapStandalone(CPolyPosMap const&, CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const TwoMaps maps = MapsToCombine(source, false, false);
         hash << Builder::CombineTwoMapStandalone(maps.first, maps.second);
     }},
    {"CPolyPosMapUtilies::ExtendMap(CPolyPosMap const&, int const&, bool const&, bool const&, bool const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const bool isReversed = source.Coin();
         const CPolyPosMap map =
             source.OneIn(3) ? Builder::GenerateWholeMap(source.Between(1, 6), isReversed) : RandomMap(source);
         const int added = AddedCount(source);
         const bool atFront = source.Coin();
         const bool extendSrc = source.Coin();
         hash << Builder::ExtendMap(map, added, atFront, extendSrc, source.Coin());
     }},
    {"CPolyPosMapUtilies::ExtendMap(CPolyPosMap const&, int const&, int const&, bool const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map =
             source.OneIn(3) ? Builder::GenerateWholeMap(source.Between(1, 6), false) : RandomMap(source);
         const int addedSrc = AddedCount(source);
         const int addedDst = AddedCount(source);
         hash << Builder::ExtendMap(map, addedSrc, addedDst, source.Coin());
     }},
    {"CPolyPosMapUtilies::RemoveOpenRangeFromMap(CPolyPosMap const&, PosRangeD const&, bool const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map =
             source.OneIn(4) ? Builder::GenerateWholeMap(source.Between(1, 6), false) : RandomMap(source);
         const bool onSrc = source.Coin();
         const int count = onSrc ? map.SrcSegmentCount() : map.DstSegmentCount();
         PosRangeD range = CutRange(source, count);
         if (source.Coin())
         {
             // At one end of the polyline: that is what the function is for.
             range = source.Coin() ? PosRangeD(0.0, range.end) : PosRangeD(range.start, static_cast<double>(count));
         }
         hash << Builder::RemoveOpenRangeFromMap(map, range, onSrc);
     }},
};

} // namespace math::hashes
