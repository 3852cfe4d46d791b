#include "math/CSegment.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

// By type

TEST(SegmentGetBoundRect, IsThatOfTheKind)
{
    EXPECT_TRUE(IsBox(CSegment(At(3, 1), At(-1, 2)).GetBoundRect(), -1, 1, 4, 1, 0));
    EXPECT_TRUE(IsBox(CSegment(At(1, 0), At(-1, 0), 1).GetBoundRect(), -1, 0, 2, 1, 1e-15));
    EXPECT_TRUE(IsBox(CSegment(At(0, 0), At(0, 1), At(1, 1), At(1, 0)).GetBoundRect(), 0, 0, 1, 0.75, 1e-12));
    CSegment former(At(1, 0), At(-1, 0), 1);
    former.Set(At(1, 0), At(-1, 0));
    EXPECT_TRUE(IsBox(former.GetBoundRect(), -1, 0, 2, 0, 0)) << "a line does not look at its slot";
}

TEST(SegmentGetBoundRect, ASegmentOfNoKindHasAnEmptyOne)
{
    CSegment segment(At(3, 1), At(-1, 2));
    for (const int type : {0, 4, -1})
    {
        segment.type = type;
        EXPECT_TRUE(IsBox(segment.GetBoundRect(), 0, 0, 0, 0, 0));
    }
}

TEST(SegmentGetBoundRect, TakesTheControlPolygonInItsOrder)
{
    const CSegment curve(At(0, 0), At(4, 1), At(-3, 2), At(1, 7));
    const DRECT box = curve.GetBoundRect();
    const DRECT same = CSegment::GetBoundRectOfBezier(At(0, 0), At(4, 1), At(-3, 2), At(1, 7));
    EXPECT_TRUE(IsBox(box, same.x, same.y, same.width, same.height, 0));
    const CSegment arc(At(1, 2), At(5, 3), -0.7);
    const DRECT ofArc = CSegment::GetBoundRectOfArc(At(1, 2), At(5, 3), -0.7);
    EXPECT_TRUE(IsBox(arc.GetBoundRect(), ofArc.x, ofArc.y, ofArc.width, ofArc.height, 0));
}

// Lines

TEST(SegmentGetBoundRect, OfALineIsThatOfItsEnds)
{
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfLine(At(3, 1), At(-1, 2)), -1, 1, 4, 1, 0));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfLine(At(-1, 2), At(3, 1)), -1, 1, 4, 1, 0));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfLine(At(1, 2), At(3, 8)), 1, 2, 2, 6, 0));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfLine(At(1, 2), At(3, 2)), 1, 2, 2, 0, 0)) << "level";
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfLine(At(1, 2), At(1, 2)), 1, 2, 0, 0, 0)) << "of no length";
}

// Arcs

TEST(SegmentGetBoundRect, OfAnArcReachesTheAxisPointsOnItOnly)
{
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(1, 0), At(-1, 0), 1), -1, 0, 2, 1, 1e-15));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(1, 0), At(-1, 0), -1), -1, -1, 2, 1, 1e-15));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(-1, 0), At(1, 0), 1), -1, -1, 2, 1, 1e-15));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(0, -1), At(0, 1), 1), 0, -1, 1, 2, 1e-15));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(0, -1), At(0, 1), -1), -1, -1, 1, 2, 1e-15));
}

TEST(SegmentGetBoundRect, OfAnArcWithoutBulgeOrChordIsThatOfItsEnds)
{
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(3, 1), At(-1, 2), 0), -1, 1, 4, 1, 0));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(0, 0), At(2e6, 0), Previous(1e-9)), 0, 0, 2e6, 0, 0))
        << "though 1e-3 high by its bulge";
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(3, 1), At(3, 1), 1), 3, 1, 0, 0, 0));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(0, 0), At(9e-10, 9e-10), 1), 0, 0, 9e-10, 9e-10, 0))
        << "ends that coincide by coordinates";
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(0, 0), At(1e-9, 0), 1), 0, -5e-10, 1e-9, 5e-10, 1e-23));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfArc(At(0, 0), At(0, 1e-9), 1), 0, 0, 5e-10, 1e-9, 1e-23));
}

TEST(SegmentGetBoundRect, OfAnArcOfTheToleranceFollowsTheArc)
{
    // 1e-3 high over a chord of 2e6. Its circle has the radius 5e14, where doubles lie 1/16 apart, so that its lowest
    // point comes out on a multiple of that; what counts is that it is looked for.
    const DPOINT2 start = At(0, 0.3);
    const DPOINT2 end = At(2e6, 0.3);
    DPOINT2 centre;
    double radius = 0;
    ASSERT_TRUE(SolveArc(start, end, 1e-9, &centre, &radius, nullptr, nullptr));
    const double lowest = centre.y - radius;
    ASSERT_NE(lowest, 0.3);
    EXPECT_TRUE(
        IsBox(CSegment::GetBoundRectOfArc(start, end, 1e-9), 0, std::min(0.3, lowest), 2e6, std::abs(0.3 - lowest), 0));
}

