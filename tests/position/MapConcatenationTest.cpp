#include "support/RandomMaps.h"
#include "support/ReferenceBuilders.h"

using namespace math;
using namespace math::test;

namespace
{

CPolyPosMap Four(const Pairs& pairs)
{
    return Map(pairs, 4, 4);
}

/// A source of 5 segments and a destination of 3, so that no lap passes for the other.
CPolyPosMap FiveToThree(const Pairs& pairs)
{
    return Map(pairs, 5, 3);
}

const Pairs turnsBack = {{0, 0}, {2, 2}, {1, 3}};

} // namespace

TEST(MapConcatenation, OneWalkIsSetBehindTheOther)
{
    EXPECT_EQ(Four({{0, 0}, {1, 1}}) + Four({{2, 3}, {3, 4}}), Four({{0, 0}, {1, 1}, {2, 3}, {3, 4}}));
    EXPECT_EQ(FiveToThree({{0, 0}, {1, 0.5}}) + FiveToThree({{1.5, 1}, {2, 1}, {5, 3}}),
              FiveToThree({{0, 0}, {1, 0.5}, {1.5, 1}, {2, 1}, {5, 3}}));
}

TEST(MapConcatenation, TheJointAtTheJoinStaysDoubled)
{
    EXPECT_EQ(Four({{0, 0}, {1, 1}}) + Four({{1, 1}, {2, 2}}), Four({{0, 0}, {1, 1}, {1, 1}, {2, 2}}));
}

TEST(MapConcatenation, TheOperandsStayAsTheyAre)
{
    const CPolyPosMap earlier = Four({{2, 2}, {4, 4}});
    const CPolyPosMap later = Four({{0, 0}, {1, 1}});
    const CPolyPosMap joined = earlier + later;
    EXPECT_EQ(earlier, Four({{2, 2}, {4, 4}}));
    EXPECT_EQ(later, Four({{0, 0}, {1, 1}}));
}

// Over the seam, in the four combinations of directions

TEST(MapConcatenation, OnUpwardColumnsTheLaterWalkIsLifted)
{
    EXPECT_EQ(Four({{2, 2}, {4, 4}}) + Four({{0, 0}, {1, 1}}), Four({{2, 2}, {4, 4}, {4, 4}, {5, 5}}));
    EXPECT_EQ(FiveToThree({{3, 2}, {5, 3}}) + FiveToThree({{0, 0}, {1, 1}}),
              FiveToThree({{3, 2}, {5, 3}, {5, 3}, {6, 4}}));
}

TEST(MapConcatenation, OnDownwardColumnsTheEarlierWalkIsLifted)
{
    EXPECT_EQ(Four({{2, 2}, {1, 1}}) + Four({{4, 4}, {3, 3}}), Four({{6, 6}, {5, 5}, {4, 4}, {3, 3}}));
    EXPECT_EQ(FiveToThree({{2, 1}, {0, 0}}) + FiveToThree({{5, 3}, {4, 2}}),
              FiveToThree({{7, 4}, {5, 3}, {5, 3}, {4, 2}}));
}

TEST(MapConcatenation, ADownwardSourceLiftsTheEarlierAndAnUpwardDestinationTheLaterWalk)
{
    EXPECT_EQ(FiveToThree({{2, 1}, {0, 2}}) + FiveToThree({{5, 0}, {4, 1}}),
              FiveToThree({{7, 1}, {5, 2}, {5, 3}, {4, 4}}));
}

TEST(MapConcatenation, AnUpwardSourceLiftsTheLaterAndADownwardDestinationTheEarlierWalk)
{
    EXPECT_EQ(FiveToThree({{3, 1}, {5, 0}}) + FiveToThree({{0, 3}, {1, 2}}),
              FiveToThree({{3, 4}, {5, 3}, {5, 3}, {6, 2}}));
}

TEST(MapConcatenation, WalksThatGoOnAreNotLifted)
{
    EXPECT_EQ(FiveToThree({{4, 2}, {3, 1}}) + FiveToThree({{2, 1}, {1, 0}}),
              FiveToThree({{4, 2}, {3, 1}, {2, 1}, {1, 0}}));
    EXPECT_EQ(FiveToThree({{4, 0}, {3, 1}}) + FiveToThree({{2, 1}, {1, 3}}),
              FiveToThree({{4, 0}, {3, 1}, {2, 1}, {1, 3}}));
    EXPECT_EQ(FiveToThree({{0, 3}, {3, 2}}) + FiveToThree({{4, 1}, {5, 0}}),
              FiveToThree({{0, 3}, {3, 2}, {4, 1}, {5, 0}}));
}

