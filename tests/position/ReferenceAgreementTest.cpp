#include "support/RandomMaps.h"
#include "support/ReferenceComposition.h"
#include "support/ReferenceMap.h"

using namespace math;
using namespace math::test;

namespace
{

constexpr int Maps = 20000;

/// The whole of a map in one line, for the message of a failure.
std::string Described(const CPolyPosMap& map)
{
    return ::testing::PrintToString(map);
}

/// A map of any kind between polylines of random size, seldom an invalid one.
CPolyPosMap SomeMap(RandomMaps& random)
{
    const int sourceCount = random.Count();
    const int destinationCount = random.Count();
    return random.OneIn(10) ? random.AnyMap(sourceCount, destinationCount)
                            : random.ValidMap(sourceCount, destinationCount);
}

int SomeSide(RandomMaps& random)
{
    return random.OneIn(20) ? random.Below(6) - 1 : 1 + random.Below(3);
}

/// A column of so many joints from 0 to the count, a step of nothing here and there, turned round for one that runs down.
std::vector<double> LongColumn(RandomMaps& random, std::size_t joints, int count, bool up)
{
    std::vector<double> column(1, 0.0);
    while (column.size() < joints)
    {
        column.push_back(column.back() + (random.OneIn(6) ? 0.0 : random.Ratio()));
    }
    const double end = column.back() > 0 ? column.back() : 1.0;
    for (double& position : column)
    {
        position *= count / end;
    }
    return up ? column : std::vector<double>(column.rbegin(), column.rend());
}

CPolyPosMap LongMap(RandomMaps& random, std::size_t joints)
{
    const int count = 64;
    const std::vector<double> source = LongColumn(random, joints, count, !random.OneIn(3));
    const std::vector<double> destination = LongColumn(random, joints, count, !random.OneIn(3));
    Pairs pairs;
    for (std::size_t i = 0; i < joints; ++i)
    {
        pairs.emplace_back(source[i], destination[i]);
    }
    return Map(pairs, count, count);
}

/// Applies one change to many maps, in the library and in the plain implementation.
template <typename Change, typename PlainChange>
void ExpectTheSameChange(std::uint32_t seed, int count, Change change, PlainChange plainChange)
{
    RandomMaps random(seed);
    for (int i = 0; i < count && !::testing::Test::HasFailure(); ++i)
    {
        const CPolyPosMap before = SomeMap(random);
        const int side = SomeSide(random);
        CPolyPosMap map = before;
        reference::RefMap plain = reference::From(before);
        change(map, side);
        plainChange(plain, side);
        EXPECT_EQ(map, reference::To(plain)) << "from " << Described(before) << " on side " << side;
    }
}

} // namespace

TEST(ReferenceAgreement, OfWrappedPositions)
{
    RandomMaps random(1);
    for (int i = 0; i < Maps && !HasFailure(); ++i)
    {
        const int count = random.Count();
        const double position = random.Position(count) + (random.Below(9) - 4) * count;
        const double start = random.Position(count);
        const double end = random.Position(count);
        EXPECT_TRUE(SameNumber(PosRangeD::NormalizePos(position, count), reference::NormalizePos(position, count)))
            << Text(position) << " with " << count;
        EXPECT_TRUE(SameNumber(PosRangeD::NormalizePos(position, {start, end}, count),
                               reference::NormalizePos(position, start, end, count)))
            << Text(position) << " on the lap of " << Two(start, end) << " with " << count;
    }
}

