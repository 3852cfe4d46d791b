#include "math/CPolyPosMapUtilies.h"
#include "support/RandomMaps.h"
#include "support/ReferenceBuilders.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <string>
#include <vector>

using namespace math;
using namespace math::test;

namespace
{

enum class Lap
{
    Within, ///< from 0 to the count
    Any     ///< over the seam as well, up to one lap
};

/// An upward column of multiples of an eighth; often from end to end of the polyline.
std::vector<double> SomeColumn(Random& random, int size, int count, Lap lap)
{
    std::vector<double> column;
    for (int i = 0; i < size; ++i)
    {
        column.push_back(0.125 * random.Integer(0, 8 * count));
    }
    std::sort(column.begin(), column.end());
    if (size > 1 && random.Coin())
    {
        column.front() = 0;
        column.back() = count;
    }
    if (lap == Lap::Any && random.Integer(0, 3) == 0)
    {
        const double start = 0.125 * random.Integer(0, 8 * count - 1);
        std::for_each(column.begin(), column.end(), [&](double& value) { value += start - column.front(); });
    }
    return column;
}

CPolyPosMap MapOf(const std::vector<double>& sources, const std::vector<double>& destinations, int sourceCount,
                  int destinationCount)
{
    Pairs pairs;
    for (std::size_t i = 0; i < sources.size(); ++i)
    {
        pairs.emplace_back(sources[i], destinations[i]);
    }
    return CPolyPosMap(pairs, sourceCount, destinationCount);
}

/// Both columns upward, within the polylines; jumps and flat stretches among them.
CPolyPosMap UpwardMap(Random& random, int sourceCount, int destinationCount)
{
    const int size = random.Integer(2, 5);
    return MapOf(SomeColumn(random, size, sourceCount, Lap::Within),
                 SomeColumn(random, size, destinationCount, Lap::Within), sourceCount, destinationCount);
}

/// Any directions, over the seam, without joints or ill-formed now and then; in half the cases from end to end.
class SomeMaps
{
public:
    explicit SomeMaps(std::uint32_t seed) : m_maps(seed), m_columns(seed)
    {
    }

    int Below(int limit)
    {
        return m_maps.Below(limit);
    }

    CPolyPosMap Next(int sourceCount, int destinationCount)
    {
        if (m_maps.OneIn(16))
        {
            return m_maps.AnyMap(sourceCount, destinationCount);
        }
        if (sourceCount == 0 || destinationCount == 0 || m_maps.OneIn(2))
        {
            return m_maps.ValidMap(sourceCount, destinationCount);
        }
        const int size = m_columns.Integer(1, 5);
        std::vector<double> sources = SomeColumn(m_columns, size, sourceCount, Lap::Any);
        std::vector<double> destinations = SomeColumn(m_columns, size, destinationCount, Lap::Any);
        if (m_maps.OneIn(4))
        {
            std::reverse(sources.begin(), sources.end());
        }
        if (m_maps.OneIn(3))
        {
            std::reverse(destinations.begin(), destinations.end());
        }
        return MapOf(sources, destinations, sourceCount, destinationCount);
    }

private:
    RandomMaps m_maps;
    Random m_columns;
};

std::string Told(const CPolyPosMap& map)
{
    return ::testing::PrintToString(map);
}

bool IsNoMap(const CPolyPosMap& map)
{
    return map == NoMap();
}

} // namespace

// Against a second implementation, bit for bit

TEST(MapBuilders, CombiningTwoPolylinesAgreesWithASecondImplementation)
{
    for (int first = 0; first <= 6; ++first)
    {
        for (int second = 0; second <= 6; ++second)
        {
            const auto parts = CPolyPosMapUtilies::CombineTwoCad(first, second);
            const auto expected = reference::CombineTwoCad(first, second);
            EXPECT_EQ(parts.first, reference::To(expected.first)) << first << ", " << second;
            EXPECT_EQ(parts.second, reference::To(expected.second)) << first << ", " << second;
        }
    }
}

