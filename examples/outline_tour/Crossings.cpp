#include "Crossings.h"

#include "Limits.h"
#include "Outline.h"

#include "math/Intersect.h"

#include <algorithm>
#include <cmath>
#include <set>
#include <tuple>

namespace example::tour
{

namespace
{

using math::CPolyline;
using math::CSegment;
using math::DPOINT2;

/// The crossings of one outline. Segments that lie on the beeline are looked for first: they claim their end nodes.
class OutlineCrossings
{
public:
    OutlineCrossings(const Beeline& beeline, const CPolyline& outline, std::size_t number)
        : m_beeline(beeline),
          m_direction(DirectionOf(beeline)),
          m_radian(math::AngleToRadian(beeline.degrees)),
          m_outline(outline),
          m_number(number)
    {
    }

    std::vector<Crossing> Find()
    {
        std::vector<int> crossed;
        for (int i = 0; i < SegmentCount(m_outline); ++i)
        {
            if (LiesOnBeeline(SegmentAt(m_outline, i)))
            {
                AddStretch(i);
            }
            else
            {
                crossed.push_back(i);
            }
        }
        for (const int i : crossed)
        {
            for (const DPOINT2& point : PointsOn(SegmentAt(m_outline, i)))
            {
                AddPoint(i, point);
            }
        }
        return std::move(m_crossings);
    }

private:
    bool LiesOnBeeline(const CSegment& segment) const
    {
        constexpr int coincident = -1;
        return !ArcOf(segment) &&
               Intersect_BeelineWithLine(m_beeline.point, m_radian, segment.start, segment.end, nullptr) == coincident;
    }

    std::vector<DPOINT2> PointsOn(const CSegment& segment) const
    {
        std::vector<DPOINT2> points;
        if (const std::optional<Arc> arc = ArcOf(segment))
        {
            constexpr int all = -1;
            Intersect_BeelineWithArc(m_beeline.point, m_radian, arc->centre, arc->radius, arc->startRadian, arc->sweep,
                                     points, all);
        }
        else
        {
            constexpr int unused = 0;
            Intersect_BeelineWithLine(m_beeline.point, m_radian, segment.start, segment.end, points, unused);
        }
        return points;
    }

    double Along(const DPOINT2& point) const
    {
        return (point.x - m_beeline.point.x) * m_direction.x + (point.y - m_beeline.point.y) * m_direction.y;
    }

    /// The number of the node with which a segment ends; the end of a closed outline is its beginning.
    int NodeAfter(int segment) const
    {
        return m_outline.IsClosed() && segment + 1 == SegmentCount(m_outline) ? 0 : segment + 1;
    }

    void AddStretch(int segment)
    {
        const CSegment line = SegmentAt(m_outline, segment);
        const bool forward = Along(line.start) <= Along(line.end);
        Crossing crossing;
        crossing.kind = CrossingKind::Stretch;
        crossing.point = forward ? line.start : line.end;
        crossing.along = Along(crossing.point);
        crossing.alongEnd = Along(forward ? line.end : line.start);
        crossing.outline = m_number;
        crossing.segment = segment;
        m_crossings.push_back(crossing);
        m_nodesSeen.insert({segment, NodeAfter(segment)});
    }

    void AddPoint(int segment, const DPOINT2& point)
    {
        const CSegment curve = SegmentAt(m_outline, segment);
        Crossing crossing;
        crossing.point = point;
        crossing.along = Along(point);
        crossing.alongEnd = crossing.along;
        crossing.outline = m_number;
        crossing.segment = segment;
        curve.GetNearestPoint(point, crossing.ratio);
        const bool atStart = math::D2GetDistance(point, curve.start) < SamePoint;
        const bool atEnd = math::D2GetDistance(point, curve.end) < SamePoint;
        if (atStart || atEnd)
        {
            MoveToNode(crossing, atStart ? segment : NodeAfter(segment));
            if (!m_nodesSeen.insert(atStart ? segment : NodeAfter(segment)).second)
            {
                return;
            }
        }
        m_crossings.push_back(crossing);
    }

    /// Tells a crossing at a node by the segment that begins there; the free ends of an open outline are points.
    void MoveToNode(Crossing& crossing, int node) const
    {
        const bool isLastOfOpen = node == SegmentCount(m_outline);
        const bool isFree = !m_outline.IsClosed() && (node == 0 || isLastOfOpen);
        crossing.kind = isFree ? CrossingKind::Point : CrossingKind::Node;
        crossing.segment = isLastOfOpen ? node - 1 : node;
        crossing.ratio = isLastOfOpen ? 1 : 0;
    }

    const Beeline& m_beeline;
    DPOINT2 m_direction;
    double m_radian;
    const CPolyline& m_outline;
    std::size_t m_number;
    std::vector<Crossing> m_crossings;
    std::set<int> m_nodesSeen;
};

} // namespace

DPOINT2 DirectionOf(const Beeline& beeline)
{
    const double radian = math::AngleToRadian(beeline.degrees);
    return {std::cos(radian), std::sin(radian)};
}

Beeline DefaultBeeline(const CPolyline& outline)
{
    constexpr double degrees = -60;
    const math::DRECT box = outline.GetRECT();
    return {{box.x + box.width / 2, box.y + box.height / 2}, degrees};
}

std::vector<Crossing> CrossingsOf(const Beeline& beeline, const std::vector<CPolyline>& outlines)
{
    std::vector<Crossing> all;
    for (std::size_t i = 0; i < outlines.size(); ++i)
    {
        const std::vector<Crossing> found = OutlineCrossings(beeline, outlines[i], i).Find();
        all.insert(all.end(), found.begin(), found.end());
    }
    std::sort(all.begin(), all.end(), [](const Crossing& a, const Crossing& b) {
        return std::tie(a.along, a.outline, a.segment, a.ratio) < std::tie(b.along, b.outline, b.segment, b.ratio);
    });
    return all;
}

std::string CrossingName(std::size_t index)
{
    std::string name;
    for (std::size_t rest = index + 1; rest > 0; rest = (rest - 1) / 26)
    {
        name.insert(name.begin(), static_cast<char>('A' + (rest - 1) % 26));
    }
    return name;
}

} // namespace example::tour
