#include "support/Failures.h"
#include "support/Support.h"

#include "math/AnalyticKernel.h"

#include <cmath>
#include <string>

using namespace math;
using namespace math::test;

namespace
{

/// The distance at and below which two points are too near each other for a bisector: 2^-52.
constexpr double SmallDistance = 2.220446049250313e-16;

using Point = gp_Pnt2d;

/// The circle through three points of the circle of radius 5 about (1, 2), given by their directions.
gp_Circ2d ThroughDirections(double first, double second, double third)
{
    const auto at = [](double radian) {
        const DPOINT2 point = GetPointInCircle(At(1, 2), 5.0, radian);
        return Point(point.x, point.y);
    };
    return gce_MakeCirc2d(at(first), at(second), at(third)).Value();
}

::testing::AssertionResult IsCircle(const gp_Circ2d& circle, double x, double y, double radius, double tolerance)
{
    if (Near(At(circle.Location().X(), circle.Location().Y()), At(x, y), tolerance) &&
        std::abs(circle.Radius() - radius) <= tolerance)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "about (" << Digits(circle.Location().X()) << ", "
                                         << Digits(circle.Location().Y()) << "), radius " << Digits(circle.Radius());
}

::testing::AssertionResult HasAxis(const gp_Circ2d& circle, double x, double y, bool direct)
{
    const gp_Dir2d axis = circle.XAxis().Direction();
    if (axis.X() == x && axis.Y() == y && circle.IsDirect() == direct)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "x axis along (" << Digits(axis.X()) << ", " << Digits(axis.Y()) << "), "
                                         << (circle.IsDirect() ? "" : "in") << "direct";
}

/// The circle is refused, however it is asked for.
::testing::AssertionResult IsRefused(const gce_MakeCirc2d& maker, int status)
{
    if (maker.Status() != status || maker.IsDone())
    {
        return ::testing::AssertionFailure() << "status " << maker.Status();
    }
    const std::string message = "gce_MakeCirc2d::Value() - no result";
    for (const auto& result :
         {Raises("StdFail_NotDone", message, [&] { maker.Value(); }),
          Raises("StdFail_NotDone", message, [&] { maker.Operator(); }),
          Raises("StdFail_NotDone", message, [&] { static_cast<void>(static_cast<gp_Circ2d>(maker)); })})
    {
        if (!result)
        {
            return result;
        }
    }
    return ::testing::AssertionSuccess();
}

constexpr const char* OutOfRange = "Standard_OutOfRange";
constexpr const char* NoDirection = "gp_Dir2d() - input vector has zero norm";

} // namespace

TEST(MadeCircle, IsReadInThreeWays)
{
    const gce_MakeCirc2d maker(Point(1, 2), 3.0, true);
    EXPECT_EQ(maker.Status(), 0);
    EXPECT_EQ(maker.Status(), gce_MakeCirc2d::Done);
    EXPECT_TRUE(maker.IsDone());
    EXPECT_TRUE(IsCircle(maker.Value(), 1, 2, 3, 0.0));
    EXPECT_EQ(&maker.Operator(), &maker.Value());
    const gp_Circ2d converted = maker;
    EXPECT_TRUE(IsCircle(converted, 1, 2, 3, 0.0));
}

TEST(MadeCircle, HasFixedNumbersForItsStatus)
{
    EXPECT_EQ(static_cast<int>(gce_MakeCirc2d::Done), 0);
    EXPECT_EQ(static_cast<int>(gce_MakeCirc2d::NegativeRadius), 2);
    EXPECT_EQ(static_cast<int>(gce_MakeCirc2d::Collinear), 3);
    EXPECT_EQ(static_cast<int>(gce_MakeCirc2d::IntersectionFailed), 4);
}

TEST(MadeCircle, OfCentreAndRadiusHasItsAxisAlongX)
{
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(Point(1, 2), 3.0, true).Value(), 1, 2, 3, 0.0));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(Point(1, 2), 3.0, true).Value(), 1, 0, true));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(Point(1, 2), 3.0, false).Value(), 1, 0, false));
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(Point(1, 2), 0.0, true).Value(), 1, 2, 0, 0.0));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(1, 2), -3.0, true), 2));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(1, 2), -5e-324, true), 2));
}

