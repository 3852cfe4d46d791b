#include "math/Intersect.h"
#include "support/Ellipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

const Circle unit{{0, 0}, 1};

// x²/25 + y²/9 = 1 and (x - 1)² + y² = 9.76 meet at x = 3 and x = 1/8.
const Ellipse wide{{0, 0}, 5, 3, 0};
const Circle crossing{{1, 0}, std::sqrt(9.76)};
const double upperY = 3 * std::sqrt(1 - 1.0 / 1600);

} // namespace

TEST(IntersectCircleWithEllipse, ACircleOfNoRadiusLeavesEverythingAsItIs)
{
    for (const double radius : {0.0, -0.0, 9e-10, -9e-10})
    {
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{5, 0}, radius}, wide), 0, {})) << radius;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{5, 0}, radius}, Ellipse{{5, 0}, 1, 1, 0}), 0, {})) << radius;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{5, 0}, radius}, Ellipse{{5, 0}, radius, radius, 0}), 0, {}));
    }
    EXPECT_EQ(OutputsOf(Meeting(Circle{{5, 0}, 1.1e-9}, wide)).outputs[3], NoPoint()) << "a radius like any other";
    EXPECT_EQ(OutputsOf(Meeting(Circle{{5, 0}, 1.1e-9}, Ellipse{{5, 0}, 1.1e-9, 1.1e-9, 0})).code, -1);
}

TEST(IntersectCircleWithEllipse, AnEllipseOfNoSizeLeavesEverythingAsItIs)
{
    for (const double axis : {0.0, 9e-10, -9e-10})
    {
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{1, 0}, axis, 0, 0.5}), 0, {})) << axis;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{1, 0}, 0, axis, 0.5}), 0, {})) << axis;
    }
    // Just beyond the tolerance the ellipse is a circle, a stretch, or goes to the search.
    EXPECT_EQ(OutputsOf(Meeting(Circle{{0, 0}, 1}, Ellipse{{1, 0}, 1.1e-9, 0, 0})).code, 1)
        << "a stretch through (1, 0)";
    EXPECT_EQ(OutputsOf(Meeting(Circle{{0, 0}, 1}, Ellipse{{5, 0}, 0, 1.1e-9, 0})).outputs[0], NoPoint());
}

TEST(IntersectCircleWithEllipse, EqualSemiAxesMakeACircle)
{
    // Unit circles about (0, 0) and (1, 0): the upper point lies on the left of the way from the first to the second.
    const double height = std::sqrt(0.75);
    for (const double rotation : {0.0, 1.0, -9.0})
    {
        EXPECT_TRUE(
            GivesAndLeavesOthers(Meeting(unit, Ellipse{{1, 0}, 1, 1, rotation}), 2, {{0.5, height}, {0.5, -height}}));
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{2, 0}, 1, 1, rotation}), 1, {{1, 0}}));
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{3, 0}, 1, 1, rotation}), 0, {}));
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 0}, 1, 1, rotation}), -1, {}));
    }
    EXPECT_TRUE(
        GivesAndLeavesOthers(Meeting(Circle{{1, 0}, 1}, Ellipse{{0, 0}, 1, 1, 0}), 2, {{0.5, -height}, {0.5, height}}))
        << "the circle comes first";
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{0, 0}, -1}, Ellipse{{1, 0}, 1, 1, 0}), 0, {}));
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{1, 0}, -1, -1, 0}), 0, {}));
}

TEST(IntersectCircleWithEllipse, EqualMeansWithinTheToleranceAndARadiusOfA)
{
    // Touching from outside in (1, 0): with a radius of a exactly, whatever b.
    for (const double difference : {9e-10, -9e-10})
    {
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{2, 0}, 1, 1 + difference, 0}), 1, {{1, 0}}));
    }
    for (const double difference : {1.1e-9, -1.1e-9})
    {
        const FourResult found = OutputsOf(Meeting(unit, Ellipse{{0, 1.5}, 1, 1 + difference, 0}));
        EXPECT_EQ(found.code, 2);
        EXPECT_EQ(found.outputs[2], NoPoint()) << "found by search";
        EXPECT_EQ(found.outputs[3], NoPoint());
    }
}

