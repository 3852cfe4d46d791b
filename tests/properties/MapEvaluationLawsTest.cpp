#include "MapGrid.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of one map, numbered as in docs/maps.md. The grid: all normal maps of up to four joints on whole positions of
// two closed outlines of two segments, and all of up to three joints on halves. On whole positions every slope is a power
// of two or 0, so everything is exact. After either come maps at random with more joints in smaller parts.

namespace
{

constexpr int Count = 2;

const std::vector<CPolyPosMap>& Grid()
{
    static const std::vector<CPolyPosMap> maps = WithFineMaps(AllMapsUpTo(4, Count, Count, 1.0), 201, 500);
    return maps;
}

const std::vector<CPolyPosMap>& HalvesGrid()
{
    static const std::vector<CPolyPosMap> maps = WithFineMaps(AllMapsUpTo(3, Count, Count, 0.5), 202, 500);
    return maps;
}

/// Visits each map until one breaks a law.
template <typename Visit>
void ForMaps(const std::vector<CPolyPosMap>& maps, Visit visit)
{
    for (const CPolyPosMap& map : maps)
    {
        visit(map);
        if (testing::Test::HasFailure())
        {
            return;
        }
    }
}

CPolyPosMap ShiftedByLaps(CPolyPosMap map, int sourceLaps, int destinationLaps)
{
    for (auto& joint : map.PosPairs())
    {
        joint.first += sourceLaps * map.SrcSegmentCount();
        joint.second += destinationLaps * map.DstSegmentCount();
    }
    return map;
}

CPolyPosMap Normalized(CPolyPosMap map)
{
    map.Normalize();
    return map;
}

CPolyPosMap WithoutNeedlessJoints(CPolyPosMap map, bool mergeStraight)
{
    map.Unique(mergeStraight);
    return map;
}

bool IsNegativeMultiple(double value, int count)
{
    return value < 0 && std::fmod(value, count) == 0;
}

bool IsSeam(double place)
{
    return std::fmod(place, Count) == 0;
}

/// The place where a full lap closes.
bool IsClosingPlace(const CPolyPosMap& map, double place)
{
    return IsFullLap(map, 1) && std::fmod(place - Lowest(map, 1), Count) == 0;
}

/// The two places lie strictly inside a jump: the one is its source, the other between its images.
bool IsInsideAJump(const CPolyPosMap& map, double source, double destination)
{
    const Pairs& pairs = map.PosPairs();
    for (std::size_t i = 1; i < pairs.size(); ++i)
    {
        for (int lap = -2; lap <= 2; ++lap)
        {
            const bool isThere = std::fmod(pairs[i].first - source, Count) == 0 && pairs[i].first == pairs[i - 1].first;
            if (isThere && LiesBetween(destination + lap * Count, pairs[i - 1].second, pairs[i].second))
            {
                return true;
            }
        }
    }
    return false;
}

bool Holds(const std::vector<double>& values, double value)
{
    return std::find(values.begin(), values.end(), value) != values.end();
}

} // namespace

// Normal form

TEST(MapEvaluationLaws, M1_NormalizeReachesNormalFormExceptFromBelowZeroAndOnOppositeColumns)
{
    int exceptions = 0;
    ForMaps(Grid(), [&](const CPolyPosMap& normal) {
        EXPECT_TRUE(normal.IsNormalize());
        EXPECT_EQ(Normalized(normal), normal);
        for (int laps = 0; laps < 25; ++laps)
        {
            const CPolyPosMap map = ShiftedByLaps(normal, laps % 5 - 2, laps / 5 - 2);
            const CPolyPosMap once = Normalized(map);
            // Laps of the destination are counted where the source is lowest: at the upper end, if the columns run opposite
            // ways.
            const bool isOpposite = !KeepsTheWay(map);
            const double counted = isOpposite ? Highest(map, 2) : Lowest(map, 2);
            const double inLap =
                IsNegativeMultiple(counted, Count) ? Count : counted - Count * std::floor(counted / Count);
            const double lowest = isOpposite ? inLap - (Highest(map, 2) - Lowest(map, 2)) : inLap;
            const bool isException =
                !map.IsNormalize() && (IsNegativeMultiple(Lowest(map, 1), Count) || lowest < 0 || lowest >= Count);
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(once.IsNormalize(), !isException) << Told(map);
            if (!isOpposite)
            {
                EXPECT_EQ(Normalized(once), normal) << Told(map);
            }
        }
    });
    EXPECT_GT(exceptions, 0);
}

