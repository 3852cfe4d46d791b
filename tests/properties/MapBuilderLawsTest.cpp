#include "MapGrid.h"
#include "math/CPolyPosMapUtilies.h"
#include "math/CPolyline.h"
#include "support/Outlines.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of the builders, numbered as in docs/maps.md. A generator is laid beside real outlines: the outline is cut,
// renumbered, turned or joined segment by segment, and a position and its image must be one point of the plane. Combiners
// and edits are checked on all maps of a small grid.

namespace
{

using Build = CPolyPosMapUtilies;

/// Segments of a few units, evaluated and split by trigonometry.
constexpr double SamePoint = 1e-12;

int CountOf(const CPolyline& outline)
{
    return static_cast<int>(outline.nodes.size());
}

CSegment SegmentOf(const CPolyline& outline, int index)
{
    return outline.GetSegment(static_cast<std::uint64_t>(index));
}

DPOINT2 PointAt(const CPolyline& outline, double position)
{
    const double place = PosRangeD::NormalizePos(position, CountOf(outline));
    const int index = std::min(static_cast<int>(place), CountOf(outline) - 1);
    return SegmentOf(outline, index).GetPoint(place - index);
}

void Add(CPolyline& outline, const CSegment& segment)
{
    if (outline.nodes.empty())
    {
        outline.start = segment.start;
    }
    outline.AddNodes(segment.end, segment.type == SegmentArc ? segment.bulge : 0);
}

/// The stretch of a closed outline, from `from` to `to` raw, every piece of a segment as a segment of its own.
CPolyline CutOut(const CPolyline& outline, double from, double to)
{
    CPolyline piece;
    for (double position = from; position < to;)
    {
        const double segmentStart = std::floor(position);
        const double end = std::min(segmentStart + 1, to);
        CSegment segment = SegmentOf(outline, static_cast<int>(segmentStart) % CountOf(outline));
        Add(piece, segment.GetSplitSegment(position - segmentStart, end - segmentStart));
        position = end;
    }
    return piece;
}

/// Every position of the first outline in sixteenths, and its image, are one point.
void ExpectSamePoints(const CPolyline& source, const CPolyPosMap& map, const CPolyline& destination)
{
    ASSERT_EQ(map.SrcSegmentCount(), CountOf(source));
    ASSERT_EQ(map.DstSegmentCount(), CountOf(destination));
    for (double position = 0; position <= CountOf(source); position += 0.0625)
    {
        const std::vector<double> images = map * position;
        ASSERT_FALSE(images.empty()) << position << " of " << Told(map);
        for (double image : images)
        {
            ASSERT_TRUE(Near(PointAt(destination, image), PointAt(source, position), SamePoint))
                << position << " of " << Told(map);
        }
    }
}

std::vector<CPolyline> Outlines()
{
    Random random(331);
    std::vector<CPolyline> outlines = {Square()};
    for (int count = 2; count <= 5; ++count)
    {
        outlines.push_back(RandomOutline(random, count));
    }
    return outlines;
}

/// Normal maps with two joints, and some at random with more, walked up the source.
std::vector<CPolyPosMap> UpwardMaps(int sourceCount, int destinationCount)
{
    std::vector<CPolyPosMap> maps =
        WithFineMaps(AllMaps(2, sourceCount, destinationCount, 1.0), 334, 200, sourceCount, destinationCount);
    maps.erase(std::remove_if(maps.begin(), maps.end(), [](const CPolyPosMap& map) { return !RunsUp(map, 1); }),
               maps.end());
    return maps;
}

bool IsNoMap(const CPolyPosMap& map)
{
    return map == NoMap();
}

std::vector<double> Raised(std::vector<double> positions, double by)
{
    std::for_each(positions.begin(), positions.end(), [by](double& position) { position += by; });
    return positions;
}

} // namespace

// Generators, on real outlines

