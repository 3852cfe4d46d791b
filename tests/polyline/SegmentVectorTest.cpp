#include "math/CSegment.h"
#include "support/Failures.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

// Unit vectors along a segment: GetMidVector, GetStartVector, GetEndVector. All look at the slot, not at the type.

namespace
{

DPOINT2 MidVector(const CSegment& segment, double t)
{
    const double before = t;
    const DPOINT2 vector = segment.GetMidVector(t);
    EXPECT_TRUE(SameBits(t, before));
    return vector;
}

template <typename Action>
testing::AssertionResult HasNoDirection(Action&& action)
{
    return Raises("Standard_ConstructionError", "gp_XY::Normalize() - vector has zero norm", action);
}

} // namespace

TEST(SegmentVector, ALineHasItsDirectionAndAtTheEndTheOppositeOne)
{
    const CSegment line(At(0, 0), At(2, 0));
    EXPECT_EQ(line.GetStartVector(), At(1, 0));
    EXPECT_EQ(MidVector(line, 0.3), At(1, 0));
    EXPECT_EQ(MidVector(line, 1), At(1, 0));
    EXPECT_EQ(line.GetEndVector(), At(-1, 0)) << "back towards the start";
    const CSegment slanted(At(1, 1), At(4, 5)); // 3, 4, 5
    EXPECT_TRUE(Near(slanted.GetStartVector(), At(0.6, 0.8), 1e-15));
    EXPECT_TRUE(Near(slanted.GetEndVector(), At(-0.6, -0.8), 1e-15));
}

TEST(SegmentVector, AnArcHasItsDirectionOfTravelThroughout)
{
    const CSegment counterclockwise(At(1, 0), At(-1, 0), 1);
    EXPECT_TRUE(Near(counterclockwise.GetStartVector(), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(MidVector(counterclockwise, 0.5), At(-1, 0), 1e-15));
    EXPECT_TRUE(Near(counterclockwise.GetEndVector(), At(0, -1), 1e-15));
    const CSegment clockwise(At(1, 0), At(-1, 0), -1);
    EXPECT_TRUE(Near(clockwise.GetStartVector(), At(0, -1), 1e-15));
    EXPECT_TRUE(Near(MidVector(clockwise, 0.5), At(-1, 0), 1e-15));
    EXPECT_TRUE(Near(clockwise.GetEndVector(), At(0, 1), 1e-15));
}

TEST(SegmentVector, TheTangentOfAnArcTurnsWithTheParameter)
{
    const CSegment arc = ArcOfAngles(At(2, -3), 5, 0.4, 2);
    for (const double t : {-0.5, 0.0, 0.25, 1.0, 1.5})
    {
        const double radian = 0.4 + 2 * t + HalfPi;
        EXPECT_TRUE(Near(MidVector(arc, t), At(std::cos(radian), std::sin(radian)), 1e-14)) << t;
    }
}

TEST(SegmentVector, AnArcOfZeroBulgeIsStraight)
{
    for (const double bulge : {0.0, 1e-10, -1e-10, Previous(1e-9)})
    {
        const CSegment arc(At(0, 0), At(2, 0), bulge);
        EXPECT_EQ(arc.GetStartVector(), At(1, 0));
        EXPECT_EQ(arc.GetEndVector(), At(-1, 0)) << "back towards the start";
    }
    // At the tolerance the tangent leans from the chord by half the sweep, 2e-9, and the end looks forward.
    const CSegment arc(At(0, 0), At(2, 0), 1e-9);
    EXPECT_TRUE(Near(arc.GetStartVector(), At(1, -2e-9), 5e-10));
    EXPECT_TRUE(Near(arc.GetEndVector(), At(1, 2e-9), 5e-10));
}

TEST(SegmentVector, ALineSetOnAFormerArcKeepsTheTangentOfTheArc)
{
    CSegment segment(At(5, 5), At(6, 6), 1);
    segment.Set(At(1, 0), At(-1, 0));
    EXPECT_TRUE(Near(segment.GetStartVector(), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(segment.GetEndVector(), At(0, -1), 1e-15)) << "forward, by the slot";
    // Between its ends the point is that of the line, half way to the centre at a quarter: (0.5, 0).
    EXPECT_TRUE(Near(MidVector(segment, 0.25), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(MidVector(segment, 0.75), At(0, -1), 1e-15));
}

TEST(SegmentVector, ABezierCurveWithoutSlotHasTheDirectionOfItsChord)
{
    const CSegment curve(At(1, 1), At(0, 7), At(9, 9), At(4, 5));
    EXPECT_TRUE(Near(MidVector(curve, 0.3), At(0.6, 0.8), 1e-15));
    EXPECT_TRUE(Near(curve.GetStartVector(), At(0.6, 0.8), 1e-15));
    EXPECT_TRUE(Near(curve.GetEndVector(), At(-0.6, -0.8), 1e-15));
}

TEST(SegmentVector, ABezierCurveWithSlotIsMeasuredFromTheCentreOfAnArc)
{
    // The slot 1 puts the centre at (0, 0). At 1/4 the weights are 27 : 27 : 9 : 1 of 64, so the point of the curve is
    // (44, 72) / 64, which a quarter turn makes (-72, 44).
    const CSegment curve(At(1, 0), At(1, 2), At(-1, 2), At(-1, 0));
    const double norm = std::hypot(72, 44);
    EXPECT_TRUE(Near(MidVector(curve, 0.25), At(-72 / norm, 44 / norm), 1e-15));
    EXPECT_TRUE(Near(MidVector(curve, 0.5), At(-1, 0), 1e-15));
    EXPECT_TRUE(Near(curve.GetEndVector(), At(0, -1), 1e-15));
    // The slot -1 has the same centre, and the vector is negated. At 1/2 the point is (-0.75, 1.5).
    const CSegment negative(At(1, 0), At(-1, 2), At(-1, 2), At(-1, 0));
    const double length = std::hypot(0.75, 1.5);
    EXPECT_TRUE(Near(MidVector(negative, 0.5), At(1.5 / length, 0.75 / length), 1e-15));
}

TEST(SegmentVector, EqualEndsWithoutSlotHaveNoDirection)
{
    double t = 0.5;
    const CSegment none;
    const CSegment line(At(3, 4), At(3, 4));
    const CSegment arc(At(3, 4), At(3, 4), 1e-10);
    for (const CSegment& segment : {none, line, arc})
    {
        EXPECT_TRUE(HasNoDirection([&] { segment.GetStartVector(); }));
        EXPECT_TRUE(HasNoDirection([&] { segment.GetMidVector(t); }));
        EXPECT_TRUE(HasNoDirection([&] { segment.GetEndVector(); }));
    }
}

TEST(SegmentVector, TheShortestLineHasADirection)
{
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 1e-150)).GetStartVector(), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(CSegment(At(0, 0), At(0, 1e-150)).GetEndVector(), At(0, -1), 1e-15));
}

