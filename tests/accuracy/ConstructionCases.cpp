#include "Cases.h"
#include "TrueCurves.h"
#include "math/AnalyticKernel.h"
#include "math/Primitives.h"

#include <algorithm>
#include <cmath>

namespace math::accuracy
{

namespace
{

constexpr const char* OfSemiAxis = "u of the larger semi-axis";
constexpr const char* OfTurn = "u of 2π";

constexpr double HalfPi = 1.5707963267948966;
constexpr double TwoPi = 6.283185307179586;

struct EllipseInput
{
    DPOINT2 centre;
    double a;
    double b;
    double rotation;

    EllipseInput(Draw& draw, double size, double flatness, double offset)
        : centre{draw.Signed(offset), draw.Signed(offset)},
          a(draw.Between(0.5, 1.0) * size),
          b(a / draw.Magnitude(1.0, flatness)),
          rotation(draw.Between(0.0, 3.14))
    {
    }

    double Scale() const
    {
        return std::max({std::abs(centre.x), std::abs(centre.y), a, b});
    }

    std::string Describe() const
    {
        return Text("cx", centre.x, "cy", centre.y, "a", a, "b", b, "rotation", rotation);
    }
};

struct EllipseSetting
{
    const char* name;
    double size;
    double flatness;
    double offset;
};

constexpr EllipseSetting EllipseSettings[] = {
    {"size 1e-3, ratio to 10", 1e-3, 10.0, 0.0},      {"size 1, ratio to 10", 1.0, 10.0, 0.0},
    {"size 1, ratio to 1e3", 1.0, 1e3, 0.0},          {"size 1e6, ratio to 10", 1e6, 10.0, 0.0},
    {"size 1, ratio to 10, 1e6 out", 1.0, 10.0, 1e6},
};

/// The point of an ellipse on a ray: its distance from the centre is ab / sqrt((b cos)² + (a sin)²).
RealPoint TruePointInEllipse(const EllipseInput& ellipse, double radian)
{
    const Conic conic(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation);
    const RealPoint ray = Direction(radian);
    const RealPoint own = ray * (conic.a * conic.b / Hypot(conic.b * ray.x, conic.a * ray.y));
    return conic.centre + Turned(own, conic.axis);
}

void MeasurePointsOnCurves(Run& run, const EllipseSetting& setting)
{
    run.Stratum("GetPointInEllipse", setting.name, OfCoordinate, 200, [&](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, setting.size, setting.flatness, setting.offset);
        const double radian = draw.Angle();
        const DPOINT2 point = GetPointInEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, radian);
        row.AddRounding(Distance(RealPoint(point), TruePointInEllipse(ellipse, radian)), ellipse.Scale(), 1.0,
                        [=] { return ellipse.Describe() + Text("radian", radian); });
    });
    if (setting.flatness > 10.0)
    {
        return; // A circle has no ratio.
    }
    run.Stratum("GetPointInCircle", setting.name, OfCoordinate, 200, [&](Draw& draw, Row& row) {
        const EllipseInput circle(draw, setting.size, 1.0, setting.offset);
        const double radian = draw.Signed(7.0);
        const DPOINT2 point = GetPointInCircle(circle.centre, circle.a, radian);
        row.AddRounding(Distance(RealPoint(point), RealPoint(circle.centre) + Direction(radian) * circle.a),
                        circle.Scale(), 1.0, [=] { return circle.Describe() + Text("radian", radian); });
    });
}

void MeasurePointsAtQuarterTurns(Run& run)
{
    run.Stratum("GetPointInEllipse", "within 1e-9 of a quarter turn, on the right", "1e-9 of a²/b", 100,
                [](Draw& draw, Row& row) {
                    const EllipseInput ellipse(draw, 1.0, 10.0, 0.0);
                    const double near = draw.Unit() * 1e-9;
                    const double radian = draw.Coin() ? HalfPi - near : 3.0 * HalfPi + near;
                    const DPOINT2 point =
                        GetPointInEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, radian);
                    row.Add(Distance(RealPoint(point), TruePointInEllipse(ellipse, radian)),
                            1e-9 * ellipse.a * ellipse.a / ellipse.b, 1.0,
                            [=] { return ellipse.Describe() + Text("radian", radian); });
                });
}

