#include "Cases.h"
#include "Contest.h"
#include "Floors.h"
#include "Inputs.h"
#include "Ours.h"
#include "math/CPolyPosMapUtilies.h"

#include <algorithm>
#include <cmath>

namespace bench
{

namespace
{

/// The library has no search over an outline: the nearest point is that of its segments in turn.
double DistanceToOutline(const math::CPolyline& outline, const DPOINT2& point)
{
    double square = 1e300;
    for (std::size_t i = 0; i < outline.nodes.size(); ++i)
    {
        double t = 0.0;
        square = std::min(square, floors::SquareOfDistance(outline.GetSegment(i).GetNearestPoint(point, t), point));
    }
    return std::sqrt(square);
}

DPOINT2 PointOfOutline(const math::CPolyline& outline, double position)
{
    const int index = math::PosRangeD::GetSegmentIndex(position);
    return outline.GetSegment(static_cast<std::uint64_t>(index)).GetPoint(math::PosRangeD::GetRadio(position));
}

void AddOutlinesOf(const std::string& kind, const std::string& what, std::size_t size,
                   const std::vector<OutlineInput>& outlines)
{
    const std::string suffix = kind + std::to_string(size);
    const auto declare = [&](const std::string& name, const std::string& operation, Compare compare) {
        Declare(name + suffix, {operation + what, compare, 1e-7, 0.0, {}});
        return name + suffix;
    };

    std::string name = declare("length", "the length", Compare::Numbers);
    Enter(name, "ours", outlines, [](const OutlineInput& in) {
        return in.outline.GetLength(0.0, static_cast<double>(in.outline.nodes.size()));
    });
    Enter(name, "floor", outlines, [](const OutlineInput& in) { return floors::LengthOfOutline(in.outline); });

    name = declare("area", "the area", Compare::Numbers);
    Enter(name, "ours", outlines, [](const OutlineInput& in) { return std::abs(in.outline.GetArea()); });
    Enter(name, "floor", outlines, [](const OutlineInput& in) { return std::abs(floors::AreaOfOutline(in.outline)); });

    name = declare("box", "the box", Compare::Numbers);
    Enter(name, "ours", outlines, [](const OutlineInput& in) { return OfBox(in.outline.GetRECT()); });
    Enter(name, "floor", outlines, [](const OutlineInput& in) { return floors::BoundsOfOutline(in.outline); });

    name = declare("nearest", "the distance from a point", Compare::Numbers);
    Enter(name, "ours", outlines, [](const OutlineInput& in) { return DistanceToOutline(in.outline, in.point); });
    Enter(name, "floor", outlines,
          [](const OutlineInput& in) { return floors::DistanceToOutline(in.outline, in.point); });

    name = declare("point at a position", "the point at a position", Compare::Points);
    Enter(name, "ours", outlines,
          [](const OutlineInput& in) { return OfPoint(PointOfOutline(in.outline, in.position)); });
    Enter(name, "floor", outlines,
          [](const OutlineInput& in) { return OfPoint(floors::PointOfOutline(in.outline, in.position)); });
}

} // namespace

void AddOutlines()
{
    for (const std::size_t size : OutlineSizes)
    {
        AddOutlinesOf(", straight, ", ", closed outlines of straight segments", size, StraightOutlines(size));
    }
    for (const std::size_t size : {std::size_t(100), std::size_t(10000)})
    {
        AddOutlinesOf(", curved, ", ", closed outlines of which every second segment is an arc", size,
                      CurvedOutlines(size));
    }
}

} // namespace bench
