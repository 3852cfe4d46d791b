#include "support/Maps.h"

#include <cstdint>
#include <type_traits>

using namespace math;
using namespace math::test;

namespace
{

/// What one range says of itself: IsEmpty, IsInvalid, IsWholeRange, IsContainZero.
std::string State(const PosRangeD& range)
{
    std::string row;
    for (bool answer : {range.IsEmpty(), range.IsInvalid(), range.IsWholeRange(), range.IsContainZero()})
    {
        row += answer ? 'T' : 'F';
    }
    return row;
}

/// What one range says of another: IsOverlap, IsContain, IsComplementary, ==, !=, <.
std::string Relation(const PosRangeD& a, const PosRangeD& b)
{
    std::string row;
    for (bool answer : {a.IsOverlap(b), a.IsContain(b), a.IsComplementary(b), a == b, a != b, a < b})
    {
        row += answer ? 'T' : 'F';
    }
    return row;
}

/// What IsContain answers for one position after the other.
std::string Contains(const PosRangeD& range, std::initializer_list<double> positions)
{
    std::string row;
    for (double position : positions)
    {
        row += range.IsContain(position) ? 'T' : 'F';
    }
    return row;
}

/// The same for IsOn.
std::string On(const PosRangeD& range, std::initializer_list<double> positions)
{
    std::string row;
    for (double position : positions)
    {
        row += range.IsOn(position) ? 'T' : 'F';
    }
    return row;
}

struct RelationCase
{
    const char* name;
    PosRangeD a;
    PosRangeD b;
    const char* forth;
    const char* back;
};

const PosRangeD Invalid;
const PosRangeD NaNStart(NaN, 2);
const PosRangeD NaNEnd(2, NaN);
const PosRangeD Negative(-2, 3);
const PosRangeD NegativeEnd(5, -3);
const PosRangeD Whole(3, 3);
const PosRangeD WholeElsewhere(1, 1);
const PosRangeD Forward(1, 3);
const PosRangeD Wrapping(3, 1);

} // namespace

TEST(PosRange, IsTwoPositionsStartBeforeEnd)
{
    static_assert(std::has_virtual_destructor_v<PosRangeD>);
    static_assert(std::is_same_v<decltype(PosRangeD::start), double>);
    static_assert(std::is_same_v<decltype(PosRangeD::end), double>);
    const PosRangeD range;
    EXPECT_LT(reinterpret_cast<std::uintptr_t>(&range.start), reinterpret_cast<std::uintptr_t>(&range.end));
}

TEST(PosRange, DefaultMadeIsTheInvalidRange)
{
    EXPECT_EQ(Two(PosRangeD()), None());
}

TEST(PosRange, TakesItsEndsAsTheyAre)
{
    EXPECT_EQ(Two(PosRangeD(7.5, -3.25)), Two(7.5, -3.25));
    EXPECT_EQ(Two(PosRangeD(NaN, -0.0)), Two(NaN, -0.0));
}

TEST(PosRange, IsMadeFromSegmentsAndRatios)
{
    EXPECT_EQ(Two(PosRangeD(1, 0.25, 3, 0.5)), Two(1.25, 3.5));
    EXPECT_EQ(Two(PosRangeD(3, 0.5, 1, 0.25)), Two(3.5, 1.25));
    EXPECT_EQ(Two(PosRangeD(2, 0.25, 0.75)), Two(2.25, 2.75));
    EXPECT_EQ(Two(PosRangeD(2, 1.5, -0.5)), Two(3.5, 1.5));
}

TEST(PosRange, IsAValue)
{
    const PosRangeD original(1, 3);
    PosRangeD copy(original);
    EXPECT_EQ(Two(copy), Two(1, 3));
    copy.start = 2;
    EXPECT_EQ(Two(original), Two(1, 3));

    PosRangeD assigned;
    EXPECT_EQ(&(assigned = original), &assigned);
    EXPECT_EQ(Two(assigned), Two(1, 3));
    const PosRangeD& itself = assigned;
    assigned = itself;
    EXPECT_EQ(Two(assigned), Two(1, 3));
}

TEST(PosRange, MadeInvalidHasNoEndsLeft)
{
    PosRangeD range(1, 3);
    range.MakeInavlid();
    EXPECT_EQ(Two(range), None());
}

