#include "support/Ranges.h"
#include "support/Support.h"

#include <cmath>

using namespace math;
using namespace math::test;

// The laws of positions, numbered as in docs/positions.md. On quarters everything is exact, so the laws are compared with
// ==; where a law has exceptions the test tells where they lie and fails when there is one more or one fewer.

namespace
{

constexpr int MostSegments = 6;

double Wrapped(double position, int count)
{
    return PosRangeD::NormalizePos(position, count);
}

double OnLapOf(const PosRangeD& range, double position, int count)
{
    return PosRangeD::NormalizePos(position, range, count);
}

bool IsWholeNumber(double value)
{
    return value == std::floor(value);
}

bool IsOnSeam(double position, int count)
{
    return IsWholeNumber(position / count);
}

/// Calls visit(position, count) for the quarters within five laps on either side of 0.
template <typename Visit>
void ForQuarters(Visit visit)
{
    for (int count = 1; count <= MostSegments; ++count)
    {
        for (int quarter = -20 * count; quarter <= 20 * count; ++quarter)
        {
            visit(0.25 * quarter, count);
        }
    }
}

/// Calls visit(position, count) for positions at random and for those next to a seam, some of them within the
/// tolerance.
template <typename Visit>
void ForPositionsAtRandom(std::uint64_t seed, Visit visit)
{
    Random random(seed);
    for (int round = 0; round < 20000; ++round)
    {
        const int count = random.Integer(1, 40);
        visit(random.Number(-200, 200), count);
        visit(Stepped(count * random.Integer(-3, 3), random.Integer(-3, 3)), count);
        visit(count * random.Integer(-3, 3) + random.Number(-3e-9, 3e-9), count);
    }
}

/// Calls visit(position, count) for multiples of 1/1024 at random, every fourth of them a node: what is done to them is
/// exact.
template <typename Visit>
void ForExactPositionsAtRandom(std::uint64_t seed, Visit visit)
{
    Random random(seed);
    for (int round = 0; round < 20000; ++round)
    {
        const int count = random.Integer(1, 40);
        const int parts = random.Integer(0, 3) == 0 ? 1 : 1024;
        visit(random.Integer(-5 * count * parts, 5 * count * parts) / static_cast<double>(parts), count);
    }
}

/// Ranges as columns of maps have them: from a start within the first two laps for up to a lap, told raw or wrapped.
template <typename Visit>
void ForRangesAndQuarters(Visit visit)
{
    for (int count = 1; count <= 3; ++count)
    {
        for (int start = 0; start <= 8 * count; ++start)
        {
            for (int end = 0; end <= start + 4 * count; ++end)
            {
                const bool wraps = end < start;
                const bool isWithoutExtent = wraps && start - end == 4 * count; // from the one face to the other
                if ((wraps && start > 4 * count) || isWithoutExtent)
                {
                    continue;
                }
                for (int quarter = -12 * count; quarter <= 16 * count; ++quarter)
                {
                    visit(PosRangeD(0.25 * start, 0.25 * end), 0.25 * quarter, count);
                }
            }
        }
    }
}

/// Ranges of that kind and positions, in multiples of 1/1024 at random.
template <typename Visit>
void ForExactRangesAtRandom(std::uint64_t seed, Visit visit)
{
    Random random(seed);
    for (int round = 0; round < 20000; ++round)
    {
        const int count = random.Integer(1, 40);
        const int parts = random.Integer(0, 3) == 0 ? 1 : 1024;
        const int lap = count * parts;
        const int start = random.Integer(0, 2 * lap);
        const int end = start + random.Integer(0, lap);
        const bool wraps = start > 0 && start <= lap && end > lap && end - lap < start && random.Coin();
        const PosRangeD range(static_cast<double>(start) / parts, static_cast<double>(wraps ? end - lap : end) / parts);
        visit(range, random.Integer(-3 * lap, 4 * lap) / static_cast<double>(parts), count);
    }
}

double UnrolledEnd(const PosRangeD& range, int count)
{
    return range.end > range.start ? range.end : range.end + count;
}

/// Tells whether a position lies in the unrolled range, its ends included, on whichever lap.
bool IsCoveredOnSomeLap(const PosRangeD& range, double position, int count)
{
    for (int lap = -8; lap <= 8; ++lap)
    {
        const double moved = position + lap * count;
        if (moved >= range.start && moved <= UnrolledEnd(range, count))
        {
            return true;
        }
    }
    return false;
}

testing::Message Told(const PosRangeD& range, double position, int count)
{
    return testing::Message() << Text(position) << " seen from " << Two(range) << " on " << count;
}

} // namespace

