#include "support/Ranges.h"

using namespace math;
using namespace math::test;

// Two forward ranges: (2, 5) and others

TEST(RangeUnion, RangesApartStayTwoInTheOrderOfTheOperands)
{
    EXPECT_EQ(Union({1, 2}, {3, 4}), Pieces({{1, 2}, {3, 4}}));
    EXPECT_EQ(Union({3, 4}, {1, 2}), Pieces({{3, 4}, {1, 2}}));
}

TEST(RangeUnion, RangesThatTouchMergeOnlyAtTheStartOfTheFirst)
{
    EXPECT_EQ(Union({2, 3}, {1, 2}), Pieces({{1, 3}}));
    EXPECT_EQ(Union({1, 2}, {2, 3}), Pieces({{1, 2}, {2, 3}}));
}

TEST(RangeUnion, AtTheStartTouchingHasAToleranceUpwardOnly)
{
    EXPECT_EQ(Union({2, 5}, {0, LastNearAbove(2)}), Pieces({{0, 5}}));
    EXPECT_EQ(Union({2, 5}, {0, FirstClearAbove(2)}), Pieces({{0, 5}}));
    EXPECT_EQ(Union({2, 5}, {0, JustBelow(2)}), Pieces({{2, 5}, {0, JustBelow(2)}}));
    EXPECT_EQ(Union({2, 5}, {0, LastNearBelow(2)}), Pieces({{2, 5}, {0, LastNearBelow(2)}}));
}

TEST(RangeUnion, AtTheEndRangesMergeOnlyWhereTheyOverlapWithoutTolerance)
{
    EXPECT_EQ(Union({2, 5}, {JustBelow(5), 7}), Pieces({{2, 7}}));
    EXPECT_EQ(Union({2, 5}, {JustAbove(5), 7}), Pieces({{2, 5}, {JustAbove(5), 7}}));
    EXPECT_EQ(Union({2, 5}, {LastNearAbove(5), 7}), Pieces({{2, 5}, {LastNearAbove(5), 7}}));
}

TEST(RangeUnion, OverlappingRangesMerge)
{
    EXPECT_EQ(Union({1, 3}, {2, 4}), Pieces({{1, 4}}));
    EXPECT_EQ(Union({2, 4}, {1, 3}), Pieces({{1, 4}}));
    EXPECT_EQ(Union({2, 5}, {FirstClearAbove(2), 7}), Pieces({{2, 7}}));
    EXPECT_EQ(Union({2, 5}, {1, 4.5}), Pieces({{1, 5}}));
}

TEST(RangeUnion, TheFirstSwallowsWhatItCovers)
{
    EXPECT_EQ(Union({1, 4}, {2, 3}), Pieces({{1, 4}}));
    EXPECT_EQ(Union({2, 5}, {3, 5}), Pieces({{2, 5}}));
    EXPECT_EQ(Union({2, 5}, {3, LastNearAbove(5)}), Pieces({{2, 5}}));
    EXPECT_EQ(Union({2, 5}, {3, FirstClearAbove(5)}), Pieces({{2, FirstClearAbove(5)}}));
    EXPECT_EQ(Union({2, 5}, {FirstClearAbove(2), 4}), Pieces({{2, 5}}));
    EXPECT_EQ(Union({0, 5}, {Tolerance, 4}), Pieces({{0, 5}}));
}

TEST(RangeUnion, AStartNearTheFirstOneBecomesTheStart)
{
    EXPECT_EQ(Union({2, 5}, {2, 4}), Pieces({{2, 5}}));
    EXPECT_EQ(Union({2, 5}, {LastNearAbove(2), 4}), Pieces({{LastNearAbove(2), 5}}));
    EXPECT_EQ(Union({2, 5}, {LastNearBelow(2), 4}), Pieces({{LastNearBelow(2), 5}}));
    EXPECT_EQ(Union({2, 5}, {LastNearAbove(2), LastNearAbove(5)}), Pieces({{LastNearAbove(2), 5}}));
    EXPECT_EQ(Union({2, 5}, {1, LastNearAbove(5)}), Pieces({{1, 5}}));
    EXPECT_EQ(Union({0, 5}, {JustBelowTolerance, 4}), Pieces({{JustBelowTolerance, 5}}));
}

TEST(RangeUnion, TheSecondSwallowsWhatItCovers)
{
    EXPECT_EQ(Union({2, 5}, {1, 7}), Pieces({{1, 7}}));
    EXPECT_EQ(Union({2, 5}, {2, 7}), Pieces({{2, 7}}));
    EXPECT_EQ(Union({2, 5}, {LastNearAbove(2), 7}), Pieces({{LastNearAbove(2), 7}}));
    EXPECT_EQ(Union({0, 5}, {JustBelowTolerance, 7}), Pieces({{JustBelowTolerance, 7}}));
    EXPECT_EQ(Union({0, 5}, {Tolerance, 7}), Pieces({{0, 7}}));
    EXPECT_EQ(Union({2, 5}, {1, FirstClearAbove(5)}), Pieces({{1, FirstClearAbove(5)}}));
}

