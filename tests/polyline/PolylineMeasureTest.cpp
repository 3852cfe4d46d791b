#include "math/CPolyline.h"
#include "support/Outlines.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

// Box, length between positions, enclosed area.

namespace
{

/// Three segments of the lengths 1, 2 and 4.
CPolyline OneTwoFour()
{
    return Outline(At(0, 0), {{1, 0}, {1, 2}, {5, 2}});
}

/// The length of a whole polyline, segment by segment.
double WholeLength(const CPolyline& polyline)
{
    double sum = 0;
    for (std::size_t k = 0; k < polyline.nodes.size(); ++k)
    {
        sum += polyline.GetSegment(k).GetLength();
    }
    return sum;
}

} // namespace

// Box

TEST(PolylineGetRECT, OfOneSegmentIsThatOfTheSegment)
{
    EXPECT_TRUE(IsBox(Outline(At(5, 6), {{7, 3}}).GetRECT(), 5, 3, 2, 3, 0));
    EXPECT_TRUE(IsBox(Outline(At(5, 6), {{5, 3}}).GetRECT(), 5, 3, 0, 3, 0)) << "upright";
}

TEST(PolylineGetRECT, HoldsAllSegmentsAndNotTheOrigin)
{
    EXPECT_TRUE(IsBox(Outline(At(5, 6), {{7, 3}, {6, 9}}).GetRECT(), 5, 3, 2, 6, 0));
    EXPECT_TRUE(IsBox(Outline(At(5, 6), {{7, 3}, {6, 9}, {3, 5}, {10, 4}}).GetRECT(), 3, 3, 7, 6, 0));
    EXPECT_TRUE(IsBox(Outline(At(-5, -6), {{-7, -3}, {-6, -9}}).GetRECT(), -7, -9, 2, 6, 0));
}

TEST(PolylineGetRECT, FollowsArcsAndNotJustNodes)
{
    const CPolyline circle = Outline(At(1, 0), {{-1, 0, 1}, {1, 0, 1}});
    EXPECT_TRUE(IsBox(circle.GetRECT(), -1, -1, 2, 2, 1e-15));
    EXPECT_TRUE(IsBox(Outline(At(0, 0), {{5, 0}, {5, 2, 1}}).GetRECT(), 0, 0, 6, 2, 1e-15));
}

TEST(PolylineGetRECT, IsTheSameBegunElsewhereAndTurnedRound)
{
    Random random(411);
    for (int i = 0; i < 50; ++i)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(2, 9));
        const DRECT box = outline.GetRECT();
        for (std::size_t k = 0; k < outline.nodes.size(); ++k)
        {
            const CPolyline moved = BegunAt(outline, k);
            ASSERT_TRUE(IsBox(moved.GetRECT(), box.x, box.y, box.width, box.height, 1e-12));
            ASSERT_TRUE(IsBox(TurnedRound(moved).GetRECT(), box.x, box.y, box.width, box.height, 1e-12));
        }
    }
}

TEST(PolylineGetRECT, HoldsDenseSamplesAndTouchesThem)
{
    Random random(412);
    for (int i = 0; i < 50; ++i)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(2, 9));
        std::vector<DPOINT2> samples;
        for (std::size_t k = 0; k < outline.nodes.size(); ++k)
        {
            for (int s = 0; s <= 2000; ++s)
            {
                samples.push_back(outline.GetSegment(k).GetPoint(s / 2000.0));
            }
        }
        // Between samples an arc rises by its radius times an eighth of (sweep / 2000)². Flat arcs of great radius sweep
        // little; below sweep 4 and length 40 that is below 1e-5.
        ASSERT_TRUE(IsBoxOf(outline.GetRECT(), samples, 1e-5));
    }
}

// Length

TEST(PolylineGetLength, IsMeasuredAlongWholeAndPartialSegments)
{
    const CPolyline bent = Outline(At(0, 0), {{1, 0}, {1, 2}});
    EXPECT_EQ(bent.GetLength(0, 2), 3);
    EXPECT_EQ(bent.GetLength(0.5, 1.5), 1.5);
    EXPECT_EQ(bent.GetLength(0.25, 0.75), 0.5);
    const CPolyline polyline = OneTwoFour();
    EXPECT_EQ(polyline.GetLength(0, 3), 7);
    EXPECT_EQ(polyline.GetLength(0.25, 2.75), 0.75 + 2 + 3);
    EXPECT_EQ(polyline.GetLength(1.25, 1.75), 1);
    EXPECT_EQ(polyline.GetLength(1.25, 2.5), 1.5 + 2);
    EXPECT_EQ(polyline.GetLength(0, 1), 1);
    EXPECT_EQ(polyline.GetLength(1, 2), 2);
    EXPECT_EQ(polyline.GetLength(0, 2), 3);
    EXPECT_EQ(polyline.GetLength(1, 2.25), 2 + 1);
}

