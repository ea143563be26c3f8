// A property frame for where the system's never applies what was changed: tabs, OK, Cancel and Apply around the pages
// that the selected objects name.
#pragma once

#include "apps/demo/ole.h"

#include <ocidl.h>
#include <olectl.h>

#include <memory>
#include <span>
#include <string>
#include <vector>

namespace vela::demo {

class PageSlot;

class PropertyFrame {
public:
    PropertyFrame(HINSTANCE instance, HWND owner);
    ~PropertyFrame(); // closes
    PropertyFrame(const PropertyFrame&) = delete;
    PropertyFrame& operator=(const PropertyFrame&) = delete;

    // The pages are those of the first object. False when it names none, or none could be made.
    bool open(std::span<IUnknown* const> objects, const std::wstring& title);
    void runModal(); // until OK, Cancel or the close command
    bool apply();    // false when a page refused; the frame stays
    void select(std::size_t page);
    void close();

    [[nodiscard]] HWND window() const noexcept { return window_; }
    [[nodiscard]] std::size_t pageCount() const noexcept { return pages_.size(); }
    [[nodiscard]] IPropertyPage* page(std::size_t index) const;
    [[nodiscard]] bool canApply() const noexcept { return canApply_; }
    void pageStatusChanged(DWORD flags); // from a page's site

private:
    static LRESULT CALLBACK windowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) noexcept;
    LRESULT handle(UINT message, WPARAM wParam, LPARAM lParam);
    [[nodiscard]] bool loadPages(std::span<IUnknown* const> objects);
    void createWindow(const std::wstring& title);
    HWND makeButton(const wchar_t* text, int id, int fromRight, bool isDefault);
    [[nodiscard]] RECT pagePlace() const;
    [[nodiscard]] bool translated(MSG& message);
    void printTabs(HDC dc, LPARAM parts);
    [[nodiscard]] int scaled(int pixels) const noexcept { return MulDiv(pixels, dpi_, 96); }

    HINSTANCE instance_;
    HWND owner_;
    HWND window_ = nullptr;
    HWND tabs_ = nullptr;
    HWND applyButton_ = nullptr;
    HFONT font_ = nullptr;
    int dpi_ = 96;
    std::vector<std::unique_ptr<PageSlot>> pages_;
    std::size_t current_ = 0;
    bool canApply_ = false;
    bool printing_ = false;
};

} // namespace vela::demo
