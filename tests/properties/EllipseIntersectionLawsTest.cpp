#include "Meet.h"
#include "Motions.h"
#include "support/Curves.h"
#include "support/Ellipses.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of ellipses that meet other curves, numbered as in docs/intersections.md: on a grid with touching lines and
// shared axes, and at random. Common points found by a second method stand beside those of the library.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

// Points of straight lines with ellipses: coordinates below 8, semi-axes of a ratio up to 4.
constexpr double Rounding = 64 * Unit * 8;

/// A rotation in [0, π) on which multiples of π/2 lie exactly: those beside them are a matter of their own.
Ellipse Snapped(Ellipse ellipse)
{
    ellipse.rotation = std::fmod(Folded(ellipse.rotation), Pi);
    for (const double right : {0.0, HalfPi, Pi})
    {
        if (std::abs(ellipse.rotation - right) < 1e-12)
        {
            ellipse.rotation = right == Pi ? 0.0 : right;
        }
    }
    return ellipse;
}

std::vector<Ellipse> GridEllipses()
{
    std::vector<Ellipse> ellipses;
    for (const DPOINT2& centre : {At(0, 0), At(1, 0), At(1, 1)})
    {
        for (const auto& [a, b] : {std::pair(2.0, 1.0), std::pair(1.0, 0.5), std::pair(0.5, 2.0), std::pair(1.0, 1.0)})
        {
            for (const double rotation : {0.0, QuarterPi, HalfPi, 0.3, 2.5})
            {
                ellipses.push_back({centre, a, b, rotation});
            }
        }
    }
    return ellipses;
}

std::vector<Beeline> GridBeelines()
{
    std::vector<Beeline> beelines;
    for (int x = -1; x <= 2; ++x)
    {
        for (int y = -1; y <= 2; ++y)
        {
            for (int direction = 0; direction < 4; ++direction)
            {
                beelines.push_back({At(x, y), direction * QuarterPi});
            }
        }
    }
    return beelines;
}

Met Meet(const Beeline& a, const Ellipse& b)
{
    Met met{0, {}};
    met.code = Intersect_BeelineWithEllipse(a.point, a.angle, b.centre, b.a, b.b, b.rotation, met.points, -1);
    return met;
}

/// How far apart two points of one tangency may be: a dip by 1e-9 into an ellipse cuts a chord of this half length,
/// by the greatest radius of curvature.
double ChordOfTolerance(const Ellipse& ellipse)
{
    const double a = std::max(ellipse.a, ellipse.b);
    const double b = std::min(ellipse.a, ellipse.b);
    return std::sqrt(4e-9 * a * a / b);
}

struct TwoEllipses
{
    Ellipse first;
    Ellipse second;
    std::vector<DPOINT2> crossings; ///< by the second method
    bool isClear;                   ///< they do not touch, nearly
    bool sharesQuarterArcs;         ///< two crossings lie on one pair of quarter arcs
};

std::vector<TwoEllipses> RandomPairs(std::uint64_t seed, int count, double size)
{
    std::vector<TwoEllipses> pairs;
    Random random(seed);
    for (int i = 0; i < count; ++i)
    {
        TwoEllipses pair{Snapped(LongAxisFirst(RandomEllipse(random, size, 0.5))),
                         Snapped(LongAxisFirst(RandomEllipse(random, size, 0.5))),
                         {},
                         true,
                         false};
        pair.crossings = EllipseMeetsEllipse(pair.first, pair.second, pair.isClear);
        pair.sharesQuarterArcs = SharesQuarterArcs(pair.first, pair.second, pair.crossings);
        pairs.push_back(pair);
    }
    return pairs;
}

/// How far a point of two ellipses may be off: the search stops at a difference of 1e-9 in height, or in x, which is
/// that times the slope in height.
double SearchTolerance(const TwoEllipses& pair, const DPOINT2& point)
{
    const auto slope = [&](const Ellipse& ellipse) { return std::abs(std::tan(TangentAt(ellipse, point))); };
    return 2e-9 * (1 + std::max(slope(pair.first), slope(pair.second)));
}

bool PassesFar(const TwoEllipses& pair)
{
    return std::all_of(pair.crossings.begin(), pair.crossings.end(), [&](const DPOINT2& point) {
        // Neither upright, where the slope is no bound, nor nearly along one another.
        const double between = TangentAt(pair.first, point) - TangentAt(pair.second, point);
        return SearchTolerance(pair, point) < 1e-7 && std::abs(std::sin(between)) > 1e-2;
    });
}

} // namespace

