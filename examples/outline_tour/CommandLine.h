#pragma once

#include "Crossings.h"

#include "math/PosRangeD.h"

#include <optional>
#include <string>
#include <vector>

namespace example::tour
{

/// What the user asked for.
struct Options
{
    bool help = false;
    std::string drawing;
    std::string picture = "outline_tour.svg";
    std::optional<math::PosRangeD> cut; ///< not yet held against an outline
    std::optional<Beeline> beeline;
};

/// The text that --help prints.
std::string Usage();

/// Reads the arguments that follow the program's name.
/// @throw Problem for anything that is not understood
Options ParseCommandLine(const std::vector<std::string>& arguments);

} // namespace example::tour
