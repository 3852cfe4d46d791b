#pragma once

#include "math/CPolyline.h"

#include <cstddef>
#include <map>
#include <string>
#include <vector>

namespace example::tour
{

/// What the tour reads from a DXF file.
struct Drawing
{
    std::string name;                          ///< of the file, without its folder
    std::vector<math::CPolyline> outlines;     ///< in the order of the file; each has at least one segment
    std::map<std::string, std::size_t> others; ///< entities left aside, by kind
};

/// Reads the plane polylines of model space from an ASCII DXF file, LWPOLYLINE and POLYLINE alike.
///
/// Polylines inside blocks are not looked for. A polyline drawn on the underside of the plane is mirrored into it.
/// Vertices nearer than SamePoint to their predecessor are dropped.
///
/// @throw Problem if the file can't be read, isn't sound, or has no polylines
Drawing ReadDrawing(const std::string& path);

} // namespace example::tour
