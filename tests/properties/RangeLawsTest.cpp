#include "support/Ranges.h"
#include "support/Support.h"

#include <algorithm>
#include <bitset>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of ranges, numbered as in docs/positions.md. The grid is a closed outline of three segments in quarters: all
// ranges with their ends on it, forward, wrapping and whole, and the invalid one. What a range covers is a set of
// quarters, so that the algebra of ranges can be laid beside that of sets.

namespace
{

constexpr int Count = 3;
constexpr std::size_t Quarters = 4 * Count;

using Cover = std::bitset<Quarters>;

double Middle(std::size_t quarter)
{
    return 0.25 * static_cast<double>(quarter) + 0.125;
}

/// The quarters of a range, by the rule of its state.
Cover CoverOf(const PosRangeD& range)
{
    Cover cover;
    for (std::size_t quarter = 0; quarter < Quarters; ++quarter)
    {
        const bool pastStart = Middle(quarter) > range.start;
        const bool beforeEnd = Middle(quarter) < range.end;
        const bool isValid = range.start >= 0 && range.end >= 0;
        const bool isWhole = range.start == range.end;
        const bool isForward = range.start < range.end;
        cover[quarter] = isValid && (isWhole || (isForward ? pastStart && beforeEnd : pastStart || beforeEnd));
    }
    return cover;
}

Cover CoverOf(const std::vector<PosRangeD>& pieces)
{
    Cover cover;
    for (const PosRangeD& piece : pieces)
    {
        cover |= CoverOf(piece);
    }
    return cover;
}

/// The length by which the operators unroll a range over the seam: a whole number above every end.
double UnrollLength(const PosRangeD& a, const PosRangeD& b)
{
    return std::ceil(std::max({a.start, a.end, b.start, b.end})) + 1;
}

/// A result as it is read: the operators do not know the count, and leave an end that lies on the seam on the length by
/// which they unrolled.
std::vector<PosRangeD> Read(std::vector<PosRangeD> pieces, const PosRangeD& a, const PosRangeD& b)
{
    for (PosRangeD& piece : pieces)
    {
        piece.start = piece.start == UnrollLength(a, b) ? 0 : piece.start;
        piece.end = piece.end == UnrollLength(a, b) ? 0 : piece.end;
    }
    return pieces;
}

std::vector<PosRangeD> Minus(const PosRangeD& a, const PosRangeD& b)
{
    return Read(a - b, a, b);
}

std::vector<PosRangeD> Plus(const PosRangeD& a, const PosRangeD& b)
{
    return Read(a + b, a, b);
}

std::vector<PosRangeD> Times(const PosRangeD& a, const PosRangeD& b)
{
    return Read(a * b, a, b);
}

bool CoverEachOther(const std::vector<PosRangeD>& pieces)
{
    return pieces.size() == 2 && (CoverOf(pieces[0]) & CoverOf(pieces[1])).any();
}

bool IsSubset(const Cover& part, const Cover& whole)
{
    return (part & ~whole).none();
}

bool IsForward(const PosRangeD& range)
{
    return range.end > range.start;
}

bool IsWrapping(const PosRangeD& range)
{
    return range.end < range.start;
}

/// Everything, like a whole range, but with two ends.
bool IsFromSeamToSeam(const PosRangeD& range)
{
    return range.start == 0 && range.end == Count;
}

/// Two wrapping ranges where the end of one lies past the start of the other: they meet over the seam and once more.
/// Unrolled by one lap only the meeting over the seam shows.
bool MeetTwice(const PosRangeD& a, const PosRangeD& b)
{
    return IsWrapping(a) && IsWrapping(b) && (b.start < a.end || a.start < b.end);
}

Cover SecondMeeting(const PosRangeD& a, const PosRangeD& b)
{
    Cover cover;
    if (MeetTwice(a, b))
    {
        cover = b.start < a.end ? CoverOf(PosRangeD(b.start, a.end)) : CoverOf(PosRangeD(a.start, b.end));
    }
    return cover;
}

std::vector<PosRangeD> AllValidRanges()
{
    std::vector<PosRangeD> ranges;
    for (std::size_t start = 0; start <= Quarters; ++start)
    {
        for (std::size_t end = 0; end <= Quarters; ++end)
        {
            ranges.emplace_back(0.25 * static_cast<double>(start), 0.25 * static_cast<double>(end));
        }
    }
    return ranges;
}

std::vector<PosRangeD> AllRanges()
{
    std::vector<PosRangeD> ranges = AllValidRanges();
    ranges.emplace_back();
    return ranges;
}

/// One number for each place: the seam is 0 where a range starts and the count where it ends.
std::vector<PosRangeD> RangesWithOneNumberForTheSeam()
{
    std::vector<PosRangeD> ranges;
    for (const PosRangeD& range : AllValidRanges())
    {
        if ((range.start < Count && range.end > 0) || range.IsWholeRange())
        {
            ranges.push_back(range);
        }
    }
    return ranges;
}

template <typename Visit>
void ForPairs(const std::vector<PosRangeD>& ranges, Visit visit)
{
    for (const PosRangeD& a : ranges)
    {
        for (const PosRangeD& b : ranges)
        {
            visit(a, b);
        }
        if (testing::Test::HasFailure())
        {
            return;
        }
    }
}

testing::Message Told(const PosRangeD& a, const PosRangeD& b)
{
    return testing::Message() << Two(a) << " and " << Two(b);
}

/// Equal by the library's own equality, in one order.
bool AreEqualLists(const std::vector<PosRangeD>& a, const std::vector<PosRangeD>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](const PosRangeD& x, const PosRangeD& y) { return x == y; });
}

