#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <type_traits>
#include <vector>

namespace math::detail
{

/// Runs a search to its own end, or to the first state that it was in before.
///
/// `advance` takes one step on a state made of doubles alone and tells whether the search goes on. A step depends on
/// nothing but the state, so a state that comes again means a search that would never end; it is left there. A search
/// that ends by itself is never touched. Nearly all do so within a few dozen steps: only then is it run again with a
/// record of its states, compared bit by bit.
template <typename State, typename Advance>
void RunUntilItRepeats(State& state, const Advance& advance)
{
    static_assert(std::is_trivially_copyable_v<State> && sizeof(State) % sizeof(double) == 0);
    constexpr std::size_t stepsWithoutRecord = 128;
    constexpr std::size_t mostSteps = 4096;

    const State beginning = state;
    for (std::size_t step = 0; step < stepsWithoutRecord; ++step)
    {
        if (!advance(state))
        {
            return;
        }
    }
    state = beginning;
    std::vector<State> earlier;
    const auto isCurrent = [&](const State& known) { return std::memcmp(&known, &state, sizeof(State)) == 0; };
    while (earlier.size() < mostSteps && std::none_of(earlier.begin(), earlier.end(), isCurrent))
    {
        earlier.push_back(state);
        if (!advance(state))
        {
            return;
        }
    }
}

} // namespace math::detail
