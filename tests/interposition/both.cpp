// A program that is linked with neither library opens both, calls the functions of either by name in turn, closes them
// and opens them again the other way round.
// Usage: both LIBRARY IMPOSTER, the paths of the two libraries.

#include "math/Primitives.h"

#include <dlfcn.h>

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <initializer_list>
#include <vector>

namespace
{

using math::DPOINT2;

int failures = 0;

void Expect(bool holds, const char* what)
{
    if (!holds)
    {
        std::printf("failed: %s\n", what);
        ++failures;
    }
}

template <typename Function>
Function Find(void* library, const char* name)
{
    void* const found = library == nullptr ? nullptr : dlsym(library, name);
    if (found == nullptr)
    {
        std::fprintf(stderr, "no %s: %s\n", name, dlerror());
        ++failures;
    }
    return reinterpret_cast<Function>(found);
}

/// The default constructor and IsDone of the class IntAna2d_AnaIntersection, which both libraries define.
struct Kernel
{
    explicit Kernel(void* library)
        : construct(Find<void (*)(void*)>(library, "_ZN24IntAna2d_AnaIntersectionC1Ev")),
          isDone(Find<bool (*)(const void*)>(library, "_ZNK24IntAna2d_AnaIntersection6IsDoneEv"))
    {
    }

    /// Of an object on which nothing was performed. Ours says no, the imposter yes.
    bool IsDoneAtFirst() const
    {
        // Room for the greater of the two classes.
        alignas(std::max_align_t) unsigned char object[1024] = {};
        construct(object);
        return isDone(object);
    }

    void (*construct)(void*);
    bool (*isDone)(const void*);
};

void CallInTurn(void* library, void* imposter)
{
    using CircleThrough =
        bool (*)(const DPOINT2& p1, const DPOINT2& p2, const DPOINT2& p3, DPOINT2* centre, double* radius);
    using CircleWithCircle = int (*)(const DPOINT2& firstCentre, double firstRadius, const DPOINT2& secondCentre,
                                     double secondRadius, DPOINT2* first, DPOINT2* second);
    const auto circleThrough =
        Find<CircleThrough>(library, "_ZN4math22CreateCircleFrom3PointERKNS_7DPOINT2ES2_S2_PS0_Pd");
    const auto circleWithCircle =
        Find<CircleWithCircle>(library, "_ZN4math26Intersect_CircleWithCircleERKNS_7DPOINT2EdS2_dPS0_S3_");
    const auto callsOfImposter = Find<int (*)()>(imposter, "CallsOfImposter");
    if (failures > 0)
    {
        return;
    }
    const Kernel ours(library);
    const Kernel imposters(imposter);
    for (int turn = 0; turn < 3; ++turn)
    {
        const int callsAtFirst = callsOfImposter();
        Expect(imposters.IsDoneAtFirst(), "the imposter answers with its own classes");
        const int callsBefore = callsOfImposter();
        Expect(callsBefore == callsAtFirst + 2, "the imposter counts its two calls");

        Expect(!ours.IsDoneAtFirst(), "the library answers with its own classes");
        DPOINT2 centre;
        double radius = 0;
        Expect(circleThrough({0, 0}, {6, 0}, {0, 8}, &centre, &radius), "a right triangle has a circle");
        Expect(std::abs(centre.x - 3) < 1e-12 && std::abs(centre.y - 4) < 1e-12 && std::abs(radius - 5) < 1e-12,
               "its centre is the middle of the hypotenuse");
        DPOINT2 first;
        DPOINT2 second;
        Expect(circleWithCircle({0, 0}, 5, {6, 0}, 5, &first, &second) == 2, "two circles cross twice");
        Expect(std::abs(first.x - 3) < 1e-12 && std::abs(first.y - 4) < 1e-12, "the first point is (3, 4)");
        Expect(callsOfImposter() == callsBefore, "the library calls nothing of the imposter");
    }
}

void OpenInOrder(const char* libraryPath, const char* imposterPath, bool imposterFirst, int scope)
{
    void* library = nullptr;
    if (!imposterFirst)
    {
        library = dlopen(libraryPath, RTLD_NOW | scope);
    }
    void* const imposter = dlopen(imposterPath, RTLD_NOW | RTLD_LOCAL);
    if (imposterFirst)
    {
        library = dlopen(libraryPath, RTLD_NOW | scope);
    }
    if (library == nullptr || imposter == nullptr)
    {
        std::fprintf(stderr, "not opened: %s\n", dlerror());
        ++failures;
        return;
    }
    CallInTurn(library, imposter);
    Expect(dlclose(imposterFirst ? imposter : library) == 0, "the first library is closed");
    Expect(dlclose(imposterFirst ? library : imposter) == 0, "the second library is closed");
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3)
    {
        std::fputs("Usage: both LIBRARY IMPOSTER\n", stderr);
        return 1;
    }
    for (const bool imposterFirst : {false, true, true, false})
    {
        OpenInOrder(argv[1], argv[2], imposterFirst, RTLD_LOCAL);
    }
    // Last, since names that were made global may stay so. The imposter comes first: it does not bind its calls inside
    // itself, so global names of a library before it would be taken for its own.
    OpenInOrder(argv[1], argv[2], true, RTLD_GLOBAL);
    std::printf("%d failures\n", failures);
    return failures == 0 ? 0 : 1;
}
