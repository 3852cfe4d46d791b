#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap Filled(CPolyPosMap map, int side)
{
    map.FillAllSegmentNode(side);
    return map;
}

} // namespace

TEST(FillAllSegmentNode, GivesAJointAtEveryWholeSourcePositionOfAFullLap)
{
    EXPECT_EQ(Filled(Map({{1.5, 0}, {2.5, 1}}, 4, 4), 1),
              Map({{0, 0}, {1, 0}, {1.5, 0}, {2, 0.5}, {2.5, 1}, {3, 1}, {4, 1}}, 4, 4));
    EXPECT_EQ(Filled(Map({{1.5, 0}, {4, 2.5}}, 4, 6), 1),
              Map({{0, 0}, {1, 0}, {1.5, 0}, {2, 0.5}, {3, 1.5}, {4, 2.5}}, 4, 6));
    EXPECT_EQ(Filled(Map({{0, 0}, {4, 2}}, 4, 6), 1), Map({{0, 0}, {1, 0.5}, {2, 1}, {3, 1.5}, {4, 2}}, 4, 6));
}

TEST(FillAllSegmentNode, GivesAJointAtEveryWholeDestinationPositionOfAFullLap)
{
    EXPECT_EQ(Filled(Map({{0, 0.5}, {1, 1.5}}, 4, 3), 2),
              Map({{0, 0}, {0, 0.5}, {0.5, 1}, {1, 1.5}, {1, 2}, {1, 3}}, 4, 3));
    // A destination that runs down has its high positions first.
    EXPECT_EQ(Filled(Map({{0, 2}, {2, 1}}, 4, 3), 2), Map({{0, 3}, {0, 2}, {2, 1}, {2, 0}}, 4, 3));
}

TEST(FillAllSegmentNode, OverTheSeamTheLapBeginsAtTheRemainder)
{
    EXPECT_EQ(Filled(Map({{3, 0}, {5, 2}}, 4, 4), 1), Map({{1, 0}, {2, 0}, {3, 0}, {4, 1}, {5, 2}}, 4, 4));
    EXPECT_EQ(Filled(Map({{3, 0}, {5.5, 2.5}}, 4, 6), 1),
              Map({{2, 0}, {3, 0}, {4, 1}, {5, 2}, {5.5, 2.5}, {6, 2.5}}, 4, 6));
    EXPECT_EQ(Filled(Map({{0, 2}, {3, 5}}, 4, 3), 2), Map({{0, 2}, {1, 3}, {2, 4}, {3, 5}}, 4, 3));
    EXPECT_EQ(Filled(Map({{0.5, 2.5}, {2.5, 4.5}}, 4, 3), 2),
              Map({{0.5, 2}, {0.5, 2.5}, {1, 3}, {2, 4}, {2.5, 4.5}, {2.5, 5}}, 4, 3));
}

TEST(FillAllSegmentNode, AJointThatOvershootsTheLapIsTakenOffAgain)
{
    EXPECT_EQ(Filled(Map({{0.5, 0}, {4.5, 2}}, 4, 4), 1),
              Map({{0.5, 0}, {1, 0.25}, {2, 0.75}, {3, 1.25}, {4, 1.75}, {4.5, 2}}, 4, 4));
    EXPECT_EQ(Filled(Map({{0, 0.5}, {3, 3.5}}, 4, 3), 2),
              Map({{0, 0.5}, {0.5, 1}, {1.5, 2}, {2.5, 3}, {3, 3.5}}, 4, 3));
    // The stretch from 0.5 to 4.25 is shorter than a lap and stays so.
    EXPECT_EQ(Filled(Map({{0.5, 0}, {4.25, 0}}, 4, 4), 1),
              Map({{0.5, 0}, {1, 0}, {2, 0}, {3, 0}, {4, 0}, {4.25, 0}}, 4, 4));
}

TEST(FillAllSegmentNode, AnEndNearAWholePositionIsThatPosition)
{
    const double end = 5 + 5e-10;
    const double middle = ((4.0 - 3.0) / (end - 3.0)) * 2.0;
    EXPECT_EQ(Filled(Map({{3, 0}, {end, 2}}, 4, 4), 1), Map({{1, 0}, {2, 0}, {3, 0}, {4, middle}, {end, 2}}, 4, 4));
    // Just below a whole position the next one up is the same place.
    const double below = 5 - 5e-10;
    const double middleBelow = ((4.0 - 3.0) / (below - 3.0)) * 2.0;
    EXPECT_EQ(Filled(Map({{3, 0}, {below, 2}}, 4, 4), 1),
              Map({{1, 0}, {2, 0}, {3, 0}, {4, middleBelow}, {below, 2}}, 4, 4));
}

