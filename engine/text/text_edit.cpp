// Two texts compared from their ends, or around the caret.
#include "engine/text/text_edit.h"

#include <algorithm>
#include <cstddef>

namespace vela::engine {
namespace {

// The middles left over by `head` code units at the beginning and `tail` at the end.
TextEdit between(std::u16string_view from, std::u16string_view to, std::size_t head, std::size_t tail)
{
    return {static_cast<int>(head), from.substr(head, from.size() - tail - head),
            to.substr(head, to.size() - tail - head)};
}

} // namespace

TextEdit editBetween(std::u16string_view from, std::u16string_view to)
{
    const std::size_t shorter = std::min(from.size(), to.size());
    const auto head = static_cast<std::size_t>(std::ranges::mismatch(from, to).in1 - from.begin());
    std::size_t tail = 0;
    while (tail < shorter - head && from[from.size() - 1 - tail] == to[to.size() - 1 - tail])
        ++tail;
    return between(from, to, head, tail);
}

TextEdit editAtCaret(std::u16string_view from, std::u16string_view to, int start, int end, int caret)
{
    const auto head = static_cast<std::size_t>(std::max(0, std::min(start, caret)));
    const auto behind = [](std::u16string_view text, int position) {
        return text.size() - std::min(text.size(), static_cast<std::size_t>(std::max(position, 0)));
    };
    const std::size_t tail = std::min(behind(from, end), behind(to, caret));
    const bool fits = head + tail <= std::min(from.size(), to.size()) && from.substr(0, head) == to.substr(0, head) &&
                      from.substr(from.size() - tail) == to.substr(to.size() - tail);
    return fits ? between(from, to, head, tail) : editBetween(from, to);
}

} // namespace vela::engine
