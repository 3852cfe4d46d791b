#include "math/Intersect.h"
#include "support/Curves.h"
#include "support/ReferenceLines.h"

#include <cmath>

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// The line at y = 0.6 cuts the unit circle at x = ±0.8, in the directions 0.6435 and 2.4981.
const DPOINT2 right = {0.8, 0.6};
const DPOINT2 left = {-0.8, 0.6};

/// A curve and which of the two points lie on it.
struct StretchRow
{
    Stretch stretch;
    bool holdsRight;
    bool holdsLeft;
};

struct ArcRow
{
    double start;
    double sweep;
    bool holdsRight;
    bool holdsLeft;
};

const StretchRow stretches[] = {
    {{{-2, 0.6}, {2, 0.6}}, true, true},       {{{2, 0.6}, {-2, 0.6}}, true, true},
    {{{0, 0.6}, {2, 0.6}}, true, false},       {{{2, 0.6}, {0, 0.6}}, true, false},
    {{{0, 0.6}, {-2, 0.6}}, false, true},      {{{-2, 0.6}, {0, 0.6}}, false, true},
    {{{-0.5, 0.6}, {0.5, 0.6}}, false, false}, {{{1, 0.6}, {2, 0.6}}, false, false},
};

const ArcRow arcs[] = {
    {0, Pi, true, true}, {Pi, -Pi, true, true}, {0, 1, true, false},  {1, -1, true, false},
    {2, 1, false, true}, {3, -1, false, true},  {1, 1, false, false}, {0, -3, false, false},
};

} // namespace

TEST(IntersectLineWithArc, APointCountsWhenBothHoldIt)
{
    for (const StretchRow& row : stretches)
    {
        for (const ArcRow& arc : arcs)
        {
            std::vector<DPOINT2> expected;
            if (row.holdsRight && arc.holdsRight)
            {
                expected.push_back(right);
            }
            if (row.holdsLeft && arc.holdsLeft)
            {
                expected.push_back(left);
            }
            EXPECT_TRUE(Gives(Meeting(row.stretch, Arc{{0, 0}, 1, arc.start, arc.sweep}),
                              static_cast<int>(expected.size()), expected, 1e-15))
                << "stretch from " << row.stretch.first.x << " to " << row.stretch.second.x << ", arc " << arc.start
                << " over " << arc.sweep;
        }
    }
}

TEST(IntersectLineWithArc, AStretchBesideTheCircleHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 3}, {2, 3}}, Arc{{0, 0}, 1, 0, 6}), 0, {}));
}

TEST(IntersectLineWithArc, ATangentStretchWritesItsPointOnce)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 1}, {2, 1}}, Arc{{0, 0}, 1, 0, Pi}), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 1}, {2, 1}}, Arc{{0, 0}, 1, Pi, Pi}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 1}, {2, 1}}, Arc{{0, 0}, 1, 0, Pi}), 0, {}));
}

TEST(IntersectLineWithArc, ASharedEndCounts)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 0}, {3, 0}}, Arc{{0, 0}, 1, 0, HalfPi}), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 1}, {0, 3}}, Arc{{0, 0}, 1, 0, HalfPi}), 1, {At(0, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-1, 0}, {1, 0}}, Arc{{0, 0}, 1, 0, Pi}), 2, {At(1, 0), At(-1, 0)}, 1e-15))
        << "the chord of a half circle";
}

TEST(IntersectLineWithArc, TheToleranceOfEachHolds)
{
    const Arc large{{0, 0}, 100, 0.5, 1};
    const auto towards = [](double radian, double length) {
        return Stretch{{0, 0}, OnCircleAt({0, 0}, length, radian)};
    };
    const auto onLarge = [](double radian) { return OnCircleAt({0, 0}, 100, radian); };
    EXPECT_TRUE(Gives(Meeting(towards(1.5 + 5e-10, 200), large), 1, {onLarge(1.5 + 5e-10)}, 1e-10))
        << "beyond the end the arc is widened by an angle";
    EXPECT_TRUE(Gives(Meeting(towards(1.5 + 2e-9, 200), large), 0, {}));
    EXPECT_TRUE(Gives(Meeting(towards(0.5 - 5e-10, 200), large), 0, {})) << "before the start by a distance";
    EXPECT_TRUE(Gives(Meeting(towards(1, 100 - 5e-10), large), 1, {onLarge(1)}, 1e-10));
    EXPECT_TRUE(Gives(Meeting(towards(1, 100 - 2e-9), large), 0, {}));
}

