// A form's values, as its logic reads and writes them.
#include "platform/win32/form_window.h"

#include "engine/error.h"
#include "platform/win32/accessible_name.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/text.h"

#include <utility>

namespace vela::win32 {
namespace {

using platform::WidgetId;
using platform::WidgetKind;

bool hasList(WidgetKind kind) noexcept
{
    return kind == WidgetKind::comboBox || kind == WidgetKind::dropDownList || kind == WidgetKind::listBox ||
           kind == WidgetKind::tabStrip;
}

// What is typed into or chosen from stands on the window's colours, all else on the form's.
platform::WidgetLook firstLook(const platform::WidgetRow& row)
{
    platform::WidgetLook look;
    if (isTyped(row.kind) || row.kind == WidgetKind::dropDownList || row.kind == WidgetKind::listBox) {
        look.fore = engine::Colour{0x80000008};
        look.back = engine::Colour{0x80000005};
    }
    look.left = row.place.left;
    look.top = row.place.top;
    return look;
}

} // namespace

FormWindow::FormWindow(const platform::FormLayout& layout, platform::FormEvents& events)
    : layout_(layout), events_(events), arbiter_(FocusArbiter::retain())
{
    widgets_.reserve(layout.rows.size());
    for (const platform::WidgetRow& row : layout.rows) {
        auto widget = std::make_unique<Widget>();
        widget->row = &row;
        widget->id = WidgetId{static_cast<int>(widgets_.size())};
        widget->form = this;
        widget->look = firstLook(row);
        if (hasList(row.kind))
            widget->list = std::make_unique<WidgetList>(*this, *widget);
        else
            widget->text = row.caption;
        widgets_.push_back(std::move(widget));
    }
}

FormWindow::~FormWindow()
{
    closed_ = true;
    endShowing();
    dropWindows();
    FocusArbiter::release();
}

Widget& FormWindow::at(WidgetId widget) const
{
    if (widget.value < 0 || widget.value >= static_cast<int>(widgets_.size()))
        engine::raise(engine::error_number::subscriptOutOfRange);
    return *widgets_[static_cast<std::size_t>(widget.value)];
}

Widget* FormWindow::ofWindow(HWND window) const noexcept
{
    for (const auto& widget : widgets_)
        if (window && (widget->window == window || widget->inner == window))
            return widget.get();
    return nullptr;
}

std::u16string FormWindow::text(WidgetId widget) const
{
    const Widget& found = at(widget);
    if (found.kind() != WidgetKind::dropDownList)
        return found.text;
    return found.list->chosen() >= 0 ? found.list->at(found.list->chosen()) : std::u16string();
}

void FormWindow::putText(WidgetId widget, std::u16string_view text)
{
    Widget& found = at(widget);
    if (isTyped(found.kind()))
        return putTypedText(found, std::u16string(text));
    if (found.kind() == WidgetKind::dropDownList)
        return found.list->choose(found.list->indexOf(text));
    if (text == found.text)
        return;
    found.text = text;
    if (found.window)
        SetWindowTextW(found.window, wide(markedCaption(found).c_str()));
    else
        repaint(found);
}

// A text that is typed is no choice from the list.
void FormWindow::putTypedText(Widget& widget, std::u16string text)
{
    if (text == widget.text)
        return;
    widget.text = std::move(text);
    {
        const engine::ScopedFlag quiet(quiet_, true);
        if (widget.list)
            widget.list->forgetChoice();
        if (widget.window)
            SetWindowTextW(widget.window, wide(widget.text.c_str()));
    }
    events_.changed(widget.id);
}

bool FormWindow::checked(WidgetId widget) const
{
    return at(widget).checked;
}

void FormWindow::check(WidgetId widget, bool on)
{
    Widget& found = at(widget);
    if (found.checked == on)
        return;
    if (on && found.kind() == WidgetKind::optionButton)
        chooseOption(found);
    setCheck(found, on);
    events_.clicked(widget);
}

void FormWindow::setCheck(Widget& widget, bool on)
{
    widget.checked = on;
    if (widget.window)
        SendMessageW(widget.window, BM_SETCHECK, on ? BST_CHECKED : BST_UNCHECKED, 0);
}

// The others of its frame are no longer chosen; they report nothing.
void FormWindow::chooseOption(Widget& widget)
{
    for (const auto& other : widgets_)
        if (other->kind() == WidgetKind::optionButton && other->row->parent == widget.row->parent &&
            other.get() != &widget)
            setCheck(*other, false);
}

platform::ItemList& FormWindow::items(WidgetId widget)
{
    Widget& found = at(widget);
    if (!found.list)
        engine::raise(engine::error_number::unsupportedMember);
    return *found.list;
}

// A choice made in an editable combo is its text.
void FormWindow::itemChosen(Widget& widget)
{
    if (widget.kind() == WidgetKind::comboBox)
        widget.text = widget.list->chosen() >= 0 ? widget.list->at(widget.list->chosen()) : std::u16string();
    if (widget.kind() == WidgetKind::tabStrip)
        tabChosen();
    events_.clicked(widget.id);
}

void FormWindow::listCleared(Widget& widget)
{
    widget.text.clear();
}

bool FormWindow::enabled(WidgetId widget) const
{
    return at(widget).enabled;
}

void FormWindow::enable(WidgetId widget, bool on)
{
    Widget& found = at(widget);
    found.enabled = on;
    if (found.window)
        EnableWindow(found.window, on);
    else
        repaint(found);
}

bool FormWindow::visible(WidgetId widget) const
{
    const Widget& found = at(widget);
    if (!found.visible || found.row->parent.empty())
        return found.visible;
    const WidgetId frame = platform::findWidget(layout_, found.row->parent);
    return !frame || visible(frame);
}

bool FormWindow::showing(const Widget& widget) const
{
    if (!visible(widget.id))
        return false;
    if (widget.row->tab < 0)
        return true;
    for (const auto& strip : widgets_)
        if (strip->kind() == WidgetKind::tabStrip)
            return strip->list->chosen() == widget.row->tab;
    return true;
}

void FormWindow::show(WidgetId widget, bool on)
{
    Widget& found = at(widget);
    if (found.visible == on)
        return;
    found.visible = on;
    applyVisibility();
}

void FormWindow::tabChosen()
{
    applyVisibility();
}

const platform::WidgetLook& FormWindow::look(WidgetId widget) const
{
    return at(widget).look;
}

void FormWindow::putLook(WidgetId widget, const platform::WidgetLook& look)
{
    Widget& found = at(widget);
    if (look == found.look)
        return;
    const bool moved = look.left != found.look.left || look.top != found.look.top;
    const bool renamed = look.spokenName != found.look.spokenName;
    if (moved)
        repaint(found);
    found.look = look;
    if (moved && found.window)
        placeWidget(found);
    if (renamed)
        rememberSpokenName(found);
    repaint(found);
}

void FormWindow::rememberSpokenName(Widget& widget)
{
    if (!widget.window || widget.look.spokenName.empty())
        return;
    widget.saysItsName = !setAccessibleName(widget.window, widget.look.spokenName);
    if (widget.inner && !widget.saysItsName)
        setAccessibleName(widget.inner, widget.look.spokenName); // where the focus is
}

void FormWindow::putFont(WidgetId widget, const platform::FontDescription& font)
{
    Widget& found = at(widget);
    found.font = font;
    found.shared.reset();
    if (found.window)
        applyFont(found);
    repaint(found);
}

void FormWindow::focus(WidgetId widget)
{
    Widget& found = at(widget);
    if (!found.enabled || !visible(widget) || !takesFocus(found.kind()))
        return;
    if (found.window && shown_)
        SetFocus(found.window);
    else
        focusArrived(found);
}

void FormWindow::focusArrived(Widget& widget)
{
    if (focused_ == widget.id)
        return;
    const engine::Alive alive(life_);
    const WidgetId left = std::exchange(focused_, widget.id);
    if (left)
        events_.lostFocus(left);
    if (alive && focused_ == widget.id)
        events_.gotFocus(widget.id);
}

void FormWindow::putBackColour(engine::Colour colour)
{
    back_ = colour;
    ownBack_ = true;
    if (window_)
        InvalidateRect(window_, nullptr, FALSE);
}

platform::WindowId FormWindow::window() const
{
    return {reinterpret_cast<std::uintptr_t>(window_)};
}

std::unique_ptr<platform::Form> FormFactory::make(const platform::FormLayout& layout, platform::FormEvents& events)
{
    return std::make_unique<FormWindow>(layout, events);
}

} // namespace vela::win32
