#pragma once

#include "ResultHash.h"
#include "Source.h"

#include <cstddef>
#include <string>
#include <vector>

#include <Standard_Failure.hxx>

namespace math::hashes
{

/// What one function of the library is run with.
struct Load
{
    const char* name; ///< as the dynamic symbol table has it, demangled, without the namespace and without allocators
    int rounds;
    void (*run)(Source& source, ResultHash& hash); ///< one round: at least one call
};

/// How many rounds a load has, by what a round costs.
/// @{
inline constexpr int Cheap = 40000;
inline constexpr int Usual = 20000;
inline constexpr int Costly = 4000;
/// @}

/// Together the lists name every function that the library exports, once.
/// @{
extern const std::vector<Load> PrimitiveLoads;
extern const std::vector<Load> PredicateLoads;
extern const std::vector<Load> KernelLoads;
extern const std::vector<Load> LineIntersectionLoads;
extern const std::vector<Load> EllipseIntersectionLoads;
extern const std::vector<Load> SegmentLoads;
extern const std::vector<Load> PolylineLoads;
extern const std::vector<Load> RangeLoads;
extern const std::vector<Load> MapLoads;
extern const std::vector<Load> MapBuilderLoads;
/// @}

/// What stands in an output before a call that may leave it so.
/// @{
inline DPOINT2 Untouched()
{
    return {-77.25, 1234.5};
}
inline constexpr double UntouchedNumber = -4321.625;
/// @}

/// Runs what may raise an exception of the toolkit; the name of its type is a result then.
template <typename Action>
void Attempt(ResultHash& hash, const Action& action)
{
    try
    {
        action();
    }
    catch (const Standard_Failure& failure)
    {
        hash << std::string(failure.DynamicType()->Name());
    }
}

/// `output`, or null in one of eight calls.
template <typename Value>
Value* OrNull(Source& source, Value& output)
{
    return source.OneIn(8) ? nullptr : &output;
}

/// A vector form: the vector holds up to two points before the call.
template <typename Call>
void IntoVector(Source& source, ResultHash& hash, const Call& call)
{
    std::vector<DPOINT2> points(static_cast<std::size_t>(source.Below(3)), Untouched());
    hash << call(points, source.Between(-1, 5)) << points;
}

/// A pointer form with one output.
template <typename Call>
void IntoOnePointer(Source& source, ResultHash& hash, const Call& call)
{
    DPOINT2 point = Untouched();
    hash << call(OrNull(source, point)) << point;
}

/// A pointer form with two outputs.
template <typename Call>
void IntoTwoPointers(Source& source, ResultHash& hash, const Call& call)
{
    DPOINT2 first = Untouched();
    DPOINT2 second = Untouched();
    DPOINT2* const toFirst = OrNull(source, first);
    DPOINT2* const toSecond = OrNull(source, second);
    hash << call(toFirst, toSecond) << first << second;
}

/// A pointer form with four outputs.
template <typename Call>
void IntoFourPointers(Source& source, ResultHash& hash, const Call& call)
{
    std::vector<DPOINT2> points(4, Untouched());
    DPOINT2* outputs[4];
    for (std::size_t i = 0; i < 4; ++i)
    {
        outputs[i] = OrNull(source, points[i]);
    }
    hash << call(outputs[0], outputs[1], outputs[2], outputs[3]) << points;
}

} // namespace math::hashes
