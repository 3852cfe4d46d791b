#include "Report.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <set>
#include <sstream>
#include <stdexcept>

namespace math::accuracy
{

namespace
{

std::string Short(double value)
{
    char buffer[32];
    std::snprintf(buffer, sizeof(buffer), value != 0.0 && (value < 0.01 || value >= 1e5) ? "%.1e" : "%.3g", value);
    return buffer;
}

std::string Trimmed(const std::string& text)
{
    const std::size_t first = text.find_first_not_of(' ');
    return first == std::string::npos ? "" : text.substr(first, text.find_last_not_of(' ') - first + 1);
}

bool Exceeds(const Row& row, const Bound& bound, double tighten)
{
    const auto expected = static_cast<double>(row.expected);
    // Curves that miss each other have nothing to compare: there it is only what is told without being there that counts.
    const bool hasNothing = row.stratum.rfind("missing", 0) == 0;
    const bool isEmpty = row.compared == 0 && bound.missedShare < 1.0 && !hasNothing;
    return isEmpty || !(row.worstConditioned <= bound.conditioned / tighten) ||
           static_cast<double>(row.missed) > bound.missedShare / tighten * expected ||
           static_cast<double>(row.extra) > bound.extraShare / tighten * expected;
}

} // namespace

void Row::Add(const Real& error, const Real& unitSize, double condition, const Describe& describe)
{
    ++compared;
    const double units = error.Sign() == 0 ? 0.0 : (error / unitSize).ToDouble();
    const double conditioned = units / condition;
    if (std::isnan(conditioned))
    {
        CountMissed(describe);
        return;
    }
    worstUnits = std::max(worstUnits, units);
    worstAbsolute = std::max(worstAbsolute, error.ToDouble());
    if (conditioned > worstConditioned)
    {
        worstConditioned = conditioned;
        worstInput = describe();
    }
}

void Row::CountMissed(const Describe& describe)
{
    if (++missed == 1)
    {
        exampleMissed = describe();
    }
}

void Row::CountExtra(const Describe& describe)
{
    if (++extra == 1)
    {
        exampleExtra = describe();
    }
}

Bounds::Bounds(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
    {
        throw std::runtime_error("cannot read " + path);
    }
    for (std::string line; std::getline(file, line);)
    {
        if (line.empty() || line[0] == '#')
        {
            continue;
        }
        std::istringstream text(line);
        std::vector<std::string> fields;
        for (std::string field; std::getline(text, field, fields.size() < 6 ? ';' : '\n');)
        {
            fields.push_back(Trimmed(field)); // The reason is the rest of the line.
        }
        if (fields.size() != 7)
        {
            throw std::runtime_error("seven fields are expected in: " + line);
        }
        entries[{fields[0], fields[1]}] = {std::stod(fields[2]), std::stod(fields[3]), std::stod(fields[4]), fields[5],
                                           fields[6]};
    }
}

const Bound* Bounds::Find(const Row& row) const
{
    for (const std::string& stratum : {row.stratum, std::string("*")})
    {
        const auto entry = entries.find({row.function, stratum});
        if (entry != entries.end())
        {
            return &entry->second;
        }
    }
    return nullptr;
}

std::vector<std::string> Bounds::WithoutRow(const std::vector<Row>& rows) const
{
    std::vector<std::string> without;
    for (const auto& [key, bound] : entries)
    {
        const bool isUsed =
            std::any_of(rows.begin(), rows.end(), [&, &used = bound](const Row& row) { return Find(row) == &used; });
        if (!isUsed)
        {
            without.push_back(key.first + " / " + key.second);
        }
    }
    return without;
}

void Run::Stratum(const std::string& function, const std::string& stratum, const std::string& unit, int cases,
                  const std::function<void(Draw&, Row&)>& measure)
{
    if (!only.empty() && function != only)
    {
        return;
    }
    Row row;
    row.function = function;
    row.stratum = stratum;
    row.unit = unit;
    Draw draw(function + "/" + stratum);
    const long rounds = std::max(1L, static_cast<long>(cases * load));
    for (row.cases = 0; row.cases < rounds; ++row.cases)
    {
        measure(draw, row);
    }
    rows.push_back(row);
}

namespace
{

/// The row of a function that comes nearest to its bound, with the counts of all of its rows.
struct Summary
{
    Row nearest;
    double bound = 0.0;
    long cases = 0;
    long expected = 0;
    long missed = 0;
    long extra = 0;

