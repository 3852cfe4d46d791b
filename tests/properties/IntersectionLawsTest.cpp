#include "Meet.h"
#include "Motions.h"
#include "support/Curves.h"
#include "support/Ellipses.h"
#include "support/Support.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <vector>

using namespace math;
using namespace math::test;

// The laws of straight lines, circles and arcs that meet, numbered as in docs/intersections.md. The grid: whole points,
// directions of multiples of π/4, and radii of 1/2, 1 and 2, so that touching, sharing ends and coinciding are common,
// and what exact arithmetic tells is known from whole numbers.

namespace
{

constexpr double Unit = 0x1p-53; // the relative size of one rounding

// Coordinates stay below 8, and the sines of crossing angles above 1/5.
constexpr double Rounding = 16 * Unit * 8 * 5;

// The grid

std::vector<DPOINT2> Lattice(int last)
{
    std::vector<DPOINT2> points;
    for (int x = 0; x <= last; ++x)
    {
        for (int y = 0; y <= last; ++y)
        {
            points.push_back(At(x, y));
        }
    }
    return points;
}

std::vector<Stretch> GridStretches(bool withPoints)
{
    std::vector<Stretch> stretches;
    for (const DPOINT2& first : Lattice(2))
    {
        for (const DPOINT2& second : Lattice(2))
        {
            if (withPoints || first != second)
            {
                stretches.push_back({first, second});
            }
        }
    }
    return stretches;
}

std::vector<Beeline> GridBeelines()
{
    std::vector<Beeline> beelines;
    for (const DPOINT2& point : Lattice(2))
    {
        for (int direction = 0; direction < 4; ++direction)
        {
            beelines.push_back({point, direction * QuarterPi});
        }
    }
    return beelines;
}

std::vector<Circle> GridCircles()
{
    std::vector<Circle> circles;
    for (const DPOINT2& centre : Lattice(2))
    {
        for (const double radius : {0.5, 1.0, 2.0})
        {
            circles.push_back({centre, radius});
        }
    }
    return circles;
}

/// An arc whose ends lie at multiples of π/4.
struct OctantArc
{
    DPOINT2 centre;
    double radius;
    int start; ///< from 0 to 7
    int sweep; ///< from -7 to 7, not 0

    Arc ToArc(double octant = QuarterPi) const
    {
        return {centre, radius, start * octant, sweep * octant};
    }

    /// Where it begins and ends, run counter-clockwise.
    int From() const
    {
        return sweep > 0 ? start : (start + sweep + 8) % 8;
    }

    int To() const
    {
        return sweep > 0 ? (start + sweep) % 8 : start;
    }

    /// Whether it covers the eighth of a turn from `octant` on.
    bool Covers(int octant) const
    {
        return (octant - From() + 8) % 8 < std::abs(sweep);
    }