TEST(ReferenceAgreement, OfValidityDirectionAndShape)
{
    RandomMaps random(2);
    int invalid = 0;
    for (int i = 0; i < Maps && !HasFailure(); ++i)
    {
        const CPolyPosMap map = SomeMap(random);
        const reference::RefMap plain = reference::From(map);
        const int side = SomeSide(random);
        const bool normalize = random.OneIn(2);
        invalid += map.IsInvalid() ? 1 : 0;
        EXPECT_EQ(map.IsInvalid(), reference::IsInvalid(plain)) << Described(map);
        EXPECT_EQ(map.IsNormalize(), reference::IsNormalize(plain)) << Described(map);
        EXPECT_EQ(map.IsIdentity(), reference::IsIdentity(plain)) << Described(map);
        EXPECT_EQ(map.IsIncrease(side), reference::IsIncrease(plain, side)) << Described(map) << ", side " << side;
        EXPECT_EQ(map.IsPoint(side), reference::IsPoint(plain, side)) << Described(map) << ", side " << side;
        EXPECT_EQ(Two(map.GetRange(side, normalize)), Two(reference::GetRange(plain, side, normalize)))
            << Described(map) << ", side " << side << ", wrapped " << normalize;
    }
    EXPECT_GT(invalid, Maps / 100);
    EXPECT_LT(invalid, Maps / 5);
}

TEST(ReferenceAgreement, OfInvertedMaps)
{
    ExpectTheSameChange(
        3, Maps, [](CPolyPosMap& map, int) { map.Invert(); },
        [](reference::RefMap& map, int) { reference::Invert(map); });
}

TEST(ReferenceAgreement, OfListsWithoutRepeatedAndStraightJoints)
{
    ExpectTheSameChange(
        4, Maps, [](CPolyPosMap& map, int side) { map.Unique(side != 1); },
        [](reference::RefMap& map, int side) { reference::Unique(map.list, side != 1); });
}

TEST(ReferenceAgreement, OfNormalisedMaps)
{
    ExpectTheSameChange(
        5, Maps, [](CPolyPosMap& map, int) { map.Normalize(); },
        [](reference::RefMap& map, int) { reference::Normalize(map); });
}

TEST(ReferenceAgreement, OfFilledMaps)
{
    ExpectTheSameChange(
        6, Maps, [](CPolyPosMap& map, int side) { map.FillAllSegmentNode(side); },
        [](reference::RefMap& map, int side) { reference::FillAllSegmentNode(map, side); });
}

TEST(ReferenceAgreement, OfSmoothedMaps)
{
    for (const auto& limits : {std::make_pair(1.0, 1.0), std::make_pair(0.5, 0.5), std::make_pair(1.0, 0.25),
                               std::make_pair(5.0, 5.0), std::make_pair(0.6, 0.1)})
    {
        ExpectTheSameChange(
            7, Maps / 5, [&](CPolyPosMap& map, int) { map.Smooth(limits.first, limits.second); },
            [&](reference::RefMap& map, int) {
                if (!map.list.empty())
                {
                    reference::Smooth(map, limits.first, limits.second);
                }
            });
    }
}

TEST(ReferenceAgreement, OfSmoothedStaircases)
{
    RandomMaps random(8);
    for (int i = 0; i < Maps && !HasFailure(); ++i)
    {
        const int sourceCount = 1 + random.Below(3);
        const int destinationCount = 1 + random.Below(3);
        double source = 0.25 * random.Below(2);
        double destination = 0.25 * random.Below(2);
        Pairs stairs = {{source, destination}};
        for (int steps = 2 + random.Below(10); steps > 0; --steps)
        {
            const double step = 0.25 * (1 + random.Below(3));
            (random.OneIn(2) ? source : destination) += step;
            stairs.emplace_back(source, destination);
        }
        if (random.OneIn(2))
        {
            stairs.emplace_back(stairs.front().first + sourceCount, stairs.front().second + destinationCount);
        }
        CPolyPosMap map = Map(stairs, sourceCount, destinationCount);
        if (random.OneIn(3))
        {
            map.Reverse();
        }
        const CPolyPosMap before = map;
        reference::RefMap plain = reference::From(map);
        const double maxStep = 0.25 * (1 + random.Below(4));
        const double maxStepDifference = 0.25 * random.Below(4);
        map.Smooth(maxStep, maxStepDifference);
        reference::Smooth(plain, maxStep, maxStepDifference);
        EXPECT_EQ(map, reference::To(plain))
            << "from " << Described(before) << " with " << maxStep << ", " << maxStepDifference;
    }
}