// Straight lines

TEST(EllipseIntersectionLaws, I15_PointsOfAStraightLineAndAnEllipseLieOnBoth)
{
    int touching = 0;
    for (const Beeline& a : GridBeelines())
    {
        for (const Ellipse& b : GridEllipses())
        {
            const Met met = Meet(a, b);
            touching += met.code == 1 ? 1 : 0;
            for (const DPOINT2& point : met.points)
            {
                // A tangency is told for a line within 1e-9 of the ellipse.
                ASSERT_LE(DistanceFrom(a, point), met.code == 1 ? 1e-9 + Rounding : Rounding);
                ASSERT_LE(DistanceFromEllipse(b, point), Rounding);
            }
        }
    }
    EXPECT_GT(touching, 0);
    Random random(9);
    for (int round = 0; round < 10000; ++round)
    {
        const Beeline a{random.Point(2), random.Number(-7, 7)};
        const Ellipse b = RandomEllipse(random);
        const Met met = Meet(a, b);
        for (const DPOINT2& point : met.points)
        {
            // The slope (1, tan) of the beeline carries the rounding of y, over |tan|.
            ASSERT_LE(DistanceFrom(a, point), met.code == 1 ? 1e-9 + Rounding : Rounding);
            ASSERT_LE(DistanceFromEllipse(b, point), 16 * Rounding);
        }
    }
}

TEST(EllipseIntersectionLaws, I16_AStraightLineCrossesAnEllipseWhereItsEquationSays)
{
    int clear = 0;
    Random random(10);
    for (int round = 0; round < 10000; ++round)
    {
        const Beeline a{random.Point(2), random.Number(-7, 7)};
        const Ellipse b = RandomEllipse(random);
        bool isClear = true;
        const std::vector<DPOINT2> expected = BeelineMeetsEllipse(a, b, isClear);
        if (isClear)
        {
            ++clear;
            ASSERT_TRUE(SameSet(Meet(a, b).points, expected, 1e-10));
        }
    }
    EXPECT_GT(clear, 9900);
}

TEST(EllipseIntersectionLaws, I17_LineAndEllipseToldAnotherWayMeetInTheSamePoints)
{
    for (const Beeline& a : GridBeelines())
    {
        for (const Ellipse& b : GridEllipses())
        {
            const Met met = Meet(a, b);
            const double tolerance = met.code == 1 ? ChordOfTolerance(b) : 2 * Rounding;
            const Ellipse halfTurned{b.centre, b.a, b.b, b.rotation + Pi};
            const Ellipse exchanged{b.centre, b.b, b.a, b.rotation + HalfPi};
            const Beeline turned{a.point, a.angle + Pi};
            ASSERT_TRUE(SameAnswer(Meet(a, halfTurned), met, tolerance));
            ASSERT_TRUE(SameAnswer(Meet(a, exchanged), met, tolerance));
            ASSERT_TRUE(SameAnswer(Meet(turned, b), met, tolerance));
        }
    }
    Random random(17);
    for (int round = 0; round < 5000; ++round)
    {
        const Beeline a{random.Point(2), random.Number(-7, 7)};
        const Ellipse b = RandomEllipse(random);
        bool isClear = true;
        BeelineMeetsEllipse(a, b, isClear);
        if (isClear)
        {
            const Met met = Meet(a, b);
            ASSERT_TRUE(SameAnswer(Meet(a, Ellipse{b.centre, b.a, b.b, b.rotation + Pi}), met, 1e-10));
            ASSERT_TRUE(SameAnswer(Meet(a, Ellipse{b.centre, b.b, b.a, b.rotation + HalfPi}), met, 1e-10));
            ASSERT_TRUE(SameAnswer(Meet(Beeline{a.point, a.angle + Pi}, b), met, 1e-10));
        }
    }
}

