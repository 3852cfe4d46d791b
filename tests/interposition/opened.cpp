// The imposter comes first because its names are made global before QorMath is loaded at all.
// Usage: opened IMPOSTER CHECKS, the paths of the two libraries.

#include <dlfcn.h>

#include <cstdio>

int main(int argc, char* argv[])
{
    if (argc != 3 || dlopen(argv[1], RTLD_NOW | RTLD_GLOBAL) == nullptr)
    {
        std::fprintf(stderr, "no imposter: %s\n", dlerror());
        return 1;
    }
    void* const checks = dlopen(argv[2], RTLD_NOW | RTLD_LOCAL);
    void* const check = checks == nullptr ? nullptr : dlsym(checks, "CheckBesideImposter");
    if (check == nullptr)
    {
        std::fprintf(stderr, "no checks: %s\n", dlerror());
        return 1;
    }
    using Check = int (*)();
    return reinterpret_cast<Check>(check)() == 0 ? 0 : 1;
}
