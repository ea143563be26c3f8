// UTF-8 and UTF-16, one into the other.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace vela::engine {

[[nodiscard]] std::optional<std::u16string> fromUtf8(std::string_view bytes); // nothing for what is no UTF-8
[[nodiscard]] std::string toUtf8(std::u16string_view text);                   // a lone surrogate as U+FFFD

} // namespace vela::engine
