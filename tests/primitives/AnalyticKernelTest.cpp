#include "primitives/KernelReadings.h"
#include "support/Failures.h"
#include "support/Support.h"

#include "math/AnalyticKernel.h"

#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <type_traits>

using namespace math;
using namespace math::test;

namespace
{

gp_Lin2d Line(double x, double y, double directionX, double directionY)
{
    return gp_Lin2d(gp_Pnt2d(x, y), gp_Dir2d(directionX, directionY));
}

/// A circle with the axes of the world.
gp_Circ2d Circle(double x, double y, double radius)
{
    return gp_Circ2d(gp_Ax2d(gp_Pnt2d(x, y), gp_Dir2d(1.0, 0.0)), radius);
}

DPOINT2 AtParameter(const gp_Lin2d& line, double parameter)
{
    return At(line.Location().X() + parameter * line.Direction().X(),
              line.Location().Y() + parameter * line.Direction().Y());
}

DPOINT2 AtParameter(const gp_Circ2d& circle, double parameter)
{
    const gp_Dir2d x = circle.XAxis().Direction();
    const gp_Dir2d y = circle.YAxis().Direction();
    return At(circle.Location().X() + circle.Radius() * (std::cos(parameter) * x.X() + std::sin(parameter) * y.X()),
              circle.Location().Y() + circle.Radius() * (std::cos(parameter) * x.Y() + std::sin(parameter) * y.Y()));
}

/// Remembers which of its virtual functions was called.
class WatchedPoint : public IntAna2d_IntPoint
{
public:
    std::string called;

    void SetValue(double, double, double) override
    {
        called = "three";
    }

    void SetValue(double, double, double, double) override
    {
        called = "four";
    }
};

} // namespace

// The record of one point

TEST(IntersectionPoint, StartsWithTheGreatestNumbers)
{
    const IntAna2d_IntPoint point;
    EXPECT_EQ(point.ParamOnFirst(), Greatest);
    EXPECT_EQ(point.ParamOnSecond(), Greatest);
    EXPECT_EQ(point.X(), Greatest);
    EXPECT_EQ(point.Y(), Greatest);
    EXPECT_EQ(point.Value().X(), Greatest);
    EXPECT_EQ(point.Value().Y(), Greatest);
    EXPECT_FALSE(point.SecondIsImplicit());
}

TEST(IntersectionPoint, OfTwoParametricCurvesHasBothParameters)
{
    const IntAna2d_IntPoint point(1.0, 2.0, 3.0, 4.0);
    EXPECT_EQ(point.X(), 1.0);
    EXPECT_EQ(point.Y(), 2.0);
    EXPECT_EQ(point.Value().X(), 1.0);
    EXPECT_EQ(point.Value().Y(), 2.0);
    EXPECT_EQ(point.ParamOnFirst(), 3.0);
    EXPECT_EQ(point.ParamOnSecond(), 4.0);
    EXPECT_FALSE(point.SecondIsImplicit());
}

TEST(IntersectionPoint, WithAnImplicitCurveHasTheFirstParameterOnly)
{
    const IntAna2d_IntPoint point(1.0, 2.0, 3.0);
    EXPECT_EQ(point.X(), 1.0);
    EXPECT_EQ(point.Y(), 2.0);
    EXPECT_EQ(point.ParamOnFirst(), 3.0);
    EXPECT_EQ(point.ParamOnSecond(), Greatest);
    EXPECT_TRUE(point.SecondIsImplicit());
}

TEST(IntersectionPoint, IsSetAnewByEitherForm)
{
    IntAna2d_IntPoint point(1.0, 2.0, 3.0, 4.0);
    point.SetValue(5.0, 6.0, 7.0);
    EXPECT_EQ(point.X(), 5.0);
    EXPECT_EQ(point.Y(), 6.0);
    EXPECT_EQ(point.ParamOnFirst(), 7.0);
    EXPECT_EQ(point.ParamOnSecond(), 4.0); // left alone
    EXPECT_TRUE(point.SecondIsImplicit());
    point.SetValue(8.0, 9.0, 10.0, 11.0);
    EXPECT_EQ(point.X(), 8.0);
    EXPECT_EQ(point.Y(), 9.0);
    EXPECT_EQ(point.ParamOnFirst(), 10.0);
    EXPECT_EQ(point.ParamOnSecond(), 11.0);
    EXPECT_FALSE(point.SecondIsImplicit());
}

