// The story of a position map: one outline is cut, joined to another, extended, shortened, renumbered and turned, and
// the map follows.

#include "Picture.h"
#include "Report.h"
#include "Story.h"

#include "common/FileWriter.h"
#include "common/PictureOptions.h"
#include "common/Program.h"

#include <iostream>
#include <optional>
#include <string>
#include <vector>

namespace
{

namespace story = example::story;

constexpr const char* Usage = R"(usage: map_story [options]

Follows a position map through six edits of an outline: lists the joints of the map after each, and what
becomes of seven places, and draws the maps as ribbons between the numbering of the beginning and that of now.

  --svg FILE   where the picture goes (default: map_story.svg in the working directory)
  --help       prints this
)";

void Run(const std::vector<std::string>& arguments)
{
    const std::optional<std::string> picture = example::ParsePictureOptions(arguments, "map_story.svg");
    if (picture)
    {
        const std::vector<story::Step> steps = story::TellStory();
        const std::vector<story::Mark> marks = story::Marks();
        example::ReplaceFile(*picture, story::DrawPicture(steps, marks));
        story::PrintReport(steps, marks, std::cout);
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
    return example::RunProgram("map_story", argc, argv, Run);
}
