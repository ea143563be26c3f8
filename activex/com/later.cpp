// A timer of the thread, without a window, that lets go of what waits.
#include "activex/com/later.h"

#include <windows.h>

#include <algorithm>
#include <mutex>
#include <utility>
#include <vector>

namespace vela::activex {

namespace {

std::mutex mutex;                                    // threads have timers of their own but share the list
std::vector<std::pair<UINT_PTR, IUnknown*>> waiting; // by timer

IUnknown* take(UINT_PTR timer) noexcept
{
    const std::lock_guard lock(mutex);
    const auto found =
        std::find_if(waiting.begin(), waiting.end(), [&](const auto& entry) { return entry.first == timer; });
    if (found == waiting.end())
        return nullptr;
    IUnknown* const object = found->second;
    waiting.erase(found);
    return object;
}

void CALLBACK letGo(HWND, UINT, UINT_PTR timer, DWORD) noexcept
{
    KillTimer(nullptr, timer);
    if (IUnknown* const object = take(timer))
        object->Release();
}

} // namespace

void releaseWhenIdle(IUnknown& object) noexcept
{
    const UINT_PTR timer = SetTimer(nullptr, 0, USER_TIMER_MINIMUM, letGo);
    if (timer == 0)
        return;
    try {
        const std::lock_guard lock(mutex);
        waiting.emplace_back(timer, &object);
    } catch (...) {
        KillTimer(nullptr, timer);
    }
}

} // namespace vela::activex
