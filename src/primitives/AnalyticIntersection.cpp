#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"
#include "primitives/Constants.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include <Standard_OutOfRange.hxx>
#include <Standard_Real.hxx>
#include <StdFail_NotDone.hxx>
#include <gp.hxx>
#include <gp_Vec2d.hxx>

namespace
{

using math::detail::Pi;
using math::detail::TwoPi;

// A difference of exactly 1e-9 still counts as none here, unlike DoubleTolerance elsewhere.
constexpr double ParallelTolerance = 1e-9;
constexpr double ConcentricTolerance = 1e-9;

// Distance to the next double away from zero. The toolkit's NextAfter goes from 0 to the least normal number, the C
// runtime's to the least subnormal one.
double RoundingUnit(double value)
{
    constexpr double greatest = std::numeric_limits<double>::max();
    return value >= 0.0 ? NextAfter(value, greatest) - value : value - NextAfter(value, -greatest);
}

// ---- Lines ----

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

// ---- Circles ----

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

double DirectionFromXAxis(const gp_Circ2d& circle, const gp_Vec2d& direction)
{
    return gp_Vec2d(circle.XAxis().Direction()).Angle(direction);
}

double RaisedToPositive(double angle)
{
    return angle < 0.0 ? angle + TwoPi : angle;
}

double FoldedOnce(double angle)
{
    if (angle < 0.0)
    {
        return angle + TwoPi;
    }
    return angle >= TwoPi ? angle - TwoPi : angle;
}

// Angle of a right triangle between the hypotenuse and the leg `adjacent`. The change-over keeps the inverse functions
// away from their steep ends.
double AngleBesideLeg(double adjacent, double opposite, double hypotenuse)
{
    const double cosine = adjacent / hypotenuse;
    if (std::abs(cosine) <= 0.707)
    {
        return ACos(cosine);
    }
    const double angle = ASin(opposite / hypotenuse);
    return cosine < 0.0 ? Pi - angle : angle;
}

IntAna2d_IntPoint TouchFromOutside(const gp_Circ2d& first, const gp_Circ2d& second)
{
    const gp_Pnt2d& centre1 = first.Location();
    const gp_Pnt2d& centre2 = second.Location();
    const double radius1 = first.Radius();
    const double radius2 = second.Radius();
    const double sum = radius1 + radius2;
    const gp_Vec2d between(centre1, centre2);
    return {(centre1.X() * radius2 + radius1 * centre2.X()) / sum,
            (centre1.Y() * radius2 + radius1 * centre2.Y()) / sum, RaisedToPositive(DirectionFromXAxis(first, between)),
            // Not folded: the one parameter that may come out negative of nothing and reach 2π.
            DirectionFromXAxis(second, between) + Pi};
}

IntAna2d_IntPoint TouchFromInside(const gp_Circ2d& first, const gp_Circ2d& second)
{
    const gp_Pnt2d& centre1 = first.Location();
    const gp_Pnt2d& centre2 = second.Location();
    const double radius1 = first.Radius();
    const double radius2 = second.Radius();
    gp_Vec2d towardsTouch(centre1, centre2);
    if (radius1 < radius2)
    {
        towardsTouch.Reverse();
    }
    const double difference = radius2 - radius1;
    return {(radius2 * centre1.X() - radius1 * centre2.X()) / difference,
            (radius2 * centre1.Y() - radius1 * centre2.Y()) / difference,
            RaisedToPositive(DirectionFromXAxis(first, towardsTouch)),
            RaisedToPositive(DirectionFromXAxis(second, towardsTouch))};
}

// The two points in which circles cross: `left` and `right` of the way from the first centre to the second.
struct Crossing
{
    IntAna2d_IntPoint left;
    IntAna2d_IntPoint right;
};

Crossing CrossingOf(const gp_Circ2d& first, const gp_Circ2d& second)
{
    const gp_Vec2d between(first.Location(), second.Location());
    const double distance = first.Location().Distance(second.Location());
    const double radius1 = first.Radius();
    const double radius2 = second.Radius();
    const double direction1 = DirectionFromXAxis(first, between);
    const double direction2 = DirectionFromXAxis(second, between);

    double toChord = (distance * distance + radius1 * radius1 - radius2 * radius2) / (2.0 * distance);
    if (radius1 * radius1 - toChord * toChord < 0.0)
    {
        toChord = toChord > 0.0 ? radius1 : -radius1;
    }
    const double halfChord = Sqrt(radius1 * radius1 - toChord * toChord);
    const double ratio = toChord / distance;
    const double baseX = first.Location().X() + ratio * between.X();
    const double baseY = first.Location().Y() + ratio * between.Y();
    const double acrossX = between.Y() * halfChord / distance;
    const double acrossY = between.X() * halfChord / distance;

    const double angle1 = AngleBesideLeg(toChord, halfChord, radius1);
    const double angle2 = AngleBesideLeg(toChord - distance, halfChord, radius2);
    return {{baseX - acrossX, baseY + acrossY, FoldedOnce(angle1 + direction1), FoldedOnce(angle2 + direction2)},
            {baseX + acrossX, baseY - acrossY, FoldedOnce(direction1 - angle1), FoldedOnce(direction2 - angle2)}};
}

} // namespace

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection()
    : isDone(false),
      isParallel(false),
      isIdentical(false),
      isEmpty(false),
      pointCount(0)
{
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d& first, const gp_Lin2d& second)
    : IntAna2d_AnaIntersection()
{
    Perform(first, second);
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Circ2d& first, const gp_Circ2d& second)
    : IntAna2d_AnaIntersection()
{
    Perform(first, second);
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const gp_Lin2d& line, const gp_Circ2d& circle)
    : IntAna2d_AnaIntersection()
{
    Perform(line, circle);
}

IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(const IntAna2d_AnaIntersection& other) = default;

IntAna2d_AnaIntersection& IntAna2d_AnaIntersection::operator=(const IntAna2d_AnaIntersection& other) = default;

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

void IntAna2d_AnaIntersection::Perform(const gp_Circ2d& first, const gp_Circ2d& second)
{
    isDone = false;
    const double distance = first.Location().Distance(second.Location());
    const double sum = first.Radius() + second.Radius();
    const double difference = std::abs(first.Radius() - second.Radius());
    const double unit = RoundingUnit(sum);
    if (distance <= ConcentricTolerance)
    {
        SetCoincidence(difference <= ConcentricTolerance);
    }
    else if (distance - sum > unit)
    {
        SetPointCount(0);
    }
    else if (std::abs(distance - sum) <= unit)
    {
        SetPointCount(1);
        points[0] = TouchFromOutside(first, second);
    }
    else if (sum - distance > unit && distance - difference > RoundingUnit(difference + distance))
    {
        SetPointCount(2);
        const Crossing crossing = CrossingOf(first, second);
        points[0] = crossing.left;
        points[1] = crossing.right;
    }
    else if (std::abs(distance - difference) <= unit)
    {
        SetPointCount(1);
        points[0] = TouchFromInside(first, second);
    }
    else
    {
        SetPointCount(0);
    }
    isDone = true;
}

// Elements that meet in single points, or nowhere.
void IntAna2d_AnaIntersection::SetPointCount(int count)
{
    isParallel = false;
    isIdentical = false;
    isEmpty = count == 0;
    pointCount = count;
}

// Parallel lines or concentric circles.
void IntAna2d_AnaIntersection::SetCoincidence(bool areIdentical)
{
    isParallel = true;
    isIdentical = areIdentical;
    isEmpty = !areIdentical;
    pointCount = 0;
}

bool IntAna2d_AnaIntersection::IsDone() const
{
    return isDone;
}

bool IntAna2d_AnaIntersection::IsParallel() const
{
    return isParallel;
}

bool IntAna2d_AnaIntersection::IsIdentical() const
{
    return isIdentical;
}

bool IntAna2d_AnaIntersection::IsEmpty() const
{
    return isEmpty;
}

int IntAna2d_AnaIntersection::PointCount() const
{
    return pointCount;
}

const IntAna2d_IntPoint& IntAna2d_AnaIntersection::Point(int n) const
{
    if (!isDone)
    {
        throw StdFail_NotDone();
    }
    if (n < 1 || n > pointCount)
    {
        throw Standard_OutOfRange();
    }
    return points[n - 1];
}
