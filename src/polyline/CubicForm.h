#pragma once

#include "math/Primitives.h"
#include "primitives/TwoNumbers.h"

namespace math::detail
{

/// One coordinate of a cubic Bezier curve in power form, a·t³ + 3b·t² + 3c·t + d.
struct CubicCoordinate
{
    double a;
    double b;
    double c;
    double d;

    CubicCoordinate(double p0, double p1, double p2, double p3)
        : a(p3 - 3.0 * p2 + 3.0 * p1 - p0),
          b(p2 - 2.0 * p1 + p0),
          c(p1 - p0),
          d(p0)
    {
    }

    double ValueAt(double t) const
    {
        return ((a * t + b * 3.0) * t + c * 3.0) * t + d;
    }

    double DerivativeAt(double t) const
    {
        return (3.0 * a * t + 6.0 * b) * t + 3.0 * c;
    }
};

/// A cubic Bezier curve in power form.
struct CubicForm
{
    CubicCoordinate x;
    CubicCoordinate y;

    CubicForm(const DPOINT2& start, const DPOINT2& ctrl1, const DPOINT2& ctrl2, const DPOINT2& end)
        : x(start.x, ctrl1.x, ctrl2.x, end.x),
          y(start.y, ctrl1.y, ctrl2.y, end.y)
    {
    }

    DPOINT2 PointAt(double t) const
    {
        return {x.ValueAt(t), y.ValueAt(t)};
    }

    /// PointAt, both coordinates at once.
    TwoNumbers CoordinatesAt(double t) const
    {
        const TwoNumbers parameter(t, t);
        const TwoNumbers slopes = TwoNumbers(x.a, y.a) * parameter + TwoNumbers(x.b * 3.0, y.b * 3.0);
        return (slopes * parameter + TwoNumbers(x.c * 3.0, y.c * 3.0)) * parameter + TwoNumbers(x.d, y.d);
    }

    DPOINT2 DerivativeAt(double t) const
    {
        return {x.DerivativeAt(t), y.DerivativeAt(t)};
    }
};

} // namespace math::detail
