// What a person does at a form's windows, as the form's events.
#include "engine/scoped_value.h"
#include "platform/win32/access_key.h"
#include "platform/win32/accessible_name.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/form_window.h"
#include "platform/win32/keyboard.h"
#include "platform/win32/text.h"
#include "platform/win32/window_map.h"

#include <commctrl.h>
#include <windowsx.h>

#include <ranges>
#include <utility>

namespace vela::win32 {
namespace {

using platform::Widget;
using platform::WidgetId;
using platform::WidgetKind;

bool listIsDown(const WidgetWindow& widget) noexcept
{
    return platform::isCombo(widget.kind()) && widget.window &&
           SendMessageW(widget.window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

wchar_t upper(wchar_t letter) noexcept
{
    CharUpperBuffW(&letter, 1);
    return letter;
}

} // namespace

LRESULT FormWindow::widgetMessage(WidgetWindow& widget, HWND window, UINT message, WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    if (dead_ && isInput(message))
        return 0;
    const auto gone = [&] { return !alive || (widget.window != window && widget.inner != window); };
    switch (message) {
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        if (keyDown(&widget, first) || gone())
            return 0;
        break;
    case WM_CHAR:
        if (keyPress(&widget, first) || gone())
            return 0;
        break;
    case WM_SYSCHAR:
        if (accessKey(static_cast<wchar_t>(first)))
            return 0;
        break;
    case WM_GETDLGCODE:
        return keysWanted(widget, behindProcedure(window, message, first, second),
                          reinterpret_cast<const MSG*>(second));
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
        const LRESULT result = behindProcedure(window, message, first, second);
        if (!gone())
            focusCrossed(message, reinterpret_cast<HWND>(first));
        if (!gone() && message == WM_SETFOCUS)
            widgets_.focusArrived(widget.id());
        return result;
    }
    case WM_GETOBJECT:
        if (widget.saysItsName)
            if (const LRESULT answer = namedAnswer(window, first, second, widget.values.look.spokenName))
                return answer;
        break;
    case WM_NCDESTROY:
        unbindObject(window);
        (window == widget.inner ? widget.inner : widget.window) = nullptr;
        return behindProcedure(window, message, first, second);
    default: break;
    }
    const LRESULT result = behindProcedure(window, message, first, second);
    const bool mayComplete = message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_LBUTTONDOWN;
    if (mayComplete && !gone() && widget.kind() == WidgetKind::comboBox)
        tellShown(widget); // its list has opened
    return result;
}

// A swatch is moved from by arrows in a dialog; on a page Enter opens its palette.
LRESULT FormWindow::keysWanted(const WidgetWindow& widget, LRESULT usual, const MSG* message) const
{
    if (widget.kind() != WidgetKind::swatch)
        return usual;
    if (role_ != Role::child)
        return usual | DLGC_WANTARROWS;
    const bool wanted = message && message->message == WM_KEYDOWN && wantsKey(widget, message->wParam);
    return usual | (wanted ? DLGC_WANTMESSAGE : 0);
}

bool FormWindow::wantsKey(const WidgetWindow& widget, WPARAM code) const
{
    return listIsDown(widget) || (code == VK_RETURN && widget.kind() == WidgetKind::swatch);
}

LRESULT FormWindow::handle(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (!window_) // still being made
        return DefWindowProcW(window, message, first, second);
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    if (dead_ && (isInput(message) || message == WM_MOUSEACTIVATE))
        return message == WM_MOUSEACTIVATE ? MA_NOACTIVATEANDEAT : 0;
    switch (message) {
    case WM_COMMAND: return command(first, second);
    case WM_NOTIFY: return notify(*reinterpret_cast<const NMHDR*>(second));
    case WM_PAINT: paint(); return 0;
    case WM_ERASEBKGND: return TRUE;
    case WM_PRINTCLIENT: { // a widget asks what lies under it
        RECT client{};
        GetClientRect(window, &client);
        paintGround(reinterpret_cast<HDC>(first), client);
        return 0;
    }
    case WM_THEMECHANGED:
    case WM_SYSCOLORCHANGE: learnGround(); break;
    case WM_DRAWITEM: drawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(second)); return TRUE;
    case WM_CTLCOLOREDIT:
    case WM_CTLCOLORLISTBOX:
    case WM_CTLCOLORSTATIC:
    case WM_CTLCOLORBTN: return colourOf(message, reinterpret_cast<HDC>(first), reinterpret_cast<HWND>(second));
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK: return pointer(message, second);
    case WM_CAPTURECHANGED: pressed_ = nullptr; return 0;
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN:
        if (keyDown(nullptr, first))
            return 0;
        break;
    case WM_CHAR: keyPress(nullptr, first); return 0;
    case WM_SYSCHAR:
        if (accessKey(static_cast<wchar_t>(first)))
            return 0;
        break;
    case WM_ACTIVATE: {
        const LRESULT result = DefWindowProcW(window, message, first, second); // gives the focus to the form
        if (alive)
            activation(LOWORD(first) != WA_INACTIVE);
        return result;
    }
    case WM_SETFOCUS:
        focusCrossed(message, reinterpret_cast<HWND>(first));
        if (alive && window_)
            focusFirst();
        return 0;
    case WM_GETDLGCODE:
        if (listener_ && role_ == Role::child)
            return keysWanted(reinterpret_cast<const MSG*>(second));
        break;
    case WM_KILLFOCUS: focusCrossed(message, reinterpret_cast<HWND>(first)); return 0;
    case WM_TIMER: timer(); return 0;
    case WM_GETOBJECT:
        if (static_cast<LONG>(second) == OBJID_CLIENT)
            if (const LRESULT answer = speech_.answer(window, first, *this))
                return answer;
        break;
    case WM_CLOSE: close(); return 0;
    default: break;
    }
    return alive ? DefWindowProcW(window, message, first, second) : 0;
}

bool FormWindow::isOwn(HWND window) const noexcept
{
    return window && (window == window_ || IsChild(window_, window));
}

// A host asks the window it knows, whichever of its widgets has the focus.
LRESULT FormWindow::keysWanted(const MSG* key) const noexcept
{
    const bool enter = key && key->message == WM_KEYDOWN && key->wParam == VK_RETURN;
    return DLGC_WANTARROWS | (enter ? DLGC_WANTALLKEYS : 0);
}

// Notifies the listener when the focus came from `other`, or goes to it, and `other` is no window of this form.
void FormWindow::focusCrossed(UINT message, HWND other)
{
    if (!listener_ || isOwn(other))
        return;
    if (message == WM_SETFOCUS)
        listener_->focusEntered();
    else
        listener_->focusLeft();
}

// Destroyed with its parent or owner: the values stay, and a form of its own is closed.
void FormWindow::unbound()
{
    speech_.forget();
    arbiter_.removeBorrower(std::exchange(window_, nullptr));
    shown_ = false;
    windows_.destroyed();
    if (role_ != Role::child) {
        if (!std::exchange(closed_, true) && events_.popup)
            events_.popup->closed();
    } else if (listener_) {
        listener_->windowDestroyed();
    }
}

LRESULT FormWindow::command(WPARAM first, LPARAM second)
{
    const UINT code = HIWORD(first);
    if (!second) { // a dialog's Enter and Esc
        if (LOWORD(first) == IDOK)
            pressButton(u"OK");
        else if (LOWORD(first) == IDCANCEL)
            pressButton(u"Cancelar");
        return 0;
    }
    const WidgetWindow* widget = windows_.quiet() ? nullptr : windows_.ofWindow(reinterpret_cast<HWND>(second));
    if (!widget)
        return 0;
    switch (widget->kind()) {
    case WidgetKind::button:
    case WidgetKind::checkBox:
    case WidgetKind::optionButton:
    case WidgetKind::swatch:
        if (code == BN_CLICKED)
            press(widget->values);
        else if (code == BN_DBLCLK)
            events_.doubleClicked(widget->id());
        break;
    case WidgetKind::comboBox:
    case WidgetKind::dropDownList:
        if (code == CBN_SELCHANGE)
            clickedWindow(*widget);
        else if (code == CBN_EDITCHANGE)
            typedInto(*widget);
        else if (code == CBN_CLOSEUP || code == CBN_KILLFOCUS)
            tellShown(*widget);
        break;
    case WidgetKind::listBox:
        if (code == LBN_SELCHANGE)
            clickedWindow(*widget);
        else if (code == LBN_DBLCLK)
            events_.doubleClicked(widget->id());
        break;
    case WidgetKind::textBox:
        if (code == EN_CHANGE)
            typedInto(*widget);
        break;
    case WidgetKind::label:
    case WidgetKind::frame:
    case WidgetKind::preview:
    case WidgetKind::tabStrip: break;
    }
    return 0;
}

void FormWindow::clickedWindow(const WidgetWindow& widget)
{
    windows_.adoptList(widget);
    widgets_.chose(widget.id());
}

// The combo has let go of its choice, or completed the text to an item.
void FormWindow::typedInto(const WidgetWindow& widget)
{
    const bool combo = widget.kind() == WidgetKind::comboBox;
    widgets_.typed(widget.id(), textOf(widget.window),
                   combo ? static_cast<int>(SendMessageW(widget.window, CB_GETCURSEL, 0, 0)) : -1);
}

// A list that opens completes the text in its box, one that is left with Esc goes back to the former choice: the combo
// says nothing of either.
void FormWindow::tellShown(const WidgetWindow& widget)
{
    if (widget.kind() == WidgetKind::comboBox)
        typedInto(widget);
    else if (SendMessageW(widget.window, CB_GETCURSEL, 0, 0) != widget.values.list->chosen())
        clickedWindow(widget);
}

LRESULT FormWindow::notify(const NMHDR& header)
{
    const WidgetWindow* widget = windows_.quiet() ? nullptr : windows_.ofWindow(header.hwndFrom);
    if (widget && widget->kind() == WidgetKind::tabStrip && header.code == static_cast<UINT>(TCN_SELCHANGE))
        clickedWindow(*widget);
    return 0;
}

// Acts as a person's click does.
void FormWindow::press(const Widget& widget)
{
    if (widget.enabled && widgets_.showing(widget))
        widgets_.press(widget.id);
}

// The form's button of this caption; without one for Esc the form is closed.
void FormWindow::pressButton(std::u16string_view caption)
{
    for (const Widget& widget : widgets_.all())
        if (widget.kind() == WidgetKind::button && withoutAccessKey(widget.text) == caption)
            return press(widget);
    if (caption == u"Cancelar")
        close();
}

LRESULT FormWindow::pointer(UINT message, LPARAM where)
{
    const Widget* label = labelAt({GET_X_LPARAM(where), GET_Y_LPARAM(where)});
    if (message == WM_LBUTTONDOWN) {
        pressed_ = label;
        if (label)
            SetCapture(window_);
        if (listener_ && role_ == Role::child && !isOwn(GetFocus()))
            SetFocus(window_);
        return 0;
    }
    if (message == WM_LBUTTONDBLCLK) {
        if (label)
            events_.doubleClicked(label->id);
        return 0;
    }
    const Widget* pressed = std::exchange(pressed_, nullptr);
    ReleaseCapture();
    if (label && label == pressed)
        events_.clicked(label->id);
    return 0;
}

std::vector<SpokenLabel> FormWindow::spokenLabels() const
{
    std::vector<SpokenLabel> labels;
    for (const Widget& widget : widgets_.all()) {
        const bool named = !widget.look.spokenName.empty();
        if (platform::takesFocus(widget.kind()) || !widgets_.showing(widget) || (!named && widget.text.empty()))
            continue;
        RECT place = windows_.rectOf(widget);
        MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&place), 2);
        labels.push_back({widget.id.value, named ? widget.look.spokenName : withoutAccessKey(widget.text), place,
                          widget.enabled, named});
    }
    return labels;
}

