#include "support/catalogue/Catalogue.h"

namespace math::test
{

const std::vector<ConstOperation> PointerForms = {
    {"Intersect(LineD2D const&, LineD2D const&, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 point;
         answer << Intersect(o.line, o.otherLine, &point) << point;
     }},
    {"Intersect_BeelineWithBeeline(DPOINT2 const&, double, DPOINT2 const&, double, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         answer << Intersect_BeelineWithBeeline(o.p, o.angle, o.r, o.angle + 1, &first) << first;
     }},
    {"Intersect_BeelineWithLine(DPOINT2 const&, double, DPOINT2 const&, DPOINT2 const&, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         answer << Intersect_BeelineWithLine(o.p, o.angle, o.r, o.s, &first) << first;
     }},
    {"Intersect_LineWithLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         answer << Intersect_LineWithLine(o.p, o.q, o.r, o.s, &first) << first;
     }},
    {"Intersect_BeelineWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, DPOINT2*, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_BeelineWithCircle(o.p, o.angle, o.arc.centre, o.arc.radius, &first, &second) << first
                << second;
     }},
    {"Intersect_BeelineWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_BeelineWithArc(o.p, o.angle, o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, &first,
                                            &second)
                << first << second;
     }},
    {"Intersect_LineWithCircle(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_LineWithCircle(o.p, o.q, o.arc.centre, o.arc.radius, &first, &second) << first << second;
     }},
    {"Intersect_LineWithArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, DPOINT2*, "
     "DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_LineWithArc(o.p, o.q, o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, &first,
                                         &second)
                << first << second;
     }},
    {"Intersect_CircleWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, DPOINT2*, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_CircleWithCircle(o.arc.centre, o.arc.radius, o.otherArc.centre, o.otherArc.radius, &first,
                                              &second)
                << first << second;
     }},
    {"Intersect_CircleWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_CircleWithArc(o.arc.centre, o.arc.radius, o.otherArc.centre, o.otherArc.radius,
                                           o.otherArc.start, o.otherArc.sweep, &first, &second)
                << first << second;
     }},
    {"Intersect_ArcWithArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, DPOINT2*, "
     "DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_ArcWithArc(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.otherArc.centre,
                                        o.otherArc.radius, o.otherArc.start, o.otherArc.sweep, &first, &second)
                << first << second;
     }},
    {"Intersect_BeelineWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_BeelineWithEllipse(o.p, o.angle, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                                o.ellipse.rotation, &first, &second)
                << first << second;
     }},
    {"Intersect_BeelineWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_BeelineWithEllipseArc(o.p, o.angle, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                                   o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep, &first,
                                                   &second)
                << first << second;
     }},
    {"Intersect_LineWithEllipse(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, DPOINT2*, "
     "DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_LineWithEllipse(o.p, DPOINT2(2 * o.q.x, o.q.y), o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                             o.ellipse.rotation, &first, &second)
                << first << second;
     }},
    {"Intersect_LineWithEllipseArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, double, "
     "double, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << Intersect_LineWithEllipseArc(o.p, DPOINT2(2 * o.q.x, o.q.y), o.ellipse.centre, o.ellipse.a,
                                                o.ellipse.b, o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep,
                                                &first, &second)
                << first << second;
     }},
    {"Intersect_EllipseWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_EllipseWithEllipse(o.ellipse.centre, o.ellipse.a, o.ellipse.b, o.ellipse.rotation,
                                                o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b,
                                                o.otherEllipse.rotation, &first, &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"Intersect_EllipseWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_EllipseWithEllipseArc(o.ellipse.centre, o.ellipse.a, o.ellipse.b, o.ellipse.rotation,
                                                   o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b,
                                                   o.otherEllipse.rotation, o.otherEllipse.start, o.otherEllipse.sweep,
                                                   &first, &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"Intersect_EllipseArcWithEllipseArc(DPOINT2 const&, double, double, double, double, double, DPOINT2 const&, "
     "double, double, double, double, double, DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_EllipseArcWithEllipseArc(
                       o.ellipse.centre, o.ellipse.a, o.ellipse.b, o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep,
                       o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b, o.otherEllipse.rotation,
                       o.otherEllipse.start, o.otherEllipse.sweep, &first, &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"Intersect_CircleWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, DPOINT2*, DPOINT2*, "
     "DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_CircleWithEllipse(o.otherArc.centre, o.otherArc.radius, o.ellipse.centre, o.ellipse.a,
                                               o.ellipse.b, o.ellipse.rotation, &first, &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"Intersect_CircleWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_CircleWithEllipseArc(o.otherArc.centre, o.otherArc.radius, o.ellipse.centre, o.ellipse.a,
                                                  o.ellipse.b, o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep,
                                                  &first, &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"Intersect_ArcWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_ArcWithEllipse(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.otherEllipse.centre,
                                            o.otherEllipse.a, o.otherEllipse.b, o.otherEllipse.rotation, &first,
                                            &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"Intersect_ArcWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, DPOINT2*, DPOINT2*, DPOINT2*, DPOINT2*)",
     Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         DPOINT2 third;
         DPOINT2 fourth;
         answer << Intersect_ArcWithEllipseArc(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep,
                                               o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b,
                                               o.otherEllipse.rotation, o.otherEllipse.start, o.otherEllipse.sweep,
                                               &first, &second, &third, &fourth)
                << first << second << third << fourth;
     }},
    {"SolveCubicEquation(double, double, double, double, double*, double*, double*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         double x1 = 0;
         double x2 = 0;
         double x3 = 0;
         answer << SolveCubicEquation(o.x, o.y, o.y, o.z, &x1, &x2, &x3) << x1 << x2 << x3;
     }},
    {"SolveQuadraticEquation(double, double, double, double*, double*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         double x1 = 0;
         double x2 = 0;
         answer << SolveQuadraticEquation(o.x, o.y, o.z, &x1, &x2) << x1 << x2;
     }},
};

