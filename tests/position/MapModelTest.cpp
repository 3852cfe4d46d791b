#include "support/Maps.h"

#include <type_traits>

using namespace math;
using namespace math::test;

namespace
{

/// IsIncrease on sides 1, 2, 3 and on a side that does not exist.
std::string Increase(const CPolyPosMap& map)
{
    std::string row;
    for (int side : {1, 2, 3, 4})
    {
        row += map.IsIncrease(side) ? 'T' : 'F';
    }
    return row;
}

/// IsPoint on sides 1, 2, 3 and on a side that does not exist.
std::string Point(const CPolyPosMap& map)
{
    std::string row;
    for (int side : {1, 2, 3, 4})
    {
        row += map.IsPoint(side) ? 'T' : 'F';
    }
    return row;
}

const CPolyPosMap TurnsBack = Map({{0, 0}, {2, 2}, {1, 3}}, 4, 5);

} // namespace

TEST(PosMap, DefaultMadeHasNoJointsAndOpenCounts)
{
    const CPolyPosMap map;
    EXPECT_TRUE(map.PosPairs().empty());
    EXPECT_EQ(map.SrcSegmentCount(), 0);
    EXPECT_EQ(map.DstSegmentCount(), 0);
    static_assert(std::has_virtual_destructor_v<CPolyPosMap>);
}

TEST(PosMap, TakesJointsAndCountsAsTheyAre)
{
    const Pairs pairs = {{3, -1}, {0, NaN}, {7, 7}};
    const CPolyPosMap map(pairs, 3, -2);
    EXPECT_TRUE(SameList(map.PosPairs(), pairs));
    EXPECT_EQ(map.SrcSegmentCount(), 3);
    EXPECT_EQ(map.DstSegmentCount(), -2);
}

TEST(PosMap, HandsOutItsListAndCountsForChange)
{
    CPolyPosMap map;
    map.PosPairs().emplace_back(1, 2);
    map.SrcSegmentCount() = 3;
    map.DstSegmentCount() = 5;
    EXPECT_EQ(map, Map({{1, 2}}, 3, 5));
    const CPolyPosMap& readOnly = map;
    EXPECT_EQ(&readOnly.PosPairs(), &map.PosPairs());
    EXPECT_EQ(&readOnly.SrcSegmentCount(), &map.SrcSegmentCount());
    EXPECT_EQ(&readOnly.DstSegmentCount(), &map.DstSegmentCount());
}

TEST(PosMap, IsAValue)
{
    const CPolyPosMap original = Map({{0, 1}, {2, 3}}, 4, 5);
    CPolyPosMap copy(original);
    CPolyPosMap assigned;
    EXPECT_EQ(&(assigned = original), &assigned);
    copy.PosPairs()[0].first = 1;
    copy.SrcSegmentCount() = 9;
    assigned.PosPairs().clear();
    assigned.DstSegmentCount() = 9;
    EXPECT_EQ(original, Map({{0, 1}, {2, 3}}, 4, 5));
    EXPECT_EQ(copy, Map({{1, 1}, {2, 3}}, 9, 5));
    EXPECT_EQ(assigned, Map({}, 4, 9));
    const CPolyPosMap& itself = copy;
    copy = itself;
    EXPECT_EQ(copy, Map({{1, 1}, {2, 3}}, 9, 5));
}

TEST(PosMap, MayBeRebuiltFromItsOwnParts)
{
    CPolyPosMap map = Map({{0, 1}, {2, 3}}, 4, 5);
    map = CPolyPosMap(map.PosPairs(), map.DstSegmentCount(), map.SrcSegmentCount());
    EXPECT_EQ(map, Map({{0, 1}, {2, 3}}, 5, 4));
}

TEST(PosMap, MadeEmptyItHasNoJointsAndOpenCounts)
{
    CPolyPosMap map = Map({{0, 1}, {2, 3}}, 4, 5);
    EXPECT_FALSE(map.IsEmpty());
    map.MakeEmpty();
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_EQ(map, NoMap());
}

TEST(PosMap, IsEmptyWithoutJointsWhateverTheCounts)
{
    EXPECT_TRUE(Map({}, 3, 5).IsEmpty());
    EXPECT_FALSE(Map({{0, 0}}, 0, 0).IsEmpty());
}

