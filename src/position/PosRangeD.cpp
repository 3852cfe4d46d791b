#include "math/PosRangeD.h"

#include "position/LapMover.h"
#include "position/Positions.h"
#include "primitives/Tolerance.h"

#include <cmath>
#include <cstdint>
#include <limits>

namespace math
{

using detail::AreEqual;
using detail::IsZero;
using detail::NoPosition;

PosRangeD::PosRangeD() : start(NoPosition), end(NoPosition)
{
}

PosRangeD::PosRangeD(const double& startPos, const double& endPos) : start(startPos), end(endPos)
{
}

PosRangeD::PosRangeD(int startSegment, double startRatio, int endSegment, double endRatio)
    : start(startSegment + startRatio),
      end(endSegment + endRatio)
{
}

PosRangeD::PosRangeD(int segment, double startRatio, double endRatio)
    : start(segment + startRatio),
      end(segment + endRatio)
{
}

PosRangeD::PosRangeD(const PosRangeD& other) = default;
PosRangeD& PosRangeD::operator=(const PosRangeD& other) = default;
PosRangeD::~PosRangeD() = default;

void PosRangeD::MakeInavlid()
{
    start = NoPosition;
    end = NoPosition;
}

int PosRangeD::GetSegmentIndex(const double& pos)
{
    if (std::isnan(pos))
    {
        return 0;
    }
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int greatest = std::numeric_limits<int>::max();
    if (pos <= least)
    {
        return least;
    }
    return pos >= greatest ? greatest : static_cast<int>(pos);
}

double PosRangeD::GetRadio(const double& pos)
{
    // A conversion is no call, but has to end at the integers.
    if (std::abs(pos) < 0x1p53)
    {
        const auto whole = static_cast<double>(static_cast<std::int64_t>(pos));
        return std::copysign(pos - whole, pos);
    }
    double whole = 0.0;
    return std::modf(pos, &whole);
}

double PosRangeD::NormalizePos(const double& pos, const int& segmentCount)
{
    if (segmentCount == 0)
    {
        return NoPosition;
    }
    const double lap = segmentCount;
    if (IsZero(pos) || AreEqual(pos, lap))
    {
        return pos;
    }
    if (segmentCount < 0 || std::isinf(pos))
    {
        return std::isnan(pos) ? pos : NoPosition;
    }
    // Laps are whole numbers, so below 2^53 each one taken off leaves an exact remainder, as std::fmod does at once;
    // only the step from below 0 up into the lap rounds. Multiples of the lap end at 0 from below and at the count from
    // above.
    if (pos < 0)
    {
        const double remainder = std::fmod(pos, lap);
        return remainder < 0 ? remainder + lap : 0.0;
    }
    if (pos > lap)
    {
        const double remainder = std::fmod(pos, lap);
        return remainder > 0 ? remainder : lap;
    }
    return pos;
}

double PosRangeD::NormalizePos(const double& pos, const PosRangeD& range, const int& segmentCount)
{
    return detail::LapMover({range.start, range.end}, segmentCount)(pos);
}

bool PosRangeD::IsEmpty() const
{
    return IsInvalid();
}

bool PosRangeD::IsInvalid() const
{
    return std::isnan(start) || std::isnan(end) || start < -DoubleTolerance || end < -DoubleTolerance;
}

bool PosRangeD::IsWholeRange() const
{
    return !IsInvalid() && AreEqual(start, end);
}

bool PosRangeD::IsContain(const double& pos) const
{
    if (IsInvalid())
    {
        return false;
    }
    if (end > start)
    {
        return pos > start && pos < end;
    }
    if (AreEqual(start, end))
    {
        return true;
    }
    return pos > start || pos < end;
}

bool PosRangeD::IsOn(const double& pos) const
{
    if (IsInvalid() || IsWholeRange())
    {
        return false;
    }
    return AreEqual(start, pos) || AreEqual(end, pos);
}

bool PosRangeD::IsContainZero() const
{
    if (IsInvalid())
    {
        return false;
    }
    return AreEqual(start, end) || start > end;
}

bool PosRangeD::IsOverlap(const PosRangeD& other) const
{
    if (IsInvalid() || other.IsInvalid())
    {
        return false;
    }
    if (*this == other || IsWholeRange() || other.IsWholeRange())
    {
        return true;
    }
    return IsContain(other.start) || IsContain(other.end);
}

bool PosRangeD::IsContain(const PosRangeD& other) const
{
    if (IsInvalid() || other.IsInvalid())
    {
        return false;
    }
    if (*this == other || IsWholeRange())
    {
        return true;
    }
    const bool containsStart = IsContain(other.start);
    const bool containsEnd = IsContain(other.end);
    if (AreEqual(end, other.end) && containsStart)
    {
        return true;
    }
    if (AreEqual(start, other.start) && containsEnd)
    {
        return true;
    }
    return containsStart && containsEnd;
}

bool PosRangeD::IsComplementary(const PosRangeD& other) const
{
    if ((IsWholeRange() && other.IsInvalid()) || (IsInvalid() && other.IsWholeRange()))
    {
        return true;
    }
    if (IsInvalid() || other.IsInvalid() || IsWholeRange() || other.IsWholeRange())
    {
        return false;
    }
    return AreEqual(end, other.start) && AreEqual(start, other.end);
}

bool PosRangeD::operator==(const PosRangeD& other) const
{
    if (IsInvalid() || other.IsInvalid())
    {
        return IsInvalid() && other.IsInvalid();
    }
    if (IsWholeRange() || other.IsWholeRange())
    {
        return IsWholeRange() && other.IsWholeRange();
    }
    return AreEqual(start, other.start) && AreEqual(end, other.end);
}

bool PosRangeD::operator!=(const PosRangeD& other) const
{
    return !(*this == other);
}

bool PosRangeD::operator<(const PosRangeD& other) const
{
    if (IsInvalid())
    {
        return true;
    }
    return !other.IsInvalid() && start < other.start;
}

PosRangeD PosRangeD::Reverse(const int& segmentCount) const
{
    return PosRangeD(segmentCount - end, segmentCount - start);
}

PosRangeD PosRangeD::Complementary() const
{
    if (IsInvalid() || IsWholeRange())
    {
        return PosRangeD();
    }
    return PosRangeD(end, start);
}

} // namespace math
