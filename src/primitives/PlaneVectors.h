#pragma once

#include "math/Primitives.h"

#include <cmath>

/// Points as vectors of the plane.
namespace math::detail
{

inline DPOINT2 Difference(const DPOINT2& to, const DPOINT2& from)
{
    return {to.x - from.x, to.y - from.y};
}

inline double Cross(const DPOINT2& a, const DPOINT2& b)
{
    return a.x * b.y - a.y * b.x;
}

inline double Dot(const DPOINT2& a, const DPOINT2& b)
{
    return a.x * b.x + a.y * b.y;
}

/// A bound of the length without a root: never below it, and at most √2 times as much.
inline double Reach(const DPOINT2& vector)
{
    return std::abs(vector.x) + std::abs(vector.y);
}

} // namespace math::detail
