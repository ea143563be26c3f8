// Wrong entries on a real form: the focus is kept once, moves once, and never holds up a form that closes or rests.
#include "two_dates.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

using Go = void (*)(TwoDates&, HWND to);

struct Move {
    const char* how;
    Place from;
    Place to;
    Go go;
    bool through = false; // another window has the focus on the way
};

constexpr Go byTab = [](TwoDates& dates, HWND) { strike(dates.form, VK_TAB); };
constexpr Go byShiftTab = [](TwoDates& dates, HWND) { strike(dates.form, VK_TAB, VK_SHIFT); };
constexpr Go byClick = [](TwoDates& dates, HWND to) { clickAt(dates.form, to, {20, 8}); };
constexpr Go byProgram = [](TwoDates&, HWND to) { SetFocus(to); };
constexpr Go byActivation = [](TwoDates& dates, HWND) { dates.second.activateInterface(); };
constexpr Go bySurface = [](TwoDates& dates, HWND) { SetFocus(dates.second.window()); };
constexpr Go bySurfacesEdge = [](TwoDates& dates, HWND) { clickAt(dates.form, dates.second.window(), {30, 0}); };

Site* hosted = nullptr;

// A host's own window around a control: it activates the control when it gets the focus.
LRESULT CALLBACK activatesOnFocus(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message == WM_SETFOCUS)
        hosted->activateInterface();
    return DefWindowProcW(window, message, first, second);
}

constexpr Go byHostsWindow = [](TwoDates& dates, HWND) {
    hosted = &dates.second;
    SetWindowLongPtrW(dates.before, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&activatesOnFocus));
    SetFocus(dates.before);
};

const Move moves[] = {
    {"Tab to the other field", firstField, secondField, byTab},
    {"Shift+Tab to the other field", secondField, firstField, byShiftTab},
    {"Tab to a plain control", secondField, boxAfter, byTab},
    {"Shift+Tab to a plain control", firstField, buttonBefore, byShiftTab},
    {"a click on the other field", firstField, secondField, byClick},
    {"a click on a plain control", firstField, boxAfter, byClick},
    {"the program's own move", secondField, firstField, byProgram},
    {"the host activating the other field", firstField, secondField, byActivation},
    {"the focus put on the other field's own window", firstField, secondField, bySurface, true},
    {"a click on the edge of the other field", firstField, secondField, bySurfacesEdge},
    {"the host activating it when its window gets the focus", firstField, secondField, byHostsWindow, true},
};

void expectKept(TwoDates& dates, const Move& move)
{
    const Site& own = *dates.fieldAt(move.from);
    EXPECT_TRUE(until(dates.form, [&] { return GetFocus() == own.edit(); }));
    settle(dates.form);
    if (!move.through) {
        EXPECT_EQ(FocusPath::windows(), (std::vector<HWND>{dates.at(move.to), own.edit()})) << "there and back, once";
    }
    EXPECT_EQ(own.count("OnFocus 1"), 1) << "entered again";
    EXPECT_EQ(own.count("OnFocus 0"), 0);
    EXPECT_EQ(coloursOf(own).fore, wrongColour);
    EXPECT_EQ(GetCapture(), nullptr);
    if (const Site* const visited = dates.fieldAt(move.to)) {
        EXPECT_EQ(visited->count("OnFocus 1") + visited->count("OnFocus 0"), 0) << "neither entered nor left";
    }
}

void expectLetGo(TwoDates& dates, const Move& move)
{
    const HWND target = dates.at(move.to);
    EXPECT_TRUE(until(dates.form, [&] { return GetFocus() == target; }));
    settle(dates.form);
    if (!move.through) {
        EXPECT_EQ(FocusPath::windows(), std::vector<HWND>{target});
    }
    EXPECT_EQ(dates.fieldAt(move.from)->count("OnFocus 0"), 1);
    if (const Site* const entered = dates.fieldAt(move.to)) {
        EXPECT_EQ(entered->count("OnFocus 1"), 1);
        EXPECT_EQ(entered->count("OnFocus 0"), 0);
    }
}

