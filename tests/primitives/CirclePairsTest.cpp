#include "primitives/KernelReadings.h"
#include "support/Failures.h"
#include "support/Support.h"

#include "math/AnalyticKernel.h"

#include <algorithm>
#include <cmath>
#include <string>

using namespace math;
using namespace math::test;

namespace
{

/// A circle whose x axis runs in the direction `radian`.
gp_Circ2d Circle(const DPOINT2& centre, double radius, double radian = 0.0, bool direct = true)
{
    return gp_Circ2d(gp_Ax2d(gp_Pnt2d(centre.x, centre.y), gp_Dir2d(std::cos(radian), std::sin(radian))), radius,
                     direct);
}

/// Two circles of these radii, the second centre at (distance, 0) from the first.
IntAna2d_AnaIntersection Side(double firstRadius, double secondRadius, double distance)
{
    return IntAna2d_AnaIntersection(Circle(At(0, 0), firstRadius), Circle(At(distance, 0), secondRadius));
}

} // namespace

TEST(IntersectionOfCircles, DoesNotExistForConcentricOnes)
{
    EXPECT_EQ(Outcome(Side(1, 1, 5e-10)), "parallel identical 0");
    EXPECT_EQ(Outcome(Side(1, 2, 5e-10)), "parallel empty 0");
    EXPECT_EQ(Outcome(Side(2, 1, 0)), "parallel empty 0");
    EXPECT_EQ(Outcome(Side(0, 0, 0)), "parallel identical 0");
    // Centres exactly the tolerance apart are one centre, one double further they are two.
    EXPECT_EQ(Outcome(Side(1, 1, 1e-9)), "parallel identical 0");
    EXPECT_EQ(Outcome(Side(1, 1, -1e-9)), "parallel identical 0");
    EXPECT_EQ(Outcome(Side(1, 1, Next(1e-9))), "2");
    EXPECT_EQ(Outcome(Side(1, 2, Next(1e-9))), "empty 0");
    // Radii exactly the tolerance apart are one radius.
    EXPECT_EQ(Outcome(Side(1e-9, 2e-9, 0)), "parallel identical 0");
    EXPECT_EQ(Outcome(Side(2e-9, 1e-9, 0)), "parallel identical 0");
    EXPECT_EQ(Outcome(Side(1e-9, Next(2e-9), 0)), "parallel empty 0");
    EXPECT_EQ(Outcome(Side(Next(2e-9), 1e-9, 0)), "parallel empty 0");
    EXPECT_EQ(Outcome(Side(3, 3 + 0x1p-30, 0)), "parallel identical 0");
    EXPECT_EQ(Outcome(Side(3, 3 + 0x1p-29, 0)), "parallel empty 0");
}

TEST(IntersectionOfCircles, TouchingOutsideIsOnePointBetweenTheCentres)
{
    const IntAna2d_AnaIntersection unitCircles = Side(1, 1, 2);
    EXPECT_EQ(Outcome(unitCircles), "1");
    EXPECT_EQ(PointOf(unitCircles, 1), At(1, 0));
    EXPECT_EQ(ParametersOf(unitCircles, 1), At(0, Pi));
    EXPECT_FALSE(unitCircles.Point(1).SecondIsImplicit());

    // Radii 2 and 3, centres 5 apart along (3, 4)/5 and along (3, -4)/5.
    const double direction = std::atan2(4.0, 3.0);
    const IntAna2d_AnaIntersection upwards(Circle(At(1, 2), 2), Circle(At(4, 6), 3));
    EXPECT_EQ(Outcome(upwards), "1");
    EXPECT_TRUE(Near(PointOf(upwards, 1), At(2.2, 3.6), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(upwards, 1), At(direction, direction + Pi), 1e-14));
    const IntAna2d_AnaIntersection downwards(Circle(At(1, 2), 2), Circle(At(4, -2), 3));
    EXPECT_EQ(Outcome(downwards), "1");
    EXPECT_TRUE(Near(PointOf(downwards, 1), At(2.2, 0.4), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(downwards, 1), At(TwoPi - direction, Pi - direction), 1e-14));
}

TEST(IntersectionOfCircles, TouchingOutsideLeavesTheSecondParameterUnfolded)
{
    // Straight to the left the direction is -π: on the first circle π, on the second 0.
    const IntAna2d_AnaIntersection left = Side(1, 1, -2);
    EXPECT_EQ(PointOf(left, 1), At(-1, 0));
    EXPECT_EQ(ParametersOf(left, 1), At(Pi, 0));
    // A hair above the left the direction is π, and the second parameter a full turn.
    const IntAna2d_AnaIntersection above(Circle(At(0, 0), 1), Circle(At(-2, 1e-17), 1));
    EXPECT_EQ(ParametersOf(above, 1), At(Pi, TwoPi));
}

