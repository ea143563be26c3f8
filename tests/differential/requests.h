// Questions about a request, and the plain characters of its pattern: those outside quotes and not escaped.
#pragma once

#include "engine/compiled_pattern.h"
#include "tests/differential/cases.h"

#include <optional>
#include <vector>

namespace vela::differential {

struct PlainCharacter {
    std::size_t position = 0;
    std::size_t section = 0;
    char16_t unit = 0;
};

[[nodiscard]] std::vector<PlainCharacter> plainCharacters(const std::u16string& pattern);
[[nodiscard]] engine::Pattern::Compiled compiled(const Request& request);
[[nodiscard]] bool asks(const Request& request, Question question);
[[nodiscard]] bool formats(const Request& request);
[[nodiscard]] bool isKind(const Request& request, engine::PatternKind kind);
[[nodiscard]] bool hasMark(const Request& request, engine::Mark mark);
[[nodiscard]] int countMarks(const Request& request, engine::Mark first, engine::Mark last);
[[nodiscard]] bool isPortuguese(const Request& request);
[[nodiscard]] bool isRefusal(const Outcome& outcome, Refusal refusal);
// The number that a number pattern formats, and the section it takes.
[[nodiscard]] std::optional<double> formattedNumber(const Request& request);
[[nodiscard]] engine::Section sectionOf(const engine::Pattern::Compiled& pattern, double number);
void setNumber(Request& request, double number);
// The moment that a date pattern formats.
[[nodiscard]] std::optional<engine::Moment> formattedMoment(const Request& request);

} // namespace vela::differential