TEST(IntersectionPoint, IsCopiedWhole)
{
    const IntAna2d_IntPoint point(1.0, 2.0, 3.0);
    const IntAna2d_IntPoint copy(point);
    EXPECT_TRUE(copy.X() == 1.0 && copy.Y() == 2.0 && copy.ParamOnFirst() == 3.0 && copy.SecondIsImplicit());
    EXPECT_EQ(copy.ParamOnSecond(), Greatest);
    IntAna2d_IntPoint other(5.0, 6.0, 7.0, 8.0);
    other = point;
    EXPECT_TRUE(other.X() == 1.0 && other.Y() == 2.0 && other.ParamOnFirst() == 3.0 && other.SecondIsImplicit());
    EXPECT_EQ(other.ParamOnSecond(), Greatest);
}

TEST(IntersectionPoint, LetsBothFormsBeOverridden)
{
    WatchedPoint watched;
    IntAna2d_IntPoint& point = watched;
    point.SetValue(1.0, 2.0, 3.0);
    EXPECT_EQ(watched.called, "three");
    point.SetValue(1.0, 2.0, 3.0, 4.0);
    EXPECT_EQ(watched.called, "four");
    static_assert(!std::has_virtual_destructor_v<IntAna2d_IntPoint>, "the two forms are all that is virtual");
}

TEST(IntersectionPoint, HasItsFieldsInOrderBehindTheTableOfFunctions)
{
    const IntAna2d_IntPoint point(1.0, 2.0, 3.0, 4.0);
    static_assert(sizeof(point) == sizeof(void*) + 5 * sizeof(double), "four numbers and a flag");
    double numbers[4];
    std::memcpy(numbers, reinterpret_cast<const unsigned char*>(&point) + sizeof(void*), sizeof(numbers));
    EXPECT_EQ(numbers[0], 3.0);
    EXPECT_EQ(numbers[1], 4.0);
    EXPECT_EQ(numbers[2], 1.0);
    EXPECT_EQ(numbers[3], 2.0);
}

// The record of an intersection

TEST(AnalyticIntersection, IsNotDoneAtFirst)
{
    const IntAna2d_AnaIntersection intersection;
    EXPECT_FALSE(intersection.IsDone());
    EXPECT_FALSE(intersection.IsParallel());
    EXPECT_FALSE(intersection.IsIdentical());
    EXPECT_FALSE(intersection.IsEmpty());
    EXPECT_EQ(intersection.PointCount(), 0);
    static_assert(!std::is_polymorphic_v<IntAna2d_AnaIntersection>, "a plain record");
    // Not being done comes before the number asked for.
    for (const int n : {1, 0, -1, 2, 5})
    {
        EXPECT_TRUE(Raises("StdFail_NotDone", "", [&] { intersection.Point(n); }));
    }
}

TEST(AnalyticIntersection, CountsItsPointsFromOne)
{
    const IntAna2d_AnaIntersection two(Line(0, 0, 1, 0), Circle(0, 0, 1));
    EXPECT_EQ(Outcome(two), "2");
    EXPECT_EQ(PointOf(two, 1), At(1, 0));
    EXPECT_EQ(PointOf(two, 2), At(-1, 0));
    for (const int n : {3, 4, 5, 1000000, 0, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()})
    {
        EXPECT_TRUE(Raises("Standard_OutOfRange", "", [&] { two.Point(n); })) << n;
    }
    const IntAna2d_AnaIntersection one(Line(0, 0, 1, 0), Line(0, 0, 0, 1));
    EXPECT_NO_THROW(one.Point(1));
    EXPECT_TRUE(Raises("Standard_OutOfRange", "", [&] { one.Point(2); }));
    const IntAna2d_AnaIntersection none(Line(0, 0, 1, 0), Line(0, 1, 1, 0));
    EXPECT_TRUE(Raises("Standard_OutOfRange", "", [&] { none.Point(1); }));
    EXPECT_TRUE(Raises("Standard_OutOfRange", "", [&] { none.Point(0); }));
}