    OctantArc Moved(const Motion& motion) const
    {
        const int turned = (motion.mirrors ? 8 - start : start) + 2 * motion.quarterTurns;
        return {motion(centre), radius, turned % 8, motion.mirrors ? -sweep : sweep};
    }
};

std::vector<OctantArc> ArcsAbout(const std::vector<DPOINT2>& centres, const std::vector<double>& radii)
{
    std::vector<OctantArc> arcs;
    for (const DPOINT2& centre : centres)
    {
        for (const double radius : radii)
        {
            for (int start = 0; start < 8; ++start)
            {
                for (int sweep = -7; sweep <= 7; ++sweep)
                {
                    if (sweep != 0)
                    {
                        arcs.push_back({centre, radius, start, sweep});
                    }
                }
            }
        }
    }
    return arcs;
}

/// Arcs about three centres, of every length and direction.
std::vector<OctantArc> GridArcs()
{
    std::vector<OctantArc> arcs = ArcsAbout({At(0, 0), At(1, 0), At(1, 1)}, {1.0});
    const std::vector<OctantArc> larger = ArcsAbout({At(0, 0)}, {2.0});
    arcs.insert(arcs.end(), larger.begin(), larger.end());
    std::vector<OctantArc> chosen;
    for (std::size_t i = 0; i < arcs.size(); i += 3)
    {
        chosen.push_back(arcs[i]);
    }
    return chosen;
}

// Distance from a curve

double DistanceFrom(const Stretch& stretch, const DPOINT2& point)
{
    const DPOINT2 along = Minus(stretch.second, stretch.first);
    const double ratio = std::clamp(RatioOnStretch(point, stretch), 0.0, 1.0);
    return DistanceOf(point, At(stretch.first.x + along.x * ratio, stretch.first.y + along.y * ratio));
}

double DistanceFrom(const Circle& circle, const DPOINT2& point)
{
    return std::abs(DistanceOf(circle.centre, point) - circle.radius);
}

double DistanceFrom(const Arc& arc, const DPOINT2& point)
{
    if (AngleOnArc(point, arc) <= std::abs(arc.sweep))
    {
        return DistanceFrom(CircleOf(arc), point);
    }
    return std::min(DistanceOf(point, OnCircleAt(arc.centre, arc.radius, arc.start)),
                    DistanceOf(point, OnCircleAt(arc.centre, arc.radius, arc.start + arc.sweep)));
}

template <class First, class Second>
::testing::AssertionResult LiesOnBoth(const Met& met, const First& first, const Second& second, double tolerance)
{
    for (const DPOINT2& point : met.points)
    {
        const double distance = std::max(DistanceFrom(first, point), DistanceFrom(second, point));
        if (!(distance <= tolerance))
        {
            return ::testing::AssertionFailure() << ::testing::PrintToString(point) << " is off by " << distance;
        }
    }
    return ::testing::AssertionSuccess();
}

// Exact arithmetic on whole numbers

bool HoldsPoint(const Stretch& stretch, const DPOINT2& point)
{
    const DPOINT2 along = Minus(stretch.second, stretch.first);
    const DPOINT2 offset = Minus(point, stretch.first);
    return CrossOf(along, offset) == 0 && DotOf(along, offset) >= 0 && DotOf(along, offset) <= DotOf(along, along);
}

bool IsPoint(const Stretch& stretch)
{
    return stretch.first == stretch.second;
}

/// The result for two stretches of some length.
int ExactCode(const Stretch& a, const Stretch& b)
{
    const DPOINT2 alongA = Minus(a.second, a.first);
    const DPOINT2 alongB = Minus(b.second, b.first);
    const DPOINT2 between = Minus(b.first, a.first);
    const double cross = CrossOf(alongA, alongB);
    if (cross != 0)
    {
        const double onA = CrossOf(between, alongB) / cross;
        const double onB = CrossOf(between, alongA) / cross;
        return onA >= 0 && onA <= 1 && onB >= 0 && onB <= 1 ? 1 : 0;
    }
    if (CrossOf(alongA, between) != 0)
    {
        return 0;
    }
    const double first = DotOf(alongA, between);
    const double second = DotOf(alongA, Minus(b.second, a.first));
    const double low = std::max(0.0, std::min(first, second));
    const double high = std::min(DotOf(alongA, alongA), std::max(first, second));
    return low > high ? 0 : low == high ? 1 : -1;
}

/// The same for stretches of any length.
bool HaveCommonPoint(const Stretch& a, const Stretch& b)
{
    if (IsPoint(a))
    {
        return IsPoint(b) ? a.first == b.first : HoldsPoint(b, a.first);
    }
    return IsPoint(b) ? HoldsPoint(a, b.first) : ExactCode(a, b) != 0;
}

/// How a line at the given squared distance from its centre meets a circle.
int CodeAtDistance(double squaredDistance, double radius)
{
    const double square = radius * radius;
    return squaredDistance < square ? 2 : squaredDistance == square ? 1 : 0;
}

int ExactCode(const Circle& a, const Circle& b)
{
    const DPOINT2 between = Minus(b.centre, a.centre);
    const double square = DotOf(between, between);
    const double sum = a.radius + b.radius;
    const double difference = a.radius - b.radius;
    if (square == 0)
    {
        return difference == 0 ? -1 : 0;
    }
    const bool touches = square == sum * sum || square == difference * difference;
    return touches ? 1 : square > sum * sum || square < difference * difference ? 0 : 2;
}

bool IsSame(const OctantArc& a, const OctantArc& b)
{
    return a.From() == b.From() && a.To() == b.To();
}

/// The eighths of the turn that both cover.
int SharedOctants(const OctantArc& a, const OctantArc& b)
{
    int shared = 0;
    for (int octant = 0; octant < 8; ++octant)
    {
        shared += a.Covers(octant) && b.Covers(octant) ? 1 : 0;
    }
    return shared;
}

/// Whether the first is a part of the second and not all of it.
bool IsInside(const OctantArc& a, const OctantArc& b)
{
    return SharedOctants(a, b) == std::abs(a.sweep) && !IsSame(a, b);
}

/// The result for two arcs of one circle, by eighths of a turn: an overlap is told unless the first lies in the second.
int ExactCode(const OctantArc& a, const OctantArc& b)
{
    if (SharedOctants(a, b) > 0)
    {
        return IsInside(a, b) ? 0 : -1;
    }
    return (a.From() == b.To() ? 1 : 0) + (a.To() == b.From() ? 1 : 0);
}

/// Whether the last bits of the ends have a say: the direction 0 is 2π less a rounding too, and of ends in one direction
/// either may be the inner one, as they come out of adding start and sweep.
bool IsDecidedByRounding(const OctantArc& a, const OctantArc& b)
{
    const bool hasZero = a.From() == 0 || a.To() == 0 || b.From() == 0 || b.To() == 0;
    const bool shares = a.From() == b.From() || a.To() == b.To() || a.From() == b.To() || a.To() == b.From();
    return hasZero || (shares && !IsSame(a, b));
}

/// The points of a whole circle that lie on an arc, ends included.
std::vector<DPOINT2> OnArc(const std::vector<DPOINT2>& points, const Arc& arc)
{
    std::vector<DPOINT2> kept;
    for (const DPOINT2& point : points)
    {
        const double along = AngleOnArc(point, arc);
        if (along <= std::abs(arc.sweep) + 1e-7 || along >= TwoPi - 1e-7)
        {
            kept.push_back(point);
        }
    }
    return kept;
}

std::vector<DPOINT2> OnStretch(const std::vector<DPOINT2>& points, const Stretch& stretch)
{
    std::vector<DPOINT2> kept;
    for (const DPOINT2& point : points)
    {
        const double ratio = RatioOnStretch(point, stretch);
        if (ratio >= -1e-7 && ratio <= 1 + 1e-7)
        {
            kept.push_back(point);
        }
    }
    return kept;
}

Beeline CarrierOf(const Stretch& stretch)
{
    const DPOINT2 along = Minus(stretch.second, stretch.first);
    return {stretch.first, std::atan2(along.y, along.x)};
}

/// Runs a check on every pair of two lists.
template <class First, class Second, class Check>
void ForAll(const std::vector<First>& first, const std::vector<Second>& second, const Check& check)
{
    for (const First& a : first)
    {
        for (const Second& b : second)
        {
            check(a, b);
            if (::testing::Test::HasFatalFailure())
            {
                return;
            }
        }
    }
}

// Curves at random

/// As exact as points of random curves are: beside a tangency a rounding of the line moves them by its root.
constexpr double RandomTolerance = 1e-6;

Beeline RandomBeeline(Random& random)
{
    const DPOINT2 point = random.Point(4.0);
    return {point, random.Number(-7, 7)};
}

/// Directions that cross clearly: the meeting of others is far away, and known less well.
bool CrossClearly(const Beeline& a, const Beeline& b)
{
    return std::abs(std::sin(a.angle - b.angle)) > 1e-2;
}

/// Runs a check on pairs of every two kinds of curves.
template <class Check>
void ForRandomPairs(std::uint64_t seed, const Check& check)
{
    Random random(seed);
    for (int round = 0; round < 2000 && !::testing::Test::HasFatalFailure(); ++round)
    {
        const Beeline beeline = RandomBeeline(random);
        const Beeline other = RandomBeeline(random);
        const Stretch stretch = RandomStretch(random);
        const Arc arc = RandomArc(random);
        const Arc otherArc = RandomArc(random);
        if (CrossClearly(beeline, other))
        {
            check(beeline, other);
        }
        check(beeline, stretch);
        check(stretch, RandomStretch(random));
        check(beeline, CircleOf(arc));
        check(beeline, arc);
        check(stretch, CircleOf(arc));
        check(stretch, arc);
        check(CircleOf(otherArc), CircleOf(arc));
        check(CircleOf(otherArc), arc);
        check(otherArc, arc);
    }
}

/// A point that is so near an end of the arc that rounding may decide.
bool IsNearAnEnd(const std::vector<DPOINT2>& points, const Arc& arc)
{
    return std::any_of(points.begin(), points.end(), [&](const DPOINT2& point) {
        const double along = AngleOnArc(point, arc);
        return std::abs(along - std::abs(arc.sweep)) < 1e-5 || along < 1e-5 || along > TwoPi - 1e-5;
    });
}

bool IsNearAnEnd(const std::vector<DPOINT2>& points, const Stretch& stretch)
{
    return std::any_of(points.begin(), points.end(), [&](const DPOINT2& point) {
        return DistanceOf(point, stretch.first) < 1e-5 || DistanceOf(point, stretch.second) < 1e-5;
    });
}

DPOINT2 RandomWholePoint(Random& random)
{
    const int x = random.Integer(-30, 30);
    return At(x, random.Integer(-30, 30));
}

Circle RandomWholeCircle(Random& random)
{
    const DPOINT2 centre = RandomWholePoint(random);
    return {centre, 0.5 * random.Integer(1, 60)};
}

std::vector<Arc> ToArcs(const std::vector<OctantArc>& octants)
{
    std::vector<Arc> arcs;
    for (const OctantArc& octant : octants)
    {
        arcs.push_back(octant.ToArc());
    }
    return arcs;
}

} // namespace

