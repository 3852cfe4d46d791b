#pragma once

#include <utility>

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace math::detail
{

/// Two numbers that are worked on at once, as most processors can in the time of one. Each is rounded by itself, so the
/// bits are those of two operations.
class TwoNumbers
{
public:
    TwoNumbers(double first, double second) : m_lanes{first, second}
    {
    }

    double First() const
    {
        return m_lanes[0];
    }

    double Second() const
    {
        return m_lanes[1];
    }

    std::pair<double, double> Values() const
    {
        return {First(), Second()};
    }

    friend TwoNumbers operator+(const TwoNumbers& a, const TwoNumbers& b)
    {
        return TwoNumbers(a.m_lanes + b.m_lanes);
    }

    friend TwoNumbers operator-(const TwoNumbers& a, const TwoNumbers& b)
    {
        return TwoNumbers(a.m_lanes - b.m_lanes);
    }

    friend TwoNumbers operator*(const TwoNumbers& a, const TwoNumbers& b)
    {
        return TwoNumbers(a.m_lanes * b.m_lanes);
    }

    friend TwoNumbers operator/(const TwoNumbers& a, const TwoNumbers& b)
    {
        return TwoNumbers(a.m_lanes / b.m_lanes);
    }

    friend TwoNumbers operator/(const TwoNumbers& a, double divisor)
    {
        return a / TwoNumbers(divisor, divisor);
    }

    /// As std::min of either two, so `a` where they are equal or one is NaN.
    friend TwoNumbers LesserOf(const TwoNumbers& a, const TwoNumbers& b)
    {
        return TwoNumbers(b.m_lanes < a.m_lanes ? b.m_lanes : a.m_lanes);
    }

    /// As std::abs of either.
    friend TwoNumbers MagnitudesOf(const TwoNumbers& a)
    {
        constexpr Bits allButTheSign = {0x7FFFFFFFFFFFFFFF, 0x7FFFFFFFFFFFFFFF};
        return TwoNumbers(reinterpret_cast<Lanes>(reinterpret_cast<Bits>(a.m_lanes) & allButTheSign));
    }

    /// Where `a` is less than `b`: nowhere 0, in the first number 1, in the second 2, in both 3.
    friend int WhereIsLess(const TwoNumbers& a, const TwoNumbers& b)
    {
#if defined(__SSE2__)
        return _mm_movemask_pd(_mm_cmplt_pd(a.m_lanes, b.m_lanes));
#else
        return (a.First() < b.First() ? 1 : 0) + (a.Second() < b.Second() ? 2 : 0);
#endif
    }

private:
    using Lanes = double __attribute__((vector_size(2 * sizeof(double))));
    using Bits = long long __attribute__((vector_size(2 * sizeof(double))));

    explicit TwoNumbers(const Lanes& lanes) : m_lanes(lanes)
    {
    }

    Lanes m_lanes;
};

} // namespace math::detail
