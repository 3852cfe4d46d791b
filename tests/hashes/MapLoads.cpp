#include "Load.h"
#include "Positions.h"

namespace math::hashes
{

namespace
{

using Joints = std::vector<std::pair<double, double>>;

/// A position by a joint of a map, or any.
double PositionBy(Source& source, const CPolyPosMap& map, int side)
{
    const Joints& joints = map.PosPairs();
    const int count = side == 1 ? map.SrcSegmentCount() : map.DstSegmentCount();
    if (joints.empty() || source.OneIn(4))
    {
        return RandomPosition(source, count);
    }
    const std::size_t index = static_cast<std::size_t>(source.Below(static_cast<int>(joints.size())));
    const std::size_t next = index + 1 < joints.size() ? index + 1 : index;
    const double at = side == 1 ? joints[index].first : joints[index].second;
    const double beyond = side == 1 ? joints[next].first : joints[next].second;
    const double laps = source.OneIn(6) ? source.Between(-2, 2) * static_cast<double>(count) : 0.0;
    return laps + (source.Coin() ? source.Near(at) : at + (beyond - at) * source.Ratio());
}

/// Some positions on one map: many for a large one.
template <typename Action>
void AtSomePositions(Source& source, const CPolyPosMap& map, int side, const Action& action)
{
    const int count = map.PosPairs().size() > 50 ? 100 : 3;
    for (int i = 0; i < count; ++i)
    {
        action(PositionBy(source, map, side));
    }
}

template <bool (CPolyPosMap::*Test)() const>
void OfMap(Source& source, ResultHash& hash)
{
    hash << (SeldomLargeMap(source, 1000, 500).*Test)();
}

template <bool (CPolyPosMap::*Test)(const int&) const>
void OfSide(Source& source, ResultHash& hash)
{
    const CPolyPosMap map = SeldomLargeMap(source, 1000, 500);
    hash << (map.*Test)(RandomSide(source));
}

template <void (CPolyPosMap::*Change)()>
void Changed(Source& source, ResultHash& hash)
{
    CPolyPosMap map = SeldomLargeMap(source, 1000, 500);
    (map.*Change)();
    hash << map;
}

template <int (CPolyPosMap::*Search)(const double&, const int&) const>
void OfIndex(Source& source, ResultHash& hash)
{
    const CPolyPosMap map = SeldomLargeMap(source, 500, 400);
    const int side = source.OneIn(20) ? 3 : source.Between(1, 2);
    AtSomePositions(source, map, side == 1 ? 1 : 2, [&](double position) { hash << (map.*Search)(position, side); });
}

struct TwoMaps
{
    CPolyPosMap first;
    CPolyPosMap second;
};

/// Two maps in a row: most of the time the first leads to what the second starts from. Large ones in every 100 rounds.
TwoMaps MapsInARow(Source& source)
{
    if (source.Round() % 100 == 99)
    {
        const int size = source.Round() % 600 == 599 ? 1000 : source.Between(33, 200);
        const int middleCount = source.Between(1, size / 2);
        const CPolyPosMap first = LargeMap(source, size, source.Between(1, size / 2), middleCount);
        const int otherSize = source.OneIn(3) ? 5 : size;
        return {first, LargeMap(source, otherSize, middleCount, source.Between(1, size / 2))};
    }
    const int middleCount = RandomCount(source);
    const CPolyPosMap first = RandomMap(source, RandomCount(source), middleCount);
    const int fromCount = source.OneIn(12) ? RandomCount(source) : middleCount;
    return {first, RandomMap(source, fromCount, RandomCount(source))};
}

/// A map and another that may undo it.
TwoMaps MapAndItsInverse(Source& source)
{
    TwoMaps maps;
    maps.first = SeldomLargeMap(source, 500, 100);
    maps.second = !maps.first;
    if (source.OneIn(3))
    {
        const double delta = source.Coin() ? source.Sliver() : source.Between(-1, 1);
        maps.second.Offset(delta, source.Between(1, 3));
    }
    if (source.OneIn(4))
    {
        maps.second = RandomMap(source, maps.first.DstSegmentCount(), maps.first.SrcSegmentCount());
    }
    return maps;
}

/// Two maps between the same polylines, the second beginning where the first ends more often than not.
TwoMaps MapsToJoin(Source& source)
{
    const int srcCount = RandomCount(source);
    const int dstCount = RandomCount(source);
    const CPolyPosMap first = RandomMap(source, srcCount, dstCount);
    CPolyPosMap second = RandomMap(source, source.OneIn(10) ? srcCount + 1 : srcCount, dstCount);
    if (!first.IsEmpty() && !second.IsEmpty() && source.Coin())
    {
        second.Offset(first.Back().first - second.Front().first, 1);
        second.Offset(first.Back().second - second.Front().second, 2);
    }
    return {first, second};
}

double StepLimit(Source& source)
{
    constexpr double limits[] = {0.05, 0.1, 0.5, 1.0, 0.01, 1e-9, 0.0, 10.0};
    return source.OneIn(4) ? source.Ratio() : limits[source.Below(8)];
}

/// Counts the maps that were destroyed.
class Counted : public CPolyPosMap
{
public:
    Counted(const CPolyPosMap& map, int* counter) : CPolyPosMap(map), m_counter(counter)
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

void RunInsert(Source& source, ResultHash& hash)
{
    CPolyPosMap map = SeldomLargeMap(source, 500, 400);
    const int side = source.OneIn(20) ? source.Between(-1, 4) : source.Between(1, 2);
    AtSomePositions(source, map, side == 1 ? 1 : 2, [&](double position) { hash << map.Insert(position, side); });
    hash << map;
}

void RunSmooth(Source& source, ResultHash& hash)
{
    const int srcCount = source.Between(1, 6);
    const int dstCount = source.OneIn(3) ? srcCount : source.Between(1, 6);
    CPolyPosMap map = RandomMap(source);
    if (source.Round() % 500 == 499)
    {
        const int largeCount = source.Between(20, 150);
        map = Staircase(source, 300, largeCount, source.Coin() ? largeCount : 40);
    }
    else if (!source.OneIn(3))
    {
        map = Staircase(source, source.Between(2, 40), srcCount, dstCount);
    }
    const double maxStep = StepLimit(source);
    map.Smooth(maxStep, StepLimit(source));
    hash << map;
}

} // namespace

const std::vector<Load> MapLoads = {
    {"CPolyPosMap::CPolyPosMap()", Usual, [](Source& /*source*/, ResultHash& hash) { hash << CPolyPosMap(); }},
    {"CPolyPosMap::CPolyPosMap(CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         const CPolyPosMap copy(map);
         hash << copy;
     }},
    {"CPolyPosMap::CPolyPosMap(std::vector<std::pair<double, double>> const&, int const&, int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const Joints joints{{source.Number(), source.Number()}, {source.Number(), source.Number()}};
         const int srcCount = RandomCount(source);
         hash << CPolyPosMap(joints, srcCount, RandomCount(source));
     }},
    {"CPolyPosMap::operator=(CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = RandomMap(source);
         const CPolyPosMap other = RandomMap(source);
         const CPolyPosMap& assigned = source.OneIn(8) ? map : other;
         hash << (&(map = assigned) == &map) << map;
     }},
    {"CPolyPosMap::~CPolyPosMap()", Usual,
     [](Source& source, ResultHash& hash) {
         int destroyed = 0;
         const CPolyPosMap* const map = new Counted(RandomMap(source), &destroyed);
         hash << *map;
         delete map;
         hash << destroyed;
     }},
    {"CPolyPosMap::PosPairs()", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = RandomMap(source);
         map.PosPairs().emplace_back(source.Number(), 2.0);
         hash << map;
     }},
    {"CPolyPosMap::PosPairs() const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         hash << map.PosPairs();
     }},
    {"CPolyPosMap::SrcSegmentCount()", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = RandomMap(source);
         hash << map.SrcSegmentCount();
         map.SrcSegmentCount() = source.Below(100);
         hash << map;
     }},
    {"CPolyPosMap::SrcSegmentCount() const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         hash << map.SrcSegmentCount();
     }},
    {"CPolyPosMap::DstSegmentCount()", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = RandomMap(source);
         hash << map.DstSegmentCount();
         map.DstSegmentCount() = source.Below(100);
         hash << map;
     }},
    {"CPolyPosMap::DstSegmentCount() const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         hash << map.DstSegmentCount();
     }},
    {"CPolyPosMap::MakeEmpty()", Usual, Changed<&CPolyPosMap::MakeEmpty>},
    {"CPolyPosMap::IsEmpty() const", Usual, OfMap<&CPolyPosMap::IsEmpty>},
    {"CPolyPosMap::Front() const", Usual, [](Source& source, ResultHash& hash) { hash << RandomMap(source).Front(); }},
    {"CPolyPosMap::Back() const", Usual, [](Source& source, ResultHash& hash) { hash << RandomMap(source).Back(); }},
    {"CPolyPosMap::IsPosPairEqual(std::pair<double, double> const&, std::pair<double, double> const&)", Cheap,
     [](Source& source, ResultHash& hash) {
         const std::pair<double, double> a{source.Number(), source.Number()};
         const std::pair<double, double> b{source.Near(a.first),
                                           source.OneIn(6) ? source.Number() : source.Near(a.second)};
         hash << CPolyPosMap::IsPosPairEqual(a, b);
     }},
    {"CPolyPosMap::Reverse()", Usual, Changed<&CPolyPosMap::Reverse>},
    {"CPolyPosMap::Invert()", Usual, Changed<&CPolyPosMap::Invert>},
    {"CPolyPosMap::operator!() const", Usual,
     [](Source& source, ResultHash& hash) { hash << !SeldomLargeMap(source, 1000, 500); }},
    {"CPolyPosMap::IsIdentity() const", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = RandomMap(source);
         if (source.Coin())
         {
             for (std::pair<double, double>& joint : map.PosPairs())
             {
                 joint.second = source.OneIn(10) ? source.Near(joint.first) : joint.first;
             }
         }
         hash << map.IsIdentity();
     }},
    {"CPolyPosMap::IsInvalid() const", Usual, OfMap<&CPolyPosMap::IsInvalid>},
    {"CPolyPosMap::IsNormalize() const", Usual, OfMap<&CPolyPosMap::IsNormalize>},
    {"CPolyPosMap::IsIncrease(int const&) const", Usual, OfSide<&CPolyPosMap::IsIncrease>},
    {"CPolyPosMap::IsPoint(int const&) const", Usual, OfSide<&CPolyPosMap::IsPoint>},
    {"CPolyPosMap::GetRange(int const&, bool const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         const int side = RandomSide(source);
         hash << map.GetRange(side, source.Coin());
     }},
    {"CPolyPosMap::Unique(bool const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = SeldomLargeMap(source, 100, 1000);
         map.Unique(source.Coin());
         hash << map;
     }},
    {"CPolyPosMap::Normalize()", Usual, Changed<&CPolyPosMap::Normalize>},
    {"CPolyPosMap::FillAllSegmentNode(int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = SeldomLargeMap(source, 250, source.Round() % 1000 == 999 ? 1000 : 150);
         map.FillAllSegmentNode(RandomSide(source));
         hash << map;
     }},
    {"CPolyPosMap::Smooth(double const&, double const&)", Usual, RunSmooth},
    {"CPolyPosMap::operator*(double const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = SeldomLargeMap(source, 500, 1000);
         AtSomePositions(source, map, 1, [&](double position) { hash << map * position; });
     }},
    {"CPolyPosMap::MultyDouble(double const&, bool const&, bool const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = SeldomLargeMap(source, 500, 1000);
         AtSomePositions(source, map, 1, [&](double position) {
             const bool bothSeamFaces = source.Coin();
             hash << map.MultyDouble(position, bothSeamFaces, source.Coin());
         });
         const bool isLifted = source.Coin();
         hash << map.MultyDouble(source.Coin() ? 0.0 : source.Near(map.SrcSegmentCount()), true, isLifted);
     }},
    // Private, and reached through the evaluation of a map.
    {"CPolyPosMap::MultyDouble(std::vector<std::pair<double, double>> const&, double const&)", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         hash << map * PositionBy(source, map, 1);
     }},
    {"CPolyPosMap::GetMaxLeftIndex(double const&, int const&) const", Usual, OfIndex<&CPolyPosMap::GetMaxLeftIndex>},
    {"CPolyPosMap::GetMinRightIndex(double const&, int const&) const", Usual, OfIndex<&CPolyPosMap::GetMinRightIndex>},
    {"CPolyPosMap::IsOverRange(double const&, int const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const CPolyPosMap map = RandomMap(source);
         const int side = RandomSide(source);
         AtSomePositions(source, map, side == 1 ? 1 : 2,
                         [&](double position) { hash << map.IsOverRange(position, side); });
     }},
    {"CPolyPosMap::Insert(double const&, int const&)", Usual, RunInsert},
    {"CPolyPosMap::Offset(double const&, int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = SeldomLargeMap(source, 1000, 500);
         const double delta = source.Number();
         map.Offset(delta, RandomSide(source));
         hash << map;
     }},
    {"CPolyPosMap::Split(double const&, int const&)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = SeldomLargeMap(source, 500, 150);
         const int side = RandomSide(source);
         map.Split(PositionBy(source, map, side == 2 ? 2 : 1), side);
         hash << map;
     }},
    {"CPolyPosMap::ReverseDirection(int)", Usual,
     [](Source& source, ResultHash& hash) {
         CPolyPosMap map = SeldomLargeMap(source, 1000, 500);
         map.ReverseDirection(RandomSide(source));
         hash << map;
     }},
    {"CPolyPosMap::operator*(CPolyPosMap const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const TwoMaps maps = MapsInARow(source);
         hash << maps.first * maps.second;
     }},
    {"CPolyPosMap::operator*=(CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         TwoMaps maps = MapsInARow(source);
         const CPolyPosMap& other = source.OneIn(10) ? maps.first : maps.second;
         hash << (&(maps.first *= other) == &maps.first) << maps.first;
     }},
    {"CPolyPosMap::IsInvertTo(CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         TwoMaps maps = MapAndItsInverse(source);
         hash << maps.first.IsInvertTo(maps.second) << maps.first;
     }},
    {"CPolyPosMap::operator+(CPolyPosMap const&) const", Usual,
     [](Source& source, ResultHash& hash) {
         const TwoMaps maps = MapsToJoin(source);
         hash << maps.first + maps.second;
     }},
    {"CPolyPosMap::operator+=(CPolyPosMap const&)", Usual,
     [](Source& source, ResultHash& hash) {
         TwoMaps maps = MapsToJoin(source);
         const CPolyPosMap& other = source.OneIn(10) ? maps.first : maps.second;
         hash << (&(maps.first += other) == &maps.first) << maps.first;
     }},
};

} // namespace math::hashes