TEST(MapBuilders, ASourceThatNoLongerRunsUpOnTheJoinedPolylineIsJoinedAlike)
{
    // The source of the first map goes a sliver below the tolerance against its way, where the destination jumps. Each
    // map alone is in order, but restated on the joined polyline the first one no longer runs up.
    const CPolyPosMap up = Map({{1e-9, 0}, {7e-10, 2}, {5.000000001, 2}}, 5, 2);
    CPolyPosMap down = up;
    down.Reverse();
    const CPolyPosMap wholeUp = Map({{0, 0}, {3, 2}}, 3, 2);
    const CPolyPosMap wholeDown = Map({{3, 2}, {0, 0}}, 3, 2);
    const CPolyPosMap place = CPolyPosMapUtilies::CombineTwoCad(5, 3).first;
    ASSERT_TRUE(up.IsIncrease(1) && !up.IsInvalid() && !down.IsIncrease(1) && !down.IsInvalid());
    for (const auto& [first, second] :
         {std::pair(up, wholeDown), std::pair(down, wholeUp), std::pair(down, wholeDown), std::pair(up, wholeUp)})
    {
        SCOPED_TRACE(Told(first) + " and " + Told(second));
        ASSERT_FALSE((!place * first).IsIncrease(1));
        EXPECT_EQ(CPolyPosMapUtilies::CombineTwonMapWithSameDst(first, second),
                  reference::To(reference::CombineSameDestination(reference::From(first), reference::From(second))));
    }
}

TEST(MapBuilders, CombinersAgreeWithASecondImplementation)
{
    SomeMaps random(31);
    int made = 0;
    for (int i = 0; i < 3000; ++i)
    {
        const int sharedCount = random.Below(5);
        const int otherCount = random.Below(10) == 0 ? sharedCount + 1 : sharedCount;
        const CPolyPosMap a = random.Next(random.Below(4), sharedCount);
        const CPolyPosMap b = random.Next(random.Below(4), otherCount);
        const reference::RefMap plainA = reference::From(a);
        const reference::RefMap plainB = reference::From(b);
        SCOPED_TRACE(Told(a) + " and " + Told(b));

        const CPolyPosMap joined = CPolyPosMapUtilies::CombineTwonMapWithSameDst(a, b);
        ASSERT_EQ(joined, reference::To(reference::CombineSameDestination(plainA, plainB)));
        ASSERT_EQ(
            CPolyPosMapUtilies::CombineTwonMapWithSameSrc(!a, !b),
            reference::To(reference::CombineSameSource(reference::Inverted(plainA), reference::Inverted(plainB))));
        const CPolyPosMap standalone = CPolyPosMapUtilies::CombineTwoMapStandalone(a, b);
        ASSERT_EQ(standalone, reference::To(reference::CombineStandalone(plainA, plainB)));
        made += (IsNoMap(joined) ? 0 : 1) + (IsNoMap(standalone) ? 0 : 1);
    }
    EXPECT_GT(made, 1000);
}

TEST(MapBuilders, ExtensionAgreesWithASecondImplementation)
{
    SomeMaps random(32);
    int made = 0;
    for (int i = 0; i < 3000; ++i)
    {
        const CPolyPosMap map = random.Next(random.Below(5), random.Below(5));
        const reference::RefMap plain = reference::From(map);
        const int count = random.Below(4);
        const int otherCount = random.Below(4);
        const bool atFront = random.Below(2) == 0;
        const bool source = random.Below(2) == 0;
        const bool destination = random.Below(2) == 0;
        SCOPED_TRACE(Told(map) + " by " + std::to_string(count) + " and " + std::to_string(otherCount));

        const CPolyPosMap extended = CPolyPosMapUtilies::ExtendMap(map, count, atFront, source, destination);
        ASSERT_EQ(extended, reference::To(reference::Extend(plain, count, atFront, source, destination)))
            << atFront << source << destination;
        const CPolyPosMap linearly = CPolyPosMapUtilies::ExtendMap(map, count, otherCount, atFront);
        ASSERT_EQ(linearly, reference::To(reference::Extend(plain, count, otherCount, atFront))) << atFront;
        made += (IsNoMap(extended) ? 0 : 1) + (IsNoMap(linearly) ? 0 : 1);
    }
    EXPECT_GT(made, 2000);
}

