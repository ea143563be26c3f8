// The free-standing calendar as a person and hosts use it: clicks, keys, windows that go, arguments by name, pictures.
#include "person.h"

#include "popups/calendar_layout.h"

#include <gtest/gtest.h>
#include <olectl.h>

#include <atomic>
#include <thread>

namespace vela::test {

namespace {

namespace widget = popups::calendar_widget;

constexpr RECT calendarPlace{200, 60, 384, 227};
constexpr POINT besideTheDays{3, 120};
constexpr double serialOf15March = 45366; // 15/03/2024, in cell 19 of its month

POINT middleOf(platform::WidgetId id) // 15 twips a pixel
{
    const engine::RectTwips& place = popups::calendarControlLayout().rows[static_cast<std::size_t>(id.value)].place;
    return {(place.left + place.width / 2) / 15, (place.top + place.height / 2) / 15};
}

// A field that has the focus and a calendar on 15 March 2024.
class Sheet {
    LeakCheck leaks_;

public:
    Sheet() : field(form.addActive()), calendar(form.add({}, L"Vela.cCalendar.1"))
    {
        EXPECT_EQ(calendar.activate(calendarPlace), S_OK);
        EXPECT_EQ(calendar.automation().call(u"IniciaCalendario", one(text(u"15/03/2024"))).result, S_OK);
        form.focus(field);
        settle(form);
        field.log.clear();
        calendar.log.clear();
    }

    [[nodiscard]] double date() const { return calendar.automation().get(u"DateInitial").value.get().date; }
    [[nodiscard]] bool calendarHasFocus() const { return IsChild(calendar.window(), GetFocus()) != FALSE; }
    void click(platform::WidgetId id) { clickAt(form, calendar.window(), middleOf(id)); }

