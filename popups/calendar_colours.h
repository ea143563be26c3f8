// Oddity: the seven Calendar_ colours are one record of the process, shared by every control and calendar of every
// thread; forms set them on one field only.
#pragma once

#include "engine/value.h"

#include <mutex>

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

// The record itself. Controls of several threads share it; each call reads or writes it whole.
class SharedCalendarColours {
public:
    [[nodiscard]] CalendarColours read() const
    {
        const std::lock_guard lock(mutex_);
        return colours_;
    }
    void put(const CalendarColours& colours)
    {
        const std::lock_guard lock(mutex_);
        colours_ = colours;
    }
    void put(engine::Colour CalendarColours::*which, engine::Colour colour)
    {
        const std::lock_guard lock(mutex_);
        colours_.*which = colour;
    }

private:
    mutable std::mutex mutex_;
    CalendarColours colours_;
};

} // namespace vela::popups
