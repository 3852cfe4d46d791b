#include "support/Support.h"

#include <cmath>

using namespace math;
using namespace math::test;

namespace
{

/// An arc in centre form, as SolveArc leaves it.
struct CentreForm
{
    bool solved = false;
    DPOINT2 centre = Untouched();
    double radius = UntouchedNumber();
    double startRadian = UntouchedNumber();
    double sweep = UntouchedNumber();

    bool IsUntouched() const
    {
        return SameBits(centre, Untouched()) && SameBits(radius, UntouchedNumber()) &&
               SameBits(startRadian, UntouchedNumber()) && SameBits(sweep, UntouchedNumber());
    }
};

CentreForm Solved(const DPOINT2& first, const DPOINT2& second, double bulge)
{
    CentreForm arc;
    arc.solved = SolveArc(first, second, bulge, &arc.centre, &arc.radius, &arc.startRadian, &arc.sweep);
    return arc;
}

::testing::AssertionResult IsArc(const CentreForm& arc, const DPOINT2& centre, double radius, double startRadian,
                                 double sweep, double tolerance)
{
    if (arc.solved && Near(arc.centre, centre, tolerance) && std::abs(arc.radius - radius) <= tolerance &&
        std::abs(arc.startRadian - startRadian) <= tolerance && std::abs(arc.sweep - sweep) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << (arc.solved ? "" : "not solved: ") << "about "
                                         << ::testing::PrintToString(arc.centre) << ", radius " << Digits(arc.radius)
                                         << " from " << Digits(arc.startRadian) << " over " << Digits(arc.sweep);
}

/// The circle through three points, as CreateCircleFrom3Point leaves it.
struct Circle
{
    bool created = false;
    DPOINT2 centre = Untouched();
    double radius = UntouchedNumber();
};

Circle Through(const DPOINT2& p1, const DPOINT2& p2, const DPOINT2& p3)
{
    Circle circle;
    circle.created = CreateCircleFrom3Point(p1, p2, p3, &circle.centre, &circle.radius);
    return circle;
}

::testing::AssertionResult IsCircle(const Circle& circle, const DPOINT2& centre, double radius, double tolerance)
{
    if (circle.created && Near(circle.centre, centre, tolerance) && std::abs(circle.radius - radius) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << (circle.created ? "" : "not created: ") << "about "
                                         << ::testing::PrintToString(circle.centre) << ", radius "
                                         << Digits(circle.radius);
}

::testing::AssertionResult IsNoCircle(const Circle& circle)
{
    if (!circle.created && SameBits(circle.centre, Untouched()) && SameBits(circle.radius, UntouchedNumber()))
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "about " << ::testing::PrintToString(circle.centre) << ", radius "
                                         << Digits(circle.radius);
}

} // namespace

// From bulge form to centre form

TEST(SolvedArc, OfAHalfCircleStartsAtExactlyZero)
{
    // The computed centre is 6e-17 off, and the start is still no full turn.
    for (const double bulge : {1.0, -1.0})
    {
        SCOPED_TRACE(bulge);
        const CentreForm arc = Solved(At(1, 0), At(-1, 0), bulge);
        EXPECT_TRUE(IsArc(arc, At(0, 0), 1.0, 0.0, bulge * Pi, 1e-15));
        EXPECT_EQ(arc.startRadian, 0.0);
        EXPECT_EQ(arc.sweep, bulge * Pi);
        EXPECT_EQ(arc.radius, 1.0);
    }
}

TEST(SolvedArc, HasItsCentreOnTheSideThatTheBulgeTells)
{
    // The chord from (0, 0) to (2, 0): bulge tan φ/4 with radius (1 + bulge²) / (2 |bulge|) and height
    // (1 - bulge²) / (2 bulge) of the centre. 0.5 sweeps 4 atan ½ = 2 atan 4/3.
    const double sweep = 4.0 * std::atan(0.5);
    const double right = std::atan2(0.75, 1.0); // direction from the centre above or below to an end
    EXPECT_TRUE(IsArc(Solved(At(0, 0), At(2, 0), 0.5), At(1, 0.75), 1.25, Pi + right, sweep, 1e-14));
    EXPECT_TRUE(IsArc(Solved(At(0, 0), At(2, 0), 2.0), At(1, -0.75), 1.25, Pi - right, TwoPi - sweep, 1e-14));
    EXPECT_TRUE(IsArc(Solved(At(0, 0), At(2, 0), -0.5), At(1, -0.75), 1.25, Pi - right, -sweep, 1e-14));
    EXPECT_TRUE(IsArc(Solved(At(0, 0), At(2, 0), -2.0), At(1, 0.75), 1.25, Pi + right, sweep - TwoPi, 1e-14));
}

TEST(SolvedArc, FollowsTheDirectionOfTheChord)
{
    // The chord from (1, 2) along (3, 4)/5, 10 long: its middle is (4, 6), the left normal (-4, 3)/5. A bulge of 0.5
    // puts the centre 3.75 to the left, at (1, 8.25), the radius is 6.25.
    const double start = std::atan2(2 - 8.25, 0.0);
    EXPECT_TRUE(IsArc(Solved(At(1, 2), At(7, 10), 0.5), At(1, 8.25), 6.25, start + TwoPi, 4.0 * std::atan(0.5), 1e-14));
    EXPECT_TRUE(IsArc(Solved(At(1, 2), At(7, 10), -0.5), At(7, 3.75), 6.25, std::atan2(2 - 3.75, 1.0 - 7.0) + TwoPi,
                      -4.0 * std::atan(0.5), 1e-14));
    EXPECT_TRUE(IsArc(Solved(At(7, 10), At(1, 2), 0.5), At(7, 3.75), 6.25, HalfPi, 4.0 * std::atan(0.5), 1e-14));
}

TEST(SolvedArc, OfAHalfCircleHasItsCentreToTheLeftByAHair)
{
    // On a chord of 2e10 the rounding of the half circle is 6e-7, and lies on the left for both directions.
    const double hair = std::abs(std::cos(HalfPi)) * 1e10;
    CentreForm arc = Solved(At(0, 0), At(2e10, 0), 1.0);
    EXPECT_TRUE(Near(arc.centre, At(1e10, hair), 1e-12));
    EXPECT_GT(arc.centre.y, 0.0);
    arc = Solved(At(0, 0), At(2e10, 0), -1.0);
    EXPECT_TRUE(Near(arc.centre, At(1e10, hair), 1e-12));
    EXPECT_GT(arc.centre.y, 0.0);
    // One double further on it has changed sides where the sweep goes beyond half a turn.
    arc = Solved(At(0, 0), At(2e10, 0), Next(1.0));
    EXPECT_LT(arc.centre.y, 0.0);
    arc = Solved(At(0, 0), At(2e10, 0), Next(-1.0));
    EXPECT_LT(arc.centre.y, 0.0);
    arc = Solved(At(0, 0), At(2e10, 0), Previous(1.0));
    EXPECT_GT(arc.centre.y, 0.0);
    arc = Solved(At(0, 0), At(2e10, 0), Previous(-1.0));
    EXPECT_GT(arc.centre.y, 0.0);
}

TEST(SolvedArc, StartsWithinOneTurn)
{
    // Half circles about the origin, the first end going round.
    EXPECT_TRUE(Near(Solved(At(0, 1), At(0, -1), 1.0).startRadian, HalfPi, 1e-15));
    EXPECT_TRUE(Near(Solved(At(-1, 0), At(1, 0), 1.0).startRadian, Pi, 1e-15));
    EXPECT_TRUE(Near(Solved(At(0, -1), At(0, 1), 1.0).startRadian, ThreeHalvesPi, 1e-15));
    EXPECT_TRUE(Near(Solved(At(3, -4), At(-3, 4), 1.0).startRadian, TwoPi - std::atan2(4.0, 3.0), 1e-14));
}

TEST(SolvedArc, NeedsEndsThatAreApart)
{
    EXPECT_FALSE(Solved(At(3, 4), At(3, 4), 1.0).solved);
    EXPECT_FALSE(Solved(At(0, 0), At(Previous(1e-9), 0), 1.0).solved);
    EXPECT_TRUE(Solved(At(3, 4), At(3, 4), 1.0).IsUntouched());
    EXPECT_TRUE(Solved(At(0, 0), At(Previous(1e-9), 0), 1.0).IsUntouched());
    // The distance counts, and exactly the tolerance is enough.
    EXPECT_TRUE(IsArc(Solved(At(0, 0), At(1e-9, 0), 1.0), At(0.5e-9, 0), 0.5e-9, Pi, Pi, 1e-15));
    EXPECT_TRUE(Solved(At(0, 0), At(0, -1e-9), 1.0).solved);
    EXPECT_TRUE(Solved(At(0, 0), At(0.8e-9, 0.8e-9), 1.0).solved);
}

TEST(SolvedArc, NeedsABulge)
{
    const double below = Previous(1e-9);
    for (const double bulge : {0.0, -0.0, 1e-10, below, -below})
    {
        SCOPED_TRACE(bulge);
        EXPECT_FALSE(Solved(At(0, 0), At(2, 0), bulge).solved);
        EXPECT_TRUE(Solved(At(0, 0), At(2, 0), bulge).IsUntouched());
    }
    // The flattest arcs: radius (1 + bulge²) / (2 |bulge|), the centre far to the left or right.
    const CentreForm left = Solved(At(0, 0), At(2, 0), 1e-9);
    EXPECT_TRUE(left.solved);
    EXPECT_TRUE(Near(left.radius, 0.5e9, 1e-6));
    EXPECT_TRUE(Near(left.centre, At(1, 0.5e9), 1e-6));
    EXPECT_EQ(left.sweep, 4.0 * std::atan(1e-9));
    const CentreForm right = Solved(At(0, 0), At(2, 0), -1e-9);
    EXPECT_TRUE(right.solved);
    EXPECT_TRUE(Near(right.centre, At(1, -0.5e9), 1e-6));
}

TEST(SolvedArc, MayBeAskedForOneByOne)
{
    const DPOINT2 first = At(1, 2);
    const DPOINT2 second = At(7, 10);
    const CentreForm all = Solved(first, second, 0.5);
    CentreForm one;
    EXPECT_TRUE(SolveArc(first, second, 0.5, &one.centre, nullptr, nullptr, nullptr));
    EXPECT_TRUE(SolveArc(first, second, 0.5, nullptr, &one.radius, nullptr, nullptr));
    EXPECT_TRUE(SolveArc(first, second, 0.5, nullptr, nullptr, &one.startRadian, nullptr));
    EXPECT_TRUE(SolveArc(first, second, 0.5, nullptr, nullptr, nullptr, &one.sweep));
    EXPECT_TRUE(SameBits(one.centre, all.centre));
    EXPECT_TRUE(SameBits(one.radius, all.radius));
    EXPECT_TRUE(SameBits(one.startRadian, all.startRadian));
    EXPECT_TRUE(SameBits(one.sweep, all.sweep));

    CentreForm others;
    EXPECT_TRUE(SolveArc(first, second, 0.5, nullptr, &others.radius, &others.startRadian, &others.sweep));
    EXPECT_TRUE(SolveArc(first, second, 0.5, &others.centre, nullptr, &others.startRadian, &others.sweep));
    EXPECT_TRUE(SolveArc(first, second, 0.5, &others.centre, &others.radius, nullptr, &others.sweep));
    EXPECT_TRUE(SolveArc(first, second, 0.5, &others.centre, &others.radius, &others.startRadian, nullptr));
    EXPECT_TRUE(IsArc({true, others.centre, others.radius, others.startRadian, others.sweep}, all.centre, all.radius,
                      all.startRadian, all.sweep, 0.0));

    EXPECT_FALSE(SolveArc(first, second, 0.5, nullptr, nullptr, nullptr, nullptr));
}

TEST(SolvedArc, MayReplaceItsOwnEnds)
{
    DPOINT2 first = At(1, 2);
    DPOINT2 second = At(7, 10);
    const CentreForm expected = Solved(first, second, 0.5);
    double radius = 0.0;
    double start = 0.0;
    double sweep = 0.0;
    EXPECT_TRUE(SolveArc(first, second, 0.5, &first, &radius, &start, &sweep));
    EXPECT_TRUE(IsArc({true, first, radius, start, sweep}, expected.centre, expected.radius, expected.startRadian,
                      expected.sweep, 0.0));
    first = At(1, 2);
    double bulge = 0.5;
    EXPECT_TRUE(SolveArc(first, second, bulge, &second, &bulge, &start, &sweep));
    EXPECT_TRUE(IsArc({true, second, bulge, start, sweep}, expected.centre, expected.radius, expected.startRadian,
                      expected.sweep, 0.0));
}

TEST(SolvedArc, LeadsBackToItsEndsAndItsBulge)
{
    Random random(61);
    for (int i = 0; i < 3000; ++i)
    {
        const DPOINT2 first = random.Point(5.0);
        const DPOINT2 second = random.Point(5.0);
        const double bulge = (random.Coin() ? 1.0 : -1.0) * random.Size(0.02, 20.0);
        SCOPED_TRACE(::testing::PrintToString(first) + " to " + ::testing::PrintToString(second) + " with " +
                     Digits(bulge));
        const CentreForm arc = Solved(first, second, bulge);
        ASSERT_TRUE(arc.solved);
        EXPECT_TRUE(arc.startRadian >= 0.0 && arc.startRadian < TwoPi);
        EXPECT_TRUE(std::abs(arc.sweep) < TwoPi);
        EXPECT_EQ(arc.sweep > 0.0, bulge > 0.0);
        EXPECT_TRUE(Near(GetBulge(arc.startRadian, arc.startRadian + arc.sweep), bulge, 1e-12 * (1 + bulge * bulge)));

        const double tolerance = 1e-13 * (1.0 + arc.radius);
        EXPECT_TRUE(Near(GetPointInCircle(arc.centre, arc.radius, arc.startRadian), first, tolerance * 10));
        EXPECT_TRUE(
            Near(GetPointInCircle(arc.centre, arc.radius, arc.startRadian + arc.sweep), second, tolerance * 10));

        // The height of the arc over its chord is |bulge| times half the chord, and its middle lies on the right of
        // the chord for a positive bulge.
        const DPOINT2 middle = GetPointInCircle(arc.centre, arc.radius, arc.startRadian + arc.sweep / 2);
        const double chord = D2GetDistance(first, second);
        EXPECT_TRUE(Near(D2GetPointToLineDistance(middle, first, second), std::abs(bulge) * chord / 2, tolerance * 10));
        const double cross = (second.x - first.x) * (middle.y - first.y) - (second.y - first.y) * (middle.x - first.x);
        EXPECT_EQ(cross<0.0, bulge> 0.0);
    }
}

TEST(SolvedArc, TurnedRoundIsTheSameCircle)
{
    Random random(62);
    for (int i = 0; i < 1000; ++i)
    {
        const DPOINT2 first = random.Point(5.0);
        const DPOINT2 second = random.Point(5.0);
        const double bulge = (random.Coin() ? 1.0 : -1.0) * random.Size(0.05, 20.0);
        const CentreForm forth = Solved(first, second, bulge);
        const CentreForm back = Solved(second, first, -bulge);
        EXPECT_TRUE(Near(back.centre, forth.centre, 1e-12 * (1.0 + forth.radius)));
        EXPECT_EQ(back.radius, forth.radius);
        EXPECT_EQ(back.sweep, -forth.sweep);
        EXPECT_TRUE(NearDirection(back.startRadian, forth.startRadian + forth.sweep, TwoPi, 1e-11));
    }
}

TEST(SolvedArc, OfNaNRaisesNothing)
{
    EXPECT_NO_THROW(Solved(At(InvalidDouble, 0), At(1, 1), 0.5));
    EXPECT_NO_THROW(Solved(At(0, 0), At(1, InvalidDouble), 0.5));
    EXPECT_NO_THROW(Solved(At(0, 0), At(1, 1), InvalidDouble));
    EXPECT_NO_THROW(Solved(At(0, 0), At(Infinity, 1), 0.5));
    EXPECT_NO_THROW(Solved(At(0, 0), At(1, 1), Infinity));
}

// Circles through three points

TEST(CircleThroughThreePoints, HasThemAllAtItsRadius)
{
    EXPECT_TRUE(IsCircle(Through(At(1, 0), At(0, 1), At(-1, 0)), At(0, 0), 1.0, 1e-15));
    EXPECT_TRUE(IsCircle(Through(At(0, 0), At(1, 0), At(0, 1)), At(0.5, 0.5), 0.7071067811865476, 1e-16));
    // About (1, 2) with radius 5, in any order.
    EXPECT_TRUE(IsCircle(Through(At(6, 2), At(4, 6), At(-2, -2)), At(1, 2), 5.0, 1e-14));
    EXPECT_TRUE(IsCircle(Through(At(4, 6), At(-2, -2), At(6, 2)), At(1, 2), 5.0, 1e-14));
    EXPECT_TRUE(IsCircle(Through(At(-2, -2), At(4, 6), At(6, 2)), At(1, 2), 5.0, 1e-14));
}

TEST(CircleThroughThreePoints, DoesNotExistForPointsOnOneLine)
{
    EXPECT_TRUE(IsNoCircle(Through(At(0, 0), At(1, 0), At(2, 0))));
    EXPECT_TRUE(IsNoCircle(Through(At(0, 0), At(0, 2), At(0, 1))));
    EXPECT_TRUE(IsNoCircle(Through(At(1, 2), At(4, 6), At(7, 10))));
    EXPECT_TRUE(IsNoCircle(Through(At(-3, 5), At(8, 5), At(1, 5))));
}

TEST(CircleThroughThreePoints, NeedsThreePlacesOrOne)
{
    EXPECT_TRUE(IsNoCircle(Through(At(1, 2), At(1, 2), At(4, 6))));
    EXPECT_TRUE(IsNoCircle(Through(At(1, 2), At(4, 6), At(1, 2))));
    EXPECT_TRUE(IsNoCircle(Through(At(4, 6), At(1, 2), At(1, 2))));
    EXPECT_TRUE(IsCircle(Through(At(1, 2), At(1, 2), At(1, 2)), At(1, 2), 0.0, 0.0));
}

TEST(CircleThroughThreePoints, LetsNoExceptionOut)
{
    // Two bisectors that are one line within 1e-9, and a bisector whose direction is lost.
    EXPECT_TRUE(IsNoCircle(Through(At(0, 0), At(1, 0), At(1 + 1e-10, 0))));
    EXPECT_TRUE(IsNoCircle(Through(At(0, 0), At(0, 0), At(1e-20, 0))));
    // Without a first point neither bisector is found, and both are the x axis that they start from.
    EXPECT_TRUE(IsNoCircle(Through(At(InvalidDouble, 0), At(1, 0), At(0, 1))));
    // Without the third only the second is: the circle has a centre on it, but no radius.
    EXPECT_TRUE(std::isnan(Through(At(0, 0), At(1, 0), At(0, InvalidDouble)).radius));
}

TEST(CircleThroughThreePoints, NeedsBothOutputs)
{
    DPOINT2 centre = Untouched();
    double radius = UntouchedNumber();
    EXPECT_FALSE(CreateCircleFrom3Point(At(1, 0), At(0, 1), At(-1, 0), nullptr, &radius));
    EXPECT_FALSE(CreateCircleFrom3Point(At(1, 0), At(0, 1), At(-1, 0), &centre, nullptr));
    EXPECT_FALSE(CreateCircleFrom3Point(At(1, 0), At(0, 1), At(-1, 0), nullptr, nullptr));
    EXPECT_TRUE(SameBits(centre, Untouched()));
    EXPECT_TRUE(SameBits(radius, UntouchedNumber()));
}

TEST(CircleThroughThreePoints, MayReplaceOneOfThem)
{
    DPOINT2 points[] = {At(6, 2), At(4, 6), At(-2, -2)};
    for (DPOINT2& point : points)
    {
        const DPOINT2 before = point;
        double radius = 0.0;
        EXPECT_TRUE(CreateCircleFrom3Point(points[0], points[1], points[2], &point, &radius));
        EXPECT_TRUE(IsCircle({true, point, radius}, At(1, 2), 5.0, 1e-14));
        point = before;
    }
}

TEST(CircleThroughThreePoints, IsFoundAgainFromThreeOfItsPoints)
{
    Random random(63);
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 centre = random.Point(5.0);
        const double radius = random.Size(0.1, 10.0);
        const double first = random.Radian();
        const double second = first + random.Number(0.3, 2.9);
        const double third = second + random.Number(0.3, 2.9);
        const DPOINT2 p1 = GetPointInCircle(centre, radius, first);
        const DPOINT2 p2 = GetPointInCircle(centre, radius, second);
        const DPOINT2 p3 = GetPointInCircle(centre, radius, third);
        const double tolerance = 1e-12 * (10.0 + radius);
        EXPECT_TRUE(IsCircle(Through(p1, p2, p3), centre, radius, tolerance));
        EXPECT_TRUE(IsCircle(Through(p3, p1, p2), centre, radius, tolerance));
        EXPECT_TRUE(IsCircle(Through(p2, p1, p3), centre, radius, tolerance));
    }
}