TEST(PolylineGetLength, TheEndIsAPositionOfItsOwn)
{
    const CPolyline polyline = OneTwoFour();
    EXPECT_EQ(polyline.GetLength(2, 3), 4);
    EXPECT_EQ(polyline.GetLength(2.25, 3), 3);
    EXPECT_EQ(polyline.GetLength(0.5, 3), 0.5 + 2 + 4);
    EXPECT_EQ(polyline.GetLength(1.5, 3), 1 + 4);
    EXPECT_EQ(Outline(At(0, 0), {{3, 4}}).GetLength(0.25, 1), 3.75) << "of a single segment";
    EXPECT_EQ(Outline(At(0, 0), {{3, 4}}).GetLength(0, 1), 5);
}

TEST(PolylineGetLength, DoesNotRunOverTheSeam)
{
    EXPECT_EQ(OneTwoFour().GetLength(1.5, 0.5), 0);
    EXPECT_EQ(Square().GetLength(3.5, 0.5), 0);
    EXPECT_EQ(Square().GetLength(0, 4), 4);
    EXPECT_EQ(Square().GetLength(3.5, 4), 0.5);
}

TEST(PolylineGetLength, PositionsWithinTheToleranceHaveNone)
{
    const CPolyline polyline = OneTwoFour();
    EXPECT_EQ(polyline.GetLength(0, 9e-10), 0);
    EXPECT_EQ(polyline.GetLength(0, Previous(1e-9)), 0);
    EXPECT_EQ(polyline.GetLength(0, 1e-9), 1e-9);
    EXPECT_TRUE(Near(polyline.GetLength(1.5, 1.5 + 2e-9), 4e-9, 1e-14));
    EXPECT_EQ(polyline.GetLength(1.5, 1.5 + 5e-10), 0);
    EXPECT_EQ(polyline.GetLength(1.5, 1.5), 0);
    EXPECT_EQ(polyline.GetLength(1 - 4e-10, 1 + 4e-10), 0);
}

TEST(PolylineGetLength, PositionsOutsideHaveNone)
{
    const CPolyline polyline = OneTwoFour();
    EXPECT_EQ(polyline.GetLength(0, 3.5), 0);
    EXPECT_EQ(polyline.GetLength(0, Next(3)), 0) << "compared exactly";
    EXPECT_EQ(polyline.GetLength(-1, 2), 0);
    EXPECT_EQ(polyline.GetLength(-1e-12, 2), 0) << "compared exactly";
    EXPECT_EQ(polyline.GetLength(-2, -1), 0);
    EXPECT_EQ(polyline.GetLength(4, 5), 0);
    EXPECT_EQ(polyline.GetLength(0, Infinity), 0);
    EXPECT_EQ(polyline.GetLength(-Infinity, 1), 0);
    EXPECT_EQ(polyline.GetLength(1e300, 2e300), 0);
    EXPECT_EQ(CPolyline().GetLength(0, 1), 0) << "no nodes";
    EXPECT_EQ(polyline.GetLength(-0.0, 1), 1);
}

TEST(PolylineGetLength, PositionsThatAreNoneHaveNone)
{
    EXPECT_EQ(OneTwoFour().GetLength(InvalidDouble, 2), 0);
    EXPECT_EQ(OneTwoFour().GetLength(0, InvalidDouble), 0);
    EXPECT_EQ(OneTwoFour().GetLength(InvalidDouble, InvalidDouble), 0);
}

TEST(PolylineGetLength, OfArcsIsLinearInThePosition)
{
    const CPolyline circle = Outline(At(1, 0), {{-1, 0, 1}, {1, 0, 1}});
    EXPECT_TRUE(Near(circle.GetLength(0, 2), TwoPi, 1e-15));
    EXPECT_TRUE(Near(circle.GetLength(0.25, 1.5), 1.25 * Pi, 1e-15));
}

TEST(PolylineGetLength, IsAdditive)
{
    Random random(421);
    for (int i = 0; i < 1000; ++i)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(2, 9));
        const auto count = static_cast<double>(outline.nodes.size());
        double cuts[] = {random.Number(0, count), random.Number(0, count), random.Number(0, count)};
        std::sort(std::begin(cuts), std::end(cuts));
        ASSERT_TRUE(Near(outline.GetLength(cuts[0], cuts[1]) + outline.GetLength(cuts[1], cuts[2]),
                         outline.GetLength(cuts[0], cuts[2]), 1e-9));
        ASSERT_TRUE(
            Near(outline.GetLength(0, cuts[1]) + outline.GetLength(cuts[1], count), WholeLength(outline), 1e-9));
        // Turned round, a position p becomes count - p.
        ASSERT_TRUE(Near(TurnedRound(outline).GetLength(count - cuts[2], count - cuts[0]),
                         outline.GetLength(cuts[0], cuts[2]), 1e-9));
    }
}

