#include "math/Intersect.h"
#include "support/Curves.h"
#include "support/ReferenceLines.h"

#include <algorithm>
#include <cmath>
#include <utility>

using namespace math;
using namespace math::test;

// Two stretches, the full form: one point, none, or an overlap along a length. The quick test has a file of its own.

namespace
{

/// What two stretches of one straight line have in common, told by numbers along that line.
struct OnOneLine
{
    const char* name;
    double a[2];
    double b[2];
    int code;
    double at; ///< where they meet, if the code is 1
};

// Touching, they meet in the first stretch's first end when that is an end of the second stretch, else in its second.
const OnOneLine oneLine[] = {
    {"apart, the second beyond", {0, 1}, {2, 3}, 0, 0},
    {"apart, the second before", {2, 3}, {0, 1}, 0, 0},
    {"second end touches first end", {0, 2}, {2, 4}, 1, 2},
    {"second end touches second end", {0, 2}, {4, 2}, 1, 2},
    {"first end touches first end", {2, 0}, {2, 4}, 1, 2},
    {"first end touches second end", {2, 0}, {4, 2}, 1, 2},
    {"first end touches, the second before", {2, 4}, {2, 0}, 1, 2},
    {"first end touches second end, the second before", {2, 4}, {0, 2}, 1, 2},
    {"second end touches, the second before", {4, 2}, {0, 2}, 1, 2},
    {"second end touches first end, the second before", {4, 2}, {2, 0}, 1, 2},
    {"overlapping at the end", {0, 2}, {1, 3}, -1, 0},
    {"overlapping at the start", {1, 3}, {0, 2}, -1, 0},
    {"overlapping, against each other", {0, 2}, {3, 1}, -1, 0},
    {"the second inside", {0, 3}, {1, 2}, -1, 0},
    {"the first inside", {1, 2}, {0, 3}, -1, 0},
    {"the same", {0, 2}, {0, 2}, -1, 0},
    {"the same, turned round", {0, 2}, {2, 0}, -1, 0},
    {"one start", {0, 2}, {0, 3}, -1, 0},
    {"one end", {0, 2}, {-1, 2}, -1, 0},
};

Stretch Along(const DPOINT2& origin, const DPOINT2& direction, const double (&ends)[2])
{
    return {At(origin.x + ends[0] * direction.x, origin.y + ends[0] * direction.y),
            At(origin.x + ends[1] * direction.x, origin.y + ends[1] * direction.y)};
}

/// Two stretches between grid points, in whole numbers: the code, and numerators and denominator of the point.
struct OnGrid
{
    int code;
    double x;
    double y;
};

struct Whole
{
    int x;
    int y;
};

int Cross(const Whole& a, const Whole& b)
{
    return a.x * b.y - a.y * b.x;
}

Whole Minus(const Whole& a, const Whole& b)
{
    return {a.x - b.x, a.y - b.y};
}

OnGrid MeetOnGrid(const Whole& a1, const Whole& a2, const Whole& b1, const Whole& b2)
{
    const Whole u = Minus(a2, a1);
    const Whole v = Minus(b2, b1);
    const Whole w = Minus(b1, a1);
    if ((u.x == 0 && u.y == 0) || (v.x == 0 && v.y == 0))
    {
        return {0, 0, 0};
    }
    const int divisor = Cross(u, v);
    if (divisor != 0)
    {
        const int sign = divisor > 0 ? 1 : -1;
        const int onA = sign * Cross(w, v);
        const int onB = sign * Cross(w, u);
        const bool meet = onA >= 0 && onA <= sign * divisor && onB >= 0 && onB <= sign * divisor;
        const double ratio = static_cast<double>(Cross(w, v)) / divisor;
        return {meet ? 1 : 0, a1.x + ratio * u.x, a1.y + ratio * u.y};
    }
    if (Cross(u, w) != 0)
    {
        return {0, 0, 0};
    }
    // On one line: order by x, then by y.
    const auto before = [](const Whole& s, const Whole& t) { return s.x != t.x ? s.x < t.x : s.y < t.y; };
    const Whole lower = std::max(std::min(a1, a2, before), std::min(b1, b2, before), before);
    const Whole upper = std::min(std::max(a1, a2, before), std::max(b1, b2, before), before);
    const int code = before(lower, upper) ? -1 : before(upper, lower) ? 0 : 1;
    return {code, static_cast<double>(lower.x), static_cast<double>(lower.y)};
}

} // namespace

