#include "math/Intersect.h"
#include "support/ReferenceEquations.h"
#include "support/Support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

using namespace math;
using namespace math::test;

namespace
{

struct Roots
{
    int count;
    double first;
    double second;
};

Roots Solve(double a, double b, double c)
{
    Roots roots{0, UntouchedNumber(), UntouchedNumber()};
    roots.count = SolveQuadraticEquation(a, b, c, &roots.first, &roots.second);
    return roots;
}

::testing::AssertionResult Gives(const Roots& roots, int count, double first, double second)
{
    if (roots.count == count && SameBits(roots.first, first) && SameBits(roots.second, second))
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << roots.count << " roots: " << Digits(roots.first) << ", "
                                         << Digits(roots.second);
}

} // namespace

TEST(QuadraticEquation, WithoutCoefficientsHasNoRoot)
{
    EXPECT_TRUE(Gives(Solve(0, 0, 0), 0, InvalidDouble, InvalidDouble));
    EXPECT_TRUE(Gives(Solve(-0.0, 0, -0.0), 0, InvalidDouble, InvalidDouble));
}

TEST(QuadraticEquation, OfAConstantHasNoRoot)
{
    EXPECT_TRUE(Gives(Solve(0, 0, 5), 0, InvalidDouble, InvalidDouble));
    // Scaled by 5, both leading coefficients fall below the tolerance.
    EXPECT_TRUE(Gives(Solve(4e-9, -4e-9, 5), 0, InvalidDouble, InvalidDouble));
}

TEST(QuadraticEquation, WithAVanishingLeadingCoefficientIsLinear)
{
    EXPECT_TRUE(Gives(Solve(0, 2, 6), 1, -3, InvalidDouble));
    EXPECT_TRUE(Gives(Solve(0, -4, 6), 1, 1.5, InvalidDouble));
    // The root near -1e10 is not told.
    EXPECT_TRUE(Gives(Solve(1e-10, 1, 1), 1, -1, InvalidDouble));
}

TEST(QuadraticEquation, IsLinearRelativeToTheGreatestCoefficient)
{
    // 1e-9 of the greatest coefficient is not below the tolerance, the next number below is.
    EXPECT_EQ(Solve(1e-9, 1, 0).count, 2);
    EXPECT_EQ(Solve(Previous(1e-9), 1, 0).count, 1);
    EXPECT_EQ(Solve(1e-10, 1e-10, 0).count, 2);
}

TEST(QuadraticEquation, OfAZeroLinearTermHasTheNegativeRootFirst)
{
    EXPECT_TRUE(Gives(Solve(1, 0, -4), 2, -2, 2));
    EXPECT_TRUE(Gives(Solve(4, 0, -1), 2, -0.5, 0.5));
    // The middle is +0 where the product of signs makes it so.
    EXPECT_TRUE(Gives(Solve(1, -0.0, -4), 2, 2, -2));
    EXPECT_TRUE(Gives(Solve(-1, 0, 4), 2, 2, -2));
}

TEST(QuadraticEquation, HasTheRootOfLargerMagnitudeFirst)
{
    // (x - 1)(x - 3) and (x + 1)(x + 3), (x + 1)(x - 4), 2(x - 1)(x + 4), -(x - 1)(x - 3)
    EXPECT_TRUE(Gives(Solve(1, -4, 3), 2, 3, 1));
    EXPECT_TRUE(Gives(Solve(1, 4, 3), 2, -3, -1));
    EXPECT_TRUE(Near(Solve(1, -3, -4).first, 4, 1e-14));
    EXPECT_TRUE(Near(Solve(1, -3, -4).second, -1, 1e-14));
    EXPECT_TRUE(Near(Solve(2, 6, -8).first, -4, 1e-14));
    EXPECT_TRUE(Near(Solve(2, 6, -8).second, 1, 1e-14));
    EXPECT_TRUE(Gives(Solve(-1, 4, -3), 2, 3, 1));
}

TEST(QuadraticEquation, WithoutAConstantHasAZeroRootOfTheSignOfTheProduct)
{
    EXPECT_TRUE(Gives(Solve(1, 1, 0), 2, -1, -0.0));
    EXPECT_TRUE(Gives(Solve(1, -1, 0), 2, 1, 0.0));
}

