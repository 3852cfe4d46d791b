#pragma once

#include "math/Primitives.h"
#include "primitives/Beeline.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Straight.h"

namespace math::detail
{

/// The unbounded line of a beeline. It always runs to the right, a vertical one upward, since only the angle modulo π
/// counts.
///
/// @return false where the beeline has no direction, so far out that its second point is the first
inline bool MakeLineOfBeeline(const DPOINT2& point, double angle, StraightLine& line)
{
    return MakeLineThrough(point, SecondPointOfBeeline(point, Fold(angle, Pi)), line);
}

} // namespace math::detail
