#pragma once

/// The whole interface of QorMath: records and scalars, the analytic kernel, curve intersection, segments and
/// polylines, positions and position maps.

#include "math/AnalyticKernel.h"
#include "math/CPolyPosMap.h"
#include "math/CPolyPosMapUtilies.h"
#include "math/CPolyline.h"
#include "math/CSegment.h"
#include "math/Intersect.h"
#include "math/PosRangeD.h"
#include "math/Primitives.h"
