#include "support/Support.h"

#include <algorithm>
#include <cmath>

using namespace math;
using namespace math::test;

namespace
{

const double BelowTolerance = Previous(1e-9);

/// The angle whose cosine is 0.6 and whose sine is 0.8, up to rounding.
const double ThreeFourFive = std::atan2(4.0, 3.0);

DPOINT2 OnUnitCircle(double radian)
{
    return At(std::cos(radian), std::sin(radian));
}

/// On the arc about the origin with radius 1.
bool InUnitArc(const DPOINT2& point, double start, double extent, bool ccw)
{
    return IsPointInArc(point, At(0, 0), 1.0, start, extent, ccw);
}

bool InUnitArc(const DPOINT2& point, double start, double extent, bool ccw, double tolerance)
{
    return IsPointInArc(point, At(0, 0), 1.0, start, extent, ccw, tolerance);
}

/// The answers of the three tests of a point against an ellipse, of which exactly one is yes.
std::string PlaceAgainstEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation)
{
    std::string place;
    place += IsPointInEllipse(point, centre, a, b, rotation) ? "on" : "";
    place += IsPointInsideEllipse(point, centre, a, b, rotation) ? "inside" : "";
    place += IsPointOutsideEllipse(point, centre, a, b, rotation) ? "outside" : "";
    return place;
}

/// The ellipse of semi-axes 5 and 2 about (1, 2), its own x axis along (3, 4)/5. Its own point (3, 1.6) is the point
/// (1 + 0.6 * 3 - 0.8 * 1.6, 2 + 0.8 * 3 + 0.6 * 1.6) = (1.52, 5.36).
std::string PlaceAgainstTurnedEllipse(const DPOINT2& point)
{
    return PlaceAgainstEllipse(point, At(1, 2), 5.0, 2.0, ThreeFourFive);
}

} // namespace

// Stretches

