// The seven calendar colours: one record of the process, shared by every control and calendar.
#pragma once

#include "engine/value.h"

namespace vela::popups {

struct CalendarColours {
    engine::Colour form{0x00C0C0C0};
    engine::Colour back{0x80000005};
    engine::Colour combo{0x80000005};
    engine::Colour weekDay{0x00800000};
    engine::Colour dayActive{0x80000012};
    engine::Colour dayInactive{0x00808080};
    engine::Colour selected{0x00C0FFFF};
    friend bool operator==(const CalendarColours&, const CalendarColours&) = default;
};

} // namespace vela::popups
