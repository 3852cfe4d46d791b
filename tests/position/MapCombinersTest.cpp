#include "math/CPolyPosMapUtilies.h"
#include "support/Maps.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap CombineDestination(const CPolyPosMap& first, const CPolyPosMap& second)
{
    return CPolyPosMapUtilies::CombineTwonMapWithSameDst(first, second);
}

CPolyPosMap CombineSource(const CPolyPosMap& first, const CPolyPosMap& second)
{
    return CPolyPosMapUtilies::CombineTwonMapWithSameSrc(first, second);
}

CPolyPosMap CombineStandalone(const CPolyPosMap& first, const CPolyPosMap& second)
{
    return CPolyPosMapUtilies::CombineTwoMapStandalone(first, second);
}

CPolyPosMap TwoToFour(const Pairs& pairs)
{
    return Map(pairs, 2, 4);
}

CPolyPosMap FourToTwo(const Pairs& pairs)
{
    return Map(pairs, 4, 2);
}

CPolyPosMap TwoToTwo(const Pairs& pairs)
{
    return Map(pairs, 2, 2);
}

const Pairs turnsBack = {{0, 0}, {2, 2}, {1, 3}};

} // namespace

// Two polylines

TEST(CombineTwoCad, EachPartIsPlacedInTheJoinedPolyline)
{
    const auto parts = CPolyPosMapUtilies::CombineTwoCad(2, 3);
    EXPECT_EQ(parts.first, Map({{0, 0}, {2, 2}}, 2, 5));
    EXPECT_EQ(parts.second, Map({{0, 2}, {3, 5}}, 3, 5));
}

TEST(CombineTwoCad, APartWithoutSegmentsIsASingleJoint)
{
    const auto firstEmpty = CPolyPosMapUtilies::CombineTwoCad(0, 3);
    EXPECT_EQ(firstEmpty.first, Map({{0, 0}}, 0, 3));
    EXPECT_EQ(firstEmpty.second, Map({{0, 0}, {3, 3}}, 3, 3));

    const auto secondEmpty = CPolyPosMapUtilies::CombineTwoCad(3, 0);
    EXPECT_EQ(secondEmpty.first, Map({{0, 0}, {3, 3}}, 3, 3));
    EXPECT_EQ(secondEmpty.second, Map({{0, 3}}, 0, 3));

    const auto bothEmpty = CPolyPosMapUtilies::CombineTwoCad(0, 0);
    EXPECT_EQ(bothEmpty.first, Map({{0, 0}}, 0, 0));
    EXPECT_EQ(bothEmpty.second, Map({{0, 0}}, 0, 0));
}

TEST(CombineTwoCad, SinglesAreJoined)
{
    const auto parts = CPolyPosMapUtilies::CombineTwoCad(1, 1);
    EXPECT_EQ(parts.first, Map({{0, 0}, {1, 1}}, 1, 2));
    EXPECT_EQ(parts.second, Map({{0, 1}, {1, 2}}, 1, 2));
}

// Sources joined on one destination

TEST(CombineWithSameDestination, MapsThatGoOnMakeOne)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 0}, {2, 2}}), TwoToFour({{0, 2}, {2, 4}})),
              Map({{0, 0}, {4, 4}}, 4, 4));
}

TEST(CombineWithSameDestination, PartsOfDifferentSizesKeepTheirPlaces)
{
    // Slopes 1/2 and 2: the joint where the sources meet stays.
    EXPECT_EQ(CombineDestination(Map({{0, 0}, {2, 1}}, 2, 7), Map({{0, 1}, {3, 7}}, 3, 7)),
              Map({{0, 0}, {2, 1}, {5, 7}}, 5, 7));
}

TEST(CombineWithSameDestination, TheOtherWayRoundTheSecondGoesOnPastTheSeamOfTheDestination)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 2}, {2, 4}}), TwoToFour({{0, 0}, {2, 2}})),
              Map({{0, 2}, {4, 6}}, 4, 4));
}

TEST(CombineWithSameDestination, TheSourceStretchThatNeitherCoversStandsStill)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 0}, {1, 1}}), TwoToFour({{1, 1}, {2, 2}})),
              Map({{0, 0}, {1, 1}, {3, 1}, {4, 2}}, 4, 4));
}

TEST(CombineWithSameDestination, WhereTheDestinationsAreApartTheMapJumps)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 0}, {2, 1}}), TwoToFour({{0, 3}, {2, 4}})),
              Map({{0, 0}, {2, 1}, {2, 3}, {4, 4}}, 4, 4));
}

