// One deliberate flaw for each kind of finding, to show that a sanitizer is at work. Every value that matters comes from
// the command line, so that no compiler can see the flaw coming.
// Usage: deliberate_flaw KIND

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <thread>
#include <vector>

namespace
{

/// A number that the compiler does not know; it is 1.
volatile int unknownOne = 1;

void ReadPastHeapBlock()
{
    const std::vector<double> values(4, 1.0);
    const double* const data = values.data();
    std::printf("%f\n", data[3 + unknownOne]);
}

void ReadFreedBlock()
{
    double* const block = new double[4]();
    double* volatile alias = block;
    delete[] block;
    std::printf("%f\n", alias[unknownOne]);
}

void WritePastStackArray()
{
    double values[4] = {};
    double* volatile alias = values;
    alias[3 + unknownOne] = 1.0;
    std::printf("%f\n", values[0]);
}

void LoseBlock()
{
    double* volatile block = new double[4]();
    block[unknownOne] = 1.0;
    block = nullptr;
}

void CastHugeFloatToInt()
{
    const double huge = 1e10 * unknownOne;
    std::printf("%d\n", static_cast<int>(huge));
}

void OverflowSignedInteger()
{
    const int greatest = std::numeric_limits<int>::max();
    std::printf("%d\n", greatest + unknownOne);
}

void WrapUnsignedInteger()
{
    const unsigned int greatest = std::numeric_limits<unsigned int>::max();
    std::printf("%u\n", greatest + static_cast<unsigned int>(unknownOne));
}

void DivideByZero()
{
    std::printf("%d\n", 7 / (unknownOne - 1));
}

void RaceForCounter()
{
    int counter = 0;
    const auto count = [&counter] {
        for (int i = 0; i < 100000; ++i)
        {
            counter += unknownOne;
        }
    };
    std::thread first(count);
    std::thread second(count);
    first.join();
    second.join();
    std::printf("%d\n", counter);
}

struct Flaw
{
    const char* kind;
    void (*commit)();
};

constexpr Flaw Flaws[] = {
    {"read-past-heap-block", ReadPastHeapBlock},
    {"read-freed-block", ReadFreedBlock},
    {"write-past-stack-array", WritePastStackArray},
    {"lose-block", LoseBlock},
    {"cast-huge-float-to-int", CastHugeFloatToInt},
    {"overflow-signed-integer", OverflowSignedInteger},
    {"wrap-unsigned-integer", WrapUnsignedInteger},
    {"divide-by-zero", DivideByZero},
    {"race-for-counter", RaceForCounter},
};

} // namespace

int main(int argc, char* argv[])
{
    for (const Flaw& flaw : Flaws)
    {
        if (argc == 2 && std::strcmp(argv[1], flaw.kind) == 0)
        {
            flaw.commit();
            std::puts("went on after the flaw");
            return EXIT_SUCCESS;
        }
    }
    std::fputs("Usage: deliberate_flaw KIND\n", stderr);
    return EXIT_SUCCESS;
}