TEST(IntersectLineWithLine, CrossInOnePoint)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {2, 2}}, Stretch{{0, 2}, {2, 0}}), 1, {At(1, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 1}, {4, 1}}, Stretch{{3, 0}, {3, 5}}), 1, {At(3, 1)}, 0));
}

TEST(IntersectLineWithLine, BothStretchesMustReachTheCrossing)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 1}, {4, 1}}, Stretch{{5, 0}, {5, 5}}), 0, {})) << "the first falls short";
    EXPECT_TRUE(Gives(Meeting(Stretch{{5, 0}, {5, 5}}, Stretch{{0, 1}, {4, 1}}), 0, {})) << "the second falls short";
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 1}, {4, 1}}, Stretch{{5, 2}, {5, 5}}), 0, {})) << "both fall short";
}

TEST(IntersectLineWithLine, TheEndOfOneOnTheOtherCounts)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {4, 0}}, Stretch{{1, 0}, {1, 3}}), 1, {At(1, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 0}, {1, 3}}, Stretch{{0, 0}, {4, 0}}), 1, {At(1, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {4, 0}}, Stretch{{4, 0}, {4, 3}}), 1, {At(4, 0)}, 0)) << "a corner";
}

TEST(IntersectLineWithLine, EachStretchIsWidenedByTheTolerance)
{
    const Stretch upright{{0, 0}, {0, 4}};
    EXPECT_TRUE(Gives(Meeting(Stretch{{5e-10, 1}, {3, 1}}, upright), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(upright, Stretch{{5e-10, 1}, {3, 1}}), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{1e-9, 1}, {3, 1}}, upright), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{2e-9, 1}, {3, 1}}, upright), 0, {}));
    EXPECT_TRUE(Gives(Meeting(upright, Stretch{{2e-9, 1}, {3, 1}}), 0, {}));
}

TEST(IntersectLineWithLine, ParallelStretchesApartDoNotMeet)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {4, 0}}, Stretch{{1, 1}, {3, 1}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {4, 4}}, Stretch{{1, 0}, {5, 4}}), 0, {}));
}

TEST(IntersectLineWithLine, StretchesOfOneLineAreComparedAlongIt)
{
    for (const DPOINT2& direction :
         {At(1, 0), At(-1, 0), At(0, 1), At(0, -1), At(1, 1), At(1, -1), At(-2, 1), At(0.5, 4)})
    {
        for (const DPOINT2& origin : {At(0, 0), At(3, -5)})
        {
            for (const OnOneLine& row : oneLine)
            {
                const Stretch a = Along(origin, direction, row.a);
                const Stretch b = Along(origin, direction, row.b);
                const DPOINT2 at = Along(origin, direction, {row.at, row.at}).first;
                const std::vector<DPOINT2> points(row.code == 1 ? 1 : 0, at);
                EXPECT_TRUE(Gives(Meeting(a, b), row.code, points, 0))
                    << row.name << " along " << testing::PrintToString(direction);
            }
        }
    }
}

TEST(IntersectLineWithLine, CollinearStretchesThatTouchMeetInTheSharedEnd)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {2, 0}}, Stretch{{2, 0}, {4, 0}}), 1, {At(2, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {2, 0}}, Stretch{{4, 0}, {2, 0}}), 1, {At(2, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {0, 2}}, Stretch{{0, 2}, {0, 4}}), 1, {At(0, 2)}, 0));
}

TEST(IntersectLineWithLine, TouchingIsATolerantTestAlongTheLine)
{
    // The point is always an end of the first stretch, exactly as given.
    const Stretch a{{0, 0}, {2, 0}};
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{2 + 5e-10, 0}, {4, 0}}), 1, {At(2, 0)}, 0)) << "a gap below the tolerance";
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{2 - 5e-10, 0}, {4, 0}}), 1, {At(2, 0)}, 0)) << "an overlap below it";
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{2 + 2e-9, 0}, {4, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{2 - 2e-9, 0}, {4, 0}}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{5e-10, 0}, {-4, 0}}), 1, {At(0, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{-5e-10, 0}, {-4, 0}}), 1, {At(0, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{-2e-9, 0}, {-4, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{2e-9, 0}, {-4, 0}}), -1, {}));
}

