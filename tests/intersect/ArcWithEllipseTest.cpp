#include "math/Intersect.h"
#include "support/Ellipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// x²/25 + y²/9 = 1 and (x - 1)² + y² = 9.76 meet at x = 3 and x = 1/8, y = ±2.4 and ±2.999. Seen from (1, 0), the
// centre of the arc: 0.876, 1.855, 4.429 and 5.407.
const Ellipse wide{{0, 0}, 5, 3, 0};
const double radius = std::sqrt(9.76);
const double upperY = 3 * std::sqrt(1 - 1.0 / 1600);
const std::vector<DPOINT2> crossings = {{3, 2.4}, {0.125, upperY}, {0.125, -upperY}, {3, -2.4}};

// 1e-9 of height at the flat crossing, over the difference 0.3 of the slopes there.
constexpr double nearby = 3e-8;

Arc ArcOf(double start, double sweep)
{
    return {{1, 0}, radius, start, sweep};
}

} // namespace

TEST(IntersectArcWithEllipse, CrossingsOnTheArcCountInTheOrderOfTheEllipse)
{
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 6.2), wide), 4, crossings, nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(6, -6), wide), 4, crossings, nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(1, 5), wide), 3, Pick(crossings, {1, 2, 3}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(5, -5), wide), 3, Pick(crossings, {0, 1, 2}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(5, 2.5), wide), 2, Pick(crossings, {0, 3}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(4, -3), wide), 1, Pick(crossings, {1}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(4, 1), wide), 1, Pick(crossings, {2}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(2, 2), wide), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0.8, -1), wide), 0, {}));
}

TEST(IntersectArcWithEllipse, ASweepTooSmallLeavesEverythingAsItIs)
{
    const double atCrossing = std::atan2(2.4, 2.0);
    for (const double sweep : {0.0, 1e-10, -1e-10, 9e-10, -9e-10})
    {
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(ArcOf(atCrossing, sweep), wide), 0, {})) << sweep;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Arc{{0, 0}, 1, 0, sweep}, Ellipse{{0, 0}, 1, 1, 0}), 0, {})) << sweep;
    }
    for (const double sweep : {1.1e-9, -1.1e-9})
    {
        EXPECT_TRUE(GivesFour(Meeting(ArcOf(2, sweep), wide), 0, {})) << sweep;
    }
}

TEST(IntersectArcWithEllipse, NothingToMeetFillsTheOutputs)
{
    EXPECT_TRUE(GivesFour(Meeting(Arc{{5, 0}, 0, 0, 6}, wide), 0, {})) << "no radius";
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, 1, 0, 6}, Ellipse{{1, 0}, 0, 0, 0}), 0, {})) << "no size";
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, 1, 0, 6}, wide), 0, {})) << "inside";
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, -1, 0, 6}, Ellipse{{1, 0}, 1, 1, 0}), 0, {})) << "negative";
}

TEST(IntersectArcWithEllipse, OnItsOwnCircleTheArcHasNoSinglePoint)
{
    EXPECT_TRUE(GivesFour(Meeting(Arc{{1, 2}, 3, 1, 2}, Ellipse{{1, 2}, 3, 3, 0.5}), -1, {}));
    EXPECT_TRUE(GivesFour(Meeting(Arc{{1, 2}, 3, 1, -2}, Ellipse{{1, 2}, 3, 3, 0.5}), -1, {}));
}

TEST(IntersectArcWithEllipse, RoundAndFlatEllipsesAreCirclesAndStretches)
{
    const double height = std::sqrt(0.75);
    EXPECT_TRUE(
        GivesFour(Meeting(Arc{{0, 0}, 1, -2, 4}, Ellipse{{1, 0}, 1, 1, 7}), 2, {{0.5, height}, {0.5, -height}}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, 1, 0, -2}, Ellipse{{1, 0}, 1, 1, 7}), 1, {{0.5, -height}}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, 1, -1, 2}, Ellipse{{2, 0}, 1, 1, 7}), 1, {{1, 0}}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, 1, -1, 6}, Ellipse{{0, 0}, 2, 0, 0}), 2, {{1, 0}, {-1, 0}}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(Arc{{0, 0}, 1, 2, 2}, Ellipse{{0, 0}, 2, 0, 0}), 1, {{-1, 0}}, 1e-14));
}