TEST(AnalyticIntersection, ForgetsWhatItHeldBefore)
{
    IntAna2d_AnaIntersection intersection;
    const gp_Lin2d axis = Line(0, 0, 1, 0);
    const gp_Circ2d circle = Circle(0, 0, 1);
    // Every outcome after every other.
    const auto perform = [&](int which) -> std::string {
        switch (which)
        {
        case 0:
            intersection.Perform(axis, axis);
            return "parallel identical 0";
        case 1:
            intersection.Perform(axis, Line(0, 1, 1, 0));
            return "parallel empty 0";
        case 2:
            intersection.Perform(axis, Line(0, 1, 0, 1));
            return "1";
        case 3:
            intersection.Perform(axis, circle);
            return "2";
        case 4:
            intersection.Perform(Line(0, 1, 1, 0), circle);
            return "1";
        case 5:
            intersection.Perform(Line(0, 2, 1, 0), circle);
            return "empty 0";
        case 6:
            intersection.Perform(circle, circle);
            return "parallel identical 0";
        case 7:
            intersection.Perform(circle, Circle(0, 0, 2));
            return "parallel empty 0";
        case 8:
            intersection.Perform(circle, Circle(2, 0, 1));
            return "1";
        case 9:
            intersection.Perform(circle, Circle(1, 0, 1));
            return "2";
        case 10:
            intersection.Perform(circle, Circle(1, 0, 2));
            return "1";
        case 11:
            intersection.Perform(circle, Circle(3, 0, 1));
            return "empty 0";
        default:
            intersection.Perform(circle, Circle(0.5, 0, 3));
            return "empty 0";
        }
    };
    for (int before = 0; before <= 12; ++before)
    {
        for (int after = 0; after <= 12; ++after)
        {
            perform(before);
            const std::string expected = perform(after);
            EXPECT_EQ(Outcome(intersection), expected) << before << " before " << after;
        }
    }
}

TEST(AnalyticIntersection, IsCopiedWhole)
{
    const IntAna2d_AnaIntersection two(Line(0, 0, 1, 0), Circle(0, 0, 1));
    const IntAna2d_AnaIntersection copy(two);
    EXPECT_EQ(Outcome(copy), "2");
    EXPECT_EQ(PointOf(copy, 2), At(-1, 0));
    IntAna2d_AnaIntersection other;
    other = two;
    EXPECT_EQ(Outcome(other), "2");
    EXPECT_EQ(PointOf(other, 1), At(1, 0));
    EXPECT_EQ(PointOf(other, 2), At(-1, 0));
}

TEST(AnalyticIntersection, HasItsFieldsInOrder)
{
    static_assert(sizeof(IntAna2d_AnaIntersection) == 8 + 4 * sizeof(IntAna2d_IntPoint),
                  "four flags, a count, 4 points");
    const auto fields = [](const IntAna2d_AnaIntersection& intersection) {
        unsigned char raw[8];
        std::memcpy(raw, reinterpret_cast<const unsigned char*>(&intersection), sizeof(raw));
        int count = 0;
        std::memcpy(&count, raw + 4, sizeof(count));
        std::string text;
        for (int i = 0; i < 4; ++i)
        {
            text += raw[i] != 0 ? "T" : "F";
        }
        return text + std::to_string(count);
    };
    EXPECT_EQ(fields(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 0, 1, 0))), "TTTF0");
    EXPECT_EQ(fields(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 1, 1, 0))), "TTFT0");
    EXPECT_EQ(fields(IntAna2d_AnaIntersection(Line(0, 5, 1, 0), Circle(0, 0, 1))), "TFFT0");
    EXPECT_EQ(fields(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Circle(0, 0, 1))), "TFFF2");
}

// Two lines

TEST(IntersectionOfLines, IsTheirCommonPointWithItsDistanceAlongEach)
{
    // Both run through (4, 6): one 5 ahead of (1, 2) along (3, 4)/5, the other 13 behind (9, 18) along (5, 12)/13. The
    // coefficient that leads the elimination is the greatest of the four: in turn that of x in the second line, of x in
    // the first, and, mirrored at the diagonal, of y.
    const struct
    {
        const char* name;
        gp_Lin2d first, second;
        DPOINT2 point, parameters;
    } rows[] = {
        {"second line, x", Line(1, 2, 3, 4), Line(9, 18, 5, 12), At(4, 6), At(5, -13)},
        {"first line, x", Line(9, 18, 5, 12), Line(1, 2, 3, 4), At(4, 6), At(-13, 5)},
        {"second line, y", Line(2, 1, 4, 3), Line(18, 9, 12, 5), At(6, 4), At(5, -13)},
        {"first line, y", Line(18, 9, 12, 5), Line(2, 1, 4, 3), At(6, 4), At(-13, 5)},
    };
    for (const auto& row : rows)
    {
        SCOPED_TRACE(row.name);
        const IntAna2d_AnaIntersection intersection(row.first, row.second);
        ASSERT_EQ(Outcome(intersection), "1");
        EXPECT_TRUE(Near(PointOf(intersection, 1), row.point, 1e-13));
        EXPECT_TRUE(Near(ParametersOf(intersection, 1), row.parameters, 1e-13));
        EXPECT_FALSE(intersection.Point(1).SecondIsImplicit());
    }
}

