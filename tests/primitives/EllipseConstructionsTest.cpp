#include "support/Support.h"

#include <algorithm>
#include <cmath>

using namespace math;
using namespace math::test;

namespace
{

/// The angle whose cosine is 0.6 and whose sine is 0.8, up to rounding.
const double ThreeFourFive = std::atan2(4.0, 3.0);

const DPOINT2 Origin;

/// The point of an ellipse in its own frame at a polar angle, from its equation in polar coordinates.
DPOINT2 OnOwnEllipse(double a, double b, double radian)
{
    const double distance = 1.0 / std::hypot(std::cos(radian) / a, std::sin(radian) / b);
    return At(distance * std::cos(radian), distance * std::sin(radian));
}

/// The greatest distance of many points of an elliptical arc from the straight line through its ends.
double SampledHeight(double a, double b, double start, double sweep)
{
    const DPOINT2 first = OnOwnEllipse(a, b, start);
    const DPOINT2 last = OnOwnEllipse(a, b, start + sweep);
    double greatest = 0.0;
    for (int step = 0; step <= 4000; ++step)
    {
        const DPOINT2 point = OnOwnEllipse(a, b, start + sweep * step / 4000.0);
        const double cross = (last.x - first.x) * (point.y - first.y) - (last.y - first.y) * (point.x - first.x);
        greatest = std::max(greatest, std::abs(cross));
    }
    return greatest / std::hypot(last.x - first.x, last.y - first.y);
}

struct TangentPoints
{
    DPOINT2 first = Untouched();
    DPOINT2 second = Untouched();
};

/// The tangent points of the ellipse about the origin with semi-axes 2 and 1.
TangentPoints PlainTangentPoints(double radian)
{
    TangentPoints points;
    EXPECT_EQ(GetTangentPointOfEllipse(Origin, 2.0, 1.0, 0.0, radian, &points.first, &points.second), 2);
    return points;
}

} // namespace

// Points at an angle

TEST(PointInCircle, LiesInTheGivenDirection)
{
    EXPECT_EQ(GetPointInCircle(At(1, 1), 2.0, 0.0), At(3, 1));
    EXPECT_TRUE(Near(GetPointInCircle(At(1, 2), 5.0, ThreeFourFive), At(4, 6), 1e-14));
    EXPECT_TRUE(Near(GetPointInCircle(At(1, 2), 5.0, -ThreeFourFive), At(4, -2), 1e-14));
    EXPECT_TRUE(Near(GetPointInCircle(At(1, 2), -5.0, ThreeFourFive), At(-2, -2), 1e-14));
    EXPECT_EQ(GetPointInCircle(At(1, 2), 0.0, 0.7), At(1, 2));
    EXPECT_TRUE(Near(GetPointInCircle(At(1, 2), 0.25, HalfPi), At(1, 2.25), 1e-15));
}

TEST(PointInEllipse, LiesOnTheRayFromTheCentre)
{
    EXPECT_EQ(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, 0.0), At(2, 0));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, HalfPi), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, Pi), At(-2, 0), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, ThreeHalvesPi), At(0, -1), 1e-15));
    // On y = x: x²/4 + x² = 1. In the other three quarters likewise.
    const double diagonal = std::sqrt(0.8);
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, QuarterPi), At(diagonal, diagonal), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, 3 * QuarterPi), At(-diagonal, diagonal), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, 5 * QuarterPi), At(-diagonal, -diagonal), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, 7 * QuarterPi), At(diagonal, -diagonal), 1e-15));
}

TEST(PointInEllipse, IsTurnedAndShiftedWithTheEllipse)
{
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, HalfPi, 0.0), At(0, 2), 1e-15));
    // Own x axis along (3, 4)/5 about (1, 2): the own points (10, 0), (0, 5), (-10, 0), (0, -5).
    EXPECT_TRUE(Near(GetPointInEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, 0.0), At(7, 10), 1e-14));
    EXPECT_TRUE(Near(GetPointInEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, HalfPi), At(-3, 5), 1e-14));
    EXPECT_TRUE(Near(GetPointInEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, Pi), At(-5, -6), 1e-14));
    EXPECT_TRUE(Near(GetPointInEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, ThreeHalvesPi), At(5, -1), 1e-14));
    // a may be the shorter one.
    EXPECT_TRUE(Near(GetPointInEllipse(At(1, 2), 5.0, 10.0, ThreeFourFive, 0.0), At(4, 6), 1e-14));
}

