#pragma once

#include "Report.h"

// What is measured, a file for each family. A row's name is the function's; where a function has several results, the
// result's name follows.

namespace math::accuracy
{

void MeasureAngles(Run& run);
void MeasureDistances(Run& run);
void MeasureConstructions(Run& run);
void MeasureEquations(Run& run);
void MeasureLinesAndCircles(Run& run);
void MeasureEllipses(Run& run);
void MeasureSegments(Run& run);

// Units that many rows share.
inline constexpr const char* OfResult = "u of the result";
inline constexpr const char* OfCoordinate = "u of the largest coordinate";
inline constexpr const char* OfCircle = "u of the largest of coordinates and radius";
inline constexpr const char* OfTolerance = "1e-9";

} // namespace math::accuracy
