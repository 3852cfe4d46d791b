#include "math/AnalyticKernel.h"
#include "math/Primitives.h"
#include "support/Segments.h"
#include "support/Support.h"

#include <gp_Circ2d.hxx>
#include <gp_Dir2d.hxx>
#include <gp_Lin2d.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <numeric>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of distances, predicates and constructions, numbered as in docs/primitives.md. Grids have whole coordinates,
// on which degenerate positions are the rule and cross products are exact; bounds are a count of roundings times the
// size of the coordinates.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

double Cross(const DPOINT2& a, const DPOINT2& b, const DPOINT2& c)
{
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}

double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

/// All points with whole coordinates from 0 to `last`.
std::vector<DPOINT2> Lattice(int last)
{
    std::vector<DPOINT2> points;
    for (int x = 0; x <= last; ++x)
    {
        for (int y = 0; y <= last; ++y)
        {
            points.push_back(At(x, y));
        }
    }
    return points;
}

/// Points with whole coordinates up to `extent` at random.
std::vector<DPOINT2> WholePoints(std::uint64_t seed, int count, int extent)
{
    Random random(seed);
    std::vector<DPOINT2> points;
    for (int i = 0; i < count; ++i)
    {
        const int x = random.Integer(-extent, extent);
        points.push_back(At(x, random.Integer(-extent, extent)));
    }
    return points;
}

DPOINT2 QuarterTurned(const DPOINT2& point)
{
    return {-point.y, point.x};
}

DPOINT2 Moved(const DPOINT2& point)
{
    return {point.x + 16, point.y - 32};
}

constexpr int RandomOvals = 200;

struct Oval
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
};

/// Semi-axes in both orders, a circle, rotations of all quarters, and ellipses at random.
std::vector<Oval> GridOvals()
{
    std::vector<Oval> ovals;
    for (const double a : {1.0, 2.0, 5.0})
    {
        for (const double b : {0.5, 2.0})
        {
            for (int rotation = -12; rotation <= 24; ++rotation)
            {
                ovals.push_back({At(1, -2), a, b, Pi * rotation / 12});
            }
        }
    }
    Random random(4);
    for (int i = 0; i < RandomOvals; ++i)
    {
        const DPOINT2 centre = random.Point(2);
        const double a = random.Size(1, 5);
        const double b = random.Size(0.5, 2);
        ovals.push_back({centre, a, b, random.Number(-Pi, TwoPi)});
    }
    return ovals;
}

/// How far (u/a)² + (v/b)² of a point is from 1, in long double.
double OffOval(const Oval& oval, const DPOINT2& point)
{
    const long double dx = static_cast<long double>(point.x) - oval.centre.x;
    const long double dy = static_cast<long double>(point.y) - oval.centre.y;
    const long double cosine = std::cos(static_cast<long double>(oval.rotation));
    const long double sine = std::sin(static_cast<long double>(oval.rotation));
    const long double u = (dx * cosine + dy * sine) / oval.a;
    const long double v = (dy * cosine - dx * sine) / oval.b;
    return static_cast<double>(std::abs(u * u + v * v - 1));
}

struct RoundArc
{
    DPOINT2 centre;
    double radius;
    double start;
    double sweep;

    DPOINT2 PointAt(double ratio) const
    {
        return {centre.x + radius * std::cos(start + sweep * ratio),
                centre.y + radius * std::sin(start + sweep * ratio)};
    }
};

/// Starts and sweeps of multiples of π/6, and arcs at random.
std::vector<RoundArc> GridArcs()
{
    std::vector<RoundArc> arcs;
    for (const double radius : {0.5, 3.0})
    {
        for (int start = 0; start < 12; ++start)
        {
            for (int sweep = -11; sweep <= 11; ++sweep)
            {
                if (sweep != 0)
                {
                    arcs.push_back({At(1, 2), radius, Pi * start / 6, Pi * sweep / 6});
                }
            }
        }
    }
    Random random(5);
    for (int i = 0; i < 300; ++i)
    {
        const DPOINT2 centre = random.Point(2);
        const double radius = random.Size(0.25, 4);
        const double start = random.Radian();
        arcs.push_back({centre, radius, start, (random.Coin() ? 1 : -1) * random.Number(0.01, 6.2)});
    }
    return arcs;
}

/// The bulges of the grid: flat and nearly full, both ways, the half circle and its neighbours.
const double Bulges[] = {1e-4, 0.1, 0.25, 0.5, 0.9, Previous(1.0), 1.0, Next(1.0), 1.25, 2.0, 4.0, 10.0, 100.0};

gp_Circ2d CircleAt(const DPOINT2& centre, double radius)
{
    return gp_Circ2d(gp_Ax2d(gp_Pnt2d(centre.x, centre.y), gp_Dir2d(1, 0)), radius);
}

} // namespace

// Distances

TEST(DistanceLaws, A12_DistanceIsAMetricAndMovesAlong)
{
    std::vector<DPOINT2> points = Lattice(4);
    const std::vector<DPOINT2> others = WholePoints(12, 40, 1000);
    points.insert(points.end(), others.begin(), others.end());
    for (const DPOINT2& a : points)
    {
        for (const DPOINT2& b : points)
        {
            const double distance = D2GetDistance(a, b);
            ASSERT_EQ(D2GetDistance(b, a), distance);
            ASSERT_EQ(distance == 0, a == b);
            ASSERT_EQ(D2GetDistance(Moved(a), Moved(b)), distance);
            ASSERT_EQ(D2GetDistance(QuarterTurned(a), QuarterTurned(b)), distance);
            for (const DPOINT2& c : points)
            {
                ASSERT_LE(D2GetDistance(a, c), (distance + D2GetDistance(b, c)) * (1 + 4 * Unit));
            }
        }
    }
}