/// The algebra over lists, piece by piece.
std::vector<PosRangeD> Product(const std::vector<PosRangeD>& pieces, const PosRangeD& range)
{
    std::vector<PosRangeD> product;
    for (const PosRangeD& piece : pieces)
    {
        const std::vector<PosRangeD> part = Times(piece, range);
        product.insert(product.end(), part.begin(), part.end());
    }
    return product;
}

} // namespace

// One range

TEST(RangeLaws, R1_ARangeIsInExactlyOneState)
{
    for (const PosRangeD& range : AllRanges())
    {
        const bool forward = !range.IsInvalid() && !range.IsWholeRange() && !range.IsContainZero();
        const bool wrapping = !range.IsInvalid() && !range.IsWholeRange() && range.IsContainZero();
        const int states = int{range.IsInvalid()} + int{range.IsWholeRange()} + int{forward} + int{wrapping};
        EXPECT_EQ(states, 1) << Two(range);
        EXPECT_EQ(range.IsEmpty(), range.IsInvalid());
        EXPECT_TRUE(!range.IsInvalid() || (!range.IsContainZero() && !range.IsOn(-1) && !range.IsContain(-1)));
        EXPECT_EQ(forward, IsForward(range)) << Two(range);
        EXPECT_EQ(wrapping, IsWrapping(range)) << Two(range);
    }
}

TEST(RangeLaws, R2_ARangeContainsThePositionsThatItCovers)
{
    for (const PosRangeD& range : AllRanges())
    {
        for (std::size_t quarter = 0; quarter < Quarters; ++quarter)
        {
            EXPECT_EQ(range.IsContain(Middle(quarter)), CoverOf(range)[quarter]) << Two(range) << Middle(quarter);
        }
        // Open: no end is contained, unless the range is whole and has none.
        const bool hasEnds = !range.IsInvalid() && !range.IsWholeRange();
        EXPECT_EQ(range.IsOn(range.start), hasEnds) << Two(range);
        EXPECT_EQ(range.IsOn(range.end), hasEnds) << Two(range);
        EXPECT_EQ(range.IsContain(range.start), range.IsWholeRange()) << Two(range);
        EXPECT_EQ(range.IsContain(range.end), range.IsWholeRange()) << Two(range);
    }
}