void FormWindow::clickLabel(int widget)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    if (widgets_.at({widget}).enabled)
        events_.clicked({widget});
}

// The topmost one: painted last.
const Widget* FormWindow::labelAt(POINT point) const
{
    for (const Widget& widget : std::views::reverse(widgets_.all())) {
        if (platform::takesFocus(widget.kind()) || widget.kind() == WidgetKind::frame)
            continue;
        const RECT place = windows_.rectOf(widget);
        if (widget.enabled && widgets_.showing(widget) && PtInRect(&place, point))
            return &widget;
    }
    return nullptr;
}

// While a message box of this library is up, the form still counts as active.
void FormWindow::activation(bool active)
{
    if (closed_ || !shown_ || role_ == Role::child || arbiter_.holding() || !events_.popup)
        return;
    if (active)
        events_.popup->activated();
    else
        events_.popup->deactivated();
}

void FormWindow::timer()
{
    if (timer_ > 0 && !closed_ && !arbiter_.holding() && events_.popup)
        events_.popup->tick();
}

// True when the key shall go no further.
bool FormWindow::keyDown(const WidgetWindow* widget, WPARAM code)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    swallowChar_ = false;
    if (code == VK_TAB) {
        if (role_ == Role::popup)
            nextWidget((shiftState() & 1) != 0);
        return role_ == Role::popup;
    }
    if (widget && listIsDown(*widget))
        return false; // its keys move in the list
    int key = static_cast<int>(code);
    int shift = shiftState();
    events_.keyDown(widget ? widget->id() : WidgetId{}, key, shift);
    if (!alive)
        return true;
    swallowChar_ = key == 0;
    return key == 0;
}

