#pragma once

/// @file
/// Points that two plane curves share, and the real roots of polynomial equations.
///
/// Every member is named `Intersect_` and its two curves, and takes them in the order of its name. The laws below
/// hold for the whole family; a member tells only what it adds to them.
///
/// **Curves.** All angles are radians, counter-clockwise from the positive x axis.
/// - A *beeline* is an unbounded straight line: a point and an angle, of which only the angle modulo π counts. It has
///   no direction of travel and is not a ray.
/// - A *line* in a member's name is a bounded stretch between two ends.
/// - A *circle* is a centre and a radius.
/// - An *arc* is a circle with a start angle and a signed sweep: a positive sweep runs counter-clockwise from the
///   start, a negative one clockwise, and its absolute value is the extent. A sweep of 0 holds the start point alone,
///   but see Intersect_ArcWithArc.
///
/// **Beelines.** The angle is first brought into [0, π). Within DoubleTolerance of π/2 the beeline is vertical,
/// everywhere else it has the direction (1, tan angle), enormous but finite just off the vertical.
///
/// **Folding.** Angles of beelines and of arcs are folded by whole turns, one at a time (Primitives.h): a huge angle
/// takes its time, and an infinite one never returns.
///
/// **Results.** The result is the number of common points. It is -1 where the two curves coincide along a length, so
/// that there is no single point to give; a member that has no such result says so.
///
/// **Tolerance.** Whole curves meet by the exact kernel (AnalyticKernel.h): lines are parallel and centres concentric
/// at 1e-9, while a tangency is a matter of one rounding unit. What lies on a stretch or an arc is then kept by
/// IsPointInLine and IsPointInArc at DoubleTolerance, so a point within 1e-9 of an end counts as on the curve.
///
/// **Order of two points.**
/// - A straight line with a circle: the point with the greater x comes first, on a vertical the one with the greater
///   y, whichever way the angle or the stretch points. A stretch drawn from right to left meets its points against
///   the order of travel.
/// - Two circles: the first point lies on the left of the vector from the first centre to the second.
/// - Members that drop points keep this order; a single survivor goes to the first output.
///
/// **Pointer forms** end in outputs. Each may be null, which skips it and leaves the result as it is. An output is
/// written only when its point is reported and otherwise stays as it was. An output may be one of the inputs: inputs
/// are read first.
///
/// **Vector forms** take a vector and an `int` instead of the outputs. They append to the vector and never clear it.
/// A point of the vector itself may be an input. The trailing `int` has one of three meanings, told by its name:
/// - `ignored` is never read.
/// - `wantPoints`: if not 0, the points of the pointer form are appended. If 0, a quick test gives a count, computes
///   no point and leaves the vector alone. The quick tests have tolerances of their own: near a tangency, or where
///   curves coincide, their count can differ from that of the full form.
/// - `maxPoints`: the greatest number of points to append, first point first; a negative value means all. It limits
///   the vector and never the result, so 0 appends nothing and still tells the count.
///
/// **Failures.** No exception of the underlying geometry types leaves a member: a stretch of no length or a negative
/// radius gives 0, unless a member says otherwise. NaN input gives no crash; what is counted for it has no meaning.
///
/// **Memory.** Pointer forms ask for none, unless degenerate input makes the kernel raise an exception, which is caught
/// inside. A vector form grows the caller's vector and nothing else, not even that if the vector has room; it passes on
/// what the growth raises, and the vector is then as it was.
///
/// **Threads.** All functions may run on several threads at once.

#include "math/Export.h"
#include "math/Primitives.h"

#include <vector>

