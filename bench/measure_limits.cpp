// Measures where the methods of the library begin to lose or invent points, and prints one table a limit. Each case is
// made so that its true answer is known: a crossing is chosen first, in extended precision, and the curves are put
// through it.

#include "math/QorMath.h"

#include <array>
#include <cmath>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

namespace
{

using math::DPOINT2;
using Extended = long double;

constexpr double Pi = 3.141592653589793;

class Random
{
public:
    explicit Random(unsigned seed) : m_engine(seed)
    {
    }

    double Between(double low, double high)
    {
        return std::uniform_real_distribution<double>(low, high)(m_engine);
    }

private:
    std::mt19937_64 m_engine;
};

struct Ellipse
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;

    DPOINT2 PointAt(Extended parameter) const
    {
        const Extended ownX = a * std::cos(parameter);
        const Extended ownY = b * std::sin(parameter);
        const Extended cosine = std::cos(static_cast<Extended>(rotation));
        const Extended sine = std::sin(static_cast<Extended>(rotation));
        return {static_cast<double>(centre.x + ownX * cosine - ownY * sine),
                static_cast<double>(centre.y + ownX * sine + ownY * cosine)};
    }

    /// (u/a)² + (v/b)² - 1: roughly twice the distance from the curve in semi-axes.
    double Defect(const DPOINT2& point) const
    {
        const Extended cosine = std::cos(static_cast<Extended>(rotation));
        const Extended sine = std::sin(static_cast<Extended>(rotation));
        const Extended dx = static_cast<Extended>(point.x) - centre.x;
        const Extended dy = static_cast<Extended>(point.y) - centre.y;
        const Extended u = (dx * cosine + dy * sine) / a;
        const Extended v = (dy * cosine - dx * sine) / b;
        return static_cast<double>(u * u + v * v - 1.0L);
    }
};

Ellipse RandomEllipse(Random& random, double size, double centreReach)
{
    const double a = size * random.Between(0.5, 1.0);
    return {{random.Between(-centreReach, centreReach), random.Between(-centreReach, centreReach)},
            a,
            a * random.Between(0.3, 0.9),
            random.Between(0.0, Pi)};
}

double Percent(int part, int whole)
{
    return whole == 0 ? 0.0 : 100.0 * part / whole;
}

/// Chords between two points of an ellipse that are at least an eighth of a turn apart, prolonged on either side.
void MeasureLinesWithEllipses()
{
    std::puts("Stretch with ellipse: chords with two true crossings");
    std::puts("  semi-axis a     lost     bogus   worst error / a");
    constexpr int trials = 100000;
    for (const double size : {1.0, 1e1, 1e2, 1e3, 3e3, 1e4, 2e4, 3e4, 5e4, 1e5})
    {
        Random random(1);
        int lost = 0;
        int bogus = 0;
        double worst = 0.0;
        for (int i = 0; i < trials; ++i)
        {
            const Ellipse ellipse = RandomEllipse(random, size, size);
            const double first = random.Between(0.0, 2.0 * Pi);
            const double second = first + random.Between(0.25 * Pi, 1.75 * Pi);
            const DPOINT2 p = ellipse.PointAt(first);
            const DPOINT2 q = ellipse.PointAt(second);
            const DPOINT2 start(p.x - 0.5 * (q.x - p.x), p.y - 0.5 * (q.y - p.y));
            const DPOINT2 end(q.x + 0.5 * (q.x - p.x), q.y + 0.5 * (q.y - p.y));
            std::vector<DPOINT2> points;
            const int count = math::Intersect_LineWithEllipse(start, end, ellipse.centre, ellipse.a, ellipse.b,
                                                              ellipse.rotation, points, -1);
            lost += count < 2;
            for (const DPOINT2& point : points)
            {
                const double error =
                    std::min(std::hypot(point.x - p.x, point.y - p.y), std::hypot(point.x - q.x, point.y - q.y)) /
                    ellipse.a;
                bogus += error > 1e-6;
                worst = std::max(worst, error <= 1e-6 ? error : 0.0);
            }
        }
        std::printf("  %10.0f  %6.2f %%  %6.2f %%        %8.1e\n", size, Percent(lost, trials), Percent(bogus, trials),
                    worst);
    }
}