TEST(DistanceLaws, A13_TheFootOfThePerpendicularLiesOnTheLineAtTheDistanceOfTheLine)
{
    const double rounding = 16 * Unit * 8;
    const auto check = [&](const DPOINT2& a, const DPOINT2& b, const DPOINT2& point) {
        const LineD2D line{a.x, a.y, b.x, b.y};
        const double distance = D2GetPointToLineDistance(point, a, b);
        ASSERT_TRUE(Near(distance, std::abs(Cross(a, b, point)) / Distance(a, b), rounding));
        ASSERT_TRUE(Near(D2GetPointToLineDistance(point, b, a), distance, rounding));
        DPOINT2 foot = Untouched();
        D2GetProjectionPoint(point, line, &foot);
        ASSERT_TRUE(Near(D2GetPointToLineDistance(foot, a, b), 0, rounding));
        ASSERT_TRUE(Near(D2GetDistance(point, foot), distance, rounding));
        DPOINT2 again = Untouched();
        D2GetProjectionPoint(foot, line, &again);
        ASSERT_TRUE(Near(again, foot, rounding));
        ASSERT_EQ(IsPointProjInLine(point, a, b), IsPointProjInLine(point, b, a));
    };
    const std::vector<DPOINT2> points = Lattice(4);
    for (const DPOINT2& a : points)
    {
        for (const DPOINT2& b : points)
        {
            if (a == b)
            {
                ASSERT_TRUE(std::isnan(D2GetPointToLineDistance(At(1, 1), a, b)));
                continue;
            }
            for (const DPOINT2& point : Lattice(3))
            {
                check(a, b, point);
            }
        }
    }
    Random random(13);
    for (int round = 0; round < 5000; ++round)
    {
        const DPOINT2 a = random.Point(4);
        const double direction = random.Radian();
        const double length = random.Number(1, 4);
        check(a, At(a.x + length * std::cos(direction), a.y + length * std::sin(direction)), random.Point(4));
    }
}

TEST(DistanceLaws, A14_TheDistanceToAStretchIsThatOfItsNearestPoint)
{
    const double rounding = 16 * Unit * 8;
    const auto check = [&](const DPOINT2& a, const DPOINT2& b, const DPOINT2& point) {
        const double distance = MinDistanceToLine(point, a, b);
        ASSERT_TRUE(Near(MinDistanceToLine(point, b, a), distance, rounding));
        // The foot of the perpendicular, held to the stretch.
        const DPOINT2 along = At(b.x - a.x, b.y - a.y);
        const double square = along.x * along.x + along.y * along.y;
        const double dot = (point.x - a.x) * along.x + (point.y - a.y) * along.y;
        const double ratio = square == 0 ? 0 : std::clamp(dot / square, 0.0, 1.0);
        const DPOINT2 nearest = At(a.x + along.x * ratio, a.y + along.y * ratio);
        ASSERT_TRUE(Near(distance, Distance(point, nearest), rounding));
        ASSERT_TRUE(Near(MinDistanceToLine(Moved(point), Moved(a), Moved(b)), distance, 16 * Unit * 64));
    };
    for (const DPOINT2& a : Lattice(3))
    {
        for (const DPOINT2& b : Lattice(3))
        {
            for (const DPOINT2& point : Lattice(5))
            {
                check(a, b, point);
            }
        }
    }
    Random random(14);
    for (int round = 0; round < 5000; ++round)
    {
        const DPOINT2 a = random.Point(5);
        const DPOINT2 b = random.Point(5);
        check(a, b, random.Point(5));
    }
}

TEST(DistanceLaws, A15_TheDistanceToAnArcIsThatOfItsNearestPointFromEitherEnd)
{
    constexpr int samples = 240;
    for (const RoundArc& arc : GridArcs())
    {
        const DPOINT2 from = arc.PointAt(0);
        const DPOINT2 to = arc.PointAt(1);
        for (const DPOINT2& point : Lattice(4))
        {
            const double distance = MinDistanceToArc(point, arc.centre, from, to, arc.radius, arc.sweep);
            const double back = MinDistanceToArc(point, arc.centre, to, from, arc.radius, -arc.sweep);
            ASSERT_TRUE(Near(back, distance, 16 * Unit * 8));
            double least = Infinity;
            for (int sample = 0; sample <= samples; ++sample)
            {
                least = std::min(least, Distance(point, arc.PointAt(static_cast<double>(sample) / samples)));
            }
            ASSERT_LE(distance, least + 16 * Unit * 8);
            // Between two samples the arc comes nearer by no more than half their step.
            ASSERT_GE(distance, least - std::abs(arc.sweep) * arc.radius / samples / 2);
        }
    }
}

