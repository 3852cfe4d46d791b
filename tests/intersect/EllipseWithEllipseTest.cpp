#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

const Ellipse flat{{0, 0}, 2, 1, 0};

/// The same figure a quarter turn further about the origin.
Ellipse QuarterTurned(const Ellipse& ellipse)
{
    return {{-ellipse.centre.y, ellipse.centre.x}, ellipse.a, ellipse.b, ellipse.rotation + HalfPi};
}

Ellipse Moved(const Ellipse& ellipse, double x, double y)
{
    return {{ellipse.centre.x + x, ellipse.centre.y + y}, ellipse.a, ellipse.b, ellipse.rotation};
}

/// Count and outputs of the steps written out; clear when every search ended by itself.
FourResult WrittenOut(const Ellipse& first, const Ellipse& second, reference::QuarterArcMethod& method)
{
    std::vector<DPOINT2> points;
    FourResult result{method.Meet(first, second, points), {}};
    result.outputs = points;
    result.outputs.resize(4, NoPoint());
    return result;
}

::testing::AssertionResult SameOutputs(const FourResult& found, const FourResult& expected)
{
    return inner::SameResult("outputs", found.code, expected.code, found.outputs, expected.outputs, 0);
}

/// Ellipses on a raster, with few sizes and with rotations near quarter turns: many joints, tangencies and misses.
Ellipse RasterEllipse(Random& random)
{
    constexpr double axes[] = {0.5, 1, 1.5, 2, 3};
    constexpr double rotations[] = {0, QuarterPi, HalfPi, Pi, ThreeHalvesPi, TwoPi, -HalfPi, -Pi, 0.5, 2};
    const DPOINT2 centre = {random.Integer(-4, 4) * 0.5, random.Integer(-4, 4) * 0.5};
    const double a = axes[random.Integer(0, 4)];
    const double b = axes[random.Integer(0, 4)];
    const double rotation = rotations[random.Integer(0, 9)];
    return {centre, a, b, Stepped(rotation, random.Coin() ? 0 : random.Integer(-3, 3))};
}

/// What no figure of use has: a vanishing, negative or missing number.
Ellipse Spoilt(Ellipse ellipse, Random& random)
{
    constexpr double values[] = {0, -1, 1e-10, 1e-5, InvalidDouble, 1e8, -0.0};
    const double value = values[random.Integer(0, 6)];
    double* const numbers[] = {&ellipse.a, &ellipse.b, &ellipse.centre.x, &ellipse.rotation};
    const int chosen = random.Integer(0, 3);
    *numbers[chosen] = chosen == 3 && value == 1e8 ? 1e4 : value;
    return ellipse;
}

/// An ellipse through a point of another, or touching it there.
Ellipse ThroughPointOf(const Ellipse& other, Random& random)
{
    const double parameter = random.Coin() ? random.Radian() : random.Integer(0, 7) * QuarterPi;
    const DPOINT2 shared = AtEccentric(other, parameter);
    Ellipse ellipse = RandomEllipse(random);
    double own = random.Coin() ? random.Radian() : random.Integer(0, 7) * QuarterPi;
    if (random.Coin())
    {
        ellipse.rotation += TangentAt(other, shared) - TangentAt(ellipse, AtEccentric(ellipse, own));
    }
    const DPOINT2 there = AtEccentric(ellipse, own);
    return Moved(ellipse, shared.x - there.x, shared.y - there.y);
}

/// Whether every point found is one of the crossings.
bool IsAmong(const std::vector<DPOINT2>& found, const std::vector<DPOINT2>& crossings, double tolerance)
{
    return std::all_of(found.begin(), found.end(), [&](const DPOINT2& point) {
        return std::any_of(crossings.begin(), crossings.end(),
                           [&](const DPOINT2& crossing) { return DistanceOf(point, crossing) <= tolerance; });
    });
}

} // namespace

// One and the same curve

TEST(IntersectEllipseWithEllipse, TheSameEllipseHasNoSinglePoint)
{
    const Ellipse ellipse{{1, 2}, 3, 2, 0.5};
    EXPECT_TRUE(GivesFour(Meeting(ellipse, ellipse), -1, {}));
    EXPECT_TRUE(GivesFour(Meeting(ellipse, Ellipse{{1, 2}, 3, 2, 0.5 + Pi}), -1, {}));
    EXPECT_TRUE(GivesFour(Meeting(ellipse, Ellipse{{1, 2}, 3, 2, 0.5 - Pi}), -1, {}));
}

