#include "Picture.h"

#include "Pieces.h"
#include "Report.h"

#include "common/PictureStyle.h"
#include "common/Svg.h"
#include "common/Text.h"

#include <map>

namespace example::story
{

namespace
{

using math::DPOINT2;

constexpr double PageWidth = 1120;
constexpr double PageHeight = 1282;
constexpr double Margin = 40;
constexpr double SegmentWidth = 54;
constexpr double BarHeight = 14;
constexpr double RibbonHeight = 84;
constexpr double PanelWidth = 554; ///< from one panel to the next
constexpr double PanelHeight = 246;
constexpr double PanelsTop = 96;
constexpr double MarkSize = 4.5;

std::string Style()
{
    return CommonStyle() + R"(.event { font-size: 14px; }
.call { font-family: 'DejaVu Sans Mono', Menlo, Consolas, monospace; font-size: 12px; fill: #555555; }
.segment { stroke: #ffffff; stroke-width: 1.5; }
.first { fill: #9cc9e3; }
.second { fill: #f0c274; }
.now { fill: #c9c9c5; }
.ribbon { stroke-width: 0.8; stroke-linejoin: round; fill-opacity: 0.42; }
.ribbon.first { fill: #56b4e9; stroke: #0072b2; }
.ribbon.second { fill: #e69f00; stroke: #a66f00; }
.ribbon.flat { fill: #8c8c8c; stroke: #666666; }
.ribbon.jump { fill: #009e73; stroke: #00664b; }
.thread { stroke: #222222; stroke-width: 1.2; }
.place { fill: #222222; stroke: #ffffff; stroke-width: 1.2; }
.lost { fill: #ffffff; stroke: #222222; stroke-width: 1.8; }
.image { fill: #d55e00; stroke: #ffffff; stroke-width: 1.2; }
.number { fill: #666666; stroke: none; }
.letter { font-weight: bold; font-size: 13px; }
.image-letter { fill: #b34e00; }
.cell { text-anchor: middle; }
.head { font-weight: bold; }
.rule { stroke: #bbbbbb; stroke-width: 1; }
)";
}

/// Where a panel's bars are. Positions are counted from the left edge.
struct Panel
{
    DPOINT2 corner;

    double X(double position) const
    {
        return corner.x + position * SegmentWidth;
    }

    double UpperBar() const
    {
        return corner.y + 64; ///< upper edge
    }

    double RibbonTop() const
    {
        return UpperBar() + BarHeight;
    }

    double LowerBar() const
    {
        return RibbonTop() + RibbonHeight;
    }

    DPOINT2 OnUpperBar(double position) const
    {
        return {X(position), UpperBar() + BarHeight / 2};
    }

    DPOINT2 OnLowerBar(double position) const
    {
        return {X(position), LowerBar() + BarHeight / 2};
    }
};

std::string OutlineOf(double position)
{
    return position < FirstCount ? "first" : "second";
}

void DrawBars(SvgPage& page, const Panel& panel, const math::CPolyPosMap& map)
{
    const auto number = [&](int i, double y) { page.Text({panel.X(i), y}, std::to_string(i), "label number"); };
    for (int i = 0; i < map.SrcSegmentCount(); ++i)
    {
        page.Rectangle({panel.X(i), panel.UpperBar()}, SegmentWidth, BarHeight, "segment " + OutlineOf(i));
    }
    for (int i = 0; i < map.DstSegmentCount(); ++i)
    {
        page.Rectangle({panel.X(i), panel.LowerBar()}, SegmentWidth, BarHeight, "segment now");
    }
    for (int i = 0; i <= map.SrcSegmentCount(); ++i)
    {
        number(i, panel.UpperBar() - 6);
    }
    for (int i = 0; i <= map.DstSegmentCount(); ++i)
    {
        number(i, panel.LowerBar() + BarHeight + 14);
    }
}

std::string RibbonClass(const Piece& piece)
{
    switch (piece.kind)
    {
    case PieceKind::Flat:
        return "ribbon flat";
    case PieceKind::Jump:
        return "ribbon jump";
    default:
        return "ribbon " + OutlineOf((piece.sourceFrom + piece.sourceTo) / 2);
    }
}

void DrawRibbons(SvgPage& page, const Panel& panel, const math::CPolyPosMap& map)
{
    for (const Piece& piece : PiecesOf(map))
    {
        const std::vector<DPOINT2> corners = {{panel.X(piece.sourceFrom), panel.RibbonTop()},
                                              {panel.X(piece.sourceTo), panel.RibbonTop()},
                                              {panel.X(piece.destinationTo), panel.LowerBar()},
                                              {panel.X(piece.destinationFrom), panel.LowerBar()}};
        page.Path(PathData(corners, true), RibbonClass(piece));
    }
}

/// Draws the marks that a step knows, their images, and a thread from each to each of its images.
void DrawMarks(SvgPage& page, const Panel& panel, const std::vector<Mark>& known, const Step& step)
{
    std::map<double, std::string> letters; // of the images at one place
    for (const Mark& mark : known)
    {
        for (const double image : ImagesOf(mark, step))
        {
            page.Line({panel.X(mark.position), panel.RibbonTop()}, {panel.X(image), panel.LowerBar()}, "thread");
            letters[image] += mark.letter;
        }
    }
    for (const Mark& mark : known)
    {
        const bool lost = ImagesOf(mark, step).empty();
        page.Circle(panel.OnUpperBar(mark.position), MarkSize, lost ? "lost" : "place");
        page.Text({panel.X(mark.position), panel.UpperBar() - 6}, mark.letter, "label letter");
    }
    for (const auto& [position, text] : letters)
    {
        page.Square(panel.OnLowerBar(position), MarkSize, "image");
        page.Text({panel.X(position), panel.LowerBar() + BarHeight + 31}, text, "label letter image-letter");
    }
}

void DrawPanel(SvgPage& page, const Panel& panel, const std::vector<Mark>& marks, const Step& step, std::size_t number)
{
    std::vector<Mark> known;
    for (const Mark& mark : marks)
    {
        if (mark.since <= number)
        {
            known.push_back(mark);
        }
    }
    page.BeginGroup("panel");
    page.Text(panel.corner, std::to_string(number) + "  " + step.name + ": " + step.event, "caption");
    page.Text({panel.corner.x, panel.corner.y + 20}, step.call, "call");
    DrawBars(page, panel, step.map);
    DrawRibbons(page, panel, step.map);
    DrawMarks(page, panel, known, step);
    page.EndGroup();
}

void DrawLegend(SvgPage& page, const DPOINT2& corner)
{
    DPOINT2 at = {corner.x, corner.y + 44};
    const auto explain = [&](const std::string& text) {
        page.Text({at.x + 44, at.y + 5}, text, "note");
        at.y += 24;
    };
    const auto ribbon = [&](const std::string& kind, double upper, double lower, const std::string& text) {
        const double middle = at.x + 14;
        const double top = at.y - 8;
        page.Path(
            PathData(
                {{middle - upper, top}, {middle + upper, top}, {middle + lower, top + 16}, {middle - lower, top + 16}},
                true),
            "sample ribbon " + kind);
        explain(text);
    };
    page.Text(corner, "Upper bar: positions at the beginning; lower bar: now", "caption");
    ribbon("first", 14, 14, "a stretch of the outline and where it went");
    ribbon("second", 14, 14, "the same for the other outline");
    ribbon("flat", 14, 0, "flat: a stretch falls on one place");
    ribbon("jump", 0, 14, "jump: what was put in at one place");
    page.Circle({at.x + 14, at.y}, MarkSize, "sample place");
    explain("a place that is followed");
    page.Circle({at.x + 14, at.y}, MarkSize, "sample lost");
    explain("a place that has no image");
    page.Square({at.x + 14, at.y}, MarkSize, "sample image");
    explain("its image; two at a jump");
}

void DrawTableRow(SvgPage& page, double y, const std::vector<std::string>& cells, const std::string& classes)
{
    constexpr double first = Margin + 12;
    constexpr double column = 83;
    for (std::size_t i = 0; i + 1 < cells.size(); ++i)
    {
        page.Text({first + column * static_cast<double>(i), y}, cells[i], "cell" + classes);
    }
    page.Text({first + column * static_cast<double>(cells.size() - 1) - 26, y}, cells.back(), "remark" + classes);
}

void DrawTable(SvgPage& page, const std::vector<Step>& steps, const std::vector<Mark>& marks, double top)
{
    constexpr double lineHeight = 23;
    std::vector<std::string> cells = {"", "place"};
    for (const Step& step : steps)
    {
        cells.push_back(step.name);
    }
    cells.push_back("what happened");
    page.BeginGroup("table");
    DrawTableRow(page, top, cells, " head");
    page.Line({Margin, top + 8}, {PageWidth - Margin, top + 8}, "rule");
    for (const Mark& mark : marks)
    {
        top += lineHeight;
        cells = {mark.letter, Short(mark.position, 2)};
        for (std::size_t i = 0; i < steps.size(); ++i)
        {
            cells.push_back(PlaceText(mark, steps, i));
        }
        cells.push_back(mark.remark);
        DrawTableRow(page, top + 4, cells, "");
    }
    page.EndGroup();
}

} // namespace

std::string DrawPicture(const std::vector<Step>& steps, const std::vector<Mark>& marks)
{
    constexpr std::size_t columns = 2;
    SvgPage page(PageWidth, PageHeight, "The story of a position map", Style());
    page.Text({Margin, 46}, "The story of a position map: where seven places of an outline go", "title");
    const auto cell = [&](std::size_t i) {
        return DPOINT2(Margin + PanelWidth * static_cast<double>(i % columns),
                       PanelsTop + PanelHeight * static_cast<double>(i / columns));
    };
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        DrawPanel(page, {cell(i)}, marks, steps[i], i);
    }
    DrawLegend(page, cell(steps.size()));
    DrawTable(page, steps, marks, cell(steps.size() + columns).y);
    return page.Finish();
}

} // namespace example::story