TEST(IntersectionOfLines, OfLevelAndUprightLinesIsExact)
{
    IntAna2d_AnaIntersection intersection(Line(7, 3, 1, 0), Line(5, 11, 0, 1));
    EXPECT_EQ(Outcome(intersection), "1");
    EXPECT_EQ(PointOf(intersection, 1), At(5, 3));
    EXPECT_EQ(ParametersOf(intersection, 1), At(-2, -8));
    intersection.Perform(Line(5, 11, 0, -1), Line(7, 3, -1, 0));
    EXPECT_EQ(PointOf(intersection, 1), At(5, 3));
    EXPECT_EQ(ParametersOf(intersection, 1), At(8, 2));
    // A level and a slanting line: (1 + 3t, 4t - 2) at the height 6.
    intersection.Perform(Line(20, 6, 1, 0), Line(1, -2, 3, 4));
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(7, 6), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(-13, 10), 1e-14));
    intersection.Perform(Line(1, -2, 3, 4), Line(20, 6, 1, 0));
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(7, 6), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(10, -13), 1e-14));
    // An upright and a slanting line: (1 + 3t, 4t - 2) at the abscissa 7.
    intersection.Perform(Line(1, -2, 3, 4), Line(7, 20, 0, 1));
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(7, 6), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(10, -14), 1e-14));
    intersection.Perform(Line(7, 20, 0, 1), Line(1, -2, 3, 4));
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(7, 6), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(-14, 10), 1e-14));
    // Both diagonals, where the coefficients tie.
    intersection.Perform(Line(0, 0, 1, 1), Line(4, 0, -1, 1));
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(2, 2), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(std::sqrt(8.0), std::sqrt(8.0)), 1e-15));
}

TEST(IntersectionOfLines, TakesTheParameterOfADiagonalFromY)
{
    // The location of the diagonal is so far away that x has no digits left for a height of 0.1.
    const IntAna2d_AnaIntersection intersection(Line(1e10, 0, 1, 1), Line(0, 0.1, 1, 0));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1).x, 0.1 * std::sqrt(2.0), 1e-15));
    // A little steeper and y is taken, a little flatter and x is.
    EXPECT_TRUE(
        Near(ParametersOf(IntAna2d_AnaIntersection(Line(1e10, 0, 3, 4), Line(0, 0.1, 1, 0)), 1).x, 0.125, 1e-15));
    EXPECT_FALSE(
        Near(ParametersOf(IntAna2d_AnaIntersection(Line(1e10, 0, 4, 3), Line(0, 0.1, 1, 0)), 1).x, 0.1 / 0.6, 1e-9));
}

TEST(IntersectionOfLines, DoesNotExistForParallels)
{
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 1, 1, 0))), "parallel empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(5, -1, -1, 0))), "parallel empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(1, 2, 3, 4), Line(1, 3, 3, 4))), "parallel empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(1, 2, 3, 4), Line(1, 3, -3, -4))), "parallel empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(1, 2, 0, 1), Line(2, 2, 0, 1))), "parallel empty 0");
}

TEST(IntersectionOfLines, ThatAreOneIsToldApart)
{
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 1e-10, 1, 0))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(7, 5, 1, 0), Line(-3, 5, -1, 0))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(1, 2, 3, 4), Line(4, 6, 3, 4))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(1, 2, 3, 4), Line(4, 6, -3, -4))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(2, 1, 4, 3), Line(6, 4, -4, -3))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(6, 1, 0, 1), Line(6, 4, 0, -1))), "parallel identical 0");
}

