#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

/// Crosses the seam of its source.
const CPolyPosMap OverSeam = Map({{3, 0}, {5, 2}}, 4, 5);
/// Jumps from 1 to 3 at source position 1.
const CPolyPosMap Jump = Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4);
const CPolyPosMap DownwardSource = Map({{5, 1}, {4, 2}, {4, 3}, {2, 4}}, 6, 5);
const CPolyPosMap Turned = Map({{0, 4}, {1, 3}, {1, 1}, {2, 0}}, 2, 4);
const CPolyPosMap TurnsBack = Map({{0, 0}, {2, 2}, {1, 3}}, 4, 4);

Images Of(const CPolyPosMap& map, double position)
{
    return map * position;
}

Images Sorted(const CPolyPosMap& map, double position, bool bothSeamFaces = false, bool liftSeamImages = false)
{
    return map.MultyDouble(position, bothSeamFaces, liftSeamImages);
}

/// GetMaxLeftIndex and GetMinRightIndex.
std::pair<int, int> Neighbours(const CPolyPosMap& map, double position, int side)
{
    return {map.GetMaxLeftIndex(position, side), map.GetMinRightIndex(position, side)};
}

/// IsOverRange on sides 1, 2, 3 and on a side that does not exist.
std::string Over(const CPolyPosMap& map, double position)
{
    std::string row;
    for (int side : {1, 2, 3, 4})
    {
        row += map.IsOverRange(position, side) ? 'T' : 'F';
    }
    return row;
}

using Indices = std::pair<int, int>;

} // namespace

TEST(PosMapIndex, BetweenTwoJointsTheyAreTheNeighbours)
{
    EXPECT_EQ(Neighbours(OverSeam, 3.5, 1), Indices(0, 1));
    EXPECT_EQ(Neighbours(OverSeam, 1.5, 2), Indices(0, 1));
    EXPECT_EQ(Neighbours(Jump, 0.5, 1), Indices(0, 1));
    EXPECT_EQ(Neighbours(Jump, 1.5, 1), Indices(2, 3));
    EXPECT_EQ(Neighbours(Jump, 2.0, 2), Indices(1, 2));
}

TEST(PosMapIndex, AtAJointTheyAreTheOuterEndsOfItsRun)
{
    EXPECT_EQ(Neighbours(Jump, 1.0, 1), Indices(2, 1));
    EXPECT_EQ(Neighbours(Jump, 1.0 + 5e-10, 1), Indices(2, 1));
    EXPECT_EQ(Neighbours(Jump, 3.0, 2), Indices(2, 2));
    EXPECT_EQ(Neighbours(Jump, 0.0, 1), Indices(0, 0));
    EXPECT_EQ(Neighbours(Jump, 2.0, 1), Indices(3, 3));
    EXPECT_EQ(Neighbours(DownwardSource, 4.0, 1), Indices(2, 1));
}

TEST(PosMapIndex, BeyondTheMapOneOfThemIsMissing)
{
    EXPECT_EQ(Neighbours(OverSeam, 9.0, 1), Indices(1, -1));
    EXPECT_EQ(Neighbours(OverSeam, -1.0, 2), Indices(-1, 0));
    EXPECT_EQ(Neighbours(OverSeam, 2.5, 2), Indices(1, -1));
    EXPECT_EQ(Neighbours(DownwardSource, 5.5, 1), Indices(-1, 0));
    EXPECT_EQ(Neighbours(DownwardSource, 1.0, 1), Indices(3, -1));
}

TEST(PosMapIndex, PositionsAreNotWrapped)
{
    EXPECT_EQ(Neighbours(OverSeam, 0.5, 1), Indices(-1, 0));
}

TEST(PosMapIndex, OnADownwardColumnTheWalkComesFromAbove)
{
    EXPECT_EQ(Neighbours(DownwardSource, 4.5, 1), Indices(0, 1));
    EXPECT_EQ(Neighbours(DownwardSource, 3.0, 1), Indices(2, 3));
    EXPECT_EQ(Neighbours(Turned, 2.0, 2), Indices(1, 2));
    EXPECT_EQ(Neighbours(Turned, 3.5, 2), Indices(0, 1));
}

