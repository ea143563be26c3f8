// What only real windows have: the EDIT itself, colours asked for by it, tooltip records, windows that go, names for
// readers.
#include "tests/contract/form_case.h"
#include "tests/support/windows.h"

#include "engine/text/calendar_date.h"
#include "engine/text/conversions.h"
#include "platform/win32/control_surface.h"
#include "platform/win32/device_context.h"
#include "platform/win32/environment.h"
#include "platform/win32/tooltip_window.h"

#include <commctrl.h>
#include <objbase.h>

#include <array>
#include <string>

namespace vela::contract {
namespace {

using test::heardOf;
using test::readerOf;

// Of a form's events only the clicks are kept.
struct Clicks final : platform::ClickEvents {
    void clicked(platform::WidgetId widget) override
    {
        last = widget;
        ++count;
    }
    platform::WidgetId last;
    int count = 0;
};

// Pixels of another colour than that of the window's corner at (2, 2).
int inkIn(HWND window, const RECT& place)
{
    UpdateWindow(window);
    const win32::WindowDc dc(window);
    const COLORREF ground = GetPixel(dc.get(), 2, 2);
    int ink = 0;
    for (LONG y = place.top; y < place.bottom; ++y)
        for (LONG x = place.left; x < place.right; ++x)
            ink += GetPixel(dc.get(), x, y) != ground;
    return ink;
}

class Windows : public FieldCase {
protected:
    std::unique_ptr<platform::Form> shown(const platform::FormLayout& layout,
                                          engine::RectPixels place = {200, 200, 110, 109})
    {
        std::unique_ptr<platform::Form> form = stage->forms().make(layout, {.clicks = &events});
        form->showPopup(place, stage->field(0).window());
        stage->settle();
        return form;
    }
    [[nodiscard]] HWND edit() { return windowOf(box().window()); }
    [[nodiscard]] HWND surface() { return windowOf(stage->field(0).window()); }

