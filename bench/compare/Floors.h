#pragma once

#include "Contest.h"
#include "Inputs.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

// The floor beside each case: the shortest closed form, written inline for clear input. No tolerances, no errors.

namespace bench::floors
{

inline constexpr double Pi = 3.14159265358979323846;

inline void Put(Answer& answer, double x, double y)
{
    answer.values[2 * answer.count] = x;
    answer.values[2 * answer.count + 1] = y;
    ++answer.count;
}

// Straight lines

inline Answer SegmentSegment(const Stretch& a, const Stretch& b)
{
    Answer answer;
    answer.count = 0;
    const double rx = a.to.x - a.from.x, ry = a.to.y - a.from.y;
    const double sx = b.to.x - b.from.x, sy = b.to.y - b.from.y;
    const double qx = b.from.x - a.from.x, qy = b.from.y - a.from.y;
    const double d = rx * sy - ry * sx;
    const double t = (qx * sy - qy * sx) / d, u = (qx * ry - qy * rx) / d;
    if (t >= 0.0 && t <= 1.0 && u >= 0.0 && u <= 1.0)
    {
        Put(answer, a.from.x + t * rx, a.from.y + t * ry);
    }
    return answer;
}

inline double Cross(const DPOINT2& o, const DPOINT2& p, const DPOINT2& q)
{
    return (p.x - o.x) * (q.y - o.y) - (p.y - o.y) * (q.x - o.x);
}

inline Answer SegmentsMeet(const Stretch& a, const Stretch& b)
{
    Answer answer;
    answer.count = (Cross(a.from, a.to, b.from) > 0.0) != (Cross(a.from, a.to, b.to) > 0.0) &&
                   (Cross(b.from, b.to, a.from) > 0.0) != (Cross(b.from, b.to, a.to) > 0.0);
    return answer;
}

// Straight lines with circles and arcs

/// Tells whether a direction lies on an arc.
inline bool InSweep(double angle, double start, double sweep)
{
    double turn = sweep > 0.0 ? angle - start : start - angle;
    turn -= std::floor(turn * (0.5 / Pi)) * (2.0 * Pi);
    return turn <= std::abs(sweep);
}

inline bool OnArc(const Arc& arc, double x, double y)
{
    return InSweep(std::atan2(y - arc.centre.y, x - arc.centre.x), arc.start, arc.sweep);
}

/// Calls keep(x, y, along) for the points of the line through `from` along (dx, dy) at `from` + along * (dx, dy).
template <typename Keep>
inline Answer LineCircle(const DPOINT2& from, double dx, double dy, const DPOINT2& centre, double radius, Keep keep)
{
    Answer answer;
    answer.count = 0;
    const double ex = from.x - centre.x, ey = from.y - centre.y;
    const double a = dx * dx + dy * dy, b = ex * dx + ey * dy, c = ex * ex + ey * ey - radius * radius;
    const double h = b * b - a * c;
    if (h < 0.0)
    {
        return answer;
    }
    const double root = std::sqrt(h);
    for (const double t : {(-b - root) / a, (-b + root) / a})
    {
        const double x = from.x + t * dx, y = from.y + t * dy;
        if (keep(x, y, t))
        {
            Put(answer, x, y);
        }
    }
    return answer;
}

inline bool OnStretch(double t)
{
    return t >= 0.0 && t <= 1.0;
}

inline Answer BeelineCircle(const Beeline& line, const Circle& circle)
{
    return LineCircle(line.point, std::cos(line.angle), std::sin(line.angle), circle.centre, circle.radius,
                      [](double, double, double) { return true; });
}

inline Answer BeelineMeetsCircle(const Beeline& line, const Circle& circle)
{
    Answer answer;
    const double distance = (circle.centre.y - line.point.y) * std::cos(line.angle) -
                            (circle.centre.x - line.point.x) * std::sin(line.angle);
    answer.count = std::abs(distance) < circle.radius ? 2 : 0;
    return answer;
}

inline Answer SegmentCircle(const Stretch& line, const Circle& circle)
{
    return LineCircle(line.from, line.to.x - line.from.x, line.to.y - line.from.y, circle.centre, circle.radius,
                      [](double, double, double t) { return OnStretch(t); });
}

inline Answer BeelineArc(const Beeline& line, const Arc& arc)
{
    return LineCircle(line.point, std::cos(line.angle), std::sin(line.angle), arc.centre, arc.radius,
                      [&](double x, double y, double) { return OnArc(arc, x, y); });
}

inline Answer SegmentArc(const Stretch& line, const Arc& arc)
{
    return LineCircle(line.from, line.to.x - line.from.x, line.to.y - line.from.y, arc.centre, arc.radius,
                      [&](double x, double y, double t) { return OnStretch(t) && OnArc(arc, x, y); });
}

// Circles and arcs

template <typename Keep>
inline Answer CirclesKeeping(const DPOINT2& p, double pRadius, const DPOINT2& q, double qRadius, Keep keep)
{
    Answer answer;
    answer.count = 0;
    const double dx = q.x - p.x, dy = q.y - p.y;
    const double square = dx * dx + dy * dy;
    const double along = 0.5 + (pRadius * pRadius - qRadius * qRadius) / (2.0 * square);
    const double h = pRadius * pRadius / square - along * along;
    if (h < 0.0)
    {
        return answer;
    }
    const double across = std::sqrt(h);
    const double mx = p.x + along * dx, my = p.y + along * dy;
    for (const double side : {across, -across})
    {
        const double x = mx - side * dy, y = my + side * dx;
        if (keep(x, y))
        {
            Put(answer, x, y);
        }
    }
    return answer;
}

inline Answer CircleCircle(const Circle& a, const Circle& b)
{
    return CirclesKeeping(a.centre, a.radius, b.centre, b.radius, [](double, double) { return true; });
}

inline Answer CirclesMeet(const Circle& a, const Circle& b)
{
    Answer answer;
    const double dx = b.centre.x - a.centre.x, dy = b.centre.y - a.centre.y;
    const double square = dx * dx + dy * dy;
    const double sum = a.radius + b.radius, difference = a.radius - b.radius;
    answer.count = square < sum * sum && square > difference * difference ? 2 : 0;
    return answer;
}

inline Answer CircleArc(const Circle& a, const Arc& b)
{
    return CirclesKeeping(a.centre, a.radius, b.centre, b.radius, [&](double x, double y) { return OnArc(b, x, y); });
}

inline Answer ArcArc(const Arc& a, const Arc& b)
{
    return CirclesKeeping(a.centre, a.radius, b.centre, b.radius,
                          [&](double x, double y) { return OnArc(a, x, y) && OnArc(b, x, y); });
}

// Ellipses

/// Into the frame in which an ellipse is the unit circle.
struct UnitFrame
{
    double xx, xy, yx, yy;

