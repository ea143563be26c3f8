// What a pop-up knows of the control that opened it.
#pragma once

#include "engine/geometry.h"
#include "engine/value.h"
#include "platform/control_host.h"

#include <string>

namespace vela::popups {

class Owner {
public:
    [[nodiscard]] virtual std::u16string popupText() = 0; // the edit box's text
    // Through the control's Text setter; a field that has the focus then takes its entry form.
    virtual void putPopupText(const engine::Value& value) = 0;
    virtual void hideEntryTip() = 0; // a pop-up is about to be shown
    virtual void takePopupFocus() = 0;
    [[nodiscard]] virtual engine::RectPixels popupAnchor() = 0; // the control's window on the screen
    [[nodiscard]] virtual platform::ParentForm popupParent() = 0;

protected:
    ~Owner() = default;
};

} // namespace vela::popups
