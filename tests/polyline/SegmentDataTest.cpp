#include "math/CSegment.h"
#include "support/Segments.h"

#include <cstddef>
#include <type_traits>

using namespace math;
using namespace math::test;

namespace
{

/// A segment whose every word is different, to see which of them a call writes.
CSegment Full()
{
    return {At(1, 2), At(3, 4), At(5, 6), At(7, 8)};
}

} // namespace

TEST(SegmentData, KindsHaveTheirNumbers)
{
    EXPECT_EQ(SegmentNone, 0);
    EXPECT_EQ(SegmentLine, 1);
    EXPECT_EQ(SegmentArc, 2);
    EXPECT_EQ(SegmentBezier, 3);
}

TEST(SegmentData, FieldsFollowEachOtherWithTheBulgeOnTheFirstControlPoint)
{
    EXPECT_EQ(offsetof(CSegment, type), 0U);
    EXPECT_EQ(offsetof(CSegment, start), 8U);
    EXPECT_EQ(offsetof(CSegment, end), 24U);
    EXPECT_EQ(offsetof(CSegment, bulge), 40U);
    EXPECT_EQ(offsetof(CSegment, ctrl1), 40U);
    EXPECT_EQ(offsetof(CSegment, ctrl2), 56U);
    EXPECT_EQ(sizeof(CSegment), 72U);
    EXPECT_TRUE(std::is_trivially_copyable_v<CSegment>);
    EXPECT_FALSE(std::is_polymorphic_v<CSegment>);
    CSegment segment = Full();
    EXPECT_EQ(segment.bulge, 3);
    segment.bulge = 11;
    EXPECT_EQ(segment.ctrl1, At(11, 4));
}

TEST(SegmentData, ConstructorsZeroWhatTheirKindDoesNotUse)
{
    EXPECT_TRUE(IsLineOrArc(CSegment(), SegmentNone, At(0, 0), At(0, 0), 0));
    EXPECT_TRUE(IsLineOrArc(CSegment(At(1, 2), At(3, 4)), SegmentLine, At(1, 2), At(3, 4), 0));
    EXPECT_TRUE(IsLineOrArc(CSegment(At(1, 2), At(3, 4), 0.5), SegmentArc, At(1, 2), At(3, 4), 0.5));
    EXPECT_TRUE(IsLineOrArc(CSegment(At(1, 2), At(3, 4), 0), SegmentArc, At(1, 2), At(3, 4), 0)) << "stays an arc";
}

TEST(SegmentData, ABezierCurveTakesItsEndsOutermost)
{
    const CSegment segment = Full();
    EXPECT_EQ(segment.type, SegmentBezier);
    EXPECT_EQ(segment.start, At(1, 2));
    EXPECT_EQ(segment.ctrl1, At(3, 4));
    EXPECT_EQ(segment.ctrl2, At(5, 6));
    EXPECT_EQ(segment.end, At(7, 8));
}

TEST(SegmentData, ACopyHasAllFields)
{
    const CSegment original = Full();
    const CSegment copy = original;
    EXPECT_TRUE(SameFields(copy, original));
    CSegment assigned;
    assigned = original;
    EXPECT_TRUE(SameFields(assigned, original));
}

TEST(SegmentData, SetToALineLeavesTheSlotAndTheControlPoints)
{
    CSegment segment = Full();
    segment.Set(At(-1, -2), At(-3, -4));
    EXPECT_EQ(segment.type, SegmentLine);
    EXPECT_EQ(segment.start, At(-1, -2));
    EXPECT_EQ(segment.end, At(-3, -4));
    EXPECT_EQ(segment.ctrl1, At(3, 4));
    EXPECT_EQ(segment.ctrl2, At(5, 6));
}

TEST(SegmentData, SetToAnArcLeavesTheRestOfTheControlPoints)
{
    CSegment segment = Full();
    segment.Set(At(-1, -2), At(-3, -4), 0.25);
    EXPECT_EQ(segment.type, SegmentArc);
    EXPECT_EQ(segment.start, At(-1, -2));
    EXPECT_EQ(segment.end, At(-3, -4));
    EXPECT_EQ(segment.bulge, 0.25);
    EXPECT_EQ(segment.ctrl1, At(0.25, 4));
    EXPECT_EQ(segment.ctrl2, At(5, 6));
}

TEST(SegmentData, SetToABezierCurveWritesAllPoints)
{
    CSegment segment;
    segment.Set(At(1, 2), At(3, 4), At(5, 6), At(7, 8));
    EXPECT_TRUE(SameFields(segment, Full()));
}

TEST(SegmentData, SetMayTakeThePointsOfTheSegmentItself)
{
    CSegment line(At(1, 2), At(3, 4));
    line.Set(line.end, line.start);
    EXPECT_TRUE(IsLineOrArc(line, SegmentLine, At(3, 4), At(1, 2), 0));

    CSegment arc(At(1, 2), At(3, 4), 0.5);
    arc.Set(arc.end, arc.start, -arc.bulge);
    EXPECT_TRUE(IsLineOrArc(arc, SegmentArc, At(3, 4), At(1, 2), -0.5));

    CSegment fromControls = Full();
    fromControls.Set(fromControls.ctrl2, fromControls.ctrl1, 0.5);
    EXPECT_EQ(fromControls.start, At(5, 6));
    EXPECT_EQ(fromControls.end, At(3, 4));
    EXPECT_EQ(fromControls.bulge, 0.5);

    CSegment curve = Full();
    curve.Set(curve.end, curve.ctrl2, curve.ctrl1, curve.start);
    EXPECT_TRUE(SameFields(curve, CSegment(At(7, 8), At(5, 6), At(3, 4), At(1, 2))));
    curve = Full();
    curve.Set(curve.ctrl1, curve.start, curve.end, curve.ctrl2);
    EXPECT_TRUE(SameFields(curve, CSegment(At(3, 4), At(1, 2), At(7, 8), At(5, 6))));
}
