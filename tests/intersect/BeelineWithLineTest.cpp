#include "math/Intersect.h"
#include "support/Curves.h"

using namespace math;
using namespace math::test;

namespace
{

Beeline VerticalAt(double x)
{
    return {{x, -100}, HalfPi};
}

Beeline HorizontalAt(double y)
{
    return {{-100, y}, 0};
}

} // namespace

TEST(IntersectBeelineWithLine, CrossWithinTheStretch)
{
    EXPECT_TRUE(Gives(Meeting(VerticalAt(0.25), Stretch{{0, 0}, {1, 0}}), 1, {At(0.25, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(0.25), Stretch{{1, 0}, {0, 0}}), 1, {At(0.25, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, QuarterPi}, Stretch{{0, 4}, {4, 0}}), 1, {At(2, 2)}, 1e-14));
}

TEST(IntersectBeelineWithLine, TheBeelineHasNoEndAndNoSide)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{100, 100}, QuarterPi}, Stretch{{0, 4}, {4, 0}}), 1, {At(2, 2)}, 1e-12));
    EXPECT_TRUE(Gives(Meeting(Beeline{{-100, -100}, QuarterPi}, Stretch{{0, 4}, {4, 0}}), 1, {At(2, 2)}, 1e-12));
}

TEST(IntersectBeelineWithLine, EndsOfTheStretchCount)
{
    EXPECT_TRUE(Gives(Meeting(VerticalAt(0), Stretch{{0, 0}, {1, 0}}), 1, {At(0, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(1), Stretch{{0, 0}, {1, 0}}), 1, {At(1, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(-2), Stretch{{3, 5}, {3, -2}}), 1, {At(3, -2)}, 0));
}

TEST(IntersectBeelineWithLine, ACrossingBeyondTheStretchIsNone)
{
    EXPECT_TRUE(Gives(Meeting(VerticalAt(1.5), Stretch{{0, 0}, {1, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(-0.5), Stretch{{0, 0}, {1, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1.5), Stretch{{0, 0}, {0, 1}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(-0.5), Stretch{{0, 0}, {0, 1}}), 0, {}));
}

TEST(IntersectBeelineWithLine, TheStretchIsWidenedByTheToleranceAndThePointIsNotMoved)
{
    const double atTolerance = 1 + 1e-9; // the range test adds the same numbers, and includes its bound
    EXPECT_TRUE(Gives(Meeting(VerticalAt(1 + 5e-10), Stretch{{0, 0}, {1, 0}}), 1, {At(1 + 5e-10, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(atTolerance), Stretch{{0, 0}, {1, 0}}), 1, {At(atTolerance, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(Next(atTolerance)), Stretch{{0, 0}, {1, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(-1e-9), Stretch{{0, 0}, {1, 0}}), 1, {At(-1e-9, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(Previous(-1e-9)), Stretch{{0, 0}, {1, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1 + 5e-10), Stretch{{0, 1}, {0, 0}}), 1, {At(0, 1 + 5e-10)}, 0));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1 + 2e-9), Stretch{{0, 1}, {0, 0}}), 0, {}));
}

TEST(IntersectBeelineWithLine, AStretchOnTheBeelineHasNoSinglePoint)
{
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(3), Stretch{{0, 3}, {1, 3}}), -1, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(0), Stretch{{5, 0}, {5 - 1e-12, 0}}), -1, {})) << "however short";
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, -3 * QuarterPi}, Stretch{{7, 7}, {6, 6}}), -1, {}));
}

TEST(IntersectBeelineWithLine, AParallelStretchBesideItHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(3), Stretch{{0, 2}, {1, 2}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(3), Stretch{{0, 3 + 2e-9}, {1, 3 + 2e-9}}), 0, {}));
}

TEST(IntersectBeelineWithLine, AStretchOfNoLengthHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(0), Stretch{{5, 0}, {5, 0}}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(VerticalAt(0), Stretch{{5, 0}, {5, 0}}), 0, {}));
}

TEST(IntersectBeelineWithLine, ABeelineWithoutDirectionHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0x1p53, 0}, 0}, Stretch{{0, -1}, {0, 1}}), 0, {}));
}

TEST(IntersectBeelineWithLine, AgreesWithCramersRule)
{
    Random random(121);
    int met = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const Beeline beeline{random.Point(3), random.Number(-20, 20)};
        const Stretch stretch = RandomStretch(random);
        const DPOINT2 u = At(std::cos(beeline.angle), std::sin(beeline.angle));
        const DPOINT2 v = Minus(stretch.second, stretch.first);
        const double ratio = CrossOf(Minus(beeline.point, stretch.first), u) / CrossOf(v, u);
        if (std::abs(CrossOf(v, u)) < 0.01 || std::abs(ratio) < 1e-6 || std::abs(ratio - 1) < 1e-6)
        {
            continue; // nearly parallel, or crossing too near an end to tell
        }
        const Stretch turned{stretch.second, stretch.first};
        if (ratio < 0 || ratio > 1)
        {
            ASSERT_TRUE(Gives(Meeting(beeline, stretch), 0, {}));
            ASSERT_TRUE(Gives(Meeting(beeline, turned), 0, {}));
            continue;
        }
        ++met;
        const DPOINT2 expected = At(stretch.first.x + ratio * v.x, stretch.first.y + ratio * v.y);
        ASSERT_TRUE(Gives(Meeting(beeline, stretch), 1, {expected}, 1e-9));
        ASSERT_TRUE(Gives(Meeting(beeline, turned), 1, {expected}, 1e-9));
    }
    EXPECT_GT(met, 500);
}

TEST(IntersectBeelineWithLine, NumbersThatAreNoneNeitherRaiseNorHang)
{
    const double none = InvalidDouble;
    for (const int code : {Intersect_BeelineWithLine({0, 0}, none, {0, 1}, {1, 1}, nullptr),
                           Intersect_BeelineWithLine({none, 0}, 1, {0, 1}, {1, 1}, nullptr),
                           Intersect_BeelineWithLine({0, 0}, 1, {0, none}, {1, 1}, nullptr)})
    {
        EXPECT_EQ(code, 0) << "a point that is none lies on no stretch";
    }
}

TEST(IntersectBeelineWithLine, AnOutputMayBeAnInput)
{
    for (int i = 0; i < 3; ++i)
    {
        DPOINT2 input[3] = {At(0.25, 7), At(0, 0), At(1, 0)};
        EXPECT_EQ(Intersect_BeelineWithLine(input[0], HalfPi, input[1], input[2], &input[i]), 1);
        EXPECT_EQ(input[i], At(0.25, 0));
    }
    std::vector<DPOINT2> points = {At(0.25, 7), At(0, 0), At(1, 0)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_BeelineWithLine(points[0], HalfPi, points[1], points[2], points, 0), 1);
    EXPECT_EQ(points.back(), At(0.25, 0));
}