TEST(PosMapIndex, EverySideButTheFirstIsTheDestination)
{
    for (int side : {2, 3, 0, -1, 7})
    {
        EXPECT_EQ(Neighbours(Jump, 2.0, side), Indices(1, 2)) << side;
        EXPECT_EQ(Neighbours(OverSeam, 3.0, side), Indices(1, -1)) << side;
    }
}

TEST(PosMapIndex, AColumnThatStandsStillIsWalkedLikeADownwardOne)
{
    const CPolyPosMap upright = Map({{1, 0}, {1, 2}}, 4, 4);
    EXPECT_EQ(Neighbours(upright, 0.5, 1), Indices(1, -1));
    EXPECT_EQ(Neighbours(upright, 1.5, 1), Indices(-1, 0));
    EXPECT_EQ(Neighbours(upright, 1.0, 1), Indices(1, 0));
    EXPECT_EQ(Neighbours(Map({{1, 2}}, 4, 4), 3.0, 2), Indices(-1, 0));
}

TEST(PosMapIndex, NearnessIsStrict)
{
    const CPolyPosMap map = Map({{0, 5}, {3, 6}}, 4, 9);
    EXPECT_EQ(Neighbours(map, JustBelowTolerance, 1), Indices(0, 0));
    EXPECT_EQ(Neighbours(map, Tolerance, 1), Indices(0, 1));
    EXPECT_EQ(Neighbours(map, -JustBelowTolerance, 1), Indices(0, 0));
    EXPECT_EQ(Neighbours(map, -Tolerance, 1), Indices(-1, 0));
}

TEST(PosMapIndex, NearJointsComeBeforeNeighboursHoweverFarApartTheyStand)
{
    // Within the tolerance of 1 - 3e-10 lie both joints around it, also the one above.
    const CPolyPosMap map = Map({{0, 0}, {1 - 8e-10, 1}, {1, 2}, {2, 3}}, 4, 4);
    EXPECT_EQ(Neighbours(map, 1 - 3e-10, 1), Indices(2, 1));
    EXPECT_EQ(Neighbours(map, 1 + 5e-10, 1), Indices(2, 2));
}

TEST(PosMapIndex, InvalidAndEmptyMapsHaveNone)
{
    EXPECT_EQ(Neighbours(TurnsBack, 1.0, 1), Indices(-1, -1));
    EXPECT_EQ(Neighbours(TurnsBack, 1.0, 2), Indices(-1, -1));
    EXPECT_EQ(Neighbours(Map({}, 3, 5), 1.0, 1), Indices(-1, -1));
    EXPECT_EQ(Neighbours(NoMap(), 0.0, 2), Indices(-1, -1));
}

TEST(PosMapIndex, NoNumberHasNoNeighbours)
{
    EXPECT_EQ(Neighbours(Jump, NaN, 1), Indices(-1, -1));
}

TEST(PosMapTimesPosition, InterpolatesInRawPositionValue)
{
    EXPECT_EQ(Of(Map({{0, 0}, {2, 4}}, 2, 4), 1.5), Images({3}));
    EXPECT_EQ(Of(OverSeam, 3.5), Images({0.5}));
    EXPECT_EQ(Of(OverSeam, 4.0), Images({1}));
    EXPECT_EQ(Of(Turned, 0.25), Images({3.75}));
    EXPECT_EQ(Of(Turned, 1.5), Images({0.5}));
    EXPECT_EQ(Of(DownwardSource, 4.25), Images({1.75}));
    EXPECT_EQ(Of(DownwardSource, 3.0), Images({3.5}));
}

