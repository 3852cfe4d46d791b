#pragma once

#include "math/Export.h"
#include "math/PosRangeD.h"

#include <utility>
#include <vector>

// The list of joints crosses the library's boundary, so the library carries its instantiation.
#if !defined(QORMATH_BUILDING)
#if defined(_WIN32)
extern template class QORMATH_EXPORT std::vector<std::pair<double, double>>;
#else
extern template class std::vector<std::pair<double, double>>;
#endif
#endif

namespace math
{

/// A piecewise-linear relation between the positions on two polylines: the source and the destination.
///
/// When a polyline is rebuilt, trimmed, reordered or offset, a map carries a place on the one to the place that answers
/// to it on the other.
///
/// **Joints.** The map is a list of joints (source position, destination position) in walking order.
/// - Between two neighbouring joints it is linear in position value, whatever segments lie between: (0, 0), (2, 4)
///   sends 1.5 to 3. Outside its joints it has no value.
/// - Each column runs one way from front to back, upward if its first value is at most its last, else downward. Source
///   and destination may run different ways.
/// - Values are raw. A map over the seam of a closed polyline goes on counting past the segment count: 3, 4, 5 on a
///   source of 4 segments. Positions are wrapped when they are read, never in the list.
/// - Neighbours with one source value are a jump: the place has all their images. Neighbours with one destination value
///   collapse a stretch of source to one place.
/// - A map without joints stands for no change: positions go through it, and it is neutral in a composition.
///
/// **Sides.** An `int`: 1 is the source (first column, SrcSegmentCount), 2 the destination (second column,
/// DstSegmentCount), 3 both where an operation takes it.
///
/// **Counts.** SrcSegmentCount and DstSegmentCount are the segment counts of the two polylines. A count of 0 leaves the
/// size of that polyline open, as the generators do for whole ranges. Positions cannot be wrapped on such a side: they
/// count as -1.0 wherever a function wraps them, unless it says otherwise.
///
/// **Normal form.** A map is normal when the lower end of each column lies at or above 0 and below the count of its
/// side. The upper end may lie past the count: so a normal map crosses the seam.
///
/// The class enforces nothing: IsInvalid() tells an ill-formed list, and the operations test it first. NaN, negative
/// positions and positions past the count are not ill-formed.
///
/// Two positions are near when the absolute value of their difference is below 1e-9. An argument taken by reference may
/// refer into the map itself: its value is taken before anything changes. Nothing throws but the allocator, and all
/// maps are then as they were, the one that was to be changed included. A map is a value; it may be read by several
/// threads at once, and one that is changed belongs to one thread.
class QORMATH_EXPORT CPolyPosMap
{
public:
    /// No joints, both counts 0.
    CPolyPosMap();

    /// The three as they are: nothing is tested, sorted or wrapped.
    CPolyPosMap(const std::vector<std::pair<double, double>>& pairs, const int& srcSegmentCount,
                const int& dstSegmentCount);

    CPolyPosMap(const CPolyPosMap& other);
    CPolyPosMap& operator=(const CPolyPosMap& other);
    virtual ~CPolyPosMap();

    /// @name Model
    /// @{

    std::vector<std::pair<double, double>>& PosPairs();
    const std::vector<std::pair<double, double>>& PosPairs() const;
    int& SrcSegmentCount();
    const int& SrcSegmentCount() const;
    int& DstSegmentCount();
    const int& DstSegmentCount() const;

    /// Clears the list and sets both counts to 0.
    void MakeEmpty();

    /// True when the list has no joints; the counts play no part.
    bool IsEmpty() const;

    /// A copy of the first joint, or (-1.0, -1.0) for an empty map.
    std::pair<double, double> Front() const;

    /// A copy of the last joint, or (-1.0, -1.0) for an empty map.
    std::pair<double, double> Back() const;

    /// True when the joints are near each other in both columns.
    static bool IsPosPairEqual(const std::pair<double, double>& a, const std::pair<double, double>& b);

    /// Reverses the order of the joints and nothing else. Both columns then run the other way.
    void Reverse();

    /// Makes the map go from destination to source: swaps the columns and the counts, not the order of the joints.
    ///
    /// A map for which IsIdentity() holds stays as it is; so an empty one keeps its counts.
    void Invert();

    /// A copy on which Invert() was called.
    CPolyPosMap operator!() const;

    /// True for an empty map, and for one with equal counts whose joints are all near (x, x).
    bool IsIdentity() const;

    /// True when a column turns back, or goes round its polyline more than once.
    ///
    /// Steps between near neighbours may go either way. The span of a column may exceed the count of its side by at
    /// most 1e-9; for a count of 0 that is the whole allowance. With fewer than two joints a map is never invalid.
    bool IsInvalid() const;

    /// True when the map is in normal form (see above, no tolerance), or empty. A count of 0 sets no bound; an invalid
    /// map is not normal.
    bool IsNormalize() const;

