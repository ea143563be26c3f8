// Windows-1252 differs from Latin 1 in 32 places.
#include "apps/console/ansi.h"

#include "engine/text/utf8.h"

namespace vela::console {

std::string utf8FromAnsi(std::string_view bytes)
{
    constexpr char16_t from80[] = {0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021,
                                   0x02C6, 0x2030, 0x0160, 0x2039, 0x0152, 0x8D,   0x017D, 0x8F,
                                   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                   0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};
    std::u16string text;
    text.reserve(bytes.size());
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        text += code >= 0x80 && code < 0xA0 ? from80[code - 0x80] : static_cast<char16_t>(code);
    }
    return engine::toUtf8(text);
}

} // namespace vela::console