TEST(FillAllSegmentNode, ALapLongerThanTheCountByLessThanTheToleranceKeepsItsEnd)
{
    const double end = 4 + 5e-10;
    EXPECT_EQ(Filled(Map({{0, 1}, {1, 1}, {2, 1}, {3, 1}, {end, 1}}, 4, 4), 1),
              Map({{0, 1}, {1, 1}, {2, 1}, {3, 1}, {end, 1}}, 4, 4));
}

TEST(FillAllSegmentNode, BothSidesOneAfterTheOther)
{
    EXPECT_EQ(Filled(Map({{1.5, 0}, {2.5, 1}}, 4, 3), 3),
              Map({{0, 0}, {1, 0}, {1.5, 0}, {2, 0.5}, {2.5, 1}, {3, 1}, {4, 1}, {4, 2}, {4, 3}}, 4, 3));
    EXPECT_EQ(Filled(Map({{0, 1}, {2, 2}}, 2, 3), 3), Map({{0, 0}, {0, 1}, {1, 1.5}, {2, 2}, {2, 3}}, 2, 3));
}

TEST(FillAllSegmentNode, BringsTheMapToNormalFormFirst)
{
    EXPECT_EQ(Filled(Map({{5, 6}, {6, 7}}, 4, 6), 1), Map({{0, 0}, {1, 0}, {2, 1}, {3, 1}, {4, 1}}, 4, 6));
}

TEST(FillAllSegmentNode, WithADownwardSourceTheSidesChangeTheirMeaning)
{
    EXPECT_EQ(Filled(Map({{3, 0}, {1, 2}}, 4, 4), 1), Map({{3, 0}, {2, 1}, {1, 2}, {1, 3}, {1, 4}}, 4, 4));
    EXPECT_EQ(Filled(Map({{3, 0}, {1, 2}}, 4, 3), 1), Map({{3, 0}, {2, 1}, {1, 2}, {1, 3}}, 4, 3));
    EXPECT_EQ(Filled(Map({{3, 0}, {1, 2}}, 4, 3), 2), Map({{4, 0}, {3, 0}, {2, 1}, {1, 2}, {0, 2}}, 4, 3));
}

TEST(FillAllSegmentNode, AMapThatRunsDownOnBothSidesStaysTurnedOver)
{
    EXPECT_EQ(Filled(Map({{3, 2}, {1, 0}}, 4, 4), 1), Map({{4, 3}, {3, 3}, {2, 3}, {1, 2}, {0, 1}}, 4, 4));
    EXPECT_EQ(Filled(Map({{3, 2}, {1, 0}}, 4, 5), 1), Map({{5, 3}, {4, 3}, {3, 3}, {2, 3}, {1, 2}, {0, 1}}, 5, 4));
    EXPECT_EQ(Filled(Map({{3, 2}, {1, 0}}, 4, 5), 2), Map({{2, 4}, {2, 3}, {1, 2}, {0, 1}, {0, 0}}, 5, 4));
}

TEST(FillAllSegmentNode, BothSidesOfAMapThatRunsDownOnBothTurnItOverThreeTimes)
{
    // Turned over, and once more for each side: the old source is filled first, then the old source again.
    //   (3, 2), (1, 0) -> (2, 3), (0, 1) -> (3, 2), (1, 0): 0 to 4 of the source come in, (4, 2) in front, (0, 0) behind
    //   -> turned over the last time: side 2 is the old source, which is complete.
    EXPECT_EQ(Filled(Map({{3, 2}, {1, 0}}, 4, 5), 3), Map({{2, 4}, {2, 3}, {1, 2}, {0, 1}, {0, 0}}, 5, 4));
}

TEST(FillAllSegmentNode, AnIdentityThatRunsDownHasNothingToTurnOver)
{
    EXPECT_EQ(Filled(Map({{3, 3}, {1, 1}}, 4, 4), 1), Map({{4, 3}, {3, 3}, {2, 2}, {1, 1}, {0, 1}}, 4, 4));
}

