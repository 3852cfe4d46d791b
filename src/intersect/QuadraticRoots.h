#pragma once

#include "math/Primitives.h"
#include "primitives/Tolerance.h"
#include "primitives/TwoNumbers.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace math::detail
{

/// The greatest absolute value, NaN if there is a NaN among the values.
inline double GreatestMagnitude(double a, double b, double c)
{
    const double sum = std::abs(a) + std::abs(b) + std::abs(c);
    return std::isnan(sum) ? sum : std::max({std::abs(a), std::abs(b), std::abs(c)});
}

/// The roots of a quadratic equation, the one of larger magnitude first; NaN for one that does not exist.
struct QuadraticRoots
{
    int count = 0;
    double first = InvalidDouble;
    double second = InvalidDouble;
};

inline QuadraticRoots RootsOfLinear(double b, double c)
{
    if (IsZero(b))
    {
        return {};
    }
    return {1, (c / b) * -1.0, InvalidDouble};
}

inline QuadraticRoots RootsOfQuadratic(double a, double b, double c)
{
    const double scale = GreatestMagnitude(a, b, c);
    if (scale == 0.0)
    {
        return {};
    }
    a /= scale;
    std::tie(b, c) = (TwoNumbers(b, c) / scale).Values();
    if (IsZero(a))
    {
        return RootsOfLinear(b, c);
    }
    const double sign = std::copysign(1.0, a);
    c *= sign;
    b *= sign;
    a *= sign;

    const auto [depth, productOfRoots] = (TwoNumbers(b * b, c) / TwoNumbers(4.0 * a, a)).Values();
    // The value at the vertex decides; a vertex short of the axis by less than the tolerance touches it.
    const double vertexValue = c - depth;
    if (vertexValue > DoubleTolerance)
    {
        return {};
    }
    const double fallToVertex = std::min(vertexValue, 0.0) * -1.0;
    const auto [middle, squareOfHalfDistance] = (TwoNumbers(b * -1.0, fallToVertex) / TwoNumbers(2.0 * a, a)).Values();
    const double halfDistance = std::sqrt(squareOfHalfDistance);
    if (IsZero(2.0 * halfDistance))
    {
        return {1, middle, middle};
    }
    // The root of larger magnitude loses no digits; the other one follows from the product of the roots.
    const double larger = std::copysign(halfDistance, middle) + middle;
    return {2, larger, productOfRoots / larger};
}

} // namespace math::detail