TEST(PolylineGetLength, IsTheSameBegunElsewhere)
{
    Random random(422);
    for (int i = 0; i < 50; ++i)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(2, 9));
        const std::size_t count = outline.nodes.size();
        for (std::size_t k = 0; k < count; ++k)
        {
            const double from = random.Number(0, static_cast<double>(count - k));
            const double to = random.Number(from, static_cast<double>(count - k));
            const auto moved = static_cast<double>(k);
            ASSERT_TRUE(
                Near(BegunAt(outline, k).GetLength(from, to), outline.GetLength(from + moved, to + moved), 1e-9));
        }
    }
}

// Area

TEST(PolylineGetArea, CounterclockwiseIsNegative)
{
    EXPECT_EQ(Square().GetArea(), -1);
    EXPECT_EQ(TurnedRound(Square()).GetArea(), 1);
    EXPECT_EQ(Outline(At(1, 1), {{4, 1}, {1, 3}, {1, 1}}).GetArea(), -3);
    EXPECT_EQ(Outline(At(-1, -5), {{-1, -3}, {2, -5}, {-1, -5}}).GetArea(), 3);
}

TEST(PolylineGetArea, OfAnOpenPolylineIsZero)
{
    EXPECT_EQ(Outline(At(0, 0), {{1, 0}, {1, 1}, {0, 1}}).GetArea(), 0);
    EXPECT_EQ(Outline(At(0, 0), {{1, 0}, {1, 1}, {0, 1}, {0, 1e-12}}).GetArea(), 0) << "closedness is exact";
    EXPECT_EQ(Outline(At(0, 0), {{1, 0}, {1, 1}, {0, 1}, {1e-12, 0}}).GetArea(), 0) << "closedness is exact";
}

TEST(PolylineGetArea, OfFewerThanTwoNodesIsZero)
{
    EXPECT_EQ(CPolyline().GetArea(), 0);
    CPolyline polyline;
    polyline.start = At(1, 1);
    polyline.nodes.push_back({At(1, 1), 1});
    EXPECT_EQ(polyline.GetArea(), 0);
    EXPECT_EQ(Outline(At(0, 0), {{1, 1}, {0, 0}}).GetArea(), 0) << "there and back";
}

TEST(PolylineGetArea, OfACircleIsThatOfItsArcs)
{
    EXPECT_TRUE(Near(Outline(At(1, 0), {{-1, 0, 1}, {1, 0, 1}}).GetArea(), -Pi, 1e-15));
    EXPECT_TRUE(Near(Outline(At(1, 0), {{-1, 0, -1}, {1, 0, -1}}).GetArea(), Pi, 1e-15));
    // The same circle cut at a quarter: bulges of a quarter and of three quarters of a turn.
    const double quarter = std::tan(Pi / 8);
    EXPECT_TRUE(Near(Outline(At(1, 0), {{0, 1, quarter}, {1, 0, 1 / quarter}}).GetArea(), -Pi, 1e-14));
}

TEST(PolylineGetArea, AnArcAddsWhatLiesBetweenItAndItsChord)
{
    // A half disc of radius 1/2 on a side of the square has the area π/8; outwards it adds, inwards it takes.
    EXPECT_TRUE(Near(Outline(At(0, 0), {{1, 0, 1}, {1, 1}, {0, 1}, {0, 0}}).GetArea(), -1 - Pi / 8, 1e-15));
    EXPECT_TRUE(Near(Outline(At(0, 0), {{1, 0, -1}, {1, 1}, {0, 1}, {0, 0}}).GetArea(), -1 + Pi / 8, 1e-15));
    EXPECT_TRUE(Near(Outline(At(0, 0), {{1, 0}, {1, 1}, {0, 1, 1}, {0, 0}}).GetArea(), -1 - Pi / 8, 1e-15));
    // A circular segment of sweep s has the area r² (s - sin s) / 2: bulge 1/2 over a chord of 2 has the radius 5/4.
    const double sweep = 4 * std::atan(0.5);
    const double segment = 1.25 * 1.25 * (sweep - std::sin(sweep)) / 2;
    EXPECT_TRUE(Near(Outline(At(0, 0), {{2, 0, 0.5}, {0, 0}}).GetArea(), -segment, 1e-15));
    EXPECT_TRUE(Near(Outline(At(0, 0), {{2, 0, -0.5}, {0, 0}}).GetArea(), segment, 1e-15));
    const double major = 4 * std::atan(2.0); // the same radius, more than half a turn
    const double greater = 1.25 * 1.25 * (major - std::sin(major)) / 2;
    EXPECT_TRUE(Near(Outline(At(0, 0), {{2, 0, 2}, {0, 0}}).GetArea(), -greater, 1e-14));
}

