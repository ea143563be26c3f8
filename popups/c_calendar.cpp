// The free-standing calendar: its persisted date, its operations, its mouse and keys.
#include "popups/c_calendar.h"

#include "engine/error.h"
#include "engine/text/key_codes.h"
#include "popups/calendar_keys.h"
#include "popups/calendar_layout.h"
#include "popups/grid_dates.h"

namespace vela::popups {

namespace {

constexpr std::u16string_view dateKey = u"DateInitial";
constexpr HighlightRule highlightRule{1000, u"Vela", u"Não é possível inserir mais de 1000 datas!"};

} // namespace

cCalendar::cCalendar(platform::Environment& environment, platform::FormFactory& forms,
                     const SharedCalendarColours& colours)
    : form_(forms.make(calendarControlLayout(), {.clicks = this, .keysDown = this})),
      calendar_(environment, *form_, colours, highlightRule, boxes_)
{
}

void cCalendar::initNew()
{
    calendar_.load();
}

void cCalendar::load(platform::PropertyBag& bag)
{
    const engine::Value kept = bag.read(dateKey, std::u16string());
    if (const auto* text = std::get_if<std::u16string>(&kept))
        calendar_.grid.select(*text);
    calendar_.load();
}

void cCalendar::save(platform::PropertyBag& bag)
{
    bag.write(dateKey, grid().selectedText(), std::u16string());
}

engine::Value cCalendar::IniciaCalendario(const engine::Value& date)
{
    calendar_.start(date);
    return engine::Empty{};
}

engine::Value cCalendar::IncluiDataRealcada(const engine::Value&)
{
    calendar_.countHighlight();
    return engine::Empty{};
}

engine::Date cCalendar::selectedDate() const
{
    const auto date = tryReadDayFirst(grid().selectedText());
    if (!date)
        engine::raise(engine::error_number::typeMismatch);
    return engine::makeDate(*date);
}

void cCalendar::pick(int cell)
{
    pickDay(cell);
    tellPicked();
}

void cCalendar::tellPicked() const
{
    if (const auto tell = picked) // a copy: the host may take the function away while it runs
        tell();
}

void cCalendar::clicked(platform::WidgetId widget)
{
    if (const int cell = calendar_.takeClick(widget); cell >= 0)
        pick(cell);
}

void cCalendar::keyDown(platform::WidgetId, int& code, int& shift)
{
    if (code == engine::key_code::enter && shift == 0 && grid().frameCell() >= 0) {
        code = 0;
        pick(grid().frameCell());
        return;
    }
    const std::u16string before = grid().selectedText();
    if (!calendar_.view.moveByKey(code, shift))
        return;
    code = 0;
    if (grid().selectedText() != before)
        tellPicked();
}

} // namespace vela::popups
