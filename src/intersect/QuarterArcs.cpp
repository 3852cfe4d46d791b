#include "intersect/QuarterArcs.h"

#include "intersect/EllipseSector.h"
#include "intersect/Iteration.h"
#include "math/Intersect.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <cstddef>
#include <utility>

namespace math::detail
{

namespace
{

/// Sorts by insertion, which is well defined with the NaN of a flat ellipse too.
void SortAscending(std::array<double, 4>& values)
{
    for (std::size_t i = 1; i < values.size(); ++i)
    {
        for (std::size_t j = i; j > 0 && values[j] < values[j - 1]; --j)
        {
            std::swap(values[j], values[j - 1]);
        }
    }
}

/// The two ends of the range of x over which an arc is looked at.
struct ArcSpan
{
    DPOINT2 left;
    DPOINT2 right;
};

ArcSpan EndsByX(const EllipseQuarterArc& arc)
{
    ArcSpan span;
    span.left = GetPointInEllipse(arc.centre, arc.a, arc.b, arc.rotation, arc.startRadian);
    span.right = GetPointInEllipse(arc.centre, arc.a, arc.b, arc.rotation, Fold(arc.startRadian + arc.sweep, TwoPi));
    if (span.left.x > span.right.x)
    {
        std::swap(span.left, span.right);
    }
    return span;
}

/// Where the vertical through x meets an arc. A vertical that misses leaves the point as it was.
int MeetVertical(const EllipseQuarterArc& arc, double x, DPOINT2& point)
{
    return Intersect_BeelineWithEllipseArc(DPOINT2(x, 0.0), HalfPi, arc.centre, arc.a, arc.b, arc.rotation,
                                           arc.startRadian, arc.sweep, &point, nullptr);
}

/// The same by way of the whole ellipse: of two points on the arc the first counts.
void MeetVerticalOfEllipse(const EllipseQuarterArc& arc, double x, DPOINT2& point)
{
    TwoPoints found;
    found.count = Intersect_BeelineWithEllipse(DPOINT2(x, 0.0), HalfPi, arc.centre, arc.a, arc.b, arc.rotation,
                                               &found.first, &found.second);
    const auto isOnArc = [&](const DPOINT2& candidate) {
        return IsPointInEllipseSector(candidate, arc.centre, arc.rotation, arc.startRadian, arc.sweep, true);
    };
    if (found.count > 0 && isOnArc(found.first))
    {
        point = found.first;
    }
    else if (found.count > 1 && isOnArc(found.second))
    {
        point = found.second;
    }
}

/// Brings an end of both spans to one x: that of A's end if B can be met there, else that of B's.
void ShareEnd(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, DPOINT2& endOfA, DPOINT2& endOfB,
              DPOINT2& hit)
{
    if (MeetVertical(arcB, endOfA.x, hit) == 1)
    {
        endOfB = hit;
        return;
    }
    MeetVertical(arcA, endOfB.x, hit);
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
    const double tangent =
        GetTangentAngleOfEllipse(arc.centre, arc.a, arc.b, RegularizeIncludedRadian(arc.rotation), point);
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
};

struct SlopeSearch
{
    double low;
    double high;
    DPOINT2 onA;
    DPOINT2 onB;
};

/// Halves the range towards the x where both arcs have one slope, that is, where their height difference turns.
SlopeSearch FindEqualSlopes(const ArcPair& pair, double slopeDifferenceAtLeft)
{
    SlopeSearch search{pair.spanA.left.x, pair.spanA.right.x, {}, {}};
    if (!(search.high > search.low))
    {
        return search;
    }
    RunUntilItRepeats(search, [&](SlopeSearch& state) {
        const double middle = (state.high + state.low) * 0.5;
        MeetVertical(pair.arcA, middle, state.onA);
        MeetVertical(pair.arcB, middle, state.onB);
        const double difference = pair.SlopeDifference(state.onA, state.onB);
        if (IsZero(difference))
        {
            return false;
        }
        // The end moves to the point found, not to the middle: they differ in the last bits.
        (difference * slopeDifferenceAtLeft > 0.0 ? state.low : state.high) = state.onA.x;
        return state.high > state.low;
    });
    return search;
}

struct CrossingSearch
{
    DPOINT2 lowOnA;
    DPOINT2 lowOnB;
    DPOINT2 highOnA;
    DPOINT2 onA;
    DPOINT2 onB;

