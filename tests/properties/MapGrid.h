#pragma once

#include "support/Maps.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

// All maps of a small grid, and a map carried out by hand: joint by joint and lap by lap, from the list alone.

namespace math::test
{

/// All columns of `size` values in multiples of `step` that run one way, with the lower end from 0 up to the count and no
/// more than a lap long.
inline std::vector<std::vector<double>> AllColumns(std::size_t size, int count, double step)
{
    std::vector<std::vector<double>> columns;
    std::vector<double> column;
    const auto extend = [&](const auto& self, double from, double last) -> void {
        if (column.size() == size)
        {
            columns.push_back(column);
            return;
        }
        for (double value = from; value <= last; value += step)
        {
            column.push_back(value);
            self(self, value, column.front() + count);
            column.pop_back();
        }
    };
    extend(extend, 0, count - step);
    const std::size_t upward = columns.size();
    for (std::size_t i = 0; i < upward; ++i)
    {
        if (size > 1 && columns[i].front() != columns[i].back())
        {
            columns.emplace_back(columns[i].rbegin(), columns[i].rend());
        }
    }
    return columns;
}

/// All normal maps with `size` joints on that grid.
inline std::vector<CPolyPosMap> AllMaps(std::size_t size, int sourceCount, int destinationCount, double step)
{
    std::vector<CPolyPosMap> maps;
    const std::vector<std::vector<double>> destinations = AllColumns(size, destinationCount, step);
    for (const std::vector<double>& source : AllColumns(size, sourceCount, step))
    {
        for (const std::vector<double>& destination : destinations)
        {
            Pairs pairs;
            for (std::size_t i = 0; i < size; ++i)
            {
                pairs.emplace_back(source[i], destination[i]);
            }
            maps.push_back(Map(pairs, sourceCount, destinationCount));
        }
    }
    return maps;
}

/// Those with one joint up to `mostJoints`.
inline std::vector<CPolyPosMap> AllMapsUpTo(std::size_t mostJoints, int sourceCount, int destinationCount, double step)
{
    std::vector<CPolyPosMap> maps;
    for (std::size_t size = 1; size <= mostJoints; ++size)
    {
        const std::vector<CPolyPosMap> some = AllMaps(size, sourceCount, destinationCount, step);
        maps.insert(maps.end(), some.begin(), some.end());
    }
    return maps;
}

/// A normal map at random, finer and longer than those of the grid: up to nine joints in sixteenths of the source. Slopes
/// are powers of two or 0, so that what is done with it is as exact as on the grid.
inline CPolyPosMap FineMap(Random& random, int sourceCount, int destinationCount)
{
    const int low = random.Coin() ? 0 : random.Integer(0, 16 * sourceCount - 1);
    const int image = random.Coin() ? 0 : random.Integer(0, 16 * destinationCount - 1);
    Pairs pairs = {{low / 16.0, image / 16.0}};
    double sourceLeft = sourceCount;
    double destinationLeft = destinationCount;
    for (int steps = random.Integer(0, 8); steps > 0; --steps)
    {
        const double length = random.Integer(0, 3) == 0 ? 0.0 : std::ldexp(1.0, -random.Integer(1, 4));
        const double height = std::ldexp(length > 0 ? length : 1.0, random.Integer(-2, 2));
        const double rise = random.Integer(0, 3) == 0 ? 0.0 : height;
        if (length <= sourceLeft && rise <= destinationLeft)
        {
            sourceLeft -= length;
            destinationLeft -= rise;
            pairs.emplace_back(pairs.back().first + length, pairs.back().second + rise);
        }
    }
    // Now and then up to the whole lap, flat and by a jump.
    if (random.Integer(0, 2) == 0)
    {
        pairs.emplace_back(pairs.front().first + sourceCount, pairs.back().second);
    }
    if (random.Integer(0, 2) == 0)
    {
        pairs.emplace_back(pairs.back().first, pairs.front().second + destinationCount);
    }
    if (random.Coin())
    {
        const double ends = pairs.front().second + pairs.back().second;
        for (auto& joint : pairs)
        {
            joint.second = ends - joint.second;
        }
    }
    if (random.Coin())
    {
        std::reverse(pairs.begin(), pairs.end());
    }
    return Map(pairs, sourceCount, destinationCount);
}

/// Maps of that kind, after those of a grid.
inline std::vector<CPolyPosMap> WithFineMaps(std::vector<CPolyPosMap> maps, std::uint64_t seed, int howMany,
                                             int sourceCount = 2, int destinationCount = 2)
{
    Random random(seed);
    for (int i = 0; i < howMany; ++i)
    {
        maps.push_back(FineMap(random, sourceCount, destinationCount));
    }
    return maps;
}

// What a map looks like

inline double Lowest(const CPolyPosMap& map, int side)
{
    const auto value = [side](const std::pair<double, double>& joint) {
        return side == 1 ? joint.first : joint.second;
    };
    return std::min(value(map.PosPairs().front()), value(map.PosPairs().back()));
}

inline double Highest(const CPolyPosMap& map, int side)
{
    const auto value = [side](const std::pair<double, double>& joint) {
        return side == 1 ? joint.first : joint.second;
    };
    return std::max(value(map.PosPairs().front()), value(map.PosPairs().back()));
}

inline int CountOf(const CPolyPosMap& map, int side)
{
    return side == 1 ? map.SrcSegmentCount() : map.DstSegmentCount();
}

inline bool RunsUp(const CPolyPosMap& map, int side)
{
    const std::pair<double, double> front = map.PosPairs().front();
    const std::pair<double, double> back = map.PosPairs().back();
    return side == 1 ? front.first <= back.first : front.second <= back.second;
}

inline bool KeepsTheWay(const CPolyPosMap& map)
{
    return RunsUp(map, 1) == RunsUp(map, 2);
}

inline bool IsFullLap(const CPolyPosMap& map, int side)
{
    return Highest(map, side) - Lowest(map, side) == CountOf(map, side);
}

inline bool CrossesTheSeam(const CPolyPosMap& map, int side)
{
    return Highest(map, side) > CountOf(map, side);
}

inline bool HasJump(const CPolyPosMap& map)
{
    const Pairs& pairs = map.PosPairs();
    return std::adjacent_find(pairs.begin(), pairs.end(), [](const auto& a, const auto& b) {
               return a.first == b.first && a.second != b.second;
           }) != pairs.end();
}

inline bool HasFlat(const CPolyPosMap& map)
{
    const Pairs& pairs = map.PosPairs();
    return std::adjacent_find(pairs.begin(), pairs.end(), [](const auto& a, const auto& b) {
               return a.second == b.second && a.first != b.first;
           }) != pairs.end();
}

inline bool IsOneToOne(const CPolyPosMap& map)
{
    return !HasJump(map) && !HasFlat(map);
}

// Carried by hand

inline bool LiesBetween(double value, double a, double b)
{
    return (a < value && value < b) || (b < value && value < a);
}

inline double Along(const std::pair<double, double>& from, const std::pair<double, double>& to, double source)
{
    return (source - from.first) / (to.first - from.first) * (to.second - from.second) + from.second;
}

/// The images of a raw position: those of the joints there, else the one on the stretch that passes over it.
inline std::vector<double> RawImagesByHand(const CPolyPosMap& map, double position)
{
    std::vector<double> images;
    for (const auto& joint : map.PosPairs())
    {
        if (joint.first == position)
        {
            images.push_back(joint.second);
        }
    }
    for (std::size_t i = 1; images.empty() && i < map.PosPairs().size(); ++i)
    {
        const auto& from = map.PosPairs()[i - 1];
        const auto& to = map.PosPairs()[i];
        if (LiesBetween(position, from.first, to.first))
        {
            images.push_back(Along(from, to, position));
        }
    }
    return images;
}

/// Positions as places of a closed outline, each once, told from 0 up to below the count.
inline std::vector<double> PlacesOf(const std::vector<double>& positions, int count)
{
    std::vector<double> places;
    for (double position : positions)
    {
        const double place = position - count * std::floor(position / count);
        places.push_back(count - place < 1e-12 ? 0.0 : place);
    }
    std::sort(places.begin(), places.end());
    const auto same = [](double a, double b) { return b - a < 1e-12; };
    places.erase(std::unique(places.begin(), places.end(), same), places.end());
    return places;
}

/// The places to which a place is carried, on whichever lap the map meets it.
inline std::vector<double> PlacesByHand(const CPolyPosMap& map, double place)
{
    std::vector<double> images;
    for (int lap = -4; lap <= 4; ++lap)
    {
        const std::vector<double> onLap = RawImagesByHand(map, place + lap * map.SrcSegmentCount());
        images.insert(images.end(), onLap.begin(), onLap.end());
    }
    return PlacesOf(images, map.DstSegmentCount());
}

/// The same for a list of places.
inline std::vector<double> PlacesByHand(const CPolyPosMap& map, const std::vector<double>& places)
{
    std::vector<double> images;
    for (double place : places)
    {
        const std::vector<double> some = PlacesByHand(map, place);
        images.insert(images.end(), some.begin(), some.end());
    }
    return PlacesOf(images, map.DstSegmentCount());
}

/// Two lists of places that agree up to rounding, the faces of the seam taken for one.
inline bool AreSamePlaces(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](double x, double y) { return std::fabs(x - y) < 1e-12; });
}

inline std::string Told(const CPolyPosMap& map)
{
    return testing::PrintToString(map);
}

} // namespace math::test
