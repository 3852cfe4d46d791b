#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap Offset(CPolyPosMap map, double delta, int side)
{
    map.Offset(delta, side);
    return map;
}

CPolyPosMap Split(CPolyPosMap map, double position, int side)
{
    map.Split(position, side);
    return map;
}

CPolyPosMap Turned(CPolyPosMap map, int side)
{
    map.ReverseDirection(side);
    return map;
}

const CPolyPosMap Round = Map({{0, 0}, {4, 4}}, 4, 4);
const CPolyPosMap TurnsBack = Map({{0, 0}, {2, 2}, {1, 3}}, 4, 5);

} // namespace

TEST(MapOffset, ShiftsTheColumnOfOneSideOrBoth)
{
    const CPolyPosMap map = Map({{0, 0}, {1, 1}}, 4, 5);
    EXPECT_EQ(Offset(map, 0.5, 1), Map({{0.5, 0}, {1.5, 1}}, 4, 5));
    EXPECT_EQ(Offset(map, 0.5, 2), Map({{0, 0.5}, {1, 1.5}}, 4, 5));
    EXPECT_EQ(Offset(map, 0.5, 3), Map({{0.5, 0.5}, {1.5, 1.5}}, 4, 5));
    EXPECT_EQ(Offset(map, -7, 3), Map({{-7, -7}, {-6, -6}}, 4, 5));
}

TEST(MapOffset, WrapsNothing)
{
    EXPECT_EQ(Offset(Map({{0, 0}, {1, 1}}, 4, 5), 100, 1), Map({{100, 0}, {101, 1}}, 4, 5));
}

TEST(MapOffset, DoesNothingOnOtherSides)
{
    const CPolyPosMap map = Map({{0, 0}, {1, 1}}, 4, 5);
    for (int side : {0, -1, 4})
    {
        EXPECT_EQ(Offset(map, 0.5, side), map);
    }
}

TEST(MapOffset, LeavesInvalidAndEmptyMaps)
{
    for (int side : {1, 2, 3})
    {
        EXPECT_EQ(Offset(TurnsBack, 0.5, side), TurnsBack);
        EXPECT_EQ(Offset(Map({}, 3, 5), 0.5, side), Map({}, 3, 5));
    }
}

TEST(MapOffset, TheShiftAndTheSideMayBeTheMapsOwn)
{
    CPolyPosMap map = Map({{2, 0}, {3, 1}}, 4, 5);
    map.Offset(map.PosPairs()[0].first, 1);
    EXPECT_EQ(map, Map({{4, 0}, {5, 1}}, 4, 5));
    map.Offset(map.PosPairs()[1].second, 3);
    EXPECT_EQ(map, Map({{5, 1}, {6, 2}}, 4, 5));
    map.Offset(map.PosPairs()[0].second, 2);
    EXPECT_EQ(map, Map({{5, 2}, {6, 3}}, 4, 5));
    CPolyPosMap sides = Map({{0, 0}, {1, 1}}, 1, 2);
    sides.Offset(0.5, sides.DstSegmentCount());
    EXPECT_EQ(sides, Map({{0, 0.5}, {1, 1.5}}, 1, 2));
}

TEST(MapSplit, AtAnEndOfThePolylineChangesNothing)
{
    for (double position : {0.0, 4.0, 5e-10, 4 - 5e-10, -5e-10})
    {
        EXPECT_EQ(Split(Round, position, 1), Round);
        EXPECT_EQ(Split(Round, position, 2), Round);
        EXPECT_EQ(Split(Round, position, 3), Round);
    }
    // Not even its form.
    const CPolyPosMap notNormal = Map({{4, 9}, {5, 9}, {5, 9}}, 4, 7);
    EXPECT_EQ(Split(notNormal, 0, 3), notNormal);
    EXPECT_EQ(Split(notNormal, 4, 1), notNormal);
    EXPECT_EQ(Split(notNormal, 7, 2), notNormal);
}

TEST(MapSplit, OnANodeTurnsTheNumbering)
{
    EXPECT_EQ(Split(Round, 1, 1), Map({{0, 1}, {4, 5}}, 4, 4));
    // The new start of the destination is where the source stands at 1.
    EXPECT_EQ(Split(Round, 1, 2), Map({{1, 0}, {5, 4}}, 4, 4));
    EXPECT_EQ(Split(Round, 1, 3), Round);
}

TEST(MapSplit, InsideASegmentMakesTwoOfIt)
{
    EXPECT_EQ(Split(Round, 1.5, 1), Map({{0, 1.5}, {1, 2}, {4, 5}, {5, 5.5}}, 5, 4));
    EXPECT_EQ(Split(Round, 1.5, 2), Map({{1.5, 0}, {2, 1}, {5, 4}, {5.5, 5}}, 4, 5));
    EXPECT_EQ(Split(Round, 1.5, 3), Map({{0, 0}, {5, 5}}, 5, 5));
}

TEST(MapSplit, EachSideHasItsOwnCount)
{
    const CPolyPosMap map = Map({{0, 0}, {4, 8}}, 4, 8);
    EXPECT_EQ(Split(map, 4, 1), map);
    EXPECT_EQ(Split(map, 4, 2), Map({{2, 0}, {6, 8}}, 4, 8));
    EXPECT_EQ(Split(map, 8, 2), map);
    EXPECT_EQ(Split(map, 2, 1), Map({{0, 4}, {4, 12}}, 4, 8));
    // The new start of the source is 4 on the old destination, 2 past the new start there.
    EXPECT_EQ(Split(map, 2, 3), Map({{0, 2}, {4, 10}}, 4, 8));
}

