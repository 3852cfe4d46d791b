#pragma once

/// QORMATH_EXPORT marks what the shared library offers. QORMATH_BUILDING is defined only while the library itself
/// is compiled, so that the mark means export there and import everywhere else.
#if defined(_WIN32)
#if defined(QORMATH_BUILDING)
#define QORMATH_EXPORT __declspec(dllexport)
#else
#define QORMATH_EXPORT __declspec(dllimport)
#endif
#elif defined(__GNUC__)
#define QORMATH_EXPORT __attribute__((visibility("default")))
#else
#define QORMATH_EXPORT
#endif