// What exact arithmetic tells

TEST(IntersectionLaws, I1_TwoStretchesMeetAsExactArithmeticTellsExceptForThoseOfNoLength)
{
    int meetingPoints = 0;
    ForAll(GridStretches(true), GridStretches(true), [&](const Stretch& a, const Stretch& b) {
        const bool isException = (IsPoint(a) || IsPoint(b)) && HaveCommonPoint(a, b);
        meetingPoints += isException ? 1 : 0;
        const int code = IsPoint(a) || IsPoint(b) ? 0 : ExactCode(a, b);
        ASSERT_EQ(Meet(a, b).code, code);
        ASSERT_EQ(Meet(b, a).code, code);
    });
    // Nine points meet themselves; of stretches through them, 24 unit ones hold 2, 16 diagonal ones 2, 16 knight's moves
    // 2, 12 upright or level ones twice as long 3, and 4 long diagonals 3; each both ways and in either place.
    EXPECT_EQ(meetingPoints, 9 + 2 * (24 * 2 + 16 * 2 + 16 * 2 + 12 * 3 + 4 * 3));
    // Larger whole coordinates at random, every second pair with a common end, a T or on one line.
    Random random(17);
    const auto place = [&] { return At(random.Integer(-30, 30), random.Integer(-30, 30)); };
    const auto onLine = [&](const Stretch& stretch) {
        const DPOINT2 along = Minus(stretch.second, stretch.first);
        const int times = random.Integer(-1, 3);
        return At(stretch.first.x + times * along.x, stretch.first.y + times * along.y);
    };
    int codes[3] = {0, 0, 0};
    for (int round = 0; round < 20000; ++round)
    {
        const Stretch a{place(), place()};
        const Stretch b{random.Coin() ? onLine(a) : place(), random.Coin() ? onLine(a) : place()};
        if (IsPoint(a) || IsPoint(b))
        {
            continue;
        }
        const int code = ExactCode(a, b);
        ++codes[code + 1];
        ASSERT_EQ(Meet(a, b).code, code) << ::testing::PrintToString(a.first) << ::testing::PrintToString(a.second)
                                         << ::testing::PrintToString(b.first) << ::testing::PrintToString(b.second);
        ASSERT_EQ(Meet(b, a).code, code);
    }
    EXPECT_TRUE(codes[0] > 1000 && codes[1] > 1000 && codes[2] > 1000);
}

TEST(IntersectionLaws, I2_TheQuickTestOfTwoStretchesIsExactAndServesPointsToo)
{
    ForAll(GridStretches(true), GridStretches(true), [](const Stretch& a, const Stretch& b) {
        ASSERT_TRUE(QuickTestGives(Meeting(a, b), HaveCommonPoint(a, b) ? 1 : 0));
    });
    // Whole coordinates at random, with common ends, ends inside and stretches of no length.
    Random random(18);
    int common = 0;
    for (int round = 0; round < 20000; ++round)
    {
        const Stretch a{RandomWholePoint(random), RandomWholePoint(random)};
        const DPOINT2 first = random.Coin() ? a.second : RandomWholePoint(random);
        const Stretch b{first, random.Integer(0, 9) == 0 ? first : RandomWholePoint(random)};
        const Stretch beyond{At((a.first.x + a.second.x) / 2, (a.first.y + a.second.y) / 2), b.second};
        for (const Stretch& other : {b, beyond})
        {
            common += HaveCommonPoint(a, other) ? 1 : 0;
            ASSERT_TRUE(QuickTestGives(Meeting(a, other), HaveCommonPoint(a, other) ? 1 : 0))
                << ::testing::PrintToString(a.first) << ::testing::PrintToString(a.second)
                << ::testing::PrintToString(other.first) << ::testing::PrintToString(other.second);
        }
    }
    EXPECT_TRUE(common > 20000 && common < 39000);
}