bool FormWindow::keyPress(const WidgetWindow* widget, WPARAM unit)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    if (swallowChar_)
        return true;
    if (unit == VK_TAB)
        return role_ == Role::popup;
    if ((unit == VK_RETURN || unit == VK_ESCAPE) && widget && listIsDown(*widget))
        return false; // they close the list
    int key = static_cast<int>(unit);
    events_.keyPress(widget ? widget->id() : WidgetId{}, key);
    if (!alive || key == 0)
        return true;
    const bool single = widget && widget->kind() == WidgetKind::textBox &&
                        !(GetWindowLongPtrW(widget->window, GWL_STYLE) & ES_MULTILINE);
    const bool beeps = (single || (widget && widget->inner)) && (key == VK_RETURN || key == VK_ESCAPE);
    if (beeps || key == static_cast<int>(unit))
        return beeps;
    // The handler put another character in its place.
    if (widget && widget->window)
        behindProcedure(widget->inner ? widget->inner : widget->window, WM_CHAR, static_cast<WPARAM>(key), 1);
    return true;
}

void FormWindow::nextWidget(bool back)
{
    if (const HWND next = GetNextDlgTabItem(window_, GetFocus(), back))
        SetFocus(next);
}

// A button's access key clicks it; a label's leads to the widget behind it.
bool FormWindow::accessKey(wchar_t letter)
{
    for (std::size_t i = 0; i < windows_.all().size(); ++i) {
        const Widget& widget = windows_.all()[i].values;
        const char16_t key = accessKeyOf(widget);
        if (!key || upper(static_cast<wchar_t>(key)) != upper(letter) || !widget.enabled || !widgets_.showing(widget))
            continue;
        const WidgetWindow& target =
            windows_.all()[platform::takesFocus(widget.kind()) || i + 1 == windows_.all().size() ? i : i + 1];
        if (!target.window || !target.values.enabled || !widgets_.showing(target.values))
            continue;
        const engine::Alive alive(life_);
        const engine::ScopedValue running(life_, running_, running_ + 1);
        SetFocus(target.window);
        if (alive && &target.values == &widget)
            press(widget);
        return true;
    }
    return false;
}

