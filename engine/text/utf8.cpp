// Characters of one to four bytes, and of one or two UTF-16 units.
#include "engine/text/utf8.h"

namespace vela::engine {

namespace {

constexpr char32_t replacementCharacter = 0xFFFD;

// One character of at most four bytes; nothing for what is no UTF-8. Surrogates and overlong forms are none.
std::optional<char32_t> decode(std::string_view bytes, std::size_t& at)
{
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(bytes[i]); };
    const unsigned first = byte(at);
    const std::size_t length = first < 0x80 ? 1 : first < 0xC2 ? 0 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    if (length == 0 || first > 0xF4 || bytes.size() - at < length)
        return std::nullopt;
    char32_t character = length == 1 ? first : first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0U) != 0x80U)
            return std::nullopt;
        character = (character << 6) | (byte(at + i) & 0x3FU);
    }
    const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
    if (overlong || character > 0x10FFFF || (character >= 0xD800 && character < 0xE000))
        return std::nullopt;
    at += length;
    return character;
}

void appendUtf8(std::string& into, char32_t character)
{
    const auto tail = [&](int shift) { return static_cast<char>(0x80 | ((character >> shift) & 0x3F)); };
    if (character < 0x80) {
        into += static_cast<char>(character);
    } else if (character < 0x800) {
        into += static_cast<char>(0xC0 | (character >> 6));
        into += tail(0);
    } else if (character < 0x10000) {
        into += static_cast<char>(0xE0 | (character >> 12));
        into += tail(6);
        into += tail(0);
    } else {
        into += static_cast<char>(0xF0 | (character >> 18));
        into += tail(12);
        into += tail(6);
        into += tail(0);
    }
}

} // namespace

std::optional<std::u16string> fromUtf8(std::string_view bytes)
{
    std::u16string text;
    text.reserve(bytes.size());
    for (std::size_t at = 0; at < bytes.size();) {
        const std::optional<char32_t> character = decode(bytes, at);
        if (!character)
            return std::nullopt;
        if (*character < 0x10000) {
            text += static_cast<char16_t>(*character);
        } else {
            text += static_cast<char16_t>(0xD7C0 + (*character >> 10));
            text += static_cast<char16_t>(0xDC00 + (*character & 0x3FF));
        }
    }
    return text;
}

std::string toUtf8(std::u16string_view text)
{
    std::string bytes;
    bytes.reserve(text.size());
    for (std::size_t at = 0; at < text.size(); ++at) {
        char32_t character = text[at];
        const bool high = (character & 0xFC00) == 0xD800;
        if (high && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00)
            character = 0x10000 + ((character - 0xD800) << 10) + (text[++at] - 0xDC00U);
        else if ((character & 0xF800) == 0xD800)
            character = replacementCharacter;
        appendUtf8(bytes, character);
    }
    return bytes;
}

} // namespace vela::engine
