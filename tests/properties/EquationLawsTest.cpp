#include "math/Intersect.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of the polynomial equations, numbered as in docs/intersections.md: on all whole coefficients of a small
// range, where the discriminant is exact, and at random over many orders of magnitude.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

struct Quadratic
{
    double a;
    double b;
    double c;
};

struct Roots
{
    int count;
    double first;
    double second;
};

Roots RootsOf(const Quadratic& equation)
{
    Roots roots{0, UntouchedNumber(), UntouchedNumber()};
    roots.count = SolveQuadraticEquation(equation.a, equation.b, equation.c, &roots.first, &roots.second);
    return roots;
}

std::vector<Quadratic> GridQuadratics()
{
    std::vector<Quadratic> equations;
    for (int a = -6; a <= 6; ++a)
    {
        for (int b = -12; b <= 12; ++b)
        {
            for (int c = -6; c <= 6; ++c)
            {
                equations.push_back({static_cast<double>(a), static_cast<double>(b), static_cast<double>(c)});
            }
        }
    }
    return equations;
}

std::vector<Quadratic> RandomQuadratics()
{
    std::vector<Quadratic> equations;
    Random random(6);
    for (int round = 0; round < 20000; ++round)
    {
        const auto coefficient = [&random] { return (random.Coin() ? 1 : -1) * random.Size(1e-3, 1e3); };
        const double a = coefficient();
        const double b = coefficient();
        equations.push_back({a, b, coefficient()});
    }
    return equations;
}

double Discriminant(const Quadratic& equation)
{
    return equation.b * equation.b - 4 * equation.a * equation.c;
}

/// The value at x, with what is lost in it: some units of the greatest term.
bool IsRoot(const Quadratic& equation, double x)
{
    const long double value = (static_cast<long double>(equation.a) * x + equation.b) * x + equation.c;
    const double terms = std::abs(equation.a * x * x) + std::abs(equation.b * x) + std::abs(equation.c);
    return std::abs(static_cast<double>(value)) <= 16 * Unit * terms;
}

struct Cubic
{
    double a;
    double b;
    double c;
    double d;

    double At(double x) const
    {
        return ((a * x + b) * x + c) * x + d;
    }
};

std::vector<double> RootsOf(const Cubic& equation)
{
    double roots[3] = {UntouchedNumber(), UntouchedNumber(), UntouchedNumber()};
    const int count =
        SolveCubicEquation(equation.a, equation.b, equation.c, equation.d, &roots[0], &roots[1], &roots[2]);
    for (int i = count; i < 3; ++i)
    {
        EXPECT_EQ(roots[i], UntouchedNumber());
    }
    return {roots, roots + count};
}

/// 18abcd - 4b³d + b²c² - 4ac³ - 27a²d²: above 0 for three real roots, 0 for a double root.
double Discriminant(const Cubic& f)
{
    return 18 * f.a * f.b * f.c * f.d - 4 * f.b * f.b * f.b * f.d + f.b * f.b * f.c * f.c - 4 * f.a * f.c * f.c * f.c -
           27 * f.a * f.a * f.d * f.d;
}

std::vector<Cubic> GridCubics()
{
    std::vector<Cubic> equations;
    for (const double a : {1.0, -1.0, 2.0, -4.0})
    {
        for (int b = -5; b <= 5; ++b)
        {
            for (int c = -5; c <= 5; ++c)
            {
                for (int d = -5; d <= 5; ++d)
                {
                    equations.push_back({a, static_cast<double>(b), static_cast<double>(c), static_cast<double>(d)});
                }
            }
        }
    }
    return equations;
}

/// Three times the square of the common root of all derivatives: a triple root, where the cubic is flat.
bool HasTripleRoot(const Cubic& f)
{
    return f.b * f.b == 3 * f.a * f.c && f.b * f.b * f.b == 27 * f.a * f.a * f.d;
}

} // namespace

