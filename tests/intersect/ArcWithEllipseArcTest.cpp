#include "math/Intersect.h"
#include "support/Ellipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

namespace
{

// The circle of radius 3 about (1, 2) and the round ellipse of radius 2 about (4, 2), whose points are exact:
// x - 1 = (9 + 9 - 4) / 6 = 7/3, y - 2 = ±sqrt(9 - 49/9) = ±sqrt(32)/3. Seen from (1, 2) they lie at ±0.680, from (4,
// 2) at π ∓ 1.231, that is 1.911 and 4.372.
const Ellipse round{{4, 2}, 2, 2, 0.3};
const double height = std::sqrt(32.0) / 3;
const DPOINT2 upper = {10.0 / 3, 2 + height};
const DPOINT2 lower = {10.0 / 3, 2 - height};

Arc ArcOf(double start, double sweep)
{
    return {{1, 2}, 3, start, sweep};
}

EllipseArc RoundArc(double start, double sweep)
{
    return {round, start - 0.3, sweep};
}

} // namespace

TEST(IntersectArcWithEllipseArc, APointHasToLieOnBothArcs)
{
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(-1, 2), RoundArc(1, 4)), 2, {upper, lower}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(1, -2), RoundArc(5, -4)), 2, {upper, lower}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 2), RoundArc(1, 4)), 1, {upper}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, -2), RoundArc(1, 4)), 1, {lower}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(-1, 2), RoundArc(3, -2)), 1, {upper}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(-1, 2), RoundArc(3, 2)), 1, {lower}, 1e-14));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 2), RoundArc(3, 2)), 0, {})) << "one each";
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, -2), RoundArc(3, -2)), 0, {})) << "one each";
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(2, 2), RoundArc(0, 6.2)), 0, {}));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 6.2), RoundArc(0, 1)), 0, {}));
}

TEST(IntersectArcWithEllipseArc, ASweepTooSmallLeavesEverythingAsItIs)
{
    for (const double sweep : {0.0, 9e-10, -9e-10})
    {
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(ArcOf(-1, sweep), RoundArc(1, 4)), 0, {})) << sweep;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(ArcOf(-1, 2), RoundArc(1, sweep)), 0, {})) << sweep;
        EXPECT_TRUE(GivesAndLeavesOthers(Meeting(ArcOf(-1, sweep), EllipseArc{{{1, 2}, 3, 3, 0}, 1, 4}), 0, {}));
    }
    for (const double sweep : {1.1e-9, -1.1e-9})
    {
        EXPECT_TRUE(GivesFour(Meeting(ArcOf(-1, sweep), RoundArc(1, 4)), 0, {})) << sweep;
        EXPECT_TRUE(GivesFour(Meeting(ArcOf(-1, 2), RoundArc(1, sweep)), 0, {})) << sweep;
    }
}

TEST(IntersectArcWithEllipseArc, NothingToMeetFillsTheOutputs)
{
    EXPECT_TRUE(GivesFour(Meeting(Arc{{2, 2}, 0, 0, 6}, RoundArc(0, 6)), 0, {})) << "no radius";
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 6), EllipseArc{{{4, 2}, 0, 0, 0}, 0, 6}), 0, {})) << "no size";
    EXPECT_TRUE(GivesFour(Meeting(Arc{{30, 2}, 3, 0, 6}, RoundArc(0, 6)), 0, {})) << "apart";
    EXPECT_TRUE(GivesFour(Meeting(Arc{{1, 2}, -3, 0, 6}, RoundArc(0, 6)), 0, {})) << "negative";
}

TEST(IntersectArcWithEllipseArc, OnOneCircleThereIsNoSinglePoint)
{
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 2), EllipseArc{{{1, 2}, 3, 3, 0}, 1, 2}), -1, {}));
    EXPECT_TRUE(GivesFour(Meeting(ArcOf(0, 1), EllipseArc{{{1, 2}, 3, 3, 0}, 2, 1}), -1, {}))
        << "though they are apart";
}