TEST(EllipseIntersectionLaws, I18_MovingTurningAndMirroringLineAndEllipseMovesThePoints)
{
    for (const Motion& motion : AllMotions())
    {
        for (const Beeline& a : GridBeelines())
        {
            for (const Ellipse& b : GridEllipses())
            {
                const Met met = Meet(a, b);
                const double tolerance = met.code == 1 ? ChordOfTolerance(b) : 4 * Rounding;
                ASSERT_TRUE(SameAnswer(Meet(motion(a), motion(b)), {met.code, motion(met.points)}, tolerance));
            }
        }
    }
    Random random(18);
    for (int round = 0; round < 1000; ++round)
    {
        const Beeline a{random.Point(2), random.Number(-7, 7)};
        const Ellipse b = RandomEllipse(random);
        bool isClear = true;
        BeelineMeetsEllipse(a, b, isClear);
        const Met met = Meet(a, b);
        for (const Motion& motion : AllMotions())
        {
            ASSERT_TRUE(!isClear || SameAnswer(Meet(motion(a), motion(b)), {met.code, motion(met.points)}, 1e-10));
        }
    }
}

TEST(EllipseIntersectionLaws, I19_OnStretchesAndEllipticalArcsThePointsOfTheWholeRemain)
{
    Random random(11);
    int kept = 0;
    for (int round = 0; round < 5000; ++round)
    {
        const Stretch stretch = RandomStretch(random);
        const Ellipse ellipse = RandomEllipse(random);
        const double start = random.Radian();
        const EllipseArc arc{ellipse, start, random.Number(-6.2, 6.2)};
        const DPOINT2 along = Minus(stretch.second, stretch.first);
        const Beeline beeline{stretch.first, std::atan2(along.y, along.x)};
        bool isClear = true;
        const std::vector<DPOINT2> whole = Meet(beeline, ellipse).points;
        const std::vector<DPOINT2> onArc = KeepOnArc(whole, arc, isClear);
        const std::vector<DPOINT2> onStretch = KeepOnStretch(whole, stretch, isClear);
        const std::vector<DPOINT2> onBoth = KeepOnStretch(onArc, stretch, isClear);
        const EllipseArc otherWay{ellipse, arc.start + arc.sweep, -arc.sweep};
        if (!isClear)
        {
            continue;
        }
        kept += static_cast<int>(onBoth.size());
        ASSERT_TRUE(SameSet(Meet(beeline, arc).points, onArc, 1e-10));
        ASSERT_TRUE(SameSet(Meet(beeline, otherWay).points, onArc, 1e-10));
        ASSERT_TRUE(SameSet(Meet(stretch, ellipse).points, onStretch, 1e-10));
        ASSERT_TRUE(SameSet(Meet(stretch, arc).points, onBoth, 1e-10));
    }
    EXPECT_GT(kept, 500);
}

// Two ellipses

TEST(EllipseIntersectionLaws, I20_PointsOfTwoEllipsesLieOnBoth)
{
    int points = 0;
    for (const TwoEllipses& pair : RandomPairs(12, 600, 1.0))
    {
        const Met met = Meet(pair.first, pair.second);
        for (const DPOINT2& point : met.points)
        {
            if (!pair.isClear || !PassesFar(pair))
            {
                continue;
            }
            ++points;
            ASSERT_LE(DistanceFromEllipse(pair.first, point), SearchTolerance(pair, point));
            ASSERT_LE(DistanceFromEllipse(pair.second, point), SearchTolerance(pair, point));
        }
    }
    EXPECT_GT(points, 1000);
}

TEST(EllipseIntersectionLaws, I21_TwoEllipsesMeetInAllTheirCrossingsExceptTwoOnOnePairOfQuarterArcs)
{
    int clear = 0;
    int withLoss = 0;
    for (const TwoEllipses& pair : RandomPairs(13, 1000, 1.0))
    {
        if (!pair.isClear || !PassesFar(pair))
        {
            continue;
        }
        ++clear;
        const Met met = Meet(pair.first, pair.second);
        const auto lost = static_cast<int>(pair.crossings.size()) - met.code;
        withLoss += lost > 0 ? 1 : 0;
        ASSERT_TRUE(lost == 0 || (pair.sharesQuarterArcs && (lost == 2 || lost == 4)));
        if (lost == 0)
        {
            ASSERT_TRUE(SameSet(met.points, pair.crossings, 1e-5));
        }
    }
    EXPECT_GT(clear, 850);
    EXPECT_GT(withLoss, 0);
}

