#include "math/Intersect.h"

#include "intersect/EllipseSector.h"
#include "intersect/PointOutputs.h"
#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math
{

using detail::Pi;
using detail::TwoPoints;

namespace
{

constexpr double QuarterPi = 0.7853981633974483;
constexpr double ThreeQuartersPi = 2.356194490192345;

/// A straight line in the frame of an ellipse: one coordinate is `slope` times the other plus `offset`. A flat line
/// tells v by u, a steep one u by v, so that the slope is never above 1.
struct FrameLine
{
    bool isFlat;
    double slope;
    double offset;

    DPOINT2 PointAt(double coordinate) const
    {
        const double other = coordinate * slope + offset;
        return isFlat ? DPOINT2(coordinate, other) : DPOINT2(other, coordinate);
    }
};

FrameLine MakeFrameLine(const DPOINT2& framePoint, double frameAngle)
{
    if (frameAngle <= QuarterPi || frameAngle >= ThreeQuartersPi)
    {
        const double slope = std::tan(frameAngle);
        return {true, slope, framePoint.y - framePoint.x * slope};
    }
    const double slope = std::tan(detail::HalfPi - frameAngle);
    return {false, slope, framePoint.x - framePoint.y * slope};
}

/// The roots of the ellipse's equation along a line in its frame.
int SolveAlong(const FrameLine& line, double a, double b, double* first, double* second)
{
    const double alongSquare = line.isFlat ? a * a : b * b;
    const double acrossSquare = line.isFlat ? b * b : a * a;
    return SolveQuadraticEquation(line.slope * line.slope + acrossSquare / alongSquare, 2.0 * line.slope * line.offset,
                                  line.offset * line.offset - acrossSquare, first, second);
}

/// The point of the ellipse in which the beeline touches it, if it does.
bool FindTangency(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b, double rotation,
                  DPOINT2& tangency)
{
    const double foldedAngle = detail::Fold(angle, Pi);
    DPOINT2 first;
    DPOINT2 second;
    GetTangentPointOfEllipse(centre, a, b, detail::Fold(rotation, Pi), foldedAngle, &first, &second);
    for (const DPOINT2& candidate : {first, second})
    {
        if (detail::IsZero(D2GetPointToBeelineDistance(candidate, point, foldedAngle)))
        {
            tangency = candidate;
            return true;
        }
    }
    return false;
}

TwoPoints CutEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b, double rotation)
{
    TwoPoints found;
    if (FindTangency(point, angle, centre, a, b, rotation, found.first))
    {
        found.count = 1;
        return found;
    }
    const DPOINT2 framePoint = CoorTransXYToUV(point, centre, rotation);
    const FrameLine line = MakeFrameLine(framePoint, detail::Fold(angle - rotation, Pi));
    double firstRoot = InvalidDouble;
    double secondRoot = InvalidDouble;
    const int rootCount = SolveAlong(line, a, b, &firstRoot, &secondRoot);

    const auto take = [&](double root, DPOINT2& output) {
        const DPOINT2 onLine = line.PointAt(root);
        if (!std::isnan(onLine.x) && !std::isnan(onLine.y))
        {
            output = CoorTransUVToXY(onLine, centre, rotation);
            ++found.count;
        }
    };
    if (rootCount > 0)
    {
        take(firstRoot, found.first);
    }
    if (rootCount > 1)
    {
        take(secondRoot, found.second);
    }
    return found;
}

} // namespace

int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a, double b,
                                 double rotation, DPOINT2* first, DPOINT2* second)
{
    const TwoPoints found = CutEllipse(point, angle, centre, a, b, rotation);
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
    const TwoPoints found = CutEllipse(point, angle, centre, a, b, rotation);
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
    const double angle = D2GetNormalAngle(secondEnd.x - firstEnd.x, secondEnd.y - firstEnd.y);
    const TwoPoints found = CutEllipse(firstEnd, angle, centre, a, b, rotation);
    return detail::KeepAndWrite(found, first, second, [&](const DPOINT2& candidate) {
        return IsPointInLine(candidate, firstEnd, secondEnd, DoubleTolerance);
    });
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
    const double angle = D2GetNormalAngle(secondEnd.x - firstEnd.x, secondEnd.y - firstEnd.y);
    TwoPoints found;
    found.count = Intersect_BeelineWithEllipseArc(firstEnd, angle, centre, a, b, rotation, start, sweep, &found.first,
                                                  &found.second);
    return detail::KeepAndWrite(found, first, second, [&](const DPOINT2& candidate) {
        return IsPointInLine(candidate, firstEnd, secondEnd, DoubleTolerance);
    });
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
