// Property pages under a person's hands: keys and clicks through the system's own queue, into a frame's loop.
#include "shown_page.h"

#include <commctrl.h>

#include <initializer_list>
#include <set>

namespace vela::test {

namespace {

// A page of a field, in the foreground; with its end nothing of them may be alive.
class Hands {
    LeakCheck leaks_;

public:
    explicit Hands(const CLSID& id, std::initializer_list<Setting> settings = {})
        : field(made(settings)), shown(id, {field.dispatch()})
    {
        SetForegroundWindow(shown.window());
        settle();
    }
    void settle() // with what a short timer still brings
    {
        shown.run();
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 30, QS_ALLINPUT);
        test::settle(shown);
    }
    void press(std::initializer_list<int> keys)
    {
        for (const int key : keys) {
            sendKey(key, true);
            sendKey(key, false);
            settle();
        }
    }
    void pressWithAlt(int key, const std::function<void()>& meanwhile = {}) // while Alt is down
    {
        sendKey(VK_MENU, true);
        press({key});
        if (meanwhile)
            meanwhile();
        sendKey(VK_MENU, false);
        settle();
    }
    void click(HWND window, POINT at, int times = 1)
    {
        pointAt(window, at);
        for (int i = 0; i < times; ++i)
            for (const DWORD flag : {MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP})
                sendMouse(flag);
        settle();
    }
    HWND go(const char16_t* property) // to its control, as a host asks
    {
        EXPECT_EQ(shown.page->EditProperty(*field.id(property)), S_OK);
        settle();
        return isOf(L"ComboBox", GetParent(GetFocus())) ? GetParent(GetFocus()) : GetFocus();
    }
    void expectDown(HWND combo)
    {
        EXPECT_TRUE(until(shown, [&] { return isDown(combo); }));
    }
    [[nodiscard]] static bool isDown(HWND combo) { return SendMessageW(combo, CB_GETDROPPEDSTATE, 0, 0) != 0; }

    const Automation field;
    ShownPage shown;

private:
    static Automation made(std::initializer_list<Setting> settings)
    {
        Automation field(create().Get());
        field.set(settings);
        return field;
    }
};

TEST(PageHands, TheListOfFontsOpensByItsAccessKeyAndByItsArrow)
{
    for (const bool click : {false, true}) {
        Hands hands(activex::fontePage);
        hands.go(u"FontSize");
        const HWND combo = hands.shown.find(L"COMBOBOX", hands.field.textOf(u"FontName"));
        ASSERT_NE(combo, nullptr);
        const RECT client = clientOf(combo);
        if (click)
            hands.click(combo, {client.right - 6, client.bottom / 2});
        else
            hands.pressWithAlt('N', [&] { hands.expectDown(combo); });
        hands.expectDown(combo);
        for (int i = 0; i < 5; ++i)
            hands.settle();
        EXPECT_TRUE(IsWindow(hands.shown.window())) << "Alt+F4";
        EXPECT_TRUE(Hands::isDown(combo)) << "stays open";
    }
}

TEST(PageHands, WhatAComboCompletesIsApplied)
{
    Hands hands(activex::principalPage);
    const HWND combo = hands.go(u"DateFormat");
    SendMessageW(GetFocus(), EM_SETSEL, 0, -1);
    hands.press({'Y', 'Y', VK_F4, VK_F4, VK_TAB});
    EXPECT_EQ(shownBy(combo), u"yyyy/mm/dd");
    EXPECT_EQ(hands.shown.page->Apply(), S_OK);
    EXPECT_EQ(hands.field.textOf(u"DateFormat"), shownBy(combo));
}

TEST(PageHands, EnterAndEscCloseTheListOfAnEditableCombo)
{
    Hands hands(activex::principalPage, {{u"FormatoRetornoData", u"d/M/yy"}});
    const HWND combo = hands.go(u"FormatoRetornoData");
    for (const int key : {VK_RETURN, VK_ESCAPE}) {
        hands.press({VK_F4});
        EXPECT_TRUE(Hands::isDown(combo));
        hands.press({VK_DOWN, key});
        EXPECT_FALSE(Hands::isDown(combo)) << key;
        EXPECT_EQ(GetFocus(), GetWindow(combo, GW_CHILD)) << key;
    }
    EXPECT_EQ(hands.shown.page->Apply(), S_OK);
    EXPECT_EQ(hands.field.textOf(u"FormatoRetornoData"), shownBy(combo));
}

TEST(PageHands, AccessKeysWorkBesideThePage)
{
    Hands hands(activex::fontePage);
    SetFocus(hands.shown.button());
    hands.pressWithAlt('T');
    EXPECT_EQ(shownBy(GetFocus()), u"8");
    SetFocus(hands.shown.button());
    hands.shown.page->Show(SW_HIDE);
    hands.pressWithAlt('T');
    EXPECT_EQ(GetFocus(), hands.shown.button()) << "a page behind another one takes no keys";
}

// --- the palette, whose acts come from a timer while it is on show

struct PaletteActs : Fixed {
    explicit PaletteActs(std::initializer_list<std::function<void(HWND)>> acts)
    {
        steps.assign(acts);
        next = 0;
        timer = SetTimer(nullptr, 0, 60, step);
    }
    ~PaletteActs() { KillTimer(nullptr, timer); }
    [[nodiscard]] static bool done() { return next == steps.size(); }

