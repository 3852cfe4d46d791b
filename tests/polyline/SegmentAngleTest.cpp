#include "math/CSegment.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

// CSegment::GetAngle: the direction of travel as an angle.

TEST(SegmentGetAngle, ASegmentOfNoKindHasNone)
{
    CSegment segment(At(0, 0), At(1, 1));
    for (const int type : {0, 4, -1})
    {
        segment.type = type;
        EXPECT_TRUE(std::isnan(segment.GetAngle(0.5)));
    }
}

TEST(SegmentGetAngle, ALineHasThatOfItsChordWhateverTheParameter)
{
    for (const double t : {-3.0, 0.0, 0.3, 1.0, 5.0, InvalidDouble})
    {
        EXPECT_EQ(CSegment(At(0, 0), At(-1, 0)).GetAngle(t), Pi);
        EXPECT_EQ(CSegment(At(2, 3), At(5, 3)).GetAngle(t), 0) << "0, not a whole turn";
        EXPECT_TRUE(Near(CSegment(At(2, 3), At(2, 4)).GetAngle(t), HalfPi, 1e-15));
        EXPECT_TRUE(Near(CSegment(At(2, 3), At(2, 1)).GetAngle(t), ThreeHalvesPi, 1e-15));
        EXPECT_TRUE(Near(CSegment(At(2, 3), At(3, 2)).GetAngle(t), 7 * QuarterPi, 2e-15));
        EXPECT_TRUE(Near(CSegment(At(2, 3), At(3, 4)).GetAngle(t), QuarterPi, 2e-15));
        EXPECT_TRUE(Near(CSegment(At(2, 3), At(1, 5)).GetAngle(t), std::atan2(2, -1), 2e-15));
    }
}

TEST(SegmentGetAngle, EndsThatCoincideByCoordinatesHaveNone)
{
    EXPECT_TRUE(std::isnan(CSegment(At(1, 1), At(1, 1)).GetAngle(0.5)));
    EXPECT_TRUE(std::isnan(CSegment(At(0, 0), At(9e-10, 9e-10)).GetAngle(0.5))) << "though 1.27e-9 apart";
    EXPECT_EQ(CSegment(At(0, 0), At(1e-9, 0)).GetAngle(0.5), 0);
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 1e-9)).GetAngle(0.5), HalfPi, 1e-15));
    EXPECT_TRUE(std::isnan(CSegment(At(1, 1), At(1, 1), 1).GetAngle(0.5)));
    EXPECT_TRUE(std::isnan(CSegment(At(0, 0), At(9e-10, -9e-10), 1).GetAngle(0.5)));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(1e-9, 0), 1).GetAngle(0), ThreeHalvesPi, 1e-12)) << "a half circle";
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 1e-9), 1).GetAngle(0.5), HalfPi, 1e-12)) << "a half circle";
}

TEST(SegmentGetAngle, AnArcOfZeroBulgeHasThatOfItsChord)
{
    for (const double bulge : {0.0, 1e-10, -1e-10, Previous(1e-9)})
    {
        EXPECT_EQ(CSegment(At(0, 0), At(2, 0), bulge).GetAngle(0), 0) << bulge;
        EXPECT_EQ(CSegment(At(0, 0), At(-2, 0), bulge).GetAngle(1), Pi) << bulge;
    }
    // At the tolerance the tangent leans from the chord by half the sweep, 2e-9.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(2, 0), 1e-9).GetAngle(0), TwoPi - 2e-9, 5e-10));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(2, 0), 1e-9).GetAngle(1), 2e-9, 5e-10));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(2, 0), -1e-9).GetAngle(0), 2e-9, 5e-10));
}

TEST(SegmentGetAngle, AHalfCircleTurnsByHalfATurn)
{
    const CSegment upper(At(1, 0), At(-1, 0), 1);
    EXPECT_TRUE(Near(upper.GetAngle(0), HalfPi, 1e-15));
    EXPECT_TRUE(Near(upper.GetAngle(0.5), Pi, 1e-15));
    EXPECT_TRUE(Near(upper.GetAngle(1), ThreeHalvesPi, 1e-15));
    const CSegment lower(At(1, 0), At(-1, 0), -1);
    EXPECT_TRUE(Near(lower.GetAngle(0), ThreeHalvesPi, 2e-15));
    EXPECT_TRUE(Near(lower.GetAngle(0.5), Pi, 2e-15));
}

TEST(SegmentGetAngle, TheDirectionZeroIsZero)
{
    // A half circle from the bottom, at 3π/2, whose tangent is a whole turn before it is reduced.
    EXPECT_EQ(CSegment(At(0, -1), At(0, 1), 1).GetAngle(0), 0);
    // A half circle clockwise from the left: half way, at π/2, its tangent is exactly 0.
    EXPECT_EQ(CSegment(At(-1, 0), At(1, 0), -1).GetAngle(0.5), 0);
}

