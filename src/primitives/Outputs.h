#pragma once

namespace math::detail
{

/// Writes a result to an optional output.
template <typename Value>
void Write(const Value& value, Value* output)
{
    if (output != nullptr)
    {
        *output = value;
    }
}

} // namespace math::detail
