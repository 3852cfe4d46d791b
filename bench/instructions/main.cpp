// Runs key cases, each on prepared inputs, and tells valgrind's callgrind where each begins and ends. Meant for
// scripts/check_instructions.sh; without valgrind it runs the cases and prints nothing.
//
// Usage: qormath_instructions [CASE TIMES]: the case of that name is run so many times over, to see that it is noticed.

#include "Inputs.h"
#include "math/QorMath.h"

#include <valgrind/callgrind.h>

#include <cmath>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

namespace
{

using namespace bench;
using math::CPolyPosMap;

/// Results go here, so that nothing is left out.
volatile double sink = 0.0;

std::string repeatedCase;
int repetitions = 1;

/// Counts what `solve` needs for all inputs, under a name.
template <typename Input, typename Solve>
void Count(const char* name, const std::vector<Input>& inputs, std::size_t count, Solve solve)
{
    const int times = repeatedCase == name ? repetitions : 1;
    double sum = 0.0;
    CALLGRIND_ZERO_STATS;
    CALLGRIND_TOGGLE_COLLECT;
    for (int time = 0; time < times; ++time)
    {
        for (std::size_t i = 0; i < count && i < inputs.size(); ++i)
        {
            sum += solve(inputs[i]);
        }
    }
    CALLGRIND_TOGGLE_COLLECT;
    CALLGRIND_DUMP_STATS_AT(name);
    sink = sink + sum;
}

// The two measures: plain code of this program, whose instructions change with the compiler alone

/// For geometry: divisions, square roots and branches, without the C runtime.
double CrossingByHand(const Two<Stretch, Circle>& in)
{
    const double dx = in.first.to.x - in.first.from.x, dy = in.first.to.y - in.first.from.y;
    const double ex = in.first.from.x - in.second.centre.x, ey = in.first.from.y - in.second.centre.y;
    const double a = dx * dx + dy * dy, b = ex * dx + ey * dy;
    const double h = b * b - a * (ex * ex + ey * ey - in.second.radius * in.second.radius);
    if (h < 0.0)
    {
        return 0.0;
    }
    const double root = std::sqrt(h);
    double sum = 0.0;
    for (const double t : {(-b - root) / a, (-b + root) / a})
    {
        sum += t >= 0.0 && t <= 1.0 ? in.first.from.x + t * dx + in.first.from.y + t * dy : 0.0;
    }
    return sum;
}

/// For maps: a walk along two lists.
double MergeByHand(const MapPair& in)
{
    const auto& a = in.first.PosPairs();
    const auto& b = in.second.PosPairs();
    std::vector<double> merged;
    merged.reserve(a.size() + b.size());
    std::size_t i = 0;
    std::size_t j = 0;
    while (i < a.size() && j < b.size())
    {
        merged.push_back(a[i].second < b[j].first ? a[i++].second : b[j++].first);
    }
    return merged.back() + static_cast<double>(merged.size());
}

void CountMeasures()
{
    Count("measure of geometry", StretchesAndCircles(), 4000, CrossingByHand);
    Count("measure of maps", MapPairs(1000, MapKind::Plain), 4, MergeByHand);
}

// The cases

void CountIntersections()
{
    DPOINT2 p[4];
    Count("segment/segment", StretchPairs(), 2000, [&](const Two<Stretch, Stretch>& in) {
        return math::Intersect_LineWithLine(in.first.from, in.first.to, in.second.from, in.second.to, &p[0]) + p[0].x;
    });
    Count("segment/circle", StretchesAndCircles(), 2000, [&](const Two<Stretch, Circle>& in) {
        return math::Intersect_LineWithCircle(in.first.from, in.first.to, in.second.centre, in.second.radius, &p[0],
                                              &p[1]) +
               p[0].x;
    });
    Count("circle/circle", CirclePairs(), 2000, [&](const Two<Circle, Circle>& in) {
        return math::Intersect_CircleWithCircle(in.first.centre, in.first.radius, in.second.centre, in.second.radius,
                                                &p[0], &p[1]) +
               p[0].x;
    });
    Count("arc/arc", ArcPairs(), 2000, [&](const Two<Arc, Arc>& in) {
        const Arc& a = in.first;
        const Arc& b = in.second;
        return math::Intersect_ArcWithArc(a.centre, a.radius, a.start, a.sweep, b.centre, b.radius, b.start, b.sweep,
                                          &p[0], &p[1]) +
               p[0].x;
    });
    Count("segment/ellipse", StretchesAndEllipses(), 1000, [&](const Two<Stretch, Ellipse>& in) {
        const Ellipse& e = in.second;
        return math::Intersect_LineWithEllipse(in.first.from, in.first.to, e.centre, e.a, e.b, e.rotation, &p[0],
                                               &p[1]) +
               p[0].x;
    });
    Count("ellipse/ellipse", EllipsePairs(), 200, [&](const Two<Ellipse, Ellipse>& in) {
        const Ellipse& a = in.first;
        const Ellipse& b = in.second;
        return math::Intersect_EllipseWithEllipse(a.centre, a.a, a.b, a.rotation, b.centre, b.a, b.b, b.rotation, &p[0],
                                                  &p[1], &p[2], &p[3]);
    });
    Count("cubic", Cubics(), 1000, [](const Coefficients& k) {
        double roots[3] = {};
        return math::SolveCubicEquation(k.a, k.b, k.c, k.d, &roots[0], &roots[1], &roots[2]) + roots[0];
    });
}

void CountOutlines()
{
    Count("area of an outline", CurvedOutlines(1000), 4, [](const OutlineInput& in) { return in.outline.GetArea(); });
    Count("nearest point of an arc", SegmentsAndPoints(Kind::Arc), 1000, [](const SegmentAndPoint& in) {
        double t = 0.0;
        return in.segment.GetNearestPoint(in.point, t).x + t;
    });
}

void CountMaps()
{
    Count("composition", MapPairs(1000, MapKind::Plain), 4,
          [](const MapPair& in) { return (in.first * in.second).Back().second; });
    Count("composition over the seam", MapPairs(100, MapKind::Seam), 20,
          [](const MapPair& in) { return (in.first * in.second).Back().second; });
    Count("evaluation", MapsAndPositions(1000), 16,
          [](const MapAndPosition& in) { return (in.map * in.position).front(); });
    Count("normal form", Maps(1000, MapKind::Plain), 4, [](const CPolyPosMap& map) {
        CPolyPosMap copy(map);
        copy.Unique(true);
        return copy.Back().first;
    });
    Count("filling", Maps(1000, MapKind::Plain), 4, [](const CPolyPosMap& map) {
        CPolyPosMap copy(map);
        copy.FillAllSegmentNode(3);
        return copy.Back().first;
    });
    Count("smoothing", Maps(1000, MapKind::Staircase), 4, [](const CPolyPosMap& map) {
        CPolyPosMap copy(map);
        copy.Smooth(0.05, 0.05);
        return copy.Back().first;
    });
    Count("segment list", Maps(1000, MapKind::Plain), 4,
          [](const CPolyPosMap& map) { return math::CPolyPosMapUtilies::GetSegmentMapFronPosMap(map).back(); });
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3)
    {
        repeatedCase = argv[1];
        repetitions = std::atoi(argv[2]);
    }
    CountMeasures();
    CountIntersections();
    CountOutlines();
    CountMaps();
    return 0;
}
