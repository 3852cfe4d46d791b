#pragma once

namespace math::detail
{

/// Folds `value` into [0, modulus): first up, then down, since a tiny negative value rounds up to the modulus itself.
///
/// A remainder function would give other last bits. Never ends for an infinite value, or one that the modulus no longer
/// changes; NaN comes back at once.
inline double Fold(double value, double modulus)
{
    while (value < 0.0)
    {
        value += modulus;
    }
    while (value >= modulus)
    {
        value -= modulus;
    }
    return value;
}

} // namespace math::detail