TEST(PositionLaws, P1_WrappingTwiceIsWrappingOnce)
{
    const auto check = [](double position, int count) {
        const double wrapped = Wrapped(position, count);
        EXPECT_TRUE(SameNumber(Wrapped(wrapped, count), wrapped)) << Text(position) << " on " << count;
    };
    ForQuarters(check);
    ForPositionsAtRandom(101, check);
    for (int count : {0, -1, -3})
    {
        check(2.5, count);
        check(-7.25, count);
    }
}

TEST(PositionLaws, P2_WrappingMovesByWholeLapsIntoTheFirst)
{
    ForQuarters([](double position, int count) {
        const double wrapped = Wrapped(position, count);
        EXPECT_TRUE(IsWholeNumber((position - wrapped) / count)) << position << " on " << count;
        EXPECT_TRUE(wrapped >= 0 && wrapped <= count) << position << " on " << count;
    });
    // The one rounding is that of the step up from below 0: half a unit in the last place of a number below the count.
    ForPositionsAtRandom(102, [](double position, int count) {
        const double wrapped = Wrapped(position, count);
        EXPECT_LE(std::fabs(std::remainder(position - wrapped, count)), 4e-14) << Text(position) << " on " << count;
        EXPECT_TRUE(wrapped > -Tolerance && wrapped < count + Tolerance) << Text(position) << " on " << count;
    });
}

TEST(PositionLaws, P3_APositionInTheLapStaysAsItIs)
{
    const auto check = [](double position, int count) {
        if (position >= 0 && position <= count)
        {
            EXPECT_TRUE(SameNumber(Wrapped(position, count), position)) << Text(position) << " on " << count;
        }
    };
    ForQuarters(check);
    ForPositionsAtRandom(103, check);
}

TEST(PositionLaws, P4_AFurtherLapChangesNothingExceptWhichFaceOfTheSeam)
{
    int exceptions = 0;
    const auto check = [&](double position, int count) {
        for (int laps = -3; laps <= 3; ++laps)
        {
            const double moved = position + laps * count;
            const bool isException = IsOnSeam(position, count) && (position > 0) != (moved > 0);
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(Wrapped(moved, count) == Wrapped(position, count), !isException)
                << position << " and " << moved << " on " << count;
            if (IsOnSeam(position, count))
            {
                EXPECT_EQ(Wrapped(position, count), position > 0 ? count : 0);
            }
        }
    };
    ForQuarters(check);
    // Up over the zero by 1, 2, 3 laps: from 1, 2, 3 multiples of the count; the same number downward; six counts.
    EXPECT_EQ(exceptions, 2 * (1 + 2 + 3) * MostSegments);
    ForExactPositionsAtRandom(104, check);
}

TEST(PositionLaws, P5_IndexAndRatioMakeUpThePosition)
{
    const auto check = [](double position, int count) {
        const double ratio = PosRangeD::GetRadio(position);
        EXPECT_EQ(PosRangeD::GetSegmentIndex(position) + ratio, position) << Text(position) << " on " << count;
        EXPECT_TRUE(std::fabs(ratio) < 1 && std::signbit(ratio) == std::signbit(position)) << Text(position);
    };
    ForQuarters(check);
    ForPositionsAtRandom(105, check);
}

TEST(PositionLaws, P6_WrappingCommutesWithTurningTheOutlineRound)
{
    const auto check = [](double position, int count) {
        EXPECT_EQ(Wrapped(count - position, count), count - Wrapped(position, count)) << position << " on " << count;
    };
    ForQuarters(check);
    ForExactPositionsAtRandom(106, check);
}