TEST(MapSplit, DoesNothingOnOtherSides)
{
    for (int side : {0, -1, 4})
    {
        EXPECT_EQ(Split(Round, 1, side), Round);
    }
}

TEST(MapSplit, OfAnEmptyMapLeavesTheRenumberingAlone)
{
    EXPECT_EQ(Split(Map({}, 4, 6), 1, 1), Map({{0, 1}, {4, 5}}, 4, 4));
    EXPECT_EQ(Split(Map({}, 4, 6), 1, 2), Map({{1, 0}, {7, 6}}, 6, 6));
}

TEST(MapSplit, OfAnInvalidMapOnlyTheDestinationLeavesItStanding)
{
    // The source side takes the composition as it comes, the destination side composes in place.
    EXPECT_EQ(Split(TurnsBack, 1, 1), NoMap());
    EXPECT_EQ(Split(TurnsBack, 1, 2), TurnsBack);
}

TEST(MapSplit, ThePositionAndTheSideMayBeTheMapsOwn)
{
    CPolyPosMap both = Map({{0, 0}, {1, 1}, {4, 4}}, 4, 4);
    both.Split(both.PosPairs()[1].first, 3);
    EXPECT_EQ(both, Round);

    // 3 asks for both sides; the cut inside a segment then makes 4 of it.
    CPolyPosMap sides = Map({{0, 0}, {3, 3}}, 3, 3);
    sides.Split(1.5, sides.SrcSegmentCount());
    EXPECT_EQ(sides, Map({{0, 0}, {4, 4}}, 4, 4));
}

TEST(MapReverseDirection, OfTheSourceTurnsTheListToo)
{
    EXPECT_EQ(Turned(Map({{0, 0}, {1, 1}}, 4, 4), 1), Map({{3, 1}, {4, 0}}, 4, 4));
    EXPECT_EQ(Turned(Map({{0, 0}, {1, 2}, {3, 4}}, 4, 7), 1), Map({{1, 4}, {3, 2}, {4, 0}}, 4, 7));
}

TEST(MapReverseDirection, OfTheDestinationKeepsTheOrder)
{
    EXPECT_EQ(Turned(Map({{0, 0}, {1, 1}}, 4, 4), 2), Map({{0, 4}, {1, 3}}, 4, 4));
    EXPECT_EQ(Turned(Map({{0, 0}, {1, 2}, {3, 4}}, 4, 7), 2), Map({{0, 7}, {1, 5}, {3, 3}}, 4, 7));
}

TEST(MapReverseDirection, OfBothSides)
{
    EXPECT_EQ(Turned(Map({{0, 0}, {1, 1}}, 4, 4), 3), Map({{3, 3}, {4, 4}}, 4, 4));
    EXPECT_EQ(Turned(Map({{0, 0}, {1, 2}, {3, 4}}, 4, 7), 3), Map({{1, 3}, {3, 5}, {4, 7}}, 4, 7));
}

TEST(MapReverseDirection, NormalisesBeforeTheListIsTurned)
{
    // 1 and -1 come to 5 and 3; the lap of the destination is that of the back, where the source is lowest.
    EXPECT_EQ(Turned(Map({{3, 0}, {5, 2}}, 4, 6), 1), Map({{3, 2}, {5, 0}}, 4, 6));
    // The front, where the source is lowest, stands at 1: the destination stays below 0 at its end.
    EXPECT_EQ(Turned(Map({{0, 3}, {2, 5}}, 4, 4), 2), Map({{0, 1}, {2, -1}}, 4, 4));
    EXPECT_EQ(Turned(Map({{3, 5}, {5, 7}}, 4, 6), 3), Map({{3, 5}, {5, 7}}, 4, 6));
}

TEST(MapReverseDirection, TwiceGivesANormalMapBack)
{
    const CPolyPosMap map = Map({{0.5, 1}, {1, 2.25}, {3, 2.25}, {3, 3.5}}, 4, 6);
    EXPECT_EQ(Turned(Turned(map, 1), 1), map);
    EXPECT_EQ(Turned(Turned(map, 2), 2), map);
    EXPECT_EQ(Turned(Turned(map, 3), 3), map);
    EXPECT_EQ(Turned(Turned(map, 1), 2), Turned(map, 3));
}

TEST(MapReverseDirection, DoesNothingOnOtherSides)
{
    const CPolyPosMap map = Map({{4, 6}, {5, 7}}, 4, 6);
    for (int side : {0, -1, 4})
    {
        EXPECT_EQ(Turned(map, side), map);
    }
}

TEST(MapReverseDirection, TestsNothingFirst)
{
    EXPECT_EQ(Turned(Map({}, 3, 5), 1), Map({}, 3, 5));
    EXPECT_EQ(Turned(Map({}, 3, 5), 3), Map({}, 3, 5));
    EXPECT_EQ(Turned(TurnsBack, 1), Map({{3, 3}, {2, 2}, {4, 0}}, 4, 5));
    EXPECT_EQ(Turned(TurnsBack, 2), Map({{0, 5}, {2, 3}, {1, 2}}, 4, 5));
    EXPECT_EQ(Turned(TurnsBack, 3), Map({{3, 2}, {2, 3}, {4, 5}}, 4, 5));
}
