#include "math/CSegment.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

TEST(SegmentGetLength, ASegmentOfNoKindHasNone)
{
    CSegment segment(At(0, 0), At(3, 4));
    for (const int type : {0, 4, -1})
    {
        segment.type = type;
        EXPECT_EQ(segment.GetLength(), 0);
    }
}

TEST(SegmentGetLength, ALineIsAsLongAsItsEndsAreApart)
{
    EXPECT_EQ(CSegment(At(1, 1), At(4, 5)).GetLength(), 5);
    EXPECT_EQ(CSegment(At(4, 5), At(1, 1)).GetLength(), 5);
    EXPECT_EQ(CSegment(At(1, 1), At(1, 1)).GetLength(), 0);
}

TEST(SegmentGetLength, AnArcIsRadiusTimesSweepInEitherDirection)
{
    EXPECT_TRUE(Near(CSegment(At(1, 0), At(-1, 0), 1).GetLength(), Pi, 1e-15));
    EXPECT_TRUE(Near(CSegment(At(1, 0), At(-1, 0), -1).GetLength(), Pi, 1e-15));
    for (const double sweep : {0.1, 1.0, 3.0, 4.0, 6.2, -0.1, -1.0, -3.0, -4.0, -6.2})
    {
        EXPECT_TRUE(Near(ArcOfAngles(At(1, 2), 3, 0.5, sweep).GetLength(), 3 * std::abs(sweep), 1e-13)) << sweep;
    }
}

TEST(SegmentGetLength, AFlatArcIsItsChord)
{
    for (const double bulge : {0.0, 1e-10, -1e-10, 1e-9, 1e-8})
    {
        EXPECT_TRUE(Near(CSegment(At(1, 1), At(4, 5), bulge).GetLength(), 5, 4e-15)) << bulge;
    }
    EXPECT_EQ(CSegment(At(1, 1), At(4, 5), 0).GetLength(), 5);
    EXPECT_EQ(CSegment(At(1, 1), At(4, 5), 1e-10).GetLength(), 5);
}

TEST(SegmentGetLength, AnArcWithoutChordHasNone)
{
    EXPECT_EQ(CSegment(At(3, 4), At(3, 4), 0.5).GetLength(), 0);
    // The chord itself counts, however short: half of π times it.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(5e-10, 0), 1).GetLength(), HalfPi * 5e-10, 1e-24));
}

TEST(SegmentGetLength, ALineDoesNotLookAtItsSlot)
{
    CSegment segment(At(1, 0), At(-1, 0), 1);
    segment.Set(At(1, 1), At(4, 5));
    EXPECT_EQ(segment.GetLength(), 5);
}

TEST(SegmentGetLength, ABezierCurveOfConstantSpeedIsMeasuredExactly)
{
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(1, 0), At(2, 0), At(3, 0)).GetLength(), 3, 1e-12));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(3, 4), At(6, 8), At(9, 12)).GetLength(), 15, 1e-12));
}

TEST(SegmentGetLength, ABezierCurveIsSampledAtTheLeftOfEachThousandth)
{
    // x = t² has the speed 2t: the sum of 2k / 1000 over k from 0 to 999, by a thousandth, is 0.999.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 0), At(1.0 / 3, 0), At(1, 0)).GetLength(), 0.999, 1e-12));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 0), At(0, 1.0 / 3), At(0, 1)).GetLength(), 0.999, 1e-12));
    // Run the other way the speed is 2 - 2t, which gives 1.001.
    EXPECT_TRUE(Near(CSegment(At(1, 0), At(1.0 / 3, 0), At(0, 0), At(0, 0)).GetLength(), 1.001, 1e-12));
    // x = t³ has the speed 3t²: 3 · 999 · 1000 · 1999 / 6 / 10⁹.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 0), At(0, 0), At(1, 0)).GetLength(), 0.9985005, 1e-12));
}

TEST(SegmentGetLength, ABezierCurveOfNoExtentHasNone)
{
    EXPECT_EQ(CSegment(At(3, 4), At(3, 4), At(3, 4), At(3, 4)).GetLength(), 0);
}

TEST(SegmentGetLength, BezierCurvesAgreeWithTheSumOfSpeedsByDeCasteljau)
{
    Random random(321);
    for (int i = 0; i < 50; ++i)
    {
        const ControlPolygon polygon = RandomControlPolygon(random);
        double sum = 0;
        for (int k = 0; k < 1000; ++k)
        {
            const DPOINT2 speed = BezierDerivativeAt(polygon.points, k / 1000.0);
            sum += std::hypot(speed.x, speed.y) / 1000;
        }
        ASSERT_TRUE(Near(polygon.Segment().GetLength(), sum, 1e-10));
    }
}

TEST(SegmentGetLength, BezierCurvesAgreeWithADenseChainOfChords)
{
    // The left-hand rule is off by half a step times the difference of the speeds at the ends, to the first order. The
    // next order is a twelfth of the squared step times the change of acceleration, below 1e-4 here; near a cusp the
    // acceleration jumps, which stays below that too.
    Random random(322);
    for (int i = 0; i < 50; ++i)
    {
        const ControlPolygon polygon = RandomControlPolygon(random);
        double chain = 0;
        DPOINT2 previous = polygon.points[0];
        for (int k = 1; k <= 20000; ++k)
        {
            const DPOINT2 point = BezierAt(polygon.points, k / 20000.0);
            chain += std::hypot(point.x - previous.x, point.y - previous.y);
            previous = point;
        }
        const DPOINT2 first = BezierDerivativeAt(polygon.points, 0);
        const DPOINT2 last = BezierDerivativeAt(polygon.points, 1);
        const double bias = 0.0005 * (std::hypot(first.x, first.y) - std::hypot(last.x, last.y));
        ASSERT_TRUE(Near(polygon.Segment().GetLength(), chain + bias, 1e-4));
    }
}

TEST(SegmentGetLength, IsTheSumOfTheLengthsOfBothSidesOfACut)
{
    Random random(323);
    for (int i = 0; i < 2000; ++i)
    {
        CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const double t = random.Number(0, 1);
        const double sum = segment.GetSplitSegment(t, true).GetLength() + segment.GetSplitSegment(t, false).GetLength();
        ASSERT_TRUE(Near(sum, segment.GetLength(), 1e-10));
    }
}
