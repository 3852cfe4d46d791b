#include "PictureStyle.h"

namespace example
{

std::string CommonStyle()
{
    return R"(.page { fill: #ffffff; }
text { font-family: Helvetica, Arial, 'DejaVu Sans', sans-serif; font-size: 14px; fill: #222222; }
.label, .note { paint-order: stroke; stroke: #ffffff; stroke-width: 3px; stroke-linejoin: round; }
.label { font-size: 12px; text-anchor: middle; }
.title { font-size: 20px; font-weight: bold; }
.caption { font-size: 15px; font-weight: bold; }
)";
}

} // namespace example
