#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <string>

using namespace math;
using namespace math::test;

namespace
{

struct Ellipse
{
    double a;
    double b;
    double rotation;
};

/// The matrix of the quadratic form whose value 1 is the ellipse.
struct Conic
{
    double xx;
    double xy;
    double yy;
};

std::string Text(const Ellipse& ellipse)
{
    return Digits(ellipse.a) + ", " + Digits(ellipse.b) + " turned by " + Digits(ellipse.rotation);
}

Ellipse Scaled(Ellipse ellipse, double factor)
{
    EXPECT_TRUE(ScaleEllipse(&ellipse.a, &ellipse.b, &ellipse.rotation, factor));
    return ellipse;
}

Ellipse Scaled(Ellipse ellipse, double factorX, double factorY)
{
    EXPECT_TRUE(ScaleEllipse(&ellipse.a, &ellipse.b, &ellipse.rotation, factorX, factorY));
    return ellipse;
}

Conic ConicOf(const Ellipse& ellipse)
{
    const double c = std::cos(ellipse.rotation);
    const double s = std::sin(ellipse.rotation);
    const double p = 1.0 / (ellipse.a * ellipse.a);
    const double q = 1.0 / (ellipse.b * ellipse.b);
    return {p * c * c + q * s * s, (p - q) * c * s, p * s * s + q * c * c};
}

/// The semi-axes of a conic, the longer one first, from the eigenvalues of its matrix.
Ellipse AxesOf(const Conic& conic)
{
    const double mean = (conic.xx + conic.yy) / 2.0;
    const double deviation = std::hypot((conic.xx - conic.yy) / 2.0, conic.xy);
    const double rotation = std::atan2(2.0 * conic.xy, conic.xx - conic.yy) / 2.0 + HalfPi;
    return {1.0 / std::sqrt(mean - deviation), 1.0 / std::sqrt(mean + deviation), rotation};
}

/// What becomes of the conic when the plane is scaled.
Conic ScaledConic(const Conic& conic, double factorX, double factorY)
{
    return {conic.xx / (factorX * factorX), conic.xy / (factorX * factorY), conic.yy / (factorY * factorY)};
}

/// The same curve: the two matrices agree, measured against the larger eigenvalue.
::testing::AssertionResult IsCurve(const Ellipse& ellipse, const Conic& conic, double tolerance)
{
    const Conic own = ConicOf(ellipse);
    const double size = conic.xx + conic.yy;
    if (std::abs(own.xx - conic.xx) <= tolerance * size && std::abs(own.xy - conic.xy) <= tolerance * size &&
        std::abs(own.yy - conic.yy) <= tolerance * size)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Text(ellipse) << " instead of " << Text(AxesOf(conic));
}

::testing::AssertionResult IsEllipse(const Ellipse& ellipse, double a, double b, double rotation, double tolerance)
{
    if (std::abs(ellipse.a - a) <= tolerance && std::abs(ellipse.b - b) <= tolerance &&
        std::abs(ellipse.rotation - rotation) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << Text(ellipse);
}

/// An ellipse whose axes are well apart from each other and from those of the world, where Rytz's construction is well
/// conditioned.
Ellipse RandomEllipse(Random& random)
{
    const double shorter = random.Size(0.2, 2.0);
    const double longer = shorter * random.Number(1.2, 4.0);
    const double rotation = random.Number(0.1, HalfPi - 0.1) + (random.Coin() ? HalfPi : 0.0);
    return random.Coin() ? Ellipse{longer, shorter, rotation} : Ellipse{shorter, longer, rotation};
}

/// A factor well apart from 1 and -1.
double RandomFactor(Random& random)
{
    const double factor = random.Number(1.2, 4.0);
    return (random.Coin() ? 1.0 : -1.0) * (random.Coin() ? factor : 1.0 / factor);
}

} // namespace

TEST(ScaledEllipse, HasTheAxesOfTheImage)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.5}, 2.0), 5.504118961, 1.090092718, 0.240436203, 5e-10));
    // An ellipse at 45° with the matrix (5/8, -3/8; -3/8, 5/8), semi-axes 2 and 1. Scaled by 2 along x the matrix is
    // (5/32, -3/16; -3/16, 5/8), with the eigenvalues (25 ± √369)/64.
    const double root = std::sqrt(369.0);
    EXPECT_TRUE(IsEllipse(Scaled({2, 1, QuarterPi}, 2.0), std::sqrt(64.0 / (25.0 - root)),
                          std::sqrt(64.0 / (25.0 + root)), std::atan2(0.375, 15.0 / 32.0) / 2.0, 1e-14));
    // A circle becomes an ellipse along the axes, whatever its rotation.
    const Ellipse circle = Scaled({1, 1, 0.5}, 2.0);
    EXPECT_TRUE(Near(circle.a, 2.0, 1e-14));
    EXPECT_TRUE(Near(circle.b, 1.0, 1e-14));
    EXPECT_TRUE(NearDirection(circle.rotation, 0.0, Pi, 1e-7));
}

