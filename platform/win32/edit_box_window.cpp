// The EDIT's messages as the field's events: keys, characters, focus, mouse, clipboard, menu.
#include "platform/win32/clipboard.h"
#include "platform/win32/control_surface.h"
#include "platform/win32/drop_target.h"
#include "platform/win32/edit_box.h"
#include "platform/win32/edit_menu.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/guard.h"
#include "platform/win32/keyboard.h"
#include "platform/win32/tab_order.h"
#include "platform/win32/text.h"
#include "platform/win32/window_map.h"

#include <imm.h>

#include <string>

namespace vela::win32 {
namespace {

// The characters that the Control key makes of these letters.
constexpr WPARAM controlA = 1, controlC = 3, controlV = 22, controlX = 24, controlY = 25, controlZ = 26;
constexpr WPARAM controlBackspace = 127;
constexpr int shiftKey = 1, controlKey = 2, altKey = 4;

constexpr bool isControl(WPARAM unit) noexcept
{
    return (unit < ' ' && unit != VK_BACK && unit != VK_RETURN) || unit == controlBackspace;
}

// The character of the Tab key, which is also that of Control and I.
bool isTabKey(LPARAM data) noexcept
{
    return LOBYTE(HIWORD(data)) == MapVirtualKeyW(VK_TAB, MAPVK_VK_TO_VSC) || GetKeyState(VK_CONTROL) >= 0;
}

bool sameForm(HWND one, HWND other) noexcept
{
    return one && other && formOf(one) == formOf(other);
}

std::u16string composed(HWND window)
{
    std::u16string text;
    const HIMC context = ImmGetContext(window);
    if (!context)
        return text;
    if (const LONG bytes = ImmGetCompositionStringW(context, GCS_RESULTSTR, nullptr, 0); bytes > 0) {
        text.resize(static_cast<std::size_t>(bytes) / sizeof(char16_t));
        ImmGetCompositionStringW(context, GCS_RESULTSTR, text.data(), static_cast<DWORD>(bytes));
    }
    ImmReleaseContext(window, context);
    return text;
}

} // namespace

LRESULT CALLBACK EditBox::procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    auto* box = static_cast<EditBox*>(boundObject(window));
    if (!box)
        return behindProcedure(window, message, first, second);
    return contained([&] { return box->handle(message, first, second); }, LRESULT{0});
}

LRESULT EditBox::handle(UINT message, WPARAM first, LPARAM second)
{
    if (surface_.dead() && isInput(message))
        return 0;
    switch (message) {
    case WM_CHAR: return onChar(first, second);
    case WM_KEYDOWN:
    case WM_SYSKEYDOWN: return onKeyDown(message, first, second);
    case WM_KEYUP:
    case WM_SYSKEYUP: return onKeyUp(message, first, second);
    case WM_MOUSEMOVE: return onMove(first, second);
    case WM_SETFOCUS: return onFocus(first, second);
    case WM_KILLFOCUS: return onFocusLost(reinterpret_cast<HWND>(first), second);
    case WM_LBUTTONUP: return onButtonUp(first, second);
    case WM_LBUTTONDBLCLK: return onDoubleClick(first, second);
    case WM_GETDLGCODE: return dialogCode(first, second);
    case WM_GETOBJECT: surface_.readerAsks(); return pass(message, first, second);
    case WM_UNICHAR: return onUnicode(first, second);
    case WM_IME_COMPOSITION: return onComposition(first, second);
    case WM_CONTEXTMENU: return onMenu(second);
    case WM_SETTEXT: changed_ = true; return pass(message, first, second); // a multi-line EDIT sends no EN_CHANGE
    case WM_PASTE: paste(); return 0;
    case WM_COPY: copy(); return 0;
    case WM_CUT: cut(true); return 0;
    case WM_CLEAR: cut(false); return 0;
    case WM_UNDO:
    case EM_UNDO: command(editUndo); return TRUE;
    case EM_CANUNDO: return TRUE;
    case WM_CLOSE: return 0; // an EDIT in a dialog posts it for Esc; only the host takes the field away
    case WM_PAINT: registerDropTarget(*this, dropTarget_); return pass(message, first, second);
    case WM_DESTROY:
        revokeDropTarget(edit_, dropTarget_);
        keepState();
        return native(message, first, second);
    case WM_NCDESTROY: return onDestroyed(first, second);
    default: return pass(message, first, second);
    }
}

