// The calendar that a date field opens: one click on a day writes the date into the owner's Text and closes it.
#pragma once

#include "popups/calendar_operations.h"
#include "popups/popup_life.h"

#include <memory>

namespace vela::popups {

class CalendarioSDI final : private platform::ClickEvents, private platform::KeyDownEvents {
public:
    // Loads: today is selected and drawn. All outlive the object.
    CalendarioSDI(platform::Environment& environment, platform::FormFactory& forms,
                  const SharedCalendarColours& colours, PopupRecord& record);
    CalendarioSDI(const CalendarioSDI&) = delete;
    CalendarioSDI& operator=(const CalendarioSDI&) = delete;

    void setOwner(Owner* owner) noexcept { life_.owner = owner; }
    [[nodiscard]] Owner* owner() const noexcept { return life_.owner; }

    engine::Value IniciaCalendario(const engine::Value& date);
    engine::Value IncluiDataRealcada(const engine::Value& date);

    void putSelected(engine::CivilDate date);                          // draws nothing
    void putMonthIndex(int index) { calendar_->putMonthIndex(index); } // draws
    void putYearIndex(int index) { calendar_->putYearIndex(index); }
    // As a click does. Raises what the owner's Text raises; the pop-up then stays open. 9 outside 0..41.
    void pickDay(int cell);
    [[nodiscard]] const CalendarGrid& grid() const noexcept { return calendar_->grid; }

    void show(engine::RectPixels place, platform::WindowId parent);
    void unload() { life_.unload(); }
    void closed() { life_.closed(); }

private:
    void clicked(platform::WidgetId widget) override;
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;

    PopupRecord& record_;
    PopupLife life_;
    std::unique_ptr<CalendarOperations> calendar_;
};

} // namespace vela::popups
