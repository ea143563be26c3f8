// A STATIC window that is never shown, and the label of the form that it stands in for.
#include "platform/win32/name_label.h"

#include "platform/win32/guard.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"
#include "platform/win32/window_map.h"

#include <utility>

namespace vela::win32 {
namespace {

constexpr UINT patience = 200; // milliseconds; the label may belong to another thread

LRESULT ask(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    DWORD_PTR answer = 0;
    return SendMessageTimeoutW(window, message, first, second, SMTO_ABORTIFHUNG, patience, &answer)
               ? static_cast<LRESULT>(answer)
               : 0;
}

bool isLabel(HWND window) noexcept
{
    const LRESULT code = ask(window, WM_GETDLGCODE, 0, 0);
    return (code & DLGC_STATIC) && !(code & DLGC_BUTTON);
}

std::wstring captionOf(HWND label)
{
    std::wstring caption(static_cast<std::size_t>(ask(label, WM_GETTEXTLENGTH, 0, 0)) + 1, L'\0');
    caption.resize(
        static_cast<std::size_t>(ask(label, WM_GETTEXT, caption.size(), reinterpret_cast<LPARAM>(caption.data()))));
    return GetWindowLongPtrW(label, GWL_STYLE) & SS_NOPREFIX ? asLabel(utf16(caption)) : caption;
}

// True for a window of the host that holds only the control.
bool wraps(HWND outer, HWND control) noexcept
{
    RECT client{};
    RECT place{};
    GetClientRect(outer, &client);
    GetWindowRect(control, &place);
    return client.right == place.right - place.left && client.bottom == place.bottom - place.top;
}

} // namespace

std::wstring asLabel(std::u16string_view name)
{
    std::wstring label;
    for (const char16_t unit : name)
        label.append(unit == u'&' ? 2 : 1, static_cast<wchar_t>(unit));
    return label;
}

// Hidden windows are passed over; a visible one that is no label has taken the label before it for itself.
std::wstring labelBefore(HWND control)
{
    for (HWND at = GetWindow(control, GW_HWNDPREV); at; at = GetWindow(at, GW_HWNDPREV)) {
        if (isLabel(at))
            return captionOf(at);
        if (IsWindowVisible(at))
            return {};
    }
    const HWND outer = GetAncestor(control, GA_PARENT);
    return outer && outer != GetAncestor(control, GA_ROOT) && wraps(outer, control) ? labelBefore(outer)
                                                                                    : std::wstring();
}

NameLabel::~NameLabel()
{
    const HWND window = window_;
    if (!window)
        return;
    DestroyWindow(window);
    if (window_) // another subclass procedure did not pass on WM_NCDESTROY
        forgetWindow(window);
}

LRESULT CALLBACK NameLabel::procedure(HWND window, UINT message, WPARAM first, LPARAM second) noexcept
{
    auto* label = static_cast<NameLabel*>(boundObject(window));
    if (!label)
        return behindProcedure(window, message, first, second);
    if (message == WM_GETTEXT || message == WM_GETTEXTLENGTH)
        contained([label] { label->refresh(); });
    if (message == WM_NCDESTROY) {
        unbindObject(window);
        label->window_ = nullptr;
    }
    return behindProcedure(window, message, first, second);
}

void NameLabel::standBefore(HWND box)
{
    if (!window_) {
        shown_.clear();
        window_ =
            CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 0, 0, GetParent(box), nullptr, thisModule(), nullptr);
        if (!window_)
            return;
        subclass(window_, this, &NameLabel::procedure);
    }
    const HWND before = GetWindow(box, GW_HWNDPREV);
    if (before != window_)
        SetWindowPos(window_, before ? before : HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

bool NameLabel::refresh()
{
    std::wstring text = text_();
    if (!window_ || text == shown_)
        return false;
    shown_ = std::move(text);
    SetWindowTextW(window_, shown_.c_str());
    return true;
}

} // namespace vela::win32