/// The same chords as unbounded beelines, so that nothing is lost in the clip to a stretch.
void MeasureBeelinesWithEllipses()
{
    std::puts("\nBeeline with ellipse: chords with two true crossings");
    std::puts("  semi-axis a     lost     bogus");
    constexpr int trials = 100000;
    for (const double size : {1e2, 1e3, 3e3, 1e4, 2e4, 3e4, 5e4, 1e5})
    {
        Random random(2);
        int lost = 0;
        int bogus = 0;
        for (int i = 0; i < trials; ++i)
        {
            const Ellipse ellipse = RandomEllipse(random, size, size);
            const double first = random.Between(0.0, 2.0 * Pi);
            const DPOINT2 p = ellipse.PointAt(first);
            const DPOINT2 q = ellipse.PointAt(first + random.Between(0.25 * Pi, 1.75 * Pi));
            DPOINT2 found[2];
            const int count =
                math::Intersect_BeelineWithEllipse(p, std::atan2(q.y - p.y, q.x - p.x), ellipse.centre, ellipse.a,
                                                   ellipse.b, ellipse.rotation, &found[0], &found[1]);
            lost += count < 2;
            for (int k = 0; k < count; ++k)
            {
                const double error = std::min(std::hypot(found[k].x - p.x, found[k].y - p.y),
                                              std::hypot(found[k].x - q.x, found[k].y - q.y)) /
                                     ellipse.a;
                bogus += error > 1e-6;
            }
        }
        std::printf("  %10.0f  %6.2f %%  %6.2f %%\n", size, Percent(lost, trials), Percent(bogus, trials));
    }
}

/// Beelines that run past an ellipse at a small distance from it.
void MeasureNearMisses()
{
    std::puts("\nBeeline that misses an ellipse by 1e-6: told as meeting it");
    std::puts("  semi-axis a     told");
    constexpr int trials = 20000;
    for (const double size : {1.0, 1e2, 5e2, 1e3, 2e3, 3e3, 5e3, 1e4})
    {
        Random random(8);
        int told = 0;
        for (int i = 0; i < trials; ++i)
        {
            const Ellipse ellipse = RandomEllipse(random, size, size);
            const double angle = random.Between(0.0, Pi);
            DPOINT2 touch[2];
            math::GetTangentPointOfEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, angle, &touch[0],
                                           &touch[1]);
            const double outX = touch[0].x - ellipse.centre.x;
            const double outY = touch[0].y - ellipse.centre.y;
            // Across the direction of the beeline, away from the centre.
            const double side = std::cos(angle) * outY - std::sin(angle) * outX > 0.0 ? 1e-6 : -1e-6;
            const DPOINT2 beside(touch[0].x - std::sin(angle) * side, touch[0].y + std::cos(angle) * side);
            DPOINT2 found[2];
            told += math::Intersect_BeelineWithEllipse(beside, angle, ellipse.centre, ellipse.a, ellipse.b,
                                                       ellipse.rotation, &found[0], &found[1]) > 0;
        }
        std::printf("  %10.0f   %7.2f %%\n", size, Percent(told, trials));
    }
}

/// Circles as large as their coordinates, cut by chords of theirs that are prolonged on either side.
void MeasureLinesWithCircles()
{
    std::puts("\nStraight lines with circles of the size of their coordinates: chords with two true crossings");
    std::puts("  coordinates   stretch lost   beeline lost");
    constexpr int trials = 100000;
    for (const double reach : {1e1, 1e2, 5e2, 1e3, 2e3, 3e3, 5e3, 1e4, 2e4, 5e4})
    {
        Random random(3);
        int lostInStretch = 0;
        int lostInBeeline = 0;
        for (int i = 0; i < trials; ++i)
        {
            const double radius = random.Between(0.1, 1.0) * reach;
            const Ellipse circle = {
                {random.Between(0.5, 1.0) * reach, random.Between(0.5, 1.0) * reach}, radius, radius, 0.0};
            const double first = random.Between(0.0, 2.0 * Pi);
            const DPOINT2 p = circle.PointAt(first);
            const DPOINT2 q = circle.PointAt(first + random.Between(0.25 * Pi, 1.75 * Pi));
            const DPOINT2 start(p.x - (q.x - p.x), p.y - (q.y - p.y));
            const DPOINT2 end(q.x + (q.x - p.x), q.y + (q.y - p.y));
            lostInStretch += math::Intersect_LineWithCircle(start, end, circle.centre, radius, nullptr, nullptr) < 2;
            lostInBeeline += math::Intersect_BeelineWithCircle(start, std::atan2(end.y - start.y, end.x - start.x),
                                                               circle.centre, radius, nullptr, nullptr) < 2;
        }
        std::printf("  %11.0f     %7.2f %%      %7.2f %%\n", reach, Percent(lostInStretch, trials),
                    Percent(lostInBeeline, trials));
    }
}

