#include "Cases.h"
#include "TrueCurves.h"
#include "math/Primitives.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <cmath>

namespace math::accuracy
{

namespace
{

constexpr const char* OfAngle = "u of the larger of input and modulus";

/// A folding function: the form that gives a value, the modulus, and `offset` + `sign` * input as what is folded.
struct Folding
{
    const char* name;
    double (*fold)(double);
    bool isRadian;
    double turns; ///< of the modulus: 1 is a whole turn
    double offset;
    double sign;
};

double FoldInPlace(void (*normalize)(double&), double value)
{
    normalize(value);
    return value;
}

void MeasureFolding(Run& run, const Folding& folding)
{
    const Real modulus = (folding.isRadian ? 2.0 * Pi() : Real(360.0)) * folding.turns;
    const Real offset = (folding.isRadian ? Pi() : Real(180.0)) * folding.offset;
    const auto measure = [&](double size, Draw& draw, Row& row) {
        const double input = draw.SignedMagnitude(size * 1e-6, size);
        const double result = folding.fold(input);
        const double scale = std::max(std::abs(input), modulus.ToDouble());
        // Every lap of the folding adds or takes the modulus, which in radians is itself rounded.
        const double laps = folding.isRadian ? 1.0 + std::abs(input) / modulus.ToDouble() : 1.0;
        row.AddRounding(CircularDistance(result, offset + folding.sign * Real(input), modulus), scale, laps,
                        [=] { return Text("angle", input); });
    };
    run.Stratum(folding.name, "up to 2 turns", OfAngle, 200,
                [&](Draw& draw, Row& row) { measure(modulus.ToDouble() * 2.0, draw, row); });
    run.Stratum(folding.name, "up to 1e4", OfAngle, 100, [&](Draw& draw, Row& row) { measure(1e4, draw, row); });
}

void MeasureFoldings(Run& run)
{
    const Folding foldings[] = {
        {"RegularizeAngle", RegularizeAngle, false, 1.0, 0.0, 1.0},
        {"RegularizeRadian", RegularizeRadian, true, 1.0, 0.0, 1.0},
        {"RegularizeIncludedAngle", RegularizeIncludedAngle, false, 0.5, 0.0, 1.0},
        {"RegularizeIncludedRadian", RegularizeIncludedRadian, true, 0.5, 0.0, 1.0},
        {"NormalizeAngle", [](double a) { return FoldInPlace(NormalizeAngle, a); }, false, 1.0, 0.0, 1.0},
        {"NormalizeRadian", [](double a) { return FoldInPlace(NormalizeRadian, a); }, true, 1.0, 0.0, 1.0},
        {"NormalizeIncludedAngle", [](double a) { return FoldInPlace(NormalizeIncludedAngle, a); }, false, 0.5, 0.0,
         1.0},
        {"NormalizeIncludedRadian", [](double a) { return FoldInPlace(NormalizeIncludedRadian, a); }, true, 0.5, 0.0,
         1.0},
        {"GetReverseAngle", GetReverseAngle, false, 1.0, -1.0, 1.0},
        {"GetReverseRadian", GetReverseRadian, true, 1.0, -1.0, 1.0},
        {"GetComplementaryAngle", GetComplementaryAngle, false, 0.5, 1.0, -1.0},
        {"GetComplementaryRadian", GetComplementaryRadian, true, 0.5, 1.0, -1.0},
    };
    for (const Folding& folding : foldings)
    {
        MeasureFolding(run, folding);
    }
}

void MeasureConversions(Run& run)
{
    constexpr const char* all = "1e-3 to 1e6";
    run.Stratum("RadianToAngle", all, OfResult, 300, [](Draw& draw, Row& row) {
        const double x = draw.SignedMagnitude(1e-3, 1e6);
        row.AddValue(RadianToAngle(x), Real(x) * 180.0 / Pi(), 1.0, [=] { return Text("radian", x); });
    });
    run.Stratum("AngleToRadian", all, OfResult, 300, [](Draw& draw, Row& row) {
        const double x = draw.SignedMagnitude(1e-3, 1e6);
        row.AddValue(AngleToRadian(x), Real(x) * Pi() / 180.0, 1.0, [=] { return Text("angle", x); });
    });
    run.Stratum("GetArcAngle", all, OfResult, 300, [](Draw& draw, Row& row) {
        const double length = draw.SignedMagnitude(1e-3, 1e6);
        const double radius = draw.SignedMagnitude(1e-3, 1e6);
        row.AddValue(GetArcAngle(length, radius), Real(length) * 180.0 / (Real(radius) * Pi()), 1.0,
                     [=] { return Text("length", length, "radius", radius); });
    });
    run.Stratum("GetArcLength", all, OfResult, 300, [](Draw& draw, Row& row) {
        const double angle = draw.SignedMagnitude(1e-3, 1e6);
        const double radius = draw.SignedMagnitude(1e-3, 1e6);
        row.AddValue(GetArcLength(angle, radius), Real(angle) * Pi() / 180.0 * radius, 1.0,
                     [=] { return Text("angle", angle, "radius", radius); });
    });
}

void MeasureBulges(Run& run)
{
    const auto measure = [](double sweep, Draw& draw, Row& row) {
        const double start = draw.Angle();
        const double end = start + sweep;
        const Real quarter = (Real(end) - Real(start)) * 0.25;
        if (Abs(Abs(quarter) - Pi() * 0.5) < 1e-8)
        {
            return; // There is no bulge next to a whole turn.
        }
        // The relative error of a tangent for that of its argument.
        const double condition = std::max(1.0, Abs(2.0 * quarter / Sin(2.0 * quarter)).ToDouble());
        row.AddValue(GetBulge(start, end), Tan(quarter), condition, [=] { return Text("start", start, "end", end); });
    };
    run.Stratum("GetBulge", "sweeps up to 2π", OfResult, 300,
                [&](Draw& draw, Row& row) { measure(draw.Signed(6.28), draw, row); });
    run.Stratum("GetBulge", "sweeps of 1e-6 to 1e-3", OfResult, 200,
                [&](Draw& draw, Row& row) { measure(draw.SignedMagnitude(1e-6, 1e-3), draw, row); });
    run.Stratum("GetBulge", "sweeps 1e-6 to 1e-3 short of 2π", OfResult, 200, [&](Draw& draw, Row& row) {
        const double sweep = 6.283185307179586 - draw.Magnitude(1e-6, 1e-3);
        measure(draw.Coin() ? sweep : -sweep, draw, row);
    });
}

/// A vector of any direction; `flatness` of 1e-6 lets one coordinate be that much smaller than the other.
gp_Vec2d AnyVector(Draw& draw, double flatness)
{
    const double size = draw.SignedMagnitude(1e-3, 1e6);
    const double other = draw.SignedMagnitude(flatness, 1.0) * size;
    return draw.Coin() ? gp_Vec2d(size, other) : gp_Vec2d(other, size);
}

void MeasureDirections(Run& run)
{
    const Real turn = 2.0 * Pi();
    for (const double flatness : {1e-2, 1e-12})
    {
        const char* stratum = flatness > 1e-3 ? "all directions" : "next to the axes";
        const auto expected = [=](const gp_Vec2d& v) { return Modulo(Atan2(v.Y(), v.X()), turn); };
        const auto text = [](const gp_Vec2d& v) { return [v] { return Text("x", v.X(), "y", v.Y()); }; };
        run.Stratum("ComputeAngle", stratum, OfResult, 300, [=](Draw& draw, Row& row) {
            const gp_Vec2d v = AnyVector(draw, flatness);
            row.AddValue(ComputeAngle(v.X(), v.Y()), expected(v), 1.0, text(v));
        });
        run.Stratum("D2GetNormalAngle", stratum, OfResult, 300, [=](Draw& draw, Row& row) {
            const gp_Vec2d v = AnyVector(draw, flatness);
            // 2π itself is told as 0.
            row.AddRounding(CircularDistance(D2GetNormalAngle(v.X(), v.Y()), expected(v), turn), expected(v), 1.0,
                            text(v));
        });
    }
}

void MeasureAnglesBetween(Run& run)
{
    const auto measure = [](const gp_Vec2d& a, const gp_Vec2d& b, bool isSigned, Row& row) {
        const Real cross = Real(a.X()) * b.Y() - Real(a.Y()) * b.X();
        const Real dot = Real(a.X()) * b.X() + Real(a.Y()) * b.Y();
        const Real truth = isSigned ? Atan2(cross, dot) : Abs(Atan2(cross, dot));
        // The two products of a cross product cancel where the vectors are nearly parallel.
        const double condition = 1.0 + (1.0 / Abs(truth)).ToDouble();
        // Opposite vectors are told at either of π and -π.
        const double told = isSigned ? D2RotateAngle(a, b) : D2GetIncludeAngle(a, b);
        row.AddRounding(CircularDistance(told, truth, 2.0 * Pi()), truth, condition,
                        [=] { return Text("ax", a.X(), "ay", a.Y(), "bx", b.X(), "by", b.Y()); });
    };
    for (const bool isSigned : {true, false})
    {
        const char* name = isSigned ? "D2RotateAngle" : "D2GetIncludeAngle";
        run.Stratum(name, "all directions", OfResult, 300, [=](Draw& draw, Row& row) {
            const gp_Vec2d a = AnyVector(draw, 1e-2);
            measure(a, AnyVector(draw, 1e-2), isSigned, row);
        });
        run.Stratum(name, "1e-8 to 1e-3 from parallel", OfResult, 300, [=](Draw& draw, Row& row) {
            const gp_Vec2d a = AnyVector(draw, 1e-2);
            const double factor = draw.SignedMagnitude(1e-2, 1e2);
            const double turned = draw.SignedMagnitude(1e-8, 1e-3) * factor;
            measure(a, {a.X() * factor - a.Y() * turned, a.Y() * factor + a.X() * turned}, isSigned, row);
        });
    }
}

} // namespace

void MeasureAngles(Run& run)
{
    MeasureConversions(run);
    MeasureFoldings(run);
    MeasureBulges(run);
    MeasureDirections(run);
    MeasureAnglesBetween(run);
}

} // namespace math::accuracy
