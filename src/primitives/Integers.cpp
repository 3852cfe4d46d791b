#include "math/Primitives.h"

#include <cstdint>
#include <limits>

namespace math
{

namespace
{

template <typename Integer>
Integer CommonDivisor(Integer a, Integer b)
{
    if (a == 0 || b == 0)
    {
        return 1;
    }
    for (;;)
    {
        // -1 divides everything; the least integer has no remainder by it that could be computed.
        const Integer remainder = b == -1 ? 0 : a % b;
        if (remainder == 0)
        {
            return b;
        }
        a = b;
        b = remainder;
    }
}

template <typename Integer>
void Reduce(Integer& numerator, Integer& denominator)
{
    const Integer divisor = CommonDivisor(numerator, denominator);
    constexpr Integer least = std::numeric_limits<Integer>::min();
    if (divisor == -1 && (numerator == least || denominator == least))
    {
        return;
    }
    const Integer reducedNumerator = numerator / divisor;
    const Integer reducedDenominator = denominator / divisor;
    numerator = reducedNumerator;
    denominator = reducedDenominator;
}

} // namespace

int GetGreatestCommonDivisor(int a, int b)
{
    return CommonDivisor(a, b);
}

std::int64_t GetGreatestCommonDivisorInt64(std::int64_t a, std::int64_t b)
{
    return CommonDivisor(a, b);
}

void Reducify(int& numerator, int& denominator)
{
    Reduce(numerator, denominator);
}

void ReducifyInt64(std::int64_t& numerator, std::int64_t& denominator)
{
    Reduce(numerator, denominator);
}

} // namespace math
