#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

const Ellipse flat{{0, 0}, 2, 1, 0};

// Semi-axes 5 and 3, the own x axis in the direction (0.6, 0.8). The frame points (±3, ±2.4), (±4, ±1.8), (±5, 0) and
// (0, ±3) lie on it: 9/25 + 5.76/9 = 0.36 + 0.64, 16/25 + 3.24/9 = 0.64 + 0.36.
const double tilt = std::atan2(0.8, 0.6);
const Ellipse tilted{{1, 2}, 5, 3, tilt};

DPOINT2 OnTilted(double u, double v)
{
    return {1 + 0.6 * u - 0.8 * v, 2 + 0.8 * u + 0.6 * v};
}

/// The beeline through two points.
Beeline Through(const DPOINT2& p, const DPOINT2& q)
{
    return {p, std::atan2(q.y - p.y, q.x - p.x)};
}

struct BeelineResult
{
    int code;
    DPOINT2 first;
    DPOINT2 second;
};

BeelineResult Meet(const Beeline& beeline, const Ellipse& ellipse)
{
    BeelineResult result{0, Untouched(), Untouched()};
    result.code = Intersect_BeelineWithEllipse(beeline.point, beeline.angle, ellipse.centre, ellipse.a, ellipse.b,
                                               ellipse.rotation, &result.first, &result.second);
    return result;
}

int MeetVector(const Beeline& beeline, const Ellipse& ellipse, std::vector<DPOINT2>& points, int maxPoints)
{
    return Intersect_BeelineWithEllipse(beeline.point, beeline.angle, ellipse.centre, ellipse.a, ellipse.b,
                                        ellipse.rotation, points, maxPoints);
}

/// Both forms: the outputs hold the points and nothing behind them, the vector gets at most as many as it may.
::testing::AssertionResult GivesPoints(const Beeline& beeline, const Ellipse& ellipse,
                                       const std::vector<DPOINT2>& points, double tolerance = 1e-12)
{
    std::vector<DPOINT2> outputs = points;
    outputs.resize(2, NoPoint());
    const BeelineResult result = Meet(beeline, ellipse);
    const auto same = inner::SameResult("pointer form", result.code, static_cast<int>(points.size()),
                                        {result.first, result.second}, outputs, tolerance);
    const BothForms forms{
        [](DPOINT2*, DPOINT2*) { return 0; },
        [=](std::vector<DPOINT2>& found, int maxPoints) { return MeetVector(beeline, ellipse, found, maxPoints); },
        TrailingInt::MaxPoints};
    return same ? VectorFormGives(forms, static_cast<int>(points.size()), points, tolerance) : same;
}

} // namespace

TEST(IntersectBeelineWithEllipse, ATangentGivesOnePointAndNoSecond)
{
    EXPECT_TRUE(GivesPoints({{0, 1}, 0}, flat, {At(0, 1)}, 0));
    EXPECT_TRUE(GivesPoints({{7, 1}, 0}, flat, {At(0, 1)}, 0));
    EXPECT_TRUE(GivesPoints({{7, -1}, Pi}, flat, {At(0, -1)}, 0));
    EXPECT_TRUE(GivesPoints({{2, 8}, HalfPi}, flat, {At(2, 0)}, 0));
    EXPECT_TRUE(GivesPoints({{-2, 8}, -HalfPi}, flat, {At(-2, 0)}, 0));
}

TEST(IntersectBeelineWithEllipse, ATangentOfATiltedEllipseTouchesInItsPoint)
{
    // The tangent at the frame point (u, v) has the frame direction (-v / 9, u / 25).
    for (const DPOINT2& frame : {At(3, 2.4), At(-3, 2.4), At(4, -1.8), At(-4, -1.8)})
    {
        const double angle = tilt + std::atan2(frame.x / 25, -frame.y / 9);
        const DPOINT2 touching = OnTilted(frame.x, frame.y);
        for (const double along : {0.0, 4.0, -6.0})
        {
            const DPOINT2 point = {touching.x + along * std::cos(angle), touching.y + along * std::sin(angle)};
            EXPECT_TRUE(GivesPoints({point, angle}, tilted, {touching}, 1e-13));
            EXPECT_TRUE(GivesPoints({point, angle + Pi}, tilted, {touching}, 1e-13));
            EXPECT_TRUE(GivesPoints({point, angle - 3 * Pi}, tilted, {touching}, 1e-13));
        }
    }
}

