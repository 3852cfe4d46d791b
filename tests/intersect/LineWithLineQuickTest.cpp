#include "math/Intersect.h"
#include "support/Curves.h"

#include <algorithm>

using namespace math;
using namespace math::test;

// Two stretches, the quick test: boxes and the signs of areas, compared exactly, without a point.

namespace
{

/// Runs both orders and all directions: which stretch comes first and how it is drawn must not matter.
testing::AssertionResult Answers(const Stretch& a, const Stretch& b, int code)
{
    const Stretch turnedA{a.second, a.first};
    const Stretch turnedB{b.second, b.first};
    for (const auto& [first, second] : {std::pair{a, b}, std::pair{turnedA, b}, std::pair{a, turnedB},
                                        std::pair{turnedA, turnedB}, std::pair{b, a}, std::pair{turnedB, turnedA}})
    {
        const auto same = QuickTestGives(Meeting(first, second), code);
        if (!same)
        {
            return same;
        }
    }
    return testing::AssertionSuccess();
}

/// Which side of the line from a to b a grid point lies on: 1 left, -1 right, 0 on it.
int Side(const DPOINT2& a, const DPOINT2& b, const DPOINT2& p)
{
    const double area = CrossOf(Minus(b, a), Minus(p, a));
    return area > 0 ? 1 : area < 0 ? -1 : 0;
}

/// The same question on grid points by sides alone, and by coordinates for what lies on one line.
int MeetOnGrid(const Stretch& a, const Stretch& b)
{
    const int s1 = Side(a.first, a.second, b.first);
    const int s2 = Side(a.first, a.second, b.second);
    const int s3 = Side(b.first, b.second, a.first);
    const int s4 = Side(b.first, b.second, a.second);
    const bool apart = std::max(a.first.x, a.second.x) < std::min(b.first.x, b.second.x) ||
                       std::max(b.first.x, b.second.x) < std::min(a.first.x, a.second.x) ||
                       std::max(a.first.y, a.second.y) < std::min(b.first.y, b.second.y) ||
                       std::max(b.first.y, b.second.y) < std::min(a.first.y, a.second.y);
    return !apart && s1 * s2 <= 0 && s3 * s4 <= 0 ? 1 : 0;
}

} // namespace

TEST(IntersectLineWithLineQuick, CrossingStretchesMeet)
{
    EXPECT_TRUE(Answers({{0, 0}, {2, 2}}, {{0, 2}, {2, 0}}, 1));
    EXPECT_TRUE(Answers({{0, 1}, {4, 1}}, {{3, 0}, {3, 5}}, 1));
}

TEST(IntersectLineWithLineQuick, AnEndOnTheOtherStretchMeets)
{
    EXPECT_TRUE(Answers({{0, 0}, {4, 0}}, {{1, 0}, {1, 3}}, 1));
    EXPECT_TRUE(Answers({{0, 0}, {4, 4}}, {{1, 1}, {1, 3}}, 1));
    EXPECT_TRUE(Answers({{0, 0}, {4, 4}}, {{4, 4}, {6, 1}}, 1));
}

TEST(IntersectLineWithLineQuick, AnOverlapAlongALengthIsOneMeeting)
{
    EXPECT_TRUE(Answers({{0, 0}, {2, 0}}, {{1, 0}, {3, 0}}, 1));
    EXPECT_TRUE(Answers({{0, 0}, {2, 2}}, {{1, 1}, {3, 3}}, 1));
    EXPECT_TRUE(Answers({{0, 0}, {2, 0}}, {{0, 0}, {2, 0}}, 1));
}

TEST(IntersectLineWithLineQuick, BoxesApartInOneCoordinateAreEnough)
{
    EXPECT_TRUE(Answers({{0, 0}, {1, 0}}, {{2, 0}, {3, 0}}, 0)) << "apart in x, on one line";
    EXPECT_TRUE(Answers({{0, 0}, {0, 1}}, {{0, 2}, {0, 3}}, 0)) << "apart in y, on one line";
    EXPECT_TRUE(Answers({{0, 0}, {1, 0}}, {{Next(1), 0}, {3, 0}}, 0)) << "compared exactly";
    EXPECT_TRUE(Answers({{0, 0}, {0, 1}}, {{0, Next(1)}, {0, 3}}, 0)) << "compared exactly";
}

TEST(IntersectLineWithLineQuick, BoxesThatTouchMayHoldAMeeting)
{
    EXPECT_TRUE(Answers({{0, 0}, {1, 0}}, {{1, 0}, {3, 0}}, 1));
    EXPECT_TRUE(Answers({{0, 0}, {0, 1}}, {{0, 1}, {0, 3}}, 1));
    EXPECT_TRUE(Answers({{0, 0}, {1, 1}}, {{1, 1}, {2, 3}}, 1));
}

