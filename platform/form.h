// Forms of the platform, instantiated from a neutral table: pop-ups, property pages and dialogs.
#pragma once

#include "engine/geometry.h"
#include "engine/value.h"
#include "platform/edit_box.h"
#include "platform/window_id.h"

#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace vela::platform {

enum class WidgetKind {
    label, // caption; may be clicked (a day cell)
    button,
    comboBox, // editable, with a list
    dropDownList,
    listBox, // multiple selection
    checkBox,
    optionButton, // one of its frame is chosen
    textBox,
    swatch,   // shows its back colour, takes the focus, reports double clicks
    frame,    // groups those whose `parent` names it
    preview,  // shows its text in its font
    tabStrip, // items are the tabs' captions; rows with `tab` n stand on its n-th tab
};

// One row of a form's table. Rows stand in tab order; a row's place in the table is its WidgetId.
struct WidgetRow {
    WidgetKind kind = WidgetKind::label;
    std::u16string_view name;
    int index = -1;              // of a control array; -1: not in one
    std::u16string_view caption; // an "&" in it marks the access key where `accessKey` does not name it
    char16_t accessKey = 0;      // a character of the caption, as it is written there
    engine::RectTwips place;     // in the form, or in the frame named by `parent`
    std::u16string_view parent = {};
    std::span<const std::u16string_view> items = {};
    int tab = -1; // 0-based tab of the form's tab strip; -1: on every tab
    TextAlignment alignment = TextAlignment::left;
    double fontSize = 0; // points; 0: the form's font
    bool bold = false;
    bool fits = false; // a label: smaller when a text of its control array is too wide
};

struct FormLayout {
    std::u16string_view name;
    std::u16string_view caption;
    int width = 0;  // twips, client area
    int height = 0; // twips, client area
    std::span<const WidgetRow> rows;
    std::u16string_view fontName = u"Tahoma";
    double fontSize = 8; // points
};

// The row's place in its table, 0-based: what every operation of Form takes.
struct WidgetId {
    int value = -1;
    explicit constexpr operator bool() const noexcept { return value >= 0; }
    friend bool operator==(WidgetId, WidgetId) = default;
};

// No row of that name and index: an id that tests false.
[[nodiscard]] constexpr WidgetId findWidget(const FormLayout& layout, std::u16string_view name, int index = -1) noexcept
{
    for (std::size_t i = 0; i < layout.rows.size(); ++i)
        if (layout.rows[i].name == name && layout.rows[i].index == index)
            return WidgetId{static_cast<int>(i)};
    return {};
}

// Labels are painted in table order, later ones over earlier ones; one that is not opaque shows what lies under it.
struct WidgetLook {
    engine::Colour fore{0x80000012}; // button text
    engine::Colour back{0x8000000F}; // button face
    bool opaque = true;              // labels: BackStyle 1
    bool border = false;             // BorderStyle 1
    int left = 0;                    // twips
    int top = 0;                     // twips
    bool round = false;              // an opaque label's back is an ellipse that fills it
    std::u16string spokenName = {};  // what a screen reader says; empty: the caption
    friend bool operator==(const WidgetLook&, const WidgetLook&) = default;
};

// What happens to a form. Putting a value through Form reports as the act of a person would: putText() that changes a
// text box or an editable combo reports changed(), check() that changes reports clicked(), choose() always reports
// clicked().
class FormEvents {
public:
    virtual void clicked(WidgetId widget) = 0;
    virtual void doubleClicked(WidgetId widget) = 0;
    virtual void changed(WidgetId widget) = 0;
    virtual void gotFocus(WidgetId widget) = 0;
    virtual void lostFocus(WidgetId widget) = 0;
    virtual void keyDown(WidgetId widget, int& code, int& shift) = 0;
    virtual void keyPress(WidgetId widget, int& key) = 0;
    virtual void activated() = 0;
    virtual void deactivated() = 0; // another window became active
    virtual void tick() = 0;        // the form's timer
    virtual void closed() = 0;      // its close command or close(); last call

protected:
    ~FormEvents() = default;
};

// Items and choices of a comboBox, dropDownList or listBox. Indexes are 0-based; -1 is no choice.
class ItemList {
public:
    virtual void add(std::u16string_view item) = 0;
    virtual void remove(int index) = 0; // 380 outside the list
    virtual void clear() = 0;
    [[nodiscard]] virtual int count() const = 0;
    [[nodiscard]] virtual std::u16string at(int index) const = 0;
    [[nodiscard]] virtual int chosen() const = 0;
    virtual void choose(int index) = 0;                       // -1: none; 380 outside the list; then clicked()
    [[nodiscard]] virtual bool selected(int index) const = 0; // multiple selection
    virtual void select(int index, bool on) = 0;              // reports nothing

protected:
    ~ItemList() = default;
};

class Form {
public:
    virtual ~Form() = default;

    [[nodiscard]] virtual std::u16string text(WidgetId widget) const = 0; // caption of those that have no text
    virtual void putText(WidgetId widget, std::u16string_view text) = 0;
    [[nodiscard]] virtual bool checked(WidgetId widget) const = 0;
    virtual void check(WidgetId widget, bool on) = 0;
    [[nodiscard]] virtual ItemList& items(WidgetId widget) = 0;
    [[nodiscard]] virtual bool enabled(WidgetId widget) const = 0;
    virtual void enable(WidgetId widget, bool on) = 0;
    [[nodiscard]] virtual bool visible(WidgetId widget) const = 0; // its own flag and its frame's
    virtual void show(WidgetId widget, bool on) = 0;
    [[nodiscard]] virtual const WidgetLook& look(WidgetId widget) const = 0;
    virtual void putLook(WidgetId widget, const WidgetLook& look) = 0;
    virtual void putFont(WidgetId widget, const FontDescription& font) = 0;
    virtual void focus(WidgetId widget) = 0;
    [[nodiscard]] virtual WidgetId focused() const = 0;
    virtual void putBackColour(engine::Colour colour) = 0; // of the form
    virtual void startTimer(int milliseconds) = 0;         // 0 stops it
    // Shows as a pop-up at this place of the screen, at its own scale, then reports activated().
    virtual void showPopup(engine::RectPixels place, WindowId owner) = 0;
    virtual void showModal() = 0; // returns when closed
    virtual void close() = 0;     // closed() once; safe inside any event, the form object stays until released
    [[nodiscard]] virtual bool isShown() const = 0;
    [[nodiscard]] virtual WindowId window() const = 0;
};

class FormFactory {
public:
    virtual ~FormFactory() = default;
    [[nodiscard]] virtual std::unique_ptr<Form> make(const FormLayout& layout, FormEvents& events) = 0;
};

} // namespace vela::platform
