#include "Cases.h"
#include "TrueCurves.h"
#include "math/CPolyline.h"
#include "math/CSegment.h"

#include <algorithm>
#include <cmath>

namespace math::accuracy
{

namespace
{

constexpr const char* OfEnds = "u of the largest coordinate of the ends";

// Arcs and lines

struct Setting
{
    const char* name;
    double leastBulge; ///< 0 for a line
    double greatestBulge;
    double size;
    double offset;
};

constexpr Setting Settings[] = {
    {"line, size 1", 0.0, 0.0, 1.0, 0.0},
    {"line, size 1, 1e6 out", 0.0, 0.0, 1.0, 1e6},
    {"arc, bulge 0.1 to 10", 0.1, 10.0, 1.0, 0.0},
    {"arc, bulge 1e-4 to 0.1", 1e-4, 0.1, 1.0, 0.0},
    {"arc, bulge 2e-9 to 1e-4", 2e-9, 1e-4, 1.0, 0.0},
    {"arc, bulge 10 to 1e4", 10.0, 1e4, 1.0, 0.0},
    {"arc, bulge 0.1 to 10, size 1e6", 0.1, 10.0, 1e6, 0.0},
    {"arc, bulge 0.1 to 10, size 1e-3", 0.1, 10.0, 1e-3, 0.0},
    {"arc, bulge 0.1 to 10, 1e6 out", 0.1, 10.0, 1.0, 1e6},
};

/// A line or an arc, and the same in high precision.
struct Piece
{
    CSegment segment;
    RealPoint first;
    RealPoint chord;
    Real bulge;
    RealPoint centre; ///< of an arc
    Real radius;      ///< of an arc
    Real sweep;       ///< of an arc, signed

    Piece(Draw& draw, const Setting& setting)
    {
        const DPOINT2 place{draw.Signed(setting.offset), draw.Signed(setting.offset)};
        const auto near = [&] {
            return DPOINT2{place.x + draw.Signed(setting.size), place.y + draw.Signed(setting.size)};
        };
        const DPOINT2 from = near();
        const DPOINT2 to = near();
        if (setting.leastBulge == 0.0)
        {
            Take(CSegment(from, to));
        }
        else
        {
            Take(CSegment(from, to, draw.SignedMagnitude(setting.leastBulge, setting.greatestBulge)));
        }
    }

    explicit Piece(const CSegment& of)
    {
        Take(of);
    }

    void Take(const CSegment& of)
    {
        segment = of;
        first = RealPoint(of.start);
        chord = RealPoint(of.end) - first;
        bulge = of.bulge;
        if (IsArc())
        {
            // Rational in the bulge: no angle is needed for the circle.
            centre = first + chord * 0.5 + RealPoint(-chord.y, chord.x) * ((1.0 - bulge * bulge) / (4.0 * bulge));
            radius = Norm(chord) * (1.0 + bulge * bulge) / (4.0 * Abs(bulge));
            sweep = 4.0 * Atan(bulge);
        }
    }

    bool IsArc() const
    {
        return segment.type == SegmentArc;
    }

    RealPoint At(const Real& t) const
    {
        return IsArc() ? centre + Turned(first - centre, Direction(sweep * t)) : first + chord * t;
    }

    RealPoint TangentAt(const Real& t) const
    {
        if (!IsArc())
        {
            return chord * (1.0 / Norm(chord));
        }
        const RealPoint radial = At(t) - centre;
        const Real factor = Real(bulge.Sign() < 0 ? -1.0 : 1.0) / radius;
        return {-radial.y * factor, radial.x * factor};
    }

    double Scale() const
    {
        return LargestCoordinate({segment.start, segment.end});
    }

    /// How much more is lost than on a line: positions are counted from a centre as far as the radius, which is divided
    /// by the sine of half the sweep and loses digits towards a whole turn.
    double Condition() const
    {
        if (!IsArc())
        {
            return 1.0;
        }
        const double half = std::abs(sweep.ToDouble()) * 0.5;
        return (1.0 + std::abs(half / std::tan(half))) * Reach() / Scale();
    }

