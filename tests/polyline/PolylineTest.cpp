#include "math/CPolyline.h"
#include "support/Outlines.h"
#include "support/Segments.h"

#include <cstddef>

using namespace math;
using namespace math::test;

// What a polyline holds: nodes, closedness, segments, turning round.

TEST(Polyline, ANewOneIsEmpty)
{
    const CPolyline polyline;
    EXPECT_EQ(polyline.id, 0xFFFFFFFFU);
    EXPECT_EQ(polyline.attribute, 1);
    EXPECT_EQ(polyline.start, At(0, 0));
    EXPECT_TRUE(polyline.nodes.empty());
    EXPECT_EQ(polyline.flags, 0);
    EXPECT_EQ(polyline.extendParam, nullptr);
    EXPECT_EQ(polyline.GetExtendParam(), nullptr);
    EXPECT_FALSE(polyline.IsClosed());
    EXPECT_TRUE(IsBox(polyline.GetRECT(), 0, 0, 0, 0, 0));
    EXPECT_EQ(polyline.GetArea(), 0);
    EXPECT_EQ(polyline.GetLength(0, 1), 0);
}

TEST(Polyline, TakesAnIdOfTheCallers)
{
    const CPolyline polyline(42U);
    EXPECT_EQ(polyline.id, 42U);
    EXPECT_EQ(polyline.attribute, 1);
    EXPECT_EQ(polyline.flags, 0);
    EXPECT_EQ(polyline.extendParam, nullptr);
    EXPECT_TRUE(polyline.nodes.empty());
}

TEST(Polyline, ANewNodeIsZero)
{
    const CPolyline::NODE node;
    EXPECT_EQ(node.point, At(0, 0));
    EXPECT_EQ(node.bulge, 0);
}

TEST(Polyline, FieldsFollowEachOtherInTheirOrder)
{
    const CPolyline polyline;
    const auto* const id = reinterpret_cast<const char*>(&polyline.id);
    const auto* const attribute = reinterpret_cast<const char*>(&polyline.attribute);
    const auto* const start = reinterpret_cast<const char*>(&polyline.start);
    const auto* const nodes = reinterpret_cast<const char*>(&polyline.nodes);
    const auto* const flags = reinterpret_cast<const char*>(&polyline.flags);
    const auto* const extendParam = reinterpret_cast<const char*>(&polyline.extendParam);
    EXPECT_TRUE(id < attribute && attribute < start && start < nodes && nodes < flags && flags < extendParam);
    EXPECT_TRUE(std::has_virtual_destructor_v<CPolyline>);
}

// Adding nodes

TEST(PolylineAddNodes, StoresPointAndBulgeUnchanged)
{
    CPolyline polyline;
    polyline.AddNodes(At(1, 2), 0.5);
    CPolyline::NODE node;
    node.point = At(3, 4);
    node.bulge = -1e-12;
    polyline.AddNodes(node);
    ASSERT_EQ(polyline.nodes.size(), 2U);
    EXPECT_EQ(polyline.nodes[0].point, At(1, 2));
    EXPECT_EQ(polyline.nodes[0].bulge, 0.5);
    EXPECT_EQ(polyline.nodes[1].point, At(3, 4));
    EXPECT_EQ(polyline.nodes[1].bulge, -1e-12);
    EXPECT_EQ(polyline.start, At(0, 0));
}

TEST(PolylineAddNodes, TheStartIsNotAddedToAnEmptyOne)
{
    CPolyline polyline;
    polyline.start = At(1, 2);
    polyline.AddNodes(At(1, 2), 0.5);
    CPolyline::NODE node;
    node.point = At(1, 2);
    polyline.AddNodes(node);
    EXPECT_TRUE(polyline.nodes.empty());
    polyline.AddNodes(At(0, 0), 0); // the start of a new polyline, but not of this one
    EXPECT_EQ(polyline.nodes.size(), 1U);
}

TEST(PolylineAddNodes, ARepeatedPointIsDroppedWithItsBulge)
{
    CPolyline polyline;
    polyline.AddNodes(At(1, 2), 0.5);
    polyline.AddNodes(At(1, 2), 0.75);
    CPolyline::NODE node;
    node.point = At(1, 2);
    node.bulge = 1;
    polyline.AddNodes(node);
    ASSERT_EQ(polyline.nodes.size(), 1U);
    EXPECT_EQ(polyline.nodes[0].bulge, 0.5);
}

TEST(PolylineAddNodes, BothCoordinatesMustBeEqualExactly)
{
    CPolyline polyline;
    polyline.start = At(1, 2);
    polyline.AddNodes(At(1, 5), 0);
    polyline.AddNodes(At(4, 5), 0);
    polyline.AddNodes(At(4, 6), 0);
    polyline.AddNodes(At(4, 6 + 1e-12), 0);
    polyline.AddNodes(At(Next(4), 6 + 1e-12), 0);
    EXPECT_EQ(polyline.nodes.size(), 5U);
    CPolyline other;
    other.start = At(1, 2);
    other.AddNodes(At(Next(1), 2), 0);
    EXPECT_EQ(other.nodes.size(), 1U);
}

