// A real EDIT window as the inner box of a field; without a window it keeps text and selection itself.
#pragma once

#include "engine/alive.h"
#include "platform/edit_box.h"
#include "platform/win32/fonts.h"

#include <windows.h>

#include <optional>
#include <string>

namespace vela::win32 {

class ControlSurface;
class EditDropTarget;
class FocusArbiter;

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

    // For the surface.
    void createWindow(const RECT& place, bool visible);
    void destroyWindow();
    void fontScaleChanged();
    void editChanged() noexcept;                               // EN_CHANGE
    void settleLoan() noexcept;                                // the focus leaves a part of the field that is no box
    [[nodiscard]] bool ownsWindow(HWND window) const noexcept; // one of its field's
    // For the focus arbiter.
    void enter();
    void leave(HWND next);
    bool regainFocus(); // false when it may not have it
    void goneForGood(); // the focus that it asked for will not return
    void letGo();       // its windows are about to be destroyed: reports lostFocus() when it was entered
    // For the drop target: the text falls at a point of the screen.
    void dropped(std::u16string_view text, POINT point);

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept;
    LRESULT handle(UINT message, WPARAM first, LPARAM second);
    LRESULT onKeyDown(UINT message, WPARAM code, LPARAM data);
    LRESULT onKeyUp(UINT message, WPARAM code, LPARAM data);
    LRESULT onChar(WPARAM unit, LPARAM data);
    LRESULT onControl(WPARAM unit, LPARAM data);
    LRESULT onTab(const MSG& key, bool back);
    LRESULT onUnicode(WPARAM codePoint, LPARAM data);
    LRESULT onComposition(WPARAM first, LPARAM flags);
    LRESULT onFocus(WPARAM first, LPARAM second);
    LRESULT onFocusLost(HWND next, LPARAM second);
    LRESULT onButtonUp(WPARAM first, LPARAM second);
    LRESULT onDoubleClick(WPARAM first, LPARAM second);
    LRESULT onMove(WPARAM first, LPARAM second);
    LRESULT onMenu(LPARAM point);
    LRESULT onDestroyed(WPARAM first, LPARAM second);
    LRESULT dialogCode(WPARAM first, LPARAM second);
    bool shortcut(int code, int shift);
    void command(UINT command);
    void paste();
    void copy() const;
    void cut(bool keep); // for the clipboard

    LRESULT pass(UINT message, WPARAM first, LPARAM second); // to the EDIT, then reports what it changed
    LRESULT native(UINT message, WPARAM first, LPARAM second) const noexcept;
    void readWindow(std::u16string& into) const;
    void adopt(platform::Selection before, bool typed); // the window's text, reported when it is another one
    void report(const platform::Edit& edit);
    void keepState();
    void rebuild();
    [[nodiscard]] DWORD style(bool visible) const noexcept;
    void applyFont();
    void applyPassword() const;
    void applyLimit() const;
    [[nodiscard]] platform::EditBoxEvents* events() const noexcept;
    [[nodiscard]] bool isSingle() const noexcept { return kind_ == platform::EditBoxKind::singleLine; }

    engine::Life life_;
    ControlSurface& surface_;
    platform::EditBoxKind kind_;
    bool entered_ = false;     // gotFocus() reported, lostFocus() not yet
    bool quiet_ = false;       // the text is being written by the control
    bool changed_ = false;     // the window may hold another text than text_; to be reported when the EDIT has returned
    bool swallowChar_ = false; // the key-down handler took the key
    std::optional<int> shift_; // as of the last key here; nothing before the first
    bool skipClick_ = false;   // the button's way up after a double click
    bool rebuilding_ = false;
    bool dropTarget_ = false;
    int passing_ = 0;
    HWND edit_ = nullptr;
    WNDPROC original_ = nullptr;
    FocusArbiter& arbiter_;
    platform::EditColours colours_;
    platform::EditTraits traits_;
    SharedFont font_;
    std::u16string text_;
    std::u16string former_;    // the text before the edit that is being reported
    platform::Selection kept_; // while there is no window
};

} // namespace vela::win32
