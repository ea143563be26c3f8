// Keys as the headless platform delivers them: virtual-key codes, and the key that types a character.
#pragma once

#include "engine/text/key_codes.h"

namespace vela::headless {

namespace virtual_key = engine::key_code;

// One key: what key-down reports and the character that key-press then brings, if any.
struct Key {
    int code = 0;
    char16_t character = 0;
    bool pressed = false; // reports a key-press: characters, Enter and Backspace
    bool control = false; // with Control held: undo (Z), redo (Y), cut (X), copy (C), paste (V)
    friend bool operator==(Key, Key) = default;
};

// Letters and digits carry their capital's code, other characters 0: 'ç' -> {0xC7, 'ç', true}.
[[nodiscard]] Key keyOf(char16_t character) noexcept;
[[nodiscard]] constexpr Key controlKey(char letter) noexcept
{
    return {letter, 0, false, true};
}
[[nodiscard]] constexpr Key namedKey(int code) noexcept
{
    const bool pressed = code == virtual_key::backspace || code == virtual_key::enter;
    return {code, pressed ? static_cast<char16_t>(code) : u'\0', pressed};
}

} // namespace vela::headless
