// The life of a pop-up's window, alike for the calendar and the calculator: whose it is, and when it goes away.
#pragma once

#include "platform/environment.h"
#include "platform/form.h"
#include "popups/owner.h"
#include "popups/popup_record.h"

#include <memory>
#include <string_view>

namespace vela::popups {

// The pop-up hands on what the form reports of its activation, its timer and its closing.
class PopupLife {
public:
    // All outlive the object; the label heads what the timer writes to the log.
    PopupLife(platform::Environment& environment, platform::FormFactory& forms, const platform::FormLayout& layout,
              platform::FormEvents& events, PopupRecord& record, std::u16string_view label);
    ~PopupLife() { loaded_ = false; } // destroying the window is not reported as closing
    PopupLife(const PopupLife&) = delete;
    PopupLife& operator=(const PopupLife&) = delete;

    [[nodiscard]] platform::Form& form() const noexcept { return *form_; }
    void unload(); // once; the pop-up stays until its record lets go of it
    [[nodiscard]] bool isLoaded() const noexcept { return loaded_; }

    // The form became active. Runs pending events; false when one of them has closed the pop-up. Called while a handler
    // runs.
    [[nodiscard]] bool activated();
    // `boxUp`: a message box of the pop-up itself is up, so the pop-up stays open.
    void deactivated(bool boxUp);
    void tick(bool boxUp);
    void closed();

    Owner* owner = nullptr;

private:
    platform::Environment& environment_;
    PopupRecord& record_;
    std::u16string_view label_;
    bool loaded_ = false;
    std::unique_ptr<platform::Form> form_;
};

} // namespace vela::popups
