// How the field tests write a box: "|" is the caret, "[" and "]" the selection (the caret stands at its start).
#pragma once

#include <algorithm>
#include <string>
#include <string_view>

namespace vela::engine::test {

struct Box {
    std::u16string text;
    int caret = 0;
    int selected = 0;
};

// "AB|_-" -> text "AB_-", caret 2; "1[23]4" -> text "1234", caret 1, selected 2; without a mark: caret 0.
inline Box box(std::u16string_view marked)
{
    Box result;
    for (const char16_t unit : marked) {
        const int position = static_cast<int>(result.text.size());
        if (unit == u'|' || unit == u'[')
            result.caret = position;
        else if (unit == u']')
            result.selected = position - result.caret;
        else
            result.text.push_back(unit);
    }
    return result;
}

// A caret beyond the text is cut to its end, as a box cuts it.
inline std::u16string marked(std::u16string_view text, int caret)
{
    std::u16string result(text);
    result.insert(std::min(static_cast<std::size_t>(caret), text.size()), 1, u'|');
    return result;
}

} // namespace vela::engine::test
