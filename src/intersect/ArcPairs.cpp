#include "intersect/ArcPairs.h"

#include "intersect/Iteration.h"
#include "intersect/SureHalving.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>

namespace math::detail
{

namespace
{

/// Brings an end of both spans to one x: that of A's end if B can be met there, else that of B's.
void ShareEnd(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, DPOINT2& endOfA, DPOINT2& endOfB,
              DPOINT2& hit)
{
    if (arcB.MeetVertical(endOfA.x, hit) == 1)
    {
        endOfB = hit;
        return;
    }
    arcA.MeetVertical(endOfB.x, hit);
    endOfA = hit;
}

bool IsStrictlyAbove(const ArcSpan& upper, const ArcSpan& lower)
{
    return upper.left.y > lower.left.y && upper.left.y > lower.right.y && upper.right.y > lower.left.y &&
           upper.right.y > lower.right.y;
}

/// The direction of an arc at a point as an angle about the horizontal; a vertical one has the sign of the arc's rise.
double SlopeAngle(const EllipseQuarterArc& arc, const ArcSpan& span, const DPOINT2& point)
{
    const double tangent = arc.TangentAngleAt(point);
    if (AreEqual(tangent, HalfPi))
    {
        return span.right.y - span.left.y > 0.0 ? tangent : tangent * -1.0;
    }
    return tangent > HalfPi ? tangent - Pi : tangent;
}

/// Two arcs over their shared range of x.
struct ArcPair
{
    const EllipseQuarterArc& arcA;
    const EllipseQuarterArc& arcB;
    ArcSpan spanA;
    ArcSpan spanB;

    double SlopeDifference(const DPOINT2& onA, const DPOINT2& onB) const
    {
        return SlopeAngle(arcA, spanA, onA) - SlopeAngle(arcB, spanB, onB);
    }

    bool IsSurelyMetAt(double x) const
    {
        return detail::AreSurelyMetAt(arcA, arcB, x);
    }

    /// The difference of the slopes where both arcs are surely met; 0 if that of their angles might count as none.
    double ClearSlopeDifferenceAt(double x) const
    {
        const double slopeA = arcA.SlopeAt(x);
        const double slopeB = arcB.SlopeAt(x);
        const double margin = DoubleTolerance + arcA.Heights().AngleMargin() + arcB.Heights().AngleMargin();
        // The steeper the slopes are, the less do their angles differ.
        const double difference = slopeA - slopeB;
        return std::abs(difference) > margin * (1.0 + slopeA * slopeA + slopeB * slopeB) ? difference : 0.0;
    }