TEST(IntersectionOfLines, CountsAsParallelUpToTheToleranceAndIncludingIt)
{
    // The direction (1, 1e-9) is of length 1 in double precision, so the determinant is 1e-9 itself.
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 0, 1, 1e-9))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 0, 1, Next(1e-9)))), "1");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 0, 1, -1e-9))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 0, 1, -Next(1e-9)))), "1");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 0, 1), Line(0, 0, 1e-9, 1))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 0, 1), Line(0, 0, Next(1e-9), 1))), "1");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 1e-9), Line(0, 0, 1, 0))), "parallel identical 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, Next(1e-9)), Line(0, 0, 1, 0))), "1");
    // However far apart they run: 1e-10 of slope meet 1e10 away.
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 1, 1, -1e-10))), "parallel empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 1e6, 1, 1e-9))), "parallel empty 0");
    EXPECT_EQ(PointOf(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(0, 1, 1, -0x1p-20)), 1), At(0x1p20, 0));
}

TEST(IntersectionOfLines, MeasuresParallelsAgainstTheGreatestCoefficient)
{
    // Along (3, 4)/5 the greatest coefficient is 0.8, so an angle of 0.7e-9 counts 0.875e-9 and one of 0.9e-9 counts
    // 1.125e-9. Any other pivot would put both on one side. Turning the second line either way makes the first or the
    // second line lead, mirroring at the diagonal makes it the coefficient of x or of y.
    const double steep = std::atan2(4.0, 3.0);
    const double flat = std::atan2(3.0, 4.0);
    for (const double radian : {steep, flat, -steep, -flat})
    {
        for (const double side : {1.0, -1.0})
        {
            SCOPED_TRACE(Digits(radian) + ", turned by " + Digits(side));
            const auto outcome = [&](double angle) {
                // The difference is added to the direction, since an angle would lose its digits.
                const double c = std::cos(radian);
                const double s = std::sin(radian);
                const double turn = side * angle;
                return Outcome(IntAna2d_AnaIntersection(Line(0, 0, c, s), Line(0, 0, c - turn * s, s + turn * c)));
            };
            EXPECT_EQ(outcome(0.7e-9), "parallel identical 0");
            EXPECT_EQ(outcome(0.79e-9), "parallel identical 0");
            EXPECT_EQ(outcome(0.81e-9), "1");
            EXPECT_EQ(outcome(0.9e-9), "1");
        }
    }
}

TEST(IntersectionOfLines, CountsAsIdenticalUpToTheToleranceAndIncludingIt)
{
    for (const double side : {1.0, -1.0})
    {
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(9, side * 1e-9, 1, 0))),
                  "parallel identical 0");
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 1, 0), Line(9, side * Next(1e-9), 1, 0))),
                  "parallel empty 0");
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 0, 1), Line(side * 1e-9, 9, 0, 1))),
                  "parallel identical 0");
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 0, 0, 1), Line(side * Next(1e-9), 9, 0, 1))),
                  "parallel empty 0");
        // Against the direction, at a distance from the origin.
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 4, 1, 0), Line(9, 4 + side * 0x1p-30, -1, 0))),
                  "parallel identical 0");
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 4, 1, 0), Line(9, 4 + side * 0x1p-29, -1, 0))),
                  "parallel empty 0");
    }
}

TEST(IntersectionOfLines, LiesOnBothAtItsParameters)
{
    Random random(71);
    for (int i = 0; i < 3000; ++i)
    {
        const DPOINT2 a = random.Point(10.0);
        const DPOINT2 b = random.Point(10.0);
        const double firstRadian = random.Radian();
        const double crossing = random.Number(0.01, 3.13);
        const gp_Lin2d first = Line(a.x, a.y, std::cos(firstRadian), std::sin(firstRadian));
        const gp_Lin2d second = Line(b.x, b.y, std::cos(firstRadian + crossing), std::sin(firstRadian + crossing));
        const IntAna2d_AnaIntersection intersection(first, second);
        ASSERT_EQ(Outcome(intersection), "1");
        const DPOINT2 point = PointOf(intersection, 1);
        const DPOINT2 parameters = ParametersOf(intersection, 1);
        const double tolerance = 1e-13 * (1.0 + std::abs(parameters.x) + std::abs(parameters.y)) / std::sin(crossing);
        EXPECT_TRUE(Near(AtParameter(first, parameters.x), point, tolerance));
        EXPECT_TRUE(Near(AtParameter(second, parameters.y), point, tolerance));

        const IntAna2d_AnaIntersection swapped(second, first);
        EXPECT_TRUE(Near(PointOf(swapped, 1), point, tolerance));
        EXPECT_TRUE(Near(ParametersOf(swapped, 1), At(parameters.y, parameters.x), tolerance));
    }
}