LRESULT EditBox::onDestroyed(WPARAM first, LPARAM second)
{
    const HWND window = std::exchange(edit_, nullptr);
    unbindObject(window);
    if (!rebuilding_) {
        const bool owes = std::exchange(entered_, false) || arbiter_.returnsTo(*this);
        arbiter_.forget(*this);
        if (owes)
            goneForGood(); // may destroy the box
    }
    return behindProcedure(window, WM_NCDESTROY, first, second);
}

LRESULT EditBox::onKeyDown(UINT message, WPARAM code, LPARAM data)
{
    const engine::Alive alive(life_);
    const HWND window = edit_;
    swallowChar_ = false;
    int key = static_cast<int>(code);
    int shift = shift_.emplace(shiftState());
    if (key == VK_TAB && !(shift & (controlKey | altKey)))
        return onTab({window, message, code, data, static_cast<DWORD>(GetMessageTime()), {}}, (shift & shiftKey) != 0);
    if (platform::EditBoxEvents* listener = events(); listener && key != VK_PROCESSKEY)
        listener->keyDown(key, shift);
    if (!alive || edit_ != window)
        return 0;
    swallowChar_ = key == 0;
    if (key == 0 || shortcut(key, shift))
        return 0;
    // Wine's EDIT selects all already here, before the host has heard the character.
    if ((shift & controlKey) && key == 'A')
        return 0;
    return pass(message, static_cast<WPARAM>(key), data);
}

LRESULT EditBox::onKeyUp(UINT message, WPARAM code, LPARAM data)
{
    const engine::Alive alive(life_);
    const HWND window = edit_;
    if (!shift_ || code == VK_SHIFT || code == VK_CONTROL || code == VK_MENU)
        shift_ = shiftState();
    if (platform::EditBoxEvents* listener = events(); listener && code != VK_PROCESSKEY && code != VK_TAB)
        listener->keyUp(static_cast<int>(code), *shift_);
    return alive && edit_ == window ? pass(message, code, data) : 0;
}

LRESULT EditBox::onChar(WPARAM unit, LPARAM data)
{
    if (swallowChar_ || (unit == VK_TAB && isTabKey(data)))
        return 0;
    if (isControl(unit))
        return onControl(unit, data);
    const engine::Alive alive(life_);
    const HWND window = edit_;
    int key = static_cast<int>(unit);
    if (platform::EditBoxEvents* listener = events())
        listener->keyPress(key);
    if (!alive || edit_ != window || key == 0)
        return 0;
    return pass(WM_CHAR, static_cast<WPARAM>(key), data);
}

// The box still acts on the control character unless the host set the key to 0. Another code that the host sets is not
// inserted.
LRESULT EditBox::onControl(WPARAM unit, LPARAM data)
{
    const engine::Alive alive(life_);
    const HWND window = edit_;
    int key = static_cast<int>(unit);
    if (platform::EditBoxEvents* listener = events())
        listener->controlPress(key);
    if (!alive || edit_ != window || key == 0)
        return 0;
    switch (unit) {
    case controlA: command(editSelectAll); return 0;
    case controlC: command(editCopy); return 0;
    case controlV: command(editPaste); return 0;
    case controlX: command(editCut); return 0;
    case controlY: command(editRedo); return 0;
    case controlZ: command(editUndo); return 0;
    case VK_TAB:
    case controlBackspace: return 0; // the EDIT would insert a character that no rule has seen
    default: return pass(WM_CHAR, unit, data);
    }
}

LRESULT EditBox::onUnicode(WPARAM codePoint, LPARAM data)
{
    if (codePoint == UNICODE_NOCHAR)
        return TRUE;
    if (codePoint < 0x10000)
        return onChar(codePoint, data);
    const engine::Alive alive(life_);
    const WPARAM beyond = codePoint - 0x10000;
    onChar(0xD800 + (beyond >> 10), data);
    if (alive && edit_)
        onChar(0xDC00 + (beyond & 0x3FF), data);
    return FALSE;
}

