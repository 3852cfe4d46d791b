#include "DxfGroups.h"

#include "common/Problem.h"
#include "common/Text.h"

namespace example::tour
{

namespace
{

/// Hands out the lines of a text; a line ends with LF or CR LF.
class LineReader
{
public:
    explicit LineReader(std::string_view text) : m_rest(text)
    {
    }

    bool AtEnd() const
    {
        return m_rest.empty();
    }

    std::size_t LineNumber() const
    {
        return m_lineNumber;
    }

    std::string_view Next()
    {
        const std::size_t end = m_rest.find('\n');
        const std::string_view line = m_rest.substr(0, end);
        m_rest.remove_prefix(end == std::string_view::npos ? m_rest.size() : end + 1);
        ++m_lineNumber;
        return line;
    }

private:
    std::string_view m_rest;
    std::size_t m_lineNumber = 0;
};

std::string_view WithoutByteOrderMark(std::string_view text)
{
    constexpr std::string_view mark = "\xEF\xBB\xBF";
    return text.substr(0, mark.size()) == mark ? text.substr(mark.size()) : text;
}

void RefuseForeignFormats(std::string_view text)
{
    if (Trimmed(text).empty())
    {
        throw Problem("the file is empty");
    }
    constexpr std::string_view binary = "AutoCAD Binary DXF";
    if (text.substr(0, binary.size()) == binary)
    {
        throw Problem("this is a binary DXF file; save it as ASCII DXF");
    }
}

DxfGroup ReadGroup(LineReader& lines, bool isFirst)
{
    const std::string_view codeText = lines.Next();
    const std::optional<int> code = ParseInteger(codeText);
    if (!code)
    {
        throw Problem(isFirst ? std::string("this is no DXF file")
                              : "line " + std::to_string(lines.LineNumber()) + " holds " + Quoted(Trimmed(codeText)) +
                                    " where a group code belongs");
    }
    const std::size_t line = lines.LineNumber();
    return {*code, Trimmed(lines.Next()), line};
}

} // namespace

std::vector<DxfGroup> SplitIntoGroups(std::string_view text)
{
    text = WithoutByteOrderMark(text);
    RefuseForeignFormats(text);
    LineReader lines(text);
    std::vector<DxfGroup> groups;
    bool isFirst = true;
    while (!lines.AtEnd())
    {
        const DxfGroup group = ReadGroup(lines, isFirst);
        if (group.code == DxfStart && group.value == "EOF")
        {
            return groups;
        }
        if (group.code != DxfComment)
        {
            if (isFirst && !(group.code == DxfStart && group.value == "SECTION"))
            {
                throw Problem("this is no DXF file");
            }
            isFirst = false;
            groups.push_back(group);
        }
    }
    throw Problem(isFirst ? "this is no DXF file" : "the drawing ends too early, its end mark is missing");
}

} // namespace example::tour
