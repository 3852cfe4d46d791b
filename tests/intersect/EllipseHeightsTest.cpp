#include "intersect/EllipseHeights.h"
#include "math/Intersect.h"
#include "support/Ellipses.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

using namespace math;
using namespace math::test;

namespace
{

using Heights = detail::EllipseHeights;

/// A ratio of the semi-axes up to the greatest that counts as ordinary, which every fourth one has.
Ellipse RandomOrdinaryEllipse(std::mt19937_64& engine)
{
    const auto between = [&](double low, double high) {
        return std::uniform_real_distribution<double>(low, high)(engine);
    };
    const double flatness = engine() % 4 == 0 ? 16.0 : between(1.0, 16.0);
    const double a = std::pow(10.0, between(std::log10(0.25 * flatness), 4.0));
    const double reach = std::pow(10.0, between(0.0, 4.0));
    return {{between(-reach, reach), between(-reach, reach)}, a, std::max(a / flatness, 0.25), between(-Pi, Pi)};
}

Heights HeightsOf(const Ellipse& ellipse)
{
    return {detail::OwnFrame(ellipse.centre, ellipse.rotation), ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation};
}

} // namespace

TEST(EllipseHeights, DifferFromThePointsOfVerticalsByLessThanTheirMargin)
{
    std::mt19937_64 engine(20);
    double worst = 0.0;
    for (int round = 0; round < 200000; ++round)
    {
        const Ellipse ellipse = RandomOrdinaryEllipse(engine);
        const Heights heights = HeightsOf(ellipse);
        if (!heights.IsOrdinary())
        {
            continue;
        }
        const double reach = heights.SureReach();
        // Mostly near the sides, where the root amplifies errors.
        const double fromCentre =
            reach * (1.0 - std::pow(std::uniform_real_distribution<double>(0.0, 1.0)(engine), 8.0));
        const double x = ellipse.centre.x + (round % 2 == 0 ? fromCentre : -fromCentre);
        DPOINT2 first;
        DPOINT2 second;
        ASSERT_EQ(Intersect_BeelineWithEllipse({x, 0}, HalfPi, ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation,
                                               &first, &second),
                  2);
        const double upper = std::abs(heights.HeightAt(x, 1.0) - std::max(first.y, second.y));
        const double lower = std::abs(heights.HeightAt(x, -1.0) - std::min(first.y, second.y));
        ASSERT_LE(std::max(upper, lower), heights.HeightMargin()) << "round " << round;
        worst = std::max(worst, std::max(upper, lower) / heights.HeightMargin());
    }
    // Wide, but not by orders of magnitude more than it takes to be sure.
    EXPECT_GT(worst, 1e-3);
}

TEST(EllipseHeights, KeepAMarginThatGrowsWithTheSquareOfTheFlatness)
{
    // Errors of the coefficients of a quadratic are divided by the leading one, which is as small as the square of the
    // ratio of the semi-axes. The axes add up to 17 each time, so that the coordinates are of one magnitude.
    const double ofCircle = HeightsOf({{3, 4}, 8.5, 8.5, 0}).HeightMargin();
    EXPECT_GE(ofCircle, 24.0 * 1e-15) << "some units in the last place of the greatest coordinates";
    for (const double flatness : {2.0, 4.0, 16.0})
    {
        const double shorter = 17.0 / (1.0 + flatness);
        const double expected = flatness * flatness * ofCircle;
        EXPECT_NEAR(HeightsOf({{3, 4}, 17.0 - shorter, shorter, 1}).HeightMargin(), expected, 1e-9 * expected);
        EXPECT_NEAR(HeightsOf({{3, 4}, shorter, 17.0 - shorter, 1}).HeightMargin(), expected, 1e-9 * expected);
    }
}

TEST(EllipseHeights, ReachForMissesOnlyAsFarAsTheQuadraticIsSurelyNone)
{
    // Beside an ellipse the quadratic of a vertical has, in the frame of the ellipse, a leading coefficient of at least
    // 1/f² for semi-axes of the ratio f. Its constant term is the difference of two squares, of the place where the
    // vertical crosses the own axis, at most √2 times as far from the centre as the vertical itself, and of a semi-axis.
    // It is taken for linear where the first is less than 1e-9 times the second. As far as the reach it is half that far
    // off, even if both squares are added.
    std::mt19937_64 engine(21);
    int withReach = 0;
    for (int round = 0; round < 20000; ++round)
    {
        const Ellipse ellipse = RandomOrdinaryEllipse(engine);
        const Heights heights = HeightsOf(ellipse);
        const double reach = heights.MissReach();
        if (!heights.IsOrdinary() || reach == 0.0)
        {
            continue;
        }
        ++withReach;
        const double longer = std::max(ellipse.a, ellipse.b);
        const double flatness = longer / std::min(ellipse.a, ellipse.b);
        const double constant = 2.0 * reach * reach + longer * longer;
        ASSERT_LE(constant * flatness * flatness, 0.5e9 * (1.0 + 1e-12)) << "round " << round;
        if (reach > longer)
        {
            const double x = ellipse.centre.x + (round % 2 == 0 ? reach : -reach);
            DPOINT2 first;
            DPOINT2 second;
            ASSERT_EQ(Intersect_BeelineWithEllipse({x, 0}, HalfPi, ellipse.centre, ellipse.a, ellipse.b,
                                                   ellipse.rotation, &first, &second),
                      0)
                << "round " << round;
        }
    }
    EXPECT_GT(withReach, 10000);
    // Too short a reach would be of no use: beside small ellipses it is hundreds or thousands of units.
    EXPECT_GT(HeightsOf({{3, 4}, 2, 1, 0}).MissReach(), 5000.0);
    EXPECT_GT(HeightsOf({{3, 4}, 1, 16, 1}).MissReach(), 500.0);
}

TEST(EllipseHeights, AreNotToldOfFiguresWhoseErrorsHaveNoBound)
{
    EXPECT_TRUE(HeightsOf({{0, 0}, 16, 1, 0}).IsOrdinary());
    EXPECT_FALSE(HeightsOf({{0, 0}, 17, 1, 0}).IsOrdinary()) << "too flat";
    EXPECT_FALSE(HeightsOf({{0, 0}, 1, 17, 0}).IsOrdinary()) << "too flat upright";
    EXPECT_FALSE(HeightsOf({{0, 0}, 1, 0.2, 0}).IsOrdinary()) << "too small";
    EXPECT_FALSE(HeightsOf({{0, 0}, 1.1e4, 1e4, 0}).IsOrdinary()) << "too large";
    EXPECT_FALSE(HeightsOf({{1.1e4, 0}, 2, 1, 0}).IsOrdinary()) << "too far out";
    EXPECT_FALSE(HeightsOf({{0, -1.1e4}, 2, 1, 0}).IsOrdinary()) << "too far out";
    EXPECT_FALSE(HeightsOf({{0, 0}, 2, 1, 9}).IsOrdinary()) << "turned too often";
    EXPECT_FALSE(HeightsOf({{0, 0}, 2, InvalidDouble, 0}).IsOrdinary()) << "no number";
}
