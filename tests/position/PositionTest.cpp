#include "support/Maps.h"

#include <climits>

using namespace math;
using namespace math::test;

namespace
{

double Wrapped(double position, int count)
{
    return PosRangeD::NormalizePos(position, count);
}

double OnLapOf(double position, const PosRangeD& range, int count)
{
    return PosRangeD::NormalizePos(position, range, count);
}

} // namespace

TEST(PositionParts, IntegerPartIsTheSegmentAndFractionTheRatio)
{
    EXPECT_EQ(PosRangeD::GetSegmentIndex(2.75), 2);
    EXPECT_EQ(PosRangeD::GetRadio(2.75), 0.75);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(0.0), 0);
    EXPECT_EQ(PosRangeD::GetRadio(0.0), 0.0);
}

TEST(PositionParts, ThePositionAtTheCountIsOnePastTheLastSegment)
{
    EXPECT_EQ(PosRangeD::GetSegmentIndex(4.0), 4);
    EXPECT_EQ(PosRangeD::GetRadio(4.0), 0.0);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(std::nextafter(4.0, 0.0)), 3);
}

TEST(PositionParts, NegativePositionsAreCutTowardsZeroAndKeepTheirSignInTheRatio)
{
    EXPECT_EQ(PosRangeD::GetSegmentIndex(-0.5), 0);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(-1.25), -1);
    EXPECT_EQ(PosRangeD::GetRadio(-1.25), -0.25);
    EXPECT_TRUE(SameNumber(PosRangeD::GetRadio(-2.0), -0.0));
    EXPECT_TRUE(SameNumber(PosRangeD::GetRadio(2.0), 0.0));
}

TEST(PositionParts, TheRatioOfAnyNumberIsItsFractionWithItsSign)
{
    EXPECT_TRUE(SameNumber(PosRangeD::GetRadio(-0.0), -0.0));
    EXPECT_EQ(PosRangeD::GetRadio(2147483648.25), 0.25);
    EXPECT_EQ(PosRangeD::GetRadio(4503599627370495.5), 0.5) << "the greatest number that has a fraction";
    EXPECT_EQ(PosRangeD::GetRadio(-4503599627370495.5), -0.5);
    for (const double whole : {9007199254740991.0, 9007199254740992.0, 9223372036854775808.0, 1e300, Infinite})
    {
        EXPECT_TRUE(SameNumber(PosRangeD::GetRadio(whole), 0.0)) << whole;
        EXPECT_TRUE(SameNumber(PosRangeD::GetRadio(-whole), -0.0)) << whole;
    }
}

TEST(PositionParts, IntegerPartsBeyondIntTakeTheNearestInt)
{
    EXPECT_EQ(PosRangeD::GetSegmentIndex(2147483647.5), INT_MAX);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(2147483648.0), INT_MAX);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(2147483646.5), INT_MAX - 1);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(-2147483648.5), INT_MIN);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(-2147483647.5), INT_MIN + 1);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(1e300), INT_MAX);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(-1e300), INT_MIN);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(Infinite), INT_MAX);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(-Infinite), INT_MIN);
    EXPECT_EQ(PosRangeD::GetSegmentIndex(NaN), 0);
    EXPECT_TRUE(std::isnan(PosRangeD::GetRadio(NaN)));
}

TEST(NormalizePos, PositionsInsideTheOutlineStay)
{
    EXPECT_EQ(Wrapped(2.5, 4), 2.5);
    EXPECT_EQ(Wrapped(3.9999999, 4), 3.9999999);
    EXPECT_EQ(Wrapped(2e-9, 4), 2e-9);
}

TEST(NormalizePos, PositionsOutsideMoveByWholeLaps)
{
    EXPECT_EQ(Wrapped(4.5, 4), 0.5);
    EXPECT_EQ(Wrapped(9.25, 4), 1.25);
    EXPECT_EQ(Wrapped(-0.5, 4), 3.5);
    EXPECT_EQ(Wrapped(-4.5, 4), 3.5);
    EXPECT_EQ(Wrapped(-9.25, 4), 2.75);
}

TEST(NormalizePos, TheCountItselfIsKept)
{
    EXPECT_EQ(Wrapped(4.0, 4), 4.0);
    EXPECT_EQ(Wrapped(0.0, 4), 0.0);
}

