#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap Normalized(CPolyPosMap map)
{
    map.Normalize();
    return map;
}

} // namespace

TEST(Normalize, MovesEachColumnByWholeLaps)
{
    EXPECT_EQ(Normalized(Map({{5, 0}, {6, 1}}, 4, 4)), Map({{1, 0}, {2, 1}}, 4, 4));
    EXPECT_EQ(Normalized(Map({{9, 7}, {10, 8}, {11, 9.5}}, 4, 3)), Map({{1, 1}, {2, 2}, {3, 3.5}}, 4, 3));
    EXPECT_EQ(Normalized(Map({{0.5, 7}, {1, 8}}, 4, 3)), Map({{0.5, 1}, {1, 2}}, 4, 3));
    EXPECT_EQ(Normalized(Map({{4, 3}, {5, 4}}, 4, 3)), Map({{0, 0}, {1, 1}}, 4, 3));
}

TEST(Normalize, BringsNegativePositionsUp)
{
    EXPECT_EQ(Normalized(Map({{-1, 0}, {1, 2}}, 4, 4)), Map({{3, 0}, {5, 2}}, 4, 4));
    EXPECT_EQ(Normalized(Map({{-5, -0.5}, {-4.5, 1}}, 4, 3)), Map({{3, 2.5}, {3.5, 4}}, 4, 3));
    EXPECT_EQ(Normalized(Map({{1, -7}, {2, -6}}, 4, 3)), Map({{1, 2}, {2, 3}}, 4, 3));
}

TEST(Normalize, ANegativeMultipleOfTheCountEndsAtTheCount)
{
    CPolyPosMap map = Map({{-4, 0}, {-3, 1}}, 4, 4);
    map.Normalize();
    EXPECT_EQ(map, Map({{4, 0}, {5, 1}}, 4, 4));
    EXPECT_FALSE(map.IsNormalize());
    map.Normalize();
    EXPECT_EQ(map, Map({{0, 0}, {1, 1}}, 4, 4));
    EXPECT_EQ(Normalized(Map({{0, -6}, {1, -5}}, 4, 3)), Map({{0, 3}, {1, 4}}, 4, 3));
}

TEST(Normalize, ALittleBelowZeroMovesToALittleBelowTheCount)
{
    const double little = -1e-10;
    EXPECT_EQ(Normalized(Map({{little, 0}, {1, 1}}, 4, 4)), Map({{little + 4, 0}, {5, 1}}, 4, 4));
    // Less than a unit of rounding below 0 it comes to the count itself.
    EXPECT_EQ(Normalized(Map({{-1e-300, 0}, {1, 1}}, 4, 4)), Map({{4, 0}, {5, 1}}, 4, 4));
}

TEST(Normalize, TheLowerEndOfADownwardColumnCounts)
{
    EXPECT_EQ(Normalized(Map({{6, 9}, {5, 8}}, 4, 3)), Map({{2, 3}, {1, 2}}, 4, 3));
    EXPECT_EQ(Normalized(Map({{5, 1}, {3, 0}}, 4, 3)), Map({{5, 1}, {3, 0}}, 4, 3));
    EXPECT_EQ(Normalized(Map({{1, 1}, {-1, 0}}, 4, 3)), Map({{5, 1}, {3, 0}}, 4, 3));
}

TEST(Normalize, TheLapOfTheDestinationIsThatOfTheLowestSourceEvenWhereItIsTheUpperEnd)
{
    CPolyPosMap map = Map({{5, 6}, {6, 3.5}}, 4, 4);
    map.Normalize();
    EXPECT_EQ(map, Map({{1, 2}, {2, -0.5}}, 4, 4));
    EXPECT_FALSE(map.IsNormalize());
    map.Normalize();
    EXPECT_EQ(map, Map({{1, 2}, {2, -0.5}}, 4, 4));

    // The source runs down and the destination up: its back, the upper end, picks the lap.
    EXPECT_EQ(Normalized(Map({{6, 8}, {5, 9}}, 4, 3)), Map({{2, -1}, {1, 0}}, 4, 3));
}

TEST(Normalize, LeavesANormalMapBitForBit)
{
    const CPolyPosMap map = Map({{-0.0, 0.1}, {0.1 + 0.2, 5}}, 4, 6);
    EXPECT_EQ(Normalized(map), map);
    const CPolyPosMap crossing = Map({{3, 5}, {5, 7}}, 4, 6);
    EXPECT_EQ(Normalized(crossing), crossing);
}

TEST(Normalize, LeavesAColumnThatNeedsNoMoveBitForBit)
{
    EXPECT_EQ(Normalized(Map({{-0.0, 6}, {1, 7}}, 4, 6)), Map({{-0.0, 0}, {1, 1}}, 4, 6));
    EXPECT_EQ(Normalized(Map({{4, -0.0}, {5, 1}}, 4, 6)), Map({{0, -0.0}, {1, 1}}, 4, 6));
}

TEST(Normalize, LeavesInvalidAndEmptyMaps)
{
    const CPolyPosMap turning = Map({{5, 5}, {7, 7}, {6, 8}}, 4, 4);
    EXPECT_EQ(Normalized(turning), turning);
    const CPolyPosMap tooLong = Map({{5, 5}, {15, 6}}, 4, 4);
    EXPECT_EQ(Normalized(tooLong), tooLong);
    EXPECT_EQ(Normalized(Map({}, 3, 5)), Map({}, 3, 5));
}

TEST(Normalize, LeavesAColumnOfAPolylineOfOpenSize)
{
    EXPECT_EQ(Normalized(Map({{5, 7}, {5, 8}}, 0, 4)), Map({{5, 3}, {5, 4}}, 0, 4));
    EXPECT_EQ(Normalized(Map({{5, 9}, {6, 9}}, 4, 0)), Map({{1, 9}, {2, 9}}, 4, 0));
    EXPECT_EQ(Normalized(Map({{-3, -7}, {-3, -6}}, 0, 4)), Map({{-3, 1}, {-3, 2}}, 0, 4));
}

TEST(Normalize, MovesASingleJoint)
{
    EXPECT_EQ(Normalized(Map({{9, -1}}, 4, 3)), Map({{1, 2}}, 4, 3));
}

TEST(Normalize, IntegerPartsBeyondIntMoveAsFarAsIntReaches)
{
    // INT_MAX / 4 laps of 4 are 2147483644 segments.
    EXPECT_EQ(Normalized(Map({{1e10, 0}}, 4, 4)), Map({{1e10 - 2147483644.0, 0}}, 4, 4));
    EXPECT_EQ(Normalized(Map({{0, -1e10}}, 4, 4)), Map({{0, -1e10 + 2147483648.0}}, 4, 4));
    const CPolyPosMap immense = Map({{1e300, -1e300}}, 4, 4);
    EXPECT_EQ(Normalized(immense), immense);
}

TEST(Normalize, NegativeCountsDivideLikeOthers)
{
    // 5 / -4 is -1 lap of -4: four segments go.
    EXPECT_EQ(Normalized(Map({{5, 0}}, -4, 4)), Map({{1, 0}}, -4, 4));
    EXPECT_EQ(Normalized(Map({{2, 9}}, -4, 4)), Map({{2, 1}}, -4, 4));
}

TEST(Normalize, WhatIsNoNumberStays)
{
    EXPECT_EQ(Normalized(Map({{NaN, 1}}, 4, 4)), Map({{NaN, 1}}, 4, 4));
    EXPECT_EQ(Normalized(Map({{NaN, 5}}, 4, 4)), Map({{NaN, 1}}, 4, 4));
}
