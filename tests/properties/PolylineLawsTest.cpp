#include "Motions.h"
#include "math/CPolyline.h"
#include "support/Outlines.h"
#include "support/Segments.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of polylines, numbered as in docs/segments.md: on all closed triangles of lines and arcs between whole
// points, back and forth and flat ones included, with the start at every node and both ways round, and on random
// outlines.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

// Bulges lie between 0.1 and 2, so that radii stay within some times the coordinates, which are below 8.
constexpr double Rounding = 256 * Unit * 8;

double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

std::vector<CPolyline> GridOutlines()
{
    std::vector<CPolyline> outlines;
    const auto point = [](int place) { return At(place % 3, place / 3); };
    for (int second = 1; second < 9; ++second)
    {
        for (int third = 1; third < 9; ++third)
        {
            for (int bulges = 0; bulges < 64 && third != second; ++bulges)
            {
                constexpr double choice[] = {0.0, 0.5, -1.0, 2.0};
                CPolyline outline;
                outline.start = point(0);
                outline.AddNodes(point(second), choice[bulges % 4]);
                outline.AddNodes(point(third), choice[bulges / 4 % 4]);
                outline.AddNodes(point(0), choice[bulges / 16]);
                outlines.push_back(outline);
            }
        }
    }
    for (const double bulge : {1.0, -1.0, 0.5, 0.0})
    {
        outlines.push_back(Outline(At(1, 0), {{-1, 0, bulge}, {1, 0, bulge}})); // two arcs
    }
    Random random(5);
    const std::size_t onGrid = outlines.size();
    while (outlines.size() < onGrid + 60)
    {
        const CPolyline outline = RandomOutline(random, random.Integer(3, 9));
        const bool hasFlatArc =
            std::any_of(outline.nodes.begin(), outline.nodes.end(), [](const CPolyline::NODE& node) {
                return node.bulge != 0 && std::abs(node.bulge) < 0.1; // its points carry the rounding of a far centre
            });
        if (!hasFlatArc)
        {
            outlines.push_back(outline);
        }
    }
    return outlines;
}

double LengthOf(const CPolyline& polyline)
{
    return polyline.GetLength(0, static_cast<double>(polyline.nodes.size()));
}

/// The point at a position from 0 to the number of nodes.
DPOINT2 PointAt(const CPolyline& polyline, double position)
{
    const auto index = static_cast<std::uint64_t>(position);
    const auto count = static_cast<std::uint64_t>(polyline.nodes.size());
    return index == count ? polyline.nodes.back().point
                          : polyline.GetSegment(index).GetPoint(position - static_cast<double>(index));
}

double NearestDistance(const CPolyline& polyline, const DPOINT2& place)
{
    double least = Infinity;
    for (std::uint64_t i = 0; i < polyline.nodes.size(); ++i)
    {
        double t = 0;
        least = std::min(least, Distance(place, polyline.GetSegment(i).GetNearestPoint(place, t)));
    }
    return least;
}

/// The area by the shoelace formula, with r²(s - sin s) / 2 over each chord of an arc of sweep s: positive
/// counter-clockwise.
double AreaByTriangles(const CPolyline& closed)
{
    double area = 0;
    DPOINT2 from = closed.start;
    for (const CPolyline::NODE& node : closed.nodes)
    {
        area += (from.x * node.point.y - from.y * node.point.x) / 2;
        if (node.bulge != 0)
        {
            const double sweep = 4 * std::atan(node.bulge);
            const double radius = Distance(from, node.point) / 2 / std::sin(sweep / 2);
            area += radius * radius * (sweep - std::sin(sweep)) / 2;
        }
        from = node.point;
    }
    return area;
}

bool SameBox(const DRECT& a, const DRECT& b)
{
    return Near(a.x, b.x, Rounding) && Near(a.y, b.y, Rounding) && Near(a.width, b.width, Rounding) &&
           Near(a.height, b.height, Rounding);
}

bool SameNodes(const CPolyline& a, const CPolyline& b)
{
    const auto same = [](const CPolyline::NODE& first, const CPolyline::NODE& second) {
        return SameBits(first.point, second.point) && SameBits(first.bulge, second.bulge);
    };
    return SameBits(a.start, b.start) &&
           std::equal(a.nodes.begin(), a.nodes.end(), b.nodes.begin(), b.nodes.end(), same);
}

