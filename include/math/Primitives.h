#pragma once

#include "math/Export.h"

#include <cstdint>
#include <limits>

class gp_Vec2d;

/// Planar geometry on plain numbers and records.
///
/// **Numbers.** All coordinates, lengths and angles are `double`. Two numbers count as equal when the absolute value
/// of their difference is below DoubleTolerance; a difference of exactly 1e-9 counts as unequal. The tolerance is
/// absolute: it does not grow with the operands. Where a comparison is exact instead, the function says so.
///
/// **Angles.** An angle names the direction (cos, sin) of itself, counted counter-clockwise from the positive x axis in
/// a plane whose y axis points up. Names with the word Radian are in radians. The conversion, Regularize and Normalize
/// functions with the word Angle, GetComplementaryAngle, GetReverseAngle, GetArcAngle and GetArcLength are in degrees.
/// Every other angle is in radians, whatever its name.
///
/// **Folding.** An angle is folded into its normal interval by adding, then subtracting whole turns, one at a time. The
/// cost grows with the number of turns: from about 1e9 turns on it is felt in seconds, and an angle so large that one
/// turn no longer changes it (from about 1e17) or an infinite one never returns. Every function that folds an angle
/// says so. NaN comes back as it is, at once.
///
/// **Extreme vectors.** Lengths are square roots of sums of squares, and are not guarded. Squares of coordinates below
/// about 1.5e-162 vanish, and up to about 1e-154 they lose digits: such vectors have a poor length, or none. From about
/// 1e154 on the sum overflows, and directions are lost with it: ComputeAngle(1e200, 0) gives 3π/2, as any vector of
/// that size does, and every point has the distance 0 from a line through points that far apart.
///
/// **Failure.** Nothing here raises an exception of its own. A function that gives a `double` and has no answer gives
/// InvalidDouble, one that gives a `bool` gives false, and outputs are then left untouched. Exceptions of Open CASCADE
/// do not leave these functions.
///
/// **Pointers and references.** An output given by pointer must not be null unless the function says that it may be.
/// An output may be the same object as an input: inputs are read before anything is written.
///
/// **Threads.** There is no state between calls; every function may be called on any thread at any time.
namespace math
{

/// The absolute tolerance of every comparison that is not said to be exact.
inline constexpr double DoubleTolerance = 1e-9;

/// Stands for "no value": a quiet NaN. Ask with std::isnan, never with a comparison.
inline constexpr double InvalidDouble = std::numeric_limits<double>::quiet_NaN();

// Records

/// A point or a free vector in the plane. Its two doubles lie exactly as those of gp_XY and gp_Pnt2d.
class DPOINT2
{
public:
    double x; ///< abscissa
    double y; ///< ordinate

    /// The origin, or the zero vector.
    constexpr DPOINT2() : x(0.0), y(0.0)
    {
    }

    constexpr DPOINT2(double abscissa, double ordinate) : x(abscissa), y(ordinate)
    {
    }
};

/// An axis-aligned rectangle told by its lowest corner and its extents; an extent of 0 is legal.
struct DRECT
{
    double x = 0.0;      ///< least abscissa
    double y = 0.0;      ///< least ordinate
    double width = 0.0;  ///< horizontal extent, never negative in a computed box
    double height = 0.0; ///< vertical extent, never negative in a computed box

    /// Makes this the smallest rectangle that holds both `a` and `b`.
    ///
    /// Nothing counts as empty: a rectangle of zero extents contributes its corner, and an all-zero one pulls the
    /// result to the origin. This may be `a` or `b` itself.
    ///
    /// @return true when both extents of the result are above 0
    QORMATH_EXPORT bool Union(const DRECT& a, const DRECT& b);
};

/// A directed straight stretch from a first to a second end.
struct LineD2D
{
    double x1 = 0.0; ///< abscissa of the first end
    double y1 = 0.0; ///< ordinate of the first end
    double x2 = 0.0; ///< abscissa of the second end
    double y2 = 0.0; ///< ordinate of the second end
};

/// A circular arc by centre, radius and the direction of its first end.
struct ArcD
{
    double cx = 0.0;          ///< abscissa of the centre
    double cy = 0.0;          ///< ordinate of the centre
    double radius = 0.0;      ///< radius
    double startRadian = 0.0; ///< direction from the centre to the first end, radians
};

/// An axis-aligned rectangle told by its four bounds. Mind the order: the two x bounds come first.
struct RealRectD
{
    double minX = 0.0; ///< least abscissa
    double maxX = 0.0; ///< greatest abscissa
    double minY = 0.0; ///< least ordinate
    double maxY = 0.0; ///< greatest ordinate

