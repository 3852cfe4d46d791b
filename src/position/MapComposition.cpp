#include "math/CPolyPosMap.h"

#include "position/Columns.h"
#include "position/JointLookup.h"
#include "position/LapMover.h"
#include "position/PairList.h"
#include "position/Positions.h"
#include "position/SortByImages.h"
#include "position/SortStably.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace math
{

using detail::AreEqual;
using detail::DestinationSide;
using detail::Joint;
using detail::JointList;
using detail::JointLookup;
using detail::SourceSide;
using detail::Station;

namespace
{

/// Normalises until the map is normal. Positions whose integer part is an `int` settle within a few passes; a map whose
/// columns run opposite ways may never get there.
///
/// @param moved  where the normal form of a map that is not normal goes
/// @return the map itself or `moved`; null if the map is ill-formed or never gets normal
const CPolyPosMap* InNormalForm(const CPolyPosMap& map, CPolyPosMap& moved)
{
    if (map.IsInvalid())
    {
        return nullptr;
    }
    if (detail::StartsInFirstLap(map.PosPairs(), map.SrcSegmentCount(), map.DstSegmentCount()))
    {
        return &map;
    }
    moved = map;
    constexpr int mostPasses = 8;
    for (int pass = 0; pass < mostPasses; ++pass)
    {
        moved.Normalize();
        if (moved.IsNormalize())
        {
            return &moved;
        }
    }
    return nullptr;
}

/// Collapses each chain of near values, from `begin` to the end of sorted positions, to its last.
void CollapseChains(std::vector<double>& positions, std::size_t begin)
{
    std::size_t kept = begin;
    for (std::size_t i = begin; i < positions.size(); ++i)
    {
        if (kept > begin && AreEqual(positions[kept - 1], positions[i]))
        {
            --kept;
        }
        positions[kept++] = positions[i];
    }
    positions.resize(kept);
}

/// Tells whether a normal list runs past the count on a side.
bool CrossesSeam(const JointList& joints, int side, int segmentCount)
{
    const detail::Span covered = detail::SpanOf(joints, side);
    if (joints.size() < 2 || AreEqual(covered.start, covered.end) || segmentCount == 0)
    {
        return false;
    }
    const double boundary = static_cast<double>((detail::WholeLaps(covered.start, segmentCount) + 1) * segmentCount);
    return !AreEqual(covered.end, boundary) && covered.end > boundary;
}

int DoubledCount(int segmentCount)
{
    return detail::SaturateToInt(std::int64_t{2} * segmentCount);
}

/// Writes a list over two laps of both polylines, so that the walk goes straight on from the first lap into the second
/// on either side.
JointList UnrollTwoLaps(const CPolyPosMap& map)
{
    const JointList& lap = map.PosPairs();
    const bool sourceUp = detail::RunsUpward(lap, SourceSide);
    const bool destinationUp = detail::RunsUpward(lap, DestinationSide);
    const double sourceLap = map.SrcSegmentCount();
    const double destinationLap = map.DstSegmentCount();
    const Joint firstShift(sourceUp ? 0.0 : sourceLap, destinationUp ? 0.0 : destinationLap);
    const Joint secondShift(sourceUp ? sourceLap : 0.0, destinationUp ? destinationLap : 0.0);

    JointList joints;
    joints.reserve(2 * lap.size());
    for (const Joint& shift : {firstShift, secondShift})
    {
        for (const Joint& joint : lap)
        {
            joints.emplace_back(joint.first + shift.first, joint.second + shift.second);
        }
    }
    return joints;
}

/// A list without repeated and straight joints.
JointList Tidied(JointList joints)
{
    detail::Tidy(joints);
    return joints;
}

/// A tidy copy of a map to work on.
struct WorkingMap
{
    WorkingMap(const CPolyPosMap& map, bool overTwoLaps)
        : srcSegmentCount(overTwoLaps ? DoubledCount(map.SrcSegmentCount()) : map.SrcSegmentCount()),
          dstSegmentCount(overTwoLaps ? DoubledCount(map.DstSegmentCount()) : map.DstSegmentCount()),
          joints(Tidied(overTwoLaps ? UnrollTwoLaps(map) : map.PosPairs())),
          shape(joints, srcSegmentCount, dstSegmentCount)
    {
    }

    int srcSegmentCount;
    int dstSegmentCount;
    JointList joints;
    detail::ListShape shape;
};

/// A place on the source of the first map and the joint of the second map that it lands on.
struct Landing
{
    double place;
    double position;
};

/// The joints of the first source and the places of the landings, both ascending, merged into one walk.
class MergedPlaces
{
public:
    MergedPlaces(const std::vector<double>& own, const std::vector<Landing>& landings)
        : m_own(own.begin()),
          m_ownEnd(own.end()),
          m_landing(landings.begin()),
          m_landingsEnd(landings.end())
    {
    }

    bool IsAtEnd() const
    {
        return m_own == m_ownEnd && m_landing == m_landingsEnd;
    }

    double TakeFirst()
    {
        const bool isOwn =
            m_landing == m_landingsEnd || (m_own != m_ownEnd && detail::LiesBefore(*m_own, m_landing->place, true));
        return isOwn ? *m_own++ : (m_landing++)->place;
    }

private:
    std::vector<double>::const_iterator m_own;
    std::vector<double>::const_iterator m_ownEnd;
    std::vector<Landing>::const_iterator m_landing;
    std::vector<Landing>::const_iterator m_landingsEnd;
};

/// Carries places, one after the other upward, through both maps.
class StationWriter
{
public:
    StationWriter(const WorkingMap& feeding, const WorkingMap& fed, const std::vector<Landing>& landings, bool sameWay,
                  std::vector<Station>& stations, std::vector<double>& images)
        : m_feeding(feeding.joints, SourceSide, feeding.shape.source),
          m_fed(fed.joints, SourceSide, fed.shape.source),
          m_landing(landings.begin()),
          m_landingsEnd(landings.end()),
          m_sameWay(sameWay),
          m_stations(stations),
          m_images(images)
    {
    }

    /// Adds the station of a place, with its images.
    void Write(double place)
    {
        FindBetween(place);
        const std::size_t begin = m_images.size();
        for (const double position : m_between)
        {
            m_fed.ForEachImage(position, [this](double image) { m_images.push_back(image); });
        }
        if (m_images.size() - begin > 1)
        {
            detail::SortPositions(m_images.begin() + static_cast<std::ptrdiff_t>(begin), m_images.end(), m_sameWay);
            CollapseChains(m_images, begin);
        }
        m_stations.push_back({place, begin, m_images.size()});
    }

private:
    /// Finds the positions between the two maps.
    void FindBetween(double place)
    {
        m_between.clear();
        m_feeding.ForEachImage(place, [this](double position) { m_between.push_back(position); });
        for (; m_landing != m_landingsEnd && m_landing->place <= place; ++m_landing)
        {
            // What interpolation at the place missed, for instance the value of a joint on another lap.
            const auto isKnown = [this](double position) { return AreEqual(position, m_landing->position); };
            if (m_landing->place == place && std::none_of(m_between.begin(), m_between.end(), isKnown))
            {
                m_between.push_back(m_landing->position);
            }
        }
    }

    JointLookup m_feeding;
    JointLookup m_fed;
    std::vector<Landing>::const_iterator m_landing;
    std::vector<Landing>::const_iterator m_landingsEnd;
    bool m_sameWay;
    std::vector<Station>& m_stations;
    std::vector<double>& m_images;
    std::vector<double> m_between;
};

/// Composes two normal maps that both have joints. Of maps that meet at a seam, the partner of the side that crosses is
/// lengthened to two laps; where both cross, the second map alone.
class Composition
{
public:
    Composition(const CPolyPosMap& first, const CPolyPosMap& second);

    CPolyPosMap Compose();

private:
    void CollectLandings();
    void CollectStations();
    void ReduceRuns();
    bool HaveSameImages(const Station& a, const Station& b) const;
    JointList JointsInWalkingOrder();
    void LimitToOneLap(JointList& joints) const;
    CPolyPosMap MakeResult(JointList& joints) const;

    const CPolyPosMap& m_first;
    const CPolyPosMap& m_second;
    bool m_firstCrosses;  ///< the first map's destination crosses the seam
    bool m_secondCrosses; ///< the second map's source crosses the seam
    WorkingMap m_feeding; ///< the first map, unrolled if only the second one's source crosses the seam
    WorkingMap m_fed;     ///< the second map, unrolled if the first one's destination crosses the seam
    bool m_sameWay;
    std::vector<Landing> m_landings; ///< ascending by place
    std::vector<Station> m_stations; ///< places on the first source where the result may have a joint, ascending
    std::vector<double> m_images;    ///< the images of all stations, one after the other
    std::vector<double> m_positions; ///< a source column, ascending; of either map in turn
};

Composition::Composition(const CPolyPosMap& first, const CPolyPosMap& second)
    : m_first(first),
      m_second(second),
      m_firstCrosses(CrossesSeam(first.PosPairs(), DestinationSide, first.DstSegmentCount())),
      m_secondCrosses(CrossesSeam(second.PosPairs(), SourceSide, second.SrcSegmentCount())),
      m_feeding(first, !m_firstCrosses && m_secondCrosses),
      m_fed(second, m_firstCrosses),
      m_sameWay(detail::KeepsDirection(m_feeding.joints, m_feeding.shape) ==
                detail::KeepsDirection(m_fed.joints, m_fed.shape))
{
}

/// Puts the source column into ascending order.
void SortSources(const WorkingMap& map, std::vector<double>& positions)
{
    positions.clear();
    for (const Joint& joint : map.joints)
    {
        positions.push_back(joint.first);
    }
    if (map.shape.source != detail::ColumnOrder::Rising)
    {
        detail::SortPositions(positions.begin(), positions.end(), true);
    }
}

/// Carries the joints of the second source, of near ones the last, back through the first map.
void Composition::CollectLandings()
{
    // The inverse of the first map: an identity is its own.
    const bool isIdentity =
        detail::IsIdentityList(m_feeding.joints, m_feeding.srcSegmentCount, m_feeding.dstSegmentCount);
    const int side = isIdentity ? SourceSide : DestinationSide;
    const detail::ColumnOrder order = isIdentity ? m_feeding.shape.source : m_feeding.shape.destination;
    const detail::LapMover moveToLap(m_feeding.shape.isIllFormed ? detail::NoSpan
                                                                 : detail::SpanOf(m_feeding.joints, side),
                                     m_feeding.dstSegmentCount);
    JointLookup lookup(m_feeding.joints, side, order);
    SortSources(m_fed, m_positions);
    CollapseChains(m_positions, 0);
    m_landings.reserve(m_positions.size());
    for (const double fedJoint : m_positions)
    {
        const double moved = moveToLap(fedJoint);
        lookup.ForEachImage(moved, [&](double place) { m_landings.push_back({place, moved}); });
    }
    detail::SortStably(m_landings.begin(), m_landings.end(),
                       [](const Landing& a, const Landing& b) { return detail::LiesBefore(a.place, b.place, true); });
}

/// Makes stations of the joints of the first source and the places that the second map brings in.
void Composition::CollectStations()
{
    SortSources(m_feeding, m_positions);
    m_stations.reserve(m_landings.size() + m_positions.size());
    m_images.reserve(m_landings.size() + m_positions.size());
    StationWriter writer(m_feeding, m_fed, m_landings, m_sameWay, m_stations, m_images);
    MergedPlaces places(m_positions, m_landings);
    double place = places.TakeFirst();
    while (!places.IsAtEnd())
    {
        const double next = places.TakeFirst();
        // Of a chain of near places the last one stays.
        if (!AreEqual(place, next))
        {
            writer.Write(place);
        }
        place = next;
    }
    writer.Write(place);
}

bool Composition::HaveSameImages(const Station& a, const Station& b) const
{
    const auto image = [&](std::size_t index) { return m_images.begin() + static_cast<std::ptrdiff_t>(index); };
    return std::equal(image(a.imagesBegin), image(a.imagesEnd), image(b.imagesBegin), image(b.imagesEnd),
                      [](double x, double y) { return AreEqual(x, y); });
}

/// Reduces each run of neighbouring places with one and the same image list to its two ends.
void Composition::ReduceRuns()
{
    for (std::size_t begin = 0; begin < m_stations.size(); ++begin)
    {
        Station& first = m_stations[begin];
        if (first.HasNoImages())
        {
            continue;
        }
        // Compared with the first of the run, so that small steps do not add up.
        std::size_t end = begin + 1;
        while (end < m_stations.size() && HaveSameImages(first, m_stations[end]))
        {
            ++end;
        }
        if (end - begin < 2)
        {
            continue;
        }
        for (std::size_t i = begin + 1; i + 1 < end; ++i)
        {
            m_stations[i].imagesEnd = m_stations[i].imagesBegin;
        }
        // The last place of the run may begin the next one, with its one image.
        Station& last = m_stations[end - 1];
        first.imagesEnd = first.imagesBegin + 1;
        last.imagesBegin = last.imagesEnd - 1;
    }
}

JointList Composition::JointsInWalkingOrder()
{
    m_stations.erase(std::remove_if(m_stations.begin(), m_stations.end(),
                                    [](const Station& station) { return station.HasNoImages(); }),
                     m_stations.end());
    detail::SortByImages(m_stations, m_images, m_sameWay);

    JointList joints;
    joints.reserve(m_images.size() + 1);
    for (const Station& station : m_stations)
    {
        for (std::size_t i = station.imagesBegin; i < station.imagesEnd; ++i)
        {
            joints.emplace_back(station.place, m_images[i]);
        }
    }
    return joints;
}

/// Ends a walk at `limit` on one side: puts a joint there unless the walk has one, and drops what lies beyond.
void CutBeyond(JointList& joints, int side, double limit, bool upward)
{
    const auto isAtLimit = [=](const Joint& joint) { return AreEqual(detail::ColumnValue(joint, side), limit); };
    const auto isBeyond = [=](const Joint& joint) {
        const double value = detail::ColumnValue(joint, side);
        return (upward ? value - limit : limit - value) >= DoubleTolerance;
    };
    const auto firstOut = std::find_if(joints.begin(), joints.end(), isBeyond);
    if (firstOut == joints.end())
    {
        return;
    }
    if (std::none_of(joints.begin(), firstOut, isAtLimit))
    {
        detail::InsertJoint(joints, limit, side);
    }
    joints.erase(std::remove_if(joints.begin(), joints.end(), isBeyond), joints.end());
}

void Composition::LimitToOneLap(JointList& joints) const
{
    const double sourceLimit = joints.front().first + m_first.SrcSegmentCount();
    CutBeyond(joints, SourceSide, sourceLimit, true);

    const double lap = m_second.DstSegmentCount();
    const double destinationLimit = joints.front().second + (m_sameWay ? lap : -lap);
    CutBeyond(joints, DestinationSide, destinationLimit, m_sameWay);
}

CPolyPosMap Composition::MakeResult(JointList& joints) const
{
    CPolyPosMap result;
    result.PosPairs().swap(joints);
    result.SrcSegmentCount() = m_first.SrcSegmentCount();
    result.DstSegmentCount() = m_second.DstSegmentCount();
    if (result.IsIncrease(SourceSide) != detail::RunsUpward(m_first.PosPairs(), SourceSide))
    {
        result.Reverse();
    }
    result.Unique(true);
    result.Normalize();
    return result;
}

CPolyPosMap Composition::Compose()
{
    m_positions.reserve(std::max(m_feeding.joints.size(), m_fed.joints.size()));
    CollectLandings();
    CollectStations();
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
    CPolyPosMap moved;
    CPolyPosMap otherMoved;
    const CPolyPosMap* const first = InNormalForm(*this, moved);
    const CPolyPosMap* const second = InNormalForm(other, otherMoved);
    if (first == nullptr || second == nullptr)
    {
        return CPolyPosMap();
    }
    if (first->IsEmpty())
    {
        return *second;
    }
    if (second->IsEmpty())
    {
        return *first;
    }
    return Composition(*first, *second).Compose();
}

CPolyPosMap& CPolyPosMap::operator*=(const CPolyPosMap& other)
{
    if (!IsInvalid())
    {
        CPolyPosMap product = *this * other;
        m_posPairs.swap(product.m_posPairs);
        m_srcSegmentCount = product.m_srcSegmentCount;
        m_dstSegmentCount = product.m_dstSegmentCount;
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
