#include "Cases.h"
#include "TrueCurves.h"
#include "math/Intersect.h"

#include <algorithm>
#include <cmath>

namespace math::accuracy
{

namespace
{

constexpr double TwoPi = 6.283185307179586;
constexpr double Tolerance = 1e-9;

struct EllipseArc
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;
    double start;
    double sweep;

    Conic Whole() const
    {
        return {centre, a, b, rotation};
    }

    /// The greatest radius of curvature.
    double Curvature() const
    {
        const double greater = std::max(a, b);
        return greater * greater / std::min(a, b);
    }

    std::string Describe() const
    {
        return Text("cx", centre.x, "cy", centre.y, "a", a, "b", b, "rotation", rotation, "start", start, "sweep",
                    sweep);
    }
};

EllipseArc DrawEllipse(Draw& draw, double size, double flatness)
{
    EllipseArc ellipse;
    ellipse.a = draw.Between(0.3, 1.0) * size;
    ellipse.b = ellipse.a / draw.Magnitude(1.0, flatness);
    ellipse.rotation = draw.Between(0.0, 3.14);
    ellipse.start = draw.Angle();
    ellipse.sweep = draw.Between(0.5, 6.0);
    return ellipse;
}

// Straight lines with ellipses

struct LineSetting
{
    const char* name;
    double size;
    double flatness;
    double offset;
    double leastDepth; ///< how far the line dips into the ellipse, as a share of the lesser semi-axis
    double greatestDepth;
};

constexpr LineSetting LineSettings[] = {
    {"size 1e-3, ratio to 10", 1e-3, 10.0, 0.0, 0.1, 1.0},
    {"size 1, ratio to 10", 1.0, 10.0, 0.0, 0.1, 1.0},
    {"size 1e2, ratio to 10", 1e2, 10.0, 0.0, 0.1, 1.0},
    {"size 1e4, ratio to 10", 1e4, 10.0, 0.0, 0.1, 1.0},
    {"size 1e6, ratio to 10", 1e6, 10.0, 0.0, 0.1, 1.0},
    {"size 1, ratio to 1e3", 1.0, 1e3, 0.0, 0.1, 1.0},
    {"size 1, ratio to 10, 1e6 out", 1.0, 10.0, 1e6, 0.1, 1.0},
    {"size 1, dipping in by 1e-6 to 1e-3", 1.0, 10.0, 0.0, 1e-6, 1e-3},
};

struct LineAndEllipse
{
    EllipseArc ellipse;
    DPOINT2 from;
    DPOINT2 to;
    double angle;

    LineAndEllipse(Draw& draw, const LineSetting& setting)
    {
        ellipse = DrawEllipse(draw, setting.size, setting.flatness);
        ellipse.centre = {draw.Signed(setting.offset + setting.size), draw.Signed(setting.offset + setting.size)};
        angle = draw.Between(0.0, 3.14159);
        const double own = angle - ellipse.rotation;
        const double support = std::hypot(ellipse.a * std::sin(own), ellipse.b * std::cos(own));
        const double dip = draw.Magnitude(setting.leastDepth, setting.greatestDepth);
        const double side = (draw.Coin() ? 1.0 : -1.0) * support * (1.0 - dip);
        const auto place = [&](double along) {
            return DPOINT2(ellipse.centre.x - std::sin(angle) * side + std::cos(angle) * along,
                           ellipse.centre.y + std::cos(angle) * side + std::sin(angle) * along);
        };
        from = place(-draw.Between(0.3, 3.0) * ellipse.a);
        to = place(draw.Between(0.3, 3.0) * ellipse.a);
    }

    double Scale() const
    {
        return std::max({LargestCoordinate({from, to, ellipse.centre}), ellipse.a, ellipse.b});
    }

    std::string Describe() const
    {
        return ellipse.Describe() + Text("x1", from.x, "y1", from.y, "x2", to.x, "y2", to.y, "angle", angle);
    }

    /// What the quadratic equation in the ellipse's frame makes of a rounding of its coefficients, in units of the
    /// scale: the discriminant carries that of the terms n² and semi², and its root is halved by the half chord.
    double LossOfEquation() const
    {
        const double cosine = std::cos(ellipse.rotation);
        const double sine = std::sin(ellipse.rotation);
        const double dx = from.x - ellipse.centre.x;
        const double dy = from.y - ellipse.centre.y;
        double u = dx * cosine + dy * sine;
        double v = dy * cosine - dx * sine;
        double along = ellipse.a;
        double across = ellipse.b;
        const double own = angle - ellipse.rotation;
        double slope = std::tan(own);
        if (std::abs(slope) > 1.0)
        {
            slope = 1.0 / slope;
            std::swap(u, v);
            std::swap(along, across);
        }
        const double n = v - u * slope;
        const double leading = slope * slope + (across / along) * (across / along);
        const double discriminant = across * across * (1.0 - n * n / (leading * along * along));
        const double half = std::sqrt(std::max(discriminant, 0.0) / leading);
        return (n * n + across * across) / (leading * half * Scale());
    }