TEST(RangeLaws, R3_TheComplementCoversTheRestAndItsComplementIsTheRange)
{
    for (const PosRangeD& range : AllRanges())
    {
        const PosRangeD rest = range.Complementary();
        const bool isException = range.IsInvalid(); // its complement is invalid again, not whole
        EXPECT_EQ(CoverOf(rest) == ~CoverOf(range), !isException) << Two(range);
        EXPECT_EQ(Two(rest.Complementary()) == Two(range), !range.IsWholeRange()) << Two(range);
        EXPECT_EQ(range.IsComplementary(rest), !range.IsInvalid()) << Two(range);
    }
    ForPairs(AllRanges(), [](const PosRangeD& a, const PosRangeD& b) {
        EXPECT_EQ(a.IsComplementary(b), b.IsComplementary(a)) << Told(a, b);
        EXPECT_EQ(a.IsComplementary(b),
                  (a.Complementary() == b && !a.IsInvalid()) || (a.IsInvalid() && b.IsWholeRange()))
            << Told(a, b);
    });
}

TEST(RangeLaws, R4_TurnedRoundTwiceIsTheRangeAndTurnedRoundOnceItsMirrorImage)
{
    for (const PosRangeD& range : AllValidRanges())
    {
        const PosRangeD turned = range.Reverse(Count);
        EXPECT_EQ(Two(turned.Reverse(Count)), Two(range));
        for (std::size_t quarter = 0; quarter < Quarters; ++quarter)
        {
            EXPECT_EQ(turned.IsContain(Count - Middle(quarter)), range.IsContain(Middle(quarter))) << Two(range);
        }
    }
}

TEST(RangeLaws, R5_EqualityIsAnEquivalenceAndEqualRangesCoverTheSame)
{
    const std::vector<PosRangeD> ranges = AllRanges();
    ForPairs(ranges, [&](const PosRangeD& a, const PosRangeD& b) {
        const bool sameEnds = a.start == b.start && a.end == b.end;
        EXPECT_EQ(a == b, sameEnds || (a.start == a.end && a.start >= 0 && b.start == b.end && b.start >= 0))
            << Told(a, b);
        EXPECT_EQ(a == b, b == a) << Told(a, b);
        EXPECT_EQ(a == b, !(a != b)) << Told(a, b);
        if (a == b)
        {
            EXPECT_EQ(CoverOf(a), CoverOf(b)) << Told(a, b);
            EXPECT_TRUE(std::all_of(ranges.begin(), ranges.end(), [&](const PosRangeD& c) {
                return !(b == c) || a == c;
            })) << Told(a, b);
        }
    });
}

TEST(RangeLaws, R6_LessIsAStrictWeakOrderExceptAmongInvalidRanges)
{
    const std::vector<PosRangeD> ranges = AllRanges();
    ForPairs(ranges, [&](const PosRangeD& a, const PosRangeD& b) {
        EXPECT_EQ(a < b && b < a, a.IsInvalid() && b.IsInvalid()) << Told(a, b);
        EXPECT_EQ(!(a < b) && !(b < a), a.start == b.start && !a.IsInvalid()) << Told(a, b);
        if (a < b)
        {
            EXPECT_TRUE(std::all_of(ranges.begin(), ranges.end(), [&](const PosRangeD& c) {
                return !(b < c) || a < c;
            })) << Told(a, b);
        }
    });
}

// Two ranges

TEST(RangeLaws, R7_ARangeContainsAnotherThatItCoversExceptRoundTheOtherWay)
{
    int roundTheOtherWay = 0;
    int wholeFromTheSeam = 0;
    ForPairs(RangesWithOneNumberForTheSeam(), [&](const PosRangeD& a, const PosRangeD& b) {
        const bool covers = IsSubset(CoverOf(b), CoverOf(a));
        // Both ends lie inside, and the way between them leads through all that the range leaves out.
        const bool endsInside = a.IsContain(b.start) && a.IsContain(b.end);
        const bool leavesAndReturns = endsInside && !covers && IsSubset(~CoverOf(a), CoverOf(b));
        // From seam to seam covers everything, but has the ends that a whole range begun there is asked for.
        const bool isSeamToSeam = IsFromSeamToSeam(a) && b.IsWholeRange() && (b.start == 0 || b.start == Count);
        roundTheOtherWay += leavesAndReturns ? 1 : 0;
        wholeFromTheSeam += isSeamToSeam ? 1 : 0;
        EXPECT_EQ(a.IsContain(b) == covers, !leavesAndReturns && !isSeamToSeam) << Told(a, b);
    });
    EXPECT_GT(roundTheOtherWay, 0);
    EXPECT_EQ(wholeFromTheSeam, 2);
}

