#include "Cases.h"
#include "TrueCurves.h"
#include "math/Intersect.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <string>
#include <vector>

namespace math::accuracy
{

namespace
{

constexpr double NotWritten = 1e300;

// Quadratic

struct QuadraticSetting
{
    const char* name;
    double leastGap; ///< relative distance of the second root from the first
    double greatestGap;
    double leastRatio; ///< of the second root to the first
    double scale;
};

void MeasureQuadratic(Run& run, const QuadraticSetting& setting)
{
    run.Stratum("SolveQuadraticEquation", setting.name, OfResult, 300, [&](Draw& draw, Row& row) {
        const double first = draw.SignedMagnitude(0.1, 10.0) * setting.scale;
        const double second = setting.leastRatio < 1.0
                                  ? first * draw.SignedMagnitude(setting.leastRatio, 1e-1)
                                  : first * (1.0 + draw.SignedMagnitude(setting.leastGap, setting.greatestGap));
        const double a = draw.SignedMagnitude(0.1, 10.0);
        const double b = -a * (first + second);
        const double c = a * first * second;
        const auto text = [=] { return Text("a", a, "b", b, "c", c); };
        const Real discriminant = Real(b) * b - 4.0 * Real(a) * c;
        double told[2] = {NotWritten, NotWritten};
        const int count = SolveQuadraticEquation(a, b, c, &told[0], &told[1]);
        if (discriminant <= 0.0)
        {
            return; // Rounding the coefficients has made the double root a pair of complex ones.
        }
        row.expected += 2;
        if (count != 2)
        {
            row.CountMissed(text);
            row.CountMissed(text);
            return;
        }
        const Real root = Sqrt(discriminant);
        // The discriminant carries the rounding of its two terms.
        const double condition =
            1.0 + (Abs(Square(b)) / discriminant + 4.0 * Abs(Real(a) * c) / discriminant).ToDouble();
        for (const double x : told)
        {
            const Real one = (-Real(b) + root) / (2.0 * Real(a));
            const Real other = (-Real(b) - root) / (2.0 * Real(a));
            const Real truth = Abs(one - x) < Abs(other - x) ? one : other;
            row.AddValue(x, truth, condition, text);
        }
    });
}

/// A parabola whose extreme is so near to the axis that it counts as touching it.
void MeasureQuadraticTangency(Run& run)
{
    run.Stratum("SolveQuadraticEquation", "a discriminant below the tolerance", "sqrt(1e-9 / a), scaled", 200,
                [](Draw& draw, Row& row) {
                    const double a = draw.Between(0.1, 1.0);
                    const double middle = draw.Signed(1.0) / 2.0;
                    const double b = -2.0 * a * middle;
                    const double c = a * middle * middle + draw.Signed(0.9e-9);
                    const double scale = std::max({a, std::abs(b), std::abs(c)});
                    double told[2] = {NotWritten, NotWritten};
                    SolveQuadraticEquation(a, b, c, &told[0], &told[1]);
                    const Real discriminant = Real(b) * b - 4.0 * Real(a) * c;
                    // Of two complex roots the distance in the complex plane is meant.
                    const Real root = Sqrt(Abs(discriminant)) / (2.0 * a);
                    const Real mean = -Real(b) / (2.0 * Real(a));
                    for (const double x : told)
                    {
                        const Real fromMean = Abs(x - mean);
                        row.Add(discriminant.Sign() > 0 ? Abs(fromMean - root) : Hypot(fromMean, root),
                                Sqrt(1e-9 * Real(scale) / a), 1.0, [=] { return Text("a", a, "b", b, "c", c); });
                    }
                });
}

/// A leading coefficient that is dropped.
void MeasureNearlyLinear(Run& run)
{
    run.Stratum("SolveQuadraticEquation", "a leading coefficient below the tolerance", "1e-9 of the result", 200,
                [](Draw& draw, Row& row) {
                    const double a = draw.SignedMagnitude(1e-12, 0.9e-9);
                    const double b = draw.Coin() ? 1.0 : -1.0;
                    const double c = draw.SignedMagnitude(1e-3, 1.0);
                    double told = NotWritten;
                    SolveQuadraticEquation(a, b, c, &told, nullptr);
                    const Real root = Sqrt(Real(1.0) - 4.0 * Real(a) * c);
                    const Real truth = -2.0 * Real(c) / (b * (1.0 + root)); // the near root
                    row.Add(Abs(told - truth), 1e-9 * Abs(truth), 1.0, [=] { return Text("a", a, "b", b, "c", c); });
                });
}

// Cubic

/// An accuracy that a root can have: the polynomial's value is only looked at to 1e-9, and to its own rounding.
Real UnitOfRoot(const Polynomial& monic, const Real& root)
{
    const Real size = Abs(root * root * root) + Abs(monic[2] * root * root) + Abs(monic[1] * root) + Abs(monic[0]);
    const Real residual = 1e-9 + 8.0 * RoundingUnit * size;
    const Real slope = Abs(Evaluate(Derivative(monic), root));
    // Beside a double root the value bends away from 0 before its slope tells.
    const Real bend = Abs(6.0 * root + 2.0 * monic[2]);
    return bend.Sign() == 0 ? residual / slope : Min(residual / slope, Sqrt(2.0 * residual / bend));
}

void CompareRoots(Row& row, const std::vector<double>& told, const Polynomial& monic, const Row::Describe& describe)
{
    const std::vector<Real> truth = RealRoots(monic);
    std::vector<bool> isMet(truth.size(), false);
    for (const double x : told)
    {
        std::size_t nearest = 0;
        for (std::size_t i = 1; i < truth.size(); ++i)
        {
            nearest = Abs(truth[i] - x) < Abs(truth[nearest] - x) ? i : nearest;
        }
        const Real error = Abs(truth[nearest] - x);
        const Real unit = UnitOfRoot(monic, truth[nearest]);
        // An iteration that has not come to rest leaves a number that is no root.
        if (isMet[nearest] || !(error < 1e3 * unit))
        {
            row.CountExtra(describe);
            continue;
        }
        isMet[nearest] = true;
        row.Add(error, unit, 1.0, describe);
    }
    row.expected += static_cast<long>(truth.size());
    for (const bool met : isMet)
    {
        if (!met)
        {
            row.CountMissed(describe);
        }
    }
}

struct CubicCoefficients
{
    double a;
    double b;
    double c;
    double d;

