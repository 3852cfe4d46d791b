#include "Load.h"
#include "RuntimeMath.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

// One hash of all results for every function of the library, over a load that is fixed: no option changes a result.

namespace
{

using namespace math::hashes;

const char* const usage = R"(usage: qormath_result_hashes [OPTION...]

Prints a line for every function of the library: a hash of its results over a fixed load, whether they are `exact`, the
same on every machine, or come from the C `runtime`, which picks its trigonometry by processor, and its name.

  --function NAME       the function NAME only; may be given more than once
  --exact               exact functions only
  --check FILE          print nothing but what differs: FILE holds the lines of all exact functions, and of no other
  --check-names FILE    run nothing: hold the names against FILE, the demangled names that the library exports
  --trace NAME          print a hash for every round of the function NAME, to find those that differ
  --flip-one-bit NAME   flip the lowest bit of one result of the function NAME, to test those who compare
)";

struct Options
{
    std::set<std::string> functions;
    bool exactOnly = false;
    std::string kept;
    std::string exportedNames;
    std::string flipped;
    std::string traced;
};

struct Result
{
    std::string name;
    std::uint64_t hash;
    bool isExact;
    int rounds;
};

std::vector<Load> AllLoads()
{
    std::vector<Load> all;
    for (const auto* loads :
         {&PrimitiveLoads, &PredicateLoads, &KernelLoads, &LineIntersectionLoads, &EllipseIntersectionLoads,
          &SegmentLoads, &PolylineLoads, &RangeLoads, &MapLoads, &MapBuilderLoads})
    {
        all.insert(all.end(), loads->begin(), loads->end());
    }
    std::sort(all.begin(), all.end(), [](const Load& a, const Load& b) { return std::string(a.name) < b.name; });
    return all;
}

/// Every function has random numbers of its own, so that a new one leaves the hashes of the others as they are.
std::uint64_t SeedOf(const std::string& name)
{
    ResultHash hash;
    hash << name;
    return hash.Value();
}

void Trace(const std::string& name)
{
    for (const Load& load : AllLoads())
    {
        Source source(SeedOf(load.name));
        for (int round = 0; load.name == name && round < load.rounds; ++round)
        {
            ResultHash hash;
            source.BeginRound();
            load.run(source, hash);
            std::printf("%d %016" PRIx64 "\n", round, hash.Value());
        }
    }
}

Result Run(const Load& load, bool isFlipped)
{
    Source source(SeedOf(load.name));
    ResultHash hash;
    if (isFlipped)
    {
        hash.FlipOneBitOf(1000);
    }
    const std::uint64_t callsBefore = RuntimeMathCalls();
    for (int round = 0; round < load.rounds; ++round)
    {
        source.BeginRound();
        load.run(source, hash);
    }
    return {load.name, hash.Value(), RuntimeMathCalls() == callsBefore, load.rounds};
}

std::vector<Result> RunAll(const Options& options)
{
    std::vector<Result> results;
    for (const Load& load : AllLoads())
    {
        if (options.functions.empty() || options.functions.count(load.name) != 0)
        {
            results.push_back(Run(load, options.flipped == load.name));
        }
    }
    return results;
}

std::string Digits(std::uint64_t hash)
{
    char buffer[20];
    std::snprintf(buffer, sizeof buffer, "%016" PRIx64, hash);
    return buffer;
}

std::string LineOf(const Result& result)
{
    return Digits(result.hash) + (result.isExact ? " exact   " : " runtime ") + result.name;
}

std::ifstream Opened(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
    {
        throw std::runtime_error("cannot read " + path);
    }
    return file;
}

/// The lines of a file of hashes by the name of their functions; comments begin with #.
std::map<std::string, std::string> KeptLines(const std::string& path)
{
    std::map<std::string, std::string> lines;
    std::ifstream file = Opened(path);
    for (std::string line; std::getline(file, line);)
    {
        const std::size_t nameAt = std::string("0123456789abcdef exact   ").size();
        if (line.size() > nameAt && line.front() != '#')
        {
            lines[line.substr(nameAt)] = line;
        }
    }
    return lines;
}

bool Complain(const std::string& what, const std::string& name)
{
    std::printf("%s: %s\n", what.c_str(), name.c_str());
    return false;
}