TEST(IntersectArcWithEllipseArc, EndsOfBothCount)
{
    const double onArc = std::atan2(height, 7.0 / 3);
    const double onRound = std::atan2(height, 10.0 / 3 - 4);
    const auto code = [&](double start, double sweep, double otherStart, double otherSweep) {
        return OutputsOf(Meeting(ArcOf(start, sweep), RoundArc(otherStart, otherSweep))).code;
    };
    EXPECT_EQ(code(onArc, 1, onRound, 1), 1);
    EXPECT_EQ(code(onArc, 1, onRound, -1), 1);
    EXPECT_EQ(code(onArc - 1, 1 - 9e-10, onRound + 9e-10, 1), 1);
    EXPECT_EQ(code(onArc - 1, 1 - 1.1e-9, onRound + 9e-10, 1), 0);
    EXPECT_EQ(code(onArc - 1, 1 - 9e-10, onRound + 1.1e-9, 1), 0);
    EXPECT_EQ(code(onArc + 0.9e-9 / 3, 1, onRound - 1, 1 - 9e-10), 1) << "before the start by a distance";
    EXPECT_EQ(code(onArc + 1.1e-9 / 3, 1, onRound - 1, 1 - 9e-10), 0);
    EXPECT_EQ(code(onArc + 0.9e-9 / 3, 1, onRound - 1, 1 - 1.1e-9), 0);
    EXPECT_EQ(code(onArc - 0.9e-9 / 3, -1, onRound - 9e-10, -1), 1);
    EXPECT_EQ(code(onArc - 1.1e-9 / 3, -1, onRound - 9e-10, -1), 0);
    EXPECT_EQ(code(onArc - 0.9e-9 / 3, -1, onRound - 1.1e-9, -1), 0);
}

TEST(IntersectArcWithEllipseArc, KeepsWhatLiesOnBothArcs)
{
    Random random(141);
    int counts[5] = {0, 0, 0, 0, 0};
    int dropped = 0;
    for (int i = 0; i < 8000; ++i)
    {
        const EllipseArc ellipseArc{LongAxisFirst(RandomEllipse(random, 100, 0.3)), random.Number(-7, 7),
                                    random.Number(-7.5, 7.5)};
        const DPOINT2 centre = random.Point(30);
        const Arc arc{centre, random.Number(40, 160), random.Number(-7, 7), random.Number(-7.5, 7.5)};
        const Ellipse& whole = ellipseArc.whole;
        std::vector<DPOINT2> kept;
        for (const DPOINT2& point : OutputsOf(Meeting(CircleOf(arc), whole)).Points())
        {
            const bool onCircle = std::abs(DistanceOf(point, centre) - arc.radius) < 1e-9;
            dropped += onCircle ? 0 : 1;
            if (IsPointInArc(point, centre, arc.radius, arc.start, std::abs(arc.sweep), arc.sweep > 0) &&
                IsPointInEllipseArc(point, whole.centre, whole.a, whole.b, whole.rotation, ellipseArc.start,
                                    std::abs(ellipseArc.sweep), ellipseArc.sweep > 0))
            {
                ASSERT_LT(std::abs(DistanceOf(point, centre) - arc.radius), 1.001e-9);
                kept.push_back(point);
            }
        }
        const int code = static_cast<int>(kept.size());
        ASSERT_TRUE(IsExactly(OutputsOf(Meeting(arc, ellipseArc)), code, kept)) << i;
        ++counts[code];
        if (i % 40 == 0)
        {
            ASSERT_TRUE(GivesFour(Meeting(arc, ellipseArc), code, kept, 0)) << i;
        }
    }
    for (const int count : counts)
    {
        EXPECT_GT(count, 20);
    }
    EXPECT_GT(dropped, 0) << "points found too far from the circle";
}

TEST(IntersectArcWithEllipseArc, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 outputs[4] = {{1, 2}, {4, 2}, Untouched(), Untouched()};
    EXPECT_EQ(Intersect_ArcWithEllipseArc(outputs[0], 3, -1, 2, outputs[1], 2, 2, 0.3, 0.7, 4, &outputs[1], &outputs[0],
                                          &outputs[2], &outputs[3]),
              2);
    EXPECT_TRUE(Near(outputs[1], upper, 1e-14));
    EXPECT_TRUE(Near(outputs[0], lower, 1e-14));
    EXPECT_EQ(outputs[2], NoPoint());
    std::vector<DPOINT2> points = {{1, 2}, {4, 2}};
    EXPECT_EQ(Intersect_ArcWithEllipseArc(points[0], 3, -1, 2, points[1], 2, 2, 0.3, 0.7, 4, points, -1), 2);
    EXPECT_TRUE(SameSet(points, {upper, lower}, 1e-14));
}
