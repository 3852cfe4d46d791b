#include "math/Intersect.h"
#include "support/ReferenceEquations.h"
#include "support/Support.h"

#include <gtest/gtest.h>

#include <array>
#include <vector>

using namespace math;
using namespace math::test;

namespace
{

struct Roots
{
    int count;
    std::array<double, 3> values;
};

Roots Solve(double a, double b, double c, double d)
{
    Roots roots{0, {UntouchedNumber(), UntouchedNumber(), UntouchedNumber()}};
    roots.count = SolveCubicEquation(a, b, c, d, &roots.values[0], &roots.values[1], &roots.values[2]);
    return roots;
}

/// The roots found, and the outputs behind them as they were; both forms agree.
void ExpectRoots(std::array<double, 4> coefficients, const std::vector<double>& expected, double tolerance)
{
    const auto [a, b, c, d] = coefficients;
    SCOPED_TRACE(::testing::PrintToString(coefficients));
    const Roots roots = Solve(a, b, c, d);
    ASSERT_EQ(roots.count, static_cast<int>(expected.size()));
    for (std::size_t i = 0; i < 3; ++i)
    {
        if (i < expected.size())
        {
            EXPECT_TRUE(Near(roots.values[i], expected[i], tolerance));
        }
        else
        {
            EXPECT_EQ(roots.values[i], UntouchedNumber());
        }
    }
    std::vector<double> appended = {99};
    EXPECT_TRUE(SolveCubicEquation(a, b, c, d, appended));
    ASSERT_EQ(appended.size(), expected.size() + 1);
    EXPECT_EQ(appended[0], 99);
    for (std::size_t i = 0; i < expected.size(); ++i)
    {
        EXPECT_TRUE(SameBits(appended[i + 1], roots.values[i]));
    }
}

double ValueOf(const std::array<double, 4>& coefficients, double x)
{
    const auto [a, b, c, d] = coefficients;
    return ((x + b / a) * x + c / a) * x + d / a;
}

} // namespace

TEST(CubicEquation, HasThreeSimpleRootsInAscendingOrder)
{
    ExpectRoots({1, -6, 11, -6}, {1, 2, 3}, 1e-9);
    ExpectRoots({2, 0, -8, 0}, {-2, 0, 2}, 1e-9);
    ExpectRoots({-1, 6, -11, 6}, {1, 2, 3}, 1e-9);
    // (x + 5)(x + 1)(x - 2)
    ExpectRoots({1, 4, -7, -10}, {-5, -1, 2}, 1e-9);
}

TEST(CubicEquation, HasADoubleRootAtTheMaximumFirst)
{
    // x² (x - 1): the maximum at 0 touches the axis.
    ExpectRoots({1, -1, 0, 0}, {0, 1}, 1e-9);
    // (x + 2)² (x - 1)
    ExpectRoots({1, 3, 0, -4}, {-2, 1}, 1e-9);
}

TEST(CubicEquation, HasADoubleRootAtTheMinimumFirstThoughItIsTheGreater)
{
    // (x - 1)² x: the minimum at 1 touches the axis.
    ExpectRoots({1, -2, 1, 0}, {1, 0}, 1e-9);
    // (x - 3)² (x + 1)
    ExpectRoots({1, -5, 3, 9}, {3, -1}, 1e-9);
}

TEST(CubicEquation, WithBothStationaryPointsNearTheAxisTakesTheMaximum)
{
    // x³ - 3h²x: stationary points at -h and h with values of 2h³ and -2h³, both below the tolerance for h = 5e-4, while the
    // discriminant of the derivative, 36h², is well above it.
    const double h = 5e-4;
    const Roots roots = Solve(1, 0, -3 * h * h, 0);
    EXPECT_EQ(roots.count, 2);
    EXPECT_TRUE(Near(roots.values[0], -h, 1e-12));
}

TEST(CubicEquation, WithStationaryPointsOnOneSideOfTheAxisHasOneRoot)
{
    // (x - 3)(x² + 1) + ...: x³ - 3x + 5 has values 7 and 3 there, a root on the left; x³ - 3x - 5 mirrors it.
    const Roots left = Solve(1, 0, -3, 5);
    EXPECT_EQ(left.count, 1);
    EXPECT_TRUE(Near(ValueOf({1, 0, -3, 5}, left.values[0]), 0, 1e-9));
    EXPECT_LT(left.values[0], -1);
    ExpectRoots({1, 0, -3, -5}, {-left.values[0]}, 1e-9);
}

