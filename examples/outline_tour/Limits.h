#pragma once

#include <cstddef>

namespace example::tour
{

/// What the tour serves. The library compares lengths with an absolute tolerance of 1e-9; far beyond these sizes the
/// spacing of doubles comes near it and crossings would get lost.
inline constexpr double GreatestCoordinate = 1e6;
inline constexpr double GreatestRadius = 1e6;

/// An arc this close to a full circle: all but a ten-thousandth of its way round is drawn.
inline constexpr double GreatestBulge = 1e4;

/// Vertices nearer than this to their predecessor are read as one.
inline constexpr double SamePoint = 1e-6;

inline constexpr double GreatestDegrees = 1e6;
inline constexpr std::size_t GreatestSegmentCount = 20000; ///< in one drawing
inline constexpr std::size_t GreatestFileSize = 32u << 20; ///< bytes

} // namespace example::tour
