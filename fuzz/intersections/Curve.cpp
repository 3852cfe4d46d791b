#include "Curve.h"

#include <algorithm>
#include <cmath>

namespace fuzz
{

using math::DPOINT2;

namespace
{

/// Huge angles cost a turn each wherever they are folded, and a search folds often.
constexpr double GreatestAngle = 64.0;

double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

DPOINT2 OnCircle(const Curve& curve, double direction)
{
    return {curve.p->x + curve.a * std::cos(direction), curve.p->y + curve.a * std::sin(direction)};
}

double DistanceFromStretch(const DPOINT2& from, const DPOINT2& to, const DPOINT2& point)
{
    const double dx = to.x - from.x;
    const double dy = to.y - from.y;
    const double square = dx * dx + dy * dy;
    const double t = square > 0.0 ? ((point.x - from.x) * dx + (point.y - from.y) * dy) / square : 0.0;
    const double ratio = std::min(std::max(t, 0.0), 1.0);
    return Distance(point, {from.x + dx * ratio, from.y + dy * ratio});
}

double DistanceFromArc(const Curve& curve, const DPOINT2& point)
{
    const double direction = std::atan2(point.y - curve.p->y, point.x - curve.p->x);
    const double turned = curve.sweep > 0.0 ? direction - curve.start : curve.start - direction;
    const double fromStart = turned - std::floor(turned / (2.0 * Pi)) * 2.0 * Pi;
    if (fromStart <= std::abs(curve.sweep))
    {
        return std::abs(Distance(*curve.p, point) - curve.a);
    }
    return std::min(Distance(point, OnCircle(curve, curve.start)),
                    Distance(point, OnCircle(curve, curve.start + curve.sweep)));
}

} // namespace

Curve NextCurve(Decoder& decoder, char kind, DPOINT2* points)
{
    Curve curve;
    curve.kind = kind;
    points[0] = decoder.Point();
    curve.p = &points[0];
    curve.q = &points[1];
    switch (kind)
    {
    case 'B':
        curve.angle = decoder.Angle(GreatestAngle);
        break;
    case 'L':
        points[1] = decoder.Point();
        break;
    default:
        curve.a = decoder.Size();
        break;
    }
    if (kind == 'E' || kind == 'F')
    {
        curve.b = decoder.Size();
        curve.rotation = decoder.Angle(GreatestAngle);
    }
    if (kind == 'A' || kind == 'F')
    {
        curve.start = decoder.Angle(GreatestAngle);
        curve.sweep = decoder.Angle(GreatestAngle);
    }
    return curve;
}

bool IsTame(const Curve& curve)
{
    const auto isNearOrigin = [](const DPOINT2& point) { return std::abs(point.x) <= 64 && std::abs(point.y) <= 64; };
    const auto isClear = [](double size) { return size >= 0.25 && size <= 64.0; };
    if (!isNearOrigin(*curve.p) || std::isnan(curve.start) || std::isnan(curve.sweep) || std::isnan(curve.rotation))
    {
        return false;
    }
    switch (curve.kind)
    {
    case 'B':
        return !std::isnan(curve.angle);
    case 'L':
        return isNearOrigin(*curve.q) && Distance(*curve.p, *curve.q) >= 0.25;
    case 'C':
    case 'A':
        return isClear(curve.a);
    default:
        return isClear(curve.a) && isClear(curve.b) && curve.a <= 8.0 * curve.b && curve.b <= 8.0 * curve.a;
    }
}

double DistanceFrom(const Curve& curve, const DPOINT2& point)
{
    switch (curve.kind)
    {
    case 'B':
        return std::abs((point.x - curve.p->x) * std::sin(curve.angle) -
                        (point.y - curve.p->y) * std::cos(curve.angle));
    case 'L':
        return DistanceFromStretch(*curve.p, *curve.q, point);
    case 'C':
        return std::abs(Distance(*curve.p, point) - curve.a);
    default:
        return DistanceFromArc(curve, point);
    }
}

double EllipseResidual(const Curve& curve, const DPOINT2& point)
{
    const double dx = point.x - curve.p->x;
    const double dy = point.y - curve.p->y;
    const double u = dx * std::cos(curve.rotation) + dy * std::sin(curve.rotation);
    const double v = dy * std::cos(curve.rotation) - dx * std::sin(curve.rotation);
    return std::abs(std::hypot(u / curve.a, v / curve.b) - 1.0);
}

} // namespace fuzz
