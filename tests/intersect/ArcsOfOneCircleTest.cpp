#include "math/Intersect.h"
#include "support/Curves.h"

#include <algorithm>

using namespace math;
using namespace math::test;

// Two arcs of one circle: only their ends are compared. Both are read counter-clockwise first, so each configuration is
// run with both directions of either arc.

namespace
{

const DPOINT2 centre = {3, -2};
constexpr double radius = 2.5;

/// The way counter-clockwise from one direction to another; over the direction 0 where `to` is less than `from`.
struct Span
{
    double from;
    double to;
};

/// Two spans, and directions of their common points in order, all in eighths of a turn. Sums of a few eighths are exact
/// in doubles, so that ends told to coincide are the same double however they are reached.
struct Configuration
{
    const char* name;
    Span a;
    Span b;
    int code;
    std::vector<double> at;
};

constexpr double Eighth = QuarterPi;
constexpr double Q = HalfPi;

const Configuration configurations[] = {
    {"apart", {1, 2}, {4, 6}, 0, {}},
    {"apart, the first over 0", {7, 1}, {3, 5}, 0, {}},
    {"apart, the second over 0", {3, 5}, {7, 1}, 0, {}},
    {"the same", {1, 3}, {1, 3}, -1, {1, 3}},
    {"the same, over 0", {7, 1}, {7, 1}, -1, {7, 1}},
    {"the second begins inside", {1, 4}, {3, 6}, -1, {3, 4}},
    {"the second begins inside, both over 0", {6, 1}, {7, 2}, -1, {7, 1}},
    {"the second begins inside beyond 0", {6, 2}, {1, 4}, -1, {1, 2}},
    {"the second begins inside and runs over 0", {4, 7}, {6, 1}, -1, {6, 7}},
    {"the second ends inside", {3, 6}, {1, 4}, -1, {3, 4}},
    {"the second ends inside, both over 0", {7, 2}, {6, 1}, -1, {7, 1}},
    {"the second ends inside before 0", {6, 1}, {4, 7}, -1, {6, 7}},
    {"the second over 0 ends inside", {1, 4}, {6, 2}, -1, {1, 2}},
    {"the second inside the first: up to the end of the first", {1, 6}, {2, 4}, -1, {2, 6}},
    {"the second inside the first, over 0", {6, 3}, {7, 1}, -1, {7, 3}},
    {"the second inside the first before 0", {4, 1}, {5, 7}, -1, {5, 1}},
    {"the second inside the first beyond 0", {5, 3}, {1, 2}, -1, {1, 3}},
    {"the first inside the second: none", {2, 4}, {1, 6}, 0, {}},
    {"the first inside the second, over 0: none", {7, 1}, {6, 3}, 0, {}},
    {"the first inside the second before 0: none", {5, 7}, {4, 1}, 0, {}},
    {"the first inside the second beyond 0: none", {1, 2}, {5, 3}, 0, {}},
    {"one start, the second shorter", {1, 5}, {1, 2}, -1, {1, 2}},
    {"one start, the second shorter, over 0", {6, 2}, {6, 7}, -1, {6, 7}},
    {"one start, the first shorter: none", {1, 2}, {1, 5}, 0, {}},
    {"one end, the second shorter", {1, 5}, {3, 5}, -1, {3, 5}},
    {"one end, the second shorter, over 0", {6, 2}, {7, 2}, -1, {7, 2}},
    {"one end, the first shorter: none", {3, 5}, {1, 5}, 0, {}},
    {"overlapping at both ends", {1, 5}, {4, 2}, -1, {4, 5}},
    {"overlapping at both ends, the first over 0", {4, 2}, {1, 5}, -1, {1, 2}},
    {"sharing both ends", {1, 4}, {4, 1}, 2, {1, 4}},
    {"sharing both ends, the first over 0", {4, 1}, {1, 4}, 2, {4, 1}},
    {"the first begins where the second ends", {2, 4}, {1, 2}, 1, {2}},
    {"the first begins where the second ends, over 0", {1, 3}, {6, 1}, 1, {1}},
    {"the first begins at 0, where the second ends", {0, 2}, {5, 0}, 1, {0}},
    {"the first ends where the second begins", {1, 2}, {2, 4}, 1, {2}},
    {"the first ends where the second begins, over 0", {6, 1}, {1, 3}, 1, {1}},
    {"the first ends at 0, where the second begins", {5, 0}, {0, 2}, 1, {0}},
};

/// The span as an arc, drawn in one of its two directions.
Arc Drawn(const Span& span, bool clockwise)
{
    const double extent = span.to < span.from ? span.to - span.from + TwoPi : span.to - span.from;
    return clockwise ? Arc{centre, radius, span.to, -extent} : Arc{centre, radius, span.from, extent};
}

std::vector<DPOINT2> PointsAt(const std::vector<double>& radians)
{
    std::vector<DPOINT2> points;
    for (const double radian : radians)
    {
        points.push_back(OnCircleAt(centre, radius, radian));
    }
    return points;
}

Arc Counterclockwise(double start, double sweep)
{
    return {centre, radius, start, sweep};
}

testing::AssertionResult Answers(const Arc& a, const Arc& b, int code, const std::vector<double>& radians = {})
{
    return Gives(Meeting(a, b), code, PointsAt(radians), 1e-14);
}

} // namespace