TEST(PosMap, FrontAndBackAreCopiesOfTheEndJoints)
{
    const CPolyPosMap map = Map({{0, 1}, {1, 7}, {2, 3}}, 4, 9);
    EXPECT_EQ(Two(map.Front()), Two(0, 1));
    EXPECT_EQ(Two(map.Back()), Two(2, 3));
    EXPECT_EQ(Two(Map({}, 3, 5).Front()), None());
    EXPECT_EQ(Two(Map({}, 3, 5).Back()), None());
}

TEST(PosMap, JointsAreEqualWhenBothTheirPositionsAreNear)
{
    EXPECT_TRUE(CPolyPosMap::IsPosPairEqual({1, 2}, {1, 2}));
    EXPECT_TRUE(CPolyPosMap::IsPosPairEqual({1, 2}, {1 + 5e-10, 2 - 5e-10}));
    EXPECT_FALSE(CPolyPosMap::IsPosPairEqual({1, 2}, {1, 2.5}));
    EXPECT_FALSE(CPolyPosMap::IsPosPairEqual({1, 2}, {1.5, 2}));
    EXPECT_FALSE(CPolyPosMap::IsPosPairEqual({1, 2}, {2, 1}));
    EXPECT_TRUE(CPolyPosMap::IsPosPairEqual({0, 0}, {JustBelowTolerance, -JustBelowTolerance}));
    EXPECT_FALSE(CPolyPosMap::IsPosPairEqual({0, 0}, {Tolerance, 0}));
    EXPECT_FALSE(CPolyPosMap::IsPosPairEqual({0, 0}, {0, -Tolerance}));
    EXPECT_FALSE(CPolyPosMap::IsPosPairEqual({NaN, 0}, {NaN, 0}));
}

TEST(PosMapReverse, TurnsTheOrderOfTheJointsAndNothingElse)
{
    CPolyPosMap map = Map({{0, 0}, {1, 2}, {3, 2.5}}, 4, 5);
    map.Reverse();
    EXPECT_EQ(map, Map({{3, 2.5}, {1, 2}, {0, 0}}, 4, 5));
    EXPECT_EQ(Increase(map), "FFFT");

    CPolyPosMap two = Map({{0, 0}, {1, 2}}, 3, 5);
    two.Reverse();
    EXPECT_EQ(two, Map({{1, 2}, {0, 0}}, 3, 5));

    CPolyPosMap empty = Map({}, 3, 5);
    empty.Reverse();
    EXPECT_EQ(empty, Map({}, 3, 5));
}

TEST(PosMapInvert, SwapsColumnsAndCountsInPlace)
{
    CPolyPosMap map = Map({{0, 1}, {2, 3}, {3, 5}}, 4, 6);
    map.Invert();
    EXPECT_EQ(map, Map({{1, 0}, {3, 2}, {5, 3}}, 6, 4));
    const CPolyPosMap original = Map({{2, 0}, {0, 5}}, 4, 6);
    EXPECT_EQ(!original, Map({{0, 2}, {5, 0}}, 6, 4));
    EXPECT_EQ(original, Map({{2, 0}, {0, 5}}, 4, 6));
}

TEST(PosMapInvert, LeavesAnIdentityBitForBit)
{
    const CPolyPosMap nearly = Map({{0, 5e-10}, {3, 3}}, 3, 3);
    EXPECT_EQ(!nearly, nearly);
    // With different counts it is no identity, though its joints are.
    EXPECT_EQ(!Map({{0, 5e-10}, {3, 3}}, 3, 5), Map({{5e-10, 0}, {3, 3}}, 5, 3));
}

TEST(PosMapInvert, LeavesTheCountsOfAnEmptyMap)
{
    EXPECT_EQ(!Map({}, 3, 5), Map({}, 3, 5));
    CPolyPosMap map = Map({}, 3, 5);
    map.Invert();
    EXPECT_EQ(map, Map({}, 3, 5));
}

TEST(PosMapInvert, SwapsAnInvalidMapLikeAnyOther)
{
    EXPECT_EQ(!TurnsBack, Map({{0, 0}, {2, 2}, {3, 1}}, 5, 4));
}

