#pragma once

#include "support/Maps.h"

#include <climits>
#include <cmath>
#include <cstddef>
#include <utility>
#include <vector>

// A second, plain implementation of the position map, against which the library is compared bit for bit. It is written
// for directness, one loop for one sentence: no searching in halves, no shared helpers, no concern for speed.

namespace math
{
namespace reference
{

using List = std::vector<std::pair<double, double>>;

struct RefMap
{
    List list;
    int sourceCount = 0;
    int destinationCount = 0;
};

inline RefMap From(const CPolyPosMap& map)
{
    return {map.PosPairs(), map.SrcSegmentCount(), map.DstSegmentCount()};
}

inline CPolyPosMap To(const RefMap& map)
{
    return CPolyPosMap(map.list, map.sourceCount, map.destinationCount);
}

inline bool Near(double a, double b)
{
    return std::fabs(a - b) < 1e-9;
}

inline int IntegerPart(double value)
{
    if (std::isnan(value))
    {
        return 0;
    }
    if (value >= 2147483647.0)
    {
        return INT_MAX;
    }
    if (value <= -2147483648.0)
    {
        return INT_MIN;
    }
    return static_cast<int>(value);
}

inline double FractionalPart(double value)
{
    double whole = 0;
    return std::modf(value, &whole);
}

/// Only for finite positions and counts at or above 0: the loops are taken literally.
inline double NormalizePos(double position, int count)
{
    if (count == 0)
    {
        return -1.0;
    }
    if (Near(position, 0) || Near(position, count))
    {
        return position;
    }
    while (position < 0)
    {
        position = position + count;
    }
    while (position > count)
    {
        position = position - count;
    }
    return position;
}

inline double NormalizePos(double position, double start, double end, int count)
{
    if (count == 0)
    {
        return -1.0;
    }
    if (start > end || Near(start, end))
    {
        end = end + count;
    }
    if (Near(position, start) || Near(position, end))
    {
        return position;
    }
    const double inFirstLap = NormalizePos(position, count);
    const int startLap = IntegerPart(start) / count;
    int endLap = IntegerPart(end) / count;
    if (Near(end, endLap * count))
    {
        endLap = endLap - 1;
    }
    double result = inFirstLap + startLap * count;
    if (startLap != endLap && start > result)
    {
        result = result + count;
    }
    return result;
}

inline std::vector<double> Column(const RefMap& map, int side)
{
    std::vector<double> column;
    for (const auto& pair : map.list)
    {
        column.push_back(side == 1 ? pair.first : pair.second);
    }
    return column;
}

inline bool ColumnTurnsBack(const std::vector<double>& column)
{
    const bool upward = column.front() <= column.back();
    for (std::size_t i = 0; i + 1 < column.size(); ++i)
    {
        if (Near(column[i], column[i + 1]))
        {
            continue;
        }
        if (upward && column[i + 1] < column[i])
        {
            return true;
        }
        if (!upward && column[i + 1] > column[i])
        {
            return true;
        }
    }
    return false;
}

inline bool IsInvalid(const RefMap& map)
{
    if (map.list.size() < 2)
    {
        return false;
    }
    if (ColumnTurnsBack(Column(map, 1)) || ColumnTurnsBack(Column(map, 2)))
    {
        return true;
    }
    const double sourceSpan = std::fabs(map.list.back().first - map.list.front().first);
    const double destinationSpan = std::fabs(map.list.back().second - map.list.front().second);
    return sourceSpan > map.sourceCount + 1e-9 || destinationSpan > map.destinationCount + 1e-9;
}

inline bool IsIdentity(const RefMap& map)
{
    if (map.list.empty())
    {
        return true;
    }
    if (map.sourceCount != map.destinationCount)
    {
        return false;
    }
    for (const auto& pair : map.list)
    {
        if (!Near(pair.first, pair.second))
        {
            return false;
        }
    }
    return true;
}

inline bool IsIncrease(const RefMap& map, int side)
{
    if (IsInvalid(map))
    {
        return false;
    }
    if (map.list.size() < 2)
    {
        return true;
    }
    const bool sourceUp = map.list.front().first <= map.list.back().first;
    const bool destinationUp = map.list.front().second <= map.list.back().second;
    switch (side)
    {
    case 1:
        return sourceUp;
    case 2:
        return destinationUp;
    case 3:
        return sourceUp && destinationUp;
    default:
        return true;
    }
}

inline bool IsPoint(const RefMap& map, int side)
{
    if (IsInvalid(map))
    {
        return false;
    }
    if (map.list.size() < 2)
    {
        return true;
    }
    const bool sourcePoint = Near(map.list.front().first, map.list.back().first);
    const bool destinationPoint = Near(map.list.front().second, map.list.back().second);
    switch (side)
    {
    case 1:
        return sourcePoint;
    case 2:
        return destinationPoint;
    case 3:
        return sourcePoint && destinationPoint;
    default:
        return true;
    }
}

inline bool IsNormalize(const RefMap& map)
{
    if (IsInvalid(map))
    {
        return false;
    }
    if (map.list.empty())
    {
        return true;
    }
    const double lowSource = IsIncrease(map, 1) ? map.list.front().first : map.list.back().first;
    const double lowDestination = IsIncrease(map, 2) ? map.list.front().second : map.list.back().second;
    const bool sourceInside = map.sourceCount == 0 || (lowSource >= 0 && lowSource < map.sourceCount);
    const bool destinationInside =
        map.destinationCount == 0 || (lowDestination >= 0 && lowDestination < map.destinationCount);
    return sourceInside && destinationInside;
}

inline std::pair<double, double> GetRange(const RefMap& map, int side, bool normalize)
{
    if (IsInvalid(map) || map.list.empty() || (side != 1 && side != 2))
    {
        return {-1.0, -1.0};
    }
    const std::vector<double> column = Column(map, side);
    double front = column.front();
    double back = column.back();
    if (normalize)
    {
        front = NormalizePos(front, side == 1 ? map.sourceCount : map.destinationCount);
        back = NormalizePos(back, side == 1 ? map.sourceCount : map.destinationCount);
    }
    return IsIncrease(map, side) ? std::make_pair(front, back) : std::make_pair(back, front);
}

inline void Invert(RefMap& map)
{
    if (map.list.empty() || IsIdentity(map))
    {
        return;
    }
    for (auto& pair : map.list)
    {
        std::swap(pair.first, pair.second);
    }
    std::swap(map.sourceCount, map.destinationCount);
}

// Repeated and straight joints.

inline double SlopeInSource(const List& list, std::size_t from, std::size_t to)
{
    return (list[to].second - list[from].second) / (list[to].first - list[from].first);
}

inline double SlopeInDestination(const List& list, std::size_t from, std::size_t to)
{
    return (list[to].first - list[from].first) / (list[to].second - list[from].second);
}

inline void Unique(List& list, bool mergeStraight)
{
    if (list.empty())
    {
        return;
    }
    for (std::size_t i = 0; i + 1 < list.size();)
    {
        if (Near(list[i + 1].first, list[i].first) && Near(list[i + 1].second, list[i].second))
        {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(i + 1));
        }
        else
        {
            ++i;
        }
    }
    if (!mergeStraight)
    {
        return;
    }
    for (std::size_t i = 1; i + 1 < list.size();)
    {
        const bool hasSlopes = list[i].first != list[i - 1].first && list[i].first != list[i + 1].first;
        if (hasSlopes && std::fabs(SlopeInSource(list, i - 1, i) - SlopeInSource(list, i, i + 1)) < 1e-9)
        {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
        }
        else
        {
            ++i;
        }
    }
    for (std::size_t i = 1; i + 1 < list.size();)
    {
        const bool hasSlopes = list[i].second != list[i - 1].second && list[i].second != list[i + 1].second;
        if (hasSlopes && std::fabs(SlopeInDestination(list, i - 1, i) - SlopeInDestination(list, i, i + 1)) < 1e-9)
        {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(i));
        }
        else
        {
            ++i;
        }
    }
}

