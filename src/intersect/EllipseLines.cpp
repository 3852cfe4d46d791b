#include "math/Intersect.h"

#include "intersect/BoundedLine.h"
#include "intersect/EllipseChords.h"
#include "intersect/EllipseCut.h"
#include "intersect/EllipseSector.h"
#include "intersect/OrdinaryEllipse.h"
#include "intersect/PointOutputs.h"
#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/OwnFrame.h"

#include <cmath>
#include <vector>

namespace math
{

using detail::OwnFrame;
using detail::TwoPoints;

namespace
{

struct Ellipse
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
};

/// The points of a beeline. That it touches the ellipse need be thought of only near a tangent.
TwoPoints CutEllipse(const DPOINT2& point, double angle, const OwnFrame& frame, const Ellipse& ellipse)
{
    const auto& [centre, a, b, rotation] = ellipse;
    const detail::EllipseChords chords(angle, frame, a, b, rotation);
    const bool isOrdinary = detail::IsOrdinaryPoint(point) && detail::IsOrdinaryEllipse(centre, a, b, rotation);
    if (isOrdinary && chords.IsClearOfTangents(point))
    {
        return chords.Through(point);
    }
    const OwnFrame foldedFrame(centre, detail::Fold(rotation, detail::Pi));
    return detail::EllipseCut(angle, frame, foldedFrame, a, b, rotation).Through(point);
}

/// Tells whether a stretch stays clear of an ordinary ellipse, in the frame in which that is the unit circle.
bool IsClearOfEllipse(const DPOINT2& start, const DPOINT2& end, const OwnFrame& frame, const Ellipse& ellipse)
{
    const auto& [centre, a, b, rotation] = ellipse;
    if (!detail::IsOrdinaryPoint(start) || !detail::IsOrdinaryPoint(end) ||
        !detail::IsOrdinaryEllipse(centre, a, b, rotation))
    {
        return false;
    }
    const DPOINT2 ownStart = frame.Into(start);
    const DPOINT2 ownEnd = frame.Into(end);
    // The points found may be off the ellipse by the tolerance of a double root, which is relative to coefficients up to
    // a few hundred.
    constexpr double margin = 1e-5;
    return detail::IsClearOfCircle({ownStart.x / a, ownStart.y / b}, {ownEnd.x / a, ownEnd.y / b}, 1.0, margin);
}

/// The points of a stretch on an ellipse that pass a further test.
template <typename IsKept>
int MeetStretchWithEllipse(const DPOINT2& start, const DPOINT2& end, const Ellipse& ellipse, DPOINT2* first,
                           DPOINT2* second, const IsKept& isKept)
{
    const OwnFrame frame(ellipse.centre, ellipse.rotation);
    if (IsClearOfEllipse(start, end, frame, ellipse))
    {
        return 0;
    }
    const detail::BoundedLine stretch(start, end);
    if (!stretch.HasLength())
    {
        return 0;
    }
    const TwoPoints found = CutEllipse(start, stretch.Angle(), frame, ellipse);
    return detail::KeepAndWrite(
        found, first, second, [&](const DPOINT2& candidate) { return stretch.Holds(candidate) && isKept(candidate); });
}

} // namespace

int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                 double rotation, DPOINT2* first, DPOINT2* second)
{
    const TwoPoints found = CutEllipse(point, angle, OwnFrame(centre, rotation), {centre, a, b, rotation});
    *first = found.first;
    *second = found.second;
    return found.count;
}

int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                 double rotation, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_BeelineWithEllipse(point, angle, centre, a, b, rotation, first, second);
    });
}

int Intersect_BeelineWithEllipseArc(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                    double rotation, double start, double sweep, DPOINT2* first, DPOINT2* second)
{
    const TwoPoints found = CutEllipse(point, angle, OwnFrame(centre, rotation), {centre, a, b, rotation});
    return detail::KeepAndWrite(found, first, second, [&](const DPOINT2& candidate) {
        return detail::IsPointInEllipseSector(candidate, centre, rotation, start, std::abs(sweep), sweep > 0);
    });
}

int Intersect_BeelineWithEllipseArc(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                    double rotation, double start, double sweep, std::vector<DPOINT2>& points,
                                    int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_BeelineWithEllipseArc(point, angle, centre, a, b, rotation, start, sweep, first, second);
    });
}

int Intersect_LineWithEllipse(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                              double b, double rotation, DPOINT2* first, DPOINT2* second)
{
    return MeetStretchWithEllipse(firstEnd, secondEnd, {centre, a, b, rotation}, first, second,
                                  [](const DPOINT2&) { return true; });
}

int Intersect_LineWithEllipse(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                              double b, double rotation, std::vector<DPOINT2>& points, int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_LineWithEllipse(firstEnd, secondEnd, centre, a, b, rotation, first, second);
    });
}

int Intersect_LineWithEllipseArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                                 double b, double rotation, double start, double sweep, DPOINT2* first, DPOINT2* second)
{
    const auto isOnArc = [&](const DPOINT2& candidate) {
        return detail::IsPointInEllipseSector(candidate, centre, rotation, start, std::abs(sweep), sweep > 0);
    };
    return MeetStretchWithEllipse(firstEnd, secondEnd, {centre, a, b, rotation}, first, second, isOnArc);
}

int Intersect_LineWithEllipseArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre, double a,
                                 double b, double rotation, double start, double sweep, std::vector<DPOINT2>& points,
                                 int maxPoints)
{
    return detail::AppendAtMost(points, maxPoints, [&](DPOINT2* first, DPOINT2* second) {
        return Intersect_LineWithEllipseArc(firstEnd, secondEnd, centre, a, b, rotation, start, sweep, first, second);
    });
}

} // namespace math
