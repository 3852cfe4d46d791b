#include "math/CSegment.h"
#include "support/Segments.h"

#include <tuple>

using namespace math;
using namespace math::test;

namespace
{

struct Nearest
{
    DPOINT2 point;
    double t;
};

Nearest NearestOn(const CSegment& segment, const DPOINT2& p)
{
    Nearest nearest{Untouched(), UntouchedNumber()};
    nearest.point = segment.GetNearestPoint(p, nearest.t);
    return nearest;
}

testing::AssertionResult Is(const Nearest& nearest, const DPOINT2& point, double t, double tolerance = 0)
{
    if (Near(nearest.point, point, tolerance) && Near(nearest.t, t, tolerance))
    {
        return testing::AssertionSuccess();
    }
    return testing::AssertionFailure() << testing::PrintToString(nearest.point) << " at " << Digits(nearest.t)
                                       << " instead of " << testing::PrintToString(point) << " at " << Digits(t);
}

const DPOINT2 centre = {2, -1};
constexpr double radius = 1.5;

CSegment Turning(double from, double sweep)
{
    return ArcOfAngles(centre, radius, from, sweep);
}

/// The point in a direction from the centre, at a distance in radii.
DPOINT2 Towards(double radian, double radii)
{
    return {centre.x + radii * radius * std::cos(radian), centre.y + radii * radius * std::sin(radian)};
}

/// One of each way in which an arc can lie about the direction 0: with or over it, in both directions of travel.
struct Turn
{
    const char* name;
    double from;
    double sweep;
};

const Turn turns[] = {
    {"counter-clockwise", 1, 1.5},
    {"clockwise", 2.5, -1.5},
    {"counter-clockwise over 0", 5, 2.5},
    {"clockwise over 0", 1, -2.5},
    {"counter-clockwise, more than half", 0.5, 5},
    {"clockwise, more than half", 5.5, -5},
    {"counter-clockwise over 0, more than half", 3, 5.5},
    {"clockwise over 0, more than half", 3, -5.5},
};

const CSegment upperHalf(At(1, 0), At(-1, 0), 1);

} // namespace

// Straight segments

TEST(SegmentGetNearestPoint, ALineGivesTheFootOfThePerpendicular)
{
    const CSegment line(At(0, 0), At(2, 0));
    EXPECT_TRUE(Is(NearestOn(line, At(1, 5)), At(1, 0), 0.5));
    EXPECT_TRUE(Is(NearestOn(line, At(0.5, -3)), At(0.5, 0), 0.25));
    EXPECT_TRUE(Is(NearestOn(line, At(0, 7)), At(0, 0), 0));
    EXPECT_TRUE(Is(NearestOn(line, At(2, 7)), At(2, 0), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(1, 1), At(5, 9)), At(9, 2)), At(3, 5), 0.5)); // (8 · 4 + 1 · 8) / (4² + 8²)
}

TEST(SegmentGetNearestPoint, ALineGivesItsEndsToPointsBeyondThem)
{
    const CSegment line(At(0, 0), At(2, 0));
    EXPECT_TRUE(Is(NearestOn(line, At(-3, 1)), At(0, 0), 0));
    EXPECT_TRUE(Is(NearestOn(line, At(9, 0)), At(2, 0), 1));
    const CSegment slanted(At(1, 2), At(4, 6));
    EXPECT_TRUE(Is(NearestOn(slanted, At(-5, 2)), At(1, 2), 0));
    EXPECT_TRUE(Is(NearestOn(slanted, At(4, 11)), At(4, 6), 1));
}

TEST(SegmentGetNearestPoint, TheEndsOfALineThatRoundingMakesEquallyFarGiveTheEnd)
{
    const CSegment line(At(0, 0), At(2, 0));
    EXPECT_TRUE(Is(NearestOn(line, At(1e20, 0)), At(2, 0), 1));
    EXPECT_TRUE(Is(NearestOn(line, At(-1e20, 0)), At(2, 0), 1)) << "the squares of both distances are 1e40";
}

