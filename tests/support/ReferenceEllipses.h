#pragma once

#include "math/Intersect.h"
#include "math/Primitives.h"
#include "support/Ellipses.h"
#include "support/ReferenceLines.h"

#include <gp_Vec2d.hxx>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

// A second implementation of straight lines with ellipses and of the quarter arc method, written step by step without
// sharing and without a guard of its searches, for comparison bit by bit.

namespace math::test::reference
{

inline double Fold(double value, double modulus)
{
    while (value < 0)
    {
        value += modulus;
    }
    while (value >= modulus)
    {
        value -= modulus;
    }
    return value;
}

inline bool Zero(double value)
{
    return std::abs(value) < 1e-9;
}

// Straight lines

inline int BeelineWithEllipse(const DPOINT2& p, double angle, const Ellipse& e, DPOINT2* first, DPOINT2* second)
{
    *first = NoPoint();
    *second = NoPoint();
    const double direction = Fold(angle, Pi);
    DPOINT2 t1;
    DPOINT2 t2;
    GetTangentPointOfEllipse(e.centre, e.a, e.b, Fold(e.rotation, Pi), direction, &t1, &t2);
    if (Zero(D2GetPointToBeelineDistance(t1, p, direction)))
    {
        *first = t1;
        return 1;
    }
    if (Zero(D2GetPointToBeelineDistance(t2, p, direction)))
    {
        *first = t2;
        return 1;
    }
    const double s = std::sin(e.rotation);
    const double k = std::cos(e.rotation);
    const double dx = p.x - e.centre.x;
    const double dy = p.y - e.centre.y;
    const double u = dx * k + dy * s;
    const double v = k * dy - dx * s;
    const double theta = Fold(angle - e.rotation, Pi);
    const double a2 = e.a * e.a;
    const double b2 = e.b * e.b;
    double x1 = InvalidDouble;
    double x2 = InvalidDouble;
    int roots = 0;
    double m = 0;
    double n = 0;
    const bool flat = theta <= 0.7853981633974483 || theta >= 2.356194490192345;
    if (flat)
    {
        m = std::tan(theta);
        n = v - u * m;
        roots = SolveQuadraticEquation(m * m + b2 / a2, 2.0 * m * n, n * n - b2, &x1, &x2);
    }
    else
    {
        m = std::tan(HalfPi - theta);
        n = u - v * m;
        roots = SolveQuadraticEquation(m * m + a2 / b2, 2.0 * m * n, n * n - a2, &x1, &x2);
    }
    int count = 0;
    for (int i = 0; i < roots; ++i)
    {
        const double r = i == 0 ? x1 : x2;
        const double x = flat ? r : r * m + n;
        const double y = flat ? r * m + n : r;
        if (!std::isnan(x) && !std::isnan(y))
        {
            *(i == 0 ? first : second) = {k * x - s * y + e.centre.x, y * k + s * x + e.centre.y};
            ++count;
        }
    }
    return count;
}

inline int LineWithEllipse(const DPOINT2& from, const DPOINT2& to, const Ellipse& e, DPOINT2 (&found)[2])
{
    const int count = BeelineWithEllipse(from, AngleOfWay(from, to), e, &found[0], &found[1]);
    return KeepOnStretch(count, found, from, to, [](const DPOINT2&) { return true; });
}

inline bool InSector(const DPOINT2& p, const EllipseArc& arc)
{
    const double q = D2GetNormalAngle(p.x - arc.whole.centre.x, p.y - arc.whole.centre.y);
    const double sign = arc.sweep > 0 ? 1.0 : -1.0;
    const double t = Fold((q - (arc.whole.rotation + arc.start)) * sign, TwoPi);
    return t <= std::abs(arc.sweep) + 1e-9 || std::abs(t - TwoPi) < 1e-9;
}

inline int LineWithEllipseArc(const DPOINT2& from, const DPOINT2& to, const EllipseArc& arc, DPOINT2 (&found)[2])
{
    const int count = BeelineWithEllipse(from, AngleOfWay(from, to), arc.whole, &found[0], &found[1]);
    return KeepOnStretch(count, found, from, to, [&](const DPOINT2& point) { return InSector(point, arc); });
}

inline int BeelineWithEllipseArc(const DPOINT2& p, double angle, const EllipseArc& arc, DPOINT2* first, DPOINT2* second)
{
    DPOINT2 p1;
    DPOINT2 p2;
    const int found = BeelineWithEllipse(p, angle, arc.whole, &p1, &p2);
    if (found < 1)
    {
        return found;
    }
    const bool in1 = InSector(p1, arc);
    const bool in2 = found == 2 && InSector(p2, arc);
    if (in1 && in2)
    {
        if (first != nullptr)
        {
            *first = p1;
        }
        if (second != nullptr)
        {
            *second = p2;
        }
        return 2;
    }
    if (!in1 && !in2)
    {
        return 0;
    }
    if (first != nullptr)
    {
        *first = in1 ? p1 : p2;
    }
    return 1;
}

// Quarter arcs

/// What becomes of a search that would never end.
enum class Unending
{
    GivenUpAfterManySteps,
    LeftWhereItRepeats
};

class QuarterArcMethod
{
public:
    explicit QuarterArcMethod(Unending unending = Unending::GivenUpAfterManySteps) : m_unending(unending)
    {
    }

