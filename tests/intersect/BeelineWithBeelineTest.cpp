#include "math/AnalyticKernel.h"
#include "math/Intersect.h"
#include "support/Curves.h"

#include <gp_Dir2d.hxx>

using namespace math;
using namespace math::test;

namespace
{

/// The vertical line through (x, 0), told by its angle.
Beeline VerticalAt(double x)
{
    return {{x, 0}, HalfPi};
}

/// Ordinate at which a beeline through `point` crosses the vertical at `x`.
double OrdinateAt(double x, const DPOINT2& point, double angle)
{
    DPOINT2 found = Untouched();
    EXPECT_EQ(Intersect_BeelineWithBeeline(point, angle, {x, 0}, HalfPi, &found), 1);
    return found.y;
}

/// Abscissa at which a beeline through `point` crosses the horizontal at `y`.
double AbscissaAt(double y, const DPOINT2& point, double angle)
{
    DPOINT2 found = Untouched();
    EXPECT_EQ(Intersect_BeelineWithBeeline(point, angle, {0, y}, 0, &found), 1);
    return found.x;
}

/// A beeline as the line that the kernel cuts: with the second point rounded before the direction is taken.
gp_Lin2d LineOf(const Beeline& beeline)
{
    double angle = beeline.angle;
    while (angle < 0)
    {
        angle += Pi;
    }
    while (angle >= Pi)
    {
        angle -= Pi;
    }
    const bool vertical = std::abs(angle - HalfPi) < 1e-9;
    const double x = vertical ? beeline.point.x : beeline.point.x + 1.0;
    const double y = vertical ? beeline.point.y + 1.0 : beeline.point.y + std::tan(angle);
    return {gp_Pnt2d(beeline.point.x, beeline.point.y), gp_Dir2d(x - beeline.point.x, y - beeline.point.y)};
}

} // namespace

TEST(IntersectBeelineWithBeeline, CrossInOnePoint)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, QuarterPi}, Beeline{{2, 0}, Pi - QuarterPi}), 1, {At(1, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Beeline{{3, 7}, HalfPi}, Beeline{{0, 2}, 0}), 1, {At(3, 2)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 2}, 0}, Beeline{{3, 7}, HalfPi}), 1, {At(3, 2)}, 0));
}

TEST(IntersectBeelineWithBeeline, HaveNoSide)
{
    // The crossing lies behind both points if the angles are read as rays.
    EXPECT_TRUE(Gives(Meeting(Beeline{{5, 5}, QuarterPi}, Beeline{{-3, 3}, Pi - QuarterPi}), 1, {At(0, 0)}, 1e-14));
}

TEST(IntersectBeelineWithBeeline, ParallelOnesMeetNowhereOrEverywhere)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{0, 1}, 0}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{9, 0}, 0}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(1), VerticalAt(2)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(1), Beeline{{1, 8}, HalfPi}), -1, {}));
}

TEST(IntersectBeelineWithBeeline, OppositeDirectionsAreOneDirection)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{4, 0}, Pi}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{4, 1}, Pi}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0.5}, Beeline{{0, 0}, 0.5 - 3 * Pi}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0.5}, Beeline{{1, 0}, 0.5 + 4 * Pi}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{1, 1}, -HalfPi}, Beeline{{1, 5}, 3 * HalfPi}), -1, {}));
}

TEST(IntersectBeelineWithBeeline, WholeHalfTurnsFoldToTheHorizontalExactly)
{
    // tan(π) is not 0 in doubles: unfolded, the ordinates would differ from 3 in the last places.
    const double far = 1e6;
    for (const double angle : {0.0, Pi, 2 * Pi, -Pi, -2 * Pi, -1e-20})
    {
        EXPECT_EQ(OrdinateAt(far, {0, 3}, angle), 3) << angle;
    }
}

TEST(IntersectBeelineWithBeeline, AnglesJustBelowAHalfTurnAreNotFolded)
{
    EXPECT_TRUE(Near(OrdinateAt(1e6, {0, 0}, Pi - 1e-6), -1, 1e-9)); // falls by 1e-6 a unit
    EXPECT_TRUE(Near(OrdinateAt(1e6, {0, 0}, Pi + 1e-6), 1, 1e-9));
    EXPECT_TRUE(Near(OrdinateAt(1e6, {0, 0}, -1e-6), -1, 1e-9));
}

TEST(IntersectBeelineWithBeeline, VerticalIsTakenWithinTheToleranceAndNoFurther)
{
    double below = HalfPi - 1e-9;
    while (HalfPi - below < 1e-9)
    {
        below = Previous(below);
    }
    double above = HalfPi + 1e-9;
    while (above - HalfPi < 1e-9)
    {
        above = Next(above);
    }
    for (const double turns : {0.0, Pi})
    {
        EXPECT_EQ(AbscissaAt(1e9, {0, 0}, HalfPi - 0.5e-9 + turns), 0);
        EXPECT_EQ(AbscissaAt(1e9, {0, 0}, HalfPi + 0.5e-9 + turns), 0);
    }
    EXPECT_EQ(AbscissaAt(1e9, {0, 0}, Next(below)), 0);
    EXPECT_EQ(AbscissaAt(1e9, {0, 0}, Previous(above)), 0);
    // One step further the slope is ±1e9, so that a height of 1e9 is reached one unit beside the point.
    EXPECT_TRUE(Near(AbscissaAt(1e9, {0, 0}, below), 1, 1e-6));
    EXPECT_TRUE(Near(AbscissaAt(1e9, {0, 0}, above), -1, 1e-6));
}

