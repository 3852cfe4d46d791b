#pragma once

#include "math/Primitives.h"

#include <string>
#include <variant>
#include <vector>

namespace example::gallery
{

struct Beeline
{
    math::DPOINT2 point;
    double angle = 0;
};

struct Line
{
    math::DPOINT2 firstEnd;
    math::DPOINT2 secondEnd;
};

struct Circle
{
    math::DPOINT2 centre;
    double radius = 0;
};

struct Arc
{
    Circle circle;
    double start = 0;
    double sweep = 0;
};

struct Ellipse
{
    math::DPOINT2 centre;
    double a = 0;
    double b = 0;
    double rotation = 0;
};

struct EllipseArc
{
    Ellipse ellipse;
    double start = 0;
    double sweep = 0;
};

using Curve = std::variant<Beeline, Line, Circle, Arc, Ellipse, EllipseArc>;

/// The kind as the names of the Intersect_ family tell it.
std::string KindOf(const Curve& curve);

/// The member of the Intersect_ family for two curves, in the order of its name.
/// @param points  receives what the vector form gives
/// @return its result
/// @throw std::logic_error if there is no member for the two in this order
int Intersect(const Curve& first, const Curve& second, std::vector<math::DPOINT2>& points);

} // namespace example::gallery
