#pragma once

#include "math/Primitives.h"

#include <cstdint>

namespace math::hashes
{

inline constexpr double HalfPi = 1.5707963267948966;
inline constexpr double Pi = 3.141592653589793;
inline constexpr double TwoPi = 6.283185307179586;

/// An angle together with its cosine and sine, told without the C runtime.
struct Heading
{
    double radian;
    double cosine;
    double sine;
};

/// Numbers that depend on the seed alone: the same with every compiler, standard library and processor, since they are
/// made of integers, exact scaling and single operations.
///
/// All numbers of one round are of one kind: even over an interval, on a grid, on a grid give or take about a
/// tolerance, of widely different magnitudes, or mixed. Now and then one number of a round is a special value.
class Source
{
public:
    explicit Source(std::uint64_t seed);

    /// Chooses the kind of numbers for the next round.
    void BeginRound();

    /// The rounds so far, the current one excluded.
    int Round() const
    {
        return m_round;
    }

    std::uint64_t Bits();

    /// From 0 to limit - 1.
    int Below(int limit);

    /// From `low` to `high`, both included.
    int Between(int low, int high);

    bool OneIn(int chances);
    bool Coin();

    /// In [0, 1), with all its bits.
    double Ratio();

    /// From `low` to `high`, with all bits of a ratio.
    double Even(double low, double high);

    /// About the tolerance 1e-9, on both sides of it, of either sign; also other tiny steps.
    double Sliver();

    /// `value`, or a neighbour of it: a few doubles or a sliver away.
    double Near(double value);

    /// Not a number, infinite, extreme, tiny, or -0.
    double Special();

    /// A coordinate, coefficient or the like.
    double Number();

    /// A radius or the like: positive most of the time.
    double Length();

    /// Radians: a named angle, one near it, or any; never so great that folding takes long. Seldom NaN.
    double Angle();

    /// Degrees, likewise.
    double Degrees();

    /// The signed sweep or the extent of an arc, likewise.
    double Sweep();

    /// Multiples of π/12, and angles with rational cosine and sine, in [0, 2π).
    Heading Known();

    DPOINT2 Point();

    /// A point as far from `centre` as told, in a known direction.
    DPOINT2 Around(const DPOINT2& centre, double distance);

    /// `point`, or a neighbour of it.
    DPOINT2 Near(const DPOINT2& point);

private:
    enum class Kind
    {
        Even,
        Grid,
        Slivers,
        Wide,
        Mixed
    };

    double OnGrid();
    double OfKind(Kind kind);
    double OfAnyMagnitude();
    double NamedAngle();

    /// Whether the number that is drawn now is to be a special value.
    bool IsSpoilt();

    std::uint64_t m_state;
    int m_round = -1;
    int m_draw = 0;
    int m_spoiltDraw = -1;
    Kind m_kind = Kind::Even;
    double m_scale = 1.0;
    double m_grid = 1.0;
};

} // namespace math::hashes
