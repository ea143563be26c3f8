// Replaces the global allocation functions by counting ones.
#include "benchmarks/allocations.h"

#include <cstdlib>
#include <new>

namespace {

std::uint64_t count = 0; // benchmarks run on one thread

void* counted(std::size_t size)
{
    ++count;
    if (void* memory = std::malloc(size == 0 ? 1 : size))
        return memory;
    throw std::bad_alloc();
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
    std::free(memory);
}
void operator delete[](void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}

std::uint64_t vela::bench::allocations() noexcept
{
    return count;
}
