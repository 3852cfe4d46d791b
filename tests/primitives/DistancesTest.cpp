#include "support/Support.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <cmath>

using namespace math;
using namespace math::test;

namespace
{

/// The angle whose cosine is 0.6 and whose sine is 0.8, up to rounding.
const double ThreeFourFive = std::atan2(4.0, 3.0);

/// The quarter arc about the origin from (1, 0) counter-clockwise to (0, 1).
double DistanceToQuarterArc(const DPOINT2& point)
{
    return MinDistanceToArc(point, At(0, 0), At(1, 0), At(0, 1), 1.0, HalfPi);
}

} // namespace

TEST(DistanceOfPoints, IsEuclidean)
{
    EXPECT_EQ(D2GetDistance(At(1, 2), At(4, 6)), 5.0);
    EXPECT_EQ(D2GetDistance(At(4, 6), At(1, 2)), 5.0);
    EXPECT_EQ(D2GetDistance(At(-2, 3), At(3, -9)), 13.0);
    EXPECT_EQ(D2GetDistance(At(7, 2), At(7, 2)), 0.0);
    EXPECT_EQ(D2GetDistance(At(0, 0), At(1e-9, 0)), 1e-9);
    EXPECT_EQ(D2GetDistance(At(0.1, 0.2), At(0.4, 0.7)),
              std::sqrt((0.1 - 0.4) * (0.1 - 0.4) + (0.2 - 0.7) * (0.2 - 0.7)));
    EXPECT_TRUE(std::isnan(D2GetDistance(At(InvalidDouble, 0), At(1, 2))));
    EXPECT_TRUE(std::isnan(D2GetDistance(At(1, 2), At(0, InvalidDouble))));
}

TEST(DistanceToALine, IsPerpendicularToTheUnboundedLine)
{
    EXPECT_EQ(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(1, 0)), 4.0);
    EXPECT_EQ(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(0, 1)), 3.0);
    EXPECT_EQ(D2GetPointToLineDistance(At(5, 3), At(0, 0), At(1, 0)), 3.0);
    EXPECT_EQ(D2GetPointToLineDistance(At(-1000, -3), At(0, 0), At(1, 0)), 3.0);
    // Direction (3, 4)/5, offset (2, -1): |2 * 0.8 + 1 * 0.6|. On the other side the same.
    EXPECT_TRUE(Near(D2GetPointToLineDistance(At(3, 1), At(1, 2), At(4, 6)), 2.2, 1e-15));
    EXPECT_TRUE(Near(D2GetPointToLineDistance(At(-1, 3), At(1, 2), At(4, 6)), 2.2, 1e-15));
    EXPECT_TRUE(Near(D2GetPointToLineDistance(At(3, 1), At(4, 6), At(1, 2)), 2.2, 1e-15));
    EXPECT_TRUE(Near(D2GetPointToLineDistance(At(-5, -6), At(1, 2), At(4, 6)), 0.0, 1e-15));
}

TEST(DistanceToALine, DoesNotExistForALineOfNoLength)
{
    EXPECT_TRUE(std::isnan(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(0, 0))));
    EXPECT_TRUE(std::isnan(D2GetPointToLineDistance(At(3, 4), At(3, 4), At(3, 4))));
    EXPECT_TRUE(std::isnan(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(1e-200, 1e-200)))); // the squares are lost
    EXPECT_EQ(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(1e-12, 0)), 4.0);
    EXPECT_EQ(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(0, -1e-150)), 3.0);
}

TEST(DistanceToALine, OfNaNIsNaN)
{
    EXPECT_TRUE(std::isnan(D2GetPointToLineDistance(At(InvalidDouble, 4), At(0, 0), At(1, 1))));
    EXPECT_TRUE(std::isnan(D2GetPointToLineDistance(At(3, 4), At(0, InvalidDouble), At(1, 1))));
    EXPECT_TRUE(std::isnan(D2GetPointToLineDistance(At(3, 4), At(0, 0), At(InvalidDouble, 1))));
}

