#include "math/CPolyPosMapUtilies.h"
#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

using Generate = CPolyPosMapUtilies;
using Ranges = std::vector<PosRangeD>;
using Segments = std::vector<int>;

const PosRangeD Missing;

CPolyPosMap Cut(const PosRangeD& range, int count)
{
    return Generate::GeneratePosMapFromCadByPosrange2OriginCad(range, count);
}

} // namespace

TEST(GenerateWholeMap, ForwardsOrTurned)
{
    EXPECT_EQ(Generate::GenerateWholeMap(3, false), Map({{0, 0}, {3, 3}}, 3, 3));
    EXPECT_EQ(Generate::GenerateWholeMap(3, true), Map({{0, 3}, {3, 0}}, 3, 3));
    EXPECT_EQ(Generate::GenerateWholeMap(1, false), Map({{0, 0}, {1, 1}}, 1, 1));
    EXPECT_EQ(Generate::GenerateWholeMap(1, true), Map({{0, 1}, {1, 0}}, 1, 1));
    EXPECT_EQ(Generate::GenerateWholeMap(50, false), Map({{0, 0}, {50, 50}}, 50, 50));
    EXPECT_EQ(Generate::GenerateWholeMap(50, true), Map({{0, 50}, {50, 0}}, 50, 50));
}

TEST(GenerateWholeMap, WithoutSegmentsThereIsNothing)
{
    EXPECT_EQ(Generate::GenerateWholeMap(0, false), NoMap());
    EXPECT_EQ(Generate::GenerateWholeMap(0, true), NoMap());
    EXPECT_TRUE(Generate::GenerateWholeMap(-3, false).IsEmpty());
}

TEST(ResetZero, AtAnEndNothingMoves)
{
    for (double position : {0.0, 4.0, 5e-10, -5e-10, 4 + 5e-10, 4 - 5e-10})
    {
        EXPECT_EQ(Generate::ResetZero(position, 4), Map({{0, 0}, {4, 4}}, 4, 4));
    }
    EXPECT_EQ(Generate::ResetZero(0.0, 0), NoMap());
}

TEST(ResetZero, OnANodeTheCountStays)
{
    EXPECT_EQ(Generate::ResetZero(1.0, 4), Map({{0, 1}, {4, 5}}, 4, 4));
    EXPECT_EQ(Generate::ResetZero(3.0, 4), Map({{0, 3}, {4, 7}}, 4, 4));
    // Near a node the map still begins at the position itself.
    const double near = 1 + 5e-10;
    EXPECT_EQ(Generate::ResetZero(near, 4), Map({{0, near}, {4, 4 + near}}, 4, 4));
}

TEST(ResetZero, InsideASegmentItBecomesTheLastAndTheFirst)
{
    EXPECT_EQ(Generate::ResetZero(1.5, 4), Map({{0, 1.5}, {1, 2}, {4, 5}, {5, 5.5}}, 5, 4));
    EXPECT_EQ(Generate::ResetZero(3.25, 4), Map({{0, 3.25}, {1, 4}, {4, 7}, {5, 7.25}}, 5, 4));
    // Just below a node is inside a segment.
    const double below = 2 - 5e-10;
    EXPECT_EQ(Generate::ResetZero(below, 4), Map({{0, below}, {1, 2}, {4, 5}, {5, 4 + below}}, 5, 4));
}

TEST(ResetZero, OfOneSegmentTheJointInTheMiddleStandsTwice)
{
    EXPECT_EQ(Generate::ResetZero(0.5, 1), Map({{0, 0.5}, {1, 1}, {1, 1}, {2, 1.5}}, 2, 1));
}

TEST(ResetZero, NearnessIsStrict)
{
    EXPECT_EQ(Generate::ResetZero(Tolerance, 4), Map({{0, Tolerance}, {1, 1}, {4, 4}, {5, 4 + Tolerance}}, 5, 4));
    EXPECT_EQ(Generate::ResetZero(JustBelowTolerance, 4), Map({{0, 0}, {4, 4}}, 4, 4));
}

