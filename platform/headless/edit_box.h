// An edit box in memory: text, selection, colours and traits, and what a person's keys do to them.
#pragma once

#include "engine/alive.h"
#include "platform/edit_box.h"
#include "platform/headless/fault.h"
#include "platform/headless/keys.h"

#include "engine/error.h"

#include <memory>
#include <optional>
#include <string>

namespace vela::headless {

class ControlSurface;

// The operations of a box that can be made to fail once: text, put-text, put-caret, put-colour.
enum class BoxOperation { text, putText, putCaret, putColour };

class EditBox final : public platform::EditBox {
public:
    EditBox(ControlSurface& surface, platform::EditBoxKind kind);
    EditBox(const EditBox&) = delete;
    EditBox& operator=(const EditBox&) = delete;
    ~EditBox() override;

    // The field's own operations: each may be made to fail.
    void text(std::u16string& into) const override;
    [[nodiscard]] int textLength() const override;
    void putText(std::u16string_view text) override;
    void insert(std::u16string_view text) override;
    [[nodiscard]] platform::Selection selection() const override { return selection_; }
    void select(platform::Selection selection) override;
    [[nodiscard]] platform::EditColours colours() const override { return colours_; }
    void putColours(platform::EditColours colours) override;
    [[nodiscard]] const platform::EditTraits& traits() const override { return traits_; }
    void putTraits(const platform::EditTraits& traits) override;
    void takeFocus() override;
    [[nodiscard]] bool hasFocus() const override;
    bool showBalloon(int icon, std::u16string_view title, std::u16string_view text) override;
    void hideBalloon() override;
    [[nodiscard]] platform::WindowId window() const override { return window_; }

    // The next such operation raises the error, once; a second one for the same operation replaces the first.
    void failNext(BoxOperation operation, engine::Error error);

    // What stands in the box, without being an operation of it.
    [[nodiscard]] const std::u16string& shownText() const noexcept { return text_; }
    [[nodiscard]] platform::EditBoxKind kind() const noexcept { return kind_; }

    // Acts of a person, reported to the box's events.
    void key(Key key);
    void paste(std::u16string_view text) { fill(text, false); } // without the field's filter
    void placeCaret(int start, int length);
    void clickAtEnd();
    void doubleClick();

private:
    struct Failures;

    void check(BoxOperation operation) const
    {
        faults_.pass();
        if (failures_)
            failIfAsked(operation);
    }
    void failIfAsked(BoxOperation operation) const;
    void replace(platform::Selection part, std::u16string_view by, bool typed);
    void erase(int start, int length);
    void applyCharacter(int key);
    void typeText(std::u16string_view text);
    void fill(std::u16string_view text, bool typed); // the selection, cut to fit
    void applyNamedKey(int code);
    void applyControlKey(int letter);
    void copySelection();
    void moveCaret(int start);
    void report(const platform::Edit& edit);
    [[nodiscard]] int room() const noexcept; // units that still fit, the selection given up
    [[nodiscard]] int length() const noexcept { return static_cast<int>(text_.size()); }

    ControlSurface& surface_;
    FaultPlan& faults_;
    platform::EditBoxKind kind_;
    platform::WindowId window_;
    platform::Selection selection_;
    platform::EditColours colours_;
    std::u16string text_;
    std::u16string former_; // the text before the edit that is being reported
    platform::EditTraits traits_;
    mutable std::unique_ptr<Failures> failures_;
    engine::Life life_;
};

} // namespace vela::headless
