#include "support/Ranges.h"
#include "support/ReferenceRanges.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <vector>

using namespace math;
using namespace math::test;

namespace
{

reference::Range Plain(const PosRangeD& range)
{
    return {range.start, range.end};
}

RangeList ListOf(const reference::Ranges& ranges)
{
    RangeList list;
    for (const reference::Range& range : ranges)
    {
        list.ranges.emplace_back(range.start, range.end);
    }
    return list;
}

bool HasNaN(const PosRangeD& range)
{
    return std::isnan(range.start) || std::isnan(range.end);
}

/// The difference is compared where no end is NaN or none is looked at: the greatest end of a NaN and a number is open.
bool DifferenceIsTold(const PosRangeD& a, const PosRangeD& b)
{
    return (!HasNaN(a) && !HasNaN(b)) || a.IsWholeRange() || b.IsWholeRange();
}

::testing::AssertionResult AgreesWithTheSecondImplementation(const PosRangeD& a, const PosRangeD& b)
{
    const auto tell = [&](const char* operation, const RangeList& result, const reference::Ranges& expected) {
        return ::testing::AssertionFailure()
               << Two(a) << operation << Two(b) << " gave " << result << ", expected " << ListOf(expected);
    };
    const reference::Range plainA = Plain(a);
    const reference::Range plainB = Plain(b);
    if (DifferenceIsTold(a, b) && !(Difference(a, b) == ListOf(reference::Difference(plainA, plainB))))
    {
        return tell(" - ", Difference(a, b), reference::Difference(plainA, plainB));
    }
    if (!(Union(a, b) == ListOf(reference::Union(plainA, plainB))))
    {
        return tell(" + ", Union(a, b), reference::Union(plainA, plainB));
    }
    if (!(Intersection(a, b) == ListOf(reference::Intersection(plainA, plainB))))
    {
        return tell(" * ", Intersection(a, b), reference::Intersection(plainA, plainB));
    }
    if (!(Cut(a, b.start) == ListOf(reference::Split(plainA, b.start))))
    {
        return tell(" cut at the start of ", Cut(a, b.start), reference::Split(plainA, b.start));
    }
    return ::testing::AssertionSuccess();
}

/// Compares every pair of ranges whose ends are taken from a list.
void CompareAllPairs(const std::vector<double>& ends)
{
    std::vector<PosRangeD> ranges;
    for (double start : ends)
    {
        for (double end : ends)
        {
            ranges.emplace_back(start, end);
        }
    }
    for (const PosRangeD& a : ranges)
    {
        for (const PosRangeD& b : ranges)
        {
            ASSERT_TRUE(AgreesWithTheSecondImplementation(a, b));
        }
    }
}

/// A position that often falls on another one, or next to it, or just outside the tolerance.
double CrowdedPosition(Random& random)
{
    const double node = random.Integer(0, 6);
    switch (random.Integer(0, 5))
    {
    case 0:
        return node;
    case 1:
        return node + 0.25 * random.Integer(0, 3);
    case 2:
        return node + 0.25e-9 * random.Integer(-6, 6);
    case 3:
        return Stepped(node, random.Integer(-2, 2));
    case 4:
        return random.Coin() ? FirstClearAbove(node) : LastNearAbove(node);
    default:
        return random.Number(0, 6);
    }
}

PosRangeD CrowdedRange(Random& random)
{
    const double start = CrowdedPosition(random);
    return PosRangeD(start, random.Integer(0, 9) == 0 ? start : CrowdedPosition(random));
}

} // namespace

// Against a second implementation, bit for bit

TEST(RangeAlgebra, AgreesWithASecondImplementationOnRandomRanges)
{
    Random random(20240611);
    for (int i = 0; i < 120000; ++i)
    {
        const double a = random.Number(0, 7);
        const double b = random.Number(0, 7);
        const double c = random.Number(0, 7);
        ASSERT_TRUE(AgreesWithTheSecondImplementation({a, b}, {c, random.Number(0, 7)}));
    }
}

TEST(RangeAlgebra, AgreesWithASecondImplementationOnCrowdedRanges)
{
    Random random(20240612);
    for (int i = 0; i < 120000; ++i)
    {
        const PosRangeD a = CrowdedRange(random);
        ASSERT_TRUE(AgreesWithTheSecondImplementation(a, CrowdedRange(random)));
    }
}

TEST(RangeAlgebra, AgreesWithASecondImplementationNextToTheTolerance)
{
    CompareAllPairs({0.0, JustBelowTolerance, Tolerance, 1.0, LastNearAbove(1), FirstClearAbove(1), LastNearBelow(1),
                     JustBelow(1), 2.5, 3.0, LastNearAbove(3), FirstClearAbove(3)});
}

