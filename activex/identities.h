// The identities of the library, fixed for ever. Code, type library and registration-free manifest take them from here.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vela::activex::identity {

inline constexpr std::string_view library = "320E27E0-A91E-4A22-8CAB-3D96B34084B5";
inline constexpr std::string_view libraryVersion = "1.0";

inline constexpr std::string_view velaClass = "77678695-52FF-4469-9181-A2CD883F9379";
inline constexpr std::string_view velaInterface = "4D7A0FB5-AF9C-4184-9FFB-96C0BA26BC14";
inline constexpr std::string_view velaEvents = "F6D5EEEE-D980-4204-9371-5CF4E6029B4B";

inline constexpr std::u16string_view velaProgId = u"Vela.Vela.1";
inline constexpr std::u16string_view velaName = u"Vela"; // as people see it

inline constexpr std::string_view calendarClass = "97711B87-63AC-48FB-A8FD-378D74FA385D";
inline constexpr std::string_view calendarInterface = "7D3F2E39-F608-496F-9B73-B4BC1C9C3C5C";
inline constexpr std::string_view calendarEvents = "ADC88CD0-68E7-4CF3-94B9-334DC928BE10";

inline constexpr std::u16string_view calendarProgId = u"Vela.cCalendar.1";
inline constexpr std::u16string_view calendarName = u"cCalendar";

// Recompose on resize, no linking inside, active from the start and whenever visible, client site first.
inline constexpr std::uint32_t miscStatus = 0x20191;

inline constexpr std::string_view principalPage = "F889477E-467F-470B-A346-44368DCC6E6A";
inline constexpr std::string_view geralPage = "08C0BE6B-0068-47EC-9E41-62ACB4A676C2";
inline constexpr std::string_view errosPage = "BFBCA6A3-608B-405F-8290-8C6BE72B76D0";
inline constexpr std::string_view fontePage = "2FDC0DB2-8132-4C5A-B37D-CF907FD307D6";
inline constexpr std::string_view calendarioPage = "3DC72180-6270-474A-990F-1ECF13E8BB52";

// Of the enumerations, in the order of engine::enumerations().
inline constexpr std::string_view enumerations[] = {
    "E9FD22ED-ED64-4BF9-991B-A65D27A3F550", "B3A9A166-8512-409C-A523-41BBCBC44A50",
    "8A85CE17-A2F6-4017-9647-8FCA83A4861E", "1C23CB81-DA73-4BEC-9CDD-3E499827C14B",
    "EA0F6F37-636C-4E50-BBD0-D3A080A2856E", "9E14D6B4-0ECF-4E4E-B6E7-C9263E9D8885",
    "C92AAC89-D11A-4B9B-91AC-159C2C5A2463", "2D0E42C2-7E95-473D-A64C-705B2314E782",
};

} // namespace vela::activex::identity

namespace vela::activex {

// "{320E27E0-A91E-4A22-8CAB-3D96B34084B5}"
[[nodiscard]] inline std::wstring keyOf(std::string_view identity)
{
    return L"{" + std::wstring(identity.begin(), identity.end()) + L"}";
}

} // namespace vela::activex