    /// True when the column of side 1 or 2 runs upward or stands still, for side 3 when both do.
    ///
    /// An invalid map gives false, fewer than two joints and any other side value give true.
    bool IsIncrease(const int& side) const;

    /// True when the first and last value of the column of side 1 or 2 are near each other, for side 3 both columns.
    ///
    /// What lies between them is not looked at. An invalid map gives false, fewer than two joints and any other side
    /// value give true.
    bool IsPoint(const int& side) const;

    /// The stretch that the map covers on side 1 or 2, lower end of the column first.
    ///
    /// @param normalize  wraps each end by itself with PosRangeD::NormalizePos: a stretch over the seam comes out as a
    ///                   wrapping range, a full lap as a whole one
    /// @return the range; (-1.0, -1.0) if the map is invalid or empty, and for any other side value
    PosRangeD GetRange(const int& side, const bool& normalize) const;

    /// @}
    /// @name Normal form
    /// @{

    /// Drops joints near the joint before them; with `mergeStraight` also joints in the middle of a straight stretch.
    ///
    /// The earlier of two repeated joints stays. A joint lies in the middle of a straight stretch if it differs
    /// (exactly) from both neighbours in the column of the run and the slopes on either side differ by less than 1e-9;
    /// slopes of destination over source are looked at first, then slopes of source over destination, which takes the
    /// middle out of jumps. An invalid map is treated like any other.
    void Unique(const bool& mergeStraight);

    /// Shifts each column by whole laps towards normal form.
    ///
    /// Does nothing to a normal, invalid or empty map, nor to a column with the count 0. One call need not reach normal
    /// form: a lower end at a negative multiple of the count comes to the count itself (-4 gives 4 with a count of 4),
    /// and the laps of the destination are counted at the joint where the source is lowest, so a map whose columns run
    /// opposite ways may stay outside for good. Integer parts beyond `int` count as the nearest `int`.
    void Normalize();

    /// Gives the map a joint at every whole position of side 1, 2 or 3 (both), once round.
    ///
    /// The map is brought to normal form first; whole positions past its ends extend it flat, so that it comes to cover
    /// a whole lap of that side. An invalid or empty map stays as it is, and a side with the count 0 gets no joint
    /// above 0.
    ///
    /// A map whose source runs downward is turned over (Invert) before and, if that shows in the direction of the first
    /// column, turned back after the filling. So with a downward source and an upward destination the sides change
    /// their meaning: side 1 fills the destination. When both columns run down the map stays turned over: columns and
    /// counts come out swapped. An unknown side fills nothing, but normalises and turns the same way.
    ///
    /// Not for a side that runs up past 2n - 1, or down from above n + 1, where n is its count: nodes are put below its
    /// lower end then, and joints are lost for them. (0, 1.25) (2, 3.25) with the counts 2 and 2, filled on side 2,
    /// becomes (0, 0) (0, 1) (0, 1.25) (0.75, 2). Insert gives such a map the joints one by one.
    void FillAllSegmentNode(const int& side);

    /// Takes out the corners of small staircases, then repeated and straight joints.
    ///
    /// A corner is a joint between a step in one column and a step in the other; a column stands still where values are
    /// exactly equal, or a lap apart. (In one of the two shapes of a corner the lap of the source is that of the
    /// destination.) It goes when both steps are shorter than `maxStep` (or near it) and differ by less than
    /// `maxStepDifference` (or near it). The joint after a corner that went is not tested as the next corner. On a map
    /// that goes right round both polylines the place where it begins is tested too. The map is filled first as by
    /// FillAllSegmentNode(3), with all that entails; one that then has no more than two joints is left so.
    void Smooth(const double& maxStep, const double& maxStepDifference);

    /// @}
    /// @name Lookup
    /// @{

    /// The images of a source position, in list order.
    ///
    /// The position is moved to the lap of the map first (PosRangeD::NormalizePos with the range of the source). At a
    /// joint, within 1e-9, the images are those of all joints there, repeated ones included; elsewhere there is one
    /// image by linear interpolation. Images are raw destination positions, which may lie past DstSegmentCount.
    ///
    /// @return the images; empty if the map is invalid or does not reach the position; for an empty map the position
    ///         wrapped into 0 to SrcSegmentCount, or -1.0 if that count is 0
    std::vector<double> operator*(const double& pos) const;

    /// The images of a source position with the seam treated, sorted, without repetitions.
    ///
    /// Positions 0 and SrcSegmentCount of a closed source are one place.
    /// @param bothSeamFaces    at the seam, take the images of both 0 and SrcSegmentCount
    /// @param liftSeamImages   where both faces have images, add DstSegmentCount to those of 0: on a map that goes
    ///                         right round they lie one lap on
    /// @return the images, ascending if IsIncrease(2), else descending; of images near each other the first stays
    std::vector<double> MultyDouble(const double& pos, const bool& bothSeamFaces, const bool& liftSeamImages) const;