TEST(PolylineGetArea, ABulgeBelowTheToleranceIsStraight)
{
    // Over a chord of 1e4 an arc of this bulge still has an area of c² b / 3 = 0.033. The term is a difference of
    // numbers about 1e16, so rounding spoils it, but leaves no zero.
    const double chord = 1e4;
    const auto area = [chord](double bulge) { return Outline(At(0, 0), {{chord, 0, bulge}, {0, 0}}).GetArea(); };
    EXPECT_EQ(area(Previous(1e-9)), 0);
    EXPECT_EQ(area(-9e-10), 0);
    const double half = chord * 0.5;
    const double radius = (half / 1e-9 + half * 1e-9) * 0.5;
    const double term = -(std::atan(1e-9) * (radius * 2.0 * radius) - (radius - half * 1e-9) * half);
    ASSERT_NE(term, 0);
    EXPECT_EQ(area(1e-9), term);
    EXPECT_EQ(area(-1e-9), -term);
}

TEST(PolylineGetArea, ANodeTooNearIsSkippedAndItsPredecessorStays)
{
    // Heights of 1e9 make a step of 5e-10 visible. Up, one tiny step aside, and down: the step itself is skipped, so
    // the way down leads from the first top point: half of 1e9 times 5e-10. The last step back is skipped as well, and
    // closing over it adds nothing at height 0.
    const double top = 1e9;
    EXPECT_TRUE(Near(Outline(At(0, 0), {{0, top}, {5e-10, top}, {5e-10, 0}, {0, 0}}).GetArea(), 0.25, 1e-12));
    // A step of exactly the tolerance counts: 1e9 times 1e-9.
    EXPECT_TRUE(Near(Outline(At(0, 0), {{0, top}, {1e-9, top}, {1e-9, 0}, {0, 0}}).GetArea(), 1, 1e-12));
    // Two tiny steps are together long enough: the second is taken from where the first began.
    EXPECT_TRUE(
        Near(Outline(At(0, 0), {{0, top}, {6e-10, top}, {12e-10, top}, {12e-10, 0}, {0, 0}}).GetArea(), 1.2, 1e-12));
}

TEST(PolylineGetArea, TheClosingTermMakesUpForSkippedNodesAtTheEnd)
{
    // Begun at the top: the last step, back to the start, is skipped. Closing leads over it at full height.
    const double top = 1e9;
    EXPECT_TRUE(Near(Outline(At(0, top), {{0, 0}, {5e-10, 0}, {5e-10, top}, {0, top}}).GetArea(), 0.25 - 0.5, 1e-12));
}

TEST(PolylineGetArea, TheBulgeOfASkippedNodeIsIgnored)
{
    EXPECT_EQ(Outline(At(0, 0), {{1, 0}, {1 + 5e-10, 0, 1e12}, {1, 1}, {0, 1}, {0, 0}}).GetArea(), -1);
}

TEST(PolylineGetArea, ChangesItsSignWithTheDirectionAndNothingElse)
{
    Random random(431);
    for (int i = 0; i < 100; ++i)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(2, 9));
        const double area = outline.GetArea();
        for (std::size_t k = 0; k < outline.nodes.size(); ++k)
        {
            const CPolyline moved = BegunAt(outline, k);
            ASSERT_TRUE(Near(moved.GetArea(), area, 1e-10));
            ASSERT_TRUE(Near(TurnedRound(moved).GetArea(), -area, 1e-10));
        }
    }
}

TEST(PolylineGetArea, AgreesWithTheShoelaceFormulaOverDenseSamples)
{
    Random random(432);
    for (int i = 0; i < 50; ++i)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(2, 9));
        double twice = 0;
        double tolerance = 0;
        for (std::size_t k = 0; k < outline.nodes.size(); ++k)
        {
            const CSegment segment = outline.GetSegment(k);
            const int steps = 4000;
            for (int s = 0; s < steps; ++s)
            {
                const DPOINT2 a = segment.GetPoint(static_cast<double>(s) / steps);
                const DPOINT2 b = segment.GetPoint(static_cast<double>(s + 1) / steps);
                twice += a.x * b.y - a.y * b.x;
            }
            // Chords of an arc miss r² s³ / (12 steps²) of its area; r s is the length.
            const double sweep = 4 * std::abs(std::atan(segment.bulge));
            tolerance += segment.GetLength() * segment.GetLength() * sweep / (12.0 * steps * steps);
        }
        ASSERT_TRUE(Near(outline.GetArea(), -twice / 2, tolerance + 1e-9));
    }
}
