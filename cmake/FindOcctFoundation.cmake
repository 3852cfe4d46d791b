# Finds the foundation toolkits TKernel and TKMath of Open CASCADE Technology.
#
# The package files that distributions ship for the toolkit name more libraries than are installed with it,
# so headers and libraries are looked for directly. Defines the imported targets
#   OcctFoundation::TKernel, OcctFoundation::TKMath
# and the variables OcctFoundation_FOUND, OcctFoundation_INCLUDE_DIR, OcctFoundation_VERSION.

find_path(OcctFoundation_INCLUDE_DIR
  NAMES gp_Pnt2d.hxx
  PATH_SUFFIXES opencascade occt oce
  DOC "Directory of the headers of Open CASCADE Technology")
find_library(OcctFoundation_TKernel_LIBRARY NAMES TKernel DOC "Foundation toolkit TKernel")
find_library(OcctFoundation_TKMath_LIBRARY NAMES TKMath DOC "Foundation toolkit TKMath")
mark_as_advanced(OcctFoundation_INCLUDE_DIR OcctFoundation_TKernel_LIBRARY OcctFoundation_TKMath_LIBRARY)

if(OcctFoundation_INCLUDE_DIR AND EXISTS "${OcctFoundation_INCLUDE_DIR}/Standard_Version.hxx")
  file(STRINGS "${OcctFoundation_INCLUDE_DIR}/Standard_Version.hxx" _occt_version_line
    REGEX "^#define[ \t]+OCC_VERSION_COMPLETE[ \t]+\"[0-9.]+\"")
  string(REGEX REPLACE ".*\"([0-9.]+)\".*" "\\1" OcctFoundation_VERSION "${_occt_version_line}")
  unset(_occt_version_line)
endif()

include(FindPackageHandleStandardArgs)
find_package_handle_standard_args(OcctFoundation
  REQUIRED_VARS OcctFoundation_TKMath_LIBRARY OcctFoundation_TKernel_LIBRARY OcctFoundation_INCLUDE_DIR
  VERSION_VAR OcctFoundation_VERSION)

if(OcctFoundation_FOUND)
  foreach(_occt_toolkit TKernel TKMath)
    if(NOT TARGET OcctFoundation::${_occt_toolkit})
      add_library(OcctFoundation::${_occt_toolkit} UNKNOWN IMPORTED)
      set_target_properties(OcctFoundation::${_occt_toolkit} PROPERTIES
        IMPORTED_LOCATION "${OcctFoundation_${_occt_toolkit}_LIBRARY}"
        INTERFACE_INCLUDE_DIRECTORIES "${OcctFoundation_INCLUDE_DIR}")
    endif()
  endforeach()
  unset(_occt_toolkit)
  set_property(TARGET OcctFoundation::TKMath APPEND PROPERTY INTERFACE_LINK_LIBRARIES OcctFoundation::TKernel)
endif()
