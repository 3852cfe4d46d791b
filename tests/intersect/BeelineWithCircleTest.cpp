#include "math/AnalyticKernel.h"
#include "math/Intersect.h"
#include "support/Curves.h"

#include <gp_Dir2d.hxx>

using namespace math;
using namespace math::test;

namespace
{

const Circle unitCircle{{0, 0}, 1};

Beeline HorizontalAt(double y)
{
    return {{-3, y}, 0};
}

} // namespace

TEST(IntersectBeelineWithCircle, AChordHasTwoPoints)
{
    // 3, 4, 5 and 5, 12, 13: the half-chord is a whole number.
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(3), Circle{{0, 0}, 5}), 2, {At(4, 3), At(-4, 3)}, 0));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(-5), Circle{{2, 0}, 13}), 2, {At(14, -5), At(-10, -5)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{3, 8}, HalfPi}, Circle{{0, 1}, 5}), 2, {At(3, 5), At(3, -3)}, 0));
}

TEST(IntersectBeelineWithCircle, TheGreaterAbscissaComesFirstWhicheverWayTheAnglePoints)
{
    const double half = std::sqrt(0.5);
    for (const double angle : {QuarterPi, QuarterPi + Pi, QuarterPi - Pi, QuarterPi + 4 * Pi})
    {
        EXPECT_TRUE(Gives(Meeting(Beeline{{7, 7}, angle}, unitCircle), 2, {At(half, half), At(-half, -half)}));
    }
    for (const double angle : {-QuarterPi, Pi - QuarterPi, -QuarterPi - Pi})
    {
        EXPECT_TRUE(Gives(Meeting(Beeline{{7, -7}, angle}, unitCircle), 2, {At(half, -half), At(-half, half)}));
    }
}

TEST(IntersectBeelineWithCircle, TheGreaterOrdinateComesFirstOnAVertical)
{
    for (const double angle : {HalfPi, -HalfPi, 3 * HalfPi, HalfPi + 5e-10, HalfPi - 5e-10})
    {
        EXPECT_TRUE(Gives(Meeting(Beeline{{0, -9}, angle}, unitCircle), 2, {At(0, 1), At(0, -1)}, 0)) << angle;
    }
    // Just past the vertical the direction points down and to the right.
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, HalfPi + 1e-6}, unitCircle), 2, {At(1e-6, -1), At(-1e-6, 1)}));
}

TEST(IntersectBeelineWithCircle, ABeelineBesideTheCircleHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1.5), unitCircle), 0, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(-1.5), unitCircle), 0, {}));
}

TEST(IntersectBeelineWithCircle, ATangentHasOnePoint)
{
    // The pointer form fills both outputs with it, the vector form appends it once.
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1), unitCircle), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(-1), unitCircle), 1, {At(0, -1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Beeline{{6, 1}, HalfPi}, Circle{{4, 3}, 2}), 1, {At(6, 3)}, 0));
    DPOINT2 first = Untouched();
    DPOINT2 second = Untouched();
    EXPECT_EQ(Intersect_BeelineWithCircle({-3, 1}, 0, {0, 0}, 1, &first, &second), 1);
    EXPECT_EQ(first, At(0, 1));
    EXPECT_EQ(second, At(0, 1));
}

TEST(IntersectBeelineWithCircle, TangencyIsAMatterOfOneRoundingUnitOfTheRadius)
{
    // Above 1 doubles lie 2^-52 apart, which is the unit; below 1 they lie half as far apart.
    for (const double side : {1.0, -1.0})
    {
        EXPECT_TRUE(Gives(Meeting(HorizontalAt(side * Stepped(1, 2)), unitCircle), 0, {}));
        for (const int steps : {1, 0, -1, -2})
        {
            const double y = side * Stepped(1, steps);
            EXPECT_TRUE(Gives(Meeting(HorizontalAt(y), unitCircle), 1, {At(0, y)}, 0)) << steps;
        }
        const double y = side * Stepped(1, -3);
        const double half = std::sqrt(6 * 0x1p-53); // 1 - y² = 6 · 2^-53, and a term that vanishes
        EXPECT_TRUE(Gives(Meeting(HorizontalAt(y), unitCircle), 2, {At(half, y), At(-half, y)}));
    }
    // About radius 4 the unit is four times as large.
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(Stepped(4, 1)), Circle{{0, 0}, 4}), 1, {At(0, Stepped(4, 1))}, 0));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(Stepped(4, 2)), Circle{{0, 0}, 4}), 0, {}));
}

TEST(IntersectBeelineWithCircle, TheToleranceOfComparisonsPlaysNoPart)
{
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1 + 5e-10), unitCircle), 0, {}));
    const double half = std::sqrt(1e-9); // h² = 1 - (1 - 5e-10)²
    EXPECT_TRUE(
        Gives(Meeting(HorizontalAt(1 - 5e-10), unitCircle), 2, {At(half, 1 - 5e-10), At(-half, 1 - 5e-10)}, 1e-10));
}

