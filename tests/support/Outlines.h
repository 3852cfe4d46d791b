#pragma once

#include "math/CPolyline.h"
#include "support/Support.h"

#include <cstddef>
#include <initializer_list>
#include <vector>

// What the tests of polylines share: outlines, and the same outline begun elsewhere.

namespace math::test
{

/// A polyline from its start and its nodes, told as x, y, bulge.
struct Node
{
    double x;
    double y;
    double bulge = 0;
};

inline CPolyline Outline(const DPOINT2& start, std::initializer_list<Node> nodes)
{
    CPolyline polyline;
    polyline.start = start;
    for (const Node& node : nodes)
    {
        polyline.AddNodes(At(node.x, node.y), node.bulge);
    }
    return polyline;
}

/// The unit square, counter-clockwise.
inline CPolyline Square()
{
    return Outline(At(0, 0), {{1, 0}, {1, 1}, {0, 1}, {0, 0}});
}

/// A closed outline that winds once round the origin, counter-clockwise, of lines and arcs.
inline CPolyline RandomOutline(Random& random, int count)
{
    std::vector<DPOINT2> points;
    for (int k = 0; k < count; ++k)
    {
        const double radian = TwoPi * (k + random.Number(0, 0.8)) / count;
        const double radius = random.Number(2, 6);
        points.push_back(At(radius * std::cos(radian), radius * std::sin(radian)));
    }
    CPolyline polyline;
    polyline.start = points.back();
    for (const DPOINT2& point : points)
    {
        polyline.AddNodes(point, random.Coin() ? random.Number(-1.5, 1.5) : 0);
    }
    return polyline;
}

/// The same closed outline, begun `k` segments further on.
inline CPolyline BegunAt(const CPolyline& closed, std::size_t k)
{
    const std::size_t count = closed.nodes.size();
    CPolyline polyline;
    polyline.start = k == 0 ? closed.start : closed.nodes[k - 1].point;
    for (std::size_t i = 0; i < count; ++i)
    {
        polyline.AddNodes(closed.nodes[(k + i) % count]);
    }
    return polyline;
}

/// The same outline, run the other way.
inline CPolyline TurnedRound(CPolyline polyline)
{
    polyline.ReversePolyline();
    return polyline;
}

} // namespace math::test
