#pragma once

#include "Gallery.h"

#include <string>
#include <vector>

namespace example::gallery
{

/// The picture: a row for every pair of kinds, a column for every configuration.
std::string DrawPicture(const std::vector<Tile>& tiles);

} // namespace example::gallery
