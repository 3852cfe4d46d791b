#pragma once

#include "position/Columns.h"
#include "position/JointLookup.h"
#include "position/LapMover.h"
#include "position/PairList.h"

#include <vector>

namespace math::detail
{

/// Evaluates one list of joints at many positions: what `map * position` finds out about it every time is found once. The
/// list must not change meanwhile.
class MapEvaluator
{
public:
    MapEvaluator(const JointList& joints, int srcSegmentCount, int dstSegmentCount)
        : m_joints(joints),
          m_shape(joints, srcSegmentCount, dstSegmentCount),
          m_moveToLap(joints.empty() || m_shape.isIllFormed ? NoSpan : SpanOf(joints, SourceSide), srcSegmentCount),
          m_lookup(joints, SourceSide, m_shape.source)
    {
    }

    bool IsIllFormed() const
    {
        return m_shape.isIllFormed;
    }

    /// Tells whether the source column is in an order that can be searched.
    bool IsOrdered() const
    {
        return m_shape.source != ColumnOrder::Irregular;
    }

    /// The position in the lap of the list.
    double MoveToLap(double position) const
    {
        return m_moveToLap(position);
    }

    /// Hands out the images of a source position. None if the list is ill-formed; an empty list hands out the moved
    /// position.
    template <typename Visit>
    void ForEachImage(double position, const Visit& visit)
    {
        if (m_shape.isIllFormed)
        {
            return;
        }
        const double moved = MoveToLap(position);
        if (m_joints.empty())
        {
            visit(moved);
            return;
        }
        m_lookup.ForEachImage(moved, visit);
    }

    void AppendImages(double position, std::vector<double>& images)
    {
        ForEachImage(position, [&](double image) { images.push_back(image); });
    }

private:
    const JointList& m_joints;
    ListShape m_shape;
    LapMover m_moveToLap;
    JointLookup m_lookup;
};

} // namespace math::detail