TEST(DistanceLaws, A16_AFrameThereAndBackIsTheIdentityAndKeepsDistances)
{
    Random random(2);
    for (int round = 0; round < 20000; ++round)
    {
        const DPOINT2 origin = random.Point(10);
        const DPOINT2 point = random.Point(10);
        const double radian = random.Number(-20, 20);
        const DPOINT2 inside = CoorTransXYToUV(point, origin, radian);
        ASSERT_TRUE(Near(CoorTransUVToXY(inside, origin, radian), point, 16 * Unit * 40));
        ASSERT_TRUE(Near(std::hypot(inside.x, inside.y), D2GetDistance(point, origin), 16 * Unit * 40));
    }
    for (const DPOINT2& origin : Lattice(3))
    {
        for (const DPOINT2& point : Lattice(3))
        {
            ASSERT_EQ(CoorTransXYToUV(point, origin, 0), At(point.x - origin.x, point.y - origin.y));
            ASSERT_EQ(CoorTransUVToXY(At(point.x - origin.x, point.y - origin.y), origin, 0), point);
        }
    }
}

// Arcs and circles

namespace
{

struct Chord
{
    DPOINT2 first;
    DPOINT2 last;
    double size; ///< of its bulge
};

/// From a whole point to all others nearby with every bulge of the grid, and chords and bulges at random.
std::vector<Chord> GridChords()
{
    std::vector<Chord> chords;
    for (const DPOINT2& last : Lattice(4))
    {
        for (const double size : Bulges)
        {
            chords.push_back({At(2, 1), last, size});
        }
    }
    Random random(17);
    for (int i = 0; i < 5000; ++i)
    {
        const DPOINT2 first = random.Point(4);
        chords.push_back({first, random.Point(4), random.Size(1e-4, 100)});
    }
    return chords;
}

/// The greatest coordinate, or the chord if that is longer.
double ExtentOf(const DPOINT2& first, const DPOINT2& last)
{
    return std::max({std::abs(first.x), std::abs(first.y), std::abs(last.x), std::abs(last.y), Distance(first, last)});
}

} // namespace

TEST(ArcLaws, A17_AnArcGoesFromBulgeToCentreFormAndBack)
{
    for (const auto& [first, last, size] : GridChords())
    {
        for (const double bulge : {size, -size})
        {
            DPOINT2 centre = Untouched();
            double radius = UntouchedNumber();
            double start = UntouchedNumber();
            double sweep = UntouchedNumber();
            const bool isArc = SolveArc(first, last, bulge, &centre, &radius, &start, &sweep);
            ASSERT_EQ(isArc, !(last == first));
            if (!isArc)
            {
                ASSERT_EQ(centre, Untouched());
                continue;
            }
            // The radius grows with the lesser of bulge and its inverse; the centre carries its rounding.
            const double rounding = 24 * Unit * (size + 1 / size) * ExtentOf(first, last);
            const RoundArc arc{centre, radius, start, sweep};
            ASSERT_TRUE(Near(arc.PointAt(0), first, rounding)) << bulge;
            ASSERT_TRUE(Near(arc.PointAt(1), last, rounding)) << bulge;
            ASSERT_TRUE(Near(GetBulge(start, start + sweep), bulge, 24 * Unit * (1 + size) * (1 + size))) << bulge;
            ASSERT_TRUE(start >= 0 && start < TwoPi);
            ASSERT_EQ(sweep > 0, bulge > 0);
            ASSERT_LT(std::abs(sweep), TwoPi);
            ASSERT_TRUE(Near(centre, CentreOfArc(first, last, bulge), rounding)) << bulge;
        }
    }
}

TEST(ArcLaws, A18_AnArcTurnedRoundAndItsComplementLieOnOneCircle)
{
    for (const auto& [first, last, size] : GridChords())
    {
        if (last == first)
        {
            continue;
        }
        DPOINT2 centre;
        DPOINT2 turnedCentre;
        DPOINT2 otherCentre;
        double radius = 0;
        double turnedRadius = 0;
        double otherRadius = 0;
        double sweep = 0;
        double turnedSweep = 0;
        double otherSweep = 0;
        double start = 0;
        SolveArc(first, last, size, &centre, &radius, &start, &sweep);
        SolveArc(last, first, -size, &turnedCentre, &turnedRadius, &start, &turnedSweep);
        SolveArc(first, last, -1 / size, &otherCentre, &otherRadius, &start, &otherSweep);
        const double rounding = 24 * Unit * (size + 1 / size) * ExtentOf(first, last);
        ASSERT_TRUE(Near(turnedCentre, centre, rounding)) << size;
        ASSERT_EQ(turnedRadius, radius) << size;
        ASSERT_EQ(turnedSweep, -sweep) << size;
        // The way round the other side has the inverse bulge, negated; both sweeps make a full turn.
        // One of the two is nearly a full turn: its radius is the chord over a sine next to π, which holds the
        // rounding of the sweep over (b + 1 / b) / 2, times a radius of the size of that.
        const double nearFullTurn = 4 * Unit * (size + 1 / size) * (size + 1 / size) * Distance(first, last);
        ASSERT_TRUE(Near(otherCentre, centre, rounding + nearFullTurn)) << size;
        ASSERT_TRUE(Near(otherRadius, radius, rounding + nearFullTurn)) << size;
        ASSERT_TRUE(Near(sweep - otherSweep, TwoPi, 8 * Unit * TwoPi)) << size;
    }
}