// Whole laps.

inline int LapsOf(double value, int count)
{
    if (count == 0)
    {
        return 0;
    }
    if (value < 0)
    {
        return -1 - IntegerPart(-value) / count;
    }
    return IntegerPart(value) / count;
}

inline void Normalize(RefMap& map)
{
    if (IsNormalize(map) || IsInvalid(map) || map.list.empty())
    {
        return;
    }
    const bool sourceUp = IsIncrease(map, 1);
    const std::pair<double, double> lowest = sourceUp ? map.list.front() : map.list.back();
    const int sourceLaps = LapsOf(lowest.first, map.sourceCount);
    const int destinationLaps = LapsOf(lowest.second, map.destinationCount);
    for (auto& pair : map.list)
    {
        if (sourceLaps != 0)
        {
            pair.first = pair.first - sourceLaps * map.sourceCount;
        }
        if (destinationLaps != 0)
        {
            pair.second = pair.second - destinationLaps * map.destinationCount;
        }
    }
}

// Lookup.

inline int LeftIndex(const std::vector<double>& column, double position)
{
    int result = -1;
    for (std::size_t i = 0; i < column.size(); ++i)
    {
        if (Near(column[i], position))
        {
            result = static_cast<int>(i);
        }
    }
    if (result != -1)
    {
        return result;
    }
    const bool up = column.back() > column.front();
    for (std::size_t i = 0; i < column.size(); ++i)
    {
        if (up ? column[i] < position : column[i] > position)
        {
            result = static_cast<int>(i);
        }
    }
    return result;
}