TEST(PosRangeState, FollowsFromTheTwoEnds)
{
    EXPECT_EQ(State(Invalid), "TTFF");
    EXPECT_EQ(State(NaNStart), "TTFF");
    EXPECT_EQ(State(NaNEnd), "TTFF");
    EXPECT_EQ(State({NaN, NaN}), "TTFF");
    EXPECT_EQ(State(Negative), "TTFF");
    EXPECT_EQ(State(NegativeEnd), "TTFF");
    EXPECT_EQ(State({-2, -2}), "TTFF");
    EXPECT_EQ(State(Whole), "FFTT");
    EXPECT_EQ(State({0, 0}), "FFTT");
    EXPECT_EQ(State(Forward), "FFFF");
    EXPECT_EQ(State(Wrapping), "FFFT");
}

TEST(PosRangeState, BeginningAtZeroIsNotPassingTheSeamButEndingThereIs)
{
    EXPECT_EQ(State({0, 2}), "FFFF");
    EXPECT_EQ(State({2, 0}), "FFFT");
}

TEST(PosRangeState, SlightlyNegativeEndsAreStillValid)
{
    EXPECT_EQ(State({-1e-9, 2}), "FFFF");
    EXPECT_EQ(State({2, -1e-9}), "FFFT");
    EXPECT_EQ(State({-JustBelowTolerance, 2}), "FFFF");
    EXPECT_EQ(State({-JustAboveTolerance, 2}), "TTFF");
    EXPECT_EQ(State({2, -JustAboveTolerance}), "TTFF");
    EXPECT_EQ(State({-2e-9, 2}), "TTFF");
    EXPECT_EQ(State({2, -2e-9}), "TTFF");
}

TEST(PosRangeState, EndsNearerThanTheToleranceAreOnePlace)
{
    EXPECT_EQ(State({0, Tolerance}), "FFFF");
    EXPECT_EQ(State({Tolerance, 0}), "FFFT");
    EXPECT_EQ(State({0, JustBelowTolerance}), "FFTT");
    EXPECT_EQ(State({JustBelowTolerance, 0}), "FFTT");
    EXPECT_EQ(State({2, 2 + 5e-10}), "FFTT");
    EXPECT_EQ(State({Infinite, Infinite}), "FFFF"); // the difference of two infinities is no number
}

TEST(PosRangeContainsPosition, BetweenItsEndsWithoutThem)
{
    EXPECT_EQ(Contains(Forward, {0.5, 1, std::nextafter(1.0, 2.0), 2, std::nextafter(3.0, 2.0), 3, 3.5, 5.5}), //
              "FFTTTFFF");
}

TEST(PosRangeContainsPosition, OverTheSeamFromStartAndUpToEnd)
{
    EXPECT_EQ(Contains(Wrapping, {3.5, 0.5, 0, 4, 100, -5, 2, 3, 1}), "TTTTTTFFF");
    EXPECT_EQ(Contains(Wrapping, {std::nextafter(3.0, 4.0), std::nextafter(1.0, 0.0)}), "TT");
}

TEST(PosRangeContainsPosition, AWholeRangeContainsEverything)
{
    EXPECT_EQ(Contains(Whole, {0, 3, 2, 100, -5, NaN}), "TTTTTT");
}

TEST(PosRangeContainsPosition, ASliverThatRisesIsWholeAndYetContainsOnlyWhatLiesBetweenItsEnds)
{
    const PosRangeD sliver(2, 2 + 5e-10);
    EXPECT_TRUE(sliver.IsWholeRange());
    EXPECT_EQ(Contains(sliver, {1, 2, 2 + 2e-10, 2 + 5e-10, 3}), "FFTFF");
    EXPECT_EQ(Contains({2 + 5e-10, 2}, {1, 2, 2 + 2e-10, 3}), "TTTT");
}

TEST(PosRangeContainsPosition, AnInvalidRangeContainsNothing)
{
    EXPECT_EQ(Contains(Invalid, {-1, 0, 2}), "FFF");
    EXPECT_EQ(Contains(Negative, {-1, 0, 2}), "FFF");
    EXPECT_EQ(Contains(NegativeEnd, {6, -4, 2}), "FFF");
    EXPECT_EQ(Contains(NaNStart, {1, 3}), "FF");
    EXPECT_EQ(Contains(NaNEnd, {1, 3}), "FF");
}

TEST(PosRangeContainsPosition, NoNumberLiesInNoStretch)
{
    EXPECT_EQ(Contains(Forward, {NaN}), "F");
    EXPECT_EQ(Contains(Wrapping, {NaN}), "F");
}