/// Two ellipses through one point, the second turned about it; both whole and as arcs of half a turn about the point.
void MeasureEllipticalArcs()
{
    std::puts("\nTwo ellipses through a known point: that crossing missing from the answer");
    std::puts("  semi-axes      ellipses   ellipse/arc   arc/arc   circle/arc");
    constexpr int trials = 20000;
    for (const double size : {1e-6, 1e-5, 1e-4, 1e-3, 1e-2, 1e-1, 1.0, 1e1, 1e2, 1e3, 1e4})
    {
        Random random(4);
        std::array<int, 4> missing{};
        for (int i = 0; i < trials; ++i)
        {
            const Ellipse first = RandomEllipse(random, size, size);
            const double firstParameter = random.Between(0.0, 2.0 * Pi);
            const DPOINT2 shared = first.PointAt(firstParameter);
            Ellipse second = RandomEllipse(random, size, 0.0);
            const double secondParameter = random.Between(0.0, 2.0 * Pi);
            const DPOINT2 offset = second.PointAt(secondParameter);
            second.centre = DPOINT2(shared.x - offset.x, shared.y - offset.y);

            const auto startOf = [](const Ellipse& ellipse, const DPOINT2& point) {
                return math::RegularizeRadian(std::atan2(point.y - ellipse.centre.y, point.x - ellipse.centre.x) -
                                              ellipse.rotation - 1.5);
            };
            const auto isMissing = [&](const std::vector<DPOINT2>& points) {
                for (const DPOINT2& point : points)
                {
                    if (std::hypot(point.x - shared.x, point.y - shared.y) < 1e-4 * size)
                    {
                        return 0;
                    }
                }
                return 1;
            };
            const double firstStart = startOf(first, shared);
            const double secondStart = startOf(second, shared);
            std::vector<DPOINT2> points;
            math::Intersect_EllipseWithEllipse(first.centre, first.a, first.b, first.rotation, second.centre, second.a,
                                               second.b, second.rotation, points, -1);
            const int wholeMissing = isMissing(points);
            missing[0] += wholeMissing;
            math::Intersect_EllipseWithEllipseArc(first.centre, first.a, first.b, first.rotation, second.centre,
                                                  second.a, second.b, second.rotation, secondStart, 3.0, points, -1);
            missing[1] += isMissing(points);
            math::Intersect_EllipseArcWithEllipseArc(first.centre, first.a, first.b, first.rotation, firstStart, 3.0,
                                                     second.centre, second.a, second.b, second.rotation, secondStart,
                                                     3.0, points, -1);
            missing[2] += isMissing(points);
            const double radius = std::hypot(offset.x, offset.y);
            math::Intersect_CircleWithEllipseArc(second.centre, radius, first.centre, first.a, first.b, first.rotation,
                                                 firstStart, 3.0, points, -1);
            missing[3] += isMissing(points);
        }
        std::printf("  %9g     %6.2f %%      %6.2f %%   %6.2f %%     %6.2f %%\n", size, Percent(missing[0], trials),
                    Percent(missing[1], trials), Percent(missing[2], trials), Percent(missing[3], trials));
    }
}

/// The first ellipse is turned by nearly a quarter turn: its own x axis is all but vertical.
void MeasureRotationsNearAQuarterTurn()
{
    std::puts("\nTwo ellipses through a known point, the first turned by a quarter turn and a little");
    std::puts("  off by        missing");
    constexpr int trials = 20000;
    for (const double off : {0.0, 2e-16, 1e-14, 1e-12, 1e-10, 5e-10, 2e-9, 1e-8, 1e-6, 1e-3})
    {
        Random random(5);
        int missing = 0;
        for (int i = 0; i < trials; ++i)
        {
            Ellipse first = RandomEllipse(random, 10.0, 10.0);
            first.rotation = 0.5 * Pi + off;
            const DPOINT2 shared = first.PointAt(random.Between(0.0, 2.0 * Pi));
            Ellipse second = RandomEllipse(random, 10.0, 0.0);
            const DPOINT2 offset = second.PointAt(random.Between(0.0, 2.0 * Pi));
            second.centre = DPOINT2(shared.x - offset.x, shared.y - offset.y);
            std::vector<DPOINT2> points;
            math::Intersect_EllipseWithEllipse(first.centre, first.a, first.b, first.rotation, second.centre, second.a,
                                               second.b, second.rotation, points, -1);
            int found = 0;
            for (const DPOINT2& point : points)
            {
                found |= std::hypot(point.x - shared.x, point.y - shared.y) < 1e-3 ? 1 : 0;
            }
            missing += found == 0;
        }
        std::printf("  %8.0e     %6.2f %%\n", off, Percent(missing, trials));
    }
}

