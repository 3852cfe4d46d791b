// Where curves meet, equations, the analytic kernel, and the primitives on which they stand.

#include "Curve.h"

#include <cstddef>
#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    fuzz::Decoder decoder(data, size);
    while (!decoder.IsEmpty())
    {
        const int what = decoder.Byte();
        switch (what % 8)
        {
        case 0:
            fuzz::CheckPrimitive(decoder);
            break;
        case 1:
            fuzz::CheckKernel(decoder);
            break;
        case 2:
            fuzz::CheckEquation(decoder);
            break;
        default:
            fuzz::CheckMember(decoder.Byte(), decoder);
            break;
        }
    }
    return 0;
}