TEST(MapBuilders, RemovalAgreesWithASecondImplementation)
{
    SomeMaps random(33);
    int made = 0;
    for (int i = 0; i < 10000; ++i)
    {
        const CPolyPosMap map = random.Next(random.Below(5), random.Below(5));
        const bool onSource = random.Below(2) == 0;
        const int count = onSource ? map.SrcSegmentCount() : map.DstSegmentCount();
        PosRangeD range(0.25 * (random.Below(4 * count + 3) - 2), 0.25 * random.Below(4 * count + 3));
        range.start = random.Below(3) == 0 ? 0.0 : range.start;
        range.end = random.Below(3) == 0 ? count : range.end;
        const CPolyPosMap shortened = CPolyPosMapUtilies::RemoveOpenRangeFromMap(map, range, onSource);
        ASSERT_EQ(shortened,
                  reference::To(reference::RemoveOpenRange(reference::From(map), {range.start, range.end}, onSource)))
            << Told(map) << " without " << Two(range) << (onSource ? " of the source" : " of the destination");
        made += IsNoMap(shortened) ? 0 : 1;
    }
    EXPECT_GT(made, 3000);
}

// Positions carried by hand

namespace
{

/// Interpolating along a longer straight stretch rounds differently: a few units in the last place of numbers below 10.
constexpr double rounding = 1e-13;

/// The images of a position as places of a closed polyline, each told by a number from 0 up to the count.
std::vector<double> Places(const std::vector<double>& images, double raisedBy, int count)
{
    std::vector<double> places;
    for (double image : images)
    {
        double place = std::fmod(image + raisedBy, count);
        places.push_back(place < 0 ? place + count : place);
    }
    std::sort(places.begin(), places.end());
    return places;
}

::testing::AssertionResult SamePlaces(const std::vector<double>& found, const std::vector<double>& expected, int count)
{
    bool same = found.size() == expected.size();
    for (std::size_t i = 0; same && i < found.size(); ++i)
    {
        const double apart = std::fabs(found[i] - expected[i]);
        same = apart < rounding || std::fabs(apart - count) < rounding;
    }
    if (same)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << TextOfList(found) << " instead of " << TextOfList(expected);
}

/// Two maps onto one polyline whose destinations follow one another, over the seam if need be.
struct Following
{
    CPolyPosMap first;
    CPolyPosMap second;
};

Following TwoThatFollow(Random& random)
{
    const int destinationCount = random.Integer(1, 4);
    const int firstCount = random.Integer(1, 3);
    const int secondCount = random.Integer(1, 3);
    const int firstSize = random.Integer(2, 4);
    const int secondSize = random.Integer(2, 4);
    const std::vector<double> walk = SomeColumn(random, firstSize + secondSize, destinationCount, Lap::Any);
    const std::vector<double> firstPart(walk.begin(), walk.begin() + firstSize);
    const std::vector<double> secondPart(walk.begin() + firstSize, walk.end());
    Following following{
        MapOf(SomeColumn(random, firstSize, firstCount, Lap::Within), firstPart, firstCount, destinationCount),
        MapOf(SomeColumn(random, secondSize, secondCount, Lap::Within), secondPart, secondCount, destinationCount)};
    following.first.Normalize();
    following.second.Normalize();
    return following;
}

/// A column that begins at the count is moved by a lap before anything is composed, and then means another place of the
/// joined polyline than the part's own numbers say.
bool BothNormal(const CPolyPosMap& a, const CPolyPosMap& b)
{
    return a.IsNormalize() && b.IsNormalize();
}

/// A position between 0 and `count` that is near no multiple of an eighth, so near no joint of the maps here.
double BetweenJoints(Random& random, int count)
{
    return 0.125 * (random.Integer(0, 8 * count - 1) + random.Number(0.1, 0.9));
}

} // namespace

TEST(MapBuilders, JoinedSourcesCarryEachPartToItsOwnImage)
{
    Random random(20240619);
    int checked = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const auto [a, b] = TwoThatFollow(random);
        const CPolyPosMap joined = CPolyPosMapUtilies::CombineTwonMapWithSameDst(a, b);
        if (IsNoMap(joined))
        {
            continue;
        }
        SCOPED_TRACE(Told(a) + " and " + Told(b) + " gave " + Told(joined));
        const int count = a.DstSegmentCount();
        const int firstCount = a.SrcSegmentCount();
        ASSERT_EQ(joined.SrcSegmentCount(), firstCount + b.SrcSegmentCount());
        ASSERT_EQ(joined.DstSegmentCount(), count);
        const double inA = BetweenJoints(random, firstCount);
        const double inB = BetweenJoints(random, b.SrcSegmentCount());
        const std::vector<double> imagesOfA = a * inA;
        const std::vector<double> imagesOfB = b * inB;
        if (!imagesOfA.empty())
        {
            ASSERT_TRUE(SamePlaces(Places(joined * inA, 0, count), Places(imagesOfA, 0, count), count)) << inA;
        }
        if (!imagesOfB.empty())
        {
            ASSERT_TRUE(SamePlaces(Places(joined * (inB + firstCount), 0, count), Places(imagesOfB, 0, count), count))
                << inB;
        }
        checked += imagesOfA.empty() || imagesOfB.empty() ? 0 : 1;
    }
    EXPECT_GT(checked, 1000);
}

