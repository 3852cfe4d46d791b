#include "math/Intersect.h"
#include "support/Curves.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// The chord at y = 0.6 of the unit circle: its points lie in the directions 0.6435 and 2.4981.
const Beeline chord{{-9, 0.6}, 0};
const DPOINT2 right = {0.8, 0.6};
const DPOINT2 left = {-0.8, 0.6};

/// The unit circle from `start` over `sweep`.
Arc UnitArc(double start, double sweep)
{
    return {{0, 0}, 1, start, sweep};
}

/// How many points a beeline from the centre in the direction `radian` has on an arc whose opposite side is bare.
int CountFromCentre(double radius, double start, double sweep, double radian)
{
    return Intersect_BeelineWithArc({0, 0}, radian, {0, 0}, radius, start, sweep, nullptr, nullptr);
}

} // namespace

TEST(IntersectBeelineWithArc, BothPointsLieOnTheArc)
{
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(0, Pi)), 2, {right, left}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(Pi, -Pi)), 2, {right, left}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(-QuarterPi, 4)), 2, {right, left}, 1e-15)) << "over the direction 0";
}

TEST(IntersectBeelineWithArc, TheOneThatLiesOnTheArcGoesToTheFirstOutput)
{
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(0, 1)), 1, {right}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(2, 1)), 1, {left}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(1, -1)), 1, {right}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(3, -1)), 1, {left}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(6, 1)), 1, {right}, 1e-15)) << "over the direction 0";
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(1, -2)), 1, {right}, 1e-15)) << "over the direction 0";
}

TEST(IntersectBeelineWithArc, NeitherLiesOnTheArc)
{
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(1, 1)), 0, {})) << "between them";
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(Pi, 3)), 0, {})) << "below";
    EXPECT_TRUE(Gives(Meeting(chord, UnitArc(0, -3)), 0, {})) << "below, clockwise";
}

TEST(IntersectBeelineWithArc, ABeelineBesideTheCircleHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 1.5}, 0}, UnitArc(0, 6)), 0, {}));
}

TEST(IntersectBeelineWithArc, ATangentWritesItsPointOnce)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{-9, 1}, 0}, UnitArc(0, Pi)), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{-9, 1}, 0}, UnitArc(Pi, -Pi)), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{-9, 1}, 0}, UnitArc(Pi, Pi)), 0, {}));
}

TEST(IntersectBeelineWithArc, EndsOfTheArcCount)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{9, 0}, 0}, UnitArc(0, HalfPi)), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 9}, HalfPi}, UnitArc(0, HalfPi)), 1, {At(0, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Beeline{{9, 0}, 0}, UnitArc(0, Pi)), 2, {At(1, 0), At(-1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Beeline{{9, 0}, 0}, UnitArc(0, -Pi)), 2, {At(1, 0), At(-1, 0)}, 1e-15));
}

TEST(IntersectBeelineWithArc, BeforeTheStartTheToleranceIsADistance)
{
    EXPECT_EQ(CountFromCentre(1, 1, 0.5, 1 - 5e-10), 1);
    EXPECT_EQ(CountFromCentre(1, 1, 0.5, 1 - 2e-9), 0);
    EXPECT_EQ(CountFromCentre(100, 1, 0.5, 1 - 5e-10), 0) << "5e-8 away";
    EXPECT_EQ(CountFromCentre(1, 1, -0.5, 1 + 5e-10), 1);
    EXPECT_EQ(CountFromCentre(1, 1, -0.5, 1 + 2e-9), 0);
    EXPECT_EQ(CountFromCentre(100, 1, -0.5, 1 + 5e-10), 0) << "5e-8 away";
}

TEST(IntersectBeelineWithArc, BeyondTheEndTheToleranceIsAnAngle)
{
    EXPECT_EQ(CountFromCentre(100, 1, 0.5, 1.5 + 5e-10), 1) << "5e-8 away, but within the angle";
    EXPECT_EQ(CountFromCentre(100, 1, 0.5, 1.5 + 2e-9), 0);
    EXPECT_EQ(CountFromCentre(100, 1, -0.5, 0.5 - 5e-10), 1);
    EXPECT_EQ(CountFromCentre(100, 1, -0.5, 0.5 - 2e-9), 0);
}

