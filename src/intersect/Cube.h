#pragma once

#include <cmath>
#include <cstdint>
#include <cstring>

namespace math::detail
{

/// The power of two at or below the magnitude of a normal number; 0 or infinity for any other.
inline double BinadeOf(double value)
{
    constexpr std::uint64_t exponent = 0x7ff0000000000000;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &value, sizeof(bits));
    bits &= exponent;
    double binade = 0.0;
    std::memcpy(&binade, &bits, sizeof(binade));
    return binade;
}

/// A number in two halves of 26 bits at most, whose products are exact (Veltkamp).
struct Halves
{
    double high;
    double low;
};

inline Halves Halved(double value)
{
    const double shifted = value * 134217729.0; // 2^27 + 1
    const double high = shifted - (shifted - value);
    return {high, value - high};
}

/// std::pow(x, 3.0), bit for bit, mostly without the call.
///
/// The cube is computed to twice the digits of a double (Dekker). The power function of the C runtime is not rounded
/// correctly: the source of glibc's bounds its error by 0.54 units in the last place. So where the cube lies within 0.45
/// units of a double, any other double is too far away to be the power, and that double is. Powers of two, below which
/// the units are smaller, infinities, NaN and whatever is too small for the error terms are left to the call.
inline double Cube(double x)
{
    const Halves ofX = Halved(x);
    const double square = x * x;
    const Halves ofSquare = Halved(square);
    const double cube = square * x;
    const double errorOfSquare = (ofX.high * ofX.high - square) + 2.0 * ofX.high * ofX.low + ofX.low * ofX.low;
    const double errorOfCube = (ofSquare.high * ofX.high - cube) + (ofSquare.high * ofX.low + ofSquare.low * ofX.high) +
                               ofSquare.low * ofX.low + errorOfSquare * x;
    const double nearest = cube + errorOfCube;
    const double rest = errorOfCube - (nearest - cube);
    const double binade = BinadeOf(nearest);
    constexpr double unitOfOne = 0x1p-52;
    const bool isSure =
        std::abs(rest) < 0.45 * unitOfOne * binade && std::abs(nearest) != binade && 1e-100 < binade && binade < 1e100;
    return isSure ? nearest : std::pow(x, 3.0);
}

} // namespace math::detail
