#include "support/Ranges.h"

using namespace math;
using namespace math::test;

// Two forward ranges: (2, 5) and others

TEST(RangeIntersection, RangesApartHaveNothingInCommon)
{
    EXPECT_EQ(Intersection({2, 5}, {0, 1}), Nothing());
    EXPECT_EQ(Intersection({2, 5}, {6, 7}), Nothing());
}

TEST(RangeIntersection, RangesThatTouchHaveNothingInCommon)
{
    EXPECT_EQ(Intersection({1, 2}, {2, 3}), Nothing());
    EXPECT_EQ(Intersection({2, 3}, {1, 2}), Nothing());
    EXPECT_EQ(Intersection({2, 5}, {JustAbove(5), 7}), Nothing());
}

TEST(RangeIntersection, AtTheStartAnOverlapShorterThanTheToleranceIsNone)
{
    EXPECT_EQ(Intersection({2, 5}, {0, LastNearAbove(2)}), Nothing());
    EXPECT_EQ(Intersection({2, 5}, {0, FirstClearAbove(2)}), Pieces({{2, FirstClearAbove(2)}}));
    EXPECT_EQ(Intersection({0, 5}, {-1e-9, JustBelowTolerance}), Nothing());
    EXPECT_EQ(Intersection({0, 5}, {-1e-9, Tolerance}), Pieces({{0, Tolerance}}));
}

TEST(RangeIntersection, AtTheEndAnOverlapShorterThanTheToleranceIsASliver)
{
    EXPECT_EQ(Intersection({2, 5}, {JustBelow(5), 7}), Pieces({{JustBelow(5), 5}}));
    EXPECT_EQ(Intersection({2, 5}, {LastNearBelow(5), 7}), Pieces({{LastNearBelow(5), 5}}));
}

TEST(RangeIntersection, OverlappingRangesShareTheMiddle)
{
    EXPECT_EQ(Intersection({1, 3}, {2, 4}), Pieces({{2, 3}}));
    EXPECT_EQ(Intersection({2, 4}, {1, 3}), Pieces({{2, 3}}));
    EXPECT_EQ(Intersection({2, 5}, {2.25, 7}), Pieces({{2.25, 5}}));
    EXPECT_EQ(Intersection({2, 5}, {0.5, 4.75}), Pieces({{2, 4.75}}));
}

TEST(RangeIntersection, AFirstInsideASecondIsTheIntersection)
{
    EXPECT_EQ(Intersection({2, 5}, {1, 7}), Pieces({{2, 5}}));
    EXPECT_EQ(Intersection({2, 5}, {JustBelow(2), 7}), Pieces({{2, 5}}));
    EXPECT_EQ(Intersection({2, 5}, {1, FirstClearAbove(5)}), Pieces({{2, 5}}));
}

TEST(RangeIntersection, ASecondInsideAFirstIsTheIntersection)
{
    EXPECT_EQ(Intersection({2, 5}, {3, 4}), Pieces({{3, 4}}));
    EXPECT_EQ(Intersection({2, 5}, {2, 4}), Pieces({{2, 4}}));
    EXPECT_EQ(Intersection({2, 5}, {3, 5}), Pieces({{3, 5}}));
    EXPECT_EQ(Intersection({2, 5}, {2, 5}), Pieces({{2, 5}}));
    EXPECT_EQ(Intersection({2, 5}, {LastNearAbove(2), 4}), Pieces({{LastNearAbove(2), 4}}));
}

TEST(RangeIntersection, AnEndNearTheFirstOneIsKeptAlsoWhereItLiesBeyond)
{
    EXPECT_EQ(Intersection({2, 5}, {3, LastNearAbove(5)}), Pieces({{3, LastNearAbove(5)}}));
    EXPECT_EQ(Intersection({2, 5}, {3, FirstClearAbove(5)}), Pieces({{3, 5}}));
    EXPECT_EQ(Intersection({2, 5}, {1, LastNearAbove(5)}), Pieces({{2, LastNearAbove(5)}}));
    EXPECT_EQ(Intersection({2, 5}, {2, LastNearAbove(5)}), Pieces({{2, LastNearAbove(5)}}));
    EXPECT_EQ(Intersection({2, 5}, {1, LastNearBelow(5)}), Pieces({{2, LastNearBelow(5)}}));
    // Exactly the tolerance beyond is not near.
    EXPECT_EQ(Intersection({-1e-9, Tolerance}, {0, 2 * Tolerance}), Pieces({{0, Tolerance}}));
}

