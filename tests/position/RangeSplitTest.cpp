#include "support/Ranges.h"

using namespace math;
using namespace math::test;

TEST(RangeSplit, AForwardRangeFallsApartAtAPositionInside)
{
    EXPECT_EQ(Cut({1, 3}, 2), Pieces({{1, 2}, {2, 3}}));
    EXPECT_EQ(Cut({1, 3}, 2.75), Pieces({{1, 2.75}, {2.75, 3}}));
    EXPECT_EQ(Cut({0, 0.5}, 0.125), Pieces({{0, 0.125}, {0.125, 0.5}}));
}

TEST(RangeSplit, AForwardRangeStaysWholeAtItsEndsAndOutside)
{
    for (double position : {1.0, 3.0, 0.5, 5.0, -1.0})
    {
        EXPECT_EQ(Cut({1, 3}, position), Pieces({{1, 3}})) << position;
    }
}

TEST(RangeSplit, TheEndsOfAForwardRangeAreComparedWithoutTolerance)
{
    EXPECT_EQ(Cut({1, 3}, JustAbove(1)), Pieces({{1, JustAbove(1)}, {JustAbove(1), 3}}));
    EXPECT_EQ(Cut({1, 3}, JustBelow(3)), Pieces({{1, JustBelow(3)}, {JustBelow(3), 3}}));
    EXPECT_EQ(Cut({1, 3}, JustBelow(1)), Pieces({{1, 3}}));
    EXPECT_EQ(Cut({1, 3}, JustAbove(3)), Pieces({{1, 3}}));
}

TEST(RangeSplit, AWrappingRangeIsCutOnEitherSideOfTheSeam)
{
    EXPECT_EQ(Cut({3, 1}, 0.5), Pieces({{3, 0.5}, {0.5, 1}}));
    EXPECT_EQ(Cut({3, 1}, 3.5), Pieces({{3, 3.5}, {3.5, 1}}));
    EXPECT_EQ(Cut({3, 1}, 0), Pieces({{3, 0}, {0, 1}}));
}

TEST(RangeSplit, AWrappingRangeStaysInOnePieceAtItsEndsAndOutside)
{
    for (double position : {1.0, 3.0, 2.0, 1.25})
    {
        EXPECT_EQ(Cut({3, 1}, position), Pieces({{3, 1}})) << position;
    }
}

TEST(RangeSplit, TheEndsOfAWrappingRangeAreComparedWithoutTolerance)
{
    EXPECT_EQ(Cut({3, 1}, JustAbove(3)), Pieces({{3, JustAbove(3)}, {JustAbove(3), 1}}));
    EXPECT_EQ(Cut({3, 1}, JustBelow(1)), Pieces({{3, JustBelow(1)}, {JustBelow(1), 1}}));
    EXPECT_EQ(Cut({3, 1}, JustBelow(3)), Pieces({{3, 1}}));
    EXPECT_EQ(Cut({3, 1}, JustAbove(1)), Pieces({{3, 1}}));
}

TEST(RangeSplit, AWrappingRangeWithItsEndOnTheSeamIsCutAboveItsStartOnly)
{
    EXPECT_EQ(Cut({3, 0}, 3.5), Pieces({{3, 3.5}, {3.5, 0}}));
    EXPECT_EQ(Cut({3, 0}, 0), Pieces({{3, 0}}));
    EXPECT_EQ(Cut({3, 0}, 0.5), Pieces({{3, 0}}));
}

TEST(RangeSplit, AWholeRangeIsCutIntoAWayThereAndAWayBack)
{
    EXPECT_EQ(Cut({2, 2}, 1), Pieces({{2, 1}, {1, 2}}));
    EXPECT_EQ(Cut({2, 2}, 3), Pieces({{2, 3}, {3, 2}}));
    EXPECT_EQ(Cut({2, 2}, 2), Pieces({{2, 2}}));
    EXPECT_EQ(Cut({0, 0}, 3.25), Pieces({{0, 3.25}, {3.25, 0}}));
}

