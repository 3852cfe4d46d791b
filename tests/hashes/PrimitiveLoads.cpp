#include "Curves.h"
#include "Load.h"

#include <limits>

#include <gp_Vec2d.hxx>

namespace math::hashes
{

namespace
{

template <typename Integer>
Integer AnyInteger(Source& source)
{
    using Limits = std::numeric_limits<Integer>;
    switch (source.Below(6))
    {
    case 0:
        return static_cast<Integer>(source.Between(-12, 12));
    case 1: {
        const int factor = source.Between(1, 60);
        return static_cast<Integer>(factor * source.Between(1, 60));
    }
    case 2: {
        constexpr Integer extremes[] = {Limits::min(), Limits::min() + 1, Limits::max(), Limits::max() - 1, 0, -1};
        return extremes[source.Below(6)];
    }
    case 3:
        return static_cast<Integer>(-360 * source.Between(0, 1000));
    default:
        // The sign bit is shifted in.
        const auto bits = static_cast<std::int64_t>(source.Bits());
        return static_cast<Integer>(bits >> source.Below(60));
    }
}

template <double Convert(double)>
void OfRadians(Source& source, ResultHash& hash)
{
    hash << Convert(source.Angle());
}

template <double Convert(double)>
void OfDegrees(Source& source, ResultHash& hash)
{
    hash << Convert(source.Degrees());
}

template <void Change(double&)>
void InPlace(Source& source, ResultHash& hash)
{
    double angle = source.Coin() ? source.Degrees() : source.Angle();
    Change(angle);
    hash << angle;
}

template <double Measure(const gp_Vec2d&, const gp_Vec2d&)>
void OfVectors(Source& source, ResultHash& hash)
{
    const DPOINT2 a = source.Point();
    const DPOINT2 b = source.OneIn(4) ? source.Around({0.0, 0.0}, source.Length()) : source.Point();
    const DPOINT2 second = source.OneIn(6) ? source.Near(a) : b;
    hash << Measure(gp_Vec2d(a.x, a.y), gp_Vec2d(second.x, second.y));
}

LineD2D LineBy(Source& source)
{
    const Stretch stretch = RandomStretch(source);
    return {stretch.a.x, stretch.a.y, stretch.b.x, stretch.b.y};
}

template <DPOINT2 Transform(const DPOINT2&, const DPOINT2&, double)>
void OfFrame(Source& source, ResultHash& hash)
{
    const DPOINT2 point = source.Point();
    const DPOINT2 origin = source.Point();
    hash << Transform(point, origin, source.Angle());
}

void RunMinDistanceToArc(Source& source, ResultHash& hash)
{
    const DPOINT2 centre = source.Point();
    const double radius = source.Length();
    const DPOINT2 start = source.Near(source.Around(centre, radius));
    const DPOINT2 end = source.Around(centre, radius);
    const DPOINT2 point = source.OneIn(8) ? source.Near(centre) : source.Point();
    hash << MinDistanceToArc(point, centre, start, end, radius, source.Sweep());
}

void RunTangentAngle(Source& source, ResultHash& hash)
{
    EllipseArc ellipse = RandomEllipseArc(source);
    if (source.Coin())
    {
        ellipse.rotation = 0.0;
    }
    const DPOINT2 point = PointBy(source, ellipse);
    hash << GetTangentAngleOfEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, point);
}

void RunScaleEllipse(Source& source, ResultHash& hash, bool isAlongBoth)
{
    const EllipseArc ellipse = RandomEllipseArc(source);
    double a = ellipse.a;
    double b = ellipse.b;
    double rotation = source.OneIn(3) ? source.Even(0.0, Pi) : ellipse.rotation;
    const double factor = source.OneIn(8) ? source.Near(1.0) : source.Number();
    const double factorY = source.OneIn(8) ? source.Near(-1.0) : source.Number();
    hash << (isAlongBoth ? ScaleEllipse(&a, &b, &rotation, factor, factorY) : ScaleEllipse(&a, &b, &rotation, factor));
    hash << a << b << rotation;
}

void RunSolveArc(Source& source, ResultHash& hash)
{
    DPOINT2 centre = Untouched();
    double radius = UntouchedNumber;
    double start = UntouchedNumber;
    double sweep = UntouchedNumber;
    const Stretch chord = RandomStretch(source);
    const double bulge = source.OneIn(4) ? source.Near(source.Between(-2, 2)) : source.Number();
    DPOINT2* const toCentre = OrNull(source, centre);
    double* const toRadius = OrNull(source, radius);
    double* const toStart = OrNull(source, start);
    double* const toSweep = OrNull(source, sweep);
    hash << SolveArc(chord.a, chord.b, bulge, toCentre, toRadius, toStart, toSweep) << centre << radius << start
         << sweep;
}

void RunCircleFrom3Point(Source& source, ResultHash& hash)
{
    DPOINT2 centre = Untouched();
    double radius = UntouchedNumber;
    const Arc circle = RandomArc(source);
    const DPOINT2 p1 = PointBy(source, circle);
    const DPOINT2 p2 = source.OneIn(6) ? source.Near(p1) : PointBy(source, circle);
    const DPOINT2 p3 = source.OneIn(6) ? source.Near(source.Coin() ? p1 : p2) : PointBy(source, circle);
    DPOINT2* const toCentre = OrNull(source, centre);
    hash << CreateCircleFrom3Point(p1, p2, p3, toCentre, OrNull(source, radius)) << centre << radius;
}

} // namespace

