#include "support/catalogue/Catalogue.h"

#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <string>

namespace math::test
{

namespace
{

bool BeginsWith(const std::string& name, const std::string& beginning)
{
    return name.rfind(beginning, 0) == 0;
}

/// What no list can call by itself: what the compiler makes for virtual tables, and a private function.
bool IsReachedThroughOthers(const std::string& name)
{
    return BeginsWith(name, "typeinfo ") || BeginsWith(name, "vtable ") ||
           name == "CPolyPosMap::MultyDouble(std::vector<std::pair<double, double>> const&, double const&)";
}

bool IsOfTheStandardLibrary(const std::string& name)
{
    return BeginsWith(name, "std::vector<");
}

void ReplaceAll(std::string& text, const std::string& part, const std::string& replacement)
{
    for (std::size_t at = text.find(part); at != std::string::npos; at = text.find(part, at))
    {
        text.replace(at, part.size(), replacement);
    }
}

/// Leaves out the namespace and the allocators of the standard library.
std::string Shortened(std::string name)
{
    ReplaceAll(name, "math::", "");
    for (const std::string element : {"int", "double", "DPOINT2", "PosRangeD"})
    {
        ReplaceAll(name, ", std::allocator<" + element + "> >", ">");
    }
    ReplaceAll(name, ", std::allocator<std::pair<double, double> > >", ">");
    return name;
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