    double Reach() const
    {
        return IsArc() ? std::max(Scale(), radius.ToDouble()) : Scale();
    }

    Real Length() const
    {
        return IsArc() ? Abs(sweep) * radius : Norm(chord);
    }

    /// Between arc and chord, positive for a counter-clockwise arc: sector less triangle, through the series of
    /// sweep - sin(sweep) in high precision.
    Real SegmentArea() const
    {
        return IsArc() ? radius * radius * (sweep - Sin(sweep)) * 0.5 : Real(0.0);
    }

    std::string Describe() const
    {
        return Text("x1", segment.start.x, "y1", segment.start.y, "x2", segment.end.x, "y2", segment.end.y, "bulge",
                    IsArc() ? segment.bulge : 0.0);
    }
};

/// The box of some pieces: that of their ends and of the axis points of the circles that arcs reach.
struct TrueBox
{
    Real left = 1e300;
    Real right = -1e300;
    Real low = 1e300;
    Real high = -1e300;

    explicit TrueBox(const std::vector<Piece>& pieces)
    {
        for (const Piece& piece : pieces)
        {
            Add(piece.first);
            Add(RealPoint(piece.segment.end));
            for (int i = 0; piece.IsArc() && i < 4; ++i)
            {
                const RealPoint axis(i % 2 == 0 ? 1.0 - i : 0.0, i % 2 == 1 ? 2.0 - i : 0.0);
                const RealPoint from = piece.first - piece.centre;
                const Real angle = Atan2(Cross(from, axis), Dot(from, axis)) * (piece.sweep.Sign() < 0 ? -1.0 : 1.0);
                if (Modulo(angle, 2.0 * Pi()) < Abs(piece.sweep))
                {
                    Add(piece.centre + axis * piece.radius);
                }
            }
        }
    }

    void Add(const RealPoint& place)
    {
        left = Min(left, place.x);
        right = Max(right, place.x);
        low = Min(low, place.y);
        high = Max(high, place.y);
    }

    /// How far the sides of a computed box are off, at most.
    Real Worst(const DRECT& box) const
    {
        return Max(Max(Abs(box.x - left), Abs(box.y - low)),
                   Max(Abs(box.x + Real(box.width) - right), Abs(box.y + Real(box.height) - high)));
    }
};

/// The nearest point and its parameter; clamped at the ends.
struct TrueNearest
{
    RealPoint point;
    Real t;
    double toBorder = 1.0; ///< distance of the parameter from where the nearer end takes over, in radians or length

