#pragma once

#include "intersect/KernelRecords.h"
#include "math/Primitives.h"
#include "primitives/Beeline.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"

namespace math::detail
{

/// The unbounded line of a beeline. It always runs to the right, a vertical one upward, since only the angle modulo π
/// counts.
inline gp_Lin2d LineOfBeeline(const DPOINT2& point, double angle)
{
    return LineThrough(point, SecondPointOfBeeline(point, Fold(angle, Pi)));
}

} // namespace math::detail
