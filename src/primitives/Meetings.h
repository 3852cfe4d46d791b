#pragma once

#include "math/Primitives.h"
#include "primitives/Distance.h"
#include "primitives/RoundingUnit.h"
#include "primitives/Straight.h"
#include "primitives/TwoNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

/// Where lines and circles meet: the coordinates alone, which is all that most callers want. The analytic kernel adds
/// the parameters of the points.
namespace math::detail
{

/// A difference of exactly 1e-9 still counts as none here, unlike DoubleTolerance elsewhere.
inline constexpr double KernelTolerance = 1e-9;

/// The line a x + b y + c = 0.
struct LineEquation
{
    double a;
    double b;
    double c;
};

inline LineEquation EquationOf(const StraightLine& line)
{
    const double a = line.direction.y;
    const double b = -line.direction.x;
    return {a, b, -(a * line.location.x + b * line.location.y)};
}

/// Two equations of which the first has the greatest of all four coefficients in `a`, if need be after x and y have
/// been exchanged.
struct PivotedPair
{
    LineEquation pivot;
    LineEquation other;
    bool isExchanged;
};

/// Of equal coefficients the one that comes first counts: the order is a and b of the first line, then of the second.
inline PivotedPair Pivoted(const LineEquation& first, const LineEquation& second)
{
    const double greatest = std::max({std::abs(first.a), std::abs(second.a), std::abs(first.b), std::abs(second.b)});
    const bool isInFirst = std::abs(first.a) == greatest || std::abs(first.b) == greatest;
    LineEquation pivot = isInFirst ? first : second;
    LineEquation other = isInFirst ? second : first;
    const bool isExchanged = std::abs(pivot.a) != greatest;
    if (isExchanged)
    {
        std::swap(pivot.a, pivot.b);
        std::swap(other.a, other.b);
    }
    return {pivot, other, isExchanged};
}

/// Two lines.
struct LineMeeting
{
    bool isParallel;
    bool isIdentical;
    DPOINT2 point;
};

inline LineMeeting MeetLines(const LineEquation& first, const LineEquation& second)
{
    const auto [pivot, other, isExchanged] = Pivoted(first, second);
    const double ratio = other.a / pivot.a;
    const double denominator = other.b - ratio * pivot.b;
    if (std::abs(denominator) <= KernelTolerance)
    {
        return {true, std::abs(other.c - ratio * pivot.c) <= KernelTolerance, {}};
    }
    const auto [fromOther, fromPivot] = (TwoNumbers(pivot.b * other.c, other.b * pivot.c) / pivot.a).Values();
    const auto [x, y] = (TwoNumbers(fromOther - fromPivot, ratio * pivot.c - other.c) / denominator).Values();
    return {false, false, isExchanged ? DPOINT2(y, x) : DPOINT2(x, y)};
}

/// A line and a circle: the first `count` points.
struct LineCircleMeeting
{
    int count = 0;
    std::array<DPOINT2, 2> points;
};

inline LineCircleMeeting MeetLineWithCircle(const LineEquation& line, const DPOINT2& centre, double radius)
{
    LineCircleMeeting meeting;
    const auto& [a, b, c] = line;
    const double unit = RoundingUnit(radius);
    const double signedDistance = a * centre.x + b * centre.y + c;
    const double excess = std::abs(signedDistance) - radius;
    if (excess > unit)
    {
        return meeting;
    }
    const double footX = centre.x - signedDistance * a;
    const double footY = centre.y - signedDistance * b;
    // Written so that a line of NaN counts two points.
    if (std::abs(excess) <= unit)
    {
        meeting.count = 1;
        meeting.points[0] = {footX, footY};
        return meeting;
    }
    const double halfChord = std::sqrt(radius * radius - signedDistance * signedDistance);
    meeting.count = 2;
    meeting.points[0] = {footX - halfChord * b, footY + halfChord * a};
    meeting.points[1] = {footX + halfChord * b, footY - halfChord * a};
    return meeting;
}

/// Angle of a right triangle between the hypotenuse and the leg `adjacent`. The change-over keeps the inverse functions
/// away from their steep ends.
///
/// @throws Standard_RangeError where rounding has made the leg `opposite` longer than the hypotenuse
double AngleBesideLeg(double adjacent, double opposite, double hypotenuse);

/// How two circles lie.
enum class CirclePlacement
{
    Concentric,
    Identical,
    Apart, ///< one beside the other or inside it
    TouchingFromOutside,
    TouchingFromInside,
    Crossing
};

/// Two circles: the points that go with their placement.
struct CircleMeeting
{
    CirclePlacement placement = CirclePlacement::Apart;
    std::array<DPOINT2, 2> points; ///< of a crossing: left and right of the way from the first centre to the second
    double distance = 0.0;
    double toChord = 0.0;   ///< of a crossing: from the first centre to the chord, towards the second centre
    double halfChord = 0.0; ///< of a crossing

