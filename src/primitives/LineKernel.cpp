#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"
#include "primitives/Meetings.h"

#include <cmath>
#include <cstddef>

#include <gp.hxx>

using math::detail::LineEquation;

namespace
{

LineEquation EquationOf(const gp_Lin2d& line)
{
    LineEquation equation{};
    line.Coefficients(equation.a, equation.b, equation.c);
    return equation;
}

double ParameterOnLine(const gp_Lin2d& line, const LineEquation& equation, double x, double y)
{
    if (std::abs(equation.a) < std::abs(equation.b))
    {
        return (line.Location().X() - x) / equation.b;
    }
    return (y - line.Location().Y()) / equation.a;
}

// The centre has no direction, for which the toolkit would raise an exception: it gets the parameter 0.
double ParameterOnCircle(const gp_Circ2d& circle, const gp_Pnt2d& point)
{
    if (circle.Location().Distance(point) <= gp::Resolution())
    {
        return 0.0;
    }
    return ElCLib::CircleParameter(circle.Axis(), point);
}

IntAna2d_IntPoint PointOnLineAndCircle(const gp_Lin2d& line, const gp_Circ2d& circle, const math::DPOINT2& point)
{
    const gp_Pnt2d place(point.x, point.y);
    return {point.x, point.y, ElCLib::LineParameter(line.Position(), place), ParameterOnCircle(circle, place)};
}

} // namespace

void IntAna2d_AnaIntersection::Perform(const gp_Lin2d& first, const gp_Lin2d& second)
{
    isDone = false;
    const LineEquation equation1 = EquationOf(first);
    const LineEquation equation2 = EquationOf(second);
    const math::detail::LineMeeting meeting = math::detail::MeetLines(equation1, equation2);
    if (meeting.isParallel)
    {
        SetCoincidence(meeting.isIdentical);
    }
    else
    {
        const auto& [x, y] = meeting.point;
        SetPointCount(1);
        points[0].SetValue(x, y, ParameterOnLine(first, equation1, x, y), ParameterOnLine(second, equation2, x, y));
    }
    isDone = true;
}

void IntAna2d_AnaIntersection::Perform(const gp_Lin2d& line, const gp_Circ2d& circle)
{
    isDone = false;
    const gp_Pnt2d& centre = circle.Location();
    const math::detail::LineCircleMeeting meeting =
        math::detail::MeetLineWithCircle(EquationOf(line), {centre.X(), centre.Y()}, circle.Radius());
    SetPointCount(meeting.count);
    for (int i = 0; i < meeting.count; ++i)
    {
        points[i] = PointOnLineAndCircle(line, circle, meeting.points[static_cast<std::size_t>(i)]);
    }
    isDone = true;
}
