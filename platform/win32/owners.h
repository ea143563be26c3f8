// Move-only owners of windows, drawing objects, registry keys and other handles.
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

using UniqueWindow = Unique<WindowTraits>;
using UniqueMenu = Unique<MenuTraits>;
using UniqueKey = Unique<KeyTraits>;
using UniqueMemoryDc = Unique<MemoryDcTraits>;
using UniqueFile = Unique<FileTraits>;
using UniqueLibrary = Unique<LibraryTraits>;
template <class Object>
using UniqueGdi = Unique<GdiTraits<Object>>;

} // namespace vela::win32
