#include "Outline.h"

#include <algorithm>

namespace example::tour
{

namespace
{

/// The segments from one position up to a later one.
void AppendForward(const math::CPolyline& outline, double from, double to, std::vector<math::CSegment>& segments)
{
    for (int i = math::PosRangeD::GetSegmentIndex(from); i < SegmentCount(outline) && i < to; ++i)
    {
        const double first = std::max(from - i, 0.0);
        const double last = std::min(to - i, 1.0);
        if (first <= 0 && last >= 1)
        {
            segments.push_back(SegmentAt(outline, i));
        }
        else if (last - first > math::DoubleTolerance)
        {
            segments.push_back(SegmentAt(outline, i).GetSplitSegment(first, last));
        }
    }
}

double BulgeOf(const math::CSegment& segment)
{
    return segment.type == math::SegmentArc ? segment.bulge : 0.0;
}

} // namespace

std::optional<Arc> ArcOf(const math::CSegment& segment)
{
    Arc arc;
    if (segment.type == math::SegmentArc && math::SolveArc(segment.start, segment.end, segment.bulge, &arc.centre,
                                                           &arc.radius, &arc.startRadian, &arc.sweep))
    {
        return arc;
    }
    return std::nullopt;
}

int SegmentCount(const math::CPolyline& outline)
{
    return static_cast<int>(outline.nodes.size());
}

math::CSegment SegmentAt(const math::CPolyline& outline, int index)
{
    return outline.GetSegment(static_cast<std::uint64_t>(index));
}

Place PlaceAt(const math::CPolyline& outline, double position)
{
    Place place;
    place.segment = math::PosRangeD::GetSegmentIndex(position);
    place.ratio = math::PosRangeD::GetRadio(position);
    if (place.segment >= SegmentCount(outline))
    {
        place.segment = SegmentCount(outline) - 1;
        place.ratio = 1;
    }
    place.point = SegmentAt(outline, place.segment).GetPoint(place.ratio);
    return place;
}

double LengthOf(const math::CPolyline& outline, const math::PosRangeD& range)
{
    if (range.start < range.end)
    {
        return outline.GetLength(range.start, range.end);
    }
    return outline.GetLength(range.start, SegmentCount(outline)) + outline.GetLength(0, range.end);
}

std::vector<math::CSegment> SegmentsOf(const math::CPolyline& outline, const math::PosRangeD& range)
{
    std::vector<math::CSegment> segments;
    if (range.start < range.end)
    {
        AppendForward(outline, range.start, range.end, segments);
    }
    else
    {
        AppendForward(outline, range.start, SegmentCount(outline), segments);
        AppendForward(outline, 0, range.end, segments);
    }
    return segments;
}

math::CPolyline BegunAt(const math::CPolyline& outline, double position)
{
    math::CPolyline turned;
    turned.start = PlaceAt(outline, position).point;
    for (const math::CSegment& segment : SegmentsOf(outline, math::PosRangeD(position, position)))
    {
        turned.AddNodes(segment.end, BulgeOf(segment));
    }
    turned.nodes.back().point = turned.start;
    return turned;
}

OutlineFacts FactsOf(const math::CPolyline& outline)
{
    OutlineFacts facts;
    facts.segments = SegmentCount(outline);
    for (int i = 0; i < facts.segments; ++i)
    {
        facts.arcs += ArcOf(SegmentAt(outline, i)) ? 1 : 0;
    }
    facts.closed = outline.IsClosed();
    facts.length = outline.GetLength(0, facts.segments);
    facts.signedArea = outline.GetArea();
    facts.box = outline.GetRECT();
    return facts;
}

} // namespace example::tour
