#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap Smoothed(CPolyPosMap map, double maxStep, double maxStepDifference)
{
    map.Smooth(maxStep, maxStepDifference);
    return map;
}

/// A corner up and then along, with the flat and upright stretches to the full lap as they come out.
CPolyPosMap UpAndAlong(double up, double along)
{
    return Map({{0, 0}, {0, up}, {along, up}}, 4, 3);
}

CPolyPosMap UpAndAlongKept(double up)
{
    return Map({{0, 0}, {0, up}, {4, up}, {4, 3}}, 4, 3);
}

CPolyPosMap UpAndAlongCut(double up, double along)
{
    return Map({{0, 0}, {along, up}, {4, up}, {4, 3}}, 4, 3);
}

} // namespace

TEST(Smooth, CutsTheCornersOfAStaircase)
{
    const Pairs stairs = {{0, 0}, {0, 0.1}, {0.1, 0.1}, {0.1, 0.2}, {0.2, 0.2}};
    EXPECT_EQ(Smoothed(Map(stairs, 4, 4), 0.5, 0.5), Map({{0, 0}, {0.2, 0.2}, {4, 0.2}, {4, 4}}, 4, 4));
    EXPECT_EQ(Smoothed(Map(stairs, 4, 3), 0.5, 0.5), Map({{0, 0}, {0.2, 0.2}, {4, 0.2}, {4, 3}}, 4, 3));
}

TEST(Smooth, CutsTheCornersOfAStaircaseThatBeginsAlong)
{
    // Every second joint goes: (0.25, 0) and (0.5, 0.25) are corners, (0.25, 0.25) is passed over.
    const Pairs stairs = {{0, 0}, {0.25, 0}, {0.25, 0.25}, {0.5, 0.25}, {0.5, 0.5}};
    EXPECT_EQ(Smoothed(Map(stairs, 4, 3), 0.3, 0.1), Map({{0, 0}, {0.5, 0.5}, {4, 0.5}, {4, 3}}, 4, 3));
}

TEST(Smooth, StairsOfUnequalStepsAreCutToo)
{
    const Pairs stairs = {{0, 0}, {0, 0.25}, {0.5, 0.25}, {0.5, 0.5}, {0.75, 0.5}};
    EXPECT_EQ(Smoothed(Map(stairs, 4, 3), 0.5, 0.25), Map({{0, 0}, {0.5, 0.25}, {0.75, 0.5}, {4, 0.5}, {4, 3}}, 4, 3));
}

TEST(Smooth, TheJointAfterACutCornerIsNotTested)
{
    // With one destination segment 0 and 1 are the same place, so that between (0, 0) and (2, 1) the joint (1, 1), filled
    // in, would be a corner once (0, 1) is gone. It is passed over; then (0, 0), legs 1 and 1, goes at the seam.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0, 1}, {2, 1}}, 2, 1), 1.0, 1.0), Map({{1, 1}, {3, 2}}, 2, 1));
}

TEST(Smooth, ACornerWithALongLegStays)
{
    EXPECT_EQ(Smoothed(UpAndAlong(0.6, 0.1), 0.5, 1.0), UpAndAlongKept(0.6));
    EXPECT_EQ(Smoothed(UpAndAlong(0.6, 0.1), 0.7, 1.0), UpAndAlongCut(0.6, 0.1));
    EXPECT_EQ(Smoothed(UpAndAlong(0.1, 0.6), 0.5, 1.0), UpAndAlongKept(0.1));
    EXPECT_EQ(Smoothed(UpAndAlong(0.1, 0.6), 0.7, 1.0), UpAndAlongCut(0.1, 0.6));
}

TEST(Smooth, ACornerWithUnequalLegsStays)
{
    EXPECT_EQ(Smoothed(UpAndAlong(0.4, 0.1), 0.5, 0.2), UpAndAlongKept(0.4));
    EXPECT_EQ(Smoothed(UpAndAlong(0.4, 0.1), 0.5, 0.4), UpAndAlongCut(0.4, 0.1));
    EXPECT_EQ(Smoothed(UpAndAlong(0.1, 0.4), 0.5, 0.2), UpAndAlongKept(0.1));
    EXPECT_EQ(Smoothed(UpAndAlong(0.1, 0.4), 0.5, 0.4), UpAndAlongCut(0.1, 0.4));
}