TEST(RangeLaws, R8_RangesThatShareAStretchOverlapExceptInsideTheOther)
{
    int exceptions = 0;
    ForPairs(RangesWithOneNumberForTheSeam(), [&](const PosRangeD& a, const PosRangeD& b) {
        const bool share = (CoverOf(a) & CoverOf(b)).any();
        const bool endsInside = IsWrapping(a) && IsFromSeamToSeam(b);
        const bool isWithin =
            IsSubset(CoverOf(a), CoverOf(b)) && a != b && !a.IsWholeRange() && !b.IsWholeRange() && !endsInside;
        exceptions += isWithin ? 1 : 0;
        EXPECT_EQ(a.IsOverlap(b) == share, !isWithin) << Told(a, b);
        EXPECT_EQ(a.IsOverlap(b) || b.IsOverlap(a), share) << Told(a, b);
    });
    EXPECT_GT(exceptions, 0);
    for (const PosRangeD& range : AllRanges())
    {
        EXPECT_FALSE(range.IsOverlap(PosRangeD()) || PosRangeD().IsOverlap(range)) << Two(range);
        EXPECT_FALSE(range.IsContain(PosRangeD()) || PosRangeD().IsContain(range)) << Two(range);
    }
}

TEST(RangeLaws, R9_CuttingARangePartsItAtThePosition)
{
    for (const PosRangeD& range : AllRanges())
    {
        for (double position = 0; position <= Count; position += 0.25)
        {
            const std::vector<PosRangeD> pieces = PosRangeD(range).Splite(position);
            const bool isCut = range.IsContain(position) && position != range.start;
            if (range.IsInvalid())
            {
                EXPECT_TRUE(pieces.empty());
                continue;
            }
            ASSERT_EQ(pieces.size(), isCut ? 2U : 1U) << Two(range) << " at " << position;
            EXPECT_EQ(Two(pieces.front().start, pieces.back().end), Two(range));
            EXPECT_EQ(pieces.front().end, isCut ? position : range.end);
            EXPECT_EQ(CoverOf(pieces) | CoverOf(pieces.back()), CoverOf(range)) << Two(range) << " at " << position;
            EXPECT_FALSE(CoverEachOther(pieces)) << Two(range) << " at " << position;
        }
    }
}

TEST(RangeLaws, R10_DifferenceAndProductPartTheFirstRange)
{
    ForPairs(AllValidRanges(), [](const PosRangeD& a, const PosRangeD& b) {
        EXPECT_EQ(CoverOf(Minus(a, b)) | CoverOf(Times(a, b)), CoverOf(a)) << Told(a, b);
        EXPECT_TRUE((CoverOf(Minus(a, b)) & CoverOf(Times(a, b))).none()) << Told(a, b);
        EXPECT_FALSE(CoverEachOther(Minus(a, b))) << Told(a, b);
        EXPECT_FALSE(CoverEachOther(Times(a, b))) << Told(a, b);
        EXPECT_TRUE((a - b).size() <= 2 && (a * b).size() <= 2) << Told(a, b);
    });
}

TEST(RangeLaws, R11_TheProductIsWhatBothCoverExceptASecondMeeting)
{
    int exceptions = 0;
    ForPairs(AllRanges(), [&](const PosRangeD& a, const PosRangeD& b) {
        exceptions += MeetTwice(a, b) ? 1 : 0;
        EXPECT_EQ(CoverOf(Times(a, b)) == (CoverOf(a) & CoverOf(b)), !MeetTwice(a, b)) << Told(a, b);
        EXPECT_EQ(CoverOf(Times(a, b)), CoverOf(a) & CoverOf(b) & ~SecondMeeting(a, b)) << Told(a, b);
    });
    EXPECT_GT(exceptions, 0);
}

TEST(RangeLaws, R12_TheDifferenceIsWhatOnlyTheFirstCoversExceptASecondMeeting)
{
    ForPairs(AllValidRanges(), [](const PosRangeD& a, const PosRangeD& b) {
        EXPECT_EQ(CoverOf(Minus(a, b)) == (CoverOf(a) & ~CoverOf(b)), !MeetTwice(a, b)) << Told(a, b);
        EXPECT_EQ(CoverOf(Minus(a, b)), (CoverOf(a) & ~CoverOf(b)) | SecondMeeting(a, b)) << Told(a, b);
    });
}

