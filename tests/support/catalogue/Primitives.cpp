#include "support/catalogue/Catalogue.h"

namespace math::test
{

const std::vector<ConstOperation> PrimitiveOperations = {
    {"AngleToRadian(double)", Memory::None, [](const Setting& o, Answer& answer) { answer << AngleToRadian(o.x); }},
    {"ComputeAngle(double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << ComputeAngle(o.x, o.y); }},
    {"CoorTransUVToXY(DPOINT2 const&, DPOINT2 const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CoorTransUVToXY(o.p, o.q, o.angle); }},
    {"CoorTransXYToUV(DPOINT2 const&, DPOINT2 const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CoorTransXYToUV(o.p, o.q, o.angle); }},
    {"CreateCircleFrom3Point(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2*, double*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 centre;
         double radius = 0;
         answer << CreateCircleFrom3Point(o.p, o.q, o.r, &centre, &radius) << centre << radius;
     }},
    {"D2CrossMultiply(gp_Vec2d const&, gp_Vec2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2CrossMultiply(o.vector, o.otherVector); }},
    {"D2DotMultiply(gp_Vec2d const&, gp_Vec2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2DotMultiply(o.vector, o.otherVector); }},
    {"D2GetDistance(DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetDistance(o.p, o.q); }},
    {"D2GetIncludeAngle(gp_Vec2d const&, gp_Vec2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetIncludeAngle(o.vector, o.otherVector); }},
    {"D2GetNormalAngle(double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetNormalAngle(o.x, o.y); }},
    {"D2GetNormalAngle(DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetNormalAngle(o.s); }},
    {"D2GetPointToBeelineDistance(DPOINT2 const&, DPOINT2 const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetPointToBeelineDistance(o.p, o.q, o.angle); }},
    {"D2GetPointToLineDistance(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetPointToLineDistance(o.p, o.q, o.r); }},
    {"D2GetProjectionDistance(double, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetProjectionDistance(o.x, o.y, o.z, o.angle); }},
    {"D2GetProjectionDistance(gp_Vec2d const&, gp_Vec2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2GetProjectionDistance(o.vector, o.otherVector); }},
    {"D2GetProjectionPoint(DPOINT2 const&, LineD2D const&, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 foot;
         D2GetProjectionPoint(o.p, o.otherLine, &foot);
         answer << foot;
     }},
    {"D2RotateAngle(gp_Vec2d const&, gp_Vec2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << D2RotateAngle(o.vector, o.otherVector); }},
    {"GetArcAngle(double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetArcAngle(o.z, o.x); }},
    {"GetArcLength(double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetArcLength(o.z, o.x); }},
    {"GetBulge(double, double)", Memory::None, [](const Setting& o, Answer& answer) { answer << GetBulge(o.z, o.x); }},
    {"GetComplementaryAngle(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetComplementaryAngle(o.x); }},
    {"GetComplementaryRadian(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetComplementaryRadian(o.x); }},
    {"GetGreatestCommonDivisor(int, int)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetGreatestCommonDivisor(o.whole, o.otherWhole); }},
    {"GetGreatestCommonDivisorInt64(long, long)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetGreatestCommonDivisorInt64(o.longWhole, o.otherLongWhole); }},
    {"GetHeightOfEllipseArc(double, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << GetHeightOfEllipseArc(o.ellipse.a, o.ellipse.b, o.ellipse.start, o.angle);
     }},
    {"GetPointInCircle(DPOINT2 const&, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetPointInCircle(o.p, o.arc.radius, o.angle); }},
    {"GetPointInEllipse(DPOINT2 const&, double, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << GetPointInEllipse(o.p, o.ellipse.a, o.ellipse.b, o.ellipse.rotation, o.angle);
     }},
    {"GetReverseAngle(double)", Memory::None, [](const Setting& o, Answer& answer) { answer << GetReverseAngle(o.x); }},
    {"GetReverseRadian(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << GetReverseRadian(o.x); }},
    {"GetTangentAngleOfEllipse(DPOINT2 const&, double, double, double, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << GetTangentAngleOfEllipse(
             o.p, o.ellipse.a, o.ellipse.b, o.ellipse.rotation,
             GetPointInEllipse(o.p, o.ellipse.a, o.ellipse.b, o.ellipse.rotation, o.angle));
     }},
    {"GetTangentPointOfEllipse(DPOINT2 const&, double, double, double, double, DPOINT2*, DPOINT2*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 first;
         DPOINT2 second;
         answer << GetTangentPointOfEllipse(o.p, o.ellipse.a, o.ellipse.b, o.ellipse.rotation, o.angle, &first, &second)
                << first << second;
     }},
    {"IsAngleInSector(double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IsAngleInSector(o.angle, o.z, o.x); }},
    {"IsAngleInSector(double, double, double, bool)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsAngleInSector(o.angle, o.z, o.x, true) << IsAngleInSector(o.angle, o.z, o.x, false);
     }},
    {"IsPointInArc(DPOINT2 const&, DPOINT2 const&, double, double, double, bool)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsPointInArc(GetPointInCircle(o.p, o.x, o.angle), o.p, o.x, o.angle, o.z, true);
     }},
    {"IsPointInArc(DPOINT2 const&, DPOINT2 const&, double, double, double, bool, double const&)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsPointInArc(GetPointInCircle(o.p, o.x, o.angle), o.p, o.x, o.angle, o.z, false, o.z);
     }},
    {"IsPointInArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, bool)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IsPointInArc(o.r, o.p, o.q, o.s, true); }},
    {"IsPointInEllipse(DPOINT2 const&, DPOINT2 const&, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IsPointInEllipse(o.r, o.p, o.ellipse.a, o.ellipse.b, o.angle); }},
    {"IsPointInEllipseArc(DPOINT2 const&, DPOINT2 const&, double, double, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsPointInEllipseArc(GetPointInEllipse(o.p, o.ellipse.a, o.ellipse.b, o.angle, o.z), o.p, o.ellipse.a,
                                       o.ellipse.b, o.angle, 0, o.x);
     }},
    {"IsPointInEllipseArc(DPOINT2 const&, DPOINT2 const&, double, double, double, double, double, bool)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsPointInEllipseArc(GetPointInEllipse(o.p, o.ellipse.a, o.ellipse.b, o.angle, o.z), o.p, o.ellipse.a,
                                       o.ellipse.b, o.angle, 0, o.x, false);
     }},
    {"IsPointInLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IsPointInLine(o.p, o.q, o.r); }},
    {"IsPointInLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IsPointInLine(o.p, o.q, o.r, o.x); }},
    {"IsPointInsideEllipse(DPOINT2 const&, DPOINT2 const&, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsPointInsideEllipse(o.p, o.q, o.ellipse.a, o.ellipse.b, o.angle);
     }},
    {"IsPointOutsideEllipse(DPOINT2 const&, DPOINT2 const&, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << IsPointOutsideEllipse(o.p, o.q, o.ellipse.a, o.ellipse.b, o.angle);
     }},
    {"IsPointProjInLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IsPointProjInLine(o.p, o.q, o.r); }},
    {"MinDistanceToArc(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << MinDistanceToArc(o.p, o.q, o.r, o.s, o.x, o.angle); }},
    {"MinDistanceToLine(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << MinDistanceToLine(o.p, o.q, o.r); }},
    {"RadianToAngle(double)", Memory::None, [](const Setting& o, Answer& answer) { answer << RadianToAngle(o.x); }},
    {"RealRectD::CreateRealRectD(ArcD const*)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << RealRectD::CreateRealRectD(&o.arcRecord); }},
    {"RealRectD::CreateRealRectD(LineD2D const*)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << RealRectD::CreateRealRectD(&o.line); }},
    {"RegularizeAngle(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << RegularizeAngle(o.x * 1000); }},
    {"RegularizeIncludedAngle(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << RegularizeIncludedAngle(o.x * -1000); }},
    {"RegularizeIncludedRadian(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << RegularizeIncludedRadian(o.x * 10); }},
    {"RegularizeRadian(double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << RegularizeRadian(o.x * -10); }},
    {"SolveArc(DPOINT2, DPOINT2, double, DPOINT2*, double*, double*, double*)", Memory::None,
     [](const Setting& o, Answer& answer) {
         DPOINT2 centre;
         double radius = 0;
         double start = 0;
         double sweep = 0;
         answer << SolveArc(o.p, o.q, o.z, &centre, &radius, &start, &sweep) << centre << radius << start << sweep;
     }},
};

const std::vector<ChangingOperation> ChangingPrimitiveOperations = {
    {"DRECT::Union(DRECT const&, DRECT const&)", Memory::None,
     [](Setting& o, Answer& answer) { answer << o.box.Union(o.box, o.otherBox) << o.box; }},
    {"NormalizeAngle(double&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.x *= 1000;
         NormalizeAngle(o.x);
         answer << o.x;
     }},
    {"NormalizeIncludedAngle(double&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.x *= -1000;
         NormalizeIncludedAngle(o.x);
         answer << o.x;
     }},
    {"NormalizeIncludedRadian(double&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.x *= 10;
         NormalizeIncludedRadian(o.x);
         answer << o.x;
     }},
    {"NormalizeRadian(double&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.x *= -10;
         NormalizeRadian(o.x);
         answer << o.x;
     }},
    {"Reducify(int&, int&)", Memory::None,
     [](Setting& o, Answer& answer) {
         Reducify(o.whole, o.otherWhole);
         answer << o.whole << o.otherWhole;
     }},
    {"ReducifyInt64(long&, long&)", Memory::None,
     [](Setting& o, Answer& answer) {
         ReducifyInt64(o.longWhole, o.otherLongWhole);
         answer << o.longWhole << o.otherLongWhole;
     }},
    {"ScaleEllipse(double*, double*, double*, double)", Memory::None,
     [](Setting& o, Answer& answer) {
         answer << ScaleEllipse(&o.ellipse.a, &o.ellipse.b, &o.ellipse.rotation, o.x) << o.ellipse.a << o.ellipse.b
                << o.ellipse.rotation;
     }},
    {"ScaleEllipse(double*, double*, double*, double, double)", Memory::None,
     [](Setting& o, Answer& answer) {
         answer << ScaleEllipse(&o.ellipse.a, &o.ellipse.b, &o.ellipse.rotation, o.x, o.z) << o.ellipse.a << o.ellipse.b
                << o.ellipse.rotation;
     }},
};

} // namespace math::test