TEST(ArcLaws, A19_ThreePointsMakeACircleThroughThemExceptOnOneLine)
{
    const std::vector<DPOINT2> points = Lattice(4);
    for (const DPOINT2& a : points)
    {
        for (const DPOINT2& b : points)
        {
            for (const DPOINT2& c : points)
            {
                DPOINT2 centre = Untouched();
                double radius = UntouchedNumber();
                const bool isCircle = CreateCircleFrom3Point(a, b, c, &centre, &radius);
                const bool isOnePlace = a == b && b == c;
                ASSERT_EQ(isCircle, Cross(a, b, c) != 0 || isOnePlace);
                if (!isCircle)
                {
                    ASSERT_EQ(centre, Untouched());
                    ASSERT_EQ(radius, UntouchedNumber());
                    continue;
                }
                // The centre is the meeting of two lines, off by the roundings over the sine of their angle, which is
                // the area over two sides: at least 1 / 32 on this grid.
                for (const DPOINT2& point : {a, b, c})
                {
                    ASSERT_TRUE(Near(Distance(centre, point), radius, 16 * Unit * 32 * (8 + radius)));
                }
            }
        }
    }
    Random random(19);
    for (int round = 0; round < 5000; ++round)
    {
        const DPOINT2 a = random.Point(4);
        const DPOINT2 b = random.Point(4);
        const DPOINT2 c = random.Point(4);
        DPOINT2 centre = Untouched();
        double radius = UntouchedNumber();
        ASSERT_TRUE(CreateCircleFrom3Point(a, b, c, &centre, &radius));
        const double sine = std::abs(Cross(a, b, c)) / (Distance(a, b) * std::max(Distance(b, c), Distance(c, a)));
        for (const DPOINT2& point : {a, b, c})
        {
            ASSERT_TRUE(Near(Distance(centre, point), radius, 16 * Unit / sine * (8 + radius)));
        }
    }
}

// Predicates

TEST(PredicateLaws, A20_TheEndsOfACurveLieOnItExceptOnAStretchOfNoLength)
{
    int withoutEnds = 0;
    for (const DPOINT2& a : Lattice(4))
    {
        for (const DPOINT2& b : Lattice(4))
        {
            withoutEnds += IsPointInLine(a, a, b) ? 0 : 1;
            ASSERT_EQ(IsPointInLine(a, a, b), !(a == b));
            ASSERT_EQ(IsPointInLine(b, a, b), !(a == b));
        }
    }
    EXPECT_EQ(withoutEnds, 25);
    for (const RoundArc& arc : GridArcs())
    {
        const double extent = std::abs(arc.sweep);
        for (const double ratio : {0.0, 0.25, 0.5, 0.75, 1.0})
        {
            const DPOINT2 point = arc.PointAt(ratio);
            ASSERT_TRUE(IsPointInArc(point, arc.centre, arc.radius, arc.start, extent, arc.sweep > 0));
            ASSERT_TRUE(IsPointInArc(point, arc.centre, arc.PointAt(0), arc.PointAt(1), arc.sweep > 0));
            ASSERT_TRUE(IsAngleInSector(arc.start + arc.sweep * ratio, arc.start, extent, arc.sweep > 0));
        }
    }
    for (const Oval& oval : GridOvals())
    {
        for (int start = 0; start < 12; ++start)
        {
            // Off the vertical by more than rounding: see A25 for what happens next to it.
            const double from = 0.1 + Pi * start / 6;
            for (const double extent : {0.0, 0.5, 3.0, 6.0})
            {
                const double to = RegularizeRadian(from + extent);
                const DPOINT2 first = GetPointInEllipse(oval.centre, oval.a, oval.b, oval.rotation, from);
                const DPOINT2 last = GetPointInEllipse(oval.centre, oval.a, oval.b, oval.rotation, to);
                for (const DPOINT2& point : {first, last})
                {
                    ASSERT_TRUE(IsPointInEllipse(point, oval.centre, oval.a, oval.b, oval.rotation));
                    ASSERT_TRUE(IsPointInEllipseArc(point, oval.centre, oval.a, oval.b, oval.rotation, from, extent));
                    ASSERT_TRUE(
                        IsPointInEllipseArc(point, oval.centre, oval.a, oval.b, oval.rotation, from, extent, true));
                    ASSERT_TRUE(
                        IsPointInEllipseArc(point, oval.centre, oval.a, oval.b, oval.rotation, to, extent, false));
                }
            }
        }
    }
}

TEST(PredicateLaws, A21_ASectorAndItsComplementPartTheDirections)
{
    // Multiples of 1/8 are no ends of one another modulo 2π, so that no direction of this grid comes near an end
    // unless the two are the same number.
    int atStarts = 0;
    for (int angle = 0; angle < 50; ++angle)
    {
        for (int start = 0; start < 50; ++start)
        {
            for (int extent = 0; extent <= 50; ++extent)
            {
                const double direction = angle / 8.0;
                const double from = start / 8.0;
                const double over = extent / 8.0;
                const int steps = angle - start;
                const bool isInside = steps >= 0 ? steps <= extent : direction - from + TwoPi <= over;
                ASSERT_EQ(IsAngleInSector(direction, from, over), isInside) << angle << " " << start << " " << extent;
                ASSERT_EQ(IsAngleInSector(direction, from, over, true), isInside)
                    << angle << " " << start << " " << extent;
                // The same sector, run clockwise from its other end.
                ASSERT_EQ(IsAngleInSector(direction, from + over, over, false), isInside)
                    << angle << " " << start << " " << extent;
                const bool isInRest = IsAngleInSector(direction, from + over, TwoPi - over, true);
                const bool isEnd = steps == 0 || steps == extent;
                ASSERT_EQ(isInside && isInRest, isEnd) << angle << " " << start << " " << extent;
                ASSERT_TRUE(isInside || isInRest) << angle << " " << start << " " << extent;
                atStarts += steps == 0 ? 1 : 0;
            }
        }
    }
    EXPECT_EQ(atStarts, 50 * 51);
    Random random(21);
    for (int round = 0; round < 20000; ++round)
    {
        const double direction = random.Radian();
        const double from = random.Radian();
        const double over = random.Radian();
        const double steps = direction >= from ? direction - from : direction - from + TwoPi;
        if (std::abs(steps - over) > 1e-8 && std::abs(steps) > 1e-8)
        {
            ASSERT_EQ(IsAngleInSector(direction, from, over), steps < over) << Digits(direction);
            ASSERT_EQ(IsAngleInSector(direction, from, over, true), steps < over) << Digits(direction);
            ASSERT_EQ(IsAngleInSector(direction, from + over, over, false), steps < over) << Digits(direction);
            ASSERT_EQ(IsAngleInSector(direction, from + over, TwoPi - over, true), steps > over) << Digits(direction);
        }
    }
}

