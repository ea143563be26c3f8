// Forms in memory, instantiated from a layout's table: pop-ups, property pages and dialogs, and a person's acts on
// them.
#pragma once

#include "platform/form.h"
#include "platform/headless/desktop.h"
#include "platform/headless/keys.h"

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace vela::headless {

class WidgetForms;

class WidgetForm final : public platform::Form, public TopLevel {
public:
    WidgetForm(const platform::FormLayout& layout, const platform::FormEvents& events, WidgetForms& forms);
    WidgetForm(const WidgetForm&) = delete;
    WidgetForm& operator=(const WidgetForm&) = delete;
    ~WidgetForm() override;

    [[nodiscard]] platform::Widgets& widgets() override; // asked for by each operation, which the fault plan may refuse
    [[nodiscard]] const platform::Widgets& widgets() const override { return widgets_; }
    void focus(platform::WidgetId widget) override;
    void startTimer(int milliseconds) override;
    void showPopup(engine::RectPixels place, platform::WindowId owner) override;
    void showModal() override; // lets the factory's modal script act, then closes what is still open
    void close() override;
    [[nodiscard]] bool isShown() const override { return shown_; }
    [[nodiscard]] platform::WindowId window() const override { return window_; }

    // Acts of a person. Those at a disabled or hidden widget do nothing and answer false. None of them moves the focus
    // but moveFocus(); the form may be gone afterwards.
    bool moveFocus(platform::WidgetId widget);
    bool click(platform::WidgetId widget);
    bool doubleClick(platform::WidgetId widget);
    // Key-down, key-press; what the filter leaves is typed at the end of a text box or an editable combo: changed().
    bool type(platform::WidgetId widget, Key key);
    bool enterText(platform::WidgetId widget, std::u16string_view text); // as typed whole: one changed() if it differs
    bool choose(platform::WidgetId widget, int index);                   // in a list or combo, or a tab: clicked()
    bool turnItem(platform::WidgetId widget, int index, bool on);        // of a listBox: clicked() when it changes

    [[nodiscard]] const platform::FormLayout& layout() const noexcept { return widgets_.layout(); }
    [[nodiscard]] platform::WidgetId find(std::u16string_view name, int index = -1) const noexcept;
    [[nodiscard]] bool acts(platform::WidgetId widget) const { return enabled(widget) && visible(widget); }
    [[nodiscard]] engine::RectPixels place() const noexcept { return place_; }
    [[nodiscard]] bool isClosed() const noexcept { return closed_; }
    void tick(); // of its timer; nothing when it is stopped

    [[nodiscard]] platform::WindowId topLevelWindow() const override { return window_; }
    void becameActive() override;
    void becameInactive() override;

private:
    void typeCharacter(platform::WidgetId widget, char16_t character);
    [[nodiscard]] char16_t filter(platform::WidgetId widget, char16_t key); // key-press alone; 0: refused

    platform::Widgets widgets_;
    const platform::FormEvents& events_{widgets_.events()};
    WidgetForms& forms_;
    platform::WindowId window_;
    engine::RectPixels place_;
    int timer_ = 0; // milliseconds, 0: stopped
    bool shown_ = false;
    bool popup_ = false;
    bool closed_ = false;
    engine::Life life_;
};

// Makes the forms and knows those that live.
class WidgetForms final : public platform::FormFactory {
public:
    WidgetForms(TraceSink& sink, FaultPlan& faults, Desktop& desktop) : sink_(sink), faults_(faults), desktop_(desktop)
    {
    }

    [[nodiscard]] std::unique_ptr<platform::Form> make(const platform::FormLayout& layout,
                                                       const platform::FormEvents& events) override;

    [[nodiscard]] WidgetForm* find(std::u16string_view layoutName) const noexcept; // the newest one that is not closed
    void tick(); // of every running timer, oldest form first
    // What a person does while a modal form is on show.
    std::function<void(WidgetForm&)> modalScript;

private:
    friend class WidgetForm;
    TraceSink& sink_;
    FaultPlan& faults_;
    Desktop& desktop_;
    std::vector<WidgetForm*> living_;
    std::uintptr_t lastWindow_ = 0x800000;
};

} // namespace vela::headless