TEST(PointInLine, LiesOnTheBoundedStretch)
{
    EXPECT_TRUE(IsPointInLine(At(0.5, 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(0, 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(1, 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(0.5, 1e-10), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(0.5, 1e-8), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(1 + 5e-10, 0), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(1.5, 0), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(-0.5, 0), At(0, 0), At(1, 0)));
    // Along (3, 4)/5 from (1, 2): on it, beside it, before and behind it.
    EXPECT_TRUE(IsPointInLine(At(2.5, 4), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointInLine(At(4, 2.5), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointInLine(At(2.5, 4.1), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointInLine(At(-2, -2), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointInLine(At(7, 10), At(1, 2), At(4, 6)));
    // Falling, along (3, -4)/5.
    EXPECT_TRUE(IsPointInLine(At(2.5, 0), At(1, 2), At(4, -2)));
    EXPECT_FALSE(IsPointInLine(At(2.5, 4), At(1, 2), At(4, -2)));
    EXPECT_FALSE(IsPointInLine(At(-0.5, 4), At(1, 2), At(4, -2)));
}

TEST(PointInLine, HasAToleranceOfItsOwnWhereNoneIsGiven)
{
    EXPECT_TRUE(IsPointInLine(At(0.5, 1e-9), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(0.5, Next(1e-9)), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(0.5, -1e-9), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(0.5, -Next(1e-9)), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(-1e-9, 0), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(Previous(-1e-9), 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(0, 1e-9), At(0, -1), At(0, 0)));
    EXPECT_FALSE(IsPointInLine(At(0, Next(1e-9)), At(0, -1), At(0, 0)));
}

TEST(PointInLine, MayLieTheToleranceBesideTheStretch)
{
    EXPECT_TRUE(IsPointInLine(At(0.5, 0.4), At(0, 0), At(1, 0), 0.5));
    for (const double side : {1.0, -1.0})
    {
        EXPECT_TRUE(IsPointInLine(At(1, side * 0.5), At(0, 0), At(4, 0), 0.5));
        EXPECT_FALSE(IsPointInLine(At(1, side * Next(0.5)), At(0, 0), At(4, 0), 0.5));
        EXPECT_TRUE(IsPointInLine(At(side * 0.5, 1), At(0, 0), At(0, 4), 0.5));
        EXPECT_FALSE(IsPointInLine(At(side * Next(0.5), 1), At(0, 0), At(0, 4), 0.5));
    }
    // No tolerance at all: exactly on the line.
    EXPECT_TRUE(IsPointInLine(At(1, 0), At(0, 0), At(4, 0), 0.0));
    EXPECT_FALSE(IsPointInLine(At(1, 1e-300), At(0, 0), At(4, 0), 0.0));
}

TEST(PointInLine, MayLieTheToleranceBeyondAnEndOfALevelStretch)
{
    for (const bool turned : {false, true})
    {
        const DPOINT2 a = turned ? At(4, 1) : At(-3, 1);
        const DPOINT2 b = turned ? At(-3, 1) : At(4, 1);
        EXPECT_TRUE(IsPointInLine(At(4.5, 1), a, b, 0.5));
        EXPECT_FALSE(IsPointInLine(At(Next(4.5), 1), a, b, 0.5));
        EXPECT_TRUE(IsPointInLine(At(-3.5, 1), a, b, 0.5));
        EXPECT_FALSE(IsPointInLine(At(Previous(-3.5), 1), a, b, 0.5));
    }
}

TEST(PointInLine, MayLieTheToleranceBeyondAnEndOfAnUprightStretch)
{
    for (const bool turned : {false, true})
    {
        const DPOINT2 a = turned ? At(1, 4) : At(1, -3);
        const DPOINT2 b = turned ? At(1, -3) : At(1, 4);
        EXPECT_TRUE(IsPointInLine(At(1, 4.5), a, b, 0.5));
        EXPECT_FALSE(IsPointInLine(At(1, Next(4.5)), a, b, 0.5));
        EXPECT_TRUE(IsPointInLine(At(1, -3.5), a, b, 0.5));
        EXPECT_FALSE(IsPointInLine(At(1, Previous(-3.5)), a, b, 0.5));
    }
}

TEST(PointInLine, IsLimitedAlongTheLongerExtentAloneAndUprightForATie)
{
    // From the origin to (2, 2): y decides. Both points are 0.21 beside the diagonal.
    EXPECT_TRUE(IsPointInLine(At(2.6, 2.3), At(0, 0), At(2, 2), 0.5));
    EXPECT_FALSE(IsPointInLine(At(2.3, 2.6), At(0, 0), At(2, 2), 0.5));
    EXPECT_TRUE(IsPointInLine(At(-0.6, -0.3), At(0, 0), At(2, 2), 0.5));
    EXPECT_FALSE(IsPointInLine(At(-0.3, -0.6), At(0, 0), At(2, 2), 0.5));
    // A falling diagonal ties as well.
    EXPECT_TRUE(IsPointInLine(At(2.6, -2.3), At(0, 0), At(2, -2), 0.5));
    EXPECT_FALSE(IsPointInLine(At(2.3, -2.6), At(0, 0), At(2, -2), 0.5));
    // A little wider than high and x decides, a little higher than wide and y does.
    EXPECT_FALSE(IsPointInLine(At(2.6, 2.3), At(0, 0), At(Next(2.0), 2), 0.5));
    EXPECT_TRUE(IsPointInLine(At(2.3, 2.6), At(0, 0), At(Next(2.0), 2), 0.5));
    EXPECT_TRUE(IsPointInLine(At(2.6, 2.3), At(0, 0), At(2, Next(2.0)), 0.5));
    EXPECT_FALSE(IsPointInLine(At(2.3, 2.6), At(0, 0), At(2, Next(2.0)), 0.5));
    EXPECT_TRUE(IsPointInLine(At(-2.3, 2.6), At(0, 0), At(-Next(2.0), 2), 0.5));
}

TEST(PointInLine, IsLimitedAlongTheLongerExtentFarFromTheOriginToo)
{
    EXPECT_FALSE(IsPointInLine(At(100, 5), At(100, 0), At(100, 1)));
    EXPECT_FALSE(IsPointInLine(At(-100, 5), At(-100, 0), At(-100, 1)));
    EXPECT_FALSE(IsPointInLine(At(5, 100), At(0, 100), At(1, 100)));
    EXPECT_FALSE(IsPointInLine(At(5, -100), At(0, -100), At(1, -100)));
}

TEST(PointInLine, DoesNotExistOnAStretchOfNoLength)
{
    EXPECT_FALSE(IsPointInLine(At(0, 0), At(0, 0), At(0, 0)));
    EXPECT_FALSE(IsPointInLine(At(3, 4), At(3, 4), At(3, 4)));
    EXPECT_FALSE(IsPointInLine(At(3, 4), At(3, 4), At(3, 4), 100.0));
    EXPECT_FALSE(IsPointInLine(At(0, 0), At(0, 0), At(1e-200, 0))); // the square of the length is lost
    EXPECT_TRUE(IsPointInLine(At(0, 0), At(0, 0), At(1e-12, 0)));
}

TEST(PointInLine, IsNotDecidedByADistanceOfNaNButByTheLongerAxis)
{
    // Along x: a NaN among the abscissae holds no point, one among the ordinates leaves the range in x.
    EXPECT_FALSE(IsPointInLine(At(InvalidDouble, 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointInLine(At(0.5, InvalidDouble), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(1.5, InvalidDouble), At(0, 0), At(1, 0)));
    // Along y the other way round.
    EXPECT_TRUE(IsPointInLine(At(InvalidDouble, 0.5), At(0, 0), At(0, 1)));
    EXPECT_FALSE(IsPointInLine(At(0, InvalidDouble), At(0, 0), At(0, 1)));
    // An end of NaN is longer along no axis, which leaves y.
    EXPECT_TRUE(IsPointInLine(At(9, 0.5), At(InvalidDouble, 0), At(1, 1)));
    EXPECT_TRUE(IsPointInLine(At(9, 0.5), At(0, 0), At(InvalidDouble, 1)));
    EXPECT_FALSE(IsPointInLine(At(9, 1.5), At(0, 0), At(InvalidDouble, 1)));
    EXPECT_FALSE(IsPointInLine(At(0.5, 0), At(0, InvalidDouble), At(1, 0)));
    EXPECT_FALSE(IsPointInLine(At(0.5, 0), At(0, 0), At(1, 0), InvalidDouble));
}

TEST(PointInLine, DoesNotDependOnTheDirectionOfTheStretch)
{
    Random random(41);
    int inside = 0;
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 a = random.Point(3.0);
        const DPOINT2 b = random.Point(3.0);
        const double ratio = random.Number(-0.5, 1.5);
        const DPOINT2 point = At(a.x + ratio * (b.x - a.x), a.y + ratio * (b.y - a.y));
        EXPECT_EQ(IsPointInLine(point, a, b), IsPointInLine(point, b, a));
        EXPECT_EQ(IsPointInLine(point, a, b), ratio >= 0.0 && ratio <= 1.0);
        EXPECT_EQ(IsPointProjInLine(point, a, b), ratio >= 0.0 && ratio <= 1.0);
        const DPOINT2 beside = At(point.x - 1e-7 * (b.y - a.y), point.y + 1e-7 * (b.x - a.x));
        EXPECT_FALSE(IsPointInLine(beside, a, b));
        inside += IsPointInLine(point, a, b) ? 1 : 0;
    }
    EXPECT_GT(inside, 800);
}

TEST(FootInLine, FallsOnTheStretchWithItsEnds)
{
    EXPECT_TRUE(IsPointProjInLine(At(0.5, 100), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointProjInLine(At(2, 0), At(0, 0), At(1, 0)));
    EXPECT_FALSE(IsPointProjInLine(At(-1, 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointProjInLine(At(1, 5), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointProjInLine(At(0, -5), At(0, 0), At(1, 0)));
}

TEST(FootInLine, HasNoTolerance)
{
    // Perpendicular to (3, 4) at (1, 2) and at (4, 6), and one double beyond.
    EXPECT_TRUE(IsPointProjInLine(At(-3, 5), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointProjInLine(At(-3, Previous(5)), At(1, 2), At(4, 6)));
    EXPECT_TRUE(IsPointProjInLine(At(5, -1), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointProjInLine(At(Previous(5), -1), At(1, 2), At(4, 6)));
    EXPECT_TRUE(IsPointProjInLine(At(0, 9), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointProjInLine(At(0, Next(9)), At(1, 2), At(4, 6)));
    EXPECT_TRUE(IsPointProjInLine(At(8, 3), At(1, 2), At(4, 6)));
    EXPECT_FALSE(IsPointProjInLine(At(Next(8), 3), At(1, 2), At(4, 6)));
}

TEST(FootInLine, IsAnyPointForAStretchOfNoLength)
{
    EXPECT_TRUE(IsPointProjInLine(At(7, -3), At(1, 2), At(1, 2)));
    EXPECT_TRUE(IsPointProjInLine(At(1, 2), At(1, 2), At(1, 2)));
}

TEST(FootInLine, OfANaNLiesBeyondNeitherEnd)
{
    EXPECT_TRUE(IsPointProjInLine(At(InvalidDouble, 0), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointProjInLine(At(0.5, InvalidDouble), At(0, 0), At(1, 0)));
    EXPECT_TRUE(IsPointProjInLine(At(0.5, 0), At(0, InvalidDouble), At(1, 0)));
    EXPECT_TRUE(IsPointProjInLine(At(0.5, 0), At(0, 0), At(InvalidDouble, 0)));
}

// Arcs by angles

TEST(PointInArc, LiesOnTheArcThatRunsTheGivenWay)
{
    EXPECT_TRUE(InUnitArc(At(0, 1), 0.0, HalfPi, true));
    EXPECT_FALSE(InUnitArc(At(0, -1), 0.0, HalfPi, true));
    EXPECT_TRUE(InUnitArc(At(0, -1), 0.0, HalfPi, false));
    EXPECT_FALSE(InUnitArc(At(0, 1), 0.0, HalfPi, false));
    for (double radian = 0.05; radian < TwoPi; radian += 0.1)
    {
        SCOPED_TRACE(radian);
        EXPECT_EQ(InUnitArc(OnUnitCircle(radian), 1.0, 2.0, true), radian > 1.0 && radian < 3.0);
        EXPECT_EQ(InUnitArc(OnUnitCircle(radian), 3.0, 2.0, false), radian > 1.0 && radian < 3.0);
        // Over the seam, and from a start that is not folded.
        EXPECT_EQ(InUnitArc(OnUnitCircle(radian), 6.0, 2.0, true), radian > 6.0 || radian < 8.0 - TwoPi);
        EXPECT_EQ(InUnitArc(OnUnitCircle(radian), 1.0 - 3.0 * TwoPi, 2.0, true), radian > 1.0 && radian < 3.0);
        EXPECT_TRUE(InUnitArc(OnUnitCircle(radian), 1.0, TwoPi, true));
        EXPECT_TRUE(InUnitArc(OnUnitCircle(radian), 1.0, 7.0, false));
    }
    // About (1, 2) with radius 5 from the direction of (3, 4): the points above and left are within a quarter.
    EXPECT_TRUE(IsPointInArc(At(1, 7), At(1, 2), 5.0, ThreeFourFive, HalfPi, true));
    EXPECT_TRUE(IsPointInArc(At(-2, 6), At(1, 2), 5.0, ThreeFourFive, HalfPi, true));
    EXPECT_FALSE(IsPointInArc(At(-2, 6), At(1, 2), 5.0, ThreeFourFive, HalfPi, false));
    EXPECT_TRUE(IsPointInArc(At(6, 2), At(1, 2), 5.0, ThreeFourFive, HalfPi, false));
    EXPECT_FALSE(IsPointInArc(At(6, 2), At(1, 2), 5.0, ThreeFourFive, HalfPi, true));
}

TEST(PointInArc, NeedsAPositiveRadius)
{
    EXPECT_FALSE(IsPointInArc(At(0, 0), At(0, 0), 0.0, 0.0, TwoPi, true));
    EXPECT_FALSE(IsPointInArc(At(1, 0), At(0, 0), -1.0, 0.0, TwoPi, true));
    EXPECT_FALSE(IsPointInArc(At(-1, 0), At(0, 0), -1.0, 0.0, TwoPi, true));
    EXPECT_FALSE(IsPointInArc(At(0, 0), At(0, 0), -5e-324, 0.0, TwoPi, true));
    EXPECT_FALSE(IsPointInArc(At(0, 0), At(0, 0), 0.0, 0.0, TwoPi, true, 10.0));
    // The least radius will do: the centre coincides with the start.
    EXPECT_TRUE(IsPointInArc(At(0, 0), At(0, 0), 5e-324, 0.0, TwoPi, true));
}

TEST(PointInArc, ComparesItsDistanceWithTheRadiusAtTheFixedTolerance)
{
    EXPECT_TRUE(InUnitArc(At(0.6 * (1 + 9e-10), 0.8 * (1 + 9e-10)), 0.0, HalfPi, true));
    EXPECT_TRUE(InUnitArc(At(0.6 * (1 - 9e-10), 0.8 * (1 - 9e-10)), 0.0, HalfPi, true));
    EXPECT_FALSE(InUnitArc(At(0.6 * (1 + 1.1e-9), 0.8 * (1 + 1.1e-9)), 0.0, HalfPi, true));
    EXPECT_FALSE(InUnitArc(At(0.6 * (1 - 1.1e-9), 0.8 * (1 - 1.1e-9)), 0.0, HalfPi, true));
    // The given tolerance is an angle and does not help.
    EXPECT_FALSE(InUnitArc(At(0.66, 0.88), 0.0, HalfPi, true, 0.5));
    EXPECT_FALSE(InUnitArc(At(0.6 * (1 + 1.1e-9), 0.8 * (1 + 1.1e-9)), 0.0, HalfPi, true, 0.5));
    // Nor does a smaller one harm.
    EXPECT_TRUE(InUnitArc(At(0.6 * (1 + 9e-10), 0.8 * (1 + 9e-10)), 0.0, HalfPi, true, 0.0));

    // A difference of exactly the tolerance is too much: 2e-9 from the centre, radius 1e-9.
    EXPECT_FALSE(IsPointInArc(At(2e-9, 0), At(0, 0), 1e-9, 0.0, TwoPi, true));
    EXPECT_TRUE(IsPointInArc(At(Previous(2e-9), 0), At(0, 0), 1e-9, 0.0, TwoPi, true));
}

TEST(PointInArc, MayLieTheToleranceBeyondTheEndOnly)
{
    EXPECT_TRUE(InUnitArc(OnUnitCircle(HalfPi + 1e-10), 0.0, HalfPi, true));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(HalfPi + 1e-8), 0.0, HalfPi, true));
    EXPECT_TRUE(InUnitArc(OnUnitCircle(1.4), 0.0, 1.0, true, 0.5));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(1.6), 0.0, 1.0, true, 0.5));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(-0.4), 0.0, 1.0, true, 0.5));
    // Clockwise from 1 down to 0.
    EXPECT_TRUE(InUnitArc(OnUnitCircle(-0.4), 1.0, 1.0, false, 0.5));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(-0.6), 1.0, 1.0, false, 0.5));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(1.4), 1.0, 1.0, false, 0.5));
    // A negative tolerance shortens the arc, save for its end itself.
    EXPECT_FALSE(InUnitArc(OnUnitCircle(0.9), 0.0, 1.0, true, -0.25));
    EXPECT_TRUE(InUnitArc(OnUnitCircle(0.7), 0.0, 1.0, true, -0.25));
    EXPECT_TRUE(InUnitArc(OnUnitCircle(1.0), 0.0, 1.0, true, -0.25));
}

TEST(PointInArc, IncludesTheDirectionAtTheToleranceExactly)
{
    // Straight up is exactly π/2 from the start; the arc itself has no extent.
    EXPECT_TRUE(InUnitArc(At(0, 1), 0.0, 0.0, true, HalfPi));
    EXPECT_FALSE(InUnitArc(At(0, 1), 0.0, 0.0, true, Previous(HalfPi)));
    EXPECT_TRUE(InUnitArc(At(0, -1), 0.0, 0.0, false, HalfPi));
    EXPECT_FALSE(InUnitArc(At(0, -1), 0.0, 0.0, false, Previous(HalfPi)));
    EXPECT_TRUE(InUnitArc(At(0, 1), 0.0, 0.5, true, HalfPi - 0.5));
}

TEST(PointInArc, HasAToleranceOfItsOwnWhereNoneIsGiven)
{
    // On a large circle, where the ends do not catch it: at an angle of 1e-9 the end is 1 away.
    const double radius = 1e9;
    const auto in = [&](double radian) {
        const DPOINT2 point = At(radius * std::cos(radian), radius * std::sin(radian));
        const DPOINT2 centre = At(0, 0);
        // The distance from the centre is off by some rounding units of 1e9; the radius is taken from the point.
        return IsPointInArc(point, centre, D2GetDistance(point, centre), 0.0, 1.0, true);
    };
    EXPECT_TRUE(in(1.0 + 0.9e-9));
    EXPECT_FALSE(in(1.0 + 1.1e-9));
    EXPECT_FALSE(in(-0.9e-9));
}

TEST(PointInArc, MayCoincideWithItsStart)
{
    // Just before the start the angle is nearly a full turn; only the distance of less than 1e-9 helps.
    EXPECT_TRUE(InUnitArc(OnUnitCircle(-5e-10), 0.0, 1.0, true));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(-2e-9), 0.0, 1.0, true));
    EXPECT_TRUE(InUnitArc(At(1, -BelowTolerance), 0.0, 1.0, true));
    EXPECT_FALSE(InUnitArc(At(1, -1e-9), 0.0, 1.0, true));
    EXPECT_TRUE(InUnitArc(At(1, BelowTolerance), 0.0, 1.0, false));
    EXPECT_FALSE(InUnitArc(At(1, 1e-9), 0.0, 1.0, false));
    EXPECT_TRUE(InUnitArc(OnUnitCircle(2.0 - 5e-10), 2.0, 1.0, true));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(2.0 - 2e-9), 2.0, 1.0, true));
}

TEST(PointInArc, MayCoincideWithItsEnd)
{
    // Without an angular tolerance. From -1 over 1 to 0, and clockwise from 1 over 1 to 0.
    EXPECT_TRUE(InUnitArc(At(1, BelowTolerance), -1.0, 1.0, true, 0.0));
    EXPECT_FALSE(InUnitArc(At(1, 1e-9), -1.0, 1.0, true, 0.0));
    EXPECT_TRUE(InUnitArc(At(1, -BelowTolerance), 1.0, 1.0, false, 0.0));
    EXPECT_FALSE(InUnitArc(At(1, -1e-9), 1.0, 1.0, false, 0.0));
    EXPECT_TRUE(InUnitArc(At(1, BelowTolerance), -2.0, 2.0, true, 0.0));
    EXPECT_FALSE(InUnitArc(At(1, 1e-9), -2.0, 2.0, true, 0.0));
    EXPECT_TRUE(InUnitArc(At(1, -BelowTolerance), 0.5, 0.5, false, 0.0));
    EXPECT_TRUE(InUnitArc(OnUnitCircle(3.0 + 5e-10), 2.0, 1.0, true, 0.0));
    EXPECT_FALSE(InUnitArc(OnUnitCircle(3.0 + 2e-9), 2.0, 1.0, true, 0.0));
    // About (1, 2) with radius 5, down to the direction of (3, 4).
    EXPECT_TRUE(IsPointInArc(At(4 + 4e-10, 6 - 3e-10), At(1, 2), 5.0, ThreeFourFive + 1.0, 1.0, false, 0.0));
    EXPECT_FALSE(IsPointInArc(At(4 + 12e-10, 6 - 9e-10), At(1, 2), 5.0, ThreeFourFive + 1.0, 1.0, false, 0.0));
}

TEST(PointInArc, HoldsItsEndsFarFromTheOriginToo)
{
    // Out there the doubles lie 1.2e-7 apart, so an end of a small arc may be seen from the centre in a direction 6e-6
    // beside that of the arc. Across the far coordinate its distance is still the radius.
    const double radius = 0.01;
    for (int i = -7; i <= 7; ++i)
    {
        const double aside = 0.002 * i + 0.0001;
        for (const double turn : {0.0, HalfPi, Pi, ThreeHalvesPi})
        {
            SCOPED_TRACE(turn + aside);
            const bool across = turn == HalfPi || turn == ThreeHalvesPi;
            const DPOINT2 centre = across ? At(1e9, 0.25) : At(0.25, -1e9);
            const double end = turn + aside;
            const DPOINT2 point = GetPointInCircle(centre, radius, end);
            EXPECT_TRUE(IsPointInArc(point, centre, radius, end, 1.0, true));
            EXPECT_TRUE(IsPointInArc(point, centre, radius, end, 1.0, false));
            EXPECT_TRUE(IsPointInArc(point, centre, radius, end - 1.0, 1.0, true));
            EXPECT_TRUE(IsPointInArc(point, centre, radius, end + 1.0, 1.0, false));
        }
    }
}

TEST(PointInArc, MayLieOnAnArcOfAnySizeWhoseSquareIsANumber)
{
    for (const double radius : {1e-8, 1e-7, 1e-5, 1.0, 1e9, 1e99, 1e101, 1e150})
    {
        SCOPED_TRACE(radius);
        const DPOINT2 point = At(radius, 0);
        EXPECT_TRUE(IsPointInArc(point, At(0, 0), radius, -0.5, 1.0, true));
        EXPECT_FALSE(IsPointInArc(point, At(0, 0), radius, 0.5, 1.0, true));
        EXPECT_TRUE(IsPointInArc(point, At(0, 0), radius, 0.5, 1.0, false));
        EXPECT_FALSE(IsPointInArc(point, At(0, 0), radius, -0.5, 1.0, false));
    }
}

TEST(PointInArc, IsNeverNaN)
{
    EXPECT_FALSE(InUnitArc(At(InvalidDouble, 0), 0.0, TwoPi, true));
    EXPECT_FALSE(InUnitArc(At(1, InvalidDouble), 0.0, TwoPi, true));
    EXPECT_FALSE(InUnitArc(At(0, 1), InvalidDouble, TwoPi, true));
    EXPECT_FALSE(InUnitArc(At(0, 1), 0.0, InvalidDouble, true));
    EXPECT_FALSE(InUnitArc(At(0, 1), 0.0, 1.0, true, InvalidDouble));
    EXPECT_FALSE(IsPointInArc(At(0, 1), At(0, 0), InvalidDouble, 0.0, TwoPi, true));
    EXPECT_FALSE(IsPointInArc(At(0, 1), At(InvalidDouble, 0), 1.0, 0.0, TwoPi, true));
}

TEST(PointInArc, IsEveryPointBetweenTheEndsAndNoneOutside)
{
    Random random(42);
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 centre = random.Point(5.0);
        const double radius = random.Size(0.1, 10.0);
        const double start = random.Number(-7.0, 7.0);
        const double extent = random.Number(0.0, 6.2);
        const bool ccw = random.Coin();
        const double sign = ccw ? 1.0 : -1.0;
        const double within = extent * random.Number(0.0, 1.0);
        const double without = random.Number(extent + 1e-6, TwoPi - 1e-6);
        const DPOINT2 first = GetPointInCircle(centre, radius, start);
        const DPOINT2 last = GetPointInCircle(centre, radius, start + sign * extent);
        const DPOINT2 pointWithin = GetPointInCircle(centre, radius, start + sign * within);
        const DPOINT2 pointWithout = GetPointInCircle(centre, radius, start + sign * without);
        EXPECT_TRUE(IsPointInArc(pointWithin, centre, radius, start, extent, ccw));
        EXPECT_FALSE(IsPointInArc(pointWithout, centre, radius, start, extent, ccw));
        EXPECT_TRUE(IsPointInArc(first, centre, radius, start, extent, ccw));
        EXPECT_TRUE(IsPointInArc(last, centre, radius, start, extent, ccw));
        if (extent > 1e-3)
        {
            EXPECT_TRUE(IsPointInArc(pointWithin, centre, first, last, ccw));
            EXPECT_FALSE(IsPointInArc(pointWithout, centre, first, last, ccw));
            EXPECT_TRUE(IsPointInArc(pointWithin, centre, last, first, !ccw));
            EXPECT_FALSE(IsPointInArc(pointWithout, centre, last, first, !ccw));
        }
    }
}

// Arcs by points

TEST(PointInArcByPoints, MayLieOnTheShortOrTheLongWayRound)
{
    EXPECT_TRUE(IsPointInArc(OnUnitCircle(QuarterPi), At(0, 0), At(1, 0), At(0, 1), true));
    EXPECT_FALSE(IsPointInArc(At(-1, 0), At(0, 0), At(1, 0), At(0, 1), true));
    EXPECT_TRUE(IsPointInArc(At(-1, 0), At(0, 0), At(1, 0), At(0, 1), false));
    EXPECT_FALSE(IsPointInArc(OnUnitCircle(QuarterPi), At(0, 0), At(1, 0), At(0, 1), false));
    // About (1, 2) with radius 5, from (4, 6) to (-2, 6): above it the short way, below it the long way.
    EXPECT_TRUE(IsPointInArc(At(1, 7), At(1, 2), At(4, 6), At(-2, 6), true));
    EXPECT_FALSE(IsPointInArc(At(1, -3), At(1, 2), At(4, 6), At(-2, 6), true));
    EXPECT_FALSE(IsPointInArc(At(1, 7), At(1, 2), At(4, 6), At(-2, 6), false));
    EXPECT_TRUE(IsPointInArc(At(1, -3), At(1, 2), At(4, 6), At(-2, 6), false));
    EXPECT_FALSE(IsPointInArc(At(1, 7.1), At(1, 2), At(4, 6), At(-2, 6), true));
}

TEST(PointInArcByPoints, IncludesBothEnds)
{
    for (const bool ccw : {true, false})
    {
        EXPECT_TRUE(IsPointInArc(At(4, 6), At(1, 2), At(4, 6), At(-2, 6), ccw));
        EXPECT_TRUE(IsPointInArc(At(-2, 6), At(1, 2), At(4, 6), At(-2, 6), ccw));
    }
    EXPECT_TRUE(IsPointInArc(At(1, -BelowTolerance), At(0, 0), At(1, 0), At(0, 1), true));
    EXPECT_FALSE(IsPointInArc(At(1, -1e-9), At(0, 0), At(1, 0), At(0, 1), true));
    EXPECT_TRUE(IsPointInArc(At(BelowTolerance, 1), At(0, 0), At(1, 0), At(0, 1), false));
    // Beyond the end by less and by more than the tolerance.
    EXPECT_TRUE(IsPointInArc(OnUnitCircle(HalfPi + 5e-10), At(0, 0), At(1, 0), At(0, 1), true));
    EXPECT_FALSE(IsPointInArc(OnUnitCircle(HalfPi + 2e-9), At(0, 0), At(1, 0), At(0, 1), true));
}

TEST(PointInArcByPoints, IncludesAPointAtAnEndWithoutFurtherTest)
{
    // On a circle of radius 1e6 the start computed from its direction is some 1e-10 off. This point is 0.99e-9 before
    // the start: beyond the tolerance of the computed start and of the directions, but not of the given start.
    const DPOINT2 centre = At(0, 0);
    const DPOINT2 start = GetPointInCircle(centre, 1e6, 0.1);
    const DPOINT2 end = GetPointInCircle(centre, 1e6, 1.1);
    const DPOINT2 point = At(start.x + 6 * 0x1p-34, start.y - 16 * 0x1p-34);
    ASSERT_LT(D2GetDistance(point, start), 1e-9);
    const double startRadian = D2GetNormalAngle(start);
    const double extent = D2GetNormalAngle(end) - startRadian;
    EXPECT_FALSE(IsPointInArc(point, centre, D2GetDistance(start, centre), startRadian, extent, true));
    EXPECT_TRUE(IsPointInArc(point, centre, start, end, true));
}

TEST(PointInArcByPoints, HasNoExtentBetweenEqualEnds)
{
    for (const bool ccw : {true, false})
    {
        EXPECT_TRUE(IsPointInArc(At(1, 0), At(0, 0), At(1, 0), At(1, 0), ccw));
        EXPECT_FALSE(IsPointInArc(At(-1, 0), At(0, 0), At(1, 0), At(1, 0), ccw));
        EXPECT_FALSE(IsPointInArc(At(0, 1), At(0, 0), At(1, 0), At(1, 0), ccw));
        EXPECT_FALSE(IsPointInArc(At(0, -1), At(0, 0), At(1, 0), At(1, 0), ccw));
    }
}

TEST(PointInArcByPoints, NeedsEndsThatHaveADirectionFromTheCentre)
{
    // Zero by coordinates, though 1.4e-9 from the centre.
    const DPOINT2 nearCentre = At(BelowTolerance, BelowTolerance);
    EXPECT_FALSE(IsPointInArc(nearCentre, At(0, 0), nearCentre, At(1e-9, 1e-9), true));
    EXPECT_FALSE(IsPointInArc(nearCentre, At(0, 0), At(1e-9, 1e-9), nearCentre, true));
    EXPECT_TRUE(IsPointInArc(At(1e-9, 1e-9), At(0, 0), At(1e-9, 1e-9), At(1e-9, 1e-9), true));
    EXPECT_FALSE(IsPointInArc(At(1, 2), At(1, 2), At(1, 2), At(1, 2), true));
}

TEST(PointInArcByPoints, NeedsEndsAtEqualDistances)
{
    EXPECT_FALSE(IsPointInArc(At(1, 0), At(0, 0), At(1, 0), At(0, 2), true));
    EXPECT_FALSE(IsPointInArc(At(0, 2), At(0, 0), At(1, 0), At(0, 2), true));
    // 2e-9 and 1e-9 differ by exactly the tolerance.
    EXPECT_FALSE(IsPointInArc(At(2e-9, 0), At(0, 0), At(2e-9, 0), At(0, 1e-9), true));
    EXPECT_TRUE(IsPointInArc(At(2e-9, 0), At(0, 0), At(2e-9, 0), At(0, Next(1e-9)), true));
    EXPECT_FALSE(IsPointInArc(At(0, 2e-9), At(0, 0), At(1e-9, 0), At(0, 2e-9), true));
    EXPECT_TRUE(IsPointInArc(At(0, 2e-9), At(0, 0), At(Next(1e-9), 0), At(0, 2e-9), true));
}

TEST(PointInArcByPoints, TakesTheRadiusFromItsFirstEnd)
{
    // The ends lie at 1 and 1 + 0.9e-9 from the centre; the point at 1 - 0.5e-9 is near enough to the first only.
    const double longer = 1.0 + 0.9e-9;
    const double shorter = 1.0 - 0.5e-9;
    const DPOINT2 point = At(0.6 * shorter, 0.8 * shorter);
    EXPECT_TRUE(IsPointInArc(point, At(0, 0), At(1, 0), At(0, longer), true));
    EXPECT_FALSE(IsPointInArc(point, At(0, 0), At(longer, 0), At(0, 1), true));
}

TEST(PointInArcByPoints, IsNeverNaN)
{
    EXPECT_FALSE(IsPointInArc(At(InvalidDouble, 0), At(0, 0), At(1, 0), At(0, 1), true));
    EXPECT_FALSE(IsPointInArc(At(1, 0), At(0, InvalidDouble), At(1, 0), At(0, 1), true));
    EXPECT_FALSE(IsPointInArc(At(0, 1), At(0, 0), At(InvalidDouble, 0), At(0, 1), true));
    EXPECT_FALSE(IsPointInArc(At(1, 0), At(0, 0), At(1, 0), At(0, InvalidDouble), true));
}

// Sectors

TEST(AngleInSector, CounterClockwiseIsExactAtBothEnds)
{
    EXPECT_TRUE(IsAngleInSector(0.0, 0.0, 0.0));
    EXPECT_TRUE(IsAngleInSector(1.0, 0.25, 0.75));
    EXPECT_FALSE(IsAngleInSector(1.0, 0.25, Previous(0.75)));
    EXPECT_TRUE(IsAngleInSector(0.25, 0.25, 0.0));
    EXPECT_FALSE(IsAngleInSector(0.25 - 1e-15, 0.25, 0.75));
    // A difference of -3e-17 is lost when a full turn is added, and folds to 0.
    EXPECT_TRUE(IsAngleInSector(Previous(0.25), 0.25, 0.75));
    EXPECT_FALSE(IsAngleInSector(TwoPi - 1e-10, 0.0, 1.0));
    EXPECT_FALSE(IsAngleInSector(-1e-10, 0.0, 1.0));
    EXPECT_FALSE(IsAngleInSector(1.0 + 1e-10, 0.0, 1.0));
    EXPECT_FALSE(IsAngleInSector(1.0, 2.0, 1.0));
    EXPECT_TRUE(IsAngleInSector(2.5, 2.0, 1.0));
    // Over the seam, and with angles that are not folded.
    EXPECT_TRUE(IsAngleInSector(0.5, 6.0, 1.0));
    EXPECT_FALSE(IsAngleInSector(1.5, 6.0, 1.0));
    EXPECT_TRUE(IsAngleInSector(2.5 - 5.0 * TwoPi, 2.0 + 3.0 * TwoPi, 1.0));
    EXPECT_FALSE(IsAngleInSector(0.0, 0.0, -1.0));
}

TEST(AngleInSector, EitherWayHasAToleranceAtBothEnds)
{
    EXPECT_TRUE(IsAngleInSector(TwoPi - 1e-10, 0.0, 1.0, true));
    EXPECT_TRUE(IsAngleInSector(-1e-10, 0.0, 1.0, true));
    EXPECT_TRUE(IsAngleInSector(1.0 + 1e-10, 0.0, 1.0, true));
    EXPECT_TRUE(IsAngleInSector(0.5, 1.0, 1.0, false));
    EXPECT_FALSE(IsAngleInSector(0.5, 1.0, 1.0, true));
    EXPECT_TRUE(IsAngleInSector(1.5, 1.0, 1.0, true));
    EXPECT_FALSE(IsAngleInSector(1.5, 1.0, 1.0, false));
    EXPECT_TRUE(IsAngleInSector(1.0 + 1e-10, 1.0, 1.0, false));
    EXPECT_TRUE(IsAngleInSector(-1e-10, 1.0, 1.0, false));
    EXPECT_FALSE(IsAngleInSector(-2e-9, 1.0, 1.0, false));
    EXPECT_FALSE(IsAngleInSector(1.0 + 2e-9, 1.0, 1.0, false));
    EXPECT_TRUE(IsAngleInSector(0.5, 6.0, 1.0, true));
    EXPECT_TRUE(IsAngleInSector(6.0, 0.5, 1.0, false));
    EXPECT_FALSE(IsAngleInSector(5.5, 0.5, 1.0, false));
}

TEST(AngleInSector, EitherWayEndsExactlyAtTheTolerance)
{
    const double last = 0.75 + 1e-9;
    EXPECT_TRUE(IsAngleInSector(last, 0.0, 0.75, true));
    EXPECT_FALSE(IsAngleInSector(Next(last), 0.0, 0.75, true));
    EXPECT_TRUE(IsAngleInSector(-last, 0.0, 0.75, false));
    EXPECT_FALSE(IsAngleInSector(-Next(last), 0.0, 0.75, false));

    // Before the start, the first direction whose distance from a full turn is below the tolerance.
    double first = TwoPi - 1e-9;
    while (TwoPi - first < 1e-9)
    {
        first = Previous(first);
    }
    EXPECT_FALSE(IsAngleInSector(first, 0.0, 0.75, true));
    EXPECT_TRUE(IsAngleInSector(Next(first), 0.0, 0.75, true));
    EXPECT_FALSE(IsAngleInSector(-first, 0.0, 0.75, false));
    EXPECT_TRUE(IsAngleInSector(-Next(first), 0.0, 0.75, false));
}

TEST(AngleInSector, IsNeverNaN)
{
    EXPECT_FALSE(IsAngleInSector(InvalidDouble, 0.0, 7.0));
    EXPECT_FALSE(IsAngleInSector(0.0, InvalidDouble, 7.0));
    EXPECT_FALSE(IsAngleInSector(0.0, 0.0, InvalidDouble));
    for (const bool ccw : {true, false})
    {
        EXPECT_FALSE(IsAngleInSector(InvalidDouble, 0.0, 7.0, ccw));
        EXPECT_FALSE(IsAngleInSector(0.0, InvalidDouble, 7.0, ccw));
        // At the start, and before it by less than the tolerance, where a sector of any extent holds the angle.
        for (const double angle : {0.25, 0.25 - 1e-10, 0.25 + 1e-10})
        {
            EXPECT_TRUE(IsAngleInSector(angle, 0.25, 0.0, ccw)) << angle;
            EXPECT_FALSE(IsAngleInSector(angle, 0.25, InvalidDouble, ccw)) << angle;
        }
    }
}

// Ellipses

TEST(PointAgainstAnEllipse, IsOnItInsideOrOutside)
{
    EXPECT_EQ(PlaceAgainstEllipse(At(2, 0), At(0, 0), 2.0, 1.0, 0.0), "on");
    EXPECT_EQ(PlaceAgainstEllipse(At(1, 0), At(0, 0), 2.0, 1.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(3, 0), At(0, 0), 2.0, 1.0, 0.0), "outside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0, 2), At(0, 0), 2.0, 1.0, HalfPi), "on");
    EXPECT_EQ(PlaceAgainstEllipse(At(0, 2), At(0, 0), 2.0, 1.0, 0.0), "outside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0, 1), At(0, 0), 2.0, 1.0, HalfPi), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0, 0), At(0, 0), 2.0, 1.0, 0.3), "inside");
    // a may be the shorter one, and the sign of an axis does not matter.
    EXPECT_EQ(PlaceAgainstEllipse(At(0, 2), At(0, 0), 1.0, 2.0, 0.0), "on");
    EXPECT_EQ(PlaceAgainstEllipse(At(2, 0), At(0, 0), -2.0, -1.0, 0.0), "on");
}

TEST(PointAgainstAnEllipse, IsSeenFromTheEllipsesOwnFrame)
{
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1.52, 5.36)), "on");
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1.52, 5.35)), "inside");
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1.52, 5.37)), "outside");
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1 + 3, 2 + 4)), "on");     // own (5, 0)
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1 - 1.6, 2 + 1.2)), "on"); // own (0, 2)
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1 + 1.6, 2 + 1.2)), "inside");
    EXPECT_EQ(PlaceAgainstTurnedEllipse(At(1 - 3, 2 + 4)), "outside");
}