TEST(MapBuilderLaws, M27_AWholeOutlineIsMappedOntoItselfAndOntoItselfTurnedRound)
{
    for (const CPolyline& outline : Outlines())
    {
        const int count = CountOf(outline);
        ExpectSamePoints(outline, Build::GenerateWholeMap(count, false), outline);
        ExpectSamePoints(TurnedRound(outline), Build::GenerateWholeMap(count, true), outline);
        for (double position = 0; position <= count; position += 0.25)
        {
            EXPECT_EQ(Images(Build::GenerateWholeMap(count, true) * position), Images({count - position}));
        }
    }
}

TEST(MapBuilderLaws, M28_AMovedZeroLeadsBackToTheOldNumbers)
{
    for (const CPolyline& outline : Outlines())
    {
        const int count = CountOf(outline);
        for (double zero = 0; zero <= count && !HasFatalFailure(); zero += 0.25)
        {
            SCOPED_TRACE(zero);
            const double start = zero == count ? 0 : zero;
            ExpectSamePoints(CutOut(outline, start, start + count), Build::ResetZero(zero, count), outline);
        }
    }
}

TEST(MapBuilderLaws, M29_ACutPieceLeadsBackToTheOutline)
{
    for (const CPolyline& outline : Outlines())
    {
        const int count = CountOf(outline);
        for (double start = 0; start < count; start += 0.25)
        {
            for (double end = 0; end <= count && !HasFatalFailure(); end += 0.25)
            {
                if (start == end)
                {
                    continue;
                }
                SCOPED_TRACE(::testing::Message() << start << ", " << end);
                const PosRangeD range(start, end);
                ExpectSamePoints(CutOut(outline, start, end > start ? end : end + count),
                                 Build::GeneratePosMapFromCadByPosrange2OriginCad(range, count), outline);
            }
        }
    }
}

TEST(MapBuilderLaws, M30_JoinedOutlinesKeepThePlacesOfTheirParts)
{
    const std::vector<CPolyline> outlines = Outlines();
    for (const CPolyline& first : outlines)
    {
        for (const CPolyline& second : outlines)
        {
            CPolyline joined = first;
            for (int i = 0; i < CountOf(second); ++i)
            {
                joined.AddNodes(second.nodes[static_cast<std::size_t>(i)]);
            }
            const auto [ofFirst, ofSecond] = Build::CombineTwoCad(CountOf(first), CountOf(second));
            ExpectSamePoints(first, ofFirst, joined);
            // The second part begins where the first one ends: its first segment starts elsewhere now.
            for (double position = 1; position <= CountOf(second); position += 0.0625)
            {
                ASSERT_EQ(Images(ofSecond * position), Images({CountOf(first) + position}));
                ASSERT_TRUE(Near(PointAt(joined, CountOf(first) + position), PointAt(second, position), SamePoint));
            }
        }
    }
}

TEST(MapBuilderLaws, M31_ASegmentMapCarriesEachSegmentToItsNumberAndAVanishedOneToWhereTheWalkStands)
{
    const int count = 4;
    // All lists of one to four entries whose numbers rise.
    std::vector<std::vector<int>> lists = {{}};
    for (std::size_t i = 0; i < lists.size(); ++i)
    {
        const int last = lists[i].empty() ? -1 : *std::max_element(lists[i].begin(), lists[i].end());
        for (int next = -1; next < count && lists[i].size() < 4; next = std::max(next, last) + 1)
        {
            std::vector<int> longer = lists[i];
            longer.push_back(next);
            lists.push_back(longer);
        }
    }
    EXPECT_GT(lists.size(), 100U);
    const auto check = [](const std::vector<int>& list, int segmentCount) {
        const CPolyPosMap map = Build::GeneratePosMapFromSegmentMap(list, segmentCount);
        ASSERT_FALSE(map.IsInvalid());
        double standing = 0;
        for (std::size_t i = 0; i < list.size(); ++i)
        {
            for (double ratio : {0.125, 0.5, 0.875})
            {
                const double image = list[i] < 0 ? standing : list[i] + ratio;
                ASSERT_EQ(Images(map * (static_cast<double>(i) + ratio)), Images({image})) << Told(map);
            }
            standing = list[i] < 0 ? standing : list[i] + 1;
        }
    };
    for (const std::vector<int>& list : lists)
    {
        check(list, count);
    }
    Random random(331);
    for (int round = 0; round < 2000; ++round)
    {
        const int segmentCount = random.Integer(1, 40);
        std::vector<int> list;
        for (int next = random.Integer(0, 3); next < segmentCount; next += random.Integer(1, 4))
        {
            list.push_back(next);
            list.insert(list.end(), static_cast<std::size_t>(random.Integer(0, 2)), -1);
        }
        check(list, segmentCount);
    }
}

