#include "MapGrid.h"
#include "math/CPolyPosMapUtilies.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of composition, concatenation and turning round, numbered as in docs/maps.md. The grid: pairs of normal maps
// with up to three joints on whole positions, two segments on each outline, and with two joints on three segments.
// Positions are sampled at odd sixteenths, where no joint of a composition of such maps lies.

namespace
{

template <typename Visit>
void ForPairs(const std::vector<CPolyPosMap>& left, const std::vector<CPolyPosMap>& right, Visit visit)
{
    for (const CPolyPosMap& a : left)
    {
        for (const CPolyPosMap& b : right)
        {
            visit(a, b);
        }
        if (testing::Test::HasFailure())
        {
            return;
        }
    }
}

std::vector<CPolyPosMap> WalkedUpTheSource(std::vector<CPolyPosMap> maps)
{
    maps.erase(std::remove_if(maps.begin(), maps.end(), [](const CPolyPosMap& map) { return !RunsUp(map, 1); }),
               maps.end());
    return maps;
}

/// Every pair of the grid: two maps of up to two joints, on two and on three segments; one of two joints and one of three
/// on two segments, in either order. The larger ones are walked up the source.
template <typename Visit>
void ForPairsOfTheGrid(Visit visit)
{
    const std::vector<CPolyPosMap> few = AllMapsUpTo(2, 2, 2, 1.0);
    const std::vector<CPolyPosMap> three = WalkedUpTheSource(AllMaps(3, 2, 2, 1.0));
    const std::vector<CPolyPosMap> wide = WalkedUpTheSource(AllMapsUpTo(2, 3, 3, 1.0));
    ForPairs(few, few, visit);
    ForPairs(few, three, visit);
    ForPairs(three, few, visit);
    ForPairs(wide, wide, visit);
}

testing::Message Told(const CPolyPosMap& a, const CPolyPosMap& b)
{
    return testing::Message() << test::Told(a) << "\nand " << test::Told(b);
}

CPolyPosMap WithoutNeedlessJoints(CPolyPosMap map)
{
    map.Unique(true);
    return map;
}

/// Both columns moved by whole laps so that the lower ends lie in the first lap.
CPolyPosMap OnTheFirstLap(CPolyPosMap map)
{
    if (!map.IsEmpty())
    {
        const double source = Lowest(map, 1);
        const double destination = Lowest(map, 2);
        map.Offset(-std::floor(source / map.SrcSegmentCount()) * map.SrcSegmentCount(), 1);
        map.Offset(-std::floor(destination / map.DstSegmentCount()) * map.DstSegmentCount(), 2);
    }
    return map;
}

/// Walked from its lower source end.
CPolyPosMap WalkedUp(CPolyPosMap map)
{
    if (!map.IsEmpty())
    {
        const bool startsHigh = map.Front().first != Lowest(map, 1);
        const bool jumpsDown = map.IsPoint(1) && map.Front().second != Lowest(map, 2);
        if (startsHigh || jumpsDown)
        {
            map.Reverse();
        }
    }
    return map;
}

bool AreSameUpToLapsAndOrder(const CPolyPosMap& a, const CPolyPosMap& b)
{
    return OnTheFirstLap(WalkedUp(a)) == OnTheFirstLap(WalkedUp(b));
}

std::vector<double> PlacesInTurn(const CPolyPosMap& a, const CPolyPosMap& b, double position)
{
    std::vector<double> images;
    for (double between : a* position)
    {
        const std::vector<double> some = b * between;
        images.insert(images.end(), some.begin(), some.end());
    }
    return PlacesOf(images, b.DstSegmentCount());
}

/// A composition of which nothing survived has no joints; carried through it, a position would come out unchanged.
std::vector<double> PlacesComposed(const CPolyPosMap& product, double position)
{
    return product.IsEmpty() ? std::vector<double>() : PlacesOf(product * position, product.DstSegmentCount());
}

bool CarriesAsInTurn(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const CPolyPosMap product = a * b;
    for (double position = 0.0625; position < a.SrcSegmentCount(); position += 0.25)
    {
        if (!AreSamePlaces(PlacesComposed(product, position), PlacesInTurn(a, b, position)))
        {
            return false;
        }
    }
    return true;
}

/// What a stretch of source is carried to, raw: from `low` to `high`, which are equal for a flat one.
struct Landing
{
    double low;
    double high;

