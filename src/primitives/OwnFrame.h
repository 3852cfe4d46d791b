#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

/// The frame at `origin` that is turned by a rotation.
class OwnFrame
{
public:
    OwnFrame(const DPOINT2& origin, double rotation)
        : m_origin(origin),
          m_cosine(std::cos(rotation)),
          m_sine(std::sin(rotation))
    {
    }

    double Cosine() const
    {
        return m_cosine;
    }

    double Sine() const
    {
        return m_sine;
    }

    /// A point of the world in this frame.
    DPOINT2 Into(const DPOINT2& point) const
    {
        const double dx = point.x - m_origin.x;
        const double dy = point.y - m_origin.y;
        return {dx * m_cosine + dy * m_sine, dy * m_cosine - dx * m_sine};
    }

    /// A point of this frame in the world.
    DPOINT2 OutOf(const DPOINT2& point) const
    {
        return {point.x * m_cosine - point.y * m_sine + m_origin.x, point.x * m_sine + point.y * m_cosine + m_origin.y};
    }

private:
    DPOINT2 m_origin;
    double m_cosine;
    double m_sine;
};

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

/// The point of the ellipse in a frame that is seen from the centre in the polar angle `radian` from the frame's x axis.
inline DPOINT2 PointAtPolarAngle(const OwnFrame& frame, double a, double b, double radian)
{
    const double parameter = EccentricParameter(radian, a, b, HalfTurn::RightUpToTheVertices);
    return frame.OutOf(PointAtEccentricParameter(parameter, a, b));
}

} // namespace math::detail
