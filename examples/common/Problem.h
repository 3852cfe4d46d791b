#pragma once

#include <stdexcept>
#include <string>

namespace example
{

/// Something the user can put right; its text is what the program prints before it ends.
class Problem : public std::runtime_error
{
public:
    explicit Problem(const std::string& text) : std::runtime_error(text)
    {
    }
};

} // namespace example
