#pragma once

#include <mpfr.h>

#include <utility>

// Numbers of 256 bits, as values with operators. Every operation is MPFR's, rounded to nearest; a few thousand of them
// in a row leave an error below 1e-70 of what went in, which is nothing beside a rounding of a double.

namespace math::accuracy
{

class Real
{
public:
    static constexpr mpfr_prec_t Precision = 256;

    Real() : Real(0.0)
    {
    }

    // Doubles go in exactly; this conversion is what lets formulas be written as on paper.
    Real(double value)
    {
        mpfr_init2(number, Precision);
        mpfr_set_d(number, value, MPFR_RNDN);
    }

    Real(const Real& other)
    {
        mpfr_init2(number, Precision);
        mpfr_set(number, other.number, MPFR_RNDN);
    }

    Real(Real&& other) noexcept
    {
        number[0] = other.number[0];
        other.number[0]._mpfr_d = nullptr;
    }

    ~Real()
    {
        if (number[0]._mpfr_d != nullptr)
        {
            mpfr_clear(number);
        }
    }

    // By value: a copy is made by the caller where one is needed.
    Real& operator=(Real other) noexcept
    {
        std::swap(number[0], other.number[0]);
        return *this;
    }

    double ToDouble() const
    {
        return mpfr_get_d(number, MPFR_RNDN);
    }

    bool IsNaN() const
    {
        return mpfr_nan_p(number) != 0;
    }

    int Sign() const
    {
        return mpfr_sgn(number);
    }

    Real& operator+=(const Real& other)
    {
        mpfr_add(number, number, other.number, MPFR_RNDN);
        return *this;
    }

    Real& operator-=(const Real& other)
    {
        mpfr_sub(number, number, other.number, MPFR_RNDN);
        return *this;
    }

    Real& operator*=(const Real& other)
    {
        mpfr_mul(number, number, other.number, MPFR_RNDN);
        return *this;
    }

    Real& operator/=(const Real& other)
    {
        mpfr_div(number, number, other.number, MPFR_RNDN);
        return *this;
    }

    friend Real operator+(Real a, const Real& b)
    {
        a += b;
        return a;
    }

    friend Real operator-(Real a, const Real& b)
    {
        a -= b;
        return a;
    }

    friend Real operator*(Real a, const Real& b)
    {
        a *= b;
        return a;
    }

    friend Real operator/(Real a, const Real& b)
    {
        a /= b;
        return a;
    }

    friend Real operator-(Real a)
    {
        mpfr_neg(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend bool operator<(const Real& a, const Real& b)
    {
        return mpfr_less_p(a.number, b.number) != 0;
    }

    friend bool operator>(const Real& a, const Real& b)
    {
        return b < a;
    }

    friend bool operator<=(const Real& a, const Real& b)
    {
        return mpfr_lessequal_p(a.number, b.number) != 0;
    }

    friend bool operator>=(const Real& a, const Real& b)
    {
        return b <= a;
    }

    friend Real Abs(Real a)
    {
        mpfr_abs(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend Real Sqrt(Real a)
    {
        mpfr_sqrt(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend Real Sin(Real a)
    {
        mpfr_sin(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend Real Cos(Real a)
    {
        mpfr_cos(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend Real Tan(Real a)
    {
        mpfr_tan(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend Real Atan(Real a)
    {
        mpfr_atan(a.number, a.number, MPFR_RNDN);
        return a;
    }

    friend Real Atan2(Real y, const Real& x)
    {
        mpfr_atan2(y.number, y.number, x.number, MPFR_RNDN);
        return y;
    }

    friend Real Hypot(Real x, const Real& y)
    {
        mpfr_hypot(x.number, x.number, y.number, MPFR_RNDN);
        return x;
    }

    friend Real Floor(Real a)
    {
        mpfr_floor(a.number, a.number);
        return a;
    }

private:
    mpfr_t number;
};

// Found for plain doubles too.
Real Abs(Real a);
Real Sqrt(Real a);
Real Sin(Real a);
Real Cos(Real a);
Real Tan(Real a);
Real Atan(Real a);
Real Atan2(Real y, const Real& x);
Real Hypot(Real x, const Real& y);
Real Floor(Real a);

inline const Real& Pi()
{
    static const Real pi = 4.0 * Atan(1.0);
    return pi;
}

inline Real Max(const Real& a, const Real& b)
{
    return a < b ? b : a;
}

inline Real Min(const Real& a, const Real& b)
{
    return b < a ? b : a;
}

inline Real Square(const Real& a)
{
    return a * a;
}

/// The remainder in [0, modulus).
inline Real Modulo(const Real& value, const Real& modulus)
{
    return value - Floor(value / modulus) * modulus;
}

/// The distance of two numbers on a circle of the given circumference.
inline Real CircularDistance(const Real& a, const Real& b, const Real& modulus)
{
    const Real forward = Modulo(a - b, modulus);
    return Min(forward, modulus - forward);
}

} // namespace math::accuracy
