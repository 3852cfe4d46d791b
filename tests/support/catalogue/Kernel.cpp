#include "support/catalogue/Catalogue.h"

#include <gp_Dir2d.hxx>

namespace math::test
{

const std::vector<ConstOperation> KernelOperations = {
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection()", Memory::None,
     [](const Setting& /*o*/, Answer& answer) { answer << IntAna2d_AnaIntersection(); }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(IntAna2d_AnaIntersection const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_AnaIntersection(o.kernelResult); }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(gp_Circ2d const&, gp_Circ2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_AnaIntersection(o.kernelCircle, o.otherKernelCircle); }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(gp_Lin2d const&, gp_Circ2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_AnaIntersection(o.kernelLine, o.kernelCircle); }},
    {"IntAna2d_AnaIntersection::IntAna2d_AnaIntersection(gp_Lin2d const&, gp_Lin2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_AnaIntersection(o.kernelLine, o.otherKernelLine); }},
    {"IntAna2d_AnaIntersection::IsDone() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelResult.IsDone(); }},
    {"IntAna2d_AnaIntersection::IsEmpty() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelResult.IsEmpty(); }},
    {"IntAna2d_AnaIntersection::IsIdentical() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelResult.IsIdentical(); }},
    {"IntAna2d_AnaIntersection::IsParallel() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelResult.IsParallel(); }},
    {"IntAna2d_AnaIntersection::Point(int) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelResult.Point(2); }},
    {"IntAna2d_AnaIntersection::PointCount() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelResult.PointCount(); }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint()", Memory::None,
     [](const Setting& /*o*/, Answer& answer) { answer << IntAna2d_IntPoint(); }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint(IntAna2d_IntPoint const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_IntPoint(o.kernelPoint); }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_IntPoint(o.x, o.y, o.z); }},
    {"IntAna2d_IntPoint::IntAna2d_IntPoint(double, double, double, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << IntAna2d_IntPoint(o.x, o.y, o.z, o.angle); }},
    {"IntAna2d_IntPoint::ParamOnFirst() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelPoint.ParamOnFirst(); }},
    {"IntAna2d_IntPoint::ParamOnSecond() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelPoint.ParamOnSecond(); }},
    {"IntAna2d_IntPoint::SecondIsImplicit() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelPoint.SecondIsImplicit(); }},
    {"IntAna2d_IntPoint::Value() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelPoint.Value(); }},
    {"IntAna2d_IntPoint::X() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelPoint.X(); }},
    {"IntAna2d_IntPoint::Y() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.kernelPoint.Y(); }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Ax22d const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << gce_MakeCirc2d(gp_Ax22d(gp_Pnt2d(o.x, o.y), gp_Dir2d(1, 2)), o.z).Value();
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Ax2d const&, double, bool)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << gce_MakeCirc2d(gp_Ax2d(gp_Pnt2d(o.x, o.y), gp_Dir2d(1, 2)), o.z, false).Value();
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Circ2d const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(o.kernelCircle, o.x).Value(); }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Circ2d const&, gp_Pnt2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(o.kernelCircle, gp_Pnt2d(o.x, o.y)).Value(); }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Pnt2d const&, double, bool)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), o.z, true).Value(); }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Pnt2d const&, gp_Pnt2d const&, bool)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), gp_Pnt2d(o.z, o.angle), true).Value();
     }},
    {"gce_MakeCirc2d::gce_MakeCirc2d(gp_Pnt2d const&, gp_Pnt2d const&, gp_Pnt2d const&)", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << gce_MakeCirc2d(gp_Pnt2d(o.p.x, o.p.y), gp_Pnt2d(o.q.x, o.q.y), gp_Pnt2d(o.r.x, o.r.y)).Value();
     }},
    {"gce_MakeCirc2d::IsDone() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), o.y, true).IsDone(); }},
    {"gce_MakeCirc2d::Operator() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), o.z, true).Operator(); }},
    {"gce_MakeCirc2d::Status() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), o.y, true).Status(); }},
    {"gce_MakeCirc2d::Value() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), o.z, false).Value(); }},
    {"gce_MakeCirc2d::operator gp_Circ2d() const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << static_cast<gp_Circ2d>(gce_MakeCirc2d(gp_Pnt2d(o.x, o.y), o.z, false));
     }},
};

const std::vector<ChangingOperation> ChangingKernelOperations = {
    {"IntAna2d_AnaIntersection::Perform(gp_Circ2d const&, gp_Circ2d const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.kernelResult.Perform(o.kernelCircle, o.otherKernelCircle);
         answer << o.kernelResult;
     }},
    {"IntAna2d_AnaIntersection::Perform(gp_Lin2d const&, gp_Circ2d const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.kernelResult.Perform(o.otherKernelLine, o.kernelCircle);
         answer << o.kernelResult;
     }},
    {"IntAna2d_AnaIntersection::Perform(gp_Lin2d const&, gp_Lin2d const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.kernelResult.Perform(o.kernelLine, o.otherKernelLine);
         answer << o.kernelResult;
     }},
    {"IntAna2d_AnaIntersection::operator=(IntAna2d_AnaIntersection const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         const IntAna2d_AnaIntersection lines(o.kernelLine, o.otherKernelLine);
         o.kernelResult = lines;
         answer << o.kernelResult;
     }},
    {"IntAna2d_IntPoint::SetValue(double, double, double)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.kernelPoint.SetValue(o.x, o.y, o.z);
         answer << o.kernelPoint;
     }},
    {"IntAna2d_IntPoint::SetValue(double, double, double, double)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.kernelPoint.SetValue(o.x, o.y, o.z, o.angle);
         answer << o.kernelPoint;
     }},
    {"IntAna2d_IntPoint::operator=(IntAna2d_IntPoint const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.kernelPoint = o.kernelResult.Point(1);
         answer << o.kernelPoint;
     }},
};

} // namespace math::test
