#include "support/Ranges.h"

using namespace math;
using namespace math::test;

// Two forward ranges: (2, 5) minus others

TEST(RangeDifference, WhatLiesBeforeTakesNothing)
{
    EXPECT_EQ(Difference({2, 5}, {0, 1}), Pieces({{2, 5}}));
    EXPECT_EQ(Difference({2, 5}, {0.5, 2}), Pieces({{2, 5}}));
    EXPECT_EQ(Difference({2, 5}, {0, JustBelow(2)}), Pieces({{2, 5}}));
}

TEST(RangeDifference, WhatReachesInByLessThanTheToleranceTakesNothing)
{
    EXPECT_EQ(Difference({2, 5}, {0, LastNearAbove(2)}), Pieces({{2, 5}}));
    EXPECT_EQ(Difference({2, 5}, {0, FirstClearAbove(2)}), Pieces({{FirstClearAbove(2), 5}}));
    EXPECT_EQ(Difference({0, 5}, {-1e-9, JustBelowTolerance}), Pieces({{0, 5}}));
    EXPECT_EQ(Difference({0, 5}, {-1e-9, Tolerance}), Pieces({{Tolerance, 5}}));
}

TEST(RangeDifference, WhatLiesPastTheEndTakesNothing)
{
    EXPECT_EQ(Difference({1, 2}, {3, 4}), Pieces({{1, 2}}));
    EXPECT_EQ(Difference({2, 5}, {5, 7}), Pieces({{2, 5}}));
    EXPECT_EQ(Difference({2, 5}, {JustAbove(5), 7}), Pieces({{2, 5}}));
}

TEST(RangeDifference, AStartBelowTheEndIsComparedWithoutTolerance)
{
    EXPECT_EQ(Difference({2, 5}, {JustBelow(5), 7}), Pieces({{2, JustBelow(5)}}));
    EXPECT_EQ(Difference({2, 5}, {LastNearBelow(5), 7}), Pieces({{2, LastNearBelow(5)}}));
}

TEST(RangeDifference, AStretchInsideLeavesTwoPieces)
{
    EXPECT_EQ(Difference({1, 4}, {2, 3}), Pieces({{1, 2}, {3, 4}}));
    EXPECT_EQ(Difference({2, 5}, {2.25, 4.5}), Pieces({{2, 2.25}, {4.5, 5}}));
    EXPECT_EQ(Difference({2, 5}, {FirstClearAbove(2), 4}), Pieces({{2, FirstClearAbove(2)}, {4, 5}}));
    EXPECT_EQ(Difference({0, 5}, {Tolerance, 4}), Pieces({{0, Tolerance}, {4, 5}}));
}

TEST(RangeDifference, AnEndJustInsideLeavesASliver)
{
    EXPECT_EQ(Difference({2, 5}, {3, JustBelow(5)}), Pieces({{2, 3}, {JustBelow(5), 5}}));
    EXPECT_EQ(Difference({2, 5}, {3, LastNearBelow(5)}), Pieces({{2, 3}, {LastNearBelow(5), 5}}));
    EXPECT_EQ(Difference({2, 5}, {1, JustBelow(5)}), Pieces({{JustBelow(5), 5}}));
}

TEST(RangeDifference, TheFrontIsCutOff)
{
    EXPECT_EQ(Difference({1, 4}, {0, 2}), Pieces({{2, 4}}));
    EXPECT_EQ(Difference({2, 5}, {2, 4.5}), Pieces({{4.5, 5}}));
    EXPECT_EQ(Difference({2, 5}, {LastNearAbove(2), 4}), Pieces({{4, 5}}));
    EXPECT_EQ(Difference({2, 5}, {LastNearBelow(2), 4}), Pieces({{4, 5}}));
    EXPECT_EQ(Difference({0, 5}, {JustBelowTolerance, 4}), Pieces({{4, 5}}));
}