    bool IsFlat() const
    {
        return low == high;
    }

    /// Runs over, or stands in, an open stretch.
    bool Meets(double from, double to) const
    {
        return IsFlat() ? from < low && low < to : std::max(from, low) < std::min(to, high);
    }
};

std::vector<Landing> LandingsOf(const CPolyPosMap& map)
{
    std::vector<Landing> landings;
    const Pairs& pairs = map.PosPairs();
    for (std::size_t i = 1; i < pairs.size(); ++i)
    {
        if (pairs[i].first != pairs[i - 1].first)
        {
            landings.push_back(
                {std::min(pairs[i].second, pairs[i - 1].second), std::max(pairs[i].second, pairs[i - 1].second)});
        }
    }
    return landings;
}

// The exceptions of composition

/// A stretch collapses onto a place where the second map jumps.
bool IsFlatIntoJump(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const std::vector<Landing> landings = LandingsOf(a);
    return std::any_of(landings.begin(), landings.end(), [&](const Landing& landing) {
        const PosRangeD covered(Lowest(b, 1), Highest(b, 1));
        const double onLap = PosRangeD::NormalizePos(landing.low, covered, b.SrcSegmentCount());
        const std::vector<double> images = RawImagesByHand(b, onLap);
        return landing.IsFlat() && std::any_of(images.begin(), images.end(), [&](double x) { return x != images[0]; });
    });
}

/// The first map crosses the seam between the two and lands in what the second one, told over two laps, leaves uncovered
/// between them: that gap is bridged.
bool BridgesTheGapOfTheSecond(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const std::vector<Landing> landings = LandingsOf(a);
    return CrossesTheSeam(a, 2) && std::any_of(landings.begin(), landings.end(), [&](const Landing& landing) {
               return landing.Meets(Highest(b, 1), Lowest(b, 1) + b.SrcSegmentCount());
           });
}

/// Only the second map crosses the seam, and the first, told over two laps, has no value between them: that gap is bridged
/// from the end of its destination to where that begins a lap on, over something that the second map covers.
bool BridgesTheGapOfTheFirst(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const Landing bridge{Highest(a, 2), Lowest(a, 2) + a.DstSegmentCount()};
    const bool landsInside = bridge.IsFlat() ? Lowest(b, 1) <= bridge.low && bridge.low <= Highest(b, 1)
                                             : bridge.Meets(Lowest(b, 1), Highest(b, 1));
    return !CrossesTheSeam(a, 2) && CrossesTheSeam(b, 1) && !IsFullLap(a, 1) && landsInside;
}

/// Both cross the seam, only the second is told over two laps, and the first lands before the first of them, where the
/// second map would be met one lap on.
bool LosesALap(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const double from = Lowest(b, 1);
    const double lapBefore = Highest(b, 1) - b.SrcSegmentCount();
    const std::vector<Landing> landings = LandingsOf(a);
    return CrossesTheSeam(a, 2) && CrossesTheSeam(b, 1) &&
           std::any_of(landings.begin(), landings.end(), [&](const Landing& landing) {
               return landing.IsFlat() ? landing.low < from && landing.low <= lapBefore
                                       : landing.low < std::min(from, lapBefore);
           });
}

bool IsException(const CPolyPosMap& a, const CPolyPosMap& b)
{
    return IsFlatIntoJump(a, b) || BridgesTheGapOfTheFirst(a, b) || BridgesTheGapOfTheSecond(a, b) || LosesALap(a, b);
}

/// One of the maps crosses the seam between them, and a stretch collapses onto an end of the second map, on whichever lap.
/// Which face of that end is met depends on the lap.
bool IsFlatOntoAnEndOverTheSeam(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const std::vector<Landing> landings = LandingsOf(a);
    return (CrossesTheSeam(a, 2) || CrossesTheSeam(b, 1)) &&
           std::any_of(landings.begin(), landings.end(), [&](const Landing& landing) {
               const int count = b.SrcSegmentCount();
               return landing.IsFlat() && (std::fmod(landing.low - Lowest(b, 1), count) == 0 ||
                                           std::fmod(landing.low - Highest(b, 1), count) == 0);
           });
}

} // namespace

