#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"
#include "primitives/RoundingUnit.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include <Standard_Real.hxx>
#include <gp.hxx>

using math::detail::RoundingUnit;

namespace
{

// A difference of exactly 1e-9 still counts as none here, unlike DoubleTolerance elsewhere.
constexpr double ParallelTolerance = 1e-9;

// The line a x + b y + c = 0.
struct LineEquation
{
    double a;
    double b;
    double c;
};

LineEquation EquationOf(const gp_Lin2d& line)
{
    LineEquation equation;
    line.Coefficients(equation.a, equation.b, equation.c);
    return equation;
}

LineEquation Exchanged(const LineEquation& equation)
{
    return {equation.b, equation.a, equation.c};
}

// Two equations of which the first has the greatest of all four coefficients in `a`, if need be after x and y have been
// exchanged.
struct PivotedPair
{
    LineEquation pivot;
    LineEquation other;
    bool isExchanged;
};

PivotedPair Pivoted(const LineEquation& first, const LineEquation& second)
{
    const double greatest = std::max({std::abs(first.a), std::abs(second.a), std::abs(first.b), std::abs(second.b)});
    if (std::abs(first.a) == greatest)
    {
        return {first, second, false};
    }
    if (std::abs(first.b) == greatest)
    {
        return {Exchanged(first), Exchanged(second), true};
    }
    if (std::abs(second.a) == greatest)
    {
        return {second, first, false};
    }
    return {Exchanged(second), Exchanged(first), true};
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

IntAna2d_IntPoint PointOnLineAndCircle(const gp_Lin2d& line, const gp_Circ2d& circle, double x, double y)
{
    const gp_Pnt2d point(x, y);
    return {x, y, ElCLib::LineParameter(line.Position(), point), ParameterOnCircle(circle, point)};
}

} // namespace

void IntAna2d_AnaIntersection::Perform(const gp_Lin2d& first, const gp_Lin2d& second)
{
    isDone = false;
    const LineEquation equation1 = EquationOf(first);
    const LineEquation equation2 = EquationOf(second);
    const auto [pivot, other, isExchanged] = Pivoted(equation1, equation2);
    const double ratio = other.a / pivot.a;
    const double denominator = other.b - ratio * pivot.b;
    if (std::abs(denominator) <= ParallelTolerance)
    {
        SetCoincidence(std::abs(other.c - ratio * pivot.c) <= ParallelTolerance);
        isDone = true;
        return;
    }
    SetPointCount(1);
    double x = (pivot.b * other.c / pivot.a - other.b * pivot.c / pivot.a) / denominator;
    double y = (ratio * pivot.c - other.c) / denominator;
    if (isExchanged)
    {
        std::swap(x, y);
    }
    points[0].SetValue(x, y, ParameterOnLine(first, equation1, x, y), ParameterOnLine(second, equation2, x, y));
    isDone = true;
}

void IntAna2d_AnaIntersection::Perform(const gp_Lin2d& line, const gp_Circ2d& circle)
{
    isDone = false;
    const auto [a, b, c] = EquationOf(line);
    const double radius = circle.Radius();
    const double unit = RoundingUnit(radius);
    const gp_Pnt2d& centre = circle.Location();
    const double signedDistance = a * centre.X() + b * centre.Y() + c;
    const double excess = std::abs(signedDistance) - radius;
    if (excess > unit)
    {
        SetPointCount(0);
        isDone = true;
        return;
    }
    const double footX = centre.X() - signedDistance * a;
    const double footY = centre.Y() - signedDistance * b;
    // Written so that a line of NaN counts two points.
    if (std::abs(excess) <= unit)
    {
        SetPointCount(1);
        points[0] = PointOnLineAndCircle(line, circle, footX, footY);
    }
    else
    {
        SetPointCount(2);
        const double halfChord = Sqrt(radius * radius - signedDistance * signedDistance);
        points[0] = PointOnLineAndCircle(line, circle, footX - halfChord * b, footY + halfChord * a);
        points[1] = PointOnLineAndCircle(line, circle, footX + halfChord * b, footY - halfChord * a);
    }
    isDone = true;
}
