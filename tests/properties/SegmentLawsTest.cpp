#include "Motions.h"
#include "math/CSegment.h"
#include "support/Segments.h"
#include "support/Support.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of segments, numbered as in docs/segments.md: on all lines and arcs between whole points, with flat, half
// and nearly full bulges of either sign, and on random segments and Bezier curves.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

constexpr double Ratios[] = {0.0, 0.125, 0.3, 0.5, 0.75, 1.0};

CSegment LineOrArc(const DPOINT2& start, const DPOINT2& end, double bulge)
{
    return bulge == 0 ? CSegment(start, end) : CSegment(start, end, bulge);
}

std::vector<CSegment> GridSegments()
{
    std::vector<CSegment> segments;
    for (int x = -2; x <= 2; ++x)
    {
        for (int y = -2; y <= 2; ++y)
        {
            for (const double bulge : {0.0, 1e-3, 0.25, 0.5, 1.0, 2.0, 10.0})
            {
                if (x != 0 || y != 0)
                {
                    segments.push_back(LineOrArc(At(1, -1), At(1 + x, -1 + y), bulge));
                    segments.push_back(LineOrArc(At(1, -1), At(1 + x, -1 + y), -bulge));
                }
            }
        }
    }
    Random random(3);
    for (int round = 0; round < 300; ++round)
    {
        segments.push_back(RandomLine(random));
        segments.push_back(RandomArcSegment(random));
    }
    return segments;
}

double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

double SizeOf(const CSegment& segment)
{
    return std::max(
        {std::abs(segment.start.x), std::abs(segment.start.y), std::abs(segment.end.x), std::abs(segment.end.y), 1.0});
}

/// A few roundings of the coordinates and of the radius, which an arc's points carry; of the radius squared over the
/// chord where a sweep comes near a full turn.
double RoundingOf(const CSegment& segment)
{
    if (segment.bulge == 0)
    {
        return 16 * Unit * SizeOf(segment);
    }
    const double bulge = std::abs(segment.bulge);
    const double chord = Distance(segment.start, segment.end);
    const double radius = chord / 4 * (bulge + 1 / bulge);
    return 64 * Unit * (SizeOf(segment) + radius * (1 + bulge));
}

bool Holds(const DRECT& box, const DPOINT2& point, double tolerance)
{
    return point.x >= box.x - tolerance && point.x <= box.x + box.width + tolerance && point.y >= box.y - tolerance &&
           point.y <= box.y + box.height + tolerance;
}

bool SameBox(const DRECT& a, const DRECT& b, double tolerance)
{
    return Near(a.x, b.x, tolerance) && Near(a.y, b.y, tolerance) && Near(a.width, b.width, 2 * tolerance) &&
           Near(a.height, b.height, 2 * tolerance);
}

CSegment Reversed(CSegment segment)
{
    segment.ReverseDir();
    return segment;
}

CSegment Moved(const CSegment& segment, const Motion& motion)
{
    return LineOrArc(motion(segment.start), motion(segment.end), motion.Sweep(segment.bulge));
}

std::vector<ControlPolygon> GridPolygons()
{
    std::vector<ControlPolygon> polygons;
    const std::array<DPOINT2, 4> places = {At(0, 0), At(3, 0), At(0, 2), At(-1, 1)};
    for (const DPOINT2& first : places)
    {
        for (const DPOINT2& second : places)
        {
            for (const DPOINT2& last : places)
            {
                polygons.push_back({{At(0, 0), first, second, last}});
            }
        }
    }
    Random random(4);
    for (int round = 0; round < 30; ++round)
    {
        polygons.push_back(RandomControlPolygon(random));
    }
    return polygons;
}

/// A bound of the second derivative: 6 times the greatest second difference of the control points.
double BendOf(const ControlPolygon& polygon)
{
    const auto& p = polygon.points;
    return 6 * std::max(std::hypot(p[0].x - 2 * p[1].x + p[2].x, p[0].y - 2 * p[1].y + p[2].y),
                        std::hypot(p[1].x - 2 * p[2].x + p[3].x, p[1].y - 2 * p[2].y + p[3].y));
}

double Speed(const ControlPolygon& polygon, double t)
{
    const DPOINT2 derivative = BezierDerivativeAt(polygon.points, t);
    return std::hypot(derivative.x, derivative.y);
}

} // namespace

