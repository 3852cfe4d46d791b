#include "checks.h"

#include "math/AnalyticKernel.h"
#include "math/Intersect.h"
#include "math/Primitives.h"

#include <cmath>
#include <cstdio>

namespace
{

using math::DPOINT2;

int failures = 0;

void Expect(bool holds, const char* what)
{
    if (!holds)
    {
        std::printf("failed: %s\n", what);
        ++failures;
    }
}

bool IsAt(const DPOINT2& point, double x, double y)
{
    return std::abs(point.x - x) < 1e-12 && std::abs(point.y - y) < 1e-12;
}

/// Whose classes the kernel's names mean here is a matter of who comes first. Unless the imposter wins where it should,
/// the checks below would prove nothing.
void CheckWhoseTheNamesAre(ImposterCalls calls, bool imposterWins)
{
    const int before = calls();
    const IntAna2d_AnaIntersection nothingPerformed;
    const bool isImposters = nothingPerformed.IsDone();
    Expect(isImposters == imposterWins, "the names of the kernel mean the classes of the library that comes first");
    Expect((calls() > before) == imposterWins, "the imposter counts its calls");
}

void CheckLines()
{
    DPOINT2 point;
    Expect(math::Intersect({0, 0, 1, 1}, {0, 4, 1, 3}, &point) == 1, "two straight lines meet once");
    Expect(IsAt(point, 2, 2), "y = x meets y = 4 - x in (2, 2)");
    Expect(math::Intersect_BeelineWithBeeline({3, 0}, math::AngleToRadian(90), {0, 5}, 0, &point) == 1,
           "a vertical and a horizontal beeline meet once");
    Expect(IsAt(point, 3, 5), "x = 3 meets y = 5 in (3, 5)");
    Expect(math::Intersect_BeelineWithLine({0, 1}, 0, {2, 0}, {2, 2}, &point) == 1, "a beeline meets a stretch once");
    Expect(IsAt(point, 2, 1), "y = 1 meets x = 2 in (2, 1)");
    Expect(math::Intersect_LineWithLine({0, 0}, {2, 2}, {0, 2}, {2, 0}, &point) == 1, "two diagonals meet once");
    Expect(IsAt(point, 1, 1), "the diagonals of a square of side 2 meet in (1, 1)");
}

void CheckCircles()
{
    DPOINT2 first;
    DPOINT2 second;
    Expect(math::Intersect_BeelineWithCircle({0, 3}, 0, {1, 0}, 5, &first, &second) == 2, "a secant meets twice");
    Expect(IsAt(first, 5, 3) && IsAt(second, -3, 3), "y = 3 meets the circle of radius 5 at 1 +- 4");
    Expect(math::Intersect_CircleWithCircle({0, 0}, 5, {6, 0}, 5, &first, &second) == 2, "two circles cross twice");
    Expect(IsAt(first, 3, 4) && IsAt(second, 3, -4), "circles of radius 5 at distance 6 cross at (3, +-4)");
    Expect(math::Intersect_BeelineWithArc({0, 3}, 0, {1, 0}, 5, 0, 1, &first, nullptr) == 1, "an arc is met once");
    Expect(IsAt(first, 5, 3), "of the two points the arc from 0 to 1 radian holds the right one");
}

void CheckCircleThroughThreePoints()
{
    DPOINT2 centre;
    double radius = 0;
    Expect(math::CreateCircleFrom3Point({0, 0}, {6, 0}, {0, 8}, &centre, &radius), "a right triangle has a circle");
    Expect(IsAt(centre, 3, 4) && std::abs(radius - 5) < 1e-12, "its centre is the middle of the hypotenuse");
    Expect(!math::CreateCircleFrom3Point({0, 0}, {1, 0}, {2, 0}, &centre, &radius), "points on one line have none");
}

} // namespace

int CheckBesideImposter(ImposterCalls calls, int imposterWins)
{
    failures = 0;
    CheckWhoseTheNamesAre(calls, imposterWins != 0);
    const int before = calls();
    CheckLines();
    CheckCircles();
    CheckCircleThroughThreePoints();
    Expect(calls() == before, "the library calls nothing of the imposter");
    std::printf("%d failures\n", failures);
    return failures;
}