TEST(ScaledEllipse, AlongAnAxisOfItsOwnHasThatAxisAloneScaled)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 2.0), 6, 1, 0.0, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, Pi}, 2.0), 6, 1, Pi, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, HalfPi}, 2.0), 3, 2, HalfPi, 0.0));
    // The axes are not put in order.
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 0.25), 0.75, 1, 0.0, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, HalfPi}, 5.0), 3, 5, HalfPi, 0.0));
}

TEST(ScaledEllipse, IsAlongAnAxisWithinAWiderTolerance)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.999e-6}, 2.0), 6, 1, 0.999e-6, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, -0.999e-6}, 2.0), 6, 1, -0.999e-6, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, Pi - 0.999e-6}, 2.0), 6, 1, Pi - 0.999e-6, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, Pi + 0.999e-6}, 2.0), 6, 1, Pi + 0.999e-6, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, HalfPi - 0.999e-6}, 2.0), 3, 2, HalfPi - 0.999e-6, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, HalfPi + 0.999e-6}, 2.0), 3, 2, HalfPi + 0.999e-6, 0.0));

    // A difference of exactly 1e-6 is no equality. The long axis then turns: by half as much when the plane is
    // stretched along it.
    const double below = Previous(1e-6);
    EXPECT_EQ(Scaled({3, 1, below}, 2.0).rotation, below);
    EXPECT_NE(Scaled({3, 1, 1e-6}, 2.0).rotation, 1e-6);
    for (const double rotation : {1.001e-6, Pi - 1.001e-6, HalfPi - 1.001e-6, HalfPi + 1.001e-6, Pi + 1.001e-6})
    {
        SCOPED_TRACE(rotation);
        const Ellipse scaled = Scaled({3, 1, rotation}, 2.0);
        EXPECT_NE(scaled.rotation, rotation);
        // Rytz's construction is steep there: of 16 digits the axes keep 9, the rotation keeps 2.
        const Ellipse expected = AxesOf(ScaledConic(ConicOf({3, 1, rotation}), 2.0, 1.0));
        EXPECT_TRUE(Near(scaled.a, expected.a, 1e-9));
        EXPECT_TRUE(Near(scaled.b, expected.b, 1e-9));
        EXPECT_TRUE(NearDirection(scaled.rotation, expected.rotation, Pi, 0.01));
    }
}

TEST(ScaledEllipse, StaysAsItIsForAFactorOfOne)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.5}, 1.0), 3, 1, 0.5, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 2.5}, 1.0), 3, 1, 2.5, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({1, 3, -0.5}, 1.0), 1, 3, -0.5, 0.0)); // and is not folded
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 1.0 + 0.999e-9), 3, 1, 0.0, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 1.0 - 0.999e-9), 3, 1, 0.0, 0.0));
    EXPECT_EQ(Scaled({3, 1, 0.0}, 1.0 + 1.001e-9).a, 3 * (1.0 + 1.001e-9));
    EXPECT_EQ(Scaled({3, 1, 0.0}, 1.0 - 1.001e-9).a, 3 * (1.0 - 1.001e-9));
}