TEST(IntersectionOfCircles, TouchesOutsideWithinOneRoundingUnitOfTheSum)
{
    // The unit of the sum 2 is 2^-51; doubles below 2 are half as far.
    EXPECT_EQ(Outcome(Side(1, 1, Stepped(2, 1))), "1");
    EXPECT_EQ(Outcome(Side(1, 1, Stepped(2, 2))), "empty 0");
    EXPECT_EQ(Outcome(Side(1, 1, Stepped(2, -1))), "1");
    EXPECT_EQ(Outcome(Side(1, 1, Stepped(2, -2))), "1");
    EXPECT_EQ(Outcome(Side(1, 1, Stepped(2, -3))), "2");
    EXPECT_EQ(Outcome(Side(1, 1, 3)), "empty 0");
    // The sum 5 of different radii, with doubles a unit apart on both sides.
    EXPECT_EQ(Outcome(Side(2, 3, Stepped(5, 1))), "1");
    EXPECT_EQ(Outcome(Side(2, 3, Stepped(5, 2))), "empty 0");
    EXPECT_EQ(Outcome(Side(2, 3, Stepped(5, -1))), "1");
    EXPECT_EQ(Outcome(Side(2, 3, Stepped(5, -2))), "2");
    EXPECT_EQ(PointOf(Side(1, 1, Stepped(2, 1)), 1), At(Stepped(2, 1) / 2, 0));
}

TEST(IntersectionOfCircles, CrossingStartsOnTheLeftOfTheWayToTheSecondCentre)
{
    const IntAna2d_AnaIntersection unitCircles = Side(1, 1, 1);
    const double height = std::sqrt(0.75);
    EXPECT_EQ(Outcome(unitCircles), "2");
    EXPECT_TRUE(Near(PointOf(unitCircles, 1), At(0.5, height), 1e-15));
    EXPECT_TRUE(Near(PointOf(unitCircles, 2), At(0.5, -height), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(unitCircles, 1), At(Pi / 3, TwoPi / 3), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(unitCircles, 2), At(TwoPi - Pi / 3, 2 * TwoPi / 3), 1e-14));
    const IntAna2d_AnaIntersection backwards = Side(1, 1, -1);
    EXPECT_TRUE(Near(PointOf(backwards, 1), At(-0.5, -height), 1e-15));
    EXPECT_TRUE(Near(PointOf(backwards, 2), At(-0.5, height), 1e-15));

    // Triangle 65, 75, 70 with the height 60 over the base at 25; the base runs from (1, 2) along (3, 4)/5.
    const IntAna2d_AnaIntersection slanting(Circle(At(1, 2), 65), Circle(At(43, 58), 75));
    EXPECT_EQ(Outcome(slanting), "2");
    EXPECT_TRUE(Near(PointOf(slanting, 1), At(-32, 58), 1e-13));
    EXPECT_TRUE(Near(PointOf(slanting, 2), At(64, -14), 1e-13));
    EXPECT_TRUE(Near(ParametersOf(slanting, 1), At(std::atan2(56, -33), Pi), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(slanting, 2), At(std::atan2(-16, 63) + TwoPi, std::atan2(-72, 21) + TwoPi), 1e-14));
}

TEST(IntersectionOfCircles, CrossingHasItsParametersFromTheFlatterInverseFunction)
{
    // Triangles with whole sides: radii and distance, foot and height over it. The cosine at each centre is below 0.707,
    // above it, or below -0.707, which changes the inverse function.
    const struct
    {
        double firstRadius, secondRadius, distance, foot, height;
    } rows[] = {
        {13, 15, 14, 5, 12},    // 0.38 and -0.6
        {13, 4, 15, 12.6, 3.2}, // 0.97 and -0.6
        {4, 13, 15, 2.4, 3.2},  // 0.6 and -0.97
        {20, 37, 19, -16, 12},  // -0.8 and -0.95
        {37, 20, 19, 35, 12},   // 0.95 and 0.8
        {13, 20, 11, -5, 12},   // -0.38 and -0.8
        {20, 13, 11, 16, 12},   // 0.8 and 0.38
        {25, 25, 14, 7, 24},    // 0.28 and -0.28
        {25, 25, 48, 24, 7},    // 0.96 and -0.96
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(Digits(row.firstRadius) + " and " + Digits(row.secondRadius));
        const IntAna2d_AnaIntersection intersection = Side(row.firstRadius, row.secondRadius, row.distance);
        ASSERT_EQ(Outcome(intersection), "2");
        EXPECT_TRUE(Near(PointOf(intersection, 1), At(row.foot, row.height), 1e-13));
        EXPECT_TRUE(Near(PointOf(intersection, 2), At(row.foot, -row.height), 1e-13));
        const double first = std::atan2(row.height, row.foot);
        const double second = std::atan2(row.height, row.foot - row.distance);
        EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(first, second), 1e-14));
        EXPECT_TRUE(Near(ParametersOf(intersection, 2), At(TwoPi - first, TwoPi - second), 1e-14));
    }
}

