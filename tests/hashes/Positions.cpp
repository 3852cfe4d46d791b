#include "Positions.h"

#include <algorithm>
#include <cstddef>
#include <limits>

namespace math::hashes
{

namespace
{

using Joints = std::vector<std::pair<double, double>>;

/// A step forward along a column in which there is so much room left.
double Step(Source& source, double room)
{
    switch (source.Below(9))
    {
    case 0:
    case 1:
        return 0.0;
    case 2:
        return 1.0;
    case 3:
        return 0.5;
    case 4:
        return source.Ratio();
    case 5:
        return source.OneIn(3) ? source.Sliver() : 0.25;
    case 6:
        return source.Coin() ? room : room / 2.0;
    case 7:
        return 0.1;
    default:
        return 2.0 * source.Ratio();
    }
}

/// Where a column begins: mostly on the first lap.
double LowEnd(Source& source, int count)
{
    double low = 0.0;
    switch (source.Below(3))
    {
    case 0:
        break;
    case 1:
        low = source.Ratio() * count;
        break;
    default:
        low = 0.5 * source.Between(0, std::max(2 * count, 0));
        break;
    }
    if (source.OneIn(8))
    {
        low += source.Between(-2, 2) * count;
    }
    return source.OneIn(16) ? low + source.Sliver() : low;
}

/// Ascending from its low end, turned round at last for a column that runs down.
std::vector<double> Column(Source& source, int size, int count, bool isUp)
{
    const double low = LowEnd(source, count);
    const double high = low + count;
    std::vector<double> column;
    double position = low;
    for (int i = 0; i < size; ++i)
    {
        column.push_back(position);
        const double room = high - position;
        const double step = Step(source, room);
        position += step <= room ? step : 0.0;
    }
    if (size > 1 && source.OneIn(4))
    {
        column.back() = high;
    }
    if (!isUp)
    {
        std::reverse(column.begin(), column.end());
    }
    return column;
}

Joints Joined(const std::vector<double>& source, const std::vector<double>& destination)
{
    Joints joints;
    for (std::size_t i = 0; i < source.size(); ++i)
    {
        joints.emplace_back(source[i], destination[i]);
    }
    return joints;
}

CPolyPosMap ColumnMap(Source& source, int size, int srcCount, int dstCount)
{
    const bool isSourceUp = !source.OneIn(3);
    const bool isDestinationUp = source.OneIn(3) ? !isSourceUp : isSourceUp;
    const std::vector<double> ofSource = Column(source, size, srcCount, isSourceUp);
    const std::vector<double> ofDestination = Column(source, size, dstCount, isDestinationUp);
    return CPolyPosMap(Joined(ofSource, ofDestination), srcCount, dstCount);
}

CPolyPosMap AnyMap(Source& source, int srcCount, int dstCount)
{
    Joints joints;
    for (int left = source.Below(6); left > 0; --left)
    {
        const double ofSource = RandomPosition(source, srcCount);
        joints.emplace_back(ofSource, RandomPosition(source, dstCount));
    }
    return CPolyPosMap(joints, srcCount, dstCount);
}

/// Repeats a joint, or puts a special value or a sliver into one.
void Spoil(Source& source, CPolyPosMap& map)
{
    Joints& joints = map.PosPairs();
    if (joints.empty())
    {
        return;
    }
    const std::size_t index = static_cast<std::size_t>(source.Below(static_cast<int>(joints.size())));
    std::pair<double, double>& joint = joints[index];
    double& value = source.Coin() ? joint.first : joint.second;
    switch (source.Below(5))
    {
    case 0:
        value = source.Special();
        break;
    case 1:
    case 2:
        value = source.Near(value);
        break;
    default:
        const std::pair<double, double> repeated = joint;
        joints.insert(joints.begin() + static_cast<std::ptrdiff_t>(index), repeated);
        break;
    }
}

/// A column in one lap from anywhere, of steps that are even, whole multiples of a small one, zero or slivers.
std::vector<double> LargeColumn(Source& source, int size, int count, bool isUp)
{
    const double low = source.Coin() ? 0.0 : source.Ratio() * count;
    const double mean = static_cast<double>(count) / static_cast<double>(size);
    std::vector<double> column;
    double position = low;
    for (int i = 0; i < size; ++i)
    {
        column.push_back(position);
        double step = 0.0;
        switch (source.Below(8))
        {
        case 0:
            break;
        case 1:
            step = source.OneIn(6) ? source.Sliver() : mean;
            break;
        case 2:
            step = 0.5 * mean;
            break;
        default:
            step = source.Ratio() * mean * 1.5;
            break;
        }
        if (position + step <= low + count)
        {
            position += step;
        }
    }
    if (!isUp)
    {
        std::reverse(column.begin(), column.end());
    }
    return column;
}

} // namespace

double RandomPosition(Source& source, int count)
{
    double place = 0.0;
    switch (source.Below(4))
    {
    case 0:
        place = source.Ratio() * count;
        break;
    case 1:
        place = 0.1 * source.Between(0, std::max(10 * count, 0));
        break;
    default:
        place = 0.5 * source.Between(0, std::max(2 * count, 0));
        break;
    }
    switch (source.Below(24))
    {
    case 0:
    case 1:
    case 2:
        return source.Near(place + source.Between(-2, 2) * count);
    case 3:
        return source.OneIn(4) ? source.Special() : source.Number();
    case 4:
        return source.OneIn(2) ? -1.0 : source.Near(-1.0);
    case 5:
    case 6:
    case 7:
        return source.Near(place);
    default:
        return place;
    }
}

int RandomCount(Source& source)
{
    return source.OneIn(20) ? source.Between(-2, 0) : source.Between(1, 7);
}

PosRangeD RandomRange(Source& source, int count)
{
    switch (source.Below(12))
    {
    case 0:
        return PosRangeD();
    case 1: // whole
    {
        const double end = RandomPosition(source, count);
        return PosRangeD(end, source.Coin() ? end : source.Near(end));
    }
    default:
        const double start = RandomPosition(source, count);
        return PosRangeD(start, RandomPosition(source, count));
    }
}

std::pair<PosRangeD, PosRangeD> RandomRanges(Source& source)
{
    const int count = source.Between(1, 6);
    const PosRangeD first = RandomRange(source, count);
    switch (source.Below(8))
    {
    case 0: // begins where the first ends
    {
        const double start = source.Near(first.end);
        return {first, PosRangeD(start, RandomPosition(source, count))};
    }
    case 1: // ends where the first begins
    {
        const double end = source.Near(first.start);
        return {first, PosRangeD(RandomPosition(source, count), end)};
    }
    case 2: // begins together
        return {first, PosRangeD(first.start, RandomPosition(source, count))};
    case 3: // completes it
    {
        const double start = source.Near(first.end);
        return {first, PosRangeD(start, source.Near(first.start))};
    }
    case 4: // the same
    {
        const double start = source.Near(first.start);
        return {first, PosRangeD(start, source.Near(first.end))};
    }
    default:
        return {first, RandomRange(source, count)};
    }
}

int RandomSide(Source& source)
{
    return source.OneIn(20) ? source.Between(-1, 5) : source.Between(1, 3);
}

CPolyPosMap RandomMap(Source& source, int srcCount, int dstCount)
{
    const int kind = source.Below(20);
    if (kind == 0)
    {
        return CPolyPosMap({}, srcCount, dstCount);
    }
    if (kind < 3)
    {
        return AnyMap(source, srcCount, dstCount);
    }
    CPolyPosMap map = kind < 6 ? Staircase(source, source.Between(2, 14), srcCount, dstCount)
                               : ColumnMap(source, source.Between(1, source.OneIn(6) ? 40 : 9), srcCount, dstCount);
    if (source.OneIn(6))
    {
        Spoil(source, map);
    }
    return map;
}

CPolyPosMap RandomMap(Source& source)
{
    const int srcCount = RandomCount(source);
    const int dstCount = source.OneIn(3) ? srcCount : RandomCount(source);
    return RandomMap(source, srcCount, dstCount);
}

CPolyPosMap LargeMap(Source& source, int size, int srcCount, int dstCount)
{
    const bool isSourceUp = !source.OneIn(3);
    const bool isDestinationUp = source.OneIn(3) ? !isSourceUp : isSourceUp;
    const std::vector<double> ofSource = LargeColumn(source, size, srcCount, isSourceUp);
    const std::vector<double> ofDestination = LargeColumn(source, size, dstCount, isDestinationUp);
    return CPolyPosMap(Joined(ofSource, ofDestination), srcCount, dstCount);
}

CPolyPosMap SeldomLargeMap(Source& source, int interval, int size)
{
    if (source.Round() % interval != interval - 1)
    {
        return RandomMap(source);
    }
    const int srcCount = source.Between(1, size / 2);
    return LargeMap(source, size, srcCount, source.Between(1, size / 2));
}

CPolyPosMap Staircase(Source& source, int size, int srcCount, int dstCount)
{
    const double width = source.Coin() ? 0.05 : source.Ratio() * 0.3;
    const bool isDown = source.OneIn(4);
    const bool isWhole = source.OneIn(3);
    double ofSource = LowEnd(source, srcCount);
    double ofDestination = LowEnd(source, dstCount);
    const double sourceEnd = ofSource + srcCount;
    const double destinationEnd = ofDestination + dstCount;
    Joints joints;
    for (int i = 0; i < size; ++i)
    {
        joints.emplace_back(ofSource, ofDestination);
        const double step = source.OneIn(4) ? source.Near(0.5) : source.Near(width);
        const int moved = source.OneIn(6) ? 2 : i % 2;
        if (moved != 1 && ofSource + step <= sourceEnd)
        {
            ofSource += step;
        }
        if (moved != 0 && ofDestination + step <= destinationEnd)
        {
            ofDestination += step;
        }
    }
    if (isWhole)
    {
        joints.emplace_back(sourceEnd, destinationEnd);
    }
    if (isDown)
    {
        std::reverse(joints.begin(), joints.end());
    }
    return CPolyPosMap(joints, srcCount, dstCount);
}

} // namespace math::hashes
