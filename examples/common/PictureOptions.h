#pragma once

#include <optional>
#include <string>
#include <vector>

namespace example
{

/// Reads the arguments of a program whose only options are --svg FILE and --help.
/// @param picture  the file that is written unless --svg tells another
/// @return the file that is wanted, or nothing if the user asked for help
/// @throw Problem for anything that is not understood
std::optional<std::string> ParsePictureOptions(const std::vector<std::string>& arguments, const std::string& picture);

} // namespace example
