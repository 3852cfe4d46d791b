#pragma once

#include "math/CPolyPosMap.h"
#include "math/CPolyline.h"

#include <vector>

namespace example::tour
{

/// An outline made anew from another, and the map that remembers how.
///
/// Three things happened to it: its zero was moved, short segments that only break a corner have vanished, and for a
/// stretch of it nobody remembers what became of it.
struct Rebuild
{
    double zero = 0;           ///< position on the old outline at which the new one begins
    math::CPolyline moved;     ///< the old outline, begun at `zero`
    std::vector<int> vanished; ///< segments of the moved outline that are gone, ascending
    std::vector<int> corners;  ///< positions on the new outline that took their place, in the same order
    math::CPolyline outline;   ///< the new outline
    math::CPolyPosMap map;     ///< from the old outline to the new one, as far as is known
    bool knowsAll = true;
};

/// Rebuilds an outline by rule. Of the segments between two straight ones, the shortest give way to a sharp corner. A
/// closed outline begins anew in the middle of a segment, and the stretch before that place is the one not known; an
/// open one keeps its zero, and its last quarter isn't known.
Rebuild RebuildOf(const math::CPolyline& outline);

} // namespace example::tour
