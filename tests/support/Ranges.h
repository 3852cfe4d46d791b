#pragma once

#include "support/Maps.h"

#include <cmath>
#include <initializer_list>
#include <ostream>
#include <utility>
#include <vector>

// What the tests of range algebra share: lists of ranges that compare bit for bit, and the numbers on either side of
// the tolerance.

namespace math::test
{

/// A list of ranges in its order.
struct RangeList
{
    std::vector<PosRangeD> ranges;

    friend bool operator==(const RangeList& a, const RangeList& b)
    {
        bool same = a.ranges.size() == b.ranges.size();
        for (std::size_t i = 0; same && i < a.ranges.size(); ++i)
        {
            same = Two(a.ranges[i]) == Two(b.ranges[i]);
        }
        return same;
    }

    friend std::ostream& operator<<(std::ostream& out, const RangeList& list)
    {
        Pairs ends;
        for (const PosRangeD& range : list.ranges)
        {
            ends.emplace_back(range.start, range.end);
        }
        return out << TextOfList(ends);
    }
};

/// Read as it stands: Pieces({{1, 2}, {3, 4}}).
inline RangeList Pieces(std::initializer_list<PosRangeD> ranges)
{
    return {ranges};
}

inline RangeList Nothing()
{
    return {};
}

inline RangeList Cut(PosRangeD range, double position)
{
    return {range.Splite(position)};
}

inline RangeList Difference(const PosRangeD& a, const PosRangeD& b)
{
    return {a - b};
}

inline RangeList Union(const PosRangeD& a, const PosRangeD& b)
{
    return {a + b};
}

inline RangeList Intersection(const PosRangeD& a, const PosRangeD& b)
{
    return {a * b};
}

// Numbers on either side of the tolerance

/// The number furthest from `value` in the direction of `towards` that is still near it.
inline double LastNear(double value, double towards)
{
    double candidate = towards > value ? value + Tolerance : value - Tolerance;
    while (std::fabs(candidate - value) < Tolerance)
    {
        candidate = std::nextafter(candidate, towards);
    }
    while (!(std::fabs(candidate - value) < Tolerance))
    {
        candidate = std::nextafter(candidate, value);
    }
    return candidate;
}

inline double LastNearAbove(double value)
{
    return LastNear(value, Infinite);
}

inline double LastNearBelow(double value)
{
    return LastNear(value, -Infinite);
}

inline double FirstClearAbove(double value)
{
    return std::nextafter(LastNearAbove(value), Infinite);
}

inline double FirstClearBelow(double value)
{
    return std::nextafter(LastNearBelow(value), -Infinite);
}

inline double JustAbove(double value)
{
    return std::nextafter(value, Infinite);
}

inline double JustBelow(double value)
{
    return std::nextafter(value, -Infinite);
}

} // namespace math::test