inline int RightIndex(const std::vector<double>& column, double position)
{
    for (std::size_t i = 0; i < column.size(); ++i)
    {
        if (Near(column[i], position))
        {
            return static_cast<int>(i);
        }
    }
    const bool up = column.back() > column.front();
    for (std::size_t i = 0; i < column.size(); ++i)
    {
        if (up ? column[i] > position : column[i] < position)
        {
            return static_cast<int>(i);
        }
    }
    return -1;
}

inline std::vector<double> SourceColumn(const List& list)
{
    return Column(RefMap{list, 0, 0}, 1);
}

inline std::vector<double> DestinationColumn(const List& list)
{
    return Column(RefMap{list, 0, 0}, 2);
}

inline std::vector<double> Evaluate(const List& list, double position)
{
    if (list.empty())
    {
        return {position};
    }
    std::vector<double> images;
    for (const auto& pair : list)
    {
        if (Near(pair.first, position))
        {
            images.push_back(pair.second);
        }
    }
    if (!images.empty())
    {
        return images;
    }
    const int left = LeftIndex(SourceColumn(list), position);
    const int right = RightIndex(SourceColumn(list), position);
    if (left == -1 || right == -1)
    {
        return {};
    }
    const auto a = list[static_cast<std::size_t>(left)];
    const auto b = list[static_cast<std::size_t>(right)];
    return {((position - a.first) / (b.first - a.first)) * (b.second - a.second) + a.second};
}

inline double OntoLapOf(const RefMap& map, double position)
{
    const auto range = GetRange(map, 1, false);
    return NormalizePos(position, range.first, range.second, map.sourceCount);
}

inline std::vector<double> Multiply(const RefMap& map, double position)
{
    if (IsInvalid(map))
    {
        return {};
    }
    return Evaluate(map.list, OntoLapOf(map, position));
}

/// A small list sorted by exchanging neighbours, then without the values near the last one kept.
inline std::vector<double> SortedWithoutRepetition(std::vector<double> list, bool ascending)
{
    for (std::size_t pass = 0; pass < list.size(); ++pass)
    {
        for (std::size_t i = 0; i + 1 < list.size(); ++i)
        {
            if (ascending ? list[i + 1] < list[i] : list[i + 1] > list[i])
            {
                std::swap(list[i], list[i + 1]);
            }
        }
    }
    std::vector<double> kept;
    for (double value : list)
    {
        if (kept.empty() || !Near(kept.back(), value))
        {
            kept.push_back(value);
        }
    }
    return kept;
}

