#include "Cases.h"
#include "Contest.h"
#include "Converted.h"
#include "Inputs.h"

#include <geos_c.h>

#include <cmath>
#include <memory>

namespace bench
{

namespace
{

constexpr const char* Who = "GEOS";

GEOSContextHandle_t Context()
{
    static const GEOSContextHandle_t context = GEOS_init_r();
    return context;
}

struct Destroy
{
    void operator()(GEOSGeometry* geometry) const
    {
        GEOSGeom_destroy_r(Context(), geometry);
    }
};

using Geometry = std::unique_ptr<GEOSGeometry, Destroy>;

Geometry LineOf(const std::vector<DPOINT2>& points, bool isPolygon)
{
    GEOSCoordSequence* list = GEOSCoordSeq_create_r(Context(), static_cast<unsigned>(points.size()), 2);
    for (unsigned i = 0; i < points.size(); ++i)
    {
        GEOSCoordSeq_setXY_r(Context(), list, i, points[i].x, points[i].y);
    }
    if (!isPolygon)
    {
        return Geometry(GEOSGeom_createLineString_r(Context(), list));
    }
    GEOSGeometry* ring = GEOSGeom_createLinearRing_r(Context(), list);
    return Geometry(GEOSGeom_createPolygon_r(Context(), ring, nullptr, 0));
}

void AddIntersections()
{
    Enter("segment/segment", Who, StretchPairs(), [](const Two<Stretch, Stretch>& in) {
        Answer answer;
        const DPOINT2 &a = in.first.from, &b = in.first.to, &c = in.second.from, &d = in.second.to;
        const int result = GEOSSegmentIntersection_r(Context(), a.x, a.y, b.x, b.y, c.x, c.y, d.x, d.y,
                                                     &answer.values[0], &answer.values[1]);
        answer.count = result == 1 ? 1 : 0;
        return answer;
    });
    EnterConverted(
        "segment/segment, yes or no", Who, StretchPairs(),
        [](const Two<Stretch, Stretch>& in) {
            return std::make_pair(LineOf({in.first.from, in.first.to}, false),
                                  LineOf({in.second.from, in.second.to}, false));
        },
        [](const auto& in) {
            Answer answer;
            answer.count = GEOSIntersects_r(Context(), in.first.get(), in.second.get()) == 1 ? 1 : 0;
            return answer;
        });
}

struct Own
{
    Geometry line;
    Geometry polygon;
    Geometry point;
    double position;
};

Own Straight(const OutlineInput& in)
{
    std::vector<DPOINT2> points(1, in.outline.start);
    for (const auto& node : in.outline.nodes)
    {
        points.push_back(node.point);
    }
    return {LineOf(points, false), LineOf(points, true),
            Geometry(GEOSGeom_createPointFromXY_r(Context(), in.point.x, in.point.y)), in.position};
}

void AddOutlines(std::size_t size)
{
    const std::string suffix = ", straight, " + std::to_string(size);
    const std::vector<OutlineInput>& inputs = StraightOutlines(size);
    EnterConverted("length" + suffix, Who, inputs, Straight, [](const Own& in) {
        double length = 0.0;
        GEOSLength_r(Context(), in.line.get(), &length);
        return length;
    });
    EnterConverted("area" + suffix, Who, inputs, Straight, [](const Own& in) {
        double area = 0.0;
        GEOSArea_r(Context(), in.polygon.get(), &area);
        return area;
    });
    EnterConverted("nearest" + suffix, Who, inputs, Straight, [](const Own& in) {
        double distance = 0.0;
        GEOSDistance_r(Context(), in.line.get(), in.point.get(), &distance);
        return distance;
    });
    // Segments have the length 1, so a position is a length. The box is computed when the line is made: no case.
    EnterConverted("point at a position" + suffix, Who, inputs, Straight, [](const Own& in) {
        const Geometry point(GEOSInterpolate_r(Context(), in.line.get(), in.position));
        Answer answer;
        answer.count = 1;
        GEOSGeomGetX_r(Context(), point.get(), &answer.values[0]);
        GEOSGeomGetY_r(Context(), point.get(), &answer.values[1]);
        return answer;
    });
}

} // namespace

void AddGeos()
{
    AddIntersections();
    for (const std::size_t size : OutlineSizes)
    {
        AddOutlines(size);
    }
}

} // namespace bench
