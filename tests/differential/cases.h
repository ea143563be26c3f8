// One comparison between the engine and a judge, what either answers, and where the questions come from.
#pragma once

#include "engine/text/locale.h"

#include <array>
#include <filesystem>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vela::differential {

// Of the system's data; the first two have a fixed locale of the engine's own as well.
inline constexpr std::array<std::u16string_view, 15> localeNames{u"pt-BR", u"en-US", u"de-DE", u"fr-FR", u"es-ES",
                                                                 u"it-IT", u"nl-NL", u"pl-PL", u"cs-CZ", u"fi-FI",
                                                                 u"da-DK", u"ja-JP", u"ru-RU", u"en-GB", u"pt-PT"};
using LocaleIndex = std::size_t;
[[nodiscard]] const engine::Locale& localeOf(LocaleIndex index);

enum class Question {
    readNumber,    // text
    readCurrency,  // text
    readDate,      // text
    leadingNumber, // text
    writeNumber,   // number
    writeDate,     // number: a serial
    formatNumber,  // number, pattern
    formatDate,    // number: a serial; pattern
    formatText,    // text, pattern
    fixedDecimals, // number, decimals
};
inline constexpr std::array<std::string_view, 10> questionNames{
    "read-number", "read-currency", "read-date",   "leading-number", "write-number",
    "write-date",  "format-number", "format-date", "format-text",    "fixed-decimals"};
[[nodiscard]] constexpr std::string_view nameOf(Question question)
{
    return questionNames[static_cast<std::size_t>(question)];
}

struct Case {
    Question question = Question::readNumber;
    LocaleIndex locale = 0;
    double number = 0;
    std::u16string text;
    std::u16string pattern;
    int decimals = 0;
};

enum class Refusal { other = 0, invalidArgument = 5, overflow = 6, typeMismatch = 13 }; // the engine's error numbers

// A text, a number (currency in ten-thousandths) or a refusal.
using Outcome = std::variant<std::u16string, double, long long, Refusal>;

// What the engine is asked: a case in a locale. A known fault of the library alters it until the engine's answer is the
// library's, or gives that answer itself.
struct Request {
    Case asked;
    engine::Locale locale;
    std::optional<Outcome> answer = std::nullopt;
};

[[nodiscard]] Outcome engineOutcome(const Request& request);
// Numbers agree within the last digits: the library sums digits in doubles, the engine rounds once.
[[nodiscard]] bool agree(const Outcome& ours, const Outcome& theirs);

// From now on the engine's answers to this question are wrong in one of five ways, 0 to 4; nothing: right again.
void sabotage(std::optional<Question> question, unsigned kind = 0);

// The system's automation library as the judge: each question answered in its locale.
[[nodiscard]] Outcome systemOutcome(const Case& asked);
[[nodiscard]] LocaleIndex userLocale(); // fixed decimals are written in the user's own locale: the library takes none
[[nodiscard]] double systemToday();

// Answers seen on Windows, as data: the second judge.
struct SeenValue {
    Request request; // in the engine's fixed locale where there is one
    Outcome answer;
};
// Raises std::runtime_error with the line that it cannot read.
[[nodiscard]] std::vector<SeenValue> seenValues(const std::filesystem::path& file);
// Dates are given to the second, numbers to their last digits.
[[nodiscard]] bool agreeWithSeen(const SeenValue& seen, const Outcome& outcome);

// A random case of one question, in the shapes that fields meet.
using Random = std::mt19937;
[[nodiscard]] Case randomCase(Question question, Random& random);

[[nodiscard]] std::string describe(const Case& asked);
[[nodiscard]] std::string describe(const Outcome& outcome);

} // namespace vela::differential