TEST(DistanceToABeeline, IsTheSameUprightAndUpsideDown)
{
    EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), HalfPi), 2.0);
    EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), ThreeHalvesPi), 2.0);
    EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(3.5, -7), HalfPi), 1.5);
    EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(3.5, -7), ThreeHalvesPi), 1.5);
    EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(1, 1), 0.0), 4.0);
    EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(2, 5), At(1, 1), Pi), 4.0, 1e-15));
    // Direction (3, 4)/5 and back, offset (2, -1) as above.
    EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(3, 1), At(1, 2), ThreeFourFive), 2.2, 1e-15));
    EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(3, 1), At(1, 2), ThreeFourFive + Pi), 2.2, 1e-14));
    // Direction (3, -4)/5: |2 * -0.8 + 1 * 0.6|.
    EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(3, 1), At(1, 2), -ThreeFourFive), 1.0, 1e-15));
}

TEST(DistanceToABeeline, IsExactlyUprightWithinTheToleranceOnly)
{
    // At (2, 5) a line that leans by δ is 2 + 5δ away where it leans to the left, 2 - 5δ where it leans to the right.
    const double inside = 0.999e-9;
    const double outside = 1.001e-9;
    for (const double upright : {HalfPi, ThreeHalvesPi})
    {
        SCOPED_TRACE(upright);
        EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), upright + inside), 2.0);
        EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), upright - inside), 2.0);
        EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), upright + outside), 2.0 + 5.005e-9, 1e-14));
        EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), upright - outside), 2.0 - 5.005e-9, 1e-14));
    }
}

TEST(DistanceToABeeline, DoesNotFoldTheAngle)
{
    // -π/2 and 5π/2 are upright too, but are taken by their tangents: 1.6e16 and 5.4e15 instead of none. At a height
    // of 1e16 that shows.
    EXPECT_EQ(D2GetPointToBeelineDistance(At(2, 1e16), At(0, 0), HalfPi), 2.0);
    const double slopeBelow = std::tan(-HalfPi);
    EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(2, 1e16), At(0, 0), -HalfPi), 2.0 - 1e16 / slopeBelow, 1e-12));
    const double slopeAbove = std::tan(HalfPi + TwoPi);
    EXPECT_TRUE(Near(D2GetPointToBeelineDistance(At(2, 1e16), At(0, 0), HalfPi + TwoPi),
                     std::abs(2.0 - 1e16 / slopeAbove), 1e-12));
}

TEST(DistanceToABeeline, TakesItsDirectionFromTwoRoundedPoints)
{
    // At 2^53 a step of 1 to the right is lost, so what was sloping is upright, and a level line has no direction.
    const double far = 0x1p53;
    EXPECT_EQ(D2GetPointToBeelineDistance(At(far + 8, 3), At(far, 0), QuarterPi), 8.0);
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(far + 8, 3), At(far, 0), 0.0)));
    EXPECT_EQ(D2GetPointToBeelineDistance(At(8, far + 6), At(0, far), QuarterPi), 6.0); // the step up is lost
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(8, far), At(0, far), HalfPi)));
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(8, -far), At(0, -far), ThreeHalvesPi)));
}

TEST(DistanceToABeeline, OfNaNIsNaN)
{
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), InvalidDouble)));
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(InvalidDouble, 5), At(0, 0), 0.5)));
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(2, 5), At(0, InvalidDouble), 0.5)));
    EXPECT_TRUE(std::isnan(D2GetPointToBeelineDistance(At(2, 5), At(0, 0), Infinity)));
}

TEST(DistanceToALine, AgreesWithTheBeelineAndWithThePerpendicularFoot)
{
    Random random(31);
    for (int i = 0; i < 1000; ++i)
    {
        const DPOINT2 point = random.Point(10.0);
        const DPOINT2 origin = random.Point(10.0);
        const double radian = random.Number(0.0, Pi);
        const DPOINT2 other = At(origin.x + 3.0 * std::cos(radian), origin.y + 3.0 * std::sin(radian));
        SCOPED_TRACE(::testing::PrintToString(point) + " and a line through " + ::testing::PrintToString(origin));

        const double distance = D2GetPointToLineDistance(point, origin, other);
        EXPECT_TRUE(Near(D2GetPointToBeelineDistance(point, origin, radian), distance, 1e-9));
        const DPOINT2 seen = CoorTransXYToUV(point, origin, radian);
        EXPECT_TRUE(Near(std::abs(seen.y), distance, 1e-12));

        DPOINT2 foot;
        D2GetProjectionPoint(point, LineD2D{origin.x, origin.y, other.x, other.y}, &foot);
        EXPECT_TRUE(Near(D2GetDistance(point, foot), distance, 1e-12));
        EXPECT_TRUE(Near(D2GetPointToLineDistance(foot, origin, other), 0.0, 1e-12));
        EXPECT_TRUE(Near(D2DotMultiply(gp_Vec2d(point.x - foot.x, point.y - foot.y),
                                       gp_Vec2d(other.x - origin.x, other.y - origin.y)),
                         0.0, 1e-10));
        EXPECT_TRUE(Near(
            D2GetProjectionDistance(point.x - origin.x, point.y - origin.y, other.x - origin.x, other.y - origin.y),
            seen.x, 1e-12));
        EXPECT_LE(distance, MinDistanceToLine(point, origin, other) + 1e-12);
    }
}