TEST(PolylineAddNodes, OnlyThePointBeforeCounts)
{
    CPolyline polyline;
    polyline.AddNodes(At(1, 0), 0);
    polyline.AddNodes(At(1, 1), 0);
    polyline.AddNodes(At(1, 0), 0);
    polyline.AddNodes(At(0, 0), 0); // back at the start
    EXPECT_EQ(polyline.nodes.size(), 4U);
}

TEST(PolylineAddNodes, ZerosOfBothSignsAreEqualAndNoneIsNeverEqual)
{
    CPolyline polyline;
    polyline.AddNodes(At(-0.0, 0.0), 0);
    EXPECT_TRUE(polyline.nodes.empty());
    polyline.AddNodes(At(InvalidDouble, 0), 0);
    polyline.AddNodes(At(InvalidDouble, 0), 0);
    EXPECT_EQ(polyline.nodes.size(), 2U);
}

TEST(PolylineAddNodes, MayTakeANodeOfThePolylineItself)
{
    for (int i = 0; i < 40; ++i) // often enough for the list of nodes to grow from each capacity
    {
        CPolyline polyline;
        polyline.AddNodes(At(1, 2), 0.5);
        for (int k = 0; k < i; ++k)
        {
            polyline.AddNodes(At(k, 10), 0);
        }
        polyline.AddNodes(At(7, 7), 0.25);
        polyline.nodes.shrink_to_fit();
        polyline.AddNodes(polyline.nodes.front());
        ASSERT_EQ(polyline.nodes.back().point, At(1, 2));
        ASSERT_EQ(polyline.nodes.back().bulge, 0.5);
        polyline.nodes.shrink_to_fit();
        polyline.AddNodes(polyline.start, polyline.nodes.front().bulge);
        ASSERT_EQ(polyline.nodes.back().point, At(0, 0));
        polyline.nodes.shrink_to_fit();
        polyline.AddNodes(polyline.nodes[0].point, 0.125);
        ASSERT_EQ(polyline.nodes.back().point, At(1, 2));
        ASSERT_EQ(polyline.nodes.back().bulge, 0.125);
    }
}

// Closed

TEST(PolylineIsClosed, TheLastPointMustBeTheStartExactly)
{
    CPolyline polyline;
    polyline.start = At(1, 2);
    EXPECT_FALSE(polyline.IsClosed()) << "no nodes";
    polyline.AddNodes(At(5, 5), 0);
    EXPECT_FALSE(polyline.IsClosed());
    polyline.AddNodes(At(1, 2), 0);
    EXPECT_TRUE(polyline.IsClosed());
    polyline.AddNodes(At(1, 5), 0);
    EXPECT_FALSE(polyline.IsClosed()) << "only x";
    polyline.AddNodes(At(5, 2), 0);
    EXPECT_FALSE(polyline.IsClosed()) << "only y";
    polyline.AddNodes(At(1, 2 + 1e-12), 0);
    EXPECT_FALSE(polyline.IsClosed()) << "no tolerance";
    polyline.AddNodes(At(Next(1), 2), 0);
    EXPECT_FALSE(polyline.IsClosed()) << "no tolerance";
}

TEST(PolylineIsClosed, AMoveOfTheStartOpensIt)
{
    CPolyline square = Square();
    EXPECT_TRUE(square.IsClosed());
    square.start.x += 1e-12;
    EXPECT_FALSE(square.IsClosed());
}

TEST(PolylineIsClosed, ASingleNodeWrittenAtTheStartCloses)
{
    CPolyline polyline;
    polyline.nodes.push_back({});
    EXPECT_TRUE(polyline.IsClosed());
}

// Segments

TEST(PolylineGetSegment, RunsFromNodeToNode)
{
    CPolyline polyline;
    polyline.start = At(1, 2);
    polyline.AddNodes(At(3, 4), 0);
    polyline.AddNodes(At(5, 6), 0.5);
    polyline.AddNodes(At(7, 8), -0.25);
    EXPECT_TRUE(IsLineOrArc(polyline.GetSegment(0), SegmentLine, At(1, 2), At(3, 4), 0));
    EXPECT_TRUE(IsLineOrArc(polyline.GetSegment(1), SegmentArc, At(3, 4), At(5, 6), 0.5));
    EXPECT_TRUE(IsLineOrArc(polyline.GetSegment(2), SegmentArc, At(5, 6), At(7, 8), -0.25));
}

TEST(PolylineGetSegment, OnlyABulgeOfExactlyZeroIsALine)
{
    CPolyline polyline;
    polyline.AddNodes(At(1, 0), 1e-12);
    polyline.AddNodes(At(2, 0), -0.0);
    polyline.AddNodes(At(3, 0), 4.9e-324);
    EXPECT_TRUE(IsLineOrArc(polyline.GetSegment(0), SegmentArc, At(0, 0), At(1, 0), 1e-12));
    EXPECT_TRUE(IsLineOrArc(polyline.GetSegment(1), SegmentLine, At(1, 0), At(2, 0), 0));
    EXPECT_FALSE(std::signbit(polyline.GetSegment(1).bulge));
    EXPECT_EQ(polyline.GetSegment(2).type, SegmentArc);
}

