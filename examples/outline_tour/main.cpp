// A tour of the library with a real drawing: outlines, positions carried through maps, a beeline, a picture.

#include "CommandLine.h"
#include "FileWriter.h"
#include "Picture.h"
#include "Problem.h"
#include "Report.h"

#include <Standard_Failure.hxx>

#include <exception>
#include <iostream>
#include <string>
#include <vector>

namespace
{

tour::Tour MakeTour(const tour::Options& options)
{
    tour::Tour tour;
    tour.drawing = tour::ReadDrawing(options.drawing);
    const math::CPolyline& first = tour.drawing.outlines.front();
    const math::PosRangeD cut = tour::ChooseCut(options.cut, first);
    tour.rebuild = tour::RebuildOf(first);
    tour.carrying = tour::CarryPositions(first, cut, tour.rebuild);
    tour.beeline = options.beeline.value_or(tour::DefaultBeeline(first));
    tour.crossings = tour::CrossingsOf(tour.beeline, tour.drawing.outlines);
    return tour;
}

void Run(const std::vector<std::string>& arguments)
{
    const tour::Options options = tour::ParseCommandLine(arguments);
    if (options.help)
    {
        std::cout << tour::Usage();
    }
    else
    {
        const tour::Tour tour = MakeTour(options);
        tour::ReplaceFile(options.picture, tour::DrawPicture(tour));
        tour::PrintReport(tour, std::cout);
        std::cout << "\nPicture: " << options.picture << "\n";
    }
    if (!std::cout.flush())
    {
        throw tour::Problem("the report can't be written to standard output");
    }
}

int Fail(const std::string& what)
{
    std::cerr << "outline_tour: " << what << "\n";
    return 1;
}

} // namespace

int main(int argc, char** argv)
{
    try
    {
        Run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc));
        return 0;
    }
    catch (const std::exception& problem)
    {
        return Fail(problem.what());
    }
    catch (const Standard_Failure& failure) // what the geometry kernel raises is no std::exception
    {
        return Fail(failure.GetMessageString());
    }
}
