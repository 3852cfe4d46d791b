#pragma once

#include "math/Primitives.h"
#include "primitives/Outputs.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

/// The layer between points found, optional outputs and vectors. Whatever is written is a value taken before, never
/// an input: outputs may be inputs, and a vector may hold an input.
namespace math::detail
{

/// The result of curves that share a stretch.
inline constexpr int CurvesCoincide = -1;

inline constexpr DPOINT2 NoPoint()
{
    return {InvalidDouble, InvalidDouble};
}

/// A result of the family with the points that go with it: one, two, or the two ends of a shared stretch.
struct TwoPoints
{
    int count = 0;
    DPOINT2 first = NoPoint();
    DPOINT2 second = NoPoint();
};

inline void WriteBoth(const TwoPoints& found, DPOINT2* first, DPOINT2* second)
{
    Write(found.first, first);
    Write(found.second, second);
}

/// Writes the points that lie on the curve they are clipped to. A single survivor goes to the first output and leaves
/// the second alone.
///
/// @return the number of survivors; a count below 1 as it is
template <typename Predicate>
int KeepAndWrite(const TwoPoints& found, DPOINT2* first, DPOINT2* second, const Predicate& isKept)
{
    if (found.count < 1)
    {
        return found.count;
    }
    const bool keepsFirst = isKept(found.first);
    const bool keepsSecond = found.count == 2 && isKept(found.second);
    if (keepsFirst && keepsSecond)
    {
        WriteBoth(found, first, second);
        return 2;
    }
    if (!keepsFirst && !keepsSecond)
    {
        return 0;
    }
    Write(keepsFirst ? found.first : found.second, first);
    return 1;
}

/// Appends the first `count` of `found`; a negative count appends nothing.
template <std::size_t Size>
void AppendFirst(std::vector<DPOINT2>& points, const std::array<DPOINT2, Size>& found, int count)
{
    points.insert(points.end(), found.begin(), found.begin() + std::clamp(count, 0, static_cast<int>(Size)));
}

/// Vector form of a pointer form with one output: its point is appended whenever there is one.
template <typename PointerForm>
int AppendOne(std::vector<DPOINT2>& points, const PointerForm& pointerForm)
{
    std::array<DPOINT2, 1> found = {NoPoint()};
    const int result = pointerForm(&found[0]);
    AppendFirst(points, found, result);
    return result;
}

/// Vector form of a pointer form with two outputs, for callers that want the points: all that count are appended.
template <typename PointerForm>
int AppendAll(std::vector<DPOINT2>& points, const PointerForm& pointerForm)
{
    std::array<DPOINT2, 2> found = {NoPoint(), NoPoint()};
    const int result = pointerForm(&found[0], &found[1]);
    AppendFirst(points, found, result);
    return result;
}

/// Vector form of a pointer form with two outputs that limits the vector, but not the result, to `maxPoints`; a
/// negative limit means both. A shared stretch comes with its two ends.
template <typename PointerForm>
int AppendAtMost(std::vector<DPOINT2>& points, int maxPoints, const PointerForm& pointerForm)
{
    std::array<DPOINT2, 2> found = {NoPoint(), NoPoint()};
    const int result = pointerForm(&found[0], &found[1]);
    const int available = result == CurvesCoincide ? 2 : result;
    AppendFirst(points, found, std::min(available, maxPoints < 0 ? 2 : maxPoints));
    return result;
}

/// Vector form of a pointer form with four outputs. Unlike the others it replaces the content of the vector, whatever
/// the result, and hands the pointer form no more outputs than `maxPoints`; a limit outside 0 to 3 means all four.
template <typename PointerForm>
int ReplaceByAtMost(std::vector<DPOINT2>& points, int maxPoints, const PointerForm& pointerForm)
{
    const int limit = maxPoints >= 0 && maxPoints < 4 ? maxPoints : 4;
    std::array<DPOINT2, 4> found;
    const auto output = [&](int index) { return index < limit ? &found[static_cast<std::size_t>(index)] : nullptr; };
    const int result = pointerForm(output(0), output(1), output(2), output(3));
    const int kept = std::max(std::min(result, limit), 0);
    // Memory first: the vector has not changed if there is none.
    points.reserve(static_cast<std::size_t>(kept));
    points.assign(found.begin(), found.begin() + kept);
    return result;
}

} // namespace math::detail
