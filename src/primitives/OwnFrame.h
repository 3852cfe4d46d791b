#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

/// A point of the world in the frame at `origin` that is turned by `rotation`.
inline DPOINT2 IntoOwnFrame(const DPOINT2& point, const DPOINT2& origin, double rotation)
{
    const double dx = point.x - origin.x;
    const double dy = point.y - origin.y;
    const double cosine = std::cos(rotation);
    const double sine = std::sin(rotation);
    return {dx * cosine + dy * sine, dy * cosine - dx * sine};
}

/// A point of the frame at `origin` that is turned by `rotation`, in the world.
inline DPOINT2 OutOfOwnFrame(const DPOINT2& point, const DPOINT2& origin, double rotation)
{
    const double cosine = std::cos(rotation);
    const double sine = std::sin(rotation);
    return {point.x * cosine - point.y * sine + origin.x, point.x * sine + point.y * cosine + origin.y};
}

/// Where the conversion to the eccentric parameter adds the half turn of the left half plane.
enum class HalfTurn
{
    RightUpToTheVertices, ///< wherever the angle lies strictly between π/2 and 3π/2
    AwayFromTheVertices   ///< there too, but not within DoubleTolerance of π/2 and 3π/2
};

/// Eccentric parameter t of the point (a cos t, b sin t) that is seen from the centre in the polar angle `radian`.
///
/// `radian` lies in [0, 2π). Within DoubleTolerance of π/2 and 3π/2, where the tangent has its poles, both angles
/// are the same.
inline double EccentricParameter(double radian, double a, double b, HalfTurn halfTurn)
{
    const bool atVertex = AreEqual(radian, HalfPi) || AreEqual(radian, ThreeHalvesPi);
    const bool inLeftHalf = HalfPi < radian && radian < ThreeHalvesPi;
    const double parameter = atVertex ? radian : std::atan(std::tan(radian) * (a / b));
    const bool isTurned = inLeftHalf && (halfTurn == HalfTurn::RightUpToTheVertices || !atVertex);
    return isTurned ? parameter + Pi : parameter;
}

/// The point (a cos t, b sin t) of an ellipse in its own frame.
inline DPOINT2 PointAtEccentricParameter(double parameter, double a, double b)
{
    return {std::cos(parameter) * a, std::sin(parameter) * b};
}

} // namespace math::detail