TEST(SegmentLaws, S1_ASegmentRunsFromItsStartToItsEnd)
{
    for (const CSegment& segment : GridSegments())
    {
        ASSERT_TRUE(Near(segment.GetPoint(0), segment.start, segment.bulge == 0 ? 0 : RoundingOf(segment)));
        ASSERT_TRUE(Near(segment.GetPoint(1), segment.end, segment.bulge == 0 ? 0 : RoundingOf(segment)));
    }
    for (const ControlPolygon& polygon : GridPolygons())
    {
        ASSERT_EQ(polygon.Segment().GetPoint(0), polygon.points[0]);
        ASSERT_TRUE(Near(polygon.Segment().GetPoint(1), polygon.points[3], 64 * Unit * 8));
    }
}

TEST(SegmentLaws, S2_TurnedRoundTwiceIsTheSegmentBitForBit)
{
    for (const CSegment& segment : GridSegments())
    {
        ASSERT_TRUE(SameFields(Reversed(Reversed(segment)), segment));
    }
    for (const ControlPolygon& polygon : GridPolygons())
    {
        ASSERT_TRUE(SameFields(Reversed(Reversed(polygon.Segment())), polygon.Segment()));
    }
}

TEST(SegmentLaws, S3_TurnedRoundASegmentIsTheSameCurveTheOtherWay)
{
    for (const CSegment& segment : GridSegments())
    {
        const CSegment reversed = Reversed(segment);
        ASSERT_EQ(reversed.GetLength(), segment.GetLength());
        ASSERT_TRUE(SameBox(reversed.GetBoundRect(), segment.GetBoundRect(), 2 * RoundingOf(segment)));
        for (const double t : Ratios)
        {
            ASSERT_TRUE(Near(reversed.GetPoint(t), segment.GetPoint(1 - t), 2 * RoundingOf(segment))) << t;
            ASSERT_TRUE(NearDirection(reversed.GetAngle(t), segment.GetAngle(1 - t) + Pi, TwoPi, 1e-12)) << t;
        }
    }
}

TEST(SegmentLaws, S4_ThePiecesOfASegmentRunAlongIt)
{
    for (CSegment segment : GridSegments())
    {
        const double rounding = 4 * RoundingOf(segment);
        for (const double cut : {0.125, 0.3, 0.5, 0.75})
        {
            const CSegment first = segment.GetSplitSegment(cut, true);
            const CSegment last = segment.GetSplitSegment(cut, false);
            ASSERT_EQ(first.start, segment.start);
            ASSERT_EQ(first.end, last.start);
            ASSERT_EQ(last.end, segment.end);
            for (const double t : Ratios)
            {
                ASSERT_TRUE(Near(first.GetPoint(t), segment.GetPoint(cut * t), rounding))
                    << segment.bulge << " " << cut;
                ASSERT_TRUE(Near(last.GetPoint(t), segment.GetPoint(cut + (1 - cut) * t), rounding))
                    << segment.bulge << " " << cut;
            }
        }
        for (const double from : Ratios)
        {
            for (const double to : Ratios)
            {
                const CSegment piece = segment.GetSplitSegment(from, to);
                for (const double t : Ratios)
                {
                    ASSERT_TRUE(Near(piece.GetPoint(t), segment.GetPoint(from + (to - from) * t), rounding))
                        << segment.bulge << " " << from << " " << to;
                }
            }
        }
    }
}

TEST(SegmentLaws, S5_ThePiecesOfABezierCurveEndOnItAndAreNoBezierCurves)
{
    for (const ControlPolygon& polygon : GridPolygons())
    {
        CSegment segment = polygon.Segment();
        for (const double cut : {0.125, 0.5, 0.75})
        {
            for (const CSegment& piece : {segment.GetSplitSegment(cut, true), segment.GetSplitSegment(cut, false),
                                          segment.GetSplitSegment(0.0, cut), segment.GetSplitSegment(cut, 1.0)})
            {
                ASSERT_EQ(piece.type, segment.bulge == 0 ? SegmentLine : SegmentArc);
            }
            const CSegment first = segment.GetSplitSegment(0.0, cut);
            ASSERT_EQ(first.start, segment.start);
            ASSERT_TRUE(Near(first.end, BezierAt(polygon.points, cut), 64 * Unit * 8));
        }
    }
}

