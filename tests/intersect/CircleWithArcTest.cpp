#include "math/Intersect.h"
#include "support/Curves.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// Unit circles about (0, 0) and (1, 0) cross at (0.5, ±√3/2), the upper point first. Seen from (1, 0) the upper point
// lies in the direction 2π/3 = 2.094, the lower one in 4π/3 = 4.189.
const Circle circle{{0, 0}, 1};
const DPOINT2 upper = {0.5, 0.8660254037844386};
const DPOINT2 lower = {0.5, -0.8660254037844386};

Arc ArcAboutOne(double start, double sweep)
{
    return {{1, 0}, 1, start, sweep};
}

const Arc bothOnIt[] = {ArcAboutOne(2, 2.5), ArcAboutOne(4.5, -2.5), ArcAboutOne(4, 5)};
const Arc upperOnIt[] = {ArcAboutOne(1, 2), ArcAboutOne(3, -2), ArcAboutOne(5, 4)};
const Arc lowerOnIt[] = {ArcAboutOne(3, 2), ArcAboutOne(5, -2), ArcAboutOne(1, -4)};
const Arc noneOnIt[] = {ArcAboutOne(3, 1), ArcAboutOne(4, -1), ArcAboutOne(5, 2), ArcAboutOne(1, -2)};

int PointerForm(const Circle& a, const Arc& b, DPOINT2* first, DPOINT2* second)
{
    return Intersect_CircleWithArc(a.centre, a.radius, b.centre, b.radius, b.start, b.sweep, first, second);
}

int VectorForm(const Circle& a, const Arc& b, std::vector<DPOINT2>& points, int ignored = 0)
{
    return Intersect_CircleWithArc(a.centre, a.radius, b.centre, b.radius, b.start, b.sweep, points, ignored);
}

} // namespace

TEST(IntersectCircleWithArc, PointsOfTheCirclesThatLieOnTheArcCount)
{
    for (const Arc& arc : bothOnIt)
    {
        EXPECT_TRUE(Gives(Meeting(circle, arc), 2, {upper, lower}, 1e-15)) << arc.start;
    }
    for (const Arc& arc : upperOnIt)
    {
        EXPECT_TRUE(Gives(Meeting(circle, arc), 1, {upper}, 1e-15)) << arc.start;
    }
    for (const Arc& arc : lowerOnIt)
    {
        EXPECT_TRUE(Gives(Meeting(circle, arc), 1, {lower}, 1e-15)) << arc.start;
    }
    for (const Arc& arc : noneOnIt)
    {
        EXPECT_TRUE(Gives(Meeting(circle, arc), 0, {})) << arc.start;
    }
}

TEST(IntersectCircleWithArc, CirclesApartHaveNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{5, 0}, 1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{0, 0}, 2, 0, 6}), 0, {})) << "concentric";
}

TEST(IntersectCircleWithArc, ATouchingPointWritesTheFirstOutput)
{
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{2, 0}, 1, HalfPi, Pi}), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{2, 0}, 1, -HalfPi, -Pi}), 1, {At(1, 0)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{2, 0}, 1, -HalfPi, Pi}), 0, {})) << "on the bare half";
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, 3}, Arc{{2, 0}, 1, -1, 2}), 1, {At(3, 0)}, 1e-15)) << "from inside";
}

TEST(IntersectCircleWithArc, WithoutAFirstOutputOnlyTwoPointsOnTheArcCount)
{
    DPOINT2 second = Untouched();
    for (const Arc& arc : bothOnIt)
    {
        EXPECT_EQ(PointerForm(circle, arc, nullptr, nullptr), 2);
        second = Untouched();
        EXPECT_EQ(PointerForm(circle, arc, nullptr, &second), 2);
        EXPECT_TRUE(Near(second, lower, 1e-15));
    }
    second = Untouched();
    for (const Arc& arc : upperOnIt)
    {
        EXPECT_EQ(PointerForm(circle, arc, nullptr, nullptr), 0);
        EXPECT_EQ(PointerForm(circle, arc, nullptr, &second), 0);
    }
    for (const Arc& arc : lowerOnIt)
    {
        EXPECT_EQ(PointerForm(circle, arc, nullptr, nullptr), 0);
        EXPECT_EQ(PointerForm(circle, arc, nullptr, &second), 0);
    }
    for (const Arc& arc : noneOnIt)
    {
        EXPECT_EQ(PointerForm(circle, arc, nullptr, &second), 0);
    }
    EXPECT_EQ(PointerForm(circle, Arc{{5, 0}, 1, 0, 6}, nullptr, &second), 0) << "apart";
    EXPECT_EQ(PointerForm(circle, Arc{{0, 0}, 1, 0, 6}, nullptr, &second), 0) << "identical";
    EXPECT_EQ(PointerForm(circle, Arc{{2, 0}, 1, -HalfPi, Pi}, nullptr, &second), 0) << "touching off the arc";
    EXPECT_EQ(second, Untouched());
}

