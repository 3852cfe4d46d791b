#include "Curves.h"
#include "Load.h"

#include <gp_Ax22d.hxx>
#include <gp_Ax2d.hxx>
#include <gp_Lin2d.hxx>

namespace math::hashes
{

namespace
{

gp_Pnt2d AsPoint(const DPOINT2& point)
{
    return {point.x, point.y};
}

/// A direction of known cosine and sine, or the direction of any vector that has one.
gp_Dir2d RandomDirection(Source& source)
{
    if (source.OneIn(3))
    {
        const Heading heading = source.Known();
        return {heading.cosine, heading.sine};
    }
    // Away from 0, so that the toolkit makes a direction of it; exceptions have their place in other loads.
    const double x = source.Even(-1.0, 1.0);
    return {x, source.Even(0.1, 1.0)};
}

gp_Ax22d RandomAxes(Source& source)
{
    const gp_Pnt2d location = AsPoint(source.Point());
    const gp_Dir2d along = RandomDirection(source);
    return gp_Ax22d(location, along, source.Coin());
}

gp_Circ2d Circle(Source& source, const DPOINT2& centre, double radius)
{
    const double served = radius >= 0.0 ? radius : 1.0;
    const gp_Dir2d along = source.Coin() ? gp_Dir2d(1.0, 0.0) : RandomDirection(source);
    return gp_Circ2d(gp_Ax2d(AsPoint(centre), along), served, source.Coin());
}

gp_Circ2d RandomCircle(Source& source)
{
    const Arc arc = RandomArc(source);
    return Circle(source, arc.centre, arc.radius);
}

gp_Lin2d Line(Source& source, const Stretch& stretch)
{
    const DPOINT2 way{stretch.b.x - stretch.a.x, stretch.b.y - stretch.a.y};
    const bool hasDirection = way.x * way.x + way.y * way.y > 1e-200;
    return {AsPoint(stretch.a), hasDirection ? gp_Dir2d(way.x, way.y) : RandomDirection(source)};
}

struct TwoLines
{
    gp_Lin2d first;
    gp_Lin2d second;
};

TwoLines RandomLines(Source& source)
{
    const TwoStretches stretches = RandomStretches(source);
    const gp_Lin2d first = Line(source, stretches.first);
    return {first, Line(source, stretches.second)};
}

struct TwoCircles
{
    gp_Circ2d first;
    gp_Circ2d second;
};

TwoCircles RandomCircles(Source& source)
{
    const TwoArcs arcs = RandomArcs(source);
    const gp_Circ2d first = Circle(source, arcs.first.centre, arcs.first.radius);
    return {first, Circle(source, arcs.second.centre, arcs.second.radius)};
}

struct LineAndCircle
{
    gp_Lin2d line;
    gp_Circ2d circle;
};

LineAndCircle RandomLineAndCircle(Source& source)
{
    const StretchAndArc pair = RandomStretchAndArc(source);
    const gp_Lin2d line = Line(source, pair.stretch);
    return {line, Circle(source, pair.arc.centre, pair.arc.radius)};
}

/// The result of two lines. Readings of a result use no circles, so that they do not hang on the C runtime.
IntAna2d_AnaIntersection LinesMet(Source& source)
{
    if (source.OneIn(12))
    {
        return IntAna2d_AnaIntersection();
    }
    IntAna2d_AnaIntersection result;
    const TwoLines lines = RandomLines(source);
    result.Perform(lines.first, lines.second);
    return result;
}

IntAna2d_IntPoint RandomIntPoint(Source& source)
{
    const DPOINT2 place = source.Point();
    const double onFirst = source.Number();
    const double onSecond = source.Number();
    switch (source.Below(4))
    {
    case 0:
        return IntAna2d_IntPoint();
    case 1:
        return IntAna2d_IntPoint(place.x, place.y, onFirst);
    default:
        return IntAna2d_IntPoint(place.x, place.y, onFirst, onSecond);
    }
}

ResultHash& operator<<(ResultHash& hash, const gce_MakeCirc2d& made)
{
    hash << made.Status() << made.IsDone();
    Attempt(hash, [&] { hash << made.Value(); });
    return hash;
}

/// A circle that could be made or not, by its axes or of two points.
gce_MakeCirc2d RandomMade(Source& source)
{
    const gp_Pnt2d centre = AsPoint(source.Point());
    const double radius = source.Number();
    if (source.Coin())
    {
        return gce_MakeCirc2d(centre, radius, source.Coin());
    }
    const gp_Pnt2d point = AsPoint(source.Point());
    return gce_MakeCirc2d(centre, point, source.Coin());
}

template <typename Result>
void OfResult(Source& source, ResultHash& hash, Result (IntAna2d_AnaIntersection::*reading)() const)
{
    const IntAna2d_AnaIntersection result = LinesMet(source);
    hash << (result.*reading)();
}

template <typename Result>
void OfPoint(Source& source, ResultHash& hash, Result (IntAna2d_IntPoint::*reading)() const)
{
    const IntAna2d_IntPoint point = RandomIntPoint(source);
    hash << (point.*reading)();
}

void RunThreePoints(Source& source, ResultHash& hash)
{
    const Arc circle = RandomArc(source);
    const DPOINT2 p1 = PointBy(source, circle);
    const DPOINT2 p2 = source.OneIn(6) ? source.Near(p1) : PointBy(source, circle);
    const DPOINT2 p3 = source.OneIn(6) ? source.Near(source.Coin() ? p1 : p2) : PointBy(source, circle);
    Attempt(hash, [&] { hash << gce_MakeCirc2d(AsPoint(p1), AsPoint(p2), AsPoint(p3)); });
}

} // namespace

const std::vector<Load> KernelLoads = {
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection()", Usual,
     [](Source& /*source*/, ResultHash& hash) { hash << IntAna2d_AnaIntersection(); }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(IntAna2d_AnaIntersection const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const IntAna2d_AnaIntersection result = LinesMet(source);
         const IntAna2d_AnaIntersection copy(result);
         hash << copy;
     }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(gp_Circ2d const&, gp_Circ2d const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const TwoCircles circles = RandomCircles(source);
         Attempt(hash, [&] { hash << IntAna2d_AnaIntersection(circles.first, circles.second); });
     }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(gp_Lin2d const&, gp_Circ2d const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const LineAndCircle pair = RandomLineAndCircle(source);
         Attempt(hash, [&] { hash << IntAna2d_AnaIntersection(pair.line, pair.circle); });
     }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(gp_Lin2d const&, gp_Lin2d const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const TwoLines lines = RandomLines(source);
         Attempt(hash, [&] { hash << IntAna2d_AnaIntersection(lines.first, lines.second); });
     }},
    {"IntAna2d_AnaIntersection::IsDone() const", Usual,
     [](Source& source, ResultHash& hash) { OfResult(source, hash, &IntAna2d_AnaIntersection::IsDone); }},
    {"IntAna2d_AnaIntersection::IsEmpty() const", Usual,
     [](Source& source, ResultHash& hash) { OfResult(source, hash, &IntAna2d_AnaIntersection::IsEmpty); }},
    {"IntAna2d_AnaIntersection::IsIdentical() const", Usual,
     [](Source& source, ResultHash& hash) { OfResult(source, hash, &IntAna2d_AnaIntersection::IsIdentical); }},
    {"IntAna2d_AnaIntersection::IsParallel() const", Usual,
     [](Source& source, ResultHash& hash) { OfResult(source, hash, &IntAna2d_AnaIntersection::IsParallel); }},
    {"IntAna2d_AnaIntersection::PointCount() const", Usual,
     [](Source& source, ResultHash& hash) { OfResult(source, hash, &IntAna2d_AnaIntersection::PointCount); }},
    {"IntAna2d_AnaIntersection::Point(int) const", Usual,
     [](Source& source, ResultHash& hash) {
         const IntAna2d_AnaIntersection result = LinesMet(source);
         const int n = source.OneIn(3) ? source.Between(-1, 5) : 1;
         Attempt(hash, [&] { hash << result.Point(n); });
     }},
    {"IntAna2d_AnaIntersection::Perform(gp_Circ2d const&, gp_Circ2d const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const TwoCircles circles = RandomCircles(source);
         const TwoCircles others = RandomCircles(source);
         IntAna2d_AnaIntersection result;
         Attempt(hash, [&] { result.Perform(circles.first, circles.second); });
         hash << result;
         Attempt(hash, [&] { result.Perform(others.first, circles.second); });
         hash << result;
     }},
    {"IntAna2d_AnaIntersection::Perform(gp_Lin2d const&, gp_Circ2d const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const LineAndCircle pair = RandomLineAndCircle(source);
         const LineAndCircle other = RandomLineAndCircle(source);
         IntAna2d_AnaIntersection result;
         Attempt(hash, [&] { result.Perform(pair.line, pair.circle); });
         hash << result;
         Attempt(hash, [&] { result.Perform(other.line, pair.circle); });
         hash << result;
     }},
    {"IntAna2d_AnaIntersection::Perform(gp_Lin2d const&, gp_Lin2d const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const TwoLines lines = RandomLines(source);
         const TwoLines others = RandomLines(source);
         IntAna2d_AnaIntersection result;
         Attempt(hash, [&] { result.Perform(lines.first, lines.second); });
         hash << result;
         Attempt(hash, [&] { result.Perform(others.first, lines.second); });
         hash << result;
     }},
    {"IntAna2d_AnaIntersection::operator=(IntAna2d_AnaIntersection const&)", Usual,
     [](Source& source, ResultHash& hash) {
         IntAna2d_AnaIntersection result = LinesMet(source);
         const IntAna2d_AnaIntersection other = LinesMet(source);
         hash << (&(result = other) == &result) << result;
     }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint()", Usual,
     [](Source& /*source*/, ResultHash& hash) { hash << IntAna2d_IntPoint(); }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint(IntAna2d_IntPoint const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const IntAna2d_IntPoint point = RandomIntPoint(source);
         const IntAna2d_IntPoint copy(point);
         hash << copy;
     }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double)", Usual,
     [](Source& source, ResultHash& hash) {
         hash << IntAna2d_IntPoint{source.Number(), source.Number(), source.Number()};
     }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double, double)", Usual,
     [](Source& source, ResultHash& hash) {
         hash << IntAna2d_IntPoint{source.Number(), source.Number(), source.Number(), source.Number()};
     }},
    {"IntAna2d_IntPoint::ParamOnFirst() const", Usual,
     [](Source& source, ResultHash& hash) { OfPoint(source, hash, &IntAna2d_IntPoint::ParamOnFirst); }},
    {"IntAna2d_IntPoint::ParamOnSecond() const", Usual,
     [](Source& source, ResultHash& hash) { OfPoint(source, hash, &IntAna2d_IntPoint::ParamOnSecond); }},
    {"IntAna2d_IntPoint::SecondIsImplicit() const", Usual,
     [](Source& source, ResultHash& hash) { OfPoint(source, hash, &IntAna2d_IntPoint::SecondIsImplicit); }},
    {"IntAna2d_IntPoint::Value() const", Usual,
     [](Source& source, ResultHash& hash) { OfPoint(source, hash, &IntAna2d_IntPoint::Value); }},
    {"IntAna2d_IntPoint::X() const", Usual,
     [](Source& source, ResultHash& hash) { OfPoint(source, hash, &IntAna2d_IntPoint::X); }},
    {"IntAna2d_IntPoint::Y() const", Usual,
     [](Source& source, ResultHash& hash) { OfPoint(source, hash, &IntAna2d_IntPoint::Y); }},
    {"IntAna2d_IntPoint::SetValue(double, double, double)", Usual,
     [](Source& source, ResultHash& hash) {
         IntAna2d_IntPoint point = RandomIntPoint(source);
         const DPOINT2 place = source.Point();
         point.SetValue(place.x, place.y, source.Number());
         hash << point;
     }},
    {"IntAna2d_IntPoint::SetValue(double, double, double, double)", Usual,
     [](Source& source, ResultHash& hash) {
         IntAna2d_IntPoint point = RandomIntPoint(source);
         const DPOINT2 place = source.Point();
         const double onFirst = source.Number();
         point.SetValue(place.x, place.y, onFirst, source.Number());
         hash << point;
     }},
    {"IntAna2d_IntPoint::operator=(IntAna2d_IntPoint const&)", Usual,
     [](Source& source, ResultHash& hash) {
         IntAna2d_IntPoint point = RandomIntPoint(source);
         const IntAna2d_IntPoint other = RandomIntPoint(source);
         hash << (&(point = other) == &point) << point;
     }},
    {"gce_MakeCirc2d::IsDone() const", Usual,
     [](Source& source, ResultHash& hash) { hash << RandomMade(source).IsDone(); }},
    {"gce_MakeCirc2d::Status() const", Usual,
     [](Source& source, ResultHash& hash) { hash << RandomMade(source).Status(); }},
    {"gce_MakeCirc2d::Value() const", Usual,
     [](Source& source, ResultHash& hash) {
         const gce_MakeCirc2d made = RandomMade(source);
         Attempt(hash, [&] { hash << made.Value(); });
     }},
    {"gce_MakeCirc2d::Operator() const", Usual,
     [](Source& source, ResultHash& hash) {
         const gce_MakeCirc2d made = RandomMade(source);
         Attempt(hash, [&] { hash << made.Operator(); });
     }},
    {"gce_MakeCirc2d::operator gp_Circ2d() const", Usual,
     [](Source& source, ResultHash& hash) {
         const gce_MakeCirc2d made = RandomMade(source);
         Attempt(hash, [&] { hash << static_cast<gp_Circ2d>(made); });
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Ax22d const&, double)", Usual,
     [](Source& source, ResultHash& hash) {
         const gp_Ax22d axes = RandomAxes(source);
         hash << gce_MakeCirc2d(axes, source.Number());
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Ax2d const&, double, bool)", Usual,
     [](Source& source, ResultHash& hash) {
         const gp_Ax2d axis = RandomAxes(source).XAxis();
         const double radius = source.Number();
         hash << gce_MakeCirc2d(axis, radius, source.Coin());
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Circ2d const&, double)", Usual,
     [](Source& source, ResultHash& hash) {
         const gp_Circ2d circle = RandomCircle(source);
         hash << gce_MakeCirc2d(circle, source.OneIn(4) ? -circle.Radius() : source.Number());
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Circ2d const&, gp_Pnt2d const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const gp_Circ2d circle = RandomCircle(source);
         hash << gce_MakeCirc2d(circle, source.OneIn(8) ? circle.Location() : AsPoint(source.Point()));
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Pnt2d const&, double, bool)", Usual,
     [](Source& source, ResultHash& hash) {
         const gp_Pnt2d centre = AsPoint(source.Point());
         const double radius = source.Number();
         hash << gce_MakeCirc2d(centre, radius, source.Coin());
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Pnt2d const&, gp_Pnt2d const&, bool)", Usual,
     [](Source& source, ResultHash& hash) {
         const DPOINT2 centre = source.Point();
         const DPOINT2 point = source.OneIn(6) ? source.Near(centre) : source.Point();
         hash << gce_MakeCirc2d(AsPoint(centre), AsPoint(point), source.Coin());
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Pnt2d const&, gp_Pnt2d const&, gp_Pnt2d const&)", Cheap, RunThreePoints},
};

} // namespace math::hashes
