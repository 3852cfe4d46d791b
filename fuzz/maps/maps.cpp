// Sequences of operations on a small stack of position maps: builders, edits, compositions, and what is asked of maps.

#include "Decoder.h"

#include "math/CPolyPosMap.h"
#include "math/CPolyPosMapUtilies.h"
#include "math/PosRangeD.h"
#include "support/ReferenceBuilders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

using namespace math;
using fuzz::Decoder;
using fuzz::SameBits;

namespace
{

using Joint = std::pair<double, double>;
using Joints = std::vector<Joint>;
using Utilities = CPolyPosMapUtilies;

// Filling, combining and cutting take time with the counts and positions; a composition with the product of joints.
constexpr int GreatestCount = 240;
constexpr int GreatestPosition = 2000;
constexpr std::size_t MostJoints = 48;

bool Near(double a, double b)
{
    return std::abs(a - b) < 1e-9;
}

bool SameJoint(const Joint& a, const Joint& b)
{
    return SameBits(a.first, b.first) && SameBits(a.second, b.second);
}

bool SameMap(const CPolyPosMap& a, const CPolyPosMap& b)
{
    return a.SrcSegmentCount() == b.SrcSegmentCount() && a.DstSegmentCount() == b.DstSegmentCount() &&
           std::equal(a.PosPairs().begin(), a.PosPairs().end(), b.PosPairs().begin(), b.PosPairs().end(), SameJoint);
}

bool SameMap(const CPolyPosMap& a, const reference::RefMap& b)
{
    return SameMap(a, reference::To(b));
}

bool SameNumbers(const std::vector<double>& a, const std::vector<double>& b)
{
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), SameBits);
}

bool IsNothing(const CPolyPosMap& map)
{
    return map.IsEmpty() && map.SrcSegmentCount() == 0 && map.DstSegmentCount() == 0;
}

/// What the second implementation serves: it takes laps one at a time and knows neither NaN nor negative counts.
bool IsModest(double position)
{
    return std::abs(position) <= 1e4;
}

bool IsModest(const CPolyPosMap& map)
{
    return map.SrcSegmentCount() >= 0 && map.DstSegmentCount() >= 0 && map.SrcSegmentCount() <= 2 * GreatestCount &&
           map.DstSegmentCount() <= 2 * GreatestCount &&
           std::all_of(map.PosPairs().begin(), map.PosPairs().end(),
                       [](const Joint& joint) { return IsModest(joint.first) && IsModest(joint.second); });
}

/// The cost of filling grows with counts and joints: small maps are compared, large ones only run.
bool IsSmall(const CPolyPosMap& map)
{
    return IsModest(map) && map.SrcSegmentCount() <= 64 && map.DstSegmentCount() <= 64;
}

// What is asked of a map

void CheckModel(const CPolyPosMap& map, int side, bool normalize)
{
    const bool invalid = map.IsInvalid();
    FUZZ_REQUIRE(map.IsEmpty() == map.PosPairs().empty());
    FUZZ_REQUIRE(!invalid || map.PosPairs().size() >= 2);
    FUZZ_REQUIRE(!invalid || (!map.IsNormalize() && !map.IsIncrease(side) && !map.IsPoint(side)));
    const PosRangeD range = map.GetRange(side, normalize);
    if (invalid || map.IsEmpty() || side < 1 || side > 2)
    {
        FUZZ_REQUIRE(range.start == -1.0 && range.end == -1.0);
    }
    if (map.IsEmpty())
    {
        FUZZ_REQUIRE(SameJoint(map.Front(), {-1.0, -1.0}) && SameJoint(map.Back(), {-1.0, -1.0}));
        FUZZ_REQUIRE(map.IsIdentity() && map.IsNormalize());
    }
    FUZZ_REQUIRE(SameMap(map, map));
    if (!IsModest(map))
    {
        return;
    }
    const reference::RefMap plain = reference::From(map);
    FUZZ_REQUIRE(invalid == reference::IsInvalid(plain));
    FUZZ_REQUIRE(map.IsNormalize() == reference::IsNormalize(plain));
    FUZZ_REQUIRE(map.IsIdentity() == reference::IsIdentity(plain));
    FUZZ_REQUIRE(map.IsIncrease(side) == reference::IsIncrease(plain, side));
    FUZZ_REQUIRE(map.IsPoint(side) == reference::IsPoint(plain, side));
    FUZZ_REQUIRE(SameJoint({range.start, range.end}, reference::GetRange(plain, side, normalize)));
}