TEST(IntersectionOfCircles, ReplacesAFootThatRoundsBeyondTheFirstCircle)
{
    // Nearly touching outside: d² + R1² - R2² over 2d comes out above R1.
    const double r1 = 0.75625000000000009;
    const double r2 = 0.72659666548139679;
    const double d = 1.4828466654813965;
    const double foot = (d * d + r1 * r1 - r2 * r2) / (2.0 * d);
    ASSERT_LT(r1 * r1 - foot * foot, 0.0);
    ASSERT_GT(foot, 0.0);
    const IntAna2d_AnaIntersection ahead = Side(r1, r2, d);
    EXPECT_EQ(Outcome(ahead), "2");
    for (const int n : {1, 2})
    {
        EXPECT_TRUE(Near(PointOf(ahead, n), At(r1, 0), 1e-15));
        EXPECT_EQ(ParametersOf(ahead, n), At(0, Pi));
    }

    // Nearly touching inside, the first circle the smaller: it comes out below -R1.
    const double s1 = 4.4469539239090361;
    const double s2 = 4.4950683593750007;
    const double e = 0.048114435465964653;
    const double back = (e * e + s1 * s1 - s2 * s2) / (2.0 * e);
    ASSERT_LT(s1 * s1 - back * back, 0.0);
    ASSERT_LT(back, 0.0);
    const IntAna2d_AnaIntersection behind = Side(s1, s2, e);
    EXPECT_EQ(Outcome(behind), "2");
    for (const int n : {1, 2})
    {
        EXPECT_TRUE(Near(PointOf(behind, n), At(-s1, 0), 1e-14));
        EXPECT_EQ(ParametersOf(behind, n), At(Pi, Pi));
    }

    // With the way to the second centre at π a sum of parameters reaches a full turn, and folds to 0.
    const IntAna2d_AnaIntersection turned(Circle(At(0, 0), s1), Circle(At(-e, 1e-19), s2));
    EXPECT_EQ(Outcome(turned), "2");
    for (const int n : {1, 2})
    {
        EXPECT_TRUE(Near(PointOf(turned, n), At(s1, 0), 1e-14));
        EXPECT_EQ(ParametersOf(turned, n), At(0, 0));
    }
}

TEST(IntersectionOfCircles, PassesOnWhatTheInverseSineOfTheDependencyRaises)
{
    // The height over the foot is a rounding error of the large circle, six times the small radius. The standard
    // library's inverse sine would give NaN.
    const double large = 51.508159071592509;
    const double small = 1.496316498263268e-07;
    const double d = 51.508159177868102;
    const gp_Circ2d first = Circle(At(0, 0), large);
    const gp_Circ2d second = Circle(At(d, 0), small);
    EXPECT_TRUE(Raises("Standard_RangeError", "", [&] { IntAna2d_AnaIntersection intersection(first, second); }));

    // The record is then not done, whatever it held before.
    IntAna2d_AnaIntersection intersection = Side(1, 1, 1);
    EXPECT_TRUE(Raises("Standard_RangeError", "", [&] { intersection.Perform(first, second); }));
    EXPECT_FALSE(intersection.IsDone());
    EXPECT_TRUE(Raises("StdFail_NotDone", "", [&] { intersection.Point(1); }));
}

