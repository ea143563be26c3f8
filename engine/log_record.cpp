// The bytes of a log record: Windows-1252 text in lines ended by CR LF.
#include "engine/log_record.h"

#include <algorithm>
#include <array>

namespace vela::engine {
namespace {

// What the bytes 80 to 9F stand for; the five that stand for nothing map to themselves, as the system maps them.
constexpr std::array<char16_t, 32> upperControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178,
};

char encodeUnit(char16_t unit) noexcept
{
    if (unit < 0x80 || (unit >= 0xA0 && unit <= 0xFF))
        return static_cast<char>(static_cast<unsigned char>(unit));
    const auto found = std::ranges::find(upperControls, unit);
    if (found == upperControls.end())
        return '?';
    return static_cast<char>(static_cast<unsigned char>(0x80 + (found - upperControls.begin())));
}

void append(std::string& bytes, std::u16string_view text)
{
    for (const char16_t unit : text)
        bytes.push_back(encodeUnit(unit));
}

} // namespace

std::string encode(const LogRecord& record)
{
    constexpr std::string_view lineEnd = "\r\n";
    constexpr std::string_view blankLine = "\r\r\n";
    std::string bytes(blankLine);
    append(bytes, u"Erro n°: ");
    bytes += std::to_string(record.number);
    bytes += lineEnd;
    append(bytes, u"Motivo: ");
    append(bytes, record.description);
    bytes += lineEnd;
    append(bytes, record.label);
    bytes += lineEnd;
    bytes += blankLine;
    return bytes;
}

} // namespace vela::engine
