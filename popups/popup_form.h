// What the pop-up calendar and the calculator have in common: their owner, their window, and when it goes away.
#pragma once

#include "platform/environment.h"
#include "platform/form.h"
#include "popups/owner.h"
#include "popups/popup_record.h"

#include <memory>
#include <string_view>

namespace vela::popups {

class PopupForm : public platform::FormEvents {
public:
    PopupForm(const PopupForm&) = delete;
    PopupForm& operator=(const PopupForm&) = delete;

    void setOwner(Owner* owner) noexcept { owner_ = owner; }
    [[nodiscard]] Owner* owner() const noexcept { return owner_; }

    virtual void show(engine::RectPixels place, platform::WindowId parent);
    void unload(); // once; the object stays until its record lets go of it
    [[nodiscard]] bool isLoaded() const noexcept { return loaded_; }
    [[nodiscard]] bool isShown() const { return loaded_ && form_->isShown(); }

    void doubleClicked(platform::WidgetId) override {}
    void changed(platform::WidgetId) override {}
    void gotFocus(platform::WidgetId) override {}
    void lostFocus(platform::WidgetId) override {}
    void activated() override;
    void deactivated() override;
    void tick() override;
    void closed() override;

protected:
    // All outlive the object; the label heads what the timer writes to the log.
    PopupForm(platform::Environment& environment, platform::FormFactory& forms, const platform::FormLayout& layout,
              PopupRecord& record, std::u16string_view label);
    ~PopupForm() = default;

    void discard() noexcept; // for the derived destructor: the window goes while there still is who hears of it

    virtual void focusFirst() = 0;                // once it has come to the front
    [[nodiscard]] virtual bool boxUp() const = 0; // a message box of its own: it stays meanwhile

    platform::Environment& environment_;
    PopupRecord& record_;
    Owner* owner_ = nullptr;
    std::unique_ptr<platform::Form> form_;

private:
    std::u16string_view label_;
    bool loaded_ = false;
};

} // namespace vela::popups