TEST(EllipseIntersectionLaws, I22_ExchangedTurnedAndMovedEllipsesMeetInTheSamePoints)
{
    for (const TwoEllipses& pair : RandomPairs(14, 200, 1.0))
    {
        if (!pair.isClear || !PassesFar(pair) || pair.sharesQuarterArcs)
        {
            continue;
        }
        const Met met = Meet(pair.first, pair.second);
        const auto halfTurned = [](const Ellipse& e) { return Ellipse{e.centre, e.a, e.b, e.rotation + Pi}; };
        ASSERT_TRUE(SameAnswer(Meet(pair.second, pair.first), met, 1e-5));
        ASSERT_TRUE(SameAnswer(Meet(halfTurned(pair.first), pair.second), met, 1e-5));
        for (const Motion& motion : AllMotions())
        {
            const Met moved = Meet(Snapped(motion(pair.first)), Snapped(motion(pair.second)));
            ASSERT_TRUE(SameAnswer(moved, {met.code, motion(met.points)}, 1e-5));
        }
    }
}

TEST(EllipseIntersectionLaws, I23_OneAndTheSameEllipseIsToldExceptForWholeTurns)
{
    for (const Ellipse& e : GridEllipses())
    {
        const auto turned = [&](double by) { return Ellipse{e.centre, e.a, e.b, e.rotation + by}; };
        ASSERT_EQ(Meet(e, e).code, -1);
        ASSERT_EQ(Meet(e, turned(Pi)).code, -1);
        ASSERT_EQ(Meet(e, turned(-Pi)).code, -1);
        ASSERT_EQ(Meet(e, turned(TwoPi)).code == -1, e.a == e.b); // a circle is one at any rotation
        ASSERT_TRUE(Meet(e, e).points.empty());
        if (e.a == e.b)
        {
            ASSERT_EQ(Meet(Circle{e.centre, e.a}, e).code, -1);
        }
    }
    Random random(23);
    for (int round = 0; round < 500; ++round)
    {
        const Ellipse e = RandomEllipse(random);
        ASSERT_EQ(Meet(e, e).code, -1);
        ASSERT_EQ(Meet(e, Ellipse{e.centre, e.a, e.b, e.rotation + Pi}).code, -1);
        ASSERT_NE(Meet(e, Ellipse{e.centre, e.a, e.b, e.rotation + TwoPi}).code, -1);
    }
}

TEST(EllipseIntersectionLaws, I24_OnEllipticalArcsThePointsOfTheWholeRemainThatPassTheirTest)
{
    Random random(15);
    int kept = 0;
    int offEllipse = 0;
    for (const TwoEllipses& pair : RandomPairs(15, 400, 10.0))
    {
        const EllipseArc arc{pair.second, random.Radian(), random.Number(0.1, 6.2)};
        const EllipseArc other{pair.first, random.Radian(), random.Number(0.1, 6.2)};
        const Circle circle{pair.first.centre, (pair.first.a + pair.first.b) / 2};
        const Arc round{circle.centre, circle.radius, random.Radian(), random.Number(-6.2, 6.2)};
        bool isClear = true;
        const auto onEllipse = [&](const std::vector<DPOINT2>& points, const Ellipse& e) {
            std::vector<DPOINT2> on;
            std::copy_if(points.begin(), points.end(), std::back_inserter(on),
                         [&](const DPOINT2& point) { return IsPointInEllipse(point, e.centre, e.a, e.b, e.rotation); });
            offEllipse += static_cast<int>(points.size() - on.size());
            return on;
        };
        const std::vector<DPOINT2> ofEllipses = Meet(pair.first, pair.second).points;
        const std::vector<DPOINT2> ofCircle = Meet(circle, pair.second).points;
        const std::vector<DPOINT2> onArc = KeepOnArc(ofEllipses, arc, isClear);
        const std::vector<DPOINT2> onOther = KeepOnArc(onArc, other, isClear);
        const std::vector<DPOINT2> onRound = KeepOnArc(ofCircle, round, isClear);
        const std::vector<DPOINT2> circleOnArc = KeepOnArc(ofCircle, arc, isClear);
        const std::vector<DPOINT2> roundOnArc = KeepOnArc(circleOnArc, round, isClear);
        if (!isClear)
        {
            continue;
        }
        kept += static_cast<int>(onOther.size());
        ASSERT_TRUE(SameSet(Meet(pair.first, arc).points, onArc, 0));
        ASSERT_TRUE(SameSet(Meet(round, pair.second).points, onRound, 0));
        ASSERT_TRUE(SameSet(Meet(other, arc).points, onEllipse(onEllipse(onOther, arc.whole), other.whole), 0));
        ASSERT_TRUE(SameSet(Meet(circle, arc).points, onEllipse(circleOnArc, arc.whole), 0));
        std::vector<DPOINT2> onCircle;
        for (const DPOINT2& point : onEllipse(roundOnArc, arc.whole))
        {
            if (std::abs(DistanceOf(point, round.centre) - round.radius) < 1e-9)
            {
                onCircle.push_back(point);
            }
        }
        ASSERT_TRUE(SameSet(Meet(round, arc).points, onCircle, 0));
    }
    EXPECT_GT(kept, 100);
    EXPECT_GT(offEllipse, 0);
}

