#pragma once

#include "support/catalogue/Answer.h"
#include "support/catalogue/Setting.h"

#include <vector>

namespace math::test
{

/// What an operation may ask for memory for.
enum class Memory
{
    None,          ///< nothing
    CallersVector, ///< the growth of the vector that the caller hands in
    Own            ///< its result, a list of its object, or room to work in
};

/// One function of the library: its name as the dynamic symbol table has it, demangled, and a call of it.
struct ConstOperation
{
    const char* name;
    Memory memory;
    void (*run)(const Setting& setting, Answer& answer);
};

/// A function that changes its object or an argument.
struct ChangingOperation
{
    const char* name;
    Memory memory;
    void (*run)(Setting& setting, Answer& answer);
};

/// Together the lists name every function that the library exports, once or more often.
/// @{
extern const std::vector<ConstOperation> PrimitiveOperations;
extern const std::vector<ConstOperation> KernelOperations;
extern const std::vector<ConstOperation> PointerForms;
extern const std::vector<ConstOperation> OutlineOperations;
extern const std::vector<ConstOperation> PositionOperations;
extern const std::vector<ChangingOperation> ChangingPrimitiveOperations;
extern const std::vector<ChangingOperation> ChangingKernelOperations;
extern const std::vector<ChangingOperation> VectorForms;
extern const std::vector<ChangingOperation> ChangingOutlineOperations;
extern const std::vector<ChangingOperation> ChangingPositionOperations;
/// @}

std::vector<ConstOperation> AllConstOperations();
std::vector<ChangingOperation> AllChangingOperations();

} // namespace math::test
