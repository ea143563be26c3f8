// The pop-ups on the headless machine: opening, picking, closing themselves, owners that go or fail.
#include "tests/popups/scripted_owner.h"

#include "popups/calculator_layout.h"
#include "popups/calendar_layout.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vela::popups {
namespace {

using Lines = std::vector<std::u16string>;

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

TEST_F(PopupsTest, TheCalendarHangsUnderItsControlOnTheTextsDate)
{
    owner.text = u"29/02/2024 14:05";
    popups.openCalendar(owner);
    EXPECT_EQ(recorder.lines, Lines{u"open CalendarioSDI 100 221 184 167"});
    EXPECT_EQ(popups.calendar()->grid().selectedText(), u"29/02/2024");
    EXPECT_EQ(popups.calendar()->grid().frameCell(), 32);
    EXPECT_EQ(calendarForm().text(calendar_widget::months), u"Fevereiro");
    EXPECT_EQ(calendarForm().text(calendar_widget::years), u"2024");
    EXPECT_EQ(calendarForm().text(calendar_widget::day(32)), u"29");
    EXPECT_EQ(calendarForm().look(calendar_widget::day(32)).spokenName, u"29 de fevereiro de 2024, selecionado");
    EXPECT_EQ(calendarForm().focused(), calendar_widget::months);
}

TEST_F(PopupsTest, ATextThatIsNoDateOpensOnToday)
{
    for (const char16_t* text : {u"", u"__/__/____", u"31/02/2024", u"45000"}) {
        owner.text = text;
        popups.openCalendar(owner);
        EXPECT_EQ(popups.calendar()->grid().selectedText(), u"15/03/2024");
        popups.closeAll();
    }
}

std::u16string failure(const char16_t* heading, int step, int number, const char16_t* description, const char16_t* hint)
{
    return std::u16string(u"information|Vela|") + heading + u"\r\nLinha do Erro: " + decimal(step) +
           u"\r\nN° do Erro: " + decimal(number) + u"\r\nDescrição: ( " + description +
           u" )\r\nInfo Técnicas: Não é possível exibir " + hint + u" em forms modais";
}

TEST_F(PopupsTest, AFailingOpeningTellsItsStep)
{
    struct Row {
        const char* name;
        std::function<void(ScriptedOwner&)> arrange;
        int step;
        int number;
        const char16_t* description;
        bool calculatorToo;
    };
    const Row rows[] = {
        {"no window", [](ScriptedOwner& o) { o.failingAnchor = 5; }, 1, 5, u"Invalid procedure call or argument", true},
        {"no text", [](ScriptedOwner& o) { o.failingText = 91; }, 3, 91,
         u"Object variable or With block variable not set", true},
        {"year beyond the list", [](ScriptedOwner& o) { o.text = u"01/01/2051"; }, 4, 380, u"Invalid property value",
         false},
        {"year before the list", [](ScriptedOwner& o) { o.text = u"31/12/1949"; }, 4, 380, u"Invalid property value",
         false},
        {"only a time", [](ScriptedOwner& o) { o.text = u"14:05"; }, 4, 380, u"Invalid property value", false},
        {"modal form", [](ScriptedOwner& o) { o.parent.modal = true; }, 6, 401,
         u"Can't show non-modal form when modal form is displayed", true},
    };
    for (const Row& row : rows) {
        ScriptedOwner failing;
        row.arrange(failing);
        recorder.lines.clear();
        popups.openCalendar(failing);
        EXPECT_EQ(recorder.lines, Lines{failure(u"Erro ao Exibir o Calendário !", row.step, row.number, row.description,
                                                u"o calendário")})
            << row.name;
        EXPECT_EQ(popups.calendar(), nullptr) << row.name;
        if (!row.calculatorToo)
            continue;
        recorder.lines.clear();
        popups.openCalculator(failing);
        EXPECT_EQ(recorder.lines, Lines{failure(u"Erro ao Exibir a Calculadora !", row.step, row.number,
                                                row.description, u"a calculadora")})
            << row.name;
        EXPECT_EQ(popups.calculator(), nullptr) << row.name;
        EXPECT_EQ(failing.tipsHidden, 0) << row.name;
    }
}

TEST_F(PopupsTest, AnOpeningThatFailsTakesAwayWhatWasOpen)
{
    popups.openCalculator(owner);
    popups.openCalendar(owner);
    EXPECT_EQ(owner.tipsHidden, 2);
    recorder.lines.clear();
    owner.failingText = 91;
    popups.openCalendar(owner);
    ASSERT_EQ(recorder.lines.size(), 2U);
    EXPECT_EQ(recorder.lines[0], u"close CalendarioSDI");
    EXPECT_TRUE(recorder.lines[1].starts_with(u"information|Vela|Erro ao Exibir o Calend"));
    EXPECT_EQ(popups.calendar(), nullptr);
    EXPECT_EQ(owner.tipsHidden, 2);
}

TEST_F(PopupsTest, AClickOnADayWritesItsTextAndCloses)
{
    owner.duringPut = [this] { recorder.lines.push_back(u"put"); };
    popups.openCalendar(owner);
    calendarForm().choose(calendar_widget::months, 11); // December: writes nothing
    calendarForm().doubleClick(calendar_widget::day(40));
    EXPECT_TRUE(owner.puts.empty());
    calendarForm().click(calendar_widget::day(40));
    EXPECT_EQ(owner.puts, (std::vector<engine::Value>{std::u16string(u"10/01/2025")}));
    EXPECT_EQ(recorder.lines, (Lines{u"open CalendarioSDI 100 221 184 167", u"put", u"close CalendarioSDI"}));
    EXPECT_EQ(popups.calendar(), nullptr);
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

TEST_F(PopupsTest, OneInstanceOfEachAndOnlyOneOpen)
{
    ScriptedOwner other;
    owner.text = u"01/01/2000";
    popups.openCalendar(owner);
    CalendarioSDI* const first = popups.calendar();
    popups.openCalendar(other);
    EXPECT_EQ(popups.calendar(), first);
    EXPECT_TRUE(popups.isOpenFor(other));
    EXPECT_FALSE(popups.isOpenFor(owner));
    other.text = u"7";
    popups.openCalculator(other);
    popups.calculator()->typeCharacter(u'5');
    popups.openCalculator(owner); // its text is no number: the display stays
    EXPECT_EQ(popups.calculator()->display(), u"75");
    EXPECT_EQ(recorder.lines, (Lines{u"open CalendarioSDI 100 221 184 167", u"open CalendarioSDI 100 221 184 167",
                                     u"close CalendarioSDI", u"open frmCalculadora 100 221 110 109",
                                     u"open frmCalculadora 100 221 110 109"}));
}

TEST_F(PopupsTest, F2OnlyWhileAnOperatorHasTheFocus)
{
    openCalculatorWith(u"12,5");
    popups.calculator()->clickWithMouse(calculator_widget::decimal);
    popups.calculator()->typeCharacter(u'7'); // its button is no digit or operator: ignored
    popups.calculator()->pressF2();
    popups.calculator()->clickWithMouse(calculator_widget::cancelEntry);
    popups.calculator()->pressF2();
    EXPECT_TRUE(owner.puts.empty());
    popups.calculator()->typeCharacter(u'8');
    popups.calculator()->pressF2();
    EXPECT_EQ(owner.puts, (std::vector<engine::Value>{8.0}));
    EXPECT_EQ(popups.calculator(), nullptr);
}

TEST_F(PopupsTest, ADivisionByZeroIsToldAndTheCalculatorOutlivesItsBox)
{
    openCalculatorWith(u"9");
    recorder.lines.clear();
    recorder.duringBox = [this] { // as a real box does: another window is active while it is up
        popups.calculator()->deactivated();
        popups.calculator()->tick();
    };
    for (const char16_t key : std::u16string_view(u"/0="))
        popups.calculator()->typeCharacter(key);
    EXPECT_EQ(recorder.lines, Lines{u"exclamation|Tamber Calc|Erro, Divisão por zero impossível"});
    ASSERT_NE(popups.calculator(), nullptr);
    EXPECT_EQ(popups.calculator()->display(), u"9");
    popups.calculator()->deactivated();
    EXPECT_EQ(popups.calculator(), nullptr);
}

TEST_F(PopupsTest, ConventionalKeysOfTheCalculator)
{
    openCalculatorWith(u"2");
    const auto press = [this](int code) {
        int shift = 0;
        popups.calculator()->keyDown(calculatorForm().focused(), code, shift);
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
        popups.calendar()->keyDown(calendar_widget::months, code, shift);
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
        machine.desktop.retire(calendarForm()); // no notice of it, as when another program comes forward
        machine.forms.tick();
        EXPECT_EQ(popups.calendar(), nullptr);
        EXPECT_EQ(owner.focusTaken, 1);
    }
}

TEST_F(PopupsTest, AFailingForegroundCheckIsLoggedUnlessTheSiteIsGone)
{
    struct Row {
        int number;
        bool logged;
    };
    for (const Row row : {Row{91, true}, Row{398, false}}) {
        owner.failingParent = 0;
        popups.openCalendar(owner);
        owner.failingParent = row.number;
        recorder.lines.clear();
        machine.forms.tick();
        EXPECT_EQ(recorder.lines.front() == u"C:\\Log_Vela.txt|91|Procedimento: CJA", row.logged);
        EXPECT_EQ(recorder.lines.back(), u"close CalendarioSDI");
        owner.failingParent = 0;
        popups.openCalculator(owner);
        owner.failingParent = row.number;
        recorder.lines.clear();
        machine.forms.tick();
        EXPECT_EQ(recorder.lines.front() == u"C:\\Log_Vela.txt|91|Procedimento: Calculadora", row.logged);
        EXPECT_EQ(recorder.lines.back(), u"close frmCalculadora");
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
    EXPECT_EQ(recorder.lines, Lines{u"exclamation|Vela.IDR|Acesso Negado!"});
    EXPECT_EQ(popups.calendar()->grid().highlightCount(), 10000);
}

TEST_F(PopupsTest, TheColoursAreThoseOfTheProcess)
{
    CalendarColours colours;
    colours.selected = engine::Colour{0x00010203};
    colours.dayInactive = engine::Colour{0x00040506};
    popups.colours().put(colours);
    popups.openCalendar(owner);
    EXPECT_EQ(calendarForm().look(calendar_widget::frame).back, colours.selected);
    EXPECT_TRUE(calendarForm().look(calendar_widget::frame).round);
    EXPECT_EQ(calendarForm().look(calendar_widget::day(0)).fore, colours.dayInactive);
    EXPECT_EQ(calendarForm().backColour(), colours.form);
    const platform::WidgetRow& day =
        calendarPopupLayout().rows[static_cast<std::size_t>(calendar_widget::day(19).value)];
    EXPECT_EQ(calendarForm().look(calendar_widget::frame).left, day.place.left - 90);
    EXPECT_EQ(calendarForm().look(calendar_widget::frame).top, day.place.top - 30);
}

} // namespace
} // namespace vela::popups
