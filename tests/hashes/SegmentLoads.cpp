#include "Curves.h"
#include "Load.h"
#include "Outlines.h"

namespace math::hashes
{

namespace
{

/// A vector of a segment, or the exception for one without length.
template <DPOINT2 (CSegment::*Reading)() const>
void OfVector(Source& source, ResultHash& hash)
{
    const CSegment segment = RandomSegment(source);
    Attempt(hash, [&] { hash << (segment.*Reading)(); });
}

CSegment RandomBezier(Source& source)
{
    const Stretch polygon = RandomStretch(source);
    const DPOINT2 end = source.OneIn(5) ? polygon.a : source.Point();
    const DPOINT2 control = source.OneIn(5) ? polygon.b : source.Point();
    return CSegment(polygon.a, polygon.b, control, end);
}

/// Mostly lines and arcs: a Bezier curve takes a thousand steps.
CSegment SeldomBezier(Source& source)
{
    return source.OneIn(25) ? RandomBezier(source) : RandomPiece(source);
}

} // namespace

const std::vector<Load> SegmentLoads = {
    {"CSegment::CSegment()", Usual, [](Source& /*source*/, ResultHash& hash) { hash << CSegment(); }},
    {"CSegment::CSegment(DPOINT2 const&, DPOINT2 const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const Stretch ends = RandomStretch(source);
         hash << CSegment(ends.a, ends.b);
     }},
    {"CSegment::CSegment(DPOINT2 const&, DPOINT2 const&, double)", Usual,
     [](Source& source, ResultHash& hash) {
         const Stretch ends = RandomStretch(source);
         hash << CSegment(ends.a, ends.b, RandomBulge(source));
     }},
    {"CSegment::CSegment(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const Stretch ends = RandomStretch(source);
         const Stretch control = RandomStretch(source);
         hash << CSegment(ends.a, control.a, control.b, ends.b);
     }},
    {"CSegment::Set(DPOINT2 const&, DPOINT2 const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CSegment segment = RandomSegment(source);
         const Stretch ends = RandomStretch(source);
         segment.Set(ends.a, ends.b);
         hash << segment;
         segment.Set(segment.end, segment.start);
         hash << segment;
     }},
    {"CSegment::Set(DPOINT2 const&, DPOINT2 const&, double)", Usual,
     [](Source& source, ResultHash& hash) {
         CSegment segment = RandomSegment(source);
         const Stretch ends = RandomStretch(source);
         segment.Set(ends.a, ends.b, RandomBulge(source));
         hash << segment;
         segment.Set(segment.end, segment.start, segment.ctrl2.x);
         hash << segment;
     }},
    {"CSegment::Set(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CSegment segment = RandomSegment(source);
         const Stretch ends = RandomStretch(source);
         const Stretch control = RandomStretch(source);
         segment.Set(ends.a, control.a, control.b, ends.b);
         hash << segment;
         segment.Set(segment.end, segment.ctrl2, segment.ctrl1, segment.start);
         hash << segment;
     }},
    {"CSegment::GetPoint(double) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const CSegment segment = RandomSegment(source);
         hash << segment.GetPoint(RandomParameter(source));
     }},
    {"CSegment::GetMidVector(double&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const CSegment segment = RandomSegment(source);
         double t = RandomParameter(source);
         Attempt(hash, [&] { hash << segment.GetMidVector(t); });
         hash << t;
     }},
    {"CSegment::GetStartVector() const", Cheap, OfVector<&CSegment::GetStartVector>},
    {"CSegment::GetEndVector() const", Cheap, OfVector<&CSegment::GetEndVector>},
    {"CSegment::GetLength() const", Cheap,
     [](Source& source, ResultHash& hash) { hash << SeldomBezier(source).GetLength(); }},
    {"CSegment::ReverseDir()", Cheap,
     [](Source& source, ResultHash& hash) {
         CSegment segment = RandomSegment(source);
         segment.ReverseDir();
         hash << segment;
     }},
    {"CSegment::GetNearestPoint(DPOINT2 const&, double&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const CSegment segment = RandomSegment(source);
         const DPOINT2 ends[] = {segment.start, segment.end};
         const DPOINT2 middle{(segment.start.x + segment.end.x) / 2, (segment.start.y + segment.end.y) / 2};
         DPOINT2 point = source.Point();
         if (source.OneIn(4))
         {
             point = source.Near(source.OneIn(3) ? middle : ends[source.Below(2)]);
         }
         double t = UntouchedNumber;
         hash << segment.GetNearestPoint(point, t) << t;
     }},
    {"CSegment::GetAngle(double) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const CSegment segment = RandomSegment(source);
         hash << segment.GetAngle(RandomParameter(source));
     }},
    {"CSegment::GetBoundRect() const", Cheap,
     [](Source& source, ResultHash& hash) { hash << SeldomBezier(source).GetBoundRect(); }},
    {"CSegment::GetBoundRectOfLine(DPOINT2 const&, DPOINT2 const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch ends = RandomStretch(source);
         hash << CSegment::GetBoundRectOfLine(ends.a, ends.b);
     }},
    {"CSegment::GetBoundRectOfArc(DPOINT2 const&, DPOINT2 const&, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         const Stretch ends = RandomStretch(source);
         hash << CSegment::GetBoundRectOfArc(ends.a, ends.b, RandomBulge(source));
     }},
    {"CSegment::GetBoundRectOfBezier(DPOINT2 const&, DPOINT2 const&, DPOINT2 const&, DPOINT2 const&)", Costly,
     [](Source& source, ResultHash& hash) {
         const CSegment curve = RandomBezier(source);
         hash << CSegment::GetBoundRectOfBezier(curve.start, curve.ctrl1, curve.ctrl2, curve.end);
     }},
    {"CSegment::GetSplitSegment(double, bool)", Cheap,
     [](Source& source, ResultHash& hash) {
         CSegment segment = RandomSegment(source);
         const double t = RandomParameter(source);
         hash << segment.GetSplitSegment(t, source.Coin()) << segment;
     }},
    {"CSegment::GetSplitSegment(double, double)", Cheap,
     [](Source& source, ResultHash& hash) {
         CSegment segment = RandomSegment(source);
         const double from = RandomParameter(source);
         const double to = source.OneIn(6) ? source.Near(from) : RandomParameter(source);
         hash << segment.GetSplitSegment(from, to) << segment;
     }},
};

} // namespace math::hashes