TEST(ScaledEllipse, IsMirroredByANegativeFactor)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.5}, -1.0), 3, 1, -0.5 + Pi, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 2.5}, -1.0), 3, 1, -2.5 + Pi, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, -2.0), 6, 1, 0.0, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, HalfPi}, -2.0), 3, 2, HalfPi, 0.0));
    // The image of the ellipse at 0.5 under a factor of 2, mirrored.
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.5}, -2.0), 5.504118961, 1.090092718, Pi - 0.240436203, 5e-10));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, Pi - 0.5}, -2.0), 5.504118961, 1.090092718, 0.240436203, 5e-10));
    // The rotation is folded before it is compared with the axes.
    EXPECT_EQ(Scaled({3, 1, -0.25}, -1.0).rotation, 0.25);
    EXPECT_EQ(Scaled({3, 1, 4.0}, -1.0).rotation, (-4.0 + Pi) + Pi);
}

TEST(ScaledEllipse, InTheSecondQuarterIsTheMirrorImageOfThatInTheFirst)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, Pi - 0.5}, 2.0), 5.504118961, 1.090092718, Pi - 0.240436203, 5e-10));
    for (double rotation = 0.05; rotation < HalfPi; rotation += 0.1)
    {
        const Ellipse first = Scaled({3, 1, rotation}, 2.5);
        const Ellipse second = Scaled({3, 1, Pi - rotation}, 2.5);
        EXPECT_TRUE(IsEllipse(second, first.a, first.b, Pi - first.rotation, 1e-12));
    }
}

TEST(ScaledEllipse, TakesARotationOfUpToThreeQuarters)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, Pi + 0.5}, 2.0), 5.504118961, 1.090092718, 0.240436203, 5e-10));
    for (double rotation = Pi + 0.1; rotation < ThreeHalvesPi; rotation += 0.1)
    {
        SCOPED_TRACE(rotation);
        const Ellipse scaled = Scaled({3, 1, rotation}, 2.0);
        const Ellipse expected = Scaled({3, 1, rotation - Pi}, 2.0);
        EXPECT_TRUE(IsEllipse(scaled, expected.a, expected.b, expected.rotation, 1e-12));
        EXPECT_TRUE(IsCurve(scaled, ScaledConic(ConicOf({3, 1, rotation}), 2.0, 1.0), 1e-12));
    }
}

TEST(ScaledEllipse, OfNegativeRotationHasANegativeShortAxis)
{
    const Ellipse scaled = Scaled({3, 1, -0.5}, 2.0);
    EXPECT_TRUE(Near(scaled.a, 5.504118961, 5e-10));
    EXPECT_TRUE(Near(scaled.b, -1.090092718, 5e-10));
}

TEST(ScaledEllipse, HasOrderedAxesAndAFoldedRotation)
{
    Random random(54);
    for (int i = 0; i < 1000; ++i)
    {
        const Ellipse ellipse{random.Size(0.2, 5.0), random.Size(0.2, 5.0), random.Number(0.01, 1.56)};
        const double factor = random.Coin() ? random.Number(1.01, 5.0) : random.Number(0.2, 0.99);
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factor));
        const Ellipse scaled = Scaled(ellipse, factor);
        EXPECT_GE(scaled.a, scaled.b);
        EXPECT_GT(scaled.b, 0.0);
        EXPECT_GE(scaled.rotation, 0.0);
        EXPECT_LT(scaled.rotation, Pi);
    }
}

TEST(ScaledEllipse, IsTheScaledConic)
{
    Random random(55);
    for (int i = 0; i < 3000; ++i)
    {
        const Ellipse ellipse = RandomEllipse(random);
        const double factor = RandomFactor(random);
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factor));
        const Conic image = ScaledConic(ConicOf(ellipse), factor, 1.0);
        const Ellipse scaled = Scaled(ellipse, factor);
        EXPECT_TRUE(IsCurve(scaled, image, 1e-9));

        // The eigenvalues give the axes one by one, and the scaling gives the area.
        const Ellipse expected = AxesOf(image);
        EXPECT_TRUE(Near(scaled.a, expected.a, 1e-12 * expected.a));
        EXPECT_TRUE(Near(scaled.b, expected.b, 1e-12 * expected.a));
        EXPECT_TRUE(
            Near(scaled.a * scaled.b, ellipse.a * ellipse.b * std::abs(factor), 1e-12 * expected.a * expected.a));
    }
}