TEST(CubicEquation, ThatRisesThroughoutHasOneRoot)
{
    // (x - 2)(x² + 1), (x + 2)(x² + 1) and 4 of the first
    ExpectRoots({1, -2, 1, -2}, {2}, 1e-9);
    ExpectRoots({1, 2, 1, 2}, {-2}, 1e-9);
    ExpectRoots({4, -8, 4, -8}, {2}, 1e-9);
    ExpectRoots({1, 0, 1, 0}, {0}, 1e-9);
    ExpectRoots({1, 0, 1, -30}, {3}, 1e-9);
    ExpectRoots({1, 0, 1, 30}, {-3}, 1e-9);
}

TEST(CubicEquation, OfAPureCubeStopsWhereItsValueIsSmall)
{
    // Starting at 1, the first value below 1e-9 ends the iteration: the root is coarse by design.
    const Roots roots = Solve(1, 0, 0, 0);
    EXPECT_EQ(roots.count, 1);
    EXPECT_GT(roots.values[0], 7e-4);
    EXPECT_LT(roots.values[0], 8e-4);
}

TEST(CubicEquation, WithAVanishingLeadingCoefficientIsQuadratic)
{
    Roots roots = Solve(9e-10, 1, -4, 3);
    EXPECT_EQ(roots.count, 2);
    EXPECT_EQ(roots.values, (std::array<double, 3>{3, 1, UntouchedNumber()}));
    roots = Solve(0, 1, 0, 1);
    EXPECT_EQ(roots.count, 0);
    EXPECT_TRUE(std::isnan(roots.values[0]) && std::isnan(roots.values[1]));
    EXPECT_EQ(roots.values[2], UntouchedNumber());
    // The coefficient counts as given, however great the others are.
    EXPECT_EQ(Solve(9e-10, 1e9, -4e9, 3e9).count, 2);
    EXPECT_EQ(SolveCubicEquation(0, 1, 0, 1, nullptr, nullptr, nullptr), 0);
}

TEST(CubicEquation, OfALeadingCoefficientOfTheToleranceIsCubic)
{
    // 1e-9 (x - 1)(x - 2)(x - 3)
    ExpectRoots({1e-9, -6e-9, 11e-9, -6e-9}, {1, 2, 3}, 1e-6);
    EXPECT_EQ(Solve(Previous(1e-9), 0, 0, 1).count, 0);
}

TEST(CubicEquation, InAVectorAnswersAsTheQuadraticOneWhereItIsOne)
{
    std::vector<double> roots = {99};
    EXPECT_FALSE(SolveCubicEquation(0, 1, 0, 1, roots));
    EXPECT_EQ(roots, (std::vector<double>{99}));
    EXPECT_TRUE(SolveCubicEquation(0, 1, 2, 1, roots));
    EXPECT_EQ(roots, (std::vector<double>{99, -1, -1}));
}

TEST(CubicEquation, OfANaNEndsAndCountsOneRoot)
{
    const Roots aroundStationaryPoints = Solve(1, InvalidDouble, 0, 0);
    EXPECT_EQ(aroundStationaryPoints.count, 1);
    EXPECT_TRUE(std::isnan(aroundStationaryPoints.values[0]));
    // The constant has no say in the discriminant; a value that is neither above nor below the tolerance leaves the start.
    const Roots monotone = Solve(1, 0, 0, InvalidDouble);
    EXPECT_EQ(monotone.count, 1);
    EXPECT_TRUE(SameBits(monotone.values[0], -0.0));
}

TEST(CubicEquation, StartsAMonotoneSearchAQuarterOfTheSecondCoefficientFromZero)
{
    // The iteration repeated here from its start, one to the right of -B/4 where the value is not above the tolerance.
    const std::array<double, 4> coefficients = {1, 2, 5, -7};
    double x = 1.0 - 2.0 * 0.25;
    const auto value = [](double at) { return at * at * at + 2 * (at * at) + 5 * at - 7; };
    const auto derivative = [](double at) { return 3 * (at * at) + 4 * at + 5; };
    while (std::abs(value(x)) >= 1e-9)
    {
        const double halfWay = x - value(x) / (2 * derivative(x));
        x = x - value(x) / derivative(halfWay);
    }
    ExpectRoots(coefficients, {x}, 1e-14);
}

