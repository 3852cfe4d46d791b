#pragma once

#include <cstdint>

namespace math::hashes
{

/// How often the process has called, so far, a function of the C runtime whose last bits may differ between processors:
/// trigonometric functions, their inverses, exponentials, logarithms, powers, hypotenuse and cube root. Square roots,
/// remainders, the splitting of numbers and the like are exact and do not count.
///
/// This program defines those functions itself, and shared libraries call them here; each hands on to the runtime.
std::uint64_t RuntimeMathCalls();

} // namespace math::hashes
