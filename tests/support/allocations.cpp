// The program's allocation functions.
#include "tests/support/allocations.h"

#include <cstdlib>
#include <new>

namespace {

long count = 0;
long failing = 0; // the count of the one that fails; 0: none
bool fired = false;

void* allocate(std::size_t size)
{
    if (++count == failing) {
        fired = true;
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

} // namespace

namespace vela::test {

long allocationCount()
{
    return count;
}

void failAllocation(long n)
{
    fired = false;
    failing = count + n;
}

bool endAllocationFault()
{
    failing = 0;
    return fired;
}

} // namespace vela::test

void* operator new(std::size_t size)
{
    return allocate(size);
}

void* operator new[](std::size_t size)
{
    return allocate(size);
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory) noexcept
{
    std::free(memory);
}

void operator delete[](void* memory, std::size_t) noexcept
{
    std::free(memory);
}
