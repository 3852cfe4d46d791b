#pragma once

#include "primitives/RequireChecks.h"

#include "math/Primitives.h"

#include <gp_Vec2d.hxx>

namespace math::detail
{

inline gp_Vec2d VectorBetween(const DPOINT2& from, const DPOINT2& to)
{
    return {to.x - from.x, to.y - from.y};
}

} // namespace math::detail
