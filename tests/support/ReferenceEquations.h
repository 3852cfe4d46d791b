#pragma once

#include "math/Primitives.h"

#include <array>
#include <cmath>

// Quadratic and cubic equations by the plain steps, one operation after the other, for comparison bit by bit.

namespace math::test::reference
{

struct Roots
{
    int count = 0;
    std::array<double, 3> values = {InvalidDouble, InvalidDouble, InvalidDouble};
};

inline Roots SolveQuadratic(double a, double b, double c)
{
    double scale = std::abs(a);
    for (const double value : {b, c})
    {
        if (std::isnan(value) || std::abs(value) > scale)
        {
            scale = std::abs(value);
        }
        if (std::isnan(scale))
        {
            break;
        }
    }
    if (scale == 0.0)
    {
        return {};
    }
    a = a / scale;
    b = b / scale;
    c = c / scale;
    if (std::abs(a) < 1e-9)
    {
        return std::abs(b) < 1e-9 ? Roots{} : Roots{1, {c / b * -1.0, InvalidDouble, InvalidDouble}};
    }
    if (!(a > 0.0))
    {
        a = a * -1.0;
        b = b * -1.0;
        c = c * -1.0;
    }
    double vertexValue = c - b * b / (4.0 * a);
    if (vertexValue > 1e-9)
    {
        return {};
    }
    if (vertexValue > 0.0)
    {
        vertexValue = 0.0;
    }
    const double middle = b * -1.0 / (2.0 * a);
    const double half = std::sqrt(vertexValue * -1.0 / a);
    if (std::abs(2.0 * half) < 1e-9)
    {
        return {1, {middle, middle, InvalidDouble}};
    }
    const double larger = std::signbit(middle) ? middle - half : middle + half;
    return {2, {larger, c / a / larger, InvalidDouble}};
}

/// The cubic with the leading coefficient 1; its value by the C runtime's power function.
struct Cubic
{
    double b, c, d;

    double ValueAt(double x) const
    {
        return std::pow(x, 3.0) + b * (x * x) + c * x + d;
    }

    double SlopeAt(double x) const
    {
        return 3.0 * (x * x) + 2.0 * b * x + c;
    }

    double RootFrom(double x) const
    {
        for (int step = 0; step < 51 && !(std::abs(ValueAt(x)) < 1e-9); ++step)
        {
            x = x - ValueAt(x) / SlopeAt(x - ValueAt(x) / (2.0 * SlopeAt(x)));
        }
        return x;
    }
};

/// @param a  not within the tolerance of 0
inline Roots SolveCubic(double a, double b, double c, double d)
{
    const Cubic cubic{b / a, c / a, d / a};
    const auto one = [](double root) { return Roots{1, {root, InvalidDouble, InvalidDouble}}; };
    const auto two = [](double first, double second) { return Roots{2, {first, second, InvalidDouble}}; };
    const double discriminant = 2.0 * cubic.b * (2.0 * cubic.b) - 12.0 * cubic.c;
    if (discriminant < 1e-9)
    {
        const double start = cubic.b * -0.25;
        const double value = cubic.ValueAt(start);
        if (value > 1e-9)
        {
            return one(cubic.RootFrom(start - 1.0));
        }
        return one(value < 1e-9 ? cubic.RootFrom(1.0 - cubic.b * 0.25) : start);
    }
    const double root = std::sqrt(discriminant);
    const double low = (root - 2.0 * cubic.b) / 6.0;
    const double high = (-(2.0 * cubic.b) - root) / 6.0;
    const double right = std::abs(high) + low + 1.0;
    const double left = high - std::abs(low) - 1.0;
    if (std::abs(cubic.ValueAt(high)) < 1e-9)
    {
        return two(high, cubic.RootFrom(right));
    }
    if (std::abs(cubic.ValueAt(low)) < 1e-9)
    {
        return two(low, cubic.RootFrom(left));
    }
    if (cubic.ValueAt(high) > 0.0 && cubic.ValueAt(low) < 0.0)
    {
        return {3, {cubic.RootFrom(left), cubic.RootFrom((low + high) * 0.5), cubic.RootFrom(right)}};
    }
    return one(cubic.RootFrom(cubic.ValueAt(high) < 1e-9 ? right : left));
}

} // namespace math::test::reference
