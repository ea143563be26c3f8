// Forms of real BUTTON, COMBOBOX, LISTBOX and EDIT windows from the neutral table; labels and swatches are painted.
#pragma once

#include "platform/form.h"

#include <windows.h>

#include <memory>

namespace vela::win32 {

// The window exists from the start, hidden; how it is shown decides what it becomes.
class Form : public platform::Form {
public:
    // As a child of `parent` (a property page of a frame): fills this place, in pixels. Tab goes through it.
    virtual void showChild(HWND parent, const RECT& place) = 0;
    virtual void hide() = 0;
    virtual void move(const RECT& place) = 0; // of a child
    // Back to a hidden window of its own; the values stay.
    virtual void leaveParent() = 0;
    // Tab, arrows and access keys among its widgets; true when the message was one of them.
    [[nodiscard]] virtual bool translate(MSG& message) = 0;
    // Of its client area as the table gives it, at this many dots per inch.
    [[nodiscard]] virtual SIZE naturalSize(int dpi) const = 0;
    [[nodiscard]] virtual HWND handle() const noexcept = 0;
    // Draws the form as it stands (print, picture).
    virtual void draw(HDC dc, const RECT& place) const = 0;
};

class FormFactory final : public platform::FormFactory {
public:
    // Always a win32::Form.
    [[nodiscard]] std::unique_ptr<platform::Form> make(const platform::FormLayout& layout,
                                                       platform::FormEvents& events) override;
};

} // namespace vela::win32
