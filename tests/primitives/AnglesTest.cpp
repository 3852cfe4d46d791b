#include "support/Support.h"

#include <gp_Vec2d.hxx>

#include <cmath>

using namespace math;
using namespace math::test;

namespace
{

constexpr double LeastPositive = 5e-324;

/// One folding function brought to one form: what it folds is the number given to `fold`.
struct Folding
{
    const char* name;
    double modulus;
    double (*fold)(double);
};

template <void (*Normalize)(double&)>
double InPlace(double value)
{
    Normalize(value);
    return value;
}

const Folding Foldings[] = {
    {"RegularizeAngle", 360.0, RegularizeAngle},
    {"RegularizeRadian", TwoPi, RegularizeRadian},
    {"RegularizeIncludedAngle", 180.0, RegularizeIncludedAngle},
    {"RegularizeIncludedRadian", Pi, RegularizeIncludedRadian},
    {"NormalizeAngle", 360.0, InPlace<NormalizeAngle>},
    {"NormalizeRadian", TwoPi, InPlace<NormalizeRadian>},
    {"NormalizeIncludedAngle", 180.0, InPlace<NormalizeIncludedAngle>},
    {"NormalizeIncludedRadian", Pi, InPlace<NormalizeIncludedRadian>},
};

/// The functions that form another value first.
const Folding TurnedFoldings[] = {
    {"GetReverseAngle", 360.0, GetReverseAngle},
    {"GetReverseRadian", TwoPi, GetReverseRadian},
    {"GetComplementaryAngle", 180.0, GetComplementaryAngle},
    {"GetComplementaryRadian", Pi, GetComplementaryRadian},
};

/// The direction of (x, y) as the dependency measures it: from -π to π, and -π for a vector straight to the left.
double DirectionByTheDependency(double x, double y)
{
    return gp_Vec2d(1.0, 0.0).Angle(gp_Vec2d(x, y));
}

} // namespace

TEST(Folding, LeavesTheNormalIntervalAsItIs)
{
    for (const Folding& folding : Foldings)
    {
        SCOPED_TRACE(folding.name);
        EXPECT_TRUE(SameBits(folding.fold(0.0), 0.0));
        EXPECT_EQ(folding.fold(LeastPositive), LeastPositive);
        EXPECT_EQ(folding.fold(1.0), 1.0);
        EXPECT_EQ(folding.fold(Previous(folding.modulus)), Previous(folding.modulus));
    }
}

TEST(Folding, TakesTheModulusToZero)
{
    for (const Folding& folding : Foldings)
    {
        SCOPED_TRACE(folding.name);
        EXPECT_TRUE(SameBits(folding.fold(folding.modulus), 0.0));
        EXPECT_TRUE(SameBits(folding.fold(-folding.modulus), 0.0));
        EXPECT_TRUE(SameBits(folding.fold(2.0 * folding.modulus), 0.0));
        EXPECT_TRUE(SameBits(folding.fold(-2.0 * folding.modulus), 0.0));
        EXPECT_EQ(folding.fold(Next(folding.modulus)), Next(folding.modulus) - folding.modulus);
    }
}

TEST(Folding, TakesATinyNegativeNumberToZero)
{
    // Adding the modulus rounds to the modulus itself, which then folds to 0: the result is never the modulus.
    for (const Folding& folding : Foldings)
    {
        SCOPED_TRACE(folding.name);
        EXPECT_TRUE(SameBits(folding.fold(-1e-20), 0.0));
        EXPECT_TRUE(SameBits(folding.fold(-LeastPositive), 0.0));
        EXPECT_EQ(folding.fold(-0.0), 0.0);
    }
}

