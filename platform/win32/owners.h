// Move-only owners of windows, drawing objects, device contexts and registry keys.
#pragma once

#include <windows.h>

#include <utility>

namespace vela::win32 {

// Owns one handle; Traits tells what "none" is and how it is given back.
template <class Traits>
class Unique {
public:
    using Handle = typename Traits::Handle;

    Unique() noexcept = default;
    explicit Unique(Handle handle) noexcept : handle_(handle) {}
    Unique(Unique&& other) noexcept : handle_(other.release()) {}
    Unique& operator=(Unique&& other) noexcept
    {
        reset(other.release());
        return *this;
    }
    Unique(const Unique&) = delete;
    Unique& operator=(const Unique&) = delete;
    ~Unique() { reset(); }

    [[nodiscard]] Handle get() const noexcept { return handle_; }
    [[nodiscard]] explicit operator bool() const noexcept { return handle_ != Handle{}; }
    [[nodiscard]] Handle release() noexcept { return std::exchange(handle_, Handle{}); }
    void reset(Handle handle = Handle{}) noexcept
    {
        if (Handle old = std::exchange(handle_, handle); old != Handle{} && old != handle)
            Traits::close(old);
    }
    // The address to be filled by a system call; what was owned is given back first.
    [[nodiscard]] Handle* put() noexcept
    {
        reset();
        return &handle_;
    }

private:
    Handle handle_{};
};

struct WindowTraits {
    using Handle = HWND;
    static void close(HWND window) noexcept { DestroyWindow(window); }
};
struct MenuTraits {
    using Handle = HMENU;
    static void close(HMENU menu) noexcept { DestroyMenu(menu); }
};
struct KeyTraits {
    using Handle = HKEY;
    static void close(HKEY key) noexcept { RegCloseKey(key); }
};
struct FileTraits {
    using Handle = HANDLE; // null, never INVALID_HANDLE_VALUE, when there is none
    static void close(HANDLE file) noexcept { CloseHandle(file); }
};
struct LibraryTraits {
    using Handle = HMODULE;
    static void close(HMODULE library) noexcept { FreeLibrary(library); }
};
struct MemoryDcTraits {
    using Handle = HDC;
    static void close(HDC dc) noexcept { DeleteDC(dc); }
};
template <class Object>
struct GdiTraits {
    using Handle = Object;
    static void close(Object object) noexcept { DeleteObject(object); }
};

// A lock for a scope.
class Locked {
public:
    explicit Locked(SRWLOCK& lock) noexcept : lock_(lock) { AcquireSRWLockExclusive(&lock_); }
    Locked(const Locked&) = delete;
    Locked& operator=(const Locked&) = delete;
    ~Locked() { ReleaseSRWLockExclusive(&lock_); }

private:
    SRWLOCK& lock_;
};

using UniqueWindow = Unique<WindowTraits>;
using UniqueMenu = Unique<MenuTraits>;
using UniqueKey = Unique<KeyTraits>;
using UniqueMemoryDc = Unique<MemoryDcTraits>;
using UniqueFile = Unique<FileTraits>;
using UniqueLibrary = Unique<LibraryTraits>;
template <class Object>
using UniqueGdi = Unique<GdiTraits<Object>>;

// Selects an object into a device context for a scope.
class SelectedObject {
public:
    SelectedObject(HDC dc, HGDIOBJ object) noexcept : dc_(dc), before_(SelectObject(dc, object)) {}
    SelectedObject(const SelectedObject&) = delete;
    SelectedObject& operator=(const SelectedObject&) = delete;
    ~SelectedObject()
    {
        if (before_)
            SelectObject(dc_, before_);
    }

private:
    HDC dc_;
    HGDIOBJ before_;
};

// Everything selected or set in a device context is as before at the end of the scope.
class SavedDc {
public:
    explicit SavedDc(HDC dc) noexcept : dc_(dc), state_(SaveDC(dc)) {}
    SavedDc(const SavedDc&) = delete;
    SavedDc& operator=(const SavedDc&) = delete;
    ~SavedDc() { RestoreDC(dc_, state_); }

private:
    HDC dc_;
    int state_;
};

class PaintDc {
public:
    explicit PaintDc(HWND window) noexcept : window_(window) { BeginPaint(window, &paint_); }
    PaintDc(const PaintDc&) = delete;
    PaintDc& operator=(const PaintDc&) = delete;
    ~PaintDc() { EndPaint(window_, &paint_); }
    [[nodiscard]] HDC get() const noexcept { return paint_.hdc; }

private:
    HWND window_;
    PAINTSTRUCT paint_{};
};

class WindowDc {
public:
    explicit WindowDc(HWND window) noexcept : window_(window), dc_(GetDC(window)) {}
    WindowDc(const WindowDc&) = delete;
    WindowDc& operator=(const WindowDc&) = delete;
    ~WindowDc() { ReleaseDC(window_, dc_); }
    [[nodiscard]] HDC get() const noexcept { return dc_; }

private:
    HWND window_;
    HDC dc_;
};

} // namespace vela::win32
