#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace example
{

/// The finite number that the whole text stands for, in the notation of C whatever the locale; blanks around it and a
/// leading plus sign are allowed.
std::optional<double> ParseNumber(std::string_view text);

/// The same for a whole number.
std::optional<int> ParseInteger(std::string_view text);

/// Without the blanks at both ends.
std::string_view Trimmed(std::string_view text);

/// A number with a fixed count of decimals; what rounds to zero has no sign.
std::string Fixed(double value, int decimals);

/// A number with at most `decimals` decimals and no zeros behind: 3.25, 17.5, 4.
std::string Short(double value, int decimals);

/// Foreign text made fit for one line of a message: in quotes, control characters replaced, cut if it is long.
std::string Quoted(std::string_view text);

/// "1 segment", "2 segments".
std::string Counted(std::size_t count, const std::string& noun);

} // namespace example
