// Asking the engine, comparing answers, and making the engine's wrong.
#include "tests/differential/cases.h"

#include "engine/error.h"
#include "engine/text/conversions.h"
#include "engine/text/pattern.h"
#include "platform/win32/environment.h"

#include <cmath>
#include <cstdio>
#include <vector>

namespace vela::differential {
namespace {

constexpr double tolerance = 1e-14;

std::optional<Question> sabotaged;
unsigned sabotageKind = 0;

Outcome ask(const Request& request)
{
    const Case& asked = request.asked;
    const engine::Locale& locale = request.locale;
    const engine::Date today{systemToday()};
    switch (asked.question) {
    case Question::readNumber: return engine::toDouble(asked.text, locale);
    case Question::readCurrency: return static_cast<long long>(engine::toCurrency(asked.text, locale).tenThousandths);
    case Question::readDate: return engine::toDate(asked.text, locale, today).serial;
    case Question::leadingNumber: return engine::leadingNumber(asked.text);
    case Question::writeNumber: return engine::numberToText(asked.number, locale);
    case Question::writeDate: return engine::dateToText({asked.number}, locale);
    case Question::formatNumber: return engine::format(asked.number, asked.pattern, locale, today);
    case Question::formatDate: return engine::format(engine::Date{asked.number}, asked.pattern, locale, today);
    case Question::formatText: return engine::format(asked.text, asked.pattern, locale, today);
    case Question::fixedDecimals: return engine::formatNumber(asked.number, asked.decimals, locale);
    }
    return Refusal::other;
}

Outcome answered(const Request& request)
{
    if (request.answer)
        return *request.answer;
    try {
        return ask(request);
    } catch (const engine::Error& error) {
        return static_cast<Refusal>(error.number);
    }
}

std::u16string wrongText(std::u16string text, unsigned kind)
{
    const std::size_t digit = text.find_last_of(u"0123456789");
    if (kind == 0 && digit != std::u16string::npos)
        text[digit] = text[digit] == u'9' ? u'0' : static_cast<char16_t>(text[digit] + 1);
    else if (kind == 1 && !text.empty())
        text.pop_back();
    else if (kind == 2 && !text.empty())
        text.erase(text.begin());
    else
        text.insert(text.begin(), u'-');
    return text;
}

Outcome wrong(const Outcome& right, unsigned kind)
{
    if (std::holds_alternative<Refusal>(right))
        return kind % 2 == 0 ? Outcome(0.0) : Outcome(std::u16string(u"0"));
    if (const auto* text = std::get_if<std::u16string>(&right); text != nullptr && kind < 4)
        return wrongText(*text, kind);
    if (const auto* number = std::get_if<double>(&right); number != nullptr && kind < 4)
        return *number == 0 ? 1e-9 : *number * std::array{10.0, -1.0, 2.0, 1 + 1e-9}[kind];
    if (const auto* currency = std::get_if<long long>(&right); currency != nullptr && kind < 4)
        return *currency + (kind % 2 == 0 ? 1 : 10000);
    return Refusal::typeMismatch;
}

std::string utf8(const std::u16string& text)
{
    std::string result;
    for (const char16_t unit : text) {
        if (unit >= 0x20 && unit < 0x7F) {
            result.push_back(static_cast<char>(unit));
        } else {
            char escape[8];
            std::snprintf(escape, sizeof escape, "\\u%04X", static_cast<unsigned>(unit));
            result += escape;
        }
    }
    return result;
}

std::string exact(double number)
{
    char text[40];
    std::snprintf(text, sizeof text, "%.17g", number);
    return text;
}

} // namespace

const engine::Locale& localeOf(LocaleIndex index)
{
    static const std::vector<engine::Locale> all = [] {
        std::vector<engine::Locale> locales;
        for (const std::u16string_view name : localeNames)
            locales.push_back(win32::systemLocale(reinterpret_cast<const wchar_t*>(name.data())));
        return locales;
    }();
    return all[index];
}

Outcome engineOutcome(const Request& request)
{
    const Outcome right = answered(request);
    return sabotaged == request.asked.question && !request.answer ? wrong(right, sabotageKind) : right;
}

void sabotage(std::optional<Question> question, unsigned kind)
{
    sabotaged = question;
    sabotageKind = kind;
}

bool agree(const Outcome& ours, const Outcome& theirs)
{
    const double* const ourNumber = std::get_if<double>(&ours);
    const double* const theirNumber = std::get_if<double>(&theirs);
    if (ourNumber != nullptr && theirNumber != nullptr) {
        const double scale = std::fabs(*theirNumber);
        return std::fabs(*ourNumber - *theirNumber) <= scale * tolerance;
    }
    return ours == theirs;
}

std::string describe(const Case& asked)
{
    const std::u16string_view locale = localeNames[asked.locale];
    return std::string(nameOf(asked.question)) + " " + std::string(locale.begin(), locale.end()) + " \"" +
           utf8(asked.text) + "\" " + exact(asked.number) + " with \"" + utf8(asked.pattern) + "\" " +
           std::to_string(asked.decimals);
}

std::string describe(const Outcome& outcome)
{
    if (const auto* text = std::get_if<std::u16string>(&outcome))
        return '"' + utf8(*text) + '"';
    if (const auto* number = std::get_if<double>(&outcome))
        return exact(*number);
    if (const auto* currency = std::get_if<long long>(&outcome))
        return std::to_string(*currency);
    return "error " + std::to_string(static_cast<int>(std::get<Refusal>(outcome)));
}

} // namespace vela::differential
