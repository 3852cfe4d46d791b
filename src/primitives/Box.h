#pragma once

#include "math/Primitives.h"
#include "primitives/TwoNumbers.h"

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

/// The union of boxes, one after the other, as UnionOf has it. Not the result of a function itself, it can stay in
/// registers.
///
/// An outline mostly goes on as it went, so the processor foresees which far sides a box moves, and need not wait until
/// rounding has moved those of the boxes before.
class GrowingBox
{
public:
    explicit GrowingBox(const DRECT& first)
        : m_nearSides(first.x, first.y),
          m_extents(first.width, first.height),
          m_farSides(m_nearSides + m_extents)
    {
    }

    void Unite(const DRECT& box)
    {
        const TwoNumbers nearSides(box.x, box.y);
        Unite(nearSides, nearSides + TwoNumbers(box.width, box.height));
    }

    /// With the box of a line.
    void UniteEnds(const DPOINT2& start, const DPOINT2& end)
    {
        const TwoNumbers from(start.x, start.y);
        const TwoNumbers to(end.x, end.y);
        const TwoNumbers nearSides = LesserOf(from, to);
        Unite(nearSides, nearSides + MagnitudesOf(from - to));
    }

    void UnitePoint(const TwoNumbers& point)
    {
        Unite(point, point + TwoNumbers(0.0, 0.0));
    }

    DRECT Box() const
    {
        return {m_nearSides.First(), m_nearSides.Second(), m_extents.First(), m_extents.Second()};
    }

private:
    void Unite(const TwoNumbers& nearSides, const TwoNumbers& farSides)
    {
        switch (WhereIsLess(m_farSides, farSides))
        {
        case 0:
            GrowTo(nearSides, m_farSides);
            break;
        case 1:
            GrowTo(nearSides, TwoNumbers(farSides.First(), m_farSides.Second()));
            break;
        case 2:
            GrowTo(nearSides, TwoNumbers(m_farSides.First(), farSides.Second()));
            break;
        default:
            GrowTo(nearSides, farSides);
            break;
        }
    }

    void GrowTo(const TwoNumbers& nearSides, const TwoNumbers& farSides)
    {
        m_nearSides = LesserOf(m_nearSides, nearSides);
        m_extents = farSides - m_nearSides;
        m_farSides = m_nearSides + m_extents;
    }

    TwoNumbers m_nearSides;
    TwoNumbers m_extents;
    TwoNumbers m_farSides;
};

} // namespace math::detail