TEST(Focus, AWrongEntryKeepsItOnceAndTheOtherFieldSeesNothing)
{
    const AnsweredBoxes boxes;
    for (const Move& move : moves)
        for (const bool errorFocus : {false, true}) {
            SCOPED_TRACE(std::string(move.how) + (errorFocus ? ", ErrorFocus" : ""));
            TwoDates dates(errorFocus);
            dates.enter(*dates.fieldAt(move.from));
            const Site* const other = dates.fieldAt(move.to);
            const COLORREF otherBefore = other ? coloursOf(*other).fore : 0;
            for (const bool again : {false, true}) {
                dates.clearLogs();
                const FocusPath path;
                move.go(dates, dates.at(move.to));
                settle(dates.form);
                if (again && !errorFocus) {
                    expectLetGo(dates, move);
                    continue;
                }
                expectKept(dates, move);
                EXPECT_EQ(other ? coloursOf(*other).fore : 0, otherBefore);
                EXPECT_EQ(shownBy(dates.at(move.from)), u"1_/__/____");
            }
        }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

// Both fields hold a wrong entry: each takes the focus back once, and neither return is caused by the other field.
TEST(Focus, TwoWrongFieldsDoNotPassItToAndFro)
{
    TwoDates dates(false);
    dates.enter(dates.first);
    const FocusPath path;
    for (const HWND next : {dates.first.edit(), dates.second.edit(), dates.second.edit(), dates.after}) {
        strike(dates.form, VK_TAB);
        EXPECT_TRUE(until(dates.form, [&] { return GetFocus() == next; }));
    }
    const HWND one = dates.first.edit();
    const HWND two = dates.second.edit();
    EXPECT_EQ(FocusPath::windows(), (std::vector<HWND>{two, one, two, dates.after, two, dates.after}));
}

TEST(Focus, TheAlertIsABalloonAndNoBoxAndNoWayOut)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    for (const bool errorFocus : {false, true}) {
        TwoDates dates(errorFocus, true);
        dates.second.automation().put(u"Text", text(u"01/02/2024"));
        dates.enter(dates.first);
        strike(dates.form, VK_TAB);
        EXPECT_EQ(GetFocus(), dates.first.edit());
        ASSERT_EQ(balloons().size(), 1u);
        {
            const FocusPath path;
            clickAt(dates.form, balloons().front(), middleOf(balloons().front()));
            EXPECT_EQ(FocusPath::windows(), std::vector<HWND>{});
            EXPECT_EQ(GetActiveWindow(), dates.form.window());
        }
        strike(dates.form, VK_TAB);
        EXPECT_EQ(balloons().size(), 1u) << "the second one is seen as the first was";
        EXPECT_EQ(GetFocus() == dates.first.edit(), errorFocus);
        dates.first.automation().set({{u"ErrorFocus", false}, {u"Text", u"01/02/2024"}});
        dates.form.focus(dates.first);
        strike(dates.form, VK_TAB);
        EXPECT_EQ(GetFocus(), dates.second.edit());
        EXPECT_TRUE(balloons().empty()) << "gone when the field is left right";
    }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

// What an event's handler raises while a field is left is shown in a box: when the other field has been entered. The
// frame of both fields is told of the box once.
TEST(Focus, ABoxWaitsUntilItHasArrived)
{
    const std::vector<bool>* told = nullptr;
    const AnsweredBoxes boxes([&] { EXPECT_EQ(*told, std::vector<bool>{false}); });
    const LeakCheck leaks;
    Form form;
    Site& first = form.addActive();
    Site& second = form.addActive();
    told = &form.frame().Get()->modeless;
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
    EXPECT_EQ(AnsweredBoxes::texts().size(), 1u);
    EXPECT_EQ(*told, (std::vector<bool>{false, true}));
    EXPECT_EQ(first.automation().textOf(u"Text"), u"0");
    EXPECT_EQ(second.count("OnFocus 1"), 1);
    EXPECT_EQ(second.count("OnFocus 0"), 0) << "the box is no leaving";
}

LRESULT CALLBACK closesOnEscape(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message == WM_COMMAND && LOWORD(first) == IDCANCEL)
        return DestroyWindow(window);
    return DefWindowProcW(window, message, first, second);
}

