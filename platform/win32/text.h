// UTF-16 between the system's wchar_t and the engine's char16_t, and to the narrow code page.
#pragma once

#include <string>
#include <string_view>

namespace vela::win32 {

static_assert(sizeof(wchar_t) == sizeof(char16_t));

[[nodiscard]] inline const wchar_t* wide(const char16_t* text) noexcept
{
    return reinterpret_cast<const wchar_t*>(text);
}
[[nodiscard]] inline wchar_t* wide(char16_t* text) noexcept
{
    return reinterpret_cast<wchar_t*>(text);
}
[[nodiscard]] inline std::wstring wide(std::u16string_view text)
{
    return {wide(text.data()), text.size()};
}
[[nodiscard]] inline std::u16string_view asText(std::wstring_view text) noexcept // the same units, not copied
{
    return {reinterpret_cast<const char16_t*>(text.data()), text.size()};
}
[[nodiscard]] inline std::u16string utf16(std::wstring_view text)
{
    return std::u16string(asText(text));
}
// In the process's narrow code page.
[[nodiscard]] std::string narrow(std::u16string_view text);

} // namespace vela::win32
