// A tour of the library with a real drawing: outlines, positions carried through maps, a beeline, a picture.

#include "CommandLine.h"
#include "Picture.h"
#include "Report.h"

#include "common/FileWriter.h"
#include "common/Program.h"

#include <iostream>
#include <string>
#include <vector>

namespace
{

namespace tour = example::tour;

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
        example::ReplaceFile(options.picture, tour::DrawPicture(tour));
        tour::PrintReport(tour, std::cout);
        std::cout << "\nPicture: " << options.picture << "\n";
    }
    example::FlushReport();
}

} // namespace

int main(int argc, char** argv)
{
    return example::RunProgram("outline_tour", argc, argv, Run);
}
