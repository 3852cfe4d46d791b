#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// x²/4 + y² = 1 and its quarter turn meet at (±s, ±s), s² = 4/5, for the flat one counter-clockwise from the first
// quadrant. The arc lies on the upright one, whose own x axis points up: there the four points lie at the polar angles
// 7π/4 (++), π/4
// (-+), 3π/4 (--) and 5π/4 (+-).
const Ellipse flat{{0, 0}, 2, 1, 0};
const Ellipse upright{{0, 0}, 2, 1, HalfPi};
const double s = std::sqrt(0.8);
const std::vector<DPOINT2> crossings = {{s, s}, {-s, s}, {-s, -s}, {s, -s}};

// A halving ends with a height difference below 1e-9 at a crossing with slopes -1/4 and -4: 3e-10 of x, 1.2e-9 of y.
constexpr double nearby = 2e-9;

EllipseArc ArcOf(double start, double sweep)
{
    return {upright, start, sweep};
}

} // namespace

TEST(IntersectEllipseWithEllipseArc, CrossingsOnTheArcCountInTheOrderOfTheEllipse)
{
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(0, 6.2)), 4, crossings, nearby));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(1, 5)), 3, Pick(crossings, {0, 2, 3}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(5, 3)), 2, Pick(crossings, {0, 1}), nearby)) << "past the own x axis";
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(2, 1)), 1, Pick(crossings, {2}), nearby));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(1, 1)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(-5.2, 1)), 0, {})) << "a start below 0";
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(2 + TwoPi, 1)), 1, Pick(crossings, {2}), nearby))
        << "a start above a turn";
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(1, 7)), 4, crossings, nearby)) << "more than a turn";
}

TEST(IntersectEllipseWithEllipseArc, TheArcsOwnFrameCounts)
{
    // Moved and turned: the frame directions of the crossings stay.
    const double turn = 0.6;
    const Ellipse turnedFlat{{3, -2}, 2, 1, turn};
    const EllipseArc turnedArc{{{3, -2}, 2, 1, HalfPi + turn}, 2, 1};
    const DPOINT2 expected = {3 + std::cos(turn) * -s - std::sin(turn) * -s,
                              -2 + std::sin(turn) * -s + std::cos(turn) * -s};
    EXPECT_TRUE(GivesFour(Meeting(turnedFlat, turnedArc), 1, {expected}, 1e-8));
}

TEST(IntersectEllipseWithEllipseArc, OneEllipseHasNoPoint)
{
    // Not -1: the arc lies on the ellipse, and nothing is told of it.
    EXPECT_TRUE(GivesFour(Meeting(flat, EllipseArc{flat, 0, 1}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(flat, EllipseArc{{{0, 0}, 2, 1, Pi}, 0, 1}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{1, 1}, 2, 2, 0}, EllipseArc{{{1, 1}, 2, 2, 1}, 0, 1}), 0, {}));
}

TEST(IntersectEllipseWithEllipseArc, FiguresApartHaveNoPoint)
{
    EXPECT_TRUE(GivesFour(Meeting(flat, EllipseArc{{{10, 0}, 2, 1, 0}, 0, 6.2}), 0, {}));
}

TEST(IntersectEllipseWithEllipseArc, ASweepBelowZeroKeepsTheEndsAlone)
{
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(2, -1)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(3, -3)), 0, {})) << "two crossings inside";
    // From the crossing (--) clockwise to the crossing (-+).
    const FourResult whole = OutputsOf(Meeting(flat, upright));
    ASSERT_EQ(whole.code, 4);
    const auto polarOf = [](const DPOINT2& point) { return std::atan2(point.y, point.x) - HalfPi; };
    const double from = polarOf(whole.outputs[2]) + TwoPi;
    const double to = polarOf(whole.outputs[1]);
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(from, to - from)), 2, {whole.outputs[1], whole.outputs[2]}, 0));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(from, -0.5)), 1, {whole.outputs[2]}, 0));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(to + 0.5, -0.5)), 1, {whole.outputs[1]}, 0));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(0.2, to - 0.2 - TwoPi)), 1, {whole.outputs[1]}, 0))
        << "an end below a turn";
}

TEST(IntersectEllipseWithEllipseArc, DirectionsAreExactAndEndsHaveATolerance)
{
    // With the joint (0, 1) of the flat ellipse as crossing the point is exact to a rounding unit. The circle of radius
    // √2 about (1, 0) has it at the polar angle 3π/4.
    const Circle circle{{1, 0}, std::sqrt(2.0)};
    const auto code = [&](double start, double sweep) {
        return OutputsOf(Meeting(flat, EllipseArc{AsEllipse(circle), start, sweep})).code;
    };
    const double polar = 3 * QuarterPi;
    EXPECT_EQ(code(polar - 1, 1), 1);
    // Beyond the end or before the start by an angle times the radius 1.414.
    EXPECT_EQ(code(polar - 1, 1 - 0.68e-9), 1);
    EXPECT_EQ(code(polar - 1, 1 - 0.73e-9), 0);
    EXPECT_EQ(code(polar + 0.68e-9, 1), 1);
    EXPECT_EQ(code(polar + 0.73e-9, 1), 0);
    // On a circle of radius 100 an angle of 1e-10 is 1e-8 of distance: no tolerance of angle.
    const Ellipse wide{{0, 0}, 200, 100, 0};
    const Ellipse wideCircle{{100, 0}, 100 * std::sqrt(2.0), 100 * std::sqrt(2.0), 0};
    EXPECT_EQ(OutputsOf(Meeting(wide, EllipseArc{wideCircle, polar - 1, 1 + 1e-10})).code, 1);
    EXPECT_EQ(OutputsOf(Meeting(wide, EllipseArc{wideCircle, polar - 1, 1 - 1e-10})).code, 0);
    EXPECT_EQ(OutputsOf(Meeting(wide, EllipseArc{wideCircle, polar - 1e-10, 1})).code, 1);
    EXPECT_EQ(OutputsOf(Meeting(wide, EllipseArc{wideCircle, polar + 1e-10, 1})).code, 0);
}