// Line and circle

TEST(IntersectionOfLineAndCircle, StartsWithThePointAhead)
{
    // Height 3 over the centre of a circle of radius 5.
    IntAna2d_AnaIntersection intersection(Line(-7, 3, 1, 0), Circle(0, 0, 5));
    const double direction = std::atan2(3.0, 4.0);
    EXPECT_EQ(Outcome(intersection), "2");
    EXPECT_EQ(PointOf(intersection, 1), At(4, 3));
    EXPECT_EQ(PointOf(intersection, 2), At(-4, 3));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(11, direction), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(intersection, 2), At(3, Pi - direction), 1e-15));
    EXPECT_FALSE(intersection.Point(1).SecondIsImplicit());

    intersection.Perform(Line(-7, 3, -1, 0), Circle(0, 0, 5));
    EXPECT_EQ(PointOf(intersection, 1), At(-4, 3));
    EXPECT_EQ(PointOf(intersection, 2), At(4, 3));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(-3, Pi - direction), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(intersection, 2), At(-11, direction), 1e-15));

    intersection.Perform(Line(-3, 100, 0, 1), Circle(0, 0, 5));
    EXPECT_EQ(PointOf(intersection, 1), At(-3, 4));
    EXPECT_EQ(PointOf(intersection, 2), At(-3, -4));
}

TEST(IntersectionOfLineAndCircle, TakesBothWhereTheyStand)
{
    // The line through (1, 2) along (3, 4)/5 passes the centre (1.6, 7.8) at a distance of 3, its foot being (4, 6).
    const IntAna2d_AnaIntersection intersection(Line(1, 2, 3, 4), Circle(1.6, 7.8, 5));
    EXPECT_EQ(Outcome(intersection), "2");
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(6.4, 9.2), 1e-14));
    EXPECT_TRUE(Near(PointOf(intersection, 2), At(1.6, 2.8), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(intersection, 1), At(9, std::atan2(1.4, 4.8)), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(intersection, 2), At(1, ThreeHalvesPi), 1e-14));
    // On the other side of the line: centre (6.4, 4.2), seen to the right.
    const IntAna2d_AnaIntersection right(Line(1, 2, 3, 4), Circle(6.4, 4.2, 5));
    EXPECT_TRUE(Near(PointOf(right, 1), At(6.4, 9.2), 1e-14));
    EXPECT_TRUE(Near(PointOf(right, 2), At(1.6, 2.8), 1e-14));
}

TEST(IntersectionOfLineAndCircle, CountsTheParameterInTheAxesOfTheCircle)
{
    // The x axis along (3, 4)/5: (0, 5) lies in the direction π/2 - atan 4/3, and clockwise as much below 0.
    const double between = HalfPi - std::atan2(4.0, 3.0);
    const gp_Circ2d direct(gp_Ax22d(gp_Pnt2d(0, 0), gp_Dir2d(3, 4), true), 5.0);
    const gp_Circ2d indirect(gp_Ax22d(gp_Pnt2d(0, 0), gp_Dir2d(3, 4), false), 5.0);
    const IntAna2d_AnaIntersection onDirect(Line(0, 0, 0, 1), direct);
    EXPECT_TRUE(Near(ParametersOf(onDirect, 1), At(5, between), 1e-15));
    EXPECT_TRUE(Near(ParametersOf(onDirect, 2), At(-5, between + Pi), 1e-14));
    const IntAna2d_AnaIntersection onIndirect(Line(0, 0, 0, 1), indirect);
    EXPECT_TRUE(Near(ParametersOf(onIndirect, 1), At(5, TwoPi - between), 1e-14));
    EXPECT_TRUE(Near(ParametersOf(onIndirect, 2), At(-5, Pi - between), 1e-14));
}