// Composition

TEST(MapCompositionLaws, M14_TheIdentityIsNeutral)
{
    std::vector<CPolyPosMap> maps = AllMapsUpTo(3, 2, 2, 0.5);
    const std::vector<CPolyPosMap> four = AllMaps(4, 2, 2, 1.0);
    maps.insert(maps.end(), four.begin(), four.end());
    maps = WithFineMaps(maps, 214, 1000);
    const CPolyPosMap identity = CPolyPosMapUtilies::GenerateWholeMap(2, false);
    for (const CPolyPosMap& map : maps)
    {
        const CPolyPosMap plain = WithoutNeedlessJoints(map);
        ASSERT_EQ(map * identity, plain) << test::Told(map);
        // The walk is that of the left operand, so it goes up here.
        CPolyPosMap walkedUp = plain;
        if (!map.IsIncrease(1))
        {
            walkedUp.Reverse();
        }
        ASSERT_EQ(identity * map, walkedUp) << test::Told(map);
        ASSERT_EQ(CPolyPosMap() * map, map);
        ASSERT_EQ(map * CPolyPosMap(), map);
    }
}

TEST(MapCompositionLaws, M15_ACompositionCarriesAsBothMapsDoInTurnWithFourExceptions)
{
    int flatsIntoJumps = 0;
    int gapsOfTheFirst = 0;
    int gapsOfTheSecond = 0;
    int lostLaps = 0;
    int open = 0;
    int openAndHolding = 0;
    ForPairsOfTheGrid([&](const CPolyPosMap& a, const CPolyPosMap& b) {
        const bool holds = CarriesAsInTurn(a, b);
        if (IsFlatOntoAnEndOverTheSeam(a, b))
        {
            ++open;
            openAndHolding += holds ? 1 : 0;
            return;
        }
        flatsIntoJumps += IsFlatIntoJump(a, b) ? 1 : 0;
        gapsOfTheFirst += BridgesTheGapOfTheFirst(a, b) ? 1 : 0;
        gapsOfTheSecond += BridgesTheGapOfTheSecond(a, b) ? 1 : 0;
        lostLaps += LosesALap(a, b) ? 1 : 0;
        EXPECT_EQ(holds, !IsException(a, b)) << Told(a, b) << "\ngive " << test::Told(a * b);
    });
    EXPECT_GT(flatsIntoJumps, 1000);
    EXPECT_GT(gapsOfTheFirst, 1000);
    EXPECT_GT(gapsOfTheSecond, 1000);
    EXPECT_GT(lostLaps, 100);
    // Flats onto an end over the seam: fixed by the grid, no rule is claimed.
    EXPECT_EQ(open, 3852);
    EXPECT_EQ(openAndHolding, 1916);
}