void CheckIndices(const CPolyPosMap& map, double position, int side)
{
    const int left = map.GetMaxLeftIndex(position, side);
    const int right = map.GetMinRightIndex(position, side);
    const auto size = static_cast<int>(map.PosPairs().size());
    FUZZ_REQUIRE(left >= -1 && left < size && right >= -1 && right < size);
    if (map.IsInvalid() || map.IsEmpty())
    {
        FUZZ_REQUIRE(left == -1 && right == -1);
        return;
    }
    if (!IsModest(map) || !IsModest(position))
    {
        return;
    }
    const std::vector<double> column = reference::Column(reference::From(map), side == 1 ? 1 : 2);
    FUZZ_REQUIRE(left == reference::LeftIndex(column, position));
    FUZZ_REQUIRE(right == reference::RightIndex(column, position));
}

void CheckImages(const CPolyPosMap& map, double position, bool bothFaces, bool lift, int side)
{
    const std::vector<double> images = map * position;
    const std::vector<double> sorted = map.MultyDouble(position, bothFaces, lift);
    const bool over = map.IsOverRange(position, side);
    if (map.IsInvalid())
    {
        FUZZ_REQUIRE(images.empty() && sorted.empty() && !over);
        return;
    }
    FUZZ_REQUIRE(images.size() <= std::max<std::size_t>(map.PosPairs().size(), 1));
    for (std::size_t i = 1; i < sorted.size(); ++i)
    {
        const bool up = map.IsIncrease(2);
        FUZZ_REQUIRE(!Near(sorted[i - 1], sorted[i]));
        // Infinity is not near itself and may come again.
        FUZZ_REQUIRE(std::isnan(sorted[i]) || (up ? sorted[i - 1] <= sorted[i] : sorted[i - 1] >= sorted[i]));
    }
    if (map.IsEmpty())
    {
        FUZZ_REQUIRE(images.size() == 1 && over);
    }
    if (!IsModest(map) || !IsModest(position))
    {
        return;
    }
    const reference::RefMap plain = reference::From(map);
    FUZZ_REQUIRE(SameNumbers(images, reference::Multiply(plain, position)));
    FUZZ_REQUIRE(SameNumbers(sorted, reference::MultyDouble(plain, position, bothFaces, lift)));
    FUZZ_REQUIRE(over == reference::IsOverRange(plain, position, side));
}

void CheckSegments(const CPolyPosMap& map)
{
    const std::vector<int> segments = Utilities::GetSegmentMapFronPosMap(map);
    FUZZ_REQUIRE(segments.size() == static_cast<std::size_t>(std::max(map.SrcSegmentCount(), 0)));
    for (std::size_t i = 0; i < segments.size(); ++i)
    {
        FUZZ_REQUIRE(i == 0 || segments[i] == -1 || segments[i] != segments[i - 1]);
        FUZZ_REQUIRE(std::abs(static_cast<double>(segments[i])) <
                     std::max(2.0, std::abs(static_cast<double>(map.DstSegmentCount()))));
    }
    const CPolyPosMap back = Utilities::GeneratePosMapFromSegmentMap(segments, map.DstSegmentCount());
    FUZZ_REQUIRE(back.SrcSegmentCount() == static_cast<int>(segments.size()));
}

// Changes of a map

