#include "math/Intersect.h"
#include "support/Curves.h"

#include <algorithm>

using namespace math;
using namespace math::test;

// Two arcs of different circles. Arcs of one circle have a file of their own.

namespace
{

// Unit circles about (0, 0) and (1, 0) cross at (0.5, ±√3/2), the upper point first. Seen from (0, 0) the points lie in
// the directions π/3 = 1.047 and 5π/3 = 5.236, from (1, 0) in 2π/3 = 2.094 and 4π/3 = 4.189.
const DPOINT2 upper = {0.5, 0.8660254037844386};
const DPOINT2 lower = {0.5, -0.8660254037844386};

struct ArcRow
{
    double start;
    double sweep;
    bool holdsUpper;
    bool holdsLower;
};

const ArcRow firstArcs[] = {
    {5, 3, true, true},   {8 - TwoPi, -3, true, true}, {1, 5, true, true},      {0, 2, true, false},
    {2, -2, true, false}, {4, 2, false, true},         {6, -2, false, true},    {-2, 1.5, false, true},
    {2, 2, false, false}, {5.5, 1, false, false},      {0.5, -1, false, false},
};

const ArcRow secondArcs[] = {
    {2, 2.5, true, true}, {4.5, -2.5, true, true}, {4, 5, true, true},   {1, 2, true, false},   {3, -2, true, false},
    {3, 2, false, true},  {5, -2, false, true},    {3, 1, false, false}, {1, -2, false, false},
};

std::vector<DPOINT2> PointsOf(const ArcRow& a, const ArcRow& b)
{
    std::vector<DPOINT2> points;
    if (a.holdsUpper && b.holdsUpper)
    {
        points.push_back(upper);
    }
    if (a.holdsLower && b.holdsLower)
    {
        points.push_back(lower);
    }
    return points;
}

} // namespace

TEST(IntersectArcWithArc, APointCountsWhenBothArcsHoldIt)
{
    for (const ArcRow& a : firstArcs)
    {
        for (const ArcRow& b : secondArcs)
        {
            const Arc first{{0, 0}, 1, a.start, a.sweep};
            const Arc second{{1, 0}, 1, b.start, b.sweep};
            std::vector<DPOINT2> expected = PointsOf(a, b);
            const int count = static_cast<int>(expected.size());
            EXPECT_TRUE(Gives(Meeting(first, second), count, expected, 1e-15))
                << a.start << " over " << a.sweep << " with " << b.start << " over " << b.sweep;
            // Seen from the other centre left and right change places.
            std::reverse(expected.begin(), expected.end());
            EXPECT_TRUE(Gives(Meeting(second, first), count, expected, 1e-15))
                << b.start << " over " << b.sweep << " with " << a.start << " over " << a.sweep;
        }
    }
}

TEST(IntersectArcWithArc, TouchingArcsWriteTheFirstOutput)
{
    const Arc left{{0, 0}, 1, -1, 2};
    EXPECT_TRUE(Gives(Meeting(left, Arc{{2, 0}, 1, 2, 2}), 1, {At(1, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(left, Arc{{2, 0}, 1, 2, -4}), 0, {})) << "the second is bare there";
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 1, 4}, Arc{{2, 0}, 1, 2, 2}), 0, {})) << "the first is bare there";
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 3, -1, 2}, Arc{{2, 0}, 1, 1, -2}), 1, {At(3, 0)}, 0)) << "from inside";
}

TEST(IntersectArcWithArc, ACommonEndCounts)
{
    // Quarter arcs that run into (1, 1) from the left and go on to the right.
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 1}, 1, -HalfPi, HalfPi}, Arc{{2, 1}, 1, Pi, -HalfPi}), 1, {At(1, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, HalfPi, Pi}, Arc{{0, 1}, 1, -HalfPi, 1}), 0, {}));
}

TEST(IntersectArcWithArc, CirclesThatDoNotMeetHaveNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 0, 6}, Arc{{5, 0}, 1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 5, 0, 6}, Arc{{1, 0}, 1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 2, 0, 6}, Arc{{0, 0}, 1, 0, 6}), 0, {})) << "concentric";
}

TEST(IntersectArcWithArc, CentresThatAreNotExactlyOneAreTwoCircles)
{
    // As circles they are identical within the tolerance, which gives no point; as arcs of one circle they would
    // overlap.
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 0, 2}, Arc{{1e-12, 0}, 1, 1, 2}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 0, 2}, Arc{{0, -1e-300}, 1, 1, 2}), -1,
                      {OnCircleAt({0, 0}, 1, 1), OnCircleAt({0, 0}, 1, 2)}))
        << "so near that the distance is 0";
}

