#pragma once

#include "math/CPolyline.h"
#include "math/CSegment.h"
#include "math/Primitives.h"

#include <cmath>
#include <cstddef>

// A second implementation of boxes, lengths and areas, segment by segment through the public functions, for comparison
// bit by bit.

namespace math::test::reference
{

inline DRECT United(const DRECT& a, const DRECT& b)
{
    DRECT box;
    box.Union(a, b);
    return box;
}

inline DRECT BoxOf(const CPolyline& outline)
{
    if (outline.nodes.empty())
    {
        return {};
    }
    DRECT box = outline.GetSegment(0).GetBoundRect();
    for (std::size_t i = 1; i < outline.nodes.size(); ++i)
    {
        box = United(box, outline.GetSegment(i).GetBoundRect());
    }
    return box;
}

inline double LengthOf(const CPolyline& outline, double from, double to)
{
    const auto count = static_cast<double>(outline.nodes.size());
    if (std::isnan(from) || std::isnan(to) || std::abs(from - to) < 1e-9 || from > to || from < 0 || to > count)
    {
        return 0;
    }
    double whole = 0;
    const double fromRatio = std::modf(from, &whole);
    const auto first = static_cast<std::size_t>(whole);
    const double toRatio = std::modf(to, &whole);
    const auto last = static_cast<std::size_t>(whole);
    if (first == last)
    {
        return outline.GetSegment(first).GetLength() * (toRatio - fromRatio);
    }
    double length = 0;
    for (std::size_t i = first + 1; i < last; ++i)
    {
        length += outline.GetSegment(i).GetLength();
    }
    const bool endsAtTheEnd = last == outline.nodes.size();
    length += outline.GetSegment(first).GetLength() * (1 - fromRatio);
    length += outline.GetSegment(endsAtTheEnd ? 0 : last).GetLength() * (endsAtTheEnd ? 0 : toRatio);
    return length;
}

inline double AreaOf(const CPolyline& outline)
{
    if (outline.nodes.size() < 2 || !outline.IsClosed())
    {
        return 0;
    }
    DPOINT2 counted = outline.start;
    double area = 0;
    for (const CPolyline::NODE& node : outline.nodes)
    {
        const double chord = D2GetDistance(counted, node.point);
        if (std::abs(chord) < 1e-9)
        {
            continue;
        }
        area += (node.point.y + counted.y) * 0.5 * (node.point.x - counted.x);
        if (!(std::abs(node.bulge) < 1e-9))
        {
            const double half = chord * 0.5;
            const double radius = (half / node.bulge + half * node.bulge) * 0.5;
            const double sector = std::atan(node.bulge) * (radius * 2.0 * radius);
            area += -(sector - (radius - half * node.bulge) * half);
        }
        counted = node.point;
    }
    return area + (outline.start.y + counted.y) * 0.5 * (outline.start.x - counted.x);
}

inline DRECT BoxOfBezier(const DPOINT2 (&control)[4])
{
    const auto value = [](double p0, double p1, double p2, double p3, double t) {
        const double a = p3 - 3.0 * p2 + 3.0 * p1 - p0;
        const double b = p2 - 2.0 * p1 + p0;
        const double c = p1 - p0;
        return ((a * t + b * 3.0) * t + c * 3.0) * t + p0;
    };
    DRECT box = {control[0].x, control[0].y, 0, 0};
    for (double t = 0.001; t < 1.0000000001; t += 0.001)
    {
        const double x = value(control[0].x, control[1].x, control[2].x, control[3].x, t);
        const double y = value(control[0].y, control[1].y, control[2].y, control[3].y, t);
        box = United(box, {x, y, 0, 0});
    }
    return box;
}

} // namespace math::test::reference