TEST(PosMapTimesPosition, ThePositionIsMovedToTheLapOfTheMap)
{
    EXPECT_EQ(Of(OverSeam, 0.5), Images({1.5}));
    EXPECT_EQ(Of(OverSeam, 0.0), Images({1}));
    EXPECT_EQ(Of(OverSeam, 1.0), Images({2}));
    EXPECT_EQ(Of(OverSeam, 7.5), Images({0.5}));
    EXPECT_EQ(Of(OverSeam, -1.0), Images({0}));
    EXPECT_EQ(Of(DownwardSource, 10.5), Images({1.5}));
}

TEST(PosMapTimesPosition, BeyondTheMapThereIsNoImage)
{
    EXPECT_EQ(Of(OverSeam, 2.0), Images({}));
    EXPECT_EQ(Of(DownwardSource, 1.0), Images({}));
    EXPECT_EQ(Of(DownwardSource, 5.5), Images({}));
    EXPECT_EQ(Of(Map({{1, 0}, {2, 1}}, 4, 4), 0.5), Images({}));
    EXPECT_EQ(Of(Map({{1, 0}, {2, 1}}, 4, 4), 2.5), Images({}));
    EXPECT_EQ(Of(Map({{1, 0}, {2, 1}}, 4, 4), NaN), Images({}));
    EXPECT_EQ(Of(Map({{1, 0}, {2, 1}}, 4, 4), Infinite), Images({}));
}

TEST(PosMapTimesPosition, AJointGivesAllItsImagesInListOrder)
{
    EXPECT_EQ(Of(Jump, 1.0), Images({1, 3}));
    EXPECT_EQ(Of(Turned, 1.0), Images({3, 1}));
    EXPECT_EQ(Of(DownwardSource, 4.0), Images({2, 3}));
    EXPECT_EQ(Of(Map({{0, 0}, {1, 1}, {1, 1}, {2, 3}}, 2, 4), 1.0), Images({1, 1}));
}

TEST(PosMapTimesPosition, NearAJointTheImageIsThatOfTheJoint)
{
    EXPECT_EQ(Of(Jump, 1 + 5e-10), Images({1, 3}));
    EXPECT_EQ(Of(Map({{0, 5}, {1, 6}}, 4, 9), JustBelowTolerance), Images({5}));
    EXPECT_EQ(Of(Map({{0, 5}, {1, 6}}, 4, 9), Tolerance), Images({Tolerance + 5}));
    // Two joints within the tolerance of a place between them.
    EXPECT_EQ(Of(Map({{0, 0}, {1 - 8e-10, 1}, {1, 2}, {2, 3}}, 4, 4), 1 - 3e-10), Images({1, 2}));
}

TEST(PosMapTimesPosition, ImagesAreRawDestinationPositions)
{
    EXPECT_EQ(Of(Map({{0, 3}, {2, 5}}, 2, 4), 1.5), Images({4.5}));
    EXPECT_EQ(Of(Map({{0, -3}, {2, -5}}, 2, 4), 1.5), Images({-4.5}));
}

TEST(PosMapTimesPosition, TheRatioIsTakenFirstThenStretchedThenShifted)
{
    const CPolyPosMap map = Map({{1.3, 0.1}, {2.3, 1.6}}, 4, 4);
    const double position = 1.9;
    const double ratio = (position - 1.3) / (2.3 - 1.3);
    const double expected = ratio * (1.6 - 0.1) + 0.1;
    // The other ways to write it, a fused multiplication and addition among them, round differently here.
    ASSERT_NE(expected, (position - 1.3) * (1.6 - 0.1) / (2.3 - 1.3) + 0.1);
    ASSERT_NE(expected, (position - 1.3) * ((1.6 - 0.1) / (2.3 - 1.3)) + 0.1);
    ASSERT_NE(expected, 0.1 * (1 - ratio) + 1.6 * ratio);
    ASSERT_NE(expected, std::fma(ratio, 1.6 - 0.1, 0.1));
    EXPECT_EQ(Of(map, position), Images({expected}));
}

