#include "support/Support.h"

#include <cstdint>
#include <cstdlib>
#include <limits>
#include <numeric>
#include <utility>

using namespace math;
using namespace math::test;

namespace
{

constexpr int LeastInt = std::numeric_limits<int>::min();
constexpr int GreatestInt = std::numeric_limits<int>::max();
constexpr std::int64_t LeastInt64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t GreatestInt64 = std::numeric_limits<std::int64_t>::max();

using Fraction = std::pair<int, int>;
using Fraction64 = std::pair<std::int64_t, std::int64_t>;

Fraction Reduced(int numerator, int denominator)
{
    Reducify(numerator, denominator);
    return {numerator, denominator};
}

Fraction64 Reduced64(std::int64_t numerator, std::int64_t denominator)
{
    ReducifyInt64(numerator, denominator);
    return {numerator, denominator};
}

} // namespace

TEST(GreatestCommonDivisor, IsOneWhereEitherNumberIsZero)
{
    for (const auto& [a, b] : {Fraction{0, 7}, Fraction{7, 0}, Fraction{0, 0}, Fraction{0, -7}, Fraction{-7, 0}})
    {
        SCOPED_TRACE(::testing::PrintToString(Fraction{a, b}));
        EXPECT_EQ(GetGreatestCommonDivisor(a, b), 1);
        EXPECT_EQ(GetGreatestCommonDivisorInt64(a, b), 1);
    }
}

TEST(GreatestCommonDivisor, CarriesTheSignOfTheLastDivisor)
{
    // A remainder has the sign of its dividend; the comments tell the chain of divisors.
    const struct
    {
        int a, b, divisor;
    } rows[] = {
        {4, -6, -2},   // -6, 4, -2
        {-4, 6, 2},    // 6, -4, 2
        {-6, 3, 3},    // 3
        {-4, -6, -2},  // -6, -4, -2
        {4, -2, -2},   // -2
        {6, 4, 2},     // 4, 2
        {12, 18, 6},   // 18, 12, 6
        {18, 12, 6},   // 12, 6
        {-18, 12, -6}, // 12, -6
        {18, -12, 6},  // -12, 6
        {7, 5, 1},     // 5, 2, 1
        {-7, 5, 1},    // 5, -2, 1
        {7, -5, -1},   // -5, 2, -1
        {1, 1, 1},     // 1
        {-5, -5, -5},  // -5
        {GreatestInt, GreatestInt - 1, 1},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(::testing::PrintToString(Fraction{row.a, row.b}));
        EXPECT_EQ(GetGreatestCommonDivisor(row.a, row.b), row.divisor);
        EXPECT_EQ(GetGreatestCommonDivisorInt64(row.a, row.b), row.divisor);
    }
}

TEST(GreatestCommonDivisor, TakesTheWholeRangeOfBothTypes)
{
    EXPECT_EQ(GetGreatestCommonDivisor(LeastInt, 6), -2); // 6, -2
    EXPECT_EQ(GetGreatestCommonDivisor(LeastInt, 3), 1);  // 3, -2, 1
    EXPECT_EQ(GetGreatestCommonDivisor(LeastInt, LeastInt), LeastInt);
    EXPECT_EQ(GetGreatestCommonDivisor(GreatestInt, LeastInt), -1); // LeastInt, GreatestInt, -1
    EXPECT_EQ(GetGreatestCommonDivisorInt64(LeastInt64, 6), -2);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(LeastInt64, LeastInt64), LeastInt64);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(GreatestInt64, LeastInt64), -1);

    // 3 * 2^40 and 2 * 2^40 do not fit into 32 bits, nor does their divisor.
    const std::int64_t large = std::int64_t{1} << 40;
    EXPECT_EQ(GetGreatestCommonDivisorInt64(3 * large, 2 * large), large);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(-3 * large, 2 * large), -large);
}

TEST(GreatestCommonDivisor, OfTheLeastIntegerAndMinusOneIsMinusOne)
{
    EXPECT_EQ(GetGreatestCommonDivisor(LeastInt, -1), -1);
    EXPECT_EQ(GetGreatestCommonDivisor(-1, LeastInt), -1); // LeastInt, -1
    EXPECT_EQ(GetGreatestCommonDivisor(6, -1), -1);
    EXPECT_EQ(GetGreatestCommonDivisor(LeastInt, 1), 1);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(LeastInt64, -1), -1);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(-1, LeastInt64), -1);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(6, -1), -1);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(LeastInt64, 1), 1);
    EXPECT_EQ(GetGreatestCommonDivisorInt64(LeastInt, -1), -1);
}

TEST(GreatestCommonDivisor, HasTheSizeOfTheStandardOne)
{
    Random random(11);
    for (int i = 0; i < 5000; ++i)
    {
        const int a = random.Integer(-500, 500);
        const int b = random.Integer(-500, 500);
        SCOPED_TRACE(::testing::PrintToString(Fraction{a, b}));
        const int expected = a == 0 || b == 0 ? 1 : std::gcd(a, b);
        EXPECT_EQ(std::abs(GetGreatestCommonDivisor(a, b)), expected);
        EXPECT_EQ(GetGreatestCommonDivisorInt64(a, b), GetGreatestCommonDivisor(a, b));

        const std::int64_t factor = 0x123456789;
        EXPECT_EQ(std::abs(GetGreatestCommonDivisorInt64(a * factor, b * factor)),
                  a == 0 || b == 0 ? 1 : expected * factor);
    }
}

