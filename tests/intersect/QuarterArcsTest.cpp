#include "intersect/QuarterArcs.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstddef>
#include <limits>

using namespace math;
using detail::EllipseQuarterArc;
using detail::QuarteredEllipse;
using detail::Verdict;

namespace
{

/// The last of the doubles from `low` on with one and the same verdict; the one of `high` is another, and there is one
/// change between them.
double LastBeforeChange(const EllipseQuarterArc& arc, double low, double high)
{
    const Verdict verdict = arc.IsMetAt(low);
    EXPECT_NE(arc.IsMetAt(high), verdict);
    while (std::nextafter(low, high) < high)
    {
        const double middle = low + (high - low) * 0.5;
        (arc.IsMetAt(middle) == verdict ? low : high) = middle;
    }
    return low;
}

} // namespace

// The ellipse of both tests has its extreme points at (2, 0), (0, 1), (-2, 0) and (0, -1), and so its quarter arcs.

TEST(QuarterArcs, OfAPlainEllipseAreMetByTheVerticalsOfTheirQuadrant)
{
    const QuarteredEllipse ellipse({0, 0}, 2.0, 1.0, 0.0);
    for (const std::size_t index : {0U, 1U, 2U, 3U})
    {
        const EllipseQuarterArc arc = ellipse.Arc(index);
        const double side = index == 0 || index == 3 ? 1.0 : -1.0;
        const double height = index < 2 ? 1.0 : -1.0;
        EXPECT_EQ(arc.IsMetAt(side * 1.2), Verdict::Inside);
        // x²/4 + y² = 1, thus 0.36 + 0.64.
        EXPECT_NEAR(arc.MeetingAt(side * 1.2).y, height * 0.8, 1e-15);
        EXPECT_EQ(arc.IsMetAt(side * -1.2), Verdict::Outside);
        EXPECT_EQ(arc.IsMetAt(side * 2.1), Verdict::Outside);
        EXPECT_EQ(arc.IsMetAt(0.0), Verdict::Unsure) << "at one end";
        EXPECT_EQ(arc.IsMetAt(side * 2.0), Verdict::Unsure) << "at the other";
        EXPECT_EQ(arc.IsMetAt(side * 1e9), Verdict::Unsure) << "too far out for a quadratic";
        EXPECT_EQ(arc.IsMetAt(InvalidDouble), Verdict::Unsure);
    }
}

TEST(QuarterArcs, InTheMirrorAreMetByTheMirroredVerticalsToTheLastBit)
{
    const QuarteredEllipse ellipse({0, 0}, 2.0, 1.0, 0.0);
    const auto expectMirrored = [](const EllipseQuarterArc& right, const EllipseQuarterArc& left) {
        ASSERT_EQ(right.Span().right.x, -left.Span().left.x);
        double from = 1.0;
        for (const double to : {2.0, 3.0, 1e9}) // sure to be met, in doubt, sure to be missed, in doubt
        {
            const double last = LastBeforeChange(right, from, to);
            const double next = std::nextafter(last, std::numeric_limits<double>::infinity());
            EXPECT_EQ(left.IsMetAt(-last), right.IsMetAt(last)) << last;
            EXPECT_EQ(left.IsMetAt(-next), right.IsMetAt(next)) << last;
            from = to;
        }
    };
    expectMirrored(ellipse.Arc(0), ellipse.Arc(1));
    expectMirrored(ellipse.Arc(3), ellipse.Arc(2));
}
