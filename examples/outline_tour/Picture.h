#pragma once

#include "Report.h"

#include <string>

namespace example::tour
{

/// Draws the tour as an SVG picture: on the left the outlines with the piece and the crossings, on the right the rebuilt
/// outline with the images, and lines that join positions and images.
std::string DrawPicture(const Tour& tour);

} // namespace example::tour