namespace math
{

/// The unbounded straight lines through two records: their ends carry a position and a direction, no extent.
///
/// Lines count as parallel, and as one line, at 1e-9 on their unit coefficients.
///
/// @param a, b   the two records
/// @param point  receives the point of intersection, which need not lie on either stretch; may be null
/// @return 1 for one point, 0 for parallel lines or a record of no length, -1 for one and the same line
QORMATH_EXPORT int Intersect(const LineD2D& a, const LineD2D& b, DPOINT2* point);

/// Two beelines.
///
/// @param p, angleOfP  the first beeline
/// @param q, angleOfQ  the second beeline
/// @param point        receives the point of intersection; may be null
/// @return 1 for one point, 0 for parallel beelines, -1 for one and the same
QORMATH_EXPORT int Intersect_BeelineWithBeeline(const DPOINT2& p, double angleOfP, const DPOINT2& q, double angleOfQ,
                                                DPOINT2* point);

/// Two beelines: appends the point when the result is 1, whatever the trailing `int`.
QORMATH_EXPORT int Intersect_BeelineWithBeeline(const DPOINT2& p, double angleOfP, const DPOINT2& q, double angleOfQ,
                                                std::vector<DPOINT2>& points, int ignored);

/// A beeline and a stretch.
///
/// @param p, angleOfP           the beeline
/// @param firstEnd, secondEnd   the ends of the stretch
/// @param point                 receives the point of intersection; may be null
/// @return 1 for one point, 0 when they miss each other or the stretch has no length, -1 when the stretch lies on the
///         beeline, however short it is
QORMATH_EXPORT int Intersect_BeelineWithLine(const DPOINT2& p, double angleOfP, const DPOINT2& firstEnd,
                                             const DPOINT2& secondEnd, DPOINT2* point);

/// A beeline and a stretch: appends the point when the result is 1, whatever the trailing `int`.
QORMATH_EXPORT int Intersect_BeelineWithLine(const DPOINT2& p, double angleOfP, const DPOINT2& firstEnd,
                                             const DPOINT2& secondEnd, std::vector<DPOINT2>& points, int ignored);

/// Two stretches, the ends included.
///
/// Stretches of one straight line are compared along x, or along y when the first stretch is vertical within
/// DoubleTolerance. Touching end to end they meet in that end: in the first stretch's first end if it coincides with
/// an end of the second stretch, otherwise in its second end. Touching is asked along that axis alone, an end by both
/// coordinates: of steep stretches whose ends are between 1e-9 and a few times that apart the far end may be told.
///
/// @param firstEndOfA, secondEndOfA  the first stretch
/// @param firstEndOfB, secondEndOfB  the second stretch
/// @param point                      receives the common point; may be null
/// @return 1 for one point, 0 when they miss each other or one of them has no length, -1 when they overlap along a
///         length
QORMATH_EXPORT int Intersect_LineWithLine(const DPOINT2& firstEndOfA, const DPOINT2& secondEndOfA,
                                          const DPOINT2& firstEndOfB, const DPOINT2& secondEndOfB, DPOINT2* point);

/// Two stretches: appends the point when the result of the pointer form is 1.
///
/// With `wantPoints` 0 a quick test by boxes and signed areas answers 1 when the stretches meet, else 0. It is exact,
/// has no tolerance, knows no -1 (an overlap along a length gives 1) and accepts stretches of no length.
QORMATH_EXPORT int Intersect_LineWithLine(const DPOINT2& firstEndOfA, const DPOINT2& secondEndOfA,
                                          const DPOINT2& firstEndOfB, const DPOINT2& secondEndOfB,
                                          std::vector<DPOINT2>& points, int wantPoints);

/// A beeline and a circle.
///
/// A tangent fills both outputs with its one point. It is recognised only within one rounding unit of the radius: a
/// line further out by more than that gives 0, one further in gives two points close together. A circle of radius 0
/// is met only by a beeline through its centre.
///
/// @param point, angle    the beeline
/// @param centre, radius  the circle
/// @param first, second   receive the points; either may be null
/// @return 0, 1 or 2; 0 for a negative radius
QORMATH_EXPORT int Intersect_BeelineWithCircle(const DPOINT2& point, double angle, const DPOINT2& centre, double radius,
                                               DPOINT2* first, DPOINT2* second);

/// A beeline and a circle: a tangent appends its point once.
///
/// With `wantPoints` 0 the distance from the centre to the beeline is compared with the radius: 1 when they are equal
/// within DoubleTolerance, 0 when it is greater, else 2. A negative radius is compared like any other, and a beeline
/// for which no distance exists gives 2. The angle is not folded, so a huge or infinite one returns at once, and only
/// π/2 and 3π/2 themselves (within DoubleTolerance) are upright: at -π/2 + 1e-10 the beeline leans by that much here, and
/// does not in the full form.
QORMATH_EXPORT int Intersect_BeelineWithCircle(const DPOINT2& point, double angle, const DPOINT2& centre, double radius,
                                               std::vector<DPOINT2>& points, int wantPoints);

/// A beeline and an arc.
///
/// @param point, angle                  the beeline
/// @param centre, radius, start, sweep  the arc
/// @param first, second                 receive the points; either may be null
/// @return 0, 1 or 2; 0 for a radius that is not positive
QORMATH_EXPORT int Intersect_BeelineWithArc(const DPOINT2& point, double angle, const DPOINT2& centre, double radius,
                                            double start, double sweep, DPOINT2* first, DPOINT2* second);

/// A beeline and an arc: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_BeelineWithArc(const DPOINT2& point, double angle, const DPOINT2& centre, double radius,
                                            double start, double sweep, std::vector<DPOINT2>& points, int maxPoints);

