// Texts in the single-byte code page of Western Windows.
#pragma once

#include <string>
#include <string_view>

namespace vela::console {

// Windows-1252 to UTF-8; the five bytes without a character become the control character of their number.
[[nodiscard]] std::string utf8FromAnsi(std::string_view bytes);

} // namespace vela::console