TEST(SegmentVector, AnArcWithoutChordIsMeasuredFromTheOrigin)
{
    // No circle is found, so its centre stays at the origin: (3, 4) turned by a quarter.
    EXPECT_TRUE(Near(CSegment(At(3, 4), At(3, 4), 0.5).GetStartVector(), At(-0.8, 0.6), 1e-15));
    EXPECT_TRUE(Near(CSegment(At(3, 4), At(3, 4), 0.5).GetEndVector(), At(-0.8, 0.6), 1e-15));
    EXPECT_TRUE(Near(CSegment(At(3, 4), At(3, 4), -0.5).GetStartVector(), At(0.8, -0.6), 1e-15));
    EXPECT_TRUE(HasNoDirection([] { CSegment(At(0, 0), At(0, 0), 0.5).GetStartVector(); }));
    CSegment none;
    none.bulge = 0.5;
    EXPECT_TRUE(HasNoDirection([&] { none.GetEndVector(); }));
}

TEST(SegmentVector, AChordThatIsShortByCoordinatesOnlyStillHasACircle)
{
    // 1.27e-9 long: the half circle about its middle. At the start its radius points to the lower left.
    const CSegment arc(At(0, 0), At(9e-10, 9e-10), 1);
    EXPECT_TRUE(Near(arc.GetStartVector(), At(std::sqrt(0.5), -std::sqrt(0.5)), 1e-12));
}

TEST(SegmentVector, TangentsAgreeWithTheDirectionAsAnAngle)
{
    Random random(311);
    for (int i = 0; i < 2000; ++i)
    {
        const CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const double t = random.Number(0, 1);
        const double radian = segment.GetAngle(t);
        ASSERT_TRUE(Near(MidVector(segment, t), At(std::cos(radian), std::sin(radian)), 1e-12));
    }
}