    /// A bound of the slope of the height difference: over a range the slope of each arc stays between those at the ends.
    double SteepestDifference(double left, double right) const
    {
        const auto [leastA, greatestA] = std::minmax({arcA.SlopeAt(left), arcA.SlopeAt(right)});
        const auto [leastB, greatestB] = std::minmax({arcB.SlopeAt(left), arcB.SlopeAt(right)});
        return std::max(greatestA - leastB, greatestB - leastA);
    }
};

struct SlopeSearch
{
    double low;
    double high;
    DPOINT2 onA;
    DPOINT2 onB;
};

/// The part of the search in which both arcs are surely met. Slopes decide where they are clear of each other, the
/// angles of the tangents elsewhere.
///
/// @return whether the search has come to its end
bool HalveBySureSlopes(SlopeSearch& search, const ArcPair& pair, double slopeDifferenceAtLeft)
{
    const auto chooseEnd = [&](double middle) {
        const double clear = pair.ClearSlopeDifferenceAt(middle);
        const double difference =
            clear != 0.0 ? clear : pair.SlopeDifference(pair.arcA.MeetingAt(middle), pair.arcB.MeetingAt(middle));
        return IsZero(difference) ? MovingEnd::Neither : ChooseEnd(difference, slopeDifferenceAtLeft);
    };
    SureHalving range{{search.low, search.high}};
    while (range.HalveOnce(pair.arcA, pair.arcB, chooseEnd))
    {
    }
    if (range.HasBegun())
    {
        search = {range.ends[0], range.ends[1], pair.arcA.MeetingAt(range.xOfLast), pair.arcB.MeetingAt(range.xOfLast)};
    }
    return range.isFound;
}

/// Halves the range towards the x where both arcs have one slope, that is, where their height difference turns.
SlopeSearch FindEqualSlopes(const ArcPair& pair, double slopeDifferenceAtLeft)
{
    SlopeSearch search{pair.spanA.left.x, pair.spanA.right.x, {}, {}};
    if (HalveBySureSlopes(search, pair, slopeDifferenceAtLeft) || !(search.high > search.low))
    {
        return search;
    }
    RunUntilItRepeats(search, [&](SlopeSearch& state) {
        const double middle = (state.high + state.low) * 0.5;
        pair.arcA.MeetVertical(middle, state.onA);
        pair.arcB.MeetVertical(middle, state.onB);
        const double difference = pair.SlopeDifference(state.onA, state.onB);
        if (IsZero(difference))
        {
            return false;
        }
        (ChooseEnd(difference, slopeDifferenceAtLeft) == MovingEnd::Low ? state.low : state.high) = state.onA.x;
        return state.high > state.low;
    });
    return search;
}

/// Whether beyond doubt the height difference keeps its sign up to the x where it turns. That x is closed in on only as
/// far as it takes to tell.
bool StaySurelyApart(const ArcPair& pair, double heightDifferenceAtLeft, double slopeDifferenceAtLeft)
{
    constexpr int mostHalvings = 16;
    double low = pair.spanA.left.x;
    double high = pair.spanA.right.x;
    for (int i = 0; i < mostHalvings; ++i)
    {
        const double middle = (high + low) * 0.5;
        if (!pair.IsSurelyMetAt(middle))
        {
            return false;
        }
        const double slopes = pair.ClearSlopeDifferenceAt(middle);
        const double heights = pair.arcA.HeightAt(middle) - pair.arcB.HeightAt(middle);
        if (slopes == 0.0 || !(heights * heightDifferenceAtLeft > 0.0))
        {
            return false;
        }
        (ChooseEnd(slopes, slopeDifferenceAtLeft) == MovingEnd::Low ? low : high) = middle;
        if (pair.IsSurelyMetAt(low) && pair.IsSurelyMetAt(high) &&
            std::abs(heights) > HeightMargin(pair.arcA, pair.arcB) + (high - low) * pair.SteepestDifference(low, high))
        {
            return true;
        }
    }
    return false;
}

void MeetInEnds(const ArcSpan& spanA, bool atLeft, bool atRight, ArcMeetings& meetings)
{
    if (atLeft)
    {
        meetings.AddPoint(spanA.left);
    }
    if (atRight)
    {
        meetings.AddPoint(spanA.right);
    }
}

/// The height difference has one sign at both ends: the arcs stay apart, touch where it turns, or cross on either side
/// of that place.
void MeetAroundTurn(const ArcPair& pair, double heightDifferenceAtLeft, ArcMeetings& meetings)
{
    const double slopesAtLeft = pair.SlopeDifference(pair.spanA.left, pair.spanB.left);
    const double slopesAtRight = pair.SlopeDifference(pair.spanA.right, pair.spanB.right);
    if (IsZero(slopesAtLeft) || IsZero(slopesAtRight) || slopesAtLeft * slopesAtRight > 0.0 ||
        StaySurelyApart(pair, heightDifferenceAtLeft, slopesAtLeft))
    {
        return;
    }
    const SlopeSearch turn = FindEqualSlopes(pair, slopesAtLeft);
    const double heightDifference = turn.onA.y - turn.onB.y;
    if (IsZero(heightDifference))
    {
        meetings.AddPoint(turn.onA);
    }
    else if (!(heightDifference * heightDifferenceAtLeft > 0.0))
    {
        meetings.AddCrossing(pair.arcA, pair.arcB, pair.spanA.left.x, turn.onA.x);
        meetings.AddCrossing(pair.arcA, pair.arcB, turn.onA.x, pair.spanA.right.x);
    }
}

/// An end of the shared range of two arcs as far as it can be told by estimates: NaN where it is in doubt which of both
/// arcs ends there.
struct SharedEnd
{
    double x = InvalidDouble;
    double heightOfA = InvalidDouble;
    double heightOfB = InvalidDouble;
    bool isOfA = false;