    /// The box of a straight stretch.
    ///
    /// @param line  must not be null
    QORMATH_EXPORT static RealRectD CreateRealRectD(const LineD2D* line);

    /// The box of the whole circle on which the arc lies, whatever part of it the arc covers.
    ///
    /// A negative radius gives the box of its absolute value.
    ///
    /// @param arc  must not be null
    QORMATH_EXPORT static RealRectD CreateRealRectD(const ArcD* arc);
};

// Integers

/// A common divisor of greatest size, by Euclid's algorithm on the signed values.
///
/// The sign is that of the last divisor: (4, -6) gives -2, while (-4, 6) gives 2 and (-6, 3) gives 3.
///
/// @return the divisor; 1 when either number is 0, not the other number
QORMATH_EXPORT int GetGreatestCommonDivisor(int a, int b);

/// GetGreatestCommonDivisor on 64-bit integers.
QORMATH_EXPORT std::int64_t GetGreatestCommonDivisorInt64(std::int64_t a, std::int64_t b);

/// Reduces a fraction in place: both numbers are divided by their GetGreatestCommonDivisor.
///
/// A zero in either leaves both as they are: (0, 5) stays (0, 5). The divisor may be negative, so both signs may flip,
/// and the result has no canonical sign: (4, -6) becomes (-2, 3), (4, -2) becomes (-2, 1), (-4, 6) becomes (-2, 3).
/// Where the division would leave the range of the type (the least integer by -1), both stay as they are.
QORMATH_EXPORT void Reducify(int& numerator, int& denominator);

/// Reducify on 64-bit integers.
QORMATH_EXPORT void ReducifyInt64(std::int64_t& numerator, std::int64_t& denominator);

// Angles

/// Radians to degrees.
QORMATH_EXPORT double RadianToAngle(double radian);

/// Degrees to radians.
QORMATH_EXPORT double AngleToRadian(double angle);

/// Folds degrees into [0, 360). Exact: 360 gives 0 and 0 stays 0. The cost is that of folding, see above.
QORMATH_EXPORT double RegularizeAngle(double angle);

/// Folds radians into [0, 2π). A tiny negative angle, from which adding 2π gives 2π itself, gives 0.
QORMATH_EXPORT double RegularizeRadian(double radian);

/// Folds the angle between two undirected lines, in degrees, into [0, 180).
QORMATH_EXPORT double RegularizeIncludedAngle(double angle);

/// Folds the angle between two undirected lines, in radians, into [0, π).
QORMATH_EXPORT double RegularizeIncludedRadian(double radian);

/// RegularizeAngle in place.
QORMATH_EXPORT void NormalizeAngle(double& angle);

/// RegularizeRadian in place.
QORMATH_EXPORT void NormalizeRadian(double& radian);

/// RegularizeIncludedAngle in place.
QORMATH_EXPORT void NormalizeIncludedAngle(double& angle);

/// RegularizeIncludedRadian in place.
QORMATH_EXPORT void NormalizeIncludedRadian(double& radian);

/// The opposite direction, in degrees, folded into [0, 360).
QORMATH_EXPORT double GetReverseAngle(double angle);

/// The opposite direction, in radians, folded into [0, 2π).
QORMATH_EXPORT double GetReverseRadian(double radian);

/// The supplement 180 - angle, in degrees, folded into [0, 180). Both 0 and 180 give 0.
QORMATH_EXPORT double GetComplementaryAngle(double angle);

/// The supplement π - radian, folded into [0, π). Both 0 and π give 0.
QORMATH_EXPORT double GetComplementaryRadian(double radian);

/// The angle in degrees that an arc of the given length subtends.
///
/// Signs of length and radius carry through and nothing is folded: more than once round gives more than 360.
///
/// @return degrees, or InvalidDouble for a radius equal to 0
QORMATH_EXPORT double GetArcAngle(double arcLength, double radius);

/// The length of an arc of `angle` degrees. Signs carry through.
QORMATH_EXPORT double GetArcLength(double angle, double radius);

/// Bulge of an arc: the tangent of a quarter of its signed sweep.
///
/// The sweep is `endRadian - startRadian` as it stands, not folded, so an end below the start is a clockwise arc with a
/// negative bulge. A half circle has bulge ±1.
///
/// @param startRadian  direction from the centre to the first end, radians
/// @param endRadian    direction from the centre to the second end, radians
/// @return the bulge, or InvalidDouble for a sweep of ±2π (a quarter of it within DoubleTolerance of ±π/2): no finite
///         bulge tells a full circle. Further poles of the tangent, as at a sweep of 6π, are not looked for
QORMATH_EXPORT double GetBulge(double startRadian, double endRadian);

/// Direction of the vector (x, y), in radians.
///
/// Any vector longer than the least positive normal double has a direction, (1e-12, 0) too. Compare D2GetNormalAngle,
/// which calls more vectors zero and never gives 2π.
///
/// @return the direction in [0, 2π]: just below the positive x axis it may round to exactly 2π. InvalidDouble for a
///         vector no longer than 2.2250738585072014e-308, or with a NaN
QORMATH_EXPORT double ComputeAngle(double x, double y);

/// The signed angle that turns `a` into `b`, in radians.
///
/// @return the angle in [-π, π], positive counter-clockwise; InvalidDouble when both coordinates of either vector are
///         equal to 0
QORMATH_EXPORT double D2RotateAngle(const gp_Vec2d& a, const gp_Vec2d& b);

/// The angle between two vectors, in radians: the absolute value of D2RotateAngle.
///
/// @return the angle in [0, π], or InvalidDouble as D2RotateAngle does
QORMATH_EXPORT double D2GetIncludeAngle(const gp_Vec2d& a, const gp_Vec2d& b);

/// Direction of the vector (x, y), in radians, folded.
///
/// @return the direction in [0, 2π), or InvalidDouble when both coordinates are equal to 0. Compare ComputeAngle
QORMATH_EXPORT double D2GetNormalAngle(double x, double y);

/// The same for a vector.
QORMATH_EXPORT double D2GetNormalAngle(const DPOINT2& vector);

// Distances and projections
//
// A line given by two points is unbounded for D2GetPointToLineDistance and D2GetProjectionPoint and a bounded stretch
// for MinDistanceToLine. A beeline is an unbounded straight line given by a point and an angle; it has no direction
// of travel and is not a ray.

/// The Euclidean distance of two points.
QORMATH_EXPORT double D2GetDistance(const DPOINT2& a, const DPOINT2& b);

/// The perpendicular distance from `point` to the unbounded line through `a` and `b`.
///
/// @return the distance, or InvalidDouble when `a` and `b` are no further apart than 2.2250738585072014e-308. The
///         tolerance plays no part: points 1e-12 apart make a line
QORMATH_EXPORT double D2GetPointToLineDistance(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b);

/// The perpendicular distance from `point` to the beeline through `origin`.
///
/// The angle is not folded: only π/2 and 3π/2 themselves (within DoubleTolerance) are taken as exactly upright, any
/// other angle by its tangent, -π/2 too.
///
/// @param radian  angle of the beeline, radians
/// @return the distance, or InvalidDouble when the direction is lost in rounding
QORMATH_EXPORT double D2GetPointToBeelineDistance(const DPOINT2& point, const DPOINT2& origin, double radian);

/// The distance from `point` to the bounded stretch from `a` to `b`.
///
/// The foot of the perpendicular counts when it lies on the stretch (IsPointInLine), otherwise the nearer end does.
/// A stretch of zero length is its end.
QORMATH_EXPORT double MinDistanceToLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b);

