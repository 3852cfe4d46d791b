#include "math/Intersect.h"
#include "support/Curves.h"

#include <algorithm>

using namespace math;
using namespace math::test;

TEST(IntersectCircleWithCircle, CrossingCirclesMeetLeftOfTheWayBetweenTheirCentresFirst)
{
    const double height = std::sqrt(0.75);
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{1, 0}, 1}), 2, {At(0.5, height), At(0.5, -height)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Circle{{1, 0}, 1}, Circle{{0, 0}, 1}), 2, {At(0.5, -height), At(0.5, height)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{0, 1}, 1}), 2, {At(-height, 0.5), At(height, 0.5)}, 1e-15));
    // Radii 5 and √97 at distance 14: 3² + 4² = 25 and (14 - 3)² + 4² = 137 with radius √137.
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 5}, Circle{{14, 0}, std::sqrt(137.0)}), 2, {At(3, 4), At(3, -4)}, 1e-14));
}

TEST(IntersectCircleWithCircle, CirclesApartOrOneInTheOtherDoNotMeet)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{3, 0}, 1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 5}, Circle{{1, 0}, 1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{1, 0}, 1}, Circle{{0, 0}, 5}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{0, 0}, 1}), 0, {})) << "concentric";
}

TEST(IntersectCircleWithCircle, CirclesThatTouchFromOutsideWriteTheFirstOutputOnly)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{2, 0}, 1}), 1, {At(1, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{0, -4}, 3}), 1, {At(0, -1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, -4}, 3}, Circle{{0, 0}, 1}), 1, {At(0, -1)}, 0));
}

TEST(IntersectCircleWithCircle, CirclesThatTouchFromInsideWriteTheFirstOutputOnly)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 3}, Circle{{2, 0}, 1}), 1, {At(3, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Circle{{2, 0}, 1}, Circle{{0, 0}, 3}), 1, {At(3, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Circle{{1, 1}, 4}, Circle{{1, -1}, 2}), 1, {At(1, -3)}, 0));
}

TEST(IntersectCircleWithCircle, TangencyIsAMatterOfOneRoundingUnitOfTheSum)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{Stepped(2, 1), 0}, 1}), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{Stepped(2, 2), 0}, 1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{Stepped(2, -2), 0}, 1}), 1, {At(1, 0)}, 1e-15));
    EXPECT_EQ(Intersect_CircleWithCircle({0, 0}, 1, {Stepped(2, -3), 0}, 1, nullptr, nullptr), 2);
    EXPECT_EQ(Intersect_CircleWithCircle({0, 0}, 1, {2 + 5e-10, 0}, 1, nullptr, nullptr), 0) << "no wider tolerance";
    EXPECT_EQ(Intersect_CircleWithCircle({0, 0}, 1, {2 - 5e-10, 0}, 1, nullptr, nullptr), 2) << "no wider tolerance";
}

TEST(IntersectCircleWithCircle, IdenticalCirclesHaveNoSinglePoint)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{3, 4}, 2}, Circle{{3, 4}, 2}), -1, {}));
}

TEST(IntersectCircleWithCircle, CentresAreOneUpToTheToleranceOfTheKernel)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{1e-9, 0}, 2}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{0, -5e-10}, 2 + 5e-10}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{5e-10, 0}, 2 + 2e-9}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2e-9}, Circle{{5e-10, 0}, 1e-9}), -1, {})) << "radii exactly 1e-9 apart";
    EXPECT_EQ(Intersect_CircleWithCircle({0, 0}, 2, {1.5e-9, 0}, 2, nullptr, nullptr), 2);
}

TEST(IntersectCircleWithCircle, RadiiOfZeroArePoints)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{2, 0}, 0}), 1, {At(2, 0)}, 0)) << "on the circle";
    EXPECT_TRUE(Gives(Meeting(Circle{{2, 0}, 0}, Circle{{0, 0}, 2}), 1, {At(2, 0)}, 0)) << "on the circle";
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{1, 0}, 0}), 0, {})) << "inside";
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 2}, Circle{{3, 0}, 0}), 0, {})) << "outside";
    EXPECT_TRUE(Gives(Meeting(Circle{{1, 0}, 0}, Circle{{1, 0}, 0}), -1, {})) << "the same";
}

