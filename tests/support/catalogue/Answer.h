#pragma once

#include "math/QorMath.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace math::test
{

/// The bits of what an operation answered, collected without asking for memory.
class Answer
{
public:
    Answer& operator<<(double value)
    {
        std::uint64_t bits = 0;
        std::memcpy(&bits, &value, sizeof bits);
        return Add(bits);
    }
    Answer& operator<<(int value)
    {
        return Add(static_cast<std::uint64_t>(value));
    }
    Answer& operator<<(std::int64_t value)
    {
        return Add(static_cast<std::uint64_t>(value));
    }
    Answer& operator<<(std::uint64_t value)
    {
        return Add(value);
    }
    Answer& operator<<(unsigned int value)
    {
        return Add(value);
    }
    Answer& operator<<(bool value)
    {
        return Add(value ? 1U : 0U);
    }
    Answer& operator<<(const DPOINT2& point)
    {
        return *this << point.x << point.y;
    }
    Answer& operator<<(const DRECT& box)
    {
        return *this << box.x << box.y << box.width << box.height;
    }
    Answer& operator<<(const RealRectD& box)
    {
        return *this << box.minX << box.maxX << box.minY << box.maxY;
    }
    Answer& operator<<(const LineD2D& line)
    {
        return *this << line.x1 << line.y1 << line.x2 << line.y2;
    }
    Answer& operator<<(const ArcD& arc)
    {
        return *this << arc.cx << arc.cy << arc.radius << arc.startRadian;
    }
    Answer& operator<<(const CSegment& segment)
    {
        return *this << segment.type << segment.start << segment.end << segment.ctrl1 << segment.ctrl2;
    }
    Answer& operator<<(const PosRangeD& range)
    {
        return *this << range.start << range.end;
    }
    Answer& operator<<(const CPolyline::NODE& node)
    {
        return *this << node.point << node.bulge;
    }
    Answer& operator<<(const CPolyline& outline)
    {
        return *this << outline.id << outline.attribute << outline.start << outline.nodes << outline.flags
                     << (outline.extendParam != nullptr);
    }
    Answer& operator<<(const CPolyPosMap& map)
    {
        return *this << map.PosPairs() << map.SrcSegmentCount() << map.DstSegmentCount();
    }
    Answer& operator<<(const gp_Pnt2d& point)
    {
        return *this << point.X() << point.Y();
    }
    Answer& operator<<(const gp_Circ2d& circle)
    {
        return *this << circle.Location() << circle.Radius() << circle.IsDirect();
    }
    Answer& operator<<(const IntAna2d_IntPoint& point)
    {
        return *this << point.Value() << point.ParamOnFirst() << point.ParamOnSecond() << point.SecondIsImplicit();
    }
    Answer& operator<<(const IntAna2d_AnaIntersection& found)
    {
        *this << found.IsDone() << found.IsParallel() << found.IsIdentical() << found.IsEmpty() << found.PointCount();
        for (int i = 1; i <= found.PointCount(); ++i)
        {
            *this << found.Point(i);
        }
        return *this;
    }
    template <typename First, typename Second>
    Answer& operator<<(const std::pair<First, Second>& pair)
    {
        return *this << pair.first << pair.second;
    }
    template <typename Element>
    Answer& operator<<(const std::vector<Element>& list)
    {
        *this << static_cast<std::uint64_t>(list.size());
        for (const Element& element : list)
        {
            *this << element;
        }
        return *this;
    }

    bool operator==(const Answer& other) const
    {
        // Words past the capacity are counted, and a list that does not fit is a fault of the test.
        return m_count <= m_words.size() && m_count == other.m_count &&
               std::memcmp(m_words.data(), other.m_words.data(), m_count * sizeof(std::uint64_t)) == 0;
    }
    bool operator!=(const Answer& other) const
    {
        return !(*this == other);
    }

private:
    Answer& Add(std::uint64_t word)
    {
        if (m_count < m_words.size())
        {
            m_words[m_count] = word;
        }
        ++m_count;
        return *this;
    }

    std::array<std::uint64_t, 1000> m_words{};
    std::size_t m_count = 0;
};

} // namespace math::test
