#pragma once

/// Every source that uses the inline checks of Open CASCADE includes this. They give directions of zero length and
/// negative radii their failure values, and vanish when either of these is defined.
#if defined(No_Exception) || defined(No_Standard_ConstructionError)
#error "QorMath needs Open CASCADE's checks: do not define No_Exception or No_Standard_ConstructionError"
#endif
