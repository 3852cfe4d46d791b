#include "polyline/ArcLength.h"

#include "primitives/Tolerance.h"

#include <cmath>

namespace math::detail
{

double LengthOfArc(double chord, double bulge)
{
    const double extent = 4.0 * std::abs(std::atan(bulge));
    if (IsZero(extent))
    {
        return chord;
    }
    return chord * 0.5 / std::sin(extent * 0.5) * extent;
}

} // namespace math::detail
