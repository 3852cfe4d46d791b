#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// The crossings (±s, ±s), s² = 8000, of x²/200² + y²/100² = 1 and its quarter turn. Their polar angles on the flat one,
// and on the upright one less π/2: π/4 (++), 3π/4 (-+), 5π/4 (--), 7π/4 (+-).
const Ellipse flat{{0, 0}, 200, 100, 0};
const Ellipse upright{{0, 0}, 200, 100, HalfPi};
const double s = std::sqrt(8000.0);
const DPOINT2 first = {s, s};
const DPOINT2 second = {-s, s};
const DPOINT2 third = {-s, -s};
const DPOINT2 fourth = {s, -s};

EllipseArc OnFlat(double start, double sweep)
{
    return {flat, start, sweep};
}

EllipseArc OnUpright(double start, double sweep)
{
    return {upright, start - HalfPi, sweep};
}

// One tilted ellipse for arcs that share it, semi-axes 5 and 3.
const Ellipse tilted{{1, 2}, 5, 3, 0.7};

EllipseArc OnTilted(double start, double sweep)
{
    return {tilted, start, sweep};
}

} // namespace

// Two ellipses

TEST(IntersectEllipseArcWithEllipseArc, APointHasToLieOnBothArcs)
{
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 6.2), OnUpright(0, 6.2)), 4, {first, second, third, fourth}, 2e-9));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 4), OnUpright(2, 6)), 3, {first, second, third}, 2e-9));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(5, 3), OnUpright(0, 6.2)), 2, {first, fourth}, 2e-9));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 3), OnUpright(2, 3)), 1, {second}, 2e-9));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 1), OnUpright(2, 1)), 0, {})) << "one each";
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(1, 1), OnUpright(0, 6.2)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 6.2), OnUpright(1, 1)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 1), EllipseArc{{{900, 0}, 200, 100, 0}, 0, 6}), 0, {}));
}

TEST(IntersectEllipseArcWithEllipseArc, ASweepBelowZeroKeepsTheEndsAlone)
{
    // The sweep is read counter-clockwise: nothing lies on it but its ends.
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(1, -1), OnUpright(0, 6.2)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 6.2), OnUpright(1, -1)), 0, {}));
    const FourResult whole = OutputsOf(Meeting(flat, upright));
    const double polar = std::atan2(whole.outputs[0].y, whole.outputs[0].x);
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(polar, -0.5), OnUpright(0, 6.2)), 1, {first}, 2e-9));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(polar + 0.5, -0.5), OnUpright(0, 6.2)), 1, {first}, 2e-9));
}

TEST(IntersectEllipseArcWithEllipseArc, OfMoreThanFourPointsTheFirstFourAreLookedAt)
{
    const Ellipse a{{0, 0}, 1.5, 1.5, 2.0000000000000009};
    const Ellipse b{{0.5, 0.5}, 1, 2, -1.5707963267948968};
    const FourResult whole = OutputsOf(Meeting(a, b));
    ASSERT_EQ(whole.code, 6);
    // Of those the points of searches that were left lie on no arc.
    std::vector<DPOINT2> onCurves;
    for (const DPOINT2& point : whole.Points())
    {
        if (DistanceFromEllipse(a, point) < 1e-9 && DistanceFromEllipse(b, point) < 1e-9)
        {
            onCurves.push_back(point);
        }
    }
    ASSERT_EQ(onCurves.size(), 2U);
    EXPECT_TRUE(GivesFour(Meeting(EllipseArc{a, 0, 6.4}, EllipseArc{b, 0, 6.4}), 2, onCurves, 0));
}

TEST(IntersectEllipseArcWithEllipseArc, OnSmallFiguresACrossingFoundTooCoarselyLiesOnNeither)
{
    // A point is on a curve when (u/a)² + (v/b)² is within 1e-9 of 1, which on figures of size 1 is less than what a
    // search leaves: its points are found, and then dropped.
    const Ellipse small{{0, 0}, 2, 1, 0};
    const Ellipse smallUpright{{0, 0}, 2, 1, HalfPi};
    const FourResult whole = OutputsOf(Meeting(small, smallUpright));
    ASSERT_EQ(whole.code, 4);
    for (const DPOINT2& point : whole.outputs)
    {
        ASSERT_TRUE(std::abs(ResidualOf(small, point.x, point.y).value) > 1e-9L ||
                    std::abs(ResidualOf(smallUpright, point.x, point.y).value) > 1e-9L);
    }
    EXPECT_TRUE(GivesFour(Meeting(EllipseArc{small, 0, 6.2}, EllipseArc{smallUpright, 0.1, 6.2}), 0, {}));
}

