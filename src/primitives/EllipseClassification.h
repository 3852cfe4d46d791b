#pragma once

#include "math/Primitives.h"

namespace math::detail
{

/// Where a point lies with regard to an ellipse.
enum class PlaceOnEllipse
{
    Inside = 0,
    OnCurve = 1,
    Outside = 2
};

/// Compares (u/a)² + (v/b)² of the point (u, v) in the ellipse's own frame with 1, so the tolerance is relative to the
/// size of the ellipse. A NaN counts as inside.
PlaceOnEllipse ClassifyPointToEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation);

} // namespace math::detail