TEST(RangeSplit, AWholeRangeStaysWholeNearItsSeam)
{
    EXPECT_EQ(Cut({2, 2}, LastNearAbove(2)), Pieces({{2, 2}}));
    EXPECT_EQ(Cut({2, 2}, LastNearBelow(2)), Pieces({{2, 2}}));
    EXPECT_EQ(Cut({2, 2}, FirstClearAbove(2)), Pieces({{2, FirstClearAbove(2)}, {FirstClearAbove(2), 2}}));
    EXPECT_EQ(Cut({2, 2}, FirstClearBelow(2)), Pieces({{2, FirstClearBelow(2)}, {FirstClearBelow(2), 2}}));
    // At 0 a distance of exactly the tolerance can be told, and it is not near.
    EXPECT_EQ(Cut({0, 0}, JustBelowTolerance), Pieces({{0, 0}}));
    EXPECT_EQ(Cut({0, 0}, Tolerance), Pieces({{0, Tolerance}, {Tolerance, 0}}));
}

TEST(RangeSplit, AWholeRangeWhoseEndsDifferStaysWholeNearEitherOfThem)
{
    const PosRangeD whole(2 + 5e-10, 2);
    ASSERT_TRUE(whole.IsWholeRange());
    const double nearStartOnly = 2 + 1.3e-9;
    const double nearEndOnly = 2 - 8e-10;
    EXPECT_EQ(Cut(whole, nearStartOnly), Pieces({whole}));
    EXPECT_EQ(Cut(whole, nearEndOnly), Pieces({whole}));
    EXPECT_EQ(Cut(whole, 2 + 2e-9), Pieces({{2 + 5e-10, 2 + 2e-9}, {2 + 2e-9, 2}}));
}

TEST(RangeSplit, AWholeRangeWhoseEndLiesAboveItsStartIsCutLikeAForwardOne)
{
    const PosRangeD whole(2, 2 + 5e-10);
    ASSERT_TRUE(whole.IsWholeRange());
    EXPECT_EQ(Cut(whole, 2 + 2e-10), Pieces({{2, 2 + 2e-10}, {2 + 2e-10, 2 + 5e-10}}));
    EXPECT_EQ(Cut(whole, 3), Pieces({whole}));
    EXPECT_EQ(Cut(whole, 1), Pieces({whole}));
}

TEST(RangeSplit, ThePositionIsNotBroughtToTheLapOfTheRange)
{
    EXPECT_EQ(Cut({1, 3}, 6), Pieces({{1, 3}}));
    EXPECT_EQ(Cut({3, 1}, 7), Pieces({{3, 7}, {7, 1}}));
    EXPECT_EQ(Cut({3, 1}, -1), Pieces({{3, -1}, {-1, 1}}));
}

TEST(RangeSplit, AnInvalidRangeHasNoPieces)
{
    EXPECT_EQ(Cut(PosRangeD(), 0.5), Nothing());
    EXPECT_EQ(Cut(PosRangeD(), -1), Nothing());
    EXPECT_EQ(Cut({-2e-9, 2}, 1), Nothing());
    EXPECT_EQ(Cut({NaN, 2}, 1), Nothing());
    EXPECT_EQ(Cut({1, NaN}, 2), Nothing());
    // The bound itself is still valid.
    EXPECT_EQ(Cut({-1e-9, 2}, 1), Pieces({{-1e-9, 1}, {1, 2}}));
}

TEST(RangeSplit, APositionThatIsNoNumberCutsOnlyTheWholeRange)
{
    EXPECT_EQ(Cut({1, 3}, NaN), Pieces({{1, 3}}));
    EXPECT_EQ(Cut({3, 1}, NaN), Pieces({{3, 1}}));
    EXPECT_EQ(Cut({2, 2}, NaN), Pieces({{2, NaN}, {NaN, 2}}));
}

TEST(RangeSplit, TheRangeItselfStaysAsItIs)
{
    PosRangeD range(3, 1);
    range.Splite(0.5);
    EXPECT_EQ(Two(range), Two(3, 1));
    EXPECT_EQ(RangeList{range.Splite(range.start)}, Pieces({{3, 1}}));
}
