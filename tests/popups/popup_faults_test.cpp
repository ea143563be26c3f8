// Every operation of the platform fails once while the pop-ups are opened, used and closed; and the calendar control's
// persisted date.
#include "tests/popups/scripted_owner.h"

#include "platform/headless/property_bag.h"
#include "popups/c_calendar.h"
#include "popups/calendar_layout.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"

#include <gtest/gtest.h>

namespace vela::popups {
namespace {

void useCalendar(Popups& popups, Owner& owner)
{
    popups.openCalendar(owner);
    if (popups.calendar() != nullptr)
        popups.calendar()->putMonthIndex(11);
    if (popups.calendar() != nullptr)
        popups.calendar()->pickDay(40);
    popups.closeAll();
}

void useCalculator(Popups& popups, Owner& owner)
{
    popups.openCalculator(owner);
    for (const char16_t key : std::u16string_view(u"8/0=+1=%C9"))
        if (popups.calculator() != nullptr)
            popups.calculator()->typeCharacter(key);
    if (popups.calculator() != nullptr)
        popups.calculator()->pressF2();
    popups.closeAll();
}

// True when the run met the fault that was planned as the n-th operation.
bool sweepStep(long n, void (*use)(Popups&, Owner&))
{
    headless::Machine machine;
    machine.clock.freeze(engine::makeDate({2024, 3, 15}));
    ScriptedOwner owner;
    Popups popups(machine.environment, machine.forms);
    machine.faults.failAt(n, engine::Error{7, u"Out of memory"});
    (void)errorOf([&] { use(popups, owner); });
    const bool met = machine.faults.fired();
    machine.faults.disarm();
    popups.closeAll();
    EXPECT_EQ(popups.calendar(), nullptr) << n;
    EXPECT_EQ(popups.calculator(), nullptr) << n;
    owner.puts.clear();
    use(popups, owner); // the next use is as good as new
    EXPECT_EQ(owner.puts.size(), 1U) << n;
    return met;
}

TEST(PopupFaults, EachOperationMayFailOnce)
{
    for (const auto use : {&useCalendar, &useCalculator}) {
        long n = 1;
        while (sweepStep(n, use))
            ++n;
        EXPECT_GT(n, 20) << "the sweep met too few operations to mean anything";
    }
}

TEST(PopupFaults, AFailingLoadIsToldAndTheCalendarWorks)
{
    Recorder recorder;
    headless::Machine machine{recorder};
    machine.clock.freeze(engine::makeDate({2024, 3, 15}));
    ScriptedOwner owner;
    Popups popups(machine.environment, machine.forms);
    machine.faults.failAt(4, engine::Error{7, u"Out of memory"}); // past making and hiding: a colour
    popups.openCalendar(owner);
    ASSERT_FALSE(recorder.lines.empty());
    EXPECT_EQ(recorder.lines.front(), u"information|Vela.Load|Out of memory");
    popups.calendar()->pickDay(19);
    EXPECT_EQ(owner.puts, (std::vector<engine::Value>{std::u16string(u"15/03/2024")}));
}

TEST(PopupFaults, TheCalculatorPassesOverARefusedValueAndTellsOtherFailures)
{
    for (const int number : {380, 5}) {
        Recorder recorder;
        headless::Machine machine{recorder};
        ScriptedOwner owner;
        Popups popups(machine.environment, machine.forms);
        machine.faults.failAt(2, engine::Error{number, u"refused"});
        popups.openCalculator(owner);
        EXPECT_EQ(recorder.lines.front() == u"information|Vela.Load|5-refused", number == 5);
        EXPECT_EQ(recorder.lines.back(), u"open frmCalculadora 100 221 110 109");
    }
}

TEST(CCalendar, KeepsItsSelectedDate)
{
    const struct {
        const char* name;
        const char16_t* dateInitial;
        const char16_t* selected;
        std::size_t boxes;
    } rows[] = {
        {"kept", u"29/02/2024", u"29/02/2024", 0},
        {"none: today", u"", u"15/03/2024", 0},
        {"no date: told, and it stays usable", u"2024-02-29", u"2024-02-29", 1},
    };
    for (const auto& row : rows) {
        Recorder recorder;
        headless::Machine machine{recorder};
        machine.clock.freeze(engine::makeDate({2024, 3, 15}));
        const SharedCalendarColours colours;
        cCalendar calendar(machine.environment, machine.forms, colours);
        headless::PropertyBag bag;
        if (*row.dateInitial != 0)
            bag.put(u"DateInitial", std::u16string(row.dateInitial));
        calendar.load(bag);
        EXPECT_EQ(calendar.grid().selectedText(), row.selected) << row.name;
        EXPECT_EQ(recorder.lines.size(), row.boxes) << row.name;
        EXPECT_EQ(calendar.form().items(calendar_widget::years).count(), 101) << row.name;
        EXPECT_EQ(calendar.form().look(calendar_widget::weekday(0)).fore, engine::Colour{0x00800000}) << row.name;
        headless::PropertyBag saved;
        calendar.save(saved);
        ASSERT_EQ(saved.entries().size(), 1U);
        EXPECT_EQ(saved.entries()[0].second, engine::Value(std::u16string(row.selected))) << row.name;
        calendar.chooseYear(74);
        calendar.chooseMonth(1);
        calendar.clickDay(4);
        EXPECT_EQ(calendar.selectedDate(), engine::makeDate({2024, 2, 1})) << row.name;
    }
}

TEST(CCalendar, ItsLimitIsAThousand)
{
    Recorder recorder;
    headless::Machine machine{recorder};
    const SharedCalendarColours colours;
    cCalendar calendar(machine.environment, machine.forms, colours);
    calendar.initNew();
    for (int i = 0; i < 1001; ++i)
        EXPECT_EQ(calendar.IncluiDataRealcada(engine::Empty{}), engine::Value(engine::Empty{}));
    EXPECT_EQ(recorder.lines,
              std::vector<std::u16string>{u"exclamation|Vela|Não é possível inserir mais de 1000 datas!"});
}

} // namespace
} // namespace vela::popups
