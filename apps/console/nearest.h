// Which of the known words a mistyped one was meant to be.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

namespace vela::console {

// The known word that takes the fewest changes of one character (or of two neighbours' order), ignoring case; none when
// it is a known one itself or more than a third of the word would have to change. "fcous" -> "focus"
[[nodiscard]] std::optional<std::u16string_view> nearest(std::u16string_view word,
                                                         const std::vector<std::u16string_view>& known);

} // namespace vela::console
