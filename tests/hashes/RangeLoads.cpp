#include "Load.h"
#include "Positions.h"

#include <limits>

namespace math::hashes
{

namespace
{

PosRangeD AnyRange(Source& source)
{
    return RandomRange(source, source.Between(1, 6));
}

template <bool (PosRangeD::*Test)() const>
void OfRange(Source& source, ResultHash& hash)
{
    hash << (AnyRange(source).*Test)();
}

template <bool (PosRangeD::*Test)(const PosRangeD&) const>
void OfRanges(Source& source, ResultHash& hash)
{
    const auto [first, second] = RandomRanges(source);
    hash << (first.*Test)(second) << (second.*Test)(first);
}

/// A position, often at an end of the range or beside it.
double PositionBy(Source& source, const PosRangeD& range, int count)
{
    switch (source.Below(4))
    {
    case 0:
        return source.Near(range.start);
    case 1:
        return source.Near(range.end);
    default:
        return RandomPosition(source, count);
    }
}

template <bool (PosRangeD::*Test)(const double&) const>
void OfPosition(Source& source, ResultHash& hash)
{
    const int count = source.Between(1, 6);
    const PosRangeD range = RandomRange(source, count);
    hash << (range.*Test)(PositionBy(source, range, count));
}

int AnySegment(Source& source)
{
    constexpr int extremes[] = {std::numeric_limits<int>::max(), std::numeric_limits<int>::min(), -1};
    return source.OneIn(10) ? extremes[source.Below(3)] : source.Below(20);
}

/// Positions with integer parts about the limits of int as well.
double FarPosition(Source& source)
{
    switch (source.Below(4))
    {
    case 0: {
        const double limit = source.Coin() ? 2147483647.0 : -2147483648.0;
        return source.Near(limit + source.Between(-4, 4) * 0.5);
    }
    case 1:
        return source.Number();
    default:
        return RandomPosition(source, 6);
    }
}

int NormalizingCount(Source& source)
{
    return source.OneIn(8) ? source.Between(-3, 0) : source.Between(1, source.OneIn(6) ? 100000 : 9);
}

/// Counts the ranges that were destroyed.
struct Counted : PosRangeD
{
    explicit Counted(int* counter) : m_counter(counter)
    {
    }
    Counted(const Counted& other) = delete;
    Counted& operator=(const Counted& other) = delete;
    ~Counted() override
    {
        ++*m_counter;
    }

private:
    int* m_counter;
};

} // namespace

const std::vector<Load> RangeLoads = {
    {"PosRangeD::PosRangeD()", Usual, [](Source& /*source*/, ResultHash& hash) { hash << PosRangeD(); }},
    {"PosRangeD::PosRangeD(double const&, double const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const double start = FarPosition(source);
         hash << PosRangeD(start, FarPosition(source));
     }},
    {"PosRangeD::PosRangeD(PosRangeD const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const PosRangeD range = AnyRange(source);
         const PosRangeD copy(range);
         hash << copy;
     }},
    {"PosRangeD::PosRangeD(int, double, int, double)", Usual,
     [](Source& source, ResultHash& hash) {
         const int startSegment = AnySegment(source);
         const double startRatio = source.Ratio();
         const int endSegment = AnySegment(source);
         hash << PosRangeD(startSegment, startRatio, endSegment, source.Number());
     }},
    {"PosRangeD::PosRangeD(int, double, double)", Usual,
     [](Source& source, ResultHash& hash) {
         const int segment = AnySegment(source);
         const double startRatio = source.Number();
         hash << PosRangeD(segment, startRatio, source.Ratio());
     }},
    {"PosRangeD::operator=(PosRangeD const&)", Usual,
     [](Source& source, ResultHash& hash) {
         PosRangeD range = AnyRange(source);
         const PosRangeD other = AnyRange(source);
         hash << (&(range = other) == &range) << range;
     }},
    {"PosRangeD::~PosRangeD()", Usual,
     [](Source& /*source*/, ResultHash& hash) {
         int destroyed = 0;
         const PosRangeD* const range = new Counted(&destroyed);
         hash << *range;
         delete range;
         hash << destroyed;
     }},
    {"PosRangeD::MakeInavlid()", Usual,
     [](Source& source, ResultHash& hash) {
         PosRangeD range = AnyRange(source);
         range.MakeInavlid();
         hash << range;
     }},
    {"PosRangeD::GetSegmentIndex(double const&)", Cheap,
     [](Source& source, ResultHash& hash) { hash << PosRangeD::GetSegmentIndex(FarPosition(source)); }},
    {"PosRangeD::GetRadio(double const&)", Cheap,
     [](Source& source, ResultHash& hash) { hash << PosRangeD::GetRadio(FarPosition(source)); }},
    {"PosRangeD::NormalizePos(double const&, int const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const int count = NormalizingCount(source);
         const double position = source.OneIn(3)
                                     ? source.Near(source.Between(-5, 5) * count)
                                     : (source.Coin() ? FarPosition(source) : RandomPosition(source, count));
         hash << PosRangeD::NormalizePos(position, count);
     }},
    {"PosRangeD::NormalizePos(double const&, PosRangeD const&, int const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const int count = NormalizingCount(source);
         const PosRangeD range = RandomRange(source, count);
         const double position = source.OneIn(6) ? FarPosition(source) : PositionBy(source, range, count);
         hash << PosRangeD::NormalizePos(position, range, count);
     }},
    {"PosRangeD::IsEmpty() const", Usual, OfRange<&PosRangeD::IsEmpty>},
    {"PosRangeD::IsInvalid() const", Usual, OfRange<&PosRangeD::IsInvalid>},
    {"PosRangeD::IsWholeRange() const", Usual, OfRange<&PosRangeD::IsWholeRange>},
    {"PosRangeD::IsContainZero() const", Usual, OfRange<&PosRangeD::IsContainZero>},
    {"PosRangeD::IsContain(double const&) const", Cheap, OfPosition<&PosRangeD::IsContain>},
    {"PosRangeD::IsOn(double const&) const", Cheap, OfPosition<&PosRangeD::IsOn>},
    {"PosRangeD::IsContain(PosRangeD const&) const", Cheap, OfRanges<&PosRangeD::IsContain>},
    {"PosRangeD::IsOverlap(PosRangeD const&) const", Cheap, OfRanges<&PosRangeD::IsOverlap>},
    {"PosRangeD::IsComplementary(PosRangeD const&) const", Cheap, OfRanges<&PosRangeD::IsComplementary>},
    {"PosRangeD::operator==(PosRangeD const&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const auto [a, b] = RandomRanges(source);
         hash << (a == b) << (b == a);
     }},
    {"PosRangeD::operator!=(PosRangeD const&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const auto [a, b] = RandomRanges(source);
         hash << (a != b) << (b != a);
     }},
    {"PosRangeD::operator<(PosRangeD const&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const auto [a, b] = RandomRanges(source);
         hash << (a < b) << (b < a);
     }},
    {"PosRangeD::Reverse(int const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const PosRangeD range = AnyRange(source);
         hash << range.Reverse(RandomCount(source));
     }},
    {"PosRangeD::Complementary() const", Usual,
     [](Source& source, ResultHash& hash) { hash << AnyRange(source).Complementary(); }},
    {"PosRangeD::Splite(double const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const int count = source.Between(1, 6);
         PosRangeD range = RandomRange(source, count);
         hash << range.Splite(PositionBy(source, range, count)) << range;
     }},
    {"PosRangeD::operator-(PosRangeD const&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const auto [a, b] = RandomRanges(source);
         hash << (a - b) << (b - a);
     }},
    {"PosRangeD::operator+(PosRangeD const&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const auto [a, b] = RandomRanges(source);
         hash << (a + b) << (b + a);
     }},
    {"PosRangeD::operator*(PosRangeD const&) const", Cheap,
     [](Source& source, ResultHash& hash) {
         const auto [a, b] = RandomRanges(source);
         hash << (a * b) << (b * a);
     }},
};

} // namespace math::hashes
