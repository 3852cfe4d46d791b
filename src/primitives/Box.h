#pragma once

#include "math/Primitives.h"

#include <algorithm>

namespace math::detail
{

/// The smallest box around two. The far sides are told by the near ones and the extents, rounding included.
inline DRECT UnionOf(const DRECT& a, const DRECT& b)
{
    const double left = std::min(a.x, b.x);
    const double bottom = std::min(a.y, b.y);
    const double right = std::max(a.x + a.width, b.x + b.width);
    const double top = std::max(a.y + a.height, b.y + b.height);
    return {left, bottom, right - left, top - bottom};
}

} // namespace math::detail
