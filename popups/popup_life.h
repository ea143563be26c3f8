// The life of a pop-up's window, alike for the calendar and the calculator: whose it is, and when it goes away.
#pragma once

#include "platform/environment.h"
#include "platform/form.h"
#include "popups/own_box.h"
#include "popups/owner.h"
#include "popups/popup_record.h"

#include <memory>
#include <string_view>

namespace vela::popups {

class PopupLife final : public platform::PopupEvents {
public:
    // All outlive the object; `events` are those of the widgets, `first` gets the focus when the pop-up becomes active,
    // the label heads what the timer writes to the log.
    PopupLife(platform::Environment& environment, platform::FormFactory& forms, const platform::FormLayout& layout,
              platform::FormEvents events, PopupRecord& record, platform::WidgetId first, std::u16string_view label);
    ~PopupLife() { loaded_ = false; } // destroying the window is not reported as closing
    PopupLife(const PopupLife&) = delete;
    PopupLife& operator=(const PopupLife&) = delete;

    [[nodiscard]] platform::Form& form() const noexcept { return *form_; }
    void unload(); // once; the pop-up stays until its record lets go of it
    [[nodiscard]] bool isLoaded() const noexcept { return loaded_; }

    void activated() override; // runs pending events; one of them may close the pop-up
    void deactivated() override;
    void tick() override;
    void closed() override;

    Owner* owner = nullptr;
    OwnBoxes boxes; // while one is up, the pop-up stays open

private:
    platform::Environment& environment_;
    PopupRecord& record_;
    platform::WidgetId first_;
    std::u16string_view label_;
    bool loaded_ = false;
    std::unique_ptr<platform::Form> form_;
};

} // namespace vela::popups
