#include "Svg.h"

#include "Outline.h"
#include "Text.h"

#include <cmath>

namespace tour
{

namespace
{

using math::CSegment;
using math::DPOINT2;

std::string Number(double value)
{
    return Short(value, 2);
}

std::string Pair(const DPOINT2& point)
{
    return Number(point.x) + " " + Number(point.y);
}

std::string Attribute(const std::string& name, const std::string& value)
{
    return " " + name + "=\"" + value + "\"";
}

/// Text fit for XML: markup is escaped, control characters give way to a question mark, and so does what isn't ASCII,
/// for nobody knows in which encoding a file name is.
std::string Escaped(const std::string& text)
{
    std::string escaped;
    for (const char c : text)
    {
        const auto code = static_cast<unsigned char>(c);
        switch (c)
        {
        case '&':
            escaped += "&amp;";
            break;
        case '<':
            escaped += "&lt;";
            break;
        case '>':
            escaped += "&gt;";
            break;
        case '"':
            escaped += "&quot;";
            break;
        default:
            escaped += code < 0x20 || code > 0x7e ? '?' : c;
            break;
        }
    }
    return escaped;
}

void AppendArc(std::string& data, const CSegment& segment, const Arc& arc, const View& view)
{
    const std::string radius = Number(arc.radius * view.scale);
    const char* const upward = arc.sweep > 0 ? " 0 0 0 " : " 0 0 1 "; // the page turns counter-clockwise round
    const auto appendTo = [&](const DPOINT2& end) { data += "A" + radius + " " + radius + upward + Pair(view(end)); };
    if (std::abs(segment.bulge) > 1)
    {
        appendTo(segment.GetPoint(0.5)); // by halves there is only one arc of this radius between two points
    }
    appendTo(segment.end);
}

void AppendSegment(std::string& data, const CSegment& segment, const View& view)
{
    if (const std::optional<Arc> arc = ArcOf(segment))
    {
        AppendArc(data, segment, *arc, view);
    }
    else
    {
        data += "L" + Pair(view(segment.end));
    }
}

} // namespace

std::string PathData(const std::vector<CSegment>& segments, const View& view)
{
    std::string data;
    const CSegment* previous = nullptr;
    for (const CSegment& segment : segments)
    {
        if (previous == nullptr || math::D2GetDistance(previous->end, segment.start) > math::DoubleTolerance)
        {
            data += "M" + Pair(view(segment.start));
        }
        AppendSegment(data, segment, view);
        previous = &segment;
    }
    return data;
}

std::string PathData(const math::CPolyline& outline, const View& view)
{
    std::string data = "M" + Pair(view(outline.start));
    for (int i = 0; i < SegmentCount(outline); ++i)
    {
        AppendSegment(data, SegmentAt(outline, i), view);
    }
    return data + (outline.IsClosed() ? "Z" : "");
}

std::string PathData(const std::vector<DPOINT2>& corners, bool closed)
{
    std::string data;
    for (const DPOINT2& corner : corners)
    {
        data += (data.empty() ? "M" : "L") + Pair(corner);
    }
    return data + (closed ? "Z" : "");
}

SvgPage::SvgPage(double width, double height, const std::string& title, const std::string& style)
{
    const std::string size = Number(width) + " " + Number(height);
    m_text = "<svg xmlns=\"http://www.w3.org/2000/svg\"" + Attribute("width", Number(width)) +
             Attribute("height", Number(height)) + Attribute("viewBox", "0 0 " + size) + " role=\"img\">\n<title>" +
             Escaped(title) + "</title>\n<style>\n" + style + "</style>\n<rect class=\"page\"" +
             Attribute("width", Number(width)) + Attribute("height", Number(height)) + "/>\n";
}

void SvgPage::Path(const std::string& data, const std::string& classes)
{
    m_text += "<path" + Attribute("class", classes) + Attribute("d", data) + "/>\n";
}

void SvgPage::Line(const DPOINT2& from, const DPOINT2& to, const std::string& classes)
{
    m_text += "<line" + Attribute("class", classes) + Attribute("x1", Number(from.x)) +
              Attribute("y1", Number(from.y)) + Attribute("x2", Number(to.x)) + Attribute("y2", Number(to.y)) + "/>\n";
}

void SvgPage::Circle(const DPOINT2& centre, double radius, const std::string& classes)
{
    m_text += "<circle" + Attribute("class", classes) + Attribute("cx", Number(centre.x)) +
              Attribute("cy", Number(centre.y)) + Attribute("r", Number(radius)) + "/>\n";
}

void SvgPage::Square(const DPOINT2& centre, double half, const std::string& classes)
{
    m_text += "<rect" + Attribute("class", classes) + Attribute("x", Number(centre.x - half)) +
              Attribute("y", Number(centre.y - half)) + Attribute("width", Number(2 * half)) +
              Attribute("height", Number(2 * half)) + "/>\n";
}

void SvgPage::Diamond(const DPOINT2& centre, double half, const std::string& classes)
{
    const std::vector<DPOINT2> corners = {{centre.x, centre.y - half},
                                          {centre.x + half, centre.y},
                                          {centre.x, centre.y + half},
                                          {centre.x - half, centre.y}};
    Path(PathData(corners, true), classes);
}

void SvgPage::Text(const DPOINT2& anchor, const std::string& text, const std::string& classes)
{
    m_text += "<text" + Attribute("class", classes) + Attribute("x", Number(anchor.x)) +
              Attribute("y", Number(anchor.y)) + ">" + Escaped(text) + "</text>\n";
}

std::string SvgPage::Finish() const
{
    return m_text + "</svg>\n";
}

} // namespace tour