TEST(IntersectArcsOfOneCircle, EachConfigurationHasItsOutcomeWhicheverWayTheArcsAreDrawn)
{
    const auto inRadians = [](const Span& span) { return Span{span.from * Eighth, span.to * Eighth}; };
    for (const Configuration& row : configurations)
    {
        std::vector<double> radians;
        for (const double eighths : row.at)
        {
            radians.push_back(eighths * Eighth);
        }
        for (const bool clockwiseA : {false, true})
        {
            for (const bool clockwiseB : {false, true})
            {
                EXPECT_TRUE(Answers(Drawn(inRadians(row.a), clockwiseA), Drawn(inRadians(row.b), clockwiseB), row.code,
                                    radians))
                    << row.name << (clockwiseA ? ", the first clockwise" : "")
                    << (clockwiseB ? ", the second clockwise" : "");
            }
        }
    }
}

TEST(IntersectArcsOfOneCircle, QuarterTurns)
{
    EXPECT_TRUE(Answers(Counterclockwise(0, Q), Counterclockwise(Q / 2, Q), -1, {Q / 2, Q}));
    EXPECT_TRUE(Answers(Counterclockwise(Q, Q), Counterclockwise(0, Q), 1, {Q}));
    EXPECT_TRUE(Answers(Counterclockwise(Q / 2, Q / 2), Counterclockwise(0, Pi), 0));
    EXPECT_TRUE(Answers(Counterclockwise(0, Pi), Counterclockwise(Q / 2, Q / 2), -1, {Q / 2, Pi}));
}

TEST(IntersectArcsOfOneCircle, AnEndAtAWholeTurnIsTheDirectionZero)
{
    EXPECT_TRUE(Answers(Counterclockwise(0, Pi), Counterclockwise(Pi, Pi), 2, {0, Pi}));
    EXPECT_TRUE(Answers(Counterclockwise(Pi, Pi), Counterclockwise(0, Pi), 2, {Pi, 0}));
    // Drawn clockwise from 0, an arc begins one turn up.
    EXPECT_TRUE(Answers(Counterclockwise(0, Pi), Counterclockwise(0, -Pi), 2, {0, Pi}));
}

TEST(IntersectArcsOfOneCircle, EqualEndsAreFoundWithinTheToleranceAndToldAsGiven)
{
    const Arc a = Counterclockwise(1, 1);
    const double off = 6e-10;
    EXPECT_TRUE(Answers(a, Counterclockwise(1 - off, 1 + 2 * off), -1, {1, 2 + off})) << "the same: the second's end";
    EXPECT_TRUE(Answers(a, Counterclockwise(1 - 2e-9, 1 + 4e-9), 0)) << "the first inside the second";
    EXPECT_TRUE(Answers(a, Counterclockwise(2 + off, 1), 1, {2})) << "the first's end";
    EXPECT_TRUE(Answers(a, Counterclockwise(2 + 2e-9, 1), 0));
    EXPECT_TRUE(Answers(a, Counterclockwise(0.5, 0.5 - off), 1, {1})) << "the first's start";
    EXPECT_TRUE(Answers(a, Counterclockwise(0.5, 0.5 - 2e-9), 0));
    EXPECT_TRUE(Answers(a, Counterclockwise(2 + off, TwoPi - 1 - 2 * off), 2, {1, 2})) << "both ends";
    EXPECT_TRUE(Answers(a, Counterclockwise(2 + 2e-9, TwoPi - 1 - 2e-9 - off), 1, {1})) << "one of them";
    EXPECT_TRUE(Answers(a, Counterclockwise(2 + off, TwoPi - 1 - 2e-9 - off), 1, {2})) << "the other";
}