CPolyline Moved(const CPolyline& polyline, const Motion& motion)
{
    CPolyline moved;
    moved.start = motion(polyline.start);
    for (const CPolyline::NODE& node : polyline.nodes)
    {
        moved.AddNodes(motion(node.point), motion.Sweep(node.bulge));
    }
    return moved;
}

const DPOINT2 Places[] = {At(0.25, 0.5), At(-3, 1), At(1, 1), At(0, 0), At(5.5, -2)};

} // namespace

TEST(PolylineLaws, L1_TurnedRoundTwiceIsTheOutlineBitForBit)
{
    for (const CPolyline& outline : GridOutlines())
    {
        ASSERT_TRUE(SameNodes(TurnedRound(TurnedRound(outline)), outline));
        ASSERT_TRUE(SameNodes(CPolyline(outline), outline));
    }
}

TEST(PolylineLaws, L2_SegmentsOfTheOutlineTurnedRoundAreTheSegmentsTurnedRound)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const CPolyline turned = TurnedRound(outline);
        const std::uint64_t count = outline.nodes.size();
        ASSERT_EQ(turned.IsClosed(), outline.IsClosed());
        for (std::uint64_t i = 0; i < count; ++i)
        {
            CSegment segment = outline.GetSegment(count - 1 - i);
            segment.ReverseDir();
            ASSERT_TRUE(SameFields(turned.GetSegment(i), segment));
        }
    }
}

TEST(PolylineLaws, L3_TurnedRoundTheAreaChangesItsSignAndNothingElseChanges)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const CPolyline turned = TurnedRound(outline);
        const auto count = static_cast<double>(outline.nodes.size());
        ASSERT_TRUE(Near(turned.GetArea(), -outline.GetArea(), 8 * Rounding));
        ASSERT_TRUE(Near(LengthOf(turned), LengthOf(outline), Rounding));
        ASSERT_TRUE(SameBox(turned.GetRECT(), outline.GetRECT()));
        for (const DPOINT2& place : Places)
        {
            ASSERT_TRUE(Near(NearestDistance(turned, place), NearestDistance(outline, place), Rounding));
        }
        for (double position = 0; position <= count; position += 0.125)
        {
            ASSERT_TRUE(Near(PointAt(turned, count - position), PointAt(outline, position), Rounding)) << position;
            ASSERT_TRUE(Near(turned.GetLength(count - position, count), outline.GetLength(0, position), Rounding));
        }
    }
}

TEST(PolylineLaws, L4_BegunElsewhereTheOutlineHasTheSameSegmentsUnderOtherNumbers)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const std::size_t count = outline.nodes.size();
        for (std::size_t k = 0; k < count; ++k)
        {
            const CPolyline moved = BegunAt(outline, k);
            ASSERT_TRUE(moved.IsClosed());
            for (std::size_t i = 0; i < count; ++i)
            {
                ASSERT_TRUE(SameFields(moved.GetSegment(i), outline.GetSegment((k + i) % count)));
            }
            for (double position = 0; position < static_cast<double>(count); position += 0.125)
            {
                const double before = std::fmod(position + static_cast<double>(k), static_cast<double>(count));
                ASSERT_TRUE(SameBits(PointAt(moved, position), PointAt(outline, before)));
            }
            ASSERT_TRUE(SameNodes(BegunAt(moved, count - k == count ? 0 : count - k), outline));
        }
    }
}

TEST(PolylineLaws, L5_BegunElsewhereTheMeasuresStayEitherWayRound)
{
    for (const CPolyline& forward : GridOutlines())
    {
        for (const CPolyline& outline : {forward, TurnedRound(forward)})
        {
            const double area = outline.GetArea();
            const double length = LengthOf(outline);
            const DRECT box = outline.GetRECT();
            std::vector<double> nearest;
            for (const DPOINT2& place : Places)
            {
                nearest.push_back(NearestDistance(outline, place));
            }
            for (std::size_t k = 1; k < outline.nodes.size(); ++k)
            {
                const CPolyline moved = BegunAt(outline, k);
                ASSERT_TRUE(Near(moved.GetArea(), area, 8 * Rounding));
                ASSERT_TRUE(Near(LengthOf(moved), length, Rounding));
                ASSERT_TRUE(SameBox(moved.GetRECT(), box));
                for (std::size_t i = 0; i < nearest.size(); ++i)
                {
                    ASSERT_EQ(NearestDistance(moved, Places[i]), nearest[i]);
                }
            }
        }
    }
}

