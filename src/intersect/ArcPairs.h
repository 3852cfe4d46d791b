#pragma once

#include "intersect/ArcCrossings.h"
#include "intersect/QuarterArcs.h"

namespace math::detail
{

/// Adds the points that two quarter arcs share, up to two. The arcs are compared by height and slope at the ends of their
/// shared range of x, and what that tells to be inside is found by bisection.
void IntersectQuarterArcs(const EllipseQuarterArc& arcA, const EllipseQuarterArc& arcB, ArcMeetings& meetings);

} // namespace math::detail
