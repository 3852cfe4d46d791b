#include "intersect/QuarterArcs.h"

#include "intersect/EllipseSector.h"
#include "primitives/Constants.h"
#include "primitives/EllipseTangents.h"
#include "primitives/Fold.h"
#include "primitives/Tolerance.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <utility>

namespace math::detail
{

namespace
{

/// An extreme point as it is seen from the centre.
struct Sighting
{
    double angle; ///< from the own x axis
    DPOINT2 ray;  ///< unit vector
};

Sighting Sight(const DPOINT2& point, const DPOINT2& centre, double rotation)
{
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    const double distance = std::sqrt(dx * dx + dy * dy);
    // Squares of less vanish.
    const DPOINT2 ray = distance > 1e-100 ? DPOINT2(dx / distance, dy / distance) : NoPoint();
    return {Fold(D2GetNormalAngle(dx, dy) - rotation, TwoPi), ray};
}

/// Sorts by insertion, which is well defined with the NaN of a flat ellipse too.
void SortByAngle(std::array<Sighting, 4>& sightings)
{
    for (std::size_t i = 1; i < sightings.size(); ++i)
    {
        for (std::size_t j = i; j > 0 && sightings[j].angle < sightings[j - 1].angle; --j)
        {
            std::swap(sightings[j], sightings[j - 1]);
        }
    }
}

ArcSpan EndsByX(const DPOINT2& start, const DPOINT2& end)
{
    return start.x > end.x ? ArcSpan{end, start} : ArcSpan{start, end};
}

} // namespace

QuarteredEllipse::QuarteredEllipse(const DPOINT2& centre, double a, double b, double rotation)
    : m_centre(centre),
      m_a(a),
      m_b(b),
      m_rotation(rotation),
      m_foldedRotation(Fold(rotation, Pi)),
      m_frame(centre, rotation),
      m_foldedFrame(m_foldedRotation == rotation ? m_frame : OwnFrame(centre, m_foldedRotation)),
      m_verticals(HalfPi, m_frame, m_foldedFrame, a, b, rotation),
      m_heights(m_frame, centre, a, b, rotation),
      m_angles{},
      m_sweeps{}
{
    const auto [ownLower, ownUpper] = OwnTangentPoints(a, b, Fold(0.0 - m_foldedRotation, Pi));
    std::array extremes = {
        Sight(m_foldedFrame.OutOf(ownLower), centre, rotation), Sight(m_verticals.FirstTangency(), centre, rotation),
        Sight(m_foldedFrame.OutOf(ownUpper), centre, rotation), Sight(m_verticals.SecondTangency(), centre, rotation)};
    SortByAngle(extremes);
    for (std::size_t i = 0; i < extremes.size(); ++i)
    {
        const double next = extremes[(i + 1) % extremes.size()].angle;
        m_angles[i] = extremes[i].angle;
        m_sweeps[i] = Fold(next - m_angles[i], TwoPi);
        m_corners[i] = PointAtPolarAngle(m_frame, a, b, m_angles[i]);
        m_rays[i] = extremes[i].ray;
    }
}

EllipseQuarterArc::EllipseQuarterArc(const QuarteredEllipse& ellipse, std::size_t index)
    : m_ellipse(&ellipse),
      m_sector(ellipse.m_centre, ellipse.m_rotation, ellipse.m_angles[index], ellipse.m_sweeps[index],
               ellipse.m_rays[index], ellipse.m_rays[(index + 1) % ellipse.m_rays.size()]),
      m_startRadian(ellipse.m_angles[index]),
      m_sweep(ellipse.m_sweeps[index]),
      m_span(EndsByX(ellipse.m_corners[index], ellipse.EndOfArc(index)))
{
    const EllipseHeights& heights = ellipse.m_heights;
    if (!heights.IsOrdinary())
    {
        return;
    }
    const DPOINT2 middle = m_sector.Middle();
    const auto isSeenFromMiddle = [&](const DPOINT2& end) {
        return (end.x - ellipse.m_centre.x) * middle.x + (end.y - ellipse.m_centre.y) * middle.y > 0.0;
    };
    if (!isSeenFromMiddle(m_span.left) || !isSeenFromMiddle(m_span.right))
    {
        // Beside the vertices the ends may be found on the opposite side.
        return;
    }
    const bool isUpper = heights.IsUpward(middle.x, middle.y);
    m_side = isUpper ? 1.0 : -1.0;
    m_isFarther = isUpper == ellipse.m_verticals.Chords().RisesAlongOwnAxis();
    m_clearance = 1e-6 * (ellipse.m_a + ellipse.m_b);
    m_sureLeft = std::max(m_span.left.x + m_clearance, ellipse.m_centre.x - heights.SureReach());
    m_sureRight = std::min(m_span.right.x - m_clearance, ellipse.m_centre.x + heights.SureReach());
    m_missLeft = ellipse.m_centre.x - heights.MissReach();
    m_missRight = ellipse.m_centre.x + heights.MissReach();
}

/// The last point of an arc: the next corner, unless the sweep has been rounded.
DPOINT2 QuarteredEllipse::EndOfArc(std::size_t index) const
{
    const std::size_t next = (index + 1) % m_corners.size();
    const double end = Fold(m_angles[index] + m_sweeps[index], TwoPi);
    // Zeros are left out for their signs.
    return end == m_angles[next] && end > 0.0 ? m_corners[next] : PointAtPolarAngle(m_frame, m_a, m_b, end);
}

int EllipseQuarterArc::MeetVertical(double x, DPOINT2& point) const
{
    if (IsMetAt(x) == Verdict::Inside)
    {
        point = MeetingAt(x);
        return 1;
    }
    const auto isOnArc = [&](const DPOINT2& candidate) {
        // An arc of no extent, as flat ellipses have, is one that runs clockwise here.
        return m_sweep > 0.0 ? m_sector.Holds(candidate)
                             : IsPointInEllipseSector(candidate, m_ellipse->m_centre, m_ellipse->m_rotation,
                                                      m_startRadian, std::abs(m_sweep), false);
    };
    return KeepAndWrite(m_ellipse->m_verticals.Through({x, 0.0}), &point, nullptr, isOnArc);
}

void EllipseQuarterArc::MeetVerticalOfEllipse(double x, DPOINT2& point) const
{
    if (IsMetAt(x) == Verdict::Inside)
    {
        point = MeetingAt(x);
        return;
    }
    const TwoPoints found = m_ellipse->m_verticals.Through({x, 0.0});
    if (found.count > 0 && m_sector.Holds(found.first))
    {
        point = found.first;
    }
    else if (found.count > 1 && m_sector.Holds(found.second))
    {
        point = found.second;
    }
}

double EllipseQuarterArc::TangentAngleAt(const DPOINT2& point) const
{
    return detail::TangentAngle(m_ellipse->m_foldedFrame, m_ellipse->m_a, m_ellipse->m_b, m_ellipse->m_foldedRotation,
                                point);
}

} // namespace math::detail