TEST(PosMapIsIdentity, AsksForEqualCountsAndNearlyEqualPositionsInEveryJoint)
{
    EXPECT_TRUE(Map({{0, 0}, {4, 4}}, 4, 4).IsIdentity());
    EXPECT_TRUE(Map({{1, 1 + 5e-10}, {2, 2 - 5e-10}}, 4, 4).IsIdentity());
    EXPECT_FALSE(Map({{0, 0}, {4, 4}}, 4, 5).IsIdentity());
    EXPECT_FALSE(Map({{0, 0}, {1, 1.5}, {2, 2}}, 4, 4).IsIdentity());
    EXPECT_FALSE(Map({{0, 1}, {2, 2}}, 4, 4).IsIdentity());
    EXPECT_FALSE(Map({{0, 0}, {2, 3}}, 4, 4).IsIdentity());
    EXPECT_TRUE(Map({{0, JustBelowTolerance}}, 4, 4).IsIdentity());
    EXPECT_FALSE(Map({{0, Tolerance}}, 4, 4).IsIdentity());
}

TEST(PosMapIsIdentity, AnEmptyMapChangesNothingWhateverItsCounts)
{
    EXPECT_TRUE(NoMap().IsIdentity());
    EXPECT_TRUE(Map({}, 3, 5).IsIdentity());
}

TEST(PosMapIsIdentity, DoesNotLookAtTheShape)
{
    EXPECT_TRUE(Map({{0, 0}, {2, 2}, {1, 1}}, 4, 4).IsIdentity());
}

