#include "Source.h"

#include "ResultHash.h"

#include <cmath>
#include <limits>

namespace math::hashes
{

namespace
{

using Limits = std::numeric_limits<double>;

/// The first quadrant without its end: the others follow by exchange and change of sign.
constexpr Heading FirstQuadrant[] = {
    {0.0, 1.0, 0.0},
    {0.2617993877991494, 0.9659258262890683, 0.25881904510252074},
    {0.3947911196997615, 12.0 / 13.0, 5.0 / 13.0},
    {0.5235987755982988, 0.8660254037844387, 0.5},
    {0.6435011087932844, 0.8, 0.6},
    {0.7853981633974483, 0.7071067811865476, 0.7071067811865476},
    {0.9272952180016122, 0.6, 0.8},
    {1.0471975511965976, 0.5, 0.8660254037844387},
    {1.1760052070951352, 5.0 / 13.0, 12.0 / 13.0},
    {1.3089969389957472, 0.25881904510252074, 0.9659258262890683},
};
constexpr int FirstQuadrantSize = static_cast<int>(sizeof FirstQuadrant / sizeof FirstQuadrant[0]);

double Stepped(double value, int steps)
{
    for (; steps > 0; --steps)
    {
        value = std::nextafter(value, Limits::infinity());
    }
    for (; steps < 0; ++steps)
    {
        value = std::nextafter(value, -Limits::infinity());
    }
    return value;
}

} // namespace

Source::Source(std::uint64_t seed) : m_state(seed)
{
}

void Source::BeginRound()
{
    ++m_round;
    m_draw = 0;
    m_spoiltDraw = OneIn(16) ? Below(8) : -1;
    constexpr Kind kinds[] = {Kind::Even,    Kind::Even,    Kind::Grid, Kind::Grid, Kind::Grid,
                              Kind::Slivers, Kind::Slivers, Kind::Wide, Kind::Mixed};
    m_kind = kinds[Below(9)];
    constexpr double scales[] = {1.0, 4.0, 4.0, 10.0, 1000.0, 0x1p-10, 1e6};
    m_scale = scales[Below(7)];
    constexpr double grids[] = {1.0, 1.0, 0.5, 0.25, 0.1, 3.0, 1e-9};
    m_grid = grids[Below(7)];
}

QORMATH_WRAPS std::uint64_t Source::Bits()
{
    m_state += 0x9e3779b97f4a7c15U;
    return Mixed(m_state);
}

int Source::Below(int limit)
{
    return static_cast<int>((Bits() >> 33) % static_cast<std::uint64_t>(limit));
}

int Source::Between(int low, int high)
{
    return low + Below(high - low + 1);
}

bool Source::OneIn(int chances)
{
    return Below(chances) == 0;
}

bool Source::Coin()
{
    return Bits() >> 63 != 0;
}

double Source::Ratio()
{
    return static_cast<double>(Bits() >> 11) * 0x1p-53;
}

double Source::Even(double low, double high)
{
    const double extent = high - low;
    const double offset = extent * Ratio();
    return low + offset;
}

double Source::Sliver()
{
    constexpr double sizes[] = {1e-9,
                                1e-9,
                                1e-9,
                                9.9999999999e-10,
                                1.0000000001e-9,
                                5e-10,
                                7.1e-10,
                                9e-10,
                                2e-9,
                                1.5e-9,
                                1e-10,
                                1e-12,
                                1e-15,
                                1e-8,
                                1e-7,
                                1e-6,
                                3e-10,
                                1.1e-9,
                                2.1e-9,
                                0x1p-52,
                                0x1p-30,
                                4e-9,
                                8e-10,
                                1e-5};
    double size = sizes[Below(24)];
    if (OneIn(3))
    {
        size = Stepped(size, Between(-2, 2));
    }
    return Coin() ? size : -size;
}

double Source::Near(double value)
{
    switch (Below(6))
    {
    case 0:
    case 1:
        return value + Sliver();
    case 2:
        return Stepped(value, Between(-4, 4));
    default:
        return value;
    }
}

double Source::Special()
{
    constexpr double values[] = {Limits::quiet_NaN(),
                                 Limits::quiet_NaN(),
                                 Limits::infinity(),
                                 -Limits::infinity(),
                                 -0.0,
                                 Limits::max(),
                                 Limits::lowest(),
                                 Limits::min(),
                                 Limits::denorm_min(),
                                 1e-200,
                                 1e200,
                                 -1e155};
    return values[Below(12)];
}

bool Source::IsSpoilt()
{
    return m_draw++ == m_spoiltDraw;
}

double Source::OnGrid()
{
    return Between(-8, 8) * m_grid;
}

double Source::OfAnyMagnitude()
{
    const double mantissa = Even(-1.0, 1.0);
    const int greatest = OneIn(30) ? 1000 : 45;
    return std::ldexp(mantissa, Between(-greatest, greatest));
}

double Source::OfKind(Kind kind)
{
    switch (kind)
    {
    case Kind::Even:
        return Even(-m_scale, m_scale);
    case Kind::Grid:
        return OnGrid();
    case Kind::Slivers:
        return Near(OnGrid());
    case Kind::Wide:
        return OfAnyMagnitude();
    default:
        constexpr Kind others[] = {Kind::Even, Kind::Grid, Kind::Slivers, Kind::Wide};
        return OfKind(others[Below(4)]);
    }
}

double Source::Number()
{
    return IsSpoilt() ? Special() : OfKind(m_kind);
}

double Source::Length()
{
    const double length = Number();
    return OneIn(40) ? length : std::abs(length);
}

double Source::NamedAngle()
{
    switch (Below(4))
    {
    case 0:
        return Between(-6, 8) * HalfPi;
    case 1:
        return Between(-30, 30) * (Pi / 12.0);
    default:
        return Known().radian;
    }
}

double Source::Angle()
{
    if (IsSpoilt())
    {
        return Coin() ? Limits::quiet_NaN() : -0.0;
    }
    switch (Below(8))
    {
    case 0:
    case 1:
        return NamedAngle();
    case 2:
    case 3:
        return Near(NamedAngle());
    case 4:
    case 5:
        return Even(0.0, TwoPi);
    case 6:
        return OneIn(10) ? Even(-1000.0, 1000.0) : Sliver();
    default:
        return Even(-20.0, 20.0);
    }
}

double Source::Degrees()
{
    if (IsSpoilt())
    {
        return Coin() ? Limits::quiet_NaN() : -0.0;
    }
    switch (Below(6))
    {
    case 0:
        return Between(-24, 48) * 15.0;
    case 1:
        return Near(Between(-8, 16) * 90.0);
    case 2:
        return Even(0.0, 360.0);
    case 3:
        return OneIn(20) ? Even(-1e5, 1e5) : Even(-1000.0, 1000.0);
    case 4:
        return Sliver();
    default:
        const double mantissa = Even(-1.0, 1.0);
        return std::ldexp(mantissa, Between(-1000, 8));
    }
}

double Source::Sweep()
{
    const double sweep = OneIn(3) ? Even(-TwoPi, TwoPi) : Angle();
    return OneIn(3) ? sweep : std::abs(sweep);
}

Heading Source::Known()
{
    const Heading& first = FirstQuadrant[Below(FirstQuadrantSize)];
    switch (Below(4))
    {
    case 0:
        return first;
    case 1:
        return {first.radian + HalfPi, -first.sine, first.cosine};
    case 2:
        return {first.radian + Pi, -first.cosine, -first.sine};
    default:
        return {first.radian + 3.0 * HalfPi, first.sine, -first.cosine};
    }
}

DPOINT2 Source::Point()
{
    const double x = Number();
    return {x, Number()};
}

DPOINT2 Source::Around(const DPOINT2& centre, double distance)
{
    const Heading heading = Known();
    const double x = heading.cosine * distance;
    const double y = heading.sine * distance;
    return {centre.x + x, centre.y + y};
}

DPOINT2 Source::Near(const DPOINT2& point)
{
    const double x = Near(point.x);
    return {x, Near(point.y)};
}

} // namespace math::hashes
