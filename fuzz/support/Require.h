#pragma once

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

// What a fuzzer does when a law is broken: it tells the law and ends the process, which the engine takes for a finding.

namespace fuzz
{

/// The operation at work and the numbers that were handed out for it, told when a law is broken.
struct Trace
{
    static constexpr std::size_t Capacity = 64;
    const char* operation = "";
    double numbers[Capacity] = {};
    std::size_t count = 0;

    void Begin(const char* name)
    {
        operation = name;
        count = 0;
    }

    void Take(double number)
    {
        numbers[count++ % Capacity] = number;
    }
};

inline Trace& TheTrace()
{
    static Trace trace;
    return trace;
}

[[noreturn]] inline void Fail(const char* law, const char* file, int line)
{
    const Trace& trace = TheTrace();
    std::fprintf(stderr, "%s:%d: broken law: %s\n  in %s, numbers", file, line, law, trace.operation);
    const std::size_t first = trace.count > Trace::Capacity ? trace.count - Trace::Capacity : 0;
    for (std::size_t i = first; i < trace.count; ++i)
    {
        std::fprintf(stderr, " %.17g", trace.numbers[i % Trace::Capacity]);
    }
    std::fputc('\n', stderr);
    std::abort();
}

/// The same double, bit for bit; every NaN is the same.
inline bool SameBits(double a, double b)
{
    if (std::isnan(a) || std::isnan(b))
    {
        return std::isnan(a) && std::isnan(b);
    }
    return std::memcmp(&a, &b, sizeof a) == 0;
}

} // namespace fuzz

/// A law that has to hold for every input.
#define FUZZ_REQUIRE(condition)                                                                                        \
    do                                                                                                                 \
    {                                                                                                                  \
        if (!(condition))                                                                                              \
        {                                                                                                              \
            ::fuzz::Fail(#condition, __FILE__, __LINE__);                                                              \
        }                                                                                                              \
    } while (false)
