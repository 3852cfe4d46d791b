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

/// Both forms of a member and its floor. `call` takes an input and the outputs of either form.
template <typename Input, typename Call, typename Floor>
void AddBothForms(const std::string& name, const Description& description, const std::vector<Input>& inputs, Call call,
                  Floor floor)
{
    Declare(name, description);
    Enter(name, "ours", inputs, [call](const Input& in) {
        return TwoPoints([&](DPOINT2* first, DPOINT2* second) { return call(in, first, second); });
    });
    Enter(name, "vector", inputs, [call](const Input& in) {
        return PointsOfVector([&](std::vector<DPOINT2>& points) { return call(in, points, -1); });
    });
    Enter(name, "floor", inputs, [floor](const Input& in) { return floor(in.first, in.second); });
}

Description Points(const std::string& operation, double aim)
{
    return {operation, Compare::Points, 1e-6, aim, {}};
}

void AddLinesWithCircles()
{
    const auto beelineCircle = [](const Two<Beeline, Circle>& in, auto&&... outputs) {
        return math::Intersect_BeelineWithCircle(in.first.point, in.first.angle, in.second.centre, in.second.radius,
                                                 outputs...);
    };
    AddBothForms("beeline/circle", Points("a beeline and a circle; the points", 2.5), BeelinesAndCircles(),
                 beelineCircle, floors::BeelineCircle);

    Declare("beeline/circle, yes or no", {"the same pairs; the count", Compare::Count, 0.0, 0.0, {}});
    Enter("beeline/circle, yes or no", "ours", BeelinesAndCircles(), [=](const Two<Beeline, Circle>& in) {
        return QuickCount([&](std::vector<DPOINT2>& points) { return beelineCircle(in, points, 0); });
    });
    Enter("beeline/circle, yes or no", "floor", BeelinesAndCircles(),
          [](const Two<Beeline, Circle>& in) { return floors::BeelineMeetsCircle(in.first, in.second); });

    AddBothForms(
        "segment/circle", Points("a stretch and a circle; the points", 15.0), StretchesAndCircles(),
        [](const Two<Stretch, Circle>& in, auto&&... outputs) {
            return math::Intersect_LineWithCircle(in.first.from, in.first.to, in.second.centre, in.second.radius,
                                                  outputs...);
        },
        floors::SegmentCircle);
    AddBothForms(
        "beeline/arc", Points("a beeline and an arc; the points", 0.0), BeelinesAndArcs(),
        [](const Two<Beeline, Arc>& in, auto&&... outputs) {
            const Arc& arc = in.second;
            return math::Intersect_BeelineWithArc(in.first.point, in.first.angle, arc.centre, arc.radius, arc.start,
                                                  arc.sweep, outputs...);
        },
        floors::BeelineArc);
    AddBothForms(
        "segment/arc", Points("a stretch and an arc; the points", 5.0), StretchesAndArcs(),
        [](const Two<Stretch, Arc>& in, auto&&... outputs) {
            const Arc& arc = in.second;
            return math::Intersect_LineWithArc(in.first.from, in.first.to, arc.centre, arc.radius, arc.start, arc.sweep,
                                               outputs...);
        },
        floors::SegmentArc);
}

int CirclesOf(const Two<Circle, Circle>& in, DPOINT2* first, DPOINT2* second)
{
    return math::Intersect_CircleWithCircle(in.first.centre, in.first.radius, in.second.centre, in.second.radius, first,
                                            second);
}

