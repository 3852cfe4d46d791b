#include "math/CSegment.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

// CSegment::GetPoint.

TEST(SegmentGetPoint, ASegmentOfNoKindIsTheOrigin)
{
    CSegment segment;
    segment.start = At(1, 2);
    segment.end = At(3, 4);
    for (const int type : {0, 4, -1})
    {
        segment.type = type;
        EXPECT_EQ(segment.GetPoint(0.5), At(0, 0));
        EXPECT_EQ(segment.GetPoint(0), At(0, 0));
    }
}

TEST(SegmentGetPoint, ALineIsInterpolatedAndExtrapolated)
{
    const CSegment line(At(0, 0), At(2, 0));
    EXPECT_EQ(line.GetPoint(0), At(0, 0));
    EXPECT_EQ(line.GetPoint(0.25), At(0.5, 0));
    EXPECT_EQ(line.GetPoint(1), At(2, 0));
    EXPECT_EQ(line.GetPoint(1.5), At(3, 0));
    EXPECT_EQ(line.GetPoint(-0.5), At(-1, 0));
    EXPECT_EQ(CSegment(At(1, 2), At(5, -6)).GetPoint(0.25), At(2, 0));
}

TEST(SegmentGetPoint, ALineReachesItsEndsExactly)
{
    // start + (end - start) would lose the small end in the great start.
    const CSegment line(At(1e17, 0.1), At(0.3, 0.7));
    EXPECT_EQ(line.GetPoint(0), At(1e17, 0.1));
    EXPECT_EQ(line.GetPoint(1), At(0.3, 0.7));
}

TEST(SegmentGetPoint, AHalfCircleRunsByItsBulge)
{
    const CSegment upper(At(1, 0), At(-1, 0), 1);
    EXPECT_TRUE(Near(upper.GetPoint(0), At(1, 0), 1e-15));
    EXPECT_TRUE(Near(upper.GetPoint(0.5), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(upper.GetPoint(1), At(-1, 0), 1e-15));
    EXPECT_TRUE(Near(upper.GetPoint(2), At(1, 0), 1e-15)) << "the parameter scales the sweep";
    EXPECT_TRUE(Near(upper.GetPoint(-0.5), At(0, -1), 1e-15));
    EXPECT_TRUE(Near(upper.GetPoint(1.0 / 3), At(0.5, std::sqrt(0.75)), 1e-15)) << "60° on";

    const CSegment lower(At(1, 0), At(-1, 0), -1);
    EXPECT_TRUE(Near(lower.GetPoint(0.5), At(0, -1), 1e-15));
    EXPECT_TRUE(Near(lower.GetPoint(1.0 / 3), At(0.5, -std::sqrt(0.75)), 1e-15));
}

TEST(SegmentGetPoint, TheBulgeIsTheHeightOverHalfTheChord)
{
    // To the right of the way from start to end for a positive bulge: below this chord.
    for (const double bulge : {0.25, 0.5, 1.0, 2.0, -0.25, -0.5, -1.0, -2.0})
    {
        EXPECT_TRUE(Near(CSegment(At(-1, 3), At(1, 3), bulge).GetPoint(0.5), At(0, 3 - bulge), 1e-15)) << bulge;
    }
}

TEST(SegmentGetPoint, AnArcWithoutBulgeOrChordIsStraight)
{
    for (const double bulge : {0.0, 1e-10, -1e-10, Previous(1e-9)})
    {
        EXPECT_EQ(CSegment(At(0, 0), At(4, 2), bulge).GetPoint(0.25), At(1, 0.5)) << bulge;
    }
    for (const double t : {0.0, 0.5, 1.0, 7.0})
    {
        EXPECT_EQ(CSegment(At(3, 4), At(3, 4), 0.5).GetPoint(t), At(3, 4)) << t;
    }
}

TEST(SegmentGetPoint, ABulgeOfTheToleranceIsAnArc)
{
    // So flat an arc lies on a circle of radius 5e8, where rounding moves its points: not those of the chord.
    const CSegment arc(At(0.1, 0.2), At(1.7, 1.3), 1e-9);
    DPOINT2 centre;
    double radius = 0;
    double from = 0;
    double sweep = 0;
    ASSERT_TRUE(SolveArc(arc.start, arc.end, 1e-9, &centre, &radius, &from, &sweep));
    const double radian = from + sweep * 0.25;
    const DPOINT2 expected = At(centre.x + std::cos(radian) * radius, centre.y + std::sin(radian) * radius);
    ASSERT_NE(expected, CSegment(arc.start, arc.end).GetPoint(0.25));
    EXPECT_EQ(arc.GetPoint(0.25), expected);
}

TEST(SegmentGetPoint, EndsCoincideByCoordinates)
{
    // The ends are 1.27e-9 apart, but below the tolerance in each coordinate: straight.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(9e-10, 9e-10), 1).GetPoint(0.5), At(4.5e-10, 4.5e-10), 1e-20));
    // Exactly the tolerance apart in one coordinate: a half circle, below a chord to the right, left of one upward.
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(1e-9, 0), 1).GetPoint(0.5), At(5e-10, -5e-10), 1e-20));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 1e-9), 1).GetPoint(0.5), At(5e-10, 5e-10), 1e-20));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(Previous(1e-9), 0), 1).GetPoint(0.5), At(5e-10, 0), 1e-20));
}

