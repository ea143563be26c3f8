// What stands on a form in memory and can take its focus, and the acts of a person that it takes.
#pragma once

#include "engine/geometry.h"
#include "platform/edit_box.h"
#include "platform/headless/keys.h"

#include <optional>
#include <string>
#include <string_view>

namespace vela::headless {

class FormWindow;

// What a person does at the element that has the focus.
struct Act {
    enum Kind {
        strike,
        paste,        // as the field has it: through its filter
        pasteIntoBox, // as the box itself has it: whole, cut to fit, refused when locked
        cut,
        undo,
        redo,
        placeCaret, // cut to the text
        click,
        doubleClick, // a click and the second one
    };
    Kind kind = click;
    Key key = {};
    std::u16string_view text = {};
    int start = 0; // of the caret
    int length = 0;
};

// Something on the form that can take the focus. When it is destroyed it is removed from the form without reporting
// that the focus left.
class Element {
public:
    Element(FormWindow& form, std::u16string name);
    Element(const Element&) = delete;
    Element& operator=(const Element&) = delete;
    virtual ~Element();

    [[nodiscard]] const std::u16string& name() const noexcept { return name_; }
    [[nodiscard]] FormWindow& form() const noexcept { return form_; }

    // What the form asks of it; a plain element takes the focus and ignores the rest.
    [[nodiscard]] virtual bool acceptsFocus() const { return true; }
    [[nodiscard]] virtual platform::WindowId pointerWindow() const { return {}; } // the one under a pointer over it
    // The screen place of its window of that id.
    [[nodiscard]] virtual std::optional<engine::PointPixels> originOf(platform::WindowId) const { return std::nullopt; }
    virtual void enter() {}
    virtual void leave(platform::Leaving) {}
    virtual void take(const Act&) {}
    virtual void pointerMoved() {}
    virtual void tick() {}

private:
    FormWindow& form_;
    std::u16string name_;
};

} // namespace vela::headless