TEST(RangeIntersection, StartsAreComparedWithoutTolerance)
{
    EXPECT_EQ(Intersection({2, 5}, {JustBelow(2), 4}), Pieces({{2, 4}}));
    EXPECT_EQ(Intersection({2, 5}, {JustAbove(2), 4}), Pieces({{JustAbove(2), 4}}));
    EXPECT_EQ(Intersection({2, 5}, {JustAbove(2), 7}), Pieces({{JustAbove(2), 5}}));
    EXPECT_EQ(Intersection({2, 5}, {2, 7}), Pieces({{2, 5}}));
}

// Invalid and whole ranges

TEST(RangeIntersection, AnInvalidRangeMeetsNothing)
{
    for (const PosRangeD& invalid : {PosRangeD(), PosRangeD(NaN, 2), PosRangeD(1, NaN), PosRangeD(-2e-9, 2)})
    {
        for (const PosRangeD& range : {PosRangeD(1, 5), PosRangeD(3, 1), PosRangeD(2, 2), PosRangeD()})
        {
            EXPECT_EQ(Intersection(range, invalid), Nothing());
            EXPECT_EQ(Intersection(invalid, range), Nothing());
        }
    }
    EXPECT_EQ(Intersection({-1e-9, 2}, {1, 3}), Pieces({{1, 2}}));
}

TEST(RangeIntersection, AWholeRangeLeavesTheOtherAsItIs)
{
    for (const PosRangeD& whole : {PosRangeD(1, 1), PosRangeD(1, 1 + 5e-10), PosRangeD(1 + 5e-10, 1)})
    {
        for (const PosRangeD& range : {PosRangeD(1, 3), PosRangeD(3, 1)})
        {
            EXPECT_EQ(Intersection(range, whole), Pieces({range}));
            EXPECT_EQ(Intersection(whole, range), Pieces({range}));
        }
    }
}

TEST(RangeIntersection, OfTwoWholeRangesTheSecondStays)
{
    EXPECT_EQ(Intersection({1, 1}, {2, 2}), Pieces({{2, 2}}));
    EXPECT_EQ(Intersection({2, 2}, {1, 1}), Pieces({{1, 1}}));
}

TEST(RangeIntersection, EndsAWholeToleranceApartMakeNoLoop)
{
    EXPECT_EQ(Intersection({2, 3}, {0, Tolerance}), Nothing());
    EXPECT_EQ(Intersection({2, 3}, {0, JustBelowTolerance}), Pieces({{2, 3}}));
}

// A forward and a wrapping range, in either order

namespace
{

/// Which of the two wraps makes no difference.
void ExpectIntersectionEitherWay(const PosRangeD& forward, const PosRangeD& wrapping, const RangeList& expected)
{
    EXPECT_EQ(Intersection(forward, wrapping), expected);
    EXPECT_EQ(Intersection(wrapping, forward), expected);
}

} // namespace

TEST(RangeIntersection, AForwardRangeAcrossTheGapMeetsAWrappingOneTwiceLowerPieceFirst)
{
    ExpectIntersectionEitherWay({0, 4}, {3, 1}, Pieces({{0, 1}, {3, 4}}));
    ExpectIntersectionEitherWay({0.25, 3.3}, {3.1, 0.7}, Pieces({{0.25, 0.7}, {3.1, 3.3}}));
}

TEST(RangeIntersection, AForwardRangeMeetsThePartPastTheSeam)
{
    ExpectIntersectionEitherWay({0, 2}, {3, 1}, Pieces({{0, 1}}));
    ExpectIntersectionEitherWay({0.25, 0.75}, {3, 1}, Pieces({{0.25, 0.75}}));
    ExpectIntersectionEitherWay({0, 1}, {3, 1}, Pieces({{0, 1}}));
    ExpectIntersectionEitherWay({0.5, 2}, {3, FirstClearAbove(0.5)}, Pieces({{0.5, FirstClearAbove(0.5)}}));
    ExpectIntersectionEitherWay({0.5, 2}, {3, LastNearAbove(0.5)}, Nothing());
}