TEST(PointAgainstAnEllipse, HasAToleranceRelativeToTheEllipse)
{
    for (const double scale : {1.0, 1e6, 1e-6})
    {
        SCOPED_TRACE(scale);
        const auto place = [&](double u, double v) {
            return PlaceAgainstEllipse(At(scale * u, scale * v), At(0, 0), 2.0 * scale, 1.0 * scale, 0.0);
        };
        // The square of the relative distance has twice the deviation.
        EXPECT_EQ(place(2 * (1 + 0.49e-9), 0), "on");
        EXPECT_EQ(place(2 * (1 - 0.49e-9), 0), "on");
        EXPECT_EQ(place(2 * (1 + 0.51e-9), 0), "outside");
        EXPECT_EQ(place(2 * (1 - 0.51e-9), 0), "inside");
        EXPECT_EQ(place(0, 1 + 0.49e-9), "on");
        EXPECT_EQ(place(0, 1 - 0.49e-9), "on");
        EXPECT_EQ(place(0, 1 + 0.51e-9), "outside");
        EXPECT_EQ(place(0, 1 - 0.51e-9), "inside");
    }
}

TEST(PointAgainstAnEllipse, CountsAsInsideWhereThereIsNoNumber)
{
    EXPECT_EQ(PlaceAgainstEllipse(At(InvalidDouble, 0), At(0, 0), 2.0, 1.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0, InvalidDouble), At(0, 0), 2.0, 1.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(9, 9), At(InvalidDouble, 0), 2.0, 1.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(9, 9), At(0, 0), InvalidDouble, 1.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(9, 9), At(0, 0), 2.0, InvalidDouble, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(9, 9), At(0, 0), 2.0, 1.0, InvalidDouble), "inside");
    // An axis of zero is not tested for: 0/0 inside, anything else over 0 outside.
    EXPECT_EQ(PlaceAgainstEllipse(At(0, 0.5), At(0, 0), 0.0, 1.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0.5, 0), At(0, 0), 2.0, 0.0, 0.0), "inside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0.1, 0.5), At(0, 0), 0.0, 1.0, 0.0), "outside");
    EXPECT_EQ(PlaceAgainstEllipse(At(0.1, 0.5), At(0, 0), 2.0, 0.0, 0.0), "outside");
}

