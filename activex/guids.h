// The library's identities as the system spells them.
#pragma once

#include "activex/identities.h"

#include <guiddef.h>

namespace vela::activex {

namespace guid_text {

constexpr unsigned digit(char c)
{
    return static_cast<unsigned>(c >= 'A' ? c - 'A' + 10 : c - '0');
}

// The number of `count` hexadecimal digits at `place`.
constexpr unsigned long number(std::string_view text, std::size_t place, std::size_t count)
{
    unsigned long value = 0;
    for (const char c : text.substr(place, count))
        value = value * 16 + digit(c);
    return value;
}

} // namespace guid_text

// "320E27E0-A91E-4A22-8CAB-3D96B34084B5", capitals only.
constexpr GUID guidOf(std::string_view text)
{
    using guid_text::number;
    GUID id{};
    id.Data1 = number(text, 0, 8);
    id.Data2 = static_cast<unsigned short>(number(text, 9, 4));
    id.Data3 = static_cast<unsigned short>(number(text, 14, 4));
    for (std::size_t i = 0; i < 8; ++i)
        id.Data4[i] = static_cast<unsigned char>(number(text, 19 + 2 * i + (i >= 2 ? 1 : 0), 2));
    return id;
}

inline constexpr GUID libraryId = guidOf(identity::library);
inline constexpr GUID velaClass = guidOf(identity::velaClass);
inline constexpr GUID velaInterface = guidOf(identity::velaInterface);
inline constexpr GUID velaEvents = guidOf(identity::velaEvents);
inline constexpr GUID calendarClass = guidOf(identity::calendarClass);
inline constexpr GUID calendarInterface = guidOf(identity::calendarInterface);
inline constexpr GUID calendarEvents = guidOf(identity::calendarEvents);
inline constexpr GUID principalPage = guidOf(identity::principalPage);
inline constexpr GUID geralPage = guidOf(identity::geralPage);
inline constexpr GUID errosPage = guidOf(identity::errosPage);
inline constexpr GUID fontePage = guidOf(identity::fontePage);
inline constexpr GUID calendarioPage = guidOf(identity::calendarioPage);

} // namespace vela::activex
