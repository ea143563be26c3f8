// The pop-ups in real windows: a click on a day, keys of the calculator, another window coming forward, many openings.
#include "platform/win32/desktop.h"
#include "platform/win32/environment.h"
#include "platform/win32/form.h"
#include "popups/calculator_layout.h"
#include "popups/calendar_layout.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"
#include "popups/popups.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>
#include <vector>

namespace vela::popups {
namespace {

void pump()
{
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

class Field final : public Owner {
public:
    Field()
    {
        edit_ = CreateWindowExW(0, L"EDIT", L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 20, 20, 121, 21, form, nullptr,
                                nullptr, nullptr);
    }
    ~Field() { DestroyWindow(form); }
    Field(const Field&) = delete;
    Field& operator=(const Field&) = delete;

    std::u16string popupText() override { return text; }
    void putPopupText(const engine::Value& value) override
    {
        puts.push_back(value);
        if (duringPut)
            duringPut();
    }
    void takePopupFocus() override { SetFocus(edit_); }
    engine::RectPixels popupAnchor() override
    {
        RECT place{};
        GetWindowRect(edit_, &place);
        return {static_cast<int>(place.left), static_cast<int>(place.top), static_cast<int>(place.right - place.left),
                static_cast<int>(place.bottom - place.top)};
    }
    platform::ParentForm popupParent() override
    {
        return {false, false, platform::WindowId{reinterpret_cast<std::uintptr_t>(form)}};
    }
    void enter() { SetFocus(edit_); }
    [[nodiscard]] bool hasFocus() const { return GetFocus() == edit_; }

    std::u16string text;
    std::vector<engine::Value> puts;
    std::function<void()> duringPut;
    HWND form = CreateWindowExW(0, L"#32770", L"Form", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 40, 40, 400, 320, nullptr,
                                nullptr, nullptr, nullptr);

private:
    HWND edit_ = nullptr;
};

class PopupsInWindows : public testing::Test {
protected:
    void SetUp() override
    {
        SetForegroundWindow(field.form);
        field.enter();
        pump();
    }

    HWND openCalendar(std::u16string_view text)
    {
        field.text = text;
        popups.openCalendar(field);
        pump();
        return GetActiveWindow();
    }
    HWND openCalculator(std::u16string_view text)
    {
        field.text = text;
        popups.openCalculator(field);
        pump();
        return GetActiveWindow();
    }
    static void clickDay(HWND calendar, int cell)
    {
        RECT client{};
        GetClientRect(calendar, &client);
        const engine::RectTwips day =
            calendarPopupLayout().rows[static_cast<std::size_t>(calendar_widget::day(cell).value)].place;
        const auto x = (day.left + day.width / 2) * client.right / calendarWidth;
        const auto y = (day.top + day.height / 2) * client.bottom / calendarHeight;
        SendMessageW(calendar, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        SendMessageW(calendar, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        pump();
    }
    static void key(WPARAM code) // at the focused window
    {
        const HWND at = GetFocus();
        SendMessageW(at, WM_KEYDOWN, code, 1);
        if (IsWindow(at))
            SendMessageW(at, WM_KEYUP, code, 1);
        pump();
    }
    static void type(std::wstring_view characters)
    {
        for (const wchar_t character : characters)
            SendMessageW(GetFocus(), WM_CHAR, character, 1);
        pump();
    }

    win32::Clock clock;
    win32::LocaleSource locales;
    win32::LogFile log;
    win32::SystemInfo system;
    win32::Desktop desktop;
    win32::FormFactory forms;
    platform::Environment environment{clock, locales, log, desktop, system};
    Field field;
    Popups popups{environment, forms};
};

TEST_F(PopupsInWindows, TheCalendarHangsUnderTheFieldAndAClickOnADayWritesItAndCloses)
{
    const HWND calendar = openCalendar(u"2024-03-15");
    ASSERT_NE(popups.calendar(), nullptr);
    ASSERT_NE(calendar, field.form);
    RECT place{};
    GetWindowRect(calendar, &place);
    const engine::RectPixels anchor = field.popupAnchor();
    EXPECT_EQ(place.left, anchor.left);
    EXPECT_EQ(place.top, anchor.bottom());
    clickDay(calendar, 41);
    EXPECT_EQ(field.puts, (std::vector<engine::Value>{std::u16string(u"06/04/2024")}));
    EXPECT_EQ(popups.calendar(), nullptr);
    EXPECT_FALSE(IsWindow(calendar));
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(PopupsInWindows, KeysMoveTheDayAndEnterWritesIt)
{
    openCalendar(u"2024-02-29");
    key(VK_RIGHT);
    key(VK_NEXT);
    EXPECT_EQ(popups.calendar()->grid().selectedText(), u"01/04/2024");
    key(VK_RETURN);
    EXPECT_EQ(field.puts, (std::vector<engine::Value>{std::u16string(u"01/04/2024")}));
    openCalendar(u"2024-02-29");
    key(VK_ESCAPE);
    EXPECT_EQ(popups.calendar(), nullptr);
    EXPECT_EQ(field.puts.size(), 1U);
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(PopupsInWindows, AnOpenListOfMonthsKeepsItsKeys)
{
    openCalendar(u"2024-02-29");
    const HWND months = GetFocus();
    SendMessageW(months, CB_SHOWDROPDOWN, TRUE, 0);
    key(VK_DOWN);
    key(VK_RETURN);
    ASSERT_NE(popups.calendar(), nullptr) << "Enter closes the list, not the calendar";
    EXPECT_EQ(popups.calendar()->grid().monthIndex(), 2);
    EXPECT_EQ(popups.calendar()->grid().selectedText(), u"29/02/2024");
    EXPECT_TRUE(field.puts.empty());
}

TEST_F(PopupsInWindows, F2WritesTheCalculatorsResult)
{
    const HWND calculator = openCalculator(u"12");
    type(L"3+7=");
    EXPECT_EQ(popups.calculator()->display(), u"130");
    key(VK_F2);
    EXPECT_EQ(field.puts, (std::vector<engine::Value>{130.0}));
    EXPECT_EQ(popups.calculator(), nullptr);
    EXPECT_FALSE(IsWindow(calculator));
    EXPECT_TRUE(field.hasFocus());
}

TEST_F(PopupsInWindows, TheButtonsOfTheCalculatorTakeTheFocus)
{
    const HWND calculator = openCalculator(u"5");
    const auto press = [&](platform::WidgetId id) {
        const HWND button = GetDlgItem(calculator, 100 + id.value);
        SendMessageW(button, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(3, 3));
        SendMessageW(button, WM_LBUTTONUP, 0, MAKELPARAM(3, 3));
        pump();
    };
    press(calculator_widget::decimal);
    type(L"7"); // goes nowhere: the point has the focus
    EXPECT_EQ(popups.calculator()->display(), u"5.");
    press(calculator_widget::number(7));
    type(L"1");
    EXPECT_EQ(popups.calculator()->display(), u"5.71");
}

TEST_F(PopupsInWindows, AnotherWindowComingForwardClosesThem)
{
    Field other;
    for (const bool calendar : {true, false}) {
        const HWND popup = calendar ? openCalendar(u"") : openCalculator(u"");
        SetActiveWindow(other.form);
        pump();
        EXPECT_EQ(popups.calendar(), nullptr);
        EXPECT_EQ(popups.calculator(), nullptr);
        EXPECT_FALSE(IsWindow(popup));
        EXPECT_EQ(GetActiveWindow(), other.form);
        SetActiveWindow(field.form);
        pump();
    }
    EXPECT_TRUE(field.puts.empty());
}

TEST_F(PopupsInWindows, TheOwnerMayGoInsideItsPut)
{
    field.duringPut = [this] { popups.forget(field); };
    const HWND calendar = openCalendar(u"2024-03-15");
    clickDay(calendar, 10);
    EXPECT_EQ(popups.calendar(), nullptr);
    EXPECT_FALSE(IsWindow(calendar));
    const HWND calculator = openCalculator(u"12");
    key(VK_F2);
    EXPECT_EQ(popups.calculator(), nullptr);
    EXPECT_FALSE(IsWindow(calculator));
    EXPECT_EQ(field.puts.size(), 2U);
}

BOOL CALLBACK countWindow(HWND, LPARAM into)
{
    ++*reinterpret_cast<int*>(into);
    return TRUE;
}

int threadWindows()
{
    int count = 0;
    EnumThreadWindows(GetCurrentThreadId(), countWindow, reinterpret_cast<LPARAM>(&count));
    return count;
}

TEST_F(PopupsInWindows, ManyOpeningsLeaveNoWindowBehind)
{
    clickDay(openCalendar(u""), 10);
    openCalculator(u"");
    key(VK_F2);
    const int before = threadWindows();
    for (int i = 0; i < 25; ++i) {
        clickDay(openCalendar(u""), 10);
        openCalculator(u"");
        key(VK_F2);
    }
    EXPECT_EQ(threadWindows(), before);
    EXPECT_EQ(field.puts.size(), 52U);
}

} // namespace
} // namespace vela::popups
