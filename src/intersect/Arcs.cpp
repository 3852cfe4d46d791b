#include "math/Intersect.h"

#include "intersect/BoundedLine.h"
#include "intersect/PointOutputs.h"
#include "primitives/Constants.h"
#include "primitives/Distance.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"

#include <array>
#include <cmath>
#include <vector>

namespace math
{

using detail::AppendAll;
using detail::AppendAtMost;
using detail::AppendFirst;
using detail::AreEqual;
using detail::CurvesCoincide;
using detail::KeepAndWrite;
using detail::TwoPi;
using detail::TwoPoints;
using detail::Write;

namespace
{

bool IsOnArc(const DPOINT2& point, const DPOINT2& centre, double radius, double start, double sweep)
{
    return IsPointInArc(point, centre, radius, start, std::abs(sweep), sweep > 0.0, DoubleTolerance);
}

/// The two ends of an arc, named so that it runs counter-clockwise from `from` to `to`.
struct CounterClockwiseArc
{
    double from;
    double to;

    /// Neither end lies inside. Over the direction 0, that direction itself does not either.
    bool HasStrictlyInside(double angle) const
    {
        if (to > from)
        {
            return from < angle && angle < to;
        }
        return (from < angle && angle < TwoPi) || (0.0 < angle && angle < to);
    }
};

CounterClockwiseArc TurnCounterClockwise(double start, double sweep)
{
    // One turn at most is corrected: a start outside [0, 2π) stays outside.
    const double other = start + sweep;
    if (sweep > 0.0)
    {
        return {start, other >= TwoPi ? other - TwoPi : other};
    }
    return {other < 0.0 ? other + TwoPi : other, start};
}

/// What two arcs of one circle share, as directions from its centre.
struct SharedDirections
{
    int count;
    double first;
    double second;
};

SharedDirections ShareOnOneCircle(const CounterClockwiseArc& a, const CounterClockwiseArc& b)
{
    const bool startsAtEnd = AreEqual(a.from, b.to);
    const bool endsAtStart = AreEqual(a.to, b.from);
    if (AreEqual(a.from, b.from) && AreEqual(a.to, b.to))
    {
        return {CurvesCoincide, a.from, b.to};
    }
    if (a.HasStrictlyInside(b.from))
    {
        // Also where b ends inside a as well: the result is the stretch up to the end of a.
        return {CurvesCoincide, b.from, a.to};
    }
    if (a.HasStrictlyInside(b.to))
    {
        return {CurvesCoincide, a.from, b.to};
    }
    if (startsAtEnd && endsAtStart)
    {
        return {2, a.from, a.to};
    }
    if (startsAtEnd)
    {
        return {1, a.from, InvalidDouble};
    }
    if (endsAtStart)
    {
        return {1, a.to, InvalidDouble};
    }
    return {0, InvalidDouble, InvalidDouble};
}

} // namespace

int Intersect_BeelineWithArc(const DPOINT2& point, double angle, const DPOINT2& centre, double radius, double start,
                             double sweep, DPOINT2* first, DPOINT2* second)
{
    TwoPoints onCircle;
    onCircle.count = Intersect_BeelineWithCircle(point, angle, centre, radius, &onCircle.first, &onCircle.second);
    return KeepAndWrite(onCircle, first, second,
                        [&](const DPOINT2& candidate) { return IsOnArc(candidate, centre, radius, start, sweep); });
}

int Intersect_BeelineWithArc(const DPOINT2& point, double angle, const DPOINT2& centre, double radius, double start,
                             double sweep, std::vector<DPOINT2>& points, int maxPoints)
{
    return AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_BeelineWithArc(point, angle, centre, radius, start, sweep, first, second);
    });
}

int Intersect_LineWithArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double radius,
                          double start, double sweep, DPOINT2* first, DPOINT2* second)
{
    if (detail::IsClearOfCircle(firstEnd, secondEnd, centre, radius))
    {
        return 0;
    }
    const detail::BoundedLine stretch(firstEnd, secondEnd);
    if (!stretch.HasLength())
    {
        return 0;
    }
    TwoPoints onCircle;
    onCircle.count =
        Intersect_BeelineWithCircle(firstEnd, stretch.Angle(), centre, radius, &onCircle.first, &onCircle.second);
    return KeepAndWrite(onCircle, first, second, [&](const DPOINT2& candidate) {
        return stretch.Holds(candidate) && IsOnArc(candidate, centre, radius, start, sweep);
    });
}

