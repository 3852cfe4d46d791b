// How many blocks of memory an operation on maps asks for, as its operands grow.

#include "allocation/Requests.h"
#include "math/CPolyPosMap.h"
#include "math/CPolyPosMapUtilies.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <random>
#include <utility>
#include <vector>

namespace math::test
{

namespace
{

constexpr std::size_t Few = 100;
constexpr std::size_t Many = 10000;

/// A list that grows by doubling asks for 7 blocks more when it grows to `Many` elements in place of `Few`.
constexpr std::size_t Doublings = 7;

/// A map whose columns both rise, in steps at random, from `sourceStart` and 0 once round.
CPolyPosMap RisingMap(std::size_t joints, double sourceStart, unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<double> source(1, 0.0);
    std::vector<double> destination(1, 0.0);
    for (std::size_t i = 1; i < joints; ++i)
    {
        source.push_back(source.back() + 0.25 + static_cast<double>(random() % 1000) / 1000.0);
        destination.push_back(destination.back() + 0.25 + static_cast<double>(random() % 1000) / 1000.0);
    }
    std::vector<std::pair<double, double>> pairs;
    for (std::size_t i = 0; i < joints; ++i)
    {
        const double scale = static_cast<double>(joints);
        pairs.emplace_back(sourceStart + source[i] / source.back() * scale,
                           destination[i] / destination.back() * scale);
    }
    return {pairs, static_cast<int>(joints), static_cast<int>(joints)};
}

/// Requests of one call on two maps of so many joints that follow one another.
template <typename Operation>
std::size_t RequestsWith(std::size_t joints, bool isOverSeam, Operation operation)
{
    CPolyPosMap first = RisingMap(joints, 0.0, 1);
    const CPolyPosMap second = RisingMap(joints, isOverSeam ? static_cast<double>(joints / 2) : 0.0, 2);
    Requests::Begin(0);
    operation(first, second);
    Requests::End();
    return Requests::Count();
}

/// As many blocks for few joints as for many, but for lists of the result that grow by doubling.
template <typename Operation>
void ExpectBlocksDoNotGrow(Operation operation, std::size_t growingLists = 0)
{
    for (const bool isOverSeam : {false, true})
    {
        const std::size_t few = RequestsWith(Few, isOverSeam, operation);
        const std::size_t many = RequestsWith(Many, isOverSeam, operation);
        EXPECT_GE(few, 1U);
        EXPECT_LE(many, few + growingLists * Doublings) << "over the seam: " << isOverSeam;
    }
}

} // namespace

TEST(Composition, AsksForANumberOfBlocksThatDoesNotGrowWithTheJoints)
{
    ExpectBlocksDoNotGrow([](CPolyPosMap& first, const CPolyPosMap& second) {
        const CPolyPosMap both = first * second;
        EXPECT_GT(both.PosPairs().size(), 1U);
    });
}

TEST(Filling, AsksForANumberOfBlocksThatDoesNotGrowWithTheJoints)
{
    ExpectBlocksDoNotGrow([](CPolyPosMap& map, const CPolyPosMap&) { map.FillAllSegmentNode(3); });
}

TEST(Smoothing, AsksForANumberOfBlocksThatDoesNotGrowWithTheJoints)
{
    ExpectBlocksDoNotGrow([](CPolyPosMap& map, const CPolyPosMap&) { map.Smooth(0.5, 0.5); });
}

TEST(SegmentLists, AskForOneListThatGrows)
{
    ExpectBlocksDoNotGrow(
        [](CPolyPosMap& map, const CPolyPosMap&) {
            EXPECT_FALSE(CPolyPosMapUtilies::GetSegmentMapFronPosMap(map).empty());
        },
        1);
}

TEST(NormalForm, AsksForNoMemory)
{
    for (const std::size_t joints : {Few, Many})
    {
        EXPECT_EQ(RequestsWith(joints, false, [](CPolyPosMap& map, const CPolyPosMap&) { map.Unique(true); }), 0U);
    }
}

TEST(Evaluation, AsksForTheBlockOfItsAnswerAlone)
{
    for (const std::size_t joints : {Few, Many})
    {
        EXPECT_EQ(RequestsWith(joints, false,
                               [](CPolyPosMap& map, const CPolyPosMap&) { EXPECT_EQ((map * 1.5).size(), 1U); }),
                  1U);
    }
}

} // namespace math::test
