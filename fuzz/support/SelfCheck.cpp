// A stand-in for a fuzzer with a law that some input breaks: shows that a replay can fail.

#include "Decoder.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Decoder decoder(data, size);
    fuzz::TheTrace().Begin("a number below 100");
    const double number = decoder.Number();
    FUZZ_REQUIRE(number < 100.0);
    return 0;
}
