#include "math/Intersect.h"
#include "support/Ellipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// x²/500² + y²/300² = 1 and (x - 100)² + y² = 97600 meet at x = 300 and x = 12.5, y = ±240 and ±299.906. Seen from the
// ellipse's centre: 0.675, 1.529, 4.754 and 5.608. On figures of this size what a search leaves of a point counts as on
// the curve.
const Ellipse wide{{0, 0}, 500, 300, 0};
const Circle circle{{100, 0}, std::sqrt(97600.0)};
const double upperY = 300 * std::sqrt(1 - 1.0 / 1600);
const std::vector<DPOINT2> crossings = {{300, 240}, {12.5, upperY}, {12.5, -upperY}, {300, -240}};

EllipseArc ArcOf(double start, double sweep)
{
    return {wide, start, sweep};
}

} // namespace

TEST(IntersectCircleWithEllipseArc, CrossingsOnTheArcCountInTheOrderOfTheEllipse)
{
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(0, 6.2)), 4, crossings, 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(6, -6)), 4, crossings, 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(1, 5)), 3, Pick(crossings, {1, 2, 3}), 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(5, -5)), 3, Pick(crossings, {0, 1, 2}), 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(5, 2)), 2, Pick(crossings, {0, 3}), 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(1, -2)), 2, Pick(crossings, {0, 3}), 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(4, 1)), 1, Pick(crossings, {2}), 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(-1, -1)), 1, Pick(crossings, {2}), 1e-7));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(2, 2)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(4, -2)), 0, {}));
}

TEST(IntersectCircleWithEllipseArc, ASweepTooSmallLeavesEverythingAsItIs)
{
    for (const double sweep : {0.0, 9e-10, -9e-10})
    {
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(circle, ArcOf(std::atan2(240, 300), sweep)), 0, {})) << sweep;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{0, 0}, 1}, EllipseArc{{{0, 0}, 1, 1, 0}, 0, sweep}), 0, {}));
    }
    for (const double sweep : {1.1e-9, -1.1e-9})
    {
        EXPECT_TRUE(GivesFour(Meeting(circle, ArcOf(2, sweep)), 0, {})) << sweep;
    }
}

TEST(IntersectCircleWithEllipseArc, NothingToMeetFillsTheOutputs)
{
    EXPECT_TRUE(GivesFour(Meeting(Circle{{0, 0}, 0}, ArcOf(0, 1)), 0, {})) << "no radius";
    EXPECT_TRUE(GivesFour(Meeting(circle, EllipseArc{{{0, 0}, 0, 0, 0}, 0, 1}), 0, {})) << "no size";
    EXPECT_TRUE(GivesFour(Meeting(Circle{{0, 0}, 5}, ArcOf(0, 1)), 0, {})) << "inside";
    EXPECT_TRUE(GivesFour(Meeting(Circle{{0, 0}, -1}, EllipseArc{{{1, 0}, 1, 1, 0}, 0, 6}), 0, {})) << "negative";
}

TEST(IntersectCircleWithEllipseArc, OnItsOwnCircleTheArcHasNoSinglePoint)
{
    EXPECT_TRUE(GivesFour(Meeting(Circle{{1, 2}, 3}, EllipseArc{{{1, 2}, 3, 3, 0.5}, 1, 2}), -1, {}));
    EXPECT_TRUE(GivesFour(Meeting(Circle{{1, 2}, 3}, EllipseArc{{{1, 2}, 3, 3, 0.5}, 1, -2}), -1, {}));
}

