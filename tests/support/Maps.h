#pragma once

#include "math/CPolyPosMap.h"
#include "math/PosRangeD.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdio>
#include <cstring>
#include <initializer_list>
#include <limits>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

// What the tests of positions, ranges and maps share. Position code is exact: numbers are compared bit for bit.

namespace math
{
namespace test
{

using Pairs = std::vector<std::pair<double, double>>;

inline constexpr double NaN = std::numeric_limits<double>::quiet_NaN();
inline constexpr double Infinite = std::numeric_limits<double>::infinity();

/// The tolerance of position code and its two neighbours among the doubles: nearness is strict.
inline constexpr double Tolerance = 1e-9;
inline const double JustBelowTolerance = std::nextafter(Tolerance, 0.0);
inline const double JustAboveTolerance = std::nextafter(Tolerance, 1.0);

/// The same double: all bits, so that the sign of a zero counts; every NaN is the same.
inline bool SameNumber(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
    {
        return std::isnan(a) && std::isnan(b);
    }
    return std::memcmp(&a, &b, sizeof(double)) == 0;
}

inline std::string Text(double value)
{
    char buffer[40];
    std::snprintf(buffer, sizeof(buffer), "%.17g", value);
    return buffer;
}

inline std::string Text(const std::pair<double, double>& pair)
{
    return "(" + Text(pair.first) + ", " + Text(pair.second) + ")";
}

template <typename Items>
std::string TextOfList(const Items& items)
{
    std::string text;
    for (const auto& item : items)
    {
        text += (text.empty() ? "" : ", ") + Text(item);
    }
    return text.empty() ? "nothing" : text;
}

inline bool SameList(const Pairs& a, const Pairs& b)
{
    bool same = a.size() == b.size();
    for (std::size_t i = 0; same && i < a.size(); ++i)
    {
        same = SameNumber(a[i].first, b[i].first) && SameNumber(a[i].second, b[i].second);
    }
    return same;
}

/// A list of positions that compares bit for bit and prints with all its digits.
struct Images
{
    std::vector<double> values;

    Images(std::initializer_list<double> list) : values(list)
    {
    }
    Images(std::vector<double> list) : values(std::move(list))
    {
    }

    friend bool operator==(const Images& a, const Images& b)
    {
        bool same = a.values.size() == b.values.size();
        for (std::size_t i = 0; same && i < a.values.size(); ++i)
        {
            same = SameNumber(a.values[i], b.values[i]);
        }
        return same;
    }
    friend std::ostream& operator<<(std::ostream& out, const Images& images)
    {
        return out << TextOfList(images.values);
    }
};

/// One joint of a map, or the two ends of a range, that compares bit for bit and prints with all its digits.
struct Two
{
    double first;
    double second;

    Two(double a, double b) : first(a), second(b)
    {
    }
    Two(const std::pair<double, double>& pair) : first(pair.first), second(pair.second)
    {
    }
    Two(const PosRangeD& range) : first(range.start), second(range.end)
    {
    }

    friend bool operator==(const Two& a, const Two& b)
    {
        return SameNumber(a.first, b.first) && SameNumber(a.second, b.second);
    }
    friend std::ostream& operator<<(std::ostream& out, const Two& two)
    {
        return out << Text(std::make_pair(two.first, two.second));
    }
};

/// The value of position code that stands for none, of a range or of a joint.
inline Two None()
{
    return {-1.0, -1.0};
}

/// A map from its joints, given as they are read: Map({{0, 0}, {2, 4}}, 2, 4).
inline CPolyPosMap Map(const Pairs& pairs, int sourceCount, int destinationCount)
{
    return CPolyPosMap(pairs, sourceCount, destinationCount);
}

/// The map that stands for a composition of which nothing survived: no joints, both counts 0.
inline CPolyPosMap NoMap()
{
    return CPolyPosMap();
}

} // namespace test

/// Joints and counts, bit for bit.
inline bool operator==(const CPolyPosMap& a, const CPolyPosMap& b)
{
    return test::SameList(a.PosPairs(), b.PosPairs()) && a.SrcSegmentCount() == b.SrcSegmentCount() &&
           a.DstSegmentCount() == b.DstSegmentCount();
}

inline void PrintTo(const CPolyPosMap& map, std::ostream* out)
{
    *out << test::TextOfList(map.PosPairs()) << ", counts " << map.SrcSegmentCount() << ", " << map.DstSegmentCount();
}

inline void PrintTo(const PosRangeD& range, std::ostream* out)
{
    *out << test::Two(range);
}

} // namespace math