TEST(IntersectArcsOfOneCircle, BothEndsMustAgreeForTheArcsToBeTheSame)
{
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(1, 1 + 2e-9), 0)) << "only the start: none";
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(1 - 0x1p-28, 1 + 0x1p-28), 0)) << "only the end: none";
}

TEST(IntersectArcsOfOneCircle, ADifferenceOfExactlyTheToleranceSeparatesEnds)
{
    // About the direction 0, where 1e-9 is a difference of doubles without rounding.
    EXPECT_TRUE(Answers(Counterclockwise(1e-9, 1), Counterclockwise(0, 1 + 1e-9), 0)) << "two starts";
    EXPECT_TRUE(Answers(Counterclockwise(1e-9, -1), Counterclockwise(0, -1 + 1e-9), 0)) << "two ends";
    EXPECT_TRUE(Answers(Counterclockwise(5, TwoPi - 5), Counterclockwise(1e-9, 1), 0)) << "an end and a start";
    EXPECT_TRUE(Answers(Counterclockwise(5, TwoPi - 5), Counterclockwise(Previous(1e-9), 1), 1, {0}));
    EXPECT_TRUE(Answers(Counterclockwise(1e-9, 1), Counterclockwise(5, TwoPi - 5), 0)) << "a start and an end";
    EXPECT_TRUE(Answers(Counterclockwise(Previous(1e-9), 1), Counterclockwise(5, TwoPi - 5), 1, {1e-9}));
}

TEST(IntersectArcsOfOneCircle, AnOverlapOfARoundingUnitComesBeforeASharedEnd)
{
    // The second begins one double before the first ends.
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(Previous(2), 1), -1, {2, 2}));
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(2, 1), 1, {2}));
    // The second ends one double after the first begins.
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(0.5, Next(1) - 0.5), -1, {1, 1}));
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(0.5, 0.5), 1, {1}));
    // Both at once: the one that begins inside wins.
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(Previous(2), TwoPi - 0.999999), -1, {2, 2}));
}

TEST(IntersectArcsOfOneCircle, AnEndInTheDirectionZeroLiesInsideNoArcOverZero)
{
    const Arc overZero = Counterclockwise(5, 3); // from 5 to 1.717
    EXPECT_TRUE(Answers(overZero, Counterclockwise(0, 3), 0)) << "begins at 0, ends outside";
    EXPECT_TRUE(Answers(overZero, Counterclockwise(0, 1), -1, {5, 1})) << "begins at 0, ends inside";
    EXPECT_TRUE(Answers(overZero, Counterclockwise(4, TwoPi - 4), 0)) << "ends at 0, begins outside";
    EXPECT_TRUE(Answers(overZero, Counterclockwise(6, TwoPi - 6), -1, {6, 8 - TwoPi})) << "ends at 0, begins inside";
    EXPECT_TRUE(Answers(overZero, Counterclockwise(TwoPi, 3), 0)) << "begins at 2π, ends outside";
    EXPECT_TRUE(Answers(overZero, Counterclockwise(LeastNormal, 3), -1, {0, 8 - TwoPi})) << "just beyond 0";
    EXPECT_TRUE(Answers(overZero, Counterclockwise(Previous(TwoPi), 3.5), -1, {0, 8 - TwoPi})) << "just before 0";
}

TEST(IntersectArcsOfOneCircle, EndsAreCorrectedByOneTurnAndStartsByNone)
{
    const Arc a = Counterclockwise(5, 1);
    EXPECT_TRUE(Answers(a, Counterclockwise(5.5 - TwoPi, 1), 0)) << "begins at -0.78, which is not turned up";
    EXPECT_TRUE(Answers(a, Counterclockwise(5.5 + TwoPi, 0.1), -1, {5, 5.6})) << "ends at 11.88, turned down once";
    EXPECT_TRUE(Answers(a, Counterclockwise(5.5 + 2 * TwoPi, 0.1), 0)) << "ends at 18.17, still above a turn";
    EXPECT_TRUE(Answers(a, Counterclockwise(5.5, -0.6), -1, {5, 5.5})) << "drawn clockwise";
    EXPECT_TRUE(Answers(a, Counterclockwise(5.5 - TwoPi, -0.1), -1, {5.4, 6})) << "begins at -0.88, turned up once";
    EXPECT_TRUE(Answers(a, Counterclockwise(5.5 - 2 * TwoPi, -0.1), 0)) << "begins at -7.17, still below 0";
}