    double Share() const
    {
        return nearest.worstConditioned / bound;
    }

    void Take(const Row& row, const Bound& ofRow)
    {
        if (cases == 0 || row.worstConditioned / ofRow.conditioned > Share())
        {
            nearest = row;
            bound = ofRow.conditioned;
        }
        cases += row.cases;
        expected += row.expected;
        missed += row.missed;
        extra += row.extra;
    }
};

std::string Counts(long expected, long missed, long extra)
{
    if (expected == 0)
    {
        return " | |";
    }
    return std::to_string(missed) + " of " + std::to_string(expected) + " | " + std::to_string(extra) + " |";
}

void PrintSummaries(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds)
{
    std::vector<std::string> order;
    std::map<std::string, Summary> summaries;
    for (const Row& row : rows)
    {
        if (summaries.count(row.function) == 0)
        {
            order.push_back(row.function);
        }
        if (const Bound* bound = bounds.Find(row))
        {
            summaries[row.function].Take(row, *bound);
        }
    }
    out << "\n## A line for each function\n\nThe input that comes nearest to its bound, and all missed and extra "
           "points.\n\n"
           "| function | cases | worst / condition | bound | unit | nearest to the bound | missed | extra |\n"
           "|---|--:|--:|--:|---|---|--:|--:|\n";
    for (const std::string& function : order)
    {
        const Summary& summary = summaries[function];
        out << "| " << function << " | " << summary.cases << " | " << Short(summary.nearest.worstConditioned) << " | "
            << Short(summary.bound) << " | " << summary.nearest.unit << " | " << summary.nearest.stratum << " | "
            << Counts(summary.expected, summary.missed, summary.extra) << '\n';
    }
}

void PrintRows(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds)
{
    out << "\n## All inputs\n\n"
           "| function | input | unit | worst, units | worst / condition | bound | worst, absolute | missed | extra |\n"
           "|---|---|---|--:|--:|--:|--:|--:|--:|\n";
    for (const Row& row : rows)
    {
        const Bound* bound = bounds.Find(row);
        out << "| " << row.function << " | " << row.stratum << " | " << row.unit << " | " << Short(row.worstUnits)
            << " | " << Short(row.worstConditioned) << " | " << (bound != nullptr ? Short(bound->conditioned) : "none")
            << " | " << Short(row.worstAbsolute) << " | " << Counts(row.expected, row.missed, row.extra) << '\n';
    }
}

std::string Percent(double share)
{
    return share == 0.0 ? "0" : Short(share * 100.0) + "%";
}

void PrintReasons(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds)
{
    out << "\n## Reasons of the bounds\n\n"
           "| function | input | bound | missed | extra | basis | reason |\n|---|---|--:|--:|--:|---|---|\n";
    std::vector<const Bound*> told;
    for (const Row& row : rows)
    {
        const Bound* bound = bounds.Find(row);
        if (bound == nullptr || std::find(told.begin(), told.end(), bound) != told.end())
        {
            continue;
        }
        told.push_back(bound);
        Row others = row;
        others.stratum = "*";
        out << "| " << row.function << " | " << (bounds.Find(others) == bound ? "in general" : row.stratum) << " | "
            << Short(bound->conditioned) << " | " << Percent(bound->missedShare) << " | " << Percent(bound->extraShare)
            << " | " << bound->basis << " | " << bound->reason << " |\n";
    }
}

} // namespace

void PrintMarkdown(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds)
{
    PrintSummaries(out, rows, bounds);
    PrintRows(out, rows, bounds);
    PrintReasons(out, rows, bounds);
}

void PrintWorst(std::ostream& out, const std::vector<Row>& rows)
{
    for (const Row& row : rows)
    {
        out << row.function << " / " << row.stratum << ": " << Short(row.worstUnits) << " units, "
            << Short(row.worstConditioned) << " by condition, " << Short(row.worstAbsolute) << " absolute\n    "
            << row.worstInput << '\n';
        if (row.missed > 0)
        {
            out << "    missed " << row.missed << " of " << row.expected << ", first at " << row.exampleMissed << '\n';
        }
        if (row.extra > 0)
        {
            out << "    extra " << row.extra << ", first at " << row.exampleExtra << '\n';
        }
    }
}

int CheckBounds(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds, double tighten)
{
    int failures = 0;
    for (const Row& row : rows)
    {
        const Bound* bound = bounds.Find(row);
        if (bound != nullptr && !Exceeds(row, *bound, tighten))
        {
            continue;
        }
        ++failures;
        out << row.function << " / " << row.stratum << ": "
            << (bound == nullptr ? "has no bound" : "exceeds its bound " + Short(bound->conditioned / tighten)) << '\n';
        PrintWorst(out, {row});
    }
    return failures;
}

namespace
{

std::ifstream Opened(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
    {
        throw std::runtime_error("cannot read " + path);
    }
    return file;
}

/// A demangled name without its namespace and its arguments; a constructor is told by its class.
std::string FunctionOf(const std::string& demangled)
{
    const std::string space = "math::";
    std::string name = demangled.substr(0, demangled.find('('));
    name = name.rfind(space, 0) == 0 ? name.substr(space.size()) : name;
    const std::size_t at = name.find("::");
    return at != std::string::npos && name.substr(0, at) == name.substr(at + 2) ? name.substr(0, at) : name;
}

std::set<std::string> ExportedFunctions(const std::string& path)
{
    std::set<std::string> names;
    std::ifstream file = Opened(path);
    for (std::string line; std::getline(file, line);)
    {
        const bool isOurs =
            line.rfind("std::", 0) != 0 && line.rfind("typeinfo ", 0) != 0 && line.rfind("vtable ", 0) != 0;
        if (isOurs && !line.empty())
        {
            names.insert(FunctionOf(line));
        }
    }
    return names;
}

bool IsMeant(const std::string& entry, const std::string& name)
{
    return entry.back() == '*' ? name.rfind(entry.substr(0, entry.size() - 1), 0) == 0 : name == entry;
}

} // namespace

int CheckNames(std::ostream& out, const std::vector<Row>& rows, const std::string& exportedNames,
               const std::string& leftOut)
{
    std::set<std::string> measured;
    for (const Row& row : rows)
    {
        measured.insert(row.function.substr(0, row.function.find_first_of(", ")));
    }
    std::vector<std::string> entries;
    std::ifstream file = Opened(leftOut);
    for (std::string line; std::getline(file, line);)
    {
        if (!line.empty() && line[0] != '#')
        {
            entries.push_back(Trimmed(line.substr(0, line.find(';'))));
        }
    }
    int failures = 0;
    const auto complain = [&](const std::string& name, const char* what) {
        ++failures;
        out << name << ": " << what << '\n';
    };
    const std::set<std::string> exported = ExportedFunctions(exportedNames);
    for (const std::string& name : exported)
    {
        const bool isLeftOut =
            std::any_of(entries.begin(), entries.end(), [&](const std::string& entry) { return IsMeant(entry, name); });
        if (isLeftOut == (measured.count(name) != 0))
        {
            complain(name, isLeftOut ? "is measured, and told to be left out" : "is not measured");
        }
    }
    for (const std::string& entry : entries)
    {
        if (std::none_of(exported.begin(), exported.end(),
                         [&](const std::string& name) { return IsMeant(entry, name); }))
        {
            complain(entry, "is left out, and not exported");
        }
    }
    for (const std::string& name : measured)
    {
        if (exported.count(name) == 0)
        {
            complain(name, "is measured, and not exported");
        }
    }
    out << measured.size() << " of " << exported.size() << " functions are measured\n";
    return failures;
}

} // namespace math::accuracy