TEST(IntersectionOfCircles, TouchingInsideIsOnePointBeyondTheInnerCentre)
{
    const IntAna2d_AnaIntersection ahead = Side(3, 1, 2);
    EXPECT_EQ(Outcome(ahead), "1");
    EXPECT_EQ(PointOf(ahead, 1), At(3, 0));
    EXPECT_EQ(ParametersOf(ahead, 1), At(0, 0));
    // With the smaller one first the point lies behind it, seen from the second centre.
    const IntAna2d_AnaIntersection behind = Side(1, 3, 2);
    EXPECT_EQ(Outcome(behind), "1");
    EXPECT_EQ(PointOf(behind, 1), At(-1, 0));
    EXPECT_EQ(ParametersOf(behind, 1), At(Pi, Pi));

    // Centres 5 apart along (3, 4)/5, radii 7 and 2.
    const double direction = std::atan2(4.0, 3.0);
    const IntAna2d_AnaIntersection upwards(Circle(At(1, 2), 7), Circle(At(4, 6), 2));
    EXPECT_EQ(Outcome(upwards), "1");
    EXPECT_TRUE(Near(PointOf(upwards, 1), At(5.2, 7.6), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(upwards, 1), At(direction, direction), 1e-15));
    const IntAna2d_AnaIntersection swapped(Circle(At(4, 6), 2), Circle(At(1, 2), 7));
    EXPECT_TRUE(Near(PointOf(swapped, 1), At(5.2, 7.6), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(swapped, 1), At(direction, direction), 1e-15));
    // The other way down: the direction below 0 gets a full turn on both.
    const IntAna2d_AnaIntersection downwards(Circle(At(4, 6), 7), Circle(At(1, 2), 2));
    EXPECT_TRUE(Near(PointOf(downwards, 1), At(-0.2, 0.4), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(downwards, 1), At(direction + Pi, direction + Pi), 1e-14));
}

TEST(IntersectionOfCircles, TouchesInsideWithinOneRoundingUnitOfTheSum)
{
    for (const bool turned : {false, true})
    {
        // Radii 3 and 1: the unit of the sum 4 is four doubles below the difference 2 and two above it, and crossing
        // begins just there.
        const auto outcome = [&](double distance) {
            return Outcome(turned ? Side(1, 3, distance) : Side(3, 1, distance));
        };
        EXPECT_EQ(outcome(2), "1");
        EXPECT_EQ(outcome(Stepped(2, -4)), "1");
        EXPECT_EQ(outcome(Stepped(2, -5)), "empty 0");
        EXPECT_EQ(outcome(1.5), "empty 0");
        EXPECT_EQ(outcome(Stepped(2, 2)), "1");
        EXPECT_EQ(outcome(Stepped(2, 3)), "2");
    }
}

TEST(IntersectionOfCircles, NeitherTouchesNorCrossesInANarrowGap)
{
    for (const bool turned : {false, true})
    {
        // Radii 3 and 0.25: the unit of the sum 3.25 is one double at the difference 2.75, but crossing begins beyond
        // the unit of difference and distance together, 5.5, which is two.
        const auto outcome = [&](double distance) {
            return Outcome(turned ? Side(0.25, 3, distance) : Side(3, 0.25, distance));
        };
        EXPECT_EQ(outcome(Stepped(2.75, -2)), "empty 0");
        EXPECT_EQ(outcome(Stepped(2.75, -1)), "1");
        EXPECT_EQ(outcome(2.75), "1");
        EXPECT_EQ(outcome(Stepped(2.75, 1)), "1");
        EXPECT_EQ(outcome(Stepped(2.75, 2)), "empty 0");
        EXPECT_EQ(outcome(Stepped(2.75, 3)), "2");
    }
}

TEST(IntersectionOfCircles, DoesNotExistForOneFarInsideTheOther)
{
    EXPECT_EQ(Outcome(Side(5, 1, 1)), "empty 0");
    EXPECT_EQ(Outcome(Side(1, 5, 1)), "empty 0");
    EXPECT_EQ(Outcome(Side(1, 5, -3.5)), "empty 0");
    EXPECT_EQ(Outcome(Side(1, 5, 4.5)), "2");
    EXPECT_EQ(Outcome(Side(1, 5, 6.5)), "empty 0");
}

TEST(IntersectionOfCircles, OfRadiusZeroTouches)
{
    const IntAna2d_AnaIntersection point = Side(0, 5, 5);
    EXPECT_EQ(Outcome(point), "1");
    EXPECT_EQ(PointOf(point, 1), At(0, 0));
    EXPECT_EQ(ParametersOf(point, 1), At(0, Pi));
    EXPECT_EQ(Outcome(Side(0, 5, 4)), "empty 0");
    EXPECT_EQ(Outcome(Side(0, 0, 1)), "empty 0");
}