TEST(IntersectEllipseWithEllipse, SamenessIsAMatterOfTheTolerance)
{
    const Ellipse ellipse{{1, 2}, 3, 2, 0.5};
    const double turns[] = {0, Pi, -Pi};
    for (const double near : {9e-10, -9e-10})
    {
        EXPECT_EQ(OutputsOf(Meeting(ellipse, Ellipse{{1 + near, 2}, 3, 2, 0.5})).code, -1);
        EXPECT_EQ(OutputsOf(Meeting(ellipse, Ellipse{{1, 2 + near}, 3, 2, 0.5})).code, -1);
        EXPECT_EQ(OutputsOf(Meeting(ellipse, Ellipse{{1, 2}, 3 + near, 2, 0.5})).code, -1);
        EXPECT_EQ(OutputsOf(Meeting(ellipse, Ellipse{{1, 2}, 3, 2 + near, 0.5})).code, -1);
        for (const double turn : turns)
        {
            EXPECT_EQ(OutputsOf(Meeting(ellipse, Ellipse{{1, 2}, 3, 2, 0.5 + turn + near})).code, -1);
        }
    }
    for (const double far : {1.1e-9, -1.1e-9})
    {
        EXPECT_NE(OutputsOf(Meeting(ellipse, Ellipse{{1 + far, 2}, 3, 2, 0.5})).code, -1);
        EXPECT_NE(OutputsOf(Meeting(ellipse, Ellipse{{1, 2 + far}, 3, 2, 0.5})).code, -1);
        EXPECT_NE(OutputsOf(Meeting(ellipse, Ellipse{{1, 2}, 3 + far, 2, 0.5})).code, -1);
        EXPECT_NE(OutputsOf(Meeting(ellipse, Ellipse{{1, 2}, 3, 2 + far, 0.5})).code, -1);
        for (const double turn : turns)
        {
            EXPECT_NE(OutputsOf(Meeting(ellipse, Ellipse{{1, 2}, 3, 2, 0.5 + turn + far})).code, -1);
        }
    }
}

TEST(IntersectEllipseWithEllipse, CentresAreComparedByCoordinates)
{
    // 1.27e-9 apart, though neither coordinate is.
    const Ellipse ellipse{{1, 2}, 3, 2, 0.5};
    EXPECT_TRUE(GivesFour(Meeting(ellipse, Moved(ellipse, 9e-10, -9e-10)), -1, {}));
}

TEST(IntersectEllipseWithEllipse, AWholeTurnIsNotRecognised)
{
    // The search runs on one curve given twice: what it finds lies on it.
    const Ellipse turned{{0, 0}, 2, 1, TwoPi};
    const FourResult found = OutputsOf(Meeting(flat, turned));
    EXPECT_GT(found.code, 0);
    for (const DPOINT2& point : found.Points())
    {
        EXPECT_LT(DistanceFromEllipse(flat, point), 1e-9);
    }
    reference::QuarterArcMethod method;
    EXPECT_TRUE(SameOutputs(found, WrittenOut(flat, turned, method)));
    EXPECT_FALSE(method.MetUnending());
}

TEST(IntersectEllipseWithEllipse, OneCircleIsRecognisedWhateverItsRotation)
{
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{1, 2}, 3, 3, 0}, Ellipse{{1, 2}, 3, 3, 1}), -1, {}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{1, 2}, 3, 3 - 9e-10, 0}, Ellipse{{1, 2}, 3 + 9e-10, 3 + 1.7e-9, 1}), -1, {}))
        << "each comparison alone is below the tolerance";
    EXPECT_NE(OutputsOf(Meeting(Ellipse{{1, 2}, 3, 3 - 1.1e-9, 0}, Ellipse{{1, 2}, 3, 3, 1})).code, -1);
    EXPECT_NE(OutputsOf(Meeting(Ellipse{{1, 2}, 3, 3, 0}, Ellipse{{1, 2}, 3, 3 + 1.1e-9, 1})).code, -1);
    EXPECT_NE(OutputsOf(Meeting(Ellipse{{1, 2}, 3, 3, 0}, Ellipse{{1, 2}, 3 + 1.1e-9, 3 + 1.1e-9, 1})).code, -1);
    EXPECT_NE(OutputsOf(Meeting(Ellipse{{1, 2}, 3, 3, 0}, Ellipse{{1 + 1.1e-9, 2}, 3, 3, 1})).code, -1);
    EXPECT_NE(OutputsOf(Meeting(Ellipse{{1, 2}, 3, 3, 0}, Ellipse{{1, 2 - 1.1e-9}, 3, 3, 1})).code, -1);
}

// Rejected at once

