// QorMath comes in as what a module needs that is opened while the program runs, before or after the imposter.
// Usage: opened before|after IMPOSTER-FLAGS CHECKS-FLAGS imposter|library IMPOSTER CHECKS
//
// The imposter is opened before or after the checks. Flags are global, local or deepbind. The fourth argument is whose
// classes the kernel's names mean in the checks, the last two are paths.

#include "checks.h"

#include <dlfcn.h>

#include <cstdio>
#include <string>

namespace
{

int FlagsOf(const std::string& name)
{
    if (name == "global")
    {
        return RTLD_NOW | RTLD_GLOBAL;
    }
    return name == "deepbind" ? RTLD_NOW | RTLD_LOCAL | RTLD_DEEPBIND : RTLD_NOW | RTLD_LOCAL;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 7)
    {
        std::fputs("Usage: opened before|after FLAGS FLAGS imposter|library IMPOSTER CHECKS\n", stderr);
        return 1;
    }
    const std::string order = argv[1];
    void* checks = nullptr;
    if (order == "after")
    {
        checks = dlopen(argv[6], FlagsOf(argv[3]));
    }
    void* const imposter = dlopen(argv[5], FlagsOf(argv[2]));
    if (order == "before")
    {
        checks = dlopen(argv[6], FlagsOf(argv[3]));
    }
    if (imposter == nullptr || checks == nullptr)
    {
        std::fprintf(stderr, "not opened: %s\n", dlerror());
        return 1;
    }
    const auto calls = reinterpret_cast<ImposterCalls>(dlsym(imposter, "CallsOfImposter"));
    const auto check = reinterpret_cast<decltype(&CheckBesideImposter)>(dlsym(checks, "CheckBesideImposter"));
    if (calls == nullptr || check == nullptr)
    {
        std::fprintf(stderr, "not found: %s\n", dlerror());
        return 1;
    }
    return check(calls, std::string(argv[4]) == "imposter") == 0 ? 0 : 1;
}
