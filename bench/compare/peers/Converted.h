#pragma once

#include "Contest.h"

#include <memory>
#include <vector>

namespace bench
{

/// A peer's own objects made from the inputs beforehand: making them is not timed.
template <typename Input, typename Convert, typename Solve>
void EnterConverted(const std::string& name, const std::string& who, const std::vector<Input>& inputs, Convert convert,
                    Solve solve, const Allowance& allowance = {})
{
    using Own = decltype(convert(inputs.front()));
    // Kept as long as the program.
    static std::vector<std::unique_ptr<std::vector<Own>>> kept;
    auto own = std::make_unique<std::vector<Own>>();
    own->reserve(inputs.size());
    for (const Input& input : inputs)
    {
        own->push_back(convert(input));
    }
    kept.push_back(std::move(own));
    Enter(name, who, *kept.back(), solve, allowance);
}

} // namespace bench
