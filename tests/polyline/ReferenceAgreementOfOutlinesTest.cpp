#include "support/Outlines.h"
#include "support/ReferenceOutlines.h"
#include "support/Segments.h"

#include <cstddef>

using namespace math;
using namespace math::test;

// Boxes, lengths and areas against the same steps, segment by segment. All bits count.

namespace
{

bool SameBits(const DRECT& a, const DRECT& b)
{
    return math::test::SameBits(DPOINT2(a.x, a.y), DPOINT2(b.x, b.y)) &&
           math::test::SameBits(DPOINT2(a.width, a.height), DPOINT2(b.width, b.height));
}

/// Numbers of ordinary size, on a grid, near the tolerance, huge, tiny and none.
double SomeNumber(Random& random, int kind)
{
    constexpr double special[] = {0.0,    -0.0,  1e-9,   -1e-9,  Greatest, -Greatest, LeastNormal,
                                  5e-324, 1e200, -1e200, 1e-200, Infinity, -Infinity, InvalidDouble};
    switch (kind)
    {
    case 0:
        return random.Integer(-3, 3);
    case 1:
        return random.Integer(-3, 3) + random.Integer(-4, 4) * 0.25e-9;
    case 2:
        return random.Coin() ? random.Number(-5, 5) : special[random.Integer(0, 13)];
    case 3:
        return random.Size(1e-12, 1e12) * (random.Coin() ? 1 : -1);
    default:
        return random.Number(-5, 5);
    }
}

double SomeBulge(Random& random, int kind)
{
    switch (random.Integer(0, 5))
    {
    case 0:
        return SomeNumber(random, kind);
    case 1:
        return random.Number(-2, 2);
    case 2:
        return Stepped(random.Coin() ? 1e-9 : -1e-9, random.Integer(-2, 2));
    default:
        return 0;
    }
}

/// Of every length around the blocks in which segments are measured.
CPolyline SomeOutline(Random& random)
{
    const int kind = random.Integer(0, 5);
    CPolyline outline;
    outline.start = At(SomeNumber(random, kind), SomeNumber(random, kind));
    const int count = random.Integer(0, 40);
    const bool hasArcs = random.Coin();
    DPOINT2 last = outline.start;
    for (int i = 0; i < count; ++i)
    {
        DPOINT2 next = At(SomeNumber(random, kind), SomeNumber(random, kind));
        if (random.Integer(0, 7) == 0)
        {
            next = At(last.x + random.Integer(-4, 4) * 0.25e-9, last.y + random.Integer(-4, 4) * 0.25e-9);
        }
        outline.nodes.push_back({next, hasArcs ? SomeBulge(random, kind) : 0});
        last = next;
    }
    if (random.Coin())
    {
        outline.nodes.push_back({outline.start, hasArcs ? SomeBulge(random, kind) : 0});
    }
    return outline;
}

double SomePosition(Random& random, const CPolyline& outline)
{
    const int count = static_cast<int>(outline.nodes.size());
    switch (random.Integer(0, 3))
    {
    case 0:
        return random.Integer(-1, count + 1);
    case 1:
        return Stepped(random.Integer(0, count), random.Integer(-2, 2));
    default:
        return random.Number(0, count);
    }
}

} // namespace

TEST(OutlineAgreement, OfBoxes)
{
    Random random(431);
    for (int i = 0; i < 20000; ++i)
    {
        const CPolyline outline = SomeOutline(random);
        ASSERT_TRUE(SameBits(outline.GetRECT(), reference::BoxOf(outline))) << i;
    }
}

TEST(OutlineAgreement, OfBoxesOfOutlinesThatGrowToOneSide)
{
    // The width is rounded anew with each segment, and with it the far side that the next one is compared with.
    Random random(432);
    for (int i = 0; i < 400; ++i)
    {
        CPolyline outline;
        outline.start = random.Point(3);
        const double direction = random.Radian();
        DPOINT2 last = outline.start;
        for (int k = 0; k < 200; ++k)
        {
            const double radian = direction + random.Number(-0.5, 0.5) + (i % 2) * k * 0.03;
            last = At(last.x + std::cos(radian), last.y + std::sin(radian));
            outline.AddNodes(last, 0);
        }
        ASSERT_TRUE(SameBits(outline.GetRECT(), reference::BoxOf(outline))) << i;
    }
}

TEST(OutlineAgreement, OfLengths)
{
    Random random(433);
    for (int i = 0; i < 20000; ++i)
    {
        const CPolyline outline = SomeOutline(random);
        const auto count = static_cast<double>(outline.nodes.size());
        ASSERT_TRUE(SameBits(outline.GetLength(0, count), reference::LengthOf(outline, 0, count))) << i;
        const double from = SomePosition(random, outline);
        const double to = SomePosition(random, outline);
        ASSERT_TRUE(SameBits(outline.GetLength(from, to), reference::LengthOf(outline, from, to))) << i;
        ASSERT_TRUE(SameBits(outline.GetLength(-0.0, to), reference::LengthOf(outline, -0.0, to))) << i;
    }
}

TEST(OutlineAgreement, OfAreas)
{
    Random random(434);
    for (int i = 0; i < 40000; ++i)
    {
        const CPolyline outline = SomeOutline(random);
        ASSERT_TRUE(SameBits(outline.GetArea(), reference::AreaOf(outline))) << i;
    }
}

TEST(OutlineAgreement, OfAreasWithStepsOfTheTolerance)
{
    // A step of every direction that is as long as the tolerance but for some units in the last place. Its bulge makes
    // nearly a full circle of radius 2.5e-4 of it: the area of a triangle tells whether the step counts.
    Random random(435);
    int counted = 0;
    for (int i = 0; i < 20000; ++i)
    {
        const double radian = random.Radian();
        const DPOINT2 step = At(Stepped(1e-9 * std::cos(radian), random.Integer(-2, 2)),
                                Stepped(1e-9 * std::sin(radian), random.Integer(-2, 2)));
        CPolyline outline;
        outline.start = At(0, 0);
        outline.nodes = {{step, 1e6}, {At(2, 0), 0}, {At(2, 3), 0}, {At(0, 0), 0}};
        ASSERT_TRUE(SameBits(outline.GetArea(), reference::AreaOf(outline))) << i;
        counted += D2GetDistance(outline.start, step) < 1e-9 ? 0 : 1;
    }
    EXPECT_GT(counted, 5000);
    EXPECT_LT(counted, 15000);
}

TEST(OutlineAgreement, OfBoxesOfBezierCurves)
{
    Random random(436);
    for (int i = 0; i < 1500; ++i)
    {
        const int kind = random.Integer(0, 5);
        DPOINT2 control[4];
        for (DPOINT2& point : control)
        {
            point = At(SomeNumber(random, kind), SomeNumber(random, kind));
        }
        const CSegment curve(control[0], control[1], control[2], control[3]);
        ASSERT_TRUE(SameBits(curve.GetBoundRect(), reference::BoxOfBezier(control))) << i;
    }
}
