#pragma once

#include "support/ReferenceMap.h"

#include <cmath>
#include <vector>

// The set algebra of ranges a second time, against which the library is compared bit for bit: one branch for one
// sentence, nothing shared, nothing shortened. Ends that are no numbers are not served where a range is unrolled.

namespace math
{
namespace reference
{

struct Range
{
    double start;
    double end;
};

using Ranges = std::vector<Range>;

inline bool RangeIsInvalid(const Range& range)
{
    return std::isnan(range.start) || std::isnan(range.end) || range.start < -1e-9 || range.end < -1e-9;
}

inline bool RangeIsWhole(const Range& range)
{
    return !RangeIsInvalid(range) && Near(range.start, range.end);
}

inline double UnrollLength(const Range& a, const Range& b)
{
    double greatest = a.start;
    if (a.end > greatest)
    {
        greatest = a.end;
    }
    if (b.start > greatest)
    {
        greatest = b.start;
    }
    if (b.end > greatest)
    {
        greatest = b.end;
    }
    return std::ceil(greatest) + 1.0;
}

inline Ranges FoldBack(const Ranges& list, double length)
{
    Ranges folded;
    for (const Range& range : list)
    {
        Range back = range;
        if (back.start > length)
        {
            back.start = back.start - length;
        }
        if (back.end > length)
        {
            back.end = back.end - length;
        }
        folded.push_back(back);
    }
    return folded;
}

// Forward ranges

inline Ranges ForwardDifference(const Range& a, const Range& b)
{
    const double s1 = a.start;
    const double e1 = a.end;
    const double s2 = b.start;
    const double e2 = b.end;
    if (e2 < s1 || Near(e2, s1))
    {
        return {a};
    }
    if (e2 < e1)
    {
        if (s2 >= s1 && !Near(s2, s1))
        {
            return {{s1, s2}, {e2, e1}};
        }
        return {{e2, e1}};
    }
    if (Near(e2, e1))
    {
        if (s2 < s1 || Near(s2, s1))
        {
            return {};
        }
        return {{s1, s2}};
    }
    if (s2 < s1 || Near(s2, s1))
    {
        return {};
    }
    if (s2 < e1)
    {
        return {{s1, s2}};
    }
    return {a};
}

inline Ranges ForwardUnion(const Range& a, const Range& b)
{
    const double s1 = a.start;
    const double e1 = a.end;
    const double s2 = b.start;
    const double e2 = b.end;
    if (e2 < s1)
    {
        return {a, b};
    }
    if (Near(e2, s1))
    {
        return {{s2, e1}};
    }
    if (e2 < e1 || Near(e2, e1))
    {
        if (s2 < s1 || Near(s2, s1))
        {
            return {{s2, e1}};
        }
        return {a};
    }
    if (s2 >= s1 && !Near(s2, s1))
    {
        if (s2 < e1)
        {
            return {{s1, e2}};
        }
        return {a, b};
    }
    return {b};
}

inline Ranges ForwardIntersection(const Range& a, const Range& b)
{
    const double s1 = a.start;
    const double e1 = a.end;
    const double s2 = b.start;
    const double e2 = b.end;
    if (e2 < s1 || Near(e2, s1))
    {
        return {};
    }
    if (e2 >= e1 && !Near(e2, e1))
    {
        if (s2 < s1)
        {
            return {a};
        }
        if (s2 < e1 || Near(s2, s1))
        {
            return {{s2, e1}};
        }
        return {};
    }
    if (s2 >= s1)
    {
        return {b};
    }
    return {{s1, e2}};
}

// All ranges

inline Ranges Split(const Range& range, double position)
{
    if (RangeIsInvalid(range))
    {
        return {};
    }
    const Ranges pieces = {{range.start, position}, {position, range.end}};
    if (range.end > range.start)
    {
        return position > range.start && position < range.end ? pieces : Ranges{range};
    }
    if (Near(range.start, range.end))
    {
        return Near(position, range.start) || Near(position, range.end) ? Ranges{range} : pieces;
    }
    return position > range.start || position < range.end ? pieces : Ranges{range};
}

inline Ranges Difference(const Range& a, const Range& b)
{
    if (RangeIsWhole(a) && RangeIsWhole(b))
    {
        return {};
    }
    if (RangeIsWhole(a))
    {
        return {RangeIsInvalid(b) ? Range{-1.0, -1.0} : Range{b.end, b.start}};
    }
    if (RangeIsWhole(b))
    {
        return {};
    }
    const bool aForward = a.end > a.start;
    const bool bForward = b.end > b.start;
    if (aForward && bForward)
    {
        return ForwardDifference(a, b);
    }
    const double L = UnrollLength(a, b);
    if (!aForward && !bForward)
    {
        return FoldBack(ForwardDifference({a.start, a.end + L}, {b.start, b.end + L}), L);
    }
    if (!aForward)
    {
        const Range u = {a.start, a.end + L};
        const Ranges r = ForwardDifference(u, b);
        if (r.size() == 2)
        {
            return FoldBack(r, L);
        }
        if (r.empty())
        {
            return {};
        }
        return FoldBack(ForwardDifference(r[0], {b.start + L, b.end + L}), L);
    }
    const Ranges r = ForwardDifference(a, {b.start - L, b.end});
    if (r.empty())
    {
        return {};
    }
    return ForwardDifference(r[0], {b.start, b.end + L});
}

inline Ranges Union(const Range& a, const Range& b)
{
    if (RangeIsInvalid(a) && RangeIsInvalid(b))
    {
        return {};
    }
    if (RangeIsWhole(a) && RangeIsWhole(b))
    {
        return {a};
    }
    if (RangeIsInvalid(a) || RangeIsWhole(b))
    {
        return {b};
    }
    if (RangeIsWhole(a) || RangeIsInvalid(b))
    {
        return {a};
    }
    const bool aForward = a.end > a.start;
    const bool bForward = b.end > b.start;
    if (aForward && bForward)
    {
        return ForwardUnion(a, b);
    }
    const double L = UnrollLength(a, b);
    if (aForward)
    {
        const Ranges r = ForwardUnion(a, {b.start, b.end + L});
        if (r.size() == 2)
        {
            return {a, b};
        }
        if (r[0].end - r[0].start > L)
        {
            return {{b.start, b.start}};
        }
        return {{r[0].start, r[0].end - L}};
    }
    if (bForward)
    {
        return Union(b, a);
    }
    const Ranges r = ForwardUnion({a.start, a.end + L}, {b.start, b.end + L});
    if (r[0].end - r[0].start > L)
    {
        return {{b.start, b.start}};
    }
    return {{r[0].start, r[0].end - L}};
}

inline Ranges Intersection(const Range& a, const Range& b)
{
    if (RangeIsInvalid(a) || RangeIsInvalid(b))
    {
        return {};
    }
    if (RangeIsWhole(a))
    {
        return {b};
    }
    if (RangeIsWhole(b))
    {
        return {a};
    }
    const bool aForward = a.end > a.start;
    const bool bForward = b.end > b.start;
    if (aForward && bForward)
    {
        return ForwardIntersection(a, b);
    }
    const double L = UnrollLength(a, b);
    if (aForward)
    {
        Ranges result = ForwardIntersection(a, {b.start - L, b.end});
        for (const Range& range : ForwardIntersection(a, {b.start, b.end + L}))
        {
            result.push_back(range);
        }
        return result;
    }
    if (bForward)
    {
        return Intersection(b, a);
    }
    return FoldBack(ForwardIntersection({a.start, a.end + L}, {b.start, b.end + L}), L);
}

} // namespace reference
} // namespace math