// One ellipse

TEST(IntersectEllipseArcWithEllipseArc, ArcsOfOneEllipseMeetInASharedEnd)
{
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, HalfPi), OnFlat(HalfPi, HalfPi)), 1, {At(0, 100)}, 1e-13));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(HalfPi, HalfPi), OnFlat(0, HalfPi)), 1, {At(0, 100)}, 1e-13));
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 1.5), OnTilted(2.5, 2)), 1, {AtPolar(tilted, 2.5)}, 1e-12))
        << "the first's end";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(2.5, 2), OnTilted(1, 1.5)), 1, {AtPolar(tilted, 2.5)}, 1e-12))
        << "the first's start";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(4, 4 - 1), OnTilted(7 - TwoPi, 1)), 1, {AtPolar(tilted, 7)}, 1e-12))
        << "across the own x axis";
}

TEST(IntersectEllipseArcWithEllipseArc, ArcsOfOneEllipseMeetInBothEnds)
{
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, Pi), OnFlat(Pi, Pi)), 2, {At(200, 0), At(-200, 0)}, 1e-12));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(Pi, Pi), OnFlat(0, Pi)), 2, {At(-200, 0), At(200, 0)}, 1e-12));
    EXPECT_TRUE(
        GivesFour(Meeting(OnTilted(1, 2), OnTilted(3, TwoPi - 2)), 2, {AtPolar(tilted, 1), AtPolar(tilted, 3)}, 1e-12));
}

TEST(IntersectEllipseArcWithEllipseArc, ArcsOfOneEllipseApartHaveNoPoint)
{
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(0, 1), OnFlat(2, 1)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(OnFlat(5, 2), OnFlat(1, 1)), 0, {}));
}

TEST(IntersectEllipseArcWithEllipseArc, ArcsThatOverlapAlongALengthHaveNoSinglePoint)
{
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 2), OnTilted(2, 2)), -1, {})) << "the second starts on the first";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(2, 2), OnTilted(1, 2)), -1, {})) << "the second ends on the first";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 4), OnTilted(2, 1)), -1, {})) << "the second inside the first";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(2, 1), OnTilted(1, 4)), -1, {})) << "the first inside the second";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 2), OnTilted(1, 2)), -1, {})) << "the same";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 2), OnTilted(1, 1)), -1, {})) << "one start";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 2), OnTilted(2, 1)), -1, {})) << "one end";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(1, 2), OnTilted(3, 5)), -1, {})) << "end to start, and the start is covered";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(3, 5), OnTilted(1, 2)), -1, {})) << "start to end, and the end is covered";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(0, 4), OnTilted(3, 4)), -1, {})) << "overlapping at both ends";
    EXPECT_TRUE(GivesFour(Meeting(OnTilted(0, 6), EllipseArc{{{1, 2}, 5, 3, 0.7 + Pi}, 0, 1}), -1, {}))
        << "told by half a turn";
}

TEST(IntersectEllipseArcWithEllipseArc, OfAClockwiseArcOnTheSameEllipseItsEndsCount)
{
    // It runs from (2, 0) down to (0, -1) and holds no direction but its start. The other arc holds (0, -1) alone.
    const Ellipse ellipse{{0, 0}, 2, 1, 0};
    const EllipseArc clockwise{ellipse, 0, -HalfPi};
    const EllipseArc around{ellipse, Pi, Pi - 0.1};
    EXPECT_EQ(OutputsOf(Meeting(clockwise, around)).code, -1);
    EXPECT_EQ(OutputsOf(Meeting(around, clockwise)).code, -1);
    // Away from both ends there is nothing.
    EXPECT_EQ(OutputsOf(Meeting(clockwise, EllipseArc{ellipse, 1, 1})).code, 0);
}

TEST(IntersectEllipseArcWithEllipseArc, SharedEndsAreAMatterOfDistance)
{
    const EllipseArc low = OnTilted(1, 1);
    const double distancePerRadian = DistanceOf(AtPolar(tilted, 2), AtPolar(tilted, 2 + 1e-6)) / 1e-6;
    const double close = 0.95e-9 / distancePerRadian;
    const double apart = 1.05e-9 / distancePerRadian;
    EXPECT_EQ(OutputsOf(Meeting(low, OnTilted(2 + close, 1))).code, 1);
    EXPECT_EQ(OutputsOf(Meeting(low, OnTilted(2 + apart, 1))).code, 0);
    EXPECT_EQ(OutputsOf(Meeting(low, OnTilted(2 - close, 1))).code, 1);
    EXPECT_EQ(OutputsOf(Meeting(low, OnTilted(2 - apart, 1))).code, -1);
    EXPECT_EQ(OutputsOf(Meeting(OnTilted(2 + close, 1), low)).code, 1);
    EXPECT_EQ(OutputsOf(Meeting(OnTilted(2 + apart, 1), low)).code, 0);
    EXPECT_EQ(OutputsOf(Meeting(OnTilted(2 - close, 1), low)).code, 1);
    EXPECT_EQ(OutputsOf(Meeting(OnTilted(2 - apart, 1), low)).code, -1);
}

