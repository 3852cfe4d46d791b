#include "position/MapEvaluator.h"

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

} // namespace math::detail
