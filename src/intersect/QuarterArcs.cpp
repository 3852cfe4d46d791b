#include "intersect/QuarterArcs.h"

#include "intersect/EllipseSector.h"
#include "intersect/Iteration.h"
#include "math/Intersect.h"
#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <algorithm>
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

bool AreSurelyMetAt(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double x)
{
    return arcA.IsMetAt(x) == Verdict::Inside && arcB.IsMetAt(x) == Verdict::Inside;
}

/// The estimated height difference beyond which both arcs are clear of each other.
double HeightMargin(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB)
{
    return DoubleTolerance + arcA.Heights().HeightMargin() + arcB.Heights().HeightMargin();
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
        return AreSurelyMetAt(arcA, arcB, x);
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

/// A range of x that is halved, with the verticals whose points on A became its ends; NaN as long as none did.
struct Halving
{
    double low;
    double high;
    double xOfLow = InvalidDouble;
    double xOfHigh = InvalidDouble;
    double xOfLast = InvalidDouble;

    double Middle() const
    {
        return (high + low) * 0.5;
    }

    bool IsWide() const
    {
        return low + DoubleTolerance < high;
    }

    bool HasBegun() const
    {
        return !std::isnan(xOfLast);
    }
};

enum class Half
{
    Left,
    Right,
    Neither
};

/// Right if the difference in the middle has the sign of that at the left end.
Half ChooseHalf(double difference, double differenceAtLeft)
{
    return difference * differenceAtLeft > 0.0 ? Half::Right : Half::Left;
}

/// Halves a range as long as it is wide and its middle lies where both arcs are surely met.
///
/// @param choose  the half to go on with; neither ends the search
/// @return whether the search has been ended so
template <typename Choose>
bool HalveWhereSurelyMet(Halving& range, const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB,
                         const Choose& choose)
{
    while (range.IsWide())
    {
        const double middle = range.Middle();
        if (!AreSurelyMetAt(arcA, arcB, middle))
        {
            return false;
        }
        const Half half = choose(middle);
        range.xOfLast = middle;
        if (half == Half::Neither)
        {
            return true;
        }
        // The end moves to the point found, not to the middle: they differ in the last bits.
        const double found = arcA.MeetingAt(middle).x;
        (half == Half::Right ? range.low : range.high) = found;
        (half == Half::Right ? range.xOfLow : range.xOfHigh) = middle;
    }
    return false;
}

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
    Halving range{search.low, search.high};
    const bool isFound = HalveWhereSurelyMet(range, pair.arcA, pair.arcB, [&](double middle) {
        const double clear = pair.ClearSlopeDifferenceAt(middle);
        const double difference =
            clear != 0.0 ? clear : pair.SlopeDifference(pair.arcA.MeetingAt(middle), pair.arcB.MeetingAt(middle));
        return IsZero(difference) ? Half::Neither : ChooseHalf(difference, slopeDifferenceAtLeft);
    });
    if (range.HasBegun())
    {
        search = {range.low, range.high, pair.arcA.MeetingAt(range.xOfLast), pair.arcB.MeetingAt(range.xOfLast)};
    }
    return isFound;
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
        (ChooseHalf(difference, slopeDifferenceAtLeft) == Half::Right ? state.low : state.high) = state.onA.x;
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
        (ChooseHalf(slopes, slopeDifferenceAtLeft) == Half::Right ? low : high) = middle;
        if (pair.IsSurelyMetAt(low) && pair.IsSurelyMetAt(high) &&
            std::abs(heights) > HeightMargin(pair.arcA, pair.arcB) + (high - low) * pair.SteepestDifference(low, high))
        {
            return true;
        }
    }
    return false;
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

/// The part of the search in which both arcs are surely met: their estimated heights decide where they are clear of each
/// other, the points themselves elsewhere.
///
/// @return whether the search has come to its end
bool HalveBySureHeights(CrossingSearch& search, const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB)
{
    const double differenceAtLow = search.lowOnA.y - search.lowOnB.y;
    if (IsZero(differenceAtLow))
    {
        return false;
    }
    const double margin = HeightMargin(arcA, arcB);
    Halving range{search.lowOnA.x, search.highOnA.x};
    const bool isFound = HalveWhereSurelyMet(range, arcA, arcB, [&](double middle) {
        const double estimate = arcA.HeightAt(middle) - arcB.HeightAt(middle);
        if (std::abs(estimate) > margin)
        {
            return ChooseHalf(estimate, differenceAtLow);
        }
        const double difference = arcA.MeetingAt(middle).y - arcB.MeetingAt(middle).y;
        return IsZero(difference) ? Half::Neither : ChooseHalf(difference, differenceAtLow);
    });
    if (!range.HasBegun())
    {
        return false;
    }
    search.onA = arcA.MeetingAt(range.xOfLast);
    search.onB = arcB.MeetingAt(range.xOfLast);
    if (isFound || !range.IsWide())
    {
        return true;
    }
    // The search goes on beside an end of the arcs, where it needs its points.
    if (!std::isnan(range.xOfLow))
    {
        search.lowOnA = arcA.MeetingAt(range.xOfLow);
        search.lowOnB = arcB.MeetingAt(range.xOfLow);
    }
    if (!std::isnan(range.xOfHigh))
    {
        search.highOnA = arcA.MeetingAt(range.xOfHigh);
    }
    return false;
}