TEST(IntersectBeelineWithEllipse, TangencyIsADistanceBelowTheTolerance)
{
    // The touching point is that of the ellipse, not that of the beeline.
    EXPECT_TRUE(GivesPoints({{3, 1 + 9e-10}, 0}, flat, {At(0, 1)}, 0));
    EXPECT_TRUE(GivesPoints({{3, 1 - 9e-10}, 0}, flat, {At(0, 1)}, 0));
    EXPECT_TRUE(GivesPoints({{3, 1 + 1.1e-9}, 0}, flat, {}));
    // Along y = 1 - h the half chord is 2 sqrt(2h - h²).
    const double height = 1 - 1.1e-9;
    const double half = 2 * std::sqrt(1 - height * height);
    EXPECT_TRUE(GivesPoints({{3, height}, 0}, flat, {At(-half, height), At(half, height)}, 1e-12));
    // On a steep ellipse the same holds at its sides.
    EXPECT_TRUE(GivesPoints({{2 + 9e-10, 3}, HalfPi}, flat, {At(2, 0)}, 0));
    EXPECT_TRUE(GivesPoints({{2 + 1.1e-9, 3}, HalfPi}, flat, {}));
}

TEST(IntersectBeelineWithEllipse, WhenBothTouchingPointsAreNearTheFirstIsGiven)
{
    // Thinner than the tolerance: the lower point of the frame comes first for a line along the own x axis, the left
    // one across it.
    EXPECT_TRUE(GivesPoints({{5, 0}, 0}, {{0, 0}, 2, 3e-10, 0}, {At(0, -3e-10)}, 0));
    EXPECT_TRUE(GivesPoints({{5, 1e-9}, 0}, {{0, 0}, 2, 3e-10, 0}, {At(0, 3e-10)}, 0)) << "the second alone";
    EXPECT_TRUE(GivesPoints({{0, 5}, HalfPi}, {{0, 0}, 3e-10, 2, 0}, {At(-3e-10, 0)}, 0));
}

TEST(IntersectBeelineWithEllipse, JustOffATangencyTheEquationCanStillHaveADoubleRoot)
{
    // a = 1, b = 100 and y = 100 + h: coefficients (10000, 0, 200 h), a constant of 0.02 h after scaling, which counts
    // as nothing up to 1e-9, that is up to h = 5e-8. The point is then that of the beeline.
    const Ellipse tall{{0, 0}, 1, 100, 0};
    EXPECT_TRUE(GivesPoints({{3, 100 + 2e-8}, 0}, tall, {At(0, 100 + 2e-8)}, 0));
    EXPECT_TRUE(GivesPoints({{3, 100 + 4.9e-8}, 0}, tall, {At(0, 100 + 4.9e-8)}, 0));
    EXPECT_TRUE(GivesPoints({{3, 100 + 5.1e-8}, 0}, tall, {}));
}

TEST(IntersectBeelineWithEllipse, AChordThroughTheCentreHasTheNegativeRootFirst)
{
    EXPECT_TRUE(GivesPoints({{0, 0}, 0}, flat, {At(-2, 0), At(2, 0)}, 0));
    EXPECT_TRUE(GivesPoints({{0, 0}, HalfPi}, flat, {At(0, -1), At(0, 1)}, 0));
    EXPECT_TRUE(GivesPoints({{0, 7}, HalfPi}, flat, {At(0, -1), At(0, 1)}, 0));
}

TEST(IntersectBeelineWithEllipse, AnUprightBeelineMayStartWhereOneMoreIsLost)
{
    // Up there the second point of the beeline is the first again, and tells no direction. Whether the beeline touches
    // is left to its equation: at the vertex that has a double root.
    EXPECT_EQ(1e17 + 1.0, 1e17);
    EXPECT_TRUE(GivesPoints({At(0, 1e17), HalfPi}, flat, {At(0, -1), At(0, 1)}, 0));
    EXPECT_TRUE(GivesPoints({At(2, 1e17), HalfPi}, flat, {At(2, 0)}, 0));
    EXPECT_TRUE(GivesPoints({At(3, 1e17), HalfPi}, flat, {}));
}