TEST(PredicateLaws, A22_BothFormsOfAnArcHoldThePointsInItsSectorFromEitherEnd)
{
    for (int start = 0; start < 12; ++start)
    {
        for (int sweep = -11; sweep <= 11; ++sweep)
        {
            const RoundArc arc{At(1, 2), 3.0, Pi * start / 6, Pi * sweep / 6};
            for (int step = 0; step < 48 && sweep != 0; ++step)
            {
                // Directions of twelfths are ends of some arcs, the others lie well between.
                const DPOINT2 point = GetPointInCircle(arc.centre, arc.radius, Pi * step / 24);
                const bool ccw = sweep > 0;
                const double extent = std::abs(arc.sweep);
                const int along = (ccw ? step - 4 * start : 4 * start - step) + 96;
                const bool isOn = along % 48 <= 4 * std::abs(sweep);
                ASSERT_EQ(IsPointInArc(point, arc.centre, arc.radius, arc.start, extent, ccw), isOn);
                ASSERT_EQ(IsPointInArc(point, arc.centre, arc.radius, arc.start + arc.sweep, extent, !ccw), isOn);
                ASSERT_EQ(IsPointInArc(point, arc.centre, arc.PointAt(0), arc.PointAt(1), ccw), isOn);
                ASSERT_EQ(IsPointInArc(point, arc.centre, arc.PointAt(1), arc.PointAt(0), !ccw), isOn);
                ASSERT_FALSE(IsPointInArc(point, arc.centre, arc.radius + 1e-8, arc.start, extent, ccw));
            }
        }
    }
    Random random(22);
    for (const RoundArc& arc : GridArcs())
    {
        const double ratio = random.Number(0.001, 0.999);
        const double rest = TwoPi - std::abs(arc.sweep);
        const double beyond = std::abs(arc.sweep) + rest * ratio;
        const DPOINT2 off = GetPointInCircle(arc.centre, arc.radius, arc.start + (arc.sweep > 0 ? beyond : -beyond));
        for (const auto& [point, isOn] : {std::pair(arc.PointAt(ratio), true), std::pair(off, false)})
        {
            const bool ccw = arc.sweep > 0;
            const double extent = std::abs(arc.sweep);
            ASSERT_EQ(IsPointInArc(point, arc.centre, arc.radius, arc.start, extent, ccw), isOn);
            ASSERT_EQ(IsPointInArc(point, arc.centre, arc.radius, arc.start + arc.sweep, extent, !ccw), isOn);
            ASSERT_EQ(IsPointInArc(point, arc.centre, arc.PointAt(0), arc.PointAt(1), ccw), isOn);
            ASSERT_EQ(IsPointInArc(point, arc.centre, arc.PointAt(1), arc.PointAt(0), !ccw), isOn);
        }
    }
}

TEST(PredicateLaws, A23_APointIsOnAnEllipseOrInsideOrOutsideAndOnlyOne)
{
    const auto count = [](const Oval& oval, const DPOINT2& point) {
        return (IsPointInEllipse(point, oval.centre, oval.a, oval.b, oval.rotation) ? 1 : 0) +
               (IsPointInsideEllipse(point, oval.centre, oval.a, oval.b, oval.rotation) ? 1 : 0) +
               (IsPointOutsideEllipse(point, oval.centre, oval.a, oval.b, oval.rotation) ? 1 : 0);
    };
    std::vector<Oval> ovals = GridOvals();
    ovals.push_back({At(0, 0), 0, 0, 0});
    ovals.push_back({At(0, 0), 0, 1, 0});
    ovals.push_back({At(0, 0), 1, InvalidDouble, 0});
    ovals.push_back({At(0, 0), Infinity, 1, Infinity});
    for (const Oval& oval : ovals)
    {
        for (const DPOINT2& point : Lattice(4))
        {
            ASSERT_EQ(count(oval, point), 1);
            ASSERT_EQ(count(oval, At(point.x, InvalidDouble)), 1);
        }
    }
}

// Ellipses

