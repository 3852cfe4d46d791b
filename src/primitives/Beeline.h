#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

/// A second point of the beeline through `origin`: one up, one down, or one to the right.
///
/// Callers take the direction as the difference of the two points. It carries their rounding on purpose: far from the
/// origin it is not (1, tan radian).
inline DPOINT2 SecondPointOfBeeline(const DPOINT2& origin, double radian)
{
    if (AreEqual(radian, HalfPi))
    {
        return {origin.x, origin.y + 1.0};
    }
    if (AreEqual(radian, ThreeHalvesPi))
    {
        return {origin.x, origin.y - 1.0};
    }
    return {origin.x + 1.0, origin.y + std::tan(radian)};
}

} // namespace math::detail
