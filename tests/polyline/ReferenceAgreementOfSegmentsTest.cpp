#include "support/ReferenceSegments.h"
#include "support/Segments.h"

using namespace math;
using namespace math::test;

// Boxes of arcs and nearest points against the same steps with every angle measured. All bits count.

namespace
{

/// Nothing, or an angle around the tolerance, around the margins of a first look, or clearly above.
double SomeOffset(Random& random)
{
    constexpr double sizes[] = {0.0, 0.5e-9, 1e-9, 2e-9, 1e-7, 1e-6, 3e-6, 1e-3};
    return sizes[random.Integer(0, 7)] * random.Number(0.9, 1.1) * (random.Coin() ? 1 : -1);
}

/// Arcs of all sizes and places, many of which begin or end near an axis point; some nearly straight or whole.
CSegment SomeArc(Random& random)
{
    const double radius = random.Coin() ? random.Number(0.5, 4) : random.Size(1e-8, 1e8);
    const DPOINT2 centre = random.Coin() ? random.Point(3) : random.Point(random.Size(1e-8, 1e8));
    const bool isNearAxis = random.Coin();
    const double from = isNearAxis ? random.Integer(-4, 4) * HalfPi + SomeOffset(random) : random.Radian();
    double sweep = random.Number(-6.2, 6.2);
    switch (random.Integer(0, 3))
    {
    case 0:
        sweep = random.Integer(-3, 3) * HalfPi + SomeOffset(random);
        break;
    case 1:
        sweep = random.Size(1e-9, 6.28) * (random.Coin() ? 1 : -1);
        break;
    case 2:
        sweep = (TwoPi - random.Size(1e-9, 6.28)) * (random.Coin() ? 1 : -1);
        break;
    default:
        break;
    }
    CSegment arc = ArcOfAngles(centre, radius, from, sweep);
    if (random.Integer(0, 7) == 0)
    {
        arc.bulge = random.Size(1e-9, 1e17) * (random.Coin() ? 1 : -1);
    }
    return arc;
}

/// In the directions of the ends or opposite or near them, at, near and far from the circle and its centre.
DPOINT2 SomePointBy(const CSegment& arc, Random& random)
{
    DPOINT2 centre;
    double radius = 1;
    double from = 0;
    double sweep = 1;
    SolveArc(arc.start, arc.end, arc.bulge, &centre, &radius, &from, &sweep);
    const double radian = random.Coin()
                              ? random.Radian()
                              : from + random.Integer(0, 1) * sweep + random.Integer(0, 1) * Pi + SomeOffset(random);
    switch (random.Integer(0, 4))
    {
    case 0:
        radius *= random.Size(1e-17, 1e17);
        break;
    case 1:
        break;
    case 2:
        return At(Stepped(centre.x, random.Integer(-5, 5)), Stepped(centre.y, random.Integer(-5, 5)));
    default:
        radius *= random.Number(0, 3);
        break;
    }
    return At(centre.x + radius * std::cos(radian), centre.y + radius * std::sin(radian));
}

bool IsSameBox(const DRECT& a, const DRECT& b)
{
    return SameBits(At(a.x, a.y), At(b.x, b.y)) && SameBits(At(a.width, a.height), At(b.width, b.height));
}

::testing::AssertionResult AgreesOn(const CSegment& segment, const DPOINT2& p)
{
    double t = UntouchedNumber();
    const DPOINT2 point = segment.GetNearestPoint(p, t);
    const reference::Nearest expected = reference::NearestOn(segment, p);
    if (SameBits(point, expected.point) && SameBits(t, expected.t))
    {
        return ::testing::AssertionSuccess();
    }
    return ::testing::AssertionFailure() << ::testing::PrintToString(point) << " at " << Digits(t) << " instead of "
                                         << ::testing::PrintToString(expected.point) << " at " << Digits(expected.t)
                                         << " from " << ::testing::PrintToString(p);
}

/// Numbers with which something is left out, overflows or vanishes.
double SomeExtreme(Random& random)
{
    constexpr double numbers[] = {0,    -0.0,  1,      -1,    0.5,   1e-9,     1e-8,      1e-5,          2000, 1e-200,
                                  1e99, 1e101, -1e101, 1e156, 1e308, Infinity, -Infinity, InvalidDouble, 3,    -7};
    return numbers[random.Integer(0, 19)];
}

} // namespace

TEST(SegmentAgreement, OfSolvedArcs)
{
    Random random(441);
    for (int i = 0; i < 50000; ++i)
    {
        const CSegment arc = SomeArc(random);
        DPOINT2 centre;
        double radius = 0;
        double from = 0;
        double sweep = 0;
        SolveArc(arc.start, arc.end, arc.bulge, &centre, &radius, &from, &sweep);
        const reference::SolvedArc expected = reference::Solved(arc.start, arc.end, arc.bulge);
        ASSERT_TRUE(SameBits(centre, expected.centre) && SameBits(radius, expected.radius)) << i;
        ASSERT_TRUE(SameBits(from, expected.startRadian) && SameBits(sweep, expected.sweep)) << i;
    }
}

TEST(SegmentAgreement, OfBoxesOfArcs)
{
    Random random(442);
    for (int i = 0; i < 100000; ++i)
    {
        const CSegment arc = SomeArc(random);
        ASSERT_TRUE(IsSameBox(arc.GetBoundRect(), reference::BoxOfArc(arc.start, arc.end, arc.bulge))) << i;
    }
}

TEST(SegmentAgreement, OfNearestPointsOnArcs)
{
    Random random(443);
    for (int i = 0; i < 100000; ++i)
    {
        const CSegment arc = SomeArc(random);
        ASSERT_TRUE(AgreesOn(arc, SomePointBy(arc, random))) << i;
    }
}

TEST(SegmentAgreement, OfNearestPointsOnLines)
{
    Random random(444);
    for (int i = 0; i < 100000; ++i)
    {
        const CSegment line = RandomLine(random);
        const DPOINT2 beside = line.GetPoint(random.Number(-0.5, 1.5));
        const double across = random.Number(-1, 1);
        const DPOINT2 p =
            At(beside.x - across * (line.end.y - line.start.y), beside.y + across * (line.end.x - line.start.x));
        ASSERT_TRUE(AgreesOn(line, p)) << i;
        ASSERT_TRUE(AgreesOn(line, At(Stepped(line.end.x, random.Integer(-2, 2)), line.end.y))) << i;
        ASSERT_TRUE(AgreesOn(line, At(Stepped(line.start.x, random.Integer(-2, 2)), line.start.y))) << i;
    }
}

TEST(SegmentAgreement, OfExtremeInput)
{
    Random random(445);
    for (int i = 0; i < 200000; ++i)
    {
        const DPOINT2 start = At(SomeExtreme(random), SomeExtreme(random));
        const DPOINT2 end = At(SomeExtreme(random), SomeExtreme(random));
        const CSegment segment(start, end, SomeExtreme(random));
        ASSERT_TRUE(IsSameBox(segment.GetBoundRect(), reference::BoxOfArc(start, end, segment.bulge))) << i;
        ASSERT_TRUE(AgreesOn(segment, At(SomeExtreme(random), SomeExtreme(random)))) << i;
    }
}
