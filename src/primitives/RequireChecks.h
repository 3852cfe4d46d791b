#pragma once

/// Include before any gp_ header. The inline checks of Open CASCADE, on which the failure values for directions of zero
/// length rest, vanish when either of these is defined.
#if defined(No_Exception) || defined(No_Standard_ConstructionError)
#error                                                                                                                 \
    "QorMath needs the construction checks of Open CASCADE: do not define No_Exception or No_Standard_ConstructionError"
#endif
