// The box as a paste finds it, and what its keys make of it.
#include "control/draft.h"

#include <algorithm>

namespace vela::control {

Draft::Draft(Context& context)
{
    context.readText(before);
    text = before;
    const int length = static_cast<int>(text.size());
    selectionBefore = context.box().selection();
    selection.start = std::clamp(selectionBefore.start, 0, length);
    selection.length = std::clamp(selectionBefore.length, 0, length - selection.start);
    maxLength = context.box().traits().maxLength;
    locked = context.box().traits().locked;
}

engine::KeyBox Draft::seen() noexcept
{
    return {.text = &text,
            .length = static_cast<int>(text.size()),
            .caret = selection.start,
            .selected = selection.length,
            .maxLength = maxLength};
}

bool Draft::insert(std::u16string_view typed)
{
    const auto start = static_cast<std::size_t>(selection.start);
    const auto length = static_cast<std::size_t>(selection.length);
    if (locked || start + length > text.size())
        return false;
    if (maxLength > 0 && text.size() - length + typed.size() > static_cast<std::size_t>(maxLength))
        return false;
    text.replace(start, length, typed);
    placeCaret(static_cast<int>(start + typed.size()));
    return true;
}

} // namespace vela::control
