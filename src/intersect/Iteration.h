#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>

namespace math::detail
{

/// Takes a number of steps, fewer if the search ends by itself.
///
/// @return whether the search goes on
template <typename State, typename Advance>
bool TakeSteps(State& state, std::size_t steps, const Advance& advance)
{
    for (std::size_t step = 0; step < steps; ++step)
    {
        if (!advance(state))
        {
            return false;
        }
    }
    return true;
}

template <typename State>
bool HasSameBits(const State& a, const State& b)
{
    return std::memcmp(&a, &b, sizeof(State)) == 0;
}

/// The number of steps in which a search comes round to one of its states, by Brent's method.
///
/// @return the number; 0 if the search ends by itself, or has not come round twice within `mostSteps`
template <typename State, typename Advance>
std::size_t FindPeriod(const State& beginning, std::size_t mostSteps, const Advance& advance)
{
    State mark = beginning;
    State current = beginning;
    std::size_t sinceMark = 0;
    std::size_t untilNextMark = 1;
    for (std::size_t step = 0; step < mostSteps && advance(current); ++step)
    {
        ++sinceMark;
        if (HasSameBits(mark, current))
        {
            return sinceMark;
        }
        if (sinceMark == untilNextMark)
        {
            mark = current;
            sinceMark = 0;
            untilNextMark *= 2;
        }
    }
    return 0;
}

/// Runs a search to its own end, or to the first state that it was in before, or for 4096 steps.
///
/// `advance` takes one step on a state made of doubles alone and tells whether the search goes on. A step depends on
/// nothing but the state, so a state that comes again means a search that would never end; it is left there. A search
/// that ends by itself within 4096 steps is never touched; one that has neither ended nor come round by then is left
/// where it stands. Nearly all end within a few dozen steps: only after 128 is a search run again from its beginning and
/// its states compared, bit by bit.
template <typename State, typename Advance>
void RunUntilItRepeats(State& state, const Advance& advance)
{
    static_assert(std::is_trivially_copyable_v<State> && sizeof(State) % sizeof(double) == 0);
    constexpr std::size_t stepsWithoutComparison = 128;
    constexpr std::size_t mostSteps = 4096;

    const State beginning = state;
    if (!TakeSteps(state, stepsWithoutComparison, advance))
    {
        return;
    }
    // Enough steps to find every period that shows within mostSteps.
    const std::size_t period = FindPeriod(beginning, 4 * mostSteps, advance);
    state = beginning;
    if (period == 0)
    {
        TakeSteps(state, mostSteps, advance);
        return;
    }
    // Of two walks one period apart, the later one comes upon the first state that comes again when they meet.
    State earlier = beginning;
    std::size_t steps = std::min(period, mostSteps);
    TakeSteps(state, steps, advance);
    for (; steps < mostSteps && !HasSameBits(earlier, state); ++steps)
    {
        advance(earlier);
        advance(state);
    }
}

} // namespace math::detail
