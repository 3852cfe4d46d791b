#pragma once

#include "Real.h"
#include "Report.h"
#include "math/Primitives.h"

#include <array>
#include <string>
#include <vector>

// Plane curves in high precision and where they meet, by ways that have nothing in common with the library's: common
// points are roots of a polynomial of degree four, isolated between its stationary points and counted by Sturm's
// theorem.

namespace math::accuracy
{

struct RealPoint
{
    Real x;
    Real y;

    RealPoint() = default;
    RealPoint(Real abscissa, Real ordinate) : x(std::move(abscissa)), y(std::move(ordinate))
    {
    }
    RealPoint(const DPOINT2& point) : x(point.x), y(point.y)
    {
    }

    friend RealPoint operator+(const RealPoint& a, const RealPoint& b)
    {
        return {a.x + b.x, a.y + b.y};
    }

    friend RealPoint operator-(const RealPoint& a, const RealPoint& b)
    {
        return {a.x - b.x, a.y - b.y};
    }

    friend RealPoint operator*(const RealPoint& a, const Real& factor)
    {
        return {a.x * factor, a.y * factor};
    }
};

inline Real Cross(const RealPoint& a, const RealPoint& b)
{
    return a.x * b.y - a.y * b.x;
}

inline Real Dot(const RealPoint& a, const RealPoint& b)
{
    return a.x * b.x + a.y * b.y;
}

inline Real Norm(const RealPoint& a)
{
    return Hypot(a.x, a.y);
}

inline Real Distance(const RealPoint& a, const RealPoint& b)
{
    return Norm(a - b);
}

/// The unit vector in a direction.
inline RealPoint Direction(const Real& radian)
{
    return {Cos(radian), Sin(radian)};
}

/// The vector turned by the angle of a unit vector.
inline RealPoint Turned(const RealPoint& a, const RealPoint& by)
{
    return {a.x * by.x - a.y * by.y, a.x * by.y + a.y * by.x};
}

/// The greatest coordinate of all points, as a double; it only serves as a scale.
double LargestCoordinate(const std::vector<DPOINT2>& points);

/// How far the direction of a beeline turns by rounding, in units: it is that of (x + 1, y + tan angle) - (x, y).
double LossOfBeeline(const DPOINT2& origin, double angle);

/// The outputs that an intersection has told, of `most` that it has.
std::vector<DPOINT2> FirstOf(int count, const DPOINT2* told, int most);

// Polynomials

/// Coefficients from the constant upward.
using Polynomial = std::vector<Real>;

Real Evaluate(const Polynomial& polynomial, const Real& x);
Polynomial Derivative(const Polynomial& polynomial);

/// The real roots of odd multiplicity in ascending order, by the stationary points that separate them.
std::vector<Real> RealRoots(const Polynomial& polynomial);

/// The number of distinct real roots, by Sturm's theorem.
int CountRealRoots(const Polynomial& polynomial);

// Curves

/// A curve as the zeros of a function whose gradient does not vanish on it.
class Curve
{
public:
    virtual ~Curve() = default;
    virtual Real Value(const RealPoint& point) const = 0;
    virtual RealPoint Gradient(const RealPoint& point) const = 0;
};

/// An unbounded straight line; Value is the signed distance.
class StraightLine : public Curve
{
public:
    StraightLine(const RealPoint& through, const RealPoint& along) : origin(through), unit(along * (1.0 / Norm(along)))
    {
    }

    Real Value(const RealPoint& point) const override
    {
        return Cross(unit, point - origin);
    }

    RealPoint Gradient(const RealPoint&) const override
    {
        return {-unit.y, unit.x};
    }

    RealPoint origin;
    RealPoint unit;
};

/// An ellipse, or a circle where both semi-axes are equal.
class Conic : public Curve
{
public:
    Conic(const DPOINT2& middle, double semiAxisA, double semiAxisB, double rotation)
        : centre(middle),
          a(semiAxisA),
          b(semiAxisB),
          axis(Direction(rotation))
    {
    }

    /// The point at an eccentric parameter, given by its cosine and sine.
    RealPoint At(const RealPoint& cosineAndSine) const
    {
        return centre + Turned({cosineAndSine.x * a, cosineAndSine.y * b}, axis);
    }

    /// The point in the conic's own frame.
    RealPoint Own(const RealPoint& point) const
    {
        return Turned(point - centre, {axis.x, -axis.y});
    }

    Real Value(const RealPoint& point) const override
    {
        const RealPoint own = Own(point);
        return Square(own.x / a) + Square(own.y / b) - 1.0;
    }

    RealPoint Gradient(const RealPoint& point) const override
    {
        const RealPoint own = Own(point);
        return Turned({2.0 * own.x / (a * a), 2.0 * own.y / (b * b)}, axis);
    }

    RealPoint centre;
    Real a;
    Real b;
    RealPoint axis;
};

/// Whether a true common point has to be told.
enum class Standing
{
    Inside, ///< beyond doubt on both bounded curves
    Edge,   ///< so near an end or a tangency that the answer is open
    Outside ///< beyond doubt not on one of them
};

/// A point that two whole curves share.
struct CommonPoint
{
    RealPoint point;
    double sine = 1.0;      ///< of the angle at which the curves cross
    double steepness = 1.0; ///< least abscissa of the two unit tangents: 0 where a tangent is vertical
    Standing standing = Standing::Inside;
    double condition = 1.0;
};

/// The points that a conic shares with another curve.
///
/// Where the curves come nearer to each other than `edge` without crossing, or cross no deeper than that, points are
/// told as Edge, the nearest approach among them.
///
/// @throws std::logic_error when the roots found and Sturm's count disagree, or a point is not on both curves
std::vector<CommonPoint> CommonPoints(const Conic& conic, const Curve& other, double edge);

/// Makes points Outside, or Edge, that are not on the stretch between two ends.
void ClipToStretch(std::vector<CommonPoint>& points, const DPOINT2& first, const DPOINT2& second, double edge);

/// The same for an arc: `start` and `sweep` count from the direction `rotation` at the centre.
void ClipToArc(std::vector<CommonPoint>& points, const DPOINT2& centre, double rotation, double start, double sweep,
               double edge);

/// Compares what the library told with the truth: pairs each told point with the nearest true one, records the
/// distance, and counts what is missing and what is too much. The unit is in absolute terms.
///
/// @param far  a told point that is further than this from every true one is no point at all
void Compare(Row& row, const std::vector<DPOINT2>& told, const std::vector<CommonPoint>& truth, const Real& unit,
             double far, const Row::Describe& describe);

} // namespace math::accuracy