TEST(PosMapIsInvalid, FewerThanTwoJointsNeverAre)
{
    EXPECT_FALSE(NoMap().IsInvalid());
    EXPECT_FALSE(Map({}, -1, -1).IsInvalid());
    EXPECT_FALSE(Map({{100, -100}}, 0, -3).IsInvalid());
    EXPECT_FALSE(Map({{NaN, NaN}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, WhereAColumnTurnsBack)
{
    EXPECT_TRUE(Map({{0, 0}, {2, 2}, {1, 3}}, 100, 100).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {1, 2}, {2, 1}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{3, 0}, {1, 1}, {2, 2}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 3}, {1, 1}, {2, 2}}, 4, 4).IsInvalid());
    // There and back again: a column whose ends are equal runs upward.
    EXPECT_TRUE(Map({{1, 0}, {2, 1}, {1, 2}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{1, 0}, {0, 1}, {1, 2}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, ColumnsMayRunEitherWayAndStandStill)
{
    EXPECT_FALSE(Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{1, 0}, {0, 2}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{3, 3}, {2, 1}, {2, 0.5}, {1, 0.5}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{2, 0}, {2, 3}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{3, 0}, {5, 2}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{4, 0}, {5, 1}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, StepsBelowTheToleranceMayGoAgainstTheWalk)
{
    EXPECT_FALSE(Map({{0, 0}, {1, 1}, {1 - 5e-10, 2}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{0, 2}, {1, 1}, {2, 1 + 5e-10}, {3, 0}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{JustBelowTolerance, 0}, {0, 1}, {1, 2}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{Tolerance, 0}, {0, 1}, {1, 2}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{0, -JustBelowTolerance}, {1, 0}, {2, -1}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, -Tolerance}, {1, 0}, {2, -1}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, AColumnWithEqualEndsRunsUpward)
{
    // One true step and small ones back to where it began: the true step has to go up.
    EXPECT_FALSE(Map({{0, 0}, {2e-9, 1}, {12e-10, 2}, {4e-10, 3}, {0, 4}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {-2e-9, 1}, {-12e-10, 2}, {-4e-10, 3}, {0, 4}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{0, 0}, {1, 2e-9}, {2, 12e-10}, {3, 4e-10}, {4, 0}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {1, -2e-9}, {2, -12e-10}, {3, -4e-10}, {4, 0}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, RoundAPolylineAtMostOnce)
{
    EXPECT_TRUE(Map({{0, 0}, {5, 5}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{0, 0}, {5, 5}}, 5, 5).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {5, 5}}, 4, 5).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {5, 5}}, 5, 4).IsInvalid());
    EXPECT_TRUE(Map({{5, 0}, {0, 1}}, 4, 9).IsInvalid());
    EXPECT_TRUE(Map({{0, 5}, {1, 0}}, 9, 4).IsInvalid());
    EXPECT_FALSE(Map({{5, 0}, {1, 3}}, 4, 3).IsInvalid());
    EXPECT_FALSE(Map({{-3, 0}, {1, 3}}, 4, 3).IsInvalid());
}

TEST(PosMapIsInvalid, ALapMayExceedTheCountByTheTolerance)
{
    const double longest = 4 + 1e-9;
    const double tooLong = std::nextafter(longest, 5.0);
    EXPECT_FALSE(Map({{0, 0}, {longest, 1}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {tooLong, 1}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{0, longest}, {1, 0}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, tooLong}, {1, 0}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, APolylineOfOpenSizeHasRoomForNoMoreThanTheTolerance)
{
    EXPECT_FALSE(Map({{0, 0}, {Tolerance, 1}}, 0, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {JustAboveTolerance, 1}}, 0, 4).IsInvalid());
    EXPECT_FALSE(Map({{0, 5}, {1, 5}}, 4, 0).IsInvalid());
    EXPECT_TRUE(Map({{0, 5}, {1, 6}}, 4, 0).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {0, 1}}, -1, 4).IsInvalid());
}

TEST(PosMapIsInvalid, NoNumberOfSegmentsHoldsAColumnWithoutEnd)
{
    EXPECT_TRUE(Map({{0, 0}, {Infinite, 1}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{-Infinite, 0}, {1, 1}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 0}, {1, Infinite}}, 4, 4).IsInvalid());
    EXPECT_TRUE(Map({{0, 1}, {1, -Infinite}}, 4, 4).IsInvalid());
}

TEST(PosMapIsInvalid, TheValuesThemselvesAreNotItsBusiness)
{
    EXPECT_FALSE(Map({{0, 0}, {NaN, 1}, {2, 2}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{NaN, NaN}, {NaN, NaN}}, 4, 4).IsInvalid());
    EXPECT_FALSE(Map({{-7, 100}, {-6, 101}}, 4, 4).IsInvalid());
}

TEST(PosMapIsNormalize, TheLowerEndOfBothColumnsLiesInTheFirstLap)
{
    EXPECT_TRUE(Map({{0, 0}, {1, 1}}, 4, 6).IsNormalize());
    EXPECT_TRUE(Map({{3, 0}, {5, 2}}, 4, 6).IsNormalize());
    EXPECT_TRUE(Map({{0, 5}, {2, 8}}, 4, 6).IsNormalize());
    EXPECT_TRUE(Map({{5, 8}, {3, 5}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{4, 0}, {5, 1}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{0, 6}, {1, 7}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{-1, 0}, {1, 1}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{0, -1}, {1, 1}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{5, 0}, {4, 1}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{0, 1}, {1, -1}}, 4, 6).IsNormalize());
    EXPECT_TRUE(Map({{1, 2}, {0, 3}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{3, 0}, {-0.5, 1}}, 4, 6).IsNormalize());
}

TEST(PosMapIsNormalize, HasNoTolerance)
{
    EXPECT_TRUE(Map({{-0.0, -0.0}, {1, 1}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{-1e-300, 0}, {1, 1}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{0, -1e-300}, {1, 1}}, 4, 6).IsNormalize());
    EXPECT_TRUE(Map({{std::nextafter(4.0, 0.0), 0}, {5, 1}}, 4, 6).IsNormalize());
    EXPECT_TRUE(Map({{0, std::nextafter(6.0, 0.0)}, {1, 7}}, 4, 6).IsNormalize());
}

TEST(PosMapIsNormalize, EmptyMapsAreAndInvalidOnesAreNot)
{
    EXPECT_TRUE(NoMap().IsNormalize());
    EXPECT_TRUE(Map({}, 3, 5).IsNormalize());
    EXPECT_FALSE(TurnsBack.IsNormalize());
}

TEST(PosMapIsNormalize, ACountOfZeroSetsNoBound)
{
    EXPECT_TRUE(Map({{-7, 0}, {-7, 1}}, 0, 6).IsNormalize());
    EXPECT_FALSE(Map({{-7, 6}, {-7, 7}}, 0, 6).IsNormalize());
    EXPECT_TRUE(Map({{0, 70}, {1, 70}}, 4, 0).IsNormalize());
    EXPECT_FALSE(Map({{4, 70}, {5, 70}}, 4, 0).IsNormalize());
}

TEST(PosMapIsNormalize, OfOneJoint)
{
    EXPECT_TRUE(Map({{3, 5}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{4, 5}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{3, 6}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{3, NaN}}, 4, 6).IsNormalize());
    EXPECT_FALSE(Map({{2, 2}}, -4, 6).IsNormalize());
}

TEST(PosMapIsIncrease, ComparesTheEndsOfEachColumn)
{
    EXPECT_EQ(Increase(Map({{0, 1}, {2, 3}}, 4, 4)), "TTTT");
    EXPECT_EQ(Increase(Map({{1, 0}, {0, 2}}, 4, 4)), "FTFT");
    EXPECT_EQ(Increase(Map({{0, 2}, {1, 0}}, 4, 4)), "TFFT");
    EXPECT_EQ(Increase(Map({{2, 3}, {0, 1}}, 4, 4)), "FFFT");
}

TEST(PosMapIsIncrease, AColumnThatStandsStillCountsAsRising)
{
    EXPECT_EQ(Increase(Map({{1, 3}, {1, 0}}, 4, 4)), "TFFT");
    EXPECT_EQ(Increase(Map({{3, 1}, {0, 1}}, 4, 4)), "FTFT");
    EXPECT_EQ(Increase(Map({{1 + 5e-10, 0}, {1, 1}}, 4, 4)), "FTFT");
}

TEST(PosMapIsIncrease, SidesThatDoNotExistRise)
{
    const CPolyPosMap down = Map({{2, 3}, {0, 1}}, 4, 4);
    EXPECT_TRUE(down.IsIncrease(0));
    EXPECT_TRUE(down.IsIncrease(-1));
    EXPECT_TRUE(down.IsIncrease(7));
}

TEST(PosMapIsIncrease, OfInvalidEmptyAndSingleJointMaps)
{
    EXPECT_EQ(Increase(TurnsBack), "FFFF");
    EXPECT_EQ(Increase(NoMap()), "TTTT");
    EXPECT_EQ(Increase(Map({{3, -5}}, 4, 4)), "TTTT");
    EXPECT_EQ(Increase(Map({{NaN, NaN}}, 4, 4)), "TTTT");
}

TEST(PosMapIsPoint, AsksWhetherTheEndsOfAColumnAreNear)
{
    EXPECT_EQ(Point(Map({{0, 1}, {2, 3}}, 4, 4)), "FFFT");
    EXPECT_EQ(Point(Map({{1, 1}, {1, 3}}, 4, 4)), "TFFT");
    EXPECT_EQ(Point(Map({{0, 1}, {2, 1}}, 4, 4)), "FTFT");
    EXPECT_EQ(Point(Map({{1, 2}, {1 + 5e-10, 2 - 5e-10}}, 4, 4)), "TTTT");
    EXPECT_EQ(Point(Map({{0, 0}, {JustBelowTolerance, 1}}, 4, 4)), "TFFT");
    EXPECT_EQ(Point(Map({{0, 0}, {Tolerance, 1}}, 4, 4)), "FFFT");
    EXPECT_EQ(Point(Map({{0, 0}, {1, -JustBelowTolerance}}, 4, 4)), "FTFT");
    EXPECT_EQ(Point(Map({{0, 0}, {1, -Tolerance}}, 4, 4)), "FFFT");
}

TEST(PosMapIsPoint, DoesNotLookBetweenTheEnds)
{
    // The third joint lies 1.2e-9 above the first, in steps below the tolerance; the last is back within it.
    EXPECT_EQ(Point(Map({{0, 0}, {6e-10, 1}, {12e-10, 2}, {6e-10, 3}}, 4, 4)), "TFFT");
}

TEST(PosMapIsPoint, OfInvalidEmptyAndSingleJointMaps)
{
    EXPECT_EQ(Point(Map({{0, 0}, {2, 2}, {0, 0}}, 4, 4)), "FFFF");
    EXPECT_EQ(Point(NoMap()), "TTTT");
    EXPECT_EQ(Point(Map({{3, -5}}, 4, 4)), "TTTT");
}

TEST(PosMapGetRange, RunsUpwardWhicheverWayTheColumnDoes)
{
    const CPolyPosMap map = Map({{1, 0}, {0, 2}}, 4, 4);
    EXPECT_EQ(Two(map.GetRange(1, false)), Two(0, 1));
    EXPECT_EQ(Two(map.GetRange(2, false)), Two(0, 2));
    const CPolyPosMap other = Map({{0, 3}, {1, 2.5}, {2, 1}}, 4, 4);
    EXPECT_EQ(Two(other.GetRange(1, false)), Two(0, 2));
    EXPECT_EQ(Two(other.GetRange(2, false)), Two(1, 3));
}

TEST(PosMapGetRange, IsRawUnlessItIsAskedToBeWrapped)
{
    const CPolyPosMap map = Map({{3, 5}, {5, 7}}, 4, 6);
    EXPECT_EQ(Two(map.GetRange(1, false)), Two(3, 5));
    EXPECT_EQ(Two(map.GetRange(1, true)), Two(3, 1));
    EXPECT_EQ(Two(map.GetRange(2, false)), Two(5, 7));
    EXPECT_EQ(Two(map.GetRange(2, true)), Two(5, 1));
    const CPolyPosMap down = Map({{5, 7}, {3, 5}}, 4, 6);
    EXPECT_EQ(Two(down.GetRange(1, true)), Two(3, 1));
    EXPECT_EQ(Two(down.GetRange(2, true)), Two(5, 1));
    EXPECT_EQ(Two(Map({{-1, -2}, {0, 1}}, 4, 6).GetRange(1, true)), Two(3, 0));
    EXPECT_EQ(Two(Map({{-1, -2}, {0, 1}}, 4, 6).GetRange(2, true)), Two(4, 1));
}

TEST(PosMapGetRange, AFullLapWrapsToAWholeRangeUnlessItBeginsAtZero)
{
    EXPECT_EQ(Two(Map({{1, 0}, {5, 6}}, 4, 6).GetRange(1, true)), Two(1, 1));
    EXPECT_EQ(Two(Map({{1, 0}, {5, 6}}, 4, 6).GetRange(2, true)), Two(0, 6));
}

TEST(PosMapGetRange, OfOneJointIsWhole)
{
    const CPolyPosMap map = Map({{5, 7}}, 4, 6);
    EXPECT_EQ(Two(map.GetRange(1, false)), Two(5, 5));
    EXPECT_EQ(Two(map.GetRange(2, true)), Two(1, 1));
    EXPECT_TRUE(map.GetRange(1, false).IsWholeRange());
}

TEST(PosMapGetRange, ThereIsNoneForInvalidAndEmptyMapsAndOtherSides)
{
    for (bool normalize : {false, true})
    {
        EXPECT_EQ(Two(TurnsBack.GetRange(1, normalize)), None());
        EXPECT_EQ(Two(TurnsBack.GetRange(2, normalize)), None());
        EXPECT_EQ(Two(Map({}, 3, 5).GetRange(1, normalize)), None());
        EXPECT_EQ(Two(Map({}, 3, 5).GetRange(2, normalize)), None());
        for (int side : {-1, 0, 3, 4})
        {
            EXPECT_EQ(Two(Map({{0, 1}, {2, 3}}, 4, 4).GetRange(side, normalize)), None());
        }
    }
}

TEST(PosMapGetRange, OfAPolylineOfOpenSizeHasNoWrappedEnds)
{
    const CPolyPosMap map = Map({{5, 1}, {5, 3}}, 0, 6);
    EXPECT_EQ(Two(map.GetRange(1, false)), Two(5, 5));
    EXPECT_EQ(Two(map.GetRange(1, true)), None());
    EXPECT_EQ(Two(map.GetRange(2, true)), Two(1, 3));
}