TEST(MapBuilderLaws, M32_ARangeListCarriesEachSegmentAlongItsRange)
{
    Random random(332);
    for (int round = 0; round < 2000; ++round)
    {
        const int count = random.Integer(1, 5);
        // Ranges that follow one another for up to a lap, in eighths; some segments without one.
        const int size = random.Integer(1, 6);
        double walked = 0.125 * random.Integer(0, 8 * count - 1);
        const double limit = walked + count;
        std::vector<PosRangeD> ranges;
        std::vector<double> starts;
        std::vector<double> lengths;
        for (int i = 0; i < size; ++i)
        {
            const double length = 0.125 * random.Integer(1, 8);
            const bool isGone = random.Integer(0, 4) == 0 || walked + length > limit;
            starts.push_back(walked);
            lengths.push_back(isGone ? 0 : length);
            ranges.push_back(
                isGone ? PosRangeD()
                       : PosRangeD(std::fmod(walked, count), PosRangeD::NormalizePos(walked + length, count)));
            walked += isGone ? 0 : length;
        }
        const bool hasNone = std::all_of(lengths.begin(), lengths.end(), [](double length) { return length == 0; });
        const bool hasWhole =
            std::any_of(ranges.begin(), ranges.end(), [](const PosRangeD& r) { return r.IsWholeRange(); });
        if (hasNone || hasWhole)
        {
            continue; // without any range the walk stands at 0
        }
        const CPolyPosMap map = Build::GeneratePosMapFromPosRangeVec(ranges, count);
        ASSERT_FALSE(map.IsInvalid()) << Told(map);
        for (int i = 0; i < size; ++i)
        {
            const std::size_t at = static_cast<std::size_t>(i);
            for (double ratio : {0.125, 0.5, 0.875})
            {
                const std::vector<double> expected = PlacesOf({starts[at] + ratio * lengths[at]}, count);
                ASSERT_TRUE(AreSamePlaces(PlacesByHand(map, i + ratio), expected)) << i + ratio << " of " << Told(map);
            }
        }
    }
}

TEST(MapBuilderLaws, M33_ACollapsedStretchHasOneImage)
{
    for (double start = 0; start <= 4; start += 0.5)
    {
        for (double end = start + 0.5; end <= 4; end += 0.5)
        {
            const CPolyPosMap map = Build::GeneratePosMapFromPosRange2Pos(PosRangeD(start, end), 2.5, 4, 5);
            for (double position = 0; position <= 4; position += 0.25)
            {
                const bool inside = start <= position && position <= end;
                EXPECT_EQ(Images(map * position), inside ? Images({2.5}) : Images({}))
                    << position << " of " << Told(map);
            }
        }
    }
    Random random(333);
    for (int round = 0; round < 5000; ++round)
    {
        const int count = random.Integer(1, 20);
        const double start = random.Number(0, count);
        const double end = random.Number(start, count);
        const double image = random.Number(0, 9);
        const double position = random.Number(0, count);
        const CPolyPosMap map = Build::GeneratePosMapFromPosRange2Pos(PosRangeD(start, end), image, count, 9);
        const bool inside = start <= position && position <= end;
        EXPECT_EQ(Images(map * position), inside ? Images({image}) : Images({})) << position << " of " << Told(map);
    }
}

// Combiners