TEST(PointInEllipse, IsTheOppositeVertexJustWithinTheLeftHalfPlane)
{
    // Within the tolerance of the upright the angle is kept, but the half turn of the left half plane is added.
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, HalfPi + 5e-10), At(0, -1), 2e-9));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, Next(HalfPi)), At(0, -1), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, HalfPi), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, Previous(HalfPi)), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, HalfPi - 5e-10), At(0, 1), 2e-9));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, ThreeHalvesPi - 5e-10), At(0, 1), 2e-9));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, Previous(ThreeHalvesPi)), At(0, 1), 3e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, ThreeHalvesPi), At(0, -1), 1e-15));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, Next(ThreeHalvesPi)), At(0, -1), 3e-15));
    // Out of the tolerance it is the near vertex again.
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, HalfPi + 2e-9), At(0, 1), 5e-9));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, ThreeHalvesPi - 2e-9), At(0, -1), 5e-9));
}

TEST(PointInEllipse, TakesAnUprightAngleForTheEccentricParameterWithinTheToleranceOnly)
{
    // The own x is a·δ for an eccentric and b·δ for a polar angle δ off the upright.
    const double a = 2000.0;
    const double within = 0.999e-9;
    const double without = 1.001e-9;
    const auto xAt = [&](double radian) { return GetPointInEllipse(Origin, a, 1.0, 0.0, radian).x; };
    EXPECT_TRUE(Near(xAt(HalfPi - within), a * within, 1e-11));
    EXPECT_TRUE(Near(xAt(HalfPi - without), without, 1e-12));
    EXPECT_TRUE(Near(xAt(HalfPi + within), a * within, 1e-11)); // minus a·δ, turned by half a turn
    EXPECT_TRUE(Near(xAt(HalfPi + without), -without, 1e-12));
    EXPECT_TRUE(Near(xAt(ThreeHalvesPi + within), a * within, 2e-11));
    EXPECT_TRUE(Near(xAt(ThreeHalvesPi + without), without, 2e-12));
    EXPECT_TRUE(Near(xAt(ThreeHalvesPi - within), a * within, 2e-11));
    EXPECT_TRUE(Near(xAt(ThreeHalvesPi - without), -without, 2e-12));
}

TEST(PointInEllipse, DoesNotFoldItsAngle)
{
    // Half a turn too low the half turn is not added: the direction of -3 gives the point at -3 + π.
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, -3.0), OnOwnEllipse(2.0, 1.0, Pi - 3.0), 1e-14));
    EXPECT_TRUE(Near(GetPointInEllipse(Origin, 2.0, 1.0, 0.0, -0.5), OnOwnEllipse(2.0, 1.0, -0.5), 1e-14));
}

TEST(PointInEllipse, FollowsThePolarEquation)
{
    Random random(51);
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 centre = random.Point(5.0);
        const double a = random.Size(0.1, 10.0);
        const double b = random.Size(0.1, 10.0);
        const double rotation = random.Number(-7.0, 7.0);
        const double radian = random.Radian();
        const DPOINT2 expected = CoorTransUVToXY(OnOwnEllipse(a, b, radian), centre, rotation);
        EXPECT_TRUE(
            Near(GetPointInEllipse(centre, a, b, rotation, radian), expected, 1e-12 * (1.0 + a * a / b + b * b / a)));
        EXPECT_TRUE(Near(GetPointInEllipse(centre, a, a, rotation, radian),
                         GetPointInCircle(centre, a, rotation + radian), 1e-12));
    }
}

// Height of an arc

TEST(HeightOfEllipseArc, IsTheDistanceFromTheChordToTheTangentAlongIt)
{
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, 0.0, Pi), 1.0, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, HalfPi, Pi), 2.0, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi, Pi), 2.0, 1e-15));
    // The chord from (2, 0) to (0, 1): tangents y = -x/2 ± √2, distances (√2 ∓ 1) cos(atan ½).
    const double cosine = 2.0 / std::sqrt(5.0);
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, 0.0, HalfPi), (std::sqrt(2.0) - 1.0) * cosine, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, HalfPi, 3 * HalfPi), (std::sqrt(2.0) + 1.0) * cosine, 1e-15));
    // Level chord at y = √½ between the directions of (±√2, √½), heights 1 ∓ √½.
    const double slope = std::atan(0.5);
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, slope, Pi - 2 * slope), 1.0 - std::sqrt(0.5), 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, Pi - slope, Pi + 2 * slope), 1.0 + std::sqrt(0.5), 1e-15));
}

