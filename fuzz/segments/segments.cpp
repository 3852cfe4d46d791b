// Sequences of operations on a polyline, a copy of it, and a segment.

#include "Decoder.h"

#include "math/CPolyline.h"
#include "math/CSegment.h"

#include <Standard_ConstructionError.hxx>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <vector>

using namespace math;
using fuzz::Decoder;
using fuzz::SameBits;

namespace
{

bool SamePoint(const DPOINT2& a, const DPOINT2& b)
{
    return SameBits(a.x, b.x) && SameBits(a.y, b.y);
}

bool SameSegment(const CSegment& a, const CSegment& b)
{
    return a.type == b.type && SamePoint(a.start, b.start) && SamePoint(a.end, b.end) && SamePoint(a.ctrl1, b.ctrl1) &&
           SamePoint(a.ctrl2, b.ctrl2);
}

bool SameBox(const DRECT& a, const DRECT& b)
{
    return SameBits(a.x, b.x) && SameBits(a.y, b.y) && SameBits(a.width, b.width) && SameBits(a.height, b.height);
}

double Distance(const DPOINT2& a, const DPOINT2& b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

bool IsFinite(const DPOINT2& point)
{
    return std::isfinite(point.x) && std::isfinite(point.y);
}

/// Small coordinates, of which rounding takes little.
bool IsTame(const DPOINT2& point)
{
    return std::abs(point.x) <= 1000.0 && std::abs(point.y) <= 1000.0;
}

/// A line or an arc of clear length and moderate bulge, whose laws hold to rounding.
bool IsTame(const CSegment& segment)
{
    if (!IsTame(segment.start) || !IsTame(segment.end) || Distance(segment.start, segment.end) < 1e-3)
    {
        return false;
    }
    const double size = std::abs(segment.bulge);
    return segment.type == SegmentLine ? segment.bulge == 0.0
                                       : segment.type == SegmentArc && size >= 1e-3 && size <= 1e3;
}

// The radius of a tame arc is at most about 1.5e6, its centre is known to about 1e-7 then.
constexpr double TameTolerance = 1e-5;

/// A caller's record that counts how many of it there are.
class Record : public CPolyline::CExtendParam
{
public:
    static inline int alive = 0;
    static inline bool clonesFail = false;

    explicit Record(int value) : m_value(value)
    {
        ++alive;
    }
    Record(const Record& other) : CExtendParam(other), m_value(other.m_value)
    {
        ++alive;
    }
    Record& operator=(const Record&) = delete;
    ~Record() override
    {
        --alive;
    }

    CExtendParam* Clone() const override
    {
        if (clonesFail)
        {
            throw std::runtime_error("no clone");
        }
        return new Record(*this);
    }

    int Value() const
    {
        return m_value;
    }

private:
    int m_value;
};

/// The record's value, or -1 without one.
int ExtensionOf(const CPolyline& polyline)
{
    const auto* record = static_cast<const Record*>(polyline.GetExtendParam());
    return record != nullptr ? record->Value() : -1;
}

bool SameNodes(const CPolyline& a, const CPolyline& b)
{
    if (a.nodes.size() != b.nodes.size() || !SamePoint(a.start, b.start))
    {
        return false;
    }
    for (std::size_t i = 0; i < a.nodes.size(); ++i)
    {
        if (!SamePoint(a.nodes[i].point, b.nodes[i].point) || !SameBits(a.nodes[i].bulge, b.nodes[i].bulge))
        {
            return false;
        }
    }
    return true;
}

bool IsTame(const CPolyline& polyline)
{
    for (std::size_t i = 0; i < polyline.nodes.size(); ++i)
    {
        if (!IsTame(polyline.GetSegment(i)))
        {
            return false;
        }
    }
    return !polyline.nodes.empty();
}

// Segments

/// Runs what may raise the one exception that a direction of no length has, and tells whether it did not.
template <typename Function>
bool HasDirection(const Function& function)
{
    try
    {
        function();
        return true;
    }
    catch (const Standard_ConstructionError&)
    {
        return false;
    }
}

void CheckVectors(const CSegment& segment, double t)
{
    double asked = t;
    DPOINT2 middle;
    DPOINT2 start;
    DPOINT2 end;
    const bool hasMiddle = HasDirection([&] { middle = segment.GetMidVector(asked); });
    const bool hasStart = HasDirection([&] { start = segment.GetStartVector(); });
    const bool hasEnd = HasDirection([&] { end = segment.GetEndVector(); });
    FUZZ_REQUIRE(SameBits(asked, t));
    if (!IsTame(segment))
    {
        return;
    }
    FUZZ_REQUIRE(hasMiddle && hasStart && hasEnd);
    FUZZ_REQUIRE(std::abs(std::hypot(start.x, start.y) - 1.0) < 1e-12);
    FUZZ_REQUIRE(std::abs(std::hypot(end.x, end.y) - 1.0) < 1e-12);
    if (segment.type == SegmentLine)
    {
        // A straight segment is looked at backwards from its end.
        FUZZ_REQUIRE(Distance(start, {-end.x, -end.y}) < 1e-12);
    }
    const double direction = segment.GetAngle(0.0);
    FUZZ_REQUIRE(Distance(start, {std::cos(direction), std::sin(direction)}) < TameTolerance);
}

void CheckAngle(const CSegment& segment, double t)
{
    const double angle = segment.GetAngle(t);
    if (segment.type < SegmentLine || segment.type > SegmentBezier)
    {
        FUZZ_REQUIRE(std::isnan(angle));
    }
    if (segment.type == SegmentLine && !std::isnan(angle))
    {
        FUZZ_REQUIRE(angle >= 0.0 && angle < 2.0 * fuzz::Pi);
    }
}

void CheckBox(const CSegment& segment)
{
    const DRECT box = segment.GetBoundRect();
    const DRECT boxes[] = {CSegment::GetBoundRectOfLine(segment.start, segment.end),
                           CSegment::GetBoundRectOfArc(segment.start, segment.end, segment.bulge),
                           CSegment::GetBoundRectOfBezier(segment.start, segment.ctrl1, segment.ctrl2, segment.end)};
    if (segment.type >= SegmentLine && segment.type <= SegmentBezier)
    {
        FUZZ_REQUIRE(SameBox(box, boxes[segment.type - SegmentLine]));
    }
    if (segment.type != SegmentBezier && !IsTame(segment))
    {
        return;
    }
    if (segment.type == SegmentBezier &&
        !(IsTame(segment.start) && IsTame(segment.end) && IsTame(segment.ctrl1) && IsTame(segment.ctrl2)))
    {
        return;
    }
    FUZZ_REQUIRE(box.width >= 0.0 && box.height >= 0.0);
    // A curve's box comes from samples, which lie apart by at most a thousandth of the control polygon's speed.
    const double tolerance = segment.type == SegmentBezier ? 10.0 : TameTolerance;
    for (int i = 0; i <= 16; ++i)
    {
        const DPOINT2 point = segment.GetPoint(i / 16.0);
        FUZZ_REQUIRE(IsFinite(point));
        FUZZ_REQUIRE(point.x >= box.x - tolerance && point.x <= box.x + box.width + tolerance);
        FUZZ_REQUIRE(point.y >= box.y - tolerance && point.y <= box.y + box.height + tolerance);
    }
}

/// How far past its ends a curve still counts: the tolerance of angle along the circle of an arc.
double ReachPastEnds(const CSegment& segment)
{
    const double square = segment.bulge * segment.bulge;
    return segment.type == SegmentArc ? DoubleTolerance * Distance(segment.start, segment.end) * (1.0 + square) /
                                            (4.0 * std::abs(segment.bulge))
                                      : 0.0;
}

void CheckNearest(const CSegment& segment, const DPOINT2& from)
{
    double t = -77.0;
    const DPOINT2 nearest = segment.GetNearestPoint(from, t);
    FUZZ_REQUIRE(t >= 0.0 && t <= 1.0);
    // The point may also be the output's neighbour in memory.
    struct
    {
        double ratio;
        DPOINT2 point;
    } shared = {0.0, from};
    const DPOINT2 again = segment.GetNearestPoint(shared.point, shared.ratio);
    FUZZ_REQUIRE(SamePoint(nearest, again) && SameBits(t, shared.ratio));
    if (!IsTame(segment) || !IsTame(from))
    {
        return;
    }
    const double distance = Distance(from, nearest);
    FUZZ_REQUIRE(Distance(segment.GetPoint(t), nearest) < TameTolerance + ReachPastEnds(segment));
    for (int i = 0; i <= 16; ++i)
    {
        FUZZ_REQUIRE(distance <= Distance(from, segment.GetPoint(i / 16.0)) + TameTolerance);
    }
}

void CheckSplit(CSegment segment, double from, double to)
{
    const CSegment before = segment;
    const CSegment head = segment.GetSplitSegment(from, true);
    const CSegment tail = segment.GetSplitSegment(from, false);
    const CSegment piece = segment.GetSplitSegment(from, to);
    FUZZ_REQUIRE(SameSegment(segment, before));
    const int expected = std::abs(segment.bulge) < 1e-9 ? SegmentLine : SegmentArc;
    if (!std::isnan(segment.bulge))
    {
        FUZZ_REQUIRE(head.type == expected && tail.type == expected && piece.type == expected);
    }
    FUZZ_REQUIRE(SamePoint(head.start, segment.start) && SamePoint(tail.end, segment.end));
    FUZZ_REQUIRE(SamePoint(head.end, tail.start) && SamePoint(piece.start, tail.start));
    if (!IsTame(segment) || !(from >= 0.01 && from <= 0.99))
    {
        return;
    }
    // Short pieces of slight arcs are nearly straight: their own circle is known less well.
    for (const double t : {0.0, 0.25, 0.5, 1.0})
    {
        FUZZ_REQUIRE(Distance(head.GetPoint(t), segment.GetPoint(t * from)) < TameTolerance);
        FUZZ_REQUIRE(Distance(tail.GetPoint(t), segment.GetPoint(from + t * (1.0 - from))) < TameTolerance);
    }
    FUZZ_REQUIRE(std::abs(head.GetLength() + tail.GetLength() - segment.GetLength()) <
                 1e-6 * (1.0 + segment.GetLength()));
}

void CheckReverse(const CSegment& segment)
{
    CSegment turned = segment;
    turned.ReverseDir();
    FUZZ_REQUIRE(SamePoint(turned.start, segment.end) && SamePoint(turned.end, segment.start));
    FUZZ_REQUIRE(segment.bulge == 0.0 ? SameBits(turned.bulge, segment.bulge) : SameBits(turned.bulge, -segment.bulge));
    if (IsTame(segment))
    {
        FUZZ_REQUIRE(Distance(turned.GetPoint(0.25), segment.GetPoint(0.75)) < TameTolerance);
        FUZZ_REQUIRE(std::abs(turned.GetLength() - segment.GetLength()) <= 1e-12 * segment.GetLength());
    }
    turned.ReverseDir();
    FUZZ_REQUIRE(SameSegment(turned, segment));
}

void CheckPoints(const CSegment& segment, double t)
{
    segment.GetPoint(t);
    FUZZ_REQUIRE(!(segment.GetLength() < 0.0));
    if (segment.type < SegmentLine || segment.type > SegmentBezier)
    {
        FUZZ_REQUIRE(SamePoint(segment.GetPoint(t), {0.0, 0.0}) && segment.GetLength() == 0.0);
    }
    if (!IsTame(segment))
    {
        return;
    }
    FUZZ_REQUIRE(Distance(segment.GetPoint(0.0), segment.start) < TameTolerance);
    FUZZ_REQUIRE(Distance(segment.GetPoint(1.0), segment.end) < TameTolerance);
    FUZZ_REQUIRE(segment.GetLength() >= Distance(segment.start, segment.end) * (1.0 - 1e-12));
}

/// A new kind for the segment. Arguments may refer into the segment itself.
void Reshape(CSegment& segment, Decoder& decoder)
{
    switch (decoder.Below(8))
    {
    case 0:
        segment = CSegment{decoder.Point(), decoder.Point()};
        break;
    case 1:
        segment = CSegment{decoder.Point(), decoder.Point(), decoder.Number()};
        break;
    case 2:
        segment = CSegment{decoder.Point(), decoder.Point(), decoder.Point(), decoder.Point()};
        break;
    case 3: {
        const CSegment before = segment;
        segment.Set(segment.end, segment.start);
        FUZZ_REQUIRE(segment.type == SegmentLine && SamePoint(segment.start, before.end) &&
                     SamePoint(segment.end, before.start) && SamePoint(segment.ctrl1, before.ctrl1));
        break;
    }
    case 4: {
        const CSegment before = segment;
        segment.Set(segment.end, segment.start, segment.bulge);
        FUZZ_REQUIRE(segment.type == SegmentArc && SamePoint(segment.start, before.end) &&
                     SamePoint(segment.end, before.start) && SamePoint(segment.ctrl1, before.ctrl1));
        break;
    }
    case 5: {
        const CSegment before = segment;
        segment.Set(segment.end, segment.ctrl2, segment.ctrl1, segment.start);
        FUZZ_REQUIRE(SameSegment(segment, CSegment(before.end, before.ctrl2, before.ctrl1, before.start)));
        break;
    }
    case 6:
        segment.type = decoder.Whole();
        break;
    default:
        segment = CSegment();
        break;
    }
}

void CheckSegment(const CSegment& segment, Decoder& decoder)
{
    const double t = decoder.Number();
    switch (decoder.Below(7))
    {
    case 0:
        CheckVectors(segment, t);
        break;
    case 1:
        CheckAngle(segment, t);
        break;
    case 2:
        CheckBox(segment);
        break;
    case 3:
        CheckNearest(segment, decoder.Point());
        break;
    case 4:
        CheckSplit(segment, t, decoder.Number());
        break;
    case 5:
        CheckReverse(segment);
        break;
    default:
        CheckPoints(segment, t);
        break;
    }
}

// Polylines

void AddNode(CPolyline& polyline, const DPOINT2& point, double bulge)
{
    const std::size_t before = polyline.nodes.size();
    const DPOINT2 last = before == 0 ? polyline.start : polyline.nodes.back().point;
    const DPOINT2 asked = point;
    polyline.AddNodes(point, bulge);
    if (asked.x == last.x && asked.y == last.y)
    {
        FUZZ_REQUIRE(polyline.nodes.size() == before);
        return;
    }
    FUZZ_REQUIRE(polyline.nodes.size() == before + 1);
    FUZZ_REQUIRE(SamePoint(polyline.nodes.back().point, asked) && SameBits(polyline.nodes.back().bulge, bulge));
}

void Turn(CPolyline& polyline)
{
    const CPolyline before(polyline);
    polyline.ReversePolyline();
    FUZZ_REQUIRE(polyline.nodes.size() == before.nodes.size() && polyline.IsClosed() == before.IsClosed());
    CPolyline twice(polyline);
    twice.ReversePolyline();
    FUZZ_REQUIRE(SameNodes(twice, before));
    if (!IsTame(before))
    {
        return;
    }
    const auto count = static_cast<double>(before.nodes.size());
    const double length = before.GetLength(0.0, count);
    FUZZ_REQUIRE(std::abs(polyline.GetLength(0.0, count) - length) <= 1e-9 * (1.0 + length));
    // Arcs of tame bulges enclose less than a thousand million units each.
    FUZZ_REQUIRE(std::abs(polyline.GetArea() + before.GetArea()) <= 1e-9 * (1e9 + length * length));
}

void CheckBox(const CPolyline& polyline)
{
    const DRECT box = polyline.GetRECT();
    if (!IsTame(polyline))
    {
        return;
    }
    FUZZ_REQUIRE(box.width >= 0.0 && box.height >= 0.0);
    for (const CPolyline::NODE& node : polyline.nodes)
    {
        FUZZ_REQUIRE(node.point.x >= box.x - 1e-9 && node.point.x <= box.x + box.width + TameTolerance);
        FUZZ_REQUIRE(node.point.y >= box.y - 1e-9 && node.point.y <= box.y + box.height + TameTolerance);
    }
}

void CheckLength(const CPolyline& polyline, double from, double to)
{
    const auto count = static_cast<double>(polyline.nodes.size());
    const double length = polyline.GetLength(from, to);
    const bool served = from < to && to - from >= 1e-9 && from >= 0.0 && to <= count;
    if (!served)
    {
        FUZZ_REQUIRE(length == 0.0);
        return;
    }
    FUZZ_REQUIRE(!(length < 0.0));
    // Half of a shorter stretch is no stretch any more.
    if (!IsTame(polyline) || to - from < 4e-9)
    {
        return;
    }
    double sum = 0.0;
    for (std::size_t i = 0; i < polyline.nodes.size(); ++i)
    {
        sum += polyline.GetSegment(i).GetLength();
    }
    const double tolerance = 1e-9 * (1.0 + sum);
    FUZZ_REQUIRE(std::abs(polyline.GetLength(0.0, count) - sum) <= tolerance);
    const double middle = (from + to) / 2.0;
    const double parts = polyline.GetLength(from, middle) + polyline.GetLength(middle, to);
    FUZZ_REQUIRE(std::abs(parts - length) <= tolerance);
    FUZZ_REQUIRE(length <= sum + tolerance);
}

void CheckArea(const CPolyline& polyline)
{
    const double area = polyline.GetArea();
    if (!polyline.IsClosed() || polyline.nodes.size() < 2)
    {
        FUZZ_REQUIRE(area == 0.0);
    }
}

void CheckSegmentOf(const CPolyline& polyline, std::uint64_t index)
{
    const CSegment segment = polyline.GetSegment(index);
    if (index >= polyline.nodes.size())
    {
        FUZZ_REQUIRE(SameSegment(segment, CSegment()));
        return;
    }
    const CPolyline::NODE& node = polyline.nodes[index];
    FUZZ_REQUIRE(segment.type == (node.bulge != 0.0 ? SegmentArc : SegmentLine));
    FUZZ_REQUIRE(SamePoint(segment.end, node.point));
    FUZZ_REQUIRE(SamePoint(segment.start, index == 0 ? polyline.start : polyline.nodes[index - 1].point));
}

/// The place of a position, as callers find it.
void WalkTo(const CPolyline& polyline, double position)
{
    if (!(position >= 0.0 && position <= 1e6))
    {
        return;
    }
    double whole = 0.0;
    const double ratio = std::modf(position, &whole);
    const CSegment segment = polyline.GetSegment(static_cast<std::uint64_t>(whole));
    const DPOINT2 point = segment.GetPoint(ratio);
    if (IsTame(polyline) && segment.type != SegmentNone)
    {
        double t = 0.0;
        FUZZ_REQUIRE(Distance(segment.GetNearestPoint(point, t), point) < TameTolerance);
    }
}

void Assign(CPolyline& target, const CPolyline& other, bool clonesFail)
{
    const int extension = ExtensionOf(other);
    const CPolyline expected(other);
    Record::clonesFail = clonesFail;
    try
    {
        target = other;
        FUZZ_REQUIRE(ExtensionOf(target) == extension);
        FUZZ_REQUIRE(&target == &other || target.GetExtendParam() == nullptr ||
                     target.GetExtendParam() != other.GetExtendParam());
    }
    catch (const std::runtime_error&)
    {
        FUZZ_REQUIRE(clonesFail && extension != -1 && target.GetExtendParam() == nullptr);
    }
    Record::clonesFail = false;
    FUZZ_REQUIRE(SameNodes(target, expected));
}

void SetExtension(CPolyline& polyline, int value)
{
    if (value < 0)
    {
        polyline.SetExtendParam(nullptr);
    }
    else if (value % 4 == 0)
    {
        polyline.SetExtendParam(polyline.GetExtendParam());
    }
    else
    {
        polyline.SetExtendParam(new Record(value));
        FUZZ_REQUIRE(ExtensionOf(polyline) == value);
    }
}

constexpr std::size_t MostNodes = 64;

void RunOne(CPolyline& polyline, CPolyline& other, CSegment& segment, Decoder& decoder)
{
    switch (decoder.Below(20))
    {
    case 0:
        polyline.start = decoder.Point();
        break;
    case 1:
    case 2:
    case 3: {
        const DPOINT2 point = decoder.Point();
        AddNode(polyline, point, decoder.Flag() ? decoder.Number() : 0.0);
        break;
    }
    case 4:
        AddNode(polyline, polyline.start, decoder.Number());
        FUZZ_REQUIRE(polyline.IsClosed() || polyline.nodes.empty() || std::isnan(polyline.start.x) ||
                     std::isnan(polyline.start.y));
        break;
    case 5:
        if (!polyline.nodes.empty())
        {
            const std::size_t index = decoder.Byte() % polyline.nodes.size();
            polyline.AddNodes(polyline.nodes[index]);
        }
        break;
    case 6:
        Turn(polyline);
        break;
    case 7:
        CheckBox(polyline);
        break;
    case 8: {
        const double from = decoder.Number();
        CheckLength(polyline, from, decoder.Number());
        break;
    }
    case 9:
        CheckArea(polyline);
        break;
    case 10: {
        const std::uint64_t index = decoder.Byte() % (MostNodes + 1);
        CheckSegmentOf(polyline, index);
        segment = polyline.GetSegment(index);
        break;
    }
    case 11:
        WalkTo(polyline, decoder.Number());
        break;
    case 12:
        SetExtension(polyline, static_cast<std::int8_t>(decoder.Byte()));
        break;
    case 13: {
        const CPolyline& source = decoder.Flag() ? other : polyline;
        Assign(polyline, source, decoder.Below(4) == 0);
        break;
    }
    case 14: {
        const CPolyline copy(polyline);
        FUZZ_REQUIRE(SameNodes(copy, polyline) && ExtensionOf(copy) == ExtensionOf(polyline));
        Assign(other, copy, false);
        break;
    }
    case 15:
        if (!polyline.nodes.empty())
        {
            polyline.nodes[decoder.Byte() % polyline.nodes.size()].bulge = decoder.Number();
        }
        break;
    case 16:
        Reshape(segment, decoder);
        break;
    default:
        CheckSegment(segment, decoder);
        break;
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Decoder decoder(data, size);
    {
        CPolyline polyline;
        CPolyline other(7);
        CSegment segment;
        while (!decoder.IsEmpty())
        {
            fuzz::TheTrace().Begin("a sequence of operations");
            RunOne(polyline, other, segment, decoder);
            if (polyline.nodes.size() > MostNodes)
            {
                polyline.nodes.resize(MostNodes);
            }
        }
    }
    FUZZ_REQUIRE(Record::alive == 0);
    return 0;
}