TEST(PointAgainstAnEllipse, FollowsItsRadialPosition)
{
    Random random(43);
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 centre = random.Point(5.0);
        const double a = random.Size(0.1, 10.0);
        const double b = random.Size(0.1, 10.0);
        const double rotation = random.Number(-7.0, 7.0);
        const double eccentric = random.Radian();
        const auto at = [&](double factor) {
            return CoorTransUVToXY(At(factor * a * std::cos(eccentric), factor * b * std::sin(eccentric)), centre,
                                   rotation);
        };
        EXPECT_EQ(PlaceAgainstEllipse(at(1.0), centre, a, b, rotation), "on");
        EXPECT_EQ(PlaceAgainstEllipse(at(1.0 + 1e-6), centre, a, b, rotation), "outside");
        EXPECT_EQ(PlaceAgainstEllipse(at(1.0 - 1e-6), centre, a, b, rotation), "inside");
    }
}

// Elliptical arcs

TEST(PointInEllipseArc, CountsItsAnglesFromTheEllipsesOwnAxis)
{
    // The ellipse of semi-axes 2 and 1, upright, from its own direction 0 over a quarter: from (0, 2) to (-1, 0).
    const auto counterClockwise = [](const DPOINT2& point) {
        return IsPointInEllipseArc(point, At(0, 0), 2.0, 1.0, HalfPi, 0.0, HalfPi);
    };
    const auto eitherWay = [](const DPOINT2& point, bool ccw) {
        return IsPointInEllipseArc(point, At(0, 0), 2.0, 1.0, HalfPi, 0.0, HalfPi, ccw);
    };
    const double diagonal = std::sqrt(0.8); // 1/4 + 1 of its square is 1
    for (const auto& point : {At(-diagonal, diagonal), At(-1, 0), At(0, 2)})
    {
        EXPECT_TRUE(counterClockwise(point));
        EXPECT_TRUE(eitherWay(point, true));
    }
    for (const auto& point : {At(diagonal, diagonal), At(-diagonal, -diagonal), At(1, 0), At(0, -2)})
    {
        EXPECT_FALSE(counterClockwise(point));
        EXPECT_FALSE(eitherWay(point, true));
    }
    EXPECT_TRUE(eitherWay(At(diagonal, diagonal), false));
    EXPECT_TRUE(eitherWay(At(1, 0), false));
    EXPECT_FALSE(eitherWay(At(-diagonal, diagonal), false));
    // In the sector, but off the ellipse.
    EXPECT_FALSE(counterClockwise(At(-0.5, 0.5)));
    EXPECT_FALSE(eitherWay(At(-0.5, 0.5), true));
    EXPECT_FALSE(counterClockwise(At(-2, 2)));
    EXPECT_FALSE(eitherWay(At(-2, 2), true));
}