TEST(CombineWithSameDestination, DownwardDestinationsGoOnAsWell)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 4}, {2, 3}}), TwoToFour({{0, 3}, {2, 1}})),
              Map({{0, 4}, {2, 3}, {4, 1}}, 4, 4));
    // The first is lifted past the seam.
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 1}, {2, 0}}), TwoToFour({{0, 4}, {2, 2}})),
              Map({{0, 5}, {2, 4}, {4, 2}}, 4, 4));
}

TEST(CombineWithSameDestination, JointsThatLieStraightAreDropped)
{
    EXPECT_EQ(CombineDestination(Map({{0, 0}, {1, 1}, {2, 2}}, 2, 4), Map({{0, 2}, {1, 3}, {2, 3.5}}, 2, 4)),
              Map({{0, 0}, {3, 3}, {4, 3.5}}, 4, 4));
}

TEST(CombineWithSameDestination, MapsAreBroughtToNormalFormFirst)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{2, 4}, {4, 6}}), TwoToFour({{-2, 2}, {0, 4}})),
              Map({{0, 0}, {4, 4}}, 4, 4));
}

TEST(CombineWithSameDestination, SourcesThatRunDownDoNotGoTogether)
{
    const CPolyPosMap up = TwoToFour({{0, 0}, {2, 2}});
    EXPECT_EQ(CombineDestination(TwoToFour({{2, 0}, {0, 2}}), TwoToFour({{2, 2}, {0, 4}})), NoMap());
    EXPECT_EQ(CombineDestination(up, TwoToFour({{2, 2}, {0, 4}})), NoMap());
}

TEST(CombineWithSameDestination, ADownwardFirstSourceIsWalkedUpwardAndTheSecondTurned)
{
    // Restated on the joined source, the first runs up. A single joint is the same when turned.
    EXPECT_EQ(CombineDestination(TwoToFour({{2, 0}, {0, 2}}), TwoToFour({{1, 0}})),
              Map({{0, 2}, {2, 0}, {3, 0}}, 4, 4));
}

TEST(CombineWithSameDestination, AWalkThatComesBackAlongOneStraightLineIsAllThatIsLeft)
{
    // The second, turned and lifted by a lap, walks from (4, 6) back to (2, 4): every joint between the ends is
    // straight.
    EXPECT_EQ(CombineDestination(TwoToFour({{2, 4}, {0, 2}}), TwoToFour({{2, 2}, {0, 0}})),
              Map({{0, 2}, {2, 4}}, 4, 4));
}

namespace
{

/// Two joints at one place of the source, the later one a sliver below: a jump on a source that runs down.
Pairs DownwardJump(double from, double to)
{
    return {{0.5 + 5e-10, from}, {0.5, to}};
}

constexpr double jumpInFirst = 0.5 + 5e-10;
constexpr double jumpInSecond = jumpInFirst + 1;

} // namespace

TEST(CombineWithSameDestination, ASecondThatRunsDownIsTurnedBehindTheFirst)
{
    // Restated, the walk of the destination runs against that of the source: 2, then 1. Turned, it goes on from 1.
    EXPECT_EQ(CombineDestination(Map({{0, 0}, {1, 1}}, 1, 4), Map(DownwardJump(1, 2), 1, 4)),
              Map({{0, 0}, {1, 1}, {jumpInSecond, 1}, {jumpInSecond, 2}}, 2, 4));
}

TEST(CombineWithSameDestination, AFirstThatRunsDownTurnsTheSecond)
{
    // Restated, the first jumps from 2 to 0 and is lifted by a lap; the second, turned, jumps from 4 to 3.
    EXPECT_EQ(CombineDestination(Map(DownwardJump(0, 2), 1, 4), Map({{0.5, 3}, {0.5, 4}}, 1, 4)),
              Map({{jumpInFirst, 6}, {jumpInFirst, 4}, {1.5, 4}, {1.5, 3}}, 2, 4));
}

TEST(CombineWithSameDestination, TwoThatRunDownTurnTheSecond)
{
    EXPECT_EQ(CombineDestination(Map(DownwardJump(0, 2), 1, 4), Map(DownwardJump(4, 3), 1, 4)),
              Map({{jumpInFirst, 6}, {jumpInFirst, 4}, {jumpInSecond, 4}, {jumpInSecond, 3}}, 2, 4));
}