TEST(PositionLaws, P7_WrappingCommutesWithMovingTheStartExceptAtTheNewSeam)
{
    int exceptions = 0;
    const auto check = [&](double position, int count) {
        for (int start = 0; start < count; ++start)
        {
            const double renumbered = position - start;
            const bool isException = start > 0 && renumbered > 0 && IsOnSeam(renumbered, count);
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(Wrapped(Wrapped(position, count) - start, count) == Wrapped(renumbered, count), !isException)
                << position << " on " << count << " begun at " << start;
        }
    };
    ForQuarters(check);
    // Four laps end between each start other than 0 and the fifth lap's end.
    EXPECT_EQ(exceptions, 4 * (1 + 2 + 3 + 4 + 5));
    ForExactPositionsAtRandom(107, check);
}

TEST(PositionLaws, P8_MovingToTheLapOfARangeMovesByWholeLapsAndTwiceIsOnceExceptFromTheSecondLap)
{
    int exceptions = 0;
    const auto check = [&](const PosRangeD& range, double position, int count) {
        const double moved = OnLapOf(range, position, count);
        EXPECT_TRUE(IsWholeNumber((moved - position) / count)) << Told(range, position, count);
        const bool isInsideSecondLap =
            range.start > count && range.start < 2 * count && UnrolledEnd(range, count) <= 2 * count;
        const bool isException = isInsideSecondLap && position <= 0 && IsOnSeam(position, count);
        exceptions += isException ? 1 : 0;
        EXPECT_EQ(OnLapOf(range, moved, count), isException ? moved + count : moved) << Told(range, position, count);
    };
    ForRangesAndQuarters(check);
    // Four positions at 0 and on the laps before it; on a lap of 4, 8 and 12 quarters, ranges within that do not begin at
    // its start.
    EXPECT_EQ(exceptions, 4 * (4 * 3 / 2 + 8 * 7 / 2 + 12 * 11 / 2));
    ForExactRangesAtRandom(108, check);
}

TEST(PositionLaws, P9_APositionInTheRangeComesIntoItExceptFromTheFarFaceOfTheSeam)
{
    int exceptions = 0;
    const auto check = [&](const PosRangeD& range, double position, int count) {
        const double end = UnrolledEnd(range, count);
        const double moved = OnLapOf(range, position, count);
        const bool isInside = moved >= range.start && moved <= end;
        if (!IsCoveredOnSomeLap(range, position, count))
        {
            EXPECT_FALSE(isInside) << Told(range, position, count);
            return;
        }
        // A range that only touches the seam has one of its two faces.
        const bool isLap = end - range.start == count;
        const bool hasFarFace = IsOnSeam(range.start, count) && !isLap && position > 0 && position != range.start;
        const bool hasNearFace = IsOnSeam(end, count) && !isLap && position <= 0 && position != end;
        const bool isException = IsOnSeam(position, count) && (hasFarFace || hasNearFace);
        exceptions += isException ? 1 : 0;
        EXPECT_EQ(isInside, !isException) << Told(range, position, count);
    };
    ForRangesAndQuarters(check);
    EXPECT_EQ(exceptions, 525);
    ForExactRangesAtRandom(109, check);
}

TEST(PositionLaws, P10_ALapMoreComesToTheSamePlaceOnTheLapOfARange)
{
    int exceptions = 0;
    const auto check = [&](const PosRangeD& range, double position, int count) {
        const double moved = OnLapOf(range, position, count);
        const double lapOn = OnLapOf(range, position + count, count);
        const bool isEndOfALap =
            UnrolledEnd(range, count) - range.start == count && IsOnSeam(position - range.start, count);
        if (IsOnSeam(position, count) || isEndOfALap)
        {
            // Two numbers for one place: either face may come back.
            EXPECT_TRUE(lapOn == moved || std::fabs(lapOn - moved) == count) << Told(range, position, count);
            exceptions += lapOn == moved ? 0 : 1;
            return;
        }
        EXPECT_EQ(lapOn, moved) << Told(range, position, count);
    };
    ForRangesAndQuarters(check);
    EXPECT_EQ(exceptions, 545);
    ForExactRangesAtRandom(110, check);
}
