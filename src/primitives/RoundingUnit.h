#pragma once

#include <cstdint>
#include <cstring>
#include <limits>

#include <Standard_Real.hxx>

namespace math::detail
{

/// Distance of a number to the next double away from zero.
///
/// From 0 the toolkit's NextAfter goes to the least normal number, the C runtime's to the least subnormal one.
inline double RoundingUnit(double value)
{
    constexpr double least = std::numeric_limits<double>::min();
    constexpr double greatest = std::numeric_limits<double>::max();
    if (value >= least && value < greatest)
    {
        // The next double is the next pattern of bits.
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof(bits));
        ++bits;
        double next = 0.0;
        std::memcpy(&next, &bits, sizeof(next));
        return next - value;
    }
    return value >= 0.0 ? NextAfter(value, greatest) - value : value - NextAfter(value, -greatest);
}

} // namespace math::detail