TEST(CombineWithSameDestination, DifferentDestinationsDoNotGoTogether)
{
    EXPECT_EQ(CombineDestination(Map({{0, 0}, {2, 2}}, 2, 4), Map({{0, 2}, {2, 4}}, 2, 5)), NoMap());
}

TEST(CombineWithSameDestination, DestinationsThatRunOppositeWaysDoNotGoTogether)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 0}, {2, 2}}), TwoToFour({{0, 2}, {2, 0}})), NoMap());
}

TEST(CombineWithSameDestination, MoreThanALapOfDestinationIsNoMap)
{
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 0}, {2, 3}}), TwoToFour({{0, 0}, {2, 2}})), NoMap());
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 1}, {2, 4}}), TwoToFour({{0, 0}, {2, 1}})),
              Map({{0, 1}, {2, 4}, {4, 5}}, 4, 4));
}

TEST(CombineWithSameDestination, AnInvalidMapGivesNone)
{
    const CPolyPosMap map = TwoToFour({{0, 0}, {2, 2}});
    EXPECT_EQ(CombineDestination(TwoToFour(turnsBack), map), NoMap());
    EXPECT_EQ(CombineDestination(map, TwoToFour(turnsBack)), NoMap());
    EXPECT_EQ(CombineDestination(TwoToFour(turnsBack), TwoToFour(turnsBack)), NoMap());
}

TEST(CombineWithSameDestination, AMapThatLandsOutsideItsSourceGivesNone)
{
    // The source of the first has no segments in the joined polyline, so its joints at 0 and 1 do not both survive.
    EXPECT_EQ(CombineDestination(Map({{0.5, 1}}, 0, 4), TwoToFour({{0, 2}, {2, 4}})), NoMap());
}

TEST(CombineWithSameDestination, AFirstPartWithoutSegmentsIsASingleJoint)
{
    EXPECT_EQ(CombineDestination(Map({{0, 1}}, 0, 4), TwoToFour({{0, 2}, {2, 4}})),
              Map({{0, 1}, {0, 2}, {2, 4}}, 2, 4));
    EXPECT_EQ(CombineDestination(TwoToFour({{0, 0}, {2, 2}}), Map({{0, 3}}, 0, 4)),
              Map({{0, 0}, {2, 2}, {2, 3}}, 2, 4));
}

TEST(CombineWithSameDestination, AMapWithoutJointsStandsForThePolylineItself)
{
    // Of the composition with the place of the first part that place is left: a destination of 2 segments.
    EXPECT_EQ(CombineDestination(Map({}, 2, 7), TwoToTwo({{0, 0}, {2, 0}})), Map({{0, 0}, {2, 2}, {4, 2}}, 4, 2));
    EXPECT_EQ(CombineDestination(Map({}, 2, 4), TwoToFour({{0, 2}, {2, 4}})), NoMap());
    EXPECT_EQ(CombineDestination(NoMap(), NoMap()), Map({{0, 0}}, 0, 0));
}

// Destinations joined from one source

TEST(CombineWithSameSource, MapsThatGoOnMakeOne)
{
    EXPECT_EQ(CombineSource(FourToTwo({{0, 0}, {2, 2}}), FourToTwo({{2, 0}, {4, 2}})), Map({{0, 0}, {4, 4}}, 4, 4));
}

TEST(CombineWithSameSource, PartsOfDifferentSizesKeepTheirPlaces)
{
    EXPECT_EQ(CombineSource(Map({{0, 0}, {1, 2}}, 7, 2), Map({{1, 0}, {7, 3}}, 7, 3)),
              Map({{0, 0}, {1, 2}, {7, 5}}, 7, 5));
}

TEST(CombineWithSameSource, TheDestinationStretchThatNeitherCoversIsJumpedOver)
{
    EXPECT_EQ(CombineSource(FourToTwo({{0, 0}, {1, 1}}), FourToTwo({{1, 1}, {2, 2}})),
              Map({{0, 0}, {1, 1}, {1, 3}, {2, 4}}, 4, 4));
}

TEST(CombineWithSameSource, TheSecondGoesOnPastTheSeamOfTheSource)
{
    EXPECT_EQ(CombineSource(FourToTwo({{2, 0}, {4, 2}}), FourToTwo({{0, 0}, {2, 2}})), Map({{2, 0}, {6, 4}}, 4, 4));
}

