#include "Cases.h"
#include "Contest.h"
#include "Floors.h"
#include "Inputs.h"
#include "Ours.h"
#include "math/Intersect.h"

namespace bench
{

namespace
{

using StretchPair = Two<Stretch, Stretch>;

Answer OfSegments(const StretchPair& in)
{
    return OnePoint([&](DPOINT2* point) {
        return math::Intersect_LineWithLine(in.first.from, in.first.to, in.second.from, in.second.to, point);
    });
}

/// Pairs in which something vanishes or coincides, made from ordinary ones.
template <typename Change>
const std::vector<StretchPair>& Changed(Change change)
{
    static const std::vector<StretchPair> inputs = [change] {
        std::vector<StretchPair> list = StretchPairs();
        for (StretchPair& pair : list)
        {
            change(pair);
        }
        return list;
    }();
    return inputs;
}

template <typename Change>
void AddDegenerate(const std::string& name, const std::string& operation, Change change)
{
    Description description;
    description.operation = operation;
    description.compare = Compare::Nothing;
    description.ordinary = "segment/segment";
    description.aim = 3.0;
    Declare(name, description);
    Enter(name, "ours", Changed(change), OfSegments);
}

} // namespace

void AddLines()
{
    Declare("segment/segment",
            {"one pair of stretches, about a quarter of which cross; the point", Compare::Points, 1e-6, 6.0, {}});
    Enter("segment/segment", "ours", StretchPairs(), OfSegments);
    Enter("segment/segment", "vector", StretchPairs(), [](const StretchPair& in) {
        return PointsOfVector([&](std::vector<DPOINT2>& points) {
            return math::Intersect_LineWithLine(in.first.from, in.first.to, in.second.from, in.second.to, points, 1);
        });
    });
    Enter("segment/segment", "floor", StretchPairs(),
          [](const StretchPair& in) { return floors::SegmentSegment(in.first, in.second); });

    Declare("segment/segment, yes or no", {"the same pairs; whether they meet", Compare::Count, 0.0, 1.5, {}});
    Enter("segment/segment, yes or no", "ours", StretchPairs(), [](const StretchPair& in) {
        return QuickCount([&](std::vector<DPOINT2>& points) {
            return math::Intersect_LineWithLine(in.first.from, in.first.to, in.second.from, in.second.to, points, 0);
        });
    });
    Enter("segment/segment, yes or no", "floor", StretchPairs(),
          [](const StretchPair& in) { return floors::SegmentsMeet(in.first, in.second); });

    AddDegenerate("segment/segment, one of no length", "the first stretch shrunk to its first end",
                  [](StretchPair& pair) { pair.first.to = pair.first.from; });
    AddDegenerate("segment/segment, one end shared", "both begin in one point",
                  [](StretchPair& pair) { pair.second.from = pair.first.from; });
    AddDegenerate("segment/segment, the same twice", "one stretch with itself",
                  [](StretchPair& pair) { pair.second = pair.first; });
    AddDegenerate(
        "segment/segment, end to end on one line", "the second goes on where the first ends", [](StretchPair& pair) {
            pair.second.from = pair.first.to;
            pair.second.to = {2.0 * pair.first.to.x - pair.first.from.x, 2.0 * pair.first.to.y - pair.first.from.y};
        });
}

} // namespace bench