TEST(RangeAlgebra, AgreesWithASecondImplementationOnDegenerateEnds)
{
    CompareAllPairs(
        {-Infinite, -3.0, -2.0, -2.0 + 2e-10, -2.0 + 5e-10, -1.0, -2e-9, -1e-9, -0.0, 0.0, 1.0, 2.0, Infinite, NaN});
}

// What the results cover

namespace
{

/// A whole number above every position of these tests, so that the length by which ranges are unrolled can be told.
double UnrollLengthOf(const PosRangeD& a, const PosRangeD& b)
{
    return std::ceil(std::max({a.start, a.end, b.start, b.end})) + 1.0;
}

/// Tells whether a position lies in one of the pieces, and counts in how many. An end on the unroll length is the seam.
int CountCovering(const std::vector<PosRangeD>& pieces, double position, double length)
{
    int count = 0;
    for (PosRangeD piece : pieces)
    {
        piece.start = piece.start == length ? 0.0 : piece.start;
        piece.end = piece.end == length ? 0.0 : piece.end;
        count += piece.IsContain(position) ? 1 : 0;
    }
    return count;
}

/// Two wrapping ranges that meet a second time, one lap on: the end of one lies past the start of the other. Only the
/// stretch over the seam is then seen.
bool MeetTwice(const PosRangeD& a, const PosRangeD& b)
{
    const bool bothWrap = a.start > a.end && b.start > b.end;
    return bothWrap && (b.start < a.end || a.start < b.end);
}

bool InSecondMeeting(const PosRangeD& a, const PosRangeD& b, double position)
{
    return (position > b.start && position < a.end) || (position > a.start && position < b.end);
}

/// Checks the three results at one position that is no end of a range.
void CheckPosition(const PosRangeD& a, const PosRangeD& b, double position)
{
    const double length = UnrollLengthOf(a, b);
    const bool inA = a.IsContain(position);
    const bool inB = b.IsContain(position);
    const int left = CountCovering(a - b, position, length);
    const int common = CountCovering(a * b, position, length);
    const int joined = CountCovering(a + b, position, length);
    const auto where = [&] { return ::testing::Message() << Two(a) << ", " << Two(b) << " at " << Text(position); };

    EXPECT_EQ(left + common, inA ? 1 : 0) << "difference and intersection part the first range: " << where();
    EXPECT_EQ(joined > 0, inA || inB) << where();
    const bool seenTwice = MeetTwice(a, b) && InSecondMeeting(a, b, position);
    EXPECT_EQ(left, inA && (!inB || seenTwice) ? 1 : 0) << where();
    EXPECT_EQ(common, inA && inB && !seenTwice ? 1 : 0) << where();
}

/// Multiples of a quarter from 0 to `count`, and whole ranges with the others.
std::vector<PosRangeD> RangesOnAGrid(int count)
{
    std::vector<PosRangeD> ranges;
    for (int start = 0; start <= 2 * count; ++start)
    {
        for (int end = 0; end <= 2 * count; ++end)
        {
            ranges.emplace_back(0.5 * start, 0.5 * end);
        }
    }
    return ranges;
}

} // namespace

TEST(RangeAlgebra, DifferenceUnionAndIntersectionCoverWhatTheyShould)
{
    const int count = 4;
    for (const PosRangeD& a : RangesOnAGrid(count))
    {
        for (const PosRangeD& b : RangesOnAGrid(count))
        {
            for (double position = 0.25; position < count; position += 0.5)
            {
                CheckPosition(a, b, position);
            }
            if (HasFailure())
            {
                return;
            }
        }
    }
}

TEST(RangeAlgebra, RandomRangesCoverWhatTheyShould)
{
    Random random(20240613);
    for (int i = 0; i < 5000 && !HasFailure(); ++i)
    {
        const double count = random.Integer(1, 9);
        const PosRangeD a(random.Number(0, count), random.Number(0, count));
        const PosRangeD b(random.Number(0, count), random.Number(0, count));
        for (int sample = 0; sample < 8; ++sample)
        {
            const double position = random.Number(0, count);
            const auto clearOf = [position](double end) { return std::fabs(position - end) > 1e-6; };
            if (clearOf(a.start) && clearOf(a.end) && clearOf(b.start) && clearOf(b.end))
            {
                CheckPosition(a, b, position);
            }
        }
    }
}

// The seam moved, the walk reversed