// The text that an input method composed is typed unit by unit, through the same filter; the system handles the rest of
// the composition.
LRESULT EditBox::onComposition(WPARAM first, LPARAM flags)
{
    const engine::Alive alive(life_);
    if (flags & GCS_RESULTSTR)
        for (const char16_t unit : composed(edit_)) {
            onChar(unit, 1);
            if (!alive || !edit_)
                return 0;
        }
    const LPARAM rest = flags & ~LPARAM{GCS_RESULTSTR};
    return rest || !flags ? pass(WM_IME_COMPOSITION, first, rest) : 0;
}

LRESULT EditBox::onFocus(WPARAM first, LPARAM second)
{
    shift_.reset();
    const engine::Alive alive(life_);
    const LRESULT result = pass(WM_SETFOCUS, first, second);
    if (alive && edit_ && !rebuilding_)
        enter();
    return result;
}

LRESULT EditBox::onFocusLost(HWND next, LPARAM second)
{
    const engine::Alive alive(life_);
    const LRESULT result = pass(WM_KILLFOCUS, reinterpret_cast<WPARAM>(next), second);
    if (!alive || !entered_ || rebuilding_)
        return result;
    if (arbiter_.borrows(next) || (next && ownsWindow(next)))
        arbiter_.lend(*this);
    else
        leave(next);
    return result;
}

void EditBox::enter()
{
    if (entered_) {
        arbiter_.regained(*this);
        return;
    }
    const engine::Alive alive(life_);
    arbiter_.entering(*this);
    if (!alive || arbiter_.suppresses(*this))
        return;
    entered_ = true;
    const FocusArbiter::Change change(arbiter_, nullptr, true);
    if (SurfaceListener* listener = surface_.listener_)
        listener->focusEntered();
    if (!alive)
        return;
    if (platform::EditBoxEvents* listener = events())
        listener->gotFocus();
}

// The focus returns only within the same form, so that closing or deactivating a form is never prevented.
void EditBox::leave(HWND next)
{
    const engine::Alive alive(life_);
    entered_ = false;
    const bool within = IsWindowEnabled(edit_) && sameForm(next, edit_);
    const FocusArbiter::Change change(arbiter_, this, within);
    const platform::Leaving leaving = within ? platform::Leaving::within : platform::Leaving::away;
    if (platform::EditBoxEvents* listener = events())
        contained([listener, leaving] { listener->lostFocus(leaving); });
    if (platform::SurfaceEvents* listener = alive ? surface_.events_ : nullptr)
        contained([listener] { listener->surfaceLostFocus(); });
    if (!alive || arbiter_.returnsTo(*this))
        return;
    if (SurfaceListener* listener = surface_.listener_)
        listener->focusLeft();
}

void EditBox::takeFocus()
{
    if (!edit_ || (entered_ && GetFocus() == edit_))
        return;
    if (arbiter_.changing())
        arbiter_.ask(*this);
    else
        SetFocus(edit_);
}

bool EditBox::regainFocus()
{
    const HWND focus = GetFocus();
    if (!edit_ || !IsWindowVisible(edit_) || !IsWindowEnabled(edit_) || (focus && !sameForm(focus, edit_)) ||
        GetActiveWindow() != GetAncestor(edit_, GA_ROOT))
        return false;
    if (focus == edit_)
        enter();
    else
        SetFocus(edit_);
    return true;
}

void EditBox::goneForGood()
{
    if (SurfaceListener* listener = surface_.listener_)
        listener->focusLeft();
}

void EditBox::letGo()
{
    const bool owes = arbiter_.returnsTo(*this);
    arbiter_.forget(*this);
    if (entered_)
        leave(nullptr);
    else if (owes)
        goneForGood();
}

void EditBox::settleLoan() noexcept
{
    arbiter_.settleLater();
}

bool EditBox::hasFocus() const
{
    return entered_;
}

bool EditBox::ownsWindow(HWND window) const noexcept
{
    return window && (window == surface_.handle() || IsChild(surface_.handle(), window));
}

LRESULT EditBox::onMove(WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    const LRESULT result = pass(WM_MOUSEMOVE, first, second);
    if (alive)
        if (platform::EditBoxEvents* listener = events())
            listener->pointerMoved();
    return result;
}