TEST(EllipseLaws, A24_TheTangentsOfADirectionTouchInTwoOppositePointsOfTheEllipse)
{
    for (const Oval& oval : GridOvals())
    {
        for (int step = -12; step <= 12; ++step)
        {
            const double direction = Pi * step / 12 + 0.05;
            DPOINT2 first = Untouched();
            DPOINT2 second = Untouched();
            ASSERT_EQ(GetTangentPointOfEllipse(oval.centre, oval.a, oval.b, oval.rotation, direction, &first, &second),
                      2);
            // The tangent point reads its direction d as tan d, which costs a / b of its digits.
            const double rounding = 32 * Unit * 16;
            ASSERT_TRUE(
                Near(At(first.x + second.x, first.y + second.y), At(2 * oval.centre.x, 2 * oval.centre.y), rounding));
            for (const DPOINT2& point : {first, second})
            {
                ASSERT_LE(OffOval(oval, point), 100 * rounding);
                const double tangent = GetTangentAngleOfEllipse(oval.centre, oval.a, oval.b, oval.rotation, point);
                ASSERT_TRUE(NearDirection(tangent, direction, Pi, 100 * rounding));
            }
        }
    }
}

TEST(EllipseLaws, A25_APolarAngleGivesThePointOnItsRayExceptNextToTheVertical)
{
    int opposite = 0;
    std::vector<double> directions;
    for (int step = 0; step < 24; ++step)
    {
        for (const double beside : {-1e-8, -5e-10, -1e-12, 0.0, 1e-12, 5e-10, 1e-8})
        {
            if (step > 0 || beside >= 0)
            {
                directions.push_back(Pi * step / 12 + beside);
            }
        }
    }
    for (const Oval& oval : GridOvals())
    {
        for (const double direction : directions)
        {
            const DPOINT2 point = GetPointInEllipse(oval.centre, oval.a, oval.b, oval.rotation, direction);
            ASSERT_LE(OffOval(oval, point), 64 * Unit * 8) << Digits(direction);
            const bool isNextToVertical = (direction > HalfPi && direction - HalfPi < 1e-9) ||
                                          (direction < ThreeHalvesPi && ThreeHalvesPi - direction < 1e-9);
            opposite += isNextToVertical ? 1 : 0;
            // Within 1e-9 of the vertical the polar angle is taken for the parameter: off by a / b of that.
            const double found = std::atan2(point.y - oval.centre.y, point.x - oval.centre.x) - oval.rotation;
            ASSERT_TRUE(NearDirection(found, direction + (isNextToVertical ? Pi : 0), TwoPi,
                                      isNextToVertical || std::abs(std::cos(direction)) < 1e-9 ? 1e-8 : 64 * Unit * 8))
                << Digits(direction);
        }
    }
    EXPECT_EQ(opposite, (6 * 37 + RandomOvals) * 4); // two directions on either axis, on every ellipse
}

TEST(EllipseLaws, A26_TheHeightOfAnArcIsItsGreatestDistanceFromTheChord)
{
    constexpr int samples = 400;
    const auto check = [](double a, double b, double from, double over) {
        const double height = GetHeightOfEllipseArc(a, b, from, over);
        const auto at = [&](double direction) {
            const double size = 1 / std::hypot(std::cos(direction) / a, std::sin(direction) / b);
            return At(size * std::cos(direction), size * std::sin(direction));
        };
        const DPOINT2 first = at(from);
        const DPOINT2 last = at(from + over);
        double greatest = 0;
        for (int sample = 0; sample <= samples; ++sample)
        {
            const DPOINT2 point = at(from + over * sample / samples);
            greatest = std::max(greatest, std::abs(Cross(first, last, point)) / Distance(first, last));
        }
        ASSERT_GE(height, greatest - 1e-12) << a << " " << b << " " << from << " " << over;
        ASSERT_LE(height, greatest + 1e-2 * a) << a << " " << b << " " << from << " " << over;
        // With the height of the rest of the ellipse it makes the width across the chord.
        const double rest = GetHeightOfEllipseArc(a, b, RegularizeRadian(from + over), TwoPi - over);
        const DPOINT2 chord = At(last.x - first.x, last.y - first.y);
        const double width = 2 * std::hypot(a * chord.y, b * chord.x) / std::hypot(chord.x, chord.y);
        ASSERT_TRUE(Near(height + rest, width, 1e-12)) << a << " " << b << " " << from << " " << over;
    };
    for (const double a : {1.0, 2.0, 5.0})
    {
        for (int start = 0; start < 24; ++start)
        {
            for (int sweep = 1; sweep < 24; ++sweep)
            {
                check(a, 1, Pi * start / 12, Pi * sweep / 12);
            }
        }
    }
    Random random(26);
    for (int round = 0; round < 500; ++round)
    {
        const double b = random.Size(0.5, 2);
        const double a = b * random.Size(1, 5);
        const double start = random.Radian();
        check(a, b, start, random.Number(0.1, 6.1));
    }
}