TEST(PointInEllipseArc, MeasuresPolarAngles)
{
    // Semi-axes 10 and 1: the direction π/4 meets the ellipse at the eccentric parameter atan 10. The arc from 0 over
    // π/4 holds the point of eccentric parameter 1.4 and not that of 1.5.
    const auto at = [](double eccentric) { return At(10.0 * std::cos(eccentric), std::sin(eccentric)); };
    EXPECT_TRUE(IsPointInEllipseArc(at(1.4), At(0, 0), 10.0, 1.0, 0.0, 0.0, QuarterPi));
    EXPECT_FALSE(IsPointInEllipseArc(at(1.5), At(0, 0), 10.0, 1.0, 0.0, 0.0, QuarterPi));
    EXPECT_TRUE(IsPointInEllipseArc(at(1.4), At(0, 0), 10.0, 1.0, 0.0, 0.0, QuarterPi, true));
    EXPECT_FALSE(IsPointInEllipseArc(at(1.5), At(0, 0), 10.0, 1.0, 0.0, 0.0, QuarterPi, true));
}

TEST(PointInEllipseArc, CounterClockwiseCoincidesWithItsEndsBeforeAnythingElse)
{
    // On an ellipse of semi-axes 2e-8 and 1e-8 a point 5e-10 off the start is far off the curve, relatively.
    const auto counterClockwise = [](const DPOINT2& point, double start, double extent) {
        return IsPointInEllipseArc(point, At(0, 0), 2e-8, 1e-8, 0.0, start, extent);
    };
    const auto eitherWay = [](const DPOINT2& point, double start, double extent) {
        return IsPointInEllipseArc(point, At(0, 0), 2e-8, 1e-8, 0.0, start, extent, true);
    };
    EXPECT_TRUE(counterClockwise(At(2.05e-8, 0), 0.0, 1.0));
    EXPECT_FALSE(eitherWay(At(2.05e-8, 0), 0.0, 1.0));
    EXPECT_FALSE(counterClockwise(At(2.2e-8, 0), 0.0, 1.0));
    EXPECT_TRUE(counterClockwise(At(0, 1.05e-8), 0.0, HalfPi));
    EXPECT_FALSE(eitherWay(At(0, 1.05e-8), 0.0, HalfPi));
    EXPECT_FALSE(counterClockwise(At(0, 1.2e-8), 0.0, HalfPi));
    // The distance is strict: the start (2e-8, 0) and a point exactly the tolerance above it.
    EXPECT_TRUE(counterClockwise(At(2e-8, BelowTolerance), 0.0, 0.0));
    EXPECT_FALSE(counterClockwise(At(2e-8, 1e-9), 0.0, 0.0));

    // The ends are folded before their points are taken: -3 is 3.28, 2 + 6 is 1.72.
    const DPOINT2 first = GetPointInEllipse(At(0, 0), 2e-8, 1e-8, 0.0, RegularizeRadian(-3.0));
    EXPECT_TRUE(counterClockwise(At(first.x - 5e-10, first.y), -3.0, 1.0));
    const DPOINT2 last = GetPointInEllipse(At(0, 0), 2e-8, 1e-8, 0.0, RegularizeRadian(8.0));
    EXPECT_TRUE(counterClockwise(At(last.x, last.y + 5e-10), 2.0, 6.0));
    const DPOINT2 middle = GetPointInEllipse(At(0, 0), 2e-8, 1e-8, 0.0, 3.0);
    EXPECT_FALSE(counterClockwise(At(middle.x - 5e-10, middle.y), 2.0, 6.0));
    // The frame of the ends is that of the ellipse.
    EXPECT_TRUE(IsPointInEllipseArc(At(1, 2 + 2.05e-8), At(1, 2), 2e-8, 1e-8, HalfPi, 0.0, 1.0));
}

