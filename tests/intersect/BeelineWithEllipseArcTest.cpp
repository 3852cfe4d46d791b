#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

using namespace math;
using namespace math::test;

namespace
{

// On the ellipse with semi-axes 5 and 3 about (1, 2), own x axis along (0.6, 0.8), lie the frame points (4, 1.8) and
// (-3, 2.4). The line through them is flat in the frame: the former comes first.
const Ellipse ellipse{{1, 2}, 5, 3, std::atan2(0.8, 0.6)};
const DPOINT2 right = {1 + 0.6 * 4 - 0.8 * 1.8, 2 + 0.8 * 4 + 0.6 * 1.8};
const DPOINT2 left = {1 - 0.6 * 3 - 0.8 * 2.4, 2 - 0.8 * 3 + 0.6 * 2.4};
const double rightPolar = std::atan2(1.8, 4.0); // 0.423
const double leftPolar = std::atan2(2.4, -3.0); // 2.467
const Beeline chord{left, std::atan2(right.y - left.y, right.x - left.x)};

EllipseArc ArcOf(double start, double sweep)
{
    return {ellipse, start, sweep};
}

} // namespace

TEST(IntersectBeelineWithEllipseArc, PointsOfTheEllipseThatLieOnTheArcCount)
{
    for (const EllipseArc& arc :
         {ArcOf(0, Pi), ArcOf(3, -3), ArcOf(2, 5), ArcOf(-1, 4), ArcOf(-3, -6), ArcOf(7, 4 * Pi)})
    {
        EXPECT_TRUE(Gives(Meeting(chord, arc), 2, {right, left})) << arc.start;
    }
    for (const EllipseArc& arc : {ArcOf(0, 1), ArcOf(1, -1), ArcOf(4, 3), ArcOf(-TwoPi, 1), ArcOf(2, -2.5)})
    {
        EXPECT_TRUE(Gives(Meeting(chord, arc), 1, {right})) << arc.start;
    }
    for (const EllipseArc& arc : {ArcOf(1, 2), ArcOf(3, -2), ArcOf(0, -4), ArcOf(14, 2)})
    {
        EXPECT_TRUE(Gives(Meeting(chord, arc), 1, {left})) << arc.start << ": the second point, in the first output";
    }
    for (const EllipseArc& arc : {ArcOf(1, 1), ArcOf(0, -1), ArcOf(3, 3), ArcOf(2, -1)})
    {
        EXPECT_TRUE(Gives(Meeting(chord, arc), 0, {})) << arc.start;
    }
}

TEST(IntersectBeelineWithEllipseArc, ABeelineThatMissesTheEllipseHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{10, 0}, HalfPi}, ArcOf(0, 7)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, InvalidDouble}, ArcOf(0, 7)), 0, {}));
}

TEST(IntersectBeelineWithEllipseArc, ATangentCountsWhereItTouchesTheArc)
{
    const EllipseArc upper{{{0, 0}, 2, 1, 0}, 1, 1};
    EXPECT_TRUE(Gives(Meeting(Beeline{{5, 1}, 0}, upper), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{5, -1}, 0}, upper), 0, {}));
}

TEST(IntersectBeelineWithEllipseArc, BothEndsCountWithinTheToleranceOfAngle)
{
    // Either end, either way round, a little short of the point and too far short of it.
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(0, rightPolar)), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(0, rightPolar - 9e-10)), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(0, rightPolar - 1.1e-9)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(rightPolar + 9e-10, 1)), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(rightPolar + 1.1e-9, 1)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(1, rightPolar - 1 + 9e-10)), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(1, rightPolar - 1 + 1.1e-9)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(rightPolar - 9e-10, -1)), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(rightPolar - 1.1e-9, -1)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(rightPolar, leftPolar - rightPolar)), 2, {right, left}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(leftPolar, rightPolar - leftPolar)), 2, {right, left}));
}

TEST(IntersectBeelineWithEllipseArc, APointInTheCentreOfANeedleHasNoDirection)
{
    // The upright beeline crosses in (0, ±6e-10), both of whose coordinates are zero; in (0, ±1.2e-9) they are not.
    const Beeline upright{{0, 0}, HalfPi};
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, -1}, {0, 1}}, Ellipse{{0, 0}, 1, 6e-10, 0}), 2, {At(0, -6e-10), At(0, 6e-10)},
                      1e-20));
    for (const double start : {0.0, 0.5, 2.0, 4.0})
    {
        SCOPED_TRACE(start);
        EXPECT_TRUE(Gives(Meeting(upright, EllipseArc{{{0, 0}, 1, 6e-10, 0}, start, 6.25}), 0, {}));
        EXPECT_TRUE(Gives(Meeting(upright, EllipseArc{{{0, 0}, 1, 1.2e-9, 0}, start, 6.25}), 2,
                          {At(0, -1.2e-9), At(0, 1.2e-9)}, 1e-20));
    }
}

TEST(IntersectBeelineWithEllipseArc, AnArcOfNoSweepHoldsItsStart)
{
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(rightPolar, 0)), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(leftPolar + 5e-10, 0)), 1, {left}));
    EXPECT_TRUE(Gives(Meeting(chord, ArcOf(1, 0)), 0, {}));
}

TEST(IntersectBeelineWithEllipseArc, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 first = left;
    DPOINT2 second = ellipse.centre;
    EXPECT_EQ(
        Intersect_BeelineWithEllipseArc(first, chord.angle, second, 5, 3, ellipse.rotation, 0, Pi, &first, &second), 2);
    EXPECT_TRUE(Near(first, right, 1e-12));
    EXPECT_TRUE(Near(second, left, 1e-12));
    first = ellipse.centre;
    EXPECT_EQ(Intersect_BeelineWithEllipseArc(left, chord.angle, first, 5, 3, ellipse.rotation, 0, Pi, &first, nullptr),
              2);
    EXPECT_TRUE(Near(first, right, 1e-12));

    std::vector<DPOINT2> points = {left, ellipse.centre};
    points.shrink_to_fit();
    EXPECT_EQ(
        Intersect_BeelineWithEllipseArc(points[0], chord.angle, points[1], 5, 3, ellipse.rotation, 0, Pi, points, 2),
        2);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_TRUE(Near(points[2], right, 1e-12));
    EXPECT_TRUE(Near(points[3], left, 1e-12));
}

TEST(IntersectBeelineWithEllipseArc, KeepsWhatTheSecondMethodKeeps)
{
    Random random(41);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 4000; ++i)
    {
        const EllipseArc arc{RandomEllipse(random), random.Number(-7.0, 7.0), random.Number(-6.2, 6.2)};
        const Beeline beeline{random.Point(1.5), random.Number(-7.0, 7.0)};
        bool clear = true;
        const auto expected = KeepOnArc(BeelineMeetsEllipse(beeline, arc.whole, clear), arc, clear);
        DPOINT2 first;
        DPOINT2 second;
        const int literal = reference::BeelineWithEllipseArc(beeline.point, beeline.angle, arc, &first, &second);
        const std::vector<DPOINT2> both = {first, second};
        const std::vector<DPOINT2> points(both.begin(), both.begin() + literal);
        ASSERT_TRUE(Gives(Meeting(beeline, arc), literal, points, 0)) << i;
        if (clear)
        {
            ASSERT_TRUE(SameSet(points, expected, 1e-10)) << i;
            ++counts[expected.size()];
        }
    }
    EXPECT_GT(counts[0], 300);
    EXPECT_GT(counts[1], 300);
    EXPECT_GT(counts[2], 300);
}
