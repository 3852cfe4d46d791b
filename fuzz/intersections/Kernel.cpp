// The analytic kernel and the polynomial equations.

#include "Curve.h"

#include "math/AnalyticKernel.h"
#include "math/Intersect.h"

#include <Standard_Failure.hxx>
#include <Standard_OutOfRange.hxx>
#include <StdFail_NotDone.hxx>
#include <gp_Dir2d.hxx>

#include <array>
#include <cmath>
#include <vector>

using namespace math;

namespace fuzz
{

namespace
{

// Meetings of lines and circles

template <typename Expected, typename Function>
bool Raises(const Function& function)
{
    try
    {
        function();
        return false;
    }
    catch (const Expected&)
    {
        return true;
    }
}

bool SamePoint(const IntAna2d_IntPoint& a, const IntAna2d_IntPoint& b)
{
    return SameBits(a.X(), b.X()) && SameBits(a.Y(), b.Y()) && SameBits(a.ParamOnFirst(), b.ParamOnFirst()) &&
           SameBits(a.ParamOnSecond(), b.ParamOnSecond()) && a.SecondIsImplicit() == b.SecondIsImplicit();
}

bool SameMeeting(const IntAna2d_AnaIntersection& a, const IntAna2d_AnaIntersection& b)
{
    bool same = a.IsDone() == b.IsDone() && a.IsParallel() == b.IsParallel() && a.IsIdentical() == b.IsIdentical() &&
                a.IsEmpty() == b.IsEmpty() && a.PointCount() == b.PointCount();
    for (int i = 1; same && i <= a.PointCount(); ++i)
    {
        same = SamePoint(a.Point(i), b.Point(i));
    }
    return same;
}

/// The outcomes that are possible together, and the points that may be asked for.
void CheckOutcome(const IntAna2d_AnaIntersection& meeting)
{
    FUZZ_REQUIRE(meeting.IsDone());
    FUZZ_REQUIRE(meeting.PointCount() >= 0 && meeting.PointCount() <= 2);
    FUZZ_REQUIRE(!meeting.IsIdentical() || meeting.IsParallel());
    FUZZ_REQUIRE(!meeting.IsParallel() || meeting.PointCount() == 0);
    FUZZ_REQUIRE(meeting.IsEmpty() == (meeting.PointCount() == 0 && !meeting.IsIdentical()));
    FUZZ_REQUIRE(Raises<Standard_OutOfRange>([&] { meeting.Point(0); }));
    FUZZ_REQUIRE(Raises<Standard_OutOfRange>([&] { meeting.Point(meeting.PointCount() + 1); }));
    for (int i = 1; i <= meeting.PointCount(); ++i)
    {
        const IntAna2d_IntPoint& point = meeting.Point(i);
        FUZZ_REQUIRE(SameBits(point.X(), point.Value().X()) && SameBits(point.Y(), point.Value().Y()));
        FUZZ_REQUIRE(SamePoint(IntAna2d_IntPoint(point), point));
        IntAna2d_IntPoint copy(point.X(), point.Y(), point.ParamOnFirst());
        FUZZ_REQUIRE(copy.SecondIsImplicit());
        copy.SetValue(point.X(), point.Y(), point.ParamOnFirst(), point.ParamOnSecond());
        FUZZ_REQUIRE(
            SamePoint(copy, IntAna2d_IntPoint(point.X(), point.Y(), point.ParamOnFirst(), point.ParamOnSecond())));
        copy.SetValue(point.Y(), point.X(), 0.0);
        FUZZ_REQUIRE(copy.SecondIsImplicit() && SameBits(copy.ParamOnSecond(), point.ParamOnSecond()));
    }
}

/// A record that was used before answers like a new one.
template <typename First, typename Second>
void CheckMeeting(IntAna2d_AnaIntersection& used, const First& first, const Second& second)
{
    const IntAna2d_AnaIntersection fresh(first, second);
    CheckOutcome(fresh);
    used.Perform(first, second);
    FUZZ_REQUIRE(SameMeeting(used, fresh));
    const IntAna2d_AnaIntersection copy(used);
    IntAna2d_AnaIntersection assigned;
    FUZZ_REQUIRE(!assigned.IsDone() && Raises<StdFail_NotDone>([&] { assigned.Point(1); }));
    assigned = copy;
    FUZZ_REQUIRE(SameMeeting(assigned, fresh));
}

gp_Lin2d NextLine(Decoder& decoder)
{
    const DPOINT2 point = decoder.Point();
    const DPOINT2 along = decoder.Point();
    return gp_Lin2d(gp_Pnt2d(point.x, point.y), gp_Dir2d(along.x, along.y));
}

gp_Circ2d NextCircle(Decoder& decoder)
{
    const DPOINT2 centre = decoder.Point();
    const DPOINT2 along = decoder.Point();
    const double radius = decoder.Size();
    const bool sense = decoder.Flag();
    return gp_Circ2d(gp_Ax2d(gp_Pnt2d(centre.x, centre.y), gp_Dir2d(along.x, along.y)), radius, sense);
}

void CheckMeetings(Decoder& decoder)
{
    IntAna2d_AnaIntersection used;
    const gp_Lin2d line = NextLine(decoder);
    const gp_Circ2d circle = NextCircle(decoder);
    CheckMeeting(used, line, circle);
    CheckMeeting(used, circle, NextCircle(decoder));
    CheckMeeting(used, line, NextLine(decoder));
    CheckMeeting(used, line, line);
    CheckMeeting(used, circle, circle);
}

// Circles from points

void CheckStatus(const gce_MakeCirc2d& made)
{
    FUZZ_REQUIRE(made.IsDone() == (made.Status() == gce_MakeCirc2d::Done));
    if (!made.IsDone())
    {
        FUZZ_REQUIRE(made.Status() == gce_MakeCirc2d::NegativeRadius || made.Status() == gce_MakeCirc2d::Collinear ||
                     made.Status() == gce_MakeCirc2d::IntersectionFailed);
        FUZZ_REQUIRE(Raises<StdFail_NotDone>([&] { made.Value(); }));
        FUZZ_REQUIRE(Raises<StdFail_NotDone>([&] { made.Operator(); }));
        return;
    }
    FUZZ_REQUIRE(!(made.Value().Radius() < 0.0));
    const gp_Circ2d copy = made;
    FUZZ_REQUIRE(SameBits(copy.Radius(), made.Operator().Radius()));
}

void CheckCircles(Decoder& decoder)
{
    const DPOINT2 p = decoder.Point();
    const DPOINT2 q = decoder.Point();
    const DPOINT2 r = decoder.Point();
    const double radius = decoder.Size();
    const bool sense = decoder.Flag();
    const gp_Pnt2d first(p.x, p.y);
    const gp_Pnt2d second(q.x, q.y);
    CheckStatus(gce_MakeCirc2d(first, radius, sense));
    CheckStatus(gce_MakeCirc2d(first, second, sense));
    const gp_Circ2d circle = NextCircle(decoder);
    CheckStatus(gce_MakeCirc2d(circle, second));
    CheckStatus(gce_MakeCirc2d(circle, radius));
    CheckStatus(gce_MakeCirc2d(circle.XAxis(), radius, sense));
    CheckStatus(gce_MakeCirc2d(circle.Axis(), radius));
    const gce_MakeCirc2d three(first, second, gp_Pnt2d(r.x, r.y));
    CheckStatus(three);
    DPOINT2 centre(-77.25, 1234.5);
    double found = -4321.625;
    const bool made = CreateCircleFrom3Point(p, q, r, &centre, &found);
    FUZZ_REQUIRE(made == three.IsDone());
    FUZZ_REQUIRE(SameBits(found, made ? three.Value().Radius() : -4321.625));
    FUZZ_REQUIRE(SameBits(centre.x, made ? three.Value().Location().X() : -77.25));
}

// Equations

bool IsTame(double number)
{
    return number == 0.0 || (std::abs(number) >= 1e-3 && std::abs(number) <= 1e3);
}

void CheckQuadratic(double a, double b, double c)
{
    double x1 = -77.0;
    double x2 = -77.0;
    const int count = SolveQuadraticEquation(a, b, c, &x1, &x2);
    std::vector<double> roots = {1.5};
    const bool any = SolveQuadraticEquation(a, b, c, roots);
    FUZZ_REQUIRE(count >= 0 && count <= 2 && any == (count > 0));
    FUZZ_REQUIRE(SolveQuadraticEquation(a, b, c, nullptr, nullptr) == count);
    std::vector<double> expected = {1.5};
    for (const double root : {x1, x2})
    {
        if (!std::isnan(root))
        {
            expected.push_back(root);
        }
    }
    FUZZ_REQUIRE(roots == expected);
    double own = a;
    FUZZ_REQUIRE(SolveQuadraticEquation(own, b, c, &own, nullptr) == count && SameBits(own, x1));
    if (std::isnan(a) || std::isnan(b) || std::isnan(c))
    {
        FUZZ_REQUIRE(count == 2 && std::isnan(x1) && std::isnan(x2));
        return;
    }
    if (count == 0)
    {
        FUZZ_REQUIRE(std::isnan(x1) && std::isnan(x2));
    }
    if (!IsTame(a) || !IsTame(b) || !IsTame(c))
    {
        return;
    }
    const double greatest = std::max(std::abs(a), std::max(std::abs(b), std::abs(c)));
    for (std::size_t i = 1; i < roots.size(); ++i)
    {
        const double x = roots[i];
        FUZZ_REQUIRE(std::abs((a * x + b) * x + c) <= 1e-8 * greatest * (1.0 + x * x));
    }
    // Roots of one magnitude may differ by rounding.
    FUZZ_REQUIRE(count != 2 || std::abs(x1) >= std::abs(x2) * (1.0 - 1e-12));
}

void CheckCubic(double a, double b, double c, double d)
{
    std::array<double, 3> roots = {-77.0, -78.0, -79.0};
    const int count = SolveCubicEquation(a, b, c, d, &roots[0], &roots[1], &roots[2]);
    std::vector<double> list = {1.5};
    const bool any = SolveCubicEquation(a, b, c, d, list);
    FUZZ_REQUIRE(list.front() == 1.5);
    if (std::abs(a) < 1e-9)
    {
        double x1 = 0.0;
        double x2 = 0.0;
        FUZZ_REQUIRE(SolveQuadraticEquation(b, c, d, &x1, &x2) == count && any == (count > 0));
        FUZZ_REQUIRE(SameBits(roots[0], x1) && SameBits(roots[1], x2) && roots[2] == -79.0);
        return;
    }
    FUZZ_REQUIRE(any && count >= 1 && count <= 3 && list.size() == static_cast<std::size_t>(count) + 1);
    for (std::size_t i = 0; i < 3; ++i)
    {
        if (i < static_cast<std::size_t>(count))
        {
            FUZZ_REQUIRE(SameBits(list[i + 1], roots[i]));
        }
        else
        {
            FUZZ_REQUIRE(roots[i] == -77.0 - static_cast<double>(i));
        }
    }
}

} // namespace

void CheckKernel(Decoder& decoder)
{
    TheTrace().Begin("the analytic kernel");
    try
    {
        if (decoder.Flag())
        {
            CheckMeetings(decoder);
        }
        else
        {
            CheckCircles(decoder);
        }
    }
    catch (const Standard_Failure&)
    {
        // Directions of no length, negative radii and arguments of inverse functions beyond 1 are told by exceptions.
    }
}

void CheckEquation(Decoder& decoder)
{
    TheTrace().Begin("an equation");
    const double a = decoder.Number();
    const double b = decoder.Number();
    const double c = decoder.Number();
    CheckQuadratic(a, b, c);
    CheckCubic(a, b, c, decoder.Number());
}

} // namespace fuzz
