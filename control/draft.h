// What a paste makes of the text: its keys are typed here one by one, and the box is written once.
#pragma once

#include "control/context.h"
#include "engine/field/keystroke.h"

namespace vela::control {

struct Draft {
    explicit Draft(Context& context);

    [[nodiscard]] engine::KeyBox seen() noexcept;
    void placeCaret(int caret) noexcept { selection = {caret, 0}; }
    [[nodiscard]] bool insert(std::u16string_view typed); // false when it is locked or full

    std::u16string before;
    std::u16string text;
    platform::Selection selectionBefore;
    platform::Selection selection;
    int maxLength = 0;
    bool locked = false;
};

} // namespace vela::control
