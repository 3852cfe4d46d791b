// The gallery of curves: every pair of kinds that the Intersect_ family serves, and where the two meet.

#include "Gallery.h"
#include "Picture.h"
#include "Report.h"

#include "common/FileWriter.h"
#include "common/PictureOptions.h"
#include "common/Program.h"

#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace
{

namespace gallery = example::gallery;

constexpr const char* Usage = R"(usage: curve_gallery [options]

Puts every pair of curve kinds through the Intersect_ family: apart, touching, crossing, overlapping, one
inside the other. Lists what is returned and draws it, a tile for each.

  --svg FILE   where the picture goes (default: curve_gallery.svg in the working directory)
  --help       prints this
)";

void Run(const std::vector<std::string>& arguments)
{
    const std::optional<std::string> picture = example::ParsePictureOptions(arguments, "curve_gallery.svg");
    if (picture)
    {
        const std::vector<gallery::Tile> tiles = gallery::Gallery();
        example::ReplaceFile(*picture, gallery::DrawPicture(tiles));
        gallery::PrintReport(tiles, std::cout);
        std::cout << "\nPicture: " << *picture << "\n";
    }
    else
    {
        std::cout << Usage;
    }
    example::FlushReport();
}

} // namespace

int main(int argc, char** argv)
{
    return example::RunProgram("curve_gallery", argc, argv, Run);
}