/// A stretch and a circle.
///
/// @param firstEnd, secondEnd  the ends of the stretch
/// @param centre, radius       the circle
/// @param first, second        receive the points; either may be null
/// @return 0, 1 or 2; 0 for a negative radius or a stretch shorter than DoubleTolerance in both coordinates
QORMATH_EXPORT int Intersect_LineWithCircle(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre,
                                            double radius, DPOINT2* first, DPOINT2* second);

/// A stretch and a circle: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_LineWithCircle(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre,
                                            double radius, std::vector<DPOINT2>& points, int maxPoints);

/// A stretch and an arc.
///
/// @param firstEnd, secondEnd           the ends of the stretch
/// @param centre, radius, start, sweep  the arc
/// @param first, second                 receive the points; either may be null
/// @return 0, 1 or 2; 0 for a radius that is not positive or a stretch shorter than DoubleTolerance in both
///         coordinates
QORMATH_EXPORT int Intersect_LineWithArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre,
                                         double radius, double start, double sweep, DPOINT2* first, DPOINT2* second);

/// A stretch and an arc: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_LineWithArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre,
                                         double radius, double start, double sweep, std::vector<DPOINT2>& points,
                                         int maxPoints);

/// Two circles.
///
/// Circles that touch, from outside or inside, write their point to the first output and leave the second as it was.
/// Centres at most 1e-9 apart count as one centre.
///
/// @param firstCentre, firstRadius    the first circle
/// @param secondCentre, secondRadius  the second circle
/// @param first, second               receive the points; either may be null
/// @return 0, 1 or 2; -1 for identical circles; 0 for a negative radius
QORMATH_EXPORT int Intersect_CircleWithCircle(const DPOINT2& firstCentre, double firstRadius,
                                              const DPOINT2& secondCentre, double secondRadius, DPOINT2* first,
                                              DPOINT2* second);

/// Two circles: appends the points of the pointer form.
///
/// With `wantPoints` 0 the distance d of the centres is compared, within DoubleTolerance: -1 for one centre and one
/// radius; 1 when d equals either radius or their sum; 0 when the circles are apart or one lies inside the other;
/// else 2. So a centre on the other circle counts 1 though the circles cross twice, and circles that touch from
/// inside count 2.
QORMATH_EXPORT int Intersect_CircleWithCircle(const DPOINT2& firstCentre, double firstRadius,
                                              const DPOINT2& secondCentre, double secondRadius,
                                              std::vector<DPOINT2>& points, int wantPoints);

