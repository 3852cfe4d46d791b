#pragma once

#include <cstddef>

namespace math::test
{

/// Watches the requests for memory of the library and of the test: operator new is replaced in this program.
/// Between two calls of a member nothing else may run that asks for memory.
class Requests
{
public:
    /// Begins to count; the request of the number `refused`, counted from 1, is refused. 0 refuses none.
    static void Begin(std::size_t refused);

    /// Ends it. Nothing is refused any more.
    static void End();

    /// Requests from Begin to End, the refused one included.
    static std::size_t Count();

    /// Whether one was refused.
    static bool HasRefused();

    /// Blocks from operator new that are alive, at any time.
    static std::size_t Alive();
};

} // namespace math::test
