#pragma once

#include "Gallery.h"

#include <ostream>
#include <vector>

namespace example::gallery
{

/// A line for every tile: the pair, the configuration, the returned code and the points.
void PrintReport(const std::vector<Tile>& tiles, std::ostream& out);

} // namespace example::gallery
