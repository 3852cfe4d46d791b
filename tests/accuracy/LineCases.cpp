#include "Cases.h"
#include "TrueCurves.h"
#include "math/AnalyticKernel.h"
#include "math/Intersect.h"

#include <gp_Dir2d.hxx>

#include <algorithm>
#include <cmath>
#include <limits>

namespace math::accuracy
{

namespace
{

constexpr double HalfPi = 1.5707963267948966;
constexpr double TwoPi = 6.283185307179586;

struct Setting
{
    const char* name;
    double size;
    double offset;
    double leastDepth; ///< of a crossing, as a share of the size: how far the curves dip into each other
    double greatestDepth;
    bool outside = false; ///< the same distance, but missing each other
};

constexpr Setting Settings[] = {
    {"size 1e-3", 1e-3, 0.0, 0.1, 1.0},
    {"size 1", 1.0, 0.0, 0.1, 1.0},
    {"size 1e3", 1e3, 0.0, 0.1, 1.0},
    {"size 1e6", 1e6, 0.0, 0.1, 1.0},
    {"size 1, 1e3 out", 1.0, 1e3, 0.1, 1.0},
    {"size 1, 1e6 out", 1.0, 1e6, 0.1, 1.0},
    {"nearly touching, by 1e-4 to 1e-2", 1.0, 0.0, 1e-4, 1e-2},
    {"nearly touching, by 1e-8 to 1e-6", 1.0, 0.0, 1e-8, 1e-6},
    {"nearly touching, by 1e-13 to 1e-10", 1.0, 0.0, 1e-13, 1e-10},
    {"missing by 1e-13 to 1e-10", 1.0, 0.0, 1e-13, 1e-10, true},
};

/// Whether the ends of bounded curves are told in rounding units here; where they are not, only wholes are measured.
bool IsWellPlaced(const Setting& setting)
{
    return setting.offset == 0.0 && setting.leastDepth > 0.01;
}

DPOINT2 Place(Draw& draw, const Setting& setting)
{
    return {draw.Signed(setting.offset + setting.size), draw.Signed(setting.offset + setting.size)};
}

// Two straight lines

struct LineSetting
{
    const char* name;
    double size;
    double offset;
    double leastTurn; ///< angle between the lines
    double greatestTurn;
};

constexpr LineSetting LineSettings[] = {
    {"size 1e-3", 1e-3, 0.0, 0.1, 1.5},
    {"size 1", 1.0, 0.0, 0.1, 1.5},
    {"size 1e6", 1e6, 0.0, 0.1, 1.5},
    {"size 1, 1e6 out", 1.0, 1e6, 0.1, 1.5},
    {"1e-4 to 1e-2 from parallel", 1.0, 0.0, 1e-4, 1e-2},
    {"1e-8 to 1e-5 from parallel", 1.0, 0.0, 1e-8, 1e-5},
};

/// Two stretches through about one place at a given angle.
struct TwoStretches
{
    DPOINT2 a1;
    DPOINT2 a2;
    DPOINT2 b1;
    DPOINT2 b2;
    double firstAngle;
    double secondAngle;

    TwoStretches(Draw& draw, const LineSetting& setting)
    {
        const DPOINT2 meeting{draw.Signed(setting.offset), draw.Signed(setting.offset)};
        firstAngle = draw.Between(0.0, 3.14);
        secondAngle = firstAngle + draw.SignedMagnitude(setting.leastTurn, setting.greatestTurn);
        const auto along = [&](double angle, double distance) {
            return DPOINT2(meeting.x + std::cos(angle) * distance, meeting.y + std::sin(angle) * distance);
        };
        a1 = along(firstAngle, -draw.Between(0.2, 1.0) * setting.size);
        a2 = along(firstAngle, draw.Between(0.2, 1.0) * setting.size);
        b1 = along(secondAngle, -draw.Between(0.2, 1.0) * setting.size);
        b2 = along(secondAngle, draw.Between(0.2, 1.0) * setting.size);
    }

