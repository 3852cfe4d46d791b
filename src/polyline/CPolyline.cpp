#include "math/CPolyline.h"

#include <algorithm>
#include <cstddef>

namespace math
{

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