TEST(Folding, AddsAndSubtractsWholeModuliOneByOne)
{
    bool remaindersDiffer = false;
    for (const Folding& folding : Foldings)
    {
        SCOPED_TRACE(folding.name);
        const double modulus = folding.modulus;
        EXPECT_EQ(folding.fold(1.0 - modulus), (1.0 - modulus) + modulus);
        EXPECT_EQ(folding.fold(1.0 + modulus), (1.0 + modulus) - modulus);

        // 300 moduli and a bit, up and down. A remainder function would end in other last bits.
        double fromAbove = 300.0 * modulus + 0.7;
        double fromBelow = -fromAbove;
        const double remainder = std::fmod(fromAbove, modulus);
        EXPECT_TRUE(Near(folding.fold(fromAbove), 0.7, 1e-9));
        const double foldedFromAbove = folding.fold(fromAbove);
        const double foldedFromBelow = folding.fold(fromBelow);
        for (int i = 0; i < 300; ++i)
        {
            fromAbove -= modulus;
            fromBelow += modulus;
        }
        EXPECT_EQ(foldedFromAbove, fromAbove);
        EXPECT_EQ(foldedFromBelow, fromBelow + modulus);
        remaindersDiffer = remaindersDiffer || remainder != fromAbove;
    }
    EXPECT_TRUE(remaindersDiffer);
}

TEST(Folding, GivesNaNBackAtOnce)
{
    for (const Folding& folding : Foldings)
    {
        EXPECT_TRUE(std::isnan(folding.fold(InvalidDouble))) << folding.name;
    }
    for (const Folding& folding : TurnedFoldings)
    {
        EXPECT_TRUE(std::isnan(folding.fold(InvalidDouble))) << folding.name;
    }
}

TEST(Folding, ThereAndBackGivesTheSameDirection)
{
    Random random(21);
    for (int i = 0; i < 2000; ++i)
    {
        for (const Folding& folding : Foldings)
        {
            const double value = random.Number(-20.0, 20.0) * folding.modulus;
            SCOPED_TRACE(folding.name + (" of " + Digits(value)));
            const double folded = folding.fold(value);
            EXPECT_TRUE(folded >= 0.0 && folded < folding.modulus);
            EXPECT_TRUE(NearDirection(folded, value, folding.modulus, 1e-12 * folding.modulus));
            EXPECT_EQ(folding.fold(folded), folded);

            const double turned = folded + folding.modulus * random.Integer(-10, 10);
            EXPECT_TRUE(NearDirection(folding.fold(turned), folded, folding.modulus, 1e-13 * folding.modulus));
        }
        for (const Folding& folding : TurnedFoldings)
        {
            const double value = random.Number(-20.0, 20.0) * folding.modulus;
            SCOPED_TRACE(folding.name + (" of " + Digits(value)));
            const double folded = folding.fold(value);
            EXPECT_TRUE(folded >= 0.0 && folded < folding.modulus);
            // Both the opposite of the opposite and the supplement of the supplement are the start.
            EXPECT_TRUE(NearDirection(folding.fold(folded), value, folding.modulus, 1e-12 * folding.modulus));
        }
    }
}

TEST(Folding, OfNamedAnglesIsExact)
{
    EXPECT_EQ(RegularizeAngle(360.0), 0.0);
    EXPECT_EQ(RegularizeAngle(-360.0), 0.0);
    EXPECT_EQ(RegularizeAngle(-1.0), 359.0);
    EXPECT_EQ(RegularizeAngle(725.0), 5.0);
    EXPECT_EQ(RegularizeAngle(-725.0), 355.0);
    EXPECT_EQ(RegularizeAngle(359.0), 359.0);
    EXPECT_EQ(RegularizeIncludedAngle(180.0), 0.0);
    EXPECT_EQ(RegularizeIncludedAngle(-90.0), 90.0);
    EXPECT_EQ(RegularizeIncludedAngle(725.0), 5.0);
    EXPECT_EQ(RegularizeRadian(-Pi), Pi);
    EXPECT_EQ(RegularizeRadian(-HalfPi), ThreeHalvesPi);
    EXPECT_EQ(RegularizeIncludedRadian(-HalfPi), HalfPi);
    EXPECT_EQ(RegularizeIncludedRadian(ThreeHalvesPi), ThreeHalvesPi - Pi);
    double angle = 725.0;
    NormalizeAngle(angle);
    EXPECT_EQ(angle, 5.0);
    NormalizeIncludedAngle(angle);
    EXPECT_EQ(angle, 5.0);
    angle = -30.0;
    NormalizeIncludedAngle(angle);
    EXPECT_EQ(angle, 150.0);
    double radian = -HalfPi;
    NormalizeRadian(radian);
    EXPECT_EQ(radian, ThreeHalvesPi);
    NormalizeIncludedRadian(radian);
    EXPECT_EQ(radian, ThreeHalvesPi - Pi);
}

