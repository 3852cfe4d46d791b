#include "Cases.h"
#include "Contest.h"
#include "Floors.h"
#include "Inputs.h"
#include "math/Intersect.h"

#include <algorithm>

namespace bench
{

namespace
{

/// A vector that has room, so that growing it is not timed.
std::vector<double> reusedRoots = [] {
    std::vector<double> list;
    list.reserve(16);
    return list;
}();

/// The vector form.
template <typename Solve>
Answer RootsOfVector(Solve solve)
{
    Answer answer;
    reusedRoots.clear();
    solve(reusedRoots);
    answer.count = static_cast<int>(reusedRoots.size());
    std::copy(reusedRoots.begin(), reusedRoots.end(), answer.values);
    return answer;
}

} // namespace

void AddEquations()
{
    Declare("quadratic", {"one quadratic equation; half of them have roots", Compare::Numbers, 1e-9, 2.5, {}});
    Enter("quadratic", "ours", Quadratics(), [](const Coefficients& k) {
        Answer answer;
        answer.count = math::SolveQuadraticEquation(k.a, k.b, k.c, &answer.values[0], &answer.values[1]);
        return answer;
    });
    Enter("quadratic", "vector", Quadratics(), [](const Coefficients& k) {
        return RootsOfVector([&](std::vector<double>& roots) { math::SolveQuadraticEquation(k.a, k.b, k.c, roots); });
    });
    Enter("quadratic", "floor", Quadratics(), floors::Quadratic);

    Declare("cubic", {"one cubic equation; half of them have three roots", Compare::Numbers, 1e-6, 9.0, {}});
    Enter("cubic", "ours", Cubics(), [](const Coefficients& k) {
        Answer answer;
        answer.count =
            math::SolveCubicEquation(k.a, k.b, k.c, k.d, &answer.values[0], &answer.values[1], &answer.values[2]);
        return answer;
    });
    Enter("cubic", "vector", Cubics(), [](const Coefficients& k) {
        return RootsOfVector([&](std::vector<double>& roots) { math::SolveCubicEquation(k.a, k.b, k.c, k.d, roots); });
    });
    Enter("cubic", "floor", Cubics(), floors::Cubic);
}

} // namespace bench