/// The eccentric parameter of a polar angle in [0, 2π), on the same lap.
Real Eccentric(const EllipseInput& ellipse, const Real& polar)
{
    return Modulo(Atan2(ellipse.a * Sin(polar), ellipse.b * Cos(polar)), 2.0 * Pi());
}

/// The arc is furthest from its chord half-way in the eccentric parameter.
Real TrueHeight(const EllipseInput& ellipse, double start, double sweep)
{
    const Conic conic({}, ellipse.a, ellipse.b, 0.0);
    const Real first = Eccentric(ellipse, start);
    Real second = Eccentric(ellipse, Modulo(Real(start) + sweep, 2.0 * Pi()));
    second = second < first ? second + 2.0 * Pi() : second;
    const RealPoint from = conic.At(Direction(first));
    const RealPoint chord = conic.At(Direction(second)) - from;
    const RealPoint top = conic.At(Direction((first + second) * 0.5));
    return Abs(Cross(chord, top - from)) / Norm(chord);
}

void MeasureHeights(Run& run)
{
    const auto measure = [](const EllipseInput& ellipse, double least, double greatest, Draw& draw, Row& row) {
        const double start = draw.Angle();
        const double sweep = draw.Magnitude(least, greatest);
        const DPOINT2 first = GetPointInEllipse({}, ellipse.a, ellipse.b, 0.0, start);
        const DPOINT2 second = GetPointInEllipse({}, ellipse.a, ellipse.b, 0.0, std::fmod(start + sweep, TwoPi));
        const double dx = second.x - first.x;
        const double dy = second.y - first.y;
        // The slope of a short chord is as inexact as its ends, and the slope of a steep one magnifies the rounding of
        // the angle it is turned into.
        const double condition = 1.0 + ellipse.a / std::hypot(dx, dy) + std::abs(dy / dx);
        row.AddRounding(
            Abs(GetHeightOfEllipseArc(ellipse.a, ellipse.b, start, sweep) - TrueHeight(ellipse, start, sweep)),
            ellipse.a, condition, [=] { return ellipse.Describe() + Text("start", start, "sweep", sweep); });
    };
    run.Stratum("GetHeightOfEllipseArc", "ratio to 10", OfSemiAxis, 200, [=](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, 1.0, 10.0, 0.0);
        measure(ellipse, 0.1, 6.2, draw, row);
    });
    run.Stratum("GetHeightOfEllipseArc", "ratio to 1e3", OfSemiAxis, 200, [=](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, 1.0, 1e3, 0.0);
        measure(ellipse, 0.1, 6.2, draw, row);
    });
    run.Stratum("GetHeightOfEllipseArc", "sweeps of 1e-6 to 1e-2", OfSemiAxis, 200, [=](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, 1.0, 10.0, 0.0);
        measure(ellipse, 1e-6, 1e-2, draw, row);
    });
}

