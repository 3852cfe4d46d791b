#pragma once

#include <cmath>
#include <random>
#include <string>

namespace math::accuracy
{

/// Seeded random input. Only operations that give the same bits on every machine are used.
class Draw
{
public:
    explicit Draw(const std::string& name) : engine(Seeded(name))
    {
    }

    /// Evenly spread in [0, 1).
    double Unit()
    {
        return std::ldexp(static_cast<double>(engine() >> 11U), -53);
    }

    double Between(double low, double high)
    {
        return low + (high - low) * Unit();
    }

    /// From -size to size.
    double Signed(double size)
    {
        return Between(-size, size);
    }

    /// Above 0, its logarithm evenly spread: each power of two between the bounds is as frequent as the others.
    double Magnitude(double low, double high)
    {
        const int least = std::ilogb(low);
        const int count = std::ilogb(high) - least + 1;
        const double mantissa = 1.0 + Unit(); // in an order of its own: that of arguments is open
        const double value = std::ldexp(mantissa, least + static_cast<int>(Unit() * count));
        return value < low ? low : (value > high ? high : value);
    }

    double SignedMagnitude(double low, double high)
    {
        return Coin() ? Magnitude(low, high) : -Magnitude(low, high);
    }

    bool Coin()
    {
        return (engine() & 1U) != 0;
    }

    /// A direction in [0, 2π), a double.
    double Angle()
    {
        return Between(0.0, 6.283185307179586);
    }

private:
    // One stream a row, so that rows do not depend on what is measured before them.
    static std::mt19937_64 Seeded(const std::string& name)
    {
        std::seed_seq seed(name.begin(), name.end());
        return std::mt19937_64(seed);
    }

    std::mt19937_64 engine;
};

} // namespace math::accuracy
