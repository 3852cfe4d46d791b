#include "math/PosRangeD.h"

#include "primitives/Tolerance.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace math
{

using detail::AreEqual;

namespace
{

using Ranges = std::vector<PosRangeD>;

bool IsForward(const PosRangeD& range)
{
    return range.end > range.start;
}

bool IsBelowOrNear(double a, double b)
{
    return a < b || AreEqual(a, b);
}

bool IsClearlyAtOrAbove(double a, double b)
{
    return a >= b && !AreEqual(a, b);
}

/// A length past every end in play, by which wrapping ranges are unrolled.
double UnrollLength(const PosRangeD& a, const PosRangeD& b)
{
    return std::ceil(std::max({a.start, a.end, b.start, b.end})) + 1.0;
}

PosRangeD Unroll(const PosRangeD& range, double length)
{
    return PosRangeD(range.start, range.end + length);
}

/// Brings unrolled ranges back. An end on the length itself stays: it is the seam.
Ranges Fold(Ranges ranges, double length)
{
    for (PosRangeD& range : ranges)
    {
        range.start = range.start > length ? range.start - length : range.start;
        range.end = range.end > length ? range.end - length : range.end;
    }
    return ranges;
}

Ranges ForwardDifference(const PosRangeD& a, const PosRangeD& b)
{
    if (IsBelowOrNear(b.end, a.start))
    {
        return {a};
    }
    // Raw: an end short of the other by less than the tolerance leaves a sliver.
    if (b.end < a.end)
    {
        if (IsClearlyAtOrAbove(b.start, a.start))
        {
            return {PosRangeD(a.start, b.start), PosRangeD(b.end, a.end)};
        }
        return {PosRangeD(b.end, a.end)};
    }
    if (IsBelowOrNear(b.start, a.start))
    {
        return {};
    }
    if (AreEqual(b.end, a.end) || b.start < a.end)
    {
        return {PosRangeD(a.start, b.start)};
    }
    return {a};
}

Ranges ForwardUnion(const PosRangeD& a, const PosRangeD& b)
{
    if (b.end < a.start)
    {
        return {a, b};
    }
    // Ranges that touch merge at this end of a only.
    if (AreEqual(b.end, a.start))
    {
        return {PosRangeD(b.start, a.end)};
    }
    if (IsBelowOrNear(b.end, a.end))
    {
        return IsBelowOrNear(b.start, a.start) ? Ranges{PosRangeD(b.start, a.end)} : Ranges{a};
    }
    if (!IsClearlyAtOrAbove(b.start, a.start))
    {
        return {b};
    }
    return b.start < a.end ? Ranges{PosRangeD(a.start, b.end)} : Ranges{a, b};
}

Ranges ForwardIntersection(const PosRangeD& a, const PosRangeD& b)
{
    if (IsBelowOrNear(b.end, a.start))
    {
        return {};
    }
    if (IsClearlyAtOrAbove(b.end, a.end))
    {
        if (b.start < a.start)
        {
            return {a};
        }
        if (b.start < a.end || AreEqual(b.start, a.start))
        {
            return {PosRangeD(b.start, a.end)};
        }
        return {};
    }
    return b.start >= a.start ? Ranges{b} : Ranges{PosRangeD(a.start, b.end)};
}

/// The part of a wrapping range that a forward one leaves: bitten once where it stands and once a lap on.
Ranges WrappingMinusForward(const PosRangeD& wrapping, const PosRangeD& forward, double length)
{
    const Ranges left = ForwardDifference(Unroll(wrapping, length), forward);
    if (left.size() != 1)
    {
        return Fold(left, length);
    }
    const PosRangeD lapOn(forward.start + length, forward.end + length);
    return Fold(ForwardDifference(left.front(), lapOn), length);
}

/// The part of a forward range that a wrapping one leaves: bitten by what lies past the seam, then by what lies before
/// it.
Ranges ForwardMinusWrapping(const PosRangeD& forward, const PosRangeD& wrapping, double length)
{
    const Ranges left = ForwardDifference(forward, PosRangeD(wrapping.start - length, wrapping.end));
    return left.empty() ? left : ForwardDifference(left.front(), Unroll(wrapping, length));
}

/// A union that went right round is whole, any other is brought back over the seam.
PosRangeD RollUp(const PosRangeD& merged, const PosRangeD& wrapping, double length)
{
    if (merged.end - merged.start > length)
    {
        return PosRangeD(wrapping.start, wrapping.start);
    }
    return PosRangeD(merged.start, merged.end - length);
}

} // namespace

std::vector<PosRangeD> PosRangeD::Splite(const double& pos)
{
    if (IsInvalid())
    {
        return {};
    }
    // A whole range contains every position, but is not cut at its own ends.
    const bool isLoop = !(end > start) && AreEqual(start, end);
    const bool isAtEnds = AreEqual(pos, start) || AreEqual(pos, end);
    if (!IsContain(pos) || (isLoop && isAtEnds))
    {
        return {*this};
    }
    return {PosRangeD(start, pos), PosRangeD(pos, end)};
}

std::vector<PosRangeD> PosRangeD::operator-(const PosRangeD& other) const
{
    if (IsWholeRange())
    {
        return other.IsWholeRange() ? Ranges{} : Ranges{other.Complementary()};
    }
    if (other.IsWholeRange())
    {
        return {};
    }
    if (IsForward(*this) && IsForward(other))
    {
        return ForwardDifference(*this, other);
    }
    const double length = UnrollLength(*this, other);
    if (IsForward(*this))
    {
        return ForwardMinusWrapping(*this, other, length);
    }
    if (IsForward(other))
    {
        return WrappingMinusForward(*this, other, length);
    }
    return Fold(ForwardDifference(Unroll(*this, length), Unroll(other, length)), length);
}

std::vector<PosRangeD> PosRangeD::operator+(const PosRangeD& other) const
{
    if (IsInvalid() && other.IsInvalid())
    {
        return {};
    }
    if (IsWholeRange() && other.IsWholeRange())
    {
        return {*this};
    }
    if (IsInvalid() || other.IsWholeRange())
    {
        return {other};
    }
    if (IsWholeRange() || other.IsInvalid())
    {
        return {*this};
    }
    if (IsForward(*this) && IsForward(other))
    {
        return ForwardUnion(*this, other);
    }
    if (IsForward(other))
    {
        return other + *this;
    }
    const double length = UnrollLength(*this, other);
    const bool bothWrap = !IsForward(*this);
    const Ranges merged = ForwardUnion(bothWrap ? Unroll(*this, length) : *this, Unroll(other, length));
    if (merged.size() > 1 && !bothWrap)
    {
        // What lies past the seam of the wrapping range is not compared a lap on.
        return {*this, other};
    }
    return {RollUp(merged.front(), other, length)};
}

std::vector<PosRangeD> PosRangeD::operator*(const PosRangeD& other) const
{
    if (IsInvalid() || other.IsInvalid())
    {
        return {};
    }
    if (IsWholeRange())
    {
        return {other};
    }
    if (other.IsWholeRange())
    {
        return {*this};
    }
    if (IsForward(*this) && IsForward(other))
    {
        return ForwardIntersection(*this, other);
    }
    if (IsForward(other))
    {
        return other * *this;
    }
    const double length = UnrollLength(*this, other);
    if (!IsForward(*this))
    {
        return Fold(ForwardIntersection(Unroll(*this, length), Unroll(other, length)), length);
    }
    Ranges common = ForwardIntersection(*this, PosRangeD(other.start - length, other.end));
    const Ranges beforeSeam = ForwardIntersection(*this, Unroll(other, length));
    common.insert(common.end(), beforeSeam.begin(), beforeSeam.end());
    return common;
}

} // namespace math