void MeasureTangents(Run& run, const EllipseSetting& setting)
{
    run.Stratum("GetTangentAngleOfEllipse", setting.name, "u of π", 200, [&](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, setting.size, setting.flatness, setting.offset);
        const DPOINT2 point = GetPointInEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, draw.Angle());
        const double told = GetTangentAngleOfEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, point);
        if (std::isnan(told) && setting.offset > 0.0)
        {
            return; // So far out the point is not near enough to the ellipse any more.
        }
        // The tangent of the level curve through the point, which is an ellipse of the same shape.
        const Conic conic(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation);
        const RealPoint gradient = conic.Gradient(point);
        const RealPoint own = conic.Own(point);
        const double normal = Norm(gradient).ToDouble();
        const double a = ellipse.a;
        const double b = ellipse.b;
        if (std::abs(own.y.ToDouble()) < 1e-9)
        {
            return; // The tangent there is told as upright.
        }
        // A point off by a rounding of `a` turns the gradient by the change of its lesser part.
        const double condition = 1.0 + a * 4.0 * (std::abs(own.x.ToDouble()) + std::abs(own.y.ToDouble())) /
                                           (a * a * b * b * normal * normal);
        row.AddRounding(CircularDistance(told, Atan2(-gradient.x, gradient.y), Pi()), Pi(), condition,
                        [=] { return ellipse.Describe() + Text("x", point.x, "y", point.y); });
    });
    run.Stratum("GetTangentPointOfEllipse", setting.name, OfCoordinate, 200, [&](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, setting.size, setting.flatness, setting.offset);
        const double radian = draw.Signed(6.0);
        DPOINT2 told[2];
        GetTangentPointOfEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, radian, &told[0], &told[1]);
        const Real turned = Real(radian) - ellipse.rotation;
        const Real a2 = Square(ellipse.a);
        const Real b2 = Square(ellipse.b);
        const Real support = Sqrt(a2 * Square(Sin(turned)) + b2 * Square(Cos(turned)));
        const Conic conic(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation);
        const RealPoint offset = Turned({a2 * Sin(turned) / support, -b2 * Cos(turned) / support}, conic.axis);
        if (Abs(Sin(2.0 * turned)) < 2e-9)
        {
            return; // Directions within 1e-9 of the axes are told as theirs.
        }
        // The radius of curvature is what an error of the direction is multiplied by.
        const double curvature = (a2 * b2 / (support * support * support)).ToDouble();
        const double condition = 1.0 + (std::abs(radian) + std::abs(ellipse.rotation)) * curvature / ellipse.Scale();
        const Real same = Distance(RealPoint(told[0]), conic.centre + offset);
        const Real other = Distance(RealPoint(told[0]), conic.centre - offset);
        const RealPoint second = same < other ? conic.centre - offset : conic.centre + offset;
        row.AddRounding(Max(Min(same, other), Distance(RealPoint(told[1]), second)), ellipse.Scale(), condition,
                        [=] { return ellipse.Describe() + Text("radian", radian); });
    });
}

/// Directions and points within the tolerance of an axis count as those of the axis.
void MeasureTangentsNextToTheAxes(Run& run)
{
    run.Stratum("GetTangentAngleOfEllipse", "within 1e-9 of a vertex", "1e-9 of a/b²", 100, [](Draw& draw, Row& row) {
        const EllipseInput ellipse(draw, 1.0, 10.0, 0.0);
        const double v = draw.Signed(0.9e-9);
        const double u = ellipse.a * std::sqrt(1.0 - v / ellipse.b * (v / ellipse.b));
        const DPOINT2 point(u * std::cos(ellipse.rotation) - v * std::sin(ellipse.rotation),
                            u * std::sin(ellipse.rotation) + v * std::cos(ellipse.rotation));
        const double told = GetTangentAngleOfEllipse({}, ellipse.a, ellipse.b, ellipse.rotation, point);
        const RealPoint gradient = Conic({}, ellipse.a, ellipse.b, ellipse.rotation).Gradient(point);
        row.Add(CircularDistance(told, Atan2(-gradient.x, gradient.y), Pi()),
                1e-9 * ellipse.a / (ellipse.b * ellipse.b), 1.0,
                [=] { return ellipse.Describe() + Text("x", point.x, "y", point.y); });
    });
    run.Stratum("GetTangentPointOfEllipse", "within 1e-9 of an axis", "1e-9 of the greatest radius of curvature", 100,
                [](Draw& draw, Row& row) {
                    const EllipseInput ellipse(draw, 1.0, 10.0, 0.0);
                    const double axis = ellipse.rotation + (draw.Coin() ? HalfPi : 0.0);
                    const double radian = axis + draw.Signed(0.9e-9);
                    DPOINT2 told;
                    GetTangentPointOfEllipse({}, ellipse.a, ellipse.b, ellipse.rotation, radian, &told, nullptr);
                    const Conic conic({}, ellipse.a, ellipse.b, ellipse.rotation);
                    const Real turned = Real(radian) - ellipse.rotation;
                    const Real along = conic.a * Sin(turned);
                    const Real across = conic.b * Cos(turned);
                    const Real support = Hypot(along, across);
                    const RealPoint own(conic.a * along / support, -conic.b * across / support);
                    const RealPoint truth = Turned(own, conic.axis);
                    row.Add(Min(Distance(RealPoint(told), truth), Distance(RealPoint(told), RealPoint() - truth)),
                            1e-9 * ellipse.a * ellipse.a / ellipse.b, 1.0,
                            [=] { return ellipse.Describe() + Text("radian", radian); });
                });
}

