#pragma once

#include "intersect/QuarterArcs.h"
#include "math/Primitives.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace math::detail
{

/// The end of a range that moves to its middle when it is halved.
enum class MovingEnd : std::size_t
{
    Low,
    High,
    Neither
};

/// The low end if the difference in the middle has the sign of that at the low end.
inline MovingEnd ChooseEnd(double difference, double differenceAtLow)
{
    return difference * differenceAtLow > 0.0 ? MovingEnd::Low : MovingEnd::High;
}

/// The part of a search on two arcs in which both are surely met by the vertical through the middle of the range.
struct SureHalving
{
    std::array<double, 2> ends;
    std::array<double, 2> xOfEnds = {InvalidDouble, InvalidDouble}; ///< of the verticals that led to them, if any did
    double xOfLast = InvalidDouble;                                 ///< of the last vertical
    bool isFound = false;                                           ///< the search is at its end

    bool IsWide() const
    {
        return ends[0] + DoubleTolerance < ends[1];
    }

    bool HasBegun() const
    {
        return !std::isnan(xOfLast);
    }

    bool HasMoved(MovingEnd end) const
    {
        return !std::isnan(xOfEnds[static_cast<std::size_t>(end)]);
    }

    double XOf(MovingEnd end) const
    {
        return xOfEnds[static_cast<std::size_t>(end)];
    }

    /// Takes a step.
    ///
    /// @param choose  the end that moves; if it is neither the search is at its end
    /// @return whether a step may follow
    template <typename Choose>
    bool HalveOnce(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, const Choose& choose)
    {
        const double middle = (ends[1] + ends[0]) * 0.5;
        if (!IsWide() || !AreSurelyMetAt(arcA, arcB, middle))
        {
            return false;
        }
        const MovingEnd end = choose(middle);
        xOfLast = middle;
        if (end == MovingEnd::Neither)
        {
            isFound = true;
            return false;
        }
        // The end moves to the point found, not to the middle: they differ in the last bits. It is picked by its index,
        // since no processor foretells which one it is.
        const auto index = static_cast<std::size_t>(end);
        ends[index] = arcA.MeetingAt(middle).x;
        xOfEnds[index] = middle;
        return true;
    }
};

} // namespace math::detail