/// A circle and an arc.
///
/// @param circleCentre, circleRadius             the circle
/// @param arcCentre, arcRadius, start, sweep     the arc
/// @param first   receives the first point, or the only one. Not optional: with null the result is 0 unless the
///                curves cross in two points that both lie on the arc
/// @param second  receives the second point; may be null
/// @return 0, 1 or 2; 0 also where the circle carries the arc, and for a radius of the arc that is not positive
QORMATH_EXPORT int Intersect_CircleWithArc(const DPOINT2& circleCentre, double circleRadius, const DPOINT2& arcCentre,
                                           double arcRadius, double start, double sweep, DPOINT2* first,
                                           DPOINT2* second);

/// A circle and an arc: appends every point, whatever the trailing `int`.
///
/// @return 0, 1 or 2; -1 where the circle carries the arc, with the arc's two ends appended, the start first
QORMATH_EXPORT int Intersect_CircleWithArc(const DPOINT2& circleCentre, double circleRadius, const DPOINT2& arcCentre,
                                           double arcRadius, double start, double sweep, std::vector<DPOINT2>& points,
                                           int ignored);

/// Two arcs.
///
/// Arcs with exactly the same centre and equal radii (within DoubleTolerance) lie on one circle and are compared by
/// their ends, each taken counter-clockwise. They are expected to start in [0, 2π). Their outcomes:
///
/// | the arcs                                    | result | first             | second                |
/// |---------------------------------------------|--------|-------------------|-----------------------|
/// | are the same                                | -1     | start             | end                   |
/// | overlap, the second starts inside the first | -1     | the second's start | the first's end      |
/// | overlap, the second ends inside the first   | -1     | the first's start | the second's end      |
/// | share both ends                             | 2      | the first's start | the first's end       |
/// | share one end                               | 1      | that end          | untouched             |
/// | anything else                               | 0      | untouched         | untouched             |
///
/// A second arc wholly inside the first takes the second row, so the overlap is told up to the first's end. A first
/// arc wholly inside the second takes the last row. An arc of sweep 0 runs from its start to its start, which passes
/// for the whole circle here: two of them on one circle overlap. Centres whose distance underflows, less than about
/// 1e-162 apart, are the same.
///
/// @param firstCentre, firstRadius, firstStart, firstSweep      the first arc
/// @param secondCentre, secondRadius, secondStart, secondSweep  the second arc
/// @param first, second  receive the points, on -1 the two ends of the overlap; either may be null
/// @return 0, 1 or 2; -1 when the arcs overlap along a length
QORMATH_EXPORT int Intersect_ArcWithArc(const DPOINT2& firstCentre, double firstRadius, double firstStart,
                                        double firstSweep, const DPOINT2& secondCentre, double secondRadius,
                                        double secondStart, double secondSweep, DPOINT2* first, DPOINT2* second);

/// Two arcs: appends at most `maxPoints` points, of an overlap its two ends.
QORMATH_EXPORT int Intersect_ArcWithArc(const DPOINT2& firstCentre, double firstRadius, double firstStart,
                                        double firstSweep, const DPOINT2& secondCentre, double secondRadius,
                                        double secondStart, double secondSweep, std::vector<DPOINT2>& points,
                                        int maxPoints);

// Straight lines with ellipses
//
// An ellipse is a centre, the semi-axis `a` along its own x axis, the semi-axis `b` across it and `rotation`, the
// direction of its own x axis. An elliptical arc adds a start and a signed sweep: polar angles at the centre, counted
// from the ellipse's own x axis, a positive sweep running counter-clockwise. Nothing asks for a >= b here.
//
// A tangency is looked for first: a point of the ellipse with the direction of the line that lies within
// DoubleTolerance of it. Otherwise the line is moved into the ellipse's own frame and SolveQuadraticEquation gives the
// points, the root of larger magnitude first; no side can be read from their order. Both ends of an elliptical arc
// count as on it within DoubleTolerance of angle. Semi-axes of 0 are not tested for: they give what the divisions by
// them give.

