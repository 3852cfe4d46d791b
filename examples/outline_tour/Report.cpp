#include "Report.h"

#include "common/Table.h"
#include "common/Text.h"

#include <algorithm>
#include <string>
#include <utility>
#include <vector>

namespace example::tour
{

namespace
{

constexpr int LengthDecimals = 4;
constexpr int PositionDecimals = 4;

std::string Coordinate(double value)
{
    return Fixed(value, LengthDecimals);
}

std::string Position(double value)
{
    return Fixed(value, PositionDecimals);
}

std::string ShortPosition(double value)
{
    return Short(value, PositionDecimals);
}

/// "(0, 3.25) (1, 4)": the joints of a map, in the middle of a long list three dots.
std::string Joints(const math::CPolyPosMap& map)
{
    constexpr std::size_t shown = 12;
    const auto& pairs = map.PosPairs();
    if (pairs.empty())
    {
        return "no joints";
    }
    std::string text;
    for (std::size_t i = 0; i < pairs.size(); ++i)
    {
        if (pairs.size() > shown && i == shown / 2)
        {
            text += "... ";
            i = pairs.size() - shown / 2;
        }
        text += "(" + ShortPosition(pairs[i].first) + ", " + ShortPosition(pairs[i].second) + ") ";
    }
    text.pop_back();
    return text;
}

std::string Joined(const std::vector<std::string>& parts)
{
    std::string text;
    for (const std::string& part : parts)
    {
        text += (text.empty() ? "" : ", ") + part;
    }
    return text;
}

std::string List(const std::vector<int>& numbers)
{
    std::vector<std::string> parts(numbers.size());
    std::transform(numbers.begin(), numbers.end(), parts.begin(), [](int number) { return std::to_string(number); });
    return Joined(parts);
}

void PrintLeftAside(const Drawing& drawing, std::ostream& out)
{
    constexpr std::size_t shown = 8;
    std::vector<std::string> kinds;
    for (const auto& [kind, count] : drawing.others)
    {
        if (kinds.size() < shown)
        {
            kinds.push_back(std::to_string(count) + " " + Quoted(kind));
        }
    }
    if (!kinds.empty())
    {
        out << "  Left aside: " << Joined(kinds) << (drawing.others.size() > shown ? " and more" : "") << ".\n";
    }
}

void PrintOutlines(const Drawing& drawing, std::ostream& out)
{
    Table table(
        {"outline", "segments", "lines", "arcs", "shape", "length", "signed area", "x", "y", "width", "height"});
    for (std::size_t i = 0; i < drawing.outlines.size(); ++i)
    {
        const OutlineFacts facts = FactsOf(drawing.outlines[i]);
        table.Add({std::to_string(i + 1), std::to_string(facts.segments), std::to_string(facts.segments - facts.arcs),
                   std::to_string(facts.arcs), facts.closed ? "closed" : "open", Coordinate(facts.length),
                   Coordinate(facts.signedArea), Coordinate(facts.box.x), Coordinate(facts.box.y),
                   Coordinate(facts.box.width), Coordinate(facts.box.height)});
    }
    out << "Outlines of " << Quoted(drawing.name) << "\n";
    table.Print(out);
    out << "  The area counts as negative counter-clockwise, as positive clockwise, and as 0 if the outline is open.\n";
    PrintLeftAside(drawing, out);
    out << "\n";
}

void PrintRebuild(const Tour& tour, std::ostream& out)
{
    const Rebuild& rebuild = tour.rebuild;
    const math::CPolyline& outline = tour.drawing.outlines.front();
    out << "Older map: outline 1 (" << Counted(outline.nodes.size(), "segment") << ") was rebuilt ("
        << Counted(rebuild.outline.nodes.size(), "segment") << ").\n";
    out << "  Zero " << (rebuild.zero == 0 ? "stayed where it was" : "was moved to " + ShortPosition(rebuild.zero))
        << ", which gives " << Counted(rebuild.moved.nodes.size(), "segment") << ";";
    out << (rebuild.vanished.empty() ? " none vanished"
                                     : " of these " + List(rebuild.vanished) + " vanished into corners")
        << ".\n  ";
    if (rebuild.knowsAll)
    {
        out << "It knows the whole outline.\n";
    }
    else
    {
        const math::PosRangeD known = rebuild.map.GetRange(1, true);
        out << "It knows " << ShortPosition(known.start) << " up to " << ShortPosition(known.end)
            << (known.IsContainZero() ? ", over the seam" : "") << "; positions outside have no image.\n";
    }
    out << "  Joints: " << Joints(rebuild.map) << "\n\n";
}

std::string RemarkOn(const Image& image, const CarriedPosition& carried, const Rebuild& rebuild)
{
    std::vector<std::string> remarks;
    if (image.raw != image.position)
    {
        remarks.push_back("raw " + ShortPosition(image.raw));
    }
    if (image.position >= SegmentCount(rebuild.outline))
    {
        remarks.push_back("the end of the last segment");
    }
    if (std::find(rebuild.corners.begin(), rebuild.corners.end(), image.position) != rebuild.corners.end())
    {
        remarks.push_back("a sharp corner");
    }
    if (image.throughSeam)
    {
        remarks.push_back("through the seam of the piece");
    }
    else if (carried.images.size() > 1)
    {
        remarks.push_back("one of " + std::to_string(carried.images.size()) + " images");
    }
    return Joined(remarks);
}

void AddRows(Table& table, std::size_t number, const CarriedPosition& carried, const Rebuild& rebuild)
{
    const std::vector<std::string> head = {std::to_string(number), Position(carried.onPiece),
                                           Position(carried.onOutline)};
    const auto add = [&](std::vector<std::string> rest) {
        rest.insert(rest.begin(), head.begin(), head.end());
        table.Add(std::move(rest));
    };
    for (const Image& image : carried.images)
    {
        add({Position(image.position), std::to_string(image.place.segment), Fixed(image.place.ratio, PositionDecimals),
             Coordinate(image.place.point.x), Coordinate(image.place.point.y), RemarkOn(image, carried, rebuild)});
    }
    for (const double position : carried.missed)
    {
        add({"-", "-", "-", "-", "-", "not in the composed map; the maps one by one give " + ShortPosition(position)});
    }
    if (carried.images.empty() && carried.missed.empty())
    {
        add({"-", "-", "-", "-", "-", "no image"});
    }
}

bool HasImageThroughSeam(const CarriedPosition& carried)
{
    return std::any_of(carried.images.begin(), carried.images.end(),
                       [](const Image& image) { return image.throughSeam; });
}

void PrintPositions(const Tour& tour, std::ostream& out)
{
    Table table({"no", "on piece", "on outline", "image", "segment", "ratio", "x", "y", "remark"});
    std::size_t number = 0;
    for (const CarriedPosition& carried : tour.carrying.positions)
    {
        AddRows(table, ++number, carried, tour.rebuild);
    }
    table.Print(out);
    if (std::any_of(tour.carrying.positions.begin(), tour.carrying.positions.end(), HasImageThroughSeam))
    {
        out << "  A piece counts as closed: where its end meets its beginning, both have the images of the jump "
               "between "
               "them.\n";
    }
}

void PrintCarrying(const Tour& tour, std::ostream& out)
{
    const Carrying& carrying = tour.carrying;
    out << "Cut: positions " << ShortPosition(carrying.cut.start) << " to " << ShortPosition(carrying.cut.end)
        << " of outline 1" << (carrying.cut.IsContainZero() ? ", over the seam" : "") << "; the piece has "
        << Counted(static_cast<std::size_t>(carrying.pieceToOutline.SrcSegmentCount()), "segment") << " and the length "
        << Coordinate(LengthOf(tour.drawing.outlines.front(), carrying.cut)) << ".\n";
    out << "  Joints of the map from the piece to the outline: " << Joints(carrying.pieceToOutline) << "\n\n";
    PrintRebuild(tour, out);
    out << "Positions of the piece, carried to the rebuilt outline by the two maps composed\n";
    out << "  Joints: " << Joints(carrying.pieceToRebuilt) << "\n";
    PrintPositions(tour, out);
    out << "\n";
}

std::string RemarkOn(const Crossing& crossing)
{
    switch (crossing.kind)
    {
    case CrossingKind::Node:
        return "a node";
    case CrossingKind::Stretch:
        return "the segment lies on the beeline, up to " + Coordinate(crossing.alongEnd);
    case CrossingKind::Point:
        break;
    }
    return "";
}

void PrintCrossings(const Tour& tour, std::ostream& out)
{
    out << "Beeline through (" << Short(tour.beeline.point.x, LengthDecimals) << ", "
        << Short(tour.beeline.point.y, LengthDecimals) << ") at " << Short(tour.beeline.degrees, LengthDecimals)
        << " degrees: " << Counted(tour.crossings.size(), "crossing") << "\n";
    if (tour.crossings.empty())
    {
        return;
    }
    Table table({"no", "along", "x", "y", "outline", "segment", "ratio", "remark"});
    for (std::size_t i = 0; i < tour.crossings.size(); ++i)
    {
        const Crossing& crossing = tour.crossings[i];
        const bool isStretch = crossing.kind == CrossingKind::Stretch;
        table.Add({CrossingName(i), Coordinate(crossing.along), Coordinate(crossing.point.x),
                   Coordinate(crossing.point.y), std::to_string(crossing.outline + 1), std::to_string(crossing.segment),
                   isStretch ? "-" : Fixed(crossing.ratio, PositionDecimals), RemarkOn(crossing)});
    }
    table.Print(out);
}

} // namespace

void PrintReport(const Tour& tour, std::ostream& out)
{
    PrintOutlines(tour.drawing, out);
    PrintCarrying(tour, out);
    PrintCrossings(tour, out);
}

} // namespace example::tour