/// The axes of an ellipse under a linear map diag(factorX, factorY), from the matrix whose level curve the image is.
struct TrueAxes
{
    Real a;
    Real b;
    Real rotation; ///< of the greater axis, modulo π

    TrueAxes(const EllipseInput& ellipse, double factorX, double factorY)
    {
        const RealPoint axis = Direction(ellipse.rotation);
        // Columns: the images of both semi-axes. The matrix times its transpose has the squares of the new semi-axes
        // as eigenvalues.
        const RealPoint p = RealPoint(factorX * axis.x, factorY * axis.y) * ellipse.a;
        const RealPoint q = RealPoint(-factorX * axis.y, factorY * axis.x) * ellipse.b;
        const Real xx = p.x * p.x + q.x * q.x;
        const Real yy = p.y * p.y + q.y * q.y;
        const Real xy = p.x * p.y + q.x * q.y;
        const Real apart = Hypot(xx - yy, 2.0 * xy);
        a = Sqrt((xx + yy + apart) * 0.5);
        b = Abs(Cross(p, q)) / a;
        rotation = Modulo(Atan2(2.0 * xy, xx - yy) * 0.5, Pi());
    }
};

/// How near rotations are to the world axes, and factors to 1.
struct ScaleSetting
{
    const char* name;
    double leastTurn;
    double greatestTurn;
    double leastExcess;
    double greatestExcess;
};

constexpr ScaleSetting ScaleSettings[] = {
    {"turned by 0.1 and more, factors 1.1 to 10", 0.1, 0.7, 0.1, 9.0},
    {"turned by 1e-3 to 0.1", 1e-3, 0.1, 0.1, 9.0},
    {"turned by 2e-6 to 1e-3", 2e-6, 1e-3, 0.1, 9.0},
    {"factor 1e-6 to 1e-3 from 1", 0.1, 0.7, 1e-6, 1e-3},
};

void AddAxes(Row& axes, double a, double b, double rotation, const TrueAxes& truth, bool isRotation,
             const Row::Describe& describe)
{
    // With two factors the new a may be the lesser one.
    const bool isSwapped = a < b;
    const Real error = Max(Abs(Real(isSwapped ? b : a) - truth.a), Abs(Real(isSwapped ? a : b) - truth.b));
    if (!isRotation)
    {
        axes.AddRounding(error, truth.a, 1.0, describe);
        return;
    }
    // The direction of the axes of a circle is open: the less the axes differ, the less it is determined.
    const double condition = (Square(truth.a) / (Square(truth.a) - Square(truth.b))).ToDouble();
    const Real told = isSwapped ? Real(rotation) + Pi() * 0.5 : Real(rotation);
    axes.AddRounding(CircularDistance(told, truth.rotation, Pi()), Pi(), condition, describe);
}