const std::vector<ChangingOperation> VectorForms = {
    {"Intersect_BeelineWithBeeline(DPOINT2 const&, double, DPOINT2 const&, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_BeelineWithBeeline(o.p, o.angle, o.r, o.angle + 1, o.points, 4) << o.points;
     }},
    {"Intersect_BeelineWithLine(DPOINT2 const&, double, DPOINT2 const&, DPOINT2 const&, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_BeelineWithLine(o.p, o.angle, o.r, o.s, o.points, 4) << o.points;
     }},
    {"Intersect_LineWithLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, std::vector<DPOINT2>&, "
     "int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) { answer << Intersect_LineWithLine(o.p, o.q, o.r, o.s, o.points, 4) << o.points; }},
    {"Intersect_BeelineWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_BeelineWithCircle(o.p, o.angle, o.arc.centre, o.arc.radius, o.points, 4) << o.points;
     }},
    {"Intersect_BeelineWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, std::vector<DPOINT2>&, "
     "int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_BeelineWithArc(o.p, o.angle, o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep,
                                            o.points, 4)
                << o.points;
     }},
    {"Intersect_LineWithCircle(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_LineWithCircle(o.p, o.q, o.arc.centre, o.arc.radius, o.points, 4) << o.points;
     }},
    {"Intersect_LineWithArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_LineWithArc(o.p, o.q, o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.points, 4)
                << o.points;
     }},
    {"Intersect_CircleWithCircle(DPOINT2 const&, double, DPOINT2 const&, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_CircleWithCircle(o.arc.centre, o.arc.radius, o.otherArc.centre, o.otherArc.radius,
                                              o.points, 4)
                << o.points;
     }},
    {"Intersect_CircleWithArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, std::vector<DPOINT2>&, "
     "int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_CircleWithArc(o.arc.centre, o.arc.radius, o.otherArc.centre, o.otherArc.radius,
                                           o.otherArc.start, o.otherArc.sweep, o.points, 4)
                << o.points;
     }},
    {"Intersect_ArcWithArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_ArcWithArc(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.otherArc.centre,
                                        o.otherArc.radius, o.otherArc.start, o.otherArc.sweep, o.points, 4)
                << o.points;
     }},
    {"Intersect_BeelineWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_BeelineWithEllipse(o.p, o.angle, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                                o.ellipse.rotation, o.points, 4)
                << o.points;
     }},
    {"Intersect_BeelineWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_BeelineWithEllipseArc(o.p, o.angle, o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                                   o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep, o.points, 4)
                << o.points;
     }},
    {"Intersect_LineWithEllipse(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_LineWithEllipse(o.p, DPOINT2(2 * o.q.x, o.q.y), o.ellipse.centre, o.ellipse.a, o.ellipse.b,
                                             o.ellipse.rotation, o.points, 4)
                << o.points;
     }},
    {"Intersect_LineWithEllipseArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double, double, double, "
     "double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_LineWithEllipseArc(o.p, DPOINT2(2 * o.q.x, o.q.y), o.ellipse.centre, o.ellipse.a,
                                                o.ellipse.b, o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep,
                                                o.points, 4)
                << o.points;
     }},
    {"Intersect_EllipseWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_EllipseWithEllipse(o.ellipse.centre, o.ellipse.a, o.ellipse.b, o.ellipse.rotation,
                                                o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b,
                                                o.otherEllipse.rotation, o.points, 4)
                << o.points;
     }},
    {"Intersect_EllipseWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_EllipseWithEllipseArc(o.ellipse.centre, o.ellipse.a, o.ellipse.b, o.ellipse.rotation,
                                                   o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b,
                                                   o.otherEllipse.rotation, o.otherEllipse.start, o.otherEllipse.sweep,
                                                   o.points, 4)
                << o.points;
     }},
    {"Intersect_EllipseArcWithEllipseArc(DPOINT2 const&, double, double, double, double, double, DPOINT2 const&, "
     "double, double, double, double, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_EllipseArcWithEllipseArc(o.ellipse.centre, o.ellipse.a, o.ellipse.b, o.ellipse.rotation,
                                                      o.ellipse.start, o.ellipse.sweep, o.otherEllipse.centre,
                                                      o.otherEllipse.a, o.otherEllipse.b, o.otherEllipse.rotation,
                                                      o.otherEllipse.start, o.otherEllipse.sweep, o.points, 4)
                << o.points;
     }},
    {"Intersect_CircleWithEllipse(DPOINT2 const&, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_CircleWithEllipse(o.otherArc.centre, o.otherArc.radius, o.ellipse.centre, o.ellipse.a,
                                               o.ellipse.b, o.ellipse.rotation, o.points, 4)
                << o.points;
     }},
    {"Intersect_CircleWithEllipseArc(DPOINT2 const&, double, DPOINT2 const&, double, double, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_CircleWithEllipseArc(o.otherArc.centre, o.otherArc.radius, o.ellipse.centre, o.ellipse.a,
                                                  o.ellipse.b, o.ellipse.rotation, o.ellipse.start, o.ellipse.sweep,
                                                  o.points, 4)
                << o.points;
     }},
    {"Intersect_ArcWithEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_ArcWithEllipse(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep, o.otherEllipse.centre,
                                            o.otherEllipse.a, o.otherEllipse.b, o.otherEllipse.rotation, o.points, 4)
                << o.points;
     }},
    {"Intersect_ArcWithEllipseArc(DPOINT2 const&, double, double, double, DPOINT2 const&, double, double, double, "
     "double, double, std::vector<DPOINT2>&, int)",
     Memory::CallersVector,
     [](Setting& o, Answer& answer) {
         answer << Intersect_ArcWithEllipseArc(o.arc.centre, o.arc.radius, o.arc.start, o.arc.sweep,
                                               o.otherEllipse.centre, o.otherEllipse.a, o.otherEllipse.b,
                                               o.otherEllipse.rotation, o.otherEllipse.start, o.otherEllipse.sweep,
                                               o.points, 4)
                << o.points;
     }},
    {"SolveCubicEquation(double, double, double, double, std::vector<double>&)", Memory::CallersVector,
     [](Setting& o, Answer& answer) { answer << SolveCubicEquation(o.x, o.y, o.y, o.z, o.roots) << o.roots; }},
    {"SolveQuadraticEquation(double, double, double, std::vector<double>&)", Memory::CallersVector,
     [](Setting& o, Answer& answer) { answer << SolveQuadraticEquation(o.x, o.y, o.z, o.roots) << o.roots; }},
};

} // namespace math::test