    TrueNearest(const Piece& piece, const DPOINT2& p)
    {
        const RealPoint query(p);
        if (!piece.IsArc())
        {
            t = Dot(query - piece.first, piece.chord) / Dot(piece.chord, piece.chord);
            t = Max(0.0, Min(1.0, t));
            point = piece.At(t);
            return;
        }
        const RealPoint from = piece.first - piece.centre;
        const RealPoint to = query - piece.centre;
        const Real sign = piece.sweep.Sign() < 0 ? -1.0 : 1.0;
        const Real turned = Modulo(Atan2(Cross(from, to), Dot(from, to)) * sign, 2.0 * Pi());
        const Real extent = Abs(piece.sweep);
        toBorder = Min(Min(turned, 2.0 * Pi() - turned), Abs(turned - extent)).ToDouble();
        if (turned <= extent)
        {
            t = turned / extent;
            point = piece.centre + to * (piece.radius / Norm(to));
            return;
        }
        t = Distance(query, RealPoint(piece.segment.end)) <= Distance(query, piece.first) ? 1.0 : 0.0;
        point = t.Sign() == 0 ? piece.first : RealPoint(piece.segment.end);
    }
};

void MeasureEvaluation(Run& run, const Setting& setting)
{
    run.Stratum("CSegment::GetPoint", setting.name, OfEnds, 150, [&](Draw& draw, Row& row) {
        const Piece piece(draw, setting);
        const double t = draw.Between(-0.2, 1.2);
        row.AddRounding(Distance(RealPoint(piece.segment.GetPoint(t)), piece.At(t)), piece.Scale(), piece.Condition(),
                        [=] { return piece.Describe() + Text("t", t); });
    });
    // Start, middle and end; at the end of a line the vector points back.
    const char* names[] = {"CSegment::GetStartVector", "CSegment::GetMidVector", "CSegment::GetEndVector"};
    for (int which = 0; which < 3; ++which)
    {
        run.Stratum(names[which], setting.name, "u of 1", 100, [=](Draw& draw, Row& row) {
            const Piece piece(draw, setting);
            double t = which == 1 ? draw.Unit() : which * 0.5;
            const RealPoint told(which == 0   ? piece.segment.GetStartVector()
                                 : which == 1 ? piece.segment.GetMidVector(t)
                                              : piece.segment.GetEndVector());
            const Real sign = which == 2 && !piece.IsArc() ? -1.0 : 1.0;
            // A radial vector is as inexact as the place of its ends, and as long as the radius.
            const double condition = piece.IsArc() ? piece.Condition() * piece.Scale() / piece.radius.ToDouble() : 1.0;
            row.AddRounding(Distance(told, piece.TangentAt(t) * sign), 1.0, condition,
                            [=] { return piece.Describe() + Text("t", t); });
        });
    }
    run.Stratum("CSegment::GetAngle", setting.name, "u of 2π", 150, [&](Draw& draw, Row& row) {
        const Piece piece(draw, setting);
        const double t = draw.Unit();
        const RealPoint tangent = piece.TangentAt(t);
        const double condition = piece.IsArc() ? piece.Condition() * piece.Scale() / piece.radius.ToDouble() : 1.0;
        row.AddRounding(CircularDistance(piece.segment.GetAngle(t), Atan2(tangent.y, tangent.x), 2.0 * Pi()),
                        2.0 * Pi(), condition, [=] { return piece.Describe() + Text("t", t); });
    });
    run.Stratum("CSegment::GetLength", setting.name, OfResult, 150, [&](Draw& draw, Row& row) {
        const Piece piece(draw, setting);
        const double half = std::abs(piece.sweep.ToDouble()) * 0.5;
        const double condition = piece.IsArc() ? 1.0 + std::abs(half / std::tan(half)) : 1.0;
        row.AddValue(piece.segment.GetLength(), piece.Length(), condition, [=] { return piece.Describe(); });
    });
}

void MeasureQueries(Run& run, const Setting& setting)
{
    for (const bool isParameter : {false, true})
    {
        run.Stratum(
            isParameter ? "CSegment::GetNearestPoint, parameter" : "CSegment::GetNearestPoint", setting.name,
            isParameter ? "u of 1" : OfEnds, 150, [=](Draw& draw, Row& row) {
                const Piece piece(draw, setting);
                const RealPoint near = piece.At(draw.Between(-0.1, 1.1));
                const DPOINT2 p{near.x.ToDouble() + draw.Signed(setting.size),
                                near.y.ToDouble() + draw.Signed(setting.size)};
                double t = 0.0;
                const RealPoint told(piece.segment.GetNearestPoint(p, t));
                const TrueNearest truth(piece, p);
                double condition = piece.Condition();
                if (piece.IsArc())
                {
                    // The ray turns by what its two ends are off.
                    condition *= 1.0 + (piece.radius / Distance(RealPoint(p), piece.centre)).ToDouble();
                    const double lost = 50.0 * condition * piece.Scale() * RoundingUnit / piece.radius.ToDouble();
                    if (truth.toBorder < 1e-8 + lost)
                    {
                        return; // Within the tolerance of the ends, or of rounding, either side may take over.
                    }
                }
                const auto text = [=] { return piece.Describe() + Text("px", p.x, "py", p.y); };
                const Real length = piece.Length();
                if (isParameter)
                {
                    const double ofLength = 1.0 + condition * piece.Scale() / length.ToDouble();
                    row.AddRounding(Abs(truth.t - t), 1.0, ofLength, text);
                }
                else
                {
                    const double reach =
                        piece.IsArc() ? 1.0 : 1.0 + Distance(RealPoint(p), piece.first).ToDouble() / piece.Scale();
                    row.AddRounding(Distance(told, truth.point), piece.Scale(), condition * reach, text);
                }
            });
    }
    run.Stratum("CSegment::GetBoundRect", setting.name, OfEnds, 150, [&](Draw& draw, Row& row) {
        const Piece piece(draw, setting);
        row.AddRounding(TrueBox({piece}).Worst(piece.segment.GetBoundRect()), piece.Scale(), piece.Condition(),
                        [=] { return piece.Describe(); });
    });
    run.Stratum("CSegment::GetSplitSegment, ends", setting.name, OfEnds, 150, [&](Draw& draw, Row& row) {
        const Piece piece(draw, setting);
        const double from = draw.Unit();
        const double to = draw.Unit();
        const CSegment cut = CSegment(piece.segment).GetSplitSegment(from, to);
        row.AddRounding(Max(Distance(RealPoint(cut.start), piece.At(from)), Distance(RealPoint(cut.end), piece.At(to))),
                        piece.Scale(), piece.Condition(),
                        [=] { return piece.Describe() + Text("from", from, "to", to); });
    });
    if (setting.leastBulge == 0.0)
    {
        return;
    }
    run.Stratum("CSegment::GetSplitSegment, bulge", setting.name, OfResult, 150, [&](Draw& draw, Row& row) {
        const Piece piece(draw, setting);
        const double from = draw.Unit();
        const double to = draw.Unit();
        const CSegment cut = CSegment(piece.segment).GetSplitSegment(from, to);
        const Real quarter = Atan(piece.bulge) * (Real(to) - Real(from));
        // The relative error of a tangent for that of its argument.
        const double condition = std::max(1.0, Abs(2.0 * quarter / Sin(2.0 * quarter)).ToDouble());
        row.AddValue(cut.bulge, Tan(quarter), condition,
                     [=] { return piece.Describe() + Text("from", from, "to", to); });
    });
}

/// An arc so flat that it counts as its chord.
void MeasureChords(Run& run)
{
    run.Stratum("CSegment::GetPoint", "arc, bulge below 1e-9", "1e-9 of half the chord", 100, [](Draw& draw, Row& row) {
        const Piece piece(draw, {"", 1e-12, 0.99e-9, 1.0, 0.0});
        const double t = draw.Unit();
        row.Add(Distance(RealPoint(piece.segment.GetPoint(t)), piece.At(t)),
                1e-9 * Norm(piece.chord) * 0.5 + 4.0 * RoundingUnit, 1.0,
                [=] { return piece.Describe() + Text("t", t); });
    });
}

// Bezier curves

struct Bezier
{
    DPOINT2 p[4];

