#include "Cases.h"
#include "TrueCurves.h"
#include "math/Primitives.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <cmath>

namespace math::accuracy
{

namespace
{

constexpr const char* OfReach = "u of the distance to the line's points";

/// Where points lie: within `size` of a place up to `offset` from the origin.
struct Setting
{
    const char* name;
    double size;
    double offset;
};

constexpr Setting Settings[] = {
    {"size 1e-3", 1e-3, 0.0}, {"size 1", 1.0, 0.0},          {"size 1e3", 1e3, 0.0},
    {"size 1e6", 1e6, 0.0},   {"size 1, 1e6 out", 1.0, 1e6},
};

/// A place of the setting: the middle of one input.
DPOINT2 Place(Draw& draw, const Setting& setting)
{
    return {draw.Signed(setting.offset), draw.Signed(setting.offset)};
}

DPOINT2 Near(Draw& draw, const DPOINT2& place, const Setting& setting)
{
    return {place.x + draw.Signed(setting.size), place.y + draw.Signed(setting.size)};
}

struct ThreePoints
{
    DPOINT2 p;
    DPOINT2 a;
    DPOINT2 b;

    ThreePoints(Draw& draw, const Setting& setting)
    {
        const DPOINT2 place = Place(draw, setting);
        p = Near(draw, place, setting);
        a = Near(draw, place, setting);
        b = Near(draw, place, setting);
    }

    Row::Describe Describe() const
    {
        return [*this] { return Text("px", p.x, "py", p.y, "ax", a.x, "ay", a.y, "bx", b.x, "by", b.y); };
    }

    Real Reach() const
    {
        return Max(Distance(RealPoint(p), RealPoint(a)), Distance(RealPoint(p), RealPoint(b)));
    }
};

/// The nearest place of a stretch, by clamping the parameter of the foot.
Real TrueDistanceToStretch(const ThreePoints& points)
{
    const RealPoint along = RealPoint(points.b) - RealPoint(points.a);
    const Real t = Dot(RealPoint(points.p) - RealPoint(points.a), along) / Dot(along, along);
    return Distance(RealPoint(points.p), RealPoint(points.a) + along * Max(0.0, Min(1.0, t)));
}

void MeasureStraight(Run& run, const Setting& setting)
{
    run.Stratum("D2GetDistance", setting.name, OfResult, 150, [&](Draw& draw, Row& row) {
        const ThreePoints points(draw, setting);
        row.AddValue(D2GetDistance(points.a, points.b), Distance(RealPoint(points.a), RealPoint(points.b)), 1.0,
                     points.Describe());
    });
    run.Stratum("D2GetPointToLineDistance", setting.name, OfReach, 150, [&](Draw& draw, Row& row) {
        const ThreePoints points(draw, setting);
        const StraightLine line(points.a, RealPoint(points.b) - RealPoint(points.a));
        row.AddRounding(
            Abs(D2GetPointToLineDistance(points.p, points.a, points.b) - Abs(line.Value(RealPoint(points.p)))),
            Distance(RealPoint(points.p), RealPoint(points.a)), 1.0, points.Describe());
    });
    run.Stratum("MinDistanceToLine", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const ThreePoints points(draw, setting);
        row.AddRounding(Abs(MinDistanceToLine(points.p, points.a, points.b) - TrueDistanceToStretch(points)),
                        LargestCoordinate({points.p, points.a, points.b}), 1.0, points.Describe());
    });
    run.Stratum("D2GetProjectionPoint", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const ThreePoints points(draw, setting);
        DPOINT2 foot;
        D2GetProjectionPoint(points.p, {points.a.x, points.a.y, points.b.x, points.b.y}, &foot);
        const StraightLine line(points.a, RealPoint(points.b) - RealPoint(points.a));
        const RealPoint truth = line.origin + line.unit * Dot(RealPoint(points.p) - line.origin, line.unit);
        row.AddRounding(Distance(RealPoint(foot), truth), LargestCoordinate({points.p, points.a, points.b, foot}), 1.0,
                        points.Describe());
    });
}

void MeasureBeelineDistance(Run& run, const Setting& setting)
{
    run.Stratum("D2GetPointToBeelineDistance", setting.name, OfReach, 150, [&](Draw& draw, Row& row) {
        const ThreePoints points(draw, setting);
        const double angle = draw.Between(-3.14, 6.28);
        const Real truth = Abs(Cross(Direction(angle), RealPoint(points.p) - RealPoint(points.a)));
        row.AddRounding(Abs(D2GetPointToBeelineDistance(points.p, points.a, angle) - truth),
                        Distance(RealPoint(points.p), RealPoint(points.a)), 1.0 + LossOfBeeline(points.a, angle),
                        [=] { return points.Describe()() + Text("angle", angle); });
    });
}