TEST(PosRangeIsOn, TheTwoEndsWithinTheTolerance)
{
    EXPECT_EQ(On(Forward, {1, 3, 1 + 5e-10, 1 - 5e-10, 3 + 5e-10, 3 - 5e-10, 2, 0.5, 3.5}), "TTTTTTFFF");
    EXPECT_EQ(On(Wrapping, {1, 3, 2, 0.5, 3.5}), "TTFFF");
    EXPECT_EQ(On({0, 2}, {JustBelowTolerance, Tolerance, -JustBelowTolerance, -Tolerance}), "TFTF");
    EXPECT_EQ(On({2, 0}, {JustBelowTolerance, Tolerance, -JustBelowTolerance, -Tolerance}), "TFTF");
    EXPECT_EQ(On(Forward, {NaN}), "F");
}

TEST(PosRangeIsOn, WholeAndInvalidRangesHaveNoEnds)
{
    EXPECT_EQ(On(Whole, {3, 2}), "FF");
    EXPECT_EQ(On({2, 2 + 5e-10}, {2, 2 + 5e-10}), "FF");
    EXPECT_EQ(On(Invalid, {-1}), "F");
    EXPECT_EQ(On(Negative, {-2, 3}), "FF");
    EXPECT_EQ(On(NaNStart, {2}), "F");
    EXPECT_EQ(On(NaNEnd, {2}), "F");
}

// Columns: IsOverlap, IsContain, IsComplementary, ==, !=, <.
TEST(PosRangeRelations, AnswerEveryConfigurationOfTwoRanges)
{
    const RelationCase cases[] = {
        {"the same", Forward, Forward, "TTFTFF", "TTFTFF"},
        {"nested", Forward, {1.5, 2.5}, "TTFFTT", "FFFFTF"},
        {"a common start", Forward, {1, 2}, "TTFFTF", "FFFFTF"},
        {"a common end", Forward, {2, 3}, "TTFFTT", "FFFFTF"},
        {"touching", Forward, {3, 4}, "FFFFTT", "FFFFTF"},
        {"crossing", Forward, {2, 4}, "TFFFTT", "TFFFTF"},
        {"apart", Forward, {5, 6}, "FFFFTT", "FFFFTF"},
        {"a longer one with the same end", Forward, {0, 3}, "FFFFTF", "TTFFTT"},
        {"a longer one with the same start", {1, 2}, Forward, "FFFFTF", "TTFFTF"},
        {"inside a longer one", {1, 2}, {0, 3}, "FFFFTF", "TTFFTT"},
        {"the rest of the loop", Forward, Wrapping, "FFTFTT", "FFTFTF"},
        {"the rest from a later start", Forward, {3.5, 1}, "FFFFTT", "FFFFTF"},
        {"the rest up to an earlier end", Forward, {3, 0.5}, "FFFFTT", "FFFFTF"},
        {"wrapping, both ends inside a forward one", {1, 5}, {4, 2}, "TTFFTT", "TTFFTF"},
        {"wrapping, nested", Wrapping, {3.5, 0.5}, "TTFFTT", "FFFFTF"},
        {"wrapping, nested before the seam", Wrapping, {3.2, 3.8}, "TTFFTT", "FFFFTF"},
        {"wrapping, nested after the seam", Wrapping, {0.2, 0.8}, "TTFFTF", "FFFFTT"},
        {"wrapping, crossed at the start", Wrapping, {2, 4}, "TFFFTF", "TFFFTT"},
        {"wrapping, crossed at the end", Wrapping, {0, 2}, "TFFFTF", "TFFFTT"},
        {"wrapping, a common start", Wrapping, {3, 0.5}, "TTFFTF", "FFFFTF"},
        {"wrapping, a common end", Wrapping, {0.5, 1}, "TTFFTF", "FFFFTT"},
        {"wrapping, the ends of a long one inside", Wrapping, {0.5, 3.5}, "TTFFTF", "TTFFTT"},
        {"whole and whole", WholeElsewhere, Whole, "TTFTFT", "TTFTFF"},
        {"a whole one that begins inside", Forward, {2, 2}, "TTFFTT", "TTFFTF"},
        {"a whole one that begins outside", Forward, {4, 4}, "TFFFTT", "TTFFTF"},
        {"a whole one that begins at the end", Forward, Whole, "TFFFTT", "TTFFTF"},
        {"a whole one and one over the seam", {2, 2}, Wrapping, "TTFFTT", "TFFFTF"},
        {"invalid and invalid", Invalid, Invalid, "FFFTFT", "FFFTFT"},
        {"invalid and no number", Invalid, NaNStart, "FFFTFT", "FFFTFT"},
        {"no number at the end and negative", NaNEnd, Negative, "FFFTFT", "FFFTFT"},
        {"invalid and whole", Invalid, Whole, "FFTFTT", "FFTFTF"},
        {"no number and whole", NaNStart, Whole, "FFTFTT", "FFTFTF"},
        {"invalid and forward", Invalid, Forward, "FFFFTT", "FFFFTF"},
        {"a negative start, the end inside", Negative, {1, 4}, "FFFFTT", "FFFFTF"},
        {"a negative end, the start inside", {2, -3}, Forward, "FFFFTT", "FFFFTF"},
        {"no number at the end, the start inside", NaNEnd, Forward, "FFFFTT", "FFFFTF"},
        {"no number at the start, the end inside", NaNStart, Forward, "FFFFTT", "FFFFTF"},
        {"negative, with a start above", Forward, NegativeEnd, "FFFFTF", "FFFFTT"},
        {"equal within the tolerance", {2, 3}, {2 + 1e-10, 3 + 1e-10}, "TTFTFT", "TTFTFF"},
        {"starts apart", {2, 3}, {2.1, 3}, "TTFFTT", "FFFFTF"},
        {"ends apart", {2, 3}, {2, 3.1}, "FFFFTF", "TTFFTF"},
        {"both ends apart", {2, 3}, {2.1, 3.1}, "TFFFTT", "TFFFTF"},
        {"nearly a common end", Forward, {2, 3 + 5e-10}, "TTFFTT", "TFFFTF"},
        {"nearly a common start", Forward, {1 - 5e-10, 2}, "TTFFTF", "TFFFTT"},
        {"nearly the rest of the loop", Forward, {3 + 5e-10, 1 - 5e-10}, "FFTFTT", "FFTFTF"},
    };
    for (const RelationCase& row : cases)
    {
        EXPECT_EQ(Relation(row.a, row.b), row.forth) << row.name;
        EXPECT_EQ(Relation(row.b, row.a), row.back) << row.name << ", the other way";
    }
}