    /// The result for two ellipses; all merged points are in `points`.
    int Meet(const Ellipse& e1, const Ellipse& e2, std::vector<DPOINT2>& points)
    {
        points.clear();
        const bool oneCentre = Zero(e1.centre.x - e2.centre.x) && Zero(e1.centre.y - e2.centre.y);
        if (oneCentre && Zero(e1.a - e2.a) && Zero(e1.b - e2.b) &&
            (Zero(e1.rotation - e2.rotation) || Zero(e1.rotation + Pi - e2.rotation) ||
             Zero(e1.rotation - (e2.rotation + Pi))))
        {
            return -1;
        }
        if (oneCentre && Zero(e1.a - e1.b) && Zero(e2.a - e2.b) && Zero(e1.a - e2.a))
        {
            return -1;
        }
        const double d = D2GetDistance(e1.centre, e2.centre);
        if (d > e1.a + e2.a || e2.b > e1.a + d || e1.b > d + e2.a)
        {
            return 0;
        }
        const auto arcs1 = Split(e1);
        const auto arcs2 = Split(e2);
        for (const EllipseArc& arc1 : arcs1)
        {
            for (const EllipseArc& arc2 : arcs2)
            {
                DPOINT2 p1;
                DPOINT2 p2;
                const int found = IntersectArcs(arc1, arc2, p1, p2);
                if (found > 0)
                {
                    points.push_back(p1);
                }
                if (found > 1)
                {
                    points.push_back(p2);
                }
            }
        }
        for (std::size_t i = 0; i < points.size(); ++i)
        {
            for (std::size_t j = i + 1; j < points.size();)
            {
                if (Zero(points[i].x - points[j].x) && Zero(points[i].y - points[j].y))
                {
                    points.erase(points.begin() + static_cast<std::ptrdiff_t>(j));
                }
                else
                {
                    ++j;
                }
            }
        }
        return static_cast<int>(points.size());
    }

    bool MetUnending() const
    {
        return m_metUnending;
    }

    /// How often each outcome of two arcs was reached.
    struct Outcomes
    {
        int apartInX = 0;
        int above = 0;
        int meetAtLeft = 0;
        int meetAtRight = 0;
        int cross = 0;
        int equalSlopesAtEnd = 0;
        int noTurn = 0;
        int searchesNotRun = 0;
        int touch = 0;
        int noCrossing = 0;
        int crossTwice = 0;
        int bisectionsNotRun = 0;
        int verticalsMissed = 0;
    };

    Outcomes outcomes;

private:
    using State = std::vector<double>;

