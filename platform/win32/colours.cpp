// System colours and high contrast.
#include "platform/win32/colours.h"

namespace vela::win32 {
namespace {

constexpr std::uint32_t systemReference = 0x80000000;

int systemColourOf(ColourRole role) noexcept
{
    switch (role) {
    case ColourRole::fore: return COLOR_WINDOWTEXT;
    case ColourRole::back: return COLOR_WINDOW;
    case ColourRole::border: return COLOR_WINDOWFRAME;
    case ColourRole::face: return COLOR_BTNFACE;
    }
    return COLOR_WINDOWTEXT;
}

} // namespace

COLORREF resolve(engine::Colour colour) noexcept
{
    if (colour.value & systemReference)
        return GetSysColor(static_cast<int>(colour.value & 0xFF));
    return colour.value & 0x00FFFFFF;
}

COLORREF resolve(engine::Colour colour, ColourRole role) noexcept
{
    return highContrast() ? GetSysColor(systemColourOf(role)) : resolve(colour);
}

bool highContrast() noexcept
{
    HIGHCONTRASTW setting{};
    setting.cbSize = sizeof setting;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof setting, &setting, 0) &&
           (setting.dwFlags & HCF_HIGHCONTRASTON) != 0;
}

} // namespace vela::win32
