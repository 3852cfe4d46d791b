#include "primitives/RequireChecks.h"

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Direction.h"
#include "primitives/Fold.h"
#include "primitives/Straight.h"
#include "primitives/Tolerance.h"

#include <cmath>

#include <gp.hxx>
#include <gp_Vec2d.hxx>

namespace math
{

namespace
{

constexpr double FullTurnInDegrees = 360.0;
constexpr double HalfTurnInDegrees = 180.0;
constexpr double DegreesInOneRadian = 57.29577951308232;

bool IsZeroVector(const gp_Vec2d& vector)
{
    return detail::IsZero(vector.X()) && detail::IsZero(vector.Y());
}

} // namespace

double RadianToAngle(double radian)
{
    return radian * DegreesInOneRadian;
}

double AngleToRadian(double angle)
{
    return angle / HalfTurnInDegrees * detail::Pi;
}

double RegularizeAngle(double angle)
{
    return detail::Fold(angle, FullTurnInDegrees);
}

double RegularizeRadian(double radian)
{
    return detail::Fold(radian, detail::TwoPi);
}

double RegularizeIncludedAngle(double angle)
{
    return detail::Fold(angle, HalfTurnInDegrees);
}

double RegularizeIncludedRadian(double radian)
{
    return detail::Fold(radian, detail::Pi);
}

void NormalizeAngle(double& angle)
{
    angle = RegularizeAngle(angle);
}

void NormalizeRadian(double& radian)
{
    radian = RegularizeRadian(radian);
}

void NormalizeIncludedAngle(double& angle)
{
    angle = RegularizeIncludedAngle(angle);
}

void NormalizeIncludedRadian(double& radian)
{
    radian = RegularizeIncludedRadian(radian);
}

double GetReverseAngle(double angle)
{
    return RegularizeAngle(angle - HalfTurnInDegrees);
}

double GetReverseRadian(double radian)
{
    return RegularizeRadian(radian - detail::Pi);
}

double GetComplementaryAngle(double angle)
{
    return RegularizeIncludedAngle(HalfTurnInDegrees - angle);
}

double GetComplementaryRadian(double radian)
{
    return RegularizeIncludedRadian(detail::Pi - radian);
}

double GetArcAngle(double arcLength, double radius)
{
    if (detail::IsZero(radius))
    {
        return InvalidDouble;
    }
    return (arcLength * HalfTurnInDegrees) / (radius * detail::Pi);
}

double GetArcLength(double angle, double radius)
{
    return AngleToRadian(angle) * radius;
}

double GetBulge(double startRadian, double endRadian)
{
    const double quarterSweep = (endRadian - startRadian) * 0.25;
    if (detail::AreEqual(std::abs(quarterSweep), detail::HalfPi))
    {
        return InvalidDouble;
    }
    return std::tan(quarterSweep);
}

double ComputeAngle(double x, double y)
{
    const double norm = std::sqrt(x * x + y * y);
    if (!(norm > gp::Resolution()))
    {
        return InvalidDouble;
    }
    const double angle = gp_Vec2d(1.0, 0.0).Angle(gp_Vec2d(x, y));
    // Added once and not folded: a tiny negative angle gives 2π itself.
    return angle < 0.0 ? angle + detail::TwoPi : angle;
}

double D2RotateAngle(const gp_Vec2d& a, const gp_Vec2d& b)
{
    // Each coordinate is compared, not the norm: (0.9e-9, 0.9e-9) is a zero vector. What is left is far above the norm
    // for which the toolkit would raise an exception.
    if (IsZeroVector(a) || IsZeroVector(b))
    {
        return InvalidDouble;
    }
    return a.Angle(b);
}

double D2GetIncludeAngle(const gp_Vec2d& a, const gp_Vec2d& b)
{
    return std::abs(D2RotateAngle(a, b));
}

double D2GetNormalAngle(double x, double y)
{
    detail::UnitVector direction{};
    detail::Normalize(x, y, direction);
    return detail::NormalAngle({x, y}, direction);
}

double D2GetNormalAngle(const DPOINT2& vector)
{
    return D2GetNormalAngle(vector.x, vector.y);
}

} // namespace math
