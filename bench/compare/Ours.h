#pragma once

#include "Contest.h"

#include <vector>

// Answers of the library in the form in which they are compared.

namespace bench
{

/// The pointer form with one output.
template <typename Intersect>
inline Answer OnePoint(Intersect intersect)
{
    Answer answer;
    DPOINT2 point;
    answer.count = intersect(&point);
    answer.values[0] = point.x;
    answer.values[1] = point.y;
    return answer;
}

/// The pointer form with two outputs.
template <typename Intersect>
inline Answer TwoPoints(Intersect intersect)
{
    Answer answer;
    DPOINT2 first;
    DPOINT2 second;
    answer.count = intersect(&first, &second);
    answer.values[0] = first.x;
    answer.values[1] = first.y;
    answer.values[2] = second.x;
    answer.values[3] = second.y;
    return answer;
}

/// The pointer form with four outputs.
template <typename Intersect>
inline Answer FourPoints(Intersect intersect)
{
    Answer answer;
    DPOINT2 points[4];
    answer.count = intersect(&points[0], &points[1], &points[2], &points[3]);
    for (int i = 0; i < 4; ++i)
    {
        answer.values[2 * i] = points[i].x;
        answer.values[2 * i + 1] = points[i].y;
    }
    return answer;
}

/// A vector that has room, so that growing it is not timed.
inline std::vector<DPOINT2> reusedPoints = [] {
    std::vector<DPOINT2> list;
    list.reserve(16);
    return list;
}();

/// The vector form.
template <typename Intersect>
inline Answer PointsOfVector(Intersect intersect)
{
    Answer answer;
    reusedPoints.clear();
    answer.count = intersect(reusedPoints);
    for (std::size_t i = 0; i < reusedPoints.size() && i < 4; ++i)
    {
        answer.values[2 * i] = reusedPoints[i].x;
        answer.values[2 * i + 1] = reusedPoints[i].y;
    }
    return answer;
}

/// The vector form asked for the count alone: it leaves the vector as it is.
template <typename Intersect>
inline Answer QuickCount(Intersect intersect)
{
    Answer answer;
    answer.count = intersect(reusedPoints);
    return answer;
}

inline Answer OfPoint(const DPOINT2& point)
{
    Answer answer;
    answer.count = 1;
    answer.values[0] = point.x;
    answer.values[1] = point.y;
    return answer;
}

inline Answer OfBox(const math::DRECT& box)
{
    return {4, {box.x, box.y, box.width, box.height}};
}

} // namespace bench
