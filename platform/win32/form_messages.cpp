// What a person does at a form's windows, as the form's events.
#include "platform/win32/accessible_name.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/form_window.h"
#include "platform/win32/keyboard.h"
#include "platform/win32/text.h"
#include "platform/win32/window_map.h"

#include <commctrl.h>
#include <windowsx.h>

#include <utility>

namespace vela::win32 {
namespace {

using platform::WidgetId;
using platform::WidgetKind;

std::u16string textOf(HWND window)
{
    std::u16string text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, u'\0');
    const int read = GetWindowTextW(window, wide(text.data()), static_cast<int>(text.size()));
    text.resize(static_cast<std::size_t>(read));
    return text;
}

bool listIsDown(const Widget& widget) noexcept
{
    const bool combo = widget.kind() == WidgetKind::comboBox || widget.kind() == WidgetKind::dropDownList;
    return combo && widget.window && SendMessageW(widget.window, CB_GETDROPPEDSTATE, 0, 0) != 0;
}

wchar_t upper(wchar_t letter) noexcept
{
    CharUpperBuffW(&letter, 1);
    return letter;
}

} // namespace

LRESULT FormWindow::widgetMessage(Widget& widget, HWND window, UINT message, WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    const WNDPROC original = window == widget.inner ? widget.innerOriginal : widget.original;
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
        return keysWanted(widget, CallWindowProcW(original, window, message, first, second),
                          reinterpret_cast<const MSG*>(second));
    case WM_SETFOCUS:
    case WM_KILLFOCUS: {
        const LRESULT result = CallWindowProcW(original, window, message, first, second);
        if (!gone())
            focusCrossed(message, reinterpret_cast<HWND>(first));
        if (!gone() && message == WM_SETFOCUS)
            focusArrived(widget);
        return result;
    }
    case WM_GETOBJECT:
        if (widget.saysItsName)
            if (const LRESULT answer = namedAnswer(window, first, second, widget.look.spokenName))
                return answer;
        break;
    case WM_NCDESTROY:
        unbindObject(window);
        (window == widget.inner ? widget.inner : widget.window) = nullptr;
        return behindProcedure(window, message, first, second);
    default: break;
    }
    const LRESULT result = CallWindowProcW(original, window, message, first, second);
    const bool mayComplete = message == WM_KEYDOWN || message == WM_SYSKEYDOWN || message == WM_LBUTTONDOWN;
    if (mayComplete && !gone() && widget.kind() == WidgetKind::comboBox)
        tellShown(widget); // its list has opened
    return result;
}

// A swatch is moved from by arrows in a dialog; on a page Enter opens its palette.
LRESULT FormWindow::keysWanted(const Widget& widget, LRESULT usual, const MSG* message) const
{
    if (widget.kind() != WidgetKind::swatch)
        return usual;
    if (role_ != Role::child)
        return usual | DLGC_WANTARROWS;
    const bool wanted = message && message->message == WM_KEYDOWN && wantsKey(widget, message->wParam);
    return usual | (wanted ? DLGC_WANTMESSAGE : 0);
}

bool FormWindow::wantsKey(const Widget& widget, WPARAM code) const
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
    for (const auto& widget : widgets_)
        widget->window = widget->inner = nullptr;
    if (role_ != Role::child && !std::exchange(closed_, true))
        events_.closed();
    else if (listener_)
        listener_->windowDestroyed();
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
    Widget* widget = quiet_ ? nullptr : ofWindow(reinterpret_cast<HWND>(second));
    if (!widget)
        return 0;
    switch (widget->kind()) {
    case WidgetKind::button:
    case WidgetKind::checkBox:
    case WidgetKind::optionButton:
    case WidgetKind::swatch:
        if (code == BN_CLICKED)
            press(*widget);
        else if (code == BN_DBLCLK)
            events_.doubleClicked(widget->id);
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
            events_.doubleClicked(widget->id);
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

// The combo puts the chosen text into its box only after this notification.
void FormWindow::clickedWindow(Widget& widget)
{
    widget.list->readFromWindow();
    if (widget.kind() == WidgetKind::comboBox && widget.list->chosen() >= 0) {
        const std::u16string chosen = widget.list->at(widget.list->chosen());
        const engine::ScopedFlag quiet(quiet_, true);
        SetWindowTextW(widget.window, wide(chosen.c_str()));
    }
    itemChosen(widget);
}

void FormWindow::typedInto(Widget& widget)
{
    std::u16string text = textOf(widget.window);
    if (text == widget.text)
        return;
    widget.text = std::move(text);
    if (widget.list)
        widget.list->readFromWindow(); // the combo has let go of its choice, or completed the text to an item
    events_.changed(widget.id);
}

// A list that opens completes the text in its box, one that is left with Esc goes back to the former choice: the combo
// says nothing of either.
void FormWindow::tellShown(Widget& widget)
{
    if (widget.kind() == WidgetKind::comboBox)
        typedInto(widget);
    else if (SendMessageW(widget.window, CB_GETCURSEL, 0, 0) != widget.list->chosen())
        clickedWindow(widget);
}

LRESULT FormWindow::notify(const NMHDR& header)
{
    Widget* widget = ofWindow(header.hwndFrom);
    if (!quiet_ && widget && widget->kind() == WidgetKind::tabStrip &&
        header.code == static_cast<UINT>(TCN_SELCHANGE)) {
        widget->list->readFromWindow();
        itemChosen(*widget);
    }
    return 0;
}

// Acts as a person's click does.
void FormWindow::press(Widget& widget)
{
    if (!widget.enabled || !showing(widget))
        return;
    if (widget.kind() == WidgetKind::checkBox) {
        setCheck(widget, !widget.checked);
    } else if (widget.kind() == WidgetKind::optionButton) {
        chooseOption(widget);
        setCheck(widget, true);
    }
    events_.clicked(widget.id);
}

// The form's button of this caption; without one for Esc the form is closed.
void FormWindow::pressButton(std::u16string_view caption)
{
    for (const auto& widget : widgets_)
        if (widget->kind() == WidgetKind::button && withoutAccessKey(widget->text) == caption) {
            press(*widget);
            return;
        }
    if (caption == u"Cancelar")
        close();
}

LRESULT FormWindow::pointer(UINT message, LPARAM where)
{
    Widget* label = labelAt({GET_X_LPARAM(where), GET_Y_LPARAM(where)});
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
    Widget* pressed = std::exchange(pressed_, nullptr);
    ReleaseCapture();
    if (label && label == pressed)
        events_.clicked(label->id);
    return 0;
}

std::vector<SpokenLabel> FormWindow::spokenLabels() const
{
    std::vector<SpokenLabel> labels;
    for (const auto& widget : widgets_) {
        const bool named = !widget->look.spokenName.empty();
        if (isWindow(widget->kind()) || !showing(*widget) || (!named && widget->text.empty()))
            continue;
        RECT place = rectOf(*widget);
        MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&place), 2);
        labels.push_back({widget->id.value, named ? widget->look.spokenName : withoutAccessKey(widget->text), place,
                          widget->enabled, named});
    }
    return labels;
}