TEST(PosMapTimesPosition, OfOneJointHasAnImageThereOnly)
{
    const CPolyPosMap map = Map({{1, 3}}, 4, 4);
    EXPECT_EQ(Of(map, 1.0), Images({3}));
    EXPECT_EQ(Of(map, 5.0), Images({}));
    EXPECT_EQ(Of(map, 9.0), Images({3}));
    EXPECT_EQ(Of(map, 2.0), Images({}));
}

TEST(PosMapTimesPosition, AnEmptyMapHandsThePositionOn)
{
    const CPolyPosMap map = Map({}, 4, 7);
    EXPECT_EQ(Of(map, 2.5), Images({2.5}));
    EXPECT_EQ(Of(map, 4.0), Images({4}));
    EXPECT_EQ(Of(map, 5.5), Images({1.5}));
    EXPECT_EQ(Of(map, -0.5), Images({3.5}));
}

TEST(PosMapTimesPosition, WithoutSourceSegmentsThereAreNoPositions)
{
    EXPECT_EQ(Of(NoMap(), 2.5), Images({-1}));
    EXPECT_EQ(Of(Map({}, 0, 4), 0.0), Images({-1}));
    EXPECT_EQ(Of(Map({{0, 3}}, 0, 4), 0.0), Images({}));
    EXPECT_EQ(Of(Map({{-1, 3}}, 0, 4), 0.0), Images({3}));
    EXPECT_EQ(Of(Map({{2, 7}}, -4, 4), 1.0), Images({}));
}

TEST(PosMapTimesPosition, AnInvalidMapHasNoImages)
{
    EXPECT_EQ(Of(TurnsBack, 0.0), Images({}));
    EXPECT_EQ(Sorted(TurnsBack, 0.0, true, true), Images({}));
    EXPECT_EQ(Sorted(TurnsBack, 1.5), Images({}));
}

TEST(PosMapMultyDouble, AwayFromTheSeamItSortsAndDropsRepeatedImages)
{
    EXPECT_EQ(Sorted(Jump, 1.0), Images({1, 3}));
    EXPECT_EQ(Sorted(Turned, 1.0), Images({3, 1}));
    EXPECT_EQ(Sorted(Jump, 0.5, true, true), Images({0.5}));
    EXPECT_EQ(Sorted(OverSeam, 2.0, true, true), Images({}));
    EXPECT_EQ(Sorted(OverSeam, 0.5, true, true), Images({1.5}));
    EXPECT_EQ(Sorted(Map({{0, 0}, {1, 1}, {1, 1}, {2, 3}}, 2, 4), 1.0), Images({1}));
}

TEST(PosMapMultyDouble, ImagesRunWithTheDestination)
{
    // Steps below the tolerance may go against the walk, so the list order is not the sorted one.
    const double above = 1 + 1.5e-9;
    EXPECT_EQ(Sorted(Map({{0, 0}, {1, 1 + 8e-10}, {1, 1}, {1, above}, {2, 3}}, 2, 4), 1.0), Images({1, above}));
    EXPECT_EQ(Sorted(Map({{0, 3}, {1, 1}, {1, 1 + 8e-10}, {1, 1 - 1e-9}, {2, 0}}, 2, 4), 1.0),
              Images({1 + 8e-10, 1 - 1e-9}));
}

TEST(PosMapMultyDouble, OfImagesNearEachOtherTheFirstStays)
{
    // 1 + 6e-10 is near 1 and goes, 1 + 12e-10 is not near the 1 that was kept.
    const CPolyPosMap map = Map({{0, 0}, {1, 1}, {1, 1 + 6e-10}, {1, 1 + 12e-10}, {2, 3}}, 2, 4);
    EXPECT_EQ(Sorted(map, 1.0), Images({1, 1 + 12e-10}));
    const CPolyPosMap turned = Map({{0, 3}, {1, 1}, {1, 1 - 6e-10}, {1, 1 - 12e-10}, {2, 0}}, 2, 4);
    EXPECT_EQ(Sorted(turned, 1.0), Images({1, 1 - 12e-10}));
    const CPolyPosMap apart = Map({{0, -1}, {1, 0}, {1, Tolerance}, {2, 3}}, 2, 4);
    EXPECT_EQ(Sorted(apart, 1.0), Images({0, Tolerance}));
    const CPolyPosMap near = Map({{0, -1}, {1, 0}, {1, JustBelowTolerance}, {2, 3}}, 2, 4);
    EXPECT_EQ(Sorted(near, 1.0), Images({0}));
}