    SharedEnd(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, const DPOINT2& endOfA,
              const DPOINT2& endOfB)
    {
        const Verdict isBMet = arcB.IsMetAt(endOfA.x);
        if (isBMet == Verdict::Inside)
        {
            x = endOfA.x;
            heightOfA = endOfA.y;
            heightOfB = arcB.HeightAt(x);
            isOfA = true;
        }
        else if (isBMet == Verdict::Outside && arcA.IsMetAt(endOfB.x) == Verdict::Inside)
        {
            x = endOfB.x;
            heightOfA = arcA.HeightAt(x);
            heightOfB = endOfB.y;
        }
    }

    bool IsSure() const
    {
        return !std::isnan(x);
    }

    double Difference() const
    {
        return heightOfA - heightOfB;
    }

    /// The x of the point on A.
    double XOn(const EllipseQuarterArc& arcA) const
    {
        return isOfA ? x : arcA.MeetingAt(x).x;
    }
};

/// Meets two arcs whose ends alone tell beyond doubt how: they stay apart, one above the other, or cross.
///
/// @return whether they do
bool MeetByClearEnds(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, ArcMeetings& meetings)
{
    const SharedEnd left(arcA, arcB, arcA.Span().left, arcB.Span().left);
    const SharedEnd right(arcA, arcB, arcA.Span().right, arcB.Span().right);
    if (!left.IsSure() || !right.IsSure())
    {
        return false;
    }
    const double margin = HeightMargin(arcA, arcB);
    if (std::min(left.heightOfA, right.heightOfA) > std::max(left.heightOfB, right.heightOfB) + margin ||
        std::min(left.heightOfB, right.heightOfB) > std::max(left.heightOfA, right.heightOfA) + margin)
    {
        return true;
    }
    const double lesser = std::min(left.Difference(), right.Difference());
    const double greater = std::max(left.Difference(), right.Difference());
    const bool cross = lesser < -margin && greater > margin;
    if (cross)
    {
        meetings.AddCrossing(arcA, arcB, left.XOn(arcA), right.XOn(arcA));
    }
    return cross;
}

} // namespace

void IntersectQuarterArcs(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, ArcMeetings& meetings)
{
    ArcPair pair{arcA, arcB, arcA.Span(), arcB.Span()};
    ArcSpan& spanA = pair.spanA;
    ArcSpan& spanB = pair.spanB;
    if (spanA.left.x > spanB.right.x || spanB.left.x > spanA.right.x || MeetByClearEnds(arcA, arcB, meetings))
    {
        return;
    }
    // One point serves all verticals: one that misses leaves the hit of the vertical before.
    DPOINT2 hit;
    ShareEnd(arcA, arcB, spanA.left, spanB.left, hit);
    ShareEnd(arcA, arcB, spanA.right, spanB.right, hit);
    if (IsStrictlyAbove(spanA, spanB) || IsStrictlyAbove(spanB, spanA))
    {
        return;
    }
    const double differenceAtLeft = spanA.left.y - spanB.left.y;
    const double differenceAtRight = spanA.right.y - spanB.right.y;
    const bool meetAtLeft = IsZero(differenceAtLeft);
    const bool meetAtRight = IsZero(differenceAtRight);
    if (meetAtLeft || meetAtRight)
    {
        MeetInEnds(spanA, meetAtLeft, meetAtRight, meetings);
    }
    else if (differenceAtLeft * differenceAtRight < 0.0)
    {
        meetings.AddCrossing(arcA, arcB, spanA.left.x, spanA.right.x);
    }
    else
    {
        MeetAroundTurn(pair, differenceAtLeft, meetings);
    }
}

} // namespace math::detail