void MeasureScaling(Run& run, const ScaleSetting& setting)
{
    const auto ellipseOf = [&](Draw& draw) {
        EllipseInput ellipse(draw, 1.0, 10.0, 0.0);
        ellipse.b = ellipse.a / draw.Between(1.2, 10.0);
        const double turn = draw.Magnitude(setting.leastTurn, setting.greatestTurn);
        ellipse.rotation = draw.Coin() ? turn : (draw.Coin() ? HalfPi - turn : HalfPi + turn);
        return ellipse;
    };
    const auto factorOf = [&](Draw& draw) {
        const double excess = draw.Magnitude(setting.leastExcess, setting.greatestExcess);
        return draw.Coin() ? 1.0 + excess : 1.0 / (1.0 + excess);
    };
    for (const bool isRotation : {false, true})
    {
        const char* unit = isRotation ? "u of π" : OfSemiAxis;
        run.Stratum(isRotation ? "ScaleEllipse, rotation" : "ScaleEllipse, semi-axes", setting.name, unit, 200,
                    [=](Draw& draw, Row& row) {
                        const EllipseInput ellipse = ellipseOf(draw);
                        const double factor = factorOf(draw);
                        EllipseInput told = ellipse;
                        ScaleEllipse(&told.a, &told.b, &told.rotation, factor);
                        AddAxes(row, told.a, told.b, told.rotation, TrueAxes(ellipse, factor, 1.0), isRotation,
                                [=] { return ellipse.Describe() + Text("factor", factor); });
                    });
        run.Stratum(isRotation ? "ScaleEllipse by two factors, rotation" : "ScaleEllipse by two factors, semi-axes",
                    setting.name, unit, 200, [=](Draw& draw, Row& row) {
                        const EllipseInput ellipse = ellipseOf(draw);
                        const double factorX = factorOf(draw);
                        const double factorY = factorOf(draw);
                        EllipseInput told = ellipse;
                        ScaleEllipse(&told.a, &told.b, &told.rotation, factorX, factorY);
                        AddAxes(row, told.a, told.b, told.rotation, TrueAxes(ellipse, factorX, factorY), isRotation,
                                [=] { return ellipse.Describe() + Text("factorX", factorX, "factorY", factorY); });
                    });
    }
}

struct ArcSetting
{
    const char* name;
    double leastBulge;
    double greatestBulge;
    double size;
    double offset;
};

constexpr ArcSetting ArcSettings[] = {
    {"bulge 0.1 to 10", 0.1, 10.0, 1.0, 0.0},
    {"bulge 1e-6 to 0.1", 1e-6, 0.1, 1.0, 0.0},
    {"bulge 10 to 1e6", 10.0, 1e6, 1.0, 0.0},
    {"bulge 0.1 to 10, size 1e6", 0.1, 10.0, 1e6, 0.0},
    {"bulge 0.1 to 10, size 1e-3", 0.1, 10.0, 1e-3, 0.0},
    {"bulge 0.1 to 10, 1e6 out", 0.1, 10.0, 1.0, 1e6},
};

