#include "Cases.h"
#include "Report.h"

#include <mpfr.h>

#include <cstdlib>
#include <cstring>
#include <exception>
#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace
{

struct Options
{
    double load = 1.0;
    double tighten = 1.0;
    std::string bounds;
    std::string exportedNames;
    std::string leftOut;
    std::string only;
    bool check = false;
    bool markdown = false;
    bool isValid = true;
};

void PrintUsage(std::ostream& out)
{
    out << "usage: qormath_accuracy [--load N] [--only FUNCTION] [--check BOUNDS [--tighten N] [--exported NAMES "
           "--left-out "
           "LIST] | --markdown BOUNDS]\n"
           "  Without an action: the worst error of every function and the input that shows it.\n"
           "  --load N           N times the least number of inputs\n"
           "  --only FUNCTION    this function alone\n"
           "  --check BOUNDS     fails when a row of the table exceeds its bound in the file\n"
           "  --tighten N        divides all bounds, to see the check fail\n"
           "  --exported NAMES   fails when one of these names, which the library exports, has no row\n"
           "  --left-out LIST    and is not in this list\n"
           "  --markdown BOUNDS  prints the table for the documentation\n";
}

Options Read(int count, char** arguments)
{
    Options options;
    for (int i = 1; i < count; i += 2)
    {
        const std::string name = arguments[i];
        if (i + 1 == count)
        {
            options.isValid = false;
            break;
        }
        const std::string value = arguments[i + 1];
        if (name == "--load" || name == "--tighten")
        {
            double& number = name == "--load" ? options.load : options.tighten;
            number = std::strtod(value.c_str(), nullptr);
            options.isValid = options.isValid && number > 0.0;
        }
        else if (name == "--exported" || name == "--left-out")
        {
            (name == "--exported" ? options.exportedNames : options.leftOut) = value;
        }
        else if (name == "--only")
        {
            options.only = value;
        }
        else if (name == "--check" || name == "--markdown")
        {
            (name == "--check" ? options.check : options.markdown) = true;
            options.bounds = value;
        }
        else
        {
            options.isValid = false;
        }
    }
    return options;
}

int Act(const Options& options)
{
    using namespace math::accuracy;
    const std::optional<Bounds> bounds =
        options.bounds.empty() ? std::nullopt : std::make_optional<Bounds>(options.bounds);
    Run run(options.load, options.only);
    MeasureAngles(run);
    MeasureDistances(run);
    MeasureConstructions(run);
    MeasureEquations(run);
    MeasureLinesAndCircles(run);
    MeasureEllipses(run);
    MeasureSegments(run);

    if (options.markdown)
    {
        PrintMarkdown(std::cout, run.Rows(), *bounds);
        return EXIT_SUCCESS;
    }
    if (options.check)
    {
        int failures = CheckBounds(std::cout, run.Rows(), *bounds, options.tighten);
        for (const std::string& bound :
             options.only.empty() ? bounds->WithoutRow(run.Rows()) : std::vector<std::string>())
        {
            std::cout << bound << ": has a bound, and is not measured\n";
            ++failures;
        }
        if (!options.exportedNames.empty())
        {
            failures += CheckNames(std::cout, run.Rows(), options.exportedNames, options.leftOut);
        }
        std::cout << run.Rows().size() << " rows, " << failures << " beyond their bounds\n";
        return failures == 0 && !run.Rows().empty() ? EXIT_SUCCESS : EXIT_FAILURE;
    }
    PrintWorst(std::cout, run.Rows());
    return EXIT_SUCCESS;
}

} // namespace

int main(int count, char** arguments)
{
    const Options options = Read(count, arguments);
    if (!options.isValid)
    {
        PrintUsage(std::cerr);
        return 2;
    }
    int result = EXIT_FAILURE;
    try
    {
        result = Act(options);
    }
    catch (const std::exception& failure)
    {
        std::cerr << "qormath_accuracy: " << failure.what() << '\n';
    }
    mpfr_free_cache();
    return result;
}