TEST(ResetZero, TestsNothing)
{
    EXPECT_EQ(Generate::ResetZero(5.5, 4), Map({{0, 5.5}, {1, 6}, {4, 9}, {5, 9.5}}, 5, 4));
    EXPECT_EQ(Generate::ResetZero(-0.5, 4), Map({{0, -0.5}, {1, 1}, {4, 4}, {5, 3.5}}, 5, 4));
    EXPECT_EQ(Generate::ResetZero(NaN, 4), Map({{0, NaN}, {1, 1}, {4, 4}, {5, NaN}}, 5, 4));
}

TEST(PosMapFromSegmentMap, SegmentsInOrderMakeOneStretch)
{
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({0, 1, 2}, 3), Map({{0, 0}, {3, 3}}, 3, 3));
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({2, 3}, 9), Map({{0, 2}, {2, 4}}, 2, 9));
}

TEST(PosMapFromSegmentMap, ASegmentNumberThatComesAgainIsShared)
{
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({3, 3}, 5), Map({{0, 3}, {2, 4}}, 2, 5));
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({0, 3, 3, 3, 4}, 5),
              Map({{0, 0}, {1, 1}, {1, 3}, {4, 4}, {5, 5}}, 5, 5));
}

TEST(PosMapFromSegmentMap, ASegmentWithoutImageCollapsesWhereTheWalkStands)
{
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({2, -1}, 4), Map({{0, 2}, {1, 3}, {2, 3}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({2, -1, -1, 3}, 4), Map({{0, 2}, {1, 3}, {3, 3}, {4, 4}}, 4, 4));
    // Its end slides on when the segment before it comes again.
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({3, -1, 3}, 5), Map({{0, 3}, {1, 4}, {3, 4}}, 3, 5));
}

TEST(PosMapFromSegmentMap, AFirstSegmentWithoutImageCollapsesAtZero)
{
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({-1, 2}, 4), Map({{0, 0}, {1, 0}, {1, 2}, {2, 3}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({-1, -1}, 4), Map({{0, 0}, {2, 0}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({-1}, 4), Map({{0, 0}, {1, 0}}, 1, 4));
}

TEST(PosMapFromSegmentMap, ALeftOutSegmentIsAJump)
{
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({1, 3}, 4), Map({{0, 1}, {1, 2}, {1, 3}, {2, 4}}, 2, 4));
}

TEST(PosMapFromSegmentMap, NumbersRoundTheSeamTurnBack)
{
    const CPolyPosMap map = Generate::GeneratePosMapFromSegmentMap({3, 0, 1}, 4);
    EXPECT_EQ(map, Map({{0, 3}, {1, 4}, {1, 0}, {3, 2}}, 3, 4));
    EXPECT_TRUE(map.IsInvalid());
}

TEST(PosMapFromSegmentMap, OfNoSegmentsKeepsTheDestinationCount)
{
    EXPECT_EQ(Generate::GeneratePosMapFromSegmentMap({}, 4), Map({}, 0, 4));
}

TEST(SegmentMapFromPosMap, TellsTheSegmentInWhichEachBegins)
{
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 0}, {3, 3}}, 3, 3)), (Segments{0, 1, 2}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 1}, {4, 5}}, 4, 4)), (Segments{1, 2, 3, 0}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 0.5}, {2, 4.5}}, 2, 7)), (Segments{0, 2}));
}

TEST(SegmentMapFromPosMap, ASegmentOnlyPartlyCoveredHasNone)
{
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 0}, {1, 1}}, 3, 3)), (Segments{0, -1, -1}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 2}, {1.5, 3.5}}, 3, 9)), (Segments{2, -1, -1}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0.5, 2}, {3, 4.5}}, 3, 9)), (Segments{-1, 2, 3}));
}

TEST(SegmentMapFromPosMap, OfARunOfOneNumberEverySecondEntryGoes)
{
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 3}, {3, 4}}, 3, 5)), (Segments{3, -1, 3}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 3}, {4, 4}}, 4, 5)), (Segments{3, -1, 3, -1}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 3}, {5, 4}}, 5, 5)), (Segments{3, -1, 3, -1, 3}));
}

TEST(SegmentMapFromPosMap, AtAJumpTheFirstImageCounts)
{
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 2, 4)), (Segments{0, 1}));
}

