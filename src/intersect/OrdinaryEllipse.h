#pragma once

#include "math/Primitives.h"

#include <cmath>

namespace math::detail
{

inline bool IsOrdinaryPoint(const DPOINT2& point)
{
    return std::abs(point.x) <= 1e4 && std::abs(point.y) <= 1e4;
}

/// Whether an ellipse is of ordinary place, size and shape, so that bounds of errors hold: at most 16 times as long as
/// wide, at least half a unit wide, and within ten thousand units of the origin.
inline bool IsOrdinaryEllipse(const DPOINT2& centre, double a, double b, double rotation)
{
    return b >= 0.25 && a >= 0.25 && a <= 1e4 && b <= 1e4 && a <= 16.0 * b && b <= 16.0 * a &&
           IsOrdinaryPoint(centre) && std::abs(rotation) <= 8.0;
}

} // namespace math::detail