namespace
{

/// One list behind the other, the sources of the second two segments on, its destinations a lap on where the walk would
/// else turn back.
CPolyPosMap OneBehindTheOther(const CPolyPosMap& a, const CPolyPosMap& b)
{
    CPolyPosMap first = a;
    CPolyPosMap second = b;
    second.Offset(2, 1);
    const bool up = a.PosPairs().front().second <= a.PosPairs().back().second;
    if (up && a.Back().second > b.Back().second)
    {
        second.Offset(2, 2);
    }
    if (!up && b.Front().second > a.Front().second)
    {
        first.Offset(2, 2);
    }
    Pairs pairs = first.PosPairs();
    pairs.insert(pairs.end(), second.PosPairs().begin(), second.PosPairs().end());
    CPolyPosMap joined = Map(pairs, 4, 2);
    joined.Unique(true);
    return joined;
}

} // namespace

TEST(MapBuilderLaws, M34_JoinedSourcesKeepTheImagesOfBothParts)
{
    int made = 0;
    for (const CPolyPosMap& a : UpwardMaps(2, 2))
    {
        for (const CPolyPosMap& b : UpwardMaps(2, 2))
        {
            const CPolyPosMap joined = Build::CombineTwonMapWithSameDst(a, b);
            if (!CrossesTheSeam(a, 1) && !CrossesTheSeam(b, 1))
            {
                const CPolyPosMap byHand = OneBehindTheOther(a, b);
                ASSERT_EQ(joined, byHand.IsInvalid() ? NoMap() : byHand) << Told(a) << " and " << Told(b);
            }
            if (IsNoMap(joined))
            {
                continue;
            }
            ++made;
            for (double position = 0.03125; position < 2; position += 0.125)
            {
                // A part that covers the position keeps its images; where it has none the map may stand still.
                const std::vector<double> ofA = PlacesByHand(a, position);
                const std::vector<double> ofB = PlacesByHand(b, position);
                ASSERT_TRUE(ofA.empty() || AreSamePlaces(PlacesByHand(joined, position), ofA))
                    << position << " of " << Told(a) << " and " << Told(b) << "\ngave " << Told(joined);
                ASSERT_TRUE(ofB.empty() || AreSamePlaces(PlacesByHand(joined, position + 2), ofB))
                    << position << " of " << Told(a) << " and " << Told(b) << "\ngave " << Told(joined);
            }
            ASSERT_EQ(Build::CombineTwonMapWithSameSrc(!a, !b), !joined);
        }
    }
    EXPECT_GT(made, 100);
}

TEST(MapBuilderLaws, M35_MapsJoinedOnBothSidesKeepTheImagesOfBothParts)
{
    int made = 0;
    for (const CPolyPosMap& a : UpwardMaps(2, 2))
    {
        for (const CPolyPosMap& b : UpwardMaps(2, 2))
        {
            const CPolyPosMap joined = Build::CombineTwoMapStandalone(a, b);
            const bool isClear =
                !CrossesTheSeam(a, 1) && !CrossesTheSeam(b, 1) && !CrossesTheSeam(a, 2) && !CrossesTheSeam(b, 2);
            if (isClear)
            {
                const bool meet = a.Back().first == b.Front().first + 2 || a.Back().second == b.Front().second + 2;
                ASSERT_EQ(IsNoMap(joined), !meet || RunsUp(a, 2) != RunsUp(b, 2)) << Told(a) << " and " << Told(b);
            }
            if (IsNoMap(joined) || joined.IsInvalid())
            {
                continue;
            }
            ++made;
            for (double position = 0.03125; position < 2; position += 0.125)
            {
                const std::vector<double> ofA = a * position;
                const std::vector<double> ofB = Raised(b * position, 2);
                ASSERT_TRUE(ofA.empty() || AreSamePlaces(PlacesByHand(joined, position), PlacesOf(ofA, 4)))
                    << position << " of " << Told(a) << " and " << Told(b) << "\ngave " << Told(joined);
                ASSERT_TRUE(ofB.empty() || AreSamePlaces(PlacesByHand(joined, position + 2), PlacesOf(ofB, 4)))
                    << position << " of " << Told(a) << " and " << Told(b) << "\ngave " << Told(joined);
            }
        }
    }
    EXPECT_GT(made, 100);
}

// Extension and removal

