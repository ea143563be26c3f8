// The pop-ups as a person uses them on a field of the library: clicks, keys, other windows, and forms that go.
#include "person.h"

#include "popups/calculator_layout.h"
#include "popups/calendar_layout.h"

#include <gtest/gtest.h>

namespace vela::test {

namespace {

constexpr std::int32_t wrongColour = 0x000000C8;

void asDate(const Site& site)
{
    makeDate(site, u"__/__/____");
    site.automation().put(u"ShowButtonCalendario", truth(true));
    site.automation().put(u"Error_ForeColor", number(wrongColour));
}

void asNumber(const Site& site)
{
    const Automation field = site.automation();
    field.put(u"TextType", number(1));
    field.put(u"SimbolDecExib", number(2));
    field.put(u"QtdCasasDec", number(2));
    field.put(u"ShowButtonCalculadora", truth(true));
}

// A form with one field that has the focus and a neighbour.
class Desk {
public:
    explicit Desk(void (*kind)(const Site&)) : site(form.addActive()), neighbour(form.addActive())
    {
        kind(site);
        form.focus(site);
        settle(form);
        site.log.clear();
    }

    // The pop-up's window once it is up and active.
    HWND popup()
    {
        EXPECT_TRUE(until(form, [&] { return GetActiveWindow() && GetActiveWindow() != form.window(); }));
        settle(form);
        return GetActiveWindow();
    }
    HWND openByButton()
    {
        clickAt(form, buttonOf(site), middleOf(buttonOf(site)));
        return popup();
    }
    HWND openByF2()
    {
        form.press(VK_F2);
        return popup();
    }
    void expectClosed(HWND window)
    {
        EXPECT_TRUE(until(form, [&] { return !IsWindow(window) || !IsWindowVisible(window); }));
    }
    void expectBackInTheField()
    {
        EXPECT_TRUE(until(form, [&] { return GetFocus() == site.edit(); }));
        settle(form);
        EXPECT_EQ(site.count("OnFocus 0"), 0) << "never left";
    }