    int PointCount() const
    {
        switch (placement)
        {
        case CirclePlacement::Crossing:
            return 2;
        case CirclePlacement::TouchingFromOutside:
        case CirclePlacement::TouchingFromInside:
            return 1;
        default:
            return 0;
        }
    }
};

inline CirclePlacement PlacementOf(double distance, double radius1, double radius2)
{
    const double sum = radius1 + radius2;
    const double difference = std::abs(radius1 - radius2);
    const double unit = RoundingUnit(sum);
    if (distance <= KernelTolerance)
    {
        return difference <= KernelTolerance ? CirclePlacement::Identical : CirclePlacement::Concentric;
    }
    if (distance - sum > unit)
    {
        return CirclePlacement::Apart;
    }
    if (std::abs(distance - sum) <= unit)
    {
        return CirclePlacement::TouchingFromOutside;
    }
    if (sum - distance > unit && distance - difference > RoundingUnit(difference + distance))
    {
        return CirclePlacement::Crossing;
    }
    return std::abs(distance - difference) <= unit ? CirclePlacement::TouchingFromInside : CirclePlacement::Apart;
}

inline void FindCrossing(const DPOINT2& centre1, double radius1, const DPOINT2& centre2, double radius2,
                         CircleMeeting& meeting)
{
    const double distance = meeting.distance;
    const double betweenX = centre2.x - centre1.x;
    const double betweenY = centre2.y - centre1.y;
    double toChord = (distance * distance + radius1 * radius1 - radius2 * radius2) / (2.0 * distance);
    if (radius1 * radius1 - toChord * toChord < 0.0)
    {
        toChord = toChord > 0.0 ? radius1 : -radius1;
    }
    const double halfChord = std::sqrt(radius1 * radius1 - toChord * toChord);
    const double ratio = toChord / distance;
    const double baseX = centre1.x + ratio * betweenX;
    const double baseY = centre1.y + ratio * betweenY;
    const double acrossX = betweenY * halfChord / distance;
    const double acrossY = betweenX * halfChord / distance;
    meeting.toChord = toChord;
    meeting.halfChord = halfChord;
    meeting.points[0] = {baseX - acrossX, baseY + acrossY};
    meeting.points[1] = {baseX + acrossX, baseY - acrossY};
}

inline CircleMeeting MeetCircles(const DPOINT2& centre1, double radius1, const DPOINT2& centre2, double radius2)
{
    CircleMeeting meeting;
    meeting.distance = Distance(centre1, centre2);
    meeting.placement = PlacementOf(meeting.distance, radius1, radius2);
    if (meeting.placement == CirclePlacement::TouchingFromOutside)
    {
        const double sum = radius1 + radius2;
        meeting.points[0] = {(centre1.x * radius2 + radius1 * centre2.x) / sum,
                             (centre1.y * radius2 + radius1 * centre2.y) / sum};
    }
    else if (meeting.placement == CirclePlacement::TouchingFromInside)
    {
        const double difference = radius2 - radius1;
        meeting.points[0] = {(radius2 * centre1.x - radius1 * centre2.x) / difference,
                             (radius2 * centre1.y - radius1 * centre2.y) / difference};
    }
    else if (meeting.placement == CirclePlacement::Crossing)
    {
        FindCrossing(centre1, radius1, centre2, radius2, meeting);
    }
    return meeting;
}

} // namespace math::detail