TEST(MapCompositionLaws, M16_MapsAwayFromTheSeamMayBeBracketedEitherWayExceptWhereAFlatMeetsAJump)
{
    std::vector<CPolyPosMap> maps;
    for (const CPolyPosMap& map : AllMaps(2, 2, 2, 0.5))
    {
        const bool inside = Lowest(map, 1) > 0 && Lowest(map, 2) > 0 && Highest(map, 1) < 2 && Highest(map, 2) < 2;
        if (inside && RunsUp(map, 1))
        {
            maps.push_back(map);
        }
    }
    int checked = 0;
    int differing = 0;
    for (const CPolyPosMap& a : maps)
    {
        for (const CPolyPosMap& b : maps)
        {
            const CPolyPosMap ab = a * b;
            for (const CPolyPosMap& c : maps)
            {
                const CPolyPosMap bc = b * c;
                if (ab.IsEmpty() || bc.IsEmpty())
                {
                    continue; // where nothing survives, the empty map is neutral in what follows
                }
                const bool same = WalkedUp(ab * c) == WalkedUp(a * bc);
                const bool isFree =
                    !IsFlatIntoJump(a, b) && !IsFlatIntoJump(b, c) && !IsFlatIntoJump(a, bc) && !IsFlatIntoJump(ab, c);
                ASSERT_TRUE(same || !isFree) << Told(a, b) << "\nand " << test::Told(c);
                differing += same ? 0 : 1;
                checked += isFree ? 1 : 0;
            }
        }
    }
    EXPECT_GT(checked, 10000);
    // A flat stretch into a jump, in one of the brackets: the jump is reduced to its ends and becomes a slope.
    EXPECT_EQ(differing, 4014);
    // The same on random maps.
    Random random(216);
    const auto insideMap = [&] {
        for (;;)
        {
            const CPolyPosMap map = FineMap(random, 2, 2);
            const bool isInside =
                Lowest(map, 1) > 0 && Lowest(map, 2) > 0 && Highest(map, 1) < 2 && Highest(map, 2) < 2;
            if (isInside && !map.IsPoint(1))
            {
                return map;
            }
        }
    };
    int checkedAtRandom = 0;
    for (int round = 0; round < 6000; ++round)
    {
        const CPolyPosMap a = insideMap();
        const CPolyPosMap b = insideMap();
        const CPolyPosMap c = insideMap();
        const CPolyPosMap ab = a * b;
        const CPolyPosMap bc = b * c;
        const bool isFree = !ab.IsEmpty() && !bc.IsEmpty() && !IsFlatIntoJump(a, b) && !IsFlatIntoJump(b, c) &&
                            !IsFlatIntoJump(a, bc) && !IsFlatIntoJump(ab, c);
        checkedAtRandom += isFree ? 1 : 0;
        ASSERT_TRUE(!isFree || WalkedUp(ab * c) == WalkedUp(a * bc))
            << Told(a, b) << "\nand " << test::Told(c) << "\ngive " << Told(ab * c, a * bc);
    }
    EXPECT_GT(checkedAtRandom, 500);
}

namespace
{

/// A flat stretch that lands at `destination` and reaches `source`.
bool HasFlatAt(const CPolyPosMap& map, double destination, double source)
{
    const Pairs& pairs = map.PosPairs();
    for (std::size_t i = 1; i < pairs.size(); ++i)
    {
        const bool isFlat = pairs[i].second == pairs[i - 1].second && pairs[i].first != pairs[i - 1].first;
        if (isFlat && pairs[i].second == destination && (pairs[i].first == source || pairs[i - 1].first == source))
        {
            return true;
        }
    }
    return false;
}

/// On a full lap of either side: the place where they close has images on a flat stretch at the lower end of the
/// destination and on another one.
bool HasFlatWhereTheLapCloses(const CPolyPosMap& map)
{
    const double upperEnd = Highest(map, 1);
    if (HasFlatAt(map, Lowest(map, 2), upperEnd))
    {
        return true;
    }
    bool reachesTheTop = false;
    bool isFlatThere = false;
    for (const auto& joint : map.PosPairs())
    {
        const bool isAtUpperEnd = joint.first == upperEnd;
        reachesTheTop = reachesTheTop || (isAtUpperEnd && joint.second == Highest(map, 2));
        isFlatThere = isFlatThere || (isAtUpperEnd && HasFlatAt(map, joint.second, upperEnd));
    }
    return HasFlatAt(map, Lowest(map, 2), Lowest(map, 1)) && reachesTheTop && isFlatThere;
}

/// A jump with a flat stretch on either side: two stretches of source whose images meet nowhere else.
bool HasFlatsOnBothSidesOfAJump(const CPolyPosMap& map)
{
    Pairs pairs = map.PosPairs();
    pairs.erase(std::unique(pairs.begin(), pairs.end()), pairs.end());
    for (std::size_t i = 1; i + 1 < pairs.size(); ++i)
    {
        const auto isFlatBetween = [&](std::size_t from, std::size_t to) {
            return pairs[from].first != pairs[to].first && pairs[from].second == pairs[to].second;
        };
        std::size_t end = i;
        while (end + 2 < pairs.size() && pairs[end + 1].first == pairs[i].first)
        {
            ++end;
        }
        const bool isJump = pairs[i].second != pairs[end].second;
        if (isJump && isFlatBetween(i - 1, i) && isFlatBetween(end, end + 1))
        {
            return true;
        }
    }
    return false;
}

} // namespace

