#include "math/Intersect.h"
#include "support/Ellipses.h"
#include "support/ReferenceEllipses.h"

using namespace math;
using namespace math::test;

namespace
{

const Ellipse flat{{0, 0}, 2, 1, 0};

// Semi-axes 5 and 3 about (1, 2), own x axis along (0.6, 0.8): the frame points (4, 1.8) and (-3, 2.4) lie on it, and
// the former comes first on the flat line through both.
const Ellipse tilted{{1, 2}, 5, 3, std::atan2(0.8, 0.6)};
const DPOINT2 right = {1 + 0.6 * 4 - 0.8 * 1.8, 2 + 0.8 * 4 + 0.6 * 1.8};
const DPOINT2 left = {1 - 0.6 * 3 - 0.8 * 2.4, 2 - 0.8 * 3 + 0.6 * 2.4};

/// The point at a ratio of the way from `left` to `right`.
DPOINT2 Between(double ratio)
{
    return {left.x + ratio * (right.x - left.x), left.y + ratio * (right.y - left.y)};
}

} // namespace

TEST(IntersectLineWithEllipse, PointsOnTheStretchCount)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(-1), Between(2)}, tilted), 2, {right, left}));
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(2), Between(-1)}, tilted), 2, {right, left}))
        << "against the order of travel";
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(0.4), Between(2)}, tilted), 1, {right}));
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(0.4), Between(-2)}, tilted), 1, {left})) << "the second of the beeline";
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(0.4), Between(0.6)}, tilted), 0, {})) << "inside";
    EXPECT_TRUE(Gives(Meeting(Stretch{Between(1.2), Between(3)}, tilted), 0, {})) << "stops short of it";
    EXPECT_TRUE(Gives(Meeting(Stretch{At(9, 0), At(9, 1)}, tilted), 0, {})) << "on a line that misses";
}

TEST(IntersectLineWithEllipse, UprightStretchesMeetFromBelow)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, -3), At(0, 3)}, flat), 2, {At(0, -1), At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 3), At(0, -3)}, flat), 2, {At(0, -1), At(0, 1)}, 1e-15));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 0), At(0, 3)}, flat), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 2), At(0, 3)}, flat), 0, {}));
}

TEST(IntersectLineWithEllipse, AStretchThatTouchesMeetsOnce)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{At(-1, 1), At(3, 1)}, flat), 1, {At(0, 1)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(1, 1), At(3, 1)}, flat), 0, {}));
}

TEST(IntersectLineWithEllipse, EndsCountWithinTheTolerance)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 0), At(2 - 9e-10, 0)}, flat), 1, {At(2, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 0), At(2 - 1.1e-9, 0)}, flat), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(2 + 9e-10, 0), At(3, 0)}, flat), 1, {At(2, 0)}, 0));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(2 + 1.1e-9, 0), At(3, 0)}, flat), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{left, right}, tilted), 2, {right, left}));
}

TEST(IntersectLineWithEllipse, AStretchOfNoLengthMeetsNothing)
{
    EXPECT_TRUE(Gives(Meeting(Stretch{At(2, 0), At(2, 0)}, flat), 0, {})) << "though it lies on the curve";
    EXPECT_TRUE(Gives(Meeting(Stretch{At(2, 0), At(2, 5e-10)}, flat), 0, {}));
    EXPECT_TRUE(Gives(Meeting(Stretch{At(0, 0), At(InvalidDouble, 1)}, flat), 0, {}));
}

TEST(IntersectLineWithEllipse, AnOutputOrTheVectorMayHoldTheInput)
{
    DPOINT2 first = Between(-1);
    DPOINT2 second = Between(2);
    EXPECT_EQ(Intersect_LineWithEllipse(first, second, tilted.centre, 5, 3, tilted.rotation, &second, &first), 2);
    EXPECT_TRUE(Near(second, right, 1e-12));
    EXPECT_TRUE(Near(first, left, 1e-12));
    first = tilted.centre;
    EXPECT_EQ(Intersect_LineWithEllipse(Between(0.4), Between(2), first, 5, 3, tilted.rotation, &first, nullptr), 1);
    EXPECT_TRUE(Near(first, right, 1e-12));

    std::vector<DPOINT2> points = {Between(-1), Between(2), tilted.centre};
    points.shrink_to_fit();
    EXPECT_EQ(Intersect_LineWithEllipse(points[0], points[1], points[2], 5, 3, tilted.rotation, points, -1), 2);
    ASSERT_EQ(points.size(), 5U);
    EXPECT_TRUE(Near(points[3], right, 1e-12));
    EXPECT_TRUE(Near(points[4], left, 1e-12));
}

TEST(IntersectLineWithEllipse, KeepsWhatTheSecondMethodKeeps)
{
    Random random(51);
    int counts[3] = {0, 0, 0};
    for (int i = 0; i < 4000; ++i)
    {
        const double size = random.Size(1.0, 1000.0);
        const Ellipse ellipse = RandomEllipse(random, size);
        const Stretch stretch{random.Point(2 * size), random.Point(2 * size)};
        const DPOINT2 along = Minus(stretch.second, stretch.first);
        bool clear = true;
        const auto expected = KeepOnStretch(
            BeelineMeetsEllipse({stretch.first, std::atan2(along.y, along.x)}, ellipse, clear), stretch, clear);
        if (!clear)
        {
            continue;
        }
        std::vector<DPOINT2> found;
        const int code = Meeting(stretch, ellipse).vectorForm(found, -1);
        ASSERT_EQ(code, static_cast<int>(found.size()));
        ASSERT_TRUE(SameSet(found, expected, 1e-10 * size)) << i;
        ASSERT_TRUE(Gives(Meeting(stretch, ellipse), code, found, 0)) << i;
        ++counts[expected.size()];
    }
    EXPECT_GT(counts[0], 300);
    EXPECT_GT(counts[1], 300);
    EXPECT_GT(counts[2], 300);
}

// Most stretches do not meet the curve, and of most beelines it is clear that they do not touch it: both is told
// beforehand for ellipses of ordinary place, size and shape.
TEST(IntersectLineWithEllipse, AgreesWithTheStepsWrittenOut)
{
    Random random(43);
    int counts[3] = {};
    for (int i = 0; i < 60000; ++i)
    {
        const Ellipse ellipse = RandomEllipseOfAnyShape(random);
        const Stretch stretch = RandomStretchBy(random, ellipse);
        DPOINT2 expected[2];
        const int count = reference::LineWithEllipse(stretch.first, stretch.second, ellipse, expected);
        ASSERT_TRUE(WritesBitsOf(Meeting(stretch, ellipse), count, expected)) << i;
        ++counts[count];
    }
    EXPECT_GT(counts[0], 1000);
    EXPECT_GT(counts[1], 1000);
    EXPECT_GT(counts[2], 1000);
}