TEST(SegmentLaws, S6_LengthAddsUpOverPieces)
{
    for (CSegment segment : GridSegments())
    {
        const double whole = segment.GetLength();
        const double rounding = 8 * RoundingOf(segment);
        ASSERT_GE(whole, Distance(segment.start, segment.end) - rounding);
        for (const double cut : Ratios)
        {
            const double first = segment.GetSplitSegment(cut, true).GetLength();
            const double last = segment.GetSplitSegment(cut, false).GetLength();
            ASSERT_TRUE(Near(first + last, whole, rounding)) << segment.bulge << " " << cut;
            ASSERT_TRUE(Near(first, whole * cut, rounding)) << segment.bulge << " " << cut;
        }
    }
}

TEST(SegmentLaws, S7_TheBoxHoldsTheSegmentAndTouchesItOnEverySide)
{
    constexpr int samples = 1000;
    for (const CSegment& segment : GridSegments())
    {
        const DRECT box = segment.GetBoundRect();
        const double rounding = 2 * RoundingOf(segment);
        DPOINT2 low = segment.start;
        DPOINT2 high = segment.start;
        for (int sample = 0; sample <= samples; ++sample)
        {
            const DPOINT2 point = segment.GetPoint(static_cast<double>(sample) / samples);
            ASSERT_TRUE(Holds(box, point, rounding)) << segment.bulge;
            low = {std::min(low.x, point.x), std::min(low.y, point.y)};
            high = {std::max(high.x, point.x), std::max(high.y, point.y)};
        }
        // Beside an extreme the samples fall short by half a step squared over twice the radius.
        const double step = segment.GetLength() / samples / 2;
        const double radius = std::max(Distance(segment.start, segment.end) / 2, 1e-3);
        ASSERT_TRUE(SameBox(box, {low.x, low.y, high.x - low.x, high.y - low.y}, step * step / radius + rounding));
    }
}

TEST(SegmentLaws, S8_TheBoxOfABezierCurveFallsShortByNoMoreThanBetweenTwoSamples)
{
    for (const ControlPolygon& polygon : GridPolygons())
    {
        const DRECT box = polygon.Segment().GetBoundRect();
        // Between samples a thousandth apart the curve leaves their chord by an eighth of a millionth of the bend.
        const double bend = BendOf(polygon);
        for (int sample = 0; sample <= 2500; ++sample)
        {
            const DPOINT2 point = BezierAt(polygon.points, sample / 2500.0);
            ASSERT_TRUE(Holds(box, point, 1e-6 / 8 * bend + 64 * Unit * 8));
        }
    }
}

TEST(SegmentLaws, S9_TheNearestPointIsOnTheSegmentAndNoSampleIsNearerExceptFromTheCentreOfAnArc)
{
    constexpr int samples = 100;
    int fromCentres = 0;
    for (const CSegment& segment : GridSegments())
    {
        const double rounding = 4 * RoundingOf(segment);
        std::vector<DPOINT2> onSegment;
        for (int sample = 0; sample <= samples; ++sample)
        {
            onSegment.push_back(segment.GetPoint(static_cast<double>(sample) / samples));
        }
        std::vector<DPOINT2> places;
        for (int x = -3; x <= 5; ++x)
        {
            for (int y = -5; y <= 3; ++y)
            {
                places.push_back(At(x, y));
            }
        }
        places.push_back(segment.start);
        places.push_back(segment.end);
        if (segment.bulge != 0)
        {
            places.push_back(CentreOfArc(segment.start, segment.end, segment.bulge));
        }
        for (const DPOINT2& place : places)
        {
            double t = UntouchedNumber();
            const DPOINT2 nearest = segment.GetNearestPoint(place, t);
            ASSERT_TRUE(t >= 0 && t <= 1);
            double least = Infinity;
            for (const DPOINT2& point : onSegment)
            {
                least = std::min(least, Distance(place, point));
            }
            ASSERT_LE(Distance(place, nearest), least + rounding) << segment.bulge;
            const bool isCentre =
                segment.bulge != 0 &&
                Near(place, CentreOfArc(segment.start, segment.end, segment.bulge), 1e-12 / std::abs(segment.bulge));
            fromCentres += isCentre ? 1 : 0;
            if (isCentre)
            {
                // Any point of the arc is as near. The centre of a half circle between whole points has no rounding.
                const bool isHalf = std::abs(segment.bulge) == 1;
                ASSERT_TRUE(!isHalf || nearest == segment.start || nearest == segment.end);
                continue;
            }
            ASSERT_TRUE(Near(segment.GetPoint(t), nearest, 16 * rounding)) << segment.bulge << " " << t;
        }
    }
    EXPECT_GT(fromCentres, 0);
}