TEST(IntersectBeelineWithArc, AnArcWithoutSweepIsItsStart)
{
    EXPECT_EQ(CountFromCentre(100, 1, 0, 1), 1);
    EXPECT_EQ(CountFromCentre(100, 1, 0, 2), 0);
    // Read as clockwise, its angular tolerance lies on the clockwise side.
    EXPECT_EQ(CountFromCentre(100, 1, 0, 1 - 5e-10), 1);
    EXPECT_EQ(CountFromCentre(100, 1, 0, 1 + 5e-10), 0);
}

TEST(IntersectBeelineWithArc, ARadiusThatIsNotPositiveHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Arc{{0, 0}, 0, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Arc{{0, 0}, -1, 0, 6}), 0, {}));
}

TEST(IntersectBeelineWithArc, ABeelineThatIsNoneHasNoPointOnAnArc)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, InvalidDouble}, UnitArc(0, 6)), 0, {}));
}

TEST(IntersectBeelineWithArc, AgreesWithTheQuadraticEquation)
{
    Random random(151);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 6000; ++i)
    {
        const Beeline beeline{random.Point(3), random.Number(-20, 20)};
        const Arc arc = RandomArc(random);
        bool clear = std::abs(std::cos(beeline.angle)) > 1e-3;
        const DPOINT2 direction = At(std::cos(beeline.angle), std::sin(beeline.angle));
        const auto expected = KeepOnArc(LineMeetsCircle(beeline.point, direction, CircleOf(arc), clear), arc, clear);
        if (clear)
        {
            ++counts[expected.size()];
            ASSERT_TRUE(Gives(Meeting(beeline, arc), static_cast<int>(expected.size()), expected, 1e-8));
        }
    }
    EXPECT_GT(std::min({counts[0], counts[1], counts[2]}), 300);
}

TEST(IntersectBeelineWithArc, TurningTheArcRoundChangesNothing)
{
    Random random(152);
    for (int i = 0; i < 2000; ++i)
    {
        const Beeline beeline{random.Point(3), random.Number(-3, 3)};
        const Arc arc = RandomArc(random);
        const Arc turned{arc.centre, arc.radius, arc.start + arc.sweep, -arc.sweep};
        std::vector<DPOINT2> points;
        std::vector<DPOINT2> again;
        const int count = Intersect_BeelineWithArc(beeline.point, beeline.angle, arc.centre, arc.radius, arc.start,
                                                   arc.sweep, points, 2);
        ASSERT_EQ(Intersect_BeelineWithArc(beeline.point, beeline.angle, turned.centre, turned.radius, turned.start,
                                           turned.sweep, again, 2),
                  count);
        ASSERT_EQ(points, again);
    }
}

TEST(IntersectBeelineWithArc, AnOutputMayBeAnInput)
{
    DPOINT2 point = At(-9, 0.6);
    DPOINT2 centre = At(0, 0);
    EXPECT_EQ(Intersect_BeelineWithArc(point, 0, centre, 1, 0, Pi, &point, &centre), 2);
    EXPECT_TRUE(Near(point, right, 1e-15));
    EXPECT_TRUE(Near(centre, left, 1e-15));
    point = At(-9, 0.6);
    centre = At(0, 0);
    EXPECT_EQ(Intersect_BeelineWithArc(point, 0, centre, 1, 0, Pi, &centre, &point), 2);
    EXPECT_TRUE(Near(centre, right, 1e-15));
    EXPECT_TRUE(Near(point, left, 1e-15));
    std::vector<DPOINT2> points = {At(-9, 0.6), At(0, 0)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_BeelineWithArc(points[0], 0, points[1], 1, 0, Pi, points, 2), 2);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_TRUE(Near(points[2], right, 1e-15));
    EXPECT_TRUE(Near(points[3], left, 1e-15));
}
