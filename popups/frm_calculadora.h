// The calculator that a number field opens: F2 writes the display into the owner's Text and closes it.
#pragma once

#include "popups/calculator_model.h"
#include "popups/own_box.h"
#include "popups/popup_form.h"

namespace vela::popups {

class frmCalculadora final : public PopupForm {
public:
    // Loads with the display "0.". All outlive the object.
    frmCalculadora(platform::Environment& environment, platform::FormFactory& forms, PopupRecord& record);
    ~frmCalculadora() { discard(); }

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

    void show(engine::RectPixels place, platform::WindowId parent) override;

    void clicked(platform::WidgetId widget) override;
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void keyPress(platform::WidgetId widget, int& key) override;

private:
    void focusFirst() override;
    [[nodiscard]] bool boxUp() const override { return boxes_.anyUp(); }
    void load();
    [[nodiscard]] platform::WidgetLook lookOf(platform::WidgetId id) const;
    void nameButtons();
    void paintDisplay();
    void digit(int digit);
    void operation(int index);
    void percent();
    bool conventionalKey(int code);
    void take(const CalculatorAnswer& answer);
    void valueToOwner();
    [[nodiscard]] const engine::Locale& locale() const { return environment_.locales.locale(); }

    CalculatorModel model_;
    OwnBoxes boxes_;
};

} // namespace vela::popups
