// One line a value, its parts between tabs: kind, locale, input, pattern, answer.
#include "tests/differential/cases.h"

#include "engine/text/calendar_date.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <stdexcept>

namespace vela::differential {
namespace {

using Parts = std::array<std::string, 5>;

Parts split(const std::string& line)
{
    Parts parts;
    std::size_t from = 0;
    for (std::string& part : parts) {
        const std::size_t end = std::min(line.find('\t', from), line.size());
        part = line.substr(from, end - from);
        from = std::min(end + 1, line.size());
    }
    return parts;
}

// "\u00A0" is one character; everything else stands for itself.
std::u16string unescaped(const std::string& part)
{
    std::u16string text;
    for (std::size_t at = 0; at < part.size(); ++at)
        if (part.compare(at, 2, "\\u") == 0) {
            text.push_back(static_cast<char16_t>(std::stoi(part.substr(at + 2, 4), nullptr, 16)));
            at += 5;
        } else {
            text.push_back(static_cast<char16_t>(part[at]));
        }
    return text;
}

template <typename Names>
std::size_t indexOf(const Names& names, const auto& name)
{
    const auto found = std::ranges::find(names, name);
    if (found == names.end())
        throw std::runtime_error("no such name");
    return static_cast<std::size_t>(found - names.begin());
}

// "@3/4+0.125": a moment of 4 March of this year.
double thisYears(const std::string& part)
{
    char* end = nullptr;
    const long month = std::strtol(part.c_str() + 1, &end, 10);
    const long day = std::strtol(end + 1, &end, 10);
    const int year = engine::civilDate({systemToday()})->year;
    return engine::makeDate({year, static_cast<int>(month), static_cast<int>(day)}).serial + std::strtod(end, nullptr);
}

Outcome answerOf(const std::string& part)
{
    if (part == "mismatch")
        return Refusal::typeMismatch;
    if (part.starts_with('"'))
        return unescaped(part.substr(1, part.size() - 2));
    if (part.starts_with('@'))
        return thisYears(part);
    return std::stod(part);
}

SeenValue seenValue(const Parts& parts)
{
    const auto& [kind, locale, input, pattern, answer] = parts;
    SeenValue seen;
    Case& asked = seen.request.asked;
    asked.question = static_cast<Question>(indexOf(questionNames, kind));
    asked.locale = indexOf(localeNames, std::u16string(locale.begin(), locale.end()));
    const bool ofNumber = asked.question >= Question::writeNumber && asked.question <= Question::formatDate;
    asked.number = ofNumber ? std::stod(input) : 0;
    asked.text = ofNumber ? u"" : unescaped(input);
    asked.pattern = unescaped(pattern);
    seen.request.locale = locale == "en-US" ? engine::enUs() : localeOf(asked.locale);
    seen.answer = answerOf(answer);
    return seen;
}

} // namespace

std::vector<SeenValue> seenValues(const std::filesystem::path& file)
{
    std::vector<SeenValue> values;
    std::ifstream lines(file, std::ios::binary);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('#'))
            continue;
        try {
            values.push_back(seenValue(split(line)));
        } catch (const std::exception&) {
            throw std::runtime_error("unreadable: " + line);
        }
    }
    return values;
}

bool agreeWithSeen(const SeenValue& seen, const Outcome& outcome)
{
    const double* const expected = std::get_if<double>(&seen.answer);
    const double* const number = std::get_if<double>(&outcome);
    if (expected != nullptr && number != nullptr && seen.request.asked.question == Question::readDate)
        return std::fabs(*expected - *number) < 1e-9;
    return agree(outcome, seen.answer);
}

} // namespace vela::differential