TEST(RangeUnion, EqualRangesAreOne)
{
    EXPECT_EQ(Union({2, 5}, {2, 5}), Pieces({{2, 5}}));
    EXPECT_EQ(Union({3, 1}, {3, 1}), Pieces({{3, 1}}));
}

// Invalid and whole ranges

TEST(RangeUnion, AnInvalidRangeAddsNothing)
{
    for (const PosRangeD& invalid : {PosRangeD(), PosRangeD(NaN, 2), PosRangeD(1, NaN), PosRangeD(-2e-9, 2)})
    {
        for (const PosRangeD& range : {PosRangeD(2, 5), PosRangeD(3, 1), PosRangeD(2, 2)})
        {
            EXPECT_EQ(Union(range, invalid), Pieces({range}));
            EXPECT_EQ(Union(invalid, range), Pieces({range}));
        }
        EXPECT_EQ(Union(invalid, PosRangeD()), Nothing());
        EXPECT_EQ(Union(PosRangeD(), invalid), Nothing());
    }
}

TEST(RangeUnion, AWholeRangeSwallowsTheOther)
{
    for (const PosRangeD& whole : {PosRangeD(1, 1), PosRangeD(1, 1 + 5e-10), PosRangeD(1 + 5e-10, 1)})
    {
        for (const PosRangeD& range : {PosRangeD(2, 5), PosRangeD(3, 1)})
        {
            EXPECT_EQ(Union(range, whole), Pieces({whole}));
            EXPECT_EQ(Union(whole, range), Pieces({whole}));
        }
    }
}

TEST(RangeUnion, OfTwoWholeRangesTheFirstStays)
{
    EXPECT_EQ(Union({1, 1}, {2, 2}), Pieces({{1, 1}}));
    EXPECT_EQ(Union({2, 2}, {1, 1}), Pieces({{2, 2}}));
}

TEST(RangeUnion, EndsAWholeToleranceApartMakeNoLoop)
{
    EXPECT_EQ(Union({2, 3}, {0, Tolerance}), Pieces({{2, 3}, {0, Tolerance}}));
    EXPECT_EQ(Union({2, 3}, {0, JustBelowTolerance}), Pieces({{0, JustBelowTolerance}}));
    EXPECT_EQ(Union({-1e-9, 3}, PosRangeD()), Pieces({{-1e-9, 3}}));
}

// A forward and a wrapping range, in either order

namespace
{

/// Which of the two wraps makes no difference.
void ExpectUnionEitherWay(const PosRangeD& forward, const PosRangeD& wrapping, const RangeList& expected)
{
    EXPECT_EQ(Union(forward, wrapping), expected);
    EXPECT_EQ(Union(wrapping, forward), expected);
}

} // namespace

TEST(RangeUnion, AForwardRangeLengthensAWrappingOneAtItsStart)
{
    ExpectUnionEitherWay({2.5, 3.5}, {3, 0.5}, Pieces({{2.5, 0.5}}));
    ExpectUnionEitherWay({1, JustAbove(3)}, {3, 0.5}, Pieces({{1, 0.5}}));
}

TEST(RangeUnion, AForwardRangeBeforeTheSeamOfAWrappingOneIsSwallowed)
{
    ExpectUnionEitherWay({3.25, 3.75}, {3, 1}, Pieces({{3, 1}}));
    ExpectUnionEitherWay({3, 3.75}, {3, 1}, Pieces({{3, 1}}));
    // Starts near each other: the one of the wrapping range is kept.
    ExpectUnionEitherWay({LastNearBelow(3), 3.75}, {3, 1}, Pieces({{3, 1}}));
    ExpectUnionEitherWay({FirstClearBelow(3), 3.75}, {3, 1}, Pieces({{FirstClearBelow(3), 1}}));
}

TEST(RangeUnion, AForwardRangePastTheSeamOfAWrappingOneStaysARangeOfItsOwn)
{
    ExpectUnionEitherWay({0.2, 0.4}, {3, 0.5}, Pieces({{0.2, 0.4}, {3, 0.5}}));
    ExpectUnionEitherWay({0, 2}, {3, 1}, Pieces({{0, 2}, {3, 1}}));
    ExpectUnionEitherWay({0, 0.5}, {3, 0.5}, Pieces({{0, 0.5}, {3, 0.5}}));
}

