#include "math/CPolyline.h"

#include "polyline/ArcLength.h"
#include "polyline/Chords.h"
#include "primitives/Box.h"
#include "primitives/Distance.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <cstddef>

namespace math
{

using detail::IsZero;

namespace
{

/// The area between the chord and the arc, negative for a counter-clockwise arc.
double AreaOverChord(double chord, double bulge)
{
    const double half = chord * 0.5;
    const double radius = (half / bulge + half * bulge) * 0.5;
    const double sector = std::atan(bulge) * (radius * 2.0 * radius);
    const double triangle = (radius - half * bulge) * half;
    return -(sector - triangle);
}

/// The area between a straight stretch and the x axis.
double AreaUnderChord(const DPOINT2& from, const DPOINT2& to)
{
    return (to.y + from.y) * 0.5 * (to.x - from.x);
}

DRECT BoxUpTo(const DPOINT2& from, const CPolyline::NODE& node)
{
    return node.bulge != 0.0 ? CSegment::GetBoundRectOfArc(from, node.point, node.bulge)
                             : detail::BoxOfEnds(from, node.point);
}

double LengthUpTo(const CPolyline::NODE& node, double chord)
{
    return node.bulge != 0.0 ? detail::LengthOfArc(chord, node.bulge) : chord;
}

const DPOINT2& StartOfSegment(const CPolyline& polyline, std::uint64_t index)
{
    return index == 0 ? polyline.start : polyline.nodes[index - 1].point;
}

double LengthOfSegment(const CPolyline& polyline, std::uint64_t index)
{
    const CPolyline::NODE& node = polyline.nodes[index];
    return LengthUpTo(node, detail::Distance(StartOfSegment(polyline, index), node.point));
}

/// The lengths of the segments between two nodes, added up one by one.
double LengthBetween(const CPolyline::NODE* from, const CPolyline::NODE* to)
{
    double length = 0.0;
    for (; static_cast<std::size_t>(to - from) >= detail::ChordBlock; from += detail::ChordBlock)
    {
        detail::BlockOfChords lengths = detail::MeasureChords(from);
        for (std::size_t i = 0; i < detail::ChordBlock; ++i)
        {
            lengths[i] = LengthUpTo(from[i + 1], lengths[i]);
        }
        // Apart, so that no call comes between the sums.
        for (const double segment : lengths)
        {
            length += segment;
        }
    }
    for (; from != to; ++from)
    {
        length += LengthUpTo(from[1], detail::Distance(from[0].point, from[1].point));
    }
    return length;
}

/// A position on a polyline, from 0 upwards.
struct PlaceOnPolyline
{
    std::uint64_t index;
    double ratio;

    explicit PlaceOnPolyline(double position)
        : index(static_cast<std::uint64_t>(position)),
          ratio(position - static_cast<double>(index))
    {
    }
};

} // namespace

DRECT CPolyline::GetRECT() const
{
    if (nodes.empty())
    {
        return {};
    }
    detail::GrowingBox box(BoxUpTo(start, nodes.front()));
    const NODE* const last = &nodes.back();
    for (const NODE* node = &nodes.front(); node != last; ++node)
    {
        const NODE& next = node[1];
        if (next.bulge != 0.0)
        {
            box.Unite(CSegment::GetBoundRectOfArc(node->point, next.point, next.bulge));
        }
        else
        {
            box.UniteEnds(node->point, next.point);
        }
    }
    return box.Box();
}

double CPolyline::GetLength(double from, double to) const
{
    const auto count = static_cast<double>(nodes.size());
    // Not below is also what NaN is. The ends being in order, one bound is left for each.
    if (IsZero(from - to) || !(from < to) || from < 0.0 || to > count)
    {
        return 0.0;
    }
    const PlaceOnPolyline first(from);
    PlaceOnPolyline last(to);
    if (first.index == last.index)
    {
        return LengthOfSegment(*this, first.index) * (last.ratio - first.ratio);
    }
    double length = LengthBetween(&nodes[first.index], &nodes[last.index - 1]);
    if (last.index == nodes.size())
    {
        // The very end: no segment lies beyond it, so the last term is to vanish.
        last = PlaceOnPolyline(0.0);
    }
    length += LengthOfSegment(*this, first.index) * (1.0 - first.ratio);
    length += LengthOfSegment(*this, last.index) * last.ratio;
    return length;
}

double CPolyline::GetArea() const
{
    if (nodes.size() < 2 || !IsClosed())
    {
        return 0.0;
    }
    DPOINT2 previous = start;
    double area = 0.0;
    for (const NODE& node : nodes)
    {
        const double square = detail::SquareOfDistance(node.point, previous);
        if (detail::IsSquareOfZero(square))
        {
            // The predecessor stays, so many tiny steps add up to one that counts.
            continue;
        }
        area += AreaUnderChord(previous, node.point);
        if (!IsZero(node.bulge))
        {
            area += AreaOverChord(std::sqrt(square), node.bulge);
        }
        previous = node.point;
    }
    // Skipped nodes at the end leave a gap to the start.
    return area + AreaUnderChord(previous, start);
}

} // namespace math