TEST(IntersectionOfLineAndCircle, TouchesWithinOneRoundingUnitOfTheRadius)
{
    // The line at the height s over the centre of a unit circle: unit 2^-52, while doubles below 1 are half as far.
    const auto outcome = [](double height) {
        const std::string forth = Outcome(IntAna2d_AnaIntersection(Line(7, height, 1, 0), Circle(0, 0, 1)));
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(7, height, -1, 0), Circle(0, 0, 1))), forth);
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(7, -height, 1, 0), Circle(0, 0, 1))), forth);
        EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(height, 7, 0, 1), Circle(0, 0, 1))), forth);
        return forth;
    };
    EXPECT_EQ(outcome(1.0), "1");
    EXPECT_EQ(outcome(Stepped(1.0, 1)), "1");
    EXPECT_EQ(outcome(Stepped(1.0, 2)), "empty 0");
    EXPECT_EQ(outcome(Stepped(1.0, -1)), "1");
    EXPECT_EQ(outcome(Stepped(1.0, -2)), "1");
    EXPECT_EQ(outcome(Stepped(1.0, -3)), "2");
    EXPECT_EQ(outcome(1.0 - 2 * 0x1p-52), "2");
    EXPECT_EQ(outcome(0.0), "2");
    EXPECT_EQ(outcome(1.0 + 1e-12), "empty 0");
    // At a radius of 1e6 the unit is 2^-33, at 1e-6 it is 2^-72.
    for (const double radius : {1e6, 1e-6, 3.0})
    {
        const auto at = [&](double height) {
            return Outcome(IntAna2d_AnaIntersection(Line(0, height, 1, 0), Circle(0, 0, radius)));
        };
        EXPECT_EQ(at(Stepped(radius, 1)), "1");
        EXPECT_EQ(at(Stepped(radius, 2)), "empty 0");
        EXPECT_EQ(at(Stepped(radius, -1)), "1");
        EXPECT_EQ(at(Stepped(radius, -2)), "2");
    }
}

TEST(IntersectionOfLineAndCircle, TouchesInTheFootOfTheCentre)
{
    IntAna2d_AnaIntersection intersection(Line(3, 7, -1, 0), Circle(1, 2, 5));
    EXPECT_EQ(Outcome(intersection), "1");
    EXPECT_EQ(PointOf(intersection, 1), At(1, 7));
    EXPECT_EQ(ParametersOf(intersection, 1), At(2, HalfPi));
    intersection.Perform(Line(-4, 3, 0, 1), Circle(1, 2, 5));
    EXPECT_EQ(PointOf(intersection, 1), At(-4, 2));
    EXPECT_EQ(ParametersOf(intersection, 1), At(-1, Pi));
    // The foot is on the line, even where the line is a unit outside.
    intersection.Perform(Line(0, Next(1.0), 1, 0), Circle(0, 0, 1));
    EXPECT_EQ(PointOf(intersection, 1), At(0, Next(1.0)));
}

TEST(IntersectionOfLineAndCircle, GivesTwoPointsCloseTogetherJustInside)
{
    // h = sqrt(1 - (1 - 3·2^-53)²), about sqrt(6·2^-53).
    const double height = Stepped(1.0, -3);
    const IntAna2d_AnaIntersection intersection(Line(0, height, 1, 0), Circle(0, 0, 1));
    EXPECT_EQ(Outcome(intersection), "2");
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(std::sqrt(6 * 0x1p-53), height), 5e-9));
    EXPECT_TRUE(Near(PointOf(intersection, 2), At(-std::sqrt(6 * 0x1p-53), height), 5e-9));
    EXPECT_GT(PointOf(intersection, 1).x, 1e-8);
}

TEST(IntersectionOfLineAndCircle, OfRadiusZeroIsTheCentreAtParameterZero)
{
    IntAna2d_AnaIntersection intersection(Line(1, 2, 3, 4), Circle(1, 2, 0));
    EXPECT_EQ(Outcome(intersection), "1");
    EXPECT_TRUE(Near(PointOf(intersection, 1), At(1, 2), 1e-15));
    intersection.Perform(Line(-5, 2, 1, 0), Circle(1, 2, 0));
    EXPECT_EQ(Outcome(intersection), "1");
    EXPECT_EQ(PointOf(intersection, 1), At(1, 2));
    EXPECT_EQ(ParametersOf(intersection, 1), At(6, 0));
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, 1e-300, 1, 0), Circle(0, 0, 0))), "empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(0, -1, 1, 0), Circle(0, 0, 0))), "empty 0");
}