TEST(IntersectCircleWithEllipse, AFlatEllipseIsAStretchBetweenItsVertices)
{
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 0}, 2, 0, 0}), 2, {{1, 0}, {-1, 0}}, 1e-15));
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 0}, 2, 9e-10, HalfPi}), 2, {{0, 1}, {0, -1}}, 1e-15));
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 0}, 2, -9e-10, Pi}), 2, {{1, 0}, {-1, 0}}, 1e-15));
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 0}, 0.9, 0, 0}), 0, {})) << "inside";
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 2}, 3, 0, 0}), 0, {})) << "beside";
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{1, 0}, 0.5, 0, 0}), 1, {{1, 0}}, 1e-15)) << "half in";
    // From (1, 1) to (5, 1), the circle about the left end.
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{1, 1}, 1}, Ellipse{{3, 1}, 2, 0, 0}), 1, {{2, 1}}, 1e-15));
    // Along (0.6, 0.8) from (1, 1): both ends, (1.6, 1.8) and (0.4, 0.2), and the circle through one point between
    // them.
    const double tilt = std::atan2(0.8, 0.6);
    EXPECT_TRUE(
        GivesAndLeavesOthers(Meeting(Circle{{-0.8, -1.4}, 2.5}, Ellipse{{1, 1}, 1, 0, tilt}), 1, {{0.7, 0.6}}, 1e-12));
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{-0.8, -1.4}, 4.05}, Ellipse{{1, 1}, 1, 0, tilt}), 0, {}))
        << "beyond the far end";
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{-0.8, -1.4}, 1.95}, Ellipse{{1, 1}, 1, 0, tilt}), 0, {}))
        << "short of the near end";
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(Circle{{0, 0}, -1}, Ellipse{{0, 0}, 2, 0, 0}), 0, {}));
    EXPECT_TRUE(GivesAndLeavesOthers(Meeting(unit, Ellipse{{0, 0}, -2, 0, 0}), 2, {{1, 0}, {-1, 0}}, 1e-15));
}

TEST(IntersectCircleWithEllipse, FlatMeansWithinTheTolerance)
{
    const FourResult found = OutputsOf(Meeting(unit, Ellipse{{0, 0}, 2, 1.1e-9, 0}));
    EXPECT_NE(found.outputs[3], Untouched()) << "found by search";
}

