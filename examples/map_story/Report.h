#pragma once

#include "Story.h"

#include <ostream>
#include <string>
#include <vector>

namespace example::story
{

/// A place after a step in words: "3.25", "0, 2" at a jump, "-" if the map does not reach it, blank if its outline has
/// not come in yet.
std::string PlaceText(const Mark& mark, const std::vector<Step>& steps, std::size_t step);

/// The joints of every map, and a table of what became of the marks.
void PrintReport(const std::vector<Step>& steps, const std::vector<Mark>& marks, std::ostream& out);

} // namespace example::story
