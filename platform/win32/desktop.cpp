// Boxes, keystrokes and window questions of the desktop.
#include "platform/win32/desktop.h"

#include "platform/win32/dialogs.h"
#include "platform/win32/focus_arbiter.h"
#include "platform/win32/guard.h"
#include "platform/win32/modal.h"
#include "platform/win32/module.h"
#include "platform/win32/text.h"
#include "platform/win32/window.h"

#include <array>
#include <string>
#include <vector>

namespace vela::win32 {
namespace {

UINT flagsOf(platform::BoxIcon icon, platform::BoxButtons buttons) noexcept
{
    UINT flags = buttons == platform::BoxButtons::yesNo ? MB_YESNO : MB_OK;
    switch (icon) {
    case platform::BoxIcon::none: break;
    case platform::BoxIcon::information: flags |= MB_ICONINFORMATION; break;
    case platform::BoxIcon::exclamation: flags |= MB_ICONEXCLAMATION; break;
    case platform::BoxIcon::question: flags |= MB_ICONQUESTION; break;
    }
    return flags;
}

platform::BoxAnswer answerOf(int pressed) noexcept
{
    switch (pressed) {
    case IDYES: return platform::BoxAnswer::yes;
    case IDNO: return platform::BoxAnswer::no;
    case IDOK: return platform::BoxAnswer::ok;
    default: return platform::BoxAnswer::cancel;
    }
}

// The application's own title: its main window's, or the program's file name.
std::wstring applicationTitle(HWND active)
{
    const HWND top = active ? GetAncestor(active, GA_ROOTOWNER) : nullptr;
    if (std::wstring title = wide(textOf(top)); !title.empty())
        return title;
    std::array<wchar_t, MAX_PATH> path{};
    const DWORD length = GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
    const std::wstring program(path.data(), length);
    const std::size_t start = program.find_last_of(L"\\/") + 1;
    return program.substr(start, program.find_last_of(L'.') - start);
}

platform::BoxAnswer showBox(UINT flags, const std::wstring& title, const std::wstring& text)
{
    const FocusArbiter::Hold hold; // while the box is up, the field that had the focus is not left
    const HWND owner = GetActiveWindow();
    const HWND focus = GetFocus();
    const std::wstring shown = title.empty() ? applicationTitle(owner) : title;
    const int pressed = [&] {
        const Modal box;
        return MessageBoxW(owner, text.c_str(), shown.c_str(), flags | MB_SETFOREGROUND);
    }();
    // A window that is no dialog does not give the focus back to its child when it is activated again.
    if (focus && focus != GetFocus() && GetActiveWindow() == GetAncestor(focus, GA_ROOT))
        SetFocus(focus);
    return answerOf(pressed);
}

INPUT keyInput(WORD key, bool down) noexcept
{
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC));
    const bool right = key == VK_RCONTROL || key == VK_RMENU;
    input.ki.dwFlags = (down ? 0U : KEYEVENTF_KEYUP) | (right ? KEYEVENTF_EXTENDEDKEY : 0U);
    return input;
}

struct Keystroke {
    WORD key = 0;
    bool shift = false;
};

// "+{TAB}" -> Tab with Shift; anything unknown is no key.
Keystroke parse(std::u16string_view keys) noexcept
{
    Keystroke stroke;
    if (keys.starts_with(u'+')) {
        stroke.shift = true;
        keys.remove_prefix(1);
    }
    if (keys == u"{TAB}")
        stroke.key = VK_TAB;
    else if (keys == u"{F4}")
        stroke.key = VK_F4;
    return stroke;
}

