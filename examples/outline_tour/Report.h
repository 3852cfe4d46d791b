#pragma once

#include "Carry.h"
#include "Crossings.h"
#include "Drawing.h"
#include "Rebuild.h"

#include <ostream>

namespace example::tour
{

/// All the tour found, as the report and the picture want it.
struct Tour
{
    Drawing drawing;
    Rebuild rebuild; ///< of the first outline
    Carrying carrying;
    Beeline beeline;
    std::vector<Crossing> crossings;
};

/// Prints the tables.
void PrintReport(const Tour& tour, std::ostream& out);

} // namespace example::tour
