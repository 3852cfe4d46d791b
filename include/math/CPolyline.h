#pragma once

#include "math/CSegment.h"
#include "math/Export.h"
#include "math/Primitives.h"

#include <cstdint>
#include <vector>

namespace math
{

/// An outline: a start point and a list of nodes, each of which ends one line or arc segment.
///
/// **Shape.** With n nodes there are n segments. Segment 0 runs from `start` to nodes[0], segment i from nodes[i - 1]
/// to nodes[i]. Without nodes there are no segments, whatever `start` holds. Bezier curves cannot be expressed.
///
/// **Closed.** There is no flag: the polyline is closed exactly when the last node's point equals `start`, compared
/// without tolerance. The closing point is thus stored twice.
///
/// **Positions.** Segment i holds the positions i to i + 1 (PosRangeD.h). GetLength is the one operation that takes
/// them.
///
/// **Extension.** A polyline may carry one record of the caller's, derived from CExtendParam. It owns the record: it
/// destroys it when it is replaced or at its own end, and clones it when it is copied, so no two polylines share one.
///
/// The fields are public. `id`, `attribute` and `flags` are the caller's: they are copied along and read by nothing
/// here. `start` is written directly, before nodes are added.
///
/// Nothing throws but the allocator and Clone; a polyline is then as it was, with one exception told at assignment. A
/// polyline may be read by several threads at once; one that is being changed belongs to one thread.
class QORMATH_EXPORT CPolyline
{
public:
    /// The end of one segment.
    struct NODE
    {
        DPOINT2 point;    ///< where the segment ends
        double bulge = 0; ///< the bulge of the segment that arrives here (CSegment); 0 is a straight line
    };

    /// Base of what a caller attaches to a polyline.
    class QORMATH_EXPORT CExtendParam
    {
    public:
        CExtendParam() = default;
        CExtendParam(const CExtendParam& other) = default;
        CExtendParam& operator=(const CExtendParam& other) = default;
        virtual ~CExtendParam();

        /// A copy of the same dynamic type, made with `new`; the polyline destroys it with `delete`.
        virtual CExtendParam* Clone() const = 0;
    };

    unsigned int id;           ///< the caller's
    int attribute;             ///< the caller's; 1 at first
    DPOINT2 start;             ///< the first point
    std::vector<NODE> nodes;   ///< one node a segment
    int flags;                 ///< the caller's; 0 at first
    CExtendParam* extendParam; ///< the extension record, owned; null at first

    /// No nodes, `start` at (0, 0), no extension; the id is 0xFFFFFFFF.
    CPolyline();

    /// The same with an id of the caller's.
    explicit CPolyline(unsigned int callersId);

    /// A deep copy: the extension is cloned.
    CPolyline(const CPolyline& other);

    /// Makes this a deep copy of `other`; nothing happens if they are one.
    ///
    /// The own record is destroyed before that of `other` is cloned, so `other` must not live inside the own record.
    /// If Clone throws, the polyline has the nodes and fields of `other` and no extension. If there is no memory for
    /// the nodes, it is as it was.
    CPolyline& operator=(const CPolyline& other);

    /// Destroys the extension.
    virtual ~CPolyline();

    /// Adds one node, unless its point equals the one before it, which is `start` for the first node.
    ///
    /// The comparison is exact and looks at the preceding point only. The bulge of a node that is not added is lost.
    ///
    /// @param point  where the new segment ends; may lie in this polyline
    /// @param bulge  the bulge of the new segment; 0 is a straight line
    void AddNodes(const DPOINT2& point, double bulge);

    /// The same with a node, which may be one of this polyline.
    void AddNodes(const NODE& node);

    /// True when there is a node and the last one's point equals `start` exactly.
    bool IsClosed() const;

    /// Turns the polyline round in place: the same curve from its last point to `start`.
    ///
    /// Bulges move to the other end of their segment and change their sign, zeros included: a straight segment gets
    /// the bulge -0. Everything else stays, as does `start` of a polyline without nodes.
    void ReversePolyline();

    /// The axis-aligned box of all segments, following the arcs; all zero without nodes.
    DRECT GetRECT() const;

    /// The segment of an index, counted from 0: an arc when its bulge is not exactly 0, otherwise a line.
    ///
    /// @return the segment; CSegment() for an index at or above the number of nodes
    CSegment GetSegment(std::uint64_t index) const;

    /// The length of the stretch between two positions.
    ///
    /// @param from, to  positions from 0 to the number of nodes, both included
    /// @return the length; 0 when `from` is not below `to` by at least DoubleTolerance (a stretch over the seam of a
    ///         closed polyline is not followed), when either lies outside the polyline, and when either is NaN
    double GetLength(double from, double to) const;

    /// The enclosed area of a closed polyline, with a sign: negative for a counter-clockwise outline, positive for a
    /// clockwise one.
    ///
    /// The method is the trapezoid rule over the chords, with the circular segment between chord and arc added. A
    /// node nearer than DoubleTolerance to the last one counted is skipped, its bulge with it.
    ///
    /// @return the area; 0 for an open polyline and for fewer than two nodes
    double GetArea() const;

    /// Replaces the extension and takes it over; the former record is destroyed.
    ///
    /// @param param  a record made with `new` that no other polyline owns, or null for none; the current record
    ///               itself changes nothing
    void SetExtendParam(CExtendParam* param);

    /// The extension, lent: the polyline goes on owning it. Null if there is none.
    CExtendParam* GetExtendParam();
    const CExtendParam* GetExtendParam() const;
};

} // namespace math
