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

/// The inputs on which the library may differ from the floor: its search loses points where curves nearly touch, and the
/// test of an elliptical arc, which is exact, drops points that the bisection leaves a little off the ellipse.
constexpr Allowance NearTouches{0.03, true};

template <typename Input, typename Call, typename Floor>
void AddLineForms(const std::string& name, const std::string& operation, double aim, const std::vector<Input>& inputs,
                  Call call, Floor floor)
{
    Declare(name, {operation, Compare::Points, 1e-6, aim, {}});
    Enter(name, "ours", inputs, [call](const Input& in) {
        return TwoPoints([&](DPOINT2* first, DPOINT2* second) { return call(in, first, second); });
    });
    Enter(name, "vector", inputs, [call](const Input& in) {
        return PointsOfVector([&](std::vector<DPOINT2>& points) { return call(in, points, -1); });
    });
    Enter(
        name, "floor", inputs, [floor](const Input& in) { return floor(in.first, in.second); }, NearTouches);
}

template <typename Input, typename Call, typename Floor>
void AddEllipseForms(const std::string& name, const std::string& operation, const std::vector<Input>& inputs, Call call,
                     Floor floor)
{
    Declare(name, {operation, Compare::Points, 1e-6, 13.0, {}});
    Enter(name, "ours", inputs, [call](const Input& in) {
        return FourPoints([&](DPOINT2* first, DPOINT2* second, DPOINT2* third, DPOINT2* fourth) {
            return call(in, first, second, third, fourth);
        });
    });
    Enter(name, "vector", inputs, [call](const Input& in) {
        return PointsOfVector([&](std::vector<DPOINT2>& points) { return call(in, points, -1); });
    });
    Enter(name, "floor", inputs, floor, NearTouches);
}

const auto EllipsesOf = [](const Two<Ellipse, Ellipse>& in, auto&&... outputs) {
    const Ellipse& a = in.first;
    const Ellipse& b = in.second;
    return math::Intersect_EllipseWithEllipse(a.centre, a.a, a.b, a.rotation, b.centre, b.a, b.b, b.rotation,
                                              outputs...);
};

const auto SegmentEllipseOf = [](const Two<Stretch, Ellipse>& in, auto&&... outputs) {
    const Ellipse& e = in.second;
    return math::Intersect_LineWithEllipse(in.first.from, in.first.to, e.centre, e.a, e.b, e.rotation, outputs...);
};

const auto EllipseArcsOf = [](const Two<EllipseArc, EllipseArc>& in, auto&&... outputs) {
    const EllipseArc& a = in.first;
    const EllipseArc& b = in.second;
    return math::Intersect_EllipseArcWithEllipseArc(a.centre, a.a, a.b, a.rotation, a.start, a.sweep, b.centre, b.a,
                                                    b.b, b.rotation, b.start, b.sweep, outputs...);
};

void AddLinesWithEllipses()
{
    AddLineForms(
        "beeline/ellipse", "a beeline and an ellipse; the points", 0.0, BeelinesAndEllipses(),
        [](const Two<Beeline, Ellipse>& in, auto&&... outputs) {
            const Ellipse& e = in.second;
            return math::Intersect_BeelineWithEllipse(in.first.point, in.first.angle, e.centre, e.a, e.b, e.rotation,
                                                      outputs...);
        },
        floors::BeelineEllipse);
    AddLineForms("segment/ellipse", "a stretch and an ellipse; the points", 4.0, StretchesAndEllipses(),
                 SegmentEllipseOf, floors::SegmentEllipse);
    AddLineForms(
        "beeline/elliptical arc", "a beeline and an elliptical arc; the points", 0.0, BeelinesAndEllipseArcs(),
        [](const Two<Beeline, EllipseArc>& in, auto&&... outputs) {
            const EllipseArc& e = in.second;
            return math::Intersect_BeelineWithEllipseArc(in.first.point, in.first.angle, e.centre, e.a, e.b, e.rotation,
                                                         e.start, e.sweep, outputs...);
        },
        floors::BeelineEllipseArc);
    AddLineForms(
        "segment/elliptical arc", "a stretch and an elliptical arc; the points", 2.5, StretchesAndEllipseArcs(),
        [](const Two<Stretch, EllipseArc>& in, auto&&... outputs) {
            const EllipseArc& e = in.second;
            return math::Intersect_LineWithEllipseArc(in.first.from, in.first.to, e.centre, e.a, e.b, e.rotation,
                                                      e.start, e.sweep, outputs...);
        },
        floors::SegmentEllipseArc);
}

void AddEllipsePairs()
{
    AddEllipseForms("ellipse/ellipse", "two ellipses; up to four points", EllipsePairs(), EllipsesOf,
                    [](const Two<Ellipse, Ellipse>& in) {
                        return floors::EllipsesKeeping(in.first, in.second, [](double, double) { return true; });
                    });
    AddEllipseForms(
        "ellipse/elliptical arc", "an ellipse and an elliptical arc; up to four points", EllipsesAndEllipseArcs(),
        [](const Two<Ellipse, EllipseArc>& in, auto&&... outputs) {
            const Ellipse& a = in.first;
            const EllipseArc& b = in.second;
            return math::Intersect_EllipseWithEllipseArc(a.centre, a.a, a.b, a.rotation, b.centre, b.a, b.b, b.rotation,
                                                         b.start, b.sweep, outputs...);
        },
        [](const Two<Ellipse, EllipseArc>& in) {
            return floors::EllipsesKeeping(in.first, in.second,
                                           [&](double x, double y) { return floors::OnEllipseArc(in.second, x, y); });
        });
    AddEllipseForms("elliptical arc/elliptical arc", "two elliptical arcs; up to four points", EllipseArcPairs(),
                    EllipseArcsOf, [](const Two<EllipseArc, EllipseArc>& in) {
                        return floors::EllipsesKeeping(in.first, in.second, [&](double x, double y) {
                            return floors::OnEllipseArc(in.first, x, y) && floors::OnEllipseArc(in.second, x, y);
                        });
                    });
}