    template <typename SomeEllipse>
    explicit UnitFrame(const SomeEllipse& ellipse)
    {
        const double cosine = std::cos(ellipse.rotation), sine = std::sin(ellipse.rotation);
        xx = cosine / ellipse.a;
        xy = sine / ellipse.a;
        yx = -sine / ellipse.b;
        yy = cosine / ellipse.b;
    }
};

inline bool OnEllipseArc(const EllipseArc& arc, double x, double y)
{
    const double angle = std::atan2(y - arc.centre.y, x - arc.centre.x) - arc.rotation;
    return InSweep(angle, arc.start, arc.sweep);
}

template <typename SomeEllipse, typename Keep>
inline Answer LineEllipse(const DPOINT2& from, double dx, double dy, const SomeEllipse& ellipse, Keep keep)
{
    Answer answer;
    answer.count = 0;
    const UnitFrame f(ellipse);
    const double px = from.x - ellipse.centre.x, py = from.y - ellipse.centre.y;
    const double ex = f.xx * px + f.xy * py, ey = f.yx * px + f.yy * py;
    const double ux = f.xx * dx + f.xy * dy, uy = f.yx * dx + f.yy * dy;
    const double a = ux * ux + uy * uy, b = ex * ux + ey * uy, c = ex * ex + ey * ey - 1.0;
    const double h = b * b - a * c;
    if (h < 0.0)
    {
        return answer;
    }
    const double root = std::sqrt(h);
    for (const double t : {(-b - root) / a, (-b + root) / a})
    {
        const double x = from.x + t * dx, y = from.y + t * dy;
        if (keep(x, y, t))
        {
            Put(answer, x, y);
        }
    }
    return answer;
}

inline Answer BeelineEllipse(const Beeline& line, const Ellipse& ellipse)
{
    return LineEllipse(line.point, std::cos(line.angle), std::sin(line.angle), ellipse,
                       [](double, double, double) { return true; });
}

inline Answer SegmentEllipse(const Stretch& line, const Ellipse& ellipse)
{
    return LineEllipse(line.from, line.to.x - line.from.x, line.to.y - line.from.y, ellipse,
                       [](double, double, double t) { return OnStretch(t); });
}

inline Answer BeelineEllipseArc(const Beeline& line, const EllipseArc& arc)
{
    return LineEllipse(line.point, std::cos(line.angle), std::sin(line.angle), arc,
                       [&](double x, double y, double) { return OnEllipseArc(arc, x, y); });
}

inline Answer SegmentEllipseArc(const Stretch& line, const EllipseArc& arc)
{
    return LineEllipse(line.from, line.to.x - line.from.x, line.to.y - line.from.y, arc,
                       [&](double x, double y, double t) { return OnStretch(t) && OnEllipseArc(arc, x, y); });
}

/// A real root of z³ + bz² + cz + d: the greatest one.
inline double GreatestRootOfCubic(double b, double c, double d)
{
    const double third = b / 3.0;
    const double p = c / 3.0 - third * third;
    const double q = third * third * third - 0.5 * third * c + 0.5 * d;
    const double square = q * q + p * p * p;
    if (square <= 0.0)
    {
        const double size = std::sqrt(-p);
        const double cosine = std::max(-1.0, std::min(1.0, -q / (size * size * size)));
        return 2.0 * size * std::cos(std::acos(cosine) / 3.0) - third;
    }
    const double s = std::cbrt(std::abs(q) + std::sqrt(square));
    return (q > 0.0 ? p / s - s : s - p / s) - third;
}

/// The real roots of u⁴ + bu³ + cu² + du + e by Ferrari's method, polished by two steps of Newton's.
inline int RootsOfQuartic(double b, double c, double d, double e, double* roots)
{
    const double quarter = 0.25 * b;
    const double p = c - 6.0 * quarter * quarter;
    const double q = d - 2.0 * quarter * c + 8.0 * quarter * quarter * quarter;
    const double r = e - quarter * d + quarter * quarter * c - 3.0 * quarter * quarter * quarter * quarter;
    const double z = GreatestRootOfCubic(2.0 * p, p * p - 4.0 * r, -q * q);
    const double w = std::sqrt(std::max(z, 1e-300));
    int count = 0;
    for (const double sign : {1.0, -1.0})
    {
        const double m = 0.5 * (p + z - sign * q / w);
        const double h = 0.25 * z - m;
        if (h >= 0.0)
        {
            const double root = std::sqrt(h);
            roots[count++] = -sign * 0.5 * w + root - quarter;
            roots[count++] = -sign * 0.5 * w - root - quarter;
        }
    }
    for (int i = 0; i < count; ++i)
    {
        double u = roots[i];
        for (int step = 0; step < 2; ++step)
        {
            const double value = (((u + b) * u + c) * u + d) * u + e;
            const double slope = ((4.0 * u + 3.0 * b) * u + 2.0 * c) * u + d;
            u -= slope != 0.0 ? value / slope : 0.0;
        }
        roots[i] = u;
    }
    return count;
}

/// Two ellipses: the first one's point at the eccentric parameter t in the equation of the second, a quartic in
/// tan(t/2).
template <typename First, typename Second, typename Keep>
inline Answer EllipsesKeeping(const First& first, const Second& second, Keep keep)
{
    Answer answer;
    answer.count = 0;
    const double cosine = std::cos(first.rotation), sine = std::sin(first.rotation);
    const double ax = first.a * cosine, ay = first.a * sine, bx = -first.b * sine, by = first.b * cosine;
    const UnitFrame f(second);
    const double px = first.centre.x - second.centre.x, py = first.centre.y - second.centre.y;
    const double x0 = f.xx * px + f.xy * py, y0 = f.yx * px + f.yy * py;
    const double x1 = f.xx * ax + f.xy * ay, y1 = f.yx * ax + f.yy * ay;
    const double x2 = f.xx * bx + f.xy * by, y2 = f.yx * bx + f.yy * by;
    const double cc = x1 * x1 + y1 * y1, cs = 2.0 * (x1 * x2 + y1 * y2), ss = x2 * x2 + y2 * y2;
    const double c1 = 2.0 * (x0 * x1 + y0 * y1), s1 = 2.0 * (x0 * x2 + y0 * y2), one = x0 * x0 + y0 * y0 - 1.0;
    const double lead = 1.0 / (cc - c1 + one);
    double roots[4];
    const int count = RootsOfQuartic(2.0 * (s1 - cs) * lead, (4.0 * ss - 2.0 * cc + 2.0 * one) * lead,
                                     2.0 * (cs + s1) * lead, (cc + c1 + one) * lead, roots);
    for (int i = 0; i < count; ++i)
    {
        const double u = roots[i], scale = 1.0 / (1.0 + u * u);
        const double c = (1.0 - u * u) * scale, s = 2.0 * u * scale;
        const double x = first.centre.x + ax * c + bx * s, y = first.centre.y + ay * c + by * s;
        if (keep(x, y))
        {
            Put(answer, x, y);
        }
    }
    return answer;
}

template <typename SomeCircle>
inline Ellipse AsEllipse(const SomeCircle& circle)
{
    return {circle.centre, circle.radius, circle.radius, 0.0};
}

// Equations

inline Answer Quadratic(const Coefficients& q)
{
    Answer answer;
    const double h = q.b * q.b - 4.0 * q.a * q.c;
    if (h < 0.0)
    {
        answer.count = 0;
        return answer;
    }
    const double s = -0.5 * (q.b + std::copysign(std::sqrt(h), q.b));
    answer.count = 2;
    answer.values[0] = s / q.a;
    answer.values[1] = q.c / s;
    return answer;
}

/// By the trigonometric form or Cardano's, in ascending order.
inline Answer Cubic(const Coefficients& k)
{
    Answer answer;
    const double b = k.b / k.a, c = k.c / k.a, d = k.d / k.a;
    const double third = b / 3.0;
    const double p = c / 3.0 - third * third;
    const double q = third * third * third - 0.5 * third * c + 0.5 * d;
    const double square = q * q + p * p * p;
    if (square < 0.0)
    {
        const double size = std::sqrt(-p);
        const double angle = std::acos(std::max(-1.0, std::min(1.0, -q / (size * size * size)))) / 3.0;
        const double cosine = size * std::cos(angle), sine = size * std::sqrt(3.0) * std::sin(angle);
        answer.count = 3;
        answer.values[0] = -cosine - sine - third;
        answer.values[1] = -cosine + sine - third;
        answer.values[2] = 2.0 * cosine - third;
        return answer;
    }
    const double s = std::cbrt(std::abs(q) + std::sqrt(square));
    answer.count = 1;
    answer.values[0] = (q > 0.0 ? p / s - s : s - p / s) - third;
    return answer;
}

// Segments

struct ArcForm
{
    double x, y, radius;
};

/// Centre and radius of an arc given by its ends and its bulge.
inline ArcForm FromBulge(const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const double dx = end.x - start.x, dy = end.y - start.y;
    const double across = (1.0 - bulge * bulge) / (4.0 * bulge);
    return {0.5 * (start.x + end.x) - across * dy, 0.5 * (start.y + end.y) + across * dx,
            std::abs(0.25 * (1.0 / bulge + bulge)) * std::sqrt(dx * dx + dy * dy)};
}

inline DPOINT2 PointOfLine(const math::CSegment& s, double t)
{
    return {s.start.x + t * (s.end.x - s.start.x), s.start.y + t * (s.end.y - s.start.y)};
}

inline DPOINT2 PointOfArc(const math::CSegment& s, double t)
{
    const ArcForm arc = FromBulge(s.start, s.end, s.bulge);
    const double turn = 4.0 * std::atan(s.bulge) * t;
    const double c = std::cos(turn), n = std::sin(turn), x = s.start.x - arc.x, y = s.start.y - arc.y;
    return {arc.x + c * x - n * y, arc.y + n * x + c * y};
}

inline DPOINT2 PointOfBezier(const math::CSegment& s, double t)
{
    const double u = 1.0 - t;
    const double a = u * u * u, b = 3.0 * u * u * t, c = 3.0 * u * t * t, d = t * t * t;
    return {a * s.start.x + b * s.ctrl1.x + c * s.ctrl2.x + d * s.end.x,
            a * s.start.y + b * s.ctrl1.y + c * s.ctrl2.y + d * s.end.y};
}

inline DPOINT2 NearestOnLine(const DPOINT2& start, const DPOINT2& end, const DPOINT2& p)
{
    const double dx = end.x - start.x, dy = end.y - start.y;
    const double t = ((p.x - start.x) * dx + (p.y - start.y) * dy) / (dx * dx + dy * dy);
    const double clamped = std::max(0.0, std::min(1.0, t));
    return {start.x + clamped * dx, start.y + clamped * dy};
}

inline double SquareOfDistance(const DPOINT2& a, const DPOINT2& b)
{
    return (a.x - b.x) * (a.x - b.x) + (a.y - b.y) * (a.y - b.y);
}

/// On the arc if the ray from the centre meets the chord's side on which the arc lies.
inline DPOINT2 NearestOnArc(const DPOINT2& start, const DPOINT2& end, double bulge, const DPOINT2& p)
{
    const ArcForm arc = FromBulge(start, end, bulge);
    const double dx = p.x - arc.x, dy = p.y - arc.y, scale = arc.radius / std::sqrt(dx * dx + dy * dy);
    const DPOINT2 foot(arc.x + dx * scale, arc.y + dy * scale);
    if ((Cross(start, end, foot) < 0.0) == (bulge > 0.0))
    {
        return foot;
    }
    return SquareOfDistance(p, start) < SquareOfDistance(p, end) ? start : end;
}

inline double LengthOfArc(const DPOINT2& start, const DPOINT2& end, double bulge)
{
    return FromBulge(start, end, bulge).radius * 4.0 * std::abs(std::atan(bulge));
}

/// The left-hand rectangle rule in 1000 steps: speeds in a loop that the compiler may do several at a time, then the
/// sum in its order.
inline double LengthOfBezier(const math::CSegment& s)
{
    const double ax = s.end.x - 3.0 * s.ctrl2.x + 3.0 * s.ctrl1.x - s.start.x;
    const double ay = s.end.y - 3.0 * s.ctrl2.y + 3.0 * s.ctrl1.y - s.start.y;
    const double bx = 3.0 * s.ctrl2.x - 6.0 * s.ctrl1.x + 3.0 * s.start.x;
    const double by = 3.0 * s.ctrl2.y - 6.0 * s.ctrl1.y + 3.0 * s.start.y;
    const double cx = 3.0 * (s.ctrl1.x - s.start.x), cy = 3.0 * (s.ctrl1.y - s.start.y);
    double speeds[1000];
    for (int i = 0; i < 1000; ++i)
    {
        const double t = i * 0.001;
        const double x = (3.0 * ax * t + 2.0 * bx) * t + cx, y = (3.0 * ay * t + 2.0 * by) * t + cy;
        speeds[i] = std::sqrt(x * x + y * y);
    }
    double sum = 0.0;
    for (const double speed : speeds)
    {
        sum += speed;
    }
    return sum * 0.001;
}

struct Bounds
{
    double lowX, lowY, highX, highY;