TEST(RangeDifference, TheBackIsCutOff)
{
    EXPECT_EQ(Difference({1, 4}, {3, 5}), Pieces({{1, 3}}));
    EXPECT_EQ(Difference({2, 5}, {2.25, 5}), Pieces({{2, 2.25}}));
    EXPECT_EQ(Difference({2, 5}, {2.25, LastNearAbove(5)}), Pieces({{2, 2.25}}));
    EXPECT_EQ(Difference({2, 5}, {2.25, FirstClearAbove(5)}), Pieces({{2, 2.25}}));
    EXPECT_EQ(Difference({2, 5}, {FirstClearAbove(2), 5}), Pieces({{2, FirstClearAbove(2)}}));
    EXPECT_EQ(Difference({2, 5}, {FirstClearAbove(2), 7}), Pieces({{2, FirstClearAbove(2)}}));
    EXPECT_EQ(Difference({0, 5}, {Tolerance, 5}), Pieces({{0, Tolerance}}));
    EXPECT_EQ(Difference({0, 5}, {Tolerance, 6}), Pieces({{0, Tolerance}}));
}

TEST(RangeDifference, WhatIsCoveredIsGone)
{
    EXPECT_EQ(Difference({1, 4}, {0, 5}), Nothing());
    EXPECT_EQ(Difference({2, 5}, {2, 5}), Nothing());
    EXPECT_EQ(Difference({2, 5}, {1, 5}), Nothing());
    EXPECT_EQ(Difference({2, 5}, {2, 7}), Nothing());
}

TEST(RangeDifference, WhatIsCoveredWithinTheToleranceIsGone)
{
    for (double start : {LastNearAbove(2), LastNearBelow(2), FirstClearBelow(2)})
    {
        for (double end : {5.0, JustAbove(5), LastNearAbove(5), FirstClearAbove(5)})
        {
            EXPECT_EQ(Difference({2, 5}, {start, end}), Nothing()) << Text(start) << " to " << Text(end);
        }
    }
    EXPECT_EQ(Difference({0, 5}, {JustBelowTolerance, 5}), Nothing());
    EXPECT_EQ(Difference({0, 5}, {JustBelowTolerance, 6}), Nothing());
}

// Whole ranges

TEST(RangeDifference, ALoopWithoutARangeIsTheRestOfTheLoop)
{
    EXPECT_EQ(Difference({1, 1}, {2, 3}), Pieces({{3, 2}}));
    EXPECT_EQ(Difference({1, 1}, {3, 0.5}), Pieces({{0.5, 3}}));
    EXPECT_EQ(Difference({0, 0}, {0, 2}), Pieces({{2, 0}}));
    EXPECT_EQ(Difference({1, 1 + 5e-10}, {2, 3}), Pieces({{3, 2}}));
    EXPECT_EQ(Difference({1 + 5e-10, 1}, {2, 3}), Pieces({{3, 2}}));
}

TEST(RangeDifference, NothingIsLeftWhenTheLoopIsTaken)
{
    EXPECT_EQ(Difference({2, 3}, {1, 1}), Nothing());
    EXPECT_EQ(Difference({3, 1}, {2, 2}), Nothing());
    EXPECT_EQ(Difference({2, 3}, {1, 1 + 5e-10}), Nothing());
    EXPECT_EQ(Difference({1, 1}, {1, 1}), Nothing());
    EXPECT_EQ(Difference({1, 1}, {2, 2}), Nothing());
    EXPECT_EQ(Difference(PosRangeD(), {2, 2}), Nothing());
    EXPECT_EQ(Difference({NaN, 1}, {2, 2}), Nothing());
}

TEST(RangeDifference, ALoopWithoutAnInvalidRangeIsTheInvalidRange)
{
    EXPECT_EQ(Difference({1, 1}, PosRangeD()), Pieces({{-1, -1}}));
    EXPECT_EQ(Difference({1, 1}, {NaN, 2}), Pieces({{-1, -1}}));
    EXPECT_EQ(Difference({1, 1}, {-2e-9, 2}), Pieces({{-1, -1}}));
}

