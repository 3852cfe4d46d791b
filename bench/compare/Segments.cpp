#include "Cases.h"
#include "Contest.h"
#include "Floors.h"
#include "Inputs.h"
#include "Ours.h"

#include <cmath>

namespace bench
{

namespace
{

using At = SegmentAndParameter;
using Beside = SegmentAndPoint;

Description Points(const std::string& operation)
{
    return {operation, Compare::Points, 1e-6, 0.0, {}};
}

Description Numbers(const std::string& operation, double tolerance, double aim = 0.0)
{
    return {operation, Compare::Numbers, tolerance, aim, {}};
}

void AddPointAt(const std::string& name, Kind kind, DPOINT2 (*floor)(const math::CSegment&, double))
{
    Declare(name, Points("the point at a parameter"));
    Enter(name, "ours", SegmentsAndParameters(kind), [](const At& in) { return OfPoint(in.segment.GetPoint(in.t)); });
    Enter(name, "floor", SegmentsAndParameters(kind),
          [floor](const At& in) { return OfPoint(floor(in.segment, in.t)); });
}

template <typename Floor>
void AddNearest(const std::string& name, Kind kind, Floor floor)
{
    Declare(name, Points("the point of a segment nearest to a point"));
    Enter(name, "ours", SegmentsAndPoints(kind), [](const Beside& in) {
        double t = 0.0;
        return OfPoint(in.segment.GetNearestPoint(in.point, t));
    });
    Enter(name, "floor", SegmentsAndPoints(kind), [floor](const Beside& in) { return OfPoint(floor(in)); });
}

template <typename Floor>
void AddLength(const std::string& name, Kind kind, double aim, Floor floor)
{
    Declare(name, Numbers("the length of a segment", 1e-9, aim));
    Enter(name, "ours", SegmentsAndPoints(kind), [](const Beside& in) { return in.segment.GetLength(); });
    Enter(name, "floor", SegmentsAndPoints(kind), [floor](const Beside& in) { return floor(in.segment); });
}

template <typename Floor>
void AddBox(const std::string& name, Kind kind, double aim, Floor floor)
{
    Declare(name, Numbers("the box of a segment", 1e-9, aim));
    Enter(name, "ours", SegmentsAndPoints(kind), [](const Beside& in) { return OfBox(in.segment.GetBoundRect()); });
    Enter(name, "floor", SegmentsAndPoints(kind), [floor](const Beside& in) { return floor(in.segment).AsAnswer(); });
}

} // namespace

void AddSegments()
{
    AddPointAt("point of a line", Kind::Line, floors::PointOfLine);
    AddPointAt("point of an arc", Kind::Arc, floors::PointOfArc);
    AddPointAt("point of a Bezier", Kind::Bezier, floors::PointOfBezier);

    AddNearest("nearest point of a line", Kind::Line,
               [](const Beside& in) { return floors::NearestOnLine(in.segment.start, in.segment.end, in.point); });
    AddNearest("nearest point of an arc", Kind::Arc, [](const Beside& in) {
        return floors::NearestOnArc(in.segment.start, in.segment.end, in.segment.bulge, in.point);
    });

    AddLength("length of an arc", Kind::Arc, 0.0, [](const math::CSegment& segment) {
        return floors::LengthOfArc(segment.start, segment.end, segment.bulge);
    });
    AddLength("length of a Bezier", Kind::Bezier, 1.0, floors::LengthOfBezier);

    AddBox("box of an arc", Kind::Arc, 0.0, [](const math::CSegment& segment) {
        floors::Bounds bounds = floors::BoundsOf(segment.start, segment.end);
        floors::AddArc(bounds, segment.start, segment.end, segment.bulge);
        return bounds;
    });
    AddBox("box of a Bezier", Kind::Bezier, 1.0, floors::BoundsOfBezier);
}

} // namespace bench