void Invert(CPolyPosMap& map)
{
    const CPolyPosMap before(map);
    const CPolyPosMap inverse = !map;
    FUZZ_REQUIRE(SameMap(map, before));
    map.Invert();
    FUZZ_REQUIRE(SameMap(map, inverse) && map.IsInvalid() == before.IsInvalid());
    FUZZ_REQUIRE(SameMap(!inverse, before));
}

void Reverse(CPolyPosMap& map)
{
    const CPolyPosMap before(map);
    map.Reverse();
    CPolyPosMap twice(map);
    twice.Reverse();
    FUZZ_REQUIRE(SameMap(twice, before));
}

void Unique(CPolyPosMap& map, bool mergeStraight)
{
    const CPolyPosMap before(map);
    map.Unique(mergeStraight);
    FUZZ_REQUIRE(map.PosPairs().size() <= before.PosPairs().size() && map.IsEmpty() == before.IsEmpty());
    if (!before.IsEmpty())
    {
        FUZZ_REQUIRE(SameJoint(map.Front(), before.Front()));
    }
    if (!mergeStraight)
    {
        for (std::size_t i = 1; i < map.PosPairs().size(); ++i)
        {
            FUZZ_REQUIRE(!CPolyPosMap::IsPosPairEqual(map.PosPairs()[i - 1], map.PosPairs()[i]));
        }
        CPolyPosMap again(map);
        again.Unique(false);
        FUZZ_REQUIRE(SameMap(again, map));
    }
    if (IsModest(before))
    {
        reference::RefMap plain = reference::From(before);
        reference::Unique(plain.list, mergeStraight);
        FUZZ_REQUIRE(SameMap(map, plain));
    }
}

void Normalize(CPolyPosMap& map)
{
    const CPolyPosMap before(map);
    map.Normalize();
    FUZZ_REQUIRE(map.PosPairs().size() == before.PosPairs().size());
    FUZZ_REQUIRE(map.SrcSegmentCount() == before.SrcSegmentCount());
    FUZZ_REQUIRE(map.DstSegmentCount() == before.DstSegmentCount());
    if (before.IsNormalize() || before.IsInvalid())
    {
        FUZZ_REQUIRE(SameMap(map, before));
    }
    if (IsModest(before))
    {
        reference::RefMap plain = reference::From(before);
        reference::Normalize(plain);
        FUZZ_REQUIRE(SameMap(map, plain));
    }
}

void Fill(CPolyPosMap& map, int side)
{
    const CPolyPosMap before(map);
    map.FillAllSegmentNode(side);
    if (before.IsInvalid() || before.IsEmpty())
    {
        FUZZ_REQUIRE(SameMap(map, before));
    }
    if (IsSmall(before))
    {
        reference::RefMap plain = reference::From(before);
        reference::FillAllSegmentNode(plain, side);
        FUZZ_REQUIRE(SameMap(map, plain));
    }
}

void Smooth(CPolyPosMap& map, double maxStep, double maxStepDifference)
{
    const CPolyPosMap before(map);
    map.Smooth(maxStep, maxStepDifference);
    if (IsSmall(before) && !before.IsEmpty() && std::isfinite(maxStep) && std::isfinite(maxStepDifference))
    {
        reference::RefMap plain = reference::From(before);
        reference::Smooth(plain, maxStep, maxStepDifference);
        FUZZ_REQUIRE(SameMap(map, plain));
    }
}