TEST(IntersectEllipseWithEllipseArc, AnArcOfNoSweepHoldsItsStart)
{
    const FourResult whole = OutputsOf(Meeting(flat, upright));
    const double polar = std::atan2(whole.outputs[1].y, whole.outputs[1].x) - HalfPi;
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(polar, 0)), 1, {whole.outputs[1]}, 0));
    EXPECT_TRUE(GivesFour(Meeting(flat, ArcOf(polar + 1e-6, 0)), 0, {}));
}

TEST(IntersectEllipseWithEllipseArc, AnArcThatStartsNowhereHoldsNoPoint)
{
    // The crossed ellipses meet in four points, none of which lies past a start of NaN.
    EXPECT_EQ(OutputsOf(Meeting(Ellipse{{0, 0}, 2, 1, 0}, Ellipse{{0, 0}, 1, 2, 0})).code, 4);
    EXPECT_EQ(OutputsOf(Meeting(Ellipse{{0, 0}, 2, 1, 0}, EllipseArc{{{0, 0}, 1, 2, 0}, InvalidDouble, 1})).code, 0);
}

TEST(IntersectEllipseWithEllipseArc, OfMoreThanFourPointsTheFirstFourAreLookedAt)
{
    const Ellipse a{{0, 0}, 1.5, 1.5, 2.0000000000000009};
    const Ellipse b{{0.5, 0.5}, 1, 2, -1.5707963267948968};
    const FourResult whole = OutputsOf(Meeting(a, b));
    ASSERT_EQ(whole.code, 6);
    EXPECT_TRUE(GivesFour(Meeting(a, EllipseArc{b, 0, 6.4}), 4, whole.Points(), 0));
}

TEST(IntersectEllipseWithEllipseArc, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 outputs[4] = {{0, 0}, {0, 0}, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_EllipseWithEllipseArc(outputs[0], 2, 1, 0, outputs[1], 2, 1, HalfPi, 5, 3, &outputs[0],
                                              &outputs[1], &outputs[2], &outputs[3]),
              2);
    EXPECT_TRUE(SameSet({outputs, outputs + 4}, {crossings[0], crossings[1], NoPoint(), NoPoint()}, nearby));
    std::vector<DPOINT2> points = {{0, 0}, {0, 0}};
    EXPECT_EQ(Intersect_EllipseWithEllipseArc(points[0], 2, 1, 0, points[1], 2, 1, HalfPi, 5, 3, points, -1), 2);
    EXPECT_TRUE(SameSet(points, Pick(crossings, {0, 1}), nearby));
}

TEST(IntersectEllipseWithEllipseArc, AgreesWithTheStepsWrittenOut)
{
    Random random(91);
    int counts[5] = {0, 0, 0, 0, 0};
    for (int i = 0; i < 2500; ++i)
    {
        const Ellipse ellipse = LongAxisFirst(RandomEllipse(random, 1, 0.6));
        EllipseArc arc{LongAxisFirst(RandomEllipse(random, 1, 0.6)), random.Number(-7.0, 7.0),
                       random.Number(-6.5, 6.5)};
        reference::QuarterArcMethod method;
        std::vector<DPOINT2> points;
        const int whole = method.Meet(ellipse, arc.whole, points);
        if (whole > 0 && i % 2 == 0)
        {
            // An end of the arc at, or next to, one of the points.
            const DPOINT2 direction = Minus(points[0], arc.whole.centre);
            const double polar =
                std::atan2(direction.y, direction.x) - arc.whole.rotation + random.Integer(-2, 2) * 6e-10;
            (i % 4 == 0 ? arc.start : arc.sweep) = i % 4 == 0 ? reference::Fold(polar, TwoPi) : polar - arc.start;
        }
        std::vector<DPOINT2> kept;
        const int expected = reference::KeepOnArc(whole, points, arc, kept);
        if (method.MetUnending())
        {
            continue;
        }
        ASSERT_TRUE(IsExactly(OutputsOf(Meeting(ellipse, arc)), expected, kept)) << i;
        if (i % 20 == 0)
        {
            ASSERT_TRUE(GivesFour(Meeting(ellipse, arc), expected, kept, 0)) << i;
        }
        ++counts[expected];
        bool clear = arc.sweep > 0;
        const auto held = test::KeepOnArc(points, arc, clear);
        if (clear)
        {
            ASSERT_EQ(held, kept) << i;
        }
    }
    for (const int count : counts)
    {
        EXPECT_GT(count, 20);
    }
}