TEST(MapConcatenation, EachColumnIsLiftedForItself)
{
    EXPECT_EQ(FiveToThree({{3, 0}, {5, 1}}) + FiveToThree({{0, 1}, {1, 2}}),
              FiveToThree({{3, 0}, {5, 1}, {5, 1}, {6, 2}}));
    EXPECT_EQ(FiveToThree({{0, 2}, {1, 3}}) + FiveToThree({{1, 0}, {2, 1}}),
              FiveToThree({{0, 2}, {1, 3}, {1, 3}, {2, 4}}));
    EXPECT_EQ(FiveToThree({{2, 2}, {1, 1}}) + FiveToThree({{5, 1}, {4, 0}}),
              FiveToThree({{7, 2}, {6, 1}, {5, 1}, {4, 0}}));
    EXPECT_EQ(FiveToThree({{5, 2}, {4, 1}}) + FiveToThree({{2, 3}, {1, 2}}),
              FiveToThree({{5, 5}, {4, 4}, {2, 3}, {1, 2}}));
}

// Which values are compared

TEST(MapConcatenation, UpwardColumnsAreComparedByTheirLastValuesAlone)
{
    // The later walk begins below the end of the earlier one, and ends above it: the list turns back.
    EXPECT_EQ(Four({{0, 0}, {2, 2}}) + Four({{1, 1}, {3, 3}}), Four({{0, 0}, {2, 2}, {1, 1}, {3, 3}}));
    // The later walk begins above the end of the earlier one, and ends below it.
    EXPECT_EQ(Four({{0, 0}, {1, 1}}) + Four({{2, 2}, {0.5, 0.25}}), Four({{0, 0}, {1, 1}, {6, 6}, {4.5, 4.25}}));
}

TEST(MapConcatenation, DownwardColumnsAreComparedByTheirFirstValuesAlone)
{
    EXPECT_EQ(Four({{3, 3}, {1, 1}}) + Four({{2, 2}, {0, 0}}), Four({{3, 3}, {1, 1}, {2, 2}, {0, 0}}));
    EXPECT_EQ(Four({{3, 3}, {1, 1}}) + Four({{2, 2}, {3.5, 3.75}}), Four({{3, 3}, {1, 1}, {2, 2}, {3.5, 3.75}}));
    EXPECT_EQ(Four({{2, 2}, {1, 1}}) + Four({{3, 3}, {0, 0}}), Four({{6, 6}, {5, 5}, {3, 3}, {0, 0}}));
}

TEST(MapConcatenation, EqualValuesLiftNothing)
{
    const CPolyPosMap joined = Four({{3, 3}, {4, 4}}) + Four({{1, 1}, {4, 4}});
    EXPECT_EQ(joined, Four({{3, 3}, {4, 4}, {1, 1}, {4, 4}}));
    EXPECT_TRUE(joined.IsInvalid());
    EXPECT_EQ(Four({{3, 3}, {1, 1}}) + Four({{3, 3}, {2, 2}}), Four({{3, 3}, {1, 1}, {3, 3}, {2, 2}}));
}

TEST(MapConcatenation, TheComparisonHasNoTolerance)
{
    const double below = std::nextafter(4.0, 0.0);
    EXPECT_EQ(Four({{3, 3}, {4, 4}}) + Four({{1, 1}, {below, below}}),
              Four({{3, 3}, {4, 4}, {5, 5}, {below + 4, below + 4}}));
    const double above = std::nextafter(3.0, 4.0);
    EXPECT_EQ(Four({{3, 3}, {1, 1}}) + Four({{above, above}, {2, 2}}), Four({{7, 7}, {5, 5}, {above, above}, {2, 2}}));
}

TEST(MapConcatenation, TheDirectionOfTheFirstAloneDecides)
{
    EXPECT_EQ(Four({{1, 1}, {2, 2}}) + Four({{3, 3}, {1, 1}}), Four({{1, 1}, {2, 2}, {7, 7}, {5, 5}}));
    EXPECT_EQ(Four({{2, 2}, {1, 1}}) + Four({{0, 0}, {3, 3}}), Four({{2, 2}, {1, 1}, {0, 0}, {3, 3}}));
}

TEST(MapConcatenation, ASingleJointAndAColumnThatStandsStillRunUpward)
{
    EXPECT_EQ(FiveToThree({{3, 2}}) + FiveToThree({{1, 1}}), FiveToThree({{3, 2}, {6, 4}}));
    EXPECT_EQ(FiveToThree({{3, 2}}) + FiveToThree({{4, 3}}), FiveToThree({{3, 2}, {4, 3}}));
    EXPECT_EQ(FiveToThree({{2, 2}, {2, 1}}) + FiveToThree({{1, 1}, {1, 0}}),
              FiveToThree({{2, 2}, {2, 1}, {6, 1}, {6, 0}}));
}

TEST(MapConcatenation, OneLapIsAddedAtMost)
{
    EXPECT_EQ(Four({{8, 8}, {9, 9}}) + Four({{0, 0}, {1, 1}}), Four({{8, 8}, {9, 9}, {4, 4}, {5, 5}}));
}