    void Add(double x, double y)
    {
        lowX = x < lowX ? x : lowX;
        lowY = y < lowY ? y : lowY;
        highX = x > highX ? x : highX;
        highY = y > highY ? y : highY;
    }

    Answer AsAnswer() const
    {
        return {4, {lowX, lowY, highX - lowX, highY - lowY}};
    }
};

inline Bounds BoundsOf(const DPOINT2& a, const DPOINT2& b)
{
    return {std::min(a.x, b.x), std::min(a.y, b.y), std::max(a.x, b.x), std::max(a.y, b.y)};
}

inline void AddArc(Bounds& bounds, const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const ArcForm arc = FromBulge(start, end, bulge);
    bounds.Add(start.x, start.y);
    bounds.Add(end.x, end.y);
    const DPOINT2 extremes[] = {{arc.x + arc.radius, arc.y},
                                {arc.x, arc.y + arc.radius},
                                {arc.x - arc.radius, arc.y},
                                {arc.x, arc.y - arc.radius}};
    for (const DPOINT2& extreme : extremes)
    {
        if ((Cross(start, end, extreme) < 0.0) == (bulge > 0.0))
        {
            bounds.Add(extreme.x, extreme.y);
        }
    }
}

/// 1001 points in a loop that the compiler may do several at a time.
inline Bounds BoundsOfBezier(const math::CSegment& s)
{
    const double ax = s.end.x - 3.0 * s.ctrl2.x + 3.0 * s.ctrl1.x - s.start.x;
    const double ay = s.end.y - 3.0 * s.ctrl2.y + 3.0 * s.ctrl1.y - s.start.y;
    const double bx = 3.0 * s.ctrl2.x - 6.0 * s.ctrl1.x + 3.0 * s.start.x;
    const double by = 3.0 * s.ctrl2.y - 6.0 * s.ctrl1.y + 3.0 * s.start.y;
    const double cx = 3.0 * (s.ctrl1.x - s.start.x), cy = 3.0 * (s.ctrl1.y - s.start.y);
    Bounds bounds = BoundsOf(s.start, s.end);
    for (int i = 0; i <= 1000; ++i)
    {
        const double t = i * 0.001;
        bounds.Add(((ax * t + bx) * t + cx) * t + s.start.x, ((ay * t + by) * t + cy) * t + s.start.y);
    }
    return bounds;
}

// Outlines

template <typename Visit>
inline void ForEachNode(const math::CPolyline& outline, Visit visit)
{
    const DPOINT2* from = &outline.start;
    for (const auto& node : outline.nodes)
    {
        visit(*from, node.point, node.bulge);
        from = &node.point;
    }
}

inline double LengthOfOutline(const math::CPolyline& outline)
{
    double length = 0.0;
    ForEachNode(outline, [&](const DPOINT2& from, const DPOINT2& to, double bulge) {
        length += bulge == 0.0 ? std::sqrt(SquareOfDistance(from, to)) : LengthOfArc(from, to, bulge);
    });
    return length;
}

inline double AreaOfOutline(const math::CPolyline& outline)
{
    double twice = 0.0;
    ForEachNode(outline, [&](const DPOINT2& from, const DPOINT2& to, double bulge) {
        twice += from.x * to.y - to.x * from.y;
        if (bulge != 0.0)
        {
            const double radius = FromBulge(from, to, bulge).radius, sweep = 4.0 * std::atan(bulge);
            twice += radius * radius * (sweep - std::sin(sweep));
        }
    });
    return 0.5 * twice;
}

inline Answer BoundsOfOutline(const math::CPolyline& outline)
{
    Bounds bounds = BoundsOf(outline.start, outline.start);
    ForEachNode(outline, [&](const DPOINT2& from, const DPOINT2& to, double bulge) {
        if (bulge == 0.0)
        {
            bounds.Add(to.x, to.y);
        }
        else
        {
            AddArc(bounds, from, to, bulge);
        }
    });
    return bounds.AsAnswer();
}

inline double DistanceToOutline(const math::CPolyline& outline, const DPOINT2& point)
{
    double square = 1e300;
    ForEachNode(outline, [&](const DPOINT2& from, const DPOINT2& to, double bulge) {
        const DPOINT2 foot = bulge == 0.0 ? NearestOnLine(from, to, point) : NearestOnArc(from, to, bulge, point);
        square = std::min(square, SquareOfDistance(foot, point));
    });
    return std::sqrt(square);
}

inline DPOINT2 PointOfOutline(const math::CPolyline& outline, double position)
{
    const auto index = static_cast<std::size_t>(position);
    const double t = position - static_cast<double>(index);
    const DPOINT2& from = index == 0 ? outline.start : outline.nodes[index - 1].point;
    const auto& node = outline.nodes[index];
    const math::CSegment segment(from, node.point, node.bulge);
    return node.bulge == 0.0 ? PointOfLine(segment, t) : PointOfArc(segment, t);
}

// Maps

using Joints = std::vector<std::pair<double, double>>;

inline double Interpolate(double at, double from, double to, double fromValue, double toValue)
{
    return (at - from) / (to - from) * (toValue - fromValue) + fromValue;
}

/// Tells whether both columns rise, in a loop without branches.
inline bool Rises(const Joints& joints)
{
    int falls = 0;
    for (std::size_t i = 1; i < joints.size(); ++i)
    {
        falls |= static_cast<int>(joints[i].first < joints[i - 1].first);
        falls |= static_cast<int>(joints[i].second < joints[i - 1].second);
    }
    return falls == 0;
}

/// The scan for validity and a binary search.
inline std::vector<double> Evaluate(const Joints& joints, double at)
{
    if (!Rises(joints))
    {
        return {};
    }
    const auto next = std::lower_bound(joints.begin(), joints.end(), at,
                                       [](const auto& joint, double value) { return joint.first < value; });
    const auto& to = *next;
    const auto& from = *(next - 1);
    return {Interpolate(at, from.first, to.first, from.second, to.second)};
}

/// Composition of two rising maps: a merge of the first one's destinations with the second one's sources.
inline Joints Merge(const Joints& a, const Joints& b)
{
    Joints merged;
    merged.reserve(a.size() + b.size());
    std::size_t i = 0, j = 0;
    while (i < a.size() && j < b.size())
    {
        const double left = a[i].second, right = b[j].first;
        if (left == right)
        {
            merged.emplace_back(a[i++].first, b[j++].second);
        }
        else if (left < right)
        {
            if (j > 0)
            {
                merged.emplace_back(a[i].first, Interpolate(left, b[j - 1].first, right, b[j - 1].second, b[j].second));
            }
            ++i;
        }
        else
        {
            if (i > 0)
            {
                merged.emplace_back(Interpolate(right, a[i - 1].second, left, a[i - 1].first, a[i].first), b[j].second);
            }
            ++j;
        }
    }
    return merged;
}

/// A copy without joints in the middle of a straight stretch.
inline Joints WithoutStraightJoints(const Joints& joints)
{
    Joints kept;
    kept.reserve(joints.size());
    for (const auto& joint : joints)
    {
        if (kept.size() >= 2)
        {
            const auto& middle = kept.back();
            const auto& first = kept[kept.size() - 2];
            const double cross = (middle.first - first.first) * (joint.second - middle.second) -
                                 (middle.second - first.second) * (joint.first - middle.first);
            if (std::abs(cross) < 1e-12)
            {
                kept.back() = joint;
                continue;
            }
        }
        kept.push_back(joint);
    }
    return kept;
}

/// A copy with a joint at every whole position of the source.
inline Joints WithWholeSources(const Joints& joints)
{
    Joints filled;
    filled.reserve(2 * joints.size());
    for (std::size_t i = 0; i < joints.size(); ++i)
    {
        if (i > 0)
        {
            const auto& from = joints[i - 1];
            const auto& to = joints[i];
            for (double whole = std::floor(from.first) + 1.0; whole < to.first; whole += 1.0)
            {
                filled.emplace_back(whole, Interpolate(whole, from.first, to.first, from.second, to.second));
            }
        }
        filled.push_back(joints[i]);
    }
    return filled;
}

/// For each whole source position the segment of its image, by one sweep.
inline std::vector<int> Segments(const Joints& joints, int count)
{
    std::vector<int> segments(static_cast<std::size_t>(count), -1);
    std::size_t next = 1;
    for (int i = 0; i < count; ++i)
    {
        while (next + 1 < joints.size() && joints[next].first < i)
        {
            ++next;
        }
        const auto& from = joints[next - 1];
        const auto& to = joints[next];
        segments[static_cast<std::size_t>(i)] =
            static_cast<int>(Interpolate(i, from.first, to.first, from.second, to.second)) % count;
    }
    for (std::size_t i = 1; i < segments.size(); ++i)
    {
        segments[i] = segments[i] == segments[i - 1] ? -1 : segments[i];
    }
    return segments;
}

} // namespace bench::floors