    static void CALLBACK step(HWND, UINT, UINT_PTR, DWORD)
    {
        const HWND palette = GetActiveWindow();
        const bool waits = GetQueueStatus(QS_ALLINPUT & ~QS_TIMER) != 0;
        if (palette && shownBy(palette) == u"Paleta de Cores" && next < steps.size() && !waits)
            steps[next++](palette);
    }

    static inline std::vector<std::function<void(HWND)>> steps;
    static inline std::size_t next = 0;
    static inline UINT_PTR timer = 0;
};

std::function<void(HWND)> key(int code)
{
    return [code](HWND) {
        sendKey(code, true);
        sendKey(code, false);
    };
}

TEST(PageHands, AClickOnASwatchAndACancelledPaletteChangeNothing)
{
    Hands hands(activex::principalPage);
    const HWND swatch = hands.go(u"CorValorNeg");
    hands.click(swatch, middleOf(swatch));
    EXPECT_EQ(hands.shown.page->IsPageDirty(), S_FALSE);
    Sleep(GetDoubleClickTime());
    const PaletteActs acts{key(VK_RIGHT), key(VK_ESCAPE)};
    hands.click(swatch, middleOf(swatch), 2);
    EXPECT_TRUE(PaletteActs::done());
    EXPECT_EQ(hands.shown.page->IsPageDirty(), S_FALSE);
}

// The first swatch, black, has the focus at first: below it stands grey, and red two columns to the right of that row.
TEST(PageHands, AColourIsChosenByKeysAlone)
{
    Hands hands(activex::errosPage);
    hands.go(u"Error_ForeColor");
    COLORREF left = 0, line = 0;
    const auto edgeOf = [](HWND swatch) { return pixelOf(swatch, {0, clientOf(swatch).bottom / 2}); };
    const auto look = [&](HWND palette) {
        line = edgeOf(GetFocus());
        left = edgeOf(GetNextDlgTabItem(palette, GetFocus(), TRUE));
        key(VK_RIGHT)(palette);
    };
    for (const int opener : {VK_SPACE, VK_RETURN}) {
        const PaletteActs acts{key(VK_DOWN), look, key(VK_RETURN)};
        hands.press({opener});
        EXPECT_TRUE(PaletteActs::done()) << opener;
        EXPECT_EQ(left, RGB(0, 0, 0)) << "no border";
        EXPECT_EQ(line, GetSysColor(COLOR_WINDOWFRAME)) << "of grey, which has the focus";
    }
    EXPECT_EQ(hands.shown.page->IsPageDirty(), S_OK);
    EXPECT_EQ(hands.shown.page->Apply(), S_OK);
    EXPECT_EQ(hands.field.textOf(u"Error_ForeColor"), u"255");
}

// --- looks

constexpr COLORREF frameColour = RGB(10, 200, 30);

LRESULT CALLBACK paintedFrame(HWND window, UINT message, WPARAM first, LPARAM second)
{
    if (message != WM_ERASEBKGND)
        return DefWindowProcW(window, message, first, second);
    const HDC dc = reinterpret_cast<HDC>(first);
    RECT place{};
    GetClipBox(dc, &place);
    SetDCBrushColor(dc, frameColour);
    return FillRect(dc, &place, static_cast<HBRUSH>(GetStockObject(DC_BRUSH)));
}

TEST(PageLooks, ThePagesStandOnTheirFramesGround)
{
    Hands hands(activex::errosPage);
    SetWindowLongPtrW(hands.shown.window(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(paintedFrame));
    EXPECT_EQ(hands.shown.page->Show(SW_SHOW), S_OK);
    hands.settle();
    const HWND box = hands.shown.find(L"BUTTON", u"&Limpar Campo em Caso de Erro");
    const HWND page = GetParent(box);
    EXPECT_EQ(pixelOf(page, {2, 2}), frameColour);
    EXPECT_EQ(pixelOf(box, {clientOf(box).right - 2, 1}), frameColour);
}

TEST(PageLooks, TheTabInFrontJoinsItsPane)
{
    Hands hands(activex::principalPage);
    const HWND strip = hands.shown.find(L"SysTabControl32", u"");
    ASSERT_NE(strip, nullptr);
    hands.settle();
    const auto coloursBelow = [&](WPARAM tab) {
        RECT caption{};
        SendMessageW(strip, TCM_GETITEMRECT, tab, reinterpret_cast<LPARAM>(&caption));
        const RECT place = placeIn(strip, nullptr);
        std::set<COLORREF> seen; // on the screen: over the border, as the page shows it
        for (LONG y = caption.bottom - 3; y < caption.bottom + 8; ++y)
            seen.insert(pixelOf(nullptr, {place.left + caption.left + 4, place.top + y}));
        return seen.size();
    };
    EXPECT_EQ(coloursBelow(0), 1u);
    EXPECT_GT(coloursBelow(1), 1u);
}

TEST(PageLooks, AFontSampleLargerThanItsSurfaceIsCutThere)
{
    Hands hands(activex::fontePage, {{u"FontSize", 255}});
    hands.settle();
    const HWND button = hands.shown.find(L"BUTTON", u"T&este");
    ASSERT_NE(button, nullptr);
    hands.click(button, middleOf(button));
    const HWND page = GetParent(button);
    RedrawWindow(page, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW); // the whole page, as when it is uncovered
    const RECT place = placeIn(button, page); // the surface begins 30 pixels below its top and is 118 high
    const auto coloursIn = [&](LONG from, LONG to) {
        std::set<COLORREF> seen;
        for (LONG y = place.top + from; y < place.top + to; ++y)
            for (LONG x = place.left + 10; x < place.left + 320; x += 2)
                seen.insert(pixelOf(page, {x, y}));
        return seen.size();
    };
    EXPECT_GT(coloursIn(60, 120), 1u) << "the sample";
    EXPECT_EQ(coloursIn(150, 154), 1u) << "below its surface";
}

TEST(PageLooks, TheLettersStandInColumns)
{
    Hands hands(activex::principalPage);
    hands.go(u"TextoLivre");
    const HWND list = hands.shown.find(L"LISTBOX", u"");
    RECT column{};
    SendMessageW(list, LB_GETITEMRECT, 50, reinterpret_cast<LPARAM>(&column));
    EXPECT_GT(column.left, 0);
    EXPECT_LE(column.right, clientOf(list).right) << "seen without scrolling";
}

} // namespace

} // namespace vela::test
