#include "CurvePath.h"

#include "Gallery.h"

#include <algorithm>
#include <cmath>
#include <variant>

namespace example::gallery
{

namespace
{

using math::DPOINT2;

constexpr double Pi = 3.14159265358979323846;

/// The point of an ellipse in a direction from its centre, counted from its own x axis.
DPOINT2 PointOf(const Ellipse& ellipse, double polar)
{
    const double c = std::cos(polar);
    const double s = std::sin(polar);
    const double distance = 1 / std::hypot(c / ellipse.a, s / ellipse.b);
    const double direction = ellipse.rotation + polar;
    return {ellipse.centre.x + distance * std::cos(direction), ellipse.centre.y + distance * std::sin(direction)};
}

/// Narrows a range of parameters to where base + t * slope stays within half to either side.
void Clip(double base, double slope, double half, double& from, double& to)
{
    if (std::abs(slope) > math::DoubleTolerance)
    {
        const double low = (-half - base) / slope;
        const double high = (half - base) / slope;
        from = std::max(from, std::min(low, high));
        to = std::min(to, std::max(low, high));
    }
}

/// Reduces the kinds of curves to two: stretches and elliptical arcs.
struct Reduced
{
    std::variant<Line, EllipseArc> operator()(const Beeline& beeline) const
    {
        const double c = std::cos(beeline.angle);
        const double s = std::sin(beeline.angle);
        double from = -2 * (TileHalfWidth + TileHalfHeight);
        double to = -from;
        Clip(beeline.point.x, c, TileHalfWidth, from, to);
        Clip(beeline.point.y, s, TileHalfHeight, from, to);
        const auto at = [&](double t) { return DPOINT2(beeline.point.x + t * c, beeline.point.y + t * s); };
        return Line{at(from), at(to)};
    }

    std::variant<Line, EllipseArc> operator()(const Line& line) const
    {
        return line;
    }

    std::variant<Line, EllipseArc> operator()(const Circle& circle) const
    {
        return (*this)(Arc{circle, 0, 2 * Pi});
    }

    std::variant<Line, EllipseArc> operator()(const Arc& arc) const
    {
        const Circle& circle = arc.circle;
        return EllipseArc{{circle.centre, circle.radius, circle.radius, 0}, arc.start, arc.sweep};
    }

    std::variant<Line, EllipseArc> operator()(const Ellipse& ellipse) const
    {
        return EllipseArc{ellipse, 0, 2 * Pi};
    }

    std::variant<Line, EllipseArc> operator()(const EllipseArc& arc) const
    {
        return arc;
    }
};

/// The point at a ratio along a stretch or an elliptical arc.
struct PointAt
{
    double ratio;

    DPOINT2 operator()(const Line& line) const
    {
        return {line.firstEnd.x + ratio * (line.secondEnd.x - line.firstEnd.x),
                line.firstEnd.y + ratio * (line.secondEnd.y - line.firstEnd.y)};
    }

    DPOINT2 operator()(const EllipseArc& arc) const
    {
        return PointOf(arc.ellipse, arc.start + ratio * arc.sweep);
    }
};

struct PathAlong
{
    View view;

    std::string operator()(const Line& line) const
    {
        return PathBuilder().MoveTo(view(line.firstEnd)).LineTo(view(line.secondEnd)).Data();
    }

    /// By quarters: an SVG arc of half an ellipse and more is not told by its ends.
    std::string operator()(const EllipseArc& arc) const
    {
        const Ellipse& ellipse = arc.ellipse;
        const EllipseShape shape = {ellipse.a * view.scale, ellipse.b * view.scale, -ellipse.rotation * 180 / Pi};
        PathBuilder path;
        path.MoveTo(view(PointAt{0}(arc)));
        for (const double ratio : {0.25, 0.5, 0.75, 1.0})
        {
            path.ArcTo(shape, arc.sweep > 0, view(PointAt{ratio}(arc)));
        }
        return path.Data();
    }
};

} // namespace

std::string CurvePath(const Curve& curve, const View& view)
{
    return std::visit(PathAlong{view}, std::visit(Reduced{}, curve));
}

std::vector<DPOINT2> PointsAlong(const Curve& curve)
{
    constexpr int count = 120;
    const std::variant<Line, EllipseArc> reduced = std::visit(Reduced{}, curve);
    std::vector<DPOINT2> points;
    for (int i = 0; i <= count; ++i)
    {
        points.push_back(std::visit(PointAt{static_cast<double>(i) / count}, reduced));
    }
    return points;
}

} // namespace example::gallery
