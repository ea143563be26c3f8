// What the keystroke filter sees of a field: its box as it stands, or a text that is being pasted into it.
#pragma once

#include "control/internal.h"
#include "engine/field/keystroke.h"

namespace vela::control {

// A key typed at the box.
class Vela::BoxSink final : public engine::KeystrokeSink {
public:
    explicit BoxSink(Vela& field) : field_(field), alive_(field.life_), text_(field) {}

    [[nodiscard]] engine::KeystrokeSettings settings() const override { return field_.keystrokeSettings(); }
    [[nodiscard]] std::u16string_view text() override
    {
        field_.readText(*text_);
        return *text_;
    }
    [[nodiscard]] int textLength() const override { return field_.box().textLength(); }
    [[nodiscard]] int caret() const override { return field_.box().selection().start; }
    [[nodiscard]] int selectionLength() const override { return field_.box().selection().length; }
    [[nodiscard]] int maxLength() const override { return field_.box().traits().maxLength; }

    void writeText(std::u16string_view text, int caret) override;
    void validateMask(int& key) override { field_.validateMask(key); }
    [[nodiscard]] bool raiseKeyPress(std::int16_t& key) override { return alive_ && field_.raiseKeyPress(key); }
    void sendTab() override { field_.environment_.desktop.sendKeys(u"{TAB}"); }
    void tabKeyDown() override { field_.environment_.desktop.keyDown(tabKey); }
    void logNumericFailure(const engine::Error& error) override
    {
        if (alive_)
            field_.log(error, label::number);
    }

    static constexpr int tabKey = 9;

private:
    Vela& field_;
    engine::Alive alive_; // writing a text may destroy the control
    Scratch text_;        // as last read
};

// The keys of a pasted text, typed one by one at a copy of the box's text; the box is written once, by finish().
class Vela::PasteSink final : public engine::KeystrokeSink {
public:
    explicit PasteSink(Vela& field);

    [[nodiscard]] engine::KeystrokeSettings settings() const override { return field_.keystrokeSettings(); }
    [[nodiscard]] std::u16string_view text() override { return text_; }
    [[nodiscard]] int textLength() const override { return static_cast<int>(text_.size()); }
    [[nodiscard]] int caret() const override { return selection_.start; }
    [[nodiscard]] int selectionLength() const override { return selection_.length; }
    [[nodiscard]] int maxLength() const override { return maxLength_; }

    void writeText(std::u16string_view text, int caret) override;
    void validateMask(int& key) override;
    [[nodiscard]] bool raiseKeyPress(std::int16_t& key) override { return field_.raiseKeyPress(key); }
    void sendTab() override { field_.environment_.desktop.sendKeys(u"{TAB}"); }
    void tabKeyDown() override { field_.environment_.desktop.keyDown(BoxSink::tabKey); }
    void logNumericFailure(const engine::Error& error) override { field_.log(error, label::number); }

    [[nodiscard]] bool type(char16_t unit); // false when the control did not survive it
    void placeCaret(int caret) { selection_ = {caret, 0}; }
    void finish();

private:
    void crossLiterals(int key);
    void insert(std::u16string_view typed);

    Vela& field_;
    engine::Alive alive_;
    std::u16string before_;
    std::u16string text_;
    platform::Selection selectionBefore_;
    platform::Selection selection_;
    int maxLength_ = 0;
    bool locked_ = false;
};

} // namespace vela::control