TEST(RangeDifference, EndsAWholeToleranceApartMakeNoLoop)
{
    EXPECT_EQ(Difference({0, Tolerance}, {2, 3}), Pieces({{0, Tolerance}}));
    EXPECT_EQ(Difference({0, JustBelowTolerance}, {2, 3}), Pieces({{3, 2}}));
    EXPECT_EQ(Difference({2, 3}, {0, Tolerance}), Pieces({{2, 3}}));
    EXPECT_EQ(Difference({2, 3}, {0, JustBelowTolerance}), Nothing());
    // (1e-9, 0) is nearly the whole loop, but it wraps.
    EXPECT_EQ(Difference({2, 3}, {Tolerance, 0}), Nothing());
    EXPECT_EQ(Difference({Tolerance, 0}, {2, 3}), Pieces({{Tolerance, 2}, {3, 4}}));
}

// Two wrapping ranges

TEST(RangeDifference, AWrappingRangeInsideAWrappingOneLeavesTheTwoEnds)
{
    EXPECT_EQ(Difference({3, 1}, {3.5, 0.25}), Pieces({{3, 3.5}, {0.25, 1}}));
    EXPECT_EQ(Difference({3, 1}, {3, 0.25}), Pieces({{0.25, 1}}));
    EXPECT_EQ(Difference({3, 1}, {3.5, 1}), Pieces({{3, 3.5}}));
}

TEST(RangeDifference, AWrappingRangeLosesWhatAnotherCoversOnEitherSide)
{
    EXPECT_EQ(Difference({3, 1}, {3.5, 2}), Pieces({{3, 3.5}}));
    EXPECT_EQ(Difference({3, 1}, {2, 0.25}), Pieces({{0.25, 1}}));
    EXPECT_EQ(Difference({3, 1}, {2, 1.5}), Nothing());
    EXPECT_EQ(Difference({3, 1}, {3, 1}), Nothing());
    EXPECT_EQ(Difference({3.5, 0.5}, {3, 1}), Nothing());
}

TEST(RangeDifference, WrappingRangesThatEndOnTheSeam)
{
    EXPECT_EQ(Difference({3, 0}, {3.5, 0}), Pieces({{3, 3.5}}));
    EXPECT_EQ(Difference({3.5, 0}, {3, 0}), Nothing());
    // Unrolled by 5, the second piece is (5, 6): a start on the length itself stays.
    EXPECT_EQ(Difference({3, 1}, {3.5, 0}), Pieces({{3, 3.5}, {5, 1}}));
}

TEST(RangeDifference, ASecondOverlapOfTwoWrappingRangesOneLapOnIsNotTakenOut)
{
    // Both cover (2, 2.5) as well, which the second does with its start and the first with its end.
    EXPECT_EQ(Difference({3, 2.5}, {2, 1}), Pieces({{1, 2.5}}));
    EXPECT_EQ(Difference({2, 1}, {3, 2.5}), Pieces({{2, 3}}));
}

TEST(RangeDifference, EndsOfUnrolledRangesComeBackByTheLengthTheyWereRaisedBy)
{
    // The length is 5, the next whole number above 3.7, plus 1.
    EXPECT_EQ(Difference({3.1, 1.3}, {3.7, 0.3}), Pieces({{3.1, 3.7}, {(0.3 + 5) - 5, (1.3 + 5) - 5}}));
    EXPECT_NE((0.3 + 5) - 5, 0.3);
    // A greatest end that is whole is its own next whole number: the length is 4.
    EXPECT_EQ(Difference({3, 1.1}, {2.5, 0.1}), Pieces({{(0.1 + 4) - 4, (1.1 + 4) - 4}}));
}

// A wrapping range minus a forward one

TEST(RangeDifference, AWrappingRangeIsBittenBeforeTheSeam)
{
    EXPECT_EQ(Difference({3, 1}, {2, 3.5}), Pieces({{3.5, 1}}));
    EXPECT_EQ(Difference({3, 1}, {3.2, 3.4}), Pieces({{3, 3.2}, {3.4, 1}}));
    EXPECT_EQ(Difference({3, 1}, {3, 3.5}), Pieces({{3.5, 1}}));
    EXPECT_EQ(Difference({3, 1}, {LastNearAbove(3), 3.5}), Pieces({{3.5, 1}}));
}

