#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap Whole(int count)
{
    return Map({{0, 0}, {static_cast<double>(count), static_cast<double>(count)}}, count, count);
}

const CPolyPosMap TurnsBack = Map({{0, 0}, {2, 2}, {1, 3}}, 4, 4);

/// The source runs up and the destination down past 0: no whole lap brings it into normal form.
const CPolyPosMap NeverNormal = Map({{5, 6}, {6, 3.5}}, 4, 4);

} // namespace

TEST(Composition, CarriesThroughTheFirstMapAndThenThroughTheSecond)
{
    EXPECT_EQ(Map({{0, 0}, {2, 4}}, 2, 4) * Map({{0, 1}, {4, 5}}, 4, 8), Map({{0, 1}, {2, 5}}, 2, 8));
}

TEST(Composition, LeavesItsOperands)
{
    const CPolyPosMap a = Map({{5, 4}, {6, 5}, {6, 5}}, 4, 4);
    const CPolyPosMap b = Map({{-4, 3}, {-3, 4}, {-2, 5}}, 4, 4);
    const CPolyPosMap product = a * b;
    EXPECT_EQ(a, Map({{5, 4}, {6, 5}, {6, 5}}, 4, 4));
    EXPECT_EQ(b, Map({{-4, 3}, {-3, 4}, {-2, 5}}, 4, 4));
    EXPECT_EQ(product, Map({{1, 3}, {2, 4}}, 4, 4));
}

TEST(Composition, HasTheJointsOfBothMaps)
{
    EXPECT_EQ(Map({{0, 0}, {1, 1}, {2, 3}}, 2, 3) * Map({{0, 0}, {1.5, 3}, {3, 4}}, 3, 4),
              Map({{0, 0}, {1, 2}, {1.25, 3}, {2, 4}}, 2, 4));
}

TEST(Composition, HasNoJointsOnStraightLines)
{
    EXPECT_EQ(Map({{0, 0}, {1, 2}, {2, 3}}, 2, 3) * Map({{0, 0}, {2, 1}, {3, 2}}, 3, 2), Map({{0, 0}, {2, 2}}, 2, 2));
}

TEST(Composition, AnEmptyMapIsNeutralWhateverItsCounts)
{
    const CPolyPosMap map = Map({{0, 1}, {2, 3}}, 4, 5);
    EXPECT_EQ(Map({}, 7, 9) * map, map);
    EXPECT_EQ(map * Map({}, 7, 9), map);
    EXPECT_EQ(NoMap() * map, map);
    EXPECT_EQ(map * NoMap(), map);
    EXPECT_EQ(Map({}, 7, 9) * Map({}, 2, 3), Map({}, 2, 3));
}

TEST(Composition, BesideAnEmptyMapTheOtherComesToNormalForm)
{
    EXPECT_EQ(NoMap() * Map({{5, 0}, {6, 1}}, 4, 3), Map({{1, 0}, {2, 1}}, 4, 3));
    EXPECT_EQ(Map({{5, 0}, {6, 1}}, 4, 3) * Map({}, 7, 9), Map({{1, 0}, {2, 1}}, 4, 3));
    // Twice: -4 comes to 4 and then to 0.
    EXPECT_EQ(NoMap() * Map({{-4, 0}, {-3, 1}}, 4, 3), Map({{0, 0}, {1, 1}}, 4, 3));
    EXPECT_EQ(Map({{-4, 0}, {-3, 1}}, 4, 3) * NoMap(), Map({{0, 0}, {1, 1}}, 4, 3));
    // What is already normal is not touched, not even a repeated joint.
    const CPolyPosMap repeated = Map({{0, 0}, {0, 0}, {1, 1}, {2, 2}}, 4, 3);
    EXPECT_EQ(NoMap() * repeated, repeated);
    EXPECT_EQ(repeated * NoMap(), repeated);
}

TEST(Composition, OfAnInvalidMapNothingSurvives)
{
    EXPECT_EQ(TurnsBack * Whole(4), NoMap());
    EXPECT_EQ(Whole(4) * TurnsBack, NoMap());
    EXPECT_EQ(TurnsBack * Map({}, 7, 9), NoMap());
    EXPECT_EQ(Map({}, 7, 9) * TurnsBack, NoMap());
    EXPECT_EQ(TurnsBack * TurnsBack, NoMap());
}