    /// Index of the last joint at or before `pos` in walking order.
    ///
    /// The last joint near `pos`; without one, the last joint that the walk passes before `pos`. Positions are compared
    /// raw.
    /// @param side  1 for the source column, anything else for the destination column
    /// @return the index; -1 if there is none, or if the map is invalid or empty. A column that stands still counts as
    ///         running down here
    int GetMaxLeftIndex(const double& pos, const int& side) const;

    /// Index of the first joint at or after `pos` in walking order: the mirror image of GetMaxLeftIndex().
    int GetMinRightIndex(const double& pos, const int& side) const;

    /// Tells whether a position lies outside what the map covers on side 1, 2 or 3 (outside on either).
    ///
    /// The ends of the map are not outside. A map that covers a single place on the side takes `pos` as it stands; any
    /// other wraps it with SrcSegmentCount, on side 2 as well. An invalid map has no outside, an empty one is outside
    /// of everything whatever the side; for any other map an unknown side gives false.
    bool IsOverRange(const double& pos, const int& side) const;

    /// Gives the joint at `pos` on side 1 or 2, adding it if there is none.
    ///
    /// `pos` is moved to the lap of the map. The first joint near it is the answer if there is one; otherwise a joint
    /// is interpolated between its neighbours, or, past an end of the map, added flat: with the other column's value of
    /// that end. The validity of the map is not tested.
    /// @return the joint; (-1.0, -1.0) for any other side value and for an empty map, which stay as they are
    std::pair<double, double> Insert(const double& pos, const int& side);

    /// @}
    /// @name Edits
    /// @{

    /// Adds `delta` to the column of side 1, 2 or 3 (both). Nothing is wrapped. No effect on an invalid or empty map,
    /// nor for another side value.
    void Offset(const double& delta, const int& side);

    /// Renumbers side 1, 2 or 3 (both) of a closed polyline so that `pos` becomes position 0.
    ///
    /// A cut inside a segment makes two of it, and the count of that side grows by one. Nothing happens if `pos` is
    /// near 0 or near the count of the side.
    void Split(const double& pos, const int& side);

    /// Rewrites side 1, 2 or 3 (both) for a polyline that is walked the other way: x becomes count - x.
    ///
    /// The result is normalised; the list is reversed where the source is turned, so the map keeps walking along it.
    void ReverseDirection(int side);

    /// @}
    /// @name Composition
    /// @{

    /// The map that first carries a position through this map and then through `other`.
    ///
    /// It goes from the source of this map to the destination of `other` and takes those counts. That the destination
    /// of this map and the source of `other` are one polyline is the caller's affair. The result has a joint at every
    /// joint of this map and at every place that lands on a joint of `other`, unless it lies on a straight line between
    /// its neighbours; no value where `other` has none; and at most one lap on either side. It is walked in the
    /// direction of this map's source.
    ///
    /// Both operands are brought to normal form first. Then an empty operand is neutral, whatever its counts: the other
    /// one is the result.
    ///
    /// A position that is no number is equal to none and comes after all others, so that what is made of it is defined,
    /// but has no meaning.
    ///
    /// The time grows with the number of joints of both maps; with the product of the two numbers where a column does not
    /// rise or fall exactly, but turns back within the tolerance, or holds a NaN or an infinity.
    ///
    /// @return the composition; an empty map with both counts 0 if an operand is invalid or cannot be brought to normal
    ///         form, or if nothing survives
    CPolyPosMap operator*(const CPolyPosMap& other) const;

    /// Replaces this map by `*this * other`, unless it is invalid.
    CPolyPosMap& operator*=(const CPolyPosMap& other);

    /// Tells whether `other` undoes this map: the counts answer to one another crosswise and `*this * other` is the
    /// identity. False if either is invalid. Changes nothing.
    bool IsInvertTo(const CPolyPosMap& other);

    /// @}
    /// @name Concatenation
    /// @{

    /// The map that walks this map and then `other`, between the same two polylines.
    ///
    /// Nothing is evaluated, merged or tested at the join. Where a column would run backwards a lap is added, once: on
    /// a column that runs upward in this map to `other` if this map ends above it, on any other column to this map if
    /// `other` begins above it. Maps that do not fit give an ill-formed list; Unique() cleans the join of those that
    /// do.
    ///
    /// @return the concatenation; an empty map with both counts 0 if an operand is invalid or the counts of a side
    ///         differ; the other operand if one has no joints
    CPolyPosMap operator+(const CPolyPosMap& other) const;

    /// Replaces this map by `*this + other`, unless it is invalid.
    CPolyPosMap& operator+=(const CPolyPosMap& other);

    /// @}

private:
    /// The evaluation itself, on a raw position and a raw list.
    static std::vector<double> MultyDouble(const std::vector<std::pair<double, double>>& pairs, const double& pos);

    std::vector<std::pair<double, double>> m_posPairs;
    int m_srcSegmentCount;
    int m_dstSegmentCount;
};

} // namespace math
