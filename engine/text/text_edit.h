// The edit that turns one text into another.
#pragma once

#include <string_view>

namespace vela::engine {

// `removed` at `at` gives way to `inserted`: views into the two texts.
struct TextEdit {
    int at = 0;
    std::u16string_view removed;
    std::u16string_view inserted;
};

// What the texts have in common at their beginning and their end is left out. "12,34" -> "1.234": 1, "2,", ".2".
[[nodiscard]] TextEdit editBetween(std::u16string_view from, std::u16string_view to);

// Of several edits that would do, the one that happened at the caret: `start` and `end` enclosed the selection before
// it, the caret stands at `caret` behind it. "a[Xa]" -> "aa|": 1, "Xa", "a".
[[nodiscard]] TextEdit editAtCaret(std::u16string_view from, std::u16string_view to, int start, int end, int caret);

} // namespace vela::engine