    std::vector<CommonPoint> Truth(const StraightLine& line, double lossOfDirection) const
    {
        const double reach = std::hypot(to.x - from.x, to.y - from.y) + 2.0 * ellipse.a;
        const double shift = 1.0 + lossOfDirection * reach / Scale();
        const double loss = LossOfEquation();
        std::vector<CommonPoint> points =
            CommonPoints(ellipse.Whole(), line, 2.0 * Tolerance + 100.0 * shift * Scale() * RoundingUnit);
        for (CommonPoint& common : points)
        {
            common.condition = shift / common.sine + loss;
        }
        return points;
    }
};

void CompareWith(Row& row, const LineAndEllipse& input, int count, const DPOINT2* told, std::vector<CommonPoint> truth)
{
    // Where the line all but touches, points have a row of their own.
    for (const CommonPoint& common : truth)
    {
        if (common.standing == Standing::Edge && common.sine == 0.0)
        {
            return;
        }
    }
    Compare(row, FirstOf(count, told, 2), truth, Real(input.Scale()) * RoundingUnit,
            std::min(1e-3, 1e-5 * std::min(input.ellipse.a, input.ellipse.b)), [=] { return input.Describe(); });
}

void MeasureLines(Run& run, const LineSetting& setting)
{
    // The angles of line and ellipse are subtracted and folded; that of a stretch is computed from its ends.
    constexpr double lossOfAngle = 6.0;
    constexpr double lossOfStretch = 14.0;
    const auto edge = [](const LineAndEllipse& input) { return 1e-8 * std::max(1.0, input.ellipse.a); };
    run.Stratum("Intersect_BeelineWithEllipse", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndEllipse input(draw, setting);
        const EllipseArc& e = input.ellipse;
        DPOINT2 told[2];
        const int count =
            Intersect_BeelineWithEllipse(input.from, input.angle, e.centre, e.a, e.b, e.rotation, &told[0], &told[1]);
        CompareWith(row, input, count, told, input.Truth({input.from, Direction(input.angle)}, lossOfAngle));
    });
    run.Stratum("Intersect_LineWithEllipse", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndEllipse input(draw, setting);
        const EllipseArc& e = input.ellipse;
        DPOINT2 told[2];
        const int count =
            Intersect_LineWithEllipse(input.from, input.to, e.centre, e.a, e.b, e.rotation, &told[0], &told[1]);
        std::vector<CommonPoint> truth =
            input.Truth({input.from, RealPoint(input.to) - RealPoint(input.from)}, lossOfStretch);
        ClipToStretch(truth, input.from, input.to, edge(input));
        CompareWith(row, input, count, told, truth);
    });
    run.Stratum("Intersect_BeelineWithEllipseArc", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndEllipse input(draw, setting);
        const EllipseArc& e = input.ellipse;
        const double sweep = draw.Coin() ? e.sweep : -e.sweep;
        DPOINT2 told[2];
        const int count = Intersect_BeelineWithEllipseArc(input.from, input.angle, e.centre, e.a, e.b, e.rotation,
                                                          e.start, sweep, &told[0], &told[1]);
        std::vector<CommonPoint> truth = input.Truth({input.from, Direction(input.angle)}, lossOfAngle);
        ClipToArc(truth, e.centre, e.rotation, e.start, sweep, edge(input));
        CompareWith(row, input, count, told, truth);
    });
    run.Stratum("Intersect_LineWithEllipseArc", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndEllipse input(draw, setting);
        const EllipseArc& e = input.ellipse;
        DPOINT2 told[2];
        const int count = Intersect_LineWithEllipseArc(input.from, input.to, e.centre, e.a, e.b, e.rotation, e.start,
                                                       e.sweep, &told[0], &told[1]);
        std::vector<CommonPoint> truth =
            input.Truth({input.from, RealPoint(input.to) - RealPoint(input.from)}, lossOfStretch);
        ClipToStretch(truth, input.from, input.to, edge(input));
        ClipToArc(truth, e.centre, e.rotation, e.start, e.sweep, edge(input));
        CompareWith(row, input, count, told, truth);
    });
}

