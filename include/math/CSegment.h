#pragma once

#include "math/Export.h"
#include "math/Primitives.h"

#include <cstddef>
#include <type_traits>

namespace math
{

/// The kinds of CSegment::type.
enum SegmentType : int
{
    SegmentNone = 0,  ///< no geometry
    SegmentLine = 1,  ///< straight from `start` to `end`
    SegmentArc = 2,   ///< circular arc from `start` to `end` with `bulge`
    SegmentBezier = 3 ///< cubic Bezier curve with the control polygon `start`, `ctrl1`, `ctrl2`, `end`
};

/// One piece of an outline, as a value: a line, a circular arc or a cubic Bezier curve.
///
/// **Parameter.** A segment runs from parameter 0 at `start` to parameter 1 at `end`. A parameter outside
/// extrapolates along the same formula. On lines and arcs it is proportional to length, on Bezier curves it is not.
///
/// **Bulge.** An arc is its two ends and the tangent of a quarter of its signed sweep: positive runs
/// counter-clockwise from `start` to `end`, negative clockwise. An absolute value of 1 is a half circle, above it
/// more than half. A bulge within DoubleTolerance of 0 is straight: the arc is its chord. A full circle has no bulge
/// and is no single arc. GetBulge gives the bulge of two angles, SolveArc the centre form of an arc.
///
/// **The shared slot.** `bulge` lies on the same storage as `ctrl1.x`. Some operations look at `type`, others at this
/// slot alone, whatever the type, and so take a Bezier curve whose `ctrl1.x` is not zero for an arc of that bulge:
///
/// | by `type`              | by the slot                                |
/// |------------------------|--------------------------------------------|
/// | GetPoint, GetLength    | GetMidVector, GetStartVector, GetEndVector |
/// | GetAngle, GetBoundRect | ReverseDir                                 |
/// |                        | GetNearestPoint, GetSplitSegment           |
///
/// The operations by the slot are meant for lines and arcs, the only pieces of a CPolyline. The direction of a Bezier
/// curve comes from GetAngle.
///
/// A segment owns nothing, caches nothing and is copied byte by byte; it asks for no memory and may be read by several
/// threads at once. Arguments taken by reference may refer into the segment itself.
class QORMATH_EXPORT CSegment
{
public:
    int type;      ///< a SegmentType; any other value counts as SegmentNone
    DPOINT2 start; ///< the first end, parameter 0
    DPOINT2 end;   ///< the second end, parameter 1
    union {
        double bulge;  ///< arc only: the tangent of a quarter of the signed sweep
        DPOINT2 ctrl1; ///< Bezier only: the first control point
    };
    DPOINT2 ctrl2; ///< Bezier only: the second control point

    /// SegmentNone, everything zero.
    CSegment();

    /// A line. The slot and the control points are zero.
    CSegment(const DPOINT2& startPoint, const DPOINT2& endPoint);

    /// An arc. `ctrl1.y` and `ctrl2` are zero.
    CSegment(const DPOINT2& startPoint, const DPOINT2& endPoint, double arcBulge);

    /// A Bezier curve. The ends stand outermost, as in the control polygon.
    CSegment(const DPOINT2& startPoint, const DPOINT2& firstControl, const DPOINT2& secondControl,
             const DPOINT2& endPoint);

    CSegment(const CSegment& other) = default;
    CSegment& operator=(const CSegment& other) = default;

    /// Makes the segment a line and leaves the slot as it was: a former arc keeps its bulge, and the operations that
    /// look at the slot go on to see a curve. For a clean line assign a new CSegment.
    void Set(const DPOINT2& startPoint, const DPOINT2& endPoint);

    /// Makes the segment an arc and leaves `ctrl1.y` and `ctrl2` as they were.
    void Set(const DPOINT2& startPoint, const DPOINT2& endPoint, double arcBulge);

    /// Makes the segment a Bezier curve.
    void Set(const DPOINT2& startPoint, const DPOINT2& firstControl, const DPOINT2& secondControl,
             const DPOINT2& endPoint);

    /// The point at parameter `t`.
    ///
    /// An arc is evaluated by angle, and as its chord when its ends coincide (both coordinates within
    /// DoubleTolerance) or its bulge is zero. A Bezier curve is evaluated in power form by Horner's rule.
    ///
    /// @return the point; (0, 0) for SegmentNone
    DPOINT2 GetPoint(double t) const;

    /// The unit vector in the direction of travel at parameter `t`, by the slot.
    ///
    /// A zero slot (within DoubleTolerance) gives the direction from `start` to `end`, any other the tangent of the
    /// circle of that bulge through both ends, at GetPoint(t). Where the ends coincide under such a bulge there is no
    /// circle, and the vector is GetPoint(t) itself, turned by a quarter.
    ///
    /// @param t  the parameter; only read
    /// @throws Standard_ConstructionError for a vector of no length: on a straight segment when both ends are equal
    DPOINT2 GetMidVector(double& t) const;

    /// GetMidVector at parameter 0.
    DPOINT2 GetStartVector() const;

