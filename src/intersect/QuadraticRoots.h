#pragma once

#include "math/Primitives.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

/// The greatest absolute value, NaN if there is a NaN among the values.
inline double GreatestMagnitude(double a, double b, double c)
{
    double greatest = std::abs(a);
    for (const double value : {std::abs(b), std::abs(c)})
    {
        // Written so that a NaN comes in and stays.
        if (!(value <= greatest) && !std::isnan(greatest))
        {
            greatest = value;
        }
    }
    return greatest;
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
    b /= scale;
    c /= scale;
    if (IsZero(a))
    {
        return RootsOfLinear(b, c);
    }
    const double sign = a > 0.0 ? 1.0 : -1.0;
    c *= sign;
    b *= sign;
    a *= sign;

    // The value at the vertex decides; a vertex short of the axis by less than the tolerance touches it.
    double vertexValue = c - b * b / (4.0 * a);
    if (vertexValue > DoubleTolerance)
    {
        return {};
    }
    if (vertexValue > 0.0)
    {
        vertexValue = 0.0;
    }
    const double middle = (b * -1.0) / (2.0 * a);
    const double halfDistance = std::sqrt((vertexValue * -1.0) / a);
    if (IsZero(2.0 * halfDistance))
    {
        return {1, middle, middle};
    }
    // The root of larger magnitude loses no digits; the other one follows from the product of the roots.
    const double larger = std::copysign(halfDistance, middle) + middle;
    return {2, larger, (c / a) / larger};
}

} // namespace math::detail
