// Wrong entries on a real form: the focus is kept once, moves once, and never holds up a form that closes or rests.
#include "person.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

constexpr COLORREF wrongColour = 0x000000C8;

// A push button, two date fields with a wrong entry each, and a plain edit window, in the order of the Tab key.
class TwoDates {
public:
    explicit TwoDates(bool errorFocus, bool errorAlert = false)
        : before(plain(L"BUTTON", 200)), first(form.addActive()), second(form.addActive()), after(plain(L"EDIT", 240))
    {
        for (Site* const site : {&first, &second}) {
            makeDate(*site, u"1_/__/____");
            site->automation().put(u"Error_ForeColor", number(static_cast<std::int32_t>(wrongColour)));
            site->automation().put(u"ForeColor_GotFocus", number(0x00008000));
            site->automation().put(u"ErrorFocus", truth(errorFocus));
            site->automation().put(u"ErrorAlert", truth(errorAlert));
            site->automation().put(u"ErrorMsgCustom", truth(errorAlert && errorFocus));
            site->automation().put(u"ErrorTextMessage", text(u"Corrija a data"));
        }
    }

    void enter(Site& site)
    {
        form.focus(site);
        settle(form);
        ASSERT_EQ(GetFocus(), site.edit());
        first.log.clear();
        second.log.clear();
    }

    Form form;
    const HWND before;
    Site& first;
    Site& second;
    const HWND after;

private:
    HWND plain(const wchar_t* kind, int top)
    {
        return CreateWindowExW(0, kind, L"", WS_CHILD | WS_VISIBLE | WS_TABSTOP, 10, top, 200, 24, form.window(),
                               nullptr, nullptr, nullptr);
    }
};

struct Move {
    const char* how;
    Site& (*from)(TwoDates&);
    HWND (*to)(TwoDates&);
    void (*go)(TwoDates&);
};

Site& firstOf(TwoDates& dates)
{
    return dates.first;
}
Site& secondOf(TwoDates& dates)
{
    return dates.second;
}
HWND firstEdit(TwoDates& dates)
{
    return dates.first.edit();
}
HWND secondEdit(TwoDates& dates)
{
    return dates.second.edit();
}

const Move moves[] = {
    {"Tab to the other field", firstOf, secondEdit, [](TwoDates& dates) { strike(dates.form, VK_TAB); }},
    {"Shift+Tab to the other field", secondOf, firstEdit,
     [](TwoDates& dates) { strike(dates.form, VK_TAB, VK_SHIFT); }},
    {"Tab to a plain control", secondOf, [](TwoDates& dates) { return dates.after; },
     [](TwoDates& dates) { strike(dates.form, VK_TAB); }},
    {"Shift+Tab to a plain control", firstOf, [](TwoDates& dates) { return dates.before; },
     [](TwoDates& dates) { strike(dates.form, VK_TAB, VK_SHIFT); }},
    {"a click on the other field", firstOf, secondEdit,
     [](TwoDates& dates) {
         clickAt(dates.form, dates.second.edit(), {20, 8});
     }},
    {"a click on a plain control", firstOf, [](TwoDates& dates) { return dates.after; },
     [](TwoDates& dates) {
         clickAt(dates.form, dates.after, {20, 8});
     }},
    {"the program's own move", secondOf, firstEdit,
     [](TwoDates& dates) {
         SetFocus(dates.first.edit());
         settle(dates.form);
     }},
    {"the host activating the other field", firstOf, secondEdit,
     [](TwoDates& dates) {
         dates.second.activateInterface();
         settle(dates.form);
     }},
};

BOOL CALLBACK countBalloon(HWND window, LPARAM count)
{
    wchar_t name[32]{};
    GetClassNameW(window, name, 32);
    *reinterpret_cast<int*>(count) += IsWindowVisible(window) && lstrcmpiW(name, L"tooltips_class32") == 0;
    return TRUE;
}

int balloons()
{
    int shown = 0;
    EnumThreadWindows(GetCurrentThreadId(), countBalloon, reinterpret_cast<LPARAM>(&shown));
    return shown;
}

Site* fieldOf(TwoDates& dates, HWND edit)
{
    for (Site* const site : {&dates.first, &dates.second})
        if (site->edit() == edit)
            return site;
    return nullptr;
}

