#pragma once

#include "math/Primitives.h"

#include <string>
#include <vector>

namespace example
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

/// Semi-axes and turn of an ellipse on the page, where a positive turn is clockwise.
struct EllipseShape
{
    double a = 1;
    double b = 1;
    double degrees = 0;
};

/// The data of an SVG path, stroke by stroke, in page coordinates.
class PathBuilder
{
public:
    PathBuilder& MoveTo(const math::DPOINT2& point);
    PathBuilder& LineTo(const math::DPOINT2& point);

    /// A cubic curve.
    PathBuilder& CurveTo(const math::DPOINT2& firstControl, const math::DPOINT2& secondControl,
                         const math::DPOINT2& point);

    /// An arc of at most half an ellipse, counter-clockwise as the eye sees it or clockwise.
    PathBuilder& ArcTo(const EllipseShape& shape, bool counterClockwise, const math::DPOINT2& point);

    PathBuilder& Close();
    const std::string& Data() const;

private:
    std::string m_data;
};

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
    void Rectangle(const math::DPOINT2& corner, double width, double height, const std::string& classes);
    void Square(const math::DPOINT2& centre, double half, const std::string& classes);
    void Diamond(const math::DPOINT2& centre, double half, const std::string& classes);

    /// `anchor` is the middle of the text's base line, or its beginning, as the style sheet says.
    void Text(const math::DPOINT2& anchor, const std::string& text, const std::string& classes);

    /// What follows up to EndGroup() belongs together.
    void BeginGroup(const std::string& classes);
    void EndGroup();

    /// The whole picture.
    std::string Finish() const;

private:
    std::string m_text;
};

} // namespace example
