#include "math/Intersect.h"
#include "support/Curves.h"
#include "support/ReferenceLines.h"

#include <cmath>

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

const Circle unitCircle{{0, 0}, 1};

} // namespace

TEST(IntersectLineWithCircle, AStretchThroughTheCircleHasTwoPointsInOneOrder)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{2, 0}, {-2, 0}}, unitCircle), 2, {At(1, 0), At(-1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 0}, {2, 0}}, unitCircle), 2, {At(1, 0), At(-1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, -2}, {0, 2}}, unitCircle), 2, {At(0, 1), At(0, -1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 2}, {0, -2}}, unitCircle), 2, {At(0, 1), At(0, -1)}, 1e-15));
    const double half = std::sqrt(0.5);
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 2}, {2, -2}}, unitCircle), 2, {At(half, -half), At(-half, half)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{2, -2}, {-2, 2}}, unitCircle), 2, {At(half, -half), At(-half, half)}, 1e-15));
}

TEST(IntersectLineWithCircle, AStretchThatEndsInsideHasOnePointInTheFirstOutput)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {2, 0}}, unitCircle), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {-2, 0}}, unitCircle), 1, {At(-1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 2}, {0, 0}}, unitCircle), 1, {At(0, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, -2}, {0, 0}}, unitCircle), 1, {At(0, -1)}, 1e-15));
}

TEST(IntersectLineWithCircle, AStretchInsideOrBesideHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{-0.5, 0}, {0.5, 0}}, unitCircle), 0, {})) << "inside";
    EXPECT_TRUE(Gives(Meeting(Stretch{{2, 0}, {3, 0}}, unitCircle), 0, {})) << "its line crosses the circle";
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 3}, {2, 3}}, unitCircle), 0, {}));
}

TEST(IntersectLineWithCircle, ATangentStretchWritesItsPointOnce)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 1}, {2, 1}}, unitCircle), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 1}, {2, 1}}, unitCircle), 1, {At(0, 1)}, 0)) << "touching with its end";
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 1}, {2, 1}}, unitCircle), 0, {})) << "its line touches the circle";
}

TEST(IntersectLineWithCircle, EndsOnTheCircleCountWithinTheTolerance)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {1, 0}}, unitCircle), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {1 - 5e-10, 0}}, unitCircle), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {1 - 2e-9, 0}}, unitCircle), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{2, 0}, {1 + 5e-10, 0}}, unitCircle), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{2, 0}, {1 + 2e-9, 0}}, unitCircle), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-1, 0}, {1, 0}}, unitCircle), 2, {At(1, 0), At(-1, 0)}, 1e-15)) << "a diameter";
}

TEST(IntersectLineWithCircle, AStretchWithoutDirectionHasNoPoint)
{
    const Circle throughOrigin{{1, 0}, 1};
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {0, 0}}, throughOrigin), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {Previous(1e-9), 0}}, throughOrigin), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-4e-10, 9e-10}, {4e-10, 0}}, throughOrigin), 0, {}))
        << "longer than the tolerance, but below it in each coordinate";
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {1e-9, 0}}, throughOrigin), 1, {At(0, 0)}, 1e-15));
}

TEST(IntersectLineWithCircle, ARadiusOfZeroIsThePointAndANegativeOneNothing)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 1}, {2, 1}}, Circle{{0, 1}, 0}), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 1}, {2, 1}}, Circle{{3, 1}, 0}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 0}, {2, 0}}, Circle{{0, 0}, -1}), 0, {}));
}

TEST(IntersectLineWithCircle, AgreesWithTheQuadraticEquation)
{
    Random random(161);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 6000; ++i)
    {
        const Stretch stretch = RandomStretch(random);
        const Circle circle{random.Point(2), random.Number(0.5, 3)};
        const DPOINT2 along = Minus(stretch.second, stretch.first);
        bool clear = std::abs(along.x) > 1e-3 * std::abs(along.y) && DotOf(along, along) > 0.01;
        const auto expected = KeepOnStretch(LineMeetsCircle(stretch.first, along, circle, clear), stretch, clear);
        if (clear)
        {
            ++counts[expected.size()];
            const int count = static_cast<int>(expected.size());
            ASSERT_TRUE(Gives(Meeting(stretch, circle), count, expected, 1e-8));
            ASSERT_TRUE(Gives(Meeting(Stretch{stretch.second, stretch.first}, circle), count, expected, 1e-8));
        }
    }
    EXPECT_GT(std::min({counts[0], counts[1], counts[2]}), 300);
}

TEST(IntersectLineWithCircle, NumbersThatAreNoneHaveNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{InvalidDouble, 0}, {1, 1}}, unitCircle), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {1, InvalidDouble}}, unitCircle), 0, {}));
}

TEST(IntersectLineWithCircle, AnOutputMayBeAnInput)
{
    const DPOINT2 input[3] = {At(-9, 0), At(9, 0), At(0, 0)};
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            if (i == j)
            {
                continue;
            }
            DPOINT2 points[3] = {input[0], input[1], input[2]};
            EXPECT_EQ(Intersect_LineWithCircle(points[0], points[1], points[2], 1, &points[i], &points[j]), 2);
            EXPECT_TRUE(Near(points[i], At(1, 0), 1e-15));
            EXPECT_TRUE(Near(points[j], At(-1, 0), 1e-15));
        }
    }
    std::vector<DPOINT2> points(input, input + 3);
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_LineWithCircle(points[0], points[1], points[2], 1, points, 2), 2);
    ASSERT_EQ(points.size(), 5U);
    EXPECT_TRUE(Near(points[3], At(1, 0), 1e-15));
    EXPECT_TRUE(Near(points[4], At(-1, 0), 1e-15));
}

// Most stretches do not meet the curve, which is told beforehand: also where they nearly do.
TEST(IntersectLineWithCircle, AgreesWithTheStepsWrittenOut)
{
    Random random(41);
    int counts[3] = {};
    for (int i = 0; i < 100000; ++i)
    {
        const auto [circle, radian, stretch] = RandomStretchByCircle(random);
        DPOINT2 expected[2];
        const int count =
            reference::LineWithCircle(stretch.first, stretch.second, circle.centre, circle.radius, expected);
        ASSERT_TRUE(WritesBitsOf(Meeting(stretch, circle), count, expected)) << i;
        ++counts[count];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}
