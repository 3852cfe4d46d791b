#pragma once

namespace math::detail
{

/// The length of an arc: radius times sweep, both from the chord.
double LengthOfArc(double chord, double bulge);

} // namespace math::detail
