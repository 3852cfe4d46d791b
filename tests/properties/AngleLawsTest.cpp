#include "math/Primitives.h"
#include "support/Support.h"

#include <gp_Vec2d.hxx>

#include <array>
#include <cmath>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of angles, numbered as in docs/primitives.md. Degrees on a grid of eighths are folded without any rounding,
// so that their laws hold with ==; in radians a turn is a rounded number, and every turn added costs one rounding.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

struct Fold
{
    double modulus;
    double (*value)(double);
    void (*inPlace)(double&);
};

constexpr Fold DegreeFolds[] = {{360, RegularizeAngle, NormalizeAngle},
                                {180, RegularizeIncludedAngle, NormalizeIncludedAngle}};
constexpr Fold RadianFolds[] = {{TwoPi, RegularizeRadian, NormalizeRadian},
                                {Pi, RegularizeIncludedRadian, NormalizeIncludedRadian}};

/// Multiples of 1/8 over six turns: all multiples of 15 and numbers beside them; and multiples of 1/1024 at random.
std::vector<double> GridDegrees()
{
    std::vector<double> degrees;
    for (int step = -72; step <= 72; ++step)
    {
        for (const double offset : {-7.5, -0.125, 0.0, 0.125, 3.625})
        {
            degrees.push_back(15 * step + offset);
        }
    }
    Random random(2);
    for (int round = 0; round < 2000; ++round)
    {
        degrees.push_back(random.Integer(-4096 * 1024, 4096 * 1024) / 1024.0);
    }
    return degrees;
}

/// Multiples of a twelfth of π with their neighbours, tiny numbers, and numbers at random.
std::vector<double> GridRadians()
{
    std::vector<double> radians = {-0.0, 1e-300, -1e-300, 1e-20, -1e-20, 5e-324, -5e-324, 1e-9, -1e-9};
    for (int step = -72; step <= 72; ++step)
    {
        for (const int beside : {-2, -1, 0, 1, 2})
        {
            radians.push_back(Stepped(Pi * step / 12, beside));
        }
    }
    Random random(1);
    for (int round = 0; round < 2000; ++round)
    {
        radians.push_back(random.Number(-40, 40));
    }
    return radians;
}

/// The rounding of a fold in radians: one for each turn and two more, each of the size of the greater operand.
double RoundingOfFold(double radian, double modulus)
{
    const double size = std::max(std::abs(radian), modulus);
    return (size / modulus + 3) * Unit * size;
}

struct Vector
{
    double x;
    double y;
};

bool IsShort(const Vector& vector)
{
    return std::abs(vector.x) < DoubleTolerance && std::abs(vector.y) < DoubleTolerance;
}

/// The vectors of a small grid in sizes that meet both rules of what has no direction, and vectors at random.
std::vector<Vector> GridVectors()
{
    std::vector<Vector> vectors;
    for (const double size : {1.0, 1e100, 0x1p-30, 1e-10, 0x1p-100, 1e-200, 1e-320})
    {
        for (int x = -4; x <= 4; ++x)
        {
            for (int y = -4; y <= 4; ++y)
            {
                vectors.push_back({x * size, y * size});
            }
        }
    }
    for (const double tiny : {1e-17, 1e-10, 5e-324})
    {
        vectors.push_back({1, tiny});
        vectors.push_back({1, -tiny});
    }
    Random random(3);
    for (int round = 0; round < 2000; ++round)
    {
        const double size = random.Size(1e-12, 1e100);
        vectors.push_back({random.Number(-size, size), random.Number(-size, size)});
    }
    return vectors;
}

/// The vectors with whole coordinates up to 4, without the zero vector.
std::vector<Vector> WholeVectors()
{
    std::vector<Vector> vectors;
    for (int x = -4; x <= 4; ++x)
    {
        for (int y = -4; y <= 4; ++y)
        {
            if (x != 0 || y != 0)
            {
                vectors.push_back({static_cast<double>(x), static_cast<double>(y)});
            }
        }
    }
    return vectors;
}

} // namespace

TEST(AngleLaws, A1_FoldingIsIdempotentAndLeavesWhatLiesInTheInterval)
{
    for (const auto& [folds, inputs] : {std::pair(DegreeFolds, GridDegrees()), std::pair(RadianFolds, GridRadians())})
    {
        for (const Fold* fold = folds; fold != folds + 2; ++fold)
        {
            for (const double input : inputs)
            {
                const double once = fold->value(input);
                ASSERT_TRUE(SameBits(fold->value(once), once)) << Digits(input);
                if (input >= 0 && input < fold->modulus)
                {
                    ASSERT_TRUE(SameBits(once, input)) << Digits(input);
                }
                double inPlace = input;
                fold->inPlace(inPlace);
                ASSERT_TRUE(SameBits(inPlace, once)) << Digits(input);
            }
            EXPECT_TRUE(std::isnan(fold->value(InvalidDouble)));
        }
    }
}