    explicit Bezier(Draw& draw, double offset)
    {
        const DPOINT2 place{draw.Signed(offset), draw.Signed(offset)};
        for (DPOINT2& point : p)
        {
            point = {place.x + draw.Signed(1.0), place.y + draw.Signed(1.0)};
        }
    }

    CSegment Segment() const
    {
        return {p[0], p[1], p[2], p[3]};
    }

    /// De Casteljau's construction.
    RealPoint At(const Real& t) const
    {
        RealPoint level[4] = {p[0], p[1], p[2], p[3]};
        for (int count = 3; count > 0; --count)
        {
            for (int i = 0; i < count; ++i)
            {
                level[i] = level[i] + (level[i + 1] - level[i]) * t;
            }
        }
        return level[0];
    }

    /// Three times the quadratic curve of the differences.
    RealPoint DerivativeAt(const Real& t) const
    {
        const Real s = 1.0 - t;
        RealPoint sum;
        const Real weights[3] = {3.0 * s * s, 6.0 * s * t, 3.0 * t * t};
        for (int i = 0; i < 3; ++i)
        {
            sum = sum + (RealPoint(p[i + 1]) - RealPoint(p[i])) * weights[i];
        }
        return sum;
    }

    double LargestSecondDerivative() const
    {
        // It is linear, so one end has the largest.
        const auto at = [&](int i) {
            return std::hypot(p[i].x - 2.0 * p[i + 1].x + p[i + 2].x, p[i].y - 2.0 * p[i + 1].y + p[i + 2].y);
        };
        return 6.0 * std::max(at(0), at(1));
    }