TEST(SegmentMapFromPosMap, TheRemainderHasTheSignOfTheImage)
{
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, -2}, {1, -1}}, 1, 4)), (Segments{-2}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, -5.5}, {1, -5}}, 1, 4)), (Segments{-1}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 9.5}, {1, 10}}, 1, 4)), (Segments{1}));
    // INT_MAX is 7 * 306783378 + 1.
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 1e300}, {1, 1e300}}, 1, 7)), (Segments{1}));
}

TEST(SegmentMapFromPosMap, WithoutImagesOrSegmentsThereAreNone)
{
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 0}, {2, 2}, {1, 3}}, 3, 4)), (Segments{-1, -1, -1}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 3}, {2, 3}}, 2, 0)), (Segments{-1, -1}));
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(NoMap()), Segments{});
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({{0, 1}}, -3, 4)), Segments{});
    // Without joints every position is its own image.
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Map({}, 3, 2)), (Segments{0, 1, 0}));
}

TEST(SegmentMapFromPosMap, GivesBackTheSegmentMapItWasMadeFrom)
{
    for (const Segments& segments : {Segments{0, 1, 2}, Segments{4, 5, 7}, Segments{2, 3, 8}, Segments{6}})
    {
        EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Generate::GeneratePosMapFromSegmentMap(segments, 9)).front(),
                  segments.front());
    }
    EXPECT_EQ(Generate::GetSegmentMapFronPosMap(Generate::GeneratePosMapFromSegmentMap({4, 5, 6}, 9)),
              (Segments{4, 5, 6}));
}

TEST(PosMapFromRanges, NeighboursThatFollowOneAnotherMakeOneStretch)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {1, 2}, {2, 3}}, 3), Map({{0, 0}, {3, 3}}, 3, 3));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {1, 3}, {3.5, 4}}, 5),
              Map({{0, 0}, {1, 1}, {2, 3}, {2, 3.5}, {3, 4}}, 3, 5));
}

TEST(PosMapFromRanges, EqualNeighboursShareTheirStretch)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{1, 2}, {1, 2}}, 4), Map({{0, 1}, {2, 2}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{3, 1}, {3, 1}}, 4), Map({{0, 3}, {2, 5}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {1, 2}, {1, 2}, {2, 4}}, 4),
              Map({{0, 0}, {1, 1}, {3, 2}, {4, 4}}, 4, 4));
}

TEST(PosMapFromRanges, EachIsComparedWithItsNeighbourAndTheFirstOfThemIsRead)
{
    // 0, 0.6e-9 and 1.2e-9 are near their neighbours, the last is not near the first.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {6e-10, 1}, {12e-10, 1}}, 4),
              Map({{0, 0}, {3, 1}}, 3, 4));
    // Whole ranges are equal wherever they begin.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{1, 1}, {3, 3}}, 4), Map({{0, 1}, {2, 1}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {1, 1}, {3, 3}}, 4),
              Map({{0, 0}, {1, 1}, {3, 1}}, 3, 4));
    // Equal ranges that are no neighbours stay apart.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {2, 3}, {0, 1}}, 4),
              Map({{0, 0}, {1, 1}, {1, 2}, {2, 3}, {2, 4}, {3, 5}}, 3, 4));
}

TEST(PosMapFromRanges, WithoutImagesEverythingCollapsesAtZero)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({Missing, Missing}, 4), Map({{0, 0}, {2, 0}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({Missing}, 4), Map({{0, 0}, {1, 0}}, 1, 4));
}

TEST(PosMapFromRanges, ASingleGroupIsTakenAsItIs)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{2, 2}}, 4), Map({{0, 2}, {1, 2}}, 1, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{2 + 5e-10, 2}}, 4), Map({{0, 2 + 5e-10}, {1, 6}}, 1, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{2, 2 + 5e-10}}, 4), Map({{0, 2}, {1, 2 + 5e-10}}, 1, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{3, 0}}, 4), Map({{0, 3}, {1, 4}}, 1, 4));
}