LRESULT EditBox::onButtonUp(WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    const bool click = !std::exchange(skipClick_, false);
    const LRESULT result = pass(WM_LBUTTONUP, first, second);
    // Without the focus no click is reported.
    if (alive && click && entered_)
        if (platform::EditBoxEvents* listener = events())
            listener->clicked();
    return result;
}

LRESULT EditBox::onDoubleClick(WPARAM first, LPARAM second)
{
    const engine::Alive alive(life_);
    skipClick_ = true;
    const LRESULT result = pass(WM_LBUTTONDBLCLK, first, second);
    if (alive && entered_)
        if (platform::EditBoxEvents* listener = events())
            listener->doubleClicked();
    return result;
}

// Without DLGC_HASSETSEL: a dialog would select all after the field has placed its caret. Enter is the field's.
LRESULT EditBox::dialogCode(WPARAM first, LPARAM second)
{
    const auto* message = reinterpret_cast<const MSG*>(second);
    LRESULT code = native(WM_GETDLGCODE, first, second) & ~LRESULT{DLGC_HASSETSEL | DLGC_WANTTAB | DLGC_WANTALLKEYS};
    code |= DLGC_WANTCHARS | DLGC_WANTARROWS;
    if (message && (message->message == WM_KEYDOWN || message->message == WM_CHAR) && message->wParam == VK_RETURN)
        code |= DLGC_WANTMESSAGE;
    return code;
}

LRESULT EditBox::onMenu(LPARAM point)
{
    const engine::Alive alive(life_);
    const platform::Selection marked = selection();
    const EditMenuState state{marked.length > 0, traits_.passwordChar != 0, textLength() > 0};
    const UINT chosen = showEditMenu(edit_, point, state);
    if (alive && chosen)
        command(chosen);
    return 0;
}

bool EditBox::shortcut(int code, int shift)
{
    if (code == VK_INSERT && shift == controlKey)
        command(editCopy);
    else if (code == VK_INSERT && shift == shiftKey)
        command(editPaste);
    else if (code == VK_DELETE && shift == shiftKey)
        command(editCut);
    else if (code == VK_BACK && shift == altKey)
        command(editUndo);
    else
        return false;
    return true;
}

void EditBox::command(UINT command)
{
    platform::EditBoxEvents* listener = events();
    switch (command) {
    case editCopy: copy(); break;
    case editCut: cut(true); break;
    case editDelete: cut(false); break;
    case editPaste: paste(); break;
    case editSelectAll: native(EM_SETSEL, 0, -1); break;
    case editUndo:
        if (listener)
            listener->undo();
        break;
    case editRedo:
        if (listener)
            listener->redo();
        break;
    default: break;
    }
}

void EditBox::paste()
{
    const std::u16string text = clipboardText(edit_);
    if (platform::EditBoxEvents* listener = events(); listener && !text.empty())
        listener->pasted(text);
}

// A password is never copied, and so not cut either. Wine's EDIT would.
void EditBox::copy() const
{
    if (!traits_.passwordChar)
        native(WM_COPY, 0, 0);
}

void EditBox::cut(bool keep)
{
    if (selection().length == 0 || (keep && traits_.passwordChar))
        return;
    if (keep)
        copy();
    if (platform::EditBoxEvents* listener = events())
        listener->cut();
}

void EditBox::dropped(std::u16string_view text, POINT point)
{
    const engine::Alive alive(life_);
    ScreenToClient(edit_, &point);
    takeFocus();
    if (!alive || !edit_)
        return;
    const LRESULT position = native(EM_CHARFROMPOS, 0, MAKELPARAM(point.x, point.y));
    native(EM_SETSEL, LOWORD(position), LOWORD(position));
    if (platform::EditBoxEvents* listener = events())
        listener->pasted(text);
}

// The host's message loop did not use the Tab: asks the container once more, then moves the focus from here.
LRESULT EditBox::onTab(const MSG& key, bool back)
{
    const engine::Alive alive(life_);
    MSG unused = key;
    SurfaceListener* const listener = surface_.listener_;
    if ((listener && listener->tabUnused(unused)) || !alive || edit_ != key.hwnd)
        return 0;
    if (const HWND next = nextTabStop(edit_, back))
        SetFocus(next);
    return 0;
}

} // namespace vela::win32
