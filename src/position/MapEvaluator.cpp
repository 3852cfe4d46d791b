#include "position/MapEvaluator.h"

#include <vector>

namespace math::detail
{

MapEvaluator::MapEvaluator(const CPolyPosMap& map)
    : m_map(map),
      m_shape(ShapeOf(map.PosPairs(), map.SrcSegmentCount(), map.DstSegmentCount())),
      m_moveToLap(map.IsEmpty() || m_shape.isIllFormed ? PosRangeD() : SpanOf(map.PosPairs(), SourceSide),
                  map.SrcSegmentCount()),
      m_lookup(map.PosPairs(), SourceSide, m_shape.source)
{
}

void MapEvaluator::AppendImages(double position, std::vector<double>& images)
{
    if (m_shape.isIllFormed)
    {
        return;
    }
    const double moved = MoveToLap(position);
    if (m_map.IsEmpty())
    {
        images.push_back(moved);
        return;
    }
    m_lookup.AppendImages(moved, images);
}

} // namespace math::detail