TEST(NormalizePos, MultiplesAboveEndAtTheCountAndMultiplesBelowAtZero)
{
    EXPECT_EQ(Wrapped(8.0, 4), 4.0);
    EXPECT_EQ(Wrapped(12.0, 4), 4.0);
    EXPECT_TRUE(SameNumber(Wrapped(-4.0, 4), 0.0));
    EXPECT_TRUE(SameNumber(Wrapped(-8.0, 4), 0.0));
}

TEST(NormalizePos, PositionsNearTheEndsAreNotSnapped)
{
    EXPECT_TRUE(SameNumber(Wrapped(-0.0, 4), -0.0));
    EXPECT_EQ(Wrapped(5e-10, 4), 5e-10);
    EXPECT_EQ(Wrapped(-5e-10, 4), -5e-10);
    EXPECT_EQ(Wrapped(4 + 5e-10, 4), 4 + 5e-10);
    EXPECT_EQ(Wrapped(4 - 5e-10, 4), 4 - 5e-10);
}

TEST(NormalizePos, NearnessIsStrict)
{
    EXPECT_EQ(Wrapped(-JustBelowTolerance, 4), -JustBelowTolerance);
    EXPECT_EQ(Wrapped(-Tolerance, 4), -Tolerance + 4);
    EXPECT_EQ(Wrapped(-JustAboveTolerance, 4), -JustAboveTolerance + 4);

    // 1 + 1e-9 rounds to a double that lies just over 1e-9 above 1, its lower neighbour lies just under.
    const double outside = 1 + 1e-9;
    const double near = std::nextafter(outside, 0.0);
    EXPECT_GT(outside - 1, Tolerance);
    EXPECT_LT(near - 1, Tolerance);
    EXPECT_EQ(Wrapped(near, 1), near);
    EXPECT_EQ(Wrapped(outside, 1), outside - 1);
}

TEST(NormalizePos, NearnessIsAskedOnlyBeforeAnyLapIsTakenOff)
{
    // One lap up comes to just below 0, where it is no longer asked for nearness: one lap more.
    const double belowMinusCount = -4 - 5e-10;
    EXPECT_EQ(Wrapped(belowMinusCount, 4), (belowMinusCount + 4) + 4);
    const double aboveTwiceCount = 8 + 5e-10;
    EXPECT_EQ(Wrapped(aboveTwiceCount, 4), (aboveTwiceCount - 4) - 4);
    const double belowTwiceCount = 8 - 5e-10;
    EXPECT_EQ(Wrapped(belowTwiceCount, 4), belowTwiceCount - 4);
}

TEST(NormalizePos, AnOutlineWithoutSegmentsHasNoPositions)
{
    for (double position : {0.0, -0.0, 2.5, -3.0, 1e300, Infinite, NaN})
    {
        EXPECT_EQ(Wrapped(position, 0), -1.0) << position;
    }
}

TEST(NormalizePos, WhereNoNumberOfLapsLeadsBackThereIsNoPosition)
{
    EXPECT_EQ(Wrapped(1.5, -4), -1.0);
    EXPECT_EQ(Wrapped(-1.5, -4), -1.0);
    EXPECT_EQ(Wrapped(100.0, -4), -1.0);
    EXPECT_EQ(Wrapped(Infinite, 4), -1.0);
    EXPECT_EQ(Wrapped(-Infinite, 4), -1.0);
    // No lap is ever added to a NaN or taken off it.
    EXPECT_TRUE(std::isnan(Wrapped(NaN, 4)));
    EXPECT_TRUE(std::isnan(Wrapped(NaN, -4)));
}

TEST(NormalizePos, AnImmensePositionStillComesBack)
{
    for (double position : {1e18, -1e18, 1e300, -1e300})
    {
        const double wrapped = Wrapped(position, 3);
        EXPECT_TRUE(wrapped == -1.0 || (wrapped >= 0 && wrapped <= 3)) << position;
    }
}

TEST(NormalizePos, AgreesWithAddingAndTakingOffLapsOneByOne)
{
    for (int count : {1, 3, 4, 7})
    {
        for (int step = -400; step <= 400; ++step)
        {
            const double position = step * 0.1;
            double expected = position;
            if (std::fabs(position) >= 1e-9 && std::fabs(position - count) >= 1e-9)
            {
                for (; expected < 0; expected += count)
                {
                }
                for (; expected > count; expected -= count)
                {
                }
            }
            EXPECT_TRUE(SameNumber(Wrapped(position, count), expected)) << Text(position) << " with " << count;
        }
    }
}