TEST(QuadraticEquation, OfAPerfectSquareHasOneRootInBothOutputs)
{
    EXPECT_TRUE(Gives(Solve(1, 2, 1), 1, -1, -1));
    EXPECT_TRUE(Gives(Solve(-4, 4, -1), 1, 0.5, 0.5));
    EXPECT_TRUE(Gives(Solve(3, 0, 0), 1, -0.0, -0.0));
}

TEST(QuadraticEquation, ThatStaysClearOfTheAxisHasNoRoot)
{
    EXPECT_TRUE(Gives(Solve(1, 0, 1), 0, InvalidDouble, InvalidDouble));
    EXPECT_TRUE(Gives(Solve(-1, 0, -1), 0, InvalidDouble, InvalidDouble));
    EXPECT_TRUE(Gives(Solve(2, 1, 3), 0, InvalidDouble, InvalidDouble));
}

TEST(QuadraticEquation, ThatMissesTheAxisByLessThanTheToleranceTouchesIt)
{
    // x² + c: the value at the vertex is c itself, since the greatest coefficient is 1.
    EXPECT_TRUE(Gives(Solve(1, 0, 1e-9), 1, -0.0, -0.0));
    EXPECT_TRUE(Gives(Solve(1, 0, 4e-10), 1, -0.0, -0.0));
    EXPECT_EQ(Solve(1, 0, Next(1e-9)).count, 0);
}

TEST(QuadraticEquation, HasADoubleRootWhereTheRootsAreNearerThanTheTolerance)
{
    // The roots of x² - d² are 2d apart.
    EXPECT_EQ(Solve(1, 0, -(4.9e-10 * 4.9e-10)).count, 1);
    EXPECT_EQ(Solve(1, 0, -(5.1e-10 * 5.1e-10)).count, 2);
}

TEST(QuadraticEquation, KeepsTheDigitsOfTheSmallRoot)
{
    // x² - 1e6 x + 1: the roots are 1e6 - 1e-6 - ... and 1e-6 + 1e-18 + ...; the textbook formula keeps no more than
    // five digits of the second.
    const Roots roots = Solve(1, -1e6, 1);
    EXPECT_EQ(roots.count, 2);
    EXPECT_TRUE(Near(roots.second, 1e-6 + 1e-18, 4e-22));
    EXPECT_TRUE(Near(roots.first, 1e6 - 1e-6, 3e-10));
}

TEST(QuadraticEquation, WritesOnlyTheOutputsThatAreGiven)
{
    double first = UntouchedNumber();
    double second = UntouchedNumber();
    EXPECT_EQ(SolveQuadraticEquation(1, -4, 3, &first, nullptr), 2);
    EXPECT_EQ(first, 3);
    EXPECT_EQ(SolveQuadraticEquation(1, -4, 3, nullptr, &second), 2);
    EXPECT_EQ(second, 1);
    EXPECT_EQ(SolveQuadraticEquation(1, 0, 1, nullptr, nullptr), 0);
    EXPECT_EQ(SolveQuadraticEquation(0, 0, 0, nullptr, nullptr), 0);
}

TEST(QuadraticEquation, OfANaNCountsTwoRootsOfNaN)
{
    for (const double other : {0.0, 1.0, -3.0})
    {
        EXPECT_TRUE(Gives(Solve(InvalidDouble, other, 1), 2, InvalidDouble, InvalidDouble));
        EXPECT_TRUE(Gives(Solve(other, InvalidDouble, 1), 2, InvalidDouble, InvalidDouble));
        EXPECT_TRUE(Gives(Solve(1, other, InvalidDouble), 2, InvalidDouble, InvalidDouble));
        EXPECT_TRUE(Gives(Solve(other, other, InvalidDouble), 2, InvalidDouble, InvalidDouble));
    }
}

