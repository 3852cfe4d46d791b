#pragma once

#include "Draw.h"
#include "Real.h"

#include <cstdio>
#include <functional>
#include <map>
#include <ostream>
#include <string>
#include <utility>
#include <vector>

namespace math::accuracy
{

/// The relative size of one rounding of a double, 2^-53.
constexpr double RoundingUnit = 1.1102230246251565e-16;

/// Names and values of an input: Text("x", 1.0, "y", 2.0) is "x=1 y=2", with all digits.
inline std::string Text()
{
    return {};
}

template <typename... Others>
std::string Text(const char* name, double value, const Others&... others)
{
    char buffer[64];
    std::snprintf(buffer, sizeof(buffer), "%s=%.17g ", name, value);
    return buffer + Text(others...);
}

/// What is known of one function on one kind of input.
struct Row
{
    std::string function;
    std::string stratum;
    std::string unit; ///< what an error is counted in

    long cases = 0;
    long compared = 0; ///< errors that were taken
    long expected = 0; ///< results that are there in truth
    long missed = 0;   ///< of those, the ones that were not told
    long extra = 0;    ///< results that were told and are not there
    double worstUnits = 0.0;
    double worstConditioned = 0.0; ///< units divided by the condition of the input
    double worstAbsolute = 0.0;
    std::string worstInput;    ///< that of worstConditioned
    std::string exampleMissed; ///< the first input with a lost result
    std::string exampleExtra;  ///< the first input with a result too many

    using Describe = std::function<std::string()>;

    /// One error.
    ///
    /// @param error      its absolute value
    /// @param unitSize   the absolute size of one unit
    /// @param condition  how much larger than usual the error may be for this input, at least 1
    void Add(const Real& error, const Real& unitSize, double condition, const Describe& describe);

    /// An error in rounding units of `scale`.
    void AddRounding(const Real& error, const Real& scale, double condition, const Describe& describe)
    {
        Add(error, Abs(scale) * RoundingUnit, condition, describe);
    }

    /// The error of a number in rounding units of the true one.
    void AddValue(double computed, const Real& truth, double condition, const Describe& describe)
    {
        AddRounding(Abs(Real(computed) - truth), truth, condition, describe);
    }

    void CountMissed(const Describe& describe);
    void CountExtra(const Describe& describe);
};

/// What a row may show. The text of the reason goes into the documentation.
struct Bound
{
    double conditioned = 0.0;
    double missedShare = 0.0; ///< of the expected results
    double extraShare = 0.0;  ///< of the expected results
    std::string basis;
    std::string reason;
};

/// Bounds by function and stratum. A line of the file is
/// `function ; stratum or * ; bound ; share missed ; share extra ; basis ; reason`.
class Bounds
{
public:
    explicit Bounds(const std::string& path);

    /// The bound of the stratum, or that of the whole function, or null.
    const Bound* Find(const Row& row) const;

    /// Functions and strata that no row belongs to.
    std::vector<std::string> WithoutRow(const std::vector<Row>& rows) const;

private:
    std::map<std::pair<std::string, std::string>, Bound> entries;
};

/// All rows, and how much work goes into each.
class Run
{
public:
    /// @param loadFactor    how many times the least number of inputs
    /// @param onlyFunction  the one function to measure, or all if empty
    Run(double loadFactor, std::string onlyFunction) : load(loadFactor), only(std::move(onlyFunction))
    {
    }

    /// Measures one row: `measure` is called `cases` times the load, each time for one input.
    void Stratum(const std::string& function, const std::string& stratum, const std::string& unit, int cases,
                 const std::function<void(Draw&, Row&)>& measure);

    const std::vector<Row>& Rows() const
    {
        return rows;
    }

private:
    double load;
    std::string only;
    std::vector<Row> rows;
};

void PrintMarkdown(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds);
void PrintWorst(std::ostream& out, const std::vector<Row>& rows);

/// Prints every row that exceeds its bound divided by `tighten`, has none, or compared nothing where anything is to be
/// found.
///
/// @return how many there are
int CheckBounds(std::ostream& out, const std::vector<Row>& rows, const Bounds& bounds, double tighten);

/// Prints every function of the library that has neither a row nor a line in the list of those left out, and every line of
/// that list for which there is no function, or one with a row.
///
/// @param exportedNames  a file of the demangled names that the library exports
/// @param leftOut        a file of names, or beginnings of names with a * after them, each with a reason: name ; reason
/// @return how many there are
int CheckNames(std::ostream& out, const std::vector<Row>& rows, const std::string& exportedNames,
               const std::string& leftOut);

} // namespace math::accuracy