TEST(IntersectBeelineWithCircle, ACircleOfNoRadiusIsItsCentre)
{
    for (const double angle : {0.0, 0.3, QuarterPi, HalfPi, 2.0, 3.0, -1.0})
    {
        EXPECT_TRUE(Gives(Meeting(Beeline{{3.7, -1.1}, angle}, Circle{{3.7, -1.1}, 0}), 1, {At(3.7, -1.1)}, 0));
    }
    EXPECT_TRUE(Gives(Meeting(Beeline{{-5, 2}, 0}, Circle{{3, 2}, 0}), 1, {At(3, 2)}, 0)) << "from afar";
    EXPECT_TRUE(Gives(Meeting(Beeline{{3, -50}, HalfPi}, Circle{{3, 2}, 0}), 1, {At(3, 2)}, 0)) << "from afar";
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1e-12), Circle{{0, 0}, 0}), 0, {})) << "beside it";
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(1e-300), Circle{{0, 0}, 0}), 0, {})) << "beside it";
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(2), Circle{{0, 0}, 0}), 0, {})) << "beside it";
}

TEST(IntersectBeelineWithCircle, ANegativeRadiusHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(0), Circle{{0, 0}, -1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(HorizontalAt(0), Circle{{0, 0}, -1e-300}), 0, {}));
}

TEST(IntersectBeelineWithCircle, ABeelineWithoutDirectionHasNoPoint)
{
    EXPECT_TRUE(Gives(Meeting(Beeline{{0x1p53, 0}, 0}, Circle{{0x1p53, 0}, 1}), 0, {}));
}

TEST(IntersectBeelineWithCircle, ABeelineThatIsNoneCountsTwoPointsThatAreNone)
{
    const DPOINT2 none = At(InvalidDouble, InvalidDouble);
    EXPECT_TRUE(Gives(Meeting(Beeline{{0, 0}, InvalidDouble}, unitCircle), 2, {none, none}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{InvalidDouble, 0}, 0}, unitCircle), 2, {none, none}));
    EXPECT_TRUE(Gives(Meeting(Beeline{{InvalidDouble, InvalidDouble}, 1}, unitCircle), 2, {none, none}));
}

TEST(IntersectBeelineWithCircle, ACircleThatIsNoneNeitherRaisesNorHangs)
{
    for (const Circle& circle : {Circle{{InvalidDouble, 0}, 1}, Circle{{0, 0}, InvalidDouble}, Circle{{0, 0}, Infinity},
                                 Circle{{Infinity, 0}, 1}})
    {
        DPOINT2 first;
        DPOINT2 second;
        const int code = Intersect_BeelineWithCircle({0, 0}, 1, circle.centre, circle.radius, &first, &second);
        EXPECT_TRUE(code >= 0 && code <= 2) << code;
    }
}

TEST(IntersectBeelineWithCircle, AgreesWithTheQuadraticEquation)
{
    Random random(141);
    int met = 0;
    for (int i = 0; i < 4000; ++i)
    {
        const Beeline beeline{random.Point(4), random.Number(-20, 20)};
        const Circle circle{random.Point(2), random.Number(0.5, 3)};
        bool clear = true;
        const auto expected =
            LineMeetsCircle(beeline.point, At(std::cos(beeline.angle), std::sin(beeline.angle)), circle, clear);
        // A nearly vertical beeline has an enormous slope, in which the last places of its direction are lost.
        if (clear && std::abs(std::cos(beeline.angle)) > 1e-3)
        {
            met += static_cast<int>(expected.size());
            ASSERT_TRUE(Gives(Meeting(beeline, circle), static_cast<int>(expected.size()), expected, 1e-8));
        }
    }
    EXPECT_GT(met, 2000);
}

TEST(IntersectBeelineWithCircle, GivesThePointsOfTheKernel)
{
    Random random(142);
    for (int i = 0; i < 500; ++i)
    {
        const DPOINT2 point = random.Point(1);
        const double angle = random.Number(0.01, 1.5); // needs no folding
        const gp_Dir2d direction((point.x + 1.0) - point.x, (point.y + std::tan(angle)) - point.y);
        const gp_Circ2d circle(gp_Ax22d(gp_Pnt2d(0.5, -0.25), gp_Dir2d(1, 0), gp_Dir2d(0, 1)), 2);
        const IntAna2d_AnaIntersection kernel(gp_Lin2d(gp_Pnt2d(point.x, point.y), direction), circle);
        DPOINT2 first;
        DPOINT2 second;
        ASSERT_EQ(Intersect_BeelineWithCircle(point, angle, {0.5, -0.25}, 2, &first, &second), 2);
        ASSERT_TRUE(SameBits(first, At(kernel.Point(1).X(), kernel.Point(1).Y())));
        ASSERT_TRUE(SameBits(second, At(kernel.Point(2).X(), kernel.Point(2).Y())));
    }
}