void Insert(CPolyPosMap& map, double position, int side)
{
    const CPolyPosMap before(map);
    const Joint joint = map.Insert(position, side);
    if (side < 1 || side > 2 || before.IsEmpty())
    {
        FUZZ_REQUIRE(SameJoint(joint, {-1.0, -1.0}) && SameMap(map, before));
        return;
    }
    const std::size_t grown = map.PosPairs().size() - before.PosPairs().size();
    FUZZ_REQUIRE(grown <= 1);
    FUZZ_REQUIRE(std::any_of(map.PosPairs().begin(), map.PosPairs().end(),
                             [&](const Joint& known) { return SameJoint(known, joint); }));
    if (IsModest(before) && IsModest(position))
    {
        reference::RefMap plain = reference::From(before);
        FUZZ_REQUIRE(SameJoint(joint, reference::InsertOnLap(plain, position, side)));
        FUZZ_REQUIRE(SameMap(map, plain));
    }
}

/// Arguments that lie in the map itself are taken before anything changes.
void ChangeByOwnJoint(CPolyPosMap& map, int which, int side)
{
    if (map.IsEmpty())
    {
        return;
    }
    const std::size_t index = static_cast<std::size_t>(which) % map.PosPairs().size();
    const double value = map.PosPairs()[index].first;
    if (!(std::abs(value) <= GreatestPosition))
    {
        return;
    }
    CPolyPosMap expected(map);
    double& own = map.PosPairs()[index].first;
    switch (which % 4)
    {
    case 0:
        expected.Insert(value, side);
        map.Insert(own, side);
        break;
    case 1:
        expected.Offset(value, side);
        map.Offset(own, side);
        break;
    case 2:
        expected.Split(value, side);
        map.Split(own, side);
        break;
    default:
        expected.Smooth(value, value);
        map.Smooth(own, own);
        break;
    }
    FUZZ_REQUIRE(SameMap(map, expected));
}

void Offset(CPolyPosMap& map, double delta, int side)
{
    const CPolyPosMap before(map);
    map.Offset(delta, side);
    const bool moves = !before.IsInvalid() && side >= 1 && side <= 3;
    for (std::size_t i = 0; i < before.PosPairs().size(); ++i)
    {
        const Joint& was = before.PosPairs()[i];
        const bool movesSource = moves && side != 2;
        const bool movesDestination = moves && side != 1;
        FUZZ_REQUIRE(SameJoint(map.PosPairs()[i], {movesSource ? was.first + delta : was.first,
                                                   movesDestination ? was.second + delta : was.second}));
    }
}

void Split(CPolyPosMap& map, double position, int side)
{
    const CPolyPosMap before(map);
    map.Split(position, side);
    const bool atSeamOfBoth = (Near(position, 0.0) || Near(position, before.SrcSegmentCount())) &&
                              (Near(position, 0.0) || Near(position, before.DstSegmentCount()));
    if (side < 1 || side > 3 || atSeamOfBoth)
    {
        FUZZ_REQUIRE(SameMap(map, before));
    }
}

void ReverseDirection(CPolyPosMap& map, int side)
{
    const CPolyPosMap before(map);
    map.ReverseDirection(side);
    FUZZ_REQUIRE(map.PosPairs().size() == before.PosPairs().size());
    if (side < 1 || side > 3)
    {
        FUZZ_REQUIRE(SameMap(map, before));
    }
}

// Two maps

CPolyPosMap Compose(const CPolyPosMap& a, const CPolyPosMap& b)
{
    CPolyPosMap composed = a * b;
    if (a.IsInvalid() || b.IsInvalid())
    {
        FUZZ_REQUIRE(IsNothing(composed));
    }
    CPolyPosMap inPlace(a);
    inPlace *= b;
    FUZZ_REQUIRE(SameMap(inPlace, a.IsInvalid() ? a : composed));
    CPolyPosMap tested(a);
    const bool undone = tested.IsInvertTo(b);
    FUZZ_REQUIRE(SameMap(tested, a));
    FUZZ_REQUIRE(!undone || (a.SrcSegmentCount() == b.DstSegmentCount() && a.DstSegmentCount() == b.SrcSegmentCount() &&
                             composed.IsIdentity()));
    if (IsModest(a) && IsModest(b))
    {
        FUZZ_REQUIRE(SameMap(composed, reference::Compose(reference::From(a), reference::From(b))));
    }
    return composed;
}