inline std::vector<double> MultyDouble(const RefMap& map, double position, bool bothSeamFaces, bool liftSeamImages)
{
    if (IsInvalid(map))
    {
        return {};
    }
    const double moved = OntoLapOf(map, position);
    const bool up = IsIncrease(map, 2);
    std::vector<double> zeroFace;
    std::vector<double> countFace;
    std::vector<double> elsewhere;
    if (Near(moved, 0))
    {
        zeroFace = Multiply(map, moved);
        if (bothSeamFaces)
        {
            countFace = Multiply(map, map.sourceCount);
        }
    }
    else if (Near(moved, map.sourceCount))
    {
        countFace = Multiply(map, moved);
        if (bothSeamFaces)
        {
            zeroFace = Multiply(map, 0.0);
        }
    }
    else
    {
        elsewhere = Multiply(map, moved);
    }
    zeroFace = SortedWithoutRepetition(zeroFace, up);
    countFace = SortedWithoutRepetition(countFace, up);
    elsewhere = SortedWithoutRepetition(elsewhere, up);
    if (zeroFace.empty() && countFace.empty())
    {
        return elsewhere;
    }
    if (liftSeamImages && !zeroFace.empty() && !countFace.empty())
    {
        for (double& value : zeroFace)
        {
            value = value + map.destinationCount;
        }
    }
    std::vector<double> joined = zeroFace;
    joined.insert(joined.end(), countFace.begin(), countFace.end());
    return SortedWithoutRepetition(joined, up);
}

inline bool IsOverRange(const RefMap& map, double position, int side)
{
    if (IsInvalid(map))
    {
        return false;
    }
    if (map.list.empty())
    {
        return true;
    }
    if (side == 3)
    {
        return IsOverRange(map, position, 1) || IsOverRange(map, position, 2);
    }
    if (side != 1 && side != 2)
    {
        return false;
    }
    if (IsPoint(map, side))
    {
        return !Near(Column(map, side).front(), position);
    }
    const double moved = NormalizePos(position, map.sourceCount);
    const auto ends = GetRange(map, side, true);
    const double start = ends.first;
    const double end = ends.second;
    if (std::isnan(start) || std::isnan(end) || start < -1e-9 || end < -1e-9)
    {
        return true;
    }
    const bool whole = Near(start, end);
    const bool on = !whole && (Near(start, moved) || Near(end, moved));
    bool inside = false;
    if (end > start)
    {
        inside = moved > start && moved < end;
    }
    else
    {
        inside = whole || moved > start || moved < end;
    }
    return !on && !inside;
}

// Insertion.

inline std::pair<double, double> Insert(List& list, double position, int side)
{
    if (side != 1 && side != 2)
    {
        return {-1.0, -1.0};
    }
    const std::vector<double> column = side == 1 ? SourceColumn(list) : DestinationColumn(list);
    const std::vector<double> other = side == 1 ? DestinationColumn(list) : SourceColumn(list);
    for (std::size_t i = 0; i < list.size(); ++i)
    {
        if (Near(column[i], position))
        {
            return list[i];
        }
    }
    const int left = LeftIndex(column, position);
    const int right = RightIndex(column, position);
    double value = other.front();
    std::size_t place = 0;
    if (left != -1 && right != -1)
    {
        const auto a = static_cast<std::size_t>(left);
        const auto b = static_cast<std::size_t>(right);
        value = ((position - column[a]) / (column[b] - column[a])) * (other[b] - other[a]) + other[a];
        place = b;
    }
    else if (left != -1)
    {
        value = other.back();
        place = list.size();
    }
    const auto joint = side == 1 ? std::make_pair(position, value) : std::make_pair(value, position);
    list.insert(list.begin() + static_cast<std::ptrdiff_t>(place), joint);
    return joint;
}

inline std::pair<double, double> InsertOnLap(RefMap& map, double position, int side)
{
    if (side != 1 && side != 2)
    {
        return {-1.0, -1.0};
    }
    const auto range = GetRange(map, side, false);
    const int count = side == 1 ? map.sourceCount : map.destinationCount;
    return Insert(map.list, NormalizePos(position, range.first, range.second, count), side);
}

// Filling and smoothing.

