#pragma once

#include "math/Intersect.h"
#include "math/Primitives.h"
#include "support/Support.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

// A second implementation of stretches of straight lines, written step by step: every pair is brought to normal form, and
// nothing is told beforehand. For comparison bit by bit.

namespace math::test::reference
{

/// The line through two points: a direction of length 1, and a x + b y + c = 0.
struct NormalForm
{
    bool exists;
    double dx, dy;
    double a, b, c;
};

inline NormalForm NormalFormThrough(const DPOINT2& p, const DPOINT2& q)
{
    const double x = q.x - p.x;
    const double y = q.y - p.y;
    const double length = std::sqrt(x * x + y * y);
    NormalForm line{};
    if (length <= std::numeric_limits<double>::min()) // the limit of the toolkit, gp::Resolution()
    {
        return line;
    }
    line.exists = true;
    line.dx = x / length;
    line.dy = y / length;
    line.a = line.dy;
    line.b = -line.dx;
    line.c = -(line.a * p.x + line.b * p.y);
    return line;
}

/// The crossing of two lines by elimination with the greatest coefficient.
///
/// @return 1 for a point, 0 for parallel lines, -1 for one line
inline int CrossLines(const NormalForm& first, const NormalForm& second, DPOINT2& point)
{
    double greatest = std::abs(first.a);
    for (const double value : {std::abs(second.a), std::abs(first.b), std::abs(second.b)})
    {
        if (greatest < value)
        {
            greatest = value;
        }
    }
    double a = first.a, b = first.b, c = first.c, k = second.a, l = second.b, m = second.c;
    bool swapped = false;
    if (std::abs(first.a) == greatest)
    {
    }
    else if (std::abs(first.b) == greatest)
    {
        std::swap(a, b);
        std::swap(k, l);
        swapped = true;
    }
    else if (std::abs(second.a) == greatest)
    {
        std::swap(a, k);
        std::swap(b, l);
        std::swap(c, m);
    }
    else
    {
        a = second.b, b = second.a, c = second.c, k = first.b, l = first.a, m = first.c;
        swapped = true;
    }
    const double ratio = k / a;
    const double denominator = l - ratio * b;
    if (std::abs(denominator) <= 1e-9)
    {
        return std::abs(m - ratio * c) <= 1e-9 ? -1 : 0;
    }
    const double x = (b * m / a - l * c / a) / denominator;
    const double y = (ratio * c - m) / denominator;
    point = swapped ? DPOINT2(y, x) : DPOINT2(x, y);
    return 1;
}

inline bool IsOnStretch(const DPOINT2& p, const DPOINT2& from, const DPOINT2& to)
{
    const NormalForm line = NormalFormThrough(from, to);
    if (!line.exists || std::abs((p.x - from.x) * line.dy - (p.y - from.y) * line.dx) > 1e-9)
    {
        return false;
    }
    if (std::abs(from.x - to.x) > std::abs(from.y - to.y))
    {
        return p.x >= std::min(from.x, to.x) - 1e-9 && p.x <= std::max(from.x, to.x) + 1e-9;
    }
    return p.y >= std::min(from.y, to.y) - 1e-9 && p.y <= std::max(from.y, to.y) + 1e-9;
}

inline int OnOneLine(const DPOINT2& a, const DPOINT2& b, const DPOINT2& c, const DPOINT2& d, DPOINT2& point)
{
    const auto near = [](double u, double v) { return std::abs(u - v) < 1e-9; };
    const bool upright = near(a.x, b.x);
    const auto [lowA, highA] = upright ? std::minmax(a.y, b.y) : std::minmax(a.x, b.x);
    const auto [lowC, highC] = upright ? std::minmax(c.y, d.y) : std::minmax(c.x, d.x);
    if (near(lowA, highC) || near(highA, lowC))
    {
        const bool isA = (near(a.x, c.x) && near(a.y, c.y)) || (near(a.x, d.x) && near(a.y, d.y));
        point = isA ? a : b;
        return 1;
    }
    return lowA > highC || lowC > highA ? 0 : -1;
}

/// Two stretches, from a to b and from c to d.
inline int LineWithLine(const DPOINT2& a, const DPOINT2& b, const DPOINT2& c, const DPOINT2& d, DPOINT2& point)
{
    const NormalForm first = NormalFormThrough(a, b);
    const NormalForm second = NormalFormThrough(c, d);
    if (!first.exists || !second.exists)
    {
        return 0;
    }
    DPOINT2 crossing;
    const int code = CrossLines(first, second, crossing);
    if (code == -1)
    {
        return OnOneLine(a, b, c, d, point);
    }
    if (code == 0 || !IsOnStretch(crossing, a, b) || !IsOnStretch(crossing, c, d))
    {
        return 0;
    }
    point = crossing;
    return 1;
}

/// The angle of the way between two points from the x axis, by the toolkit.
inline double AngleOfWay(const DPOINT2& from, const DPOINT2& to)
{
    const double x = to.x - from.x;
    const double y = to.y - from.y;
    if (std::abs(x) < 1e-9 && std::abs(y) < 1e-9)
    {
        return InvalidDouble;
    }
    double angle = gp_Vec2d(1.0, 0.0).Angle(gp_Vec2d(x, y));
    while (angle < 0.0)
    {
        angle += TwoPi;
    }
    while (angle >= TwoPi)
    {
        angle -= TwoPi;
    }
    return angle;
}

/// The points of `found` that lie on a stretch and are `kept`, at the front; their number.
template <typename Kept>
int KeepOnStretch(int count, DPOINT2 (&found)[2], const DPOINT2& from, const DPOINT2& to, const Kept& kept)
{
    int left = 0;
    for (int i = 0; i < count; ++i)
    {
        if (IsOnStretch(found[i], from, to) && kept(found[i]))
        {
            found[left] = found[i];
            ++left;
        }
    }
    return left;
}

/// A stretch with a circle: the points of the beeline that carries it, clipped.
inline int LineWithCircle(const DPOINT2& from, const DPOINT2& to, const DPOINT2& centre, double radius,
                          DPOINT2 (&found)[2])
{
    const int count = Intersect_BeelineWithCircle(from, AngleOfWay(from, to), centre, radius, &found[0], &found[1]);
    return KeepOnStretch(count, found, from, to, [](const DPOINT2&) { return true; });
}

/// The same with an arc.
inline int LineWithArc(const DPOINT2& from, const DPOINT2& to, const DPOINT2& centre, double radius, double start,
                       double sweep, DPOINT2 (&found)[2])
{
    const int count = Intersect_BeelineWithCircle(from, AngleOfWay(from, to), centre, radius, &found[0], &found[1]);
    return KeepOnStretch(count, found, from, to, [&](const DPOINT2& point) {
        return IsPointInArc(point, centre, radius, start, std::abs(sweep), sweep > 0.0);
    });
}

} // namespace math::test::reference