TEST(IntersectionLaws, I3_AStraightLineMeetsACircleAsExactArithmeticTells)
{
    ForAll(GridBeelines(), GridCircles(), [](const Beeline& a, const Circle& b) {
        const DPOINT2 along = At(std::round(std::cos(a.angle) * 1.4), std::round(std::sin(a.angle) * 1.4));
        const double cross = CrossOf(along, Minus(b.centre, a.point));
        ASSERT_EQ(Meet(a, b).code, CodeAtDistance(cross * cross / DotOf(along, along), b.radius));
    });
    const auto check = [](const Stretch& a, const Circle& b) {
        bool ignored = true;
        const std::vector<DPOINT2> onLine =
            LineMeetsCircle(a.first, Minus(a.second, a.first), b, ignored); // a tangency twice, or not at all
        const DPOINT2 along = Minus(a.second, a.first);
        const double cross = CrossOf(along, Minus(b.centre, a.first));
        const int ofLine = CodeAtDistance(cross * cross / DotOf(along, along), b.radius);
        const std::size_t kept = OnStretch(onLine, a).size();
        ASSERT_EQ(Meet(a, b).code, ofLine == 1 ? static_cast<int>(kept + 1) / 2 : static_cast<int>(kept));
    };
    ForAll(GridStretches(false), GridCircles(), check);
    Random random(3);
    for (int round = 0; round < 20000 && !HasFatalFailure(); ++round)
    {
        const Stretch a{RandomWholePoint(random), RandomWholePoint(random)};
        const Circle b = RandomWholeCircle(random);
        const DPOINT2 along = Minus(a.second, a.first);
        const double cross = CrossOf(along, Minus(b.centre, a.first));
        const bool isSlantedTangent =
            cross * cross == DotOf(along, along) * b.radius * b.radius && along.x != 0 && along.y != 0;
        if (!IsPoint(a) && !isSlantedTangent)
        {
            check(a, b);
        }
    }
}

TEST(IntersectionLaws, I4_TwoCirclesMeetAsExactArithmeticTells)
{
    ForAll(GridCircles(), GridCircles(),
           [](const Circle& a, const Circle& b) { ASSERT_EQ(Meet(a, b).code, ExactCode(a, b)); });
    Random random(4);
    int codes[4] = {0, 0, 0, 0};
    for (int round = 0; round < 20000; ++round)
    {
        const Circle a = RandomWholeCircle(random);
        Circle b = RandomWholeCircle(random);
        if (round % 4 == 0)
        {
            b.centre.y = a.centre.y; // whole distances, so that some touch
        }
        const int code = ExactCode(a, b);
        ++codes[code + 1];
        ASSERT_EQ(Meet(a, b).code, code) << ::testing::PrintToString(a.centre) << a.radius
                                         << ::testing::PrintToString(b.centre) << b.radius;
    }
    EXPECT_TRUE(codes[1] > 1000 && codes[2] > 100 && codes[3] > 1000);
}

TEST(IntersectionLaws, I5_ArcsOfOneCircleOverlapOrShareEndsExceptAFirstInsideTheSecondAndWhereRoundingDecides)
{
    // Directions of multiples of 3/4 that do not pass 2π: start and sweep add up without rounding.
    int inside = 0;
    const std::vector<OctantArc> arcs = ArcsAbout({At(1, 2)}, {2.0});
    std::vector<OctantArc> exact;
    std::copy_if(arcs.begin(), arcs.end(), std::back_inserter(exact),
                 [](const OctantArc& arc) { return arc.start + arc.sweep >= 0 && arc.start + arc.sweep < 8; });
    ForAll(exact, exact, [&](const OctantArc& a, const OctantArc& b) {
        ASSERT_EQ(Meet(a.ToArc(0.75), b.ToArc(0.75)).code, ExactCode(a, b))
            << a.start << " " << a.sweep << ", " << b.start << " " << b.sweep;
        inside += IsInside(a, b) ? 1 : 0;
    });
    EXPECT_EQ(inside, 4 * 182); // of the 28 stretches from 0 to 7, run either way each
    // Multiples of π/4, over the direction 0 and 2π as well: rounded, but without the C runtime.
    int decidedByRounding = 0;
    ForAll(arcs, arcs, [&](const OctantArc& a, const OctantArc& b) {
        const int code = Meet(a.ToArc(), b.ToArc()).code;
        const bool isException = code != ExactCode(a, b);
        decidedByRounding += isException ? 1 : 0;
        ASSERT_TRUE(!isException || IsDecidedByRounding(a, b))
            << code << ": " << a.start << " " << a.sweep << ", " << b.start << " " << b.sweep;
    });
    EXPECT_EQ(decidedByRounding, 651); // by sums of doubles alone, so everywhere the same
    // At random, run either way, ends well apart.
    Random random(5);
    int overlaps = 0;
    for (int round = 0; round < 20000; ++round)
    {
        const DPOINT2 centre = random.Point(2);
        const double radius = random.Size(0.25, 4);
        const auto arcOfLength = [&] {
            const double start = random.Radian();
            const double sweep = random.Number(0.1, 6.1);
            return Arc{centre, radius, start, sweep};
        };
        const auto either = [&](const Arc& arc) {
            return random.Coin() ? arc : Arc{arc.centre, arc.radius, Folded(arc.start + arc.sweep), -arc.sweep};
        };
        const Arc a = arcOfLength();
        const Arc b = arcOfLength();
        const double ahead = Folded(b.start - a.start); // from the start of the first to that of the second
        const double behind = TwoPi - ahead;
        const double gaps[] = {ahead,
                               behind,
                               ahead - a.sweep,
                               ahead + b.sweep - TwoPi,
                               ahead + b.sweep - TwoPi - a.sweep,
                               a.start + a.sweep - TwoPi,
                               b.start + b.sweep - TwoPi};
        if (std::any_of(std::begin(gaps), std::end(gaps), [](double gap) { return std::abs(gap) < 1e-6; }))
        {
            continue;
        }
        const bool share = ahead < a.sweep || behind < b.sweep;
        const bool isInside = behind + a.sweep < b.sweep;
        const bool holdsOther = ahead + b.sweep < a.sweep;
        overlaps += share && !isInside ? 1 : 0;
        const int code = Meet(either(a), either(b)).code;
        ASSERT_EQ(code, share && !isInside ? -1 : 0)
            << Digits(a.start) << " " << Digits(a.sweep) << ", " << Digits(b.start) << " " << Digits(b.sweep);
        ASSERT_EQ(Meet(either(b), either(a)).code, share && !holdsOther ? -1 : 0) << Digits(a.start);
    }
    EXPECT_GT(overlaps, 5000);
}