    static std::array<EllipseArc, 4> Split(const Ellipse& e)
    {
        const double folded = Fold(e.rotation, Pi);
        std::array<DPOINT2, 4> slots;
        GetTangentPointOfEllipse(e.centre, e.a, e.b, folded, 0.0, &slots[0], &slots[2]);
        GetTangentPointOfEllipse(e.centre, e.a, e.b, folded, HalfPi, &slots[1], &slots[3]);
        std::array<double, 4> angles{};
        for (std::size_t i = 0; i < 4; ++i)
        {
            angles[i] = D2RotateAngle(gp_Vec2d(1, 0), gp_Vec2d(slots[i].x - e.centre.x, slots[i].y - e.centre.y));
            if (!std::isnan(angles[i]))
            {
                angles[i] = Fold(angles[i], TwoPi);
            }
            angles[i] = Fold(angles[i] - e.rotation, TwoPi);
        }
        for (std::size_t i = 1; i < 4; ++i)
        {
            const double inserted = angles[i];
            std::size_t place = i;
            while (place > 0 && inserted < angles[place - 1])
            {
                angles[place] = angles[place - 1];
                --place;
            }
            angles[place] = inserted;
        }
        std::array<EllipseArc, 4> arcs{};
        for (std::size_t i = 0; i < 4; ++i)
        {
            arcs[i] = {e, angles[i], Fold(angles[(i + 1) % 4] - angles[i], TwoPi)};
        }
        return arcs;
    }

    int Vertical(double x, const EllipseArc& arc, DPOINT2& point)
    {
        const int found = BeelineWithEllipseArc({x, 0.0}, HalfPi, arc, &point, nullptr);
        outcomes.verticalsMissed += found == 0 ? 1 : 0;
        return found;
    }

    static double SlopeAngle(const EllipseArc& arc, double rise, const DPOINT2& point)
    {
        const Ellipse& e = arc.whole;
        double t = GetTangentAngleOfEllipse(e.centre, e.a, e.b, RegularizeIncludedRadian(e.rotation), point);
        if (std::abs(t - HalfPi) < 1e-9)
        {
            t = rise > 0 ? t : t * -1.0;
        }
        else if (t > HalfPi)
        {
            t -= Pi;
        }
        return t;
    }

    static void EndsOf(const EllipseArc& arc, DPOINT2& left, DPOINT2& right)
    {
        const Ellipse& e = arc.whole;
        left = GetPointInEllipse(e.centre, e.a, e.b, e.rotation, arc.start);
        right = GetPointInEllipse(e.centre, e.a, e.b, e.rotation, Fold(arc.start + arc.sweep, TwoPi));
        if (left.x > right.x)
        {
            std::swap(left, right);
        }
    }