TEST(RangeUnion, AForwardRangeInTheGapOfAWrappingOneStaysARangeOfItsOwn)
{
    ExpectUnionEitherWay({1.5, 2}, {3, 1}, Pieces({{1.5, 2}, {3, 1}}));
    ExpectUnionEitherWay({1, 2}, {3, 1}, Pieces({{1, 2}, {3, 1}}));
    ExpectUnionEitherWay({2, 3}, {3, 1}, Pieces({{2, 3}, {3, 1}}));
    ExpectUnionEitherWay({1, 3}, {3, 1}, Pieces({{1, 3}, {3, 1}}));
}

TEST(RangeUnion, RangesThatGoRightRoundMakeAWholeRangeFromTheStartOfTheWrappingOne)
{
    ExpectUnionEitherWay({1, 3}, {2, 1.5}, Pieces({{2, 2}}));
    ExpectUnionEitherWay({0.5, 3.5}, {3, 1}, Pieces({{3, 3}}));
}

TEST(RangeUnion, ExactlyOneLapIsNotMoreThanOne)
{
    // Unrolled by 5, (3, 6) joins (1, 3.5) to (1, 6): one lap, and the end comes back to the start by itself.
    ExpectUnionEitherWay({1, 3.5}, {3, 1}, Pieces({{1, 1}}));
    ExpectUnionEitherWay({1, 3.5}, {3, JustAbove(1)}, Pieces({{1, 1}}));
    // One unit in the last place of 6 more is more than a lap.
    ExpectUnionEitherWay({1, 3.5}, {3, 1 + 0x1p-50}, Pieces({{3, 3}}));
}

TEST(RangeUnion, AWrappingRangeThatEndsOnTheSeamKeepsItsEnd)
{
    ExpectUnionEitherWay({2, 3.5}, {3, 0}, Pieces({{2, 0}}));
    ExpectUnionEitherWay({0, 2}, {3, 0}, Pieces({{0, 2}, {3, 0}}));
    ExpectUnionEitherWay({0, 3.5}, {3, 0}, Pieces({{0, 0}}));
}

TEST(RangeUnion, TheEndOfAMergedRangeComesBackByTheLengthItWasRaisedBy)
{
    ExpectUnionEitherWay({2.9, 3.1}, {3, 0.3}, Pieces({{2.9, (0.3 + 5) - 5}}));
    // 4 is whole, so the length is 5 as well.
    ExpectUnionEitherWay({2.9, 4}, {3, 0.3}, Pieces({{2.9, (0.3 + 5) - 5}}));
    ExpectUnionEitherWay({2.9, 4.1}, {3, 0.7}, Pieces({{2.9, (0.7 + 6) - 6}}));
}

// Two wrapping ranges

TEST(RangeUnion, TwoWrappingRangesMerge)
{
    EXPECT_EQ(Union({3, 1}, {3.5, 0.5}), Pieces({{3, 1}}));
    EXPECT_EQ(Union({3.5, 0.5}, {3, 1}), Pieces({{3, 1}}));
    EXPECT_EQ(Union({3, 0.5}, {3.5, 1}), Pieces({{3, 1}}));
    EXPECT_EQ(Union({3.5, 1}, {3, 0.5}), Pieces({{3, 1}}));
    EXPECT_EQ(Union({3, 2}, {2.5, 1}), Pieces({{2.5, 2}}));
}

TEST(RangeUnion, TwoWrappingRangesThatEndOnTheSeamMerge)
{
    EXPECT_EQ(Union({3, 0}, {3.5, 0}), Pieces({{3, 0}}));
    EXPECT_EQ(Union({3.5, 0}, {3, 0}), Pieces({{3, 0}}));
}

TEST(RangeUnion, TwoWrappingRangesThatGoRightRoundMakeAWholeRangeFromTheStartOfTheSecond)
{
    EXPECT_EQ(Union({2, 1}, {3, 2.5}), Pieces({{3, 3}}));
    EXPECT_EQ(Union({3, 2.5}, {2, 1}), Pieces({{2, 2}}));
}

TEST(RangeUnion, TwoWrappingRangesOfExactlyOneLap)
{
    // Unrolled by 4: (2, 4.5) and (3, 6) make (2, 6).
    EXPECT_EQ(Union({2, 0.5}, {3, 2}), Pieces({{2, 2}}));
    EXPECT_EQ(Union({3, 2}, {2, 0.5}), Pieces({{2, 2}}));
    EXPECT_EQ(Union({2, 0.5}, {3, 2 + 0x1p-50}), Pieces({{3, 3}}));
}

TEST(RangeUnion, TheEndOfTwoMergedWrappingRangesComesBackByTheLengthItWasRaisedBy)
{
    EXPECT_EQ(Union({3.2, 0.1}, {3.7, 0.3}), Pieces({{3.2, (0.3 + 5) - 5}}));
    EXPECT_EQ(Union({3.7, 0.1}, {3.2, 0.3}), Pieces({{3.2, (0.3 + 5) - 5}}));
}
