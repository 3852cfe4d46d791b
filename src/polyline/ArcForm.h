#pragma once

#include "math/Primitives.h"

namespace math::detail
{

/// An arc in centre form. Where the two ends and the bulge make no arc, every value stays 0, and evaluation goes on
/// with that.
struct ArcForm
{
    DPOINT2 centre;
    double radius = 0.0;
    double startRadian = 0.0;
    double sweep = 0.0;

    ArcForm(const DPOINT2& start, const DPOINT2& end, double bulge)
    {
        SolveArc(start, end, bulge, &centre, &radius, &startRadian, &sweep);
    }
};

} // namespace math::detail