TEST(SegmentGetNearestPoint, TheParameterOfTheStartIsAPositiveZero)
{
    // Both products of the projection are -0.
    const Nearest nearest = NearestOn(CSegment(At(0, 0), At(-2, -3)), At(0, 0));
    EXPECT_TRUE(SameBits(nearest.t, 0.0));
    EXPECT_EQ(nearest.point, At(0, 0));
}

TEST(SegmentGetNearestPoint, OppositeAnEndOfALineRoundingDoesNotLeaveTheSegment)
{
    // The foot falls on the end; its ratio comes out as 1 and a rounding unit now and then, which is cut to 1.
    Random random(344);
    for (int i = 0; i < 5000; ++i)
    {
        const CSegment line = RandomLine(random);
        const double aside = random.Number(-20, 20);
        const DPOINT2 p =
            At(line.end.x - aside * (line.end.y - line.start.y), line.end.y + aside * (line.end.x - line.start.x));
        const Nearest nearest = NearestOn(line, p);
        ASSERT_LE(nearest.t, 1);
        ASSERT_TRUE(Is(nearest, line.end, 1, 1e-12));
    }
}

TEST(SegmentGetNearestPoint, ALineOfNoLengthGivesItsEnd)
{
    EXPECT_TRUE(Is(NearestOn(CSegment(At(1, 1), At(1, 1)), At(5, 5)), At(1, 1), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(1, 1), At(1, 1)), At(1, 1)), At(1, 1), 1));
}

TEST(SegmentGetNearestPoint, ASlotOfZeroIsStraightWhateverTheType)
{
    for (const double bulge : {0.0, 1e-10, -1e-10, Previous(1e-9)})
    {
        EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 0), At(2, 0), bulge), At(1, 5)), At(1, 0), 0.5)) << bulge;
        // Beyond the far centre of so flat an arc there would be no foot on it.
        EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 0), At(2, 0), bulge), At(1, 1e10)), At(1, 0), 0.5)) << bulge;
    }
    EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 0), At(2, 0), 1e-9), At(1, 1e10)), At(2, 0), 1)) << "an arc";
    EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 0), At(0, 7), At(9, 9), At(2, 0)), At(1, 5)), At(1, 0), 0.5))
        << "a Bezier curve without slot";
    CSegment none;
    EXPECT_TRUE(Is(NearestOn(none, At(1, 5)), At(0, 0), 1));
}

TEST(SegmentGetNearestPoint, APointThatIsNoneGivesTheEndOfALineAndTheStartOfAnArc)
{
    for (const DPOINT2& none : {At(InvalidDouble, 0), At(0, InvalidDouble)})
    {
        // Its ratio along a line is NaN, which is clamped to 1; the end is start + 1 * (end - start).
        EXPECT_TRUE(Is(NearestOn(CSegment(At(1, 2), At(3, 4)), none), At(3, 4), 1));
        // It lies in no sector, and the distance to the end is not the smaller one.
        EXPECT_TRUE(Is(NearestOn(upperHalf, none), At(1, 0), 0));
    }
}

// Arcs

TEST(SegmentGetNearestPoint, AHalfCircleGivesTheFootOfTheRadius)
{
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, 5)), At(0, 1), 0.5, 1e-15));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, 0.1)), At(0, 1), 0.5, 1e-15)) << "from inside";
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(2, -1)), At(1, 0), 0));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(-2, -1)), At(-1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, -5)), At(-1, 0), 1)) << "equally far from both ends: the end";
    const CSegment lowerHalf(At(1, 0), At(-1, 0), -1);
    EXPECT_TRUE(Is(NearestOn(lowerHalf, At(0, -5)), At(0, -1), 0.5, 1e-15));
    EXPECT_TRUE(Is(NearestOn(lowerHalf, At(2, 1)), At(1, 0), 0));
    EXPECT_TRUE(Is(NearestOn(lowerHalf, At(0, 5)), At(-1, 0), 1)) << "equally far from both ends: the end";
}