TEST(IntersectLineWithArc, DegenerateCurvesHaveNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 0}, {1, 0}}, Arc{{0, 0}, 1, 0, HalfPi}), 0, {})) << "no length";
    EXPECT_TRUE(Gives(Meeting(Stretch{{-1, 0}, {1, 0}}, Arc{{0, 0}, 0, 0, HalfPi}), 0, {})) << "no radius";
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 0}, {2, 0}}, Arc{{0, 0}, -1, 0, 6}), 0, {})) << "a negative radius";
    EXPECT_TRUE(Gives(Meeting(Stretch{{InvalidDouble, 0}, {2, 0}}, Arc{{0, 0}, 1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{-2, 0}, {2, 0}}, Arc{{0, 0}, 1, 0, 0}), 1, {At(1, 0)}, 1e-15)) << "no sweep";
}

TEST(IntersectLineWithArc, AgreesWithTheQuadraticEquation)
{
    Random random(171);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 8000; ++i)
    {
        const Stretch stretch = RandomStretch(random);
        const Arc arc = RandomArc(random);
        const DPOINT2 along = Minus(stretch.second, stretch.first);
        bool clear = std::abs(along.x) > 1e-3 * std::abs(along.y) && DotOf(along, along) > 0.01;
        auto expected = LineMeetsCircle(stretch.first, along, CircleOf(arc), clear);
        expected = KeepOnArc(KeepOnStretch(expected, stretch, clear), arc, clear);
        if (clear)
        {
            ++counts[expected.size()];
            ASSERT_TRUE(Gives(Meeting(stretch, arc), static_cast<int>(expected.size()), expected, 1e-8));
        }
    }
    EXPECT_GT(std::min({counts[0], counts[1], counts[2]}), 200);
}

TEST(IntersectLineWithArc, AnOutputMayBeAnInput)
{
    const DPOINT2 input[3] = {At(-2, 0.6), At(2, 0.6), At(0, 0)};
    for (int i = 0; i < 3; ++i)
    {
        for (int j = 0; j < 3; ++j)
        {
            if (i == j)
            {
                continue;
            }
            DPOINT2 points[3] = {input[0], input[1], input[2]};
            EXPECT_EQ(Intersect_LineWithArc(points[0], points[1], points[2], 1, 0, Pi, &points[i], &points[j]), 2);
            EXPECT_TRUE(Near(points[i], right, 1e-15));
            EXPECT_TRUE(Near(points[j], left, 1e-15));
        }
    }
    std::vector<DPOINT2> points(input, input + 3);
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_LineWithArc(points[0], points[1], points[2], 1, 0, Pi, points, 2), 2);
    ASSERT_EQ(points.size(), 5U);
    EXPECT_TRUE(Near(points[3], right, 1e-15));
    EXPECT_TRUE(Near(points[4], left, 1e-15));
}

// Most stretches do not meet the curve, which is told beforehand: also where they nearly do.
TEST(IntersectLineWithArc, AgreesWithTheStepsWrittenOut)
{
    Random random(42);
    int counts[3] = {};
    for (int i = 0; i < 100000; ++i)
    {
        const auto [circle, radian, stretch] = RandomStretchByCircle(random);
        const Arc arc{circle.centre, circle.radius, random.Coin() ? radian : random.Number(-7.0, 7.0),
                      random.Number(-TwoPi, TwoPi)};
        DPOINT2 expected[2];
        const int count = reference::LineWithArc(stretch.first, stretch.second, arc.centre, arc.radius, arc.start,
                                                 arc.sweep, expected);
        ASSERT_TRUE(WritesBitsOf(Meeting(stretch, arc), count, expected)) << i;
        ++counts[count];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}
