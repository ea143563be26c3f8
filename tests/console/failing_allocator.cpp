// The program's allocation functions, one of which can be made to fail.
#include "failing_allocator.h"

#include <cstdlib>
#include <new>

namespace {

long countdown = 0; // 0: off
bool fired = false;

void* allocate(std::size_t size)
{
    if (countdown > 0 && --countdown == 0) {
        fired = true;
        throw std::bad_alloc();
    }
    if (void* const memory = std::malloc(size != 0 ? size : 1))
        return memory;
    throw std::bad_alloc();
}

} // namespace

namespace failing_allocator {

void failAt(long n)
{
    fired = false;
    countdown = n;
}

bool disarm()
{
    countdown = 0;
    return fired;
}

} // namespace failing_allocator

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