TEST(PosMapMultyDouble, AtTheSeamEitherOneFaceOrBoth)
{
    const CPolyPosMap round = Map({{0, 0}, {4, 6}}, 4, 6);
    EXPECT_EQ(Sorted(round, 0.0, false, false), Images({0}));
    EXPECT_EQ(Sorted(round, 0.0, false, true), Images({0}));
    EXPECT_EQ(Sorted(round, 0.0, true, false), Images({0, 6}));
    EXPECT_EQ(Sorted(round, 0.0, true, true), Images({6}));
    EXPECT_EQ(Sorted(round, 4.0, false, false), Images({6}));
    EXPECT_EQ(Sorted(round, 4.0, false, true), Images({6}));
    EXPECT_EQ(Sorted(round, 4.0, true, false), Images({0, 6}));
    EXPECT_EQ(Sorted(round, 4.0, true, true), Images({6}));
    EXPECT_EQ(Sorted(round, 2.0, true, true), Images({3}));
}

TEST(PosMapMultyDouble, LiftedImagesOfTheZeroFaceAreSortedInWithTheOthers)
{
    const CPolyPosMap map = Map({{0, 0}, {4, 4}}, 4, 6);
    EXPECT_EQ(Sorted(map, 0.0, true, true), Images({4, 6}));
    EXPECT_EQ(Sorted(map, 4.0, true, true), Images({4, 6}));
    const CPolyPosMap turned = Map({{0, 4}, {4, 0}}, 4, 6);
    EXPECT_EQ(Sorted(turned, 0.0, true, true), Images({10, 0}));
    EXPECT_EQ(Sorted(turned, 0.0, true, false), Images({4, 0}));
    EXPECT_EQ(Sorted(turned, 4.0, true, false), Images({4, 0}));
    EXPECT_EQ(Sorted(turned, 4.0, false, true), Images({0}));
}

TEST(PosMapMultyDouble, OneFaceWithoutImagesLeavesTheOtherUnlifted)
{
    const CPolyPosMap front = Map({{0, 1}, {2, 3}}, 4, 6);
    EXPECT_EQ(Sorted(front, 0.0, true, true), Images({1}));
    EXPECT_EQ(Sorted(front, 4.0, true, true), Images({1}));
    EXPECT_EQ(Sorted(front, 4.0, false, true), Images({}));
    const CPolyPosMap back = Map({{2, 3}, {4, 5}}, 4, 6);
    EXPECT_EQ(Sorted(back, 4.0, true, true), Images({5}));
    EXPECT_EQ(Sorted(back, 0.0, true, true), Images({5}));
    EXPECT_EQ(Sorted(back, 0.0, false, true), Images({}));
}

TEST(PosMapMultyDouble, AJumpAtTheSeamIsLiftedWithAllItsImages)
{
    const CPolyPosMap map = Map({{0, 0}, {0, 1}, {4, 5}, {4, 6}}, 4, 6);
    EXPECT_EQ(Sorted(map, 0.0, true, false), Images({0, 1, 5, 6}));
    EXPECT_EQ(Sorted(map, 0.0, true, true), Images({5, 6, 7}));
    EXPECT_EQ(Sorted(map, 4.0, false, true), Images({5, 6}));
}

TEST(PosMapMultyDouble, AMapOverTheSeamHasBothFacesInOnePlace)
{
    // 0 is moved to 4, the count face; the zero face is evaluated there too, and lifted.
    EXPECT_EQ(Sorted(OverSeam, 0.0, false, false), Images({1}));
    EXPECT_EQ(Sorted(OverSeam, 0.0, true, false), Images({1}));
    EXPECT_EQ(Sorted(OverSeam, 0.0, true, true), Images({1, 6}));
    EXPECT_EQ(Sorted(OverSeam, 4.0, true, true), Images({1, 6}));
}