TEST(IntersectionLaws, I6_OnStretchesAndArcsTheCommonPointsOfWholeCurvesRemain)
{
    const std::vector<Arc> arcs = ToArcs(GridArcs());
    ForAll(GridBeelines(), arcs, [](const Beeline& a, const Arc& b) {
        ASSERT_TRUE(SameSet(Meet(a, b).points, OnArc(Meet(a, CircleOf(b)).points, b), Rounding));
    });
    ForAll(GridStretches(false), arcs, [](const Stretch& a, const Arc& b) {
        const std::vector<DPOINT2> onLine = Meet(CarrierOf(a), CircleOf(b)).points;
        ASSERT_TRUE(SameSet(Meet(a, b).points, OnStretch(OnArc(onLine, b), a), Rounding));
    });
    ForAll(GridCircles(), arcs, [](const Circle& a, const Arc& b) {
        if (ExactCode(a, CircleOf(b)) >= 0)
        {
            ASSERT_TRUE(SameSet(Meet(a, b).points, OnArc(Meet(a, CircleOf(b)).points, b), Rounding));
        }
    });
    ForAll(arcs, arcs, [](const Arc& a, const Arc& b) {
        if (ExactCode(CircleOf(a), CircleOf(b)) >= 0)
        {
            const std::vector<DPOINT2> whole = Meet(CircleOf(a), CircleOf(b)).points;
            ASSERT_TRUE(SameSet(Meet(a, b).points, OnArc(OnArc(whole, b), a), Rounding));
        }
    });
    Random random(6);
    int kept = 0;
    for (int round = 0; round < 5000; ++round)
    {
        const Beeline beeline = RandomBeeline(random);
        const Stretch stretch = RandomStretch(random);
        const Arc a = RandomArc(random);
        const Arc b = RandomArc(random);
        const std::vector<DPOINT2> ofBeeline = Meet(beeline, CircleOf(b)).points;
        const std::vector<DPOINT2> ofStretch = Meet(CarrierOf(stretch), CircleOf(b)).points;
        const std::vector<DPOINT2> ofCircles = Meet(CircleOf(a), CircleOf(b)).points;
        if (IsNearAnEnd(ofBeeline, b) || IsNearAnEnd(ofStretch, b) || IsNearAnEnd(ofStretch, stretch) ||
            IsNearAnEnd(ofCircles, a) || IsNearAnEnd(ofCircles, b))
        {
            continue;
        }
        const std::vector<DPOINT2> onBoth = OnArc(OnArc(ofCircles, b), a);
        kept += static_cast<int>(onBoth.size());
        ASSERT_TRUE(SameSet(Meet(beeline, b).points, OnArc(ofBeeline, b), RandomTolerance));
        ASSERT_TRUE(SameSet(Meet(stretch, CircleOf(b)).points, OnStretch(ofStretch, stretch), RandomTolerance));
        ASSERT_TRUE(SameSet(Meet(stretch, b).points, OnStretch(OnArc(ofStretch, b), stretch), RandomTolerance));
        ASSERT_TRUE(SameSet(Meet(CircleOf(a), b).points, OnArc(ofCircles, b), RandomTolerance));
        ASSERT_TRUE(SameSet(Meet(a, b).points, onBoth, RandomTolerance));
    }
    EXPECT_GT(kept, 500);
}

// Points, orders, motions

