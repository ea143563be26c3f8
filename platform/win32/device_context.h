// Device contexts, and what is selected in them, for a scope.
#pragma once

#include <windows.h>

namespace vela::win32 {

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
