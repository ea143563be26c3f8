// Reads a text as the numbers, names and separators of a date and a time of day.
#pragma once

#include "engine/text/calendar_date.h"
#include "engine/text/locale.h"

#include <array>
#include <cstdint>
#include <string_view>

namespace vela::engine {

// One number of a date text (a month's name counts as its number) and what stands behind it.
struct DateField {
    std::uint32_t value = 0;
    bool timeSeparator = false; // ":" or "."
    bool point = false;         // "." and nothing else
    bool dateSeparator = false; // "/" or "-"
    int separators = 0;         // with blanks and commas
    bool month = false;         // read from a name
    bool morning = false, afternoon = false;
    bool hasHalf() const noexcept { return morning || afternoon; }
};

struct DateFields {
    static constexpr std::size_t most = 6;
    std::array<DateField, most> field;
    std::size_t count = 0;
    bool morning = false, afternoon = false;
    bool hasHalf() const noexcept { return morning || afternoon; }
};

// False for texts with anything else in them, or with separators where none may stand.
[[nodiscard]] bool scanDateFields(std::u16string_view text, const Locale& locale, DateFields& fields) noexcept;

} // namespace vela::engine