TEST(IntersectEllipseWithEllipse, FiguresApartOrInsideEachOtherHaveNoPoint)
{
    EXPECT_TRUE(GivesFour(Meeting(flat, Ellipse{{10, 0}, 2, 1, 0.3}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{0, 0}, 1, 1, 0}, Ellipse{{0, 0}, 2, 2, 0}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{0, 0}, 2, 2, 0}, Ellipse{{0, 0}, 1, 1, 0}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{3, 0}, 2, 1, 1}, Ellipse{{0, 0}, 9, 7, 0}), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{0, 0}, 9, 3, 0}, Ellipse{{4, 0}, 2, 1, 0}), 0, {})) << "found by the search";
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{0, 0}, 5, 1, QuarterPi}, Ellipse{{4, 0}, 5, 1, QuarterPi}), 0, {}))
        << "side by side";
}

TEST(IntersectEllipseWithEllipse, TheQuickTestsReadAAsTheGreaterSemiAxis)
{
    // Two figures on the y axis that meet between 2 and 3, given with the lesser semi-axis first: 4 > 1 + 1.
    const Ellipse lower{{0, 0}, 1, 3, 0};
    const Ellipse upper{{0, 4}, 1, 2, 0};
    EXPECT_TRUE(GivesFour(Meeting(lower, upper), 0, {}));
    EXPECT_EQ(OutputsOf(Meeting(LongAxisFirst(lower), LongAxisFirst(upper))).code, 2);
    // An upright ellipse through a circle about the same centre: the circle's semi-axis 2 > 1.
    const Ellipse circle{{0, 0}, 2, 2, 0};
    EXPECT_TRUE(GivesFour(Meeting(lower, circle), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(circle, lower), 0, {}));
    EXPECT_EQ(OutputsOf(Meeting(LongAxisFirst(lower), circle)).code, 4);
    EXPECT_EQ(OutputsOf(Meeting(circle, LongAxisFirst(lower))).code, 4);
}

TEST(IntersectEllipseWithEllipse, TheQuickTestsAreExact)
{
    // Circles that touch in a top or a bottom pass them and are found by the search; a rounding unit further they do
    // not.
    const auto code = [](const Circle& first, const Circle& second) {
        return OutputsOf(Meeting(AsEllipse(first), AsEllipse(second))).code;
    };
    const Circle unit{{0, 0}, 1};
    EXPECT_TRUE(GivesFour(Meeting(AsEllipse(unit), AsEllipse({{0, 3}, 2})), 1, {At(0, 1)}, 1e-15));
    EXPECT_EQ(code(unit, {{0, Next(3)}, 2}), 0);
    EXPECT_EQ(code({{0, 3}, 2}, unit), 1);
    EXPECT_EQ(code({{0, Next(3)}, 2}, unit), 0);
    EXPECT_TRUE(GivesFour(Meeting(AsEllipse({{0, 1}, 1}), AsEllipse({{0, 0}, 2})), 1, {At(0, 2)}, 1e-15));
    EXPECT_EQ(code({{0, 1}, 1}, {{0, 0}, Next(2)}), 0) << "the first inside";
    EXPECT_EQ(code({{0, 0}, 2}, {{0, 1}, 1}), 1);
    EXPECT_EQ(code({{0, 0}, Next(2)}, {{0, 1}, 1}), 0) << "the second inside";
    EXPECT_EQ(code({{0, Stepped(1, -4)}, 1}, {{0, 0}, 2}), 0);
}

// Points by hand

TEST(IntersectEllipseWithEllipse, CrossedEllipsesMeetInFourPointsInTheOrderOfTheFirst)
{
    // x²/4 + y² = 1 and x² + y²/4 = 1: x² = y² = 4/5.
    const double s = std::sqrt(0.8);
    const std::vector<DPOINT2> counterClockwise = {{s, s}, {-s, s}, {-s, -s}, {s, -s}};
    const Ellipse upright{{0, 0}, 2, 1, HalfPi};
    EXPECT_TRUE(GivesFour(Meeting(flat, upright), 4, counterClockwise));
    // The own x axis of the first runs along y: the walk starts there.
    EXPECT_TRUE(GivesFour(Meeting(upright, flat), 4, {{-s, s}, {-s, -s}, {s, -s}, {s, s}}));
    EXPECT_TRUE(GivesFour(Meeting(Ellipse{{0, 0}, 2, 1, Pi}, upright), 4, {{-s, -s}, {s, -s}, {s, s}, {-s, s}}));
}

TEST(IntersectEllipseWithEllipse, AnEllipseAndACircleMeetInFourKnownPoints)
{
    // x²/25 + y²/9 = 1 and (x - 1)² + y² = 9.76: 0.64 x² - 2 x + 0.24 = 0, x = 3 or 1/8.
    const double y = 3 * std::sqrt(1 - 1.0 / 1600);
    const Ellipse ellipse{{0, 0}, 5, 3, 0};
    const double radius = std::sqrt(9.76);
    EXPECT_TRUE(GivesFour(Meeting(ellipse, AsEllipse({{1, 0}, radius})), 4,
                          {{3, 2.4}, {0.125, y}, {0.125, -y}, {3, -2.4}}, 3e-8))
        << "the crossing near the top is flat: 1e-9 of height is 1e-9 / 0.3 along it";
    EXPECT_TRUE(GivesFour(Meeting(Moved(ellipse, 7, -4), AsEllipse({{8, -4}, radius})), 4,
                          {{10, -1.6}, {7.125, y - 4}, {7.125, -y - 4}, {10, -6.4}}, 3e-8));
}