/// The distance from `point` to a circular arc.
///
/// The arc is told redundantly. Both ends have to lie at `radius` from `centre`, but `sweep` is not compared with
/// `arcEnd`: `sweep` alone decides, exactly, whether the radial foot of the point lies on the arc; where it does not,
/// the nearer of the two ends counts.
///
/// @param sweep  radians from `arcStart`, positive counter-clockwise
/// @return the distance; `radius` for the centre (within DoubleTolerance in each coordinate); InvalidDouble when an end
///         does not lie at `radius` from `centre`, or when a direction does not exist
QORMATH_EXPORT double MinDistanceToArc(const DPOINT2& point, const DPOINT2& centre, const DPOINT2& arcStart,
                                       const DPOINT2& arcEnd, double radius, double sweep);

/// The signed length of the projection of `a` on the direction of `b`.
///
/// @return the length; 0 when `b` has a norm of exactly 0
QORMATH_EXPORT double D2GetProjectionDistance(const gp_Vec2d& a, const gp_Vec2d& b);

/// The same on coordinates.
QORMATH_EXPORT double D2GetProjectionDistance(double ax, double ay, double bx, double by);

/// The foot of the perpendicular from `point` on the unbounded line; it is not clamped to the stretch.
///
/// @param out  receives the foot, never null; untouched when the ends of `line` have a distance of exactly 0
QORMATH_EXPORT void D2GetProjectionPoint(const DPOINT2& point, const LineD2D& line, DPOINT2* out);

