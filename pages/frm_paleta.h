// frmPaleta: a modal dialog that offers 32 fixed colours and one of the person's own, by red, green and blue.
#pragma once

#include "pages/property_object.h"
#include "platform/desktop.h"
#include "platform/form.h"

#include <cstdint>
#include <functional>
#include <memory>

namespace vela::pages {

// One object for each use. The chosen colour is whichever was set last: by the swatch that took the focus or by a
// change of the three boxes.
class frmPaleta final : private platform::ClickEvents,
                        private platform::EntryEvents,
                        private platform::KeyDownEvents,
                        private platform::KeyPressEvents {
public:
    // An amount beyond 16 bits is an error: told in a box of the desktop, or, without one, raised to who typed it.
    explicit frmPaleta(platform::FormFactory& forms, platform::Desktop* desktop = nullptr);

    void showModal() { form_->showModal(); }
    [[nodiscard]] engine::Colour chosenColour() const noexcept { return colour_; }
    // Only the cancel button cancels. Black is chosen when nothing was.
    // Oddity: closing the palette by its close command counts as OK; developers close it that way and expect their
    // colour.
    [[nodiscard]] bool cancelled() const noexcept { return cancelled_; }
    [[nodiscard]] engine::Colour preview() const;
    [[nodiscard]] platform::Form& form() noexcept { return *form_; }
    [[nodiscard]] const platform::FormLayout& layout() const noexcept;

private:
    void clicked(platform::WidgetId widget) override;
    void changed(platform::WidgetId widget) override;
    void gotFocus(platform::WidgetId widget) override;
    void lostFocus(platform::WidgetId widget) override;
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void keyPress(platform::WidgetId widget, int& key) override;

    [[nodiscard]] platform::WidgetId id(std::u16string_view name, int index = -1) const;
    [[nodiscard]] bool isAmount(platform::WidgetId widget) const;
    [[nodiscard]] int amount(std::u16string_view box) const; // 16 bits; raises 6 beyond them
    void takeAmounts();
    void end(bool cancelled);
    void putBorder(platform::WidgetId swatch, bool on);
    void moveFrom(platform::WidgetId swatch, int arrow); // to the next swatch that way, if there is one

    platform::Desktop* desktop_;
    engine::Colour colour_{0};
    bool cancelled_ = false;
    std::uint8_t selected_ = 0; // index of the swatch that last took the focus
    std::unique_ptr<platform::Form> form_;
};

// Shows a fresh palette at every call.
class PaletteChooser final : public ColourChooser {
public:
    PaletteChooser(platform::FormFactory& forms, platform::Desktop& desktop) noexcept : forms_(forms), desktop_(desktop)
    {
    }
    [[nodiscard]] std::optional<engine::Colour> choose() override;

private:
    platform::FormFactory& forms_;
    platform::Desktop& desktop_;
};

} // namespace vela::pages