void AddCirclePairs()
{
    const auto circleCircle = [](const Two<Circle, Circle>& in, auto&&... outputs) {
        return math::Intersect_CircleWithCircle(in.first.centre, in.first.radius, in.second.centre, in.second.radius,
                                                outputs...);
    };
    AddBothForms("circle/circle", Points("two circles; the points", 3.5), CirclePairs(), circleCircle,
                 floors::CircleCircle);
    Declare("circle/circle, yes or no", {"the same pairs; the count", Compare::Count, 0.0, 0.0, {}});
    Enter("circle/circle, yes or no", "ours", CirclePairs(), [=](const Two<Circle, Circle>& in) {
        return QuickCount([&](std::vector<DPOINT2>& points) { return circleCircle(in, points, 0); });
    });
    Enter("circle/circle, yes or no", "floor", CirclePairs(),
          [](const Two<Circle, Circle>& in) { return floors::CirclesMeet(in.first, in.second); });

    AddBothForms(
        "circle/arc", Points("a circle and an arc; the points", 0.0), CirclesAndArcs(),
        [](const Two<Circle, Arc>& in, auto&&... outputs) {
            const Arc& arc = in.second;
            return math::Intersect_CircleWithArc(in.first.centre, in.first.radius, arc.centre, arc.radius, arc.start,
                                                 arc.sweep, outputs...);
        },
        floors::CircleArc);
    AddBothForms(
        "arc/arc", Points("two arcs; the points", 2.0), ArcPairs(),
        [](const Two<Arc, Arc>& in, auto&&... outputs) {
            const Arc& a = in.first;
            const Arc& b = in.second;
            return math::Intersect_ArcWithArc(a.centre, a.radius, a.start, a.sweep, b.centre, b.radius, b.start,
                                              b.sweep, outputs...);
        },
        floors::ArcArc);
}

/// A row of degenerate input made from ordinary input, of which the library answers alone.
template <typename Input, typename Change, typename Call>
void AddDegenerate(const std::string& name, const std::string& operation, const std::string& ordinary,
                   const std::vector<Input>& from, Change change, Call call)
{
    static const std::vector<Input> inputs = [&] {
        std::vector<Input> list = from;
        for (Input& input : list)
        {
            change(input);
        }
        return list;
    }();
    Declare(name, {operation, Compare::Nothing, 0.0, 3.0, ordinary});
    Enter(name, "ours", inputs, [call](const Input& in) {
        return TwoPoints([&](DPOINT2* first, DPOINT2* second) { return call(in, first, second); });
    });
}

void AddDegenerateCircles()
{
    AddDegenerate(
        "circle/circle, the same twice", "one circle with itself", "circle/circle", CirclePairs(),
        [](Two<Circle, Circle>& in) { in.second = in.first; }, CirclesOf);
    AddDegenerate(
        "circle/circle, concentric", "one centre, two radii", "circle/circle", CirclePairs(),
        [](Two<Circle, Circle>& in) { in.second.centre = in.first.centre; }, CirclesOf);
    AddDegenerate(
        "segment/circle, no length", "the stretch shrunk to its first end", "segment/circle", StretchesAndCircles(),
        [](Two<Stretch, Circle>& in) { in.first.to = in.first.from; },
        [](const Two<Stretch, Circle>& in, DPOINT2* first, DPOINT2* second) {
            return math::Intersect_LineWithCircle(in.first.from, in.first.to, in.second.centre, in.second.radius, first,
                                                  second);
        });
    AddDegenerate(
        "segment/arc, no length", "the stretch shrunk to its first end", "segment/arc", StretchesAndArcs(),
        [](Two<Stretch, Arc>& in) { in.first.to = in.first.from; },
        [](const Two<Stretch, Arc>& in, DPOINT2* first, DPOINT2* second) {
            return math::Intersect_LineWithArc(in.first.from, in.first.to, in.second.centre, in.second.radius,
                                               in.second.start, in.second.sweep, first, second);
        });
    AddDegenerate(
        "arc/arc, the same twice", "one arc with itself", "arc/arc", ArcPairs(),
        [](Two<Arc, Arc>& in) { in.second = in.first; },
        [](const Two<Arc, Arc>& in, DPOINT2* first, DPOINT2* second) {
            const Arc& a = in.first;
            const Arc& b = in.second;
            return math::Intersect_ArcWithArc(a.centre, a.radius, a.start, a.sweep, b.centre, b.radius, b.start,
                                              b.sweep, first, second);
        });
}

} // namespace

void AddCircles()
{
    AddLinesWithCircles();
    AddCirclePairs();
    AddDegenerateCircles();
}

} // namespace bench