TEST(PosMapMultyDouble, NearTheSeamCountsAsTheSeam)
{
    const CPolyPosMap round = Map({{0, 0}, {4, 6}}, 4, 6);
    EXPECT_EQ(Sorted(round, JustBelowTolerance, true, false), Images({0, 6}));
    EXPECT_EQ(Sorted(round, Tolerance, true, false), Images({(Tolerance / 4) * 6}));
    EXPECT_EQ(Sorted(round, 4 - 5e-10, true, false), Images({0, 6}));
    EXPECT_EQ(Sorted(round, 4 - 2e-9, true, false), Images({((4 - 2e-9) / 4) * 6}));
}

TEST(PosMapMultyDouble, OfAnEmptyMap)
{
    EXPECT_EQ(Sorted(NoMap(), 2.5, true, true), Images({-1}));
    EXPECT_EQ(Sorted(Map({}, 4, 6), 2.5, true, true), Images({2.5}));
    EXPECT_EQ(Sorted(Map({}, 4, 6), 0.0, true, false), Images({0, 4}));
    EXPECT_EQ(Sorted(Map({}, 4, 6), 0.0, true, true), Images({4, 6}));
}

TEST(PosMapIsOverRange, TheEndsAndWhatLiesBetweenAreNotOver)
{
    for (double position : {3.5, 0.5, 3.0, 1.0, 4.0, 0.0, 7.25})
    {
        EXPECT_FALSE(OverSeam.IsOverRange(position, 1)) << position;
    }
    for (double position : {2.0, 1.5, 2.75, 6.0, -2.0})
    {
        EXPECT_TRUE(OverSeam.IsOverRange(position, 1)) << position;
    }
    EXPECT_FALSE(OverSeam.IsOverRange(1 + 5e-10, 1));
    EXPECT_TRUE(OverSeam.IsOverRange(1 + 2e-9, 1));
}

TEST(PosMapIsOverRange, EitherSideOrBoth)
{
    const CPolyPosMap map = Map({{0, 1}, {2, 3}}, 4, 4);
    EXPECT_EQ(Over(map, 1.5), "FFFF");
    EXPECT_EQ(Over(map, 0.5), "FTTF");
    EXPECT_EQ(Over(map, 2.5), "TFTF");
    EXPECT_EQ(Over(map, 3.5), "TTTF");
    const CPolyPosMap turned = Map({{2, 3}, {0, 1}}, 4, 4);
    EXPECT_EQ(Over(turned, 1.5), "FFFF");
    EXPECT_EQ(Over(turned, 0.5), "FTTF");
    EXPECT_EQ(Over(turned, 2.5), "TFTF");
}

TEST(PosMapIsOverRange, TheDestinationIsWrappedWithTheSourceCountToo)
{
    // 4 wraps to 2 with two source segments, though the destination has six.
    const CPolyPosMap map = Map({{0, 0}, {2, 3}}, 2, 6);
    EXPECT_FALSE(map.IsOverRange(4.0, 2));
    EXPECT_FALSE(map.IsOverRange(2.5, 2));
    // 4.5 lies inside and wraps to 0.5, which doesn't.
    const CPolyPosMap high = Map({{0, 2}, {2, 5}}, 2, 6);
    EXPECT_TRUE(high.IsOverRange(4.5, 2));
    EXPECT_FALSE(high.IsOverRange(4.0, 2));
    // The map itself is wrapped with the destination count: 5 to 7 of six segments is the stretch over the seam.
    const CPolyPosMap over = Map({{0, 5}, {2, 7}}, 8, 6);
    EXPECT_FALSE(over.IsOverRange(5.5, 2));
    EXPECT_FALSE(over.IsOverRange(0.5, 2));
    EXPECT_TRUE(over.IsOverRange(3.0, 2));
}

