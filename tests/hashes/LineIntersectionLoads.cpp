#include "Curves.h"
#include "Load.h"

namespace math::hashes
{

namespace
{

// Every member is called with the arguments of its curves and, last, those of its form.

const auto BeelineWithBeeline = [](const TwoBeelines& o, auto&&... outputs) {
    return Intersect_BeelineWithBeeline(o.first.point, o.first.angle, o.second.point, o.second.angle, outputs...);
};

const auto BeelineWithLine = [](const BeelineAndStretch& o, auto&&... outputs) {
    return Intersect_BeelineWithLine(o.beeline.point, o.beeline.angle, o.stretch.a, o.stretch.b, outputs...);
};

const auto LineWithLine = [](const TwoStretches& o, auto&&... outputs) {
    return Intersect_LineWithLine(o.first.a, o.first.b, o.second.a, o.second.b, outputs...);
};

const auto BeelineWithCircle = [](const BeelineAndArc& o, auto&&... outputs) {
    return Intersect_BeelineWithCircle(o.beeline.point, o.beeline.angle, o.arc.centre, o.arc.radius, outputs...);
};

const auto BeelineWithArc = [](const BeelineAndArc& o, auto&&... outputs) {
    return Intersect_BeelineWithArc(o.beeline.point, o.beeline.angle, o.arc.centre, o.arc.radius, o.arc.start,
                                    o.arc.sweep, outputs...);
};

const auto LineWithCircle = [](const StretchAndArc& o, auto&&... outputs) {
    return Intersect_LineWithCircle(o.stretch.a, o.stretch.b, o.arc.centre, o.arc.radius, outputs...);
};

const auto LineWithArc = [](const StretchAndArc& o, auto&&... outputs) {
    return Intersect_LineWithArc(o.stretch.a, o.stretch.b, o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep,
                                 outputs...);
};

const auto CircleWithCircle = [](const TwoArcs& o, auto&&... outputs) {
    return Intersect_CircleWithCircle(o.first.centre, o.first.radius, o.second.centre, o.second.radius, outputs...);
};

const auto CircleWithArc = [](const TwoArcs& o, auto&&... outputs) {
    return Intersect_CircleWithArc(o.first.centre, o.first.radius, o.second.centre, o.second.radius, o.second.start,
                                   o.second.sweep, outputs...);
};

const auto ArcWithArc = [](const TwoArcs& o, auto&&... outputs) {
    return Intersect_ArcWithArc(o.first.centre, o.first.radius, o.first.start, o.first.sweep, o.second.centre,
                                o.second.radius, o.second.start, o.second.sweep, outputs...);
};

template <typename Operands, typename Member>
void OnePointer(Source& source, ResultHash& hash, const Operands& operands, const Member& member)
{
    IntoOnePointer(source, hash, [&](DPOINT2* point) { return member(operands, point); });
}

template <typename Operands, typename Member>
void TwoPointers(Source& source, ResultHash& hash, const Operands& operands, const Member& member)
{
    IntoTwoPointers(source, hash, [&](DPOINT2* first, DPOINT2* second) { return member(operands, first, second); });
}

template <typename Operands, typename Member>
void Vector(Source& source, ResultHash& hash, const Operands& operands, const Member& member)
{
    IntoVector(source, hash,
               [&](std::vector<DPOINT2>& points, int trailing) { return member(operands, points, trailing); });
}

LineD2D AsLine(const Stretch& stretch)
{
    return {stretch.a.x, stretch.a.y, stretch.b.x, stretch.b.y};
}

// Equations

struct Coefficients
{
    double a;
    double b;
    double c;
    double d;
};

/// Coefficients at random, or those of an equation with roots on a grid, perhaps double or triple.
Coefficients OfQuadratic(Source& source)
{
    const double scale = source.Number();
    const double r = source.Number();
    const double s = source.OneIn(3) ? source.Near(r) : source.Number();
    switch (source.Below(3))
    {
    case 0:
        return {scale, source.Number(), source.Number(), 0.0};
    case 1:
        return {source.Coin() ? source.Sliver() : source.Sliver() * scale, source.Number(), source.Number(), 0.0};
    default:
        return {scale, -(r + s) * scale, r * s * scale, 0.0};
    }
}

Coefficients OfCubic(Source& source)
{
    const double scale = source.OneIn(6) ? source.Near(0.0) : source.Number();
    const double r = source.Number();
    const double s = source.OneIn(3) ? source.Near(r) : source.Number();
    const double t = source.OneIn(3) ? source.Near(s) : source.Number();
    if (source.OneIn(3))
    {
        return {scale, source.Number(), source.Number(), source.Number()};
    }
    const double ofSquare = -(r + s + t);
    const double ofLinear = r * s + s * t + t * r;
    return {scale, ofSquare * scale, ofLinear * scale, -(r * s * t) * scale};
}

} // namespace

const std::vector<Load> LineIntersectionLoads = {
    {"Intersect(LineD2D const&, LineD2D const&, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) {
         const TwoStretches o = RandomStretches(source);
         IntoOnePointer(source, hash,
                        [&](DPOINT2* point) { return Intersect(AsLine(o.first), AsLine(o.second), point); });
     }},
    {"Intersect_BeelineWithBeeline(DPOINT2 const&, double, DPOINT2 const&, double, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) { OnePointer(source, hash, RandomBeelines(source), BeelineWithBeeline); }},
    {"Intersect_BeelineWithBeeline(DPOINT2 const&, double, DPOINT2 const&, double, std::vector<DPOINT2>&, int)", Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomBeelines(source), BeelineWithBeeline); }},
    {"Intersect_BeelineWithLine(DPOINT2 const&, double, DPOINT2 const&, DPOINT2 const&, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) {
         OnePointer(source, hash, RandomBeelineAndStretch(source), BeelineWithLine);
     }},
    {"Intersect_BeelineWithLine(DPOINT2 const&, double, DPOINT2 const&, DPOINT2 const&, std::vector<DPOINT2>&, int)",
     Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomBeelineAndStretch(source), BeelineWithLine); }},
    {"Intersect_LineWithLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) { OnePointer(source, hash, RandomStretches(source), LineWithLine); }},
    {"Intersect_LineWithLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, std::vector<DPOINT2>&, "
     "int)",
     Cheap, [](Source& source, ResultHash& hash) { Vector(source, hash, RandomStretches(source), LineWithLine); }},
    {"Intersect_BeelineWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, DPOINT2*, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) {
         TwoPointers(source, hash, RandomBeelineAndArc(source), BeelineWithCircle);
     }},
    {"Intersect_BeelineWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, std::vector<DPOINT2>&, int)", Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomBeelineAndArc(source), BeelineWithCircle); }},
    {"Intersect_BeelineWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*)",
     Cheap,
     [](Source& source, ResultHash& hash) { TwoPointers(source, hash, RandomBeelineAndArc(source), BeelineWithArc); }},
    {"Intersect_BeelineWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, std::vector<DPOINT2>&, "
     "int)",
     Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomBeelineAndArc(source), BeelineWithArc); }},
    {"Intersect_LineWithCircle(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, DPOINT2*, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) { TwoPointers(source, hash, RandomStretchAndArc(source), LineWithCircle); }},
    {"Intersect_LineWithCircle(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, std::vector<DPOINT2>&, int)",
     Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomStretchAndArc(source), LineWithCircle); }},
    {"Intersect_LineWithArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, DPOINT2*, "
     "DPOINT2*)",
     Cheap,
     [](Source& source, ResultHash& hash) { TwoPointers(source, hash, RandomStretchAndArc(source), LineWithArc); }},
    {"Intersect_LineWithArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Cheap, [](Source& source, ResultHash& hash) { Vector(source, hash, RandomStretchAndArc(source), LineWithArc); }},
    {"Intersect_CircleWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, DPOINT2*, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) { TwoPointers(source, hash, RandomArcs(source), CircleWithCircle); }},
    {"Intersect_CircleWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, std::vector<DPOINT2>&, int)", Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcs(source), CircleWithCircle); }},
    {"Intersect_CircleWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*)",
     Cheap, [](Source& source, ResultHash& hash) { TwoPointers(source, hash, RandomArcs(source), CircleWithArc); }},
    {"Intersect_CircleWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, std::vector<DPOINT2>&, "
     "int)",
     Cheap, [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcs(source), CircleWithArc); }},
    {"Intersect_ArcWithArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, DPOINT2*, "
     "DPOINT2*)",
     Cheap, [](Source& source, ResultHash& hash) { TwoPointers(source, hash, RandomArcs(source), ArcWithArc); }},
    {"Intersect_ArcWithArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Cheap, [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcs(source), ArcWithArc); }},
    {"SolveQuadraticEquation(double, double, double, double*, double*)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Coefficients o = OfQuadratic(source);
         double x1 = UntouchedNumber;
         double x2 = UntouchedNumber;
         double* const toX1 = OrNull(source, x1);
         hash << SolveQuadraticEquation(o.a, o.b, o.c, toX1, OrNull(source, x2)) << x1 << x2;
     }},
    {"SolveQuadraticEquation(double, double, double, std::vector<double>&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Coefficients o = OfQuadratic(source);
         std::vector<double> roots(static_cast<std::size_t>(source.Below(3)), UntouchedNumber);
         hash << SolveQuadraticEquation(o.a, o.b, o.c, roots) << roots;
     }},
    {"SolveCubicEquation(double, double, double, double, double*, double*, double*)", Usual,
     [](Source& source, ResultHash& hash) {
         const Coefficients o = OfCubic(source);
         double x1 = UntouchedNumber;
         double x2 = UntouchedNumber;
         double x3 = UntouchedNumber;
         hash << SolveCubicEquation(o.a, o.b, o.c, o.d, &x1, &x2, &x3) << x1 << x2 << x3;
     }},
    {"SolveCubicEquation(double, double, double, double, std::vector<double>&)", Usual,
     [](Source& source, ResultHash& hash) {
         const Coefficients o = OfCubic(source);
         std::vector<double> roots(static_cast<std::size_t>(source.Below(3)), UntouchedNumber);
         hash << SolveCubicEquation(o.a, o.b, o.c, o.d, roots) << roots;
     }},
};

} // namespace math::hashes
