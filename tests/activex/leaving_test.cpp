// Where a field is left for good: other windows and forms, its own disabling, deactivation, and messages that close.
#include "two_dates.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

constexpr wchar_t childClass[] = L"VelaTestMdiChild";
constexpr DISPID mouseOut = 2;
const wchar_t remembered[] = L"VelaTestFocus";

// As form libraries do: the control that had the focus gets it again when its form is activated.
LRESULT CALLBACK mdiChild(HWND window, UINT message, WPARAM first, LPARAM second)
{
    const LRESULT result = DefMDIChildProcW(window, message, first, second);
    if (message == WM_SETFOCUS)
        SetFocus(static_cast<HWND>(GetPropW(window, remembered)));
    if (message == WM_DESTROY)
        RemovePropW(window, remembered);
    return result;
}

// The two fields in a form each, both forms in one frame.
struct TwoForms : TwoDates {
    explicit TwoForms(bool errorFocus) : TwoDates(errorFocus, true)
    {
        CLIENTCREATESTRUCT creation{nullptr, 1000};
        client = CreateWindowExW(0, L"MDICLIENT", nullptr, WS_CHILD | WS_VISIBLE, 0, 0, 400, 300, form.window(),
                                 nullptr, GetModuleHandleW(nullptr), &creation);
        WNDCLASSW description{};
        description.lpfnWndProc = mdiChild;
        description.hInstance = GetModuleHandleW(nullptr);
        description.lpszClassName = childClass;
        RegisterClassW(&description); // a second time it stands already
        make(two, second, 150);
        make(one, first, 0);
    }
    void make(HWND& window, const Site& site, int top)
    {
        window = CreateWindowExW(WS_EX_MDICHILD | WS_EX_CONTROLPARENT, childClass, L"Filha", WS_CHILD | WS_VISIBLE, 0,
                                 top, 300, 140, client, nullptr, GetModuleHandleW(nullptr), nullptr);
        SetPropW(window, remembered, site.edit());
        SetParent(site.window(), window);
        SetWindowPos(site.window(), nullptr, 10, 10, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
    }

    HWND client = nullptr;
    HWND one = nullptr;
    HWND two = nullptr;
};

// The return at the first attempt is not used up when the focus goes to another form.
void expectHeldOnce(TwoDates& dates, HWND next, bool errorFocus)
{
    dates.enter(dates.first);
    SetFocus(next);
    settle(dates.form);
    EXPECT_EQ(GetFocus(), dates.first.edit());
    SetFocus(next);
    settle(dates.form);
    EXPECT_EQ(GetFocus(), errorFocus ? dates.first.edit() : next);
}

// Another child of the frame, by a click or by the frame, or another top-level window.
TEST(Leaving, AnotherFormIsReachedAtOnce)
{
    for (const bool errorFocus : {false, true})
        for (const char* const way : {"click", "frame", "window"}) {
            SCOPED_TRACE(way);
            TwoForms dates(errorFocus);
            const OtherWindow other;
            const bool inFrame = way[0] != 'w';
            SendMessageW(dates.client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(dates.one), 0);
            dates.enter(dates.first);
            if (way[0] == 'c')
                clickAt(dates.form, dates.second.edit(), {20, 8});
            else if (inFrame)
                SendMessageW(dates.client, WM_MDIACTIVATE, reinterpret_cast<WPARAM>(dates.two), 0);
            else
                SetForegroundWindow(other.window());
            settle(dates.form);
            EXPECT_EQ(GetActiveWindow(), inFrame ? dates.form.window() : other.window()) << "not called back";
            EXPECT_EQ(GetFocus() == dates.second.edit(), inFrame);
            EXPECT_EQ(dates.second.count("OnFocus 1"), inFrame ? 1 : 0);
            EXPECT_EQ(dates.first.count("OnFocus 0"), 1);
            EXPECT_EQ(dates.first.count("OnFocus 1"), 0);
            EXPECT_EQ(coloursOf(dates.first).fore, wrongColour) << "checked as always";
            EXPECT_EQ(balloons().size(), 1u);
            dates.second.automation().put(u"Text", text(u"01/02/2024"));
            SetParent(dates.after, dates.one);
            expectHeldOnce(dates, dates.after, errorFocus);
            dates.form.focus(dates.first); // and the form can be worked on again
            SendMessageW(dates.first.edit(), EM_SETSEL, 0, -1);
            dates.form.type(u"2");
            EXPECT_EQ(shownBy(dates.first.edit()), u"2_/__/____");
        }
}

TEST(Leaving, ADisabledFieldIsLeftForNowhere)
{
    for (const bool errorFocus : {false, true}) {
        TwoDates dates(errorFocus, true);
        dates.enter(dates.first);
        dates.first.automation().put(u"Enabled", truth(false));
        settle(dates.form);
        EXPECT_EQ(GetFocus(), nullptr);
        EXPECT_EQ(dates.first.count("OnFocus 0"), 1);
        EXPECT_EQ(balloons().size(), 1u) << "checked as always";
        strike(dates.form, '2');
        EXPECT_EQ(shownBy(dates.first.edit()), u"1_/__/____");
        dates.first.automation().put(u"Enabled", truth(true));
        expectHeldOnce(dates, dates.after, errorFocus);
    }
}

using End = void (*)(TwoDates&);

constexpr End byDeactivation = [](TwoDates& dates) { dates.first.as<IOleInPlaceObject>()->InPlaceDeactivate(); };
constexpr End byClosing = [](TwoDates& dates) { dates.first.as<IOleObject>()->Close(OLECLOSE_NOSAVE); };
constexpr End bySite = [](TwoDates& dates) { dates.first.as<IOleObject>()->SetClientSite(nullptr); };

TEST(Leaving, AFocusedFieldThatIsDeactivatedIsLeftAndNotEnteredAgain)
{
    for (const auto end : {byDeactivation, byClosing, bySite})
        for (const bool pending : {false, true}) {
            TwoDates dates(true, true);
            dates.first.automation().put(u"ToolTipGotFocus", text(u"Dica"));
            dates.enter(dates.first);
            if (pending)
                SetFocus(dates.after); // and what it asked for has not been granted yet
            end(dates);
            settle(dates.form);
            EXPECT_EQ(dates.first.count("OnFocus 0"), 1);
            EXPECT_EQ(dates.first.count("OnFocus 1"), 0);
            EXPECT_TRUE(balloons().empty());
            EXPECT_EQ(dates.first.window(), nullptr);
            if (end != byDeactivation)
                continue;
            ASSERT_EQ(dates.first.activate({10, 10, 210, 34}), S_OK);
            EXPECT_EQ(coloursOf(dates.first).fore, wrongColour) << "the look of a field that was left";
        }
}

// A host that answers by activating the control again is refused while it is being deactivated.
TEST(Leaving, AControlIsNotActivatedWhileItIsDeactivated)
{
    for (const std::string_view inside : {"OnFocus 0", "OnUIDeactivate"})
        for (const auto end : {byDeactivation, byClosing, bySite}) {
            SCOPED_TRACE(inside);
            TwoDates dates(false);
            dates.enter(dates.first);
            HRESULT answer = S_OK;
            dates.first.onCall = [&](const char* word) {
                if (word == inside)
                    answer = dates.first.activateInterface();
            };
            end(dates);
            settle(dates.form);
            EXPECT_TRUE(FAILED(answer));
            EXPECT_EQ(dates.first.window(), nullptr);
            EXPECT_EQ(dates.first.count("OnInPlaceDeactivate"), 1);
            dates.first.onCall = {};
            if (end == bySite)
                dates.first.as<IOleObject>()->SetClientSite(&dates.first);
            EXPECT_EQ(dates.first.activateInterface(), S_OK);
            EXPECT_EQ(GetFocus(), dates.first.edit());
        }
}

// Dialogs and EDITs in dialogs send it: it is the form's business alone.
TEST(Leaving, AClosingMessageDestroysNothing)
{
    TwoDates dates(false);
    dates.enter(dates.first);
    for (const HWND window : {dates.first.window(), dates.first.edit()}) {
        SendMessageW(window, WM_CLOSE, 0, 0);
        PostMessageW(window, WM_CLOSE, 0, 0);
        settle(dates.form);
    }
    EXPECT_TRUE(IsWindow(dates.first.edit()));
    EXPECT_EQ(GetFocus(), dates.first.edit());
    EXPECT_EQ(dates.first.count("OnInPlaceDeactivate"), 0);
}

TEST(Leaving, NoHoverTickInsideAHoverTick)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    int deepest = 0;
    int inside = 0;
    site.onEvent = [&](DISPID id, DISPPARAMS&) {
        if (id != mouseOut)
            return;
        deepest = std::max(deepest, ++inside);
        if (inside < 4)
            pumpFor(200); // as a message box does
        --inside;
    };
    pointAt(site.edit(), middleOf(site.edit()));
    settle(form);
    pointAway();
    EXPECT_TRUE(until(form, [&] { return deepest > 0; }));
    EXPECT_EQ(deepest, 1);
}

} // namespace

} // namespace vela::test
