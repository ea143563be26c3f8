// The commands calendar, grid and calculator.
#include "apps/console/key_text.h"
#include "apps/console/session.h"
#include "apps/console/value_text.h"
#include "popups/c_calendar.h"
#include "popups/calculator_layout.h"
#include "popups/calendario_sdi.h"
#include "popups/frm_calculadora.h"

#include <string>

namespace vela::console {

namespace {

// The free-standing calendar of a run, made by its first use.
struct GridDesk {
    explicit GridDesk(Session& session)
        : calendar(session.machine().environment, session.machine().forms, session.popups().colours())
    {
        calendar.initNew();
    }

    popups::cCalendar calendar;
};

std::string orDots(std::u16string_view text)
{
    return text.empty() ? ".." : toUtf8(text);
}

std::string cellText(const popups::DayCell& cell)
{
    const std::u16string tag = popups::tagText(cell);
    return orDots(popups::caption(cell)) + (tag.empty() ? "" : "/" + toUtf8(tag));
}

std::u16string_view monthText(const popups::CalendarGrid& grid)
{
    return grid.monthIndex() < 0 ? std::u16string_view()
                                 : popups::monthNames()[static_cast<std::size_t>(grid.monthIndex())];
}

// "grid Março 2024 selected "15/03/2024" frame 19" and the six lines of its cells.
void printGrid(Session& session, std::string_view heading, const popups::CalendarGrid& grid)
{
    session.printLine(std::string(heading) + " " + orDots(monthText(grid)) + " " + orDots(grid.yearText()) +
                      " selected " + quoted(grid.selectedText()) + " frame " + std::to_string(grid.frameCell()));
    for (std::size_t row = 0; row < 6; ++row) {
        std::string line;
        for (std::size_t column = 0; column < 7; ++column)
            line += (column == 0 ? "" : " ") + cellText(grid.cells()[row * 7 + column]);
        session.printLine(line);
    }
}

enum class Act { print, click, month, year, highlight, start };

struct Request {
    Act act = Act::print;
    int integer = 0;
    engine::Value value;
};

// Reads the whole line before anything is done.
Request requestOf(Words words)
{
    if (words.size() == 1)
        return {};
    requireWords(words, 3, 3);
    constexpr std::pair<std::u16string_view, Act> acts[] = {{u"click", Act::click},
                                                            {u"month", Act::month},
                                                            {u"year", Act::year},
                                                            {u"highlight", Act::highlight},
                                                            {u"start", Act::start}};
    for (const auto& [name, act] : acts) {
        if (!words[1].is(name))
            continue;
        if (act == Act::highlight || act == Act::start)
            return {act, 0, valueOf(words[2])};
        return {act, integerOf(words[2]), {}};
    }
    notACommand("no such act of a calendar", words[1], {u"click", u"month", u"year", u"highlight", u"start"});
}

template <class Calendar>
void carryOut(Calendar& calendar, const Request& request)
{
    switch (request.act) {
    case Act::print: return;
    case Act::click: return calendar.pickDay(request.integer);
    case Act::month: return calendar.putMonthIndex(request.integer);
    case Act::year: return calendar.putYearIndex(request.integer);
    case Act::highlight: calendar.IncluiDataRealcada(request.value); return;
    case Act::start: calendar.IniciaCalendario(request.value); return;
    }
}

void calendarCommand(Session& session, Words words)
{
    const Request request = requestOf(words);
    popups::CalendarioSDI* const calendar = session.popups().calendar();
    if (request.act == Act::print && calendar == nullptr)
        session.printLine("calendar closed");
    else if (request.act == Act::print)
        printGrid(session, "calendar", calendar->grid());
    else
        carryOut(needed(calendar), request);
}

void gridCommand(Session& session, Words words)
{
    const Request request = requestOf(words);
    popups::cCalendar& calendar = session.state<GridDesk>().calendar;
    if (request.act == Act::print)
        printGrid(session, "grid", calendar.grid());
    else
        carryOut(calendar, request);
}

popups::frmCalculadora& openCalculator(Session& session)
{
    return needed(session.popups().calculator());
}

std::vector<headless::Key> calculatorKeys(const Word& word)
{
    static constexpr KeyName f2[] = {{u"{F2}", {headless::virtual_key::f2, 0, false}}};
    return keysOf(textOf(word), f2);
}

// A key that closes the calculator ends the typing.
void typeAt(Session& session, const std::vector<headless::Key>& keys)
{
    const popups::frmCalculadora* const typedAt = &openCalculator(session);
    for (const headless::Key& key : keys) {
        if (session.popups().calculator() != typedAt)
            return;
        if (key.code == headless::virtual_key::f2 && !key.pressed)
            openCalculator(session).pressF2();
        else
            openCalculator(session).typeCharacter(key.character);
    }
}

// "Number7", "Operator4", "Decimal"
platform::WidgetId buttonOf(const Word& word)
{
    const auto& rows = popups::calculatorLayout().rows;
    for (std::size_t at = 0; at < rows.size(); ++at) {
        std::u16string name(rows[at].name);
        if (rows[at].index >= 0)
            name += static_cast<char16_t>(u'0' + rows[at].index);
        if (rows[at].kind == platform::WidgetKind::button && word.is(name))
            return {static_cast<int>(at)};
    }
    notACommand("no such button of the calculator", word);
}

void calculatorCommand(Session& session, Words words)
{
    if (words.size() == 1) {
        const popups::frmCalculadora* const calculator = session.popups().calculator();
        session.printLine(calculator == nullptr ? "calculator closed" : "calculator " + quoted(calculator->display()));
        return;
    }
    requireWords(words, 3, 3);
    if (words[1].is(u"keys")) {
        typeAt(session, calculatorKeys(words[2]));
    } else if (words[1].is(u"click")) {
        const platform::WidgetId button = buttonOf(words[2]);
        openCalculator(session).clickWithMouse(button);
    } else {
        notACommand("no such act of the calculator", words[1], {u"keys", u"click"});
    }
}

} // namespace

CommandTable popupCommands() noexcept
{
    static constexpr Command commands[] = {
        {u"calendar", 1, 3, calendarCommand,
         "calendar\n"
         "calendar click CELL|month INDEX|year INDEX\n"
         "calendar highlight VALUE|start VALUE\n"
         "  Prints the open pop-up calendar, or acts in it; cells and indexes count from 0."},
        {u"grid", 1, 3, gridCommand,
         "grid\n"
         "grid click CELL|month INDEX|year INDEX\n"
         "grid highlight VALUE|start VALUE\n"
         "  The same at one calendar that belongs to no control."},
        {u"calculator", 1, 3, calculatorCommand,
         "calculator\n"
         "calculator keys \"TEXT\"\n"
         "calculator click BUTTON\n"
         "  Prints the open calculator's display, types at it, or clicks Number0 to Number9, Operator0 to Operator4, "
         "Decimal,\n"
         "  Percent, CancelEntry or Cancel."}};
    return commands;
}

} // namespace vela::console
