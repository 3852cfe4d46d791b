#include "Cases.h"
#include "Contest.h"
#include "Inputs.h"

#include <gsl/gsl_poly.h>

#include <algorithm>
#include <cmath>

namespace bench
{

void AddGsl()
{
    Enter("quadratic", "GSL", Quadratics(), [](const Coefficients& k) {
        Answer answer;
        answer.count = gsl_poly_solve_quadratic(k.a, k.b, k.c, &answer.values[0], &answer.values[1]);
        // The library's order: the root of larger magnitude first.
        if (answer.count == 2 && std::abs(answer.values[0]) < std::abs(answer.values[1]))
        {
            std::swap(answer.values[0], answer.values[1]);
        }
        return answer;
    });
    Enter("cubic", "GSL", Cubics(), [](const Coefficients& k) {
        Answer answer;
        answer.count = gsl_poly_solve_cubic(k.b / k.a, k.c / k.a, k.d / k.a, &answer.values[0], &answer.values[1],
                                            &answer.values[2]);
        return answer;
    });
}

} // namespace bench
