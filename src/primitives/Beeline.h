#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Straight.h"
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

/// The unbounded line of a beeline. It always runs to the right, a vertical one upward, since only the angle modulo π
/// counts.
///
/// @return false where the beeline has no direction, so far out that its second point is the first
inline bool MakeLineOfBeeline(const DPOINT2& point, double angle, StraightLine& line)
{
    return MakeLineThrough(point, SecondPointOfBeeline(point, Fold(angle, Pi)), line);
}

} // namespace math::detail
