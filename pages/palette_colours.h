// The 32 fixed colours of the palette: where each stands and the index it is known by.
#pragma once

#include "engine/value.h"

#include <array>
#include <cstdint>

namespace vela::pages {

[[nodiscard]] constexpr engine::Colour rgb(int red, int green, int blue) noexcept
{
    return {static_cast<std::uint32_t>(red) | static_cast<std::uint32_t>(green) << 8 |
            static_cast<std::uint32_t>(blue) << 16};
}

struct PaletteColour {
    std::uint8_t index = 0; // not consecutive; an identity, nothing more
    engine::Colour colour;
    int left = 0; // twips, in the frame
    int top = 0;
};

inline constexpr int paletteSwatchSize = 230; // twips
inline constexpr int paletteColumnStep = 270; // from left edge to left edge
inline constexpr int paletteRowStep = 255;

// Column by column.
inline constexpr std::array<PaletteColour, 32> paletteColours{{
    {5, rgb(0, 0, 0), 120, 300},         {4, rgb(128, 128, 128), 120, 555},   {3, rgb(192, 192, 192), 120, 810},
    {2, rgb(255, 255, 255), 120, 1065},  {8, rgb(255, 192, 192), 390, 300},   {9, rgb(255, 0, 0), 390, 555},
    {10, rgb(192, 0, 0), 390, 810},      {11, rgb(128, 0, 0), 390, 1065},     {14, rgb(255, 224, 192), 660, 300},
    {15, rgb(255, 192, 128), 660, 555},  {16, rgb(255, 128, 0), 660, 810},    {17, rgb(192, 64, 0), 660, 1065},
    {20, rgb(255, 255, 192), 930, 300},  {21, rgb(255, 255, 128), 930, 555},  {22, rgb(255, 255, 0), 930, 810},
    {23, rgb(192, 192, 0), 930, 1065},   {26, rgb(192, 255, 192), 1200, 300}, {27, rgb(128, 255, 128), 1200, 555},
    {28, rgb(0, 255, 0), 1200, 810},     {29, rgb(0, 128, 0), 1200, 1065},    {32, rgb(192, 255, 255), 1470, 300},
    {33, rgb(128, 255, 255), 1470, 555}, {34, rgb(0, 192, 192), 1470, 810},   {35, rgb(0, 128, 128), 1470, 1065},
    {38, rgb(192, 192, 255), 1740, 300}, {39, rgb(128, 128, 255), 1740, 555}, {40, rgb(0, 0, 255), 1740, 810},
    {41, rgb(0, 0, 128), 1740, 1065},    {44, rgb(255, 192, 255), 2010, 300}, {45, rgb(255, 0, 255), 2010, 555},
    {46, rgb(192, 0, 192), 2010, 810},   {47, rgb(128, 0, 128), 2010, 1065},
}};

} // namespace vela::pages