    Clicks events;
};

// What a locale writes it reads, whatever its forms are.
BOOL CALLBACK readBack(wchar_t* name, DWORD, LPARAM count)
{
    const engine::Locale locale = win32::systemLocale(name);
    if (locale.shortDate.empty() || locale.longTime.empty())
        return TRUE;
    const bool halfUnnamed = locale.longTime.find(u"AM/PM") != std::u16string::npos && locale.am == locale.pm;
    for (const double serial : {37653.0, 37653.5, 0.25, 0.75, 37653.54450231481, 46021.000011574074, 0.0}) {
        const std::u16string text = engine::dateToText({serial}, locale);
        const auto read = engine::tryParseDate(text, locale, {46021.0});
        if (halfUnnamed)
            continue;
        EXPECT_EQ(read ? engine::momentOf(*read) : std::nullopt, engine::momentOf({serial}))
            << std::string(locale.name.begin(), locale.name.end()) << " " << serial << " "
            << std::string(text.begin(), text.end());
    }
    ++*reinterpret_cast<int*>(count);
    return TRUE;
}

TEST(Locales, ReadTheDatesThatTheyWrite)
{
    int count = 0;
    EnumSystemLocalesEx(readBack, LOCALE_WINDOWS, reinterpret_cast<LPARAM>(&count), nullptr);
    EXPECT_GT(count, 100);
}

TEST(Locales, NameTheDaysFromSunday)
{
    const engine::Locale read = win32::systemLocale(L"en-US"), known = engine::enUs();
    EXPECT_EQ(read.days, known.days);
    EXPECT_EQ(read.shortDays, known.shortDays);
    EXPECT_EQ(read.months, known.months);
    EXPECT_EQ(read.shortMonths, known.shortMonths);
}

TEST_F(Windows, ASettingThatIsNoTextIsNone)
{
    stage->settings().save(u"Vela contrato", u"Janela", u"largura", u"texto");
    const DWORD number = 0x00300031; // the units of "10"
    RegSetKeyValueW(HKEY_CURRENT_USER, L"Software\\VB and VBA Program Settings\\Vela contrato\\Janela", L"largura",
                    REG_DWORD, &number, sizeof number);
    EXPECT_EQ(stage->settings().get(u"Vela contrato", u"Janela", u"largura", u"nada"), u"nada");
    EXPECT_TRUE(stage->settings().all(u"Vela contrato", u"Janela").empty());
    stage->settings().remove(u"Vela contrato", u"Janela", u"largura");
}

TEST_F(Windows, TheBoxIsAnEditThatOthersMayWriteTo)
{
    std::array<wchar_t, 16> name{};
    GetClassNameW(edit(), name.data(), static_cast<int>(name.size()));
    EXPECT_STREQ(name.data(), L"Edit");
    SetWindowTextW(edit(), L"de fora");
    SetWindowTextW(edit(), L"de fora");
    EXPECT_EQ(text(), u"de fora");
    SendMessageW(edit(), EM_SETSEL, 0, 2);
    SendMessageW(edit(), EM_REPLACESEL, TRUE, reinterpret_cast<LPARAM>(L"De"));
    EXPECT_EQ(text(), u"De fora");
    EXPECT_EQ(log, (Log{"A changed", "A changed"}));
    EXPECT_FALSE(first.lastEdit.typed);
}

// Control and Delete take the rest of the line, which is an edit of the EDIT's own.
TEST_F(Windows, AnEditOfTheWindowsOwnIsReportedWhole)
{
    stage->focus(0);
    box().putText(u"um dois");
    box().select({3, 0});
    std::array<BYTE, 256> keys{};
    keys[VK_CONTROL] = 0x80;
    SetKeyboardState(keys.data());
    stage->press(VK_DELETE);
    keys[VK_CONTROL] = 0;
    SetKeyboardState(keys.data());
    EXPECT_EQ(text(), u"um ");
    EXPECT_EQ(first.lastEdit.at, 3);
    EXPECT_EQ(first.removed, u"dois");
    EXPECT_TRUE(first.lastEdit.typed);
}

TEST_F(Windows, ALockedBoxIsReadOnlyInItsOwnColours)
{
    platform::EditTraits traits;
    traits.locked = true;
    box().putTraits(traits);
    box().putColours({engine::Colour{0x000000FF}, engine::Colour{0x00C0FFC0}});
    EXPECT_TRUE(GetWindowLongPtrW(edit(), GWL_STYLE) & ES_READONLY);
    const win32::WindowDc dc(edit());
    const auto brush = reinterpret_cast<HBRUSH>(SendMessageW(
        surface(), WM_CTLCOLORSTATIC, reinterpret_cast<WPARAM>(dc.get()), reinterpret_cast<LPARAM>(edit())));
    EXPECT_TRUE(brush);
    EXPECT_EQ(GetTextColor(dc.get()), 0x000000FFU);
    EXPECT_EQ(GetBkColor(dc.get()), 0x00C0FFC0U);
}

TEST_F(Windows, AlignmentAndPasswordAreRealStyles)
{
    platform::EditTraits traits;
    traits.alignment = platform::TextAlignment::right;
    traits.passwordChar = u'#';
    stage->focus(0);
    log.clear();
    box().putTraits(traits);
    EXPECT_TRUE(GetWindowLongPtrW(edit(), GWL_STYLE) & ES_RIGHT);
    EXPECT_EQ(SendMessageW(edit(), EM_GETPASSWORDCHAR, 0, 0), '#');
    EXPECT_EQ(GetFocus(), edit());
    EXPECT_TRUE(log.empty());
}

TEST_F(Windows, StateOutlivesTheWindows)
{
    auto& field = static_cast<win32::ControlSurface&>(stage->field(0));
    box().putText(u"fica");
    box().select({1, 2});
    const HWND form = GetParent(field.handle());
    DestroyWindow(field.handle()); // as a host does with its form
    EXPECT_FALSE(box().window());
    EXPECT_EQ(text(), u"fica");
    box().insert(u"OR");
    EXPECT_EQ(text(), u"fORa");
    field.create(form, {8, 8, 129, 29});
    EXPECT_EQ(text(), u"fORa");
    EXPECT_EQ(box().selection(), (platform::Selection{3, 0}));
}

TEST_F(Windows, TheTooltipsRecordReachesTheControl)
{
    win32::TooltipWindow tip;
    ASSERT_TRUE(tip.create(box().window()));
    tip.addTool(u"Preço é 10");
    tip.setTextColour(engine::Colour{0x000000FF});
    tip.setBackColour(engine::Colour{0x80000005});
    tip.setDelay(2, 5000);
    tip.setDelay(3, 500);
    EXPECT_EQ(SendMessageA(tip.handle(), TTM_GETTOOLCOUNT, 0, 0), 1);
    EXPECT_EQ(SendMessageA(tip.handle(), TTM_GETTIPTEXTCOLOR, 0, 0), 0x000000FF);
    EXPECT_EQ(static_cast<DWORD>(SendMessageA(tip.handle(), TTM_GETTIPBKCOLOR, 0, 0)), GetSysColor(COLOR_WINDOW));
    EXPECT_EQ(SendMessageA(tip.handle(), TTM_GETDELAYTIME, TTDT_AUTOPOP, 0), 5000);
    EXPECT_EQ(SendMessageA(tip.handle(), TTM_GETDELAYTIME, TTDT_INITIAL, 0), 500);
    std::array<char, 64> shown{};
    TTTOOLINFOA tool{};
    tool.cbSize = offsetof(TTTOOLINFOA, lpReserved);
    tool.hwnd = edit();
    tool.uId = reinterpret_cast<UINT_PTR>(edit());
    tool.uFlags = TTF_IDISHWND;
    tool.lpszText = shown.data();
    SendMessageA(tip.handle(), TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&tool));
    EXPECT_STREQ(shown.data(), "Pre\xE7o \xE9 10");
    const HWND window = tip.handle();
    tip.destroy();
    EXPECT_FALSE(IsWindow(window));
}

TEST_F(Windows, ATipGoesWhenItsTimeIsUp)
{
    win32::TooltipWindow tip;
    ASSERT_TRUE(tip.create(box().window()));
    tip.addTool(u"Informe a data");
    tip.setDelay(2, 200);
    tip.trackPosition(100 + 100 * 65536);
    for (int round = 0; round < 2; ++round) {
        tip.trackActivate(true);
        EXPECT_TRUE(IsWindowVisible(tip.handle()));
        const DWORD start = GetTickCount();
        while (IsWindowVisible(tip.handle()) && GetTickCount() - start < 10000)
            stage->settle();
        EXPECT_FALSE(IsWindowVisible(tip.handle()));
        EXPECT_GE(GetTickCount() - start, 150U);
    }
}

// At 96 dots per inch: two labels of 40 pixels each, 20 apart; at 8 points the longer text would need twice that.
TEST_F(Windows, LabelsThatFitAreWrittenSmallerAndNeverTouch)
{
    static constexpr auto row = [](int index, std::u16string_view caption) {
        return platform::WidgetRow{.kind = platform::WidgetKind::label,
                                   .name = u"lbl",
                                   .index = index,
                                   .caption = caption,
                                   .place = {300 + index * 900, 300, 600, 300},
                                   .alignment = platform::TextAlignment::right,
                                   .fits = true};
    };
    static constexpr std::array<platform::WidgetRow, 2> rows{row(0, u"0,333333333333"), row(1, u"1E+15")};
    static constexpr platform::FormLayout layout{u"frm", u"", 2400, 900, rows};
    const auto form = shown(layout, {200, 200, 160, 60});
    const HWND window = windowOf(form->window());
    EXPECT_GT(inkIn(window, {20, 20, 60, 40}), 20);
    EXPECT_GT(inkIn(window, {80, 20, 120, 40}), 10);
    EXPECT_EQ(inkIn(window, {2, 20, 20, 40}), 0) << "left of the first";
    EXPECT_EQ(inkIn(window, {60, 20, 80, 40}), 0) << "between them";
    form->putText({0}, u"1"); // room again
    stage->settle();
    EXPECT_GT(inkIn(window, {80, 20, 120, 40}), 20) << "as large as the table says";
}

TEST_F(Windows, AButtonTakesEachOfSeveralQuickClicks)
{
    static constexpr std::array<platform::WidgetRow, 2> rows{
        {{.kind = platform::WidgetKind::button, .name = u"a", .caption = u"8", .place = {300, 300, 600, 300}},
         {.kind = platform::WidgetKind::checkBox, .name = u"b", .caption = u"Sim", .place = {1200, 300, 900, 300}}}};
    static constexpr platform::FormLayout layout{u"frm", u"", 2400, 900, rows};
    for (const int widget : {0, 1}) {
        events = {};
        const auto form = shown(layout, {200, 200, 160, 60});
        const HWND item = GetDlgItem(windowOf(form->window()), 100 + widget);
        for (const UINT down : {WM_LBUTTONDOWN, WM_LBUTTONDBLCLK, WM_LBUTTONDOWN, WM_LBUTTONDBLCLK}) {
            SendMessageW(item, down, MK_LBUTTON, MAKELPARAM(8, 8));
            SendMessageW(item, WM_LBUTTONUP, 0, MAKELPARAM(8, 8));
        }
        EXPECT_EQ(events.count, 4) << widget;
        EXPECT_FALSE(form->checked({1}));
    }
}

TEST_F(Windows, ATooltipGoneWithItsParentIsForgotten)
{
    const HWND parent = CreateWindowExW(0, L"STATIC", L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
    win32::TooltipWindow tip;
    ASSERT_TRUE(tip.create({reinterpret_cast<std::uintptr_t>(parent)}));
    DestroyWindow(parent);
    EXPECT_EQ(tip.handle(), nullptr) << "the next window may have the same number";
    EXPECT_FALSE(tip.exists());
}

// One that puts its own procedure in front of a form's box, and takes it out again when the form has gone on.
WNDPROC procedureBefore = nullptr;
int messagesHeard = 0;
LRESULT CALLBACK hearFirst(HWND window, UINT message, WPARAM first, LPARAM second)
{
    ++messagesHeard;
    return CallWindowProcW(procedureBefore, window, message, first, second);
}

TEST_F(Windows, AProcedurePutInFrontStaysToTheEnd)
{
    static constexpr std::array<platform::WidgetRow, 1> rows{
        {{.kind = platform::WidgetKind::textBox, .name = u"a", .place = {0, 0, 600, 300}}}};
    static constexpr platform::FormLayout layout{u"frm", u"", 1650, 1635, rows};
    const auto form = shown(layout);
    const HWND box = FindWindowExW(windowOf(form->window()), nullptr, L"Edit", nullptr);
    ASSERT_NE(box, nullptr);
    procedureBefore =
        reinterpret_cast<WNDPROC>(SetWindowLongPtrW(box, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&hearFirst)));
    messagesHeard = 0;
    form->close();
    EXPECT_FALSE(IsWindow(box));
    EXPECT_GE(messagesHeard, 2) << "WM_DESTROY and WM_NCDESTROY at least";
}

TEST_F(Windows, AReaderHearsThePaintedLabels)
{
    static constexpr std::array<platform::WidgetRow, 2> rows{
        {{.kind = platform::WidgetKind::label, .name = u"a", .caption = u"&Nome", .place = {0, 0, 600, 300}},
         {.kind = platform::WidgetKind::label, .name = u"b", .caption = u"31", .place = {0, 600, 600, 300}}}};
    static constexpr platform::FormLayout layout{u"frm", u"", 1650, 1635, rows};
    const auto form = stage->forms().make(layout, {.clicks = &events});
    platform::WidgetLook look = form->look({1});
    look.spokenName = u"31 de dezembro de 2024, selecionado";
    form->putLook({1}, look);
    form->showPopup({200, 200, 110, 109}, stage->field(0).window());

    CoInitialize(nullptr);
    {
        IAccessible* const reader = readerOf(windowOf(form->window()));
        ASSERT_TRUE(reader);
        const auto nameOf = [reader](LONG child) { return heardOf(*reader, child); };
        EXPECT_EQ(nameOf(1), L"Nome");
        EXPECT_EQ(nameOf(2), L"31 de dezembro de 2024, selecionado");
        VARIANT day{};
        day.vt = VT_I4;
        day.lVal = 2;
        EXPECT_EQ(reader->accDoDefaultAction(day), S_OK);
        EXPECT_EQ(events.last, platform::WidgetId{1});
        form->close();
        EXPECT_EQ(nameOf(2), L"");
        reader->Release();
    }
    CoUninitialize();
}

TEST_F(Windows, ACaptionThatIsTooWideIsWrittenSmaller)
{
    static constexpr std::array<platform::WidgetRow, 2> rows{{{.kind = platform::WidgetKind::label,
                                                               .name = u"a",
                                                               .caption = u"Decimal de Exibição",
                                                               .place = {60, 60, 900, 225}},
                                                              {.kind = platform::WidgetKind::checkBox,
                                                               .name = u"b",
                                                               .caption = u"Retornar Somente os Números",
                                                               .place = {60, 400, 1500, 255}}}};
    static constexpr platform::FormLayout layout{u"frm", u"", 1650, 1635, rows};
    const auto form = shown(layout);
    const HWND window = windowOf(form->window());
    EXPECT_GT(inkIn(window, {44, 4, 64, 19}), 0);
    EXPECT_EQ(inkIn(window, {64, 4, 108, 19}), 0);
    const HWND box = GetDlgItem(window, 101);
    EXPECT_GT(inkIn(box, {70, 0, 97, 17}), 0);
    const int strip = inkIn(box, {97, 0, 100, 17});
    EXPECT_TRUE(strip == 0 || strip == 3 * 17) << "cut by its window: not of one colour";
}

TEST_F(Windows, AReaderHearsTheNamesOfBoxesAndLists)
{
    using platform::WidgetKind;
    static constexpr std::array<platform::WidgetRow, 4> rows{
        {{.kind = WidgetKind::textBox, .name = u"a", .place = {0, 0, 600, 300}},
         {.kind = WidgetKind::comboBox, .name = u"b", .place = {0, 400, 600, 300}},
         {.kind = WidgetKind::dropDownList, .name = u"c", .place = {0, 800, 600, 300}},
         {.kind = WidgetKind::listBox, .name = u"d", .place = {700, 0, 600, 900}}}};
    static constexpr platform::FormLayout layout{u"frm", u"", 1650, 1635, rows};
    CoInitialize(nullptr);
    const auto form = stage->forms().make(layout, {.clicks = &events});
    for (int i = 0; i < 4; ++i) {
        platform::WidgetLook look = form->look({i});
        look.spokenName = u"Nome " + std::u16string(1, static_cast<char16_t>(u'0' + i));
        form->putLook({i}, look);
    }
    form->showPopup({200, 200, 110, 109}, stage->field(0).window());
    for (int i = 0; i < 4; ++i) {
        const HWND window = GetDlgItem(windowOf(form->window()), 100 + i);
        for (const HWND asked : {window, GetWindow(window, GW_CHILD)}) { // a combo's focus is in the box inside it
            if (!asked)
                continue;
            IAccessible* const reader = readerOf(asked);
            ASSERT_TRUE(reader);
            EXPECT_EQ(heardOf(*reader), L"Nome " + std::to_wstring(i));
            reader->Release();
        }
    }
    form->close();
    CoUninitialize();
}

} // namespace
} // namespace vela::contract