TEST(IntersectionLaws, I7_TheirPointsLieOnBothCurves)
{
    const std::vector<Arc> arcs = ToArcs(GridArcs());
    const auto check = [](const auto& a, const auto& b) { ASSERT_TRUE(LiesOnBoth(Meet(a, b), a, b, Rounding)); };
    ForAll(GridBeelines(), GridBeelines(), check);
    ForAll(GridBeelines(), GridStretches(false), check);
    ForAll(GridStretches(false), GridStretches(false), check);
    ForAll(GridBeelines(), GridCircles(), check);
    ForAll(GridStretches(false), GridCircles(), check);
    ForAll(GridCircles(), GridCircles(), check);
    ForAll(GridBeelines(), arcs, check);
    ForAll(GridStretches(false), arcs, check);
    ForAll(GridCircles(), arcs, check);
    ForAll(arcs, arcs, [](const Arc& a, const Arc& b) {
        const Met met = Meet(a, b);
        ASSERT_TRUE(met.code == -1 ? LiesOnBoth(met, a, a, Rounding) : LiesOnBoth(met, a, b, Rounding));
    });
    // At random: within 16 roundings of the coordinates over the sine of the angle, and at stretches and arcs within
    // the tolerance of an end.
    Random random(7);
    int found = 0;
    for (int round = 0; round < 5000; ++round)
    {
        const Stretch s = RandomStretch(random);
        const Stretch t = RandomStretch(random);
        const Arc a = RandomArc(random);
        const Arc b = RandomArc(random);
        const auto size = [](const DPOINT2& along) { return std::hypot(along.x, along.y); };
        const DPOINT2 u = Minus(s.second, s.first);
        const DPOINT2 v = Minus(t.second, t.first);
        const double sine = std::abs(CrossOf(u, v)) / size(u) / size(v);
        const Met met = Meet(s, t);
        found += static_cast<int>(met.points.size());
        ASSERT_TRUE(LiesOnBoth(met, s, t, 16 * Unit * 8 / sine + 1e-9));
        // A chord of half length h has the sine h / r; beside a tangency the foot is exact to the root of a rounding.
        ASSERT_TRUE(LiesOnBoth(Meet(s, a), s, a, 1.5e-9));
        ASSERT_TRUE(LiesOnBoth(Meet(CircleOf(a), b), CircleOf(a), b, 1.5e-9));
        ASSERT_TRUE(LiesOnBoth(Meet(a, b), a, b, 1.5e-9));
    }
    EXPECT_GT(found, 500);
}

TEST(IntersectionLaws, I8_ExchangedCurvesMeetInTheSamePointsExceptForArcsOfOneCircle)
{
    const std::vector<Arc> arcs = ToArcs(GridArcs());
    const auto check = [](const auto& a, const auto& b) {
        ASSERT_TRUE(SameAnswer(Meet(b, a), Meet(a, b), 2 * Rounding));
    };
    ForAll(GridBeelines(), GridBeelines(), check);
    ForAll(GridStretches(true), GridStretches(true), check);
    ForAll(GridCircles(), GridCircles(), check);
    ForAll(arcs, arcs, [&](const Arc& a, const Arc& b) {
        if (ExactCode(CircleOf(a), CircleOf(b)) >= 0)
        {
            check(a, b);
        }
    });
    Random random(8);
    for (int round = 0; round < 5000; ++round)
    {
        const Arc a = RandomArc(random);
        const Arc b = RandomArc(random);
        const Stretch s = RandomStretch(random);
        const Stretch t = RandomStretch(random);
        const Beeline m = RandomBeeline(random);
        const Beeline n = RandomBeeline(random);
        ASSERT_TRUE(SameAnswer(Meet(b, a), Meet(a, b), 1e-9));
        ASSERT_TRUE(SameAnswer(Meet(CircleOf(b), CircleOf(a)), Meet(CircleOf(a), CircleOf(b)), 1e-9));
        ASSERT_TRUE(SameAnswer(Meet(t, s), Meet(s, t), 1e-9));
        ASSERT_TRUE(!CrossClearly(m, n) || SameAnswer(Meet(n, m), Meet(m, n), 1e-9));
    }
}

TEST(IntersectionLaws, I9_ExchangedArcsOfOneCircleDifferWhereOneLiesInsideTheOther)
{
    int inside = 0;
    const std::vector<OctantArc> arcs = ArcsAbout({At(1, 2)}, {2.0});
    ForAll(arcs, arcs, [&](const OctantArc& a, const OctantArc& b) {
        if (IsDecidedByRounding(a, b))
        {
            return;
        }
        const bool isException = IsInside(a, b) || IsInside(b, a);
        inside += isException ? 1 : 0;
        ASSERT_EQ(Meet(a.ToArc(), b.ToArc()).code != Meet(b.ToArc(), a.ToArc()).code, isException)
            << a.start << " " << a.sweep << ", " << b.start << " " << b.sweep;
    });
    // Four of the seven directions off 0 part the circle so that one of the arcs between lies in the rest in 4 ways; told
    // in either order, and each arc in either direction.
    EXPECT_EQ(inside, 35 * 4 * 2 * 4);
}