TEST(RangeLaws, R13_TheUnionIsWhatEitherCovers)
{
    ForPairs(AllRanges(), [](const PosRangeD& a, const PosRangeD& b) {
        EXPECT_EQ(CoverOf(Plus(a, b)), CoverOf(a) | CoverOf(b)) << Told(a, b);
    });
}

TEST(RangeLaws, R14_ThePiecesOfAUnionLieApartExceptPastTheSeam)
{
    const auto liesPastTheSeamOf = [](const PosRangeD& forward, const PosRangeD& wrapping) {
        return IsForward(forward) && IsWrapping(wrapping) && forward.start < wrapping.end &&
               forward.end <= wrapping.start;
    };
    int exceptions = 0;
    ForPairs(AllRanges(), [&](const PosRangeD& a, const PosRangeD& b) {
        const bool isException =
            !a.IsInvalid() && !b.IsInvalid() && (liesPastTheSeamOf(a, b) || liesPastTheSeamOf(b, a));
        exceptions += isException ? 1 : 0;
        EXPECT_EQ(CoverEachOther(Plus(a, b)), isException) << Told(a, b);
    });
    EXPECT_GT(exceptions, 0);
}

TEST(RangeLaws, R15_ProductAndUnionCommuteExceptUnionsOfForwardRangesThatTouch)
{
    int exceptions = 0;
    ForPairs(AllRanges(), [&](const PosRangeD& a, const PosRangeD& b) {
        EXPECT_TRUE(AreEqualLists(a * b, b * a)) << Told(a, b);
        const bool apart = a.end < b.start || b.end < a.start;
        const bool touch = a.end == b.start || b.end == a.start;
        // Two that lie apart stay two, in the order of the operands.
        const bool isException = IsForward(a) && IsForward(b) && (apart || touch);
        exceptions += IsForward(a) && IsForward(b) && touch ? 1 : 0;
        EXPECT_EQ(AreEqualLists(a + b, b + a), !isException) << Told(a, b);
        EXPECT_EQ((a + b).size() == (b + a).size(), !(IsForward(a) && IsForward(b) && touch)) << Told(a, b);
    });
    EXPECT_GT(exceptions, 0);
}

TEST(RangeLaws, R16_TheComplementOfAUnionIsTheProductOfComplements)
{
    int exceptions = 0;
    ForPairs(AllValidRanges(), [&](const PosRangeD& a, const PosRangeD& b) {
        const PosRangeD restOfA = a.Complementary();
        const PosRangeD restOfB = b.Complementary();
        const bool isException = MeetTwice(restOfA, restOfB);
        exceptions += isException ? 1 : 0;
        EXPECT_EQ(CoverOf(Times(restOfA, restOfB)) == ~CoverOf(Plus(a, b)), !isException) << Told(a, b);
        EXPECT_EQ(CoverOf(Plus(restOfA, restOfB)) == ~CoverOf(Times(a, b)), !MeetTwice(a, b)) << Told(a, b);
    });
    EXPECT_GT(exceptions, 0);
}

TEST(RangeLaws, R17_TheDifferenceIsTheProductWithTheComplement)
{
    ForPairs(AllValidRanges(), [](const PosRangeD& a, const PosRangeD& b) {
        const PosRangeD rest = b.Complementary();
        const bool isException = MeetTwice(a, b) || MeetTwice(a, rest);
        EXPECT_EQ(CoverOf(Minus(a, b)) == CoverOf(Times(a, rest)), !isException) << Told(a, b);
    });
}