TEST(SegmentGetNearestPoint, TheRatioRunsEvenlyFromStartToEnd)
{
    for (const Turn& turn : turns)
    {
        const CSegment arc = Turning(turn.from, turn.sweep);
        for (const double t : {0.05, 0.25, 0.5, 0.6, 0.75, 0.95})
        {
            const double radian = turn.from + turn.sweep * t;
            for (const double radii : {0.1, 0.9, 1.0, 3.0})
            {
                EXPECT_TRUE(Is(NearestOn(arc, Towards(radian, radii)), Towards(radian, 1), t, 1e-13))
                    << turn.name << " at " << t << ", " << radii << " radii out";
            }
        }
    }
}

TEST(SegmentGetNearestPoint, TheDirectionZeroItselfIsPassedWithoutAJump)
{
    for (const double sweep : {2.0, -2.0})
    {
        const CSegment arc = ArcOfAngles(At(0, 0), 1, -sweep / 4, sweep);
        EXPECT_TRUE(Is(NearestOn(arc, At(3, 0)), At(1, 0), 0.25, 1e-13)) << sweep;
        EXPECT_TRUE(Is(NearestOn(arc, At(3, 1e-12)), At(1, 0), 0.25, 1e-11)) << sweep;
        EXPECT_TRUE(Is(NearestOn(arc, At(3, -1e-12)), At(1, 0), 0.25, 1e-11)) << sweep;
    }
}

TEST(SegmentGetNearestPoint, OutsideTheSectorTheNearerEndIsGiven)
{
    for (const Turn& turn : turns)
    {
        const CSegment arc = Turning(turn.from, turn.sweep);
        const double sign = turn.sweep > 0 ? 1 : -1;
        const double gap = TwoPi - std::abs(turn.sweep);
        EXPECT_TRUE(Is(NearestOn(arc, Towards(turn.from - sign * gap * 0.3, 2)), arc.start, 0)) << turn.name;
        EXPECT_TRUE(Is(NearestOn(arc, Towards(turn.from - sign * gap * 0.7, 2)), arc.end, 1)) << turn.name;
        EXPECT_TRUE(Is(NearestOn(arc, Towards(turn.from - sign * 2e-9, 2)), arc.start, 0)) << turn.name;
        EXPECT_TRUE(Is(NearestOn(arc, Towards(turn.from + turn.sweep + sign * 2e-9, 2)), arc.end, 1)) << turn.name;
    }
}

TEST(SegmentGetNearestPoint, WithinTheToleranceOfTheSectorTheRatioSnapsAndThePointDoesNot)
{
    for (const Turn& turn : turns)
    {
        const CSegment arc = Turning(turn.from, turn.sweep);
        const double sign = turn.sweep > 0 ? 1 : -1;
        for (const double radii : {0.2, 1.0, 5.0})
        {
            const double before = turn.from - sign * 5e-10;
            const Nearest atStart = NearestOn(arc, Towards(before, radii));
            EXPECT_EQ(atStart.t, 0) << turn.name;
            EXPECT_TRUE(Near(atStart.point, Towards(before, 1), 1e-13)) << turn.name;
            const double beyond = turn.from + turn.sweep + sign * 5e-10;
            const Nearest atEnd = NearestOn(arc, Towards(beyond, radii));
            EXPECT_EQ(atEnd.t, 1) << turn.name;
            EXPECT_TRUE(Near(atEnd.point, Towards(beyond, 1), 1e-13)) << turn.name;
        }
    }
}

TEST(SegmentGetNearestPoint, SnappingReachesOverTheDirectionZero)
{
    // Each arc has an end just before or after 0, and the query lies on the other side of 0, out of the sector.
    struct
    {
        double from;
        double sweep;
        double query;
        double t;
    } const rows[] = {
        {1e-10, 2, -3e-10, 0},
        {-2e-10, -2, 3e-10, 0},
        {-2, 2 - 1e-10, 3e-10, 1},
        {2, -2 + 1e-10, -3e-10, 1},
        {1e-10, 6, -3e-10, 0},
        {-1e-10, -6, 3e-10, 0},
        {-6, 6 - 1e-10, 3e-10, 1},
        {6, -6 + 1e-10, -3e-10, 1},
        {1, TwoPi - 1 - 2e-10, 3e-10, 1},
        {TwoPi - 1, -TwoPi + 1 + 2e-10, -3e-10, 1},
    };
    for (const auto& row : rows)
    {
        const CSegment arc = Turning(row.from, row.sweep);
        EXPECT_EQ(NearestOn(arc, Towards(row.query, 2)).t, row.t) << row.from << " over " << row.sweep;
    }
}

