#include "Inputs.h"

#include <algorithm>
#include <cmath>
#include <map>

namespace bench
{

namespace
{

constexpr double Pi = 3.14159265358979323846;

DPOINT2 Draw(Random& random, const DPOINT2* /*of this type*/)
{
    return {random.Between(0.0, 10.0), random.Between(0.0, 10.0)};
}

DPOINT2 DrawPoint(Random& random)
{
    return Draw(random, static_cast<const DPOINT2*>(nullptr));
}

Stretch Draw(Random& random, const Stretch* /*of this type*/)
{
    const DPOINT2 from = DrawPoint(random);
    return {from, DrawPoint(random)};
}

Beeline Draw(Random& random, const Beeline* /*of this type*/)
{
    const DPOINT2 point = DrawPoint(random);
    return {point, random.Between(0.0, Pi)};
}

Circle Draw(Random& random, const Circle* /*of this type*/)
{
    const DPOINT2 centre = DrawPoint(random);
    return {centre, random.Between(1.0, 5.0)};
}

double DrawSweep(Random& random)
{
    const double extent = random.Between(0.5, 5.0);
    return random.Coin() ? extent : -extent;
}

Arc Draw(Random& random, const Arc* /*of this type*/)
{
    const Circle circle = Draw(random, static_cast<const Circle*>(nullptr));
    const double start = random.Between(0.0, 2.0 * Pi);
    return {circle.centre, circle.radius, start, DrawSweep(random)};
}

Ellipse Draw(Random& random, const Ellipse* /*of this type*/)
{
    const DPOINT2 centre = DrawPoint(random);
    const double a = random.Between(2.0, 5.0);
    const double b = a * random.Between(0.3, 0.9);
    return {centre, a, b, random.Between(0.0, Pi)};
}

/// The sweep is positive: pairs of elliptical arcs serve no other.
EllipseArc Draw(Random& random, const EllipseArc* /*of this type*/)
{
    const Ellipse ellipse = Draw(random, static_cast<const Ellipse*>(nullptr));
    const double start = random.Between(0.0, 2.0 * Pi);
    return {ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, start, random.Between(0.5, 5.0)};
}

template <typename First, typename Second>
std::vector<Two<First, Second>> DrawTwos(std::uint64_t seed, std::size_t count)
{
    Random random(seed);
    std::vector<Two<First, Second>> inputs;
    for (std::size_t i = 0; i < count; ++i)
    {
        const First first = Draw(random, static_cast<const First*>(nullptr));
        inputs.push_back({first, Draw(random, static_cast<const Second*>(nullptr))});
    }
    return inputs;
}

math::CSegment DrawSegment(Random& random, Kind kind)
{
    const DPOINT2 start = DrawPoint(random);
    const DPOINT2 end = DrawPoint(random);
    const double bulge = random.Between(0.2, 2.0);
    switch (kind)
    {
    case Kind::Arc:
        return {start, end, random.Coin() ? bulge : -bulge};
    case Kind::Bezier: {
        const DPOINT2 firstControl = DrawPoint(random);
        return {start, firstControl, DrawPoint(random), end};
    }
    default:
        return {start, end};
    }
}

/// So many inputs that a list of `size` elements each is gone through by the thousand, and one for large ones.
std::size_t InputsOfSize(std::size_t size)
{
    return std::max<std::size_t>(1, std::min<std::size_t>(400, 4000 / size));
}

/// A closed outline whose segments have the length 1: each direction is used once, in order, with its opposite.
math::CPolyline DrawOutline(Random& random, std::size_t count, bool isCurved)
{
    std::vector<double> angles;
    for (std::size_t i = 0; i < count / 2; ++i)
    {
        const double angle = random.Between(0.0, Pi);
        angles.push_back(angle);
        angles.push_back(angle + Pi);
    }
    std::sort(angles.begin(), angles.end());
    math::CPolyline outline;
    outline.start = DrawPoint(random);
    DPOINT2 place = outline.start;
    for (std::size_t i = 0; i < angles.size(); ++i)
    {
        place = {place.x + std::cos(angles[i]), place.y + std::sin(angles[i])};
        const double bulge = isCurved && i % 2 == 0 ? random.Between(0.1, 0.9) : 0.0;
        outline.AddNodes(i + 1 < angles.size() ? place : outline.start, bulge);
    }
    return outline;
}

std::vector<OutlineInput> DrawOutlines(std::size_t count, bool isCurved)
{
    Random random(count + (isCurved ? 7 : 0));
    std::vector<OutlineInput> inputs;
    for (std::size_t i = 0; i < InputsOfSize(count); ++i)
    {
        OutlineInput input;
        input.outline = DrawOutline(random, count, isCurved);
        input.position = random.Between(0.0, static_cast<double>(count));
        input.point = {random.Between(-5.0, 15.0), random.Between(-5.0, 15.0)};
        inputs.push_back(std::move(input));
    }
    return inputs;
}

/// Rising from 0 to `top` in `size` - 1 uneven steps. Some steps are 0 where `standsStill` says so.
template <typename StandsStill>
std::vector<double> DrawColumn(Random& random, std::size_t size, double top, StandsStill standsStill)
{
    std::vector<double> column(size, 0.0);
    for (std::size_t i = 1; i < size; ++i)
    {
        column[i] = column[i - 1] + (standsStill(i) ? 0.0 : random.Between(0.5, 1.5));
    }
    const double scale = top / column.back();
    for (double& value : column)
    {
        value *= scale;
    }
    column.back() = top;
    return column;
}

math::CPolyPosMap DrawMap(Random& random, std::size_t joints, MapKind kind)
{
    const int count = static_cast<int>(joints);
    const double top = static_cast<double>(joints);
    const bool hasJumps = kind == MapKind::JumpsAndFlats;
    const std::vector<double> source =
        DrawColumn(random, joints, top, [&](std::size_t i) { return hasJumps && i % 10 == 3; });
    const std::vector<double> destination =
        DrawColumn(random, joints, top, [&](std::size_t i) { return hasJumps && i % 10 == 7; });
    const double shift = kind == MapKind::Seam ? std::floor(top / 2.0) : 0.0;
    std::vector<std::pair<double, double>> pairs;
    for (std::size_t i = 0; i < joints; ++i)
    {
        pairs.emplace_back(source[i] + shift, destination[i]);
    }
    return {pairs, count, count};
}

/// Stairs with steps up to 0.02 in both columns, between whole steps.
math::CPolyPosMap DrawStaircase(Random& random, std::size_t joints)
{
    std::vector<std::pair<double, double>> pairs;
    std::pair<double, double> place(0.0, 0.0);
    while (pairs.size() < joints)
    {
        pairs.push_back(place);
        place.first += random.Between(0.01, 0.02);
        pairs.push_back(place);
        place.second += random.Between(0.01, 0.02);
        pairs.push_back(place);
        const double step = random.Between(0.4, 1.2);
        place.first += step;
        place.second += step * random.Between(0.9, 1.1);
    }
    const int count = static_cast<int>(std::max(pairs.back().first, pairs.back().second)) + 1;
    return {pairs, count, count};
}

template <typename Value, typename Make>
const Value& Kept(std::map<std::size_t, Value>& kept, std::size_t key, Make make)
{
    const auto found = kept.find(key);
    return found != kept.end() ? found->second : kept.emplace(key, make()).first->second;
}

} // namespace

#define BENCH_TWOS(Function, First, Second, seed, count)                                                               \
    const std::vector<Two<First, Second>>& Function()                                                                  \
    {                                                                                                                  \
        static const std::vector<Two<First, Second>> inputs = DrawTwos<First, Second>(seed, count);                    \
        return inputs;                                                                                                 \
    }

BENCH_TWOS(StretchPairs, Stretch, Stretch, 1, InputCount)
BENCH_TWOS(BeelinesAndCircles, Beeline, Circle, 2, InputCount)
BENCH_TWOS(StretchesAndCircles, Stretch, Circle, 3, InputCount)
BENCH_TWOS(BeelinesAndArcs, Beeline, Arc, 4, InputCount)
BENCH_TWOS(StretchesAndArcs, Stretch, Arc, 5, InputCount)
BENCH_TWOS(CirclePairs, Circle, Circle, 6, InputCount)
BENCH_TWOS(CirclesAndArcs, Circle, Arc, 7, InputCount)
BENCH_TWOS(ArcPairs, Arc, Arc, 8, InputCount)
BENCH_TWOS(BeelinesAndEllipses, Beeline, Ellipse, 9, InputCount)
BENCH_TWOS(StretchesAndEllipses, Stretch, Ellipse, 10, InputCount)
BENCH_TWOS(BeelinesAndEllipseArcs, Beeline, EllipseArc, 11, InputCount)
BENCH_TWOS(StretchesAndEllipseArcs, Stretch, EllipseArc, 12, InputCount)
BENCH_TWOS(EllipsePairs, Ellipse, Ellipse, 13, EllipseInputCount)
BENCH_TWOS(CirclesAndEllipses, Circle, Ellipse, 14, EllipseInputCount)
BENCH_TWOS(ArcsAndEllipses, Arc, Ellipse, 15, EllipseInputCount)
BENCH_TWOS(EllipsesAndEllipseArcs, Ellipse, EllipseArc, 16, EllipseInputCount)
BENCH_TWOS(CirclesAndEllipseArcs, Circle, EllipseArc, 17, EllipseInputCount)
BENCH_TWOS(ArcsAndEllipseArcs, Arc, EllipseArc, 18, EllipseInputCount)
BENCH_TWOS(EllipseArcPairs, EllipseArc, EllipseArc, 19, EllipseInputCount)

#undef BENCH_TWOS

const std::vector<Coefficients>& Quadratics()
{
    static const std::vector<Coefficients> inputs = [] {
        Random random(20);
        std::vector<Coefficients> list;
        for (std::size_t i = 0; i < InputCount; ++i)
        {
            const double a = random.Between(0.5, 3.0);
            const double middle = random.Between(-4.0, 4.0);
            const double half = random.Between(0.1, 4.0);
            const double square = random.Coin() ? half * half : -half * half;
            list.push_back({a, -2.0 * a * middle, a * (middle * middle - square), 0.0});
        }
        return list;
    }();
    return inputs;
}

const std::vector<Coefficients>& Cubics()
{
    static const std::vector<Coefficients> inputs = [] {
        Random random(21);
        std::vector<Coefficients> list;
        for (std::size_t i = 0; i < InputCount; ++i)
        {
            const double a = random.Between(0.5, 3.0);
            const double root = random.Between(-4.0, 4.0);
            const double middle = root + (random.Coin() ? 1.0 : -1.0) * random.Between(2.5, 4.0);
            const double half = random.Between(0.5, 2.0);
            const double p = -2.0 * middle;
            const double q = middle * middle + (random.Coin() ? half * half : -half * half);
            list.push_back({a, a * (p - root), a * (q - root * p), -a * root * q});
        }
        return list;
    }();
    return inputs;
}

const std::vector<SegmentAndParameter>& SegmentsAndParameters(Kind kind)
{
    static std::map<std::size_t, std::vector<SegmentAndParameter>> kept;
    return Kept(kept, static_cast<std::size_t>(kind), [kind] {
        Random random(30 + static_cast<std::uint64_t>(kind));
        std::vector<SegmentAndParameter> list;
        for (std::size_t i = 0; i < InputCount; ++i)
        {
            const math::CSegment segment = DrawSegment(random, kind);
            list.push_back({segment, random.Between(0.0, 1.0)});
        }
        return list;
    });
}

const std::vector<SegmentAndPoint>& SegmentsAndPoints(Kind kind)
{
    static std::map<std::size_t, std::vector<SegmentAndPoint>> kept;
    return Kept(kept, static_cast<std::size_t>(kind), [kind] {
        Random random(40 + static_cast<std::uint64_t>(kind));
        std::vector<SegmentAndPoint> list;
        for (std::size_t i = 0; i < InputCount; ++i)
        {
            const math::CSegment segment = DrawSegment(random, kind);
            list.push_back({segment, DrawPoint(random)});
        }
        return list;
    });
}

const std::vector<OutlineInput>& StraightOutlines(std::size_t count)
{
    static std::map<std::size_t, std::vector<OutlineInput>> kept;
    return Kept(kept, count, [count] { return DrawOutlines(count, false); });
}

const std::vector<OutlineInput>& CurvedOutlines(std::size_t count)
{
    static std::map<std::size_t, std::vector<OutlineInput>> kept;
    return Kept(kept, count, [count] { return DrawOutlines(count, true); });
}

const std::vector<math::CPolyPosMap>& Maps(std::size_t joints, MapKind kind)
{
    static std::map<std::size_t, std::vector<math::CPolyPosMap>> kept;
    return Kept(kept, 4 * joints + static_cast<std::size_t>(kind), [joints, kind] {
        Random random(50 + joints + static_cast<std::uint64_t>(kind));
        std::vector<math::CPolyPosMap> list;
        for (std::size_t i = 0; i < InputsOfSize(joints); ++i)
        {
            list.push_back(kind == MapKind::Staircase ? DrawStaircase(random, joints) : DrawMap(random, joints, kind));
        }
        return list;
    });
}

const std::vector<MapPair>& MapPairs(std::size_t joints, MapKind kind)
{
    static std::map<std::size_t, std::vector<MapPair>> kept;
    return Kept(kept, 4 * joints + static_cast<std::size_t>(kind), [joints, kind] {
        Random random(60 + joints + static_cast<std::uint64_t>(kind));
        std::vector<MapPair> list;
        for (std::size_t i = 0; i < InputsOfSize(joints); ++i)
        {
            // Over the seam on one side of the pair: the second operand.
            const MapKind firstKind = kind == MapKind::Seam ? MapKind::Plain : kind;
            math::CPolyPosMap first = DrawMap(random, joints, firstKind);
            list.push_back({std::move(first), DrawMap(random, joints, kind)});
        }
        return list;
    });
}

const std::vector<MapAndPosition>& MapsAndPositions(std::size_t joints)
{
    static std::map<std::size_t, std::vector<MapAndPosition>> kept;
    return Kept(kept, joints, [joints] {
        Random random(70 + joints);
        std::vector<MapAndPosition> list;
        for (std::size_t i = 0; i < std::max<std::size_t>(16, InputsOfSize(joints)); ++i)
        {
            math::CPolyPosMap map = DrawMap(random, joints, MapKind::Plain);
            list.push_back({std::move(map), random.Between(0.01, static_cast<double>(joints) - 0.01)});
        }
        return list;
    });
}

} // namespace bench
