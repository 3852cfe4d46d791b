#pragma once

#include "Curves.h"

#include "common/Svg.h"

#include <string>
#include <vector>

namespace example::gallery
{

// Of a beeline there is only what lies in the box of a tile.

/// The data of an SVG path along a curve.
std::string CurvePath(const Curve& curve, const View& view);

/// Points along a curve, close together.
std::vector<math::DPOINT2> PointsAlong(const Curve& curve);

} // namespace example::gallery
