#include "math/CPolyPosMap.h"

#include "position/PairList.h"
#include "position/SortByImages.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <map>

namespace math
{

using detail::AreEqual;
using detail::DestinationSide;
using detail::ImageTable;
using detail::Joint;
using detail::JointList;
using detail::SourceSide;

namespace
{

using PreimageTable = std::map<double, std::vector<double>>;

/// Normalises until the map is normal. Positions whose integer part is an `int` settle within a few passes; a map whose
/// columns run opposite ways may never get there.
bool BringToNormalForm(CPolyPosMap& map)
{
    constexpr int mostPasses = 8;
    for (int pass = 0; pass < mostPasses; ++pass)
    {
        if (map.IsNormalize())
        {
            return true;
        }
        map.Normalize();
    }
    return map.IsNormalize();
}

int DoubledCount(int segmentCount)
{
    return detail::SaturateToInt(std::int64_t{2} * segmentCount);
}

/// Writes a map over two laps of both polylines, so that the walk goes straight on from the first lap into the second
/// on either side.
CPolyPosMap UnrollTwoLaps(const CPolyPosMap& map)
{
    const bool sourceUp = map.IsIncrease(SourceSide);
    const bool destinationUp = map.IsIncrease(DestinationSide);
    const double sourceLap = map.SrcSegmentCount();
    const double destinationLap = map.DstSegmentCount();
    const Joint firstShift(sourceUp ? 0.0 : sourceLap, destinationUp ? 0.0 : destinationLap);
    const Joint secondShift(sourceUp ? sourceLap : 0.0, destinationUp ? destinationLap : 0.0);

    JointList joints;
    joints.reserve(2 * map.PosPairs().size());
    for (const Joint& shift : {firstShift, secondShift})
    {
        for (const Joint& joint : map.PosPairs())
        {
            joints.emplace_back(joint.first + shift.first, joint.second + shift.second);
        }
    }
    return CPolyPosMap(joints, DoubledCount(map.SrcSegmentCount()), DoubledCount(map.DstSegmentCount()));
}

/// Sorts positions and collapses each chain of near ones to its last.
void SortUniquePositions(std::vector<double>& positions, bool ascending)
{
    detail::SortPositions(positions, ascending);
    std::size_t kept = 0;
    for (const double position : positions)
    {
        if (kept > 0 && AreEqual(positions[kept - 1], position))
        {
            --kept;
        }
        positions[kept++] = position;
    }
    positions.resize(kept);
}

bool IsSamePositionList(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](double x, double y) { return AreEqual(x, y); });
}

/// Tells whether a normal map runs past the count on a side.
bool CrossesSeam(const CPolyPosMap& map, int side)
{
    const int segmentCount = side == SourceSide ? map.SrcSegmentCount() : map.DstSegmentCount();
    if (map.IsPoint(side) || segmentCount == 0)
    {
        return false;
    }
    const PosRangeD covered = map.GetRange(side, false);
    const double boundary = static_cast<double>((detail::WholeLaps(covered.start, segmentCount) + 1) * segmentCount);
    return !AreEqual(covered.end, boundary) && covered.end > boundary;
}

bool KeepsDirection(const CPolyPosMap& map)
{
    return map.IsIncrease(SourceSide) == map.IsIncrease(DestinationSide);
}

/// A map to work on. Of two maps that meet at a seam, the partner of the side that crosses is lengthened to two laps;
/// where both cross, the second map alone.
CPolyPosMap WorkingCopy(const CPolyPosMap& map, bool overTwoLaps)
{
    CPolyPosMap copy = overTwoLaps ? UnrollTwoLaps(map) : map;
    copy.Unique(true);
    return copy;
}

/// Composes two normal maps that both have joints.
class Composition
{
public:
    Composition(const CPolyPosMap& first, const CPolyPosMap& second);

    CPolyPosMap Compose();

private:
    void CollectKeys();
    void CollectImages();
    void ReduceRuns();
    JointList JointsInWalkingOrder() const;
    void LimitToOneLap(JointList& joints) const;
    CPolyPosMap MakeResult(const JointList& joints) const;

    const CPolyPosMap& m_first;
    const CPolyPosMap& m_second;
    CPolyPosMap m_feeding; ///< the first map, unrolled if only the second one's source crosses the seam
    CPolyPosMap m_fed;     ///< the second map, unrolled if the first one's destination crosses the seam
    bool m_sameWay;
    std::vector<double> m_keys; ///< places on the first source where the result may have a joint, ascending
    PreimageTable m_preimages;  ///< key: such a place; value: joints of the second source that it lands on
    ImageTable m_images;        ///< key: such a place; value: its images in the order in which they are walked
};

Composition::Composition(const CPolyPosMap& first, const CPolyPosMap& second)
    : m_first(first),
      m_second(second),
      m_feeding(WorkingCopy(first, !CrossesSeam(first, DestinationSide) && CrossesSeam(second, SourceSide))),
      m_fed(WorkingCopy(second, CrossesSeam(first, DestinationSide))),
      m_sameWay(KeepsDirection(m_feeding) == KeepsDirection(m_fed))
{
}

void Composition::CollectKeys()
{
    std::vector<double> fedJoints;
    for (const Joint& joint : m_fed.PosPairs())
    {
        fedJoints.push_back(joint.first);
    }
    SortUniquePositions(fedJoints, true);

    const CPolyPosMap inverse = !m_feeding;
    const PosRangeD landing = inverse.GetRange(SourceSide, false);
    for (const double fedJoint : fedJoints)
    {
        const double moved = PosRangeD::NormalizePos(fedJoint, landing, inverse.SrcSegmentCount());
        for (const double key : detail::Evaluate(inverse.PosPairs(), moved))
        {
            m_keys.push_back(key);
            m_preimages[key].push_back(moved);
        }
    }
    for (const Joint& joint : m_feeding.PosPairs())
    {
        m_keys.push_back(joint.first);
    }
    SortUniquePositions(m_keys, true);
}