TEST(ReferenceAgreement, OfLookup)
{
    RandomMaps random(9);
    for (int i = 0; i < Maps && !HasFailure(); ++i)
    {
        const CPolyPosMap map = SomeMap(random);
        const reference::RefMap plain = reference::From(map);
        const double position = random.Position(map.SrcSegmentCount());
        const int side = SomeSide(random);
        const std::string described = Described(map) + " at " + Text(position) + ", side " + std::to_string(side);
        EXPECT_EQ(Images(map * position), Images(reference::Multiply(plain, position))) << described;
        for (int faces = 0; faces < 4; ++faces)
        {
            const bool both = (faces & 1) != 0;
            const bool lift = (faces & 2) != 0;
            EXPECT_EQ(Images(map.MultyDouble(position, both, lift)),
                      Images(reference::MultyDouble(plain, position, both, lift)))
                << described << ", faces " << faces;
        }
        EXPECT_EQ(map.IsOverRange(position, side), reference::IsOverRange(plain, position, side)) << described;
        if (!map.IsInvalid() && !map.IsEmpty())
        {
            const std::vector<double> column = reference::Column(plain, side);
            EXPECT_EQ(map.GetMaxLeftIndex(position, side), reference::LeftIndex(column, position)) << described;
            EXPECT_EQ(map.GetMinRightIndex(position, side), reference::RightIndex(column, position)) << described;
        }
    }
}

// Columns too long to be compared joint by joint, with jumps and flats, run either way and are looked up at random, at
// and around their joints, and beyond their ends.
TEST(ReferenceAgreement, OfLookupInLongMaps)
{
    RandomMaps random(13);
    for (int i = 0; i < Maps / 40 && !HasFailure(); ++i)
    {
        const CPolyPosMap map = LongMap(random, 10 + static_cast<std::size_t>(random.Below(120)));
        const reference::RefMap plain = reference::From(map);
        ASSERT_FALSE(map.IsInvalid());
        std::vector<double> positions = {-1, 0, 1.0 * map.SrcSegmentCount(), 1.5 * map.SrcSegmentCount()};
        for (const auto& joint : map.PosPairs())
        {
            positions.push_back(joint.first);
            positions.push_back(joint.first + 1e-9 * (random.Ratio() - 0.5) * 4);
            positions.push_back(random.Ratio() * map.SrcSegmentCount());
        }
        for (const double position : positions)
        {
            EXPECT_EQ(Images(map * position), Images(reference::Multiply(plain, position)))
                << Described(map) << " at " << Text(position);
        }
    }
}

// The places of either map lie among those of the other, many in a row as well.
TEST(ReferenceAgreement, OfCompositionsOfLongMaps)
{
    RandomMaps random(14);
    for (int i = 0; i < Maps / 100 && !HasFailure(); ++i)
    {
        const std::size_t joints = 2 + static_cast<std::size_t>(random.Below(40));
        const CPolyPosMap first = LongMap(random, random.OneIn(3) ? 4 * joints : joints);
        CPolyPosMap second = LongMap(random, random.OneIn(3) ? 4 * joints : joints);
        second.SrcSegmentCount() = first.DstSegmentCount();
        const reference::RefMap expected = reference::Compose(reference::From(first), reference::From(second));
        EXPECT_EQ(first * second, reference::To(expected)) << Described(first) << "\ntimes " << Described(second);
    }
}

TEST(ReferenceAgreement, OfInsertedJoints)
{
    RandomMaps random(10);
    for (int i = 0; i < Maps && !HasFailure(); ++i)
    {
        CPolyPosMap map = SomeMap(random);
        if (map.IsEmpty())
        {
            continue;
        }
        reference::RefMap plain = reference::From(map);
        const double position = random.Position(map.SrcSegmentCount());
        const int side = SomeSide(random);
        const std::string described = Described(map) + " at " + Text(position) + ", side " + std::to_string(side);
        EXPECT_EQ(Two(map.Insert(position, side)), Two(reference::InsertOnLap(plain, position, side))) << described;
        EXPECT_EQ(map, reference::To(plain)) << described;
    }
}

