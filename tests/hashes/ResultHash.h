#pragma once

#include "math/QorMath.h"

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <gp_Circ2d.hxx>
#include <gp_Dir2d.hxx>
#include <gp_Pnt2d.hxx>

// Arithmetic modulo 2^64 is meant where a function is marked so.
#if defined(__clang__)
#define QORMATH_WRAPS __attribute__((no_sanitize("integer")))
#else
#define QORMATH_WRAPS
#endif

namespace math::hashes
{

/// One step of SplitMix64: every bit of the argument changes half the bits of the result.
QORMATH_WRAPS inline std::uint64_t Mixed(std::uint64_t word)
{
    word += 0x9e3779b97f4a7c15U;
    word = (word ^ (word >> 30)) * 0xbf58476d1ce4e5b9U;
    word = (word ^ (word >> 27)) * 0x94d049bb133111ebU;
    return word ^ (word >> 31);
}

/// A hash of results in the order in which they come: all bits of a double, so that both zeros differ, and every NaN
/// the same.
class ResultHash
{
public:
    /// Flips the lowest bit of the n-th word to come, counted from 1. For tests of those who compare.
    void FlipOneBitOf(std::uint64_t n)
    {
        m_flipped = n;
    }

    std::uint64_t Value() const
    {
        return m_value;
    }

    ResultHash& operator<<(double value)
    {
        std::uint64_t bits = 0x7ff8000000000000U;
        if (!std::isnan(value))
        {
            std::memcpy(&bits, &value, sizeof bits);
        }
        return Add(bits);
    }
    ResultHash& operator<<(int value)
    {
        return Add(static_cast<std::uint64_t>(static_cast<std::int64_t>(value)));
    }
    ResultHash& operator<<(unsigned int value)
    {
        return Add(value);
    }
    ResultHash& operator<<(std::int64_t value)
    {
        return Add(static_cast<std::uint64_t>(value));
    }
    ResultHash& operator<<(std::size_t value)
    {
        return Add(value);
    }
    ResultHash& operator<<(bool value)
    {
        return Add(value ? 1U : 0U);
    }
    ResultHash& operator<<(const std::string& text)
    {
        *this << text.size();
        for (const char character : text)
        {
            *this << static_cast<int>(character);
        }
        return *this;
    }

    ResultHash& operator<<(const DPOINT2& point)
    {
        return *this << point.x << point.y;
    }
    ResultHash& operator<<(const DRECT& box)
    {
        return *this << box.x << box.y << box.width << box.height;
    }
    ResultHash& operator<<(const RealRectD& box)
    {
        return *this << box.minX << box.maxX << box.minY << box.maxY;
    }
    ResultHash& operator<<(const CSegment& segment)
    {
        return *this << segment.type << segment.start << segment.end << segment.ctrl1 << segment.ctrl2;
    }
    ResultHash& operator<<(const CPolyline::NODE& node)
    {
        return *this << node.point << node.bulge;
    }
    ResultHash& operator<<(const CPolyline& outline)
    {
        return *this << outline.id << outline.attribute << outline.start << outline.nodes << outline.flags
                     << (outline.extendParam != nullptr);
    }
    ResultHash& operator<<(const PosRangeD& range)
    {
        return *this << range.start << range.end;
    }
    ResultHash& operator<<(const CPolyPosMap& map)
    {
        return *this << map.PosPairs() << map.SrcSegmentCount() << map.DstSegmentCount();
    }
    ResultHash& operator<<(const gp_Pnt2d& point)
    {
        return *this << point.X() << point.Y();
    }
    ResultHash& operator<<(const gp_Dir2d& direction)
    {
        return *this << direction.X() << direction.Y();
    }
    ResultHash& operator<<(const gp_Circ2d& circle)
    {
        return *this << circle.Location() << circle.XAxis().Direction() << circle.YAxis().Direction()
                     << circle.Radius();
    }
    ResultHash& operator<<(const IntAna2d_IntPoint& point)
    {
        return *this << point.Value() << point.ParamOnFirst() << point.ParamOnSecond() << point.SecondIsImplicit();
    }
    ResultHash& operator<<(const IntAna2d_AnaIntersection& found)
    {
        *this << found.IsDone() << found.IsParallel() << found.IsIdentical() << found.IsEmpty() << found.PointCount();
        for (int i = 1; found.IsDone() && i <= found.PointCount(); ++i)
        {
            *this << found.Point(i);
        }
        return *this;
    }
    template <typename First, typename Second>
    ResultHash& operator<<(const std::pair<First, Second>& pair)
    {
        return *this << pair.first << pair.second;
    }
    template <typename Element>
    ResultHash& operator<<(const std::vector<Element>& list)
    {
        *this << list.size();
        for (const Element& element : list)
        {
            *this << element;
        }
        return *this;
    }

private:
    QORMATH_WRAPS ResultHash& Add(std::uint64_t word)
    {
        ++m_count;
        if (m_count == m_flipped)
        {
            word ^= 1U;
        }
        m_value = Mixed(m_value ^ Mixed(word + m_count));
        return *this;
    }

    std::uint64_t m_value = 0;
    std::uint64_t m_count = 0;
    std::uint64_t m_flipped = 0;
};

} // namespace math::hashes
