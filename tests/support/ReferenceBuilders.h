#pragma once

#include "support/ReferenceComposition.h"
#include "support/ReferenceRanges.h"

#include <algorithm>
#include <cmath>
#include <utility>

// Concatenation, combiners, extension and removal once more on the plain maps of ReferenceMap.h, each sentence a
// statement. Only for counts at or above 0 and finite positions.

namespace math
{
namespace reference
{

inline RefMap Inverted(RefMap map)
{
    Invert(map);
    return map;
}

inline RefMap Tidied(RefMap map)
{
    Unique(map.list, true);
    return map;
}

inline void RaiseColumn(List& list, int side, int count)
{
    for (auto& pair : list)
    {
        if (side == 1)
        {
            pair.first = pair.first + count;
        }
        else
        {
            pair.second = pair.second + count;
        }
    }
}

inline RefMap Concatenate(const RefMap& a, const RefMap& b)
{
    if (IsInvalid(a) || IsInvalid(b))
    {
        return {};
    }
    if (a.sourceCount != b.sourceCount)
    {
        return {};
    }
    if (a.destinationCount != b.destinationCount)
    {
        return {};
    }
    if (a.list.empty())
    {
        return b;
    }
    if (b.list.empty())
    {
        return a;
    }
    List la = a.list;
    List lb = b.list;
    if (IsIncrease(a, 2))
    {
        if (la.back().second > lb.back().second)
        {
            RaiseColumn(lb, 2, a.destinationCount);
        }
    }
    else if (lb.front().second > la.front().second)
    {
        RaiseColumn(la, 2, a.destinationCount);
    }
    if (IsIncrease(a, 1))
    {
        if (la.back().first > lb.back().first)
        {
            RaiseColumn(lb, 1, a.sourceCount);
        }
    }
    else if (lb.front().first > la.front().first)
    {
        RaiseColumn(la, 1, a.sourceCount);
    }
    la.insert(la.end(), lb.begin(), lb.end());
    return {la, a.sourceCount, a.destinationCount};
}

// The pieces that are composed

/// From the stretch of a polyline to the polyline.
inline RefMap Piece(double s, double e, int count)
{
    if (Near(s, e))
    {
        return {{{0.0, e}}, 0, count};
    }
    const int a = IntegerPart(s);
    if (!(e > s))
    {
        e = e + count;
    }
    const int b = IntegerPart(e);
    RefMap map;
    map.list.emplace_back(0.0, s);
    for (int k = a + 1; k <= b; ++k)
    {
        map.list.emplace_back(k - a, k);
    }
    if (!Near(e, b) && b < e)
    {
        map.list.emplace_back(b - a + 1, e);
    }
    map.sourceCount = IntegerPart(map.list.back().first);
    map.destinationCount = count;
    return Tidied(map);
}

/// A stretch of source collapsed to one position.
inline RefMap Collapsed(double start, double end, double position, int sourceCount, int destinationCount)
{
    if (Near(start, end))
    {
        return {{{0.0, position}}, 0, destinationCount};
    }
    return Tidied({{{start, position}, {end, position}}, sourceCount, destinationCount});
}

inline RefMap WholeMap(int count)
{
    if (count == 0)
    {
        return {};
    }
    RefMap map;
    for (int i = 0; i <= count; ++i)
    {
        map.list.emplace_back(i, i);
    }
    map.sourceCount = count;
    map.destinationCount = count;
    return Tidied(map);
}

// Combiners

inline std::pair<RefMap, RefMap> CombineTwoCad(int firstCount, int secondCount)
{
    const int t = firstCount + secondCount;
    return {Piece(0, firstCount, t), Piece(firstCount, t, t)};
}

inline RefMap CombineSameDestination(const RefMap& a, const RefMap& b)
{
    const int t = a.sourceCount + b.sourceCount;
    const RefMap x = Compose(Inverted(Piece(0, a.sourceCount, t)), a);
    RefMap y = Compose(Inverted(Piece(a.sourceCount, t, t)), b);
    RefMap r;
    if (IsIncrease(a, 1) && IsIncrease(b, 1))
    {
        r = Concatenate(x, y);
    }
    else if (!IsIncrease(x, 1) && !IsIncrease(b, 1))
    {
        r = Concatenate(y, x);
    }
    else if (IsIncrease(x, 1))
    {
        std::reverse(y.list.begin(), y.list.end());
        r = Concatenate(x, y);
    }
    else
    {
        std::reverse(y.list.begin(), y.list.end());
        r = Concatenate(y, x);
    }
    r = Tidied(r);
    return IsInvalid(r) ? RefMap() : r;
}

inline RefMap CombineSameSource(const RefMap& a, const RefMap& b)
{
    return Inverted(CombineSameDestination(Inverted(a), Inverted(b)));
}

inline RefMap CombineStandalone(const RefMap& a, const RefMap& b)
{
    if (a.list.empty())
    {
        return b;
    }
    if (b.list.empty())
    {
        return a;
    }
    const int ts = a.sourceCount + b.sourceCount;
    const int td = a.destinationCount + b.destinationCount;
    const int na = a.sourceCount;
    const int da = a.destinationCount;
    const RefMap x = Compose(Compose(Inverted(Piece(0, na, ts)), a), Piece(0, da, td));
    const RefMap y = Compose(Compose(Inverted(Piece(na, ts, ts)), b), Piece(da, td, td));
    if (x.list.empty() || y.list.empty())
    {
        return {};
    }
    if (IsIncrease(x, 2) != IsIncrease(y, 2))
    {
        return {};
    }
    const auto p = x.list.back();
    const auto q = y.list.front();
    if (!Near(p.second, q.second) && !Near(p.first, q.first))
    {
        return {};
    }
    return Tidied(Concatenate(x, y));
}

// Extension and removal

inline RefMap Extend(const RefMap& map, int n, bool atFront, bool extendSource, bool extendDestination)
{
    if (!extendSource && !extendDestination)
    {
        return map;
    }
    if (extendSource && extendDestination)
    {
        const RefMap t = WholeMap(n);
        return atFront ? CombineStandalone(t, map) : CombineStandalone(map, t);
    }
    std::pair<double, double> end = {0.0, 0.0};
    if (!map.list.empty())
    {
        end = atFront ? map.list.front() : map.list.back();
    }
    if (extendSource)
    {
        const RefMap t = Collapsed(0, n, end.second, n, map.destinationCount);
        return atFront ? CombineSameDestination(t, map) : CombineSameDestination(map, t);
    }
    const RefMap t = Inverted(Collapsed(0, n, end.first, n, map.sourceCount));
    return atFront ? CombineSameSource(t, map) : CombineSameSource(map, t);
}

inline RefMap Extend(const RefMap& map, int m, int k, bool atFront)
{
    if (m == 0 && k == 0)
    {
        return map;
    }
    const RefMap t = {{{0.0, 0.0}, {m, k}}, m, k};
    return atFront ? CombineStandalone(t, map) : CombineStandalone(map, t);
}

inline RefMap WithoutRange(const Range& outer, const Range& removed, int n)
{
    const Ranges rest = Difference(outer, removed);
    if (rest.empty())
    {
        return {{{0.0, outer.start}, {0.0, outer.end}}, 0, n};
    }
    if (rest.size() > 1)
    {
        return {};
    }
    RefMap m = Piece(rest[0].start, rest[0].end, n);
    if (Near(rest[0].end, removed.start))
    {
        m.list.emplace_back(m.list.back().first, outer.end);
    }
    else if (Near(rest[0].start, removed.end))
    {
        m.list.insert(m.list.begin(), {0.0, outer.start});
    }
    return m;
}

inline RefMap RemoveOpenRange(const RefMap& map, const Range& range, bool onSource)
{
    if (map.list.empty() || range.start > range.end)
    {
        return {};
    }
    const int n = onSource ? map.sourceCount : map.destinationCount;
    const RefMap m = WithoutRange({0.0, static_cast<double>(n)}, range, n);
    return onSource ? Compose(m, map) : Compose(map, Inverted(m));
}

} // namespace reference
} // namespace math
