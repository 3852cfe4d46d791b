#include "PictureStyle.h"

#include "common/PictureStyle.h"

#include <functional>
#include <utility>
#include <vector>

namespace example::tour
{

namespace
{

using math::DPOINT2;

/// Draws a sample of a line, left of its explanation.
void SampleLine(SvgPage& page, const DPOINT2& at, const std::string& classes)
{
    page.Line({at.x - 14, at.y}, {at.x + 14, at.y}, classes);
}

using Sample = std::function<void(SvgPage&, const DPOINT2&)>;

struct Entry
{
    Sample draw;
    std::string text;
};

Sample Line(const std::string& classes)
{
    return [classes](SvgPage& page, const DPOINT2& at) { SampleLine(page, at, classes); };
}

std::vector<Entry> LeftColumn()
{
    return {
        {Line("sample outline"), "outline"},
        {Line("sample piece"), "the piece cut out of it"},
        {[](SvgPage& page, const DPOINT2& at) { page.Circle(at, 4.5, "sample position"); }, "position of the piece"},
        {[](SvgPage& page, const DPOINT2& at) { page.Circle(at, 4.5, "sample position lost"); },
         "position without an image"},
        {[](SvgPage& page, const DPOINT2& at) { page.Square(at, 4.5, "sample image"); },
         "image on the rebuilt outline"},
        {[](SvgPage& page, const DPOINT2& at) { page.Circle(at, 4.5, "sample zero"); }, "where the numbering begins"}};
}

std::vector<Entry> RightColumn()
{
    return {{Line("sample join"), "position to its image"},
            {Line("sample join seam"), "to an image through the piece's seam"},
            {Line("sample beeline"), "beeline"},
            {[](SvgPage& page, const DPOINT2& at) { page.Diamond(at, 5.5, "sample crossing"); },
             "crossing with the beeline"},
            {Line("sample vanished"), "vanished segment"},
            {[](SvgPage& page, const DPOINT2& at) {
                 SampleLine(page, at, "sample outline");
                 SampleLine(page, at, "sample uncovered");
             },
             "stretch unknown to the older map"}};
}

void DrawColumn(SvgPage& page, const std::vector<Entry>& entries, DPOINT2 at)
{
    constexpr double lineHeight = 22;
    at.y -= lineHeight * static_cast<double>(entries.size() - 1);
    for (const Entry& entry : entries)
    {
        entry.draw(page, {at.x + 14, at.y - 5});
        page.Text({at.x + 40, at.y}, entry.text, "note");
        at.y += lineHeight;
    }
}

} // namespace

std::string PictureStyle()
{
    return CommonStyle() + R"(.surface { fill: #f3f3f1; fill-rule: evenodd; }
.outline { fill: none; stroke: #444444; stroke-width: 1.6; stroke-linejoin: round; }
.piece { fill: none; stroke: #0072b2; stroke-width: 4.5; stroke-linejoin: round; stroke-linecap: round; }
.join { stroke: #cc79a7; stroke-width: 1.3; }
.seam { stroke-dasharray: 2 5; }
.vanished { fill: none; stroke: #9a9a9a; stroke-width: 1.6; stroke-dasharray: 4 3; }
.uncovered { fill: none; stroke: #ffffff; stroke-width: 3; stroke-dasharray: 5 5; }
.beeline { stroke: #d55e00; stroke-width: 1.6; stroke-dasharray: 11 3 2 3; }
.tip { fill: #d55e00; }
.node { fill: #444444; }
.zero { fill: #ffffff; stroke: #000000; stroke-width: 2; }
.position { fill: #0072b2; stroke: #ffffff; stroke-width: 1.2; }
.lost { fill: #ffffff; stroke: #0072b2; stroke-width: 2; }
.image { fill: #009e73; stroke: #ffffff; stroke-width: 1.2; }
.crossing { fill: #d55e00; stroke: #ffffff; stroke-width: 1.2; }
.stretch { stroke: #d55e00; stroke-width: 5; stroke-linecap: round; }
.zero-label { fill: #000000; font-weight: bold; }
.position-label, .lost-label { fill: #0072b2; font-weight: bold; }
.image-label { fill: #00664b; font-weight: bold; }
.crossing-label { fill: #b34e00; font-weight: bold; }
.node-label { fill: #777777; }
)";
}

void DrawPictureLegend(SvgPage& page, const DPOINT2& corner)
{
    DrawColumn(page, LeftColumn(), corner);
    DrawColumn(page, RightColumn(), {corner.x + 264, corner.y});
}

} // namespace example::tour
