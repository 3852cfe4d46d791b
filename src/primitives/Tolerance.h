#pragma once

#include "math/Primitives.h"
#include "primitives/Distance.h"

#include <cmath>

/// The tests of equality. All are strict, so a difference of exactly DoubleTolerance counts as unequal, and false for
/// NaN. The last two differ near the diagonal: points 0.9e-9 apart in each coordinate coincide by coordinates only.
namespace math::detail
{

inline bool IsZero(double value)
{
    return std::abs(value) < DoubleTolerance;
}

inline bool AreEqual(double a, double b)
{
    return std::abs(a - b) < DoubleTolerance;
}

inline bool CoincideByCoordinates(const DPOINT2& a, const DPOINT2& b)
{
    return AreEqual(a.x, b.x) && AreEqual(a.y, b.y);
}

/// Tells by the square of a length whether the length is zero, without a root. The square of the tolerance as it is
/// rounded is the first double whose root is rounded to the tolerance itself.
inline bool IsSquareOfZero(double square)
{
    return square < DoubleTolerance * DoubleTolerance;
}

inline bool CoincideByDistance(const DPOINT2& a, const DPOINT2& b)
{
    return IsSquareOfZero(SquareOfDistance(a, b));
}

} // namespace math::detail
