#pragma once

#include "math/CPolyPosMap.h"

#include <cstddef>
#include <string>
#include <vector>

namespace example::story
{

/// Segments of the outline at the beginning, and of the other one that is joined to it.
inline constexpr int FirstCount = 6;
inline constexpr int SecondCount = 3;

/// One edit of the outline, and the map as it is then.
struct Step
{
    std::string name;
    std::string event;     ///< what happens to the outline
    std::string call;      ///< what is called for it
    math::CPolyPosMap map; ///< from the outlines of the beginning to the outline after this step
};

/// A place on one of the outlines of the beginning, followed through all steps.
struct Mark
{
    std::string letter;
    double position = 0;   ///< the other outline's positions follow on those of the first
    std::size_t since = 0; ///< the step with which its outline comes in
    std::string remark;
};

/// An outline is cut, joined to another, extended, shortened, renumbered and turned.
std::vector<Step> TellStory();

/// Seven places, one for each thing that may happen to a place.
std::vector<Mark> Marks();

/// Where a mark lies after a step, in the order of the map, brought to 0 up to the segment count.
/// @return one place or, at a jump, several; none if the map does not reach the mark
std::vector<double> ImagesOf(const Mark& mark, const Step& step);

} // namespace example::story