TEST(PosMapFromRanges, AMissingRangeCollapsesOntoTheStartOfWhatFollows)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({Missing, {1, 2}, {2, 3}}, 4),
              Map({{0, 1}, {1, 1}, {3, 3}}, 3, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{1, 2}, Missing, {3, 4}}, 4),
              Map({{0, 1}, {1, 2}, {1, 3}, {2, 3}, {3, 4}}, 3, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{1, 2}, Missing, Missing, {3, 4}}, 5),
              Map({{0, 1}, {1, 2}, {1, 3}, {3, 3}, {4, 4}}, 4, 5));
}

TEST(PosMapFromRanges, AtTheEndAMissingRangeCollapsesOntoTheEndOfWhatCameBefore)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{1, 2}, Missing}, 4), Map({{0, 1}, {1, 2}, {2, 2}}, 2, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 2}, {2, 3}, Missing, Missing}, 4),
              Map({{0, 0}, {1, 2}, {2, 3}, {4, 3}}, 4, 4));
}

TEST(PosMapFromRanges, OverTheSeamTheDestinationGoesOnForALap)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{3, 4}, {0, 1}, {1, 2}}, 4), Map({{0, 3}, {3, 6}}, 3, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{2, 3}, {3, 1}, {1, 2}}, 4),
              Map({{0, 2}, {1, 3}, {2, 5}, {3, 6}}, 3, 4));
    // An equal position is not below the one before it.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{1, 2}, {2, 2}, {2, 4}}, 4),
              Map({{0, 1}, {1, 2}, {2, 2}, {3, 4}}, 3, 4));
}

TEST(PosMapFromRanges, AWalkOfTwoLapsIsLiftedOnlyOnce)
{
    // 3, 4, 1, 2, 0, 1: 1 and 2 come to 5 and 6, then 0 to 4, which is still below; 1 to 5.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{3, 4}, {1, 2}, {0, 1}}, 4),
              Map({{0, 3}, {1, 4}, {1, 5}, {2, 6}, {2, 4}, {3, 5}}, 3, 4));
}

TEST(PosMapFromRanges, OnlyAStartOfExactlyMinusOneIsMissing)
{
    // Other invalid ranges are read as they are, and so is one with an end of its own; below what came before they are
    // lifted like any other.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{-2, -2}}, 4), Map({{0, -2}, {1, -2}}, 1, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{-1, 3}}, 4), Map({{0, 0}, {1, 0}}, 1, 4));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{0, 1}, {-2, -1}}, 4),
              Map({{0, 0}, {1, 1}, {1, 2}, {2, 3}}, 2, 4));
    // Of equal invalid ranges the first decides.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({{-1, -1}, {-2, -2}, {2, 3}}, 4),
              Map({{0, 2}, {2, 2}, {3, 3}}, 3, 4));
}

TEST(PosMapFromRanges, OfNoRangesThereIsNothing)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRangeVec({}, 4), NoMap());
}

TEST(PosMapFromRangeToPosition, AStretchCollapses)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos({1, 3}, 2.5, 4, 5), Map({{1, 2.5}, {3, 2.5}}, 4, 5));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos({3, 1}, 2.5, 4, 5), Map({{3, 2.5}, {1, 2.5}}, 4, 5));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos({0, Tolerance}, 2, 4, 5), Map({{0, 2}, {Tolerance, 2}}, 4, 5));
}

TEST(PosMapFromRangeToPosition, OfAWholeRangeItsPlaceAndTheCountAreDropped)
{
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos({1, 1}, 2.5, 4, 5), Map({{0, 2.5}}, 0, 5));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos({1, 1 + 5e-10}, 2.5, 4, 5), Map({{0, 2.5}}, 0, 5));
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos({0, JustBelowTolerance}, 2.5, 4, 5), Map({{0, 2.5}}, 0, 5));
    // Two equal invalid ends are near each other too.
    EXPECT_EQ(Generate::GeneratePosMapFromPosRange2Pos(Missing, 2.5, 4, 5), Map({{0, 2.5}}, 0, 5));
}

TEST(PosMapOfACutPiece, OfWholeSegmentsIsOneStretch)
{
    EXPECT_EQ(Cut({1, 3}, 4), Map({{0, 1}, {2, 3}}, 2, 4));
    EXPECT_EQ(Cut({0, 4}, 4), Map({{0, 0}, {4, 4}}, 4, 4));
    EXPECT_EQ(Cut({2, 3}, 7), Map({{0, 2}, {1, 3}}, 1, 7));
}

