#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Outputs.h"
#include "primitives/OwnFrame.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>

namespace math
{

namespace
{

bool AreInRange(double a, double b, double startRadian, double sweep)
{
    return 0.0 < b && b <= a && 0.0 <= startRadian && startRadian < detail::TwoPi && 0.0 < sweep &&
           sweep < detail::TwoPi;
}

DPOINT2 EndOfArc(double a, double b, double radian)
{
    const double parameter = detail::EccentricParameter(radian, a, b, detail::HalfTurn::AwayFromTheVertices);
    return detail::PointAtEccentricParameter(parameter, a, b);
}

// The chord y = slope * x + offset lies between the two tangents of its slope, y = slope * x ± reach.
double HeightOverSlopingChord(double a, double b, const DPOINT2& start, const DPOINT2& end, double sweep)
{
    const double slope = (end.y - start.y) / (end.x - start.x);
    const double offset = start.y - slope * start.x;
    const double reach = std::sqrt((a * a) * (slope * slope) + b * b);
    const double cosine = std::cos(std::atan(slope));
    const double toLower = std::abs(-reach - offset) * cosine;
    const double toUpper = std::abs(reach - offset) * cosine;
    return sweep <= detail::Pi ? std::min(toLower, toUpper) : std::max(toLower, toUpper);
}

double HeightOverUprightChord(double a, const DPOINT2& start, double sweep)
{
    return sweep <= detail::Pi ? a - std::abs(start.x) : a + std::abs(start.x);
}

} // namespace

DPOINT2 GetPointInEllipse(const DPOINT2& centre, double a, double b, double rotation, double radian)
{
    return detail::PointAtPolarAngle(detail::OwnFrame(centre, rotation), a, b, radian);
}

double GetHeightOfEllipseArc(double a, double b, double startRadian, double sweep)
{
    if (!AreInRange(a, b, startRadian, sweep))
    {
        return InvalidDouble;
    }
    const DPOINT2 start = EndOfArc(a, b, startRadian);
    const DPOINT2 end = EndOfArc(a, b, detail::Fold(startRadian + sweep, detail::TwoPi));
    if (detail::AreEqual(start.x, end.x))
    {
        return HeightOverUprightChord(a, start, sweep);
    }
    return HeightOverSlopingChord(a, b, start, end, sweep);
}

double GetTangentAngleOfEllipse(const DPOINT2& centre, double a, double b, double rotation, const DPOINT2& point)
{
    return detail::TangentAngle(detail::OwnFrame(centre, rotation), a, b, rotation, point);
}

int GetTangentPointOfEllipse(const DPOINT2& centre, double a, double b, double rotation, double radian, DPOINT2* first,
                             DPOINT2* second)
{
    if (first == nullptr && second == nullptr)
    {
        return 2;
    }
    const auto [ownFirst, ownSecond] = detail::OwnTangentPoints(a, b, RegularizeIncludedRadian(radian - rotation));
    const detail::OwnFrame frame(centre, rotation);
    const DPOINT2 worldFirst = frame.OutOf(ownFirst);
    const DPOINT2 worldSecond = frame.OutOf(ownSecond);
    detail::Write(worldFirst, first);
    detail::Write(worldSecond, second);
    return 2;
}

} // namespace math
