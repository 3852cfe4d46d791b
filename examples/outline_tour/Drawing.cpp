#include "Drawing.h"

#include "DxfFilter.h"
#include "Limits.h"
#include "Outline.h"

#include "common/Problem.h"
#include "common/Text.h"

#include <dl_creationadapter.h>
#include <dl_dxf.h>

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <sstream>

namespace example::tour
{

namespace
{

/// A vertex of a DXF polyline: here the bulge belongs to the segment that leaves.
struct Vertex
{
    math::DPOINT2 point;
    double bulge = 0;
};

struct VertexList
{
    bool closed = false;
    std::vector<Vertex> vertices;
};

/// Gathers the polylines that dxflib hands out.
class PolylineCollector : public DL_CreationAdapter
{
public:
    std::vector<VertexList> polylines;
    std::size_t vertexCount = 0;

    void addPolyline(const DL_PolylineData& data) override
    {
        constexpr int closedFlag = 1;
        polylines.push_back({(data.flags & closedFlag) != 0, {}});
        m_side = getExtrusion()->getDirection()[2] < 0 ? -1.0 : 1.0;
    }

    void addVertex(const DL_VertexData& data) override
    {
        if (polylines.empty())
        {
            return;
        }
        polylines.back().vertices.push_back({{m_side * data.x, data.y}, m_side * data.bulge});
        ++vertexCount;
    }

private:
    double m_side = 1; ///< -1 for a polyline that is seen from below
};

void RefuseWhatIsNoFile(const std::string& path)
{
    std::error_code error;
    const std::filesystem::file_status status = std::filesystem::status(path, error);
    if (!std::filesystem::exists(status))
    {
        throw Problem(error ? error.message() : "no such file");
    }
    if (std::filesystem::is_directory(status))
    {
        throw Problem("this is a directory");
    }
    if (!std::filesystem::is_regular_file(status))
    {
        throw Problem("this is no regular file");
    }
}

std::string ReadFile(const std::string& path)
{
    RefuseWhatIsNoFile(path);
    std::error_code error;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    std::ifstream file(path, std::ios::binary);
    if (error || !file)
    {
        throw Problem("the file can't be opened");
    }
    if (size > GreatestFileSize)
    {
        throw Problem("the file has more than the " + std::to_string(GreatestFileSize >> 20) + " MiB served here");
    }
    std::string text(static_cast<std::size_t>(size), '\0');
    file.read(text.data(), static_cast<std::streamsize>(text.size()));
    if (file.gcount() != static_cast<std::streamsize>(text.size()))
    {
        throw Problem("the file can't be read");
    }
    return text;
}

bool IsSamePoint(const math::DPOINT2& a, const math::DPOINT2& b)
{
    return math::D2GetDistance(a, b) < SamePoint;
}

/// Drops each vertex that repeats the one before it; the bulge between the two belongs to no segment.
std::vector<Vertex> WithoutRepetitions(const VertexList& list)
{
    std::vector<Vertex> kept;
    for (const Vertex& vertex : list.vertices)
    {
        if (!kept.empty() && IsSamePoint(kept.back().point, vertex.point))
        {
            kept.back().bulge = vertex.bulge;
        }
        else
        {
            kept.push_back(vertex);
        }
    }
    while (list.closed && kept.size() > 1 && IsSamePoint(kept.back().point, kept.front().point))
    {
        kept.pop_back();
    }
    return kept;
}

/// A node holds the bulge of the segment that arrives, a DXF vertex that of the segment that leaves.
math::CPolyline ToOutline(const VertexList& list)
{
    const std::vector<Vertex> vertices = WithoutRepetitions(list);
    math::CPolyline outline;
    if (vertices.size() < 2)
    {
        return outline;
    }
    outline.start = vertices.front().point;
    for (std::size_t i = 1; i < vertices.size(); ++i)
    {
        outline.AddNodes(vertices[i].point, vertices[i - 1].bulge);
    }
    if (list.closed)
    {
        outline.AddNodes(outline.start, vertices.back().bulge);
    }
    return outline;
}

/// Arcs of a radius far beyond the drawing have lost the digits that a crossing with them would need.
void RefuseWideArcs(const math::CPolyline& outline, std::size_t number)
{
    for (int i = 0; i < SegmentCount(outline); ++i)
    {
        const std::optional<Arc> arc = ArcOf(SegmentAt(outline, i));
        if (arc && !(arc->radius <= GreatestRadius))
        {
            throw Problem("segment " + std::to_string(i) + " of polyline " + std::to_string(number) +
                          " is an arc of radius " + Short(arc->radius, 0) + ", beyond the " + Short(GreatestRadius, 0) +
                          " served here");
        }
    }
}

std::vector<VertexList> ReadPolylines(const FilteredDxf& dxf)
{
    PolylineCollector collector;
    std::istringstream stream(dxf.text);
    DL_Dxf reader;
    if (!reader.in(stream, &collector) || collector.polylines.size() != dxf.polylineCount ||
        collector.vertexCount != dxf.vertexCount)
    {
        throw Problem("dxflib doesn't read all of its polylines");
    }
    return std::move(collector.polylines);
}

Drawing Parse(const std::string& text)
{
    FilteredDxf dxf = FilterDxf(text);
    Drawing drawing;
    drawing.others = std::move(dxf.others);
    std::size_t number = 0;
    for (const VertexList& list : ReadPolylines(dxf))
    {
        math::CPolyline outline = ToOutline(list);
        RefuseWideArcs(outline, ++number);
        if (outline.nodes.empty())
        {
            ++drawing.others["polyline of a single point"];
        }
        else
        {
            drawing.outlines.push_back(std::move(outline));
        }
    }
    if (drawing.outlines.empty())
    {
        throw Problem("the drawing has no polylines");
    }
    return drawing;
}

} // namespace

Drawing ReadDrawing(const std::string& path)
{
    try
    {
        Drawing drawing = Parse(ReadFile(path));
        drawing.name = std::filesystem::path(path).filename().string();
        return drawing;
    }
    catch (const Problem& problem)
    {
        throw Problem(Quoted(path) + ": " + problem.what());
    }
}

} // namespace example::tour