    /// A unit vector at `end`, by the slot: on a straight segment it points *back* towards `start`, on an arc it is
    /// the direction of travel, GetMidVector at parameter 1.
    ///
    /// @throws Standard_ConstructionError as GetMidVector
    DPOINT2 GetEndVector() const;

    /// The length.
    ///
    /// That of a Bezier curve is the left-hand rectangle rule over its speed in 1000 steps: an approximation whose
    /// cost is always the same.
    ///
    /// @return the length, never negative; 0 for SegmentNone
    double GetLength() const;

    /// Turns a line or an arc round: swaps the ends and negates the slot unless it is exactly 0, so that +0 stays +0.
    ///
    /// A Bezier curve is not turned round: its control points keep their places, and `ctrl1.x` changes its sign.
    void ReverseDir();

    /// The point of the segment that is nearest to `p`, by the slot.
    ///
    /// On a straight segment it is the foot of the perpendicular, on an arc the point where the ray from the centre
    /// through `p` meets it, the arc's ends being reached within DoubleTolerance of angle. Where there is none, it is
    /// the nearer end, and `end` when both are equally far. A straight segment of no length gives `end`.
    ///
    /// A point reached past an end of an arc stays on its ray while `t` is 0 or 1, so it may be away from GetPoint(t) by
    /// DoubleTolerance times the radius.
    ///
    /// From the centre of an arc there is no such ray, so the nearer end is taken there too: `end`, but for the
    /// rounding of the distances. `p` counts as the centre within four rounding units of the radius from where it is
    /// computed.
    ///
    /// @param p  the point to start from
    /// @param t  receives the parameter of the result, from 0 to 1
    DPOINT2 GetNearestPoint(const DPOINT2& p, double& t) const;

    /// The direction of travel at parameter `t`, radians.
    ///
    /// @return the direction, for a line in [0, 2π); for an arc it is brought to that interval by one turn at most. That
    ///         is not always enough: on a clockwise arc of more than three quarters of a turn it can be negative, down
    ///         to -π/2, and a `t` far outside 0 to 1 can give any value outside. InvalidDouble for SegmentNone and for a
    ///         line or arc whose ends coincide (both coordinates within DoubleTolerance). NaN where the derivative of
    ///         a Bezier curve vanishes
    double GetAngle(double t) const;

    /// The axis-aligned box of the segment, by `type`; all zero for SegmentNone.
    DRECT GetBoundRect() const;

    /// The box of a line.
    static DRECT GetBoundRectOfLine(const DPOINT2& startPoint, const DPOINT2& endPoint);

    /// The box of an arc: that of its ends and of the axis points of its circle which it reaches, within
    /// DoubleTolerance of angle.
    static DRECT GetBoundRectOfArc(const DPOINT2& startPoint, const DPOINT2& endPoint, double arcBulge);

    /// The box of 1001 points of a Bezier curve, evenly spaced in the parameter. It can fall short of the curve's
    /// extremes by a little; the cost is always the same.
    static DRECT GetBoundRectOfBezier(const DPOINT2& startPoint, const DPOINT2& firstControl,
                                      const DPOINT2& secondControl, const DPOINT2& endPoint);

    /// One side of a cut at parameter `t`, by the slot. The segment itself is not changed.
    ///
    /// A `t` within DoubleTolerance of 0 or 1 is taken for 0 or 1.
    ///
    /// @param t      where to cut
    /// @param first  true for the side of `start`, false for the side of `end`
    /// @return a line when the slot is zero, otherwise an arc; never a Bezier curve
    CSegment GetSplitSegment(double t, bool first);

    /// The piece between two parameters, by the slot. The segment itself is not changed.
    ///
    /// Parameters within DoubleTolerance of 0 or 1 are taken for 0 or 1. If `from` is above `to`, the piece runs
    /// against the segment; if they are equal, its ends coincide.
    ///
    /// @return a line when the slot is zero, otherwise an arc; never a Bezier curve
    CSegment GetSplitSegment(double from, double to);
};

static_assert(std::is_standard_layout_v<CSegment>, "callers rely on the order of the fields");
static_assert(std::is_trivially_copyable_v<CSegment>, "a segment is copied byte by byte");
static_assert(offsetof(CSegment, type) == 0 && offsetof(CSegment, start) == sizeof(double), "no word lies in between");
static_assert(offsetof(CSegment, end) == offsetof(CSegment, start) + sizeof(DPOINT2), "both ends come first");
static_assert(offsetof(CSegment, bulge) == offsetof(CSegment, end) + sizeof(DPOINT2), "the slot follows the ends");
static_assert(offsetof(CSegment, ctrl1) == offsetof(CSegment, bulge), "the bulge lies on ctrl1.x");
static_assert(offsetof(DPOINT2, x) == 0, "the bulge lies on ctrl1.x");
static_assert(offsetof(CSegment, ctrl2) == offsetof(CSegment, ctrl1) + sizeof(DPOINT2), "ctrl2 follows ctrl1");
static_assert(sizeof(CSegment) == sizeof(double) + 4 * sizeof(DPOINT2), "nothing follows ctrl2");

} // namespace math
