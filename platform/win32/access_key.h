// Access keys in captions: "C&E" marks the E, "&&" is an ampersand, or a row of the table names the character.
#pragma once

#include "platform/widgets.h"

#include <string>
#include <string_view>

namespace vela::win32 {

[[nodiscard]] char16_t accessKeyOf(const platform::Widget& widget) noexcept; // 0 without one
// "Te&ste": as the system takes a caption whose access key it is to underline, where a word begins if one does.
[[nodiscard]] std::u16string markedCaption(const platform::Widget& widget);
[[nodiscard]] std::u16string withoutAccessKey(std::u16string_view caption);

} // namespace vela::win32
