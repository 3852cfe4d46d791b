#pragma once

#include <cstddef>
#include <map>
#include <string>

namespace example::tour
{

/// A DXF text brought down to what the tour reads: the plane polylines of model space, checked.
struct FilteredDxf
{
    std::string text;                          ///< a DXF text with these polylines and nothing else
    std::size_t polylineCount = 0;             ///< how many polylines it holds
    std::size_t vertexCount = 0;               ///< how many vertices they hold together
    std::map<std::string, std::size_t> others; ///< entities left aside, by kind
};

/// Checks and filters the text of an ASCII DXF file.
///
/// A reader of DXF is easily led astray by a bad file: numbers that are none count as 0, lists are sized by what the
/// file announces, and a file that ends too early looks complete. So everything a polyline is made of is checked here
/// before the reader gets it: pairs of lines up to the end mark, whole polylines, numbers in range, and as many
/// vertices as announced.
///
/// @throw Problem that says what is wrong, and in which line
FilteredDxf FilterDxf(const std::string& text);

} // namespace example::tour