bool FormWindow::translate(MSG& message)
{
    if (!window_)
        return false;
    const bool inside = message.hwnd == window_ || IsChild(window_, message.hwnd);
    const bool heard = inside || (role_ == Role::child && isFrameOf(message.hwnd));
    if (heard && message.message == WM_SYSCHAR && accessKey(static_cast<wchar_t>(message.wParam)))
        return true;
    if (!inside)
        return false;
    if (role_ == Role::child && message.message == WM_KEYDOWN) {
        const WidgetWindow* widget = windows_.ofWindow(message.hwnd);
        if ((message.wParam == VK_RETURN || message.wParam == VK_ESCAPE) &&
            !(widget && wantsKey(*widget, message.wParam)))
            return false;
        if (message.wParam == VK_TAB && leavesPage((shiftState() & 1) != 0))
            return false;
    }
    return IsDialogMessageW(window_, &message) != 0;
}

bool FormWindow::isFrameOf(HWND window) const
{
    return IsWindowVisible(window_) && GetAncestor(window, GA_ROOT) == GetAncestor(window_, GA_ROOT);
}

// Tab at the page's last widget, or Shift+Tab at its first, goes on to the frame.
bool FormWindow::leavesPage(bool back)
{
    const WidgetWindow* from = windows_.ofWindow(GetFocus());
    const WidgetWindow* to = windows_.ofWindow(GetNextDlgTabItem(window_, GetFocus(), back));
    return from && to && (back ? to->id().value >= from->id().value : to->id().value <= from->id().value);
}

} // namespace vela::win32
