#include "support/catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <regex>
#include <set>
#include <string>

namespace math::test
{

namespace
{

/// What no list can call by itself: what the compiler makes for virtual tables, and a private function.
bool IsReachedThroughOthers(const std::string& name)
{
    return std::regex_search(name, std::regex("^(typeinfo|vtable) ")) ||
           name == "CPolyPosMap::MultyDouble(std::vector<std::pair<double, double>> const&, double const&)";
}

bool IsOfTheStandardLibrary(const std::string& name)
{
    return name.rfind("std::vector<", 0) == 0;
}

/// Leaves out the namespace and the allocators of the standard library.
std::string Shortened(std::string name)
{
    name = std::regex_replace(name, std::regex("math::"), "");
    const std::regex allocator(", std::allocator<(?:std::pair<double, double> |[A-Za-z0-9]+)> ?>");
    return std::regex_replace(name, allocator, ">");
}

std::set<std::string> ExportedFunctions()
{
    std::set<std::string> names;
    std::ifstream file(QORMATH_EXPORTED_NAMES);
    for (std::string line; std::getline(file, line);)
    {
        const std::string name = Shortened(line);
        if (!IsOfTheStandardLibrary(name) && !IsReachedThroughOthers(name))
        {
            names.insert(name);
        }
    }
    return names;
}

std::set<std::string> ListedFunctions()
{
    std::set<std::string> names;
    for (const ConstOperation& operation : AllConstOperations())
    {
        names.insert(operation.name);
    }
    for (const ChangingOperation& operation : AllChangingOperations())
    {
        names.insert(operation.name);
    }
    return names;
}

} // namespace

TEST(Catalogue, NamesEveryExportedFunctionAndNoOther)
{
    const std::set<std::string> exported = ExportedFunctions();
    const std::set<std::string> listed = ListedFunctions();
    EXPECT_GT(exported.size(), 200U);
    for (const std::string& name : exported)
    {
        EXPECT_EQ(listed.count(name), 1U) << "not in the lists: " << name;
    }
    for (const std::string& name : listed)
    {
        EXPECT_EQ(exported.count(name), 1U) << "not exported: " << name;
    }
}

} // namespace math::test