TEST(IntersectLineWithLine, AGapOrOverlapOfExactlyTheToleranceIsNoTouch)
{
    const Stretch rightOfZero{{0, 0}, {2, 0}};
    const Stretch leftOfZero{{-2, 0}, {0, 0}};
    EXPECT_TRUE(Gives(Meeting(rightOfZero, Stretch{{-1e-9, 0}, {-4, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(rightOfZero, Stretch{{1e-9, 0}, {-4, 0}}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(leftOfZero, Stretch{{1e-9, 0}, {4, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(leftOfZero, Stretch{{-1e-9, 0}, {4, 0}}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(rightOfZero, Stretch{{Next(-1e-9), 0}, {-4, 0}}), 1, {At(0, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(leftOfZero, Stretch{{Previous(1e-9), 0}, {4, 0}}), 1, {At(0, 0)}, 0));
}

TEST(IntersectLineWithLine, OnlyTheFirstStretchDecidesTheAxisOfComparison)
{
    const Stretch upright{{0, 1}, {0, 3}};
    // Steep by less than the tolerance in x: compared along y, where they overlap.
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {5e-10, 2}}, upright), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{5e-10, 0}, {0, 2}}, upright), -1, {}));
    // At the tolerance x is compared, where they touch at 0 or at 1e-9. No end is shared: the second end is given.
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {1e-9, 2}}, upright), 1, {At(1e-9, 2)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{{1e-9, 0}, {0, 2}}, upright), 1, {At(0, 2)}, 0));
    // The other way round the first stretch is upright.
    EXPECT_TRUE(Gives(Meeting(upright, Stretch{{0, 0}, {1e-9, 2}}), -1, {}));
}

TEST(IntersectLineWithLine, SharedEndsAreEqualCoordinateByCoordinate)
{
    // Each pair lies on one line within the tolerance and touches at x = 0.
    const Stretch a{{0, 0}, {2, 0}};
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{8e-10, 8e-10}, {-2, 8e-10}}), 1, {At(0, 0)}, 0))
        << "equal in each coordinate, though further apart than the tolerance";
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{-2, 8e-10}, {8e-10, 8e-10}}), 1, {At(0, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{0, 1e-9}, {-2, 1e-9}}), 1, {At(2, 0)}, 0))
        << "not equal in y: the second end, taken without a test";
    EXPECT_TRUE(Gives(Meeting(a, Stretch{{-2, 1e-9}, {0, 1e-9}}), 1, {At(2, 0)}, 0));
}

TEST(IntersectLineWithLine, LinesThatCountAsOneNearTheOriginAreOneFarOutToo)
{
    // Two lines through the origin, 5e-10 of angle apart, count as one, though far out, where the stretches are, they
    // are half a thousandth apart.
    for (const double direction : {0.0, QuarterPi, HalfPi, 3 * QuarterPi, 1.0, 2.5})
    {
        SCOPED_TRACE(direction);
        const auto at = [](double radian, double distance) {
            return At(distance * std::cos(radian), distance * std::sin(radian));
        };
        const double other = direction + 5e-10;
        for (const double size : {1e5, 1e-3})
        {
            EXPECT_EQ(Intersect_LineWithLine(at(direction, size), at(direction, 2 * size), at(other, 1.5 * size),
                                             at(other, 3 * size), nullptr),
                      -1);
            EXPECT_EQ(Intersect_LineWithLine(at(direction, size), at(direction, 2 * size), at(other, 3 * size),
                                             at(other, 4 * size), nullptr),
                      0);
        }
    }
}

TEST(IntersectLineWithLine, StretchesOfAnySizeWhoseSquaresAreNumbersCross)
{
    for (const double size : {1e-150, 1e-101, 1e-99, 1e-9, 1.0, 1e9, 1e99, 1e101, 1e150})
    {
        SCOPED_TRACE(size);
        const DPOINT2 left = At(-size, 0);
        const DPOINT2 right = At(size, 0);
        DPOINT2 point = Untouched();
        EXPECT_EQ(Intersect_LineWithLine(left, right, At(0, -size), At(0, size), &point), 1);
        EXPECT_EQ(point, At(0, 0));
        // One that stops half way is further off than the tolerance only if it is of some size.
        const int expected = size > 1e-8 ? 0 : 1;
        EXPECT_EQ(Intersect_LineWithLine(left, right, At(0, size / 2), At(0, size), &point), expected);
    }
}

