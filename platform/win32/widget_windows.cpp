// The windows of a form's widgets made, found, placed and let go.
#include "platform/win32/widget_windows.h"

#include "engine/scoped_value.h"
#include "platform/win32/access_key.h"
#include "platform/win32/activation_context.h"
#include "platform/win32/device_context.h"
#include "platform/win32/guard.h"
#include "platform/win32/module.h"
#include "platform/win32/owners.h"
#include "platform/win32/text.h"
#include "platform/win32/window_map.h"

#include <commctrl.h>

#include <algorithm>
#include <cmath>

namespace vela::win32 {
namespace {

using platform::Widget;
using platform::WidgetKind;

constexpr int tallBox = 600;       // twips; a text box of this height has several lines
constexpr int dropHeight = 200;    // pixels at 96 dpi of a combo's list
constexpr UINT dontClick = 0x00F8; // BM_SETDONTCLICK: a button chosen by Tab is not clicked

struct Recipe {
    const wchar_t* windowClass = nullptr;
    DWORD style = 0;
    DWORD extendedStyle = 0;
};

Recipe textBoxRecipe(const platform::WidgetRow& row) noexcept
{
    const DWORD several = ES_MULTILINE | ES_WANTRETURN | ES_AUTOVSCROLL | WS_VSCROLL;
    return {WC_EDITW, row.place.height >= tallBox ? several : DWORD{ES_AUTOHSCROLL}, WS_EX_CLIENTEDGE};
}

Recipe recipeOf(const platform::WidgetRow& row) noexcept
{
    switch (row.kind) {
    // Without BS_NOTIFY, which would make every second one of quick clicks a double click.
    case WidgetKind::button: return {WC_BUTTONW, BS_PUSHBUTTON, 0};
    case WidgetKind::comboBox: return {WC_COMBOBOXW, CBS_DROPDOWN | CBS_AUTOHSCROLL | WS_VSCROLL, 0};
    case WidgetKind::dropDownList: return {WC_COMBOBOXW, CBS_DROPDOWNLIST | WS_VSCROLL, 0};
    case WidgetKind::listBox:
        return {WC_LISTBOXW, LBS_MULTIPLESEL | LBS_MULTICOLUMN | LBS_NOTIFY | LBS_NOINTEGRALHEIGHT | WS_HSCROLL,
                WS_EX_CLIENTEDGE};
    case WidgetKind::checkBox: return {WC_BUTTONW, BS_CHECKBOX, 0};
    case WidgetKind::optionButton: return {WC_BUTTONW, BS_RADIOBUTTON, 0};
    case WidgetKind::textBox: return textBoxRecipe(row);
    case WidgetKind::swatch: return {WC_BUTTONW, BS_OWNERDRAW | BS_NOTIFY, 0};
    case WidgetKind::tabStrip: return {WC_TABCONTROLW, TCS_FOCUSNEVER, 0};
    case WidgetKind::label:
    case WidgetKind::frame:
    case WidgetKind::preview: break;
    }
    return {};
}

LRESULT CALLBACK widgetProcedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    auto* widget = static_cast<WidgetWindow*>(boundObject(window));
    if (!widget)
        return behindProcedure(window, message, first, second);
    return contained([&] { return widget->form.widgetMessage(*widget, window, message, first, second); }, LRESULT{0});
}

// The tabs' captions and the upper side of their pane. The system keeps it.
HRGN captionsAndSide(HWND strip, int bottom, int width, int side)
{
    RECT last{};
    const auto count = static_cast<WPARAM>(SendMessageW(strip, TCM_GETITEMCOUNT, 0, 0));
    SendMessageW(strip, TCM_GETITEMRECT, count - 1, reinterpret_cast<LPARAM>(&last));
    const HRGN region = CreateRectRgn(0, 0, static_cast<int>(last.right) + side, bottom);
    const UniqueGdi<HRGN> upperSide(CreateRectRgn(0, bottom, width, bottom + side));
    CombineRgn(region, region, upperSide.get(), RGN_OR);
    return region;
}

int textWidth(HFONT font, std::u16string_view text)
{
    const WindowDc dc(nullptr);
    const SelectedObject selected(dc.get(), font);
    SIZE size{};
    GetTextExtentPoint32W(dc.get(), wide(text.data()), static_cast<int>(text.size()), &size);
    return static_cast<int>(size.cx);
}

// Twips for the caption on its one line; 0 where it is not bound to it.
int captionSpace(const platform::WidgetRow& row) noexcept
{
    constexpr int mark = 300;     // of a check box or an option, with the gap behind it
    constexpr int edges = 90;     // of a button
    constexpr int twoLines = 400; // a label of this height breaks its text
    switch (row.kind) {
    case WidgetKind::checkBox:
    case WidgetKind::optionButton: return row.place.width - mark;
    case WidgetKind::button: return row.place.width - edges;
    case WidgetKind::label: return row.caption.empty() || row.place.height >= twoLines ? 0 : row.place.width;
    case WidgetKind::comboBox:
    case WidgetKind::dropDownList:
    case WidgetKind::listBox:
    case WidgetKind::textBox:
    case WidgetKind::swatch:
    case WidgetKind::frame:
    case WidgetKind::preview:
    case WidgetKind::tabStrip: break;
    }
    return 0;
}

HWND editOf(HWND combo) noexcept
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (GetComboBoxInfo(combo, &info) && info.hwndItem && info.hwndItem != combo)
        return info.hwndItem;
    return nullptr;
}

} // namespace

