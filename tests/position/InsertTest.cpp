#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

/// Inserts, and compares both the joint that is handed out and the map that is left.
void ExpectInserted(CPolyPosMap map, double position, int side, const Two& joint, const Pairs& after)
{
    const CPolyPosMap expected = Map(after, map.SrcSegmentCount(), map.DstSegmentCount());
    EXPECT_EQ(Two(map.Insert(position, side)), joint);
    EXPECT_EQ(map, expected);
}

} // namespace

TEST(PosMapInsert, BetweenTwoJointsTheOtherSideIsInterpolated)
{
    const CPolyPosMap map = Map({{0, 0}, {2, 4}}, 2, 4);
    ExpectInserted(map, 1, 1, {1, 2}, {{0, 0}, {1, 2}, {2, 4}});
    ExpectInserted(map, 1, 2, {0.5, 1}, {{0, 0}, {0.5, 1}, {2, 4}});
    const CPolyPosMap longer = Map({{0, 0}, {1, 0}, {2, 4}, {4, 5}}, 6, 8);
    ExpectInserted(longer, 1.5, 1, {1.5, 2}, {{0, 0}, {1, 0}, {1.5, 2}, {2, 4}, {4, 5}});
    ExpectInserted(longer, 4.5, 2, {3, 4.5}, {{0, 0}, {1, 0}, {2, 4}, {3, 4.5}, {4, 5}});
}

TEST(PosMapInsert, OnDownwardColumns)
{
    const CPolyPosMap source = Map({{2, 4}, {0, 0}}, 6, 8);
    ExpectInserted(source, 1, 1, {1, 2}, {{2, 4}, {1, 2}, {0, 0}});
    ExpectInserted(source, 5, 1, {5, 4}, {{5, 4}, {2, 4}, {0, 0}});
    const CPolyPosMap destination = Map({{0, 5}, {2, 1}}, 6, 8);
    ExpectInserted(destination, 4, 2, {0.5, 4}, {{0, 5}, {0.5, 4}, {2, 1}});
    ExpectInserted(destination, 7, 2, {0, 7}, {{0, 7}, {0, 5}, {2, 1}});
    ExpectInserted(destination, 0, 2, {2, 0}, {{0, 5}, {2, 1}, {2, 0}});
}

TEST(PosMapInsert, PastTheEndsTheOtherSideStandsStill)
{
    const CPolyPosMap map = Map({{1, 1}, {2, 2}}, 4, 5);
    ExpectInserted(map, 0, 1, {0, 1}, {{0, 1}, {1, 1}, {2, 2}});
    ExpectInserted(map, 3, 1, {3, 2}, {{1, 1}, {2, 2}, {3, 2}});
    ExpectInserted(map, 0.5, 2, {1, 0.5}, {{1, 0.5}, {1, 1}, {2, 2}});
    ExpectInserted(map, 4.5, 2, {2, 4.5}, {{1, 1}, {2, 2}, {2, 4.5}});
}

TEST(PosMapInsert, AJointThatIsThereIsTheAnswer)
{
    const CPolyPosMap map = Map({{1, 1}, {2, 3}}, 4, 5);
    ExpectInserted(map, 2, 1, {2, 3}, map.PosPairs());
    ExpectInserted(map, 3, 2, {2, 3}, map.PosPairs());
    ExpectInserted(map, 2 + 5e-10, 1, {2, 3}, map.PosPairs());
    ExpectInserted(map, 1 - 5e-10, 2, {1, 1}, map.PosPairs());
}

TEST(PosMapInsert, OfARunTheFirstJointIsTheAnswer)
{
    const CPolyPosMap jump = Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4);
    ExpectInserted(jump, 1, 1, {1, 1}, jump.PosPairs());
    const CPolyPosMap flat = Map({{0, 0}, {1, 2}, {3, 2}, {4, 4}}, 4, 4);
    ExpectInserted(flat, 2, 2, {1, 2}, flat.PosPairs());
    // The first within the tolerance, not the nearest.
    const CPolyPosMap close = Map({{0, 0}, {1 - 8e-10, 1}, {1, 3}, {2, 4}}, 2, 4);
    ExpectInserted(close, 1, 1, {1 - 8e-10, 1}, close.PosPairs());
}

TEST(PosMapInsert, NearnessIsStrict)
{
    const CPolyPosMap map = Map({{0, 5}, {1, 6}}, 4, 9);
    ExpectInserted(map, JustBelowTolerance, 1, {0, 5}, map.PosPairs());
    ExpectInserted(map, Tolerance, 1, {Tolerance, Tolerance + 5}, {{0, 5}, {Tolerance, Tolerance + 5}, {1, 6}});
}

TEST(PosMapInsert, NextToARunTheNewJointGoesBetweenTheRunAndItsNeighbour)
{
    const CPolyPosMap jump = Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4);
    ExpectInserted(jump, 0.5, 1, {0.5, 0.5}, {{0, 0}, {0.5, 0.5}, {1, 1}, {1, 3}, {2, 4}});
    ExpectInserted(jump, 1.5, 1, {1.5, 3.5}, {{0, 0}, {1, 1}, {1, 3}, {1.5, 3.5}, {2, 4}});
    ExpectInserted(jump, 2, 2, {1, 2}, {{0, 0}, {1, 1}, {1, 2}, {1, 3}, {2, 4}});
}

