#pragma once

#include "math/Primitives.h"

#include <cmath>
#include <cstdint>
#include <vector>

/// What is done on plain positions and counts.
namespace math::detail
{

/// The failure value of functions that answer with positions.
inline constexpr double NoPosition = -1.0;

/// Two positions as they stand: a PosRangeD without its conventions.
struct Span
{
    double start;
    double end;
};

/// What stands for the span of a map without one.
inline constexpr Span NoSpan{NoPosition, NoPosition};

/// The nearest `int`.
int SaturateToInt(std::int64_t value);

/// Number of whole laps of `segmentCount` in a position at or above 0, negative below; the count must not be 0.
std::int64_t WholeLaps(double position, int segmentCount);

/// Tells whether a position lies between 0 and the count and near neither.
inline bool LiesWithinFirstLap(double position, int segmentCount)
{
    return position >= DoubleTolerance && segmentCount - position >= DoubleTolerance;
}

/// Tells whether a position comes before another on the way up or down. NaN comes last, so that the order is always
/// well defined.
inline bool LiesBefore(double a, double b, bool ascending)
{
    if (std::isnan(a) || std::isnan(b))
    {
        return std::isnan(b) && !std::isnan(a);
    }
    return ascending ? a < b : a > b;
}

/// Sorts positions upward or downward, NaN last.
void SortPositions(std::vector<double>::iterator begin, std::vector<double>::iterator end, bool ascending);

} // namespace math::detail