TEST(PosMapOfACutPiece, EveryPartOfASegmentIsASegmentOfThePiece)
{
    EXPECT_EQ(Cut({1.5, 3.25}, 4), Map({{0, 1.5}, {1, 2}, {2, 3}, {3, 3.25}}, 3, 4));
    EXPECT_EQ(Cut({2.5, 2.7}, 4), Map({{0, 2.5}, {1, 2.7}}, 1, 4));
    EXPECT_EQ(Cut({2, 2.5}, 4), Map({{0, 2}, {1, 2.5}}, 1, 4));
    EXPECT_EQ(Cut({2.5, 3}, 4), Map({{0, 2.5}, {1, 3}}, 1, 4));
    EXPECT_EQ(Cut({0.5, 3.5}, 4), Map({{0, 0.5}, {1, 1}, {3, 3}, {4, 3.5}}, 4, 4));
}

TEST(PosMapOfACutPiece, OverTheSeamItCountsOn)
{
    EXPECT_EQ(Cut({3.5, 1.5}, 4), Map({{0, 3.5}, {1, 4}, {2, 5}, {3, 5.5}}, 3, 4));
    EXPECT_EQ(Cut({3, 1}, 4), Map({{0, 3}, {2, 5}}, 2, 4));
    EXPECT_EQ(Cut({3.5, 0}, 4), Map({{0, 3.5}, {1, 4}}, 1, 4));
    EXPECT_EQ(Cut({3.5, 0.25}, 4), Map({{0, 3.5}, {1, 4}, {2, 4.25}}, 2, 4));
    // Equal parts before and after the seam lie on one line.
    EXPECT_EQ(Cut({3.75, 0.25}, 4), Map({{0, 3.75}, {2, 4.25}}, 2, 4));
    // Round the loop to a place a little before the start, on the same segment.
    EXPECT_EQ(Cut({1.5, 1.25}, 2), Map({{0, 1.5}, {1, 2}, {2, 3}, {3, 3.25}}, 3, 2));
}

TEST(PosMapOfACutPiece, AnEndNearANodeEndsThere)
{
    EXPECT_EQ(Cut({1.5, 3 + 5e-10}, 4), Map({{0, 1.5}, {1, 2}, {2, 3}}, 2, 4));
    const double below = 3 - 5e-10;
    EXPECT_EQ(Cut({1.5, below}, 4), Map({{0, 1.5}, {1, 2}, {2, below}}, 2, 4));
}

TEST(PosMapOfACutPiece, BelowZeroSegmentsAreCutTowardsZero)
{
    // -2.5 lies on the segment -2 and -1.5 on the segment -1, whose node lies beyond the end already.
    EXPECT_EQ(Cut({-2.5, -1.5}, 4), Map({{0, -2.5}, {1, -1}}, 1, 4));
}

TEST(PosMapOfACutPiece, OfTheWholeLoopIsASinglePlace)
{
    EXPECT_EQ(Cut({2, 2}, 4), Map({{0, 2}}, 0, 4));
    const double end = 2 + 5e-10;
    EXPECT_EQ(Cut({2, end}, 4), Map({{0, end}}, 0, 4));
    EXPECT_EQ(Cut({0, JustBelowTolerance}, 4), Map({{0, JustBelowTolerance}}, 0, 4));
    EXPECT_EQ(Cut({0, 4}, 4).PosPairs().size(), 2U);
}

TEST(PosMapOfACutPiece, TheCountIsTakenBeforeStraightJointsGo)
{
    EXPECT_EQ(Cut({0, 9}, 9), Map({{0, 0}, {9, 9}}, 9, 9));
    EXPECT_EQ(Cut({7, 5}, 9), Map({{0, 7}, {7, 14}}, 7, 9));
}

TEST(PosMapOfACutPiece, WithoutPositionsForEndsThereIsNoPiece)
{
    EXPECT_EQ(Cut({NaN, 2}, 4), NoMap());
    EXPECT_EQ(Cut({2, NaN}, 4), NoMap());
    EXPECT_EQ(Cut({1, 1e300}, 4), NoMap());
    EXPECT_EQ(Cut({0.5, Infinite}, 4), NoMap());
}