TEST(DistanceToAStretch, IsThatOfTheFootOrOfTheNearerEnd)
{
    EXPECT_EQ(MinDistanceToLine(At(5, 3), At(0, 0), At(1, 0)), 5.0);
    EXPECT_EQ(MinDistanceToLine(At(5, 3), At(1, 0), At(0, 0)), 5.0);
    EXPECT_EQ(MinDistanceToLine(At(-5, 12), At(0, 0), At(1, 0)), 13.0);
    EXPECT_EQ(MinDistanceToLine(At(0.25, 3), At(0, 0), At(1, 0)), 3.0);
    // Stretch from (1, 2) along (3, 4)/5 for a length of 5. The foot of (6, 2) lies 3 along it, at (2.8, 4.4).
    EXPECT_TRUE(Near(MinDistanceToLine(At(6, 2), At(1, 2), At(4, 6)), 4.0, 1e-15));
    EXPECT_TRUE(Near(MinDistanceToLine(At(9, 18), At(1, 2), At(4, 6)), 13.0, 1e-15));   // (5, 12) beyond the second end
    EXPECT_TRUE(Near(MinDistanceToLine(At(-11, -3), At(1, 2), At(4, 6)), 13.0, 1e-15)); // (-12, -5) before the first
}

TEST(DistanceToAStretch, WidensTheEndsByTheTolerance)
{
    // Before the widened end the point is its own foot, beyond it the end is measured.
    EXPECT_EQ(MinDistanceToLine(At(1 + 5e-10, 0), At(0, 0), At(1, 0)), 0.0);
    EXPECT_EQ(MinDistanceToLine(At(-5e-10, 0), At(0, 0), At(1, 0)), 0.0);
    EXPECT_EQ(MinDistanceToLine(At(-1e-9, 0), At(0, 0), At(1, 0)), 0.0);
    EXPECT_EQ(MinDistanceToLine(At(Previous(-1e-9), 0), At(0, 0), At(1, 0)), -Previous(-1e-9));
    EXPECT_TRUE(Near(MinDistanceToLine(At(1 + 2e-9, 0), At(0, 0), At(1, 0)), 2e-9, 1e-15));
}

TEST(DistanceToAStretch, OfNoLengthIsThatToItsEnd)
{
    EXPECT_EQ(MinDistanceToLine(At(4, 6), At(1, 2), At(1, 2)), 5.0);
    EXPECT_EQ(MinDistanceToLine(At(3, 4), At(0, 0), At(0, 0)), 5.0);
    EXPECT_EQ(MinDistanceToLine(At(1, 2), At(1, 2), At(1, 2)), 0.0);
    EXPECT_EQ(MinDistanceToLine(At(0, 0), At(3, 4), At(3, 4)), 5.0);
}

TEST(DistanceToAStretch, IsTheLeastOfManyOfItsPoints)
{
    Random random(32);
    for (int i = 0; i < 300; ++i)
    {
        const DPOINT2 point = random.Point(5.0);
        const DPOINT2 a = random.Point(5.0);
        const DPOINT2 b = random.Point(5.0);
        double least = Infinity;
        for (int step = 0; step <= 2000; ++step)
        {
            const double ratio = step / 2000.0;
            least = std::min(least, D2GetDistance(point, At(a.x + ratio * (b.x - a.x), a.y + ratio * (b.y - a.y))));
        }
        const double distance = MinDistanceToLine(point, a, b);
        EXPECT_LE(distance, least + 1e-12);
        EXPECT_GE(distance, least - D2GetDistance(a, b) / 4000.0);
        EXPECT_TRUE(Near(MinDistanceToLine(point, b, a), distance, 1e-12));
    }
}

