// A pattern taken apart into marks, section by section.
#pragma once

#include "engine/text/pattern.h"

#include <array>
#include <cstdint>
#include <span>
#include <vector>

namespace vela::engine {

enum class Mark : std::uint8_t {
    literal,
    zero, // "000"
    hash, // "###"
    decimal,
    exponent,
    dateSeparator,
    timeSeparator,
    generalDate,
    shortDate,
    longDate,
    longTime,
    quarter,
    day, // as the four that follow: by the number of letters
    dayZero,
    dayShort,
    dayLong,
    weekday,
    weekOfYear,
    month,
    monthZero,
    monthShort,
    monthLong,
    dayOfYear,
    yearShort,
    yearLong,
    hour,
    hourZero,
    minute,
    minuteZero,
    second,
    secondZero,
    halfOfLocale, // AMPM
    halfUpper,    // AM/PM
    halfLower,    // am/pm
    letterUpper,  // A/P
    letterLower,  // a/p
    at,           // "@@@"
    ampersand,    // "&&&"
};

struct Token {
    Mark mark = Mark::literal;
    bool smallLetter = false; // exponent: "e"
    bool plusSign = false;    // exponent: "E+"
    std::uint32_t start = 0;  // literal: where it stands in the pattern
    std::uint32_t length = 0; // literal: its units; digits, "@" and "&": the run; exponent: its "0"s
};

struct Section {
    std::uint32_t first = 0, last = 0; // its tokens
    std::uint32_t whole = 0;           // digit marks before the decimal symbol
    std::uint32_t fraction = 0;        // and behind it
    std::uint32_t skipped = 0;         // whole marks before the first "0"; all when there is none
    std::uint32_t characters = 0;      // "@" and "&" marks
    int thousands = 0;                 // how many times the number is divided by 1000
    bool written = false;
    bool grouping = false, percent = false, exponent = false, decimal = false;
    bool twelveHours = false;
    bool upper = false, lower = false, fromLeft = false;
};

enum class PatternKind : std::uint8_t { general, unknown, number, date, text };
enum class NamedNumber : std::uint8_t { none, general, currency, trueFalse, yesNo, onOff };

struct Pattern::Compiled {
    std::u16string source; // as given
    std::u16string text;   // what the tokens refer to: the source, or the pattern behind a named format
    std::vector<Token> tokens;
    std::array<Section, 4> sections;
    PatternKind kind = PatternKind::general;
    NamedNumber named = NamedNumber::none;
    bool tooManySections = false;

    [[nodiscard]] std::span<const Token> tokensOf(const Section& section) const noexcept
    {
        return std::span(tokens).subspan(section.first, section.last - section.first);
    }
    [[nodiscard]] std::u16string_view literal(const Token& token) const noexcept
    {
        return std::u16string_view(text).substr(token.start, token.length);
    }
};

} // namespace vela::engine
