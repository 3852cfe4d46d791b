#pragma once

#include "math/CPolyline.h"

#include <array>
#include <cstddef>

namespace math::detail
{

/// Chords are measured in blocks: compilers put the square roots into vectors.
inline constexpr std::size_t ChordBlock = 8;

using BlockOfChords = std::array<double, ChordBlock>;

/// The distances from each of ChordBlock nodes to the next.
BlockOfChords MeasureChords(const CPolyline::NODE* nodes);

} // namespace math::detail