TEST(MapBuilders, JoinedDestinationsCarryEachPositionToTheImageOfThePartThatKnowsIt)
{
    Random random(20240620);
    int checked = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const auto [towardsA, towardsB] = TwoThatFollow(random);
        const CPolyPosMap a = !towardsA;
        const CPolyPosMap b = !towardsB;
        const CPolyPosMap joined = CPolyPosMapUtilies::CombineTwonMapWithSameSrc(a, b);
        if (IsNoMap(joined) || !BothNormal(a, b))
        {
            continue;
        }
        SCOPED_TRACE(Told(a) + " and " + Told(b) + " gave " + Told(joined));
        const int total = a.DstSegmentCount() + b.DstSegmentCount();
        ASSERT_EQ(joined.DstSegmentCount(), total);
        ASSERT_EQ(joined.SrcSegmentCount(), a.SrcSegmentCount());
        const double position = BetweenJoints(random, a.SrcSegmentCount());
        const std::vector<double> imagesOfA = Places(a * position, 0, total);
        const std::vector<double> imagesOfB = Places(b * position, a.DstSegmentCount(), total);
        if (imagesOfA.empty() == imagesOfB.empty())
        {
            continue;
        }
        const std::vector<double>& expected = imagesOfA.empty() ? imagesOfB : imagesOfA;
        ASSERT_TRUE(SamePlaces(Places(joined * position, 0, total), expected, total)) << position;
        ++checked;
    }
    EXPECT_GT(checked, 1000);
}

TEST(MapBuilders, MapsJoinedOnBothSidesCarryEachPartOnItsOwnPolylines)
{
    Random random(20240621);
    int checked = 0;
    for (int i = 0; i < 5000; ++i)
    {
        const CPolyPosMap a = UpwardMap(random, random.Integer(1, 3), random.Integer(1, 3));
        const CPolyPosMap b = UpwardMap(random, random.Integer(1, 3), random.Integer(1, 3));
        const CPolyPosMap joined = CPolyPosMapUtilies::CombineTwoMapStandalone(a, b);
        if (IsNoMap(joined) || !BothNormal(a, b))
        {
            continue;
        }
        SCOPED_TRACE(Told(a) + " and " + Told(b) + " gave " + Told(joined));
        const int total = a.DstSegmentCount() + b.DstSegmentCount();
        const double inA = BetweenJoints(random, a.SrcSegmentCount());
        const double inB = BetweenJoints(random, b.SrcSegmentCount());
        const std::vector<double> imagesOfA = Places(a * inA, 0, total);
        const std::vector<double> imagesOfB = Places(b * inB, a.DstSegmentCount(), total);
        if (!imagesOfA.empty())
        {
            ASSERT_TRUE(SamePlaces(Places(joined * inA, 0, total), imagesOfA, total)) << inA;
        }
        if (!imagesOfB.empty())
        {
            ASSERT_TRUE(SamePlaces(Places(joined * (inB + a.SrcSegmentCount()), 0, total), imagesOfB, total)) << inB;
        }
        checked += imagesOfA.empty() || imagesOfB.empty() ? 0 : 1;
    }
    EXPECT_GT(checked, 800);
}