TEST(PosMapInsert, ThePositionIsMovedToTheLapOfTheMap)
{
    const CPolyPosMap map = Map({{3, 4}, {5, 6}}, 4, 5);
    ExpectInserted(map, 0.5, 1, {4.5, 5.5}, {{3, 4}, {4.5, 5.5}, {5, 6}});
    ExpectInserted(map, 0.5, 2, {4.5, 5.5}, {{3, 4}, {4.5, 5.5}, {5, 6}});
    ExpectInserted(map, 1, 1, {5, 6}, map.PosPairs());
    ExpectInserted(map, 2, 1, {6, 6}, {{3, 4}, {5, 6}, {6, 6}});
    ExpectInserted(map, 2, 2, {5, 7}, {{3, 4}, {5, 6}, {5, 7}});
    ExpectInserted(map, 3.5, 2, {5, 8.5}, {{3, 4}, {5, 6}, {5, 8.5}});
}

TEST(PosMapInsert, TheRatioIsTakenFirstThenStretchedThenShifted)
{
    // The numbers for which the other ways to write an interpolation round differently, as in the lookup.
    const double other = ((1.9 - 1.3) / (2.3 - 1.3)) * (1.6 - 0.1) + 0.1;
    ExpectInserted(Map({{1.3, 0.1}, {2.3, 1.6}}, 4, 4), 1.9, 1, {1.9, other}, {{1.3, 0.1}, {1.9, other}, {2.3, 1.6}});
    ExpectInserted(Map({{0.1, 1.3}, {1.6, 2.3}}, 4, 4), 1.9, 2, {other, 1.9}, {{0.1, 1.3}, {other, 1.9}, {1.6, 2.3}});
}

TEST(PosMapInsert, OnlyTheTwoSidesTakeAJoint)
{
    const CPolyPosMap map = Map({{1, 1}, {2, 2}}, 4, 4);
    for (int side : {3, 0, -1, 4})
    {
        ExpectInserted(map, 1.5, side, None(), map.PosPairs());
        ExpectInserted(map, 2, side, None(), map.PosPairs());
    }
}

TEST(PosMapInsert, AnEmptyMapTakesNoJoint)
{
    for (int side : {1, 2, 3})
    {
        ExpectInserted(Map({}, 4, 5), 1, side, None(), {});
        ExpectInserted(NoMap(), 1, side, None(), {});
    }
}

TEST(PosMapInsert, DoesNotAskForAValidMap)
{
    const CPolyPosMap turning = Map({{0, 0}, {2, 2}, {1, 3}}, 4, 4);
    ExpectInserted(turning, 0.5, 1, {0.5, 0.5}, {{0, 0}, {0.5, 0.5}, {2, 2}, {1, 3}});
    // The last joint below 2 is (1, 2) and the first above it (3, 7): interpolated between these, put before the latter.
    const CPolyPosMap zigzag = Map({{0, 0}, {3, 7}, {1, 2}, {5, 9}}, 9, 9);
    ExpectInserted(zigzag, 2, 1, {2, 4.5}, {{0, 0}, {2, 4.5}, {3, 7}, {1, 2}, {5, 9}});
}

TEST(PosMapInsert, BesideASingleJointTheListRunsDown)
{
    ExpectInserted(Map({{1, 2}}, 4, 5), 3, 1, {3, 2}, {{3, 2}, {1, 2}});
    // Below the joint the next lap is meant, which comes before it.
    ExpectInserted(Map({{1, 2}}, 4, 5), 0.5, 1, {4.5, 2}, {{4.5, 2}, {1, 2}});
    ExpectInserted(Map({{1, 2}}, 4, 5), 0.5, 2, {1, 5.5}, {{1, 5.5}, {1, 2}});
}

TEST(PosMapInsert, WithoutSegmentsThereIsNoPositionButTheOneThatStandsForNone)
{
    ExpectInserted(Map({{1, 2}, {1, 3}}, 0, 4), 5, 1, {-1, 3}, {{1, 2}, {1, 3}, {-1, 3}});
}

TEST(PosMapInsert, ThePositionAndTheSideMayBeTheMapsOwn)
{
    CPolyPosMap there = Map({{1, 3}, {2, 4}}, 4, 5);
    EXPECT_EQ(Two(there.Insert(there.PosPairs()[0].first, 1)), Two(1, 3));
    EXPECT_EQ(there, Map({{1, 3}, {2, 4}}, 4, 5));

    CPolyPosMap moved = Map({{0, 1}, {4, 5}}, 4, 5);
    moved.PosPairs().shrink_to_fit();
    EXPECT_EQ(Two(moved.Insert(moved.PosPairs()[0].second, 1)), Two(1, 2));
    EXPECT_EQ(moved, Map({{0, 1}, {1, 2}, {4, 5}}, 4, 5));

    CPolyPosMap front = Map({{1, 3}, {2, 4}}, 4, 5);
    front.PosPairs().shrink_to_fit();
    EXPECT_EQ(Two(front.Insert(front.PosPairs()[1].first, 2)), Two(1, 2));
    EXPECT_EQ(front, Map({{1, 2}, {1, 3}, {2, 4}}, 4, 5));

    CPolyPosMap side = Map({{0, 0}, {1, 2}}, 1, 2);
    EXPECT_EQ(Two(side.Insert(0.5, side.SrcSegmentCount())), Two(0.5, 1));
    EXPECT_EQ(Two(side.Insert(0.5, side.DstSegmentCount())), Two(0.25, 0.5));
    EXPECT_EQ(side, Map({{0, 0}, {0.25, 0.5}, {0.5, 1}, {1, 2}}, 1, 2));
}