TEST(IntersectCircleWithEllipse, AVanishingAIsNoStretch)
{
    // The search reads 0 as the greater semi-axis: a circle of radius 1 about the same centre lies outside, 1 > 0 + 0.
    EXPECT_TRUE(GivesFour(Meeting(unit, Ellipse{{0, 0}, 0, 2, 0}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(unit, Ellipse{{0, 0}, 9e-10, 2, 0}), 0, {}));
}

TEST(IntersectCircleWithEllipse, CrossesInFourKnownPointsInTheOrderOfTheEllipse)
{
    EXPECT_TRUE(GivesFour(Meeting(crossing, wide), 4, {{3, 2.4}, {0.125, upperY}, {0.125, -upperY}, {3, -2.4}}, 3e-8));
    // The own x axis to the left: the walk starts there.
    EXPECT_TRUE(GivesFour(Meeting(crossing, Ellipse{{0, 0}, 5, 3, Pi}), 4,
                          {{0.125, -upperY}, {3, -2.4}, {3, 2.4}, {0.125, upperY}}, 3e-8));
}

TEST(IntersectCircleWithEllipse, MeetsAsTheEllipseFirstAndTheCircleAsAnEllipseSecond)
{
    Random random(111);
    int counts[5] = {0, 0, 0, 0, 0};
    for (int i = 0; i < 3000; ++i)
    {
        const Ellipse ellipse = RandomEllipse(random);
        const Circle circle{random.Point(1.0), random.Number(-0.3, 1.8)};
        const FourResult expected = OutputsOf(Meeting(ellipse, AsEllipse(circle)));
        ASSERT_TRUE(IsExactly(OutputsOf(Meeting(circle, ellipse)), expected.code, expected.outputs)) << i;
        ++counts[std::clamp(expected.code, 0, 4)];
    }
    EXPECT_GT(counts[0], 300);
    EXPECT_GT(counts[2], 300);
    EXPECT_GT(counts[4], 20);
}

TEST(IntersectCircleWithEllipse, FindsTheZerosAlongTheEllipse)
{
    Random random(112);
    int compared = 0;
    for (int i = 0; i < 500; ++i)
    {
        const Ellipse ellipse = LongAxisFirst(RandomEllipse(random));
        const Circle circle{random.Point(1.0), random.Number(0.3, 1.8)};
        bool clear = true;
        const auto expected = EllipseMeetsEllipse(ellipse, AsEllipse(circle), clear);
        clear = clear && !SharesQuarterArcs(ellipse, AsEllipse(circle), expected);
        for (const DPOINT2& point : expected)
        {
            const double slopeOfEllipse = TangentAt(ellipse, point);
            const double slopeOfCircle = TangentAt(AsEllipse(circle), point);
            clear = clear && std::abs(std::sin(slopeOfEllipse - slopeOfCircle)) > 0.2 &&
                    std::abs(std::cos(slopeOfEllipse)) > 1e-2 && std::abs(std::cos(slopeOfCircle)) > 1e-2;
        }
        if (clear)
        {
            // 2e-9 over an angle of 0.2, or times a slope of 100.
            ASSERT_TRUE(SameSet(OutputsOf(Meeting(circle, ellipse)).Points(), expected, 2.2e-7)) << i;
            ++compared;
        }
    }
    EXPECT_GT(compared, 250);
}

TEST(IntersectCircleWithEllipse, AMissingNumberBringsNothingDown)
{
    for (int missing = 0; missing < 7; ++missing)
    {
        double numbers[] = {crossing.centre.x, crossing.centre.y, crossing.radius, 0, 5, 3, 0.5};
        numbers[missing] = InvalidDouble;
        const Circle circle{{numbers[0], numbers[1]}, numbers[2]};
        const Ellipse ellipse{{numbers[3], 0}, numbers[4], numbers[5], numbers[6]};
        const FourResult found = OutputsOf(Meeting(circle, ellipse));
        std::vector<DPOINT2> points;
        EXPECT_EQ(Meeting(circle, ellipse).vectorForm(points, -1), found.code) << missing;
        EXPECT_EQ(points, found.Points()) << missing;
        for (std::size_t i = points.size(); i < 4; ++i)
        {
            EXPECT_EQ(found.outputs[i], NoPoint()) << missing;
        }
    }
}

TEST(IntersectCircleWithEllipse, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 outputs[4] = {crossing.centre, wide.centre, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_CircleWithEllipse(outputs[0], crossing.radius, outputs[1], 5, 3, 0, &outputs[0], &outputs[1],
                                          &outputs[2], &outputs[3]),
              4);
    EXPECT_TRUE(SameSet({outputs, outputs + 4}, {{3, 2.4}, {0.125, upperY}, {0.125, -upperY}, {3, -2.4}}, 3e-8));
    outputs[0] = {0, 0};
    outputs[1] = {0, 0};
    EXPECT_EQ(
        Intersect_CircleWithEllipse(outputs[0], 1, outputs[1], 2, 0, 0, &outputs[1], &outputs[0], nullptr, nullptr), 2);
    EXPECT_TRUE(Near(outputs[1], {1, 0}, 1e-15));
    EXPECT_TRUE(Near(outputs[0], {-1, 0}, 1e-15));
    outputs[0] = {0, 0};
    outputs[1] = {1, 0};
    EXPECT_EQ(
        Intersect_CircleWithEllipse(outputs[0], 1, outputs[1], 1, 1, 0, &outputs[1], &outputs[0], nullptr, nullptr), 2);
    EXPECT_TRUE(Near(outputs[1], {0.5, std::sqrt(0.75)}, 1e-15));
    std::vector<DPOINT2> points = {crossing.centre, wide.centre};
    EXPECT_EQ(Intersect_CircleWithEllipse(points[0], crossing.radius, points[1], 5, 3, 0, points, -1), 4);
    EXPECT_TRUE(SameSet(points, {{3, 2.4}, {0.125, upperY}, {0.125, -upperY}, {3, -2.4}}, 3e-8));
}