TEST(IntersectionOfLineAndCircle, HasTheLeastNormalNumberAsRoundingUnitOfZero)
{
    for (const double height : {0.0, 5e-324, 1e-308, LeastNormal, -LeastNormal})
    {
        SCOPED_TRACE(height);
        const IntAna2d_AnaIntersection intersection(Line(3, height, 1, 0), Circle(0, 0, 0));
        EXPECT_EQ(Outcome(intersection), "1");
        EXPECT_EQ(PointOf(intersection, 1), At(0, height));
        EXPECT_EQ(ParametersOf(intersection, 1), At(-3, 0));
    }
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(3, Next(LeastNormal), 1, 0), Circle(0, 0, 0))), "empty 0");
    EXPECT_EQ(Outcome(IntAna2d_AnaIntersection(Line(3, -Next(LeastNormal), 1, 0), Circle(0, 0, 0))), "empty 0");
}

TEST(IntersectionOfLineAndCircle, OfARadiusWhoseSquareIsLostIsTheCentreTwice)
{
    const IntAna2d_AnaIntersection intersection(Line(3, 0, 1, 0), Circle(0, 0, 1e-200));
    EXPECT_EQ(Outcome(intersection), "2");
    for (const int n : {1, 2})
    {
        EXPECT_EQ(PointOf(intersection, n), At(0, 0));
        EXPECT_EQ(ParametersOf(intersection, n), At(-3, 0));
    }
}

TEST(IntersectionOfLineAndCircle, OfALineOfNaNIsTwoPointsOfNaN)
{
    const gp_Lin2d lines[] = {Line(InvalidDouble, 0, 1, 0), Line(0, InvalidDouble, 1, 0), Line(0, 0, InvalidDouble, 1),
                              Line(0, 0, 1, InvalidDouble)};
    for (const gp_Lin2d& line : lines)
    {
        const IntAna2d_AnaIntersection intersection(line, Circle(1, 2, 3));
        EXPECT_EQ(Outcome(intersection), "2");
        for (const int n : {1, 2})
        {
            EXPECT_EQ(PointOf(intersection, n), At(InvalidDouble, InvalidDouble));
            EXPECT_TRUE(std::isnan(intersection.Point(n).ParamOnFirst()));
            EXPECT_TRUE(std::isnan(intersection.Point(n).ParamOnSecond()));
        }
    }
}

TEST(IntersectionOfLineAndCircle, LiesOnBothAtItsParameters)
{
    Random random(72);
    int met = 0;
    for (int i = 0; i < 3000; ++i)
    {
        const DPOINT2 location = random.Point(5.0);
        const DPOINT2 centre = random.Point(5.0);
        const double radian = random.Radian();
        const double radius = random.Number(0.5, 5.0);
        const double axis = random.Radian();
        const gp_Lin2d line = Line(location.x, location.y, std::cos(radian), std::sin(radian));
        const gp_Circ2d circle(
            gp_Ax22d(gp_Pnt2d(centre.x, centre.y), gp_Dir2d(std::cos(axis), std::sin(axis)), random.Coin()), radius);
        const IntAna2d_AnaIntersection intersection(line, circle);
        const double distance = D2GetPointToBeelineDistance(centre, location, radian);
        ASSERT_EQ(Outcome(intersection), distance < radius ? "2" : "empty 0");
        for (int n = 1; n <= intersection.PointCount(); ++n)
        {
            const DPOINT2 parameters = ParametersOf(intersection, n);
            EXPECT_TRUE(Near(AtParameter(line, parameters.x), PointOf(intersection, n), 1e-12));
            EXPECT_TRUE(Near(AtParameter(circle, parameters.y), PointOf(intersection, n), 1e-12));
            EXPECT_TRUE(parameters.y >= 0.0 && parameters.y <= TwoPi);
        }
        if (intersection.PointCount() == 2)
        {
            ++met;
            EXPECT_GT(intersection.Point(1).ParamOnFirst(), intersection.Point(2).ParamOnFirst());
            const IntAna2d_AnaIntersection reversed(line.Reversed(), circle);
            EXPECT_TRUE(Near(PointOf(reversed, 1), PointOf(intersection, 2), 1e-12));
            EXPECT_TRUE(Near(PointOf(reversed, 2), PointOf(intersection, 1), 1e-12));
        }
    }
    EXPECT_GT(met, 1000);
}
