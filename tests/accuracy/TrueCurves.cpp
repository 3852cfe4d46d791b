#include "TrueCurves.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace math::accuracy
{

namespace
{

/// 2^exponent.
Real PowerOfTwo(int exponent)
{
    return {std::ldexp(1.0, exponent)};
}

Real LargestCoefficient(const Polynomial& polynomial)
{
    Real largest = 0.0;
    for (const Real& coefficient : polynomial)
    {
        largest = Max(largest, Abs(coefficient));
    }
    return largest;
}

/// Both roots or none, the double root left out.
std::vector<Real> QuadraticRoots(const Polynomial& polynomial)
{
    const Real half = polynomial[1] * 0.5;
    const Real discriminant = half * half - polynomial[2] * polynomial[0];
    if (discriminant.Sign() <= 0)
    {
        return {};
    }
    const Real root = Sqrt(discriminant);
    // Without cancellation: the larger sum gives one root, the product of the roots the other.
    const Real sum = -half - (half.Sign() < 0 ? -root : root);
    const Real first = sum / polynomial[2];
    const Real second = polynomial[0] / sum;
    return first < second ? std::vector<Real>{first, second} : std::vector<Real>{second, first};
}

/// The one root between two places of different sign: Newton's method that falls back on halving.
Real RootBetween(const Polynomial& polynomial, const Polynomial& derivative, Real low, Real high)
{
    const int signAtLow = Evaluate(polynomial, low).Sign();
    Real x = (low + high) * 0.5;
    for (int i = 0; i < 1200; ++i)
    {
        const Real value = Evaluate(polynomial, x);
        if (value.Sign() == 0)
        {
            return x;
        }
        (value.Sign() == signAtLow ? low : high) = x;
        const Real slope = Evaluate(derivative, x);
        Real next = slope.Sign() == 0 ? low : x - value / slope;
        // The first halvings keep Newton's method from creeping along a flat stretch.
        if (i % 8 == 7 || !(next > low) || !(next < high))
        {
            next = (low + high) * 0.5;
        }
        const Real step = Abs(next - x);
        x = next;
        if (step <= (Abs(x) + PowerOfTwo(-150)) * PowerOfTwo(-225))
        {
            break;
        }
    }
    return x;
}

/// Drops leading coefficients that are nothing but rounding.
void DropLeadingZeros(Polynomial& polynomial, const Real& negligible)
{
    while (!polynomial.empty() && Abs(polynomial.back()) <= negligible)
    {
        polynomial.pop_back();
    }
}

/// The negated remainder of a division, scaled by its largest coefficient, which does not change signs.
Polynomial NextOfSturm(Polynomial dividend, const Polynomial& divisor)
{
    const Real negligible = LargestCoefficient(dividend) * PowerOfTwo(-180);
    while (dividend.size() >= divisor.size())
    {
        const Real factor = dividend.back() / divisor.back();
        const std::size_t shift = dividend.size() - divisor.size();
        for (std::size_t i = 0; i + 1 < divisor.size(); ++i)
        {
            dividend[i + shift] -= factor * divisor[i];
        }
        dividend.pop_back();
    }
    DropLeadingZeros(dividend, negligible);
    const Real largest = LargestCoefficient(dividend);
    for (Real& coefficient : dividend)
    {
        coefficient = -coefficient / largest;
    }
    return dividend;
}

/// Changes of sign of a chain of polynomials at plus or minus infinity.
int ChangesAtInfinity(const std::vector<Polynomial>& chain, bool isPositive)
{
    int changes = 0;
    int last = 0;
    for (const Polynomial& member : chain)
    {
        const int leading = member.back().Sign();
        const int sign = isPositive || member.size() % 2 == 1 ? leading : -leading;
        changes += sign * last < 0 ? 1 : 0;
        last = sign;
    }
    return changes;
}

/// A conic's parameter as s = tan((t - t0) / 2): a rational way over the whole curve but for one point.
class RationalWay
{
public:
    explicit RationalWay(RealPoint originOfParameter) : origin(std::move(originOfParameter))
    {
    }

    /// Cosine and sine of the eccentric parameter.
    RealPoint At(const Real& s) const
    {
        const Real below = 1.0 + s * s;
        return Turned({(1.0 - s * s) / below, 2.0 * s / below}, origin);
    }

private:
    RealPoint origin;
};

constexpr std::size_t SampleCount = 16;

/// Cosine and sine of the multiples of a sixteenth of a turn.
const std::array<RealPoint, SampleCount>& Samples()
{
    static const std::array<RealPoint, SampleCount> samples = [] {
        std::array<RealPoint, SampleCount> result;
        for (std::size_t i = 0; i < SampleCount; ++i)
        {
            result[i] = Direction(Pi() * static_cast<double>(i) / 8.0);
        }
        return result;
    }();
    return samples;
}

/// The polynomial in s whose roots are the common points: the value of the other curve on the conic is a trigonometric
/// polynomial of degree two, whose coefficients come from samples by Fourier's sums.
Polynomial QuarticOnConic(const std::array<Real, SampleCount>& values, std::size_t origin)
{
    Real c0;
    Real c1;
    Real s1;
    Real c2;
    Real s2;
    for (std::size_t i = 0; i < SampleCount; ++i)
    {
        const Real& value = values[(i + origin) % SampleCount];
        const RealPoint& once = Samples()[i];
        const RealPoint& twice = Samples()[2 * i % SampleCount];
        c0 += value;
        c1 += value * once.x * 2.0;
        s1 += value * once.y * 2.0;
        c2 += value * twice.x * 2.0;
        s2 += value * twice.y * 2.0;
    }
    return {c0 + c1 + c2, 2.0 * s1 + 4.0 * s2, 2.0 * c0 - 6.0 * c2, 2.0 * s1 - 4.0 * s2, c0 - c1 + c2};
}

/// Distance of a point from a curve that is near it.
double Depth(const Curve& curve, const RealPoint& point)
{
    return (Abs(curve.Value(point)) / Norm(curve.Gradient(point))).ToDouble();
}

CommonPoint MakeCommonPoint(const Conic& conic, const Curve& other, const RealPoint& point)
{
    const RealPoint first = conic.Gradient(point);
    const RealPoint second = other.Gradient(point);
    CommonPoint result;
    result.point = point;
    result.sine = (Abs(Cross(first, second)) / (Norm(first) * Norm(second))).ToDouble();
    result.steepness = Min(Abs(first.y) / Norm(first), Abs(second.y) / Norm(second)).ToDouble();
    return result;
}

void RequireOnCurve(const Curve& curve, const RealPoint& point)
{
    if (Depth(curve, point) > 1e-60 * (1.0 + Norm(point).ToDouble()))
    {
        throw std::logic_error("a common point is not on its curve");
    }
}

} // namespace

double LargestCoordinate(const std::vector<DPOINT2>& points)
{
    double largest = 0.0;
    for (const DPOINT2& point : points)
    {
        largest = std::max({largest, std::abs(point.x), std::abs(point.y)});
    }
    return largest;
}

double LossOfBeeline(const DPOINT2& origin, double angle)
{
    const double cosine = std::abs(std::cos(angle));
    const double sine = std::abs(std::sin(angle));
    return cosine * (cosine * std::abs(origin.y) + sine * (std::abs(origin.x) + 1.0));
}

std::vector<DPOINT2> FirstOf(int count, const DPOINT2* told, int most)
{
    return {told, told + std::max(0, std::min(count, most))};
}

Real Evaluate(const Polynomial& polynomial, const Real& x)
{
    Real value = 0.0;
    for (auto coefficient = polynomial.rbegin(); coefficient != polynomial.rend(); ++coefficient)
    {
        value = value * x + *coefficient;
    }
    return value;
}

Polynomial Derivative(const Polynomial& polynomial)
{
    Polynomial result;
    for (std::size_t i = 1; i < polynomial.size(); ++i)
    {
        result.push_back(polynomial[i] * static_cast<double>(i));
    }
    return result;
}

std::vector<Real> RealRoots(const Polynomial& polynomial)
{
    if (polynomial.size() < 2)
    {
        return {};
    }
    if (polynomial.size() == 3)
    {
        return QuadraticRoots(polynomial);
    }
    const Polynomial derivative = Derivative(polynomial);
    // Cauchy's bound holds all roots.
    const Real bound = 1.0 + LargestCoefficient(polynomial) / Abs(polynomial.back());
    std::vector<Real> places{-bound};
    for (const Real& place : RealRoots(derivative))
    {
        places.push_back(place);
    }
    places.push_back(bound);
    std::vector<Real> roots;
    for (std::size_t i = 0; i + 1 < places.size(); ++i)
    {
        if (Evaluate(polynomial, places[i]).Sign() * Evaluate(polynomial, places[i + 1]).Sign() < 0)
        {
            roots.push_back(RootBetween(polynomial, derivative, places[i], places[i + 1]));
        }
    }
    return roots;
}

int CountRealRoots(const Polynomial& polynomial)
{
    std::vector<Polynomial> chain{polynomial, Derivative(polynomial)};
    while (chain.back().size() > 1)
    {
        Polynomial next = NextOfSturm(chain[chain.size() - 2], chain.back());
        if (next.empty())
        {
            break;
        }
        chain.push_back(std::move(next));
    }
    return ChangesAtInfinity(chain, false) - ChangesAtInfinity(chain, true);
}

std::vector<CommonPoint> CommonPoints(const Conic& conic, const Curve& other, double edge)
{
    // The one point that the rational way does not reach should be far from a common point.
    std::array<Real, SampleCount> values;
    std::size_t furthest = 0;
    for (std::size_t i = 0; i < SampleCount; ++i)
    {
        values[i] = other.Value(conic.At(Samples()[i]));
        furthest = Abs(values[i]) > Abs(values[furthest]) ? i : furthest;
    }
    const std::size_t origin = (furthest + SampleCount / 2) % SampleCount;
    const RationalWay way(Samples()[origin]);
    const Polynomial quartic = QuarticOnConic(values, origin);

    std::vector<CommonPoint> points;
    const std::vector<Real> roots = RealRoots(quartic);
    for (const Real& root : roots)
    {
        points.push_back(MakeCommonPoint(conic, other, conic.At(way.At(root))));
        RequireOnCurve(other, points.back().point);
    }
    bool isClear = true;
    for (const Real& turn : RealRoots(Derivative(quartic)))
    {
        CommonPoint nearest = MakeCommonPoint(conic, other, conic.At(way.At(turn)));
        if (Depth(other, nearest.point) >= edge)
        {
            continue;
        }
        isClear = isClear && Depth(other, nearest.point) > 1e-60;
        // The roots next to a shallow turning point, one on each side, are as open as the turning point is.
        const auto right = std::upper_bound(roots.begin(), roots.end(), turn);
        if (right != roots.end())
        {
            points[static_cast<std::size_t>(right - roots.begin())].standing = Standing::Edge;
        }
        if (right != roots.begin())
        {
            points[static_cast<std::size_t>(right - roots.begin()) - 1].standing = Standing::Edge;
        }
        nearest.standing = Standing::Edge;
        nearest.sine = 0.0;
        points.push_back(nearest);
    }
    if (isClear && CountRealRoots(quartic) != static_cast<int>(roots.size()))
    {
        throw std::logic_error("the roots found and Sturm's count disagree");
    }
    return points;
}

void ClipToStretch(std::vector<CommonPoint>& points, const DPOINT2& first, const DPOINT2& second, double edge)
{
    const RealPoint along = RealPoint(second) - RealPoint(first);
    const Real length = Norm(along);
    for (CommonPoint& common : points)
    {
        const double place = (Dot(common.point - RealPoint(first), along) / length).ToDouble();
        const double beyond = std::max(-place, place - length.ToDouble());
        if (beyond > edge)
        {
            common.standing = Standing::Outside;
        }
        else if (beyond > -edge && common.standing == Standing::Inside)
        {
            common.standing = Standing::Edge;
        }
    }
}

void ClipToArc(std::vector<CommonPoint>& points, const DPOINT2& centre, double rotation, double start, double sweep,
               double edge)
{
    const Real turn = 2.0 * Pi();
    for (CommonPoint& common : points)
    {
        const RealPoint radial = common.point - RealPoint(centre);
        const Real angle = (Atan2(radial.y, radial.x) - rotation - start) * (sweep < 0.0 ? -1.0 : 1.0);
        const double place = Modulo(angle, turn).ToDouble();
        const double extent = std::abs(sweep);
        const double fromEnds = std::min({place, std::abs(place - extent), turn.ToDouble() - place});
        if (fromEnds * Norm(radial).ToDouble() <= edge)
        {
            common.standing = common.standing == Standing::Inside ? Standing::Edge : common.standing;
        }
        else if (place > extent)
        {
            common.standing = Standing::Outside;
        }
    }
}

void Compare(Row& row, const std::vector<DPOINT2>& told, const std::vector<CommonPoint>& truth, const Real& unit,
             double far, const Row::Describe& describe)
{
    std::vector<bool> isMet(truth.size(), false);
    for (const DPOINT2& point : told)
    {
        std::size_t nearest = truth.size();
        Real least = far;
        for (std::size_t i = 0; i < truth.size(); ++i)
        {
            const Real distance = Distance(RealPoint(point), truth[i].point);
            if (distance <= least)
            {
                least = distance;
                nearest = i;
            }
        }
        if (nearest == truth.size() || truth[nearest].standing == Standing::Outside ||
            (isMet[nearest] && truth[nearest].standing == Standing::Inside))
        {
            row.CountExtra(describe);
            continue;
        }
        isMet[nearest] = true;
        row.Add(least, unit, truth[nearest].condition, describe);
    }
    for (std::size_t i = 0; i < truth.size(); ++i)
    {
        if (truth[i].standing == Standing::Inside)
        {
            ++row.expected;
            if (!isMet[i])
            {
                row.CountMissed(describe);
            }
        }
    }
}

} // namespace math::accuracy
