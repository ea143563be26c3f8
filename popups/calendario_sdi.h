// The calendar that a date field opens: one click on a day writes the date into the owner's Text and closes it.
#pragma once

#include "popups/calendar_operations.h"
#include "popups/owner.h"
#include "popups/popup_record.h"

#include <memory>

namespace vela::popups {

class CalendarioSDI final : public platform::FormEvents {
public:
    // Loads: today is selected and drawn. All outlive the object.
    CalendarioSDI(platform::Environment& environment, platform::FormFactory& forms, const CalendarColours& colours,
                  PopupRecord& record);
    ~CalendarioSDI() { loaded_ = false; } // its window's going away is no closing
    CalendarioSDI(const CalendarioSDI&) = delete;
    CalendarioSDI& operator=(const CalendarioSDI&) = delete;

    void setOwner(Owner* owner) noexcept { owner_ = owner; }
    [[nodiscard]] Owner* owner() const noexcept { return owner_; }

    engine::Value IniciaCalendario(const engine::Value& date);
    engine::Value IncluiDataRealcada(const engine::Value& date);

    void putSelected(engine::CivilDate date); // draws nothing
    void putMonthIndex(int index);            // draws; 380 outside the list
    void putYearIndex(int index);
    // As a click does. Raises what the owner's Text raises; the pop-up then stays open. 9 outside 0..41.
    void pickDay(int cell);
    [[nodiscard]] const CalendarGrid& grid() const noexcept { return calendar_->grid; }

    void show(engine::RectPixels place, platform::WindowId parent);
    void unload(); // once; the object stays until its record lets go of it
    [[nodiscard]] bool isLoaded() const noexcept { return loaded_; }
    [[nodiscard]] bool isShown() const { return loaded_ && form_->isShown(); }

    void clicked(platform::WidgetId widget) override;
    void doubleClicked(platform::WidgetId) override {}
    void changed(platform::WidgetId) override {}
    void gotFocus(platform::WidgetId) override {}
    void lostFocus(platform::WidgetId) override {}
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void keyPress(platform::WidgetId, int&) override {}
    void activated() override;
    void deactivated() override;
    void tick() override;
    void closed() override;

private:
    platform::Environment& environment_;
    PopupRecord& record_;
    Owner* owner_ = nullptr;
    bool loaded_ = false;
    std::unique_ptr<platform::Form> form_;
    std::unique_ptr<CalendarOperations> calendar_;
};

} // namespace vela::popups
