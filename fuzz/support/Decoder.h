#pragma once

#include "Require.h"

#include "math/Primitives.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

namespace fuzz
{

inline constexpr double Pi = 3.141592653589793;
inline constexpr double Infinity = std::numeric_limits<double>::infinity();

/// Turns the bytes of an input into numbers of which degenerate cases are made.
///
/// One byte chooses the kind of a number: a place on a coarse grid, a fraction, any double, an earlier number again, an
/// earlier number moved by about the tolerance or by one rounding unit, a special value, or a sum of earlier ones. When
/// the bytes are used up every number is 0.
class Decoder
{
public:
    Decoder(const std::uint8_t* data, std::size_t size) : m_data(data), m_left(size)
    {
    }

    bool IsEmpty() const
    {
        return m_left == 0;
    }

    std::uint8_t Byte()
    {
        if (m_left == 0)
        {
            return 0;
        }
        --m_left;
        return *m_data++;
    }

    /// From 0 to limit - 1, of one byte.
    int Below(int limit)
    {
        return Byte() % limit;
    }

    bool Flag()
    {
        return (Byte() & 1) != 0;
    }

    /// Any int: mostly a small one, sometimes one near the ends of the type.
    int Whole()
    {
        const int small = static_cast<std::int8_t>(Byte());
        switch (Byte() % 8)
        {
        case 0:
            return std::numeric_limits<int>::max() - (small & 7);
        case 1:
            return std::numeric_limits<int>::min() + (small & 7);
        case 2:
            return static_cast<int>(Raw<std::int32_t>());
        default:
            return small;
        }
    }

    /// Any double.
    double Number()
    {
        return Remember(NextNumber());
    }

    /// Any double, more often than not above 0.
    double Size()
    {
        const double number = NextNumber();
        return Remember((Byte() & 7) != 0 ? std::abs(number) : number);
    }

    /// An angle whose folding ends soon: NaN, or one up to `limit`.
    double Angle(double limit = 1000.0)
    {
        return Remember(Bounded(NextAngle(), limit));
    }

    math::DPOINT2 Point()
    {
        const int kind = Byte() % 8;
        if (kind == 0)
        {
            return Take(m_points[Byte() % m_points.size()]);
        }
        if (kind == 1)
        {
            const math::DPOINT2 earlier = m_points[Byte() % m_points.size()];
            const double dx = Sliver();
            return Take({earlier.x + dx, earlier.y + Sliver()});
        }
        if (kind == 2)
        {
            const math::DPOINT2 centre = m_points[Byte() % m_points.size()];
            const double radius = Number();
            const double angle = Angle();
            return Take({centre.x + radius * std::cos(angle), centre.y + radius * std::sin(angle)});
        }
        if (kind == 3)
        {
            const math::DPOINT2 from = m_points[Byte() % m_points.size()];
            const math::DPOINT2 to = m_points[Byte() % m_points.size()];
            const double ratio = static_cast<double>(Byte()) / 64.0;
            return Take({from.x + (to.x - from.x) * ratio, from.y + (to.y - from.y) * ratio});
        }
        const double x = Number();
        return Take({x, Number()});
    }

    /// A count of segments: mostly up to 8, never above `limit` and seldom below 0.
    int SegmentCount(int limit)
    {
        const int byte = Byte();
        const int count = byte < 224 ? byte % 9 : (byte < 248 ? (byte - 224) * limit / 24 : byte - 252);
        TheTrace().Take(count);
        return count;
    }

    /// A part of a thousand millionth, or a rounding unit, or a little more.
    double Sliver()
    {
        static const double slivers[] = {
            0.0,   3e-10, 5e-10, std::nextafter(1e-9, 0.0), 1e-9, std::nextafter(1e-9, 1.0), 2e-9, 1e-12, 1e-6,
            1e-15, 4e-16, 1e-300};
        const int byte = Byte();
        const double sliver = slivers[static_cast<std::size_t>(byte >> 1) % (sizeof slivers / sizeof *slivers)];
        return (byte & 1) != 0 ? -sliver : sliver;
    }

private:
    template <typename Value>
    Value Raw()
    {
        unsigned char bytes[sizeof(Value)];
        for (unsigned char& byte : bytes)
        {
            byte = Byte();
        }
        Value value;
        std::memcpy(&value, bytes, sizeof value);
        return value;
    }

