#include "Contest.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace bench
{

namespace
{

struct Row
{
    std::string name;
    Description description;
    std::vector<Contender> contenders;
};

std::vector<Row>& Rows()
{
    static std::vector<Row> rows;
    return rows;
}

Row& RowOf(const std::string& name)
{
    for (Row& row : Rows())
    {
        if (row.name == name)
        {
            return row;
        }
    }
    std::fprintf(stderr, "no such case: %s\n", name.c_str());
    std::abort();
}

bool AreNear(double a, double b, double tolerance)
{
    return (std::isnan(a) && std::isnan(b)) || std::abs(a - b) <= tolerance * std::max(1.0, std::abs(a));
}

bool AreTheSameNumbers(const std::vector<double>& a, const std::vector<double>& b, double tolerance)
{
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [tolerance](double first, double second) {
               return AreNear(first, second, tolerance);
           });
}

bool IsAmong(const std::vector<double>& points, double x, double y, double tolerance)
{
    for (std::size_t i = 0; i + 1 < points.size(); i += 2)
    {
        if (AreNear(points[i], x, tolerance) && AreNear(points[i + 1], y, tolerance))
        {
            return true;
        }
    }
    return false;
}

bool AreTheSamePoints(const std::vector<double>& a, const std::vector<double>& b, double tolerance)
{
    for (std::size_t i = 0; i + 1 < a.size(); i += 2)
    {
        if (!IsAmong(b, a[i], a[i + 1], tolerance) || !IsAmong(a, b[i], b[i + 1], tolerance))
        {
            return false;
        }
    }
    return true;
}

bool Agree(const Flat& a, const Flat& b, const Description& description)
{
    if (a.count != b.count)
    {
        return false;
    }
    switch (description.compare)
    {
    case Compare::Points:
        return AreTheSamePoints(a.values, b.values, description.tolerance);
    case Compare::Numbers:
        return AreTheSameNumbers(a.values, b.values, description.tolerance);
    default:
        return true;
    }
}

void Print(const char* who, const Flat& answer)
{
    std::fprintf(stderr, "    %s: %ld:", who, answer.count);
    for (std::size_t i = 0; i < answer.values.size() && i < 16; ++i)
    {
        std::fprintf(stderr, " %.12g", answer.values[i]);
    }
    std::fputs("\n", stderr);
}

bool AgreesWithFirst(const Row& row, const Contender& other)
{
    const Contender& first = row.contenders.front();
    std::size_t differences = 0;
    std::size_t firstDifference = 0;
    for (std::size_t i = 0; i < first.inputs; ++i)
    {
        const Compare compare = row.description.compare;
        if (!Agree(first.answer(i, compare), other.answer(i, compare), row.description))
        {
            firstDifference = differences == 0 ? i : firstDifference;
            ++differences;
        }
    }
    const double share = static_cast<double>(differences) / static_cast<double>(first.inputs);
    if (differences > 0)
    {
        std::fprintf(stderr, "%s: %s differs from %s on %zu of %zu inputs, first on number %zu\n", row.name.c_str(),
                     other.who.c_str(), first.who.c_str(), differences, first.inputs, firstDifference);
    }
    if (share > other.allowedShare)
    {
        Print(first.who.c_str(), first.answer(firstDifference, row.description.compare));
        Print(other.who.c_str(), other.answer(firstDifference, row.description.compare));
        return false;
    }
    return true;
}

Flat FlatList(const std::vector<double>& values)
{
    return {static_cast<long>(values.size()), values};
}

} // namespace

Flat Flatten(const Answer& answer, Compare compare)
{
    Flat flat;
    flat.count = answer.count;
    const int perItem = compare == Compare::Points ? 2 : 1;
    const int size = compare == Compare::Count ? 0 : perItem * std::max(0, answer.count);
    flat.values.assign(answer.values, answer.values + std::min(size, 8));
    return flat;
}

Flat Flatten(double number, Compare /*compare*/)
{
    return FlatList({number});
}

Flat Flatten(const math::CPolyPosMap& map, Compare compare)
{
    return Flatten(map.PosPairs(), compare);
}

Flat Flatten(const std::pair<math::CPolyPosMap, math::CPolyPosMap>& maps, Compare compare)
{
    Flat flat = Flatten(maps.first, compare);
    const Flat second = Flatten(maps.second, compare);
    flat.count += second.count;
    flat.values.insert(flat.values.end(), second.values.begin(), second.values.end());
    return flat;
}

Flat Flatten(const std::vector<int>& numbers, Compare /*compare*/)
{
    return FlatList(std::vector<double>(numbers.begin(), numbers.end()));
}

Flat Flatten(const std::vector<double>& numbers, Compare /*compare*/)
{
    return FlatList(numbers);
}

Flat Flatten(const std::vector<std::pair<double, double>>& pairs, Compare /*compare*/)
{
    std::vector<double> values;
    for (const auto& pair : pairs)
    {
        values.push_back(pair.first);
        values.push_back(pair.second);
    }
    return FlatList(values);
}

void Declare(const std::string& name, const Description& description)
{
    Rows().push_back({name, description, {}});
}

void Enter(const std::string& name, Contender contender)
{
    RowOf(name).contenders.push_back(std::move(contender));
}

bool AllAgree()
{
    bool allAgree = true;
    for (const Row& row : Rows())
    {
        for (std::size_t i = 1; i < row.contenders.size() && row.description.compare != Compare::Nothing; ++i)
        {
            const Contender& other = row.contenders[i];
            allAgree = (!other.isCompared || AgreesWithFirst(row, other)) && allAgree;
        }
    }
    return allAgree;
}

void RegisterAll()
{
    for (const Row& row : Rows())
    {
        for (const Contender& contender : row.contenders)
        {
            benchmark::RegisterBenchmark((row.name + "|" + contender.who).c_str(),
                                         [&row, &contender](benchmark::State& state) {
                                             contender.time(state);
                                             state.SetLabel(row.description.operation + "|" + row.description.ordinary);
                                             state.counters["inputs"] = static_cast<double>(contender.inputs);
                                             state.counters["aim"] = row.description.aim;
                                         });
        }
    }
}

} // namespace bench
