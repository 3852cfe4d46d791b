#pragma once

#include "common/Svg.h"

#include "math/CPolyline.h"
#include "math/CSegment.h"

#include <string>
#include <vector>

namespace example::tour
{

/// The data of an SVG path along segments; an arc stays an arc. A new stroke begins where a segment doesn't follow on
/// the one before.
std::string PathData(const std::vector<math::CSegment>& segments, const View& view);

/// A closed stroke round an outline.
std::string PathData(const math::CPolyline& outline, const View& view);

using example::PathData;

} // namespace example::tour
