#pragma once

#include "math/Primitives.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <ostream>
#include <random>
#include <string>

// What the tests of all curves share: points to compare, outputs that must stay as they were, neighbours of a number,
// seeded random input.

namespace math
{

/// Equal coordinates, exactly; a NaN equals a NaN and -0 equals 0.
inline bool operator==(const DPOINT2& a, const DPOINT2& b)
{
    const auto same = [](double first, double second) {
        return first == second || (std::isnan(first) && std::isnan(second));
    };
    return same(a.x, b.x) && same(a.y, b.y);
}

inline bool operator!=(const DPOINT2& a, const DPOINT2& b)
{
    return !(a == b);
}

inline void PrintTo(const DPOINT2& point, std::ostream* out)
{
    char buffer[80];
    std::snprintf(buffer, sizeof(buffer), "(%.17g, %.17g)", point.x, point.y);
    *out << buffer;
}

namespace test
{

// The named angles as doubles.
inline constexpr double QuarterPi = 0.7853981633974483;
inline constexpr double HalfPi = 1.5707963267948966;
inline constexpr double Pi = 3.141592653589793;
inline constexpr double ThreeHalvesPi = 4.71238898038469;
inline constexpr double TwoPi = 6.283185307179586;

inline constexpr double Infinity = std::numeric_limits<double>::infinity();
inline constexpr double Greatest = std::numeric_limits<double>::max();
inline constexpr double LeastNormal = std::numeric_limits<double>::min();

inline DPOINT2 At(double x, double y)
{
    return {x, y};
}

/// What stands in an output before a call that must not write it: no result by accident.
inline DPOINT2 Untouched()
{
    return {-77.25, 1234.5};
}

inline double UntouchedNumber()
{
    return -4321.625;
}

// Neighbouring numbers

inline double Next(double value)
{
    return std::nextafter(value, Infinity);
}

inline double Previous(double value)
{
    return std::nextafter(value, -Infinity);
}

/// The number that lies `steps` doubles further up, or down for negative steps.
inline double Stepped(double value, int steps)
{
    for (; steps > 0; --steps)
    {
        value = Next(value);
    }
    for (; steps < 0; ++steps)
    {
        value = Previous(value);
    }
    return value;
}

/// The same double: all bits, so that the sign of a zero counts; every NaN is the same.
inline bool SameBits(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
    {
        return std::isnan(a) && std::isnan(b);
    }
    return std::memcmp(&a, &b, sizeof(double)) == 0;
}

inline bool SameBits(const DPOINT2& a, const DPOINT2& b)
{
    return SameBits(a.x, b.x) && SameBits(a.y, b.y);
}

// Nearness, for EXPECT_TRUE

inline std::string Digits(double value)
{
    char buffer[40];
    std::snprintf(buffer, sizeof(buffer), "%.17g", value);
    return buffer;
}

/// Numbers no further apart than `tolerance`; false for NaN.
inline ::testing::AssertionResult Near(double value, double expected, double tolerance)
{
    if (std::abs(value - expected) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Digits(value) << " is not within " << tolerance << " of "
                                         << Digits(expected);
}

/// Points whose coordinates are no further apart than `tolerance`; false for NaN.
inline ::testing::AssertionResult Near(const DPOINT2& point, const DPOINT2& expected, double tolerance)
{
    if (std::abs(point.x - expected.x) <= tolerance && std::abs(point.y - expected.y) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << ::testing::PrintToString(point) << " is not within " << tolerance << " of "
                                         << ::testing::PrintToString(expected);
}

/// Directions that differ by no more than `tolerance` up to whole multiples of `period`: TwoPi for directions, Pi for
/// undirected lines.
inline ::testing::AssertionResult NearDirection(double radian, double expected, double period, double tolerance)
{
    if (std::abs(std::remainder(radian - expected, period)) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Digits(radian) << " is not within " << tolerance << " of "
                                         << Digits(expected) << " modulo " << Digits(period);
}

// Random input

/// Numbers that depend on the seed alone, the same with every standard library.
class Random
{
public:
    explicit Random(std::uint64_t seed) : m_engine(seed)
    {
    }

    /// From `low` to `high`.
    double Number(double low, double high)
    {
        return low + (high - low) * (static_cast<double>(m_engine() >> 11) * 0x1p-53);
    }

    /// From `low` to `high`, both included.
    int Integer(int low, int high)
    {
        const auto count = static_cast<std::uint64_t>(high - low) + 1;
        return low + static_cast<int>(m_engine() % count);
    }

    bool Coin()
    {
        return Integer(0, 1) == 1;
    }

    /// A direction in [0, 2π).
    double Radian()
    {
        return Number(0.0, TwoPi);
    }

    /// A positive number whose order of magnitude is even between those of `low` and `high`.
    double Size(double low, double high)
    {
        return std::exp(Number(std::log(low), std::log(high)));
    }

    /// A point of the square of half-width `extent` about the origin.
    DPOINT2 Point(double extent)
    {
        const double x = Number(-extent, extent);
        return {x, Number(-extent, extent)};
    }

private:
    std::mt19937_64 m_engine;
};

} // namespace test
} // namespace math