TEST(QuadraticEquation, AppendsItsRootsToAVector)
{
    std::vector<double> roots = {99};
    EXPECT_TRUE(SolveQuadraticEquation(1, -4, 3, roots));
    EXPECT_EQ(roots, (std::vector<double>{99, 3, 1}));
    EXPECT_TRUE(SolveQuadraticEquation(0, 2, 6, roots));
    EXPECT_EQ(roots, (std::vector<double>{99, 3, 1, -3}));
    EXPECT_FALSE(SolveQuadraticEquation(1, 0, 1, roots));
    EXPECT_EQ(roots.size(), 4U);
}

TEST(QuadraticEquation, AppendsADoubleRootTwice)
{
    std::vector<double> roots;
    EXPECT_TRUE(SolveQuadraticEquation(1, 2, 1, roots));
    EXPECT_EQ(roots, (std::vector<double>{-1, -1}));
}

TEST(QuadraticEquation, AppendsNoNaNThoughItCountsTwo)
{
    std::vector<double> roots;
    EXPECT_TRUE(SolveQuadraticEquation(1, InvalidDouble, 1, roots));
    EXPECT_TRUE(roots.empty());
}

TEST(QuadraticEquation, FindsTheRootsThatItWasMadeFrom)
{
    Random random(21);
    for (int i = 0; i < 20000; ++i)
    {
        const double factor = random.Number(0.5, 2.0) * (random.Coin() ? 1 : -1);
        const double p = random.Number(-3, 3);
        const double q = p + random.Number(0.1, 3) * (random.Coin() ? 1 : -1);
        const Roots roots = Solve(factor, -factor * (p + q), factor * (p * q));
        ASSERT_EQ(roots.count, 2) << p << ' ' << q;
        EXPECT_GE(std::abs(roots.first), std::abs(roots.second) * (1 - 1e-12));
        // The coefficients are off by a few rounding units of numbers below 40, and roots 0.1 apart magnify that tenfold.
        EXPECT_TRUE(Near(std::min(roots.first, roots.second), std::min(p, q), 2e-12));
        EXPECT_TRUE(Near(std::max(roots.first, roots.second), std::max(p, q), 2e-12));
    }
}

TEST(QuadraticEquation, HasTheSameRootsWhateverItsFactor)
{
    Random random(22);
    for (int i = 0; i < 5000; ++i)
    {
        const double a = random.Number(-2, 2);
        const double b = random.Number(-2, 2);
        const double c = random.Number(-2, 2);
        const Roots roots = Solve(a, b, c);
        // A power of two scales without rounding.
        EXPECT_TRUE(Gives(Solve(a * 0x1p40, b * 0x1p40, c * 0x1p40), roots.count, roots.first, roots.second));
        EXPECT_TRUE(Gives(Solve(a * 0x1p-60, b * 0x1p-60, c * 0x1p-60), roots.count, roots.first, roots.second));
    }
}

TEST(QuadraticEquation, AgreesWithTheStepsWrittenOut)
{
    Random random(23);
    const double special[] = {0.0, -0.0, 1e-9, -1e-9, 2e-9, 1.0, 1e-310, 1e300, Infinity, InvalidDouble};
    int counts[3] = {};
    for (int i = 0; i < 300000; ++i)
    {
        double a = random.Number(-2, 2);
        double b = random.Number(-2, 2);
        double c = random.Number(-2, 2);
        switch (random.Integer(0, 5))
        {
        case 0: // near a double root
            c = b * b / (4.0 * a) + random.Integer(-1, 1) * random.Size(1e-17, 1e-7);
            break;
        case 1: // of any size
            a *= random.Size(1e-150, 1e150);
            b *= random.Size(1e-150, 1e150);
            break;
        case 2:
            (random.Coin() ? a : b) = special[random.Integer(0, 9)];
            c = random.Coin() ? c : special[random.Integer(0, 9)];
            break;
        default:
            break;
        }
        const reference::Roots expected = reference::SolveQuadratic(a, b, c);
        const Roots roots = Solve(a, b, c);
        ASSERT_EQ(roots.count, expected.count) << a << ' ' << b << ' ' << c;
        ASSERT_TRUE(SameBits(roots.first, expected.values[0])) << a << ' ' << b << ' ' << c;
        ASSERT_TRUE(SameBits(roots.second, expected.values[1])) << a << ' ' << b << ' ' << c;
        ++counts[roots.count];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}
