#include "Cases.h"
#include "Contest.h"
#include "Converted.h"
#include "Inputs.h"

#include <2geom/bezier-curve.h>
#include <2geom/circle.h>
#include <2geom/ellipse.h>
#include <2geom/elliptical-arc.h>
#include <2geom/line.h>
#include <2geom/path.h>
#include <2geom/sbasis-geometric.h>

#include <cmath>

namespace bench
{

namespace
{

constexpr const char* Who = "lib2geom";

/// Points that its numerical methods lose or find twice near tangencies.
constexpr Allowance Numeric{0.02, true};

/// A nearest point on an arc is found by iteration, to four digits at times.
constexpr Allowance Iterated{0.1, true};

Geom::Point Point(const DPOINT2& point)
{
    return {point.x, point.y};
}

Geom::LineSegment Of(const Stretch& line)
{
    return {Point(line.from), Point(line.to)};
}

Geom::Line Of(const Beeline& line)
{
    return {Point(line.point), Geom::Angle(line.angle)};
}

Geom::Circle Of(const Circle& circle)
{
    return {Point(circle.centre), circle.radius};
}

Geom::Ellipse Of(const Ellipse& ellipse)
{
    return {Point(ellipse.centre), Geom::Point(ellipse.a, ellipse.b), ellipse.rotation};
}

Geom::Point At(const Arc& arc, double angle)
{
    return {arc.centre.x + arc.radius * std::cos(angle), arc.centre.y + arc.radius * std::sin(angle)};
}

Geom::EllipticalArc Of(const Arc& arc)
{
    return {At(arc, arc.start),
            arc.radius,
            arc.radius,
            0.0,
            std::abs(arc.sweep) > M_PI,
            arc.sweep > 0.0,
            At(arc, arc.start + arc.sweep)};
}

template <typename Crossings>
Answer Points(const Crossings& crossings)
{
    Answer answer;
    answer.count = static_cast<int>(crossings.size());
    for (std::size_t i = 0; i < crossings.size() && i < 4; ++i)
    {
        const Geom::Point point = crossings[i].point();
        answer.values[2 * i] = point[Geom::X];
        answer.values[2 * i + 1] = point[Geom::Y];
    }
    return answer;
}

Answer OfPoint(const Geom::Point& point)
{
    Answer answer;
    answer.count = 1;
    answer.values[0] = point[Geom::X];
    answer.values[1] = point[Geom::Y];
    return answer;
}

template <typename First, typename Second>
auto Both(const Two<First, Second>& in)
{
    return std::make_pair(Of(in.first), Of(in.second));
}

template <typename First, typename Second>
void AddFirstWithSecond(const std::string& name, const std::vector<Two<First, Second>>& inputs,
                        const Allowance& allowance = {})
{
    EnterConverted(
        name, Who, inputs, Both<First, Second>, [](const auto& in) { return Points(in.first.intersect(in.second)); },
        allowance);
}

template <typename First, typename Second>
void AddSecondWithFirst(const std::string& name, const std::vector<Two<First, Second>>& inputs,
                        const Allowance& allowance = {})
{
    EnterConverted(
        name, Who, inputs, Both<First, Second>, [](const auto& in) { return Points(in.second.intersect(in.first)); },
        allowance);
}

/// Pairs of arcs and stretches with elliptical arcs are left out: it loses the points of 7 to 17 % of these inputs.
void AddIntersections()
{
    AddFirstWithSecond("segment/segment", StretchPairs());
    AddSecondWithFirst("beeline/circle", BeelinesAndCircles());
    AddSecondWithFirst("segment/circle", StretchesAndCircles());
    AddSecondWithFirst("segment/arc", StretchesAndArcs(), Numeric);
    AddFirstWithSecond("circle/circle", CirclePairs());
    AddSecondWithFirst("beeline/ellipse", BeelinesAndEllipses());
    AddSecondWithFirst("segment/ellipse", StretchesAndEllipses());
    AddFirstWithSecond("ellipse/ellipse", EllipsePairs(), Numeric);
    EnterConverted(
        "circle/ellipse", Who, CirclesAndEllipses(),
        [](const Two<Circle, Ellipse>& in) { return std::make_pair(Geom::Ellipse(Of(in.first)), Of(in.second)); },
        [](const auto& in) { return Points(in.first.intersect(in.second)); }, Numeric);
}

Geom::CubicBezier Bezier(const math::CSegment& s)
{
    return {Point(s.start), Point(s.ctrl1), Point(s.ctrl2), Point(s.end)};
}

Geom::EllipticalArc BulgedArc(const math::CSegment& s)
{
    const double chord = std::hypot(s.end.x - s.start.x, s.end.y - s.start.y);
    const double radius = 0.25 * chord * (std::abs(s.bulge) + 1.0 / std::abs(s.bulge));
    return {Point(s.start), radius, radius, 0.0, std::abs(s.bulge) > 1.0, s.bulge > 0.0, Point(s.end)};
}

void AddCurves()
{
    const auto at = [](auto make) {
        return [make](const SegmentAndParameter& in) { return std::make_pair(make(in.segment), in.t); };
    };
    const auto line = [](const math::CSegment& s) { return Geom::LineSegment(Point(s.start), Point(s.end)); };
    const auto pointAt = [](const auto& in) { return OfPoint(in.first.pointAt(in.second)); };
    EnterConverted("point of a line", Who, SegmentsAndParameters(Kind::Line), at(line), pointAt);
    EnterConverted("point of an arc", Who, SegmentsAndParameters(Kind::Arc), at(BulgedArc), pointAt);
    EnterConverted("point of a Bezier", Who, SegmentsAndParameters(Kind::Bezier), at(Bezier), pointAt);

    const auto beside = [](auto make) {
        return [make](const SegmentAndPoint& in) { return std::make_pair(make(in.segment), Point(in.point)); };
    };
    const auto nearest = [](const auto& in) {
        return OfPoint(in.first.pointAt(in.first.nearestTime(in.second, 0.0, 1.0)));
    };
    EnterConverted("nearest point of a line", Who, SegmentsAndPoints(Kind::Line), beside(line), nearest);
    EnterConverted("nearest point of an arc", Who, SegmentsAndPoints(Kind::Arc), beside(BulgedArc), nearest, Iterated);
    // To the tolerance that the rectangle rule reaches at worst; their own methods are adaptive.
    EnterConverted(
        "length of a Bezier", Who, SegmentsAndPoints(Kind::Bezier), beside(Bezier),
        [](const auto& in) { return in.first.length(1e-3); }, NotCompared);
    // The exact box, where the library samples 1001 points.
    EnterConverted(
        "box of a Bezier", Who, SegmentsAndPoints(Kind::Bezier), beside(Bezier),
        [](const auto& in) {
            const Geom::Rect box = in.first.boundsExact();
            return Answer{4, {box.left(), box.top(), box.width(), box.height()}};
        },
        NotCompared);
}

struct OwnOutline
{
    Geom::Path path;
    double position;
    Geom::Point point;
};

OwnOutline Straight(const OutlineInput& in)
{
    OwnOutline own;
    own.path.start(Point(in.outline.start));
    for (const auto& node : in.outline.nodes)
    {
        own.path.appendNew<Geom::LineSegment>(Point(node.point));
    }
    own.path.close();
    own.position = in.position;
    own.point = Point(in.point);
    return own;
}

double Length(const Geom::Path& path)
{
    double length = 0.0;
    for (const Geom::Curve& curve : path)
    {
        length += curve.length(0.01);
    }
    return length;
}

void AddOutlines(std::size_t size)
{
    const std::string suffix = ", straight, " + std::to_string(size);
    const std::vector<OutlineInput>& inputs = StraightOutlines(size);
    EnterConverted("length" + suffix, Who, inputs, Straight, [](const OwnOutline& in) { return Length(in.path); });
    EnterConverted("area" + suffix, Who, inputs, Straight, [](const OwnOutline& in) {
        Geom::Point centre;
        double area = 0.0;
        Geom::centroid(in.path.toPwSb(), centre, area);
        return std::abs(area);
    });
    EnterConverted("box" + suffix, Who, inputs, Straight, [](const OwnOutline& in) {
        const Geom::Rect box = *in.path.boundsExact();
        return Answer{4, {box.left(), box.top(), box.width(), box.height()}};
    });
    EnterConverted("nearest" + suffix, Who, inputs, Straight, [](const OwnOutline& in) {
        double distance = 0.0;
        in.path.nearestTime(in.point, &distance);
        return distance;
    });
    EnterConverted("point at a position" + suffix, Who, inputs, Straight,
                   [](const OwnOutline& in) { return OfPoint(in.path.pointAt(in.position)); });
}

} // namespace

void AddLib2geom()
{
    AddIntersections();
    AddCurves();
    for (const std::size_t size : OutlineSizes)
    {
        AddOutlines(size);
    }
}

} // namespace bench