TEST(MapCompositionLaws, M17_AMapAndItsInverseMakeTheIdentityOnWhatTheMapCovers)
{
    std::vector<CPolyPosMap> maps = AllMapsUpTo(3, 2, 2, 0.5);
    const std::vector<CPolyPosMap> four = AllMaps(4, 2, 2, 1.0);
    maps.insert(maps.end(), four.begin(), four.end());
    maps = WithFineMaps(maps, 214, 1000);
    int exceptions = 0;
    for (CPolyPosMap& map : maps)
    {
        const CPolyPosMap product = map * !map;
        const bool isIdentity = product.IsIdentity() && !product.IsEmpty() &&
                                Two(product.GetRange(1, false)) == Two(map.GetRange(1, false));
        const bool closesItsDestination = IsFullLap(map, 2) && CrossesTheSeam(map, 2);
        const bool isException = (closesItsDestination && (!IsFullLap(map, 1) || HasFlatWhereTheLapCloses(map))) ||
                                 HasFlatsOnBothSidesOfAJump(map);
        exceptions += isException ? 1 : 0;
        ASSERT_EQ(isIdentity, !isException) << test::Told(map) << " gives " << test::Told(product);
        ASSERT_EQ(map.IsInvertTo(!map), product.IsIdentity()) << test::Told(map);
    }
    EXPECT_GT(exceptions, 0);
}

TEST(MapCompositionLaws, M18_TheInverseOfACompositionIsTheCompositionOfInversesUpToLapsAndOrder)
{
    int bothCross = 0;
    int oneCrosses = 0;
    const std::vector<CPolyPosMap> maps = AllMapsUpTo(2, 2, 2, 1.0);
    ForPairs(maps, maps, [&](const CPolyPosMap& a, const CPolyPosMap& b) {
        const bool same = AreSameUpToLapsAndOrder(!(a * b), !b * !a);
        if (CrossesTheSeam(a, 2) && CrossesTheSeam(b, 1))
        {
            bothCross += same ? 0 : 1;
            return;
        }
        const bool crosses = CrossesTheSeam(a, 2) || CrossesTheSeam(b, 1);
        if (crosses && !(IsOneToOne(a) && IsOneToOne(b)))
        {
            oneCrosses += same ? 0 : 1;
            return;
        }
        EXPECT_TRUE(same) << Told(a, b) << test::Told(!(a * b)) << "\n" << test::Told(!b * !a);
    });
    // Only the right operand of either side is told over two laps, so the two sides lose different laps.
    EXPECT_EQ(bothCross, 336);
    // A jump of the one or a flat stretch of the other where the gap is bridged.
    EXPECT_EQ(oneCrosses, 144);
    Random random(218);
    int checked = 0;
    for (int round = 0; round < 20000; ++round)
    {
        const CPolyPosMap a = FineMap(random, 2, 2);
        const CPolyPosMap b = FineMap(random, 2, 2);
        const bool stays = !CrossesTheSeam(a, 1) && !CrossesTheSeam(a, 2) && !CrossesTheSeam(b, 1) &&
                           !CrossesTheSeam(b, 2) && !IsFlatIntoJump(a, b) && !IsFlatIntoJump(!b, !a);
        if (stays)
        {
            ++checked;
            ASSERT_TRUE(AreSameUpToLapsAndOrder(!(a * b), !b * !a))
                << Told(a, b) << test::Told(!(a * b)) << " and " << test::Told(!b * !a);
        }
    }
    EXPECT_GT(checked, 2000);
}

// Concatenation

