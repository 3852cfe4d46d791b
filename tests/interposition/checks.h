#pragma once

#include "math/Export.h"

/// Tells whether QorMath answers as ever in a process in which the imposter was loaded first, and never calls it.
///
/// @return the number of failures, each of which has been printed; the imposter not being first is a failure as well
extern "C" QORMATH_EXPORT int CheckBesideImposter();