TEST(IntersectBeelineWithBeeline, DirectionIsTakenBetweenRoundedPoints)
{
    const double wide = 0x1p53; // neighbours are 2 apart: adding 1 changes nothing
    EXPECT_EQ(AbscissaAt(5, {wide, 0}, 0.5), wide) << "nothing is left of the step in x: a vertical";
    EXPECT_EQ(OrdinateAt(8, {0, wide}, 0.5), wide) << "nothing is left of the step in y: a horizontal";
    EXPECT_TRUE(Gives(Meeting(Beeline{{wide, 0}, 0}, Beeline{{0, 0}, 1}), 0, {})) << "no direction at all";
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 1}, Beeline{{wide, 0}, 0}), 0, {})) << "no direction at all";
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, wide}, HalfPi}, Beeline{{0, 0}, 1}), 0, {})) << "no direction at all";
}

TEST(IntersectBeelineWithBeeline, ParallelAndIdenticalHoldToTheToleranceOfTheKernel)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{0, 1}, 0.5e-9}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{0, 0}, 0.5e-9}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{7, 0.5e-9}, 0}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{7, 2e-9}, 0}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, 0}, Beeline{{0, 1}, Pi - 1e-6}), 1, {At(1e6, 0)}, 1e-3));
}

TEST(IntersectBeelineWithBeeline, GiveThePointOfTheKernelWithTheFirstBeelineFirst)
{
    Random random(111);
    for (int i = 0; i < 2000; ++i)
    {
        const Beeline a{random.Point(9), random.Number(-10, 10)};
        const Beeline b{random.Point(9), random.Coin() ? HalfPi : random.Number(-10, 10)};
        const IntAna2d_AnaIntersection kernel(LineOf(a), LineOf(b));
        const DPOINT2 expected = At(kernel.Point(1).X(), kernel.Point(1).Y());
        DPOINT2 point = Untouched();
        ASSERT_EQ(Intersect_BeelineWithBeeline(a.point, a.angle, b.point, b.angle, &point), 1);
        ASSERT_TRUE(SameBits(point, expected)) << a.angle << ", " << b.angle;
    }
}

TEST(IntersectBeelineWithBeeline, ThePointLiesOnBothAndSwappingFindsItAgain)
{
    Random random(112);
    for (int i = 0; i < 2000; ++i)
    {
        const Beeline a{random.Point(9), random.Number(-20, 20)};
        const Beeline b{random.Point(9), random.Number(-20, 20)};
        const DPOINT2 u = At(std::cos(a.angle), std::sin(a.angle));
        const DPOINT2 v = At(std::cos(b.angle), std::sin(b.angle));
        if (std::abs(CrossOf(u, v)) < 0.01)
        {
            continue; // nearly parallel: ill-conditioned
        }
        // Cramer's rule: a.point + t u lies on b.
        const double t = CrossOf(Minus(b.point, a.point), v) / CrossOf(u, v);
        const DPOINT2 expected = At(a.point.x + t * u.x, a.point.y + t * u.y);
        ASSERT_TRUE(Gives(Meeting(a, b), 1, {expected}, 1e-9));
        ASSERT_TRUE(Gives(Meeting(b, a), 1, {expected}, 1e-9));
    }
}

TEST(IntersectBeelineWithBeeline, AnAngleThatIsNoneNeitherRaisesNorHangs)
{
    const int code = Intersect_BeelineWithBeeline({0, 0}, InvalidDouble, {1, 1}, 2, nullptr);
    EXPECT_TRUE(code == -1 || code == 0 || code == 1) << code;
}

TEST(IntersectBeelineWithBeeline, AnOutputMayBeAnInput)
{
    DPOINT2 p = At(3, 7);
    EXPECT_EQ(Intersect_BeelineWithBeeline(p, HalfPi, {0, 2}, 0, &p), 1);
    EXPECT_EQ(p, At(3, 2));
    DPOINT2 q = At(0, 2);
    EXPECT_EQ(Intersect_BeelineWithBeeline({3, 7}, HalfPi, q, 0, &q), 1);
    EXPECT_EQ(q, At(3, 2));
    std::vector<DPOINT2> points = {At(3, 7), At(0, 2)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_BeelineWithBeeline(points[0], HalfPi, points[1], 0, points, 0), 1);
    EXPECT_EQ(points, (std::vector<DPOINT2>{At(3, 7), At(0, 2), At(3, 2)}));
}
