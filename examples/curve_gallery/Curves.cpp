#include "Curves.h"

#include "math/Intersect.h"

#include <stdexcept>

namespace example::gallery
{

namespace
{

using math::DPOINT2;

constexpr int AllPoints = -1; // in every meaning that the trailing argument of a vector form has

/// Calls the vector form of the member for two kinds of curves.
struct Meeting
{
    std::vector<DPOINT2>& points;

    int operator()(const Beeline& first, const Beeline& second) const
    {
        return math::Intersect_BeelineWithBeeline(first.point, first.angle, second.point, second.angle, points,
                                                  AllPoints);
    }

    int operator()(const Beeline& first, const Line& second) const
    {
        return math::Intersect_BeelineWithLine(first.point, first.angle, second.firstEnd, second.secondEnd, points,
                                               AllPoints);
    }

    int operator()(const Line& first, const Line& second) const
    {
        return math::Intersect_LineWithLine(first.firstEnd, first.secondEnd, second.firstEnd, second.secondEnd, points,
                                            AllPoints);
    }

    int operator()(const Beeline& first, const Circle& second) const
    {
        return math::Intersect_BeelineWithCircle(first.point, first.angle, second.centre, second.radius, points,
                                                 AllPoints);
    }

    int operator()(const Beeline& first, const Arc& second) const
    {
        return math::Intersect_BeelineWithArc(first.point, first.angle, second.circle.centre, second.circle.radius,
                                              second.start, second.sweep, points, AllPoints);
    }

    int operator()(const Line& first, const Circle& second) const
    {
        return math::Intersect_LineWithCircle(first.firstEnd, first.secondEnd, second.centre, second.radius, points,
                                              AllPoints);
    }

    int operator()(const Line& first, const Arc& second) const
    {
        return math::Intersect_LineWithArc(first.firstEnd, first.secondEnd, second.circle.centre, second.circle.radius,
                                           second.start, second.sweep, points, AllPoints);
    }

    int operator()(const Circle& first, const Circle& second) const
    {
        return math::Intersect_CircleWithCircle(first.centre, first.radius, second.centre, second.radius, points,
                                                AllPoints);
    }

    int operator()(const Circle& first, const Arc& second) const
    {
        return math::Intersect_CircleWithArc(first.centre, first.radius, second.circle.centre, second.circle.radius,
                                             second.start, second.sweep, points, AllPoints);
    }

    int operator()(const Arc& first, const Arc& second) const
    {
        return math::Intersect_ArcWithArc(first.circle.centre, first.circle.radius, first.start, first.sweep,
                                          second.circle.centre, second.circle.radius, second.start, second.sweep,
                                          points, AllPoints);
    }

    int operator()(const Beeline& first, const Ellipse& second) const
    {
        return math::Intersect_BeelineWithEllipse(first.point, first.angle, second.centre, second.a, second.b,
                                                  second.rotation, points, AllPoints);
    }

    int operator()(const Beeline& first, const EllipseArc& second) const
    {
        return math::Intersect_BeelineWithEllipseArc(first.point, first.angle, second.ellipse.centre, second.ellipse.a,
                                                     second.ellipse.b, second.ellipse.rotation, second.start,
                                                     second.sweep, points, AllPoints);
    }

    int operator()(const Line& first, const Ellipse& second) const
    {
        return math::Intersect_LineWithEllipse(first.firstEnd, first.secondEnd, second.centre, second.a, second.b,
                                               second.rotation, points, AllPoints);
    }

    int operator()(const Line& first, const EllipseArc& second) const
    {
        return math::Intersect_LineWithEllipseArc(first.firstEnd, first.secondEnd, second.ellipse.centre,
                                                  second.ellipse.a, second.ellipse.b, second.ellipse.rotation,
                                                  second.start, second.sweep, points, AllPoints);
    }

    int operator()(const Ellipse& first, const Ellipse& second) const
    {
        return math::Intersect_EllipseWithEllipse(first.centre, first.a, first.b, first.rotation, second.centre,
                                                  second.a, second.b, second.rotation, points, AllPoints);
    }

    int operator()(const Ellipse& first, const EllipseArc& second) const
    {
        return math::Intersect_EllipseWithEllipseArc(
            first.centre, first.a, first.b, first.rotation, second.ellipse.centre, second.ellipse.a, second.ellipse.b,
            second.ellipse.rotation, second.start, second.sweep, points, AllPoints);
    }

    int operator()(const EllipseArc& first, const EllipseArc& second) const
    {
        return math::Intersect_EllipseArcWithEllipseArc(
            first.ellipse.centre, first.ellipse.a, first.ellipse.b, first.ellipse.rotation, first.start, first.sweep,
            second.ellipse.centre, second.ellipse.a, second.ellipse.b, second.ellipse.rotation, second.start,
            second.sweep, points, AllPoints);
    }

    int operator()(const Circle& first, const Ellipse& second) const
    {
        return math::Intersect_CircleWithEllipse(first.centre, first.radius, second.centre, second.a, second.b,
                                                 second.rotation, points, AllPoints);
    }

    int operator()(const Circle& first, const EllipseArc& second) const
    {
        return math::Intersect_CircleWithEllipseArc(first.centre, first.radius, second.ellipse.centre, second.ellipse.a,
                                                    second.ellipse.b, second.ellipse.rotation, second.start,
                                                    second.sweep, points, AllPoints);
    }

    int operator()(const Arc& first, const Ellipse& second) const
    {
        return math::Intersect_ArcWithEllipse(first.circle.centre, first.circle.radius, first.start, first.sweep,
                                              second.centre, second.a, second.b, second.rotation, points, AllPoints);
    }

    int operator()(const Arc& first, const EllipseArc& second) const
    {
        return math::Intersect_ArcWithEllipseArc(
            first.circle.centre, first.circle.radius, first.start, first.sweep, second.ellipse.centre, second.ellipse.a,
            second.ellipse.b, second.ellipse.rotation, second.start, second.sweep, points, AllPoints);
    }

    template <typename First, typename Second>
    int operator()(const First&, const Second&) const
    {
        throw std::logic_error("no member of the family takes these curves in this order");
    }
};

struct Name
{
    const char* operator()(const Beeline&) const
    {
        return "Beeline";
    }

    const char* operator()(const Line&) const
    {
        return "Line";
    }

    const char* operator()(const Circle&) const
    {
        return "Circle";
    }

    const char* operator()(const Arc&) const
    {
        return "Arc";
    }

    const char* operator()(const Ellipse&) const
    {
        return "Ellipse";
    }

    const char* operator()(const EllipseArc&) const
    {
        return "EllipseArc";
    }
};

} // namespace

std::string KindOf(const Curve& curve)
{
    return std::visit(Name{}, curve);
}

int Intersect(const Curve& first, const Curve& second, std::vector<DPOINT2>& points)
{
    return std::visit(Meeting{points}, first, second);
}

} // namespace example::gallery
