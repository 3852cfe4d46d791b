#include "math/CPolyPosMapUtilies.h"
#include "support/RandomMaps.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

using Generate = CPolyPosMapUtilies;

constexpr int Rounds = 1500;

/// How far two positions are from being the same place on a closed polyline.
double Apart(double a, double b, int count)
{
    return std::fabs(std::remainder(a - b, count));
}

/// A ratio that is a multiple of 1/1024, so that laps may be added to a multiple of it without rounding.
double CoarseRatio(RandomMaps& random)
{
    return random.Below(1024) / 1024.0;
}

/// Rises strictly from low to low + span, both included.
std::vector<double> RisingColumn(RandomMaps& random, std::size_t size, double low, double span)
{
    std::vector<double> ratios = {0.0, 1.0};
    while (ratios.size() < size)
    {
        const double ratio = CoarseRatio(random);
        const auto close = [ratio](double other) { return std::fabs(other - ratio) < 0.01; };
        if (std::none_of(ratios.begin(), ratios.end(), close))
        {
            ratios.push_back(ratio);
        }
    }
    std::sort(ratios.begin(), ratios.end());
    for (double& ratio : ratios)
    {
        ratio = low + ratio * span;
    }
    return ratios;
}

CPolyPosMap FromColumns(const std::vector<double>& source, std::vector<double> destination, bool turned,
                        int sourceCount, int destinationCount)
{
    if (turned)
    {
        std::reverse(destination.begin(), destination.end());
    }
    Pairs pairs;
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        pairs.emplace_back(source[i], destination[i]);
    }
    return Map(pairs, sourceCount, destinationCount);
}

enum class Begins
{
    AtZero,
    Anywhere
};

/// Once round both polylines, one place for each place, over the seam of a side that does not begin at zero.
CPolyPosMap RoundMap(RandomMaps& random, int sourceCount, int destinationCount, Begins source, Begins destination)
{
    const std::size_t size = static_cast<std::size_t>(2 + random.Below(5));
    const double sourceStart = source == Begins::AtZero ? 0.0 : CoarseRatio(random) * sourceCount;
    const double destinationStart = destination == Begins::AtZero ? 0.0 : CoarseRatio(random) * destinationCount;
    return FromColumns(RisingColumn(random, size, sourceStart, sourceCount),
                       RisingColumn(random, size, destinationStart, destinationCount), random.OneIn(3), sourceCount,
                       destinationCount);
}

/// A stretch on either side that stays clear of the seams.
CPolyPosMap StretchMap(RandomMaps& random, int sourceCount, int destinationCount)
{
    const std::size_t size = static_cast<std::size_t>(2 + random.Below(5));
    const double sourceSpan = (0.2 + 0.6 * random.Ratio()) * sourceCount;
    const double destinationSpan = (0.2 + 0.6 * random.Ratio()) * destinationCount;
    return FromColumns(
        RisingColumn(random, size, random.Ratio() * (sourceCount - sourceSpan), sourceSpan),
        RisingColumn(random, size, random.Ratio() * (destinationCount - destinationSpan), destinationSpan),
        random.OneIn(3), sourceCount, destinationCount);
}

/// The same closed map told from another of its joints on.
CPolyPosMap BegunAt(const CPolyPosMap& round, std::size_t joint)
{
    const Pairs& pairs = round.PosPairs();
    const double sourceLap = pairs.back().first - pairs.front().first;
    const double destinationLap = pairs.back().second - pairs.front().second;
    Pairs begun(pairs.begin() + static_cast<std::ptrdiff_t>(joint), pairs.end());
    for (std::size_t i = 1; i <= joint; ++i)
    {
        begun.emplace_back(pairs[i].first + sourceLap, pairs[i].second + destinationLap);
    }
    return Map(begun, round.SrcSegmentCount(), round.DstSegmentCount());
}

/// The one image of a position, or no number where there is none or more than one.
double ImageOf(const CPolyPosMap& map, double position)
{
    const std::vector<double> images = map * position;
    return images.size() == 1 ? images.front() : NaN;
}

std::string Described(const CPolyPosMap& map)
{
    return ::testing::PrintToString(map);
}

} // namespace