TEST(NormalizePosOnLapOfRange, APositionOfAWrappingRangeIsToldInTheUnrolledNumbering)
{
    EXPECT_EQ(OnLapOf(0.5, {3, 1}, 4), 4.5);
    EXPECT_EQ(OnLapOf(3.5, {3, 1}, 4), 3.5);
    EXPECT_EQ(OnLapOf(7.5, {3, 1}, 4), 3.5);
    EXPECT_EQ(OnLapOf(-3.5, {3, 1}, 4), 4.5);
    EXPECT_EQ(OnLapOf(0.0, {3, 1}, 4), 4.0);
    EXPECT_EQ(OnLapOf(1.0, {3, 1}, 4), 5.0);
}

TEST(NormalizePosOnLapOfRange, APositionOutsideComesBackOnTheLapsOfTheRange)
{
    EXPECT_EQ(OnLapOf(2.0, {3, 1}, 4), 6.0);
    EXPECT_EQ(OnLapOf(9.5, {2, 3}, 4), 1.5);
    EXPECT_EQ(OnLapOf(2.5, {5, 6}, 4), 6.5);
    EXPECT_EQ(OnLapOf(0.5, {5, 6}, 4), 4.5);
}

TEST(NormalizePosOnLapOfRange, AForwardRangePastTheCountBringsPositionsToItsLap)
{
    EXPECT_EQ(OnLapOf(1.5, {5, 6}, 4), 5.5);
    EXPECT_EQ(OnLapOf(0.5, {7, 9}, 4), 8.5);
    EXPECT_EQ(OnLapOf(3.5, {7, 9}, 4), 7.5);
    EXPECT_EQ(OnLapOf(11.5, {7, 9}, 4), 7.5);
    EXPECT_EQ(OnLapOf(3.0, {7, 9}, 4), 7.0);
}

TEST(NormalizePosOnLapOfRange, AWholeRangeUnrollsToOneLapFromItsStart)
{
    EXPECT_EQ(OnLapOf(0.5, {1, 1}, 4), 4.5);
    EXPECT_EQ(OnLapOf(2.5, {1, 1}, 4), 2.5);
    EXPECT_EQ(OnLapOf(0.0, {1, 1}, 4), 4.0);
    EXPECT_EQ(OnLapOf(5.0, {1, 1}, 4), 5.0);
    EXPECT_EQ(OnLapOf(0.5, {1, 1 + 5e-10}, 4), 4.5);
    EXPECT_EQ(OnLapOf(0.5, {1 + 5e-10, 1}, 4), 4.5);
    // 1 + 1e-9 rounds to just over a tolerance above 1: no whole range, and nothing is unrolled.
    EXPECT_EQ(OnLapOf(0.5, {1, 1 + 1e-9}, 4), 0.5);
    EXPECT_EQ(OnLapOf(0.5, {1, std::nextafter(1 + 1e-9, 0.0)}, 4), 4.5);
    // 8 + 5e-10 is near neither end of the unrolled (0, 4): two laps go.
    EXPECT_EQ(OnLapOf(8 + 5e-10, {0, 0}, 4), (8 + 5e-10) - 8);
}

TEST(NormalizePosOnLapOfRange, AnEndAtAMultipleOfTheCountBelongsToTheLapBeforeIt)
{
    EXPECT_EQ(OnLapOf(0.5, {3, 4}, 4), 0.5);
    EXPECT_EQ(OnLapOf(0.5, {3, 0}, 4), 0.5);
    EXPECT_EQ(OnLapOf(0.5, {3, 4 + 5e-10}, 4), 0.5);
    EXPECT_EQ(OnLapOf(0.5, {5, 8}, 4), 4.5);
    EXPECT_EQ(OnLapOf(0.5, {5, 8 + 1e-6}, 4), 8.5);
    EXPECT_EQ(OnLapOf(0.5, {3, 4 + 1e-6}, 4), 4.5);
}

TEST(NormalizePosOnLapOfRange, NothingIsLiftedThatLiesExactlyAtTheStart)
{
    // 9 is no end of the unrolled (1, 5); it wraps to 1, which is not below the start.
    EXPECT_EQ(OnLapOf(9.0, {1, 1}, 4), 1.0);
    EXPECT_EQ(OnLapOf(8.75, {1, 1}, 4), 4.75);
}

