#include "math/CPolyPosMapUtilies.h"
#include "support/Maps.h"

#include <climits>

using namespace math;
using namespace math::test;

namespace
{

enum End : bool
{
    Back = false,
    Front = true
};

CPolyPosMap ExtendSource(const CPolyPosMap& map, int addedCount, End end)
{
    return CPolyPosMapUtilies::ExtendMap(map, addedCount, end, true, false);
}

CPolyPosMap ExtendDestination(const CPolyPosMap& map, int addedCount, End end)
{
    return CPolyPosMapUtilies::ExtendMap(map, addedCount, end, false, true);
}

CPolyPosMap ExtendBoth(const CPolyPosMap& map, int addedCount, End end)
{
    return CPolyPosMapUtilies::ExtendMap(map, addedCount, end, true, true);
}

CPolyPosMap ExtendLinearly(const CPolyPosMap& map, int addedSourceCount, int addedDestinationCount, End end)
{
    return CPolyPosMapUtilies::ExtendMap(map, addedSourceCount, addedDestinationCount, end);
}

CPolyPosMap RemoveFromSource(const CPolyPosMap& map, const PosRangeD& range)
{
    return CPolyPosMapUtilies::RemoveOpenRangeFromMap(map, range, true);
}

CPolyPosMap RemoveFromDestination(const CPolyPosMap& map, const PosRangeD& range)
{
    return CPolyPosMapUtilies::RemoveOpenRangeFromMap(map, range, false);
}

/// The identity of a polyline of 2 segments, and of one of 4.
const CPolyPosMap two({{0, 0}, {2, 2}}, 2, 2);
const CPolyPosMap four({{0, 0}, {4, 4}}, 4, 4);

/// From 2 segments to 6, along three times as many.
const CPolyPosMap twoToSix({{0, 0}, {2, 6}}, 2, 6);

const Pairs turnsBack = {{0, 0}, {2, 2}, {1, 3}};

} // namespace

// One side grows

TEST(ExtendMap, AddedSourceCollapsesOntoWhereTheWalkEnds)
{
    EXPECT_EQ(ExtendSource(two, 1, Back), Map({{0, 0}, {2, 2}, {3, 2}}, 3, 2));
    EXPECT_EQ(ExtendSource(twoToSix, 3, Back), Map({{0, 0}, {2, 6}, {5, 6}}, 5, 6));
}

TEST(ExtendMap, AddedSourceCollapsesOntoWhereTheWalkBegins)
{
    EXPECT_EQ(ExtendSource(two, 1, Front), Map({{0, 0}, {1, 0}, {3, 2}}, 3, 2));
    EXPECT_EQ(ExtendSource(twoToSix, 3, Front), Map({{0, 0}, {3, 0}, {5, 6}}, 5, 6));
    EXPECT_EQ(ExtendSource(Map({{0, 1}, {2, 5}}, 2, 6), 3, Front), Map({{0, 1}, {3, 1}, {5, 5}}, 5, 6));
}

TEST(ExtendMap, AddedDestinationIsJumpedOverWhereTheWalkEnds)
{
    EXPECT_EQ(ExtendDestination(two, 1, Back), Map({{0, 0}, {2, 2}, {2, 3}}, 2, 3));
    EXPECT_EQ(ExtendDestination(twoToSix, 3, Back), Map({{0, 0}, {2, 6}, {2, 9}}, 2, 9));
}

TEST(ExtendMap, AddedDestinationIsJumpedOverWhereTheWalkBegins)
{
    EXPECT_EQ(ExtendDestination(two, 1, Front), Map({{0, 0}, {0, 1}, {2, 3}}, 2, 3));
    EXPECT_EQ(ExtendDestination(twoToSix, 3, Front), Map({{0, 0}, {0, 3}, {2, 9}}, 2, 9));
    EXPECT_EQ(ExtendDestination(Map({{0.5, 0}, {1.5, 6}}, 2, 6), 3, Front), Map({{0.5, 0}, {0.5, 3}, {1.5, 9}}, 2, 9));
}

