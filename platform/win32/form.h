// Forms of real BUTTON, COMBOBOX, LISTBOX and EDIT windows from the neutral table; labels and frames are painted.
#pragma once

#include "platform/form.h"

#include <windows.h>

#include <memory>

namespace vela::win32 {

// What the parent of a child form wants to know beyond what its logic does. May destroy the form.
class FormListener {
public:
    virtual void focusEntered() = 0;    // the focus came into the form or one of its windows
    virtual void focusLeft() = 0;       // to another window than one of those
    virtual void windowDestroyed() = 0; // by another than leaveParent()

protected:
    ~FormListener() = default;
};

// Keeps all values itself. Its windows are made when it is shown and go when it is closed or leaves its parent.
class Form : public platform::Form {
public:
    // As a child of `parent` (a property page of a frame), at this place, in pixels, at the natural size's scale.
    virtual void showChild(HWND parent, const RECT& place) = 0;
    // Null: none, which is how a form begins. With one, a click anywhere in a child form takes the focus.
    virtual void setListener(FormListener* listener) noexcept = 0;
    virtual void showChildWindow(bool visible) = 0;
    virtual void moveChild(const RECT& place) = 0;
    virtual void putDead(bool dead) = 0; // keys and clicks are not answered
    virtual void leaveParent() = 0;      // the windows go, the values stay
    // Tab, arrows and access keys among its widgets; true when the message was one of them. Enter and Esc are left
    // to the frame.
    [[nodiscard]] virtual bool translate(MSG& message) = 0;
    // Of its client area as the table gives it, at this many dots per inch.
    [[nodiscard]] virtual SIZE naturalSize(int dpi) const = 0;
    [[nodiscard]] virtual HWND handle() const noexcept = 0;
};

class FormFactory final : public platform::FormFactory {
public:
    // Always a win32::Form.
    [[nodiscard]] std::unique_ptr<platform::Form> make(const platform::FormLayout& layout,
                                                       const platform::FormEvents& events) override;
};

} // namespace vela::win32
