#pragma once

#include "math/Primitives.h"

#include <algorithm>
#include <cmath>

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

/// The box of a line.
inline DRECT BoxOfEnds(const DPOINT2& start, const DPOINT2& end)
{
    return {std::min(start.x, end.x), std::min(start.y, end.y), std::abs(start.x - end.x), std::abs(start.y - end.y)};
}

/// The union of boxes, one after the other. Not the result of a function itself, it can stay in registers.
class GrowingBox
{
public:
    explicit GrowingBox(const DRECT& first) : m_box(first)
    {
    }

    void Unite(const DRECT& box)
    {
        m_box = UnionOf(m_box, box);
    }

    DRECT Box() const
    {
        return m_box;
    }

private:
    DRECT m_box;
};

} // namespace math::detail