TEST(RangeDifference, AWrappingRangeIsBittenPastTheSeam)
{
    EXPECT_EQ(Difference({3, 1}, {0.5, 2}), Pieces({{3, 0.5}}));
    EXPECT_EQ(Difference({3, 1}, {0.25, 0.75}), Pieces({{3, 0.25}, {0.75, 1}}));
    EXPECT_EQ(Difference({3, 1}, {0.25, 1}), Pieces({{3, 0.25}}));
    // Unrolled by 4: the piece past the seam ends on 4, and stays there.
    EXPECT_EQ(Difference({3, 1}, {0, 0.5}), Pieces({{3, 4}, {0.5, 1}}));
    EXPECT_EQ(Difference({3, 1}, {0, 1}), Pieces({{3, 4}}));
}

TEST(RangeDifference, AWrappingRangeIsBittenAtBothEnds)
{
    EXPECT_EQ(Difference({3, 1}, {0.5, 3.5}), Pieces({{3.5, 0.5}}));
    EXPECT_EQ(Difference({3, 0.5}, {0, 4}), Pieces({{4, 5}}));
    EXPECT_EQ(Difference({3, 1}, {0, 3.5}), Pieces({{3.5, 5}}));
}

TEST(RangeDifference, AForwardRangeThatFillsTheGapOrLessTakesNothing)
{
    EXPECT_EQ(Difference({3, 1}, {1, 3}), Pieces({{3, 1}}));
    EXPECT_EQ(Difference({3, 1}, {1.5, 2}), Pieces({{3, 1}}));
    EXPECT_EQ(Difference({3, 1}, {1, LastNearAbove(3)}), Pieces({{3, 1}}));
    EXPECT_EQ(Difference({3, 1}, {1, FirstClearAbove(3)}), Pieces({{FirstClearAbove(3), 1}}));
}

TEST(RangeDifference, AnEndOnTheSeamComesBackAsTheUnrollLength)
{
    // 3 and 4 are no counts: the greatest end in play is 3, and one more is 4.
    EXPECT_EQ(Difference({3, 0}, {1, 2}), Pieces({{3, 4}}));
    EXPECT_EQ(Difference({3, 0}, {0, 1}), Pieces({{3, 4}}));
    EXPECT_EQ(Difference({3, 0}, {1, 6.5}), Pieces({{6.5, 8}}));
    EXPECT_EQ(Difference({3, 0}, {3.25, 3.5}), Pieces({{3, 3.25}, {3.5, 5}}));
}

TEST(RangeDifference, PiecesOfAWrappingRangeAreFoldedBackWithTheirRounding)
{
    EXPECT_EQ(Difference({3, 1.3}, {0.2, 0.4}), Pieces({{3, (0.2 + 4) - 4}, {(0.4 + 4) - 4, (1.3 + 4) - 4}}));
    EXPECT_EQ(Difference({3.1, 0.3}, {2, 3.3}), Pieces({{3.3, (0.3 + 5) - 5}}));
}

// A forward range minus a wrapping one

TEST(RangeDifference, AForwardRangeIsBittenByThePartPastTheSeam)
{
    EXPECT_EQ(Difference({1, 2}, {3, 1.5}), Pieces({{1.5, 2}}));
    EXPECT_EQ(Difference({0, 2}, {3, 0.25}), Pieces({{0.25, 2}}));
    EXPECT_EQ(Difference({1, 2}, {3, FirstClearAbove(1)}), Pieces({{FirstClearAbove(1), 2}}));
    EXPECT_EQ(Difference({1, 2}, {3, LastNearAbove(1)}), Pieces({{1, 2}}));
}

TEST(RangeDifference, AForwardRangeIsBittenByThePartBeforeTheSeam)
{
    EXPECT_EQ(Difference({2, 3.5}, {3, 1}), Pieces({{2, 3}}));
    EXPECT_EQ(Difference({1, 4}, {3, 0}), Pieces({{1, 3}}));
    EXPECT_EQ(Difference({0, 4}, {3, 0}), Pieces({{0, 3}}));
}

TEST(RangeDifference, AForwardRangeIsBittenAtBothEnds)
{
    EXPECT_EQ(Difference({0, 4}, {3, 1}), Pieces({{1, 3}}));
    EXPECT_EQ(Difference({0.5, 3.3}, {3.1, 1.7}), Pieces({{1.7, 3.1}}));
}