namespace
{

/// A position of what is left of a polyline, told on the polyline: the segment that was cut has become a whole one.
double OnThePolylineBefore(double position, const PosRangeD& rest)
{
    const double segment = std::floor(rest.start) + std::floor(position);
    const double from = std::max(rest.start, segment);
    const double to = std::min(rest.end, segment + 1);
    return from + (position - std::floor(position)) * (to - from);
}

/// A stretch at the front or the back of a polyline of `count` segments, shorter than it, and what it leaves.
struct LostEnd
{
    PosRangeD lost;
    PosRangeD rest;
    int restCount;
};

LostEnd SomeLostEnd(Random& random, int count)
{
    const double cut = 0.125 * random.Integer(1, 8 * count - 1);
    const double end = count;
    if (random.Coin())
    {
        return {{0, cut}, {cut, end}, count - static_cast<int>(std::floor(cut))};
    }
    return {{cut, end}, {0, cut}, static_cast<int>(std::ceil(cut))};
}

} // namespace

TEST(MapBuilders, AShortenedSourceCarriesWhatIsLeftToItsOldImage)
{
    Random random(20240622);
    int checked = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const CPolyPosMap map = UpwardMap(random, random.Integer(1, 4), random.Integer(1, 4));
        const LostEnd end = SomeLostEnd(random, map.SrcSegmentCount());
        const CPolyPosMap shortened = CPolyPosMapUtilies::RemoveOpenRangeFromMap(map, end.lost, true);
        SCOPED_TRACE(Told(map) + " without " + Text(std::make_pair(end.lost.start, end.lost.end)) + " gave " +
                     Told(shortened));
        if (IsNoMap(shortened))
        {
            continue;
        }
        ASSERT_EQ(shortened.SrcSegmentCount(), end.restCount);
        ASSERT_EQ(shortened.DstSegmentCount(), map.DstSegmentCount());
        const double position = BetweenJoints(random, end.restCount);
        const std::vector<double> expected = map * OnThePolylineBefore(position, end.rest);
        const int count = map.DstSegmentCount();
        ASSERT_TRUE(SamePlaces(Places(shortened * position, 0, count), Places(expected, 0, count), count)) << position;
        checked += expected.empty() ? 0 : 1;
    }
    EXPECT_GT(checked, 2000);
}

TEST(MapBuilders, WhatIsAddedToTheSourceAndTakenAwayAgainLeavesTheMap)
{
    Random random(20240623);
    int checked = 0;
    for (int i = 0; i < 3000; ++i)
    {
        CPolyPosMap map = UpwardMap(random, random.Integer(1, 4), random.Integer(1, 4));
        map.PosPairs().front().first = 0;
        map.PosPairs().back().first = map.SrcSegmentCount();
        map.Unique(true);
        if (!map.IsNormalize() || map.PosPairs().size() < 2)
        {
            continue;
        }
        const int added = random.Integer(1, 3);
        const bool atFront = random.Coin();
        const double end = map.SrcSegmentCount() + added;
        const PosRangeD stretch = atFront ? PosRangeD(0, added) : PosRangeD(map.SrcSegmentCount(), end);
        const CPolyPosMap extended = CPolyPosMapUtilies::ExtendMap(map, added, atFront, true, false);
        ASSERT_EQ(CPolyPosMapUtilies::RemoveOpenRangeFromMap(extended, stretch, true), map)
            << Told(extended) << (atFront ? " at the front" : " at the back");
        ++checked;
    }
    EXPECT_GT(checked, 2000);
}

TEST(MapBuilders, WhatIsAddedToTheDestinationAndTakenAwayAgainLeavesTheMap)
{
    Random random(20240624);
    int checked = 0;
    for (int i = 0; i < 3000; ++i)
    {
        CPolyPosMap map = UpwardMap(random, random.Integer(1, 4), random.Integer(1, 4));
        map.PosPairs().front().second = 0;
        map.PosPairs().back().second = map.DstSegmentCount();
        map.Unique(true);
        if (!map.IsNormalize() || map.PosPairs().size() < 2)
        {
            continue;
        }
        const int added = random.Integer(1, 3);
        const bool atFront = random.Coin();
        const double end = map.DstSegmentCount() + added;
        const PosRangeD stretch = atFront ? PosRangeD(0, added) : PosRangeD(map.DstSegmentCount(), end);
        const CPolyPosMap extended = CPolyPosMapUtilies::ExtendMap(map, added, atFront, false, true);
        ASSERT_EQ(CPolyPosMapUtilies::RemoveOpenRangeFromMap(extended, stretch, false), map)
            << Told(extended) << (atFront ? " at the front" : " at the back");
        ++checked;
    }
    EXPECT_GT(checked, 2000);
}
