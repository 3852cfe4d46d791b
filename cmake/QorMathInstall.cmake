# Installs the library, its headers and what other projects need to find it: a CMake package and a pkg-config file.
include(CMakePackageConfigHelpers)

set(QORMATH_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/QorMath")
set(QORMATH_PKGCONFIG_DIR "${CMAKE_INSTALL_LIBDIR}/pkgconfig")

install(TARGETS QorMath EXPORT QorMathTargets
  LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}"
  RUNTIME DESTINATION "${CMAKE_INSTALL_BINDIR}"
  ARCHIVE DESTINATION "${CMAKE_INSTALL_LIBDIR}")
install(DIRECTORY "${PROJECT_SOURCE_DIR}/include/math" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}"
  FILES_MATCHING PATTERN "*.h")

# The package brings its own find module for the foundation toolkits, so find_package(QorMath) is all a consumer needs.
configure_package_config_file("${CMAKE_CURRENT_LIST_DIR}/QorMathConfig.cmake.in"
  "${PROJECT_BINARY_DIR}/QorMathConfig.cmake"
  INSTALL_DESTINATION "${QORMATH_CMAKE_DIR}"
  NO_SET_AND_CHECK_MACRO)
write_basic_package_version_file("${PROJECT_BINARY_DIR}/QorMathConfigVersion.cmake"
  VERSION ${PROJECT_VERSION}
  COMPATIBILITY SameMajorVersion)
install(EXPORT QorMathTargets NAMESPACE QorMath:: DESTINATION "${QORMATH_CMAKE_DIR}")
install(FILES
    "${PROJECT_BINARY_DIR}/QorMathConfig.cmake"
    "${PROJECT_BINARY_DIR}/QorMathConfigVersion.cmake"
    "${CMAKE_CURRENT_LIST_DIR}/FindOcctFoundation.cmake"
  DESTINATION "${QORMATH_CMAKE_DIR}")

# Where the pkg-config file finds the installation: from its own place if that is known, so that the tree can be moved.
set(QORMATH_PC_LIBDIR "\${prefix}/${CMAKE_INSTALL_LIBDIR}")
set(QORMATH_PC_INCLUDEDIR "\${prefix}/${CMAKE_INSTALL_INCLUDEDIR}")
if(IS_ABSOLUTE "${CMAKE_INSTALL_LIBDIR}")
  set(QORMATH_PC_PREFIX "${CMAKE_INSTALL_PREFIX}")
  set(QORMATH_PC_LIBDIR "${CMAKE_INSTALL_LIBDIR}")
else()
  file(RELATIVE_PATH _qormath_up "/${QORMATH_PKGCONFIG_DIR}" "/")
  string(REGEX REPLACE "/$" "" _qormath_up "${_qormath_up}")
  set(QORMATH_PC_PREFIX "\${pcfiledir}/${_qormath_up}")
  unset(_qormath_up)
endif()
if(IS_ABSOLUTE "${CMAKE_INSTALL_INCLUDEDIR}")
  set(QORMATH_PC_INCLUDEDIR "${CMAKE_INSTALL_INCLUDEDIR}")
endif()

# The toolkits have no pkg-config file of their own. A library directory is named only if the linker does not know it.
get_filename_component(_qormath_occt_dir "${OcctFoundation_TKMath_LIBRARY}" DIRECTORY)
set(QORMATH_PC_OCCT_LIBS "-lTKMath -lTKernel")
if(NOT _qormath_occt_dir IN_LIST CMAKE_CXX_IMPLICIT_LINK_DIRECTORIES)
  set(QORMATH_PC_OCCT_LIBS "-L${_qormath_occt_dir} ${QORMATH_PC_OCCT_LIBS}")
endif()
unset(_qormath_occt_dir)
configure_file("${CMAKE_CURRENT_LIST_DIR}/QorMath.pc.in" "${PROJECT_BINARY_DIR}/QorMath.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/QorMath.pc" DESTINATION "${QORMATH_PKGCONFIG_DIR}")