TEST(MapCompositionLaws, M19_AMapCutAtAJointIsPutTogetherAgain)
{
    std::vector<CPolyPosMap> maps = AllMaps(3, 2, 2, 0.5);
    const std::vector<CPolyPosMap> four = AllMaps(4, 2, 2, 1.0);
    maps.insert(maps.end(), four.begin(), four.end());
    maps = WithFineMaps(maps, 214, 1000);
    int exceptions = 0;
    maps.erase(std::remove_if(maps.begin(), maps.end(), [](const auto& map) { return map.PosPairs().size() < 3; }),
               maps.end());
    for (const CPolyPosMap& map : maps)
    {
        for (auto cut = map.PosPairs().begin() + 1; cut + 1 != map.PosPairs().end(); ++cut)
        {
            const CPolyPosMap before = OnTheFirstLap(Map(Pairs(map.PosPairs().begin(), cut + 1), 2, 2));
            const CPolyPosMap after = OnTheFirstLap(Map(Pairs(cut, map.PosPairs().end()), 2, 2));
            CPolyPosMap joined = before + after;
            joined.Unique(false);
            CPolyPosMap whole = map;
            whole.Unique(false);
            bool isException = false;
            for (int side = 1; side <= 2; ++side)
            {
                // A column that stands still counts as upward, and the lap is added on the wrong side.
                isException = isException || (!RunsUp(map, side) && before.IsPoint(side) && !after.IsPoint(side));
            }
            exceptions += isException ? 1 : 0;
            ASSERT_EQ(OnTheFirstLap(joined) == OnTheFirstLap(whole), !isException)
                << Told(before, after) << "\ngive " << test::Told(joined);
        }
    }
    EXPECT_GT(exceptions, 0);
}

TEST(MapCompositionLaws, M20_ConcatenationIsAssociativeOnPiecesOfOneWalkThatGoesUp)
{
    for (const CPolyPosMap& map : WithFineMaps(AllMaps(4, 2, 2, 1.0), 220, 3000))
    {
        if (!map.IsIncrease(3) || map.PosPairs().size() < 4)
        {
            continue;
        }
        std::vector<CPolyPosMap> pieces;
        for (auto joint = map.PosPairs().begin(); joint + 1 != map.PosPairs().end(); ++joint)
        {
            pieces.push_back(OnTheFirstLap(Map(Pairs(joint, joint + 2), 2, 2)));
        }
        ASSERT_EQ((pieces[0] + pieces[1]) + pieces[2], pieces[0] + (pieces[1] + pieces[2])) << test::Told(map);
    }
}

// The start moved, the outline turned round

namespace
{

/// The map on outlines that begin `source` and `destination` segments later.
CPolyPosMap BegunLater(CPolyPosMap map, int source, int destination)
{
    map.Offset(-source, 1);
    map.Offset(-destination, 2);
    return OnTheFirstLap(map);
}

std::vector<double> BegunLater(const std::vector<double>& places, int start, int count)
{
    std::vector<double> moved;
    for (double place : places)
    {
        moved.push_back(place - start);
    }
    return PlacesOf(moved, count);
}

std::vector<double> TurnedRound(const std::vector<double>& places, int count)
{
    std::vector<double> turned;
    for (double place : places)
    {
        turned.push_back(count - place);
    }
    return PlacesOf(turned, count);
}

} // namespace

TEST(MapCompositionLaws, M21_EvaluationCommutesWithMovingTheStartOfEitherOutline)
{
    for (const CPolyPosMap& map : WithFineMaps(AllMapsUpTo(3, 2, 2, 0.5), 221, 1000))
    {
        for (int start = 1; start <= 3; ++start)
        {
            const int source = start % 2;
            const int destination = start / 2;
            const CPolyPosMap later = BegunLater(map, source, destination);
            for (double place = 0.0625; place < 2; place += 0.125)
            {
                ASSERT_TRUE(AreSamePlaces(PlacesOf(later * (place - source), 2),
                                          BegunLater(PlacesOf(map * place, 2), destination, 2)))
                    << place << " of " << test::Told(map) << " begun at " << source << ", " << destination;
            }
        }
    }
}