/// The cross product a.x * b.y - a.y * b.x: positive when the turn from `a` to `b` is counter-clockwise.
QORMATH_EXPORT double D2CrossMultiply(const gp_Vec2d& a, const gp_Vec2d& b);

/// The scalar product a.x * b.x + a.y * b.y.
QORMATH_EXPORT double D2DotMultiply(const gp_Vec2d& a, const gp_Vec2d& b);

/// A point of the world seen from the frame at `origin` whose u axis points along `radian`: the result holds (u, v).
QORMATH_EXPORT DPOINT2 CoorTransXYToUV(const DPOINT2& point, const DPOINT2& origin, double radian);

/// A point (u, v) of the frame at `origin` whose u axis points along `radian`, in the world.
///
/// The inverse of CoorTransXYToUV.
QORMATH_EXPORT DPOINT2 CoorTransUVToXY(const DPOINT2& point, const DPOINT2& origin, double radian);

// Point-on-curve predicates
//
// The word In means on the curve, not in its interior; the interior of an ellipse has IsPointInsideEllipse. All
// predicates answer false where they cannot decide, as for a curve that does not exist. A NaN counts as inside for
// IsPointInsideEllipse and passes the tests of IsPointInLine and IsPointProjInLine that it takes part in; elsewhere it
// gives false. But where the ends of an arc are tested by themselves, as with IsPointInArc, a point at an end that can be
// computed is on the arc even if the extent or the tolerance is NaN. Unless a form has a parameter for it, the
// tolerance is 1e-9.
//
// An arc is told by a start and an unsigned extent in radians, `ccw` true running counter-clockwise and false
// clockwise from the start. An ellipse is told by its centre, the semi-axis `a` along its own x axis, the semi-axis
// `b` across it and `rotation`, the direction of its own x axis; nothing asks for a >= b. Start and extent of an
// elliptical arc are polar angles at the centre counted from the ellipse's own x axis, as in GetPointInEllipse.

/// Tells whether `point` lies on the bounded stretch from `a` to `b`, with a tolerance of 1e-9.
QORMATH_EXPORT bool IsPointInLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b);

/// Tells whether `point` lies on the bounded stretch from `a` to `b`.
///
/// The distance from the unbounded line may be up to `tolerance`, and each end is widened by `tolerance` along the axis
/// in which the stretch is longer (y for a tie). A stretch of zero length holds no point, not even its own end. Where
/// the distance is NaN the coordinate of that axis decides alone.
QORMATH_EXPORT bool IsPointInLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b, const double& tolerance);

/// Tells whether the foot of the perpendicular from `point` falls on the stretch from `a` to `b`, ends included.
///
/// Exact, without tolerance. True for any point when `a` equals `b`, and where a NaN leaves no foot to compare.
QORMATH_EXPORT bool IsPointProjInLine(const DPOINT2& point, const DPOINT2& a, const DPOINT2& b);

/// Tells whether `point` lies on an arc, with an angular tolerance of 1e-9.
QORMATH_EXPORT bool IsPointInArc(const DPOINT2& point, const DPOINT2& centre, double radius, double startRadian,
                                 double extent, bool ccw);

/// Tells whether `point` lies on an arc.
///
/// The distance from the centre is compared with `radius` at DoubleTolerance, whatever `tolerance` is. A point within
/// DoubleTolerance of either end is on the arc. Folds an angle.
///
/// @param radius     nothing lies on an arc of radius 0 or less
/// @param tolerance  an angle in radians by which the arc is prolonged beyond its end; its start is not
QORMATH_EXPORT bool IsPointInArc(const DPOINT2& point, const DPOINT2& centre, double radius, double startRadian,
                                 double extent, bool ccw, const double& tolerance);

