#include "Cases.h"
#include "Contest.h"
#include "Floors.h"
#include "Inputs.h"
#include "math/CPolyPosMapUtilies.h"

#include <cmath>

namespace bench
{

namespace
{

using math::CPolyPosMap;
using math::CPolyPosMapUtilies;

std::string Named(const std::string& name, std::size_t joints)
{
    return name + ", " + std::to_string(joints);
}

/// The aims of compositions are times, not multiples of the floor: scripts/bench_table.py has them.
void AddComposition(std::size_t joints, MapKind kind, const std::string& name, const std::string& operation)
{
    const std::string row = Named(name, joints);
    const bool isPlain = kind == MapKind::Plain;
    Declare(row, {operation, isPlain ? Compare::Numbers : Compare::Nothing, 1e-6, 0.0, {}});
    Enter(row, "ours", MapPairs(joints, kind), [](const MapPair& in) { return in.first * in.second; });
    Enter(
        row, "floor", MapPairs(joints, kind),
        [](const MapPair& in) { return floors::Merge(in.first.PosPairs(), in.second.PosPairs()); },
        isPlain ? Allowance() : NotCompared);
}

void AddCompositions()
{
    for (const std::size_t joints : MapSizes)
    {
        AddComposition(joints, MapKind::Plain, "composition",
                       "two maps of so many joints that rise all the way; floor: a merge of two lists");
    }
    for (const std::size_t joints : {std::size_t(100), std::size_t(10000)})
    {
        AddComposition(joints, MapKind::Seam, "composition over the seam",
                       "the second map begins in the middle of its source; floor: a merge, not compared");
        AddComposition(joints, MapKind::JumpsAndFlats, "composition with jumps and flats",
                       "a jump and a flat in every ten steps of both maps; floor: a merge, not compared");
    }
    Declare("composition with the identity",
            {"a map of 100 joints with the identity of as many", Compare::Nothing, 0.0, 3.0, "composition, 100"});
    Enter("composition with the identity", "ours", Maps(100, MapKind::Plain), [](const CPolyPosMap& map) {
        static const CPolyPosMap whole = CPolyPosMapUtilies::GenerateWholeMap(100, false);
        return map * whole;
    });
}

CPolyPosMap Changed(const CPolyPosMap& map, void (*change)(CPolyPosMap&))
{
    CPolyPosMap copy(map);
    change(copy);
    return copy;
}

void AddChange(const std::string& name, const std::string& operation, std::size_t joints, MapKind kind, Compare compare,
               void (*change)(CPolyPosMap&), floors::Joints (*floor)(const floors::Joints&))
{
    const std::string row = Named(name, joints);
    Declare(row, {operation, compare, 1e-6, 0.0, {}});
    Enter(row, "ours", Maps(joints, kind), [change](const CPolyPosMap& map) { return Changed(map, change); });
    Enter(
        row, "floor", Maps(joints, kind), [floor](const CPolyPosMap& map) { return floor(map.PosPairs()); },
        compare == Compare::Nothing ? NotCompared : Allowance());
}

void AddChanges(std::size_t joints)
{
    AddChange(
        "normal form", "copy, and Unique(true); floor: one sweep", joints, MapKind::Plain, Compare::Numbers,
        [](CPolyPosMap& map) { map.Unique(true); }, floors::WithoutStraightJoints);
    AddChange(
        "filling", "copy, and FillAllSegmentNode(1); floor: one sweep", joints, MapKind::Plain, Compare::Numbers,
        [](CPolyPosMap& map) { map.FillAllSegmentNode(1); }, floors::WithWholeSources);
    AddChange(
        "smoothing", "copy, and Smooth of a staircase; floor: filling by one sweep, not compared", joints,
        MapKind::Staircase, Compare::Nothing, [](CPolyPosMap& map) { map.Smooth(0.05, 0.05); },
        floors::WithWholeSources);
}

void AddLookups(std::size_t joints)
{
    const std::string evaluation = Named("evaluation", joints);
    Declare(
        evaluation,
        {"the image of one position; floor: a scan for validity, a binary search", Compare::Numbers, 1e-9, 0.0, {}});
    Enter(evaluation, "ours", MapsAndPositions(joints), [](const MapAndPosition& in) { return in.map * in.position; });
    Enter(evaluation, "floor", MapsAndPositions(joints),
          [](const MapAndPosition& in) { return floors::Evaluate(in.map.PosPairs(), in.position); });

    const std::string validity = Named("validity", joints);
    Declare(validity, {"IsInvalid, which every evaluation begins with; floor: a scan whether both columns rise",
                       Compare::Numbers,
                       0.0,
                       0.0,
                       {}});
    Enter(validity, "ours", MapsAndPositions(joints),
          [](const MapAndPosition& in) { return in.map.IsInvalid() ? 0.0 : 1.0; });
    Enter(validity, "floor", MapsAndPositions(joints),
          [](const MapAndPosition& in) { return floors::Rises(in.map.PosPairs()) ? 1.0 : 0.0; });

    const std::string segments = Named("segment list", joints);
    Declare(segments, {"GetSegmentMapFronPosMap; floor: one sweep, not compared", Compare::Nothing, 0.0, 0.0, {}});
    Enter(segments, "ours", Maps(joints, MapKind::Plain),
          [](const CPolyPosMap& map) { return CPolyPosMapUtilies::GetSegmentMapFronPosMap(map); });
    Enter(
        segments, "floor", Maps(joints, MapKind::Plain),
        [](const CPolyPosMap& map) { return floors::Segments(map.PosPairs(), map.SrcSegmentCount()); }, NotCompared);
}

} // namespace

void AddMaps()
{
    AddCompositions();
    for (const std::size_t joints : MapSizes)
    {
        AddLookups(joints);
        AddChanges(joints);
    }
}

} // namespace bench
