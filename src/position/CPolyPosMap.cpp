#include "math/CPolyPosMap.h"

#include "position/Columns.h"
#include "position/PairList.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cstddef>
#include <utility>
#include <vector>

#if defined(_WIN32)
template class QORMATH_EXPORT std::vector<std::pair<double, double>>;
#else
template class std::vector<std::pair<double, double>>;
#endif

namespace math
{

using detail::AreEqual;
using detail::BothSides;
using detail::ColumnValue;
using detail::DestinationSide;
using detail::Joint;
using detail::JointList;
using detail::NoPosition;
using detail::SourceSide;

CPolyPosMap::CPolyPosMap() : m_srcSegmentCount(0), m_dstSegmentCount(0)
{
}

CPolyPosMap::CPolyPosMap(const std::vector<std::pair<double, double>>& pairs, const int& srcSegmentCount,
                         const int& dstSegmentCount)
    : m_posPairs(pairs),
      m_srcSegmentCount(srcSegmentCount),
      m_dstSegmentCount(dstSegmentCount)
{
}

CPolyPosMap::CPolyPosMap(const CPolyPosMap& other) = default;
CPolyPosMap::~CPolyPosMap() = default;

CPolyPosMap& CPolyPosMap::operator=(const CPolyPosMap& other)
{
    // Memory first: nothing has changed if there is none.
    m_posPairs.reserve(other.m_posPairs.size());
    m_posPairs = other.m_posPairs;
    m_srcSegmentCount = other.m_srcSegmentCount;
    m_dstSegmentCount = other.m_dstSegmentCount;
    return *this;
}

std::vector<std::pair<double, double>>& CPolyPosMap::PosPairs()
{
    return m_posPairs;
}

const std::vector<std::pair<double, double>>& CPolyPosMap::PosPairs() const
{
    return m_posPairs;
}

int& CPolyPosMap::SrcSegmentCount()
{
    return m_srcSegmentCount;
}

const int& CPolyPosMap::SrcSegmentCount() const
{
    return m_srcSegmentCount;
}

int& CPolyPosMap::DstSegmentCount()
{
    return m_dstSegmentCount;
}

const int& CPolyPosMap::DstSegmentCount() const
{
    return m_dstSegmentCount;
}

void CPolyPosMap::MakeEmpty()
{
    m_posPairs.clear();
    m_srcSegmentCount = 0;
    m_dstSegmentCount = 0;
}

bool CPolyPosMap::IsEmpty() const
{
    return m_posPairs.empty();
}

std::pair<double, double> CPolyPosMap::Front() const
{
    return IsEmpty() ? Joint(NoPosition, NoPosition) : m_posPairs.front();
}

std::pair<double, double> CPolyPosMap::Back() const
{
    return IsEmpty() ? Joint(NoPosition, NoPosition) : m_posPairs.back();
}

bool CPolyPosMap::IsPosPairEqual(const std::pair<double, double>& a, const std::pair<double, double>& b)
{
    return AreEqual(a.first, b.first) && AreEqual(a.second, b.second);
}

void CPolyPosMap::Reverse()
{
    std::reverse(m_posPairs.begin(), m_posPairs.end());
}

void CPolyPosMap::Invert()
{
    if (IsIdentity())
    {
        return;
    }
    for (Joint& joint : m_posPairs)
    {
        std::swap(joint.first, joint.second);
    }
    std::swap(m_srcSegmentCount, m_dstSegmentCount);
}

CPolyPosMap CPolyPosMap::operator!() const
{
    CPolyPosMap inverse(*this);
    inverse.Invert();
    return inverse;
}

bool CPolyPosMap::IsIdentity() const
{
    return detail::IsIdentityList(m_posPairs, m_srcSegmentCount, m_dstSegmentCount);
}

bool CPolyPosMap::IsInvalid() const
{
    return detail::ListShape(m_posPairs, m_srcSegmentCount, m_dstSegmentCount).isIllFormed;
}

bool CPolyPosMap::IsNormalize() const
{
    return !IsInvalid() && detail::StartsInFirstLap(m_posPairs, m_srcSegmentCount, m_dstSegmentCount);
}

bool CPolyPosMap::IsIncrease(const int& side) const
{
    if (IsInvalid())
    {
        return false;
    }
    if (m_posPairs.size() < 2)
    {
        return true;
    }
    const bool sourceUp = detail::RunsUpward(m_posPairs, SourceSide);
    const bool destinationUp = detail::RunsUpward(m_posPairs, DestinationSide);
    switch (side)
    {
    case SourceSide:
        return sourceUp;
    case DestinationSide:
        return destinationUp;
    case BothSides:
        return sourceUp && destinationUp;
    default:
        return true;
    }
}

bool CPolyPosMap::IsPoint(const int& side) const
{
    if (IsInvalid())
    {
        return false;
    }
    if (m_posPairs.size() < 2)
    {
        return true;
    }
    const bool sourceStands = AreEqual(m_posPairs.front().first, m_posPairs.back().first);
    const bool destinationStands = AreEqual(m_posPairs.front().second, m_posPairs.back().second);
    switch (side)
    {
    case SourceSide:
        return sourceStands;
    case DestinationSide:
        return destinationStands;
    case BothSides:
        return sourceStands && destinationStands;
    default:
        return true;
    }
}

PosRangeD CPolyPosMap::GetRange(const int& side, const bool& normalize) const
{
    if (IsInvalid() || IsEmpty() || (side != SourceSide && side != DestinationSide))
    {
        return PosRangeD();
    }
    const detail::Span span = detail::SpanOf(m_posPairs, side);
    if (!normalize)
    {
        return PosRangeD(span.start, span.end);
    }
    const int segmentCount = side == SourceSide ? m_srcSegmentCount : m_dstSegmentCount;
    const double start = PosRangeD::NormalizePos(span.start, segmentCount);
    const double end = PosRangeD::NormalizePos(span.end, segmentCount);
    return PosRangeD(start, end);
}

} // namespace math