    StraightLine First() const
    {
        return {a1, RealPoint(a2) - RealPoint(a1)};
    }

    StraightLine Second() const
    {
        return {b1, RealPoint(b2) - RealPoint(b1)};
    }

    double Scale() const
    {
        return LargestCoordinate({a1, a2, b1, b2});
    }

    std::string Describe() const
    {
        return Text("ax1", a1.x, "ay1", a1.y, "ax2", a2.x, "ay2", a2.y, "bx1", b1.x, "by1", b1.y, "bx2", b2.x, "by2",
                    b2.y, "angle1", firstAngle, "angle2", secondAngle);
    }
};

CommonPoint Crossing(const StraightLine& a, const StraightLine& b)
{
    CommonPoint result;
    const Real sine = Cross(a.unit, b.unit);
    result.point = a.origin + a.unit * (Cross(b.origin - a.origin, b.unit) / sine);
    result.sine = Abs(sine).ToDouble();
    return result;
}

/// A pair of straight lines that crosses well inside of both stretches, told or not.
void AddCrossing(Row& row, int count, const DPOINT2& told, CommonPoint truth, double condition, double scale,
                 const Row::Describe& describe)
{
    truth.condition = condition / truth.sine;
    const double far = std::numeric_limits<double>::infinity();
    Compare(row, count == 1 ? std::vector<DPOINT2>{told} : std::vector<DPOINT2>{}, {truth}, Real(scale) * RoundingUnit,
            far, describe);
}

void MeasureStraightLines(Run& run, const LineSetting& setting)
{
    run.Stratum("Intersect", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const TwoStretches input(draw, setting);
        DPOINT2 told;
        const int count = Intersect(LineD2D{input.a1.x, input.a1.y, input.a2.x, input.a2.y},
                                    LineD2D{input.b1.x, input.b1.y, input.b2.x, input.b2.y}, &told);
        AddCrossing(row, count, told, Crossing(input.First(), input.Second()), 1.0, input.Scale(),
                    [=] { return input.Describe(); });
    });
    run.Stratum("Intersect_LineWithLine", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const TwoStretches input(draw, setting);
        DPOINT2 told;
        const int count = Intersect_LineWithLine(input.a1, input.a2, input.b1, input.b2, &told);
        AddCrossing(row, count, told, Crossing(input.First(), input.Second()), 1.0, input.Scale(),
                    [=] { return input.Describe(); });
    });
    run.Stratum("Intersect_BeelineWithBeeline", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const TwoStretches input(draw, setting);
        DPOINT2 told;
        const int count = Intersect_BeelineWithBeeline(input.a1, input.firstAngle, input.b1, input.secondAngle, &told);
        const CommonPoint truth =
            Crossing({input.a1, Direction(input.firstAngle)}, {input.b1, Direction(input.secondAngle)});
        const double reach = Max(Distance(truth.point, input.a1), Distance(truth.point, input.b1)).ToDouble();
        const double loss = LossOfBeeline(input.a1, input.firstAngle) + LossOfBeeline(input.b1, input.secondAngle);
        AddCrossing(row, count, told, truth, 1.0 + loss * reach / input.Scale(), input.Scale(),
                    [=] { return input.Describe(); });
    });
    run.Stratum("Intersect_BeelineWithLine", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const TwoStretches input(draw, setting);
        DPOINT2 told;
        const int count = Intersect_BeelineWithLine(input.a1, input.firstAngle, input.b1, input.b2, &told);
        CommonPoint truth = Crossing({input.a1, Direction(input.firstAngle)}, input.Second());
        std::vector<CommonPoint> clipped{truth};
        ClipToStretch(clipped, input.b1, input.b2, 1e-8);
        if (clipped[0].standing != Standing::Inside)
        {
            return; // Far out the rounded points are off the beeline by so much that it passes the stretch by.
        }
        const double loss = LossOfBeeline(input.a1, input.firstAngle);
        const double reach = Distance(truth.point, input.a1).ToDouble();
        AddCrossing(row, count, told, truth, 1.0 + loss * reach / input.Scale(), input.Scale(),
                    [=] { return input.Describe(); });
    });
}