TEST(IntersectEllipseArcWithEllipseArc, AWholeTurnOfTheEllipseIsNotRecognised)
{
    // The whole curves are compared by search: no -1 and no ends.
    const EllipseArc turned{{{1, 2}, 5, 3, 0.7 + TwoPi}, 2, 2};
    EXPECT_GE(OutputsOf(Meeting(OnTilted(1, 2), turned)).code, 0);
}

// Input

TEST(IntersectEllipseArcWithEllipseArc, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 outputs[4] = {{0, 0}, {0, 0}, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_EllipseArcWithEllipseArc(outputs[0], 200, 100, 0, 0, 3, outputs[1], 200, 100, HalfPi, 0, 3,
                                                 &outputs[0], &outputs[1], &outputs[2], &outputs[3]),
              1);
    EXPECT_TRUE(Near(outputs[0], second, 2e-9));
    EXPECT_EQ(outputs[1], NoPoint());
    outputs[0] = tilted.centre;
    outputs[1] = tilted.centre;
    EXPECT_EQ(Intersect_EllipseArcWithEllipseArc(outputs[0], 5, 3, 0.7, 1, 2, outputs[1], 5, 3, 0.7, 3, TwoPi - 2,
                                                 &outputs[0], &outputs[1], nullptr, nullptr),
              2);
    EXPECT_TRUE(Near(outputs[0], AtPolar(tilted, 1), 1e-12));
    EXPECT_TRUE(Near(outputs[1], AtPolar(tilted, 3), 1e-12));
    std::vector<DPOINT2> points = {{0, 0}, {0, 0}};
    EXPECT_EQ(
        Intersect_EllipseArcWithEllipseArc(points[0], 200, 100, 0, 0, 3, points[1], 200, 100, HalfPi, 0, 3, points, -1),
        1);
    EXPECT_TRUE(SameSet(points, {second}, 2e-9));
}

TEST(IntersectEllipseArcWithEllipseArc, AgreesWithTheStepsWrittenOut)
{
    Random random(101);
    int counts[6] = {0, 0, 0, 0, 0, 0};
    for (int i = 0; i < 3000; ++i)
    {
        EllipseArc a{LongAxisFirst(RandomEllipse(random, 100, 0.5)), random.Number(-7.0, 7.0),
                     random.Number(-1.0, 8.0)};
        EllipseArc b{LongAxisFirst(RandomEllipse(random, 100, 0.5)), random.Number(-7.0, 7.0),
                     random.Number(-1.0, 8.0)};
        if (i % 3 == 0)
        {
            // One ellipse, ends on a raster of eighths.
            b.whole = a.whole;
            b.whole.rotation += random.Integer(-1, 1) * Pi;
            a.start = random.Integer(0, 7) * QuarterPi;
            b.start = random.Integer(0, 7) * QuarterPi;
            a.sweep = random.Integer(0, 7) * QuarterPi;
            b.sweep = random.Integer(0, 7) * QuarterPi;
        }
        reference::QuarterArcMethod method;
        std::vector<DPOINT2> points;
        const int whole = method.Meet(a.whole, b.whole, points);
        if (i % 3 == 1 && whole > 0)
        {
            // An end next to a common point.
            const DPOINT2 direction = Minus(points[0], a.whole.centre);
            a.start = reference::Fold(std::atan2(direction.y, direction.x) - a.whole.rotation, TwoPi) +
                      random.Integer(-2, 2) * 6e-10;
        }
        if (method.MetUnending())
        {
            continue;
        }
        std::vector<DPOINT2> kept;
        const int expected = reference::KeepOnBoth(whole, points, a, b, kept);
        ASSERT_TRUE(IsExactly(OutputsOf(Meeting(a, b)), expected, kept)) << i;
        if (i % 20 == 0)
        {
            ASSERT_TRUE(GivesFour(Meeting(a, b), expected, kept, 0)) << i;
        }
        ++counts[expected + 1];
    }
    for (const int count : counts)
    {
        EXPECT_GT(count, 15);
    }
}
