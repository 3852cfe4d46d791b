#include "Text.h"

#include <charconv>
#include <cmath>
#include <cstdio>

namespace example
{

namespace
{

constexpr std::size_t LongestQuotation = 120;

std::string_view WithoutPlus(std::string_view text)
{
    const bool signedTwice = text.size() > 1 && (text[1] == '-' || text[1] == '+');
    return !text.empty() && text[0] == '+' && !signedTwice ? text.substr(1) : text;
}

template <typename Value>
std::optional<Value> ParseWhole(std::string_view text)
{
    const std::string_view digits = WithoutPlus(Trimmed(text));
    Value value{};
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value);
    if (error != std::errc() || end != digits.data() + digits.size())
    {
        return std::nullopt;
    }
    return value;
}

} // namespace

std::string_view Trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos)
    {
        return {};
    }
    return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

std::optional<double> ParseNumber(std::string_view text)
{
    const std::optional<double> value = ParseWhole<double>(text);
    return value && std::isfinite(*value) ? value : std::nullopt;
}

std::optional<int> ParseInteger(std::string_view text)
{
    return ParseWhole<int>(text);
}

std::string Fixed(double value, int decimals)
{
    char buffer[400]; // the greatest double has 309 digits before the point
    std::snprintf(buffer, sizeof buffer, "%.*f", decimals, value);
    std::string text = buffer;
    if (text[0] == '-' && text.find_first_not_of("-0.") == std::string::npos)
    {
        text.erase(0, 1);
    }
    return text;
}

std::string Short(double value, int decimals)
{
    std::string text = Fixed(value, decimals);
    if (text.find('.') != std::string::npos)
    {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.')
        {
            text.pop_back();
        }
    }
    return text;
}

std::string Quoted(std::string_view text)
{
    std::string printable;
    for (const char c : text.substr(0, LongestQuotation))
    {
        const auto code = static_cast<unsigned char>(c);
        printable += code < 0x20 || code == 0x7f ? '?' : c;
    }
    return "'" + printable + (text.size() > LongestQuotation ? "...'" : "'");
}

std::string Counted(std::size_t count, const std::string& noun)
{
    return std::to_string(count) + " " + noun + (count == 1 ? "" : "s");
}

} // namespace example
