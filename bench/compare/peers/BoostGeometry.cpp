#include "Cases.h"
#include "Contest.h"
#include "Converted.h"
#include "Inputs.h"

#include <boost/geometry.hpp>
#include <boost/geometry/geometries/geometries.hpp>

#include <cmath>
#include <vector>

namespace bench
{

namespace
{

namespace bg = boost::geometry;

constexpr const char* Who = "Boost";

using Point = bg::model::d2::point_xy<double>;
using Segment = bg::model::segment<Point>;
using Line = bg::model::linestring<Point>;
using Ring = bg::model::ring<Point>;
using Box = bg::model::box<Point>;

Point Of(const DPOINT2& point)
{
    return {point.x, point.y};
}

std::pair<Segment, Segment> Both(const Two<Stretch, Stretch>& in)
{
    return {Segment(Of(in.first.from), Of(in.first.to)), Segment(Of(in.second.from), Of(in.second.to))};
}

void AddIntersections()
{
    EnterConverted("segment/segment", Who, StretchPairs(), Both, [](const auto& in) {
        static std::vector<Point> points;
        points.clear();
        bg::intersection(in.first, in.second, points);
        Answer answer;
        answer.count = static_cast<int>(points.size());
        if (!points.empty())
        {
            answer.values[0] = points[0].x();
            answer.values[1] = points[0].y();
        }
        return answer;
    });
    EnterConverted("segment/segment, yes or no", Who, StretchPairs(), Both, [](const auto& in) {
        Answer answer;
        answer.count = bg::intersects(in.first, in.second) ? 1 : 0;
        return answer;
    });
}

template <typename Shape>
struct Own
{
    Shape shape;
    double position;
    Point point;
};

template <typename Shape>
Own<Shape> Straight(const OutlineInput& in)
{
    Own<Shape> own{{}, in.position, Of(in.point)};
    own.shape.push_back(Of(in.outline.start));
    for (const auto& node : in.outline.nodes)
    {
        own.shape.push_back(Of(node.point));
    }
    return own;
}

void AddOutlines(std::size_t size)
{
    const std::string suffix = ", straight, " + std::to_string(size);
    const std::vector<OutlineInput>& inputs = StraightOutlines(size);
    EnterConverted("length" + suffix, Who, inputs, Straight<Line>,
                   [](const Own<Line>& in) { return bg::length(in.shape); });
    EnterConverted("area" + suffix, Who, inputs, Straight<Ring>,
                   [](const Own<Ring>& in) { return std::abs(bg::area(in.shape)); });
    EnterConverted("box" + suffix, Who, inputs, Straight<Line>, [](const Own<Line>& in) {
        Box box;
        bg::envelope(in.shape, box);
        const Point low = box.min_corner();
        const Point high = box.max_corner();
        return Answer{4, {low.x(), low.y(), high.x() - low.x(), high.y() - low.y()}};
    });
    EnterConverted("nearest" + suffix, Who, inputs, Straight<Line>,
                   [](const Own<Line>& in) { return std::sqrt(bg::comparable_distance(in.point, in.shape)); });
    // Segments have the length 1, so a position is a length.
    EnterConverted("point at a position" + suffix, Who, inputs, Straight<Line>, [](const Own<Line>& in) {
        Point point;
        bg::line_interpolate(in.shape, in.position, point);
        Answer answer;
        answer.count = 1;
        answer.values[0] = point.x();
        answer.values[1] = point.y();
        return answer;
    });
}

} // namespace

void AddBoostGeometry()
{
    AddIntersections();
    for (const std::size_t size : OutlineSizes)
    {
        AddOutlines(size);
    }
}

} // namespace bench
