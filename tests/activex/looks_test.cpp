// What a field looks like on the screen: hover, focus, errors, states, sizes, dots per inch and high contrast.
#include "high_contrast.h"
#include "host_objects.h"
#include "picture.h"
#include "two_dates.h"

#include "tests/windows/child.h"
#include "tests/windows/usage.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <commctrl.h>
#include <olectl.h>

#include <optional>
#include <vector>

namespace vela::test {

namespace {

constexpr DISPID mouseOut = 2;
constexpr char mouseOutEvent[] = "event 2";
constexpr COLORREF backFocus = 0x00AAFFFF, backRest = 0x00FFE0E0, backHover = 0x00C0FFC0;
constexpr COLORREF lineFocus = 0x00FF0000, lineRest = 0x00808000, lineHover = 0x000000FF;
constexpr COLORREF foreFocus = 0x00400000, foreRest = 0x00004000;
constexpr std::pair<const char16_t*, COLORREF> palette[] = {
    {u"BackColorGotFocus", backFocus},   {u"BackColorLostFocus", backRest},   {u"BackColor_MouseMove", backHover},
    {u"BorderColorGotfocus", lineFocus}, {u"BorderColorLostfocus", lineRest}, {u"BorderColor_MouseMove", lineHover},
    {u"ForeColor_GotFocus", foreFocus},  {u"ForeColor_LostFocus", foreRest},  {u"Error_ForeColor", wrongColour},
};

// A flat field in known colours that has been left once.
class Screen : public Desk {
public:
    Screen()
    {
        pointAway();
        const Automation field = site.automation();
        field.put(u"Appearance", number(0));
        for (const auto& [property, colour] : palette)
            field.put(property, number(static_cast<std::int32_t>(colour)));
        leave();
        site.log.clear();
    }
    // The border's own colour, in the middle of the top line.
    [[nodiscard]] COLORREF line() const { return pixelOf(site.window(), {80, 0}); }
    // Right of any text.
    [[nodiscard]] COLORREF back() const
    {
        const RECT client = clientOf(site.edit());
        return pixelOf(site.edit(), {client.right - 4, client.bottom / 2});
    }
    [[nodiscard]] int inked(COLORREF colour) const { return pixelsOf(site.edit(), colour, clientOf(site.edit())); }
};

TEST(Looks, FocusAndErrorAreSeen)
{
    Screen screen;
    EXPECT_EQ(screen.back(), backRest);
    EXPECT_EQ(screen.line(), lineRest);
    screen.enter();
    screen.form.type(u"MMM");
    screen.site.automation().put(u"SelStart", number(3));
    settle(screen.form);
    EXPECT_EQ(screen.back(), backFocus);
    EXPECT_EQ(screen.line(), lineFocus);
    EXPECT_GT(screen.inked(foreFocus), 0);
    screen.leave();
    EXPECT_EQ(screen.back(), backRest);
    EXPECT_EQ(screen.line(), lineRest);
    EXPECT_GT(screen.inked(foreRest), 0);
    EXPECT_EQ(screen.inked(foreFocus), 0);

    makeDate(screen.site);
    screen.enter();
    screen.form.type(u"4");
    screen.leave();
    settle(screen.form);
    EXPECT_EQ(GetFocus(), screen.site.edit()) << "held";
    EXPECT_EQ(screen.back(), backFocus);
    screen.site.automation().put(u"SelStart", number(10)); // what is marked has the system's colours
    settle(screen.form);
    EXPECT_GT(screen.inked(wrongColour), 0);
    screen.leave();
    EXPECT_EQ(screen.back(), backRest);
    EXPECT_GT(screen.inked(wrongColour), 0);
}

TEST(Looks, TheHostsClipAndTheRoundCornersAreOneRegion)
{
    Screen screen;
    const auto object = screen.site.as<IOleInPlaceObject>();
    const RECT place = placeIn(screen.site.window(), screen.form.window());
    const RECT half{place.left, place.top, place.left + 100, place.bottom};
    const struct {
        const char* what;
        LONG style;
        const RECT& clip;
        bool corner, middle, cut;
    } rows[] = {{"square, half of it", 0, half, true, true, false}, {"round, half of it", 5, half, false, true, false},
                {"round, all of it", 5, place, false, true, true},  {"round, half again", 5, half, false, true, false},
                {"square again", 0, half, true, true, false},       {"square, all of it", 0, place, true, true, true}};
    for (const auto& row : rows) {
        screen.site.automation().put(u"BorderStyle", number(row.style));
        ASSERT_EQ(object->SetObjectRects(&place, &row.clip), S_OK);
        const HRGN shown = CreateRectRgn(0, 0, place.right - place.left, place.bottom - place.top);
        GetWindowRgn(screen.site.window(), shown);
        EXPECT_EQ(PtInRegion(shown, 0, 0) != FALSE, row.corner) << row.what;
        EXPECT_EQ(PtInRegion(shown, 50, 12) != FALSE, row.middle) << row.what;
        EXPECT_EQ(PtInRegion(shown, 150, 12) != FALSE, row.cut) << row.what;
        DeleteObject(shown);
    }
}

LRESULT CALLBACK eraseNothing(HWND window, UINT message, WPARAM first, LPARAM second, UINT_PTR, DWORD_PTR)
{
    return message == WM_ERASEBKGND ? 1 : DefSubclassProc(window, message, first, second);
}

// What lies under the corners is the host's, and this one leaves it as black as it was.
TEST(Looks, RoundCornersAreNotBlackWhereTheHostErasesNothing)
{
    Screen screen;
    SetWindowSubclass(screen.form.window(), eraseNothing, 1, 0);
    const auto corner = [&](std::optional<COLORREF> ambient) {
        if (ambient) {
            screen.site.ambients.emplace(DISPID_AMBIENT_BACKCOLOR, number(static_cast<std::int32_t>(*ambient)));
            screen.site.as<IOleControl>()->OnAmbientPropertyChange(DISPID_AMBIENT_BACKCOLOR);
        }
        const HDC dc = GetDC(screen.form.window());
        const RECT all = clientOf(screen.form.window());
        FillRect(dc, &all, static_cast<HBRUSH>(GetStockObject(BLACK_BRUSH)));
        ReleaseDC(screen.form.window(), dc);
        RedrawWindow(screen.site.window(), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
        const RECT place = placeIn(screen.site.window(), screen.form.window());
        return pixelOf(screen.form.window(), {place.left, place.top});
    };
    screen.site.automation().put(u"BorderStyle", number(5));
    settle(screen.form);
    EXPECT_EQ(corner(std::nullopt), GetSysColor(COLOR_BTNFACE));
    EXPECT_EQ(corner(0x00204060), 0x00204060u) << "the form's own colour";
    RemoveWindowSubclass(screen.form.window(), eraseNothing, 1);
}

// What the window shows at a point of it, its parts included.
COLORREF seenAt(HWND window, POINT at)
{
    const HWND child = RealChildWindowFromPoint(window, at);
    const HWND part = child ? child : window;
    RECT place{};
    GetWindowRect(part, &place);
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    const HDC dc = GetWindowDC(part);
    const COLORREF colour = GetPixel(dc, at.x - place.left, at.y - place.top);
    ReleaseDC(part, dc);
    return colour;
}

TEST(Looks, ThePictureIsWhatTheWindowShows)
{
    const struct {
        const char* what;
        std::initializer_list<Setting> settings;
    } rows[] = {
        {"sunken", {{u"Appearance", 1}}},
        {"flat", {{u"Appearance", 0}, {u"BorderStyle", 0}}},
        {"round", {{u"BorderStyle", 5}}},
        {"with its button", {{u"BorderStyle", 0}, {u"Appearance", 1}, {u"ShowButtonCalculadora", true}}},
        {"to the right", {{u"Alignment", 1}}},
        {"disabled", {{u"Enabled", false}}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        Screen screen;
        screen.site.automation().set({{u"Text", u"Mg 12,5"}});
        screen.site.automation().set(row.settings);
        settle(screen.form);
        const HWND window = screen.site.window();
        RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
        const RECT client = clientOf(window);
        const Picture picture(client.right, client.bottom);
        const RECTL bounds{0, 0, client.right, client.bottom};
        EXPECT_EQ(drawn(*screen.site.as<IViewObject>().Get(), picture.dc(), &bounds), S_OK);
        std::vector<POINT> different;
        for (LONG y = 0; y < client.bottom; ++y)
            for (LONG x = 0; x < client.right; ++x) {
                const COLORREF live = seenAt(window, {x, y});
                if (live != CLR_INVALID && live != picture.colourAt(x, y))
                    different.push_back({x, y});
            }
        ASSERT_TRUE(different.empty()) << different.size() << ", first at " << different.front().x << ", "
                                       << different.front().y;
    }
}

TEST(Looks, ThePointerBringsHoverColoursAndMouseOut)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    for (const bool focused : {false, true}) {
        SCOPED_TRACE(focused ? "with the focus" : "without");
        Screen screen;
        screen.site.automation().put(u"ShowButtonCalculadora", truth(true));
        if (focused)
            screen.enter();
        const COLORREF fore = coloursOf(screen.site).fore;
        for (int round = 1; round <= 2; ++round) {
            pointAt(screen.site.edit(), {20, 8});
            EXPECT_TRUE(until(screen.form, [&] { return screen.back() == backHover; }));
            EXPECT_EQ(screen.line(), lineHover);
            EXPECT_EQ(coloursOf(screen.site).fore, fore);
            EXPECT_EQ(screen.site.count(mouseOutEvent), round - 1);
            if (round == 1)
                pointAway();
            else
                pointAt(buttonOf(screen.site), {3, 3}); // a part of the field, but not its edit box
            EXPECT_TRUE(until(screen.form, [&] { return screen.site.count(mouseOutEvent) == round; }));
            settle(screen.form);
            EXPECT_EQ(screen.back(), focused ? backFocus : backRest);
            EXPECT_EQ(screen.line(), focused ? lineFocus : lineRest);
            EXPECT_EQ(coloursOf(screen.site).fore, fore);
        }
        pumpFor(150); // some ticks
        EXPECT_EQ(screen.site.count(mouseOutEvent), 2) << "once each time";

        screen.site.onEvent = [&](DISPID id, DISPPARAMS&) { // the host may close the field when the pointer leaves it
            if (id == mouseOut)
                screen.site.close();
        };
        pointAt(screen.site.edit(), {20, 8});
        EXPECT_TRUE(until(screen.form, [&] { return screen.back() == backHover; }));
        pointAway();
        EXPECT_TRUE(until(screen.form, [&] { return screen.site.control() == nullptr; }));
        EXPECT_TRUE(AnsweredBoxes::texts().empty());
    }
}

TEST(Looks, DisabledIsGreyAndDeaf)
{
    Screen screen;
    const Automation field = screen.site.automation();
    field.put(u"Text", text(u"MMMM"));
    ASSERT_EQ(field.put(u"Enabled", truth(false)).result, S_OK);
    settle(screen.form);
    EXPECT_GT(screen.inked(GetSysColor(COLOR_GRAYTEXT)), 5);
    EXPECT_EQ(screen.inked(foreRest), 0);
    EXPECT_EQ(screen.back(), backRest);
    clickAt(screen.form, screen.site.edit(), {20, 8});
    EXPECT_EQ(GetFocus(), screen.neighbour.edit());
    strike(screen.form, VK_TAB);
    EXPECT_EQ(GetFocus(), screen.neighbour.edit()) << "there is no other to go to";
    field.put(u"Enabled", truth(true));
    settle(screen.form);
    EXPECT_GT(screen.inked(foreRest), 0);
}

TEST(Looks, SeveralLines)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.add({.initialise = false});
    site.ambients.emplace(DISPID_AMBIENT_USERMODE, truth(false)); // decided at design time
    ASSERT_EQ(site.as<IPersistStreamInit>()->InitNew(), S_OK);
    site.automation().set({{u"MultLine", true}, {u"TextoLivre", true}});
    ASSERT_EQ(site.activate({10, 10, 210, 90}), S_OK);
    form.focus(site);
    form.type(u"MM");
    form.press(VK_RETURN);
    form.type(u"MM");
    settle(form);
    EXPECT_EQ(site.automation().textOf(u"Text"), u"MM\r\nMM");
    RECT second = clientOf(site.edit());
    second.top = 18;
    EXPECT_GT(pixelsOf(site.edit(), coloursOf(site).fore, second), 0) << "on the second line";
    const RECT edit = placeIn(site.edit(), site.window());
    EXPECT_GT(edit.bottom, 70) << "as tall as the field";
}

// Border, edit box and button in a field of any size: inside each other, beside each other.
void expectArranged(const Site& site, int dpi)
{
    const RECT field = clientOf(site.window());
    const RECT edit = placeIn(site.edit(), site.window());
    RECT inside{};
    EXPECT_TRUE(IsRectEmpty(&edit) || (IntersectRect(&inside, &edit, &field) && EqualRect(&inside, &edit)));
    const HWND button = buttonOf(site);
    if (!button || !(GetWindowLongPtrW(button, GWL_STYLE) & WS_VISIBLE))
        return;
    const RECT at = placeIn(button, site.window());
    EXPECT_FALSE(IntersectRect(&inside, &at, &edit));
    EXPECT_LE(at.right, field.right);
    EXPECT_GE(at.right, field.right - MulDiv(2, dpi, 96));
    EXPECT_GE(at.top, 0);
    EXPECT_LE(at.bottom, field.bottom);
}

TEST(Looks, LaidOutAnewInEverySize)
{
    const LeakCheck leaks;
    Form form;
    Site& site = form.addActive();
    makeDate(site);
    const Automation field = site.automation();
    for (const SIZE size : {SIZE{200, 24}, {90, 21}, {300, 100}, {30, 12}, {10, 6}, {3, 3}, {0, 0}, {200, 24}})
        for (const int border : {0, 1, 2, 3, 4, 5})
            for (const int appearance : {0, 1}) {
                SCOPED_TRACE(std::to_string(size.cx) + " x " + std::to_string(size.cy) + ", border " +
                             std::to_string(border) + ", appearance " + std::to_string(appearance));
                field.put(u"Appearance", number(appearance));
                field.put(u"BorderStyle", number(border));
                const RECT place{10, 10, 10 + size.cx, 10 + size.cy};
                EXPECT_EQ(site.as<IOleInPlaceObject>()->SetObjectRects(&place, &place), S_OK);
                expectArranged(site, 96);
            }
    settle(form);
    const RECT edit = placeIn(site.edit(), site.window());
    EXPECT_GT(edit.right - edit.left, 150);
}

// In processes of their own: the system's dots per inch stand for the life of a process.
TEST(Looks, InEveryResolution)
{
    constexpr wchar_t key[] = L"Control Panel\\Desktop";
    constexpr wchar_t value[] = L"LogPixels";
    const auto put = [&](DWORD dpi) { RegSetKeyValueW(HKEY_CURRENT_USER, key, value, REG_DWORD, &dpi, sizeof dpi); };
    DWORD before = 0;
    DWORD size = sizeof before;
    RegGetValueW(HKEY_CURRENT_USER, key, value, RRF_RT_REG_DWORD, nullptr, &before, &size);
    const AtEnd restore([&] {
        if (before)
            put(before);
        else
            RegDeleteKeyValueW(HKEY_CURRENT_USER, key, value);
    });
    for (const DWORD dpi : {120U, 144U, 192U}) {
        SCOPED_TRACE(dpi);
        put(dpi);
        runApart(thisProgram(), "LooksScaled.*", "VELA_TEST_DPI", static_cast<int>(dpi));
    }
}

class LooksScaled : public testing::Test {
protected:
    void SetUp() override
    {
        if (dpi == 0)
            GTEST_SKIP() << "a part of Looks.InEveryResolution";
        SetThreadDpiAwarenessContext(DPI_AWARENESS_CONTEXT_PER_MONITOR_AWARE); // of a process that ends
        ASSERT_EQ(static_cast<int>(GetDpiForSystem()), dpi);
    }

