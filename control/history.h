// What a person did to a field's text, for undo and redo: small steps in one ring of characters.
#pragma once

#include "platform/edit_box.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vela::control {

// Bounded: the oldest steps go when it is full. Once it has grown to its bound nothing is allocated.
class History {
public:
    // `joined`: undone and redone together with the step before it.
    void add(const platform::Edit& edit, bool joined);
    void clear() noexcept;

    // Edit `text` in place; the selection to put after writing it. Nothing when there is no step left. A text that is
    // not as the history left it ends the history.
    [[nodiscard]] std::optional<platform::Selection> undo(std::u16string& text);
    [[nodiscard]] std::optional<platform::Selection> redo(std::u16string& text);

private:
    struct Step {
        int at = 0;
        int removed = 0;
        int inserted = 0;
        platform::Selection before;
        bool joined = false;
    };

    void dropUndone();
    void dropOldest();
    [[nodiscard]] static std::size_t unitsOf(const Step& step) noexcept;

    std::vector<Step> steps_;
    std::u16string units_;      // of every step: removed, then inserted
    std::size_t done_ = 0;      // steps that can be undone; those behind can be redone
    std::size_t doneUnits_ = 0; // where the units of the first undone step begin
};

} // namespace vela::control