TEST(ReverseDirection, IsHalfATurnAway)
{
    EXPECT_EQ(GetReverseAngle(10.0), 190.0);
    EXPECT_EQ(GetReverseAngle(190.0), 10.0);
    EXPECT_EQ(GetReverseAngle(0.0), 180.0);
    EXPECT_EQ(GetReverseAngle(180.0), 0.0);
    EXPECT_EQ(GetReverseAngle(-10.0), 170.0);
    EXPECT_EQ(GetReverseAngle(725.0), 185.0);
    // Half a turn is taken away, not added: from 190.1 the difference is exact, the sum would lose its last digits.
    EXPECT_EQ(GetReverseAngle(190.1), 190.1 - 180.0);
    EXPECT_NE(GetReverseAngle(190.1), (190.1 + 180.0) - 360.0);
    EXPECT_EQ(GetReverseRadian(0.0), Pi);
    EXPECT_TRUE(SameBits(GetReverseRadian(Pi), 0.0));
    EXPECT_EQ(GetReverseRadian(HalfPi), ThreeHalvesPi);
    EXPECT_EQ(GetReverseRadian(1.0), (1.0 - Pi) + TwoPi);
    EXPECT_EQ(GetReverseRadian(3.4), 3.4 - Pi);
    EXPECT_NE(GetReverseRadian(3.4), (3.4 + Pi) - TwoPi);
}

TEST(ComplementaryAngle, IsTheSupplementWithinHalfATurn)
{
    EXPECT_EQ(GetComplementaryAngle(0.0), 0.0);
    EXPECT_EQ(GetComplementaryAngle(30.0), 150.0);
    EXPECT_EQ(GetComplementaryAngle(90.0), 90.0);
    EXPECT_EQ(GetComplementaryAngle(180.0), 0.0);
    EXPECT_EQ(GetComplementaryAngle(200.0), 160.0);
    EXPECT_EQ(GetComplementaryAngle(-30.0), 30.0);
    EXPECT_TRUE(SameBits(GetComplementaryRadian(0.0), 0.0));
    EXPECT_TRUE(SameBits(GetComplementaryRadian(Pi), 0.0));
    EXPECT_EQ(GetComplementaryRadian(HalfPi), HalfPi);
    EXPECT_TRUE(Near(GetComplementaryRadian(ThreeHalvesPi), HalfPi, 1e-15));
    EXPECT_EQ(GetComplementaryRadian(1.0), Pi - 1.0);
    EXPECT_EQ(GetComplementaryRadian(4.0), (Pi - 4.0) + Pi);
}

TEST(AngleUnits, AreConvertedByTheNumberOfDegreesInARadian)
{
    EXPECT_EQ(RadianToAngle(1.0), 57.29577951308232);
    EXPECT_EQ(RadianToAngle(-2.0), -114.59155902616465); // twice as much, exactly
    EXPECT_EQ(RadianToAngle(Pi), 180.0);
    EXPECT_EQ(RadianToAngle(0.0), 0.0);
    EXPECT_EQ(AngleToRadian(180.0), Pi);
    EXPECT_EQ(AngleToRadian(-90.0), -HalfPi);
    EXPECT_EQ(AngleToRadian(720.0), 2.0 * TwoPi);
    // The quotient comes first: in any other order the last bit of 13 degrees differs.
    const double thirteen = 13.0;
    EXPECT_EQ(AngleToRadian(thirteen), (thirteen / 180.0) * Pi);
    EXPECT_NE(AngleToRadian(thirteen), thirteen * Pi / 180.0);
    EXPECT_NE(AngleToRadian(thirteen), thirteen * (Pi / 180.0));
    EXPECT_TRUE(std::isnan(RadianToAngle(InvalidDouble)));
    EXPECT_TRUE(std::isnan(AngleToRadian(InvalidDouble)));
}

