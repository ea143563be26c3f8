// The pop-ups of a user-interface thread: at most one calendar and one calculator, opened for one owner at a time.
#pragma once

#include "platform/environment.h"
#include "platform/form.h"
#include "popups/calendar_colours.h"
#include "popups/owner.h"

#include <memory>

namespace vela::popups {

class CalendarioSDI;
class frmCalculadora;

class Popups {
public:
    // All outlive the pop-ups. A program that has pop-ups in one thread only needs no record of its own.
    Popups(platform::Environment& environment, platform::FormFactory& forms,
           std::shared_ptr<SharedCalendarColours> colours = std::make_shared<SharedCalendarColours>());
    ~Popups();
    Popups(const Popups&) = delete;
    Popups& operator=(const Popups&) = delete;

    [[nodiscard]] SharedCalendarColours& colours() const noexcept; // of every calendar in the process

    // Report their own failures in a box; nothing is raised.
    void openCalendar(Owner& owner);
    void openCalculator(Owner& owner);
    // The calendar first; nothing when none is loaded. Safe from inside a pop-up's own handler.
    void closeAll();
    void forget(const Owner& owner); // an owner is going: closes both, whoever owns them, and drops references to it

    // Whether a loaded pop-up belongs to this owner. When such a pop-up takes the focus, the owner's field has not been
    // left.
    [[nodiscard]] bool isOpenFor(const Owner& owner) const noexcept;
    [[nodiscard]] CalendarioSDI* calendar() noexcept; // null when not loaded
    [[nodiscard]] frmCalculadora* calculator() noexcept;

private:
    struct State;
    std::unique_ptr<State> state_;
};

} // namespace vela::popups