    const int dpi = asked("VELA_TEST_DPI", 0);
};

TEST_F(LooksScaled, TheFieldAndItsPopupGrow)
{
    Form form;
    Site& site = form.add();
    const RECT place{10, 10, 10 + MulDiv(121, dpi, 96), 10 + MulDiv(21, dpi, 96)};
    ASSERT_EQ(site.activate(place), S_OK);
    makeDate(site);
    const Automation field = site.automation();
    for (const int appearance : {0, 1}) {
        field.put(u"Appearance", number(appearance));
        settle(form);
        expectArranged(site, dpi);
        const RECT button = placeIn(buttonOf(site), site.window());
        EXPECT_EQ(button.right - button.left, MulDiv(17, dpi, 96));
    }
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(SendMessageW(site.edit(), WM_GETFONT, 0, 0)), sizeof font, &font);
    EXPECT_NEAR(static_cast<double>(std::abs(font.lfHeight)), 8.25 * dpi / 72, 1.0);
    SIZEL extent{};
    EXPECT_EQ(site.as<IOleObject>()->GetExtent(DVASPECT_CONTENT, &extent), S_OK);
    EXPECT_NEAR(static_cast<double>(extent.cx), 121 * 2540.0 / 96, 30);
    form.focus(site);
    const RECT popup = placeIn(openPopup(form, site), site.window());
    EXPECT_EQ(popup.right - popup.left, MulDiv(184, dpi, 96));
    EXPECT_EQ(popup.bottom - popup.top, MulDiv(167, dpi, 96));
    form.press(VK_ESCAPE);
    settle(form);
    field.put(u"Appearance", number(0));
    field.put(u"BorderColorLostfocus", number(lineRest));
    form.focus(site);
    form.focus(form.addActive());
    settle(form);
    const int width = MulDiv(1, dpi, 96);
    for (int y = 0; y <= width; ++y)
        EXPECT_EQ(pixelOf(site.window(), {40, y}) == lineRest, y < width) << "row " << y;
}

// Logical and real dots per inch differ here: the frame is in real millimetres, and the picture fills it.
TEST_F(LooksScaled, TheMetafileFillsItsFrame)
{
    const ComPtr<IUnknown> control = create();
    SIZEL extent{2646, 635};
    ASSERT_EQ(query<IOleObject>(control.Get())->SetExtent(DVASPECT_CONTENT, &extent), S_OK);
    FORMATETC format{CF_ENHMETAFILE, nullptr, DVASPECT_CONTENT, -1, TYMED_ENHMF};
    STGMEDIUM medium{};
    ASSERT_EQ(query<IDataObject>(control.Get())->GetData(&format, &medium), S_OK);
    ENHMETAHEADER header{};
    GetEnhMetaFileHeader(medium.hEnhMetaFile, sizeof header, &header);
    EXPECT_NEAR(static_cast<double>(header.rclFrame.right), 2646, 60);
    const double pixels = 26.46 * header.szlDevice.cx / header.szlMillimeters.cx;
    EXPECT_NEAR(static_cast<double>(header.rclBounds.right + 1), pixels, 2);
    ReleaseStgMedium(&medium);
}

// The person's colours win over the form's, in every state.
TEST(Looks, InHighContrast)
{
    const HighContrast contrast;
    Screen screen;
    screen.site.automation().put(u"ShowButtonCalculadora", truth(true));
    screen.site.automation().put(u"Text", text(u"MMMM"));
    const auto expectSystem = [&] {
        settle(screen.form);
        EXPECT_EQ(coloursOf(screen.site), (SeenColours{HighContrast::text, HighContrast::window}));
        EXPECT_EQ(screen.back(), HighContrast::window);
        EXPECT_EQ(screen.line(), HighContrast::frame);
    };
    expectSystem();
    EXPECT_GT(screen.inked(HighContrast::text), 0);
    pointAt(screen.site.edit(), {20, 8});
    screen.enter();
    expectSystem();
    pointAway();
    EXPECT_TRUE(until(screen.form, [&] { return screen.site.count(mouseOutEvent) == 1; }));
    expectSystem();
    screen.site.automation().put(u"Enabled", truth(false));
    settle(screen.form);
    EXPECT_GT(screen.inked(HighContrast::grey), 0);
    EXPECT_EQ(screen.inked(HighContrast::text), 0);
    const HWND button = buttonOf(screen.site);
    EXPECT_GT(pixelsOf(button, HighContrast::grey, clientOf(button)), 10) << "the picture on the button";
}

// The picture on the button and the mark of the chosen day are of the person's colours too, and can be read.
TEST(Looks, ThePopupInHighContrast)
{
    const LeakCheck leaks;
    const HighContrast contrast;
    Form form;
    Site& site = form.addActive();
    makeDate(site);
    form.focus(site);
    settle(form);
    const HWND button = buttonOf(site);
    EXPECT_GT(pixelsOf(button, HighContrast::text, clientOf(button)), 10) << "the picture";
    EXPECT_GT(pixelsOf(button, HighContrast::window, clientOf(button)), 50) << "on a dark face";
    const HWND calendar = openPopup(form, site);
    RECT days = clientOf(calendar);
    days.top = days.bottom / 4; // below the lists
    EXPECT_GT(pixelsOf(calendar, HighContrast::highlight, days), 5) << "a ring";
    EXPECT_LT(pixelsOf(calendar, HighContrast::highlight, days), 150) << "and not a disc";
    EXPECT_GT(pixelsOf(calendar, HighContrast::text, days), 100);
    form.press(VK_ESCAPE);
    settle(form);
}

} // namespace

} // namespace vela::test
