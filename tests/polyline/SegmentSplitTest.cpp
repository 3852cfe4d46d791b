#include "math/CSegment.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

namespace
{

CSegment Line()
{
    return {At(0, 0), At(4, 0)};
}

/// The upper half of the unit circle, counter-clockwise, or the lower half, clockwise.
CSegment Half(double bulge)
{
    return {At(1, 0), At(-1, 0), bulge};
}

DPOINT2 OnUnitCircle(double radian)
{
    return {std::cos(radian), std::sin(radian)};
}

} // namespace

// One side of a cut

TEST(SegmentGetSplitSegment, ALineIsCutIntoLines)
{
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(0.25, true), SegmentLine, At(0, 0), At(1, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(0.25, false), SegmentLine, At(1, 0), At(4, 0), 0));
}

TEST(SegmentGetSplitSegment, AnArcIsCutIntoArcsOfTheSameCircle)
{
    const double eighth = std::tan(Pi / 8);
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.5, true), SegmentArc, At(1, 0), At(0, 1), eighth, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.5, false), SegmentArc, At(0, 1), At(-1, 0), eighth, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(-1).GetSplitSegment(0.5, true), SegmentArc, At(1, 0), At(0, -1), -eighth, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(-1).GetSplitSegment(0.5, false), SegmentArc, At(0, -1), At(-1, 0), -eighth, 1e-15));
    // At a quarter the sides sweep π/4 and 3π/4.
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.25, true), SegmentArc, At(1, 0), OnUnitCircle(QuarterPi),
                            std::tan(Pi / 16), 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.25, false), SegmentArc, OnUnitCircle(QuarterPi), At(-1, 0),
                            std::tan(3 * Pi / 16), 1e-15));
}

TEST(SegmentGetSplitSegment, NearAnEndTheCutIsMadeAtTheEnd)
{
    for (const double t : {0.0, 1e-12, -1e-12, Previous(1e-9), Next(-1e-9)})
    {
        EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(t, true), SegmentLine, At(0, 0), At(0, 0), 0)) << t;
        EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(t, false), SegmentLine, At(0, 0), At(4, 0), 0)) << t;
        const CSegment whole = Half(0.5).GetSplitSegment(t, false);
        EXPECT_TRUE(IsLineOrArc(whole, SegmentArc, Half(0.5).GetPoint(0), At(-1, 0), std::tan(std::atan(0.5)))) << t;
        EXPECT_EQ(Half(0.5).GetSplitSegment(t, true).bulge, 0);
    }
    for (const double t : {1.0, 1 - 1e-12, 1 + 1e-12, 1 - 9e-10, 1 + 9e-10})
    {
        EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(t, true), SegmentLine, At(0, 0), At(4, 0), 0)) << t;
        EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(t, false), SegmentLine, At(4, 0), At(4, 0), 0)) << t;
        EXPECT_EQ(Half(0.5).GetSplitSegment(t, false).bulge, 0);
    }
    EXPECT_EQ(Line().GetSplitSegment(1e-9, true).end, At(4e-9, 0)) << "the tolerance itself is not near";
    EXPECT_EQ(Line().GetSplitSegment(-1e-9, true).end, At(-4e-9, 0));
    EXPECT_TRUE(Near(Line().GetSplitSegment(1 - 2e-9, true).end, At(4 - 8e-9, 0), 1e-15));
    EXPECT_TRUE(Near(Line().GetSplitSegment(1 + 2e-9, true).end, At(4 + 8e-9, 0), 1e-15));
}

TEST(SegmentGetSplitSegment, BeyondTheEndsTheSegmentIsExtended)
{
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(1.5, true), SegmentLine, At(0, 0), At(6, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(-0.5, false), SegmentLine, At(-2, 0), At(4, 0), 0));
    // The sweep of a side counts by its amount: a quarter turn back to before the start has a positive bulge too.
    const double eighth = std::tan(Pi / 8);
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(-0.5, true), SegmentArc, At(1, 0), At(0, -1), eighth, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(1.5, false), SegmentArc, At(0, -1), At(-1, 0), eighth, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(-1).GetSplitSegment(-0.5, true), SegmentArc, At(1, 0), At(0, 1), -eighth, 1e-15));
    EXPECT_TRUE(
        IsLineOrArc(Half(1).GetSplitSegment(1.5, true), SegmentArc, At(1, 0), At(0, -1), std::tan(3 * Pi / 8), 1e-14));
}

