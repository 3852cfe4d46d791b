// Every operation with each of its requests for memory refused in turn. What has to hold:
// - std::bad_alloc passes out, and nothing else does;
// - nothing leaks: as many blocks are alive as before;
// - all operands are as before, bit for bit, those that the operation changes included. The one exception is assignment
//   to a polyline when the record of the other cannot be cloned.

#include "allocation/Requests.h"
#include "support/catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <new>
#include <string>

namespace math::test
{

namespace
{

constexpr int VariantCount = 3;

/// The assignment destroys the old record before it clones the new one.
bool MayLoseOldRecord(const std::string& name)
{
    return name == "CPolyline::operator=(CPolyline const&)";
}

/// The outcome of one call with a request refused.
struct Outcome
{
    bool hasRefused = false;
    bool hasThrown = false;
    std::size_t requests = 0;
};

template <typename Operation>
Outcome RunRefusing(const Operation& operation, Setting& setting, Answer& answer, std::size_t refused)
{
    Outcome outcome;
    Requests::Begin(refused);
    try
    {
        operation.run(setting, answer);
    }
    catch (const std::bad_alloc&)
    {
        outcome.hasThrown = true;
    }
    Requests::End();
    outcome.hasRefused = Requests::HasRefused();
    outcome.requests = Requests::Count();
    return outcome;
}

template <typename Operation>
Outcome RunUndisturbed(const Operation& operation, int variant, Answer& answer)
{
    Setting setting(variant);
    return RunRefusing(operation, setting, answer, 0);
}

/// Refuses the first request, then the second, and so on until the operation makes no more of them.
template <typename Operation>
void RefuseEachRequest(const Operation& operation, int variant)
{
    SCOPED_TRACE(std::string(operation.name) + ", variant " + std::to_string(variant));
    Answer undisturbed;
    RunUndisturbed(operation, variant, undisturbed);
    for (std::size_t refused = 1;; ++refused)
    {
        ASSERT_LT(refused, 10000U) << "the operation does not come to an end";
        const std::size_t aliveAtFirst = Requests::Alive();
        {
            Setting setting(variant);
            const Answer before = setting.Bits();
            const std::size_t aliveBefore = Requests::Alive();
            Answer answer;
            const Outcome outcome = RunRefusing(operation, setting, answer, refused);
            const std::size_t aliveAfter = Requests::Alive();
            if (!outcome.hasRefused)
            {
                EXPECT_FALSE(outcome.hasThrown);
                EXPECT_TRUE(answer == undisturbed);
                break;
            }
            if (outcome.hasThrown)
            {
                if (!MayLoseOldRecord(operation.name))
                {
                    EXPECT_EQ(aliveAfter, aliveBefore) << "request " << refused;
                    EXPECT_TRUE(setting.Bits() == before) << "request " << refused;
                }
            }
            else
            {
                // Sorting does without the room to work in that it was refused.
                EXPECT_TRUE(answer == undisturbed) << "request " << refused;
            }
        }
        EXPECT_EQ(Requests::Alive(), aliveAtFirst) << "request " << refused;
        EXPECT_EQ(Tag::alive, 0) << "request " << refused;
    }
}

template <typename Operations>
void RefuseEachRequestOfAll(const Operations& operations)
{
    for (const auto& operation : operations)
    {
        for (int variant = 0; variant < VariantCount; ++variant)
        {
            RefuseEachRequest(operation, variant);
        }
    }
}

template <typename Operation>
std::size_t CountRequests(const Operation& operation, int variant)
{
    Answer answer;
    return RunUndisturbed(operation, variant, answer).requests;
}

template <typename Operations>
void CompareRequestsWithCatalogue(const Operations& operations)
{
    for (const auto& operation : operations)
    {
        for (int variant = 0; variant < VariantCount; ++variant)
        {
            SCOPED_TRACE(std::string(operation.name) + ", variant " + std::to_string(variant));
            const std::size_t requests = CountRequests(operation, variant);
            switch (operation.memory)
            {
            case Memory::None:
                EXPECT_EQ(requests, 0U);
                break;
            case Memory::CallersVector:
                // A list that shrinks, or fills the room of the one that it replaces, needs none.
                EXPECT_TRUE(requests == 1U || (requests == 0U && variant > 0)) << requests;
                break;
            case Memory::Own:
                EXPECT_GE(requests, 1U);
                break;
            }
        }
    }
}

} // namespace

TEST(RefusedMemory, LeavesOperandsThatAreOnlyReadAsTheyWere)
{
    RefuseEachRequestOfAll(AllConstOperations());
}

TEST(RefusedMemory, LeavesObjectsThatWereToBeChangedAsTheyWere)
{
    RefuseEachRequestOfAll(AllChangingOperations());
}

TEST(Memory, IsAskedForOnlyWhereAResultOrAListNeedsIt)
{
    CompareRequestsWithCatalogue(AllConstOperations());
    CompareRequestsWithCatalogue(AllChangingOperations());
}

TEST(Memory, IsNotAskedForByPointerForms)
{
    for (const ConstOperation& operation : PointerForms)
    {
        EXPECT_EQ(operation.memory, Memory::None) << operation.name;
    }
}

TEST(Memory, IsNotAskedForByVectorFormsWhenTheVectorHasRoom)
{
    for (const ChangingOperation& operation : VectorForms)
    {
        for (int variant = 0; variant < VariantCount; ++variant)
        {
            Setting setting(variant);
            setting.points.reserve(16);
            setting.roots.reserve(16);
            Answer answer;
            EXPECT_EQ(RunRefusing(operation, setting, answer, 0).requests, 0U) << operation.name;
        }
    }
}

/// Each request of a copy refused: the old outline is left, or, where the record failed, the new one without a record.
TEST(PolylineAssignment, LeavesAUsableOutlineWhenMemoryRunsOut)
{
    const Setting setting(0);
    const CPolyline& source = setting.otherOutline;
    bool hasLostRecord = false;
    bool hasKeptAll = false;
    for (std::size_t refused = 1;; ++refused)
    {
        const int tagsBefore = Tag::alive;
        CPolyline target(setting.outline);
        const Answer before = Answer() << target;
        Requests::Begin(refused);
        bool hasThrown = false;
        try
        {
            target = source;
        }
        catch (const std::bad_alloc&)
        {
            hasThrown = true;
        }
        Requests::End();
        if (!Requests::HasRefused())
        {
            EXPECT_FALSE(hasThrown);
            EXPECT_TRUE((Answer() << target) == (Answer() << source));
            break;
        }
        ASSERT_TRUE(hasThrown) << "request " << refused;
        if (target.GetExtendParam() != nullptr)
        {
            EXPECT_TRUE((Answer() << target) == before) << "request " << refused;
            hasKeptAll = true;
        }
        else
        {
            CPolyline withoutRecord(source);
            withoutRecord.SetExtendParam(nullptr);
            EXPECT_TRUE((Answer() << target) == (Answer() << withoutRecord)) << "request " << refused;
            EXPECT_EQ(Tag::alive, tagsBefore) << "request " << refused;
            hasLostRecord = true;
        }
        // It goes on as if nothing had happened.
        target = source;
        EXPECT_TRUE((Answer() << target) == (Answer() << source));
        EXPECT_NE(target.GetExtendParam(), source.GetExtendParam());
        EXPECT_EQ(Tag::alive, tagsBefore + 1);
    }
    EXPECT_TRUE(hasKeptAll);
    EXPECT_TRUE(hasLostRecord);
}

TEST(PolylineCopy, ThatFailsOwnsNothing)
{
    const Setting setting(0);
    const int tagsBefore = Tag::alive;
    const std::size_t aliveBefore = Requests::Alive();
    // The list of nodes, the record, the list in the record.
    for (std::size_t refused = 1; refused <= 3; ++refused)
    {
        Requests::Begin(refused);
        EXPECT_THROW({ const CPolyline copy(setting.outline); }, std::bad_alloc);
        Requests::End();
        EXPECT_EQ(Tag::alive, tagsBefore);
        EXPECT_EQ(Requests::Alive(), aliveBefore);
    }
}

} // namespace math::test
