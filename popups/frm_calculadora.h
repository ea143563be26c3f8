// The calculator that a number field opens: F2 writes the display into the owner's Text and closes it.
#pragma once

#include "popups/calculator_model.h"
#include "popups/popup_life.h"

namespace vela::popups {

class frmCalculadora final : private platform::ClickEvents,
                             private platform::KeyDownEvents,
                             private platform::KeyPressEvents {
public:
    // Loads with the display "0.". All outlive the object.
    frmCalculadora(platform::Environment& environment, platform::FormFactory& forms, PopupRecord& record);
    frmCalculadora(const frmCalculadora&) = delete;
    frmCalculadora& operator=(const frmCalculadora&) = delete;

    void setOwner(Owner* owner) noexcept { life_.owner = owner; }
    [[nodiscard]] Owner* owner() const noexcept { return life_.owner; }

    void continueNumber() noexcept { model_.continueNumber(); }
    void handOver(bool decimalFlag) noexcept { model_.handOver(decimalFlag); }
    void putDisplay(std::u16string_view text);
    [[nodiscard]] std::u16string display() const;
    [[nodiscard]] const CalculatorModel& model() const noexcept { return model_; }

    // As a mouse click does: the focus goes to the button, then its handler runs. Raises 6 on overflow.
    void clickWithMouse(platform::WidgetId button);
    // As keys at the focused button do. F2 raises 13 for a display that is no number, and what the owner's Text raises.
    void typeCharacter(char16_t character);
    void pressF2();

    void show(engine::RectPixels place, platform::WindowId parent);
    void unload() { life_.unload(); }
    void closed() { life_.closed(); }

private:
    void clicked(platform::WidgetId widget) override;
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void keyPress(platform::WidgetId widget, int& key) override;
    void load();
    void nameButtons();
    void paintDisplay();
    void digit(int digit);
    void operation(int index);
    void percent();
    bool conventionalKey(int code);
    void take(const CalculatorAnswer& answer);
    void valueToOwner();
    [[nodiscard]] const engine::Locale& locale() const { return environment_.locales.locale(); }

    platform::Environment& environment_;
    PopupRecord& record_;
    PopupLife life_;
    CalculatorModel model_;
};

} // namespace vela::popups
