// Eight threads run every function of the library: those that only read on objects that all threads share, those that
// change something on objects of each thread's own. The answers are those of one thread, bit for bit.

#include "support/catalogue/Catalogue.h"

#include <Standard_ConstructionError.hxx>
#include <StdFail_NotDone.hxx>

#include <gtest/gtest.h>

#include <atomic>
#include <functional>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace math::test
{

namespace
{

constexpr int ThreadCount = 8;
constexpr int VariantCount = 4;
constexpr int RoundCount = 12;

/// Runs one function on all threads at the same time, from the same moment on.
void OnAllThreads(const std::function<void(int)>& work)
{
    std::atomic<int> ready{0};
    std::vector<std::thread> threads;
    for (int number = 0; number < ThreadCount; ++number)
    {
        threads.emplace_back([&, number] {
            ++ready;
            while (ready < ThreadCount)
            {
                std::this_thread::yield();
            }
            work(number);
        });
    }
    for (std::thread& thread : threads)
    {
        thread.join();
    }
}

std::vector<std::unique_ptr<Setting>> MakeSettings()
{
    std::vector<std::unique_ptr<Setting>> settings;
    for (int variant = 0; variant < VariantCount; ++variant)
    {
        settings.push_back(std::make_unique<Setting>(variant));
    }
    return settings;
}

/// The answers of all operations, each on a setting made for it.
template <typename Operations, typename SettingFor>
std::vector<Answer> Answers(const Operations& operations, const SettingFor& settingFor)
{
    std::vector<Answer> answers(operations.size());
    for (std::size_t i = 0; i < operations.size(); ++i)
    {
        operations[i].run(settingFor(), answers[i]);
    }
    return answers;
}

/// What went wrong, the operation named; threads do not call the test framework.
template <typename Operations>
std::string Differing(const Operations& operations, const std::vector<Answer>& answers,
                      const std::vector<Answer>& expected)
{
    std::string names;
    for (std::size_t i = 0; i < operations.size(); ++i)
    {
        if (answers[i] != expected[i])
        {
            names += std::string(operations[i].name) + "\n";
        }
    }
    return names;
}

} // namespace

/// The threads come first, and one thread alone afterwards: nobody has called anything before that could be remembered.
TEST(Threads, ReadSharedObjectsAtTheSameTime)
{
    const std::vector<ConstOperation> operations = AllConstOperations();
    ASSERT_FALSE(operations.empty());
    const auto settings = MakeSettings();
    std::vector<std::vector<std::vector<Answer>>> answers(ThreadCount);
    OnAllThreads([&](int number) {
        for (int round = 0; round < RoundCount; ++round)
        {
            // Threads of one round work on one setting.
            const auto variant = static_cast<std::size_t>(round % VariantCount);
            answers[static_cast<std::size_t>(number)].push_back(
                Answers(operations, [&]() -> const Setting& { return *settings[variant]; }));
        }
    });
    for (std::size_t variant = 0; variant < settings.size(); ++variant)
    {
        const Setting alone(static_cast<int>(variant));
        const std::vector<Answer> expected = Answers(operations, [&]() -> const Setting& { return alone; });
        for (const auto& rounds : answers)
        {
            ASSERT_EQ(rounds.size(), static_cast<std::size_t>(RoundCount));
            for (std::size_t round = variant; round < rounds.size(); round += settings.size())
            {
                EXPECT_EQ(Differing(operations, rounds[round], expected), "") << "variant " << variant;
            }
        }
        EXPECT_TRUE(settings[variant]->Bits() == alone.Bits()) << "the shared objects, variant " << variant;
    }
}

TEST(Threads, ChangeObjectsOfTheirOwnThatWereCopiedFromSharedOnes)
{
    const std::vector<ChangingOperation> operations = AllChangingOperations();
    ASSERT_FALSE(operations.empty());
    const auto settings = MakeSettings();
    const auto answersOnCopiesOf = [&](const Setting& setting) {
        std::unique_ptr<Setting> own;
        return Answers(operations, [&]() -> Setting& {
            own = std::make_unique<Setting>(setting);
            return *own;
        });
    };
    std::vector<std::vector<std::vector<Answer>>> answers(ThreadCount);
    OnAllThreads([&](int number) {
        for (int round = 0; round < RoundCount; ++round)
        {
            const auto variant = static_cast<std::size_t>(round % VariantCount);
            answers[static_cast<std::size_t>(number)].push_back(answersOnCopiesOf(*settings[variant]));
        }
    });
    for (std::size_t variant = 0; variant < settings.size(); ++variant)
    {
        const Setting alone(static_cast<int>(variant));
        const std::vector<Answer> expected = answersOnCopiesOf(alone);
        for (const auto& rounds : answers)
        {
            ASSERT_EQ(rounds.size(), static_cast<std::size_t>(RoundCount));
            for (std::size_t round = variant; round < rounds.size(); round += settings.size())
            {
                EXPECT_EQ(Differing(operations, rounds[round], expected), "") << "variant " << variant;
            }
        }
        EXPECT_TRUE(settings[variant]->Bits() == alone.Bits()) << "the objects copied from, variant " << variant;
    }
}

/// They are not declared const, yet change nothing.
TEST(Threads, CallFunctionsThatOnlyReadThoughTheyAreNotConst)
{
    Setting shared(0);
    const Answer bits = shared.Bits();
    const CPolyPosMap inverse = !shared.map;
    const auto ask = [&] {
        return Answer() << shared.curved.GetSplitSegment(0.25, true) << shared.curved.GetSplitSegment(0.25, 0.75)
                        << shared.forward.Splite(shared.position) << shared.map.IsInvertTo(inverse);
    };
    const Answer expected = ask();
    std::vector<int> wrong(ThreadCount, 0);
    OnAllThreads([&](int number) {
        for (int round = 0; round < 50; ++round)
        {
            wrong[static_cast<std::size_t>(number)] += ask() != expected;
        }
    });
    EXPECT_EQ(wrong, std::vector<int>(ThreadCount, 0));
    EXPECT_TRUE(shared.Bits() == bits);
}

/// Exceptions that the library raises inside, or lets out, belong to the thread that called.
TEST(Threads, MeetFailuresAtTheSameTime)
{
    const DPOINT2 place(1, 2);
    std::vector<int> wrong(ThreadCount, 0);
    OnAllThreads([&](int number) {
        int& count = wrong[static_cast<std::size_t>(number)];
        for (int round = 0; round < 200; ++round)
        {
            DPOINT2 point;
            DPOINT2 second;
            count += Intersect_LineWithLine(place, place, {0, 0}, {1, 1}, &point) != 0;
            count += Intersect_CircleWithCircle(place, -1, {0, 0}, 1, &point, &second) != 0;
            count += Intersect({1, 2, 1, 2}, {0, 0, 1, 1}, &point) != 0;
            try
            {
                CSegment(place, place).GetStartVector();
                ++count;
            }
            catch (const Standard_ConstructionError&)
            {
            }
            try
            {
                IntAna2d_AnaIntersection().Point(1);
                ++count;
            }
            catch (const StdFail_NotDone&)
            {
            }
        }
    });
    EXPECT_EQ(wrong, std::vector<int>(ThreadCount, 0));
}

} // namespace math::test
