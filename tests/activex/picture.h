// A picture in memory that a control draws itself into.
#pragma once

#include "tests/support/windows.h"

#include <algorithm>
#include <span>
#include <vector>

namespace vela::test {

// A 32-bit picture in memory.
class Picture : Fixed {
public:
    Picture(int width, int height) : width_(width), dc_(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader = {sizeof info.bmiHeader, width, -height, 1, 32, BI_RGB, 0, 0, 0, 0, 0};
        void* bits = nullptr;
        bitmap_ = CreateDIBSection(dc_, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        SelectObject(dc_, bitmap_);
        pixels_ = {static_cast<DWORD*>(bits), static_cast<std::size_t>(width * height)};
        clear();
    }
    ~Picture()
    {
        DeleteDC(dc_);
        DeleteObject(bitmap_);
    }
    void clear() { std::ranges::fill(pixels_, background); }
    [[nodiscard]] HDC dc() const { return dc_; }
    [[nodiscard]] std::vector<DWORD> pixels() const
    {
        GdiFlush();
        std::vector<DWORD> all(pixels_.begin(), pixels_.end());
        std::ranges::for_each(all, [](DWORD& pixel) { pixel &= 0xFFFFFF; });
        return all;
    }
    [[nodiscard]] DWORD at(int x, int y) const
    {
        GdiFlush();
        return pixels_[static_cast<std::size_t>(y * width_ + x)] & 0xFFFFFF;
    }
    [[nodiscard]] COLORREF colourAt(int x, int y) const
    {
        const DWORD pixel = at(x, y);
        return RGB(pixel >> 16, pixel >> 8, pixel);
    }
    [[nodiscard]] int count(DWORD colour, RECT in) const // 0x00RRGGBB
    {
        int found = 0;
        for (LONG y = in.top; y < in.bottom; ++y)
            for (LONG x = in.left; x < in.right; ++x)
                found += at(static_cast<int>(x), static_cast<int>(y)) == colour;
        return found;
    }
    static constexpr DWORD background = 0x00FF00FF;

private:
    int width_;
    HDC dc_;
    HBITMAP bitmap_ = nullptr;
    std::span<DWORD> pixels_;
};

} // namespace vela::test
