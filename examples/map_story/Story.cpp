#include "Story.h"

#include "math/CPolyPosMapUtilies.h"
#include "math/PosRangeD.h"

namespace example::story
{

namespace
{

using math::CPolyPosMap;
using math::PosRangeD;
using Maker = math::CPolyPosMapUtilies;

constexpr std::size_t JoinStep = 2;

CPolyPosMap Renumbered(CPolyPosMap map)
{
    map.Split(3.5, 2);
    return map;
}

CPolyPosMap Turned(CPolyPosMap map)
{
    map.ReverseDirection(2);
    return map;
}

} // namespace

std::vector<Step> TellStory()
{
    std::vector<Step> steps;
    const auto tell = [&](const char* name, const char* event, const char* call, const CPolyPosMap& map) {
        steps.push_back({name, event, call, map});
        return map;
    };
    CPolyPosMap map = Maker::GenerateWholeMap(FirstCount, false);
    tell("Start", "an outline of 6 segments", "m = GenerateWholeMap(6, false)", map);

    // The generator leads from the piece to the whole; the story goes the other way.
    map =
        tell("Cut", "the stretch from 1.5 to 5 is kept", "m = !GeneratePosMapFromCadByPosrange2OriginCad({1.5, 5}, 6)",
             !Maker::GeneratePosMapFromCadByPosrange2OriginCad(PosRangeD(1.5, 5.0), FirstCount));
    map = tell("Join", "an outline of 3 segments follows on it",
               "m = CombineTwoMapStandalone(m, GenerateWholeMap(3, false))",
               Maker::CombineTwoMapStandalone(map, Maker::GenerateWholeMap(SecondCount, false)));
    map = tell("Extend", "2 segments are added at the front", "m = ExtendMap(m, 2, true, false, true)",
               Maker::ExtendMap(map, 2, true, false, true));
    map = tell("Shorten", "the last segment is taken away", "m = RemoveOpenRangeFromMap(m, {8, 9}, false)",
               Maker::RemoveOpenRangeFromMap(map, PosRangeD(8.0, 9.0), false));
    map = tell("Renumber", "the ends are closed up and 3.5 becomes 0", "m.Split(3.5, 2)", Renumbered(map));
    tell("Turn", "the outline is walked the other way", "m.ReverseDirection(2)", Turned(map));
    return steps;
}

std::vector<Mark> Marks()
{
    return {{"a", 0.5, 0, "cut away; found again on closing"},
            {"b", 1.5, 0, "the cut; a jump over what was added"},
            {"c", 2.5, 0, "becomes the new zero, then the count"},
            {"d", 3.25, 0, "moves along"},
            {"e", 5.5, 0, "cut away; falls on the place of the join"},
            {"f", 7.5, JoinStep, "on the other outline: moves along"},
            {"g", 8.5, JoinStep, "taken away; falls on the end"}};
}

std::vector<double> ImagesOf(const Mark& mark, const Step& step)
{
    std::vector<double> images = step.map * mark.position;
    for (double& image : images)
    {
        image = math::PosRangeD::NormalizePos(image, step.map.DstSegmentCount());
    }
    return images;
}

} // namespace example::story