TEST(SegmentGetNearestPoint, StraightBeyondTheStartLiesInNoGapHoweverFar)
{
    // So far out that the distances to both ends round to one; the direction is that of the start to the last bit, since
    // a power of two times the way from the centre to the start has it.
    for (const auto& [start, end, bulge] :
         {std::tuple(At(4, 0), At(0, 4), 0.5), std::tuple(At(4, 1), At(-4, 3), 0.75),
          std::tuple(At(0, 4), At(4, 0), -0.5), std::tuple(At(-4, 3), At(4, 1), -0.75)})
    {
        DPOINT2 arcCentre;
        double arcRadius = 0;
        double startRadian = 0;
        double sweep = 0;
        ASSERT_TRUE(SolveArc(start, end, bulge, &arcCentre, &arcRadius, &startRadian, &sweep));
        const DPOINT2 far = {0x1p80 * (start.x - arcCentre.x), 0x1p80 * (start.y - arcCentre.y)};
        ASSERT_EQ(D2GetDistance(far, start), D2GetDistance(far, end));
        ASSERT_EQ(ComputeAngle(far.x - arcCentre.x, far.y - arcCentre.y),
                  ComputeAngle(start.x - arcCentre.x, start.y - arcCentre.y));
        const Nearest nearest = NearestOn(CSegment(start, end, bulge), far);
        EXPECT_EQ(nearest.t, 0.0);
        EXPECT_TRUE(Near(nearest.point, start, 1e-14));
    }
}

TEST(SegmentGetNearestPoint, InAGapNarrowerThanTheToleranceTheNearerEndDecides)
{
    // All but 8e-10 of a turn, with the gap about the direction 0 and about π. Where the ends are equally near, an arc
    // that does not pass over 0 gives the end, one that does gives the start.
    const double half = 4e-10;
    const double bulge = 1 / std::tan(half / 2); // of a sweep of 2π - 2 half
    const double far = 100;
    const double x = far * std::cos(half);
    const double y = far * std::sin(half);
    struct
    {
        const char* name;
        CSegment arc;
        double side; ///< of the start, as seen along y
        double gap;  ///< side of the gap along x
        double tie;
    } const rows[] = {
        {"counter-clockwise", CSegment(At(x, y), At(x, -y), bulge), 1, 1, 1},
        {"clockwise", CSegment(At(x, -y), At(x, y), -bulge), -1, 1, 1},
        {"counter-clockwise over 0", CSegment(At(-x, -y), At(-x, y), bulge), -1, -1, 0},
        {"clockwise over 0", CSegment(At(-x, y), At(-x, -y), -bulge), 1, -1, 0},
    };
    for (const auto& row : rows)
    {
        EXPECT_EQ(NearestOn(row.arc, At(row.gap * far, 0)).t, row.tie) << row.name;
        EXPECT_EQ(NearestOn(row.arc, At(row.gap * far, row.side * 2e-8)).t, 0) << row.name;
        EXPECT_EQ(NearestOn(row.arc, At(row.gap * far, row.side * -2e-8)).t, 1) << row.name;
    }
}

TEST(SegmentGetNearestPoint, EndsInOneDirectionAreAWholeTurnApartCounterclockwise)
{
    // A bulge so great that the sweep is 2π in doubles. The circle lies on the right of the short chord, and both ends
    // lie to the left of its centre, in the direction π.
    const DPOINT2 start = At(0, 0);
    const DPOINT2 end = At(0, 1e-6);
    DPOINT2 middle;
    double wide = 0;
    ASSERT_TRUE(SolveArc(start, end, 1e17, &middle, &wide, nullptr, nullptr));
    ASSERT_EQ(ComputeAngle(start.x - middle.x, start.y - middle.y), Pi);
    ASSERT_EQ(ComputeAngle(end.x - middle.x, end.y - middle.y), Pi);
    const DPOINT2 above = At(middle.x, middle.y + 2 * wide);
    EXPECT_TRUE(Near(NearestOn(CSegment(start, end, 1e17), above).t, 0.75, 1e-12)) << "from π over 0 to π/2";
    EXPECT_EQ(NearestOn(CSegment(end, start, -1e17), above).t, 1) << "clockwise they leave no way between them";
}