    int IntersectArcs(const EllipseArc& a, const EllipseArc& b, DPOINT2& first, DPOINT2& second)
    {
        DPOINT2 aLeft;
        DPOINT2 aRight;
        DPOINT2 bLeft;
        DPOINT2 bRight;
        EndsOf(a, aLeft, aRight);
        EndsOf(b, bLeft, bRight);
        if (aLeft.x > bRight.x || bLeft.x > aRight.x)
        {
            ++outcomes.apartInX;
            return 0;
        }
        DPOINT2 hit(0, 0);
        if (Vertical(aLeft.x, b, hit) == 1)
        {
            bLeft = hit;
        }
        else
        {
            Vertical(bLeft.x, a, hit);
            aLeft = hit;
        }
        if (Vertical(aRight.x, b, hit) == 1)
        {
            bRight = hit;
        }
        else
        {
            Vertical(bRight.x, a, hit);
            aRight = hit;
        }
        const bool aAbove = aLeft.y > bLeft.y && aLeft.y > bRight.y && aRight.y > bLeft.y && aRight.y > bRight.y;
        const bool bAbove = bLeft.y > aLeft.y && bLeft.y > aRight.y && bRight.y > aLeft.y && bRight.y > aRight.y;
        if (aAbove || bAbove)
        {
            ++outcomes.above;
            return 0;
        }
        const double dL = aLeft.y - bLeft.y;
        const double dR = aRight.y - bRight.y;
        if (Zero(dL) || Zero(dR))
        {
            int count = 0;
            if (Zero(dL))
            {
                ++outcomes.meetAtLeft;
                first = aLeft;
                count = 1;
            }
            if (Zero(dR))
            {
                ++outcomes.meetAtRight;
                (count == 0 ? first : second) = aRight;
                ++count;
            }
            return count;
        }
        if (dL * dR < 0)
        {
            ++outcomes.cross;
            first = Bisect(a, b, aLeft.x, aRight.x);
            return 1;
        }
        const double aRise = aRight.y - aLeft.y;
        const double bRise = bRight.y - bLeft.y;
        const double sL = SlopeAngle(a, aRise, aLeft) - SlopeAngle(b, bRise, bLeft);
        const double sR = SlopeAngle(a, aRise, aRight) - SlopeAngle(b, bRise, bRight);
        if (Zero(sL) || Zero(sR))
        {
            ++outcomes.equalSlopesAtEnd;
            return 0;
        }
        if (sL * sR > 0)
        {
            ++outcomes.noTurn;
            return 0;
        }
        double lo = aLeft.x;
        double hi = aRight.x;
        DPOINT2 mA(0, 0);
        DPOINT2 mB(0, 0);
        std::vector<State> history;
        outcomes.searchesNotRun += hi > lo ? 0 : 1;
        while (hi > lo)
        {
            if (NeverEnds(history, {lo, hi, mA.x, mA.y, mB.x, mB.y}))
            {
                break;
            }
            const double mid = (hi + lo) * 0.5;
            Vertical(mid, a, mA);
            Vertical(mid, b, mB);
            const double s = SlopeAngle(a, aRise, mA) - SlopeAngle(b, bRise, mB);
            if (Zero(s))
            {
                break;
            }
            if (s * sL > 0)
            {
                lo = mA.x;
            }
            else
            {
                hi = mA.x;
            }
        }
        const double g = mA.y - mB.y;
        if (Zero(g))
        {
            ++outcomes.touch;
            first = mA;
            return 1;
        }
        if (g * dL > 0)
        {
            ++outcomes.noCrossing;
            return 0;
        }
        ++outcomes.crossTwice;
        first = Bisect(a, b, aLeft.x, mA.x);
        second = Bisect(a, b, mA.x, aRight.x);
        return 2;
    }

    static void OnWhole(double x, const EllipseArc& arc, DPOINT2& point)
    {
        DPOINT2 p1;
        DPOINT2 p2;
        const int found = BeelineWithEllipse({x, 0.0}, HalfPi, arc.whole, &p1, &p2);
        if (found <= 0)
        {
            return;
        }
        if (InSector(p1, arc))
        {
            point = p1;
        }
        else if (found == 2 && InSector(p2, arc))
        {
            point = p2;
        }
    }

    DPOINT2 Bisect(const EllipseArc& a, const EllipseArc& b, double low, double high)
    {
        DPOINT2 aLow(0, 0);
        DPOINT2 bLow(0, 0);
        DPOINT2 aHigh(0, 0);
        Vertical(low, a, aLow);
        Vertical(low, b, bLow);
        Vertical(high, a, aHigh);
        DPOINT2 mA(0, 0);
        DPOINT2 mB(0, 0);
        std::vector<State> history;
        outcomes.bisectionsNotRun += aLow.x + 1e-9 < aHigh.x ? 0 : 1;
        while (aLow.x + 1e-9 < aHigh.x)
        {
            if (NeverEnds(history, {aLow.x, aLow.y, bLow.x, bLow.y, aHigh.x, aHigh.y, mA.x, mA.y, mB.x, mB.y}))
            {
                break;
            }
            const double mid = (aHigh.x + aLow.x) * 0.5;
            OnWhole(mid, a, mA);
            OnWhole(mid, b, mB);
            const double e = mA.y - mB.y;
            if (Zero(e))
            {
                break;
            }
            if ((aLow.y - bLow.y) * e > 0)
            {
                aLow = mA;
                bLow = mB;
            }
            else
            {
                aHigh = mA;
            }
        }
        return {(mA.x + mB.x) * 0.5, (mA.y + mB.y) * 0.5};
    }

