#include "OutlinePath.h"

#include "Outline.h"

#include <cmath>

namespace example::tour
{

namespace
{

using math::CSegment;

void AppendArc(PathBuilder& path, const CSegment& segment, const Arc& arc, const View& view)
{
    const double radius = arc.radius * view.scale;
    const EllipseShape circle{radius, radius, 0};
    if (std::abs(segment.bulge) > 1)
    {
        path.ArcTo(circle, arc.sweep > 0, view(segment.GetPoint(0.5))); // by halves there is only one such arc
    }
    path.ArcTo(circle, arc.sweep > 0, view(segment.end));
}

void AppendSegment(PathBuilder& path, const CSegment& segment, const View& view)
{
    if (const std::optional<Arc> arc = ArcOf(segment))
    {
        AppendArc(path, segment, *arc, view);
    }
    else
    {
        path.LineTo(view(segment.end));
    }
}

} // namespace

std::string PathData(const std::vector<CSegment>& segments, const View& view)
{
    PathBuilder path;
    const CSegment* previous = nullptr;
    for (const CSegment& segment : segments)
    {
        if (previous == nullptr || math::D2GetDistance(previous->end, segment.start) > math::DoubleTolerance)
        {
            path.MoveTo(view(segment.start));
        }
        AppendSegment(path, segment, view);
        previous = &segment;
    }
    return path.Data();
}

std::string PathData(const math::CPolyline& outline, const View& view)
{
    PathBuilder path;
    path.MoveTo(view(outline.start));
    for (int i = 0; i < SegmentCount(outline); ++i)
    {
        AppendSegment(path, SegmentAt(outline, i), view);
    }
    return outline.IsClosed() ? path.Close().Data() : path.Data();
}

} // namespace example::tour
