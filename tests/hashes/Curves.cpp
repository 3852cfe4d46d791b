#include "Curves.h"

#include <cmath>

namespace math::hashes
{

namespace
{

DPOINT2 Along(const Stretch& stretch, double ratio)
{
    const double stepX = (stretch.b.x - stretch.a.x) * ratio;
    const double stepY = (stretch.b.y - stretch.a.y) * ratio;
    return {stretch.a.x + stepX, stretch.a.y + stepY};
}

DPOINT2 Moved(const DPOINT2& point, double distance, const Heading& heading)
{
    const double stepX = distance * heading.cosine;
    const double stepY = distance * heading.sine;
    return {point.x + stepX, point.y + stepY};
}

Heading QuarterTurned(const Heading& heading)
{
    return {heading.radian + HalfPi, -heading.sine, heading.cosine};
}

/// A ratio along a stretch: an end, the middle, beside an end, or any.
double RatioOnStretch(Source& source)
{
    constexpr double ratios[] = {0.0, 1.0, 0.5, 0.25, -0.5, 1.5};
    return source.OneIn(4) ? source.Ratio() : source.Near(ratios[source.Below(6)]);
}

/// A straight line that touches a circle, or misses that by little, in a known direction.
struct Tangent
{
    DPOINT2 touch;
    Heading along;
};
Tangent RandomTangent(Source& source, const DPOINT2& centre, double radius)
{
    const Heading outward = source.Known();
    return {Moved(centre, source.Near(radius), outward), QuarterTurned(outward)};
}

/// A point of an ellipse by a known eccentric parameter; its rotation has to be known.
DPOINT2 OnEllipse(const EllipseArc& ellipse, const Heading& rotation, const Heading& parameter)
{
    const double u = ellipse.a * parameter.cosine;
    const double v = ellipse.b * parameter.sine;
    const double ofU = u * rotation.cosine;
    const double ofV = v * rotation.sine;
    const double upU = u * rotation.sine;
    const double upV = v * rotation.cosine;
    return {ellipse.centre.x + (ofU - ofV), ellipse.centre.y + (upU + upV)};
}

EllipseArc KnownEllipse(Source& source, const Heading& rotation)
{
    EllipseArc ellipse = RandomEllipseArc(source);
    ellipse.rotation = rotation.radian;
    return ellipse;
}

/// A straight line that touches an ellipse in a vertex, or nearly so.
Tangent VertexTangent(Source& source, const EllipseArc& ellipse, const Heading& rotation)
{
    const Heading across = QuarterTurned(rotation);
    if (source.Coin())
    {
        return {Moved(ellipse.centre, source.Near(ellipse.a), rotation), across};
    }
    return {Moved(ellipse.centre, -source.Near(ellipse.b), across), rotation};
}

Stretch StretchOf(Source& source, const Tangent& tangent)
{
    return {Moved(tangent.touch, -source.Length(), tangent.along),
            Moved(tangent.touch, source.Length(), tangent.along)};
}

Beeline BeelineOf(Source& source, const Tangent& tangent)
{
    return {Moved(tangent.touch, source.Number(), tangent.along), source.Near(tangent.along.radian)};
}

} // namespace

Stretch RandomStretch(Source& source)
{
    const DPOINT2 a = source.Point();
    switch (source.Below(6))
    {
    case 0:
        return {a, source.Near(a)};
    case 1:
        return {a, {a.x, source.Number()}};
    case 2:
        return {a, {source.Number(), a.y}};
    default:
        return {a, source.Point()};
    }
}

Arc RandomArc(Source& source)
{
    const DPOINT2 centre = source.Point();
    const double radius = source.Length();
    const double start = source.Angle();
    return {centre, radius, start, source.Sweep()};
}

EllipseArc RandomEllipseArc(Source& source)
{
    const DPOINT2 centre = source.Point();
    const double one = source.Length();
    const double other = source.OneIn(6) ? source.Near(one) : source.Length();
    const bool isOrdered = !source.OneIn(6);
    const double a = isOrdered && one < other ? other : one;
    const double b = isOrdered && one < other ? one : other;
    const double rotation = source.Coin() ? source.Known().radian : source.Angle();
    const double start = source.Angle();
    return {centre, a, b, rotation, start, source.Sweep()};
}

TwoStretches RandomStretches(Source& source)
{
    const Stretch first = RandomStretch(source);
    switch (source.Below(8))
    {
    case 0: // on one line
        return {first, {source.Near(Along(first, RatioOnStretch(source))), Along(first, RatioOnStretch(source))}};
    case 1: // a shared end
        return {first, {source.Point(), source.Near(source.Coin() ? first.a : first.b)}};
    case 2: // an end on the other
        return {first, {source.Near(Along(first, RatioOnStretch(source))), source.Point()}};
    case 3: // parallel
    {
        const double dx = source.Near(source.Number());
        const double dy = source.Number();
        return {first, {{first.a.x + dx, first.a.y + dy}, {first.b.x + dx, first.b.y + dy}}};
    }
    case 4: // one and the same, either way
        return source.Coin() ? TwoStretches{first, first} : TwoStretches{first, {first.b, first.a}};
    default:
        return {first, RandomStretch(source)};
    }
}

TwoBeelines RandomBeelines(Source& source)
{
    const Beeline first{source.Point(), source.Angle()};
    switch (source.Below(4))
    {
    case 0: // parallel
        return {first, {source.Point(), source.Near(first.angle)}};
    case 1: // one and the same
    {
        const Heading along = source.Known();
        const Beeline known{first.point, along.radian};
        return {known, {source.Near(Moved(first.point, source.Number(), along)), source.Near(along.radian + Pi)}};
    }
    default:
        return {first, {source.Point(), source.Angle()}};
    }
}

BeelineAndStretch RandomBeelineAndStretch(Source& source)
{
    const Stretch stretch = RandomStretch(source);
    const Heading along = source.Known();
    switch (source.Below(4))
    {
    case 0: // through a point of the stretch
    {
        const DPOINT2 meeting = Along(stretch, RatioOnStretch(source));
        return {{Moved(meeting, source.Number(), along), along.radian}, stretch};
    }
    case 1: // along the stretch
    {
        const DPOINT2 end = Moved(stretch.a, source.Length(), along);
        return {{Moved(stretch.a, source.Number(), along), source.Near(along.radian)}, {stretch.a, source.Near(end)}};
    }
    default:
        return {{source.Point(), source.Angle()}, stretch};
    }
}

BeelineAndArc RandomBeelineAndArc(Source& source)
{
    const Arc arc = RandomArc(source);
    switch (source.Below(4))
    {
    case 0:
        return {BeelineOf(source, RandomTangent(source, arc.centre, arc.radius)), arc};
    case 1: // through the centre
        return {{source.Near(arc.centre), source.Angle()}, arc};
    default:
        return {{PointBy(source, arc), source.Angle()}, arc};
    }
}

StretchAndArc RandomStretchAndArc(Source& source)
{
    const Arc arc = RandomArc(source);
    switch (source.Below(5))
    {
    case 0:
        return {StretchOf(source, RandomTangent(source, arc.centre, arc.radius)), arc};
    case 1: // a chord, or a diameter
        return {{PointBy(source, arc), source.Coin() ? arc.centre : PointBy(source, arc)}, arc};
    default:
        return {RandomStretch(source), arc};
    }
}

TwoArcs RandomArcs(Source& source)
{
    const Arc first = RandomArc(source);
    switch (source.Below(7))
    {
    case 0: // touching from outside, or crossing by little
    {
        const double radius = source.Length();
        return {
            first,
            {source.Around(first.centre, source.Near(first.radius + radius)), radius, source.Angle(), source.Sweep()}};
    }
    case 1: // touching from inside
    {
        const double radius = first.radius * (source.Coin() ? 0.5 : source.Ratio());
        return {
            first,
            {source.Around(first.centre, source.Near(first.radius - radius)), radius, source.Angle(), source.Sweep()}};
    }
    case 2: // on one circle, with shared ends or not
    {
        const double start = source.Coin() ? first.start : first.start + first.sweep;
        return {first, {first.centre, source.Near(first.radius), source.Near(start), source.Sweep()}};
    }
    case 3: // a tiny circle about a point of the first
    {
        const double radius = first.radius * source.Even(0.0, 1e-8);
        const double within = source.Even(-1.0, 1.0) * radius;
        return {first, {source.Around(first.centre, first.radius + within), radius, source.Angle(), source.Sweep()}};
    }
    case 4: // one and the same, or nearly
        return {first, {source.Near(first.centre), source.Near(first.radius), first.start, source.Near(first.sweep)}};
    default:
        return {first, RandomArc(source)};
    }
}

BeelineAndEllipse RandomBeelineAndEllipse(Source& source)
{
    const Heading rotation = source.Known();
    const EllipseArc ellipse = KnownEllipse(source, rotation);
    switch (source.Below(4))
    {
    case 0:
        return {BeelineOf(source, VertexTangent(source, ellipse, rotation)), ellipse};
    case 1:
        return {{source.Near(OnEllipse(ellipse, rotation, source.Known())), source.Angle()}, ellipse};
    default:
        return {{source.Point(), source.Angle()}, source.Coin() ? ellipse : RandomEllipseArc(source)};
    }
}

StretchAndEllipse RandomStretchAndEllipse(Source& source)
{
    const Heading rotation = source.Known();
    const EllipseArc ellipse = KnownEllipse(source, rotation);
    switch (source.Below(4))
    {
    case 0:
        return {StretchOf(source, VertexTangent(source, ellipse, rotation)), ellipse};
    case 1:
        return {{source.Near(OnEllipse(ellipse, rotation, source.Known())), source.Point()}, ellipse};
    default:
        return {RandomStretch(source), source.Coin() ? ellipse : RandomEllipseArc(source)};
    }
}

ArcAndEllipse RandomArcAndEllipse(Source& source)
{
    const Heading rotation = source.Known();
    const EllipseArc ellipse = KnownEllipse(source, rotation);
    Arc arc = RandomArc(source);
    switch (source.Below(5))
    {
    case 0: // the ellipse is a circle, or a stretch
    {
        EllipseArc special = ellipse;
        special.b = source.Coin() ? source.Near(special.a) : source.Sliver();
        return {arc, special};
    }
    case 1: // one and the same circle
        return {arc,
                {source.Near(arc.centre), source.Near(arc.radius), source.Near(arc.radius), ellipse.rotation,
                 ellipse.start, ellipse.sweep}};
    case 2: // about the ellipse, touching in vertices
        arc.centre = source.Near(ellipse.centre);
        arc.radius = source.Near(source.Coin() ? ellipse.a : ellipse.b);
        return {arc, ellipse};
    case 3: // through a point of the ellipse
        arc.centre = source.Around(OnEllipse(ellipse, rotation, source.Known()), arc.radius);
        return {arc, ellipse};
    default:
        return {arc, RandomEllipseArc(source)};
    }
}

TwoEllipses RandomEllipses(Source& source)
{
    const Heading rotation = source.Known();
    const EllipseArc first = KnownEllipse(source, rotation);
    EllipseArc second = first;
    switch (source.Below(6))
    {
    case 0: // one and the same, perhaps turned by half a turn, with another arc of it
        second.rotation = source.Coin() ? first.rotation : source.Near(first.rotation + Pi);
        second.a = source.Near(first.a);
        second.start = source.Coin() ? first.start + first.sweep : source.Angle();
        second.sweep = source.Sweep();
        return {first, second};
    case 1: // the same centre
        second = RandomEllipseArc(source);
        second.centre = first.centre;
        return {first, second};
    case 2: // moved along an axis, touching in a vertex or nearly
        second.centre = Moved(first.centre, source.Near(2.0 * first.a), rotation);
        return {first, second};
    case 3: // through a point of the first
        second = RandomEllipseArc(source);
        second.centre = source.Around(OnEllipse(first, rotation, source.Known()), second.a);
        return {first, second};
    default:
        return {first, RandomEllipseArc(source)};
    }
}

DPOINT2 PointBy(Source& source, const Stretch& stretch)
{
    if (source.OneIn(3))
    {
        return source.Point();
    }
    return source.Near(Along(stretch, RatioOnStretch(source)));
}

DPOINT2 PointBy(Source& source, const Arc& arc)
{
    if (source.OneIn(4))
    {
        return source.Point();
    }
    return source.Near(source.Around(arc.centre, source.Near(arc.radius)));
}

DPOINT2 PointBy(Source& source, const EllipseArc& ellipse)
{
    switch (source.Below(4))
    {
    case 0:
        return source.Point();
    case 1: // a vertex, if the rotation is known as 0
        return source.Near(DPOINT2(ellipse.centre.x + ellipse.a, ellipse.centre.y));
    default:
        return source.Near(OnEllipse(ellipse, {0.0, 1.0, 0.0}, source.Known()));
    }
}

} // namespace math::hashes