namespace
{

/// The range on the same closed polyline when its numbering begins `shift` segments later.
PosRangeD TurnedBy(const PosRangeD& range, int shift, int count)
{
    const auto turned = [shift, count](double position) {
        const double moved = position - shift;
        return moved < 0 ? moved + count : moved;
    };
    return PosRangeD(turned(range.start), turned(range.end));
}

/// What two ranges share and what the first keeps, told at half-quarter positions of the polyline.
std::vector<int> Footprint(const std::vector<PosRangeD>& pieces, int shift, bool reversed, int count, double length)
{
    std::vector<int> covered;
    for (int step = 0; step < 2 * count; ++step)
    {
        double position = 0.25 + 0.5 * step;
        position = reversed ? count - position : position;
        position -= shift;
        covered.push_back(CountCovering(pieces, position < 0 ? position + count : position, length) > 0 ? 1 : 0);
    }
    return covered;
}

/// Ends that lie on the seam have two numbers; the way through 0 is kept apart here.
bool HasAnEndOnTheSeam(const PosRangeD& range, int count)
{
    const auto onSeam = [count](double end) { return end == 0 || end == count; };
    return onSeam(range.start) || onSeam(range.end);
}

struct Footprints
{
    std::vector<int> left;
    std::vector<int> common;
    std::vector<int> joined;
};

Footprints FootprintsOf(const PosRangeD& a, const PosRangeD& b, int shift, bool reversed, int count)
{
    const double length = UnrollLengthOf(a, b);
    return {Footprint(a - b, shift, reversed, count, length), Footprint(a * b, shift, reversed, count, length),
            Footprint(a + b, shift, reversed, count, length)};
}

void ExpectSameFootprints(const Footprints& found, const Footprints& expected, bool meetTwice)
{
    EXPECT_EQ(found.joined, expected.joined);
    if (!meetTwice)
    {
        EXPECT_EQ(found.left, expected.left);
        EXPECT_EQ(found.common, expected.common);
    }
}

} // namespace

TEST(RangeAlgebra, WhereTheNumberingBeginsMakesNoDifference)
{
    const int count = 4;
    for (const PosRangeD& a : RangesOnAGrid(count))
    {
        for (const PosRangeD& b : RangesOnAGrid(count))
        {
            if (HasAnEndOnTheSeam(a, count) || HasAnEndOnTheSeam(b, count))
            {
                continue;
            }
            const Footprints expected = FootprintsOf(a, b, 0, false, count);
            for (int shift = 1; shift < count; ++shift)
            {
                const PosRangeD turnedA = TurnedBy(a, shift, count);
                const PosRangeD turnedB = TurnedBy(b, shift, count);
                SCOPED_TRACE(::testing::Message() << Two(a) << ", " << Two(b) << " from " << shift);
                ExpectSameFootprints(FootprintsOf(turnedA, turnedB, shift, false, count), expected,
                                     MeetTwice(a, b) || MeetTwice(turnedA, turnedB));
            }
            if (HasFailure())
            {
                return;
            }
        }
    }
}

TEST(RangeAlgebra, WhichWayTheOutlineIsWalkedMakesNoDifference)
{
    const int count = 4;
    for (const PosRangeD& a : RangesOnAGrid(count))
    {
        for (const PosRangeD& b : RangesOnAGrid(count))
        {
            SCOPED_TRACE(::testing::Message() << Two(a) << ", " << Two(b));
            ExpectSameFootprints(FootprintsOf(a.Reverse(count), b.Reverse(count), 0, true, count),
                                 FootprintsOf(a, b, 0, false, count), MeetTwice(a, b));
            if (HasFailure())
            {
                return;
            }
        }
    }
}

TEST(RangeAlgebra, CuttingARangeLosesNothing)
{
    Random random(20240614);
    for (int i = 0; i < 5000; ++i)
    {
        PosRangeD range(random.Number(0, 5), random.Number(0, 5));
        const double cut = random.Number(0, 5);
        const double position = random.Number(0, 5);
        const std::vector<PosRangeD> pieces = range.Splite(cut);
        ASSERT_EQ(pieces.size(), range.IsContain(cut) ? 2U : 1U);
        EXPECT_EQ(Two(pieces.front().start, pieces.back().end), Two(range));
        int covering = 0;
        for (const PosRangeD& piece : pieces)
        {
            covering += piece.IsContain(position) ? 1 : 0;
        }
        EXPECT_EQ(covering, range.IsContain(position) ? 1 : 0) << Two(range) << " cut at " << Text(cut);
    }
}