TEST(ScaledEllipse, HasTheAxesOfTheScaledConicNextToTheAxesToo)
{
    // There only the rotation is steep.
    Random random(58);
    for (int i = 0; i < 3000; ++i)
    {
        const Ellipse ellipse{random.Size(0.2, 5.0), random.Size(0.2, 5.0), random.Number(0.0, Pi)};
        const double factor = (random.Coin() ? 1.0 : -1.0) * random.Size(0.2, 5.0);
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factor));
        const Ellipse expected = AxesOf(ScaledConic(ConicOf(ellipse), factor, 1.0));
        const Ellipse scaled = Scaled(ellipse, factor);
        EXPECT_TRUE(Near(scaled.a, expected.a, 1e-9 * expected.a));
        EXPECT_TRUE(Near(scaled.b, expected.b, 1e-9 * expected.a));
    }
}

TEST(ScaledEllipse, KeepsARotationNextToTheAxes)
{
    // The sine that gives the new rotation is then next to 1 or -1, and often beyond it by rounding. Half of its digits
    // are lost, the more of them the nearer the axis.
    Random random(59);
    for (int i = 0; i < 3000; ++i)
    {
        const double slant = (random.Coin() ? 1.0 : -1.0) * random.Size(1.1e-6, 1e-2);
        const Ellipse ellipse{random.Number(2.0, 4.0), random.Number(0.5, 1.0), (random.Coin() ? Pi : HalfPi) + slant};
        const double factor = random.Coin() ? random.Number(1.1, 1.5) : random.Number(0.6, 0.9);
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factor));
        const Ellipse expected = AxesOf(ScaledConic(ConicOf(ellipse), factor, 1.0));
        const Ellipse scaled = Scaled(ellipse, factor);
        EXPECT_TRUE(scaled.rotation >= 0.0 && scaled.rotation < Pi);
        EXPECT_TRUE(NearDirection(scaled.rotation, expected.rotation, Pi, 3e-7 / std::abs(slant)));
    }
}

TEST(ScaledEllipse, ReturnsUnderTheInverseFactor)
{
    Random random(56);
    for (int i = 0; i < 500; ++i)
    {
        const Ellipse ellipse = RandomEllipse(random);
        const double factor = RandomFactor(random);
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factor));
        EXPECT_TRUE(IsCurve(Scaled(Scaled(ellipse, factor), 1.0 / factor), ConicOf(ellipse), 1e-8));
    }
}

TEST(EllipseScaledBothWays, KeepsItsShapeForEqualFactors)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.5}, 2.0, 2.0), 6, 2, 0.5, 1e-13));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 2.5}, 2.0, 2.0), 6, 2, 2.5, 1e-13));
    // The first scaling puts the longer axis first.
    EXPECT_TRUE(IsEllipse(Scaled({1, 3, 0.5}, 2.0, 2.0), 6, 2, 0.5 + HalfPi, 1e-13));
}

TEST(EllipseScaledBothWays, AlongItsAxesHasEachAxisScaled)
{
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 2.0, 5.0), 6, 5, 0.0, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, HalfPi}, 2.0, 5.0), 15, 2, HalfPi, 0.0));
    // Once the first axis has become the shorter one, the axes change places in lieu of a quarter turn.
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 0.25, 1.0), 0.75, 1, 0.0, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 0.0}, 0.25, 5.0), 0.75, 5, 0.0, 0.0));
}

