#include "support/Support.h"

#include <gp_Pnt2d.hxx>
#include <gp_XY.hxx>

#include <cstddef>
#include <cstring>
#include <limits>
#include <type_traits>

using namespace math;
using namespace math::test;

namespace
{

DRECT Box(double x, double y, double width, double height)
{
    DRECT box;
    box.x = x;
    box.y = y;
    box.width = width;
    box.height = height;
    return box;
}

::testing::AssertionResult IsBox(const DRECT& box, double x, double y, double width, double height)
{
    if (box.x == x && box.y == y && box.width == width && box.height == height)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "(" << Digits(box.x) << ", " << Digits(box.y) << ", " << Digits(box.width)
                                         << ", " << Digits(box.height) << ")";
}

::testing::AssertionResult HasBounds(const RealRectD& box, double minX, double maxX, double minY, double maxY)
{
    if (box.minX == minX && box.maxX == maxX && box.minY == minY && box.maxY == maxY)
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << "x from " << Digits(box.minX) << " to " << Digits(box.maxX) << ", y from "
                                         << Digits(box.minY) << " to " << Digits(box.maxY);
}

RealRectD BoxOfLine(double x1, double y1, double x2, double y2)
{
    const LineD2D line{x1, y1, x2, y2};
    return RealRectD::CreateRealRectD(&line);
}

RealRectD BoxOfArc(double cx, double cy, double radius, double startRadian)
{
    const ArcD arc{cx, cy, radius, startRadian};
    return RealRectD::CreateRealRectD(&arc);
}

} // namespace

TEST(Points, StartAtTheOriginAndTakeTheAbscissaFirst)
{
    EXPECT_TRUE(SameBits(DPOINT2(), At(0.0, 0.0)));
    const DPOINT2 point(3.0, -4.0);
    EXPECT_EQ(point.x, 3.0);
    EXPECT_EQ(point.y, -4.0);
}

TEST(Points, LieInMemoryAsThoseOfTheDependency)
{
    static_assert(sizeof(DPOINT2) == sizeof(gp_XY) && sizeof(DPOINT2) == sizeof(gp_Pnt2d), "two doubles");
    static_assert(std::is_trivially_copyable_v<DPOINT2> && std::is_standard_layout_v<DPOINT2>, "a plain value");
    const DPOINT2 ours(2.5, -7.0);
    const gp_XY pair(2.5, -7.0);
    const gp_Pnt2d point(2.5, -7.0);
    EXPECT_EQ(std::memcmp(&ours, &pair, sizeof(ours)), 0);
    EXPECT_EQ(std::memcmp(&ours, &point, sizeof(ours)), 0);
}

TEST(Records, ArePlainValuesWithTheirFieldsInOrder)
{
    static_assert(std::is_trivially_copyable_v<DRECT> && std::is_standard_layout_v<DRECT>, "a plain value");
    static_assert(std::is_trivially_copyable_v<RealRectD> && std::is_standard_layout_v<RealRectD>, "a plain value");
    static_assert(std::is_trivially_copyable_v<LineD2D> && std::is_standard_layout_v<LineD2D>, "a plain value");
    static_assert(std::is_trivially_copyable_v<ArcD> && std::is_standard_layout_v<ArcD>, "a plain value");

    const double fields[] = {1.0, 2.0, 3.0, 4.0};
    const DRECT rectangle = Box(1.0, 2.0, 3.0, 4.0);
    EXPECT_EQ(std::memcmp(&rectangle, fields, sizeof(fields)), 0);
    RealRectD bounds;
    bounds.minX = 1.0;
    bounds.maxX = 2.0;
    bounds.minY = 3.0;
    bounds.maxY = 4.0;
    EXPECT_EQ(std::memcmp(&bounds, fields, sizeof(fields)), 0);
    const LineD2D line{1.0, 2.0, 3.0, 4.0};
    EXPECT_TRUE(line.x1 == 1.0 && line.y1 == 2.0 && line.x2 == 3.0 && line.y2 == 4.0);
    EXPECT_EQ(std::memcmp(&line, fields, sizeof(fields)), 0);
    const ArcD arc{1.0, 2.0, 3.0, 4.0};
    EXPECT_TRUE(arc.cx == 1.0 && arc.cy == 2.0 && arc.radius == 3.0 && arc.startRadian == 4.0);
    EXPECT_EQ(std::memcmp(&arc, fields, sizeof(fields)), 0);
}

