#pragma once

#include "math/CPolyline.h"
#include "math/CSegment.h"

#include <string>
#include <vector>

namespace tour
{

/// Where on the page a point of the drawing lies. On the page y runs downward.
struct View
{
    double scale = 1; ///< pixels for a unit of the drawing
    double left = 0;  ///< page coordinates of the drawing's origin
    double top = 0;

    math::DPOINT2 operator()(const math::DPOINT2& point) const
    {
        return {left + scale * point.x, top - scale * point.y};
    }
};

/// The data of an SVG path along segments; an arc stays an arc. A new stroke begins where a segment doesn't follow on
/// the one before.
std::string PathData(const std::vector<math::CSegment>& segments, const View& view);

/// A closed stroke round an outline.
std::string PathData(const math::CPolyline& outline, const View& view);

/// The corners of a broken line, in page coordinates.
std::string PathData(const std::vector<math::DPOINT2>& corners, bool closed);

/// The text of an SVG picture, element by element. Page coordinates are pixels.
class SvgPage
{
public:
    SvgPage(double width, double height, const std::string& title, const std::string& style);

    void Path(const std::string& data, const std::string& classes);
    void Line(const math::DPOINT2& from, const math::DPOINT2& to, const std::string& classes);
    void Circle(const math::DPOINT2& centre, double radius, const std::string& classes);
    void Square(const math::DPOINT2& centre, double half, const std::string& classes);
    void Diamond(const math::DPOINT2& centre, double half, const std::string& classes);

    /// `anchor` is the middle of the text's base line, or its beginning with the class "note".
    void Text(const math::DPOINT2& anchor, const std::string& text, const std::string& classes);

    /// The whole picture.
    std::string Finish() const;

private:
    std::string m_text;
};

} // namespace tour