TEST(IntersectLineWithLine, AStretchOfNoLengthHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 0}, {1, 0}}, Stretch{{0, 0}, {2, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{0, 0}, {2, 0}}, Stretch{{1, 0}, {1, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{{1, 0}, {1, 0}}, Stretch{{1, 0}, {1, 0}}), 0, {}));
}

TEST(IntersectLineWithLine, EveryPairOnAGridMeetsAsWholeNumbersTell)
{
    const int size = 3;
    std::vector<Whole> grid;
    for (int i = 0; i < size * size; ++i)
    {
        grid.push_back({i % size, i / size});
    }
    const auto point = [](const Whole& whole) { return At(whole.x, whole.y); };
    for (const Whole& a1 : grid)
    {
        for (const Whole& a2 : grid)
        {
            for (const Whole& b1 : grid)
            {
                for (const Whole& b2 : grid)
                {
                    const OnGrid expected = MeetOnGrid(a1, a2, b1, b2);
                    const std::vector<DPOINT2> points(expected.code == 1 ? 1 : 0, At(expected.x, expected.y));
                    ASSERT_TRUE(Gives(Meeting(Stretch{point(a1), point(a2)}, Stretch{point(b1), point(b2)}),
                                      expected.code, points, 1e-14))
                        << a1.x << a1.y << " " << a2.x << a2.y << " with " << b1.x << b1.y << " " << b2.x << b2.y;
                }
            }
        }
    }
}

TEST(IntersectLineWithLine, ThePointLiesOnBothAndNeitherOrderNorDirectionMatters)
{
    Random random(131);
    int met = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const Stretch a = RandomStretch(random);
        const Stretch b = RandomStretch(random);
        const DPOINT2 u = Minus(a.second, a.first);
        const DPOINT2 v = Minus(b.second, b.first);
        if (std::abs(CrossOf(u, v)) < 0.1)
        {
            continue; // nearly parallel or very short: ill-conditioned
        }
        const double t = CrossOf(Minus(b.first, a.first), v) / CrossOf(u, v);
        bool clear = true;
        std::vector<DPOINT2> points = {At(a.first.x + t * u.x, a.first.y + t * u.y)};
        points = KeepOnStretch(KeepOnStretch(points, a, clear), b, clear);
        if (!clear && points.empty())
        {
            continue;
        }
        const int code = static_cast<int>(points.size());
        met += code;
        ASSERT_TRUE(Gives(Meeting(a, b), code, points, 1e-9));
        ASSERT_TRUE(Gives(Meeting(b, a), code, points, 1e-9));
        ASSERT_TRUE(Gives(Meeting(Stretch{a.second, a.first}, b), code, points, 1e-9));
        ASSERT_TRUE(Gives(Meeting(a, Stretch{b.second, b.first}), code, points, 1e-9));
    }
    EXPECT_GT(met, 300);
}

TEST(IntersectLineWithLine, NumbersThatAreNoneNeitherRaiseNorHang)
{
    for (int i = 0; i < 8; ++i)
    {
        double numbers[8] = {0, 0, 2, 2, 0, 2, 2, 0};
        numbers[i] = InvalidDouble;
        const Stretch a{{numbers[0], numbers[1]}, {numbers[2], numbers[3]}};
        const Stretch b{{numbers[4], numbers[5]}, {numbers[6], numbers[7]}};
        EXPECT_TRUE(Gives(Meeting(a, b), 0, {})) << "a point that is none lies on no stretch";
    }
}

TEST(IntersectLineWithLine, StretchesOfNearlyOneDirectionFarOutCountAsOneLine)
{
    // Both lines pass through the origin, half a nanoradian apart: less than the kernel tells, and their distances from
    // the origin agree. So they are one line, although the stretches lie 0.7 to 1.4 thousandths apart.
    DPOINT2 point = Untouched();
    EXPECT_EQ(Intersect_LineWithLine({1e6, 1e6}, {2e6, 2e6}, {1e6, 1e6 + 0.001}, {2e6, 2e6 + 0.002}, &point), -1);
    EXPECT_EQ(point, Untouched());
    EXPECT_EQ(Intersect_LineWithLine({1e6, 1e6}, {2e6, 2e6}, {3e6, 3e6 + 0.003}, {4e6, 4e6 + 0.004}, &point), 0);
}

