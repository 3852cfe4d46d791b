#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

/// The direction in [0, 2π) from one point to another; 0 between equal points.
///
/// A turn is added whatever the sign and taken off again: a direction above 0 is rounded by it too.
inline double DirectionBetween(const DPOINT2& from, const DPOINT2& to)
{
    const double direction = std::atan2(to.y - from.y, to.x - from.x) + TwoPi;
    return direction >= TwoPi ? direction - TwoPi : direction;
}

/// The angle in [-π, π] of a direction from the x axis, with the toolkit's arithmetic: by the inverse function that is not
/// near its steep end.
inline double AngleOf(const UnitVector& direction)
{
    constexpr double rootOfHalf = 0.70710678118655; // The toolkit's, a little above the root.
    if (-rootOfHalf < direction.x && direction.x < rootOfHalf)
    {
        return direction.y > 0.0 ? std::acos(direction.x) : -std::acos(direction.x);
    }
    if (direction.x > 0.0)
    {
        return std::asin(direction.y);
    }
    return direction.y > 0.0 ? Pi - std::asin(direction.y) : -Pi - std::asin(direction.y);
}

/// D2GetNormalAngle of a vector whose direction is known.
inline double NormalAngle(const DPOINT2& vector, const UnitVector& direction)
{
    const bool hasNone = (IsZero(vector.x) && IsZero(vector.y)) || std::isinf(vector.x) || std::isinf(vector.y);
    return hasNone ? InvalidDouble : Fold(AngleOf(direction), TwoPi);
}

} // namespace math::detail
