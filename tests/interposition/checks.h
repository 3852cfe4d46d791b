#pragma once

#include "math/Export.h"

/// The imposter's count of the calls of its members.
using ImposterCalls = int (*)();

/// Tells whether QorMath answers as ever in a process in which the imposter is loaded too, and never calls it.
///
/// @param imposterWins  not 0 if the names of the kernel have to mean the imposter's classes in these checks
/// @return the number of failures, each of which has been printed
extern "C" QORMATH_EXPORT int CheckBesideImposter(ImposterCalls calls, int imposterWins);