TEST(HeightOfEllipseArc, OverAnUprightChordIsMeasuredAlongTheLongAxis)
{
    // Chords at x = ±√2 between the directions ±atan ½, and the same to the left.
    const double slope = std::atan(0.5);
    const double root = std::sqrt(2.0);
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, TwoPi - slope, 2 * slope), 2.0 - root, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, slope, TwoPi - 2 * slope), 2.0 + root, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, Pi - slope, 2 * slope), 2.0 - root, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, Pi + slope, TwoPi - 2 * slope), 2.0 + root, 2e-15));
}

TEST(HeightOfEllipseArc, OfACircleIsTheSagitta)
{
    for (double start = 0.0; start < TwoPi; start += 0.37)
    {
        for (double sweep = 0.1; sweep < TwoPi; sweep += 0.29)
        {
            SCOPED_TRACE(Digits(start) + " over " + Digits(sweep));
            // The steeper the chord the more of its slope is lost.
            const double width = 3.0 * std::abs(std::cos(start) - std::cos(start + sweep));
            const double tolerance = 1e-14 * (1.0 + 1.0 / width);
            EXPECT_TRUE(
                Near(GetHeightOfEllipseArc(3.0, 3.0, start, sweep), 3.0 * (1.0 - std::cos(sweep / 2)), tolerance));
        }
    }
}

TEST(HeightOfEllipseArc, CallsAChordUprightBelowTheTolerance)
{
    // The quarter of a circle of radius 1e-9 has ends whose x differ by exactly 1e-9: a slanting chord, r (1 - √½)
    // high. On the next smaller circle the chord counts as upright at x = r, where the height is 0.
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(1e-9, 1e-9, 0.0, HalfPi), 1e-9 * (1.0 - std::sqrt(0.5)), 1e-23));
    EXPECT_EQ(GetHeightOfEllipseArc(Previous(1e-9), Previous(1e-9), 0.0, HalfPi), 0.0);
}

TEST(HeightOfEllipseArc, HasNoHalfTurnWithinTheToleranceOfTheUpright)
{
    // With ends just within the left half plane the height is next to that with upright ends.
    const double near = 5e-10;
    const double fromTop = GetHeightOfEllipseArc(2.0, 1.0, HalfPi, 1.0);
    EXPECT_TRUE(Near(fromTop, SampledHeight(2.0, 1.0, HalfPi, 1.0), 1e-6));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, HalfPi + near, 1.0), fromTop, 1e-8));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, Next(HalfPi), 1.0), fromTop, 1e-14));
    const double fromBottom = GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi, 1.0);
    EXPECT_TRUE(Near(fromBottom, SampledHeight(2.0, 1.0, ThreeHalvesPi, 1.0), 1e-6));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi - near, 1.0), fromBottom, 1e-8));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, Previous(ThreeHalvesPi), 1.0), fromBottom, 1e-14));
    const double toTop = GetHeightOfEllipseArc(2.0, 1.0, HalfPi - 1.0, 1.0);
    EXPECT_TRUE(Near(toTop, SampledHeight(2.0, 1.0, HalfPi - 1.0, 1.0), 1e-6));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, HalfPi - 1.0, 1.0 + near), toTop, 1e-8));
    const double toBottom = GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi - 1.0, 1.0);
    EXPECT_TRUE(Near(toBottom, SampledHeight(2.0, 1.0, ThreeHalvesPi - 1.0, 1.0), 1e-6));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi - 1.0, 1.0 - near), toBottom, 1e-8));
    // Out of the tolerance there is one, and the height is still next to it.
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, HalfPi + 2e-9, 1.0), fromTop, 4e-8));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi - 2e-9, 1.0), fromBottom, 4e-8));
}

TEST(HeightOfEllipseArc, FoldsItsSecondEnd)
{
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, 5.0, 4.0), SampledHeight(2.0, 1.0, 5.0, 4.0), 1e-5));
    // An end at exactly a full turn is that at 0.
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, Pi, Pi), 1.0, 1e-15));
    EXPECT_TRUE(Near(GetHeightOfEllipseArc(2.0, 1.0, ThreeHalvesPi, HalfPi),
                     (std::sqrt(2.0) - 1.0) * 2.0 / std::sqrt(5.0), 1e-15));
}