void MeasureSolveArc(Run& run, const ArcSetting& setting)
{
    enum Result
    {
        Centre,
        Radius,
        Start,
        Sweep
    };
    const auto measure = [&](Result result, Draw& draw, Row& row) {
        const DPOINT2 place{draw.Signed(setting.offset), draw.Signed(setting.offset)};
        const DPOINT2 first{place.x + draw.Signed(setting.size), place.y + draw.Signed(setting.size)};
        const DPOINT2 second{place.x + draw.Signed(setting.size), place.y + draw.Signed(setting.size)};
        const double bulge = draw.SignedMagnitude(setting.leastBulge, setting.greatestBulge);
        const auto text = [=] {
            return Text("x1", first.x, "y1", first.y, "x2", second.x, "y2", second.y, "bulge", bulge);
        };
        DPOINT2 centre;
        double radius = 0.0;
        double start = 0.0;
        double sweep = 0.0;
        SolveArc(first, second, bulge, &centre, &radius, &start, &sweep);
        // All of it is rational in the bulge but for the angles.
        const RealPoint chord = RealPoint(second) - RealPoint(first);
        const Real b = bulge;
        const RealPoint trueCentre =
            (RealPoint(first) + RealPoint(second)) * 0.5 + RealPoint(-chord.y, chord.x) * ((1.0 - b * b) / (4.0 * b));
        const Real trueRadius = Norm(chord) * (1.0 + b * b) / (4.0 * Abs(b));
        // The radius is divided by the sine of half the sweep, which loses digits towards a whole turn.
        const double half = 2.0 * std::atan(std::abs(bulge));
        const double condition = 1.0 + std::abs(half / std::tan(half));
        const double scale = std::max(LargestCoordinate({first, second, centre}), trueRadius.ToDouble());
        switch (result)
        {
        case Centre:
            row.AddRounding(Distance(RealPoint(centre), trueCentre), scale, condition, text);
            break;
        case Radius:
            row.AddValue(radius, trueRadius, condition, text);
            break;
        case Start: {
            const RealPoint radial = RealPoint(first) - trueCentre;
            row.AddRounding(CircularDistance(start, Atan2(radial.y, radial.x), 2.0 * Pi()), 2.0 * Pi(),
                            condition * scale / trueRadius.ToDouble(), text);
            break;
        }
        case Sweep:
            row.AddValue(sweep, 4.0 * Atan(b), 1.0, text);
            break;
        }
    };
    const auto add = [&](const char* name, Result result, const char* unit) {
        run.Stratum(name, setting.name, unit, 150, [=](Draw& draw, Row& row) { measure(result, draw, row); });
    };
    add("SolveArc, centre", Centre, OfCircle);
    add("SolveArc, radius", Radius, OfResult);
    add("SolveArc, start", Start, OfTurn);
    add("SolveArc, sweep", Sweep, OfResult);
}

struct ThreePointSetting
{
    const char* name;
    double size;
    double offset;
    double leastSpread;    ///< of the three directions from the centre
    double greatestSpread; ///< likewise
};

constexpr ThreePointSetting ThreePointSettings[] = {
    {"size 1e-3", 1e-3, 0.0, 0.3, 2.0},
    {"size 1", 1.0, 0.0, 0.3, 2.0},
    {"size 1e6", 1e6, 0.0, 0.3, 2.0},
    {"size 1, 1e6 out", 1.0, 1e6, 0.3, 2.0},
    {"nearly on a line: 1e-5 to 1e-2", 1.0, 0.0, 1e-5, 1e-2},
};

void MeasureCircles(Run& run, const ThreePointSetting& setting)
{
    const auto measure = [&](bool isRadius, Draw& draw, Row& row) {
        const DPOINT2 place{draw.Signed(setting.offset), draw.Signed(setting.offset)};
        const double radius = draw.Between(0.2, 1.0) * setting.size;
        double radian = draw.Angle();
        DPOINT2 p[3];
        for (DPOINT2& point : p)
        {
            point = GetPointInCircle(place, radius, radian);
            radian += draw.Magnitude(setting.leastSpread, setting.greatestSpread);
        }
        // With p1 in the origin the centre solves two linear equations.
        const RealPoint u = RealPoint(p[1]) - RealPoint(p[0]);
        const RealPoint v = RealPoint(p[2]) - RealPoint(p[0]);
        const Real twice = 2.0 * Cross(u, v);
        const RealPoint toCentre((v.y * Dot(u, u) - u.y * Dot(v, v)) / twice,
                                 (u.x * Dot(v, v) - v.x * Dot(u, u)) / twice);
        // The bisectors cross at the angle of the two chords.
        const double sine = (Abs(Cross(u, v)) / (Norm(u) * Norm(v))).ToDouble();
        const auto text = [p1 = p[0], p2 = p[1], p3 = p[2]] {
            return Text("x1", p1.x, "y1", p1.y, "x2", p2.x, "y2", p2.y, "x3", p3.x, "y3", p3.y);
        };
        DPOINT2 centre;
        double told = 0.0;
        if (!CreateCircleFrom3Point(p[0], p[1], p[2], &centre, &told))
        {
            row.CountMissed(text);
            return;
        }
        const double scale = std::max(LargestCoordinate({p[0], p[1], p[2], centre}), told);
        row.AddRounding(isRadius ? Abs(Norm(toCentre) - told) : Distance(RealPoint(centre), RealPoint(p[0]) + toCentre),
                        scale, 1.0 / sine, text);
    };
    run.Stratum("CreateCircleFrom3Point, centre", setting.name, OfCircle, 200,
                [&](Draw& draw, Row& row) { measure(false, draw, row); });
    run.Stratum("CreateCircleFrom3Point, radius", setting.name, OfCircle, 200,
                [&](Draw& draw, Row& row) { measure(true, draw, row); });
}