/// A line nearer to touching than the tolerance is told as touching.
void MeasureTouchingLines(Run& run)
{
    const LineSetting setting{"nearer to touching than 1e-9", 1.0, 10.0, 0.0, 1e-12, 1e-9};
    run.Stratum("Intersect_BeelineWithEllipse", setting.name, "sqrt(2e-9 of the radius of curvature)", 150,
                [&](Draw& draw, Row& row) {
                    const LineAndEllipse input(draw, setting);
                    const EllipseArc& e = input.ellipse;
                    DPOINT2 told[2];
                    const int count = Intersect_BeelineWithEllipse(input.from, input.angle, e.centre, e.a, e.b,
                                                                   e.rotation, &told[0], &told[1]);
                    const std::vector<CommonPoint> truth =
                        CommonPoints(e.Whole(), StraightLine(input.from, Direction(input.angle)), 2.0 * Tolerance);
                    ++row.expected;
                    if (count == 0)
                    {
                        row.CountMissed([=] { return input.Describe(); });
                    }
                    Compare(row, FirstOf(count, told, 2), truth, Sqrt(2.0 * Tolerance * Real(e.Curvature())), 1.0,
                            [=] { return input.Describe(); });
                });
}

// Two ellipses

struct PairSetting
{
    const char* name;
    double size;
    double flatness;
    double offset;
    double leastDepth; ///< how far they dip into each other, as a share of the size; 0 for any
    double greatestDepth;
    bool isCircle = false; ///< whether the first is a circle
};

constexpr PairSetting PairSettings[] = {
    {"size 0.1, ratio to 10", 0.1, 10.0, 0.0, 0.0, 0.0},
    {"size 1, ratio to 10", 1.0, 10.0, 0.0, 0.0, 0.0},
    {"size 1e2, ratio to 10", 1e2, 10.0, 0.0, 0.0, 0.0},
    {"size 1e4, ratio to 10", 1e4, 10.0, 0.0, 0.0, 0.0},
    {"size 1e6, ratio to 10", 1e6, 10.0, 0.0, 0.0, 0.0},
    {"size 1, ratio to 1e3", 1.0, 1e3, 0.0, 0.0, 0.0},
    {"size 1, ratio to 10, 1e3 out", 1.0, 10.0, 1e3, 0.0, 0.0},
    {"size 1, dipping in by 1e-4 to 1e-2", 1.0, 10.0, 0.0, 1e-4, 1e-2},
    {"size 1, dipping in by 1e-7 to 1e-5", 1.0, 10.0, 0.0, 1e-7, 1e-5},
};

struct TwoEllipses
{
    EllipseArc first;
    EllipseArc second;

    TwoEllipses(Draw& draw, const PairSetting& setting)
    {
        first = DrawEllipse(draw, setting.size, setting.isCircle ? 1.0 : setting.flatness);
        second = DrawEllipse(draw, setting.size, setting.flatness);
        if (setting.isCircle)
        {
            first.b = first.a;
            first.rotation = 0.0;
        }
        first.centre = {draw.Signed(setting.offset), draw.Signed(setting.offset)};
        if (setting.leastDepth == 0.0)
        {
            second.centre = {first.centre.x + draw.Signed(0.7) * setting.size,
                             first.centre.y + draw.Signed(0.7) * setting.size};
            return;
        }
        // Touching from outside where the normals are opposite, then moved in.
        const double normal = draw.Angle();
        const double dip = draw.Magnitude(setting.leastDepth, setting.greatestDepth) * setting.size;
        const DPOINT2 onFirst = WithNormal(first, normal);
        const DPOINT2 onSecond = WithNormal(second, normal + 0.5 * TwoPi);
        second.centre = {first.centre.x + onFirst.x - onSecond.x - std::cos(normal) * dip,
                         first.centre.y + onFirst.y - onSecond.y - std::sin(normal) * dip};
    }

    /// The point with a given outward normal, from the centre.
    static DPOINT2 WithNormal(const EllipseArc& ellipse, double normal)
    {
        const double own = normal - ellipse.rotation;
        const double x = ellipse.a * std::cos(own);
        const double y = ellipse.b * std::sin(own);
        const double support = std::hypot(x, y);
        const double u = ellipse.a * x / support;
        const double v = ellipse.b * y / support;
        return {u * std::cos(ellipse.rotation) - v * std::sin(ellipse.rotation),
                u * std::sin(ellipse.rotation) + v * std::cos(ellipse.rotation)};
    }

    double Size() const
    {
        return std::max(first.a, second.a);
    }

    std::string Describe() const
    {
        return first.Describe() + "| " + second.Describe();
    }

    /// The search ends where the heights differ by less than 1e-9 or its range of x is narrower than that. The first
    /// leaves the point off by that over the sine of the crossing, the second by that over the cosine of the slope;
    /// both by no more than 1e-9 moves a point along a tangency.
    std::vector<CommonPoint> Truth() const
    {
        const double most = std::sqrt(2.0 * std::max(first.Curvature(), second.Curvature()) / Tolerance);
        std::vector<CommonPoint> points = CommonPoints(first.Whole(), second.Whole(), 1e-8 * std::max(1.0, Size()));
        for (CommonPoint& common : points)
        {
            common.condition = std::max(1.0, std::min(most, 1.0 / common.sine + 1.0 / common.steepness));
        }
        return points;
    }

