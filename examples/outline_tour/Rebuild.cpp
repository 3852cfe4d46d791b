#include "Rebuild.h"

#include "Outline.h"

#include "math/CPolyPosMapUtilies.h"
#include "math/Intersect.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace example::tour
{

namespace
{

using math::CPolyline;
using math::CPolyPosMap;
using math::CPolyPosMapUtilies;
using math::CSegment;
using math::DPOINT2;
using math::PosRangeD;

/// Lengths nearer than this count as equal, so that the choice among fillets of one size doesn't hang on rounding.
constexpr double LengthStep = 1e-6;

double SteppedLength(const CSegment& segment)
{
    return std::round(segment.GetLength() / LengthStep);
}

math::LineD2D LineThrough(const CSegment& segment)
{
    return {segment.start.x, segment.start.y, segment.end.x, segment.end.y};
}

double DotProduct(const DPOINT2& fromA, const DPOINT2& toA, const DPOINT2& fromB, const DPOINT2& toB)
{
    return (toA.x - fromA.x) * (toB.x - fromB.x) + (toA.y - fromA.y) * (toB.y - fromB.y);
}

/// The corner that would be there without a segment that breaks it: both neighbours are straight, and meet when they
/// are drawn on over no more than its length.
std::optional<DPOINT2> BrokenCorner(const CSegment& before, const CSegment& segment, const CSegment& after)
{
    DPOINT2 corner;
    if (ArcOf(before) || ArcOf(after) || Intersect(LineThrough(before), LineThrough(after), &corner) != 1)
    {
        return std::nullopt;
    }
    const bool drawsBothOn = DotProduct(before.start, before.end, before.end, corner) > 0 &&
                             DotProduct(after.start, after.end, corner, after.start) > 0;
    const double length = segment.GetLength();
    const bool isNear =
        math::D2GetDistance(segment.start, corner) <= length && math::D2GetDistance(segment.end, corner) <= length;
    return drawsBothOn && isNear ? std::optional<DPOINT2>(corner) : std::nullopt;
}

/// A segment that can vanish, and the corner that takes its place.
struct Candidate
{
    int segment = 0;
    DPOINT2 corner;
};

/// The candidates below a position, shortest first. The first segment begins at the zero and isn't among them.
std::vector<Candidate> CandidatesOf(const CPolyline& outline, double limit)
{
    std::vector<Candidate> candidates;
    for (int i = 1; i + 1 < SegmentCount(outline) && i + 1 < limit; ++i)
    {
        const std::optional<DPOINT2> corner =
            BrokenCorner(SegmentAt(outline, i - 1), SegmentAt(outline, i), SegmentAt(outline, i + 1));
        if (corner)
        {
            candidates.push_back({i, *corner});
        }
    }
    std::stable_sort(candidates.begin(), candidates.end(), [&](const Candidate& a, const Candidate& b) {
        return SteppedLength(SegmentAt(outline, a.segment)) < SteppedLength(SegmentAt(outline, b.segment));
    });
    return candidates;
}

/// Picks the segments that vanish: the first candidates, never two neighbours, and not too many.
std::vector<Candidate> ChooseVanished(const CPolyline& outline, const std::vector<Candidate>& candidates)
{
    constexpr std::size_t most = 6;
    const std::size_t limit = std::min(most, outline.nodes.size() / 7);
    std::vector<Candidate> chosen;
    for (const Candidate& candidate : candidates)
    {
        const bool isFree = std::none_of(chosen.begin(), chosen.end(), [&](const Candidate& other) {
            return std::abs(other.segment - candidate.segment) <= 1;
        });
        if (isFree && chosen.size() < limit)
        {
            chosen.push_back(candidate);
        }
    }
    std::sort(chosen.begin(), chosen.end(),
              [](const Candidate& a, const Candidate& b) { return a.segment < b.segment; });
    return chosen;
}

CPolyline WithCorners(const CPolyline& outline, const std::vector<Candidate>& vanished)
{
    CPolyline sharp = outline;
    // From the back, so that the numbers of the segments still to go stay right.
    for (auto candidate = vanished.rbegin(); candidate != vanished.rend(); ++candidate)
    {
        sharp.nodes[static_cast<std::size_t>(candidate->segment) - 1].point = candidate->corner;
        sharp.nodes.erase(sharp.nodes.begin() + candidate->segment);
    }
    return sharp;
}

/// Entry i is the new number of segment i, or -1.
std::vector<int> SegmentMapWithout(const std::vector<int>& vanished, int segmentCount)
{
    std::vector<int> segmentMap;
    int next = 0;
    for (int i = 0; i < segmentCount; ++i)
    {
        const bool isGone = std::binary_search(vanished.begin(), vanished.end(), i);
        segmentMap.push_back(isGone ? -1 : next++);
    }
    return segmentMap;
}

/// Where the rebuilt outline begins: in the middle of a segment somewhat before half the way round.
double ZeroOf(const CPolyline& outline)
{
    return outline.IsClosed() ? std::floor(0.42 * SegmentCount(outline)) + 0.5 : 0.0;
}

/// How far along the moved outline something is known of it.
double KnownUpTo(const CPolyline& moved)
{
    const int count = SegmentCount(moved);
    return moved.IsClosed() ? count - std::floor(0.12 * count) : std::ceil(0.75 * count);
}

/// The identity on the positions from 0 up to another one: cut the stretch out, and put it back.
CPolyPosMap IdentityUpTo(double position, int segmentCount)
{
    const CPolyPosMap piece =
        CPolyPosMapUtilies::GeneratePosMapFromCadByPosrange2OriginCad(PosRangeD(0, position), segmentCount);
    return !piece * piece;
}

} // namespace

Rebuild RebuildOf(const CPolyline& outline)
{
    Rebuild rebuild;
    rebuild.zero = ZeroOf(outline);
    rebuild.moved = outline.IsClosed() ? BegunAt(outline, rebuild.zero) : outline;
    const int movedCount = SegmentCount(rebuild.moved);
    const double knownUpTo = KnownUpTo(rebuild.moved);
    rebuild.knowsAll = knownUpTo >= movedCount;

    const std::vector<Candidate> vanished = ChooseVanished(rebuild.moved, CandidatesOf(rebuild.moved, knownUpTo));
    for (const Candidate& candidate : vanished)
    {
        rebuild.corners.push_back(candidate.segment - static_cast<int>(rebuild.vanished.size()));
        rebuild.vanished.push_back(candidate.segment);
    }
    rebuild.outline = WithCorners(rebuild.moved, vanished);

    const CPolyPosMap toMoved = !CPolyPosMapUtilies::ResetZero(rebuild.zero, SegmentCount(outline));
    const CPolyPosMap toRebuilt = CPolyPosMapUtilies::GeneratePosMapFromSegmentMap(
        SegmentMapWithout(rebuild.vanished, movedCount), SegmentCount(rebuild.outline));
    rebuild.map = toMoved * IdentityUpTo(knownUpTo, movedCount) * toRebuilt;
    return rebuild;
}

} // namespace example::tour
