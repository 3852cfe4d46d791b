#include "math/AnalyticKernel.h"
#include "math/Intersect.h"
#include "support/Curves.h"

#include <gp_Dir2d.hxx>

using namespace math;
using namespace math::test;

// Records of two ends that stand for the unbounded lines through them.

namespace
{

int Cut(const LineD2D& a, const LineD2D& b, DPOINT2& point)
{
    EXPECT_EQ(Intersect(a, b, nullptr), Intersect(a, b, &point));
    return Intersect(a, b, &point);
}

gp_Lin2d LineOf(const LineD2D& record)
{
    return {gp_Pnt2d(record.x1, record.y1), gp_Dir2d(record.x2 - record.x1, record.y2 - record.y1)};
}

} // namespace

TEST(Intersect, LinesCrossBeyondBothStretches)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, 1, 0}, {5, 3, 5, 4}, point), 1);
    EXPECT_EQ(point, At(5, 0));
}

TEST(Intersect, LinesCrossWithinBothStretches)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, 2, 4}, {0, 3, 3, 0}, point), 1);
    EXPECT_TRUE(Near(point, At(1, 2), 1e-15)); // y = 2x and x + y = 3
}

TEST(Intersect, ParallelLinesApartHaveNoPoint)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, 1, 2}, {1, 0, 2, 2}, point), 0);
    EXPECT_EQ(Cut({0, 0, 1, 2}, {2, 2, 1, 0}, point), 0);
    EXPECT_EQ(point, Untouched());
}

TEST(Intersect, OneLineToldTwiceHasNoSinglePoint)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, 1, 0}, {7, 0, 5, 0}, point), -1);
    EXPECT_EQ(Cut({0, 0, 1, 1}, {-3, -3, 8, 8}, point), -1);
    EXPECT_EQ(point, Untouched());
}

TEST(Intersect, LinesAreOneUpToTheToleranceOfTheirCoefficients)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, 1, 0}, {0, 1e-9, 1, 1e-9}, point), -1);
    EXPECT_EQ(Cut({0, 0, 1, 0}, {0, 1.01e-9, 1, 1.01e-9}, point), 0);
    EXPECT_EQ(point, Untouched());
}

TEST(Intersect, DirectionsThatDifferByLessThanTheToleranceAreParallel)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, 1, 0}, {0, 1, 1, 1 + 0.5e-9}, point), 0);
    EXPECT_EQ(point, Untouched());
    EXPECT_EQ(Cut({0, 0, 1, 0}, {0, 1, 1, 1 - 0x1p-20}, point), 1);
    EXPECT_TRUE(Near(point, At(0x1p20, 0), 1e-3)); // falls by 2^-20 a unit, so meets y = 0 after 2^20
}

TEST(Intersect, RecordOfNoLengthHasNoPoint)
{
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({1, 1, 1, 1}, {0, 0, 2, 2}, point), 0);
    EXPECT_EQ(Cut({0, 0, 2, 2}, {1, 1, 1, 1}, point), 0);
    EXPECT_EQ(Cut({1, 1, 1, 1}, {1, 1, 1, 1}, point), 0);
    EXPECT_EQ(point, Untouched());
}

TEST(Intersect, ShortestRecordWithADirectionIsALine)
{
    // A norm at the least normal number is refused, one above it is accepted.
    DPOINT2 point = Untouched();
    EXPECT_EQ(Cut({0, 0, LeastNormal, 0}, {3, -1, 3, 1}, point), 0);
    EXPECT_EQ(point, Untouched());
    EXPECT_EQ(Cut({0, 0, 1e-150, 0}, {3, -1, 3, 1}, point), 1);
    EXPECT_EQ(point, At(3, 0));
}

TEST(Intersect, GivesThePointOfTheKernelWithTheFirstRecordFirst)
{
    Random random(101);
    for (int i = 0; i < 2000; ++i)
    {
        const LineD2D a{random.Number(-9, 9), random.Number(-9, 9), random.Number(-9, 9), random.Number(-9, 9)};
        const LineD2D b{random.Number(-9, 9), random.Number(-9, 9), random.Number(-9, 9), random.Number(-9, 9)};
        const IntAna2d_AnaIntersection kernel(LineOf(a), LineOf(b));
        DPOINT2 point = Untouched();
        ASSERT_EQ(Intersect(a, b, &point), 1);
        ASSERT_TRUE(SameBits(point, At(kernel.Point(1).X(), kernel.Point(1).Y())));
    }
}

TEST(Intersect, ThePointLiesOnBothLinesAndSwappingFindsItAgain)
{
    Random random(102);
    for (int i = 0; i < 2000; ++i)
    {
        const Stretch a = RandomStretch(random);
        const Stretch b = RandomStretch(random);
        const DPOINT2 u = Minus(a.second, a.first);
        const DPOINT2 v = Minus(b.second, b.first);
        if (std::abs(CrossOf(u, v)) < 0.1)
        {
            continue; // nearly parallel or very short: ill-conditioned
        }
        const LineD2D first{a.first.x, a.first.y, a.second.x, a.second.y};
        const LineD2D second{b.first.x, b.first.y, b.second.x, b.second.y};
        DPOINT2 point;
        DPOINT2 swapped;
        ASSERT_EQ(Intersect(first, second, &point), 1);
        ASSERT_EQ(Intersect(second, first, &swapped), 1);
        ASSERT_TRUE(Near(swapped, point, 1e-9));
        ASSERT_TRUE(Near(CrossOf(Minus(point, a.first), u), 0, 1e-8));
        ASSERT_TRUE(Near(CrossOf(Minus(point, b.first), v), 0, 1e-8));
    }
}

TEST(Intersect, NumbersThatAreNoneNeitherRaiseNorHang)
{
    const double none = InvalidDouble;
    DPOINT2 point = Untouched();
    for (const LineD2D& record :
         {LineD2D{none, 0, 1, 0}, LineD2D{0, 0, 1, none}, LineD2D{none, none, none, none}, LineD2D{0, 0, Infinity, 0}})
    {
        const int code = Cut(record, {0, 1, 1, 2}, point);
        EXPECT_TRUE(code == -1 || code == 0 || code == 1) << code;
    }
}
