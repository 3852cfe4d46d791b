#include "intersect/EllipseSector.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace math;
using detail::EllipseSector;

namespace
{

DPOINT2 UnitVector(double radian)
{
    return {std::cos(radian), std::sin(radian)};
}

/// From the direction 0 on, around the origin.
EllipseSector SectorOf(double extent)
{
    return {{0, 0}, 0.0, 0.0, extent, UnitVector(0.0), UnitVector(extent)};
}

} // namespace

TEST(EllipseSector, HoldsItsDirectionsFromHardlyAnyExtentToJustAboveHalfATurn)
{
    // Directions half a millionth of a radian inside both ends are in, those as far outside are not: that is beyond the
    // tolerance and far beyond rounding. Two rays tell it only of arcs clearly shorter than half a turn.
    constexpr double Step = 0.5e-6;
    const double pi = detail::Pi;
    for (const double extent : {1.5e-6, 3.9e-6, 4e-6, 4.1e-6, 1.0, detail::HalfPi, pi - 4.1e-6, pi - 4e-6, pi - 3.9e-6,
                                pi - 1e-6, pi, pi + 1e-6, pi + 2e-6, pi + 3.9e-6})
    {
        const EllipseSector sector = SectorOf(extent);
        EXPECT_FALSE(sector.Holds(UnitVector(-Step))) << extent;
        EXPECT_TRUE(sector.Holds(UnitVector(Step))) << extent;
        EXPECT_TRUE(sector.Holds(UnitVector(extent * 0.5))) << extent;
        EXPECT_TRUE(sector.Holds(UnitVector(extent - Step))) << extent;
        EXPECT_FALSE(sector.Holds(UnitVector(extent + Step))) << extent;
        EXPECT_FALSE(sector.Holds(UnitVector(extent * 0.5 + pi))) << extent;
    }
}