/// Halves a range in which the height difference changes its sign. A range no wider than the tolerance leaves the
/// origin.
DPOINT2 BisectArcCrossing(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, double lowX, double highX)
{
    CrossingSearch search{};
    arcA.MeetVertical(lowX, search.lowOnA);
    arcB.MeetVertical(lowX, search.lowOnB);
    arcA.MeetVertical(highX, search.highOnA);
    if (!HalveBySureHeights(search, arcA, arcB) && search.IsWide())
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
            if (ChooseHalf(difference, state.lowOnA.y - state.lowOnB.y) == Half::Right)
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
    if (StaySurelyApart(pair, heightDifferenceAtLeft, slopesAtLeft))
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
      m_frame(centre, rotation),
      m_foldedFrame(m_foldedRotation == rotation ? m_frame : OwnFrame(centre, m_foldedRotation)),
      m_verticals(HalfPi, m_frame, m_foldedFrame, a, b, rotation),
      m_heights(m_frame, centre, a, b, rotation),
      m_angles{},
      m_sweeps{}
{
    const auto [ownLower, ownUpper] = OwnTangentPoints(a, b, Fold(0.0 - m_foldedRotation, Pi));
    const std::array extremes = {m_foldedFrame.OutOf(ownLower), m_verticals.FirstTangency(),
                                 m_foldedFrame.OutOf(ownUpper), m_verticals.SecondTangency()};
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
        m_corners[i] = PointAtPolarAngle(m_frame, a, b, m_angles[i]);
        m_rays[i] = {std::cos(rotation + m_angles[i]), std::sin(rotation + m_angles[i])};
    }
}

EllipseQuarterArc::EllipseQuarterArc(const QuarteredEllipse& ellipse, std::size_t index)
    : m_ellipse(&ellipse),
      m_sector(ellipse.m_centre, ellipse.m_rotation, ellipse.m_angles[index], ellipse.m_sweeps[index],
               ellipse.m_rays[index], ellipse.m_rays[(index + 1) % ellipse.m_rays.size()]),
      m_startRadian(ellipse.m_angles[index]),
      m_sweep(ellipse.m_sweeps[index]),
      m_span(EndsByX(ellipse.m_corners[index], ellipse.EndOfArc(index)))
{
    const EllipseHeights& heights = ellipse.m_heights;
    if (!heights.IsOrdinary())
    {
        return;
    }
    const DPOINT2 middle = m_sector.Middle();
    const auto isSeenFromMiddle = [&](const DPOINT2& end) {
        return (end.x - ellipse.m_centre.x) * middle.x + (end.y - ellipse.m_centre.y) * middle.y > 0.0;
    };
    if (!isSeenFromMiddle(m_span.left) || !isSeenFromMiddle(m_span.right))
    {
        // Beside the vertices the ends may be found on the opposite side.
        return;
    }
    const bool isUpper = heights.IsUpward(middle.x, middle.y);
    m_side = isUpper ? 1.0 : -1.0;
    m_isFarther = isUpper == ellipse.m_verticals.RisesAlongOwnAxis();
    m_clearance = 1e-6 * (ellipse.m_a + ellipse.m_b);
    m_sureLeft = std::max(m_span.left.x + m_clearance, ellipse.m_centre.x - heights.SureReach());
    m_sureRight = std::min(m_span.right.x - m_clearance, ellipse.m_centre.x + heights.SureReach());
}

/// The last point of an arc: the next corner, unless the sweep has been rounded.
DPOINT2 QuarteredEllipse::EndOfArc(std::size_t index) const
{
    const std::size_t next = (index + 1) % m_corners.size();
    const double end = Fold(m_angles[index] + m_sweeps[index], TwoPi);
    // Zeros are left out for their signs.
    return end == m_angles[next] && end > 0.0 ? m_corners[next] : PointAtPolarAngle(m_frame, m_a, m_b, end);
}

int EllipseQuarterArc::MeetVertical(double x, DPOINT2& point) const
{
    if (IsMetAt(x) == Verdict::Inside)
    {
        point = MeetingAt(x);
        return 1;
    }
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
    if (IsMetAt(x) == Verdict::Inside)
    {
        point = MeetingAt(x);
        return;
    }
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

/// The heights of two arcs at an end of their shared range.
struct EndHeights
{
    double onA = InvalidDouble;
    double onB = InvalidDouble;
};

/// Their estimates; NaN where it is in doubt which of both arcs ends.
EndHeights EstimateEnd(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, const DPOINT2& endOfA,
                       const DPOINT2& endOfB)
{
    const Verdict isBMet = arcB.IsMetAt(endOfA.x);
    if (isBMet == Verdict::Inside)
    {
        return {endOfA.y, arcB.HeightAt(endOfA.x)};
    }
    if (isBMet == Verdict::Outside && arcA.IsMetAt(endOfB.x) == Verdict::Inside)
    {
        return {arcA.HeightAt(endOfB.x), endOfB.y};
    }
    return {};
}

/// Whether beyond doubt both ends of one arc lie above both ends of the other one.
bool AreSurelyApart(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB)
{
    const EndHeights left = EstimateEnd(arcA, arcB, arcA.Span().left, arcB.Span().left);
    const EndHeights right = EstimateEnd(arcA, arcB, arcA.Span().right, arcB.Span().right);
    if (std::isnan(left.onA) || std::isnan(right.onA))
    {
        return false;
    }
    const double margin = HeightMargin(arcA, arcB);
    return std::min(left.onA, right.onA) > std::max(left.onB, right.onB) + margin ||
           std::min(left.onB, right.onB) > std::max(left.onA, right.onA) + margin;
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
    if (AreSurelyApart(arcA, arcB))
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