TEST(SegmentGetSplitSegment, TheSlotDecidesBetweenLineAndArc)
{
    CSegment flat(At(0, 0), At(4, 0), Previous(1e-9));
    EXPECT_TRUE(IsLineOrArc(flat.GetSplitSegment(0.25, true), SegmentLine, At(0, 0), At(1, 0), 0));
    EXPECT_TRUE(IsLineOrArc(flat.GetSplitSegment(0.25, 0.5), SegmentLine, At(1, 0), At(2, 0), 0));
    CSegment tolerance(At(0, 0), At(4, 0), 1e-9);
    EXPECT_EQ(tolerance.GetSplitSegment(0.25, true).type, SegmentArc);
    EXPECT_TRUE(Near(tolerance.GetSplitSegment(0.25, true).bulge, 0.25e-9, 1e-24));
    EXPECT_EQ(tolerance.GetSplitSegment(0.25, 0.5).type, SegmentArc);
    // A line that was an arc is cut as a line and becomes an arc of part of the old sweep.
    CSegment former(At(5, 5), At(6, 6), 1);
    former.Set(At(0, 0), At(4, 0));
    EXPECT_TRUE(
        IsLineOrArc(former.GetSplitSegment(0.5, true), SegmentArc, At(0, 0), At(2, 0), std::tan(Pi / 8), 1e-15));
    EXPECT_TRUE(
        IsLineOrArc(former.GetSplitSegment(0.25, 0.5), SegmentArc, At(1, 0), At(2, 0), std::tan(Pi / 16), 1e-15));
    CSegment none;
    EXPECT_TRUE(IsLineOrArc(none.GetSplitSegment(0.5, true), SegmentLine, At(0, 0), At(0, 0), 0));
}

TEST(SegmentGetSplitSegment, ABezierCurveGivesALineOrAnArcByItsSlot)
{
    CSegment withoutSlot(At(8, 0), At(0, 8), At(0, 16), At(0, 64));
    EXPECT_TRUE(IsLineOrArc(withoutSlot.GetSplitSegment(0.5, true), SegmentLine, At(8, 0), At(1, 17), 0));
    EXPECT_TRUE(IsLineOrArc(withoutSlot.GetSplitSegment(0.5, false), SegmentLine, At(1, 17), At(0, 64), 0));
    EXPECT_TRUE(IsLineOrArc(withoutSlot.GetSplitSegment(0.5, 0.25), SegmentLine, At(1, 17), At(3.375, 6.625), 0));
    CSegment withSlot(At(8, 0), At(-1, 8), At(0, 16), At(0, 64));
    const DPOINT2 middle = At(1 - 0.375, 17);
    EXPECT_TRUE(
        IsLineOrArc(withSlot.GetSplitSegment(0.5, true), SegmentArc, At(8, 0), middle, -std::tan(Pi / 8), 1e-15));
    EXPECT_TRUE(
        IsLineOrArc(withSlot.GetSplitSegment(0.5, 1.0), SegmentArc, middle, At(0, 64), -std::tan(Pi / 8), 1e-15));
}

TEST(SegmentGetSplitSegment, AnArcWithoutChordHasNoSweep)
{
    CSegment arc(At(3, 4), At(3, 4), 0.5);
    EXPECT_TRUE(IsLineOrArc(arc.GetSplitSegment(0.25, true), SegmentArc, At(3, 4), At(3, 4), 0));
    EXPECT_TRUE(IsLineOrArc(arc.GetSplitSegment(0.25, 0.75), SegmentArc, At(3, 4), At(3, 4), 0));
}

TEST(SegmentGetSplitSegment, LeavesTheSegmentAsItIs)
{
    CSegment curve(At(1, 2), At(3, 4), At(5, 6), At(7, 8));
    curve.GetSplitSegment(0.3, true);
    curve.GetSplitSegment(0.3, 0.1);
    EXPECT_TRUE(SameFields(curve, CSegment(At(1, 2), At(3, 4), At(5, 6), At(7, 8))));
}

