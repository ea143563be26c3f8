// One comparison between the engine and the system's library, and what each of the two answers.
#pragma once

#include "engine/locale.h"

#include <string>
#include <variant>

namespace vela::differential {

enum class Language { portuguese, english };

enum class Question {
    readNumber,    // text
    readCurrency,  // text
    readDate,      // text
    writeNumber,   // number
    writeDate,     // number: a serial
    formatNumber,  // number, pattern
    formatDate,    // number: a serial; pattern
    formatText,    // text, pattern
    fixedDecimals, // number, decimals
};

struct Case {
    Question question = Question::readNumber;
    Language language = Language::portuguese;
    double number = 0;
    std::u16string text;
    std::u16string pattern;
    int decimals = 0;
};

enum class Refusal { typeMismatch, overflow, invalidArgument, other };

// A text, a number (currency in ten-thousandths) or a refusal.
using Outcome = std::variant<std::u16string, double, long long, Refusal>;

// What the engine is asked: a case in a locale, which a known fault of the library may have altered.
struct Request {
    Case asked;
    engine::Locale locale;
};

[[nodiscard]] Request requestFor(const Case& asked);
[[nodiscard]] Outcome engineOutcome(const Request& request);
// Numbers agree within the last digits: the library sums digits in doubles, the engine rounds once.
[[nodiscard]] bool agree(const Outcome& ours, const Outcome& theirs);

[[nodiscard]] std::string describe(const Case& asked);
[[nodiscard]] std::string describe(const Outcome& outcome);

} // namespace vela::differential