TEST(EquationLaws, E1_AQuadraticHasAsManyRootsAsItsDiscriminantTells)
{
    for (const Quadratic& equation : GridQuadratics())
    {
        const Roots roots = RootsOf(equation);
        const double discriminant = Discriminant(equation); // whole, and exact
        const int ofQuadratic = discriminant > 0 ? 2 : discriminant == 0 ? 1 : 0;
        const int ofLinear = equation.b != 0 ? 1 : 0;
        ASSERT_EQ(roots.count, equation.a != 0 ? ofQuadratic : ofLinear)
            << equation.a << " " << equation.b << " " << equation.c;
        ASSERT_EQ(std::isnan(roots.first), roots.count == 0);
        ASSERT_EQ(std::isnan(roots.second), roots.count == 0 || equation.a == 0);
    }
    int clear = 0;
    for (const Quadratic& equation : RandomQuadratics())
    {
        const double scale = std::max({std::abs(equation.a), std::abs(equation.b), std::abs(equation.c)});
        const double gap = Discriminant(equation) / (4 * equation.a) / scale;
        if (std::abs(equation.a) / scale > 2e-9 && std::abs(gap) > 2e-9)
        {
            ++clear;
            ASSERT_EQ(RootsOf(equation).count, Discriminant(equation) > 0 ? 2 : 0)
                << Digits(equation.a) << " " << Digits(equation.b) << " " << Digits(equation.c);
        }
    }
    EXPECT_GT(clear, 19000);
}

TEST(EquationLaws, E2_EveryRootSatisfiesTheEquationAndTheLargerComesFirst)
{
    int withRoots = 0;
    for (const auto& equations : {GridQuadratics(), RandomQuadratics()})
    {
        for (const Quadratic& equation : equations)
        {
            const Roots roots = RootsOf(equation);
            const double scale = std::max({std::abs(equation.a), std::abs(equation.b), std::abs(equation.c)});
            // Equations that the tolerances take for linear or touching have roots of other equations.
            const double gap = std::abs(Discriminant(equation) / (4 * equation.a)) / scale;
            const bool isClear = std::abs(equation.a) / scale > 2e-9 && (gap > 2e-9 || gap == 0);
            if (roots.count == 0 || !isClear)
            {
                continue;
            }
            ++withRoots;
            ASSERT_TRUE(IsRoot(equation, roots.first))
                << equation.a << " " << equation.b << " " << equation.c << " " << Digits(roots.first);
            ASSERT_TRUE(IsRoot(equation, roots.second))
                << equation.a << " " << equation.b << " " << equation.c << " " << Digits(roots.second);
            ASSERT_GE(std::abs(roots.first), std::abs(roots.second) * (1 - 8 * Unit));
        }
    }
    EXPECT_GT(withRoots, 10000);
}

TEST(EquationLaws, E3_SumAndProductOfTheRootsAreThoseOfVieta)
{
    for (const auto& equations : {GridQuadratics(), RandomQuadratics()})
    {
        for (const Quadratic& equation : equations)
        {
            const Roots roots = RootsOf(equation);
            if (roots.count == 0 || std::isnan(roots.second))
            {
                continue;
            }
            const double size = std::abs(roots.first) + std::abs(roots.second);
            const double scale = std::max({std::abs(equation.a), std::abs(equation.b), std::abs(equation.c)});
            // One root stands for two where the discriminant is within the tolerance.
            const double touching =
                roots.count == 1 && Discriminant(equation) != 0 ? 1e-9 * scale / std::abs(equation.a) : 0;
            ASSERT_TRUE(Near(roots.first * roots.second, equation.c / equation.a,
                             16 * Unit * std::abs(equation.c / equation.a) + touching));
            ASSERT_TRUE(Near(roots.first + roots.second, -equation.b / equation.a, 16 * Unit * size + touching))
                << equation.a << " " << equation.b << " " << equation.c;
        }
    }
}