TEST(IntersectArcsOfOneCircle, EqualEndsMakeAWholeTurnOfTheFirstArc)
{
    for (const double sweep : {TwoPi, -TwoPi, 0.0})
    {
        EXPECT_TRUE(Answers(Counterclockwise(0, sweep), Counterclockwise(1, 1), -1, {1, 0})) << sweep;
    }
    EXPECT_TRUE(Answers(Counterclockwise(1, 1), Counterclockwise(0, TwoPi), 0));
    EXPECT_TRUE(Answers(Counterclockwise(3, 0), Counterclockwise(3, 0), -1, {3, 3}));
    EXPECT_TRUE(Answers(Counterclockwise(3, 0), Counterclockwise(3, 1), -1, {3, 4})) << "its end lies inside";
    EXPECT_TRUE(Answers(Counterclockwise(3, 1), Counterclockwise(4, 0), 1, {4}));
    EXPECT_TRUE(Answers(Counterclockwise(7, 0), Counterclockwise(3, 1), -1, {3, 7}))
        << "without sweep both ends are the start, which no turn corrects";
}

TEST(IntersectArcsOfOneCircle, PointsLieOnTheFirstCircleWhereRadiiDiffer)
{
    const double other = 2 + 5e-10;
    const Arc a{{1, 1}, 2, 0, 2};
    EXPECT_TRUE(
        Gives(Meeting(a, Arc{{1, 1}, other, 1, 2}), -1, {OnCircleAt({1, 1}, 2, 1), OnCircleAt({1, 1}, 2, 2)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Arc{{1, 1}, other, 0, 2}, Arc{{1, 1}, 2, 1, 2}), -1,
                      {OnCircleAt({1, 1}, other, 1), OnCircleAt({1, 1}, other, 2)}, 1e-15));
}

TEST(IntersectArcsOfOneCircle, RandomArcsFollowTheOrderOfTheirEnds)
{
    Random random(211);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 5000; ++i)
    {
        const Span a{random.Radian(), random.Radian()};
        const Span b{random.Radian(), random.Radian()};
        const auto insideA = [&](double radian) {
            const auto along = [&](double to) { return std::fmod(to - a.from + TwoPi, TwoPi); };
            return along(radian) < along(a.to);
        };
        const Arc first = Drawn(a, random.Coin());
        const Arc second = Drawn(b, random.Coin());
        if (insideA(b.from))
        {
            ++counts[0];
            ASSERT_TRUE(Answers(first, second, -1, {b.from, a.to}));
        }
        else if (insideA(b.to))
        {
            ++counts[1];
            ASSERT_TRUE(Answers(first, second, -1, {a.from, b.to}));
        }
        else
        {
            ++counts[2];
            ASSERT_TRUE(Answers(first, second, 0));
        }
    }
    EXPECT_GT(std::min({counts[0], counts[1], counts[2]}), 500);
}

TEST(IntersectArcsOfOneCircle, AnOutputMayBeAnInput)
{
    for (const bool swapped : {false, true})
    {
        DPOINT2 a = centre;
        DPOINT2 b = centre;
        DPOINT2* const first = swapped ? &b : &a;
        DPOINT2* const second = swapped ? &a : &b;
        EXPECT_EQ(Intersect_ArcWithArc(a, radius, 0, 2, b, radius, 1, 2, first, second), -1);
        EXPECT_TRUE(Near(*first, OnCircleAt(centre, radius, 1), 1e-15));
        EXPECT_TRUE(Near(*second, OnCircleAt(centre, radius, 2), 1e-15));
    }
    std::vector<DPOINT2> points = {centre};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_ArcWithArc(points[0], radius, 0, 2, points[0], radius, 1, 2, points, -1), -1);
    ASSERT_EQ(points.size(), 3U);
    EXPECT_TRUE(Near(points[1], OnCircleAt(centre, radius, 1), 1e-15));
    EXPECT_TRUE(Near(points[2], OnCircleAt(centre, radius, 2), 1e-15));
}