TEST(IntersectLineWithLineQuick, StretchesThatPassEachOtherDoNotMeet)
{
    // The boxes overlap each time.
    EXPECT_TRUE(Answers({{0, 0}, {10, 10}}, {{5, 4}, {9, 5}}, 0)) << "each on one side of the other";
    EXPECT_TRUE(Answers({{0, 0}, {2, 2}}, {{1.5, 4}, {4, 1.5}}, 0)) << "one crosses the line of the other beyond it";
    EXPECT_TRUE(Answers({{0, 0}, {4, 4}}, {{0, 1}, {3, 4}}, 0)) << "parallel";
}

TEST(IntersectLineWithLineQuick, AStretchOfNoLengthIsAPoint)
{
    EXPECT_TRUE(Answers({{1, 1}, {1, 1}}, {{0, 0}, {2, 2}}, 1)) << "on the stretch";
    EXPECT_TRUE(Answers({{1, 0.5}, {1, 0.5}}, {{0, 0}, {2, 2}}, 0)) << "beside it, within its box";
    EXPECT_TRUE(Answers({{3, 3}, {3, 3}}, {{0, 0}, {2, 2}}, 0)) << "beyond it";
    EXPECT_TRUE(Answers({{1, 1}, {1, 1}}, {{1, 1}, {1, 1}}, 1));
    EXPECT_TRUE(Answers({{1, 1}, {1, 1}}, {{1, 2}, {1, 2}}, 0));
}

TEST(IntersectLineWithLineQuick, HasNoTolerance)
{
    const Stretch a{{0, 0}, {4, 4}};
    const Stretch shortByLittle{{2 + 1e-12, 2}, {4, 0}};
    EXPECT_TRUE(Answers(a, shortByLittle, 0));
    EXPECT_EQ(Intersect_LineWithLine(a.first, a.second, shortByLittle.first, shortByLittle.second, nullptr), 1)
        << "the full form has one";
}

TEST(IntersectLineWithLineQuick, AreasThatVanishInTheProductCountAsOnTheLine)
{
    // Parallel, with areas of about 1e-200: their product is no longer below 0.
    const double s = 1e-100;
    EXPECT_TRUE(Answers({{0, 0}, {4, 4}}, {{1, 0}, {4, 3}}, 0));
    EXPECT_TRUE(Answers({{0, 0}, {4 * s, 4 * s}}, {{1 * s, 0}, {4 * s, 3 * s}}, 1));
}

TEST(IntersectLineWithLineQuick, EveryPairOnAGridMeetsAsSidesTell)
{
    const int size = 4;
    std::vector<DPOINT2> grid;
    for (int i = 0; i < size * size; ++i)
    {
        grid.push_back(At(i % size, i / size));
    }
    std::vector<DPOINT2> points;
    for (const DPOINT2& a1 : grid)
    {
        for (const DPOINT2& a2 : grid)
        {
            for (const DPOINT2& b1 : grid)
            {
                for (const DPOINT2& b2 : grid)
                {
                    ASSERT_EQ(Intersect_LineWithLine(a1, a2, b1, b2, points, 0), MeetOnGrid({a1, a2}, {b1, b2}))
                        << testing::PrintToString(std::vector<DPOINT2>{a1, a2, b1, b2});
                }
            }
        }
    }
    EXPECT_TRUE(points.empty());
}

TEST(IntersectLineWithLineQuick, AgreesWithTheFullFormAwayFromEndsAndParallels)
{
    Random random(132);
    for (int i = 0; i < 4000; ++i)
    {
        const Stretch a = RandomStretch(random);
        const Stretch b = RandomStretch(random);
        const DPOINT2 u = Minus(a.second, a.first);
        const DPOINT2 v = Minus(b.second, b.first);
        const DPOINT2 w = Minus(b.first, a.first);
        const double onA = CrossOf(w, v) / CrossOf(u, v);
        const double onB = CrossOf(w, u) / CrossOf(u, v);
        const auto nearAnEnd = [](double ratio) { return std::abs(ratio) < 1e-6 || std::abs(ratio - 1) < 1e-6; };
        if (std::abs(CrossOf(u, v)) > 0.1 && !nearAnEnd(onA) && !nearAnEnd(onB))
        {
            ASSERT_TRUE(Answers(a, b, Intersect_LineWithLine(a.first, a.second, b.first, b.second, nullptr)));
        }
    }
}

TEST(IntersectLineWithLineQuick, NumbersThatAreNoneNeitherRaiseNorHang)
{
    std::vector<DPOINT2> points;
    const int code = Intersect_LineWithLine({0, 0}, {InvalidDouble, 2}, {0, 2}, {2, 0}, points, 0);
    EXPECT_TRUE(code == 0 || code == 1) << code;
    EXPECT_TRUE(points.empty());
}