TEST(IntersectEllipseWithEllipse, ACircleDipsIntoTheTop)
{
    // Radius 0.75 about (0, 1.6): with (1.6 - y)² = 0.5625 - x² and x² = 4 - 4 y², 3 y² + 3.2 y - 5.9975 = 0, y =
    // 0.978.
    const double y = (-3.2 + std::sqrt(3.2 * 3.2 + 12 * 5.9975)) / 6;
    const double x = 2 * std::sqrt(1 - y * y);
    EXPECT_TRUE(GivesFour(Meeting(flat, AsEllipse({{0, 1.6}, 0.75})), 2, {{x, y}, {-x, y}}, 1e-8));
}

TEST(IntersectEllipseWithEllipse, TwoQuarterArcsMayCrossTwice)
{
    // A circle that cuts into the upper right quarter of the ellipse with its own lower left one. The left crossing
    // comes first.
    const Ellipse ellipse{{0, 0}, 5, 3, 0};
    const Ellipse circle = AsEllipse({{4.3, 2.2}, 0.6});
    bool clear = true;
    auto crossings = EllipseMeetsEllipse(ellipse, circle, clear);
    ASSERT_TRUE(clear);
    ASSERT_TRUE(SharesQuarterArcs(ellipse, circle, crossings));
    std::sort(crossings.begin(), crossings.end(), [](const DPOINT2& a, const DPOINT2& b) { return a.x < b.x; });
    EXPECT_TRUE(GivesFour(Meeting(ellipse, circle), 2, crossings, 1e-8));
    EXPECT_TRUE(GivesFour(Meeting(circle, ellipse), 2, crossings, 1e-8));
}

TEST(IntersectEllipseWithEllipse, ACrossingWhereArcsJoinIsGivenOnce)
{
    // (x - 1)² + y² = 2 meets the ellipse in x² = 4 - 4 y² at 0.75 x² - 2 x = 0: the top and the bottom, joints of it.
    const Ellipse circle = AsEllipse({{1, 0}, std::sqrt(2.0)});
    EXPECT_TRUE(GivesFour(Meeting(flat, circle), 2, {{0, 1}, {0, -1}}, 1e-8));
    EXPECT_TRUE(SameSet(OutputsOf(Meeting(circle, flat)).Points(), {{0, 1}, {0, -1}}, 1e-8));
}

