// The stage of the contract tests on real windows: a top-level window with a dialog's message loop. That in memory has
// the same functions; each act of a person returns when all that follows has settled.
#pragma once

#include "platform/win32/control_surface.h"
#include "platform/win32/desktop.h"
#include "platform/win32/environment.h"
#include "platform/win32/form.h"
#include "platform/win32/owners.h"
#include "platform/win32/settings_store.h"
#include "platform/win32/text.h"
#include "platform/win32/tooltip_window.h"
#include "tests/support/windows.h"

#include <array>
#include <fstream>
#include <iterator>
#include <memory>
#include <string>

namespace vela::contract {

inline HWND windowOf(platform::WindowId id)
{
    return reinterpret_cast<HWND>(id.value);
}

inline HWND makeForm()
{
    return CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", L"Contrato", WS_OVERLAPPEDWINDOW, 20, 20, 300, 200, nullptr,
                           nullptr, GetModuleHandleW(nullptr), nullptr);
}

class Stage {
public:
    Stage()
    {
        for (int index : {0, 1}) {
            auto& field = fields_[static_cast<std::size_t>(index)];
            field = std::make_unique<win32::ControlSurface>();
            const int top = 8 + 32 * index;
            field->create(form_.get(), {8, top, 8 + 121, top + 21});
        }
        plain_ = CreateWindowExW(0, L"BUTTON", L"Fechar", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 8, 80, 80, 24,
                                 form_.get(), nullptr, GetModuleHandleW(nullptr), nullptr);
        ShowWindow(form_.get(), SW_SHOW);
        SetForegroundWindow(form_.get());
        SetActiveWindow(form_.get());
        settle();
    }

    platform::ControlSurface& field(int index) { return at(index); }
    void listen(int index, platform::EditBoxEvents& box, platform::SurfaceEvents& surface)
    {
        at(index).setEvents(&surface, &box);
    }
    void destroyField(int index) { fields_[static_cast<std::size_t>(index)].reset(); }
    void focus(int index)
    {
        SetFocus(edit(index));
        settle();
    }
    void focusPlain()
    {
        SetFocus(plain_);
        settle();
    }
    void type(std::u16string_view text)
    {
        for (const char16_t unit : text) {
            const auto key = static_cast<WPARAM>(LOBYTE(VkKeyScanW(static_cast<wchar_t>(unit))));
            send(WM_KEYDOWN, key, 1);
            send(WM_CHAR, unit, 1);
            send(WM_KEYUP, key, 0xC0000001);
        }
        settle();
    }
    void press(int virtualKey)
    {
        send(WM_KEYDOWN, static_cast<WPARAM>(virtualKey), 0x01000001);
        send(WM_KEYUP, static_cast<WPARAM>(virtualKey), 0xC1000001);
        settle();
    }
    void pressTab(bool back)
    {
        std::array<BYTE, 256> keys{};
        GetKeyboardState(keys.data());
        keys[VK_SHIFT] = back ? 0x80 : 0;
        SetKeyboardState(keys.data());
        PostMessageW(GetFocus(), WM_KEYDOWN, VK_TAB, 1);
        settle();
        keys[VK_SHIFT] = 0;
        SetKeyboardState(keys.data());
    }
    void click(int index)
    {
        mouse(edit(index), WM_LBUTTONDOWN);
        mouse(edit(index), WM_LBUTTONUP);
        settle();
    }
    void doubleClick(int index)
    {
        click(index);
        mouse(edit(index), WM_LBUTTONDBLCLK);
        mouse(edit(index), WM_LBUTTONUP);
        settle();
    }
    void paste(std::u16string_view text)
    {
        test::putClipboard(text);
        send(WM_CHAR, 22, 1); // Control+V
    }
    void cut() { send(WM_CHAR, 24, 1); }
    void undo() { send(WM_CHAR, 26, 1); }
    void redo() { send(WM_CHAR, 25, 1); }
    void pointTo(int index) { mouse(edit(index), WM_MOUSEMOVE); }
    void settle()
    {
        MSG message{};
        while (MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT) == WAIT_OBJECT_0)
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE))
                if (!IsDialogMessageW(form_.get(), &message)) {
                    TranslateMessage(&message);
                    DispatchMessageW(&message);
                }
    }
    void clickWidget(platform::Form& form, platform::WidgetId widget)
    {
        const HWND window = windowOf(form.window());
        if (const HWND item = GetDlgItem(window, 100 + widget.value)) {
            SendMessageW(item, BM_CLICK, 0, 0);
        } else { // a label, painted by the form: 15 twips a pixel
            const LPARAM place = MAKELPARAM(form.look(widget).left / 15 + 2, form.look(widget).top / 15 + 2);
            SendMessageW(window, WM_LBUTTONDOWN, MK_LBUTTON, place);
            SendMessageW(window, WM_LBUTTONUP, 0, place);
        }
        settle();
    }
    void typeInto(platform::Form& form, platform::WidgetId widget, char16_t unit)
    {
        form.focus(widget);
        SendMessageW(GetDlgItem(windowOf(form.window()), 100 + widget.value), WM_CHAR, unit, 1);
    }
    platform::Environment& environment() { return environment_; }
    platform::SettingsStore& settings() { return settings_; }
    platform::FormFactory& forms() { return forms_; }
    std::unique_ptr<platform::TooltipWindow> makeTooltip() { return at(0).makeTooltip(); }
    std::u16string writableFile()
    {
        std::array<wchar_t, MAX_PATH> folder{};
        const DWORD length = GetTempPathW(MAX_PATH, folder.data());
        return win32::utf16({folder.data(), length}) + u"vela-contract.txt";
    }
    std::string logBytes(std::u16string_view path)
    {
        std::ifstream file(win32::narrow(path), std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
    }

private:
    win32::ControlSurface& at(int index) { return *fields_[static_cast<std::size_t>(index)]; }
    HWND edit(int index) { return fields_[static_cast<std::size_t>(index)] ? at(index).edit().handle() : nullptr; }
    static void send(UINT message, WPARAM first, LPARAM second) { SendMessageW(GetFocus(), message, first, second); }
    static void mouse(HWND window, UINT message)
    {
        RECT client{};
        GetClientRect(window, &client);
        SendMessageW(window, message, MK_LBUTTON, MAKELPARAM(client.right - 2, client.bottom / 2));
    }

    win32::UniqueWindow form_{makeForm()};
    HWND plain_ = nullptr;
    std::array<std::unique_ptr<win32::ControlSurface>, 2> fields_;
    win32::Clock clock_;
    win32::LocaleSource locales_;
    win32::LogFile log_;
    win32::Desktop desktop_;
    win32::SystemInfo system_;
    win32::SettingsStore settings_;
    win32::FormFactory forms_;
    platform::Environment environment_{clock_, locales_, log_, desktop_, system_};
};

} // namespace vela::contract