    double LargestSpeed() const
    {
        double largest = 0.0;
        for (int i = 0; i < 3; ++i)
        {
            largest = std::max(largest, 3.0 * std::hypot(p[i + 1].x - p[i].x, p[i + 1].y - p[i].y));
        }
        return largest;
    }

    /// The speed summed by Gauss's rule of two points over 400 steps, whose error is far below that of the library's
    /// rule of 1000 rectangles.
    Real Length() const
    {
        constexpr int steps = 400;
        const Real apart = 0.5 / Sqrt(3.0);
        Real sum = 0.0;
        for (int i = 0; i < steps; ++i)
        {
            sum += Norm(DerivativeAt((i + 0.5 - apart) / steps)) + Norm(DerivativeAt((i + 0.5 + apart) / steps));
        }
        return sum / (2.0 * steps);
    }

    std::string Describe() const
    {
        return Text("x0", p[0].x, "y0", p[0].y, "x1", p[1].x, "y1", p[1].y, "x2", p[2].x, "y2", p[2].y, "x3", p[3].x,
                    "y3", p[3].y);
    }
};

/// Least and greatest of one coordinate, by the roots of its derivative.
std::pair<Real, Real> Range(const Bezier& bezier, double DPOINT2::*coordinate)
{
    const auto at = [&](int i) { return Real(bezier.p[i].*coordinate); };
    const Real d0 = at(1) - at(0);
    const Real d1 = at(2) - at(1);
    const Real d2 = at(3) - at(2);
    Real least = Min(at(0), at(3));
    Real greatest = Max(at(0), at(3));
    for (const Real& root : RealRoots({d0, 2.0 * (d1 - d0), d0 - 2.0 * d1 + d2}))
    {
        if (root.Sign() > 0 && root < 1.0)
        {
            const RealPoint point = bezier.At(root);
            const Real& value = coordinate == &DPOINT2::x ? point.x : point.y;
            least = Min(least, value);
            greatest = Max(greatest, value);
        }
    }
    return {least, greatest};
}

void MeasureBezier(Run& run)
{
    for (const double offset : {0.0, 1e6})
    {
        const char* stratum = offset == 0.0 ? "Bezier, size 1" : "Bezier, size 1, 1e6 out";
        run.Stratum("CSegment::GetPoint", stratum, OfEnds, 150, [=](Draw& draw, Row& row) {
            const Bezier bezier(draw, offset);
            const double t = draw.Unit();
            row.AddRounding(Distance(RealPoint(bezier.Segment().GetPoint(t)), bezier.At(t)),
                            LargestCoordinate({bezier.p[0], bezier.p[1], bezier.p[2], bezier.p[3]}), 1.0,
                            [=] { return bezier.Describe() + Text("t", t); });
        });
    }
    run.Stratum("CSegment::GetAngle", "Bezier, size 1", "u of 2π", 150, [](Draw& draw, Row& row) {
        const Bezier bezier(draw, 0.0);
        const double t = draw.Unit();
        const RealPoint tangent = bezier.DerivativeAt(t);
        const double told = bezier.Segment().GetAngle(t);
        // The inverse cosine of the slope loses digits where the tangent is level.
        const double sine = (Abs(tangent.y) / Norm(tangent)).ToDouble();
        const double slow = bezier.LargestSpeed() / Norm(tangent).ToDouble();
        row.AddRounding(CircularDistance(told, Atan2(tangent.y, tangent.x), 2.0 * Pi()), 2.0 * Pi(),
                        slow + 1.0 / std::max(sine, std::sqrt(RoundingUnit)),
                        [=] { return bezier.Describe() + Text("t", t); });
    });
    run.Stratum("CSegment::GetLength", "Bezier, size 1", "1e-3 of the greatest speed", 40, [](Draw& draw, Row& row) {
        const Bezier bezier(draw, 0.0);
        row.Add(Abs(bezier.Segment().GetLength() - bezier.Length()), 1e-3 * bezier.LargestSpeed(), 1.0,
                [=] { return bezier.Describe(); });
    });
    run.Stratum(
        "CSegment::GetBoundRect", "Bezier, size 1", "1e-6 / 8 of the second derivative", 40, [](Draw& draw, Row& row) {
            const Bezier bezier(draw, 0.0);
            const DRECT box = bezier.Segment().GetBoundRect();
            const auto [left, right] = Range(bezier, &DPOINT2::x);
            const auto [low, high] = Range(bezier, &DPOINT2::y);
            const Real worst = Max(Max(Abs(box.x - left), Abs(box.y - low)),
                                   Max(Abs(box.x + Real(box.width) - right), Abs(box.y + Real(box.height) - high)));
            row.Add(worst, 1e-6 / 8.0 * bezier.LargestSecondDerivative(), 1.0, [=] { return bezier.Describe(); });
        });
}

// Outlines

struct OutlineSetting
{
    const char* name;
    int segments;
    double bulge; ///< least of arcs, up to 10 times that; 0 for lines alone
    double size;
    double offset;
};

constexpr OutlineSetting OutlineSettings[] = {
    {"lines, size 1", 12, 0.0, 1.0, 0.0},
    {"lines and arcs, size 1", 12, 0.1, 1.0, 0.0},
    {"lines and arcs, size 1e6", 12, 0.1, 1e6, 0.0},
    {"lines and arcs, size 1, 1e3 out", 12, 0.1, 1.0, 1e3},
    {"flat arcs: bulge 1e-6 to 1e-5", 12, 1e-6, 1.0, 0.0},
};

struct Outline
{
    CPolyline polyline;
    std::vector<Piece> pieces;

