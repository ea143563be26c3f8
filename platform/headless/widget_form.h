// Forms in memory, instantiated from a layout's table: pop-ups, property pages and dialogs, and a person's acts on
// them.
#pragma once

#include "engine/alive.h"
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
    WidgetForm(const platform::FormLayout& layout, platform::FormEvents& events, WidgetForms& forms);
    WidgetForm(const WidgetForm&) = delete;
    WidgetForm& operator=(const WidgetForm&) = delete;
    ~WidgetForm() override;

    [[nodiscard]] std::u16string text(platform::WidgetId widget) const override;
    void putText(platform::WidgetId widget, std::u16string_view text) override;
    [[nodiscard]] bool checked(platform::WidgetId widget) const override;
    void check(platform::WidgetId widget, bool on) override;
    [[nodiscard]] platform::ItemList& items(platform::WidgetId widget) override;
    [[nodiscard]] bool enabled(platform::WidgetId widget) const override;
    void enable(platform::WidgetId widget, bool on) override;
    [[nodiscard]] bool visible(platform::WidgetId widget) const override;
    void show(platform::WidgetId widget, bool on) override;
    [[nodiscard]] const platform::WidgetLook& look(platform::WidgetId widget) const override;
    void putLook(platform::WidgetId widget, const platform::WidgetLook& look) override;
    void putFont(platform::WidgetId widget, const platform::FontDescription& font) override;
    void focus(platform::WidgetId widget) override; // nothing for one that is disabled or hidden
    [[nodiscard]] platform::WidgetId focused() const override { return focused_; }
    void putBackColour(engine::Colour colour) override;
    void startTimer(int milliseconds) override;
    void showPopup(engine::RectPixels place, platform::WindowId owner) override;
    void showModal() override; // lets the factory's modal script act, then closes what is still open
    void close() override;
    [[nodiscard]] bool isShown() const override { return shown_; }
    [[nodiscard]] platform::WindowId window() const override { return window_; }

    // Acts of a person. Those at a disabled or hidden widget do nothing and answer false. None of them moves the focus
    // but moveFocus(); the form may be gone afterwards.
    bool moveFocus(platform::WidgetId widget);
    bool click(platform::WidgetId widget);       // a check box turns, an option button is chosen, then clicked()
    bool doubleClick(platform::WidgetId widget); // doubleClicked()
    // Key-down, key-press; what the filter leaves is typed at the end of a text box or an editable combo: changed().
    bool type(platform::WidgetId widget, Key key);
    [[nodiscard]] char16_t filter(platform::WidgetId widget, char16_t key); // key-press alone; 0: refused
    bool enterText(platform::WidgetId widget, std::u16string_view text); // as typed whole: one changed() if it differs
    bool choose(platform::WidgetId widget, int index);                   // in a list or combo, or a tab: clicked()
    bool turnItem(platform::WidgetId widget, int index, bool on);        // of a listBox: clicked() when it changes

    [[nodiscard]] const platform::FormLayout& layout() const noexcept { return layout_; }
    [[nodiscard]] platform::WidgetId find(std::u16string_view name, int index = -1) const noexcept;
    [[nodiscard]] bool acts(platform::WidgetId widget) const { return enabled(widget) && visible(widget); }
    [[nodiscard]] int timer() const noexcept { return timer_; } // milliseconds, 0: stopped
    [[nodiscard]] engine::RectPixels place() const noexcept { return place_; }
    [[nodiscard]] engine::Colour backColour() const noexcept { return back_; }
    [[nodiscard]] platform::FontDescription font(platform::WidgetId widget) const;
    [[nodiscard]] bool isClosed() const noexcept { return closed_; }
    void tick(); // of its timer; nothing when it is stopped

    // For its lists.
    [[nodiscard]] WidgetForms& forms() const noexcept { return forms_; }
    void itemChosen(platform::WidgetId widget, std::u16string item);
    void listCleared(platform::WidgetId widget);

    [[nodiscard]] platform::WindowId topLevelWindow() const override { return window_; }
    void becameActive() override;
    void becameInactive() override;

private:
    struct Widget;

    void raiseFocus(platform::WidgetId widget);
    [[nodiscard]] Widget& at(platform::WidgetId widget) const; // 9 for no row of the table
    [[nodiscard]] platform::WidgetKind kindOf(platform::WidgetId widget) const;
    void chooseOption(platform::WidgetId widget);
    void typeCharacter(platform::WidgetId widget, char16_t character);
    void putTypedText(platform::WidgetId widget, std::u16string text);

    const platform::FormLayout& layout_;
    platform::FormEvents& events_;
    WidgetForms& forms_;
    platform::WindowId window_;
    std::vector<std::unique_ptr<Widget>> widgets_;
    platform::WidgetId focused_;
    engine::RectPixels place_;
    engine::Colour back_{0x8000000F};
    int timer_ = 0;
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
                                                       platform::FormEvents& events) override;

    [[nodiscard]] WidgetForm* find(std::u16string_view layoutName) const noexcept; // the newest one that is not closed
    void tick(); // of every running timer, oldest form first
    // What a person does while a modal form is on show.
    std::function<void(WidgetForm&)> modalScript;

    [[nodiscard]] TraceSink& sink() const noexcept { return sink_; }
    [[nodiscard]] FaultPlan& faults() const noexcept { return faults_; }
    [[nodiscard]] Desktop& desktop() const noexcept { return desktop_; }

private:
    friend class WidgetForm;
    TraceSink& sink_;
    FaultPlan& faults_;
    Desktop& desktop_;
    std::vector<WidgetForm*> living_;
    std::uintptr_t lastWindow_ = 0x800000;
};

} // namespace vela::headless
