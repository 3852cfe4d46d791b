#pragma once

#include <functional>
#include <string>
#include <vector>

namespace example
{

/// The frame of a program's main(): hands the arguments on and turns whatever is thrown into one line on standard error.
/// @param name  the program's, with which that line begins
/// @param run   receives the arguments that follow the program's name
/// @return what main() returns
int RunProgram(const std::string& name, int argc, char** argv,
               const std::function<void(const std::vector<std::string>&)>& run);

/// Makes sure that all of standard output has arrived.
/// @throw Problem if it hasn't
void FlushReport();

} // namespace example