TEST(PosMapIsOverRange, APointIsNotWrapped)
{
    const CPolyPosMap upright = Map({{2, 2}, {2, 5}}, 4, 8);
    EXPECT_FALSE(upright.IsOverRange(2.0, 1));
    EXPECT_FALSE(upright.IsOverRange(2 + 5e-10, 1));
    EXPECT_TRUE(upright.IsOverRange(2 + 2e-9, 1));
    EXPECT_TRUE(upright.IsOverRange(6.0, 1));
    EXPECT_FALSE(upright.IsOverRange(3.0, 2));
    const CPolyPosMap flat = Map({{0, 5}, {3, 5}}, 4, 4);
    EXPECT_FALSE(flat.IsOverRange(5.0, 2));
    EXPECT_TRUE(flat.IsOverRange(1.0, 2));
    EXPECT_FALSE(flat.IsOverRange(1.0, 1));
    const CPolyPosMap joint = Map({{0, 5}}, 4, 4);
    EXPECT_EQ(Over(joint, 0.0), "FTTF");
    EXPECT_EQ(Over(joint, 5.0), "TFTF");
    EXPECT_FALSE(Map({{0, 1}, {0, 2}}, 4, 4).IsOverRange(JustBelowTolerance, 1));
    EXPECT_TRUE(Map({{0, 1}, {0, 2}}, 4, 4).IsOverRange(Tolerance, 1));
}

TEST(PosMapIsOverRange, AFullLapIsNeverLeft)
{
    const CPolyPosMap round = Map({{1, 0}, {5, 6}}, 4, 6);
    for (double position : {0.0, 0.5, 1.0, 3.0, 4.0, 17.25, -3.5})
    {
        EXPECT_FALSE(round.IsOverRange(position, 1)) << position;
    }
}

TEST(PosMapIsOverRange, AnInvalidMapHasNoOutsideAndAnEmptyOneNoInside)
{
    EXPECT_EQ(Over(TurnsBack, 3.5), "FFFF");
    EXPECT_EQ(Over(NoMap(), 0.0), "TTTT");
    EXPECT_EQ(Over(Map({}, 4, 4), 2.0), "TTTT");
    EXPECT_TRUE(NoMap().IsOverRange(0.0, -1));
    EXPECT_TRUE(NoMap().IsOverRange(0.0, 0));
}

TEST(PosMapIsOverRange, OnAPolylineOfOpenSizeAStretchIsAlwaysLeft)
{
    // Exactly the tolerance long: no point any more, and its wrapped range is the invalid one.
    const CPolyPosMap map = Map({{0, 0}, {Tolerance, 1}}, 0, 4);
    EXPECT_TRUE(map.IsOverRange(0.0, 1));
    EXPECT_TRUE(map.IsOverRange(0.5, 1));
}

TEST(PosMapIsOverRange, NoNumberIsOver)
{
    EXPECT_TRUE(OverSeam.IsOverRange(NaN, 1));
    EXPECT_TRUE(Map({{1, 2}}, 4, 4).IsOverRange(NaN, 1));
}

TEST(PosMapMultyDouble, KeepsTheFirstOfZerosOfEitherSignWhicheverWayTheyAreSorted)
{
    const CPolyPosMap down({{1, 3}, {2, 0.0}, {2, -0.0}}, 4, 4);
    const CPolyPosMap up({{1, -3}, {2, 0.0}, {2, -0.0}}, 4, 4);
    for (const CPolyPosMap& map : {down, up})
    {
        const std::vector<double> images = map.MultyDouble(2.0, false, false);
        ASSERT_EQ(images.size(), 1U);
        EXPECT_FALSE(std::signbit(images[0]));
    }
    const CPolyPosMap negativeFirst({{1, 3}, {2, -0.0}, {2, 0.0}}, 4, 4);
    EXPECT_TRUE(std::signbit(negativeFirst.MultyDouble(2.0, false, false).front()));
}