CPolyPosMap Concatenate(const CPolyPosMap& a, const CPolyPosMap& b)
{
    CPolyPosMap both = a + b;
    if (a.IsInvalid() || b.IsInvalid() || a.SrcSegmentCount() != b.SrcSegmentCount() ||
        a.DstSegmentCount() != b.DstSegmentCount())
    {
        FUZZ_REQUIRE(IsNothing(both));
    }
    else
    {
        FUZZ_REQUIRE(both.PosPairs().size() == a.PosPairs().size() + b.PosPairs().size());
    }
    CPolyPosMap inPlace(a);
    inPlace += b;
    FUZZ_REQUIRE(SameMap(inPlace, a.IsInvalid() ? a : both));
    if (IsModest(a) && IsModest(b))
    {
        FUZZ_REQUIRE(SameMap(both, reference::Concatenate(reference::From(a), reference::From(b))));
    }
    return both;
}

bool Fails(const CPolyPosMap& combined)
{
    return combined.IsInvalid();
}

CPolyPosMap Combine(int how, const CPolyPosMap& a, const CPolyPosMap& b)
{
    const bool compared = IsModest(a) && IsModest(b);
    const reference::RefMap plainA = reference::From(a);
    const reference::RefMap plainB = reference::From(b);
    switch (how)
    {
    case 0: {
        CPolyPosMap joined = Utilities::CombineTwonMapWithSameDst(a, b);
        FUZZ_REQUIRE(!Fails(joined));
        FUZZ_REQUIRE(!compared || SameMap(joined, reference::CombineSameDestination(plainA, plainB)));
        return joined;
    }
    case 1: {
        CPolyPosMap joined = Utilities::CombineTwonMapWithSameSrc(a, b);
        FUZZ_REQUIRE(!Fails(joined));
        FUZZ_REQUIRE(!compared || SameMap(joined, reference::CombineSameSource(plainA, plainB)));
        return joined;
    }
    default: {
        CPolyPosMap joined = Utilities::CombineTwoMapStandalone(a, b);
        FUZZ_REQUIRE(!compared || SameMap(joined, reference::CombineStandalone(plainA, plainB)));
        return joined;
    }
    }
}

// Builders

/// A range that is cut segment by segment: its ends are kept small, or are beyond all integers.
PosRangeD NextRange(Decoder& decoder)
{
    const auto bounded = [&] {
        const double position = decoder.Size();
        return std::abs(position) < 1e10 ? std::fmod(position, GreatestPosition) : position;
    };
    switch (decoder.Below(4))
    {
    case 0:
        return PosRangeD();
    default: {
        const double start = bounded();
        return PosRangeD(start, bounded());
    }
    }
}

double NextPosition(Decoder& decoder, int count)
{
    switch (decoder.Below(4))
    {
    case 0:
        return decoder.Number();
    case 1:
        return static_cast<double>(decoder.Byte()) / 8.0;
    case 2:
        return decoder.Below(std::max(count, 0) + 2);
    default:
        return decoder.Below(std::max(count, 0) + 2) + decoder.Sliver();
    }
}

/// A column that runs one way in small steps, seldom one that does as it likes.
std::vector<double> NextColumn(Decoder& decoder, std::size_t size, int count)
{
    const int kind = decoder.Byte();
    std::vector<double> column;
    double position = NextPosition(decoder, count);
    for (std::size_t i = 0; i < size; ++i)
    {
        fuzz::TheTrace().Take(position);
        column.push_back(position);
        const int step = decoder.Byte();
        switch (step & 7)
        {
        case 0:
        case 1:
            break;
        case 2:
            position += 1.0;
            break;
        case 3:
            position += (step >> 3) / 16.0;
            break;
        case 4:
            position += decoder.Sliver();
            break;
        case 5:
            position = kind % 8 == 0 ? decoder.Number() : position + 0.5;
            break;
        case 6:
            position = column.front() + count;
            break;
        default:
            position += (step >> 3) * 0.25;
            break;
        }
    }
    if (kind % 3 == 0)
    {
        std::reverse(column.begin(), column.end());
    }
    return column;
}