TEST(MadeCircle, OnAnAxisKeepsItsDirection)
{
    const gp_Ax2d axis(Point(1, 2), gp_Dir2d(3, 4));
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(axis, 3.0, true).Value(), 1, 2, 3, 0.0));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(axis, 3.0, true).Value(), 0.6, 0.8, true));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(axis, 3.0, false).Value(), 0.6, 0.8, false));
    EXPECT_TRUE(gce_MakeCirc2d(axis, 0.0, true).IsDone());
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(axis, -3.0, true), 2));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(axis, -5e-324, false), 2));
}

TEST(MadeCircle, InGivenAxesKeepsThem)
{
    const gp_Ax22d direct(Point(1, 2), gp_Dir2d(3, 4), true);
    const gp_Ax22d indirect(Point(1, 2), gp_Dir2d(3, 4), false);
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(direct, 3.0).Value(), 1, 2, 3, 0.0));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(direct, 3.0).Value(), 0.6, 0.8, true));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(indirect, 3.0).Value(), 0.6, 0.8, false));
    EXPECT_TRUE(gce_MakeCirc2d(direct, 0.0).IsDone());
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(direct, -3.0), 2));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(indirect, -5e-324), 2));
}

TEST(MadeCircle, OfCentreAndPointHasItsAxisAlongX)
{
    const gce_MakeCirc2d maker(Point(1, 2), Point(4, 6), false);
    EXPECT_EQ(maker.Status(), 0);
    EXPECT_TRUE(IsCircle(maker.Value(), 1, 2, 5, 0.0));
    EXPECT_TRUE(HasAxis(maker.Value(), 1, 0, false));
    EXPECT_TRUE(HasAxis(gce_MakeCirc2d(Point(1, 2), Point(4, 6), true).Value(), 1, 0, true));
    EXPECT_EQ(gce_MakeCirc2d(Point(1, 2), Point(1, 2), true).Status(), 0);
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(Point(1, 2), Point(1, 2), true).Value(), 1, 2, 0, 0.0));
}

TEST(MadeCircle, FromAnotherCircleKeepsItsAxes)
{
    const gp_Circ2d circle(gp_Ax22d(Point(1, 2), gp_Dir2d(3, 4), false), 3.0);
    const gce_MakeCirc2d through(circle, Point(13, 7));
    EXPECT_EQ(through.Status(), 0);
    EXPECT_TRUE(IsCircle(through.Value(), 1, 2, 13, 0.0));
    EXPECT_TRUE(HasAxis(through.Value(), 0.6, 0.8, false));
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(circle, Point(1, 2)).Value(), 1, 2, 0, 0.0));

    const gce_MakeCirc2d wider(circle, 2.5);
    EXPECT_EQ(wider.Status(), 0);
    EXPECT_TRUE(IsCircle(wider.Value(), 1, 2, 5.5, 0.0));
    EXPECT_TRUE(HasAxis(wider.Value(), 0.6, 0.8, false));
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(circle, -1.0).Value(), 1, 2, 2, 0.0));
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(circle, -3.0).Value(), 1, 2, 0, 0.0));
    EXPECT_TRUE(IsCircle(gce_MakeCirc2d(circle, -5.0).Value(), 1, 2, 2, 0.0)); // beyond the centre, and still done
    EXPECT_EQ(gce_MakeCirc2d(circle, -5.0).Status(), 0);
}

TEST(MadeCircle, GoesThroughThreePoints)
{
    const gce_MakeCirc2d maker(Point(0, 0), Point(1, 0), Point(0, 1));
    EXPECT_EQ(maker.Status(), 0);
    EXPECT_TRUE(IsCircle(maker.Value(), 0.5, 0.5, 0.7071067811865476, 1e-16));
    EXPECT_TRUE(IsCircle(ThroughDirections(0.5, 2.0, 4.0), 1, 2, 5, 1e-14));
    EXPECT_TRUE(IsCircle(ThroughDirections(4.0, 0.5, 2.0), 1, 2, 5, 1e-14));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(0, 0), Point(1, 0), Point(2, 0)), 3));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(1, 2), Point(4, 6), Point(7, 10)), 3));
}