TEST(SegmentLaws, S10_VectorsAreUnitTangentsAndAStraightEndVectorPointsBack)
{
    for (const CSegment& segment : GridSegments())
    {
        const double tolerance = segment.bulge == 0 ? 1e-14 : 1e-10;
        for (double t : Ratios)
        {
            const DPOINT2 vector = segment.GetMidVector(t);
            ASSERT_TRUE(Near(std::hypot(vector.x, vector.y), 1, 4 * Unit));
            ASSERT_TRUE(NearDirection(std::atan2(vector.y, vector.x), segment.GetAngle(t), TwoPi, tolerance));
        }
        double whole = 1;
        const DPOINT2 ahead = segment.GetMidVector(whole);
        const DPOINT2 atEnd = segment.GetEndVector();
        const bool pointsBack = segment.bulge == 0;
        ASSERT_EQ(atEnd, pointsBack ? At(-ahead.x, -ahead.y) : ahead);
        double none = 0;
        ASSERT_EQ(segment.GetStartVector(), segment.GetMidVector(none));
    }
}

TEST(SegmentLaws, S11_MovingTurningAndMirroringASegmentMovesAllAnswers)
{
    for (const CSegment& segment : GridSegments())
    {
        const double rounding = 8 * RoundingOf(segment) + 64 * Unit * 8;
        for (const Motion& motion : AllMotions())
        {
            const CSegment moved = Moved(segment, motion);
            ASSERT_TRUE(Near(moved.GetLength(), segment.GetLength(), rounding));
            for (const double t : {0.0, 0.3, 1.0})
            {
                ASSERT_TRUE(Near(moved.GetPoint(t), motion(segment.GetPoint(t)), rounding));
                ASSERT_TRUE(NearDirection(moved.GetAngle(t), motion.Direction(segment.GetAngle(t)), TwoPi, 1e-12));
            }
            for (const DPOINT2& place : {At(0.25, 3), At(4, -1.5)})
            {
                double t = 0;
                double movedT = 0;
                const DPOINT2 nearest = segment.GetNearestPoint(place, t);
                const DPOINT2 movedNearest = moved.GetNearestPoint(motion(place), movedT);
                ASSERT_TRUE(Near(Distance(movedNearest, motion(place)), Distance(nearest, place), rounding));
            }
        }
    }
}

TEST(SegmentLaws, S12_ABezierCurveWalkedTheOtherWayIsAsLongButForTheSampleThatTheLeftHandRuleLeavesOut)
{
    for (const ControlPolygon& polygon : GridPolygons())
    {
        const auto& p = polygon.points;
        const ControlPolygon turned{{p[3], p[2], p[1], p[0]}};
        const double difference = polygon.Segment().GetLength() - turned.Segment().GetLength();
        // Both take the thousand samples of a left-hand rule; one has the speed at 0, the other that at 1.
        ASSERT_TRUE(Near(difference, (Speed(polygon, 0) - Speed(polygon, 1)) / 1000, 1e-9));
        double sum = 0;
        for (int sample = 0; sample < 1000; ++sample)
        {
            sum += Distance(BezierAt(p, sample / 1000.0), BezierAt(p, (sample + 1) / 1000.0));
        }
        const double bend = BendOf(polygon);
        const double middle = (polygon.Segment().GetLength() + turned.Segment().GetLength()) / 2;
        // The mean of the left-hand and the right-hand rule is the trapezoid rule: off by an eighth of the step squared
        // times what the slope of the speed changes, which is at most the bend, and twice that around a cusp.
        ASSERT_TRUE(Near(middle, sum, 1e-6 * bend)) << bend;
    }
}