CPolyPosMap NextMap(Decoder& decoder)
{
    const int sourceCount = decoder.SegmentCount(GreatestCount);
    const int destinationCount = decoder.SegmentCount(GreatestCount);
    const int byte = decoder.Byte();
    const auto size = static_cast<std::size_t>(byte < 240 ? byte % 10 : 34 + byte % 10);
    const std::vector<double> source = NextColumn(decoder, size, sourceCount);
    const std::vector<double> destination = NextColumn(decoder, size, destinationCount);
    Joints joints;
    for (std::size_t i = 0; i < size; ++i)
    {
        joints.emplace_back(source[i], destination[i]);
    }
    return CPolyPosMap(joints, sourceCount, destinationCount);
}

/// An int of any size: for builders that take no time with it.
int NextFreeCount(Decoder& decoder)
{
    const int count = decoder.Flag() ? decoder.Whole() : decoder.SegmentCount(GreatestCount);
    fuzz::TheTrace().Take(count);
    return count;
}

CPolyPosMap WholeMap(Decoder& decoder)
{
    const int count = NextFreeCount(decoder);
    const bool reverse = decoder.Flag();
    CPolyPosMap map = Utilities::GenerateWholeMap(count, reverse);
    FUZZ_REQUIRE(map.SrcSegmentCount() == count && map.DstSegmentCount() == count && !map.IsInvalid());
    FUZZ_REQUIRE(map.PosPairs().size() == (count > 0 ? 2U : 0U));
    return map;
}

CPolyPosMap ResetZero(Decoder& decoder)
{
    const int count = NextFreeCount(decoder);
    const double position = NextPosition(decoder, 0);
    fuzz::TheTrace().Take(position);
    CPolyPosMap map = Utilities::ResetZero(position, count);
    if (Near(position, 0.0) || Near(position, count))
    {
        FUZZ_REQUIRE(SameMap(map, Utilities::GenerateWholeMap(count, false)));
    }
    FUZZ_REQUIRE(map.DstSegmentCount() == count);
    FUZZ_REQUIRE(map.SrcSegmentCount() == count || map.SrcSegmentCount() - 1 == count);
    // Positions beyond are rounded by more than the allowance for a lap.
    if (position > 0.0 && position < count && count < 100000)
    {
        FUZZ_REQUIRE(!map.IsInvalid());
    }
    return map;
}

CPolyPosMap FromSegmentMap(Decoder& decoder)
{
    std::vector<int> segments;
    for (int left = decoder.Below(12); left > 0; --left)
    {
        segments.push_back(decoder.Below(4) == 0 ? decoder.Whole() : decoder.Below(9) - 1);
        fuzz::TheTrace().Take(segments.back());
    }
    const int count = NextFreeCount(decoder);
    CPolyPosMap map = Utilities::GeneratePosMapFromSegmentMap(segments, count);
    FUZZ_REQUIRE(map.SrcSegmentCount() == static_cast<int>(segments.size()) && map.DstSegmentCount() == count);
    FUZZ_REQUIRE(map.IsEmpty() == segments.empty());
    return map;
}

CPolyPosMap FromRanges(Decoder& decoder)
{
    std::vector<PosRangeD> ranges;
    for (int left = decoder.Below(10); left > 0; --left)
    {
        const bool again = !ranges.empty() && decoder.Below(4) == 0;
        const PosRangeD next = NextRange(decoder);
        ranges.push_back(again ? ranges.back() : next);
    }
    const int count = NextFreeCount(decoder);
    CPolyPosMap map = Utilities::GeneratePosMapFromPosRangeVec(ranges, count);
    FUZZ_REQUIRE(ranges.empty() ? IsNothing(map) : map.SrcSegmentCount() == static_cast<int>(ranges.size()));
    return map;
}

