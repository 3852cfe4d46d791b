#include "polyline/CubicLength.h"

#include "polyline/CubicSamples.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace math::detail
{

namespace
{

/// Speeds are computed in blocks, which compilers put into vectors; the sum takes them one by one.
constexpr std::size_t SampleBlock = 8;

} // namespace

double LengthOfCubic(const CubicForm& curve)
{
    // Just below 1: the steps add up with rounding, and the sample at 1 is not to be taken.
    constexpr std::size_t sampleCount = FirstSampleFrom(0.9999999999);
    static_assert(sampleCount % SampleBlock == 0);
    double length = 0.0;
    for (std::size_t begin = 0; begin < sampleCount; begin += SampleBlock)
    {
        std::array<double, SampleBlock> pieces{};
        for (std::size_t i = 0; i < SampleBlock; ++i)
        {
            const DPOINT2 derivative = curve.DerivativeAt(SampleParameters[begin + i]);
            const double speed = std::sqrt(derivative.x * derivative.x + derivative.y * derivative.y);
            pieces[i] = speed * SampleStep;
        }
        for (const double piece : pieces)
        {
            length += piece;
        }
    }
    return length;
}

} // namespace math::detail
