#include "Outlines.h"

#include "Curves.h"

namespace math::hashes
{

int Tag::destroyed = 0;

double RandomBulge(Source& source)
{
    constexpr double named[] = {1.0,  -1.0, 0.41421356237309503, -0.41421356237309503, 0.0,
                                -0.0, 2.0,  -2.414213562373095};
    switch (source.Below(6))
    {
    case 0:
        return source.Number();
    case 1:
        return source.Sliver();
    case 2:
        return source.Near(named[source.Below(8)]);
    case 3:
        return named[source.Below(8)];
    default:
        return source.Even(-2.0, 2.0);
    }
}

CSegment RandomPiece(Source& source)
{
    const Stretch chord = RandomStretch(source);
    if (source.OneIn(3))
    {
        return CSegment(chord.a, chord.b);
    }
    return CSegment(chord.a, chord.b, RandomBulge(source));
}

CSegment RandomSegment(Source& source)
{
    CSegment segment = RandomPiece(source);
    switch (source.Below(16))
    {
    case 0:
        return CSegment();
    case 1: // a line that keeps the slot
        segment.Set(segment.start, segment.end);
        return segment;
    case 2: {
        const Stretch control = RandomStretch(source);
        return CSegment(segment.start, control.a, control.b, segment.end);
    }
    case 3:
        segment.type = source.Between(-1, 4);
        return segment;
    default:
        return segment;
    }
}

double RandomParameter(Source& source)
{
    switch (source.Below(6))
    {
    case 0:
        return source.Near(source.Between(0, 1));
    case 1:
        return source.Between(-2, 6) * 0.25;
    case 2:
        return source.Number();
    default:
        return source.Ratio();
    }
}

CPolyline RandomOutline(Source& source)
{
    CPolyline outline(static_cast<unsigned int>(source.Below(100)));
    outline.start = source.Point();
    const int size = source.Below(source.OneIn(10) ? 60 : 9);
    DPOINT2 previous = outline.start;
    for (int i = 0; i < size; ++i)
    {
        const DPOINT2 next = source.OneIn(8) ? source.Near(previous) : source.Point();
        outline.nodes.push_back({next, source.Coin() ? 0.0 : RandomBulge(source)});
        previous = next;
    }
    if (size > 0 && source.OneIn(3))
    {
        outline.nodes.push_back({source.Near(outline.start), RandomBulge(source)});
    }
    else if (size > 0 && source.Coin())
    {
        outline.nodes.push_back({outline.start, RandomBulge(source)});
    }
    return outline;
}

int ValueOf(const CPolyline::CExtendParam* param)
{
    const Tag* const tag = dynamic_cast<const Tag*>(param);
    return tag == nullptr ? -1 : tag->value;
}

} // namespace math::hashes
