#include "Table.h"

#include <algorithm>
#include <utility>

namespace example
{

Table::Table(std::vector<std::string> headings)
{
    m_rows.push_back(std::move(headings));
}

void Table::Add(std::vector<std::string> cells)
{
    cells.resize(m_rows.front().size());
    m_rows.push_back(std::move(cells));
}

void Table::Print(std::ostream& out) const
{
    const std::size_t columns = m_rows.front().size();
    std::vector<std::size_t> widths(columns, 0);
    for (const std::vector<std::string>& row : m_rows)
    {
        for (std::size_t i = 0; i < columns; ++i)
        {
            widths[i] = std::max(widths[i], row[i].size());
        }
    }
    for (const std::vector<std::string>& row : m_rows)
    {
        std::string line;
        for (std::size_t i = 0; i < columns; ++i)
        {
            const std::string padding(widths[i] - row[i].size(), ' ');
            line += "  " + (i + 1 < columns ? padding + row[i] : row[i]);
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

} // namespace example