TEST(HeightOfEllipseArc, ExistsForValidArgumentsOnly)
{
    const auto exists = [](double a, double b, double start, double sweep) {
        return !std::isnan(GetHeightOfEllipseArc(a, b, start, sweep));
    };
    EXPECT_FALSE(exists(1.0, 2.0, 0.0, 1.0));
    EXPECT_FALSE(exists(1.0, Next(1.0), 0.0, 1.0));
    EXPECT_TRUE(exists(1.0, 1.0, 0.0, 1.0));
    EXPECT_FALSE(exists(2.0, 0.0, 0.0, 1.0));
    EXPECT_FALSE(exists(2.0, 0.0, 0.5, 0.4));
    EXPECT_FALSE(exists(2.0, -1.0, 0.0, 1.0));
    EXPECT_FALSE(exists(2.0, -5e-324, 0.0, 1.0));
    EXPECT_TRUE(exists(2.0, 1e-300, 0.5, 1.0));
    EXPECT_FALSE(exists(0.0, 0.0, 0.0, 1.0));
    EXPECT_FALSE(exists(-2.0, -3.0, 0.0, 1.0));
    EXPECT_TRUE(exists(2.0, 1.0, 0.0, 1.0));
    EXPECT_TRUE(exists(2.0, 1.0, -0.0, 1.0));
    EXPECT_FALSE(exists(2.0, 1.0, -5e-324, 1.0));
    EXPECT_TRUE(exists(2.0, 1.0, Previous(TwoPi), 1.0));
    EXPECT_FALSE(exists(2.0, 1.0, TwoPi, 1.0));
    EXPECT_FALSE(exists(2.0, 1.0, 0.5, 0.0));
    EXPECT_FALSE(exists(2.0, 1.0, 0.5, -1.0));
    EXPECT_TRUE(exists(2.0, 1.0, 0.5, 5e-324));
    EXPECT_TRUE(exists(2.0, 1.0, 0.5, Previous(TwoPi)));
    EXPECT_FALSE(exists(2.0, 1.0, 0.5, TwoPi));
    EXPECT_FALSE(exists(InvalidDouble, 1.0, 0.5, 1.0));
    EXPECT_FALSE(exists(2.0, InvalidDouble, 0.5, 1.0));
    EXPECT_FALSE(exists(2.0, 1.0, InvalidDouble, 1.0));
    EXPECT_FALSE(exists(2.0, 1.0, 0.5, InvalidDouble));
    EXPECT_FALSE(exists(2.0, 1.0, 0.5, Infinity));
    EXPECT_FALSE(exists(2.0, 1.0, Infinity, 1.0));
}

TEST(HeightOfEllipseArc, IsTheGreatestDistanceOfManyOfItsPoints)
{
    Random random(52);
    for (int i = 0; i < 400; ++i)
    {
        const double b = random.Size(0.2, 3.0);
        const double a = b * random.Number(1.0, 4.0);
        const double start = random.Radian();
        const double sweep = random.Number(0.05, 6.2);
        SCOPED_TRACE(Digits(a) + ", " + Digits(b) + " from " + Digits(start) + " over " + Digits(sweep));
        const double sampled = SampledHeight(a, b, start, sweep);
        EXPECT_TRUE(Near(GetHeightOfEllipseArc(a, b, start, sweep), sampled, 2e-5 * a * a / b));
        EXPECT_GE(GetHeightOfEllipseArc(a, b, start, sweep), sampled - 1e-10 * a);
    }
}

// Tangents

TEST(TangentOfEllipse, RunsAcrossTheAxisAtAVertex)
{
    EXPECT_EQ(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(2, 0)), HalfPi);
    EXPECT_EQ(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(-2, 0)), HalfPi);
    EXPECT_EQ(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(0, 1)), 0.0);
    EXPECT_EQ(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(0, -1)), 0.0);
    EXPECT_TRUE(NearDirection(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, HalfPi, At(0, 2)), 0.0, Pi, 1e-15));
    EXPECT_TRUE(Near(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, HalfPi, At(-1, 0)), HalfPi, 1e-15));
}

