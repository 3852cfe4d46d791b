#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

/// The joints that are left, from a map with counts of its own that must stay.
Images Flat(const Pairs& pairs)
{
    std::vector<double> flat;
    for (const auto& pair : pairs)
    {
        flat.push_back(pair.first);
        flat.push_back(pair.second);
    }
    return flat;
}

void ExpectUnique(bool mergeStraight, const Pairs& before, const Pairs& after)
{
    CPolyPosMap map = Map(before, 7, 9);
    map.Unique(mergeStraight);
    EXPECT_EQ(map, Map(after, 7, 9)) << "from " << Flat(before);
}

void ExpectRepeatedGone(const Pairs& before, const Pairs& after)
{
    ExpectUnique(false, before, after);
}

void ExpectStraightGone(const Pairs& before, const Pairs& after)
{
    ExpectUnique(true, before, after);
}

void ExpectUntouched(const Pairs& pairs)
{
    ExpectUnique(true, pairs, pairs);
}

} // namespace

TEST(Unique, LeavesListsWithNothingToMerge)
{
    ExpectUntouched({});
    ExpectUntouched({{1, 2}});
    ExpectUntouched({{0, 0}, {1, 1}});
    ExpectUntouched({{0, 0}, {1, 1}, {2, 3}});
}

TEST(Unique, KeepsTheEarlierOfTwoRepeatedJoints)
{
    ExpectRepeatedGone({{0, 0}, {1e-10, 0}, {1, 1}}, {{0, 0}, {1, 1}});
    ExpectRepeatedGone({{1e-10, 2}, {0, 2 - 1e-10}}, {{1e-10, 2}});
    ExpectRepeatedGone({{0, 0}, {1, 3}, {1, 3 + 5e-10}}, {{0, 0}, {1, 3}});
    ExpectRepeatedGone({{2, 2}, {2, 2}, {2, 2}, {2, 2}}, {{2, 2}});
}

TEST(Unique, MeasuresAChainOfNearJointsFromTheOneItKeeps)
{
    ExpectRepeatedGone({{0, 0}, {6e-10, 0}, {12e-10, 0}, {18e-10, 0}}, {{0, 0}, {12e-10, 0}});
    ExpectRepeatedGone({{0, 0}, {0, 6e-10}, {0, 12e-10}}, {{0, 0}, {0, 12e-10}});
}

TEST(Unique, KeepsJumpsAndFlats)
{
    ExpectRepeatedGone({{1, 1}, {1, 3}}, {{1, 1}, {1, 3}});
    ExpectRepeatedGone({{1, 1}, {3, 1}}, {{1, 1}, {3, 1}});
    ExpectUntouched({{1, 1}, {1, 3}});
    ExpectUntouched({{1, 1}, {3, 1}});
}

TEST(Unique, NearnessIsStrict)
{
    ExpectRepeatedGone({{0, 5}, {Tolerance, 5}}, {{0, 5}, {Tolerance, 5}});
    ExpectRepeatedGone({{0, 5}, {JustBelowTolerance, 5}}, {{0, 5}});
    ExpectRepeatedGone({{5, 0}, {5, -Tolerance}}, {{5, 0}, {5, -Tolerance}});
    ExpectRepeatedGone({{5, 0}, {5, -JustBelowTolerance}}, {{5, 0}});
}

