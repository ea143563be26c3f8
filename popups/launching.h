// Opening a pop-up under a control: hands the control's text over, places the form, reports a failure in one box.
#pragma once

#include "platform/environment.h"
#include "popups/owner.h"

#include <functional>

namespace vela::popups {

class CalendarioSDI;
class frmCalculadora;

// Window sizes in pixels at 96 dpi; the form scales itself to its screen.
inline constexpr int calendarPopupWidth = 184;
inline constexpr int calendarPopupHeight = 167;
inline constexpr int calculatorPopupWidth = 110;
inline constexpr int calculatorPopupHeight = 109;

// `load` answers the loaded form, made when there is none; `loaded` the form that is loaded now, null when it has gone.
// What fails is told in a box with the number of the step that failed, after `discard` has taken the form away.
struct CalendarLoader {
    std::function<CalendarioSDI&()> load;
    std::function<void()> discard;
};
struct CalculatorLoader {
    std::function<frmCalculadora&()> load;
    std::function<frmCalculadora*()> loaded;
    std::function<void()> discard;
};
void launchCalendar(const platform::Environment& environment, Owner& owner, const CalendarLoader& loader);
void launchCalculator(const platform::Environment& environment, Owner& owner, const CalculatorLoader& loader);

} // namespace vela::popups