/// The other circles of the kernel have a radius by one distance or one sum.
void MeasureCirclesOfTheKernel(Run& run)
{
    constexpr const char* all = "1e-3 to 1e6";
    const auto any = [](Draw& draw) {
        return gp_Pnt2d{draw.SignedMagnitude(1e-3, 1e6), draw.SignedMagnitude(1e-3, 1e6)};
    };
    run.Stratum("gce_MakeCirc2d, radius through a point", all, OfResult, 100, [=](Draw& draw, Row& row) {
        const gp_Pnt2d centre = any(draw);
        const gp_Pnt2d point = any(draw);
        const auto text = [=] { return Text("cx", centre.X(), "cy", centre.Y(), "x", point.X(), "y", point.Y()); };
        const Real truth = Hypot(Real(centre.X()) - point.X(), Real(centre.Y()) - point.Y());
        const gp_Circ2d circle = gce_MakeCirc2d(centre, point, true).Value();
        row.AddValue(circle.Radius(), truth, 1.0, text);
        const gp_Circ2d other(gp_Ax2d(centre, gp_Dir2d(1.0, 0.0)), 1.0);
        row.AddValue(gce_MakeCirc2d(other, point).Value().Radius(), truth, 1.0, text);
    });
    run.Stratum("gce_MakeCirc2d, radius at a distance", all, "u of the larger of radius and distance", 100,
                [=](Draw& draw, Row& row) {
                    const double radius = draw.Magnitude(1e-3, 1e6);
                    const double distance = draw.SignedMagnitude(1e-3, 1e6);
                    const gp_Circ2d circle(gp_Ax2d(any(draw), gp_Dir2d(1.0, 0.0)), radius);
                    const double told = gce_MakeCirc2d(circle, distance).Value().Radius();
                    row.AddRounding(Abs(told - Abs(Real(radius) + distance)), std::max(radius, std::abs(distance)), 1.0,
                                    [=] { return Text("radius", radius, "distance", distance); });
                });
}

} // namespace

void MeasureConstructions(Run& run)
{
    for (const EllipseSetting& setting : EllipseSettings)
    {
        MeasurePointsOnCurves(run, setting);
        MeasureTangents(run, setting);
    }
    MeasurePointsAtQuarterTurns(run);
    MeasureTangentsNextToTheAxes(run);
    MeasureHeights(run);
    for (const ScaleSetting& setting : ScaleSettings)
    {
        MeasureScaling(run, setting);
    }
    for (const ArcSetting& setting : ArcSettings)
    {
        MeasureSolveArc(run, setting);
    }
    for (const ThreePointSetting& setting : ThreePointSettings)
    {
        MeasureCircles(run, setting);
    }
    MeasureCirclesOfTheKernel(run);
}

} // namespace math::accuracy
