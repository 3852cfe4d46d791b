#include "Cases.h"
#include "Contest.h"
#include "Converted.h"
#include "Inputs.h"

#include <CGAL/Algebraic_kernel_for_circles_2_2.h>
#include <CGAL/Circular_kernel_2.h>
#include <CGAL/Circular_kernel_intersections.h>
#include <CGAL/Polygon_2.h>
#include <CGAL/Simple_cartesian.h>
#include <CGAL/intersections.h>
#include <CGAL/squared_distance_2.h>

#include <boost/variant/get.hpp>

#include <cmath>
#include <vector>

namespace bench
{

namespace
{

constexpr const char* Who = "CGAL";

using Kernel = CGAL::Simple_cartesian<double>;
using Circular = CGAL::Circular_kernel_2<Kernel, CGAL::Algebraic_kernel_for_circles_2_2<double>>;

template <typename K>
typename K::Point_2 Point(const DPOINT2& point)
{
    return {point.x, point.y};
}

Kernel::Segment_2 Of(const Stretch& line)
{
    return {Point<Kernel>(line.from), Point<Kernel>(line.to)};
}

Circular::Circle_2 Of(const Circle& circle)
{
    return {Point<Circular>(circle.centre), circle.radius * circle.radius};
}

Circular::Line_2 Of(const Beeline& line)
{
    return {Point<Circular>(line.point), Circular::Direction_2(std::cos(line.angle), std::sin(line.angle))};
}

template <typename First, typename Second>
auto Both(const Two<First, Second>& in)
{
    return std::make_pair(Of(in.first), Of(in.second));
}

template <typename First, typename Second>
Answer CircularPoints(const First& first, const Second& second)
{
    using Crossing = typename CGAL::CK2_Intersection_traits<Circular, First, Second>::type;
    static std::vector<Crossing> crossings;
    crossings.clear();
    CGAL::intersection(first, second, std::back_inserter(crossings));
    Answer answer;
    answer.count = 0;
    for (const Crossing& crossing : crossings)
    {
        const auto* point = boost::get<std::pair<Circular::Circular_arc_point_2, unsigned>>(&crossing);
        answer.values[2 * answer.count] = CGAL::to_double(point->first.x());
        answer.values[2 * answer.count + 1] = CGAL::to_double(point->first.y());
        ++answer.count;
    }
    return answer;
}

void AddIntersections()
{
    EnterConverted("segment/segment", Who, StretchPairs(), Both<Stretch, Stretch>, [](const auto& in) {
        Answer answer;
        answer.count = 0;
        const auto crossing = CGAL::intersection(in.first, in.second);
        if (crossing)
        {
            const auto* point = boost::get<Kernel::Point_2>(&*crossing);
            answer.count = 1;
            answer.values[0] = point->x();
            answer.values[1] = point->y();
        }
        return answer;
    });
    EnterConverted("segment/segment, yes or no", Who, StretchPairs(), Both<Stretch, Stretch>, [](const auto& in) {
        Answer answer;
        answer.count = CGAL::do_intersect(in.first, in.second) ? 1 : 0;
        return answer;
    });
    EnterConverted("circle/circle", Who, CirclePairs(), Both<Circle, Circle>,
                   [](const auto& in) { return CircularPoints(in.first, in.second); });
    EnterConverted("beeline/circle", Who, BeelinesAndCircles(), Both<Beeline, Circle>,
                   [](const auto& in) { return CircularPoints(in.first, in.second); });
}

void AddOutlines(std::size_t size)
{
    const auto polygon = [](const OutlineInput& in) {
        CGAL::Polygon_2<Kernel> own;
        own.push_back(Point<Kernel>(in.outline.start));
        for (std::size_t i = 0; i + 1 < in.outline.nodes.size(); ++i)
        {
            own.push_back(Point<Kernel>(in.outline.nodes[i].point));
        }
        return std::make_pair(own, Point<Kernel>(in.point));
    };
    const std::string suffix = ", straight, " + std::to_string(size);
    EnterConverted("area" + suffix, Who, StraightOutlines(size), polygon,
                   [](const auto& in) { return std::abs(in.first.area()); });
    EnterConverted("box" + suffix, Who, StraightOutlines(size), polygon, [](const auto& in) {
        const CGAL::Bbox_2 box = in.first.bbox();
        return Answer{4, {box.xmin(), box.ymin(), box.xmax() - box.xmin(), box.ymax() - box.ymin()}};
    });
    EnterConverted("nearest" + suffix, Who, StraightOutlines(size), polygon, [](const auto& in) {
        double square = 1e300;
        for (auto edge = in.first.edges_begin(); edge != in.first.edges_end(); ++edge)
        {
            square = std::min(square, CGAL::squared_distance(*edge, in.second));
        }
        return std::sqrt(square);
    });
}

} // namespace

void AddCgal()
{
    AddIntersections();
    for (const std::size_t size : OutlineSizes)
    {
        AddOutlines(size);
    }
}

} // namespace bench
