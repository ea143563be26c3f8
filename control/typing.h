// What a person types: keys and their filter, paste, cut, undo, redo, and what follows a change of the text.
#pragma once

#include "control/content.h"
#include "engine/field/keystroke.h"
#include "engine/field/number_display.h"
#include "popups/owner.h"

#include <memory>
#include <string_view>

namespace vela::control {

struct Draft;

class Typing {
public:
    Typing(Context& context, Content& content, popups::Owner& owner)
        : context_(context), content_(content), owner_(owner)
    {
    }

    void keyDown(int& code, int& shift);
    void keyPress(int& key);
    void controlPress(int& key);
    void keyUp(int code, int shift);
    void changed(const platform::Edit& edit);
    void paste(std::u16string_view text);
    void cut();
    void restore(bool backwards); // undo or redo
    void openPopup();             // of the field's type, if it has one

private:
    void reformatLive();
    void keyDownByType(int code);
    void sKeyDown(int code);
    [[nodiscard]] engine::KeystrokeSettings keystrokeSettings() const;
    [[nodiscard]] int plainKey(int key) const noexcept;
    [[nodiscard]] int filterKey(int key, Draft* draft = nullptr); // what is left for the box; 0: nothing
    [[nodiscard]] engine::KeyPlan planKey(int key, engine::KeyTurn turn);
    [[nodiscard]] engine::KeyPlan planKey(int key, engine::KeyTurn turn, Draft& draft);
    void logKeyFailure(const engine::Error& failure, bool mask);
    void tabBehind(int key, Draft* draft);
    [[nodiscard]] bool raiseKeyPress(int& key); // false: the control is gone
    [[nodiscard]] bool typeInto(Draft& draft, char16_t unit);
    void keep(const platform::Edit& edit);

    Context& context_;
    Content& content_;
    popups::Owner& owner_; // of the pop-ups
    std::unique_ptr<engine::LivePattern> livePattern_;
    bool keypadDecimal_ = false; // the next character comes from the keypad's decimal key
};

} // namespace vela::control