void Composition::CollectImages()
{
    for (const double key : m_keys)
    {
        std::vector<double> between = detail::Evaluate(m_feeding.PosPairs(), key);
        const auto preimage = m_preimages.find(key);
        if (preimage != m_preimages.end())
        {
            // What interpolation at the key missed, for instance the value of a joint on another lap.
            for (const double landed : preimage->second)
            {
                if (std::none_of(between.begin(), between.end(), [&](double x) { return AreEqual(x, landed); }))
                {
                    between.push_back(landed);
                }
            }
        }
        std::vector<double> images;
        for (const double position : between)
        {
            const std::vector<double> found = detail::Evaluate(m_fed.PosPairs(), position);
            images.insert(images.end(), found.begin(), found.end());
        }
        SortUniquePositions(images, m_sameWay);
        if (!images.empty())
        {
            m_images[key] = images;
        }
    }
}

/// Reduces each run of neighbouring places with one and the same image list to its two ends.
void Composition::ReduceRuns()
{
    for (std::size_t begin = 0; begin < m_keys.size(); ++begin)
    {
        const auto first = m_images.find(m_keys[begin]);
        if (first == m_images.end())
        {
            continue;
        }
        // Compared with the first of the run, so that small steps do not add up.
        const std::vector<double> images = first->second;
        std::size_t end = begin + 1;
        for (; end < m_keys.size(); ++end)
        {
            const auto next = m_images.find(m_keys[end]);
            if (next == m_images.end() || !IsSamePositionList(next->second, images))
            {
                break;
            }
        }
        if (end - begin < 2)
        {
            continue;
        }
        const double lastImage = m_images.find(m_keys[end - 1])->second.back();
        for (std::size_t i = begin; i < end; ++i)
        {
            m_images.erase(m_keys[i]);
        }
        // The last key of the run may begin the next one, with its one image.
        m_images[m_keys[begin]] = {images.front()};
        m_images[m_keys[end - 1]] = {lastImage};
    }
}

JointList Composition::JointsInWalkingOrder() const
{
    std::vector<double> keys;
    for (const auto& entry : m_images)
    {
        keys.push_back(entry.first);
    }
    detail::SortByImages(keys, m_images, m_sameWay);

    JointList joints;
    for (const double key : keys)
    {
        for (const double image : m_images.find(key)->second)
        {
            joints.emplace_back(key, image);
        }
    }
    return joints;
}

/// Ends a walk at `limit` on one side: puts a joint there unless the walk has one, and drops what lies beyond.
void CutBeyond(JointList& joints, int side, double limit, bool upward)
{
    bool reached = false;
    for (std::size_t i = 0; i < joints.size();)
    {
        const double value = detail::ColumnValue(joints[i], side);
        if (AreEqual(value, limit))
        {
            reached = true;
            ++i;
        }
        else if (upward ? value > limit : value < limit)
        {
            if (reached)
            {
                joints.erase(joints.begin() + static_cast<std::ptrdiff_t>(i));
            }
            else
            {
                detail::InsertJoint(joints, limit, side);
                reached = true;
            }
        }
        else
        {
            ++i;
        }
    }
}

void Composition::LimitToOneLap(JointList& joints) const
{
    const double sourceLimit = joints.front().first + m_first.SrcSegmentCount();
    CutBeyond(joints, SourceSide, sourceLimit, true);

    const double lap = m_second.DstSegmentCount();
    const double destinationLimit = joints.front().second + (m_sameWay ? lap : -lap);
    CutBeyond(joints, DestinationSide, destinationLimit, m_sameWay);
}

CPolyPosMap Composition::MakeResult(const JointList& joints) const
{
    CPolyPosMap result(joints, m_first.SrcSegmentCount(), m_second.DstSegmentCount());
    if (result.IsIncrease(SourceSide) != m_first.IsIncrease(SourceSide))
    {
        result.Reverse();
    }
    result.Unique(true);
    result.Normalize();
    return result;
}

CPolyPosMap Composition::Compose()
{
    CollectKeys();
    CollectImages();
    ReduceRuns();
    JointList joints = JointsInWalkingOrder();
    if (joints.empty())
    {
        return CPolyPosMap();
    }
    LimitToOneLap(joints);
    return MakeResult(joints);
}

} // namespace

CPolyPosMap CPolyPosMap::operator*(const CPolyPosMap& other) const
{
    if (IsInvalid() || other.IsInvalid())
    {
        return CPolyPosMap();
    }
    CPolyPosMap first(*this);
    CPolyPosMap second(other);
    if (!BringToNormalForm(first) || !BringToNormalForm(second))
    {
        return CPolyPosMap();
    }
    if (first.IsEmpty())
    {
        return second;
    }
    if (second.IsEmpty())
    {
        return first;
    }
    return Composition(first, second).Compose();
}

CPolyPosMap& CPolyPosMap::operator*=(const CPolyPosMap& other)
{
    if (!IsInvalid())
    {
        *this = *this * other;
    }
    return *this;
}

bool CPolyPosMap::IsInvertTo(const CPolyPosMap& other)
{
    if (IsInvalid() || other.IsInvalid())
    {
        return false;
    }
    if (m_srcSegmentCount != other.m_dstSegmentCount || m_dstSegmentCount != other.m_srcSegmentCount)
    {
        return false;
    }
    return (*this * other).IsIdentity();
}

} // namespace math
