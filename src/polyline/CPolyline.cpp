#include "math/CPolyline.h"

#include "primitives/Box.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace math
{

using detail::IsZero;

namespace
{

bool AreIdentical(const DPOINT2& a, const DPOINT2& b)
{
    return a.x == b.x && a.y == b.y;
}

CPolyline::CExtendParam* CloneOf(const CPolyline::CExtendParam* param)
{
    return param != nullptr ? param->Clone() : nullptr;
}

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
                             : CSegment::GetBoundRectOfLine(from, node.point);
}

} // namespace

CPolyline::CExtendParam::~CExtendParam() = default;

CPolyline::CPolyline() : CPolyline(0xFFFFFFFFU)
{
}

CPolyline::CPolyline(unsigned int callersId) : id(callersId), attribute(1), flags(0), extendParam(nullptr)
{
}

CPolyline::CPolyline(const CPolyline& other)
    : id(other.id),
      attribute(other.attribute),
      start(other.start),
      nodes(other.nodes),
      flags(other.flags),
      extendParam(CloneOf(other.extendParam))
{
}

CPolyline& CPolyline::operator=(const CPolyline& other)
{
    if (this == &other)
    {
        return *this;
    }
    // Memory first: nothing has changed if there is none.
    nodes.reserve(other.nodes.size());
    nodes = other.nodes;
    id = other.id;
    attribute = other.attribute;
    start = other.start;
    flags = other.flags;
    // Null in between: cloning may raise an exception.
    SetExtendParam(nullptr);
    extendParam = CloneOf(other.extendParam);
    return *this;
}

CPolyline::~CPolyline()
{
    delete extendParam;
}

void CPolyline::AddNodes(const DPOINT2& point, double bulge)
{
    const DPOINT2& last = nodes.empty() ? start : nodes.back().point;
    if (!AreIdentical(point, last))
    {
        nodes.push_back({point, bulge});
    }
}

void CPolyline::AddNodes(const NODE& node)
{
    AddNodes(node.point, node.bulge);
}

bool CPolyline::IsClosed() const
{
    return !nodes.empty() && AreIdentical(nodes.back().point, start);
}

void CPolyline::ReversePolyline()
{
    if (nodes.empty())
    {
        return;
    }
    std::reverse(nodes.begin(), nodes.end());
    // A bulge belongs to the segment that arrives at its node, so the points move one node on.
    const DPOINT2 oldStart = start;
    start = nodes.front().point;
    for (std::size_t i = 0; i + 1 < nodes.size(); ++i)
    {
        nodes[i].point = nodes[i + 1].point;
    }
    nodes.back().point = oldStart;
    for (NODE& node : nodes)
    {
        node.bulge *= -1.0;
    }
}

DRECT CPolyline::GetRECT() const
{
    if (nodes.empty())
    {
        return {};
    }
    DRECT box = GetSegment(0).GetBoundRect();
    for (std::size_t i = 1; i < nodes.size(); ++i)
    {
        box = detail::UnionOf(box, BoxUpTo(nodes[i - 1].point, nodes[i]));
    }
    return box;
}

CSegment CPolyline::GetSegment(std::uint64_t index) const
{
    if (index >= nodes.size())
    {
        return {};
    }
    const DPOINT2& from = index == 0 ? start : nodes[index - 1].point;
    const NODE& node = nodes[index];
    return node.bulge != 0.0 ? CSegment(from, node.point, node.bulge) : CSegment(from, node.point);
}

double CPolyline::GetLength(double from, double to) const
{
    const auto count = static_cast<double>(nodes.size());
    // Not below is also what NaN is. The ends being in order, one bound is left for each.
    if (IsZero(from - to) || !(from < to) || from < 0.0 || to > count)
    {
        return 0.0;
    }
    double integerPart = 0.0;
    const double fromRatio = std::modf(from, &integerPart);
    const auto firstIndex = static_cast<std::uint64_t>(integerPart);
    double toRatio = std::modf(to, &integerPart);
    auto lastIndex = static_cast<std::uint64_t>(integerPart);

    double length = 0.0;
    for (std::uint64_t i = firstIndex + 1; i < lastIndex; ++i)
    {
        length += GetSegment(i).GetLength();
    }
    if (firstIndex == lastIndex)
    {
        return length + GetSegment(firstIndex).GetLength() * (toRatio - fromRatio);
    }
    if (lastIndex == nodes.size())
    {
        // The very end: no segment lies beyond it, so the last term is to vanish.
        lastIndex = 0;
        toRatio = 0.0;
    }
    length += GetSegment(firstIndex).GetLength() * (1.0 - fromRatio);
    length += GetSegment(lastIndex).GetLength() * toRatio;
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
        const double chord = D2GetDistance(previous, node.point);
        if (IsZero(chord))
        {
            // The predecessor stays, so many tiny steps add up to one that counts.
            continue;
        }
        area += AreaUnderChord(previous, node.point);
        if (!IsZero(node.bulge))
        {
            area += AreaOverChord(chord, node.bulge);
        }
        previous = node.point;
    }
    // Skipped nodes at the end leave a gap to the start.
    return area + AreaUnderChord(previous, start);
}

void CPolyline::SetExtendParam(CExtendParam* param)
{
    if (param == extendParam)
    {
        return;
    }
    delete extendParam;
    extendParam = param;
}

CPolyline::CExtendParam* CPolyline::GetExtendParam()
{
    return extendParam;
}

const CPolyline::CExtendParam* CPolyline::GetExtendParam() const
{
    return extendParam;
}

} // namespace math