TEST(SegmentGetBoundRect, OfAnArcIsWhatItsAxisPointsMakeIt)
{
    // About (10, 20) with radius 5. Each row tells which of the sides reach the circle's own: right, top, left, bottom.
    struct
    {
        double from;
        double sweep;
        bool reaches[4];
    } const rows[] = {
        {0.2, 1, {false, false, false, false}},  {1, 1, {false, true, false, false}},
        {1, 3, {false, true, true, false}},      {1, 4, {false, true, true, true}},
        {1, 6, {true, true, true, true}},        {2, 0.5, {false, false, false, false}},
        {3, 1, {false, false, true, false}},     {4, 1, {false, false, false, true}},
        {5, 1, {false, false, false, false}},    {6, 1, {true, false, false, false}},
        {6, 2, {true, true, false, false}},      {6, 4, {true, true, true, false}},
        {4, 6, {true, true, true, true}},        {5, 4.5, {true, true, true, false}},
        {1.2, -1, {false, false, false, false}}, {2, -1, {false, true, false, false}},
        {1, -2, {true, false, false, false}},    {1, -3, {true, false, false, true}},
        {1, -5, {true, false, true, true}},      {1, -6, {true, true, true, true}},
        {4, -2, {false, false, true, false}},    {5, -4, {false, true, true, true}},
    };
    for (const auto& row : rows)
    {
        const CSegment arc = ArcOfAngles(At(10, 20), 5, row.from, row.sweep);
        const double right = row.reaches[0] ? 15 : std::max(arc.start.x, arc.end.x);
        const double top = row.reaches[1] ? 25 : std::max(arc.start.y, arc.end.y);
        const double left = row.reaches[2] ? 5 : std::min(arc.start.x, arc.end.x);
        const double bottom = row.reaches[3] ? 15 : std::min(arc.start.y, arc.end.y);
        EXPECT_TRUE(IsBox(arc.GetBoundRect(), left, bottom, right - left, top - bottom, 1e-12))
            << row.from << " over " << row.sweep;
    }
}

TEST(SegmentGetBoundRect, AnAxisPointJustBeyondAnEndOfAnArcCounts)
{
    // With radius 1000 an angle of 5e-10 moves the end by 5e-7 across: the axis point widens the box by that.
    const double wide = 1000;
    for (int axis = 0; axis < 4; ++axis)
    {
        const double direction = axis * HalfPi;
        for (const double sign : {1.0, -1.0})
        {
            for (const double off : {5e-10, 2e-9})
            {
                // The arc ends short of the axis point, or begins beyond it; either way it lies on one side of it.
                const CSegment ending = ArcOfAngles(At(0, 0), wide, direction - sign, sign - sign * off);
                const CSegment beginning = ArcOfAngles(At(0, 0), wide, direction + sign * off, sign);
                std::vector<DPOINT2> endingAt = {ending.start, ending.end};
                std::vector<DPOINT2> beginningAt = {beginning.start, beginning.end};
                if (off < 1e-9)
                {
                    const DPOINT2 axisPoint = At(wide * std::cos(direction), wide * std::sin(direction));
                    endingAt.push_back(axisPoint);
                    beginningAt.push_back(axisPoint);
                }
                EXPECT_TRUE(IsBoxOf(ending.GetBoundRect(), endingAt, 1e-9)) << axis << ", " << sign << ", " << off;
                EXPECT_TRUE(IsBoxOf(beginning.GetBoundRect(), beginningAt, 1e-9))
                    << axis << ", " << sign << ", " << off;
            }
        }
    }
}