void FormWindow::clickLabel(int widget)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    if (at({widget}).enabled)
        events_.clicked({widget});
}

// The topmost one: painted last.
Widget* FormWindow::labelAt(POINT point)
{
    for (auto widget = widgets_.rbegin(); widget != widgets_.rend(); ++widget) {
        if (isWindow((*widget)->kind()) || (*widget)->kind() == WidgetKind::frame)
            continue;
        const RECT place = rectOf(**widget);
        if ((*widget)->enabled && showing(**widget) && PtInRect(&place, point))
            return widget->get();
    }
    return nullptr;
}

// While a message box of this library is up, the form still counts as active.
void FormWindow::activation(bool active)
{
    if (closed_ || !shown_ || role_ == Role::child || arbiter_.holding())
        return;
    if (active)
        events_.activated();
    else
        events_.deactivated();
}

void FormWindow::timer()
{
    if (timer_ > 0 && !closed_ && !arbiter_.holding())
        events_.tick();
}

// True when the key shall go no further.
bool FormWindow::keyDown(Widget* widget, WPARAM code)
{
    const engine::Alive alive(life_);
    const engine::ScopedValue running(life_, running_, running_ + 1);
    swallowChar_ = false;
    if (code == VK_TAB)
        return role_ == Role::popup && navigate(code);
    if (widget && listIsDown(*widget))
        return false; // its keys move in the list
    int key = static_cast<int>(code);
    int shift = shiftState();
    events_.keyDown(widget ? widget->id : WidgetId{}, key, shift);
    if (!alive)
        return true;
    swallowChar_ = key == 0;
    return key == 0;
}

bool FormWindow::keyPress(Widget* widget, WPARAM unit)
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
    events_.keyPress(widget ? widget->id : WidgetId{}, key);
    if (!alive || key == 0)
        return true;
    const bool single = widget && widget->kind() == WidgetKind::textBox &&
                        !(GetWindowLongPtrW(widget->window, GWL_STYLE) & ES_MULTILINE);
    const bool beeps = (single || (widget && widget->inner)) && (key == VK_RETURN || key == VK_ESCAPE);
    if (beeps || key == static_cast<int>(unit))
        return beeps;
    // The handler put another character in its place.
    if (widget && widget->window)
        CallWindowProcW(widget->inner ? widget->innerOriginal : widget->original,
                        widget->inner ? widget->inner : widget->window, WM_CHAR, static_cast<WPARAM>(key), 1);
    return true;
}

bool FormWindow::navigate(WPARAM)
{
    nextWidget((shiftState() & 1) != 0);
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
    for (std::size_t i = 0; i < widgets_.size(); ++i) {
        Widget& widget = *widgets_[i];
        const char16_t key = accessKeyOf(widget);
        if (!key || upper(static_cast<wchar_t>(key)) != upper(letter) || !widget.enabled || !showing(widget))
            continue;
        Widget& target = takesFocus(widget.kind()) || i + 1 == widgets_.size() ? widget : *widgets_[i + 1];
        if (!target.window || !target.enabled || !showing(target))
            continue;
        const engine::Alive alive(life_);
        const engine::ScopedValue running(life_, running_, running_ + 1);
        SetFocus(target.window);
        if (alive && &target == &widget)
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
        const Widget* widget = ofWindow(message.hwnd);
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
bool FormWindow::leavesPage(bool back) const
{
    const Widget* from = ofWindow(GetFocus());
    const Widget* to = ofWindow(GetNextDlgTabItem(window_, GetFocus(), back));
    return from && to && (back ? to->id.value >= from->id.value : to->id.value <= from->id.value);
}

} // namespace vela::win32