TEST(DistanceToAnArc, IsRadialWhereTheSweepReachesAndToTheNearerEndElsewhere)
{
    EXPECT_TRUE(Near(DistanceToQuarterArc(At(2, 2)), 2.0 * std::sqrt(2.0) - 1.0, 1e-15));
    EXPECT_TRUE(Near(DistanceToQuarterArc(At(0.3, 0.4)), 0.5, 1e-15));
    EXPECT_TRUE(Near(DistanceToQuarterArc(At(-2, 0)), std::sqrt(5.0), 1e-15));
    EXPECT_TRUE(Near(DistanceToQuarterArc(At(0, -3)), std::sqrt(10.0), 1e-15));
    EXPECT_EQ(DistanceToQuarterArc(At(0, 0)), 1.0);

    // About (1, 2), radius 5, from (6, 2) counter-clockwise over a half turn to (-4, 2): up is on it, down is not.
    EXPECT_EQ(MinDistanceToArc(At(1, 14), At(1, 2), At(6, 2), At(-4, 2), 5.0, Pi), 7.0);
    EXPECT_EQ(MinDistanceToArc(At(1, -10), At(1, 2), At(6, 2), At(-4, 2), 5.0, Pi), 13.0);
    // Clockwise it is the other way round.
    EXPECT_EQ(MinDistanceToArc(At(1, 14), At(1, 2), At(6, 2), At(-4, 2), 5.0, -Pi), 13.0);
    EXPECT_EQ(MinDistanceToArc(At(1, -10), At(1, 2), At(6, 2), At(-4, 2), 5.0, -Pi), 7.0);
    EXPECT_EQ(MinDistanceToArc(At(1, 4), At(1, 2), At(6, 2), At(-4, 2), 5.0, Pi), 3.0);
    // The direction is counted from the first end: from (4, 6) a quarter clockwise ends in (5, -1).
    EXPECT_TRUE(Near(MinDistanceToArc(At(13, 2), At(1, 2), At(4, 6), At(5, -1), 5.0, -HalfPi), 7.0, 1e-14));
    EXPECT_TRUE(Near(MinDistanceToArc(At(4, 8), At(1, 2), At(4, 6), At(5, -1), 5.0, -HalfPi), 2.0, 1e-14));
}

TEST(DistanceToAnArc, DoesNotExistWhereAnEndIsNotOnTheCircle)
{
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(2, 2), At(0, 0), At(1, 0), At(0, 1), 2.0, HalfPi)));
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(2, 2), At(0, 0), At(2, 0), At(0, 1), 2.0, HalfPi)));
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(2, 2), At(0, 0), At(1, 0), At(0, 2), 2.0, HalfPi)));
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(0, 0), At(0, 0), At(1, 0), At(0, 1), -1.0, HalfPi)));

    // The centre as an end of a circle of radius 1e-9 is off by exactly the tolerance, which is too much. The point is
    // the centre, whose answer is the radius.
    const double below = Previous(1e-9);
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(0, 0), At(0, 0), At(0, 0), At(1e-9, 0), 1e-9, 1.0)));
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(0, 0), At(0, 0), At(1e-9, 0), At(0, 0), 1e-9, 1.0)));
    EXPECT_EQ(MinDistanceToArc(At(0, 0), At(0, 0), At(0, 0), At(1e-9, 0), below, 1.0), below);
    EXPECT_EQ(MinDistanceToArc(At(0, 0), At(0, 0), At(1e-9, 0), At(0, 0), below, 1.0), below);
}