    Form form;
    Site& field;
    Site& calendar;
};

// Until the field has it back, or the calendar is deactivated with it.
TEST(LiveCalendar, AClickAnywhereTakesTheFocusAndTellsOnce)
{
    for (const platform::WidgetId where : {widget::panel, widget::weekday(2), widget::day(20), widget::months}) {
        SCOPED_TRACE(where.value);
        Sheet sheet;
        sheet.click(where);
        EXPECT_TRUE(until(sheet.form, [&] { return sheet.calendarHasFocus(); }));
        if (where == widget::months)
            strike(sheet.form, VK_ESCAPE); // shuts the list
        sheet.click(widget::day(8));
        EXPECT_EQ(sheet.calendar.count("OnFocus 1"), 1);
        EXPECT_EQ(sheet.calendar.count("OnUIActivate"), 1);
        EXPECT_EQ(sheet.field.count("OnFocus 0"), 1);
        EXPECT_EQ(sheet.calendar.count("OnFocus 0"), 0);
        if (where == widget::panel)
            clickAt(sheet.form, sheet.field.edit(), {8, 8});
        else
            EXPECT_EQ(sheet.calendar.as<IOleInPlaceObject>()->InPlaceDeactivate(), S_OK);
        settle(sheet.form);
        EXPECT_EQ(sheet.calendar.count("OnUIDeactivate"), 1);
        sheet.calendar.close();
        EXPECT_EQ(sheet.calendar.count("OnFocus 0"), 1);
    }
}

TEST(LiveCalendar, AKeyThatMovesTheDayTellsAsAClickDoes)
{
    Sheet sheet;
    clickAt(sheet.form, sheet.calendar.window(), besideTheDays);
    const struct {
        int key;
        double date;
    } rows[] = {{VK_RIGHT, serialOf15March + 1}, {VK_DOWN, serialOf15March + 8}, {VK_NEXT, serialOf15March + 39}};
    for (const auto& row : rows) {
        sheet.calendar.log.clear();
        strike(sheet.form, row.key);
        EXPECT_EQ(sheet.date(), row.date) << row.key;
        EXPECT_EQ(sheet.calendar.count("changed 0"), 1) << row.key;
        EXPECT_EQ(sheet.calendar.count("event -600"), 1) << row.key;
    }
    sheet.calendar.automation().call(u"IniciaCalendario", one(text(u"31/12/2050")));
    sheet.calendar.log.clear();
    strike(sheet.form, VK_RIGHT);
    EXPECT_EQ(sheet.calendar.count("changed 0") + sheet.calendar.count("event -600"), 0) << "the list ends there";
}

TEST(LiveCalendar, AfterItsParentHasGoneItGetsAWindowInANewOne)
{
    Sheet sheet;
    for (int round = 0; round < 2; ++round) {
        const HWND parent = plainWindow(L"STATIC", {0, 0, 400, 300}, sheet.form.window());
        const HWND window = sheet.calendar.window();
        SetParent(window, parent); // as hosts with pages of their own do
        DestroyWindow(parent);
        EXPECT_FALSE(IsWindow(window));
        EXPECT_EQ(sheet.calendar.count("OnInPlaceDeactivate"), round + 1);
        EXPECT_EQ(sheet.calendar.window(), nullptr);
        ASSERT_EQ(sheet.calendar.activate(calendarPlace), S_OK);
        ASSERT_TRUE(IsWindowVisible(sheet.calendar.window()));
        sheet.click(widget::day(21));
        EXPECT_TRUE(sheet.calendarHasFocus());
        EXPECT_EQ(sheet.date(), serialOf15March + 2);
        sheet.calendar.automation().call(u"IniciaCalendario", one(text(u"15/03/2024")));
    }
}

TEST(LiveCalendar, ItsMethodsTakeTheirArgumentByName)
{
    const ComPtr<IUnknown> control = create(L"Vela.cCalendar.1");
    const auto calendar = query<IDispatch>(control.Get());
    const struct {
        const wchar_t *method, *argument;
        HRESULT result;
        DISPID ids[2];
    } names[] = {{L"Inicia", L"DATA", DISP_E_UNKNOWNNAME, {DISPID_UNKNOWN, DISPID_UNKNOWN}},
                 {L"IniciaCalendario", L"outro", DISP_E_UNKNOWNNAME, {1, DISPID_UNKNOWN}},
                 {L"IniciaCalendario", L"DATA", S_OK, {1, 0}}}; // the number of the parameter
    for (const auto& row : names) {
        LPOLESTR asked[] = {const_cast<LPOLESTR>(row.method), const_cast<LPOLESTR>(row.argument)};
        DISPID ids[2] = {};
        EXPECT_EQ(calendar->GetIDsOfNames(IID_NULL, asked, 2, LOCALE_USER_DEFAULT, ids), row.result);
        EXPECT_EQ(ids[0], row.ids[0]);
        EXPECT_EQ(ids[1], row.ids[1]);
    }

    Variant date = text(u"15/03/2024");
    const struct {
        DISPID name;
        HRESULT result;
    } rows[] = {{1, DISP_E_PARAMNOTFOUND}, {DISPID_UNKNOWN, DISP_E_PARAMNOTFOUND}, {0, S_OK}};
    for (const auto& row : rows) {
        DISPID name = row.name;
        DISPPARAMS given{&date.ref(), &name, 1, 1};
        EXPECT_EQ(
            calendar->Invoke(1, IID_NULL, LOCALE_USER_DEFAULT, DISPATCH_METHOD, &given, nullptr, nullptr, nullptr),
            row.result)
            << row.name;
    }
    EXPECT_EQ(Automation(control.Get()).get(u"DateInitial").value.get().date, serialOf15March);
}

// Each drawing, the picture included: another field of the process has set the colours meanwhile.
TEST(LiveCalendar, EachDrawingReadsEveryColour)
{
    Sheet sheet;
    const Automation field = sheet.field.automation();
    const std::pair<const char16_t*, COLORREF> colours[] = {{u"Calendar_FormBackcolor", 0x00112233},
                                                            {u"Calendar_BackColor", 0x00223344},
                                                            {u"Calendar_ColorWeekDay", 0x00334455}};
    std::vector<Variant> before;
    for (const auto& [property, colour] : colours) {
        before.push_back(field.get(property).value);
        field.put(property, number(static_cast<std::int32_t>(colour)));
    }
    sheet.click(widget::day(20));
    EXPECT_EQ(pixelOf(sheet.calendar.window(), {100, 1}), 0x00112233u);
    EXPECT_EQ(pixelOf(sheet.calendar.window(), besideTheDays), 0x00223344u);
    const RECT header{4, 32, 180, 47};
    EXPECT_GT(pixelsOf(sheet.calendar.window(), 0x00334455, header), 10);
    for (std::size_t i = 0; i < before.size(); ++i)
        field.put(colours[i].first, std::move(before[i]));
    sheet.click(widget::day(21));
    EXPECT_NE(pixelOf(sheet.calendar.window(), {100, 1}), 0x00112233u);
}

// One record for all apartments: what another thread has put is read here, and never half of it.
TEST(LiveCalendar, ItsColoursAreThoseOfEveryApartment)
{
    const LeakCheck leaks;
    const ComPtr<IUnknown> control = create();
    const Automation own(control.Get());
    const auto colour = [&] { return own.get(u"Calendar_Selected").value.get().lVal; };
    const LONG before = colour();
    std::atomic<bool> done{false};
    std::thread other([&] {
        CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
        {
            const ComPtr<IUnknown> its = create();
            for (int i = 0; i < 200; ++i)
                Automation(its.Get()).put(u"Calendar_Selected", number(i % 2 == 0 ? 0x00030201 : 0x00060504));
        }
        CoUninitialize();
        done = true;
    });
    while (!done) {
        const LONG read = colour();
        EXPECT_TRUE(read == 0x00030201 || read == 0x00060504 || read == before || read == 0x00C0E0FF) << read;
    }
    other.join();
    EXPECT_EQ(colour(), 0x00060504);
    own.put(u"Calendar_Selected", number(before));
}

} // namespace

} // namespace vela::test