TEST(Unique, KeepsStraightJointsUnlessAskedToMergeThem)
{
    ExpectRepeatedGone({{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {1, 1}, {2, 2}});
}

TEST(Unique, AStraightStretchKeepsItsTwoEnds)
{
    ExpectStraightGone({{0, 0}, {1, 1}, {2, 2}}, {{0, 0}, {2, 2}});
    ExpectStraightGone({{0, 1}, {1, 3}, {1.5, 4}, {4, 9}}, {{0, 1}, {4, 9}});
    ExpectStraightGone({{3, 0}, {2, 2}, {1, 4}}, {{3, 0}, {1, 4}});
    ExpectStraightGone({{0, 0}, {1, 1}, {2, 2}, {3, 4}, {4, 6}}, {{0, 0}, {2, 2}, {4, 6}});
    ExpectStraightGone({{0, 0}, {1, 1}, {1, 1}, {2, 2}}, {{0, 0}, {2, 2}});
}

TEST(Unique, AFlatStretchKeepsItsTwoEnds)
{
    ExpectStraightGone({{0, 1}, {1, 1}, {2, 1}}, {{0, 1}, {2, 1}});
    ExpectStraightGone({{3, 1}, {1, 1}, {0, 1}}, {{3, 1}, {0, 1}});
}

TEST(Unique, AJumpKeepsItsTwoEnds)
{
    ExpectStraightGone({{1, 1}, {1, 2}, {1, 4}}, {{1, 1}, {1, 4}});
    ExpectStraightGone({{0, 0}, {1, 1}, {1, 2}, {1, 4}, {2, 4}}, {{0, 0}, {1, 1}, {1, 4}, {2, 4}});
}

TEST(Unique, CornersOfStaircasesStay)
{
    ExpectUntouched({{0, 0}, {1, 0}, {1, 1}, {2, 1}, {2, 2}});
    ExpectUntouched({{0, 0}, {1, 1}, {1, 2}, {2, 3}});
}

TEST(Unique, SlopesAreEqualBelowTheTolerance)
{
    // Slopes 0 and 1e-9: exactly the tolerance apart, and the column that stands still rules out the other slopes.
    ExpectUntouched({{0, 0}, {1, 0}, {2, Tolerance}});
    ExpectStraightGone({{0, 0}, {1, 0}, {2, JustBelowTolerance}}, {{0, 0}, {2, JustBelowTolerance}});
    // The same with the columns changed over: slopes of source over destination.
    ExpectUntouched({{0, 0}, {0, 1}, {Tolerance, 2}});
    ExpectStraightGone({{0, 0}, {0, 1}, {JustBelowTolerance, 2}}, {{0, 0}, {JustBelowTolerance, 2}});
}

TEST(Unique, ANearlyStraightJointGoes)
{
    ExpectStraightGone({{0, 0}, {1, 1}, {2, 2 + 5e-10}}, {{0, 0}, {2, 2 + 5e-10}});
    ExpectUntouched({{0, 0}, {1, 1}, {2, 2 + 2.5e-9}});
    // Slopes of 2 and 2 - 3e-9 differ by more than the tolerance, their inverses by 0.75e-9.
    ExpectStraightGone({{0, 0}, {1, 2}, {2, 4 - 3e-9}}, {{0, 0}, {2, 4 - 3e-9}});
}

TEST(Unique, SteepStretchesAreStraightInTheDestinationDirection)
{
    // Slopes 5e9 and 2.5e9 of destination over source, 2e-10 and 4e-10 of source over destination.
    ExpectStraightGone({{0, 0}, {2e-10, 1}, {6e-10, 2}}, {{0, 0}, {6e-10, 2}});
}

TEST(Unique, ASlowBendIsMeasuredFromTheJointThatStays)
{
    // Slopes 0, 0.8e-9, 1.6e-9. With (1, 0) gone the slope before (2, 0.8e-9) is 0.4e-9: 1.2e-9 below the one after it.
    ExpectStraightGone({{0, 0}, {1, 0}, {2, 8e-10}, {3, 24e-10}}, {{0, 0}, {2, 8e-10}, {3, 24e-10}});
    // The same the steep way.
    ExpectStraightGone({{0, 0}, {0, 1}, {8e-10, 2}, {24e-10, 3}}, {{0, 0}, {8e-10, 2}, {24e-10, 3}});
}

TEST(Unique, WorksOnInvalidMapsToo)
{
    ExpectStraightGone({{0, 0}, {2, 2}, {2, 2}, {1, 3}}, {{0, 0}, {2, 2}, {1, 3}});
    ExpectStraightGone({{0, 0}, {50, 50}, {100, 100}}, {{0, 0}, {100, 100}});
    // There and back along one line: both slopes are 1.
    ExpectStraightGone({{0, 0}, {2, 2}, {1, 1}}, {{0, 0}, {1, 1}});
}

TEST(Unique, KeepsJointsThatAreNoNumbers)
{
    ExpectUntouched({{0, 0}, {NaN, 1}, {2, 2}});
    ExpectUntouched({{0, 0}, {1, NaN}, {2, 2}});
    ExpectUntouched({{NaN, NaN}, {NaN, NaN}});
}

TEST(Unique, TwiceIsAsGoodAsOnce)
{
    CPolyPosMap map = Map({{0, 0}, {0, 0}, {1, 1}, {2, 2}, {2, 3}, {2, 5}, {3, 5}, {5, 5}}, 7, 9);
    map.Unique(true);
    const CPolyPosMap once = map;
    EXPECT_EQ(once, Map({{0, 0}, {2, 2}, {2, 5}, {5, 5}}, 7, 9));
    map.Unique(true);
    EXPECT_EQ(map, once);
}
