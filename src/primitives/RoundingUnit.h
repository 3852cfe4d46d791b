#pragma once

#include <limits>

#include <Standard_Real.hxx>

namespace math::detail
{

/// Distance of a number to the next double away from zero.
///
/// From 0 the toolkit's NextAfter goes to the least normal number, the C runtime's to the least subnormal one.
inline double RoundingUnit(double value)
{
    constexpr double greatest = std::numeric_limits<double>::max();
    return value >= 0.0 ? NextAfter(value, greatest) - value : value - NextAfter(value, -greatest);
}

} // namespace math::detail
