#include "allocation/Requests.h"

#include <cstdlib>
#include <new>

namespace
{

std::size_t requestCount = 0;
std::size_t refusedRequest = 0;
std::size_t aliveCount = 0;
bool isWatching = false;
bool hasRefused = false;

bool Refuses()
{
    if (!isWatching)
    {
        return false;
    }
    ++requestCount;
    if (requestCount != refusedRequest)
    {
        return false;
    }
    hasRefused = true;
    return true;
}

void* Allocate(std::size_t size) noexcept
{
    void* const block = Refuses() ? nullptr : std::malloc(size > 0 ? size : 1);
    aliveCount += block != nullptr ? 1 : 0;
    return block;
}

void Release(void* block) noexcept
{
    aliveCount -= block != nullptr ? 1 : 0;
    std::free(block);
}

} // namespace

// The forms for arrays call these. Nothing here asks for more than the usual alignment.
void* operator new(std::size_t size)
{
    void* const block = Allocate(size);
    if (block == nullptr)
    {
        throw std::bad_alloc();
    }
    return block;
}

void* operator new(std::size_t size, const std::nothrow_t& /*tag*/) noexcept
{
    return Allocate(size);
}

void operator delete(void* block) noexcept
{
    Release(block);
}

void operator delete(void* block, std::size_t /*size*/) noexcept
{
    Release(block);
}

void operator delete(void* block, const std::nothrow_t& /*tag*/) noexcept
{
    Release(block);
}

// The run-time library of a sanitizer may bring forms for arrays that do not call these.
void* operator new[](std::size_t size)
{
    return operator new(size);
}

void* operator new[](std::size_t size, const std::nothrow_t& tag) noexcept
{
    return operator new(size, tag);
}

void operator delete[](void* block) noexcept
{
    Release(block);
}

void operator delete[](void* block, std::size_t /*size*/) noexcept
{
    Release(block);
}

void operator delete[](void* block, const std::nothrow_t& /*tag*/) noexcept
{
    Release(block);
}

namespace math::test
{

void Requests::Begin(std::size_t refused)
{
    requestCount = 0;
    refusedRequest = refused;
    hasRefused = false;
    isWatching = true;
}

void Requests::End()
{
    isWatching = false;
}

std::size_t Requests::Count()
{
    return requestCount;
}

bool Requests::HasRefused()
{
    return hasRefused;
}

std::size_t Requests::Alive()
{
    return aliveCount;
}

} // namespace math::test