void MeasureUpright(Run& run)
{
    run.Stratum("Intersect_BeelineWithBeeline", "within 1e-9 of upright", "1e-9 of the distance", 100,
                [](Draw& draw, Row& row) {
                    const DPOINT2 p{draw.Signed(1.0), draw.Signed(1.0)};
                    const DPOINT2 q{draw.Signed(1.0), draw.Signed(1.0)};
                    const double angle = HalfPi + draw.Signed(0.99e-9);
                    DPOINT2 told;
                    const int count = Intersect_BeelineWithBeeline(p, angle, q, 0.0, &told);
                    const CommonPoint truth = Crossing({p, Direction(angle)}, {q, Direction(0.0)});
                    const Real unit = 1e-9 * Distance(truth.point, p) + 8.0 * RoundingUnit;
                    Compare(row, count == 1 ? std::vector<DPOINT2>{told} : std::vector<DPOINT2>{}, {truth}, unit, 1.0,
                            [=] { return Text("px", p.x, "py", p.y, "qx", q.x, "qy", q.y, "angle", angle); });
                });
}

// Straight lines with circles

struct LineAndCircle
{
    DPOINT2 from; ///< a point of the line
    DPOINT2 to;   ///< another: the ends of a stretch
    double angle;
    DPOINT2 centre;
    double radius;
    double start;
    double sweep;

    LineAndCircle(Draw& draw, const Setting& setting)
    {
        centre = Place(draw, setting);
        radius = draw.Between(0.2, 1.0) * setting.size;
        angle = draw.Between(0.0, 3.14159);
        start = draw.Angle();
        sweep = draw.Signed(6.2);
        const double dip = draw.Magnitude(setting.leastDepth, setting.greatestDepth);
        const double distance = radius * (setting.outside ? 1.0 + dip : 1.0 - dip);
        const double side = draw.Coin() ? distance : -distance;
        const auto place = [&](double along) {
            return DPOINT2(centre.x - std::sin(angle) * side + std::cos(angle) * along,
                           centre.y + std::cos(angle) * side + std::sin(angle) * along);
        };
        const double half = draw.Between(0.5, 3.0) * radius;
        from = place(-half);
        to = place(half * draw.Between(0.2, 1.0));
    }

    double Scale() const
    {
        return std::max(LargestCoordinate({from, to, centre}), radius);
    }

    std::string Describe() const
    {
        return Text("x1", from.x, "y1", from.y, "x2", to.x, "y2", to.y, "angle", angle, "cx", centre.x, "cy", centre.y,
                    "radius", radius, "start", start, "sweep", sweep);
    }

    /// Common points of the circle and a line in units of rounding: the line is off by `loss` units of direction.
    std::vector<CommonPoint> Truth(const StraightLine& line, double loss) const
    {
        const double shift = 1.0 + loss * (std::abs(std::hypot(to.x - from.x, to.y - from.y)) + 2.0 * radius) / Scale();
        // Both curves are known to a few rounding units: what dips into the other by less is open.
        const double edge = 30.0 * shift * Scale() * RoundingUnit;
        std::vector<CommonPoint> points = CommonPoints(Conic(centre, radius, radius, 0.0), line, edge);
        for (CommonPoint& common : points)
        {
            // The condition is that of the crossing, but a shift never moves a point further than along a tangency.
            common.condition = std::min(shift / common.sine, shift + std::sqrt(2.0 * shift / RoundingUnit));
        }
        return points;
    }
};

void CompareWith(Row& row, const LineAndCircle& input, int count, const DPOINT2* told,
                 const std::vector<CommonPoint>& truth)
{
    Compare(row, FirstOf(count, told, 2), truth, Real(input.Scale()) * RoundingUnit, 0.1 * input.radius,
            [=] { return input.Describe(); });
}

