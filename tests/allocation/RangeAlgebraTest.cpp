// The algebra of ranges with each request for memory refused in turn, in every way in which two ranges can lie: every
// answer is a list made in one place of its own, and each such place has to let go of what it has made so far.

#include "allocation/Requests.h"
#include "math/PosRangeD.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <new>
#include <vector>

namespace math::test
{

namespace
{

/// Every range between halves of a polyline of three segments, and one that is invalid: forward, wrapping and whole.
std::vector<PosRangeD> AllRanges()
{
    std::vector<PosRangeD> ranges = {PosRangeD()};
    for (int start = 0; start <= 6; ++start)
    {
        for (int end = 0; end <= 6; ++end)
        {
            ranges.emplace_back(0.5 * start, 0.5 * end);
        }
    }
    return ranges;
}

/// Refuses the first request of an operation on ranges, then the second, and so on until it gets all it asks for.
///
/// @return how many were refused
template <typename Operation>
std::size_t RefuseEachRequest(const Operation& operation)
{
    const std::vector<PosRangeD> undisturbed = operation();
    for (std::size_t refused = 1;; ++refused)
    {
        const std::size_t aliveBefore = Requests::Alive();
        std::vector<PosRangeD> answer;
        bool hasThrown = false;
        Requests::Begin(refused);
        try
        {
            answer = operation();
        }
        catch (const std::bad_alloc&)
        {
            hasThrown = true;
        }
        Requests::End();
        EXPECT_EQ(hasThrown, Requests::HasRefused()) << "request " << refused;
        if (!Requests::HasRefused())
        {
            EXPECT_EQ(answer, undisturbed);
            return refused - 1;
        }
        EXPECT_EQ(Requests::Alive(), aliveBefore) << "request " << refused;
    }
}

} // namespace

TEST(RangeAlgebraWithoutMemory, RaisesAndLeaksNothingHoweverTwoRangesLie)
{
    std::size_t refused = 0;
    for (const PosRangeD& first : AllRanges())
    {
        for (const PosRangeD& second : AllRanges())
        {
            const PosRangeD firstBefore = first;
            const PosRangeD secondBefore = second;
            refused += RefuseEachRequest([&] { return first - second; });
            refused += RefuseEachRequest([&] { return first + second; });
            refused += RefuseEachRequest([&] { return first * second; });
            EXPECT_TRUE(first.start == firstBefore.start && first.end == firstBefore.end);
            EXPECT_TRUE(second.start == secondBefore.start && second.end == secondBefore.end);
        }
    }
    // Nearly all pairs have a sum and a difference, and a list with anything in it is at least one request.
    EXPECT_GT(refused, 2U * 50U * 50U);
}

TEST(RangeAlgebraWithoutMemory, CutsNothingAndLeaksNothingWhereverARangeIsCut)
{
    std::size_t refused = 0;
    for (PosRangeD range : AllRanges())
    {
        for (int place = 0; place <= 12; ++place)
        {
            refused += RefuseEachRequest([&] { return range.Splite(0.25 * place); });
        }
    }
    // Every range but the invalid one gives itself or its two pieces.
    EXPECT_EQ(refused, 49U * 13U);
}

} // namespace math::test