TEST(ExtendMap, AMapThatStopsShortOfTheEndsStandsStillOrJumpsThere)
{
    const CPolyPosMap inner({{1, 1}, {2, 1.5}}, 3, 5);
    EXPECT_EQ(ExtendSource(inner, 2, Back), Map({{1, 1}, {2, 1.5}, {5, 1.5}}, 5, 5));
    EXPECT_EQ(ExtendSource(inner, 2, Front), Map({{0, 1}, {3, 1}, {4, 1.5}}, 5, 5));
    EXPECT_EQ(ExtendDestination(inner, 2, Back), Map({{1, 1}, {2, 1.5}, {2, 7}}, 3, 7));
    EXPECT_EQ(ExtendDestination(inner, 2, Front), Map({{1, 0}, {1, 3}, {2, 3.5}}, 3, 7));
}

TEST(ExtendMap, AWalkPastTheSeamGoesOnFromThere)
{
    // The end of the walk is read as it stands: 5, one lap on from 1.
    const CPolyPosMap overSeam({{0, 3}, {2, 5}}, 2, 4);
    EXPECT_EQ(ExtendSource(overSeam, 1, Back), Map({{0, 3}, {2, 5}, {3, 5}}, 3, 4));
    EXPECT_EQ(ExtendSource(overSeam, 1, Front), Map({{0, 3}, {1, 3}, {3, 5}}, 3, 4));
    EXPECT_EQ(ExtendDestination(!overSeam, 1, Back), Map({{3, 0}, {5, 2}, {5, 3}}, 4, 3));
    EXPECT_EQ(ExtendDestination(!overSeam, 1, Front), Map({{3, 0}, {3, 1}, {5, 3}}, 4, 3));
}

TEST(ExtendMap, BehindADownwardDestinationTheWalkStandsStill)
{
    EXPECT_EQ(ExtendSource(Map({{0, 4}, {2, 1}}, 2, 5), 1, Back), Map({{0, 4}, {2, 1}, {3, 1}}, 3, 5));
}

TEST(ExtendMap, BeforeADownwardDestinationTheWalkCannotStandStill)
{
    // A stretch that stands still counts as upward, so the walk that follows it is lifted and turns back.
    EXPECT_EQ(ExtendSource(Map({{0, 4}, {2, 1}}, 2, 5), 1, Front), NoMap());
}

TEST(ExtendMap, AddedDestinationNeedsADestinationThatRunsUp)
{
    const CPolyPosMap down({{0, 4}, {2, 1}}, 2, 5);
    EXPECT_EQ(ExtendDestination(down, 1, Front), NoMap());
    // At the back the walk goes to 5, where the added segment begins, beyond to 6 and back to 5. What lies between goes
    // with the straight joints, and the map is walked the other way.
    EXPECT_EQ(ExtendDestination(down, 1, Back), Map({{2, 1}, {0, 4}, {0, 5}}, 2, 6));
}

TEST(ExtendMap, NothingAddedToOneSideChangesNothing)
{
    EXPECT_EQ(ExtendSource(two, 0, Back), two);
    EXPECT_EQ(ExtendSource(two, 0, Front), two);
    EXPECT_EQ(ExtendDestination(two, 0, Back), two);
    EXPECT_EQ(ExtendDestination(two, 0, Front), two);
}

TEST(ExtendMap, AMapWithoutJointsStandsAtZero)
{
    for (End end : {Back, Front})
    {
        EXPECT_EQ(ExtendSource(NoMap(), 2, end), Map({{0, 0}, {2, 0}}, 2, 0)) << end;
        EXPECT_EQ(ExtendDestination(NoMap(), 2, end), Map({{0, 0}, {0, 2}}, 0, 2)) << end;
    }
}

// Neither side, both sides

TEST(ExtendMap, WithoutASideThatGrowsTheMapIsCopied)
{
    const CPolyPosMap any({{5, 6}, {5, 6}, {7, 3}}, 4, 3);
    EXPECT_EQ(CPolyPosMapUtilies::ExtendMap(any, 2, false, false, false), any);
    EXPECT_EQ(CPolyPosMapUtilies::ExtendMap(any, 2, true, false, false), any);
    EXPECT_EQ(CPolyPosMapUtilies::ExtendMap(Map(turnsBack, 4, 4), 2, false, false, false), Map(turnsBack, 4, 4));
}