TEST(FillAllSegmentNode, AnUnknownSideFillsNothingButNormalisesAndTurns)
{
    for (int side : {0, -1, 4, 7})
    {
        EXPECT_EQ(Filled(Map({{5, 6}, {6, 7}}, 4, 6), side), Map({{1, 0}, {2, 1}}, 4, 6));
        EXPECT_EQ(Filled(Map({{6, 7}, {5, 8}}, 4, 6), side), Map({{2, 1}, {1, 2}}, 4, 6));
        EXPECT_EQ(Filled(Map({{3, 2}, {1, 0}}, 4, 5), side), Map({{2, 3}, {0, 1}}, 5, 4));
    }
}

TEST(FillAllSegmentNode, ASingleJointGrowsDownwardAndIsTurnedOver)
{
    // A column of one value does not rise: what lies below goes behind it and what lies above in front of it. The source
    // that counted as rising now runs down, so the map is turned over.
    EXPECT_EQ(Filled(Map({{1, 2}}, 4, 3), 1), Map({{2, 4}, {2, 3}, {2, 2}, {2, 1}, {2, 0}}, 3, 4));
}

TEST(FillAllSegmentNode, AJumpAloneGrowsDownwardToo)
{
    EXPECT_EQ(Filled(Map({{1, 0}, {1, 2}}, 4, 5), 1), Map({{0, 4}, {0, 3}, {0, 2}, {0, 1}, {2, 1}, {2, 0}}, 5, 4));
}

TEST(FillAllSegmentNode, LeavesInvalidAndEmptyMaps)
{
    for (int side : {1, 2, 3, 4})
    {
        const CPolyPosMap turning = Map({{5, 5}, {7, 7}, {6, 8}}, 4, 4);
        EXPECT_EQ(Filled(turning, side), turning);
        EXPECT_EQ(Filled(Map({}, 3, 5), side), Map({}, 3, 5));
    }
}

TEST(FillAllSegmentNode, ASideOfOpenSizeGetsNoJointAboveZero)
{
    EXPECT_EQ(Filled(Map({{2, 0}, {2, 1}}, 0, 4), 1), Map({{2, 0}, {2, 1}}, 0, 4));
    EXPECT_EQ(Filled(Map({{0.5, 0}, {0.5, 1}}, 0, 4), 1), Map({{0.5, 0}, {0.5, 1}}, 0, 4));
    EXPECT_EQ(Filled(Map({{0, 0}, {0, 1}}, 0, 4), 1), Map({{0, 0}, {0, 1}}, 0, 4));
    EXPECT_EQ(Filled(Map({{0, 5}, {1, 5}}, 4, 0), 2), Map({{0, 5}, {1, 5}}, 4, 0));
    EXPECT_EQ(Filled(Map({{2, 0}, {2, 1}}, 0, 3), 3), Map({{2, 0}, {2, 1}, {2, 2}, {2, 3}}, 0, 3));
    EXPECT_EQ(Filled(Map({{0, 5}, {1, 5}}, 2, 0), 3), Map({{0, 5}, {1, 5}, {2, 5}}, 2, 0));
}

// The side may be told by a count of the map itself, which changes place when the map is turned over.
TEST(FillAllSegmentNode, TheSideMayBeACountOfTheMap)
{
    CPolyPosMap one = Map({{0.75, 0}, {0.25, 2}}, 1, 3);
    one.FillAllSegmentNode(one.SrcSegmentCount());
    EXPECT_EQ(one, Map({{0.75, 0}, {0.5, 1}, {0.25, 2}, {0.25, 3}}, 1, 3));

    CPolyPosMap two = Map({{1.75, 0}, {0.25, 3}}, 2, 3);
    two.FillAllSegmentNode(two.SrcSegmentCount());
    EXPECT_EQ(two, Map({{2, 0}, {1.75, 0}, {1, 1.5}, {0.25, 3}, {0, 3}}, 2, 3));

    CPolyPosMap three = Map({{2, 0}, {1, 0.5}}, 3, 1);
    three.FillAllSegmentNode(three.SrcSegmentCount());
    EXPECT_EQ(three, Map({{3, 0}, {2, 0}, {1, 0.5}, {1, 1}, {0, 1}}, 3, 1));

    CPolyPosMap destination = Map({{0.75, 0}, {0.25, 2}}, 1, 3);
    destination.FillAllSegmentNode(destination.DstSegmentCount());
    EXPECT_EQ(destination, Map({{1, 0}, {0.75, 0}, {0.5, 1}, {0.25, 2}, {0.25, 3}, {0, 3}}, 1, 3));
}