TEST(AngleLaws, A2_FoldingMovesByWholeTurnsIntoTheHalfOpenInterval)
{
    for (const Fold& fold : DegreeFolds)
    {
        for (const double input : GridDegrees())
        {
            const double folded = fold.value(input);
            ASSERT_TRUE(folded >= 0 && folded < fold.modulus) << Digits(input);
            ASSERT_EQ(std::fmod(input - folded, fold.modulus), 0) << Digits(input);
        }
    }
    for (const Fold& fold : RadianFolds)
    {
        for (const double input : GridRadians())
        {
            const double folded = fold.value(input);
            ASSERT_TRUE(folded >= 0 && folded < fold.modulus) << Digits(input);
            ASSERT_TRUE(NearDirection(folded, input, fold.modulus, RoundingOfFold(input, fold.modulus)));
        }
    }
}

TEST(AngleLaws, A3_WholeTurnsMoreChangeNothing)
{
    for (int turns = -3; turns <= 3; ++turns)
    {
        for (const Fold& fold : DegreeFolds)
        {
            for (const double input : GridDegrees())
            {
                ASSERT_EQ(fold.value(input + turns * fold.modulus), fold.value(input)) << Digits(input) << " " << turns;
            }
        }
        for (const Fold& fold : RadianFolds)
        {
            for (const double input : GridRadians())
            {
                const double moved = input + turns * fold.modulus;
                ASSERT_TRUE(NearDirection(fold.value(moved), fold.value(input), fold.modulus,
                                          2 * RoundingOfFold(std::abs(input) + 3 * fold.modulus, fold.modulus)))
                    << Digits(input) << " " << turns;
            }
        }
    }
}

TEST(AngleLaws, A4_TheOppositeOfTheOppositeIsTheDirectionItself)
{
    for (const double input : GridDegrees())
    {
        ASSERT_EQ(GetReverseAngle(input), RegularizeAngle(input - 180)) << Digits(input);
        ASSERT_EQ(GetReverseAngle(GetReverseAngle(input)), RegularizeAngle(input)) << Digits(input);
    }
    for (const double input : GridRadians())
    {
        ASSERT_TRUE(SameBits(GetReverseRadian(input), RegularizeRadian(input - Pi))) << Digits(input);
        ASSERT_TRUE(NearDirection(GetReverseRadian(GetReverseRadian(input)), input, TwoPi,
                                  2 * RoundingOfFold(std::abs(input) + Pi, TwoPi)))
            << Digits(input);
    }
}

TEST(AngleLaws, A5_AnAngleAndItsSupplementMakeAHalfTurnAndTheSupplementOfTheSupplementIsTheAngle)
{
    for (const double input : GridDegrees())
    {
        const double supplement = GetComplementaryAngle(input);
        ASSERT_TRUE(supplement >= 0 && supplement < 180) << Digits(input);
        ASSERT_EQ(std::fmod(input + supplement, 180.0), 0) << Digits(input);
        ASSERT_EQ(GetComplementaryAngle(supplement), RegularizeIncludedAngle(input)) << Digits(input);
        ASSERT_EQ(GetComplementaryAngle(input + 180), supplement) << Digits(input);
        ASSERT_EQ(GetComplementaryAngle(-input), RegularizeIncludedAngle(input)) << Digits(input);
    }
    for (const double input : GridRadians())
    {
        const double supplement = GetComplementaryRadian(input);
        const double rounding = 2 * RoundingOfFold(std::abs(input) + Pi, Pi);
        ASSERT_TRUE(supplement >= 0 && supplement < Pi) << Digits(input);
        ASSERT_TRUE(NearDirection(input + supplement, 0, Pi, rounding)) << Digits(input);
        ASSERT_TRUE(NearDirection(GetComplementaryRadian(supplement), input, Pi, rounding)) << Digits(input);
    }
}