TEST(EquationLaws, E4_ScalingTheEquationAndMirroringItChangeNoBit)
{
    for (const auto& equations : {GridQuadratics(), RandomQuadratics()})
    {
        for (const Quadratic& equation : equations)
        {
            const Roots roots = RootsOf(equation);
            for (const double factor : {-1.0, 8.0, -0x1p-40, 0x1p100})
            {
                const Roots scaled = RootsOf(Quadratic{equation.a * factor, equation.b * factor, equation.c * factor});
                ASSERT_EQ(scaled.count, roots.count);
                ASSERT_TRUE(Near(scaled.first, roots.first, 0) || std::isnan(roots.first));
                ASSERT_TRUE(Near(scaled.second, roots.second, 0) || std::isnan(roots.second));
            }
            const Roots mirrored = RootsOf(Quadratic{equation.a, -equation.b, equation.c});
            ASSERT_EQ(mirrored.count, roots.count);
            ASSERT_TRUE(Near(mirrored.first, -roots.first, 0) || std::isnan(roots.first));
            ASSERT_TRUE(Near(mirrored.second, -roots.second, 0) || std::isnan(roots.second));
        }
    }
}

TEST(EquationLaws, E5_TheVectorFormHasTheRootsOfThePointerFormADoubleOneTwice)
{
    int twice = 0;
    const auto check = [&](const Quadratic& equation) {
        const Roots roots = RootsOf(equation);
        std::vector<double> found = {UntouchedNumber()};
        ASSERT_EQ(SolveQuadraticEquation(equation.a, equation.b, equation.c, found), roots.count > 0);
        std::vector<double> expected = {UntouchedNumber()};
        for (const double root : {roots.first, roots.second})
        {
            if (!std::isnan(root))
            {
                expected.push_back(root);
            }
        }
        ASSERT_EQ(found, expected);
        twice += roots.count == 1 && found.size() == 3 ? 1 : 0;
    };
    int squares = 0;
    for (const Quadratic& equation : GridQuadratics())
    {
        check(equation);
        squares += equation.a != 0 && Discriminant(equation) == 0 ? 1 : 0;
    }
    EXPECT_EQ(twice, squares);
    for (const Quadratic& equation : RandomQuadratics())
    {
        check(equation);
    }
}

TEST(EquationLaws, E6_ACubicHasAsManyRootsAsItsDiscriminantTellsExceptNearATripleRoot)
{
    int triple = 0;
    for (const Cubic& equation : GridCubics())
    {
        const std::vector<double> roots = RootsOf(equation);
        const double discriminant = Discriminant(equation); // whole, and exact
        const bool hasTriple = HasTripleRoot(equation);
        triple += hasTriple ? 1 : 0;
        const std::size_t expected = discriminant > 0 ? 3 : discriminant == 0 && !hasTriple ? 2 : 1;
        ASSERT_EQ(roots.size(), expected) << equation.a << " " << equation.b << " " << equation.c << " " << equation.d;
        std::vector<double> found;
        ASSERT_TRUE(SolveCubicEquation(equation.a, equation.b, equation.c, equation.d, found));
        ASSERT_EQ(found, roots);
    }
    EXPECT_GT(triple, 0);
}