TEST(PolylineGetSegment, BeyondTheLastThereIsNone)
{
    CPolyline polyline = Square();
    for (const std::uint64_t index : {std::uint64_t{4}, std::uint64_t{5}, std::uint64_t{1} << 32, ~std::uint64_t{0}})
    {
        EXPECT_TRUE(IsLineOrArc(polyline.GetSegment(index), SegmentNone, At(0, 0), At(0, 0), 0)) << index;
    }
    EXPECT_TRUE(IsLineOrArc(CPolyline().GetSegment(0), SegmentNone, At(0, 0), At(0, 0), 0));
}

// Turning round

TEST(PolylineReverse, PointsAndBulgesChangePlacesOneStepApart)
{
    CPolyline polyline;
    polyline.AddNodes(At(1, 0), 0.5);
    polyline.AddNodes(At(2, 0), 0);
    polyline.ReversePolyline();
    EXPECT_EQ(polyline.start, At(2, 0));
    ASSERT_EQ(polyline.nodes.size(), 2U);
    EXPECT_EQ(polyline.nodes[0].point, At(1, 0));
    EXPECT_TRUE(SameBits(polyline.nodes[0].bulge, -0.0));
    EXPECT_EQ(polyline.nodes[1].point, At(0, 0));
    EXPECT_EQ(polyline.nodes[1].bulge, -0.5);
    EXPECT_EQ(polyline.GetSegment(0).type, SegmentLine);
    EXPECT_EQ(polyline.GetSegment(1).type, SegmentArc);
}

TEST(PolylineReverse, FourNodes)
{
    CPolyline polyline;
    polyline.start = At(0, 9);
    polyline.AddNodes(At(1, 1), 0.1);
    polyline.AddNodes(At(2, 2), 0.2);
    polyline.AddNodes(At(3, 3), 0.3);
    polyline.AddNodes(At(4, 4), 0.4);
    polyline.ReversePolyline();
    EXPECT_EQ(polyline.start, At(4, 4));
    const DPOINT2 points[] = {At(3, 3), At(2, 2), At(1, 1), At(0, 9)};
    const double bulges[] = {-0.4, -0.3, -0.2, -0.1};
    for (std::size_t k = 0; k < 4; ++k)
    {
        EXPECT_EQ(polyline.nodes[k].point, points[k]) << k;
        EXPECT_EQ(polyline.nodes[k].bulge, bulges[k]) << k;
    }
}

TEST(PolylineReverse, ASingleNodeSwapsWithTheStart)
{
    CPolyline polyline;
    polyline.start = At(1, 2);
    polyline.AddNodes(At(3, 4), 0.5);
    polyline.ReversePolyline();
    EXPECT_EQ(polyline.start, At(3, 4));
    ASSERT_EQ(polyline.nodes.size(), 1U);
    EXPECT_EQ(polyline.nodes[0].point, At(1, 2));
    EXPECT_EQ(polyline.nodes[0].bulge, -0.5);
}

TEST(PolylineReverse, WithoutNodesTheStartStays)
{
    CPolyline polyline;
    polyline.start = At(1, 2);
    polyline.ReversePolyline();
    EXPECT_EQ(polyline.start, At(1, 2));
    EXPECT_TRUE(polyline.nodes.empty());
}

TEST(PolylineReverse, LeavesTheCallersFieldsAlone)
{
    CPolyline polyline(7U);
    polyline.attribute = 8;
    polyline.flags = 9;
    polyline.AddNodes(At(1, 2), 0);
    polyline.ReversePolyline();
    EXPECT_EQ(polyline.id, 7U);
    EXPECT_EQ(polyline.attribute, 8);
    EXPECT_EQ(polyline.flags, 9);
}

TEST(PolylineReverse, RunsTheSameCurveTheOtherWay)
{
    Random random(401);
    for (int i = 0; i < 100; ++i)
    {
        const CPolyline original = RandomOutline(random, random.Integer(2, 9));
        CPolyline polyline = original;
        polyline.ReversePolyline();
        const std::size_t count = original.nodes.size();
        ASSERT_EQ(polyline.nodes.size(), count);
        ASSERT_TRUE(polyline.IsClosed());
        for (std::size_t k = 0; k < count; ++k)
        {
            const CSegment turned = polyline.GetSegment(k);
            CSegment segment = original.GetSegment(count - 1 - k);
            segment.ReverseDir();
            ASSERT_EQ(turned.type, segment.type);
            ASSERT_EQ(turned.start, segment.start);
            ASSERT_EQ(turned.end, segment.end);
            ASSERT_EQ(turned.bulge, segment.bulge);
        }
        polyline.ReversePolyline();
        ASSERT_EQ(polyline.start, original.start);
        for (std::size_t k = 0; k < count; ++k)
        {
            ASSERT_EQ(polyline.nodes[k].point, original.nodes[k].point);
            ASSERT_EQ(polyline.nodes[k].bulge, original.nodes[k].bulge);
        }
    }
}
