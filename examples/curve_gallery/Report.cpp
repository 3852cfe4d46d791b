#include "Report.h"

#include "common/Table.h"
#include "common/Text.h"

namespace example::gallery
{

void PrintReport(const std::vector<Tile>& tiles, std::ostream& out)
{
    constexpr int decimals = 6;
    Table table({"first", "second", "configuration", "code", "points"});
    for (const Tile& tile : tiles)
    {
        const Answer answer = AnswerTo(tile);
        std::string points;
        for (const math::DPOINT2& point : answer.points)
        {
            points += (points.empty() ? "(" : " (") + Short(point.x, decimals) + ", " + Short(point.y, decimals) + ")";
        }
        table.Add(
            {KindOf(tile.first), KindOf(tile.second), NameOf(tile.configuration), std::to_string(answer.code), points});
    }
    out << "Curves and where they meet: " << Counted(tiles.size(), "tile") << "\n";
    table.Print(out);
}

} // namespace example::gallery