TEST(IntersectEllipseWithEllipse, FiguresThatTouchInsideQuarterArcsMeetOnce)
{
    // At (4, 1.8) of x²/25 + y²/9 = 1 the normal has the direction (4/25, 1.8/9) = (0.16, 0.2). Where slopes agree to
    // 1e-9 the x of the touching point is found to a like amount.
    const Ellipse ellipse{{0, 0}, 5, 3, 0};
    const DPOINT2 touching = {4, 1.8};
    const double norm = std::hypot(0.16, 0.2);
    const auto circleAt = [&](double gap) {
        return AsEllipse({{4 + (1 + gap) * 0.16 / norm, 1.8 + (1 + gap) * 0.2 / norm}, 1});
    };
    EXPECT_TRUE(GivesFour(Meeting(ellipse, circleAt(0)), 1, {touching}, 1e-8));
    EXPECT_TRUE(GivesFour(Meeting(circleAt(0), ellipse), 1, {touching}, 1e-8));
    // The tolerance is on the difference of heights, the gap over the cosine of the slope 0.2 / 0.256.
    const double cosine = 0.2 / norm;
    EXPECT_TRUE(GivesFour(Meeting(ellipse, circleAt(0.95e-9 * cosine)), 1, {touching}, 1e-8));
    EXPECT_TRUE(GivesFour(Meeting(ellipse, circleAt(1.05e-9 * cosine)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(ellipse, circleAt(-0.95e-9 * cosine)), 1, {touching}, 1e-8));
    const FourResult cut = OutputsOf(Meeting(ellipse, circleAt(-1e-6)));
    ASSERT_EQ(cut.code, 2);
    for (const DPOINT2& point : cut.Points())
    {
        EXPECT_LT(DistanceFromEllipse(ellipse, point), 2e-9);
        EXPECT_LT(DistanceFromEllipse(circleAt(-1e-6), point), 2e-9);
        EXPECT_LT(DistanceOf(point, touching), 2e-3) << "half a chord of sqrt(2 * 1e-6 / (1 + curvature))";
        EXPECT_GT(DistanceOf(point, touching), 1e-4);
    }
    EXPECT_GT(DistanceOf(cut.outputs[0], cut.outputs[1]), 1e-3);
}

TEST(IntersectEllipseWithEllipse, TouchingWhereQuarterArcsEndIsLeftToTheLastBits)
{
    // (2, 0) is the right end of the one and the left end of the other. Whatever is told is that point.
    const Ellipse small{{3, 0}, 1, 0.5, 0};
    for (const bool swapped : {false, true})
    {
        const Ellipse& first = swapped ? small : flat;
        const Ellipse& second = swapped ? flat : small;
        reference::QuarterArcMethod method;
        const FourResult expected = WrittenOut(first, second, method);
        EXPECT_FALSE(method.MetUnending());
        EXPECT_LE(expected.code, 1);
        EXPECT_TRUE(GivesFour(Meeting(first, second), expected.code, expected.Points(), 0));
        EXPECT_TRUE(SameSet(expected.Points(),
                            expected.code == 1 ? std::vector<DPOINT2>{{2, 0}} : std::vector<DPOINT2>{}, 1e-9));
    }
}

TEST(IntersectEllipseWithEllipse, ABisectionOfNoWidthGivesTheOrigin)
{
    // The joints of a quarter turn that is a rounding unit off lie a rounding unit off: verticals through them miss the
    // other figure, which leaves a range of no width. Its result is the origin, on neither curve.
    const Ellipse a{{-1, -1.5}, 2, 1, -1.570796326794897};
    const Ellipse b{{0, -1.5}, 1.5, 0.5, -3.1415926535897944};
    reference::QuarterArcMethod method;
    EXPECT_TRUE(SameOutputs(OutputsOf(Meeting(a, b)), WrittenOut(a, b, method)));
    EXPECT_FALSE(method.MetUnending());
    EXPECT_GE(method.outcomes.bisectionsNotRun, 1);
    EXPECT_TRUE(GivesFour(Meeting(a, b), 1, {At(0, 0)}, 0));
}

TEST(IntersectEllipseWithEllipse, ASearchForEqualSlopesOfNoWidthTouchesInTheOrigin)
{
    const Ellipse a{{0, -1.5}, 3, 1, 0.5};
    const Ellipse b{{-2, -2}, 1.5, 3, -1.5707963267948968};
    reference::QuarterArcMethod method;
    EXPECT_TRUE(SameOutputs(OutputsOf(Meeting(a, b)), WrittenOut(a, b, method)));
    EXPECT_FALSE(method.MetUnending());
    EXPECT_GE(method.outcomes.searchesNotRun, 1);
    EXPECT_TRUE(GivesFour(Meeting(a, b), 1, {At(0, 0)}, 0));
}

TEST(IntersectEllipseWithEllipse, TheCountIsNotLimitedToFour)
{
    // Beside the four crossings two searches at joints a rounding unit off leave what they stand at.
    const Ellipse a{{0, 0}, 1.5, 1.5, 2.0000000000000009};
    const Ellipse b{{0.5, 0.5}, 1, 2, -1.5707963267948968};
    reference::QuarterArcMethod method;
    std::vector<DPOINT2> points;
    ASSERT_EQ(method.Meet(a, b, points), 6);
    ASSERT_FALSE(method.MetUnending());
    const std::vector<DPOINT2> firstFour(points.begin(), points.begin() + 4);
    EXPECT_TRUE(GivesFour(Meeting(a, b), 6, firstFour, 0));
    bool clear = true;
    const auto crossings = EllipseMeetsEllipse(a, b, clear);
    EXPECT_EQ(crossings.size(), 4U);
    for (const DPOINT2& crossing : crossings)
    {
        EXPECT_TRUE(std::any_of(points.begin(), points.end(),
                                [&](const DPOINT2& point) { return DistanceOf(point, crossing) < 1e-7; }));
    }
}

TEST(IntersectEllipseWithEllipse, OfThreeCrossingsOfTwoQuarterArcsOneIsFound)
{
    // The height difference changes its sign over the shared range, which is read as a single crossing.
    const Ellipse a{{-0.775, 0.078}, 1.291, 0.604, -6.724};
    const Ellipse b{{-0.130, -0.487}, 1.361, 0.596, -4.109};
    bool clear = true;
    const auto crossings = EllipseMeetsEllipse(a, b, clear);
    ASSERT_EQ(crossings.size(), 4U);
    ASSERT_TRUE(SharesQuarterArcs(a, b, crossings));
    EXPECT_TRUE(GivesFour(Meeting(a, b), 2, {crossings[2], crossings[3]}, 1e-8));
}

TEST(IntersectEllipseWithEllipse, MergingIsAMatterOfTheTolerance)
{
    // The bottom (d, 1) of a circle on the top (0, 1) of the ellipse: at such a d the heights there are the same, so
    // both joints are told, as one point or as two.
    for (const double offset : {0.5e-9, 0.9e-9, 0.99e-9})
    {
        const Ellipse circle = AsEllipse({{offset, 1.5}, 0.5});
        EXPECT_TRUE(GivesFour(Meeting(flat, circle), 1, {At(0, 1)}, 1e-15)) << offset;
        EXPECT_TRUE(GivesFour(Meeting(circle, flat), 1, {At(0, 1)}, 1e-15)) << offset;
    }
    for (const double offset : {1.01e-9, 1.5e-9, 3e-9})
    {
        const Ellipse circle = AsEllipse({{offset, 1.5}, 0.5});
        EXPECT_TRUE(GivesFour(Meeting(flat, circle), 2, {At(0, 1), At(offset, 1)}, 1e-15)) << offset;
        EXPECT_TRUE(GivesFour(Meeting(circle, flat), 2, {At(0, 1), At(offset, 1)}, 1e-15)) << offset;
    }
}

TEST(IntersectEllipseWithEllipse, NoTwoPointsCoincide)
{
    Random random(71);
    int several = 0;
    for (int i = 0; i < 3000; ++i)
    {
        const Ellipse a = LongAxisFirst(RandomEllipse(random));
        const std::vector<DPOINT2> points = OutputsOf(Meeting(a, LongAxisFirst(ThroughPointOf(a, random)))).Points();
        for (std::size_t j = 0; j < points.size(); ++j)
        {
            for (std::size_t k = 0; k < j; ++k)
            {
                const DPOINT2 apart = Minus(points[j], points[k]);
                ASSERT_GE(std::max(std::abs(apart.x), std::abs(apart.y)), 1e-9) << i;
                ++several;
            }
        }
    }
    EXPECT_GT(several, 500);
}

// Input

TEST(IntersectEllipseWithEllipse, AnOutputOrTheVectorMayHoldTheInput)
{
    const double s = std::sqrt(0.8);
    DPOINT2 centres[4] = {{0, 0}, {0, 0}, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_EllipseWithEllipse(centres[0], 2, 1, 0, centres[1], 2, 1, HalfPi, &centres[0], &centres[1],
                                           &centres[2], &centres[3]),
              4);
    EXPECT_TRUE(SameSet({centres, centres + 4}, {{s, s}, {-s, s}, {-s, -s}, {s, -s}}, 2e-9));
    std::vector<DPOINT2> points = {{0, 0}, {0, 0}};
    EXPECT_EQ(Intersect_EllipseWithEllipse(points[0], 2, 1, 0, points[1], 2, 1, HalfPi, points, -1), 4);
    EXPECT_TRUE(SameSet(points, {{s, s}, {-s, s}, {-s, -s}, {s, -s}}, 2e-9));
    points = {{0, 0}};
    EXPECT_EQ(Intersect_EllipseWithEllipse(points[0], 2, 1, 0, points[0], 2, 1, 0, points, 4), -1);
    EXPECT_TRUE(points.empty());
}

TEST(IntersectEllipseWithEllipse, AgreesWithTheStepsWrittenOut)
{
    Random random(72);
    int compared = 0;
    reference::QuarterArcMethod::Outcomes all;
    for (int i = 0; i < 9000; ++i)
    {
        Ellipse a = RasterEllipse(random);
        Ellipse b = RasterEllipse(random);
        switch (i % 6)
        {
        case 0:
            a = RandomEllipse(random);
            b = RandomEllipse(random);
            break;
        case 1:
            a = RandomEllipse(random, random.Size(1e-3, 1e6));
            b = RandomEllipse(random, std::max(a.a, a.b));
            break;
        case 2:
            a = random.Coin() ? a : LongAxisFirst(RandomEllipse(random));
            b = LongAxisFirst(ThroughPointOf(a, random));
            break;
        case 3:
            a = i % 12 == 3 ? Spoilt(a, random) : a;
            b = i % 18 == 3 ? Spoilt(b, random) : AsEllipse({b.centre, b.a});
            break;
        default:
            break;
        }
        reference::QuarterArcMethod method;
        const FourResult expected = WrittenOut(a, b, method);
        if (method.MetUnending())
        {
            continue;
        }
        ++compared;
        ASSERT_TRUE(SameOutputs(OutputsOf(Meeting(a, b)), expected))
            << i << ": " << ::testing::PrintToString(a.centre) << ' ' << Digits(a.a) << ' ' << Digits(a.b) << ' '
            << Digits(a.rotation) << " with " << ::testing::PrintToString(b.centre) << ' ' << Digits(b.a) << ' '
            << Digits(b.b) << ' ' << Digits(b.rotation);
        const reference::QuarterArcMethod::Outcomes& outcomes = method.outcomes;
        all.apartInX += outcomes.apartInX;
        all.above += outcomes.above;
        all.meetAtLeft += outcomes.meetAtLeft;
        all.meetAtRight += outcomes.meetAtRight;
        all.cross += outcomes.cross;
        all.equalSlopesAtEnd += outcomes.equalSlopesAtEnd;
        all.noTurn += outcomes.noTurn;
        all.searchesNotRun += outcomes.searchesNotRun;
        all.touch += outcomes.touch;
        all.noCrossing += outcomes.noCrossing;
        all.crossTwice += outcomes.crossTwice;
        all.bisectionsNotRun += outcomes.bisectionsNotRun;
    }
    EXPECT_GT(compared, 8700);
    // Every way through the comparison of two arcs was taken.
    for (const int count :
         {all.apartInX, all.above, all.meetAtLeft, all.meetAtRight, all.cross, all.equalSlopesAtEnd, all.noTurn,
          all.searchesNotRun, all.touch, all.noCrossing, all.crossTwice, all.bisectionsNotRun})
    {
        EXPECT_GT(count, 20);
    }
}

TEST(IntersectEllipseWithEllipse, AgreesWithTheStepsWrittenOutAtTheEdgesOfOrdinaryFigures)
{
    // Where most halvings are decided by estimates, and just beyond: great and small figures, flat ones, far out, and
    // turned by nearly a quarter. The second passes through a point of the first or touches it there.
    Random random(74);
    const auto flattened = [&](double size) {
        const double other = size / random.Number(1.0, 17.0);
        const bool isTurned = random.Integer(0, 3) == 0;
        const double rotation = random.Integer(-4, 4) * HalfPi + (random.Coin() ? random.Number(-1e-8, 1e-8) : 0.0);
        return Ellipse{random.Point(1.0), isTurned ? other : size, isTurned ? size : other,
                       random.Coin() ? rotation : random.Number(-8.5, 8.5)};
    };
    int compared = 0;
    int met = 0;
    for (int i = 0; i < 12000; ++i)
    {
        const bool isGreat = i % 2 == 0;
        const auto size = [&] { return isGreat ? random.Size(1e3, 1.1e4) : random.Size(0.2, 4.0); };
        const DPOINT2 far = random.Point(i % 3 == 0 ? 0.0 : 1.1e4);
        const Ellipse a = Moved(flattened(size()), far.x, far.y);
        Ellipse b = flattened(size());
        const DPOINT2 shared = AtEccentric(a, random.Radian());
        const double own = random.Radian();
        if (i % 4 == 0)
        {
            b.rotation += TangentAt(a, shared) - TangentAt(b, AtEccentric(b, own));
        }
        const DPOINT2 there = AtEccentric(b, own);
        b = Moved(b, shared.x - there.x, shared.y - there.y);
        reference::QuarterArcMethod method;
        const FourResult expected = WrittenOut(a, b, method);
        if (method.MetUnending())
        {
            continue;
        }
        ++compared;
        met += expected.code > 0 ? 1 : 0;
        ASSERT_TRUE(SameOutputs(OutputsOf(Meeting(a, b)), expected))
            << i << ": " << ::testing::PrintToString(a.centre) << ' ' << Digits(a.a) << ' ' << Digits(a.b) << ' '
            << Digits(a.rotation) << " with " << ::testing::PrintToString(b.centre) << ' ' << Digits(b.a) << ' '
            << Digits(b.b) << ' ' << Digits(b.rotation);
    }
    EXPECT_GT(compared, 11900);
    EXPECT_GT(met, 7000);
}

// Against another method

TEST(IntersectEllipseWithEllipse, FindsTheZerosAlongTheFirst)
{
    Random random(73);
    int counts[5] = {0, 0, 0, 0, 0};
    for (int i = 0; i < 1500; ++i)
    {
        const double size = i % 2 == 0 ? 1.0 : random.Size(10.0, 1000.0);
        const Ellipse a = LongAxisFirst(RandomEllipse(random, size));
        const Ellipse b = LongAxisFirst(RandomEllipse(random, size));
        bool clear = true;
        const auto expected = EllipseMeetsEllipse(a, b, clear);
        // A search ends when heights differ by less than 1e-9, or with 1e-9 of width left: an error of 1e-9 over the
        // sine of the angle between the curves, or 1e-9 times their slope.
        double tolerance = 1e-12 * size;
        for (const DPOINT2& point : expected)
        {
            const double angleA = TangentAt(a, point);
            const double angleB = TangentAt(b, point);
            const double sine = std::abs(std::sin(angleA - angleB));
            const double steepness = 1 / std::min(std::abs(std::cos(angleA)), std::abs(std::cos(angleB)));
            clear = clear && sine > 1e-2 && steepness < 1e3;
            tolerance = std::max(tolerance, 2e-9 * (1 / sine + steepness) + 1e-12 * size * steepness);
        }
        if (!clear)
        {
            continue;
        }
        const FourResult found = OutputsOf(Meeting(a, b));
        const FourResult swapped = OutputsOf(Meeting(b, a));
        if (SharesQuarterArcs(a, b, expected))
        {
            ASSERT_TRUE(IsAmong(found.Points(), expected, tolerance)) << i;
            ASSERT_TRUE(IsAmong(swapped.Points(), expected, tolerance)) << i;
            ASSERT_EQ(found.code % 2, 0) << i;
            continue;
        }
        ASSERT_EQ(found.code, static_cast<int>(expected.size())) << i;
        ASSERT_TRUE(SameSet(found.Points(), expected, tolerance)) << i;
        ++counts[expected.size()];
        // Swapped, the same points come in the order of the other figure.
        ASSERT_EQ(swapped.code, found.code) << i;
        ASSERT_TRUE(SameSet(swapped.Points(), found.Points(), 2 * tolerance)) << i;
    }
    EXPECT_GT(counts[0], 75);
    EXPECT_GT(counts[2], 250);
    EXPECT_GT(counts[4], 75);
    EXPECT_EQ(counts[1] + counts[3], 0);
}

TEST(IntersectEllipseWithEllipse, PointsLieOnBothCurves)
{
    Random random(74);
    int points = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const double size = random.Size(10.0, 1000.0);
        const Ellipse a = LongAxisFirst(RandomEllipse(random, size));
        const Ellipse b = LongAxisFirst(RandomEllipse(random, size));
        for (const DPOINT2& point : OutputsOf(Meeting(a, b)).Points())
        {
            // A crossing is the mean of two points of one vertical, less than 1e-9 apart or, where one of the curves is
            // steep, 1e-9 times its slope. Rounding of the size adds to it in the same way.
            const double cosine =
                std::min(std::abs(std::cos(TangentAt(a, point))), std::abs(std::cos(TangentAt(b, point))));
            const double tolerance = (1e-9 + 1e-13 * size) / std::max(cosine, 1e-5);
            ASSERT_LT(DistanceFromEllipse(a, point), tolerance) << i;
            ASSERT_LT(DistanceFromEllipse(b, point), tolerance) << i;
            ++points;
        }
    }
    EXPECT_GT(points, 4000);
}

