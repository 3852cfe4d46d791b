#pragma once

#include "polyline/CubicForm.h"

namespace math::detail
{

/// The length of a cubic by the left-hand rectangle rule over its speed, in a thousand steps.
double LengthOfCubic(const CubicForm& curve);

} // namespace math::detail