    /// Whether a search has to be left before its next step.
    bool NeverEnds(std::vector<State>& history, const State& state)
    {
        bool leave = history.size() >= 300;
        if (m_unending == Unending::LeftWhereItRepeats)
        {
            leave = std::any_of(history.begin(), history.end(), [&](const State& earlier) {
                return std::memcmp(earlier.data(), state.data(), state.size() * sizeof(double)) == 0;
            });
        }
        history.push_back(state);
        m_metUnending = m_metUnending || leave;
        return leave;
    }

    Unending m_unending;
    bool m_metUnending = false;
};

// Elliptical arcs

/// The result for an ellipse and an elliptical arc of at most four points of the whole ellipses.
inline int KeepOnArc(int found, const std::vector<DPOINT2>& points, const EllipseArc& arc, std::vector<DPOINT2>& kept)
{
    kept.clear();
    const Ellipse& e = arc.whole;
    const DPOINT2 s = GetPointInEllipse(e.centre, e.a, e.b, e.rotation, arc.start);
    const DPOINT2 t = GetPointInEllipse(e.centre, e.a, e.b, e.rotation, Fold(arc.start + arc.sweep, TwoPi));
    for (int i = 0; i < found && i < 4; ++i)
    {
        const DPOINT2& p = points[static_cast<std::size_t>(i)];
        const double theta = Fold(std::atan2(p.y - e.centre.y, p.x - e.centre.x) - e.rotation - arc.start, TwoPi);
        if ((0 <= theta && theta <= arc.sweep) || D2GetDistance(p, s) < 1e-9 || D2GetDistance(p, t) < 1e-9)
        {
            kept.push_back(p);
        }
    }
    return static_cast<int>(kept.size());
}

inline bool Holds(const EllipseArc& arc, const DPOINT2& p)
{
    const Ellipse& e = arc.whole;
    return IsPointInEllipseArc(p, e.centre, e.a, e.b, e.rotation, arc.start, arc.sweep);
}

/// The result for two arcs, of the result and the points of their whole ellipses.
inline int KeepOnBoth(int found, const std::vector<DPOINT2>& points, const EllipseArc& arc1, const EllipseArc& arc2,
                      std::vector<DPOINT2>& kept)
{
    kept.clear();
    for (int i = 0; i < found && i < 4; ++i)
    {
        const DPOINT2& p = points[static_cast<std::size_t>(i)];
        if (Holds(arc1, p) && Holds(arc2, p))
        {
            kept.push_back(p);
        }
    }
    if (found != -1)
    {
        return static_cast<int>(kept.size());
    }
    const auto point = [](const EllipseArc& arc, double radian) {
        return GetPointInEllipse(arc.whole.centre, arc.whole.a, arc.whole.b, arc.whole.rotation, radian);
    };
    const DPOINT2 s1 = point(arc1, arc1.start);
    const DPOINT2 e1 = point(arc1, Fold(arc1.start + arc1.sweep, TwoPi));
    const DPOINT2 s2 = point(arc2, arc2.start);
    const DPOINT2 e2 = point(arc2, Fold(arc2.start + arc2.sweep, TwoPi));
    if (!Holds(arc1, s2) && !Holds(arc1, e2) && !Holds(arc2, s1) && !Holds(arc2, e1))
    {
        return 0;
    }
    const bool atStart = D2GetDistance(s1, e2) < 1e-9;
    const bool atEnd = D2GetDistance(e1, s2) < 1e-9;
    if (atStart && atEnd)
    {
        kept = {s1, e1};
        return 2;
    }
    if (atStart && !Holds(arc2, e1))
    {
        kept = {s1};
        return 1;
    }
    if (atEnd && !Holds(arc2, s1))
    {
        kept = {e1};
        return 1;
    }
    return -1;
}

} // namespace math::test::reference