TEST(IntersectEllipseWithEllipse, PointsTurnAndMoveWithTheFigures)
{
    Random random(75);
    int meetings = 0;
    for (int i = 0; i < 500; ++i)
    {
        const Ellipse a = LongAxisFirst(RandomEllipse(random));
        const Ellipse b = LongAxisFirst(RandomEllipse(random));
        bool clear = true;
        bool isSteep = false;
        const auto crossings = EllipseMeetsEllipse(a, b, clear);
        clear = clear && !SharesQuarterArcs(a, b, crossings);
        for (const DPOINT2& point : crossings)
        {
            for (const Ellipse& ellipse : {a, b})
            {
                const double slope = TangentAt(ellipse, point);
                isSteep = isSteep || std::abs(std::sin(2 * slope)) < 1e-2;
            }
            clear = clear && std::abs(std::sin(TangentAt(a, point) - TangentAt(b, point))) > 1e-2;
        }
        if (!clear || isSteep)
        {
            continue;
        }
        const FourResult found = OutputsOf(Meeting(a, b));
        std::vector<DPOINT2> turned;
        std::vector<DPOINT2> moved;
        for (const DPOINT2& point : found.Points())
        {
            turned.push_back({-point.y, point.x});
            moved.push_back({point.x + 30, point.y - 20});
        }
        const FourResult afterTurn = OutputsOf(Meeting(QuarterTurned(a), QuarterTurned(b)));
        ASSERT_EQ(afterTurn.code, found.code) << i;
        // At angles above 1e-2 and slopes below 1e2 each set is within 2e-7 of the true points.
        ASSERT_TRUE(SameSet(afterTurn.Points(), turned, 8e-7)) << i;
        const FourResult afterMove = OutputsOf(Meeting(Moved(a, 30, -20), Moved(b, 30, -20)));
        ASSERT_TRUE(SameSet(afterMove.Points(), moved, 8e-7)) << i;
        meetings += found.code > 0 ? 1 : 0;
    }
    EXPECT_GT(meetings, 200);
}