TEST(DistanceToAnArc, IsTheRadiusForAPointThatCoincidesWithTheCentre)
{
    const double below = Previous(1e-9);
    EXPECT_EQ(DistanceToQuarterArc(At(below, below)), 1.0);
    EXPECT_EQ(DistanceToQuarterArc(At(-below, -below)), 1.0);
    // One coordinate at the tolerance: the direction counts, and (1e-9, below) lies in the sector.
    EXPECT_TRUE(Near(DistanceToQuarterArc(At(1e-9, below)), 1.0 - std::sqrt(2.0) * 1e-9, 1e-15));
    EXPECT_TRUE(Near(DistanceToQuarterArc(At(below, 1e-9)), 1.0 - std::sqrt(2.0) * 1e-9, 1e-15));
    EXPECT_EQ(MinDistanceToArc(At(3, 4), At(3, 4), At(5, 4), At(3, 6), 2.0, HalfPi), 2.0);
    EXPECT_NE(MinDistanceToArc(At(3, 4.25), At(3, 4), At(5, 4), At(3, 6), 2.0, HalfPi), 2.0);
    EXPECT_NE(MinDistanceToArc(At(3.25, 4), At(3, 4), At(5, 4), At(3, 6), 2.0, HalfPi), 2.0);
}

TEST(DistanceToAnArc, DoesNotExistWhereTheFirstEndHasNoDirection)
{
    const double small = 0.5e-9;
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(1, 1), At(0, 0), At(small, 0), At(0, small), small, HalfPi)));
    // The second end needs none.
    EXPECT_FALSE(std::isnan(MinDistanceToArc(At(1, 1), At(0, 0), At(1e-9, 0), At(0, small), 1e-9, HalfPi)));
}

TEST(DistanceToAnArc, ExcludesTheDirectionOfTheSweepsEndExactly)
{
    // The second end is put opposite on purpose, so that radial distance and distance to the ends differ: (0, 3) is 2
    // from the circle and √10 from both ends.
    const auto distance = [](double y, double sweep) {
        return MinDistanceToArc(At(0, y), At(0, 0), At(1, 0), At(-1, 0), 1.0, sweep);
    };
    EXPECT_EQ(distance(3.0, HalfPi), std::sqrt(10.0));
    EXPECT_EQ(distance(3.0, Next(HalfPi)), 2.0);
    EXPECT_EQ(distance(-3.0, -HalfPi), std::sqrt(10.0));
    EXPECT_EQ(distance(-3.0, Previous(-HalfPi)), 2.0);
    EXPECT_EQ(distance(3.0, -ThreeHalvesPi), std::sqrt(10.0));
    EXPECT_EQ(distance(3.0, -4.8), 2.0);
    EXPECT_EQ(distance(3.0, 0.0), std::sqrt(10.0));
    EXPECT_EQ(distance(-3.0, 0.0), std::sqrt(10.0));
    EXPECT_EQ(distance(-3.0, -TwoPi), 2.0);
    EXPECT_EQ(distance(-3.0, TwoPi), 2.0);
    EXPECT_EQ(distance(3.0, 1e-12), std::sqrt(10.0));
}

TEST(DistanceToAnArc, MeasuresTheGivenEndsWhateverTheSweep)
{
    // The sweep of a quarter ends in (0, 1), the second end is (0, -1): each is used where its step comes.
    EXPECT_EQ(MinDistanceToArc(At(0, -3), At(0, 0), At(1, 0), At(0, -1), 1.0, HalfPi), 2.0);
    EXPECT_TRUE(Near(MinDistanceToArc(At(-3, 0), At(0, 0), At(1, 0), At(0, 1), 1.0, -Pi), std::sqrt(10.0), 1e-15));
    EXPECT_TRUE(Near(MinDistanceToArc(At(3, 4), At(0, 0), At(1, 0), At(0, -1), 1.0, HalfPi), 4.0, 1e-15));
}

TEST(DistanceToAnArc, WithNaNGivesNoNumber)
{
    EXPECT_TRUE(std::isnan(DistanceToQuarterArc(At(InvalidDouble, 0))));
    EXPECT_TRUE(std::isnan(DistanceToQuarterArc(At(0, InvalidDouble))));
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(2, 2), At(0, InvalidDouble), At(1, 0), At(0, 1), 1.0, HalfPi)));
    EXPECT_TRUE(std::isnan(MinDistanceToArc(At(2, 2), At(0, 0), At(InvalidDouble, 0), At(0, 1), 1.0, HalfPi)));
}

