// The calendar pop-up: loading, picking, keys.
#include "popups/calendario_sdi.h"

#include "engine/text/key_codes.h"
#include "popups/calendar_keys.h"
#include "popups/calendar_layout.h"

namespace vela::popups {

namespace {

constexpr HighlightRule highlightRule{10000, u"Vela.IDR", u"Acesso Negado!"};

} // namespace

CalendarioSDI::CalendarioSDI(platform::Environment& environment, platform::FormFactory& forms,
                             const SharedCalendarColours& colours, PopupRecord& record)
    : record_(record), life_(environment, forms, calendarPopupLayout(), {.clicks = this, .keysDown = this}, record,
                             calendar_widget::months, u"Procedimento: CJA"),
      calendar_(std::make_unique<CalendarOperations>(environment, life_.form(), colours, highlightRule, life_.boxes))
{
    calendar_->load();
}

engine::Value CalendarioSDI::IniciaCalendario(const engine::Value& date)
{
    calendar_->start(date);
    return engine::Empty{};
}

engine::Value CalendarioSDI::IncluiDataRealcada(const engine::Value&)
{
    calendar_->countHighlight();
    return engine::Empty{};
}

void CalendarioSDI::putSelected(engine::CivilDate date)
{
    calendar_->grid.select(date);
}

void CalendarioSDI::pickDay(int cell)
{
    const HandlerScope running(record_);
    calendar_->clickDay(cell);
    if (grid().frameCell() < 0)
        return; // no month has been drawn: there was no day to pick
    if (owner() != nullptr)
        owner()->putPopupText(grid().selectedText());
    unload();
}

void CalendarioSDI::show(engine::RectPixels place, platform::WindowId parent)
{
    life_.form().showPopup(place, parent);
}

void CalendarioSDI::clicked(platform::WidgetId widget)
{
    const HandlerScope running(record_);
    if (!life_.isLoaded())
        return;
    if (const int cell = calendar_->takeClick(widget); cell >= 0)
        pickDay(cell);
}

void CalendarioSDI::keyDown(platform::WidgetId, int& code, int& shift)
{
    const HandlerScope running(record_);
    if (!life_.isLoaded())
        return;
    const int key = code;
    if (key == engine::key_code::escape && shift == 0) {
        code = 0;
        unload();
    } else if (key == engine::key_code::enter && shift == 0) {
        code = 0;
        if (grid().frameCell() >= 0)
            pickDay(grid().frameCell());
    } else if (calendar_->view.moveByKey(key, shift)) {
        code = 0;
    }
}

} // namespace vela::popups