TEST(CombineWithSameSource, DestinationsThatRunDownDoNotGoTogether)
{
    EXPECT_EQ(CombineSource(FourToTwo({{0, 2}, {2, 0}}), FourToTwo({{2, 2}, {4, 0}})), NoMap());
}

TEST(CombineWithSameSource, DifferentSourcesDoNotGoTogether)
{
    EXPECT_EQ(CombineSource(Map({{0, 0}, {2, 2}}, 4, 2), Map({{2, 0}, {4, 2}}, 5, 2)), NoMap());
}

TEST(CombineWithSameSource, IsTheMirrorImageOfJoiningSources)
{
    const CPolyPosMap first = FourToTwo({{0, 0}, {1, 0}, {1, 2}});
    const CPolyPosMap second = FourToTwo({{2, 0}, {3.5, 1}});
    EXPECT_EQ(CombineSource(first, second), !CombineDestination(!first, !second));
    EXPECT_EQ(CombineSource(first, second), Map({{0, 0}, {1, 0}, {1, 2}, {2, 2}, {3.5, 3}}, 4, 4));
}

// Both sides joined

TEST(CombineStandalone, TwoMapsThatMeetOnBothSidesMakeOne)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2, 2}}), Map({{0, 0}, {3, 3}}, 3, 3)), Map({{0, 0}, {5, 5}}, 5, 5));
}

TEST(CombineStandalone, EachSideIsRaisedByItsOwnCount)
{
    EXPECT_EQ(CombineStandalone(Map({{0, 0}, {2, 1}}, 2, 1), Map({{0, 0}, {3, 7}}, 3, 7)),
              Map({{0, 0}, {2, 1}, {5, 8}}, 5, 8));
}

TEST(CombineStandalone, MapsThatMeetInTheDestinationOnly)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2, 2}}), TwoToTwo({{1, 0}, {2, 1}})),
              Map({{0, 0}, {2, 2}, {3, 2}, {4, 3}}, 4, 4));
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 2}}), TwoToTwo({{1, 0}, {2, 1}})),
              Map({{0, 0}, {1, 2}, {3, 2}, {4, 3}}, 4, 4));
}

TEST(CombineStandalone, MapsThatMeetInTheSourceOnly)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2, 1}}), TwoToTwo({{0, 1}, {2, 2}})),
              Map({{0, 0}, {2, 1}, {2, 3}, {4, 4}}, 4, 4));
}

TEST(CombineStandalone, MapsThatMeetNowhereDoNotGoTogether)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 1}}), TwoToTwo({{0, 0}, {1, 1}})), NoMap());
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 1}}), TwoToTwo({{1, 1}, {2, 2}})), NoMap());
}

TEST(CombineStandalone, AnEndWithinTheToleranceOfTheSegmentEndMeetsThere)
{
    // Composition takes a place near a joint for the joint.
    const CPolyPosMap inDestination = TwoToTwo({{1, 0}, {2, 1}});
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 2 - 5e-10}}), inDestination),
              Map({{0, 0}, {1, 2}, {3, 2}, {4, 3}}, 4, 4));
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 2 - 2e-9}}), inDestination), NoMap());

    const CPolyPosMap inSource = TwoToTwo({{0, 1}, {2, 2}});
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2 - 5e-10, 1}}), inSource),
              Map({{0, 0}, {2, 1}, {2, 3}, {4, 4}}, 4, 4));
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2 - 2e-9, 1}}), inSource), NoMap());
}

TEST(CombineStandalone, TheEndOfTheFirstMeetsTheBeginningOfTheSecondNotTheReverse)
{
    // The first begins where the second would end, at (0, 0) and (4, 4) of one closed polyline.
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 1}}), TwoToTwo({{1, 1}, {2, 2}})), NoMap());
    // (1, 0) then (3, 4): the back of the first and the front of the second are what is looked at.
    EXPECT_EQ(CombineStandalone(TwoToTwo({{1, 0}, {2, 1}}), TwoToTwo({{0, 1}, {1, 2}})),
              Map({{1, 0}, {2, 1}, {2, 3}, {3, 4}}, 4, 4));
}

TEST(CombineStandalone, TurnedMapsGoOnDownward)
{
    const CPolyPosMap turned = Map({{0, 1}, {1, 0}}, 1, 1);
    EXPECT_EQ(CombineStandalone(turned, turned), Map({{0, 3}, {2, 1}}, 2, 2));
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 2}, {2, 0}}), Map({{0, 6}, {3, 0}}, 3, 6)),
              Map({{0, 10}, {2, 8}, {5, 2}}, 5, 8));
}