TEST(IntersectArcWithEllipse, EndsCountWithinTheToleranceOfADistance)
{
    const FourResult whole = OutputsOf(Meeting(Circle{{1, 0}, radius}, wide));
    ASSERT_EQ(whole.code, 4);
    const double direction = std::atan2(whole.outputs[0].y, whole.outputs[0].x - 1);
    const auto code = [&](double start, double sweep) { return OutputsOf(Meeting(ArcOf(start, sweep), wide)).code; };
    EXPECT_EQ(code(direction, 0.5), 1);
    EXPECT_EQ(code(direction - 0.5, 0.5), 1);
    // Beyond the end 1e-9 of angle count, before the start 1e-9 of distance, a third of that on this radius.
    EXPECT_EQ(code(direction - 0.5, 0.5 - 9e-10), 1);
    EXPECT_EQ(code(direction - 0.5, 0.5 - 1.1e-9), 0);
    EXPECT_EQ(code(direction + 0.9e-9 / radius, 0.5), 1);
    EXPECT_EQ(code(direction + 1.1e-9 / radius, 0.5), 0);
    EXPECT_EQ(code(direction + 0.5, -0.5 + 9e-10), 1);
    EXPECT_EQ(code(direction + 0.5, -0.5 + 1.1e-9), 0);
    EXPECT_EQ(code(direction - 0.9e-9 / radius, -0.5), 1);
    EXPECT_EQ(code(direction - 1.1e-9 / radius, -0.5), 0);
}

TEST(IntersectArcWithEllipse, OnlyTheDirectionOfAPointIsTested)
{
    // A steep crossing is found with an error of its slope times 1e-9, which takes it off the circle: it counts all the
    // same.
    Random random(131);
    int off = 0;
    for (int i = 0; i < 20000 && off < 20; ++i)
    {
        const Ellipse ellipse = LongAxisFirst(RandomEllipse(random));
        const Circle circle{random.Point(1.0), random.Number(0.5, 1.6)};
        const FourResult whole = OutputsOf(Meeting(circle, ellipse));
        const std::vector<DPOINT2> points = whole.Points();
        if (std::none_of(points.begin(), points.end(), [&](const DPOINT2& point) {
                return std::abs(DistanceOf(point, circle.centre) - circle.radius) > 1.5e-9;
            }))
        {
            continue;
        }
        ASSERT_TRUE(
            IsExactly(OutputsOf(Meeting(Arc{circle.centre, circle.radius, 0, 6.3}, ellipse)), whole.code, points));
        // The member that tests the distance as well drops it.
        EXPECT_LT(OutputsOf(Meeting(Arc{circle.centre, circle.radius, 0, 6.3}, EllipseArc{ellipse, 0, 6.3})).code,
                  whole.code);
        ++off;
    }
    EXPECT_GE(off, 5);
}

TEST(IntersectArcWithEllipse, KeepsWhatLiesInTheDirectionsOfTheArc)
{
    Random random(132);
    int counts[5] = {0, 0, 0, 0, 0};
    for (int i = 0; i < 4000; ++i)
    {
        const Ellipse ellipse = LongAxisFirst(RandomEllipse(random, 1, 0.4));
        const DPOINT2 centre = random.Point(0.4);
        const Arc arc{centre, random.Number(0.4, 1.6), random.Number(-7, 7), random.Number(-6.5, 6.5)};
        const std::vector<DPOINT2> whole = OutputsOf(Meeting(CircleOf(arc), ellipse)).Points();
        bool clear = true;
        const std::vector<DPOINT2> kept = KeepOnArc(whole, arc, clear);
        if (!clear)
        {
            continue;
        }
        const int code = static_cast<int>(kept.size());
        ASSERT_TRUE(IsExactly(OutputsOf(Meeting(arc, ellipse)), code, kept)) << i;
        ++counts[code];
        if (i % 20 == 0)
        {
            ASSERT_TRUE(GivesFour(Meeting(arc, ellipse), code, kept, 0)) << i;
        }
    }
    for (const int count : counts)
    {
        EXPECT_GT(count, 20);
    }
}

TEST(IntersectArcWithEllipse, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 outputs[4] = {{1, 0}, {0, 0}, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_ArcWithEllipse(outputs[0], radius, 5, 2.5, outputs[1], 5, 3, 0, &outputs[1], &outputs[0],
                                       &outputs[2], &outputs[3]),
              2);
    EXPECT_TRUE(Near(outputs[1], crossings[0], nearby));
    EXPECT_TRUE(Near(outputs[0], crossings[3], nearby));
    std::vector<DPOINT2> points = {{1, 0}, {0, 0}};
    EXPECT_EQ(Intersect_ArcWithEllipse(points[0], radius, 5, 2.5, points[1], 5, 3, 0, points, -1), 2);
    EXPECT_TRUE(SameSet(points, Pick(crossings, {0, 3}), nearby));
}
