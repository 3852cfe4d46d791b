#pragma once

#include "math/Export.h"

#include <vector>

namespace math
{

/// A stretch of a polyline, told by two positions.
///
/// **Positions.** A position is a plain `double`: its integer part is a segment index, its fraction the ratio along
/// that segment. A polyline of n segments has the positions 0 to n; n is a value of its own and is not turned into
/// 0. On a closed polyline 0 and n are the two sides of the seam. A position does not know its polyline: the segment
/// count travels beside it as an `int`.
///
/// **States.** A range runs from `start` in the direction of growing positions to `end`, over the seam if need be.
/// The two values alone decide its state:
///
/// | state    | rule                                                        | meaning                               |
/// |----------|-------------------------------------------------------------|---------------------------------------|
/// | invalid  | an end is NaN or below -1e-9                                | no range; (-1.0, -1.0) is made for it |
/// | whole    | not invalid, ends nearer than 1e-9                          | the closed polyline, once round       |
/// | forward  | neither, `end` above `start`                                | from `start` up to `end`              |
/// | wrapping | neither, `start` above `end`                                | up to the seam, and on from 0         |
///
/// A range cannot stand for a single point: equal ends mean the whole loop.
///
/// **Comparison.** Two positions are near when the absolute value of their difference is below 1e-9; exactly 1e-9 is
/// not near. No predicate wraps its arguments: 5.5 on a polyline of 4 segments is just a number above every end.
///
/// Nothing here throws but the allocator, and that only for the lists that Splite and the operators of the set algebra
/// return. Distinct ranges may be used on distinct threads, one range may be read by several.
struct QORMATH_EXPORT PosRangeD
{
    double start; ///< position at which the range begins
    double end;   ///< position at which the range ends

    /// The invalid range (-1.0, -1.0).
    PosRangeD();

    /// The two values as they are: nothing is tested, wrapped or ordered.
    PosRangeD(const double& start, const double& end);

    /// From ratio `startRatio` of segment `startSegment` to ratio `endRatio` of segment `endSegment`.
    PosRangeD(int startSegment, double startRatio, int endSegment, double endRatio);

    /// From ratio `startRatio` to ratio `endRatio` of one segment.
    PosRangeD(int segment, double startRatio, double endRatio);

    PosRangeD(const PosRangeD& other);
    PosRangeD& operator=(const PosRangeD& other);

    virtual ~PosRangeD();

    /// Makes this the invalid range (-1.0, -1.0).
    void MakeInavlid();

    /// The segment index of a position: its integer part, cut towards zero.
    ///
    /// The position n of a polyline of n segments gives n, one past the last segment. An integer part beyond the
    /// range of `int` gives the nearest `int`; NaN gives 0.
    static int GetSegmentIndex(const double& pos);

    /// The ratio of a position along its segment: its fractional part, with the sign of `pos`.
    static double GetRadio(const double& pos);

    /// The position wrapped into 0 to `segmentCount`, both included.
    ///
    /// A position near 0 or near `segmentCount` comes back as it is, and may thus lie just outside. That test is made
    /// once, before any lap is added or taken: -n gives 0.0 while 2n gives n. Laps are whole numbers, so the result is
    /// the exact place apart from the one rounding that moves a negative position up.
    ///
    /// @return the wrapped position; -1.0 for a count of 0, and for an infinite position or a negative count where no
    ///         number of laps would lead back; NaN for NaN
    static double NormalizePos(const double& pos, const int& segmentCount);

    /// The position moved to the lap on which `range` lies.
    ///
    /// A wrapping or whole range is taken as unrolled, its end one `segmentCount` higher. A position in the range comes
    /// back between `range.start` and that end, on whichever lap; one outside comes back somewhere on those laps
    /// without a signal. A position near either end of the (unrolled) range comes back as it is.
    ///
    /// @return the moved position; -1.0 for a count of 0, and, unless the position is near an end or the seam, for a
    ///         negative count or an infinite position
    static double NormalizePos(const double& pos, const PosRangeD& range, const int& segmentCount);

    /// True when the range is invalid; the same test as IsInvalid().
    bool IsEmpty() const;

    /// True when an end is NaN or below -1e-9. An end of exactly -1e-9 is valid.
    bool IsInvalid() const;

    /// True when the range is valid and its ends are near each other.
    bool IsWholeRange() const;