void MeasureLinesWithCircle(Run& run, const Setting& setting)
{
    run.Stratum("Intersect_BeelineWithCircle", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndCircle input(draw, setting);
        DPOINT2 told[2];
        const int count =
            Intersect_BeelineWithCircle(input.from, input.angle, input.centre, input.radius, &told[0], &told[1]);
        CompareWith(row, input, count, told,
                    input.Truth({input.from, Direction(input.angle)}, LossOfBeeline(input.from, input.angle)));
    });
    // The angle of a stretch is computed from its ends and carries some rounding units of its own.
    constexpr double lossOfAngle = 8.0;
    run.Stratum("Intersect_LineWithCircle", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndCircle input(draw, setting);
        DPOINT2 told[2];
        const int count =
            Intersect_LineWithCircle(input.from, input.to, input.centre, input.radius, &told[0], &told[1]);
        std::vector<CommonPoint> truth = input.Truth({input.from, RealPoint(input.to) - RealPoint(input.from)},
                                                     lossOfAngle + LossOfBeeline(input.from, input.angle));
        ClipToStretch(truth, input.from, input.to, 1e-8);
        CompareWith(row, input, count, told, truth);
    });
    if (!IsWellPlaced(setting))
    {
        return;
    }
    run.Stratum("Intersect_BeelineWithArc", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndCircle input(draw, setting);
        DPOINT2 told[2];
        const int count = Intersect_BeelineWithArc(input.from, input.angle, input.centre, input.radius, input.start,
                                                   input.sweep, &told[0], &told[1]);
        std::vector<CommonPoint> truth =
            input.Truth({input.from, Direction(input.angle)}, LossOfBeeline(input.from, input.angle));
        ClipToArc(truth, input.centre, 0.0, input.start, input.sweep, 1e-8 * std::max(1.0, input.radius));
        CompareWith(row, input, count, told, truth);
    });
    run.Stratum("Intersect_LineWithArc", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const LineAndCircle input(draw, setting);
        DPOINT2 told[2];
        const int count = Intersect_LineWithArc(input.from, input.to, input.centre, input.radius, input.start,
                                                input.sweep, &told[0], &told[1]);
        std::vector<CommonPoint> truth = input.Truth({input.from, RealPoint(input.to) - RealPoint(input.from)},
                                                     lossOfAngle + LossOfBeeline(input.from, input.angle));
        ClipToStretch(truth, input.from, input.to, 1e-8);
        ClipToArc(truth, input.centre, 0.0, input.start, input.sweep, 1e-8 * std::max(1.0, input.radius));
        CompareWith(row, input, count, told, truth);
    });
}

// Two circles

struct TwoCircles
{
    DPOINT2 firstCentre;
    DPOINT2 secondCentre;
    double firstRadius;
    double secondRadius;
    double starts[2];
    double sweeps[2];

    /// @param ratio  the second radius is that much smaller
    TwoCircles(Draw& draw, const Setting& setting, double ratio = 1.0)
    {
        firstCentre = Place(draw, setting);
        firstRadius = draw.Between(0.2, 1.0) * setting.size;
        secondRadius = draw.Between(0.2, 1.0) * setting.size / ratio;
        if (draw.Coin())
        {
            std::swap(firstRadius, secondRadius);
        }
        const double dip = draw.Magnitude(setting.leastDepth, setting.greatestDepth) *
                           std::min(firstRadius, secondRadius) * (setting.outside ? -1.0 : 1.0);
        const double distance =
            draw.Coin() ? firstRadius + secondRadius - dip : std::abs(firstRadius - secondRadius) + dip;
        const double towards = draw.Angle();
        secondCentre = {firstCentre.x + std::cos(towards) * distance, firstCentre.y + std::sin(towards) * distance};
        for (int i = 0; i < 2; ++i)
        {
            starts[i] = draw.Angle();
            sweeps[i] = draw.Signed(6.2);
        }
    }

    double Scale() const
    {
        return std::max({LargestCoordinate({firstCentre, secondCentre}), firstRadius, secondRadius});
    }

