#pragma once

#include "common/Svg.h"

#include <optional>
#include <utility>

namespace example::tour
{

/// The page of the picture, in pixels: two views of the same scale, side by side, the right one lower, so that the lines
/// between them don't run along edges. The corners that this leaves free take the notes and the legend.
struct Layout
{
    double width = 0;
    double height = 0;
    View left;
    View right;
    math::DRECT leftFrame; ///< of the drawing on the left
    math::DPOINT2 leftCaption;
    math::DPOINT2 rightCaption;
    math::DPOINT2 title;  ///< the notes follow below
    math::DPOINT2 legend; ///< its lowest line
};

/// Lays out two views of a box, which is in units of the drawing.
Layout LayOut(const math::DRECT& box);

/// The part of an unbounded line inside a frame, in the order of its direction; nothing if it passes by.
std::optional<std::pair<math::DPOINT2, math::DPOINT2>> ClipLine(const math::DPOINT2& point,
                                                                const math::DPOINT2& direction,
                                                                const math::DRECT& frame);

} // namespace example::tour
