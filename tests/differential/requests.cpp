// Requests and their patterns looked into.
#include "tests/differential/requests.h"

#include "engine/conversions.h"
#include "tests/differential/system_library.h"

#include <algorithm>

namespace vela::differential {

using engine::Mark;

std::vector<PlainCharacter> plainCharacters(const std::u16string& pattern)
{
    std::vector<PlainCharacter> result;
    std::size_t section = 0;
    for (std::size_t i = 0; i < pattern.size(); ++i) {
        switch (pattern[i]) {
        case u'\\': ++i; break;
        case u'"': i = std::min(pattern.find(u'"', i + 1), pattern.size()); break;
        case u';': ++section; break;
        default: result.push_back({i, section, pattern[i]});
        }
    }
    return result;
}

engine::Pattern::Compiled compiled(const Request& request)
{
    return engine::compilePattern(request.asked.pattern);
}

bool asks(const Request& request, Question question)
{
    return request.asked.question == question;
}

bool formats(const Request& request)
{
    return asks(request, Question::formatNumber) || asks(request, Question::formatDate) ||
           asks(request, Question::formatText);
}

bool isKind(const Request& request, engine::PatternKind kind)
{
    return formats(request) && compiled(request).kind == kind;
}

int countMarks(const Request& request, Mark first, Mark last)
{
    if (!formats(request))
        return 0;
    const auto pattern = compiled(request);
    return static_cast<int>(std::ranges::count_if(
        pattern.tokens, [&](const engine::Token& token) { return token.mark >= first && token.mark <= last; }));
}

bool hasMark(const Request& request, Mark mark)
{
    return countMarks(request, mark, mark) > 0;
}

bool isPortuguese(const Request& request)
{
    return request.asked.language == Language::portuguese;
}

bool isRefusal(const Outcome& outcome, Refusal refusal)
{
    const auto* const value = std::get_if<Refusal>(&outcome);
    return value != nullptr && *value == refusal;
}

std::optional<double> formattedNumber(const Request& request)
{
    if (isKind(request, engine::PatternKind::number) || isKind(request, engine::PatternKind::unknown)) {
        if (asks(request, Question::formatNumber))
            return request.asked.number;
        if (asks(request, Question::formatText))
            return engine::tryParseDouble(request.asked.text, request.locale);
    }
    return std::nullopt;
}

engine::Section sectionOf(const engine::Pattern::Compiled& pattern, double number)
{
    const auto& section = pattern.sections[number < 0 ? 1 : number == 0 ? 2 : 0];
    return section.written ? section : pattern.sections[0];
}

void setNumber(Request& request, double number)
{
    request.asked.question = Question::formatNumber;
    request.asked.number = number;
}

std::optional<engine::Moment> formattedMoment(const Request& request)
{
    if (!isKind(request, engine::PatternKind::date))
        return std::nullopt;
    if (asks(request, Question::formatText)) {
        const auto date = engine::tryParseDate(request.asked.text, request.locale, {systemToday()});
        const auto number = engine::tryParseDouble(request.asked.text, request.locale);
        return date ? engine::momentOf(*date) : number ? engine::momentOf({*number}) : std::nullopt;
    }
    return engine::momentOf({request.asked.number});
}

} // namespace vela::differential