void AddCirclesWithEllipses()
{
    AddEllipseForms(
        "circle/ellipse", "a circle and an ellipse; up to four points", CirclesAndEllipses(),
        [](const Two<Circle, Ellipse>& in, auto&&... outputs) {
            const Ellipse& e = in.second;
            return math::Intersect_CircleWithEllipse(in.first.centre, in.first.radius, e.centre, e.a, e.b, e.rotation,
                                                     outputs...);
        },
        [](const Two<Circle, Ellipse>& in) {
            return floors::EllipsesKeeping(floors::AsEllipse(in.first), in.second, [](double, double) { return true; });
        });
    AddEllipseForms(
        "arc/ellipse", "an arc and an ellipse; up to four points", ArcsAndEllipses(),
        [](const Two<Arc, Ellipse>& in, auto&&... outputs) {
            const Arc& a = in.first;
            const Ellipse& e = in.second;
            return math::Intersect_ArcWithEllipse(a.centre, a.radius, a.start, a.sweep, e.centre, e.a, e.b, e.rotation,
                                                  outputs...);
        },
        [](const Two<Arc, Ellipse>& in) {
            return floors::EllipsesKeeping(floors::AsEllipse(in.first), in.second,
                                           [&](double x, double y) { return floors::OnArc(in.first, x, y); });
        });
    AddEllipseForms(
        "circle/elliptical arc", "a circle and an elliptical arc; up to four points", CirclesAndEllipseArcs(),
        [](const Two<Circle, EllipseArc>& in, auto&&... outputs) {
            const EllipseArc& e = in.second;
            return math::Intersect_CircleWithEllipseArc(in.first.centre, in.first.radius, e.centre, e.a, e.b,
                                                        e.rotation, e.start, e.sweep, outputs...);
        },
        [](const Two<Circle, EllipseArc>& in) {
            return floors::EllipsesKeeping(floors::AsEllipse(in.first), in.second,
                                           [&](double x, double y) { return floors::OnEllipseArc(in.second, x, y); });
        });
    AddEllipseForms(
        "arc/elliptical arc", "an arc and an elliptical arc; up to four points", ArcsAndEllipseArcs(),
        [](const Two<Arc, EllipseArc>& in, auto&&... outputs) {
            const Arc& a = in.first;
            const EllipseArc& e = in.second;
            return math::Intersect_ArcWithEllipseArc(a.centre, a.radius, a.start, a.sweep, e.centre, e.a, e.b,
                                                     e.rotation, e.start, e.sweep, outputs...);
        },
        [](const Two<Arc, EllipseArc>& in) {
            return floors::EllipsesKeeping(floors::AsEllipse(in.first), in.second, [&](double x, double y) {
                return floors::OnArc(in.first, x, y) && floors::OnEllipseArc(in.second, x, y);
            });
        });
}

/// A row of degenerate input made from ordinary input, of which the library answers alone.
template <typename Input, typename Change, typename Solve>
void AddDegenerate(const std::string& name, const std::string& operation, const std::string& ordinary,
                   const std::vector<Input>& from, Change change, Solve solve)
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
    Enter(name, "ours", inputs, solve);
}

void AddDegenerateEllipses()
{
    const auto ellipses = [](const Two<Ellipse, Ellipse>& in) {
        return FourPoints([&](auto... outputs) { return EllipsesOf(in, outputs...); });
    };
    AddDegenerate(
        "ellipse/ellipse, the same twice", "one ellipse with itself", "ellipse/ellipse", EllipsePairs(),
        [](Two<Ellipse, Ellipse>& in) { in.second = in.first; }, ellipses);
    AddDegenerate(
        "ellipse/ellipse, shifted along an axis", "one ellipse with itself, moved by half its semi-axis",
        "ellipse/ellipse", EllipsePairs(),
        [](Two<Ellipse, Ellipse>& in) {
            in.second = in.first;
            in.second.centre.x += 0.5 * in.first.a * std::cos(in.first.rotation);
            in.second.centre.y += 0.5 * in.first.a * std::sin(in.first.rotation);
        },
        ellipses);
    AddDegenerate(
        "segment/ellipse, no length", "the stretch shrunk to its first end", "segment/ellipse", StretchesAndEllipses(),
        [](Two<Stretch, Ellipse>& in) { in.first.to = in.first.from; },
        [](const Two<Stretch, Ellipse>& in) {
            return TwoPoints([&](auto... outputs) { return SegmentEllipseOf(in, outputs...); });
        });
    AddDegenerate(
        "elliptical arc/elliptical arc, the same twice", "one elliptical arc with itself",
        "elliptical arc/elliptical arc", EllipseArcPairs(),
        [](Two<EllipseArc, EllipseArc>& in) { in.second = in.first; },
        [](const Two<EllipseArc, EllipseArc>& in) {
            return FourPoints([&](auto... outputs) { return EllipseArcsOf(in, outputs...); });
        });
}

} // namespace

void AddEllipses()
{
    AddLinesWithEllipses();
    AddEllipsePairs();
    AddCirclesWithEllipses();
    AddDegenerateEllipses();
}

} // namespace bench