TEST(IntersectionOfCircles, OfNaNHasNoPointAndIsNoCoincidence)
{
    const gp_Circ2d plain = Circle(At(1, 2), 3);
    for (const gp_Circ2d& circle :
         {Circle(At(InvalidDouble, 2), 3), Circle(At(1, InvalidDouble), 3), Circle(At(5, 2), InvalidDouble)})
    {
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(circle, plain)), "empty 0");
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(plain, circle)), "empty 0");
    }
    // About one centre the radii are compared, and a NaN equals none.
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Circle(At(1, 2), InvalidDouble), plain)), "parallel empty 0");
}

TEST(IntersectionOfCircles, CountsParametersFromTheXAxesWhateverTheSense)
{
    // The x axes are turned by 1 and by -0.5, which is what the parameters lack.
    const double firstAxis = 1.0;
    const double secondAxis = -0.5;
    const double firstDirection = std::atan2(12.0, 5.0);
    const double secondDirection = std::atan2(12.0, -9.0);
    for (const bool direct : {true, false})
    {
        const IntAna2d_AnaIntersection crossing(Circle(At(0, 0), 13, firstAxis, direct),
                                                Circle(At(14, 0), 15, secondAxis, direct));
        EXPECT_TRUE(
            Near(ParametersOf(crossing, 1), At(firstDirection - firstAxis, secondDirection - secondAxis), 1e-14));
        EXPECT_TRUE(Near(ParametersOf(crossing, 2),
                         At(TwoPi - firstDirection - firstAxis, TwoPi - secondDirection - secondAxis), 1e-14));
        const IntAna2d_AnaIntersection touching(Circle(At(0, 0), 1, firstAxis, direct),
                                                Circle(At(2, 0), 1, secondAxis, direct));
        EXPECT_TRUE(Near(ParametersOf(touching, 1), At(TwoPi - firstAxis, Pi - secondAxis), 1e-14));
        const IntAna2d_AnaIntersection inside(Circle(At(0, 0), 3, firstAxis, direct),
                                              Circle(At(2, 0), 1, secondAxis, direct));
        EXPECT_TRUE(Near(ParametersOf(inside, 1), At(TwoPi - firstAxis, -secondAxis), 1e-14));
    }
}

TEST(IntersectionOfCircles, LiesOnBothAtItsParametersAndChangesOrderWithThem)
{
    Random random(73);
    int crossed = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const DPOINT2 centres[] = {random.Point(4.0), random.Point(4.0)};
        const double radii[] = {random.Number(0.3, 5.0), random.Number(0.3, 5.0)};
        const double axes[] = {random.Radian(), random.Radian()};
        const gp_Circ2d first = Circle(centres[0], radii[0], axes[0]);
        const gp_Circ2d second = Circle(centres[1], radii[1], axes[1]);
        const double distance = D2GetDistance(centres[0], centres[1]);
        const bool cross = distance < radii[0] + radii[1] && distance > std::abs(radii[0] - radii[1]);
        const IntAna2d_AnaIntersection intersection(first, second);
        const IntAna2d_AnaIntersection swapped(second, first);
        ASSERT_EQ(Outcome(intersection), cross ? "2" : "empty 0");
        ASSERT_EQ(Outcome(swapped), Outcome(intersection));
        for (int n = 1; n <= intersection.PointCount(); ++n)
        {
            const DPOINT2 point = PointOf(intersection, n);
            const DPOINT2 parameters = ParametersOf(intersection, n);
            // Near a tangency half of the digits are lost.
            const double slack = std::min({std::abs(radii[0] + radii[1] - distance),
                                           std::abs(distance - std::abs(radii[0] - radii[1])), distance});
            const double tolerance = 1e-12 / std::sqrt(std::min(1.0, slack)) / std::min(1.0, distance);
            EXPECT_TRUE(Near(GetPointInCircle(centres[0], radii[0], axes[0] + parameters.x), point, tolerance));
            EXPECT_TRUE(Near(GetPointInCircle(centres[1], radii[1], axes[1] + parameters.y), point, tolerance));
            EXPECT_TRUE(parameters.x >= 0.0 && parameters.x < TwoPi);
            EXPECT_TRUE(parameters.y >= 0.0 && parameters.y < TwoPi);
            EXPECT_TRUE(Near(PointOf(swapped, 3 - n), point, tolerance));
            const double side = (centres[1].x - centres[0].x) * (point.y - centres[0].y) -
                                (centres[1].y - centres[0].y) * (point.x - centres[0].x);
            EXPECT_EQ(side > 0.0, n == 1);
        }
        crossed += cross ? 1 : 0;
    }
    EXPECT_GT(crossed, 1000);
}