TEST(MapEvaluationLaws, M2_NormalizeShiftsByWholeLaps)
{
    ForMaps(Grid(), [](const CPolyPosMap& normal) {
        for (int laps = 0; laps < 25; ++laps)
        {
            const CPolyPosMap map = ShiftedByLaps(normal, laps % 5 - 2, laps / 5 - 2);
            const CPolyPosMap once = Normalized(map);
            const double source = once.PosPairs().front().first - normal.PosPairs().front().first;
            const double destination = once.PosPairs().front().second - normal.PosPairs().front().second;
            EXPECT_EQ(once,
                      ShiftedByLaps(normal, static_cast<int>(source / Count), static_cast<int>(destination / Count)))
                << Told(map);
        }
    });
}

// Turned over, turned about

TEST(MapEvaluationLaws, M3_TheInverseCarriesEachImageBackExceptInsideJumpsAndFlats)
{
    int exceptions = 0;
    ForMaps(Grid(), [&](const CPolyPosMap& map) {
        EXPECT_EQ(!!map, map);
        const CPolyPosMap inverse = !map;
        for (double source = 0; source < Count; source += 0.25)
        {
            const std::vector<double> images = PlacesOf(map.MultyDouble(source, true, false), Count);
            for (double destination = 0; destination < Count; destination += 0.25)
            {
                if (IsClosingPlace(map, source) || IsClosingPlace(inverse, destination))
                {
                    continue; // told on one face only: M6
                }
                const bool there = Holds(images, destination);
                const bool back = Holds(PlacesOf(inverse.MultyDouble(destination, true, false), Count), source);
                const bool inJump = IsInsideAJump(map, source, destination);
                const bool inFlat = IsInsideAJump(inverse, destination, source);
                const bool isException = (inJump && !there) || (inFlat && !back);
                exceptions += isException ? 1 : 0;
                EXPECT_EQ(there == back, !isException) << source << ", " << destination << " of " << Told(map);
            }
        }
    });
    EXPECT_GT(exceptions, 0);
}

TEST(MapEvaluationLaws, M4_TheOrderOfTheWalkDoesNotChangeImages)
{
    ForMaps(Grid(), [](const CPolyPosMap& map) {
        CPolyPosMap turned = map;
        turned.Reverse();
        for (double place = -1; place <= 2 * Count; place += 0.125)
        {
            std::vector<double> images = turned * place;
            std::reverse(images.begin(), images.end());
            EXPECT_EQ(Images(images), Images(map * place)) << place << " of " << Told(map);
        }
        turned.Reverse();
        EXPECT_EQ(turned, map);
    });
}

// Evaluation

TEST(MapEvaluationLaws, M5_EvaluationIsWhatTheListSaysOnTheLapOfTheMap)
{
    int exceptions = 0;
    const auto check = [&](const CPolyPosMap& map) {
        const PosRangeD covered(Lowest(map, 1), Highest(map, 1));
        for (double place = -Count; place <= 2 * Count; place += 0.125)
        {
            const double onLap = PosRangeD::NormalizePos(place, covered, Count);
            EXPECT_EQ(Images(map * place), Images(RawImagesByHand(map, onLap))) << place << " of " << Told(map);
            const bool isEitherFace = IsSeam(place) || IsClosingPlace(map, place);
            if (isEitherFace)
            {
                continue;
            }
            // The stretch of a map at a single place reads as a whole lap, and the place a lap on as its far end.
            const bool isException = map.IsPoint(1) && place == Lowest(map, 1) + Count;
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(AreSamePlaces(PlacesOf(map * place, Count), PlacesByHand(map, place)), !isException)
                << place << " of " << Told(map);
        }
    };
    ForMaps(Grid(), check);
    ForMaps(HalvesGrid(), check);
    EXPECT_GT(exceptions, 0);
}

TEST(MapEvaluationLaws, M6_WithBothFacesAPlaceHasAllItsImagesExceptWhereALapClosesAwayFromTheSeam)
{
    int exceptions = 0;
    ForMaps(HalvesGrid(), [&](const CPolyPosMap& map) {
        for (double place = 0; place <= Count; place += 0.25)
        {
            const std::vector<double> all = PlacesByHand(map, place);
            const std::vector<double> found = PlacesOf(map.MultyDouble(place, true, false), Count);
            const bool closesHere = IsClosingPlace(map, place) && !IsSeam(place);
            const bool isException = closesHere && !AreSamePlaces(PlacesOf(map * place, Count), all);
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(AreSamePlaces(found, all), !isException) << place << " of " << Told(map);
            EXPECT_TRUE(std::includes(all.begin(), all.end(), found.begin(), found.end(),
                                      [](double a, double b) { return a < b - 1e-12; }));
        }
    });
    EXPECT_GT(exceptions, 0);
}