/// Tells whether `point` lies on the arc from `arcStart` to `arcEnd` about `centre`, with a tolerance of 1e-9.
///
/// A point that coincides with either end is on the arc without further test. Equal ends make an arc of extent 0, not
/// a full circle. False when an end coincides with the centre or the ends differ in their distance from it.
QORMATH_EXPORT bool IsPointInArc(const DPOINT2& point, const DPOINT2& centre, const DPOINT2& arcStart,
                                 const DPOINT2& arcEnd, bool ccw);

/// Tells whether the direction `angle` lies in the sector that runs `extent` counter-clockwise from `startRadian`.
///
/// Exact: neither end has a tolerance. All in radians. Folds an angle: an infinite one never returns.
QORMATH_EXPORT bool IsAngleInSector(double angle, double startRadian, double extent);

/// Tells whether the direction `angle` lies in the sector that runs `extent` from `startRadian`, either way.
///
/// Unlike the form without `ccw`, this one has a tolerance of DoubleTolerance at both ends. False for any NaN. Folds an
/// angle: an infinite one never returns.
QORMATH_EXPORT bool IsAngleInSector(double angle, double startRadian, double extent, bool ccw);

/// Tells whether `point` lies on the ellipse.
///
/// This test and the next two share the value f = (u/a)² + (v/b)² of the point (u, v) in the ellipse's own frame:
/// on the curve where f equals 1, outside where f is above, inside otherwise. So the tolerance is relative to the size
/// of the ellipse, and exactly one of the three holds. A zero semi-axis is not tested for; where f is NaN, the point
/// counts as inside.
QORMATH_EXPORT bool IsPointInEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b, double rotation);

/// Tells whether `point` lies in the interior of the ellipse and not on it, see IsPointInEllipse. True for a NaN.
QORMATH_EXPORT bool IsPointInsideEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b,
                                         double rotation);

/// Tells whether `point` lies outside the ellipse and not on it, see IsPointInEllipse.
QORMATH_EXPORT bool IsPointOutsideEllipse(const DPOINT2& point, const DPOINT2& centre, double a, double b,
                                          double rotation);

/// Tells whether `point` lies on the elliptical arc that runs `extent` counter-clockwise from `startRadian`.
///
/// A point within DoubleTolerance of either end is on the arc. Other points have to lie on the ellipse and, exactly and
/// without tolerance, in the sector. Folds its angles: an infinite one never returns.
QORMATH_EXPORT bool IsPointInEllipseArc(const DPOINT2& point, const DPOINT2& centre, double a, double b,
                                        double rotation, double startRadian, double extent);

/// Tells whether `point` lies on the elliptical arc that runs `extent` from `startRadian`, either way.
///
/// Unlike the form without `ccw`, this one has no test of the ends and the tolerance of IsAngleInSector with `ccw`.
/// Folds its angles: an infinite one never returns.
QORMATH_EXPORT bool IsPointInEllipseArc(const DPOINT2& point, const DPOINT2& centre, double a, double b,
                                        double rotation, double startRadian, double extent, bool ccw);

// Constructions on circles and ellipses
//
// Ellipses are told as for the predicates. An angle on an ellipse is a polar angle in its own frame: the point lies on
// the ray from the centre in that direction. It is not the eccentric parameter.

/// The point of a circle in direction `radian`. Mind the order: radius before angle.
QORMATH_EXPORT DPOINT2 GetPointInCircle(const DPOINT2& centre, double radius, double radian);

/// The point of an ellipse on the ray from its centre at the polar angle `radian` from its own x axis.
///
/// @param radian  in [0, 2π); it is not folded. Just above π/2 and just below 3π/2, by less than 1e-9, the result is
///                the opposite vertex: the half turn of the left half plane is added without tolerance
QORMATH_EXPORT DPOINT2 GetPointInEllipse(const DPOINT2& centre, double a, double b, double rotation, double radian);

/// The greatest distance from the chord of an elliptical arc to the arc.
///
/// @param a            semi-axis along the own x axis, not below `b`
/// @param b            semi-axis across it, above 0
/// @param startRadian  polar angle of the first end, in [0, 2π)
/// @param sweep        polar extent counter-clockwise, above 0 and below 2π
/// @return the height, or InvalidDouble when an argument is out of its range (compared exactly)
QORMATH_EXPORT double GetHeightOfEllipseArc(double a, double b, double startRadian, double sweep);