TEST(SegmentGetSplitSegment, SidesEvaluateAsTheWhole)
{
    Random random(371);
    for (int i = 0; i < 2000; ++i)
    {
        CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const double t = random.Number(0.01, 0.99);
        const double u = random.Number(-0.2, 1.2);
        const CSegment first = segment.GetSplitSegment(t, true);
        const CSegment second = segment.GetSplitSegment(t, false);
        ASSERT_TRUE(SameBits(first.start, segment.start));
        ASSERT_TRUE(SameBits(second.end, segment.end));
        ASSERT_TRUE(SameBits(first.end, second.start));
        ASSERT_TRUE(Near(first.GetPoint(u), segment.GetPoint(u * t), 1e-9));
        ASSERT_TRUE(Near(second.GetPoint(u), segment.GetPoint(t + u * (1 - t)), 1e-9));
    }
}

// The piece between two parameters

TEST(SegmentGetSplitSegment, APieceOfALineIsALine)
{
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(0.25, 0.5), SegmentLine, At(1, 0), At(2, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(0.5, 0.25), SegmentLine, At(2, 0), At(1, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(-1.0, 2.0), SegmentLine, At(-4, 0), At(8, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(0.5, 0.5), SegmentLine, At(2, 0), At(2, 0), 0));
}

TEST(SegmentGetSplitSegment, APieceOfAnArcHasTheBulgeOfItsSweep)
{
    const DPOINT2 eighth = OnUnitCircle(QuarterPi);
    const DPOINT2 threeEighths = OnUnitCircle(3 * QuarterPi);
    const double bulge = std::tan(Pi / 8);
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.25, 0.75), SegmentArc, eighth, threeEighths, bulge, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.75, 0.25), SegmentArc, threeEighths, eighth, -bulge, 1e-15))
        << "against the segment";
    const DPOINT2 below = OnUnitCircle(-QuarterPi);
    const DPOINT2 farBelow = OnUnitCircle(-3 * QuarterPi);
    EXPECT_TRUE(IsLineOrArc(Half(-1).GetSplitSegment(0.25, 0.75), SegmentArc, below, farBelow, -bulge, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(-1).GetSplitSegment(0.75, 0.25), SegmentArc, farBelow, below, bulge, 1e-15));
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(-0.25, 0.25), SegmentArc, below, eighth, bulge, 1e-15))
        << "beyond the start";
    EXPECT_TRUE(IsLineOrArc(Half(1).GetSplitSegment(0.5, 0.5), SegmentArc, At(0, 1), At(0, 1), 0, 1e-15));
    EXPECT_TRUE(SameBits(Half(1).GetSplitSegment(0.5, 0.5).bulge, 0.0));
}

TEST(SegmentGetSplitSegment, BothParametersOfAPieceSnapToTheEnds)
{
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(1e-12, 1 - 1e-12), SegmentLine, At(0, 0), At(4, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(1 + 9e-10, -9e-10), SegmentLine, At(4, 0), At(0, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(9e-10, -9e-10), SegmentLine, At(0, 0), At(0, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(1 - 9e-10, 1 + 9e-10), SegmentLine, At(4, 0), At(4, 0), 0));
    EXPECT_TRUE(IsLineOrArc(Line().GetSplitSegment(1e-9, -1e-9), SegmentLine, At(4e-9, 0), At(-4e-9, 0), 0))
        << "the tolerance itself is not near";
    const CSegment piece = Line().GetSplitSegment(1 - 2e-9, 1 + 2e-9);
    EXPECT_TRUE(IsLineOrArc(piece, SegmentLine, At(4 - 8e-9, 0), At(4 + 8e-9, 0), 0, 1e-15));
    const CSegment whole = Half(1).GetSplitSegment(9e-10, 1 - 9e-10);
    EXPECT_TRUE(IsLineOrArc(whole, SegmentArc, Half(1).GetPoint(0), Half(1).GetPoint(1), std::tan(Pi / 4)));
}

TEST(SegmentGetSplitSegment, PiecesEvaluateAsTheWhole)
{
    Random random(372);
    for (int i = 0; i < 2000; ++i)
    {
        CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const double from = random.Number(0, 1);
        const double to = random.Number(0, 1);
        const double u = random.Number(0, 1);
        if (std::abs(from - to) < 0.01)
        {
            continue; // so short a piece of an arc tells its centre badly
        }
        const CSegment piece = segment.GetSplitSegment(from, to);
        ASSERT_TRUE(Near(piece.GetPoint(u), segment.GetPoint(from + u * (to - from)), 1e-9));
        ASSERT_TRUE(Near(piece.GetLength(), segment.GetLength() * std::abs(to - from), 1e-9));
    }
}