TEST(Smooth, ACornerFirstAlongAndThenUpIsMeasuredLikewise)
{
    const CPolyPosMap corner = Map({{0, 0}, {0.75, 0}, {0.75, 0.25}}, 4, 3);
    EXPECT_EQ(Smoothed(corner, 0.8, 0.6), Map({{0, 0}, {0.75, 0.25}, {4, 0.25}, {4, 3}}, 4, 3));
    // One leg too long; (0.75, 0.25) has legs of 0.25 and 0.25 and goes in its stead.
    EXPECT_EQ(Smoothed(corner, 0.5, 0.6), Map({{0, 0}, {0.75, 0}, {1, 0.25}, {4, 0.25}, {4, 3}}, 4, 3));
    // Legs too unequal.
    EXPECT_EQ(Smoothed(corner, 0.8, 0.4), Map({{0, 0}, {0.75, 0}, {1, 0.25}, {4, 0.25}, {4, 3}}, 4, 3));
}

TEST(Smooth, ALegNearTheGreatestStepIsShortEnough)
{
    EXPECT_EQ(Smoothed(UpAndAlong(0.5, 0.25), 0.5, 1.0), UpAndAlongCut(0.5, 0.25));
    EXPECT_EQ(Smoothed(UpAndAlong(0.5, 0.25), 0.5 - 5e-10, 1.0), UpAndAlongCut(0.5, 0.25));
    EXPECT_EQ(Smoothed(UpAndAlong(0.5, 0.25), 0.5 - 2e-9, 1.0), UpAndAlongKept(0.5));
    EXPECT_EQ(Smoothed(UpAndAlong(0.25, 0.5), 0.5 - 5e-10, 1.0), UpAndAlongCut(0.25, 0.5));
    EXPECT_EQ(Smoothed(UpAndAlong(0.25, 0.5), 0.5 - 2e-9, 1.0), UpAndAlongKept(0.25));
}

TEST(Smooth, ADifferenceNearTheGreatestIsSmallEnough)
{
    EXPECT_EQ(Smoothed(UpAndAlong(0.5, 0.25), 0.6, 0.25), UpAndAlongCut(0.5, 0.25));
    EXPECT_EQ(Smoothed(UpAndAlong(0.5, 0.25), 0.6, 0.25 - 5e-10), UpAndAlongCut(0.5, 0.25));
    EXPECT_EQ(Smoothed(UpAndAlong(0.5, 0.25), 0.6, 0.25 - 2e-9), UpAndAlongKept(0.5));
    EXPECT_EQ(Smoothed(UpAndAlong(0.25, 0.25), 0.6, 0.0), UpAndAlongCut(0.25, 0.25));
}

TEST(Smooth, StandingStillIsExact)
{
    const Pairs leaning = {{0, 0}, {1e-10, 0.25}, {0.25, 0.25}};
    EXPECT_EQ(Smoothed(Map(leaning, 4, 3), 0.5, 0.5), Map({{0, 0}, {1e-10, 0.25}, {4, 0.25}, {4, 3}}, 4, 3));
    const Pairs rising = {{0, 0}, {0, 0.25}, {0.25, 0.25 + 1e-10}};
    EXPECT_EQ(Smoothed(Map(rising, 4, 3), 0.5, 0.5), Map({{0, 0}, {0, 0.25}, {4, 0.25 + 1e-10}, {4, 3}}, 4, 3));
}

TEST(Smooth, FillsTheMapToFullLapsFirst)
{
    // No corner is short enough: what comes out is the map with its flat and upright ends.
    EXPECT_EQ(Smoothed(Map({{1.5, 0}, {2.5, 1}}, 4, 3), 0.1, 0.1),
              Map({{0, 0}, {1.5, 0}, {2.5, 1}, {4, 1}, {4, 3}}, 4, 3));
    EXPECT_EQ(Smoothed(Map({{5.5, 3}, {6.5, 4}}, 4, 3), 0.1, 0.1),
              Map({{0, 0}, {1.5, 0}, {2.5, 1}, {4, 1}, {4, 3}}, 4, 3));
}

TEST(Smooth, WholeSegmentsAreStepsOfTheirOwn)
{
    // The flat stretch to (4, 1) is walked in steps of 1, so its corner has legs of 1 and 1.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {1, 1}}, 4, 3), 1.0, 0.1), Map({{0, 0}, {1, 1}, {3, 1}, {4, 2}, {4, 3}}, 4, 3));
}

TEST(Smooth, OnAClosedMapTheCornerAtTheSeamGoesToo)
{
    // The last step is up by 0.5, the first along by 0.25.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0.25, 0}, {4, 7.5}, {4, 8}}, 4, 8), 0.6, 0.6), Map({{0.25, 0}, {4.25, 8}}, 4, 8));
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0.25, 0}, {4, 7.5}, {4, 8}}, 4, 8), 0.4, 0.6),
              Map({{0, 0}, {0.25, 0}, {4, 7.5}, {4, 8}}, 4, 8));
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0.25, 0}, {4, 7.5}, {4, 8}}, 4, 8), 0.6, 0.2),
              Map({{0, 0}, {0.25, 0}, {4, 7.5}, {4, 8}}, 4, 8));
    // The last step is along by 0.25, the first up by 0.5.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0, 0.5}, {3.75, 8}, {4, 8}}, 4, 8), 0.6, 0.6), Map({{0, 0.5}, {4, 8.5}}, 4, 8));
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0, 0.5}, {3.75, 8}, {4, 8}}, 4, 8), 0.4, 0.6),
              Map({{0, 0}, {0, 0.5}, {3.75, 8}, {4, 8}}, 4, 8));
}

