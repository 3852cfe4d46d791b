#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"
#include "primitives/Constants.h"
#include "primitives/RoundingUnit.h"

#include <cmath>

#include <Standard_Real.hxx>
#include <gp_Vec2d.hxx>

using math::detail::Pi;
using math::detail::RoundingUnit;
using math::detail::TwoPi;

namespace
{

// A difference of exactly 1e-9 still counts as none here, unlike DoubleTolerance elsewhere.
constexpr double ConcentricTolerance = 1e-9;

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
            // From the second centre the touch lies the other way; this parameter is not folded.
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
