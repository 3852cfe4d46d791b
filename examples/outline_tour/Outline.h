#pragma once

#include "math/CPolyline.h"
#include "math/PosRangeD.h"

#include <optional>
#include <vector>

namespace example::tour
{

/// A segment in centre form.
struct Arc
{
    math::DPOINT2 centre;
    double radius = 0;
    double startRadian = 0;
    double sweep = 0; ///< signed, radians
};

/// The centre form of an arc; nothing for a straight segment, also for one with a bulge too small to tell.
std::optional<Arc> ArcOf(const math::CSegment& segment);

/// The number of segments, in the type in which positions count them.
int SegmentCount(const math::CPolyline& outline);

math::CSegment SegmentAt(const math::CPolyline& outline, int index);

/// A place on an outline.
struct Place
{
    int segment = 0;
    double ratio = 0;
    math::DPOINT2 point;
};

/// The place of a position from 0 to the segment count. The count itself is the end of the last segment.
Place PlaceAt(const math::CPolyline& outline, double position);

/// The length between two positions; on a closed outline the range may pass over the seam.
double LengthOf(const math::CPolyline& outline, const math::PosRangeD& range);

/// The segments and parts of segments that a range covers, in walking order.
std::vector<math::CSegment> SegmentsOf(const math::CPolyline& outline, const math::PosRangeD& range);

/// The closed outline, begun at a position. The segment there becomes the last and the first.
math::CPolyline BegunAt(const math::CPolyline& outline, double position);

/// What there is to say of an outline at first sight.
struct OutlineFacts
{
    int segments = 0;
    int arcs = 0;
    bool closed = false;
    double length = 0;
    double signedArea = 0; ///< negative counter-clockwise, positive clockwise, 0 if open
    math::DRECT box;
};

OutlineFacts FactsOf(const math::CPolyline& outline);

} // namespace example::tour
