// Ranges of positions: their states, predicates and algebra.

#include "Decoder.h"

#include "math/PosRangeD.h"
#include "support/ReferenceRanges.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

using namespace math;
using fuzz::Decoder;
using fuzz::SameBits;

namespace
{

using Ranges = std::vector<PosRangeD>;

bool Near(double a, double b)
{
    return std::abs(a - b) < 1e-9;
}

bool SameRange(const PosRangeD& a, const PosRangeD& b)
{
    return SameBits(a.start, b.start) && SameBits(a.end, b.end);
}

bool SameList(const Ranges& list, const reference::Ranges& expected)
{
    bool same = list.size() == expected.size();
    for (std::size_t i = 0; same && i < list.size(); ++i)
    {
        same = SameBits(list[i].start, expected[i].start) && SameBits(list[i].end, expected[i].end);
    }
    return same;
}

bool HasNaN(const PosRangeD& range)
{
    return std::isnan(range.start) || std::isnan(range.end);
}

/// No end is infinite or so large that laps or fractions get lost.
bool IsModest(const PosRangeD& range)
{
    return std::abs(range.start) <= 1e6 && std::abs(range.end) <= 1e6;
}

bool IsFinite(const PosRangeD& range)
{
    return std::isfinite(range.start) && std::isfinite(range.end);
}

void CheckStates(const PosRangeD& range)
{
    FUZZ_REQUIRE(range.IsEmpty() == range.IsInvalid());
    FUZZ_REQUIRE(!(range.IsInvalid() && range.IsWholeRange()));
    FUZZ_REQUIRE(range.IsInvalid() == (HasNaN(range) || range.start < -1e-9 || range.end < -1e-9));
    if (range.IsInvalid())
    {
        FUZZ_REQUIRE(!range.IsContainZero() && !range.IsContain(range) && !range.IsOverlap(range));
        FUZZ_REQUIRE(range == PosRangeD() && range.Complementary().IsInvalid());
        PosRangeD cut(range);
        FUZZ_REQUIRE(cut.Splite(0.5).empty() && SameRange(cut, range));
    }
    else
    {
        // Infinity has no difference from itself.
        FUZZ_REQUIRE(!IsFinite(range) || (range == range && !(range != range)));
        FUZZ_REQUIRE(!IsFinite(range) || (range.IsContain(range) && range.IsOverlap(range)));
        FUZZ_REQUIRE(range.IsContainZero() == (range.IsWholeRange() || range.start > range.end));
    }
    PosRangeD cleared(range);
    cleared.MakeInavlid();
    FUZZ_REQUIRE(cleared.start == -1.0 && cleared.end == -1.0);
}

void CheckPosition(const PosRangeD& range, double position)
{
    if (range.IsInvalid())
    {
        FUZZ_REQUIRE(!range.IsContain(position) && !range.IsOn(position));
        return;
    }
    if (range.IsOn(position))
    {
        FUZZ_REQUIRE(!range.IsWholeRange() && (Near(position, range.start) || Near(position, range.end)));
    }
    const PosRangeD rest = range.Complementary();
    FUZZ_REQUIRE(range.IsWholeRange() == rest.IsInvalid());
    // Infinity has no difference from itself, so ends of it are told apart.
    if (rest.IsInvalid() || std::isnan(position) || !IsFinite(range))
    {
        return;
    }
    FUZZ_REQUIRE(SameRange(rest.Complementary(), range));
    FUZZ_REQUIRE(range.IsComplementary(rest) && rest.IsComplementary(range));
    // A range and its rest share no place, and between them lie the ends alone.
    const bool isEnd = position == range.start || position == range.end;
    FUZZ_REQUIRE(isEnd ? !range.IsContain(position) && !rest.IsContain(position)
                       : range.IsContain(position) != rest.IsContain(position));
}

void CheckPair(const PosRangeD& a, const PosRangeD& b)
{
    FUZZ_REQUIRE((a == b) == (b == a) && (a != b) == !(a == b));
    FUZZ_REQUIRE(a.IsComplementary(b) == b.IsComplementary(a));
    if (a.IsInvalid() || b.IsInvalid())
    {
        FUZZ_REQUIRE(!a.IsOverlap(b) && !a.IsContain(b));
    }
    else
    {
        FUZZ_REQUIRE((a < b) == (a.start < b.start));
        // One who contains the other has one of its ends inside, or both are at the same place.
        FUZZ_REQUIRE(!a.IsContain(b) || a.IsOverlap(b));
    }
}

void CheckNormalize(double position, const PosRangeD& range, int count)
{
    const double moved = PosRangeD::NormalizePos(position, count);
    const double onLap = PosRangeD::NormalizePos(position, range, count);
    if (count == 0)
    {
        FUZZ_REQUIRE(moved == -1.0 && onLap == -1.0);
        return;
    }
    if (std::isnan(position))
    {
        FUZZ_REQUIRE(std::isnan(moved));
        return;
    }
    if (count < 0 || std::isinf(position))
    {
        FUZZ_REQUIRE(moved == -1.0 || Near(position, 0.0) || Near(position, count));
        return;
    }
    FUZZ_REQUIRE((moved >= 0.0 || Near(moved, 0.0)) && (moved <= count || Near(moved, count)));
    FUZZ_REQUIRE(SameBits(PosRangeD::NormalizePos(moved, count), moved));
    if (std::abs(position) <= 1e5)
    {
        FUZZ_REQUIRE(SameBits(moved, reference::NormalizePos(position, count)));
        if (IsModest(range))
        {
            FUZZ_REQUIRE(SameBits(onLap, reference::NormalizePos(position, range.start, range.end, count)));
        }
    }
}

void CheckParts(double position)
{
    const int index = PosRangeD::GetSegmentIndex(position);
    const double ratio = PosRangeD::GetRadio(position);
    if (std::abs(position) < 2147483647.0)
    {
        FUZZ_REQUIRE(static_cast<double>(index) + ratio == position && std::abs(ratio) < 1.0);
    }
    else if (std::isnan(position))
    {
        FUZZ_REQUIRE(index == 0 && std::isnan(ratio));
    }
}

// Algebra

/// In how many pieces a position lies. An end on the length by which wrapping ranges are unrolled is the seam.
int CountCovering(const Ranges& pieces, double position, double unrolled)
{
    int count = 0;
    for (const PosRangeD& piece : pieces)
    {
        const PosRangeD folded(piece.start == unrolled ? 0.0 : piece.start, piece.end == unrolled ? 0.0 : piece.end);
        // Unrolling rounds: an end that comes back above its start by a hair makes a whole range, which contains little.
        count += piece.IsWholeRange() || folded.IsContain(position) ? 1 : 0;
    }
    return count;
}

/// Of two wrapping ranges that meet a second time, one lap on, the stretch over the seam alone is seen as shared.
bool MeetAgain(const PosRangeD& a, const PosRangeD& b, double position)
{
    return a.start > a.end && b.start > b.end &&
           ((position > b.start && position < a.end) || (position > a.start && position < b.end)) &&
           (b.start < a.end || a.start < b.end);
}

/// Difference and intersection are compared where no end is NaN or none is looked at.
void CheckAgainstReference(PosRangeD a, const PosRangeD& b)
{
    const reference::Range plainA = {a.start, a.end};
    const reference::Range plainB = {b.start, b.end};
    const bool told = (!HasNaN(a) && !HasNaN(b)) || a.IsWholeRange() || b.IsWholeRange();
    if (told)
    {
        FUZZ_REQUIRE(SameList(a - b, reference::Difference(plainA, plainB)));
    }
    FUZZ_REQUIRE(SameList(a + b, reference::Union(plainA, plainB)));
    FUZZ_REQUIRE(SameList(a * b, reference::Intersection(plainA, plainB)));
    FUZZ_REQUIRE(SameList(a.Splite(b.start), reference::Split(plainA, b.start)));
}

/// Difference and product part the first range, and the union holds what either holds: told at the middle between any
/// two neighbouring ends.
void CheckAtPositions(const PosRangeD& a, const PosRangeD& b)
{
    if (a.IsInvalid() || b.IsInvalid() || !IsModest(a) || !IsModest(b))
    {
        return;
    }
    const Ranges difference = a - b;
    const Ranges product = a * b;
    const Ranges sum = a + b;
    FUZZ_REQUIRE(difference.size() <= 2 && product.size() <= 2 && !sum.empty() && sum.size() <= 2);
    const double unrolled = std::ceil(std::max({a.start, a.end, b.start, b.end})) + 1.0;
    std::vector<double> ends = {0.0, a.start, a.end, b.start, b.end, unrolled};
    std::sort(ends.begin(), ends.end());
    for (std::size_t i = 0; i + 1 < ends.size(); ++i)
    {
        // Of ends that are near each other some count as one and some do not, so what lies beside them is open.
        if (ends[i + 1] != ends[i] && ends[i + 1] - ends[i] < 1e-6)
        {
            return;
        }
    }
    for (std::size_t i = 0; i + 1 < ends.size(); ++i)
    {
        if (ends[i + 1] == ends[i])
        {
            continue;
        }
        const double position = (ends[i] + ends[i + 1]) / 2.0;
        const bool inA = a.IsContain(position);
        const bool inB = b.IsContain(position);
        const bool again = MeetAgain(a, b, position);
        FUZZ_REQUIRE(CountCovering(difference, position, unrolled) == (inA && (!inB || again) ? 1 : 0));
        FUZZ_REQUIRE(CountCovering(product, position, unrolled) == (inA && inB && !again ? 1 : 0));
        FUZZ_REQUIRE((CountCovering(sum, position, unrolled) > 0) == (inA || inB));
    }
}

void CheckCut(PosRangeD range, double position)
{
    const PosRangeD before(range);
    const Ranges pieces = range.Splite(position);
    FUZZ_REQUIRE(SameRange(range, before) && pieces.size() <= 2);
    if (pieces.size() == 2)
    {
        FUZZ_REQUIRE(SameBits(pieces[0].end, position) && SameBits(pieces[1].start, position));
        FUZZ_REQUIRE(SameBits(pieces[0].start, range.start) && SameBits(pieces[1].end, range.end));
    }
    if (pieces.size() == 1)
    {
        FUZZ_REQUIRE(SameRange(pieces[0], range));
    }
}

/// An end: any number, or one in the first laps of a polyline.
PosRangeD NextRange(Decoder& decoder, const std::vector<PosRangeD>& earlier)
{
    switch (decoder.Below(6))
    {
    case 0:
        return earlier[decoder.Byte() % earlier.size()];
    case 1:
        return earlier[decoder.Byte() % earlier.size()].Complementary();
    case 2: {
        const PosRangeD range = earlier[decoder.Byte() % earlier.size()];
        return PosRangeD(range.end, decoder.Size());
    }
    case 3: {
        const int segment = decoder.Whole();
        const double startRatio = decoder.Number();
        return decoder.Flag() ? PosRangeD(segment, startRatio, decoder.Number())
                              : PosRangeD{segment, startRatio, decoder.Whole(), decoder.Number()};
    }
    default: {
        const double start = decoder.Size();
        return PosRangeD(start, decoder.Size());
    }
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Decoder decoder(data, size);
    std::vector<PosRangeD> ranges = {PosRangeD()};
    while (!decoder.IsEmpty() && ranges.size() < 32)
    {
        fuzz::TheTrace().Begin("ranges");
        const PosRangeD a = NextRange(decoder, ranges);
        const PosRangeD b = NextRange(decoder, ranges);
        const double position = decoder.Number();
        const int count = decoder.Whole();
        fuzz::TheTrace().Take(count);
        CheckStates(a);
        CheckPosition(a, position);
        CheckPosition(a, b.end);
        CheckPair(a, b);
        CheckNormalize(position, a, count);
        CheckNormalize(b.start, a, count);
        CheckParts(position);
        CheckAgainstReference(a, b);
        CheckAtPositions(a, b);
        CheckCut(a, position);
        const Ranges results[] = {a - b, a + b, a * b};
        for (const Ranges& result : results)
        {
            ranges.insert(ranges.end(), result.begin(), result.end());
        }
        const PosRangeD turned = a.Reverse(count);
        FUZZ_REQUIRE(SameBits(turned.start, count - a.end) && SameBits(turned.end, count - a.start));
        ranges.push_back(turned);
        ranges.push_back(b);
    }
    return 0;
}