CPolyPosMap CollapsedRange(Decoder& decoder)
{
    const PosRangeD range = NextRange(decoder);
    const double position = decoder.Number();
    const int sourceCount = NextFreeCount(decoder);
    const int destinationCount = NextFreeCount(decoder);
    CPolyPosMap map = Utilities::GeneratePosMapFromPosRange2Pos(range, position, sourceCount, destinationCount);
    FUZZ_REQUIRE(map.DstSegmentCount() == destinationCount && !map.IsEmpty() && map.PosPairs().size() <= 2);
    FUZZ_REQUIRE(map.IsPoint(2) || map.IsInvalid() || !std::isfinite(position));
    return map;
}

CPolyPosMap CutRange(Decoder& decoder)
{
    const PosRangeD range = NextRange(decoder);
    const int count = decoder.SegmentCount(GreatestCount);
    CPolyPosMap map = Utilities::GeneratePosMapFromCadByPosrange2OriginCad(range, count);
    if (IsModest(range.start) && IsModest(range.end))
    {
        FUZZ_REQUIRE(SameMap(map, reference::Piece(range.start, range.end, count)));
    }
    return map;
}

CPolyPosMap JoinedCad(Decoder& decoder)
{
    const int firstCount = decoder.SegmentCount(GreatestCount);
    const int secondCount = decoder.SegmentCount(GreatestCount);
    const auto both = Utilities::CombineTwoCad(firstCount, secondCount);
    const auto expected = reference::CombineTwoCad(firstCount, secondCount);
    FUZZ_REQUIRE(SameMap(both.first, expected.first) && SameMap(both.second, expected.second));
    return decoder.Flag() ? both.first : both.second;
}

CPolyPosMap Build(Decoder& decoder)
{
    switch (decoder.Below(12))
    {
    case 0:
        return WholeMap(decoder);
    case 1:
        return ResetZero(decoder);
    case 2:
        return FromSegmentMap(decoder);
    case 3:
        return FromRanges(decoder);
    case 4:
        return CollapsedRange(decoder);
    case 5:
        return CutRange(decoder);
    case 6:
        return JoinedCad(decoder);
    default:
        return NextMap(decoder);
    }
}

CPolyPosMap Extend(const CPolyPosMap& map, Decoder& decoder)
{
    const int added = decoder.SegmentCount(GreatestCount);
    const bool atFront = decoder.Flag();
    if (decoder.Flag())
    {
        const bool source = decoder.Flag();
        const bool destination = decoder.Flag();
        CPolyPosMap extended = Utilities::ExtendMap(map, added, atFront, source, destination);
        FUZZ_REQUIRE(source || destination || SameMap(extended, map));
        if (IsModest(map) && added >= 0)
        {
            FUZZ_REQUIRE(
                SameMap(extended, reference::Extend(reference::From(map), added, atFront, source, destination)));
        }
        return extended;
    }
    const int addedDestination = decoder.SegmentCount(GreatestCount);
    CPolyPosMap extended = Utilities::ExtendMap(map, added, addedDestination, atFront);
    FUZZ_REQUIRE(added != 0 || addedDestination != 0 || SameMap(extended, map));
    if (IsModest(map) && added >= 0 && addedDestination >= 0)
    {
        FUZZ_REQUIRE(SameMap(extended, reference::Extend(reference::From(map), added, addedDestination, atFront)));
    }
    return extended;
}