TEST(Records, StartAllZero)
{
    EXPECT_TRUE(IsBox(DRECT(), 0.0, 0.0, 0.0, 0.0));
    EXPECT_TRUE(HasBounds(RealRectD(), 0.0, 0.0, 0.0, 0.0));
    const LineD2D line{};
    EXPECT_TRUE(line.x1 == 0.0 && line.y1 == 0.0 && line.x2 == 0.0 && line.y2 == 0.0);
    const ArcD arc{};
    EXPECT_TRUE(arc.cx == 0.0 && arc.cy == 0.0 && arc.radius == 0.0 && arc.startRadian == 0.0);
}

TEST(NumericConventions, HoldTheToleranceAndTheQuietNaN)
{
    EXPECT_EQ(DoubleTolerance, 1e-9);
    EXPECT_TRUE(std::isnan(InvalidDouble));
    static_assert(std::numeric_limits<double>::has_quiet_NaN, "there is a NaN to stand for no value");
}

TEST(RectangleUnion, IsTheSmallestRectangleThatHoldsBoth)
{
    // x from 1 to 4 and from -2 to 0, y from 2 to 6 and from 3 to 11.
    DRECT box;
    EXPECT_TRUE(box.Union(Box(1.0, 2.0, 3.0, 4.0), Box(-2.0, 3.0, 2.0, 8.0)));
    EXPECT_TRUE(IsBox(box, -2.0, 2.0, 6.0, 9.0));
    // The same in the other order.
    EXPECT_TRUE(box.Union(Box(-2.0, 3.0, 2.0, 8.0), Box(1.0, 2.0, 3.0, 4.0)));
    EXPECT_TRUE(IsBox(box, -2.0, 2.0, 6.0, 9.0));
}

TEST(RectangleUnion, OfARectangleWithinAnotherIsTheOuterOne)
{
    DRECT box;
    EXPECT_TRUE(box.Union(Box(-5.0, -7.0, 20.0, 30.0), Box(1.0, 2.0, 3.0, 4.0)));
    EXPECT_TRUE(IsBox(box, -5.0, -7.0, 20.0, 30.0));
    EXPECT_TRUE(box.Union(Box(1.0, 2.0, 3.0, 4.0), Box(-5.0, -7.0, 20.0, 30.0)));
    EXPECT_TRUE(IsBox(box, -5.0, -7.0, 20.0, 30.0));
}

TEST(RectangleUnion, ForgetsWhatItsTargetHeldBefore)
{
    DRECT box = Box(-100.0, -100.0, 500.0, 500.0);
    EXPECT_TRUE(box.Union(Box(1.0, 2.0, 3.0, 4.0), Box(2.0, 3.0, 1.0, 1.0)));
    EXPECT_TRUE(IsBox(box, 1.0, 2.0, 3.0, 4.0));
}

TEST(RectangleUnion, MayBeWrittenToEitherOfItsRectangles)
{
    DRECT first = Box(1.0, 2.0, 3.0, 4.0);
    const DRECT other = Box(-2.0, 3.0, 2.0, 8.0);
    EXPECT_TRUE(first.Union(first, other));
    EXPECT_TRUE(IsBox(first, -2.0, 2.0, 6.0, 9.0));

    DRECT second = Box(1.0, 2.0, 3.0, 4.0);
    EXPECT_TRUE(second.Union(other, second));
    EXPECT_TRUE(IsBox(second, -2.0, 2.0, 6.0, 9.0));

    DRECT both = Box(1.0, 2.0, 3.0, 4.0);
    EXPECT_TRUE(both.Union(both, both));
    EXPECT_TRUE(IsBox(both, 1.0, 2.0, 3.0, 4.0));
}

TEST(RectangleUnion, IsPulledToTheOriginByAnAllZeroRectangle)
{
    DRECT box;
    EXPECT_TRUE(box.Union(Box(1.0, 1.0, 1.0, 1.0), DRECT()));
    EXPECT_TRUE(IsBox(box, 0.0, 0.0, 2.0, 2.0));
    EXPECT_TRUE(box.Union(DRECT(), Box(-3.0, -4.0, 1.0, 1.0)));
    EXPECT_TRUE(IsBox(box, -3.0, -4.0, 3.0, 4.0));
}

