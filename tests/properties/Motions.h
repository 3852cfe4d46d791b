#pragma once

#include "support/Ellipses.h"
#include "support/Support.h"

#include <cmath>
#include <vector>

// Mirroring, quarter turns and shifts of curves: what moves whole points to whole points, and so is exact.

namespace math::test
{

/// A direction brought into [0, 2π).
inline double Folded(double radian)
{
    const double folded = std::fmod(radian, TwoPi);
    return folded < 0 ? folded + TwoPi : folded;
}

/// A mirroring in the x axis, then quarter turns counter-clockwise about the origin, then a shift.
struct Motion
{
    bool mirrors;
    int quarterTurns;
    DPOINT2 shift;

    double Direction(double radian) const
    {
        return (mirrors ? -radian : radian) + quarterTurns * HalfPi;
    }

    double Sweep(double sweep) const
    {
        return mirrors ? -sweep : sweep;
    }

    DPOINT2 operator()(DPOINT2 point) const
    {
        point.y = mirrors ? -point.y : point.y;
        for (int turn = 0; turn < quarterTurns; ++turn)
        {
            point = {-point.y, point.x};
        }
        return {point.x + shift.x, point.y + shift.y};
    }

    std::vector<DPOINT2> operator()(std::vector<DPOINT2> points) const
    {
        for (DPOINT2& point : points)
        {
            point = (*this)(point);
        }
        return points;
    }

    Beeline operator()(const Beeline& beeline) const
    {
        return {(*this)(beeline.point), Direction(beeline.angle)};
    }

    Stretch operator()(const Stretch& stretch) const
    {
        return {(*this)(stretch.first), (*this)(stretch.second)};
    }

    Circle operator()(const Circle& circle) const
    {
        return {(*this)(circle.centre), circle.radius};
    }

    Arc operator()(const Arc& arc) const
    {
        return {(*this)(arc.centre), arc.radius, Folded(Direction(arc.start)), Sweep(arc.sweep)};
    }

    Ellipse operator()(const Ellipse& ellipse) const
    {
        return {(*this)(ellipse.centre), ellipse.a, ellipse.b, Direction(ellipse.rotation)};
    }

    /// An elliptical arc that runs counter-clockwise does so afterwards.
    EllipseArc operator()(const EllipseArc& arc) const
    {
        const double start = mirrors ? -arc.start - arc.sweep : arc.start;
        return {(*this)(arc.whole), Folded(start), arc.sweep};
    }
};

/// All mirrorings and quarter turns, in place and shifted by whole numbers.
inline std::vector<Motion> AllMotions()
{
    std::vector<Motion> motions;
    for (const bool mirrors : {false, true})
    {
        for (int turns = 0; turns < 4; ++turns)
        {
            motions.push_back({mirrors, turns, At(0, 0)});
            motions.push_back({mirrors, turns, At(-3, 5)});
        }
    }
    return motions;
}

} // namespace math::test