/// A beeline and an ellipse.
///
/// Unlike the rest of the family it needs both outputs and always writes both: (InvalidDouble, InvalidDouble) for a
/// point that does not exist. A tangency is one point, in `first`.
///
/// @param point, angle            the beeline
/// @param centre, a, b, rotation  the ellipse
/// @param first, second           receive the points; never null
/// @return 0, 1 or 2
QORMATH_EXPORT int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a,
                                                double b, double rotation, DPOINT2* first, DPOINT2* second);

/// A beeline and an ellipse: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_BeelineWithEllipse(const DPOINT2& point, double angle, const DPOINT2& centre, double a,
                                                double b, double rotation, std::vector<DPOINT2>& points, int maxPoints);

/// A beeline and an elliptical arc.
///
/// @param point, angle                          the beeline
/// @param centre, a, b, rotation, start, sweep  the elliptical arc
/// @param first, second                         receive the points; either may be null
/// @return 0, 1 or 2
QORMATH_EXPORT int Intersect_BeelineWithEllipseArc(const DPOINT2& point, double angle, const DPOINT2& centre, double a,
                                                   double b, double rotation, double start, double sweep,
                                                   DPOINT2* first, DPOINT2* second);

/// A beeline and an elliptical arc: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_BeelineWithEllipseArc(const DPOINT2& point, double angle, const DPOINT2& centre, double a,
                                                   double b, double rotation, double start, double sweep,
                                                   std::vector<DPOINT2>& points, int maxPoints);

/// A stretch and an ellipse.
///
/// @param firstEnd, secondEnd     the ends of the stretch
/// @param centre, a, b, rotation  the ellipse
/// @param first, second           receive the points; either may be null
/// @return 0, 1 or 2; 0 for a stretch shorter than DoubleTolerance in both coordinates
QORMATH_EXPORT int Intersect_LineWithEllipse(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre,
                                             double a, double b, double rotation, DPOINT2* first, DPOINT2* second);

/// A stretch and an ellipse: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_LineWithEllipse(const DPOINT2& firstEnd, const DPOINT2& secondEnd, const DPOINT2& centre,
                                             double a, double b, double rotation, std::vector<DPOINT2>& points,
                                             int maxPoints);

/// A stretch and an elliptical arc.
///
/// @param firstEnd, secondEnd                   the ends of the stretch
/// @param centre, a, b, rotation, start, sweep  the elliptical arc
/// @param first, second                         receive the points; either may be null
/// @return 0, 1 or 2; 0 for a stretch shorter than DoubleTolerance in both coordinates
QORMATH_EXPORT int Intersect_LineWithEllipseArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd,
                                                const DPOINT2& centre, double a, double b, double rotation,
                                                double start, double sweep, DPOINT2* first, DPOINT2* second);

/// A stretch and an elliptical arc: appends at most `maxPoints` points.
QORMATH_EXPORT int Intersect_LineWithEllipseArc(const DPOINT2& firstEnd, const DPOINT2& secondEnd,
                                                const DPOINT2& centre, double a, double b, double rotation,
                                                double start, double sweep, std::vector<DPOINT2>& points,
                                                int maxPoints);