TEST(TangentOfEllipse, HasTheSlopeOfTheImplicitDerivative)
{
    // At (1.2, 0.8) of x²/4 + y² = 1 the slope is -x/(4y) = -0.375, at (-1.2, 0.8) its opposite.
    EXPECT_TRUE(Near(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(1.2, 0.8)), Pi - std::atan(0.375), 1e-14));
    EXPECT_TRUE(Near(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(-1.2, 0.8)), std::atan(0.375), 1e-14));
    EXPECT_TRUE(Near(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(1.2, -0.8)), std::atan(0.375), 1e-14));
    // Semi-axes 5 and 2 about (1, 2), own x axis along (3, 4)/5: the own point (3, 1.6) has the slope -4*3/(25*1.6).
    EXPECT_TRUE(Near(GetTangentAngleOfEllipse(At(1, 2), 5.0, 2.0, ThreeFourFive, At(1.52, 5.36)),
                     ThreeFourFive - std::atan(0.3), 1e-14));
    // A whole turn more changes nothing, a negative rotation is folded with the sum.
    EXPECT_TRUE(Near(GetTangentAngleOfEllipse(At(1, 2), 5.0, 2.0, ThreeFourFive - TwoPi, At(1.52, 5.36)),
                     ThreeFourFive - std::atan(0.3), 1e-14));
}

TEST(TangentOfEllipse, IsUprightWithinTheToleranceOfTheLongAxis)
{
    // With semi-axes 1000 and 0.001 an ordinate of 1e-9 at the vertex has the slope -1000 * 1e-6 / (1e-9 * 1e6) = -1.
    const auto angle = [](double u, double v) {
        return GetTangentAngleOfEllipse(Origin, 1000.0, 0.001, 0.0, At(u, v));
    };
    EXPECT_TRUE(Near(angle(1000.0, 1e-9), 3 * QuarterPi, 1e-14));
    EXPECT_EQ(angle(1000.0, Previous(1e-9)), HalfPi);
    EXPECT_TRUE(Near(angle(1000.0, -1e-9), QuarterPi, 1e-14));
    EXPECT_EQ(angle(1000.0, -Previous(1e-9)), HalfPi);
    EXPECT_TRUE(Near(angle(-1000.0, 1e-9), QuarterPi, 1e-14));
}

TEST(TangentOfEllipse, DoesNotExistOffTheEllipse)
{
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(5, 5))));
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(0, 0))));
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(1, 2))));
    for (const double sign : {1.0, -1.0})
    {
        const double within = 1 + sign * 0.49e-9;
        const double without = 1 + sign * 0.51e-9;
        EXPECT_EQ(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(2 * within, 0)), HalfPi);
        EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(2 * without, 0))));
        EXPECT_EQ(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(0, within)), 0.0);
        EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(0, without))));
    }
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, 0.0, At(InvalidDouble, 0))));
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, InvalidDouble, 1.0, 0.0, At(2, 0))));
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, InvalidDouble, At(2, 0))));
    EXPECT_TRUE(std::isnan(GetTangentAngleOfEllipse(Origin, 2.0, 1.0, Infinity, At(2, 0))));
}

TEST(TangentPointsOfEllipse, AreTheVerticesForTangentsAlongTheAxes)
{
    const TangentPoints level = PlainTangentPoints(0.0);
    EXPECT_EQ(level.first, At(0, -1));
    EXPECT_EQ(level.second, At(0, 1));
    const TangentPoints upright = PlainTangentPoints(HalfPi);
    EXPECT_EQ(upright.first, At(-2, 0));
    EXPECT_EQ(upright.second, At(2, 0));
    // Only the direction modulo half a turn counts.
    const TangentPoints levelBackwards = PlainTangentPoints(-Pi);
    EXPECT_EQ(levelBackwards.first, At(0, -1));
    EXPECT_EQ(levelBackwards.second, At(0, 1));
    const TangentPoints downwards = PlainTangentPoints(ThreeHalvesPi);
    EXPECT_EQ(downwards.first, At(-2, 0));
    EXPECT_EQ(downwards.second, At(2, 0));
}

