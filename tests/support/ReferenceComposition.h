#pragma once

#include "support/ReferenceMap.h"

#include <algorithm>
#include <functional>
#include <map>

// The composition of two maps once more, step after step, on the plain maps of ReferenceMap.h.

namespace math
{
namespace reference
{

inline RefMap UnrollTwoLaps(const RefMap& map)
{
    const double ns = map.sourceCount;
    const double nd = map.destinationCount;
    const bool sourceUp = IsIncrease(map, 1);
    const bool destinationUp = IsIncrease(map, 2);
    RefMap result;
    result.sourceCount = 2 * map.sourceCount;
    result.destinationCount = 2 * map.destinationCount;
    for (const auto& pair : map.list)
    {
        result.list.emplace_back(pair.first + (sourceUp ? 0 : ns), pair.second + (destinationUp ? 0 : nd));
    }
    for (const auto& pair : map.list)
    {
        result.list.emplace_back(pair.first + (sourceUp ? ns : 0), pair.second + (destinationUp ? nd : 0));
    }
    return result;
}

/// Of a chain of values each near the one before it, the last one stays.
inline void SortUniquePositions(std::vector<double>& list, bool ascending)
{
    if (ascending)
    {
        std::sort(list.begin(), list.end());
    }
    else
    {
        std::sort(list.begin(), list.end(), std::greater<double>());
    }
    std::vector<double> kept;
    for (double value : list)
    {
        if (!kept.empty() && Near(kept.back(), value))
        {
            kept.pop_back();
        }
        kept.push_back(value);
    }
    list = kept;
}

inline bool IsSamePositionList(const std::vector<double>& a, const std::vector<double>& b)
{
    if (a.size() != b.size())
    {
        return false;
    }
    for (std::size_t i = 0; i < a.size(); ++i)
    {
        if (!Near(a[i], b[i]))
        {
            return false;
        }
    }
    return true;
}

using Table = std::map<double, std::vector<double>>;

inline bool ImagesComeBefore(const std::vector<double>& x, const std::vector<double>& y, bool sameWay)
{
    if (Near(x.back(), y.back()))
    {
        return false;
    }
    if (sameWay ? !(x.back() < y.back()) : !(x.back() > y.back()))
    {
        return false;
    }
    if (Near(x.front(), y.front()))
    {
        return false;
    }
    return sameWay ? x.front() < y.front() : x.front() > y.front();
}

/// One element after the other is taken in: to the front at once if it comes before the front, else back from the end.
inline void SortKeysByImages(std::vector<double>& keys, const Table& images, bool sameWay)
{
    std::vector<double> sorted;
    for (double key : keys)
    {
        const auto comesBefore = [&](double other) {
            return ImagesComeBefore(images.at(key), images.at(other), sameWay);
        };
        if (!sorted.empty() && comesBefore(sorted.front()))
        {
            sorted.insert(sorted.begin(), key);
            continue;
        }
        std::size_t place = sorted.size();
        while (place > 0 && comesBefore(sorted[place - 1]))
        {
            --place;
        }
        sorted.insert(sorted.begin() + static_cast<std::ptrdiff_t>(place), key);
    }
    keys = sorted;
}

inline bool CrossesSeam(const RefMap& map, int side)
{
    if (IsPoint(map, side))
    {
        return false;
    }
    const std::vector<double> column = Column(map, side);
    const int count = side == 1 ? map.sourceCount : map.destinationCount;
    const bool up = IsIncrease(map, side);
    const double low = up ? column.front() : column.back();
    const double high = up ? column.back() : column.front();
    if (count == 0)
    {
        return false; // a column of a polyline of open size has no seam
    }
    const double boundary = (IntegerPart(low) / count + 1) * count;
    return !Near(high, boundary) && high > boundary;
}

/// Keeps the values of one column of the list up to the limit, with a joint at the limit.
inline void CutAtLimit(List& list, int side, double limit, bool upward)
{
    bool reached = false;
    for (std::size_t i = 0; i < list.size();)
    {
        const double value = side == 1 ? list[i].first : list[i].second;
        if (Near(value, limit))
        {
            reached = true;
            ++i;
        }
        else if (upward ? value > limit : value < limit)
        {
            if (!reached)
            {
                Insert(list, limit, side);
                reached = true;
            }
            else
            {
                list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
            }
        }
        else
        {
            ++i;
        }
    }
}

inline bool SameMap(const RefMap& a, const RefMap& b)
{
    return test::SameList(a.list, b.list);
}

/// What a composition was made of, for those who want to know how far a pair of maps leads into it.
struct Trace
{
    bool destinationCrosses = false;
    bool sourceCrosses = false;
    std::size_t imageCount = 0;
};

inline RefMap Compose(const RefMap& a, const RefMap& b, Trace* trace = nullptr)
{
    if (IsInvalid(a) || IsInvalid(b))
    {
        return {};
    }
    if (!IsNormalize(a))
    {
        RefMap moved = a;
        Normalize(moved);
        return SameMap(moved, a) ? RefMap() : Compose(moved, b, trace);
    }
    if (!IsNormalize(b))
    {
        RefMap moved = b;
        Normalize(moved);
        return SameMap(moved, b) ? RefMap() : Compose(a, moved, trace);
    }
    if (a.list.empty())
    {
        return b;
    }
    if (b.list.empty())
    {
        return a;
    }

    const bool wrapA = CrossesSeam(a, 2);
    const bool wrapB = CrossesSeam(b, 1);
    RefMap P = a;
    RefMap Q = b;
    if (wrapA)
    {
        Q = UnrollTwoLaps(b);
    }
    else if (wrapB)
    {
        P = UnrollTwoLaps(a);
    }
    Unique(P.list, true);
    Unique(Q.list, true);

    std::vector<double> bs = Column(Q, 1);
    SortUniquePositions(bs, true);
    RefMap inv = P;
    Invert(inv);
    const auto span = GetRange(inv, 1, false);
    for (double& x : bs)
    {
        x = NormalizePos(x, span.first, span.second, inv.sourceCount);
    }

    std::vector<double> keys;
    Table preimages;
    for (double x : bs)
    {
        for (double y : Evaluate(inv.list, x))
        {
            keys.push_back(y);
            preimages[y].push_back(x);
        }
    }
    for (const auto& pair : P.list)
    {
        keys.push_back(pair.first);
    }
    SortUniquePositions(keys, true);
    const bool sameWay = (IsIncrease(P, 1) == IsIncrease(P, 2)) == (IsIncrease(Q, 1) == IsIncrease(Q, 2));

    Table images;
    for (double y : keys)
    {
        std::vector<double> mids = Evaluate(P.list, y);
        if (preimages.count(y) != 0)
        {
            for (double x : preimages[y])
            {
                const auto nearX = [x](double mid) { return Near(mid, x); };
                if (std::none_of(mids.begin(), mids.end(), nearX))
                {
                    mids.push_back(x);
                }
            }
        }
        std::vector<double> finals;
        for (double mid : mids)
        {
            for (double image : Evaluate(Q.list, mid))
            {
                finals.push_back(image);
            }
        }
        SortUniquePositions(finals, sameWay);
        if (!finals.empty())
        {
            images[y] = finals;
        }
    }

    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        if (images.count(keys[i]) == 0)
        {
            continue;
        }
        std::vector<double> run = {keys[i]};
        for (std::size_t j = i + 1; j < keys.size(); ++j)
        {
            if (images.count(keys[j]) == 0 || !IsSamePositionList(images[keys[j]], images[keys[i]]))
            {
                break;
            }
            run.push_back(keys[j]);
        }
        if (run.size() == 1)
        {
            continue;
        }
        const double f = images[run.front()].front();
        const double l = images[run.back()].back();
        for (double key : run)
        {
            images.erase(key);
        }
        images[run.front()] = {f};
        images[run.back()] = {l};
    }