    /// Tells whether a position lies strictly inside: neither end is contained.
    ///
    /// False on an invalid range. The exact comparison of the ends comes before the near one: a range whose end lies
    /// above its start by less than 1e-9 is whole and yet contains next to nothing, while any other whole range
    /// contains every position.
    bool IsContain(const double& pos) const;

    /// Tells whether both ends of `other` lie in this range, an end that is shared counting as inside when the other
    /// end lies inside.
    ///
    /// False if either is invalid; true if the two are equal or this one is whole. Only the ends are looked at, never
    /// the way between them: (1, 5) contains the wrapping range (4, 2), and the whole range (3, 3).
    bool IsContain(const PosRangeD& other) const;

    /// Tells whether a position is near an end of the range. An invalid or whole range has no ends.
    bool IsOn(const double& pos) const;

    /// Tells whether the range passes over the seam: it is whole, or it wraps. (0, 2) does not, (2, 0) does.
    bool IsContainZero() const;

    /// Tells whether an end of `other` lies strictly inside this range, or the two are equal, or one of them is whole.
    ///
    /// False if either is invalid. The test is one-sided: (0, 3) overlaps (1, 2), while (1, 2) does not overlap (0, 3).
    /// Ranges that touch do not overlap.
    bool IsOverlap(const PosRangeD& other) const;

    /// Tells whether the two ranges make up the closed polyline without sharing a stretch.
    ///
    /// A whole and an invalid range do, in either order.
    bool IsComplementary(const PosRangeD& other) const;

    /// Equality within 1e-9 at both ends. All invalid ranges are equal, and so are all whole ones wherever they begin.
    bool operator==(const PosRangeD& other) const;
    bool operator!=(const PosRangeD& other) const;

    /// The order by which ranges are sorted: by `start`, without tolerance.
    ///
    /// An invalid range comes before every range, an invalid one included, so sorting a list that may hold several
    /// invalid ranges needs care: each of them is less than the other.
    bool operator<(const PosRangeD& other) const;

    /// The same stretch seen on the polyline run backwards: (segmentCount - end, segmentCount - start), untested.
    PosRangeD Reverse(const int& segmentCount) const;

    /// The rest of the closed polyline: (end, start). Invalid for an invalid or whole range.
    PosRangeD Complementary() const;

    /// The range cut at a position, pieces in walking order.
    ///
    /// A position outside the range, or exactly at an end of it, leaves it in one piece; an invalid range gives none. A
    /// whole range gives the part up to `pos` and the part from there, unless `pos` is near its ends. `pos` is not
    /// wrapped.
    std::vector<PosRangeD> Splite(const double& pos);

    /// @name Set algebra
    ///
    /// The operators do not know the segment count. Where a range wraps they unroll it: with L the least whole number
    /// at or above every end in play, plus 1, its end is raised by L; the work is done on forward ranges, and ends
    /// above L come back down by L. An end that lands on L itself stays there: (3, 0) - (1, 2) gives (3, 4). Whole
    /// ranges are taken out first; whatever is then neither forward nor whole is treated as wrapping. The lists are
    /// neither sorted nor merged.
    /// @{

    /// The part of this range that `other` does not cover.
    ///
    /// Whole minus a range is what completes it (Complementary()); anything minus whole is empty. Validity is not
    /// tested. Of two wrapping ranges that overlap at both ends, the second overlap is not taken away.
    std::vector<PosRangeD> operator-(const PosRangeD& other) const;

    /// The union: one range where the two overlap, else both.
    ///
    /// An invalid operand adds nothing, a whole one swallows the other; two that overlap and go right round give a
    /// whole range, while two that only touch stay two. Two corners are lopsided: of two forward ranges that touch,
    /// they merge only if `other` ends where this one starts; and a forward range in the part of a wrapping one past
    /// the seam stays a range of its own.
    std::vector<PosRangeD> operator+(const PosRangeD& other) const;

    /// The intersection, empty for an invalid operand. Ranges that touch do not intersect. Where a forward and a
    /// wrapping range meet, the part before the end of the wrapping one comes first. Of two wrapping ranges that overlap
    /// at both ends, the second overlap is not found: (2, 1.5) * (1, 0.5) lacks (1, 1.5).
    std::vector<PosRangeD> operator*(const PosRangeD& other) const;

    /// @}
};

} // namespace math
