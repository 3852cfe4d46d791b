// Maps at random with each request for memory refused in turn: every shape of a map takes a way of its own through an
// operation, and each way has to let go of what it has made and leave both operands as they were.

#include "support/RandomMaps.h"
#include "allocation/Requests.h"
#include "math/CPolyPosMapUtilies.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstring>
#include <functional>
#include <new>
#include <string>
#include <vector>

namespace math::test
{

namespace
{

bool AreSameBits(const CPolyPosMap& a, const CPolyPosMap& b)
{
    const Pairs& first = a.PosPairs();
    const Pairs& second = b.PosPairs();
    return a.SrcSegmentCount() == b.SrcSegmentCount() && a.DstSegmentCount() == b.DstSegmentCount() &&
           first.size() == second.size() &&
           (first.empty() || std::memcmp(first.data(), second.data(), first.size() * sizeof(first[0])) == 0);
}

/// What an operation on two maps may do: change the first, read the second, take a position at random.
struct Operation
{
    const char* name;
    std::function<void(CPolyPosMap& map, const CPolyPosMap& other, double position)> run;
};

std::vector<Operation> AllOperations()
{
    using Map = CPolyPosMap;
    using Build = CPolyPosMapUtilies;
    return {
        {"a * b", [](Map& a, const Map& b, double) { a* b; }},
        {"a *= b", [](Map& a, const Map& b, double) { a *= b; }},
        {"a + b", [](Map& a, const Map& b, double) { a + b; }},
        {"a += b", [](Map& a, const Map& b, double) { a += b; }},
        {"a = b", [](Map& a, const Map& b, double) { a = b; }},
        {"!a", [](Map& a, const Map&, double) { !a; }},
        {"a * position", [](Map& a, const Map&, double position) { a* position; }},
        {"IsInvertTo", [](Map& a, const Map& b, double) { a.IsInvertTo(b); }},
        {"MultyDouble", [](Map& a, const Map&, double position) { a.MultyDouble(position, true, true); }},
        {"FillAllSegmentNode", [](Map& a, const Map&, double) { a.FillAllSegmentNode(3); }},
        {"Smooth", [](Map& a, const Map&, double) { a.Smooth(0.5, 0.5); }},
        {"Unique", [](Map& a, const Map&, double) { a.Unique(true); }},
        {"Normalize", [](Map& a, const Map&, double) { a.Normalize(); }},
        {"Insert", [](Map& a, const Map&, double position) { a.Insert(position, 1); }},
        {"Insert on the destination", [](Map& a, const Map&, double position) { a.Insert(position, 2); }},
        {"Split", [](Map& a, const Map&, double position) { a.Split(position, 1); }},
        {"Split of the destination", [](Map& a, const Map&, double position) { a.Split(position, 2); }},
        {"ReverseDirection", [](Map& a, const Map&, double) { a.ReverseDirection(3); }},
        {"CombineTwonMapWithSameDst", [](Map& a, const Map& b, double) { Build::CombineTwonMapWithSameDst(a, b); }},
        {"CombineTwonMapWithSameSrc", [](Map& a, const Map& b, double) { Build::CombineTwonMapWithSameSrc(a, b); }},
        {"CombineTwoMapStandalone", [](Map& a, const Map& b, double) { Build::CombineTwoMapStandalone(a, b); }},
        {"ExtendMap", [](Map& a, const Map&, double) { Build::ExtendMap(a, 2, true, true, false); }},
        {"RemoveOpenRangeFromMap",
         [](Map& a, const Map&, double) { Build::RemoveOpenRangeFromMap(a, PosRangeD(0, 1), true); }},
        {"GetSegmentMapFronPosMap", [](Map& a, const Map&, double) { Build::GetSegmentMapFronPosMap(a); }},
    };
}

/// Refuses the first request, then the second, and so on until the operation gets all it asks for.
///
/// @return how many refusals led to an exception
std::size_t RefuseEachRequest(const Operation& operation, const CPolyPosMap& map, const CPolyPosMap& other,
                              double position)
{
    CPolyPosMap undisturbed = map;
    operation.run(undisturbed, other, position);
    std::size_t exceptions = 0;
    for (std::size_t refused = 1; refused < 10000; ++refused)
    {
        CPolyPosMap changed = map;
        const CPolyPosMap untouched = other;
        const std::size_t aliveBefore = Requests::Alive();
        bool hasThrown = false;
        Requests::Begin(refused);
        try
        {
            operation.run(changed, other, position);
        }
        catch (const std::bad_alloc&)
        {
            hasThrown = true;
        }
        Requests::End();
        const std::size_t aliveAfter = Requests::Alive();
        EXPECT_TRUE(AreSameBits(other, untouched)) << operation.name << ", request " << refused;
        EXPECT_TRUE(AreSameBits(changed, hasThrown ? map : undisturbed)) << operation.name << ", request " << refused;
        if (hasThrown)
        {
            EXPECT_EQ(aliveAfter, aliveBefore) << operation.name << ", request " << refused;
            ++exceptions;
        }
        if (!Requests::HasRefused())
        {
            EXPECT_FALSE(hasThrown) << operation.name;
            return exceptions;
        }
    }
    ADD_FAILURE() << operation.name << " does not come to an end";
    return exceptions;
}

} // namespace

TEST(MapsWithoutMemory, RaiseLeakNothingAndLeaveBothOperandsWhateverTheirShape)
{
    RandomMaps random(707);
    const std::vector<Operation> operations = AllOperations();
    std::vector<std::size_t> exceptions(operations.size(), 0);
    for (int round = 0; round < 300 && !::testing::Test::HasFailure(); ++round)
    {
        // Half of the pairs fit together, as for a composition.
        const int between = 1 + random.Below(4);
        const CPolyPosMap map = random.ValidMap(1 + random.Below(4), between);
        const CPolyPosMap other = random.ValidMap(random.OneIn(2) ? between : 1 + random.Below(4), 1 + random.Below(4));
        const double position = random.Position(map.SrcSegmentCount());
        for (std::size_t i = 0; i < operations.size(); ++i)
        {
            exceptions[i] += RefuseEachRequest(operations[i], map, other, position);
        }
    }
    for (std::size_t i = 0; i < operations.size(); ++i)
    {
        const std::string name = operations[i].name;
        // These work in the list that is there.
        const bool needsNoMemory = name == "Unique" || name == "Normalize" || name == "ReverseDirection";
        EXPECT_EQ(exceptions[i] == 0, needsNoMemory) << name << " raised " << exceptions[i];
    }
}

} // namespace math::test