TEST(SegmentGetBoundRect, TheToleranceOfAxisPointsIncludesItsBound)
{
    // Arcs of radius 1000 that begin about 1e-9 beyond the lowest point, or end about 1e-9 before it, in steps of the
    // resolution of their angles: among them are some whose bound is the direction of the lowest point itself.
    int begunOnBound = 0;
    int endedOnBound = 0;
    for (int k = -20; k <= 20; ++k)
    {
        DPOINT2 centre;
        double from = 0;
        double sweep = 0;
        const CSegment beyond = ArcOfAngles(At(0, 0), 1000, ThreeHalvesPi + 1e-9 + k * 0x1p-50, 1);
        ASSERT_TRUE(SolveArc(beyond.start, beyond.end, beyond.bulge, &centre, nullptr, &from, nullptr));
        begunOnBound += from - 1e-9 == ThreeHalvesPi ? 1 : 0;
        const double left = from - 1e-9 <= ThreeHalvesPi ? centre.x : beyond.start.x; // 0 or 1e-6
        ASSERT_TRUE(Near(beyond.GetBoundRect().x, left, 1e-9)) << k;

        const CSegment before = ArcOfAngles(At(0, 0), 1000, ThreeHalvesPi - 1e-9 - 1 + k * 0x1p-50, 1);
        ASSERT_TRUE(SolveArc(before.start, before.end, before.bulge, &centre, nullptr, &from, &sweep));
        endedOnBound += (from + sweep) + 1e-9 == ThreeHalvesPi ? 1 : 0;
        const double right = (from + sweep) + 1e-9 >= ThreeHalvesPi ? centre.x : before.end.x; // 0 or -1e-6
        const DRECT box = before.GetBoundRect();
        ASSERT_TRUE(Near(box.x + box.width, right, 1e-9)) << k;
    }
    EXPECT_GT(begunOnBound, 0);
    EXPECT_GT(endedOnBound, 0);
}

TEST(SegmentGetBoundRect, OfAnArcHoldsDenseSamplesAndTouchesThem)
{
    Random random(361);
    for (int i = 0; i < 300; ++i)
    {
        const CSegment arc = RandomArcSegment(random);
        std::vector<DPOINT2> samples;
        for (int k = 0; k <= 2000; ++k)
        {
            samples.push_back(ArcAt(arc.start, arc.end, arc.bulge, k / 2000.0));
        }
        // Between two samples the arc rises by at most r (sweep / 4000)² / 2, with r to 4 and sweep to 6, on each side.
        ASSERT_TRUE(IsBoxOf(arc.GetBoundRect(), samples, 1e-5));
    }
}

// Bezier curves

TEST(SegmentGetBoundRect, OfABezierCurveIsThatOfItsPoints)
{
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfBezier(At(0, 0), At(0, 1), At(1, 1), At(1, 0)), 0, 0, 1, 0.75, 1e-12));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfBezier(At(5, 5), At(4, 5), At(4, 4), At(5, 4)), 4.25, 4, 0.75, 1, 1e-12));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfBezier(At(1, 2), At(1, 2), At(1, 2), At(1, 2)), 1, 2, 0, 0, 0));
}

TEST(SegmentGetBoundRect, OfABezierCurveBeginsAtItsStartAndStopsAtItsEnd)
{
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfBezier(At(1, 1), At(2, 0), At(3, -1), At(4, -2)), 1, -2, 3, 3, 1e-12));
    EXPECT_TRUE(IsBox(CSegment::GetBoundRectOfBezier(At(4, -2), At(3, -1), At(2, 0), At(1, 1)), 1, -2, 3, 3, 1e-12));
}

TEST(SegmentGetBoundRect, OfABezierCurveIsSampledEachThousandth)
{
    // y = 4 (t - 0.0005)² falls from 1e-6 to 0 half way to the first sample and is back at 1e-6 there: 0 is never seen.
    // In Bezier form y has the values 1e-6, 1e-6 - 0.004 / 3, 1e-6 - 0.008 / 3 + 4 / 3, 1e-6 - 0.004 + 4.
    const double y0 = 1e-6;
    const DRECT box = CSegment::GetBoundRectOfBezier(At(0, y0), At(1, y0 - 0.004 / 3), At(2, y0 - 0.008 / 3 + 4.0 / 3),
                                                     At(3, y0 - 0.004 + 4));
    EXPECT_TRUE(Near(box.y, 1e-6, 1e-14));
}

TEST(SegmentGetBoundRect, OfABezierCurveHoldsItsThousandthsAndFallsShortOfMoreByLittle)
{
    Random random(362);
    for (int i = 0; i < 100; ++i)
    {
        const ControlPolygon polygon = RandomControlPolygon(random);
        std::vector<DPOINT2> thousandths;
        std::vector<DPOINT2> dense;
        for (int k = 0; k <= 10000; ++k)
        {
            dense.push_back(BezierAt(polygon.points, k / 10000.0));
            if (k % 10 == 0)
            {
                thousandths.push_back(dense.back());
            }
        }
        const DRECT box = polygon.Segment().GetBoundRect();
        ASSERT_TRUE(IsBoxOf(box, thousandths, 1e-11));
        // Half a step from an extreme the curve has risen by its acceleration times 0.0005² / 2. The acceleration is at
        // most 6 times a second difference of the controls, which are at most 20 here.
        ASSERT_TRUE(IsBoxOf(box, dense, 2 * 6 * 20 * 0.0005 * 0.0005 / 2));
    }
}
