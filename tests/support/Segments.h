#pragma once

#include "math/CPolyline.h"
#include "math/CSegment.h"
#include "support/Support.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

// What the tests of segments and polylines share: a second way to evaluate each kind, arcs from their angles, boxes of
// points, segments compared field by field.

namespace math::test
{

// A second way to evaluate

inline DPOINT2 Between(const DPOINT2& a, const DPOINT2& b, double t)
{
    return {a.x + (b.x - a.x) * t, a.y + (b.y - a.y) * t};
}

/// A point of a Bezier curve by de Casteljau's construction.
inline DPOINT2 BezierAt(const DPOINT2 (&control)[4], double t)
{
    const DPOINT2 a = Between(control[0], control[1], t);
    const DPOINT2 b = Between(control[1], control[2], t);
    const DPOINT2 c = Between(control[2], control[3], t);
    return Between(Between(a, b, t), Between(b, c, t), t);
}

/// The derivative of a Bezier curve, by the last step of de Casteljau's construction.
inline DPOINT2 BezierDerivativeAt(const DPOINT2 (&control)[4], double t)
{
    const DPOINT2 a = Between(control[0], control[1], t);
    const DPOINT2 b = Between(control[1], control[2], t);
    const DPOINT2 c = Between(control[2], control[3], t);
    const DPOINT2 from = Between(a, b, t);
    const DPOINT2 to = Between(b, c, t);
    return {3 * (to.x - from.x), 3 * (to.y - from.y)};
}

/// The centre of an arc: its middle, moved along the left normal of the chord by (1 - b²) / 4b of the chord.
inline DPOINT2 CentreOfArc(const DPOINT2& start, const DPOINT2& end, double bulge)
{
    const double factor = (1 - bulge * bulge) / (4 * bulge);
    return {(start.x + end.x) / 2 - factor * (end.y - start.y), (start.y + end.y) / 2 + factor * (end.x - start.x)};
}

inline DPOINT2 TurnedAbout(const DPOINT2& centre, const DPOINT2& point, double radian)
{
    const double dx = point.x - centre.x;
    const double dy = point.y - centre.y;
    return {centre.x + dx * std::cos(radian) - dy * std::sin(radian),
            centre.y + dx * std::sin(radian) + dy * std::cos(radian)};
}

/// A point of an arc: its start turned about the centre.
inline DPOINT2 ArcAt(const DPOINT2& start, const DPOINT2& end, double bulge, double t)
{
    return TurnedAbout(CentreOfArc(start, end, bulge), start, 4 * std::atan(bulge) * t);
}

// Segments

/// An arc from its angles: from `from` over the signed sweep, which lies strictly between -2π and 2π.
inline CSegment ArcOfAngles(const DPOINT2& centre, double radius, double from, double sweep)
{
    const double to = from + sweep;
    return {{centre.x + radius * std::cos(from), centre.y + radius * std::sin(from)},
            {centre.x + radius * std::cos(to), centre.y + radius * std::sin(to)},
            std::tan(sweep / 4)};
}

inline CSegment RandomLine(Random& random)
{
    const DPOINT2 start = random.Point(5);
    return {start, random.Point(5)};
}

inline CSegment RandomArcSegment(Random& random)
{
    const DPOINT2 centre = random.Point(3);
    const double radius = random.Number(0.5, 4);
    const double from = random.Radian();
    const double sweep = random.Number(0.1, 6);
    return ArcOfAngles(centre, radius, from, random.Coin() ? sweep : -sweep);
}

struct ControlPolygon
{
    DPOINT2 points[4];

    CSegment Segment() const
    {
        return {points[0], points[1], points[2], points[3]};
    }
};

inline ControlPolygon RandomControlPolygon(Random& random)
{
    ControlPolygon polygon;
    for (DPOINT2& point : polygon.points)
    {
        point = random.Point(5);
    }
    return polygon;
}

/// Type, ends and slot, exactly; the words that only a Bezier curve uses must be zero.
inline ::testing::AssertionResult IsLineOrArc(const CSegment& segment, int type, const DPOINT2& start,
                                              const DPOINT2& end, double bulge, double tolerance = 0)
{
    const bool same = segment.type == type && Near(segment.start, start, tolerance) &&
                      Near(segment.end, end, tolerance) && Near(segment.bulge, bulge, tolerance) &&
                      segment.ctrl1.y == 0 && segment.ctrl2 == At(0, 0);
    if (same)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "type " << segment.type << " from "
                                         << ::testing::PrintToString(segment.start) << " to "
                                         << ::testing::PrintToString(segment.end) << ", bulge " << Digits(segment.bulge)
                                         << ", instead of type " << type << " from " << ::testing::PrintToString(start)
                                         << " to " << ::testing::PrintToString(end) << ", bulge " << Digits(bulge)
                                         << "; other words " << segment.ctrl1.y << ", "
                                         << ::testing::PrintToString(segment.ctrl2);
}

/// All fields, bit for bit.
inline bool SameFields(const CSegment& a, const CSegment& b)
{
    return a.type == b.type && SameBits(a.start, b.start) && SameBits(a.end, b.end) && SameBits(a.ctrl1, b.ctrl1) &&
           SameBits(a.ctrl2, b.ctrl2);
}

// Boxes

inline ::testing::AssertionResult IsBox(const DRECT& box, double x, double y, double width, double height,
                                        double tolerance)
{
    if (Near(box.x, x, tolerance) && Near(box.y, y, tolerance) && Near(box.width, width, tolerance) &&
        Near(box.height, height, tolerance))
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "(" << Digits(box.x) << ", " << Digits(box.y) << ", " << Digits(box.width)
                                         << ", " << Digits(box.height) << ") instead of (" << x << ", " << y << ", "
                                         << width << ", " << height << ")";
}

/// The box of points is that of `box`, each side within `tolerance`.
inline ::testing::AssertionResult IsBoxOf(const DRECT& box, const std::vector<DPOINT2>& points, double tolerance)
{
    DPOINT2 low = points.front();
    DPOINT2 high = points.front();
    for (const DPOINT2& point : points)
    {
        low = {std::min(low.x, point.x), std::min(low.y, point.y)};
        high = {std::max(high.x, point.x), std::max(high.y, point.y)};
    }
    return IsBox(box, low.x, low.y, high.x - low.x, high.y - low.y, tolerance);
}

} // namespace math::test
