#pragma once

#include "support/Ellipses.h"
#include "support/Support.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

// What the laws of intersections share: the answer of a member as one value.

namespace math::test
{

struct Met
{
    int code;
    std::vector<DPOINT2> points;
};

template <class First, class Second>
Met Meet(const First& first, const Second& second)
{
    Met met{0, {}};
    met.code = Meeting(first, second).vectorForm(met.points, -1);
    return met;
}

/// The same answer, the points in whatever order.
inline ::testing::AssertionResult SameAnswer(const Met& found, const Met& expected, double tolerance)
{
    if (found.code != expected.code)
    {
        return ::testing::AssertionFailure() << found.code << " instead of " << expected.code;
    }
    return SameSet(found.points, expected.points, tolerance);
}

inline double DistanceFrom(const Beeline& beeline, const DPOINT2& point)
{
    return std::abs(CrossOf(At(std::cos(beeline.angle), std::sin(beeline.angle)), Minus(point, beeline.point)));
}

} // namespace math::test
