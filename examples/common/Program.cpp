#include "Program.h"

#include "Problem.h"

#include <Standard_Failure.hxx>

#include <exception>
#include <iostream>

namespace example
{

int RunProgram(const std::string& name, int argc, char** argv,
               const std::function<void(const std::vector<std::string>&)>& run)
{
    const auto fail = [&](const std::string& what) {
        std::cerr << name << ": " << what << "\n";
        return 1;
    };
    try
    {
        run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
        return 0;
    }
    catch (const std::exception& problem)
    {
        return fail(problem.what());
    }
    catch (const Standard_Failure& failure) // what the geometry kernel raises is no std::exception
    {
        return fail(failure.GetMessageString());
    }
}

void FlushReport()
{
    if (!std::cout.flush())
    {
        throw Problem("the report can't be written to standard output");
    }
}

} // namespace example
