#pragma once

#include "math/Primitives.h"
#include "polyline/CubicForm.h"

#include <array>
#include <cstddef>

/// Evaluation of a cubic at the multiples of 0.001 that repeated addition gives, with its rounding.
namespace math::detail
{

inline constexpr double SampleStep = 0.001;

/// Samples are evaluated in blocks, which compilers put into vectors; what comes of them is gathered one by one.
inline constexpr std::size_t SampleBlock = 8;

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

using BlockOfSamples = std::array<double, SampleBlock>;

} // namespace math::detail
