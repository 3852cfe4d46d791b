#pragma once

#include "math/Primitives.h"
#include "primitives/OwnFrame.h"

#include <utility>

namespace math::detail
{

/// The two points of an ellipse whose tangent has a direction in [0, π), both in the ellipse's own frame.
std::pair<DPOINT2, DPOINT2> OwnTangentPoints(double a, double b, double direction);

/// The direction in [0, π) of the tangent in a point of the ellipse that lies in `frame`, which is turned by `rotation`;
/// NaN if the point is not on the ellipse.
double TangentAngle(const OwnFrame& frame, double a, double b, double rotation, const DPOINT2& point);

} // namespace math::detail