TEST(PointInEllipseArc, CounterClockwiseTakesTheOppositeVertexForAnEndJustBeyondAQuarter)
{
    // The point of the ellipse at π/2 + 5e-10 is the opposite vertex, and so coincides with that end.
    EXPECT_TRUE(IsPointInEllipseArc(At(0, -1), At(0, 0), 2.0, 1.0, 0.0, 0.0, HalfPi + 5e-10));
    EXPECT_FALSE(IsPointInEllipseArc(At(0, -1), At(0, 0), 2.0, 1.0, 0.0, 0.0, HalfPi));
    EXPECT_FALSE(IsPointInEllipseArc(At(0, -1), At(0, 0), 2.0, 1.0, 0.0, 0.0, HalfPi + 5e-10, true));
}

TEST(PointInEllipseArc, CounterClockwiseHasNoAngularTolerance)
{
    // With semi-axes of 1000 a direction 5e-10 off an end is 5e-7 away from it.
    const auto at = [](double radian) { return GetPointInEllipse(At(0, 0), 1000.0, 500.0, 0.0, radian); };
    EXPECT_TRUE(IsPointInEllipseArc(at(1.0 + 1e-9), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0));
    EXPECT_FALSE(IsPointInEllipseArc(at(1.0 - 5e-10), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0));
    EXPECT_FALSE(IsPointInEllipseArc(at(2.0 + 5e-10), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0));
    EXPECT_TRUE(IsPointInEllipseArc(at(1.0 - 5e-10), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0, true));
    EXPECT_TRUE(IsPointInEllipseArc(at(2.0 + 5e-10), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0, true));
    EXPECT_FALSE(IsPointInEllipseArc(at(1.0 - 2e-9), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0, true));
    EXPECT_FALSE(IsPointInEllipseArc(at(2.0 + 2e-9), At(0, 0), 1000.0, 500.0, 0.0, 1.0, 1.0, true));
}

