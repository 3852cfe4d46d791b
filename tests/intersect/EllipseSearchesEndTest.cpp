#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

#include <algorithm>

using namespace math;
using namespace math::test;

// The searches of the quarter arc method halve a range towards a point found on a vertical. A vertical that misses an
// arc by rounding leaves the last point where it was, and the ends of the range may then never meet. Such a search ends
// where it repeats itself; one that ends of its own accord gives exactly what it gives without a guard.

namespace
{

struct Pair
{
    Ellipse first;
    Ellipse second;
};

double NearQuarterTurn(Random& random)
{
    constexpr double turns[] = {0, HalfPi, Pi, ThreeHalvesPi, TwoPi, -HalfPi, -Pi};
    const double turn = turns[random.Integer(0, 6)];
    return turn == 0 ? random.Integer(-3, 3) * 1e-16 : Stepped(turn, random.Integer(-4, 4));
}

/// Two ellipses that reach each other, a few rounding units off quarter turns.
Pair NearlyUprightPair(Random& random, double size, double distance)
{
    const DPOINT2 centre = random.Point(distance);
    const double a = size * random.Number(0.5, 2);
    const double b = size * random.Number(0.3, 2);
    const Ellipse first{centre, a, b, NearQuarterTurn(random)};
    const DPOINT2 offset = random.Point(size);
    const double otherA = size * random.Number(0.5, 2);
    const double otherB = size * random.Number(0.3, 2);
    return {first, {{centre.x + offset.x, centre.y + offset.y}, otherA, otherB, NearQuarterTurn(random)}};
}

std::string Told(const Pair& pair)
{
    std::string text;
    for (const Ellipse& ellipse : {pair.first, pair.second})
    {
        text += "(" + Digits(ellipse.centre.x) + ", " + Digits(ellipse.centre.y) + ") " + Digits(ellipse.a) + " " +
                Digits(ellipse.b) + " " + Digits(ellipse.rotation) + "; ";
    }
    return text;
}

/// What the steps give without a guard, or at the first state that comes again.
FourResult WrittenOut(const Pair& pair, reference::QuarterArcMethod& method)
{
    FourResult result{0, {}};
    result.code = method.Meet(pair.first, pair.second, result.outputs);
    result.outputs.resize(4, NoPoint());
    return result;
}

::testing::AssertionResult SameOutputs(const FourResult& found, const FourResult& expected)
{
    return inner::SameResult("outputs", found.code, expected.code, found.outputs, expected.outputs, 0);
}

} // namespace

TEST(EllipseSearches, EndWhereAVerticalMissesByARoundingUnit)
{
    const Pair pair{{{1, 1.1}, 2.2, 0.7, 1.5707963267948968}, {{1.3, 1.7}, 2, 1.2, 1.5707963267948963}};
    for (const Pair& tested : {pair, Pair{pair.second, pair.first}})
    {
        reference::QuarterArcMethod method(reference::Unending::LeftWhereItRepeats);
        const FourResult expected = WrittenOut(tested, method);
        EXPECT_TRUE(SameOutputs(OutputsOf(Meeting(tested.first, tested.second)), expected));
    }
    reference::QuarterArcMethod plain;
    WrittenOut(pair, plain);
    EXPECT_TRUE(plain.MetUnending()) << "a figure whose search would not end by itself";
}

TEST(EllipseSearches, EndInEveryMemberThatStandsOnThem)
{
    const Ellipse first{{1, 1.1}, 2.2, 0.7, 1.5707963267948968};
    const Ellipse second{{1.3, 1.7}, 2, 1.2, 1.5707963267948963};
    const FourResult whole = OutputsOf(Meeting(first, second));
    ASSERT_GE(whole.code, 0);
    // A whole turn keeps every point whose direction is told, in the order found.
    EXPECT_LE(OutputsOf(Meeting(first, EllipseArc{second, 0, 6.2})).code, whole.code);
    EXPECT_LE(OutputsOf(Meeting(EllipseArc{first, 0, 6.2}, EllipseArc{second, 0, 6.2})).code, whole.code);
}

TEST(EllipseSearches, EndOnNearlyUprightFiguresOfAllSizes)
{
    Random random(81);
    int unending = 0;
    int meetings = 0;
    for (int i = 0; i < 20000; ++i)
    {
        const double size = i % 3 == 0 ? 1.0 : random.Size(1.0, 1e6);
        const double distance = i % 4 == 0 ? random.Size(1.0, 1e7) : size;
        const Pair pair = NearlyUprightPair(random, size, distance);
        const FourResult found = OutputsOf(Meeting(pair.first, pair.second));
        meetings += found.code > 0 ? 1 : 0;
        if (i % 4 == 0)
        {
            reference::QuarterArcMethod method(reference::Unending::LeftWhereItRepeats);
            const FourResult expected = WrittenOut(pair, method);
            unending += method.MetUnending() ? 1 : 0;
            ASSERT_TRUE(SameOutputs(found, expected)) << i << ": " << Told(pair);
        }
    }
    EXPECT_GT(meetings, 4000);
    EXPECT_GT(unending, 20) << "the figures hold searches that would never end";
}

TEST(EllipseSearches, GiveTheSameWhereTheyEndByThemselves)
{
    Random random(82);
    int compared = 0;
    for (int i = 0; i < 5000; ++i)
    {
        const Pair pair = NearlyUprightPair(random, random.Size(1e-2, 1e4), random.Size(1e-2, 1e5));
        reference::QuarterArcMethod method;
        const FourResult expected = WrittenOut(pair, method);
        if (!method.MetUnending())
        {
            ++compared;
            ASSERT_TRUE(SameOutputs(OutputsOf(Meeting(pair.first, pair.second)), expected)) << i << ": " << Told(pair);
        }
    }
    EXPECT_GT(compared, 3750);
}

TEST(EllipseSearches, EndOnFiguresBeyondTheReachOfDirections)
{
    // At 1e101 nothing of a height difference is below the tolerance, and beyond 1e154 squares are no numbers any more.
    for (const double size : {1e99, 1e101, 1e153, 1e155, 1e300})
    {
        SCOPED_TRACE(size);
        const Pair crossed{{{0, 0}, 2 * size, size, 0}, {{0, 0}, size, 2 * size, 0}};
        const Pair tilted{{{0, 0}, 2 * size, size, 0.3}, {{0.5 * size, 0.25 * size}, 1.5 * size, size, 1.1}};
        for (const Pair& pair : {crossed, tilted})
        {
            reference::QuarterArcMethod method(reference::Unending::LeftWhereItRepeats);
            const FourResult expected = WrittenOut(pair, method);
            EXPECT_TRUE(SameOutputs(OutputsOf(Meeting(pair.first, pair.second)), expected)) << Told(pair);
        }
    }
}