TEST(ReferenceAgreement, OfComposition)
{
    RandomMaps random(11);
    int results = 0;
    int onlyFirstCrosses = 0;
    int onlySecondCrosses = 0;
    int bothCross = 0;
    for (int i = 0; i < 2 * Maps && !HasFailure(); ++i)
    {
        const int middle = random.Count();
        const CPolyPosMap a =
            random.OneIn(40) ? random.AnyMap(random.Count(), middle) : random.ValidMap(random.Count(), middle);
        const int secondCount = random.OneIn(20) ? random.Count() : middle;
        const CPolyPosMap b = random.OneIn(40) ? random.AnyMap(secondCount, random.Count())
                                               : random.ValidMap(secondCount, random.Count());
        reference::Trace trace;
        const CPolyPosMap expected = reference::To(reference::Compose(reference::From(a), reference::From(b), &trace));
        if (trace.imageCount > 32)
        {
            continue; // beyond, places that are equivalent to one another may come in any order
        }
        results += expected.IsEmpty() ? 0 : 1;
        onlyFirstCrosses += trace.destinationCrosses && !trace.sourceCrosses ? 1 : 0;
        onlySecondCrosses += !trace.destinationCrosses && trace.sourceCrosses ? 1 : 0;
        bothCross += trace.destinationCrosses && trace.sourceCrosses ? 1 : 0;
        EXPECT_EQ(a * b, expected) << Described(a) << "\ntimes " << Described(b);
    }
    EXPECT_GT(results, Maps / 2);
    EXPECT_GT(onlyFirstCrosses, Maps / 20);
    EXPECT_GT(onlySecondCrosses, Maps / 20);
    EXPECT_GT(bothCross, Maps / 20);
}

// Steps below the tolerance may go against the walk, and a straight chain of them may go as far as it likes. So a column
// may run up in a sawtooth whose teeth overlap, and its joints are not in the order of their images.
TEST(ReferenceAgreement, OfCompositionsWithManyJointsOutOfOrder)
{
    const int count = 256;
    for (int teeth : {10, 18, 33, 50, 63})
    {
        Pairs rising;
        Pairs falling;
        for (int tooth = 0; tooth < teeth; ++tooth)
        {
            for (int step = 0; step <= 10; ++step)
            {
                const double source = 4 * tooth + 0.125 * step;
                const double height = 5e-9 * tooth - 8.5e-10 * step;
                rising.emplace_back(source, 1 + height);
                falling.emplace_back(source, 3 - height);
            }
        }
        const CPolyPosMap whole = Map({{0, 0}, {count, count}}, count, count);
        for (const Pairs& pairs : {rising, falling})
        {
            const CPolyPosMap sawtooth = Map(pairs, count, 4);
            ASSERT_FALSE(sawtooth.IsInvalid());
            reference::Trace trace;
            const reference::RefMap expected =
                reference::Compose(reference::From(whole), reference::From(sawtooth), &trace);
            EXPECT_EQ(trace.imageCount, 2U * static_cast<std::size_t>(teeth));
            EXPECT_TRUE(reference::IsInvalid(expected)) << "the joints came out in the order of the source";
            EXPECT_EQ(whole * sawtooth, reference::To(expected)) << teeth << " teeth";
        }
    }
}

TEST(ReferenceAgreement, OfInverseTests)
{
    RandomMaps random(12);
    int inverses = 0;
    for (int i = 0; i < Maps / 4 && !HasFailure(); ++i)
    {
        CPolyPosMap map = random.ValidMap(random.Count(), random.Count());
        CPolyPosMap other = !map;
        if (random.OneIn(4) && !other.IsEmpty())
        {
            other.PosPairs().pop_back();
        }
        if (random.OneIn(8))
        {
            other.SrcSegmentCount() += 1;
        }
        const bool expected = reference::IsInvertTo(reference::From(map), reference::From(other));
        inverses += expected ? 1 : 0;
        EXPECT_EQ(map.IsInvertTo(other), expected) << Described(map) << "\nand " << Described(other);
    }
    EXPECT_GT(inverses, Maps / 40);
}