TEST(PointInEllipseArc, CounterClockwiseIncludesTheDirectionOfItsEndExactly)
{
    // On a circle of radius 1e10 the end at π/2 is rounded to 6e-7 beside (0, 1e10).
    const auto in = [](double extent) {
        return IsPointInEllipseArc(At(0, 1e10), At(0, 0), 1e10, 1e10, 0.0, 0.0, extent);
    };
    EXPECT_TRUE(in(HalfPi));
    EXPECT_FALSE(in(Previous(HalfPi)));
    // Rotation and start add up: from 2 - 2.5 over half a unit more than π/2.
    EXPECT_TRUE(IsPointInEllipseArc(At(0, 1e10), At(0, 0), 1e10, 1e10, 2.0, -2.5, HalfPi + 0.5));
    EXPECT_FALSE(IsPointInEllipseArc(At(0, 1e10), At(0, 0), 1e10, 1e10, 2.0, -2.5, HalfPi + 0.499));
}

TEST(PointInEllipseArc, IsNeverNaN)
{
    EXPECT_FALSE(IsPointInEllipseArc(At(InvalidDouble, 0), At(0, 0), 2.0, 1.0, 0.0, 0.0, 6.0));
    EXPECT_FALSE(IsPointInEllipseArc(At(2, 0), At(0, 0), 2.0, 1.0, InvalidDouble, 0.0, 6.0));
    EXPECT_FALSE(IsPointInEllipseArc(At(2, 0), At(0, 0), 2.0, 1.0, 0.0, InvalidDouble, 6.0));
    EXPECT_FALSE(IsPointInEllipseArc(At(-2, 0), At(0, 0), 2.0, 1.0, 0.0, 0.0, InvalidDouble));
    for (const bool ccw : {true, false})
    {
        EXPECT_FALSE(IsPointInEllipseArc(At(InvalidDouble, 0), At(0, 0), 2.0, 1.0, 0.0, 0.0, 6.0, ccw));
        EXPECT_FALSE(IsPointInEllipseArc(At(2, 0), At(0, 0), 2.0, 1.0, InvalidDouble, 0.0, 6.0, ccw));
        EXPECT_FALSE(IsPointInEllipseArc(At(2, 0), At(0, 0), 2.0, 1.0, 0.0, InvalidDouble, 6.0, ccw));
    }
}

