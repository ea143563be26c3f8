// A real EDIT window as the inner box of a field; without a window it keeps text and selection itself.
#pragma once

#include "platform/edit_box.h"
#include "platform/win32/fonts.h"
#include "platform/win32/life.h"

#include <windows.h>

#include <string>

namespace vela::win32 {

class ControlSurface;

class EditBox final : public platform::EditBox {
public:
    EditBox(ControlSurface& surface, platform::EditBoxKind kind);
    ~EditBox() override;

    void text(std::u16string& into) const override;
    [[nodiscard]] int textLength() const override;
    void putText(std::u16string_view text) override;
    void insert(std::u16string_view text) override;
    [[nodiscard]] platform::Selection selection() const override;
    void select(platform::Selection selection) override;
    [[nodiscard]] platform::EditColours colours() const override { return colours_; }
    void putColours(platform::EditColours colours) override;
    [[nodiscard]] const platform::EditTraits& traits() const override { return traits_; }
    void putTraits(const platform::EditTraits& traits) override;
    void takeFocus() override;
    [[nodiscard]] bool hasFocus() const override;
    bool showBalloon(int icon, std::u16string_view title, std::u16string_view text) override;
    void hideBalloon() override;
    [[nodiscard]] platform::WindowId window() const override;

    [[nodiscard]] HWND handle() const noexcept { return edit_; }
    [[nodiscard]] platform::EditBoxKind kind() const noexcept { return kind_; }

private:
    friend class ControlSurface;
    friend class FocusArbiter;
    friend class EditDropTarget;

    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
};

} // namespace vela::win32
