// Measures the library beside others and beside the shortest closed forms: all are fed the same inputs, and their
// answers are compared before anything is timed.
//
// Usage: qormath_compare [--agreement-only] [options of Google Benchmark]

#include "Cases.h"
#include "Contest.h"

#include <cstdio>
#include <cstring>

namespace
{

void AddAll()
{
    bench::AddLines();
    bench::AddCircles();
    bench::AddEllipses();
    bench::AddEquations();
    bench::AddSegments();
    bench::AddOutlines();
    bench::AddMaps();
    bench::AddBuilders();
#ifdef BENCH_LIB2GEOM
    bench::AddLib2geom();
#endif
#ifdef BENCH_CGAL
    bench::AddCgal();
#endif
#ifdef BENCH_BOOST
    bench::AddBoostGeometry();
#endif
#ifdef BENCH_GEOS
    bench::AddGeos();
#endif
#ifdef BENCH_GSL
    bench::AddGsl();
#endif
}

} // namespace

int main(int argc, char** argv)
{
    const bool isAgreementOnly = argc > 1 && std::strcmp(argv[1], "--agreement-only") == 0;
    AddAll();
    if (!bench::AllAgree())
    {
        std::fputs("answers differ: nothing is timed\n", stderr);
        return 1;
    }
    if (isAgreementOnly)
    {
        return 0;
    }
    bench::RegisterAll();
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
    {
        return 1;
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