TEST(AngleLaws, A6_DegreesAndRadiansGoThereAndBack)
{
    for (const double input : GridRadians())
    {
        if (std::abs(input) < 1e-290)
        {
            continue; // relative roundings mean nothing among subnormal numbers
        }
        // One product one way, a quotient and a product back, and a constant rounded on either side.
        ASSERT_TRUE(Near(AngleToRadian(RadianToAngle(input)), input, 5 * Unit * std::abs(input))) << Digits(input);
        ASSERT_TRUE(Near(RadianToAngle(AngleToRadian(input)), input, 5 * Unit * std::abs(input))) << Digits(input);
        ASSERT_TRUE(SameBits(RadianToAngle(-input), -RadianToAngle(input))) << Digits(input);
        ASSERT_TRUE(SameBits(AngleToRadian(-input), -AngleToRadian(input))) << Digits(input);
    }
    for (int quarter = -8; quarter <= 8; ++quarter)
    {
        ASSERT_EQ(AngleToRadian(90.0 * quarter), HalfPi * quarter);
        ASSERT_EQ(RadianToAngle(HalfPi * quarter), 90.0 * quarter);
    }
}

TEST(AngleLaws, A7_ArcLengthAndArcAngleUndoEachOtherAndCarrySigns)
{
    for (const double angle : GridDegrees())
    {
        for (const double radius : {0.001, 1.0, -1.0, 7.25, -1e6})
        {
            const double length = GetArcLength(angle, radius);
            ASSERT_TRUE(SameBits(GetArcLength(-angle, radius), -length)) << angle << " " << radius;
            ASSERT_TRUE(SameBits(GetArcLength(angle, -radius), -length)) << angle << " " << radius;
            ASSERT_TRUE(Near(GetArcAngle(length, radius), angle, 6 * Unit * std::abs(angle))) << angle << " " << radius;
        }
        ASSERT_TRUE(std::isnan(GetArcAngle(angle, Previous(DoubleTolerance)))) << angle;
        ASSERT_FALSE(std::isnan(GetArcAngle(angle, DoubleTolerance))) << angle;
    }
}

TEST(AngleLaws, A8_BulgeIsOddInTheSweepAndTellsItAgainExceptForAFullCircle)
{
    int fullCircles = 0;
    for (int start = -24; start <= 24; ++start)
    {
        for (int end = -24; end <= 24; ++end)
        {
            const double bulge = GetBulge(Pi * start / 12, Pi * end / 12);
            const double back = GetBulge(Pi * end / 12, Pi * start / 12);
            ASSERT_TRUE(back == -bulge || (std::isnan(back) && std::isnan(bulge))) << start << " " << end;
            const int steps = end - start;
            ASSERT_EQ(std::isnan(bulge), std::abs(steps) == 24) << start << " " << end;
            fullCircles += std::isnan(bulge) ? 1 : 0;
            if (std::abs(steps) < 24)
            {
                // The sweep is a difference of numbers up to 2π; tan and atan cost a unit or two each.
                ASSERT_TRUE(Near(4 * std::atan(bulge), Pi * steps / 12, 16 * Unit * TwoPi)) << start << " " << end;
            }
        }
    }
    EXPECT_EQ(fullCircles, 2 * 25);
    Random random(8);
    for (int round = 0; round < 2000; ++round)
    {
        const double start = random.Number(-TwoPi, TwoPi);
        const double sweep = random.Number(-6.28, 6.28);
        const double bulge = GetBulge(start, start + sweep);
        ASSERT_EQ(GetBulge(start + sweep, start), -bulge) << Digits(start) << " " << Digits(sweep);
        ASSERT_TRUE(Near(4 * std::atan(bulge), sweep, 16 * Unit * 2 * TwoPi)) << Digits(start) << " " << Digits(sweep);
    }
}

TEST(AngleLaws, A9_BothDirectionsOfAVectorAreOneButForShortVectorsAndTheTurnItself)
{
    int fullTurns = 0;
    for (const Vector& vector : GridVectors())
    {
        const double any = ComputeAngle(vector.x, vector.y);
        const double folded = D2GetNormalAngle(vector.x, vector.y);
        ASSERT_TRUE(SameBits(D2GetNormalAngle(At(vector.x, vector.y)), folded));
        const bool squaresVanish = std::hypot(vector.x, vector.y) < 1e-162;
        ASSERT_EQ(std::isnan(any), squaresVanish) << Digits(vector.x) << " " << Digits(vector.y);
        ASSERT_EQ(std::isnan(folded), IsShort(vector)) << Digits(vector.x) << " " << Digits(vector.y);
        if (IsShort(vector))
        {
            continue;
        }
        fullTurns += any == TwoPi ? 1 : 0;
        ASSERT_TRUE(SameBits(folded, any == TwoPi ? 0.0 : any)) << Digits(vector.x) << " " << Digits(vector.y);
        const double turned = ComputeAngle(-vector.y, vector.x);
        ASSERT_TRUE(NearDirection(any, std::atan2(vector.y, vector.x), TwoPi, 12 * Unit * TwoPi));
        ASSERT_TRUE(NearDirection(turned, any + HalfPi, TwoPi, 12 * Unit * TwoPi));
    }
    EXPECT_EQ(fullTurns, 2); // (1, -1e-17) and (1, -5e-324) lie within a rounding of the axis, (1, -1e-10) does not
}