TEST(MapCompositionLaws, M22_SplitMovesTheStart)
{
    int exceptions = 0;
    const CPolyPosMap renumbering = CPolyPosMapUtilies::ResetZero(1, 2);
    const CPolyPosMap back = !renumbering;
    for (const CPolyPosMap& map : WithFineMaps(AllMapsUpTo(3, 2, 2, 1.0), 222, 1000))
    {
        CPolyPosMap onSource = map;
        onSource.Split(1, 1);
        CPolyPosMap onDestination = map;
        onDestination.Split(1, 2);
        bool sourceHolds = true;
        bool destinationHolds = true;
        for (double place = 0x1p-8; place < 2; place += 0x1p-6)
        {
            sourceHolds = sourceHolds && AreSamePlaces(PlacesComposed(onSource, place), PlacesOf(map * (place + 1), 2));
            destinationHolds = destinationHolds && AreSamePlaces(PlacesComposed(onDestination, place),
                                                                 BegunLater(PlacesOf(map * place, 2), 1, 2));
        }
        ASSERT_EQ(sourceHolds, !IsException(renumbering, map)) << test::Told(map) << " gives " << test::Told(onSource);
        ASSERT_EQ(destinationHolds, !IsException(map, back))
            << test::Told(map) << " gives " << test::Told(onDestination);
        exceptions += sourceHolds && destinationHolds ? 0 : 1;

        for (int side = 1; side <= 3; ++side)
        {
            for (double seam : {0.0, 2.0})
            {
                CPolyPosMap unmoved = map;
                unmoved.Split(seam, side);
                ASSERT_EQ(unmoved, map);
            }
        }
    }
    EXPECT_GT(exceptions, 0);
}

TEST(MapCompositionLaws, M23_CompositionDoesNotDependOnWhereTheOutlineBetweenBegins)
{
    int checked = 0;
    std::vector<CPolyPosMap> maps;
    for (const CPolyPosMap& map : WithFineMaps(AllMaps(2, 3, 3, 1.0), 223, 1000, 3, 3))
    {
        if (IsOneToOne(map) && RunsUp(map, 1))
        {
            maps.push_back(map);
        }
    }
    ForPairs(maps, maps, [&](const CPolyPosMap& a, const CPolyPosMap& b) {
        if (IsException(a, b))
        {
            return;
        }
        const CPolyPosMap product = a * b;
        for (int start = 1; start < 3; ++start)
        {
            const CPolyPosMap laterA = BegunLater(a, 0, start);
            const CPolyPosMap laterB = BegunLater(b, start, 0);
            if (IsException(laterA, laterB))
            {
                continue;
            }
            ++checked;
            const CPolyPosMap laterProduct = laterA * laterB;
            for (double place = 0x1p-8; place < 3; place += 0.5)
            {
                EXPECT_TRUE(AreSamePlaces(PlacesComposed(laterProduct, place), PlacesComposed(product, place)))
                    << place << " of " << Told(a, b) << "\nbegun at " << start;
            }
        }
    });
    EXPECT_GT(checked, 10000);
}

TEST(MapCompositionLaws, M24_TurningAnOutlineRoundTurnsImagesRoundAndTwiceGivesTheMapBackUpToLaps)
{
    for (const CPolyPosMap& map : WithFineMaps(AllMapsUpTo(3, 2, 2, 1.0), 224, 1000))
    {
        for (int side = 1; side <= 3; ++side)
        {
            CPolyPosMap turned = map;
            turned.ReverseDirection(side);
            for (double place = 0.0625; place < 2; place += 0.125)
            {
                const std::vector<double> images = PlacesByHand(map, place);
                ASSERT_TRUE(AreSamePlaces(PlacesByHand(turned, side == 2 ? place : 2 - place),
                                          side == 1 ? images : TurnedRound(images, 2)))
                    << side << ", " << place << " of " << test::Told(map);
            }
            turned.ReverseDirection(side);
            ASSERT_EQ(OnTheFirstLap(turned), OnTheFirstLap(map)) << side << " of " << test::Told(map);
        }
    }
}

