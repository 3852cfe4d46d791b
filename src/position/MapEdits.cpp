#include "math/CPolyPosMap.h"

#include "math/CPolyPosMapUtilies.h"
#include "position/PairList.h"
#include "primitives/Tolerance.h"

namespace math
{

using detail::AreEqual;
using detail::BothSides;
using detail::ColumnValue;
using detail::DestinationSide;
using detail::Joint;
using detail::JointList;
using detail::ShiftColumn;
using detail::SourceSide;

namespace
{

void TurnColumn(JointList& joints, int side, int segmentCount)
{
    for (Joint& joint : joints)
    {
        ColumnValue(joint, side) = segmentCount - ColumnValue(joint, side);
    }
}

bool IsAtSeam(double position, int segmentCount)
{
    return detail::IsZero(position) || AreEqual(position, segmentCount);
}

} // namespace

void CPolyPosMap::Offset(const double& delta, const int& side)
{
    if (IsInvalid() || IsEmpty())
    {
        return;
    }
    const double shift = delta;
    if (side == SourceSide || side == BothSides)
    {
        ShiftColumn(m_posPairs, SourceSide, shift);
    }
    if (side == DestinationSide || side == BothSides)
    {
        ShiftColumn(m_posPairs, DestinationSide, shift);
    }
}

void CPolyPosMap::Split(const double& pos, const int& side)
{
    // A copy of the map is split, so that the map is as before if memory runs out between the sides.
    CPolyPosMap split(*this);
    if ((side == SourceSide || side == BothSides) && !IsAtSeam(pos, split.m_srcSegmentCount))
    {
        split = CPolyPosMapUtilies::ResetZero(pos, split.m_srcSegmentCount) * split;
    }
    if ((side == DestinationSide || side == BothSides) && !IsAtSeam(pos, split.m_dstSegmentCount))
    {
        split *= !CPolyPosMapUtilies::ResetZero(pos, split.m_dstSegmentCount);
    }
    *this = split;
}

void CPolyPosMap::ReverseDirection(int side)
{
    if (side != SourceSide && side != DestinationSide && side != BothSides)
    {
        return;
    }
    if (side != DestinationSide)
    {
        TurnColumn(m_posPairs, SourceSide, m_srcSegmentCount);
    }
    if (side != SourceSide)
    {
        TurnColumn(m_posPairs, DestinationSide, m_dstSegmentCount);
    }
    Normalize();
    if (side != DestinationSide)
    {
        Reverse();
    }
}

} // namespace math