void MeasureArcDistance(Run& run, const Setting& setting)
{
    run.Stratum("MinDistanceToArc", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const DPOINT2 centre = Place(draw, setting);
        const double radius = draw.Between(0.1, 1.0) * setting.size;
        const double start = draw.Angle();
        const double sweep = draw.Signed(6.2);
        const DPOINT2 first = GetPointInCircle(centre, radius, start);
        const DPOINT2 second = GetPointInCircle(centre, radius, start + sweep);
        const DPOINT2 p = Near(draw, centre, setting);
        const auto text = [=] {
            return Text("px", p.x, "py", p.y, "cx", centre.x, "cy", centre.y, "radius", radius, "sx", first.x, "sy",
                        first.y, "ex", second.x, "ey", second.y, "sweep", sweep);
        };
        if (!(Abs(Distance(RealPoint(first), RealPoint(centre)) - radius) < 0.9e-9) ||
            !(Abs(Distance(RealPoint(second), RealPoint(centre)) - radius) < 0.9e-9))
        {
            return; // Far out the ends cannot be told well enough for an arc.
        }
        const RealPoint toStart = RealPoint(first) - RealPoint(centre);
        const RealPoint toPoint = RealPoint(p) - RealPoint(centre);
        const Real angle =
            Modulo(Atan2(Cross(toStart, toPoint), Dot(toStart, toPoint)) * (sweep > 0.0 ? 1.0 : -1.0), 2.0 * Pi());
        if (CircularDistance(angle, std::abs(sweep), 2.0 * Pi()) < 1e-12 ||
            CircularDistance(angle, 0.0, 2.0 * Pi()) < 1e-12)
        {
            return; // On the border of the sector either answer is right.
        }
        const Real truth = angle < std::abs(sweep) ? Abs(Norm(toPoint) - radius)
                                                   : Min(Distance(RealPoint(p), RealPoint(first)),
                                                         Distance(RealPoint(p), RealPoint(second)));
        row.AddRounding(Abs(MinDistanceToArc(p, centre, first, second, radius, sweep) - truth),
                        LargestCoordinate({p, centre, {radius, radius}}), 1.0, text);
    });
}

void MeasureVectors(Run& run)
{
    constexpr const char* ofProduct = "u of the product of the lengths";
    constexpr const char* all = "1e-3 to 1e6";
    const auto vector = [](Draw& draw) {
        return gp_Vec2d{draw.SignedMagnitude(1e-3, 1e6), draw.SignedMagnitude(1e-3, 1e6)};
    };
    const auto text = [](const gp_Vec2d& a, const gp_Vec2d& b) {
        return [=] { return Text("ax", a.X(), "ay", a.Y(), "bx", b.X(), "by", b.Y()); };
    };
    const auto real = [](const gp_Vec2d& a) { return RealPoint(a.X(), a.Y()); };
    run.Stratum("D2CrossMultiply", all, ofProduct, 200, [=](Draw& draw, Row& row) {
        const gp_Vec2d a = vector(draw);
        const gp_Vec2d b = vector(draw);
        row.AddRounding(Abs(D2CrossMultiply(a, b) - Cross(real(a), real(b))), Norm(real(a)) * Norm(real(b)), 1.0,
                        text(a, b));
    });
    run.Stratum("D2DotMultiply", all, ofProduct, 200, [=](Draw& draw, Row& row) {
        const gp_Vec2d a = vector(draw);
        const gp_Vec2d b = vector(draw);
        row.AddRounding(Abs(D2DotMultiply(a, b) - Dot(real(a), real(b))), Norm(real(a)) * Norm(real(b)), 1.0,
                        text(a, b));
    });
    run.Stratum("D2GetProjectionDistance", all, "u of the length of the vector", 200, [=](Draw& draw, Row& row) {
        const gp_Vec2d a = vector(draw);
        const gp_Vec2d b = vector(draw);
        row.AddRounding(Abs(D2GetProjectionDistance(a, b) - Dot(real(a), real(b)) / Norm(real(b))), Norm(real(a)), 1.0,
                        text(a, b));
    });
}

void MeasureFrames(Run& run, const Setting& setting)
{
    run.Stratum("CoorTransXYToUV", setting.name, "u of the distance to the frame's origin", 150,
                [&](Draw& draw, Row& row) {
                    const ThreePoints points(draw, setting);
                    const double angle = draw.Signed(7.0);
                    const DPOINT2 result = CoorTransXYToUV(points.p, points.a, angle);
                    const RealPoint offset = RealPoint(points.p) - RealPoint(points.a);
                    row.AddRounding(Distance(RealPoint(result), Turned(offset, Direction(-Real(angle)))), Norm(offset),
                                    1.0, [=] { return points.Describe()() + Text("angle", angle); });
                });
    run.Stratum("CoorTransUVToXY", setting.name, OfCoordinate, 150, [&](Draw& draw, Row& row) {
        const DPOINT2 origin = Near(draw, Place(draw, setting), setting);
        const DPOINT2 p = Near(draw, {}, setting);
        const double angle = draw.Signed(7.0);
        const DPOINT2 result = CoorTransUVToXY(p, origin, angle);
        row.AddRounding(Distance(RealPoint(result), RealPoint(origin) + Turned(p, Direction(angle))),
                        LargestCoordinate({p, origin, result}), 1.0,
                        [=] { return Text("u", p.x, "v", p.y, "ox", origin.x, "oy", origin.y, "angle", angle); });
    });
}

/// The foot lies beyond an end of a stretch by less than the tolerance and still counts.
void MeasureFeetBeyondAnEnd(Run& run)
{
    run.Stratum("MinDistanceToLine", "foot within 1e-9 beyond an end", OfTolerance, 150, [](Draw& draw, Row& row) {
        ThreePoints points(draw, Settings[1]);
        points.a = {0.0, 0.0};
        points.b = {draw.Between(0.5, 2.0), 0.0};
        points.p = {points.b.x + draw.Unit() * 1e-9, draw.Coin() ? 0.0 : draw.Magnitude(1e-10, 1e-8)};
        row.Add(Abs(MinDistanceToLine(points.p, points.a, points.b) - TrueDistanceToStretch(points)), 1e-9, 1.0,
                points.Describe());
    });
}

} // namespace

void MeasureDistances(Run& run)
{
    for (const Setting& setting : Settings)
    {
        MeasureStraight(run, setting);
        MeasureBeelineDistance(run, setting);
        MeasureArcDistance(run, setting);
        MeasureFrames(run, setting);
    }
    MeasureFeetBeyondAnEnd(run);
    MeasureVectors(run);
}

} // namespace math::accuracy
