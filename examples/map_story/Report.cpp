#include "Report.h"

#include "common/Table.h"
#include "common/Text.h"

namespace example::story
{

namespace
{

constexpr int PositionDecimals = 4;

std::string Position(double value)
{
    return Short(value, PositionDecimals);
}

std::string JointsText(const math::CPolyPosMap& map)
{
    std::string text;
    for (const auto& [source, destination] : map.PosPairs())
    {
        text += (text.empty() ? "(" : " (") + Position(source) + ", " + Position(destination) + ")";
    }
    return text;
}

void PrintSteps(const std::vector<Step>& steps, std::ostream& out)
{
    out << "The map from the outlines of the beginning, step by step\n";
    for (std::size_t i = 0; i < steps.size(); ++i)
    {
        const Step& step = steps[i];
        out << "\n" << i << "  " << step.name << ": " << step.event << "\n";
        out << "   " << step.call << "\n";
        out << "   segments: " << step.map.SrcSegmentCount() << " -> " << step.map.DstSegmentCount() << "\n";
        out << "   joints: " << JointsText(step.map) << "\n";
    }
}

} // namespace

std::string PlaceText(const Mark& mark, const std::vector<Step>& steps, std::size_t step)
{
    if (step < mark.since)
    {
        return "";
    }
    std::string text;
    for (const double image : ImagesOf(mark, steps[step]))
    {
        text += (text.empty() ? "" : ", ") + Position(image);
    }
    return text.empty() ? "-" : text;
}

void PrintReport(const std::vector<Step>& steps, const std::vector<Mark>& marks, std::ostream& out)
{
    PrintSteps(steps, out);
    out << "\nSeven places\n";
    std::vector<std::string> headings = {"", "place"};
    for (const Step& step : steps)
    {
        headings.push_back(step.name);
    }
    headings.push_back("what happened");
    Table table(headings);
    for (const Mark& mark : marks)
    {
        std::vector<std::string> cells = {mark.letter, Position(mark.position)};
        for (std::size_t i = 0; i < steps.size(); ++i)
        {
            cells.push_back(PlaceText(mark, steps, i));
        }
        cells.push_back(mark.remark);
        table.Add(cells);
    }
    table.Print(out);
}

} // namespace example::story