TEST(PosRangeRelations, NearEndsDoNotMakeAForwardRangeEqualToAWholeOne)
{
    // The ends are near each other, but one range is 1.2e-9 long and the other is a full loop.
    EXPECT_EQ(Relation({0, 1.2e-9}, {0, 0.8e-9}), "TTFFTF");
    EXPECT_EQ(Relation({0, 0.8e-9}, {0, 1.2e-9}), "TTFFTF");
}

TEST(PosRangeRelations, NearEndsDoNotMakeAWholeRangeTheRestOfAForwardOne)
{
    const PosRangeD forward(0, 1.2e-9);
    const PosRangeD whole(0.8e-9, 0.4e-9);
    EXPECT_FALSE(forward.IsComplementary(whole));
    EXPECT_FALSE(whole.IsComplementary(forward));
}

TEST(PosRangeRelations, NearEndsDoNotMakeAnInvalidRangeEqualOrComplementary)
{
    const PosRangeD valid(-1e-9, 1);
    const PosRangeD invalid(-1.5e-9, 1);
    EXPECT_EQ(Relation(valid, invalid), "FFFFTF");
    EXPECT_EQ(Relation(invalid, valid), "FFFFTT");
    EXPECT_FALSE(valid.IsComplementary({1, -1.5e-9}));
    EXPECT_FALSE(PosRangeD(1, -1.5e-9).IsComplementary(valid));
}

TEST(PosRangeRelations, NearnessOfEndsIsStrict)
{
    const PosRangeD range(0, 2);
    EXPECT_TRUE(range == PosRangeD(JustBelowTolerance, 2));
    EXPECT_FALSE(range == PosRangeD(Tolerance, 2));
    EXPECT_TRUE(PosRangeD(2, 0) == PosRangeD(2, JustBelowTolerance));
    EXPECT_FALSE(PosRangeD(2, 0) == PosRangeD(2, Tolerance));
    EXPECT_TRUE(range.IsComplementary({2, JustBelowTolerance}));
    EXPECT_FALSE(range.IsComplementary({2, Tolerance}));
    EXPECT_TRUE(PosRangeD(2, 0).IsComplementary({JustBelowTolerance, 2}));
    EXPECT_FALSE(PosRangeD(2, 0).IsComplementary({Tolerance, 2}));
    EXPECT_TRUE(range.IsContain(PosRangeD(-JustBelowTolerance, 1)));
    EXPECT_FALSE(range.IsContain(PosRangeD(-Tolerance, 1)));
    EXPECT_TRUE(PosRangeD(2, 0).IsContain(PosRangeD(3, JustBelowTolerance)));
    EXPECT_FALSE(PosRangeD(2, 0).IsContain(PosRangeD(3, Tolerance)));
}