int Intersect_LineWithArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double radius,
                          double start, double sweep, std::vector<DPOINT2>& points, int maxPoints)
{
    return AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_LineWithArc(firstEnd, secondEnd, centre, radius, start, sweep, first, second);
    });
}

int Intersect_CircleWithArc(const DPOINT2& circleCentre, double circleRadius, const DPOINT2& arcCentre,
                            double arcRadius, double start, double sweep, DPOINT2* first, DPOINT2* second)
{
    TwoPoints onCircle;
    onCircle.count =
        Intersect_CircleWithCircle(circleCentre, circleRadius, arcCentre, arcRadius, &onCircle.first, &onCircle.second);
    if (onCircle.count < 1)
    {
        // A circle that carries the arc has no result of its own here: the vector form tells it.
        return 0;
    }
    const int kept = KeepAndWrite(onCircle, first, second, [&](const DPOINT2& candidate) {
        return IsOnArc(candidate, arcCentre, arcRadius, start, sweep);
    });
    const bool singleIsLost = kept == 1 && first == nullptr;
    return singleIsLost ? 0 : kept;
}

int Intersect_CircleWithArc(const DPOINT2& circleCentre, double circleRadius, const DPOINT2& arcCentre,
                            double arcRadius, double start, double sweep, std::vector<DPOINT2>& points, int /*ignored*/)
{
    TwoPoints found;
    found.count =
        Intersect_CircleWithCircle(circleCentre, circleRadius, arcCentre, arcRadius, &found.first, &found.second);
    if (found.count == CurvesCoincide)
    {
        AppendFirst(points,
                    std::array{GetPointInCircle(arcCentre, arcRadius, start),
                               GetPointInCircle(arcCentre, arcRadius, RegularizeRadian(start + sweep))},
                    2);
        return CurvesCoincide;
    }
    return AppendAll(points, [&](DPOINT2* first, DPOINT2* second) {
        return KeepAndWrite(found, first, second, [&](const DPOINT2& candidate) {
            return IsOnArc(candidate, arcCentre, arcRadius, start, sweep);
        });
    });
}

int Intersect_ArcWithArc(const DPOINT2& firstCentre, double firstRadius, double firstStart, double firstSweep,
                         const DPOINT2& secondCentre, double secondRadius, double secondStart, double secondSweep,
                         DPOINT2* first, DPOINT2* second)
{
    // The centres are compared exactly: the slightest shift makes two circles of them.
    const bool differ = detail::Distance(firstCentre, secondCentre) > 0.0 || !AreEqual(firstRadius, secondRadius);
    if (differ)
    {
        TwoPoints onBoth;
        onBoth.count = Intersect_CircleWithArc(firstCentre, firstRadius, secondCentre, secondRadius, secondStart,
                                               secondSweep, &onBoth.first, &onBoth.second);
        return KeepAndWrite(onBoth, first, second, [&](const DPOINT2& candidate) {
            return IsOnArc(candidate, firstCentre, firstRadius, firstStart, firstSweep);
        });
    }
    const SharedDirections shared =
        ShareOnOneCircle(TurnCounterClockwise(firstStart, firstSweep), TurnCounterClockwise(secondStart, secondSweep));
    const TwoPoints found = {shared.count, GetPointInCircle(firstCentre, firstRadius, shared.first),
                             GetPointInCircle(firstCentre, firstRadius, shared.second)};
    if (found.count != 0)
    {
        Write(found.first, first);
    }
    if (found.count == 2 || found.count == CurvesCoincide)
    {
        Write(found.second, second);
    }
    return found.count;
}

int Intersect_ArcWithArc(const DPOINT2& firstCentre, double firstRadius, double firstStart, double firstSweep,
                         const DPOINT2& secondCentre, double secondRadius, double secondStart, double secondSweep,
                         std::vector<DPOINT2>& points, int maxPoints)
{
    return AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_ArcWithArc(firstCentre, firstRadius, firstStart, firstSweep, secondCentre, secondRadius,
                                    secondStart, secondSweep, first, second);
    });
}

} // namespace math