TEST(EllipseIntersectionLaws, I25_PointerAndVectorFormsOfEllipsesAgree)
{
    Random random(16);
    const auto check = [](const auto& a, const auto& b) {
        const Met met = Meet(a, b);
        return GivesFour(Meeting(a, b), met.code, met.points, 0);
    };
    for (const TwoEllipses& pair : RandomPairs(16, 25, 10.0))
    {
        const EllipseArc arc{pair.second, random.Radian(), random.Number(-6.2, 6.2)};
        const EllipseArc other{pair.first, random.Radian(), random.Number(0.1, 6.2)};
        const Circle circle{pair.first.centre, pair.first.b};
        const Arc round{circle.centre, circle.radius, random.Radian(), random.Number(-6.2, 6.2)};
        ASSERT_TRUE(check(pair.first, pair.second));
        ASSERT_TRUE(check(pair.first, arc));
        ASSERT_TRUE(check(other, arc));
        ASSERT_TRUE(check(circle, pair.second));
        ASSERT_TRUE(check(circle, arc));
        ASSERT_TRUE(check(round, pair.second));
        ASSERT_TRUE(check(round, arc));
    }
    for (const Beeline& a : GridBeelines())
    {
        for (const Ellipse& b : GridEllipses())
        {
            const Met met = Meet(a, b);
            DPOINT2 first = Untouched();
            DPOINT2 second = Untouched();
            ASSERT_EQ(Intersect_BeelineWithEllipse(a.point, a.angle, b.centre, b.a, b.b, b.rotation, &first, &second),
                      met.code);
            ASSERT_EQ(first, met.code > 0 ? met.points[0] : NoPoint());
            ASSERT_EQ(second, met.code > 1 ? met.points[1] : NoPoint());
            const EllipseArc arc{b, 0.5, -4};
            const Met onArc = Meet(a, arc);
            ASSERT_TRUE(Gives(Meeting(a, arc), onArc.code, onArc.points, 0));
        }
    }
}

TEST(EllipseIntersectionLaws, I26_ArcsOfOneEllipseOverlapOrShareTheirEnds)
{
    // Eighths of a turn, off the vertical.
    const auto arcOf = [](const Ellipse& ellipse, int start, int sweep) {
        return EllipseArc{ellipse, Folded(0.1 + start * QuarterPi), sweep * QuarterPi};
    };
    for (const Ellipse& ellipse :
         {Ellipse{At(1, -1), 2, 1, 0.3}, Ellipse{At(0, 0), 1, 3, 0}, Ellipse{At(0, 2), 1, 1, 5}})
    {
        for (int start = 0; start < 8; ++start)
        {
            for (int sweep = 1; sweep < 8; ++sweep)
            {
                for (int otherSweep = 1; otherSweep < 8; ++otherSweep)
                {
                    // The first begins in the direction 0, in eighths, so that what it covers is 0 to sweep.
                    const bool overlap = start < sweep || start + otherSweep > 8;
                    const bool endsShared = start == sweep;
                    const bool startShared = (start + otherSweep) % 8 == 0;
                    for (int turn = 0; turn < 8; ++turn)
                    {
                        const EllipseArc first = arcOf(ellipse, turn, sweep);
                        const EllipseArc second = arcOf(ellipse, start + turn, otherSweep);
                        const Met met = Meet(first, second);
                        ASSERT_EQ(met.code, overlap ? -1 : (endsShared ? 1 : 0) + (startShared ? 1 : 0))
                            << sweep << ", " << start << " " << otherSweep << " turned by " << turn;
                        ASSERT_EQ(Meet(second, first).code, met.code);
                        std::vector<DPOINT2> ends;
                        if (!overlap && startShared)
                        {
                            ends.push_back(AtPolar(ellipse, first.start));
                        }
                        if (!overlap && endsShared)
                        {
                            ends.push_back(AtPolar(ellipse, second.start));
                        }
                        ASSERT_TRUE(SameSet(met.points, ends, Rounding));
                    }
                }
            }
        }
    }
}