TEST(ExtendMap, SegmentsAddedToBothSidesAnswerToOneAnother)
{
    EXPECT_EQ(ExtendBoth(two, 1, Back), Map({{0, 0}, {3, 3}}, 3, 3));
    EXPECT_EQ(ExtendBoth(two, 1, Front), Map({{0, 0}, {3, 3}}, 3, 3));
    EXPECT_EQ(ExtendBoth(twoToSix, 3, Back), Map({{0, 0}, {2, 6}, {5, 9}}, 5, 9));
    EXPECT_EQ(ExtendBoth(twoToSix, 3, Front), Map({{0, 0}, {3, 3}, {5, 9}}, 5, 9));
}

TEST(ExtendMap, OnBothSidesTheMapMustReachTheEnd)
{
    const CPolyPosMap inner({{1, 1}, {2, 2}}, 3, 3);
    EXPECT_EQ(ExtendBoth(inner, 1, Back), NoMap());
    EXPECT_EQ(ExtendBoth(inner, 1, Front), NoMap());
    // One side is enough, at the end that grows.
    const CPolyPosMap reachesBack({{1, 1}, {2, 3}}, 3, 3);
    EXPECT_EQ(ExtendBoth(reachesBack, 1, Back), Map({{1, 1}, {2, 3}, {3, 3}, {4, 4}}, 4, 4));
    EXPECT_EQ(ExtendBoth(reachesBack, 1, Front), NoMap());
}

TEST(ExtendMap, OnBothSidesATurnedMapDoesNotGoOn)
{
    EXPECT_EQ(ExtendBoth(Map({{0, 2}, {2, 0}}, 2, 2), 1, Back), NoMap());
    EXPECT_EQ(ExtendBoth(Map({{0, 2}, {2, 0}}, 2, 2), 1, Front), NoMap());
}

TEST(ExtendMap, AMapWithoutJointsBecomesTheAddedStretch)
{
    for (End end : {Back, Front})
    {
        EXPECT_EQ(ExtendBoth(NoMap(), 2, end), Map({{0, 0}, {2, 2}}, 2, 2)) << end;
        EXPECT_EQ(ExtendBoth(Map({}, 3, 5), 2, end), Map({{0, 0}, {2, 2}}, 2, 2)) << end;
    }
}

TEST(ExtendMap, NothingAddedToBothSidesChangesNothing)
{
    const CPolyPosMap any({{5, 1}, {6, 2}}, 4, 3);
    EXPECT_EQ(ExtendBoth(any, 0, Back), any);
    EXPECT_EQ(ExtendBoth(any, 0, Front), any);
}

TEST(ExtendMap, AnInvalidMapGivesNone)
{
    const CPolyPosMap invalid(turnsBack, 4, 4);
    for (End end : {Back, Front})
    {
        EXPECT_EQ(ExtendSource(invalid, 1, end), NoMap()) << end;
        EXPECT_EQ(ExtendDestination(invalid, 1, end), NoMap()) << end;
        EXPECT_EQ(ExtendBoth(invalid, 1, end), NoMap()) << end;
    }
}

// Stretches of different sizes

TEST(ExtendMapLinearly, TheAddedStretchesAnswerToOneAnother)
{
    EXPECT_EQ(ExtendLinearly(two, 1, 2, Back), Map({{0, 0}, {2, 2}, {3, 4}}, 3, 4));
    EXPECT_EQ(ExtendLinearly(two, 1, 2, Front), Map({{0, 0}, {1, 2}, {3, 4}}, 3, 4));
    EXPECT_EQ(ExtendLinearly(twoToSix, 5, 1, Back), Map({{0, 0}, {2, 6}, {7, 7}}, 7, 7));
    EXPECT_EQ(ExtendLinearly(twoToSix, 5, 1, Front), Map({{0, 0}, {5, 1}, {7, 7}}, 7, 7));
    EXPECT_EQ(ExtendLinearly(twoToSix, 1, 3, Back), Map({{0, 0}, {3, 9}}, 3, 9));
}

TEST(ExtendMapLinearly, NothingAddedIsACopy)
{
    const CPolyPosMap any({{5, 6}, {5, 6}, {7, 3}}, 4, 3);
    EXPECT_EQ(ExtendLinearly(two, 0, 0, Back), two);
    EXPECT_EQ(ExtendLinearly(any, 0, 0, Front), any);
}