TEST(AngleUnits, ConvertThereAndBack)
{
    Random random(22);
    for (int i = 0; i < 1000; ++i)
    {
        const double radian = random.Number(-10.0, 10.0);
        EXPECT_TRUE(Near(AngleToRadian(RadianToAngle(radian)), radian, 1e-14));
    }
}

TEST(ArcAngle, IsLengthOverRadiusInDegrees)
{
    EXPECT_EQ(GetArcAngle(Pi, 1.0), 180.0);
    EXPECT_EQ(GetArcAngle(0.0, 1.0), 0.0);
    EXPECT_TRUE(Near(GetArcAngle(3.0 * Pi, 2.0), 270.0, 1e-13));
    // Nothing is folded: 4π around a radius of 0.5 is four times round. Signs carry through.
    EXPECT_TRUE(Near(GetArcAngle(2.0 * TwoPi, 0.5), 1440.0, 1e-12));
    EXPECT_EQ(GetArcAngle(Pi, -1.0), -180.0);
    EXPECT_EQ(GetArcAngle(-Pi, 1.0), -180.0);
    EXPECT_EQ(GetArcAngle(-Pi, -1.0), 180.0);
    EXPECT_EQ(GetArcAngle(7.0, 3.0), (7.0 * 180.0) / (3.0 * Pi));
}

TEST(ArcAngle, DoesNotExistForARadiusOfZero)
{
    EXPECT_TRUE(std::isnan(GetArcAngle(1.0, 0.0)));
    EXPECT_TRUE(std::isnan(GetArcAngle(1.0, Previous(1e-9))));
    EXPECT_TRUE(std::isnan(GetArcAngle(1.0, -Previous(1e-9))));
    // A radius of exactly the tolerance is not zero.
    EXPECT_EQ(GetArcAngle(1.0, 1e-9), 180.0 / (1e-9 * Pi));
    EXPECT_EQ(GetArcAngle(1.0, -1e-9), -180.0 / (1e-9 * Pi));
    EXPECT_TRUE(std::isnan(GetArcAngle(InvalidDouble, 1.0)));
    EXPECT_TRUE(std::isnan(GetArcAngle(1.0, InvalidDouble)));
}

TEST(ArcLength, IsTheAngleInRadiansTimesTheRadius)
{
    EXPECT_EQ(GetArcLength(180.0, 2.0), TwoPi);
    EXPECT_EQ(GetArcLength(90.0, 0.0), 0.0);
    EXPECT_EQ(GetArcLength(-90.0, 2.0), -Pi);
    EXPECT_EQ(GetArcLength(90.0, -2.0), -Pi);
    EXPECT_EQ(GetArcLength(720.0, 0.5), TwoPi);
    const double thirteen = 13.0;
    EXPECT_EQ(GetArcLength(thirteen, 7.0), (thirteen / 180.0) * Pi * 7.0);
    EXPECT_TRUE(std::isnan(GetArcLength(InvalidDouble, 1.0)));
}

TEST(ArcLength, AndAngleAreEachOthersInverse)
{
    Random random(23);
    for (int i = 0; i < 1000; ++i)
    {
        const double angle = random.Number(-800.0, 800.0);
        const double radius = random.Size(1e-6, 1e6);
        EXPECT_TRUE(Near(GetArcAngle(GetArcLength(angle, radius), radius), angle, 1e-12 * 800.0));
    }
}

