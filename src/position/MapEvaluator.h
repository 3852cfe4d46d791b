#pragma once

#include "math/CPolyPosMap.h"
#include "position/Columns.h"
#include "position/JointLookup.h"
#include "position/LapMover.h"

#include <vector>

namespace math::detail
{

/// Evaluates one map at many positions: what `map * position` finds out about the list every time is found once. The
/// map must not change meanwhile.
class MapEvaluator
{
public:
    explicit MapEvaluator(const CPolyPosMap& map);

    bool IsIllFormed() const
    {
        return m_shape.isIllFormed;
    }

    /// Tells whether the source column is in an order that can be searched.
    bool IsOrdered() const
    {
        return m_shape.source != ColumnOrder::Irregular;
    }

    /// The position in the lap of the map.
    double MoveToLap(double position) const
    {
        return m_moveToLap(position);
    }

    /// Hands out the images of a source position. None if the map is ill-formed; an empty map hands out the moved
    /// position.
    template <typename Visit>
    void ForEachImage(double position, const Visit& visit)
    {
        if (m_shape.isIllFormed)
        {
            return;
        }
        const double moved = MoveToLap(position);
        if (m_map.IsEmpty())
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
    const CPolyPosMap& m_map;
    ListShape m_shape;
    LapMover m_moveToLap;
    JointLookup m_lookup;
};

} // namespace math::detail
