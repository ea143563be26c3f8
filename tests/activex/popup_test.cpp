// The pop-ups as a person uses them on a field of the library: clicks, keys, other windows, and forms that go.
#include "person.h"

#include "popups/calculator_layout.h"
#include "popups/calendar_layout.h"

#include <gtest/gtest.h>

#include <set>

namespace vela::test {

namespace {

class PopupDesk : public Desk {
public:
    using Desk::Desk;

    HWND open() { return openPopup(form, site); }
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
    PopupDesk desk(asDate);
    desk.site.automation().set({{u"Text", u"15/03/2024"}, {u"ErrorAlert", true}});
    for (int round = 0; round < 2; ++round) {
        const HWND calendar = desk.open();
        ASSERT_NE(calendar, desk.form.window());
        const RECT place = placeIn(calendar, desk.site.window());
        EXPECT_EQ(place.left, 0);
        EXPECT_EQ(place.top, clientOf(desk.site.window()).bottom);
        EXPECT_EQ(place.right, 184);
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

// A wrong entry is neither checked nor marked while the field's own pop-up is up.
TEST(Popup, OpeningIsNoLeavingAndEscWritesNothing)
{
    for (const auto kind : {asDate, asNumber}) {
        PopupDesk desk(kind);
        desk.form.type(u"3");
        const std::u16string shown = shownBy(desk.site.edit());
        const SeenColours entered = coloursOf(desk.site);
        const HWND popup = desk.open();
        EXPECT_EQ(coloursOf(desk.site), entered);
        desk.form.type(u"4");
        desk.form.press(VK_ESCAPE);
        desk.expectClosed(popup);
        desk.expectBackInTheField();
        EXPECT_EQ(shownBy(desk.site.edit()), shown);
        EXPECT_EQ(coloursOf(desk.site), entered);
    }
}

TEST(Popup, KeysMoveTheDayAndEnterWritesIt)
{
    PopupDesk desk(asDate);
    desk.site.automation().put(u"Text", text(u"28/02/2024"));
    const HWND calendar = desk.open();
    SendMessageW(GetFocus(), CB_SHOWDROPDOWN, TRUE, 0);
    desk.form.press(VK_DOWN);
    desk.form.press(VK_RETURN); // closes the list of months, not the calendar, whose frame stands on 27 March now
    ASSERT_TRUE(IsWindowVisible(calendar));
    for (const WPARAM key : {VK_RIGHT, VK_NEXT, VK_RETURN})
        desk.form.press(key);
    desk.expectClosed(calendar);
    desk.expectBackInTheField();
    EXPECT_EQ(desk.site.automation().textOf(u"Text"), u"28/04/2024");
}

// Another window in front, or a click elsewhere on the form: the pop-up goes and the field is left, once.
TEST(Popup, WorkElsewhereClosesAndLeaves)
{
    for (const auto kind : {asDate, asNumber})
        for (const bool click : {false, true}) {
            PopupDesk desk(kind);
            const OtherWindow other;
            const HWND popup = desk.open();
            if (click)
                clickAt(desk.form, desk.neighbour.edit(), {188, 8}); // the pop-up covers the rest
            else
                SetForegroundWindow(other.window());
            desk.expectClosed(popup);
            EXPECT_TRUE(until(desk.form, [&] { return desk.site.count("OnFocus 0") == 1; })) << "left now";
            settle(desk.form);
            EXPECT_EQ(GetActiveWindow(), click ? desk.form.window() : other.window()) << "and nothing comes back";
            EXPECT_EQ(GetFocus() == desk.neighbour.edit(), click);
            EXPECT_EQ(desk.site.count("OnFocus 0"), 1);
            EXPECT_EQ(desk.neighbour.count("OnFocus 1"), click ? 1 : 0);
            EXPECT_EQ(desk.neighbour.count("OnFocus 0"), 0);
        }
}

TEST(Popup, KeysAndClicksCalculateAndF2Writes)
{
    PopupDesk desk(asNumber);
    desk.form.type(u"1");
    desk.form.press(VK_F2);
    const HWND calculator = popupOf(desk.form);
    ASSERT_NE(calculator, desk.form.window());
    namespace widget = popups::calculator_widget;
    const auto click = [&](platform::WidgetId id) {
        const HWND key = GetDlgItem(calculator, 100 + id.value);
        clickAt(desk.form, key, middleOf(key));
    };
    desk.form.type(u"2+");
    click(widget::number(4));
    click(widget::decimal);
    desk.form.type(u"7"); // goes nowhere: the point has the focus
    click(widget::number(5));
    desk.form.type(u"1"); // 12 + 4.51
    click(widget::equals);
    desk.form.press(VK_F2);
    desk.expectClosed(calculator);
    desk.expectBackInTheField();
    EXPECT_EQ(desk.site.automation().textOf(u"Text"), u"16,51");
    desk.form.press(VK_F2);
    const HWND again = popupOf(desk.form);
    desk.form.type(u"c");
    const HWND eight = GetDlgItem(again, 100 + widget::number(8).value);
    clickQuickly(desk.form, eight, middleOf(eight), 4); // each of them counts
    desk.form.press(VK_F2);
    desk.expectClosed(again);
    EXPECT_EQ(desk.site.automation().textOf(u"Text"), u"8888");
}

// A double click on the field's button: the second click leaves and shuts the pop-up, and opens it again.
TEST(Popup, ADoubleClickOnTheButtonLeavesItOpen)
{
    for (const auto kind : {asDate, asNumber}) {
        PopupDesk desk(kind);
        const HWND button = buttonOf(desk.site);
        clickQuickly(desk.form, button, middleOf(button), 2);
        settle(desk.form);
        EXPECT_NE(popupOf(desk.form), desk.form.window());
    }
}

TEST(Popup, OneIsOpenForTheFieldThatAskedLast)
{
    PopupDesk desk(asDate);
    asDate(desk.neighbour.automation());
    const HWND first = desk.open();
    const HWND second = openPopup(desk.form, desk.neighbour);
    if (second != first)
        desk.expectClosed(first);
    clickAt(desk.form, second, dayAt(second, 20));
    desk.expectClosed(second);
    EXPECT_EQ(shownBy(desk.site.edit()), u"__/__/____");
    EXPECT_NE(shownBy(desk.neighbour.edit()), u"__/__/____");
    EXPECT_TRUE(until(desk.form, [&] { return GetFocus() == desk.neighbour.edit(); }));
}

// From the moment a pop-up is seen none of its widgets is shown or moved, and it is painted before the loop goes on.
struct Flicker {
    HWND popup = nullptr;
    std::set<HWND> painted;
    std::vector<std::string> late;
} seen;

LRESULT CALLBACK watchPopup(int code, WPARAM first, LPARAM second)
{
    const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(second);
    const HWND top = GetAncestor(sent.hwnd, GA_ROOT);
    if (code == HC_ACTION && isOf(L"VelaForm", top)) {
        seen.popup = top;
        if (sent.message == WM_PAINT)
            seen.painted.insert(sent.hwnd);
        if (sent.hwnd != top && sent.message == WM_WINDOWPOSCHANGED && IsWindowVisible(top)) {
            const auto& place = *reinterpret_cast<const WINDOWPOS*>(sent.lParam);
            constexpr UINT still = SWP_NOMOVE | SWP_NOSIZE;
            if ((place.flags & still) != still || (place.flags & (SWP_SHOWWINDOW | SWP_HIDEWINDOW)))
                seen.late.push_back(std::to_string(GetDlgCtrlID(sent.hwnd)));
        }
    }
    return CallNextHookEx(nullptr, code, first, second);
}

TEST(Popup, NothingOfItIsSeenHalfPlaced)
{
    for (const auto kind : {asDate, asNumber}) {
        PopupDesk desk(kind);
        for (int round = 0; round < 2; ++round) { // anew, and again while it is open
            seen = {};
            {
                const Hook hook(WH_CALLWNDPROC, watchPopup);
                SendMessageW(buttonOf(desk.site), BM_CLICK, 0, 0);
            }
            ASSERT_TRUE(seen.popup);
            EXPECT_EQ(seen.late, std::vector<std::string>()) << "round " << round;
            EXPECT_TRUE(seen.painted.contains(seen.popup));
            for (HWND child = GetWindow(seen.popup, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
                EXPECT_TRUE(seen.painted.contains(child)) << GetDlgCtrlID(child);
        }
    }
}

struct End {
    const char* what;
    void (*act)(PopupDesk&);
};
const End ends[] = {
    {"the field is closed", [](PopupDesk& desk) { desk.site.close(); }},
    {"the field loses its window", [](PopupDesk& desk) { desk.site.as<IOleInPlaceObject>()->InPlaceDeactivate(); }},
    {"the form is destroyed", [](PopupDesk& desk) { desk.form.destroyWindow(); }},
    {"the type changes",
     [](PopupDesk& desk) {
         desk.site.automation().put(u"TextType", number(0));
         desk.site.close();
     }},
};

// While it is up, and inside the event of the text that a day writes.
TEST(Popup, GoesWithItsFieldAndItsForm)
{
    for (const End& end : ends)
        for (const bool inside : {false, true})
            for (const auto kind : {asDate, asNumber}) {
                SCOPED_TRACE(end.what);
                const AnsweredBoxes boxes;
                PopupDesk desk(kind);
                const HWND popup = desk.open();
                bool done = false;
                desk.site.onEvent = [&](DISPID id, DISPPARAMS&) {
                    if (id == 1 && !std::exchange(done, true))
                        end.act(desk);
                };
                if (!inside)
                    end.act(desk);
                else if (kind == asDate)
                    clickAt(desk.form, popup, dayAt(popup, 20));
                else
                    for (const WPARAM key : {WPARAM{'7'}, WPARAM{VK_F2}})
                        desk.form.press(key);
                desk.expectClosed(popup);
                settle(desk.form);
                EXPECT_TRUE(inside ? done : AnsweredBoxes::texts().empty());
            }
}

} // namespace

} // namespace vela::test