    static CubicCoefficients OfThreeRoots(double a, double r, double s, double t)
    {
        return {a, -a * (r + s + t), a * (r * s + s * t + t * r), -a * r * s * t};
    }

    /// (x - root) (x² + p x + q), the second factor without a root.
    static CubicCoefficients OfOneRoot(double a, double root, double p, double q)
    {
        return {a, a * (p - root), a * (q - root * p), -a * root * q};
    }
};

void MeasureCubic(Run& run, const std::string& stratum, const std::function<CubicCoefficients(Draw&, double)>& draw)
{
    run.Stratum("SolveCubicEquation", stratum, "(1e-9 + 8u of the terms) / slope", 200, [&](Draw& source, Row& row) {
        const CubicCoefficients given = draw(source, source.SignedMagnitude(0.1, 10.0));
        double told[3] = {NotWritten, NotWritten, NotWritten};
        const int count = SolveCubicEquation(given.a, given.b, given.c, given.d, &told[0], &told[1], &told[2]);
        const Polynomial monic{Real(given.d) / given.a, Real(given.c) / given.a, Real(given.b) / given.a, 1.0};
        CompareRoots(row, std::vector<double>(told, told + count), monic,
                     [=] { return Text("a", given.a, "b", given.b, "c", given.c, "d", given.d); });
    });
}

} // namespace

void MeasureEquations(Run& run)
{
    const QuadraticSetting settings[] = {
        {"roots apart, size 1", 0.1, 10.0, 1.0, 1.0},
        {"roots apart, size 1e-2", 0.1, 10.0, 1.0, 1e-2},
        {"roots apart, size 1e3", 0.1, 10.0, 1.0, 1e3},
        {"roots of ratio 1e-8 to 0.1", 0.0, 0.0, 1e-8, 1.0},
        {"roots nearer than 1e-3, by 1e-4 and more", 1e-4, 1e-3, 1.0, 1.0},
    };
    for (const QuadraticSetting& setting : settings)
    {
        MeasureQuadratic(run, setting);
    }
    MeasureQuadraticTangency(run);
    MeasureNearlyLinear(run);

    for (const double size : {1e-1, 1.0, 1e2, 1e4})
    {
        const std::string ofSize = size < 1.0 ? "1e-1" : size < 10.0 ? "1" : size < 1e3 ? "1e2" : "1e4";
        MeasureCubic(run, "three roots, size " + ofSize, [=](Draw& draw, double a) {
            const double first = draw.Signed(size);
            const double second = first + draw.Between(0.2, 1.0) * size;
            return CubicCoefficients::OfThreeRoots(a, first, second, second + draw.Between(0.2, 1.0) * size);
        });
    }
    MeasureCubic(run, "one root", [](Draw& draw, double a) {
        const double p = draw.Signed(10.0);
        const double q = p * p * 0.25 + draw.Between(0.1, 10.0);
        return CubicCoefficients::OfOneRoot(a, draw.Signed(10.0), p, q);
    });
    // The derivative has no root, but is small somewhere beside the root.
    MeasureCubic(run, "one root, a step on the way", [](Draw& draw, double a) {
        const double step = draw.Signed(5.0);
        const double b = -3.0 * step;
        const double c = 3.0 * step * step + draw.Magnitude(1e-3, 1.0);
        return CubicCoefficients{a, a * b, a * c, a * draw.Signed(400.0)};
    });
    MeasureCubic(run, "two roots 1e-3 to 1e-2 apart", [](Draw& draw, double a) {
        const double first = draw.Signed(2.0);
        const double second = first + draw.Magnitude(1e-3, 1e-2);
        return CubicCoefficients::OfThreeRoots(a, first, second, first + draw.SignedMagnitude(1.0, 3.0));
    });
}

} // namespace math::accuracy