TEST(MapEvaluationLaws, M7_TheIndicesFrameAPosition)
{
    ForMaps(HalvesGrid(), [](const CPolyPosMap& map) {
        for (int side = 1; side <= 2; ++side)
        {
            const bool isUp = side == 1 ? map.PosPairs().back().first > map.PosPairs().front().first
                                        : map.PosPairs().back().second > map.PosPairs().front().second;
            for (double position = -0.25; position <= 2 * Count; position += 0.25)
            {
                const auto isBefore = [&](const std::pair<double, double>& joint) {
                    const double value = side == 1 ? joint.first : joint.second;
                    return isUp ? value < position : value > position;
                };
                const auto isAt = [&](const std::pair<double, double>& joint) {
                    return (side == 1 ? joint.first : joint.second) == position;
                };
                const Pairs& pairs = map.PosPairs();
                const int before = static_cast<int>(std::count_if(pairs.begin(), pairs.end(), isBefore));
                const int at = static_cast<int>(std::count_if(pairs.begin(), pairs.end(), isAt));
                const int size = static_cast<int>(pairs.size());
                EXPECT_EQ(map.GetMaxLeftIndex(position, side), before + at - 1) << position << " of " << Told(map);
                EXPECT_EQ(map.GetMinRightIndex(position, side), before == size ? -1 : before)
                    << position << " of " << Told(map);
            }
        }
    });
}

TEST(MapEvaluationLaws, M8_APositionIsOverTheRangeExactlyIfItHasNoImage)
{
    ForMaps(HalvesGrid(), [](const CPolyPosMap& map) {
        for (double place = 0; place <= Count && !map.IsPoint(1); place += 0.25)
        {
            EXPECT_EQ(map.IsOverRange(place, 1), (map * place).empty()) << place << " of " << Told(map);
        }
    });
}

// Joints taken out and put in

TEST(MapEvaluationLaws, M9_DroppingNeedlessJointsTwiceIsDroppingThemOnce)
{
    for (const auto* grid : {&Grid(), &HalvesGrid()})
    {
        for (bool mergeStraight : {false, true})
        {
            ForMaps(*grid, [&](const CPolyPosMap& map) {
                const CPolyPosMap once = WithoutNeedlessJoints(map, mergeStraight);
                EXPECT_EQ(WithoutNeedlessJoints(once, mergeStraight), once) << Told(map);
            });
        }
    }
}

TEST(MapEvaluationLaws, M10_DroppingNeedlessJointsMovesNoImageExceptThoseInsideAJump)
{
    int exceptions = 0;
    ForMaps(Grid(), [&](const CPolyPosMap& map) {
        const CPolyPosMap thin = WithoutNeedlessJoints(map, true);
        for (double place = 0; place < Count; place += 0.125)
        {
            const std::vector<double> before = PlacesByHand(map, place);
            const std::vector<double> after = PlacesByHand(thin, place);
            EXPECT_TRUE(std::includes(before.begin(), before.end(), after.begin(), after.end())) << Told(map);
            for (double image : before)
            {
                const bool isGone = !Holds(after, image);
                exceptions += isGone ? 1 : 0;
                EXPECT_TRUE(!isGone || IsInsideAJump(thin, place, image)) << place << " of " << Told(map);
            }
            EXPECT_EQ(PlacesByHand(WithoutNeedlessJoints(map, false), place), before) << place << " of " << Told(map);
        }
    });
    EXPECT_GT(exceptions, 0);
}

TEST(MapEvaluationLaws, M11_InsertGivesAJointAndMovesNoImage)
{
    ForMaps(Grid(), [](const CPolyPosMap& map) {
        for (int side = 1; side <= 2; ++side)
        {
            for (double position = 0; position <= 2 * Count; position += 0.25)
            {
                CPolyPosMap changed = map;
                const std::pair<double, double> joint = changed.Insert(position, side);
                const double value = side == 1 ? joint.first : joint.second;
                EXPECT_EQ(std::fmod(value - position, Count), 0) << position << " of " << Told(map);
                EXPECT_TRUE(std::find(changed.PosPairs().begin(), changed.PosPairs().end(), joint) !=
                            changed.PosPairs().end());
                for (double place = Lowest(map, 1); place <= Highest(map, 1); place += 0.125)
                {
                    const std::vector<double> before = RawImagesByHand(map, place);
                    std::vector<double> after = RawImagesByHand(changed, place);
                    // A joint inside a jump is an image that was passed over until then; one at the end of the map, flat
                    // beyond it, repeats or leads on from the end.
                    const bool isNewImage = place == joint.first && !Holds(before, joint.second);
                    if (isNewImage)
                    {
                        after.erase(std::find(after.begin(), after.end(), joint.second));
                    }
                    EXPECT_EQ(Images(after), Images(before)) << place << " of " << Told(map) << " with " << Two(joint);
                    EXPECT_TRUE(!isNewImage || side == 2) << Told(map) << " with " << Two(joint);
                }
            }
        }
    });
}

