#include "Load.h"
#include "Outlines.h"

#include <utility>

namespace math::hashes
{

namespace
{

/// Sometimes with an extension.
CPolyline TaggedOutline(Source& source)
{
    CPolyline outline = RandomOutline(source);
    outline.flags = source.Below(9);
    outline.attribute = source.Below(9);
    if (source.Coin())
    {
        outline.SetExtendParam(new Tag(source.Below(1000)));
    }
    return outline;
}

/// The outline, its extension and how many extensions were destroyed so far.
void HashAll(ResultHash& hash, const CPolyline& outline)
{
    hash << outline << ValueOf(outline.GetExtendParam()) << Tag::destroyed;
}

/// A position on the outline, at a node, beside one, or beyond the ends.
double Position(Source& source, const CPolyline& outline)
{
    const int count = static_cast<int>(outline.nodes.size());
    switch (source.Below(5))
    {
    case 0:
        return source.Near(source.Between(0, count));
    case 1:
        return source.Between(-1, count + 1);
    case 2:
        return source.OneIn(4) ? source.Special() : source.Number();
    default:
        return source.Even(0.0, count);
    }
}

} // namespace

const std::vector<Load> PolylineLoads = {
    {"CPolyline::CPolyline()", Usual, [](Source& /*source*/, ResultHash& hash) { hash << CPolyline(); }},
    {"CPolyline::CPolyline(unsigned int)", Usual,
     [](Source& source, ResultHash& hash) {
         hash << CPolyline(static_cast<unsigned int>(source.Bits() & 0xffffffffU));
     }},
    {"CPolyline::CPolyline(CPolyline const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyline outline = TaggedOutline(source);
         Tag::destroyed = 0;
         const CPolyline copy(outline);
         HashAll(hash, copy);
         hash << (outline.extendParam != nullptr && copy.extendParam == outline.extendParam);
     }},
    {"CPolyline::operator=(CPolyline const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyline outline = TaggedOutline(source);
         const CPolyline other = TaggedOutline(source);
         const CPolyline& assigned = source.OneIn(8) ? outline : other;
         Tag::destroyed = 0;
         hash << (&(outline = assigned) == &outline);
         HashAll(hash, outline);
     }},
    {"CPolyline::~CPolyline()", Usual,
     [](Source& source, ResultHash& hash) {
         Tag::destroyed = 0;
         {
             const CPolyline outline = TaggedOutline(source);
             hash << Tag::destroyed;
         }
         hash << Tag::destroyed;
     }},
    {"CPolyline::CExtendParam::~CExtendParam()", Usual,
     [](Source& source, ResultHash& hash) {
         Tag::destroyed = 0;
         const CPolyline::CExtendParam* const param = new Tag(source.Below(9));
         delete param;
         hash << Tag::destroyed;
     }},
    {"CPolyline::SetExtendParam(CPolyline::CExtendParam*)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyline outline = TaggedOutline(source);
         Tag::destroyed = 0;
         switch (source.Below(3))
         {
         case 0:
             outline.SetExtendParam(nullptr);
             break;
         case 1:
             outline.SetExtendParam(outline.extendParam);
             break;
         default:
             outline.SetExtendParam(new Tag(source.Below(1000)));
             break;
         }
         HashAll(hash, outline);
     }},
    {"CPolyline::GetExtendParam()", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyline outline = TaggedOutline(source);
         hash << ValueOf(outline.GetExtendParam());
     }},
    {"CPolyline::GetExtendParam() const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyline outline = TaggedOutline(source);
         hash << ValueOf(outline.GetExtendParam());
     }},
    {"CPolyline::AddNodes(DPOINT2 const&, double)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyline outline = RandomOutline(source);
         const DPOINT2 last = outline.nodes.empty() ? outline.start : outline.nodes.back().point;
         const DPOINT2 next = source.Coin() ? source.Near(last) : source.Point();
         outline.AddNodes(next, RandomBulge(source));
         outline.AddNodes(outline.start, 0.5);
         outline.AddNodes(outline.start, 0.25);
         hash << outline;
     }},
    {"CPolyline::AddNodes(CPolyline::NODE const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyline outline = RandomOutline(source);
         const CPolyline::NODE node{source.Point(), RandomBulge(source)};
         outline.AddNodes(node);
         outline.AddNodes(node);
         if (!outline.nodes.empty())
         {
             outline.AddNodes(outline.nodes.front());
         }
         hash << outline;
     }},
    {"CPolyline::IsClosed() const", Usual,
     [](Source& source, ResultHash& hash) { hash << RandomOutline(source).IsClosed(); }},
    {"CPolyline::ReversePolyline()", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyline outline = RandomOutline(source);
         outline.ReversePolyline();
         hash << outline;
     }},
    {"CPolyline::GetRECT() const", Usual,
     [](Source& source, ResultHash& hash) { hash << RandomOutline(source).GetRECT(); }},
    {"CPolyline::GetSegment(unsigned long) const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyline outline = RandomOutline(source);
         const int count = static_cast<int>(outline.nodes.size());
         const std::uint64_t index =
             source.OneIn(12) ? source.Bits() : static_cast<std::uint64_t>(source.Below(count + 2));
         hash << outline.GetSegment(index);
     }},
    {"CPolyline::GetLength(double, double) const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyline outline = RandomOutline(source);
         const double from = Position(source, outline);
         const double to = source.OneIn(6) ? source.Near(from) : Position(source, outline);
         hash << outline.GetLength(from, to);
         hash << outline.GetLength(0.0, static_cast<double>(outline.nodes.size()));
     }},
    {"CPolyline::GetArea() const", Usual,
     [](Source& source, ResultHash& hash) { hash << RandomOutline(source).GetArea(); }},
};

} // namespace math::hashes