TEST(IntersectBeelineWithEllipse, ABeelineThatMissesHasNoPoint)
{
    EXPECT_TRUE(GivesPoints({{0, 5}, 0}, flat, {}));
    EXPECT_TRUE(GivesPoints({{5, 0}, HalfPi}, flat, {}));
    EXPECT_TRUE(GivesPoints(Through(OnTilted(7, 0), OnTilted(0, 5)), tilted, {}));
}

TEST(IntersectBeelineWithEllipse, AFlatLineGivesThePointFurtherAlongTheOwnXAxisFirst)
{
    const auto points = std::vector<DPOINT2>{OnTilted(4, 1.8), OnTilted(-3, 2.4)};
    EXPECT_TRUE(GivesPoints(Through(points[0], points[1]), tilted, points));
    EXPECT_TRUE(GivesPoints(Through(points[1], points[0]), tilted, points));
    const auto mirrored = std::vector<DPOINT2>{OnTilted(-4, -1.8), OnTilted(3, 2.4)};
    EXPECT_TRUE(GivesPoints(Through(mirrored[1], mirrored[0]), tilted, mirrored));
}

TEST(IntersectBeelineWithEllipse, ASteepLineGivesThePointFurtherAcrossFirst)
{
    const auto points = std::vector<DPOINT2>{OnTilted(3, 2.4), OnTilted(4, -1.8)};
    EXPECT_TRUE(GivesPoints(Through(points[0], points[1]), tilted, points));
    EXPECT_TRUE(GivesPoints(Through(points[1], points[0]), tilted, points));
    const auto others = std::vector<DPOINT2>{OnTilted(-3, -2.4), OnTilted(-4, 1.8)};
    EXPECT_TRUE(GivesPoints(Through(others[1], others[0]), tilted, others));
}

TEST(IntersectBeelineWithEllipse, LinesAtFortyFiveDegreesAreFlatAndJustBeyondSteep)
{
    // y = x + 0.5: 1.25 x² + x - 0.75 = 0. The point with the greater |x| is on the left, that with the greater |y| on
    // the right.
    const double root = std::sqrt(4.75);
    const DPOINT2 right = {(-1 + root) / 2.5, (-1 + root) / 2.5 + 0.5};
    const DPOINT2 left = {(-1 - root) / 2.5, (-1 - root) / 2.5 + 0.5};
    EXPECT_TRUE(GivesPoints({{0, 0.5}, 0.7853981633974483}, flat, {left, right}));
    EXPECT_TRUE(GivesPoints({{0, 0.5}, Previous(0.7853981633974483)}, flat, {left, right}));
    EXPECT_TRUE(GivesPoints({{0, 0.5}, Next(0.7853981633974483)}, flat, {right, left}));
    const DPOINT2 mirroredRight = {-left.x, left.y};
    const DPOINT2 mirroredLeft = {-right.x, right.y};
    EXPECT_TRUE(GivesPoints({{0, 0.5}, 2.356194490192345}, flat, {mirroredRight, mirroredLeft}));
    EXPECT_TRUE(GivesPoints({{0, 0.5}, Next(2.356194490192345)}, flat, {mirroredRight, mirroredLeft}));
    EXPECT_TRUE(GivesPoints({{0, 0.5}, Previous(2.356194490192345)}, flat, {mirroredLeft, mirroredRight}));
}

TEST(IntersectBeelineWithEllipse, OnlyTheAngleModuloAHalfTurnCounts)
{
    Random random(31);
    for (int i = 0; i < 500; ++i)
    {
        const Ellipse ellipse = RandomEllipse(random);
        const Beeline beeline{random.Point(1.0), random.Radian()};
        const BeelineResult result = Meet(beeline, ellipse);
        for (const double turn : {Pi, -Pi, TwoPi, -3 * Pi})
        {
            const BeelineResult turned = Meet({beeline.point, beeline.angle + turn}, ellipse);
            ASSERT_EQ(turned.code, result.code);
            if (result.code == 2)
            {
                ASSERT_TRUE(SameSet({turned.first, turned.second}, {result.first, result.second}, 1e-10));
            }
        }
    }
}