TEST(PointInEllipseArc, IsEveryPointBetweenTheEndsAndNoneOutside)
{
    Random random(44);
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 centre = random.Point(5.0);
        const double a = random.Size(0.5, 5.0);
        const double b = random.Size(0.5, 5.0);
        const double rotation = random.Number(-7.0, 7.0);
        const double start = random.Number(-7.0, 7.0);
        const double extent = random.Number(0.01, 6.2);
        const double within = start + extent * random.Number(0.001, 0.999);
        const double without = start + random.Number(extent + 1e-4, TwoPi - 1e-4);
        const auto at = [&](double radian) {
            // The polar angle, without the library's way to the eccentric parameter.
            const double scale = 1.0 / std::hypot(std::cos(radian) / a, std::sin(radian) / b);
            return CoorTransUVToXY(At(scale * std::cos(radian), scale * std::sin(radian)), centre, rotation);
        };
        EXPECT_TRUE(IsPointInEllipseArc(at(within), centre, a, b, rotation, start, extent));
        EXPECT_FALSE(IsPointInEllipseArc(at(without), centre, a, b, rotation, start, extent));
        EXPECT_TRUE(IsPointInEllipseArc(at(within), centre, a, b, rotation, start, extent, true));
        EXPECT_FALSE(IsPointInEllipseArc(at(without), centre, a, b, rotation, start, extent, true));
        // Clockwise from the other end.
        EXPECT_TRUE(IsPointInEllipseArc(at(within), centre, a, b, rotation, start + extent, extent, false));
        EXPECT_FALSE(IsPointInEllipseArc(at(without), centre, a, b, rotation, start + extent, extent, false));
        EXPECT_TRUE(IsPointInEllipseArc(at(start), centre, a, b, rotation, start, extent));
        EXPECT_TRUE(IsPointInEllipseArc(at(start + extent), centre, a, b, rotation, start, extent));
    }
}