TEST(Composition, OfAMapThatNeverBecomesNormalNothingSurvives)
{
    EXPECT_EQ(NeverNormal * Whole(4), NoMap());
    EXPECT_EQ(Whole(4) * NeverNormal, NoMap());
    EXPECT_EQ(NeverNormal * Map({}, 7, 9), NoMap());
    EXPECT_EQ(Map({}, 7, 9) * NeverNormal, NoMap());
    EXPECT_EQ(Map({{1, -0.5}, {0, 2}}, 4, 4) * Whole(4), NoMap());
    EXPECT_EQ(Map({{2, 2}}, -4, 4) * Whole(4), NoMap());
    EXPECT_EQ(Map({{NaN, 2}}, 4, 4) * Whole(4), NoMap());
    EXPECT_EQ(Whole(4) * Map({{2, NaN}}, 4, 4), NoMap());
    EXPECT_EQ(Map({{1e300, 2}}, 4, 4) * Whole(4), NoMap());
}

TEST(Composition, OfMapsThatDoNotMeetNothingSurvives)
{
    EXPECT_EQ(Map({{0, 0}, {1, 1}}, 4, 4) * Map({{2, 0}, {3, 1}}, 4, 4), NoMap());
    EXPECT_EQ(Map({{1, 2}}, 4, 4) * Map({{0, 0}, {1, 1}}, 4, 4), NoMap());
}

TEST(Composition, CoversOnlyWhatBothMapsCover)
{
    EXPECT_EQ(Map({{0, 0}, {2, 2}}, 4, 5) * Map({{1, 0}, {3, 4}}, 5, 6), Map({{1, 0}, {2, 2}}, 4, 6));
    EXPECT_EQ(Map({{0, 0}, {4, 4}}, 4, 5) * Map({{1, 0}, {3, 4}}, 5, 6), Map({{1, 0}, {3, 4}}, 4, 6));
    EXPECT_EQ(Map({{1, 2}, {2, 3}}, 4, 5) * Map({{0, 0}, {5, 5}}, 5, 6), Map({{1, 2}, {2, 3}}, 4, 6));
}

TEST(Composition, MapsThatTouchMeetInOnePlace)
{
    EXPECT_EQ(Map({{0, 0}, {1, 2}}, 4, 5) * Map({{2, 3}, {3, 5}}, 5, 6), Map({{1, 3}}, 4, 6));
}

TEST(Composition, TurnsTheDestinationWhenOneMapDoes)
{
    EXPECT_EQ(Map({{0, 2}, {2, 0}}, 2, 2) * Map({{0, 0}, {2, 4}}, 2, 4), Map({{0, 4}, {2, 0}}, 2, 4));
    EXPECT_EQ(Whole(4) * Map({{0, 4}, {4, 0}}, 4, 4), Map({{0, 4}, {4, 0}}, 4, 4));
    EXPECT_EQ(Map({{0, 4}, {4, 0}}, 4, 4) * Map({{0, 4}, {4, 0}}, 4, 4), Whole(4));
    EXPECT_EQ(Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4) * Map({{0, 4}, {4, 0}}, 4, 4),
              Map({{0, 4}, {1, 3}, {1, 1}, {2, 0}}, 2, 4));
}

TEST(Composition, ADownwardSourceKeepsItsDirection)
{
    EXPECT_EQ(Map({{2, 3}, {0, 5}}, 2, 6) * Map({{3, 1}, {5, 3}}, 6, 3), Map({{2, 1}, {0, 3}}, 2, 3));
    EXPECT_EQ(Map({{2, 5}, {0, 3}}, 2, 6) * Map({{3, 1}, {5, 3}}, 6, 3), Map({{2, 3}, {0, 1}}, 2, 3));
    EXPECT_EQ(Map({{2, 5}, {0, 3}}, 2, 6) * Map({{5, 3}, {3, 1}}, 6, 3), Map({{2, 3}, {0, 1}}, 2, 3));
    EXPECT_EQ(Map({{0, 3}, {2, 5}}, 2, 6) * Map({{5, 3}, {3, 1}}, 6, 3), Map({{0, 1}, {2, 3}}, 2, 3));
}

TEST(Composition, AJumpStays)
{
    const CPolyPosMap jump = Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4);
    EXPECT_EQ(jump * Whole(4), jump);
    EXPECT_EQ(Whole(2) * jump, jump);
}

TEST(Composition, ACollapsedStretchStaysWithItsTwoEnds)
{
    const CPolyPosMap flat = Map({{0, 2}, {1, 2}, {3, 3}}, 3, 4);
    EXPECT_EQ(Whole(3) * flat, flat);
    EXPECT_EQ(flat * Whole(4), flat);
}