TEST(IntersectCircleWithCircle, ANegativeRadiusHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, -1}, Circle{{1, 0}, 1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 1}, Circle{{1, 0}, -1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, -1}, Circle{{0, 0}, -1}), 0, {}));
}

TEST(IntersectCircleWithCircle, AnArgumentJustAboveOneOfAnArcSineHasNoPoint)
{
    // Crossing by the test of distances; h comes out greater than the smaller radius, and the arc sine of h over it
    // does not exist.
    EXPECT_TRUE(Gives(
        Meeting(Circle{{0, 0}, 51.508159071592509}, Circle{{51.508159177868102, 0}, 1.496316498263268e-07}), 0, {}));
}

TEST(IntersectCircleWithCircle, AgreesWithTheLawOfCosinesInBothOrders)
{
    Random random(181);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 4000; ++i)
    {
        const Circle a = CircleOf(RandomArc(random));
        const Circle b = CircleOf(RandomArc(random));
        bool clear = true;
        auto expected = CircleMeetsCircle(a, b, clear);
        if (clear)
        {
            ++counts[expected.size()];
            const int count = static_cast<int>(expected.size());
            ASSERT_TRUE(Gives(Meeting(a, b), count, expected, 1e-9));
            std::reverse(expected.begin(), expected.end());
            ASSERT_TRUE(Gives(Meeting(b, a), count, expected, 1e-9));
        }
    }
    EXPECT_GT(std::min(counts[0], counts[2]), 300);
}

TEST(IntersectCircleWithCircle, NumbersThatAreNoneNeitherRaiseNorHang)
{
    for (int i = 0; i < 6; ++i)
    {
        double numbers[6] = {0, 0, 1, 1, 0, 1};
        numbers[i] = InvalidDouble;
        DPOINT2 first;
        DPOINT2 second;
        const int code = Intersect_CircleWithCircle({numbers[0], numbers[1]}, numbers[2], {numbers[3], numbers[4]},
                                                    numbers[5], &first, &second);
        EXPECT_TRUE(code >= -1 && code <= 2) << code;
    }
}

TEST(IntersectCircleWithCircle, AnOutputMayBeAnInput)
{
    const double height = std::sqrt(0.75);
    for (const bool swapped : {false, true})
    {
        DPOINT2 a = At(0, 0);
        DPOINT2 b = At(1, 0);
        EXPECT_EQ(Intersect_CircleWithCircle(a, 1, b, 1, swapped ? &b : &a, swapped ? &a : &b), 2);
        EXPECT_TRUE(Near(swapped ? b : a, At(0.5, height), 1e-15));
        EXPECT_TRUE(Near(swapped ? a : b, At(0.5, -height), 1e-15));
    }
    std::vector<DPOINT2> points = {At(0, 0), At(1, 0)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_CircleWithCircle(points[0], 1, points[1], 1, points, 1), 2);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_TRUE(Near(points[2], At(0.5, height), 1e-15));
    EXPECT_TRUE(Near(points[3], At(0.5, -height), 1e-15));
}

// The quick test

namespace
{

/// Two circles whose centres lie `distance` apart, quickly, in both orders.
testing::AssertionResult Answers(double distance, double radius, double otherRadius, int code)
{
    const auto same = QuickTestGives(Meeting(Circle{{0, 0}, radius}, Circle{{distance, 0}, otherRadius}), code);
    return same ? QuickTestGives(Meeting(Circle{{0, distance}, otherRadius}, Circle{{0, 0}, radius}), code) : same;
}

} // namespace

TEST(IntersectCircleWithCircleQuick, OneCentreAndOneRadiusAreIdentical)
{
    EXPECT_TRUE(Answers(0, 2, 2, -1));
    EXPECT_TRUE(Answers(5e-10, 2, 2 + 5e-10, -1));
    EXPECT_TRUE(Answers(1e-9, 2, 2, 2)) << "centres exactly the tolerance apart";
    EXPECT_TRUE(Answers(0, 1e-9, 2e-9, 0)) << "radii exactly the tolerance apart";
    EXPECT_TRUE(Answers(0, 2, 2 + 2e-9, 0));
    EXPECT_TRUE(Answers(0, 2, 1, 0));
}