/// Direction of the tangent at a point of an ellipse, as an undirected line, in the world.
///
/// @return radians in [0, π), or InvalidDouble when `point` is not on the ellipse. Folds an angle: an infinite rotation
///         gives InvalidDouble, a huge one may not return
QORMATH_EXPORT double GetTangentAngleOfEllipse(const DPOINT2& centre, double a, double b, double rotation,
                                               const DPOINT2& point);

/// The two points of an ellipse in which its tangent has the direction `radian`.
///
/// Which of the two comes first depends on the direction: no side can be read from the order. With d the direction in
/// the ellipse's own frame, folded into [0, π), the order there is:
///
/// | d                                | first       | second      |
/// |----------------------------------|-------------|-------------|
/// | 0 or π (within DoubleTolerance)  | lower one   | upper one   |
/// | π/2 (within DoubleTolerance)     | left one    | right one   |
/// | between 0 and π/2                | upper left  | lower right |
/// | between π/2 and π                | upper right | lower left  |
///
/// Folds an angle: an infinite one never returns.
///
/// @param first   receives the first point; may be null
/// @param second  receives the second point; may be null
/// @return 2, always
QORMATH_EXPORT int GetTangentPointOfEllipse(const DPOINT2& centre, double a, double b, double rotation, double radian,
                                            DPOINT2* first, DPOINT2* second);

/// Replaces an ellipse by its image under a scale by `factor` along the world x axis; y stays.
///
/// The new axes come from Rytz's construction: the images of the two semi-axes are conjugate semi-diameters of the
/// image. A rotation within 1e-6 of 0, π/2 or π counts as that direction: one axis is scaled and the rotation kept.
/// Otherwise the new `a` is not below the new `b` and the new rotation lies in [0, π). The rotation loses digits where
/// an axis of the image comes near one of the scaled semi-axes: near the world axes, and for a factor near 1. It may
/// lose all of them: an ellipse of 0.9 and 0.1 at 3e-6 from π/2, scaled by 0.9, comes out 0.036 off.
///
/// @param a         semi-axis along the own x axis, changed in place
/// @param b         semi-axis across it, changed in place
/// @param rotation  direction of the own x axis, best in [0, π). It is not folded for a factor above 0: elsewhere, where
///                  its tangent is negative, the new `b` comes out negative. Where it is folded, an infinite one never
///                  returns
/// @param factor    1 changes nothing; a negative one mirrors as well, so that -1 keeps both axes and makes the rotation
///                  R to π - R, folded into [0, π). 0 is not rejected and has no sensible result
/// @return true, always
QORMATH_EXPORT bool ScaleEllipse(double* a, double* b, double* rotation, double factor);

/// Replaces an ellipse by its image under a scale by `factorX` along the world x axis and `factorY` along y.
///
/// See the form with one factor, which does the work twice. The new `a` may be less than the new `b`.
///
/// @return true, always
QORMATH_EXPORT bool ScaleEllipse(double* a, double* b, double* rotation, double factorX, double factorY);

/// From the bulge form of an arc to its centre form.
///
/// The point of the arc at the ratio t lies in the direction startRadian + sweep * t from the centre. Each output may
/// be null.
///
/// @param first        first end
/// @param second       second end
/// @param bulge        tangent of a quarter of the signed sweep, positive counter-clockwise
/// @param centre       receives the centre
/// @param radius       receives the radius
/// @param startRadian  receives the direction from the centre to `first`, in [0, 2π)
/// @param sweep        receives the signed sweep, strictly between -2π and 2π, with the sign of `bulge`
/// @return true; false with all outputs untouched when the ends are nearer than DoubleTolerance, when the bulge is
///         equal to 0, or when all outputs are null
QORMATH_EXPORT bool SolveArc(DPOINT2 first, DPOINT2 second, double bulge, DPOINT2* centre, double* radius,
                             double* startRadian, double* sweep);

/// The circle through three points, see gce_MakeCirc2d.
///
/// @param centre  receives the centre; null gives false
/// @param radius  receives the radius, the mean of the three distances; null gives false
/// @return true; false with the outputs untouched for points on one line or where no circle can be built. Three points
///         in one place make a circle of radius 0
QORMATH_EXPORT bool CreateCircleFrom3Point(const DPOINT2& p1, const DPOINT2& p2, const DPOINT2& p3, DPOINT2* centre,
                                           double* radius);

} // namespace math