TEST(Composition, AJumpOverACollapsedStretchIsNoJumpAnyMore)
{
    // The first map jumps from 1 to 3, the second collapses just that.
    EXPECT_EQ(Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4) * Map({{0, 0}, {1, 1}, {3, 1}, {4, 2}}, 4, 2), Whole(2));
}

TEST(Composition, OverTheSeamBetweenThemTheSecondMapGoesOnForAnotherLap)
{
    EXPECT_EQ(Map({{0, 3}, {2, 5}}, 2, 4) * Map({{0, 0}, {4, 8}}, 4, 8), Map({{0, 6}, {2, 10}}, 2, 8));
    // A second map that stops short of the seam stands still over the rest of the lap.
    EXPECT_EQ(Map({{0, 1}, {4, 5}}, 4, 4) * Map({{0, 0}, {2, 4}}, 4, 4), Map({{0, 2}, {1, 4}, {3, 4}, {4, 6}}, 4, 4));
}

TEST(Composition, OverTheSeamOfTheSecondMapTheFirstGoesOnForAnotherLap)
{
    EXPECT_EQ(Whole(4) * Map({{3, 0}, {5, 2}}, 4, 2), Map({{3, 0}, {5, 2}}, 4, 2));
    EXPECT_EQ(Map({{0, 0}, {2, 4}}, 2, 4) * Map({{3, 0}, {5, 2}}, 4, 3), Map({{1.5, 0}, {2.5, 2}}, 2, 3));
    EXPECT_EQ(Map({{2, 0}, {0, 4}}, 2, 4) * Map({{3, 0}, {5, 2}}, 4, 3), Map({{2.5, 0}, {1.5, 2}}, 2, 3));
}

TEST(Composition, WithBothOverTheSeamOnlyTheSecondMapIsUnrolled)
{
    EXPECT_EQ(Map({{0, 3}, {2, 5}}, 2, 4) * Map({{3, 0}, {5, 2}}, 4, 2), Whole(2));
    EXPECT_EQ(Map({{1, 3}, {3, 5}}, 6, 4) * Map({{3, 1}, {5, 3}}, 4, 7), Map({{1, 1}, {3, 3}}, 6, 7));
}

TEST(Composition, EndingAtTheSeamIsNotCrossingIt)
{
    EXPECT_EQ(Map({{0, 3}, {1, 4}}, 2, 4) * Map({{3, 0}, {4, 1}}, 4, 2), Map({{0, 0}, {1, 1}}, 2, 2));
    const double end = 4 + 5e-10;
    EXPECT_EQ(Map({{0, 3}, {1, end}}, 2, 4) * Map({{3, 0}, {4, 1}}, 4, 2), Map({{0, 0}, {1, 1}}, 2, 2));
}

TEST(Composition, APolylineOfOpenSizeHasNoSeam)
{
    // Exactly the tolerance long: the stretch is no point, and there is no count to go past.
    EXPECT_EQ(Map({{0, 0}}, 4, 0) * Map({{0, 2}, {Tolerance, 3}}, 0, 5), Map({{0, 2}}, 4, 5));
    EXPECT_EQ(Map({{0, 0}, {1, Tolerance}}, 4, 0) * Map({{0, 2}}, 0, 5), Map({{0, 2}}, 4, 5));
}

TEST(Composition, TurnsOfAClosedPolylineAddUp)
{
    EXPECT_EQ(Map({{0, 1}, {4, 5}}, 4, 4) * Map({{0, 3}, {4, 7}}, 4, 4), Whole(4));
    EXPECT_EQ(Map({{0, 1}, {4, 5}}, 4, 4) * Map({{0, 1}, {4, 5}}, 4, 4), Map({{0, 2}, {4, 6}}, 4, 4));
}

TEST(Composition, WithASingleJoint)
{
    EXPECT_EQ(Map({{1, 2}}, 4, 4) * Map({{0, 0}, {4, 8}}, 4, 8), Map({{1, 4}}, 4, 8));
    EXPECT_EQ(Map({{0, 0}, {4, 8}}, 4, 8) * Map({{2, 5}}, 8, 6), Map({{1, 5}}, 4, 6));
    EXPECT_EQ(Map({{1, 2}}, 4, 4) * Map({{2, 3}}, 4, 5), Map({{1, 3}}, 4, 5));
    EXPECT_EQ(Map({{1, 2}}, 4, 4) * Map({{0, 0}, {2, 1}, {2, 3}, {4, 5}}, 4, 6), Map({{1, 1}, {1, 3}}, 4, 6));
}

