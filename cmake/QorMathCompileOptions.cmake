# How this project's own code is compiled: strict warnings, and arithmetic that follows IEEE 754 step by step.

add_library(QorMathCompileOptions INTERFACE)
target_compile_options(QorMathCompileOptions INTERFACE
  $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Wall -Wextra -Wpedantic -Wshadow -Wconversion -ffp-contract=off>
  $<$<CXX_COMPILER_ID:MSVC>:/W4 /fp:precise>)
# Debug builds of all that is linked together let the standard library test its own preconditions.
target_compile_definitions(QorMathCompileOptions INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)

if(QORMATH_WARNINGS_AS_ERRORS)
  target_compile_options(QorMathCompileOptions INTERFACE
    $<$<CXX_COMPILER_ID:GNU,Clang,AppleClang>:-Werror> $<$<CXX_COMPILER_ID:MSVC>:/WX>)
endif()

# A program need not be linked again when only a shared library that it uses has changed.
set(CMAKE_LINK_DEPENDS_NO_SHARED ON)

# A finding ends the program: none is reported and then passed over.
if(QORMATH_SANITIZE)
  string(REPLACE ";" "," _qormath_sanitizers "${QORMATH_SANITIZE}")
  target_compile_options(QorMathCompileOptions INTERFACE
    -fsanitize=${_qormath_sanitizers} -fno-sanitize-recover=all -fno-omit-frame-pointer
    # What g++ sees of a sanitizer's own code makes it warn of values in the standard library's headers.
    $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  if("integer" IN_LIST QORMATH_SANITIZE)
    target_compile_options(QorMathCompileOptions INTERFACE
      "-fsanitize-ignorelist=${CMAKE_CURRENT_LIST_DIR}/sanitizer_ignorelist.txt")
  endif()
  target_link_options(QorMathCompileOptions INTERFACE -fsanitize=${_qormath_sanitizers})
  unset(_qormath_sanitizers)
endif()
