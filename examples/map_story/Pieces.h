#pragma once

#include "math/CPolyPosMap.h"

#include <vector>

namespace example::story
{

enum class PieceKind
{
    Straight,
    Flat, ///< a stretch falls on one place
    Jump  ///< one place becomes a stretch
};

/// A linear piece of a map that passes over no seam, its positions within 0 up to the segment counts.
struct Piece
{
    PieceKind kind = PieceKind::Straight;
    double sourceFrom = 0;
    double sourceTo = 0;
    double destinationFrom = 0;
    double destinationTo = 0;
};

/// The linear pieces of a map, cut at the seams.
std::vector<Piece> PiecesOf(const math::CPolyPosMap& map);

} // namespace example::story
