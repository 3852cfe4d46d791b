#include "math/CPolyPosMap.h"

#include "position/Columns.h"
#include "position/MapEvaluator.h"
#include "position/PairList.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <cstddef>
#include <utility>
#include <vector>

namespace math
{

using detail::AreEqual;
using detail::BothSides;
using detail::ColumnValue;
using detail::DestinationSide;
using detail::NoPosition;
using detail::SourceSide;

namespace
{

/// Sorts images and drops each one that is near the last one kept.
void SortUniqueImages(std::vector<double>& images, bool ascending)
{
    detail::SortPositions(images.begin(), images.end(), ascending);
    std::size_t kept = 0;
    for (const double image : images)
    {
        if (kept == 0 || !AreEqual(images[kept - 1], image))
        {
            images[kept++] = image;
        }
    }
    images.resize(kept);
}

} // namespace

std::vector<double> CPolyPosMap::MultyDouble(const std::vector<std::pair<double, double>>& pairs, const double& pos)
{
    if (pairs.empty())
    {
        return {pos};
    }
    std::vector<double> images;
    detail::ForEachImage(pairs, pos, SourceSide, [&](double image) { images.push_back(image); });
    return images;
}

std::vector<double> CPolyPosMap::operator*(const double& pos) const
{
    detail::MapEvaluator evaluator(m_posPairs, m_srcSegmentCount, m_dstSegmentCount);
    std::vector<double> images;
    if (IsEmpty() || (!evaluator.IsOrdered() && !evaluator.IsIllFormed()))
    {
        images = MultyDouble(m_posPairs, evaluator.MoveToLap(pos));
    }
    else
    {
        evaluator.AppendImages(pos, images);
    }
    return images;
}

std::vector<double> CPolyPosMap::MultyDouble(const double& pos, const bool& bothSeamFaces,
                                             const bool& liftSeamImages) const
{
    detail::MapEvaluator evaluator(m_posPairs, m_srcSegmentCount, m_dstSegmentCount);
    if (evaluator.IsIllFormed())
    {
        return {};
    }
    const double countFace = m_srcSegmentCount;
    const double wrapped = evaluator.MoveToLap(pos);
    const bool up = detail::RunsUpward(m_posPairs, DestinationSide);
    std::vector<double> atZero;
    std::vector<double> atCount;
    if (detail::IsZero(wrapped))
    {
        evaluator.AppendImages(wrapped, atZero);
        if (bothSeamFaces)
        {
            evaluator.AppendImages(countFace, atCount);
        }
    }
    else if (AreEqual(wrapped, countFace))
    {
        evaluator.AppendImages(wrapped, atCount);
        if (bothSeamFaces)
        {
            evaluator.AppendImages(0.0, atZero);
        }
    }
    else
    {
        std::vector<double> elsewhere;
        evaluator.AppendImages(wrapped, elsewhere);
        SortUniqueImages(elsewhere, up);
        return elsewhere;
    }

    SortUniqueImages(atZero, up);
    SortUniqueImages(atCount, up);
    if (liftSeamImages && !atZero.empty() && !atCount.empty())
    {
        for (double& image : atZero)
        {
            image += m_dstSegmentCount;
        }
    }
    atZero.insert(atZero.end(), atCount.begin(), atCount.end());
    SortUniqueImages(atZero, up);
    return atZero;
}

int CPolyPosMap::GetMaxLeftIndex(const double& pos, const int& side) const
{
    return IsInvalid() ? -1 : detail::FindLeftIndex(m_posPairs, pos, side);
}

int CPolyPosMap::GetMinRightIndex(const double& pos, const int& side) const
{
    return IsInvalid() ? -1 : detail::FindRightIndex(m_posPairs, pos, side);
}

bool CPolyPosMap::IsOverRange(const double& pos, const int& side) const
{
    if (IsInvalid())
    {
        return false;
    }
    if (IsEmpty())
    {
        return true;
    }
    if (side == BothSides)
    {
        return IsOverRange(pos, SourceSide) || IsOverRange(pos, DestinationSide);
    }
    if (side != SourceSide && side != DestinationSide)
    {
        return false;
    }
    if (IsPoint(side))
    {
        return !AreEqual(pos, ColumnValue(m_posPairs.front(), side));
    }
    // The source count wraps the position on either side.
    const double wrapped = PosRangeD::NormalizePos(pos, m_srcSegmentCount);
    const PosRangeD covered = GetRange(side, true);
    return !covered.IsOn(wrapped) && !covered.IsContain(wrapped);
}

std::pair<double, double> CPolyPosMap::Insert(const double& pos, const int& side)
{
    if (side != SourceSide && side != DestinationSide)
    {
        return {NoPosition, NoPosition};
    }
    const int segmentCount = side == SourceSide ? m_srcSegmentCount : m_dstSegmentCount;
    const double moved = PosRangeD::NormalizePos(pos, GetRange(side, false), segmentCount);
    return detail::InsertJoint(m_posPairs, moved, side);
}

} // namespace math