// Ellipses with ellipses, circles and arcs
//
// These members have four outputs, and rules of their own for them:
// - Pointer forms set every output that is given: (InvalidDouble, InvalidDouble) where there is no point. The
//   exceptions are told with their members.
// - Vector forms replace the content of the vector, whatever the result. `maxPoints` from 0 to 3 limits the vector, any
//   other value means four; the result is that of the pointer form.
//
// Each ellipse is cut at its four extreme points into quarter arcs, over which y is a function of x. All sixteen pairs
// are compared by height and slope at the ends of their shared range and bisected where they cross; points that
// coincide under DoubleTolerance are merged. The order of the points is that of the quarter arcs of the first ellipse,
// by polar angle from its own x axis. The method is numeric, with these limits (docs/intersections.md has figures):
// - A tangency at a point where quarter arcs end may be missed, since the last bits decide.
// - Ellipses given with a < b may be rejected though they meet, since a quick test reads `a` as the greater semi-axis.
// - Two quarter arcs give two points at most, told by heights and slopes at the ends of their shared range: where they
//   cross oftener, or the slopes do not show it, crossings are lost.
// - Points are found within about 1e-9. Figures of about 1e-4 and less lose crossings that merge or look like a touch;
//   elliptical arcs, whose test of a point is relative to their size, drop a good part of them at a size of 1 already.
// - A search whose verticals miss an arc by rounding ends where it stands.

/// Two ellipses.
///
/// @param firstCentre, firstA, firstB, firstRotation      the first ellipse
/// @param secondCentre, secondA, secondB, secondRotation  the second ellipse
/// @param first, second, third, fourth                    receive the first four points; each may be null
/// @return the number of distinct points, which is not limited to 4; -1 for one and the same ellipse or circle
///         (rotations half a turn apart are recognised, whole turns are not)
QORMATH_EXPORT int Intersect_EllipseWithEllipse(const DPOINT2& firstCentre, double firstA, double firstB,
                                                double firstRotation, const DPOINT2& secondCentre, double secondA,
                                                double secondB, double secondRotation, DPOINT2* first, DPOINT2* second,
                                                DPOINT2* third, DPOINT2* fourth);

/// Two ellipses: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_EllipseWithEllipse(const DPOINT2& firstCentre, double firstA, double firstB,
                                                double firstRotation, const DPOINT2& secondCentre, double secondA,
                                                double secondB, double secondRotation, std::vector<DPOINT2>& points,
                                                int maxPoints);

/// An ellipse and an elliptical arc.
///
/// The arc is tested exactly, apart from its ends, which count within DoubleTolerance of distance. A negative sweep is
/// not served: only points at the ends of such an arc are kept.
///
/// @param ellipseCentre, ellipseA, ellipseB, ellipseRotation       the ellipse
/// @param arcCentre, arcA, arcB, arcRotation, start, sweep  the elliptical arc
/// @param first, second, third, fourth                      receive the points; each may be null
/// @return the number of points, at most 4; 0 where the ellipse carries the arc
QORMATH_EXPORT int Intersect_EllipseWithEllipseArc(const DPOINT2& ellipseCentre, double ellipseA, double ellipseB,
                                                   double ellipseRotation, const DPOINT2& arcCentre, double arcA,
                                                   double arcB, double arcRotation, double start, double sweep,
                                                   DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth);

/// An ellipse and an elliptical arc: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_EllipseWithEllipseArc(const DPOINT2& ellipseCentre, double ellipseA, double ellipseB,
                                                   double ellipseRotation, const DPOINT2& arcCentre, double arcA,
                                                   double arcB, double arcRotation, double start, double sweep,
                                                   std::vector<DPOINT2>& points, int maxPoints);

/// Two elliptical arcs. Both are read counter-clockwise, as by IsPointInEllipseArc without a direction.
///
/// A negative sweep is not served: of such an arc only the two ends count, within DoubleTolerance of distance, for an
/// overlap too.
///
/// @param firstCentre, firstA, firstB, firstRotation, firstStart, firstSweep        the first arc
/// @param secondCentre, secondA, secondB, secondRotation, secondStart, secondSweep  the second arc
/// @param first, second, third, fourth                                              receive the points; each may be
/// null
/// @return the number of points, at most 4. Arcs of one ellipse give 1 or 2 for shared ends, and -1, without a point,
///         for an overlap along a length
QORMATH_EXPORT int Intersect_EllipseArcWithEllipseArc(const DPOINT2& firstCentre, double firstA, double firstB,
                                                      double firstRotation, double firstStart, double firstSweep,
                                                      const DPOINT2& secondCentre, double secondA, double secondB,
                                                      double secondRotation, double secondStart, double secondSweep,
                                                      DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth);

