// Replaces the global allocation functions by counting ones.
#include "benchmarks/allocations.h"

#include <cstdlib>
#include <malloc.h>
#include <new>

namespace {

std::uint64_t count = 0; // benchmarks run on one thread
std::uint64_t bytes = 0;

void* counted(std::size_t size)
{
    ++count;
    void* memory = std::malloc(size == 0 ? 1 : size);
    if (memory == nullptr)
        throw std::bad_alloc();
    bytes += malloc_usable_size(memory);
    return memory;
}

void released(void* memory) noexcept
{
    bytes -= malloc_usable_size(memory);
    std::free(memory);
}

} // namespace

void* operator new(std::size_t size)
{
    return counted(size);
}
void* operator new[](std::size_t size)
{
    return counted(size);
}
void operator delete(void* memory) noexcept
{
    released(memory);
}
void operator delete[](void* memory) noexcept
{
    released(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    released(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    released(memory);
}

std::uint64_t vela::bench::allocations() noexcept
{
    return count;
}

std::uint64_t vela::bench::bytesHeld() noexcept
{
    return bytes;
}