TEST(MadeCircle, ThroughThreePointsTurnsItsSenseUnlessTheirDirectionsAscend)
{
    // Directions count from the world's x axis, in [0, 2π).
    EXPECT_TRUE(HasAxis(ThroughDirections(0.5, 2.0, 4.0), 1, 0, true));
    EXPECT_TRUE(HasAxis(ThroughDirections(0.5, 4.0, 2.0), 1, 0, false)); // the third comes before the second
    EXPECT_TRUE(HasAxis(ThroughDirections(2.0, 0.5, 4.0), 1, 0, false)); // the second comes before the first
    EXPECT_TRUE(HasAxis(ThroughDirections(4.0, 2.0, 0.5), 1, 0, false));
    // Counter-clockwise over the seam still counts as turned.
    EXPECT_TRUE(HasAxis(ThroughDirections(2.0, 4.0, 0.5), 1, 0, false));
    EXPECT_TRUE(HasAxis(ThroughDirections(4.0, 0.5, 2.0), 1, 0, false));
}

TEST(MadeCircle, ThroughOnePlaceHasRadiusZero)
{
    const gce_MakeCirc2d maker(Point(1, 2), Point(1, 2), Point(1, 2));
    EXPECT_EQ(maker.Status(), 0);
    EXPECT_TRUE(IsCircle(maker.Value(), 1, 2, 0, 0.0));
    EXPECT_TRUE(HasAxis(maker.Value(), 1, 0, true));
    // Distances whose squares are lost are none.
    const gce_MakeCirc2d lost(Point(1e-200, 0), Point(0, 1e-200), Point(0, 0));
    EXPECT_EQ(lost.Status(), 0);
    EXPECT_TRUE(IsCircle(lost.Value(), 1e-200, 0, 0, 0.0));
}

TEST(MadeCircle, ThroughTwoPlacesIsRefused)
{
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(1, 2), Point(1, 2), Point(4, 6)), 3));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(1, 2), Point(4, 6), Point(1, 2)), 3));
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(4, 6), Point(1, 2), Point(1, 2)), 3));
}

TEST(MadeCircle, NeedsPointsMoreThanTheSmallDistanceApart)
{
    const double beyond = Next(SmallDistance);
    // First and second point: the bisector y = e/2 of the two is used from the next double on.
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(0, 0), Point(0, SmallDistance), Point(1, 0)), 3));
    EXPECT_TRUE(
        IsCircle(gce_MakeCirc2d(Point(0, 0), Point(0, beyond), Point(1, 0)).Value(), 0.5, beyond / 2, 0.5, 1e-30));
    // First and third.
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(0, 0), Point(1, 0), Point(0, SmallDistance)), 3));
    EXPECT_TRUE(
        IsCircle(gce_MakeCirc2d(Point(0, 0), Point(1, 0), Point(0, beyond)).Value(), 0.5, beyond / 2, 0.5, 1e-30));
    // Second and third: the two bisectors are then one line within the tolerance of lines.
    EXPECT_TRUE(IsRefused(gce_MakeCirc2d(Point(0, 0), Point(1, 0), Point(1, SmallDistance)), 3));
    EXPECT_TRUE(Raises(OutOfRange, "", [&] { gce_MakeCirc2d(Point(0, 0), Point(1, 0), Point(1, beyond)); }));
    // There the second bisector gives way: it becomes the parallel of the first through the first point, which is so
    // near that both are one line.
    EXPECT_TRUE(Raises(OutOfRange, "", [] { gce_MakeCirc2d(Point(0, 0), Point(3e-16, 0), Point(3e-16, 2e-16)); }));
}

TEST(MadeCircle, PassesOnThatBothBisectorsAreOneLine)
{
    EXPECT_TRUE(Raises(OutOfRange, "", [] { gce_MakeCirc2d(Point(0, 0), Point(1, 0), Point(1 + 1e-10, 0)); }));
    EXPECT_TRUE(Raises(OutOfRange, "", [] { gce_MakeCirc2d(Point(3, 5), Point(3, 7), Point(3, 7 + 1e-10)); }));
}

TEST(MadeCircle, PassesOnThatABisectorHasNoDirection)
{
    EXPECT_TRUE(Raises("Standard_ConstructionError", NoDirection,
                       [] { gce_MakeCirc2d(Point(0, 0), Point(0, 0), Point(1e-20, 0)); }));
    EXPECT_TRUE(Raises("Standard_ConstructionError", NoDirection,
                       [] { gce_MakeCirc2d(Point(0, 3e-20), Point(0, 3e-20), Point(1e-20, 0)); }));
}