void expectKept(TwoDates& dates, Site& own, HWND target)
{
    EXPECT_TRUE(until(dates.form, [&] { return GetFocus() == own.edit(); }));
    settle(dates.form);
    EXPECT_EQ(FocusPath::windows(), (std::vector<HWND>{target, own.edit()})) << "there and back, once";
    EXPECT_EQ(own.count("OnFocus 1"), 1) << "entered again";
    EXPECT_EQ(own.count("OnFocus 0"), 0);
    EXPECT_EQ(coloursOf(own).fore, wrongColour);
    EXPECT_EQ(GetCapture(), nullptr);
    if (const Site* const visited = fieldOf(dates, target)) {
        EXPECT_EQ(visited->count("OnFocus 1") + visited->count("OnFocus 0"), 0) << "neither entered nor left";
    }
}

void expectLetGo(TwoDates& dates, Site& own, HWND target)
{
    EXPECT_TRUE(until(dates.form, [&] { return GetFocus() == target; }));
    settle(dates.form);
    EXPECT_EQ(FocusPath::windows(), std::vector<HWND>{target});
    EXPECT_EQ(own.count("OnFocus 0"), 1);
    if (const Site* const entered = fieldOf(dates, target)) {
        EXPECT_EQ(entered->count("OnFocus 1"), 1);
        EXPECT_EQ(entered->count("OnFocus 0"), 0);
    }
}

void clearLogs(TwoDates& dates)
{
    dates.first.log.clear();
    dates.second.log.clear();
}

TEST(Focus, AWrongEntryKeepsItOnceAndTheOtherFieldSeesNothing)
{
    const AnsweredBoxes boxes;
    for (const Move& move : moves)
        for (const bool errorFocus : {false, true}) {
            SCOPED_TRACE(std::string(move.how) + (errorFocus ? ", ErrorFocus" : ""));
            const LeakCheck leaks;
            TwoDates dates(errorFocus);
            Site& own = move.from(dates);
            dates.enter(own);
            const HWND target = move.to(dates);
            Site* const other = fieldOf(dates, target);
            const COLORREF otherBefore = other ? coloursOf(*other).fore : 0;
            {
                const FocusPath path;
                move.go(dates);
                expectKept(dates, own, target);
            }
            EXPECT_EQ(other ? coloursOf(*other).fore : 0, otherBefore);
            EXPECT_EQ(shownBy(own.edit()), u"1_/__/____");
            clearLogs(dates);
            const FocusPath path;
            move.go(dates);
            if (errorFocus)
                expectKept(dates, own, target);
            else
                expectLetGo(dates, own, target);
        }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

// Let go by the first, the second is wrong as well: each keeps the person once, and neither sends back for the other.
TEST(Focus, TwoWrongFieldsDoNotPassItToAndFro)
{
    const LeakCheck leaks;
    TwoDates dates(false);
    dates.enter(dates.first);
    const FocusPath path;
    std::vector<HWND> expected;
    for (const HWND next : {dates.first.edit(), dates.second.edit(), dates.second.edit(), dates.after}) {
        strike(dates.form, VK_TAB);
        EXPECT_TRUE(until(dates.form, [&] { return GetFocus() == next; }));
    }
    const HWND one = dates.first.edit();
    const HWND two = dates.second.edit();
    EXPECT_EQ(FocusPath::windows(), (std::vector<HWND>{two, one, two, dates.after, two, dates.after}));
}

TEST(Focus, TheAlertIsABalloonAndNoBox)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    for (const bool custom : {false, true}) {
        TwoDates dates(custom, true);
        dates.enter(dates.first);
        strike(dates.form, VK_TAB);
        EXPECT_EQ(GetFocus(), dates.first.edit());
        EXPECT_EQ(balloons(), 1);
        dates.first.automation().put(u"ErrorFocus", truth(false));
        strike(dates.form, VK_TAB);
        EXPECT_EQ(GetFocus(), dates.second.edit());
        EXPECT_EQ(balloons(), 0) << "gone with the focus";
    }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

// What an event's handler raises while a field is left is shown in a box: when the other field has been entered.
TEST(Focus, ABoxWaitsUntilItHasArrived)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    Form form;
    Site& first = form.addActive();
    Site& second = form.addActive();
    first.automation().put(u"IF_IsEmpty", text(u"0"));
    form.focus(first);
    first.eventResult = DISP_E_EXCEPTION;
    bool boxInside = false;
    first.onEvent = [&](DISPID, DISPPARAMS&) { boxInside = boxInside || !AnsweredBoxes::texts().empty(); };
    second.onCall = [&](const char* word) {
        boxInside = boxInside || (std::string_view(word) == "OnFocus 1" && !AnsweredBoxes::texts().empty());
    };
    strike(form, VK_TAB);
    EXPECT_TRUE(until(form, [] { return !AnsweredBoxes::texts().empty(); }));
    first.eventResult = S_OK;
    EXPECT_TRUE(until(form, [&] { return GetFocus() == second.edit(); })) << "back from the box";
    settle(form);
    EXPECT_FALSE(boxInside);
    EXPECT_EQ(first.automation().textOf(u"Text"), u"0");
    EXPECT_EQ(second.count("OnFocus 1"), 1);
    EXPECT_EQ(second.count("OnFocus 0"), 0) << "the box is no leaving";
}

