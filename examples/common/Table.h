#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace example
{

/// A table of text: columns as wide as they need to be, the last one set left, the others right.
class Table
{
public:
    explicit Table(std::vector<std::string> headings);

    /// Adds a row; missing cells at its end stay empty.
    void Add(std::vector<std::string> cells);

    void Print(std::ostream& out) const;

private:
    std::vector<std::vector<std::string>> m_rows;
};

} // namespace example
