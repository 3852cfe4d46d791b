#pragma once

/// Two numbers that are worked on at once. Most processors divide two in the time of one; each is rounded by itself, so
/// the bits are those of two divisions.
namespace math::detail
{

struct TwoNumbers
{
    double first;
    double second;
};

inline TwoNumbers operator/(const TwoNumbers& dividends, const TwoNumbers& divisors)
{
#if defined(__GNUC__)
    using Lanes = double __attribute__((vector_size(2 * sizeof(double))));
    const Lanes quotients = Lanes{dividends.first, dividends.second} / Lanes{divisors.first, divisors.second};
    return {quotients[0], quotients[1]};
#else
    return {dividends.first / divisors.first, dividends.second / divisors.second};
#endif
}

inline TwoNumbers operator/(const TwoNumbers& dividends, double divisor)
{
    return dividends / TwoNumbers{divisor, divisor};
}

} // namespace math::detail