TEST(ReducedFraction, IsDividedByTheSignedDivisor)
{
    const std::pair<Fraction, Fraction> rows[] = {
        {{4, -6}, {-2, 3}}, {{-4, -6}, {2, 3}}, {{4, -2}, {-2, 1}},   {{-4, 6}, {-2, 3}},  {{6, 4}, {3, 2}},
        {{18, 12}, {3, 2}}, {{7, 5}, {7, 5}},   {{7, -5}, {-7, 5}},   {{6, -1}, {-6, 1}},  {{6, 3}, {2, 1}},
        {{3, 6}, {1, 2}},   {{-5, -5}, {1, 1}}, {{12, -18}, {-2, 3}}, {{100, 75}, {4, 3}},
    };
    for (const auto& [given, reduced] : rows)
    {
        SCOPED_TRACE(::testing::PrintToString(given));
        EXPECT_EQ(Reduced(given.first, given.second), reduced);
        EXPECT_EQ(Reduced64(given.first, given.second), Fraction64(reduced));
    }
}

TEST(ReducedFraction, WithAZeroStaysAsItIs)
{
    for (const auto& fraction : {Fraction{0, 5}, Fraction{5, 0}, Fraction{0, 0}, Fraction{0, -5}})
    {
        SCOPED_TRACE(::testing::PrintToString(fraction));
        EXPECT_EQ(Reduced(fraction.first, fraction.second), fraction);
        EXPECT_EQ(Reduced64(fraction.first, fraction.second), Fraction64(fraction));
    }
}

TEST(ReducedFraction, StaysAsItIsWhereTheQuotientWouldLeaveTheType)
{
    for (const auto& fraction :
         {Fraction{LeastInt, -1}, Fraction{-1, LeastInt}, Fraction{LeastInt, -3}, Fraction{-3, LeastInt}})
    {
        SCOPED_TRACE(::testing::PrintToString(fraction));
        EXPECT_EQ(Reduced(fraction.first, fraction.second), fraction);
    }
    for (const auto& fraction : {Fraction64{LeastInt64, -1}, Fraction64{-1, LeastInt64}, Fraction64{LeastInt64, -3},
                                 Fraction64{-3, LeastInt64}})
    {
        SCOPED_TRACE(::testing::PrintToString(fraction));
        EXPECT_EQ(Reduced64(fraction.first, fraction.second), fraction);
    }
}

TEST(ReducedFraction, TakesTheLeastIntegerWhereTheQuotientExists)
{
    EXPECT_EQ(Reduced(LeastInt, LeastInt), Fraction(1, 1));
    EXPECT_EQ(Reduced(LeastInt, 2), Fraction(LeastInt / 2, 1));
    EXPECT_EQ(Reduced(LeastInt, 6), Fraction(1 << 30, -3)); // divisor -2
    EXPECT_EQ(Reduced(LeastInt, 1), Fraction(LeastInt, 1));
    EXPECT_EQ(Reduced(LeastInt, 3), Fraction(LeastInt, 3)); // divisor 1
    EXPECT_EQ(Reduced(GreatestInt, -1), Fraction(-GreatestInt, 1));
    EXPECT_EQ(Reduced64(LeastInt64, LeastInt64), Fraction64(1, 1));
    EXPECT_EQ(Reduced64(LeastInt64, 6), Fraction64(std::int64_t{1} << 62, -3));
    EXPECT_EQ(Reduced64(LeastInt, -1), Fraction64(std::int64_t{1} << 31, 1));
    EXPECT_EQ(Reduced64(GreatestInt64, -1), Fraction64(-GreatestInt64, 1));
}

TEST(ReducedFraction, OfANumberWithItselfIsOne)
{
    int number = 6;
    Reducify(number, number);
    EXPECT_EQ(number, 1);
    std::int64_t longNumber = -6;
    ReducifyInt64(longNumber, longNumber);
    EXPECT_EQ(longNumber, 1);
    int zero = 0;
    Reducify(zero, zero);
    EXPECT_EQ(zero, 0);
}

TEST(ReducedFraction, KeepsItsValueAndCannotBeReducedFurther)
{
    Random random(12);
    for (int i = 0; i < 5000; ++i)
    {
        const std::int64_t n = random.Integer(-3000, 3000);
        const std::int64_t d = random.Integer(-3000, 3000);
        if (n == 0 || d == 0)
        {
            continue;
        }
        SCOPED_TRACE(::testing::PrintToString(Fraction64{n, d}));
        const Fraction64 reduced = Reduced64(n, d);
        EXPECT_EQ(reduced.first * d, n * reduced.second);
        EXPECT_EQ(std::gcd(reduced.first, reduced.second), 1);
        EXPECT_EQ(Fraction64(Reduced(static_cast<int>(n), static_cast<int>(d))), reduced);
    }
}