/// Two elliptical arcs: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_EllipseArcWithEllipseArc(const DPOINT2& firstCentre, double firstA, double firstB,
                                                      double firstRotation, double firstStart, double firstSweep,
                                                      const DPOINT2& secondCentre, double secondA, double secondB,
                                                      double secondRotation, double secondStart, double secondSweep,
                                                      std::vector<DPOINT2>& points, int maxPoints);

/// A circle and an ellipse.
///
/// An ellipse whose semi-axes agree is a circle, one whose `b` vanishes is the stretch between its vertices, each under
/// DoubleTolerance: then the rules of Intersect_CircleWithCircle and Intersect_LineWithCircle hold, and the third and
/// fourth output stay untouched. All outputs stay untouched if the radius or both semi-axes vanish.
///
/// A negative radius is not served, here and by the other members of a circle or an arc with an ellipse: the result is 0,
/// or, in a flat ellipse that reaches round the circle, points that lie on neither curve.
///
/// @param circleCentre, radius           the circle
/// @param ellipseCentre, a, b, rotation  the ellipse
/// @param first, second, third, fourth   receive the points; each may be null
/// @return the number of points; -1 for one and the same circle
QORMATH_EXPORT int Intersect_CircleWithEllipse(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre,
                                               double a, double b, double rotation, DPOINT2* first, DPOINT2* second,
                                               DPOINT2* third, DPOINT2* fourth);

/// A circle and an ellipse: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_CircleWithEllipse(const DPOINT2& circleCentre, double radius, const DPOINT2& ellipseCentre,
                                               double a, double b, double rotation, std::vector<DPOINT2>& points,
                                               int maxPoints);

/// A circle and an elliptical arc. Outputs stay untouched for a sweep below DoubleTolerance, and only then.
///
/// @param circleCentre, radius                         the circle
/// @param ellipseCentre, a, b, rotation, start, sweep  the elliptical arc
/// @param first, second, third, fourth                 receive the points; each may be null
/// @return the number of points, at most 4; -1 where the circle carries the arc
QORMATH_EXPORT int Intersect_CircleWithEllipseArc(const DPOINT2& circleCentre, double radius,
                                                  const DPOINT2& ellipseCentre, double a, double b, double rotation,
                                                  double start, double sweep, DPOINT2* first, DPOINT2* second,
                                                  DPOINT2* third, DPOINT2* fourth);

/// A circle and an elliptical arc: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_CircleWithEllipseArc(const DPOINT2& circleCentre, double radius,
                                                  const DPOINT2& ellipseCentre, double a, double b, double rotation,
                                                  double start, double sweep, std::vector<DPOINT2>& points,
                                                  int maxPoints);

/// An arc and an ellipse. The arc keeps points by their direction alone. Outputs stay untouched for a sweep below
/// DoubleTolerance, and only then.
///
/// @param arcCentre, radius, start, sweep  the arc
/// @param ellipseCentre, a, b, rotation    the ellipse
/// @param first, second, third, fourth     receive the points; each may be null
/// @return the number of points, at most 4; -1 where the ellipse carries the arc
QORMATH_EXPORT int Intersect_ArcWithEllipse(const DPOINT2& arcCentre, double radius, double start, double sweep,
                                            const DPOINT2& ellipseCentre, double a, double b, double rotation,
                                            DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth);

/// An arc and an ellipse: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_ArcWithEllipse(const DPOINT2& arcCentre, double radius, double start, double sweep,
                                            const DPOINT2& ellipseCentre, double a, double b, double rotation,
                                            std::vector<DPOINT2>& points, int maxPoints);