TEST(ExtendMapLinearly, NothingAddedToOneSide)
{
    EXPECT_EQ(ExtendLinearly(two, 1, 0, Back), Map({{0, 0}, {2, 2}, {3, 2}}, 3, 2));
    EXPECT_EQ(ExtendLinearly(two, 1, 0, Front), Map({{0, 0}, {1, 0}, {3, 2}}, 3, 2));
    EXPECT_EQ(ExtendLinearly(two, 0, 1, Back), Map({{0, 0}, {2, 2}, {2, 3}}, 2, 3));
    EXPECT_EQ(ExtendLinearly(two, 0, 1, Front), Map({{0, 0}, {0, 1}, {2, 3}}, 2, 3));
}

TEST(ExtendMapLinearly, AMapWithoutJointsBecomesTheAddedStretch)
{
    EXPECT_EQ(ExtendLinearly(Map({}, 3, 5), 2, 3, Back), Map({{0, 0}, {2, 3}}, 2, 3));
    EXPECT_EQ(ExtendLinearly(NoMap(), 2, 3, Front), Map({{0, 0}, {2, 3}}, 2, 3));
}

TEST(ExtendMapLinearly, TheMapMustReachTheEnd)
{
    const CPolyPosMap inner({{1, 1}, {2, 2}}, 3, 3);
    EXPECT_EQ(ExtendLinearly(inner, 1, 2, Back), NoMap());
    EXPECT_EQ(ExtendLinearly(inner, 1, 2, Front), NoMap());
    EXPECT_EQ(ExtendLinearly(Map(turnsBack, 4, 4), 1, 2, Back), NoMap());
}

// Removal from the source

TEST(RemoveOpenRangeFromMap, TheWalkJumpsOverALostEndOfTheSource)
{
    EXPECT_EQ(RemoveFromSource(four, {3, 4}), Map({{0, 0}, {3, 3}, {3, 4}}, 3, 4));
    EXPECT_EQ(RemoveFromSource(four, {1, 4}), Map({{0, 0}, {1, 1}, {1, 4}}, 1, 4));
    EXPECT_EQ(RemoveFromSource(twoToSix, {1, 2}), Map({{0, 0}, {1, 3}, {1, 6}}, 1, 6));
}

TEST(RemoveOpenRangeFromMap, TheWalkJumpsOverALostBeginningOfTheSource)
{
    EXPECT_EQ(RemoveFromSource(four, {0, 1}), Map({{0, 0}, {0, 1}, {3, 4}}, 3, 4));
    EXPECT_EQ(RemoveFromSource(twoToSix, {0, 1}), Map({{0, 0}, {0, 3}, {1, 6}}, 1, 6));
}

TEST(RemoveOpenRangeFromMap, ASegmentThatIsCutIsAWholeSegmentOfTheRest)
{
    EXPECT_EQ(RemoveFromSource(four, {2.5, 4}), Map({{0, 0}, {2, 2}, {3, 2.5}, {3, 4}}, 3, 4));
    EXPECT_EQ(RemoveFromSource(four, {0, 1.5}), Map({{0, 0}, {0, 1.5}, {1, 2}, {3, 4}}, 3, 4));
}

TEST(RemoveOpenRangeFromMap, OfASourceThatIsLostWholeAJumpIsLeft)
{
    EXPECT_EQ(RemoveFromSource(four, {0, 4}), Map({{0, 0}, {0, 4}}, 0, 4));
    EXPECT_EQ(RemoveFromSource(twoToSix, {0, 2}), Map({{0, 0}, {0, 6}}, 0, 6));
    EXPECT_EQ(RemoveFromSource(four, {-1, 6}), Map({{0, 0}, {0, 4}}, 0, 4));
    // A range with equal ends goes right round.
    EXPECT_EQ(RemoveFromSource(four, {2, 2}), Map({{0, 0}, {0, 4}}, 0, 4));
    EXPECT_EQ(RemoveFromSource(four, {2, 2 + 5e-10}), Map({{0, 0}, {0, 4}}, 0, 4));
}

// Removal from the destination

TEST(RemoveOpenRangeFromMap, TheWalkStandsStillOverALostEndOfTheDestination)
{
    EXPECT_EQ(RemoveFromDestination(four, {3, 4}), Map({{0, 0}, {3, 3}, {4, 3}}, 4, 3));
    EXPECT_EQ(RemoveFromDestination(twoToSix, {3, 6}), Map({{0, 0}, {1, 3}, {2, 3}}, 2, 3));
}