TEST(IntersectBeelineWithEllipse, HalfTurnsAndWholeTurnsOfTheEllipseChangeNothing)
{
    const DPOINT2 p = OnTilted(4, 1.8);
    const DPOINT2 q = OnTilted(-3, 2.4);
    for (const double turn : {-TwoPi, -Pi, Pi, TwoPi, 5 * Pi})
    {
        const Ellipse turned{{1, 2}, 5, 3, tilt + turn};
        EXPECT_TRUE(GivesPoints(Through(p, q), turned, {p, q})) << turn;
        EXPECT_TRUE(GivesPoints({{0, 1}, 0}, {{0, 0}, 2, 1, turn}, {At(0, 1)}, 1e-14)) << turn;
        // The root of larger magnitude lies elsewhere in the turned frame only by its sign.
        EXPECT_TRUE(
            GivesPoints(Through(OnTilted(3, 2.4), OnTilted(4, -1.8)), turned, {OnTilted(3, 2.4), OnTilted(4, -1.8)}))
            << turn;
    }
}

TEST(IntersectBeelineWithEllipse, TheLesserSemiAxisMayComeFirst)
{
    const Ellipse swapped{{1, 2}, 3, 5, tilt - HalfPi};
    // In this frame the tilted own x axis runs along y: a flat line of the one is a steep line of the other.
    EXPECT_TRUE(
        GivesPoints(Through(OnTilted(4, 1.8), OnTilted(-3, 2.4)), swapped, {OnTilted(4, 1.8), OnTilted(-3, 2.4)}));
    EXPECT_TRUE(
        GivesPoints(Through(OnTilted(3, 2.4), OnTilted(4, -1.8)), swapped, {OnTilted(3, 2.4), OnTilted(4, -1.8)}));
}

TEST(IntersectBeelineWithEllipse, AnOutputOrTheVectorMayHoldTheInput)
{
    const DPOINT2 p = OnTilted(4, 1.8);
    const DPOINT2 q = OnTilted(-3, 2.4);
    const double angle = std::atan2(q.y - p.y, q.x - p.x);
    DPOINT2 first = p;
    DPOINT2 second = tilted.centre;
    EXPECT_EQ(Intersect_BeelineWithEllipse(first, angle, second, 5, 3, tilt, &first, &second), 2);
    EXPECT_TRUE(Near(first, p, 1e-12));
    EXPECT_TRUE(Near(second, q, 1e-12));

    std::vector<DPOINT2> points = {p, tilted.centre};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_BeelineWithEllipse(points[0], angle, points[1], 5, 3, tilt, points, -1), 2);
    ASSERT_EQ(points.size(), 4U);
    EXPECT_TRUE(Near(points[2], p, 1e-12));
    EXPECT_TRUE(Near(points[3], q, 1e-12));
}

TEST(IntersectBeelineWithEllipse, WithoutANumberThereIsNoPoint)
{
    EXPECT_TRUE(GivesPoints({{0, 0}, InvalidDouble}, flat, {}));
    EXPECT_TRUE(GivesPoints({{InvalidDouble, 0}, 0.5}, flat, {}));
    EXPECT_TRUE(GivesPoints({{0, 0}, 0.5}, {{0, InvalidDouble}, 2, 1, 0}, {}));
    EXPECT_TRUE(GivesPoints({{0, 0}, 0.5}, {{0, 0}, InvalidDouble, 1, 0}, {}));
    EXPECT_TRUE(GivesPoints({{0, 0}, 0.5}, {{0, 0}, 2, InvalidDouble, 0}, {}));
    EXPECT_TRUE(GivesPoints({{0, 0}, 0.5}, {{0, 0}, 2, 1, InvalidDouble}, {}));
}

TEST(IntersectBeelineWithEllipse, AVanishingSemiAxisAnswersAsTheDivisionsDo)
{
    // b = 0 and a steep line: a² / 0 scales every other coefficient to nothing, which leaves the double root v = 0.
    EXPECT_TRUE(GivesPoints({{1, 1}, HalfPi}, {{0, 0}, 2, 0, 0}, {}));
    // a = 0 and a line along the own x axis: b² / 0 likewise.
    EXPECT_TRUE(GivesPoints({{1, 0.5}, 0}, {{0, 0}, 0, 2, 0}, {}));
    // b = 0 and a flat line: m² u² + 2 m n u + n² = 0, the double root -n / m, where the line crosses the axis.
    EXPECT_TRUE(GivesPoints({{0, 0.5}, -0.5}, {{0, 0}, 2, 0, 0}, {At(0.5 / std::tan(0.5), 0)}));
    // A point of an ellipse of no size at all touches what runs through it.
    EXPECT_TRUE(GivesPoints({{3, 1}, 0}, {{1, 1}, 0, 0, 0}, {At(1, 1)}));
}