/// Ellipses given with the greater semi-axis second, against the same ellipses given with it first.
void MeasureExchangedSemiAxes()
{
    std::puts("\nTwo ellipses through a known point, the first given with its greater semi-axis second");
    std::puts("  b / a   told 0 though they meet");
    constexpr int trials = 20000;
    for (const double ratio : {1.0, 1.5, 2.0, 3.0, 5.0, 10.0})
    {
        Random random(6);
        int rejected = 0;
        for (int i = 0; i < trials; ++i)
        {
            const Ellipse first = {{0.0, 0.0}, 2.0, 2.0 * ratio, random.Between(0.0, Pi)};
            const DPOINT2 shared = first.PointAt(random.Between(0.0, 2.0 * Pi));
            Ellipse second = RandomEllipse(random, 2.0, 0.0);
            const DPOINT2 offset = second.PointAt(random.Between(0.0, 2.0 * Pi));
            second.centre = DPOINT2(shared.x - offset.x, shared.y - offset.y);
            rejected += math::Intersect_EllipseWithEllipse(first.centre, first.a, first.b, first.rotation,
                                                           second.centre, second.a, second.b, second.rotation, nullptr,
                                                           nullptr, nullptr, nullptr) == 0;
        }
        std::printf("  %5.1f       %6.2f %%\n", ratio, Percent(rejected, trials));
    }
}

/// Beelines through the centres of ever smaller ellipses: the tolerance of the tangency is absolute.
void MeasureSmallEllipses()
{
    std::puts("\nBeeline that cuts an ellipse at half its height: told as a tangency");
    std::puts("  semi-axis a   one point   no point");
    constexpr int trials = 20000;
    for (const double size : {1e-4, 1e-6, 1e-7, 1e-8, 5e-9, 2e-9, 1e-9})
    {
        Random random(7);
        int one = 0;
        int none = 0;
        for (int i = 0; i < trials; ++i)
        {
            const Ellipse ellipse = RandomEllipse(random, size, 0.0);
            const double first = random.Between(0.0, 2.0 * Pi);
            const DPOINT2 p = ellipse.PointAt(first);
            const DPOINT2 q = ellipse.PointAt(first + 2.0 * Pi / 3.0);
            DPOINT2 found[2];
            const int count =
                math::Intersect_BeelineWithEllipse(p, std::atan2(q.y - p.y, q.x - p.x), ellipse.centre, ellipse.a,
                                                   ellipse.b, ellipse.rotation, &found[0], &found[1]);
            one += count == 1;
            none += count == 0;
        }
        std::printf("  %11.0e   %7.2f %%   %7.2f %%\n", size, Percent(one, trials), Percent(none, trials));
    }
}

/// Pairs of a family that slides along y: how many points are told where four are true.
void MeasureTwoCrossingsInOnePair()
{
    std::puts("\nEllipse a 2, b 1 at the origin with a 1.8, b 0.6 at (0, y): points told");
    std::puts("  y       told");
    for (const double y : {0.30, 0.38, 0.39, 0.395, 0.41, 0.45, 0.50, 0.60})
    {
        const int count = math::Intersect_EllipseWithEllipse({0, 0}, 2, 1, 0, {0, y}, 1.8, 0.6, 0, nullptr, nullptr,
                                                             nullptr, nullptr);
        std::printf("  %.3f     %d\n", y, count);
    }
}

} // namespace

int main()
{
    MeasureLinesWithEllipses();
    MeasureBeelinesWithEllipses();
    MeasureNearMisses();
    MeasureLinesWithCircles();
    MeasureEllipticalArcs();
    MeasureRotationsNearAQuarterTurn();
    MeasureExchangedSemiAxes();
    MeasureSmallEllipses();
    MeasureTwoCrossingsInOnePair();
    return 0;
}