TEST(DistanceToAnArc, IsTheLeastOfManyOfItsPoints)
{
    Random random(33);
    for (int i = 0; i < 400; ++i)
    {
        const DPOINT2 centre = random.Point(3.0);
        const double radius = random.Number(0.5, 4.0);
        const double start = random.Radian();
        const double sweep = random.Number(-6.2, 6.2);
        const DPOINT2 point = random.Point(6.0);
        double least = Infinity;
        for (int step = 0; step <= 2000; ++step)
        {
            least =
                std::min(least, D2GetDistance(point, GetPointInCircle(centre, radius, start + sweep * step / 2000.0)));
        }
        const double distance = MinDistanceToArc(point, centre, GetPointInCircle(centre, radius, start),
                                                 GetPointInCircle(centre, radius, start + sweep), radius, sweep);
        SCOPED_TRACE(::testing::PrintToString(point) + " about " + ::testing::PrintToString(centre));
        EXPECT_LE(distance, least + 1e-12);
        EXPECT_GE(distance, least - radius * std::abs(sweep) / 4000.0);
    }
}

TEST(ProjectionDistance, IsSignedAlongTheSecondVector)
{
    EXPECT_EQ(D2GetProjectionDistance(1.0, 2.0, 3.0, 4.0), 11.0 / 5.0);
    EXPECT_EQ(D2GetProjectionDistance(gp_Vec2d(1.0, 2.0), gp_Vec2d(3.0, 4.0)), 11.0 / 5.0);
    EXPECT_EQ(D2GetProjectionDistance(-1.0, -2.0, 3.0, 4.0), -11.0 / 5.0);
    EXPECT_EQ(D2GetProjectionDistance(gp_Vec2d(1.0, 2.0), gp_Vec2d(-3.0, -4.0)), -11.0 / 5.0);
    EXPECT_EQ(D2GetProjectionDistance(2.0, -1.0, 5.0, 12.0), -2.0 / 13.0);
    EXPECT_EQ(D2GetProjectionDistance(gp_Vec2d(2.0, -1.0), gp_Vec2d(5.0, 12.0)), -2.0 / 13.0);
    EXPECT_EQ(D2GetProjectionDistance(4.0, -3.0, 3.0, 4.0), 0.0);
}

TEST(ProjectionDistance, OnAVectorOfNormZeroIsZero)
{
    EXPECT_EQ(D2GetProjectionDistance(3.0, 4.0, 0.0, 0.0), 0.0);
    EXPECT_EQ(D2GetProjectionDistance(gp_Vec2d(3.0, 4.0), gp_Vec2d(0.0, 0.0)), 0.0);
    EXPECT_EQ(D2GetProjectionDistance(3.0, 4.0, 1e-200, 0.0), 0.0); // the square is lost
    EXPECT_EQ(D2GetProjectionDistance(gp_Vec2d(3.0, 4.0), gp_Vec2d(0.0, -1e-200)), 0.0);
    // The test is exact: a short vector has a direction.
    EXPECT_EQ(D2GetProjectionDistance(3.0, 4.0, 1e-12, 0.0), 3.0);
    EXPECT_EQ(D2GetProjectionDistance(gp_Vec2d(3.0, 4.0), gp_Vec2d(0.0, -1e-12)), -4.0);
}

TEST(ProjectionPoint, IsTheFootOnTheUnboundedLine)
{
    DPOINT2 foot = Untouched();
    D2GetProjectionPoint(At(6, 2), LineD2D{1, 2, 4, 6}, &foot); // 3 along (3, 4)/5
    EXPECT_TRUE(Near(foot, At(2.8, 4.4), 1e-15));
    D2GetProjectionPoint(At(9, 18), LineD2D{1, 2, 4, 6}, &foot); // (8, 16): 17.6 along, beyond the end
    EXPECT_TRUE(Near(foot, At(11.56, 16.08), 1e-14));
    D2GetProjectionPoint(At(-3, -3), LineD2D{1, 2, 4, 6}, &foot); // (-4, -5): 6.4 before the start
    EXPECT_TRUE(Near(foot, At(-2.84, -3.12), 1e-15));
    D2GetProjectionPoint(At(6, 2), LineD2D{4, 6, 1, 2}, &foot);
    EXPECT_TRUE(Near(foot, At(2.8, 4.4), 1e-15));
    D2GetProjectionPoint(At(7, -3), LineD2D{2, 5, 9, 5}, &foot);
    EXPECT_EQ(foot, At(7, 5));
    D2GetProjectionPoint(At(7, -3), LineD2D{2, 5, 2, 9}, &foot);
    EXPECT_EQ(foot, At(2, -3));
    D2GetProjectionPoint(At(7, -3), LineD2D{0, 0, 1e-12, 0}, &foot);
    EXPECT_EQ(foot, At(7, 0));
}

