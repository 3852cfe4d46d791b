#include "math/Intersect.h"

#include "intersect/Cube.h"
#include "intersect/QuadraticRoots.h"
#include "math/Primitives.h"
#include "primitives/Outputs.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <vector>

namespace math
{

using detail::QuadraticRoots;
using detail::RootsOfQuadratic;

namespace
{

/// A cubic with the leading coefficient 1.
class MonicCubic
{
public:
    MonicCubic(double b, double c, double d) : m_b(b), m_c(c), m_d(d), m_twiceB(2.0 * b)
    {
    }

    double Value(double x) const
    {
        return detail::Cube(x) + m_b * (x * x) + m_c * x + m_d;
    }

    double Derivative(double x) const
    {
        return 3.0 * (x * x) + m_twiceB * x + m_c;
    }

    double DiscriminantOfDerivative() const
    {
        return m_twiceB * m_twiceB - 12.0 * m_c;
    }

    double B() const
    {
        return m_b;
    }

    double TwiceB() const
    {
        return m_twiceB;
    }

    /// Midpoint Newton iterations, each from its own place until the value is zero, at most 51 steps. They take their steps
    /// in turn, since the processor works on those of one while it waits for another.
    template <std::size_t Count>
    std::array<double, Count> Polish(std::array<double, Count> places) const
    {
        constexpr int mostSteps = 51;
        std::array<bool, Count> isDone{};
        for (int step = 0; step < mostSteps; ++step)
        {
            bool goesOn = false;
            for (std::size_t i = 0; i < Count; ++i)
            {
                isDone[i] = isDone[i] || !TakeStep(places[i]);
                goesOn = goesOn || !isDone[i];
            }
            if (!goesOn)
            {
                break;
            }
        }
        return places;
    }

    double Polish(double x) const
    {
        return Polish(std::array{x})[0];
    }

private:
    /// @return false where the value is zero already
    bool TakeStep(double& x) const
    {
        const double value = Value(x);
        if (detail::IsZero(value))
        {
            return false;
        }
        const double halfWay = x - value / (2.0 * Derivative(x));
        x = x - value / Derivative(halfWay);
        return true;
    }

    double m_b;
    double m_c;
    double m_d;
    double m_twiceB;
};

struct CubicRoots
{
    int count;
    std::array<double, 3> roots;
};

/// A cubic without usable stationary points has one root, right or left of a start near its inflection.
CubicRoots RootOfMonotone(const MonicCubic& cubic)
{
    const double start = cubic.B() * -0.25;
    const double value = cubic.Value(start);
    if (value > DoubleTolerance)
    {
        return {1, {cubic.Polish(start - 1.0)}};
    }
    if (value < DoubleTolerance)
    {
        return {1, {cubic.Polish(1.0 - cubic.B() * 0.25)}};
    }
    return {1, {start}};
}

/// The roots on either side of the local maximum and the local minimum. A stationary point on the axis is a double
/// root, given once and first.
CubicRoots RootsAroundStationaryPoints(const MonicCubic& cubic, double discriminant)
{
    const double root = std::sqrt(discriminant);
    const double minimum = (root - cubic.TwiceB()) / 6.0;
    const double maximum = (-cubic.TwiceB() - root) / 6.0;
    const double valueAtMaximum = cubic.Value(maximum);
    const double valueAtMinimum = cubic.Value(minimum);
    const double rightOfBoth = std::abs(maximum) + minimum + 1.0;
    const double leftOfBoth = (maximum - std::abs(minimum)) - 1.0;

    if (detail::IsZero(valueAtMaximum))
    {
        return {2, {maximum, cubic.Polish(rightOfBoth)}};
    }
    if (detail::IsZero(valueAtMinimum))
    {
        return {2, {minimum, cubic.Polish(leftOfBoth)}};
    }
    if (valueAtMaximum > 0.0 && valueAtMinimum < 0.0)
    {
        const double between = (minimum + maximum) * 0.5;
        return {3, cubic.Polish(std::array{leftOfBoth, between, rightOfBoth})};
    }
    return {1, {cubic.Polish(valueAtMaximum < DoubleTolerance ? rightOfBoth : leftOfBoth)}};
}

CubicRoots RootsOfCubic(double a, double b, double c, double d)
{
    const MonicCubic cubic(b / a, c / a, d / a);
    const double discriminant = cubic.DiscriminantOfDerivative();
    if (discriminant < DoubleTolerance)
    {
        return RootOfMonotone(cubic);
    }
    return RootsAroundStationaryPoints(cubic, discriminant);
}

} // namespace

int SolveQuadraticEquation(double a, double b, double c, double* x1, double* x2)
{
    const QuadraticRoots roots = RootsOfQuadratic(a, b, c);
    detail::Write(roots.first, x1);
    detail::Write(roots.second, x2);
    return roots.count;
}

bool SolveQuadraticEquation(double a, double b, double c, std::vector<double>& roots)
{
    const QuadraticRoots found = RootsOfQuadratic(a, b, c);
    std::array<double, 2> kept = {found.first, found.second};
    const auto keptEnd = std::remove_if(kept.begin(), kept.end(), [](double root) { return std::isnan(root); });
    roots.insert(roots.end(), kept.begin(), keptEnd);
    return found.count != 0;
}

int SolveCubicEquation(double a, double b, double c, double d, double* x1, double* x2, double* x3)
{
    if (detail::IsZero(a))
    {
        return SolveQuadraticEquation(b, c, d, x1, x2);
    }
    const CubicRoots found = RootsOfCubic(a, b, c, d);
    const std::array<double*, 3> outputs = {x1, x2, x3};
    for (std::size_t i = 0; i < static_cast<std::size_t>(found.count); ++i)
    {
        *outputs[i] = found.roots[i];
    }
    return found.count;
}

bool SolveCubicEquation(double a, double b, double c, double d, std::vector<double>& roots)
{
    if (detail::IsZero(a))
    {
        return SolveQuadraticEquation(b, c, d, roots);
    }
    const CubicRoots found = RootsOfCubic(a, b, c, d);
    roots.insert(roots.end(), found.roots.begin(), found.roots.begin() + found.count);
    return true;
}

} // namespace math