TEST(SegmentGetPoint, ALineDoesNotLookAtItsSlot)
{
    CSegment segment(At(1, 0), At(-1, 0), 0.5);
    segment.Set(At(0, 0), At(4, 2));
    EXPECT_EQ(segment.GetPoint(0.25), At(1, 0.5));
}

TEST(SegmentGetPoint, ArcsAreTheirStartTurnedAboutTheCentre)
{
    Random random(301);
    for (int i = 0; i < 2000; ++i)
    {
        const CSegment arc = RandomArcSegment(random);
        const double t = random.Number(-1, 2);
        // A nearly closed arc has its centre far off its short chord: the rounding of the ends is magnified there.
        ASSERT_TRUE(Near(arc.GetPoint(t), ArcAt(arc.start, arc.end, arc.bulge, t), 1e-11));
    }
}

TEST(SegmentGetPoint, ABezierCurveOfEvenControlsIsEven)
{
    const CSegment curve(At(0, 0), At(1, 0), At(2, 0), At(3, 0));
    EXPECT_EQ(curve.GetPoint(0.5), At(1.5, 0));
    EXPECT_EQ(curve.GetPoint(2), At(6, 0));
}

TEST(SegmentGetPoint, ABezierCurveWeighsItsControlPoints)
{
    // At 1/2 with 1 : 3 : 3 : 1 eighths, at 1/4 with 27 : 27 : 9 : 1 of 64.
    const CSegment curve(At(8, 0), At(0, 8), At(0, 16), At(0, 64));
    EXPECT_EQ(curve.GetPoint(0), At(8, 0));
    EXPECT_EQ(curve.GetPoint(0.5), At(1, 3 + 6 + 8));
    EXPECT_EQ(curve.GetPoint(0.25), At(27.0 / 8, 27.0 / 8 + 9.0 / 4 + 1));
    EXPECT_EQ(curve.GetPoint(1), At(0, 64));
}

TEST(SegmentGetPoint, ABezierCurveIsEvaluatedByHornersRule)
{
    Random random(302);
    for (int i = 0; i < 1000; ++i)
    {
        const ControlPolygon polygon = RandomControlPolygon(random);
        const double t = random.Number(-1, 2);
        const auto horner = [t](double p0, double p1, double p2, double p3) {
            const double cubic = p3 - 3 * p2 + 3 * p1 - p0;
            const double square = (p2 - 2 * p1 + p0) * 3;
            return ((cubic * t + square) * t + (p1 - p0) * 3) * t + p0;
        };
        const auto& p = polygon.points;
        const DPOINT2 point = polygon.Segment().GetPoint(t);
        ASSERT_EQ(point, At(horner(p[0].x, p[1].x, p[2].x, p[3].x), horner(p[0].y, p[1].y, p[2].y, p[3].y)));
        ASSERT_TRUE(Near(point, BezierAt(p, t), 1e-12));
    }
}

TEST(SegmentGetPoint, AParameterThatIsNoneGivesNone)
{
    const DPOINT2 none = At(InvalidDouble, InvalidDouble);
    EXPECT_EQ(CSegment(At(1, 2), At(3, 4)).GetPoint(InvalidDouble), none);
    EXPECT_EQ(CSegment(At(1, 2), At(3, 4), 1).GetPoint(InvalidDouble), none);
    EXPECT_EQ(CSegment(At(1, 2), At(3, 4), At(5, 6), At(7, 8)).GetPoint(InvalidDouble), none);
}
