#pragma once

#include <string>

namespace example
{

/// Puts text into a file in one go: it is written beside the file first and then takes its name, so that nobody ever
/// finds half of it, and an earlier file stays as it was if anything goes wrong.
/// @throw Problem if the file can't be written
void ReplaceFile(const std::string& path, const std::string& text);

} // namespace example
