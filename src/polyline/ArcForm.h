#pragma once

#include "math/Primitives.h"
#include "primitives/Direction.h"

namespace math::detail
{

/// An arc in centre form. Where the two ends and the bulge make no arc, every value stays 0, and evaluation goes on
/// with that.
struct ArcForm
{
    DPOINT2 centre;
    double radius = 0.0;
    double sweep = 0.0;

    ArcForm(const DPOINT2& start, const DPOINT2& end, double bulge)
        : m_start(start),
          m_isArc(SolveArc(start, end, bulge, &centre, &radius, nullptr, &sweep))
    {
    }

    /// The direction of the start from the centre, which not everybody asks for.
    double StartRadian() const
    {
        return m_isArc ? DirectionBetween(centre, m_start) : 0.0;
    }

private:
    DPOINT2 m_start;
    bool m_isArc;
};

} // namespace math::detail
