#include "Curves.h"
#include "Load.h"

namespace math::hashes
{

namespace
{

// Every member is called with the arguments of its curves and, last, those of its form.

const auto BeelineWithEllipse = [](const BeelineAndEllipse& o, auto&&... outputs) {
    return Intersect_BeelineWithEllipse(o.beeline.point, o.beeline.angle, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                        o.ellipse.rotation, outputs...);
};

const auto BeelineWithEllipseArc = [](const BeelineAndEllipse& o, auto&&... outputs) {
    return Intersect_BeelineWithEllipseArc(o.beeline.point, o.beeline.angle, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                           o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep, outputs...);
};

const auto LineWithEllipse = [](const StretchAndEllipse& o, auto&&... outputs) {
    return Intersect_LineWithEllipse(o.stretch.a, o.stretch.b, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                     o.ellipse.rotation, outputs...);
};

const auto LineWithEllipseArc = [](const StretchAndEllipse& o, auto&&... outputs) {
    return Intersect_LineWithEllipseArc(o.stretch.a, o.stretch.b, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                        o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep, outputs...);
};

const auto EllipseWithEllipse = [](const TwoEllipses& o, auto&&... outputs) {
    return Intersect_EllipseWithEllipse(o.first.centre, o.first.a, o.first.b, o.first.rotation, o.second.centre,
                                        o.second.a, o.second.b, o.second.rotation, outputs...);
};

const auto EllipseWithEllipseArc = [](const TwoEllipses& o, auto&&... outputs) {
    return Intersect_EllipseWithEllipseArc(o.first.centre, o.first.a, o.first.b, o.first.rotation, o.second.centre,
                                           o.second.a, o.second.b, o.second.rotation, o.second.start, o.second.sweep,
                                           outputs...);
};

const auto EllipseArcWithEllipseArc = [](const TwoEllipses& o, auto&&... outputs) {
    return Intersect_EllipseArcWithEllipseArc(o.first.centre, o.first.a, o.first.b, o.first.rotation, o.first.start,
                                              o.first.sweep, o.second.centre, o.second.a, o.second.b, o.second.rotation,
                                              o.second.start, o.second.sweep, outputs...);
};

const auto CircleWithEllipse = [](const ArcAndEllipse& o, auto&&... outputs) {
    return Intersect_CircleWithEllipse(o.arc.centre, o.arc.radius, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                       o.ellipse.rotation, outputs...);
};

const auto CircleWithEllipseArc = [](const ArcAndEllipse& o, auto&&... outputs) {
    return Intersect_CircleWithEllipseArc(o.arc.centre, o.arc.radius, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                          o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep, outputs...);
};

const auto ArcWithEllipse = [](const ArcAndEllipse& o, auto&&... outputs) {
    return Intersect_ArcWithEllipse(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.ellipse.centre, o.ellipse.a,
                                    o.ellipse.b, o.ellipse.rotation, outputs...);
};

const auto ArcWithEllipseArc = [](const ArcAndEllipse& o, auto&&... outputs) {
    return Intersect_ArcWithEllipseArc(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.ellipse.centre,
                                       o.ellipse.a, o.ellipse.b, o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep,
                                       outputs...);
};

template <typename Operands, typename Member>
void TwoPointers(Source& source, ResultHash& hash, const Operands& operands, const Member& member)
{
    IntoTwoPointers(source, hash, [&](DPOINT2* first, DPOINT2* second) { return member(operands, first, second); });
}

template <typename Operands, typename Member>
void FourPointers(Source& source, ResultHash& hash, const Operands& operands, const Member& member)
{
    IntoFourPointers(source, hash, [&](DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth) {
        return member(operands, first, second, third, fourth);
    });
}

template <typename Operands, typename Member>
void Vector(Source& source, ResultHash& hash, const Operands& operands, const Member& member)
{
    IntoVector(source, hash,
               [&](std::vector<DPOINT2>& points, int maxPoints) { return member(operands, points, maxPoints); });
}

} // namespace

const std::vector<Load> EllipseIntersectionLoads = {
    {"Intersect_BeelineWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         const BeelineAndEllipse o = RandomBeelineAndEllipse(source);
         DPOINT2 first = Untouched();
         DPOINT2 second = Untouched();
         hash << BeelineWithEllipse(o, &first, &second) << first << second;
     }},
    {"Intersect_BeelineWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         Vector(source, hash, RandomBeelineAndEllipse(source), BeelineWithEllipse);
     }},
    {"Intersect_BeelineWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "DPOINT2*, DPOINT2*)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         TwoPointers(source, hash, RandomBeelineAndEllipse(source), BeelineWithEllipseArc);
     }},
    {"Intersect_BeelineWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         Vector(source, hash, RandomBeelineAndEllipse(source), BeelineWithEllipseArc);
     }},
    {"Intersect_LineWithEllipse(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, DPOINT2*, "
     "DPOINT2*)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         TwoPointers(source, hash, RandomStretchAndEllipse(source), LineWithEllipse);
     }},
    {"Intersect_LineWithEllipse(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Cheap,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomStretchAndEllipse(source), LineWithEllipse); }},
    {"Intersect_LineWithEllipseArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, double, "
     "double, DPOINT2*, DPOINT2*)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         TwoPointers(source, hash, RandomStretchAndEllipse(source), LineWithEllipseArc);
     }},
    {"Intersect_LineWithEllipseArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, double, "
     "double, std::vector<DPOINT2>&, int)",
     Cheap,
     [](Source& source, ResultHash& hash) {
         Vector(source, hash, RandomStretchAndEllipse(source), LineWithEllipseArc);
     }},
    {"Intersect_EllipseWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) { FourPointers(source, hash, RandomEllipses(source), EllipseWithEllipse); }},
    {"Intersect_EllipseWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomEllipses(source), EllipseWithEllipse); }},
    {"Intersect_EllipseWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) {
         FourPointers(source, hash, RandomEllipses(source), EllipseWithEllipseArc);
     }},
    {"Intersect_EllipseWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomEllipses(source), EllipseWithEllipseArc); }},
    {"Intersect_EllipseArcWithEllipseArc(DPOINT2 const&, double, double, double, double, double, DPOINT2 const&, "
     "double, double, double, double, double, DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) {
         FourPointers(source, hash, RandomEllipses(source), EllipseArcWithEllipseArc);
     }},
    {"Intersect_EllipseArcWithEllipseArc(DPOINT2 const&, double, double, double, double, double, DPOINT2 const&, "
     "double, double, double, double, double, std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomEllipses(source), EllipseArcWithEllipseArc); }},
    {"Intersect_CircleWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*, "
     "DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) {
         FourPointers(source, hash, RandomArcAndEllipse(source), CircleWithEllipse);
     }},
    {"Intersect_CircleWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcAndEllipse(source), CircleWithEllipse); }},
    {"Intersect_CircleWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) {
         FourPointers(source, hash, RandomArcAndEllipse(source), CircleWithEllipseArc);
     }},
    {"Intersect_CircleWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcAndEllipse(source), CircleWithEllipseArc); }},
    {"Intersect_ArcWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) { FourPointers(source, hash, RandomArcAndEllipse(source), ArcWithEllipse); }},
    {"Intersect_ArcWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcAndEllipse(source), ArcWithEllipse); }},
    {"Intersect_ArcWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Costly,
     [](Source& source, ResultHash& hash) {
         FourPointers(source, hash, RandomArcAndEllipse(source), ArcWithEllipseArc);
     }},
    {"Intersect_ArcWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, std::vector<DPOINT2>&, int)",
     Costly,
     [](Source& source, ResultHash& hash) { Vector(source, hash, RandomArcAndEllipse(source), ArcWithEllipseArc); }},
};

} // namespace math::hashes
