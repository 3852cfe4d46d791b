#include "polyline/Chords.h"

#include "primitives/Distance.h"

namespace math::detail
{

BlockOfChords MeasureChords(const CPolyline::NODE* nodes)
{
    BlockOfChords chords{};
    for (std::size_t i = 0; i < ChordBlock; ++i)
    {
        chords[i] = Distance(nodes[i].point, nodes[i + 1].point);
    }
    return chords;
}

} // namespace math::detail
