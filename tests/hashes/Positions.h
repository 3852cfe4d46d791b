#pragma once

#include "Source.h"

#include "math/QorMath.h"

#include <utility>
#include <vector>

namespace math::hashes
{

/// A position on and around a polyline of so many segments: often whole, half or a fraction, sometimes about the
/// tolerance beside it, laps away, negative, or a special value.
double RandomPosition(Source& source, int count);

/// A segment count from 1 to 7, seldom 0 or negative.
int RandomCount(Source& source);

/// A range in any state on a polyline of so many segments.
PosRangeD RandomRange(Source& source, int count);

/// A range and one that shares an end with it, lies beside it, completes it, or is any.
std::pair<PosRangeD, PosRangeD> RandomRanges(Source& source);

/// A side as functions take it: 1 to 3, seldom another number.
int RandomSide(Source& source);

/// A map of a few joints: mostly columns that run one way and go round once at most, with jumps, flats, repeated joints
/// and steps about the tolerance, over the seam or not, on the first lap or not; also staircases, maps without joints,
/// lists that turn back and special values.
CPolyPosMap RandomMap(Source& source, int srcCount, int dstCount);
CPolyPosMap RandomMap(Source& source);

/// A map of `size` joints whose columns run one way (or turn back within the tolerance), in one lap.
CPolyPosMap LargeMap(Source& source, int size, int srcCount, int dstCount);

/// Mostly RandomMap, in every `interval` rounds a LargeMap of `size` joints.
CPolyPosMap SeldomLargeMap(Source& source, int interval, int size);

/// A map with small steps in one column, then in the other: what smoothing takes out.
CPolyPosMap Staircase(Source& source, int size, int srcCount, int dstCount);

} // namespace math::hashes