TEST(NormalizePosOnLapOfRange, PositionsNearAnEndStayAsTheyAre)
{
    EXPECT_EQ(OnLapOf(3 + 5e-10, {3, 1}, 4), 3 + 5e-10);
    EXPECT_EQ(OnLapOf(3 - 5e-10, {3, 1}, 4), 3 - 5e-10);
    EXPECT_EQ(OnLapOf(5 + 5e-10, {3, 1}, 4), 5 + 5e-10);
    EXPECT_EQ(OnLapOf(5.0, {5, 6}, 4), 5.0);
    EXPECT_EQ(OnLapOf(-1.0, {-1, 2}, 4), -1.0);
    EXPECT_EQ(OnLapOf(9.5, {7, 9.5}, 4), 9.5);
    EXPECT_EQ(OnLapOf(-5e-10, {0, 2}, 4), -5e-10);
    // The end of a wrapping range counts one lap up only: 1 is not near 5 and is lifted.
    EXPECT_EQ(OnLapOf(1 + 5e-10, {3, 1}, 4), (1 + 5e-10) + 4);
}

TEST(NormalizePosOnLapOfRange, NearnessToAnEndIsStrict)
{
    // Just before a wrapping range, what is no longer near the start is lifted by a lap.
    const double near = std::nextafter(3 - 1e-9, 4.0);
    const double outside = std::nextafter(3 - 1e-9, 0.0);
    ASSERT_LT(3 - near, Tolerance);
    ASSERT_GT(3 - outside, Tolerance);
    EXPECT_EQ(OnLapOf(near, {3, 1}, 4), near);
    EXPECT_EQ(OnLapOf(outside, {3, 1}, 4), outside + 4);

    // Just past the end at 5 of (3, 1) unrolled, what is no longer near stays on the second lap all the same;
    // just past the end 4 of a range without a second lap it falls to the first.
    EXPECT_EQ(OnLapOf(4 + 5e-10, {2, 4}, 4), 4 + 5e-10);
    EXPECT_EQ(OnLapOf(4 + 2e-9, {2, 4}, 4), (4 + 2e-9) - 4);
}

TEST(NormalizePosOnLapOfRange, LapsOfNegativeRangesAreCutTowardsZero)
{
    EXPECT_EQ(OnLapOf(3.5, {-1, 1}, 4), 3.5);
    EXPECT_EQ(OnLapOf(-0.5, {-1, 1}, 4), 3.5);
    EXPECT_EQ(OnLapOf(3.5, {-5, -3}, 4), -0.5);
    EXPECT_EQ(OnLapOf(3.5, {-9, -7}, 4), -4.5);
    EXPECT_EQ(OnLapOf(0.5, {-9, -7}, 4), -7.5);
}

TEST(NormalizePosOnLapOfRange, AnOutlineWithoutSegmentsHasNoPositions)
{
    EXPECT_EQ(OnLapOf(0.5, {3, 1}, 0), -1.0);
    EXPECT_EQ(OnLapOf(3.0, {3, 4}, 0), -1.0);
    EXPECT_EQ(OnLapOf(NaN, {3, 1}, 0), -1.0);
}

TEST(NormalizePosOnLapOfRange, WhereNoNumberOfLapsLeadsBackThereIsNoPosition)
{
    EXPECT_EQ(OnLapOf(0.5, {1, 2}, -4), -1.0);
    EXPECT_EQ(OnLapOf(0.5, {5, 6}, -4), -1.0);
    EXPECT_EQ(OnLapOf(Infinite, {1, 2}, 4), -1.0);
    EXPECT_EQ(OnLapOf(-Infinite, {5, 6}, 4), -1.0);
    // The two faces of the seam need no lap.
    EXPECT_EQ(OnLapOf(0.0, {1, 2}, -4), 0.0);
    EXPECT_EQ(OnLapOf(-4.0, {1, 2}, -4), -4.0);
}

TEST(NormalizePosOnLapOfRange, EndsThatAreNoNumbersCountAsTheFirstLap)
{
    EXPECT_EQ(OnLapOf(4.5, {NaN, 5}, 4), 0.5);
    EXPECT_EQ(OnLapOf(0.5, {5, NaN}, 4), 0.5 + 4 + 4);
    EXPECT_TRUE(std::isnan(OnLapOf(NaN, {1, 2}, 4)));
}

TEST(NormalizePosOnLapOfRange, LapsBeyondIntTakeTheNearestInt)
{
    // INT_MAX / 4 whole laps of 4.
    EXPECT_EQ(OnLapOf(0.5, {1e300, 1e300}, 4), 2147483644.5);
    EXPECT_EQ(OnLapOf(0.5, {-1e300, -1e299}, 4), -2147483647.5);
}