TEST(SegmentGetNearestPoint, TheCentreOfAnArcGivesItsEnd)
{
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, 0)), At(-1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(1, 0), At(-1, 0), -1), At(0, 0)), At(-1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(-1, 0), At(1, 0), 1), At(0, 0)), At(1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 2), At(0, -2), 1), At(0, 0)), At(0, -2), 1));
    const double quarter = std::tan(Pi / 8);
    EXPECT_TRUE(Is(NearestOn(CSegment(At(1, 0), At(0, 1), quarter), At(0, 0)), At(0, 1), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 1), At(1, 0), -quarter), At(0, 0)), At(1, 0), 1));
}

TEST(SegmentGetNearestPoint, APointBesideTheCentreHasADirection)
{
    // The centre is taken within four rounding units of the radius, here 8.9e-16, and no wider.
    const double unit = 0x1p-52;
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, 3 * unit)), At(-1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(-3 * unit, 0)), At(-1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(3 * unit, 0)), At(1, 0), 0)) << "the start is nearer by two roundings";
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, 5 * unit)), At(0, 1), 0.5, 1e-15));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(0, 1e-12)), At(0, 1), 0.5, 1e-15));
    // The bound itself still counts. The computed centre lies 6e-17 below (0, 0).
    DPOINT2 computed;
    ASSERT_TRUE(SolveArc(upperHalf.start, upperHalf.end, upperHalf.bulge, &computed, nullptr, nullptr, nullptr));
    const DPOINT2 onBound = At(computed.x, computed.y + 4 * unit);
    ASSERT_EQ(D2GetDistance(onBound, computed), 4 * unit);
    EXPECT_TRUE(Is(NearestOn(upperHalf, onBound), At(-1, 0), 1));
    EXPECT_TRUE(Is(NearestOn(upperHalf, At(computed.x, Next(onBound.y + unit * 0x1p-50))), At(0, 1), 0.5, 1e-15));
    // About (0, 0) with radius 1024 the same number of units is 1024 times as wide.
    const CSegment wide(At(1024, 0), At(-1024, 0), 1);
    EXPECT_TRUE(Is(NearestOn(wide, At(0, 1024 * 3 * unit)), At(-1024, 0), 1));
    EXPECT_TRUE(Is(NearestOn(wide, At(0, 1024 * 5 * unit)), At(0, 1024), 0.5, 1e-12));
}

TEST(SegmentGetNearestPoint, AnArcWithoutChordGivesItsEnd)
{
    // No circle is found: its centre stays at the origin and its sector is the direction 0 alone.
    const CSegment arc(At(3, 4), At(3, 4), 0.5);
    EXPECT_TRUE(Is(NearestOn(arc, At(0, 5)), At(3, 4), 1));
    EXPECT_TRUE(Is(NearestOn(arc, At(-5, 1)), At(3, 4), 1));
    EXPECT_TRUE(Is(NearestOn(CSegment(At(0, 3), At(0, 3 + 5e-10), 0.5), At(0, 2)), At(0, 3), 0)) << "the nearer one";
    const double t = NearestOn(arc, At(5, 0)).t;
    EXPECT_TRUE(t >= 0 && t <= 1) << t;
}

TEST(SegmentGetNearestPoint, ABezierCurveWithSlotIsTakenForAnArc)
{
    const CSegment curve(At(1, 0), At(1, 7), At(-9, 2), At(-1, 0));
    EXPECT_TRUE(Is(NearestOn(curve, At(0, 5)), At(0, 1), 0.5, 1e-15));
    CSegment formerArc(At(5, 5), At(6, 6), 1);
    formerArc.Set(At(1, 0), At(-1, 0));
    EXPECT_TRUE(Is(NearestOn(formerArc, At(0, 5)), At(0, 1), 0.5, 1e-15));
}

