#include "math/CSegment.h"

#include "polyline/ArcForm.h"
#include "polyline/ArcLength.h"
#include "polyline/CubicForm.h"
#include "polyline/CubicLength.h"
#include "primitives/Distance.h"
#include "primitives/RequireChecks.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <utility>

#include <gp_XY.hxx>

namespace math
{

using detail::ArcForm;
using detail::CoincideByCoordinates;
using detail::CubicForm;
using detail::IsZero;

namespace
{

DPOINT2 Interpolate(const DPOINT2& start, const DPOINT2& end, double t)
{
    return {(1.0 - t) * start.x + t * end.x, (1.0 - t) * start.y + t * end.y};
}

/// Raises Standard_ConstructionError for a vector of no length.
DPOINT2 UnitVector(double x, double y)
{
    gp_XY vector(x, y);
    vector.Normalize();
    return {vector.X(), vector.Y()};
}

} // namespace

CSegment::CSegment() : type(SegmentNone), ctrl1()
{
}

CSegment::CSegment(const DPOINT2& startPoint, const DPOINT2& endPoint)
    : type(SegmentLine),
      start(startPoint),
      end(endPoint),
      ctrl1()
{
}

CSegment::CSegment(const DPOINT2& startPoint, const DPOINT2& endPoint, double arcBulge)
    : type(SegmentArc),
      start(startPoint),
      end(endPoint),
      ctrl1(arcBulge, 0.0)
{
}

CSegment::CSegment(const DPOINT2& startPoint, const DPOINT2& firstControl, const DPOINT2& secondControl,
                   const DPOINT2& endPoint)
    : type(SegmentBezier),
      start(startPoint),
      end(endPoint),
      ctrl1(firstControl),
      ctrl2(secondControl)
{
}

void CSegment::Set(const DPOINT2& startPoint, const DPOINT2& endPoint)
{
    const CSegment line(startPoint, endPoint);
    type = line.type;
    start = line.start;
    end = line.end;
}

void CSegment::Set(const DPOINT2& startPoint, const DPOINT2& endPoint, double arcBulge)
{
    const CSegment arc(startPoint, endPoint, arcBulge);
    type = arc.type;
    start = arc.start;
    end = arc.end;
    bulge = arc.bulge;
}

void CSegment::Set(const DPOINT2& startPoint, const DPOINT2& firstControl, const DPOINT2& secondControl,
                   const DPOINT2& endPoint)
{
    *this = CSegment(startPoint, firstControl, secondControl, endPoint);
}

DPOINT2 CSegment::GetPoint(double t) const
{
    switch (type)
    {
    case SegmentLine:
        return Interpolate(start, end, t);
    case SegmentArc: {
        if (CoincideByCoordinates(start, end) || IsZero(bulge))
        {
            return Interpolate(start, end, t);
        }
        const ArcForm arc(start, end, bulge);
        return GetPointInCircle(arc.centre, arc.radius, arc.StartRadian() + arc.sweep * t);
    }
    case SegmentBezier:
        return CubicForm(start, ctrl1, ctrl2, end).PointAt(t);
    default:
        return {};
    }
}

DPOINT2 CSegment::GetMidVector(double& t) const
{
    if (IsZero(bulge))
    {
        return UnitVector(end.x - start.x, end.y - start.y);
    }
    const DPOINT2 centre = ArcForm(start, end, bulge).centre;
    const DPOINT2 point = GetPoint(t);
    const DPOINT2 leftOfRadius(-(point.y - centre.y), point.x - centre.x);
    return bulge < 0.0 ? UnitVector(-leftOfRadius.x, -leftOfRadius.y) : UnitVector(leftOfRadius.x, leftOfRadius.y);
}

DPOINT2 CSegment::GetStartVector() const
{
    double t = 0.0;
    return GetMidVector(t);
}

DPOINT2 CSegment::GetEndVector() const
{
    if (IsZero(bulge))
    {
        // A straight segment is looked at backwards from its end, an arc is not.
        return UnitVector(start.x - end.x, start.y - end.y);
    }
    double t = 1.0;
    return GetMidVector(t);
}

double CSegment::GetLength() const
{
    switch (type)
    {
    case SegmentLine:
        return detail::Distance(start, end);
    case SegmentArc:
        return detail::LengthOfArc(detail::Distance(start, end), bulge);
    case SegmentBezier:
        return detail::LengthOfCubic(CubicForm(start, ctrl1, ctrl2, end));
    default:
        return 0.0;
    }
}

void CSegment::ReverseDir()
{
    std::swap(start, end);
    if (bulge != 0.0)
    {
        bulge *= -1.0;
    }
}

} // namespace math