TEST(PolylineLaws, L6_LengthsAddUpAlongTheOutlineExceptOverTheSeam)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const auto count = static_cast<double>(outline.nodes.size());
        double sum = 0;
        for (std::uint64_t i = 0; i < outline.nodes.size(); ++i)
        {
            sum += outline.GetSegment(i).GetLength();
        }
        ASSERT_TRUE(Near(LengthOf(outline), sum, Rounding));
        for (double from = 0; from <= count; from += 0.5)
        {
            for (double to = 0; to <= count; to += 0.375)
            {
                const double length = outline.GetLength(from, to);
                ASSERT_EQ(length == 0, to <= from);
                for (double middle = from; middle <= to; middle += 0.375)
                {
                    const double parts = outline.GetLength(from, middle) + outline.GetLength(middle, to);
                    ASSERT_TRUE(Near(parts, length, Rounding)) << from << " " << middle << " " << to;
                }
            }
        }
    }
}

TEST(PolylineLaws, L7_LengthsBetweenPlacesStayWhereverTheOutlineBegins)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const auto count = static_cast<double>(outline.nodes.size());
        for (std::size_t k = 1; k < outline.nodes.size(); ++k)
        {
            const CPolyline moved = BegunAt(outline, k);
            const auto shift = static_cast<double>(k);
            for (double from = 0; from <= count; from += 0.625)
            {
                for (double to = from + 0.25; to <= count; to += 0.5)
                {
                    // The places on the new outline; a stretch that crosses its seam is told in two.
                    const double newFrom = from < shift ? from - shift + count : from - shift;
                    const double newTo = to <= shift ? to - shift + count : to - shift;
                    const bool crosses = newFrom > newTo;
                    const double length = crosses ? moved.GetLength(newFrom, count) + moved.GetLength(0, newTo)
                                                  : moved.GetLength(newFrom, newTo);
                    ASSERT_TRUE(Near(length, outline.GetLength(from, to), Rounding)) << k << " " << from << " " << to;
                }
            }
        }
    }
}

TEST(PolylineLaws, L8_TheBoxIsThatOfTheSegmentsAndHoldsAllPoints)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const DRECT box = outline.GetRECT();
        double left = Infinity;
        double top = -Infinity;
        for (std::uint64_t i = 0; i < outline.nodes.size(); ++i)
        {
            const DRECT part = outline.GetSegment(i).GetBoundRect();
            left = std::min(left, part.x);
            top = std::max(top, part.y + part.height);
            for (double t = 0; t <= 1; t += 0.0625)
            {
                const DPOINT2 point = outline.GetSegment(i).GetPoint(t);
                ASSERT_TRUE(point.x >= box.x - Rounding && point.x <= box.x + box.width + Rounding);
                ASSERT_TRUE(point.y >= box.y - Rounding && point.y <= box.y + box.height + Rounding);
            }
        }
        ASSERT_EQ(box.x, left);
        ASSERT_TRUE(Near(box.y + box.height, top, Rounding));
    }
}

