#include "RuntimeMath.h"

#include <cstdlib>
#include <dlfcn.h>

// The declarations of <cmath> would stand in the way of these definitions: it is not included here.

namespace
{

std::uint64_t calls = 0;

template <typename Function>
Function* OfRuntime(const char* name)
{
    void* const symbol = dlsym(RTLD_NEXT, name);
    if (symbol == nullptr)
    {
        std::abort();
    }
    return reinterpret_cast<Function*>(symbol);
}

} // namespace

#define QORMATH_COUNTED_1(name)                                                                                        \
    extern "C" double name(double x)                                                                                   \
    {                                                                                                                  \
        static double (*const next)(double) = OfRuntime<double(double)>(#name);                                        \
        ++calls;                                                                                                       \
        return next(x);                                                                                                \
    }
#define QORMATH_COUNTED_2(name)                                                                                        \
    extern "C" double name(double x, double y)                                                                         \
    {                                                                                                                  \
        static double (*const next)(double, double) = OfRuntime<double(double, double)>(#name);                        \
        ++calls;                                                                                                       \
        return next(x, y);                                                                                             \
    }

QORMATH_COUNTED_1(sin)
QORMATH_COUNTED_1(cos)
QORMATH_COUNTED_1(tan)
QORMATH_COUNTED_1(asin)
QORMATH_COUNTED_1(acos)
QORMATH_COUNTED_1(atan)
QORMATH_COUNTED_1(sinh)
QORMATH_COUNTED_1(cosh)
QORMATH_COUNTED_1(tanh)
QORMATH_COUNTED_1(exp)
QORMATH_COUNTED_1(exp2)
QORMATH_COUNTED_1(expm1)
QORMATH_COUNTED_1(log)
QORMATH_COUNTED_1(log2)
QORMATH_COUNTED_1(log10)
QORMATH_COUNTED_1(log1p)
QORMATH_COUNTED_1(cbrt)
QORMATH_COUNTED_2(atan2)
QORMATH_COUNTED_2(pow)
QORMATH_COUNTED_2(hypot)

extern "C" void sincos(double x, double* sine, double* cosine)
{
    using Function = void(double, double*, double*);
    static Function* const next = OfRuntime<Function>("sincos");
    ++calls;
    next(x, sine, cosine);
}

namespace math::hashes
{

std::uint64_t RuntimeMathCalls()
{
    return calls;
}

} // namespace math::hashes