TEST(PosRangeOrder, ComparesStartsExactly)
{
    EXPECT_TRUE(PosRangeD(2, 3) < PosRangeD(std::nextafter(2.0, 3.0), 1));
    EXPECT_FALSE(PosRangeD(2, 3) < PosRangeD(2, 5));
    EXPECT_FALSE(PosRangeD(2, 3) < PosRangeD(1, 5));
}

TEST(PosRangeOrder, InvalidRangesComeFirst)
{
    EXPECT_TRUE(Invalid < Forward);
    EXPECT_TRUE(NegativeEnd < Forward);
    EXPECT_FALSE(Forward < NegativeEnd);
    EXPECT_FALSE(Forward < NaNStart);
    EXPECT_FALSE(Forward < NaNEnd);
    EXPECT_TRUE(Invalid < Invalid);
    EXPECT_TRUE(NaNEnd < Invalid);
}

TEST(PosRangeReverse, SeesTheSameStretchFromTheFarEnd)
{
    EXPECT_EQ(Two(PosRangeD(1, 3).Reverse(4)), Two(1, 3));
    EXPECT_EQ(Two(PosRangeD(0, 1).Reverse(4)), Two(3, 4));
    EXPECT_EQ(Two(PosRangeD(3.5, 1).Reverse(4)), Two(3, 0.5));
    EXPECT_EQ(Two(PosRangeD(2, 2).Reverse(7)), Two(5, 5));
    EXPECT_EQ(Two(PosRangeD(4, 4).Reverse(4)), Two(0, 0));
}

TEST(PosRangeReverse, TestsNothing)
{
    EXPECT_EQ(Two(PosRangeD().Reverse(4)), Two(5, 5));
    EXPECT_EQ(Two(PosRangeD(5, 6).Reverse(4)), Two(-2, -1));
    EXPECT_EQ(Two(PosRangeD(NaN, 1).Reverse(4)), Two(3, NaN));
    EXPECT_EQ(Two(PosRangeD(1, 3).Reverse(0)), Two(-3, -1));
}

TEST(PosRangeReverse, TwiceGivesTheRangeBack)
{
    for (const PosRangeD& range : {PosRangeD(1, 3), PosRangeD(3.25, 0.5), PosRangeD(2, 2), PosRangeD(0, 7)})
    {
        EXPECT_EQ(Two(range.Reverse(7).Reverse(7)), Two(range));
    }
}

TEST(PosRangeComplementary, IsTheRestOfTheLoop)
{
    EXPECT_EQ(Two(Forward.Complementary()), Two(3, 1));
    EXPECT_EQ(Two(Wrapping.Complementary()), Two(1, 3));
    EXPECT_EQ(Two(PosRangeD(0, 2).Complementary()), Two(2, 0));
    EXPECT_EQ(Two(PosRangeD(0, Tolerance).Complementary()), Two(Tolerance, 0));
    EXPECT_TRUE(Forward.IsComplementary(Forward.Complementary()));
    EXPECT_TRUE(Wrapping.Complementary().IsComplementary(Wrapping));
}

TEST(PosRangeComplementary, NothingIsLeftOfAWholeLoopAndNothingCompletesNothing)
{
    EXPECT_EQ(Two(Whole.Complementary()), None());
    EXPECT_EQ(Two(PosRangeD(2, 2 + 5e-10).Complementary()), None());
    EXPECT_EQ(Two(Invalid.Complementary()), None());
    EXPECT_EQ(Two(Negative.Complementary()), None());
    EXPECT_EQ(Two(NaNEnd.Complementary()), None());
    EXPECT_EQ(Two(PosRangeD(5, -3).Complementary()), None());
}

// Moving the place from which a closed outline is counted must not change what lies where.
TEST(PosRangeSeam, ContainmentFollowsWhenTheOutlineBeginsElsewhere)
{
    const int count = 6;
    const auto moved = [](double position, int by) { return position >= by ? position - by : position - by + count; };
    for (int start = 0; start < 12; ++start)
    {
        for (int end = 0; end < 12; ++end)
        {
            if (start == end)
            {
                continue;
            }
            for (int by = 1; by < count; ++by)
            {
                const PosRangeD range(start * 0.5, end * 0.5);
                const PosRangeD movedRange(moved(range.start, by), moved(range.end, by));
                for (double position = 0.25; position < count; position += 0.5)
                {
                    EXPECT_EQ(range.IsContain(position), movedRange.IsContain(moved(position, by)))
                        << Two(range) << " and " << position << " moved by " << by;
                    EXPECT_NE(range.IsContain(position), range.Complementary().IsContain(position))
                        << Two(range) << " and " << position;
                }
            }
        }
    }
}
