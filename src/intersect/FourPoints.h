#pragma once

#include "intersect/PointOutputs.h"
#include "math/Primitives.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace math::detail
{

/// Points on their way to four optional outputs.
using FourPoints = std::array<DPOINT2, 4>;
using FourOutputs = std::array<DPOINT2*, 4>;

/// Writes the first `count` points; the outputs behind them hold no point.
inline void WriteFour(const FourPoints& points, int count, const FourOutputs& outputs)
{
    for (std::size_t i = 0; i < outputs.size(); ++i)
    {
        Write(static_cast<int>(i) < count ? points[i] : NoPoint(), outputs[i]);
    }
}

/// Moves those of the first `count` points that pass a test to the front, in order.
///
/// @param count  a result of the family: below 1 keeps none, above four looks at four
/// @return how many were kept
template <typename Predicate>
int KeepFirst(FourPoints& points, int count, const Predicate& isKept)
{
    const int available = std::clamp(count, 0, static_cast<int>(points.size()));
    int kept = 0;
    for (int i = 0; i < available; ++i)
    {
        const DPOINT2 candidate = points[static_cast<std::size_t>(i)];
        if (isKept(candidate))
        {
            points[static_cast<std::size_t>(kept++)] = candidate;
        }
    }
    return kept;
}

} // namespace math::detail
