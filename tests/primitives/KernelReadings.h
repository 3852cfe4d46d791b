#pragma once

#include "support/Support.h"

#include "math/AnalyticKernel.h"

#include <string>

// What the tests of the analytic kernel share: its readings in words and as points.

namespace math::test
{

/// What came out, in words: "identical", "parallel", "empty" and the number of points, or "not done".
inline std::string Outcome(const IntAna2d_AnaIntersection& intersection)
{
    if (!intersection.IsDone())
    {
        return "not done";
    }
    const std::string flags = std::string(intersection.IsParallel() ? "parallel " : "") +
                              (intersection.IsIdentical() ? "identical " : "") +
                              (intersection.IsEmpty() ? "empty " : "");
    return flags + std::to_string(intersection.PointCount());
}

inline DPOINT2 PointOf(const IntAna2d_AnaIntersection& intersection, int n)
{
    return At(intersection.Point(n).X(), intersection.Point(n).Y());
}

/// The parameters of the n-th point on both curves.
inline DPOINT2 ParametersOf(const IntAna2d_AnaIntersection& intersection, int n)
{
    return At(intersection.Point(n).ParamOnFirst(), intersection.Point(n).ParamOnSecond());
}

} // namespace math::test