TEST(MadeCircle, ThroughPlacesThatOnlyTwoOfTheThreePointsTellApartIsRaised)
{
    // The square of 1.4e-162 is lost, that of twice as much is not: the first point is in one place with either of the
    // others, and those two are not. The line that stands in for a bisector has no direction.
    const double lost = 1.4e-162;
    EXPECT_EQ(Point(0, 0).Distance(Point(lost, 0)), 0.0);
    EXPECT_GT(Point(-lost, 0).Distance(Point(lost, 0)), 1e-162);
    EXPECT_TRUE(Raises("Standard_ConstructionError", NoDirection,
                       [=] { gce_MakeCirc2d(Point(0, 0), Point(lost, 0), Point(-lost, 0)); }));
}

TEST(MadeCircle, ThroughPointsVeryNearEachOtherStandsOnTheXAxis)
{
    // Without a bisector of the first two the first line stays the x axis. The second goes through the first point, at
    // right angles to the second; they meet below the first point. The radius is the mean of the three distances.
    const gce_MakeCirc2d maker(Point(2e-17, 3e-17), Point(5e-17, 3e-17), Point(2e-17, 9e-17));
    EXPECT_EQ(maker.Status(), 0);
    const double mean = (3e-17 + std::sqrt(18.0) * 1e-17 + 9e-17) / 3.0;
    EXPECT_TRUE(IsCircle(maker.Value(), 2e-17, 0, mean, 1e-30));
    // At the small distance itself there is a bisector: it is parallel to the second line, and next to it.
    EXPECT_TRUE(
        IsCircle(gce_MakeCirc2d(Point(0, 1e-17), Point(Previous(SmallDistance), 1e-17), Point(0, 4e-17)).Value(), 0, 0,
                 (1e-17 + std::hypot(Previous(SmallDistance), 1e-17) + 4e-17) / 3.0, 1e-30));
    EXPECT_TRUE(
        Raises(OutOfRange, "", [] { gce_MakeCirc2d(Point(0, 1e-17), Point(SmallDistance, 1e-17), Point(0, 4e-17)); }));
}

TEST(MadeCircle, ThroughThreePointsAscendsFromADirectionToTheSame)
{
    // Points nearer than the small distance: the centre lies on the x axis below the first, at (2, 0) in units of 2^-56.
    // The second and the third are seen in one direction, 3π/4, and the sense stays.
    const double unit = 0x1p-56;
    const gp_Circ2d circle =
        gce_MakeCirc2d(Point(2 * unit, 3 * unit), Point(-unit, 3 * unit), Point(-4 * unit, 6 * unit)).Value();
    EXPECT_TRUE(IsCircle(circle, 2 * unit, 0, (3 + std::sqrt(18.0) + std::sqrt(72.0)) / 3 * unit, 1e-30));
    EXPECT_TRUE(HasAxis(circle, 1, 0, true));
}

TEST(MadeCircle, ThroughThreePointsKeepsThemAtItsRadius)
{
    Random random(74);
    for (int i = 0; i < 1000; ++i)
    {
        const DPOINT2 p = random.Point(5.0);
        const DPOINT2 q = random.Point(5.0);
        const DPOINT2 r = random.Point(5.0);
        const double area = std::abs((q.x - p.x) * (r.y - p.y) - (q.y - p.y) * (r.x - p.x)) / 2;
        if (area < 0.05)
        {
            continue;
        }
        const gp_Circ2d circle = gce_MakeCirc2d(Point(p.x, p.y), Point(q.x, q.y), Point(r.x, r.y)).Value();
        // The radius of the circumscribed circle is the product of the sides over four times the area.
        const double radius = D2GetDistance(p, q) * D2GetDistance(q, r) * D2GetDistance(r, p) / (4 * area);
        EXPECT_TRUE(Near(circle.Radius(), radius, 1e-11 * radius / area));
        for (const DPOINT2& point : {p, q, r})
        {
            EXPECT_TRUE(Near(circle.Location().Distance(Point(point.x, point.y)), radius, 1e-11 * radius / area));
        }
    }
}