TEST(EllipseScaledBothWays, MayEndWithTheShorterAxisFirst)
{
    // A circle has no longer axis, so its axes change places: what grows along y is b.
    const Ellipse circle = Scaled({2, 2, 0.5}, 1.0, 3.0);
    EXPECT_TRUE(Near(circle.a, 2.0, 1e-13));
    EXPECT_TRUE(Near(circle.b, 6.0, 1e-13));
    EXPECT_TRUE(NearDirection(circle.rotation, 0.0, Pi, 1e-7));
    // With a hair more in a it grows as a, a quarter turn on.
    const Ellipse nearlyCircle = Scaled({2 + 1e-12, 2, 0.5}, 1.0, 3.0);
    EXPECT_TRUE(Near(nearlyCircle.a, 6.0, 1e-11));
    EXPECT_TRUE(Near(nearlyCircle.b, 2.0, 1e-11));
    EXPECT_TRUE(NearDirection(nearlyCircle.rotation, HalfPi, Pi, 1e-6));
}

TEST(EllipseScaledBothWays, LeavesTheEllipseAsItIsForFactorsOfOne)
{
    EXPECT_TRUE(IsEllipse(Scaled({1, 3, 0.5}, 1.0, 1.0), 1, 3, 0.5, 0.0));
    EXPECT_TRUE(IsEllipse(Scaled({3, 1, 2.5}, 1.0, 1.0), 3, 1, 2.5, 1e-15));
}

TEST(EllipseScaledBothWays, AlongYIsAlongXInAFrameTurnedByAQuarterTurnBitForBit)
{
    // Up to half a turn, taking off a quarter turn is exact: the rotation in the turned frame is one double and no other.
    Random random(60);
    for (int i = 0; i < 1000; ++i)
    {
        const Ellipse ellipse{random.Number(2.0, 4.0), random.Number(0.5, 1.5), random.Number(HalfPi, Pi)};
        const double factor = RandomFactor(random);
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factor));
        const Ellipse inTurned = Scaled({ellipse.a, ellipse.b, ellipse.rotation - HalfPi}, factor);
        const Ellipse scaled = Scaled(ellipse, 1.0, factor);
        EXPECT_TRUE(SameBits(scaled.a, inTurned.a));
        EXPECT_TRUE(SameBits(scaled.b, inTurned.b));
        EXPECT_TRUE(SameBits(scaled.rotation, RegularizeIncludedRadian(inTurned.rotation + HalfPi)));
    }
}

TEST(EllipseScaledBothWays, IsTheScaledConic)
{
    Random random(57);
    for (int i = 0; i < 3000; ++i)
    {
        const Ellipse ellipse = RandomEllipse(random);
        const double factorX = RandomFactor(random);
        const double factorY = RandomFactor(random);
        const Ellipse between = AxesOf(ScaledConic(ConicOf(ellipse), factorX, 1.0));
        const double slant = std::abs(std::remainder(between.rotation, HalfPi));
        if (slant < 0.1 || between.a < 1.2 * between.b)
        {
            continue; // too steep a start for the second scaling
        }
        SCOPED_TRACE(Text(ellipse) + " by " + Digits(factorX) + ", " + Digits(factorY));
        const Ellipse scaled = Scaled(ellipse, factorX, factorY);
        EXPECT_TRUE(IsCurve(scaled, ScaledConic(ConicOf(ellipse), factorX, factorY), 1e-8));
        EXPECT_GE(scaled.rotation, 0.0);
        EXPECT_LT(scaled.rotation, Pi);
    }
}

TEST(ScaledEllipse, OfNaNDoesNotHang)
{
    Ellipse ellipse{InvalidDouble, 1, 0.5};
    EXPECT_TRUE(std::isnan(Scaled(ellipse, 2.0).a));
    ellipse = {3, InvalidDouble, 0.5};
    EXPECT_TRUE(std::isnan(Scaled(ellipse, 2.0).b));
    ellipse = {3, 1, InvalidDouble};
    EXPECT_TRUE(std::isnan(Scaled(ellipse, 2.0).rotation));
    ellipse = {3, 1, 0.5};
    EXPECT_TRUE(std::isnan(Scaled(ellipse, InvalidDouble).a));
    EXPECT_TRUE(std::isnan(Scaled(ellipse, 2.0, InvalidDouble).a));
}
