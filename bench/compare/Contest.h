#pragma once

#include "math/CPolyPosMap.h"
#include "math/Primitives.h"

#include <benchmark/benchmark.h>

#include <cstddef>
#include <functional>
#include <string>
#include <utility>
#include <vector>

// Several ways to do the same thing, fed the same inputs: their answers are compared first, then they are timed.

namespace bench
{

using math::DPOINT2;

/// The small answer of a geometric case: a count, and the coordinates of so many points or so many numbers.
/// Not set at first, since that would be timed as well.
struct Answer
{
    int count;
    double values[8];
};

/// An answer in the form in which answers are compared.
struct Flat
{
    long count = 0;
    std::vector<double> values;
};

enum class Compare
{
    Points,  ///< the same number of points, and each near one of the other's, in any order
    Numbers, ///< the same numbers in the same order
    Count,   ///< the count alone
    Nothing  ///< a floor that does less than the case, or a case of ours alone
};

/// What the table says of a case, and how its answers are compared.
struct Description
{
    std::string operation; ///< what is done once
    Compare compare = Compare::Points;
    double tolerance = 1e-6; ///< absolute for values up to 1, relative above
    double aim = 0.0;        ///< at most so many times the floor; 0 for no aim
    std::string ordinary;    ///< of degenerate input: the case with which it is compared in place of a floor
};

Flat Flatten(const Answer& answer, Compare compare);
Flat Flatten(double number, Compare compare);
Flat Flatten(const math::CPolyPosMap& map, Compare compare);
Flat Flatten(const std::pair<math::CPolyPosMap, math::CPolyPosMap>& maps, Compare compare);
Flat Flatten(const std::vector<int>& numbers, Compare compare);
Flat Flatten(const std::vector<double>& numbers, Compare compare);
Flat Flatten(const std::vector<std::pair<double, double>>& pairs, Compare compare);

/// One column of the table in one row.
struct Contender
{
    std::string who;
    std::size_t inputs;
    std::function<Flat(std::size_t, Compare)> answer;
    std::function<void(benchmark::State&)> time;
    /// The part of the inputs on which it may differ from the library, for methods that miss points by their nature.
    double allowedShare;
    bool isCompared;
};

/// Begins a row. The first contender of a row is the one with which the others are compared.
void Declare(const std::string& name, const Description& description);

/// Adds a contender to a row.
void Enter(const std::string& name, Contender contender);

/// Marks a contender whose answers are not compared, and what part of the inputs may differ.
struct Allowance
{
    double share = 0.0;
    bool isCompared = true;
};

inline constexpr Allowance NotCompared{0.0, false};

/// Adds a contender that gives the answer of one input by `solve(input)`. The inputs are kept by reference, and all of
/// them are gone through in turn, so that no predictor of branches can learn them.
template <typename Input, typename Solve>
void Enter(const std::string& name, const std::string& who, const std::vector<Input>& inputs, Solve solve,
           const Allowance& allowance = {})
{
    Contender contender;
    contender.who = who;
    contender.inputs = inputs.size();
    contender.answer = [&inputs, solve](std::size_t i, Compare compare) { return Flatten(solve(inputs[i]), compare); };
    contender.time = [&inputs, solve](benchmark::State& state) {
        for (auto _ : state)
        {
            for (const Input& input : inputs)
            {
                auto answer = solve(input);
                benchmark::DoNotOptimize(answer);
            }
        }
    };
    contender.allowedShare = allowance.share;
    contender.isCompared = allowance.isCompared;
    Enter(name, std::move(contender));
}

/// Compares all answers. Prints what differs; tells whether all agree.
bool AllAgree();

/// Hands all contenders to the runner of benchmarks, by the names "row|column".
void RegisterAll();

} // namespace bench