TEST(AngleLaws, A10_TurningBackIsTheOppositeAngleExceptForOppositeVectors)
{
    int opposite = 0;
    for (const Vector& a : WholeVectors())
    {
        for (const Vector& b : WholeVectors())
        {
            const gp_Vec2d from(a.x, a.y);
            const gp_Vec2d to(b.x, b.y);
            const double there = D2RotateAngle(from, to);
            const double back = D2RotateAngle(to, from);
            ASSERT_TRUE(there >= -Pi && there <= Pi);
            ASSERT_EQ(D2GetIncludeAngle(from, to), std::abs(there));
            ASSERT_EQ(D2GetIncludeAngle(to, from), D2GetIncludeAngle(from, to));
            const double cross = D2CrossMultiply(from, to);
            const bool areOpposite = cross == 0 && D2DotMultiply(from, to) < 0;
            opposite += areOpposite ? 1 : 0;
            ASSERT_EQ(back, areOpposite ? there : -there) << a.x << " " << a.y << " " << b.x << " " << b.y;
            ASSERT_EQ(there > 0, cross > 0) << a.x << " " << a.y << " " << b.x << " " << b.y;
            ASSERT_TRUE(
                NearDirection(ComputeAngle(a.x, a.y) + there, ComputeAngle(b.x, b.y), TwoPi, 24 * Unit * TwoPi));
            if (areOpposite)
            {
                ASSERT_EQ(there, -Pi);
            }
        }
    }
    // Rays through (1, 0) or (1, 1) and their like hold 4 vectors, 8 through (2, 1) hold 2, 16 through (3, 1) or (3, 2)
    // and 16 through (4, 1) or (4, 3) one: each has the vectors of the opposite ray for opposites.
    EXPECT_EQ(opposite, 8 * 16 + 8 * 4 + 16 + 16);
    Random random(10);
    for (int round = 0; round < 5000; ++round)
    {
        const DPOINT2 a = random.Point(100);
        const DPOINT2 b = random.Point(100);
        const double there = D2RotateAngle(gp_Vec2d(a.x, a.y), gp_Vec2d(b.x, b.y));
        ASSERT_EQ(D2RotateAngle(gp_Vec2d(b.x, b.y), gp_Vec2d(a.x, a.y)), -there);
        ASSERT_EQ(D2GetIncludeAngle(gp_Vec2d(a.x, a.y), gp_Vec2d(b.x, b.y)), std::abs(there));
        ASSERT_TRUE(NearDirection(ComputeAngle(a.x, a.y) + there, ComputeAngle(b.x, b.y), TwoPi, 24 * Unit * TwoPi));
    }
}

TEST(AngleLaws, A11_ProductsOfVectorsFollowLagrangesIdentity)
{
    std::vector<Vector> vectors = WholeVectors();
    Random random(11);
    for (int round = 0; round < 100; ++round)
    {
        vectors.push_back(
            {static_cast<double>(random.Integer(-999, 999)), static_cast<double>(random.Integer(1, 999))});
    }
    for (const Vector& a : vectors)
    {
        for (const Vector& b : vectors)
        {
            const gp_Vec2d first(a.x, a.y);
            const gp_Vec2d second(b.x, b.y);
            const double cross = D2CrossMultiply(first, second);
            const double dot = D2DotMultiply(first, second);
            ASSERT_EQ(D2CrossMultiply(second, first), -cross);
            ASSERT_EQ(D2DotMultiply(second, first), dot);
            ASSERT_EQ(D2CrossMultiply(first, gp_Vec2d(-b.y, b.x)), dot); // a quarter turn makes one of the other
            ASSERT_EQ(cross * cross + dot * dot, (a.x * a.x + a.y * a.y) * (b.x * b.x + b.y * b.y));
            const double along = D2GetProjectionDistance(first, second);
            ASSERT_EQ(D2GetProjectionDistance(a.x, a.y, b.x, b.y), along);
            ASSERT_TRUE(
                Near(along * std::hypot(b.x, b.y), dot, 6 * Unit * std::hypot(a.x, a.y) * std::hypot(b.x, b.y)));
        }
    }
}
