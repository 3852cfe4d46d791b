#include "PictureOptions.h"

#include "Problem.h"
#include "Text.h"

namespace example
{

std::optional<std::string> ParsePictureOptions(const std::vector<std::string>& arguments, const std::string& picture)
{
    const std::string option = "--svg";
    std::string chosen = picture;
    bool help = false;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        const std::string& argument = arguments[i];
        if (argument == "--help" || argument == "-h")
        {
            help = true;
        }
        else if (argument.compare(0, option.size() + 1, option + "=") == 0)
        {
            chosen = argument.substr(option.size() + 1);
        }
        else if (argument != option)
        {
            throw Problem("unknown argument " + Quoted(argument) + " (--help tells the options)");
        }
        else if (++i < arguments.size())
        {
            chosen = arguments[i];
        }
        else
        {
            throw Problem(option + " wants a value");
        }
        if (chosen.empty())
        {
            throw Problem(option + " wants the name of a file");
        }
    }
    return help ? std::nullopt : std::optional(chosen);
}

} // namespace example