TEST(IntersectBeelineWithEllipse, AgreesWithTheStepsWrittenOut)
{
    Random random(32);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 20000; ++i)
    {
        Ellipse ellipse = RandomEllipse(random, i % 4 == 0 ? random.Size(1e-3, 1e5) : 1.0);
        double angle = random.Number(-7.0, 7.0);
        DPOINT2 point = random.Point(2.0);
        if (i % 5 == 0)
        {
            ellipse.rotation = random.Integer(-8, 8) * QuarterPi;
            angle = Stepped(random.Integer(-8, 8) * QuarterPi, random.Integer(-2, 2));
        }
        if (i % 7 == 0)
        {
            point = AtEccentric(ellipse, random.Radian());
            angle = TangentAt(ellipse, point) + random.Number(-1e-5, 1e-5) * random.Integer(0, 1);
        }
        DPOINT2 first;
        DPOINT2 second;
        const int expected = reference::BeelineWithEllipse(point, angle, ellipse, &first, &second);
        const BeelineResult result = Meet({point, angle}, ellipse);
        ASSERT_EQ(result.code, expected) << i;
        ASSERT_EQ(result.first, first) << i;
        ASSERT_EQ(result.second, second) << i;
        ++counts[expected];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}

TEST(IntersectBeelineWithEllipse, FindsTheRootsAlongTheBeeline)
{
    Random random(33);
    int clearCount = 0;
    for (int i = 0; i < 3000; ++i)
    {
        const double size = random.Size(0.1, 1000.0);
        const Ellipse ellipse = RandomEllipse(random, size);
        const Beeline beeline{random.Point(2.0 * size), random.Number(-7.0, 7.0)};
        bool clear = true;
        const std::vector<DPOINT2> expected = BeelineMeetsEllipse(beeline, ellipse, clear);
        if (!clear)
        {
            continue;
        }
        ++clearCount;
        const BeelineResult result = Meet(beeline, ellipse);
        ASSERT_EQ(result.code, static_cast<int>(expected.size()));
        std::vector<DPOINT2> found;
        if (result.code == 2)
        {
            found = {result.first, result.second};
        }
        // A discriminant of 1e-4 of the greatest leaves half of the digits of its root in the worst case, and an angle
        // near the vertical turns its last digits into as many of the slope.
        ASSERT_TRUE(SameSet(found, expected, 1e-10 * size)) << i;
        for (const DPOINT2& point : found)
        {
            ASSERT_LT(DistanceFromEllipse(ellipse, point), 1e-10 * size);
        }
    }
    EXPECT_GT(clearCount, 2500);
}

TEST(IntersectBeelineWithEllipse, TurnsWithTheFigure)
{
    Random random(34);
    for (int i = 0; i < 1000; ++i)
    {
        const Ellipse ellipse = RandomEllipse(random);
        const Beeline beeline{random.Point(1.0), random.Radian()};
        bool clear = true;
        BeelineMeetsEllipse(beeline, ellipse, clear);
        if (!clear)
        {
            continue;
        }
        // A quarter turn takes (x, y) to (-y, x). The line keeps its direction in the own frame, so the order stays but
        // for lines that pass from 0 to π there.
        const Ellipse turned{{-ellipse.centre.y, ellipse.centre.x}, ellipse.a, ellipse.b, ellipse.rotation + HalfPi};
        const BeelineResult result = Meet(beeline, ellipse);
        const BeelineResult after = Meet({{-beeline.point.y, beeline.point.x}, beeline.angle + HalfPi}, turned);
        ASSERT_EQ(after.code, result.code);
        if (result.code == 2)
        {
            ASSERT_TRUE(Near(after.first, {-result.first.y, result.first.x}, 1e-9));
            ASSERT_TRUE(Near(after.second, {-result.second.y, result.second.x}, 1e-9));
        }
    }
}