TEST(IntersectCircleWithEllipseArc, ArcsOfEqualSemiAxesAreThoseOfACircle)
{
    // Unit circles about (0, 0) and (1, 0): seen from (1, 0) the upper point lies at 2π/3, the lower at 4π/3. The arc
    // counts from the rotation.
    const double height = std::sqrt(0.75);
    const Circle unit{{0, 0}, 1};
    const Ellipse round{{1, 0}, 1, 1, 0.5};
    EXPECT_TRUE(GivesFour(Meeting(unit, EllipseArc{round, 1.5, 2.5}), 2, {{0.5, height}, {0.5, -height}}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(unit, EllipseArc{round, 1.5, 1}), 1, {{0.5, height}}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(unit, EllipseArc{round, 1.7, 2}), 1, {{0.5, -height}}, 1e-14)) << "2.2 to 4.2";
    EXPECT_TRUE(GivesFour(Meeting(unit, EllipseArc{round, 1.5, -1}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(unit, EllipseArc{{{2, 0}, 1, 1, 0}, 3, 1}), 1, {{1, 0}}, 1e-14)) << "touching";
    EXPECT_TRUE(GivesFour(Meeting(unit, EllipseArc{{{2, 0}, 1, 1, 0}, 3, -1}), 0, {}));
}

TEST(IntersectCircleWithEllipseArc, AFlatArcHoldsNothing)
{
    // The stretch meets the circle in two points, but no point lies on an ellipse whose equation divides 0 by 0.
    EXPECT_TRUE(GivesFour(Meeting(Circle{{0, 0}, 1}, EllipseArc{{{0, 0}, 2, 0, 0}, -1, 6}), 0, {}));
}

TEST(IntersectCircleWithEllipseArc, EndsCountWithinTheToleranceOfAngle)
{
    const FourResult whole = OutputsOf(Meeting(circle, wide));
    ASSERT_EQ(whole.code, 4);
    const double polar = std::atan2(whole.outputs[0].y, whole.outputs[0].x);
    const auto code = [&](double start, double sweep) { return OutputsOf(Meeting(circle, ArcOf(start, sweep))).code; };
    EXPECT_EQ(code(polar, 0.5), 1);
    EXPECT_EQ(code(polar + 9e-10, 0.5), 1);
    EXPECT_EQ(code(polar + 1.1e-9, 0.5), 0);
    EXPECT_EQ(code(polar - 0.5, 0.5 - 9e-10), 1);
    EXPECT_EQ(code(polar - 0.5, 0.5 - 1.1e-9), 0);
    EXPECT_EQ(code(polar - 9e-10, -0.5), 1);
    EXPECT_EQ(code(polar - 1.1e-9, -0.5), 0);
    EXPECT_EQ(code(polar + 0.5, -0.5 + 9e-10), 1);
    EXPECT_EQ(code(polar + 0.5, -0.5 + 1.1e-9), 0);
}

TEST(IntersectCircleWithEllipseArc, KeepsWhatLiesOnTheArcWithADirection)
{
    Random random(121);
    int counts[5] = {0, 0, 0, 0, 0};
    for (int i = 0; i < 3000; ++i)
    {
        const EllipseArc arc{LongAxisFirst(RandomEllipse(random, 100, 0.4)), random.Number(-7, 7),
                             random.Number(-6.5, 6.5)};
        const Circle met{random.Point(40), random.Number(40, 160)};
        std::vector<DPOINT2> kept;
        for (const DPOINT2& point : OutputsOf(Meeting(met, arc.whole)).Points())
        {
            if (IsPointInEllipseArc(point, arc.whole.centre, arc.whole.a, arc.whole.b, arc.whole.rotation, arc.start,
                                    std::abs(arc.sweep), arc.sweep > 0))
            {
                kept.push_back(point);
            }
        }
        const int code = static_cast<int>(kept.size());
        ASSERT_TRUE(IsExactly(OutputsOf(Meeting(met, arc)), code, kept)) << i;
        ++counts[code];
        if (i % 20 == 0)
        {
            ASSERT_TRUE(GivesFour(Meeting(met, arc), code, kept, 0)) << i;
        }
    }
    for (const int count : counts)
    {
        EXPECT_GT(count, 20);
    }
}

TEST(IntersectCircleWithEllipseArc, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 outputs[4] = {circle.centre, wide.centre, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_CircleWithEllipseArc(outputs[0], circle.radius, outputs[1], 500, 300, 0, 5, 2, &outputs[1],
                                             &outputs[0], &outputs[2], &outputs[3]),
              2);
    EXPECT_TRUE(Near(outputs[1], crossings[0], 1e-7));
    EXPECT_TRUE(Near(outputs[0], crossings[3], 1e-7));
    std::vector<DPOINT2> points = {circle.centre, wide.centre};
    EXPECT_EQ(Intersect_CircleWithEllipseArc(points[0], circle.radius, points[1], 500, 300, 0, 5, 2, points, -1), 2);
    EXPECT_TRUE(SameSet(points, Pick(crossings, {0, 3}), 1e-7));
}
