#include "primitives/EllipseTangents.h"

#include "primitives/Constants.h"
#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

std::pair<DPOINT2, DPOINT2> OwnTangentPoints(double a, double b, double direction)
{
    if (IsZero(direction) || AreEqual(direction, Pi))
    {
        return {{0.0, -b}, {0.0, b}};
    }
    if (AreEqual(direction, HalfPi))
    {
        return {{-a, 0.0}, {a, 0.0}};
    }
    const double tangent = std::tan(direction);
    const double scaled = (tangent * tangent) * (a * a);
    const double divisor = scaled + b * b;
    const double x = std::sqrt(scaled * a * a / divisor);
    const double y = std::sqrt((b * b) * (b * b) / divisor);
    if (0.0 < direction && direction < HalfPi)
    {
        return {{-x, y}, {x, -y}};
    }
    return {{x, y}, {-x, -y}};
}

double TangentAngle(const OwnFrame& frame, double a, double b, double rotation, const DPOINT2& point)
{
    const DPOINT2 own = frame.Into(point);
    if (!IsZero(own.y * own.y / (b * b) + own.x * own.x / (a * a) - 1.0))
    {
        return InvalidDouble;
    }
    const double angle = IsZero(own.y) ? HalfPi : std::atan((own.x * b * b * (-1.0)) / (own.y * a * a));
    return RegularizeIncludedRadian(angle + rotation);
}

} // namespace math::detail