TEST(Bulge, IsTheTangentOfAQuarterOfTheSweep)
{
    EXPECT_TRUE(Near(GetBulge(0.0, Pi), 1.0, 1e-15));
    EXPECT_EQ(GetBulge(Pi, 0.0), -GetBulge(0.0, Pi));
    EXPECT_EQ(GetBulge(0.0, 0.0), 0.0);
    EXPECT_EQ(GetBulge(2.5, 2.5), 0.0);
    // Sweeps of 2π/3 and of -4π/3 have the bulges tan 30° and -tan 60°.
    EXPECT_TRUE(Near(GetBulge(0.5, 0.5 + TwoPi / 3.0), std::sqrt(3.0) / 3.0, 1e-15));
    EXPECT_TRUE(Near(GetBulge(0.5, 0.5 - 2.0 * TwoPi / 3.0), -std::sqrt(3.0), 1e-14));
    EXPECT_EQ(GetBulge(3.0, 1.0), std::tan(-0.5));
    EXPECT_EQ(GetBulge(1.0, 3.0), std::tan(0.5));
    EXPECT_EQ(GetBulge(-1.0, 3.0), std::tan(1.0));
}

TEST(Bulge, DoesNotFoldTheSweep)
{
    // From 350° on to 370° runs 20° counter-clockwise, from 350° to 10° runs 340° clockwise.
    EXPECT_TRUE(GetBulge(AngleToRadian(350.0), AngleToRadian(370.0)) > 0.0);
    EXPECT_TRUE(Near(GetBulge(AngleToRadian(350.0), AngleToRadian(10.0)), -std::tan(AngleToRadian(85.0)), 1e-12));
    EXPECT_TRUE(Near(GetBulge(0.0, 3.0 * Pi), -1.0, 1e-15)); // three quarters of π
    // Only the first pole is looked for: 6π gets what the tangent gives.
    EXPECT_EQ(GetBulge(0.0, 6.0 * Pi), std::tan((6.0 * Pi) * 0.25));
    EXPECT_FALSE(std::isnan(GetBulge(0.0, 6.0 * Pi)));
}

TEST(Bulge, DoesNotExistForAFullCircle)
{
    EXPECT_TRUE(std::isnan(GetBulge(0.0, TwoPi)));
    EXPECT_TRUE(std::isnan(GetBulge(TwoPi, 0.0)));
    EXPECT_TRUE(std::isnan(GetBulge(-Pi, Pi)));

    // The tolerance is on a quarter of the sweep; a quarter is exact in binary.
    double outermost = HalfPi + 1e-9;
    while (outermost - HalfPi >= 1e-9)
    {
        outermost = Previous(outermost);
    }
    double innermost = HalfPi - 1e-9;
    while (HalfPi - innermost >= 1e-9)
    {
        innermost = Next(innermost);
    }
    EXPECT_TRUE(std::isnan(GetBulge(0.0, 4.0 * outermost)));
    EXPECT_TRUE(std::isnan(GetBulge(0.0, 4.0 * innermost)));
    EXPECT_TRUE(std::isnan(GetBulge(4.0 * outermost, 0.0)));
    EXPECT_EQ(GetBulge(0.0, 4.0 * Next(outermost)), std::tan(Next(outermost)));
    EXPECT_EQ(GetBulge(0.0, 4.0 * Previous(innermost)), std::tan(Previous(innermost)));
    EXPECT_EQ(GetBulge(4.0 * Next(outermost), 0.0), std::tan(-Next(outermost)));
}

TEST(Bulge, OfNaNIsNaN)
{
    EXPECT_TRUE(std::isnan(GetBulge(InvalidDouble, 1.0)));
    EXPECT_TRUE(std::isnan(GetBulge(1.0, InvalidDouble)));
}