TEST(RectangleUnion, TellsWhetherBothExtentsArePositive)
{
    DRECT box;
    EXPECT_FALSE(box.Union(Box(1.0, 2.0, 0.0, 0.0), Box(1.0, 2.0, 0.0, 0.0)));
    EXPECT_TRUE(IsBox(box, 1.0, 2.0, 0.0, 0.0));
    // Two points above each other have height alone, side by side width alone; apart in both they span a rectangle.
    EXPECT_FALSE(box.Union(Box(1.0, 2.0, 0.0, 0.0), Box(1.0, 5.0, 0.0, 0.0)));
    EXPECT_TRUE(IsBox(box, 1.0, 2.0, 0.0, 3.0));
    EXPECT_FALSE(box.Union(Box(1.0, 2.0, 0.0, 0.0), Box(4.0, 2.0, 0.0, 0.0)));
    EXPECT_TRUE(IsBox(box, 1.0, 2.0, 3.0, 0.0));
    EXPECT_TRUE(box.Union(Box(1.0, 2.0, 0.0, 0.0), Box(4.0, 6.0, 0.0, 0.0)));
    EXPECT_TRUE(IsBox(box, 1.0, 2.0, 3.0, 4.0));
    // No tolerance: an extent of 2^-52 is above 0.
    EXPECT_TRUE(box.Union(Box(1.0, 1.0, 0.0, 0.0), Box(Next(1.0), Next(1.0), 0.0, 0.0)));
    EXPECT_TRUE(IsBox(box, 1.0, 1.0, 0x1p-52, 0x1p-52));
}

TEST(BoxOfALine, OrdersTheEndsByEachCoordinateAlone)
{
    EXPECT_TRUE(HasBounds(BoxOfLine(3.0, 1.0, -1.0, 2.0), -1.0, 3.0, 1.0, 2.0));
    EXPECT_TRUE(HasBounds(BoxOfLine(-1.0, 2.0, 3.0, 1.0), -1.0, 3.0, 1.0, 2.0));
    EXPECT_TRUE(HasBounds(BoxOfLine(-4.0, -9.0, 5.0, 7.0), -4.0, 5.0, -9.0, 7.0));
    EXPECT_TRUE(HasBounds(BoxOfLine(5.0, 7.0, -4.0, -9.0), -4.0, 5.0, -9.0, 7.0));
    EXPECT_TRUE(HasBounds(BoxOfLine(6.0, 8.0, 6.0, 8.0), 6.0, 6.0, 8.0, 8.0));
}

TEST(BoxOfAnArc, IsThatOfTheWholeCircleWhereverTheArcStarts)
{
    for (double start = -7.0; start <= 7.0; start += 0.125)
    {
        SCOPED_TRACE(start);
        EXPECT_TRUE(HasBounds(BoxOfArc(1.0, 2.0, 3.0, start), -2.0, 4.0, -1.0, 5.0));
        // A radius below 1, where a product and a quotient by it differ the other way.
        EXPECT_TRUE(HasBounds(BoxOfArc(-6.0, 10.0, 0.25, start), -6.25, -5.75, 9.75, 10.25));
    }
    for (const double start : {0.0, HalfPi, Pi, ThreeHalvesPi, TwoPi, 1e6})
    {
        SCOPED_TRACE(start);
        EXPECT_TRUE(HasBounds(BoxOfArc(1.0, 2.0, 3.0, start), -2.0, 4.0, -1.0, 5.0));
        EXPECT_TRUE(HasBounds(BoxOfArc(-6.0, 10.0, 0.25, start), -6.25, -5.75, 9.75, 10.25));
    }
}

TEST(BoxOfAnArc, OfNegativeRadiusIsThatOfItsAbsoluteValue)
{
    EXPECT_TRUE(HasBounds(BoxOfArc(1.0, 2.0, -3.0, 0.75), -2.0, 4.0, -1.0, 5.0));
}

TEST(BoxOfAnArc, OfRadiusZeroIsItsCentre)
{
    EXPECT_TRUE(HasBounds(BoxOfArc(1.0, 2.0, 0.0, 0.75), 1.0, 1.0, 2.0, 2.0));
}