WidgetWindows::WidgetWindows(const platform::FormLayout& layout, const platform::FormEvents& events,
                             WidgetMessages& form)
    : widgets_(layout, events, this)
{
    windows_.reserve(widgets_.all().size());
    for (const Widget& widget : widgets_.all())
        windows_.emplace_back(form, widget);
}

WidgetWindow& WidgetWindows::of(const Widget& widget)
{
    return windows_[static_cast<std::size_t>(widget.id.value)];
}

WidgetWindow* WidgetWindows::ofWindow(HWND window) noexcept
{
    for (WidgetWindow& widget : windows_)
        if (window && (widget.window == window || widget.inner == window))
            return &widget;
    return nullptr;
}

int WidgetWindows::dpi() const noexcept
{
    return std::max(1, static_cast<int>(std::lround(scale_ * engine::twipsPerInch)));
}

void WidgetWindows::applyFont(WidgetWindow& widget)
{
    SharedFont font = fittingFont(widget.values);
    if (widget.window)
        SendMessageW(widget.window, WM_SETFONT, reinterpret_cast<WPARAM>(font->get()), TRUE);
    widget.font = std::move(font);
}

// A caption that the machine's font makes too wide is written smaller, and those like it in its frame as small.
SharedFont WidgetWindows::fittingFont(const Widget& widget) const
{
    constexpr double smallest = 4; // points
    constexpr double step = 0.5;
    platform::FontDescription description = widget.font;
    SharedFont font = sharedFont(description, dpi());
    const auto fits = [&](const Widget& other) {
        const bool alike = other.kind() == widget.kind() && other.row->parent == widget.row->parent;
        const int space = alike ? captionSpace(*other.row) : 0;
        return space == 0 || textWidth(font->get(), other.text) <= pixels(space);
    };
    while (captionSpace(*widget.row) > 0 && description.size > smallest && !std::ranges::all_of(widgets_.all(), fits)) {
        description.size -= step;
        font = sharedFont(description, dpi());
    }
    return font;
}

void WidgetWindows::make(HWND form)
{
    form_ = form;
    const ActivationContext controls;
    {
        const engine::ScopedFlag quiet(quiet_, true);
        for (WidgetWindow& widget : windows_)
            makeWidget(widget);
    }
    layOut();
    showVisibility();
}

