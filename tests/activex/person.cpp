// Pointer, keys and looks for the tests.
#include "person.h"

#include <gtest/gtest.h>

#include <utility>

namespace vela::test {

namespace {

constexpr DWORD patience = 20000; // milliseconds; a loaded machine is slow
std::vector<HWND> path;

LRESULT CALLBACK followFocus(int code, WPARAM window, LPARAM detail)
{
    if (code == HCBT_SETFOCUS && window)
        path.push_back(reinterpret_cast<HWND>(window));
    return CallNextHookEx(nullptr, code, window, detail);
}

void holdKey(int key, bool down) // as this thread's windows see it
{
    BYTE keys[256]{};
    GetKeyboardState(keys);
    keys[key] = down ? 0x80 : 0;
    SetKeyboardState(keys);
}

void press(Loop& loop)
{
    for (const DWORD flag : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP}) {
        sendMouse(flag);
        settle(loop);
    }
}

bool nothingWaits()
{
    return GetQueueStatus(QS_ALLINPUT & ~QS_TIMER) == 0;
}

} // namespace

bool until(Loop& loop, const std::function<bool()>& condition)
{
    const DWORD start = GetTickCount();
    for (;;) {
        loop.run();
        if (condition())
            return true;
        if (GetTickCount() - start > patience)
            return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 5, QS_ALLINPUT);
    }
}

void settle(Loop& loop)
{
    EXPECT_TRUE(until(loop, nothingWaits));
}

// A step away first: the system tells nothing of a pointer that stays where it is.
void pointAt(HWND window, POINT at)
{
    ClientToScreen(window, &at);
    SetCursorPos(at.x + 1, at.y);
    SetCursorPos(at.x, at.y);
    sendMouse(MOUSEEVENTF_MOVE);
}

void pointAway()
{
    SetCursorPos(GetSystemMetrics(SM_CXSCREEN) - 3, GetSystemMetrics(SM_CYSCREEN) - 3);
}

// Down and up arrive as hardware has them; the form's loop hands them on. Two in a row are no double click.
void clickAt(Loop& loop, HWND window, POINT at)
{
    static bool aside = false;
    const int doubleClick = GetSystemMetrics(SM_CXDOUBLECLK);
    if (std::exchange(aside, !aside))
        at.x += doubleClick;
    pointAt(window, at);
    press(loop);
}

void clickQuickly(Loop& loop, HWND window, POINT at, int times)
{
    pointAt(window, at);
    for (int i = 0; i < times; ++i)
        press(loop);
}

POINT middleOf(HWND window)
{
    const RECT client = clientOf(window);
    return {client.right / 2, client.bottom / 2};
}

void strike(Form& form, int key, int with)
{
    if (with)
        holdKey(with, true);
    form.press(static_cast<WPARAM>(key));
    if (with)
        holdKey(with, false);
    settle(form);
}

void sendMouse(DWORD flags)
{
    INPUT input{};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void sendKey(int key, bool down)
{
    if (!key)
        return;
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = static_cast<WORD>(key);
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyW(static_cast<UINT>(key), MAPVK_VK_TO_VSC));
    input.ki.dwFlags = down ? 0U : KEYEVENTF_KEYUP;
    SendInput(1, &input, sizeof input);
}

void hardKey(Loop& loop, int key, int with)
{
    sendKey(with, true);
    sendKey(key, true);
    settle(loop);
    sendKey(key, false);
    sendKey(with, false);
    settle(loop);
}

SeenColours coloursOf(const Site& site)
{
    const HDC dc = CreateCompatibleDC(nullptr);
    const HWND edit = site.edit();
    const UINT message = IsWindowEnabled(edit) && !(GetWindowLongPtrW(edit, GWL_STYLE) & ES_READONLY)
                             ? WM_CTLCOLOREDIT
                             : WM_CTLCOLORSTATIC;
    SendMessageW(site.window(), message, reinterpret_cast<WPARAM>(dc), reinterpret_cast<LPARAM>(edit));
    const SeenColours seen{GetTextColor(dc), GetBkColor(dc)};
    DeleteDC(dc);
    return seen;
}

COLORREF pixelOf(HWND window, POINT at)
{
    UpdateWindow(window);
    const HDC dc = GetDC(window);
    const COLORREF colour = GetPixel(dc, at.x, at.y);
    ReleaseDC(window, dc);
    return colour;
}

int pixelsOf(HWND window, COLORREF colour, RECT in)
{
    UpdateWindow(window);
    const HDC dc = GetDC(window);
    int found = 0;
    for (LONG y = in.top; y < in.bottom; ++y)
        for (LONG x = in.left; x < in.right; ++x)
            found += GetPixel(dc, x, y) == colour;
    ReleaseDC(window, dc);
    return found;
}

RECT clientOf(HWND window)
{
    RECT client{};
    GetClientRect(window, &client);
    return client;
}

RECT placeIn(HWND window, HWND parent)
{
    RECT place{};
    GetWindowRect(window, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

HWND buttonOf(const Site& site)
{
    return FindWindowExW(site.window(), nullptr, L"Button", nullptr);
}

HWND openPopup(Form& form, const Site& site)
{
    clickAt(form, buttonOf(site), middleOf(buttonOf(site)));
    return popupOf(form);
}

HWND popupOf(Form& form)
{
    EXPECT_TRUE(until(form, [&] { return GetActiveWindow() && GetActiveWindow() != form.window(); }));
    settle(form);
    return GetActiveWindow();
}

std::u16string shownBy(HWND window)
{
    wchar_t shown[256]{};
    const int length = GetWindowTextW(window, shown, 256);
    return std::u16string(asText({shown, static_cast<std::size_t>(length)}));
}

HWND plainWindow(const wchar_t* kind, RECT place, HWND parent, const wchar_t* text)
{
    return CreateWindowExW(0, kind, text, WS_CHILD | WS_VISIBLE | WS_TABSTOP, place.left, place.top,
                           place.right - place.left, place.bottom - place.top, parent, nullptr, nullptr, nullptr);
}

void makeDate(const Site& site, std::u16string_view shown)
{
    asDate(site.automation());
    SetWindowTextW(site.edit(), wide(std::u16string(shown).c_str()));
}

FocusPath::FocusPath() : hook_(WH_CBT, followFocus)
{
    path.clear();
}

const std::vector<HWND>& FocusPath::windows()
{
    return path;
}

OtherWindow::OtherWindow()
    : window_(CreateWindowExW(0, L"STATIC", L"Outra", WS_POPUP, 500, 0, 200, 100, nullptr, nullptr, nullptr, nullptr))
{
    ShowWindow(window_, SW_SHOWNOACTIVATE);
}

} // namespace vela::test