TEST(Composition, OperandsComeToNormalFormFirstHoweverManyLapsItTakes)
{
    EXPECT_EQ(Map({{5, 6}, {6, 7}}, 4, 5) * Map({{6, 8}, {7, 9}}, 5, 7), Map({{1, 1}, {2, 2}}, 4, 7));
    EXPECT_EQ(Map({{-4, 0}, {-3, 1}}, 4, 5) * Map({{0, 0}, {5, 5}}, 5, 7), Map({{0, 0}, {1, 1}}, 4, 7));
    EXPECT_EQ(Map({{0, 0}, {4, 5}}, 4, 5) * Map({{-5, -7}, {0, -2}}, 5, 7), Map({{0, 0}, {4, 5}}, 4, 7));
    // A hair below zero it takes two passes as well: up to the count, then down.
    EXPECT_EQ(Map({{-1e-300, 0}, {2, 1}}, 4, 5) * Map({{0, 0}, {5, 5}}, 5, 7), Map({{0, 0}, {2, 1}}, 4, 7));
}

TEST(Composition, ImagesThatCreepByLessThanTheToleranceAreRunsMeasuredFromTheirFirst)
{
    // 0.5, 0.6e-9 more, 1.2e-9 more: the second is like the first and the third like the second, not like the first.
    const CPolyPosMap creeping = Map({{0, 0.5}, {0.001, 0.5 + 6e-10}, {0.004, 0.5 + 12e-10}, {1, 1}}, 4, 4);
    EXPECT_EQ(creeping * Whole(4), creeping);
    // Half a step more each: the third is still like the first, and the second goes.
    EXPECT_EQ(Map({{0, 0.5}, {0.001, 0.5 + 6e-10}, {0.004, 0.5 + 8e-10}, {1, 1}}, 4, 4) * Whole(4),
              Map({{0, 0.5}, {0.004, 0.5 + 8e-10}, {1, 1}}, 4, 4));
}

TEST(Composition, OfPlacesNearEachOtherTheLastStaysAndHasTheImagesOfBoth)
{
    // The joint of the second map lies just too far from 1 to be near it; it answers to half as far from 1 on the source,
    // near the first map's own joint. That place is read at the joint, which gives 1, and the joint of the second map is
    // added to it.
    const double joint = 1 + 1e-9;
    const double place = ((joint - 1) / 2) * 1 + 1;
    const double imageOfOne = (1 / joint) * 3;
    EXPECT_EQ(Map({{0, 0}, {1, 1}, {2, 3}}, 2, 3) * Map({{0, 0}, {joint, 3}, {3, 4}}, 3, 4),
              Map({{0, 0}, {place, imageOfOne}, {place, 3}, {2, 4}}, 2, 4));
}

TEST(Composition, WhatLiesBeyondOneLapOfTheSourceGoes)
{
    // Unrolled, the first map is (3, 1), (5, 1), (7, 3), (9, 3); one lap from 3 ends at 7.
    EXPECT_EQ(Map({{3, 1}, {5, 1}}, 4, 2) * Map({{1, 0}, {3, 1}}, 2, 2), Map({{3, 0}, {5, 0}, {7, 1}}, 4, 2));
}

TEST(Composition, WhereOneLapOfTheSourceEndsAJointComesInBeforeTheRestGoes)
{
    // Unrolled, the first map carries 2 to 5 into the second, which collapses them: (2, 0), (5, 0). One lap from 2 ends
    // at 4, and (2, 0), (4, 0) is (0, 0), (2, 0) in normal form.
    EXPECT_EQ(Map({{1, 0}, {2, 1}, {3, 1}}, 2, 2) * Map({{1, 0}, {3, 0}}, 2, 2), Map({{0, 0}, {2, 0}}, 2, 2));
    // The lap is one of the given map, though it was unrolled to two.
    EXPECT_EQ(Map({{0, 1}, {1, 1}}, 4, 2) * Map({{1, 0}, {3, 0}}, 2, 4), Map({{0, 0}, {4, 0}}, 4, 4));
}

TEST(Composition, WhereTheLapEndsAJointOutOfOrderServes)
{
    // A straight chain of steps below the tolerance leads the first map back from 1 to 1 - 4.8e-9. Unrolled it passes 3 at
    // 7 and lies just below it at 9, so that 9 is walked before 7, where one lap from 3 ends: no joint needs to come in,
    // 9 goes and 7 stays.
    Pairs pairs;
    for (int step = 0; step <= 8; ++step)
    {
        pairs.emplace_back(3 + 0.25 * step, 1 - 6e-10 * step);
    }
    pairs.emplace_back(6, 1.5);
    EXPECT_EQ(Map(pairs, 4, 2) * Map({{1, 0}, {3, 4}}, 2, 4), Map({{3, 0}, {6, 1}, {7, 4}}, 4, 4));
}

