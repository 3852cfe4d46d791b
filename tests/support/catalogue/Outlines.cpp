#include "support/catalogue/Catalogue.h"

namespace math::test
{

const std::vector<ConstOperation> OutlineOperations = {
    {"CSegment::CSegment()", Memory::None, [](const Setting& /*o*/, Answer& answer) { answer << CSegment(); }},
    {"CSegment::CSegment(DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CSegment(o.p, o.q); }},
    {"CSegment::CSegment(DPOINT2 const&, DPOINT2 const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CSegment(o.p, o.q, o.z); }},
    {"CSegment::CSegment(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CSegment(o.p, o.q, o.r, o.s); }},
    {"CSegment::GetAngle(double) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.straight.GetAngle(o.z) << o.curved.GetAngle(o.z) << o.bezier.GetAngle(o.z);
     }},
    {"CSegment::GetBoundRect() const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.straight.GetBoundRect() << o.curved.GetBoundRect() << o.bezier.GetBoundRect();
     }},
    {"CSegment::GetLength() const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.straight.GetLength() << o.curved.GetLength() << o.bezier.GetLength();
     }},
    {"CSegment::GetPoint(double) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.straight.GetPoint(o.z) << o.curved.GetPoint(o.z) << o.bezier.GetPoint(o.z);
     }},
    {"CSegment::GetStartVector() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.straight.GetStartVector() << o.curved.GetStartVector(); }},
    {"CSegment::GetEndVector() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.straight.GetEndVector() << o.curved.GetEndVector(); }},
    {"CSegment::GetBoundRectOfArc(DPOINT2 const&, DPOINT2 const&, double)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CSegment::GetBoundRectOfArc(o.p, o.q, o.z); }},
    {"CSegment::GetBoundRectOfBezier(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CSegment::GetBoundRectOfBezier(o.p, o.q, o.r, o.s); }},
    {"CSegment::GetBoundRectOfLine(DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](const Setting& o, Answer& answer) { answer << CSegment::GetBoundRectOfLine(o.p, o.q); }},
    {"CSegment::GetMidVector(double&) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         double t = o.z;
         answer << o.straight.GetMidVector(t) << o.curved.GetMidVector(t);
     }},
    {"CSegment::GetNearestPoint(DPOINT2 const&, double&) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         double t = 0;
         answer << o.straight.GetNearestPoint(o.r, t) << t;
         answer << o.curved.GetNearestPoint(o.r, t) << t;
     }},
    {"CPolyline::CPolyline()", Memory::None, [](const Setting& /*o*/, Answer& answer) { answer << CPolyline(); }},
    {"CPolyline::CPolyline(unsigned int)", Memory::None,
     [](const Setting& /*o*/, Answer& answer) { answer << CPolyline(5U); }},
    {"CPolyline::CPolyline(CPolyline const&)", Memory::Own,
     [](const Setting& o, Answer& answer) {
         const CPolyline copy(o.outline);
         answer << copy;
     }},
    {"CPolyline::~CPolyline()", Memory::Own,
     [](const Setting& o, Answer& answer) {
         const CPolyline copy(o.otherOutline);
         answer << copy;
     }},
    {"CPolyline::GetArea() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.outline.GetArea(); }},
    {"CPolyline::GetExtendParam() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << (o.outline.GetExtendParam() != nullptr); }},
    {"CPolyline::GetLength(double, double) const", Memory::None,
     [](const Setting& o, Answer& answer) {
         answer << o.outline.GetLength(o.z, o.z + 2) << o.otherOutline.GetLength(0, 10);
     }},
    {"CPolyline::GetRECT() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.outline.GetRECT(); }},
    {"CPolyline::GetSegment(unsigned long) const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.outline.GetSegment(0) << o.outline.GetSegment(9); }},
    {"CPolyline::IsClosed() const", Memory::None,
     [](const Setting& o, Answer& answer) { answer << o.outline.IsClosed() << o.otherOutline.IsClosed(); }},
};

const std::vector<ChangingOperation> ChangingOutlineOperations = {
    {"CSegment::Set(DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.curved.Set(o.r, o.s);
         answer << o.curved;
     }},
    {"CSegment::Set(DPOINT2 const&, DPOINT2 const&, double)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.straight.Set(o.r, o.s, o.z);
         answer << o.straight;
     }},
    {"CSegment::Set(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.straight.Set(o.r, o.s, o.p, o.q);
         answer << o.straight;
     }},
    {"CSegment::ReverseDir()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.curved.ReverseDir();
         answer << o.curved;
     }},
    {"CSegment::GetSplitSegment(double, bool)", Memory::None,
     [](Setting& o, Answer& answer) {
         answer << o.curved.GetSplitSegment(o.z, true) << o.straight.GetSplitSegment(o.z, false);
     }},
    {"CSegment::GetSplitSegment(double, double)", Memory::None,
     [](Setting& o, Answer& answer) {
         answer << o.curved.GetSplitSegment(0.25, o.z) << o.straight.GetSplitSegment(o.z, 0.25);
     }},
    {"CPolyline::AddNodes(DPOINT2 const&, double)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.outline.AddNodes({9, o.x}, o.z);
         answer << o.outline;
     }},
    {"CPolyline::AddNodes(CPolyline::NODE const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.outline.AddNodes(o.outline.nodes.front());
         answer << o.outline;
     }},
    {"CPolyline::ReversePolyline()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.outline.ReversePolyline();
         answer << o.outline;
     }},
    {"CPolyline::GetExtendParam()", Memory::None,
     [](Setting& o, Answer& answer) { answer << (o.outline.GetExtendParam() != nullptr); }},
    {"CPolyline::SetExtendParam(CPolyline::CExtendParam*)", Memory::None,
     [](Setting& o, Answer& answer) {
         o.outline.SetExtendParam(nullptr);
         answer << o.outline;
     }},
    {"CPolyline::CExtendParam::~CExtendParam()", Memory::None,
     [](Setting& o, Answer& answer) {
         o.otherOutline.SetExtendParam(nullptr);
         answer << o.otherOutline;
     }},
    {"CPolyline::operator=(CPolyline const&)", Memory::Own,
     [](Setting& o, Answer& answer) {
         o.outline = o.otherOutline;
         answer << o.outline;
     }},
};

} // namespace math::test