TEST(IntersectArcWithArc, RadiiThatDifferByTheToleranceAreTwoCircles)
{
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 2e-9, 0, 2}, Arc{{0, 0}, 1e-9, 1, 2}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1e-9, 0, 2}, Arc{{0, 0}, 2e-9, 1, 2}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 0, 2}, Arc{{0, 0}, 1 + 2e-9, 1, 2}), 0, {}));
}

TEST(IntersectArcWithArc, TheToleranceOfEachArcIsThatOfAPointOnAnArc)
{
    const double radius = 100;
    const Arc whole{{0, 0}, radius, 0, 3};
    const double direction = 2 * Pi / 3; // of the upper point from (100, 0)
    const auto count = [&](const Arc& a, const Arc& b) {
        return Intersect_ArcWithArc(a.centre, a.radius, a.start, a.sweep, b.centre, b.radius, b.start, b.sweep, nullptr,
                                    nullptr);
    };
    const auto second = [&](double start, double sweep) { return Arc{{100, 0}, radius, start, sweep}; };
    EXPECT_EQ(count(whole, second(direction - 0.5, 0.5 - 5e-10)), 1);
    EXPECT_EQ(count(whole, second(direction - 0.5, 0.5 - 2e-9)), 0);
    EXPECT_EQ(count(whole, second(direction + 0.5, -0.5 + 5e-10)), 1);
    EXPECT_EQ(count(whole, second(direction + 5e-10, 0.5)), 0);
    EXPECT_EQ(count(second(direction - 0.5, 0.5 - 5e-10), whole), 1);
    EXPECT_EQ(count(second(direction - 0.5, 0.5 - 2e-9), whole), 0);
    EXPECT_EQ(count(second(direction + 0.5, -0.5 + 5e-10), whole), 1);
    EXPECT_EQ(count(second(direction - 5e-10, -0.5), whole), 0);
}

TEST(IntersectArcWithArc, RadiiThatAreNotPositiveHaveNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 0, 6}, Arc{{1, 0}, 0, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{1, 0}, 0, 0, 6}, Arc{{0, 0}, 1, -1, 2}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, 1, 0, 6}, Arc{{1, 0}, -1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Arc{{0, 0}, -1, 0, 6}, Arc{{1, 0}, 1, 0, 6}), 0, {}));
}

TEST(IntersectArcWithArc, AgreesWithTheLawOfCosinesInBothOrders)
{
    Random random(201);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 10000; ++i)
    {
        const Arc a = RandomArc(random);
        const Arc b = RandomArc(random);
        bool clear = true;
        auto expected = CircleMeetsCircle(CircleOf(a), CircleOf(b), clear);
        expected = KeepOnArc(KeepOnArc(expected, b, clear), a, clear);
        if (clear)
        {
            ++counts[expected.size()];
            const int count = static_cast<int>(expected.size());
            ASSERT_TRUE(Gives(Meeting(a, b), count, expected, 1e-9));
            std::reverse(expected.begin(), expected.end());
            ASSERT_TRUE(Gives(Meeting(b, a), count, expected, 1e-9));
        }
    }
    EXPECT_GT(std::min({counts[0], counts[1], counts[2]}), 300);
}

TEST(IntersectArcWithArc, NumbersThatAreNoneNeitherRaiseNorHang)
{
    for (int i = 0; i < 10; ++i)
    {
        double n[10] = {0, 0, 1, 0, 6, 1, 0, 1, 0, 6};
        n[i] = InvalidDouble;
        const int code =
            Intersect_ArcWithArc({n[0], n[1]}, n[2], n[3], n[4], {n[5], n[6]}, n[7], n[8], n[9], nullptr, nullptr);
        EXPECT_TRUE(code >= -1 && code <= 2) << code;
    }
}

TEST(IntersectArcWithArc, AnOutputMayBeAnInput)
{
    for (const bool swapped : {false, true})
    {
        DPOINT2 a = At(0, 0);
        DPOINT2 b = At(1, 0);
        EXPECT_EQ(Intersect_ArcWithArc(a, 1, 5, 3, b, 1, 2, 2.5, swapped ? &b : &a, swapped ? &a : &b), 2);
        EXPECT_TRUE(Near(swapped ? b : a, upper, 1e-15));
        EXPECT_TRUE(Near(swapped ? a : b, lower, 1e-15));
    }
    std::vector<DPOINT2> points = {At(0, 0), At(1, 0)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_ArcWithArc(points[0], 1, 5, 3, points[1], 1, 2, 2.5, points, 2), 2);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_TRUE(Near(points[2], upper, 1e-15));
    EXPECT_TRUE(Near(points[3], lower, 1e-15));
}
