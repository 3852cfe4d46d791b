# Builds the CMake project in PROJECT from nothing in WORK, runs its program PROGRAM and compares what it prints
# with the file EXPECTED. OPTIONS are handed to the configuration.
file(REMOVE_RECURSE "${WORK}")
execute_process(
  COMMAND "${CMAKE_COMMAND}" -S "${PROJECT}" -B "${WORK}" -G "${GENERATOR}"
    "-DCMAKE_MAKE_PROGRAM=${MAKE_PROGRAM}"
    "-DCMAKE_CXX_COMPILER=${COMPILER}" "-DCMAKE_CXX_COMPILER_LAUNCHER=${LAUNCHER}"
    -DCMAKE_BUILD_TYPE=Debug ${OPTIONS}
  COMMAND_ERROR_IS_FATAL ANY)
execute_process(
  COMMAND "${CMAKE_COMMAND}" --build "${WORK}" --config Debug --parallel 2
  COMMAND_ERROR_IS_FATAL ANY)

find_program(program NAMES ${PROGRAM} PATHS "${WORK}" "${WORK}/Debug" NO_DEFAULT_PATH REQUIRED)
execute_process(COMMAND "${program}" OUTPUT_VARIABLE printed COMMAND_ERROR_IS_FATAL ANY)
file(READ "${EXPECTED}" expected)
if(NOT printed STREQUAL expected)
  message(FATAL_ERROR "The program printed\n${printed}\nwhere this was expected:\n${expected}")
endif()
message(STATUS "Printed what was expected")