bool Check(const Options& options)
{
    std::map<std::string, std::string> kept = KeptLines(options.kept);
    bool isRight = true;
    int count = 0;
    for (const Result& result : RunAll(options))
    {
        const auto found = kept.find(result.name);
        const bool isKept = found != kept.end();
        if (!result.isExact && isKept)
        {
            isRight = Complain("calls the C runtime, and is kept as exact", result.name);
        }
        else if (result.isExact && !isKept)
        {
            isRight = Complain("exact, and not kept", result.name);
        }
        else if (isKept && found->second != LineOf(result))
        {
            isRight = Complain("differs from the kept hash", result.name);
        }
        count += isKept ? 1 : 0;
        kept.erase(result.name);
    }
    if (options.functions.empty())
    {
        for (const auto& [name, line] : kept)
        {
            isRight = Complain("kept, and not run", name);
        }
    }
    std::printf("%d hashes compared with %s\n", count, options.kept.c_str());
    return isRight;
}

void ReplaceAll(std::string& text, const std::string& part, const std::string& replacement)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
    {
        text.replace(at, part.size(), replacement);
    }
}

/// A demangled name as the loads have it: without the namespace and without the allocators of lists.
std::string Shortened(std::string name)
{
    ReplaceAll(name, "math::", "");
    for (const std::string element : {"int", "double", "DPOINT2", "PosRangeD", "std::pair<double, double>"})
    {
        const bool endsInBracket = element.back() == '>';
        ReplaceAll(name, ", std::allocator<" + element + (endsInBracket ? " >" : ">") + " >", ">");
    }
    return name;
}

bool IsFunctionOfOurs(const std::string& name)
{
    for (const std::string beginning : {"std::", "typeinfo ", "vtable "})
    {
        if (name.rfind(beginning, 0) == 0)
        {
            return false;
        }
    }
    return !name.empty();
}

bool CheckNames(const Options& options)
{
    bool isRight = true;
    std::set<std::string> names;
    for (const Load& load : AllLoads())
    {
        if (!names.insert(load.name).second)
        {
            isRight = Complain("has two loads", load.name);
        }
    }
    const std::size_t count = names.size();
    std::ifstream file = Opened(options.exportedNames);
    for (std::string line; std::getline(file, line);)
    {
        if (IsFunctionOfOurs(line) && names.erase(Shortened(line)) == 0)
        {
            isRight = Complain("exported, and has no load", line);
        }
    }
    for (const std::string& name : names)
    {
        isRight = Complain("has a load, and is not exported", name);
    }
    std::printf("%zu functions have a load\n", count);
    return isRight;
}

void Print(const Options& options)
{
    std::int64_t rounds = 0;
    int exactCount = 0;
    const std::vector<Result> results = RunAll(options);
    for (const Result& result : results)
    {
        if (result.isExact || !options.exactOnly)
        {
            std::printf("%s\n", LineOf(result).c_str());
        }
        rounds += result.rounds;
        exactCount += result.isExact ? 1 : 0;
    }
    std::printf("# %zu functions, %d of them exact, %" PRId64 " rounds\n", results.size(), exactCount, rounds);
}

Options Parsed(int argc, char** argv)
{
    Options options;
    const std::map<std::string, std::string*> takeOneValue = {{"--check", &options.kept},
                                                              {"--check-names", &options.exportedNames},
                                                              {"--flip-one-bit", &options.flipped},
                                                              {"--trace", &options.traced}};
    for (int i = 1; i < argc; ++i)
    {
        const std::string option = argv[i];
        if (option == "--exact")
        {
            options.exactOnly = true;
            continue;
        }
        const auto found = takeOneValue.find(option);
        if ((found == takeOneValue.end() && option != "--function") || i + 1 == argc)
        {
            throw std::runtime_error(usage);
        }
        const std::string value = argv[++i];
        if (found == takeOneValue.end())
        {
            options.functions.insert(value);
        }
        else
        {
            *found->second = value;
        }
    }
    return options;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        const Options options = Parsed(argc, argv);
        if (!options.exportedNames.empty())
        {
            return CheckNames(options) ? EXIT_SUCCESS : EXIT_FAILURE;
        }
        if (!options.kept.empty())
        {
            return Check(options) ? EXIT_SUCCESS : EXIT_FAILURE;
        }
        if (!options.traced.empty())
        {
            Trace(options.traced);
            return EXIT_SUCCESS;
        }
        Print(options);
        return EXIT_SUCCESS;
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "%s\n", error.what());
        return EXIT_FAILURE;
    }
}