TEST(RangeDifference, AForwardRangeInsideAWrappingOneIsGone)
{
    EXPECT_EQ(Difference({0.25, 0.75}, {3, 1}), Nothing());
    EXPECT_EQ(Difference({0, 1}, {3, 1}), Nothing());
    EXPECT_EQ(Difference({3.25, 3.75}, {3, 1}), Nothing());
    EXPECT_EQ(Difference({3, 3.75}, {3, 0}), Nothing());
}

TEST(RangeDifference, AForwardRangeInTheGapOfAWrappingOneStays)
{
    EXPECT_EQ(Difference({1, 3}, {3, 1}), Pieces({{1, 3}}));
    EXPECT_EQ(Difference({1.5, 2}, {3, 1}), Pieces({{1.5, 2}}));
    EXPECT_EQ(Difference({0, 2}, {3, 0}), Pieces({{0, 2}}));
}

// Invalid ranges: not tested for, whatever is neither whole nor forward is unrolled

TEST(RangeDifference, InvalidRangesGoTheWayOfTheirNumbers)
{
    // Unrolled by 3, (-1, -1) is (-1, 2).
    EXPECT_EQ(Difference(PosRangeD(), {1, 2}), Pieces({{-1, 1}}));
    EXPECT_EQ(Difference({1, 2}, PosRangeD()), Nothing());
    EXPECT_EQ(Difference({1, 4}, PosRangeD()), Nothing());
    // Unrolled by -1 + 1, it is itself; the result lies before itself and stays.
    EXPECT_EQ(Difference(PosRangeD(), PosRangeD()), Pieces({{-1, -1}}));
    // A forward one below 0 is taken as a forward one.
    EXPECT_EQ(Difference({-3, 2}, {-1, 1}), Pieces({{-3, -1}, {1, 2}}));
    EXPECT_EQ(Difference({0, 4}, {-1, 1}), Pieces({{1, 4}}));
    EXPECT_EQ(Difference({0, 4}, {-3, -1}), Pieces({{0, 4}}));
}

TEST(RangeDifference, OfTwoPiecesBelowTheSeamOnlyTheFirstGoesOn)
{
    // Unrolled by 4, (3, 1) is (-1, 1) one lap down, which leaves (-10, -1) and (1, 2).
    EXPECT_EQ(Difference({-10, 2}, {3, 1}), Pieces({{-10, -1}}));
}

TEST(RangeDifference, AnUnrolledRangeThatIsCoveredAtOnceLeavesNothing)
{
    // Unrolled by 6, (-1, -1) is (-1, 5).
    EXPECT_EQ(Difference(PosRangeD(), {-2, 5}), Nothing());
}

TEST(RangeDifference, AStretchShorterThanTheToleranceAtTheEndStillCutsThere)
{
    // Such a stretch is a whole range unless it is invalid.
    EXPECT_EQ(Difference({-5, -2}, {-2 + 1e-10, -2 + 5e-10}), Pieces({{-5, -2 + 1e-10}}));
}

TEST(RangeDifference, RangesThatAreNoNumbersLeaveAtMostTwoPieces)
{
    for (const PosRangeD& other : {PosRangeD(1, 3), PosRangeD(3, 1), PosRangeD(), PosRangeD(NaN, NaN)})
    {
        for (const PosRangeD& broken : {PosRangeD(NaN, 2), PosRangeD(2, NaN), PosRangeD(NaN, NaN)})
        {
            EXPECT_LE((other - broken).size(), 2U);
            EXPECT_LE((broken - other).size(), 2U);
        }
    }
}

TEST(RangeDifference, RangesWithoutEndAreComparedLikeAnyOther)
{
    EXPECT_EQ(Difference({0, Infinite}, {1, 2}), Pieces({{0, 1}, {2, Infinite}}));
    EXPECT_EQ(Difference({0, Infinite}, {1, Infinite}), Pieces({{0, 1}}));
    EXPECT_EQ(Difference({0, 2}, {1, Infinite}), Pieces({{0, 1}}));
    // Infinite starts are not near each other, so the second does not reach below the first.
    EXPECT_EQ(Difference({-Infinite, 4}, {-Infinite, 1}), Pieces({{-Infinite, -Infinite}, {1, 4}}));
}