TEST(CubicEquation, WithAValueOfTheToleranceAtTheStartHasItsRootThere)
{
    // x³ + x + d starts at 0, where its value is d: the tolerance is neither above nor below itself.
    ExpectRoots({1, 0, 1, 1e-9}, {0}, 0.0);
    // One double more or less, and the search begins a unit away, to end at some place where the value is below 1e-9: at
    // most that far from the root, which is -d.
    for (const double d : {Previous(1e-9), Next(1e-9)})
    {
        const Roots roots = Solve(1, 0, 1, d);
        EXPECT_EQ(roots.count, 1);
        EXPECT_TRUE(Near(roots.values[0], -d, 1e-9));
        EXPECT_NE(roots.values[0], 0.0);
    }
}

TEST(CubicEquation, FindsTheRootsThatItWasMadeFrom)
{
    Random random(23);
    for (int i = 0; i < 20000; ++i)
    {
        const double p = random.Number(-3, 0);
        const double q = p + random.Number(0.2, 2);
        const double r = q + random.Number(0.2, 2);
        const double a = random.Number(0.5, 2);
        const Roots roots = Solve(a, -a * (p + q + r), a * (p * q + q * r + r * p), -a * (p * q * r));
        ASSERT_EQ(roots.count, 3);
        // A value below 1e-9 where the slope is at least 0.2 * 0.2.
        EXPECT_TRUE(Near(roots.values[0], p, 3e-8));
        EXPECT_TRUE(Near(roots.values[1], q, 3e-8));
        EXPECT_TRUE(Near(roots.values[2], r, 3e-8));
    }
}

TEST(CubicEquation, GivesOnlyPlacesWhereItVanishes)
{
    Random random(24);
    for (int i = 0; i < 20000; ++i)
    {
        const std::array<double, 4> coefficients = {random.Number(0.5, 2), random.Number(-3, 3), random.Number(-3, 3),
                                                    random.Number(-3, 3)};
        const auto [a, b, c, d] = coefficients;
        const Roots roots = Solve(a, b, c, d);
        ASSERT_GE(roots.count, 1);
        for (int k = 0; k < roots.count; ++k)
        {
            const double root = roots.values[static_cast<std::size_t>(k)];
            EXPECT_TRUE(Near(ValueOf(coefficients, root), 0, 1.1e-9)) << ::testing::PrintToString(coefficients);
        }
    }
}

// The value at a place takes the cube of the place from the C runtime, or what that must be.
TEST(CubicEquation, AgreesWithTheStepsWrittenOut)
{
    Random random(35);
    const double special[] = {0.0, -0.0, 1.0, -8.0, 1e-310, 1e120, 1e300, Infinity, InvalidDouble};
    int counts[4] = {};
    for (int i = 0; i < 60000; ++i)
    {
        const double a = random.Number(0.5, 2) * (random.Coin() ? 1 : -1);
        const double size = random.Coin() ? 1.0 : random.Size(1e-60, 1e60);
        double b = random.Number(-6, 6) * size;
        double c = random.Number(-6, 6) * size * size;
        double d = random.Number(-6, 6) * size * size * size;
        if (random.Integer(0, 3) == 0) // whole and half numbers, whose cubes are exact
        {
            b = random.Integer(-8, 8) * 0.5 * a;
            c = random.Integer(-8, 8) * 0.5 * a;
            d = random.Integer(-8, 8) * 0.5 * a;
        }
        if (random.Integer(0, 9) == 0)
        {
            (random.Coin() ? b : d) = special[random.Integer(0, 8)];
        }
        const reference::Roots expected = reference::SolveCubic(a, b, c, d);
        const Roots roots = Solve(a, b, c, d);
        ASSERT_EQ(roots.count, expected.count) << a << ' ' << b << ' ' << c << ' ' << d;
        for (std::size_t k = 0; k < static_cast<std::size_t>(roots.count); ++k)
        {
            ASSERT_TRUE(SameBits(roots.values[k], expected.values[k])) << a << ' ' << b << ' ' << c << ' ' << d;
        }
        ++counts[roots.count];
    }
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 300);
    EXPECT_GT(counts[3], 1000);
}