TEST(PolylineLaws, L9_TheAreaIsThatOfTheShoelaceFormulaNegatedExceptForSkippedNodesAndOpenOutlines)
{
    int opened = 0;
    for (const CPolyline& outline : GridOutlines())
    {
        ASSERT_TRUE(Near(outline.GetArea(), -AreaByTriangles(outline), 8 * Rounding));
        CPolyline open = outline;
        open.nodes.pop_back();
        ASSERT_FALSE(open.IsClosed());
        ASSERT_EQ(open.GetArea(), 0);
        ++opened;
    }
    EXPECT_GT(opened, 0);
    // A node nearer than the tolerance takes its bulge along, however large the circle on it.
    const double chord = 0.5e-9;
    const double bulge = 4e9; // a circle of radius 1/2, left out but for its place
    const CPolyline withCircle = Outline(At(0, 0), {{1, 0}, {1, 1}, {1, 1 + chord, bulge}, {0, 1}, {0, 0}});
    EXPECT_TRUE(Near(withCircle.GetArea(), -1, 1e-8));
    EXPECT_TRUE(Near(AreaByTriangles(withCircle), 1 + Pi / 4, 1e-3));
    // A last node that is skipped leaves a gap to the start, which is closed: 1000 times its width otherwise.
    const CPolyline high = Outline(At(0, 1000), {{0, 999}, {1, 999}, {1, 1000}, {5e-10, 1000}, {0, 1000}});
    EXPECT_TRUE(Near(high.GetArea(), -AreaByTriangles(high), 1e-9));
}

TEST(PolylineLaws, L10_CuttingASegmentChangesNeitherAreaNorLengthNorBox)
{
    for (const CPolyline& outline : GridOutlines())
    {
        for (std::uint64_t cut = 0; cut < outline.nodes.size(); ++cut)
        {
            for (const double t : {0.25, 0.5})
            {
                CPolyline pieces;
                pieces.start = outline.start;
                for (std::uint64_t i = 0; i < outline.nodes.size(); ++i)
                {
                    if (i == cut)
                    {
                        CSegment segment = outline.GetSegment(i);
                        const CSegment first = segment.GetSplitSegment(t, true);
                        const CSegment last = segment.GetSplitSegment(t, false);
                        pieces.AddNodes(first.end, first.bulge);
                        pieces.AddNodes(last.end, last.bulge);
                    }
                    else
                    {
                        pieces.AddNodes(outline.nodes[i]);
                    }
                }
                ASSERT_EQ(pieces.nodes.size(), outline.nodes.size() + 1);
                ASSERT_TRUE(Near(pieces.GetArea(), outline.GetArea(), 8 * Rounding));
                ASSERT_TRUE(Near(LengthOf(pieces), LengthOf(outline), 2 * Rounding));
                ASSERT_TRUE(SameBox(pieces.GetRECT(), outline.GetRECT()));
            }
        }
    }
}

TEST(PolylineLaws, L11_AreasOfTwoPartsAddUp)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const std::size_t count = outline.nodes.size();
        for (std::size_t cut = 0; cut + 1 < count; ++cut)
        {
            // From the start to the node and straight back, and from the node on, begun by the same chord.
            CPolyline first;
            first.start = outline.start;
            CPolyline last;
            last.start = outline.start;
            for (std::size_t i = 0; i <= cut; ++i)
            {
                first.AddNodes(outline.nodes[i]);
            }
            first.AddNodes(outline.start, 0);
            last.AddNodes(outline.nodes[cut].point, 0);
            for (std::size_t i = cut + 1; i < count; ++i)
            {
                last.AddNodes(outline.nodes[i]);
            }
            ASSERT_TRUE(Near(first.GetArea() + last.GetArea(), outline.GetArea(), 8 * Rounding));
        }
    }
}

TEST(PolylineLaws, L12_MovingTurningAndMirroringAnOutlineMovesItsMeasures)
{
    for (const CPolyline& outline : GridOutlines())
    {
        const DRECT box = outline.GetRECT();
        for (const Motion& motion : AllMotions())
        {
            const CPolyline moved = Moved(outline, motion);
            const bool isUpright = motion.quarterTurns % 2 == 0;
            ASSERT_TRUE(moved.IsClosed());
            ASSERT_TRUE(Near(moved.GetArea(), motion.mirrors ? -outline.GetArea() : outline.GetArea(), 16 * Rounding));
            ASSERT_TRUE(Near(LengthOf(moved), LengthOf(outline), 2 * Rounding));
            const DRECT movedBox = moved.GetRECT();
            ASSERT_TRUE(Near(movedBox.width, isUpright ? box.width : box.height, 2 * Rounding));
            ASSERT_TRUE(Near(movedBox.height, isUpright ? box.height : box.width, 2 * Rounding));
        }
    }
}