TEST(RemoveOpenRangeFromMap, TheWalkStandsStillOverALostBeginningOfTheDestination)
{
    EXPECT_EQ(RemoveFromDestination(four, {0, 1}), Map({{0, 0}, {1, 0}, {4, 3}}, 4, 3));
    EXPECT_EQ(RemoveFromDestination(twoToSix, {0, 3}), Map({{0, 0}, {1, 0}, {2, 3}}, 2, 3));
}

TEST(RemoveOpenRangeFromMap, ADestinationSegmentThatIsCutIsAWholeSegmentOfTheRest)
{
    EXPECT_EQ(RemoveFromDestination(four, {2.5, 4}), Map({{0, 0}, {2, 2}, {2.5, 3}, {4, 3}}, 4, 3));
    EXPECT_EQ(RemoveFromDestination(four, {0, 1.5}), Map({{0, 0}, {1.5, 0}, {2, 1}, {4, 3}}, 4, 3));
}

TEST(RemoveOpenRangeFromMap, OnADestinationThatIsLostWholeTheWalkStandsStill)
{
    EXPECT_EQ(RemoveFromDestination(four, {0, 4}), Map({{0, 0}, {4, 0}}, 4, 0));
    EXPECT_EQ(RemoveFromDestination(twoToSix, {0, 6}), Map({{0, 0}, {2, 0}}, 2, 0));
}

// What is not served

TEST(RemoveOpenRangeFromMap, AStretchFromTheMiddleLeavesTheMapAsItIs)
{
    EXPECT_EQ(RemoveFromSource(four, {1, 2}), four);
    EXPECT_EQ(RemoveFromDestination(four, {1, 2}), four);
    const CPolyPosMap doubled({{0, 0}, {1, 1}, {1, 1}, {2, 3}}, 4, 4);
    EXPECT_EQ(RemoveFromSource(doubled, {1, 2}), doubled);
    EXPECT_EQ(RemoveFromDestination(doubled, {1, 2}), doubled);
}

TEST(RemoveOpenRangeFromMap, AStretchFromTheMiddleStillBringsTheMapToNormalForm)
{
    EXPECT_EQ(RemoveFromSource(Map({{5, 0}, {6, 1}}, 4, 4), {1, 2}), Map({{1, 0}, {2, 1}}, 4, 4));
    EXPECT_EQ(RemoveFromDestination(Map({{5, 0}, {6, 1}}, 4, 4), {1, 2}), Map({{1, 0}, {2, 1}}, 4, 4));
}

TEST(RemoveOpenRangeFromMap, AnEndJustInsideThePolylineIsAStretchFromTheMiddle)
{
    // Ends at the polyline's end are compared without tolerance there: a sliver is left.
    EXPECT_EQ(RemoveFromSource(four, {3, 4 - 5e-10}), four);
    EXPECT_EQ(RemoveFromSource(four, {3, 4 + 5e-10}), Map({{0, 0}, {3, 3}, {3, 4}}, 3, 4));
    EXPECT_EQ(RemoveFromSource(four, {5e-10, 1}), Map({{0, 0}, {0, 1}, {3, 4}}, 3, 4));
    EXPECT_EQ(RemoveFromSource(four, {2e-9, 1}), four);
}

TEST(RemoveOpenRangeFromMap, AStretchOutsideThePolylineTakesNothing)
{
    const CPolyPosMap rest = four;
    EXPECT_EQ(RemoveFromSource(four, {5, 6}), rest);
    EXPECT_EQ(RemoveFromSource(four, {4, 5}), rest);
    EXPECT_EQ(RemoveFromSource(four, {-3, -1}), rest);
    EXPECT_EQ(RemoveFromDestination(four, {5, 6}), rest);
}

TEST(RemoveOpenRangeFromMap, AStretchThatReachesBeyondThePolylineTakesWhatLiesOnIt)
{
    EXPECT_EQ(RemoveFromSource(four, {3, 7}), Map({{0, 0}, {3, 3}, {3, 4}}, 3, 4));
    EXPECT_EQ(RemoveFromSource(four, {-1, 1}), Map({{0, 0}, {0, 1}, {3, 4}}, 3, 4));
}