    std::vector<double> order;
    for (const auto& entry : images)
    {
        order.push_back(entry.first);
    }
    SortKeysByImages(order, images, sameWay);
    if (trace != nullptr)
    {
        *trace = {wrapA, wrapB, order.size()};
    }
    List out;
    for (double key : order)
    {
        for (double image : images[key])
        {
            out.emplace_back(key, image);
        }
    }
    if (out.empty())
    {
        return {};
    }
    CutAtLimit(out, 1, out.front().first + a.sourceCount, true);
    const double step = sameWay ? b.destinationCount : -b.destinationCount;
    CutAtLimit(out, 2, out.front().second + step, sameWay);

    RefMap result = {out, a.sourceCount, b.destinationCount};
    if (IsIncrease(result, 1) != IsIncrease(a, 1))
    {
        std::reverse(result.list.begin(), result.list.end());
    }
    Unique(result.list, true);
    if (!IsNormalize(result))
    {
        Normalize(result);
    }
    return result;
}

inline bool IsInvertTo(const RefMap& map, const RefMap& other)
{
    if (IsInvalid(map) || IsInvalid(other))
    {
        return false;
    }
    if (map.sourceCount != other.destinationCount || map.destinationCount != other.sourceCount)
    {
        return false;
    }
    return IsIdentity(Compose(map, other));
}

} // namespace reference
} // namespace math
