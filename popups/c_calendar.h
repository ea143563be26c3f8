// The free-standing month calendar that a host places on a form of its own.
#pragma once

#include "platform/control_host.h"
#include "popups/calendar_operations.h"

#include <functional>
#include <memory>

namespace vela::popups {

class cCalendar final : private platform::ClickEvents, private platform::KeyDownEvents {
public:
    // Selects nothing and draws nothing before initNew() or load(). All outlive the object.
    cCalendar(platform::Environment& environment, platform::FormFactory& forms, const SharedCalendarColours& colours);

    void initNew();                        // today is selected
    void load(platform::PropertyBag& bag); // "DateInitial", "dd/mm/yyyy"; empty: today
    void save(platform::PropertyBag& bag);

    engine::Value IniciaCalendario(const engine::Value& date);
    engine::Value IncluiDataRealcada(const engine::Value& date);
    // The selected date; 13 while the text is none.
    [[nodiscard]] engine::Date selectedDate() const;

    void pickDay(int cell) { calendar_.clickDay(cell); }
    void putMonthIndex(int index) { calendar_.putMonthIndex(index); }
    void putYearIndex(int index) { calendar_.putYearIndex(index); }
    [[nodiscard]] const CalendarGrid& grid() const noexcept { return calendar_.grid; }
    [[nodiscard]] platform::Form& form() noexcept { return *form_; } // for the host to embed

    // called before a picture is drawn: the shared colours may have changed
    void refresh() { calendar_.view.refresh(); }

    std::function<void()> picked; // a day has been picked with the mouse or the Enter key, or a key has moved it

private:
    void clicked(platform::WidgetId widget) override;
    void keyDown(platform::WidgetId widget, int& code, int& shift) override;
    void pick(int cell);
    void tellPicked() const;

    std::unique_ptr<platform::Form> form_;
    OwnBoxes boxes_;
    CalendarOperations calendar_;
};

} // namespace vela::popups
