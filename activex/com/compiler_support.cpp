// The functions that compiled code calls for thread-local variables (such as the exception in flight) and for constants
// made at their first use. The compiler's own versions leak a slot of the process and two handles of each thread
// whenever the library is unloaded.
#include "platform/win32/thread.h"

#include <atomic>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <iterator>
#include <new>

#ifdef __GNUC__
namespace {

struct Variable { // as the compiler lays it out
    std::uintptr_t size;
    std::uintptr_t alignment;
    std::uintptr_t index; // from 1; 0 before the first use
    const void* initial;  // null: zeros
};
std::atomic<std::uintptr_t> lastIndex{0};

std::uintptr_t indexOf(Variable& variable) noexcept
{
    const std::atomic_ref<std::uintptr_t> index(variable.index);
    if (const std::uintptr_t known = index)
        return known;
    std::uintptr_t none = 0;
    const std::uintptr_t taken = ++lastIndex;
    return index.compare_exchange_strong(none, taken) ? taken : none;
}

} // namespace

// A constant under construction: byte 0 tells the compiler's code that it is made, byte 1 that somebody is at it.
namespace {

SRWLOCK makingLock = SRWLOCK_INIT;
CONDITION_VARIABLE making = CONDITION_VARIABLE_INIT;

void ended(char* guard, bool made) noexcept
{
    AcquireSRWLockExclusive(&makingLock);
    guard[1] = 0;
    if (made)
        std::atomic_ref<char>(guard[0]).store(1, std::memory_order_release);
    ReleaseSRWLockExclusive(&makingLock);
    WakeAllConditionVariable(&making);
}

} // namespace

extern "C" int __cxa_guard_acquire(long long* constant)
{
    auto* const guard = reinterpret_cast<char*>(constant);
    AcquireSRWLockExclusive(&makingLock);
    while (guard[1])
        SleepConditionVariableSRW(&making, &makingLock, INFINITE, 0);
    const bool mine = !guard[0];
    guard[1] = mine;
    ReleaseSRWLockExclusive(&makingLock);
    return mine;
}

extern "C" void __cxa_guard_release(long long* constant) noexcept
{
    ended(reinterpret_cast<char*>(constant), true);
}

extern "C" void __cxa_guard_abort(long long* constant) noexcept
{
    ended(reinterpret_cast<char*>(constant), false);
}

// Of its tables for throwing, in 32 bit. 0 before the first call, 1 while it runs, 2 when it has.
extern "C" int pthread_once(long* state, void (*run)(void))
{
    AcquireSRWLockExclusive(&makingLock);
    while (*state == 1)
        SleepConditionVariableSRW(&making, &makingLock, INFINITE, 0);
    const bool first = *state == 0;
    if (first)
        *state = 1;
    ReleaseSRWLockExclusive(&makingLock);
    if (!first)
        return 0;
    run();
    AcquireSRWLockExclusive(&makingLock);
    *state = 2;
    ReleaseSRWLockExclusive(&makingLock);
    WakeAllConditionVariable(&making);
    return 0;
}

// Out of memory: an exception could not be thrown either.
extern "C" void* __emutls_get_address(void* object)
{
    Variable& variable = *static_cast<Variable*>(object);
    vela::win32::ThreadRecord* const record = vela::win32::madeThreadRecord(std::nothrow);
    const std::uintptr_t index = indexOf(variable);
    if (!record || index > std::size(record->variables) || variable.alignment > alignof(std::max_align_t))
        std::abort();
    void*& place = record->variables[index - 1];
    if (!place) {
        place = std::calloc(1, variable.size);
        if (!place)
            std::abort();
        if (variable.initial)
            std::memcpy(place, variable.initial, variable.size);
    }
    return place;
}
#endif