CPolyPosMap Shorten(const CPolyPosMap& map, Decoder& decoder)
{
    const PosRangeD range = NextRange(decoder);
    const bool onSource = decoder.Flag();
    CPolyPosMap rest = Utilities::RemoveOpenRangeFromMap(map, range, onSource);
    if (map.IsEmpty() || map.IsInvalid() || range.start > range.end)
    {
        FUZZ_REQUIRE(IsNothing(rest));
    }
    if (IsModest(map) && IsModest(range.start) && IsModest(range.end))
    {
        FUZZ_REQUIRE(
            SameMap(rest, reference::RemoveOpenRange(reference::From(map), {range.start, range.end}, onSource)));
    }
    return rest;
}

// The stack

using Stack = std::array<CPolyPosMap, 4>;

int NextSide(Decoder& decoder)
{
    const int byte = decoder.Byte();
    const int side = byte < 240 ? 1 + byte % 3 : byte - 246;
    fuzz::TheTrace().Take(side);
    return side;
}

/// Keeps what comes next quick: no long lists, and counts that can be walked through.
void Trim(CPolyPosMap& map)
{
    if (map.PosPairs().size() > MostJoints)
    {
        map.PosPairs().resize(MostJoints);
    }
    for (int* count : {&map.SrcSegmentCount(), &map.DstSegmentCount()})
    {
        *count = std::min(std::max(*count, -GreatestCount), GreatestCount);
    }
}

void RunOne(Stack& stack, Decoder& decoder)
{
    CPolyPosMap& map = stack[decoder.Byte() % stack.size()];
    const CPolyPosMap& other = stack[decoder.Byte() % stack.size()];
    switch (decoder.Below(32))
    {
    case 0: {
        const int side = NextSide(decoder);
        CheckModel(map, side, decoder.Flag());
        break;
    }
    case 1: {
        const double position = NextPosition(decoder, map.SrcSegmentCount());
        CheckIndices(map, position, NextSide(decoder));
        break;
    }
    case 2:
    case 3: {
        const double position = NextPosition(decoder, map.SrcSegmentCount());
        const int how = decoder.Byte();
        CheckImages(map, position, (how & 1) != 0, (how & 2) != 0, NextSide(decoder));
        break;
    }
    case 4:
        CheckSegments(map);
        break;
    case 5:
        Invert(map);
        break;
    case 6:
        Reverse(map);
        break;
    case 7:
        Unique(map, decoder.Flag());
        break;
    case 8:
        Normalize(map);
        break;
    case 9:
        Fill(map, NextSide(decoder));
        break;
    case 10: {
        const double maxStep = decoder.Size();
        Smooth(map, maxStep, decoder.Size());
        break;
    }
    case 11: {
        const double position = NextPosition(decoder, map.SrcSegmentCount());
        Insert(map, position, NextSide(decoder));
        break;
    }
    case 12: {
        const int which = decoder.Byte();
        ChangeByOwnJoint(map, which, NextSide(decoder));
        break;
    }
    case 13: {
        const double delta = decoder.Number();
        Offset(map, delta, NextSide(decoder));
        break;
    }
    case 14: {
        const double position = NextPosition(decoder, map.SrcSegmentCount());
        Split(map, position, NextSide(decoder));
        break;
    }
    case 15:
        ReverseDirection(map, NextSide(decoder));
        break;
    case 16:
    case 17:
    case 18:
        map = Compose(map, other);
        break;
    case 19:
        map = Concatenate(map, other);
        break;
    case 20:
    case 21:
    case 22:
        map = Combine(decoder.Below(3), map, other);
        break;
    case 23:
        map = Extend(map, decoder);
        break;
    case 24:
        map = Shorten(map, decoder);
        break;
    case 25:
        map = other;
        FUZZ_REQUIRE(SameMap(map, other));
        break;
    case 26:
        map.MakeEmpty();
        FUZZ_REQUIRE(IsNothing(map));
        break;
    default:
        map = Build(decoder);
        break;
    }
    Trim(map);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Decoder decoder(data, size);
    Stack stack;
    while (!decoder.IsEmpty())
    {
        fuzz::TheTrace().Begin("a sequence of operations");
        RunOne(stack, decoder);
    }
    return 0;
}
