// The widgets of a form: what they hold, which exclude each other, who has the focus, and what is reported when. A back
// end draws them, moves the focus and tells what a person did.
#pragma once

#include "engine/alive.h"
#include "platform/form_events.h"

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vela::platform {

class Widgets;

// Items and choices of a comboBox, dropDownList, listBox or tabStrip. Indexes are 0-based; -1 is no choice.
class ItemList final {
public:
    ItemList(Widgets& widgets, WidgetId widget, const WidgetRow& row);

    void add(std::u16string_view item);
    void remove(int index); // 380 outside the list
    void clear();           // empties the box of an editable combo too
    [[nodiscard]] int count() const { return static_cast<int>(items_.size()); }
    [[nodiscard]] const std::u16string& at(int index) const;   // 380 outside the list
    [[nodiscard]] int indexOf(std::u16string_view item) const; // -1: none
    [[nodiscard]] int chosen() const { return chosen_; }
    [[nodiscard]] std::u16string chosenText() const; // empty without a choice
    void choose(int index);                          // -1: none; 380 outside the list; then clicked()
    [[nodiscard]] bool selected(int index) const;    // multiple selection
    void select(int index, bool on);                 // reports nothing

    // What the person's own window shows already.
    void adoptChoice(int index) { chosen_ = index; }
    void adoptSelected(int index, bool on) { items_[static_cast<std::size_t>(index)].selected = on; }

private:
    friend class Widgets;
    struct Item {
        std::u16string text;
        bool selected = false;
    };
    void check(int index) const;
    void forgetChoice();

    Widgets& widgets_;
    WidgetId widget_;
    std::vector<Item> items_;
    int chosen_ = -1;
};

struct Widget {
    const WidgetRow* row = nullptr;
    WidgetId id;
    std::u16string text; // caption, or what is typed; unused in a drop-down list, whose text is its chosen item
    bool checked = false;
    bool enabled = true;
    bool visible = true; // its own flag
    WidgetLook look;
    FontDescription font;
    std::unique_ptr<ItemList> list; // null for those without items

    [[nodiscard]] WidgetKind kind() const noexcept { return row->kind; }
};

// Shows the widgets as they are, each time one has become another. Reports nothing.
class WidgetDisplay {
public:
    virtual void showText(const Widget& widget) = 0;
    virtual void showCheck(const Widget& widget) = 0;
    virtual void showEnabled(const Widget& widget) = 0;
    virtual void showVisibility() = 0; // of any
    virtual void showLook(const Widget& widget, const WidgetLook& before) = 0;
    virtual void showFont(const Widget& widget) = 0;
    virtual void showBackColour() = 0;
    virtual void itemAdded(const Widget& widget) = 0; // the last one
    virtual void itemRemoved(const Widget& widget, int index) = 0;
    virtual void itemsCleared(const Widget& widget) = 0;
    virtual void showChoice(const Widget& widget) = 0;
    virtual void showSelected(const Widget& widget, int index) = 0;

protected:
    ~WidgetDisplay() = default;
};

// Putting a value reports as the act of a person would: putText() that changes a text box or an editable combo reports
// changed(), check() that changes reports clicked(), ItemList::choose() always reports clicked(). A report comes last,
// because it may destroy the form.
class Widgets final {
public:
    // A display that is null shows nothing.
    Widgets(const FormLayout& layout, const FormEvents& events, WidgetDisplay* display = nullptr);
    Widgets(const Widgets&) = delete;
    Widgets& operator=(const Widgets&) = delete;

    [[nodiscard]] const FormLayout& layout() const noexcept { return layout_; }
    [[nodiscard]] const FormEvents& events() const noexcept { return events_; }
    [[nodiscard]] std::span<const Widget> all() const noexcept { return widgets_; }
    [[nodiscard]] const Widget& at(WidgetId widget) const; // 9 for no row of the table
    [[nodiscard]] std::u16string text(WidgetId widget) const;
    void putText(WidgetId widget, std::u16string_view text); // 380 for no item of a drop-down list
    void check(WidgetId widget, bool on);
    [[nodiscard]] ItemList& items(WidgetId widget); // 438 for one without items
    void enable(WidgetId widget, bool on);
    [[nodiscard]] bool visible(WidgetId widget) const;      // its own flag and its frame's
    [[nodiscard]] bool showing(const Widget& widget) const; // visible, and on the tab in front
    void show(WidgetId widget, bool on);
    void putLook(WidgetId widget, const WidgetLook& look);
    void putFont(WidgetId widget, const FontDescription& font);
    [[nodiscard]] bool hasBackColour() const noexcept { return back_.has_value(); } // one has been put
    [[nodiscard]] engine::Colour backColour() const noexcept { return back_.value_or(buttonFace); }
    void putBackColour(engine::Colour colour);

    // Acts of a person; those at windows that show the outcome already are not shown again.
    void press(WidgetId widget); // a check box turns, an option button is chosen, then clicked()
    void typed(WidgetId widget, std::u16string text, int chosen = -1); // changed() when it differs
    void chose(WidgetId widget);                                       // after what its list has adopted: clicked()

    [[nodiscard]] WidgetId focused() const noexcept { return focused_; }
    [[nodiscard]] bool mayTakeFocus(WidgetId widget) const;
    void focusArrived(WidgetId widget); // lostFocus() where it was, then gotFocus()

private:
    friend class ItemList;
    [[nodiscard]] Widget& mutableAt(WidgetId widget);
    void putChecked(Widget& widget, bool on);

    FormLayout layout_;
    FormEvents events_;
    WidgetDisplay* display_;
    std::vector<Widget> widgets_;
    WidgetId focused_;
    std::optional<engine::Colour> back_;
    engine::Life life_;
};

} // namespace vela::platform
