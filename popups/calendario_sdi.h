// The calendar that a date field opens: one click on a day writes the date into the owner's Text and closes it.
#pragma once

#include "popups/calendar_operations.h"
#include "popups/popup_life.h"

#include <memory>

namespace vela::popups {

class CalendarioSDI final : public platform::FormEvents {
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

    void putSelected(engine::CivilDate date); // draws nothing
    void putMonthIndex(int index);            // draws; 380 outside the list
    void putYearIndex(int index);
    // As a click does. Raises what the owner's Text raises; the pop-up then stays open. 9 outside 0..41.
    void pickDay(int cell);
    [[nodiscard]] const CalendarGrid& grid() const noexcept { return calendar_->grid; }

    void show(engine::RectPixels place, platform::WindowId parent);
    void unload() { life_.unload(); }

    void clicked(platform::WidgetId widget) override;
    void doubleClicked(platform::WidgetId) override {}
    void changed(platform::WidgetId) override {}
    void gotFocus(platform::WidgetId) override {}
    void lostFocus(platform::WidgetId) override {}
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void keyPress(platform::WidgetId, int&) override {}
    void activated() override;
    void deactivated() override { life_.deactivated(boxUp()); }
    void tick() override { life_.tick(boxUp()); }
    void closed() override { life_.closed(); }

private:
    [[nodiscard]] bool boxUp() const { return life_.isLoaded() && calendar_->boxes.anyUp(); }

    PopupRecord& record_;
    PopupLife life_;
    std::unique_ptr<CalendarOperations> calendar_;
};

} // namespace vela::popups