void WidgetWindows::makeWidget(WidgetWindow& widget)
{
    const Widget& values = widget.values;
    const Recipe recipe = recipeOf(*values.row);
    if (!recipe.windowClass || widget.window)
        return;
    const int id = values.id.value;
    const bool groups = widget.kind() != WidgetKind::optionButton || id == 0 ||
                        widgets_.at({id - 1}).kind() != WidgetKind::optionButton; // the first of several options
    const DWORD style = WS_CHILD | WS_TABSTOP | WS_CLIPSIBLINGS | recipe.style | (groups ? WS_GROUP : 0U) |
                        (values.enabled ? 0U : WS_DISABLED);
    const std::u16string caption = markedCaption(values);
    widget.window = CreateWindowExW(recipe.extendedStyle, recipe.windowClass, wide(caption.c_str()), style, 0, 0, 0, 0,
                                    form_, reinterpret_cast<HMENU>(INT_PTR{100} + id), thisModule(), nullptr);
    if (!widget.window)
        return;
    subclass(widget.window, &widget, widgetProcedure);
    if (widget.kind() == WidgetKind::comboBox) {
        widget.inner = editOf(widget.window);
        if (widget.inner)
            subclass(widget.inner, &widget, widgetProcedure);
    }
    for (int i = 0; values.list && i < values.list->count(); ++i)
        showItem(widget, i);
    if (values.list)
        showChoice(values);
    if (widget.kind() == WidgetKind::comboBox)
        SetWindowTextW(widget.window, wide(values.text.c_str()));
    if (widget.kind() == WidgetKind::optionButton)
        SendMessageW(widget.window, dontClick, TRUE, 0);
    if (values.checked)
        showCheck(values);
    rememberSpokenName(widget);
}

void WidgetWindows::layOut()
{
    for (WidgetWindow& widget : windows_) {
        applyFont(widget);
        placeWidget(widget);
    }
}

// Combos are given the height of their list too. A tab strip is as large as its pane, so that it paints the tab in
// front into the pane's upper side, and is cut to that: the form paints what lies on the tabs.
void WidgetWindows::placeWidget(const WidgetWindow& widget)
{
    if (!widget.window)
        return;
    const RECT place = rectOf(widget.values);
    int height = place.bottom - place.top;
    if (platform::isCombo(widget.kind())) {
        const int edges = pixels(90); // the closed combo is its item and this much
        SendMessageW(widget.window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max(height - edges, 1));
        height += MulDiv(dropHeight, dpi(), 96);
    } else if (widget.kind() == WidgetKind::tabStrip) {
        RECT caption{};
        SendMessageW(widget.window, TCM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&caption));
        SetWindowRgn(widget.window,
                     captionsAndSide(widget.window, caption.bottom, place.right - place.left, pixels(45)), TRUE);
    } else if (widget.kind() == WidgetKind::listBox) {
        SendMessageW(widget.window, LB_SETCOLUMNWIDTH, static_cast<WPARAM>(columnWidth(widget)), 0);
    }
    SetWindowPos(widget.window, nullptr, place.left, place.top, place.right - place.left, height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

// Of a list's columns: its widest item and a gap.
int WidgetWindows::columnWidth(const WidgetWindow& widget) const
{
    const platform::ItemList& list = *widget.values.list;
    int widest = 0;
    for (int i = 0; widget.font && i < list.count(); ++i)
        widest = std::max(widest, textWidth(widget.font->get(), list.at(i)));
    return widest + pixels(150);
}

void WidgetWindows::letGo()
{
    for (WidgetWindow& widget : windows_) {
        unbindObject(widget.inner);
        unbindObject(widget.window);
    }
    destroyed();
}

void WidgetWindows::destroyed() noexcept
{
    form_ = nullptr;
    for (WidgetWindow& widget : windows_)
        widget.window = widget.inner = nullptr;
}

} // namespace vela::win32