// Positions at random lie away from joints. The two ways round the arithmetic differently; 1e-9 is the library's own
// measure of the same place.
TEST(MapLaws, ACompositionCarriesAPositionAsTheTwoMapsDoInTurn)
{
    RandomMaps random(21);
    int carried = 0;
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int counts[] = {1 + random.Below(5), 1 + random.Below(5), 1 + random.Below(5)};
        const bool round = random.OneIn(2);
        // Where both maps cross the seam between them only the second is unrolled, and part of the walk is lost.
        const bool firstMayCross = random.OneIn(2);
        const Begins first = firstMayCross ? Begins::Anywhere : Begins::AtZero;
        const Begins second = firstMayCross ? Begins::AtZero : Begins::Anywhere;
        const CPolyPosMap a = round ? RoundMap(random, counts[0], counts[1], Begins::Anywhere, first)
                                    : StretchMap(random, counts[0], counts[1]);
        const CPolyPosMap b = round ? RoundMap(random, counts[1], counts[2], second, Begins::Anywhere)
                                    : StretchMap(random, counts[1], counts[2]);
        const CPolyPosMap product = a * b;
        for (int j = 0; j < 20; ++j)
        {
            const double position = random.Ratio() * counts[0];
            const double between = ImageOf(a, position);
            const double image = std::isnan(between) ? NaN : ImageOf(b, between);
            // A composition of which nothing survived has no joints, and without joints positions would go through.
            const double imageOfProduct = product.IsEmpty() ? NaN : ImageOf(product, position);
            ASSERT_EQ(std::isnan(image), std::isnan(imageOfProduct))
                << position << " through " << Described(a) << "\nand " << Described(b) << "\ngives " << image
                << ", through " << Described(product) << " " << imageOfProduct;
            if (!std::isnan(image))
            {
                ++carried;
                EXPECT_LT(Apart(image, imageOfProduct, counts[2]), 1e-9)
                    << position << " through " << Described(a) << "\nand " << Described(b);
            }
        }
    }
    EXPECT_GT(carried, Rounds * 10);
}

TEST(MapLaws, CompositionMayBeBracketedEitherWay)
{
    RandomMaps random(22);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int count = 1 + random.Below(4);
        const CPolyPosMap a = StretchMap(random, 3, count);
        const CPolyPosMap b = StretchMap(random, count, 5);
        const CPolyPosMap c = StretchMap(random, 5, 2);
        const CPolyPosMap leftFirst = (a * b) * c;
        const CPolyPosMap rightFirst = a * (b * c);
        if (leftFirst.IsEmpty() || rightFirst.IsEmpty() || (a * b).IsEmpty() || (b * c).IsEmpty())
        {
            continue; // where nothing survives, the empty map is neutral in what follows
        }
        ASSERT_EQ(leftFirst.PosPairs().size(), rightFirst.PosPairs().size());
        for (std::size_t j = 0; j < leftFirst.PosPairs().size(); ++j)
        {
            EXPECT_NEAR(leftFirst.PosPairs()[j].first, rightFirst.PosPairs()[j].first, 1e-9);
            EXPECT_NEAR(leftFirst.PosPairs()[j].second, rightFirst.PosPairs()[j].second, 1e-9);
        }
    }
}

TEST(MapLaws, AMapUndoesItsInverse)
{
    RandomMaps random(23);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        CPolyPosMap map = StretchMap(random, 1 + random.Below(5), 1 + random.Below(5));
        EXPECT_TRUE(map.IsInvertTo(!map)) << Described(map);
        EXPECT_EQ(!!map, map);
    }
}

// The joint from which a closed outline is counted must not change what answers to what.
TEST(MapSeams, AClosedMapGivesTheSameImagesFromWhicheverJointItBegins)
{
    RandomMaps random(24);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int sourceCount = 1 + random.Below(5);
        const int destinationCount = 1 + random.Below(5);
        const CPolyPosMap map = RoundMap(random, sourceCount, destinationCount, Begins::Anywhere, Begins::Anywhere);
        for (std::size_t joint = 1; joint + 1 < map.PosPairs().size(); ++joint)
        {
            const CPolyPosMap begun = BegunAt(map, joint);
            const double position = random.Ratio() * sourceCount;
            EXPECT_LT(Apart(ImageOf(map, position), ImageOf(begun, position), destinationCount), 1e-9)
                << position << " through " << Described(map) << "\nand " << Described(begun);
            EXPECT_FALSE(begun.IsOverRange(position, 1));
        }
    }
}

