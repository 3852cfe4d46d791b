#include "Picture.h"

#include "CurvePath.h"

#include "common/PictureStyle.h"
#include "common/Svg.h"

#include <algorithm>
#include <cmath>

namespace example::gallery
{

namespace
{

using math::DPOINT2;

constexpr double Scale = 0.17;
constexpr double TileWidth = 2 * TileHalfWidth * Scale;
constexpr double TileHeight = 2 * TileHalfHeight * Scale;
constexpr double ColumnWidth = TileWidth + 14;
constexpr double RowHeight = TileHeight + 30;
constexpr double Left = 162; ///< of the first column
constexpr double Top = 124;  ///< of the first row
constexpr double Margin = 28;
constexpr double MarkSize = 3.6;

std::string Style()
{
    return CommonStyle() + R"(.frame { fill: #f6f6f4; }
.first { fill: none; stroke: #56b4e9; stroke-width: 4.5; stroke-linecap: round; }
.second { fill: none; stroke: #d55e00; stroke-width: 1.8; stroke-linecap: round; }
.point { fill: #222222; stroke: #ffffff; stroke-width: 1.2; }
.number { font-weight: bold; text-anchor: middle; paint-order: stroke; stroke: #f6f6f4; stroke-width: 2.5px; }
.number, .code { font-size: 12px; }
.code { text-anchor: middle; fill: #444444; }
.heading { text-anchor: middle; font-weight: bold; }
.first-kind { fill: #0072b2; font-weight: bold; }
.second-kind { fill: #b34e00; font-weight: bold; }
)";
}

/// The distance from a place on the page to the nearest of the points.
double Clearance(const DPOINT2& place, const std::vector<DPOINT2>& points)
{
    double clearance = TileWidth;
    for (const DPOINT2& point : points)
    {
        clearance = std::min(clearance, std::hypot(place.x - point.x, place.y - point.y));
    }
    return clearance;
}

/// The middle of a point's number: beside the point, on the side where the curves are farthest.
DPOINT2 NumberPlace(const DPOINT2& point, const std::vector<DPOINT2>& taken)
{
    constexpr double distance = 12;
    constexpr double diagonal = 0.7071 * distance;
    DPOINT2 best;
    double greatest = -1;
    for (const DPOINT2& offset : {DPOINT2(diagonal, -diagonal), DPOINT2(-diagonal, -diagonal),
                                  DPOINT2(diagonal, diagonal), DPOINT2(-diagonal, diagonal), DPOINT2(0, -distance),
                                  DPOINT2(0, distance), DPOINT2(distance, 0), DPOINT2(-distance, 0)})
    {
        const DPOINT2 place = {point.x + offset.x, point.y + offset.y};
        const double clearance = Clearance(place, taken);
        if (clearance > greatest + math::DoubleTolerance)
        {
            greatest = clearance;
            best = place;
        }
    }
    return best;
}

void DrawPoints(SvgPage& page, const View& view, const Tile& tile, const std::vector<DPOINT2>& points)
{
    constexpr double halfDigit = 4.3;
    std::vector<DPOINT2> taken;
    for (const Curve* curve : {&tile.first, &tile.second})
    {
        for (const DPOINT2& point : PointsAlong(*curve))
        {
            taken.push_back(view(point));
        }
    }
    for (std::size_t i = 0; i < points.size(); ++i)
    {
        const DPOINT2 place = NumberPlace(view(points[i]), taken);
        page.Circle(view(points[i]), MarkSize, "point");
        page.Text({place.x, place.y + halfDigit}, std::to_string(i + 1), "number");
    }
}

void DrawTile(SvgPage& page, const DPOINT2& corner, const Tile& tile)
{
    const View view = {Scale, corner.x + TileWidth / 2, corner.y + TileHeight / 2};
    const Answer answer = AnswerTo(tile);
    page.BeginGroup("tile");
    page.Rectangle(corner, TileWidth, TileHeight, "frame");
    page.Path(CurvePath(tile.first, view), "first");
    page.Path(CurvePath(tile.second, view), "second");
    DrawPoints(page, view, tile, answer.points);
    page.Text({corner.x + TileWidth / 2, corner.y + TileHeight + 15}, std::to_string(answer.code), "code");
    page.EndGroup();
}

double ColumnLeft(std::size_t column)
{
    return Left + ColumnWidth * static_cast<double>(column);
}

void DrawHeadings(SvgPage& page)
{
    page.Text({Margin, 46}, "Every pair of curve kinds: how they lie, their common points in order, the result",
              "title");
    const std::vector<Configuration>& columns = Configurations();
    for (std::size_t i = 0; i < columns.size(); ++i)
    {
        page.Text({ColumnLeft(i) + TileWidth / 2, Top - 16}, NameOf(columns[i]), "heading");
    }
}

void DrawRowHeading(SvgPage& page, double top, const Tile& tile)
{
    page.Text({Margin, top + TileHeight / 2 - 4}, KindOf(tile.first), "first-kind");
    page.Text({Margin, top + TileHeight / 2 + 15}, "With" + KindOf(tile.second), "second-kind");
}

bool AreOfOnePair(const Tile& a, const Tile& b)
{
    return a.first.index() == b.first.index() && a.second.index() == b.second.index();
}

std::size_t RowCount(const std::vector<Tile>& tiles)
{
    std::size_t rows = tiles.empty() ? 0 : 1;
    for (std::size_t i = 1; i < tiles.size(); ++i)
    {
        rows += AreOfOnePair(tiles[i - 1], tiles[i]) ? 0 : 1;
    }
    return rows;
}

} // namespace

std::string DrawPicture(const std::vector<Tile>& tiles)
{
    const std::vector<Configuration>& columns = Configurations();
    const double width = ColumnLeft(columns.size()) - ColumnWidth + TileWidth + Margin;
    const double height = Top + RowHeight * static_cast<double>(RowCount(tiles)) + 10;
    SvgPage page(width, height, "Every pair of curve kinds", Style());
    DrawHeadings(page);
    double top = Top - RowHeight;
    const Tile* previous = nullptr;
    for (const Tile& tile : tiles)
    {
        if (previous == nullptr || !AreOfOnePair(*previous, tile))
        {
            top += RowHeight;
            DrawRowHeading(page, top, tile);
        }
        const auto column = std::find(columns.begin(), columns.end(), tile.configuration);
        DrawTile(page, {ColumnLeft(static_cast<std::size_t>(column - columns.begin())), top}, tile);
        previous = &tile;
    }
    return page.Finish();
}

} // namespace example::gallery