TEST(IntersectCircleWithCircleQuick, TouchingFromOutsideCountsOne)
{
    EXPECT_TRUE(Answers(3, 2, 1, 1));
    EXPECT_TRUE(Answers(3 + 5e-10, 2, 1, 1));
    EXPECT_TRUE(Answers(3 - 5e-10, 2, 1, 1));
    EXPECT_TRUE(Answers(3 + 2e-9, 2, 1, 0));
    EXPECT_TRUE(Answers(3 - 2e-9, 2, 1, 2));
}

TEST(IntersectCircleWithCircleQuick, ACentreOnTheOtherCircleCountsOneThoughTheyCrossTwice)
{
    EXPECT_TRUE(Answers(1, 1, 1, 1));
    EXPECT_TRUE(Answers(2, 2, 1.5, 1)) << "the second centre on the first circle";
    EXPECT_TRUE(Answers(1.5, 2, 1.5, 1)) << "the first centre on the second circle";
    EXPECT_TRUE(Answers(2 + 5e-10, 2, 1.5, 1));
    EXPECT_TRUE(Answers(2 - 2e-9, 2, 1.5, 2));
    EXPECT_TRUE(Answers(1.5 + 2e-9, 2, 1.5, 2));
    EXPECT_EQ(Intersect_CircleWithCircle({0, 0}, 1, {1, 0}, 1, nullptr, nullptr), 2) << "the full form";
    // Also where there is no crossing at all: a tiny circle about the centre of the other.
    EXPECT_TRUE(Answers(0, 5e-10, 3, 1));
}

TEST(IntersectCircleWithCircleQuick, ADifferenceOfExactlyTheToleranceIsNone)
{
    EXPECT_TRUE(Answers(2e-9, 1e-9, 1, 0)) << "of the distance and the first radius: one inside the other";
    EXPECT_TRUE(Answers(2e-9, 5e-10, 5e-10, 0)) << "of the distance and the sum";
    EXPECT_TRUE(Answers(0, 1e-9, 5, 0)) << "of no distance and a radius";
}

TEST(IntersectCircleWithCircleQuick, TouchingFromInsideCountsTwo)
{
    EXPECT_TRUE(Answers(2, 3, 1, 2));
    EXPECT_TRUE(Answers(Previous(2), 3, 1, 0));
    EXPECT_EQ(Intersect_CircleWithCircle({0, 0}, 3, {2, 0}, 1, nullptr, nullptr), 1) << "the full form";
}

TEST(IntersectCircleWithCircleQuick, ApartOrOneInTheOtherCountsNone)
{
    EXPECT_TRUE(Answers(5, 2, 1, 0));
    EXPECT_TRUE(Answers(0.5, 3, 1, 0));
}

TEST(IntersectCircleWithCircleQuick, ComparesNegativeRadiiLikeAnyOther)
{
    EXPECT_TRUE(Answers(1.75, -1, 2, 0)) << "further apart than the sum";
    EXPECT_TRUE(Answers(0, -1, -1, -1));
}

TEST(IntersectCircleWithCircleQuick, AnInfiniteDistanceIsNotAboveAnInfiniteSum)
{
    EXPECT_TRUE(Answers(Infinity, 1, 2, 0));
    EXPECT_TRUE(Answers(Infinity, Infinity, 2, 2));
    EXPECT_TRUE(Answers(1, Infinity, 2, 0)) << "one inside the other";
}

TEST(IntersectCircleWithCircleQuick, AgreesWithTheFullFormAwayFromEveryTangencyAndCentre)
{
    Random random(182);
    for (int i = 0; i < 4000; ++i)
    {
        const Circle a = CircleOf(RandomArc(random));
        const Circle b = CircleOf(RandomArc(random));
        const double distance = DistanceOf(a.centre, b.centre);
        bool clear = true;
        for (const double special : {a.radius, b.radius, a.radius + b.radius, std::abs(a.radius - b.radius)})
        {
            clear = clear && std::abs(distance - special) > 1e-6;
        }
        if (clear)
        {
            ASSERT_TRUE(QuickTestGives(
                Meeting(a, b), Intersect_CircleWithCircle(a.centre, a.radius, b.centre, b.radius, nullptr, nullptr)));
        }
    }
}