/// An arc and an elliptical arc. The arc keeps points by direction and by their distance from its centre. Outputs stay
/// untouched if either sweep is below DoubleTolerance, and only then.
///
/// @param arcCentre, radius, arcStart, arcSweep                      the arc
/// @param ellipseCentre, a, b, rotation, ellipseStart, ellipseSweep  the elliptical arc
/// @param first, second, third, fourth                               receive the points; each may be null
/// @return the number of points, at most 4; -1 where both lie on one circle, whether or not they overlap
QORMATH_EXPORT int Intersect_ArcWithEllipseArc(const DPOINT2& arcCentre, double radius, double arcStart,
                                               double arcSweep, const DPOINT2& ellipseCentre, double a, double b,
                                               double rotation, double ellipseStart, double ellipseSweep,
                                               DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth);

/// An arc and an elliptical arc: the points in a vector, at most `maxPoints`.
QORMATH_EXPORT int Intersect_ArcWithEllipseArc(const DPOINT2& arcCentre, double radius, double arcStart,
                                               double arcSweep, const DPOINT2& ellipseCentre, double a, double b,
                                               double rotation, double ellipseStart, double ellipseSweep,
                                               std::vector<DPOINT2>& points, int maxPoints);

// Polynomial equations
//
// Real roots. Coefficients are given from the highest power down. The vector forms append and never clear.

/// The roots of a·x² + b·x + c = 0, by the form of the quadratic formula that loses no digits.
///
/// The coefficients are scaled by the greatest of them first, so the tolerances are relative to it: a leading
/// coefficient below 1e-9 of it makes the equation linear (the far root is then not reported), and a parabola short of
/// the axis by less than that touches it.
///
/// @param x1, x2  receive the roots, the one of larger magnitude first and a double root in both; InvalidDouble stands
///                for a root that does not exist. Either may be null
/// @return the number of distinct roots: 0, 1 or 2. All coefficients 0 give 0; a NaN coefficient gives 2 and NaN roots
QORMATH_EXPORT int SolveQuadraticEquation(double a, double b, double c, double* x1, double* x2);

/// The same, appending the roots that are not NaN; a double root is appended twice.
/// @return whether there is a root
QORMATH_EXPORT bool SolveQuadraticEquation(double a, double b, double c, std::vector<double>& roots);

/// The roots of a·x³ + b·x² + c·x + d = 0, located between the stationary points and polished by a midpoint Newton
/// iteration until the value of the monic polynomial is below DoubleTolerance, or for 51 steps.
///
/// The tolerance is on the value, so a flat root comes back coarse: x³ = 0 gives about 7.5e-4. Three simple roots come
/// in ascending order; a double root is given once and first. A NaN that arises on the way goes out as a root and is
/// counted. A leading coefficient below DoubleTolerance, as given, makes the equation quadratic.
///
/// The iteration may not come to rest in its 51 steps, and what it has reached then goes out as a root although it is
/// none. That is common where the cubic has a step but no stationary point: x³ + 4.7x² + 7.4x + 380 = 0 gives -8.647,
/// where the cubic is 20.85, for its root -8.783. It is rare with three roots far from 1. Put the roots in where it
/// matters.
///
/// @param x1, x2, x3  receive the roots found, the others stay untouched; none may be null. For a quadratic equation
///                    `x1` and `x2` follow the rules of SolveQuadraticEquation, and `x3` stays untouched
/// @return the number of roots: 1, 2 or 3; that of SolveQuadraticEquation for a quadratic equation
QORMATH_EXPORT int SolveCubicEquation(double a, double b, double c, double d, double* x1, double* x2, double* x3);

/// The same, appending the roots.
/// @return true for a cubic equation; the answer of SolveQuadraticEquation for a quadratic one
QORMATH_EXPORT bool SolveCubicEquation(double a, double b, double c, double d, std::vector<double>& roots);

} // namespace math