    std::string Describe() const
    {
        return Text("cx1", firstCentre.x, "cy1", firstCentre.y, "r1", firstRadius, "cx2", secondCentre.x, "cy2",
                    secondCentre.y, "r2", secondRadius, "start1", starts[0], "sweep1", sweeps[0], "start2", starts[1],
                    "sweep2", sweeps[1]);
    }

    std::vector<CommonPoint> Truth() const
    {
        const double d = Distance(RealPoint(firstCentre), RealPoint(secondCentre)).ToDouble();
        // The foot of the common chord is (d² + r1² - r2²) / 2d from the first centre: it carries the rounding of the
        // three squares, and hands it on to the half chord, sqrt(r1² - foot²).
        const double loss =
            1.0 + (d * d + firstRadius * firstRadius + secondRadius * secondRadius) / (2.0 * d * Scale());
        const double foot = std::abs(d * d + firstRadius * firstRadius - secondRadius * secondRadius) / (2.0 * d);
        const double edge = 30.0 * loss * Scale() * RoundingUnit;
        std::vector<CommonPoint> points = CommonPoints(Conic(firstCentre, firstRadius, firstRadius, 0.0),
                                                       Conic(secondCentre, secondRadius, secondRadius, 0.0), edge);
        for (CommonPoint& common : points)
        {
            const double half = common.sine * firstRadius * secondRadius / d;
            common.condition =
                loss + std::min(loss * foot / half, std::sqrt(2.0 * loss * foot / (RoundingUnit * Scale())));
        }
        return points;
    }

    void ClipToFirst(std::vector<CommonPoint>& points) const
    {
        ClipToArc(points, firstCentre, 0.0, starts[0], sweeps[0], 1e-8 * std::max(1.0, firstRadius));
    }

    void ClipToSecond(std::vector<CommonPoint>& points) const
    {
        ClipToArc(points, secondCentre, 0.0, starts[1], sweeps[1], 1e-8 * std::max(1.0, secondRadius));
    }
};

void CompareWith(Row& row, const TwoCircles& input, int count, const DPOINT2* told,
                 const std::vector<CommonPoint>& truth)
{
    Compare(row, FirstOf(count, told, 2), truth, Real(input.Scale()) * RoundingUnit,
            0.1 * std::min(input.firstRadius, input.secondRadius), [=] { return input.Describe(); });
}

void MeasureTwoCircles(Run& run, const Setting& setting)
{
    for (const double ratio : {1.0, 1e3})
    {
        if (ratio > 1.0 && setting.leastDepth < 0.01)
        {
            continue;
        }
        const std::string stratum = setting.name + std::string(ratio > 1.0 ? ", radii of ratio 1e3" : "");
        run.Stratum("Intersect_CircleWithCircle", stratum, OfCircle, 150, [&](Draw& draw, Row& row) {
            const TwoCircles input(draw, setting, ratio);
            DPOINT2 told[2];
            const int count = Intersect_CircleWithCircle(input.firstCentre, input.firstRadius, input.secondCentre,
                                                         input.secondRadius, &told[0], &told[1]);
            CompareWith(row, input, count, told, input.Truth());
        });
    }
    if (!IsWellPlaced(setting))
    {
        return;
    }
    run.Stratum("Intersect_CircleWithArc", setting.name, OfCircle, 150, [&](Draw& draw, Row& row) {
        const TwoCircles input(draw, setting);
        DPOINT2 told[2];
        const int count =
            Intersect_CircleWithArc(input.firstCentre, input.firstRadius, input.secondCentre, input.secondRadius,
                                    input.starts[1], input.sweeps[1], &told[0], &told[1]);
        std::vector<CommonPoint> truth = input.Truth();
        input.ClipToSecond(truth);
        CompareWith(row, input, count, told, truth);
    });
    run.Stratum("Intersect_ArcWithArc", setting.name, OfCircle, 150, [&](Draw& draw, Row& row) {
        const TwoCircles input(draw, setting);
        DPOINT2 told[2];
        const int count = Intersect_ArcWithArc(input.firstCentre, input.firstRadius, input.starts[0], input.sweeps[0],
                                               input.secondCentre, input.secondRadius, input.starts[1], input.sweeps[1],
                                               &told[0], &told[1]);
        std::vector<CommonPoint> truth = input.Truth();
        input.ClipToFirst(truth);
        input.ClipToSecond(truth);
        CompareWith(row, input, count, told, truth);
    });
}