TEST(Focus, AnotherWindowGetsItAtOnce)
{
    for (const bool errorFocus : {false, true}) {
        const LeakCheck leaks;
        TwoDates dates(errorFocus, true);
        const OtherWindow other;
        dates.enter(dates.first);
        SetForegroundWindow(other.window());
        EXPECT_TRUE(until(dates.form, [&] { return GetActiveWindow() == other.window(); }));
        settle(dates.form);
        EXPECT_EQ(GetActiveWindow(), other.window()) << "not called back";
        EXPECT_NE(GetFocus(), dates.first.edit());
        EXPECT_EQ(dates.first.count("OnFocus 0"), 1);
        EXPECT_EQ(dates.first.count("OnFocus 1"), 0);
        dates.enter(dates.first); // and the form can be worked on again
        dates.form.type(u"2");
        EXPECT_EQ(shownBy(dates.first.edit()), u"2_/__/____");
    }
}

void closeByMessage(TwoDates& dates)
{
    PostMessageW(dates.form.window(), WM_CLOSE, 0, 0);
}

LRESULT CALLBACK closesOnEscape(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message == WM_COMMAND && LOWORD(first) == IDCANCEL)
        return DestroyWindow(window);
    return DefWindowProcW(window, message, first, second);
}

void closeByEscape(TwoDates& dates)
{
    SetWindowLongPtrW(dates.form.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&closesOnEscape));
    PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
}

TEST(Focus, AFormClosesOverAWrongEntry)
{
    const AnsweredBoxes boxes;
    for (const bool errorFocus : {false, true})
        for (const bool held : {false, true})
            for (const auto close : {closeByMessage, closeByEscape}) {
                SCOPED_TRACE(std::string(errorFocus ? "ErrorFocus, " : "") + (held ? "held, " : "") +
                             (close == closeByEscape ? "Esc" : "WM_CLOSE"));
                const LeakCheck leaks;
                TwoDates dates(errorFocus, true);
                dates.enter(dates.first);
                if (held)
                    strike(dates.form, VK_TAB);
                const HWND window = dates.form.window();
                close(dates);
                EXPECT_TRUE(until(dates.form, [&] { return !IsWindow(window); }));
                settle(dates.form);
                EXPECT_EQ(balloons(), 0);
                EXPECT_EQ(dates.first.automation().textOf(u"Text"), u"1_/__/____");
            }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

// A field that its host hides or disables while it is left cannot have the focus back: the next one is entered.
TEST(Focus, AFieldThatCannotHaveItBackLetsItGo)
{
    for (const bool hidden : {false, true}) {
        const LeakCheck leaks;
        TwoDates dates(true);
        dates.first.automation().put(u"ErrorTextClear", truth(true));
        dates.enter(dates.first);
        dates.first.onEvent = [&](DISPID, DISPPARAMS&) { // the text that is cleared
            if (hidden)
                ShowWindow(dates.first.window(), SW_HIDE);
            else
                dates.first.automation().put(u"Enabled", truth(false));
        };
        strike(dates.form, VK_TAB);
        EXPECT_TRUE(until(dates.form, [&] { return dates.second.count("OnFocus 1") == 1; }));
        EXPECT_EQ(GetFocus(), dates.second.edit());
    }
}

} // namespace

} // namespace vela::test