TEST(MapConcatenation, ASideOfOpenSizeIsLiftedByNothing)
{
    EXPECT_EQ(Map({{0, 3}}, 0, 4) + Map({{0, 2}}, 0, 4), Map({{0, 3}, {0, 6}}, 0, 4));
    EXPECT_EQ(Map({{2, 0}}, 4, 0) + Map({{1, -1}}, 4, 0), Map({{2, 0}, {5, -1}}, 4, 0));
}

// What does not fit

TEST(MapConcatenation, MapsBetweenPolylinesOfOtherSizesDoNotFit)
{
    const Pairs pairs = {{0, 0}, {1, 1}};
    EXPECT_EQ(Map(pairs, 3, 4) + Map(pairs, 4, 4), NoMap());
    EXPECT_EQ(Map(pairs, 4, 3) + Map(pairs, 4, 4), NoMap());
    EXPECT_EQ(Map(pairs, 3, 4) + Map(pairs, 4, 3), NoMap());
}

TEST(MapConcatenation, CountsAreComparedForMapsWithoutJointsToo)
{
    const Pairs pairs = {{0, 0}, {1, 1}};
    EXPECT_EQ(Map({}, 3, 4) + Map(pairs, 4, 4), NoMap());
    EXPECT_EQ(Map(pairs, 4, 4) + Map({}, 4, 3), NoMap());
    EXPECT_EQ(NoMap() + Map(pairs, 4, 4), NoMap());
    EXPECT_EQ(Map(pairs, 4, 4) + NoMap(), NoMap());
}

TEST(MapConcatenation, AMapWithoutJointsAddsNothing)
{
    const CPolyPosMap map = FiveToThree({{1, 2}, {3, 0}, {3, 0}});
    EXPECT_EQ(FiveToThree({}) + map, map);
    EXPECT_EQ(map + FiveToThree({}), map);
    EXPECT_EQ(FiveToThree({}) + FiveToThree({}), FiveToThree({}));
}

TEST(MapConcatenation, AnInvalidMapGivesNone)
{
    const CPolyPosMap invalid = Four(turnsBack);
    const CPolyPosMap map = Four({{0, 0}, {1, 1}});
    ASSERT_TRUE(invalid.IsInvalid());
    EXPECT_EQ(invalid + map, NoMap());
    EXPECT_EQ(map + invalid, NoMap());
    EXPECT_EQ(invalid + invalid, NoMap());
    EXPECT_EQ(invalid + Four({}), NoMap());
    EXPECT_EQ(Four({}) + invalid, NoMap());
}

// In place

TEST(MapConcatenationInPlace, ReplacesJointsAndCounts)
{
    CPolyPosMap map = FiveToThree({{3, 2}, {5, 3}});
    CPolyPosMap& returned = map += FiveToThree({{0, 0}, {1, 1}});
    EXPECT_EQ(&returned, &map);
    EXPECT_EQ(map, FiveToThree({{3, 2}, {5, 3}, {5, 3}, {6, 4}}));
}

TEST(MapConcatenationInPlace, AnInvalidMapStaysAsItIs)
{
    CPolyPosMap map = FiveToThree(turnsBack);
    CPolyPosMap& returned = map += FiveToThree({{0, 0}, {1, 1}});
    EXPECT_EQ(&returned, &map);
    EXPECT_EQ(map, FiveToThree(turnsBack));
}

TEST(MapConcatenationInPlace, AMapThatMeetsOneThatDoesNotFitBecomesEmpty)
{
    CPolyPosMap map = Four({{0, 0}, {1, 1}});
    map += Four(turnsBack);
    EXPECT_EQ(map, NoMap());
    map = Four({{0, 0}, {1, 1}});
    map += FiveToThree({{1, 1}, {2, 2}});
    EXPECT_EQ(map, NoMap());
}

TEST(MapConcatenationInPlace, AMapCanBeSetBehindItself)
{
    CPolyPosMap map = Four({{0, 1}, {2, 3}});
    map += map;
    EXPECT_EQ(map, Four({{0, 1}, {2, 3}, {0, 1}, {2, 3}}));
}

// Against a second implementation

TEST(MapConcatenation, AgreesWithASecondImplementation)
{
    RandomMaps random(34);
    int joined = 0;
    for (int i = 0; i < 20000; ++i)
    {
        const int sourceCount = random.Count();
        const int destinationCount = random.Count();
        const auto some = [&random](int source, int destination) {
            return random.OneIn(12) ? random.AnyMap(source, destination) : random.ValidMap(source, destination);
        };
        const CPolyPosMap a = some(sourceCount, destinationCount);
        const CPolyPosMap b =
            some(random.OneIn(20) ? random.Count() : sourceCount, random.OneIn(20) ? random.Count() : destinationCount);
        const CPolyPosMap expected = reference::To(reference::Concatenate(reference::From(a), reference::From(b)));
        ASSERT_EQ(a + b, expected) << ::testing::PrintToString(a) << " and " << ::testing::PrintToString(b);
        joined += expected.PosPairs().size() > a.PosPairs().size() ? 1 : 0;
    }
    EXPECT_GT(joined, 10000);
}
