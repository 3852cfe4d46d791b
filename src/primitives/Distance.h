#pragma once

#include "math/Primitives.h"

#include <cmath>

namespace math::detail
{

inline double SquareOfDistance(const DPOINT2& a, const DPOINT2& b)
{
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    return dx * dx + dy * dy;
}

/// As D2GetDistance, for places that a call would slow down.
inline double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::sqrt(SquareOfDistance(a, b));
}

} // namespace math::detail
