// Angles, distances, predicates and constructions.

#include "Curve.h"

#include "math/Primitives.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

using namespace math;

namespace fuzz
{

namespace
{

bool SamePoint(const DPOINT2& a, const DPOINT2& b)
{
    return SameBits(a.x, b.x) && SameBits(a.y, b.y);
}

bool IsTame(const DPOINT2& point)
{
    return std::abs(point.x) <= 1000.0 && std::abs(point.y) <= 1000.0;
}

double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

// Angles

void CheckFold(double (*fold)(double), void (*inPlace)(double&), double angle, double modulus)
{
    const double folded = fold(angle);
    if (std::isnan(angle))
    {
        FUZZ_REQUIRE(std::isnan(folded));
        return;
    }
    FUZZ_REQUIRE(folded >= 0.0 && folded < modulus);
    FUZZ_REQUIRE(SameBits(fold(folded), folded));
    double changed = angle;
    inPlace(changed);
    FUZZ_REQUIRE(SameBits(changed, folded));
}

void CheckAngles(Decoder& decoder)
{
    TheTrace().Begin("angles");
    const double angle = decoder.Angle(1e6);
    CheckFold(RegularizeAngle, NormalizeAngle, angle, 360.0);
    CheckFold(RegularizeIncludedAngle, NormalizeIncludedAngle, angle, 180.0);
    CheckFold(RegularizeRadian, NormalizeRadian, angle, 2.0 * Pi);
    CheckFold(RegularizeIncludedRadian, NormalizeIncludedRadian, angle, Pi);
    if (std::isnan(angle))
    {
        return;
    }
    FUZZ_REQUIRE(GetReverseAngle(angle) >= 0.0 && GetReverseAngle(angle) < 360.0);
    FUZZ_REQUIRE(GetReverseRadian(angle) >= 0.0 && GetReverseRadian(angle) < 2.0 * Pi);
    FUZZ_REQUIRE(GetComplementaryAngle(angle) >= 0.0 && GetComplementaryAngle(angle) < 180.0);
    FUZZ_REQUIRE(GetComplementaryRadian(angle) >= 0.0 && GetComplementaryRadian(angle) < Pi);
    const double other = decoder.Angle(1e6);
    FUZZ_REQUIRE(std::abs(AngleToRadian(RadianToAngle(angle)) - angle) <= 1e-15 * std::abs(angle) * 4.0 + 1e-300);
    const double length = GetArcLength(angle, other);
    const double back = GetArcAngle(length, other);
    FUZZ_REQUIRE(std::isnan(back) || !(std::abs(other) >= 1e-9) ||
                 std::abs(back - angle) <= 1e-12 * std::abs(angle) + 1e-300);
    FUZZ_REQUIRE(std::isnan(back) == (std::isnan(other) || std::abs(other) < 1e-9));
    const double bulge = GetBulge(angle, other);
    FUZZ_REQUIRE(std::isnan(bulge) || std::abs(bulge) < 2e9 || std::abs(other - angle) > 2.0 * Pi);
}

void CheckDirections(Decoder& decoder)
{
    TheTrace().Begin("directions");
    const double x = decoder.Number();
    const double y = decoder.Number();
    const gp_Vec2d a(x, y);
    const double u = decoder.Number();
    const gp_Vec2d b(u, decoder.Number());
    const double direction = ComputeAngle(x, y);
    FUZZ_REQUIRE(std::isnan(direction) || (direction >= 0.0 && direction <= 2.0 * Pi));
    const double normal = D2GetNormalAngle(x, y);
    FUZZ_REQUIRE(std::isnan(normal) || (normal >= 0.0 && normal < 2.0 * Pi));
    FUZZ_REQUIRE(SameBits(normal, D2GetNormalAngle(DPOINT2(x, y))));
    const double turn = D2RotateAngle(a, b);
    FUZZ_REQUIRE(std::isnan(turn) || (turn >= -Pi && turn <= Pi));
    FUZZ_REQUIRE(SameBits(D2GetIncludeAngle(a, b), std::abs(turn)));
    FUZZ_REQUIRE(SameBits(D2GetProjectionDistance(a, b), D2GetProjectionDistance(a.X(), a.Y(), b.X(), b.Y())));
    if (b.X() == 0.0 && b.Y() == 0.0)
    {
        FUZZ_REQUIRE(D2GetProjectionDistance(a, b) == 0.0);
    }
    FUZZ_REQUIRE(SameBits(D2DotMultiply(a, b), D2DotMultiply(b, a)));
    const double cross = D2CrossMultiply(a, b);
    FUZZ_REQUIRE(std::isnan(cross) || cross == -D2CrossMultiply(b, a));
}

void CheckIntegers(Decoder& decoder)
{
    TheTrace().Begin("integers");
    const int a = decoder.Whole();
    const int b = decoder.Whole();
    TheTrace().Take(a);
    TheTrace().Take(b);
    const std::int64_t wideA =
        decoder.Flag() ? std::int64_t{a} * decoder.Whole() : std::numeric_limits<std::int64_t>::min();
    const std::int64_t wideB = b;
    const int divisor = GetGreatestCommonDivisor(a, b);
    FUZZ_REQUIRE(divisor != 0 &&
                 (a == 0 || b == 0 || (std::int64_t{a} % divisor == 0 && std::int64_t{b} % divisor == 0)));
    int n = a;
    int d = b;
    Reducify(n, d);
    FUZZ_REQUIRE(std::int64_t{n} * b == std::int64_t{d} * a);
    int both = a;
    Reducify(both, both);
    std::int64_t wideN = wideA;
    std::int64_t wideD = wideB;
    ReducifyInt64(wideN, wideD);
    // Wide products could overflow: long double holds both factors.
    FUZZ_REQUIRE(static_cast<long double>(wideN) * static_cast<long double>(wideB) ==
                 static_cast<long double>(wideD) * static_cast<long double>(wideA));
    FUZZ_REQUIRE(GetGreatestCommonDivisorInt64(wideA, wideB) != 0);
    FUZZ_REQUIRE(wideA != a || GetGreatestCommonDivisorInt64(a, b) == divisor);
}

// Distances

void CheckDistances(Decoder& decoder)
{
    TheTrace().Begin("distances");
    const DPOINT2 point = decoder.Point();
    const DPOINT2 a = decoder.Point();
    const DPOINT2 b = decoder.Point();
    const double angle = decoder.Angle();
    FUZZ_REQUIRE(!(D2GetDistance(a, b) < 0.0) && SameBits(D2GetDistance(a, b), D2GetDistance(b, a)));
    FUZZ_REQUIRE(!(D2GetPointToLineDistance(point, a, b) < 0.0));
    FUZZ_REQUIRE(!(D2GetPointToBeelineDistance(point, a, angle) < 0.0));
    FUZZ_REQUIRE(!(MinDistanceToLine(point, a, b) < 0.0));
    const DPOINT2 centre = decoder.Point();
    const double radius = decoder.Size();
    const double arcDistance = MinDistanceToArc(point, a, b, centre, radius, decoder.Angle());
    // A radius a hair below 0 still has ends at their distance, and is that of the centre.
    FUZZ_REQUIRE(!(arcDistance <= -1e-9));
    DPOINT2 foot(-77.25, 1234.5);
    D2GetProjectionPoint(point, {a.x, a.y, b.x, b.y}, &foot);
    DPOINT2 own = point;
    D2GetProjectionPoint(own, {a.x, a.y, b.x, b.y}, &own);
    FUZZ_REQUIRE(SamePoint(own, SamePoint(foot, {-77.25, 1234.5}) ? point : foot));
    const DPOINT2 inFrame = CoorTransXYToUV(point, a, angle);
    if (!IsTame(point) || !IsTame(a) || !IsTame(b))
    {
        return;
    }
    FUZZ_REQUIRE(std::abs(MinDistanceToLine(point, a, b)) <= std::min(Distance(point, a), Distance(point, b)) + 1e-9);
    if (!std::isnan(angle))
    {
        FUZZ_REQUIRE(Distance(CoorTransUVToXY(inFrame, a, angle), point) < 1e-9);
    }
    if (Distance(a, b) > 1e-3)
    {
        FUZZ_REQUIRE(std::abs(Distance(foot, point) - D2GetPointToLineDistance(point, a, b)) < 1e-6);
    }
}

// Predicates

void CheckPredicates(Decoder& decoder)
{
    TheTrace().Begin("predicates");
    const DPOINT2 point = decoder.Point();
    const DPOINT2 a = decoder.Point();
    const DPOINT2 b = decoder.Point();
    const double size = decoder.Size();
    const double other = decoder.Size();
    const double start = decoder.Angle();
    const double extent = decoder.Angle();
    const double rotation = decoder.Angle();
    const bool ccw = decoder.Flag();
    FUZZ_REQUIRE(IsPointInLine(point, a, b) == IsPointInLine(point, a, b, DoubleTolerance));
    IsPointProjInLine(point, a, b);
    FUZZ_REQUIRE(IsPointProjInLine(point, a, a));
    FUZZ_REQUIRE(IsPointInArc(point, a, size, start, extent, ccw) ==
                 IsPointInArc(point, a, size, start, extent, ccw, DoubleTolerance));
    FUZZ_REQUIRE(size > 0.0 || !IsPointInArc(point, a, size, start, extent, ccw));
    IsPointInArc(point, a, b, decoder.Point(), ccw);
    IsAngleInSector(start, rotation, extent);
    FUZZ_REQUIRE(!std::isnan(start) || !IsAngleInSector(start, rotation, extent, ccw));
    IsAngleInSector(start, rotation, extent, ccw);
    const int holds = static_cast<int>(IsPointInEllipse(point, a, size, other, rotation)) +
                      static_cast<int>(IsPointInsideEllipse(point, a, size, other, rotation)) +
                      static_cast<int>(IsPointOutsideEllipse(point, a, size, other, rotation));
    FUZZ_REQUIRE(holds == 1);
    const bool onArc = IsPointInEllipseArc(point, a, size, other, rotation, start, extent, ccw);
    FUZZ_REQUIRE(!onArc || IsPointInEllipse(point, a, size, other, rotation));
    IsPointInEllipseArc(point, a, size, other, rotation, start, extent);
}

// Constructions

void CheckArc(Decoder& decoder)
{
    TheTrace().Begin("an arc");
    const DPOINT2 first = decoder.Point();
    const DPOINT2 second = decoder.Point();
    const double bulge = decoder.Number();
    DPOINT2 centre(-77.25, 1234.5);
    double radius = -4321.625;
    double start = -4321.625;
    double sweep = -4321.625;
    const bool solved = SolveArc(first, second, bulge, &centre, &radius, &start, &sweep);
    FUZZ_REQUIRE(!SolveArc(first, second, bulge, nullptr, nullptr, nullptr, nullptr));
    if (!solved)
    {
        FUZZ_REQUIRE(SamePoint(centre, {-77.25, 1234.5}) && radius == -4321.625 && start == -4321.625 &&
                     sweep == -4321.625);
        return;
    }
    FUZZ_REQUIRE(!(sweep < -2.0 * Pi) && !(sweep > 2.0 * Pi));
    FUZZ_REQUIRE(std::isnan(bulge) || (bulge > 0.0) == (sweep > 0.0));
    double alone = 0.0;
    FUZZ_REQUIRE(SolveArc(first, second, bulge, nullptr, &alone, nullptr, nullptr) && SameBits(alone, radius));
    const double size = std::abs(bulge);
    if (!IsTame(first) || !IsTame(second) || Distance(first, second) < 1e-3 || !(size >= 1e-3 && size <= 1e3))
    {
        return;
    }
    FUZZ_REQUIRE(Distance(GetPointInCircle(centre, radius, start), first) < 1e-6);
    FUZZ_REQUIRE(Distance(GetPointInCircle(centre, radius, start + sweep), second) < 1e-6);
    FUZZ_REQUIRE(std::abs(GetBulge(start, start + sweep) - bulge) <= 1e-6 * (1.0 + size * size));
}

void CheckEllipse(Decoder& decoder)
{
    TheTrace().Begin("an ellipse");
    const DPOINT2 centre = decoder.Point();
    const double a = decoder.Size();
    const double b = decoder.Size();
    const double rotation = decoder.Angle();
    const double angle = decoder.Angle();
    GetPointInEllipse(centre, a, b, rotation, angle);
    const double height = GetHeightOfEllipseArc(a, b, angle, rotation);
    FUZZ_REQUIRE(std::isnan(height) || height >= 0.0 || !(a < 1e100));
    const double tangent = GetTangentAngleOfEllipse(centre, a, b, rotation, decoder.Point());
    FUZZ_REQUIRE(std::isnan(tangent) || (tangent >= 0.0 && tangent < Pi));
    DPOINT2 first;
    DPOINT2 second;
    FUZZ_REQUIRE(GetTangentPointOfEllipse(centre, a, b, rotation, angle, &first, &second) == 2);
    DPOINT2 alone;
    FUZZ_REQUIRE(GetTangentPointOfEllipse(centre, a, b, rotation, angle, nullptr, &alone) == 2);
    FUZZ_REQUIRE(SamePoint(alone, second));
    double scaledA = a;
    double scaledB = b;
    double scaledRotation = rotation;
    FUZZ_REQUIRE(ScaleEllipse(&scaledA, &scaledB, &scaledRotation, 1.0));
    FUZZ_REQUIRE(SameBits(scaledA, a) && SameBits(scaledB, b) && SameBits(scaledRotation, rotation));
    const double factor = decoder.Number();
    FUZZ_REQUIRE(ScaleEllipse(&scaledA, &scaledB, &scaledRotation, factor));
    scaledRotation = std::fmod(scaledRotation, 1000.0);
    FUZZ_REQUIRE(ScaleEllipse(&scaledA, &scaledB, &scaledRotation, decoder.Number(), factor));
}

void CheckRecords(Decoder& decoder)
{
    TheTrace().Begin("rectangles");
    const DPOINT2 p = decoder.Point();
    const DPOINT2 q = decoder.Point();
    const DRECT a = {p.x, p.y, decoder.Size(), decoder.Size()};
    const DRECT b = {q.x, q.y, decoder.Size(), decoder.Size()};
    DRECT both;
    const bool hasArea = both.Union(a, b);
    FUZZ_REQUIRE(hasArea == (both.width > 0.0 && both.height > 0.0));
    DRECT own = a;
    FUZZ_REQUIRE(own.Union(own, b) == hasArea && SameBits(own.width, both.width) && SameBits(own.x, both.x));
    DRECT other = b;
    FUZZ_REQUIRE(other.Union(a, other) == hasArea && SameBits(other.height, both.height));
    const LineD2D line = {p.x, p.y, q.x, q.y};
    const RealRectD box = RealRectD::CreateRealRectD(&line);
    FUZZ_REQUIRE(!(box.maxX < box.minX) && !(box.maxY < box.minY));
    const ArcD arc = {p.x, p.y, decoder.Number(), 0.0};
    const RealRectD circle = RealRectD::CreateRealRectD(&arc);
    FUZZ_REQUIRE(!(circle.maxX < circle.minX) && !(circle.maxY < circle.minY));
}

} // namespace

void CheckPrimitive(Decoder& decoder)
{
    switch (decoder.Below(8))
    {
    case 0:
        CheckAngles(decoder);
        break;
    case 1:
        CheckDirections(decoder);
        break;
    case 2:
        CheckIntegers(decoder);
        break;
    case 3:
        CheckDistances(decoder);
        break;
    case 4:
        CheckPredicates(decoder);
        break;
    case 5:
        CheckArc(decoder);
        break;
    case 6:
        CheckEllipse(decoder);
        break;
    default:
        CheckRecords(decoder);
        break;
    }
}

} // namespace fuzz
