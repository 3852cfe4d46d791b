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

/// The vector form, on a vector that has room.
template <typename Solve>
Answer RootsOfVector(Solve solve)
{
    static std::vector<double> roots = [] {
        std::vector<double> list;
        list.reserve(16);
        return list;
    }();
    Answer answer;
    roots.clear();
    solve(roots);
    answer.count = static_cast<int>(roots.size());
    std::copy(roots.begin(), roots.end(), answer.values);
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