TEST(TangentPointsOfEllipse, StartWithTheUpperOneForASlantingTangent)
{
    // Slope 1/2: the points ±(-√2, √½), where -x/(4y) is 1/2.
    const double x = std::sqrt(2.0);
    const double y = std::sqrt(0.5);
    const double rising = std::atan(0.5);
    TangentPoints points = PlainTangentPoints(rising);
    EXPECT_TRUE(Near(points.first, At(-x, y), 1e-15));
    EXPECT_TRUE(Near(points.second, At(x, -y), 1e-15));
    points = PlainTangentPoints(rising - Pi);
    EXPECT_TRUE(Near(points.first, At(-x, y), 1e-15));
    EXPECT_TRUE(Near(points.second, At(x, -y), 1e-15));
    points = PlainTangentPoints(Pi - rising);
    EXPECT_TRUE(Near(points.first, At(x, y), 1e-15));
    EXPECT_TRUE(Near(points.second, At(-x, -y), 1e-15));
    points = PlainTangentPoints(-rising);
    EXPECT_TRUE(Near(points.first, At(x, y), 1e-15));
    EXPECT_TRUE(Near(points.second, At(-x, -y), 1e-15));
}

TEST(TangentPointsOfEllipse, AreNaNForADirectionOfNaN)
{
    const TangentPoints points = PlainTangentPoints(InvalidDouble);
    EXPECT_EQ(points.first, At(InvalidDouble, InvalidDouble));
    EXPECT_EQ(points.second, At(InvalidDouble, InvalidDouble));
}

TEST(TangentPointsOfEllipse, TurnWithTheEllipse)
{
    // Semi-axes 10 and 5 about (1, 2), own x axis along (3, 4)/5. Along that axis: the own points (0, ∓5).
    DPOINT2 first = Untouched();
    DPOINT2 second = Untouched();
    EXPECT_EQ(GetTangentPointOfEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, ThreeFourFive, &first, &second), 2);
    EXPECT_TRUE(Near(first, At(5, -1), 1e-14));
    EXPECT_TRUE(Near(second, At(-3, 5), 1e-14));
    // Across: the own points (∓10, 0).
    EXPECT_EQ(GetTangentPointOfEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, ThreeFourFive - HalfPi, &first, &second), 2);
    EXPECT_TRUE(Near(first, At(-5, -6), 1e-14));
    EXPECT_TRUE(Near(second, At(7, 10), 1e-14));
    // Own slope 1/2: the own points ±(-5√2, 5√½), that is √½ (-10, 5), turned √½ (-10, -5).
    const double root = std::sqrt(0.5);
    EXPECT_EQ(
        GetTangentPointOfEllipse(At(1, 2), 10.0, 5.0, ThreeFourFive, ThreeFourFive + std::atan(0.5), &first, &second),
        2);
    EXPECT_TRUE(Near(first, At(1 - 10 * root, 2 - 5 * root), 1e-13));
    EXPECT_TRUE(Near(second, At(1 + 10 * root, 2 + 5 * root), 1e-13));
}

TEST(TangentPointsOfEllipse, AreVerticesWithinTheToleranceOnly)
{
    // A tangent that rises by δ touches 4δ left of the lower and right of the upper vertex.
    TangentPoints points = PlainTangentPoints(Previous(1e-9));
    EXPECT_EQ(points.first, At(0, -1));
    EXPECT_EQ(points.second, At(0, 1));
    points = PlainTangentPoints(1e-9);
    EXPECT_TRUE(Near(points.first, At(-4e-9, 1), 1e-15));
    EXPECT_TRUE(Near(points.second, At(4e-9, -1), 1e-15));
    points = PlainTangentPoints(Pi - 0.999e-9);
    EXPECT_EQ(points.first, At(0, -1));
    EXPECT_EQ(points.second, At(0, 1));
    points = PlainTangentPoints(Pi - 1.001e-9);
    EXPECT_TRUE(Near(points.first, At(4.004e-9, 1), 1e-14));
    EXPECT_TRUE(Near(points.second, At(-4.004e-9, -1), 1e-14));
    // Beside the upright by δ the points move up or down by δ/2.
    points = PlainTangentPoints(HalfPi - 0.999e-9);
    EXPECT_EQ(points.first, At(-2, 0));
    EXPECT_EQ(points.second, At(2, 0));
    points = PlainTangentPoints(HalfPi - 1.001e-9);
    EXPECT_TRUE(Near(points.first, At(-2, 0.5005e-9), 1e-15));
    EXPECT_TRUE(Near(points.second, At(2, -0.5005e-9), 1e-15));
    EXPECT_GT(points.first.y, 0.0);
    points = PlainTangentPoints(HalfPi + 0.999e-9);
    EXPECT_EQ(points.first, At(-2, 0));
    EXPECT_EQ(points.second, At(2, 0));
    points = PlainTangentPoints(HalfPi + 1.001e-9);
    EXPECT_TRUE(Near(points.first, At(2, 0.5005e-9), 1e-15));
    EXPECT_TRUE(Near(points.second, At(-2, -0.5005e-9), 1e-15));
    EXPECT_GT(points.first.y, 0.0);
}

