// The system's own container window, made by its class as dialog templates make it: the ProgID is the window's text.
#include "tests/activex/automation.h"
#include "tests/activex/fields.h"
#include "tests/activex/library.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

class AtlForm {
public:
    AtlForm() : module_(LoadLibraryW(L"atl100.dll"))
    {
        if (const auto start = entry<BOOL(WINAPI*)()>("AtlAxWinInit"))
            start();
        window_ = CreateWindowExW(WS_EX_CONTROLPARENT, L"STATIC", nullptr, WS_POPUP, 40, 40, 300, 160, nullptr, nullptr,
                                  nullptr, nullptr);
        ShowWindow(window_, SW_SHOW);
        SetForegroundWindow(window_);
    }
    AtlForm(const AtlForm&) = delete;
    AtlForm& operator=(const AtlForm&) = delete;
    ~AtlForm()
    {
        DestroyWindow(window_);
        pump();
    }

    HWND add(const wchar_t* progId, int top)
    {
        return CreateWindowExW(WS_EX_CONTROLPARENT, L"AtlAxWin100", progId, WS_CHILD | WS_VISIBLE, 0, top, 200, 24,
                               window_, nullptr, nullptr, nullptr);
    }
    ComPtr<IUnknown> controlOf(HWND window)
    {
        ComPtr<IUnknown> control;
        EXPECT_EQ(entry<HRESULT(WINAPI*)(HWND, IUnknown**)>("AtlAxGetControl")(window, &control), S_OK);
        return control;
    }
    // A key as the keyboard has it, through a dialog's loop.
    void press(WORD key, bool withShift = false)
    {
        if (withShift)
            keybd_event(VK_SHIFT, 0, 0, 0);
        keybd_event(static_cast<BYTE>(key), 0, 0, 0);
        keybd_event(static_cast<BYTE>(key), 0, KEYEVENTF_KEYUP, 0);
        if (withShift)
            keybd_event(VK_SHIFT, 0, KEYEVENTF_KEYUP, 0);
        run();
    }
    void run()
    {
        for (int quiet = 0; quiet < 4; ++quiet) {
            MSG message;
            while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
                quiet = 0;
                if (!IsDialogMessageW(window_, &message)) {
                    TranslateMessage(&message);
                    DispatchMessageW(&message);
                }
            }
            MsgWaitForMultipleObjects(0, nullptr, FALSE, 20, QS_ALLINPUT);
        }
    }
    [[nodiscard]] HWND window() const { return window_; }

private:
    template <class Function>
    Function entry(const char* name)
    {
        return reinterpret_cast<Function>(reinterpret_cast<void*>(GetProcAddress(module_, name)));
    }
    HMODULE module_;
    HWND window_ = nullptr;
};

HWND editOf(IUnknown* control)
{
    return reinterpret_cast<HWND>(static_cast<LONG_PTR>(Automation(control).get(u"hwnd").value.get().lVal));
}

} // namespace

TEST(AtlWindow, FieldsAreTypedIntoAndLeftByTab)
{
    const LeakCheck leaks;
    AtlForm form;
    const HWND first = form.add(L"Vela.Vela", 0), second = form.add(L"Vela.Vela", 40);
    ASSERT_TRUE(first && second);
    const ComPtr<IUnknown> name = form.controlOf(first), amount = form.controlOf(second);
    ASSERT_TRUE(name && amount);
    asAmount(Automation(amount.Get()));
    Automation(amount.Get()).set({{u"SimbolDecRet", 2}});
    Automation(name.Get()).set({{u"EnterAsTab", true}});
    SetFocus(editOf(name.Get()));
    form.run();
    for (const WORD key : {'O', 'I'})
        form.press(key);
    EXPECT_EQ(Automation(name.Get()).textOf(u"Text"), u"oi");
    form.press(VK_TAB);
    EXPECT_EQ(GetFocus(), editOf(amount.Get()));
    for (const WORD key : {'1', '2', '3', '4', '5'})
        form.press(key);
    form.press(VK_TAB, true);
    EXPECT_EQ(GetFocus(), editOf(name.Get())) << "Shift+Tab";
    EXPECT_EQ(Automation(amount.Get()).textOf(u"Value"), u"123,45");
    form.press(VK_RETURN);
    EXPECT_EQ(GetFocus(), editOf(amount.Get())) << "Enter as Tab";
}

TEST(AtlWindow, AWrongDateHoldsTheFocus)
{
    const LeakCheck leaks;
    AtlForm form;
    const ComPtr<IUnknown> date = form.controlOf(form.add(L"Vela.Vela", 0));
    const ComPtr<IUnknown> next = form.controlOf(form.add(L"Vela.Vela", 40));
    asDate(Automation(date.Get()));
    Automation(date.Get()).set({{u"ErrorAlert", false}, {u"ErrorFocus", true}});
    SetFocus(editOf(date.Get()));
    form.run();
    for (const WORD key : {'3', '1', '0', '2', '2', '0', '2', '4'})
        form.press(key);
    form.press(VK_TAB);
    EXPECT_EQ(GetFocus(), editOf(date.Get()));
    form.press(VK_TAB);
    EXPECT_EQ(GetFocus(), editOf(date.Get())) << "until it is right";
    form.press(VK_HOME);
    for (const WORD key : {'2', '8', '0', '2', '2', '0', '2', '4'})
        form.press(key);
    form.press(VK_TAB);
    EXPECT_EQ(GetFocus(), editOf(next.Get())) << Bstr(Automation(date.Get()).textOf(u"Text")).get();
}

TEST(AtlWindow, TheCalendarToo)
{
    const LeakCheck leaks;
    AtlForm form;
    const HWND place = form.add(L"Vela.cCalendar", 0);
    const ComPtr<IUnknown> calendar = form.controlOf(place);
    ASSERT_TRUE(calendar);
    EXPECT_NE(GetWindow(place, GW_CHILD), nullptr);
}

// The window goes while the field has the focus; what is held of it afterwards answers.
TEST(AtlWindow, ItsWindowDestroyedUnderTheFocus)
{
    const LeakCheck leaks;
    AtlForm form;
    const HWND place = form.add(L"Vela.Vela", 0);
    const ComPtr<IUnknown> field = form.controlOf(place);
    SetFocus(editOf(field.Get()));
    form.press('A');
    DestroyWindow(place);
    form.run();
    EXPECT_EQ(Automation(field.Get()).textOf(u"Text"), u"a");
}

} // namespace vela::test