TEST(RangeIntersection, AForwardRangeMeetsThePartBeforeTheSeam)
{
    ExpectIntersectionEitherWay({2, 3.5}, {3, 1}, Pieces({{3, 3.5}}));
    ExpectIntersectionEitherWay({3.25, 3.75}, {3, 1}, Pieces({{3.25, 3.75}}));
    ExpectIntersectionEitherWay({3, 4}, {3, 1}, Pieces({{3, 4}}));
    ExpectIntersectionEitherWay({1, JustAbove(3)}, {3, 1}, Pieces({{3, JustAbove(3)}}));
}

TEST(RangeIntersection, AForwardRangeInTheGapMeetsNothing)
{
    ExpectIntersectionEitherWay({1, 3}, {3, 1}, Nothing());
    ExpectIntersectionEitherWay({1.5, 2.5}, {3, 1}, Nothing());
}

TEST(RangeIntersection, AWrappingRangeThatEndsOnTheSeamHasNoPartPastIt)
{
    ExpectIntersectionEitherWay({0, 2}, {3, 0}, Nothing());
    ExpectIntersectionEitherWay({0, 4}, {3, 0}, Pieces({{3, 4}}));
    ExpectIntersectionEitherWay({0, 4}, {3, 5e-10}, Pieces({{3, 4}}));
}

// Two wrapping ranges

TEST(RangeIntersection, TwoWrappingRangesShareTheStretchOverTheSeam)
{
    EXPECT_EQ(Intersection({3, 1}, {3.5, 0.5}), Pieces({{3.5, 0.5}}));
    EXPECT_EQ(Intersection({3.5, 0.5}, {3, 1}), Pieces({{3.5, 0.5}}));
    EXPECT_EQ(Intersection({3, 0.5}, {3.5, 1}), Pieces({{3.5, 0.5}}));
    EXPECT_EQ(Intersection({3.5, 1}, {3, 0.5}), Pieces({{3.5, 0.5}}));
    EXPECT_EQ(Intersection({3, 1}, {3, 1}), Pieces({{3, 1}}));
}

TEST(RangeIntersection, ASecondOverlapOfTwoWrappingRangesOneLapOnIsNotGiven)
{
    // Both cover (2, 2.5) as well, which the second does with its start and the first with its end.
    EXPECT_EQ(Intersection({3, 2.5}, {2, 1}), Pieces({{3, 1}}));
    EXPECT_EQ(Intersection({2, 1}, {3, 2.5}), Pieces({{3, 1}}));
}

TEST(RangeIntersection, TwoWrappingRangesThatEndOnTheSeamGiveTheUnrollLengthAsTheirEnd)
{
    EXPECT_EQ(Intersection({3, 0}, {3.5, 1}), Pieces({{3.5, 5}}));
    EXPECT_EQ(Intersection({3, 1}, {2, 0}), Pieces({{3, 4}}));
    EXPECT_EQ(Intersection({3, 0}, {3, 0}), Pieces({{3, 4}}));
}

TEST(RangeIntersection, TheEndOfTwoWrappingRangesComesBackByTheLengthItWasRaisedBy)
{
    EXPECT_EQ(Intersection({3.2, 0.3}, {3.7, 1}), Pieces({{3.7, (0.3 + 5) - 5}}));
    EXPECT_EQ(Intersection({3, 0.1}, {2.5, 1}), Pieces({{3, (0.1 + 4) - 4}}));
}

TEST(RangeIntersection, RangesWithoutEndAreComparedLikeAnyOther)
{
    EXPECT_EQ(Intersection({0, Infinite}, {1, 2}), Pieces({{1, 2}}));
    EXPECT_EQ(Intersection({0, Infinite}, {1, Infinite}), Pieces({{1, Infinite}}));
    EXPECT_EQ(Intersection({0, 2}, {1, Infinite}), Pieces({{1, 2}}));
}