TEST(RangeLaws, R18_ARangeWithItselfAndWithTheWholeAndWithNone)
{
    for (const PosRangeD& range : AllValidRanges())
    {
        for (double start = 0; start <= Count; start += 0.25)
        {
            const PosRangeD whole(start, start);
            EXPECT_TRUE(AreEqualLists(range * whole, {range}) && AreEqualLists(whole * range, {range})) << Two(range);
            EXPECT_TRUE(AreEqualLists(range + whole, {whole}) && AreEqualLists(whole + range, {whole})) << Two(range);
            EXPECT_TRUE((range - whole).empty()) << Two(range);
        }
        EXPECT_EQ(Union(range, PosRangeD()), Pieces({range}));
        EXPECT_EQ(Union(PosRangeD(), range), Pieces({range}));
        EXPECT_EQ(Intersection(range, PosRangeD()), Nothing());
        EXPECT_EQ(Intersection(PosRangeD(), range), Nothing());
        EXPECT_TRUE((range - range).empty()) << Two(range);
        EXPECT_TRUE(AreEqualLists(range + range, {range})) << Two(range);
        EXPECT_TRUE(AreEqualLists(Times(range, range), {range})) << Two(range);
    }
}

// The start moved, the outline turned round

namespace
{

/// The range on the same closed outline when its numbering begins `shift` quarters later, one number for the seam.
PosRangeD BegunLater(const PosRangeD& range, std::size_t shift)
{
    double start = range.start - 0.25 * static_cast<double>(shift);
    double end = range.end - 0.25 * static_cast<double>(shift);
    start += start < 0 ? Count : 0;
    end += end <= 0 ? Count : 0;
    return range.IsWholeRange() ? PosRangeD(start, start) : PosRangeD(start, end);
}

/// One ends at the count and the other begins at 0: one place with two numbers, which no predicate takes for one.
bool TouchAtTheSeam(const PosRangeD& a, const PosRangeD& b)
{
    return (a.end == Count && b.start == 0) || (b.end == Count && a.start == 0);
}

Cover BegunLater(const Cover& cover, std::size_t shift)
{
    return shift == 0 ? cover : (cover >> shift) | (cover << (Quarters - shift));
}

Cover TurnedRound(const Cover& cover)
{
    Cover turned;
    for (std::size_t quarter = 0; quarter < Quarters; ++quarter)
    {
        turned[quarter] = cover[Quarters - 1 - quarter];
    }
    return turned;
}

} // namespace

TEST(RangeLaws, R19_TheAlgebraCommutesWithMovingTheStart)
{
    int exceptions = 0;
    ForPairs(RangesWithOneNumberForTheSeam(), [&](const PosRangeD& a, const PosRangeD& b) {
        for (std::size_t shift = 0; shift < Quarters; shift += 4)
        {
            const PosRangeD laterA = BegunLater(a, shift);
            const PosRangeD laterB = BegunLater(b, shift);
            EXPECT_EQ(CoverOf(laterA), BegunLater(CoverOf(a), shift)) << Two(a) << " from " << shift;
            EXPECT_EQ(CoverOf(Plus(laterA, laterB)), BegunLater(CoverOf(Plus(a, b)), shift)) << Told(a, b);
            const bool isException = MeetTwice(a, b) != MeetTwice(laterA, laterB) ||
                                     SecondMeeting(laterA, laterB) != BegunLater(SecondMeeting(a, b), shift);
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(CoverOf(Times(laterA, laterB)) == BegunLater(CoverOf(Times(a, b)), shift), !isException)
                << Told(a, b);
            EXPECT_EQ(CoverOf(Minus(laterA, laterB)) == BegunLater(CoverOf(Minus(a, b)), shift), !isException)
                << Told(a, b);
            // From seam to seam becomes whole when the seam is elsewhere.
            if (IsFromSeamToSeam(a) || IsFromSeamToSeam(b))
            {
                continue;
            }
            EXPECT_EQ(laterA.IsContain(laterB), a.IsContain(b)) << Told(a, b) << shift;
            EXPECT_EQ(laterA.IsOverlap(laterB), a.IsOverlap(b)) << Told(a, b) << shift;
            EXPECT_EQ(laterA == laterB, a == b) << Told(a, b) << shift;
            const bool restEachOther = CoverOf(a) == ~CoverOf(b);
            EXPECT_EQ(laterA.IsComplementary(laterB), restEachOther && !TouchAtTheSeam(laterA, laterB))
                << Told(a, b) << shift;
        }
    });
    EXPECT_GT(exceptions, 0);
}