TEST(IntersectCircleWithArc, TheToleranceIsThatOfAPointOnAnArc)
{
    const Circle wide{{0, 0}, 100};
    const double direction = 2 * Pi / 3; // of the upper point from (100, 0)
    const auto count = [&](double start, double sweep) {
        DPOINT2 first;
        return PointerForm(wide, {{100, 0}, 100, start, sweep}, &first, nullptr);
    };
    EXPECT_EQ(count(direction - 0.5, 0.5 - 5e-10), 1) << "beyond the end by an angle";
    EXPECT_EQ(count(direction - 0.5, 0.5 - 2e-9), 0);
    EXPECT_EQ(count(direction + 5e-10, 0.5), 0) << "before the start by a distance";
    EXPECT_EQ(count(direction + 0.5, -0.5 + 5e-10), 1);
    EXPECT_EQ(count(direction - 5e-10, -0.5), 0);
}

TEST(IntersectCircleWithArc, OnItsOwnCircleTheArcAppendsItsEndsToAVectorOnly)
{
    const Arc arc{{3, 4}, 2, 1, 2.5};
    DPOINT2 first = Untouched();
    DPOINT2 second = Untouched();
    EXPECT_EQ(PointerForm({{3, 4}, 2}, arc, &first, &second), 0);
    EXPECT_EQ(first, Untouched());
    EXPECT_EQ(second, Untouched());
    for (const int ignored : {-1, 0, 1, 2})
    {
        std::vector<DPOINT2> points = {Untouched()};
        EXPECT_EQ(VectorForm({{3, 4}, 2}, arc, points, ignored), -1);
        ASSERT_EQ(points.size(), 3U);
        EXPECT_EQ(points[0], Untouched());
        EXPECT_TRUE(Near(points[1], OnCircleAt({3, 4}, 2, 1), 1e-14));
        EXPECT_TRUE(Near(points[2], OnCircleAt({3, 4}, 2, 3.5), 1e-14));
    }
}

TEST(IntersectCircleWithArc, TheSecondEndOnItsOwnCircleIsFoundWhateverTheTurns)
{
    for (const double start : {0.0, 1.0, 5.0, -3.0, 20.0})
    {
        for (const double sweep : {0.0, 0.5, -0.5, 6.0, -6.0, TwoPi})
        {
            std::vector<DPOINT2> points;
            EXPECT_EQ(VectorForm({{-1, 2}, 3}, {{-1, 2}, 3, start, sweep}, points), -1);
            ASSERT_EQ(points.size(), 2U);
            EXPECT_TRUE(Near(points[0], OnCircleAt({-1, 2}, 3, start), 1e-13)) << start;
            EXPECT_TRUE(Near(points[1], OnCircleAt({-1, 2}, 3, start + sweep), 1e-13)) << start << " " << sweep;
        }
    }
}

TEST(IntersectCircleWithArc, TheSecondEndOnItsOwnCircleHasItsAngleFolded)
{
    // Folded by one turn up, by one turn down, and by three turns down.
    for (const auto& [start, sweep] : {std::pair{1.0, -2.5}, std::pair{5.0, 2.0}, std::pair{17.0, 3.0}})
    {
        double radian = start + sweep;
        while (radian < 0)
        {
            radian += TwoPi;
        }
        while (radian >= TwoPi)
        {
            radian -= TwoPi;
        }
        std::vector<DPOINT2> points;
        EXPECT_EQ(VectorForm({{0, 0}, 1}, {{0, 0}, 1, start, sweep}, points), -1);
        ASSERT_EQ(points.size(), 2U);
        EXPECT_EQ(points[1], At(std::cos(radian), std::sin(radian)));
    }
}

