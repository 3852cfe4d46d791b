#pragma once

#include "Story.h"

#include <string>
#include <vector>

namespace example::story
{

/// The picture: after each step the map as ribbons between two bars, and the table of the marks.
std::string DrawPicture(const std::vector<Step>& steps, const std::vector<Mark>& marks);

} // namespace example::story