const std::vector<Load> PrimitiveLoads = {
    {"DRECT::Union(DRECT const&, DRECT const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const DRECT a{source.Number(), source.Number(), source.Length(), source.Length()};
         DRECT b{source.Number(), source.Number(), source.Length(), source.Length()};
         DRECT whole;
         hash << whole.Union(a, b) << whole << b.Union(a, b) << b;
     }},
    {"RealRectD::CreateRealRectD(LineD2D const*)", Cheap,
     [](Source& source, ResultHash& hash) {
         const LineD2D line = LineBy(source);
         hash << RealRectD::CreateRealRectD(&line);
     }},
    {"RealRectD::CreateRealRectD(ArcD const*)", Cheap,
     [](Source& source, ResultHash& hash) {
         const ArcD arc{source.Number(), source.Number(), source.Number(), source.Angle()};
         hash << RealRectD::CreateRealRectD(&arc);
     }},
    {"GetGreatestCommonDivisor(int, int)", Cheap,
     [](Source& source, ResultHash& hash) {
         const int a = AnyInteger<int>(source);
         hash << GetGreatestCommonDivisor(a, AnyInteger<int>(source));
     }},
    {"GetGreatestCommonDivisorInt64(long, long)", Cheap,
     [](Source& source, ResultHash& hash) {
         const std::int64_t a = AnyInteger<std::int64_t>(source);
         hash << GetGreatestCommonDivisorInt64(a, AnyInteger<std::int64_t>(source));
     }},
    {"Reducify(int&, int&)", Cheap,
     [](Source& source, ResultHash& hash) {
         int numerator = AnyInteger<int>(source);
         int denominator = AnyInteger<int>(source);
         Reducify(numerator, source.OneIn(50) ? numerator : denominator);
         hash << numerator << denominator;
     }},
    {"ReducifyInt64(long&, long&)", Cheap,
     [](Source& source, ResultHash& hash) {
         std::int64_t numerator = AnyInteger<std::int64_t>(source);
         std::int64_t denominator = AnyInteger<std::int64_t>(source);
         ReducifyInt64(numerator, source.OneIn(50) ? numerator : denominator);
         hash << numerator << denominator;
     }},
    {"RadianToAngle(double)", Cheap, OfRadians<RadianToAngle>},
    {"AngleToRadian(double)", Cheap, OfDegrees<AngleToRadian>},
    {"RegularizeAngle(double)", Cheap, OfDegrees<RegularizeAngle>},
    {"RegularizeRadian(double)", Cheap, OfRadians<RegularizeRadian>},
    {"RegularizeIncludedAngle(double)", Cheap, OfDegrees<RegularizeIncludedAngle>},
    {"RegularizeIncludedRadian(double)", Cheap, OfRadians<RegularizeIncludedRadian>},
    {"NormalizeAngle(double&)", Cheap, InPlace<NormalizeAngle>},
    {"NormalizeRadian(double&)", Cheap, InPlace<NormalizeRadian>},
    {"NormalizeIncludedAngle(double&)", Cheap, InPlace<NormalizeIncludedAngle>},
    {"NormalizeIncludedRadian(double&)", Cheap, InPlace<NormalizeIncludedRadian>},
    {"GetReverseAngle(double)", Cheap, OfDegrees<GetReverseAngle>},
    {"GetReverseRadian(double)", Cheap, OfRadians<GetReverseRadian>},
    {"GetComplementaryAngle(double)", Cheap, OfDegrees<GetComplementaryAngle>},
    {"GetComplementaryRadian(double)", Cheap, OfRadians<GetComplementaryRadian>},
    {"GetArcAngle(double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const double length = source.Number();
         hash << GetArcAngle(length, source.Number());
     }},
    {"GetArcLength(double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const double angle = source.Degrees();
         hash << GetArcLength(angle, source.Number());
     }},
    {"GetBulge(double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const double start = source.Angle();
         const double end = source.OneIn(4) ? source.Near(start + TwoPi) : source.Angle();
         hash << GetBulge(start, end);
     }},
    {"ComputeAngle(double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const DPOINT2 vector = source.Coin() ? source.Point() : source.Near(source.Around({0.0, 0.0}, 1.0));
         hash << ComputeAngle(vector.x, vector.y);
     }},
    {"D2RotateAngle(gp_Vec2d const&, gp_Vec2d const&)", Cheap, OfVectors<D2RotateAngle>},
    {"D2GetIncludeAngle(gp_Vec2d const&, gp_Vec2d const&)", Cheap, OfVectors<D2GetIncludeAngle>},
    {"D2GetNormalAngle(double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const DPOINT2 vector = source.Coin() ? source.Point() : source.Near(source.Around({0.0, 0.0}, 1.0));
         hash << D2GetNormalAngle(vector.x, vector.y);
     }},
    {"D2GetNormalAngle(DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) { hash << D2GetNormalAngle(source.Point()); }},
    {"D2GetDistance(DPOINT2 const&, DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch stretch = RandomStretch(source);
         hash << D2GetDistance(stretch.a, stretch.b);
     }},
    {"D2GetPointToLineDistance(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch stretch = RandomStretch(source);
         hash << D2GetPointToLineDistance(PointBy(source, stretch), stretch.a, stretch.b);
     }},
    {"D2GetPointToBeelineDistance(DPOINT2 const&, DPOINT2 const&, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const DPOINT2 point = source.Point();
         const DPOINT2 origin = source.OneIn(8) ? source.Near(point) : source.Point();
         hash << D2GetPointToBeelineDistance(point, origin, source.Angle());
     }},
    {"MinDistanceToLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch stretch = RandomStretch(source);
         hash << MinDistanceToLine(PointBy(source, stretch), stretch.a, stretch.b);
     }},
    {"MinDistanceToArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double)", Cheap,
     RunMinDistanceToArc},
    {"D2GetProjectionDistance(gp_Vec2d const&, gp_Vec2d const&)", Cheap,
     OfVectors<static_cast<double (*)(const gp_Vec2d&, const gp_Vec2d&)>(D2GetProjectionDistance)>},
    {"D2GetProjectionDistance(double, double, double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const DPOINT2 a = source.Point();
         const DPOINT2 b = source.OneIn(8) ? DPOINT2() : source.Point();
         hash << D2GetProjectionDistance(a.x, a.y, b.x, b.y);
     }},
    {"D2GetProjectionPoint(DPOINT2 const&, LineD2D const&, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) {
         LineD2D line = LineBy(source);
         if (source.OneIn(12))
         {
             line = {line.x1, line.y1, line.x1, line.y1};
         }
         DPOINT2 foot = Untouched();
         D2GetProjectionPoint(source.Point(), line, &foot);
         hash << foot;
     }},
    {"D2CrossMultiply(gp_Vec2d const&, gp_Vec2d const&)", Cheap, OfVectors<D2CrossMultiply>},
    {"D2DotMultiply(gp_Vec2d const&, gp_Vec2d const&)", Cheap, OfVectors<D2DotMultiply>},
    {"CoorTransXYToUV(DPOINT2 const&, DPOINT2 const&, double)", Cheap, OfFrame<CoorTransXYToUV>},
    {"CoorTransUVToXY(DPOINT2 const&, DPOINT2 const&, double)", Cheap, OfFrame<CoorTransUVToXY>},
    {"GetPointInCircle(DPOINT2 const&, double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Arc arc = RandomArc(source);
         hash << GetPointInCircle(arc.centre, arc.radius, arc.start);
     }},
    {"GetPointInEllipse(DPOINT2 const&, double, double, double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const EllipseArc ellipse = RandomEllipseArc(source);
         const double radian = source.Coin() ? source.Near(source.Known().radian) : ellipse.start;
         hash << GetPointInEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, radian);
     }},
    {"GetHeightOfEllipseArc(double, double, double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const EllipseArc ellipse = RandomEllipseArc(source);
         const double start = source.Near(source.Known().radian);
         const double sweep = source.OneIn(3) ? source.Near(source.Known().radian) : ellipse.sweep;
         hash << GetHeightOfEllipseArc(ellipse.a, ellipse.b, source.OneIn(6) ? ellipse.start : start, sweep);
     }},
    {"GetTangentAngleOfEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&)", Cheap, RunTangentAngle},
    {"GetTangentPointOfEllipse(DPOINT2 const&, double, double, double, double, DPOINT2*, DPOINT2*)", Cheap,
     [](Source& source, ResultHash& hash) {
         const EllipseArc ellipse = RandomEllipseArc(source);
         const double radian = source.OneIn(3) ? source.Near(ellipse.rotation) : source.Angle();
         IntoTwoPointers(source, hash, [&](DPOINT2* first, DPOINT2* second) {
             return GetTangentPointOfEllipse(ellipse.centre, ellipse.a, ellipse.b, ellipse.rotation, radian, first,
                                             second);
         });
     }},
    {"ScaleEllipse(double*, double*, double*, double)", Cheap,
     [](Source& source, ResultHash& hash) { RunScaleEllipse(source, hash, false); }},
    {"ScaleEllipse(double*, double*, double*, double, double)", Cheap,
     [](Source& source, ResultHash& hash) { RunScaleEllipse(source, hash, true); }},
    {"SolveArc(DPOINT2, DPOINT2, double, DPOINT2*, double*, double*, double*)", Cheap, RunSolveArc},
    {"CreateCircleFrom3Point(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2*, double*)", Cheap,
     RunCircleFrom3Point},
};

} // namespace math::hashes