TEST(IntersectCircleWithArc, TheEndsOnItsOwnCircleAreThoseOfTheArcItself)
{
    // The circle and that of the arc are one within the tolerance.
    std::vector<DPOINT2> points;
    EXPECT_EQ(VectorForm({{0, 0}, 2}, {{5e-10, 0}, 2 + 5e-10, 0, HalfPi}, points), -1);
    ASSERT_EQ(points.size(), 2U);
    EXPECT_TRUE(Near(points[0], At(2 + 1e-9, 0), 1e-14));
    EXPECT_TRUE(Near(points[1], At(5e-10, 2 + 5e-10), 1e-14));
}

TEST(IntersectCircleWithArc, RadiiThatAreNotPositiveHaveNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{1, 0}, 0, 0, 6}), 0, {})) << "a point on the circle";
    EXPECT_TRUE(Gives(Meeting(circle, Arc{{1, 0}, -1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 0}, -1}, Arc{{1, 0}, 1, 0, 6}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Circle{{0, 1}, 0}, Arc{{0, 0}, 1, 0, Pi}), 1, {At(0, 1)}, 0)) << "a point on the arc";
}

TEST(IntersectCircleWithArc, AgreesWithTheLawOfCosines)
{
    Random random(191);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 6000; ++i)
    {
        const Circle a = CircleOf(RandomArc(random));
        const Arc b = RandomArc(random);
        bool clear = true;
        const auto expected = KeepOnArc(CircleMeetsCircle(a, CircleOf(b), clear), b, clear);
        if (clear)
        {
            ++counts[expected.size()];
            ASSERT_TRUE(Gives(Meeting(a, b), static_cast<int>(expected.size()), expected, 1e-9));
        }
    }
    EXPECT_GT(std::min({counts[0], counts[1], counts[2]}), 300);
}

TEST(IntersectCircleWithArc, NumbersThatAreNoneNeitherRaiseNorHang)
{
    for (int i = 0; i < 8; ++i)
    {
        double numbers[8] = {0, 0, 1, 1, 0, 1, 2, 2.5};
        numbers[i] = InvalidDouble;
        DPOINT2 first;
        DPOINT2 second;
        const int code = PointerForm({{numbers[0], numbers[1]}, numbers[2]},
                                     {{numbers[3], numbers[4]}, numbers[5], numbers[6], numbers[7]}, &first, &second);
        EXPECT_TRUE(code >= -1 && code <= 2) << code;
    }
}

TEST(IntersectCircleWithArc, AnOutputMayBeAnInput)
{
    for (const bool swapped : {false, true})
    {
        DPOINT2 a = At(0, 0);
        DPOINT2 b = At(1, 0);
        EXPECT_EQ(Intersect_CircleWithArc(a, 1, b, 1, 2, 2.5, swapped ? &b : &a, swapped ? &a : &b), 2);
        EXPECT_TRUE(Near(swapped ? b : a, upper, 1e-15));
        EXPECT_TRUE(Near(swapped ? a : b, lower, 1e-15));
        a = At(0, 0);
        b = At(1, 0);
        EXPECT_EQ(Intersect_CircleWithArc(a, 1, b, 1, 3, 2, swapped ? &b : &a, nullptr), 1);
        EXPECT_TRUE(Near(swapped ? b : a, lower, 1e-15));
    }
}

TEST(IntersectCircleWithArc, ThePointsAppendedMayFollowTheirOwnCentre)
{
    // The vector has to grow while its first element is still the centre.
    std::vector<DPOINT2> points = {At(3, 4)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_CircleWithArc(points[0], 2, points[0], 2, 0, HalfPi, points, 0), -1);
    ASSERT_EQ(points.size(), 3U);
    EXPECT_TRUE(Near(points[1], At(5, 4), 1e-15));
    EXPECT_TRUE(Near(points[2], At(3, 6), 1e-15));

    points = {At(0, 0), At(1, 0)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_CircleWithArc(points[0], 1, points[1], 1, 2, 2.5, points, 0), 2);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_TRUE(Near(points[2], upper, 1e-15));
    EXPECT_TRUE(Near(points[3], lower, 1e-15));
}