TEST(MapCompositionLaws, M25_TurningRoundIsComposingWithTheTurnedWholeOutline)
{
    const CPolyPosMap turn = CPolyPosMapUtilies::GenerateWholeMap(2, true);
    for (const CPolyPosMap& map : WithFineMaps(AllMapsUpTo(3, 2, 2, 1.0), 225, 1000))
    {
        CPolyPosMap turned = WithoutNeedlessJoints(map);
        turned.ReverseDirection(2);
        ASSERT_EQ(OnTheFirstLap(map * turn), OnTheFirstLap(turned)) << test::Told(map);
        CPolyPosMap turnedSource = WithoutNeedlessJoints(map);
        turnedSource.ReverseDirection(1);
        ASSERT_TRUE(AreSameUpToLapsAndOrder(turn * map, turnedSource)) << test::Told(map);
    }
}

TEST(MapCompositionLaws, M39_OnWhichLapAnOperandIsToldMakesNoDifferenceToAComposition)
{
    const auto movedByLaps = [](CPolyPosMap map, int source, int destination) {
        map.Offset(source * map.SrcSegmentCount(), 1);
        map.Offset(destination * map.DstSegmentCount(), 2);
        return map;
    };
    const std::vector<CPolyPosMap> maps = AllMapsUpTo(2, 2, 2, 1.0);
    ForPairs(maps, maps, [&](const CPolyPosMap& a, const CPolyPosMap& b) {
        const CPolyPosMap product = a * b;
        for (int laps : {-1, 1, 2})
        {
            // What runs opposite ways need not come back to its normal form.
            if (KeepsTheWay(a))
            {
                EXPECT_EQ(movedByLaps(a, laps, -laps) * b, product) << Told(a, b);
            }
            if (KeepsTheWay(b))
            {
                EXPECT_EQ(a * movedByLaps(b, -laps, laps), product) << Told(a, b);
            }
        }
    });
}

// Random maps

namespace
{

/// One place for each place, each column strictly one way, up to a lap long and over the seam now and then.
CPolyPosMap RandomOneToOneMap(Random& random, int sourceCount, int destinationCount)
{
    const int size = random.Integer(2, 6);
    const auto column = [&](int count) {
        std::vector<double> steps;
        double length = 0;
        for (int i = 1; i < size; ++i)
        {
            steps.push_back(random.Number(0.1, 1));
            length += steps.back();
        }
        const double span = count * (random.Coin() ? 1.0 : random.Number(0.2, 0.9));
        std::vector<double> values = {random.Coin() ? 0.0 : random.Number(0, count)};
        for (double step : steps)
        {
            values.push_back(values.back() + step * (span / length));
        }
        return values;
    };
    const std::vector<double> source = column(sourceCount);
    std::vector<double> destination = column(destinationCount);
    if (random.Coin())
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

bool AreNearPlaces(const std::vector<double>& a, const std::vector<double>& b, int count)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [&](double x, double y) { return std::fabs(std::remainder(x - y, count)) < Tolerance; });
}

} // namespace

TEST(MapCompositionLaws, M26_ARandomCompositionCarriesAsBothMapsDoInTurnWithTheSameExceptions)
{
    Random random(226);
    int held = 0;
    int broken = 0;
    for (int round = 0; round < 3000; ++round)
    {
        const CPolyPosMap a = RandomOneToOneMap(random, random.Integer(1, 5), random.Integer(1, 5));
        const CPolyPosMap b = RandomOneToOneMap(random, a.DstSegmentCount(), random.Integer(1, 5));
        // A full lap may be a rounding error short of itself, and its gap nothing but that.
        const bool isException = IsException(a, b);
        const CPolyPosMap product = a * b;
        bool holds = true;
        for (int sample = 0; sample < 10; ++sample)
        {
            const double position = random.Number(0, a.SrcSegmentCount());
            holds = holds &&
                    AreNearPlaces(PlacesComposed(product, position), PlacesInTurn(a, b, position), b.DstSegmentCount());
        }
        ASSERT_TRUE(holds || isException) << Told(a, b) << "\ngive " << test::Told(product);
        held += holds ? 1 : 0;
        broken += holds ? 0 : 1;
    }
    EXPECT_GT(held, 1000);
    EXPECT_GT(broken, 100);
}