TEST(DirectionOfAVector, RunsFromTheXAxisOnceRound)
{
    EXPECT_EQ(ComputeAngle(1.0, 0.0), 0.0);
    EXPECT_TRUE(Near(ComputeAngle(3.0, 4.0), std::atan2(4.0, 3.0), 1e-15));
    EXPECT_EQ(ComputeAngle(0.0, 2.0), HalfPi);
    EXPECT_TRUE(Near(ComputeAngle(-3.0, 4.0), std::atan2(4.0, -3.0), 1e-15));
    EXPECT_EQ(ComputeAngle(-1.0, 0.0), Pi);
    EXPECT_TRUE(Near(ComputeAngle(-3.0, -4.0), TwoPi - std::atan2(4.0, -3.0), 1e-14));
    EXPECT_EQ(ComputeAngle(0.0, -1.0), ThreeHalvesPi);
    EXPECT_TRUE(Near(ComputeAngle(3.0, -4.0), TwoPi - std::atan2(4.0, 3.0), 1e-14));
}

TEST(DirectionOfAVector, RoundsToAFullTurnJustBelowTheXAxis)
{
    EXPECT_EQ(ComputeAngle(1.0, -1e-17), TwoPi);
    EXPECT_TRUE(SameBits(ComputeAngle(1.0, 1e-17), DirectionByTheDependency(1.0, 1e-17)));
}

TEST(DirectionOfAVector, IsThatOfTheDependencyToTheLastBit)
{
    Random random(24);
    bool differsFromArcTangent = false;
    for (int i = 0; i < 2000; ++i)
    {
        const DPOINT2 vector = random.Point(10.0);
        SCOPED_TRACE(::testing::PrintToString(vector));
        const double direction = DirectionByTheDependency(vector.x, vector.y);
        const double turned = direction < 0.0 ? direction + TwoPi : direction;
        EXPECT_EQ(ComputeAngle(vector.x, vector.y), turned);
        EXPECT_EQ(D2GetNormalAngle(vector.x, vector.y), turned);
        EXPECT_EQ(D2GetNormalAngle(vector), turned);
        differsFromArcTangent = differsFromArcTangent || direction != std::atan2(vector.y, vector.x);
        EXPECT_TRUE(NearDirection(turned, std::atan2(vector.y, vector.x), TwoPi, 1e-14));
    }
    EXPECT_TRUE(differsFromArcTangent);
}

TEST(DirectionOfAVector, ExistsForEveryVectorWhoseLengthIsNotLost)
{
    EXPECT_EQ(ComputeAngle(1e-12, 0.0), 0.0);
    EXPECT_EQ(ComputeAngle(0.0, -1e-150), ThreeHalvesPi);
    EXPECT_TRUE(std::isnan(ComputeAngle(0.0, 0.0)));
    EXPECT_TRUE(std::isnan(ComputeAngle(-0.0, 0.0)));
    EXPECT_TRUE(std::isnan(ComputeAngle(1e-200, 1e-200))); // the squares are lost
    EXPECT_TRUE(std::isnan(ComputeAngle(InvalidDouble, 1.0)));
    EXPECT_TRUE(std::isnan(ComputeAngle(1.0, InvalidDouble)));
}

TEST(DirectionOfAVector, IsAnsweredByTwoRulesForShortVectors)
{
    EXPECT_TRUE(Near(ComputeAngle(1e-10, 1e-10), QuarterPi, 1e-15));
    EXPECT_TRUE(std::isnan(D2GetNormalAngle(1e-10, 1e-10)));
    // Just below the x axis one gives a full turn, the other folds it to 0.
    EXPECT_EQ(ComputeAngle(1.0, -1e-17), TwoPi);
    EXPECT_TRUE(SameBits(D2GetNormalAngle(1.0, -1e-17), 0.0));
}