TEST(EllipseLaws, A27_AScaledEllipseHoldsTheScaledPointsExceptForRotationsOfNegativeTangentOutsideAHalfTurn)
{
    int exceptions = 0;
    for (const auto& [a, b] : {std::pair(2.0, 0.5), std::pair(5.0, 1.0)})
    {
        for (int rotation = -16; rotation <= 48; ++rotation)
        {
            for (const double factor : {0.25, 0.5, 2.0, 3.0, -0.5, -2.0})
            {
                const Oval oval{At(0, 0), a, b, Pi * rotation / 16};
                Oval scaled = oval;
                ASSERT_TRUE(ScaleEllipse(&scaled.a, &scaled.b, &scaled.rotation, factor));
                // The angle between the images of the semi-axes comes from the tangent of the rotation, which a negative
                // factor folds into a half turn first.
                const bool isException = factor > 0 && (rotation < 0 || rotation > 16) && std::tan(oval.rotation) < 0;
                exceptions += isException ? 1 : 0;
                ASSERT_EQ(scaled.b < 0, isException) << rotation << " " << factor;
                bool holdsAll = true; // a NaN holds nothing
                for (int step = 0; step < 24; ++step)
                {
                    const DPOINT2 point = GetPointInEllipse(oval.centre, a, b, oval.rotation, Pi * step / 12);
                    // Rytz's triangle is no flatter on this grid than a hundredth.
                    holdsAll = holdsAll && OffOval(scaled, At(point.x * factor, point.y)) <= 100 * 64 * Unit;
                }
                ASSERT_EQ(holdsAll, !isException) << rotation << " " << factor;
                ASSERT_TRUE(
                    Near(scaled.a * std::abs(scaled.b), a * b * std::abs(factor), 1e-12 * a * b * std::abs(factor)));
            }
        }
    }
    // -8 to -1, 25 to 32 and 41 to 48 sixteenths of π, with four factors on two ellipses.
    EXPECT_EQ(exceptions, 3 * 8 * 4 * 2);
    Random random(27);
    exceptions = 0;
    int holding = 0; // that the semi-axes come out right but for the sign happens off the grid
    for (int round = 0; round < 5000; ++round)
    {
        // Well off the axes and with a clear factor, where the triangle is no flatter than on the grid.
        const double b = random.Size(0.5, 1);
        const double a = b * random.Size(2, 5);
        const double rotation = HalfPi * random.Integer(-2, 5) + random.Number(0.2, HalfPi - 0.2);
        const double factor = (random.Coin() ? 1 : -1) * (random.Coin() ? random.Size(0.25, 0.5) : random.Size(2, 3));
        const Oval oval{At(0, 0), a, b, rotation};
        Oval scaled = oval;
        ASSERT_TRUE(ScaleEllipse(&scaled.a, &scaled.b, &scaled.rotation, factor));
        const bool isException = factor > 0 && (rotation < 0 || rotation > Pi) && std::tan(rotation) < 0;
        ASSERT_EQ(scaled.b < 0, isException) << Digits(rotation) << " " << factor;
        bool holdsAll = true;
        for (int sample = 0; sample < 4; ++sample)
        {
            const DPOINT2 point = GetPointInEllipse(oval.centre, a, b, rotation, random.Radian());
            holdsAll = holdsAll && OffOval(scaled, At(point.x * factor, point.y)) <= 1e-11;
        }
        exceptions += isException ? 1 : 0;
        holding += isException && holdsAll ? 1 : 0;
        ASSERT_TRUE(holdsAll || isException)
            << Digits(a) << " " << Digits(b) << " " << Digits(rotation) << " " << Digits(factor);
        ASSERT_TRUE(Near(scaled.a * std::abs(scaled.b), a * b * std::abs(factor), 1e-12 * a * b * std::abs(factor)));
    }
    EXPECT_TRUE(exceptions > 500 && holding < exceptions / 10) << holding << " of " << exceptions;
}

TEST(EllipseLaws, A28_TheOwnAxesFollowAScaleAlongThem)
{
    for (int quarter = 0; quarter < 2; ++quarter)
    {
        for (const double factor : {0.25, 2.0, -3.0, 1.0})
        {
            double a = 3;
            double b = 0.5;
            double rotation = HalfPi * quarter;
            ASSERT_TRUE(ScaleEllipse(&a, &b, &rotation, factor));
            EXPECT_EQ(a, quarter == 0 ? 3 * std::abs(factor) : 3);
            EXPECT_EQ(b, quarter == 0 ? 0.5 : 0.5 * std::abs(factor));
            EXPECT_TRUE(NearDirection(rotation, HalfPi * quarter, Pi, 1e-15));
            // Both factors alike: the same ellipse, larger.
            double bothA = 3;
            double bothB = 0.5;
            double bothRotation = HalfPi * quarter;
            ASSERT_TRUE(ScaleEllipse(&bothA, &bothB, &bothRotation, factor, factor));
            EXPECT_EQ(bothA, 3 * std::abs(factor));
            EXPECT_EQ(bothB, 0.5 * std::abs(factor));
            EXPECT_TRUE(NearDirection(bothRotation, HalfPi * quarter, Pi, 1e-15));
        }
    }
}

// Records and integers

TEST(RecordLaws, A29_TheUnionOfBoxesIsTheLeastBoxThatHoldsBoth)
{
    std::vector<DRECT> boxes;
    for (const DPOINT2& corner : Lattice(2))
    {
        for (const DPOINT2& extent : Lattice(2))
        {
            boxes.push_back({corner.x, corner.y, extent.x, extent.y});
        }
    }
    Random random(29);
    for (int i = 0; i < 100; ++i)
    {
        const auto number = [&](int least) { return random.Integer(least, 1 << 20) / 1024.0; };
        boxes.push_back({number(-(1 << 20)), number(-(1 << 20)), number(0), number(0)});
    }
    const auto same = [](const DRECT& a, const DRECT& b) {
        return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
    };
    for (const DRECT& a : boxes)
    {
        for (const DRECT& b : boxes)
        {
            DRECT both;
            const bool hasArea = both.Union(a, b);
            DRECT swapped;
            ASSERT_EQ(swapped.Union(b, a), hasArea);
            ASSERT_TRUE(same(swapped, both));
            ASSERT_EQ(both.x, std::min(a.x, b.x));
            ASSERT_EQ(both.y, std::min(a.y, b.y));
            ASSERT_EQ(both.x + both.width, std::max(a.x + a.width, b.x + b.width));
            ASSERT_EQ(both.y + both.height, std::max(a.y + a.height, b.y + b.height));
            ASSERT_EQ(hasArea, both.width > 0 && both.height > 0);
            DRECT again = both;
            again.Union(again, a);
            ASSERT_TRUE(same(again, both));
        }
    }
}

