#include "math/CSegment.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

TEST(SegmentReverseDir, ALineSwapsItsEndsAndKeepsAPositiveZero)
{
    CSegment line(At(1, 2), At(3, 4));
    line.ReverseDir();
    EXPECT_TRUE(IsLineOrArc(line, SegmentLine, At(3, 4), At(1, 2), 0));
    EXPECT_FALSE(std::signbit(line.bulge));
}

TEST(SegmentReverseDir, AnArcSwapsItsEndsAndNegatesItsBulge)
{
    CSegment arc(At(1, 2), At(3, 4), 0.5);
    arc.ReverseDir();
    EXPECT_TRUE(IsLineOrArc(arc, SegmentArc, At(3, 4), At(1, 2), -0.5));
}

TEST(SegmentReverseDir, OnlyAnExactZeroIsKept)
{
    CSegment flat(At(1, 2), At(3, 4), 1e-300);
    flat.ReverseDir();
    EXPECT_EQ(flat.bulge, -1e-300);
    CSegment negativeZero(At(1, 2), At(3, 4), -0.0);
    negativeZero.ReverseDir();
    EXPECT_TRUE(SameBits(negativeZero.bulge, -0.0));
}

TEST(SegmentReverseDir, TheSlotOfALineIsNegatedToo)
{
    CSegment segment(At(1, 2), At(3, 4), 0.5);
    segment.Set(At(1, 2), At(3, 4));
    segment.ReverseDir();
    EXPECT_EQ(segment.type, SegmentLine);
    EXPECT_EQ(segment.bulge, -0.5);
}

TEST(SegmentReverseDir, ABezierCurveKeepsItsControlPointsAndNegatesTheSlot)
{
    CSegment curve(At(0, 0), At(1, 0), At(2, 0), At(3, 0));
    curve.ReverseDir();
    EXPECT_TRUE(SameFields(curve, CSegment(At(3, 0), At(-1, 0), At(2, 0), At(0, 0))));
    CSegment full(At(1, 2), At(3, 4), At(5, 6), At(7, 8));
    full.ReverseDir();
    EXPECT_TRUE(SameFields(full, CSegment(At(7, 8), At(-3, 4), At(5, 6), At(1, 2))));
}

TEST(SegmentReverseDir, TwiceRestoresEverything)
{
    Random random(331);
    for (int i = 0; i < 200; ++i)
    {
        const CSegment original = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        CSegment segment = original;
        segment.ReverseDir();
        segment.ReverseDir();
        ASSERT_TRUE(SameFields(segment, original));
    }
}

TEST(SegmentReverseDir, RunsTheSameCurveTheOtherWay)
{
    Random random(332);
    for (int i = 0; i < 2000; ++i)
    {
        const CSegment original = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        CSegment segment = original;
        segment.ReverseDir();
        const double t = random.Number(-0.5, 1.5);
        ASSERT_TRUE(Near(segment.GetPoint(t), original.GetPoint(1 - t), 1e-11));
        ASSERT_TRUE(Near(segment.GetLength(), original.GetLength(), 1e-12));
        ASSERT_TRUE(NearDirection(segment.GetAngle(t), original.GetAngle(1 - t) + Pi, TwoPi, 1e-10));
    }
}