TEST(Focus, AFormClosesOverAWrongEntry)
{
    const AnsweredBoxes boxes;
    for (const bool errorFocus : {false, true})
        for (const bool held : {false, true})
            for (const bool byEscape : {false, true}) {
                SCOPED_TRACE(std::string(errorFocus ? "ErrorFocus, " : "") + (held ? "held, " : "") +
                             (byEscape ? "Esc" : "WM_CLOSE"));
                TwoDates dates(errorFocus, true);
                dates.enter(dates.first);
                if (held)
                    strike(dates.form, VK_TAB);
                const HWND window = dates.form.window();
                SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&closesOnEscape));
                if (byEscape)
                    PostMessageW(GetFocus(), WM_KEYDOWN, VK_ESCAPE, 1);
                else
                    PostMessageW(window, WM_CLOSE, 0, 0);
                EXPECT_TRUE(until(dates.form, [&] { return !IsWindow(window); }));
                settle(dates.form);
                EXPECT_TRUE(balloons().empty());
                EXPECT_EQ(dates.first.automation().textOf(u"Text"), u"1_/__/____");
            }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

WNDPROC beforeHost = nullptr;

LRESULT CALLBACK asHostSubclasses(HWND window, UINT message, WPARAM first, LPARAM second)
{
    return CallWindowProcW(beforeHost, window, message, first, second);
}

// A field that its host hides or disables while it is left cannot have the focus back. The next one is entered, and
// reports it, also when the host has subclassed its edit box.
TEST(Focus, AFieldThatCannotHaveItBackLetsItGo)
{
    for (const auto go : {byTab, byProgram, bySurface, byHostsWindow})
        for (const bool hidden : {false, true}) {
            TwoDates dates(true);
            dates.first.automation().put(u"ErrorTextClear", truth(true));
            beforeHost = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrW(dates.second.edit(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&asHostSubclasses)));
            dates.enter(dates.first);
            dates.first.onEvent = [&](DISPID, DISPPARAMS&) { // the text that is cleared
                if (hidden)
                    ShowWindow(dates.first.window(), SW_HIDE);
                else
                    dates.first.automation().put(u"Enabled", truth(false));
            };
            go(dates, dates.second.edit());
            EXPECT_TRUE(until(dates.form, [&] { return dates.second.count("OnFocus 1") == 1; }));
            settle(dates.form);
            EXPECT_EQ(GetFocus(), dates.second.edit());
            EXPECT_EQ(dates.first.count("OnFocus 0"), 1) << "it is not coming back";
            clickAt(dates.form, dates.second.edit(), {20, 8});
            EXPECT_EQ(dates.second.count("event -600"), 1);
        }
}

TEST(Focus, AnotherFieldsButtonOpensNothingOverAWrongEntry)
{
    TwoDates dates(true);
    dates.enter(dates.first);
    const HWND button = buttonOf(dates.second);
    clickAt(dates.form, button, middleOf(button));
    EXPECT_EQ(GetFocus(), dates.first.edit());
    SendMessageW(button, BM_CLICK, 0, 0); // pressed by a program there is no time to take the focus back in between
    settle(dates.form);
    EXPECT_EQ(GetFocus(), dates.first.edit());
    EXPECT_EQ(GetActiveWindow(), dates.form.window());
    EXPECT_EQ(dates.second.count("OnFocus 1"), 0);
}

} // namespace

} // namespace vela::test
