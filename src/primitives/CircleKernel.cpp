#include "primitives/RequireChecks.h"

#include "math/AnalyticKernel.h"
#include "primitives/Constants.h"
#include "primitives/Meetings.h"

#include <cmath>

#include <Standard_Real.hxx>
#include <gp_Vec2d.hxx>

namespace math::detail
{

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

} // namespace math::detail

using math::detail::AngleBesideLeg;
using math::detail::CircleMeeting;
using math::detail::CirclePlacement;
using math::detail::Pi;
using math::detail::TwoPi;

namespace
{

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

IntAna2d_IntPoint TouchFromOutside(const gp_Circ2d& first, const gp_Circ2d& second, const math::DPOINT2& touch)
{
    const gp_Vec2d between(first.Location(), second.Location());
    return {touch.x, touch.y, RaisedToPositive(DirectionFromXAxis(first, between)),
            // From the second centre the touch lies the other way; this parameter is not folded.
            DirectionFromXAxis(second, between) + Pi};
}

IntAna2d_IntPoint TouchFromInside(const gp_Circ2d& first, const gp_Circ2d& second, const math::DPOINT2& touch)
{
    gp_Vec2d towardsTouch(first.Location(), second.Location());
    if (first.Radius() < second.Radius())
    {
        towardsTouch.Reverse();
    }
    return {touch.x, touch.y, RaisedToPositive(DirectionFromXAxis(first, towardsTouch)),
            RaisedToPositive(DirectionFromXAxis(second, towardsTouch))};
}

// The two points in which circles cross: `left` and `right` of the way from the first centre to the second.
struct Crossing
{
    IntAna2d_IntPoint left;
    IntAna2d_IntPoint right;
};

Crossing CrossingOf(const gp_Circ2d& first, const gp_Circ2d& second, const CircleMeeting& meeting)
{
    const gp_Vec2d between(first.Location(), second.Location());
    const double direction1 = DirectionFromXAxis(first, between);
    const double direction2 = DirectionFromXAxis(second, between);
    const double angle1 = AngleBesideLeg(meeting.toChord, meeting.halfChord, first.Radius());
    const double angle2 = AngleBesideLeg(meeting.toChord - meeting.distance, meeting.halfChord, second.Radius());
    const auto& [left, right] = meeting.points;
    return {{left.x, left.y, FoldedOnce(angle1 + direction1), FoldedOnce(angle2 + direction2)},
            {right.x, right.y, FoldedOnce(direction1 - angle1), FoldedOnce(direction2 - angle2)}};
}

} // namespace

void IntAna2d_AnaIntersection::Perform(const gp_Circ2d& first, const gp_Circ2d& second)
{
    isDone = false;
    const CircleMeeting meeting =
        math::detail::MeetCircles({first.Location().X(), first.Location().Y()}, first.Radius(),
                                  {second.Location().X(), second.Location().Y()}, second.Radius());
    SetPointCount(meeting.PointCount());
    switch (meeting.placement)
    {
    case CirclePlacement::Concentric:
    case CirclePlacement::Identical:
        SetCoincidence(meeting.placement == CirclePlacement::Identical);
        break;
    case CirclePlacement::TouchingFromOutside:
        points[0] = TouchFromOutside(first, second, meeting.points[0]);
        break;
    case CirclePlacement::TouchingFromInside:
        points[0] = TouchFromInside(first, second, meeting.points[0]);
        break;
    case CirclePlacement::Crossing: {
        const Crossing crossing = CrossingOf(first, second, meeting);
        points[0] = crossing.left;
        points[1] = crossing.right;
        break;
    }
    case CirclePlacement::Apart:
        break;
    }
    isDone = true;
}