TEST(CombineStandalone, SourcesThatRunDownAreWalkedUpward)
{
    const CPolyPosMap down = TwoToTwo({{2, 0}, {0, 2}});
    EXPECT_EQ(CombineStandalone(down, down), Map({{0, 6}, {4, 2}}, 4, 4));
    const CPolyPosMap bothDown = TwoToTwo({{2, 2}, {0, 0}});
    EXPECT_EQ(CombineStandalone(bothDown, Map({{3, 6}, {0, 0}}, 3, 6)), Map({{0, 0}, {2, 2}, {5, 8}}, 5, 8));
}

TEST(CombineStandalone, OppositeDirectionsOfTheDestinationDoNotGoTogether)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2, 2}}), TwoToTwo({{0, 2}, {2, 0}})), NoMap());
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 2}, {2, 0}}), TwoToTwo({{0, 0}, {2, 2}})), NoMap());
}

TEST(CombineStandalone, AMapWithoutJointsLeavesTheOtherUnchanged)
{
    const CPolyPosMap map = Map({{5, 1}, {6, 3}, {6, 3}}, 4, 4);
    EXPECT_EQ(CombineStandalone(Map({}, 3, 2), map), map);
    EXPECT_EQ(CombineStandalone(map, Map({}, 3, 2)), map);
    EXPECT_EQ(CombineStandalone(NoMap(), map), map);
    EXPECT_EQ(CombineStandalone(Map({}, 3, 2), Map({}, 5, 4)), Map({}, 5, 4));
}

TEST(CombineStandalone, WithAMapWithoutJointsTheOtherMayBeInvalid)
{
    EXPECT_EQ(CombineStandalone(TwoToFour(turnsBack), NoMap()), TwoToFour(turnsBack));
    EXPECT_EQ(CombineStandalone(NoMap(), TwoToFour(turnsBack)), TwoToFour(turnsBack));
}

TEST(CombineStandalone, AnInvalidMapGivesNone)
{
    const CPolyPosMap map = Map({{0, 0}, {3, 5}}, 3, 5);
    EXPECT_EQ(CombineStandalone(TwoToFour(turnsBack), map), NoMap());
    EXPECT_EQ(CombineStandalone(map, TwoToFour(turnsBack)), NoMap());
}

TEST(CombineStandalone, MapsOfWhichNothingSurvivesGiveNone)
{
    // A destination of 0 segments has one place in the joined one, its beginning; these maps land elsewhere.
    const CPolyPosMap elsewhere = Map({{0, 0.5}, {2, 0.5}}, 2, 0);
    EXPECT_EQ(CombineStandalone(elsewhere, TwoToTwo({{0, 0}, {2, 2}})), NoMap());
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2, 2}}), elsewhere), NoMap());
    EXPECT_EQ(CombineStandalone(elsewhere, elsewhere), NoMap());
}

TEST(CombineStandalone, WhatVanishesOnTheWayIsNeutralInTheNextComposition)
{
    // The source of 0 segments has one place in the joined one, its beginning; the map has a joint elsewhere only. What
    // is left of the first is the place of its destination, told on a source that fits by chance.
    EXPECT_EQ(CombineStandalone(Map({{0.5, 0}}, 0, 2), TwoToTwo({{0, 0}, {2, 2}})),
              Map({{0, 0}, {2, 2}, {0, 2}, {2, 4}}, 2, 4));
    EXPECT_EQ(CombineStandalone(Map({{0.5, 0}}, 0, 2), Map({{0, 0}, {3, 2}}, 3, 2)), NoMap());
}

TEST(CombineStandalone, SingleJointsMeetToo)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {2, 2}}), Map({{0, 0}}, 0, 2)), Map({{0, 0}, {2, 2}}, 2, 4));
    EXPECT_EQ(CombineStandalone(Map({{0, 0}, {0, 1}}, 0, 1), TwoToTwo({{0, 0}, {2, 2}})),
              Map({{0, 0}, {0, 1}, {2, 3}}, 2, 3));
}

TEST(CombineStandalone, JointsThatLieStraightAreDropped)
{
    EXPECT_EQ(CombineStandalone(TwoToTwo({{0, 0}, {1, 1}, {2, 2}}), TwoToTwo({{0, 0}, {1, 1}, {2, 1}})),
              Map({{0, 0}, {3, 3}, {4, 3}}, 4, 4));
}