TEST(RemoveOpenRangeFromMap, ARestThatEndsBeyondTheNumbersOfSegmentsTakesNothing)
{
    // No piece is cut that ends at the greatest int, and a piece without joints changes nothing.
    const double count = INT_MAX;
    const CPolyPosMap map = Map({{0, 0}, {count, 4}}, INT_MAX, 4);
    EXPECT_EQ(RemoveFromSource(map, {0, count - 1}), map);
}

TEST(RemoveOpenRangeFromMap, AWrappingRangeGivesNoMap)
{
    EXPECT_EQ(RemoveFromDestination(four, {3, 1}), NoMap());
    EXPECT_EQ(RemoveFromSource(four, {3, 1}), NoMap());
    // Also where the ends are near each other.
    EXPECT_EQ(RemoveFromSource(four, {2 + 5e-10, 2}), NoMap());
    EXPECT_EQ(RemoveFromSource(four, {std::nextafter(2.0, 3.0), 2}), NoMap());
}

TEST(RemoveOpenRangeFromMap, AMapWithoutJointsGivesNoMap)
{
    for (const PosRangeD& range : {PosRangeD(0, 1), PosRangeD(1, 2), PosRangeD(3, 1), PosRangeD()})
    {
        EXPECT_EQ(RemoveFromSource(Map({}, 3, 5), range), NoMap());
        EXPECT_EQ(RemoveFromDestination(Map({}, 3, 5), range), NoMap());
        EXPECT_EQ(RemoveFromSource(NoMap(), range), NoMap());
    }
}

TEST(RemoveOpenRangeFromMap, AnInvalidMapGivesNone)
{
    const CPolyPosMap invalid(turnsBack, 4, 4);
    EXPECT_EQ(RemoveFromSource(invalid, {3, 4}), NoMap());
    EXPECT_EQ(RemoveFromDestination(invalid, {3, 4}), NoMap());
    EXPECT_EQ(RemoveFromSource(invalid, {1, 2}), NoMap());
}

TEST(RemoveOpenRangeFromMap, AnInvalidRangeTakesTheWholePolyline)
{
    // (-1, -1) is neither forward nor whole, so it is taken over the seam.
    EXPECT_EQ(RemoveFromSource(four, PosRangeD()), Map({{0, 0}, {0, 4}}, 0, 4));
    EXPECT_EQ(RemoveFromDestination(four, PosRangeD()), Map({{0, 0}, {4, 0}}, 4, 0));
}

TEST(RemoveOpenRangeFromMap, OnlyTheSideThatIsToldIsShortened)
{
    const CPolyPosMap map({{0, 0}, {3, 6}}, 3, 6);
    EXPECT_EQ(RemoveFromSource(map, {2, 3}), Map({{0, 0}, {2, 4}, {2, 6}}, 2, 6));
    EXPECT_EQ(RemoveFromDestination(map, {4, 6}), Map({{0, 0}, {2, 4}, {3, 4}}, 3, 4));
    // (4, 6) lies past the source, (2, 3) in the middle of the destination.
    EXPECT_EQ(RemoveFromSource(map, {4, 6}), map);
    EXPECT_EQ(RemoveFromDestination(map, {2, 3}), map);
}

TEST(RemoveOpenRangeFromMap, AMapThatDoesNotReachTheLostStretchKeepsItsJoints)
{
    const CPolyPosMap map({{1, 0}, {2, 3}}, 4, 5);
    EXPECT_EQ(RemoveFromSource(map, {3, 4}), Map({{1, 0}, {2, 3}}, 3, 5));
    EXPECT_EQ(RemoveFromSource(map, {0, 1}), Map({{0, 0}, {1, 3}}, 3, 5));
    EXPECT_EQ(RemoveFromDestination(map, {4, 5}), Map({{1, 0}, {2, 3}}, 4, 4));
}

TEST(RemoveOpenRangeFromMap, ADownwardMapLosesTheSameStretch)
{
    EXPECT_EQ(RemoveFromSource(Map({{0, 4}, {4, 0}}, 4, 4), {3, 4}), Map({{0, 4}, {3, 1}, {3, 0}}, 3, 4));
    EXPECT_EQ(RemoveFromDestination(Map({{0, 4}, {4, 0}}, 4, 4), {3, 4}), Map({{0, 3}, {1, 3}, {4, 0}}, 4, 3));
}
