#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"

#include <cmath>

namespace math::detail
{

enum class Verdict
{
    Inside,
    Outside,
    Unsure
};

/// A first look at whether the direction of a vector lies between 0 and `limit` from `startRadian`, counted with the
/// sign `turn`. It is sure only where the direction is more than `margin` away from both bounds, so that neither
/// tolerance nor rounding counts; whoever is not sure measures the direction.
///
/// @param margin  at least 1e-6
inline Verdict LookInSector(double dx, double dy, double startRadian, double limit, double turn, double margin)
{
    // Angles of many turns lose digits when they are folded, short and long vectors lose their direction.
    const double reach = std::abs(dx) + std::abs(dy);
    if (!(std::abs(startRadian) < 32.0 && reach > 1e-6 && reach < 1e100))
    {
        return Verdict::Unsure;
    }
    double fromStart = (std::atan2(dy, dx) - startRadian) * turn;
    fromStart -= TwoPi * std::floor(fromStart * (1.0 / TwoPi));
    if (fromStart > margin && fromStart < limit - margin)
    {
        return Verdict::Inside;
    }
    return fromStart > limit + margin && fromStart < TwoPi - margin ? Verdict::Outside : Verdict::Unsure;
}

} // namespace math::detail