TEST(SegmentGetNearestPoint, NoSampleIsNearer)
{
    Random random(341);
    for (int i = 0; i < 500; ++i)
    {
        const CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const DPOINT2 p = random.Point(10);
        const Nearest nearest = NearestOn(segment, p);
        ASSERT_TRUE(nearest.t >= 0 && nearest.t <= 1);
        ASSERT_TRUE(Near(nearest.point, segment.GetPoint(nearest.t), 1e-9));
        const double distance = std::hypot(nearest.point.x - p.x, nearest.point.y - p.y);
        for (int k = 0; k <= 100; ++k)
        {
            const DPOINT2 sample = segment.GetPoint(k / 100.0);
            ASSERT_LE(distance, std::hypot(sample.x - p.x, sample.y - p.y) + 1e-9);
        }
    }
}

TEST(SegmentGetNearestPoint, APointOfTheSegmentIsItsOwnNearest)
{
    Random random(342);
    for (int i = 0; i < 2000; ++i)
    {
        const CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const double t = random.Number(0, 1);
        ASSERT_TRUE(Is(NearestOn(segment, segment.GetPoint(t)), segment.GetPoint(t), t, 1e-9));
    }
}

TEST(SegmentGetNearestPoint, TurningTheSegmentRoundTurnsTheParameterRound)
{
    Random random(343);
    for (int i = 0; i < 2000; ++i)
    {
        const CSegment segment = random.Coin() ? RandomArcSegment(random) : RandomLine(random);
        const DPOINT2 p = random.Point(10);
        const Nearest nearest = NearestOn(segment, p);
        CSegment turned = segment;
        turned.ReverseDir();
        const double toStart = std::hypot(p.x - segment.start.x, p.y - segment.start.y);
        const double toEnd = std::hypot(p.x - segment.end.x, p.y - segment.end.y);
        if (std::abs(toStart - toEnd) > 1e-6 || (nearest.t != 0 && nearest.t != 1))
        {
            ASSERT_TRUE(Is(NearestOn(turned, p), nearest.point, 1 - nearest.t, 1e-9));
        }
    }
}

TEST(SegmentGetNearestPoint, TheParameterMayBeWrittenIntoThePointOrTheSegment)
{
    const CSegment line(At(0, 0), At(2, 0));
    for (int i = 0; i < 2; ++i)
    {
        DPOINT2 p = At(0.5, 5);
        EXPECT_EQ(line.GetNearestPoint(p, i == 0 ? p.x : p.y), At(0.5, 0));
        EXPECT_EQ(i == 0 ? p.x : p.y, 0.25);
        p = At(-3, 5);
        EXPECT_EQ(line.GetNearestPoint(p, i == 0 ? p.x : p.y), At(0, 0));
        EXPECT_EQ(i == 0 ? p.x : p.y, 0);
        p = At(0, 5);
        EXPECT_TRUE(Near(upperHalf.GetNearestPoint(p, i == 0 ? p.x : p.y), At(0, 1), 1e-15));
        EXPECT_TRUE(Near(i == 0 ? p.x : p.y, 0.5, 1e-15));
    }
    CSegment arc = upperHalf;
    EXPECT_TRUE(Near(arc.GetNearestPoint(At(0, 5), arc.bulge), At(0, 1), 1e-15));
    EXPECT_TRUE(Near(arc.bulge, 0.5, 1e-15));
    CSegment own(At(3, 4), At(5, 4));
    EXPECT_EQ(own.GetNearestPoint(At(0, 0), own.start.x), At(3, 4));
    EXPECT_EQ(own.start, At(0, 4));
    own = CSegment(At(3, 4), At(5, 4));
    EXPECT_EQ(own.GetNearestPoint(At(9, 9), own.end.y), At(5, 4));
    EXPECT_EQ(own.end, At(5, 1));
    own = CSegment(At(3, 4), At(5, 4));
    EXPECT_EQ(own.GetNearestPoint(own.end, own.end.x), At(5, 4));
    own = CSegment(At(3, 4), At(5, 4));
    EXPECT_EQ(own.GetNearestPoint(At(4, 9), own.start.y), At(4, 4));
}