TEST(RecordLaws, A30_AReducedFractionHasTheSameValueInLeastTermsExceptWithAZero)
{
    int withZero = 0;
    const auto check = [&](int numerator, int denominator) {
        const int divisor = GetGreatestCommonDivisor(numerator, denominator);
        ASSERT_EQ(GetGreatestCommonDivisorInt64(numerator, denominator), divisor);
        const bool hasZero = numerator == 0 || denominator == 0;
        withZero += hasZero ? 1 : 0;
        ASSERT_EQ(std::abs(divisor), hasZero ? 1 : std::gcd(numerator, denominator));
        int n = numerator;
        int d = denominator;
        Reducify(n, d);
        ASSERT_EQ(std::int64_t{n} * denominator, std::int64_t{numerator} * d);
        ASSERT_EQ(n * divisor, numerator);
        ASSERT_EQ(d * divisor, denominator);
        std::int64_t wideN = numerator;
        std::int64_t wideD = denominator;
        ReducifyInt64(wideN, wideD);
        ASSERT_EQ(wideN, n);
        ASSERT_EQ(wideD, d);
    };
    for (int numerator = -24; numerator <= 24; ++numerator)
    {
        for (int denominator = -24; denominator <= 24; ++denominator)
        {
            check(numerator, denominator);
        }
    }
    EXPECT_EQ(withZero, 49 + 48);
    Random random(30);
    for (int round = 0; round < 5000; ++round)
    {
        const int factor = random.Integer(1, 1000);
        const int numerator = random.Integer(-1000000, 1000000) * factor;
        check(numerator, random.Integer(-1000000, 1000000) * factor);
    }
}

// The exact kernel

TEST(KernelLaws, A31_TheParametersOfAPointLeadToItOnEitherCurve)
{
    const double rounding = 64 * Unit * 8;
    const auto onCircle = [](const DPOINT2& centre, double radius, double parameter) {
        return GetPointInCircle(centre, radius, parameter);
    };
    const auto placeOf = [](const IntAna2d_IntPoint& point) { return At(point.X(), point.Y()); };
    int points = 0;
    // The direction 0 may come out as a whole turn where a sum is folded once.
    const auto isParameter = [](double parameter) { return parameter >= 0 && parameter <= TwoPi; };
    const auto checkLine = [&](const DPOINT2& start, const DPOINT2& along, const DPOINT2& centre, double radius) {
        const double length = std::hypot(along.x, along.y);
        const IntAna2d_AnaIntersection meeting(gp_Lin2d(gp_Pnt2d(start.x, start.y), gp_Dir2d(along.x, along.y)),
                                               CircleAt(centre, radius));
        for (int n = 1; n <= meeting.PointCount(); ++n)
        {
            ++points;
            const IntAna2d_IntPoint& point = meeting.Point(n);
            const double ahead = point.ParamOnFirst() / length;
            ASSERT_TRUE(Near(At(start.x + ahead * along.x, start.y + ahead * along.y), placeOf(point), rounding));
            ASSERT_TRUE(isParameter(point.ParamOnSecond()));
            ASSERT_TRUE(Near(onCircle(centre, radius, point.ParamOnSecond()), placeOf(point), rounding));
        }
    };
    const auto checkCircles = [&](const DPOINT2& centre, double radius, const DPOINT2& other, double otherRadius,
                                  double magnified) {
        const IntAna2d_AnaIntersection meeting(CircleAt(centre, radius), CircleAt(other, otherRadius));
        for (int n = 1; n <= meeting.PointCount(); ++n)
        {
            ++points;
            const IntAna2d_IntPoint& point = meeting.Point(n);
            ASSERT_TRUE(Near(onCircle(centre, radius, point.ParamOnFirst()), placeOf(point), rounding * magnified));
            ASSERT_TRUE(
                Near(onCircle(other, otherRadius, point.ParamOnSecond()), placeOf(point), rounding * magnified));
            ASSERT_TRUE(isParameter(point.ParamOnFirst()));
            ASSERT_TRUE(isParameter(point.ParamOnSecond()));
        }
    };
    for (const DPOINT2& centre : Lattice(3))
    {
        for (const double radius : {0.5, 1.0, 2.0})
        {
            for (const DPOINT2& along : {At(1, 0), At(0, -1), At(1, 1), At(-1, 2), At(-3, -4)})
            {
                checkLine(At(1, 2), along, centre, radius);
            }
            checkCircles(centre, radius, At(1, 1), 1, 1);
        }
    }
    EXPECT_GT(points, 300);
    Random random(31);
    for (int round = 0; round < 5000; ++round)
    {
        const DPOINT2 start = random.Point(3);
        const DPOINT2 along = random.Point(3);
        const DPOINT2 centre = random.Point(3);
        const double radius = random.Size(0.25, 4);
        checkLine(start, along, centre, radius);
        const double direction = random.Radian();
        const double distance = random.Number(0.5, 3);
        const DPOINT2 other = At(centre.x + distance * std::cos(direction), centre.y + distance * std::sin(direction));
        checkCircles(centre, radius, other, random.Size(0.25, 4), 16);
    }
    EXPECT_GT(points, 5000);
}