    Form form;
    Site& site;
    Site& neighbour;
};

POINT dayAt(HWND calendar, int cell)
{
    const RECT client = clientOf(calendar);
    const auto& row =
        popups::calendarPopupLayout().rows[static_cast<std::size_t>(popups::calendar_widget::day(cell).value)];
    return {(row.place.left + row.place.width / 2) * client.right / popups::calendarWidth,
            (row.place.top + row.place.height / 2) * client.bottom / popups::calendarHeight};
}

TEST(Popup, AClickOnTheButtonOpensTheCalendarAndAClickOnADayWritesIt)
{
    const AnsweredBoxes boxes;
    const LeakCheck leaks;
    Desk desk(asDate);
    desk.site.automation().put(u"Text", text(u"15/03/2024"));
    desk.site.automation().put(u"ErrorAlert", truth(true));
    for (int round = 0; round < 2; ++round) {
        const HWND calendar = desk.openByButton();
        ASSERT_NE(calendar, desk.form.window());
        RECT place{};
        RECT field{};
        GetWindowRect(calendar, &place);
        GetWindowRect(desk.site.window(), &field);
        EXPECT_EQ(place.left, field.left);
        EXPECT_EQ(place.top, field.bottom);
        EXPECT_EQ(place.right - place.left, 184);
        EXPECT_EQ(place.bottom - place.top, 167);
        desk.site.log.clear();
        clickAt(desk.form, calendar, dayAt(calendar, 41)); // the last cell: after the month's end
        desk.expectClosed(calendar);
        desk.expectBackInTheField();
        EXPECT_EQ(desk.site.count("event 1"), 1);
        EXPECT_EQ(desk.site.automation().textOf(u"Text"), round == 0 ? u"06/04/2024" : u"11/05/2024");
    }
    EXPECT_TRUE(AnsweredBoxes::texts().empty());
}

// A wrong entry: neither checked nor marked while its own calendar is up.
TEST(Popup, OpeningIsNoLeaving)
{
    const LeakCheck leaks;
    Desk desk(asDate);
    desk.form.type(u"1");
    const SeenColours entered = coloursOf(desk.site);
    const HWND calendar = desk.openByButton();
    EXPECT_EQ(coloursOf(desk.site), entered);
    EXPECT_EQ(desk.site.count("OnFocus 0"), 0);
    desk.form.press(VK_ESCAPE);
    desk.expectClosed(calendar);
    desk.expectBackInTheField();
    EXPECT_EQ(shownBy(desk.site.edit()), u"1_/__/____");
    EXPECT_EQ(coloursOf(desk.site), entered);
}

TEST(Popup, EscWritesNothing)
{
    for (const auto kind : {asDate, asNumber}) {
        const LeakCheck leaks;
        Desk desk(kind);
        desk.form.type(u"3");
        const std::u16string shown = shownBy(desk.site.edit());
        const HWND popup = desk.openByButton();
        desk.form.type(u"4");
        desk.form.press(VK_ESCAPE);
        desk.expectClosed(popup);
        desk.expectBackInTheField();
        EXPECT_EQ(shownBy(desk.site.edit()), shown);
    }
}

TEST(Popup, AnotherWindowInFrontClosesAndLeaves)
{
    for (const auto kind : {asDate, asNumber}) {
        const LeakCheck leaks;
        Desk desk(kind);
        const OtherWindow other;
        const HWND popup = desk.openByButton();
        SetForegroundWindow(other.window());
        desk.expectClosed(popup);
        EXPECT_TRUE(until(desk.form, [&] { return desk.site.count("OnFocus 0") == 1; })) << "left now";
        settle(desk.form);
        EXPECT_EQ(GetActiveWindow(), other.window()) << "and nothing comes back";
        EXPECT_EQ(desk.site.count("OnFocus 0"), 1);
    }
}

// A click elsewhere on the form: the pop-up goes, the field is left, the neighbour has the focus.
TEST(Popup, AClickOnTheNeighbourClosesAndLeaves)
{
    for (const auto kind : {asDate, asNumber}) {
        const LeakCheck leaks;
        Desk desk(kind);
        const HWND popup = desk.openByButton();
        clickAt(desk.form, desk.neighbour.edit(), {195, 8}); // the pop-up covers the rest
        desk.expectClosed(popup);
        EXPECT_TRUE(until(desk.form, [&] { return GetFocus() == desk.neighbour.edit(); }));
        settle(desk.form);
        EXPECT_EQ(desk.site.count("OnFocus 0"), 1);
        EXPECT_EQ(desk.neighbour.count("OnFocus 1"), 1);
        EXPECT_EQ(desk.neighbour.count("OnFocus 0"), 0);
    }
}

TEST(Popup, F2CalculatesAndWrites)
{
    const LeakCheck leaks;
    Desk desk(asNumber);
    desk.form.type(u"12");
    const HWND calculator = desk.openByF2();
    ASSERT_NE(calculator, desk.form.window());
    desk.form.type(u"0+7=");
    desk.form.press(VK_F2);
    desk.expectClosed(calculator);
    desk.expectBackInTheField();
    EXPECT_EQ(desk.site.automation().textOf(u"Text"), u"127");
}

TEST(Popup, TheCalculatorsKeysAreClicked)
{
    const LeakCheck leaks;
    Desk desk(asNumber);
    desk.form.type(u"1");
    const HWND calculator = desk.openByButton();
    namespace widget = popups::calculator_widget;
    for (const platform::WidgetId id : {widget::number(4), widget::operation(1), widget::number(2), widget::equals}) {
        const HWND key = GetDlgItem(calculator, 100 + id.value);
        ASSERT_NE(key, nullptr);
        clickAt(desk.form, key, middleOf(key));
    }
    desk.form.press(VK_F2);
    desk.expectClosed(calculator);
    desk.expectBackInTheField();
    EXPECT_EQ(desk.site.automation().textOf(u"Text"), u"16");
}

TEST(Popup, OneIsOpenForTheFieldThatAskedLast)
{
    const LeakCheck leaks;
    Desk desk(asDate);
    asDate(desk.neighbour);
    const HWND first = desk.openByButton();
    clickAt(desk.form, buttonOf(desk.neighbour), middleOf(buttonOf(desk.neighbour)));
    const HWND second = desk.popup();
    if (second != first)
        desk.expectClosed(first);
    clickAt(desk.form, second, dayAt(second, 20));
    desk.expectClosed(second);
    EXPECT_EQ(shownBy(desk.site.edit()), u"__/__/____");
    EXPECT_NE(shownBy(desk.neighbour.edit()), u"__/__/____");
    EXPECT_TRUE(until(desk.form, [&] { return GetFocus() == desk.neighbour.edit(); }));
}

struct End {
    const char* what;
    void (*act)(Desk&);
};
const End ends[] = {
    {"the field is closed", [](Desk& desk) { desk.site.close(); }},
    {"the field loses its window", [](Desk& desk) { desk.site.as<IOleInPlaceObject>()->InPlaceDeactivate(); }},
    {"the form is destroyed", [](Desk& desk) { desk.form.destroyWindow(); }},
    {"the type changes",
     [](Desk& desk) {
         desk.site.automation().put(u"TextType", number(0));
         desk.site.close();
     }},
};

TEST(Popup, GoesWithItsFieldAndItsForm)
{
    for (const End& end : ends)
        for (const auto kind : {asDate, asNumber}) {
            SCOPED_TRACE(end.what);
            const AnsweredBoxes boxes;
            const LeakCheck leaks;
            Desk desk(kind);
            const HWND popup = desk.openByButton();
            end.act(desk);
            desk.expectClosed(popup);
            settle(desk.form);
            EXPECT_TRUE(AnsweredBoxes::texts().empty());
        }
}

// The host destroys everything inside the event of the text that a day writes.
TEST(Popup, TheHostMayDestroyInsideTheWrite)
{
    for (const End& end : ends) {
        SCOPED_TRACE(end.what);
        const AnsweredBoxes boxes;
        const LeakCheck leaks;
        Desk desk(asDate);
        const HWND calendar = desk.openByButton();
        bool done = false;
        desk.site.onEvent = [&](DISPID id, DISPPARAMS&) {
            if (id == 1 && !std::exchange(done, true))
                end.act(desk);
        };
        clickAt(desk.form, calendar, dayAt(calendar, 20));
        desk.expectClosed(calendar);
        settle(desk.form);
        EXPECT_TRUE(done);
    }
}

} // namespace

} // namespace vela::test
