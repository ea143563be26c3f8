// One count for the process: objects live on several threads.
#include "activex/com/module_lock.h"

#include <atomic>

namespace vela::activex {

namespace {
std::atomic<long> locks{0};
} // namespace

void ModuleLock::add() noexcept
{
    ++locks;
}

void ModuleLock::remove() noexcept
{
    --locks;
}

bool ModuleLock::any() noexcept
{
    return locks != 0;
}

} // namespace vela::activex