TEST(NormalDirection, LiesWithinOneTurn)
{
    EXPECT_EQ(D2GetNormalAngle(1.0, 0.0), 0.0);
    EXPECT_EQ(D2GetNormalAngle(0.0, 3.0), HalfPi);
    EXPECT_EQ(D2GetNormalAngle(-1.0, 0.0), Pi);
    EXPECT_EQ(D2GetNormalAngle(0.0, -1.0), ThreeHalvesPi);
    EXPECT_EQ(D2GetNormalAngle(At(0.0, -1.0)), ThreeHalvesPi);
    EXPECT_TRUE(Near(D2GetNormalAngle(At(3.0, 4.0)), std::atan2(4.0, 3.0), 1e-15));
    EXPECT_TRUE(std::isnan(D2GetNormalAngle(0.0, 0.0)));
    EXPECT_TRUE(std::isnan(D2GetNormalAngle(At(0.0, 0.0))));
    EXPECT_TRUE(std::isnan(D2GetNormalAngle(InvalidDouble, 1.0)));
    EXPECT_TRUE(std::isnan(D2GetNormalAngle(1.0, InvalidDouble)));
}

TEST(RotationBetweenVectors, IsPositiveCounterClockwise)
{
    EXPECT_EQ(D2RotateAngle(gp_Vec2d(1.0, 0.0), gp_Vec2d(0.0, -1.0)), -HalfPi);
    EXPECT_EQ(D2RotateAngle(gp_Vec2d(0.0, -1.0), gp_Vec2d(1.0, 0.0)), HalfPi);
    EXPECT_EQ(D2GetIncludeAngle(gp_Vec2d(1.0, 0.0), gp_Vec2d(0.0, -1.0)), HalfPi);
    EXPECT_EQ(D2GetIncludeAngle(gp_Vec2d(0.0, -1.0), gp_Vec2d(1.0, 0.0)), HalfPi);
    EXPECT_EQ(D2RotateAngle(gp_Vec2d(2.0, 5.0), gp_Vec2d(2.0, 5.0)), 0.0);
    EXPECT_EQ(D2GetIncludeAngle(gp_Vec2d(2.0, 0.0), gp_Vec2d(-5.0, 0.0)), Pi);
    // From the direction of (4, 3) to that of (5, 12).
    const double turn = std::atan2(12.0, 5.0) - std::atan2(3.0, 4.0);
    EXPECT_TRUE(Near(D2RotateAngle(gp_Vec2d(4.0, 3.0), gp_Vec2d(5.0, 12.0)), turn, 1e-15));
    EXPECT_TRUE(Near(D2RotateAngle(gp_Vec2d(5.0, 12.0), gp_Vec2d(4.0, 3.0)), -turn, 1e-15));
    EXPECT_TRUE(Near(D2GetIncludeAngle(gp_Vec2d(5.0, 12.0), gp_Vec2d(4.0, 3.0)), turn, 1e-15));
    EXPECT_TRUE(Near(D2GetIncludeAngle(gp_Vec2d(4.0, 3.0), gp_Vec2d(5.0, 12.0)), turn, 1e-15));
}

TEST(RotationBetweenVectors, AsksEachCoordinateWhetherAVectorIsZero)
{
    const double below = Previous(1e-9);
    const gp_Vec2d other(3.0, 4.0);
    // The norm of the longest zero vector is 1.4e-9; one coordinate of 1e-9 makes a vector.
    for (const auto& zero : {gp_Vec2d(0.0, 0.0), gp_Vec2d(below, below), gp_Vec2d(-below, below),
                             gp_Vec2d(below, -below), gp_Vec2d(-below, -below)})
    {
        EXPECT_TRUE(std::isnan(D2RotateAngle(zero, other)));
        EXPECT_TRUE(std::isnan(D2RotateAngle(other, zero)));
        EXPECT_TRUE(std::isnan(D2GetIncludeAngle(zero, other)));
        EXPECT_TRUE(std::isnan(D2GetIncludeAngle(other, zero)));
        EXPECT_TRUE(std::isnan(D2GetNormalAngle(zero.X(), zero.Y())));
    }
    for (const auto& vector : {gp_Vec2d(1e-9, 0.0), gp_Vec2d(0.0, 1e-9), gp_Vec2d(-1e-9, 0.0), gp_Vec2d(0.0, -1e-9),
                               gp_Vec2d(1e-9, below), gp_Vec2d(below, 1e-9), gp_Vec2d(-1e-9, below)})
    {
        EXPECT_EQ(D2RotateAngle(vector, other), vector.Angle(other));
        EXPECT_EQ(D2RotateAngle(other, vector), other.Angle(vector));
        EXPECT_EQ(D2GetIncludeAngle(other, vector), std::abs(other.Angle(vector)));
        EXPECT_FALSE(std::isnan(D2GetNormalAngle(vector.X(), vector.Y())));
    }
}