TEST(SegmentGetAngle, IsReducedByOneTurnAtMost)
{
    // The half circle begins at 0 and sweeps π a parameter, so the tangent is π t + π/2 before the reductions: one turn
    // where the place on the circle is a turn or more from 0 either way, and one where the tangent is not in [0, 2π).
    const CSegment arc(At(1, 0), At(-1, 0), 1);
    struct
    {
        double t;
        double radian;
    } const rows[] = {
        {1.25, 1.75 * Pi}, {1.75, 0.25 * Pi},  {2.25, 0.75 * Pi},  {3.25, 1.75 * Pi},  {3.75, 0.25 * Pi},
        {4, 0.5 * Pi},     {5, 1.5 * Pi},      {9, 5.5 * Pi},      {-0.25, 0.25 * Pi}, {-0.75, 1.75 * Pi},
        {-1, 1.5 * Pi},    {-1.75, 0.75 * Pi}, {-2.25, 0.25 * Pi}, {-3, 1.5 * Pi},     {-9, -4.5 * Pi},
    };
    for (const auto& row : rows)
    {
        EXPECT_TRUE(Near(arc.GetAngle(row.t), row.radian, 4e-14)) << row.t;
    }
    // Clockwise a place a whole turn below 0 is turned up first, so that the tangent needs no more than its own turn.
    EXPECT_TRUE(Near(CSegment(At(1, 0), At(-1, 0), -1).GetAngle(2), 1.5 * Pi, 4e-14));
}

TEST(SegmentGetAngle, ALongClockwiseArcCanEndBelowZero)
{
    // From the direction 0.1 clockwise over 6: the place at the end is -5.9, within a turn of 0. A quarter turn less
    // and one turn more leave -1.19.
    const CSegment arc = ArcOfAngles(At(0, 0), 1, 0.1, -6);
    EXPECT_TRUE(Near(arc.GetAngle(1), -5.9 - HalfPi + TwoPi, 1e-13));
    EXPECT_LT(arc.GetAngle(1), 0);
    EXPECT_TRUE(Near(arc.GetAngle(0), 0.1 - HalfPi + TwoPi, 1e-13));
    // Beyond a turn below 0 the place is turned up once first.
    EXPECT_TRUE(Near(arc.GetAngle(1.1), 0.1 - 6.6 + TwoPi - HalfPi + TwoPi, 1e-13));
}

TEST(SegmentGetAngle, ArcsAgreeWithTheDirectionOfAShortChord)
{
    Random random(351);
    for (int i = 0; i < 2000; ++i)
    {
        const CSegment arc = RandomArcSegment(random);
        const double t = random.Number(-1, 2);
        const double step = 1e-4;
        const DPOINT2 before = ArcAt(arc.start, arc.end, arc.bulge, t - step);
        const DPOINT2 after = ArcAt(arc.start, arc.end, arc.bulge, t + step);
        const double expected = std::atan2(after.y - before.y, after.x - before.x); // exact by symmetry
        ASSERT_TRUE(NearDirection(arc.GetAngle(t), expected, TwoPi, 1e-8));
    }
}

TEST(SegmentGetAngle, ABezierCurveHasThatOfItsDerivative)
{
    // Towards the first control point, from the second, and half way along 3/4 (P3 + P2 - P1 - P0).
    const CSegment curve(At(0, 0), At(0, 1), At(1, 1), At(1, 0));
    EXPECT_TRUE(Near(curve.GetAngle(0), HalfPi, 1e-15));
    EXPECT_EQ(curve.GetAngle(0.5), 0);
    EXPECT_TRUE(Near(curve.GetAngle(1), ThreeHalvesPi, 1e-15));
    EXPECT_EQ(CSegment(At(3, 0), At(2, 0), At(1, 0), At(0, 0)).GetAngle(0.5), Pi);
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(-1, -1), At(5, 5), At(6, 5)).GetAngle(0), 5 * QuarterPi, 1e-14));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(-1, 1), At(5, 5), At(6, 5)).GetAngle(0), 3 * QuarterPi, 1e-14));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(1, -1), At(5, 5), At(6, 5)).GetAngle(0), 7 * QuarterPi, 1e-14));
}

TEST(SegmentGetAngle, ABezierCurveWithoutDerivativeHasNone)
{
    EXPECT_TRUE(std::isnan(CSegment(At(1, 2), At(1, 2), At(5, 6), At(7, 8)).GetAngle(0)));
    EXPECT_TRUE(std::isnan(CSegment(At(1, 2), At(1, 2), At(1, 2), At(1, 2)).GetAngle(0.5)));
}

TEST(SegmentGetAngle, ABezierCurveLooksAtNeitherItsSlotNorItsChord)
{
    // Closed, and with a slot of zero.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 1), At(1, 0), At(0, 0)).GetAngle(0), HalfPi, 1e-15));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(2, 2), At(1, 0), At(0, 0)).GetAngle(0), QuarterPi, 1e-15));
}

TEST(SegmentGetAngle, BezierCurvesAgreeWithTheDerivativeByDeCasteljau)
{
    Random random(352);
    for (int i = 0; i < 2000; ++i)
    {
        const ControlPolygon polygon = RandomControlPolygon(random);
        const double t = random.Number(-0.5, 1.5);
        const DPOINT2 derivative = BezierDerivativeAt(polygon.points, t);
        const double radian = polygon.Segment().GetAngle(t);
        // The arc cosine loses half the digits where the direction is nearly horizontal.
        ASSERT_TRUE(NearDirection(radian, std::atan2(derivative.y, derivative.x), TwoPi, 1e-7));
        ASSERT_TRUE(radian >= 0 && radian <= TwoPi);
    }
}