TEST(IntersectionLaws, I10_ACurveToldAnotherWayMeetsInTheSamePoints)
{
    const std::vector<Arc> arcs = ToArcs(GridArcs());
    const auto otherWay = [](const Arc& arc) { return Arc{arc.centre, arc.radius, arc.start + arc.sweep, -arc.sweep}; };
    const auto turned = [](const Stretch& stretch) { return Stretch{stretch.second, stretch.first}; };
    const auto slid = [](const Beeline& beeline) {
        const DPOINT2 along = At(std::round(std::cos(beeline.angle) * 1.4), std::round(std::sin(beeline.angle) * 1.4));
        return Beeline{At(beeline.point.x + 2 * along.x, beeline.point.y + 2 * along.y), beeline.angle - 3 * Pi};
    };
    ForAll(GridStretches(true), GridStretches(true), [&](const Stretch& a, const Stretch& b) {
        ASSERT_TRUE(SameAnswer(Meet(turned(a), b), Meet(a, b), 2 * Rounding));
        ASSERT_TRUE(SameAnswer(Meet(a, turned(b)), Meet(a, b), 2 * Rounding));
    });
    ForAll(GridBeelines(), GridStretches(true), [&](const Beeline& a, const Stretch& b) {
        ASSERT_TRUE(SameAnswer(Meet(slid(a), b), Meet(a, b), 2 * Rounding));
        ASSERT_TRUE(SameAnswer(Meet(a, turned(b)), Meet(a, b), 2 * Rounding));
    });
    ForAll(GridStretches(true), GridCircles(), [&](const Stretch& a, const Circle& b) {
        const Met met = Meet(a, b);
        const Met back = Meet(turned(a), b);
        ASSERT_EQ(back.code, met.code);
        for (std::size_t i = 0; i < met.points.size(); ++i)
        {
            ASSERT_TRUE(Near(back.points[i], met.points[i], 2 * Rounding)); // in the same order
        }
    });
    ForAll(GridBeelines(), arcs, [&](const Beeline& a, const Arc& b) {
        ASSERT_TRUE(SameAnswer(Meet(slid(a), b), Meet(a, b), 2 * Rounding));
        ASSERT_TRUE(SameAnswer(Meet(a, otherWay(b)), Meet(a, b), 2 * Rounding));
    });
    ForAll(arcs, arcs, [&](const Arc& a, const Arc& b) {
        if (ExactCode(CircleOf(a), CircleOf(b)) >= 0)
        {
            ASSERT_TRUE(SameAnswer(Meet(otherWay(a), b), Meet(a, b), 2 * Rounding));
            ASSERT_TRUE(SameAnswer(Meet(a, otherWay(b)), Meet(a, b), 2 * Rounding));
        }
    });
    Random random(10);
    for (int round = 0; round < 5000; ++round)
    {
        const Stretch s = RandomStretch(random);
        const Stretch t = RandomStretch(random);
        const Beeline m = RandomBeeline(random);
        const Beeline slidM{At(m.point.x + 2 * std::cos(m.angle), m.point.y + 2 * std::sin(m.angle)), m.angle - 3 * Pi};
        const Arc a = RandomArc(random);
        const Arc b = RandomArc(random);
        ASSERT_TRUE(SameAnswer(Meet(turned(s), t), Meet(s, t), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(slidM, t), Meet(m, t), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(slidM, b), Meet(m, b), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(slidM, CircleOf(b)), Meet(m, CircleOf(b)), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(turned(s), CircleOf(b)), Meet(s, CircleOf(b)), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(turned(s), otherWay(b)), Meet(s, b), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(CircleOf(a), otherWay(b)), Meet(CircleOf(a), b), RandomTolerance));
        ASSERT_TRUE(SameAnswer(Meet(otherWay(a), otherWay(b)), Meet(a, b), RandomTolerance));
    }
}

TEST(IntersectionLaws, I11_MovingTurningAndMirroringBothCurvesMovesTheAnswer)
{
    const std::vector<OctantArc> octants = GridArcs();
    const std::vector<Arc> arcs = ToArcs(octants);
    for (const Motion& motion : AllMotions())
    {
        const auto check = [&](const auto& a, const auto& b) {
            const Met met = Meet(a, b);
            ASSERT_TRUE(SameAnswer(Meet(motion(a), motion(b)), {met.code, motion(met.points)}, 2 * Rounding));
        };
        ForAll(GridBeelines(), GridBeelines(), check);
        ForAll(GridBeelines(), GridStretches(true), check);
        ForAll(GridStretches(true), GridStretches(true), check);
        ForAll(GridBeelines(), GridCircles(), check);
        ForAll(GridStretches(true), GridCircles(), check);
        ForAll(GridCircles(), GridCircles(), check);
        const auto moveArcs = [&](const auto& a, const OctantArc& b) {
            const Met met = Meet(a, b.ToArc());
            ASSERT_TRUE(
                SameAnswer(Meet(motion(a), b.Moved(motion).ToArc()), {met.code, motion(met.points)}, 2 * Rounding));
        };
        ForAll(GridBeelines(), octants, moveArcs);
        ForAll(GridCircles(), octants, moveArcs);
        for (std::size_t i = 0; i < octants.size(); i += 7)
        {
            for (const OctantArc& b : octants)
            {
                const OctantArc& a = octants[i];
                const Met met = Meet(a.ToArc(), b.ToArc());
                const Met moved = Meet(a.Moved(motion).ToArc(), b.Moved(motion).ToArc());
                if (ExactCode(CircleOf(a.ToArc()), CircleOf(b.ToArc())) >= 0)
                {
                    ASSERT_TRUE(SameAnswer(moved, {met.code, motion(met.points)}, 2 * Rounding));
                }
            }
        }
    }
    const std::vector<Motion> motions = AllMotions();
    std::size_t next = 0;
    ForRandomPairs(11, [&](const auto& a, const auto& b) {
        const Motion& motion = motions[next++ % motions.size()];
        const Met met = Meet(a, b);
        ASSERT_TRUE(SameAnswer(Meet(motion(a), motion(b)), {met.code, motion(met.points)}, RandomTolerance));
    });
}

// Forms and counts

TEST(IntersectionLaws, I12_PointerAndVectorFormsAgreeExceptWhereACircleCarriesAnArc)
{
    int carried = 0;
    const std::vector<Arc> arcs = ToArcs(GridArcs());
    const auto check = [](const auto& a, const auto& b) {
        const Met met = Meet(a, b);
        ASSERT_TRUE(PointerFormGives(Meeting(a, b), met.code, met.points, 0));
        ASSERT_TRUE(VectorFormGives(Meeting(a, b), met.code, met.points, 0));
    };
    ForAll(GridBeelines(), GridBeelines(), check);
    ForAll(GridBeelines(), GridStretches(true), check);
    ForAll(GridStretches(true), GridStretches(true), check);
    ForAll(GridBeelines(), GridCircles(), check);
    ForAll(GridStretches(true), GridCircles(), check);
    ForAll(GridCircles(), GridCircles(), check);
    ForAll(GridBeelines(), arcs, check);
    ForAll(GridCircles(), arcs, [&](const Circle& a, const Arc& b) {
        const bool isCarried = ExactCode(a, CircleOf(b)) == -1;
        carried += isCarried ? 1 : 0;
        ASSERT_EQ(Meet(a, b).code == -1, isCarried);
        if (isCarried)
        {
            ASSERT_TRUE(PointerFormGives(Meeting(a, b), 0, {}, 0));
            ASSERT_EQ(Meet(a, b).points.size(), 2U); // the ends of the arc
        }
        else
        {
            check(a, b);
        }
    });
    ForAll(arcs, arcs, check);
    EXPECT_EQ(static_cast<std::size_t>(carried), arcs.size()); // every arc of the grid lies on one circle of it
    ForRandomPairs(12, check);
}