TEST(MapSeams, ACompositionOfClosedMapsDoesNotDependOnWhereEitherBegins)
{
    RandomMaps random(25);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int counts[] = {1 + random.Below(4), 1 + random.Below(4), 1 + random.Below(4)};
        // Rising ones only: what runs opposite ways need not have a normal form when it begins elsewhere.
        const CPolyPosMap a = FromColumns(RisingColumn(random, 4, CoarseRatio(random) * counts[0], counts[0]),
                                          RisingColumn(random, 4, 0, counts[1]), false, counts[0], counts[1]);
        const CPolyPosMap b = FromColumns(RisingColumn(random, 4, 0, counts[1]),
                                          RisingColumn(random, 4, CoarseRatio(random) * counts[2], counts[2]), false,
                                          counts[1], counts[2]);
        const double position = random.Ratio() * counts[0];
        const double image = ImageOf(a * b, position);
        ASSERT_FALSE(std::isnan(image));
        for (std::size_t joint = 1; joint < 3; ++joint)
        {
            EXPECT_LT(Apart(ImageOf(BegunAt(a, joint) * b, position), image, counts[2]), 1e-9)
                << position << " through " << Described(a) << "\nand " << Described(b);
            EXPECT_LT(Apart(ImageOf(a * BegunAt(b, joint), position), image, counts[2]), 1e-9)
                << position << " through " << Described(a) << "\nand " << Described(b);
        }
    }
}

TEST(MapSeams, SplitRenumbersTheSourceFromThePositionOn)
{
    RandomMaps random(26);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int sourceCount = 1 + random.Below(5);
        const int destinationCount = 1 + random.Below(5);
        const CPolyPosMap map = RoundMap(random, sourceCount, destinationCount, Begins::AtZero, Begins::Anywhere);
        const double cut = random.OneIn(3) ? random.Below(sourceCount + 1) : random.Ratio() * sourceCount;
        CPolyPosMap split = map;
        split.Split(cut, 1);
        const CPolyPosMap renumbering = Generate::ResetZero(cut, sourceCount);
        const double position = random.Ratio() * renumbering.SrcSegmentCount();
        EXPECT_LT(Apart(ImageOf(split, position), ImageOf(map, ImageOf(renumbering, position)), destinationCount), 1e-9)
            << "cut at " << cut << ", " << position << " of " << Described(map);
        EXPECT_EQ(split.SrcSegmentCount(), renumbering.SrcSegmentCount());
        EXPECT_EQ(split.DstSegmentCount(), destinationCount);
    }
}

TEST(MapGeneratorLaws, ResetZeroUndoesItsInverse)
{
    for (int count = 1; count <= 6; ++count)
    {
        for (int quarter = 0; quarter <= 4 * count; ++quarter)
        {
            CPolyPosMap renumbering = Generate::ResetZero(0.25 * quarter, count);
            EXPECT_TRUE(renumbering.IsInvertTo(!renumbering)) << 0.25 * quarter << " of " << count;
            CPolyPosMap back = !renumbering;
            EXPECT_TRUE(back.IsInvertTo(renumbering)) << 0.25 * quarter << " of " << count;
            EXPECT_FALSE((renumbering * back).IsEmpty());
            EXPECT_TRUE((renumbering * back).GetRange(1, true).IsWholeRange() ||
                        Two((renumbering * back).GetRange(1, true)) == Two(0, renumbering.SrcSegmentCount()));
        }
    }
}

TEST(MapGeneratorLaws, TurningAWholePolylineTwiceChangesNothing)
{
    for (int count = 1; count <= 40; ++count)
    {
        const CPolyPosMap turned = Generate::GenerateWholeMap(count, true);
        EXPECT_EQ(turned * turned, Generate::GenerateWholeMap(count, false));
        CPolyPosMap map = Generate::GenerateWholeMap(count, false);
        map.ReverseDirection(2);
        EXPECT_EQ(map, turned);
        map.ReverseDirection(1);
        EXPECT_EQ(map, Generate::GenerateWholeMap(count, false));
    }
}

