#include "Svg.h"

#include "Text.h"

namespace example
{

namespace
{

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

} // namespace

PathBuilder& PathBuilder::MoveTo(const DPOINT2& point)
{
    m_data += "M" + Pair(point);
    return *this;
}

PathBuilder& PathBuilder::LineTo(const DPOINT2& point)
{
    m_data += "L" + Pair(point);
    return *this;
}

PathBuilder& PathBuilder::CurveTo(const DPOINT2& firstControl, const DPOINT2& secondControl, const DPOINT2& point)
{
    m_data += "C" + Pair(firstControl) + " " + Pair(secondControl) + " " + Pair(point);
    return *this;
}

PathBuilder& PathBuilder::ArcTo(const EllipseShape& shape, bool counterClockwise, const DPOINT2& point)
{
    const char* const flags = counterClockwise ? " 0 0 " : " 0 1 "; // the page turns counter-clockwise round
    m_data += "A" + Number(shape.a) + " " + Number(shape.b) + " " + Number(shape.degrees) + flags + Pair(point);
    return *this;
}

PathBuilder& PathBuilder::Close()
{
    m_data += "Z";
    return *this;
}

const std::string& PathBuilder::Data() const
{
    return m_data;
}

std::string PathData(const std::vector<DPOINT2>& corners, bool closed)
{
    PathBuilder path;
    bool first = true;
    for (const DPOINT2& corner : corners)
    {
        first ? path.MoveTo(corner) : path.LineTo(corner);
        first = false;
    }
    return closed ? path.Close().Data() : path.Data();
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

void SvgPage::Rectangle(const DPOINT2& corner, double width, double height, const std::string& classes)
{
    m_text += "<rect" + Attribute("class", classes) + Attribute("x", Number(corner.x)) +
              Attribute("y", Number(corner.y)) + Attribute("width", Number(width)) +
              Attribute("height", Number(height)) + "/>\n";
}

void SvgPage::Square(const DPOINT2& centre, double half, const std::string& classes)
{
    Rectangle({centre.x - half, centre.y - half}, 2 * half, 2 * half, classes);
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

void SvgPage::BeginGroup(const std::string& classes)
{
    m_text += "<g" + Attribute("class", classes) + ">\n";
}

void SvgPage::EndGroup()
{
    m_text += "</g>\n";
}

std::string SvgPage::Finish() const
{
    return m_text + "</svg>\n";
}

} // namespace example
