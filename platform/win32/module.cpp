// Finds the module that holds this code, and counts what needs it.
#include "platform/win32/module.h"

#include <atomic>

namespace vela::win32 {
namespace {

std::atomic<long> uses{0};

} // namespace

void useModule() noexcept
{
    ++uses;
}

void leaveModule() noexcept
{
    --uses;
}

bool moduleInUse() noexcept
{
    return uses != 0;
}

HINSTANCE thisModule() noexcept
{
    static const HINSTANCE module = [] {
        HMODULE found = nullptr;
        GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                           reinterpret_cast<const wchar_t*>(&thisModule), &found);
        return found;
    }();
    return module;
}

std::wstring modulePath()
{
    std::wstring path(MAX_PATH, L'\0');
    for (;;) {
        const DWORD length = GetModuleFileNameW(thisModule(), path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return path;
        }
        path.resize(path.size() * 2);
    }
}

} // namespace vela::win32