TEST(EquationLaws, E7_EveryRootOfACubicSatisfiesTheEquationExceptWhereTheStepsDoNotComeToRest)
{
    const auto isAtRest = [](const Cubic& equation) {
        const std::vector<double> roots = RootsOf(equation);
        return std::all_of(roots.begin(), roots.end(), [&](double root) {
            const double terms = std::abs(root * root * root) + std::abs(equation.b / equation.a * root * root) +
                                 std::abs(equation.c / equation.a * root) + std::abs(equation.d / equation.a);
            return std::abs(equation.At(root) / equation.a) < DoubleTolerance + 16 * Unit * terms;
        });
    };
    for (const Cubic& equation : GridCubics())
    {
        ASSERT_TRUE(isAtRest(equation)) << equation.a << " " << equation.b << " " << equation.c << " " << equation.d;
    }
    int exceptions = 0;
    for (int b = -12; b <= 12; ++b)
    {
        for (int c = -12; c <= 12; ++c)
        {
            for (int d = -400; d <= 400; d += 20)
            {
                // (x ± 2)³ = q: the search starts 1/2 beside the place without slope, on the side of the root or across,
                // at a slope of 3/4. From a distance s, where the cube of s is far below q, the slope at the midpoint is
                // that at q / 6s², and a step is 12 s⁴ / q: too short to arrive where q is above 200.
                const int q = b > 0 ? d - 8 : -d - 8;
                const bool isException = std::abs(b) == 6 && c == 12 && q > 200;
                const Cubic equation{1.0, static_cast<double>(b), static_cast<double>(c), static_cast<double>(d)};
                ASSERT_EQ(isAtRest(equation), !isException) << b << " " << c << " " << d;
                exceptions += isException ? 1 : 0;
            }
        }
    }
    EXPECT_EQ(exceptions, 2 * 10);                  // d from 220 to 400 and from -400 to -220
    EXPECT_FALSE(isAtRest({1.0, 4.7, 7.4, 380.0})); // and beside it, where the slope nearly vanishes
}

TEST(EquationLaws, E8_ACubicFromItsRootsGivesThemAgain)
{
    for (int first = -6; first <= 6; ++first)
    {
        for (int second = first; second <= 6; ++second)
        {
            for (int third = second; third <= 6; ++third)
            {
                const Cubic equation{1.0, -static_cast<double>(first + second + third),
                                     static_cast<double>(first * second + second * third + third * first),
                                     -static_cast<double>(first * second * third)};
                std::vector<double> roots = RootsOf(equation);
                std::sort(roots.begin(), roots.end());
                const bool isTriple = first == third;
                std::vector<int> expected = {first, second, third};
                expected.erase(std::unique(expected.begin(), expected.end()), expected.end());
                ASSERT_EQ(roots.size(), expected.size()) << first << " " << second << " " << third;
                for (std::size_t i = 0; i < roots.size(); ++i)
                {
                    // Simple roots of whole numbers have a slope of at least 1 beside them; the value is below 1e-9. A
                    // triple one is told as soon as its cube is.
                    ASSERT_TRUE(Near(roots[i], expected[i], isTriple ? 1.001e-3 : 2e-9))
                        << first << " " << second << " " << third;
                }
            }
        }
    }
    // At random, simple roots: the count of E6 and the residual of E7 too.
    Random random(28);
    for (int round = 0; round < 5000; ++round)
    {
        const double first = random.Number(-6, 6);
        const double second = first + random.Number(0.1, 6);
        const double third = second + random.Number(0.1, 6);
        const double a = (random.Coin() ? 1 : -1) * random.Size(0.01, 100);
        const Cubic equation{a, -a * (first + second + third), a * (first * second + second * third + third * first),
                             -a * first * second * third};
        std::vector<double> roots = RootsOf(equation);
        std::vector<double> found;
        ASSERT_TRUE(SolveCubicEquation(equation.a, equation.b, equation.c, equation.d, found));
        ASSERT_EQ(found, roots);
        ASSERT_EQ(roots.size(), 3U) << Digits(first) << " " << Digits(second) << " " << Digits(third);
        std::sort(roots.begin(), roots.end());
        // The value is below 1e-9, at a slope of the product of the distances to the others.
        const double slopes[] = {(second - first) * (third - first), (second - first) * (third - second),
                                 (third - first) * (third - second)};
        ASSERT_TRUE(Near(roots[0], first, 2e-9 / slopes[0]) && Near(roots[1], second, 2e-9 / slopes[1]) &&
                    Near(roots[2], third, 2e-9 / slopes[2]))
            << Digits(first) << " " << Digits(second) << " " << Digits(third);
    }
}
