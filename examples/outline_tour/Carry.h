#pragma once

#include "Outline.h"
#include "Rebuild.h"

#include "math/CPolyPosMap.h"
#include "math/CPolyline.h"
#include "math/PosRangeD.h"

#include <optional>
#include <vector>

namespace example::tour
{

/// One image of a position of the piece on the rebuilt outline.
struct Image
{
    double raw = 0;           ///< as the map gives it; may run past the segment count
    double position = 0;      ///< brought to 0 up to the segment count
    Place place;              ///< on the rebuilt outline
    bool throughSeam = false; ///< comes from the seam of the piece, see Carrying
};

/// A position of the piece, carried.
struct CarriedPosition
{
    double onPiece = 0;
    double onOutline = 0;
    math::DPOINT2 point; ///< on the outline
    std::vector<Image> images;
    std::vector<double> missed; ///< images that the two maps give one after the other, but not composed; see Carrying
};

/// A piece cut out of an outline, and its positions on the rebuilt outline.
///
/// The algebra of positions counts every polyline as closed: the last position of the piece and its first are two faces
/// of one seam, and there the map to the outline jumps from the one end of the stretch to the other. So an end of the
/// piece may have images that belong to the jump: those of the other end, or of what the older map knows in between.
///
/// And where the piece and the older map both pass over the seam of the outline, a composition can miss what lies before
/// the place where the older map begins.
struct Carrying
{
    math::PosRangeD cut;
    math::CPolyPosMap pieceToOutline;
    math::CPolyPosMap pieceToRebuilt; ///< composed of pieceToOutline and the map of the rebuild
    std::vector<CarriedPosition> positions;
};

/// The cut for this outline: the wanted one, or one that fits any outline.
/// @throw Problem if the wanted cut isn't a stretch of the outline
math::PosRangeD ChooseCut(const std::optional<math::PosRangeD>& wanted, const math::CPolyline& outline);

/// Cuts the piece and carries evenly spaced positions of it to the rebuilt outline.
Carrying CarryPositions(const math::CPolyline& outline, const math::PosRangeD& cut, const Rebuild& rebuild);

} // namespace example::tour
