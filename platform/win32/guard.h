// The one guard of window procedures and timers: nothing escapes to the system.
#pragma once

#include "platform/win32/thread.h"

#include <windows.h>

#include <utility>

namespace vela::win32 {

// Runs the work; an exception is contained and the fallback answered.
template <class Work, class Result>
Result contained(Work&& work, Result fallback) noexcept
{
    const LibraryCall call;
    try {
        return std::forward<Work>(work)();
    } catch (...) {
        return fallback;
    }
}

template <class Work>
void contained(Work&& work) noexcept
{
    const LibraryCall call;
    try {
        std::forward<Work>(work)();
    } catch (...) {
        return;
    }
}

} // namespace vela::win32
