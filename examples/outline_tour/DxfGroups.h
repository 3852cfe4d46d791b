#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace example::tour
{

/// One pair of lines of a DXF file: what a value means, and the value.
struct DxfGroup
{
    int code = 0;
    std::string_view value; ///< without blanks at the ends
    std::size_t line = 0;   ///< of the code, counted from 1
};

/// Codes of the groups that the tour looks at.
enum DxfCode : int
{
    DxfStart = 0, ///< begins an entity, a section or another structure
    DxfName = 2,
    DxfLayer = 8,
    DxfX = 10,
    DxfY = 20,
    DxfBulge = 42,
    DxfPaperSpace = 67,
    DxfFlags = 70,
    DxfVertexCount = 90,
    DxfExtrusionX = 210,
    DxfExtrusionY = 220,
    DxfExtrusionZ = 230,
    DxfComment = 999
};

/// Splits the text of an ASCII DXF file up to its end mark, which isn't part of the result.
/// @return groups that point into `text`
/// @throw Problem if the text is no DXF, or ends before its end mark
std::vector<DxfGroup> SplitIntoGroups(std::string_view text);

} // namespace example::tour