TEST(RangeLaws, R20_TheAlgebraCommutesWithTurningTheOutlineRound)
{
    ForPairs(AllValidRanges(), [](const PosRangeD& a, const PosRangeD& b) {
        const PosRangeD turnedA = a.Reverse(Count);
        const PosRangeD turnedB = b.Reverse(Count);
        EXPECT_EQ(CoverOf(Minus(turnedA, turnedB)), TurnedRound(CoverOf(Minus(a, b)))) << Told(a, b);
        EXPECT_EQ(CoverOf(Times(turnedA, turnedB)), TurnedRound(CoverOf(Times(a, b)))) << Told(a, b);
        EXPECT_EQ(CoverOf(Plus(turnedA, turnedB)), TurnedRound(CoverOf(Plus(a, b)))) << Told(a, b);
        EXPECT_EQ(turnedA.IsContain(turnedB), a.IsContain(b)) << Told(a, b);
        EXPECT_EQ(turnedA.IsOverlap(turnedB), a.IsOverlap(b)) << Told(a, b);
        EXPECT_EQ(turnedA.IsComplementary(turnedB), a.IsComplementary(b)) << Told(a, b);
        EXPECT_EQ(turnedA == turnedB, a == b) << Told(a, b);
    });
}

TEST(RangeLaws, R21_TheProductIsAssociativeWhereNoTwoMeetTwice)
{
    std::vector<PosRangeD> ranges;
    for (const PosRangeD& range : AllRanges())
    {
        const bool onHalves = std::fmod(range.start, 0.5) == 0 && std::fmod(range.end, 0.5) == 0;
        if (onHalves && range.start <= 2 && range.end <= 2)
        {
            ranges.push_back(range);
        }
    }
    for (const PosRangeD& c : ranges)
    {
        ForPairs(ranges, [&](const PosRangeD& a, const PosRangeD& b) {
            if (!MeetTwice(a, b) && !MeetTwice(b, c) && !MeetTwice(a, c))
            {
                EXPECT_EQ(CoverOf(Product(Times(a, b), c)), CoverOf(Product(Times(b, c), a))) << Told(a, b) << Two(c);
            }
        });
    }
}

// Random ranges

namespace
{

/// Two ranges on an outline at random, and a position that is near none of their ends.
struct Meeting
{
    int count;
    PosRangeD a;
    PosRangeD b;
    double position;

    bool IsInA() const
    {
        return a.IsContain(position);
    }

    bool IsInB() const
    {
        return b.IsContain(position);
    }

    /// The position lies where the two meet a second time.
    bool IsSecond() const
    {
        return MeetTwice(a, b) &&
               ((position > b.start && position < a.end) || (position > a.start && position < b.end));
    }

    /// With the start of the numbering moved to a node.
    Meeting BegunAt(int node) const
    {
        const auto moved = [&](double value) { return value < node ? value - node + count : value - node; };
        return {count, PosRangeD(moved(a.start), moved(a.end)), PosRangeD(moved(b.start), moved(b.end)),
                moved(position)};
    }

    Meeting TurnedRound() const
    {
        return {count, a.Reverse(count), b.Reverse(count), count - position};
    }

    friend std::ostream& operator<<(std::ostream& out, const Meeting& meeting)
    {
        return out << Told(meeting.a, meeting.b) << " at " << Text(meeting.position) << " on " << meeting.count;
    }
};

template <typename Visit>
void ForMeetingsAtRandom(std::uint64_t seed, Visit visit)
{
    Random random(seed);
    for (int round = 0; round < 10000 && !testing::Test::HasFailure(); ++round)
    {
        const int count = random.Integer(1, 9);
        const auto place = [&] { return random.Number(0, count); };
        const PosRangeD a(place(), place());
        const PosRangeD b(place(), place());
        const double position = place();
        const std::vector<double> ends = {a.start, a.end, b.start, b.end};
        const bool isAtEnd = std::any_of(ends.begin(), ends.end(),
                                         [&](double end) { return std::fabs(end - position) < 2 * Tolerance; });
        if (!isAtEnd)
        {
            visit(Meeting{count, a, b, position});
        }
    }
}

/// How many of the pieces cover the position.
std::ptrdiff_t Covering(const std::vector<PosRangeD>& pieces, double position)
{
    return std::count_if(pieces.begin(), pieces.end(),
                         [&](const PosRangeD& piece) { return piece.IsContain(position); });
}

} // namespace