    void Clip(std::vector<CommonPoint>& points, const EllipseArc& arc) const
    {
        ClipToArc(points, arc.centre, arc.rotation, arc.start, arc.sweep, 1e-6 * std::max(1.0, Size()));
    }
};

void CompareWith(Row& row, const TwoEllipses& input, int count, const DPOINT2* told,
                 const std::vector<CommonPoint>& truth)
{
    Compare(row, FirstOf(count, told, 4), truth, Tolerance,
            std::min(0.1, 0.02 * std::min(input.first.b, input.second.b)), [=] { return input.Describe(); });
}

void MeasurePairs(Run& run, const PairSetting& setting)
{
    constexpr int cases = 60;
    run.Stratum("Intersect_EllipseWithEllipse", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count = Intersect_EllipseWithEllipse(p.centre, p.a, p.b, p.rotation, q.centre, q.a, q.b, q.rotation,
                                                       &t[0], &t[1], &t[2], &t[3]);
        CompareWith(row, input, count, t, input.Truth());
    });
    run.Stratum("Intersect_EllipseWithEllipseArc", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count = Intersect_EllipseWithEllipseArc(p.centre, p.a, p.b, p.rotation, q.centre, q.a, q.b,
                                                          q.rotation, q.start, q.sweep, &t[0], &t[1], &t[2], &t[3]);
        std::vector<CommonPoint> truth = input.Truth();
        input.Clip(truth, q);
        CompareWith(row, input, count, t, truth);
    });
    run.Stratum("Intersect_EllipseArcWithEllipseArc", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count =
            Intersect_EllipseArcWithEllipseArc(p.centre, p.a, p.b, p.rotation, p.start, p.sweep, q.centre, q.a, q.b,
                                               q.rotation, q.start, q.sweep, &t[0], &t[1], &t[2], &t[3]);
        std::vector<CommonPoint> truth = input.Truth();
        input.Clip(truth, p);
        input.Clip(truth, q);
        CompareWith(row, input, count, t, truth);
    });
}

void MeasureCirclePairs(Run& run, PairSetting setting)
{
    constexpr int cases = 60;
    setting.isCircle = true;
    run.Stratum("Intersect_CircleWithEllipse", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count =
            Intersect_CircleWithEllipse(p.centre, p.a, q.centre, q.a, q.b, q.rotation, &t[0], &t[1], &t[2], &t[3]);
        CompareWith(row, input, count, t, input.Truth());
    });
    run.Stratum("Intersect_CircleWithEllipseArc", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count = Intersect_CircleWithEllipseArc(p.centre, p.a, q.centre, q.a, q.b, q.rotation, q.start,
                                                         q.sweep, &t[0], &t[1], &t[2], &t[3]);
        std::vector<CommonPoint> truth = input.Truth();
        input.Clip(truth, q);
        CompareWith(row, input, count, t, truth);
    });
    run.Stratum("Intersect_ArcWithEllipse", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count = Intersect_ArcWithEllipse(p.centre, p.a, p.start, p.sweep, q.centre, q.a, q.b, q.rotation,
                                                   &t[0], &t[1], &t[2], &t[3]);
        std::vector<CommonPoint> truth = input.Truth();
        input.Clip(truth, p);
        CompareWith(row, input, count, t, truth);
    });
    run.Stratum("Intersect_ArcWithEllipseArc", setting.name, OfTolerance, cases, [&](Draw& draw, Row& row) {
        const TwoEllipses input(draw, setting);
        const EllipseArc& p = input.first;
        const EllipseArc& q = input.second;
        DPOINT2 t[4];
        const int count = Intersect_ArcWithEllipseArc(p.centre, p.a, p.start, p.sweep, q.centre, q.a, q.b, q.rotation,
                                                      q.start, q.sweep, &t[0], &t[1], &t[2], &t[3]);
        std::vector<CommonPoint> truth = input.Truth();
        input.Clip(truth, p);
        input.Clip(truth, q);
        CompareWith(row, input, count, t, truth);
    });
}

} // namespace

void MeasureEllipses(Run& run)
{
    for (const LineSetting& setting : LineSettings)
    {
        MeasureLines(run, setting);
    }
    MeasureTouchingLines(run);
    for (const PairSetting& setting : PairSettings)
    {
        MeasurePairs(run, setting);
    }
    for (const PairSetting& setting : PairSettings)
    {
        MeasureCirclePairs(run, setting);
    }
}

} // namespace math::accuracy