TEST(RotationBetweenVectors, OfNaNIsNaN)
{
    const gp_Vec2d other(3.0, 4.0);
    for (const auto& vector :
         {gp_Vec2d(InvalidDouble, 1.0), gp_Vec2d(1.0, InvalidDouble), gp_Vec2d(InvalidDouble, InvalidDouble)})
    {
        EXPECT_TRUE(std::isnan(D2RotateAngle(vector, other)));
        EXPECT_TRUE(std::isnan(D2RotateAngle(other, vector)));
        EXPECT_TRUE(std::isnan(D2GetIncludeAngle(vector, other)));
    }
}

TEST(RotationBetweenVectors, TurnsTheFirstIntoTheSecond)
{
    Random random(25);
    for (int i = 0; i < 1000; ++i)
    {
        const DPOINT2 first = random.Point(5.0);
        const double turn = random.Number(-3.1, 3.1);
        const double stretch = random.Size(1e-3, 1e3);
        const gp_Vec2d a(first.x, first.y);
        const gp_Vec2d b(stretch * (first.x * std::cos(turn) - first.y * std::sin(turn)),
                         stretch * (first.x * std::sin(turn) + first.y * std::cos(turn)));
        EXPECT_TRUE(Near(D2RotateAngle(a, b), turn, 1e-13));
        EXPECT_TRUE(Near(D2RotateAngle(b, a), -turn, 1e-13));
        EXPECT_TRUE(Near(D2GetIncludeAngle(a, b), std::abs(turn), 1e-13));
    }
}

// The angle from the x axis is that of the toolkit, bit for bit.
TEST(NormalAngle, IsTheToolkitsAngleFromTheXAxis)
{
    Random random(51);
    const auto turned = [](const DPOINT2& vector) {
        const double angle = gp_Vec2d(1.0, 0.0).Angle(gp_Vec2d(vector.x, vector.y));
        const double positive = angle < 0.0 ? angle + TwoPi : angle;
        return positive >= TwoPi ? positive - TwoPi : positive;
    };
    for (int i = 0; i < 200000; ++i)
    {
        DPOINT2 vector = random.Point(random.Size(1e-3, 1e6));
        switch (random.Integer(0, 3))
        {
        case 0: // near the diagonals, where the inverse functions change over
            vector.y = Stepped(vector.x, random.Integer(-60, 60)) * (random.Coin() ? 1 : -1);
            break;
        case 1: // on the axes, zeros of either sign
            (random.Coin() ? vector.x : vector.y) = random.Coin() ? 0.0 : -0.0;
            break;
        case 2: // near the axes
            (random.Coin() ? vector.x : vector.y) *= random.Size(1e-18, 1e-6);
            break;
        default:
            break;
        }
        ASSERT_TRUE(SameBits(D2GetNormalAngle(vector), turned(vector))) << i;
    }
    for (const double infinite : {Infinity, -Infinity})
    {
        EXPECT_TRUE(std::isnan(D2GetNormalAngle(infinite, 1.0)));
        EXPECT_TRUE(std::isnan(D2GetNormalAngle(1.0, infinite)));
        EXPECT_TRUE(std::isnan(D2GetNormalAngle(infinite, infinite)));
    }
}