inline void FillOneSide(RefMap& map, int side)
{
    const int count = side == 1 ? map.sourceCount : map.destinationCount;
    const double back = Column(map, side).back();
    int first = IntegerPart(back);
    if (!Near(FractionalPart(back), 0))
    {
        first = first + 1;
    }
    if (first > count)
    {
        if (count == 0)
        {
            return;
        }
        first = first % count;
    }
    else
    {
        first = 0;
    }
    for (int whole = first; whole <= first + count; ++whole)
    {
        Insert(map.list, whole, side);
    }
    const std::vector<double> column = Column(map, side);
    const double span = std::fabs(column.back() - column.front());
    if (span > count && !Near(span, count))
    {
        map.list.pop_back();
    }
}

inline void FillAllSegmentNode(RefMap& map, int side)
{
    if (IsInvalid(map) || map.list.empty())
    {
        return;
    }
    const bool wasUp = IsIncrease(map, 1);
    Normalize(map);
    if (!IsIncrease(map, 1))
    {
        Invert(map);
    }
    if (side == 1 || side == 2)
    {
        FillOneSide(map, side);
    }
    if (side == 3)
    {
        FillAllSegmentNode(map, 1);
        FillAllSegmentNode(map, 2);
    }
    if (IsIncrease(map, 1) != wasUp)
    {
        Invert(map);
    }
}

inline bool StandsStill(double u, double v, int count)
{
    return u == v || u == v + count || u + count == v;
}

inline bool LegTooLong(double leg, double maxStep)
{
    return !Near(leg, maxStep) && leg >= maxStep;
}

inline void Smooth(RefMap& map, double maxStep, double maxStepDifference)
{
    FillAllSegmentNode(map, 3);
    List& list = map.list;
    if (list.size() <= 2)
    {
        return;
    }
    const bool closed = Near(std::fabs(list.back().first - list.front().first), map.sourceCount) &&
                        Near(std::fabs(list.back().second - list.front().second), map.destinationCount);
    std::size_t p = 0;
    while (p < list.size())
    {
        const std::size_t m = p + 1;
        if (m >= list.size())
        {
            break;
        }
        std::size_t c = m;
        std::size_t q = m + 1;
        if (q >= list.size())
        {
            if (!closed)
            {
                break;
            }
            c = 0;
            q = 1;
        }
        double d1 = 0;
        double d2 = 0;
        if (StandsStill(list[c].first, list[p].first, map.sourceCount) &&
            StandsStill(list[q].second, list[c].second, map.destinationCount))
        {
            d1 = std::fabs(list[c].second - list[p].second);
            d2 = std::fabs(list[q].first - list[c].first);
            if (c == 0)
            {
                d1 = std::fabs(d1 - map.destinationCount);
            }
        }
        else if (StandsStill(list[c].second, list[p].second, map.destinationCount) &&
                 StandsStill(list[q].first, list[c].first, map.destinationCount))
        {
            d1 = std::fabs(list[c].first - list[p].first);
            d2 = std::fabs(list[q].second - list[c].second);
            if (c == 0)
            {
                d1 = std::fabs(d1 - map.sourceCount);
            }
        }
        else
        {
            p = m;
            continue;
        }
        const double difference = std::fabs(d1 - d2);
        if (LegTooLong(d1, maxStep) || LegTooLong(d2, maxStep) ||
            (!Near(difference, maxStepDifference) && difference >= maxStepDifference))
        {
            p = m;
            continue;
        }
        if (c != 0)
        {
            list.erase(list.begin() + static_cast<std::ptrdiff_t>(c));
            p = c;
            continue;
        }
        if (list.size() == 2)
        {
            break;
        }
        list.erase(list.begin());
        list.pop_back();
        const auto front = list.front();
        const double source = IsIncrease(map, 1) ? front.first + map.sourceCount : front.first - map.sourceCount;
        const double destination =
            IsIncrease(map, 2) ? front.second + map.destinationCount : front.second - map.destinationCount;
        list.emplace_back(source, destination);
        break;
    }
    Unique(list, true);
}

} // namespace reference
} // namespace math
