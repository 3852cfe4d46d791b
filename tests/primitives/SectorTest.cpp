#include "primitives/Sector.h"

#include <gtest/gtest.h>

using namespace math;
using detail::LookInSector;
using detail::Verdict;

namespace
{

/// A quarter turn is a double that is a multiple of 2^-49: it takes this more or less without rounding.
constexpr double Margin = 0.25;

/// A first look at the direction straight up, counted counter-clockwise from `startRadian`.
Verdict LookUp(double startRadian, double limit)
{
    return LookInSector(0.0, 1.0, startRadian, limit, 1.0, Margin);
}

/// The same scene in the mirror: straight down, counted clockwise.
Verdict LookDown(double startRadian, double limit)
{
    return LookInSector(0.0, -1.0, -startRadian, limit, -1.0, Margin);
}

} // namespace

TEST(LookInSector, IsSureOnlyBeyondTheMarginOfBothBounds)
{
    for (const auto look : {LookUp, LookDown})
    {
        const double up = detail::HalfPi;
        // Straight up is just the margin after the start, then a little more.
        EXPECT_EQ(look(up - Margin, 3.0), Verdict::Unsure);
        EXPECT_EQ(look(up - 1.001 * Margin, 3.0), Verdict::Inside);
        // Just the margin before the limit.
        EXPECT_EQ(look(0.0, up + Margin), Verdict::Unsure);
        EXPECT_EQ(look(0.0, up + 1.001 * Margin), Verdict::Inside);
        // Just the margin beyond the limit.
        EXPECT_EQ(look(0.0, up - Margin), Verdict::Unsure);
        EXPECT_EQ(look(0.0, up - 1.001 * Margin), Verdict::Outside);
        // Just the margin before the start.
        EXPECT_EQ(look(up + Margin, 3.0), Verdict::Unsure);
        EXPECT_EQ(look(up + 1.001 * Margin, 3.0), Verdict::Outside);
    }
}

TEST(LookInSector, IsSureOfStartsLessThan32RadiansAway)
{
    // Five whole turns are 31.4 radians: the start is 0.5 radians past them, and straight up 1.07 past the start.
    const double fiveTurns = 5.0 * detail::TwoPi;
    EXPECT_EQ(LookUp(fiveTurns + 0.5, 2.0), Verdict::Inside);
    EXPECT_EQ(LookUp(-fiveTurns - 0.5, 3.0), Verdict::Inside);
    EXPECT_EQ(LookUp(32.0, 2.0), Verdict::Unsure);
    EXPECT_EQ(LookUp(-32.0, 3.0), Verdict::Unsure);
    EXPECT_EQ(LookUp(InvalidDouble, 2.0), Verdict::Unsure);
}