    bool IsWide() const
    {
        return lowOnA.x + DoubleTolerance < highOnA.x;
    }
};

/// Halves a range in which the height difference changes its sign. A range no wider than the tolerance leaves the
/// origin.
DPOINT2 BisectArcCrossing(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double lowX, double highX)
{
    CrossingSearch search{};
    MeetVertical(arcA, lowX, search.lowOnA);
    MeetVertical(arcB, lowX, search.lowOnB);
    MeetVertical(arcA, highX, search.highOnA);
    if (search.IsWide())
    {
        RunUntilItRepeats(search, [&](CrossingSearch& state) {
            const double middle = (state.highOnA.x + state.lowOnA.x) * 0.5;
            MeetVerticalOfEllipse(arcA, middle, state.onA);
            MeetVerticalOfEllipse(arcB, middle, state.onB);
            const double difference = state.onA.y - state.onB.y;
            if (IsZero(difference))
            {
                return false;
            }
            if ((state.lowOnA.y - state.lowOnB.y) * difference > 0.0)
            {
                state.lowOnA = state.onA;
                state.lowOnB = state.onB;
            }
            else
            {
                state.highOnA = state.onA;
            }
            return state.IsWide();
        });
    }
    return {(search.onA.x + search.onB.x) * 0.5, (search.onA.y + search.onB.y) * 0.5};
}

TwoPoints MeetInEnds(const ArcSpan& spanA, bool atLeft, bool atRight)
{
    TwoPoints found;
    if (atLeft)
    {
        found.first = spanA.left;
        found.count = 1;
    }
    if (atRight)
    {
        (found.count == 0 ? found.first : found.second) = spanA.right;
        ++found.count;
    }
    return found;
}

/// The height difference has one sign at both ends: the arcs stay apart, touch where it turns, or cross on either side
/// of that place.
TwoPoints MeetAroundTurn(const ArcPair& pair, double heightDifferenceAtLeft)
{
    const double slopesAtLeft = pair.SlopeDifference(pair.spanA.left, pair.spanB.left);
    const double slopesAtRight = pair.SlopeDifference(pair.spanA.right, pair.spanB.right);
    if (IsZero(slopesAtLeft) || IsZero(slopesAtRight) || slopesAtLeft * slopesAtRight > 0.0)
    {
        return {};
    }
    const SlopeSearch turn = FindEqualSlopes(pair, slopesAtLeft);
    const double heightDifference = turn.onA.y - turn.onB.y;
    if (IsZero(heightDifference))
    {
        return {1, turn.onA, NoPoint()};
    }
    if (heightDifference * heightDifferenceAtLeft > 0.0)
    {
        return {};
    }
    return {2, BisectArcCrossing(pair.arcA, pair.arcB, pair.spanA.left.x, turn.onA.x),
            BisectArcCrossing(pair.arcA, pair.arcB, turn.onA.x, pair.spanA.right.x)};
}

} // namespace

QuarterArcs SplitEllipseIntoQuarterArcs(const DPOINT2& centre, double a, double b, double rotation)
{
    const double foldedRotation = Fold(rotation, Pi);
    std::array<DPOINT2, 4> extremes;
    GetTangentPointOfEllipse(centre, a, b, foldedRotation, 0.0, &extremes[0], &extremes[2]);
    GetTangentPointOfEllipse(centre, a, b, foldedRotation, HalfPi, &extremes[1], &extremes[3]);

    std::array<double, 4> angles{};
    for (std::size_t i = 0; i < angles.size(); ++i)
    {
        const double direction = D2GetNormalAngle(extremes[i].x - centre.x, extremes[i].y - centre.y);
        angles[i] = Fold(direction - rotation, TwoPi);
    }
    SortAscending(angles);

    QuarterArcs arcs{};
    for (std::size_t i = 0; i < arcs.size(); ++i)
    {
        const double next = angles[(i + 1) % angles.size()];
        arcs[i] = {centre, a, b, rotation, angles[i], Fold(next - angles[i], TwoPi)};
    }
    return arcs;
}

TwoPoints IntersectQuarterArcs(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB)
{
    ArcPair pair{arcA, arcB, EndsByX(arcA), EndsByX(arcB)};
    ArcSpan& spanA = pair.spanA;
    ArcSpan& spanB = pair.spanB;
    if (spanA.left.x > spanB.right.x || spanB.left.x > spanA.right.x)
    {
        return {};
    }
    // One point serves all verticals: one that misses leaves the hit of the vertical before.
    DPOINT2 hit;
    ShareEnd(arcA, arcB, spanA.left, spanB.left, hit);
    ShareEnd(arcA, arcB, spanA.right, spanB.right, hit);
    if (IsStrictlyAbove(spanA, spanB) || IsStrictlyAbove(spanB, spanA))
    {
        return {};
    }
    const double differenceAtLeft = spanA.left.y - spanB.left.y;
    const double differenceAtRight = spanA.right.y - spanB.right.y;
    const bool meetAtLeft = IsZero(differenceAtLeft);
    const bool meetAtRight = IsZero(differenceAtRight);
    if (meetAtLeft || meetAtRight)
    {
        return MeetInEnds(spanA, meetAtLeft, meetAtRight);
    }
    if (differenceAtLeft * differenceAtRight < 0.0)
    {
        return {1, BisectArcCrossing(arcA, arcB, spanA.left.x, spanA.right.x), NoPoint()};
    }
    return MeetAroundTurn(pair, differenceAtLeft);
}

} // namespace math::detail
