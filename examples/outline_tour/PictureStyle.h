#pragma once

#include "common/Svg.h"

#include <string>

namespace example::tour
{

/// The style sheet of the picture. The colours are those of Okabe and Ito, which colour-blind people tell apart; marks
/// differ in shape as well.
std::string PictureStyle();

/// Explains marks and lines; `corner` is the beginning of the lowest line.
void DrawPictureLegend(SvgPage& page, const math::DPOINT2& corner);

} // namespace example::tour