// Modifier keys that the person holds would change the key that is sent: Shift turns Tab round, Alt makes F4 close the
// window. So they are released first. Shift and Control are pressed again afterwards; Alt is not, because pressed and
// released with no key between it would open the window's menu.
void strike(Keystroke stroke)
{
    constexpr std::array<WORD, 6> modifiers{VK_LSHIFT, VK_RSHIFT, VK_LCONTROL, VK_RCONTROL, VK_LMENU, VK_RMENU};
    std::vector<INPUT> before;
    std::vector<INPUT> after;
    for (const WORD modifier : modifiers) {
        if (GetAsyncKeyState(modifier) >= 0)
            continue;
        before.push_back(keyInput(modifier, false));
        if (modifier != VK_LMENU && modifier != VK_RMENU)
            after.push_back(keyInput(modifier, true));
    }
    if (stroke.shift) {
        before.push_back(keyInput(VK_LSHIFT, true));
        after.insert(after.begin(), keyInput(VK_LSHIFT, false));
    }
    before.push_back(keyInput(stroke.key, true));
    before.push_back(keyInput(stroke.key, false));
    before.insert(before.end(), after.begin(), after.end());
    SendInput(static_cast<UINT>(before.size()), before.data(), sizeof(INPUT));
}

// F4 opens the list of the combo that has the focus, and closes it when the click that gave the focus has opened it
// already.
bool isNeeded(Keystroke stroke) noexcept
{
    const HWND focus = GetFocus();
    const auto open = [](HWND combo) { return combo && SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; };
    return stroke.key != VK_F4 || !(open(focus) || open(GetParent(focus)));
}

// Holds the thread's arbiter for a scope, so that work for later has a place to wait.
class HeldArbiter {
public:
    HeldArbiter() : arbiter_(FocusArbiter::retain()) {}
    HeldArbiter(const HeldArbiter&) = delete;
    HeldArbiter& operator=(const HeldArbiter&) = delete;
    ~HeldArbiter() { FocusArbiter::release(); }
    [[nodiscard]] bool changing() const noexcept { return arbiter_.changing(); }
    void later(std::function<void()> work) const { arbiter_.later(std::move(work)); }

private:
    FocusArbiter& arbiter_;
};

} // namespace

platform::BoxAnswer Desktop::messageBox(platform::BoxIcon icon, platform::BoxButtons buttons, std::u16string_view title,
                                        std::u16string_view text)
{
    const UINT flags = flagsOf(icon, buttons);
    const HeldArbiter arbiter;
    if (buttons == platform::BoxButtons::ok && arbiter.changing()) {
        arbiter.later([flags, title = wide(title), text = wide(text)] { showBox(flags, title, text); });
        return platform::BoxAnswer::ok;
    }
    return showBox(flags, wide(title), wide(text));
}

std::u16string Desktop::inputBox(std::u16string_view prompt, std::u16string_view title)
{
    const FocusArbiter::Hold hold;
    const std::u16string shown = title.empty() ? utf16(applicationTitle(GetActiveWindow())) : std::u16string(title);
    return askText(prompt, shown);
}

void Desktop::aboutBox(std::u16string_view version)
{
    const FocusArbiter::Hold hold;
    showAbout(version);
}

void Desktop::sendKeys(std::u16string_view keys)
{
    const Keystroke stroke = parse(keys);
    if (stroke.key)
        HeldArbiter().later([stroke] {
            if (isNeeded(stroke))
                strike(stroke);
        });
}

void Desktop::keyDown(int virtualKey)
{
    const auto key = static_cast<BYTE>(virtualKey);
    keybd_event(key, static_cast<BYTE>(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)), 0, 0);
}

void Desktop::processPendingEvents()
{
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam)); // the host's loop is to see it
            return;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

platform::WindowId Desktop::activeWindow() const
{
    return idOf(GetActiveWindow());
}

bool Desktop::isChild(platform::WindowId parent, platform::WindowId window) const
{
    return IsChild(windowOf(parent), windowOf(window)) != 0;
}

platform::WindowId Desktop::windowUnderPointer() const
{
    POINT pointer{};
    return GetCursorPos(&pointer) ? idOf(WindowFromPoint(pointer)) : platform::WindowId{};
}

} // namespace vela::win32
