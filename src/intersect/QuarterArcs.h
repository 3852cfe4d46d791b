#pragma once

#include "intersect/PointOutputs.h"
#include "math/Primitives.h"

#include <array>

/// How two ellipses meet: each is cut at its extreme points into four quarter arcs. Over a quarter arc y is a function
/// of x, so a vertical meets it once, and two of them are compared by height and slope at the ends of their shared
/// range.
namespace math::detail
{

/// A stretch of an ellipse, counter-clockwise between two of its extreme points.
struct EllipseQuarterArc
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;    ///< direction of the own x axis, as given, not folded
    double startRadian; ///< polar angle of the first end from the own x axis, in [0, 2π)
    double sweep;       ///< polar extent, in [0, 2π)
};

using QuarterArcs = std::array<EllipseQuarterArc, 4>;

/// Cuts an ellipse at the four points with a horizontal or vertical tangent, in the order of their polar angles.
QuarterArcs SplitEllipseIntoQuarterArcs(const DPOINT2& centre, double a, double b, double rotation);

/// The points that two quarter arcs share, found by height, slope and bisection: 0, 1 or 2.
TwoPoints IntersectQuarterArcs(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB);

} // namespace math::detail
