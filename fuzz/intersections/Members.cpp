// Pointer forms against vector forms, and both against what the headers tell of every member.

#include "Curve.h"

#include "math/Intersect.h"
#include "support/ReferenceEllipses.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <cstddef>
#include <vector>

using namespace math;

namespace fuzz
{

namespace
{

/// What the trailing int of a vector form means.
enum class Trailing
{
    Ignored,
    WantPoints,
    MaxPoints
};

/// The outputs of a pointer form, as many as it has.
using Outputs = std::array<DPOINT2*, 4>;

struct Member
{
    const char* name;
    const char* kinds; ///< the letters of its two curves
    int outputs;
    Trailing trailing;
    int (*byPointers)(const Curve& x, const Curve& y, const Outputs& out);
    int (*byVector)(const Curve& x, const Curve& y, std::vector<DPOINT2>& points, int trailing);
};

// clang-format off
// Members by the letters of their curves: `x` and `y` stand for the arguments of either curve.
#define FUZZ_B(c) *c.p, c.angle
#define FUZZ_L(c) *c.p, *c.q
#define FUZZ_C(c) *c.p, c.a
#define FUZZ_A(c) *c.p, c.a, c.start, c.sweep
#define FUZZ_E(c) *c.p, c.a, c.b, c.rotation
#define FUZZ_F(c) *c.p, c.a, c.b, c.rotation, c.start, c.sweep
#define FUZZ_OUT_1 out[0]
#define FUZZ_OUT_2 out[0], out[1]
#define FUZZ_OUT_4 out[0], out[1], out[2], out[3]
#define FUZZ_MEMBER(function, K1, K2, count, trailing)                                                                 \
    Member{#function, #K1 #K2, count, Trailing::trailing,                                                              \
           [](const Curve& x, const Curve& y, const Outputs& out) {                                                    \
               return function(FUZZ_##K1(x), FUZZ_##K2(y), FUZZ_OUT_##count);                                          \
           },                                                                                                          \
           [](const Curve& x, const Curve& y, std::vector<DPOINT2>& points, int last) {                                \
               return function(FUZZ_##K1(x), FUZZ_##K2(y), points, last);                                              \
           }}

const Member members[] = {
    FUZZ_MEMBER(Intersect_BeelineWithBeeline, B, B, 1, Ignored),
    FUZZ_MEMBER(Intersect_BeelineWithLine, B, L, 1, Ignored),
    FUZZ_MEMBER(Intersect_LineWithLine, L, L, 1, WantPoints),
    FUZZ_MEMBER(Intersect_BeelineWithCircle, B, C, 2, WantPoints),
    FUZZ_MEMBER(Intersect_BeelineWithArc, B, A, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_LineWithCircle, L, C, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_LineWithArc, L, A, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_CircleWithCircle, C, C, 2, WantPoints),
    FUZZ_MEMBER(Intersect_CircleWithArc, C, A, 2, Ignored),
    FUZZ_MEMBER(Intersect_ArcWithArc, A, A, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_BeelineWithEllipse, B, E, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_BeelineWithEllipseArc, B, F, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_LineWithEllipse, L, E, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_LineWithEllipseArc, L, F, 2, MaxPoints),
    FUZZ_MEMBER(Intersect_EllipseWithEllipse, E, E, 4, MaxPoints),
    FUZZ_MEMBER(Intersect_EllipseWithEllipseArc, E, F, 4, MaxPoints),
    FUZZ_MEMBER(Intersect_EllipseArcWithEllipseArc, F, F, 4, MaxPoints),
    FUZZ_MEMBER(Intersect_CircleWithEllipse, C, E, 4, MaxPoints),
    FUZZ_MEMBER(Intersect_CircleWithEllipseArc, C, F, 4, MaxPoints),
    FUZZ_MEMBER(Intersect_ArcWithEllipse, A, E, 4, MaxPoints),
    FUZZ_MEMBER(Intersect_ArcWithEllipseArc, A, F, 4, MaxPoints),
};
// clang-format on

enum MemberIndex : int
{
    BeelineWithBeeline,
    BeelineWithLine,
    LineWithLine,
    BeelineWithCircle,
    BeelineWithArc,
    LineWithCircle,
    LineWithArc,
    CircleWithCircle,
    CircleWithArc,
    ArcWithArc,
    BeelineWithEllipse,
    BeelineWithEllipseArc,
    LineWithEllipse,
    LineWithEllipseArc,
    EllipseWithEllipse,
    EllipseWithEllipseArc,
    EllipseArcWithEllipseArc,
    CircleWithEllipse,
    CircleWithEllipseArc,
    ArcWithEllipse,
    ArcWithEllipseArc,
    MemberCount
};
static_assert(sizeof members / sizeof *members == MemberCount, "one index for each member");

bool SamePoint(const DPOINT2& a, const DPOINT2& b)
{
    return SameBits(a.x, b.x) && SameBits(a.y, b.y);
}

bool SamePoints(const std::vector<DPOINT2>& a, const std::vector<DPOINT2>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), SamePoint);
}

/// What a pointer form answered. An output counts as written if it does not keep what stood in it.
struct Answer
{
    int result = 0;
    std::array<DPOINT2, 4> points = {};
    std::array<bool, 4> written = {};
};

constexpr double Marks[] = {-77.25, 1234.5};

/// Calls a pointer form with those outputs whose bits are set in `given`.
std::array<DPOINT2, 4> Call(const Member& member, const Curve& x, const Curve& y, int given, double mark, int& result)
{
    std::array<DPOINT2, 4> points;
    points.fill({mark, mark});
    Outputs outputs = {};
    for (std::size_t i = 0; i < 4; ++i)
    {
        outputs[i] = (given >> i & 1) != 0 ? &points[i] : nullptr;
    }
    result = member.byPointers(x, y, outputs);
    return points;
}

/// Asks twice, with different marks in the outputs: what is written is the same both times.
Answer Ask(const Member& member, const Curve& x, const Curve& y, int given)
{
    Answer answer;
    int again = 0;
    answer.points = Call(member, x, y, given, Marks[0], answer.result);
    const std::array<DPOINT2, 4> second = Call(member, x, y, given, Marks[1], again);
    FUZZ_REQUIRE(again == answer.result);
    for (std::size_t i = 0; i < 4; ++i)
    {
        answer.written[i] = SamePoint(answer.points[i], second[i]);
        FUZZ_REQUIRE(answer.written[i] ||
                     (SamePoint(answer.points[i], {Marks[0], Marks[0]}) && SamePoint(second[i], {Marks[1], Marks[1]})));
    }
    return answer;
}

int WrittenCount(const Answer& answer)
{
    return static_cast<int>(std::count(answer.written.begin(), answer.written.end(), true));
}

/// Circles and arcs with ellipses that are circles or flat keep the rules of the two-output members, and sweeps of
/// nothing leave all outputs alone.
bool MayLeaveOutputs(int index)
{
    return index >= CircleWithEllipse;
}

/// Which outputs are written for a result.
void CheckWritten(int index, const Answer& answer)
{
    const int outputs = members[index].outputs;
    const int written = WrittenCount(answer);
    if (index == BeelineWithEllipse)
    {
        FUZZ_REQUIRE(written == 2);
    }
    else if (outputs == 4)
    {
        FUZZ_REQUIRE(written == 4 || MayLeaveOutputs(index));
    }
    else if (index == BeelineWithCircle && answer.result == 1)
    {
        FUZZ_REQUIRE(written == 2 && SamePoint(answer.points[0], answer.points[1]));
    }
    else if (answer.result == -1)
    {
        FUZZ_REQUIRE(written == (index == ArcWithArc ? 2 : 0));
    }
    else
    {
        FUZZ_REQUIRE(written == answer.result && (answer.result == 0 || answer.written[0]));
    }
}

void CheckResult(int index, int result)
{
    static const int least[] = {-1, -1, -1, 0, 0, 0, 0, -1, 0, -1, 0, 0, 0, 0, -1, 0, -1, -1, -1, -1, -1};
    const int greatest = members[index].outputs;
    FUZZ_REQUIRE(result >= least[index]);
    // The points of all pairs of quarter arcs are counted, not those that there is room for.
    const bool counted = index == EllipseWithEllipse || index == CircleWithEllipse;
    FUZZ_REQUIRE(result <= (counted ? 32 : greatest));
}

/// An output left out changes nothing else.
void CheckMissingOutputs(int index, const Curve& x, const Curve& y, const Answer& full)
{
    const int outputs = members[index].outputs;
    if (index == BeelineWithEllipse)
    {
        return;
    }
    const int all = (1 << outputs) - 1;
    // Searches of ellipses take their time: two choices of their four outputs stand for all.
    const std::vector<int> choices = outputs == 4 ? std::vector<int>{0, 10} : std::vector<int>{0, 1, 2};
    for (const int given : choices)
    {
        if (given >= all)
        {
            break;
        }
        const bool needsFirst = index == CircleWithArc && (given & 1) == 0;
        const Answer answer = Ask(members[index], x, y, given);
        FUZZ_REQUIRE(answer.result == (needsFirst && full.result == 1 ? 0 : full.result));
        for (std::size_t i = 0; i < 4; ++i)
        {
            if ((given >> i & 1) != 0)
            {
                FUZZ_REQUIRE(answer.written[i] == full.written[i]);
                FUZZ_REQUIRE(!full.written[i] || SamePoint(answer.points[i], full.points[i]));
            }
        }
    }
}

/// Outputs that are inputs: the answer is that of values taken first.
void CheckOutputsThatAreInputs(int index, const Curve& x, const Curve& y, const Answer& full)
{
    std::array<DPOINT2, 4> places = {*x.p, *x.q, *y.p, *y.q};
    Curve ownX = x;
    Curve ownY = y;
    ownX.p = &places[0];
    ownX.q = &places[1];
    ownY.p = &places[2];
    ownY.q = &places[3];
    // The points of the second curve come first: they are what a first output must not spoil.
    const Outputs outputs = {&places[2], &places[0], &places[3], &places[1]};
    const int result = members[index].byPointers(ownX, ownY, outputs);
    FUZZ_REQUIRE(result == full.result);
    for (std::size_t i = 0; i < static_cast<std::size_t>(members[index].outputs); ++i)
    {
        FUZZ_REQUIRE(!full.written[i] || SamePoint(*outputs[i], full.points[i]));
    }
}

/// The points that a vector form is to give for a limit, of the pointer form's answer.
std::vector<DPOINT2> Expected(int index, const Answer& full, int trailing)
{
    const Member& member = members[index];
    int count = full.result;
    if (index == ArcWithArc && count == -1)
    {
        count = 2;
    }
    count = std::max(std::min(count, member.outputs), 0);
    if (member.trailing == Trailing::MaxPoints)
    {
        const bool limits = member.outputs == 4 ? trailing >= 0 && trailing < 4 : trailing >= 0;
        count = limits ? std::min(count, trailing) : count;
    }
    return {full.points.begin(), full.points.begin() + count};
}

void CheckVectorForm(int index, const Curve& x, const Curve& y, const Answer& full)
{
    const Member& member = members[index];
    const std::vector<DPOINT2> before = {{Marks[0], Marks[1]}, {Marks[1], Marks[0]}};
    const std::vector<int> ints =
        member.outputs == 4 ? std::vector<int>{3, INT_MIN} : std::vector<int>{-1, 0, 1, 2, 9, INT_MIN, INT_MAX};
    for (const int trailing : ints)
    {
        if (member.trailing == Trailing::WantPoints && trailing == 0)
        {
            continue;
        }
        std::vector<DPOINT2> points = before;
        const int result = member.byVector(x, y, points, trailing);
        // A circle that carries the arc is told by the vector form alone, with the ends of the arc.
        if (index == CircleWithArc && result == -1)
        {
            FUZZ_REQUIRE(full.result == 0 && points.size() == 4);
            continue;
        }
        FUZZ_REQUIRE(result == full.result);
        const std::vector<DPOINT2> expected = Expected(index, full, trailing);
        std::vector<DPOINT2> whole = member.outputs == 4 ? std::vector<DPOINT2>() : before;
        whole.insert(whole.end(), expected.begin(), expected.end());
        FUZZ_REQUIRE(SamePoints(points, whole));
    }
}

/// Inputs that are elements of the vector which grows or is replaced.
void CheckInputsInTheVector(int index, const Curve& x, const Curve& y, const Answer& full)
{
    std::vector<DPOINT2> points = {*x.p, *x.q, *y.p, *y.q};
    points.shrink_to_fit();
    const std::vector<DPOINT2> before = points;
    Curve ownX = x;
    Curve ownY = y;
    ownX.p = &points[0];
    ownX.q = &points[1];
    ownY.p = &points[2];
    ownY.q = &points[3];
    const int result = members[index].byVector(ownX, ownY, points, -1);
    if (index == CircleWithArc && result == -1)
    {
        return;
    }
    FUZZ_REQUIRE(result == full.result);
    const std::vector<DPOINT2> expected = Expected(index, full, -1);
    std::vector<DPOINT2> whole = members[index].outputs == 4 ? std::vector<DPOINT2>() : before;
    whole.insert(whole.end(), expected.begin(), expected.end());
    FUZZ_REQUIRE(SamePoints(points, whole));
}

/// Points lie on both curves. Not asked of two ellipses: their searches promise no point.
void CheckPointsLieOnCurves(int index, const Curve& x, const Curve& y, const Answer& full)
{
    if (members[index].outputs == 4 || !IsTame(x) || !IsTame(y))
    {
        return;
    }
    if (index == ArcWithArc && D2GetDistance(*x.p, *y.p) == 0.0)
    {
        // Arcs of one circle are compared by their ends alone, in rows of their own.
        return;
    }
    const bool bothRound = std::abs(x.a) > 0.0 && std::abs(y.a) > 0.0;
    if (bothRound && std::hypot(x.p->x - y.p->x, x.p->y - y.p->y) < 1e-5)
    {
        // The chord of circles is found with the error of the squared radii over the distance of the centres.
        return;
    }
    const bool isEnd = SamePoint(full.points[0], *x.p) || SamePoint(full.points[0], *x.q);
    if (index == LineWithLine && isEnd)
    {
        // Stretches of one straight line touch by one coordinate alone, and the end told may be the far one.
        return;
    }
    for (int i = 0; i < std::abs(full.result) && i < members[index].outputs; ++i)
    {
        if (!full.written[static_cast<std::size_t>(i)])
        {
            continue;
        }
        const DPOINT2& point = full.points[static_cast<std::size_t>(i)];
        FUZZ_REQUIRE(std::isfinite(point.x) && std::isfinite(point.y));
        const double tolerance = 1e-6 * (1.0 + std::hypot(point.x, point.y));
        for (const Curve* curve : {&x, &y})
        {
            if (curve->kind == 'E' || curve->kind == 'F')
            {
                FUZZ_REQUIRE(EllipseResidual(*curve, point) < 1e-5);
            }
            else
            {
                FUZZ_REQUIRE(DistanceFrom(*curve, point) < tolerance);
            }
        }
    }
}

// Quick tests and clear counts

/// On whole and half numbers the quick test of stretches is exact and the full test has no close call.
bool IsOnGrid(const DPOINT2& point)
{
    return std::abs(point.x) <= 32.0 && std::abs(point.y) <= 32.0 && std::floor(point.x * 2.0) == point.x * 2.0 &&
           std::floor(point.y * 2.0) == point.y * 2.0;
}

int QuickCount(int index, const Curve& x, const Curve& y)
{
    std::vector<DPOINT2> points = {{Marks[0], Marks[1]}};
    const int count = members[index].byVector(x, y, points, 0);
    FUZZ_REQUIRE(points.size() == 1 && SamePoint(points[0], {Marks[0], Marks[1]}));
    return count;
}

void CheckStretches(const Curve& x, const Curve& y, const Answer& full)
{
    const int quick = QuickCount(LineWithLine, x, y);
    FUZZ_REQUIRE(quick == 0 || quick == 1);
    const bool onGrid = IsOnGrid(*x.p) && IsOnGrid(*x.q) && IsOnGrid(*y.p) && IsOnGrid(*y.q);
    if (!onGrid || SamePoint(*x.p, *x.q) || SamePoint(*y.p, *y.q))
    {
        return;
    }
    const auto isZero = [](const DPOINT2& from, const DPOINT2& to) { return from.x == to.x && from.y == to.y; };
    if (isZero(*x.p, *x.q) || isZero(*y.p, *y.q))
    {
        return;
    }
    FUZZ_REQUIRE((quick == 0) == (full.result == 0));
}

void CheckCircles(const Curve& x, const Curve& y, const Answer& full)
{
    const int quick = QuickCount(CircleWithCircle, x, y);
    FUZZ_REQUIRE(quick >= -1 && quick <= 2);
    if (!IsTame(x) || !IsTame(y))
    {
        return;
    }
    const double distance = std::hypot(x.p->x - y.p->x, x.p->y - y.p->y);
    const bool isApart = distance > x.a + y.a + 1e-6 || distance < std::abs(x.a - y.a) - 1e-6;
    const bool crosses = distance < x.a + y.a - 1e-6 && distance > std::abs(x.a - y.a) + 1e-6;
    const bool onCentre = std::abs(distance - x.a) < 1e-6 || std::abs(distance - y.a) < 1e-6;
    if (isApart)
    {
        FUZZ_REQUIRE(full.result == 0 && (quick == 0 || onCentre));
    }
    if (crosses)
    {
        FUZZ_REQUIRE(full.result == 2 && (quick == 2 || onCentre));
    }
}

void CheckBeelineAndCircle(const Curve& x, const Curve& y, const Answer& full)
{
    const int quick = QuickCount(BeelineWithCircle, x, y);
    FUZZ_REQUIRE(quick >= 0 && quick <= 2);
    if (!IsTame(x) || !IsTame(y))
    {
        return;
    }
    const double distance = DistanceFrom(x, *y.p);
    if (distance > y.a + 1e-6)
    {
        FUZZ_REQUIRE(full.result == 0 && quick == 0);
    }
    if (distance < y.a - 1e-6)
    {
        FUZZ_REQUIRE(full.result == 2 && quick == 2);
    }
}

/// Two tame ellipses by the second implementation, bit for bit where its searches end.
void CheckEllipses(const Curve& x, const Curve& y, const Answer& full)
{
    if (!IsTame(x) || !IsTame(y))
    {
        return;
    }
    test::reference::QuarterArcMethod method(test::reference::Unending::LeftWhereItRepeats);
    std::vector<DPOINT2> points;
    const int count = method.Meet({*x.p, x.a, x.b, x.rotation}, {*y.p, y.a, y.b, y.rotation}, points);
    if (method.MetUnending())
    {
        return;
    }
    FUZZ_REQUIRE(count == full.result);
    for (std::size_t i = 0; i < std::min<std::size_t>(points.size(), 4); ++i)
    {
        FUZZ_REQUIRE(SamePoint(points[i], full.points[i]));
    }
}

} // namespace

void CheckMember(int index, Decoder& decoder)
{
    const int which = index % MemberCount;
    const Member& member = members[which];
    TheTrace().Begin(member.name);
    std::array<DPOINT2, 4> places;
    const Curve x = NextCurve(decoder, member.kinds[0], &places[0]);
    const Curve y = NextCurve(decoder, member.kinds[1], &places[2]);
    const Answer full = Ask(member, x, y, (1 << member.outputs) - 1);
    CheckResult(which, full.result);
    CheckWritten(which, full);
    CheckMissingOutputs(which, x, y, full);
    CheckOutputsThatAreInputs(which, x, y, full);
    CheckVectorForm(which, x, y, full);
    CheckInputsInTheVector(which, x, y, full);
    CheckPointsLieOnCurves(which, x, y, full);
    switch (which)
    {
    case LineWithLine:
        CheckStretches(x, y, full);
        break;
    case CircleWithCircle:
        CheckCircles(x, y, full);
        break;
    case BeelineWithCircle:
        CheckBeelineAndCircle(x, y, full);
        break;
    case EllipseWithEllipse:
        CheckEllipses(x, y, full);
        break;
    default:
        break;
    }
}

} // namespace fuzz