TEST(RangeLaws, R22_TheLawsOfDifferenceProductAndUnionHoldBetweenTheQuartersToo)
{
    int seenTwice = 0;
    ForMeetingsAtRandom(122, [&](const Meeting& at) {
        seenTwice += at.IsSecond() ? 1 : 0;
        const bool inBoth = at.IsInA() && at.IsInB();
        const auto inProduct = Covering(at.a * at.b, at.position);
        const auto inDifference = Covering(at.a - at.b, at.position);
        EXPECT_EQ(inProduct, inBoth && !at.IsSecond() ? 1 : 0) << at;
        EXPECT_EQ(inDifference, at.IsInA() && (!at.IsInB() || at.IsSecond()) ? 1 : 0) << at;
        EXPECT_EQ(inProduct + inDifference, at.IsInA() ? 1 : 0)
            << at; // each place of the first in one piece of one list
        EXPECT_EQ(Covering(at.a + at.b, at.position) > 0, at.IsInA() || at.IsInB()) << at;
        EXPECT_TRUE(AreEqualLists(at.a * at.b, at.b * at.a)) << at;
    });
    EXPECT_GT(seenTwice, 100);
}

TEST(RangeLaws, R23_ComplementsCutsAndMovedOrTurnedOutlinesFollowTheirLawsAtRandomToo)
{
    int movedMeetings = 0;
    ForMeetingsAtRandom(123, [&](const Meeting& at) {
        const PosRangeD rest = at.b.Complementary();
        EXPECT_NE(rest.IsContain(at.position), at.IsInB()) << at;
        EXPECT_TRUE(at.b.IsComplementary(rest) && Two(rest.Complementary()) == Two(at.b)) << at;
        if (!MeetTwice(at.a, at.b) && !MeetTwice(at.a, rest))
        {
            EXPECT_EQ(Covering(at.a - at.b, at.position), Covering(at.a * rest, at.position)) << at;
        }
        const std::vector<PosRangeD> pieces = PosRangeD(at.a).Splite(at.position);
        ASSERT_EQ(pieces.size(), at.IsInA() ? 2U : 1U) << at;
        EXPECT_EQ(Two(pieces.front().start, pieces.back().end), Two(at.a)) << at;
        const Meeting turned = at.TurnedRound();
        EXPECT_EQ(turned.IsInA(), at.IsInA()) << at;
        EXPECT_EQ(Covering(turned.a * turned.b, turned.position), Covering(at.a * at.b, at.position)) << at;
        EXPECT_EQ(Covering(turned.a - turned.b, turned.position), Covering(at.a - at.b, at.position)) << at;
        EXPECT_EQ(Covering(turned.a + turned.b, turned.position) > 0, Covering(at.a + at.b, at.position) > 0) << at;
        EXPECT_EQ(turned.a.IsContain(turned.b), at.a.IsContain(at.b)) << at;
        EXPECT_EQ(turned.a.IsOverlap(turned.b), at.a.IsOverlap(at.b)) << at;
        for (int node = 1; node < at.count; ++node)
        {
            const Meeting later = at.BegunAt(node);
            const bool isException = at.IsSecond() != later.IsSecond();
            movedMeetings += isException ? 1 : 0;
            EXPECT_EQ(later.IsInA(), at.IsInA()) << at << " begun at " << node;
            EXPECT_EQ(Covering(later.a * later.b, later.position) == Covering(at.a * at.b, at.position), !isException)
                << at << " begun at " << node;
            EXPECT_EQ(Covering(later.a - later.b, later.position) == Covering(at.a - at.b, at.position), !isException)
                << at << " begun at " << node;
            EXPECT_EQ(Covering(later.a + later.b, later.position) > 0, at.IsInA() || at.IsInB()) << at;
            EXPECT_EQ(later.a.IsContain(later.b), at.a.IsContain(at.b)) << at << " begun at " << node;
            EXPECT_EQ(later.a.IsOverlap(later.b), at.a.IsOverlap(at.b)) << at << " begun at " << node;
        }
    });
    EXPECT_GT(movedMeetings, 100);
}
