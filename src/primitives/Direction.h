#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"

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

} // namespace math::detail