TEST(MapGeneratorLaws, ACutPieceLiesInItsRangeAndHasASegmentForEachPart)
{
    const int count = 5;
    for (int startQuarter = 0; startQuarter < 4 * count; ++startQuarter)
    {
        for (int endQuarter = 0; endQuarter <= 4 * count; ++endQuarter)
        {
            if (startQuarter == endQuarter)
            {
                continue;
            }
            const PosRangeD range(0.25 * startQuarter, 0.25 * endQuarter);
            const double end = range.end > range.start ? range.end : range.end + count;
            const CPolyPosMap piece = Generate::GeneratePosMapFromCadByPosrange2OriginCad(range, count);
            EXPECT_EQ(Two(piece.GetRange(2, false)), Two(range.start, end));
            EXPECT_EQ(piece.SrcSegmentCount(), static_cast<int>(std::ceil(end) - std::floor(range.start)));
            EXPECT_EQ(Two(piece.GetRange(1, false)), Two(0, piece.SrcSegmentCount()));
            EXPECT_FALSE(piece.IsInvalid());
            // A whole position of the piece is a node of the polyline, but for the two ends.
            for (int node = 1; node < piece.SrcSegmentCount(); ++node)
            {
                EXPECT_EQ(Images(piece * node), Images({std::floor(range.start) + node})) << Two(range);
            }
        }
    }
}

TEST(MapGeneratorLaws, ASegmentMapThatRisesIsReadBackFromItsMap)
{
    RandomMaps random(27);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        std::vector<int> segments;
        for (int next = random.Below(3); next < 9; next += 1 + random.Below(3))
        {
            segments.push_back(next);
        }
        const CPolyPosMap map = Generate::GeneratePosMapFromSegmentMap(segments, 9);
        const std::vector<int> readBack = Generate::GetSegmentMapFronPosMap(map);
        ASSERT_EQ(readBack.size(), segments.size());
        for (std::size_t j = 0; j < segments.size(); ++j)
        {
            // After a gap the first image is the end of the segment before, one past its number.
            const bool afterGap = j > 0 && segments[j] != segments[j - 1] + 1;
            EXPECT_EQ(readBack[j], afterGap ? segments[j - 1] + 1 : segments[j]) << Described(map);
        }
    }
}

TEST(MapFormLaws, NormalFormIsKeptAndReachedInTwoSteps)
{
    RandomMaps random(28);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int sourceCount = 1 + random.Below(5);
        const int destinationCount = 1 + random.Below(5);
        CPolyPosMap map =
            FromColumns(RisingColumn(random, 3, 0, sourceCount), RisingColumn(random, 3, 0, destinationCount), false,
                        sourceCount, destinationCount);
        map.Offset((random.Below(9) - 4) * sourceCount + random.Below(2) * random.Ratio(), 1);
        map.Offset((random.Below(9) - 4) * destinationCount + random.Below(2) * random.Ratio(), 2);
        map.Normalize();
        map.Normalize();
        EXPECT_TRUE(map.IsNormalize()) << Described(map);
        const CPolyPosMap normal = map;
        map.Normalize();
        EXPECT_EQ(map, normal);
    }
}

TEST(MapFormLaws, DroppingJointsAndFillingThemInMovesNoImage)
{
    RandomMaps random(29);
    for (int i = 0; i < Rounds && !HasFailure(); ++i)
    {
        const int sourceCount = 1 + random.Below(5);
        const int destinationCount = 1 + random.Below(5);
        const CPolyPosMap map = StretchMap(random, sourceCount, destinationCount);
        CPolyPosMap filled = map;
        filled.FillAllSegmentNode(3);
        CPolyPosMap thinned = filled;
        thinned.Unique(true);
        EXPECT_LE(thinned.PosPairs().size(), filled.PosPairs().size());
        for (int j = 0; j < 10; ++j)
        {
            const double position = random.Ratio() * sourceCount;
            const double image = ImageOf(filled, position);
            EXPECT_NEAR(ImageOf(thinned, position), image, 1e-8) << position << " of " << Described(map);
            if (!map.IsOverRange(position, 1))
            {
                EXPECT_NEAR(ImageOf(map, position), image, 1e-9) << position << " of " << Described(map);
            }
        }
        for (int node = 0; node <= sourceCount; ++node)
        {
            EXPECT_GE(filled.GetMaxLeftIndex(node, 1), filled.GetMinRightIndex(node, 1)) << "no joint at " << node;
        }
        for (int node = 0; node <= destinationCount; ++node)
        {
            EXPECT_GE(filled.GetMaxLeftIndex(node, 2), filled.GetMinRightIndex(node, 2)) << "no joint at " << node;
        }
    }
}