TEST(IntersectBeelineWithCircle, AnOutputMayBeAnInput)
{
    DPOINT2 point = At(-3, 3);
    DPOINT2 centre = At(0, 0);
    EXPECT_EQ(Intersect_BeelineWithCircle(point, 0, centre, 5, &point, &centre), 2);
    EXPECT_EQ(point, At(4, 3));
    EXPECT_EQ(centre, At(-4, 3));
    point = At(-3, 3);
    centre = At(0, 0);
    EXPECT_EQ(Intersect_BeelineWithCircle(point, 0, centre, 5, &centre, &point), 2);
    EXPECT_EQ(centre, At(4, 3));
    EXPECT_EQ(point, At(-4, 3));
    std::vector<DPOINT2> points = {At(-3, 3), At(0, 0)};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_BeelineWithCircle(points[0], 0, points[1], 5, points, 1), 2);
    EXPECT_EQ(points, (std::vector<DPOINT2>{At(-3, 3), At(0, 0), At(4, 3), At(-4, 3)}));
}

// The quick test

TEST(IntersectBeelineWithCircleQuick, ComparesTheDistanceOfTheCentreWithTheRadius)
{
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0.5), unitCircle), 2));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(-0.5), unitCircle), 2));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(1), unitCircle), 1));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(1.5), unitCircle), 0));
    EXPECT_TRUE(QuickTestGives(Meeting(Beeline{{5, 0}, HalfPi}, Circle{{2, 9}, 3}), 1));
    EXPECT_TRUE(QuickTestGives(Meeting(Beeline{{5, 0}, -HalfPi}, Circle{{2, 9}, 3.5}), 2));
    EXPECT_TRUE(QuickTestGives(Meeting(Beeline{{0, 0}, QuarterPi}, Circle{{2, 0}, 1.4}), 0)); // √2 away
    EXPECT_TRUE(QuickTestGives(Meeting(Beeline{{0, 0}, QuarterPi}, Circle{{2, 0}, 1.42}), 2));
}

TEST(IntersectBeelineWithCircleQuick, HasTheToleranceThatTheFullFormLacks)
{
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(1 + 5e-10), unitCircle), 1));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(1 - 5e-10), unitCircle), 1));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(1 + 2e-9), unitCircle), 0));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(1 - 2e-9), unitCircle), 2));
}

TEST(IntersectBeelineWithCircleQuick, ADifferenceOfExactlyTheToleranceIsNone)
{
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(2e-9), Circle{{0, 0}, 1e-9}), 0));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, 0}, 1e-9}), 2));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, 0}, Previous(1e-9)}), 1));
}

TEST(IntersectBeelineWithCircleQuick, ComparesANegativeRadiusLikeAnyOther)
{
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, 0}, -1}), 0));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, 0}, -5e-10}), 1));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, 0}, 0}), 1));
}

TEST(IntersectBeelineWithCircleQuick, ABeelineWithoutDistanceCountsTwo)
{
    EXPECT_TRUE(QuickTestGives(Meeting(Beeline{{0x1p53, 0}, 0}, unitCircle), 2));
    EXPECT_TRUE(QuickTestGives(Meeting(Beeline{{0, 0}, InvalidDouble}, unitCircle), 2));
}

TEST(IntersectBeelineWithCircleQuick, AnInfiniteDistanceIsNotAboveAnInfiniteRadius)
{
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, Infinity}, 1}), 0));
    EXPECT_TRUE(QuickTestGives(Meeting(HorizontalAt(0), Circle{{0, Infinity}, Infinity}), 2));
}

TEST(IntersectBeelineWithCircleQuick, AgreesWithTheFullFormAwayFromTangency)
{
    Random random(143);
    for (int i = 0; i < 4000; ++i)
    {
        const Beeline beeline{random.Point(4), random.Number(-20, 20)};
        const Circle circle{random.Point(2), random.Number(0.1, 3)};
        const DPOINT2 offset = Minus(circle.centre, beeline.point);
        const double distance = std::abs(CrossOf(offset, At(std::cos(beeline.angle), std::sin(beeline.angle))));
        if (std::abs(distance - circle.radius) > 1e-6)
        {
            ASSERT_TRUE(QuickTestGives(Meeting(beeline, circle), distance > circle.radius ? 0 : 2));
            ASSERT_EQ(Intersect_BeelineWithCircle(beeline.point, beeline.angle, circle.centre, circle.radius, nullptr,
                                                  nullptr),
                      distance > circle.radius ? 0 : 2);
        }
    }
}