    Outline(Draw& draw, const OutlineSetting& setting)
    {
        const DPOINT2 place{draw.Signed(setting.offset), draw.Signed(setting.offset)};
        polyline.start = {place.x + setting.size, place.y};
        for (int i = 1; i <= setting.segments; ++i)
        {
            const double radian = 6.283185307179586 * i / setting.segments;
            const double radius = draw.Between(0.3, 1.0) * setting.size;
            const double bulge =
                setting.bulge > 0.0 && draw.Coin() ? draw.SignedMagnitude(setting.bulge, 10.0 * setting.bulge) : 0.0;
            polyline.AddNodes(i == setting.segments
                                  ? polyline.start
                                  : DPOINT2(place.x + radius * std::cos(radian), place.y + radius * std::sin(radian)),
                              bulge);
        }
        for (std::size_t i = 0; i < polyline.nodes.size(); ++i)
        {
            pieces.emplace_back(polyline.GetSegment(i));
        }
    }

    std::string Describe() const
    {
        std::string text = Text("x", polyline.start.x, "y", polyline.start.y);
        for (const CPolyline::NODE& node : polyline.nodes)
        {
            text += Text("x", node.point.x, "y", node.point.y, "bulge", node.bulge);
        }
        return text;
    }
};

void MeasureOutlines(Run& run, const OutlineSetting& setting)
{
    run.Stratum("CPolyline::GetLength", setting.name, OfResult, 40, [&](Draw& draw, Row& row) {
        const Outline outline(draw, setting);
        const auto count = static_cast<double>(outline.pieces.size());
        const double from = draw.Between(0.0, count - 1.0);
        const double to = draw.Between(from + 0.5, count);
        Real truth = 0.0;
        for (std::size_t i = 0; i < outline.pieces.size(); ++i)
        {
            const auto low = static_cast<double>(i);
            const Real share = Min(low + 1.0, to) - Max(low, from);
            truth += share.Sign() > 0 ? share * outline.pieces[i].Length() : Real(0.0);
        }
        row.AddValue(outline.polyline.GetLength(from, to), truth, 1.0,
                     [=] { return outline.Describe() + Text("from", from, "to", to); });
    });
    run.Stratum("CPolyline::GetArea", setting.name, OfResult, 40, [&](Draw& draw, Row& row) {
        const Outline outline(draw, setting);
        // By cross products from the outline's first point, which is not the library's trapezoid rule.
        Real truth = 0.0;
        double terms = 0.0;
        for (const Piece& piece : outline.pieces)
        {
            truth -= Cross(piece.first - outline.pieces[0].first, piece.chord) * 0.5 + piece.SegmentArea();
            const double length = Norm(piece.chord).ToDouble();
            terms += length * piece.Scale();
            // Sector and triangle of a flat arc are far larger than what is left between them.
            terms += piece.IsArc()
                         ? length * length * (1.0 / std::abs(piece.bulge.ToDouble()) + std::abs(piece.bulge.ToDouble()))
                         : 0.0;
        }
        row.AddValue(outline.polyline.GetArea(), truth, 1.0 + terms / std::abs(truth.ToDouble()),
                     [=] { return outline.Describe(); });
    });
    run.Stratum("CPolyline::GetRECT", setting.name, OfCoordinate, 40, [&](Draw& draw, Row& row) {
        const Outline outline(draw, setting);
        double condition = 1.0;
        double scale = 0.0;
        for (const Piece& piece : outline.pieces)
        {
            condition = std::max(condition, piece.Condition());
            scale = std::max(scale, piece.Scale());
        }
        row.AddRounding(TrueBox(outline.pieces).Worst(outline.polyline.GetRECT()), scale, condition,
                        [=] { return outline.Describe(); });
    });
}

// Boxes as records

void MeasureBoxes(Run& run)
{
    constexpr const char* all = "1e-3 to 1e6";
    run.Stratum("RealRectD::CreateRealRectD of an arc", all, OfCoordinate, 100, [=](Draw& draw, Row& row) {
        const ArcD arc{draw.SignedMagnitude(1e-3, 1e6), draw.SignedMagnitude(1e-3, 1e6), draw.Magnitude(1e-3, 1e6),
                       draw.Unit()};
        const RealRectD box = RealRectD::CreateRealRectD(&arc);
        const Real worst =
            Max(Max(Abs(Real(arc.cx) - arc.radius - box.minX), Abs(Real(arc.cx) + arc.radius - box.maxX)),
                Max(Abs(Real(arc.cy) - arc.radius - box.minY), Abs(Real(arc.cy) + arc.radius - box.maxY)));
        row.AddRounding(worst, LargestCoordinate({{box.minX, box.minY}, {box.maxX, box.maxY}}), 1.0,
                        [=] { return Text("cx", arc.cx, "cy", arc.cy, "radius", arc.radius); });
    });
    run.Stratum("DRECT::Union", all, OfCoordinate, 100, [=](Draw& draw, Row& row) {
        const auto any = [&] {
            return DRECT{draw.SignedMagnitude(1e-3, 1e6), draw.SignedMagnitude(1e-3, 1e6), draw.Magnitude(1e-3, 1e6),
                         draw.Magnitude(1e-3, 1e6)};
        };
        const DRECT a = any();
        const DRECT b = any();
        DRECT box;
        box.Union(a, b);
        const Real left = std::min(a.x, b.x);
        const Real low = std::min(a.y, b.y);
        const Real right = Max(Real(a.x) + a.width, Real(b.x) + b.width);
        const Real high = Max(Real(a.y) + a.height, Real(b.y) + b.height);
        const Real worst = Max(Max(Abs(left - box.x), Abs(low - box.y)),
                               Max(Abs(right - left - box.width), Abs(high - low - box.height)));
        row.AddRounding(worst, Max(Max(Abs(left), Abs(low)), Max(Abs(right), Abs(high))), 1.0, [=] {
            return Text("ax", a.x, "ay", a.y, "aw", a.width, "ah", a.height, "bx", b.x, "by", b.y, "bw", b.width, "bh",
                        b.height);
        });
    });
}

} // namespace

void MeasureSegments(Run& run)
{
    for (const Setting& setting : Settings)
    {
        MeasureEvaluation(run, setting);
        MeasureQueries(run, setting);
    }
    MeasureChords(run);
    MeasureBezier(run);
    MeasureBoxes(run);
    for (const OutlineSetting& setting : OutlineSettings)
    {
        MeasureOutlines(run, setting);
    }
}

} // namespace math::accuracy
