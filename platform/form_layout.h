// A form's table: what its widgets are, where they stand and how they look at first.
#pragma once

#include "engine/geometry.h"
#include "engine/value.h"
#include "platform/edit_box.h"

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

[[nodiscard]] constexpr bool isTyped(WidgetKind kind) noexcept
{
    return kind == WidgetKind::textBox || kind == WidgetKind::comboBox;
}

[[nodiscard]] constexpr bool isCombo(WidgetKind kind) noexcept
{
    return kind == WidgetKind::comboBox || kind == WidgetKind::dropDownList;
}

[[nodiscard]] constexpr bool hasItems(WidgetKind kind) noexcept
{
    return isCombo(kind) || kind == WidgetKind::listBox || kind == WidgetKind::tabStrip;
}

[[nodiscard]] constexpr bool takesFocus(WidgetKind kind) noexcept
{
    return kind != WidgetKind::label && kind != WidgetKind::frame && kind != WidgetKind::preview;
}

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

inline constexpr engine::Colour buttonFace{0x8000000F};

// Labels are painted in table order, later ones over earlier ones; one that is not opaque shows what lies under it.
struct WidgetLook {
    engine::Colour fore{0x80000012}; // button text
    engine::Colour back = buttonFace;
    bool opaque = true;             // labels: BackStyle 1
    bool border = false;            // BorderStyle 1
    int left = 0;                   // twips
    int top = 0;                    // twips
    bool round = false;             // an opaque label's back is an ellipse that fills it
    std::u16string spokenName = {}; // what a screen reader says; empty: the caption
    friend bool operator==(const WidgetLook&, const WidgetLook&) = default;
};

} // namespace vela::platform
