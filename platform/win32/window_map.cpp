// A table in the thread's record.
#include "platform/win32/window_map.h"

#include "platform/win32/thread.h"

namespace vela::win32 {
namespace {

ThreadRecord::Window* find(HWND window) noexcept
{
    ThreadRecord* const record = threadRecord();
    if (!record)
        return nullptr;
    const auto found = record->windows.find(window);
    return found != record->windows.end() ? &found->second : nullptr;
}

} // namespace

void bindObject(HWND window, void* object)
{
    madeThreadRecord().windows[window].object = object;
}

WNDPROC subclass(HWND window, void* object, WNDPROC procedure)
{
    const auto behind = reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
    bindObject(window, object);
    find(window)->behind = behind;
    SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure));
    return behind;
}

void unbindObject(HWND window) noexcept
{
    if (ThreadRecord::Window* const bound = find(window))
        bound->object = nullptr;
}

void forgetWindow(HWND window) noexcept
{
    if (ThreadRecord* const record = threadRecord())
        record->windows.erase(window);
}

void* boundObject(HWND window) noexcept
{
    const ThreadRecord::Window* const bound = find(window);
    return bound ? bound->object : nullptr;
}

LRESULT behindProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    const ThreadRecord::Window* const bound = find(window);
    const WNDPROC behind =
        bound && bound->behind ? bound->behind : reinterpret_cast<WNDPROC>(GetClassLongPtrW(window, GCLP_WNDPROC));
    if (message == WM_NCDESTROY)
        forgetWindow(window);
    return CallWindowProcW(behind, window, message, first, second);
}

} // namespace vela::win32