namespace
{

/// A side that goes up past 2n - 1, or down from above n + 1: the nodes of the lap before are put below it, and its last
/// joint is taken away in exchange. Nothing but the end of a jump is lost if that was the way past 2n - 1.
bool ReachesTooFarToFill(const CPolyPosMap& map, int side)
{
    const int count = CountOf(map, side);
    if (!RunsUp(map, side))
    {
        return Highest(map, side) > count + 1;
    }
    const Pairs& pairs = map.PosPairs();
    const std::pair<double, double> last = pairs.back();
    const std::pair<double, double> beforeLast = pairs[pairs.size() - 2];
    const bool endsInJump = side == 2 && beforeLast.first == last.first && beforeLast.second <= count;
    return Highest(map, side) > 2 * count - 1 && !endsInJump;
}

bool HasJointAtEachNode(const CPolyPosMap& map, int side)
{
    const Pairs& pairs = map.PosPairs();
    int nodes = 0;
    for (int node = 0; node < Count; ++node)
    {
        nodes += std::any_of(pairs.begin(), pairs.end(), [&](const std::pair<double, double>& joint) {
            return std::fmod((side == 1 ? joint.first : joint.second) - node, Count) == 0;
        });
    }
    return nodes == Count;
}

bool FillsWell(const CPolyPosMap& map, int side)
{
    CPolyPosMap filled = map;
    filled.FillAllSegmentNode(side);
    CPolyPosMap again = filled;
    again.FillAllSegmentNode(side);
    bool fillsWell =
        again == filled && (side == 2 || HasJointAtEachNode(filled, 1)) && (side == 1 || HasJointAtEachNode(filled, 2));
    // Off all joints, those that the nodes of the destination make of slopes of up to 4 included.
    for (double place = Lowest(map, 1) + 0x1p-9; place < Highest(map, 1) && fillsWell; place += 0x1p-5)
    {
        fillsWell = Images(filled * place) == Images(map * place);
    }
    return fillsWell;
}

} // namespace

TEST(MapEvaluationLaws, M12_FillingNodesGivesEachNodeAJointAndMovesNoImageExceptOnASideThatReachesTooFar)
{
    int exceptions = 0;
    const auto check = [&](const CPolyPosMap& map) {
        if (!RunsUp(map, 1) || map.IsPoint(1) || map.IsPoint(2))
        {
            return;
        }
        for (int side = 1; side <= 3; ++side)
        {
            // Of both sides the source is filled first.
            CPolyPosMap withSource = map;
            withSource.FillAllSegmentNode(side == 3 ? 1 : 0);
            const bool isException =
                (side != 2 && ReachesTooFarToFill(map, 1)) || (side != 1 && ReachesTooFarToFill(withSource, 2));
            exceptions += isException ? 1 : 0;
            EXPECT_EQ(FillsWell(map, side), !isException) << side << " of " << Told(map);
        }
    };
    ForMaps(Grid(), check);
    EXPECT_GT(exceptions, 50);
}

TEST(MapEvaluationLaws, M13_SmoothingMovesNoImageFurtherThanTheGreatestStep)
{
    Random random(213);
    int moved = 0;
    for (int round = 0; round < 1500 && !HasFailure(); ++round)
    {
        // A staircase of steps up to one half, along and up in turn.
        Pairs pairs = {{random.Number(0, 1), random.Number(0, 1)}};
        for (int step = random.Integer(2, 8); step > 0; --step)
        {
            pairs.emplace_back(pairs.back());
            (step % 2 == 0 ? pairs.back().first : pairs.back().second) += random.Number(0.01, 0.4);
        }
        const CPolyPosMap map = Map(pairs, 4, 4);
        const double greatest = random.Number(0, 0.5);
        CPolyPosMap filled = map;
        filled.FillAllSegmentNode(3);
        CPolyPosMap smooth = map;
        smooth.Smooth(greatest, random.Number(0, 0.5));
        for (int sample = 0; sample < 20; ++sample)
        {
            const double place = random.Number(Lowest(map, 1), Highest(map, 1));
            const std::vector<double> before = PlacesByHand(filled, place);
            const std::vector<double> after = PlacesByHand(smooth, place);
            ASSERT_EQ(before.size(), 1U);
            ASSERT_EQ(after.size(), 1U);
            const double distance = std::fabs(std::remainder(after[0] - before[0], 4));
            EXPECT_LE(distance, greatest + 1e-8) << place << " of " << Told(map) << " smoothed by " << greatest;
            moved += distance > 1e-8 ? 1 : 0;
        }
    }
    EXPECT_GT(moved, 1000);
}