TEST(Composition, WhatLiesBeyondOneLapOfTheDestinationGoes)
{
    // Unrolled, the second map jumps from 1 to 2 and then from 3 to 4; one lap from 1 ends at 3.
    EXPECT_EQ(Map({{1, 1}, {2, 2}, {3, 3}}, 2, 2) * Map({{1, 1}, {1, 2}}, 2, 2), Map({{1, 1}, {1, 2}, {3, 3}}, 2, 2));
}

TEST(Composition, WhereOneLapOfTheDestinationEndsAJointComesInBeforeTheRestGoes)
{
    // Unrolled, the second map jumps from 2 to 4 at 1 and from 4 to 8 at 3; one lap from 2 ends at 6.
    EXPECT_EQ(Map({{1, 1}, {2, 3}}, 2, 2) * Map({{1, 2}, {1, 4}, {3, 4}}, 2, 4),
              Map({{1, 2}, {1, 4}, {2, 4}, {2, 6}}, 2, 4));
}

TEST(Composition, AMapThatNeverBecomesNormalMayComeOutOfNormalOnes)
{
    // Unrolled, the second map falls from 4 to 2 at 1 and from 2 to 0 at 3. Both belong to source position 0, and one lap
    // down from 4 ends at 2. The front picks the lap: 4 comes to 0 and 2 to -2.
    CPolyPosMap product = Map({{0, 1}, {0, 3}}, 4, 2) * Map({{1, 2}, {1, 0}}, 2, 2);
    EXPECT_EQ(product, Map({{0, 0}, {0, -2}}, 4, 2));
    EXPECT_FALSE(product.IsNormalize());
    product *= Whole(2);
    EXPECT_EQ(product, NoMap());
}

TEST(Composition, ComesToAnEndWithPositionsThatAreNoNumbers)
{
    const CPolyPosMap source = Map({{0, 0}, {NaN, 1}, {2, 2}}, 2, 2);
    const CPolyPosMap destination = Map({{0, 0}, {1, NaN}, {2, 2}}, 2, 2);
    for (const CPolyPosMap& product :
         {source * Whole(2), Whole(2) * source, destination * Whole(2), Whole(2) * destination, source * source,
          destination * destination, source * destination, destination * source})
    {
        const int count = product.SrcSegmentCount();
        EXPECT_EQ(count, product.DstSegmentCount());
        EXPECT_EQ(count, product.IsEmpty() ? 0 : 2);
    }
}

TEST(Composition, EqualInfiniteImagesKeepTheOrderOfTheirPlaces)
{
    // Neither of two equal images is walked before the other. The map reads the same from both ends, so neither the whole
    // source before it nor the source turned round changes it.
    for (const double end : {Infinite, -Infinite})
    {
        const CPolyPosMap map = Map({{0, end}, {1, NaN}, {2, end}}, 2, 0);
        EXPECT_EQ(Whole(2) * map, map);
        EXPECT_EQ(Map({{0, 2}, {2, 0}}, 2, 2) * map, map);
    }
}

TEST(Composition, ManyJointsKeepTheirOrder)
{
    const int count = 64; // interpolation over a power of two is exact
    Pairs rising;
    Pairs falling;
    for (int i = 0; i <= count; ++i)
    {
        rising.emplace_back(i, i * i);
        falling.emplace_back(i, (count - i) * (count - i));
    }
    const CPolyPosMap squares = Map(rising, count, count * count);
    EXPECT_EQ(Whole(count) * squares, squares);
    EXPECT_EQ(squares * Whole(count * count), squares);
    EXPECT_EQ(Map({{0, count}, {count, 0}}, count, count) * squares, Map(falling, count, count * count));
}

TEST(Composition, ManyJumpsKeepTheirOrder)
{
    const int count = 64;
    Pairs stairs;
    for (int i = 0; i <= count; ++i)
    {
        stairs.emplace_back(i, 2 * i);
        stairs.emplace_back(i, 2 * i + 1);
    }
    const CPolyPosMap staircase = Map(stairs, count, 2 * count + 1);
    EXPECT_EQ(Whole(count) * staircase, staircase);
}

