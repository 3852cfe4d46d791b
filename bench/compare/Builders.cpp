#include "Cases.h"
#include "Contest.h"
#include "Floors.h"
#include "Inputs.h"
#include "math/CPolyPosMapUtilies.h"

#include <utility>

namespace bench
{

namespace
{

using math::CPolyPosMap;
using math::CPolyPosMapUtilies;
using math::PosRangeD;

constexpr int Segments = 100;
constexpr std::size_t Joints = 100;

struct BuilderInput
{
    CPolyPosMap map;
    CPolyPosMap next;
    PosRangeD range;
    double position;
    std::vector<int> segmentMap;
    std::vector<PosRangeD> ranges;
};

CPolyPosMap Moved(const CPolyPosMap& map, int side)
{
    CPolyPosMap moved(map);
    moved.Offset(Segments, side);
    return moved;
}

const std::vector<BuilderInput>& Inputs()
{
    static const std::vector<BuilderInput> inputs = [] {
        Random random(80);
        std::vector<BuilderInput> list;
        const std::vector<CPolyPosMap>& maps = Maps(Joints, MapKind::Plain);
        for (std::size_t i = 0; i + 1 < maps.size(); ++i)
        {
            BuilderInput input;
            input.map = maps[i];
            input.next = maps[i + 1];
            const double start = random.Between(1.0, 40.0);
            input.range = PosRangeD(start, start + random.Between(5.0, 50.0));
            input.position = random.Between(1.0, Segments - 1.0);
            int segment = 0;
            double place = 0.0;
            for (int k = 0; k < Segments; ++k)
            {
                const bool isLost = random.Below(10) == 0;
                input.segmentMap.push_back(isLost ? -1 : segment++);
                const double end = place + random.Between(0.5, 0.95);
                input.ranges.push_back(isLost ? PosRangeD() : PosRangeD(place, end));
                place = isLost ? place : end;
            }
            list.push_back(std::move(input));
        }
        return list;
    }();
    return inputs;
}

/// The floor of everything that makes a map: writing the result, that is, a copy of it.
template <typename Make>
void AddMaker(const std::string& name, const std::string& operation, Make make)
{
    using Result = decltype(make(Inputs().front()));
    struct Ready
    {
        BuilderInput input;
        Result result;
    };
    static const std::vector<Ready> inputs = [make] {
        std::vector<Ready> list;
        for (const BuilderInput& input : Inputs())
        {
            list.push_back({input, make(input)});
        }
        return list;
    }();
    Declare(name, {operation + "; floor: a copy of the result", Compare::Numbers, 0.0, 0.0, {}});
    Enter(name, "ours", inputs, [make](const Ready& in) { return make(in.input); });
    Enter(name, "floor", inputs, [](const Ready& in) { return Result(in.result); });
}

void AddGenerators()
{
    AddMaker("GenerateWholeMap", "100 segments",
             [](const BuilderInput&) { return CPolyPosMapUtilies::GenerateWholeMap(Segments, false); });
    AddMaker("ResetZero", "100 segments",
             [](const BuilderInput& in) { return CPolyPosMapUtilies::ResetZero(in.position, Segments); });
    AddMaker("GeneratePosMapFromSegmentMap", "a segment map of 100 numbers", [](const BuilderInput& in) {
        return CPolyPosMapUtilies::GeneratePosMapFromSegmentMap(in.segmentMap, Segments);
    });
    AddMaker("GeneratePosMapFromPosRangeVec", "100 ranges", [](const BuilderInput& in) {
        return CPolyPosMapUtilies::GeneratePosMapFromPosRangeVec(in.ranges, Segments);
    });
    AddMaker("GeneratePosMapFromPosRange2Pos", "one range", [](const BuilderInput& in) {
        return CPolyPosMapUtilies::GeneratePosMapFromPosRange2Pos(in.range, in.position, Segments, Segments);
    });
    AddMaker("GeneratePosMapFromCadByPosrange2OriginCad", "a piece of 5 to 50 of 100 segments",
             [](const BuilderInput& in) {
                 return CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(in.range, Segments);
             });
}

void AddCombiners()
{
    AddMaker("CombineTwoCad", "100 and 100 segments",
             [](const BuilderInput&) { return CPolyPosMapUtilies::CombineTwoCad(Segments, Segments); });
    AddMaker("CombineTwonMapWithSameDst", "a map of 100 joints and what follows it on the destination",
             [](const BuilderInput& in) {
                 CPolyPosMap first(in.map);
                 first.DstSegmentCount() = 2 * Segments;
                 CPolyPosMap second = Moved(in.next, 2);
                 second.DstSegmentCount() = 2 * Segments;
                 return CPolyPosMapUtilies::CombineTwonMapWithSameDst(first, second);
             });
    AddMaker("CombineTwonMapWithSameSrc", "a map of 100 joints and what follows it on the source",
             [](const BuilderInput& in) {
                 CPolyPosMap first(in.map);
                 first.SrcSegmentCount() = 2 * Segments;
                 CPolyPosMap second = Moved(in.next, 1);
                 second.SrcSegmentCount() = 2 * Segments;
                 return CPolyPosMapUtilies::CombineTwonMapWithSameSrc(first, second);
             });
    AddMaker("CombineTwoMapStandalone", "two maps of 100 joints",
             [](const BuilderInput& in) { return CPolyPosMapUtilies::CombineTwoMapStandalone(in.map, in.next); });
}

void AddEdits()
{
    AddMaker("ExtendMap, segments", "3 segments at the front of both sides of 100 joints",
             [](const BuilderInput& in) { return CPolyPosMapUtilies::ExtendMap(in.map, 3, true, true, true); });
    AddMaker("ExtendMap, stretches", "3 segments at the back of the source and 2 of the destination",
             [](const BuilderInput& in) { return CPolyPosMapUtilies::ExtendMap(in.map, 3, 2, false); });
    AddMaker("RemoveOpenRangeFromMap", "5 segments taken from the front of 100", [](const BuilderInput& in) {
        return CPolyPosMapUtilies::RemoveOpenRangeFromMap(in.map, PosRangeD(0.0, 5.0), true);
    });
    AddMaker("concatenation", "a map of 100 joints and the next lap",
             [](const BuilderInput& in) { return in.map + in.next; });
    AddMaker("Insert", "one joint into a copy of 100", [](const BuilderInput& in) {
        CPolyPosMap map(in.map);
        map.Insert(in.position, 1);
        return map;
    });
    AddMaker("Split", "the source of a copy of 100 joints begun elsewhere", [](const BuilderInput& in) {
        CPolyPosMap map(in.map);
        map.Split(in.position, 1);
        return map;
    });
    AddMaker("ReverseDirection", "both sides of a copy of 100 joints turned round", [](const BuilderInput& in) {
        CPolyPosMap map(in.map);
        map.ReverseDirection(3);
        return map;
    });
    AddMaker("MultyDouble", "the image of a position, seam treated, 100 joints",
             [](const BuilderInput& in) { return in.map.MultyDouble(in.position, true, true); });
}

void AddRanges()
{
    const auto add = [](const std::string& name, auto make) {
        Declare(name, {"two ranges, one list", Compare::Nothing, 0.0, 0.0, {}});
        Enter(name, "ours", Inputs(),
              [make](const BuilderInput& in) { return make(in.range, PosRangeD(in.position, in.range.start + 1.0)); });
    };
    add("range difference", [](const PosRangeD& a, const PosRangeD& b) { return static_cast<double>((a - b).size()); });
    add("range union", [](const PosRangeD& a, const PosRangeD& b) { return static_cast<double>((a + b).size()); });
    add("range intersection",
        [](const PosRangeD& a, const PosRangeD& b) { return static_cast<double>((a * b).size()); });
}

} // namespace

void AddBuilders()
{
    AddGenerators();
    AddCombiners();
    AddEdits();
    AddRanges();
}

} // namespace bench
