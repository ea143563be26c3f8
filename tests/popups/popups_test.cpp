// The pop-ups where transcripts do not reach: owners that go, fail or open another one, keys of the calendar, colours;
// and the calendar that stands alone.
#include "tests/popups/scripted_owner.h"

#include "platform/headless/property_bag.h"
#include "popups/c_calendar.h"
#include "popups/calculator_layout.h"
#include "popups/calendar_layout.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"

#include <gtest/gtest.h>

namespace vela::popups {
namespace {

using test::Recorder;
using Lines = std::vector<std::string>;

class PopupsTest : public testing::Test {
protected:
    PopupsTest() { machine.clock.freeze(engine::makeDate({2024, 3, 15}, {10, 0, 0})); }

    headless::WidgetForm& calendarForm() { return *machine.forms.find(u"CalendarioSDI"); }
    headless::WidgetForm& calculatorForm() { return *machine.forms.find(u"frmCalculadora"); }
    void openCalculatorWith(std::u16string_view text)
    {
        owner.text = text;
        popups.openCalculator(owner);
    }

    Recorder recorder;
    headless::Machine machine{recorder};
    ScriptedOwner owner;
    Popups popups{machine.environment, machine.forms};
};

// What a form of the console never is: without a window, and modal.
TEST_F(PopupsTest, AFailingOpeningTellsItsStep)
{
    const struct {
        void (*arrange)(ScriptedOwner&);
        std::string lines; // of the box, behind its heading
    } rows[] = {
        {[](ScriptedOwner& o) { o.failingAnchor = 5; },
         "Linha do Erro: 1\\r\\nN° do Erro: 5\\r\\nDescrição: ( Invalid procedure call or argument )"},
        {[](ScriptedOwner& o) { o.parent.modal = true; }, "Linha do Erro: 6\\r\\nN° do Erro: 401\\r\\nDescrição: ( "
                                                          "Can't show non-modal form when modal form is displayed )"},
    };
    for (const auto& row : rows) {
        ScriptedOwner failing;
        row.arrange(failing);
        recorder.lines.clear();
        popups.openCalendar(failing);
        popups.openCalculator(failing);
        EXPECT_EQ(recorder.lines,
                  (Lines{"msgbox information \"Vela\" \"Erro ao Exibir o Calendário !\\r\\n" + row.lines +
                             "\\r\\nInfo Técnicas: Não é possível exibir o calendário em forms modais\" -> ok",
                         "msgbox information \"Vela\" \"Erro ao Exibir a Calculadora !\\r\\n" + row.lines +
                             "\\r\\nInfo Técnicas: Não é possível exibir a calculadora em forms modais\" -> ok"}));
        EXPECT_EQ(popups.calendar(), nullptr);
        EXPECT_EQ(popups.calculator(), nullptr);
        EXPECT_EQ(failing.tipsHidden, 0);
    }
}

TEST_F(PopupsTest, AFailingPutReachesTheCallerAndLeavesThePopupAsTheClickLeftIt)
{
    owner.failingPut = 13;
    popups.openCalendar(owner);
    EXPECT_EQ(errorOf([&] { popups.calendar()->pickDay(0); }), 13);
    ASSERT_NE(popups.calendar(), nullptr);
    EXPECT_EQ(popups.calendar()->grid().selectedText(), u"25/02/2024");
    EXPECT_EQ(calendarForm().text(calendar_widget::months), u"Fevereiro");
    openCalculatorWith(u"12");
    EXPECT_EQ(errorOf([&] { popups.calculator()->pressF2(); }), 13);
    EXPECT_NE(popups.calculator(), nullptr);
}

TEST_F(PopupsTest, AnOwnerMayGoInsideItsPut)
{
    auto going = std::make_unique<ScriptedOwner>();
    ScriptedOwner* const raw = going.get();
    raw->duringPut = [&] { popups.forget(*raw); };
    popups.openCalendar(*raw);
    calendarForm().click(calendar_widget::day(10));
    EXPECT_EQ(popups.calendar(), nullptr);
    raw->text = u"12";
    popups.openCalculator(*raw);
    calculatorForm().type(calculator_widget::equals, headless::namedKey(headless::virtual_key::f2));
    EXPECT_EQ(popups.calculator(), nullptr);
    going.reset();
    popups.openCalendar(owner); // lets go of what has closed
    EXPECT_EQ(popups.calendar()->owner(), &owner);
}

TEST_F(PopupsTest, AnOwnerMayOpenTheOtherPopupInsideItsPut)
{
    owner.duringPut = [this] { popups.openCalculator(owner); };
    popups.openCalendar(owner);
    calendarForm().click(calendar_widget::day(10));
    EXPECT_EQ(popups.calendar(), nullptr);
    ASSERT_NE(popups.calculator(), nullptr);
    owner.duringPut = [this] {
        popups.openCalendar(owner);
        popups.openCalendar(owner);
        popups.closeAll();
        popups.openCalculator(owner);
    };
    popups.calculator()->pressF2();
    EXPECT_EQ(popups.calendar(), nullptr);
    ASSERT_NE(popups.calculator(), nullptr) << "a fresh one, not the one that F2 closed";
    EXPECT_EQ(popups.calculator()->display(), u"0.");
}

TEST_F(PopupsTest, ADivisionByZeroIsToldAndTheCalculatorOutlivesItsBox)
{
    openCalculatorWith(u"9");
    recorder.lines.clear();
    recorder.duringBox = [this] { // as a real box does: another window is active while it is up
        calculatorForm().becameInactive();
        calculatorForm().tick();
    };
    for (const char16_t key : std::u16string_view(u"/0="))
        popups.calculator()->typeCharacter(key);
    EXPECT_EQ(recorder.lines, Lines{"msgbox exclamation \"Tamber Calc\" \"Erro, Divisão por zero impossível\" -> ok"});
    ASSERT_NE(popups.calculator(), nullptr);
    EXPECT_EQ(popups.calculator()->display(), u"9");
    calculatorForm().becameInactive();
    EXPECT_EQ(popups.calculator(), nullptr);
}

TEST_F(PopupsTest, ConventionalKeysOfTheCalculator)
{
    openCalculatorWith(u"2");
    const auto press = [this](int code) {
        int shift = 0;
        calculatorForm().widgets().events().keyDown(calculatorForm().focused(), code, shift);
        return code;
    };
    popups.calculator()->typeCharacter(u'X');
    popups.calculator()->typeCharacter(u'3');
    EXPECT_EQ(press(110), 0);
    popups.calculator()->typeCharacter(u'5');
    EXPECT_EQ(popups.calculator()->display(), u"3.5");
    EXPECT_EQ(press(8), 0);
    EXPECT_EQ(press(8), 0);
    EXPECT_EQ(press(13), 0);
    EXPECT_EQ(popups.calculator()->display(), u"6");
    EXPECT_EQ(press(46), 0);
    EXPECT_EQ(popups.calculator()->display(), u"0.");
    EXPECT_EQ(press(65), 65);
    EXPECT_EQ(press(27), 0);
    EXPECT_EQ(popups.calculator(), nullptr);
    EXPECT_TRUE(owner.puts.empty());
}

TEST_F(PopupsTest, KeysOfTheCalendar)
{
    owner.text = u"31/01/2050";
    popups.openCalendar(owner);
    const auto press = [this](int code, int shift = 0) {
        calendarForm().widgets().events().keyDown(calendar_widget::months, code, shift);
        return code;
    };
    EXPECT_EQ(press(34), 0);
    EXPECT_EQ(popups.calendar()->grid().selectedText(), u"28/02/2050");
    EXPECT_EQ(press(34, 2), 0) << "2051 is not in the list: the key is used up";
    EXPECT_EQ(popups.calendar()->grid().selectedText(), u"28/02/2050");
    EXPECT_EQ(press(40, 4), 40) << "Alt+Down opens the list";
    EXPECT_EQ(press(39), 0);
    EXPECT_EQ(calendarForm().text(calendar_widget::months), u"Março");
    EXPECT_TRUE(owner.puts.empty());
    EXPECT_EQ(press(13), 0);
    EXPECT_EQ(owner.puts, (std::vector<engine::Value>{std::u16string(u"01/03/2050")}));
    EXPECT_EQ(popups.calendar(), nullptr);
    popups.openCalendar(owner);
    EXPECT_EQ(press(27), 0);
    EXPECT_EQ(popups.calendar(), nullptr);
    EXPECT_EQ(owner.puts.size(), 1U);
}

TEST_F(PopupsTest, ATickWithoutTheForegroundClosesAndGivesTheFocusBack)
{
    for (const bool mdiChild : {false, true}) {
        owner.parent.mdiChild = mdiChild;
        owner.focusTaken = 0;
        popups.openCalendar(owner);
        EXPECT_TRUE(popups.isOpenFor(owner));
        EXPECT_FALSE(popups.isOpenFor(ScriptedOwner()));
        machine.desktop.retire(calendarForm()); // no notice of it, as when another program comes forward
        machine.forms.tick();
        EXPECT_FALSE(popups.isOpenFor(owner));
        EXPECT_EQ(popups.calendar(), nullptr);
        EXPECT_EQ(owner.focusTaken, 1);
    }
}

TEST_F(PopupsTest, AFailingForegroundCheckIsLoggedUnlessTheSiteIsGone)
{
    for (const int number : {91, 398})
        for (const bool calendar : {true, false}) {
            owner.failingParent = 0;
            calendar ? popups.openCalendar(owner) : popups.openCalculator(owner);
            owner.failingParent = number;
            recorder.lines.clear();
            machine.forms.tick();
            const std::string logged = calendar ? "\"Procedimento: CJA\"" : "\"Procedimento: Calculadora\"";
            EXPECT_EQ(recorder.lines.front().ends_with("91 \"parent gone\" " + logged), number == 91);
            EXPECT_EQ(recorder.lines.back(), calendar ? "close calendar" : "close calculator");
        }
}

TEST_F(PopupsTest, HighlightsAreCountedToTheirLimit)
{
    popups.openCalendar(owner);
    recorder.lines.clear();
    for (int i = 0; i < 10000; ++i)
        popups.calendar()->IncluiDataRealcada(engine::Date{45000});
    EXPECT_TRUE(recorder.lines.empty());
    popups.calendar()->IncluiDataRealcada(engine::Date{45000});
    EXPECT_EQ(recorder.lines, Lines{"msgbox exclamation \"Vela.IDR\" \"Acesso Negado!\" -> ok"});
    EXPECT_EQ(popups.calendar()->grid().highlightCount(), 10000);
}

TEST_F(PopupsTest, TheColoursAreThoseOfTheProcess)
{
    CalendarColours colours;
    colours.selected = engine::Colour{0x00010203};
    colours.dayInactive = engine::Colour{0x00040506};
    popups.colours().put(colours);
    popups.openCalendar(owner);
    EXPECT_EQ(calendarForm().focused(), calendar_widget::months);
    EXPECT_EQ(calendarForm().look(calendar_widget::day(19)).spokenName, u"15 de março de 2024, selecionado");
    EXPECT_EQ(calendarForm().look(calendar_widget::frame).back, colours.selected);
    EXPECT_TRUE(calendarForm().look(calendar_widget::frame).round);
    EXPECT_EQ(calendarForm().look(calendar_widget::day(0)).fore, colours.dayInactive);
    EXPECT_EQ(calendarForm().widgets().backColour(), colours.form);
    const platform::WidgetRow& day =
        calendarPopupLayout().rows[static_cast<std::size_t>(calendar_widget::day(19).value)];
    EXPECT_EQ(calendarForm().look(calendar_widget::frame).left, day.place.left - 90);
    EXPECT_EQ(calendarForm().look(calendar_widget::frame).top, day.place.top - 30);
}

TEST_F(PopupsTest, AFailingLoadIsToldAndTheCalendarWorks)
{
    machine.faults.failAt(4, engine::Error{7, u"Out of memory"}); // past making and hiding: a colour
    popups.openCalendar(owner);
    ASSERT_FALSE(recorder.lines.empty());
    EXPECT_EQ(recorder.lines.front(), "msgbox information \"Vela.Load\" \"Out of memory\" -> ok");
    popups.calendar()->pickDay(19);
    EXPECT_EQ(owner.puts, (std::vector<engine::Value>{std::u16string(u"15/03/2024")}));
}

TEST_F(PopupsTest, TheCalculatorPassesOverARefusedValueAndTellsOtherFailures)
{
    for (const int number : {380, 5}) {
        recorder.lines.clear();
        machine.faults.failAt(2, engine::Error{number, u"refused"});
        popups.openCalculator(owner);
        EXPECT_EQ(recorder.lines.front() == "msgbox information \"Vela.Load\" \"5-refused\" -> ok", number == 5);
        EXPECT_EQ(recorder.lines.back(), "open calculator 100 221 110 109");
        popups.closeAll();
    }
}

TEST_F(PopupsTest, ACalendarOfItsOwnKeepsItsSelectedDate)
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
        recorder.lines.clear();
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
        calendar.putYearIndex(74);
        calendar.putMonthIndex(1);
        calendar.pickDay(4);
        EXPECT_EQ(calendar.selectedDate(), engine::makeDate({2024, 2, 1})) << row.name;
    }
}

TEST_F(PopupsTest, TheLimitOfACalendarOfItsOwnIsAThousand)
{
    const SharedCalendarColours colours;
    cCalendar calendar(machine.environment, machine.forms, colours);
    calendar.initNew();
    for (int i = 0; i < 1001; ++i)
        EXPECT_EQ(calendar.IncluiDataRealcada(engine::Empty{}), engine::Value(engine::Empty{}));
    EXPECT_EQ(recorder.lines,
              Lines{"msgbox exclamation \"Vela\" \"Não é possível inserir mais de 1000 datas!\" -> ok"});
}

} // namespace
} // namespace vela::popups
