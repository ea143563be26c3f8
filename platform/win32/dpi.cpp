// Asks the system for a window's dots per inch; older systems know one value for all.
#include "platform/win32/dpi.h"

#include "platform/win32/device_context.h"

namespace vela::win32 {
namespace {

using DpiOfWindow = UINT(WINAPI*)(HWND);

DpiOfWindow findDpiOfWindow() noexcept
{
    const FARPROC found = GetProcAddress(GetModuleHandleW(L"user32.dll"), "GetDpiForWindow");
    return reinterpret_cast<DpiOfWindow>(reinterpret_cast<void*>(found));
}

int systemDpi() noexcept
{
    static const int dpi = [] {
        const WindowDc screen(nullptr);
        const int read = screen.get() ? GetDeviceCaps(screen.get(), LOGPIXELSY) : 0;
        return read > 0 ? read : standardDpi;
    }();
    return dpi;
}

} // namespace

int dpiOf(HWND window) noexcept
{
    static const DpiOfWindow dpiOfWindow = findDpiOfWindow();
    if (window && dpiOfWindow)
        if (const UINT dpi = dpiOfWindow(window))
            return static_cast<int>(dpi);
    return systemDpi();
}

} // namespace vela::win32
