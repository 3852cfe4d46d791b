#include "CommandLine.h"

#include "Limits.h"

#include "common/Problem.h"
#include "common/Text.h"

#include <cmath>
#include <string_view>

namespace example::tour
{

namespace
{

std::vector<std::string_view> Split(std::string_view text, char separator)
{
    std::vector<std::string_view> parts;
    std::size_t at = 0;
    for (std::size_t next = text.find(separator); next != std::string_view::npos; next = text.find(separator, at))
    {
        parts.push_back(text.substr(at, next - at));
        at = next + 1;
    }
    parts.push_back(text.substr(at));
    return parts;
}

/// The numbers of a list of exactly `count`; `form` tells the user what was expected.
std::vector<double> ParseNumbers(const std::string& option, const std::string& text, char separator, std::size_t count,
                                 const std::string& form)
{
    const std::vector<std::string_view> parts = Split(text, separator);
    std::vector<double> numbers;
    for (const std::string_view part : parts)
    {
        if (const std::optional<double> number = ParseNumber(part))
        {
            numbers.push_back(*number);
        }
    }
    if (parts.size() != count || numbers.size() != count)
    {
        throw Problem(option + " wants " + form + ", not " + Quoted(text));
    }
    return numbers;
}

math::PosRangeD ParseCut(const std::string& text)
{
    const std::vector<double> ends = ParseNumbers("--cut", text, ':', 2, "two positions FROM:TO");
    return math::PosRangeD(ends[0], ends[1]);
}

Beeline ParseBeeline(const std::string& text)
{
    const std::vector<double> numbers = ParseNumbers("--beeline", text, ',', 3, "three numbers X,Y,DEGREES");
    const bool outside = std::abs(numbers[0]) > GreatestCoordinate || std::abs(numbers[1]) > GreatestCoordinate;
    if (outside || std::abs(numbers[2]) > GreatestDegrees)
    {
        throw Problem("--beeline wants coordinates within " + Short(GreatestCoordinate, 0) + " and degrees within " +
                      Short(GreatestDegrees, 0) + ", not " + Quoted(text));
    }
    return {{numbers[0], numbers[1]}, std::remainder(numbers[2], 360.0)};
}

bool TakesValue(const std::string& name)
{
    return name == "--cut" || name == "--beeline" || name == "--svg";
}

/// Takes in an option of which TakesValue() holds.
void SetOption(const std::string& name, const std::string& value, Options& options)
{
    if (name == "--cut")
    {
        options.cut = ParseCut(value);
    }
    else if (name == "--beeline")
    {
        options.beeline = ParseBeeline(value);
    }
    else if (value.empty())
    {
        throw Problem("--svg wants the name of a file");
    }
    else
    {
        options.picture = value;
    }
}

void SetDrawing(const std::string& argument, Options& options)
{
    if (argument.empty() || argument[0] == '-')
    {
        throw Problem("unknown option " + Quoted(argument) + " (--help tells the options)");
    }
    if (!options.drawing.empty())
    {
        throw Problem("one drawing at a time: " + Quoted(options.drawing) + " or " + Quoted(argument) + "?");
    }
    options.drawing = argument;
}

} // namespace

std::string Usage()
{
    return R"(usage: outline_tour DRAWING.dxf [options]

Reads the polylines of a DXF drawing and shows what can be done with outlines: lists them, cuts a piece
out of the first one and carries positions of the piece to a rebuilt outline, shoots a beeline at all
segments, and draws what it found.

A position tells a place on an outline: its integer part is a segment, counted from 0, its fraction
the ratio along that segment.

  --cut FROM:TO           the piece to cut out of the first outline; on a closed outline FROM may
                          lie behind TO, the piece then passes over the seam
  --beeline X,Y,DEGREES   the unbounded straight line through (X, Y) in that direction
  --svg FILE              where the picture goes (default: outline_tour.svg in the working directory)
  --help                  prints this
)";
}

Options ParseCommandLine(const std::vector<std::string>& arguments)
{
    Options options;
    for (std::size_t i = 0; i < arguments.size(); ++i)
    {
        const std::string& argument = arguments[i];
        const std::size_t equals = argument.find('=');
        const std::string name = argument.substr(0, equals);
        if (argument == "--help" || argument == "-h")
        {
            options.help = true;
        }
        else if (!TakesValue(name))
        {
            SetDrawing(argument, options);
        }
        else if (equals != std::string::npos)
        {
            SetOption(name, argument.substr(equals + 1), options);
        }
        else if (i + 1 < arguments.size())
        {
            SetOption(name, arguments[++i], options);
        }
        else
        {
            throw Problem(name + " wants a value");
        }
    }
    if (!options.help && options.drawing.empty())
    {
        throw Problem("no drawing given (--help tells the usage)");
    }
    return options;
}

} // namespace example::tour