TEST(CompositionInPlace, ReplacesJointsAndCounts)
{
    CPolyPosMap map = Map({{0, 0}, {2, 4}}, 2, 4);
    EXPECT_EQ(&(map *= Map({{0, 1}, {4, 5}}, 4, 8)), &map);
    EXPECT_EQ(map, Map({{0, 1}, {2, 5}}, 2, 8));
}

TEST(CompositionInPlace, LeavesAnInvalidMap)
{
    CPolyPosMap map = TurnsBack;
    EXPECT_EQ(&(map *= Whole(4)), &map);
    EXPECT_EQ(map, TurnsBack);
    map *= NoMap();
    EXPECT_EQ(map, TurnsBack);
}

TEST(CompositionInPlace, WithAnInvalidMapLeavesNothing)
{
    CPolyPosMap map = Whole(4);
    map *= TurnsBack;
    EXPECT_EQ(map, NoMap());
    CPolyPosMap empty = Map({}, 3, 5);
    empty *= TurnsBack;
    EXPECT_EQ(empty, NoMap());
}

TEST(CompositionInPlace, AnEmptyMapBecomesTheOther)
{
    CPolyPosMap map = Map({}, 3, 5);
    map *= Map({{0, 1}, {2, 3}}, 4, 6);
    EXPECT_EQ(map, Map({{0, 1}, {2, 3}}, 4, 6));
}

TEST(CompositionInPlace, WithItself)
{
    CPolyPosMap map = Map({{0, 1}, {4, 5}}, 4, 4);
    map *= map;
    EXPECT_EQ(map, Map({{0, 2}, {4, 6}}, 4, 4));
    CPolyPosMap turned = Map({{0, 4}, {4, 0}}, 4, 4);
    turned *= turned;
    EXPECT_EQ(turned, Whole(4));
}

TEST(IsInvertTo, AMapUndoesItsInverse)
{
    CPolyPosMap map = Map({{0, 0}, {1, 2}, {4, 3}}, 4, 3);
    EXPECT_TRUE(map.IsInvertTo(!map));
    CPolyPosMap inverse = !map;
    EXPECT_TRUE(inverse.IsInvertTo(map));
    EXPECT_FALSE(map.IsInvertTo(Map({{0, 0}, {3, 4}}, 3, 4)));
    CPolyPosMap turn = Map({{0, 1}, {4, 5}}, 4, 4);
    EXPECT_TRUE(turn.IsInvertTo(Map({{0, 3}, {4, 7}}, 4, 4)));
    EXPECT_FALSE(turn.IsInvertTo(turn));
    EXPECT_EQ(turn, Map({{0, 1}, {4, 5}}, 4, 4));
}

TEST(IsInvertTo, CountsAnswerToOneAnotherCrosswise)
{
    CPolyPosMap map = Map({{0, 0}, {2, 2}}, 4, 5);
    EXPECT_TRUE(map.IsInvertTo(Map({{0, 0}, {2, 2}}, 5, 4)));
    EXPECT_FALSE(map.IsInvertTo(Map({{0, 0}, {2, 2}}, 4, 5)));
    EXPECT_FALSE(map.IsInvertTo(Map({{0, 0}, {2, 2}}, 5, 5)));
    EXPECT_FALSE(map.IsInvertTo(Map({{0, 0}, {2, 2}}, 4, 4)));
}

TEST(IsInvertTo, InvalidMapsUndoNothing)
{
    CPolyPosMap invalid = TurnsBack;
    EXPECT_FALSE(invalid.IsInvertTo(Whole(4)));
    CPolyPosMap whole = Whole(4);
    EXPECT_FALSE(whole.IsInvertTo(TurnsBack));
    EXPECT_FALSE(invalid.IsInvertTo(invalid));
}

TEST(IsInvertTo, WhatIsLeftEmptyChangesNothing)
{
    // The two maps have no place in common, and an empty map is an identity.
    CPolyPosMap map = Map({{0, 0}, {1, 1}}, 4, 4);
    EXPECT_TRUE(map.IsInvertTo(Map({{2, 2}, {3, 3}}, 4, 4)));
    CPolyPosMap empty = Map({}, 3, 5);
    EXPECT_TRUE(empty.IsInvertTo(Map({}, 5, 3)));
    EXPECT_FALSE(empty.IsInvertTo(Map({}, 3, 5)));
    // Neutral on either side, but the other map keeps its counts, which differ.
    EXPECT_FALSE(empty.IsInvertTo(Map({{1, 1}}, 5, 3)));
}
