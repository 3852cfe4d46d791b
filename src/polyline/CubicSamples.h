#pragma once

#include <array>
#include <cstddef>

/// The multiples of 0.001 that repeated addition gives, with its rounding, where a cubic is evaluated.
namespace math::detail
{

inline constexpr double SampleStep = 0.001;

constexpr std::array<double, 1024> MakeSampleParameters()
{
    std::array<double, 1024> parameters{};
    double t = 0.0;
    for (double& parameter : parameters)
    {
        parameter = t;
        t += SampleStep;
    }
    return parameters;
}

inline constexpr std::array<double, 1024> SampleParameters = MakeSampleParameters();

/// The number of the first sample at or above a limit.
constexpr std::size_t FirstSampleFrom(double limit)
{
    std::size_t index = 0;
    while (SampleParameters[index] < limit)
    {
        ++index;
    }
    return index;
}

} // namespace math::detail