TEST(ProjectionPoint, IsNotWrittenForALineOfNoLength)
{
    DPOINT2 foot = Untouched();
    D2GetProjectionPoint(At(6, 2), LineD2D{1, 2, 1, 2}, &foot);
    EXPECT_TRUE(SameBits(foot, Untouched()));
    D2GetProjectionPoint(At(6, 2), LineD2D{0, 0, 1e-200, -1e-200}, &foot); // the squares are lost
    EXPECT_TRUE(SameBits(foot, Untouched()));
}

TEST(ProjectionPoint, MayReplaceThePoint)
{
    DPOINT2 point = At(6, 2);
    D2GetProjectionPoint(point, LineD2D{1, 2, 4, 6}, &point);
    EXPECT_TRUE(Near(point, At(2.8, 4.4), 1e-15));
}

TEST(ProductsOfVectors, FollowTheirDefinition)
{
    EXPECT_EQ(D2CrossMultiply(gp_Vec2d(2.0, 3.0), gp_Vec2d(5.0, 11.0)), 7.0);
    EXPECT_EQ(D2CrossMultiply(gp_Vec2d(5.0, 11.0), gp_Vec2d(2.0, 3.0)), -7.0);
    EXPECT_EQ(D2CrossMultiply(gp_Vec2d(1.0, 0.0), gp_Vec2d(0.0, 1.0)), 1.0); // counter-clockwise
    EXPECT_EQ(D2DotMultiply(gp_Vec2d(2.0, 3.0), gp_Vec2d(5.0, 11.0)), 43.0);
    EXPECT_EQ(D2DotMultiply(gp_Vec2d(2.0, -3.0), gp_Vec2d(5.0, 11.0)), -23.0);
}

TEST(TurnedFrame, SeesAPointAlongItsOwnAxes)
{
    EXPECT_TRUE(Near(CoorTransXYToUV(At(1, 1), At(1, 0), HalfPi), At(1, 0), 1e-15));
    // Offset (5, 1) in the frame along (3, 4)/5: u = 3 + 0.8, v = 0.6 - 4.
    EXPECT_TRUE(Near(CoorTransXYToUV(At(6, 3), At(1, 2), ThreeFourFive), At(3.8, -3.4), 1e-14));
    EXPECT_TRUE(Near(CoorTransUVToXY(At(3.8, -3.4), At(1, 2), ThreeFourFive), At(6, 3), 1e-14));
    EXPECT_EQ(CoorTransXYToUV(At(6, 3), At(1, 2), 0.0), At(5, 1));
    EXPECT_EQ(CoorTransUVToXY(At(6, 3), At(1, 2), 0.0), At(7, 5));
    EXPECT_TRUE(Near(CoorTransUVToXY(At(1, 0), At(1, 0), HalfPi), At(1, 1), 1e-15));
}

TEST(TurnedFrame, LeadsThereAndBack)
{
    Random random(34);
    for (int i = 0; i < 1000; ++i)
    {
        const DPOINT2 point = random.Point(10.0);
        const DPOINT2 origin = random.Point(10.0);
        const double radian = random.Number(-10.0, 10.0);
        EXPECT_TRUE(Near(CoorTransUVToXY(CoorTransXYToUV(point, origin, radian), origin, radian), point, 1e-13));
        EXPECT_TRUE(Near(CoorTransXYToUV(CoorTransUVToXY(point, origin, radian), origin, radian), point, 1e-13));
        EXPECT_TRUE(Near(CoorTransUVToXY(At(0, 0), origin, radian), origin, 0.0));
    }
}

TEST(TurnedFrame, TakesTheOriginAsItsOwnPoint)
{
    DPOINT2 point = At(6, 3);
    point = CoorTransXYToUV(point, point, 0.75);
    EXPECT_EQ(point, At(0, 0));
}
