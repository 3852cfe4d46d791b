// The imposter is linked before or after QorMath, or comes first because LD_PRELOAD names it.
// Usage: linked first|last, the place of the imposter.

#include "checks.h"

#include <dlfcn.h>

#include <cstdio>
#include <cstring>

int main(int argc, char* argv[])
{
    const auto calls = reinterpret_cast<ImposterCalls>(dlsym(RTLD_DEFAULT, "CallsOfImposter"));
    if (argc != 2 || calls == nullptr)
    {
        std::fputs("no imposter, or its place is not told\n", stderr);
        return 1;
    }
    return CheckBesideImposter(calls, std::strcmp(argv[1], "first") == 0) == 0 ? 0 : 1;
}
