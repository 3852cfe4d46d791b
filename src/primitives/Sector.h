#pragma once

#include "math/Primitives.h"
#include "primitives/Constants.h"
#include "primitives/Tolerance.h"
#include "primitives/Verdict.h"

#include <cmath>

namespace math::detail
{

/// The sign with which angles are counted along an arc.
inline double SignOf(bool ccw)
{
    return ccw ? 1.0 : -1.0;
}

/// Tells whether a direction lies in a sector, with DoubleTolerance at both ends.
///
/// @param fromStart  of the direction, counted along the sector, in [0, 2π)
inline bool IsInSector(double fromStart, double extent)
{
    // The second test admits a direction just before the start.
    return fromStart <= extent + DoubleTolerance || AreEqual(fromStart, TwoPi);
}

/// Angles of many turns lose digits when they are folded.
inline bool IsOfFewTurns(double radian)
{
    return std::abs(radian) < 32.0;
}

/// Short and long vectors lose their direction.
inline bool HasSureDirection(double reach)
{
    return reach > 1e-6 && reach < 1e100;
}

/// A first look at whether the direction of a vector lies between 0 and `limit` from `startRadian`, counted with the
/// sign of an arc. It is sure only where the direction is more than `margin` away from both bounds, so that neither
/// tolerance nor rounding counts; whoever is not sure measures the direction.
///
/// @param margin  at least 1e-6
inline Verdict LookInSector(double dx, double dy, double startRadian, double limit, double sign, double margin)
{
    if (!(IsOfFewTurns(startRadian) && HasSureDirection(std::abs(dx) + std::abs(dy))))
    {
        return Verdict::Unsure;
    }
    double fromStart = (std::atan2(dy, dx) - startRadian) * sign;
    fromStart -= TwoPi * std::floor(fromStart * (1.0 / TwoPi));
    if (fromStart > margin && fromStart < limit - margin)
    {
        return Verdict::Inside;
    }
    return fromStart > limit + margin && fromStart < TwoPi - margin ? Verdict::Outside : Verdict::Unsure;
}

} // namespace math::detail
