// Points and rectangles, in pixels and in twips; the two never mix silently.
#pragma once

namespace vela::engine {

struct PointPixels {
    int x = 0;
    int y = 0;
    friend bool operator==(PointPixels, PointPixels) = default;
};

struct RectPixels {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    [[nodiscard]] constexpr int right() const noexcept { return left + width; }
    [[nodiscard]] constexpr int bottom() const noexcept { return top + height; }
    friend bool operator==(RectPixels, RectPixels) = default;
};

// 1440 twips are one inch; 15 twips are one pixel at 96 dpi.
struct RectTwips {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    friend bool operator==(RectTwips, RectTwips) = default;
};

inline constexpr int twipsPerInch = 1440;

[[nodiscard]] constexpr int twipsToPixels(int twips, int dpi) noexcept
{
    const long long scaled = static_cast<long long>(twips) * dpi;
    return static_cast<int>((scaled + (scaled < 0 ? -twipsPerInch / 2 : twipsPerInch / 2)) / twipsPerInch);
}

} // namespace vela::engine