TEST(Smooth, TheNewClosingJointGoesOnInTheDirectionOfTheDestination)
{
    EXPECT_EQ(Smoothed(Map({{0, 8}, {0.25, 8}, {4, 0.5}, {4, 0}}, 4, 8), 0.6, 0.6), Map({{0.25, 8}, {4.25, 0}}, 4, 8));
}

TEST(Smooth, TheDirectionAtTheSeamIsAskedWithoutTheOldEnds)
{
    // On a destination of one segment a step of one segment stands still. The corner (0, 0) goes, the flat joints have
    // legs of 1 and 0, the corner at the seam has legs of 1 and 1. What is left, (1, 0), (2, 0), (3, 0), counts as rising.
    EXPECT_EQ(Smoothed(Map({{0, 1}, {0, 0}, {4, 0}}, 4, 1), 1.0, 0.5), Map({{1, 0}, {3, 0}, {5, 1}}, 4, 1));
}

TEST(Smooth, OfThreeJointsTheSeamLeavesOne)
{
    // Of (0, 1) alone no direction is left but upward.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0, 1}, {1, 1}}, 1, 1), 0.5, 0.5), Map({{0, 1}, {1, 2}}, 1, 1));
}

TEST(Smooth, WithoutAFullLapThereIsNoCornerAtTheSeam)
{
    // The source ends at 4.25, a quarter short of a lap; the joint at 5 would overshoot.
    const CPolyPosMap openSource = Map({{0.5, 0}, {0.5, 0.25}, {4, 4}, {4.25, 4}}, 4, 4);
    EXPECT_EQ(Smoothed(openSource, 0.6, 0.6), openSource);
    const CPolyPosMap openDestination = Map({{0, 0.5}, {0.25, 0.5}, {4, 4}, {4, 4.25}}, 4, 4);
    EXPECT_EQ(Smoothed(openDestination, 0.6, 0.6), openDestination);
}

TEST(Smooth, SourceStepsAreComparedWithTheDestinationCountInACornerAlongAndUp)
{
    // With one destination segment the source step from 1 to 2 counts as none: legs 1 and 0.5.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {1, 0}, {2, 0.5}, {3, 1}}, 3, 1), 1.0, 0.5), Map({{0, 0}, {2, 0.5}, {3, 1}}, 3, 1));
}

TEST(Smooth, TwoJointsAreLeftAsTheyAre)
{
    EXPECT_EQ(Smoothed(Map({{0, 0}, {1, 1}}, 1, 1), 5.0, 5.0), Map({{0, 0}, {1, 1}}, 1, 1));
    // Not even the repeated one goes.
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0, 0}}, 0, 0), 5.0, 5.0), Map({{0, 0}, {0, 0}}, 0, 0));
}

TEST(Smooth, AnEmptyMapStaysEmpty)
{
    EXPECT_EQ(Smoothed(Map({}, 3, 5), 0.5, 0.5), Map({}, 3, 5));
}

TEST(Smooth, AnInvalidMapIsNotFilledButLosesItsCorners)
{
    EXPECT_EQ(Smoothed(Map({{0, 0}, {0, 0.1}, {0.1, 0.1}, {0.05, 0.2}}, 4, 4), 0.5, 0.5),
              Map({{0, 0}, {0.1, 0.1}, {0.05, 0.2}}, 4, 4));
}

// The limits may be positions of the map itself, which moves its joints.
TEST(Smooth, TheLimitsMayBePositionsOfTheMap)
{
    CPolyPosMap map = UpAndAlong(0.5, 0.25);
    map.Smooth(map.PosPairs()[1].second, map.PosPairs()[2].first);
    EXPECT_EQ(map, UpAndAlongCut(0.5, 0.25));

    CPolyPosMap kept = UpAndAlong(0.5, 0.125);
    kept.Smooth(kept.PosPairs()[2].second, kept.PosPairs()[2].first);
    EXPECT_EQ(kept, UpAndAlongKept(0.5));

    CPolyPosMap zero = UpAndAlong(0.25, 0.25);
    zero.Smooth(zero.PosPairs()[1].first, zero.PosPairs()[0].second);
    EXPECT_EQ(zero, UpAndAlongKept(0.25));
}
