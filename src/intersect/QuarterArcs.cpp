#include "intersect/QuarterArcs.h"

#include "intersect/EllipseSector.h"
#include "intersect/Iteration.h"
#include "math/Intersect.h"
#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <array>
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

ArcSpan EndsByX(const DPOINT2& start, const DPOINT2& end)
{
    return start.x > end.x ? ArcSpan{end, start} : ArcSpan{start, end};
}

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
        pair.arcA.MeetVertical(middle, state.onA);
        pair.arcB.MeetVertical(middle, state.onB);
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
    arcA.MeetVertical(lowX, search.lowOnA);
    arcB.MeetVertical(lowX, search.lowOnB);
    arcA.MeetVertical(highX, search.highOnA);
    if (search.IsWide())
    {
        RunUntilItRepeats(search, [&](CrossingSearch& state) {
            const double middle = (state.highOnA.x + state.lowOnA.x) * 0.5;
            arcA.MeetVerticalOfEllipse(middle, state.onA);
            arcB.MeetVerticalOfEllipse(middle, state.onB);
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

QuarteredEllipse::QuarteredEllipse(const DPOINT2& centre, double a, double b, double rotation)
    : m_centre(centre),
      m_a(a),
      m_b(b),
      m_rotation(rotation),
      m_foldedRotation(Fold(rotation, Pi)),
      m_foldedFrame(centre, m_foldedRotation),
      m_verticals(HalfPi, centre, a, b, rotation),
      m_angles{},
      m_sweeps{}
{
    std::array<DPOINT2, 4> extremes;
    GetTangentPointOfEllipse(centre, a, b, m_foldedRotation, 0.0, &extremes[0], &extremes[2]);
    GetTangentPointOfEllipse(centre, a, b, m_foldedRotation, HalfPi, &extremes[1], &extremes[3]);
    for (std::size_t i = 0; i < m_angles.size(); ++i)
    {
        const double direction = D2GetNormalAngle(extremes[i].x - centre.x, extremes[i].y - centre.y);
        m_angles[i] = Fold(direction - rotation, TwoPi);
    }
    SortAscending(m_angles);
    for (std::size_t i = 0; i < m_sweeps.size(); ++i)
    {
        const double next = m_angles[(i + 1) % m_angles.size()];
        m_sweeps[i] = Fold(next - m_angles[i], TwoPi);
    }
}

EllipseQuarterArc::EllipseQuarterArc(const QuarteredEllipse& ellipse, double startRadian, double sweep)
    : m_ellipse(&ellipse),
      m_sector(ellipse.m_centre, ellipse.m_rotation, startRadian, sweep),
      m_startRadian(startRadian),
      m_sweep(sweep),
      m_span(EndsByX(GetPointInEllipse(ellipse.m_centre, ellipse.m_a, ellipse.m_b, ellipse.m_rotation, startRadian),
                     GetPointInEllipse(ellipse.m_centre, ellipse.m_a, ellipse.m_b, ellipse.m_rotation,
                                       Fold(startRadian + sweep, TwoPi))))
{
}

int EllipseQuarterArc::MeetVertical(double x, DPOINT2& point) const
{
    const auto isOnArc = [&](const DPOINT2& candidate) {
        // An arc of no extent, as flat ellipses have, is one that runs clockwise here.
        return m_sweep > 0.0 ? m_sector.Holds(candidate)
                             : IsPointInEllipseSector(candidate, m_ellipse->m_centre, m_ellipse->m_rotation,
                                                      m_startRadian, std::abs(m_sweep), false);
    };
    return KeepAndWrite(m_ellipse->m_verticals.Through({x, 0.0}), &point, nullptr, isOnArc);
}

void EllipseQuarterArc::MeetVerticalOfEllipse(double x, DPOINT2& point) const
{
    const TwoPoints found = m_ellipse->m_verticals.Through({x, 0.0});
    if (found.count > 0 && m_sector.Holds(found.first))
    {
        point = found.first;
    }
    else if (found.count > 1 && m_sector.Holds(found.second))
    {
        point = found.second;
    }
}

double EllipseQuarterArc::TangentAngleAt(const DPOINT2& point) const
{
    return detail::TangentAngle(m_ellipse->m_foldedFrame, m_ellipse->m_a, m_ellipse->m_b, m_ellipse->m_foldedRotation,
                                point);
}

TwoPoints IntersectQuarterArcs(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB)
{
    ArcPair pair{arcA, arcB, arcA.Span(), arcB.Span()};
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
