// Makes forms of real BUTTON, COMBOBOX, LISTBOX and EDIT windows from the neutral table; labels and frames are painted.
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

class FormFactory final : public platform::FormFactory {
public:
    // Always a win32::FormWindow.
    [[nodiscard]] std::unique_ptr<platform::Form> make(const platform::FormLayout& layout,
                                                       const platform::FormEvents& events) override;
};

} // namespace vela::win32