TEST(TangentPointsOfEllipse, MayBeAskedForOneByOne)
{
    for (const double radian : {0.0, HalfPi, 0.5, 2.5})
    {
        const TangentPoints both = PlainTangentPoints(radian);
        DPOINT2 point = Untouched();
        EXPECT_EQ(GetTangentPointOfEllipse(Origin, 2.0, 1.0, 0.0, radian, &point, nullptr), 2);
        EXPECT_TRUE(SameBits(point, both.first));
        EXPECT_EQ(GetTangentPointOfEllipse(Origin, 2.0, 1.0, 0.0, radian, nullptr, &point), 2);
        EXPECT_TRUE(SameBits(point, both.second));
        EXPECT_EQ(GetTangentPointOfEllipse(Origin, 2.0, 1.0, 0.0, radian, nullptr, nullptr), 2);
    }
}

TEST(TangentPointsOfEllipse, WithoutOutputsAreNotLookedFor)
{
    // Not even the direction is folded, which would never end.
    EXPECT_EQ(GetTangentPointOfEllipse(Origin, 2.0, 1.0, 0.0, Infinity, nullptr, nullptr), 2);
}

TEST(TangentPointsOfEllipse, MayReplaceTheCentre)
{
    for (const double radian : {0.0, HalfPi, 0.5, 2.5})
    {
        DPOINT2 first;
        DPOINT2 second;
        GetTangentPointOfEllipse(At(1, 2), 5.0, 2.0, 0.25, radian, &first, &second);
        DPOINT2 centre = At(1, 2);
        DPOINT2 other;
        GetTangentPointOfEllipse(centre, 5.0, 2.0, 0.25, radian, &centre, &other);
        EXPECT_TRUE(SameBits(centre, first));
        EXPECT_TRUE(SameBits(other, second));
        centre = At(1, 2);
        GetTangentPointOfEllipse(centre, 5.0, 2.0, 0.25, radian, &other, &centre);
        EXPECT_TRUE(SameBits(other, first));
        EXPECT_TRUE(SameBits(centre, second));
    }
}

TEST(TangentPointsOfEllipse, HaveTheTangentThatWasAskedFor)
{
    Random random(53);
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 centre = random.Point(5.0);
        const double a = random.Size(0.2, 5.0);
        const double b = random.Size(0.2, 5.0);
        const double rotation = random.Number(-7.0, 7.0);
        const double radian = random.Number(-7.0, 7.0);
        DPOINT2 points[2];
        EXPECT_EQ(GetTangentPointOfEllipse(centre, a, b, rotation, radian, &points[0], &points[1]), 2);
        for (const DPOINT2& point : points)
        {
            EXPECT_TRUE(IsPointInEllipse(point, centre, a, b, rotation));
            const double tangent = GetTangentAngleOfEllipse(centre, a, b, rotation, point);
            EXPECT_TRUE(NearDirection(tangent, radian, Pi, 1e-10));
            EXPECT_TRUE(tangent >= 0.0 && tangent < Pi);
            // The gradient of the implicit equation is across the tangent.
            const DPOINT2 own = CoorTransXYToUV(point, centre, rotation);
            const double alongGradient =
                own.x / (a * a) * std::cos(radian - rotation) + own.y / (b * b) * std::sin(radian - rotation);
            EXPECT_TRUE(Near(alongGradient, 0.0, 1e-11 * (1 / a + 1 / b)));
        }
        // Both lie opposite each other.
        EXPECT_TRUE(Near(At((points[0].x + points[1].x) / 2, (points[0].y + points[1].y) / 2), centre, 1e-14 * 20));
        EXPECT_GT(D2GetDistance(points[0], points[1]), std::min(a, b));
    }
}
