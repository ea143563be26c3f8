// Which keys the text boxes of the pages and of the palette let through. A key is a UTF-16 unit; 8 is Backspace.
#pragma once

namespace vela::pages {

[[nodiscard]] constexpr bool digit(int key) noexcept
{
    return key >= u'0' && key <= u'9';
}

[[nodiscard]] constexpr bool digitOrBackspace(int key) noexcept
{
    return digit(key) || key == 8;
}

// Oddity: the symbol box refuses the digits 1 to 8 and takes 0 and 9; saved symbols hold those two.
[[nodiscard]] constexpr bool symbolKey(int key) noexcept
{
    return key < u'1' || key > u'8';
}

} // namespace vela::pages