TEST(IntersectionLaws, I13_TheQuickCountsOfCirclesAreThoseOfTheFullFormWithTheirExceptions)
{
    ForAll(GridBeelines(), GridCircles(),
           [](const Beeline& a, const Circle& b) { ASSERT_TRUE(QuickTestGives(Meeting(a, b), Meet(a, b).code)); });
    int centreOnCircle = 0;
    int innerTangency = 0;
    std::vector<Circle> circles = GridCircles();
    circles.push_back({At(0, 0), 3});
    ForAll(circles, circles, [&](const Circle& a, const Circle& b) {
        const int code = Meet(a, b).code;
        const double distance = DistanceOf(a.centre, b.centre);
        const bool hasCentreOnCircle = distance == a.radius || distance == b.radius;
        const bool touchesInside = distance > 0 && distance == std::abs(a.radius - b.radius);
        const int quick = hasCentreOnCircle ? 1 : touchesInside ? 2 : code;
        ASSERT_TRUE(QuickTestGives(Meeting(a, b), quick));
        centreOnCircle += hasCentreOnCircle && code != 1 ? 1 : 0;
        innerTangency += touchesInside && quick != code ? 1 : 0;
    });
    // 24 pairs of centres lie 1 apart: radii 1 and 1, 1 and 1/2 either way; 12 lie 2 apart: radii 2 and any. Circles
    // about two neighbours of the origin reach the centre of that of radius 3, with radius 1, and two with radius 2.
    EXPECT_EQ(centreOnCircle, 24 * 3 + 12 * 5 + 4 + 4);
    EXPECT_EQ(innerTangency, 4 + 4); // in that of radius 3: radius 2 at a distance of 1, radius 1 at 2
    Random random(13);
    for (int round = 0; round < 5000; ++round)
    {
        const Beeline line = RandomBeeline(random);
        const Circle a = CircleOf(RandomArc(random));
        const Circle b = CircleOf(RandomArc(random));
        ASSERT_TRUE(QuickTestGives(Meeting(line, a), Meet(line, a).code));
        ASSERT_TRUE(QuickTestGives(Meeting(a, b), Meet(a, b).code));
    }
}

TEST(IntersectionLaws, I14_ThePiecesOfAStretchOrAnArcMeetACurveWhereTheWholeDoes)
{
    const auto merged = [](std::vector<DPOINT2> first, const std::vector<DPOINT2>& second) {
        for (const DPOINT2& point : second)
        {
            const bool isNew = std::none_of(first.begin(), first.end(), [&](const DPOINT2& other) {
                return DistanceOf(point, other) <= 2 * Rounding;
            });
            if (isNew)
            {
                first.push_back(point);
            }
        }
        return first;
    };
    ForAll(GridStretches(false), GridCircles(), [&](const Stretch& a, const Circle& b) {
        const DPOINT2 middle = At((a.first.x + a.second.x) / 2, (a.first.y + a.second.y) / 2);
        const std::vector<DPOINT2> pieces =
            merged(Meet(Stretch{a.first, middle}, b).points, Meet(Stretch{middle, a.second}, b).points);
        ASSERT_TRUE(SameSet(pieces, Meet(a, b).points, 2 * Rounding));
    });
    ForAll(GridBeelines(), GridArcs(), [&](const Beeline& a, const OctantArc& b) {
        const Arc whole = b.ToArc();
        const Arc first{whole.centre, whole.radius, whole.start, whole.sweep / 2};
        const Arc last{whole.centre, whole.radius, whole.start + whole.sweep / 2, whole.sweep / 2};
        ASSERT_TRUE(SameSet(merged(Meet(a, first).points, Meet(a, last).points), Meet(a, whole).points, 2 * Rounding));
    });
    Random random(14);
    for (int round = 0; round < 5000; ++round)
    {
        const Arc a = RandomArc(random);
        const Stretch s = RandomStretch(random);
        const double ratio = random.Number(0.1, 0.9);
        const DPOINT2 cut =
            At(s.first.x + ratio * (s.second.x - s.first.x), s.first.y + ratio * (s.second.y - s.first.y));
        const Arc first{a.centre, a.radius, a.start, a.sweep * ratio};
        const Arc last{a.centre, a.radius, a.start + a.sweep * ratio, a.sweep * (1 - ratio)};
        const Circle circle = CircleOf(RandomArc(random));
        std::vector<DPOINT2> pieces =
            merged(Meet(Stretch{s.first, cut}, circle).points, Meet(Stretch{cut, s.second}, circle).points);
        ASSERT_TRUE(SameSet(pieces, Meet(s, circle).points, RandomTolerance));
        pieces = merged(Meet(circle, first).points, Meet(circle, last).points);
        ASSERT_TRUE(SameSet(pieces, Meet(circle, a).points, RandomTolerance));
        pieces = merged(Meet(s, first).points, Meet(s, last).points);
        ASSERT_TRUE(SameSet(pieces, Meet(s, a).points, RandomTolerance));
    }
}
