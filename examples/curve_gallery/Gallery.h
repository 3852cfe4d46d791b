#pragma once

#include "Curves.h"

#include <string>
#include <vector>

namespace example::gallery
{

/// How two curves lie: the columns of the gallery.
enum class Configuration
{
    Apart,
    Touching,
    CrossingOnce,
    CrossingTwice,
    CrossingFourTimes,
    Overlapping,
    Inside
};

/// All of them, in the order of the columns.
const std::vector<Configuration>& Configurations();
std::string NameOf(Configuration configuration);

/// Two curves in one configuration. They lie within 400 by 210 units to either side of (0, 0).
struct Tile
{
    Configuration configuration;
    Curve first;
    Curve second;
};

inline constexpr double TileHalfWidth = 400;
inline constexpr double TileHalfHeight = 210;

/// The tiles of a pair of kinds after one another, the pairs in the order of the family's pages.
std::vector<Tile> Gallery();

/// What the library says to a tile.
struct Answer
{
    int code = 0;
    std::vector<math::DPOINT2> points;
};

Answer AnswerTo(const Tile& tile);

} // namespace example::gallery
