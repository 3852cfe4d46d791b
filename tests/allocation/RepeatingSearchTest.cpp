#include "allocation/Requests.h"
#include "intersect/Iteration.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

namespace math::test
{

namespace
{

struct Walk
{
    double place;
};

/// A search that steps from place to place by a list of successors and ends, by itself, at the last place.
class Successors
{
public:
    explicit Successors(std::vector<double> next) : m_next(std::move(next))
    {
    }

    bool operator()(Walk& walk) const
    {
        walk.place = m_next[static_cast<std::size_t>(walk.place)];
        return walk.place + 1.0 < static_cast<double>(m_next.size());
    }

private:
    std::vector<double> m_next;
};

/// The same with a record of all states.
void RunWithRecord(Walk& walk, const Successors& advance)
{
    std::vector<double> record;
    while (record.size() < 4096 && std::find(record.begin(), record.end(), walk.place) == record.end())
    {
        record.push_back(walk.place);
        if (!advance(walk))
        {
            return;
        }
    }
}

void CompareWithRecord(const Successors& advance)
{
    Walk recorded{0};
    RunWithRecord(recorded, advance);
    Walk walk{0};
    Requests::Begin(0);
    detail::RunUntilItRepeats(walk, advance);
    Requests::End();
    EXPECT_EQ(walk.place, recorded.place);
    EXPECT_EQ(Requests::Count(), 0U);
}

/// From place to place in order up to `length`, then back to `tail`.
Successors TailAndLoop(std::size_t tail, std::size_t length)
{
    std::vector<double> next;
    for (std::size_t i = 1; i < length; ++i)
    {
        next.push_back(static_cast<double>(i));
    }
    next.push_back(static_cast<double>(tail));
    next.push_back(0); // The place of the end, which is never reached.
    return Successors(next);
}

} // namespace

TEST(RepeatingSearch, IsLeftAtTheFirstStateThatComesAgain)
{
    for (const std::size_t length : {1U, 2U, 3U, 127U, 128U, 129U, 130U, 200U, 1000U, 4095U, 4096U, 4097U, 6000U})
    {
        for (const std::size_t tail : {0U, 1U, 2U, 64U, 127U, 128U, 129U, 199U, 999U, 4000U, 4095U, 4096U, 5999U})
        {
            if (tail < length)
            {
                SCOPED_TRACE(testing::Message() << "back to " << tail << " after " << length);
                CompareWithRecord(TailAndLoop(tail, length));
            }
        }
    }
}

TEST(RepeatingSearch, ThatEndsByItselfIsLeftThereAndOneWithoutEndAfter4096Steps)
{
    for (const std::size_t length : {2U, 3U, 128U, 129U, 130U, 1000U, 4095U, 4096U, 4097U, 4098U, 9000U, 20000U})
    {
        SCOPED_TRACE(testing::Message() << length << " places");
        std::vector<double> next;
        for (std::size_t i = 1; i < length; ++i)
        {
            next.push_back(static_cast<double>(i));
        }
        next.push_back(0);
        CompareWithRecord(Successors(next));
    }
}

TEST(RepeatingSearch, GivesTheSameAsARecordOfAllStatesOnRandomWalks)
{
    std::mt19937 random(7);
    for (int round = 0; round < 300; ++round)
    {
        const std::size_t size = 2 + random() % 20000;
        std::vector<double> next(size);
        for (double& place : next)
        {
            place = static_cast<double>(random() % size);
        }
        SCOPED_TRACE(round);
        CompareWithRecord(Successors(next));
    }
}

} // namespace math::test
