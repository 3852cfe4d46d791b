#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

namespace math::detail
{

/// Tells whether a point of an ellipse lies on an arc of it, by its direction alone. Both ends of the arc are in,
/// within DoubleTolerance of angle.
inline bool IsPointInEllipseSector(const DPOINT2& point, const DPOINT2& centre, double rotation, double startRadian,
                                   double extent, bool ccw)
{
    const double direction = D2GetNormalAngle(point.x - centre.x, point.y - centre.y);
    const double sign = ccw ? 1.0 : -1.0;
    const double fromStart = Fold((direction - (rotation + startRadian)) * sign, TwoPi);
    return fromStart <= extent + DoubleTolerance || AreEqual(fromStart, TwoPi);
}

} // namespace math::detail