    static double Bounded(double number, double limit)
    {
        if (std::isinf(number))
        {
            return 0.0;
        }
        return std::fmod(number, limit);
    }

    double Remember(double number)
    {
        m_numbers[m_next++ % m_numbers.size()] = number;
        TheTrace().Take(number);
        return number;
    }

    math::DPOINT2 Take(const math::DPOINT2& point)
    {
        m_points[m_nextPoint++ % m_points.size()] = point;
        TheTrace().Take(point.x);
        TheTrace().Take(point.y);
        return point;
    }

    double Earlier()
    {
        return m_numbers[Byte() % m_numbers.size()];
    }

    double NextAngle()
    {
        const int kind = Byte() % 8;
        const int steps = static_cast<std::int8_t>(Byte());
        switch (kind)
        {
        case 0:
        case 1:
            return steps * (Pi / 12.0);
        case 2:
            return steps * (Pi / 2.0) + Sliver();
        case 3:
            return steps / 16.0;
        case 4:
            return Earlier() + steps % 5 * Pi / 2.0;
        default:
            return NextNumber();
        }
    }

    double Combined()
    {
        const int kind = Byte() % 8;
        const double a = Earlier();
        const double b = Earlier();
        switch (kind)
        {
        case 0:
            return a + b;
        case 1:
            return a - b;
        case 2:
            return -a;
        case 3:
            return a * b;
        case 4:
            return (a + b) / 2.0;
        case 5:
            return std::hypot(a, b);
        case 6:
            return a * 2.0;
        default:
            return a / b;
        }
    }

    static double Special(int which)
    {
        static const double specials[] = {0.0,
                                          -0.0,
                                          std::numeric_limits<double>::quiet_NaN(),
                                          Infinity,
                                          -Infinity,
                                          std::numeric_limits<double>::denorm_min(),
                                          std::numeric_limits<double>::min(),
                                          std::numeric_limits<double>::max(),
                                          -std::numeric_limits<double>::max(),
                                          1e-9,
                                          -1e-9,
                                          1e154,
                                          1e-162,
                                          Pi,
                                          Pi / 2.0,
                                          2.0 * Pi,
                                          1.0,
                                          -1.0,
                                          2147483647.0,
                                          2147483648.0,
                                          -2147483649.0,
                                          4503599627370496.0,
                                          9007199254740993.0,
                                          1e19,
                                          std::sqrt(2.0),
                                          1.0 / 3.0,
                                          1e9,
                                          1e-8};
        return specials[static_cast<std::size_t>(which) % (sizeof specials / sizeof *specials)];
    }

    double NextNumber()
    {
        const int tag = Byte();
        switch (tag & 15)
        {
        case 0:
        case 1:
        case 2:
        case 3:
        case 4: {
            static const double steps[] = {1.0, 0.5, 0.25, 1.0, 0.5, 10.0, 1000.0, 0.001};
            return static_cast<std::int8_t>(Byte()) * steps[(tag >> 4) & 7];
        }
        case 5:
        case 6:
            return Raw<std::int16_t>() / 4096.0;
        case 7:
            return Raw<double>();
        case 8:
        case 9:
            return Earlier();
        case 10:
        case 11: {
            const double earlier = Earlier();
            const int how = Byte();
            if ((how & 3) == 0)
            {
                return std::nextafter(earlier, (how & 4) != 0 ? Infinity : -Infinity);
            }
            return earlier + Sliver();
        }
        case 12:
            return Special(Byte());
        case 13:
            return Combined();
        case 14: {
            const double mantissa = static_cast<std::int8_t>(Byte());
            return std::ldexp(mantissa, Raw<std::int16_t>() % 1100);
        }
        default:
            return static_cast<double>(Raw<float>());
        }
    }

    const std::uint8_t* m_data;
    std::size_t m_left;
    std::array<double, 16> m_numbers = {};
    std::size_t m_next = 0;
    std::array<math::DPOINT2, 8> m_points = {};
    std::size_t m_nextPoint = 0;
};

} // namespace fuzz