TEST(IntersectLineWithLine, AnOutputMayBeAnInput)
{
    for (int i = 0; i < 4; ++i)
    {
        DPOINT2 ends[4] = {At(0, 1), At(4, 1), At(3, 0), At(3, 5)};
        EXPECT_EQ(Intersect_LineWithLine(ends[0], ends[1], ends[2], ends[3], &ends[i]), 1);
        EXPECT_EQ(ends[i], At(3, 1));
        DPOINT2 touching[4] = {At(0, 0), At(2, 0), At(4, 0), At(2, 0)};
        EXPECT_EQ(Intersect_LineWithLine(touching[0], touching[1], touching[2], touching[3], &touching[i]), 1);
        EXPECT_EQ(touching[i], At(2, 0));
    }
    std::vector<DPOINT2> points = {At(0, 1), At(4, 1), At(3, 0), At(3, 5)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_LineWithLine(points[0], points[1], points[2], points[3], points, 1), 1);
    EXPECT_EQ(points.back(), At(3, 1));
}

namespace
{

/// A point at one of the distances at which tests change their answers.
DPOINT2 Beside(Random& random, const DPOINT2& point)
{
    const double distances[] = {0.0, 0.9e-9, 1e-9, 1.1e-9, 3e-9, 1e-8, 3e-8, 1e-6};
    const double distance = distances[random.Integer(0, 7)];
    const double radian = random.Coin() ? random.Radian() : random.Integer(0, 8) * QuarterPi;
    return At(point.x + distance * std::cos(radian), point.y + distance * std::sin(radian));
}

/// Two stretches, of which the second often ends on the first one, beside one of its ends or nearly along it.
std::pair<Stretch, Stretch> RandomPair(Random& random, const DPOINT2& origin, double size)
{
    const auto point = [&] {
        const DPOINT2 offset = random.Point(size);
        return At(origin.x + offset.x, origin.y + offset.y);
    };
    const auto onWay = [](const Stretch& way, double part) {
        return At(way.first.x + part * (way.second.x - way.first.x), way.first.y + part * (way.second.y - way.first.y));
    };
    const Stretch first{point(), point()};
    Stretch second{point(), point()};
    switch (random.Integer(0, 5))
    {
    case 0:
        second.first = Beside(random, onWay(first, random.Number(0.0, 1.0)));
        break;
    case 1:
        second.first = Beside(random, random.Coin() ? first.first : first.second);
        break;
    case 2:
        second = {Beside(random, onWay(first, random.Number(-0.5, 1.5))),
                  Beside(random, onWay(first, random.Number(-0.5, 1.5)))};
        break;
    case 3: {
        const DPOINT2 end = Beside(random, random.Coin() ? first.first : first.second);
        second = {onWay({end, second.first}, -random.Number(0.0, 1.0)), onWay({end, second.first}, 1.0)};
        break;
    }
    case 4:
        (random.Coin() ? second.first.x : second.second.y) = random.Coin() ? InvalidDouble : Infinity;
        break;
    default:
        break;
    }
    return random.Coin() ? std::pair(first, second) : std::pair(second, first);
}

} // namespace

TEST(IntersectLineWithLine, AgreesWithTheStepsWrittenOut)
{
    Random random(20);
    int counts[3] = {};
    for (int i = 0; i < 200000; ++i)
    {
        const double size = random.Coin() ? 10.0 : random.Size(1e-9, 1e9);
        // Far from the origin the point is less exact than the tolerance.
        const DPOINT2 origin = random.Coin() ? At(0.0, 0.0) : random.Point(random.Size(1.0, 1e12));
        const auto [a, b] = RandomPair(random, origin, size);
        DPOINT2 expected = Untouched();
        const int code = reference::LineWithLine(a.first, a.second, b.first, b.second, expected);
        DPOINT2 point = Untouched();
        ASSERT_EQ(Intersect_LineWithLine(a.first, a.second, b.first, b.second, &point), code) << i;
        ASSERT_TRUE(SameBits(point, expected)) << i;
        ++counts[code + 1];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}
