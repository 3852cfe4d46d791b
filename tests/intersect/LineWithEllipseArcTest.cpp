#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

using namespace math;
using namespace math::test;

namespace
{

// Semi-axes 5 and 3 about (1, 2), own x axis along (0.6, 0.8): the frame points (4, 1.8) and (-3, 2.4) lie on it in the
// directions 0.423 and 2.467, and the former comes first on the flat line through both.
const Ellipse ellipse{{1, 2}, 5, 3, std::atan2(0.8, 0.6)};
const DPOINT2 right = {1 + 0.6 * 4 - 0.8 * 1.8, 2 + 0.8 * 4 + 0.6 * 1.8};
const DPOINT2 left = {1 - 0.6 * 3 - 0.8 * 2.4, 2 - 0.8 * 3 + 0.6 * 2.4};

DPOINT2 Between(double ratio)
{
    return {left.x + ratio * (right.x - left.x), left.y + ratio * (right.y - left.y)};
}

EllipseArc ArcOf(double start, double sweep)
{
    return {ellipse, start, sweep};
}

const Stretch across{Between(-1), Between(2)};
const Stretch overRight{Between(0.4), Between(2)};
const Stretch overLeft{Between(0.4), Between(-1)};

} // namespace

TEST(IntersectLineWithEllipseArc, APointHasToLieOnBoth)
{
    const EllipseArc both = ArcOf(0, Pi);
    const EllipseArc onlyRight = ArcOf(1, -2);
    const EllipseArc onlyLeft = ArcOf(2, 4);
    const EllipseArc none = ArcOf(3, 2);
    EXPECT_TRUE(Gives(Meeting(across, both), 2, {right, left}));
    EXPECT_TRUE(Gives(Meeting(Stretch{across.second, across.first}, both), 2, {right, left}));
    EXPECT_TRUE(Gives(Meeting(across, onlyRight), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(across, onlyLeft), 1, {left}));
    EXPECT_TRUE(Gives(Meeting(across, none), 0, {}));
    EXPECT_TRUE(Gives(Meeting(overRight, both), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(overRight, onlyRight), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(overRight, onlyLeft), 0, {}));
    EXPECT_TRUE(Gives(Meeting(overLeft, both), 1, {left}));
    EXPECT_TRUE(Gives(Meeting(overLeft, onlyLeft), 1, {left}));
    EXPECT_TRUE(Gives(Meeting(overLeft, onlyRight), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(0.4), Between(0.6)}, both), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(9, 0), At(9, 1)}, both), 0, {}));
}

TEST(IntersectLineWithEllipseArc, EndsOfBothCountWithinTheirTolerance)
{
    const Ellipse flat{{0, 0}, 2, 1, 0};
    const Stretch short_{At(0, 0), At(2 - 9e-10, 0)};
    EXPECT_TRUE(Gives(Meeting(short_, EllipseArc{flat, 9e-10, 1}), 1, {At(2, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(short_, EllipseArc{flat, 1.1e-9, 1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 0), At(2 - 1.1e-9, 0)}, EllipseArc{flat, 9e-10, 1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(short_, EllipseArc{flat, -9e-10, -1}), 1, {At(2, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(short_, EllipseArc{flat, -1.1e-9, -1}), 0, {}));
}

TEST(IntersectLineWithEllipseArc, ATouchingStretchMeetsTheArcOnce)
{
    const Ellipse flat{{0, 0}, 2, 1, 0};
    const Stretch tangent{At(-1, 1), At(1, 1)};
    EXPECT_TRUE(Gives(Meeting(tangent, EllipseArc{flat, 1, 1}), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(tangent, EllipseArc{flat, 1, -1}), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(1, 1), At(3, 1)}, EllipseArc{flat, 1, 1}), 0, {}));
}

TEST(IntersectLineWithEllipseArc, AStretchOfNoLengthMeetsNothing)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{right, right}, ArcOf(0, Pi)), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{right, {right.x, right.y + 5e-10}}, ArcOf(0, Pi)), 0, {}));
}

TEST(IntersectLineWithEllipseArc, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 first = across.first;
    DPOINT2 second = across.second;
    EXPECT_EQ(
        Intersect_LineWithEllipseArc(first, second, ellipse.centre, 5, 3, ellipse.rotation, 0, Pi, &second, &first), 2);
    EXPECT_TRUE(Near(second, right, 1e-12));
    EXPECT_TRUE(Near(first, left, 1e-12));

    std::vector<DPOINT2> points = {across.first, across.second, ellipse.centre};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_LineWithEllipseArc(points[0], points[1], points[2], 5, 3, ellipse.rotation, 0, Pi, points, -1),
              2);
    ASSERT_EQ(points.size(), 5U);
    EXPECT_TRUE(Near(points[3], right, 1e-12));
    EXPECT_TRUE(Near(points[4], left, 1e-12));
}

TEST(IntersectLineWithEllipseArc, KeepsWhatTheSecondMethodKeeps)
{
    Random random(61);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 5000; ++i)
    {
        const EllipseArc arc{RandomEllipse(random), random.Number(-7.0, 7.0), random.Number(-6.2, 6.2)};
        const Stretch stretch{random.Point(2), random.Point(2)};
        const DPOINT2 along = Minus(stretch.second, stretch.first);
        bool clear = true;
        auto expected = BeelineMeetsEllipse({stretch.first, std::atan2(along.y, along.x)}, arc.whole, clear);
        expected = KeepOnArc(KeepOnStretch(expected, stretch, clear), arc, clear);
        if (!clear)
        {
            continue;
        }
        std::vector<DPOINT2> found;
        const int code = Meeting(stretch, arc).vectorForm(found, -1);
        ASSERT_EQ(code, static_cast<int>(found.size()));
        ASSERT_TRUE(SameSet(found, expected, 1e-10)) << i;
        ASSERT_TRUE(Gives(Meeting(stretch, arc), code, found, 0)) << i;
        ++counts[expected.size()];
    }
    EXPECT_GT(counts[0], 300);
    EXPECT_GT(counts[1], 300);
    EXPECT_GT(counts[2], 100);
}

// Most stretches do not meet the curve, and of most beelines it is clear that they do not touch it: both is told
// beforehand for ellipses of ordinary place, size and shape.
TEST(IntersectLineWithEllipseArc, AgreesWithTheStepsWrittenOut)
{
    Random random(44);
    int counts[3] = {};
    for (int i = 0; i < 60000; ++i)
    {
        const Ellipse whole = RandomEllipseOfAnyShape(random);
        const Stretch stretch = RandomStretchBy(random, whole);
        const EllipseArc arc{whole, random.Number(-7.0, 7.0), random.Number(-TwoPi, TwoPi)};
        DPOINT2 expected[2];
        const int count = reference::LineWithEllipseArc(stretch.first, stretch.second, arc, expected);
        ASSERT_TRUE(WritesBitsOf(Meeting(stretch, arc), count, expected)) << i;
        ++counts[count];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}
