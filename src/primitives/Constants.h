#pragma once

/// Angles that have names.
namespace math::detail
{

inline constexpr double QuarterPi = 0.7853981633974483;
inline constexpr double HalfPi = 1.5707963267948966;
inline constexpr double ThreeQuartersPi = 2.356194490192345;
inline constexpr double Pi = 3.141592653589793;
inline constexpr double ThreeHalvesPi = 4.71238898038469;
inline constexpr double TwoPi = 6.283185307179586;

} // namespace math::detail