TEST(MapBuilderLaws, M36_SegmentsAddedToTheSourceCollapseAndTheOthersKeepTheirImages)
{
    int made = 0;
    for (const CPolyPosMap& map : UpwardMaps(2, 2))
    {
        for (bool atFront : {false, true})
        {
            const CPolyPosMap extended = Build::ExtendMap(map, 1, atFront, true, false);
            if (IsNoMap(extended))
            {
                continue;
            }
            ++made;
            const double end = atFront ? map.Front().second : map.Back().second;
            for (double position = 0.03125; position < 2; position += 0.125)
            {
                const std::vector<double> images = PlacesByHand(map, position);
                ASSERT_TRUE(images.empty() ||
                            AreSamePlaces(PlacesByHand(extended, position + (atFront ? 1 : 0)), images))
                    << position << " of " << Told(map) << (atFront ? " front " : " back ") << Told(extended);
            }
            for (double added = 0.03125; added < 1; added += 0.125)
            {
                ASSERT_TRUE(AreSamePlaces(PlacesByHand(extended, added + (atFront ? 0 : 2)), PlacesOf({end}, 2)))
                    << added << " of " << Told(map) << (atFront ? " front " : " back ") << Told(extended);
            }
        }
    }
    EXPECT_GT(made, 50);
}

TEST(MapBuilderLaws, M37_WhatIsAddedAndTakenAwayAgainLeavesTheMap)
{
    int checked = 0;
    for (const CPolyPosMap& map : WithFineMaps(AllMaps(3, 2, 2, 0.5), 337, 5000))
    {
        const bool fromEndToEnd =
            map.IsIncrease(3) && Lowest(map, 1) == 0 && IsFullLap(map, 1) && Lowest(map, 2) == 0 && IsFullLap(map, 2);
        if (!fromEndToEnd)
        {
            continue;
        }
        CPolyPosMap plain = map;
        plain.Unique(true);
        for (int added = 1; added <= 2; ++added)
        {
            const PosRangeD front(0, added);
            const PosRangeD back(2, 2 + added);
            for (bool atFront : {false, true})
            {
                for (bool onSource : {false, true})
                {
                    const CPolyPosMap extended = Build::ExtendMap(map, added, atFront, onSource, !onSource);
                    ASSERT_EQ(Build::RemoveOpenRangeFromMap(extended, atFront ? front : back, onSource), plain)
                        << Told(map) << " became " << Told(extended);
                    ++checked;
                }
            }
        }
    }
    EXPECT_GT(checked, 100);
}

TEST(MapBuilderLaws, M38_AShortenedSourceCarriesWhatIsLeftAsBefore)
{
    for (const CPolyPosMap& map : WithFineMaps(AllMaps(2, 2, 2, 0.5), 338, 1000))
    {
        if (CrossesTheSeam(map, 1) || !RunsUp(map, 1))
        {
            continue;
        }
        for (bool atFront : {false, true})
        {
            const PosRangeD lost = atFront ? PosRangeD(0, 1) : PosRangeD(1, 2);
            const CPolyPosMap shortened = Build::RemoveOpenRangeFromMap(map, lost, true);
            for (double position = 0.03125; position < 1; position += 0.125)
            {
                const std::vector<double> before = PlacesByHand(map, position + (atFront ? 1 : 0));
                const std::vector<double> after =
                    shortened.IsEmpty() ? std::vector<double>() : PlacesByHand(shortened, position);
                ASSERT_TRUE(AreSamePlaces(after, before))
                    << position << " of " << Told(map) << (atFront ? " without its front " : " without its back ")
                    << Told(shortened);
            }
            const bool isStraight = IsOneToOne(map) && Lowest(map, 1) == 0 && Highest(map, 1) == 2;
            if (isStraight && !IsFullLap(map, 2))
            {
                // Where the stretch was lost, the walk jumps from its one end to the other.
                const double cut = atFront ? 0 : 1;
                const std::vector<double> ends = {RawImagesByHand(map, lost.start)[0],
                                                  RawImagesByHand(map, lost.end)[0]};
                ASSERT_TRUE(AreSamePlaces(PlacesOf(RawImagesByHand(shortened, cut), 2), PlacesOf(ends, 2)))
                    << Told(map) << " without " << Two(lost) << " gave " << Told(shortened);
            }
        }
    }
}