// Parameters, which only the kernel tells

void MeasureParameters(Run& run, const Setting& setting)
{
    run.Stratum("IntAna2d_AnaIntersection, parameters on line and circle", setting.name, "u of 2π or the radius", 150,
                [&](Draw& draw, Row& row) {
                    const LineAndCircle input(draw, setting);
                    const gp_Lin2d line({input.from.x, input.from.y},
                                        gp_Dir2d(input.to.x - input.from.x, input.to.y - input.from.y));
                    const gp_Circ2d circle(gp_Ax2d({input.centre.x, input.centre.y}, gp_Dir2d(1.0, 0.0)), input.radius);
                    const IntAna2d_AnaIntersection meeting(line, circle);
                    for (int i = 1; i <= meeting.PointCount(); ++i)
                    {
                        // Parameters are those of the point that is told.
                        const IntAna2d_IntPoint& told = meeting.Point(i);
                        const RealPoint point(told.X(), told.Y());
                        const RealPoint radial = point - RealPoint(input.centre);
                        const RealPoint along(line.Direction().X(), line.Direction().Y());
                        const Real onCircle =
                            CircularDistance(told.ParamOnSecond(), Atan2(radial.y, radial.x), 2.0 * Pi()) / TwoPi;
                        const Real onLine =
                            Abs(Dot(point - RealPoint(input.from), along) - told.ParamOnFirst()) / (8.0 * input.radius);
                        row.AddRounding(Max(onCircle, onLine), 1.0, 1.0, [=] { return input.Describe(); });
                    }
                });
    run.Stratum(
        "IntAna2d_AnaIntersection, parameters on circles", setting.name, "u of 2π", 150, [&](Draw& draw, Row& row) {
            const TwoCircles input(draw, setting);
            const auto circle = [](const DPOINT2& centre, double radius) {
                return gp_Circ2d(gp_Ax2d({centre.x, centre.y}, gp_Dir2d(1.0, 0.0)), radius);
            };
            const IntAna2d_AnaIntersection meeting(circle(input.firstCentre, input.firstRadius),
                                                   circle(input.secondCentre, input.secondRadius));
            const std::vector<CommonPoint> truth = input.Truth();
            for (int i = 1; i <= meeting.PointCount(); ++i)
            {
                const IntAna2d_IntPoint& told = meeting.Point(i);
                const RealPoint point(told.X(), told.Y());
                double condition = 1.0;
                Real least = 1e300;
                Real error = 0.0;
                for (const CommonPoint& common : truth)
                {
                    if (Distance(common.point, point) < least)
                    {
                        least = Distance(common.point, point);
                        const RealPoint first = common.point - RealPoint(input.firstCentre);
                        const RealPoint second = common.point - RealPoint(input.secondCentre);
                        error = Max(CircularDistance(told.ParamOnFirst(), Atan2(first.y, first.x), 2.0 * Pi()),
                                    CircularDistance(told.ParamOnSecond(), Atan2(second.y, second.x), 2.0 * Pi()));
                        condition = 1.0 + common.condition * input.Scale() /
                                              std::min(input.firstRadius, input.secondRadius) / TwoPi;
                    }
                }
                row.AddRounding(error, TwoPi, condition, [=] { return input.Describe(); });
            }
        });
}

} // namespace

void MeasureLinesAndCircles(Run& run)
{
    for (const LineSetting& setting : LineSettings)
    {
        MeasureStraightLines(run, setting);
    }
    MeasureUpright(run);
    for (const Setting& setting : Settings)
    {
        MeasureLinesWithCircle(run, setting);
        MeasureTwoCircles(run, setting);
        if (IsWellPlaced(setting))
        {
            MeasureParameters(run, setting);
        }
    }
}

} // namespace math::accuracy
